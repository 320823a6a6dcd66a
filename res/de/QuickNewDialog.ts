<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de_DE" sourcelanguage="en">
<context>
    <name>QuickNewDialog</name>
    <message>
        <source>New</source>
        <translation>Neu</translation>
    </message>
    <message>
        <source>Title</source>
        <translation>Titel</translation>
    </message>
    <message>
        <source>Aperture</source>
        <translation>Öffnung</translation>
    </message>
    <message>
        <source>Focal Length</source>
        <translation>Brennweite</translation>
    </message>
</context>
</TS>
