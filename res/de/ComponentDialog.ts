<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de_DE" sourcelanguage="en">
<context>
    <name>ComponentDialog</name>
    <message>
        <source>Weight of the component in Gramms</source>
        <translation>Gewicht der Komponente in Gramm.</translation>
    </message>
    <message>
        <source>Center of Gravity starting from the rear end of the tube</source>
        <translation>Schwerpunkt ausgehend von spiegelseitigen Tubusende</translation>
    </message>
    <message>
        <source>Weight and Center of Gravity</source>
        <translation>Gewicht und Schwerpunkt einer Komponente</translation>
    </message>
</context>
</TS>
