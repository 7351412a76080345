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
    <message>
        <source>Device &amp;family:</source>
        <translation>デバイスファミリー(&amp;F):</translation>
    </message>
    <message>
        <source>Configuration &amp;mode:</source>
        <translation>コンフィギュレーションモード(&amp;M):</translation>
    </message>
    <message>
        <source>Configuration &amp;device:</source>
        <translation>コンフィギュレーションデバイス(&amp;D):</translation>
    </message>
    <message>
        <source>Database di&amp;rectory:</source>
        <translation>データベースのフォルダー(&amp;R):</translation>
    </message>
</context>
</TS>
