<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de_DE" sourcelanguage="en">
<context>
 <name>PropertyPageTube2</name>
 <message><source>About these pages</source><translation>Über diese Seiten</translation></message>
 <message><source>Help for this page</source><translation>Hilfe zu dieser Seite</translation></message>
 <message><source>Tube Thickness (mm)</source><translation>Wanddicke (mm)</translation></message>
 <message><source>Reset to the proposed value</source><translation>Auf den Vorschlag zurücksetzen</translation></message>
</context>
</TS>
