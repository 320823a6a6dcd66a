<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de_DE" sourcelanguage="en">
<context>
    <name>SectorDialog</name>
    <message>
        <source>Circle Segment Calculator</source>
        <translation>Kraisausschnitt Rechner</translation>
    </message>
    <message>
        <source>Circle Diameter</source>
        <translation>Kreisdurchmesser</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>Typ</translation>
    </message>
    <message>
        <source>Angle</source>
        <translation>Winkel</translation>
    </message>
    <message>
        <source>Sagitta</source>
        <translation>Pfeiltiefe</translation>
    </message>
    <message>
        <source>Cutting Length</source>
        <translation>Schnittlänge</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>Wert</translation>
    </message>
    <message>
        <source>Drawing</source>
        <translation>Zeichnung</translation>
    </message>
    <message>
        <source>The third entry takes an angle, whatever its name. The others are not ready.</source>
        <translation>Der dritte Eintrag nimmt einen Winkel. Die anderen sind noch nicht fertig.</translation>
    </message>
</context>
</TS>
