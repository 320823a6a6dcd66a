<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de_DE" sourcelanguage="en">
<context>
    <name>PolygonDialog</name>
    <message>
        <source>Polygon Calculator</source>
        <translation>Mehreck Rechner</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>Typ</translation>
    </message>
    <message>
        <source>Inner Diameter</source>
        <translation>Innendurchmesser</translation>
    </message>
    <message>
        <source>Tube Thickness</source>
        <translation>Wanddurchmesser</translation>
    </message>
    <message>
        <source>Drawing</source>
        <translation>Zeichnung</translation>
    </message>
</context>
</TS>
