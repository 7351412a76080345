<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="es" sourcelanguage="en">
<context>
    <name>GFPC_CHARTS</name>
    <message>
        <source>The flows of %1 cannot be read.</source>
        <translation>No se pueden leer los flujos de %1.</translation>
    </message>
    <message>
        <source>%1 has no quad-I/O flow.</source>
        <translation>%1 no tiene flujo Quad I/O.</translation>
    </message>
    <message>
        <source>%1 has no single-I/O flow.</source>
        <translation>%1 no tiene flujo Single I/O.</translation>
    </message>
    <message>
        <source>Page %1 of %2</source>
        <translation>Página %1 de %2</translation>
    </message>
    <message>
        <source>There are no fonts on this computer.</source>
        <translation>No hay fuentes en este equipo.</translation>
    </message>
    <message>
        <source>Quad-I/O flow</source>
        <translation>Flujo Quad I/O</translation>
    </message>
    <message>
        <source>Single-I/O flow</source>
        <translation>Flujo Single I/O</translation>
    </message>
</context>
<context>
    <name>gfpdb</name>
    <message>
        <source>Upper and lower case count as the same.</source>
        <translation>No se distinguen mayúsculas y minúsculas.</translation>
    </message>
    <message>
        <source>There is a built-in device called %1: choose another name.</source>
        <translation>Hay un dispositivo integrado llamado %1: elija otro nombre.</translation>
    </message>
    <message>
        <source>There is a built-in template called %1: choose another name.</source>
        <translation>Hay una plantilla integrada llamada %1: elija otro nombre.</translation>
    </message>
    <message>
        <source>part name</source>
        <translation>Nombre del componente</translation>
    </message>
    <message>
        <source>The device %1 is neither deleted nor replaced, because it could not be read when it was last looked for: %2</source>
        <translation>El dispositivo %1 no se borra ni se reemplaza porque no se pudo leer la última vez que se buscó: %2</translation>
    </message>
    <message>
        <source>The flows of %1 in %2 cannot be read.</source>
        <translation>No se pueden leer los flujos de %1 en %2.</translation>
    </message>
    <message>
        <source>Property %1 of a device is not a number.</source>
        <translation>La propiedad %1 de un dispositivo no es un número.</translation>
    </message>
    <message>
        <source>Property %1 of a device is not a text.</source>
        <translation>La propiedad %1 de un dispositivo no es un texto.</translation>
    </message>
    <message>
        <source>There is a stored template called %1: choose another name.</source>
        <translation>Hay una plantilla guardada llamada %1: elija otro nombre.</translation>
    </message>
    <message>
        <source>There is a device called %1: it is the one that is shown. Enter another name to rename it.</source>
        <translation>Hay un dispositivo llamado %1: es el que se muestra. Escriba otro nombre para cambiárselo.</translation>
    </message>
    <message>
        <source>There is a device called %1 for this family and configuration mode: choose another name.</source>
        <translation>Hay un dispositivo llamado %1 para esta familia y este modo de configuración: elija otro nombre.</translation>
    </message>
    <message>
        <source>There is a stored template called %1: choose another name, or remove that template first.</source>
        <translation>Hay una plantilla guardada llamada %1: elija otro nombre o quite antes esa plantilla.</translation>
    </message>
    <message>
        <source>The template name %1 differs from the device name %2 in case only: choose another name.</source>
        <translation>El nombre de plantilla %1 solo difiere del nombre del dispositivo %2 en mayúsculas y minúsculas: elija otro nombre.</translation>
    </message>
    <message>
        <source>There is a device called %1: choose another name.</source>
        <translation>Hay un dispositivo llamado %1: elija otro nombre.</translation>
    </message>
    <message>
        <source>A flash device with an I/O voltage of %1 cannot be connected to %2 devices: it must support 1.8 V.</source>
        <translation>Un dispositivo flash con una tensión de I/O de %1 no se puede conectar a dispositivos %2: debe admitir 1,8 V.</translation>
    </message>
    <message>
        <source>%1 The device %2 that was deleted before was not put back: %3</source>
        <translation>%1 El dispositivo %2, que se había borrado antes, no se restauró: %3</translation>
    </message>
    <message>
        <source>There is no record to save.</source>
        <translation>No hay ningún registro que guardar.</translation>
    </message>
    <message>
        <source>The configuration mode has no flash devices.</source>
        <translation>El modo de configuración no tiene dispositivos flash.</translation>
    </message>
    <message>
        <source>The device %1 contains text that is not valid UTF-8.</source>
        <translation>El dispositivo %1 contiene texto que no es UTF-8 válido.</translation>
    </message>
    <message>
        <source>The template %1 is built in: it cannot be removed.</source>
        <translation>La plantilla %1 está integrada: no se puede quitar.</translation>
    </message>
    <message>
        <source>device name</source>
        <translation>Nombre del dispositivo</translation>
    </message>
    <message>
        <source>device ID</source>
        <translation>ID del dispositivo</translation>
    </message>
    <message>
        <source>I/O voltage</source>
        <translation>Tensión de I/O</translation>
    </message>
    <message>
        <source>density</source>
        <translation>Capacidad del dispositivo</translation>
    </message>
    <message>
        <source>total die count</source>
        <translation>Número total de dies</translation>
    </message>
    <message>
        <source>number of single-I/O dummy clocks</source>
        <translation>Ciclos dummy en modo Single I/O</translation>
    </message>
    <message>
        <source>number of quad-I/O dummy clocks</source>
        <translation>Ciclos dummy en modo Quad I/O</translation>
    </message>
    <message>
        <source>template name</source>
        <translation>Nombre de la plantilla</translation>
    </message>
    <message>
        <source>flow template</source>
        <translation>Plantilla del flujo de programación</translation>
    </message>
    <message>
        <source>a whole number from %1 to %2</source>
        <translation>un número entero de %1 a %2</translation>
    </message>
    <message>
        <source>one byte in hexadecimal, such as 0x9F</source>
        <translation>un byte en hexadecimal, como 0x9F</translation>
    </message>
    <message>
        <source>1 to %1 bytes in hexadecimal separated by single spaces, such as 0x00 0x02</source>
        <translation>de 1 a %1 bytes en hexadecimal separados por un espacio, como 0x00 0x02</translation>
    </message>
    <message>
        <source>an address of eight hexadecimal digits, such as 0x00010000</source>
        <translation>una dirección de ocho dígitos hexadecimales, como 0x00010000</translation>
    </message>
    <message>
        <source>%1, or %2</source>
        <translation>%1 o %2</translation>
    </message>
    <message>
        <source>text of 1 to %1 characters on one line</source>
        <translation>texto de 1 a %1 caracteres en una línea</translation>
    </message>
    <message>
        <source>a power of two from 1 to %1</source>
        <translation>una potencia de dos de 1 a %1</translation>
    </message>
    <message>
        <source>Loop marker</source>
        <translation>Marca de bucle</translation>
    </message>
    <message>
        <source>There is no action property with the number %1. Allowed: 0 to %2.</source>
        <translation>No hay ninguna propiedad de acción con el número %1. Permitido: de 0 a %2.</translation>
    </message>
    <message>
        <source>An empty value</source>
        <translation>Un valor vacío</translation>
    </message>
    <message>
        <source>%1 is not allowed for &quot;%2&quot;. Allowed: %3.</source>
        <translation>%1 no está permitido para «%2». Permitido: %3.</translation>
    </message>
    <message>
        <source>The %1 is empty: 1 to %2 characters are allowed.</source>
        <translation>«%1» está vacío: se permiten de 1 a %2 caracteres.</translation>
    </message>
    <message>
        <source>The %1 has characters that cannot be stored.</source>
        <translation>«%1» tiene caracteres que no se pueden guardar.</translation>
    </message>
    <message>
        <source>The %1 has %2 characters: 1 to %3 characters are allowed.</source>
        <translation>«%1» tiene %2 caracteres: se permiten de 1 a %3.</translation>
    </message>
    <message>
        <source>The %1 has a line break or another control character: use letters, digits, punctuation and spaces.</source>
        <translation>«%1» tiene un salto de línea u otro carácter de control: use letras, cifras, signos de puntuación y espacios.</translation>
    </message>
    <message>
        <source>The %1 %2 begins or ends with a space: remove it.</source>
        <translation>«%1» %2 empieza o termina con un espacio: quítelo.</translation>
    </message>
    <message>
        <source>The %1 %2 is reserved for a new device: choose another.</source>
        <translation>«%1» %2 está reservado para un dispositivo nuevo: elija otro.</translation>
    </message>
    <message>
        <source>%1 Enter 1 to %2 bytes in hexadecimal, separated by spaces or commas, for example 0xC2 0x20 0x19.</source>
        <translation>%1 Escriba de 1 a %2 bytes en hexadecimal, separados por espacios o comas, por ejemplo 0xC2 0x20 0x19.</translation>
    </message>
    <message>
        <source>The device ID is empty.</source>
        <translation>El ID del dispositivo está vacío.</translation>
    </message>
    <message>
        <source>%1 is not a byte of a device ID.</source>
        <translation>%1 no es un byte de un ID de dispositivo.</translation>
    </message>
    <message>
        <source>The device ID has %1 bytes.</source>
        <translation>El ID del dispositivo tiene %1 bytes.</translation>
    </message>
    <message>
        <source>The %1 %2 is out of range: %3 to %4 are allowed.</source>
        <translation>«%1»: %2 está fuera de rango; se permite de %3 a %4.</translation>
    </message>
    <message>
        <source>The %1 %2 is not known: choose one of %3.</source>
        <translation>«%1»: %2 no se conoce; elija uno de %3.</translation>
    </message>
    <message>
        <source>The loop that starts at action %1 has no end.</source>
        <translation>El bucle que empieza en la acción %1 no tiene fin.</translation>
    </message>
    <message>
        <source>A loop over each %1 cannot be in a loop over each %2. Allowed: a loop over each page or sector in a loop over each die.</source>
        <translation>Un bucle por «%1» no puede estar en un bucle por «%2». Permitido: un bucle por «page» o «sector» en un bucle por «die».</translation>
    </message>
    <message>
        <source>The end of a loop has no start before it.</source>
        <translation>El fin de un bucle no tiene inicio antes.</translation>
    </message>
    <message>
        <source>The end of a loop over each %1 closes a loop over each %2.</source>
        <translation>El fin de un bucle por «%1» cierra un bucle por «%2».</translation>
    </message>
    <message>
        <source>The loop over each %1 has no %2 action to determine its step size.</source>
        <translation>El bucle por «%1» no tiene ninguna acción «%2» que determine su paso.</translation>
    </message>
    <message>
        <source>One of several erases in a loop has a fixed address. Allowed: loop or die.</source>
        <translation>Uno de varios borrados de un bucle tiene una dirección fija. Permitido: loop o die.</translation>
    </message>
    <message>
        <source>The loop has page sizes of %1 and of %2. Allowed: one page size in a loop.</source>
        <translation>El bucle tiene tamaños de página de %1 y de %2. Permitido: un solo tamaño de página por bucle.</translation>
    </message>
    <message>
        <source>The erase sizes %1 and %2 do not go together in one loop. Allowed: sizes of which each divides every larger one.</source>
        <translation>Los tamaños de borrado %1 y %2 no pueden estar en el mismo bucle. Permitido: tamaños en los que cada uno divide a los mayores.</translation>
    </message>
    <message>
        <source>The value &quot;loop&quot; is outside any loop.</source>
        <translation>El valor «loop» está fuera de todo bucle.</translation>
    </message>
    <message>
        <source>The value &quot;die&quot; is outside a loop over each die.</source>
        <translation>El valor «die» está fuera de un bucle por «die».</translation>
    </message>
    <message>
        <source>The action has %1 address bytes, an earlier one has %2. Allowed: the same number in all actions of a flow.</source>
        <translation>La acción tiene %1 bytes de dirección y una anterior tiene %2. Permitido: el mismo número en todas las acciones de un flujo.</translation>
    </message>
    <message>
        <source>The flows cannot be read.</source>
        <translation>No se pueden leer los flujos.</translation>
    </message>
    <message>
        <source>The device and its template need different names: both are called %1.</source>
        <translation>El dispositivo y su plantilla necesitan nombres distintos: ambos se llaman %1.</translation>
    </message>
    <message>
        <source>There is no family %1. Allowed: %2 to %3.</source>
        <translation>La familia %1 no existe. Permitido: de %2 a %3.</translation>
    </message>
    <message>
        <source>The configuration mode %1 has no flash devices.</source>
        <translation>El modo de configuración %1 no tiene dispositivos flash.</translation>
    </message>
    <message>
        <source>The %1 %2 is not a usual one. Usual: %3.</source>
        <translation>«%1»: %2 no es un valor habitual. Habituales: %3.</translation>
    </message>
    <message>
        <source>Devices of this configuration mode have no flows: the dialog drops them.</source>
        <translation>Los dispositivos de este modo de configuración no tienen flujos: el diálogo los descarta.</translation>
    </message>
    <message>
        <source>There are no flows.</source>
        <translation>No hay flujos.</translation>
    </message>
    <message>
        <source>There are no flows for this configuration mode.</source>
        <translation>No hay flujos para este modo de configuración.</translation>
    </message>
    <message>
        <source>The value is missing: %1 is stored.</source>
        <translation>Falta el valor: se guarda %1.</translation>
    </message>
    <message>
        <source>Devices of this configuration mode have no such value: the dialog drops it.</source>
        <translation>Los dispositivos de este modo de configuración no tienen ese valor: el diálogo lo descarta.</translation>
    </message>
    <message>
        <source>The copy in %1 cannot be compared: %2</source>
        <translation>No se puede comparar la copia en %1: %2</translation>
    </message>
    <message>
        <source>The copy in %1 is not the same as %2.</source>
        <translation>La copia en %1 no es igual que %2.</translation>
    </message>
    <message>
        <source>There is nothing to copy in %1.</source>
        <translation>No hay nada que copiar en %1.</translation>
    </message>
    <message>
        <source>an unknown day</source>
        <translation>una fecha desconocida</translation>
    </message>
    <message>
        <source>an unknown user</source>
        <translation>un usuario desconocido</translation>
    </message>
    <message>
        <source>The stored template %1 was stored by %2 on %3 since it was looked for here.</source>
        <translation>La plantilla guardada %1 fue guardada por %2 con fecha %3 después de buscarla aquí.</translation>
    </message>
    <message>
        <source>The device %1 was stored by %2 on %3 since it was looked for here.</source>
        <translation>El dispositivo %1 fue guardado por %2 con fecha %3 después de buscarlo aquí.</translation>
    </message>
    <message>
        <source>The stored template %1 was changed by %2 on %3 since it was read here.</source>
        <translation>La plantilla guardada %1 fue modificada por %2 con fecha %3 después de leerla aquí.</translation>
    </message>
    <message>
        <source>The device %1 was changed by %2 on %3 since it was read here.</source>
        <translation>El dispositivo %1 fue modificado por %2 con fecha %3 después de leerlo aquí.</translation>
    </message>
    <message>
        <source>The stored template %1 was deleted by %2 on %3 since it was read here.</source>
        <translation>La plantilla guardada %1 fue borrada por %2 con fecha %3 después de leerla aquí.</translation>
    </message>
    <message>
        <source>The device %1 was renamed by %2 on %3 since it was read here.</source>
        <translation>El dispositivo %1 fue renombrado por %2 con fecha %3 después de leerlo aquí.</translation>
    </message>
    <message>
        <source>The device %1 was deleted by %2 on %3 since it was read here.</source>
        <translation>El dispositivo %1 fue borrado por %2 con fecha %3 después de leerlo aquí.</translation>
    </message>
    <message>
        <source>Try again to store it as a new one.</source>
        <translation>Inténtelo de nuevo para guardarlo como nuevo.</translation>
    </message>
    <message>
        <source>Look at it again, or try again: then that state goes into the history.</source>
        <translation>Consúltelo de nuevo o inténtelo otra vez: entonces ese estado pasa al historial.</translation>
    </message>
    <message>
        <source>The database in %1 is not empty.</source>
        <translation>La base de datos en %1 no está vacía.</translation>
    </message>
    <message>
        <source>A stored template called %1 already exists.</source>
        <translation>Ya hay una plantilla guardada llamada %1.</translation>
    </message>
    <message>
        <source>A device called %1 already exists.</source>
        <translation>Ya hay un dispositivo llamado %1.</translation>
    </message>
    <message>
        <source>There is no state %1 in the history.</source>
        <translation>No hay ningún estado %1 en el historial.</translation>
    </message>
    <message>
        <source>The database in %1 is another one now.</source>
        <translation>La base de datos de %1 es ahora otra.</translation>
    </message>
    <message>
        <source>It is state %1 of the history.</source>
        <translation>Es el estado %1 del historial.</translation>
    </message>
    <message>
        <source>The database %1 is not used: %2 is a link or not a regular file. Remove it if you did not put it there.</source>
        <translation>La base de datos %1 no se usa: %2 es un enlace o no es un archivo normal. Quítelo si no lo puso usted.</translation>
    </message>
    <message>
        <source>The database %1 is not used: %2 was written by another program, and would change it. Close the database in that program. If the file is still there then, move it to another directory.</source>
        <translation>La base de datos %1 no se usa: %2 lo escribió otro programa y la modificaría. Cierre la base de datos en ese programa. Si el archivo sigue ahí, muévalo a otro directorio.</translation>
    </message>
    <message>
        <source>The database %1 is not used: %2 was written by another program for several databases at once, and names a file that would be removed. Open the database in that program, or move the file to another directory.</source>
        <translation>La base de datos %1 no se usa: %2 lo escribió otro programa para varias bases de datos a la vez y nombra un archivo que se borraría. Abra la base de datos en ese programa o mueva el archivo a otro directorio.</translation>
    </message>
    <message>
        <source>The database %1 is not used: %2 is the journal of another database, or of another state of this one, and would damage it. Move that file to another directory, then try again.</source>
        <translation>La base de datos %1 no se usa: %2 es el diario de otra base de datos, o de otro estado de esta, y la dañaría. Mueva ese archivo a otro directorio e inténtelo de nuevo.</translation>
    </message>
    <message>
        <source>The database %1 is locked by another program (%2).</source>
        <translation>La base de datos %1 está bloqueada por otro programa (%2).</translation>
    </message>
    <message>
        <source>The database %1 cannot be written (%2).</source>
        <translation>No se puede escribir en la base de datos %1 (%2).</translation>
    </message>
    <message>
        <source>The database %1 is damaged (%2). It is left as it is.</source>
        <translation>La base de datos %1 está dañada (%2). Se deja como está.</translation>
    </message>
    <message>
        <source>There is no room for the database %1 (%2).</source>
        <translation>No hay espacio para la base de datos %1 (%2).</translation>
    </message>
    <message>
        <source>The file %1 is not a database (%2). It is left as it is.</source>
        <translation>El archivo %1 no es una base de datos (%2). Se deja como está.</translation>
    </message>
    <message>
        <source>The database %1 cannot be used: %2 (%3).</source>
        <translation>No se puede usar la base de datos %1: %2 (%3).</translation>
    </message>
    <message>
        <source>The SQLite driver of Qt is not installed.</source>
        <translation>El controlador SQLite de Qt no está instalado.</translation>
    </message>
    <message>
        <source>The database %1 was left in the middle of a change by a program that ended there. It can be read again when someone who can write it has opened it once.</source>
        <translation>Un programa que terminó dejó la base de datos %1 a mitad de un cambio. Se podrá leer de nuevo cuando la haya abierto alguien que pueda escribir en ella.</translation>
    </message>
    <message>
        <source>The database %1 can be read, but not changed: %2.</source>
        <translation>La base de datos %1 se puede leer, pero no modificar: %2.</translation>
    </message>
    <message>
        <source>The database directory %1 cannot be read: %2.</source>
        <translation>No se puede leer el directorio de base de datos %1: %2.</translation>
    </message>
    <message>
        <source>The database directory %1 does not exist.</source>
        <translation>El directorio de base de datos %1 no existe.</translation>
    </message>
    <message>
        <source>The database directory %1 is not a directory: a part of it is a file.</source>
        <translation>El directorio de base de datos %1 no es un directorio: una parte es un archivo.</translation>
    </message>
    <message>
        <source>The database directory %1 cannot be reached: %2.</source>
        <translation>No se puede acceder al directorio de base de datos %1: %2.</translation>
    </message>
    <message>
        <source>%1 is not a file.</source>
        <translation>%1 no es un archivo.</translation>
    </message>
    <message>
        <source>The database %1 is empty: its content was lost. It is left as it is; restore a backup copy, or delete it to start over.</source>
        <translation>La base de datos %1 está vacía: su contenido se perdió. Se deja como está; ponga una copia en su lugar o quítela para empezar de nuevo.</translation>
    </message>
    <message>
        <source>The file %1 is not a database (too short). It is left as it is.</source>
        <translation>El archivo %1 no es una base de datos (demasiado corto). Se deja como está.</translation>
    </message>
    <message>
        <source>The database %1 cannot be reached: it is a link to %2 (%3). Is the drive or the share that it is on connected?</source>
        <translation>No se puede acceder a la base de datos %1: es un enlace a %2 (%3). ¿Está conectada la unidad o el recurso compartido donde está?</translation>
    </message>
    <message>
        <source>The database %1 cannot be reached (%2). Is the drive or the share that it is on connected?</source>
        <translation>No se puede acceder a la base de datos %1 (%2). ¿Está conectada la unidad o el recurso compartido donde está?</translation>
    </message>
    <message>
        <source>There is no database %1, but %2, which a program left that was writing it. Put the database back, or move that file to another directory to begin with an empty database.</source>
        <translation>No existe la base de datos %1, pero sí %2, que dejó un programa que la estaba escribiendo. Devuelva la base de datos a su lugar o mueva ese archivo a otro directorio para empezar con una base de datos vacía.</translation>
    </message>
    <message>
        <source>The database directory %1 holds no database, and none can be created: %2.</source>
        <translation>El directorio %1 no contiene ninguna base de datos y no se puede crear: %2.</translation>
    </message>
    <message>
        <source>The database %1 is damaged (its end is missing). It is left as it is.</source>
        <translation>La base de datos %1 está dañada (falta el final). Se deja como está.</translation>
    </message>
    <message>
        <source>The database %1 cannot be created: %2.</source>
        <translation>No se puede crear la base de datos %1: %2.</translation>
    </message>
    <message>
        <source>The database %1 was replaced or removed by another program while it was in use. Nothing was changed: look at the devices that are there now, then try again.</source>
        <translation>Otro programa reemplazó o quitó la base de datos %1 mientras estaba en uso. No se cambió nada: mire los dispositivos que hay ahora e inténtelo de nuevo.</translation>
    </message>
    <message>
        <source>%1 Whether the change was stored cannot be read: look at the devices before you try again.</source>
        <translation>%1 No se puede leer si el cambio se guardó: mire los dispositivos antes de intentarlo de nuevo.</translation>
    </message>
    <message>
        <source>The database %1 was replaced or removed by another program while a change was stored, which is lost: look at the devices that are there now, then try again.</source>
        <translation>Otro programa reemplazó o quitó la base de datos %1 mientras se guardaba un cambio, que se perdió: mire los dispositivos que hay ahora e inténtelo de nuevo.</translation>
    </message>
    <message>
        <source>The database %1 was altered by another program: its texts are %2, not UTF-8. It is left as it is.</source>
        <translation>Otro programa modificó la base de datos %1: sus textos son %2, no UTF-8. Se deja como está.</translation>
    </message>
    <message>
        <source>The file %1 is a database of another program. It is left as it is.</source>
        <translation>El archivo %1 es una base de datos de otro programa. Se deja como está.</translation>
    </message>
    <message>
        <source>The database %1 was written by a newer program (its schema is %2, this program knows up to %3). It is left as it is.</source>
        <translation>La base de datos %1 la escribió un programa más nuevo (su esquema es %2; este programa conoce hasta %3). Se deja como está.</translation>
    </message>
    <message>
        <source>The database %1 was altered by another program: its tables are not those of schema %2. It is left as it is.</source>
        <translation>Otro programa modificó la base de datos %1: sus tablas no son las del esquema %2. Se deja como está.</translation>
    </message>
    <message>
        <source>The database in %1 is damaged: %2</source>
        <translation>La base de datos de %1 está dañada: %2</translation>
    </message>
    <message>
        <source>The database server %1 did not answer in time.</source>
        <translation>El servidor de base de datos %1 no respondió a tiempo.</translation>
    </message>
    <message>
        <source>The database server %1 cannot be reached: %2.</source>
        <translation>No se puede acceder al servidor de base de datos %1: %2.</translation>
    </message>
    <message>
        <source>The database server %1 refused: %2.</source>
        <translation>El servidor de base de datos %1 lo rechazó: %2.</translation>
    </message>
    <message>
        <source>The database %1 on the server %2 does not allow that to the login %3: its administrator can grant the role %4 or %5.</source>
        <translation>La base de datos %1 del servidor %2 no permite eso al usuario %3: su administrador puede conceder el rol %4 o %5.</translation>
    </message>
    <message>
        <source>The database %1 on the server %2 has no schema %3 for devices: its administrator can make it with &quot;gfpdb server sql&quot;.</source>
        <translation>La base de datos %1 del servidor %2 no tiene el esquema %3 para dispositivos: su administrador puede crearlo con «gfpdb server sql».</translation>
    </message>
    <message>
        <source>There is no room for the change on the server %1.</source>
        <translation>No hay espacio para el cambio en el servidor %1.</translation>
    </message>
    <message>
        <source>The database %1 on the server %2 is locked by another program.</source>
        <translation>La base de datos %1 del servidor %2 está bloqueada por otro programa.</translation>
    </message>
    <message>
        <source>The database %1 on the server %2 is changed by too many programs now: try again.</source>
        <translation>Demasiados programas están modificando la base de datos %1 del servidor %2: inténtelo de nuevo.</translation>
    </message>
    <message>
        <source>The directory %1 has the database %2 and names a server in %3. Move the database to another directory, and copy its records from there to the server with &quot;gfpdb copy&quot;.</source>
        <translation>El directorio %1 tiene la base de datos %2 y nombra un servidor en %3. Mueva la base de datos a otro directorio y copie desde allí sus registros al servidor con «gfpdb copy».</translation>
    </message>
    <message>
        <source>The database %1 on the server %2 cannot be read by the login %3: its administrator can grant the role %4.</source>
        <translation>El usuario %3 no puede leer la base de datos %1 del servidor %2: su administrador puede conceder el rol %4.</translation>
    </message>
    <message>
        <source>The database %1 on the server %2 can be read, but not changed: the server takes no changes now.</source>
        <translation>La base de datos %1 del servidor %2 se puede leer, pero no modificar: el servidor no acepta cambios ahora.</translation>
    </message>
    <message>
        <source>The database %1 on the server %2 can be read, but not changed: the login %3 has not the role %4.</source>
        <translation>La base de datos %1 del servidor %2 se puede leer, pero no modificar: el usuario %3 no tiene el rol %4.</translation>
    </message>
    <message>
        <source>The database %1 on the server %2 was written by a newer program (schema %3). It is left as it is.</source>
        <translation>La base de datos %1 del servidor %2 la escribió un programa más nuevo (esquema %3). Se deja como está.</translation>
    </message>
    <message>
        <source>The database %1 on the server %2 is a database of another program. It is left as it is.</source>
        <translation>La base de datos %1 del servidor %2 es de otro programa. Se deja como está.</translation>
    </message>
    <message>
        <source>The database %1 on the server %2 was written by an older program (schema %3): it can be used when someone with the role %4 has opened it once.</source>
        <translation>La base de datos %1 del servidor %2 la escribió un programa más antiguo (esquema %3): se podrá usar cuando la abra alguien con el rol %4.</translation>
    </message>
    <message>
        <source>The file %1 names a server since the directory was opened: open it again.</source>
        <translation>El archivo %1 indica un servidor desde que se abrió el directorio: ábralo de nuevo.</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Nombre</translation>
    </message>
    <message>
        <source>ID</source>
        <translation>ID</translation>
    </message>
    <message>
        <source>Maker</source>
        <translation>Fabricante</translation>
    </message>
    <message>
        <source>Density</source>
        <translation>Capacidad</translation>
    </message>
    <message>
        <source>Dies</source>
        <translation>Dies</translation>
    </message>
    <message>
        <source>Dies are selected by C2</source>
        <translation>Selección de dies con C2</translation>
    </message>
    <message>
        <source>Page size (bytes)</source>
        <translation>Tamaño de página (bytes)</translation>
    </message>
    <message>
        <source>Address bytes</source>
        <translation>Bytes de dirección</translation>
    </message>
    <message>
        <source>4-byte addressing, enter</source>
        <translation>Direccionamiento de 4 bytes, entrar</translation>
    </message>
    <message>
        <source>4-byte addressing, leave</source>
        <translation>Direccionamiento de 4 bytes, salir</translation>
    </message>
    <message>
        <source>4-byte addressing, register and bit</source>
        <translation>Direccionamiento de 4 bytes, registro y bit</translation>
    </message>
    <message>
        <source>Quad enable</source>
        <translation>Activación Quad</translation>
    </message>
    <message>
        <source>Unlock blocks</source>
        <translation>Desbloquear bloques</translation>
    </message>
    <message>
        <source>Reset</source>
        <translation>Reinicio</translation>
    </message>
    <message>
        <source>Busy is read by</source>
        <translation>Ocupado se lee con</translation>
    </message>
    <message>
        <source>Dummy clocks, single</source>
        <translation>Ciclos dummy, Single</translation>
    </message>
    <message>
        <source>Quad read</source>
        <translation>Lectura Quad</translation>
    </message>
    <message>
        <source>Dummy clocks, quad</source>
        <translation>Ciclos dummy, Quad</translation>
    </message>
    <message>
        <source>Quad program</source>
        <translation>Programación Quad</translation>
    </message>
    <message>
        <source>Page program, longest wait (us)</source>
        <translation>Programar página, espera máxima (us)</translation>
    </message>
    <message>
        <source>Erase, longest wait (ms)</source>
        <translation>Borrado, espera máxima (ms)</translation>
    </message>
    <message>
        <source>from the ID</source>
        <translation>según el ID</translation>
    </message>
    <message>
        <source>from the density</source>
        <translation>según la capacidad</translation>
    </message>
    <message>
        <source>assumed</source>
        <translation>supuesto</translation>
    </message>
    <message>
        <source>entered</source>
        <translation>introducido</translation>
    </message>
    <message>
        <source>The command is on four lines, but the single-I/O flow has one.</source>
        <translation>El comando usa cuatro líneas, pero el flujo Single I/O tiene una.</translation>
    </message>
    <message>
        <source>The image is compared with a mask: its bytes with bits that the mask clears never match.</source>
        <translation>La imagen se compara con una máscara: los bytes con bits que la máscara borra nunca coinciden.</translation>
    </message>
    <message>
        <source>The expected data have bits that the mask clears: they never match.</source>
        <translation>Los datos esperados tienen bits que la máscara borra: nunca coinciden.</translation>
    </message>
    <message>
        <source>The mask has no bit: whatever is read matches.</source>
        <translation>La máscara no tiene ningún bit: todo lo que se lee coincide.</translation>
    </message>
    <message>
        <source>The page size is %1, but the part has pages of %2 bytes: what is beyond the end of a page overwrites its start.</source>
        <translation>El tamaño de página es %1, pero el dispositivo tiene páginas de %2 bytes: lo que pasa del final de una página sobrescribe su inicio.</translation>
    </message>
    <message>
        <source>The page size is %1, but the part has pages of %2 bytes: programming takes longer than necessary.</source>
        <translation>El tamaño de página es %1, pero el dispositivo tiene páginas de %2 bytes: la programación tarda más de lo necesario.</translation>
    </message>
    <message>
        <source>Data are changed in an operation that is also executed when the user asked for neither Program nor Erase.</source>
        <translation>Se modifican datos en una operación que también se ejecuta cuando el usuario no ha pedido ni Program ni Erase.</translation>
    </message>
    <message>
        <source>Three address bytes reach %1 bytes, but the action works on %2.</source>
        <translation>Tres bytes de dirección alcanzan %1 bytes, pero la acción abarca %2.</translation>
    </message>
    <message>
        <source>The command does not have the bus width %1. Allowed: %2.</source>
        <translation>El comando no tiene el ancho de bus %1. Permitido: %2.</translation>
    </message>
    <message>
        <source>This is a command that programs.</source>
        <translation>Este es un comando que programa.</translation>
    </message>
    <message>
        <source>This is a command that reads data.</source>
        <translation>Este es un comando que lee datos.</translation>
    </message>
    <message>
        <source>This is a command that erases.</source>
        <translation>Este es un comando que borra.</translation>
    </message>
    <message>
        <source>The command has no dummy clocks.</source>
        <translation>El comando no tiene ciclos dummy.</translation>
    </message>
    <message>
        <source>The command has two dummy clocks at least, its mode clocks.</source>
        <translation>El comando tiene al menos dos ciclos dummy, sus ciclos de modo.</translation>
    </message>
    <message>
        <source>Nothing in the loop depends on its step: every step does the same.</source>
        <translation>Nada en el bucle depende de su paso: todos los pasos hacen lo mismo.</translation>
    </message>
    <message>
        <source>The device has one die: the loop has one step.</source>
        <translation>El dispositivo tiene un die: el bucle tiene un paso.</translation>
    </message>
    <message>
        <source>There is no ID check: the flow changes whatever chip is connected.</source>
        <translation>No se comprueba el ID: el flujo modifica cualquier chip que esté conectado.</translation>
    </message>
    <message>
        <source>The chip is changed before its ID is checked.</source>
        <translation>El chip se modifica antes de comprobar su ID.</translation>
    </message>
    <message>
        <source>4-byte addressing is entered here, and Termination does not leave it.</source>
        <translation>Aquí se entra en el direccionamiento de 4 bytes, y Termination no sale de él.</translation>
    </message>
    <message>
        <source>No command uses this write enable.</source>
        <translation>Ningún comando usa esta habilitación de escritura.</translation>
    </message>
    <message>
        <source>The chip is in deep power-down and ignores the command.</source>
        <translation>El chip está en deep power-down e ignora el comando.</translation>
    </message>
    <message>
        <source>The command follows the reset that brings the chip to its end.</source>
        <translation>El comando sigue al reset que deja el chip en su estado final.</translation>
    </message>
    <message>
        <source>The command is on four lines, and nothing before it sets or checks the quad-enable bit.</source>
        <translation>El comando usa cuatro líneas y nada antes de él activa ni comprueba el bit quad enable.</translation>
    </message>
    <message>
        <source>%1 us are waited for instead of asking whether the chip is ready.</source>
        <translation>Se esperan %1 µs en lugar de preguntar si el chip está listo.</translation>
    </message>
    <message>
        <source>Nothing waits until the chip is ready: it ignores the commands that follow.</source>
        <translation>Nada espera a que el chip esté listo: ignora los comandos siguientes.</translation>
    </message>
    <message>
        <source>There is no write enable before it: the chip ignores the command.</source>
        <translation>No hay habilitación de escritura antes: el chip ignora el comando.</translation>
    </message>
    <message>
        <source>The command has no address, but the action sends one.</source>
        <translation>El comando no tiene dirección, pero la acción envía una.</translation>
    </message>
    <message>
        <source>The command has an address, but the action sends none.</source>
        <translation>El comando tiene dirección, pero la acción no envía ninguna.</translation>
    </message>
    <message>
        <source>The command always has four address bytes, but the action sends three.</source>
        <translation>El comando siempre tiene cuatro bytes de dirección, pero la acción envía tres.</translation>
    </message>
    <message>
        <source>The action sends four address bytes, but nothing before it enters 4-byte addressing.</source>
        <translation>La acción envía cuatro bytes de dirección, pero nada antes de ella entra en el direccionamiento de 4 bytes.</translation>
    </message>
    <message>
        <source>The action sends three address bytes, but 4-byte addressing was entered before.</source>
        <translation>La acción envía tres bytes de dirección, pero antes se ha entrado en el direccionamiento de 4 bytes.</translation>
    </message>
    <message>
        <source>Template name</source>
        <translation>Nombre de la plantilla</translation>
    </message>
    <message>
        <source>Flow template</source>
        <translation>Plantilla de flujo</translation>
    </message>
    <message>
        <source>an unpaired surrogate is not a character</source>
        <translation>un sustituto sin pareja no es un carácter</translation>
    </message>
    <message>
        <source>the name %1 occurs twice</source>
        <translation>el nombre %1 aparece dos veces</translation>
    </message>
    <message>
        <source>values are nested too deeply</source>
        <translation>los valores están anidados a demasiada profundidad</translation>
    </message>
    <message>
        <source>there is text after the end</source>
        <translation>hay texto después del final</translation>
    </message>
    <message>
        <source>an object needs a name in double quotes here</source>
        <translation>aquí un objeto necesita un nombre entre comillas dobles</translation>
    </message>
    <message>
        <source>&quot;:&quot; is missing after %1</source>
        <translation>falta «:» después de %1</translation>
    </message>
    <message>
        <source>an object needs &quot;,&quot; or &quot;}&quot; here</source>
        <translation>aquí un objeto necesita «,» o «}»</translation>
    </message>
    <message>
        <source>a list needs &quot;,&quot; or &quot;]&quot; here</source>
        <translation>aquí una lista necesita «,» o «]»</translation>
    </message>
    <message>
        <source>\u needs four hexadecimal digits</source>
        <translation>\u necesita cuatro dígitos hexadecimales</translation>
    </message>
    <message>
        <source>a string is not terminated</source>
        <translation>una cadena no está terminada</translation>
    </message>
    <message>
        <source>there is no such escape</source>
        <translation>no existe esa secuencia de escape</translation>
    </message>
    <message>
        <source>a string has a control character or a line break in it</source>
        <translation>una cadena contiene un carácter de control o un salto de línea</translation>
    </message>
    <message>
        <source>a string is not UTF-8</source>
        <translation>una cadena no es UTF-8</translation>
    </message>
    <message>
        <source>a number is too large</source>
        <translation>un número es demasiado grande</translation>
    </message>
    <message>
        <source>a value was expected</source>
        <translation>se esperaba un valor</translation>
    </message>
    <message>
        <source>true or false</source>
        <translation>true o false</translation>
    </message>
    <message>
        <source>a number</source>
        <translation>un número</translation>
    </message>
    <message>
        <source>a string</source>
        <translation>una cadena</translation>
    </message>
    <message>
        <source>a list</source>
        <translation>una lista</translation>
    </message>
    <message>
        <source>an object</source>
        <translation>un objeto</translation>
    </message>
    <message>
        <source>A string was expected, but this is %1.</source>
        <translation>Se esperaba una cadena, pero esto es: %1.</translation>
    </message>
    <message>
        <source>A list was expected, but this is %1.</source>
        <translation>Se esperaba una lista, pero esto es: %1.</translation>
    </message>
    <message>
        <source>An object was expected, but this is %1.</source>
        <translation>Se esperaba un objeto, pero esto es: %1.</translation>
    </message>
    <message>
        <source>%1 is not known here. Allowed: %2.</source>
        <translation>%1 no se conoce aquí. Permitido: %2.</translation>
    </message>
    <message>
        <source>%1 is missing.</source>
        <translation>Falta %1.</translation>
    </message>
    <message>
        <source>The catalogue %1 cannot be read: %2.</source>
        <translation>No se puede leer el catálogo %1: %2.</translation>
    </message>
    <message>
        <source>device %1: %2</source>
        <translation>dispositivo %1: %2</translation>
    </message>
    <message>
        <source>stored template %1: %2</source>
        <translation>plantilla guardada %1: %2</translation>
    </message>
    <message>
        <source>The device %1 is already in %2.</source>
        <translation>El dispositivo %1 ya está en %2.</translation>
    </message>
    <message>
        <source>The stored template %1 is already in %2.</source>
        <translation>La plantilla guardada %1 ya está en %2.</translation>
    </message>
    <message>
        <source>The device %1 exists with different content: --replace replaces it.</source>
        <translation>El dispositivo %1 existe con otro contenido: --replace lo reemplaza.</translation>
    </message>
    <message>
        <source>The stored template %1 exists with different content: --replace replaces it.</source>
        <translation>La plantilla guardada %1 existe con otro contenido: --replace la reemplaza.</translation>
    </message>
    <message>
        <source>The name of the device %1 is that of a stored template.</source>
        <translation>El nombre del dispositivo %1 es el de una plantilla guardada.</translation>
    </message>
    <message>
        <source>The name of the stored template %1 is that of a device.</source>
        <translation>El nombre de la plantilla guardada %1 es el de un dispositivo.</translation>
    </message>
    <message>
        <source>The column is missing.</source>
        <translation>Falta la columna.</translation>
    </message>
    <message>
        <source>The column is not known. Allowed: %1.</source>
        <translation>La columna no se conoce. Permitido: %1.</translation>
    </message>
    <message>
        <source>The column occurs twice.</source>
        <translation>La columna aparece dos veces.</translation>
    </message>
    <message>
        <source>A quote that opens in this row is never closed.</source>
        <translation>Una comilla que se abre en esta fila no se cierra nunca.</translation>
    </message>
    <message>
        <source>The row has 1 cell, the line of column names has %1.</source>
        <translation>La fila tiene 1 celda, la línea de los nombres de columna tiene %1.</translation>
    </message>
    <message>
        <source>The row has %1 cells, the line of column names has %2.</source>
        <translation>La fila tiene %1 celdas, la línea de los nombres de columna tiene %2.</translation>
    </message>
    <message>
        <source>The file cannot be read: %1.</source>
        <translation>No se puede leer el archivo: %1.</translation>
    </message>
    <message>
        <source>This is not valid JSON: %1.</source>
        <translation>Esto no es JSON válido: %1.</translation>
    </message>
    <message>
        <source>This is not a file of records. Allowed: %1.</source>
        <translation>Esto no es un archivo de registros. Permitido: %1.</translation>
    </message>
    <message>
        <source>This version of the format is not known. Allowed: %1.</source>
        <translation>No se conoce esta versión del formato. Permitido: %1.</translation>
    </message>
    <message>
        <source>The text is not UTF-8.</source>
        <translation>El texto no es UTF-8.</translation>
    </message>
    <message>
        <source>A whole number or null was expected, but this is %1.</source>
        <translation>Se esperaba un número entero o null, pero esto es: %1.</translation>
    </message>
    <message>
        <source>device family</source>
        <translation>familia de dispositivos</translation>
    </message>
    <message>
        <source>configuration mode</source>
        <translation>modo de configuración</translation>
    </message>
    <message>
        <source>single-I/O flow</source>
        <translation>flujo Single I/O</translation>
    </message>
    <message>
        <source>quad-I/O flow</source>
        <translation>flujo Quad I/O</translation>
    </message>
    <message>
        <source>This operation occurs twice.</source>
        <translation>Esta operación aparece dos veces.</translation>
    </message>
    <message>
        <source>There is no such operation. Allowed: %1.</source>
        <translation>No existe esa operación. Permitido: %1.</translation>
    </message>
    <message>
        <source>There is no such action. Allowed: %1.</source>
        <translation>No existe esa acción. Permitido: %1.</translation>
    </message>
    <message>
        <source>The flows of %1 cannot be read.</source>
        <translation>No se pueden leer los flujos de %1.</translation>
    </message>
    <message>
        <source>A device has at most %1 single-I/O dummy clocks: the copy gets these, and its flow has the %2 of %3.</source>
        <translation>Un dispositivo tiene como máximo %1 ciclos dummy Single I/O: la copia recibe esos, y su flujo tiene los %2 de %3.</translation>
    </message>
    <message>
        <source>The configuration mode %1 has no serial flash devices.</source>
        <translation>El modo de configuración %1 no tiene dispositivos flash serie.</translation>
    </message>
    <message>
        <source>page size</source>
        <translation>tamaño de página</translation>
    </message>
    <message>
        <source>quad-I/O dummy clocks</source>
        <translation>ciclos dummy Quad I/O</translation>
    </message>
    <message>
        <source>%1: %2 in the list, %3 by %4</source>
        <translation>%1: %2 en la lista, %3 según %4</translation>
    </message>
    <message>
        <source>address bytes</source>
        <translation>bytes de dirección</translation>
    </message>
    <message>
        <source>%1 or %2</source>
        <translation>%1 o %2</translation>
    </message>
    <message>
        <source>erase by %1</source>
        <translation>borrado con %1</translation>
    </message>
    <message>
        <source>not</source>
        <translation>no</translation>
    </message>
    <message>
        <source>%1 bytes</source>
        <translation>%1 bytes</translation>
    </message>
    <message>
        <source>none</source>
        <translation>ninguno</translation>
    </message>
    <message>
        <source>reserved</source>
        <translation>reservado</translation>
    </message>
    <message>
        <source>quad enable</source>
        <translation>activación Quad</translation>
    </message>
    <message>
        <source>basic table: %1 double words in read-outs of this part, %2 here</source>
        <translation>tabla básica: %1 palabras dobles en las lecturas de este componente, aquí %2</translation>
    </message>
    <message>
        <source>4-4-4 read: in read-outs of this part, but not here</source>
        <translation>lectura 4-4-4: en las lecturas de este componente, pero no aquí</translation>
    </message>
    <message>
        <source>%1 is not a number.</source>
        <translation>%1 no es un número.</translation>
    </message>
    <message>
        <source>%1 is out of range: %2 to %3 are allowed.</source>
        <translation>%1 está fuera del intervalo: se permite de %2 a %3.</translation>
    </message>
    <message>
        <source>%1 is more than 32Gb.</source>
        <translation>%1 es más de 32Gb.</translation>
    </message>
    <message>
        <source>%1 is not a density such as 128Mb.</source>
        <translation>%1 no es una capacidad como 128Mb.</translation>
    </message>
    <message>
        <source>%1 is neither an erase command such as %2 nor %3.</source>
        <translation>%1 no es un comando de borrado como %2 ni %3.</translation>
    </message>
    <message>
        <source>%1 is not a power of two.</source>
        <translation>%1 no es una potencia de dos.</translation>
    </message>
    <message>
        <source>There is no value %1.</source>
        <translation>No existe el valor %1.</translation>
    </message>
    <message>
        <source>The value %1 is missing: enter it.</source>
        <translation>Falta el valor %1: introdúzcalo.</translation>
    </message>
    <message>
        <source>The number of dies, %1, does not divide the density.</source>
        <translation>El número de dies, %1, no divide la capacidad.</translation>
    </message>
    <message>
        <source>The erase command %1 does not divide the density.</source>
        <translation>El comando de borrado %1 no divide la capacidad.</translation>
    </message>
    <message>
        <source>The density %1 (%2) is not what the ID usually stands for, which is %3.</source>
        <translation>La capacidad %1 (%2) no es la que suele indicar el ID, que es %3.</translation>
    </message>
    <message>
        <source>SFDP DW2 says a density that no device can have: %1.</source>
        <translation>SFDP DW2 indica una capacidad que ningún dispositivo puede tener: %1.</translation>
    </message>
    <message>
        <source>A device has at most %1 single-I/O dummy clocks: it gets these, and its flow has %2.</source>
        <translation>Un dispositivo tiene como máximo %1 ciclos dummy Single I/O: recibe esos, y su flujo tiene %2.</translation>
    </message>
    <message>
        <source>The chip has a table of the maker %1, and its ID is of the maker %2.</source>
        <translation>El chip tiene una tabla del fabricante %1, y su ID es del fabricante %2.</translation>
    </message>
    <message>
        <source>No listed part tells what the maker&apos;s parts have in common: usual commands are assumed.</source>
        <translation>Ningún componente de la lista indica qué tienen en común los del fabricante: se suponen los comandos usuales.</translation>
    </message>
    <message>
        <source>Several listed parts have this ID: %1.</source>
        <translation>Varios componentes de la lista tienen este ID: %1.</translation>
    </message>
    <message>
        <source>The commands have four address bytes, and nothing enters 4-byte addressing.</source>
        <translation>Los comandos tienen cuatro bytes de dirección, y nada entra en el direccionamiento de 4 bytes.</translation>
    </message>
    <message>
        <source>The commands have three address bytes, and the device is in 4-byte addressing.</source>
        <translation>Los comandos tienen tres bytes de dirección, y el dispositivo está en direccionamiento de 4 bytes.</translation>
    </message>
    <message>
        <source>Three address bytes do not reach all of %1.</source>
        <translation>Tres bytes de dirección no alcanzan todo: %1.</translation>
    </message>
    <message>
        <source>SFDP DW1 lists three address bytes alone, which do not reach all of %1: four are taken.</source>
        <translation>SFDP DW1 indica solo tres bytes de dirección, que no alcanzan todo %1: se toman cuatro.</translation>
    </message>
    <message>
        <source>SFDP DW16 lists every way into 4-byte addressing, and SFDP DW1 three address bytes: DW16 is ignored.</source>
        <translation>SFDP DW16 indica todas las formas de entrar en el direccionamiento de 4 bytes, y SFDP DW1 tres bytes de dirección: se ignora DW16.</translation>
    </message>
    <message>
        <source>SFDP DW16 lists no way into 4-byte addressing that a flow can take: %1 is taken.</source>
        <translation>SFDP DW16 no indica ninguna forma de entrar en el direccionamiento de 4 bytes que un flujo pueda usar: se toma %1.</translation>
    </message>
    <message>
        <source>SFDP has no page size: %1 is taken (%2).</source>
        <translation>SFDP no tiene tamaño de página: se toma %1 (%2).</translation>
    </message>
    <message>
        <source>SFDP DW11 has a page size that no flow can have: %1 is taken (%2).</source>
        <translation>SFDP DW11 tiene un tamaño de página que ningún flujo puede tener: se toma %1 (%2).</translation>
    </message>
    <message>
        <source>SFDP DW15 says with a reserved value how quad is enabled: look it up and enter it.</source>
        <translation>SFDP DW15 indica con un valor reservado cómo se activa Quad: búsquelo e introdúzcalo.</translation>
    </message>
    <message>
        <source>SFDP does not say how quad is enabled: %1 is taken (%2).</source>
        <translation>SFDP no indica cómo se activa Quad: se toma %1 (%2).</translation>
    </message>
    <message>
        <source>SFDP lists no read on four lines: the quad-I/O flow uses one.</source>
        <translation>SFDP no indica ninguna lectura por cuatro líneas: el flujo Quad I/O usa una.</translation>
    </message>
    <message>
        <source>No erase command serves the whole part: the chip is erased at once.</source>
        <translation>Ningún comando de borrado sirve para todo el componente: el chip se borra de una vez.</translation>
    </message>
    <message>
        <source>The four bytes of each double word are in reverse order.</source>
        <translation>Los cuatro bytes de cada palabra doble están en orden inverso.</translation>
    </message>
    <message>
        <source>The bytes do not begin with the signature &quot;SFDP&quot;.</source>
        <translation>Los bytes no empiezan con la firma «SFDP».</translation>
    </message>
    <message>
        <source>The signature &quot;SFDP&quot; is at %1 and not at the start: bytes were added before it.</source>
        <translation>La firma «SFDP» está en %1 y no al principio: se añadieron bytes delante.</translation>
    </message>
    <message>
        <source>The read-out ends within the SFDP header.</source>
        <translation>La lectura termina dentro de la cabecera SFDP.</translation>
    </message>
    <message>
        <source>SFDP revision %1 is unknown: revisions 1.x can be read.</source>
        <translation>La revisión SFDP %1 es desconocida: se pueden leer las revisiones 1.x.</translation>
    </message>
    <message>
        <source>%1 has the unknown revision %2: it is not read.</source>
        <translation>Revisión %2 desconocida de esta tabla, que no se lee: %1.</translation>
    </message>
    <message>
        <source>There are %1 headers of %2: the one of revision %3 is taken.</source>
        <translation>Cabeceras de esta tabla (%2): %1. Se toma la de la revisión %3.</translation>
    </message>
    <message>
        <source>The read-out ends within the parameter headers: %1 of %2 are there.</source>
        <translation>La lectura termina dentro de las cabeceras de parámetros: hay %1 de %2.</translation>
    </message>
    <message>
        <source>A table begins at %1: there is room for %2 parameter headers, not for %3.</source>
        <translation>Una tabla empieza en %1: hay sitio para %2 cabeceras de parámetros, no para %3.</translation>
    </message>
    <message>
        <source>The parameter header at %1 is blank.</source>
        <translation>La cabecera de parámetros en %1 está vacía.</translation>
    </message>
    <message>
        <source>%1 begins at %2, within the headers: it is not read.</source>
        <translation>Esta tabla empieza en %2, dentro de las cabeceras, y no se lee: %1.</translation>
    </message>
    <message>
        <source>%1 is empty.</source>
        <translation>Esta tabla está vacía: %1.</translation>
    </message>
    <message>
        <source>%1 is not in the read-out: it begins at %2, and the read-out ends at %3.</source>
        <translation>Esta tabla no está en la lectura: %1. Empieza en %2, y la lectura termina en %3.</translation>
    </message>
    <message>
        <source>The read-out ends within %1: %2 of %3 double words are there.</source>
        <translation>La lectura termina dentro de esta tabla: %1. Hay %2 de %3 palabras dobles.</translation>
    </message>
    <message>
        <source>%1 begins at %2, which is not a multiple of 4.</source>
        <translation>Esta tabla empieza en %2, que no es múltiplo de 4: %1.</translation>
    </message>
    <message>
        <source>%1 and %2 overlap.</source>
        <translation>Estas tablas se solapan: %1, %2.</translation>
    </message>
    <message>
        <source>The bytes at %1 are in no table: they are not read.</source>
        <translation>Los bytes en %1 no están en ninguna tabla: no se leen.</translation>
    </message>
    <message>
        <source>There is no basic table.</source>
        <translation>No hay tabla básica.</translation>
    </message>
    <message>
        <source>The basic table is blank.</source>
        <translation>La tabla básica está vacía.</translation>
    </message>
    <message>
        <source>The basic table has %1 double words: %2 belong to its revision %3.</source>
        <translation>La tabla básica tiene %1 palabras dobles: a su revisión %3 le corresponden %2.</translation>
    </message>
    <message>
        <source>SFDP DW%1 has zeros where every part has ones: bytes may be missing or shifted.</source>
        <translation>SFDP DW%1 tiene ceros donde todo componente tiene unos: puede que falten bytes o estén desplazados.</translation>
    </message>
    <message>
        <source>SFDP DW2 says no density that a part can have: %1.</source>
        <translation>SFDP DW2 no indica una capacidad que un componente pueda tener: %1.</translation>
    </message>
    <message>
        <source>SFDP DW1 says with a reserved value how many address bytes there are.</source>
        <translation>SFDP DW1 indica con un valor reservado cuántos bytes de dirección hay.</translation>
    </message>
    <message>
        <source>SFDP DW%1 lists the %2 read, and DW%3 has no command for it.</source>
        <translation>SFDP DW%1 indica la lectura %2, y DW%3 no tiene comando para ella.</translation>
    </message>
    <message>
        <source>SFDP DW%1: erase type %2 has no command: it is left out.</source>
        <translation>SFDP DW%1: el tipo de borrado %2 no tiene comando: se omite.</translation>
    </message>
    <message>
        <source>SFDP DW%1: erase type %2 erases 2^%3 bytes, which is too much: it is left out.</source>
        <translation>SFDP DW%1: el tipo de borrado %2 borra 2^%3 bytes, que es demasiado: se omite.</translation>
    </message>
    <message>
        <source>SFDP DW1 erases 4 KiB by %1, which no erase type does.</source>
        <translation>SFDP DW1 borra 4 KiB con %1, lo que no hace ningún tipo de borrado.</translation>
    </message>
    <message>
        <source>The table of 4-byte instructions is blank.</source>
        <translation>La tabla de instrucciones de 4 bytes está vacía.</translation>
    </message>
    <message>
        <source>The table of 4-byte instructions has no erase commands.</source>
        <translation>La tabla de instrucciones de 4 bytes no tiene comandos de borrado.</translation>
    </message>
    <message>
        <source>The table of 4-byte instructions lists erase type %1, which the basic table does not have.</source>
        <translation>La tabla de instrucciones de 4 bytes indica el tipo de borrado %1, que la tabla básica no tiene.</translation>
    </message>
    <message>
        <source>The table of 4-byte instructions lists erase type %1 and has no command for it.</source>
        <translation>La tabla de instrucciones de 4 bytes indica el tipo de borrado %1 y no tiene comando para él.</translation>
    </message>
    <message>
        <source>The sectors of sector map %1 come to %2 bytes, and the part has %3.</source>
        <translation>Los sectores del mapa de sectores %1 suman %2 bytes, y el componente tiene %3.</translation>
    </message>
    <message>
        <source>The sectors of sector map %1 are erased by types that the basic table does not have.</source>
        <translation>Los sectores del mapa de sectores %1 se borran con tipos que la tabla básica no tiene.</translation>
    </message>
    <message>
        <source>The sector map has no end.</source>
        <translation>El mapa de sectores no tiene fin.</translation>
    </message>
    <message>
        <source>the basic table</source>
        <translation>tabla básica</translation>
    </message>
    <message>
        <source>the sector map</source>
        <translation>mapa de sectores</translation>
    </message>
    <message>
        <source>the table of 4-byte instructions</source>
        <translation>tabla de instrucciones de 4 bytes</translation>
    </message>
    <message>
        <source>the table %1</source>
        <translation>tabla %1</translation>
    </message>
    <message>
        <source>The database %1 on the server %2 was replaced by another one while it was in use. Nothing was changed: look at the devices that are there now, then try again.</source>
        <translation>La base de datos %1 del servidor %2 fue reemplazada por otra mientras se usaba. No se cambió nada: mire los dispositivos que hay ahora y vuelva a intentarlo.</translation>
    </message>
    <message>
        <source>The database %1 on the server %2 is another one now.</source>
        <translation>La base de datos %1 del servidor %2 es ahora otra.</translation>
    </message>
    <message>
        <source>the certificates %1 are not a file</source>
        <translation>los certificados %1 no son un archivo</translation>
    </message>
    <message>
        <source>no reason</source>
        <translation>sin motivo</translation>
    </message>
    <message>
        <source>the connection is closed</source>
        <translation>la conexión está cerrada</translation>
    </message>
    <message>
        <source>The server does not copy.</source>
        <translation>El servidor no copia.</translation>
    </message>
    <message>
        <source>%1 is not a setting</source>
        <translation>%1 no es un ajuste</translation>
    </message>
    <message>
        <source>passwords do not belong into it: put them into the file .pgpass in your home directory</source>
        <translation>las contraseñas no van ahí: póngalas en el archivo .pgpass de su directorio personal</translation>
    </message>
    <message>
        <source>%1 is not a setting. There are: %2</source>
        <translation>%1 no es un ajuste. Hay: %2</translation>
    </message>
    <message>
        <source>%1 is there twice</source>
        <translation>%1 está dos veces</translation>
    </message>
    <message>
        <source>%1 cannot be %2</source>
        <translation>%1 no puede ser %2</translation>
    </message>
    <message>
        <source>it does not begin with %1</source>
        <translation>no empieza con %1</translation>
    </message>
    <message>
        <source>it has no settings</source>
        <translation>no tiene ajustes</translation>
    </message>
    <message>
        <source>it names too many hosts</source>
        <translation>nombra demasiados hosts</translation>
    </message>
    <message>
        <source>&quot;port&quot; must be one for all hosts, or one for each</source>
        <translation>«port» debe ser uno para todos los hosts, o uno para cada uno</translation>
    </message>
    <message>
        <source>it does not say which &quot;database&quot; is meant</source>
        <translation>no dice qué «database» se quiere</translation>
    </message>
    <message>
        <source>The settings of the server cannot be used: %1.</source>
        <translation>No se pueden usar los ajustes del servidor: %1.</translation>
    </message>
    <message>
        <source>The file %1 cannot be used: %2.</source>
        <translation>No se puede usar el archivo %1: %2.</translation>
    </message>
    <message>
        <source>The directory has the database %1: name the server in another directory, and copy the records there with &quot;gfpdb copy&quot;.</source>
        <translation>El directorio tiene la base de datos %1: indique el servidor en otro directorio y copie allí los registros con «gfpdb copy».</translation>
    </message>
    <message>
        <source>The file %1 cannot be written: %2.</source>
        <translation>No se puede escribir el archivo %1: %2.</translation>
    </message>
    <message>
        <source>The database cannot keep %1 of %2: it is not a text in UTF-8, or has the character NUL.</source>
        <translation>La base de datos no puede guardar %1 de %2: no es un texto en UTF-8 o contiene el carácter NUL.</translation>
    </message>
    <message>
        <source>The device %1 is being changed by another program: try again.</source>
        <translation>Otro programa está modificando el dispositivo %1: vuelva a intentarlo.</translation>
    </message>
    <message>
        <source>The import was cancelled.</source>
        <translation>La importación se canceló.</translation>
    </message>
    <message>
        <source>it is not a regular file</source>
        <translation>no es un archivo normal</translation>
    </message>
    <message>
        <source>it is larger than %1</source>
        <translation>ocupa más de %1</translation>
    </message>
    <message>
        <source>The command is on four lines, and a write of the status registers before it clears the quad-enable bit.</source>
        <translation>El comando usa cuatro líneas y antes de él una escritura de los registros de estado borra el bit quad enable.</translation>
    </message>
</context>
</TS>
