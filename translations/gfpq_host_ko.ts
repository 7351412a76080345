<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ko" sourcelanguage="en">
<context>
    <name>BRING_BACK_DIALOG</name>
    <message>
        <source>Under &amp;another name:</source>
        <translation>다른 이름으로(&amp;A):</translation>
    </message>
    <message>
        <source>Bring Back</source>
        <translation>되돌리기</translation>
    </message>
    <message>
        <source>New name</source>
        <translation>새 이름</translation>
    </message>
    <message>
        <source>The template &quot;%1&quot; becomes again what it was until %2 (state %3).</source>
        <translation>템플릿 ‘%1’이(가) %2까지의 내용으로 되돌아갑니다(상태 %3).</translation>
    </message>
    <message>
        <source>The device &quot;%1&quot; becomes again what it was until %2 (state %3).</source>
        <translation>디바이스 ‘%1’이(가) %2까지의 내용으로 되돌아갑니다(상태 %3).</translation>
    </message>
    <message>
        <source>&amp;Bring Back</source>
        <translation>되돌리기(&amp;B)</translation>
    </message>
    <message>
        <source>&amp;Replace it; it goes into the history</source>
        <translation>바꾸기; 현재 상태는 이력에 남습니다(&amp;R)</translation>
    </message>
    <message>
        <source>&amp;Under its name</source>
        <translation>원래 이름으로(&amp;U)</translation>
    </message>
    <message>
        <source>The current &quot;%1&quot; was saved on %2.</source>
        <translation>현재 ‘%1’은(는) %2에 저장되었습니다.</translation>
    </message>
    <message>
        <source>The current &quot;%1&quot; was saved on %2 by %3.</source>
        <translation>현재 ‘%1’은(는) %2에 %3 사용자가 저장했습니다.</translation>
    </message>
    <message>
        <source>A device has this name now. A template cannot have the name of a device: give it another one.</source>
        <translation>이제 디바이스가 이 이름을 사용합니다. 템플릿은 디바이스와 같은 이름을 쓸 수 없습니다: 다른 이름을 지정하십시오.</translation>
    </message>
    <message>
        <source>A template has this name now. A device cannot have the name of a template: give it another one.</source>
        <translation>이제 템플릿이 이 이름을 사용합니다. 디바이스는 템플릿과 같은 이름을 쓸 수 없습니다: 다른 이름을 지정하십시오.</translation>
    </message>
    <message>
        <source>Enter the new name.</source>
        <translation>새 이름을 입력하십시오.</translation>
    </message>
</context>
<context>
    <name>CHART_SAVER</name>
    <message>
        <source>PDF document (*.pdf)</source>
        <translation>PDF 문서 (*.pdf)</translation>
    </message>
    <message>
        <source>SVG picture (*.svg)</source>
        <translation>SVG 그림 (*.svg)</translation>
    </message>
    <message>
        <source>Save Flow Charts</source>
        <translation>흐름도 저장</translation>
    </message>
    <message>
        <source>The file %1 cannot be written: %2</source>
        <translation>파일 %1에 쓸 수 없습니다: %2</translation>
    </message>
</context>
<context>
    <name>COMPARE_DIALOG</name>
    <message>
        <source>Compare</source>
        <translation>비교</translation>
    </message>
    <message>
        <source>There are no differences.</source>
        <translation>차이점이 없습니다.</translation>
    </message>
    <message>
        <source>Differences: %1</source>
        <translation>차이점: %1</translation>
    </message>
    <message>
        <source>&amp;Only differences</source>
        <translation>차이점만(&amp;O)</translation>
    </message>
    <message>
        <source>&amp;Previous Difference</source>
        <translation>이전 차이점(&amp;P)</translation>
    </message>
    <message>
        <source>&amp;Next Difference</source>
        <translation>다음 차이점(&amp;N)</translation>
    </message>
    <message>
        <source>Copy as &amp;Diff</source>
        <translation>diff로 복사(&amp;D)</translation>
    </message>
    <message>
        <source>%1 and %2</source>
        <translation>%1 및 %2</translation>
    </message>
    <message>
        <source>%1: &quot;%2&quot; and &quot;%3&quot;</source>
        <translation>%1: ‘%2’ 및 ‘%3’</translation>
    </message>
</context>
<context>
    <name>COMPARE_MODEL</name>
    <message>
        <source>Different</source>
        <translation>다름</translation>
    </message>
    <message>
        <source>Only on the left</source>
        <translation>왼쪽에만 있음</translation>
    </message>
    <message>
        <source>Only on the right</source>
        <translation>오른쪽에만 있음</translation>
    </message>
    <message>
        <source>The same</source>
        <translation>같음</translation>
    </message>
</context>
<context>
    <name>CONNECTION_PANEL</name>
    <message>
        <source>Emulated chip</source>
        <translation>에뮬레이션 칩</translation>
    </message>
    <message>
        <source>Network (serprog)</source>
        <translation>네트워크(serprog)</translation>
    </message>
    <message>
        <source>Serial line (serprog)</source>
        <translation>직렬 회선(serprog)</translation>
    </message>
    <message>
        <source>De&amp;tect</source>
        <translation>감지(&amp;T)</translation>
    </message>
    <message>
        <source>Co&amp;nnection:</source>
        <translation>연결(&amp;N):</translation>
    </message>
    <message>
        <source>none: in memory</source>
        <translation>없음: 메모리에 보관</translation>
    </message>
    <message>
        <source>Browse...</source>
        <translation>찾아보기...</translation>
    </message>
    <message>
        <source>&amp;Keep contents in:</source>
        <translation>내용 보관 위치(&amp;K):</translation>
    </message>
    <message>
        <source>Port:</source>
        <translation>포트:</translation>
    </message>
    <message>
        <source>S&amp;erial line:</source>
        <translation>직렬 회선(&amp;E):</translation>
    </message>
    <message>
        <source>Baud rate:</source>
        <translation>전송 속도:</translation>
    </message>
    <message>
        <source>Contents of the Emulated Chip</source>
        <translation>에뮬레이션 칩의 내용</translation>
    </message>
    <message>
        <source>The connection is not complete.</source>
        <translation>연결 정보가 완전하지 않습니다.</translation>
    </message>
    <message>
        <source>the programmer&apos;s own</source>
        <translation>프로그래머 자체 값</translation>
    </message>
    <message>
        <source>Clock (Hz):</source>
        <translation>클럭 (Hz):</translation>
    </message>
    <message>
        <source>The clock is not a number of hertz.</source>
        <translation>클럭이 Hz 단위의 숫자가 아닙니다.</translation>
    </message>
    <message>
        <source>H&amp;ost:</source>
        <translation>호스트(&amp;O):</translation>
    </message>
</context>
<context>
    <name>COPY_DIALOG</name>
    <message>
        <source>Duplicate</source>
        <translation>복제</translation>
    </message>
    <message>
        <source>&amp;Copy of:</source>
        <translation>복사할 디바이스(&amp;C):</translation>
    </message>
    <message>
        <source>&amp;New name:</source>
        <translation>새 이름(&amp;N):</translation>
    </message>
    <message>
        <source>&amp;Duplicate</source>
        <translation>복제(&amp;D)</translation>
    </message>
    <message>
        <source>Choose the device to copy.</source>
        <translation>복사할 디바이스를 선택하십시오.</translation>
    </message>
</context>
<context>
    <name>DATABASE_DEVICE_MENU</name>
    <message>
        <source>&amp;Open in the Configuration Device Dialog</source>
        <translation>구성 디바이스 대화 상자에서 열기(&amp;O)</translation>
    </message>
    <message>
        <source>D&amp;uplicate...</source>
        <translation>복제(&amp;U)...</translation>
    </message>
    <message>
        <source>&amp;Delete</source>
        <translation>삭제(&amp;D)</translation>
    </message>
    <message>
        <source>&amp;Compare...</source>
        <translation>비교(&amp;C)...</translation>
    </message>
    <message>
        <source>Save Flow C&amp;harts...</source>
        <translation>흐름도 저장(&amp;H)...</translation>
    </message>
</context>
<context>
    <name>DATABASE_EDIT_MENU</name>
    <message>
        <source>&amp;Undo</source>
        <translation>실행 취소(&amp;U)</translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation>복사(&amp;C)</translation>
    </message>
    <message>
        <source>Select &amp;All</source>
        <translation>모두 선택(&amp;A)</translation>
    </message>
    <message>
        <source>&amp;Find</source>
        <translation>찾기(&amp;F)</translation>
    </message>
    <message>
        <source>Delete &quot;%1&quot;</source>
        <translation>‘%1’ 삭제</translation>
    </message>
    <message>
        <source>Delete, devices: %1</source>
        <translation>삭제, 디바이스: %1</translation>
    </message>
</context>
<context>
    <name>DATABASE_MENU</name>
    <message>
        <source>&amp;Open Directory...</source>
        <translation>폴더 열기(&amp;O)...</translation>
    </message>
    <message>
        <source>&amp;Recent Directories</source>
        <translation>최근 폴더(&amp;R)</translation>
    </message>
    <message>
        <source>Re&amp;fresh</source>
        <translation>새로 고침(&amp;F)</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>닫기(&amp;C)</translation>
    </message>
    <message>
        <source>&amp;Import...</source>
        <translation>가져오기(&amp;I)...</translation>
    </message>
    <message>
        <source>&amp;Export...</source>
        <translation>내보내기(&amp;E)...</translation>
    </message>
</context>
<context>
    <name>DATABASE_WINDOW</name>
    <message>
        <source>Devices</source>
        <translation>디바이스</translation>
    </message>
    <message>
        <source>Da&amp;tabase</source>
        <translation>데이터베이스(&amp;T)</translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <translation>편집(&amp;E)</translation>
    </message>
    <message>
        <source>&amp;Device</source>
        <translation>디바이스(&amp;D)</translation>
    </message>
    <message>
        <source>Device Database - %1</source>
        <translation>디바이스 데이터베이스 - %1</translation>
    </message>
    <message>
        <source>Open Directory</source>
        <translation>폴더 열기</translation>
    </message>
    <message>
        <source>The directory is used now, but could not be stored in the settings.</source>
        <translation>폴더를 지금 사용하지만 설정에 저장하지 못했습니다.</translation>
    </message>
    <message>
        <source>The device &quot;%1&quot; does not exist any more.</source>
        <translation>디바이스 ‘%1’이(가) 더 이상 없습니다.</translation>
    </message>
    <message>
        <source>The device &quot;%1&quot; is stored.</source>
        <translation>디바이스 ‘%1’이(가) 저장되었습니다.</translation>
    </message>
    <message>
        <source>The device &quot;%1&quot; is deleted. Ctrl+Z brings it back.</source>
        <translation>디바이스 ‘%1’을(를) 삭제했습니다. Ctrl+Z로 되돌릴 수 있습니다.</translation>
    </message>
    <message>
        <source>Devices deleted: %1. Ctrl+Z brings them back.</source>
        <translation>삭제한 디바이스: %1. Ctrl+Z로 되돌릴 수 있습니다.</translation>
    </message>
    <message>
        <source>The device &quot;%1&quot; is back.</source>
        <translation>디바이스 ‘%1’을(를) 되돌렸습니다.</translation>
    </message>
    <message>
        <source>Devices brought back: %1</source>
        <translation>되돌린 디바이스: %1</translation>
    </message>
    <message>
        <source>History</source>
        <translation>이력</translation>
    </message>
    <message>
        <source>The flow charts are in %1.</source>
        <translation>흐름도를 %1에 저장했습니다.</translation>
    </message>
    <message>
        <source>Files of Records</source>
        <translation>레코드 파일</translation>
    </message>
    <message>
        <source>Records</source>
        <translation>레코드</translation>
    </message>
    <message>
        <source>Devices are being deleted.</source>
        <translation>디바이스를 삭제하고 있습니다.</translation>
    </message>
    <message>
        <source>Devices deleted: %1 of %2. Ctrl+Z brings them back.</source>
        <translation>삭제한 디바이스: %1/%2. Ctrl+Z로 되돌릴 수 있습니다.</translation>
    </message>
    <message>
        <source>Devices are being brought back.</source>
        <translation>디바이스를 되돌리고 있습니다.</translation>
    </message>
    <message>
        <source>Devices brought back: %1 of %2. Ctrl+Z goes on.</source>
        <translation>되돌린 디바이스: %1/%2. Ctrl+Z로 계속합니다.</translation>
    </message>
</context>
<context>
    <name>DATA_PAGE</name>
    <message>
        <source>Go to:</source>
        <translation>이동:</translation>
    </message>
    <message>
        <source>Previous Difference</source>
        <translation>이전 차이</translation>
    </message>
    <message>
        <source>Next Difference</source>
        <translation>다음 차이</translation>
    </message>
    <message>
        <source>Save As...</source>
        <translation>다른 이름으로 저장...</translation>
    </message>
    <message>
        <source>Nothing was read. Check Examine to read the chip.</source>
        <translation>읽은 것이 없습니다. 칩을 읽으려면 Examine을 선택하십시오.</translation>
    </message>
    <message>
        <source>%1 was read.</source>
        <translation>%1을(를) 읽었습니다.</translation>
    </message>
    <message>
        <source>%1 was read. It is what the file has.</source>
        <translation>%1을(를) 읽었습니다. 파일과 같습니다.</translation>
    </message>
    <message>
        <source>%1 was read. Bytes that differ from the file: %2</source>
        <translation>%1을(를) 읽었습니다. 파일과 다른 바이트: %2</translation>
    </message>
    <message>
        <source>Save What Was Read</source>
        <translation>읽은 내용 저장</translation>
    </message>
    <message>
        <source>The file %1 cannot be written: %2</source>
        <translation>파일 %1에 쓸 수 없습니다: %2</translation>
    </message>
    <message>
        <source>%1: %2, expected %3</source>
        <translation>%1: %2, 예상 값 %3</translation>
    </message>
    <message>
        <source>Bytes that were read</source>
        <translation>읽은 바이트</translation>
    </message>
    <message>
        <source>The file %1 keeps the contents of the emulated chip. Choose another one.</source>
        <translation>파일 %1에는 에뮬레이션 칩의 내용이 보관되어 있습니다. 다른 파일을 선택하십시오.</translation>
    </message>
</context>
<context>
    <name>DETECTED_DIALOG</name>
    <message>
        <source>Detect</source>
        <translation>감지</translation>
    </message>
    <message>
        <source>The chip has the ID %1. Devices with this ID:</source>
        <translation>칩의 ID는 %1입니다. 이 ID의 디바이스:</translation>
    </message>
</context>
<context>
    <name>DEVICE_MODEL</name>
    <message>
        <source>all</source>
        <translation>모두</translation>
    </message>
    <message>
        <source>Built in</source>
        <translation>내장</translation>
    </message>
    <message>
        <source>Own</source>
        <translation>사용자</translation>
    </message>
    <message>
        <source>Of own devices they are read from the flows when they are shown for the first time. Those not read yet are sorted as the highest.</source>
        <translation>사용자 디바이스에서는 처음 표시될 때 흐름에서 읽습니다. 아직 읽지 않은 것은 정렬할 때 가장 큰 값으로 봅니다.</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>이름</translation>
    </message>
    <message>
        <source>Maker</source>
        <translation>제조사</translation>
    </message>
    <message>
        <source>Device ID</source>
        <translation>디바이스 ID</translation>
    </message>
    <message>
        <source>Density</source>
        <translation>용량</translation>
    </message>
    <message>
        <source>Voltage</source>
        <translation>전압</translation>
    </message>
    <message>
        <source>Address bytes</source>
        <translation>주소 바이트</translation>
    </message>
    <message>
        <source>Dies</source>
        <translation>다이 수</translation>
    </message>
    <message>
        <source>Device family</source>
        <translation>디바이스 제품군</translation>
    </message>
    <message>
        <source>Mode</source>
        <translation>모드</translation>
    </message>
    <message>
        <source>Kind</source>
        <translation>종류</translation>
    </message>
    <message>
        <source>Changed</source>
        <translation>변경 시각</translation>
    </message>
    <message>
        <source>Changed by</source>
        <translation>변경한 사용자</translation>
    </message>
</context>
<context>
    <name>DEVICE_PAGE</name>
    <message>
        <source>&amp;Find:</source>
        <translation>찾기(&amp;F):</translation>
    </message>
    <message>
        <source>Name, maker, density, voltage or device ID</source>
        <translation>이름, 제조사, 용량, 전압 또는 디바이스 ID</translation>
    </message>
    <message>
        <source>Devices</source>
        <translation>디바이스</translation>
    </message>
    <message>
        <source>%1 of %2 devices</source>
        <translation>디바이스: %1 / %2</translation>
    </message>
</context>
<context>
    <name>DEVICE_PANEL</name>
    <message>
        <source>none</source>
        <translation>없음</translation>
    </message>
    <message>
        <source>Device &amp;family:</source>
        <translation>디바이스 제품군(&amp;F):</translation>
    </message>
    <message>
        <source>Configuration &amp;mode:</source>
        <translation>구성 모드(&amp;M):</translation>
    </message>
    <message>
        <source>Configuration &amp;device:</source>
        <translation>구성 디바이스(&amp;D):</translation>
    </message>
    <message>
        <source>Database di&amp;rectory:</source>
        <translation>데이터베이스 폴더(&amp;R):</translation>
    </message>
    <message>
        <source>&amp;Configuration Device...</source>
        <translation>구성 디바이스(&amp;C)...</translation>
    </message>
</context>
<context>
    <name>DEVICE_PROGRESS</name>
    <message>
        <source>Cancel</source>
        <translation>취소</translation>
    </message>
</context>
<context>
    <name>DEVICE_SOURCES</name>
    <message>
        <source>The device &quot;%1&quot; does not exist.</source>
        <translation>디바이스 ‘%1’이(가) 없습니다.</translation>
    </message>
</context>
<context>
    <name>EXPORT_DIALOG</name>
    <message>
        <source>Export</source>
        <translation>내보내기</translation>
    </message>
    <message>
        <source>Selected records: %1</source>
        <translation>선택한 레코드: %1</translation>
    </message>
    <message>
        <source>All stored devices and templates</source>
        <translation>저장된 모든 디바이스와 템플릿</translation>
    </message>
    <message>
        <source>All built-in devices</source>
        <translation>모든 내장 디바이스</translation>
    </message>
    <message>
        <source>One JSON file</source>
        <translation>JSON 파일 하나</translation>
    </message>
    <message>
        <source>One JSON file for each record</source>
        <translation>레코드마다 JSON 파일 하나</translation>
    </message>
    <message>
        <source>CSV list of the devices, without flows</source>
        <translation>디바이스의 CSV 목록(흐름 제외)</translation>
    </message>
    <message>
        <source>For a &amp;spreadsheet (cannot be imported again)</source>
        <translation>스프레드시트용(다시 가져올 수 없음)(&amp;S)</translation>
    </message>
    <message>
        <source>Texts that a spreadsheet would run as formulas get an apostrophe.</source>
        <translation>스프레드시트가 수식으로 실행할 텍스트에는 아포스트로피가 붙습니다.</translation>
    </message>
    <message>
        <source>&amp;Browse...</source>
        <translation>찾아보기(&amp;B)...</translation>
    </message>
    <message>
        <source>&amp;Records:</source>
        <translation>레코드(&amp;R):</translation>
    </message>
    <message>
        <source>&amp;Format:</source>
        <translation>형식(&amp;F):</translation>
    </message>
    <message>
        <source>&amp;To:</source>
        <translation>대상(&amp;T):</translation>
    </message>
    <message>
        <source>&amp;Export</source>
        <translation>내보내기(&amp;E)</translation>
    </message>
    <message>
        <source>Progress</source>
        <translation>진행률</translation>
    </message>
    <message>
        <source>Directory for the Files</source>
        <translation>파일을 넣을 폴더</translation>
    </message>
    <message>
        <source>File for the Records</source>
        <translation>레코드 파일</translation>
    </message>
    <message>
        <source>These files already exist:</source>
        <translation>다음 파일이 이미 있습니다:</translation>
    </message>
    <message>
        <source>Re&amp;place</source>
        <translation>바꾸기(&amp;P)</translation>
    </message>
    <message>
        <source>Enter where the records go.</source>
        <translation>레코드를 저장할 위치를 입력하십시오.</translation>
    </message>
    <message>
        <source>There is nothing to export.</source>
        <translation>내보낼 것이 없습니다.</translation>
    </message>
    <message>
        <source>Exported records: %1, into %2</source>
        <translation>내보낸 레코드: %1, 위치: %2</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>닫기</translation>
    </message>
    <message>
        <source>These cannot be read, and are not exported:</source>
        <translation>다음 레코드는 읽을 수 없어 내보내지 않습니다:</translation>
    </message>
</context>
<context>
    <name>FILE_PANEL</name>
    <message>
        <source>Bro&amp;wse...</source>
        <translation>찾아보기(&amp;W)...</translation>
    </message>
    <message>
        <source>No file. A file can be dropped on the window.</source>
        <translation>파일이 없습니다. 창에 끌어다 놓을 수 있습니다.</translation>
    </message>
    <message>
        <source>F&amp;ile:</source>
        <translation>파일(&amp;I):</translation>
    </message>
    <message>
        <source>File &amp;begins at:</source>
        <translation>파일 시작 위치(&amp;B):</translation>
    </message>
    <message>
        <source>The file is being read.</source>
        <translation>파일을 읽는 중입니다.</translation>
    </message>
    <message>
        <source>The file cannot be read: %1</source>
        <translation>파일을 읽을 수 없습니다: %1</translation>
    </message>
    <message>
        <source>%1 bytes, CRC-32 %2</source>
        <translation>%1바이트, CRC-32 %2</translation>
    </message>
    <message>
        <source>File to Program</source>
        <translation>프로그램할 파일</translation>
    </message>
</context>
<context>
    <name>FILE_SUMMARY</name>
    <message>
        <source>It is not a file.</source>
        <translation>파일이 아닙니다.</translation>
    </message>
</context>
<context>
    <name>HELP_MENU</name>
    <message>
        <source>&amp;Help</source>
        <translation>도움말(&amp;H)</translation>
    </message>
    <message>
        <source>&amp;User Guide</source>
        <translation>사용 설명서(&amp;U)</translation>
    </message>
    <message>
        <source>Device &amp;Database</source>
        <translation>디바이스 데이터베이스(&amp;D)</translation>
    </message>
    <message>
        <source>&amp;Programming</source>
        <translation>프로그래밍(&amp;P)</translation>
    </message>
    <message>
        <source>&amp;Flows</source>
        <translation>흐름(&amp;F)</translation>
    </message>
    <message>
        <source>&amp;Command Line</source>
        <translation>명령줄(&amp;C)</translation>
    </message>
    <message>
        <source>&amp;About</source>
        <translation>정보(&amp;A)</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>도움말</translation>
    </message>
    <message>
        <source>The guide is not installed. It would be here:
%1</source>
        <translation>안내서가 설치되어 있지 않습니다. 있어야 할 위치:
%1</translation>
    </message>
    <message>
        <source>No program shows this guide. Open it with a viewer or an editor:
%1</source>
        <translation>이 안내서를 표시할 프로그램이 없습니다. 뷰어나 편집기로 여십시오:
%1</translation>
    </message>
    <message>
        <source>%1 %2

Licence: MIT
Qt %3

The built-in devices are public facts about flash parts. The names of parts belong to their makers.</source>
        <translation>%1 %2

라이선스: MIT
Qt %3

내장 디바이스는 플래시 부품에 대한 공개 정보입니다. 부품 이름은 각 제조사의 것입니다.</translation>
    </message>
    <message>
        <source>About</source>
        <translation>정보</translation>
    </message>
</context>
<context>
    <name>HISTORY_MENU</name>
    <message>
        <source>Compare with the &amp;Next State</source>
        <translation>다음 상태와 비교(&amp;N)</translation>
    </message>
    <message>
        <source>Compare with the &amp;Previous State</source>
        <translation>이전 상태와 비교(&amp;P)</translation>
    </message>
    <message>
        <source>Compare with the &amp;Current State</source>
        <translation>현재 상태와 비교(&amp;C)</translation>
    </message>
    <message>
        <source>Compare the Two &amp;Selected States</source>
        <translation>선택한 두 상태 비교(&amp;S)</translation>
    </message>
</context>
<context>
    <name>HISTORY_MODEL</name>
    <message>
        <source>Changed</source>
        <translation>변경 시각</translation>
    </message>
    <message>
        <source>Deleted</source>
        <translation>삭제됨</translation>
    </message>
    <message>
        <source>Put back</source>
        <translation>되돌림</translation>
    </message>
    <message>
        <source>This state was replaced by another one.</source>
        <translation>이 상태는 다른 상태로 바뀌었습니다.</translation>
    </message>
    <message>
        <source>This state was deleted.</source>
        <translation>이 상태는 삭제되었습니다.</translation>
    </message>
    <message>
        <source>This state was deleted, and put back because it could not be replaced.</source>
        <translation>이 상태는 삭제되었지만 바꿀 수 없어 되돌려졌습니다.</translation>
    </message>
    <message>
        <source>Template</source>
        <translation>템플릿</translation>
    </message>
    <message>
        <source>Device</source>
        <translation>디바이스</translation>
    </message>
    <message>
        <source>When</source>
        <translation>시간</translation>
    </message>
    <message>
        <source>User</source>
        <translation>사용자</translation>
    </message>
    <message>
        <source>Change</source>
        <translation>변경</translation>
    </message>
    <message>
        <source>Kind</source>
        <translation>종류</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>이름</translation>
    </message>
    <message>
        <source>Family</source>
        <translation>제품군</translation>
    </message>
    <message>
        <source>Mode</source>
        <translation>모드</translation>
    </message>
    <message>
        <source>No.</source>
        <translation>번호</translation>
    </message>
</context>
<context>
    <name>HISTORY_PAGE</name>
    <message>
        <source>&amp;Compare</source>
        <translation>비교(&amp;C)</translation>
    </message>
    <message>
        <source>&amp;Bring Back...</source>
        <translation>되돌리기(&amp;B)...</translation>
    </message>
    <message>
        <source>Devices and templates</source>
        <translation>디바이스 및 템플릿</translation>
    </message>
    <message>
        <source>Devices</source>
        <translation>디바이스</translation>
    </message>
    <message>
        <source>Templates</source>
        <translation>템플릿</translation>
    </message>
    <message>
        <source>History</source>
        <translation>이력</translation>
    </message>
    <message>
        <source>Na&amp;me:</source>
        <translation>이름(&amp;M):</translation>
    </message>
    <message>
        <source>&amp;User:</source>
        <translation>사용자(&amp;U):</translation>
    </message>
    <message>
        <source>&amp;Kind:</source>
        <translation>종류(&amp;K):</translation>
    </message>
    <message>
        <source>States: %1, searching...</source>
        <translation>상태: %1, 검색 중...</translation>
    </message>
    <message>
        <source>States: more than %1</source>
        <translation>상태: %1개 초과</translation>
    </message>
    <message>
        <source>States: %1</source>
        <translation>상태: %1</translation>
    </message>
    <message>
        <source>There is no state before this one.</source>
        <translation>이 상태 이전의 상태가 없습니다.</translation>
    </message>
    <message>
        <source>There is no state after this one: it was deleted or renamed.</source>
        <translation>이 상태 이후의 상태가 없습니다: 삭제되었거나 이름이 바뀌었습니다.</translation>
    </message>
    <message>
        <source>There is no current state: it was deleted or renamed.</source>
        <translation>현재 상태가 없습니다: 삭제되었거나 이름이 바뀌었습니다.</translation>
    </message>
    <message>
        <source>A state was removed from the history.</source>
        <translation>상태가 이력에서 제거되었습니다.</translation>
    </message>
</context>
<context>
    <name>IMPORT_DIALOG</name>
    <message>
        <source>Import: %1</source>
        <translation>가져오기: %1</translation>
    </message>
    <message>
        <source>Import</source>
        <translation>가져오기</translation>
    </message>
    <message>
        <source>As in the files</source>
        <translation>파일에 있는 대로</translation>
    </message>
    <message>
        <source>&amp;Replace records that differ</source>
        <translation>내용이 다른 레코드 바꾸기(&amp;R)</translation>
    </message>
    <message>
        <source>Device &amp;family:</source>
        <translation>디바이스 제품군(&amp;F):</translation>
    </message>
    <message>
        <source>Configuration &amp;mode:</source>
        <translation>구성 모드(&amp;M):</translation>
    </message>
    <message>
        <source>Preview</source>
        <translation>미리 보기</translation>
    </message>
    <message>
        <source>Details</source>
        <translation>자세히</translation>
    </message>
    <message>
        <source>&amp;Import</source>
        <translation>가져오기(&amp;I)</translation>
    </message>
    <message>
        <source>&amp;Compare...</source>
        <translation>비교(&amp;C)...</translation>
    </message>
    <message>
        <source>Progress</source>
        <translation>진행률</translation>
    </message>
    <message>
        <source>The files are being read.</source>
        <translation>파일을 읽고 있습니다.</translation>
    </message>
    <message>
        <source>Nothing is imported while there are problems.</source>
        <translation>문제가 있는 동안에는 아무것도 가져오지 않습니다.</translation>
    </message>
    <message>
        <source>There is nothing to import.</source>
        <translation>가져올 것이 없습니다.</translation>
    </message>
    <message>
        <source>Stored</source>
        <translation>저장됨</translation>
    </message>
    <message>
        <source>In the file</source>
        <translation>파일에 있음</translation>
    </message>
    <message>
        <source>The records are being stored.</source>
        <translation>레코드를 저장하고 있습니다.</translation>
    </message>
    <message>
        <source>Nothing was imported: %1
The preview was made again.</source>
        <translation>아무것도 가져오지 않았습니다: %1
미리 보기를 다시 만들었습니다.</translation>
    </message>
    <message>
        <source>Imported into %1. New: %2, replaced: %3</source>
        <translation>%1에 가져왔습니다. 새 레코드: %2, 바꿈: %3</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>닫기</translation>
    </message>
    <message>
        <source>Nothing was imported: you have cancelled it.</source>
        <translation>아무것도 가져오지 않았습니다: 취소했습니다.</translation>
    </message>
</context>
<context>
    <name>IMPORT_MODEL</name>
    <message>
        <source>Problem</source>
        <translation>문제</translation>
    </message>
    <message>
        <source>Warning</source>
        <translation>경고</translation>
    </message>
    <message>
        <source>Will be replaced</source>
        <translation>바뀜</translation>
    </message>
    <message>
        <source>Differs, not imported</source>
        <translation>다름, 가져오지 않음</translation>
    </message>
    <message>
        <source>New</source>
        <translation>새 레코드</translation>
    </message>
    <message>
        <source>Already exists</source>
        <translation>이미 있음</translation>
    </message>
    <message>
        <source>%1: differs</source>
        <translation>%1: 다름</translation>
    </message>
    <message>
        <source>%1: stored %2, in the file %3</source>
        <translation>%1: 저장된 값 %2, 파일의 값 %3</translation>
    </message>
    <message>
        <source>Differs in: %1</source>
        <translation>차이: %1</translation>
    </message>
    <message>
        <source>State</source>
        <translation>상태</translation>
    </message>
    <message>
        <source>Record</source>
        <translation>레코드</translation>
    </message>
    <message>
        <source>Family</source>
        <translation>제품군</translation>
    </message>
    <message>
        <source>Mode</source>
        <translation>모드</translation>
    </message>
    <message>
        <source>File</source>
        <translation>파일</translation>
    </message>
    <message>
        <source>Line</source>
        <translation>줄</translation>
    </message>
    <message>
        <source>Remark</source>
        <translation>비고</translation>
    </message>
</context>
<context>
    <name>MODULE_LOADER</name>
    <message>
        <source>The dialog module was not found. Searched:
%1</source>
        <translation>대화 상자 모듈을 찾지 못했습니다. 찾은 위치:
%1</translation>
    </message>
    <message>
        <source>The dialog module %1 is not loaded: everyone may change %2.</source>
        <translation>대화 상자 모듈 %1을(를) 불러오지 않습니다: 누구나 %2을(를) 바꿀 수 있습니다.</translation>
    </message>
    <message>
        <source>The dialog module %1 cannot be loaded:
%2</source>
        <translation>대화 상자 모듈 %1을(를) 불러올 수 없습니다:
%2</translation>
    </message>
    <message>
        <source>The dialog module %1 has no function &quot;%2&quot;.</source>
        <translation>대화 상자 모듈 %1에 함수 ‘%2’이(가) 없습니다.</translation>
    </message>
</context>
<context>
    <name>NEW_DEVICE_DESK</name>
    <message>
        <source>New Device</source>
        <translation>새 디바이스</translation>
    </message>
    <message>
        <source>SFDP Read-Out of a Chip</source>
        <translation>칩의 SFDP 데이터</translation>
    </message>
</context>
<context>
    <name>NEW_DEVICE_DIALOG</name>
    <message>
        <source>New Device</source>
        <translation>새 디바이스</translation>
    </message>
    <message>
        <source>New Device: %1</source>
        <translation>새 디바이스: %1</translation>
    </message>
    <message>
        <source>&amp;Warnings:</source>
        <translation>경고(&amp;W):</translation>
    </message>
    <message>
        <source>&amp;Listed parts with this ID:</source>
        <translation>이 ID를 가진 목록의 부품(&amp;L):</translation>
    </message>
    <message>
        <source>Create &amp;Device</source>
        <translation>디바이스 만들기(&amp;D)</translation>
    </message>
    <message>
        <source>Save &amp;Read-Out...</source>
        <translation>읽은 데이터 저장(&amp;R)...</translation>
    </message>
    <message>
        <source>none</source>
        <translation>없음</translation>
    </message>
    <message>
        <source>no differences</source>
        <translation>차이 없음</translation>
    </message>
    <message>
        <source>Save the Read-Out</source>
        <translation>읽은 데이터 저장</translation>
    </message>
    <message>
        <source>What was entered has changed other values or the warnings. Look at them, then create the device.</source>
        <translation>입력한 내용 때문에 다른 값 또는 경고가 바뀌었습니다. 확인한 다음 디바이스를 만드십시오.</translation>
    </message>
</context>
<context>
    <name>NEW_DEVICE_DRAFT</name>
    <message>
        <source>ID %1</source>
        <translation>ID %1</translation>
    </message>
</context>
<context>
    <name>ORDER_PANEL</name>
    <message>
        <source>What the file covers</source>
        <translation>파일이 차지하는 범위</translation>
    </message>
    <message>
        <source>The whole device</source>
        <translation>디바이스 전체</translation>
    </message>
    <message>
        <source>Address and length</source>
        <translation>주소와 길이</translation>
    </message>
    <message>
        <source>Ran&amp;ge:</source>
        <translation>범위(&amp;G):</translation>
    </message>
    <message>
        <source>&amp;Address:</source>
        <translation>주소(&amp;A):</translation>
    </message>
    <message>
        <source>Length:</source>
        <translation>길이:</translation>
    </message>
</context>
<context>
    <name>PLACE_FIELDS</name>
    <message>
        <source>Device &amp;family:</source>
        <translation>디바이스 제품군(&amp;F):</translation>
    </message>
    <message>
        <source>Configuration &amp;mode:</source>
        <translation>구성 모드(&amp;M):</translation>
    </message>
</context>
<context>
    <name>PROGRAMMER_MENU</name>
    <message>
        <source>&amp;Configuration Device...</source>
        <translation>구성 디바이스(&amp;C)...</translation>
    </message>
    <message>
        <source>&amp;Detect</source>
        <translation>감지(&amp;D)</translation>
    </message>
    <message>
        <source>&amp;Open File...</source>
        <translation>파일 열기(&amp;O)...</translation>
    </message>
    <message>
        <source>&amp;Try the Flow</source>
        <translation>흐름 시험(&amp;T)</translation>
    </message>
    <message>
        <source>&amp;Start</source>
        <translation>시작(&amp;S)</translation>
    </message>
    <message>
        <source>C&amp;ancel</source>
        <translation>취소(&amp;A)</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>종료(&amp;Q)</translation>
    </message>
    <message>
        <source>&amp;New Device from Chip...</source>
        <translation>칩에서 새 디바이스 만들기(&amp;N)...</translation>
    </message>
    <message>
        <source>New Device from S&amp;FDP File...</source>
        <translation>SFDP 파일에서 새 디바이스 만들기(&amp;F)...</translation>
    </message>
    <message>
        <source>D&amp;uplicate...</source>
        <translation>복제(&amp;U)...</translation>
    </message>
    <message>
        <source>Device Data&amp;base...</source>
        <translation>디바이스 데이터베이스(&amp;B)...</translation>
    </message>
    <message>
        <source>Save Flow C&amp;harts...</source>
        <translation>흐름도 저장(&amp;H)...</translation>
    </message>
</context>
<context>
    <name>PROGRAMMER_WINDOW</name>
    <message>
        <source>Device</source>
        <translation>디바이스</translation>
    </message>
    <message>
        <source>Connection</source>
        <translation>연결</translation>
    </message>
    <message>
        <source>File</source>
        <translation>파일</translation>
    </message>
    <message>
        <source>Operations</source>
        <translation>작업</translation>
    </message>
    <message>
        <source>Log</source>
        <translation>로그</translation>
    </message>
    <message>
        <source>Trace</source>
        <translation>추적</translation>
    </message>
    <message>
        <source>Data</source>
        <translation>데이터</translation>
    </message>
    <message>
        <source>&amp;Programmer</source>
        <translation>디바이스 프로그래머(&amp;P)</translation>
    </message>
    <message>
        <source>Not started: %1</source>
        <translation>시작하지 않음: %1</translation>
    </message>
    <message>
        <source>The place where the file begins is not a number.</source>
        <translation>파일 시작 위치가 숫자가 아닙니다.</translation>
    </message>
    <message>
        <source>Address or length is not a number.</source>
        <translation>주소나 길이가 숫자가 아닙니다.</translation>
    </message>
    <message>
        <source>Nothing was detected: %1</source>
        <translation>감지되지 않음: %1</translation>
    </message>
    <message>
        <source>The chip has the ID %1.</source>
        <translation>칩의 ID는 %1입니다.</translation>
    </message>
    <message>
        <source>No device has the ID %1.</source>
        <translation>ID가 %1인 디바이스가 없습니다.</translation>
    </message>
    <message>
        <source>The run is being cancelled. If it is stopped at once, the state of the chip is unknown.</source>
        <translation>실행을 취소하는 중입니다. 바로 멈추면 칩의 상태를 알 수 없게 됩니다.</translation>
    </message>
    <message>
        <source>A run is under way. Cancel it and close the window?</source>
        <translation>실행 중입니다. 취소하고 창을 닫으시겠습니까?</translation>
    </message>
    <message>
        <source>Stop at once</source>
        <translation>바로 멈춤</translation>
    </message>
    <message>
        <source>Cancel the run</source>
        <translation>실행 취소</translation>
    </message>
    <message>
        <source>Wait</source>
        <translation>기다림</translation>
    </message>
    <message>
        <source>Keep running</source>
        <translation>계속 실행</translation>
    </message>
    <message>
        <source>Cancelled</source>
        <translation>취소됨</translation>
    </message>
    <message>
        <source>The device &quot;%1&quot; is stored.</source>
        <translation>디바이스 ‘%1’을(를) 저장했습니다.</translation>
    </message>
    <message>
        <source>The device &quot;%1&quot; is not there, or of a family or mode that is not offered here.</source>
        <translation>디바이스 ‘%1’이(가) 없거나 여기에서 제공하지 않는 제품군 또는 모드의 것입니다.</translation>
    </message>
    <message>
        <source>The flow charts cannot be saved: %1</source>
        <translation>흐름도를 저장할 수 없습니다: %1</translation>
    </message>
    <message>
        <source>The flow charts are in %1.</source>
        <translation>흐름도를 %1에 저장했습니다.</translation>
    </message>
</context>
<context>
    <name>QPlatformTheme</name>
    <message>
        <source>OK</source>
        <translation>확인</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>취소</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>닫기</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>저장</translation>
    </message>
</context>
<context>
    <name>READ_OUT_FILE</name>
    <message>
        <source>The file %1 cannot be read: %2</source>
        <translation>파일 %1을(를) 읽을 수 없습니다: %2</translation>
    </message>
    <message>
        <source>%1 is not a file.</source>
        <translation>%1은(는) 파일이 아닙니다.</translation>
    </message>
    <message>
        <source>The file %1 has more than %2 bytes and is not an SFDP read-out.</source>
        <translation>파일 %1은(는) %2바이트보다 크며 SFDP 데이터가 아닙니다.</translation>
    </message>
    <message>
        <source>The file %1 cannot be written: %2</source>
        <translation>파일 %1에 쓸 수 없습니다: %2</translation>
    </message>
</context>
<context>
    <name>RECORD_COMPARISON</name>
    <message>
        <source>Kind</source>
        <translation>종류</translation>
    </message>
    <message>
        <source>Template</source>
        <translation>템플릿</translation>
    </message>
    <message>
        <source>Built-in device</source>
        <translation>내장 디바이스</translation>
    </message>
    <message>
        <source>Own device</source>
        <translation>사용자 디바이스</translation>
    </message>
    <message>
        <source>Family</source>
        <translation>제품군</translation>
    </message>
    <message>
        <source>Mode</source>
        <translation>모드</translation>
    </message>
    <message>
        <source>Properties</source>
        <translation>속성</translation>
    </message>
    <message>
        <source>Quad-I/O flow</source>
        <translation>쿼드 I/O 흐름</translation>
    </message>
    <message>
        <source>Single-I/O flow</source>
        <translation>싱글 I/O 흐름</translation>
    </message>
    <message>
        <source>The flow cannot be read.</source>
        <translation>흐름을 읽을 수 없습니다.</translation>
    </message>
</context>
<context>
    <name>RECORD_EXPORT</name>
    <message>
        <source>The file %1 cannot be written: %2</source>
        <translation>파일 %1에 쓸 수 없습니다: %2</translation>
    </message>
</context>
<context>
    <name>RECORD_STATES</name>
    <message>
        <source>%1, state %2 (until %3)</source>
        <translation>%1, 상태 %2(%3까지)</translation>
    </message>
    <message>
        <source>%1, now</source>
        <translation>%1, 현재</translation>
    </message>
</context>
<context>
    <name>REMOVED_DEVICES</name>
    <message>
        <source>The device &quot;%1&quot; was deleted by another program already.</source>
        <translation>디바이스 ‘%1’은(는) 이미 다른 프로그램이 삭제했습니다.</translation>
    </message>
    <message>
        <source>The history does not have the device &quot;%1&quot; any more.</source>
        <translation>이력에 디바이스 ‘%1’이(가) 더 이상 없습니다.</translation>
    </message>
</context>
<context>
    <name>RUN_BAR</name>
    <message>
        <source>Progress of the run</source>
        <translation>실행 진행률</translation>
    </message>
    <message>
        <source>Tr&amp;y the Flow</source>
        <translation>흐름 시험(&amp;Y)</translation>
    </message>
    <message>
        <source>Erases, programs and verifies an emulated chip. No hardware is needed or used.</source>
        <translation>에뮬레이션 칩을 지우고 프로그램하고 검증합니다. 하드웨어가 필요하지 않으며 사용하지도 않습니다.</translation>
    </message>
    <message>
        <source>&amp;Start</source>
        <translation>시작(&amp;S)</translation>
    </message>
    <message>
        <source>Cance&amp;l</source>
        <translation>취소(&amp;L)</translation>
    </message>
    <message>
        <source>The run is being cancelled.</source>
        <translation>실행을 취소하는 중입니다.</translation>
    </message>
    <message>
        <source>%1: %2 of %3</source>
        <translation>%1: %2 / %3</translation>
    </message>
    <message>
        <source>%1 left</source>
        <translation>%1 남음</translation>
    </message>
</context>
<context>
    <name>RUN_PREPARATION</name>
    <message>
        <source>No operation is checked.</source>
        <translation>선택된 작업이 없습니다.</translation>
    </message>
    <message>
        <source>No file is chosen.</source>
        <translation>선택된 파일이 없습니다.</translation>
    </message>
    <message>
        <source>No device is chosen.</source>
        <translation>선택된 디바이스가 없습니다.</translation>
    </message>
    <message>
        <source>The device &quot;%1&quot; does not exist.</source>
        <translation>디바이스 ‘%1’이(가) 없습니다.</translation>
    </message>
    <message>
        <source>The file %1 cannot be read.</source>
        <translation>파일 %1을(를) 읽을 수 없습니다.</translation>
    </message>
    <message>
        <source>The file %1 is empty.</source>
        <translation>파일 %1이(가) 비어 있습니다.</translation>
    </message>
    <message>
        <source>The file needs %1 bytes from %2 on, and the device has %3 bytes.</source>
        <translation>파일에는 %2부터 %1바이트가 필요하지만 디바이스는 %3바이트입니다.</translation>
    </message>
</context>
<context>
    <name>RUN_WORDS</name>
    <message>
        <source>Failed</source>
        <translation>실패</translation>
    </message>
    <message>
        <source>Failed at %1</source>
        <translation>%1에서 실패</translation>
    </message>
    <message>
        <source>Failed at %1, action %2 &quot;%3&quot;</source>
        <translation>%1, 동작 %2 ‘%3’에서 실패</translation>
    </message>
    <message>
        <source>Stopped. The state of the chip is unknown.</source>
        <translation>멈췄습니다. 칩의 상태를 알 수 없습니다.</translation>
    </message>
    <message>
        <source>The connection is lost. The state of the chip is unknown.</source>
        <translation>연결이 끊겼습니다. 칩의 상태를 알 수 없습니다.</translation>
    </message>
    <message>
        <source>Passed, but not everything could be stored</source>
        <translation>통과. 그러나 일부를 저장하지 못했습니다</translation>
    </message>
    <message>
        <source>Passed, but a real chip would have refused or misread commands: see the log</source>
        <translation>통과. 그러나 실제 칩이라면 거부하거나 잘못 읽었을 명령이 있습니다. 로그를 보십시오</translation>
    </message>
    <message>
        <source>Passed</source>
        <translation>통과</translation>
    </message>
    <message>
        <source>Cancelled</source>
        <translation>취소됨</translation>
    </message>
    <message>
        <source>Not started: see the log</source>
        <translation>시작하지 않음: 로그를 보십시오</translation>
    </message>
    <message>
        <source>a test pattern</source>
        <translation>시험 패턴</translation>
    </message>
    <message>
        <source>Trying the flow of %1 on an emulated chip that is full of other data</source>
        <translation>다른 데이터로 가득 찬 에뮬레이션 칩에서 %1의 흐름을 시험합니다</translation>
    </message>
    <message>
        <source>Content: %1</source>
        <translation>내용: %1</translation>
    </message>
    <message>
        <source>Nothing more was sent, because this may be another chip than the device says.</source>
        <translation>선택한 디바이스와 다른 칩일 수 있으므로 더 이상 아무것도 보내지 않았습니다.</translation>
    </message>
    <message>
        <source>Note of the chip: %1</source>
        <translation>칩의 참고 사항: %1</translation>
    </message>
    <message>
        <source>%1 (%2 commands, %3 s)</source>
        <translation>%1(명령 %2개, %3초)</translation>
    </message>
    <message>
        <source>Whole sectors are erased. These bytes beside the range are erased, too:

%1

Erase them?</source>
        <translation>섹터 전체가 지워집니다. 범위 밖의 다음 바이트도 지워집니다:

%1

지우시겠습니까?</translation>
    </message>
    <message>
        <source>%1 on the connection %2</source>
        <translation>%1, 연결 %2</translation>
    </message>
</context>
<context>
    <name>TRACE_MODEL</name>
    <message>
        <source>%1 ... (%2 bytes)</source>
        <translation>%1 ... (%2바이트)</translation>
    </message>
    <message>
        <source>%1, %2 clocks</source>
        <translation>%1, %2클럭</translation>
    </message>
    <message>
        <source>No.</source>
        <translation>번호</translation>
    </message>
    <message>
        <source>Time (ms)</source>
        <translation>시간(ms)</translation>
    </message>
    <message>
        <source>Operation</source>
        <translation>작업</translation>
    </message>
    <message>
        <source>Action</source>
        <translation>동작</translation>
    </message>
    <message>
        <source>Command</source>
        <translation>명령</translation>
    </message>
    <message>
        <source>Lines</source>
        <translation>회선</translation>
    </message>
    <message>
        <source>Sent</source>
        <translation>보냄</translation>
    </message>
    <message>
        <source>Received</source>
        <translation>받음</translation>
    </message>
    <message>
        <source>Expected</source>
        <translation>예상 값</translation>
    </message>
</context>
<context>
    <name>TRACE_PAGE</name>
    <message>
        <source>All operations</source>
        <translation>모든 작업</translation>
    </message>
    <message>
        <source>Commands of:</source>
        <translation>명령 범위:</translation>
    </message>
    <message>
        <source>Commands of the last run</source>
        <translation>마지막 실행의 명령</translation>
    </message>
    <message>
        <source>%1 commands</source>
        <translation>명령 %1개</translation>
    </message>
</context>
</TS>
