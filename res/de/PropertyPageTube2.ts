<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de_DE" sourcelanguage="en">
<context>
    <name>PropertyPageTube2</name>
    <message>
        <source>Tube Thickness (mm)</source>
        <translation>Wanddicke (mm)</translation>
    </message>
</context>
</TS>
