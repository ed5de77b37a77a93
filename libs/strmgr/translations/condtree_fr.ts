<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fr" sourcelanguage="en">
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
        <translation>Opérateur</translation>
    </message>
    <message>
        <source>Value</source>
        <comment>TS 3</comment>
        <translation>Valeur</translation>
    </message>
    <message>
        <source>Remark</source>
        <comment>TS 4</comment>
        <translation>Remarque</translation>
    </message>
    <message>
        <source>Columns</source>
        <comment>TS 5</comment>
        <translation>Colonnes</translation>
    </message>
    <message>
        <source>Left and Right choose a boundary, plus and minus move it, Home resets the columns.</source>
        <comment>TS 6</comment>
        <translation>Gauche et Droite choisissent une limite, plus et moins la déplacent, Origine rétablit les colonnes.</translation>
    </message>
</context>
<context>
    <name>ErrorCodes</name>
    <message>
        <source>The method was successfully executed.</source>
        <comment>ErrorCodes 0</comment>
        <translation>La méthode a été exécutée avec succès.</translation>
    </message>
    <message>
        <source>The method was successfully executed but returned &apos;false&apos;.</source>
        <comment>ErrorCodes 1</comment>
        <translation>La méthode a été exécutée avec succès, mais a renvoyé «&#xa0;false&#xa0;».</translation>
    </message>
    <message>
        <source>The program used an object without initializing it properly first.</source>
        <comment>ErrorCodes 3</comment>
        <translation>Le programme a utilisé un objet sans l’avoir d’abord initialisé correctement.</translation>
    </message>
    <message>
        <source>The folder does not have a parent.</source>
        <comment>ErrorCodes 4</comment>
        <translation>Le dossier n’a pas de dossier parent.</translation>
    </message>
    <message>
        <source>You don&apos;t have permission to perform this action.</source>
        <comment>ErrorCodes 5</comment>
        <translation>Vous n’êtes pas autorisé à effectuer cette action.</translation>
    </message>
    <message>
        <source>You haven&apos;t logged in on the file vault.</source>
        <comment>ErrorCodes 6</comment>
        <translation>Vous n’êtes pas connecté au coffre-fort de fichiers.</translation>
    </message>
    <message>
        <source>You tried to log in twice.</source>
        <comment>ErrorCodes 7</comment>
        <translation>Vous avez essayé de vous connecter deux fois.</translation>
    </message>
    <message>
        <source>Could not open database. This could happen if the network connection is broken or if the database has been removed.</source>
        <comment>ErrorCodes 8</comment>
        <translation>Impossible d’ouvrir la base de données. La connexion réseau est peut-être interrompue ou la base de données a été supprimée.</translation>
    </message>
    <message>
        <source>Could not access the item in the database.</source>
        <comment>ErrorCodes 9</comment>
        <translation>Impossible d’accéder à l’élément dans la base de données.</translation>
    </message>
    <message>
        <source>You tried to get an element from a list where the cursor is off-right.</source>
        <comment>ErrorCodes 10</comment>
        <translation>Vous avez essayé d’obtenir un élément d’une liste dont le curseur est au-delà de l’extrémité droite.</translation>
    </message>
    <message>
        <source>Error accessing the revision management system. Network connection down?</source>
        <comment>ErrorCodes 11</comment>
        <translation>Erreur d’accès au système de gestion des révisions. La connexion réseau est-elle interrompue&#xa0;?</translation>
    </message>
    <message>
        <source>An attempt was made to access a record in the database that is locked by another user.
This can sometimes happen during high workload on the database.
Usually this is solved if you try the operation again.</source>
        <comment>ErrorCodes 12</comment>
        <translation>Tentative d’accès à un enregistrement de la base de données verrouillé par un autre utilisateur.
Cela peut se produire lorsque la base de données est très sollicitée.
En général, il suffit de recommencer l’opération.</translation>
    </message>
    <message>
        <source>An attempt was made to access a file that is exclusively opened by another application.</source>
        <comment>ErrorCodes 13</comment>
        <translation>Tentative d’accès à un fichier ouvert en mode exclusif par une autre application.</translation>
    </message>
    <message>
        <source>Administrated plugins successfully. You should now recreate the plugin menu.</source>
        <comment>ErrorCodes 26</comment>
        <translation>Les plug-ins ont été administrés avec succès. Vous devriez maintenant recréer le menu des plug-ins.</translation>
    </message>
    <message>
        <source>Menu item not valid in this context due to specified flags.</source>
        <comment>ErrorCodes 27</comment>
        <translation>L’élément de menu n’est pas valide dans ce contexte en raison des indicateurs spécifiés.</translation>
    </message>
    <message>
        <source>An invalid pointer was supplied to the method.</source>
        <comment>ErrorCodes 32</comment>
        <translation>Un pointeur non valide a été fourni à la méthode.</translation>
    </message>
    <message>
        <source>Not enough memory to complete the operation.</source>
        <comment>ErrorCodes 33</comment>
        <translation>Mémoire insuffisante pour terminer l’opération.</translation>
    </message>
    <message>
        <source>An invalid argument was given to the method.</source>
        <comment>ErrorCodes 34</comment>
        <translation>Un argument non valide a été fourni à la méthode.</translation>
    </message>
    <message>
        <source>The called method is not implemented.</source>
        <comment>ErrorCodes 64</comment>
        <translation>La méthode appelée n’est pas implémentée.</translation>
    </message>
    <message>
        <source>An unspecified error occurred.</source>
        <comment>ErrorCodes 66</comment>
        <translation>Une erreur non spécifiée s’est produite.</translation>
    </message>
    <message>
        <source>The SQL Server version is not supported by Tamsel.</source>
        <comment>ErrorCodes 183</comment>
        <translation>La version de SQL Server n’est pas prise en charge par Tamsel.</translation>
    </message>
    <message>
        <source>Supported versions:</source>
        <comment>ErrorCodes 196</comment>
        <translation>Versions prises en charge&#xa0;:</translation>
    </message>
    <message>
        <source>The operating system version is not supported
The following is the minimum requirement:</source>
        <comment>ErrorCodes 274</comment>
        <translation>La version du système d’exploitation n’est pas prise en charge
Voici la configuration minimale requise&#xa0;:</translation>
    </message>
</context>
<context>
    <name>ItemMgr</name>
    <message>
        <source>Item</source>
        <comment>TS 15</comment>
        <translation>Article</translation>
    </message>
</context>
<context>
    <name>Search</name>
    <message>
        <source>And</source>
        <comment>TS 38</comment>
        <translation>Et</translation>
    </message>
    <message>
        <source>Or</source>
        <comment>TS 39</comment>
        <translation>Ou</translation>
    </message>
    <message>
        <source>&lt;Any Variable&gt;</source>
        <comment>TS 44</comment>
        <translation>&lt;N’importe quelle variable&gt;</translation>
    </message>
    <message>
        <source>Remove</source>
        <comment>TS 55</comment>
        <translation>Supprimer</translation>
    </message>
    <message>
        <source>&lt;Click here to add a condition&gt;</source>
        <comment>TS 70</comment>
        <translation>&lt;Cliquez ici pour ajouter une condition&gt;</translation>
    </message>
    <message>
        <source>String Equal To</source>
        <comment>OpName 100</comment>
        <translation>Texte égal à</translation>
    </message>
    <message>
        <source>String Not Equal To</source>
        <comment>OpName 101</comment>
        <translation>Texte différent de</translation>
    </message>
    <message>
        <source>String Less Than</source>
        <comment>OpName 102</comment>
        <translation>Texte inférieur à</translation>
    </message>
    <message>
        <source>String Bigger Than</source>
        <comment>OpName 103</comment>
        <translation>Texte supérieur à</translation>
    </message>
    <message>
        <source>String Less Than or Equal</source>
        <comment>OpName 104</comment>
        <translation>Texte inférieur ou égal à</translation>
    </message>
    <message>
        <source>String Bigger Than or Equal</source>
        <comment>OpName 105</comment>
        <translation>Texte supérieur ou égal à</translation>
    </message>
    <message>
        <source>String Contains</source>
        <comment>OpName 106</comment>
        <translation>Texte contient</translation>
    </message>
    <message>
        <source>String Does Not Contain</source>
        <comment>OpName 107</comment>
        <translation>Texte ne contient pas</translation>
    </message>
    <message>
        <source>Text Compare</source>
        <comment>OpName 108</comment>
        <translation>Comparaison de texte</translation>
    </message>
    <message>
        <source>Number Equal To</source>
        <comment>OpName 120</comment>
        <translation>Nombre égal à</translation>
    </message>
    <message>
        <source>Number Not Equal To</source>
        <comment>OpName 121</comment>
        <translation>Nombre différent de</translation>
    </message>
    <message>
        <source>Number Less Than</source>
        <comment>OpName 122</comment>
        <translation>Nombre inférieur à</translation>
    </message>
    <message>
        <source>Number Bigger Than</source>
        <comment>OpName 123</comment>
        <translation>Nombre supérieur à</translation>
    </message>
    <message>
        <source>Number Less Than or Equal</source>
        <comment>OpName 124</comment>
        <translation>Nombre inférieur ou égal à</translation>
    </message>
    <message>
        <source>Number Bigger Than or Equal</source>
        <comment>OpName 125</comment>
        <translation>Nombre supérieur ou égal à</translation>
    </message>
    <message>
        <source>Date Equal To</source>
        <comment>OpName 130</comment>
        <translation>Date égale à</translation>
    </message>
    <message>
        <source>Date Not Equal To</source>
        <comment>OpName 131</comment>
        <translation>Date différente de</translation>
    </message>
    <message>
        <source>Date Less Than</source>
        <comment>OpName 132</comment>
        <translation>Date antérieure à</translation>
    </message>
    <message>
        <source>Date Bigger Than</source>
        <comment>OpName 133</comment>
        <translation>Date postérieure à</translation>
    </message>
    <message>
        <source>Date Less Than or Equal</source>
        <comment>OpName 134</comment>
        <translation>Date au plus tard le</translation>
    </message>
    <message>
        <source>Date Bigger Than or Equal</source>
        <comment>OpName 135</comment>
        <translation>Date au plus tôt le</translation>
    </message>
    <message>
        <source>Binary Equal To</source>
        <comment>OpName 139</comment>
        <translation>Oui/Non égal à</translation>
    </message>
</context>
<context>
    <name>StoredProcs</name>
    <message>
        <source>The condition was saved by somebody else after it was loaded; your changes were not saved. Load the condition again and repeat your changes.</source>
        <comment>StoredProcs 1</comment>
        <translation>La condition a été enregistrée par quelqu’un d’autre après son chargement&#xa0;; vos modifications n’ont pas été enregistrées. Rechargez la condition et refaites vos modifications.</translation>
    </message>
    <message>
        <source>A text holds a character that the database cannot hold; your changes were not saved. Remove the character and save again.</source>
        <comment>StoredProcs 2</comment>
        <translation>Un texte contient un caractère que la base de données ne peut pas stocker&#xa0;; vos modifications n’ont pas été enregistrées. Supprimez ce caractère et enregistrez à nouveau.</translation>
    </message>
    <message>
        <source>A text is larger than 16 MiB, which the database cannot hold; your changes were not saved. Shorten the text and save again.</source>
        <comment>StoredProcs 3</comment>
        <translation>Un texte dépasse 16&#xa0;Mio, ce que la base de données ne peut pas stocker&#xa0;; vos modifications n’ont pas été enregistrées. Raccourcissez le texte et enregistrez à nouveau.</translation>
    </message>
</context>
<context>
    <name>Workflow</name>
    <message>
        <source>FilePath</source>
        <comment>TS 20</comment>
        <translation>Chemin du fichier</translation>
    </message>
    <message>
        <source>Revision</source>
        <comment>TS 21</comment>
        <translation>Révision</translation>
    </message>
    <message>
        <source>User</source>
        <comment>TS 40</comment>
        <translation>Utilisateur</translation>
    </message>
    <message>
        <source>Yes</source>
        <comment>TS 58</comment>
        <translation>Oui</translation>
    </message>
    <message>
        <source>No</source>
        <comment>TS 59</comment>
        <translation>Non</translation>
    </message>
    <message>
        <source>Category</source>
        <comment>TS 87</comment>
        <translation>Catégorie</translation>
    </message>
    <message>
        <source>Group</source>
        <comment>TS 180</comment>
        <translation>Groupe</translation>
    </message>
    <message>
        <source>Object Type</source>
        <comment>TS 732</comment>
        <translation>Type d’objet</translation>
    </message>
    <message>
        <source>File</source>
        <comment>TS 733</comment>
        <translation>Fichier</translation>
    </message>
    <message>
        <source>BOM</source>
        <comment>TS 734</comment>
        <translation>Nomenclature</translation>
    </message>
    <message>
        <source>Child Reference State</source>
        <comment>TS 756</comment>
        <translation>État de la référence enfant</translation>
    </message>
    <message>
        <source>Child Reference historic State</source>
        <comment>TS 757</comment>
        <translation>État historique de la référence enfant</translation>
    </message>
</context>
</TS>
