<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="pt_BR" sourcelanguage="en">
<context>
    <name>HOST_WINDOW</name>
    <message>
        <source>none</source>
        <translation>nenhum</translation>
    </message>
    <message>
        <source>Device family:</source>
        <translation>Família de dispositivos:</translation>
    </message>
    <message>
        <source>Configuration mode:</source>
        <translation>Modo de configuração:</translation>
    </message>
    <message>
        <source>Configuration device:</source>
        <translation>Dispositivo de configuração:</translation>
    </message>
    <message>
        <source>Database directory:</source>
        <translation>Diretório do banco de dados:</translation>
    </message>
    <message>
        <source>Configuration Device...</source>
        <translation>Dispositivo de configuração...</translation>
    </message>
    <message>
        <source>&amp;Programmer</source>
        <translation>&amp;Programador</translation>
    </message>
    <message>
        <source>&amp;Configuration Device...</source>
        <translation>&amp;Dispositivo de configuração...</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>&amp;Sair</translation>
    </message>
</context>
</TS>
