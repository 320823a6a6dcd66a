<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de_DE" sourcelanguage="en">
<context>
    <name>MyPropertyPage07</name>
    <message>
        <source>Designation</source>
        <translation>Bezeichnung</translation>
    </message>
    <message>
        <source>&amp;Use the installed list</source>
        <translation>&amp;Installierte Liste verwenden</translation>
    </message>
    <message>
        <source>Results</source>
        <translation>Ergebnisse</translation>
    </message>
    <message>
        <source>The focal length is in millimetres, whatever stands behind it.</source>
        <translation>Die Brennweite ist in Millimetern, was auch dahinter steht.</translation>
    </message>
</context>
</TS>
