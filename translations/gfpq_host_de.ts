<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de" sourcelanguage="en">
<context>
    <name>BRING_BACK_DIALOG</name>
    <message>
        <source>Under &amp;another name:</source>
        <translation>Unter anderem &amp;Namen:</translation>
    </message>
    <message>
        <source>Bring Back</source>
        <translation>Zurückholen</translation>
    </message>
    <message>
        <source>New name</source>
        <translation>Neuer Name</translation>
    </message>
    <message>
        <source>The template &quot;%1&quot; becomes again what it was until %2 (state %3).</source>
        <translation>Die Vorlage „%1“ wird wieder, was sie bis %2 war (Stand %3).</translation>
    </message>
    <message>
        <source>The device &quot;%1&quot; becomes again what it was until %2 (state %3).</source>
        <translation>Der Baustein „%1“ wird wieder, was er bis %2 war (Stand %3).</translation>
    </message>
    <message>
        <source>&amp;Bring Back</source>
        <translation>&amp;Zurückholen</translation>
    </message>
    <message>
        <source>&amp;Replace it; it goes into the history</source>
        <translation>&amp;Ersetzen; er kommt in den Verlauf</translation>
    </message>
    <message>
        <source>&amp;Under its name</source>
        <translation>&amp;Unter seinem Namen</translation>
    </message>
    <message>
        <source>The current &quot;%1&quot; was saved on %2.</source>
        <translation>„%1“ wurde zuletzt gespeichert am %2.</translation>
    </message>
    <message>
        <source>The current &quot;%1&quot; was saved on %2 by %3.</source>
        <translation>„%1“ wurde zuletzt gespeichert am %2 von %3.</translation>
    </message>
    <message>
        <source>A device has this name now. A template cannot have the name of a device: give it another one.</source>
        <translation>Ein Baustein hat jetzt diesen Namen. Eine Vorlage kann nicht heißen wie ein Baustein: Geben Sie ihr einen anderen.</translation>
    </message>
    <message>
        <source>A template has this name now. A device cannot have the name of a template: give it another one.</source>
        <translation>Eine Vorlage hat jetzt diesen Namen. Ein Baustein kann nicht heißen wie eine Vorlage: Geben Sie ihm einen anderen.</translation>
    </message>
    <message>
        <source>Enter the new name.</source>
        <translation>Geben Sie den neuen Namen ein.</translation>
    </message>
</context>
<context>
    <name>CHART_SAVER</name>
    <message>
        <source>PDF document (*.pdf)</source>
        <translation>PDF-Dokument (*.pdf)</translation>
    </message>
    <message>
        <source>SVG picture (*.svg)</source>
        <translation>SVG-Bild (*.svg)</translation>
    </message>
    <message>
        <source>Save Flow Charts</source>
        <translation>Ablaufdiagramme speichern</translation>
    </message>
    <message>
        <source>The file %1 cannot be written: %2</source>
        <translation>Die Datei %1 kann nicht geschrieben werden: %2</translation>
    </message>
</context>
<context>
    <name>COMPARE_DIALOG</name>
    <message>
        <source>Compare</source>
        <translation>Vergleichen</translation>
    </message>
    <message>
        <source>There are no differences.</source>
        <translation>Es gibt keine Unterschiede.</translation>
    </message>
    <message>
        <source>Differences: %1</source>
        <translation>Unterschiede: %1</translation>
    </message>
    <message>
        <source>&amp;Only differences</source>
        <translation>&amp;Nur Unterschiede</translation>
    </message>
    <message>
        <source>&amp;Previous Difference</source>
        <translation>&amp;Voriger Unterschied</translation>
    </message>
    <message>
        <source>&amp;Next Difference</source>
        <translation>Näc&amp;hster Unterschied</translation>
    </message>
    <message>
        <source>Copy as &amp;Diff</source>
        <translation>Als &amp;Diff kopieren</translation>
    </message>
    <message>
        <source>%1 and %2</source>
        <translation>%1 und %2</translation>
    </message>
    <message>
        <source>%1: &quot;%2&quot; and &quot;%3&quot;</source>
        <translation>%1: „%2“ und „%3“</translation>
    </message>
</context>
<context>
    <name>COMPARE_MODEL</name>
    <message>
        <source>Different</source>
        <translation>Verschieden</translation>
    </message>
    <message>
        <source>Only on the left</source>
        <translation>Nur links</translation>
    </message>
    <message>
        <source>Only on the right</source>
        <translation>Nur rechts</translation>
    </message>
    <message>
        <source>The same</source>
        <translation>Gleich</translation>
    </message>
</context>
<context>
    <name>CONNECTION_PANEL</name>
    <message>
        <source>Emulated chip</source>
        <translation>Emulierter Baustein</translation>
    </message>
    <message>
        <source>Network (serprog)</source>
        <translation>Netzwerk (serprog)</translation>
    </message>
    <message>
        <source>Serial line (serprog)</source>
        <translation>Serielle Leitung (serprog)</translation>
    </message>
    <message>
        <source>De&amp;tect</source>
        <translation>E&amp;rkennen</translation>
    </message>
    <message>
        <source>Co&amp;nnection:</source>
        <translation>V&amp;erbindung:</translation>
    </message>
    <message>
        <source>none: in memory</source>
        <translation>im Speicher</translation>
    </message>
    <message>
        <source>Browse...</source>
        <translation>Durchsuchen...</translation>
    </message>
    <message>
        <source>&amp;Keep contents in:</source>
        <translation>I&amp;nhalt aufbewahren in:</translation>
    </message>
    <message>
        <source>Port:</source>
        <translation>Port:</translation>
    </message>
    <message>
        <source>S&amp;erial line:</source>
        <translation>&amp;Serielle Leitung:</translation>
    </message>
    <message>
        <source>Baud rate:</source>
        <translation>Baudrate:</translation>
    </message>
    <message>
        <source>Contents of the Emulated Chip</source>
        <translation>Inhalt des emulierten Bausteins</translation>
    </message>
    <message>
        <source>The connection is not complete.</source>
        <translation>Die Verbindung ist nicht vollständig.</translation>
    </message>
    <message>
        <source>the programmer&apos;s own</source>
        <translation>der des Programmiergeräts</translation>
    </message>
    <message>
        <source>Clock (Hz):</source>
        <translation>Takt (Hz):</translation>
    </message>
    <message>
        <source>The clock is not a number of hertz.</source>
        <translation>Der Takt ist keine Zahl in Hertz.</translation>
    </message>
    <message>
        <source>H&amp;ost:</source>
        <translation>&amp;Zielrechner:</translation>
    </message>
</context>
<context>
    <name>COPY_DIALOG</name>
    <message>
        <source>Duplicate</source>
        <translation>Duplizieren</translation>
    </message>
    <message>
        <source>&amp;Copy of:</source>
        <translation>&amp;Kopie von:</translation>
    </message>
    <message>
        <source>&amp;New name:</source>
        <translation>&amp;Neuer Name:</translation>
    </message>
    <message>
        <source>&amp;Duplicate</source>
        <translation>&amp;Duplizieren</translation>
    </message>
    <message>
        <source>Choose the device to copy.</source>
        <translation>Wählen Sie den Baustein, der kopiert werden soll.</translation>
    </message>
</context>
<context>
    <name>DATABASE_DEVICE_MENU</name>
    <message>
        <source>&amp;Open in the Configuration Device Dialog</source>
        <translation>Im &amp;Konfigurationsdialog öffnen</translation>
    </message>
    <message>
        <source>D&amp;uplicate...</source>
        <translation>D&amp;uplizieren...</translation>
    </message>
    <message>
        <source>&amp;Delete</source>
        <translation>&amp;Löschen</translation>
    </message>
    <message>
        <source>&amp;Compare...</source>
        <translation>&amp;Vergleichen...</translation>
    </message>
    <message>
        <source>Save Flow C&amp;harts...</source>
        <translation>Ablaufdia&amp;gramme speichern...</translation>
    </message>
</context>
<context>
    <name>DATABASE_EDIT_MENU</name>
    <message>
        <source>&amp;Undo</source>
        <translation>&amp;Rückgängig</translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation>&amp;Kopieren</translation>
    </message>
    <message>
        <source>Select &amp;All</source>
        <translation>&amp;Alles auswählen</translation>
    </message>
    <message>
        <source>&amp;Find</source>
        <translation>&amp;Suchen</translation>
    </message>
    <message>
        <source>Delete &quot;%1&quot;</source>
        <translation>„%1“ löschen</translation>
    </message>
    <message>
        <source>Delete, devices: %1</source>
        <translation>Löschen, Bausteine: %1</translation>
    </message>
</context>
<context>
    <name>DATABASE_MENU</name>
    <message>
        <source>&amp;Open Directory...</source>
        <translation>Verzeichnis &amp;öffnen...</translation>
    </message>
    <message>
        <source>&amp;Recent Directories</source>
        <translation>&amp;Zuletzt benutzte Verzeichnisse</translation>
    </message>
    <message>
        <source>Re&amp;fresh</source>
        <translation>Akt&amp;ualisieren</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>&amp;Schließen</translation>
    </message>
    <message>
        <source>&amp;Import...</source>
        <translation>&amp;Importieren...</translation>
    </message>
    <message>
        <source>&amp;Export...</source>
        <translation>&amp;Exportieren...</translation>
    </message>
</context>
<context>
    <name>DATABASE_WINDOW</name>
    <message>
        <source>Devices</source>
        <translation>Bausteine</translation>
    </message>
    <message>
        <source>Da&amp;tabase</source>
        <translation>&amp;Datenbank</translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <translation>&amp;Bearbeiten</translation>
    </message>
    <message>
        <source>&amp;Device</source>
        <translation>B&amp;austein</translation>
    </message>
    <message>
        <source>Device Database - %1</source>
        <translation>Bausteindatenbank - %1</translation>
    </message>
    <message>
        <source>Open Directory</source>
        <translation>Verzeichnis öffnen</translation>
    </message>
    <message>
        <source>The directory is used now, but could not be stored in the settings.</source>
        <translation>Das Verzeichnis wird jetzt benutzt, konnte aber nicht in den Einstellungen gespeichert werden.</translation>
    </message>
    <message>
        <source>The device &quot;%1&quot; does not exist any more.</source>
        <translation>Den Baustein „%1“ gibt es nicht mehr.</translation>
    </message>
    <message>
        <source>The device &quot;%1&quot; is stored.</source>
        <translation>Der Baustein „%1“ ist gespeichert.</translation>
    </message>
    <message>
        <source>The device &quot;%1&quot; is deleted. Ctrl+Z brings it back.</source>
        <translation>Der Baustein „%1“ ist gelöscht. Strg+Z bringt ihn zurück.</translation>
    </message>
    <message>
        <source>Devices deleted: %1. Ctrl+Z brings them back.</source>
        <translation>Gelöschte Bausteine: %1. Strg+Z bringt sie zurück.</translation>
    </message>
    <message>
        <source>The device &quot;%1&quot; is back.</source>
        <translation>Der Baustein „%1“ ist wieder da.</translation>
    </message>
    <message>
        <source>Devices brought back: %1</source>
        <translation>Zurückgeholte Bausteine: %1</translation>
    </message>
    <message>
        <source>History</source>
        <translation>Verlauf</translation>
    </message>
    <message>
        <source>The flow charts are in %1.</source>
        <translation>Die Ablaufdiagramme sind in %1.</translation>
    </message>
    <message>
        <source>Files of Records</source>
        <translation>Dateien mit Datensätzen</translation>
    </message>
    <message>
        <source>Records</source>
        <translation>Datensätze</translation>
    </message>
    <message>
        <source>Devices are being deleted.</source>
        <translation>Bausteine werden gelöscht.</translation>
    </message>
    <message>
        <source>Devices deleted: %1 of %2. Ctrl+Z brings them back.</source>
        <translation>Gelöschte Bausteine: %1 von %2. Strg+Z bringt sie zurück.</translation>
    </message>
    <message>
        <source>Devices are being brought back.</source>
        <translation>Bausteine werden zurückgeholt.</translation>
    </message>
    <message>
        <source>Devices brought back: %1 of %2. Ctrl+Z goes on.</source>
        <translation>Zurückgeholte Bausteine: %1 von %2. Strg+Z macht weiter.</translation>
    </message>
</context>
<context>
    <name>DATA_PAGE</name>
    <message>
        <source>Go to:</source>
        <translation>Gehe zu:</translation>
    </message>
    <message>
        <source>Previous Difference</source>
        <translation>Voriger Unterschied</translation>
    </message>
    <message>
        <source>Next Difference</source>
        <translation>Nächster Unterschied</translation>
    </message>
    <message>
        <source>Save As...</source>
        <translation>Speichern unter...</translation>
    </message>
    <message>
        <source>Nothing was read. Check Examine to read the chip.</source>
        <translation>Es wurde nichts gelesen. Zum Lesen des Bausteins „Examine“ ankreuzen.</translation>
    </message>
    <message>
        <source>%1 was read.</source>
        <translation>%1 wurde gelesen.</translation>
    </message>
    <message>
        <source>%1 was read. It is what the file has.</source>
        <translation>%1 wurde gelesen und stimmt mit der Datei überein.</translation>
    </message>
    <message>
        <source>%1 was read. Bytes that differ from the file: %2</source>
        <translation>%1 wurde gelesen. Von der Datei abweichende Bytes: %2</translation>
    </message>
    <message>
        <source>Save What Was Read</source>
        <translation>Gelesenes speichern</translation>
    </message>
    <message>
        <source>The file %1 cannot be written: %2</source>
        <translation>Die Datei %1 kann nicht geschrieben werden: %2</translation>
    </message>
    <message>
        <source>%1: %2, expected %3</source>
        <translation>%1: %2, erwartet %3</translation>
    </message>
    <message>
        <source>Bytes that were read</source>
        <translation>Gelesene Bytes</translation>
    </message>
    <message>
        <source>The file %1 keeps the contents of the emulated chip. Choose another one.</source>
        <translation>In der Datei %1 wird der Inhalt des emulierten Bausteins aufbewahrt. Wählen Sie eine andere.</translation>
    </message>
</context>
<context>
    <name>DETECTED_DIALOG</name>
    <message>
        <source>Detect</source>
        <translation>Erkennen</translation>
    </message>
    <message>
        <source>The chip has the ID %1. Devices with this ID:</source>
        <translation>Der Baustein hat die ID %1. Bausteine mit dieser ID:</translation>
    </message>
</context>
<context>
    <name>DEVICE_MODEL</name>
    <message>
        <source>all</source>
        <translation>alle</translation>
    </message>
    <message>
        <source>Built in</source>
        <translation>Eingebaut</translation>
    </message>
    <message>
        <source>Own</source>
        <translation>Eigener</translation>
    </message>
    <message>
        <source>Of own devices they are read from the flows when they are shown for the first time. Those not read yet are sorted as the highest.</source>
        <translation>Bei eigenen Bausteinen werden sie aus den Abläufen gelesen, wenn sie zum ersten Mal gezeigt werden. Noch nicht gelesene gelten beim Sortieren als die höchsten.</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Name</translation>
    </message>
    <message>
        <source>Maker</source>
        <translation>Hersteller</translation>
    </message>
    <message>
        <source>Device ID</source>
        <translation>Baustein-ID</translation>
    </message>
    <message>
        <source>Density</source>
        <translation>Kapazität</translation>
    </message>
    <message>
        <source>Voltage</source>
        <translation>Spannung</translation>
    </message>
    <message>
        <source>Address bytes</source>
        <translation>Adressbytes</translation>
    </message>
    <message>
        <source>Dies</source>
        <translation>Dies</translation>
    </message>
    <message>
        <source>Device family</source>
        <translation>Bausteinfamilie</translation>
    </message>
    <message>
        <source>Mode</source>
        <translation>Modus</translation>
    </message>
    <message>
        <source>Kind</source>
        <translation>Art</translation>
    </message>
    <message>
        <source>Changed</source>
        <translation>Geändert</translation>
    </message>
    <message>
        <source>Changed by</source>
        <translation>Geändert von</translation>
    </message>
</context>
<context>
    <name>DEVICE_PAGE</name>
    <message>
        <source>&amp;Find:</source>
        <translation>&amp;Suchen:</translation>
    </message>
    <message>
        <source>Name, maker, density, voltage or device ID</source>
        <translation>Name, Hersteller, Kapazität, Spannung oder Baustein-ID</translation>
    </message>
    <message>
        <source>Devices</source>
        <translation>Bausteine</translation>
    </message>
    <message>
        <source>%1 of %2 devices</source>
        <translation>%1 von %2 Bausteinen</translation>
    </message>
</context>
<context>
    <name>DEVICE_PANEL</name>
    <message>
        <source>none</source>
        <translation>keiner</translation>
    </message>
    <message>
        <source>Device &amp;family:</source>
        <translation>Baustein&amp;familie:</translation>
    </message>
    <message>
        <source>Configuration &amp;mode:</source>
        <translation>Konfigurations&amp;modus:</translation>
    </message>
    <message>
        <source>Configuration &amp;device:</source>
        <translation>K&amp;onfigurationsbaustein:</translation>
    </message>
    <message>
        <source>Database di&amp;rectory:</source>
        <translation>Datenbank&amp;verzeichnis:</translation>
    </message>
    <message>
        <source>&amp;Configuration Device...</source>
        <translation>&amp;Konfigurationsbaustein...</translation>
    </message>
</context>
<context>
    <name>DEVICE_PROGRESS</name>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
</context>
<context>
    <name>DEVICE_SOURCES</name>
    <message>
        <source>The device &quot;%1&quot; does not exist.</source>
        <translation>Den Baustein „%1“ gibt es nicht.</translation>
    </message>
</context>
<context>
    <name>EXPORT_DIALOG</name>
    <message>
        <source>Export</source>
        <translation>Exportieren</translation>
    </message>
    <message>
        <source>Selected records: %1</source>
        <translation>Ausgewählte Datensätze: %1</translation>
    </message>
    <message>
        <source>All stored devices and templates</source>
        <translation>Alle gespeicherten Bausteine und Vorlagen</translation>
    </message>
    <message>
        <source>All built-in devices</source>
        <translation>Alle eingebauten Bausteine</translation>
    </message>
    <message>
        <source>One JSON file</source>
        <translation>Eine JSON-Datei</translation>
    </message>
    <message>
        <source>One JSON file for each record</source>
        <translation>Eine JSON-Datei je Datensatz</translation>
    </message>
    <message>
        <source>CSV list of the devices, without flows</source>
        <translation>CSV-Liste der Bausteine, ohne Abläufe</translation>
    </message>
    <message>
        <source>For a &amp;spreadsheet (cannot be imported again)</source>
        <translation>Für eine &amp;Tabellenkalkulation (kann nicht wieder importiert werden)</translation>
    </message>
    <message>
        <source>Texts that a spreadsheet would run as formulas get an apostrophe.</source>
        <translation>Texte, die eine Tabellenkalkulation als Formeln ausführen würde, bekommen einen Apostroph.</translation>
    </message>
    <message>
        <source>&amp;Browse...</source>
        <translation>D&amp;urchsuchen...</translation>
    </message>
    <message>
        <source>&amp;Records:</source>
        <translation>&amp;Datensätze:</translation>
    </message>
    <message>
        <source>&amp;Format:</source>
        <translation>&amp;Format:</translation>
    </message>
    <message>
        <source>&amp;To:</source>
        <translation>&amp;Nach:</translation>
    </message>
    <message>
        <source>&amp;Export</source>
        <translation>&amp;Exportieren</translation>
    </message>
    <message>
        <source>Progress</source>
        <translation>Fortschritt</translation>
    </message>
    <message>
        <source>Directory for the Files</source>
        <translation>Verzeichnis für die Dateien</translation>
    </message>
    <message>
        <source>File for the Records</source>
        <translation>Datei für die Datensätze</translation>
    </message>
    <message>
        <source>These files already exist:</source>
        <translation>Diese Dateien gibt es schon:</translation>
    </message>
    <message>
        <source>Re&amp;place</source>
        <translation>Er&amp;setzen</translation>
    </message>
    <message>
        <source>Enter where the records go.</source>
        <translation>Geben Sie an, wohin die Datensätze geschrieben werden.</translation>
    </message>
    <message>
        <source>There is nothing to export.</source>
        <translation>Es gibt nichts zu exportieren.</translation>
    </message>
    <message>
        <source>Exported records: %1, into %2</source>
        <translation>Exportierte Datensätze: %1, nach %2</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Schließen</translation>
    </message>
    <message>
        <source>These cannot be read, and are not exported:</source>
        <translation>Diese können nicht gelesen werden und sind nicht exportiert:</translation>
    </message>
</context>
<context>
    <name>FILE_PANEL</name>
    <message>
        <source>Bro&amp;wse...</source>
        <translation>D&amp;urchsuchen...</translation>
    </message>
    <message>
        <source>No file. A file can be dropped on the window.</source>
        <translation>Keine Datei. Eine Datei kann auf das Fenster gezogen werden.</translation>
    </message>
    <message>
        <source>F&amp;ile:</source>
        <translation>&amp;Datei:</translation>
    </message>
    <message>
        <source>File &amp;begins at:</source>
        <translation>Datei &amp;beginnt bei:</translation>
    </message>
    <message>
        <source>The file is being read.</source>
        <translation>Die Datei wird gelesen.</translation>
    </message>
    <message>
        <source>The file cannot be read: %1</source>
        <translation>Die Datei kann nicht gelesen werden: %1</translation>
    </message>
    <message>
        <source>%1 bytes, CRC-32 %2</source>
        <translation>%1 Bytes, CRC-32 %2</translation>
    </message>
    <message>
        <source>File to Program</source>
        <translation>Datei zum Programmieren</translation>
    </message>
</context>
<context>
    <name>FILE_SUMMARY</name>
    <message>
        <source>It is not a file.</source>
        <translation>Es ist keine Datei.</translation>
    </message>
</context>
<context>
    <name>HELP_MENU</name>
    <message>
        <source>&amp;Help</source>
        <translation>&amp;Hilfe</translation>
    </message>
    <message>
        <source>&amp;User Guide</source>
        <translation>&amp;Benutzerhandbuch</translation>
    </message>
    <message>
        <source>Device &amp;Database</source>
        <translation>Baustein&amp;datenbank</translation>
    </message>
    <message>
        <source>&amp;Programming</source>
        <translation>&amp;Programmieren</translation>
    </message>
    <message>
        <source>&amp;Flows</source>
        <translation>&amp;Abläufe</translation>
    </message>
    <message>
        <source>&amp;Command Line</source>
        <translation>B&amp;efehlszeile</translation>
    </message>
    <message>
        <source>&amp;About</source>
        <translation>&amp;Über</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Hilfe</translation>
    </message>
    <message>
        <source>The guide is not installed. It would be here:
%1</source>
        <translation>Das Handbuch ist nicht installiert. Es wäre hier:
%1</translation>
    </message>
    <message>
        <source>No program shows this guide. Open it with a viewer or an editor:
%1</source>
        <translation>Kein Programm zeigt dieses Handbuch. Öffnen Sie es mit einem Betrachter oder Editor:
%1</translation>
    </message>
    <message>
        <source>%1 %2

Licence: MIT
Qt %3

The built-in devices are public facts about flash parts. The names of parts belong to their makers.</source>
        <translation>%1 %2

Lizenz: MIT
Qt %3

Die eingebauten Bausteine sind öffentliche Angaben über Flash-Bausteine. Die Namen der Bausteine gehören ihren Herstellern.</translation>
    </message>
    <message>
        <source>About</source>
        <translation>Über</translation>
    </message>
</context>
<context>
    <name>HISTORY_MENU</name>
    <message>
        <source>Compare with the &amp;Next State</source>
        <translation>Mit dem &amp;nächsten Stand vergleichen</translation>
    </message>
    <message>
        <source>Compare with the &amp;Previous State</source>
        <translation>Mit dem &amp;vorigen Stand vergleichen</translation>
    </message>
    <message>
        <source>Compare with the &amp;Current State</source>
        <translation>Mit dem &amp;aktuellen Stand vergleichen</translation>
    </message>
    <message>
        <source>Compare the Two &amp;Selected States</source>
        <translation>Die &amp;beiden gewählten Stände vergleichen</translation>
    </message>
</context>
<context>
    <name>HISTORY_MODEL</name>
    <message>
        <source>Changed</source>
        <translation>Geändert</translation>
    </message>
    <message>
        <source>Deleted</source>
        <translation>Gelöscht</translation>
    </message>
    <message>
        <source>Put back</source>
        <translation>Zurückgebracht</translation>
    </message>
    <message>
        <source>This state was replaced by another one.</source>
        <translation>Dieser Stand wurde durch einen anderen ersetzt.</translation>
    </message>
    <message>
        <source>This state was deleted.</source>
        <translation>Dieser Stand wurde gelöscht.</translation>
    </message>
    <message>
        <source>This state was deleted, and put back because it could not be replaced.</source>
        <translation>Dieser Stand wurde gelöscht und zurückgebracht, weil er nicht ersetzt werden konnte.</translation>
    </message>
    <message>
        <source>Template</source>
        <translation>Vorlage</translation>
    </message>
    <message>
        <source>Device</source>
        <translation>Baustein</translation>
    </message>
    <message>
        <source>When</source>
        <translation>Wann</translation>
    </message>
    <message>
        <source>User</source>
        <translation>Benutzer</translation>
    </message>
    <message>
        <source>Change</source>
        <translation>Änderung</translation>
    </message>
    <message>
        <source>Kind</source>
        <translation>Art</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Name</translation>
    </message>
    <message>
        <source>Family</source>
        <translation>Familie</translation>
    </message>
    <message>
        <source>Mode</source>
        <translation>Modus</translation>
    </message>
    <message>
        <source>No.</source>
        <translation>Nr.</translation>
    </message>
</context>
<context>
    <name>HISTORY_PAGE</name>
    <message>
        <source>&amp;Compare</source>
        <translation>&amp;Vergleichen</translation>
    </message>
    <message>
        <source>&amp;Bring Back...</source>
        <translation>Z&amp;urückholen...</translation>
    </message>
    <message>
        <source>Devices and templates</source>
        <translation>Bausteine und Vorlagen</translation>
    </message>
    <message>
        <source>Devices</source>
        <translation>Bausteine</translation>
    </message>
    <message>
        <source>Templates</source>
        <translation>Vorlagen</translation>
    </message>
    <message>
        <source>History</source>
        <translation>Verlauf</translation>
    </message>
    <message>
        <source>Na&amp;me:</source>
        <translation>Na&amp;me:</translation>
    </message>
    <message>
        <source>&amp;User:</source>
        <translation>Be&amp;nutzer:</translation>
    </message>
    <message>
        <source>&amp;Kind:</source>
        <translation>A&amp;rt:</translation>
    </message>
    <message>
        <source>States: %1, searching...</source>
        <translation>Stände: %1, die Suche läuft...</translation>
    </message>
    <message>
        <source>States: more than %1</source>
        <translation>Stände: mehr als %1</translation>
    </message>
    <message>
        <source>States: %1</source>
        <translation>Stände: %1</translation>
    </message>
    <message>
        <source>There is no state before this one.</source>
        <translation>Vor diesem Stand gibt es keinen.</translation>
    </message>
    <message>
        <source>There is no state after this one: it was deleted or renamed.</source>
        <translation>Nach diesem Stand gibt es keinen: Er wurde gelöscht oder umbenannt.</translation>
    </message>
    <message>
        <source>There is no current state: it was deleted or renamed.</source>
        <translation>Es gibt keinen aktuellen Stand: Er wurde gelöscht oder umbenannt.</translation>
    </message>
    <message>
        <source>A state was removed from the history.</source>
        <translation>Ein Stand wurde aus dem Verlauf entfernt.</translation>
    </message>
</context>
<context>
    <name>IMPORT_DIALOG</name>
    <message>
        <source>Import: %1</source>
        <translation>Importieren: %1</translation>
    </message>
    <message>
        <source>Import</source>
        <translation>Importieren</translation>
    </message>
    <message>
        <source>As in the files</source>
        <translation>Wie in den Dateien</translation>
    </message>
    <message>
        <source>&amp;Replace records that differ</source>
        <translation>Abweichende Datensätze e&amp;rsetzen</translation>
    </message>
    <message>
        <source>Device &amp;family:</source>
        <translation>Baustein&amp;familie:</translation>
    </message>
    <message>
        <source>Configuration &amp;mode:</source>
        <translation>Konfigurations&amp;modus:</translation>
    </message>
    <message>
        <source>Preview</source>
        <translation>Vorschau</translation>
    </message>
    <message>
        <source>Details</source>
        <translation>Details</translation>
    </message>
    <message>
        <source>&amp;Import</source>
        <translation>&amp;Importieren</translation>
    </message>
    <message>
        <source>&amp;Compare...</source>
        <translation>&amp;Vergleichen...</translation>
    </message>
    <message>
        <source>Progress</source>
        <translation>Fortschritt</translation>
    </message>
    <message>
        <source>The files are being read.</source>
        <translation>Die Dateien werden gelesen.</translation>
    </message>
    <message>
        <source>Nothing is imported while there are problems.</source>
        <translation>Solange es Probleme gibt, wird nichts importiert.</translation>
    </message>
    <message>
        <source>There is nothing to import.</source>
        <translation>Es gibt nichts zu importieren.</translation>
    </message>
    <message>
        <source>Stored</source>
        <translation>Gespeichert</translation>
    </message>
    <message>
        <source>In the file</source>
        <translation>In der Datei</translation>
    </message>
    <message>
        <source>The records are being stored.</source>
        <translation>Die Datensätze werden gespeichert.</translation>
    </message>
    <message>
        <source>Nothing was imported: %1
The preview was made again.</source>
        <translation>Nichts wurde importiert: %1
Die Vorschau wurde neu erstellt.</translation>
    </message>
    <message>
        <source>Imported into %1. New: %2, replaced: %3</source>
        <translation>Importiert nach %1. Neu: %2, ersetzt: %3</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Schließen</translation>
    </message>
    <message>
        <source>Nothing was imported: you have cancelled it.</source>
        <translation>Nichts wurde importiert: Sie haben es abgebrochen.</translation>
    </message>
</context>
<context>
    <name>IMPORT_MODEL</name>
    <message>
        <source>Problem</source>
        <translation>Problem</translation>
    </message>
    <message>
        <source>Warning</source>
        <translation>Warnung</translation>
    </message>
    <message>
        <source>Will be replaced</source>
        <translation>Wird ersetzt</translation>
    </message>
    <message>
        <source>Differs, not imported</source>
        <translation>Weicht ab, nicht importiert</translation>
    </message>
    <message>
        <source>New</source>
        <translation>Neu</translation>
    </message>
    <message>
        <source>Already exists</source>
        <translation>Bereits vorhanden</translation>
    </message>
    <message>
        <source>%1: differs</source>
        <translation>%1: weicht ab</translation>
    </message>
    <message>
        <source>%1: stored %2, in the file %3</source>
        <translation>%1: gespeichert %2, in der Datei %3</translation>
    </message>
    <message>
        <source>Differs in: %1</source>
        <translation>Unterschiede: %1</translation>
    </message>
    <message>
        <source>State</source>
        <translation>Status</translation>
    </message>
    <message>
        <source>Record</source>
        <translation>Datensatz</translation>
    </message>
    <message>
        <source>Family</source>
        <translation>Familie</translation>
    </message>
    <message>
        <source>Mode</source>
        <translation>Modus</translation>
    </message>
    <message>
        <source>File</source>
        <translation>Datei</translation>
    </message>
    <message>
        <source>Line</source>
        <translation>Zeile</translation>
    </message>
    <message>
        <source>Remark</source>
        <translation>Bemerkung</translation>
    </message>
</context>
<context>
    <name>MODULE_LOADER</name>
    <message>
        <source>The dialog module was not found. Searched:
%1</source>
        <translation>Das Dialogmodul wurde nicht gefunden. Gesucht wurde hier:
%1</translation>
    </message>
    <message>
        <source>The dialog module %1 is not loaded: everyone may change %2.</source>
        <translation>Das Dialogmodul %1 wird nicht geladen: Jeder darf %2 ändern.</translation>
    </message>
    <message>
        <source>The dialog module %1 cannot be loaded:
%2</source>
        <translation>Das Dialogmodul %1 kann nicht geladen werden:
%2</translation>
    </message>
    <message>
        <source>The dialog module %1 has no function &quot;%2&quot;.</source>
        <translation>Das Dialogmodul %1 hat keine Funktion „%2“.</translation>
    </message>
</context>
<context>
    <name>NEW_DEVICE_DESK</name>
    <message>
        <source>New Device</source>
        <translation>Neuer Baustein</translation>
    </message>
    <message>
        <source>SFDP Read-Out of a Chip</source>
        <translation>SFDP-Daten eines Bausteins</translation>
    </message>
</context>
<context>
    <name>NEW_DEVICE_DIALOG</name>
    <message>
        <source>New Device</source>
        <translation>Neuer Baustein</translation>
    </message>
    <message>
        <source>New Device: %1</source>
        <translation>Neuer Baustein: %1</translation>
    </message>
    <message>
        <source>&amp;Warnings:</source>
        <translation>&amp;Warnungen:</translation>
    </message>
    <message>
        <source>&amp;Listed parts with this ID:</source>
        <translation>&amp;Gelistete Bausteine mit dieser ID:</translation>
    </message>
    <message>
        <source>Create &amp;Device</source>
        <translation>Baustein &amp;anlegen</translation>
    </message>
    <message>
        <source>Save &amp;Read-Out...</source>
        <translation>SFDP-Daten &amp;speichern...</translation>
    </message>
    <message>
        <source>none</source>
        <translation>keine</translation>
    </message>
    <message>
        <source>no differences</source>
        <translation>keine Unterschiede</translation>
    </message>
    <message>
        <source>Save the Read-Out</source>
        <translation>SFDP-Daten speichern</translation>
    </message>
    <message>
        <source>What was entered has changed other values or the warnings. Look at them, then create the device.</source>
        <translation>Durch die Eingabe haben sich andere Werte oder die Warnungen geändert. Sehen Sie sie an und legen Sie dann den Baustein an.</translation>
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
        <translation>Was die Datei abdeckt</translation>
    </message>
    <message>
        <source>The whole device</source>
        <translation>Der ganze Baustein</translation>
    </message>
    <message>
        <source>Address and length</source>
        <translation>Adresse und Länge</translation>
    </message>
    <message>
        <source>Ran&amp;ge:</source>
        <translation>Bere&amp;ich:</translation>
    </message>
    <message>
        <source>&amp;Address:</source>
        <translation>&amp;Adresse:</translation>
    </message>
    <message>
        <source>Length:</source>
        <translation>Länge:</translation>
    </message>
</context>
<context>
    <name>PLACE_FIELDS</name>
    <message>
        <source>Device &amp;family:</source>
        <translation>Baustein&amp;familie:</translation>
    </message>
    <message>
        <source>Configuration &amp;mode:</source>
        <translation>Konfigurations&amp;modus:</translation>
    </message>
</context>
<context>
    <name>PROGRAMMER_MENU</name>
    <message>
        <source>&amp;Configuration Device...</source>
        <translation>&amp;Konfigurationsbaustein...</translation>
    </message>
    <message>
        <source>&amp;Detect</source>
        <translation>E&amp;rkennen</translation>
    </message>
    <message>
        <source>&amp;Open File...</source>
        <translation>&amp;Datei öffnen...</translation>
    </message>
    <message>
        <source>&amp;Try the Flow</source>
        <translation>&amp;Ablauf ausprobieren</translation>
    </message>
    <message>
        <source>&amp;Start</source>
        <translation>&amp;Starten</translation>
    </message>
    <message>
        <source>C&amp;ancel</source>
        <translation>A&amp;bbrechen</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>B&amp;eenden</translation>
    </message>
    <message>
        <source>&amp;New Device from Chip...</source>
        <translation>&amp;Neuer Baustein vom Chip...</translation>
    </message>
    <message>
        <source>New Device from S&amp;FDP File...</source>
        <translation>Neuer Baustein aus SFD&amp;P-Datei...</translation>
    </message>
    <message>
        <source>D&amp;uplicate...</source>
        <translation>D&amp;uplizieren...</translation>
    </message>
    <message>
        <source>Device Data&amp;base...</source>
        <translation>Baus&amp;teindatenbank...</translation>
    </message>
    <message>
        <source>Save Flow C&amp;harts...</source>
        <translation>Ablaufdia&amp;gramme speichern...</translation>
    </message>
</context>
<context>
    <name>PROGRAMMER_WINDOW</name>
    <message>
        <source>Device</source>
        <translation>Baustein</translation>
    </message>
    <message>
        <source>Connection</source>
        <translation>Verbindung</translation>
    </message>
    <message>
        <source>File</source>
        <translation>Datei</translation>
    </message>
    <message>
        <source>Operations</source>
        <translation>Vorgänge</translation>
    </message>
    <message>
        <source>Log</source>
        <translation>Protokoll</translation>
    </message>
    <message>
        <source>Trace</source>
        <translation>Befehle</translation>
    </message>
    <message>
        <source>Data</source>
        <translation>Daten</translation>
    </message>
    <message>
        <source>&amp;Programmer</source>
        <translation>&amp;Programmiergerät</translation>
    </message>
    <message>
        <source>Not started: %1</source>
        <translation>Nicht gestartet: %1</translation>
    </message>
    <message>
        <source>The place where the file begins is not a number.</source>
        <translation>Die Stelle, an der die Datei beginnt, ist keine Zahl.</translation>
    </message>
    <message>
        <source>Address or length is not a number.</source>
        <translation>Adresse oder Länge ist keine Zahl.</translation>
    </message>
    <message>
        <source>Nothing was detected: %1</source>
        <translation>Nichts erkannt: %1</translation>
    </message>
    <message>
        <source>The chip has the ID %1.</source>
        <translation>Der Baustein hat die ID %1.</translation>
    </message>
    <message>
        <source>No device has the ID %1.</source>
        <translation>Kein Baustein hat die ID %1.</translation>
    </message>
    <message>
        <source>The run is being cancelled. If it is stopped at once, the state of the chip is unknown.</source>
        <translation>Der Lauf wird abgebrochen. Wird er sofort angehalten, ist der Zustand des Bausteins unbekannt.</translation>
    </message>
    <message>
        <source>A run is under way. Cancel it and close the window?</source>
        <translation>Ein Lauf ist im Gange. Abbrechen und das Fenster schließen?</translation>
    </message>
    <message>
        <source>Stop at once</source>
        <translation>Sofort anhalten</translation>
    </message>
    <message>
        <source>Cancel the run</source>
        <translation>Lauf abbrechen</translation>
    </message>
    <message>
        <source>Wait</source>
        <translation>Warten</translation>
    </message>
    <message>
        <source>Keep running</source>
        <translation>Weiterlaufen lassen</translation>
    </message>
    <message>
        <source>Cancelled</source>
        <translation>Abgebrochen</translation>
    </message>
    <message>
        <source>The device &quot;%1&quot; is stored.</source>
        <translation>Der Baustein „%1“ ist gespeichert.</translation>
    </message>
    <message>
        <source>The device &quot;%1&quot; is not there, or of a family or mode that is not offered here.</source>
        <translation>Den Baustein „%1“ gibt es nicht, oder seine Familie oder sein Modus wird hier nicht angeboten.</translation>
    </message>
    <message>
        <source>The flow charts cannot be saved: %1</source>
        <translation>Die Ablaufdiagramme können nicht gespeichert werden: %1</translation>
    </message>
    <message>
        <source>The flow charts are in %1.</source>
        <translation>Die Ablaufdiagramme sind in %1.</translation>
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
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Schließen</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Speichern</translation>
    </message>
</context>
<context>
    <name>READ_OUT_FILE</name>
    <message>
        <source>The file %1 cannot be read: %2</source>
        <translation>Die Datei %1 kann nicht gelesen werden: %2</translation>
    </message>
    <message>
        <source>%1 is not a file.</source>
        <translation>%1 ist keine Datei.</translation>
    </message>
    <message>
        <source>The file %1 has more than %2 bytes and is not an SFDP read-out.</source>
        <translation>Die Datei %1 hat mehr als %2 Bytes und enthält keine SFDP-Daten.</translation>
    </message>
    <message>
        <source>The file %1 cannot be written: %2</source>
        <translation>Die Datei %1 kann nicht geschrieben werden: %2</translation>
    </message>
</context>
<context>
    <name>RECORD_COMPARISON</name>
    <message>
        <source>Kind</source>
        <translation>Art</translation>
    </message>
    <message>
        <source>Template</source>
        <translation>Vorlage</translation>
    </message>
    <message>
        <source>Built-in device</source>
        <translation>Eingebauter Baustein</translation>
    </message>
    <message>
        <source>Own device</source>
        <translation>Eigener Baustein</translation>
    </message>
    <message>
        <source>Family</source>
        <translation>Familie</translation>
    </message>
    <message>
        <source>Mode</source>
        <translation>Modus</translation>
    </message>
    <message>
        <source>Properties</source>
        <translation>Eigenschaften</translation>
    </message>
    <message>
        <source>Quad-I/O flow</source>
        <translation>Quad-I/O-Ablauf</translation>
    </message>
    <message>
        <source>Single-I/O flow</source>
        <translation>Single-I/O-Ablauf</translation>
    </message>
    <message>
        <source>The flow cannot be read.</source>
        <translation>Der Ablauf ist nicht lesbar.</translation>
    </message>
</context>
<context>
    <name>RECORD_EXPORT</name>
    <message>
        <source>The file %1 cannot be written: %2</source>
        <translation>Die Datei %1 kann nicht geschrieben werden: %2</translation>
    </message>
</context>
<context>
    <name>RECORD_STATES</name>
    <message>
        <source>%1, state %2 (until %3)</source>
        <translation>%1, Stand %2 (bis %3)</translation>
    </message>
    <message>
        <source>%1, now</source>
        <translation>%1, jetzt</translation>
    </message>
</context>
<context>
    <name>REMOVED_DEVICES</name>
    <message>
        <source>The device &quot;%1&quot; was deleted by another program already.</source>
        <translation>Der Baustein „%1“ wurde schon von einem anderen Programm gelöscht.</translation>
    </message>
    <message>
        <source>The history does not have the device &quot;%1&quot; any more.</source>
        <translation>Der Verlauf enthält den Baustein „%1“ nicht mehr.</translation>
    </message>
</context>
<context>
    <name>RUN_BAR</name>
    <message>
        <source>Progress of the run</source>
        <translation>Fortschritt des Laufs</translation>
    </message>
    <message>
        <source>Tr&amp;y the Flow</source>
        <translation>Ab&amp;lauf ausprobieren</translation>
    </message>
    <message>
        <source>Erases, programs and verifies an emulated chip. No hardware is needed or used.</source>
        <translation>Löscht, programmiert und prüft einen emulierten Baustein. Hardware wird weder gebraucht noch benutzt.</translation>
    </message>
    <message>
        <source>&amp;Start</source>
        <translation>S&amp;tarten</translation>
    </message>
    <message>
        <source>Cance&amp;l</source>
        <translation>Abbre&amp;chen</translation>
    </message>
    <message>
        <source>The run is being cancelled.</source>
        <translation>Der Lauf wird abgebrochen.</translation>
    </message>
    <message>
        <source>%1: %2 of %3</source>
        <translation>%1: %2 von %3</translation>
    </message>
    <message>
        <source>%1 left</source>
        <translation>noch %1</translation>
    </message>
</context>
<context>
    <name>RUN_PREPARATION</name>
    <message>
        <source>No operation is checked.</source>
        <translation>Kein Vorgang ist angekreuzt.</translation>
    </message>
    <message>
        <source>No file is chosen.</source>
        <translation>Keine Datei ist gewählt.</translation>
    </message>
    <message>
        <source>No device is chosen.</source>
        <translation>Kein Baustein ist gewählt.</translation>
    </message>
    <message>
        <source>The device &quot;%1&quot; does not exist.</source>
        <translation>Den Baustein „%1“ gibt es nicht.</translation>
    </message>
    <message>
        <source>The file %1 cannot be read.</source>
        <translation>Die Datei %1 kann nicht gelesen werden.</translation>
    </message>
    <message>
        <source>The file %1 is empty.</source>
        <translation>Die Datei %1 ist leer.</translation>
    </message>
    <message>
        <source>The file needs %1 bytes from %2 on, and the device has %3 bytes.</source>
        <translation>Die Datei braucht %1 Bytes ab %2, und der Baustein hat %3 Bytes.</translation>
    </message>
</context>
<context>
    <name>RUN_WORDS</name>
    <message>
        <source>Failed</source>
        <translation>Fehlgeschlagen</translation>
    </message>
    <message>
        <source>Failed at %1</source>
        <translation>Fehlgeschlagen bei %1</translation>
    </message>
    <message>
        <source>Failed at %1, action %2 &quot;%3&quot;</source>
        <translation>Fehlgeschlagen bei %1, Aktion %2 „%3“</translation>
    </message>
    <message>
        <source>Stopped. The state of the chip is unknown.</source>
        <translation>Angehalten. Der Zustand des Bausteins ist unbekannt.</translation>
    </message>
    <message>
        <source>The connection is lost. The state of the chip is unknown.</source>
        <translation>Die Verbindung ist verloren. Der Zustand des Bausteins ist unbekannt.</translation>
    </message>
    <message>
        <source>Passed, but not everything could be stored</source>
        <translation>Bestanden, aber nicht alles konnte gespeichert werden</translation>
    </message>
    <message>
        <source>Passed, but a real chip would have refused or misread commands: see the log</source>
        <translation>Bestanden, aber ein echter Baustein hätte Befehle abgelehnt oder falsch verstanden: siehe Protokoll</translation>
    </message>
    <message>
        <source>Passed</source>
        <translation>Bestanden</translation>
    </message>
    <message>
        <source>Cancelled</source>
        <translation>Abgebrochen</translation>
    </message>
    <message>
        <source>Not started: see the log</source>
        <translation>Nicht gestartet: siehe Protokoll</translation>
    </message>
    <message>
        <source>a test pattern</source>
        <translation>ein Testmuster</translation>
    </message>
    <message>
        <source>Trying the flow of %1 on an emulated chip that is full of other data</source>
        <translation>Der Ablauf von %1 wird auf einem emulierten Baustein ausprobiert, der voll anderer Daten ist</translation>
    </message>
    <message>
        <source>Content: %1</source>
        <translation>Inhalt: %1</translation>
    </message>
    <message>
        <source>Nothing more was sent, because this may be another chip than the device says.</source>
        <translation>Es wurde nichts mehr gesendet, weil dies ein anderer Baustein sein kann als der gewählte.</translation>
    </message>
    <message>
        <source>Note of the chip: %1</source>
        <translation>Hinweis des Bausteins: %1</translation>
    </message>
    <message>
        <source>%1 (%2 commands, %3 s)</source>
        <translation>%1 (%2 Befehle, %3 s)</translation>
    </message>
    <message>
        <source>Whole sectors are erased. These bytes beside the range are erased, too:

%1

Erase them?</source>
        <translation>Es werden ganze Sektoren gelöscht. Auch diese Bytes neben dem Bereich werden gelöscht:

%1

Löschen?</translation>
    </message>
    <message>
        <source>%1 on the connection %2</source>
        <translation>%1 über die Verbindung %2</translation>
    </message>
</context>
<context>
    <name>TRACE_MODEL</name>
    <message>
        <source>%1 ... (%2 bytes)</source>
        <translation>%1 ... (%2 Bytes)</translation>
    </message>
    <message>
        <source>%1, %2 clocks</source>
        <translation>%1, %2 Takte</translation>
    </message>
    <message>
        <source>No.</source>
        <translation>Nr.</translation>
    </message>
    <message>
        <source>Time (ms)</source>
        <translation>Zeit (ms)</translation>
    </message>
    <message>
        <source>Operation</source>
        <translation>Vorgang</translation>
    </message>
    <message>
        <source>Action</source>
        <translation>Aktion</translation>
    </message>
    <message>
        <source>Command</source>
        <translation>Befehl</translation>
    </message>
    <message>
        <source>Lines</source>
        <translation>Leitungen</translation>
    </message>
    <message>
        <source>Sent</source>
        <translation>Gesendet</translation>
    </message>
    <message>
        <source>Received</source>
        <translation>Empfangen</translation>
    </message>
    <message>
        <source>Expected</source>
        <translation>Erwartet</translation>
    </message>
</context>
<context>
    <name>TRACE_PAGE</name>
    <message>
        <source>All operations</source>
        <translation>Alle Vorgänge</translation>
    </message>
    <message>
        <source>Commands of:</source>
        <translation>Befehle von:</translation>
    </message>
    <message>
        <source>Commands of the last run</source>
        <translation>Befehle des letzten Laufs</translation>
    </message>
    <message>
        <source>%1 commands</source>
        <translation>%1 Befehle</translation>
    </message>
</context>
</TS>
