<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de_DE" sourcelanguage="en">
<context>
    <name>AboutBox</name>
    <message>
        <source>Info about Orreva</source>
        <translation>Info über Orreva</translation>
    </message>
    <message>
        <source>The design workbench for builders of Newtonian telescopes.</source>
        <translation>Die Werkbank für den Entwurf von Newton-Teleskopen.</translation>
    </message>
    <message>
        <source>Copyright (c) 2026 The Orreva authors. MIT licence.</source>
        <translation>Copyright (c) 2026 The Orreva authors. MIT-Lizenz.</translation>
    </message>
</context>
</TS>
