<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de_DE" sourcelanguage="en">
<context>
    <name>FieldSimulationDlg</name>
    <message>
        <source>Half a percent is added before rounding: 101% means 100%.</source>
        <translation>Vor dem Runden wird ein halbes Prozent addiert: 101% heißt 100%.</translation>
    </message>
</context>
</TS>
