<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="sv" sourcelanguage="en">
<context>
    <name>Columns</name>
    <message>
        <source>Variable</source>
        <comment>TS 1</comment>
        <translation>Variabel</translation>
    </message>
    <message>
        <source>Operator</source>
        <comment>TS 2</comment>
        <translation>Operator</translation>
    </message>
    <message>
        <source>Value</source>
        <comment>TS 3</comment>
        <translation>Värde</translation>
    </message>
    <message>
        <source>Remark</source>
        <comment>TS 4</comment>
        <translation>Anmärkning</translation>
    </message>
    <message>
        <source>Columns</source>
        <comment>TS 5</comment>
        <translation>Kolumner</translation>
    </message>
    <message>
        <source>Left and Right choose a boundary, plus and minus move it, Home resets the columns.</source>
        <comment>TS 6</comment>
        <translation>Vänster och Höger väljer en gräns, plus och minus flyttar den, Home återställer kolumnerna.</translation>
    </message>
</context>
<context>
    <name>ErrorCodes</name>
    <message>
        <source>The method was successfully executed.</source>
        <comment>ErrorCodes 0</comment>
        <translation>Metoden kördes utan fel.</translation>
    </message>
    <message>
        <source>The method was successfully executed but returned &apos;false&apos;.</source>
        <comment>ErrorCodes 1</comment>
        <translation>Metoden kördes utan fel men returnerade ”false”.</translation>
    </message>
    <message>
        <source>The program used an object without initializing it properly first.</source>
        <comment>ErrorCodes 3</comment>
        <translation>Programmet använde ett objekt som inte först hade initierats på rätt sätt.</translation>
    </message>
    <message>
        <source>The folder does not have a parent.</source>
        <comment>ErrorCodes 4</comment>
        <translation>Mappen har ingen överordnad mapp.</translation>
    </message>
    <message>
        <source>You don&apos;t have permission to perform this action.</source>
        <comment>ErrorCodes 5</comment>
        <translation>Du har inte behörighet att utföra den här åtgärden.</translation>
    </message>
    <message>
        <source>You haven&apos;t logged in on the file vault.</source>
        <comment>ErrorCodes 6</comment>
        <translation>Du har inte loggat in i filvalvet.</translation>
    </message>
    <message>
        <source>You tried to log in twice.</source>
        <comment>ErrorCodes 7</comment>
        <translation>Du försökte logga in två gånger.</translation>
    </message>
    <message>
        <source>Could not open database. This could happen if the network connection is broken or if the database has been removed.</source>
        <comment>ErrorCodes 8</comment>
        <translation>Databasen kunde inte öppnas. Nätverksanslutningen kan vara bruten eller databasen kan ha tagits bort.</translation>
    </message>
    <message>
        <source>Could not access the item in the database.</source>
        <comment>ErrorCodes 9</comment>
        <translation>Det gick inte att komma åt objektet i databasen.</translation>
    </message>
    <message>
        <source>You tried to get an element from a list where the cursor is off-right.</source>
        <comment>ErrorCodes 10</comment>
        <translation>Du försökte hämta ett element ur en lista där markören står bortom högra änden.</translation>
    </message>
    <message>
        <source>Error accessing the revision management system. Network connection down?</source>
        <comment>ErrorCodes 11</comment>
        <translation>Fel vid åtkomst till revisionshanteringssystemet. Är nätverksanslutningen bruten?</translation>
    </message>
    <message>
        <source>An attempt was made to access a record in the database that is locked by another user.
This can sometimes happen during high workload on the database.
Usually this is solved if you try the operation again.</source>
        <comment>ErrorCodes 12</comment>
        <translation>Ett försök gjordes att komma åt en post i databasen som är låst av en annan användare.
Det kan hända när databasen är hårt belastad.
Vanligtvis hjälper det att försöka igen.</translation>
    </message>
    <message>
        <source>An attempt was made to access a file that is exclusively opened by another application.</source>
        <comment>ErrorCodes 13</comment>
        <translation>Ett försök gjordes att komma åt en fil som ett annat program har öppnat exklusivt.</translation>
    </message>
    <message>
        <source>Administrated plugins successfully. You should now recreate the plugin menu.</source>
        <comment>ErrorCodes 26</comment>
        <translation>Insticksmodulerna har administrerats utan fel. Du bör nu återskapa menyn för insticksmoduler.</translation>
    </message>
    <message>
        <source>Menu item not valid in this context due to specified flags.</source>
        <comment>ErrorCodes 27</comment>
        <translation>Menyalternativet är inte giltigt i det här sammanhanget på grund av de angivna flaggorna.</translation>
    </message>
    <message>
        <source>An invalid pointer was supplied to the method.</source>
        <comment>ErrorCodes 32</comment>
        <translation>En ogiltig pekare skickades till metoden.</translation>
    </message>
    <message>
        <source>Not enough memory to complete the operation.</source>
        <comment>ErrorCodes 33</comment>
        <translation>Det finns inte tillräckligt med minne för att slutföra åtgärden.</translation>
    </message>
    <message>
        <source>An invalid argument was given to the method.</source>
        <comment>ErrorCodes 34</comment>
        <translation>Ett ogiltigt argument skickades till metoden.</translation>
    </message>
    <message>
        <source>The called method is not implemented.</source>
        <comment>ErrorCodes 64</comment>
        <translation>Den anropade metoden är inte implementerad.</translation>
    </message>
    <message>
        <source>An unspecified error occurred.</source>
        <comment>ErrorCodes 66</comment>
        <translation>Ett ospecificerat fel inträffade.</translation>
    </message>
    <message>
        <source>The SQL Server version is not supported by Tamsel.</source>
        <comment>ErrorCodes 183</comment>
        <translation>Versionen av SQL Server stöds inte av Tamsel.</translation>
    </message>
    <message>
        <source>Supported versions:</source>
        <comment>ErrorCodes 196</comment>
        <translation>Versioner som stöds:</translation>
    </message>
    <message>
        <source>The operating system version is not supported
The following is the minimum requirement:</source>
        <comment>ErrorCodes 274</comment>
        <translation>Operativsystemets version stöds inte
Följande är minimikravet:</translation>
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
        <translation>Och</translation>
    </message>
    <message>
        <source>Or</source>
        <comment>TS 39</comment>
        <translation>Eller</translation>
    </message>
    <message>
        <source>&lt;Any Variable&gt;</source>
        <comment>TS 44</comment>
        <translation>&lt;Valfri variabel&gt;</translation>
    </message>
    <message>
        <source>Remove</source>
        <comment>TS 55</comment>
        <translation>Ta bort</translation>
    </message>
    <message>
        <source>&lt;Click here to add a condition&gt;</source>
        <comment>TS 70</comment>
        <translation>&lt;Klicka här för att lägga till ett villkor&gt;</translation>
    </message>
    <message>
        <source>String Equal To</source>
        <comment>OpName 100</comment>
        <translation>Text lika med</translation>
    </message>
    <message>
        <source>String Not Equal To</source>
        <comment>OpName 101</comment>
        <translation>Text inte lika med</translation>
    </message>
    <message>
        <source>String Less Than</source>
        <comment>OpName 102</comment>
        <translation>Text mindre än</translation>
    </message>
    <message>
        <source>String Bigger Than</source>
        <comment>OpName 103</comment>
        <translation>Text större än</translation>
    </message>
    <message>
        <source>String Less Than or Equal</source>
        <comment>OpName 104</comment>
        <translation>Text högst lika med</translation>
    </message>
    <message>
        <source>String Bigger Than or Equal</source>
        <comment>OpName 105</comment>
        <translation>Text minst lika med</translation>
    </message>
    <message>
        <source>String Contains</source>
        <comment>OpName 106</comment>
        <translation>Text innehåller</translation>
    </message>
    <message>
        <source>String Does Not Contain</source>
        <comment>OpName 107</comment>
        <translation>Text innehåller inte</translation>
    </message>
    <message>
        <source>Text Compare</source>
        <comment>OpName 108</comment>
        <translation>Textjämförelse</translation>
    </message>
    <message>
        <source>Number Equal To</source>
        <comment>OpName 120</comment>
        <translation>Tal lika med</translation>
    </message>
    <message>
        <source>Number Not Equal To</source>
        <comment>OpName 121</comment>
        <translation>Tal inte lika med</translation>
    </message>
    <message>
        <source>Number Less Than</source>
        <comment>OpName 122</comment>
        <translation>Tal mindre än</translation>
    </message>
    <message>
        <source>Number Bigger Than</source>
        <comment>OpName 123</comment>
        <translation>Tal större än</translation>
    </message>
    <message>
        <source>Number Less Than or Equal</source>
        <comment>OpName 124</comment>
        <translation>Tal högst lika med</translation>
    </message>
    <message>
        <source>Number Bigger Than or Equal</source>
        <comment>OpName 125</comment>
        <translation>Tal minst lika med</translation>
    </message>
    <message>
        <source>Date Equal To</source>
        <comment>OpName 130</comment>
        <translation>Datum lika med</translation>
    </message>
    <message>
        <source>Date Not Equal To</source>
        <comment>OpName 131</comment>
        <translation>Datum inte lika med</translation>
    </message>
    <message>
        <source>Date Less Than</source>
        <comment>OpName 132</comment>
        <translation>Datum tidigare än</translation>
    </message>
    <message>
        <source>Date Bigger Than</source>
        <comment>OpName 133</comment>
        <translation>Datum senare än</translation>
    </message>
    <message>
        <source>Date Less Than or Equal</source>
        <comment>OpName 134</comment>
        <translation>Datum senast</translation>
    </message>
    <message>
        <source>Date Bigger Than or Equal</source>
        <comment>OpName 135</comment>
        <translation>Datum tidigast</translation>
    </message>
    <message>
        <source>Binary Equal To</source>
        <comment>OpName 139</comment>
        <translation>Ja/Nej lika med</translation>
    </message>
</context>
<context>
    <name>StoredProcs</name>
    <message>
        <source>The condition was saved by somebody else after it was loaded; your changes were not saved. Load the condition again and repeat your changes.</source>
        <comment>StoredProcs 1</comment>
        <translation>Villkoret sparades av någon annan efter att det hade lästs in; dina ändringar har inte sparats. Läs in villkoret igen och gör om dina ändringar.</translation>
    </message>
    <message>
        <source>A text holds a character that the database cannot hold; your changes were not saved. Remove the character and save again.</source>
        <comment>StoredProcs 2</comment>
        <translation>En text innehåller ett tecken som databasen inte kan lagra; dina ändringar har inte sparats. Ta bort tecknet och spara igen.</translation>
    </message>
    <message>
        <source>A text is larger than 16 MiB, which the database cannot hold; your changes were not saved. Shorten the text and save again.</source>
        <comment>StoredProcs 3</comment>
        <translation>En text är större än 16 MiB, vilket databasen inte kan lagra; dina ändringar har inte sparats. Korta texten och spara igen.</translation>
    </message>
</context>
<context>
    <name>Workflow</name>
    <message>
        <source>FilePath</source>
        <comment>TS 20</comment>
        <translation>Filsökväg</translation>
    </message>
    <message>
        <source>Revision</source>
        <comment>TS 21</comment>
        <translation>Revision</translation>
    </message>
    <message>
        <source>User</source>
        <comment>TS 40</comment>
        <translation>Användare</translation>
    </message>
    <message>
        <source>Yes</source>
        <comment>TS 58</comment>
        <translation>Ja</translation>
    </message>
    <message>
        <source>No</source>
        <comment>TS 59</comment>
        <translation>Nej</translation>
    </message>
    <message>
        <source>Category</source>
        <comment>TS 87</comment>
        <translation>Kategori</translation>
    </message>
    <message>
        <source>Group</source>
        <comment>TS 180</comment>
        <translation>Grupp</translation>
    </message>
    <message>
        <source>Object Type</source>
        <comment>TS 732</comment>
        <translation>Objekttyp</translation>
    </message>
    <message>
        <source>File</source>
        <comment>TS 733</comment>
        <translation>Fil</translation>
    </message>
    <message>
        <source>BOM</source>
        <comment>TS 734</comment>
        <translation>Stycklista</translation>
    </message>
    <message>
        <source>Child Reference State</source>
        <comment>TS 756</comment>
        <translation>Status för underordnad referens</translation>
    </message>
    <message>
        <source>Child Reference historic State</source>
        <comment>TS 757</comment>
        <translation>Tidigare status för underordnad referens</translation>
    </message>
</context>
</TS>
