<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="it" sourcelanguage="en">
<context>
    <name>BRING_BACK_DIALOG</name>
    <message>
        <source>Under &amp;another name:</source>
        <translation>Con un altro &amp;nome:</translation>
    </message>
    <message>
        <source>Bring Back</source>
        <translation>Ripristina</translation>
    </message>
    <message>
        <source>New name</source>
        <translation>Nuovo nome</translation>
    </message>
    <message>
        <source>The template &quot;%1&quot; becomes again what it was until %2 (state %3).</source>
        <translation>Il modello «%1» torna a essere quello che era fino al %2 (stato %3).</translation>
    </message>
    <message>
        <source>The device &quot;%1&quot; becomes again what it was until %2 (state %3).</source>
        <translation>Il dispositivo «%1» torna a essere quello che era fino al %2 (stato %3).</translation>
    </message>
    <message>
        <source>&amp;Bring Back</source>
        <translation>&amp;Ripristina</translation>
    </message>
    <message>
        <source>&amp;Replace it; it goes into the history</source>
        <translation>&amp;Sostituisci; quello attuale passa nella cronologia</translation>
    </message>
    <message>
        <source>&amp;Under its name</source>
        <translation>Con il s&amp;uo nome</translation>
    </message>
    <message>
        <source>The current &quot;%1&quot; was saved on %2.</source>
        <translation>L’attuale «%1» è stato salvato il %2.</translation>
    </message>
    <message>
        <source>The current &quot;%1&quot; was saved on %2 by %3.</source>
        <translation>L’attuale «%1» è stato salvato il %2 da %3.</translation>
    </message>
    <message>
        <source>A device has this name now. A template cannot have the name of a device: give it another one.</source>
        <translation>Ora un dispositivo ha questo nome. Un modello non può avere il nome di un dispositivo: dargliene un altro.</translation>
    </message>
    <message>
        <source>A template has this name now. A device cannot have the name of a template: give it another one.</source>
        <translation>Ora un modello ha questo nome. Un dispositivo non può avere il nome di un modello: dargliene un altro.</translation>
    </message>
    <message>
        <source>Enter the new name.</source>
        <translation>Immettere il nuovo nome.</translation>
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
        <translation>Immagine SVG (*.svg)</translation>
    </message>
    <message>
        <source>Save Flow Charts</source>
        <translation>Salva diagrammi di flusso</translation>
    </message>
    <message>
        <source>The file %1 cannot be written: %2</source>
        <translation>Impossibile scrivere il file %1: %2</translation>
    </message>
</context>
<context>
    <name>COMPARE_DIALOG</name>
    <message>
        <source>Compare</source>
        <translation>Confronta</translation>
    </message>
    <message>
        <source>There are no differences.</source>
        <translation>Non ci sono differenze.</translation>
    </message>
    <message>
        <source>Differences: %1</source>
        <translation>Differenze: %1</translation>
    </message>
    <message>
        <source>&amp;Only differences</source>
        <translation>Solo &amp;differenze</translation>
    </message>
    <message>
        <source>&amp;Previous Difference</source>
        <translation>Differenza &amp;precedente</translation>
    </message>
    <message>
        <source>&amp;Next Difference</source>
        <translation>Differenza &amp;successiva</translation>
    </message>
    <message>
        <source>Copy as &amp;Diff</source>
        <translation>Copia co&amp;me diff</translation>
    </message>
    <message>
        <source>%1 and %2</source>
        <translation>%1 e %2</translation>
    </message>
    <message>
        <source>%1: &quot;%2&quot; and &quot;%3&quot;</source>
        <translation>%1: «%2» e «%3»</translation>
    </message>
</context>
<context>
    <name>COMPARE_MODEL</name>
    <message>
        <source>Different</source>
        <translation>Diverso</translation>
    </message>
    <message>
        <source>Only on the left</source>
        <translation>Solo a sinistra</translation>
    </message>
    <message>
        <source>Only on the right</source>
        <translation>Solo a destra</translation>
    </message>
    <message>
        <source>The same</source>
        <translation>Uguale</translation>
    </message>
</context>
<context>
    <name>CONNECTION_PANEL</name>
    <message>
        <source>Emulated chip</source>
        <translation>Chip emulato</translation>
    </message>
    <message>
        <source>Network (serprog)</source>
        <translation>Rete (serprog)</translation>
    </message>
    <message>
        <source>Serial line (serprog)</source>
        <translation>Linea seriale (serprog)</translation>
    </message>
    <message>
        <source>De&amp;tect</source>
        <translation>R&amp;ileva</translation>
    </message>
    <message>
        <source>Co&amp;nnection:</source>
        <translation>&amp;Connessione:</translation>
    </message>
    <message>
        <source>none: in memory</source>
        <translation>nessuno: in memoria</translation>
    </message>
    <message>
        <source>Browse...</source>
        <translation>Sfoglia...</translation>
    </message>
    <message>
        <source>&amp;Keep contents in:</source>
        <translation>C&amp;onserva contenuto in:</translation>
    </message>
    <message>
        <source>Port:</source>
        <translation>Porta:</translation>
    </message>
    <message>
        <source>S&amp;erial line:</source>
        <translation>&amp;Linea seriale:</translation>
    </message>
    <message>
        <source>Baud rate:</source>
        <translation>Velocità (baud):</translation>
    </message>
    <message>
        <source>Contents of the Emulated Chip</source>
        <translation>Contenuto del chip emulato</translation>
    </message>
    <message>
        <source>The connection is not complete.</source>
        <translation>La connessione non è completa.</translation>
    </message>
    <message>
        <source>the programmer&apos;s own</source>
        <translation>quello del programmatore</translation>
    </message>
    <message>
        <source>Clock (Hz):</source>
        <translation>Clock (Hz):</translation>
    </message>
    <message>
        <source>The clock is not a number of hertz.</source>
        <translation>Il clock non è un numero di hertz.</translation>
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
        <translation>Duplica</translation>
    </message>
    <message>
        <source>&amp;Copy of:</source>
        <translation>Copia &amp;di:</translation>
    </message>
    <message>
        <source>&amp;New name:</source>
        <translation>&amp;Nuovo nome:</translation>
    </message>
    <message>
        <source>&amp;Duplicate</source>
        <translation>Dup&amp;lica</translation>
    </message>
    <message>
        <source>Choose the device to copy.</source>
        <translation>Scegliere il dispositivo da copiare.</translation>
    </message>
</context>
<context>
    <name>DATABASE_DEVICE_MENU</name>
    <message>
        <source>&amp;Open in the Configuration Device Dialog</source>
        <translation>&amp;Apri nella finestra del dispositivo di configurazione</translation>
    </message>
    <message>
        <source>D&amp;uplicate...</source>
        <translation>Dup&amp;lica...</translation>
    </message>
    <message>
        <source>&amp;Delete</source>
        <translation>&amp;Elimina</translation>
    </message>
    <message>
        <source>&amp;Compare...</source>
        <translation>&amp;Confronta...</translation>
    </message>
    <message>
        <source>Save Flow C&amp;harts...</source>
        <translation>Salva dia&amp;grammi di flusso...</translation>
    </message>
</context>
<context>
    <name>DATABASE_EDIT_MENU</name>
    <message>
        <source>&amp;Undo</source>
        <translation>&amp;Annulla</translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation>&amp;Copia</translation>
    </message>
    <message>
        <source>Select &amp;All</source>
        <translation>&amp;Seleziona tutto</translation>
    </message>
    <message>
        <source>&amp;Find</source>
        <translation>&amp;Trova</translation>
    </message>
    <message>
        <source>Delete &quot;%1&quot;</source>
        <translation>Elimina «%1»</translation>
    </message>
    <message>
        <source>Delete, devices: %1</source>
        <translation>Elimina, dispositivi: %1</translation>
    </message>
</context>
<context>
    <name>DATABASE_MENU</name>
    <message>
        <source>&amp;Open Directory...</source>
        <translation>A&amp;pri cartella...</translation>
    </message>
    <message>
        <source>&amp;Recent Directories</source>
        <translation>Cartelle &amp;recenti</translation>
    </message>
    <message>
        <source>Re&amp;fresh</source>
        <translation>&amp;Aggiorna</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>&amp;Chiudi</translation>
    </message>
    <message>
        <source>&amp;Import...</source>
        <translation>&amp;Importa...</translation>
    </message>
    <message>
        <source>&amp;Export...</source>
        <translation>&amp;Esporta...</translation>
    </message>
</context>
<context>
    <name>DATABASE_WINDOW</name>
    <message>
        <source>Devices</source>
        <translation>Dispositivi</translation>
    </message>
    <message>
        <source>Da&amp;tabase</source>
        <translation>&amp;Database</translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <translation>&amp;Modifica</translation>
    </message>
    <message>
        <source>&amp;Device</source>
        <translation>D&amp;ispositivo</translation>
    </message>
    <message>
        <source>Device Database - %1</source>
        <translation>Database dei dispositivi - %1</translation>
    </message>
    <message>
        <source>Open Directory</source>
        <translation>Apri cartella</translation>
    </message>
    <message>
        <source>The directory is used now, but could not be stored in the settings.</source>
        <translation>La cartella è ora in uso, ma non è stato possibile salvarla nelle impostazioni.</translation>
    </message>
    <message>
        <source>The device &quot;%1&quot; does not exist any more.</source>
        <translation>Il dispositivo «%1» non esiste più.</translation>
    </message>
    <message>
        <source>The device &quot;%1&quot; is stored.</source>
        <translation>Il dispositivo «%1» è salvato.</translation>
    </message>
    <message>
        <source>The device &quot;%1&quot; is deleted. Ctrl+Z brings it back.</source>
        <translation>Il dispositivo «%1» è eliminato. Ctrl+Z lo ripristina.</translation>
    </message>
    <message>
        <source>Devices deleted: %1. Ctrl+Z brings them back.</source>
        <translation>Dispositivi eliminati: %1. Ctrl+Z li ripristina.</translation>
    </message>
    <message>
        <source>The device &quot;%1&quot; is back.</source>
        <translation>Il dispositivo «%1» è ripristinato.</translation>
    </message>
    <message>
        <source>Devices brought back: %1</source>
        <translation>Dispositivi ripristinati: %1</translation>
    </message>
    <message>
        <source>History</source>
        <translation>Cronologia</translation>
    </message>
    <message>
        <source>The flow charts are in %1.</source>
        <translation>I diagrammi di flusso sono in %1.</translation>
    </message>
    <message>
        <source>Files of Records</source>
        <translation>File di record</translation>
    </message>
    <message>
        <source>Records</source>
        <translation>Record</translation>
    </message>
    <message>
        <source>Devices are being deleted.</source>
        <translation>Eliminazione dei dispositivi in corso.</translation>
    </message>
    <message>
        <source>Devices deleted: %1 of %2. Ctrl+Z brings them back.</source>
        <translation>Dispositivi eliminati: %1 di %2. Ctrl+Z li ripristina.</translation>
    </message>
    <message>
        <source>Devices are being brought back.</source>
        <translation>Ripristino dei dispositivi in corso.</translation>
    </message>
    <message>
        <source>Devices brought back: %1 of %2. Ctrl+Z goes on.</source>
        <translation>Dispositivi ripristinati: %1 di %2. Ctrl+Z continua.</translation>
    </message>
</context>
<context>
    <name>DATA_PAGE</name>
    <message>
        <source>Go to:</source>
        <translation>Vai a:</translation>
    </message>
    <message>
        <source>Previous Difference</source>
        <translation>Differenza precedente</translation>
    </message>
    <message>
        <source>Next Difference</source>
        <translation>Differenza successiva</translation>
    </message>
    <message>
        <source>Save As...</source>
        <translation>Salva con nome...</translation>
    </message>
    <message>
        <source>Nothing was read. Check Examine to read the chip.</source>
        <translation>Non è stato letto nulla. Selezionare Examine per leggere il chip.</translation>
    </message>
    <message>
        <source>%1 was read.</source>
        <translation>%1 è stato letto.</translation>
    </message>
    <message>
        <source>%1 was read. It is what the file has.</source>
        <translation>%1 è stato letto. Coincide con il file.</translation>
    </message>
    <message>
        <source>%1 was read. Bytes that differ from the file: %2</source>
        <translation>%1 è stato letto. Byte diversi dal file: %2</translation>
    </message>
    <message>
        <source>Save What Was Read</source>
        <translation>Salva quanto letto</translation>
    </message>
    <message>
        <source>The file %1 cannot be written: %2</source>
        <translation>Impossibile scrivere il file %1: %2</translation>
    </message>
    <message>
        <source>%1: %2, expected %3</source>
        <translation>%1: %2, atteso %3</translation>
    </message>
    <message>
        <source>Bytes that were read</source>
        <translation>Byte letti</translation>
    </message>
    <message>
        <source>The file %1 keeps the contents of the emulated chip. Choose another one.</source>
        <translation>Il file %1 conserva il contenuto del chip emulato. Sceglierne un altro.</translation>
    </message>
</context>
<context>
    <name>DETECTED_DIALOG</name>
    <message>
        <source>Detect</source>
        <translation>Rileva</translation>
    </message>
    <message>
        <source>The chip has the ID %1. Devices with this ID:</source>
        <translation>Il chip ha l’ID %1. Dispositivi con questo ID:</translation>
    </message>
</context>
<context>
    <name>DEVICE_MODEL</name>
    <message>
        <source>all</source>
        <translation>tutti</translation>
    </message>
    <message>
        <source>Built in</source>
        <translation>Integrato</translation>
    </message>
    <message>
        <source>Own</source>
        <translation>Proprio</translation>
    </message>
    <message>
        <source>Of own devices they are read from the flows when they are shown for the first time. Those not read yet are sorted as the highest.</source>
        <translation>Per i dispositivi propri sono letti dai flussi quando vengono mostrati la prima volta. Quelli non ancora letti sono ordinati come i più alti.</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Nome</translation>
    </message>
    <message>
        <source>Maker</source>
        <translation>Produttore</translation>
    </message>
    <message>
        <source>Device ID</source>
        <translation>ID del dispositivo</translation>
    </message>
    <message>
        <source>Density</source>
        <translation>Capacità</translation>
    </message>
    <message>
        <source>Voltage</source>
        <translation>Tensione</translation>
    </message>
    <message>
        <source>Address bytes</source>
        <translation>Byte di indirizzo</translation>
    </message>
    <message>
        <source>Dies</source>
        <translation>Die</translation>
    </message>
    <message>
        <source>Device family</source>
        <translation>Famiglia di dispositivi</translation>
    </message>
    <message>
        <source>Mode</source>
        <translation>Modalità</translation>
    </message>
    <message>
        <source>Kind</source>
        <translation>Tipo</translation>
    </message>
    <message>
        <source>Changed</source>
        <translation>Modificato</translation>
    </message>
    <message>
        <source>Changed by</source>
        <translation>Modificato da</translation>
    </message>
</context>
<context>
    <name>DEVICE_PAGE</name>
    <message>
        <source>&amp;Find:</source>
        <translation>&amp;Trova:</translation>
    </message>
    <message>
        <source>Name, maker, density, voltage or device ID</source>
        <translation>Nome, produttore, capacità, tensione o ID del dispositivo</translation>
    </message>
    <message>
        <source>Devices</source>
        <translation>Dispositivi</translation>
    </message>
    <message>
        <source>%1 of %2 devices</source>
        <translation>%1 di %2 dispositivi</translation>
    </message>
</context>
<context>
    <name>DEVICE_PANEL</name>
    <message>
        <source>none</source>
        <translation>nessuno</translation>
    </message>
    <message>
        <source>Device &amp;family:</source>
        <translation>&amp;Famiglia di dispositivi:</translation>
    </message>
    <message>
        <source>Configuration &amp;mode:</source>
        <translation>&amp;Modalità di configurazione:</translation>
    </message>
    <message>
        <source>Configuration &amp;device:</source>
        <translation>Dispositivo di confi&amp;gurazione:</translation>
    </message>
    <message>
        <source>Database di&amp;rectory:</source>
        <translation>Cartella del data&amp;base:</translation>
    </message>
    <message>
        <source>&amp;Configuration Device...</source>
        <translation>&amp;Dispositivo di configurazione...</translation>
    </message>
</context>
<context>
    <name>DEVICE_PROGRESS</name>
    <message>
        <source>Cancel</source>
        <translation>Annulla</translation>
    </message>
</context>
<context>
    <name>DEVICE_SOURCES</name>
    <message>
        <source>The device &quot;%1&quot; does not exist.</source>
        <translation>Il dispositivo «%1» non esiste.</translation>
    </message>
</context>
<context>
    <name>EXPORT_DIALOG</name>
    <message>
        <source>Export</source>
        <translation>Esporta</translation>
    </message>
    <message>
        <source>Selected records: %1</source>
        <translation>Record selezionati: %1</translation>
    </message>
    <message>
        <source>All stored devices and templates</source>
        <translation>Tutti i dispositivi e i modelli salvati</translation>
    </message>
    <message>
        <source>All built-in devices</source>
        <translation>Tutti i dispositivi integrati</translation>
    </message>
    <message>
        <source>One JSON file</source>
        <translation>Un unico file JSON</translation>
    </message>
    <message>
        <source>One JSON file for each record</source>
        <translation>Un file JSON per ogni record</translation>
    </message>
    <message>
        <source>CSV list of the devices, without flows</source>
        <translation>Elenco CSV dei dispositivi, senza flussi</translation>
    </message>
    <message>
        <source>For a &amp;spreadsheet (cannot be imported again)</source>
        <translation>Per un &amp;foglio di calcolo (non può essere importato di nuovo)</translation>
    </message>
    <message>
        <source>Texts that a spreadsheet would run as formulas get an apostrophe.</source>
        <translation>I testi che un foglio di calcolo eseguirebbe come formule ricevono un apostrofo.</translation>
    </message>
    <message>
        <source>&amp;Browse...</source>
        <translation>&amp;Sfoglia...</translation>
    </message>
    <message>
        <source>&amp;Records:</source>
        <translation>&amp;Record:</translation>
    </message>
    <message>
        <source>&amp;Format:</source>
        <translation>For&amp;mato:</translation>
    </message>
    <message>
        <source>&amp;To:</source>
        <translation>&amp;Destinazione:</translation>
    </message>
    <message>
        <source>&amp;Export</source>
        <translation>&amp;Esporta</translation>
    </message>
    <message>
        <source>Progress</source>
        <translation>Avanzamento</translation>
    </message>
    <message>
        <source>Directory for the Files</source>
        <translation>Cartella per i file</translation>
    </message>
    <message>
        <source>File for the Records</source>
        <translation>File per i record</translation>
    </message>
    <message>
        <source>These files already exist:</source>
        <translation>Questi file esistono già:</translation>
    </message>
    <message>
        <source>Re&amp;place</source>
        <translation>Sos&amp;tituisci</translation>
    </message>
    <message>
        <source>Enter where the records go.</source>
        <translation>Indicare la destinazione dei record.</translation>
    </message>
    <message>
        <source>There is nothing to export.</source>
        <translation>Non c’è nulla da esportare.</translation>
    </message>
    <message>
        <source>Exported records: %1, into %2</source>
        <translation>Record esportati: %1, in %2</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Chiudi</translation>
    </message>
    <message>
        <source>These cannot be read, and are not exported:</source>
        <translation>Questi non possono essere letti e non vengono esportati:</translation>
    </message>
</context>
<context>
    <name>FILE_PANEL</name>
    <message>
        <source>Bro&amp;wse...</source>
        <translation>&amp;Sfoglia...</translation>
    </message>
    <message>
        <source>No file. A file can be dropped on the window.</source>
        <translation>Nessun file. Se ne può trascinare uno sulla finestra.</translation>
    </message>
    <message>
        <source>F&amp;ile:</source>
        <translation>Fil&amp;e:</translation>
    </message>
    <message>
        <source>File &amp;begins at:</source>
        <translation>Il file i&amp;nizia da:</translation>
    </message>
    <message>
        <source>The file is being read.</source>
        <translation>Lettura del file in corso.</translation>
    </message>
    <message>
        <source>The file cannot be read: %1</source>
        <translation>Impossibile leggere il file: %1</translation>
    </message>
    <message>
        <source>%1 bytes, CRC-32 %2</source>
        <translation>%1 byte, CRC-32 %2</translation>
    </message>
    <message>
        <source>File to Program</source>
        <translation>File da programmare</translation>
    </message>
</context>
<context>
    <name>FILE_SUMMARY</name>
    <message>
        <source>It is not a file.</source>
        <translation>Non è un file.</translation>
    </message>
</context>
<context>
    <name>HELP_MENU</name>
    <message>
        <source>&amp;Help</source>
        <translation>&amp;Aiuto</translation>
    </message>
    <message>
        <source>&amp;User Guide</source>
        <translation>&amp;Guida per l’utente</translation>
    </message>
    <message>
        <source>Device &amp;Database</source>
        <translation>&amp;Database dei dispositivi</translation>
    </message>
    <message>
        <source>&amp;Programming</source>
        <translation>&amp;Programmazione</translation>
    </message>
    <message>
        <source>&amp;Flows</source>
        <translation>&amp;Flussi</translation>
    </message>
    <message>
        <source>&amp;Command Line</source>
        <translation>&amp;Riga di comando</translation>
    </message>
    <message>
        <source>&amp;About</source>
        <translation>&amp;Informazioni</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Aiuto</translation>
    </message>
    <message>
        <source>The guide is not installed. It would be here:
%1</source>
        <translation>La guida non è installata. Sarebbe qui:
%1</translation>
    </message>
    <message>
        <source>No program shows this guide. Open it with a viewer or an editor:
%1</source>
        <translation>Nessun programma mostra questa guida. Aprirla con un visualizzatore o un editor:
%1</translation>
    </message>
    <message>
        <source>%1 %2

Licence: MIT
Qt %3

The built-in devices are public facts about flash parts. The names of parts belong to their makers.</source>
        <translation>%1 %2

Licenza: MIT
Qt %3

I dispositivi integrati sono dati pubblici sui componenti flash. I nomi appartengono ai rispettivi produttori.</translation>
    </message>
    <message>
        <source>About</source>
        <translation>Informazioni</translation>
    </message>
</context>
<context>
    <name>HISTORY_MENU</name>
    <message>
        <source>Compare with the &amp;Next State</source>
        <translation>Confronta con lo stato &amp;successivo</translation>
    </message>
    <message>
        <source>Compare with the &amp;Previous State</source>
        <translation>Confronta con lo stato &amp;precedente</translation>
    </message>
    <message>
        <source>Compare with the &amp;Current State</source>
        <translation>Confronta con lo stato &amp;attuale</translation>
    </message>
    <message>
        <source>Compare the Two &amp;Selected States</source>
        <translation>Confronta i &amp;due stati selezionati</translation>
    </message>
</context>
<context>
    <name>HISTORY_MODEL</name>
    <message>
        <source>Changed</source>
        <translation>Modificato</translation>
    </message>
    <message>
        <source>Deleted</source>
        <translation>Eliminato</translation>
    </message>
    <message>
        <source>Put back</source>
        <translation>Rimesso</translation>
    </message>
    <message>
        <source>This state was replaced by another one.</source>
        <translation>Questo stato è stato sostituito da un altro.</translation>
    </message>
    <message>
        <source>This state was deleted.</source>
        <translation>Questo stato è stato eliminato.</translation>
    </message>
    <message>
        <source>This state was deleted, and put back because it could not be replaced.</source>
        <translation>Questo stato è stato eliminato e rimesso perché non poteva essere sostituito.</translation>
    </message>
    <message>
        <source>Template</source>
        <translation>Modello</translation>
    </message>
    <message>
        <source>Device</source>
        <translation>Dispositivo</translation>
    </message>
    <message>
        <source>When</source>
        <translation>Quando</translation>
    </message>
    <message>
        <source>User</source>
        <translation>Utente</translation>
    </message>
    <message>
        <source>Change</source>
        <translation>Modifica</translation>
    </message>
    <message>
        <source>Kind</source>
        <translation>Tipo</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Nome</translation>
    </message>
    <message>
        <source>Family</source>
        <translation>Famiglia</translation>
    </message>
    <message>
        <source>Mode</source>
        <translation>Modalità</translation>
    </message>
    <message>
        <source>No.</source>
        <translation>N.</translation>
    </message>
</context>
<context>
    <name>HISTORY_PAGE</name>
    <message>
        <source>&amp;Compare</source>
        <translation>&amp;Confronta</translation>
    </message>
    <message>
        <source>&amp;Bring Back...</source>
        <translation>&amp;Ripristina...</translation>
    </message>
    <message>
        <source>Devices and templates</source>
        <translation>Dispositivi e modelli</translation>
    </message>
    <message>
        <source>Devices</source>
        <translation>Dispositivi</translation>
    </message>
    <message>
        <source>Templates</source>
        <translation>Modelli</translation>
    </message>
    <message>
        <source>History</source>
        <translation>Cronologia</translation>
    </message>
    <message>
        <source>Na&amp;me:</source>
        <translation>&amp;Nome:</translation>
    </message>
    <message>
        <source>&amp;User:</source>
        <translation>&amp;Utente:</translation>
    </message>
    <message>
        <source>&amp;Kind:</source>
        <translation>Ti&amp;po:</translation>
    </message>
    <message>
        <source>States: %1, searching...</source>
        <translation>Stati: %1, ricerca in corso...</translation>
    </message>
    <message>
        <source>States: more than %1</source>
        <translation>Stati: più di %1</translation>
    </message>
    <message>
        <source>States: %1</source>
        <translation>Stati: %1</translation>
    </message>
    <message>
        <source>There is no state before this one.</source>
        <translation>Non c’è uno stato prima di questo.</translation>
    </message>
    <message>
        <source>There is no state after this one: it was deleted or renamed.</source>
        <translation>Non c’è uno stato dopo questo: è stato eliminato o rinominato.</translation>
    </message>
    <message>
        <source>There is no current state: it was deleted or renamed.</source>
        <translation>Non c’è uno stato attuale: è stato eliminato o rinominato.</translation>
    </message>
    <message>
        <source>A state was removed from the history.</source>
        <translation>Uno stato è stato rimosso dalla cronologia.</translation>
    </message>
</context>
<context>
    <name>IMPORT_DIALOG</name>
    <message>
        <source>Import: %1</source>
        <translation>Importa: %1</translation>
    </message>
    <message>
        <source>Import</source>
        <translation>Importa</translation>
    </message>
    <message>
        <source>As in the files</source>
        <translation>Come nei file</translation>
    </message>
    <message>
        <source>&amp;Replace records that differ</source>
        <translation>&amp;Sostituire i record diversi</translation>
    </message>
    <message>
        <source>Device &amp;family:</source>
        <translation>&amp;Famiglia di dispositivi:</translation>
    </message>
    <message>
        <source>Configuration &amp;mode:</source>
        <translation>&amp;Modalità di configurazione:</translation>
    </message>
    <message>
        <source>Preview</source>
        <translation>Anteprima</translation>
    </message>
    <message>
        <source>Details</source>
        <translation>Dettagli</translation>
    </message>
    <message>
        <source>&amp;Import</source>
        <translation>&amp;Importa</translation>
    </message>
    <message>
        <source>&amp;Compare...</source>
        <translation>&amp;Confronta...</translation>
    </message>
    <message>
        <source>Progress</source>
        <translation>Avanzamento</translation>
    </message>
    <message>
        <source>The files are being read.</source>
        <translation>Lettura dei file in corso.</translation>
    </message>
    <message>
        <source>Nothing is imported while there are problems.</source>
        <translation>Finché ci sono problemi non viene importato nulla.</translation>
    </message>
    <message>
        <source>There is nothing to import.</source>
        <translation>Non c’è nulla da importare.</translation>
    </message>
    <message>
        <source>Stored</source>
        <translation>Salvato</translation>
    </message>
    <message>
        <source>In the file</source>
        <translation>Nel file</translation>
    </message>
    <message>
        <source>The records are being stored.</source>
        <translation>Salvataggio dei record in corso.</translation>
    </message>
    <message>
        <source>Nothing was imported: %1
The preview was made again.</source>
        <translation>Non è stato importato nulla: %1
L’anteprima è stata rifatta.</translation>
    </message>
    <message>
        <source>Imported into %1. New: %2, replaced: %3</source>
        <translation>Importato in %1. Nuovi: %2, sostituiti: %3</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Chiudi</translation>
    </message>
    <message>
        <source>Nothing was imported: you have cancelled it.</source>
        <translation>Non è stato importato nulla: l’operazione è stata annullata.</translation>
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
        <translation>Avviso</translation>
    </message>
    <message>
        <source>Will be replaced</source>
        <translation>Verrà sostituito</translation>
    </message>
    <message>
        <source>Differs, not imported</source>
        <translation>Diverso, non importato</translation>
    </message>
    <message>
        <source>New</source>
        <translation>Nuovo</translation>
    </message>
    <message>
        <source>Already exists</source>
        <translation>Esiste già</translation>
    </message>
    <message>
        <source>%1: differs</source>
        <translation>%1: diverso</translation>
    </message>
    <message>
        <source>%1: stored %2, in the file %3</source>
        <translation>%1: salvato %2, nel file %3</translation>
    </message>
    <message>
        <source>Differs in: %1</source>
        <translation>Differenze: %1</translation>
    </message>
    <message>
        <source>State</source>
        <translation>Stato</translation>
    </message>
    <message>
        <source>Record</source>
        <translation>Record</translation>
    </message>
    <message>
        <source>Family</source>
        <translation>Famiglia</translation>
    </message>
    <message>
        <source>Mode</source>
        <translation>Modalità</translation>
    </message>
    <message>
        <source>File</source>
        <translation>File</translation>
    </message>
    <message>
        <source>Line</source>
        <translation>Riga</translation>
    </message>
    <message>
        <source>Remark</source>
        <translation>Nota</translation>
    </message>
</context>
<context>
    <name>MODULE_LOADER</name>
    <message>
        <source>The dialog module was not found. Searched:
%1</source>
        <translation>Il modulo della finestra non è stato trovato. Cercato in:
%1</translation>
    </message>
    <message>
        <source>The dialog module %1 is not loaded: everyone may change %2.</source>
        <translation>Il modulo della finestra %1 non viene caricato: chiunque può modificare %2.</translation>
    </message>
    <message>
        <source>The dialog module %1 cannot be loaded:
%2</source>
        <translation>Impossibile caricare il modulo della finestra %1:
%2</translation>
    </message>
    <message>
        <source>The dialog module %1 has no function &quot;%2&quot;.</source>
        <translation>Il modulo della finestra %1 non ha la funzione «%2».</translation>
    </message>
</context>
<context>
    <name>NEW_DEVICE_DESK</name>
    <message>
        <source>New Device</source>
        <translation>Nuovo dispositivo</translation>
    </message>
    <message>
        <source>SFDP Read-Out of a Chip</source>
        <translation>Lettura SFDP di un chip</translation>
    </message>
</context>
<context>
    <name>NEW_DEVICE_DIALOG</name>
    <message>
        <source>New Device</source>
        <translation>Nuovo dispositivo</translation>
    </message>
    <message>
        <source>New Device: %1</source>
        <translation>Nuovo dispositivo: %1</translation>
    </message>
    <message>
        <source>&amp;Warnings:</source>
        <translation>&amp;Avvisi:</translation>
    </message>
    <message>
        <source>&amp;Listed parts with this ID:</source>
        <translation>Componenti in e&amp;lenco con questo ID:</translation>
    </message>
    <message>
        <source>Create &amp;Device</source>
        <translation>C&amp;rea dispositivo</translation>
    </message>
    <message>
        <source>Save &amp;Read-Out...</source>
        <translation>&amp;Salva lettura...</translation>
    </message>
    <message>
        <source>none</source>
        <translation>nessuno</translation>
    </message>
    <message>
        <source>no differences</source>
        <translation>nessuna differenza</translation>
    </message>
    <message>
        <source>Save the Read-Out</source>
        <translation>Salva la lettura</translation>
    </message>
    <message>
        <source>What was entered has changed other values or the warnings. Look at them, then create the device.</source>
        <translation>Quanto inserito ha cambiato altri valori o gli avvisi. Controllarli, quindi creare il dispositivo.</translation>
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
        <translation>Quanto coperto dal file</translation>
    </message>
    <message>
        <source>The whole device</source>
        <translation>Tutto il dispositivo</translation>
    </message>
    <message>
        <source>Address and length</source>
        <translation>Indirizzo e lunghezza</translation>
    </message>
    <message>
        <source>Ran&amp;ge:</source>
        <translation>In&amp;tervallo:</translation>
    </message>
    <message>
        <source>&amp;Address:</source>
        <translation>Indiri&amp;zzo:</translation>
    </message>
    <message>
        <source>Length:</source>
        <translation>Lunghezza:</translation>
    </message>
</context>
<context>
    <name>PLACE_FIELDS</name>
    <message>
        <source>Device &amp;family:</source>
        <translation>&amp;Famiglia di dispositivi:</translation>
    </message>
    <message>
        <source>Configuration &amp;mode:</source>
        <translation>&amp;Modalità di configurazione:</translation>
    </message>
</context>
<context>
    <name>PROGRAMMER_MENU</name>
    <message>
        <source>&amp;Configuration Device...</source>
        <translation>&amp;Dispositivo di configurazione...</translation>
    </message>
    <message>
        <source>&amp;Detect</source>
        <translation>&amp;Rileva</translation>
    </message>
    <message>
        <source>&amp;Open File...</source>
        <translation>&amp;Apri file...</translation>
    </message>
    <message>
        <source>&amp;Try the Flow</source>
        <translation>&amp;Prova il flusso</translation>
    </message>
    <message>
        <source>&amp;Start</source>
        <translation>A&amp;vvia</translation>
    </message>
    <message>
        <source>C&amp;ancel</source>
        <translation>A&amp;nnulla</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>&amp;Esci</translation>
    </message>
    <message>
        <source>&amp;New Device from Chip...</source>
        <translation>N&amp;uovo dispositivo dal chip...</translation>
    </message>
    <message>
        <source>New Device from S&amp;FDP File...</source>
        <translation>Nuovo dispositivo da &amp;file SFDP...</translation>
    </message>
    <message>
        <source>D&amp;uplicate...</source>
        <translation>Dup&amp;lica...</translation>
    </message>
    <message>
        <source>Device Data&amp;base...</source>
        <translation>Data&amp;base dei dispositivi...</translation>
    </message>
    <message>
        <source>Save Flow C&amp;harts...</source>
        <translation>Salva dia&amp;grammi di flusso...</translation>
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
        <translation>Connessione</translation>
    </message>
    <message>
        <source>File</source>
        <translation>File</translation>
    </message>
    <message>
        <source>Operations</source>
        <translation>Operazioni</translation>
    </message>
    <message>
        <source>Log</source>
        <translation>Registro</translation>
    </message>
    <message>
        <source>Trace</source>
        <translation>Traccia</translation>
    </message>
    <message>
        <source>Data</source>
        <translation>Dati</translation>
    </message>
    <message>
        <source>&amp;Programmer</source>
        <translation>P&amp;rogrammatore</translation>
    </message>
    <message>
        <source>Not started: %1</source>
        <translation>Non avviato: %1</translation>
    </message>
    <message>
        <source>The place where the file begins is not a number.</source>
        <translation>Il punto in cui inizia il file non è un numero.</translation>
    </message>
    <message>
        <source>Address or length is not a number.</source>
        <translation>L’indirizzo o la lunghezza non è un numero.</translation>
    </message>
    <message>
        <source>Nothing was detected: %1</source>
        <translation>Nessun rilevamento: %1</translation>
    </message>
    <message>
        <source>The chip has the ID %1.</source>
        <translation>Il chip ha l’ID %1.</translation>
    </message>
    <message>
        <source>No device has the ID %1.</source>
        <translation>Nessun dispositivo ha l’ID %1.</translation>
    </message>
    <message>
        <source>The run is being cancelled. If it is stopped at once, the state of the chip is unknown.</source>
        <translation>L’esecuzione è in fase di annullamento. Se viene fermata subito, lo stato del chip è sconosciuto.</translation>
    </message>
    <message>
        <source>A run is under way. Cancel it and close the window?</source>
        <translation>Un’esecuzione è in corso. Annullarla e chiudere la finestra?</translation>
    </message>
    <message>
        <source>Stop at once</source>
        <translation>Ferma subito</translation>
    </message>
    <message>
        <source>Cancel the run</source>
        <translation>Annulla l’esecuzione</translation>
    </message>
    <message>
        <source>Wait</source>
        <translation>Attendi</translation>
    </message>
    <message>
        <source>Keep running</source>
        <translation>Continua</translation>
    </message>
    <message>
        <source>Cancelled</source>
        <translation>Annullato</translation>
    </message>
    <message>
        <source>The device &quot;%1&quot; is stored.</source>
        <translation>Il dispositivo «%1» è salvato.</translation>
    </message>
    <message>
        <source>The device &quot;%1&quot; is not there, or of a family or mode that is not offered here.</source>
        <translation>Il dispositivo «%1» non esiste o è di una famiglia o modalità non offerta qui.</translation>
    </message>
    <message>
        <source>The flow charts cannot be saved: %1</source>
        <translation>Impossibile salvare i diagrammi di flusso: %1</translation>
    </message>
    <message>
        <source>The flow charts are in %1.</source>
        <translation>I diagrammi di flusso sono in %1.</translation>
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
        <translation>Annulla</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Chiudi</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Salva</translation>
    </message>
</context>
<context>
    <name>READ_OUT_FILE</name>
    <message>
        <source>The file %1 cannot be read: %2</source>
        <translation>Impossibile leggere il file %1: %2</translation>
    </message>
    <message>
        <source>%1 is not a file.</source>
        <translation>%1 non è un file.</translation>
    </message>
    <message>
        <source>The file %1 has more than %2 bytes and is not an SFDP read-out.</source>
        <translation>Il file %1 ha più di %2 byte e non è una lettura SFDP.</translation>
    </message>
    <message>
        <source>The file %1 cannot be written: %2</source>
        <translation>Impossibile scrivere il file %1: %2</translation>
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
        <translation>Modello</translation>
    </message>
    <message>
        <source>Built-in device</source>
        <translation>Dispositivo integrato</translation>
    </message>
    <message>
        <source>Own device</source>
        <translation>Dispositivo proprio</translation>
    </message>
    <message>
        <source>Family</source>
        <translation>Famiglia</translation>
    </message>
    <message>
        <source>Mode</source>
        <translation>Modalità</translation>
    </message>
    <message>
        <source>Properties</source>
        <translation>Proprietà</translation>
    </message>
    <message>
        <source>Quad-I/O flow</source>
        <translation>Flusso Quad I/O</translation>
    </message>
    <message>
        <source>Single-I/O flow</source>
        <translation>Flusso Single I/O</translation>
    </message>
    <message>
        <source>The flow cannot be read.</source>
        <translation>Impossibile leggere il flusso.</translation>
    </message>
</context>
<context>
    <name>RECORD_EXPORT</name>
    <message>
        <source>The file %1 cannot be written: %2</source>
        <translation>Impossibile scrivere il file %1: %2</translation>
    </message>
</context>
<context>
    <name>RECORD_STATES</name>
    <message>
        <source>%1, state %2 (until %3)</source>
        <translation>%1, stato %2 (fino al %3)</translation>
    </message>
    <message>
        <source>%1, now</source>
        <translation>%1, adesso</translation>
    </message>
</context>
<context>
    <name>REMOVED_DEVICES</name>
    <message>
        <source>The device &quot;%1&quot; was deleted by another program already.</source>
        <translation>Il dispositivo «%1» è già stato eliminato da un altro programma.</translation>
    </message>
    <message>
        <source>The history does not have the device &quot;%1&quot; any more.</source>
        <translation>La cronologia non contiene più il dispositivo «%1».</translation>
    </message>
</context>
<context>
    <name>RUN_BAR</name>
    <message>
        <source>Progress of the run</source>
        <translation>Avanzamento dell’esecuzione</translation>
    </message>
    <message>
        <source>Tr&amp;y the Flow</source>
        <translation>&amp;Prova il flusso</translation>
    </message>
    <message>
        <source>Erases, programs and verifies an emulated chip. No hardware is needed or used.</source>
        <translation>Cancella, programma e verifica un chip emulato. Non serve e non viene usato alcun hardware.</translation>
    </message>
    <message>
        <source>&amp;Start</source>
        <translation>A&amp;vvia</translation>
    </message>
    <message>
        <source>Cance&amp;l</source>
        <translation>Ann&amp;ulla</translation>
    </message>
    <message>
        <source>The run is being cancelled.</source>
        <translation>L’esecuzione è in fase di annullamento.</translation>
    </message>
    <message>
        <source>%1: %2 of %3</source>
        <translation>%1: %2 di %3</translation>
    </message>
    <message>
        <source>%1 left</source>
        <translation>restano %1</translation>
    </message>
</context>
<context>
    <name>RUN_PREPARATION</name>
    <message>
        <source>No operation is checked.</source>
        <translation>Nessuna operazione è selezionata.</translation>
    </message>
    <message>
        <source>No file is chosen.</source>
        <translation>Nessun file è scelto.</translation>
    </message>
    <message>
        <source>No device is chosen.</source>
        <translation>Nessun dispositivo è scelto.</translation>
    </message>
    <message>
        <source>The device &quot;%1&quot; does not exist.</source>
        <translation>Il dispositivo «%1» non esiste.</translation>
    </message>
    <message>
        <source>The file %1 cannot be read.</source>
        <translation>Impossibile leggere il file %1.</translation>
    </message>
    <message>
        <source>The file %1 is empty.</source>
        <translation>Il file %1 è vuoto.</translation>
    </message>
    <message>
        <source>The file needs %1 bytes from %2 on, and the device has %3 bytes.</source>
        <translation>Il file richiede %1 byte da %2 in poi e il dispositivo ha %3 byte.</translation>
    </message>
</context>
<context>
    <name>RUN_WORDS</name>
    <message>
        <source>Failed</source>
        <translation>Non riuscito</translation>
    </message>
    <message>
        <source>Failed at %1</source>
        <translation>Non riuscito in %1</translation>
    </message>
    <message>
        <source>Failed at %1, action %2 &quot;%3&quot;</source>
        <translation>Non riuscito in %1, azione %2 «%3»</translation>
    </message>
    <message>
        <source>Stopped. The state of the chip is unknown.</source>
        <translation>Fermato. Lo stato del chip è sconosciuto.</translation>
    </message>
    <message>
        <source>The connection is lost. The state of the chip is unknown.</source>
        <translation>La connessione è persa. Lo stato del chip è sconosciuto.</translation>
    </message>
    <message>
        <source>Passed, but not everything could be stored</source>
        <translation>Riuscito, ma non tutto è stato salvato</translation>
    </message>
    <message>
        <source>Passed, but a real chip would have refused or misread commands: see the log</source>
        <translation>Riuscito, ma un chip reale avrebbe rifiutato o frainteso dei comandi: vedere il registro</translation>
    </message>
    <message>
        <source>Passed</source>
        <translation>Riuscito</translation>
    </message>
    <message>
        <source>Cancelled</source>
        <translation>Annullato</translation>
    </message>
    <message>
        <source>Not started: see the log</source>
        <translation>Non avviato: vedere il registro</translation>
    </message>
    <message>
        <source>a test pattern</source>
        <translation>un motivo di prova</translation>
    </message>
    <message>
        <source>Trying the flow of %1 on an emulated chip that is full of other data</source>
        <translation>Prova del flusso di %1 su un chip emulato pieno di altri dati</translation>
    </message>
    <message>
        <source>Content: %1</source>
        <translation>Contenuto: %1</translation>
    </message>
    <message>
        <source>Nothing more was sent, because this may be another chip than the device says.</source>
        <translation>Non è stato inviato altro, perché questo chip potrebbe non essere quello del dispositivo.</translation>
    </message>
    <message>
        <source>Note of the chip: %1</source>
        <translation>Nota del chip: %1</translation>
    </message>
    <message>
        <source>%1 (%2 commands, %3 s)</source>
        <translation>%1 (%2 comandi, %3 s)</translation>
    </message>
    <message>
        <source>Whole sectors are erased. These bytes beside the range are erased, too:

%1

Erase them?</source>
        <translation>Vengono cancellati settori interi. Sono cancellati anche questi byte fuori dall’intervallo:

%1

Cancellarli?</translation>
    </message>
    <message>
        <source>%1 on the connection %2</source>
        <translation>%1 sulla connessione %2</translation>
    </message>
</context>
<context>
    <name>TRACE_MODEL</name>
    <message>
        <source>%1 ... (%2 bytes)</source>
        <translation>%1 ... (%2 byte)</translation>
    </message>
    <message>
        <source>%1, %2 clocks</source>
        <translation>%1, %2 cicli</translation>
    </message>
    <message>
        <source>No.</source>
        <translation>N.</translation>
    </message>
    <message>
        <source>Time (ms)</source>
        <translation>Tempo (ms)</translation>
    </message>
    <message>
        <source>Operation</source>
        <translation>Operazione</translation>
    </message>
    <message>
        <source>Action</source>
        <translation>Azione</translation>
    </message>
    <message>
        <source>Command</source>
        <translation>Comando</translation>
    </message>
    <message>
        <source>Lines</source>
        <translation>Linee</translation>
    </message>
    <message>
        <source>Sent</source>
        <translation>Inviato</translation>
    </message>
    <message>
        <source>Received</source>
        <translation>Ricevuto</translation>
    </message>
    <message>
        <source>Expected</source>
        <translation>Atteso</translation>
    </message>
</context>
<context>
    <name>TRACE_PAGE</name>
    <message>
        <source>All operations</source>
        <translation>Tutte le operazioni</translation>
    </message>
    <message>
        <source>Commands of:</source>
        <translation>Comandi di:</translation>
    </message>
    <message>
        <source>Commands of the last run</source>
        <translation>Comandi dell’ultima esecuzione</translation>
    </message>
    <message>
        <source>%1 commands</source>
        <translation>%1 comandi</translation>
    </message>
</context>
</TS>
