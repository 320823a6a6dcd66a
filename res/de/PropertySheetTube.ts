<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de_DE" sourcelanguage="en">
<context>
    <name>CPropertySheetTube</name>
    <message>
        <source>Tube Properties</source>
        <translation>Eigenschaften Tubus</translation>
    </message>
    <message>
        <source>General</source>
        <translation>Allgemein</translation>
    </message>
    <message>
        <source>Tube</source>
        <translation>Volltubus</translation>
    </message>
    <message>
        <source>Truss Tube</source>
        <translation>Gitterrohrtubus</translation>
    </message>
</context>
</TS>
