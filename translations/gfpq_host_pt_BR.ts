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
    <message>
        <source>Device &amp;family:</source>
        <translation>&amp;Família de dispositivos:</translation>
    </message>
    <message>
        <source>Configuration &amp;mode:</source>
        <translation>&amp;Modo de configuração:</translation>
    </message>
    <message>
        <source>Configuration &amp;device:</source>
        <translation>Disposi&amp;tivo de configuração:</translation>
    </message>
    <message>
        <source>Database di&amp;rectory:</source>
        <translation>Diretório do &amp;banco de dados:</translation>
    </message>
</context>
</TS>
