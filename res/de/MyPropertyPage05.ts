<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de_DE" sourcelanguage="en">
<context>
    <name>MyPropertyPage05</name>
    <message>
        <source>Results</source>
        <translation>Ergebnisse</translation>
    </message>
    <message>
        <source>&quot;6 points&quot; means the support on nine points.</source>
        <translation>„6 Punkt Spiegelzelle“ meint die Auflage auf neun Punkten.</translation>
    </message>
</context>
</TS>
