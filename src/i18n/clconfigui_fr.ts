<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fr" sourcelanguage="en">
<context>
    <name>ui_config</name>
    <message>
        <source>CL-Test CSV Files (*.csv)</source>
        <translation>Fichiers CSV CL-Test (*.csv)</translation>
    </message>
    <message>
        <source>Cellaro® MPR Files (*.mpr)</source>
        <translation>Fichiers MPR Cellaro® (*.mpr)</translation>
    </message>
</context>
</TS>
