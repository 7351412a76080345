<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="es" sourcelanguage="en">
<context>
    <name>BRING_BACK_DIALOG</name>
    <message>
        <source>Under &amp;another name:</source>
        <translation>Con &amp;otro nombre:</translation>
    </message>
    <message>
        <source>Bring Back</source>
        <translation>Recuperar</translation>
    </message>
    <message>
        <source>New name</source>
        <translation>Nombre nuevo</translation>
    </message>
    <message>
        <source>The template &quot;%1&quot; becomes again what it was until %2 (state %3).</source>
        <translation>La plantilla «%1» vuelve a ser la que era hasta %2 (estado %3).</translation>
    </message>
    <message>
        <source>The device &quot;%1&quot; becomes again what it was until %2 (state %3).</source>
        <translation>El dispositivo «%1» vuelve a ser el que era hasta %2 (estado %3).</translation>
    </message>
    <message>
        <source>&amp;Bring Back</source>
        <translation>&amp;Recuperar</translation>
    </message>
    <message>
        <source>&amp;Replace it; it goes into the history</source>
        <translation>Ree&amp;mplazar; el actual pasa al historial</translation>
    </message>
    <message>
        <source>&amp;Under its name</source>
        <translation>Con s&amp;u nombre</translation>
    </message>
    <message>
        <source>The current &quot;%1&quot; was saved on %2.</source>
        <translation>El «%1» actual se guardó el %2.</translation>
    </message>
    <message>
        <source>The current &quot;%1&quot; was saved on %2 by %3.</source>
        <translation>El «%1» actual lo guardó el %2 %3.</translation>
    </message>
    <message>
        <source>A device has this name now. A template cannot have the name of a device: give it another one.</source>
        <translation>Ahora un dispositivo tiene este nombre. Una plantilla no puede llamarse como un dispositivo: dele otro.</translation>
    </message>
    <message>
        <source>A template has this name now. A device cannot have the name of a template: give it another one.</source>
        <translation>Ahora una plantilla tiene este nombre. Un dispositivo no puede llamarse como una plantilla: dele otro.</translation>
    </message>
    <message>
        <source>Enter the new name.</source>
        <translation>Introduzca el nombre nuevo.</translation>
    </message>
</context>
<context>
    <name>CHART_SAVER</name>
    <message>
        <source>PDF document (*.pdf)</source>
        <translation>Documento PDF (*.pdf)</translation>
    </message>
    <message>
        <source>SVG picture (*.svg)</source>
        <translation>Imagen SVG (*.svg)</translation>
    </message>
    <message>
        <source>Save Flow Charts</source>
        <translation>Guardar diagramas de flujo</translation>
    </message>
    <message>
        <source>The file %1 cannot be written: %2</source>
        <translation>No se puede escribir el archivo %1: %2</translation>
    </message>
</context>
<context>
    <name>COMPARE_DIALOG</name>
    <message>
        <source>Compare</source>
        <translation>Comparar</translation>
    </message>
    <message>
        <source>There are no differences.</source>
        <translation>No hay diferencias.</translation>
    </message>
    <message>
        <source>Differences: %1</source>
        <translation>Diferencias: %1</translation>
    </message>
    <message>
        <source>&amp;Only differences</source>
        <translation>S&amp;olo las diferencias</translation>
    </message>
    <message>
        <source>&amp;Previous Difference</source>
        <translation>Diferencia &amp;anterior</translation>
    </message>
    <message>
        <source>&amp;Next Difference</source>
        <translation>Diferencia &amp;siguiente</translation>
    </message>
    <message>
        <source>Copy as &amp;Diff</source>
        <translation>Copiar como &amp;diff</translation>
    </message>
    <message>
        <source>%1 and %2</source>
        <translation>%1 y %2</translation>
    </message>
    <message>
        <source>%1: &quot;%2&quot; and &quot;%3&quot;</source>
        <translation>%1: «%2» y «%3»</translation>
    </message>
</context>
<context>
    <name>COMPARE_MODEL</name>
    <message>
        <source>Different</source>
        <translation>Diferente</translation>
    </message>
    <message>
        <source>Only on the left</source>
        <translation>Solo a la izquierda</translation>
    </message>
    <message>
        <source>Only on the right</source>
        <translation>Solo a la derecha</translation>
    </message>
    <message>
        <source>The same</source>
        <translation>Igual</translation>
    </message>
</context>
<context>
    <name>CONNECTION_PANEL</name>
    <message>
        <source>Emulated chip</source>
        <translation>Chip emulado</translation>
    </message>
    <message>
        <source>Network (serprog)</source>
        <translation>Red (serprog)</translation>
    </message>
    <message>
        <source>Serial line (serprog)</source>
        <translation>Línea serie (serprog)</translation>
    </message>
    <message>
        <source>De&amp;tect</source>
        <translation>D&amp;etectar</translation>
    </message>
    <message>
        <source>Co&amp;nnection:</source>
        <translation>C&amp;onexión:</translation>
    </message>
    <message>
        <source>none: in memory</source>
        <translation>ninguno: en memoria</translation>
    </message>
    <message>
        <source>Browse...</source>
        <translation>Examinar...</translation>
    </message>
    <message>
        <source>&amp;Keep contents in:</source>
        <translation>G&amp;uardar contenido en:</translation>
    </message>
    <message>
        <source>Port:</source>
        <translation>Puerto:</translation>
    </message>
    <message>
        <source>S&amp;erial line:</source>
        <translation>Línea &amp;serie:</translation>
    </message>
    <message>
        <source>Baud rate:</source>
        <translation>Velocidad (baudios):</translation>
    </message>
    <message>
        <source>Contents of the Emulated Chip</source>
        <translation>Contenido del chip emulado</translation>
    </message>
    <message>
        <source>The connection is not complete.</source>
        <translation>La conexión no está completa.</translation>
    </message>
    <message>
        <source>the programmer&apos;s own</source>
        <translation>el del programador</translation>
    </message>
    <message>
        <source>Clock (Hz):</source>
        <translation>Reloj (Hz):</translation>
    </message>
    <message>
        <source>The clock is not a number of hertz.</source>
        <translation>El reloj no es un número de hercios.</translation>
    </message>
    <message>
        <source>H&amp;ost:</source>
        <translation>&amp;Host:</translation>
    </message>
</context>
<context>
    <name>COPY_DIALOG</name>
    <message>
        <source>Duplicate</source>
        <translation>Duplicar</translation>
    </message>
    <message>
        <source>&amp;Copy of:</source>
        <translation>&amp;Copia de:</translation>
    </message>
    <message>
        <source>&amp;New name:</source>
        <translation>&amp;Nombre nuevo:</translation>
    </message>
    <message>
        <source>&amp;Duplicate</source>
        <translation>&amp;Duplicar</translation>
    </message>
    <message>
        <source>Choose the device to copy.</source>
        <translation>Elija el dispositivo que se va a copiar.</translation>
    </message>
</context>
<context>
    <name>DATABASE_DEVICE_MENU</name>
    <message>
        <source>&amp;Open in the Configuration Device Dialog</source>
        <translation>&amp;Abrir en el diálogo del dispositivo de configuración</translation>
    </message>
    <message>
        <source>D&amp;uplicate...</source>
        <translation>D&amp;uplicar...</translation>
    </message>
    <message>
        <source>&amp;Delete</source>
        <translation>&amp;Eliminar</translation>
    </message>
    <message>
        <source>&amp;Compare...</source>
        <translation>&amp;Comparar...</translation>
    </message>
    <message>
        <source>Save Flow C&amp;harts...</source>
        <translation>&amp;Guardar diagramas de flujo...</translation>
    </message>
</context>
<context>
    <name>DATABASE_EDIT_MENU</name>
    <message>
        <source>&amp;Undo</source>
        <translation>&amp;Deshacer</translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation>&amp;Copiar</translation>
    </message>
    <message>
        <source>Select &amp;All</source>
        <translation>Seleccionar &amp;todo</translation>
    </message>
    <message>
        <source>&amp;Find</source>
        <translation>&amp;Buscar</translation>
    </message>
    <message>
        <source>Delete &quot;%1&quot;</source>
        <translation>Eliminar «%1»</translation>
    </message>
    <message>
        <source>Delete, devices: %1</source>
        <translation>Eliminar, dispositivos: %1</translation>
    </message>
</context>
<context>
    <name>DATABASE_MENU</name>
    <message>
        <source>&amp;Open Directory...</source>
        <translation>A&amp;brir directorio...</translation>
    </message>
    <message>
        <source>&amp;Recent Directories</source>
        <translation>Directorios &amp;recientes</translation>
    </message>
    <message>
        <source>Re&amp;fresh</source>
        <translation>Ac&amp;tualizar</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>&amp;Cerrar</translation>
    </message>
    <message>
        <source>&amp;Import...</source>
        <translation>&amp;Importar...</translation>
    </message>
    <message>
        <source>&amp;Export...</source>
        <translation>&amp;Exportar...</translation>
    </message>
</context>
<context>
    <name>DATABASE_WINDOW</name>
    <message>
        <source>Devices</source>
        <translation>Dispositivos</translation>
    </message>
    <message>
        <source>Da&amp;tabase</source>
        <translation>Base de &amp;datos</translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <translation>&amp;Edición</translation>
    </message>
    <message>
        <source>&amp;Device</source>
        <translation>D&amp;ispositivo</translation>
    </message>
    <message>
        <source>Device Database - %1</source>
        <translation>Base de datos de dispositivos - %1</translation>
    </message>
    <message>
        <source>Open Directory</source>
        <translation>Abrir directorio</translation>
    </message>
    <message>
        <source>The directory is used now, but could not be stored in the settings.</source>
        <translation>El directorio ya se usa, pero no se pudo guardar en la configuración.</translation>
    </message>
    <message>
        <source>The device &quot;%1&quot; does not exist any more.</source>
        <translation>El dispositivo «%1» ya no existe.</translation>
    </message>
    <message>
        <source>The device &quot;%1&quot; is stored.</source>
        <translation>El dispositivo «%1» está guardado.</translation>
    </message>
    <message>
        <source>The device &quot;%1&quot; is deleted. Ctrl+Z brings it back.</source>
        <translation>El dispositivo «%1» se eliminó. Ctrl+Z lo recupera.</translation>
    </message>
    <message>
        <source>Devices deleted: %1. Ctrl+Z brings them back.</source>
        <translation>Dispositivos eliminados: %1. Ctrl+Z los recupera.</translation>
    </message>
    <message>
        <source>The device &quot;%1&quot; is back.</source>
        <translation>El dispositivo «%1» está de nuevo.</translation>
    </message>
    <message>
        <source>Devices brought back: %1</source>
        <translation>Dispositivos recuperados: %1</translation>
    </message>
    <message>
        <source>History</source>
        <translation>Historial</translation>
    </message>
    <message>
        <source>The flow charts are in %1.</source>
        <translation>Los diagramas de flujo están en %1.</translation>
    </message>
    <message>
        <source>Files of Records</source>
        <translation>Archivos de registros</translation>
    </message>
    <message>
        <source>Records</source>
        <translation>Registros</translation>
    </message>
    <message>
        <source>Devices are being deleted.</source>
        <translation>Se están eliminando los dispositivos.</translation>
    </message>
    <message>
        <source>Devices deleted: %1 of %2. Ctrl+Z brings them back.</source>
        <translation>Dispositivos eliminados: %1 de %2. Ctrl+Z los recupera.</translation>
    </message>
    <message>
        <source>Devices are being brought back.</source>
        <translation>Se están recuperando los dispositivos.</translation>
    </message>
    <message>
        <source>Devices brought back: %1 of %2. Ctrl+Z goes on.</source>
        <translation>Dispositivos recuperados: %1 de %2. Ctrl+Z continúa.</translation>
    </message>
</context>
<context>
    <name>DATA_PAGE</name>
    <message>
        <source>Go to:</source>
        <translation>Ir a:</translation>
    </message>
    <message>
        <source>Previous Difference</source>
        <translation>Diferencia anterior</translation>
    </message>
    <message>
        <source>Next Difference</source>
        <translation>Diferencia siguiente</translation>
    </message>
    <message>
        <source>Save As...</source>
        <translation>Guardar como...</translation>
    </message>
    <message>
        <source>Nothing was read. Check Examine to read the chip.</source>
        <translation>No se leyó nada. Marque Examine para leer el chip.</translation>
    </message>
    <message>
        <source>%1 was read.</source>
        <translation>Se leyó %1.</translation>
    </message>
    <message>
        <source>%1 was read. It is what the file has.</source>
        <translation>Se leyó %1. Coincide con el archivo.</translation>
    </message>
    <message>
        <source>%1 was read. Bytes that differ from the file: %2</source>
        <translation>Se leyó %1. Bytes que difieren del archivo: %2</translation>
    </message>
    <message>
        <source>Save What Was Read</source>
        <translation>Guardar lo leído</translation>
    </message>
    <message>
        <source>The file %1 cannot be written: %2</source>
        <translation>No se puede escribir el archivo %1: %2</translation>
    </message>
    <message>
        <source>%1: %2, expected %3</source>
        <translation>%1: %2, se esperaba %3</translation>
    </message>
    <message>
        <source>Bytes that were read</source>
        <translation>Bytes leídos</translation>
    </message>
    <message>
        <source>The file %1 keeps the contents of the emulated chip. Choose another one.</source>
        <translation>El archivo %1 guarda el contenido del chip emulado. Elija otro.</translation>
    </message>
</context>
<context>
    <name>DETECTED_DIALOG</name>
    <message>
        <source>Detect</source>
        <translation>Detectar</translation>
    </message>
    <message>
        <source>The chip has the ID %1. Devices with this ID:</source>
        <translation>El chip tiene el ID %1. Dispositivos con este ID:</translation>
    </message>
</context>
<context>
    <name>DEVICE_MODEL</name>
    <message>
        <source>all</source>
        <translation>todos</translation>
    </message>
    <message>
        <source>Built in</source>
        <translation>Integrado</translation>
    </message>
    <message>
        <source>Own</source>
        <translation>Propio</translation>
    </message>
    <message>
        <source>Of own devices they are read from the flows when they are shown for the first time. Those not read yet are sorted as the highest.</source>
        <translation>En los dispositivos propios se leen de los flujos cuando se muestran por primera vez. Los que aún no se han leído se ordenan como los más altos.</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Nombre</translation>
    </message>
    <message>
        <source>Maker</source>
        <translation>Fabricante</translation>
    </message>
    <message>
        <source>Device ID</source>
        <translation>ID del dispositivo</translation>
    </message>
    <message>
        <source>Density</source>
        <translation>Capacidad</translation>
    </message>
    <message>
        <source>Voltage</source>
        <translation>Tensión</translation>
    </message>
    <message>
        <source>Address bytes</source>
        <translation>Bytes de dirección</translation>
    </message>
    <message>
        <source>Dies</source>
        <translation>Dies</translation>
    </message>
    <message>
        <source>Device family</source>
        <translation>Familia de dispositivos</translation>
    </message>
    <message>
        <source>Mode</source>
        <translation>Modo</translation>
    </message>
    <message>
        <source>Kind</source>
        <translation>Tipo</translation>
    </message>
    <message>
        <source>Changed</source>
        <translation>Modificado</translation>
    </message>
    <message>
        <source>Changed by</source>
        <translation>Modificado por</translation>
    </message>
</context>
<context>
    <name>DEVICE_PAGE</name>
    <message>
        <source>&amp;Find:</source>
        <translation>&amp;Buscar:</translation>
    </message>
    <message>
        <source>Name, maker, density, voltage or device ID</source>
        <translation>Nombre, fabricante, capacidad, tensión o ID del dispositivo</translation>
    </message>
    <message>
        <source>Devices</source>
        <translation>Dispositivos</translation>
    </message>
    <message>
        <source>%1 of %2 devices</source>
        <translation>%1 de %2 dispositivos</translation>
    </message>
</context>
<context>
    <name>DEVICE_PANEL</name>
    <message>
        <source>none</source>
        <translation>ninguno</translation>
    </message>
    <message>
        <source>Device &amp;family:</source>
        <translation>Fa&amp;milia de dispositivos:</translation>
    </message>
    <message>
        <source>Configuration &amp;mode:</source>
        <translation>Modo de confi&amp;guración:</translation>
    </message>
    <message>
        <source>Configuration &amp;device:</source>
        <translation>Disposi&amp;tivo de configuración:</translation>
    </message>
    <message>
        <source>Database di&amp;rectory:</source>
        <translation>Directorio de la &amp;base de datos:</translation>
    </message>
    <message>
        <source>&amp;Configuration Device...</source>
        <translation>&amp;Dispositivo de configuración...</translation>
    </message>
</context>
<context>
    <name>DEVICE_PROGRESS</name>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
</context>
<context>
    <name>DEVICE_SOURCES</name>
    <message>
        <source>The device &quot;%1&quot; does not exist.</source>
        <translation>El dispositivo «%1» no existe.</translation>
    </message>
</context>
<context>
    <name>EXPORT_DIALOG</name>
    <message>
        <source>Export</source>
        <translation>Exportar</translation>
    </message>
    <message>
        <source>Selected records: %1</source>
        <translation>Registros seleccionados: %1</translation>
    </message>
    <message>
        <source>All stored devices and templates</source>
        <translation>Todos los dispositivos y plantillas guardados</translation>
    </message>
    <message>
        <source>All built-in devices</source>
        <translation>Todos los dispositivos integrados</translation>
    </message>
    <message>
        <source>One JSON file</source>
        <translation>Un archivo JSON</translation>
    </message>
    <message>
        <source>One JSON file for each record</source>
        <translation>Un archivo JSON por registro</translation>
    </message>
    <message>
        <source>CSV list of the devices, without flows</source>
        <translation>Lista CSV de los dispositivos, sin flujos</translation>
    </message>
    <message>
        <source>For a &amp;spreadsheet (cannot be imported again)</source>
        <translation>Para una &amp;hoja de cálculo (no se puede volver a importar)</translation>
    </message>
    <message>
        <source>Texts that a spreadsheet would run as formulas get an apostrophe.</source>
        <translation>Los textos que una hoja de cálculo ejecutaría como fórmulas reciben un apóstrofo.</translation>
    </message>
    <message>
        <source>&amp;Browse...</source>
        <translation>E&amp;xaminar...</translation>
    </message>
    <message>
        <source>&amp;Records:</source>
        <translation>&amp;Registros:</translation>
    </message>
    <message>
        <source>&amp;Format:</source>
        <translation>&amp;Formato:</translation>
    </message>
    <message>
        <source>&amp;To:</source>
        <translation>&amp;Destino:</translation>
    </message>
    <message>
        <source>&amp;Export</source>
        <translation>&amp;Exportar</translation>
    </message>
    <message>
        <source>Progress</source>
        <translation>Progreso</translation>
    </message>
    <message>
        <source>Directory for the Files</source>
        <translation>Directorio para los archivos</translation>
    </message>
    <message>
        <source>File for the Records</source>
        <translation>Archivo para los registros</translation>
    </message>
    <message>
        <source>These files already exist:</source>
        <translation>Estos archivos ya existen:</translation>
    </message>
    <message>
        <source>Re&amp;place</source>
        <translation>Reem&amp;plazar</translation>
    </message>
    <message>
        <source>Enter where the records go.</source>
        <translation>Indique el destino de los registros.</translation>
    </message>
    <message>
        <source>There is nothing to export.</source>
        <translation>No hay nada que exportar.</translation>
    </message>
    <message>
        <source>Exported records: %1, into %2</source>
        <translation>Registros exportados: %1, en %2</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Cerrar</translation>
    </message>
    <message>
        <source>These cannot be read, and are not exported:</source>
        <translation>Estos no se pueden leer y no se exportan:</translation>
    </message>
</context>
<context>
    <name>FILE_PANEL</name>
    <message>
        <source>Bro&amp;wse...</source>
        <translation>E&amp;xaminar...</translation>
    </message>
    <message>
        <source>No file. A file can be dropped on the window.</source>
        <translation>Ningún archivo. Se puede soltar uno en la ventana.</translation>
    </message>
    <message>
        <source>F&amp;ile:</source>
        <translation>A&amp;rchivo:</translation>
    </message>
    <message>
        <source>File &amp;begins at:</source>
        <translation>El &amp;archivo empieza en:</translation>
    </message>
    <message>
        <source>The file is being read.</source>
        <translation>Se está leyendo el archivo.</translation>
    </message>
    <message>
        <source>The file cannot be read: %1</source>
        <translation>No se puede leer el archivo: %1</translation>
    </message>
    <message>
        <source>%1 bytes, CRC-32 %2</source>
        <translation>%1 bytes, CRC-32 %2</translation>
    </message>
    <message>
        <source>File to Program</source>
        <translation>Archivo que programar</translation>
    </message>
</context>
<context>
    <name>FILE_SUMMARY</name>
    <message>
        <source>It is not a file.</source>
        <translation>No es un archivo.</translation>
    </message>
</context>
<context>
    <name>HELP_MENU</name>
    <message>
        <source>&amp;Help</source>
        <translation>A&amp;yuda</translation>
    </message>
    <message>
        <source>&amp;User Guide</source>
        <translation>&amp;Guía del usuario</translation>
    </message>
    <message>
        <source>Device &amp;Database</source>
        <translation>Base de &amp;datos de dispositivos</translation>
    </message>
    <message>
        <source>&amp;Programming</source>
        <translation>&amp;Programación</translation>
    </message>
    <message>
        <source>&amp;Flows</source>
        <translation>&amp;Flujos</translation>
    </message>
    <message>
        <source>&amp;Command Line</source>
        <translation>&amp;Línea de órdenes</translation>
    </message>
    <message>
        <source>&amp;About</source>
        <translation>&amp;Acerca de</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Ayuda</translation>
    </message>
    <message>
        <source>The guide is not installed. It would be here:
%1</source>
        <translation>La guía no está instalada. Estaría aquí:
%1</translation>
    </message>
    <message>
        <source>No program shows this guide. Open it with a viewer or an editor:
%1</source>
        <translation>Ningún programa muestra esta guía. Ábrala con un visor o un editor:
%1</translation>
    </message>
    <message>
        <source>%1 %2

Licence: MIT
Qt %3

The built-in devices are public facts about flash parts. The names of parts belong to their makers.</source>
        <translation>%1 %2

Licencia: MIT
Qt %3

Los dispositivos integrados son datos públicos sobre memorias flash. Los nombres pertenecen a sus fabricantes.</translation>
    </message>
    <message>
        <source>About</source>
        <translation>Acerca de</translation>
    </message>
</context>
<context>
    <name>HISTORY_MENU</name>
    <message>
        <source>Compare with the &amp;Next State</source>
        <translation>Comparar con el estado &amp;siguiente</translation>
    </message>
    <message>
        <source>Compare with the &amp;Previous State</source>
        <translation>Comparar con el estado &amp;anterior</translation>
    </message>
    <message>
        <source>Compare with the &amp;Current State</source>
        <translation>Comparar con el estado ac&amp;tual</translation>
    </message>
    <message>
        <source>Compare the Two &amp;Selected States</source>
        <translation>Comparar los &amp;dos estados seleccionados</translation>
    </message>
</context>
<context>
    <name>HISTORY_MODEL</name>
    <message>
        <source>Changed</source>
        <translation>Modificado</translation>
    </message>
    <message>
        <source>Deleted</source>
        <translation>Eliminado</translation>
    </message>
    <message>
        <source>Put back</source>
        <translation>Repuesto</translation>
    </message>
    <message>
        <source>This state was replaced by another one.</source>
        <translation>Este estado fue reemplazado por otro.</translation>
    </message>
    <message>
        <source>This state was deleted.</source>
        <translation>Este estado fue eliminado.</translation>
    </message>
    <message>
        <source>This state was deleted, and put back because it could not be replaced.</source>
        <translation>Este estado fue eliminado y repuesto porque no se pudo reemplazar.</translation>
    </message>
    <message>
        <source>Template</source>
        <translation>Plantilla</translation>
    </message>
    <message>
        <source>Device</source>
        <translation>Dispositivo</translation>
    </message>
    <message>
        <source>When</source>
        <translation>Cuándo</translation>
    </message>
    <message>
        <source>User</source>
        <translation>Usuario</translation>
    </message>
    <message>
        <source>Change</source>
        <translation>Cambio</translation>
    </message>
    <message>
        <source>Kind</source>
        <translation>Tipo</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Nombre</translation>
    </message>
    <message>
        <source>Family</source>
        <translation>Familia</translation>
    </message>
    <message>
        <source>Mode</source>
        <translation>Modo</translation>
    </message>
    <message>
        <source>No.</source>
        <translation>N.º</translation>
    </message>
</context>
<context>
    <name>HISTORY_PAGE</name>
    <message>
        <source>&amp;Compare</source>
        <translation>&amp;Comparar</translation>
    </message>
    <message>
        <source>&amp;Bring Back...</source>
        <translation>&amp;Recuperar...</translation>
    </message>
    <message>
        <source>Devices and templates</source>
        <translation>Dispositivos y plantillas</translation>
    </message>
    <message>
        <source>Devices</source>
        <translation>Dispositivos</translation>
    </message>
    <message>
        <source>Templates</source>
        <translation>Plantillas</translation>
    </message>
    <message>
        <source>History</source>
        <translation>Historial</translation>
    </message>
    <message>
        <source>Na&amp;me:</source>
        <translation>No&amp;mbre:</translation>
    </message>
    <message>
        <source>&amp;User:</source>
        <translation>&amp;Usuario:</translation>
    </message>
    <message>
        <source>&amp;Kind:</source>
        <translation>Ti&amp;po:</translation>
    </message>
    <message>
        <source>States: %1, searching...</source>
        <translation>Estados: %1, buscando...</translation>
    </message>
    <message>
        <source>States: more than %1</source>
        <translation>Estados: más de %1</translation>
    </message>
    <message>
        <source>States: %1</source>
        <translation>Estados: %1</translation>
    </message>
    <message>
        <source>There is no state before this one.</source>
        <translation>No hay ningún estado antes de este.</translation>
    </message>
    <message>
        <source>There is no state after this one: it was deleted or renamed.</source>
        <translation>No hay ningún estado después de este: se eliminó o se cambió de nombre.</translation>
    </message>
    <message>
        <source>There is no current state: it was deleted or renamed.</source>
        <translation>No hay estado actual: se eliminó o se cambió de nombre.</translation>
    </message>
    <message>
        <source>A state was removed from the history.</source>
        <translation>Se quitó un estado del historial.</translation>
    </message>
</context>
<context>
    <name>IMPORT_DIALOG</name>
    <message>
        <source>Import: %1</source>
        <translation>Importar: %1</translation>
    </message>
    <message>
        <source>Import</source>
        <translation>Importar</translation>
    </message>
    <message>
        <source>As in the files</source>
        <translation>Como en los archivos</translation>
    </message>
    <message>
        <source>&amp;Replace records that differ</source>
        <translation>&amp;Reemplazar los registros que difieran</translation>
    </message>
    <message>
        <source>Device &amp;family:</source>
        <translation>Fa&amp;milia de dispositivos:</translation>
    </message>
    <message>
        <source>Configuration &amp;mode:</source>
        <translation>Modo de confi&amp;guración:</translation>
    </message>
    <message>
        <source>Preview</source>
        <translation>Vista previa</translation>
    </message>
    <message>
        <source>Details</source>
        <translation>Detalles</translation>
    </message>
    <message>
        <source>&amp;Import</source>
        <translation>&amp;Importar</translation>
    </message>
    <message>
        <source>&amp;Compare...</source>
        <translation>&amp;Comparar...</translation>
    </message>
    <message>
        <source>Progress</source>
        <translation>Progreso</translation>
    </message>
    <message>
        <source>The files are being read.</source>
        <translation>Se están leyendo los archivos.</translation>
    </message>
    <message>
        <source>Nothing is imported while there are problems.</source>
        <translation>No se importa nada mientras haya problemas.</translation>
    </message>
    <message>
        <source>There is nothing to import.</source>
        <translation>No hay nada que importar.</translation>
    </message>
    <message>
        <source>Stored</source>
        <translation>Guardado</translation>
    </message>
    <message>
        <source>In the file</source>
        <translation>En el archivo</translation>
    </message>
    <message>
        <source>The records are being stored.</source>
        <translation>Se están guardando los registros.</translation>
    </message>
    <message>
        <source>Nothing was imported: %1
The preview was made again.</source>
        <translation>No se importó nada: %1
La vista previa se hizo de nuevo.</translation>
    </message>
    <message>
        <source>Imported into %1. New: %2, replaced: %3</source>
        <translation>Importado en %1. Nuevos: %2, reemplazados: %3</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Cerrar</translation>
    </message>
    <message>
        <source>Nothing was imported: you have cancelled it.</source>
        <translation>No se importó nada: usted lo canceló.</translation>
    </message>
</context>
<context>
    <name>IMPORT_MODEL</name>
    <message>
        <source>Problem</source>
        <translation>Problema</translation>
    </message>
    <message>
        <source>Warning</source>
        <translation>Advertencia</translation>
    </message>
    <message>
        <source>Will be replaced</source>
        <translation>Se reemplazará</translation>
    </message>
    <message>
        <source>Differs, not imported</source>
        <translation>Difiere, no se importa</translation>
    </message>
    <message>
        <source>New</source>
        <translation>Nuevo</translation>
    </message>
    <message>
        <source>Already exists</source>
        <translation>Ya existe</translation>
    </message>
    <message>
        <source>%1: differs</source>
        <translation>%1: difiere</translation>
    </message>
    <message>
        <source>%1: stored %2, in the file %3</source>
        <translation>%1: guardado %2, en el archivo %3</translation>
    </message>
    <message>
        <source>Differs in: %1</source>
        <translation>Difiere en: %1</translation>
    </message>
    <message>
        <source>State</source>
        <translation>Estado</translation>
    </message>
    <message>
        <source>Record</source>
        <translation>Registro</translation>
    </message>
    <message>
        <source>Family</source>
        <translation>Familia</translation>
    </message>
    <message>
        <source>Mode</source>
        <translation>Modo</translation>
    </message>
    <message>
        <source>File</source>
        <translation>Archivo</translation>
    </message>
    <message>
        <source>Line</source>
        <translation>Línea</translation>
    </message>
    <message>
        <source>Remark</source>
        <translation>Observación</translation>
    </message>
</context>
<context>
    <name>MODULE_LOADER</name>
    <message>
        <source>The dialog module was not found. Searched:
%1</source>
        <translation>No se encontró el módulo del diálogo. Se buscó en:
%1</translation>
    </message>
    <message>
        <source>The dialog module %1 is not loaded: everyone may change %2.</source>
        <translation>El módulo del diálogo %1 no se carga: cualquiera puede modificar %2.</translation>
    </message>
    <message>
        <source>The dialog module %1 cannot be loaded:
%2</source>
        <translation>No se puede cargar el módulo del diálogo %1:
%2</translation>
    </message>
    <message>
        <source>The dialog module %1 has no function &quot;%2&quot;.</source>
        <translation>El módulo del diálogo %1 no tiene la función «%2».</translation>
    </message>
</context>
<context>
    <name>NEW_DEVICE_DESK</name>
    <message>
        <source>New Device</source>
        <translation>Dispositivo nuevo</translation>
    </message>
    <message>
        <source>SFDP Read-Out of a Chip</source>
        <translation>Lectura SFDP de un chip</translation>
    </message>
</context>
<context>
    <name>NEW_DEVICE_DIALOG</name>
    <message>
        <source>New Device</source>
        <translation>Dispositivo nuevo</translation>
    </message>
    <message>
        <source>New Device: %1</source>
        <translation>Dispositivo nuevo: %1</translation>
    </message>
    <message>
        <source>&amp;Warnings:</source>
        <translation>Ad&amp;vertencias:</translation>
    </message>
    <message>
        <source>&amp;Listed parts with this ID:</source>
        <translation>Componentes de la &amp;lista con este ID:</translation>
    </message>
    <message>
        <source>Create &amp;Device</source>
        <translation>C&amp;rear dispositivo</translation>
    </message>
    <message>
        <source>Save &amp;Read-Out...</source>
        <translation>Guardar l&amp;ectura...</translation>
    </message>
    <message>
        <source>none</source>
        <translation>ninguno</translation>
    </message>
    <message>
        <source>no differences</source>
        <translation>sin diferencias</translation>
    </message>
    <message>
        <source>Save the Read-Out</source>
        <translation>Guardar la lectura</translation>
    </message>
    <message>
        <source>What was entered has changed other values or the warnings. Look at them, then create the device.</source>
        <translation>Lo introducido ha cambiado otros valores o las advertencias. Revíselos y cree después el dispositivo.</translation>
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
        <translation>Lo que cubre el archivo</translation>
    </message>
    <message>
        <source>The whole device</source>
        <translation>Todo el dispositivo</translation>
    </message>
    <message>
        <source>Address and length</source>
        <translation>Dirección y longitud</translation>
    </message>
    <message>
        <source>Ran&amp;ge:</source>
        <translation>Ra&amp;ngo:</translation>
    </message>
    <message>
        <source>&amp;Address:</source>
        <translation>Dire&amp;cción:</translation>
    </message>
    <message>
        <source>Length:</source>
        <translation>Longitud:</translation>
    </message>
</context>
<context>
    <name>PLACE_FIELDS</name>
    <message>
        <source>Device &amp;family:</source>
        <translation>Fa&amp;milia de dispositivos:</translation>
    </message>
    <message>
        <source>Configuration &amp;mode:</source>
        <translation>Modo de confi&amp;guración:</translation>
    </message>
</context>
<context>
    <name>PROGRAMMER_MENU</name>
    <message>
        <source>&amp;Configuration Device...</source>
        <translation>&amp;Dispositivo de configuración...</translation>
    </message>
    <message>
        <source>&amp;Detect</source>
        <translation>D&amp;etectar</translation>
    </message>
    <message>
        <source>&amp;Open File...</source>
        <translation>&amp;Abrir archivo...</translation>
    </message>
    <message>
        <source>&amp;Try the Flow</source>
        <translation>&amp;Probar el flujo</translation>
    </message>
    <message>
        <source>&amp;Start</source>
        <translation>&amp;Iniciar</translation>
    </message>
    <message>
        <source>C&amp;ancel</source>
        <translation>&amp;Cancelar</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>&amp;Salir</translation>
    </message>
    <message>
        <source>&amp;New Device from Chip...</source>
        <translation>&amp;Nuevo dispositivo desde el chip...</translation>
    </message>
    <message>
        <source>New Device from S&amp;FDP File...</source>
        <translation>Nuevo dispositivo desde archivo S&amp;FDP...</translation>
    </message>
    <message>
        <source>D&amp;uplicate...</source>
        <translation>D&amp;uplicar...</translation>
    </message>
    <message>
        <source>Device Data&amp;base...</source>
        <translation>&amp;Base de datos de dispositivos...</translation>
    </message>
    <message>
        <source>Save Flow C&amp;harts...</source>
        <translation>&amp;Guardar diagramas de flujo...</translation>
    </message>
</context>
<context>
    <name>PROGRAMMER_WINDOW</name>
    <message>
        <source>Device</source>
        <translation>Dispositivo</translation>
    </message>
    <message>
        <source>Connection</source>
        <translation>Conexión</translation>
    </message>
    <message>
        <source>File</source>
        <translation>Archivo</translation>
    </message>
    <message>
        <source>Operations</source>
        <translation>Operaciones</translation>
    </message>
    <message>
        <source>Log</source>
        <translation>Registro</translation>
    </message>
    <message>
        <source>Trace</source>
        <translation>Traza</translation>
    </message>
    <message>
        <source>Data</source>
        <translation>Datos</translation>
    </message>
    <message>
        <source>&amp;Programmer</source>
        <translation>&amp;Programador</translation>
    </message>
    <message>
        <source>Not started: %1</source>
        <translation>No iniciado: %1</translation>
    </message>
    <message>
        <source>The place where the file begins is not a number.</source>
        <translation>El lugar donde empieza el archivo no es un número.</translation>
    </message>
    <message>
        <source>Address or length is not a number.</source>
        <translation>La dirección o la longitud no es un número.</translation>
    </message>
    <message>
        <source>Nothing was detected: %1</source>
        <translation>No se detectó nada: %1</translation>
    </message>
    <message>
        <source>The chip has the ID %1.</source>
        <translation>El chip tiene el ID %1.</translation>
    </message>
    <message>
        <source>No device has the ID %1.</source>
        <translation>Ningún dispositivo tiene el ID %1.</translation>
    </message>
    <message>
        <source>The run is being cancelled. If it is stopped at once, the state of the chip is unknown.</source>
        <translation>La ejecución se está cancelando. Si se detiene de inmediato, el estado del chip es desconocido.</translation>
    </message>
    <message>
        <source>A run is under way. Cancel it and close the window?</source>
        <translation>Hay una ejecución en curso. ¿Cancelarla y cerrar la ventana?</translation>
    </message>
    <message>
        <source>Stop at once</source>
        <translation>Detener de inmediato</translation>
    </message>
    <message>
        <source>Cancel the run</source>
        <translation>Cancelar la ejecución</translation>
    </message>
    <message>
        <source>Wait</source>
        <translation>Esperar</translation>
    </message>
    <message>
        <source>Keep running</source>
        <translation>Seguir ejecutando</translation>
    </message>
    <message>
        <source>Cancelled</source>
        <translation>Cancelado</translation>
    </message>
    <message>
        <source>The device &quot;%1&quot; is stored.</source>
        <translation>El dispositivo «%1» está guardado.</translation>
    </message>
    <message>
        <source>The device &quot;%1&quot; is not there, or of a family or mode that is not offered here.</source>
        <translation>El dispositivo «%1» no existe o es de una familia o un modo que no se ofrece aquí.</translation>
    </message>
    <message>
        <source>The flow charts cannot be saved: %1</source>
        <translation>No se pueden guardar los diagramas de flujo: %1</translation>
    </message>
    <message>
        <source>The flow charts are in %1.</source>
        <translation>Los diagramas de flujo están en %1.</translation>
    </message>
</context>
<context>
    <name>QPlatformTheme</name>
    <message>
        <source>OK</source>
        <translation>Aceptar</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Cerrar</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Guardar</translation>
    </message>
</context>
<context>
    <name>READ_OUT_FILE</name>
    <message>
        <source>The file %1 cannot be read: %2</source>
        <translation>No se puede leer el archivo %1: %2</translation>
    </message>
    <message>
        <source>%1 is not a file.</source>
        <translation>%1 no es un archivo.</translation>
    </message>
    <message>
        <source>The file %1 has more than %2 bytes and is not an SFDP read-out.</source>
        <translation>El archivo %1 tiene más de %2 bytes y no es una lectura SFDP.</translation>
    </message>
    <message>
        <source>The file %1 cannot be written: %2</source>
        <translation>No se puede escribir el archivo %1: %2</translation>
    </message>
</context>
<context>
    <name>RECORD_COMPARISON</name>
    <message>
        <source>Kind</source>
        <translation>Tipo</translation>
    </message>
    <message>
        <source>Template</source>
        <translation>Plantilla</translation>
    </message>
    <message>
        <source>Built-in device</source>
        <translation>Dispositivo integrado</translation>
    </message>
    <message>
        <source>Own device</source>
        <translation>Dispositivo propio</translation>
    </message>
    <message>
        <source>Family</source>
        <translation>Familia</translation>
    </message>
    <message>
        <source>Mode</source>
        <translation>Modo</translation>
    </message>
    <message>
        <source>Properties</source>
        <translation>Propiedades</translation>
    </message>
    <message>
        <source>Quad-I/O flow</source>
        <translation>Flujo Quad I/O</translation>
    </message>
    <message>
        <source>Single-I/O flow</source>
        <translation>Flujo Single I/O</translation>
    </message>
    <message>
        <source>The flow cannot be read.</source>
        <translation>No se puede leer el flujo.</translation>
    </message>
</context>
<context>
    <name>RECORD_EXPORT</name>
    <message>
        <source>The file %1 cannot be written: %2</source>
        <translation>No se puede escribir el archivo %1: %2</translation>
    </message>
</context>
<context>
    <name>RECORD_STATES</name>
    <message>
        <source>%1, state %2 (until %3)</source>
        <translation>%1, estado %2 (hasta %3)</translation>
    </message>
    <message>
        <source>%1, now</source>
        <translation>%1, ahora</translation>
    </message>
</context>
<context>
    <name>REMOVED_DEVICES</name>
    <message>
        <source>The device &quot;%1&quot; was deleted by another program already.</source>
        <translation>Otro programa ya eliminó el dispositivo «%1».</translation>
    </message>
    <message>
        <source>The history does not have the device &quot;%1&quot; any more.</source>
        <translation>El historial ya no contiene el dispositivo «%1».</translation>
    </message>
</context>
<context>
    <name>RUN_BAR</name>
    <message>
        <source>Progress of the run</source>
        <translation>Progreso de la ejecución</translation>
    </message>
    <message>
        <source>Tr&amp;y the Flow</source>
        <translation>Probar el &amp;flujo</translation>
    </message>
    <message>
        <source>Erases, programs and verifies an emulated chip. No hardware is needed or used.</source>
        <translation>Borra, programa y verifica un chip emulado. No se necesita ni se usa hardware.</translation>
    </message>
    <message>
        <source>&amp;Start</source>
        <translation>&amp;Iniciar</translation>
    </message>
    <message>
        <source>Cance&amp;l</source>
        <translation>Cance&amp;lar</translation>
    </message>
    <message>
        <source>The run is being cancelled.</source>
        <translation>La ejecución se está cancelando.</translation>
    </message>
    <message>
        <source>%1: %2 of %3</source>
        <translation>%1: %2 de %3</translation>
    </message>
    <message>
        <source>%1 left</source>
        <translation>quedan %1</translation>
    </message>
</context>
<context>
    <name>RUN_PREPARATION</name>
    <message>
        <source>No operation is checked.</source>
        <translation>No hay ninguna operación marcada.</translation>
    </message>
    <message>
        <source>No file is chosen.</source>
        <translation>No se ha elegido ningún archivo.</translation>
    </message>
    <message>
        <source>No device is chosen.</source>
        <translation>No se ha elegido ningún dispositivo.</translation>
    </message>
    <message>
        <source>The device &quot;%1&quot; does not exist.</source>
        <translation>El dispositivo «%1» no existe.</translation>
    </message>
    <message>
        <source>The file %1 cannot be read.</source>
        <translation>No se puede leer el archivo %1.</translation>
    </message>
    <message>
        <source>The file %1 is empty.</source>
        <translation>El archivo %1 está vacío.</translation>
    </message>
    <message>
        <source>The file needs %1 bytes from %2 on, and the device has %3 bytes.</source>
        <translation>El archivo necesita %1 bytes desde %2, y el dispositivo tiene %3 bytes.</translation>
    </message>
</context>
<context>
    <name>RUN_WORDS</name>
    <message>
        <source>Failed</source>
        <translation>Fallido</translation>
    </message>
    <message>
        <source>Failed at %1</source>
        <translation>Fallido en %1</translation>
    </message>
    <message>
        <source>Failed at %1, action %2 &quot;%3&quot;</source>
        <translation>Fallido en %1, acción %2 «%3»</translation>
    </message>
    <message>
        <source>Stopped. The state of the chip is unknown.</source>
        <translation>Detenido. El estado del chip es desconocido.</translation>
    </message>
    <message>
        <source>The connection is lost. The state of the chip is unknown.</source>
        <translation>Se perdió la conexión. El estado del chip es desconocido.</translation>
    </message>
    <message>
        <source>Passed, but not everything could be stored</source>
        <translation>Correcto, pero no se pudo guardar todo</translation>
    </message>
    <message>
        <source>Passed, but a real chip would have refused or misread commands: see the log</source>
        <translation>Correcto, pero un chip real habría rechazado o malinterpretado órdenes: vea el registro</translation>
    </message>
    <message>
        <source>Passed</source>
        <translation>Correcto</translation>
    </message>
    <message>
        <source>Cancelled</source>
        <translation>Cancelado</translation>
    </message>
    <message>
        <source>Not started: see the log</source>
        <translation>No iniciado: vea el registro</translation>
    </message>
    <message>
        <source>a test pattern</source>
        <translation>un patrón de prueba</translation>
    </message>
    <message>
        <source>Trying the flow of %1 on an emulated chip that is full of other data</source>
        <translation>Prueba del flujo de %1 en un chip emulado lleno de otros datos</translation>
    </message>
    <message>
        <source>Content: %1</source>
        <translation>Contenido: %1</translation>
    </message>
    <message>
        <source>Nothing more was sent, because this may be another chip than the device says.</source>
        <translation>No se envió nada más, porque este chip puede no ser el del dispositivo.</translation>
    </message>
    <message>
        <source>Note of the chip: %1</source>
        <translation>Nota del chip: %1</translation>
    </message>
    <message>
        <source>%1 (%2 commands, %3 s)</source>
        <translation>%1 (%2 órdenes, %3 s)</translation>
    </message>
    <message>
        <source>Whole sectors are erased. These bytes beside the range are erased, too:

%1

Erase them?</source>
        <translation>Se borran sectores enteros. También se borran estos bytes fuera del rango:

%1

¿Borrarlos?</translation>
    </message>
    <message>
        <source>%1 on the connection %2</source>
        <translation>%1 en la conexión %2</translation>
    </message>
</context>
<context>
    <name>TRACE_MODEL</name>
    <message>
        <source>%1 ... (%2 bytes)</source>
        <translation>%1 ... (%2 bytes)</translation>
    </message>
    <message>
        <source>%1, %2 clocks</source>
        <translation>%1, %2 ciclos</translation>
    </message>
    <message>
        <source>No.</source>
        <translation>N.º</translation>
    </message>
    <message>
        <source>Time (ms)</source>
        <translation>Tiempo (ms)</translation>
    </message>
    <message>
        <source>Operation</source>
        <translation>Operación</translation>
    </message>
    <message>
        <source>Action</source>
        <translation>Acción</translation>
    </message>
    <message>
        <source>Command</source>
        <translation>Orden</translation>
    </message>
    <message>
        <source>Lines</source>
        <translation>Líneas</translation>
    </message>
    <message>
        <source>Sent</source>
        <translation>Enviado</translation>
    </message>
    <message>
        <source>Received</source>
        <translation>Recibido</translation>
    </message>
    <message>
        <source>Expected</source>
        <translation>Esperado</translation>
    </message>
</context>
<context>
    <name>TRACE_PAGE</name>
    <message>
        <source>All operations</source>
        <translation>Todas las operaciones</translation>
    </message>
    <message>
        <source>Commands of:</source>
        <translation>Órdenes de:</translation>
    </message>
    <message>
        <source>Commands of the last run</source>
        <translation>Órdenes de la última ejecución</translation>
    </message>
    <message>
        <source>%1 commands</source>
        <translation>%1 órdenes</translation>
    </message>
</context>
</TS>
