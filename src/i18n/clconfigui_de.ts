<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de" sourcelanguage="en">
<context>
    <name>ui_config</name>
    <message>
        <source>CL-Test CSV Files (*.csv)</source>
        <translation>CL-Test-CSV-Dateien (*.csv)</translation>
    </message>
    <message>
        <source>Cellaro® MPR Files (*.mpr)</source>
        <translation>Cellaro®-MPR-Dateien (*.mpr)</translation>
    </message>
</context>
</TS>
