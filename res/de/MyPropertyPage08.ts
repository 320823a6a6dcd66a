<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de_DE" sourcelanguage="en">
<context>
    <name>MyPropertyPage08</name>
    <message>
        <source>Weight and Center of Gravity of the Components</source>
        <translation>Gewichte und Schwerpunkte der verwendeten Komponenten</translation>
    </message>
    <message>
        <source>Results</source>
        <translation>Ergebnisse</translation>
    </message>
    <message>
        <source>Edit selected Component</source>
        <translation>Markierte Komponente bearbeiten</translation>
    </message>
    <message>
        <source>Suggest reasonable Values</source>
        <translation>Sinnvolle Werte vorschlagen</translation>
    </message>
</context>
</TS>
