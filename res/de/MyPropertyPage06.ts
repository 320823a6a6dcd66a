<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de_DE" sourcelanguage="en">
<context>
    <name>MyPropertyPage06</name>
    <message>
        <source>Wanted 100% illuminated field of view</source>
        <translation>Gewünschtes 100% ausgeleuchtetes Bildfeld</translation>
    </message>
    <message>
        <source>Degrees</source>
        <translation>Grad</translation>
    </message>
    <message>
        <source>Inner Diameter (mm)</source>
        <translation>Innendurchmesser (mm)</translation>
    </message>
    <message>
        <source>Thickness (mm)</source>
        <translation>Wanddicke (mm)</translation>
    </message>
    <message>
        <source>Distance Mirror to rear End of Tube (mm)</source>
        <translation>Abstand Hauptspiegel - hinteres Tubusende (mm)</translation>
    </message>
    <message>
        <source>Distance Focuser to front End of Tube (mm)</source>
        <translation>Abstand Focuser - vorderes Tubusende (mm)</translation>
    </message>
    <message>
        <source>Results</source>
        <translation>Ergebnisse</translation>
    </message>
</context>
</TS>
