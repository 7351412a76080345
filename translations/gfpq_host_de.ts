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
    <message>
        <source>Device &amp;family:</source>
        <translation>Baustein&amp;familie:</translation>
    </message>
    <message>
        <source>Configuration &amp;mode:</source>
        <translation>Konfigurations&amp;modus:</translation>
    </message>
    <message>
        <source>Configuration &amp;device:</source>
        <translation>Konfigurationsbau&amp;stein:</translation>
    </message>
    <message>
        <source>Database di&amp;rectory:</source>
        <translation>Datenbank&amp;verzeichnis:</translation>
    </message>
</context>
</TS>
