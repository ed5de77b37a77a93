<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de" sourcelanguage="en">
<context>
    <name>Search</name>
    <message>
        <source>String Contains</source>
        <comment>OpName 106</comment>
        <translation>Text enthält</translation>
    </message>
    <message>
        <source>File</source>
        <comment>TS 733</comment>
        <translation>Suchdatei</translation>
    </message>
</context>
<context>
    <name>Workflow</name>
    <message>
        <source>File</source>
        <comment>TS 733</comment>
        <translation>Datei</translation>
    </message>
    <message>
        <source>File</source>
        <comment>TS 734</comment>
        <translation>Akte</translation>
    </message>
    <message>
        <source>File</source>
        <comment>RefDlg 733</comment>
        <translation>Verweisdatei</translation>
    </message>
    <message>
        <source>Größe</source>
        <comment>TS -5</comment>
        <translation>Maße %1 von %n</translation>
    </message>
    <message>
        <source>Group</source>
        <comment>TS 180</comment>
        <translation type="unfinished"></translation>
    </message>
</context>
</TS>
