<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de_DE" sourcelanguage="en">
<context>
    <name>MyPropertyPage04</name>
    <message>
        <source>Wanter 100% illuminated field of view (mm)</source>
        <translation>Gewünschtes 100% ausgeleuchtetes Bildfeld</translation>
    </message>
    <message>
        <source>Degrees</source>
        <translation>Grad</translation>
    </message>
    <message>
        <source>Diameter of minor Axis (mm)</source>
        <translation>Durchmesser der kleinen Achse</translation>
    </message>
    <message>
        <source>Results</source>
        <translation>Ergebnisse</translation>
    </message>
    <message>
        <source>Curve...</source>
        <translation>Kurve...</translation>
    </message>
    <message>
        <source>Show Details</source>
        <translation>Details einblenden</translation>
    </message>
</context>
</TS>
