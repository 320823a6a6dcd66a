<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de_DE" sourcelanguage="en">
<context>
    <name>CMyPropertySheet0</name>
    <message>
        <source>Telescope Properties</source>
        <translation>Eigenschaften des Teleskops</translation>
    </message>
    <message>
        <source>General Remarks</source>
        <translation>Bemerkungen</translation>
    </message>
    <message>
        <source>Primary</source>
        <translation>Hauptspiegel</translation>
    </message>
    <message>
        <source>Tube</source>
        <translation>Tubus</translation>
    </message>
    <message>
        <source>Focuser</source>
        <translation>Focuser</translation>
    </message>
    <message>
        <source>Secondary</source>
        <translation>Fangspiegel</translation>
    </message>
    <message>
        <source>Mirror Cell</source>
        <translation>Spiegelzelle</translation>
    </message>
    <message>
        <source>Eyepieces</source>
        <translation>Okulare</translation>
    </message>
    <message>
        <source>Center of Gravity</source>
        <translation>Schwerpunkt</translation>
    </message>
</context>
</TS>
