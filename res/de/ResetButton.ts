<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de_DE" sourcelanguage="en">
<context>
    <name>CResetButton</name>
    <message>
        <source>Put back to the proposed value</source>
        <translation>Auf den vorgeschlagenen Wert zurücksetzen</translation>
    </message>
</context>
</TS>
