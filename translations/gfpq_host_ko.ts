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
        <source>Device family:</source>
        <translation>디바이스 제품군:</translation>
    </message>
    <message>
        <source>Configuration mode:</source>
        <translation>구성 모드:</translation>
    </message>
    <message>
        <source>Configuration device:</source>
        <translation>구성 디바이스:</translation>
    </message>
    <message>
        <source>Database directory:</source>
        <translation>데이터베이스 폴더:</translation>
    </message>
    <message>
        <source>Configuration Device...</source>
        <translation>구성 디바이스...</translation>
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
</context>
</TS>
