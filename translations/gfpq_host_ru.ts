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
        <source>Device family:</source>
        <translation>Семейство устройств:</translation>
    </message>
    <message>
        <source>Configuration mode:</source>
        <translation>Режим конфигурирования:</translation>
    </message>
    <message>
        <source>Configuration device:</source>
        <translation>Конфигурационное устройство:</translation>
    </message>
    <message>
        <source>Database directory:</source>
        <translation>Каталог базы данных:</translation>
    </message>
    <message>
        <source>Configuration Device...</source>
        <translation>Конфигурационное устройство...</translation>
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
</context>
</TS>
