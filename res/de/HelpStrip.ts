<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de_DE" sourcelanguage="en">
<context>
    <name>CHelpStrip</name>
    <message>
        <source>Info</source>
        <translation>Info</translation>
    </message>
    <message>
        <source>Help on this page</source>
        <translation>Hilfe zu dieser Seite</translation>
    </message>
</context>
</TS>
