<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="it" sourcelanguage="en">
<context>
    <name>GFPC_CHARTS</name>
    <message>
        <source>The flows of %1 cannot be read.</source>
        <translation>Impossibile leggere i flussi di %1.</translation>
    </message>
    <message>
        <source>%1 has no quad-I/O flow.</source>
        <translation>%1 non ha un flusso Quad I/O.</translation>
    </message>
    <message>
        <source>%1 has no single-I/O flow.</source>
        <translation>%1 non ha un flusso Single I/O.</translation>
    </message>
    <message>
        <source>Page %1 of %2</source>
        <translation>Pagina %1 di %2</translation>
    </message>
    <message>
        <source>There are no fonts on this computer.</source>
        <translation>Su questo computer non ci sono caratteri.</translation>
    </message>
    <message>
        <source>Quad-I/O flow</source>
        <translation>Flusso Quad I/O</translation>
    </message>
    <message>
        <source>Single-I/O flow</source>
        <translation>Flusso Single I/O</translation>
    </message>
</context>
<context>
    <name>gfpdb</name>
    <message>
        <source>Upper and lower case count as the same.</source>
        <translation>Maiuscole e minuscole non si distinguono.</translation>
    </message>
    <message>
        <source>There is a built-in device called %1: choose another name.</source>
        <translation>Esiste un dispositivo integrato di nome %1: scegliere un altro nome.</translation>
    </message>
    <message>
        <source>There is a built-in template called %1: choose another name.</source>
        <translation>Esiste un modello integrato di nome %1: scegliere un altro nome.</translation>
    </message>
    <message>
        <source>part name</source>
        <translation>Nome del componente</translation>
    </message>
    <message>
        <source>The device %1 is neither deleted nor replaced, because it could not be read when it was last looked for: %2</source>
        <translation>Il dispositivo %1 non viene né eliminato né sostituito, perché l’ultima volta non è stato possibile leggerlo: %2</translation>
    </message>
    <message>
        <source>The flows of %1 in %2 cannot be read.</source>
        <translation>Impossibile leggere i flussi di %1 in %2.</translation>
    </message>
    <message>
        <source>Property %1 of a device is not a number.</source>
        <translation>La proprietà %1 di un dispositivo non è un numero.</translation>
    </message>
    <message>
        <source>Property %1 of a device is not a text.</source>
        <translation>La proprietà %1 di un dispositivo non è un testo.</translation>
    </message>
    <message>
        <source>There is a stored template called %1: choose another name.</source>
        <translation>Esiste un modello salvato di nome %1: scegliere un altro nome.</translation>
    </message>
    <message>
        <source>There is a device called %1: it is the one that is shown. Enter another name to rename it.</source>
        <translation>Esiste un dispositivo di nome %1: è quello visualizzato. Per rinominarlo immettere un altro nome.</translation>
    </message>
    <message>
        <source>There is a device called %1 for this family and configuration mode: choose another name.</source>
        <translation>Esiste un dispositivo di nome %1 per questa famiglia e modalità di configurazione: scegliere un altro nome.</translation>
    </message>
    <message>
        <source>There is a stored template called %1: choose another name, or remove that template first.</source>
        <translation>Esiste un modello salvato di nome %1: scegliere un altro nome o rimuovere prima quel modello.</translation>
    </message>
    <message>
        <source>The template name %1 differs from the device name %2 in case only: choose another name.</source>
        <translation>Il nome del modello %1 differisce dal nome del dispositivo %2 solo per maiuscole e minuscole: scegliere un altro nome.</translation>
    </message>
    <message>
        <source>There is a device called %1: choose another name.</source>
        <translation>Esiste un dispositivo di nome %1: scegliere un altro nome.</translation>
    </message>
    <message>
        <source>A flash device with an I/O voltage of %1 cannot be connected to %2 devices: it must support 1.8 V.</source>
        <translation>Un dispositivo flash con tensione di I/O %1 non può essere collegato a dispositivi %2: deve funzionare a 1,8 V.</translation>
    </message>
    <message>
        <source>%1 The device %2 that was deleted before was not put back: %3</source>
        <translation>%1 Il dispositivo %2, eliminato in precedenza, non è stato ripristinato: %3</translation>
    </message>
    <message>
        <source>There is no record to save.</source>
        <translation>Non c’è alcun record da salvare.</translation>
    </message>
    <message>
        <source>The configuration mode has no flash devices.</source>
        <translation>La modalità di configurazione non ha dispositivi flash.</translation>
    </message>
    <message>
        <source>The device %1 contains text that is not valid UTF-8.</source>
        <translation>Il dispositivo %1 contiene testo che non è UTF-8 valido.</translation>
    </message>
    <message>
        <source>The template %1 is built in: it cannot be removed.</source>
        <translation>Il modello %1 è integrato: non può essere rimosso.</translation>
    </message>
    <message>
        <source>device name</source>
        <translation>Nome del dispositivo</translation>
    </message>
    <message>
        <source>device ID</source>
        <translation>ID del dispositivo</translation>
    </message>
    <message>
        <source>I/O voltage</source>
        <translation>Tensione di I/O</translation>
    </message>
    <message>
        <source>density</source>
        <translation>Capacità del dispositivo</translation>
    </message>
    <message>
        <source>total die count</source>
        <translation>Numero totale di die</translation>
    </message>
    <message>
        <source>number of single-I/O dummy clocks</source>
        <translation>Cicli dummy in modalità Single I/O</translation>
    </message>
    <message>
        <source>number of quad-I/O dummy clocks</source>
        <translation>Cicli dummy in modalità Quad I/O</translation>
    </message>
    <message>
        <source>template name</source>
        <translation>Nome del modello</translation>
    </message>
    <message>
        <source>flow template</source>
        <translation>Modello flusso di programmazione</translation>
    </message>
    <message>
        <source>a whole number from %1 to %2</source>
        <translation>un numero intero da %1 a %2</translation>
    </message>
    <message>
        <source>one byte in hexadecimal, such as 0x9F</source>
        <translation>un byte in esadecimale, ad esempio 0x9F</translation>
    </message>
    <message>
        <source>1 to %1 bytes in hexadecimal separated by single spaces, such as 0x00 0x02</source>
        <translation>da 1 a %1 byte in esadecimale separati da uno spazio, ad esempio 0x00 0x02</translation>
    </message>
    <message>
        <source>an address of eight hexadecimal digits, such as 0x00010000</source>
        <translation>un indirizzo di otto cifre esadecimali, ad esempio 0x00010000</translation>
    </message>
    <message>
        <source>%1, or %2</source>
        <translation>%1 o %2</translation>
    </message>
    <message>
        <source>text of 1 to %1 characters on one line</source>
        <translation>testo da 1 a %1 caratteri su una riga</translation>
    </message>
    <message>
        <source>a power of two from 1 to %1</source>
        <translation>una potenza di due da 1 a %1</translation>
    </message>
    <message>
        <source>Loop marker</source>
        <translation>Marcatore del ciclo</translation>
    </message>
    <message>
        <source>There is no action property with the number %1. Allowed: 0 to %2.</source>
        <translation>Non esiste una proprietà di azione con il numero %1. Consentito: da 0 a %2.</translation>
    </message>
    <message>
        <source>An empty value</source>
        <translation>Un valore vuoto</translation>
    </message>
    <message>
        <source>%1 is not allowed for &quot;%2&quot;. Allowed: %3.</source>
        <translation>%1 non è consentito per «%2». Consentito: %3.</translation>
    </message>
    <message>
        <source>The %1 is empty: 1 to %2 characters are allowed.</source>
        <translation>«%1» è vuoto: sono consentiti da 1 a %2 caratteri.</translation>
    </message>
    <message>
        <source>The %1 has characters that cannot be stored.</source>
        <translation>«%1» contiene caratteri che non si possono salvare.</translation>
    </message>
    <message>
        <source>The %1 has %2 characters: 1 to %3 characters are allowed.</source>
        <translation>«%1» ha %2 caratteri: ne sono consentiti da 1 a %3.</translation>
    </message>
    <message>
        <source>The %1 has a line break or another control character: use letters, digits, punctuation and spaces.</source>
        <translation>«%1» contiene un’interruzione di riga o un altro carattere di controllo: usare lettere, cifre, punteggiatura e spazi.</translation>
    </message>
    <message>
        <source>The %1 %2 begins or ends with a space: remove it.</source>
        <translation>«%1» %2 inizia o termina con uno spazio: rimuoverlo.</translation>
    </message>
    <message>
        <source>The %1 %2 is reserved for a new device: choose another.</source>
        <translation>«%1» %2 è riservato a un nuovo dispositivo: sceglierne un altro.</translation>
    </message>
    <message>
        <source>%1 Enter 1 to %2 bytes in hexadecimal, separated by spaces or commas, for example 0xC2 0x20 0x19.</source>
        <translation>%1 Immettere da 1 a %2 byte in esadecimale, separati da spazi o virgole, ad esempio 0xC2 0x20 0x19.</translation>
    </message>
    <message>
        <source>The device ID is empty.</source>
        <translation>L’ID del dispositivo è vuoto.</translation>
    </message>
    <message>
        <source>%1 is not a byte of a device ID.</source>
        <translation>%1 non è un byte di un ID di dispositivo.</translation>
    </message>
    <message>
        <source>The device ID has %1 bytes.</source>
        <translation>L’ID del dispositivo ha %1 byte.</translation>
    </message>
    <message>
        <source>The %1 %2 is out of range: %3 to %4 are allowed.</source>
        <translation>«%1»: %2 è fuori intervallo; sono consentiti valori da %3 a %4.</translation>
    </message>
    <message>
        <source>The %1 %2 is not known: choose one of %3.</source>
        <translation>«%1»: %2 non è noto; scegliere tra %3.</translation>
    </message>
    <message>
        <source>The loop that starts at action %1 has no end.</source>
        <translation>Il ciclo che inizia all’azione %1 non ha fine.</translation>
    </message>
    <message>
        <source>A loop over each %1 cannot be in a loop over each %2. Allowed: a loop over each page or sector in a loop over each die.</source>
        <translation>Un ciclo su «%1» non può stare in un ciclo su «%2». Consentito: un ciclo su «page» o «sector» in un ciclo su «die».</translation>
    </message>
    <message>
        <source>The end of a loop has no start before it.</source>
        <translation>La fine di un ciclo non ha un inizio prima.</translation>
    </message>
    <message>
        <source>The end of a loop over each %1 closes a loop over each %2.</source>
        <translation>La fine di un ciclo su «%1» chiude un ciclo su «%2».</translation>
    </message>
    <message>
        <source>The loop over each %1 has no %2 action to determine its step size.</source>
        <translation>Il ciclo su «%1» non ha un’azione «%2» che ne determini il passo.</translation>
    </message>
    <message>
        <source>One of several erases in a loop has a fixed address. Allowed: loop or die.</source>
        <translation>Una delle cancellazioni di un ciclo ha un indirizzo fisso. Consentito: loop o die.</translation>
    </message>
    <message>
        <source>The loop has page sizes of %1 and of %2. Allowed: one page size in a loop.</source>
        <translation>Il ciclo ha dimensioni di pagina di %1 e di %2. Consentito: una sola dimensione per ciclo.</translation>
    </message>
    <message>
        <source>The erase sizes %1 and %2 do not go together in one loop. Allowed: sizes of which each divides every larger one.</source>
        <translation>Le dimensioni di cancellazione %1 e %2 non possono stare nello stesso ciclo. Consentito: dimensioni ognuna delle quali divide tutte le maggiori.</translation>
    </message>
    <message>
        <source>The value &quot;loop&quot; is outside any loop.</source>
        <translation>Il valore «loop» è fuori da qualsiasi ciclo.</translation>
    </message>
    <message>
        <source>The value &quot;die&quot; is outside a loop over each die.</source>
        <translation>Il valore «die» è fuori da un ciclo su «die».</translation>
    </message>
    <message>
        <source>The action has %1 address bytes, an earlier one has %2. Allowed: the same number in all actions of a flow.</source>
        <translation>L’azione ha %1 byte di indirizzo, una precedente ne ha %2. Consentito: lo stesso numero in tutte le azioni di un flusso.</translation>
    </message>
    <message>
        <source>The flows cannot be read.</source>
        <translation>Impossibile leggere i flussi.</translation>
    </message>
    <message>
        <source>The device and its template need different names: both are called %1.</source>
        <translation>Il dispositivo e il suo modello devono avere nomi diversi: entrambi si chiamano %1.</translation>
    </message>
    <message>
        <source>There is no family %1. Allowed: %2 to %3.</source>
        <translation>La famiglia %1 non esiste. Consentito: da %2 a %3.</translation>
    </message>
    <message>
        <source>The configuration mode %1 has no flash devices.</source>
        <translation>La modalità di configurazione %1 non ha dispositivi flash.</translation>
    </message>
    <message>
        <source>The %1 %2 is not a usual one. Usual: %3.</source>
        <translation>«%1»: %2 non è un valore usuale. Usuali: %3.</translation>
    </message>
    <message>
        <source>Devices of this configuration mode have no flows: the dialog drops them.</source>
        <translation>I dispositivi di questa modalità di configurazione non hanno flussi: la finestra li scarta.</translation>
    </message>
    <message>
        <source>There are no flows.</source>
        <translation>Non ci sono flussi.</translation>
    </message>
    <message>
        <source>There are no flows for this configuration mode.</source>
        <translation>Non ci sono flussi per questa modalità di configurazione.</translation>
    </message>
    <message>
        <source>The value is missing: %1 is stored.</source>
        <translation>Il valore manca: viene salvato %1.</translation>
    </message>
    <message>
        <source>Devices of this configuration mode have no such value: the dialog drops it.</source>
        <translation>I dispositivi di questa modalità di configurazione non hanno questo valore: la finestra lo scarta.</translation>
    </message>
    <message>
        <source>The copy in %1 cannot be compared: %2</source>
        <translation>Impossibile confrontare la copia in %1: %2</translation>
    </message>
    <message>
        <source>The copy in %1 is not the same as %2.</source>
        <translation>La copia in %1 non è uguale a %2.</translation>
    </message>
    <message>
        <source>There is nothing to copy in %1.</source>
        <translation>Non c’è nulla da copiare in %1.</translation>
    </message>
    <message>
        <source>an unknown day</source>
        <translation>una data sconosciuta</translation>
    </message>
    <message>
        <source>an unknown user</source>
        <translation>un utente sconosciuto</translation>
    </message>
    <message>
        <source>The stored template %1 was stored by %2 on %3 since it was looked for here.</source>
        <translation>Il modello salvato %1 è stato salvato da %2 in data %3 dopo che era stato cercato qui.</translation>
    </message>
    <message>
        <source>The device %1 was stored by %2 on %3 since it was looked for here.</source>
        <translation>Il dispositivo %1 è stato salvato da %2 in data %3 dopo che era stato cercato qui.</translation>
    </message>
    <message>
        <source>The stored template %1 was changed by %2 on %3 since it was read here.</source>
        <translation>Il modello salvato %1 è stato modificato da %2 in data %3 dopo che era stato letto qui.</translation>
    </message>
    <message>
        <source>The device %1 was changed by %2 on %3 since it was read here.</source>
        <translation>Il dispositivo %1 è stato modificato da %2 in data %3 dopo che era stato letto qui.</translation>
    </message>
    <message>
        <source>The stored template %1 was deleted by %2 on %3 since it was read here.</source>
        <translation>Il modello salvato %1 è stato eliminato da %2 in data %3 dopo che era stato letto qui.</translation>
    </message>
    <message>
        <source>The device %1 was renamed by %2 on %3 since it was read here.</source>
        <translation>Il dispositivo %1 è stato rinominato da %2 in data %3 dopo che era stato letto qui.</translation>
    </message>
    <message>
        <source>The device %1 was deleted by %2 on %3 since it was read here.</source>
        <translation>Il dispositivo %1 è stato eliminato da %2 in data %3 dopo che era stato letto qui.</translation>
    </message>
    <message>
        <source>Try again to store it as a new one.</source>
        <translation>Riprovare per salvarlo come nuovo.</translation>
    </message>
    <message>
        <source>Look at it again, or try again: then that state goes into the history.</source>
        <translation>Visualizzarlo di nuovo o riprovare: quello stato passa allora nella cronologia.</translation>
    </message>
    <message>
        <source>The database in %1 is not empty.</source>
        <translation>Il database in %1 non è vuoto.</translation>
    </message>
    <message>
        <source>A stored template called %1 already exists.</source>
        <translation>Esiste già un modello salvato di nome %1.</translation>
    </message>
    <message>
        <source>A device called %1 already exists.</source>
        <translation>Esiste già un dispositivo di nome %1.</translation>
    </message>
    <message>
        <source>There is no state %1 in the history.</source>
        <translation>Nella cronologia non c’è lo stato %1.</translation>
    </message>
    <message>
        <source>The database in %1 is another one now.</source>
        <translation>Il database in %1 ora è un altro.</translation>
    </message>
    <message>
        <source>It is state %1 of the history.</source>
        <translation>È lo stato %1 della cronologia.</translation>
    </message>
    <message>
        <source>The database %1 is not used: %2 is a link or not a regular file. Remove it if you did not put it there.</source>
        <translation>Il database %1 non viene usato: %2 è un collegamento o non è un file normale. Rimuoverlo se non è stato messo lì di proposito.</translation>
    </message>
    <message>
        <source>The database %1 is not used: %2 was written by another program, and would change it. Close the database in that program. If the file is still there then, move it to another directory.</source>
        <translation>Il database %1 non viene usato: %2 è stato scritto da un altro programma e lo modificherebbe. Chiudere il database in quel programma. Se il file c’è ancora, spostarlo in un’altra cartella.</translation>
    </message>
    <message>
        <source>The database %1 is not used: %2 was written by another program for several databases at once, and names a file that would be removed. Open the database in that program, or move the file to another directory.</source>
        <translation>Il database %1 non viene usato: %2 è stato scritto da un altro programma per più database insieme e nomina un file che verrebbe rimosso. Aprire il database in quel programma o spostare il file in un’altra cartella.</translation>
    </message>
    <message>
        <source>The database %1 is not used: %2 is the journal of another database, or of another state of this one, and would damage it. Move that file to another directory, then try again.</source>
        <translation>Il database %1 non viene usato: %2 è il journal di un altro database, o di un altro stato di questo, e lo danneggerebbe. Spostare quel file in un’altra cartella, poi riprovare.</translation>
    </message>
    <message>
        <source>The database %1 is locked by another program (%2).</source>
        <translation>Il database %1 è bloccato da un altro programma (%2).</translation>
    </message>
    <message>
        <source>The database %1 cannot be written (%2).</source>
        <translation>Impossibile scrivere nel database %1 (%2).</translation>
    </message>
    <message>
        <source>The database %1 is damaged (%2). It is left as it is.</source>
        <translation>Il database %1 è danneggiato (%2). Viene lasciato com’è.</translation>
    </message>
    <message>
        <source>There is no room for the database %1 (%2).</source>
        <translation>Non c’è spazio per il database %1 (%2).</translation>
    </message>
    <message>
        <source>The file %1 is not a database (%2). It is left as it is.</source>
        <translation>Il file %1 non è un database (%2). Viene lasciato com’è.</translation>
    </message>
    <message>
        <source>The database %1 cannot be used: %2 (%3).</source>
        <translation>Impossibile usare il database %1: %2 (%3).</translation>
    </message>
    <message>
        <source>The SQLite driver of Qt is not installed.</source>
        <translation>Il driver SQLite di Qt non è installato.</translation>
    </message>
    <message>
        <source>The database %1 was left in the middle of a change by a program that ended there. It can be read again when someone who can write it has opened it once.</source>
        <translation>Un programma terminato ha lasciato il database %1 a metà di una modifica. Sarà di nuovo leggibile dopo che lo avrà aperto chi può scriverlo.</translation>
    </message>
    <message>
        <source>The database %1 can be read, but not changed: %2.</source>
        <translation>Il database %1 si può leggere, ma non modificare: %2.</translation>
    </message>
    <message>
        <source>The database directory %1 cannot be read: %2.</source>
        <translation>Impossibile leggere la cartella del database %1: %2.</translation>
    </message>
    <message>
        <source>The database directory %1 does not exist.</source>
        <translation>La cartella del database %1 non esiste.</translation>
    </message>
    <message>
        <source>The database directory %1 is not a directory: a part of it is a file.</source>
        <translation>La cartella del database %1 non è una cartella: una sua parte è un file.</translation>
    </message>
    <message>
        <source>The database directory %1 cannot be reached: %2.</source>
        <translation>La cartella del database %1 non è raggiungibile: %2.</translation>
    </message>
    <message>
        <source>%1 is not a file.</source>
        <translation>%1 non è un file.</translation>
    </message>
    <message>
        <source>The database %1 is empty: its content was lost. It is left as it is; restore a backup copy, or delete it to start over.</source>
        <translation>Il database %1 è vuoto: il suo contenuto è andato perso. Viene lasciato com’è; mettere una copia al suo posto o rimuoverlo per ricominciare.</translation>
    </message>
    <message>
        <source>The file %1 is not a database (too short). It is left as it is.</source>
        <translation>Il file %1 non è un database (troppo corto). Viene lasciato com’è.</translation>
    </message>
    <message>
        <source>The database %1 cannot be reached: it is a link to %2 (%3). Is the drive or the share that it is on connected?</source>
        <translation>Il database %1 non è raggiungibile: è un collegamento a %2 (%3). L’unità o la condivisione su cui si trova è connessa?</translation>
    </message>
    <message>
        <source>The database %1 cannot be reached (%2). Is the drive or the share that it is on connected?</source>
        <translation>Il database %1 non è raggiungibile (%2). L’unità o la condivisione su cui si trova è connessa?</translation>
    </message>
    <message>
        <source>There is no database %1, but %2, which a program left that was writing it. Put the database back, or move that file to another directory to begin with an empty database.</source>
        <translation>Il database %1 non esiste, ma esiste %2, lasciato da un programma che lo stava scrivendo. Rimettere il database al suo posto o spostare quel file in un’altra cartella per iniziare con un database vuoto.</translation>
    </message>
    <message>
        <source>The database directory %1 holds no database, and none can be created: %2.</source>
        <translation>La cartella %1 non contiene un database e non è possibile crearlo: %2.</translation>
    </message>
    <message>
        <source>The database %1 is damaged (its end is missing). It is left as it is.</source>
        <translation>Il database %1 è danneggiato (manca la fine). Viene lasciato com’è.</translation>
    </message>
    <message>
        <source>The database %1 cannot be created: %2.</source>
        <translation>Impossibile creare il database %1: %2.</translation>
    </message>
    <message>
        <source>The database %1 was replaced or removed by another program while it was in use. Nothing was changed: look at the devices that are there now, then try again.</source>
        <translation>Il database %1 è stato sostituito o rimosso da un altro programma mentre era in uso. Nulla è stato modificato: guardare i dispositivi presenti ora, poi riprovare.</translation>
    </message>
    <message>
        <source>%1 Whether the change was stored cannot be read: look at the devices before you try again.</source>
        <translation>%1 Non si può leggere se la modifica è stata salvata: guardare i dispositivi prima di riprovare.</translation>
    </message>
    <message>
        <source>The database %1 was replaced or removed by another program while a change was stored, which is lost: look at the devices that are there now, then try again.</source>
        <translation>Il database %1 è stato sostituito o rimosso da un altro programma durante il salvataggio di una modifica, che è persa: guardare i dispositivi presenti ora, poi riprovare.</translation>
    </message>
    <message>
        <source>The database %1 was altered by another program: its texts are %2, not UTF-8. It is left as it is.</source>
        <translation>Il database %1 è stato modificato da un altro programma: i suoi testi sono %2, non UTF-8. Viene lasciato com’è.</translation>
    </message>
    <message>
        <source>The file %1 is a database of another program. It is left as it is.</source>
        <translation>Il file %1 è un database di un altro programma. Viene lasciato com’è.</translation>
    </message>
    <message>
        <source>The database %1 was written by a newer program (its schema is %2, this program knows up to %3). It is left as it is.</source>
        <translation>Il database %1 è stato scritto da un programma più recente (il suo schema è %2, questo programma conosce fino a %3). Viene lasciato com’è.</translation>
    </message>
    <message>
        <source>The database %1 was altered by another program: its tables are not those of schema %2. It is left as it is.</source>
        <translation>Il database %1 è stato modificato da un altro programma: le sue tabelle non sono quelle dello schema %2. Viene lasciato com’è.</translation>
    </message>
    <message>
        <source>The database in %1 is damaged: %2</source>
        <translation>Il database in %1 è danneggiato: %2</translation>
    </message>
    <message>
        <source>The database server %1 did not answer in time.</source>
        <translation>Il server di database %1 non ha risposto in tempo.</translation>
    </message>
    <message>
        <source>The database server %1 cannot be reached: %2.</source>
        <translation>Il server di database %1 non è raggiungibile: %2.</translation>
    </message>
    <message>
        <source>The database server %1 refused: %2.</source>
        <translation>Il server di database %1 ha rifiutato: %2.</translation>
    </message>
    <message>
        <source>The database %1 on the server %2 does not allow that to the login %3: its administrator can grant the role %4 or %5.</source>
        <translation>Il database %1 sul server %2 non lo consente all’utente %3: il suo amministratore può concedere il ruolo %4 o %5.</translation>
    </message>
    <message>
        <source>The database %1 on the server %2 has no schema %3 for devices: its administrator can make it with &quot;gfpdb server sql&quot;.</source>
        <translation>Il database %1 sul server %2 non ha lo schema %3 per i dispositivi: il suo amministratore può crearlo con «gfpdb server sql».</translation>
    </message>
    <message>
        <source>There is no room for the change on the server %1.</source>
        <translation>Non c’è spazio per la modifica sul server %1.</translation>
    </message>
    <message>
        <source>The database %1 on the server %2 is locked by another program.</source>
        <translation>Il database %1 sul server %2 è bloccato da un altro programma.</translation>
    </message>
    <message>
        <source>The database %1 on the server %2 is changed by too many programs now: try again.</source>
        <translation>Troppi programmi stanno modificando il database %1 sul server %2: riprovare.</translation>
    </message>
    <message>
        <source>The directory %1 has the database %2 and names a server in %3. Move the database to another directory, and copy its records from there to the server with &quot;gfpdb copy&quot;.</source>
        <translation>La cartella %1 contiene il database %2 e nomina un server in %3. Spostare il database in un’altra cartella e copiarne da lì i record sul server con «gfpdb copy».</translation>
    </message>
    <message>
        <source>The database %1 on the server %2 cannot be read by the login %3: its administrator can grant the role %4.</source>
        <translation>L’utente %3 non può leggere il database %1 sul server %2: il suo amministratore può concedere il ruolo %4.</translation>
    </message>
    <message>
        <source>The database %1 on the server %2 can be read, but not changed: the server takes no changes now.</source>
        <translation>Il database %1 sul server %2 si può leggere, ma non modificare: il server al momento non accetta modifiche.</translation>
    </message>
    <message>
        <source>The database %1 on the server %2 can be read, but not changed: the login %3 has not the role %4.</source>
        <translation>Il database %1 sul server %2 si può leggere, ma non modificare: l’utente %3 non ha il ruolo %4.</translation>
    </message>
    <message>
        <source>The database %1 on the server %2 was written by a newer program (schema %3). It is left as it is.</source>
        <translation>Il database %1 sul server %2 è stato scritto da un programma più recente (schema %3). Viene lasciato com’è.</translation>
    </message>
    <message>
        <source>The database %1 on the server %2 is a database of another program. It is left as it is.</source>
        <translation>Il database %1 sul server %2 è un database di un altro programma. Viene lasciato com’è.</translation>
    </message>
    <message>
        <source>The database %1 on the server %2 was written by an older program (schema %3): it can be used when someone with the role %4 has opened it once.</source>
        <translation>Il database %1 sul server %2 è stato scritto da un programma più vecchio (schema %3): si potrà usare dopo che lo avrà aperto chi ha il ruolo %4.</translation>
    </message>
    <message>
        <source>The file %1 names a server since the directory was opened: open it again.</source>
        <translation>Il file %1 indica un server da quando la cartella è stata aperta: aprirla di nuovo.</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Nome</translation>
    </message>
    <message>
        <source>ID</source>
        <translation>ID</translation>
    </message>
    <message>
        <source>Maker</source>
        <translation>Produttore</translation>
    </message>
    <message>
        <source>Density</source>
        <translation>Capacità</translation>
    </message>
    <message>
        <source>Dies</source>
        <translation>Die</translation>
    </message>
    <message>
        <source>Dies are selected by C2</source>
        <translation>Selezione dei die con C2</translation>
    </message>
    <message>
        <source>Page size (bytes)</source>
        <translation>Dimensione pagina (byte)</translation>
    </message>
    <message>
        <source>Address bytes</source>
        <translation>Byte di indirizzo</translation>
    </message>
    <message>
        <source>4-byte addressing, enter</source>
        <translation>Indirizzamento a 4 byte, ingresso</translation>
    </message>
    <message>
        <source>4-byte addressing, leave</source>
        <translation>Indirizzamento a 4 byte, uscita</translation>
    </message>
    <message>
        <source>4-byte addressing, register and bit</source>
        <translation>Indirizzamento a 4 byte, registro e bit</translation>
    </message>
    <message>
        <source>Quad enable</source>
        <translation>Abilitazione Quad</translation>
    </message>
    <message>
        <source>Unlock blocks</source>
        <translation>Sbloccare i blocchi</translation>
    </message>
    <message>
        <source>Reset</source>
        <translation>Reset</translation>
    </message>
    <message>
        <source>Busy is read by</source>
        <translation>Occupato si legge con</translation>
    </message>
    <message>
        <source>Dummy clocks, single</source>
        <translation>Cicli dummy, Single</translation>
    </message>
    <message>
        <source>Quad read</source>
        <translation>Lettura Quad</translation>
    </message>
    <message>
        <source>Dummy clocks, quad</source>
        <translation>Cicli dummy, Quad</translation>
    </message>
    <message>
        <source>Quad program</source>
        <translation>Programmazione Quad</translation>
    </message>
    <message>
        <source>Page program, longest wait (us)</source>
        <translation>Programmazione pagina, attesa massima (us)</translation>
    </message>
    <message>
        <source>Erase, longest wait (ms)</source>
        <translation>Cancellazione, attesa massima (ms)</translation>
    </message>
    <message>
        <source>from the ID</source>
        <translation>dall’ID</translation>
    </message>
    <message>
        <source>from the density</source>
        <translation>dalla capacità</translation>
    </message>
    <message>
        <source>assumed</source>
        <translation>presunto</translation>
    </message>
    <message>
        <source>entered</source>
        <translation>inserito</translation>
    </message>
    <message>
        <source>The command is on four lines, but the single-I/O flow has one.</source>
        <translation>Il comando usa quattro linee, ma il flusso Single I/O ne ha una.</translation>
    </message>
    <message>
        <source>The image is compared with a mask: its bytes with bits that the mask clears never match.</source>
        <translation>L’immagine viene confrontata con una maschera: i byte con bit azzerati dalla maschera non corrispondono mai.</translation>
    </message>
    <message>
        <source>The expected data have bits that the mask clears: they never match.</source>
        <translation>I dati attesi hanno bit azzerati dalla maschera: non corrispondono mai.</translation>
    </message>
    <message>
        <source>The mask has no bit: whatever is read matches.</source>
        <translation>La maschera non ha alcun bit: qualunque cosa si legga corrisponde.</translation>
    </message>
    <message>
        <source>The page size is %1, but the part has pages of %2 bytes: what is beyond the end of a page overwrites its start.</source>
        <translation>La dimensione di pagina è %1, ma il dispositivo ha pagine di %2 byte: ciò che supera la fine di una pagina ne sovrascrive l’inizio.</translation>
    </message>
    <message>
        <source>The page size is %1, but the part has pages of %2 bytes: programming takes longer than necessary.</source>
        <translation>La dimensione di pagina è %1, ma il dispositivo ha pagine di %2 byte: la programmazione dura più del necessario.</translation>
    </message>
    <message>
        <source>Data are changed in an operation that is also executed when the user asked for neither Program nor Erase.</source>
        <translation>I dati vengono modificati in un’operazione che viene eseguita anche quando l’utente non ha chiesto né Program né Erase.</translation>
    </message>
    <message>
        <source>Three address bytes reach %1 bytes, but the action works on %2.</source>
        <translation>Tre byte di indirizzo raggiungono %1 byte, ma l’azione ne riguarda %2.</translation>
    </message>
    <message>
        <source>The command does not have the bus width %1. Allowed: %2.</source>
        <translation>Il comando non ha la larghezza di bus %1. Consentito: %2.</translation>
    </message>
    <message>
        <source>This is a command that programs.</source>
        <translation>Questo è un comando che programma.</translation>
    </message>
    <message>
        <source>This is a command that reads data.</source>
        <translation>Questo è un comando che legge dati.</translation>
    </message>
    <message>
        <source>This is a command that erases.</source>
        <translation>Questo è un comando che cancella.</translation>
    </message>
    <message>
        <source>The command has no dummy clocks.</source>
        <translation>Il comando non ha cicli dummy.</translation>
    </message>
    <message>
        <source>The command has two dummy clocks at least, its mode clocks.</source>
        <translation>Il comando ha almeno due cicli dummy, i suoi cicli di modalità.</translation>
    </message>
    <message>
        <source>Nothing in the loop depends on its step: every step does the same.</source>
        <translation>Nulla nel ciclo dipende dal suo passo: ogni passo fa la stessa cosa.</translation>
    </message>
    <message>
        <source>The device has one die: the loop has one step.</source>
        <translation>Il dispositivo ha un die: il ciclo ha un passo.</translation>
    </message>
    <message>
        <source>There is no ID check: the flow changes whatever chip is connected.</source>
        <translation>L’ID non viene controllato: il flusso modifica qualunque chip sia collegato.</translation>
    </message>
    <message>
        <source>The chip is changed before its ID is checked.</source>
        <translation>Il chip viene modificato prima che il suo ID sia controllato.</translation>
    </message>
    <message>
        <source>4-byte addressing is entered here, and Termination does not leave it.</source>
        <translation>Qui si entra nell’indirizzamento a 4 byte, e Termination non ne esce.</translation>
    </message>
    <message>
        <source>No command uses this write enable.</source>
        <translation>Nessun comando usa questa abilitazione alla scrittura.</translation>
    </message>
    <message>
        <source>The chip is in deep power-down and ignores the command.</source>
        <translation>Il chip è in deep power-down e ignora il comando.</translation>
    </message>
    <message>
        <source>The command follows the reset that brings the chip to its end.</source>
        <translation>Il comando segue il reset che porta il chip allo stato finale.</translation>
    </message>
    <message>
        <source>The command is on four lines, and nothing before it sets or checks the quad-enable bit.</source>
        <translation>Il comando usa quattro linee e nulla prima di esso imposta o controlla il bit quad enable.</translation>
    </message>
    <message>
        <source>%1 us are waited for instead of asking whether the chip is ready.</source>
        <translation>Si attendono %1 µs invece di chiedere se il chip è pronto.</translation>
    </message>
    <message>
        <source>Nothing waits until the chip is ready: it ignores the commands that follow.</source>
        <translation>Nulla attende che il chip sia pronto: ignora i comandi seguenti.</translation>
    </message>
    <message>
        <source>There is no write enable before it: the chip ignores the command.</source>
        <translation>Prima manca l’abilitazione alla scrittura: il chip ignora il comando.</translation>
    </message>
    <message>
        <source>The command has no address, but the action sends one.</source>
        <translation>Il comando non ha indirizzo, ma l’azione ne invia uno.</translation>
    </message>
    <message>
        <source>The command has an address, but the action sends none.</source>
        <translation>Il comando ha un indirizzo, ma l’azione non ne invia.</translation>
    </message>
    <message>
        <source>The command always has four address bytes, but the action sends three.</source>
        <translation>Il comando ha sempre quattro byte di indirizzo, ma l’azione ne invia tre.</translation>
    </message>
    <message>
        <source>The action sends four address bytes, but nothing before it enters 4-byte addressing.</source>
        <translation>L’azione invia quattro byte di indirizzo, ma nulla prima di essa entra nell’indirizzamento a 4 byte.</translation>
    </message>
    <message>
        <source>The action sends three address bytes, but 4-byte addressing was entered before.</source>
        <translation>L’azione invia tre byte di indirizzo, ma prima si è entrati nell’indirizzamento a 4 byte.</translation>
    </message>
    <message>
        <source>Template name</source>
        <translation>Nome del modello</translation>
    </message>
    <message>
        <source>Flow template</source>
        <translation>Modello di flusso</translation>
    </message>
    <message>
        <source>an unpaired surrogate is not a character</source>
        <translation>un surrogato isolato non è un carattere</translation>
    </message>
    <message>
        <source>the name %1 occurs twice</source>
        <translation>il nome %1 compare due volte</translation>
    </message>
    <message>
        <source>values are nested too deeply</source>
        <translation>i valori sono annidati troppo in profondità</translation>
    </message>
    <message>
        <source>there is text after the end</source>
        <translation>c’è del testo dopo la fine</translation>
    </message>
    <message>
        <source>an object needs a name in double quotes here</source>
        <translation>qui un oggetto richiede un nome tra virgolette doppie</translation>
    </message>
    <message>
        <source>&quot;:&quot; is missing after %1</source>
        <translation>manca «:» dopo %1</translation>
    </message>
    <message>
        <source>an object needs &quot;,&quot; or &quot;}&quot; here</source>
        <translation>qui un oggetto richiede «,» o «}»</translation>
    </message>
    <message>
        <source>a list needs &quot;,&quot; or &quot;]&quot; here</source>
        <translation>qui un elenco richiede «,» o «]»</translation>
    </message>
    <message>
        <source>\u needs four hexadecimal digits</source>
        <translation>\u richiede quattro cifre esadecimali</translation>
    </message>
    <message>
        <source>a string is not terminated</source>
        <translation>una stringa non è terminata</translation>
    </message>
    <message>
        <source>there is no such escape</source>
        <translation>questa sequenza di escape non esiste</translation>
    </message>
    <message>
        <source>a string has a control character or a line break in it</source>
        <translation>una stringa contiene un carattere di controllo o un’interruzione di riga</translation>
    </message>
    <message>
        <source>a string is not UTF-8</source>
        <translation>una stringa non è UTF-8</translation>
    </message>
    <message>
        <source>a number is too large</source>
        <translation>un numero è troppo grande</translation>
    </message>
    <message>
        <source>a value was expected</source>
        <translation>era atteso un valore</translation>
    </message>
    <message>
        <source>true or false</source>
        <translation>true o false</translation>
    </message>
    <message>
        <source>a number</source>
        <translation>un numero</translation>
    </message>
    <message>
        <source>a string</source>
        <translation>una stringa</translation>
    </message>
    <message>
        <source>a list</source>
        <translation>un elenco</translation>
    </message>
    <message>
        <source>an object</source>
        <translation>un oggetto</translation>
    </message>
    <message>
        <source>A string was expected, but this is %1.</source>
        <translation>Era attesa una stringa, ma questo è: %1.</translation>
    </message>
    <message>
        <source>A list was expected, but this is %1.</source>
        <translation>Era atteso un elenco, ma questo è: %1.</translation>
    </message>
    <message>
        <source>An object was expected, but this is %1.</source>
        <translation>Era atteso un oggetto, ma questo è: %1.</translation>
    </message>
    <message>
        <source>%1 is not known here. Allowed: %2.</source>
        <translation>%1 non è noto qui. Consentito: %2.</translation>
    </message>
    <message>
        <source>%1 is missing.</source>
        <translation>Manca %1.</translation>
    </message>
    <message>
        <source>The catalogue %1 cannot be read: %2.</source>
        <translation>Impossibile leggere il catalogo %1: %2.</translation>
    </message>
    <message>
        <source>device %1: %2</source>
        <translation>dispositivo %1: %2</translation>
    </message>
    <message>
        <source>stored template %1: %2</source>
        <translation>modello salvato %1: %2</translation>
    </message>
    <message>
        <source>The device %1 is already in %2.</source>
        <translation>Il dispositivo %1 è già in %2.</translation>
    </message>
    <message>
        <source>The stored template %1 is already in %2.</source>
        <translation>Il modello salvato %1 è già in %2.</translation>
    </message>
    <message>
        <source>The device %1 exists with different content: --replace replaces it.</source>
        <translation>Il dispositivo %1 esiste con un altro contenuto: --replace lo sostituisce.</translation>
    </message>
    <message>
        <source>The stored template %1 exists with different content: --replace replaces it.</source>
        <translation>Il modello salvato %1 esiste con un altro contenuto: --replace lo sostituisce.</translation>
    </message>
    <message>
        <source>The name of the device %1 is that of a stored template.</source>
        <translation>Il nome del dispositivo %1 è quello di un modello salvato.</translation>
    </message>
    <message>
        <source>The name of the stored template %1 is that of a device.</source>
        <translation>Il nome del modello salvato %1 è quello di un dispositivo.</translation>
    </message>
    <message>
        <source>The column is missing.</source>
        <translation>La colonna manca.</translation>
    </message>
    <message>
        <source>The column is not known. Allowed: %1.</source>
        <translation>La colonna non è nota. Consentito: %1.</translation>
    </message>
    <message>
        <source>The column occurs twice.</source>
        <translation>La colonna compare due volte.</translation>
    </message>
    <message>
        <source>A quote that opens in this row is never closed.</source>
        <translation>Una virgoletta aperta in questa riga non viene mai chiusa.</translation>
    </message>
    <message>
        <source>The row has 1 cell, the line of column names has %1.</source>
        <translation>La riga ha 1 cella, quella dei nomi delle colonne ne ha %1.</translation>
    </message>
    <message>
        <source>The row has %1 cells, the line of column names has %2.</source>
        <translation>La riga ha %1 celle, quella dei nomi delle colonne ne ha %2.</translation>
    </message>
    <message>
        <source>The file cannot be read: %1.</source>
        <translation>Impossibile leggere il file: %1.</translation>
    </message>
    <message>
        <source>This is not valid JSON: %1.</source>
        <translation>Questo non è JSON valido: %1.</translation>
    </message>
    <message>
        <source>This is not a file of records. Allowed: %1.</source>
        <translation>Questo non è un file di record. Consentito: %1.</translation>
    </message>
    <message>
        <source>This version of the format is not known. Allowed: %1.</source>
        <translation>Questa versione del formato non è nota. Consentito: %1.</translation>
    </message>
    <message>
        <source>The text is not UTF-8.</source>
        <translation>Il testo non è UTF-8.</translation>
    </message>
    <message>
        <source>A whole number or null was expected, but this is %1.</source>
        <translation>Era atteso un numero intero o null, ma questo è: %1.</translation>
    </message>
    <message>
        <source>device family</source>
        <translation>famiglia di dispositivi</translation>
    </message>
    <message>
        <source>configuration mode</source>
        <translation>modalità di configurazione</translation>
    </message>
    <message>
        <source>single-I/O flow</source>
        <translation>flusso Single I/O</translation>
    </message>
    <message>
        <source>quad-I/O flow</source>
        <translation>flusso Quad I/O</translation>
    </message>
    <message>
        <source>This operation occurs twice.</source>
        <translation>Questa operazione compare due volte.</translation>
    </message>
    <message>
        <source>There is no such operation. Allowed: %1.</source>
        <translation>Questa operazione non esiste. Consentito: %1.</translation>
    </message>
    <message>
        <source>There is no such action. Allowed: %1.</source>
        <translation>Questa azione non esiste. Consentito: %1.</translation>
    </message>
    <message>
        <source>The flows of %1 cannot be read.</source>
        <translation>Impossibile leggere i flussi di %1.</translation>
    </message>
    <message>
        <source>A device has at most %1 single-I/O dummy clocks: the copy gets these, and its flow has the %2 of %3.</source>
        <translation>Un dispositivo ha al massimo %1 cicli dummy Single I/O: la copia riceve questi, e il suo flusso ha i %2 di %3.</translation>
    </message>
    <message>
        <source>The configuration mode %1 has no serial flash devices.</source>
        <translation>La modalità di configurazione %1 non ha dispositivi flash seriali.</translation>
    </message>
    <message>
        <source>page size</source>
        <translation>dimensione pagina</translation>
    </message>
    <message>
        <source>quad-I/O dummy clocks</source>
        <translation>cicli dummy Quad I/O</translation>
    </message>
    <message>
        <source>%1: %2 in the list, %3 by %4</source>
        <translation>%1: %2 nell’elenco, %3 secondo %4</translation>
    </message>
    <message>
        <source>address bytes</source>
        <translation>byte di indirizzo</translation>
    </message>
    <message>
        <source>%1 or %2</source>
        <translation>%1 o %2</translation>
    </message>
    <message>
        <source>erase by %1</source>
        <translation>cancellazione con %1</translation>
    </message>
    <message>
        <source>not</source>
        <translation>no</translation>
    </message>
    <message>
        <source>%1 bytes</source>
        <translation>%1 byte</translation>
    </message>
    <message>
        <source>none</source>
        <translation>nessuno</translation>
    </message>
    <message>
        <source>reserved</source>
        <translation>riservato</translation>
    </message>
    <message>
        <source>quad enable</source>
        <translation>abilitazione Quad</translation>
    </message>
    <message>
        <source>basic table: %1 double words in read-outs of this part, %2 here</source>
        <translation>tabella di base: %1 parole doppie nelle letture di questo componente, qui %2</translation>
    </message>
    <message>
        <source>4-4-4 read: in read-outs of this part, but not here</source>
        <translation>lettura 4-4-4: nelle letture di questo componente, ma non qui</translation>
    </message>
    <message>
        <source>%1 is not a number.</source>
        <translation>%1 non è un numero.</translation>
    </message>
    <message>
        <source>%1 is out of range: %2 to %3 are allowed.</source>
        <translation>%1 è fuori dai limiti: sono consentiti da %2 a %3.</translation>
    </message>
    <message>
        <source>%1 is more than 32Gb.</source>
        <translation>%1 è più di 32Gb.</translation>
    </message>
    <message>
        <source>%1 is not a density such as 128Mb.</source>
        <translation>%1 non è una capacità come 128Mb.</translation>
    </message>
    <message>
        <source>%1 is neither an erase command such as %2 nor %3.</source>
        <translation>%1 non è né un comando di cancellazione come %2 né %3.</translation>
    </message>
    <message>
        <source>%1 is not a power of two.</source>
        <translation>%1 non è una potenza di due.</translation>
    </message>
    <message>
        <source>There is no value %1.</source>
        <translation>Il valore %1 non esiste.</translation>
    </message>
    <message>
        <source>The value %1 is missing: enter it.</source>
        <translation>Manca il valore %1: inserirlo.</translation>
    </message>
    <message>
        <source>The number of dies, %1, does not divide the density.</source>
        <translation>Il numero di die, %1, non divide la capacità.</translation>
    </message>
    <message>
        <source>The erase command %1 does not divide the density.</source>
        <translation>Il comando di cancellazione %1 non divide la capacità.</translation>
    </message>
    <message>
        <source>The density %1 (%2) is not what the ID usually stands for, which is %3.</source>
        <translation>La capacità %1 (%2) non è quella che l’ID indica di solito: %3.</translation>
    </message>
    <message>
        <source>SFDP DW2 says a density that no device can have: %1.</source>
        <translation>SFDP DW2 indica una capacità che nessun dispositivo può avere: %1.</translation>
    </message>
    <message>
        <source>A device has at most %1 single-I/O dummy clocks: it gets these, and its flow has %2.</source>
        <translation>Un dispositivo ha al massimo %1 cicli dummy Single I/O: riceve questi, e il suo flusso ne ha %2.</translation>
    </message>
    <message>
        <source>The chip has a table of the maker %1, and its ID is of the maker %2.</source>
        <translation>Il chip ha una tabella del produttore %1, e il suo ID è del produttore %2.</translation>
    </message>
    <message>
        <source>No listed part tells what the maker&apos;s parts have in common: usual commands are assumed.</source>
        <translation>Nessun componente in elenco dice cosa hanno in comune quelli del produttore: si presumono i comandi usuali.</translation>
    </message>
    <message>
        <source>Several listed parts have this ID: %1.</source>
        <translation>Più componenti in elenco hanno questo ID: %1.</translation>
    </message>
    <message>
        <source>The commands have four address bytes, and nothing enters 4-byte addressing.</source>
        <translation>I comandi hanno quattro byte di indirizzo, e nulla attiva l’indirizzamento a 4 byte.</translation>
    </message>
    <message>
        <source>The commands have three address bytes, and the device is in 4-byte addressing.</source>
        <translation>I comandi hanno tre byte di indirizzo, e il dispositivo è in indirizzamento a 4 byte.</translation>
    </message>
    <message>
        <source>Three address bytes do not reach all of %1.</source>
        <translation>Tre byte di indirizzo non raggiungono tutto: %1.</translation>
    </message>
    <message>
        <source>SFDP DW1 lists three address bytes alone, which do not reach all of %1: four are taken.</source>
        <translation>SFDP DW1 indica solo tre byte di indirizzo, che non raggiungono tutto %1: se ne usano quattro.</translation>
    </message>
    <message>
        <source>SFDP DW16 lists every way into 4-byte addressing, and SFDP DW1 three address bytes: DW16 is ignored.</source>
        <translation>SFDP DW16 indica ogni modo per attivare l’indirizzamento a 4 byte, e SFDP DW1 tre byte di indirizzo: DW16 viene ignorato.</translation>
    </message>
    <message>
        <source>SFDP DW16 lists no way into 4-byte addressing that a flow can take: %1 is taken.</source>
        <translation>SFDP DW16 non indica alcun modo per attivare l’indirizzamento a 4 byte che un flusso possa usare: si usa %1.</translation>
    </message>
    <message>
        <source>SFDP has no page size: %1 is taken (%2).</source>
        <translation>SFDP non ha una dimensione pagina: si usa %1 (%2).</translation>
    </message>
    <message>
        <source>SFDP DW11 has a page size that no flow can have: %1 is taken (%2).</source>
        <translation>SFDP DW11 ha una dimensione pagina che nessun flusso può avere: si usa %1 (%2).</translation>
    </message>
    <message>
        <source>SFDP DW15 says with a reserved value how quad is enabled: look it up and enter it.</source>
        <translation>SFDP DW15 indica con un valore riservato come si abilita Quad: cercarlo e inserirlo.</translation>
    </message>
    <message>
        <source>SFDP does not say how quad is enabled: %1 is taken (%2).</source>
        <translation>SFDP non indica come si abilita Quad: si usa %1 (%2).</translation>
    </message>
    <message>
        <source>SFDP lists no read on four lines: the quad-I/O flow uses one.</source>
        <translation>SFDP non indica alcuna lettura su quattro linee: il flusso Quad I/O ne usa una.</translation>
    </message>
    <message>
        <source>No erase command serves the whole part: the chip is erased at once.</source>
        <translation>Nessun comando di cancellazione vale per tutto il componente: il chip viene cancellato in una volta.</translation>
    </message>
    <message>
        <source>The four bytes of each double word are in reverse order.</source>
        <translation>I quattro byte di ogni parola doppia sono in ordine inverso.</translation>
    </message>
    <message>
        <source>The bytes do not begin with the signature &quot;SFDP&quot;.</source>
        <translation>I byte non iniziano con la firma «SFDP».</translation>
    </message>
    <message>
        <source>The signature &quot;SFDP&quot; is at %1 and not at the start: bytes were added before it.</source>
        <translation>La firma «SFDP» è a %1 e non all’inizio: sono stati aggiunti byte prima.</translation>
    </message>
    <message>
        <source>The read-out ends within the SFDP header.</source>
        <translation>La lettura finisce dentro l’intestazione SFDP.</translation>
    </message>
    <message>
        <source>SFDP revision %1 is unknown: revisions 1.x can be read.</source>
        <translation>La revisione SFDP %1 è sconosciuta: si possono leggere le revisioni 1.x.</translation>
    </message>
    <message>
        <source>%1 has the unknown revision %2: it is not read.</source>
        <translation>Revisione %2 sconosciuta di questa tabella, che non viene letta: %1.</translation>
    </message>
    <message>
        <source>There are %1 headers of %2: the one of revision %3 is taken.</source>
        <translation>Intestazioni di questa tabella (%2): %1. Si usa quella della revisione %3.</translation>
    </message>
    <message>
        <source>The read-out ends within the parameter headers: %1 of %2 are there.</source>
        <translation>La lettura finisce dentro le intestazioni dei parametri: ce ne sono %1 di %2.</translation>
    </message>
    <message>
        <source>A table begins at %1: there is room for %2 parameter headers, not for %3.</source>
        <translation>Una tabella inizia a %1: c’è posto per %2 intestazioni dei parametri, non per %3.</translation>
    </message>
    <message>
        <source>The parameter header at %1 is blank.</source>
        <translation>L’intestazione dei parametri a %1 è vuota.</translation>
    </message>
    <message>
        <source>%1 begins at %2, within the headers: it is not read.</source>
        <translation>Questa tabella inizia a %2, dentro le intestazioni, e non viene letta: %1.</translation>
    </message>
    <message>
        <source>%1 is empty.</source>
        <translation>Questa tabella è vuota: %1.</translation>
    </message>
    <message>
        <source>%1 is not in the read-out: it begins at %2, and the read-out ends at %3.</source>
        <translation>Questa tabella non è nella lettura: %1. Inizia a %2, e la lettura finisce a %3.</translation>
    </message>
    <message>
        <source>The read-out ends within %1: %2 of %3 double words are there.</source>
        <translation>La lettura finisce dentro questa tabella: %1. Ci sono %2 di %3 parole doppie.</translation>
    </message>
    <message>
        <source>%1 begins at %2, which is not a multiple of 4.</source>
        <translation>Questa tabella inizia a %2, che non è un multiplo di 4: %1.</translation>
    </message>
    <message>
        <source>%1 and %2 overlap.</source>
        <translation>Queste tabelle si sovrappongono: %1, %2.</translation>
    </message>
    <message>
        <source>The bytes at %1 are in no table: they are not read.</source>
        <translation>I byte a %1 non sono in alcuna tabella: non vengono letti.</translation>
    </message>
    <message>
        <source>There is no basic table.</source>
        <translation>Non c’è la tabella di base.</translation>
    </message>
    <message>
        <source>The basic table is blank.</source>
        <translation>La tabella di base è vuota.</translation>
    </message>
    <message>
        <source>The basic table has %1 double words: %2 belong to its revision %3.</source>
        <translation>La tabella di base ha %1 parole doppie: alla sua revisione %3 ne spettano %2.</translation>
    </message>
    <message>
        <source>SFDP DW%1 has zeros where every part has ones: bytes may be missing or shifted.</source>
        <translation>SFDP DW%1 ha zeri dove ogni componente ha uno: possono mancare byte o essere spostati.</translation>
    </message>
    <message>
        <source>SFDP DW2 says no density that a part can have: %1.</source>
        <translation>SFDP DW2 non indica una capacità che un componente possa avere: %1.</translation>
    </message>
    <message>
        <source>SFDP DW1 says with a reserved value how many address bytes there are.</source>
        <translation>SFDP DW1 indica con un valore riservato quanti sono i byte di indirizzo.</translation>
    </message>
    <message>
        <source>SFDP DW%1 lists the %2 read, and DW%3 has no command for it.</source>
        <translation>SFDP DW%1 indica la lettura %2, e DW%3 non ha un comando per essa.</translation>
    </message>
    <message>
        <source>SFDP DW%1: erase type %2 has no command: it is left out.</source>
        <translation>SFDP DW%1: il tipo di cancellazione %2 non ha un comando: viene omesso.</translation>
    </message>
    <message>
        <source>SFDP DW%1: erase type %2 erases 2^%3 bytes, which is too much: it is left out.</source>
        <translation>SFDP DW%1: il tipo di cancellazione %2 cancella 2^%3 byte, che sono troppi: viene omesso.</translation>
    </message>
    <message>
        <source>SFDP DW1 erases 4 KiB by %1, which no erase type does.</source>
        <translation>SFDP DW1 cancella 4 KiB con %1, cosa che nessun tipo di cancellazione fa.</translation>
    </message>
    <message>
        <source>The table of 4-byte instructions is blank.</source>
        <translation>La tabella delle istruzioni a 4 byte è vuota.</translation>
    </message>
    <message>
        <source>The table of 4-byte instructions has no erase commands.</source>
        <translation>La tabella delle istruzioni a 4 byte non ha comandi di cancellazione.</translation>
    </message>
    <message>
        <source>The table of 4-byte instructions lists erase type %1, which the basic table does not have.</source>
        <translation>La tabella delle istruzioni a 4 byte indica il tipo di cancellazione %1, che la tabella di base non ha.</translation>
    </message>
    <message>
        <source>The table of 4-byte instructions lists erase type %1 and has no command for it.</source>
        <translation>La tabella delle istruzioni a 4 byte indica il tipo di cancellazione %1 e non ha un comando per esso.</translation>
    </message>
    <message>
        <source>The sectors of sector map %1 come to %2 bytes, and the part has %3.</source>
        <translation>I settori della mappa dei settori %1 sono in tutto %2 byte, e il componente ne ha %3.</translation>
    </message>
    <message>
        <source>The sectors of sector map %1 are erased by types that the basic table does not have.</source>
        <translation>I settori della mappa dei settori %1 si cancellano con tipi che la tabella di base non ha.</translation>
    </message>
    <message>
        <source>The sector map has no end.</source>
        <translation>La mappa dei settori non ha fine.</translation>
    </message>
    <message>
        <source>the basic table</source>
        <translation>tabella di base</translation>
    </message>
    <message>
        <source>the sector map</source>
        <translation>mappa dei settori</translation>
    </message>
    <message>
        <source>the table of 4-byte instructions</source>
        <translation>tabella delle istruzioni a 4 byte</translation>
    </message>
    <message>
        <source>the table %1</source>
        <translation>tabella %1</translation>
    </message>
    <message>
        <source>The database %1 on the server %2 was replaced by another one while it was in use. Nothing was changed: look at the devices that are there now, then try again.</source>
        <translation>Il database %1 sul server %2 è stato sostituito da un altro mentre era in uso. Non è stato modificato nulla: guardare i dispositivi presenti ora, poi riprovare.</translation>
    </message>
    <message>
        <source>The database %1 on the server %2 is another one now.</source>
        <translation>Il database %1 sul server %2 ora è un altro.</translation>
    </message>
    <message>
        <source>the certificates %1 are not a file</source>
        <translation>i certificati %1 non sono un file</translation>
    </message>
    <message>
        <source>no reason</source>
        <translation>nessun motivo</translation>
    </message>
    <message>
        <source>the connection is closed</source>
        <translation>la connessione è chiusa</translation>
    </message>
    <message>
        <source>The server does not copy.</source>
        <translation>Il server non copia.</translation>
    </message>
    <message>
        <source>%1 is not a setting</source>
        <translation>%1 non è un’impostazione</translation>
    </message>
    <message>
        <source>passwords do not belong into it: put them into the file .pgpass in your home directory</source>
        <translation>le password non vanno lì: inserirle nel file .pgpass della propria cartella home</translation>
    </message>
    <message>
        <source>%1 is not a setting. There are: %2</source>
        <translation>%1 non è un’impostazione. Ci sono: %2</translation>
    </message>
    <message>
        <source>%1 is there twice</source>
        <translation>%1 compare due volte</translation>
    </message>
    <message>
        <source>%1 cannot be %2</source>
        <translation>%1 non può essere %2</translation>
    </message>
    <message>
        <source>it does not begin with %1</source>
        <translation>non inizia con %1</translation>
    </message>
    <message>
        <source>it has no settings</source>
        <translation>non ha impostazioni</translation>
    </message>
    <message>
        <source>it names too many hosts</source>
        <translation>nomina troppi host</translation>
    </message>
    <message>
        <source>&quot;port&quot; must be one for all hosts, or one for each</source>
        <translation>«port» deve essere uno per tutti gli host, o uno per ciascuno</translation>
    </message>
    <message>
        <source>it does not say which &quot;database&quot; is meant</source>
        <translation>non dice quale «database» si intende</translation>
    </message>
    <message>
        <source>The settings of the server cannot be used: %1.</source>
        <translation>Impossibile usare le impostazioni del server: %1.</translation>
    </message>
    <message>
        <source>The file %1 cannot be used: %2.</source>
        <translation>Impossibile usare il file %1: %2.</translation>
    </message>
    <message>
        <source>The directory has the database %1: name the server in another directory, and copy the records there with &quot;gfpdb copy&quot;.</source>
        <translation>La cartella contiene il database %1: indicare il server in un’altra cartella e copiarvi i record con «gfpdb copy».</translation>
    </message>
    <message>
        <source>The file %1 cannot be written: %2.</source>
        <translation>Impossibile scrivere il file %1: %2.</translation>
    </message>
    <message>
        <source>The database cannot keep %1 of %2: it is not a text in UTF-8, or has the character NUL.</source>
        <translation>Il database non può conservare %1 di %2: non è un testo in UTF-8 o contiene il carattere NUL.</translation>
    </message>
    <message>
        <source>The device %1 is being changed by another program: try again.</source>
        <translation>Un altro programma sta modificando il dispositivo %1: riprovare.</translation>
    </message>
    <message>
        <source>The import was cancelled.</source>
        <translation>L’importazione è stata annullata.</translation>
    </message>
    <message>
        <source>it is not a regular file</source>
        <translation>non è un file normale</translation>
    </message>
    <message>
        <source>it is larger than %1</source>
        <translation>supera %1</translation>
    </message>
    <message>
        <source>The command is on four lines, and a write of the status registers before it clears the quad-enable bit.</source>
        <translation>Il comando usa quattro linee e prima di esso una scrittura dei registri di stato cancella il bit quad enable.</translation>
    </message>
</context>
</TS>
