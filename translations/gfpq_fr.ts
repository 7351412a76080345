<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fr" sourcelanguage="en">
<context>
    <name>gfpq_dlg</name>
    <message>
        <source>Configuration Device</source>
        <translation>Composant de configuration</translation>
    </message>
    <message>
        <source>Device family: </source>
        <translation>Famille de composants&#xa0;: </translation>
    </message>
    <message>
        <source>Configuration mode: </source>
        <translation>Mode de configuration&#xa0;: </translation>
    </message>
    <message>
        <source>Custom database directory:</source>
        <translation>Répertoire de base de données personnalisé&#xa0;:</translation>
    </message>
    <message>
        <source>Browse...</source>
        <translation>Parcourir...</translation>
    </message>
    <message>
        <source>Name filter:</source>
        <translation>Filtrer par nom&#xa0;:</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Supprimer</translation>
    </message>
    <message>
        <source>Device name: </source>
        <translation>Nom du composant&#xa0;: </translation>
    </message>
    <message>
        <source>Device ID: </source>
        <translation>ID du composant&#xa0;: </translation>
    </message>
    <message>
        <source>Device I/O voltage: </source>
        <translation>Tension d’I/O&#xa0;: </translation>
    </message>
    <message>
        <source>Device density: </source>
        <translation>Capacité du composant&#xa0;: </translation>
    </message>
    <message>
        <source>Total device die:</source>
        <translation>Nombre total de dies&#xa0;:</translation>
    </message>
    <message>
        <source>Single I/O mode dummy clock: </source>
        <translation>Cycles dummy en mode Single I/O&#xa0;: </translation>
    </message>
    <message>
        <source>Quad I/O mode dummy clock:</source>
        <translation>Cycles dummy en mode Quad I/O&#xa0;:</translation>
    </message>
    <message>
        <source>Programming flow template: </source>
        <translation>Modèle de flot de programmation&#xa0;: </translation>
    </message>
    <message>
        <source>Edit...</source>
        <translation>Modifier...</translation>
    </message>
    <message>
        <source>Save as template</source>
        <translation>Enregistrer comme modèle</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annuler</translation>
    </message>
    <message>
        <source>Apply</source>
        <translation>Appliquer</translation>
    </message>
    <message>
        <source>%1: flow chart</source>
        <translation>%1&#xa0;: organigramme</translation>
    </message>
    <message>
        <source>%1: actions</source>
        <translation>%1&#xa0;: actions</translation>
    </message>
    <message>
        <source>%1: properties of the selected action</source>
        <translation>%1&#xa0;: propriétés de l’action sélectionnée</translation>
    </message>
    <message>
        <source>Devices</source>
        <translation>Composants</translation>
    </message>
    <message>
        <source>Failed to save flash as %1 tab has invalid property value: 

%2</source>
        <translation>Le composant flash n’a pas été enregistré, car l’onglet «&#xa0;%1&#xa0;» contient une valeur de propriété non valide&#xa0;: 

%2</translation>
    </message>
    <message>
        <source>Tempate name &apos;%1&apos; is conflicts with the device name %2.</source>
        <translation>Le nom de modèle «&#xa0;%1&#xa0;» est en conflit avec le nom du composant %2.</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Nom</translation>
    </message>
    <message>
        <source>Failed to set the custom database directory to </source>
        <translation>Impossible de définir le répertoire de base de données personnalisé sur </translation>
    </message>
    <message>
        <source>Browse</source>
        <translation>Parcourir</translation>
    </message>
    <message>
        <source>i.e. 0xC2 0x20 0x19</source>
        <translation>p.&#xa0;ex. 0xC2 0x20 0x19</translation>
    </message>
    <message>
        <source>Insert</source>
        <translation>Insérer</translation>
    </message>
    <message>
        <source>Actions:</source>
        <translation>Actions&#xa0;:</translation>
    </message>
    <message>
        <source>Property</source>
        <translation>Propriété</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>Valeur</translation>
    </message>
</context>
<context>
    <name>gfpq_edit_template_dlg</name>
    <message>
        <source>Edit Templates</source>
        <translation>Modifier les modèles</translation>
    </message>
    <message>
        <source>Templates:</source>
        <translation>Modèles&#xa0;:</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Supprimer</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Fermer</translation>
    </message>
</context>
</TS>
