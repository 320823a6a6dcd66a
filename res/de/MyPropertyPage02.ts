<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de_DE" sourcelanguage="en">
<context>
    <name>MyPropertyPage02</name>
    <message>
        <source>Focal Length (mm)</source>
        <translation>Brennweite (mm)</translation>
    </message>
    <message>
        <source>Diameter (mm)</source>
        <translation>Durchmesser (mm)</translation>
    </message>
    <message>
        <source>Thickness (mm)</source>
        <translation>Spiegeldicke (mm)</translation>
    </message>
    <message>
        <source>Material</source>
        <translation>Material</translation>
    </message>
    <message>
        <source>Modulus (E-Modul)</source>
        <translation>E-Modul (Modulus)</translation>
    </message>
    <message>
        <source>Poisson&apos;s Ratio</source>
        <translation>Querkontraktionszahl (Poisson)</translation>
    </message>
    <message>
        <source>Density</source>
        <translation>Dichte (Density)</translation>
    </message>
    <message>
        <source>Results</source>
        <translation>Ergebnisse</translation>
    </message>
    <message>
        <source>Show Details</source>
        <translation>Details einblenden</translation>
    </message>
    <message>
        <source>The names beside the resolution are mixed up: 116/D is Dawes, 138/D is Rayleigh.</source>
        <translation>Die Namen neben der Auflösung sind vertauscht: 116/D ist Dawes, 138/D ist Rayleigh.</translation>
    </message>
</context>
</TS>
