<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de_DE" sourcelanguage="en">
<context>
    <name>MyPropertyPage03</name>
    <message>
        <source>Inner Diameter (mm)</source>
        <translation>Innendurchmesser (mm)</translation>
    </message>
    <message>
        <source>Hieght of retracted Focuser (mm)</source>
        <translation>Höhe des (eingefahrenen) Focusers (mm)</translation>
    </message>
    <message>
        <source>Height of Focal Plane above retracted Focuser
(additional height for eyepieces and correctors, mm)</source>
        <translation>Höhe der Brennebene über dem (eingefahrenen) Focuser
(zusätzliche Höhe für Okulare und Korrektoren, mm)</translation>
    </message>
    <message>
        <source>Focuser</source>
        <comment>group</comment>
        <translation>Auszug</translation>
    </message>
    <message>
        <source>Travel (mm)</source>
        <translation>Verstellweg des Innenrohres (Travel)</translation>
    </message>
    <message>
        <source>Pipe Length</source>
        <translation>Länge des Innenrohres</translation>
    </message>
    <message>
        <source>Sliding Focuser</source>
        <comment>group</comment>
        <translation>Schlitten</translation>
    </message>
    <message>
        <source>Travel (mm)</source>
        <comment>sliding</comment>
        <translation>Verstellweg (Travel)</translation>
    </message>
    <message>
        <source>Focuser</source>
        <translation>Okularauszug</translation>
    </message>
    <message>
        <source>Sliding Focuser</source>
        <translation>Okularschlitten</translation>
    </message>
    <message>
        <source>Combination Focuser / Sliding Focuser</source>
        <translation>Kombination aus Okularauszug und Okularschlittern</translation>
    </message>
</context>
</TS>
