<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de_DE" sourcelanguage="en">
<context>
    <name>CPropertySheetCouder</name>
    <message>
        <source>Couder Properties</source>
        <translation>Eigenschaften Couder</translation>
    </message>
</context>
</TS>
