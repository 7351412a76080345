<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de" sourcelanguage="en">
<context>
    <name>HOST_WINDOW</name>
    <message>
        <source>none</source>
        <translation>keiner</translation>
    </message>
    <message>
        <source>Device family:</source>
        <translation>Bausteinfamilie:</translation>
    </message>
    <message>
        <source>Configuration mode:</source>
        <translation>Konfigurationsmodus:</translation>
    </message>
    <message>
        <source>Configuration device:</source>
        <translation>Konfigurationsbaustein:</translation>
    </message>
    <message>
        <source>Database directory:</source>
        <translation>Datenbankverzeichnis:</translation>
    </message>
    <message>
        <source>Configuration Device...</source>
        <translation>Konfigurationsbaustein...</translation>
    </message>
    <message>
        <source>&amp;Programmer</source>
        <translation>&amp;Programmiergerät</translation>
    </message>
    <message>
        <source>&amp;Configuration Device...</source>
        <translation>&amp;Konfigurationsbaustein...</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>&amp;Beenden</translation>
    </message>
</context>
</TS>
