<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ko" sourcelanguage="en">
<context>
    <name>GFPC_CHARTS</name>
    <message>
        <source>The flows of %1 cannot be read.</source>
        <translation>%1의 흐름을 읽을 수 없습니다.</translation>
    </message>
    <message>
        <source>%1 has no quad-I/O flow.</source>
        <translation>%1에는 쿼드 I/O 흐름이 없습니다.</translation>
    </message>
    <message>
        <source>%1 has no single-I/O flow.</source>
        <translation>%1에는 싱글 I/O 흐름이 없습니다.</translation>
    </message>
    <message>
        <source>Page %1 of %2</source>
        <translation>%1/%2쪽</translation>
    </message>
    <message>
        <source>There are no fonts on this computer.</source>
        <translation>이 컴퓨터에는 글꼴이 없습니다.</translation>
    </message>
    <message>
        <source>Quad-I/O flow</source>
        <translation>쿼드 I/O 흐름</translation>
    </message>
    <message>
        <source>Single-I/O flow</source>
        <translation>싱글 I/O 흐름</translation>
    </message>
</context>
<context>
    <name>gfpdb</name>
    <message>
        <source>Upper and lower case count as the same.</source>
        <translation>대문자와 소문자는 구분하지 않습니다.</translation>
    </message>
    <message>
        <source>There is a built-in device called %1: choose another name.</source>
        <translation>%1(이)라는 내장 디바이스가 있습니다: 다른 이름을 선택하십시오.</translation>
    </message>
    <message>
        <source>There is a built-in template called %1: choose another name.</source>
        <translation>%1(이)라는 내장 템플릿이 있습니다: 다른 이름을 선택하십시오.</translation>
    </message>
    <message>
        <source>part name</source>
        <translation>부품 이름</translation>
    </message>
    <message>
        <source>The device %1 is neither deleted nor replaced, because it could not be read when it was last looked for: %2</source>
        <translation>디바이스 %1은(는) 마지막으로 찾을 때 읽을 수 없었으므로 삭제하거나 바꾸지 않습니다: %2</translation>
    </message>
    <message>
        <source>The flows of %1 in %2 cannot be read.</source>
        <translation>%2에 있는 %1의 흐름을 읽을 수 없습니다.</translation>
    </message>
    <message>
        <source>Property %1 of a device is not a number.</source>
        <translation>디바이스의 속성 %1은(는) 숫자가 아닙니다.</translation>
    </message>
    <message>
        <source>Property %1 of a device is not a text.</source>
        <translation>디바이스의 속성 %1은(는) 텍스트가 아닙니다.</translation>
    </message>
    <message>
        <source>There is a stored template called %1: choose another name.</source>
        <translation>%1(이)라는 저장된 템플릿이 있습니다: 다른 이름을 선택하십시오.</translation>
    </message>
    <message>
        <source>There is a device called %1: it is the one that is shown. Enter another name to rename it.</source>
        <translation>%1(이)라는 디바이스가 있습니다: 지금 표시된 디바이스입니다. 이름을 바꾸려면 다른 이름을 입력하십시오.</translation>
    </message>
    <message>
        <source>There is a device called %1 for this family and configuration mode: choose another name.</source>
        <translation>이 제품군과 구성 모드에 %1(이)라는 디바이스가 있습니다: 다른 이름을 선택하십시오.</translation>
    </message>
    <message>
        <source>There is a stored template called %1: choose another name, or remove that template first.</source>
        <translation>%1(이)라는 저장된 템플릿이 있습니다: 다른 이름을 선택하거나 그 템플릿을 먼저 제거하십시오.</translation>
    </message>
    <message>
        <source>The template name %1 differs from the device name %2 in case only: choose another name.</source>
        <translation>템플릿 이름 %1은(는) 디바이스 이름 %2과(와) 대소문자만 다릅니다: 다른 이름을 선택하십시오.</translation>
    </message>
    <message>
        <source>There is a device called %1: choose another name.</source>
        <translation>%1(이)라는 디바이스가 있습니다: 다른 이름을 선택하십시오.</translation>
    </message>
    <message>
        <source>A flash device with an I/O voltage of %1 cannot be connected to %2 devices: it must support 1.8 V.</source>
        <translation>I/O 전압이 %1인 플래시 디바이스는 %2 디바이스에 연결할 수 없습니다: 1.8 V를 지원해야 합니다.</translation>
    </message>
    <message>
        <source>%1 The device %2 that was deleted before was not put back: %3</source>
        <translation>%1 앞서 삭제한 디바이스 %2을(를) 되돌리지 못했습니다: %3</translation>
    </message>
    <message>
        <source>There is no record to save.</source>
        <translation>저장할 레코드가 없습니다.</translation>
    </message>
    <message>
        <source>The configuration mode has no flash devices.</source>
        <translation>이 구성 모드에는 플래시 디바이스가 없습니다.</translation>
    </message>
    <message>
        <source>The device %1 contains text that is not valid UTF-8.</source>
        <translation>디바이스 %1에 올바른 UTF-8이 아닌 텍스트가 있습니다.</translation>
    </message>
    <message>
        <source>The template %1 is built in: it cannot be removed.</source>
        <translation>템플릿 %1은(는) 내장되어 있어 제거할 수 없습니다.</translation>
    </message>
    <message>
        <source>device name</source>
        <translation>디바이스 이름</translation>
    </message>
    <message>
        <source>device ID</source>
        <translation>디바이스 ID</translation>
    </message>
    <message>
        <source>I/O voltage</source>
        <translation>디바이스 I/O 전압</translation>
    </message>
    <message>
        <source>density</source>
        <translation>디바이스 용량</translation>
    </message>
    <message>
        <source>total die count</source>
        <translation>총 다이 수</translation>
    </message>
    <message>
        <source>number of single-I/O dummy clocks</source>
        <translation>싱글 I/O 모드 더미 클럭 수</translation>
    </message>
    <message>
        <source>number of quad-I/O dummy clocks</source>
        <translation>쿼드 I/O 모드 더미 클럭 수</translation>
    </message>
    <message>
        <source>template name</source>
        <translation>템플릿 이름</translation>
    </message>
    <message>
        <source>flow template</source>
        <translation>프로그래밍 흐름 템플릿</translation>
    </message>
    <message>
        <source>a whole number from %1 to %2</source>
        <translation>%1에서 %2까지의 정수</translation>
    </message>
    <message>
        <source>one byte in hexadecimal, such as 0x9F</source>
        <translation>0x9F와 같은 16진수 1바이트</translation>
    </message>
    <message>
        <source>1 to %1 bytes in hexadecimal separated by single spaces, such as 0x00 0x02</source>
        <translation>0x00 0x02와 같이 공백 하나로 구분한 1~%1바이트의 16진수</translation>
    </message>
    <message>
        <source>an address of eight hexadecimal digits, such as 0x00010000</source>
        <translation>0x00010000과 같은 16진수 8자리 주소</translation>
    </message>
    <message>
        <source>%1, or %2</source>
        <translation>%1 또는 %2</translation>
    </message>
    <message>
        <source>text of 1 to %1 characters on one line</source>
        <translation>한 줄에 1~%1자의 텍스트</translation>
    </message>
    <message>
        <source>a power of two from 1 to %1</source>
        <translation>1에서 %1까지의 2의 거듭제곱</translation>
    </message>
    <message>
        <source>Loop marker</source>
        <translation>루프 표시</translation>
    </message>
    <message>
        <source>There is no action property with the number %1. Allowed: 0 to %2.</source>
        <translation>번호가 %1인 동작 속성이 없습니다. 허용: 0~%2.</translation>
    </message>
    <message>
        <source>An empty value</source>
        <translation>빈 값</translation>
    </message>
    <message>
        <source>%1 is not allowed for &quot;%2&quot;. Allowed: %3.</source>
        <translation>%1은(는) ‘%2’에 사용할 수 없습니다. 허용: %3.</translation>
    </message>
    <message>
        <source>The %1 is empty: 1 to %2 characters are allowed.</source>
        <translation>‘%1’이(가) 비어 있습니다: 1~%2자를 쓸 수 있습니다.</translation>
    </message>
    <message>
        <source>The %1 has characters that cannot be stored.</source>
        <translation>‘%1’에 저장할 수 없는 문자가 있습니다.</translation>
    </message>
    <message>
        <source>The %1 has %2 characters: 1 to %3 characters are allowed.</source>
        <translation>‘%1’은(는) %2자입니다: 1~%3자를 쓸 수 있습니다.</translation>
    </message>
    <message>
        <source>The %1 has a line break or another control character: use letters, digits, punctuation and spaces.</source>
        <translation>‘%1’에 줄 바꿈이나 다른 제어 문자가 있습니다: 글자, 숫자, 문장 부호, 공백을 쓰십시오.</translation>
    </message>
    <message>
        <source>The %1 %2 begins or ends with a space: remove it.</source>
        <translation>‘%1’ %2이(가) 공백으로 시작하거나 끝납니다: 공백을 지우십시오.</translation>
    </message>
    <message>
        <source>The %1 %2 is reserved for a new device: choose another.</source>
        <translation>‘%1’ %2은(는) 새 디바이스용으로 예약되어 있습니다: 다른 이름을 선택하십시오.</translation>
    </message>
    <message>
        <source>%1 Enter 1 to %2 bytes in hexadecimal, separated by spaces or commas, for example 0xC2 0x20 0x19.</source>
        <translation>%1 0xC2 0x20 0x19와 같이 공백이나 쉼표로 구분한 1~%2바이트의 16진수를 입력하십시오.</translation>
    </message>
    <message>
        <source>The device ID is empty.</source>
        <translation>디바이스 ID가 비어 있습니다.</translation>
    </message>
    <message>
        <source>%1 is not a byte of a device ID.</source>
        <translation>%1은(는) 디바이스 ID의 바이트가 아닙니다.</translation>
    </message>
    <message>
        <source>The device ID has %1 bytes.</source>
        <translation>디바이스 ID가 %1바이트입니다.</translation>
    </message>
    <message>
        <source>The %1 %2 is out of range: %3 to %4 are allowed.</source>
        <translation>‘%1’의 %2은(는) 범위를 벗어났습니다: %3~%4을(를) 쓸 수 있습니다.</translation>
    </message>
    <message>
        <source>The %1 %2 is not known: choose one of %3.</source>
        <translation>‘%1’의 %2은(는) 알 수 없습니다: %3 중에서 선택하십시오.</translation>
    </message>
    <message>
        <source>The loop that starts at action %1 has no end.</source>
        <translation>동작 %1에서 시작하는 루프에 끝이 없습니다.</translation>
    </message>
    <message>
        <source>A loop over each %1 cannot be in a loop over each %2. Allowed: a loop over each page or sector in a loop over each die.</source>
        <translation>‘%1’ 루프는 ‘%2’ 루프 안에 있을 수 없습니다. 허용: ‘die’ 루프 안의 ‘page’ 또는 ‘sector’ 루프.</translation>
    </message>
    <message>
        <source>The end of a loop has no start before it.</source>
        <translation>루프의 끝 앞에 시작이 없습니다.</translation>
    </message>
    <message>
        <source>The end of a loop over each %1 closes a loop over each %2.</source>
        <translation>‘%1’ 루프의 끝이 ‘%2’ 루프를 닫습니다.</translation>
    </message>
    <message>
        <source>The loop over each %1 has no %2 action to determine its step size.</source>
        <translation>‘%1’ 루프에 간격을 정하는 ‘%2’ 동작이 없습니다.</translation>
    </message>
    <message>
        <source>One of several erases in a loop has a fixed address. Allowed: loop or die.</source>
        <translation>루프의 여러 지우기 중 하나의 주소가 고정되어 있습니다. 허용: loop 또는 die.</translation>
    </message>
    <message>
        <source>The loop has page sizes of %1 and of %2. Allowed: one page size in a loop.</source>
        <translation>루프에 페이지 크기 %1과(와) %2이(가) 있습니다. 허용: 루프마다 페이지 크기 하나.</translation>
    </message>
    <message>
        <source>The erase sizes %1 and %2 do not go together in one loop. Allowed: sizes of which each divides every larger one.</source>
        <translation>지우기 크기 %1과(와) %2은(는) 한 루프에 함께 쓸 수 없습니다. 허용: 각 크기가 더 큰 모든 크기를 나누는 크기들.</translation>
    </message>
    <message>
        <source>The value &quot;loop&quot; is outside any loop.</source>
        <translation>값 ‘loop’가 루프 밖에 있습니다.</translation>
    </message>
    <message>
        <source>The value &quot;die&quot; is outside a loop over each die.</source>
        <translation>값 ‘die’가 ‘die’ 루프 밖에 있습니다.</translation>
    </message>
    <message>
        <source>The action has %1 address bytes, an earlier one has %2. Allowed: the same number in all actions of a flow.</source>
        <translation>이 동작의 주소는 %1바이트이고 앞의 동작은 %2바이트입니다. 허용: 한 흐름의 모든 동작에서 같은 수.</translation>
    </message>
    <message>
        <source>The flows cannot be read.</source>
        <translation>흐름을 읽을 수 없습니다.</translation>
    </message>
    <message>
        <source>The device and its template need different names: both are called %1.</source>
        <translation>디바이스와 그 템플릿은 이름이 달라야 합니다: 둘 다 %1입니다.</translation>
    </message>
    <message>
        <source>There is no family %1. Allowed: %2 to %3.</source>
        <translation>제품군 %1은(는) 없습니다. 허용: %2~%3.</translation>
    </message>
    <message>
        <source>The configuration mode %1 has no flash devices.</source>
        <translation>구성 모드 %1에는 플래시 디바이스가 없습니다.</translation>
    </message>
    <message>
        <source>The %1 %2 is not a usual one. Usual: %3.</source>
        <translation>‘%1’의 %2은(는) 일반적인 값이 아닙니다. 일반적인 값: %3.</translation>
    </message>
    <message>
        <source>Devices of this configuration mode have no flows: the dialog drops them.</source>
        <translation>이 구성 모드의 디바이스에는 흐름이 없습니다: 대화 상자가 버립니다.</translation>
    </message>
    <message>
        <source>There are no flows.</source>
        <translation>흐름이 없습니다.</translation>
    </message>
    <message>
        <source>There are no flows for this configuration mode.</source>
        <translation>이 구성 모드의 흐름이 없습니다.</translation>
    </message>
    <message>
        <source>The value is missing: %1 is stored.</source>
        <translation>값이 없습니다: %1이(가) 저장됩니다.</translation>
    </message>
    <message>
        <source>Devices of this configuration mode have no such value: the dialog drops it.</source>
        <translation>이 구성 모드의 디바이스에는 이 값이 없습니다: 대화 상자가 버립니다.</translation>
    </message>
    <message>
        <source>The copy in %1 cannot be compared: %2</source>
        <translation>%1의 사본을 비교할 수 없습니다: %2</translation>
    </message>
    <message>
        <source>The copy in %1 is not the same as %2.</source>
        <translation>%1의 사본이 %2와(과) 같지 않습니다.</translation>
    </message>
    <message>
        <source>There is nothing to copy in %1.</source>
        <translation>%1에 복사할 것이 없습니다.</translation>
    </message>
    <message>
        <source>an unknown day</source>
        <translation>알 수 없는 날짜</translation>
    </message>
    <message>
        <source>an unknown user</source>
        <translation>알 수 없는 사용자</translation>
    </message>
    <message>
        <source>The stored template %1 was stored by %2 on %3 since it was looked for here.</source>
        <translation>저장된 템플릿 %1은(는) 여기에서 찾은 후 %2 사용자가 저장했습니다(%3).</translation>
    </message>
    <message>
        <source>The device %1 was stored by %2 on %3 since it was looked for here.</source>
        <translation>디바이스 %1은(는) 여기에서 찾은 후 %2 사용자가 저장했습니다(%3).</translation>
    </message>
    <message>
        <source>The stored template %1 was changed by %2 on %3 since it was read here.</source>
        <translation>저장된 템플릿 %1은(는) 여기에서 읽은 후 %2 사용자가 변경했습니다(%3).</translation>
    </message>
    <message>
        <source>The device %1 was changed by %2 on %3 since it was read here.</source>
        <translation>디바이스 %1은(는) 여기에서 읽은 후 %2 사용자가 변경했습니다(%3).</translation>
    </message>
    <message>
        <source>The stored template %1 was deleted by %2 on %3 since it was read here.</source>
        <translation>저장된 템플릿 %1은(는) 여기에서 읽은 후 %2 사용자가 삭제했습니다(%3).</translation>
    </message>
    <message>
        <source>The device %1 was renamed by %2 on %3 since it was read here.</source>
        <translation>디바이스 %1은(는) 여기에서 읽은 후 %2 사용자가 이름을 바꿨습니다(%3).</translation>
    </message>
    <message>
        <source>The device %1 was deleted by %2 on %3 since it was read here.</source>
        <translation>디바이스 %1은(는) 여기에서 읽은 후 %2 사용자가 삭제했습니다(%3).</translation>
    </message>
    <message>
        <source>Try again to store it as a new one.</source>
        <translation>새 항목으로 저장하려면 다시 시도하십시오.</translation>
    </message>
    <message>
        <source>Look at it again, or try again: then that state goes into the history.</source>
        <translation>다시 확인하거나 다시 시도하십시오: 그러면 그 상태는 기록에 남습니다.</translation>
    </message>
    <message>
        <source>The database in %1 is not empty.</source>
        <translation>%1의 데이터베이스가 비어 있지 않습니다.</translation>
    </message>
    <message>
        <source>A stored template called %1 already exists.</source>
        <translation>%1(이)라는 저장된 템플릿이 이미 있습니다.</translation>
    </message>
    <message>
        <source>A device called %1 already exists.</source>
        <translation>%1(이)라는 디바이스가 이미 있습니다.</translation>
    </message>
    <message>
        <source>There is no state %1 in the history.</source>
        <translation>이력에 상태 %1이(가) 없습니다.</translation>
    </message>
    <message>
        <source>The database in %1 is another one now.</source>
        <translation>%1의 데이터베이스가 다른 것으로 바뀌었습니다.</translation>
    </message>
    <message>
        <source>It is state %1 of the history.</source>
        <translation>이력의 상태 %1입니다.</translation>
    </message>
    <message>
        <source>The database %1 is not used: %2 is a link or not a regular file. Remove it if you did not put it there.</source>
        <translation>데이터베이스 %1을(를) 사용하지 않습니다: %2은(는) 링크이거나 일반 파일이 아닙니다. 직접 둔 것이 아니면 지우십시오.</translation>
    </message>
    <message>
        <source>The database %1 is not used: %2 was written by another program, and would change it. Close the database in that program. If the file is still there then, move it to another directory.</source>
        <translation>데이터베이스 %1을(를) 사용하지 않습니다: %2은(는) 다른 프로그램이 쓴 것이며 데이터베이스를 바꾸게 됩니다. 그 프로그램에서 데이터베이스를 닫으십시오. 그래도 파일이 남아 있으면 다른 폴더로 옮기십시오.</translation>
    </message>
    <message>
        <source>The database %1 is not used: %2 was written by another program for several databases at once, and names a file that would be removed. Open the database in that program, or move the file to another directory.</source>
        <translation>데이터베이스 %1을(를) 사용하지 않습니다: %2은(는) 다른 프로그램이 여러 데이터베이스를 위해 한꺼번에 쓴 것이며, 제거될 파일을 가리킵니다. 그 프로그램에서 데이터베이스를 열거나 파일을 다른 폴더로 옮기십시오.</translation>
    </message>
    <message>
        <source>The database %1 is not used: %2 is the journal of another database, or of another state of this one, and would damage it. Move that file to another directory, then try again.</source>
        <translation>데이터베이스 %1을(를) 사용하지 않습니다: %2은(는) 다른 데이터베이스나 이 데이터베이스의 다른 상태의 저널이며 데이터베이스를 손상시키게 됩니다. 그 파일을 다른 폴더로 옮긴 다음 다시 시도하십시오.</translation>
    </message>
    <message>
        <source>The database %1 is locked by another program (%2).</source>
        <translation>데이터베이스 %1이(가) 다른 프로그램에 의해 잠겨 있습니다(%2).</translation>
    </message>
    <message>
        <source>The database %1 cannot be written (%2).</source>
        <translation>데이터베이스 %1에 쓸 수 없습니다(%2).</translation>
    </message>
    <message>
        <source>The database %1 is damaged (%2). It is left as it is.</source>
        <translation>데이터베이스 %1이(가) 손상되었습니다(%2). 그대로 둡니다.</translation>
    </message>
    <message>
        <source>There is no room for the database %1 (%2).</source>
        <translation>데이터베이스 %1을(를) 저장할 공간이 없습니다(%2).</translation>
    </message>
    <message>
        <source>The file %1 is not a database (%2). It is left as it is.</source>
        <translation>파일 %1은(는) 데이터베이스가 아닙니다(%2). 그대로 둡니다.</translation>
    </message>
    <message>
        <source>The database %1 cannot be used: %2 (%3).</source>
        <translation>데이터베이스 %1을(를) 사용할 수 없습니다: %2(%3).</translation>
    </message>
    <message>
        <source>The SQLite driver of Qt is not installed.</source>
        <translation>Qt의 SQLite 드라이버가 설치되어 있지 않습니다.</translation>
    </message>
    <message>
        <source>The database %1 was left in the middle of a change by a program that ended there. It can be read again when someone who can write it has opened it once.</source>
        <translation>프로그램이 도중에 끝나 데이터베이스 %1이(가) 변경 중인 상태로 남아 있습니다. 쓸 수 있는 사람이 한 번 열면 다시 읽을 수 있습니다.</translation>
    </message>
    <message>
        <source>The database %1 can be read, but not changed: %2.</source>
        <translation>데이터베이스 %1을(를) 읽을 수는 있지만 바꿀 수는 없습니다: %2.</translation>
    </message>
    <message>
        <source>The database directory %1 cannot be read: %2.</source>
        <translation>데이터베이스 폴더 %1을(를) 읽을 수 없습니다: %2.</translation>
    </message>
    <message>
        <source>The database directory %1 does not exist.</source>
        <translation>데이터베이스 폴더 %1이(가) 없습니다.</translation>
    </message>
    <message>
        <source>The database directory %1 is not a directory: a part of it is a file.</source>
        <translation>데이터베이스 폴더 %1은(는) 폴더가 아닙니다: 일부가 파일입니다.</translation>
    </message>
    <message>
        <source>The database directory %1 cannot be reached: %2.</source>
        <translation>데이터베이스 폴더 %1에 접근할 수 없습니다: %2.</translation>
    </message>
    <message>
        <source>%1 is not a file.</source>
        <translation>%1은(는) 파일이 아닙니다.</translation>
    </message>
    <message>
        <source>The database %1 is empty: its content was lost. It is left as it is; restore a backup copy, or delete it to start over.</source>
        <translation>데이터베이스 %1이(가) 비어 있습니다: 내용이 사라졌습니다. 그대로 둡니다. 사본으로 바꾸거나, 지우고 다시 시작하십시오.</translation>
    </message>
    <message>
        <source>The file %1 is not a database (too short). It is left as it is.</source>
        <translation>파일 %1은(는) 데이터베이스가 아닙니다(너무 짧음). 그대로 둡니다.</translation>
    </message>
    <message>
        <source>The database %1 cannot be reached: it is a link to %2 (%3). Is the drive or the share that it is on connected?</source>
        <translation>데이터베이스 %1에 접근할 수 없습니다: %2(으)로 연결된 링크입니다(%3). 드라이브나 공유가 연결되어 있습니까?</translation>
    </message>
    <message>
        <source>The database %1 cannot be reached (%2). Is the drive or the share that it is on connected?</source>
        <translation>데이터베이스 %1에 접근할 수 없습니다(%2). 드라이브나 공유가 연결되어 있습니까?</translation>
    </message>
    <message>
        <source>There is no database %1, but %2, which a program left that was writing it. Put the database back, or move that file to another directory to begin with an empty database.</source>
        <translation>데이터베이스 %1은(는) 없지만, 이를 쓰던 프로그램이 남긴 %2이(가) 있습니다. 데이터베이스를 되돌려 놓거나, 그 파일을 다른 폴더로 옮겨 빈 데이터베이스로 시작하십시오.</translation>
    </message>
    <message>
        <source>The database directory %1 holds no database, and none can be created: %2.</source>
        <translation>데이터베이스 폴더 %1에 데이터베이스가 없으며 만들 수도 없습니다: %2.</translation>
    </message>
    <message>
        <source>The database %1 is damaged (its end is missing). It is left as it is.</source>
        <translation>데이터베이스 %1이(가) 손상되었습니다(끝부분이 없음). 그대로 둡니다.</translation>
    </message>
    <message>
        <source>The database %1 cannot be created: %2.</source>
        <translation>데이터베이스 %1을(를) 만들 수 없습니다: %2.</translation>
    </message>
    <message>
        <source>The database %1 was replaced or removed by another program while it was in use. Nothing was changed: look at the devices that are there now, then try again.</source>
        <translation>데이터베이스 %1이(가) 사용 중에 다른 프로그램에 의해 바뀌거나 제거되었습니다. 아무것도 바뀌지 않았습니다: 지금 있는 디바이스를 보고 다시 시도하십시오.</translation>
    </message>
    <message>
        <source>%1 Whether the change was stored cannot be read: look at the devices before you try again.</source>
        <translation>%1 변경이 저장되었는지 읽을 수 없습니다: 디바이스를 본 다음 다시 시도하십시오.</translation>
    </message>
    <message>
        <source>The database %1 was replaced or removed by another program while a change was stored, which is lost: look at the devices that are there now, then try again.</source>
        <translation>변경을 저장하는 동안 데이터베이스 %1이(가) 다른 프로그램에 의해 바뀌거나 제거되어 그 변경이 사라졌습니다: 지금 있는 디바이스를 보고 다시 시도하십시오.</translation>
    </message>
    <message>
        <source>The database %1 was altered by another program: its texts are %2, not UTF-8. It is left as it is.</source>
        <translation>데이터베이스 %1이(가) 다른 프로그램에 의해 변경되었습니다: 텍스트가 UTF-8이 아니라 %2입니다. 그대로 둡니다.</translation>
    </message>
    <message>
        <source>The file %1 is a database of another program. It is left as it is.</source>
        <translation>파일 %1은(는) 다른 프로그램의 데이터베이스입니다. 그대로 둡니다.</translation>
    </message>
    <message>
        <source>The database %1 was written by a newer program (its schema is %2, this program knows up to %3). It is left as it is.</source>
        <translation>데이터베이스 %1은(는) 더 새로운 프로그램이 썼습니다(스키마 %2, 이 프로그램은 %3까지 지원). 그대로 둡니다.</translation>
    </message>
    <message>
        <source>The database %1 was altered by another program: its tables are not those of schema %2. It is left as it is.</source>
        <translation>데이터베이스 %1이(가) 다른 프로그램에 의해 변경되었습니다: 테이블이 스키마 %2의 것이 아닙니다. 그대로 둡니다.</translation>
    </message>
    <message>
        <source>The database in %1 is damaged: %2</source>
        <translation>%1의 데이터베이스가 손상되었습니다: %2</translation>
    </message>
    <message>
        <source>The database server %1 did not answer in time.</source>
        <translation>데이터베이스 서버 %1이(가) 제때 응답하지 않았습니다.</translation>
    </message>
    <message>
        <source>The database server %1 cannot be reached: %2.</source>
        <translation>데이터베이스 서버 %1에 접근할 수 없습니다: %2.</translation>
    </message>
    <message>
        <source>The database server %1 refused: %2.</source>
        <translation>데이터베이스 서버 %1이(가) 거부했습니다: %2.</translation>
    </message>
    <message>
        <source>The database %1 on the server %2 does not allow that to the login %3: its administrator can grant the role %4 or %5.</source>
        <translation>서버 %2의 데이터베이스 %1은(는) 로그인 %3에 이를 허용하지 않습니다: 관리자가 역할 %4 또는 %5을(를) 부여할 수 있습니다.</translation>
    </message>
    <message>
        <source>The database %1 on the server %2 has no schema %3 for devices: its administrator can make it with &quot;gfpdb server sql&quot;.</source>
        <translation>서버 %2의 데이터베이스 %1에 디바이스용 스키마 %3이(가) 없습니다: 관리자가 ‘gfpdb server sql’로 만들 수 있습니다.</translation>
    </message>
    <message>
        <source>There is no room for the change on the server %1.</source>
        <translation>서버 %1에 변경을 저장할 공간이 없습니다.</translation>
    </message>
    <message>
        <source>The database %1 on the server %2 is locked by another program.</source>
        <translation>서버 %2의 데이터베이스 %1이(가) 다른 프로그램에 의해 잠겨 있습니다.</translation>
    </message>
    <message>
        <source>The database %1 on the server %2 is changed by too many programs now: try again.</source>
        <translation>지금 너무 많은 프로그램이 서버 %2의 데이터베이스 %1을(를) 바꾸고 있습니다: 다시 시도하십시오.</translation>
    </message>
    <message>
        <source>The directory %1 has the database %2 and names a server in %3. Move the database to another directory, and copy its records from there to the server with &quot;gfpdb copy&quot;.</source>
        <translation>폴더 %1에 데이터베이스 %2이(가) 있고 %3에 서버도 지정되어 있습니다. 데이터베이스를 다른 폴더로 옮긴 다음 거기서 ‘gfpdb copy’로 레코드를 서버에 복사하십시오.</translation>
    </message>
    <message>
        <source>The database %1 on the server %2 cannot be read by the login %3: its administrator can grant the role %4.</source>
        <translation>로그인 %3은(는) 서버 %2의 데이터베이스 %1을(를) 읽을 수 없습니다: 관리자가 역할 %4을(를) 부여할 수 있습니다.</translation>
    </message>
    <message>
        <source>The database %1 on the server %2 can be read, but not changed: the server takes no changes now.</source>
        <translation>서버 %2의 데이터베이스 %1을(를) 읽을 수는 있지만 바꿀 수는 없습니다: 서버가 지금 변경을 받지 않습니다.</translation>
    </message>
    <message>
        <source>The database %1 on the server %2 can be read, but not changed: the login %3 has not the role %4.</source>
        <translation>서버 %2의 데이터베이스 %1을(를) 읽을 수는 있지만 바꿀 수는 없습니다: 로그인 %3에 역할 %4이(가) 없습니다.</translation>
    </message>
    <message>
        <source>The database %1 on the server %2 was written by a newer program (schema %3). It is left as it is.</source>
        <translation>서버 %2의 데이터베이스 %1은(는) 더 새로운 프로그램이 썼습니다(스키마 %3). 그대로 둡니다.</translation>
    </message>
    <message>
        <source>The database %1 on the server %2 is a database of another program. It is left as it is.</source>
        <translation>서버 %2의 데이터베이스 %1은(는) 다른 프로그램의 데이터베이스입니다. 그대로 둡니다.</translation>
    </message>
    <message>
        <source>The database %1 on the server %2 was written by an older program (schema %3): it can be used when someone with the role %4 has opened it once.</source>
        <translation>서버 %2의 데이터베이스 %1은(는) 더 오래된 프로그램이 썼습니다(스키마 %3): 역할 %4을(를) 가진 사람이 한 번 열면 사용할 수 있습니다.</translation>
    </message>
    <message>
        <source>The file %1 names a server since the directory was opened: open it again.</source>
        <translation>폴더를 연 뒤에 파일 %1이(가) 서버를 지정했습니다: 폴더를 다시 여십시오.</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>이름</translation>
    </message>
    <message>
        <source>ID</source>
        <translation>ID</translation>
    </message>
    <message>
        <source>Maker</source>
        <translation>제조사</translation>
    </message>
    <message>
        <source>Density</source>
        <translation>용량</translation>
    </message>
    <message>
        <source>Dies</source>
        <translation>다이</translation>
    </message>
    <message>
        <source>Dies are selected by C2</source>
        <translation>C2로 다이 선택</translation>
    </message>
    <message>
        <source>Page size (bytes)</source>
        <translation>페이지 크기(바이트)</translation>
    </message>
    <message>
        <source>Address bytes</source>
        <translation>주소 바이트</translation>
    </message>
    <message>
        <source>4-byte addressing, enter</source>
        <translation>4바이트 주소, 시작</translation>
    </message>
    <message>
        <source>4-byte addressing, leave</source>
        <translation>4바이트 주소, 종료</translation>
    </message>
    <message>
        <source>4-byte addressing, register and bit</source>
        <translation>4바이트 주소, 레지스터와 비트</translation>
    </message>
    <message>
        <source>Quad enable</source>
        <translation>쿼드 사용</translation>
    </message>
    <message>
        <source>Unlock blocks</source>
        <translation>블록 잠금 해제</translation>
    </message>
    <message>
        <source>Reset</source>
        <translation>리셋</translation>
    </message>
    <message>
        <source>Busy is read by</source>
        <translation>사용 중 상태 읽기</translation>
    </message>
    <message>
        <source>Dummy clocks, single</source>
        <translation>더미 클럭, 싱글</translation>
    </message>
    <message>
        <source>Quad read</source>
        <translation>쿼드 읽기</translation>
    </message>
    <message>
        <source>Dummy clocks, quad</source>
        <translation>더미 클럭, 쿼드</translation>
    </message>
    <message>
        <source>Quad program</source>
        <translation>쿼드 프로그램</translation>
    </message>
    <message>
        <source>Page program, longest wait (us)</source>
        <translation>페이지 프로그램, 최대 대기(us)</translation>
    </message>
    <message>
        <source>Erase, longest wait (ms)</source>
        <translation>지우기, 최대 대기(ms)</translation>
    </message>
    <message>
        <source>from the ID</source>
        <translation>ID에서</translation>
    </message>
    <message>
        <source>from the density</source>
        <translation>용량에서</translation>
    </message>
    <message>
        <source>assumed</source>
        <translation>가정함</translation>
    </message>
    <message>
        <source>entered</source>
        <translation>입력함</translation>
    </message>
    <message>
        <source>The command is on four lines, but the single-I/O flow has one.</source>
        <translation>명령은 네 라인을 쓰지만 싱글 I/O 흐름에는 한 라인만 있습니다.</translation>
    </message>
    <message>
        <source>The image is compared with a mask: its bytes with bits that the mask clears never match.</source>
        <translation>이미지를 마스크와 함께 비교합니다: 마스크가 지우는 비트가 있는 바이트는 결코 일치하지 않습니다.</translation>
    </message>
    <message>
        <source>The expected data have bits that the mask clears: they never match.</source>
        <translation>기대 데이터에 마스크가 지우는 비트가 있습니다: 결코 일치하지 않습니다.</translation>
    </message>
    <message>
        <source>The mask has no bit: whatever is read matches.</source>
        <translation>마스크에 비트가 없습니다: 무엇을 읽어도 일치합니다.</translation>
    </message>
    <message>
        <source>The page size is %1, but the part has pages of %2 bytes: what is beyond the end of a page overwrites its start.</source>
        <translation>페이지 크기는 %1이지만 디바이스의 페이지는 %2바이트입니다: 페이지 끝을 넘는 부분은 그 시작을 덮어씁니다.</translation>
    </message>
    <message>
        <source>The page size is %1, but the part has pages of %2 bytes: programming takes longer than necessary.</source>
        <translation>페이지 크기는 %1이지만 디바이스의 페이지는 %2바이트입니다: 프로그래밍이 필요 이상으로 오래 걸립니다.</translation>
    </message>
    <message>
        <source>Data are changed in an operation that is also executed when the user asked for neither Program nor Erase.</source>
        <translation>사용자가 Program도 Erase도 요청하지 않았을 때에도 실행되는 작업에서 데이터가 변경됩니다.</translation>
    </message>
    <message>
        <source>Three address bytes reach %1 bytes, but the action works on %2.</source>
        <translation>주소 3바이트로는 %1바이트까지 닿지만 동작의 대상은 %2바이트입니다.</translation>
    </message>
    <message>
        <source>The command does not have the bus width %1. Allowed: %2.</source>
        <translation>이 명령에는 버스 폭 %1이(가) 없습니다. 허용: %2.</translation>
    </message>
    <message>
        <source>This is a command that programs.</source>
        <translation>이것은 프로그래밍하는 명령입니다.</translation>
    </message>
    <message>
        <source>This is a command that reads data.</source>
        <translation>이것은 데이터를 읽는 명령입니다.</translation>
    </message>
    <message>
        <source>This is a command that erases.</source>
        <translation>이것은 지우는 명령입니다.</translation>
    </message>
    <message>
        <source>The command has no dummy clocks.</source>
        <translation>이 명령에는 더미 클럭이 없습니다.</translation>
    </message>
    <message>
        <source>The command has two dummy clocks at least, its mode clocks.</source>
        <translation>이 명령에는 더미 클럭이 적어도 두 개(모드 클럭) 있습니다.</translation>
    </message>
    <message>
        <source>Nothing in the loop depends on its step: every step does the same.</source>
        <translation>루프 안의 어떤 것도 단계에 따라 달라지지 않습니다: 모든 단계가 같은 일을 합니다.</translation>
    </message>
    <message>
        <source>The device has one die: the loop has one step.</source>
        <translation>디바이스의 다이는 하나입니다: 루프는 한 단계입니다.</translation>
    </message>
    <message>
        <source>There is no ID check: the flow changes whatever chip is connected.</source>
        <translation>ID 검사가 없습니다: 흐름은 연결된 어떤 칩이든 변경합니다.</translation>
    </message>
    <message>
        <source>The chip is changed before its ID is checked.</source>
        <translation>ID를 검사하기 전에 칩이 변경됩니다.</translation>
    </message>
    <message>
        <source>4-byte addressing is entered here, and Termination does not leave it.</source>
        <translation>여기서 4바이트 주소가 시작되지만 Termination에서 종료되지 않습니다.</translation>
    </message>
    <message>
        <source>No command uses this write enable.</source>
        <translation>이 쓰기 허용을 쓰는 명령이 없습니다.</translation>
    </message>
    <message>
        <source>The chip is in deep power-down and ignores the command.</source>
        <translation>칩이 딥 파워다운 상태여서 명령을 무시합니다.</translation>
    </message>
    <message>
        <source>The command follows the reset that brings the chip to its end.</source>
        <translation>명령이 칩을 최종 상태로 만드는 리셋 뒤에 있습니다.</translation>
    </message>
    <message>
        <source>The command is on four lines, and nothing before it sets or checks the quad-enable bit.</source>
        <translation>명령은 네 라인을 쓰지만 그 앞에 Quad Enable 비트를 설정하거나 검사하는 것이 없습니다.</translation>
    </message>
    <message>
        <source>%1 us are waited for instead of asking whether the chip is ready.</source>
        <translation>칩이 준비되었는지 묻는 대신 %1 µs를 기다립니다.</translation>
    </message>
    <message>
        <source>Nothing waits until the chip is ready: it ignores the commands that follow.</source>
        <translation>칩이 준비될 때까지 기다리는 것이 없습니다: 칩은 뒤따르는 명령을 무시합니다.</translation>
    </message>
    <message>
        <source>There is no write enable before it: the chip ignores the command.</source>
        <translation>그 앞에 쓰기 허용이 없습니다: 칩은 명령을 무시합니다.</translation>
    </message>
    <message>
        <source>The command has no address, but the action sends one.</source>
        <translation>명령에는 주소가 없지만 동작은 주소를 보냅니다.</translation>
    </message>
    <message>
        <source>The command has an address, but the action sends none.</source>
        <translation>명령에는 주소가 있지만 동작은 주소를 보내지 않습니다.</translation>
    </message>
    <message>
        <source>The command always has four address bytes, but the action sends three.</source>
        <translation>명령의 주소는 항상 4바이트이지만 동작은 3바이트를 보냅니다.</translation>
    </message>
    <message>
        <source>The action sends four address bytes, but nothing before it enters 4-byte addressing.</source>
        <translation>동작은 주소 4바이트를 보내지만 그 앞에 4바이트 주소를 시작하는 것이 없습니다.</translation>
    </message>
    <message>
        <source>The action sends three address bytes, but 4-byte addressing was entered before.</source>
        <translation>동작은 주소 3바이트를 보내지만 그 전에 4바이트 주소가 시작되었습니다.</translation>
    </message>
    <message>
        <source>Template name</source>
        <translation>템플릿 이름</translation>
    </message>
    <message>
        <source>Flow template</source>
        <translation>흐름 템플릿</translation>
    </message>
    <message>
        <source>an unpaired surrogate is not a character</source>
        <translation>짝이 없는 서로게이트는 문자가 아닙니다</translation>
    </message>
    <message>
        <source>the name %1 occurs twice</source>
        <translation>이름 %1이(가) 두 번 나옵니다</translation>
    </message>
    <message>
        <source>values are nested too deeply</source>
        <translation>값이 너무 깊게 중첩되어 있습니다</translation>
    </message>
    <message>
        <source>there is text after the end</source>
        <translation>끝 뒤에 텍스트가 있습니다</translation>
    </message>
    <message>
        <source>an object needs a name in double quotes here</source>
        <translation>여기에는 객체의 이름이 큰따옴표 안에 있어야 합니다</translation>
    </message>
    <message>
        <source>&quot;:&quot; is missing after %1</source>
        <translation>%1 뒤에 ‘:’이(가) 없습니다</translation>
    </message>
    <message>
        <source>an object needs &quot;,&quot; or &quot;}&quot; here</source>
        <translation>여기에는 객체에 ‘,’ 또는 ‘}’이(가) 있어야 합니다</translation>
    </message>
    <message>
        <source>a list needs &quot;,&quot; or &quot;]&quot; here</source>
        <translation>여기에는 목록에 ‘,’ 또는 ‘]’이(가) 있어야 합니다</translation>
    </message>
    <message>
        <source>\u needs four hexadecimal digits</source>
        <translation>\u에는 16진수 네 자리가 필요합니다</translation>
    </message>
    <message>
        <source>a string is not terminated</source>
        <translation>문자열이 닫히지 않았습니다</translation>
    </message>
    <message>
        <source>there is no such escape</source>
        <translation>그런 이스케이프가 없습니다</translation>
    </message>
    <message>
        <source>a string has a control character or a line break in it</source>
        <translation>문자열에 제어 문자나 줄 바꿈이 있습니다</translation>
    </message>
    <message>
        <source>a string is not UTF-8</source>
        <translation>문자열이 UTF-8이 아닙니다</translation>
    </message>
    <message>
        <source>a number is too large</source>
        <translation>숫자가 너무 큽니다</translation>
    </message>
    <message>
        <source>a value was expected</source>
        <translation>값이 있어야 합니다</translation>
    </message>
    <message>
        <source>true or false</source>
        <translation>true 또는 false</translation>
    </message>
    <message>
        <source>a number</source>
        <translation>숫자</translation>
    </message>
    <message>
        <source>a string</source>
        <translation>문자열</translation>
    </message>
    <message>
        <source>a list</source>
        <translation>목록</translation>
    </message>
    <message>
        <source>an object</source>
        <translation>객체</translation>
    </message>
    <message>
        <source>A string was expected, but this is %1.</source>
        <translation>문자열이 있어야 하지만 %1입니다.</translation>
    </message>
    <message>
        <source>A list was expected, but this is %1.</source>
        <translation>목록이 있어야 하지만 %1입니다.</translation>
    </message>
    <message>
        <source>An object was expected, but this is %1.</source>
        <translation>객체가 있어야 하지만 %1입니다.</translation>
    </message>
    <message>
        <source>%1 is not known here. Allowed: %2.</source>
        <translation>여기에서는 %1을(를) 알 수 없습니다. 허용: %2.</translation>
    </message>
    <message>
        <source>%1 is missing.</source>
        <translation>%1이(가) 없습니다.</translation>
    </message>
    <message>
        <source>The catalogue %1 cannot be read: %2.</source>
        <translation>카탈로그 %1을(를) 읽을 수 없습니다: %2.</translation>
    </message>
    <message>
        <source>device %1: %2</source>
        <translation>디바이스 %1: %2</translation>
    </message>
    <message>
        <source>stored template %1: %2</source>
        <translation>저장된 템플릿 %1: %2</translation>
    </message>
    <message>
        <source>The device %1 is already in %2.</source>
        <translation>디바이스 %1은(는) 이미 %2에 있습니다.</translation>
    </message>
    <message>
        <source>The stored template %1 is already in %2.</source>
        <translation>저장된 템플릿 %1은(는) 이미 %2에 있습니다.</translation>
    </message>
    <message>
        <source>The device %1 exists with different content: --replace replaces it.</source>
        <translation>디바이스 %1이(가) 다른 내용으로 있습니다: --replace를 쓰면 바뀝니다.</translation>
    </message>
    <message>
        <source>The stored template %1 exists with different content: --replace replaces it.</source>
        <translation>저장된 템플릿 %1이(가) 다른 내용으로 있습니다: --replace를 쓰면 바뀝니다.</translation>
    </message>
    <message>
        <source>The name of the device %1 is that of a stored template.</source>
        <translation>디바이스 %1의 이름은 저장된 템플릿의 이름입니다.</translation>
    </message>
    <message>
        <source>The name of the stored template %1 is that of a device.</source>
        <translation>저장된 템플릿 %1의 이름은 디바이스의 이름입니다.</translation>
    </message>
    <message>
        <source>The column is missing.</source>
        <translation>열이 없습니다.</translation>
    </message>
    <message>
        <source>The column is not known. Allowed: %1.</source>
        <translation>알 수 없는 열입니다. 허용: %1.</translation>
    </message>
    <message>
        <source>The column occurs twice.</source>
        <translation>열이 두 번 나옵니다.</translation>
    </message>
    <message>
        <source>A quote that opens in this row is never closed.</source>
        <translation>이 행에서 열린 따옴표가 닫히지 않았습니다.</translation>
    </message>
    <message>
        <source>The row has 1 cell, the line of column names has %1.</source>
        <translation>이 행의 셀은 1개인데 열 이름 행에는 %1개가 있습니다.</translation>
    </message>
    <message>
        <source>The row has %1 cells, the line of column names has %2.</source>
        <translation>이 행의 셀은 %1개인데 열 이름 행에는 %2개가 있습니다.</translation>
    </message>
    <message>
        <source>The file cannot be read: %1.</source>
        <translation>파일을 읽을 수 없습니다: %1.</translation>
    </message>
    <message>
        <source>This is not valid JSON: %1.</source>
        <translation>올바른 JSON이 아닙니다: %1.</translation>
    </message>
    <message>
        <source>This is not a file of records. Allowed: %1.</source>
        <translation>레코드 파일이 아닙니다. 허용: %1.</translation>
    </message>
    <message>
        <source>This version of the format is not known. Allowed: %1.</source>
        <translation>알 수 없는 형식 버전입니다. 허용: %1.</translation>
    </message>
    <message>
        <source>The text is not UTF-8.</source>
        <translation>텍스트가 UTF-8이 아닙니다.</translation>
    </message>
    <message>
        <source>A whole number or null was expected, but this is %1.</source>
        <translation>정수 또는 null이 있어야 하지만 %1입니다.</translation>
    </message>
    <message>
        <source>device family</source>
        <translation>디바이스 제품군</translation>
    </message>
    <message>
        <source>configuration mode</source>
        <translation>구성 모드</translation>
    </message>
    <message>
        <source>single-I/O flow</source>
        <translation>싱글 I/O 흐름</translation>
    </message>
    <message>
        <source>quad-I/O flow</source>
        <translation>쿼드 I/O 흐름</translation>
    </message>
    <message>
        <source>This operation occurs twice.</source>
        <translation>이 작업이 두 번 나옵니다.</translation>
    </message>
    <message>
        <source>There is no such operation. Allowed: %1.</source>
        <translation>그런 작업이 없습니다. 허용: %1.</translation>
    </message>
    <message>
        <source>There is no such action. Allowed: %1.</source>
        <translation>그런 동작이 없습니다. 허용: %1.</translation>
    </message>
    <message>
        <source>The flows of %1 cannot be read.</source>
        <translation>%1의 흐름을 읽을 수 없습니다.</translation>
    </message>
    <message>
        <source>A device has at most %1 single-I/O dummy clocks: the copy gets these, and its flow has the %2 of %3.</source>
        <translation>디바이스의 싱글 I/O 더미 클럭은 최대 %1입니다: 복사본은 이 값을 갖고, 흐름은 %3의 %2을(를) 유지합니다.</translation>
    </message>
    <message>
        <source>The configuration mode %1 has no serial flash devices.</source>
        <translation>구성 모드 %1에는 직렬 플래시 디바이스가 없습니다.</translation>
    </message>
    <message>
        <source>page size</source>
        <translation>페이지 크기</translation>
    </message>
    <message>
        <source>quad-I/O dummy clocks</source>
        <translation>쿼드 I/O 더미 클럭</translation>
    </message>
    <message>
        <source>%1: %2 in the list, %3 by %4</source>
        <translation>%1: 목록에는 %2, %4에는 %3</translation>
    </message>
    <message>
        <source>address bytes</source>
        <translation>주소 바이트</translation>
    </message>
    <message>
        <source>%1 or %2</source>
        <translation>%1 또는 %2</translation>
    </message>
    <message>
        <source>erase by %1</source>
        <translation>%1(으)로 지우기</translation>
    </message>
    <message>
        <source>not</source>
        <translation>없음</translation>
    </message>
    <message>
        <source>%1 bytes</source>
        <translation>%1바이트</translation>
    </message>
    <message>
        <source>none</source>
        <translation>없음</translation>
    </message>
    <message>
        <source>reserved</source>
        <translation>예약됨</translation>
    </message>
    <message>
        <source>quad enable</source>
        <translation>쿼드 사용</translation>
    </message>
    <message>
        <source>basic table: %1 double words in read-outs of this part, %2 here</source>
        <translation>기본 테이블: 이 부품의 읽은 데이터에는 더블 워드 %1개, 여기에는 %2개</translation>
    </message>
    <message>
        <source>4-4-4 read: in read-outs of this part, but not here</source>
        <translation>4-4-4 읽기: 이 부품의 읽은 데이터에는 있지만 여기에는 없음</translation>
    </message>
    <message>
        <source>%1 is not a number.</source>
        <translation>%1은(는) 숫자가 아닙니다.</translation>
    </message>
    <message>
        <source>%1 is out of range: %2 to %3 are allowed.</source>
        <translation>%1은(는) 범위를 벗어났습니다: %2&#xa0;%3이(가) 허용됩니다.</translation>
    </message>
    <message>
        <source>%1 is more than 32Gb.</source>
        <translation>%1은(는) 32Gb를 넘습니다.</translation>
    </message>
    <message>
        <source>%1 is not a density such as 128Mb.</source>
        <translation>%1은(는) 128Mb와 같은 용량이 아닙니다.</translation>
    </message>
    <message>
        <source>%1 is neither an erase command such as %2 nor %3.</source>
        <translation>%1은(는) %2와 같은 지우기 명령도 %3도 아닙니다.</translation>
    </message>
    <message>
        <source>%1 is not a power of two.</source>
        <translation>%1은(는) 2의 거듭제곱이 아닙니다.</translation>
    </message>
    <message>
        <source>There is no value %1.</source>
        <translation>값 %1이(가) 없습니다.</translation>
    </message>
    <message>
        <source>The value %1 is missing: enter it.</source>
        <translation>값 %1이(가) 없습니다: 입력하십시오.</translation>
    </message>
    <message>
        <source>The number of dies, %1, does not divide the density.</source>
        <translation>다이 수 %1(으)로 용량이 나누어떨어지지 않습니다.</translation>
    </message>
    <message>
        <source>The erase command %1 does not divide the density.</source>
        <translation>지우기 명령 %1(으)로 용량이 나누어떨어지지 않습니다.</translation>
    </message>
    <message>
        <source>The density %1 (%2) is not what the ID usually stands for, which is %3.</source>
        <translation>용량 %1(%2)은(는) 이 ID가 보통 뜻하는 %3이(가) 아닙니다.</translation>
    </message>
    <message>
        <source>SFDP DW2 says a density that no device can have: %1.</source>
        <translation>SFDP DW2의 용량은 어떤 디바이스도 가질 수 없습니다: %1.</translation>
    </message>
    <message>
        <source>A device has at most %1 single-I/O dummy clocks: it gets these, and its flow has %2.</source>
        <translation>디바이스의 싱글 I/O 더미 클럭은 최대 %1입니다: 이 값을 갖고, 흐름은 %2입니다.</translation>
    </message>
    <message>
        <source>The chip has a table of the maker %1, and its ID is of the maker %2.</source>
        <translation>칩에는 제조사 %1의 테이블이 있지만 ID는 제조사 %2의 것입니다.</translation>
    </message>
    <message>
        <source>No listed part tells what the maker&apos;s parts have in common: usual commands are assumed.</source>
        <translation>이 제조사 부품의 공통점을 알려 주는 목록의 부품이 없습니다: 일반적인 명령으로 가정합니다.</translation>
    </message>
    <message>
        <source>Several listed parts have this ID: %1.</source>
        <translation>이 ID를 가진 목록의 부품이 여러 개입니다: %1.</translation>
    </message>
    <message>
        <source>The commands have four address bytes, and nothing enters 4-byte addressing.</source>
        <translation>명령의 주소는 4바이트인데 4바이트 주소 지정으로 들어가는 방법이 없습니다.</translation>
    </message>
    <message>
        <source>The commands have three address bytes, and the device is in 4-byte addressing.</source>
        <translation>명령의 주소는 3바이트인데 디바이스는 4바이트 주소 지정 상태입니다.</translation>
    </message>
    <message>
        <source>Three address bytes do not reach all of %1.</source>
        <translation>주소 3바이트로는 %1 전체에 접근할 수 없습니다.</translation>
    </message>
    <message>
        <source>SFDP DW1 lists three address bytes alone, which do not reach all of %1: four are taken.</source>
        <translation>SFDP DW1에는 주소 3바이트만 있어 %1 전체에 접근할 수 없습니다: 4바이트를 씁니다.</translation>
    </message>
    <message>
        <source>SFDP DW16 lists every way into 4-byte addressing, and SFDP DW1 three address bytes: DW16 is ignored.</source>
        <translation>SFDP DW16에는 4바이트 주소 지정으로 가는 모든 방법이, SFDP DW1에는 주소 3바이트가 있습니다: DW16은 무시됩니다.</translation>
    </message>
    <message>
        <source>SFDP DW16 lists no way into 4-byte addressing that a flow can take: %1 is taken.</source>
        <translation>SFDP DW16에는 흐름에서 쓸 수 있는 4바이트 주소 지정 방법이 없습니다: %1을(를) 씁니다.</translation>
    </message>
    <message>
        <source>SFDP has no page size: %1 is taken (%2).</source>
        <translation>SFDP에 페이지 크기가 없습니다: %1을(를) 씁니다(%2).</translation>
    </message>
    <message>
        <source>SFDP DW11 has a page size that no flow can have: %1 is taken (%2).</source>
        <translation>SFDP DW11의 페이지 크기는 흐름에서 쓸 수 없습니다: %1을(를) 씁니다(%2).</translation>
    </message>
    <message>
        <source>SFDP DW15 says with a reserved value how quad is enabled: look it up and enter it.</source>
        <translation>SFDP DW15의 쿼드 사용 방법이 예약된 값입니다: 찾아서 입력하십시오.</translation>
    </message>
    <message>
        <source>SFDP does not say how quad is enabled: %1 is taken (%2).</source>
        <translation>SFDP에 쿼드 사용 방법이 없습니다: %1을(를) 씁니다(%2).</translation>
    </message>
    <message>
        <source>SFDP lists no read on four lines: the quad-I/O flow uses one.</source>
        <translation>SFDP에 네 선 읽기가 없는데 쿼드 I/O 흐름은 이를 씁니다.</translation>
    </message>
    <message>
        <source>No erase command serves the whole part: the chip is erased at once.</source>
        <translation>부품 전체에 쓸 수 있는 지우기 명령이 없습니다: 칩을 한 번에 지웁니다.</translation>
    </message>
    <message>
        <source>The four bytes of each double word are in reverse order.</source>
        <translation>각 더블 워드의 네 바이트가 역순입니다.</translation>
    </message>
    <message>
        <source>The bytes do not begin with the signature &quot;SFDP&quot;.</source>
        <translation>바이트가 서명 ‘SFDP’로 시작하지 않습니다.</translation>
    </message>
    <message>
        <source>The signature &quot;SFDP&quot; is at %1 and not at the start: bytes were added before it.</source>
        <translation>서명 ‘SFDP’이(가) 처음이 아니라 %1에 있습니다: 앞에 바이트가 추가되었습니다.</translation>
    </message>
    <message>
        <source>The read-out ends within the SFDP header.</source>
        <translation>읽은 데이터가 SFDP 헤더 안에서 끝납니다.</translation>
    </message>
    <message>
        <source>SFDP revision %1 is unknown: revisions 1.x can be read.</source>
        <translation>SFDP 리비전 %1은(는) 알 수 없습니다: 리비전 1.x를 읽을 수 있습니다.</translation>
    </message>
    <message>
        <source>%1 has the unknown revision %2: it is not read.</source>
        <translation>%1은(는) 알 수 없는 리비전 %2입니다: 읽지 않습니다.</translation>
    </message>
    <message>
        <source>There are %1 headers of %2: the one of revision %3 is taken.</source>
        <translation>%2의 헤더가 %1개 있습니다: 리비전 %3의 것을 씁니다.</translation>
    </message>
    <message>
        <source>The read-out ends within the parameter headers: %1 of %2 are there.</source>
        <translation>읽은 데이터가 매개변수 헤더 안에서 끝납니다: %2개 중 %1개가 있습니다.</translation>
    </message>
    <message>
        <source>A table begins at %1: there is room for %2 parameter headers, not for %3.</source>
        <translation>테이블이 %1에서 시작합니다: 매개변수 헤더 %2개의 자리만 있고 %3개는 들어가지 않습니다.</translation>
    </message>
    <message>
        <source>The parameter header at %1 is blank.</source>
        <translation>%1의 매개변수 헤더가 비어 있습니다.</translation>
    </message>
    <message>
        <source>%1 begins at %2, within the headers: it is not read.</source>
        <translation>%1은(는) 헤더 안의 %2에서 시작합니다: 읽지 않습니다.</translation>
    </message>
    <message>
        <source>%1 is empty.</source>
        <translation>%1이(가) 비어 있습니다.</translation>
    </message>
    <message>
        <source>%1 is not in the read-out: it begins at %2, and the read-out ends at %3.</source>
        <translation>%1은(는) 읽은 데이터에 없습니다: %2에서 시작하는데 데이터는 %3에서 끝납니다.</translation>
    </message>
    <message>
        <source>The read-out ends within %1: %2 of %3 double words are there.</source>
        <translation>읽은 데이터가 %1 안에서 끝납니다: 더블 워드 %3개 중 %2개가 있습니다.</translation>
    </message>
    <message>
        <source>%1 begins at %2, which is not a multiple of 4.</source>
        <translation>%1은(는) 4의 배수가 아닌 %2에서 시작합니다.</translation>
    </message>
    <message>
        <source>%1 and %2 overlap.</source>
        <translation>%1과(와) %2이(가) 겹칩니다.</translation>
    </message>
    <message>
        <source>The bytes at %1 are in no table: they are not read.</source>
        <translation>%1의 바이트는 어느 테이블에도 없습니다: 읽지 않습니다.</translation>
    </message>
    <message>
        <source>There is no basic table.</source>
        <translation>기본 테이블이 없습니다.</translation>
    </message>
    <message>
        <source>The basic table is blank.</source>
        <translation>기본 테이블이 비어 있습니다.</translation>
    </message>
    <message>
        <source>The basic table has %1 double words: %2 belong to its revision %3.</source>
        <translation>기본 테이블의 더블 워드는 %1개입니다: 리비전 %3에는 %2개가 있어야 합니다.</translation>
    </message>
    <message>
        <source>SFDP DW%1 has zeros where every part has ones: bytes may be missing or shifted.</source>
        <translation>SFDP DW%1에 모든 부품이 1인 자리가 0입니다: 바이트가 빠졌거나 밀렸을 수 있습니다.</translation>
    </message>
    <message>
        <source>SFDP DW2 says no density that a part can have: %1.</source>
        <translation>SFDP DW2는 부품이 가질 수 있는 용량이 아닙니다: %1.</translation>
    </message>
    <message>
        <source>SFDP DW1 says with a reserved value how many address bytes there are.</source>
        <translation>SFDP DW1의 주소 바이트 수가 예약된 값입니다.</translation>
    </message>
    <message>
        <source>SFDP DW%1 lists the %2 read, and DW%3 has no command for it.</source>
        <translation>SFDP DW%1에는 %2 읽기가 있지만 DW%3에 그 명령이 없습니다.</translation>
    </message>
    <message>
        <source>SFDP DW%1: erase type %2 has no command: it is left out.</source>
        <translation>SFDP DW%1: 지우기 유형 %2에 명령이 없습니다: 제외합니다.</translation>
    </message>
    <message>
        <source>SFDP DW%1: erase type %2 erases 2^%3 bytes, which is too much: it is left out.</source>
        <translation>SFDP DW%1: 지우기 유형 %2은(는) 2^%3바이트를 지우며 너무 큽니다: 제외합니다.</translation>
    </message>
    <message>
        <source>SFDP DW1 erases 4 KiB by %1, which no erase type does.</source>
        <translation>SFDP DW1은 %1(으)로 4KiB를 지우는데 그런 지우기 유형이 없습니다.</translation>
    </message>
    <message>
        <source>The table of 4-byte instructions is blank.</source>
        <translation>4바이트 명령 테이블이 비어 있습니다.</translation>
    </message>
    <message>
        <source>The table of 4-byte instructions has no erase commands.</source>
        <translation>4바이트 명령 테이블에 지우기 명령이 없습니다.</translation>
    </message>
    <message>
        <source>The table of 4-byte instructions lists erase type %1, which the basic table does not have.</source>
        <translation>4바이트 명령 테이블에 기본 테이블에 없는 지우기 유형 %1이(가) 있습니다.</translation>
    </message>
    <message>
        <source>The table of 4-byte instructions lists erase type %1 and has no command for it.</source>
        <translation>4바이트 명령 테이블에 지우기 유형 %1이(가) 있지만 명령이 없습니다.</translation>
    </message>
    <message>
        <source>The sectors of sector map %1 come to %2 bytes, and the part has %3.</source>
        <translation>섹터 맵 %1의 섹터는 모두 %2바이트인데 부품은 %3바이트입니다.</translation>
    </message>
    <message>
        <source>The sectors of sector map %1 are erased by types that the basic table does not have.</source>
        <translation>섹터 맵 %1의 섹터는 기본 테이블에 없는 유형으로 지워집니다.</translation>
    </message>
    <message>
        <source>The sector map has no end.</source>
        <translation>섹터 맵에 끝이 없습니다.</translation>
    </message>
    <message>
        <source>the basic table</source>
        <translation>기본 테이블</translation>
    </message>
    <message>
        <source>the sector map</source>
        <translation>섹터 맵</translation>
    </message>
    <message>
        <source>the table of 4-byte instructions</source>
        <translation>4바이트 명령 테이블</translation>
    </message>
    <message>
        <source>the table %1</source>
        <translation>테이블 %1</translation>
    </message>
    <message>
        <source>The database %1 on the server %2 was replaced by another one while it was in use. Nothing was changed: look at the devices that are there now, then try again.</source>
        <translation>서버 %2의 데이터베이스 %1이(가) 사용 중에 다른 것으로 바뀌었습니다. 아무것도 변경되지 않았습니다: 지금 있는 디바이스를 확인한 다음 다시 시도하십시오.</translation>
    </message>
    <message>
        <source>The database %1 on the server %2 is another one now.</source>
        <translation>서버 %2의 데이터베이스 %1은(는) 이제 다른 것입니다.</translation>
    </message>
    <message>
        <source>the certificates %1 are not a file</source>
        <translation>인증서 %1은(는) 파일이 아닙니다</translation>
    </message>
    <message>
        <source>no reason</source>
        <translation>이유 없음</translation>
    </message>
    <message>
        <source>the connection is closed</source>
        <translation>연결이 닫혔습니다</translation>
    </message>
    <message>
        <source>The server does not copy.</source>
        <translation>서버가 복사하지 않습니다.</translation>
    </message>
    <message>
        <source>%1 is not a setting</source>
        <translation>%1은(는) 설정이 아닙니다</translation>
    </message>
    <message>
        <source>passwords do not belong into it: put them into the file .pgpass in your home directory</source>
        <translation>암호는 여기에 두지 않습니다: 홈 폴더의 .pgpass 파일에 넣으십시오</translation>
    </message>
    <message>
        <source>%1 is not a setting. There are: %2</source>
        <translation>%1은(는) 설정이 아닙니다. 설정: %2</translation>
    </message>
    <message>
        <source>%1 is there twice</source>
        <translation>%1이(가) 두 번 있습니다</translation>
    </message>
    <message>
        <source>%1 cannot be %2</source>
        <translation>%1은(는) %2일 수 없습니다</translation>
    </message>
    <message>
        <source>it does not begin with %1</source>
        <translation>%1(으)로 시작하지 않습니다</translation>
    </message>
    <message>
        <source>it has no settings</source>
        <translation>설정이 없습니다</translation>
    </message>
    <message>
        <source>it names too many hosts</source>
        <translation>호스트가 너무 많습니다</translation>
    </message>
    <message>
        <source>&quot;port&quot; must be one for all hosts, or one for each</source>
        <translation>‘port’는 모든 호스트에 하나이거나 호스트마다 하나여야 합니다</translation>
    </message>
    <message>
        <source>it does not say which &quot;database&quot; is meant</source>
        <translation>어떤 ‘database’인지 지정되지 않았습니다</translation>
    </message>
    <message>
        <source>The settings of the server cannot be used: %1.</source>
        <translation>서버 설정을 사용할 수 없습니다: %1.</translation>
    </message>
    <message>
        <source>The file %1 cannot be used: %2.</source>
        <translation>파일 %1을(를) 사용할 수 없습니다: %2.</translation>
    </message>
    <message>
        <source>The directory has the database %1: name the server in another directory, and copy the records there with &quot;gfpdb copy&quot;.</source>
        <translation>이 폴더에는 데이터베이스 %1이(가) 있습니다: 다른 폴더에서 서버를 지정하고 ‘gfpdb copy’로 레코드를 복사하십시오.</translation>
    </message>
    <message>
        <source>The file %1 cannot be written: %2.</source>
        <translation>파일 %1에 쓸 수 없습니다: %2.</translation>
    </message>
    <message>
        <source>The database cannot keep %1 of %2: it is not a text in UTF-8, or has the character NUL.</source>
        <translation>데이터베이스에 %2의 %1을(를) 저장할 수 없습니다: UTF-8 텍스트가 아니거나 NUL 문자가 있습니다.</translation>
    </message>
    <message>
        <source>The device %1 is being changed by another program: try again.</source>
        <translation>다른 프로그램이 디바이스 %1을(를) 변경하고 있습니다: 다시 시도하십시오.</translation>
    </message>
    <message>
        <source>The import was cancelled.</source>
        <translation>가져오기가 취소되었습니다.</translation>
    </message>
    <message>
        <source>it is not a regular file</source>
        <translation>일반 파일이 아닙니다</translation>
    </message>
    <message>
        <source>it is larger than %1</source>
        <translation>%1보다 큽니다</translation>
    </message>
    <message>
        <source>The command is on four lines, and a write of the status registers before it clears the quad-enable bit.</source>
        <translation>명령은 네 라인을 쓰지만 그 앞의 상태 레지스터 쓰기가 Quad Enable 비트를 지웁니다.</translation>
    </message>
</context>
</TS>
