<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de_DE" sourcelanguage="en">
<context>
    <name>RaytracingSettingsDialog</name>
    <message>
        <source>Raytracing Settings</source>
        <translation>Einstellungen zum Raytracing</translation>
    </message>
    <message>
        <source>Dont show rays that are missing the focal plane</source>
        <translation>Strahlen, die das Okular verfehlten nicht zeigen</translation>
    </message>
    <message>
        <source>Show rays that are missing the focal plane in gray.</source>
        <translation>Strahlen, die das Okular verfehlten in Grau zeigen</translation>
    </message>
    <message>
        <source>OK turns the setting round, whichever of the two is chosen. Cancel leaves it.</source>
        <translation>OK kehrt die Einstellung um, was auch gewählt ist. Abbrechen lässt sie.</translation>
    </message>
</context>
</TS>
