<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ru" sourcelanguage="en">
<context>
    <name>gfpq_dlg</name>
    <message>
        <source>Configuration Device</source>
        <translation>Конфигурационное ПЗУ</translation>
    </message>
    <message>
        <source>Device family: </source>
        <translation>Семейство микросхем: </translation>
    </message>
    <message>
        <source>Configuration mode: </source>
        <translation>Режим конфигурирования: </translation>
    </message>
    <message>
        <source>Custom database directory:</source>
        <translation>Каталог пользовательской базы данных:</translation>
    </message>
    <message>
        <source>Browse...</source>
        <translation>Обзор...</translation>
    </message>
    <message>
        <source>Name filter:</source>
        <translation>Фильтр по имени:</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Удалить</translation>
    </message>
    <message>
        <source>Device name: </source>
        <translation>Имя микросхемы: </translation>
    </message>
    <message>
        <source>Device ID: </source>
        <translation>ID микросхемы: </translation>
    </message>
    <message>
        <source>Device I/O voltage: </source>
        <translation>Напряжение ввода-вывода: </translation>
    </message>
    <message>
        <source>Device density: </source>
        <translation>Ёмкость микросхемы: </translation>
    </message>
    <message>
        <source>Total device die:</source>
        <translation>Всего кристаллов:</translation>
    </message>
    <message>
        <source>Single I/O mode dummy clock: </source>
        <translation>Холостые такты (Single I/O): </translation>
    </message>
    <message>
        <source>Quad I/O mode dummy clock:</source>
        <translation>Холостые такты (Quad I/O):</translation>
    </message>
    <message>
        <source>Programming flow template: </source>
        <translation>Шаблон программирования: </translation>
    </message>
    <message>
        <source>Edit...</source>
        <translation>Изменить...</translation>
    </message>
    <message>
        <source>Save as template</source>
        <translation>Сохранить как шаблон</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Отмена</translation>
    </message>
    <message>
        <source>Apply</source>
        <translation>Применить</translation>
    </message>
    <message>
        <source>%1: flow chart</source>
        <translation>%1: блок-схема</translation>
    </message>
    <message>
        <source>%1: actions</source>
        <translation>%1: действия</translation>
    </message>
    <message>
        <source>%1: properties of the selected action</source>
        <translation>%1: свойства выбранного действия</translation>
    </message>
    <message>
        <source>Devices</source>
        <translation>Микросхемы</translation>
    </message>
    <message>
        <source>Failed to save flash as %1 tab has invalid property value: 

%2</source>
        <translation>Не удалось сохранить микросхему флеш-памяти, так как на вкладке «%1» указано недопустимое значение свойства: 

%2</translation>
    </message>
    <message>
        <source>Tempate name &apos;%1&apos; is conflicts with the device name %2.</source>
        <translation>Имя шаблона «%1» совпадает с именем микросхемы %2.</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Имя</translation>
    </message>
    <message>
        <source>Failed to set the custom database directory to </source>
        <translation>Не удалось назначить каталогом пользовательской базы данных </translation>
    </message>
    <message>
        <source>Browse</source>
        <translation>Обзор</translation>
    </message>
    <message>
        <source>i.e. 0xC2 0x20 0x19</source>
        <translation>например, 0xC2 0x20 0x19</translation>
    </message>
    <message>
        <source>Insert</source>
        <translation>Добавить действие</translation>
    </message>
    <message>
        <source>Actions:</source>
        <translation>Действия:</translation>
    </message>
    <message>
        <source>Property</source>
        <translation>Свойство</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>Значение</translation>
    </message>
</context>
<context>
    <name>gfpq_edit_template_dlg</name>
    <message>
        <source>Edit Templates</source>
        <translation>Изменение шаблонов</translation>
    </message>
    <message>
        <source>Templates:</source>
        <translation>Шаблоны:</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Удалить</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Закрыть</translation>
    </message>
</context>
</TS>
