<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de_DE" sourcelanguage="en">
<context>
    <name>PropertyPageCouder4</name>
    <message>
        <source>Wanted conic constant</source>
        <translation>Gewünschte konische Konstante</translation>
    </message>
    <message>
        <source>Wavelength (nm)</source>
        <translation>Wellenlänge (nm)</translation>
    </message>
    <message>
        <source>Light source</source>
        <translation>Lichtquelle</translation>
    </message>
    <message>
        <source>moving with the knife</source>
        <translation>mit der Schneide bewegt</translation>
    </message>
    <message>
        <source>fixed</source>
        <translation>fest</translation>
    </message>
    <message>
        <source>Results</source>
        <translation>Ergebnisse</translation>
    </message>
</context>
</TS>
