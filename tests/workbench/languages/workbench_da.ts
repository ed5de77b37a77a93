<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="da" sourcelanguage="en">
<context>
    <name>Messages</name>
    <message>
        <source>CondTree Workbench</source>
        <translation>CondTree-værksted</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1 – %2</translation>
    </message>
</context>
<context>
    <name>condtree::workbench::MainWindow</name>
    <message>
        <source>&amp;Save</source>
        <translation>&amp;Gem betingelsen</translation>
    </message>
    <message>
        <source>&amp;Import…</source>
        <translation>&amp;Hent…</translation>
    </message>
    <message>
        <source>&amp;Condition</source>
        <translation>&amp;Betingelse</translation>
    </message>
    <message>
        <source>&amp;Transitions</source>
        <translation>Over&amp;gange</translation>
    </message>
    <message>
        <source>%1 on %2</source>
        <translation>%2 som %1</translation>
    </message>
    <message>
        <source>There is nothing to save.</source>
        <translation>Der er intet at gemme.</translation>
    </message>
</context>
<context>
    <name>condtree::workbench::ConditionEditor</name>
    <message>
        <source>Last changed by %1, %2</source>
        <translation>Sidst ændret %2 af %1</translation>
    </message>
    <message numerus="yes">
        <source>Saving will drop %n of the %1 record(s) that were read.</source>
        <translation>
            <numerusform>Én af %1 poster går tabt.</numerusform>
            <numerusform>%n af %1 poster går tabt.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Saving will store something other than what was read: %n of the %1 record(s), row(s) %2.</source>
        <translation>
            <numerusform>Én af %1 poster ændres: række %2.</numerusform>
            <numerusform>%n af %1 poster ændres: rækkerne %2.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>condtree::workbench::TransitionList</name>
    <message>
        <source>empty</source>
        <translation>tom</translation>
    </message>
    <message numerus="yes">
        <source>The condition has %n row(s) and group(s)</source>
        <translation>
            <numerusform>Betingelsen har én række eller gruppe</numerusform>
            <numerusform>Betingelsen har %n rækker og grupper</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>RecordChanges</name>
    <message>
        <source>%1 and %2</source>
        <translation>%1 og %2</translation>
    </message>
    <message numerus="yes">
        <source>%1 and %n more</source>
        <translation>
            <numerusform>%1 og én til</numerusform>
            <numerusform>%1 og %n til</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>Dialogs</name>
    <message>
        <source>The condition of %1 has changes that are not saved.</source>
        <translation>Betingelsen for %1 er ændret og ikke gemt.</translation>
    </message>
    <message>
        <source>Import a condition</source>
        <translation>Hent en betingelse</translation>
    </message>
    <message>
        <source>Conditions (*.json);;All files (*)</source>
        <translation>Betingelser (*.json);;Alle filer (*)</translation>
    </message>
</context>
<context>
    <name>Database</name>
    <message>
        <source>there is no transition %1</source>
        <translation>der er ingen overgang %1</translation>
    </message>
    <message>
        <source>cannot read the condition of %1</source>
        <translation>betingelsen for %1 kan ikke læses</translation>
    </message>
</context>
<context>
    <name>SaveRefusal</name>
    <message>
        <source>The condition was saved by %1 (%2) after it was loaded; your changes were not saved.</source>
        <translation>Betingelsen blev gemt af %1 (%2).</translation>
    </message>
    <message>
        <source>Row %1: the remark is larger than 16 MiB, which the database cannot hold.</source>
        <translation>Række %1: bemærkningen er for stor.</translation>
    </message>
</context>
<context>
    <name>Files</name>
    <message>
        <source>%1: cannot be written: %2</source>
        <translation>%1 kan ikke skrives, fordi: %2</translation>
    </message>
    <message>
        <source>is a folder, not a file</source>
        <translation>er en mappe</translation>
    </message>
</context>
<context>
    <name>ConditionJson</name>
    <message>
        <source>a number is expected, not %1</source>
        <translation>der ventes et tal, ikke %1</translation>
    </message>
    <message>
        <source>a text</source>
        <translation>en tekst</translation>
    </message>
</context>
<context>
    <name>JsonFlaws</name>
    <message>
        <source>the key %1 is given twice</source>
        <translation>nøglen %1 står der to gange</translation>
    </message>
</context>
<context>
    <name>Headless</name>
    <message>
        <source>the database has no transitions</source>
        <translation>databasen har ingen overgange</translation>
    </message>
</context>
<context>
    <name>Main</name>
    <message>
        <source>there is no display to open a window on: neither DISPLAY nor WAYLAND_DISPLAY is set</source>
        <translation>der er ingen skærm</translation>
    </message>
</context>
<context>
    <name>Options</name>
    <message>
        <source>unknown option %1</source>
        <translation>ukendt tilvalg %1</translation>
    </message>
    <message>
        <source>print this text</source>
        <translation>vis denne tekst</translation>
    </message>
</context>
<context>
    <name>QPlatformTheme</name>
    <message>
        <source>Save</source>
        <translation>(ikke denne)</translation>
    </message>
</context>
</TS>
