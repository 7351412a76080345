<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ja" sourcelanguage="en">
<context>
    <name>HOST_WINDOW</name>
    <message>
        <source>none</source>
        <translation>なし</translation>
    </message>
    <message>
        <source>Device family:</source>
        <translation>デバイスファミリー:</translation>
    </message>
    <message>
        <source>Configuration mode:</source>
        <translation>コンフィギュレーションモード:</translation>
    </message>
    <message>
        <source>Configuration device:</source>
        <translation>コンフィギュレーションデバイス:</translation>
    </message>
    <message>
        <source>Database directory:</source>
        <translation>データベースのフォルダー:</translation>
    </message>
    <message>
        <source>Configuration Device...</source>
        <translation>コンフィギュレーションデバイス...</translation>
    </message>
    <message>
        <source>&amp;Programmer</source>
        <translation>プログラマー(&amp;P)</translation>
    </message>
    <message>
        <source>&amp;Configuration Device...</source>
        <translation>コンフィギュレーションデバイス(&amp;C)...</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>終了(&amp;Q)</translation>
    </message>
</context>
</TS>
