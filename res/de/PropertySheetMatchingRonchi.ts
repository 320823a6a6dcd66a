<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de_DE" sourcelanguage="en">
<context>
    <name>CPropertySheetMatchingRonchi</name>
    <message>
        <source>Properties</source>
        <translation>Eigenschaftsblatt</translation>
    </message>
</context>
</TS>
