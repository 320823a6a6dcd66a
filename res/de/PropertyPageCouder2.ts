<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de_DE" sourcelanguage="en">
<context>
    <name>PropertyPageCouder2</name>
    <message>
        <source>Series of readings</source>
        <translation>Messreihen</translation>
    </message>
    <message>
        <source>Add</source>
        <translation>Hinzufügen</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>Kopieren</translation>
    </message>
    <message>
        <source>Rename</source>
        <translation>Umbenennen</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Löschen</translation>
    </message>
    <message>
        <source>Import...</source>
        <translation>Importieren...</translation>
    </message>
    <message>
        <source>Export...</source>
        <translation>Exportieren...</translation>
    </message>
    <message>
        <source>Hold the checked series side by side</source>
        <translation>Angekreuzte Messreihen nebeneinander zeigen</translation>
    </message>
    <message>
        <source>Average the checked series</source>
        <translation>Angekreuzte Messreihen mitteln</translation>
    </message>
</context>
</TS>
