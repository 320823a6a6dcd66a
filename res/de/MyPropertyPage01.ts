<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de_DE" sourcelanguage="en">
<context>
    <name>MyPropertyPage01</name>
    <message>
        <source>Projects Working Title</source>
        <translation>Arbeitstitel des Projekts</translation>
    </message>
    <message>
        <source>General Remarks</source>
        <translation>Bemerkungen</translation>
    </message>
</context>
</TS>
