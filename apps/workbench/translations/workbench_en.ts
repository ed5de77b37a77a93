<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en" sourcelanguage="en">
<context>
    <name>RecordChanges</name>
    <message numerus="yes">
        <source>%1 and %n more</source>
        <extracomment>A list of row numbers that is cut: &quot;1, 2, 3, 4, 5 and 7 more&quot;</extracomment>
        <translation>
            <numerusform>%1 and %n more</numerusform>
            <numerusform>%1 and %n more</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>condtree::workbench::ConditionEditor</name>
    <message numerus="yes">
        <source>Saving will drop %n of the %1 record(s) that were read.</source>
        <translation>
            <numerusform>Saving will drop %n of the %1 records that were read.</numerusform>
            <numerusform>Saving will drop %n of the %1 records that were read.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Saving will store something other than what was read: %n of the %1 record(s), row(s) %2.</source>
        <extracomment>%n counts the records that change, %1 all; %2 names the first: &quot;3&quot;, &quot;1, 2 and 9&quot;</extracomment>
        <translation>
            <numerusform>Saving will store something other than what was read: %n of the %1 records, row %2.</numerusform>
            <numerusform>Saving will store something other than what was read: %n of the %1 records, rows %2.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>condtree::workbench::TransitionList</name>
    <message numerus="yes">
        <source>The condition has %n row(s) and group(s)</source>
        <translation>
            <numerusform>The condition has one row or group</numerusform>
            <numerusform>The condition has %n rows and groups</numerusform>
        </translation>
    </message>
</context>
</TS>
