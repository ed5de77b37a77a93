<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="da" sourcelanguage="en">
<context>
    <name>QPlatformTheme</name>
    <message>
        <source>Save</source>
        <translation>Bevar</translation>
    </message>
</context>
</TS>
