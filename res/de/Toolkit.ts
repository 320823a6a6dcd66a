<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de_DE" sourcelanguage="en">
<context>
 <name>QPlatformTheme</name>
 <message><source>&amp;Yes</source><translation>&amp;Ja</translation></message>
 <message><source>&amp;No</source><translation>&amp;Nein</translation></message>
 <message><source>Cancel</source><translation>Abbrechen</translation></message>
 <message><source>Apply</source><translation>Übernehmen</translation></message>
 <message><source>Close</source><translation>Schließen</translation></message>
 <message><source>Abort</source><translation>Abbrechen</translation></message>
 <message><source>Retry</source><translation>Wiederholen</translation></message>
 <message><source>Ignore</source><translation>Ignorieren</translation></message>
 <message><source>Open</source><translation>Öffnen</translation></message>
 <message><source>Save</source><translation>Speichern</translation></message>
</context>
</TS>
