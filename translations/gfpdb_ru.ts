<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ru" sourcelanguage="en">
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
</context>
</TS>
