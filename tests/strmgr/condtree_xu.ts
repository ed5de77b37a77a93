<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fr" sourcelanguage="en">
<context>
    <name>Search</name>
    <message>
        <source>String Contains</source>
        <comment>OpName 106</comment>
        <translation>Texte contient</translation>
    </message>
</context>
</TS>
