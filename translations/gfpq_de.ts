<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de" sourcelanguage="en">
<context>
    <name>gfpq_dlg</name>
    <message>
        <source>Configuration Device</source>
        <translation>Konfigurationsbaustein</translation>
    </message>
    <message>
        <source>Device family: </source>
        <translation>Bausteinfamilie: </translation>
    </message>
    <message>
        <source>Configuration mode: </source>
        <translation>Konfigurationsmodus: </translation>
    </message>
    <message>
        <source>Custom database directory:</source>
        <translation>Eigenes Datenbankverzeichnis:</translation>
    </message>
    <message>
        <source>Browse...</source>
        <translation>Durchsuchen...</translation>
    </message>
    <message>
        <source>Name filter:</source>
        <translation>Namensfilter:</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Löschen</translation>
    </message>
    <message>
        <source>Device name: </source>
        <translation>Bausteinname: </translation>
    </message>
    <message>
        <source>Device ID: </source>
        <translation>Baustein-ID: </translation>
    </message>
    <message>
        <source>Device I/O voltage: </source>
        <translation>I/O-Spannung: </translation>
    </message>
    <message>
        <source>Device density: </source>
        <translation>Speicherkapazität: </translation>
    </message>
    <message>
        <source>Total device die:</source>
        <translation>Anzahl Dies gesamt:</translation>
    </message>
    <message>
        <source>Single I/O mode dummy clock: </source>
        <translation>Dummy-Takte im Single-I/O-Modus: </translation>
    </message>
    <message>
        <source>Quad I/O mode dummy clock:</source>
        <translation>Dummy-Takte im Quad-I/O-Modus:</translation>
    </message>
    <message>
        <source>Programming flow template: </source>
        <translation>Ablaufvorlage: </translation>
    </message>
    <message>
        <source>Edit...</source>
        <translation>Bearbeiten...</translation>
    </message>
    <message>
        <source>Save as template</source>
        <translation>Als Vorlage speichern</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>Apply</source>
        <translation>Anwenden</translation>
    </message>
    <message>
        <source>%1: flow chart</source>
        <translation>%1: Ablaufdiagramm</translation>
    </message>
    <message>
        <source>%1: actions</source>
        <translation>%1: Aktionen</translation>
    </message>
    <message>
        <source>%1: properties of the selected action</source>
        <translation>%1: Eigenschaften der ausgewählten Aktion</translation>
    </message>
    <message>
        <source>Devices</source>
        <translation>Bausteine</translation>
    </message>
    <message>
        <source>Failed to save flash as %1 tab has invalid property value: 

%2</source>
        <translation>Der Flash-Baustein wurde nicht gespeichert, weil die Registerkarte „%1“ einen ungültigen Eigenschaftswert enthält: 

%2</translation>
    </message>
    <message>
        <source>Tempate name &apos;%1&apos; is conflicts with the device name %2.</source>
        <translation>Der Vorlagenname „%1“ stimmt mit dem Bausteinnamen %2 überein.</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Name</translation>
    </message>
    <message>
        <source>Failed to set the custom database directory to </source>
        <translation>Folgendes Verzeichnis konnte nicht als eigenes Datenbankverzeichnis gesetzt werden: </translation>
    </message>
    <message>
        <source>Browse</source>
        <translation>Durchsuchen</translation>
    </message>
    <message>
        <source>i.e. 0xC2 0x20 0x19</source>
        <translation>z.&#xa0;B. 0xC2 0x20 0x19</translation>
    </message>
    <message>
        <source>Insert</source>
        <translation>Aktion einfügen</translation>
    </message>
    <message>
        <source>Actions:</source>
        <translation>Aktionen:</translation>
    </message>
    <message>
        <source>Property</source>
        <translation>Eigenschaft</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>Wert</translation>
    </message>
</context>
<context>
    <name>gfpq_edit_template_dlg</name>
    <message>
        <source>Edit Templates</source>
        <translation>Vorlagen bearbeiten</translation>
    </message>
    <message>
        <source>Templates:</source>
        <translation>Vorlagen:</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Entfernen</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Schließen</translation>
    </message>
</context>
</TS>
