<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de_DE" sourcelanguage="en">
<context>
    <name>WorkshopSheetsDialog</name>
    <message>
        <source>Workshop sheets</source>
        <translation>Werkstattblätter</translation>
    </message>
    <message>
        <source>&amp;Sheets</source>
        <translation>&amp;Blätter</translation>
    </message>
    <message>
        <source>P&amp;aper</source>
        <translation>&amp;Papier</translation>
    </message>
    <message>
        <source>&amp;Zones of mask and pinstick</source>
        <translation>&amp;Zonen von Maske und Pinstick</translation>
    </message>
    <message>
        <source>&amp;Centre left out (% of the area)</source>
        <translation>Ausgelassene &amp;Mitte (% der Fläche)</translation>
    </message>
    <message>
        <source>S&amp;ize on the screen</source>
        <translation>&amp;Größe am Bildschirm</translation>
    </message>
    <message>
        <source>Preview</source>
        <translation>Vorschau</translation>
    </message>
    <message>
        <source>Print at 100 %, and hold the control lines against a rule: each measures 100 mm.</source>
        <translation>Mit 100 % drucken und die Kontrolllinien nachmessen: Jede ist 100 mm lang.</translation>
    </message>
    <message>
        <source>Sa&amp;ve as PDF...</source>
        <translation>Als PDF &amp;sichern...</translation>
    </message>
    <message>
        <source>&amp;Print...</source>
        <translation>&amp;Drucken...</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Schließen</translation>
    </message>
</context>
</TS>
