<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="es" sourcelanguage="en">
<context>
    <name>HOST_WINDOW</name>
    <message>
        <source>none</source>
        <translation>ninguno</translation>
    </message>
    <message>
        <source>Device family:</source>
        <translation>Familia de dispositivos:</translation>
    </message>
    <message>
        <source>Configuration mode:</source>
        <translation>Modo de configuración:</translation>
    </message>
    <message>
        <source>Configuration device:</source>
        <translation>Dispositivo de configuración:</translation>
    </message>
    <message>
        <source>Database directory:</source>
        <translation>Directorio de la base de datos:</translation>
    </message>
    <message>
        <source>Configuration Device...</source>
        <translation>Dispositivo de configuración...</translation>
    </message>
    <message>
        <source>&amp;Programmer</source>
        <translation>&amp;Programador</translation>
    </message>
    <message>
        <source>&amp;Configuration Device...</source>
        <translation>&amp;Dispositivo de configuración...</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>&amp;Salir</translation>
    </message>
</context>
</TS>
