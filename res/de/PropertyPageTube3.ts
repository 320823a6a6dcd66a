<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de_DE" sourcelanguage="en">
<context>
    <name>PropertyPageTube3</name>
    <message>
        <source>Mirror Box</source>
        <translation>Spiegelbox</translation>
    </message>
    <message>
        <source>Tickness (mm)</source>
        <translation>Wanddicke (mm)</translation>
    </message>
    <message>
        <source>Height (mm)</source>
        <translation>Höhe (mm)</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>Typ</translation>
    </message>
    <message>
        <source>Distance rror Box / Upper Cage</source>
        <translation>Abstand Spiegelzelle/Hut (mm)</translation>
    </message>
    <message>
        <source>Upper Cage</source>
        <translation>Hut</translation>
    </message>
    <message>
        <source>The free gap between mirror box and upper cage, not the length of the poles.</source>
        <translation>Der freie Abstand zwischen Spiegelkiste und Hut, nicht die Länge der Stangen.</translation>
    </message>
</context>
</TS>
