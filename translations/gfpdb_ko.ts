<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ko" sourcelanguage="en">
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
</context>
</TS>
