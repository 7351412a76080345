<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ko" sourcelanguage="en">
<context>
    <name>gfpq_dlg</name>
    <message>
        <source>Configuration Device</source>
        <translation>구성 디바이스</translation>
    </message>
    <message>
        <source>Device family: </source>
        <translation>디바이스 제품군: </translation>
    </message>
    <message>
        <source>Configuration mode: </source>
        <translation>구성 모드: </translation>
    </message>
    <message>
        <source>Custom database directory:</source>
        <translation>사용자 지정 데이터베이스 폴더:</translation>
    </message>
    <message>
        <source>Browse...</source>
        <translation>찾아보기...</translation>
    </message>
    <message>
        <source>Name filter:</source>
        <translation>이름 필터:</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>삭제</translation>
    </message>
    <message>
        <source>Device name: </source>
        <translation>디바이스 이름: </translation>
    </message>
    <message>
        <source>Device ID: </source>
        <translation>디바이스 ID: </translation>
    </message>
    <message>
        <source>Device I/O voltage: </source>
        <translation>디바이스 I/O 전압: </translation>
    </message>
    <message>
        <source>Device density: </source>
        <translation>디바이스 용량: </translation>
    </message>
    <message>
        <source>Total device die:</source>
        <translation>총 다이 수:</translation>
    </message>
    <message>
        <source>Single I/O mode dummy clock: </source>
        <translation>싱글 I/O 모드 더미 클럭 수: </translation>
    </message>
    <message>
        <source>Quad I/O mode dummy clock:</source>
        <translation>쿼드 I/O 모드 더미 클럭 수:</translation>
    </message>
    <message>
        <source>Programming flow template: </source>
        <translation>프로그래밍 흐름 템플릿: </translation>
    </message>
    <message>
        <source>Edit...</source>
        <translation>편집...</translation>
    </message>
    <message>
        <source>Save as template</source>
        <translation>템플릿으로 저장</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>확인</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>취소</translation>
    </message>
    <message>
        <source>Apply</source>
        <translation>적용</translation>
    </message>
    <message>
        <source>%1: flow chart</source>
        <translation>%1: 흐름도</translation>
    </message>
    <message>
        <source>%1: actions</source>
        <translation>%1: 동작</translation>
    </message>
    <message>
        <source>%1: properties of the selected action</source>
        <translation>%1: 선택한 동작의 속성</translation>
    </message>
    <message>
        <source>Devices</source>
        <translation>디바이스</translation>
    </message>
    <message>
        <source>Failed to save flash as %1 tab has invalid property value: 

%2</source>
        <translation>‘%1’ 탭에 잘못된 속성 값이 있어 플래시 디바이스를 저장하지 못했습니다: 

%2</translation>
    </message>
    <message>
        <source>Tempate name &apos;%1&apos; is conflicts with the device name %2.</source>
        <translation>템플릿 이름 ‘%1’이(가) 디바이스 이름 %2과(와) 충돌합니다.</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>이름</translation>
    </message>
    <message>
        <source>Failed to set the custom database directory to </source>
        <translation>사용자 지정 데이터베이스 폴더를 다음으로 설정하지 못했습니다: </translation>
    </message>
    <message>
        <source>Browse</source>
        <translation>찾아보기</translation>
    </message>
    <message>
        <source>i.e. 0xC2 0x20 0x19</source>
        <translation>예: 0xC2 0x20 0x19</translation>
    </message>
    <message>
        <source>Insert</source>
        <translation>삽입</translation>
    </message>
    <message>
        <source>Actions:</source>
        <translation>동작:</translation>
    </message>
    <message>
        <source>Property</source>
        <translation>속성</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>값</translation>
    </message>
</context>
<context>
    <name>gfpq_edit_template_dlg</name>
    <message>
        <source>Edit Templates</source>
        <translation>템플릿 편집</translation>
    </message>
    <message>
        <source>Templates:</source>
        <translation>템플릿:</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>제거</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>닫기</translation>
    </message>
</context>
</TS>
