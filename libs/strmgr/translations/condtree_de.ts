<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de" sourcelanguage="en">
<context>
    <name>Columns</name>
    <message>
        <source>Variable</source>
        <comment>TS 1</comment>
        <translation>Variable</translation>
    </message>
    <message>
        <source>Operator</source>
        <comment>TS 2</comment>
        <translation>Operator</translation>
    </message>
    <message>
        <source>Value</source>
        <comment>TS 3</comment>
        <translation>Wert</translation>
    </message>
    <message>
        <source>Remark</source>
        <comment>TS 4</comment>
        <translation>Bemerkung</translation>
    </message>
    <message>
        <source>Columns</source>
        <comment>TS 5</comment>
        <translation>Spalten</translation>
    </message>
    <message>
        <source>Left and Right choose a boundary, plus and minus move it, Home resets the columns.</source>
        <comment>TS 6</comment>
        <translation>Links und Rechts wählen eine Grenze, Plus und Minus verschieben sie, Pos1 setzt die Spalten zurück.</translation>
    </message>
</context>
<context>
    <name>ErrorCodes</name>
    <message>
        <source>The method was successfully executed.</source>
        <comment>ErrorCodes 0</comment>
        <translation>Die Methode wurde erfolgreich ausgeführt.</translation>
    </message>
    <message>
        <source>The method was successfully executed but returned &apos;false&apos;.</source>
        <comment>ErrorCodes 1</comment>
        <translation>Die Methode wurde erfolgreich ausgeführt, gab aber „false“ zurück.</translation>
    </message>
    <message>
        <source>The program used an object without initializing it properly first.</source>
        <comment>ErrorCodes 3</comment>
        <translation>Das Programm hat ein Objekt verwendet, das zuvor nicht richtig initialisiert wurde.</translation>
    </message>
    <message>
        <source>The folder does not have a parent.</source>
        <comment>ErrorCodes 4</comment>
        <translation>Der Ordner hat keinen übergeordneten Ordner.</translation>
    </message>
    <message>
        <source>You don&apos;t have permission to perform this action.</source>
        <comment>ErrorCodes 5</comment>
        <translation>Sie sind nicht berechtigt, diese Aktion auszuführen.</translation>
    </message>
    <message>
        <source>You haven&apos;t logged in on the file vault.</source>
        <comment>ErrorCodes 6</comment>
        <translation>Sie sind nicht beim Dateitresor angemeldet.</translation>
    </message>
    <message>
        <source>You tried to log in twice.</source>
        <comment>ErrorCodes 7</comment>
        <translation>Sie haben versucht, sich zweimal anzumelden.</translation>
    </message>
    <message>
        <source>Could not open database. This could happen if the network connection is broken or if the database has been removed.</source>
        <comment>ErrorCodes 8</comment>
        <translation>Die Datenbank konnte nicht geöffnet werden. Möglicherweise ist die Netzwerkverbindung unterbrochen, oder die Datenbank wurde entfernt.</translation>
    </message>
    <message>
        <source>Could not access the item in the database.</source>
        <comment>ErrorCodes 9</comment>
        <translation>Auf das Element in der Datenbank konnte nicht zugegriffen werden.</translation>
    </message>
    <message>
        <source>You tried to get an element from a list where the cursor is off-right.</source>
        <comment>ErrorCodes 10</comment>
        <translation>Sie haben versucht, ein Element aus einer Liste zu lesen, deren Cursor hinter dem rechten Ende steht.</translation>
    </message>
    <message>
        <source>Error accessing the revision management system. Network connection down?</source>
        <comment>ErrorCodes 11</comment>
        <translation>Fehler beim Zugriff auf das Revisionsverwaltungssystem. Ist die Netzwerkverbindung unterbrochen?</translation>
    </message>
    <message>
        <source>An attempt was made to access a record in the database that is locked by another user.
This can sometimes happen during high workload on the database.
Usually this is solved if you try the operation again.</source>
        <comment>ErrorCodes 12</comment>
        <translation>Es wurde versucht, auf einen Datensatz in der Datenbank zuzugreifen, der von einem anderen Benutzer gesperrt ist.
Das kann bei hoher Auslastung der Datenbank vorkommen.
Meist hilft es, den Vorgang zu wiederholen.</translation>
    </message>
    <message>
        <source>An attempt was made to access a file that is exclusively opened by another application.</source>
        <comment>ErrorCodes 13</comment>
        <translation>Es wurde versucht, auf eine Datei zuzugreifen, die von einer anderen Anwendung exklusiv geöffnet ist.</translation>
    </message>
    <message>
        <source>Administrated plugins successfully. You should now recreate the plugin menu.</source>
        <comment>ErrorCodes 26</comment>
        <translation>Die Plugins wurden erfolgreich verwaltet. Sie sollten das Plugin-Menü jetzt neu erstellen.</translation>
    </message>
    <message>
        <source>Menu item not valid in this context due to specified flags.</source>
        <comment>ErrorCodes 27</comment>
        <translation>Der Menüeintrag ist wegen der angegebenen Flags in diesem Zusammenhang nicht gültig.</translation>
    </message>
    <message>
        <source>An invalid pointer was supplied to the method.</source>
        <comment>ErrorCodes 32</comment>
        <translation>Der Methode wurde ein ungültiger Zeiger übergeben.</translation>
    </message>
    <message>
        <source>Not enough memory to complete the operation.</source>
        <comment>ErrorCodes 33</comment>
        <translation>Der Arbeitsspeicher reicht nicht aus, um den Vorgang abzuschließen.</translation>
    </message>
    <message>
        <source>An invalid argument was given to the method.</source>
        <comment>ErrorCodes 34</comment>
        <translation>Der Methode wurde ein ungültiges Argument übergeben.</translation>
    </message>
    <message>
        <source>The called method is not implemented.</source>
        <comment>ErrorCodes 64</comment>
        <translation>Die aufgerufene Methode ist nicht implementiert.</translation>
    </message>
    <message>
        <source>An unspecified error occurred.</source>
        <comment>ErrorCodes 66</comment>
        <translation>Es ist ein nicht näher bezeichneter Fehler aufgetreten.</translation>
    </message>
    <message>
        <source>The SQL Server version is not supported by Tamsel.</source>
        <comment>ErrorCodes 183</comment>
        <translation>Die Version des SQL Servers wird von Tamsel nicht unterstützt.</translation>
    </message>
    <message>
        <source>Supported versions:</source>
        <comment>ErrorCodes 196</comment>
        <translation>Unterstützte Versionen:</translation>
    </message>
    <message>
        <source>The operating system version is not supported
The following is the minimum requirement:</source>
        <comment>ErrorCodes 274</comment>
        <translation>Die Version des Betriebssystems wird nicht unterstützt
Mindestens erforderlich ist:</translation>
    </message>
</context>
<context>
    <name>ItemMgr</name>
    <message>
        <source>Item</source>
        <comment>TS 15</comment>
        <translation>Artikel</translation>
    </message>
</context>
<context>
    <name>Search</name>
    <message>
        <source>And</source>
        <comment>TS 38</comment>
        <translation>Und</translation>
    </message>
    <message>
        <source>Or</source>
        <comment>TS 39</comment>
        <translation>Oder</translation>
    </message>
    <message>
        <source>&lt;Any Variable&gt;</source>
        <comment>TS 44</comment>
        <translation>&lt;Beliebige Variable&gt;</translation>
    </message>
    <message>
        <source>Remove</source>
        <comment>TS 55</comment>
        <translation>Entfernen</translation>
    </message>
    <message>
        <source>&lt;Click here to add a condition&gt;</source>
        <comment>TS 70</comment>
        <translation>&lt;Hier klicken, um eine Bedingung hinzuzufügen&gt;</translation>
    </message>
    <message>
        <source>String Equal To</source>
        <comment>OpName 100</comment>
        <translation>Text ist gleich</translation>
    </message>
    <message>
        <source>String Not Equal To</source>
        <comment>OpName 101</comment>
        <translation>Text ist ungleich</translation>
    </message>
    <message>
        <source>String Less Than</source>
        <comment>OpName 102</comment>
        <translation>Text ist kleiner als</translation>
    </message>
    <message>
        <source>String Bigger Than</source>
        <comment>OpName 103</comment>
        <translation>Text ist größer als</translation>
    </message>
    <message>
        <source>String Less Than or Equal</source>
        <comment>OpName 104</comment>
        <translation>Text ist kleiner oder gleich</translation>
    </message>
    <message>
        <source>String Bigger Than or Equal</source>
        <comment>OpName 105</comment>
        <translation>Text ist größer oder gleich</translation>
    </message>
    <message>
        <source>String Contains</source>
        <comment>OpName 106</comment>
        <translation>Text enthält</translation>
    </message>
    <message>
        <source>String Does Not Contain</source>
        <comment>OpName 107</comment>
        <translation>Text enthält nicht</translation>
    </message>
    <message>
        <source>Text Compare</source>
        <comment>OpName 108</comment>
        <translation>Textvergleich</translation>
    </message>
    <message>
        <source>Number Equal To</source>
        <comment>OpName 120</comment>
        <translation>Zahl ist gleich</translation>
    </message>
    <message>
        <source>Number Not Equal To</source>
        <comment>OpName 121</comment>
        <translation>Zahl ist ungleich</translation>
    </message>
    <message>
        <source>Number Less Than</source>
        <comment>OpName 122</comment>
        <translation>Zahl ist kleiner als</translation>
    </message>
    <message>
        <source>Number Bigger Than</source>
        <comment>OpName 123</comment>
        <translation>Zahl ist größer als</translation>
    </message>
    <message>
        <source>Number Less Than or Equal</source>
        <comment>OpName 124</comment>
        <translation>Zahl ist kleiner oder gleich</translation>
    </message>
    <message>
        <source>Number Bigger Than or Equal</source>
        <comment>OpName 125</comment>
        <translation>Zahl ist größer oder gleich</translation>
    </message>
    <message>
        <source>Date Equal To</source>
        <comment>OpName 130</comment>
        <translation>Datum ist gleich</translation>
    </message>
    <message>
        <source>Date Not Equal To</source>
        <comment>OpName 131</comment>
        <translation>Datum ist ungleich</translation>
    </message>
    <message>
        <source>Date Less Than</source>
        <comment>OpName 132</comment>
        <translation>Datum ist vor</translation>
    </message>
    <message>
        <source>Date Bigger Than</source>
        <comment>OpName 133</comment>
        <translation>Datum ist nach</translation>
    </message>
    <message>
        <source>Date Less Than or Equal</source>
        <comment>OpName 134</comment>
        <translation>Datum ist spätestens</translation>
    </message>
    <message>
        <source>Date Bigger Than or Equal</source>
        <comment>OpName 135</comment>
        <translation>Datum ist frühestens</translation>
    </message>
    <message>
        <source>Binary Equal To</source>
        <comment>OpName 139</comment>
        <translation>Ja/Nein ist gleich</translation>
    </message>
</context>
<context>
    <name>StoredProcs</name>
    <message>
        <source>The condition was saved by somebody else after it was loaded; your changes were not saved. Load the condition again and repeat your changes.</source>
        <comment>StoredProcs 1</comment>
        <translation>Die Bedingung wurde von jemand anderem gespeichert, nachdem sie geladen worden war; Ihre Änderungen wurden nicht gespeichert. Laden Sie die Bedingung neu, und wiederholen Sie Ihre Änderungen.</translation>
    </message>
    <message>
        <source>A text holds a character that the database cannot hold; your changes were not saved. Remove the character and save again.</source>
        <comment>StoredProcs 2</comment>
        <translation>Ein Text enthält ein Zeichen, das die Datenbank nicht speichern kann; Ihre Änderungen wurden nicht gespeichert. Entfernen Sie das Zeichen, und speichern Sie erneut.</translation>
    </message>
    <message>
        <source>A text is larger than 16 MiB, which the database cannot hold; your changes were not saved. Shorten the text and save again.</source>
        <comment>StoredProcs 3</comment>
        <translation>Ein Text ist größer als 16 MiB und passt damit nicht in die Datenbank; Ihre Änderungen wurden nicht gespeichert. Kürzen Sie den Text, und speichern Sie erneut.</translation>
    </message>
</context>
<context>
    <name>Workflow</name>
    <message>
        <source>FilePath</source>
        <comment>TS 20</comment>
        <translation>Dateipfad</translation>
    </message>
    <message>
        <source>Revision</source>
        <comment>TS 21</comment>
        <translation>Revision</translation>
    </message>
    <message>
        <source>User</source>
        <comment>TS 40</comment>
        <translation>Benutzer</translation>
    </message>
    <message>
        <source>Yes</source>
        <comment>TS 58</comment>
        <translation>Ja</translation>
    </message>
    <message>
        <source>No</source>
        <comment>TS 59</comment>
        <translation>Nein</translation>
    </message>
    <message>
        <source>Category</source>
        <comment>TS 87</comment>
        <translation>Kategorie</translation>
    </message>
    <message>
        <source>Group</source>
        <comment>TS 180</comment>
        <translation>Gruppe</translation>
    </message>
    <message>
        <source>Object Type</source>
        <comment>TS 732</comment>
        <translation>Objekttyp</translation>
    </message>
    <message>
        <source>File</source>
        <comment>TS 733</comment>
        <translation>Datei</translation>
    </message>
    <message>
        <source>BOM</source>
        <comment>TS 734</comment>
        <translation>Stückliste</translation>
    </message>
    <message>
        <source>Child Reference State</source>
        <comment>TS 756</comment>
        <translation>Status untergeordneter Referenz</translation>
    </message>
    <message>
        <source>Child Reference historic State</source>
        <comment>TS 757</comment>
        <translation>Früherer Status untergeordneter Referenz</translation>
    </message>
</context>
</TS>
