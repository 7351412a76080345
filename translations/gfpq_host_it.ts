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
        <source>Device family:</source>
        <translation>Famiglia di dispositivi:</translation>
    </message>
    <message>
        <source>Configuration mode:</source>
        <translation>Modalità di configurazione:</translation>
    </message>
    <message>
        <source>Configuration device:</source>
        <translation>Dispositivo di configurazione:</translation>
    </message>
    <message>
        <source>Database directory:</source>
        <translation>Cartella del database:</translation>
    </message>
    <message>
        <source>Configuration Device...</source>
        <translation>Dispositivo di configurazione...</translation>
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
</context>
</TS>
