<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ru" sourcelanguage="en">
<context>
    <name>GFPC_CHARTS</name>
    <message>
        <source>The flows of %1 cannot be read.</source>
        <translation>Не удаётся прочитать алгоритмы %1.</translation>
    </message>
    <message>
        <source>%1 has no quad-I/O flow.</source>
        <translation>У %1 нет алгоритма Quad I/O.</translation>
    </message>
    <message>
        <source>%1 has no single-I/O flow.</source>
        <translation>У %1 нет алгоритма Single I/O.</translation>
    </message>
    <message>
        <source>Page %1 of %2</source>
        <translation>Страница %1 из %2</translation>
    </message>
    <message>
        <source>There are no fonts on this computer.</source>
        <translation>На этом компьютере нет шрифтов.</translation>
    </message>
    <message>
        <source>Quad-I/O flow</source>
        <translation>Алгоритм Quad I/O</translation>
    </message>
    <message>
        <source>Single-I/O flow</source>
        <translation>Алгоритм Single I/O</translation>
    </message>
</context>
<context>
    <name>gfpdb</name>
    <message>
        <source>Upper and lower case count as the same.</source>
        <translation>Регистр букв не учитывается.</translation>
    </message>
    <message>
        <source>There is a built-in device called %1: choose another name.</source>
        <translation>Уже есть встроенная микросхема %1: выберите другое имя.</translation>
    </message>
    <message>
        <source>There is a built-in template called %1: choose another name.</source>
        <translation>Уже есть встроенный шаблон %1: выберите другое имя.</translation>
    </message>
    <message>
        <source>part name</source>
        <translation>Имя микросхемы</translation>
    </message>
    <message>
        <source>The device %1 is neither deleted nor replaced, because it could not be read when it was last looked for: %2</source>
        <translation>Микросхема %1 не удаляется и не заменяется, так как при последнем поиске её не удалось прочитать: %2</translation>
    </message>
    <message>
        <source>The flows of %1 in %2 cannot be read.</source>
        <translation>Не удаётся прочитать алгоритмы %1 в %2.</translation>
    </message>
    <message>
        <source>Property %1 of a device is not a number.</source>
        <translation>Свойство %1 микросхемы — не число.</translation>
    </message>
    <message>
        <source>Property %1 of a device is not a text.</source>
        <translation>Свойство %1 микросхемы — не текст.</translation>
    </message>
    <message>
        <source>There is a stored template called %1: choose another name.</source>
        <translation>Уже есть сохранённый шаблон %1: выберите другое имя.</translation>
    </message>
    <message>
        <source>There is a device called %1: it is the one that is shown. Enter another name to rename it.</source>
        <translation>Микросхема %1 уже есть: это та, что показана. Чтобы переименовать её, введите другое имя.</translation>
    </message>
    <message>
        <source>There is a device called %1 for this family and configuration mode: choose another name.</source>
        <translation>Для этого семейства и режима конфигурирования уже есть микросхема %1: выберите другое имя.</translation>
    </message>
    <message>
        <source>There is a stored template called %1: choose another name, or remove that template first.</source>
        <translation>Уже есть сохранённый шаблон %1: выберите другое имя или сначала удалите этот шаблон.</translation>
    </message>
    <message>
        <source>The template name %1 differs from the device name %2 in case only: choose another name.</source>
        <translation>Имя шаблона %1 отличается от имени микросхемы %2 только регистром букв: выберите другое имя.</translation>
    </message>
    <message>
        <source>There is a device called %1: choose another name.</source>
        <translation>Уже есть микросхема %1: выберите другое имя.</translation>
    </message>
    <message>
        <source>A flash device with an I/O voltage of %1 cannot be connected to %2 devices: it must support 1.8 V.</source>
        <translation>Микросхему флеш-памяти с напряжением I/O %1 нельзя подключить к микросхемам %2: она должна работать при 1,8 В.</translation>
    </message>
    <message>
        <source>%1 The device %2 that was deleted before was not put back: %3</source>
        <translation>%1 Удалённая перед этим микросхема %2 не восстановлена: %3</translation>
    </message>
    <message>
        <source>There is no record to save.</source>
        <translation>Нет записи для сохранения.</translation>
    </message>
    <message>
        <source>The configuration mode has no flash devices.</source>
        <translation>В этом режиме конфигурирования нет микросхем флеш-памяти.</translation>
    </message>
    <message>
        <source>The device %1 contains text that is not valid UTF-8.</source>
        <translation>Микросхема %1 содержит текст, который не является допустимым UTF-8.</translation>
    </message>
    <message>
        <source>The template %1 is built in: it cannot be removed.</source>
        <translation>Шаблон %1 встроенный: удалить его нельзя.</translation>
    </message>
    <message>
        <source>device name</source>
        <translation>Имя микросхемы</translation>
    </message>
    <message>
        <source>device ID</source>
        <translation>ID микросхемы</translation>
    </message>
    <message>
        <source>I/O voltage</source>
        <translation>Напряжение ввода-вывода</translation>
    </message>
    <message>
        <source>density</source>
        <translation>Ёмкость микросхемы</translation>
    </message>
    <message>
        <source>total die count</source>
        <translation>Всего кристаллов</translation>
    </message>
    <message>
        <source>number of single-I/O dummy clocks</source>
        <translation>Холостые такты (Single I/O)</translation>
    </message>
    <message>
        <source>number of quad-I/O dummy clocks</source>
        <translation>Холостые такты (Quad I/O)</translation>
    </message>
    <message>
        <source>template name</source>
        <translation>Имя шаблона</translation>
    </message>
    <message>
        <source>flow template</source>
        <translation>Шаблон программирования</translation>
    </message>
    <message>
        <source>a whole number from %1 to %2</source>
        <translation>целое число от %1 до %2</translation>
    </message>
    <message>
        <source>one byte in hexadecimal, such as 0x9F</source>
        <translation>один байт в шестнадцатеричном виде, например 0x9F</translation>
    </message>
    <message>
        <source>1 to %1 bytes in hexadecimal separated by single spaces, such as 0x00 0x02</source>
        <translation>от 1 до %1 байт в шестнадцатеричном виде через один пробел, например 0x00 0x02</translation>
    </message>
    <message>
        <source>an address of eight hexadecimal digits, such as 0x00010000</source>
        <translation>адрес из восьми шестнадцатеричных цифр, например 0x00010000</translation>
    </message>
    <message>
        <source>%1, or %2</source>
        <translation>%1 или %2</translation>
    </message>
    <message>
        <source>text of 1 to %1 characters on one line</source>
        <translation>текст от 1 до %1 символов в одной строке</translation>
    </message>
    <message>
        <source>a power of two from 1 to %1</source>
        <translation>степень двойки от 1 до %1</translation>
    </message>
    <message>
        <source>Loop marker</source>
        <translation>Метка цикла</translation>
    </message>
    <message>
        <source>There is no action property with the number %1. Allowed: 0 to %2.</source>
        <translation>Нет свойства действия с номером %1. Допустимо: от 0 до %2.</translation>
    </message>
    <message>
        <source>An empty value</source>
        <translation>Пустое значение</translation>
    </message>
    <message>
        <source>%1 is not allowed for &quot;%2&quot;. Allowed: %3.</source>
        <translation>%1 — недопустимое значение для «%2». Допустимо: %3.</translation>
    </message>
    <message>
        <source>The %1 is empty: 1 to %2 characters are allowed.</source>
        <translation>Поле «%1» пусто: допустимо от 1 до %2 символов.</translation>
    </message>
    <message>
        <source>The %1 has characters that cannot be stored.</source>
        <translation>Поле «%1» содержит символы, которые нельзя сохранить.</translation>
    </message>
    <message>
        <source>The %1 has %2 characters: 1 to %3 characters are allowed.</source>
        <translation>В поле «%1» символов: %2. Допустимо от 1 до %3.</translation>
    </message>
    <message>
        <source>The %1 has a line break or another control character: use letters, digits, punctuation and spaces.</source>
        <translation>Поле «%1» содержит перевод строки или другой управляющий символ: используйте буквы, цифры, знаки препинания и пробелы.</translation>
    </message>
    <message>
        <source>The %1 %2 begins or ends with a space: remove it.</source>
        <translation>Значение %2 поля «%1» начинается или заканчивается пробелом: удалите его.</translation>
    </message>
    <message>
        <source>The %1 %2 is reserved for a new device: choose another.</source>
        <translation>Значение %2 поля «%1» зарезервировано для новой микросхемы: выберите другое.</translation>
    </message>
    <message>
        <source>%1 Enter 1 to %2 bytes in hexadecimal, separated by spaces or commas, for example 0xC2 0x20 0x19.</source>
        <translation>%1 Введите от 1 до %2 байт в шестнадцатеричном виде через пробелы или запятые, например 0xC2 0x20 0x19.</translation>
    </message>
    <message>
        <source>The device ID is empty.</source>
        <translation>ID микросхемы не указан.</translation>
    </message>
    <message>
        <source>%1 is not a byte of a device ID.</source>
        <translation>%1 — не байт ID микросхемы.</translation>
    </message>
    <message>
        <source>The device ID has %1 bytes.</source>
        <translation>Длина ID микросхемы в байтах: %1.</translation>
    </message>
    <message>
        <source>The %1 %2 is out of range: %3 to %4 are allowed.</source>
        <translation>Значение %2 поля «%1» вне диапазона: допустимо от %3 до %4.</translation>
    </message>
    <message>
        <source>The %1 %2 is not known: choose one of %3.</source>
        <translation>Неизвестное значение %2 поля «%1»: выберите одно из %3.</translation>
    </message>
    <message>
        <source>The loop that starts at action %1 has no end.</source>
        <translation>У цикла, который начинается с действия %1, нет конца.</translation>
    </message>
    <message>
        <source>A loop over each %1 cannot be in a loop over each %2. Allowed: a loop over each page or sector in a loop over each die.</source>
        <translation>Цикл по «%1» не может находиться в цикле по «%2». Допустимо: цикл по «page» или «sector» в цикле по «die».</translation>
    </message>
    <message>
        <source>The end of a loop has no start before it.</source>
        <translation>Перед концом цикла нет его начала.</translation>
    </message>
    <message>
        <source>The end of a loop over each %1 closes a loop over each %2.</source>
        <translation>Конец цикла по «%1» закрывает цикл по «%2».</translation>
    </message>
    <message>
        <source>The loop over each %1 has no %2 action to determine its step size.</source>
        <translation>В цикле по «%1» нет действия «%2», которое задаёт его шаг.</translation>
    </message>
    <message>
        <source>One of several erases in a loop has a fixed address. Allowed: loop or die.</source>
        <translation>У одного из нескольких стираний в цикле фиксированный адрес. Допустимо: loop или die.</translation>
    </message>
    <message>
        <source>The loop has page sizes of %1 and of %2. Allowed: one page size in a loop.</source>
        <translation>В цикле размеры страницы %1 и %2. Допустимо: один размер страницы в цикле.</translation>
    </message>
    <message>
        <source>The erase sizes %1 and %2 do not go together in one loop. Allowed: sizes of which each divides every larger one.</source>
        <translation>Размеры стирания %1 и %2 нельзя сочетать в одном цикле. Допустимо: размеры, каждый из которых делит все большие.</translation>
    </message>
    <message>
        <source>The value &quot;loop&quot; is outside any loop.</source>
        <translation>Значение «loop» находится вне цикла.</translation>
    </message>
    <message>
        <source>The value &quot;die&quot; is outside a loop over each die.</source>
        <translation>Значение «die» находится вне цикла по «die».</translation>
    </message>
    <message>
        <source>The action has %1 address bytes, an earlier one has %2. Allowed: the same number in all actions of a flow.</source>
        <translation>У действия байт адреса: %1, у одного из предыдущих: %2. Допустимо: одинаковое число во всех действиях алгоритма.</translation>
    </message>
    <message>
        <source>The flows cannot be read.</source>
        <translation>Не удаётся прочитать алгоритмы.</translation>
    </message>
    <message>
        <source>The device and its template need different names: both are called %1.</source>
        <translation>Имена микросхемы и её шаблона должны различаться: сейчас оба — %1.</translation>
    </message>
    <message>
        <source>There is no family %1. Allowed: %2 to %3.</source>
        <translation>Семейства %1 нет. Допустимо: от %2 до %3.</translation>
    </message>
    <message>
        <source>The configuration mode %1 has no flash devices.</source>
        <translation>В режиме конфигурирования %1 нет микросхем флеш-памяти.</translation>
    </message>
    <message>
        <source>The %1 %2 is not a usual one. Usual: %3.</source>
        <translation>Необычное значение %2 поля «%1». Обычные: %3.</translation>
    </message>
    <message>
        <source>Devices of this configuration mode have no flows: the dialog drops them.</source>
        <translation>У микросхем этого режима конфигурирования нет алгоритмов: диалог их отбрасывает.</translation>
    </message>
    <message>
        <source>There are no flows.</source>
        <translation>Нет алгоритмов.</translation>
    </message>
    <message>
        <source>There are no flows for this configuration mode.</source>
        <translation>Для этого режима конфигурирования нет алгоритмов.</translation>
    </message>
    <message>
        <source>The value is missing: %1 is stored.</source>
        <translation>Значение отсутствует: сохраняется %1.</translation>
    </message>
    <message>
        <source>Devices of this configuration mode have no such value: the dialog drops it.</source>
        <translation>У микросхем этого режима конфигурирования нет такого значения: диалог его отбрасывает.</translation>
    </message>
    <message>
        <source>The copy in %1 cannot be compared: %2</source>
        <translation>Не удаётся сравнить копию в %1: %2</translation>
    </message>
    <message>
        <source>The copy in %1 is not the same as %2.</source>
        <translation>Копия в %1 не совпадает с %2.</translation>
    </message>
    <message>
        <source>There is nothing to copy in %1.</source>
        <translation>В %1 нечего копировать.</translation>
    </message>
    <message>
        <source>an unknown day</source>
        <translation>неизвестно когда</translation>
    </message>
    <message>
        <source>an unknown user</source>
        <translation>неизвестный пользователь</translation>
    </message>
    <message>
        <source>The stored template %1 was stored by %2 on %3 since it was looked for here.</source>
        <translation>С тех пор как здесь искали сохранённый шаблон %1, его сохранил пользователь: %2 (%3).</translation>
    </message>
    <message>
        <source>The device %1 was stored by %2 on %3 since it was looked for here.</source>
        <translation>С тех пор как здесь искали микросхему %1, её сохранил пользователь: %2 (%3).</translation>
    </message>
    <message>
        <source>The stored template %1 was changed by %2 on %3 since it was read here.</source>
        <translation>С тех пор как сохранённый шаблон %1 был прочитан здесь, его изменил пользователь: %2 (%3).</translation>
    </message>
    <message>
        <source>The device %1 was changed by %2 on %3 since it was read here.</source>
        <translation>С тех пор как микросхема %1 была прочитана здесь, её изменил пользователь: %2 (%3).</translation>
    </message>
    <message>
        <source>The stored template %1 was deleted by %2 on %3 since it was read here.</source>
        <translation>С тех пор как сохранённый шаблон %1 был прочитан здесь, его удалил пользователь: %2 (%3).</translation>
    </message>
    <message>
        <source>The device %1 was renamed by %2 on %3 since it was read here.</source>
        <translation>С тех пор как микросхема %1 была прочитана здесь, её переименовал пользователь: %2 (%3).</translation>
    </message>
    <message>
        <source>The device %1 was deleted by %2 on %3 since it was read here.</source>
        <translation>С тех пор как микросхема %1 была прочитана здесь, её удалил пользователь: %2 (%3).</translation>
    </message>
    <message>
        <source>Try again to store it as a new one.</source>
        <translation>Повторите попытку, чтобы сохранить запись как новую.</translation>
    </message>
    <message>
        <source>Look at it again, or try again: then that state goes into the history.</source>
        <translation>Просмотрите запись ещё раз или повторите попытку: тогда то состояние попадёт в историю.</translation>
    </message>
    <message>
        <source>The database in %1 is not empty.</source>
        <translation>База данных в %1 не пуста.</translation>
    </message>
    <message>
        <source>A stored template called %1 already exists.</source>
        <translation>Сохранённый шаблон %1 уже существует.</translation>
    </message>
    <message>
        <source>A device called %1 already exists.</source>
        <translation>Микросхема %1 уже существует.</translation>
    </message>
    <message>
        <source>There is no state %1 in the history.</source>
        <translation>В истории нет состояния %1.</translation>
    </message>
    <message>
        <source>The database in %1 is another one now.</source>
        <translation>База данных в %1 теперь другая.</translation>
    </message>
    <message>
        <source>It is state %1 of the history.</source>
        <translation>Это состояние %1 в истории.</translation>
    </message>
    <message>
        <source>The database %1 is not used: %2 is a link or not a regular file. Remove it if you did not put it there.</source>
        <translation>База данных %1 не используется: %2 — ссылка или не обычный файл. Удалите его, если поместили его туда не вы.</translation>
    </message>
    <message>
        <source>The database %1 is not used: %2 was written by another program, and would change it. Close the database in that program. If the file is still there then, move it to another directory.</source>
        <translation>База данных %1 не используется: %2 записан другой программой и изменил бы её. Закройте базу данных в той программе. Если файл останется, переместите его в другой каталог.</translation>
    </message>
    <message>
        <source>The database %1 is not used: %2 was written by another program for several databases at once, and names a file that would be removed. Open the database in that program, or move the file to another directory.</source>
        <translation>База данных %1 не используется: %2 записан другой программой сразу для нескольких баз данных и называет файл, который был бы удалён. Откройте базу данных в той программе или переместите файл в другой каталог.</translation>
    </message>
    <message>
        <source>The database %1 is not used: %2 is the journal of another database, or of another state of this one, and would damage it. Move that file to another directory, then try again.</source>
        <translation>База данных %1 не используется: %2 — журнал другой базы данных или другого состояния этой и повредил бы её. Переместите этот файл в другой каталог и повторите попытку.</translation>
    </message>
    <message>
        <source>The database %1 is locked by another program (%2).</source>
        <translation>База данных %1 заблокирована другой программой (%2).</translation>
    </message>
    <message>
        <source>The database %1 cannot be written (%2).</source>
        <translation>Не удаётся записать в базу данных %1 (%2).</translation>
    </message>
    <message>
        <source>The database %1 is damaged (%2). It is left as it is.</source>
        <translation>База данных %1 повреждена (%2). Она оставлена как есть.</translation>
    </message>
    <message>
        <source>There is no room for the database %1 (%2).</source>
        <translation>Нет места для базы данных %1 (%2).</translation>
    </message>
    <message>
        <source>The file %1 is not a database (%2). It is left as it is.</source>
        <translation>Файл %1 — не база данных (%2). Он оставлен как есть.</translation>
    </message>
    <message>
        <source>The database %1 cannot be used: %2 (%3).</source>
        <translation>Не удаётся использовать базу данных %1: %2 (%3).</translation>
    </message>
    <message>
        <source>The SQLite driver of Qt is not installed.</source>
        <translation>Драйвер SQLite для Qt не установлен.</translation>
    </message>
    <message>
        <source>The database %1 was left in the middle of a change by a program that ended there. It can be read again when someone who can write it has opened it once.</source>
        <translation>Программа завершилась и оставила базу данных %1 посреди изменения. Её можно будет прочитать, когда её откроет тот, кто может в неё записывать.</translation>
    </message>
    <message>
        <source>The database %1 can be read, but not changed: %2.</source>
        <translation>Базу данных %1 можно читать, но нельзя изменять: %2.</translation>
    </message>
    <message>
        <source>The database directory %1 cannot be read: %2.</source>
        <translation>Не удаётся прочитать каталог базы данных %1: %2.</translation>
    </message>
    <message>
        <source>The database directory %1 does not exist.</source>
        <translation>Каталог базы данных %1 не существует.</translation>
    </message>
    <message>
        <source>The database directory %1 is not a directory: a part of it is a file.</source>
        <translation>Каталог базы данных %1 — не каталог: часть пути является файлом.</translation>
    </message>
    <message>
        <source>The database directory %1 cannot be reached: %2.</source>
        <translation>Каталог базы данных %1 недоступен: %2.</translation>
    </message>
    <message>
        <source>%1 is not a file.</source>
        <translation>%1 — не файл.</translation>
    </message>
    <message>
        <source>The database %1 is empty: its content was lost. It is left as it is; restore a backup copy, or delete it to start over.</source>
        <translation>База данных %1 пуста: её содержимое потеряно. Она оставлена как есть; замените её копией или удалите, чтобы начать заново.</translation>
    </message>
    <message>
        <source>The file %1 is not a database (too short). It is left as it is.</source>
        <translation>Файл %1 — не база данных (слишком короткий). Он оставлен как есть.</translation>
    </message>
    <message>
        <source>The database %1 cannot be reached: it is a link to %2 (%3). Is the drive or the share that it is on connected?</source>
        <translation>База данных %1 недоступна: это ссылка на %2 (%3). Подключён ли диск или общий ресурс, на котором она находится?</translation>
    </message>
    <message>
        <source>The database %1 cannot be reached (%2). Is the drive or the share that it is on connected?</source>
        <translation>База данных %1 недоступна (%2). Подключён ли диск или общий ресурс, на котором она находится?</translation>
    </message>
    <message>
        <source>There is no database %1, but %2, which a program left that was writing it. Put the database back, or move that file to another directory to begin with an empty database.</source>
        <translation>Базы данных %1 нет, но есть %2, оставленный программой, которая в неё записывала. Верните базу данных на место или переместите этот файл в другой каталог, чтобы начать с пустой базы данных.</translation>
    </message>
    <message>
        <source>The database directory %1 holds no database, and none can be created: %2.</source>
        <translation>В каталоге %1 нет базы данных, и создать её не удаётся: %2.</translation>
    </message>
    <message>
        <source>The database %1 is damaged (its end is missing). It is left as it is.</source>
        <translation>База данных %1 повреждена (нет её конца). Она оставлена как есть.</translation>
    </message>
    <message>
        <source>The database %1 cannot be created: %2.</source>
        <translation>Не удаётся создать базу данных %1: %2.</translation>
    </message>
    <message>
        <source>The database %1 was replaced or removed by another program while it was in use. Nothing was changed: look at the devices that are there now, then try again.</source>
        <translation>База данных %1 во время работы была заменена или удалена другой программой. Ничего не изменено: посмотрите, какие микросхемы есть сейчас, и повторите попытку.</translation>
    </message>
    <message>
        <source>%1 Whether the change was stored cannot be read: look at the devices before you try again.</source>
        <translation>%1 Не удаётся прочитать, сохранено ли изменение: посмотрите на микросхемы, прежде чем повторить попытку.</translation>
    </message>
    <message>
        <source>The database %1 was replaced or removed by another program while a change was stored, which is lost: look at the devices that are there now, then try again.</source>
        <translation>База данных %1 была заменена или удалена другой программой во время сохранения изменения, и оно потеряно: посмотрите, какие микросхемы есть сейчас, и повторите попытку.</translation>
    </message>
    <message>
        <source>The database %1 was altered by another program: its texts are %2, not UTF-8. It is left as it is.</source>
        <translation>База данных %1 изменена другой программой: её тексты в кодировке %2, а не UTF-8. Она оставлена как есть.</translation>
    </message>
    <message>
        <source>The file %1 is a database of another program. It is left as it is.</source>
        <translation>Файл %1 — база данных другой программы. Он оставлен как есть.</translation>
    </message>
    <message>
        <source>The database %1 was written by a newer program (its schema is %2, this program knows up to %3). It is left as it is.</source>
        <translation>База данных %1 записана более новой программой (её схема %2, эта программа знает до %3). Она оставлена как есть.</translation>
    </message>
    <message>
        <source>The database %1 was altered by another program: its tables are not those of schema %2. It is left as it is.</source>
        <translation>База данных %1 изменена другой программой: её таблицы не соответствуют схеме %2. Она оставлена как есть.</translation>
    </message>
    <message>
        <source>The database in %1 is damaged: %2</source>
        <translation>База данных в %1 повреждена: %2</translation>
    </message>
    <message>
        <source>The database server %1 did not answer in time.</source>
        <translation>Сервер базы данных %1 не ответил вовремя.</translation>
    </message>
    <message>
        <source>The database server %1 cannot be reached: %2.</source>
        <translation>Сервер базы данных %1 недоступен: %2.</translation>
    </message>
    <message>
        <source>The database server %1 refused: %2.</source>
        <translation>Сервер базы данных %1 отказал: %2.</translation>
    </message>
    <message>
        <source>The database %1 on the server %2 does not allow that to the login %3: its administrator can grant the role %4 or %5.</source>
        <translation>База данных %1 на сервере %2 не разрешает этого пользователю %3: её администратор может предоставить роль %4 или %5.</translation>
    </message>
    <message>
        <source>The database %1 on the server %2 has no schema %3 for devices: its administrator can make it with &quot;gfpdb server sql&quot;.</source>
        <translation>В базе данных %1 на сервере %2 нет схемы %3 для микросхем: её администратор может создать её командой «gfpdb server sql».</translation>
    </message>
    <message>
        <source>There is no room for the change on the server %1.</source>
        <translation>На сервере %1 нет места для изменения.</translation>
    </message>
    <message>
        <source>The database %1 on the server %2 is locked by another program.</source>
        <translation>База данных %1 на сервере %2 заблокирована другой программой.</translation>
    </message>
    <message>
        <source>The database %1 on the server %2 is changed by too many programs now: try again.</source>
        <translation>Базу данных %1 на сервере %2 сейчас изменяет слишком много программ: повторите попытку.</translation>
    </message>
    <message>
        <source>The directory %1 has the database %2 and names a server in %3. Move the database to another directory, and copy its records from there to the server with &quot;gfpdb copy&quot;.</source>
        <translation>В каталоге %1 есть база данных %2, а в %3 указан сервер. Переместите базу данных в другой каталог и скопируйте оттуда её записи на сервер командой «gfpdb copy».</translation>
    </message>
    <message>
        <source>The database %1 on the server %2 cannot be read by the login %3: its administrator can grant the role %4.</source>
        <translation>Пользователь %3 не может читать базу данных %1 на сервере %2: её администратор может предоставить роль %4.</translation>
    </message>
    <message>
        <source>The database %1 on the server %2 can be read, but not changed: the server takes no changes now.</source>
        <translation>Базу данных %1 на сервере %2 можно читать, но нельзя изменять: сервер сейчас не принимает изменений.</translation>
    </message>
    <message>
        <source>The database %1 on the server %2 can be read, but not changed: the login %3 has not the role %4.</source>
        <translation>Базу данных %1 на сервере %2 можно читать, но нельзя изменять: у пользователя %3 нет роли %4.</translation>
    </message>
    <message>
        <source>The database %1 on the server %2 was written by a newer program (schema %3). It is left as it is.</source>
        <translation>База данных %1 на сервере %2 записана более новой программой (схема %3). Она оставлена как есть.</translation>
    </message>
    <message>
        <source>The database %1 on the server %2 is a database of another program. It is left as it is.</source>
        <translation>База данных %1 на сервере %2 — база данных другой программы. Она оставлена как есть.</translation>
    </message>
    <message>
        <source>The database %1 on the server %2 was written by an older program (schema %3): it can be used when someone with the role %4 has opened it once.</source>
        <translation>База данных %1 на сервере %2 записана более старой программой (схема %3): её можно будет использовать, когда её откроет тот, у кого есть роль %4.</translation>
    </message>
    <message>
        <source>The file %1 names a server since the directory was opened: open it again.</source>
        <translation>После открытия каталога в файле %1 указан сервер: откройте каталог ещё раз.</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Имя</translation>
    </message>
    <message>
        <source>ID</source>
        <translation>ID</translation>
    </message>
    <message>
        <source>Maker</source>
        <translation>Изготовитель</translation>
    </message>
    <message>
        <source>Density</source>
        <translation>Ёмкость</translation>
    </message>
    <message>
        <source>Dies</source>
        <translation>Кристаллы</translation>
    </message>
    <message>
        <source>Dies are selected by C2</source>
        <translation>Выбор кристаллов командой C2</translation>
    </message>
    <message>
        <source>Page size (bytes)</source>
        <translation>Размер страницы (байты)</translation>
    </message>
    <message>
        <source>Address bytes</source>
        <translation>Байты адреса</translation>
    </message>
    <message>
        <source>4-byte addressing, enter</source>
        <translation>4-байтовая адресация, вход</translation>
    </message>
    <message>
        <source>4-byte addressing, leave</source>
        <translation>4-байтовая адресация, выход</translation>
    </message>
    <message>
        <source>4-byte addressing, register and bit</source>
        <translation>4-байтовая адресация, регистр и бит</translation>
    </message>
    <message>
        <source>Quad enable</source>
        <translation>Включение Quad</translation>
    </message>
    <message>
        <source>Unlock blocks</source>
        <translation>Разблокировка блоков</translation>
    </message>
    <message>
        <source>Reset</source>
        <translation>Сброс</translation>
    </message>
    <message>
        <source>Busy is read by</source>
        <translation>Занятость читается</translation>
    </message>
    <message>
        <source>Dummy clocks, single</source>
        <translation>Холостые такты, Single</translation>
    </message>
    <message>
        <source>Quad read</source>
        <translation>Чтение Quad</translation>
    </message>
    <message>
        <source>Dummy clocks, quad</source>
        <translation>Холостые такты, Quad</translation>
    </message>
    <message>
        <source>Quad program</source>
        <translation>Запись Quad</translation>
    </message>
    <message>
        <source>Page program, longest wait (us)</source>
        <translation>Запись страницы, наибольшее ожидание (us)</translation>
    </message>
    <message>
        <source>Erase, longest wait (ms)</source>
        <translation>Стирание, наибольшее ожидание (ms)</translation>
    </message>
    <message>
        <source>from the ID</source>
        <translation>по ID</translation>
    </message>
    <message>
        <source>from the density</source>
        <translation>по ёмкости</translation>
    </message>
    <message>
        <source>assumed</source>
        <translation>принято</translation>
    </message>
    <message>
        <source>entered</source>
        <translation>введено</translation>
    </message>
    <message>
        <source>The command is on four lines, but the single-I/O flow has one.</source>
        <translation>Команда использует четыре линии, а в алгоритме Single I/O линия одна.</translation>
    </message>
    <message>
        <source>The image is compared with a mask: its bytes with bits that the mask clears never match.</source>
        <translation>Образ сравнивается с маской: байты с битами, которые маска сбрасывает, никогда не совпадут.</translation>
    </message>
    <message>
        <source>The expected data have bits that the mask clears: they never match.</source>
        <translation>В ожидаемых данных есть биты, которые маска сбрасывает: они никогда не совпадут.</translation>
    </message>
    <message>
        <source>The mask has no bit: whatever is read matches.</source>
        <translation>В маске нет ни одного бита: совпадёт всё, что будет прочитано.</translation>
    </message>
    <message>
        <source>The page size is %1, but the part has pages of %2 bytes: what is beyond the end of a page overwrites its start.</source>
        <translation>Размер страницы %1, а у микросхемы страницы по %2 байт: то, что выходит за конец страницы, перезапишет её начало.</translation>
    </message>
    <message>
        <source>The page size is %1, but the part has pages of %2 bytes: programming takes longer than necessary.</source>
        <translation>Размер страницы %1, а у микросхемы страницы по %2 байт: программирование длится дольше, чем нужно.</translation>
    </message>
    <message>
        <source>Data are changed in an operation that is also executed when the user asked for neither Program nor Erase.</source>
        <translation>Данные изменяются в операции, которая выполняется и тогда, когда пользователь не запрашивал ни Program, ни Erase.</translation>
    </message>
    <message>
        <source>Three address bytes reach %1 bytes, but the action works on %2.</source>
        <translation>Трёх байт адреса хватает на %1 байт, а действие охватывает %2.</translation>
    </message>
    <message>
        <source>The command does not have the bus width %1. Allowed: %2.</source>
        <translation>У команды нет разрядности шины %1. Допустимо: %2.</translation>
    </message>
    <message>
        <source>This is a command that programs.</source>
        <translation>Это команда программирования.</translation>
    </message>
    <message>
        <source>This is a command that reads data.</source>
        <translation>Это команда чтения данных.</translation>
    </message>
    <message>
        <source>This is a command that erases.</source>
        <translation>Это команда стирания.</translation>
    </message>
    <message>
        <source>The command has no dummy clocks.</source>
        <translation>У команды нет холостых тактов.</translation>
    </message>
    <message>
        <source>The command has two dummy clocks at least, its mode clocks.</source>
        <translation>У команды не менее двух холостых тактов: такты режима.</translation>
    </message>
    <message>
        <source>Nothing in the loop depends on its step: every step does the same.</source>
        <translation>Ничто в цикле не зависит от его шага: каждый шаг делает одно и то же.</translation>
    </message>
    <message>
        <source>The device has one die: the loop has one step.</source>
        <translation>В микросхеме один кристалл: в цикле один шаг.</translation>
    </message>
    <message>
        <source>There is no ID check: the flow changes whatever chip is connected.</source>
        <translation>ID не проверяется: алгоритм изменит любую подключённую микросхему.</translation>
    </message>
    <message>
        <source>The chip is changed before its ID is checked.</source>
        <translation>Микросхема изменяется до проверки её ID.</translation>
    </message>
    <message>
        <source>4-byte addressing is entered here, and Termination does not leave it.</source>
        <translation>Здесь включается 4-байтовая адресация, а Termination её не выключает.</translation>
    </message>
    <message>
        <source>No command uses this write enable.</source>
        <translation>Ни одна команда не использует это разрешение записи.</translation>
    </message>
    <message>
        <source>The chip is in deep power-down and ignores the command.</source>
        <translation>Микросхема в режиме глубокого энергосбережения и не воспринимает команду.</translation>
    </message>
    <message>
        <source>The command follows the reset that brings the chip to its end.</source>
        <translation>Команда следует за сбросом, который приводит микросхему в конечное состояние.</translation>
    </message>
    <message>
        <source>The command is on four lines, and nothing before it sets or checks the quad-enable bit.</source>
        <translation>Команда использует четыре линии, но до неё ничто не устанавливает и не проверяет бит Quad Enable.</translation>
    </message>
    <message>
        <source>%1 us are waited for instead of asking whether the chip is ready.</source>
        <translation>Вместо опроса готовности микросхемы выдерживается пауза %1 мкс.</translation>
    </message>
    <message>
        <source>Nothing waits until the chip is ready: it ignores the commands that follow.</source>
        <translation>Готовность микросхемы не ожидается: она не воспримет следующие команды.</translation>
    </message>
    <message>
        <source>There is no write enable before it: the chip ignores the command.</source>
        <translation>Перед командой нет разрешения записи: микросхема её не воспримет.</translation>
    </message>
    <message>
        <source>The command has no address, but the action sends one.</source>
        <translation>У команды нет адреса, а действие его отправляет.</translation>
    </message>
    <message>
        <source>The command has an address, but the action sends none.</source>
        <translation>У команды есть адрес, а действие его не отправляет.</translation>
    </message>
    <message>
        <source>The command always has four address bytes, but the action sends three.</source>
        <translation>У команды всегда четыре байта адреса, а действие отправляет три.</translation>
    </message>
    <message>
        <source>The action sends four address bytes, but nothing before it enters 4-byte addressing.</source>
        <translation>Действие отправляет четыре байта адреса, но до него 4-байтовая адресация не включается.</translation>
    </message>
    <message>
        <source>The action sends three address bytes, but 4-byte addressing was entered before.</source>
        <translation>Действие отправляет три байта адреса, но до него включена 4-байтовая адресация.</translation>
    </message>
    <message>
        <source>Template name</source>
        <translation>Имя шаблона</translation>
    </message>
    <message>
        <source>Flow template</source>
        <translation>Шаблон алгоритма</translation>
    </message>
    <message>
        <source>an unpaired surrogate is not a character</source>
        <translation>непарный суррогат — не символ</translation>
    </message>
    <message>
        <source>the name %1 occurs twice</source>
        <translation>имя %1 встречается дважды</translation>
    </message>
    <message>
        <source>values are nested too deeply</source>
        <translation>слишком глубокая вложенность значений</translation>
    </message>
    <message>
        <source>there is text after the end</source>
        <translation>после конца есть текст</translation>
    </message>
    <message>
        <source>an object needs a name in double quotes here</source>
        <translation>здесь объекту нужно имя в двойных кавычках</translation>
    </message>
    <message>
        <source>&quot;:&quot; is missing after %1</source>
        <translation>после %1 нет «:»</translation>
    </message>
    <message>
        <source>an object needs &quot;,&quot; or &quot;}&quot; here</source>
        <translation>здесь объекту нужно «,» или «}»</translation>
    </message>
    <message>
        <source>a list needs &quot;,&quot; or &quot;]&quot; here</source>
        <translation>здесь списку нужно «,» или «]»</translation>
    </message>
    <message>
        <source>\u needs four hexadecimal digits</source>
        <translation>после \u нужны четыре шестнадцатеричные цифры</translation>
    </message>
    <message>
        <source>a string is not terminated</source>
        <translation>строка не завершена</translation>
    </message>
    <message>
        <source>there is no such escape</source>
        <translation>такой управляющей последовательности нет</translation>
    </message>
    <message>
        <source>a string has a control character or a line break in it</source>
        <translation>в строке есть управляющий символ или перевод строки</translation>
    </message>
    <message>
        <source>a string is not UTF-8</source>
        <translation>строка не в UTF-8</translation>
    </message>
    <message>
        <source>a number is too large</source>
        <translation>слишком большое число</translation>
    </message>
    <message>
        <source>a value was expected</source>
        <translation>ожидалось значение</translation>
    </message>
    <message>
        <source>true or false</source>
        <translation>true или false</translation>
    </message>
    <message>
        <source>a number</source>
        <translation>число</translation>
    </message>
    <message>
        <source>a string</source>
        <translation>строка</translation>
    </message>
    <message>
        <source>a list</source>
        <translation>список</translation>
    </message>
    <message>
        <source>an object</source>
        <translation>объект</translation>
    </message>
    <message>
        <source>A string was expected, but this is %1.</source>
        <translation>Ожидалась строка, но найдено: %1.</translation>
    </message>
    <message>
        <source>A list was expected, but this is %1.</source>
        <translation>Ожидался список, но найдено: %1.</translation>
    </message>
    <message>
        <source>An object was expected, but this is %1.</source>
        <translation>Ожидался объект, но найдено: %1.</translation>
    </message>
    <message>
        <source>%1 is not known here. Allowed: %2.</source>
        <translation>%1 здесь неизвестно. Допустимо: %2.</translation>
    </message>
    <message>
        <source>%1 is missing.</source>
        <translation>Отсутствует %1.</translation>
    </message>
    <message>
        <source>The catalogue %1 cannot be read: %2.</source>
        <translation>Не удаётся прочитать каталог микросхем %1: %2.</translation>
    </message>
    <message>
        <source>device %1: %2</source>
        <translation>микросхема %1: %2</translation>
    </message>
    <message>
        <source>stored template %1: %2</source>
        <translation>сохранённый шаблон %1: %2</translation>
    </message>
    <message>
        <source>The device %1 is already in %2.</source>
        <translation>Микросхема %1 уже есть в %2.</translation>
    </message>
    <message>
        <source>The stored template %1 is already in %2.</source>
        <translation>Сохранённый шаблон %1 уже есть в %2.</translation>
    </message>
    <message>
        <source>The device %1 exists with different content: --replace replaces it.</source>
        <translation>Микросхема %1 существует с другим содержимым: --replace заменит её.</translation>
    </message>
    <message>
        <source>The stored template %1 exists with different content: --replace replaces it.</source>
        <translation>Сохранённый шаблон %1 существует с другим содержимым: --replace заменит его.</translation>
    </message>
    <message>
        <source>The name of the device %1 is that of a stored template.</source>
        <translation>Имя микросхемы %1 занято сохранённым шаблоном.</translation>
    </message>
    <message>
        <source>The name of the stored template %1 is that of a device.</source>
        <translation>Имя сохранённого шаблона %1 занято микросхемой.</translation>
    </message>
    <message>
        <source>The column is missing.</source>
        <translation>Столбец отсутствует.</translation>
    </message>
    <message>
        <source>The column is not known. Allowed: %1.</source>
        <translation>Неизвестный столбец. Допустимо: %1.</translation>
    </message>
    <message>
        <source>The column occurs twice.</source>
        <translation>Столбец встречается дважды.</translation>
    </message>
    <message>
        <source>A quote that opens in this row is never closed.</source>
        <translation>Кавычка, открытая в этой строке, не закрыта.</translation>
    </message>
    <message>
        <source>The row has 1 cell, the line of column names has %1.</source>
        <translation>В строке 1 ячейка, в строке имён столбцов — %1.</translation>
    </message>
    <message>
        <source>The row has %1 cells, the line of column names has %2.</source>
        <translation>Ячеек в строке: %1, в строке имён столбцов: %2.</translation>
    </message>
    <message>
        <source>The file cannot be read: %1.</source>
        <translation>Не удаётся прочитать файл: %1.</translation>
    </message>
    <message>
        <source>This is not valid JSON: %1.</source>
        <translation>Это не правильный JSON: %1.</translation>
    </message>
    <message>
        <source>This is not a file of records. Allowed: %1.</source>
        <translation>Это не файл записей. Допустимо: %1.</translation>
    </message>
    <message>
        <source>This version of the format is not known. Allowed: %1.</source>
        <translation>Неизвестная версия формата. Допустимо: %1.</translation>
    </message>
    <message>
        <source>The text is not UTF-8.</source>
        <translation>Текст не в UTF-8.</translation>
    </message>
    <message>
        <source>A whole number or null was expected, but this is %1.</source>
        <translation>Ожидалось целое число или null, но найдено: %1.</translation>
    </message>
    <message>
        <source>device family</source>
        <translation>семейство микросхем</translation>
    </message>
    <message>
        <source>configuration mode</source>
        <translation>режим конфигурирования</translation>
    </message>
    <message>
        <source>single-I/O flow</source>
        <translation>алгоритм Single I/O</translation>
    </message>
    <message>
        <source>quad-I/O flow</source>
        <translation>алгоритм Quad I/O</translation>
    </message>
    <message>
        <source>This operation occurs twice.</source>
        <translation>Эта операция встречается дважды.</translation>
    </message>
    <message>
        <source>There is no such operation. Allowed: %1.</source>
        <translation>Такой операции нет. Допустимо: %1.</translation>
    </message>
    <message>
        <source>There is no such action. Allowed: %1.</source>
        <translation>Такого действия нет. Допустимо: %1.</translation>
    </message>
    <message>
        <source>The flows of %1 cannot be read.</source>
        <translation>Не удаётся прочитать алгоритмы %1.</translation>
    </message>
    <message>
        <source>A device has at most %1 single-I/O dummy clocks: the copy gets these, and its flow has the %2 of %3.</source>
        <translation>У микросхемы не более %1 холостых тактов Single I/O: копия получает это число, а в алгоритме остаётся %2, как у %3.</translation>
    </message>
    <message>
        <source>The configuration mode %1 has no serial flash devices.</source>
        <translation>В режиме конфигурирования %1 нет микросхем последовательной флеш-памяти.</translation>
    </message>
    <message>
        <source>page size</source>
        <translation>размер страницы</translation>
    </message>
    <message>
        <source>quad-I/O dummy clocks</source>
        <translation>холостые такты Quad I/O</translation>
    </message>
    <message>
        <source>%1: %2 in the list, %3 by %4</source>
        <translation>%1: %2 в списке, %3 по %4</translation>
    </message>
    <message>
        <source>address bytes</source>
        <translation>байты адреса</translation>
    </message>
    <message>
        <source>%1 or %2</source>
        <translation>%1 или %2</translation>
    </message>
    <message>
        <source>erase by %1</source>
        <translation>стирание командой %1</translation>
    </message>
    <message>
        <source>not</source>
        <translation>нет</translation>
    </message>
    <message>
        <source>%1 bytes</source>
        <translation>%1 байт</translation>
    </message>
    <message>
        <source>none</source>
        <translation>нет</translation>
    </message>
    <message>
        <source>reserved</source>
        <translation>зарезервировано</translation>
    </message>
    <message>
        <source>quad enable</source>
        <translation>включение Quad</translation>
    </message>
    <message>
        <source>basic table: %1 double words in read-outs of this part, %2 here</source>
        <translation>базовая таблица: двойных слов в данных этой микросхемы — %1, здесь — %2</translation>
    </message>
    <message>
        <source>4-4-4 read: in read-outs of this part, but not here</source>
        <translation>чтение 4-4-4: есть в данных этой микросхемы, но не здесь</translation>
    </message>
    <message>
        <source>%1 is not a number.</source>
        <translation>%1 — не число.</translation>
    </message>
    <message>
        <source>%1 is out of range: %2 to %3 are allowed.</source>
        <translation>%1 вне диапазона: допустимо от %2 до %3.</translation>
    </message>
    <message>
        <source>%1 is more than 32Gb.</source>
        <translation>%1 больше 32Gb.</translation>
    </message>
    <message>
        <source>%1 is not a density such as 128Mb.</source>
        <translation>%1 — не ёмкость вида 128Mb.</translation>
    </message>
    <message>
        <source>%1 is neither an erase command such as %2 nor %3.</source>
        <translation>%1 — не команда стирания вида %2 и не %3.</translation>
    </message>
    <message>
        <source>%1 is not a power of two.</source>
        <translation>%1 — не степень двойки.</translation>
    </message>
    <message>
        <source>There is no value %1.</source>
        <translation>Значения %1 нет.</translation>
    </message>
    <message>
        <source>The value %1 is missing: enter it.</source>
        <translation>Нет значения %1: введите его.</translation>
    </message>
    <message>
        <source>The number of dies, %1, does not divide the density.</source>
        <translation>Ёмкость не делится на число кристаллов: %1.</translation>
    </message>
    <message>
        <source>The erase command %1 does not divide the density.</source>
        <translation>Ёмкость не делится на размер команды стирания %1.</translation>
    </message>
    <message>
        <source>The density %1 (%2) is not what the ID usually stands for, which is %3.</source>
        <translation>Ёмкость %1 (%2) не та, которую обычно означает этот ID: %3.</translation>
    </message>
    <message>
        <source>SFDP DW2 says a density that no device can have: %1.</source>
        <translation>SFDP DW2 указывает ёмкость, которой не может быть у микросхемы: %1.</translation>
    </message>
    <message>
        <source>A device has at most %1 single-I/O dummy clocks: it gets these, and its flow has %2.</source>
        <translation>У микросхемы не более %1 холостых тактов Single I/O: она получает это число, а в алгоритме — %2.</translation>
    </message>
    <message>
        <source>The chip has a table of the maker %1, and its ID is of the maker %2.</source>
        <translation>В микросхеме есть таблица изготовителя %1, а её ID — изготовителя %2.</translation>
    </message>
    <message>
        <source>No listed part tells what the maker&apos;s parts have in common: usual commands are assumed.</source>
        <translation>В списке нет микросхем этого изготовителя: предполагаются обычные команды.</translation>
    </message>
    <message>
        <source>Several listed parts have this ID: %1.</source>
        <translation>Этот ID у нескольких микросхем из списка: %1.</translation>
    </message>
    <message>
        <source>The commands have four address bytes, and nothing enters 4-byte addressing.</source>
        <translation>У команд четыре байта адреса, но 4-байтная адресация не включается.</translation>
    </message>
    <message>
        <source>The commands have three address bytes, and the device is in 4-byte addressing.</source>
        <translation>У команд три байта адреса, а микросхема в 4-байтной адресации.</translation>
    </message>
    <message>
        <source>Three address bytes do not reach all of %1.</source>
        <translation>Трёх байтов адреса не хватает на %1.</translation>
    </message>
    <message>
        <source>SFDP DW1 lists three address bytes alone, which do not reach all of %1: four are taken.</source>
        <translation>SFDP DW1 указывает только три байта адреса, которых не хватает на %1: берутся четыре.</translation>
    </message>
    <message>
        <source>SFDP DW16 lists every way into 4-byte addressing, and SFDP DW1 three address bytes: DW16 is ignored.</source>
        <translation>SFDP DW16 указывает все способы перехода к 4-байтной адресации, а SFDP DW1 — три байта адреса: DW16 не учитывается.</translation>
    </message>
    <message>
        <source>SFDP DW16 lists no way into 4-byte addressing that a flow can take: %1 is taken.</source>
        <translation>SFDP DW16 не указывает пригодного для алгоритма способа перехода к 4-байтной адресации: берётся %1.</translation>
    </message>
    <message>
        <source>SFDP has no page size: %1 is taken (%2).</source>
        <translation>В SFDP нет размера страницы: берётся %1 (%2).</translation>
    </message>
    <message>
        <source>SFDP DW11 has a page size that no flow can have: %1 is taken (%2).</source>
        <translation>Размер страницы из SFDP DW11 невозможен в алгоритме: берётся %1 (%2).</translation>
    </message>
    <message>
        <source>SFDP DW15 says with a reserved value how quad is enabled: look it up and enter it.</source>
        <translation>SFDP DW15 задаёт способ включения Quad зарезервированным значением: найдите его и введите.</translation>
    </message>
    <message>
        <source>SFDP does not say how quad is enabled: %1 is taken (%2).</source>
        <translation>В SFDP не сказано, как включается Quad: берётся %1 (%2).</translation>
    </message>
    <message>
        <source>SFDP lists no read on four lines: the quad-I/O flow uses one.</source>
        <translation>В SFDP нет чтения по четырём линиям: алгоритм Quad I/O его использует.</translation>
    </message>
    <message>
        <source>No erase command serves the whole part: the chip is erased at once.</source>
        <translation>Нет команды стирания для всей микросхемы: она стирается целиком.</translation>
    </message>
    <message>
        <source>The four bytes of each double word are in reverse order.</source>
        <translation>Четыре байта каждого двойного слова идут в обратном порядке.</translation>
    </message>
    <message>
        <source>The bytes do not begin with the signature &quot;SFDP&quot;.</source>
        <translation>Байты не начинаются с сигнатуры «SFDP».</translation>
    </message>
    <message>
        <source>The signature &quot;SFDP&quot; is at %1 and not at the start: bytes were added before it.</source>
        <translation>Сигнатура «SFDP» находится в %1, а не в начале: перед ней добавлены байты.</translation>
    </message>
    <message>
        <source>The read-out ends within the SFDP header.</source>
        <translation>Данные обрываются в заголовке SFDP.</translation>
    </message>
    <message>
        <source>SFDP revision %1 is unknown: revisions 1.x can be read.</source>
        <translation>Неизвестная редакция SFDP %1: читаются редакции 1.x.</translation>
    </message>
    <message>
        <source>%1 has the unknown revision %2: it is not read.</source>
        <translation>Неизвестная редакция %2 таблицы, которая не читается: %1.</translation>
    </message>
    <message>
        <source>There are %1 headers of %2: the one of revision %3 is taken.</source>
        <translation>Заголовков таблицы (%2): %1. Берётся заголовок редакции %3.</translation>
    </message>
    <message>
        <source>The read-out ends within the parameter headers: %1 of %2 are there.</source>
        <translation>Данные обрываются в заголовках параметров: есть %1 из %2.</translation>
    </message>
    <message>
        <source>A table begins at %1: there is room for %2 parameter headers, not for %3.</source>
        <translation>Таблица начинается в %1: места хватает на заголовки параметров: %2, а не %3.</translation>
    </message>
    <message>
        <source>The parameter header at %1 is blank.</source>
        <translation>Заголовок параметров в %1 пуст.</translation>
    </message>
    <message>
        <source>%1 begins at %2, within the headers: it is not read.</source>
        <translation>Таблица начинается в %2, внутри заголовков, и не читается: %1.</translation>
    </message>
    <message>
        <source>%1 is empty.</source>
        <translation>Таблица пуста: %1.</translation>
    </message>
    <message>
        <source>%1 is not in the read-out: it begins at %2, and the read-out ends at %3.</source>
        <translation>Таблицы нет в данных: %1. Она начинается в %2, а данные кончаются в %3.</translation>
    </message>
    <message>
        <source>The read-out ends within %1: %2 of %3 double words are there.</source>
        <translation>Данные обрываются в таблице: %1. Двойных слов есть %2 из %3.</translation>
    </message>
    <message>
        <source>%1 begins at %2, which is not a multiple of 4.</source>
        <translation>Таблица начинается в %2, что не кратно 4: %1.</translation>
    </message>
    <message>
        <source>%1 and %2 overlap.</source>
        <translation>Таблицы перекрываются: %1, %2.</translation>
    </message>
    <message>
        <source>The bytes at %1 are in no table: they are not read.</source>
        <translation>Байты в %1 не входят ни в одну таблицу и не читаются.</translation>
    </message>
    <message>
        <source>There is no basic table.</source>
        <translation>Нет базовой таблицы.</translation>
    </message>
    <message>
        <source>The basic table is blank.</source>
        <translation>Базовая таблица пуста.</translation>
    </message>
    <message>
        <source>The basic table has %1 double words: %2 belong to its revision %3.</source>
        <translation>Двойных слов в базовой таблице: %1, а редакции %3 положено %2.</translation>
    </message>
    <message>
        <source>SFDP DW%1 has zeros where every part has ones: bytes may be missing or shifted.</source>
        <translation>В SFDP DW%1 нули там, где у всех микросхем единицы: байты могут отсутствовать или быть сдвинуты.</translation>
    </message>
    <message>
        <source>SFDP DW2 says no density that a part can have: %1.</source>
        <translation>SFDP DW2 не указывает возможной ёмкости микросхемы: %1.</translation>
    </message>
    <message>
        <source>SFDP DW1 says with a reserved value how many address bytes there are.</source>
        <translation>SFDP DW1 задаёт число байтов адреса зарезервированным значением.</translation>
    </message>
    <message>
        <source>SFDP DW%1 lists the %2 read, and DW%3 has no command for it.</source>
        <translation>SFDP DW%1 указывает чтение %2, а в DW%3 нет его команды.</translation>
    </message>
    <message>
        <source>SFDP DW%1: erase type %2 has no command: it is left out.</source>
        <translation>SFDP DW%1: у типа стирания %2 нет команды: он пропущен.</translation>
    </message>
    <message>
        <source>SFDP DW%1: erase type %2 erases 2^%3 bytes, which is too much: it is left out.</source>
        <translation>SFDP DW%1: тип стирания %2 стирает 2^%3 байт, это слишком много: он пропущен.</translation>
    </message>
    <message>
        <source>SFDP DW1 erases 4 KiB by %1, which no erase type does.</source>
        <translation>SFDP DW1 стирает 4 КиБ командой %1, чего не делает ни один тип стирания.</translation>
    </message>
    <message>
        <source>The table of 4-byte instructions is blank.</source>
        <translation>Таблица 4-байтных команд пуста.</translation>
    </message>
    <message>
        <source>The table of 4-byte instructions has no erase commands.</source>
        <translation>В таблице 4-байтных команд нет команд стирания.</translation>
    </message>
    <message>
        <source>The table of 4-byte instructions lists erase type %1, which the basic table does not have.</source>
        <translation>В таблице 4-байтных команд есть тип стирания %1, которого нет в базовой таблице.</translation>
    </message>
    <message>
        <source>The table of 4-byte instructions lists erase type %1 and has no command for it.</source>
        <translation>В таблице 4-байтных команд есть тип стирания %1, но нет его команды.</translation>
    </message>
    <message>
        <source>The sectors of sector map %1 come to %2 bytes, and the part has %3.</source>
        <translation>Секторы карты секторов %1 дают в сумме %2 байт, а у микросхемы — %3.</translation>
    </message>
    <message>
        <source>The sectors of sector map %1 are erased by types that the basic table does not have.</source>
        <translation>Секторы карты секторов %1 стираются типами, которых нет в базовой таблице.</translation>
    </message>
    <message>
        <source>The sector map has no end.</source>
        <translation>У карты секторов нет конца.</translation>
    </message>
    <message>
        <source>the basic table</source>
        <translation>базовая таблица</translation>
    </message>
    <message>
        <source>the sector map</source>
        <translation>карта секторов</translation>
    </message>
    <message>
        <source>the table of 4-byte instructions</source>
        <translation>таблица 4-байтных команд</translation>
    </message>
    <message>
        <source>the table %1</source>
        <translation>таблица %1</translation>
    </message>
    <message>
        <source>The database %1 on the server %2 was replaced by another one while it was in use. Nothing was changed: look at the devices that are there now, then try again.</source>
        <translation>База данных %1 на сервере %2 была заменена другой во время работы. Ничего не изменено: посмотрите, какие микросхемы есть сейчас, и повторите попытку.</translation>
    </message>
    <message>
        <source>The database %1 on the server %2 is another one now.</source>
        <translation>База данных %1 на сервере %2 теперь другая.</translation>
    </message>
    <message>
        <source>the certificates %1 are not a file</source>
        <translation>сертификаты %1 — не файл</translation>
    </message>
    <message>
        <source>no reason</source>
        <translation>без причины</translation>
    </message>
    <message>
        <source>the connection is closed</source>
        <translation>соединение закрыто</translation>
    </message>
    <message>
        <source>The server does not copy.</source>
        <translation>Сервер не копирует.</translation>
    </message>
    <message>
        <source>%1 is not a setting</source>
        <translation>%1 — не параметр</translation>
    </message>
    <message>
        <source>passwords do not belong into it: put them into the file .pgpass in your home directory</source>
        <translation>паролям там не место: поместите их в файл .pgpass в домашнем каталоге</translation>
    </message>
    <message>
        <source>%1 is not a setting. There are: %2</source>
        <translation>%1 — не параметр. Есть: %2</translation>
    </message>
    <message>
        <source>%1 is there twice</source>
        <translation>%1 встречается дважды</translation>
    </message>
    <message>
        <source>%1 cannot be %2</source>
        <translation>%1 не может быть %2</translation>
    </message>
    <message>
        <source>it does not begin with %1</source>
        <translation>он не начинается с %1</translation>
    </message>
    <message>
        <source>it has no settings</source>
        <translation>в нём нет параметров</translation>
    </message>
    <message>
        <source>it names too many hosts</source>
        <translation>указано слишком много узлов</translation>
    </message>
    <message>
        <source>&quot;port&quot; must be one for all hosts, or one for each</source>
        <translation>«port» должен быть один для всех узлов или по одному для каждого</translation>
    </message>
    <message>
        <source>it does not say which &quot;database&quot; is meant</source>
        <translation>не указано, какая «database» имеется в виду</translation>
    </message>
    <message>
        <source>The settings of the server cannot be used: %1.</source>
        <translation>Параметры сервера нельзя использовать: %1.</translation>
    </message>
    <message>
        <source>The file %1 cannot be used: %2.</source>
        <translation>Файл %1 нельзя использовать: %2.</translation>
    </message>
    <message>
        <source>The directory has the database %1: name the server in another directory, and copy the records there with &quot;gfpdb copy&quot;.</source>
        <translation>В каталоге есть база данных %1: укажите сервер в другом каталоге и скопируйте туда записи командой «gfpdb copy».</translation>
    </message>
    <message>
        <source>The file %1 cannot be written: %2.</source>
        <translation>Не удаётся записать файл %1: %2.</translation>
    </message>
    <message>
        <source>The database cannot keep %1 of %2: it is not a text in UTF-8, or has the character NUL.</source>
        <translation>База данных не может хранить %1 записи %2: это не текст в UTF-8 или в нём есть символ NUL.</translation>
    </message>
    <message>
        <source>The device %1 is being changed by another program: try again.</source>
        <translation>Микросхему %1 сейчас меняет другая программа: повторите попытку.</translation>
    </message>
    <message>
        <source>The import was cancelled.</source>
        <translation>Импорт отменён.</translation>
    </message>
    <message>
        <source>it is not a regular file</source>
        <translation>это не обычный файл</translation>
    </message>
    <message>
        <source>it is larger than %1</source>
        <translation>его размер больше %1</translation>
    </message>
    <message>
        <source>The command is on four lines, and a write of the status registers before it clears the quad-enable bit.</source>
        <translation>Команда использует четыре линии, но запись регистров состояния до неё сбрасывает бит Quad Enable.</translation>
    </message>
</context>
</TS>
