<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de_DE" sourcelanguage="en">
<context>
    <name>EarlierDesignsDialog</name>
    <message>
        <source>Earlier designs</source>
        <translation>Frühere Entwürfe</translation>
    </message>
    <message>
        <source>Cross-section</source>
        <translation>Querschnitt</translation>
    </message>
</context>
</TS>
