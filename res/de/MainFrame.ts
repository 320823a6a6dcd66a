<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de_DE" sourcelanguage="en">
<context>
    <name>MainFrame</name>
    <message>
        <source>New ... 	Strg+N</source>
        <translation>Neu ... 	Strg+N</translation>
    </message>
    <message>
        <source>Design a new Telescope </source>
        <comment>prompt</comment>
        <translation>Neues Teleskop konzipieren</translation>
    </message>
    <message>
        <source>New (detailed) ...</source>
        <translation>Neu (ausführlich) ...</translation>
    </message>
    <message>
        <source>Open...</source>
        <translation>Öffnen...</translation>
    </message>
    <message>
        <source>Open</source>
        <comment>prompt</comment>
        <translation>Öffnen</translation>
    </message>
    <message>
        <source>Open</source>
        <comment>tooltip</comment>
        <translation>Öffnen</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Speicherm</translation>
    </message>
    <message>
        <source>Save</source>
        <comment>prompt</comment>
        <translation>Speichern</translation>
    </message>
    <message>
        <source>Save</source>
        <comment>tooltip</comment>
        <translation>Speichern</translation>
    </message>
    <message>
        <source>Save as...</source>
        <translation>Speichern unter...</translation>
    </message>
    <message>
        <source>Save as</source>
        <comment>prompt</comment>
        <translation>Speichern unter</translation>
    </message>
    <message>
        <source>Save as</source>
        <comment>tooltip</comment>
        <translation>Speichern unter</translation>
    </message>
    <message>
        <source>Import old Format</source>
        <translation>Altes Format importieren...</translation>
    </message>
    <message>
        <source>Import old Orreva Format</source>
        <comment>prompt</comment>
        <translation>Öffnet ein bestehendes Dokument.</translation>
    </message>
    <message>
        <source>Import</source>
        <comment>tooltip</comment>
        <translation>Öffnen</translation>
    </message>
    <message>
        <source>Export OSLO Format...</source>
        <translation>OSLO Daten exportieren...</translation>
    </message>
    <message>
        <source>Export OSLO Format</source>
        <comment>prompt</comment>
        <translation>Oslo Daten exportieren</translation>
    </message>
    <message>
        <source>Export</source>
        <comment>tooltip</comment>
        <translation>Exportieren</translation>
    </message>
    <message>
        <source>Export Foucault Test Analysis 2.0B Data</source>
        <translation>Foucault Test Analysis 2.0B Daten exportieren...</translation>
    </message>
    <message>
        <source>&amp;Print...	Strg+P</source>
        <translation>&amp;Drucken...	Strg+P</translation>
    </message>
    <message>
        <source>Print the active pane</source>
        <comment>prompt</comment>
        <translation>Druckt den aktiven Fensterteil</translation>
    </message>
    <message>
        <source>Print</source>
        <comment>tooltip</comment>
        <translation>Drucken</translation>
    </message>
    <message>
        <source>Print Preview</source>
        <translation>Sei&amp;tenansicht</translation>
    </message>
    <message>
        <source>Show the pages as they will be printed</source>
        <comment>prompt</comment>
        <translation>Zeigt die Seiten, wie sie gedruckt werden</translation>
    </message>
    <message>
        <source>Print Preview</source>
        <comment>tooltip</comment>
        <translation>Seitenansicht</translation>
    </message>
    <message>
        <source>Print Setup</source>
        <translation>Drucker&amp;einrichtung...</translation>
    </message>
    <message>
        <source>Choose the paper and how it is printed on</source>
        <comment>prompt</comment>
        <translation>Papier und seine Bedruckung wählen</translation>
    </message>
    <message>
        <source>Print Setup</source>
        <comment>tooltip</comment>
        <translation>Druckereinrichtung</translation>
    </message>
    <message>
        <source>E&amp;xit</source>
        <translation>&amp;Beenden</translation>
    </message>
    <message>
        <source>Leave the program</source>
        <comment>prompt</comment>
        <translation>Verlässt das Programm</translation>
    </message>
    <message>
        <source>Exit</source>
        <comment>tooltip</comment>
        <translation>Beenden</translation>
    </message>
    <message>
        <source>Earlier designs...</source>
        <translation>Frühere Entwürfe...</translation>
    </message>
    <message>
        <source>Copies of designs that were not saved</source>
        <comment>prompt</comment>
        <translation>Kopien von Entwürfen, die nicht gesichert wurden</translation>
    </message>
    <message>
        <source>Report as PDF...</source>
        <translation>Bericht als PDF...</translation>
    </message>
    <message>
        <source>The whole design on some pages: cross-section, tables, curves</source>
        <comment>prompt</comment>
        <translation>Der ganze Entwurf auf einigen Seiten: Querschnitt, Tabellen, Kurven</translation>
    </message>
    <message>
        <source>Workshop sheets...</source>
        <translation>Werkstattblätter...</translation>
    </message>
    <message>
        <source>Masks, secondary, marks and tube in true scale, to cut and drill by</source>
        <comment>prompt</comment>
        <translation>Masken, Fangspiegel, Markierungen und Tubus im Maßstab 1:1, zum Schneiden und Bohren</translation>
    </message>
    <message>
        <source>Undo	Ctrl+Z</source>
        <translation>Rückgängig	Strg+Z</translation>
    </message>
    <message>
        <source>Take back the last step</source>
        <comment>prompt</comment>
        <translation>Nimmt den letzten Schritt zurück</translation>
    </message>
    <message>
        <source>Redo	Ctrl+Y</source>
        <translation>Wiederholen	Strg+Y</translation>
    </message>
    <message>
        <source>Do the step again that was taken back</source>
        <comment>prompt</comment>
        <translation>Wiederholt den zurückgenommenen Schritt</translation>
    </message>
    <message>
        <source>Properties	Strg+E</source>
        <translation>Eigenschaften	Strg+E</translation>
    </message>
    <message>
        <source>Edit Properties</source>
        <comment>prompt</comment>
        <translation>Eigenschaften des Teleskopes bearbeiten</translation>
    </message>
    <message>
        <source>Edit</source>
        <comment>tooltip</comment>
        <translation>Bearbeiten</translation>
    </message>
    <message>
        <source>Properties (Tube)</source>
        <translation>Eigenschaften Tubus</translation>
    </message>
    <message>
        <source>Maximal size of mirror center markers</source>
        <translation>Wie groß darf die Mittenmarkierung auf den Spiegeln sein</translation>
    </message>
    <message>
        <source>Minimal Distance to a artificial Star</source>
        <translation>Berechnen des minimalen Abstands zu einem künstlichen Stern</translation>
    </message>
    <message>
        <source>Simulation of the Field of View</source>
        <translation>Simulation des zu erwartenden Gesichtsfelds</translation>
    </message>
    <message>
        <source>Parallel rays from a spot in infinity</source>
        <translation>Parallel einfallende Strahlen von einem Punkt in der Unendlichkeit</translation>
    </message>
    <message>
        <source>Rays fron the focal plane</source>
        <translation>Punktförmige Lichtquelle ausgehend von der Brennebene</translation>
    </message>
    <message>
        <source>Rays from the Mouse Pointer</source>
        <translation>Punktförmige Lichtquelle ausgehend vom Mauszeiger</translation>
    </message>
    <message>
        <source>Raytracing Settings</source>
        <translation>Einstellungen zum Raytracing</translation>
    </message>
    <message>
        <source>Show Secondary without Offset</source>
        <translation>Fangspiegel ohne Offset darstellen</translation>
    </message>
    <message>
        <source>Show extended Focuser</source>
        <translation>Focuser ausgefahren zeigen</translation>
    </message>
    <message>
        <source>Show Rockerbox/Upper Cage</source>
        <translation>Spiegelbox/Hut zeigen</translation>
    </message>
    <message>
        <source>High contrast</source>
        <translation>Hoher Kontrast</translation>
    </message>
    <message>
        <source>Both panes in black on white</source>
        <comment>prompt</comment>
        <translation>Beide Hälften in Schwarz auf Weiß</translation>
    </message>
    <message>
        <source>Calculator</source>
        <translation>Rechner</translation>
    </message>
    <message>
        <source>Inch/mm Calculator</source>
        <translation>Zoll Rechner</translation>
    </message>
    <message>
        <source>Polygon Calculator</source>
        <translation>Mehreck Rechner</translation>
    </message>
    <message>
        <source>Sector Calculator</source>
        <translation>Kreisausschnitt Rechner</translation>
    </message>
    <message>
        <source>Design check	F8</source>
        <translation>Entwurf prüfen	F8</translation>
    </message>
    <message>
        <source>Compare designs...</source>
        <translation>Entwürfe vergleichen...</translation>
    </message>
    <message>
        <source>This design beside that of a file</source>
        <comment>prompt</comment>
        <translation>Dieser Entwurf neben dem einer Datei</translation>
    </message>
    <message>
        <source>Variation...</source>
        <translation>Variation...</translation>
    </message>
    <message>
        <source>What a parameter does to the values of the design</source>
        <comment>prompt</comment>
        <translation>Was ein Parameter an den Werten des Entwurfs bewirkt</translation>
    </message>
    <message>
        <source>What is wrong with the design, and what to do</source>
        <comment>prompt</comment>
        <translation>Was am Entwurf nicht stimmt, und was zu tun ist</translation>
    </message>
    <message>
        <source>Illumination...</source>
        <translation>Ausleuchtung...</translation>
    </message>
    <message>
        <source>The exact light over the field, and what other secondaries would give</source>
        <comment>prompt</comment>
        <translation>Das genaue Licht über dem Feld, und was andere Fangspiegel ergäben</translation>
    </message>
    <message>
        <source>Orreva Support Forum</source>
        <translation>Orreva Diskussionsforum</translation>
    </message>
    <message>
        <source>&amp;Help Themes</source>
        <translation>&amp;Hilfethemen</translation>
    </message>
    <message>
        <source>List the help themes</source>
        <comment>prompt</comment>
        <translation>Zeigt die Hilfethemen</translation>
    </message>
    <message>
        <source>Help Themes</source>
        <comment>tooltip</comment>
        <translation>Hilfethemen</translation>
    </message>
    <message>
        <source>Help on ...</source>
        <translation>Hilfe zu ...</translation>
    </message>
    <message>
        <source>Help on menus, buttons and windows</source>
        <comment>prompt</comment>
        <translation>Hilfe zu Menüs, Schaltflächen und Fenstern</translation>
    </message>
    <message>
        <source>Help</source>
        <comment>tooltip</comment>
        <translation>Hilfe</translation>
    </message>
    <message>
        <source>&amp;About Orreva...</source>
        <translation>&amp;Info über Orreva...</translation>
    </message>
    <message>
        <source>Tells the version and who made the program</source>
        <comment>prompt</comment>
        <translation>Zeigt die Version und wer das Programm gemacht hat</translation>
    </message>
    <message>
        <source>About</source>
        <comment>tooltip</comment>
        <translation>Info</translation>
    </message>
    <message>
        <source>Small Icons</source>
        <translation>Kleine Symbole</translation>
    </message>
    <message>
        <source>Small Icons</source>
        <comment>prompt</comment>
        <translation>Kleine Symbole</translation>
    </message>
    <message>
        <source>Large Icons</source>
        <translation>Große Symbole</translation>
    </message>
    <message>
        <source>Large Icons</source>
        <comment>prompt</comment>
        <translation>Große Symbole</translation>
    </message>
    <message>
        <source>List</source>
        <translation>Liste</translation>
    </message>
    <message>
        <source>List</source>
        <comment>prompt</comment>
        <translation>Liste</translation>
    </message>
    <message>
        <source>&amp;File</source>
        <translation>&amp;Datei</translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <translation>&amp;Bearbeiten</translation>
    </message>
    <message>
        <source>&amp;View</source>
        <translation>&amp;Ansicht</translation>
    </message>
    <message>
        <source>&amp;Tools</source>
        <translation>&amp;Werkzeuge</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>&amp;Hilfe</translation>
    </message>
    <message>
        <source>Toolbar</source>
        <translation>Symbolleiste</translation>
    </message>
    <message>
        <source>What if ...</source>
        <translation>Was wäre wenn ...</translation>
    </message>
</context>
</TS>
