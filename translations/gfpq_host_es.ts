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
    <message>
        <source>Device &amp;family:</source>
        <translation>&amp;Familia de dispositivos:</translation>
    </message>
    <message>
        <source>Configuration &amp;mode:</source>
        <translation>&amp;Modo de configuración:</translation>
    </message>
    <message>
        <source>Configuration &amp;device:</source>
        <translation>Disposi&amp;tivo de configuración:</translation>
    </message>
    <message>
        <source>Database di&amp;rectory:</source>
        <translation>Directorio de la &amp;base de datos:</translation>
    </message>
</context>
</TS>
