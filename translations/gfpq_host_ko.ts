<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ko" sourcelanguage="en">
<context>
    <name>HOST_WINDOW</name>
    <message>
        <source>none</source>
        <translation>없음</translation>
    </message>
    <message>
        <source>&amp;Programmer</source>
        <translation>프로그래머(&amp;P)</translation>
    </message>
    <message>
        <source>&amp;Configuration Device...</source>
        <translation>구성 디바이스(&amp;C)...</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>종료(&amp;Q)</translation>
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
</context>
</TS>
