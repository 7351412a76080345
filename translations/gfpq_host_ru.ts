<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ru" sourcelanguage="en">
<context>
    <name>BRING_BACK_DIALOG</name>
    <message>
        <source>Under &amp;another name:</source>
        <translation>Под &amp;другим именем:</translation>
    </message>
    <message>
        <source>Bring Back</source>
        <translation>Восстановление</translation>
    </message>
    <message>
        <source>New name</source>
        <translation>Новое имя</translation>
    </message>
    <message>
        <source>The template &quot;%1&quot; becomes again what it was until %2 (state %3).</source>
        <translation>Шаблон «%1» снова станет таким, каким был до %2 (состояние %3).</translation>
    </message>
    <message>
        <source>The device &quot;%1&quot; becomes again what it was until %2 (state %3).</source>
        <translation>Микросхема «%1» снова станет такой, какой была до %2 (состояние %3).</translation>
    </message>
    <message>
        <source>&amp;Bring Back</source>
        <translation>&amp;Восстановить</translation>
    </message>
    <message>
        <source>&amp;Replace it; it goes into the history</source>
        <translation>&amp;Заменить; текущее состояние попадёт в историю</translation>
    </message>
    <message>
        <source>&amp;Under its name</source>
        <translation>&amp;Под своим именем</translation>
    </message>
    <message>
        <source>The current &quot;%1&quot; was saved on %2.</source>
        <translation>Текущее состояние «%1» сохранено %2.</translation>
    </message>
    <message>
        <source>The current &quot;%1&quot; was saved on %2 by %3.</source>
        <translation>Текущее состояние «%1» сохранено %2, пользователь: %3.</translation>
    </message>
    <message>
        <source>A device has this name now. A template cannot have the name of a device: give it another one.</source>
        <translation>Теперь это имя носит микросхема. У шаблона не может быть имени микросхемы: дайте ему другое.</translation>
    </message>
    <message>
        <source>A template has this name now. A device cannot have the name of a template: give it another one.</source>
        <translation>Теперь это имя носит шаблон. У микросхемы не может быть имени шаблона: дайте ей другое.</translation>
    </message>
    <message>
        <source>Enter the new name.</source>
        <translation>Введите новое имя.</translation>
    </message>
</context>
<context>
    <name>CHART_SAVER</name>
    <message>
        <source>PDF document (*.pdf)</source>
        <translation>Документ PDF (*.pdf)</translation>
    </message>
    <message>
        <source>SVG picture (*.svg)</source>
        <translation>Рисунок SVG (*.svg)</translation>
    </message>
    <message>
        <source>Save Flow Charts</source>
        <translation>Сохранение блок-схем</translation>
    </message>
    <message>
        <source>The file %1 cannot be written: %2</source>
        <translation>Не удаётся записать файл %1: %2</translation>
    </message>
</context>
<context>
    <name>COMPARE_DIALOG</name>
    <message>
        <source>Compare</source>
        <translation>Сравнение</translation>
    </message>
    <message>
        <source>There are no differences.</source>
        <translation>Различий нет.</translation>
    </message>
    <message>
        <source>Differences: %1</source>
        <translation>Различия: %1</translation>
    </message>
    <message>
        <source>&amp;Only differences</source>
        <translation>&amp;Только различия</translation>
    </message>
    <message>
        <source>&amp;Previous Difference</source>
        <translation>&amp;Предыдущее различие</translation>
    </message>
    <message>
        <source>&amp;Next Difference</source>
        <translation>&amp;Следующее различие</translation>
    </message>
    <message>
        <source>Copy as &amp;Diff</source>
        <translation>&amp;Копировать как diff</translation>
    </message>
    <message>
        <source>%1 and %2</source>
        <translation>%1 и %2</translation>
    </message>
    <message>
        <source>%1: &quot;%2&quot; and &quot;%3&quot;</source>
        <translation>%1: «%2» и «%3»</translation>
    </message>
</context>
<context>
    <name>COMPARE_MODEL</name>
    <message>
        <source>Different</source>
        <translation>Различается</translation>
    </message>
    <message>
        <source>Only on the left</source>
        <translation>Только слева</translation>
    </message>
    <message>
        <source>Only on the right</source>
        <translation>Только справа</translation>
    </message>
    <message>
        <source>The same</source>
        <translation>Совпадает</translation>
    </message>
</context>
<context>
    <name>CONNECTION_PANEL</name>
    <message>
        <source>Emulated chip</source>
        <translation>Эмулируемая микросхема</translation>
    </message>
    <message>
        <source>Network (serprog)</source>
        <translation>Сеть (serprog)</translation>
    </message>
    <message>
        <source>Serial line (serprog)</source>
        <translation>Последовательный порт (serprog)</translation>
    </message>
    <message>
        <source>De&amp;tect</source>
        <translation>&amp;Определить</translation>
    </message>
    <message>
        <source>Co&amp;nnection:</source>
        <translation>&amp;Подключение:</translation>
    </message>
    <message>
        <source>none: in memory</source>
        <translation>нет: в памяти</translation>
    </message>
    <message>
        <source>Browse...</source>
        <translation>Обзор...</translation>
    </message>
    <message>
        <source>&amp;Keep contents in:</source>
        <translation>&amp;Хранить содержимое в:</translation>
    </message>
    <message>
        <source>Port:</source>
        <translation>Порт:</translation>
    </message>
    <message>
        <source>S&amp;erial line:</source>
        <translation>Пос&amp;ледовательный порт:</translation>
    </message>
    <message>
        <source>Baud rate:</source>
        <translation>Скорость (бод):</translation>
    </message>
    <message>
        <source>Contents of the Emulated Chip</source>
        <translation>Содержимое эмулируемой микросхемы</translation>
    </message>
    <message>
        <source>The connection is not complete.</source>
        <translation>Подключение указано не полностью.</translation>
    </message>
    <message>
        <source>the programmer&apos;s own</source>
        <translation>собственная программатора</translation>
    </message>
    <message>
        <source>Clock (Hz):</source>
        <translation>Частота (Гц):</translation>
    </message>
    <message>
        <source>The clock is not a number of hertz.</source>
        <translation>Частота — не число герц.</translation>
    </message>
    <message>
        <source>H&amp;ost:</source>
        <translation>Уз&amp;ел:</translation>
    </message>
</context>
<context>
    <name>COPY_DIALOG</name>
    <message>
        <source>Duplicate</source>
        <translation>Дублирование</translation>
    </message>
    <message>
        <source>&amp;Copy of:</source>
        <translation>&amp;Копия:</translation>
    </message>
    <message>
        <source>&amp;New name:</source>
        <translation>&amp;Новое имя:</translation>
    </message>
    <message>
        <source>&amp;Duplicate</source>
        <translation>&amp;Дублировать</translation>
    </message>
    <message>
        <source>Choose the device to copy.</source>
        <translation>Выберите микросхему для копирования.</translation>
    </message>
</context>
<context>
    <name>DATABASE_DEVICE_MENU</name>
    <message>
        <source>&amp;Open in the Configuration Device Dialog</source>
        <translation>&amp;Открыть в диалоге конфигурационного ПЗУ</translation>
    </message>
    <message>
        <source>D&amp;uplicate...</source>
        <translation>&amp;Дублировать...</translation>
    </message>
    <message>
        <source>&amp;Delete</source>
        <translation>&amp;Удалить</translation>
    </message>
    <message>
        <source>&amp;Compare...</source>
        <translation>&amp;Сравнить...</translation>
    </message>
    <message>
        <source>Save Flow C&amp;harts...</source>
        <translation>Со&amp;хранить блок-схемы...</translation>
    </message>
</context>
<context>
    <name>DATABASE_EDIT_MENU</name>
    <message>
        <source>&amp;Undo</source>
        <translation>&amp;Отменить действие</translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation>&amp;Копировать</translation>
    </message>
    <message>
        <source>Select &amp;All</source>
        <translation>&amp;Выделить всё</translation>
    </message>
    <message>
        <source>&amp;Find</source>
        <translation>&amp;Найти</translation>
    </message>
    <message>
        <source>Delete &quot;%1&quot;</source>
        <translation>Удалить «%1»</translation>
    </message>
    <message>
        <source>Delete, devices: %1</source>
        <translation>Удалить, микросхем: %1</translation>
    </message>
</context>
<context>
    <name>DATABASE_MENU</name>
    <message>
        <source>&amp;Open Directory...</source>
        <translation>&amp;Открыть каталог...</translation>
    </message>
    <message>
        <source>&amp;Recent Directories</source>
        <translation>&amp;Недавние каталоги</translation>
    </message>
    <message>
        <source>Re&amp;fresh</source>
        <translation>О&amp;бновить</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>&amp;Закрыть</translation>
    </message>
    <message>
        <source>&amp;Import...</source>
        <translation>&amp;Импорт...</translation>
    </message>
    <message>
        <source>&amp;Export...</source>
        <translation>&amp;Экспорт...</translation>
    </message>
</context>
<context>
    <name>DATABASE_WINDOW</name>
    <message>
        <source>Devices</source>
        <translation>Микросхемы</translation>
    </message>
    <message>
        <source>Da&amp;tabase</source>
        <translation>База &amp;данных</translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <translation>П&amp;равка</translation>
    </message>
    <message>
        <source>&amp;Device</source>
        <translation>&amp;Микросхема</translation>
    </message>
    <message>
        <source>Device Database - %1</source>
        <translation>База данных микросхем - %1</translation>
    </message>
    <message>
        <source>Open Directory</source>
        <translation>Открытие каталога</translation>
    </message>
    <message>
        <source>The directory is used now, but could not be stored in the settings.</source>
        <translation>Каталог теперь используется, но сохранить его в настройках не удалось.</translation>
    </message>
    <message>
        <source>The device &quot;%1&quot; does not exist any more.</source>
        <translation>Микросхема «%1» больше не существует.</translation>
    </message>
    <message>
        <source>The device &quot;%1&quot; is stored.</source>
        <translation>Микросхема «%1» сохранена.</translation>
    </message>
    <message>
        <source>The device &quot;%1&quot; is deleted. Ctrl+Z brings it back.</source>
        <translation>Микросхема «%1» удалена. Ctrl+Z вернёт её.</translation>
    </message>
    <message>
        <source>Devices deleted: %1. Ctrl+Z brings them back.</source>
        <translation>Удалено микросхем: %1. Ctrl+Z вернёт их.</translation>
    </message>
    <message>
        <source>The device &quot;%1&quot; is back.</source>
        <translation>Микросхема «%1» возвращена.</translation>
    </message>
    <message>
        <source>Devices brought back: %1</source>
        <translation>Возвращено микросхем: %1</translation>
    </message>
    <message>
        <source>History</source>
        <translation>История</translation>
    </message>
    <message>
        <source>The flow charts are in %1.</source>
        <translation>Блок-схемы находятся в файле %1.</translation>
    </message>
    <message>
        <source>Files of Records</source>
        <translation>Файлы записей</translation>
    </message>
    <message>
        <source>Records</source>
        <translation>Записи</translation>
    </message>
    <message>
        <source>Devices are being deleted.</source>
        <translation>Микросхемы удаляются.</translation>
    </message>
    <message>
        <source>Devices deleted: %1 of %2. Ctrl+Z brings them back.</source>
        <translation>Удалено микросхем: %1 из %2. Ctrl+Z вернёт их.</translation>
    </message>
    <message>
        <source>Devices are being brought back.</source>
        <translation>Микросхемы возвращаются.</translation>
    </message>
    <message>
        <source>Devices brought back: %1 of %2. Ctrl+Z goes on.</source>
        <translation>Возвращено микросхем: %1 из %2. Ctrl+Z продолжит.</translation>
    </message>
</context>
<context>
    <name>DATA_PAGE</name>
    <message>
        <source>Go to:</source>
        <translation>Перейти к:</translation>
    </message>
    <message>
        <source>Previous Difference</source>
        <translation>Предыдущее отличие</translation>
    </message>
    <message>
        <source>Next Difference</source>
        <translation>Следующее отличие</translation>
    </message>
    <message>
        <source>Save As...</source>
        <translation>Сохранить как...</translation>
    </message>
    <message>
        <source>Nothing was read. Check Examine to read the chip.</source>
        <translation>Ничего не прочитано. Чтобы прочитать микросхему, отметьте Examine.</translation>
    </message>
    <message>
        <source>%1 was read.</source>
        <translation>Прочитано: %1.</translation>
    </message>
    <message>
        <source>%1 was read. It is what the file has.</source>
        <translation>Прочитано: %1. Совпадает с файлом.</translation>
    </message>
    <message>
        <source>%1 was read. Bytes that differ from the file: %2</source>
        <translation>Прочитано: %1. Байтов, отличающихся от файла: %2</translation>
    </message>
    <message>
        <source>Save What Was Read</source>
        <translation>Сохранение прочитанного</translation>
    </message>
    <message>
        <source>The file %1 cannot be written: %2</source>
        <translation>Не удаётся записать файл %1: %2</translation>
    </message>
    <message>
        <source>%1: %2, expected %3</source>
        <translation>%1: %2, ожидалось %3</translation>
    </message>
    <message>
        <source>Bytes that were read</source>
        <translation>Прочитанные байты</translation>
    </message>
    <message>
        <source>The file %1 keeps the contents of the emulated chip. Choose another one.</source>
        <translation>В файле %1 хранится содержимое эмулируемой микросхемы. Выберите другой.</translation>
    </message>
</context>
<context>
    <name>DETECTED_DIALOG</name>
    <message>
        <source>Detect</source>
        <translation>Определение</translation>
    </message>
    <message>
        <source>The chip has the ID %1. Devices with this ID:</source>
        <translation>ID микросхемы: %1. Микросхемы с этим ID:</translation>
    </message>
</context>
<context>
    <name>DEVICE_MODEL</name>
    <message>
        <source>all</source>
        <translation>все</translation>
    </message>
    <message>
        <source>Built in</source>
        <translation>Встроенная</translation>
    </message>
    <message>
        <source>Own</source>
        <translation>Своя</translation>
    </message>
    <message>
        <source>Of own devices they are read from the flows when they are shown for the first time. Those not read yet are sorted as the highest.</source>
        <translation>Для своих микросхем читаются из алгоритмов при первом показе. Ещё не прочитанные при сортировке считаются наибольшими.</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Имя</translation>
    </message>
    <message>
        <source>Maker</source>
        <translation>Изготовитель</translation>
    </message>
    <message>
        <source>Device ID</source>
        <translation>ID микросхемы</translation>
    </message>
    <message>
        <source>Density</source>
        <translation>Ёмкость</translation>
    </message>
    <message>
        <source>Voltage</source>
        <translation>Напряжение</translation>
    </message>
    <message>
        <source>Address bytes</source>
        <translation>Байты адреса</translation>
    </message>
    <message>
        <source>Dies</source>
        <translation>Кристаллы</translation>
    </message>
    <message>
        <source>Device family</source>
        <translation>Семейство микросхем</translation>
    </message>
    <message>
        <source>Mode</source>
        <translation>Режим</translation>
    </message>
    <message>
        <source>Kind</source>
        <translation>Вид</translation>
    </message>
    <message>
        <source>Changed</source>
        <translation>Изменено</translation>
    </message>
    <message>
        <source>Changed by</source>
        <translation>Кем изменена</translation>
    </message>
</context>
<context>
    <name>DEVICE_PAGE</name>
    <message>
        <source>&amp;Find:</source>
        <translation>&amp;Найти:</translation>
    </message>
    <message>
        <source>Name, maker, density, voltage or device ID</source>
        <translation>Имя, изготовитель, ёмкость, напряжение или ID микросхемы</translation>
    </message>
    <message>
        <source>Devices</source>
        <translation>Микросхемы</translation>
    </message>
    <message>
        <source>%1 of %2 devices</source>
        <translation>Микросхем: %1 из %2</translation>
    </message>
</context>
<context>
    <name>DEVICE_PANEL</name>
    <message>
        <source>none</source>
        <translation>не выбрано</translation>
    </message>
    <message>
        <source>Device &amp;family:</source>
        <translation>Се&amp;мейство микросхем:</translation>
    </message>
    <message>
        <source>Configuration &amp;mode:</source>
        <translation>&amp;Режим конфигурирования:</translation>
    </message>
    <message>
        <source>Configuration &amp;device:</source>
        <translation>Ко&amp;нфигурационное ПЗУ:</translation>
    </message>
    <message>
        <source>Database di&amp;rectory:</source>
        <translation>Каталог &amp;базы данных:</translation>
    </message>
    <message>
        <source>&amp;Configuration Device...</source>
        <translation>&amp;Конфигурационное ПЗУ...</translation>
    </message>
</context>
<context>
    <name>DEVICE_PROGRESS</name>
    <message>
        <source>Cancel</source>
        <translation>Отмена</translation>
    </message>
</context>
<context>
    <name>DEVICE_SOURCES</name>
    <message>
        <source>The device &quot;%1&quot; does not exist.</source>
        <translation>Микросхема «%1» не существует.</translation>
    </message>
</context>
<context>
    <name>EXPORT_DIALOG</name>
    <message>
        <source>Export</source>
        <translation>Экспорт</translation>
    </message>
    <message>
        <source>Selected records: %1</source>
        <translation>Выбранные записи: %1</translation>
    </message>
    <message>
        <source>All stored devices and templates</source>
        <translation>Все сохранённые микросхемы и шаблоны</translation>
    </message>
    <message>
        <source>All built-in devices</source>
        <translation>Все встроенные микросхемы</translation>
    </message>
    <message>
        <source>One JSON file</source>
        <translation>Один файл JSON</translation>
    </message>
    <message>
        <source>One JSON file for each record</source>
        <translation>Файл JSON для каждой записи</translation>
    </message>
    <message>
        <source>CSV list of the devices, without flows</source>
        <translation>Список микросхем CSV, без алгоритмов</translation>
    </message>
    <message>
        <source>For a &amp;spreadsheet (cannot be imported again)</source>
        <translation>Для &amp;табличного редактора (нельзя импортировать снова)</translation>
    </message>
    <message>
        <source>Texts that a spreadsheet would run as formulas get an apostrophe.</source>
        <translation>Тексты, которые табличный редактор выполнил бы как формулы, получают апостроф.</translation>
    </message>
    <message>
        <source>&amp;Browse...</source>
        <translation>Об&amp;зор...</translation>
    </message>
    <message>
        <source>&amp;Records:</source>
        <translation>Запис&amp;и:</translation>
    </message>
    <message>
        <source>&amp;Format:</source>
        <translation>&amp;Формат:</translation>
    </message>
    <message>
        <source>&amp;To:</source>
        <translation>&amp;Куда:</translation>
    </message>
    <message>
        <source>&amp;Export</source>
        <translation>&amp;Экспортировать</translation>
    </message>
    <message>
        <source>Progress</source>
        <translation>Ход выполнения</translation>
    </message>
    <message>
        <source>Directory for the Files</source>
        <translation>Каталог для файлов</translation>
    </message>
    <message>
        <source>File for the Records</source>
        <translation>Файл для записей</translation>
    </message>
    <message>
        <source>These files already exist:</source>
        <translation>Эти файлы уже существуют:</translation>
    </message>
    <message>
        <source>Re&amp;place</source>
        <translation>З&amp;аменить</translation>
    </message>
    <message>
        <source>Enter where the records go.</source>
        <translation>Укажите, куда записать данные.</translation>
    </message>
    <message>
        <source>There is nothing to export.</source>
        <translation>Нечего экспортировать.</translation>
    </message>
    <message>
        <source>Exported records: %1, into %2</source>
        <translation>Экспортировано записей: %1, в %2</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Закрыть</translation>
    </message>
    <message>
        <source>These cannot be read, and are not exported:</source>
        <translation>Эти записи не читаются и не экспортируются:</translation>
    </message>
</context>
<context>
    <name>FILE_PANEL</name>
    <message>
        <source>Bro&amp;wse...</source>
        <translation>Об&amp;зор...</translation>
    </message>
    <message>
        <source>No file. A file can be dropped on the window.</source>
        <translation>Нет файла. Его можно перетащить в окно.</translation>
    </message>
    <message>
        <source>F&amp;ile:</source>
        <translation>Ф&amp;айл:</translation>
    </message>
    <message>
        <source>File &amp;begins at:</source>
        <translation>Начало &amp;файла:</translation>
    </message>
    <message>
        <source>The file is being read.</source>
        <translation>Файл читается.</translation>
    </message>
    <message>
        <source>The file cannot be read: %1</source>
        <translation>Не удаётся прочитать файл: %1</translation>
    </message>
    <message>
        <source>%1 bytes, CRC-32 %2</source>
        <translation>%1 байт, CRC-32 %2</translation>
    </message>
    <message>
        <source>File to Program</source>
        <translation>Файл для программирования</translation>
    </message>
</context>
<context>
    <name>FILE_SUMMARY</name>
    <message>
        <source>It is not a file.</source>
        <translation>Это не файл.</translation>
    </message>
</context>
<context>
    <name>HELP_MENU</name>
    <message>
        <source>&amp;Help</source>
        <translation>&amp;Справка</translation>
    </message>
    <message>
        <source>&amp;User Guide</source>
        <translation>&amp;Руководство пользователя</translation>
    </message>
    <message>
        <source>Device &amp;Database</source>
        <translation>&amp;База данных микросхем</translation>
    </message>
    <message>
        <source>&amp;Programming</source>
        <translation>&amp;Программирование</translation>
    </message>
    <message>
        <source>&amp;Flows</source>
        <translation>&amp;Алгоритмы</translation>
    </message>
    <message>
        <source>&amp;Command Line</source>
        <translation>&amp;Командная строка</translation>
    </message>
    <message>
        <source>&amp;About</source>
        <translation>&amp;О программе</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Справка</translation>
    </message>
    <message>
        <source>The guide is not installed. It would be here:
%1</source>
        <translation>Руководство не установлено. Оно было бы здесь:
%1</translation>
    </message>
    <message>
        <source>No program shows this guide. Open it with a viewer or an editor:
%1</source>
        <translation>Нет программы для показа этого руководства. Откройте его в программе просмотра или редакторе:
%1</translation>
    </message>
    <message>
        <source>%1 %2

Licence: MIT
Qt %3

The built-in devices are public facts about flash parts. The names of parts belong to their makers.</source>
        <translation>%1 %2

Лицензия: MIT
Qt %3

Встроенные микросхемы — общедоступные сведения о микросхемах флеш-памяти. Их названия принадлежат изготовителям.</translation>
    </message>
    <message>
        <source>About</source>
        <translation>О программе</translation>
    </message>
</context>
<context>
    <name>HISTORY_MENU</name>
    <message>
        <source>Compare with the &amp;Next State</source>
        <translation>Сравнить со &amp;следующим состоянием</translation>
    </message>
    <message>
        <source>Compare with the &amp;Previous State</source>
        <translation>Сравнить с &amp;предыдущим состоянием</translation>
    </message>
    <message>
        <source>Compare with the &amp;Current State</source>
        <translation>Сравнить с &amp;текущим состоянием</translation>
    </message>
    <message>
        <source>Compare the Two &amp;Selected States</source>
        <translation>Сравнить &amp;два выбранных состояния</translation>
    </message>
</context>
<context>
    <name>HISTORY_MODEL</name>
    <message>
        <source>Changed</source>
        <translation>Изменено</translation>
    </message>
    <message>
        <source>Deleted</source>
        <translation>Удалено</translation>
    </message>
    <message>
        <source>Put back</source>
        <translation>Возвращено</translation>
    </message>
    <message>
        <source>This state was replaced by another one.</source>
        <translation>Это состояние было заменено другим.</translation>
    </message>
    <message>
        <source>This state was deleted.</source>
        <translation>Это состояние было удалено.</translation>
    </message>
    <message>
        <source>This state was deleted, and put back because it could not be replaced.</source>
        <translation>Это состояние было удалено и возвращено, так как его не удалось заменить.</translation>
    </message>
    <message>
        <source>Template</source>
        <translation>Шаблон</translation>
    </message>
    <message>
        <source>Device</source>
        <translation>Микросхема</translation>
    </message>
    <message>
        <source>When</source>
        <translation>Когда</translation>
    </message>
    <message>
        <source>User</source>
        <translation>Пользователь</translation>
    </message>
    <message>
        <source>Change</source>
        <translation>Изменение</translation>
    </message>
    <message>
        <source>Kind</source>
        <translation>Вид</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Имя</translation>
    </message>
    <message>
        <source>Family</source>
        <translation>Семейство</translation>
    </message>
    <message>
        <source>Mode</source>
        <translation>Режим</translation>
    </message>
    <message>
        <source>No.</source>
        <translation>№</translation>
    </message>
</context>
<context>
    <name>HISTORY_PAGE</name>
    <message>
        <source>&amp;Compare</source>
        <translation>Ср&amp;авнить</translation>
    </message>
    <message>
        <source>&amp;Bring Back...</source>
        <translation>В&amp;осстановить...</translation>
    </message>
    <message>
        <source>Devices and templates</source>
        <translation>Микросхемы и шаблоны</translation>
    </message>
    <message>
        <source>Devices</source>
        <translation>Микросхемы</translation>
    </message>
    <message>
        <source>Templates</source>
        <translation>Шаблоны</translation>
    </message>
    <message>
        <source>History</source>
        <translation>История</translation>
    </message>
    <message>
        <source>Na&amp;me:</source>
        <translation>&amp;Имя:</translation>
    </message>
    <message>
        <source>&amp;User:</source>
        <translation>&amp;Пользователь:</translation>
    </message>
    <message>
        <source>&amp;Kind:</source>
        <translation>&amp;Вид:</translation>
    </message>
    <message>
        <source>States: %1, searching...</source>
        <translation>Состояния: %1, идёт поиск...</translation>
    </message>
    <message>
        <source>States: more than %1</source>
        <translation>Состояния: более %1</translation>
    </message>
    <message>
        <source>States: %1</source>
        <translation>Состояния: %1</translation>
    </message>
    <message>
        <source>There is no state before this one.</source>
        <translation>До этого состояния других не было.</translation>
    </message>
    <message>
        <source>There is no state after this one: it was deleted or renamed.</source>
        <translation>После этого состояния других не было: запись удалена или переименована.</translation>
    </message>
    <message>
        <source>There is no current state: it was deleted or renamed.</source>
        <translation>Текущего состояния нет: запись удалена или переименована.</translation>
    </message>
    <message>
        <source>A state was removed from the history.</source>
        <translation>Состояние удалено из истории.</translation>
    </message>
</context>
<context>
    <name>IMPORT_DIALOG</name>
    <message>
        <source>Import: %1</source>
        <translation>Импорт: %1</translation>
    </message>
    <message>
        <source>Import</source>
        <translation>Импорт</translation>
    </message>
    <message>
        <source>As in the files</source>
        <translation>Как в файлах</translation>
    </message>
    <message>
        <source>&amp;Replace records that differ</source>
        <translation>&amp;Заменять отличающиеся записи</translation>
    </message>
    <message>
        <source>Device &amp;family:</source>
        <translation>Се&amp;мейство микросхем:</translation>
    </message>
    <message>
        <source>Configuration &amp;mode:</source>
        <translation>&amp;Режим конфигурирования:</translation>
    </message>
    <message>
        <source>Preview</source>
        <translation>Предварительный просмотр</translation>
    </message>
    <message>
        <source>Details</source>
        <translation>Подробности</translation>
    </message>
    <message>
        <source>&amp;Import</source>
        <translation>&amp;Импортировать</translation>
    </message>
    <message>
        <source>&amp;Compare...</source>
        <translation>&amp;Сравнить...</translation>
    </message>
    <message>
        <source>Progress</source>
        <translation>Ход выполнения</translation>
    </message>
    <message>
        <source>The files are being read.</source>
        <translation>Файлы читаются.</translation>
    </message>
    <message>
        <source>Nothing is imported while there are problems.</source>
        <translation>Пока есть ошибки, ничего не импортируется.</translation>
    </message>
    <message>
        <source>There is nothing to import.</source>
        <translation>Нечего импортировать.</translation>
    </message>
    <message>
        <source>Stored</source>
        <translation>Сохранено</translation>
    </message>
    <message>
        <source>In the file</source>
        <translation>В файле</translation>
    </message>
    <message>
        <source>The records are being stored.</source>
        <translation>Записи сохраняются.</translation>
    </message>
    <message>
        <source>Nothing was imported: %1
The preview was made again.</source>
        <translation>Ничего не импортировано: %1
Предварительный просмотр создан заново.</translation>
    </message>
    <message>
        <source>Imported into %1. New: %2, replaced: %3</source>
        <translation>Импортировано в %1. Новых: %2, заменено: %3</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Закрыть</translation>
    </message>
    <message>
        <source>Nothing was imported: you have cancelled it.</source>
        <translation>Ничего не импортировано: вы отменили импорт.</translation>
    </message>
</context>
<context>
    <name>IMPORT_MODEL</name>
    <message>
        <source>Problem</source>
        <translation>Ошибка</translation>
    </message>
    <message>
        <source>Warning</source>
        <translation>Предупреждение</translation>
    </message>
    <message>
        <source>Will be replaced</source>
        <translation>Будет заменена</translation>
    </message>
    <message>
        <source>Differs, not imported</source>
        <translation>Отличается, не импортируется</translation>
    </message>
    <message>
        <source>New</source>
        <translation>Новая</translation>
    </message>
    <message>
        <source>Already exists</source>
        <translation>Уже существует</translation>
    </message>
    <message>
        <source>%1: differs</source>
        <translation>%1: отличается</translation>
    </message>
    <message>
        <source>%1: stored %2, in the file %3</source>
        <translation>%1: сохранено %2, в файле %3</translation>
    </message>
    <message>
        <source>Differs in: %1</source>
        <translation>Отличия: %1</translation>
    </message>
    <message>
        <source>State</source>
        <translation>Состояние</translation>
    </message>
    <message>
        <source>Record</source>
        <translation>Запись</translation>
    </message>
    <message>
        <source>Family</source>
        <translation>Семейство</translation>
    </message>
    <message>
        <source>Mode</source>
        <translation>Режим</translation>
    </message>
    <message>
        <source>File</source>
        <translation>Файл</translation>
    </message>
    <message>
        <source>Line</source>
        <translation>Строка</translation>
    </message>
    <message>
        <source>Remark</source>
        <translation>Примечание</translation>
    </message>
</context>
<context>
    <name>MODULE_LOADER</name>
    <message>
        <source>The dialog module was not found. Searched:
%1</source>
        <translation>Модуль диалога не найден. Поиск выполнялся здесь:
%1</translation>
    </message>
    <message>
        <source>The dialog module %1 is not loaded: everyone may change %2.</source>
        <translation>Модуль диалога %1 не загружается: изменить %2 может кто угодно.</translation>
    </message>
    <message>
        <source>The dialog module %1 cannot be loaded:
%2</source>
        <translation>Не удаётся загрузить модуль диалога %1:
%2</translation>
    </message>
    <message>
        <source>The dialog module %1 has no function &quot;%2&quot;.</source>
        <translation>В модуле диалога %1 нет функции «%2».</translation>
    </message>
</context>
<context>
    <name>NEW_DEVICE_DESK</name>
    <message>
        <source>New Device</source>
        <translation>Новая микросхема</translation>
    </message>
    <message>
        <source>SFDP Read-Out of a Chip</source>
        <translation>Данные SFDP микросхемы</translation>
    </message>
</context>
<context>
    <name>NEW_DEVICE_DIALOG</name>
    <message>
        <source>New Device</source>
        <translation>Новая микросхема</translation>
    </message>
    <message>
        <source>New Device: %1</source>
        <translation>Новая микросхема: %1</translation>
    </message>
    <message>
        <source>&amp;Warnings:</source>
        <translation>&amp;Предупреждения:</translation>
    </message>
    <message>
        <source>&amp;Listed parts with this ID:</source>
        <translation>Микросхемы из &amp;списка с этим ID:</translation>
    </message>
    <message>
        <source>Create &amp;Device</source>
        <translation>Со&amp;здать</translation>
    </message>
    <message>
        <source>Save &amp;Read-Out...</source>
        <translation>Сохранить &amp;данные...</translation>
    </message>
    <message>
        <source>none</source>
        <translation>нет</translation>
    </message>
    <message>
        <source>no differences</source>
        <translation>различий нет</translation>
    </message>
    <message>
        <source>Save the Read-Out</source>
        <translation>Сохранение данных</translation>
    </message>
    <message>
        <source>What was entered has changed other values or the warnings. Look at them, then create the device.</source>
        <translation>Из-за введённого изменились другие значения или предупреждения. Просмотрите их, затем создайте микросхему.</translation>
    </message>
</context>
<context>
    <name>NEW_DEVICE_DRAFT</name>
    <message>
        <source>ID %1</source>
        <translation>ID %1</translation>
    </message>
</context>
<context>
    <name>ORDER_PANEL</name>
    <message>
        <source>What the file covers</source>
        <translation>То, что занимает файл</translation>
    </message>
    <message>
        <source>The whole device</source>
        <translation>Вся микросхема</translation>
    </message>
    <message>
        <source>Address and length</source>
        <translation>Адрес и длина</translation>
    </message>
    <message>
        <source>Ran&amp;ge:</source>
        <translation>Д&amp;иапазон:</translation>
    </message>
    <message>
        <source>&amp;Address:</source>
        <translation>А&amp;дрес:</translation>
    </message>
    <message>
        <source>Length:</source>
        <translation>Длина:</translation>
    </message>
</context>
<context>
    <name>PLACE_FIELDS</name>
    <message>
        <source>Device &amp;family:</source>
        <translation>Се&amp;мейство микросхем:</translation>
    </message>
    <message>
        <source>Configuration &amp;mode:</source>
        <translation>&amp;Режим конфигурирования:</translation>
    </message>
</context>
<context>
    <name>PROGRAMMER_MENU</name>
    <message>
        <source>&amp;Configuration Device...</source>
        <translation>&amp;Конфигурационное ПЗУ...</translation>
    </message>
    <message>
        <source>&amp;Detect</source>
        <translation>О&amp;пределить</translation>
    </message>
    <message>
        <source>&amp;Open File...</source>
        <translation>&amp;Открыть файл...</translation>
    </message>
    <message>
        <source>&amp;Try the Flow</source>
        <translation>&amp;Испытать алгоритм</translation>
    </message>
    <message>
        <source>&amp;Start</source>
        <translation>П&amp;уск</translation>
    </message>
    <message>
        <source>C&amp;ancel</source>
        <translation>О&amp;тмена</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>&amp;Выход</translation>
    </message>
    <message>
        <source>&amp;New Device from Chip...</source>
        <translation>&amp;Новая микросхема по подключённой...</translation>
    </message>
    <message>
        <source>New Device from S&amp;FDP File...</source>
        <translation>Новая микросхема из &amp;файла SFDP...</translation>
    </message>
    <message>
        <source>D&amp;uplicate...</source>
        <translation>&amp;Дублировать...</translation>
    </message>
    <message>
        <source>Device Data&amp;base...</source>
        <translation>&amp;База данных микросхем...</translation>
    </message>
    <message>
        <source>Save Flow C&amp;harts...</source>
        <translation>Со&amp;хранить блок-схемы...</translation>
    </message>
</context>
<context>
    <name>PROGRAMMER_WINDOW</name>
    <message>
        <source>Device</source>
        <translation>Микросхема</translation>
    </message>
    <message>
        <source>Connection</source>
        <translation>Подключение</translation>
    </message>
    <message>
        <source>File</source>
        <translation>Файл</translation>
    </message>
    <message>
        <source>Operations</source>
        <translation>Операции</translation>
    </message>
    <message>
        <source>Log</source>
        <translation>Журнал</translation>
    </message>
    <message>
        <source>Trace</source>
        <translation>Трассировка</translation>
    </message>
    <message>
        <source>Data</source>
        <translation>Данные</translation>
    </message>
    <message>
        <source>&amp;Programmer</source>
        <translation>Про&amp;грамматор</translation>
    </message>
    <message>
        <source>Not started: %1</source>
        <translation>Не запущено: %1</translation>
    </message>
    <message>
        <source>The place where the file begins is not a number.</source>
        <translation>Место начала файла — не число.</translation>
    </message>
    <message>
        <source>Address or length is not a number.</source>
        <translation>Адрес или длина — не число.</translation>
    </message>
    <message>
        <source>Nothing was detected: %1</source>
        <translation>Ничего не определено: %1</translation>
    </message>
    <message>
        <source>The chip has the ID %1.</source>
        <translation>ID микросхемы: %1.</translation>
    </message>
    <message>
        <source>No device has the ID %1.</source>
        <translation>Нет микросхемы с ID %1.</translation>
    </message>
    <message>
        <source>The run is being cancelled. If it is stopped at once, the state of the chip is unknown.</source>
        <translation>Выполнение отменяется. Если остановить его сразу, состояние микросхемы будет неизвестно.</translation>
    </message>
    <message>
        <source>A run is under way. Cancel it and close the window?</source>
        <translation>Идёт выполнение. Отменить его и закрыть окно?</translation>
    </message>
    <message>
        <source>Stop at once</source>
        <translation>Остановить сразу</translation>
    </message>
    <message>
        <source>Cancel the run</source>
        <translation>Отменить выполнение</translation>
    </message>
    <message>
        <source>Wait</source>
        <translation>Подождать</translation>
    </message>
    <message>
        <source>Keep running</source>
        <translation>Продолжить</translation>
    </message>
    <message>
        <source>Cancelled</source>
        <translation>Отменено</translation>
    </message>
    <message>
        <source>The device &quot;%1&quot; is stored.</source>
        <translation>Микросхема «%1» сохранена.</translation>
    </message>
    <message>
        <source>The device &quot;%1&quot; is not there, or of a family or mode that is not offered here.</source>
        <translation>Микросхемы «%1» нет, либо её семейство или режим здесь не предлагаются.</translation>
    </message>
    <message>
        <source>The flow charts cannot be saved: %1</source>
        <translation>Не удаётся сохранить блок-схемы: %1</translation>
    </message>
    <message>
        <source>The flow charts are in %1.</source>
        <translation>Блок-схемы находятся в файле %1.</translation>
    </message>
</context>
<context>
    <name>QPlatformTheme</name>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Отмена</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Закрыть</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Сохранить</translation>
    </message>
</context>
<context>
    <name>READ_OUT_FILE</name>
    <message>
        <source>The file %1 cannot be read: %2</source>
        <translation>Не удаётся прочитать файл %1: %2</translation>
    </message>
    <message>
        <source>%1 is not a file.</source>
        <translation>%1 — не файл.</translation>
    </message>
    <message>
        <source>The file %1 has more than %2 bytes and is not an SFDP read-out.</source>
        <translation>Файл %1 больше %2 байт: это не данные SFDP.</translation>
    </message>
    <message>
        <source>The file %1 cannot be written: %2</source>
        <translation>Не удаётся записать файл %1: %2</translation>
    </message>
</context>
<context>
    <name>RECORD_COMPARISON</name>
    <message>
        <source>Kind</source>
        <translation>Вид</translation>
    </message>
    <message>
        <source>Template</source>
        <translation>Шаблон</translation>
    </message>
    <message>
        <source>Built-in device</source>
        <translation>Встроенная микросхема</translation>
    </message>
    <message>
        <source>Own device</source>
        <translation>Своя микросхема</translation>
    </message>
    <message>
        <source>Family</source>
        <translation>Семейство</translation>
    </message>
    <message>
        <source>Mode</source>
        <translation>Режим</translation>
    </message>
    <message>
        <source>Properties</source>
        <translation>Свойства</translation>
    </message>
    <message>
        <source>Quad-I/O flow</source>
        <translation>Алгоритм Quad I/O</translation>
    </message>
    <message>
        <source>Single-I/O flow</source>
        <translation>Алгоритм Single I/O</translation>
    </message>
    <message>
        <source>The flow cannot be read.</source>
        <translation>Не удаётся прочитать алгоритм.</translation>
    </message>
</context>
<context>
    <name>RECORD_EXPORT</name>
    <message>
        <source>The file %1 cannot be written: %2</source>
        <translation>Не удаётся записать файл %1: %2</translation>
    </message>
</context>
<context>
    <name>RECORD_STATES</name>
    <message>
        <source>%1, state %2 (until %3)</source>
        <translation>%1, состояние %2 (до %3)</translation>
    </message>
    <message>
        <source>%1, now</source>
        <translation>%1, сейчас</translation>
    </message>
</context>
<context>
    <name>REMOVED_DEVICES</name>
    <message>
        <source>The device &quot;%1&quot; was deleted by another program already.</source>
        <translation>Микросхема «%1» уже удалена другой программой.</translation>
    </message>
    <message>
        <source>The history does not have the device &quot;%1&quot; any more.</source>
        <translation>В истории больше нет микросхемы «%1».</translation>
    </message>
</context>
<context>
    <name>RUN_BAR</name>
    <message>
        <source>Progress of the run</source>
        <translation>Ход выполнения</translation>
    </message>
    <message>
        <source>Tr&amp;y the Flow</source>
        <translation>Исп&amp;ытать алгоритм</translation>
    </message>
    <message>
        <source>Erases, programs and verifies an emulated chip. No hardware is needed or used.</source>
        <translation>Стирает, программирует и проверяет эмулируемую микросхему. Оборудование не нужно и не используется.</translation>
    </message>
    <message>
        <source>&amp;Start</source>
        <translation>П&amp;уск</translation>
    </message>
    <message>
        <source>Cance&amp;l</source>
        <translation>О&amp;тмена</translation>
    </message>
    <message>
        <source>The run is being cancelled.</source>
        <translation>Выполнение отменяется.</translation>
    </message>
    <message>
        <source>%1: %2 of %3</source>
        <translation>%1: %2 из %3</translation>
    </message>
    <message>
        <source>%1 left</source>
        <translation>осталось %1</translation>
    </message>
</context>
<context>
    <name>RUN_PREPARATION</name>
    <message>
        <source>No operation is checked.</source>
        <translation>Не отмечена ни одна операция.</translation>
    </message>
    <message>
        <source>No file is chosen.</source>
        <translation>Файл не выбран.</translation>
    </message>
    <message>
        <source>No device is chosen.</source>
        <translation>Микросхема не выбрана.</translation>
    </message>
    <message>
        <source>The device &quot;%1&quot; does not exist.</source>
        <translation>Микросхема «%1» не существует.</translation>
    </message>
    <message>
        <source>The file %1 cannot be read.</source>
        <translation>Не удаётся прочитать файл %1.</translation>
    </message>
    <message>
        <source>The file %1 is empty.</source>
        <translation>Файл %1 пуст.</translation>
    </message>
    <message>
        <source>The file needs %1 bytes from %2 on, and the device has %3 bytes.</source>
        <translation>Файлу нужно %1 байт начиная с %2, а в микросхеме %3 байт.</translation>
    </message>
</context>
<context>
    <name>RUN_WORDS</name>
    <message>
        <source>Failed</source>
        <translation>Ошибка</translation>
    </message>
    <message>
        <source>Failed at %1</source>
        <translation>Ошибка в %1</translation>
    </message>
    <message>
        <source>Failed at %1, action %2 &quot;%3&quot;</source>
        <translation>Ошибка в %1, действие %2 «%3»</translation>
    </message>
    <message>
        <source>Stopped. The state of the chip is unknown.</source>
        <translation>Остановлено. Состояние микросхемы неизвестно.</translation>
    </message>
    <message>
        <source>The connection is lost. The state of the chip is unknown.</source>
        <translation>Соединение потеряно. Состояние микросхемы неизвестно.</translation>
    </message>
    <message>
        <source>Passed, but not everything could be stored</source>
        <translation>Успешно, но не всё удалось сохранить</translation>
    </message>
    <message>
        <source>Passed, but a real chip would have refused or misread commands: see the log</source>
        <translation>Успешно, но настоящая микросхема отвергла бы или неверно поняла бы команды: см. журнал</translation>
    </message>
    <message>
        <source>Passed</source>
        <translation>Успешно</translation>
    </message>
    <message>
        <source>Cancelled</source>
        <translation>Отменено</translation>
    </message>
    <message>
        <source>Not started: see the log</source>
        <translation>Не запущено: см. журнал</translation>
    </message>
    <message>
        <source>a test pattern</source>
        <translation>тестовый образец</translation>
    </message>
    <message>
        <source>Trying the flow of %1 on an emulated chip that is full of other data</source>
        <translation>Испытание алгоритма %1 на эмулируемой микросхеме, заполненной другими данными</translation>
    </message>
    <message>
        <source>Content: %1</source>
        <translation>Содержимое: %1</translation>
    </message>
    <message>
        <source>Nothing more was sent, because this may be another chip than the device says.</source>
        <translation>Больше ничего не отправлялось: возможно, это другая микросхема.</translation>
    </message>
    <message>
        <source>Note of the chip: %1</source>
        <translation>Замечание микросхемы: %1</translation>
    </message>
    <message>
        <source>%1 (%2 commands, %3 s)</source>
        <translation>%1 (команд: %2, %3 с)</translation>
    </message>
    <message>
        <source>Whole sectors are erased. These bytes beside the range are erased, too:

%1

Erase them?</source>
        <translation>Стираются целые секторы. Вне диапазона также стираются эти байты:

%1

Стереть их?</translation>
    </message>
    <message>
        <source>%1 on the connection %2</source>
        <translation>%1, подключение %2</translation>
    </message>
</context>
<context>
    <name>TRACE_MODEL</name>
    <message>
        <source>%1 ... (%2 bytes)</source>
        <translation>%1 ... (%2 байт)</translation>
    </message>
    <message>
        <source>%1, %2 clocks</source>
        <translation>%1, тактов: %2</translation>
    </message>
    <message>
        <source>No.</source>
        <translation>№</translation>
    </message>
    <message>
        <source>Time (ms)</source>
        <translation>Время (мс)</translation>
    </message>
    <message>
        <source>Operation</source>
        <translation>Операция</translation>
    </message>
    <message>
        <source>Action</source>
        <translation>Действие</translation>
    </message>
    <message>
        <source>Command</source>
        <translation>Команда</translation>
    </message>
    <message>
        <source>Lines</source>
        <translation>Линии</translation>
    </message>
    <message>
        <source>Sent</source>
        <translation>Отправлено</translation>
    </message>
    <message>
        <source>Received</source>
        <translation>Принято</translation>
    </message>
    <message>
        <source>Expected</source>
        <translation>Ожидалось</translation>
    </message>
</context>
<context>
    <name>TRACE_PAGE</name>
    <message>
        <source>All operations</source>
        <translation>Все операции</translation>
    </message>
    <message>
        <source>Commands of:</source>
        <translation>Команды:</translation>
    </message>
    <message>
        <source>Commands of the last run</source>
        <translation>Команды последнего выполнения</translation>
    </message>
    <message>
        <source>%1 commands</source>
        <translation>Команд: %1</translation>
    </message>
</context>
</TS>
