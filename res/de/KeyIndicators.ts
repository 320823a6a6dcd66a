<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de_DE" sourcelanguage="en">
<context>
    <name>KeyIndicators</name>
    <message>
        <source>CAP</source>
        <translation>UF</translation>
    </message>
    <message>
        <source>NUM</source>
        <translation>NUM</translation>
    </message>
    <message>
        <source>SCRL</source>
        <translation>RF</translation>
    </message>
</context>
</TS>
