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
    <message>
        <source>Device &amp;family:</source>
        <translation>&amp;Famille de composants&#xa0;:</translation>
    </message>
    <message>
        <source>Configuration &amp;mode:</source>
        <translation>&amp;Mode de configuration&#xa0;:</translation>
    </message>
    <message>
        <source>Configuration &amp;device:</source>
        <translation>Composan&amp;t de configuration&#xa0;:</translation>
    </message>
    <message>
        <source>Database di&amp;rectory:</source>
        <translation>&amp;Répertoire de la base de données&#xa0;:</translation>
    </message>
</context>
</TS>
