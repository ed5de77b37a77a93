<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="sv" sourcelanguage="en">
<context>
    <name>ConditionJson</name>
    <message>
        <source>row %1: the field %2 holds %3, which a file cannot carry</source>
        <extracomment>%2 is the field&apos;s name in the file, %3 a character as U+0000</extracomment>
        <translation>rad %1: fältet %2 innehåller tecknet %3, som inte kan stå i en fil</translation>
    </message>
    <message>
        <source>row %1: the field %2 holds the unpaired surrogate %3, which a file cannot carry</source>
        <extracomment>%2 is the field&apos;s name in the file, %3 a character as U+D800</extracomment>
        <translation>rad %1: fältet %2 innehåller det oparade surrogattecknet %3, som inte kan stå i en fil</translation>
    </message>
    <message>
        <source>true or false</source>
        <extracomment>Behind &quot;a number is expected, not&quot;; so are the other kinds of value</extracomment>
        <translation>ett booleskt värde (true eller false)</translation>
    </message>
    <message>
        <source>a number</source>
        <translation>ett tal</translation>
    </message>
    <message>
        <source>a text</source>
        <translation>en text</translation>
    </message>
    <message>
        <source>a list</source>
        <translation>en lista</translation>
    </message>
    <message>
        <source>an object</source>
        <translation>ett objekt</translation>
    </message>
    <message>
        <source>null</source>
        <extracomment>The word of JSON for no value</extracomment>
        <translation>null</translation>
    </message>
    <message>
        <source>a number is expected, not %1</source>
        <translation>ett tal förväntas, inte %1</translation>
    </message>
    <message>
        <source>a text is expected, not %1</source>
        <translation>en text förväntas, inte %1</translation>
    </message>
    <message>
        <source>a list is expected, not %1</source>
        <translation>en lista förväntas, inte %1</translation>
    </message>
    <message>
        <source>an object is expected, not %1</source>
        <translation>ett objekt förväntas, inte %1</translation>
    </message>
    <message>
        <source>%1 is no whole number of 32 bits</source>
        <translation>%1 är inte ett heltal på 32 bitar</translation>
    </message>
    <message>
        <source>the text holds %1</source>
        <extracomment>%1 is a character as U+0000</extracomment>
        <translation>texten innehåller tecknet %1</translation>
    </message>
    <message>
        <source>the text holds the unpaired surrogate %1</source>
        <extracomment>%1 is a character as U+D800</extracomment>
        <translation>texten innehåller det oparade surrogattecknet %1</translation>
    </message>
    <message>
        <source>the field is missing</source>
        <translation>fältet saknas</translation>
    </message>
    <message>
        <source>the field %1 is unknown</source>
        <translation>fältet %1 är okänt</translation>
    </message>
    <message>
        <source>%1 is expected, not %2</source>
        <extracomment>%1 and %2 are values: 1, &quot;condtree-condition&quot;</extracomment>
        <translation>%1 förväntas, inte %2</translation>
    </message>
    <message>
        <source>%1 (byte %2, line %3)</source>
        <extracomment>%1 is what is wrong in a file, %2 and %3 the place</extracomment>
        <translation>%1 (byte %2, rad %3)</translation>
    </message>
    <message>
        <source>not JSON: %1</source>
        <extracomment>%1 is the reason, perhaps in the words of the toolkit</extracomment>
        <translation>inte giltig JSON: %1</translation>
    </message>
    <message>
        <source>more than %1 values</source>
        <extracomment>%1 is 4000000; values are objects, lists and whatever stands in them</extracomment>
        <translation>fler än %1 värden</translation>
    </message>
    <message>
        <source>the file is empty</source>
        <translation>filen är tom</translation>
    </message>
    <message>
        <source>the text is in UTF-16 or UTF-32; UTF-8 is expected</source>
        <translation>texten är kodad i UTF-16 eller UTF-32; UTF-8 förväntas</translation>
    </message>
    <message>
        <source>the condition takes more than the %1 bytes that a file may have</source>
        <translation>villkoret kräver mer än de %1 byte som en fil får ha</translation>
    </message>
    <message>
        <source>the condition has more than %1 values, which no file may have</source>
        <extracomment>%1 is 4000000</extracomment>
        <translation>villkoret har fler än %1 värden, vilket är mer än en fil får innehålla</translation>
    </message>
</context>
<context>
    <name>Database</name>
    <message>
        <source>cannot open the database %1</source>
        <translation>databasen %1 kan inte öppnas</translation>
    </message>
    <message>
        <source>there is no database %1</source>
        <translation>databasen %1 finns inte</translation>
    </message>
    <message>
        <source>the database %1 has no user %2</source>
        <translation>databasen %1 har ingen användare %2</translation>
    </message>
    <message>
        <source>cannot make the folder %1</source>
        <translation>mappen %1 kan inte skapas</translation>
    </message>
    <message>
        <source>cannot make the sample database %1</source>
        <translation>exempeldatabasen %1 kan inte skapas</translation>
    </message>
    <message>
        <source>cannot read the transitions</source>
        <translation>övergångarna kan inte läsas</translation>
    </message>
    <message>
        <source>cannot read the condition of %1</source>
        <translation>villkoret för %1 kan inte läsas</translation>
    </message>
    <message>
        <source>cannot save the condition of %1</source>
        <translation>villkoret för %1 kan inte sparas</translation>
    </message>
    <message>
        <source>more than one transition is named %1</source>
        <translation>flera övergångar heter %1</translation>
    </message>
    <message>
        <source>there is no transition %1</source>
        <translation>övergången %1 finns inte</translation>
    </message>
</context>
<context>
    <name>Dialogs</name>
    <message>
        <source>Conditions (*.json);;All files (*)</source>
        <translation>Villkor (*.json);;Alla filer (*)</translation>
    </message>
    <message>
        <source>The condition of %1 has changes that are not saved.</source>
        <translation>Villkoret för %1 har ändringar som inte har sparats.</translation>
    </message>
    <message>
        <source>Save them before going on?</source>
        <translation>Vill du spara ändringarna innan du fortsätter?</translation>
    </message>
    <message>
        <source>Give up the changes to the condition of %1?</source>
        <translation>Vill du förkasta ändringarna i villkoret för %1?</translation>
    </message>
    <message>
        <source>The condition will be read from the database again.</source>
        <translation>Villkoret läses in från databasen igen.</translation>
    </message>
    <message>
        <source>Import a condition</source>
        <translation>Importera ett villkor</translation>
    </message>
    <message>
        <source>Export the condition</source>
        <translation>Exportera villkoret</translation>
    </message>
</context>
<context>
    <name>Files</name>
    <message>
        <source>standard input</source>
        <extracomment>Stands where the name of a file stands otherwise</extracomment>
        <translation>standard in</translation>
    </message>
    <message>
        <source>standard output</source>
        <extracomment>Stands where the name of a file stands otherwise</extracomment>
        <translation>standard ut</translation>
    </message>
    <message>
        <source>%1: cannot be read: %2</source>
        <extracomment>%1 is a file, %2 the reason in the words of the system</extracomment>
        <translation>%1: kan inte läsas: %2</translation>
    </message>
    <message>
        <source>%1: cannot be written: %2</source>
        <extracomment>%1 is a file, %2 the reason in the words of the system</extracomment>
        <translation>%1: kan inte skrivas: %2</translation>
    </message>
    <message>
        <source>is a folder, not a file</source>
        <translation>är en mapp, inte en fil</translation>
    </message>
    <message>
        <source>%1: more than the limit of %2 bytes</source>
        <translation>%1: större än gränsen på %2 byte</translation>
    </message>
    <message>
        <source>is no regular file</source>
        <translation>är inte en vanlig fil</translation>
    </message>
    <message>
        <source>%1: %2 bytes; the limit is %3 bytes</source>
        <translation>%1: %2 byte; gränsen är %3 byte</translation>
    </message>
</context>
<context>
    <name>Headless</name>
    <message>
        <source>the picture cannot be made</source>
        <translation>bilden kan inte skapas</translation>
    </message>
    <message>
        <source>the database has no transitions</source>
        <translation>databasen har inga övergångar</translation>
    </message>
</context>
<context>
    <name>JsonFlaws</name>
    <message>
        <source>a control character in a text</source>
        <extracomment>Behind &quot;not JSON: &quot;; so are the next ones</extracomment>
        <translation>ett styrtecken i en text</translation>
    </message>
    <message>
        <source>an unknown escape sequence</source>
        <translation>en okänd escape-sekvens</translation>
    </message>
    <message>
        <source>the key %1 is given twice</source>
        <translation>nyckeln %1 förekommer två gånger</translation>
    </message>
    <message>
        <source>an incomplete number</source>
        <translation>ett ofullständigt tal</translation>
    </message>
</context>
<context>
    <name>Main</name>
    <message>
        <source>there is no display to open a window on: %1 is not set</source>
        <extracomment>%1 is a variable of the environment</extracomment>
        <translation>det finns ingen display att öppna ett fönster på: %1 är inte satt</translation>
    </message>
    <message>
        <source>there is no display to open a window on: neither DISPLAY nor WAYLAND_DISPLAY is set</source>
        <translation>det finns ingen display att öppna ett fönster på: varken DISPLAY eller WAYLAND_DISPLAY är satt</translation>
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
        <translation>databasen; annars öppnas exempeldatabasen</translation>
    </message>
    <message>
        <source>the login name</source>
        <translation>inloggningsnamnet</translation>
    </message>
    <message>
        <source>the transition, WORKFLOW/NAME as --list has it</source>
        <extracomment>WORKFLOW and NAME may be translated</extracomment>
        <translation>övergången som WORKFLOW/NAME, så som --list visar den</translation>
    </message>
    <message>
        <source>the language, such as de or pt_BR; without it the user&apos;s own</source>
        <translation>språket, till exempel sv eller pt_BR; annars användarens eget</translation>
    </message>
    <message>
        <source>print the transitions</source>
        <translation>visa övergångarna</translation>
    </message>
    <message>
        <source>print the transition&apos;s condition as a tree</source>
        <translation>visa övergångens villkor som ett träd</translation>
    </message>
    <message>
        <source>write the condition as JSON; - is the standard output</source>
        <translation>skriv villkoret som JSON; - är standard ut</translation>
    </message>
    <message>
        <source>store a condition from JSON; - is the standard input</source>
        <translation>spara ett villkor från JSON; - är standard in</translation>
    </message>
    <message>
        <source>draw the window to a PNG picture</source>
        <translation>rita fönstret som en PNG-bild</translation>
    </message>
    <message>
        <source>print this text</source>
        <translation>visa den här hjälpen</translation>
    </message>
    <message>
        <source>print the version</source>
        <translation>visa versionen</translation>
    </message>
    <message>
        <source>%1 needs %2</source>
        <extracomment>%1 and %2 are options</extracomment>
        <translation>%1 kräver %2</translation>
    </message>
    <message>
        <source>unexpected argument %1</source>
        <translation>oväntat argument %1</translation>
    </message>
    <message>
        <source>unknown option %1</source>
        <translation>okänd flagga %1</translation>
    </message>
    <message>
        <source>%1 takes no value</source>
        <translation>%1 tar inget värde</translation>
    </message>
    <message>
        <source>%1 needs a value: %2</source>
        <extracomment>%1 is an option, %2 the kind of value, as FILE</extracomment>
        <translation>%1 kräver ett värde: %2</translation>
    </message>
    <message>
        <source>%1 is given twice</source>
        <translation>%1 har angetts två gånger</translation>
    </message>
    <message>
        <source>Usage: condtree-workbench [OPTION]...</source>
        <translation>Användning: condtree-workbench [FLAGGA]...</translation>
    </message>
    <message>
        <source>Edit the conditions of workflow transitions.</source>
        <translation>Redigera villkoren för övergångar i arbetsflöden.</translation>
    </message>
    <message>
        <source>With --list, --print, --export, --import or --screenshot no window is opened and no display
is needed.</source>
        <extracomment>Lines of at most 100 characters</extracomment>
        <translation>Med --list, --print, --export, --import eller --screenshot öppnas inget fönster och ingen
display behövs.</translation>
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
        <translation>&amp;Spara</translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <extracomment>A button of a message box on a GNOME desktop</extracomment>
        <translation>&amp;Avbryt</translation>
    </message>
    <message>
        <source>Close without Saving</source>
        <extracomment>A button of a message box on a GNOME desktop: goes on and gives up the changes</extracomment>
        <translation>Stäng utan att spara</translation>
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
        <translation>Spara</translation>
    </message>
    <message>
        <source>Cancel</source>
        <extracomment>A button of a message box</extracomment>
        <translation>Avbryt</translation>
    </message>
    <message>
        <source>Discard</source>
        <extracomment>A button of a message box: gives up the changes</extracomment>
        <translation>Förkasta</translation>
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
        <translation>%1 och %2</translation>
    </message>
    <message numerus="yes">
        <source>%1 and %n more</source>
        <extracomment>A list of row numbers that is cut: &quot;1, 2, 3, 4, 5 and 7 more&quot;</extracomment>
        <translation>
            <numerusform>%1 och %n till</numerusform>
            <numerusform>%1 och %n till</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>SaveRefusal</name>
    <message>
        <source>Row %1: the name holds a character that the database cannot hold.</source>
        <translation>Rad %1: namnet innehåller ett tecken som databasen inte kan lagra.</translation>
    </message>
    <message>
        <source>Row %1: the remark holds a character that the database cannot hold.</source>
        <translation>Rad %1: anmärkningen innehåller ett tecken som databasen inte kan lagra.</translation>
    </message>
    <message>
        <source>Row %1: the value holds a character that the database cannot hold.</source>
        <translation>Rad %1: värdet innehåller ett tecken som databasen inte kan lagra.</translation>
    </message>
    <message>
        <source>Row %1: the name is larger than 16 MiB, which the database cannot hold.</source>
        <translation>Rad %1: namnet är större än 16 MiB, vilket är mer än databasen kan lagra.</translation>
    </message>
    <message>
        <source>Row %1: the remark is larger than 16 MiB, which the database cannot hold.</source>
        <translation>Rad %1: anmärkningen är större än 16 MiB, vilket är mer än databasen kan lagra.</translation>
    </message>
    <message>
        <source>Row %1: the value is larger than 16 MiB, which the database cannot hold.</source>
        <translation>Rad %1: värdet är större än 16 MiB, vilket är mer än databasen kan lagra.</translation>
    </message>
    <message>
        <source>The condition was saved by %1 after it was loaded; your changes were not saved.</source>
        <translation>Villkoret sparades av %1 efter att det hade lästs in; dina ändringar har inte sparats.</translation>
    </message>
    <message>
        <source>The condition was saved by %1 (%2) after it was loaded; your changes were not saved.</source>
        <extracomment>%1 is a login name, %2 a date and time</extracomment>
        <translation>Villkoret sparades av %1 (%2) efter att det hade lästs in; dina ändringar har inte sparats.</translation>
    </message>
    <message>
        <source>The disk is full; your changes were not saved.</source>
        <translation>Disken är full; dina ändringar har inte sparats.</translation>
    </message>
    <message>
        <source>The database could not be written; your changes were not saved.</source>
        <translation>Det gick inte att skriva till databasen; dina ändringar har inte sparats.</translation>
    </message>
</context>
<context>
    <name>condtree::workbench::ConditionEditor</name>
    <message>
        <source>Never changed</source>
        <translation>Aldrig ändrat</translation>
    </message>
    <message>
        <source>Last changed by %1, %2</source>
        <extracomment>%1 is a login name, %2 a date and time</extracomment>
        <translation>Senast ändrat av %1, %2</translation>
    </message>
    <message>
        <source>Condition</source>
        <extracomment>What the rows are to those who hear the window</extracomment>
        <translation>Villkor</translation>
    </message>
    <message>
        <source>There is no transition to save.</source>
        <translation>Det finns ingen övergång att spara.</translation>
    </message>
    <message>
        <source>There is no transition to import into.</source>
        <translation>Det finns ingen övergång att importera till.</translation>
    </message>
    <message numerus="yes">
        <source>Saving will drop %n of the %1 record(s) that were read.</source>
        <translation>
            <numerusform>När du sparar tas %n av %1 inlästa poster bort.</numerusform>
            <numerusform>När du sparar tas %n av %1 inlästa poster bort.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Saving will store something other than what was read: %n of the %1 record(s), row(s) %2.</source>
        <extracomment>%n counts the records that change, %1 all; %2 names the first: &quot;3&quot;, &quot;1, 2 and 9&quot;</extracomment>
        <translation>
            <numerusform>När du sparar lagras något annat än det som lästes in: %n av %1 poster, rad %2.</numerusform>
            <numerusform>När du sparar lagras något annat än det som lästes in: %n av %1 poster, raderna %2.</numerusform>
        </translation>
    </message>
    <message>
        <source>No transition is open</source>
        <translation>Ingen övergång är öppen</translation>
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
        <translation>&amp;Spara</translation>
    </message>
    <message>
        <source>&amp;Revert</source>
        <translation>Åte&amp;rställ</translation>
    </message>
    <message>
        <source>&amp;Import…</source>
        <translation>&amp;Importera…</translation>
    </message>
    <message>
        <source>&amp;Export…</source>
        <translation>&amp;Exportera…</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>&amp;Avsluta</translation>
    </message>
    <message>
        <source>&amp;Condition</source>
        <extracomment>The menu of what is done with a condition</extracomment>
        <translation>&amp;Villkor</translation>
    </message>
    <message>
        <source>Condition</source>
        <extracomment>The name of the tool bar, as its context menu shows it</extracomment>
        <translation>Villkor</translation>
    </message>
    <message>
        <source>&amp;Transitions</source>
        <translation>Över&amp;gångar</translation>
    </message>
    <message>
        <source>%1 on %2</source>
        <extracomment>%1 is a login name, %2 the name of a database</extracomment>
        <translation>%1 på %2</translation>
    </message>
    <message>
        <source>Nothing was stored, and your changes are still here. You can export them to a file, or revert to the condition in the database.</source>
        <translation>Ingenting har lagrats och dina ändringar finns kvar. Du kan exportera dem till en fil eller återställa villkoret från databasen.</translation>
    </message>
    <message>
        <source>Saved.</source>
        <translation>Sparat.</translation>
    </message>
    <message>
        <source>There is nothing to save.</source>
        <translation>Det finns inget att spara.</translation>
    </message>
    <message>
        <source>Read from the database again.</source>
        <translation>Villkoret har lästs in från databasen igen.</translation>
    </message>
    <message>
        <source>Imported. Save stores it in the database.</source>
        <translation>Importerat. Välj ”Spara” för att lagra villkoret i databasen.</translation>
    </message>
    <message>
        <source>Exported to %1</source>
        <translation>Exporterat till %1</translation>
    </message>
</context>
<context>
    <name>condtree::workbench::TransitionList</name>
    <message>
        <source>Workflows and their transitions</source>
        <extracomment>What the list is to those who hear the window</extracomment>
        <translation>Arbetsflöden och deras övergångar</translation>
    </message>
    <message>
        <source>* %1</source>
        <extracomment>The mark in front of a transition whose condition has changes that are not saved</extracomment>
        <translation>* %1</translation>
    </message>
    <message>
        <source>%1 (not saved)</source>
        <translation>%1 (osparade ändringar)</translation>
    </message>
    <message>
        <source>empty</source>
        <extracomment>Stands in place of the number of rows of a condition; short, for a narrow column</extracomment>
        <translation>tomt</translation>
    </message>
    <message>
        <source>There is no condition yet</source>
        <translation>Det finns inget villkor ännu</translation>
    </message>
    <message numerus="yes">
        <source>The condition has %n row(s) and group(s)</source>
        <translation>
            <numerusform>Villkoret har en rad eller grupp</numerusform>
            <numerusform>Villkoret har %n rader och grupper</numerusform>
        </translation>
    </message>
</context>
</TS>
