<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de" sourcelanguage="en">
<context>
    <name>GFPC_CHARTS</name>
    <message>
        <source>The flows of %1 cannot be read.</source>
        <translation>Die Abläufe von %1 können nicht gelesen werden.</translation>
    </message>
    <message>
        <source>%1 has no quad-I/O flow.</source>
        <translation>%1 hat keinen Quad-I/O-Ablauf.</translation>
    </message>
    <message>
        <source>%1 has no single-I/O flow.</source>
        <translation>%1 hat keinen Single-I/O-Ablauf.</translation>
    </message>
    <message>
        <source>Page %1 of %2</source>
        <translation>Seite %1 von %2</translation>
    </message>
    <message>
        <source>There are no fonts on this computer.</source>
        <translation>Auf diesem Rechner gibt es keine Schriften.</translation>
    </message>
    <message>
        <source>Quad-I/O flow</source>
        <translation>Quad-I/O-Ablauf</translation>
    </message>
    <message>
        <source>Single-I/O flow</source>
        <translation>Single-I/O-Ablauf</translation>
    </message>
</context>
<context>
    <name>gfpdb</name>
    <message>
        <source>Upper and lower case count as the same.</source>
        <translation>Groß- und Kleinschreibung zählt nicht.</translation>
    </message>
    <message>
        <source>There is a built-in device called %1: choose another name.</source>
        <translation>Es gibt einen eingebauten Baustein namens %1: Wählen Sie einen anderen Namen.</translation>
    </message>
    <message>
        <source>There is a built-in template called %1: choose another name.</source>
        <translation>Es gibt eine eingebaute Vorlage namens %1: Wählen Sie einen anderen Namen.</translation>
    </message>
    <message>
        <source>part name</source>
        <translation>Bausteinname</translation>
    </message>
    <message>
        <source>The device %1 is neither deleted nor replaced, because it could not be read when it was last looked for: %2</source>
        <translation>Der Baustein %1 wird weder gelöscht noch ersetzt, weil er zuletzt nicht gelesen werden konnte: %2</translation>
    </message>
    <message>
        <source>The flows of %1 in %2 cannot be read.</source>
        <translation>Die Abläufe von %1 in %2 können nicht gelesen werden.</translation>
    </message>
    <message>
        <source>Property %1 of a device is not a number.</source>
        <translation>Die Eigenschaft %1 eines Bausteins ist keine Zahl.</translation>
    </message>
    <message>
        <source>Property %1 of a device is not a text.</source>
        <translation>Die Eigenschaft %1 eines Bausteins ist kein Text.</translation>
    </message>
    <message>
        <source>There is a stored template called %1: choose another name.</source>
        <translation>Es gibt eine gespeicherte Vorlage namens %1: Wählen Sie einen anderen Namen.</translation>
    </message>
    <message>
        <source>There is a device called %1: it is the one that is shown. Enter another name to rename it.</source>
        <translation>Es gibt einen Baustein namens %1: Es ist der angezeigte. Geben Sie zum Umbenennen einen anderen Namen ein.</translation>
    </message>
    <message>
        <source>There is a device called %1 for this family and configuration mode: choose another name.</source>
        <translation>Es gibt für diese Familie und diesen Konfigurationsmodus einen Baustein namens %1: Wählen Sie einen anderen Namen.</translation>
    </message>
    <message>
        <source>There is a stored template called %1: choose another name, or remove that template first.</source>
        <translation>Es gibt eine gespeicherte Vorlage namens %1: Wählen Sie einen anderen Namen, oder entfernen Sie zuerst diese Vorlage.</translation>
    </message>
    <message>
        <source>The template name %1 differs from the device name %2 in case only: choose another name.</source>
        <translation>Der Vorlagenname %1 unterscheidet sich vom Bausteinnamen %2 nur in der Groß- und Kleinschreibung: Wählen Sie einen anderen Namen.</translation>
    </message>
    <message>
        <source>There is a device called %1: choose another name.</source>
        <translation>Es gibt einen Baustein namens %1: Wählen Sie einen anderen Namen.</translation>
    </message>
    <message>
        <source>A flash device with an I/O voltage of %1 cannot be connected to %2 devices: it must support 1.8 V.</source>
        <translation>Ein Flash-Baustein mit einer I/O-Spannung von %1 kann nicht an Bausteine der Familie %2 angeschlossen werden: Er muss mit 1,8 V arbeiten.</translation>
    </message>
    <message>
        <source>%1 The device %2 that was deleted before was not put back: %3</source>
        <translation>%1 Der zuvor gelöschte Baustein %2 wurde nicht zurückgebracht: %3</translation>
    </message>
    <message>
        <source>There is no record to save.</source>
        <translation>Es gibt keinen Datensatz zum Speichern.</translation>
    </message>
    <message>
        <source>The configuration mode has no flash devices.</source>
        <translation>Der Konfigurationsmodus hat keine Flash-Bausteine.</translation>
    </message>
    <message>
        <source>The device %1 contains text that is not valid UTF-8.</source>
        <translation>Der Baustein %1 enthält Text, der kein gültiges UTF-8 ist.</translation>
    </message>
    <message>
        <source>The template %1 is built in: it cannot be removed.</source>
        <translation>Die Vorlage %1 ist eingebaut: Sie kann nicht entfernt werden.</translation>
    </message>
    <message>
        <source>device name</source>
        <translation>Bausteinname</translation>
    </message>
    <message>
        <source>device ID</source>
        <translation>Baustein-ID</translation>
    </message>
    <message>
        <source>I/O voltage</source>
        <translation>I/O-Spannung</translation>
    </message>
    <message>
        <source>density</source>
        <translation>Speicherkapazität</translation>
    </message>
    <message>
        <source>total die count</source>
        <translation>Anzahl Dies gesamt</translation>
    </message>
    <message>
        <source>number of single-I/O dummy clocks</source>
        <translation>Dummy-Takte im Single-I/O-Modus</translation>
    </message>
    <message>
        <source>number of quad-I/O dummy clocks</source>
        <translation>Dummy-Takte im Quad-I/O-Modus</translation>
    </message>
    <message>
        <source>template name</source>
        <translation>Vorlagenname</translation>
    </message>
    <message>
        <source>flow template</source>
        <translation>Ablaufvorlage</translation>
    </message>
    <message>
        <source>a whole number from %1 to %2</source>
        <translation>eine ganze Zahl von %1 bis %2</translation>
    </message>
    <message>
        <source>one byte in hexadecimal, such as 0x9F</source>
        <translation>ein Byte hexadezimal, etwa 0x9F</translation>
    </message>
    <message>
        <source>1 to %1 bytes in hexadecimal separated by single spaces, such as 0x00 0x02</source>
        <translation>1 bis %1 Bytes hexadezimal, durch je ein Leerzeichen getrennt, etwa 0x00 0x02</translation>
    </message>
    <message>
        <source>an address of eight hexadecimal digits, such as 0x00010000</source>
        <translation>eine Adresse aus acht Hexadezimalziffern, etwa 0x00010000</translation>
    </message>
    <message>
        <source>%1, or %2</source>
        <translation>%1 oder %2</translation>
    </message>
    <message>
        <source>text of 1 to %1 characters on one line</source>
        <translation>Text von 1 bis %1 Zeichen in einer Zeile</translation>
    </message>
    <message>
        <source>a power of two from 1 to %1</source>
        <translation>eine Zweierpotenz von 1 bis %1</translation>
    </message>
    <message>
        <source>Loop marker</source>
        <translation>Schleifenmarke</translation>
    </message>
    <message>
        <source>There is no action property with the number %1. Allowed: 0 to %2.</source>
        <translation>Es gibt keine Aktionseigenschaft mit der Nummer %1. Erlaubt: 0 bis %2.</translation>
    </message>
    <message>
        <source>An empty value</source>
        <translation>Ein leerer Wert</translation>
    </message>
    <message>
        <source>%1 is not allowed for &quot;%2&quot;. Allowed: %3.</source>
        <translation>%1 ist für „%2“ nicht erlaubt. Erlaubt: %3.</translation>
    </message>
    <message>
        <source>The %1 is empty: 1 to %2 characters are allowed.</source>
        <translation>„%1“ ist leer: 1 bis %2 Zeichen sind erlaubt.</translation>
    </message>
    <message>
        <source>The %1 has characters that cannot be stored.</source>
        <translation>„%1“ hat Zeichen, die nicht gespeichert werden können.</translation>
    </message>
    <message>
        <source>The %1 has %2 characters: 1 to %3 characters are allowed.</source>
        <translation>„%1“ hat %2 Zeichen: 1 bis %3 Zeichen sind erlaubt.</translation>
    </message>
    <message>
        <source>The %1 has a line break or another control character: use letters, digits, punctuation and spaces.</source>
        <translation>„%1“ hat einen Zeilenumbruch oder ein anderes Steuerzeichen: Verwenden Sie Buchstaben, Ziffern, Satzzeichen und Leerzeichen.</translation>
    </message>
    <message>
        <source>The %1 %2 begins or ends with a space: remove it.</source>
        <translation>„%1“ %2 beginnt oder endet mit einem Leerzeichen: Entfernen Sie es.</translation>
    </message>
    <message>
        <source>The %1 %2 is reserved for a new device: choose another.</source>
        <translation>„%1“ %2 ist für einen neuen Baustein reserviert: Wählen Sie einen anderen Namen.</translation>
    </message>
    <message>
        <source>%1 Enter 1 to %2 bytes in hexadecimal, separated by spaces or commas, for example 0xC2 0x20 0x19.</source>
        <translation>%1 Geben Sie 1 bis %2 Bytes hexadezimal ein, durch Leerzeichen oder Kommas getrennt, zum Beispiel 0xC2 0x20 0x19.</translation>
    </message>
    <message>
        <source>The device ID is empty.</source>
        <translation>Die Baustein-ID ist leer.</translation>
    </message>
    <message>
        <source>%1 is not a byte of a device ID.</source>
        <translation>%1 ist kein Byte einer Baustein-ID.</translation>
    </message>
    <message>
        <source>The device ID has %1 bytes.</source>
        <translation>Die Baustein-ID hat %1 Bytes.</translation>
    </message>
    <message>
        <source>The %1 %2 is out of range: %3 to %4 are allowed.</source>
        <translation>„%1“: %2 liegt außerhalb des Bereichs, %3 bis %4 sind erlaubt.</translation>
    </message>
    <message>
        <source>The %1 %2 is not known: choose one of %3.</source>
        <translation>„%1“: %2 ist nicht bekannt. Wählen Sie eines von %3.</translation>
    </message>
    <message>
        <source>The loop that starts at action %1 has no end.</source>
        <translation>Die Schleife, die bei Aktion %1 beginnt, hat kein Ende.</translation>
    </message>
    <message>
        <source>A loop over each %1 cannot be in a loop over each %2. Allowed: a loop over each page or sector in a loop over each die.</source>
        <translation>Eine Schleife über „%1“ kann nicht in einer Schleife über „%2“ stehen. Erlaubt: eine Schleife über „page“ oder „sector“ in einer Schleife über „die“.</translation>
    </message>
    <message>
        <source>The end of a loop has no start before it.</source>
        <translation>Vor dem Ende einer Schleife fehlt ihr Anfang.</translation>
    </message>
    <message>
        <source>The end of a loop over each %1 closes a loop over each %2.</source>
        <translation>Das Ende einer Schleife über „%1“ schließt eine Schleife über „%2“.</translation>
    </message>
    <message>
        <source>The loop over each %1 has no %2 action to determine its step size.</source>
        <translation>Die Schleife über „%1“ hat keine Aktion „%2“, die ihre Schrittweite bestimmt.</translation>
    </message>
    <message>
        <source>One of several erases in a loop has a fixed address. Allowed: loop or die.</source>
        <translation>Eine von mehreren Löschaktionen in einer Schleife hat eine feste Adresse. Erlaubt: loop oder die.</translation>
    </message>
    <message>
        <source>The loop has page sizes of %1 and of %2. Allowed: one page size in a loop.</source>
        <translation>Die Schleife hat Seitengrößen von %1 und von %2. Erlaubt: eine Seitengröße je Schleife.</translation>
    </message>
    <message>
        <source>The erase sizes %1 and %2 do not go together in one loop. Allowed: sizes of which each divides every larger one.</source>
        <translation>Die Löschgrößen %1 und %2 passen nicht in eine Schleife. Erlaubt: Größen, von denen jede alle größeren teilt.</translation>
    </message>
    <message>
        <source>The value &quot;loop&quot; is outside any loop.</source>
        <translation>Der Wert „loop“ steht außerhalb einer Schleife.</translation>
    </message>
    <message>
        <source>The value &quot;die&quot; is outside a loop over each die.</source>
        <translation>Der Wert „die“ steht außerhalb einer Schleife über „die“.</translation>
    </message>
    <message>
        <source>The action has %1 address bytes, an earlier one has %2. Allowed: the same number in all actions of a flow.</source>
        <translation>Die Aktion hat %1 Adressbytes, eine frühere hat %2. Erlaubt: dieselbe Anzahl in allen Aktionen eines Ablaufs.</translation>
    </message>
    <message>
        <source>The flows cannot be read.</source>
        <translation>Die Abläufe können nicht gelesen werden.</translation>
    </message>
    <message>
        <source>The device and its template need different names: both are called %1.</source>
        <translation>Der Baustein und seine Vorlage brauchen verschiedene Namen: Beide heißen %1.</translation>
    </message>
    <message>
        <source>There is no family %1. Allowed: %2 to %3.</source>
        <translation>Die Familie %1 gibt es nicht. Erlaubt: %2 bis %3.</translation>
    </message>
    <message>
        <source>The configuration mode %1 has no flash devices.</source>
        <translation>Der Konfigurationsmodus %1 hat keine Flash-Bausteine.</translation>
    </message>
    <message>
        <source>The %1 %2 is not a usual one. Usual: %3.</source>
        <translation>„%1“: %2 ist nicht üblich. Üblich: %3.</translation>
    </message>
    <message>
        <source>Devices of this configuration mode have no flows: the dialog drops them.</source>
        <translation>Bausteine dieses Konfigurationsmodus haben keine Abläufe: Der Dialog lässt sie weg.</translation>
    </message>
    <message>
        <source>There are no flows.</source>
        <translation>Es gibt keine Abläufe.</translation>
    </message>
    <message>
        <source>There are no flows for this configuration mode.</source>
        <translation>Es gibt keine Abläufe für diesen Konfigurationsmodus.</translation>
    </message>
    <message>
        <source>The value is missing: %1 is stored.</source>
        <translation>Der Wert fehlt: %1 wird gespeichert.</translation>
    </message>
    <message>
        <source>Devices of this configuration mode have no such value: the dialog drops it.</source>
        <translation>Bausteine dieses Konfigurationsmodus haben diesen Wert nicht: Der Dialog lässt ihn weg.</translation>
    </message>
    <message>
        <source>The copy in %1 cannot be compared: %2</source>
        <translation>Die Kopie in %1 kann nicht verglichen werden: %2</translation>
    </message>
    <message>
        <source>The copy in %1 is not the same as %2.</source>
        <translation>Die Kopie in %1 ist nicht gleich %2.</translation>
    </message>
    <message>
        <source>There is nothing to copy in %1.</source>
        <translation>In %1 gibt es nichts zu kopieren.</translation>
    </message>
    <message>
        <source>an unknown day</source>
        <translation>einem unbekannten Tag</translation>
    </message>
    <message>
        <source>an unknown user</source>
        <translation>einem unbekannten Benutzer</translation>
    </message>
    <message>
        <source>The stored template %1 was stored by %2 on %3 since it was looked for here.</source>
        <translation>Die gespeicherte Vorlage %1 wurde von %2 am %3 gespeichert, nachdem hier nach ihr gesucht wurde.</translation>
    </message>
    <message>
        <source>The device %1 was stored by %2 on %3 since it was looked for here.</source>
        <translation>Der Baustein %1 wurde von %2 am %3 gespeichert, nachdem hier nach ihm gesucht wurde.</translation>
    </message>
    <message>
        <source>The stored template %1 was changed by %2 on %3 since it was read here.</source>
        <translation>Die gespeicherte Vorlage %1 wurde von %2 am %3 geändert, nachdem sie hier gelesen wurde.</translation>
    </message>
    <message>
        <source>The device %1 was changed by %2 on %3 since it was read here.</source>
        <translation>Der Baustein %1 wurde von %2 am %3 geändert, nachdem er hier gelesen wurde.</translation>
    </message>
    <message>
        <source>The stored template %1 was deleted by %2 on %3 since it was read here.</source>
        <translation>Die gespeicherte Vorlage %1 wurde von %2 am %3 gelöscht, nachdem sie hier gelesen wurde.</translation>
    </message>
    <message>
        <source>The device %1 was renamed by %2 on %3 since it was read here.</source>
        <translation>Der Baustein %1 wurde von %2 am %3 umbenannt, nachdem er hier gelesen wurde.</translation>
    </message>
    <message>
        <source>The device %1 was deleted by %2 on %3 since it was read here.</source>
        <translation>Der Baustein %1 wurde von %2 am %3 gelöscht, nachdem er hier gelesen wurde.</translation>
    </message>
    <message>
        <source>Try again to store it as a new one.</source>
        <translation>Versuchen Sie es noch einmal, um ihn neu zu speichern.</translation>
    </message>
    <message>
        <source>Look at it again, or try again: then that state goes into the history.</source>
        <translation>Sehen Sie ihn sich noch einmal an, oder versuchen Sie es noch einmal: Dann kommt jener Stand in den Verlauf.</translation>
    </message>
    <message>
        <source>The database in %1 is not empty.</source>
        <translation>Die Datenbank in %1 ist nicht leer.</translation>
    </message>
    <message>
        <source>A stored template called %1 already exists.</source>
        <translation>Es gibt schon eine gespeicherte Vorlage namens %1.</translation>
    </message>
    <message>
        <source>A device called %1 already exists.</source>
        <translation>Es gibt schon einen Baustein namens %1.</translation>
    </message>
    <message>
        <source>There is no state %1 in the history.</source>
        <translation>Im Verlauf gibt es keinen Stand %1.</translation>
    </message>
    <message>
        <source>The database in %1 is another one now.</source>
        <translation>Die Datenbank in %1 ist jetzt eine andere.</translation>
    </message>
    <message>
        <source>It is state %1 of the history.</source>
        <translation>Es ist der Stand %1 des Verlaufs.</translation>
    </message>
    <message>
        <source>The database %1 is not used: %2 is a link or not a regular file. Remove it if you did not put it there.</source>
        <translation>Die Datenbank %1 wird nicht benutzt: %2 ist ein Link oder keine gewöhnliche Datei. Entfernen Sie das, wenn Sie es nicht selbst dort abgelegt haben.</translation>
    </message>
    <message>
        <source>The database %1 is not used: %2 was written by another program, and would change it. Close the database in that program. If the file is still there then, move it to another directory.</source>
        <translation>Die Datenbank %1 wird nicht benutzt: %2 wurde von einem anderen Programm geschrieben und würde sie ändern. Schließen Sie die Datenbank in jenem Programm. Ist die Datei dann noch da, verschieben Sie sie in ein anderes Verzeichnis.</translation>
    </message>
    <message>
        <source>The database %1 is not used: %2 was written by another program for several databases at once, and names a file that would be removed. Open the database in that program, or move the file to another directory.</source>
        <translation>Die Datenbank %1 wird nicht benutzt: %2 wurde von einem anderen Programm für mehrere Datenbanken zugleich geschrieben und nennt eine Datei, die entfernt würde. Öffnen Sie die Datenbank in jenem Programm, oder verschieben Sie die Datei in ein anderes Verzeichnis.</translation>
    </message>
    <message>
        <source>The database %1 is not used: %2 is the journal of another database, or of another state of this one, and would damage it. Move that file to another directory, then try again.</source>
        <translation>Die Datenbank %1 wird nicht benutzt: %2 ist das Journal einer anderen Datenbank oder eines anderen Standes von dieser und würde sie beschädigen. Verschieben Sie diese Datei in ein anderes Verzeichnis, und versuchen Sie es noch einmal.</translation>
    </message>
    <message>
        <source>The database %1 is locked by another program (%2).</source>
        <translation>Die Datenbank %1 ist von einem anderen Programm gesperrt (%2).</translation>
    </message>
    <message>
        <source>The database %1 cannot be written (%2).</source>
        <translation>Die Datenbank %1 kann nicht geschrieben werden (%2).</translation>
    </message>
    <message>
        <source>The database %1 is damaged (%2). It is left as it is.</source>
        <translation>Die Datenbank %1 ist beschädigt (%2). Sie bleibt, wie sie ist.</translation>
    </message>
    <message>
        <source>There is no room for the database %1 (%2).</source>
        <translation>Für die Datenbank %1 ist kein Platz (%2).</translation>
    </message>
    <message>
        <source>The file %1 is not a database (%2). It is left as it is.</source>
        <translation>Die Datei %1 ist keine Datenbank (%2). Sie bleibt, wie sie ist.</translation>
    </message>
    <message>
        <source>The database %1 cannot be used: %2 (%3).</source>
        <translation>Die Datenbank %1 kann nicht benutzt werden: %2 (%3).</translation>
    </message>
    <message>
        <source>The SQLite driver of Qt is not installed.</source>
        <translation>Der SQLite-Treiber von Qt ist nicht installiert.</translation>
    </message>
    <message>
        <source>The database %1 was left in the middle of a change by a program that ended there. It can be read again when someone who can write it has opened it once.</source>
        <translation>Die Datenbank %1 wurde mitten in einer Änderung von einem Programm verlassen, das dabei endete. Sie kann wieder gelesen werden, sobald sie jemand geöffnet hat, der sie schreiben darf.</translation>
    </message>
    <message>
        <source>The database %1 can be read, but not changed: %2.</source>
        <translation>Die Datenbank %1 kann gelesen, aber nicht geändert werden: %2.</translation>
    </message>
    <message>
        <source>The database directory %1 cannot be read: %2.</source>
        <translation>Das Datenbankverzeichnis %1 kann nicht gelesen werden: %2.</translation>
    </message>
    <message>
        <source>The database directory %1 does not exist.</source>
        <translation>Das Datenbankverzeichnis %1 gibt es nicht.</translation>
    </message>
    <message>
        <source>The database directory %1 is not a directory: a part of it is a file.</source>
        <translation>Das Datenbankverzeichnis %1 ist kein Verzeichnis: Ein Teil davon ist eine Datei.</translation>
    </message>
    <message>
        <source>The database directory %1 cannot be reached: %2.</source>
        <translation>Das Datenbankverzeichnis %1 ist nicht erreichbar: %2.</translation>
    </message>
    <message>
        <source>%1 is not a file.</source>
        <translation>%1 ist keine Datei.</translation>
    </message>
    <message>
        <source>The database %1 is empty: its content was lost. It is left as it is; restore a backup copy, or delete it to start over.</source>
        <translation>Die Datenbank %1 ist leer: Ihr Inhalt ging verloren. Sie bleibt, wie sie ist; setzen Sie eine Kopie an ihre Stelle, oder entfernen Sie sie, um neu zu beginnen.</translation>
    </message>
    <message>
        <source>The file %1 is not a database (too short). It is left as it is.</source>
        <translation>Die Datei %1 ist keine Datenbank (zu kurz). Sie bleibt, wie sie ist.</translation>
    </message>
    <message>
        <source>The database %1 cannot be reached: it is a link to %2 (%3). Is the drive or the share that it is on connected?</source>
        <translation>Die Datenbank %1 ist nicht erreichbar: Sie ist ein Link auf %2 (%3). Ist das Laufwerk oder die Freigabe verbunden?</translation>
    </message>
    <message>
        <source>The database %1 cannot be reached (%2). Is the drive or the share that it is on connected?</source>
        <translation>Die Datenbank %1 ist nicht erreichbar (%2). Ist das Laufwerk oder die Freigabe verbunden?</translation>
    </message>
    <message>
        <source>There is no database %1, but %2, which a program left that was writing it. Put the database back, or move that file to another directory to begin with an empty database.</source>
        <translation>Die Datenbank %1 gibt es nicht, wohl aber %2 von einem Programm, das sie gerade schrieb. Bringen Sie die Datenbank zurück, oder verschieben Sie diese Datei in ein anderes Verzeichnis, um mit einer leeren Datenbank zu beginnen.</translation>
    </message>
    <message>
        <source>The database directory %1 holds no database, and none can be created: %2.</source>
        <translation>Das Datenbankverzeichnis %1 enthält keine Datenbank, und es kann keine angelegt werden: %2.</translation>
    </message>
    <message>
        <source>The database %1 is damaged (its end is missing). It is left as it is.</source>
        <translation>Die Datenbank %1 ist beschädigt (ihr Ende fehlt). Sie bleibt, wie sie ist.</translation>
    </message>
    <message>
        <source>The database %1 cannot be created: %2.</source>
        <translation>Die Datenbank %1 kann nicht angelegt werden: %2.</translation>
    </message>
    <message>
        <source>The database %1 was replaced or removed by another program while it was in use. Nothing was changed: look at the devices that are there now, then try again.</source>
        <translation>Die Datenbank %1 wurde von einem anderen Programm ersetzt oder entfernt, während sie benutzt wurde. Nichts wurde geändert: Sehen Sie nach, welche Bausteine jetzt da sind, und versuchen Sie es noch einmal.</translation>
    </message>
    <message>
        <source>%1 Whether the change was stored cannot be read: look at the devices before you try again.</source>
        <translation>%1 Ob die Änderung gespeichert wurde, kann nicht gelesen werden: Sehen Sie sich die Bausteine an, bevor Sie es noch einmal versuchen.</translation>
    </message>
    <message>
        <source>The database %1 was replaced or removed by another program while a change was stored, which is lost: look at the devices that are there now, then try again.</source>
        <translation>Die Datenbank %1 wurde von einem anderen Programm ersetzt oder entfernt, während eine Änderung gespeichert wurde; diese ist verloren: Sehen Sie nach, welche Bausteine jetzt da sind, und versuchen Sie es noch einmal.</translation>
    </message>
    <message>
        <source>The database %1 was altered by another program: its texts are %2, not UTF-8. It is left as it is.</source>
        <translation>Die Datenbank %1 wurde von einem anderen Programm verändert: Ihre Texte sind %2, nicht UTF-8. Sie bleibt, wie sie ist.</translation>
    </message>
    <message>
        <source>The file %1 is a database of another program. It is left as it is.</source>
        <translation>Die Datei %1 ist eine Datenbank eines anderen Programms. Sie bleibt, wie sie ist.</translation>
    </message>
    <message>
        <source>The database %1 was written by a newer program (its schema is %2, this program knows up to %3). It is left as it is.</source>
        <translation>Die Datenbank %1 wurde von einem neueren Programm geschrieben (ihr Schema ist %2, dieses Programm kennt bis %3). Sie bleibt, wie sie ist.</translation>
    </message>
    <message>
        <source>The database %1 was altered by another program: its tables are not those of schema %2. It is left as it is.</source>
        <translation>Die Datenbank %1 wurde von einem anderen Programm verändert: Ihre Tabellen sind nicht die des Schemas %2. Sie bleibt, wie sie ist.</translation>
    </message>
    <message>
        <source>The database in %1 is damaged: %2</source>
        <translation>Die Datenbank in %1 ist beschädigt: %2</translation>
    </message>
    <message>
        <source>The database server %1 did not answer in time.</source>
        <translation>Der Datenbankserver %1 hat nicht rechtzeitig geantwortet.</translation>
    </message>
    <message>
        <source>The database server %1 cannot be reached: %2.</source>
        <translation>Der Datenbankserver %1 ist nicht erreichbar: %2.</translation>
    </message>
    <message>
        <source>The database server %1 refused: %2.</source>
        <translation>Der Datenbankserver %1 hat abgelehnt: %2.</translation>
    </message>
    <message>
        <source>The database %1 on the server %2 does not allow that to the login %3: its administrator can grant the role %4 or %5.</source>
        <translation>Die Datenbank %1 auf dem Server %2 erlaubt das der Anmeldung %3 nicht: Ihr Administrator kann die Rolle %4 oder %5 gewähren.</translation>
    </message>
    <message>
        <source>The database %1 on the server %2 has no schema %3 for devices: its administrator can make it with &quot;gfpdb server sql&quot;.</source>
        <translation>Die Datenbank %1 auf dem Server %2 hat kein Schema %3 für Bausteine: Ihr Administrator kann es mit „gfpdb server sql“ anlegen.</translation>
    </message>
    <message>
        <source>There is no room for the change on the server %1.</source>
        <translation>Auf dem Server %1 ist kein Platz für die Änderung.</translation>
    </message>
    <message>
        <source>The database %1 on the server %2 is locked by another program.</source>
        <translation>Die Datenbank %1 auf dem Server %2 ist von einem anderen Programm gesperrt.</translation>
    </message>
    <message>
        <source>The database %1 on the server %2 is changed by too many programs now: try again.</source>
        <translation>Die Datenbank %1 auf dem Server %2 wird gerade von zu vielen Programmen geändert: Versuchen Sie es noch einmal.</translation>
    </message>
    <message>
        <source>The directory %1 has the database %2 and names a server in %3. Move the database to another directory, and copy its records from there to the server with &quot;gfpdb copy&quot;.</source>
        <translation>Das Verzeichnis %1 hat die Datenbank %2 und nennt in %3 einen Server. Verschieben Sie die Datenbank in ein anderes Verzeichnis, und kopieren Sie ihre Datensätze von dort mit „gfpdb copy“ auf den Server.</translation>
    </message>
    <message>
        <source>The database %1 on the server %2 cannot be read by the login %3: its administrator can grant the role %4.</source>
        <translation>Die Datenbank %1 auf dem Server %2 kann von der Anmeldung %3 nicht gelesen werden: Ihr Administrator kann die Rolle %4 gewähren.</translation>
    </message>
    <message>
        <source>The database %1 on the server %2 can be read, but not changed: the server takes no changes now.</source>
        <translation>Die Datenbank %1 auf dem Server %2 kann gelesen, aber nicht geändert werden: Der Server nimmt zurzeit keine Änderungen an.</translation>
    </message>
    <message>
        <source>The database %1 on the server %2 can be read, but not changed: the login %3 has not the role %4.</source>
        <translation>Die Datenbank %1 auf dem Server %2 kann gelesen, aber nicht geändert werden: Die Anmeldung %3 hat die Rolle %4 nicht.</translation>
    </message>
    <message>
        <source>The database %1 on the server %2 was written by a newer program (schema %3). It is left as it is.</source>
        <translation>Die Datenbank %1 auf dem Server %2 wurde von einem neueren Programm geschrieben (Schema %3). Sie bleibt, wie sie ist.</translation>
    </message>
    <message>
        <source>The database %1 on the server %2 is a database of another program. It is left as it is.</source>
        <translation>Die Datenbank %1 auf dem Server %2 ist eine Datenbank eines anderen Programms. Sie bleibt, wie sie ist.</translation>
    </message>
    <message>
        <source>The database %1 on the server %2 was written by an older program (schema %3): it can be used when someone with the role %4 has opened it once.</source>
        <translation>Die Datenbank %1 auf dem Server %2 wurde von einem älteren Programm geschrieben (Schema %3): Sie kann benutzt werden, sobald jemand mit der Rolle %4 sie einmal geöffnet hat.</translation>
    </message>
    <message>
        <source>The file %1 names a server since the directory was opened: open it again.</source>
        <translation>Die Datei %1 nennt einen Server, seit das Verzeichnis geöffnet wurde: Öffnen Sie es noch einmal.</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Name</translation>
    </message>
    <message>
        <source>ID</source>
        <translation>ID</translation>
    </message>
    <message>
        <source>Maker</source>
        <translation>Hersteller</translation>
    </message>
    <message>
        <source>Density</source>
        <translation>Speicherkapazität</translation>
    </message>
    <message>
        <source>Dies</source>
        <translation>Dies</translation>
    </message>
    <message>
        <source>Dies are selected by C2</source>
        <translation>Dies-Auswahl mit C2</translation>
    </message>
    <message>
        <source>Page size (bytes)</source>
        <translation>Seitengröße (Byte)</translation>
    </message>
    <message>
        <source>Address bytes</source>
        <translation>Adressbytes</translation>
    </message>
    <message>
        <source>4-byte addressing, enter</source>
        <translation>4-Byte-Adressierung, einschalten</translation>
    </message>
    <message>
        <source>4-byte addressing, leave</source>
        <translation>4-Byte-Adressierung, ausschalten</translation>
    </message>
    <message>
        <source>4-byte addressing, register and bit</source>
        <translation>4-Byte-Adressierung, Register und Bit</translation>
    </message>
    <message>
        <source>Quad enable</source>
        <translation>Quad-Freigabe</translation>
    </message>
    <message>
        <source>Unlock blocks</source>
        <translation>Blöcke entsperren</translation>
    </message>
    <message>
        <source>Reset</source>
        <translation>Reset</translation>
    </message>
    <message>
        <source>Busy is read by</source>
        <translation>Busy wird gelesen mit</translation>
    </message>
    <message>
        <source>Dummy clocks, single</source>
        <translation>Dummy-Takte, Single</translation>
    </message>
    <message>
        <source>Quad read</source>
        <translation>Quad-Lesen</translation>
    </message>
    <message>
        <source>Dummy clocks, quad</source>
        <translation>Dummy-Takte, Quad</translation>
    </message>
    <message>
        <source>Quad program</source>
        <translation>Quad-Programmieren</translation>
    </message>
    <message>
        <source>Page program, longest wait (us)</source>
        <translation>Seite programmieren, längste Wartezeit (us)</translation>
    </message>
    <message>
        <source>Erase, longest wait (ms)</source>
        <translation>Löschen, längste Wartezeit (ms)</translation>
    </message>
    <message>
        <source>from the ID</source>
        <translation>aus der ID</translation>
    </message>
    <message>
        <source>from the density</source>
        <translation>aus der Kapazität</translation>
    </message>
    <message>
        <source>assumed</source>
        <translation>angenommen</translation>
    </message>
    <message>
        <source>entered</source>
        <translation>eingegeben</translation>
    </message>
    <message>
        <source>The command is on four lines, but the single-I/O flow has one.</source>
        <translation>Der Befehl benutzt vier Leitungen, der Single-I/O-Ablauf hat aber nur eine.</translation>
    </message>
    <message>
        <source>The image is compared with a mask: its bytes with bits that the mask clears never match.</source>
        <translation>Das Image wird mit einer Maske verglichen: Bytes mit Bits, die die Maske löscht, stimmen nie überein.</translation>
    </message>
    <message>
        <source>The expected data have bits that the mask clears: they never match.</source>
        <translation>Die erwarteten Daten haben Bits, die die Maske löscht: Sie stimmen nie überein.</translation>
    </message>
    <message>
        <source>The mask has no bit: whatever is read matches.</source>
        <translation>Die Maske hat kein Bit: Alles, was gelesen wird, stimmt überein.</translation>
    </message>
    <message>
        <source>The page size is %1, but the part has pages of %2 bytes: what is beyond the end of a page overwrites its start.</source>
        <translation>Die Seitengröße ist %1, der Baustein hat aber Seiten mit %2 Bytes: Was über das Ende einer Seite hinausgeht, überschreibt ihren Anfang.</translation>
    </message>
    <message>
        <source>The page size is %1, but the part has pages of %2 bytes: programming takes longer than necessary.</source>
        <translation>Die Seitengröße ist %1, der Baustein hat aber Seiten mit %2 Bytes: Das Programmieren dauert länger als nötig.</translation>
    </message>
    <message>
        <source>Data are changed in an operation that is also executed when the user asked for neither Program nor Erase.</source>
        <translation>Daten werden in einem Vorgang geändert, der auch ausgeführt wird, wenn der Benutzer weder Program noch Erase verlangt hat.</translation>
    </message>
    <message>
        <source>Three address bytes reach %1 bytes, but the action works on %2.</source>
        <translation>Drei Adressbytes reichen für %1 Bytes, die Aktion umfasst aber %2.</translation>
    </message>
    <message>
        <source>The command does not have the bus width %1. Allowed: %2.</source>
        <translation>Diesen Befehl gibt es nicht mit der Busbreite %1. Erlaubt: %2.</translation>
    </message>
    <message>
        <source>This is a command that programs.</source>
        <translation>Das ist ein Befehl, der programmiert.</translation>
    </message>
    <message>
        <source>This is a command that reads data.</source>
        <translation>Das ist ein Befehl, der Daten liest.</translation>
    </message>
    <message>
        <source>This is a command that erases.</source>
        <translation>Das ist ein Befehl, der löscht.</translation>
    </message>
    <message>
        <source>The command has no dummy clocks.</source>
        <translation>Der Befehl hat keine Dummy-Takte.</translation>
    </message>
    <message>
        <source>The command has two dummy clocks at least, its mode clocks.</source>
        <translation>Der Befehl hat mindestens zwei Dummy-Takte, seine Modus-Takte.</translation>
    </message>
    <message>
        <source>Nothing in the loop depends on its step: every step does the same.</source>
        <translation>Nichts in der Schleife hängt von ihrem Schritt ab: Jeder Schritt tut dasselbe.</translation>
    </message>
    <message>
        <source>The device has one die: the loop has one step.</source>
        <translation>Der Baustein hat einen Die: Die Schleife hat einen Schritt.</translation>
    </message>
    <message>
        <source>There is no ID check: the flow changes whatever chip is connected.</source>
        <translation>Die ID wird nicht geprüft: Der Ablauf ändert jeden Baustein, der angeschlossen ist.</translation>
    </message>
    <message>
        <source>The chip is changed before its ID is checked.</source>
        <translation>Der Baustein wird geändert, bevor seine ID geprüft ist.</translation>
    </message>
    <message>
        <source>4-byte addressing is entered here, and Termination does not leave it.</source>
        <translation>Hier wird die 4-Byte-Adressierung eingeschaltet, und Termination schaltet sie nicht aus.</translation>
    </message>
    <message>
        <source>No command uses this write enable.</source>
        <translation>Kein Befehl benutzt diese Schreibfreigabe.</translation>
    </message>
    <message>
        <source>The chip is in deep power-down and ignores the command.</source>
        <translation>Der Baustein ist im Deep-Power-Down und ignoriert den Befehl.</translation>
    </message>
    <message>
        <source>The command follows the reset that brings the chip to its end.</source>
        <translation>Der Befehl kommt nach dem Reset, der den Baustein in den Endzustand bringt.</translation>
    </message>
    <message>
        <source>The command is on four lines, and nothing before it sets or checks the quad-enable bit.</source>
        <translation>Der Befehl benutzt vier Leitungen, und nichts davor setzt oder prüft das Quad-Enable-Bit.</translation>
    </message>
    <message>
        <source>%1 us are waited for instead of asking whether the chip is ready.</source>
        <translation>Es wird %1 µs gewartet, statt zu fragen, ob der Baustein bereit ist.</translation>
    </message>
    <message>
        <source>Nothing waits until the chip is ready: it ignores the commands that follow.</source>
        <translation>Nichts wartet, bis der Baustein bereit ist: Er ignoriert die folgenden Befehle.</translation>
    </message>
    <message>
        <source>There is no write enable before it: the chip ignores the command.</source>
        <translation>Davor fehlt die Schreibfreigabe: Der Baustein ignoriert den Befehl.</translation>
    </message>
    <message>
        <source>The command has no address, but the action sends one.</source>
        <translation>Der Befehl hat keine Adresse, die Aktion sendet aber eine.</translation>
    </message>
    <message>
        <source>The command has an address, but the action sends none.</source>
        <translation>Der Befehl hat eine Adresse, die Aktion sendet aber keine.</translation>
    </message>
    <message>
        <source>The command always has four address bytes, but the action sends three.</source>
        <translation>Der Befehl hat immer vier Adressbytes, die Aktion sendet aber drei.</translation>
    </message>
    <message>
        <source>The action sends four address bytes, but nothing before it enters 4-byte addressing.</source>
        <translation>Die Aktion sendet vier Adressbytes, aber nichts davor schaltet die 4-Byte-Adressierung ein.</translation>
    </message>
    <message>
        <source>The action sends three address bytes, but 4-byte addressing was entered before.</source>
        <translation>Die Aktion sendet drei Adressbytes, davor wurde aber die 4-Byte-Adressierung eingeschaltet.</translation>
    </message>
    <message>
        <source>Template name</source>
        <translation>Vorlagenname</translation>
    </message>
    <message>
        <source>Flow template</source>
        <translation>Ablaufvorlage</translation>
    </message>
    <message>
        <source>an unpaired surrogate is not a character</source>
        <translation>ein einzelnes Surrogat ist kein Zeichen</translation>
    </message>
    <message>
        <source>the name %1 occurs twice</source>
        <translation>der Name %1 kommt zweimal vor</translation>
    </message>
    <message>
        <source>values are nested too deeply</source>
        <translation>Werte sind zu tief verschachtelt</translation>
    </message>
    <message>
        <source>there is text after the end</source>
        <translation>nach dem Ende steht noch Text</translation>
    </message>
    <message>
        <source>an object needs a name in double quotes here</source>
        <translation>hier braucht ein Objekt einen Namen in Anführungszeichen</translation>
    </message>
    <message>
        <source>&quot;:&quot; is missing after %1</source>
        <translation>nach %1 fehlt „:“</translation>
    </message>
    <message>
        <source>an object needs &quot;,&quot; or &quot;}&quot; here</source>
        <translation>hier braucht ein Objekt „,“ oder „}“</translation>
    </message>
    <message>
        <source>a list needs &quot;,&quot; or &quot;]&quot; here</source>
        <translation>hier braucht eine Liste „,“ oder „]“</translation>
    </message>
    <message>
        <source>\u needs four hexadecimal digits</source>
        <translation>\u braucht vier Hexadezimalziffern</translation>
    </message>
    <message>
        <source>a string is not terminated</source>
        <translation>eine Zeichenkette ist nicht abgeschlossen</translation>
    </message>
    <message>
        <source>there is no such escape</source>
        <translation>diese Escape-Folge gibt es nicht</translation>
    </message>
    <message>
        <source>a string has a control character or a line break in it</source>
        <translation>eine Zeichenkette enthält ein Steuerzeichen oder einen Zeilenumbruch</translation>
    </message>
    <message>
        <source>a string is not UTF-8</source>
        <translation>eine Zeichenkette ist nicht UTF-8</translation>
    </message>
    <message>
        <source>a number is too large</source>
        <translation>eine Zahl ist zu groß</translation>
    </message>
    <message>
        <source>a value was expected</source>
        <translation>ein Wert wurde erwartet</translation>
    </message>
    <message>
        <source>true or false</source>
        <translation>true oder false</translation>
    </message>
    <message>
        <source>a number</source>
        <translation>eine Zahl</translation>
    </message>
    <message>
        <source>a string</source>
        <translation>eine Zeichenkette</translation>
    </message>
    <message>
        <source>a list</source>
        <translation>eine Liste</translation>
    </message>
    <message>
        <source>an object</source>
        <translation>ein Objekt</translation>
    </message>
    <message>
        <source>A string was expected, but this is %1.</source>
        <translation>Eine Zeichenkette wurde erwartet, aber dies ist: %1.</translation>
    </message>
    <message>
        <source>A list was expected, but this is %1.</source>
        <translation>Eine Liste wurde erwartet, aber dies ist: %1.</translation>
    </message>
    <message>
        <source>An object was expected, but this is %1.</source>
        <translation>Ein Objekt wurde erwartet, aber dies ist: %1.</translation>
    </message>
    <message>
        <source>%1 is not known here. Allowed: %2.</source>
        <translation>%1 ist hier nicht bekannt. Erlaubt: %2.</translation>
    </message>
    <message>
        <source>%1 is missing.</source>
        <translation>%1 fehlt.</translation>
    </message>
    <message>
        <source>The catalogue %1 cannot be read: %2.</source>
        <translation>Der Katalog %1 kann nicht gelesen werden: %2.</translation>
    </message>
    <message>
        <source>device %1: %2</source>
        <translation>Baustein %1: %2</translation>
    </message>
    <message>
        <source>stored template %1: %2</source>
        <translation>gespeicherte Vorlage %1: %2</translation>
    </message>
    <message>
        <source>The device %1 is already in %2.</source>
        <translation>Der Baustein %1 ist schon in %2.</translation>
    </message>
    <message>
        <source>The stored template %1 is already in %2.</source>
        <translation>Die gespeicherte Vorlage %1 ist schon in %2.</translation>
    </message>
    <message>
        <source>The device %1 exists with different content: --replace replaces it.</source>
        <translation>Den Baustein %1 gibt es mit anderem Inhalt: --replace ersetzt ihn.</translation>
    </message>
    <message>
        <source>The stored template %1 exists with different content: --replace replaces it.</source>
        <translation>Die gespeicherte Vorlage %1 gibt es mit anderem Inhalt: --replace ersetzt sie.</translation>
    </message>
    <message>
        <source>The name of the device %1 is that of a stored template.</source>
        <translation>Der Name des Bausteins %1 ist der einer gespeicherten Vorlage.</translation>
    </message>
    <message>
        <source>The name of the stored template %1 is that of a device.</source>
        <translation>Der Name der gespeicherten Vorlage %1 ist der eines Bausteins.</translation>
    </message>
    <message>
        <source>The column is missing.</source>
        <translation>Die Spalte fehlt.</translation>
    </message>
    <message>
        <source>The column is not known. Allowed: %1.</source>
        <translation>Die Spalte ist nicht bekannt. Erlaubt: %1.</translation>
    </message>
    <message>
        <source>The column occurs twice.</source>
        <translation>Die Spalte kommt zweimal vor.</translation>
    </message>
    <message>
        <source>A quote that opens in this row is never closed.</source>
        <translation>Ein Anführungszeichen, das in dieser Zeile öffnet, wird nie geschlossen.</translation>
    </message>
    <message>
        <source>The row has 1 cell, the line of column names has %1.</source>
        <translation>Die Zeile hat 1 Zelle, die Zeile der Spaltennamen hat %1.</translation>
    </message>
    <message>
        <source>The row has %1 cells, the line of column names has %2.</source>
        <translation>Die Zeile hat %1 Zellen, die Zeile der Spaltennamen hat %2.</translation>
    </message>
    <message>
        <source>The file cannot be read: %1.</source>
        <translation>Die Datei kann nicht gelesen werden: %1.</translation>
    </message>
    <message>
        <source>This is not valid JSON: %1.</source>
        <translation>Dies ist kein gültiges JSON: %1.</translation>
    </message>
    <message>
        <source>This is not a file of records. Allowed: %1.</source>
        <translation>Dies ist keine Datei mit Datensätzen. Erlaubt: %1.</translation>
    </message>
    <message>
        <source>This version of the format is not known. Allowed: %1.</source>
        <translation>Diese Version des Formats ist nicht bekannt. Erlaubt: %1.</translation>
    </message>
    <message>
        <source>The text is not UTF-8.</source>
        <translation>Der Text ist nicht UTF-8.</translation>
    </message>
    <message>
        <source>A whole number or null was expected, but this is %1.</source>
        <translation>Eine ganze Zahl oder null wurde erwartet, aber dies ist: %1.</translation>
    </message>
    <message>
        <source>device family</source>
        <translation>Bausteinfamilie</translation>
    </message>
    <message>
        <source>configuration mode</source>
        <translation>Konfigurationsmodus</translation>
    </message>
    <message>
        <source>single-I/O flow</source>
        <translation>Single-I/O-Ablauf</translation>
    </message>
    <message>
        <source>quad-I/O flow</source>
        <translation>Quad-I/O-Ablauf</translation>
    </message>
    <message>
        <source>This operation occurs twice.</source>
        <translation>Diese Operation kommt zweimal vor.</translation>
    </message>
    <message>
        <source>There is no such operation. Allowed: %1.</source>
        <translation>Diese Operation gibt es nicht. Erlaubt: %1.</translation>
    </message>
    <message>
        <source>There is no such action. Allowed: %1.</source>
        <translation>Diese Aktion gibt es nicht. Erlaubt: %1.</translation>
    </message>
    <message>
        <source>The flows of %1 cannot be read.</source>
        <translation>Die Abläufe von %1 können nicht gelesen werden.</translation>
    </message>
    <message>
        <source>A device has at most %1 single-I/O dummy clocks: the copy gets these, and its flow has the %2 of %3.</source>
        <translation>Ein Baustein hat höchstens %1 Single-I/O-Dummy-Takte: Die Kopie bekommt diese, und ihr Ablauf hat die %2 von %3.</translation>
    </message>
    <message>
        <source>The configuration mode %1 has no serial flash devices.</source>
        <translation>Der Konfigurationsmodus %1 hat keine seriellen Flash-Bausteine.</translation>
    </message>
    <message>
        <source>page size</source>
        <translation>Seitengröße</translation>
    </message>
    <message>
        <source>quad-I/O dummy clocks</source>
        <translation>Quad-I/O-Dummy-Takte</translation>
    </message>
    <message>
        <source>%1: %2 in the list, %3 by %4</source>
        <translation>%1: %2 in der Liste, %3 laut %4</translation>
    </message>
    <message>
        <source>address bytes</source>
        <translation>Adressbytes</translation>
    </message>
    <message>
        <source>%1 or %2</source>
        <translation>%1 oder %2</translation>
    </message>
    <message>
        <source>erase by %1</source>
        <translation>Löschen mit %1</translation>
    </message>
    <message>
        <source>not</source>
        <translation>nicht</translation>
    </message>
    <message>
        <source>%1 bytes</source>
        <translation>%1 Byte</translation>
    </message>
    <message>
        <source>none</source>
        <translation>keine</translation>
    </message>
    <message>
        <source>reserved</source>
        <translation>reserviert</translation>
    </message>
    <message>
        <source>quad enable</source>
        <translation>Quad-Freigabe</translation>
    </message>
    <message>
        <source>basic table: %1 double words in read-outs of this part, %2 here</source>
        <translation>Basistabelle: %1 Doppelwörter in ausgelesenen Daten dieses Bausteins, hier %2</translation>
    </message>
    <message>
        <source>4-4-4 read: in read-outs of this part, but not here</source>
        <translation>4-4-4-Lesen: in ausgelesenen Daten dieses Bausteins, aber nicht hier</translation>
    </message>
    <message>
        <source>%1 is not a number.</source>
        <translation>%1 ist keine Zahl.</translation>
    </message>
    <message>
        <source>%1 is out of range: %2 to %3 are allowed.</source>
        <translation>%1 liegt außerhalb des Bereichs: %2 bis %3 sind erlaubt.</translation>
    </message>
    <message>
        <source>%1 is more than 32Gb.</source>
        <translation>%1 ist mehr als 32Gb.</translation>
    </message>
    <message>
        <source>%1 is not a density such as 128Mb.</source>
        <translation>%1 ist keine Speicherkapazität wie 128Mb.</translation>
    </message>
    <message>
        <source>%1 is neither an erase command such as %2 nor %3.</source>
        <translation>%1 ist weder ein Löschbefehl wie %2 noch %3.</translation>
    </message>
    <message>
        <source>%1 is not a power of two.</source>
        <translation>%1 ist keine Zweierpotenz.</translation>
    </message>
    <message>
        <source>There is no value %1.</source>
        <translation>Den Wert %1 gibt es nicht.</translation>
    </message>
    <message>
        <source>The value %1 is missing: enter it.</source>
        <translation>Der Wert %1 fehlt: Geben Sie ihn ein.</translation>
    </message>
    <message>
        <source>The number of dies, %1, does not divide the density.</source>
        <translation>Die Anzahl der Dies, %1, teilt die Speicherkapazität nicht.</translation>
    </message>
    <message>
        <source>The erase command %1 does not divide the density.</source>
        <translation>Der Löschbefehl %1 teilt die Speicherkapazität nicht.</translation>
    </message>
    <message>
        <source>The density %1 (%2) is not what the ID usually stands for, which is %3.</source>
        <translation>Die Speicherkapazität %1 (%2) ist nicht die, für die die ID gewöhnlich steht: %3.</translation>
    </message>
    <message>
        <source>SFDP DW2 says a density that no device can have: %1.</source>
        <translation>SFDP DW2 nennt eine Speicherkapazität, die kein Baustein haben kann: %1.</translation>
    </message>
    <message>
        <source>A device has at most %1 single-I/O dummy clocks: it gets these, and its flow has %2.</source>
        <translation>Ein Baustein hat höchstens %1 Single-I/O-Dummy-Takte: Er bekommt diese, und sein Ablauf hat %2.</translation>
    </message>
    <message>
        <source>The chip has a table of the maker %1, and its ID is of the maker %2.</source>
        <translation>Der Chip hat eine Tabelle des Herstellers %1, und seine ID ist vom Hersteller %2.</translation>
    </message>
    <message>
        <source>No listed part tells what the maker&apos;s parts have in common: usual commands are assumed.</source>
        <translation>Kein gelisteter Baustein sagt, was die Bausteine des Herstellers gemeinsam haben: Übliche Befehle werden angenommen.</translation>
    </message>
    <message>
        <source>Several listed parts have this ID: %1.</source>
        <translation>Mehrere gelistete Bausteine haben diese ID: %1.</translation>
    </message>
    <message>
        <source>The commands have four address bytes, and nothing enters 4-byte addressing.</source>
        <translation>Die Befehle haben vier Adressbytes, und nichts schaltet die 4-Byte-Adressierung ein.</translation>
    </message>
    <message>
        <source>The commands have three address bytes, and the device is in 4-byte addressing.</source>
        <translation>Die Befehle haben drei Adressbytes, und der Baustein ist in 4-Byte-Adressierung.</translation>
    </message>
    <message>
        <source>Three address bytes do not reach all of %1.</source>
        <translation>Drei Adressbytes erreichen nicht alles von %1.</translation>
    </message>
    <message>
        <source>SFDP DW1 lists three address bytes alone, which do not reach all of %1: four are taken.</source>
        <translation>SFDP DW1 nennt nur drei Adressbytes, die nicht alles von %1 erreichen: Vier werden genommen.</translation>
    </message>
    <message>
        <source>SFDP DW16 lists every way into 4-byte addressing, and SFDP DW1 three address bytes: DW16 is ignored.</source>
        <translation>SFDP DW16 nennt jeden Weg in die 4-Byte-Adressierung, und SFDP DW1 drei Adressbytes: DW16 wird nicht beachtet.</translation>
    </message>
    <message>
        <source>SFDP DW16 lists no way into 4-byte addressing that a flow can take: %1 is taken.</source>
        <translation>SFDP DW16 nennt keinen Weg in die 4-Byte-Adressierung, den ein Ablauf nehmen kann: %1 wird genommen.</translation>
    </message>
    <message>
        <source>SFDP has no page size: %1 is taken (%2).</source>
        <translation>SFDP hat keine Seitengröße: %1 wird genommen (%2).</translation>
    </message>
    <message>
        <source>SFDP DW11 has a page size that no flow can have: %1 is taken (%2).</source>
        <translation>SFDP DW11 hat eine Seitengröße, die kein Ablauf haben kann: %1 wird genommen (%2).</translation>
    </message>
    <message>
        <source>SFDP DW15 says with a reserved value how quad is enabled: look it up and enter it.</source>
        <translation>SFDP DW15 sagt mit einem reservierten Wert, wie Quad freigegeben wird: Sehen Sie nach und geben Sie es ein.</translation>
    </message>
    <message>
        <source>SFDP does not say how quad is enabled: %1 is taken (%2).</source>
        <translation>SFDP sagt nicht, wie Quad freigegeben wird: %1 wird genommen (%2).</translation>
    </message>
    <message>
        <source>SFDP lists no read on four lines: the quad-I/O flow uses one.</source>
        <translation>SFDP nennt kein Lesen über vier Leitungen: Der Quad-I/O-Ablauf verwendet eines.</translation>
    </message>
    <message>
        <source>No erase command serves the whole part: the chip is erased at once.</source>
        <translation>Kein Löschbefehl gilt für den ganzen Baustein: Der Chip wird auf einmal gelöscht.</translation>
    </message>
    <message>
        <source>The four bytes of each double word are in reverse order.</source>
        <translation>Die vier Bytes jedes Doppelworts sind in umgekehrter Reihenfolge.</translation>
    </message>
    <message>
        <source>The bytes do not begin with the signature &quot;SFDP&quot;.</source>
        <translation>Die Bytes beginnen nicht mit der Signatur „SFDP“.</translation>
    </message>
    <message>
        <source>The signature &quot;SFDP&quot; is at %1 and not at the start: bytes were added before it.</source>
        <translation>Die Signatur „SFDP“ ist bei %1 und nicht am Anfang: Davor wurden Bytes eingefügt.</translation>
    </message>
    <message>
        <source>The read-out ends within the SFDP header.</source>
        <translation>Die ausgelesenen Daten enden mitten im SFDP-Kopf.</translation>
    </message>
    <message>
        <source>SFDP revision %1 is unknown: revisions 1.x can be read.</source>
        <translation>Die SFDP-Revision %1 ist unbekannt: Revisionen 1.x können gelesen werden.</translation>
    </message>
    <message>
        <source>%1 has the unknown revision %2: it is not read.</source>
        <translation>Unbekannte Revision %2 dieser Tabelle, die nicht gelesen wird: %1.</translation>
    </message>
    <message>
        <source>There are %1 headers of %2: the one of revision %3 is taken.</source>
        <translation>Köpfe dieser Tabelle (%2): %1. Der von Revision %3 wird genommen.</translation>
    </message>
    <message>
        <source>The read-out ends within the parameter headers: %1 of %2 are there.</source>
        <translation>Die ausgelesenen Daten enden mitten in den Parameterköpfen: %1 von %2 sind da.</translation>
    </message>
    <message>
        <source>A table begins at %1: there is room for %2 parameter headers, not for %3.</source>
        <translation>Eine Tabelle beginnt bei %1: Es ist Platz für %2 Parameterköpfe, nicht für %3.</translation>
    </message>
    <message>
        <source>The parameter header at %1 is blank.</source>
        <translation>Der Parameterkopf bei %1 ist leer.</translation>
    </message>
    <message>
        <source>%1 begins at %2, within the headers: it is not read.</source>
        <translation>Diese Tabelle beginnt bei %2, innerhalb der Köpfe, und wird nicht gelesen: %1.</translation>
    </message>
    <message>
        <source>%1 is empty.</source>
        <translation>Diese Tabelle ist leer: %1.</translation>
    </message>
    <message>
        <source>%1 is not in the read-out: it begins at %2, and the read-out ends at %3.</source>
        <translation>Diese Tabelle ist nicht in den ausgelesenen Daten: %1. Sie beginnt bei %2, und die Daten enden bei %3.</translation>
    </message>
    <message>
        <source>The read-out ends within %1: %2 of %3 double words are there.</source>
        <translation>Die ausgelesenen Daten enden mitten in dieser Tabelle: %1. %2 von %3 Doppelwörtern sind da.</translation>
    </message>
    <message>
        <source>%1 begins at %2, which is not a multiple of 4.</source>
        <translation>Diese Tabelle beginnt bei %2, was kein Vielfaches von 4 ist: %1.</translation>
    </message>
    <message>
        <source>%1 and %2 overlap.</source>
        <translation>Diese Tabellen überlappen sich: %1, %2.</translation>
    </message>
    <message>
        <source>The bytes at %1 are in no table: they are not read.</source>
        <translation>Die Bytes bei %1 sind in keiner Tabelle: Sie werden nicht gelesen.</translation>
    </message>
    <message>
        <source>There is no basic table.</source>
        <translation>Es gibt keine Basistabelle.</translation>
    </message>
    <message>
        <source>The basic table is blank.</source>
        <translation>Die Basistabelle ist leer.</translation>
    </message>
    <message>
        <source>The basic table has %1 double words: %2 belong to its revision %3.</source>
        <translation>Die Basistabelle hat %1 Doppelwörter: Zu ihrer Revision %3 gehören %2.</translation>
    </message>
    <message>
        <source>SFDP DW%1 has zeros where every part has ones: bytes may be missing or shifted.</source>
        <translation>SFDP DW%1 hat Nullen, wo jeder Baustein Einsen hat: Bytes können fehlen oder verschoben sein.</translation>
    </message>
    <message>
        <source>SFDP DW2 says no density that a part can have: %1.</source>
        <translation>SFDP DW2 nennt keine Speicherkapazität, die ein Baustein haben kann: %1.</translation>
    </message>
    <message>
        <source>SFDP DW1 says with a reserved value how many address bytes there are.</source>
        <translation>SFDP DW1 sagt mit einem reservierten Wert, wie viele Adressbytes es gibt.</translation>
    </message>
    <message>
        <source>SFDP DW%1 lists the %2 read, and DW%3 has no command for it.</source>
        <translation>SFDP DW%1 nennt das %2-Lesen, und DW%3 hat keinen Befehl dafür.</translation>
    </message>
    <message>
        <source>SFDP DW%1: erase type %2 has no command: it is left out.</source>
        <translation>SFDP DW%1: Löschtyp %2 hat keinen Befehl: Er wird ausgelassen.</translation>
    </message>
    <message>
        <source>SFDP DW%1: erase type %2 erases 2^%3 bytes, which is too much: it is left out.</source>
        <translation>SFDP DW%1: Löschtyp %2 löscht 2^%3 Byte, was zu viel ist: Er wird ausgelassen.</translation>
    </message>
    <message>
        <source>SFDP DW1 erases 4 KiB by %1, which no erase type does.</source>
        <translation>SFDP DW1 löscht 4 KiB mit %1, was kein Löschtyp tut.</translation>
    </message>
    <message>
        <source>The table of 4-byte instructions is blank.</source>
        <translation>Die Tabelle der 4-Byte-Befehle ist leer.</translation>
    </message>
    <message>
        <source>The table of 4-byte instructions has no erase commands.</source>
        <translation>Die Tabelle der 4-Byte-Befehle hat keine Löschbefehle.</translation>
    </message>
    <message>
        <source>The table of 4-byte instructions lists erase type %1, which the basic table does not have.</source>
        <translation>Die Tabelle der 4-Byte-Befehle nennt den Löschtyp %1, den die Basistabelle nicht hat.</translation>
    </message>
    <message>
        <source>The table of 4-byte instructions lists erase type %1 and has no command for it.</source>
        <translation>Die Tabelle der 4-Byte-Befehle nennt den Löschtyp %1 und hat keinen Befehl dafür.</translation>
    </message>
    <message>
        <source>The sectors of sector map %1 come to %2 bytes, and the part has %3.</source>
        <translation>Die Sektoren des Sektorplans %1 ergeben %2 Byte, und der Baustein hat %3.</translation>
    </message>
    <message>
        <source>The sectors of sector map %1 are erased by types that the basic table does not have.</source>
        <translation>Die Sektoren des Sektorplans %1 werden mit Typen gelöscht, die die Basistabelle nicht hat.</translation>
    </message>
    <message>
        <source>The sector map has no end.</source>
        <translation>Der Sektorplan hat kein Ende.</translation>
    </message>
    <message>
        <source>the basic table</source>
        <translation>Basistabelle</translation>
    </message>
    <message>
        <source>the sector map</source>
        <translation>Sektorplan</translation>
    </message>
    <message>
        <source>the table of 4-byte instructions</source>
        <translation>Tabelle der 4-Byte-Befehle</translation>
    </message>
    <message>
        <source>the table %1</source>
        <translation>Tabelle %1</translation>
    </message>
    <message>
        <source>The database %1 on the server %2 was replaced by another one while it was in use. Nothing was changed: look at the devices that are there now, then try again.</source>
        <translation>Die Datenbank %1 auf dem Server %2 wurde während der Benutzung durch eine andere ersetzt. Nichts wurde geändert: Sehen Sie sich die jetzigen Bausteine an und versuchen Sie es dann noch einmal.</translation>
    </message>
    <message>
        <source>The database %1 on the server %2 is another one now.</source>
        <translation>Die Datenbank %1 auf dem Server %2 ist jetzt eine andere.</translation>
    </message>
    <message>
        <source>the certificates %1 are not a file</source>
        <translation>die Zertifikate %1 sind keine Datei</translation>
    </message>
    <message>
        <source>no reason</source>
        <translation>kein Grund</translation>
    </message>
    <message>
        <source>the connection is closed</source>
        <translation>die Verbindung ist geschlossen</translation>
    </message>
    <message>
        <source>The server does not copy.</source>
        <translation>Der Server kopiert nicht.</translation>
    </message>
    <message>
        <source>%1 is not a setting</source>
        <translation>%1 ist keine Einstellung</translation>
    </message>
    <message>
        <source>passwords do not belong into it: put them into the file .pgpass in your home directory</source>
        <translation>Passwörter gehören nicht hinein: Schreiben Sie sie in die Datei .pgpass in Ihrem Home-Verzeichnis</translation>
    </message>
    <message>
        <source>%1 is not a setting. There are: %2</source>
        <translation>%1 ist keine Einstellung. Es gibt: %2</translation>
    </message>
    <message>
        <source>%1 is there twice</source>
        <translation>%1 ist zweimal da</translation>
    </message>
    <message>
        <source>%1 cannot be %2</source>
        <translation>%1 kann nicht %2 sein</translation>
    </message>
    <message>
        <source>it does not begin with %1</source>
        <translation>sie beginnt nicht mit %1</translation>
    </message>
    <message>
        <source>it has no settings</source>
        <translation>sie hat keine Einstellungen</translation>
    </message>
    <message>
        <source>it names too many hosts</source>
        <translation>es werden zu viele Hosts genannt</translation>
    </message>
    <message>
        <source>&quot;port&quot; must be one for all hosts, or one for each</source>
        <translation>„port“ muss einer für alle Hosts sein, oder einer für jeden</translation>
    </message>
    <message>
        <source>it does not say which &quot;database&quot; is meant</source>
        <translation>„database“ ist nicht angegeben</translation>
    </message>
    <message>
        <source>The settings of the server cannot be used: %1.</source>
        <translation>Die Einstellungen des Servers können nicht verwendet werden: %1.</translation>
    </message>
    <message>
        <source>The file %1 cannot be used: %2.</source>
        <translation>Die Datei %1 kann nicht verwendet werden: %2.</translation>
    </message>
    <message>
        <source>The directory has the database %1: name the server in another directory, and copy the records there with &quot;gfpdb copy&quot;.</source>
        <translation>Das Verzeichnis hat die Datenbank %1: Nennen Sie den Server in einem anderen Verzeichnis, und kopieren Sie die Datensätze mit „gfpdb copy“ dorthin.</translation>
    </message>
    <message>
        <source>The file %1 cannot be written: %2.</source>
        <translation>Die Datei %1 kann nicht geschrieben werden: %2.</translation>
    </message>
    <message>
        <source>The database cannot keep %1 of %2: it is not a text in UTF-8, or has the character NUL.</source>
        <translation>Die Datenbank kann %1 von %2 nicht aufnehmen: Es ist kein Text in UTF-8 oder enthält das Zeichen NUL.</translation>
    </message>
    <message>
        <source>The device %1 is being changed by another program: try again.</source>
        <translation>Der Baustein %1 wird gerade von einem anderen Programm geändert: Versuchen Sie es noch einmal.</translation>
    </message>
    <message>
        <source>The import was cancelled.</source>
        <translation>Der Import wurde abgebrochen.</translation>
    </message>
    <message>
        <source>it is not a regular file</source>
        <translation>sie ist keine gewöhnliche Datei</translation>
    </message>
    <message>
        <source>it is larger than %1</source>
        <translation>sie ist größer als %1</translation>
    </message>
    <message>
        <source>The command is on four lines, and a write of the status registers before it clears the quad-enable bit.</source>
        <translation>Der Befehl benutzt vier Leitungen, und davor löscht ein Schreiben der Statusregister das Quad-Enable-Bit.</translation>
    </message>
</context>
</TS>
