<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de" sourcelanguage="en">
<context>
    <name>ConditionJson</name>
    <message>
        <source>row %1: the field %2 holds %3, which a file cannot carry</source>
        <extracomment>%2 is the field&apos;s name in the file, %3 a character as U+0000</extracomment>
        <translation>Zeile %1: Feld %2 enthält das Zeichen %3, das in einer Datei nicht stehen kann</translation>
    </message>
    <message>
        <source>row %1: the field %2 holds the unpaired surrogate %3, which a file cannot carry</source>
        <extracomment>%2 is the field&apos;s name in the file, %3 a character as U+D800</extracomment>
        <translation>Zeile %1: Feld %2 enthält das ungepaarte Surrogat %3, das in einer Datei nicht stehen kann</translation>
    </message>
    <message>
        <source>true or false</source>
        <extracomment>Behind &quot;a number is expected, not&quot;; so are the other kinds of value</extracomment>
        <translation>ein Wahrheitswert (true oder false)</translation>
    </message>
    <message>
        <source>a number</source>
        <translation>eine Zahl</translation>
    </message>
    <message>
        <source>a text</source>
        <translation>ein Text</translation>
    </message>
    <message>
        <source>a list</source>
        <translation>eine Liste</translation>
    </message>
    <message>
        <source>an object</source>
        <translation>ein Objekt</translation>
    </message>
    <message>
        <source>null</source>
        <extracomment>The word of JSON for no value</extracomment>
        <translation>null</translation>
    </message>
    <message>
        <source>a number is expected, not %1</source>
        <translation>erwartet wird eine Zahl, nicht %1</translation>
    </message>
    <message>
        <source>a text is expected, not %1</source>
        <translation>erwartet wird ein Text, nicht %1</translation>
    </message>
    <message>
        <source>a list is expected, not %1</source>
        <translation>erwartet wird eine Liste, nicht %1</translation>
    </message>
    <message>
        <source>an object is expected, not %1</source>
        <translation>erwartet wird ein Objekt, nicht %1</translation>
    </message>
    <message>
        <source>%1 is no whole number of 32 bits</source>
        <translation>%1 ist keine ganze Zahl mit 32 Bit</translation>
    </message>
    <message>
        <source>the text holds %1</source>
        <extracomment>%1 is a character as U+0000</extracomment>
        <translation>Text enthält das Zeichen %1</translation>
    </message>
    <message>
        <source>the text holds the unpaired surrogate %1</source>
        <extracomment>%1 is a character as U+D800</extracomment>
        <translation>Text enthält das ungepaarte Surrogat %1</translation>
    </message>
    <message>
        <source>the field is missing</source>
        <translation>Feld fehlt</translation>
    </message>
    <message>
        <source>the field %1 is unknown</source>
        <translation>Feld %1 ist unbekannt</translation>
    </message>
    <message>
        <source>%1 is expected, not %2</source>
        <extracomment>%1 and %2 are values: 1, &quot;condtree-condition&quot;</extracomment>
        <translation>erwartet wird %1, nicht %2</translation>
    </message>
    <message>
        <source>%1 (byte %2, line %3)</source>
        <extracomment>%1 is what is wrong in a file, %2 and %3 the place</extracomment>
        <translation>%1 (Byte %2, Zeile %3)</translation>
    </message>
    <message>
        <source>not JSON: %1</source>
        <extracomment>%1 is the reason, perhaps in the words of the toolkit</extracomment>
        <translation>kein gültiges JSON: %1</translation>
    </message>
    <message>
        <source>more than %1 values</source>
        <extracomment>%1 is 4000000; values are objects, lists and whatever stands in them</extracomment>
        <translation>mehr als %1 Werte</translation>
    </message>
    <message>
        <source>the file is empty</source>
        <translation>Datei ist leer</translation>
    </message>
    <message>
        <source>the text is in UTF-16 or UTF-32; UTF-8 is expected</source>
        <translation>Text ist in UTF-16 oder UTF-32 kodiert; erwartet wird UTF-8</translation>
    </message>
    <message>
        <source>the condition takes more than the %1 bytes that a file may have</source>
        <translation>Bedingung ist größer als die %1 Byte, die eine Datei haben darf</translation>
    </message>
    <message>
        <source>the condition has more than %1 values, which no file may have</source>
        <extracomment>%1 is 4000000</extracomment>
        <translation>Bedingung hat mehr als %1 Werte; so viele darf keine Datei enthalten</translation>
    </message>
</context>
<context>
    <name>Database</name>
    <message>
        <source>cannot open the database %1</source>
        <translation>Datenbank %1 kann nicht geöffnet werden</translation>
    </message>
    <message>
        <source>there is no database %1</source>
        <translation>Datenbank %1 ist nicht vorhanden</translation>
    </message>
    <message>
        <source>the database %1 has no user %2</source>
        <translation>Datenbank %1 hat keinen Benutzer %2</translation>
    </message>
    <message>
        <source>cannot make the folder %1</source>
        <translation>Ordner %1 kann nicht erstellt werden</translation>
    </message>
    <message>
        <source>cannot make the sample database %1</source>
        <translation>Beispieldatenbank %1 kann nicht erstellt werden</translation>
    </message>
    <message>
        <source>cannot read the transitions</source>
        <translation>Übergänge können nicht gelesen werden</translation>
    </message>
    <message>
        <source>cannot read the condition of %1</source>
        <translation>Bedingung von %1 kann nicht gelesen werden</translation>
    </message>
    <message>
        <source>cannot save the condition of %1</source>
        <translation>Bedingung von %1 kann nicht gespeichert werden</translation>
    </message>
    <message>
        <source>more than one transition is named %1</source>
        <translation>mehrere Übergänge heißen %1</translation>
    </message>
    <message>
        <source>there is no transition %1</source>
        <translation>Übergang %1 ist nicht vorhanden</translation>
    </message>
</context>
<context>
    <name>Dialogs</name>
    <message>
        <source>Conditions (*.json);;All files (*)</source>
        <translation>Bedingungen (*.json);;Alle Dateien (*)</translation>
    </message>
    <message>
        <source>The condition of %1 has changes that are not saved.</source>
        <translation>Die Bedingung von %1 enthält nicht gespeicherte Änderungen.</translation>
    </message>
    <message>
        <source>Save them before going on?</source>
        <translation>Möchten Sie die Änderungen speichern, bevor Sie fortfahren?</translation>
    </message>
    <message>
        <source>Give up the changes to the condition of %1?</source>
        <translation>Änderungen an der Bedingung von %1 verwerfen?</translation>
    </message>
    <message>
        <source>The condition will be read from the database again.</source>
        <translation>Die Bedingung wird erneut aus der Datenbank gelesen.</translation>
    </message>
    <message>
        <source>Import a condition</source>
        <translation>Bedingung importieren</translation>
    </message>
    <message>
        <source>Export the condition</source>
        <translation>Bedingung exportieren</translation>
    </message>
</context>
<context>
    <name>Files</name>
    <message>
        <source>standard input</source>
        <extracomment>Stands where the name of a file stands otherwise</extracomment>
        <translation>Standardeingabe</translation>
    </message>
    <message>
        <source>standard output</source>
        <extracomment>Stands where the name of a file stands otherwise</extracomment>
        <translation>Standardausgabe</translation>
    </message>
    <message>
        <source>%1: cannot be read: %2</source>
        <extracomment>%1 is a file, %2 the reason in the words of the system</extracomment>
        <translation>%1: kann nicht gelesen werden: %2</translation>
    </message>
    <message>
        <source>%1: cannot be written: %2</source>
        <extracomment>%1 is a file, %2 the reason in the words of the system</extracomment>
        <translation>%1: kann nicht geschrieben werden: %2</translation>
    </message>
    <message>
        <source>is a folder, not a file</source>
        <translation>ist ein Ordner, keine Datei</translation>
    </message>
    <message>
        <source>%1: more than the limit of %2 bytes</source>
        <translation>%1: mehr als die zulässigen %2 Byte</translation>
    </message>
    <message>
        <source>is no regular file</source>
        <translation>ist keine reguläre Datei</translation>
    </message>
    <message>
        <source>%1: %2 bytes; the limit is %3 bytes</source>
        <translation>%1: %2 Byte; zulässig sind höchstens %3 Byte</translation>
    </message>
</context>
<context>
    <name>Headless</name>
    <message>
        <source>the picture cannot be made</source>
        <translation>Bild kann nicht erstellt werden</translation>
    </message>
    <message>
        <source>the database has no transitions</source>
        <translation>Datenbank enthält keine Übergänge</translation>
    </message>
</context>
<context>
    <name>JsonFlaws</name>
    <message>
        <source>a control character in a text</source>
        <extracomment>Behind &quot;not JSON: &quot;; so are the next ones</extracomment>
        <translation>ein Steuerzeichen in einem Text</translation>
    </message>
    <message>
        <source>an unknown escape sequence</source>
        <translation>eine unbekannte Escape-Sequenz</translation>
    </message>
    <message>
        <source>the key %1 is given twice</source>
        <translation>der Schlüssel %1 kommt zweimal vor</translation>
    </message>
    <message>
        <source>an incomplete number</source>
        <translation>eine unvollständige Zahl</translation>
    </message>
</context>
<context>
    <name>Main</name>
    <message>
        <source>there is no display to open a window on: %1 is not set</source>
        <extracomment>%1 is a variable of the environment</extracomment>
        <translation>kein Display, auf dem ein Fenster geöffnet werden kann: %1 ist nicht gesetzt</translation>
    </message>
    <message>
        <source>there is no display to open a window on: neither DISPLAY nor WAYLAND_DISPLAY is set</source>
        <translation>kein Display, auf dem ein Fenster geöffnet werden kann: weder DISPLAY noch WAYLAND_DISPLAY ist gesetzt</translation>
    </message>
</context>
<context>
    <name>Messages</name>
    <message>
        <source>CondTree Workbench</source>
        <extracomment>The name of the program, in titles of windows</extracomment>
        <translation>CondTree Workbench</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <extracomment>%1 is a file, a field, a transition or what could not be done, %2 what is wrong with it</extracomment>
        <translation>%1: %2</translation>
    </message>
</context>
<context>
    <name>Options</name>
    <message>
        <source>the database; without it the sample database is opened</source>
        <extracomment>Of --db. This and what follows are lines of the list of options</extracomment>
        <translation>Datenbank; ohne Angabe wird die Beispieldatenbank geöffnet</translation>
    </message>
    <message>
        <source>the login name</source>
        <translation>Anmeldename</translation>
    </message>
    <message>
        <source>the transition, WORKFLOW/NAME as --list has it</source>
        <extracomment>WORKFLOW and NAME may be translated</extracomment>
        <translation>Übergang als WORKFLOW/NAME, wie --list ihn ausgibt</translation>
    </message>
    <message>
        <source>the language, such as de or pt_BR; without it the user&apos;s own</source>
        <translation>Sprache, etwa de oder pt_BR; ohne Angabe die des Benutzers</translation>
    </message>
    <message>
        <source>print the transitions</source>
        <translation>Übergänge ausgeben</translation>
    </message>
    <message>
        <source>print the transition&apos;s condition as a tree</source>
        <translation>Bedingung des Übergangs als Baum ausgeben</translation>
    </message>
    <message>
        <source>write the condition as JSON; - is the standard output</source>
        <translation>Bedingung als JSON schreiben; - ist die Standardausgabe</translation>
    </message>
    <message>
        <source>store a condition from JSON; - is the standard input</source>
        <translation>Bedingung aus JSON speichern; - ist die Standardeingabe</translation>
    </message>
    <message>
        <source>draw the window to a PNG picture</source>
        <translation>Fenster als PNG-Bild ausgeben</translation>
    </message>
    <message>
        <source>print this text</source>
        <translation>diese Hilfe ausgeben</translation>
    </message>
    <message>
        <source>print the version</source>
        <translation>Version ausgeben</translation>
    </message>
    <message>
        <source>%1 needs %2</source>
        <extracomment>%1 and %2 are options</extracomment>
        <translation>%1 erfordert %2</translation>
    </message>
    <message>
        <source>unexpected argument %1</source>
        <translation>unerwartetes Argument %1</translation>
    </message>
    <message>
        <source>unknown option %1</source>
        <translation>unbekannte Option %1</translation>
    </message>
    <message>
        <source>%1 takes no value</source>
        <translation>%1 erlaubt keinen Wert</translation>
    </message>
    <message>
        <source>%1 needs a value: %2</source>
        <extracomment>%1 is an option, %2 the kind of value, as FILE</extracomment>
        <translation>%1 erfordert einen Wert: %2</translation>
    </message>
    <message>
        <source>%1 is given twice</source>
        <translation>%1 ist zweimal angegeben</translation>
    </message>
    <message>
        <source>Usage: condtree-workbench [OPTION]...</source>
        <translation>Aufruf: condtree-workbench [OPTION]...</translation>
    </message>
    <message>
        <source>Edit the conditions of workflow transitions.</source>
        <translation>Bedingungen von Workflow-Übergängen bearbeiten.</translation>
    </message>
    <message>
        <source>With --list, --print, --export, --import or --screenshot no window is opened and no display
is needed.</source>
        <extracomment>Lines of at most 100 characters</extracomment>
        <translation>Mit --list, --print, --export, --import oder --screenshot wird kein Fenster geöffnet und kein
Display benötigt.</translation>
    </message>
</context>
<context>
    <name>QGnomeTheme</name>
    <message>
        <source>&amp;OK</source>
        <extracomment>A button of a message box on a GNOME desktop</extracomment>
        <translation>&amp;OK</translation>
    </message>
    <message>
        <source>&amp;Save</source>
        <extracomment>A button of a message box on a GNOME desktop</extracomment>
        <translation>&amp;Speichern</translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <extracomment>A button of a message box on a GNOME desktop</extracomment>
        <translation>&amp;Abbrechen</translation>
    </message>
    <message>
        <source>Close without Saving</source>
        <extracomment>A button of a message box on a GNOME desktop: goes on and gives up the changes</extracomment>
        <translation>Schließen ohne Speichern</translation>
    </message>
</context>
<context>
    <name>QPlatformTheme</name>
    <message>
        <source>OK</source>
        <extracomment>A button of a message box</extracomment>
        <translation>OK</translation>
    </message>
    <message>
        <source>Save</source>
        <extracomment>A button of a message box</extracomment>
        <translation>Speichern</translation>
    </message>
    <message>
        <source>Cancel</source>
        <extracomment>A button of a message box</extracomment>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>Discard</source>
        <extracomment>A button of a message box: gives up the changes</extracomment>
        <translation>Verwerfen</translation>
    </message>
</context>
<context>
    <name>RecordChanges</name>
    <message>
        <source>%1, %2</source>
        <extracomment>The beginning of a list of row numbers, &quot;1, 2 and 9&quot;</extracomment>
        <translation>%1, %2</translation>
    </message>
    <message>
        <source>%1 and %2</source>
        <extracomment>The end of a list of row numbers, &quot;1, 2 and 9&quot;: %2 is the last one</extracomment>
        <translation>%1 und %2</translation>
    </message>
    <message numerus="yes">
        <source>%1 and %n more</source>
        <extracomment>A list of row numbers that is cut: &quot;1, 2, 3, 4, 5 and 7 more&quot;</extracomment>
        <translation>
            <numerusform>%1 und %n weitere</numerusform>
            <numerusform>%1 und %n weitere</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>SaveRefusal</name>
    <message>
        <source>Row %1: the name holds a character that the database cannot hold.</source>
        <translation>Zeile %1: Der Name enthält ein Zeichen, das die Datenbank nicht speichern kann.</translation>
    </message>
    <message>
        <source>Row %1: the remark holds a character that the database cannot hold.</source>
        <translation>Zeile %1: Die Bemerkung enthält ein Zeichen, das die Datenbank nicht speichern kann.</translation>
    </message>
    <message>
        <source>Row %1: the value holds a character that the database cannot hold.</source>
        <translation>Zeile %1: Der Wert enthält ein Zeichen, das die Datenbank nicht speichern kann.</translation>
    </message>
    <message>
        <source>Row %1: the name is larger than 16 MiB, which the database cannot hold.</source>
        <translation>Zeile %1: Der Name ist größer als 16 MiB; mehr kann die Datenbank nicht speichern.</translation>
    </message>
    <message>
        <source>Row %1: the remark is larger than 16 MiB, which the database cannot hold.</source>
        <translation>Zeile %1: Die Bemerkung ist größer als 16 MiB; mehr kann die Datenbank nicht speichern.</translation>
    </message>
    <message>
        <source>Row %1: the value is larger than 16 MiB, which the database cannot hold.</source>
        <translation>Zeile %1: Der Wert ist größer als 16 MiB; mehr kann die Datenbank nicht speichern.</translation>
    </message>
    <message>
        <source>The condition was saved by %1 after it was loaded; your changes were not saved.</source>
        <translation>%1 hat die Bedingung gespeichert, nachdem Sie sie geladen hatten; Ihre Änderungen wurden nicht gespeichert.</translation>
    </message>
    <message>
        <source>The condition was saved by %1 (%2) after it was loaded; your changes were not saved.</source>
        <extracomment>%1 is a login name, %2 a date and time</extracomment>
        <translation>%1 hat die Bedingung gespeichert (%2), nachdem Sie sie geladen hatten; Ihre Änderungen wurden nicht gespeichert.</translation>
    </message>
    <message>
        <source>The disk is full; your changes were not saved.</source>
        <translation>Der Datenträger ist voll; Ihre Änderungen wurden nicht gespeichert.</translation>
    </message>
    <message>
        <source>The database could not be written; your changes were not saved.</source>
        <translation>In die Datenbank konnte nicht geschrieben werden; Ihre Änderungen wurden nicht gespeichert.</translation>
    </message>
</context>
<context>
    <name>condtree::workbench::ConditionEditor</name>
    <message>
        <source>Never changed</source>
        <translation>Nie geändert</translation>
    </message>
    <message>
        <source>Last changed by %1, %2</source>
        <extracomment>%1 is a login name, %2 a date and time</extracomment>
        <translation>Zuletzt geändert von %1, %2</translation>
    </message>
    <message>
        <source>Condition</source>
        <extracomment>What the rows are to those who hear the window</extracomment>
        <translation>Bedingung</translation>
    </message>
    <message>
        <source>There is no transition to save.</source>
        <translation>Es gibt keinen Übergang, der gespeichert werden kann.</translation>
    </message>
    <message>
        <source>There is no transition to import into.</source>
        <translation>Es gibt keinen Übergang, in den importiert werden kann.</translation>
    </message>
    <message numerus="yes">
        <source>Saving will drop %n of the %1 record(s) that were read.</source>
        <translation>
            <numerusform>Beim Speichern wird %n von %1 gelesenen Datensätzen entfernt.</numerusform>
            <numerusform>Beim Speichern werden %n von %1 gelesenen Datensätzen entfernt.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Saving will store something other than what was read: %n of the %1 record(s), row(s) %2.</source>
        <extracomment>%n counts the records that change, %1 all; %2 names the first: &quot;3&quot;, &quot;1, 2 and 9&quot;</extracomment>
        <translation>
            <numerusform>Beim Speichern wird %n von %1 Datensätzen anders gespeichert, als er gelesen wurde: Zeile %2.</numerusform>
            <numerusform>Beim Speichern werden %n von %1 Datensätzen anders gespeichert, als sie gelesen wurden: Zeilen %2.</numerusform>
        </translation>
    </message>
    <message>
        <source>No transition is open</source>
        <translation>Kein Übergang geöffnet</translation>
    </message>
    <message>
        <source>%1: %2 → %3</source>
        <extracomment>A workflow and the states that a transition goes from and to</extracomment>
        <translation>%1: %2 → %3</translation>
    </message>
</context>
<context>
    <name>condtree::workbench::MainWindow</name>
    <message>
        <source>&amp;Save</source>
        <translation>&amp;Speichern</translation>
    </message>
    <message>
        <source>&amp;Revert</source>
        <translation>&amp;Zurücksetzen</translation>
    </message>
    <message>
        <source>&amp;Import…</source>
        <translation>&amp;Importieren…</translation>
    </message>
    <message>
        <source>&amp;Export…</source>
        <translation>&amp;Exportieren…</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>&amp;Beenden</translation>
    </message>
    <message>
        <source>&amp;Condition</source>
        <extracomment>The menu of what is done with a condition</extracomment>
        <translation>&amp;Bedingung</translation>
    </message>
    <message>
        <source>Condition</source>
        <extracomment>The name of the tool bar, as its context menu shows it</extracomment>
        <translation>Bedingung</translation>
    </message>
    <message>
        <source>&amp;Transitions</source>
        <translation>Über&amp;gänge</translation>
    </message>
    <message>
        <source>%1 on %2</source>
        <extracomment>%1 is a login name, %2 the name of a database</extracomment>
        <translation>%1 auf %2</translation>
    </message>
    <message>
        <source>Nothing was stored, and your changes are still here. You can export them to a file, or revert to the condition in the database.</source>
        <translation>Es wurde nichts gespeichert; Ihre Änderungen sind noch vorhanden. Sie können sie in eine Datei exportieren oder mit „Zurücksetzen“ zur Bedingung in der Datenbank zurückkehren.</translation>
    </message>
    <message>
        <source>Saved.</source>
        <translation>Gespeichert.</translation>
    </message>
    <message>
        <source>There is nothing to save.</source>
        <translation>Es gibt nichts zu speichern.</translation>
    </message>
    <message>
        <source>Read from the database again.</source>
        <translation>Erneut aus der Datenbank gelesen.</translation>
    </message>
    <message>
        <source>Imported. Save stores it in the database.</source>
        <translation>Importiert. Mit „Speichern“ wird die Bedingung in die Datenbank übernommen.</translation>
    </message>
    <message>
        <source>Exported to %1</source>
        <translation>Exportiert nach %1</translation>
    </message>
</context>
<context>
    <name>condtree::workbench::TransitionList</name>
    <message>
        <source>Workflows and their transitions</source>
        <extracomment>What the list is to those who hear the window</extracomment>
        <translation>Workflows und ihre Übergänge</translation>
    </message>
    <message>
        <source>* %1</source>
        <extracomment>The mark in front of a transition whose condition has changes that are not saved</extracomment>
        <translation>* %1</translation>
    </message>
    <message>
        <source>%1 (not saved)</source>
        <translation>%1 (nicht gespeichert)</translation>
    </message>
    <message>
        <source>empty</source>
        <extracomment>Stands in place of the number of rows of a condition; short, for a narrow column</extracomment>
        <translation>leer</translation>
    </message>
    <message>
        <source>There is no condition yet</source>
        <translation>Noch keine Bedingung vorhanden</translation>
    </message>
    <message numerus="yes">
        <source>The condition has %n row(s) and group(s)</source>
        <translation>
            <numerusform>Die Bedingung hat eine Zeile oder Gruppe</numerusform>
            <numerusform>Die Bedingung hat %n Zeilen und Gruppen</numerusform>
        </translation>
    </message>
</context>
</TS>
