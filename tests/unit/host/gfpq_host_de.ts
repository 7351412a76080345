<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de_DE">
<context>
    <name>probe</name>
    <message>
        <source>Erase</source>
        <translation>Löschen</translation>
    </message>
</context>
</TS>
