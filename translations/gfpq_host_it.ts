<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="it" sourcelanguage="en">
<context>
    <name>HOST_WINDOW</name>
    <message>
        <source>none</source>
        <translation>nessuno</translation>
    </message>
    <message>
        <source>&amp;Programmer</source>
        <translation>&amp;Programmatore</translation>
    </message>
    <message>
        <source>&amp;Configuration Device...</source>
        <translation>&amp;Dispositivo di configurazione...</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>&amp;Esci</translation>
    </message>
    <message>
        <source>Device &amp;family:</source>
        <translation>&amp;Famiglia di dispositivi:</translation>
    </message>
    <message>
        <source>Configuration &amp;mode:</source>
        <translation>&amp;Modalità di configurazione:</translation>
    </message>
    <message>
        <source>Configuration &amp;device:</source>
        <translation>Disposi&amp;tivo di configurazione:</translation>
    </message>
    <message>
        <source>Database di&amp;rectory:</source>
        <translation>&amp;Cartella del database:</translation>
    </message>
</context>
</TS>
