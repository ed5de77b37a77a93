<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="da" sourcelanguage="en">
<context>
    <name>Search</name>
    <message>
        <source>String Not Equal To</source>
        <comment>OpName 101</comment>
        <translation>Tekst ikke lig med</translation>
    </message>
    <message>
        <source>String Contains</source>
        <comment>OpName 106</comment>
        <translation>Tekst indeholder</translation>
    </message>
</context>
</TS>
