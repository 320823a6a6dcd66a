<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de_DE" sourcelanguage="en">
<context>
    <name>PropertyPageCouder3</name>
    <message>
        <source>Series</source>
        <translation>Messreihe</translation>
    </message>
    <message>
        <source>Delete zone</source>
        <translation>Zone löschen</translation>
    </message>
    <message>
        <source>Readings of the zones</source>
        <translation>Messwerte der Zonen</translation>
    </message>
    <message>
        <source>Enter walks down a run, TAB along a zone. A block of a spreadsheet can be pasted.</source>
        <translation>Enter geht eine Messung abwärts, TAB eine Zone entlang. Ein Block aus einer Tabellenkalkulation kann eingefügt werden.</translation>
    </message>
</context>
</TS>
