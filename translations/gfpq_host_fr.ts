<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fr" sourcelanguage="en">
<context>
    <name>HOST_WINDOW</name>
    <message>
        <source>none</source>
        <translation>aucun</translation>
    </message>
    <message>
        <source>Device family:</source>
        <translation>Famille de composants&#xa0;:</translation>
    </message>
    <message>
        <source>Configuration mode:</source>
        <translation>Mode de configuration&#xa0;:</translation>
    </message>
    <message>
        <source>Configuration device:</source>
        <translation>Composant de configuration&#xa0;:</translation>
    </message>
    <message>
        <source>Database directory:</source>
        <translation>Répertoire de la base de données&#xa0;:</translation>
    </message>
    <message>
        <source>Configuration Device...</source>
        <translation>Composant de configuration...</translation>
    </message>
    <message>
        <source>&amp;Programmer</source>
        <translation>&amp;Programmateur</translation>
    </message>
    <message>
        <source>&amp;Configuration Device...</source>
        <translation>&amp;Composant de configuration...</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>&amp;Quitter</translation>
    </message>
</context>
</TS>
