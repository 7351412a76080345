<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ru" sourcelanguage="en">
<context>
    <name>HOST_WINDOW</name>
    <message>
        <source>none</source>
        <translation>нет</translation>
    </message>
    <message>
        <source>&amp;Programmer</source>
        <translation>&amp;Программатор</translation>
    </message>
    <message>
        <source>&amp;Configuration Device...</source>
        <translation>&amp;Конфигурационное устройство...</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>&amp;Выход</translation>
    </message>
    <message>
        <source>Device &amp;family:</source>
        <translation>Се&amp;мейство устройств:</translation>
    </message>
    <message>
        <source>Configuration &amp;mode:</source>
        <translation>&amp;Режим конфигурирования:</translation>
    </message>
    <message>
        <source>Configuration &amp;device:</source>
        <translation>Конфигурационное &amp;устройство:</translation>
    </message>
    <message>
        <source>Database di&amp;rectory:</source>
        <translation>Каталог &amp;базы данных:</translation>
    </message>
</context>
</TS>
