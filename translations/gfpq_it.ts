<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="it" sourcelanguage="en">
<context>
    <name>gfpq_dlg</name>
    <message>
        <source>Configuration Device</source>
        <translation>Dispositivo di configurazione</translation>
    </message>
    <message>
        <source>Device family: </source>
        <translation>Famiglia di dispositivi: </translation>
    </message>
    <message>
        <source>Configuration mode: </source>
        <translation>Modalità di configurazione: </translation>
    </message>
    <message>
        <source>Custom database directory:</source>
        <translation>Cartella del database personalizzato:</translation>
    </message>
    <message>
        <source>Browse...</source>
        <translation>Sfoglia...</translation>
    </message>
    <message>
        <source>Name filter:</source>
        <translation>Filtro per nome:</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Elimina</translation>
    </message>
    <message>
        <source>Device name: </source>
        <translation>Nome del dispositivo: </translation>
    </message>
    <message>
        <source>Device ID: </source>
        <translation>ID del dispositivo: </translation>
    </message>
    <message>
        <source>Device I/O voltage: </source>
        <translation>Tensione di I/O: </translation>
    </message>
    <message>
        <source>Device density: </source>
        <translation>Capacità del dispositivo: </translation>
    </message>
    <message>
        <source>Total device die:</source>
        <translation>Numero totale di die:</translation>
    </message>
    <message>
        <source>Single I/O mode dummy clock: </source>
        <translation>Cicli dummy in modalità Single I/O: </translation>
    </message>
    <message>
        <source>Quad I/O mode dummy clock:</source>
        <translation>Cicli dummy in modalità Quad I/O:</translation>
    </message>
    <message>
        <source>Programming flow template: </source>
        <translation>Modello flusso di programmazione: </translation>
    </message>
    <message>
        <source>Edit...</source>
        <translation>Modifica...</translation>
    </message>
    <message>
        <source>Save as template</source>
        <translation>Salva come modello</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annulla</translation>
    </message>
    <message>
        <source>Apply</source>
        <translation>Applica</translation>
    </message>
    <message>
        <source>%1: flow chart</source>
        <translation>%1: diagramma di flusso</translation>
    </message>
    <message>
        <source>%1: actions</source>
        <translation>%1: azioni</translation>
    </message>
    <message>
        <source>%1: properties of the selected action</source>
        <translation>%1: proprietà dell’azione selezionata</translation>
    </message>
    <message>
        <source>Devices</source>
        <translation>Dispositivi</translation>
    </message>
    <message>
        <source>Failed to save flash as %1 tab has invalid property value: 

%2</source>
        <translation>Impossibile salvare il dispositivo flash perché la scheda «%1» contiene un valore di proprietà non valido: 

%2</translation>
    </message>
    <message>
        <source>Tempate name &apos;%1&apos; is conflicts with the device name %2.</source>
        <translation>Il nome del modello «%1» è in conflitto con il nome del dispositivo %2.</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Nome</translation>
    </message>
    <message>
        <source>Failed to set the custom database directory to </source>
        <translation>Impossibile impostare la cartella del database personalizzato su </translation>
    </message>
    <message>
        <source>Browse</source>
        <translation>Sfoglia</translation>
    </message>
    <message>
        <source>i.e. 0xC2 0x20 0x19</source>
        <translation>ad es. 0xC2 0x20 0x19</translation>
    </message>
    <message>
        <source>Insert</source>
        <translation>Inserisci</translation>
    </message>
    <message>
        <source>Actions:</source>
        <translation>Azioni:</translation>
    </message>
    <message>
        <source>Property</source>
        <translation>Proprietà</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>Valore</translation>
    </message>
</context>
<context>
    <name>gfpq_edit_template_dlg</name>
    <message>
        <source>Edit Templates</source>
        <translation>Modifica modelli</translation>
    </message>
    <message>
        <source>Templates:</source>
        <translation>Modelli:</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Rimuovi</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Chiudi</translation>
    </message>
</context>
</TS>
