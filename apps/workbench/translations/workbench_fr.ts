<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fr" sourcelanguage="en">
<context>
    <name>ConditionJson</name>
    <message>
        <source>row %1: the field %2 holds %3, which a file cannot carry</source>
        <extracomment>%2 is the field&apos;s name in the file, %3 a character as U+0000</extracomment>
        <translation>ligne %1&#xa0;: le champ %2 contient le caractère %3, qui ne peut pas figurer dans un fichier</translation>
    </message>
    <message>
        <source>row %1: the field %2 holds the unpaired surrogate %3, which a file cannot carry</source>
        <extracomment>%2 is the field&apos;s name in the file, %3 a character as U+D800</extracomment>
        <translation>ligne %1&#xa0;: le champ %2 contient le caractère de substitution non apparié %3, qui ne peut pas figurer dans un fichier</translation>
    </message>
    <message>
        <source>true or false</source>
        <extracomment>Behind &quot;a number is expected, not&quot;; so are the other kinds of value</extracomment>
        <translation>un booléen (true ou false)</translation>
    </message>
    <message>
        <source>a number</source>
        <translation>un nombre</translation>
    </message>
    <message>
        <source>a text</source>
        <translation>un texte</translation>
    </message>
    <message>
        <source>a list</source>
        <translation>une liste</translation>
    </message>
    <message>
        <source>an object</source>
        <translation>un objet</translation>
    </message>
    <message>
        <source>null</source>
        <extracomment>The word of JSON for no value</extracomment>
        <translation>null</translation>
    </message>
    <message>
        <source>a number is expected, not %1</source>
        <translation>un nombre est attendu, et non %1</translation>
    </message>
    <message>
        <source>a text is expected, not %1</source>
        <translation>un texte est attendu, et non %1</translation>
    </message>
    <message>
        <source>a list is expected, not %1</source>
        <translation>une liste est attendue, et non %1</translation>
    </message>
    <message>
        <source>an object is expected, not %1</source>
        <translation>un objet est attendu, et non %1</translation>
    </message>
    <message>
        <source>%1 is no whole number of 32 bits</source>
        <translation>%1 n’est pas un nombre entier sur 32 bits</translation>
    </message>
    <message>
        <source>the text holds %1</source>
        <extracomment>%1 is a character as U+0000</extracomment>
        <translation>le texte contient le caractère %1</translation>
    </message>
    <message>
        <source>the text holds the unpaired surrogate %1</source>
        <extracomment>%1 is a character as U+D800</extracomment>
        <translation>le texte contient le caractère de substitution non apparié %1</translation>
    </message>
    <message>
        <source>the field is missing</source>
        <translation>le champ est absent</translation>
    </message>
    <message>
        <source>the field %1 is unknown</source>
        <translation>le champ %1 est inconnu</translation>
    </message>
    <message>
        <source>%1 is expected, not %2</source>
        <extracomment>%1 and %2 are values: 1, &quot;condtree-condition&quot;</extracomment>
        <translation>%1 est attendu, et non %2</translation>
    </message>
    <message>
        <source>%1 (byte %2, line %3)</source>
        <extracomment>%1 is what is wrong in a file, %2 and %3 the place</extracomment>
        <translation>%1 (octet %2, ligne %3)</translation>
    </message>
    <message>
        <source>not JSON: %1</source>
        <extracomment>%1 is the reason, perhaps in the words of the toolkit</extracomment>
        <translation>JSON non valide&#xa0;: %1</translation>
    </message>
    <message>
        <source>more than %1 values</source>
        <extracomment>%1 is 4000000; values are objects, lists and whatever stands in them</extracomment>
        <translation>plus de %1 valeurs</translation>
    </message>
    <message>
        <source>the file is empty</source>
        <translation>le fichier est vide</translation>
    </message>
    <message>
        <source>the text is in UTF-16 or UTF-32; UTF-8 is expected</source>
        <translation>le texte est codé en UTF-16 ou en UTF-32&#xa0;; UTF-8 est attendu</translation>
    </message>
    <message>
        <source>the condition takes more than the %1 bytes that a file may have</source>
        <translation>la condition dépasse la taille maximale d’un fichier, soit %1 octets</translation>
    </message>
    <message>
        <source>the condition has more than %1 values, which no file may have</source>
        <extracomment>%1 is 4000000</extracomment>
        <translation>la condition compte plus de %1 valeurs, le maximum autorisé dans un fichier</translation>
    </message>
</context>
<context>
    <name>Database</name>
    <message>
        <source>cannot open the database %1</source>
        <translation>impossible d’ouvrir la base de données %1</translation>
    </message>
    <message>
        <source>there is no database %1</source>
        <translation>la base de données %1 n’existe pas</translation>
    </message>
    <message>
        <source>the database %1 has no user %2</source>
        <translation>la base de données %1 n’a pas d’utilisateur %2</translation>
    </message>
    <message>
        <source>cannot make the folder %1</source>
        <translation>impossible de créer le dossier %1</translation>
    </message>
    <message>
        <source>cannot make the sample database %1</source>
        <translation>impossible de créer la base de données d’exemple %1</translation>
    </message>
    <message>
        <source>cannot read the transitions</source>
        <translation>impossible de lire les transitions</translation>
    </message>
    <message>
        <source>cannot read the condition of %1</source>
        <translation>impossible de lire la condition de la transition %1</translation>
    </message>
    <message>
        <source>cannot save the condition of %1</source>
        <translation>impossible d’enregistrer la condition de la transition %1</translation>
    </message>
    <message>
        <source>more than one transition is named %1</source>
        <translation>plusieurs transitions portent le nom %1</translation>
    </message>
    <message>
        <source>there is no transition %1</source>
        <translation>la transition %1 n’existe pas</translation>
    </message>
</context>
<context>
    <name>Dialogs</name>
    <message>
        <source>Conditions (*.json);;All files (*)</source>
        <translation>Conditions (*.json);;Tous les fichiers (*)</translation>
    </message>
    <message>
        <source>The condition of %1 has changes that are not saved.</source>
        <translation>La condition de la transition %1 comporte des modifications non enregistrées.</translation>
    </message>
    <message>
        <source>Save them before going on?</source>
        <translation>Voulez-vous les enregistrer avant de continuer&#xa0;?</translation>
    </message>
    <message>
        <source>Give up the changes to the condition of %1?</source>
        <translation>Abandonner les modifications de la condition de la transition %1&#xa0;?</translation>
    </message>
    <message>
        <source>The condition will be read from the database again.</source>
        <translation>La condition sera relue dans la base de données.</translation>
    </message>
    <message>
        <source>Import a condition</source>
        <translation>Importer une condition</translation>
    </message>
    <message>
        <source>Export the condition</source>
        <translation>Exporter la condition</translation>
    </message>
</context>
<context>
    <name>Files</name>
    <message>
        <source>standard input</source>
        <extracomment>Stands where the name of a file stands otherwise</extracomment>
        <translation>entrée standard</translation>
    </message>
    <message>
        <source>standard output</source>
        <extracomment>Stands where the name of a file stands otherwise</extracomment>
        <translation>sortie standard</translation>
    </message>
    <message>
        <source>%1: cannot be read: %2</source>
        <extracomment>%1 is a file, %2 the reason in the words of the system</extracomment>
        <translation>%1&#xa0;: lecture impossible&#xa0;: %2</translation>
    </message>
    <message>
        <source>%1: cannot be written: %2</source>
        <extracomment>%1 is a file, %2 the reason in the words of the system</extracomment>
        <translation>%1&#xa0;: écriture impossible&#xa0;: %2</translation>
    </message>
    <message>
        <source>is a folder, not a file</source>
        <translation>c’est un dossier, et non un fichier</translation>
    </message>
    <message>
        <source>%1: more than the limit of %2 bytes</source>
        <translation>%1&#xa0;: dépasse la limite de %2 octets</translation>
    </message>
    <message>
        <source>is no regular file</source>
        <translation>ce n’est pas un fichier ordinaire</translation>
    </message>
    <message>
        <source>%1: %2 bytes; the limit is %3 bytes</source>
        <translation>%1&#xa0;: %2 octets&#xa0;; la limite est de %3 octets</translation>
    </message>
</context>
<context>
    <name>Headless</name>
    <message>
        <source>the picture cannot be made</source>
        <translation>impossible de créer l’image</translation>
    </message>
    <message>
        <source>the database has no transitions</source>
        <translation>la base de données ne contient aucune transition</translation>
    </message>
</context>
<context>
    <name>JsonFlaws</name>
    <message>
        <source>a control character in a text</source>
        <extracomment>Behind &quot;not JSON: &quot;; so are the next ones</extracomment>
        <translation>un caractère de contrôle dans un texte</translation>
    </message>
    <message>
        <source>an unknown escape sequence</source>
        <translation>une séquence d’échappement inconnue</translation>
    </message>
    <message>
        <source>the key %1 is given twice</source>
        <translation>la clé %1 figure deux fois</translation>
    </message>
    <message>
        <source>an incomplete number</source>
        <translation>un nombre incomplet</translation>
    </message>
</context>
<context>
    <name>Main</name>
    <message>
        <source>there is no display to open a window on: %1 is not set</source>
        <extracomment>%1 is a variable of the environment</extracomment>
        <translation>aucun affichage disponible pour ouvrir une fenêtre&#xa0;: la variable %1 n’est pas définie</translation>
    </message>
    <message>
        <source>there is no display to open a window on: neither DISPLAY nor WAYLAND_DISPLAY is set</source>
        <translation>aucun affichage disponible pour ouvrir une fenêtre&#xa0;: ni DISPLAY ni WAYLAND_DISPLAY n’est définie</translation>
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
        <translation>%1&#xa0;: %2</translation>
    </message>
</context>
<context>
    <name>Options</name>
    <message>
        <source>the database; without it the sample database is opened</source>
        <extracomment>Of --db. This and what follows are lines of the list of options</extracomment>
        <translation>base de données&#xa0;; à défaut, la base d’exemple est ouverte</translation>
    </message>
    <message>
        <source>the login name</source>
        <translation>nom de connexion</translation>
    </message>
    <message>
        <source>the transition, WORKFLOW/NAME as --list has it</source>
        <extracomment>WORKFLOW and NAME may be translated</extracomment>
        <translation>transition, sous la forme WORKFLOW/NAME qu’affiche --list</translation>
    </message>
    <message>
        <source>the language, such as de or pt_BR; without it the user&apos;s own</source>
        <translation>langue, par ex. fr ou pt_BR&#xa0;; à défaut, celle de l’utilisateur</translation>
    </message>
    <message>
        <source>print the transitions</source>
        <translation>afficher les transitions</translation>
    </message>
    <message>
        <source>print the transition&apos;s condition as a tree</source>
        <translation>afficher la condition de la transition sous forme d’arbre</translation>
    </message>
    <message>
        <source>write the condition as JSON; - is the standard output</source>
        <translation>écrire la condition en JSON&#xa0;; - désigne la sortie standard</translation>
    </message>
    <message>
        <source>store a condition from JSON; - is the standard input</source>
        <translation>stocker une condition lue en JSON&#xa0;; - désigne l’entrée standard</translation>
    </message>
    <message>
        <source>draw the window to a PNG picture</source>
        <translation>dessiner la fenêtre dans une image PNG</translation>
    </message>
    <message>
        <source>print this text</source>
        <translation>afficher cette aide</translation>
    </message>
    <message>
        <source>print the version</source>
        <translation>afficher la version</translation>
    </message>
    <message>
        <source>%1 needs %2</source>
        <extracomment>%1 and %2 are options</extracomment>
        <translation>%1 nécessite %2</translation>
    </message>
    <message>
        <source>unexpected argument %1</source>
        <translation>argument inattendu %1</translation>
    </message>
    <message>
        <source>unknown option %1</source>
        <translation>option inconnue %1</translation>
    </message>
    <message>
        <source>%1 takes no value</source>
        <translation>%1 n’accepte pas de valeur</translation>
    </message>
    <message>
        <source>%1 needs a value: %2</source>
        <extracomment>%1 is an option, %2 the kind of value, as FILE</extracomment>
        <translation>%1 nécessite une valeur&#xa0;: %2</translation>
    </message>
    <message>
        <source>%1 is given twice</source>
        <translation>%1 figure deux fois</translation>
    </message>
    <message>
        <source>Usage: condtree-workbench [OPTION]...</source>
        <translation>Utilisation&#xa0;: condtree-workbench [OPTION]...</translation>
    </message>
    <message>
        <source>Edit the conditions of workflow transitions.</source>
        <translation>Modifier les conditions des transitions de workflow.</translation>
    </message>
    <message>
        <source>With --list, --print, --export, --import or --screenshot no window is opened and no display
is needed.</source>
        <extracomment>Lines of at most 100 characters</extracomment>
        <translation>Avec --list, --print, --export, --import ou --screenshot, aucune fenêtre ne s’ouvre et aucun
affichage n’est nécessaire.</translation>
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
        <translation>&amp;Enregistrer</translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <extracomment>A button of a message box on a GNOME desktop</extracomment>
        <translation>&amp;Annuler</translation>
    </message>
    <message>
        <source>Close without Saving</source>
        <extracomment>A button of a message box on a GNOME desktop: goes on and gives up the changes</extracomment>
        <translation>Fermer sans enregistrer</translation>
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
        <translation>Enregistrer</translation>
    </message>
    <message>
        <source>Cancel</source>
        <extracomment>A button of a message box</extracomment>
        <translation>Annuler</translation>
    </message>
    <message>
        <source>Discard</source>
        <extracomment>A button of a message box: gives up the changes</extracomment>
        <translation>Abandonner</translation>
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
        <translation>%1 et %2</translation>
    </message>
    <message numerus="yes">
        <source>%1 and %n more</source>
        <extracomment>A list of row numbers that is cut: &quot;1, 2, 3, 4, 5 and 7 more&quot;</extracomment>
        <translation>
            <numerusform>%1 et %n autre</numerusform>
            <numerusform>%1 et %n autres</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>SaveRefusal</name>
    <message>
        <source>Row %1: the name holds a character that the database cannot hold.</source>
        <translation>Ligne %1&#xa0;: le nom contient un caractère que la base de données ne peut pas stocker.</translation>
    </message>
    <message>
        <source>Row %1: the remark holds a character that the database cannot hold.</source>
        <translation>Ligne %1&#xa0;: la remarque contient un caractère que la base de données ne peut pas stocker.</translation>
    </message>
    <message>
        <source>Row %1: the value holds a character that the database cannot hold.</source>
        <translation>Ligne %1&#xa0;: la valeur contient un caractère que la base de données ne peut pas stocker.</translation>
    </message>
    <message>
        <source>Row %1: the name is larger than 16 MiB, which the database cannot hold.</source>
        <translation>Ligne %1&#xa0;: le nom dépasse 16&#xa0;Mio, la taille maximale que la base de données peut stocker.</translation>
    </message>
    <message>
        <source>Row %1: the remark is larger than 16 MiB, which the database cannot hold.</source>
        <translation>Ligne %1&#xa0;: la remarque dépasse 16&#xa0;Mio, la taille maximale que la base de données peut stocker.</translation>
    </message>
    <message>
        <source>Row %1: the value is larger than 16 MiB, which the database cannot hold.</source>
        <translation>Ligne %1&#xa0;: la valeur dépasse 16&#xa0;Mio, la taille maximale que la base de données peut stocker.</translation>
    </message>
    <message>
        <source>The condition was saved by %1 after it was loaded; your changes were not saved.</source>
        <translation>La condition a été enregistrée par %1 après son chargement&#xa0;; vos modifications n’ont pas été enregistrées.</translation>
    </message>
    <message>
        <source>The condition was saved by %1 (%2) after it was loaded; your changes were not saved.</source>
        <extracomment>%1 is a login name, %2 a date and time</extracomment>
        <translation>La condition a été enregistrée par %1 (%2) après son chargement&#xa0;; vos modifications n’ont pas été enregistrées.</translation>
    </message>
    <message>
        <source>The disk is full; your changes were not saved.</source>
        <translation>Le disque est plein&#xa0;; vos modifications n’ont pas été enregistrées.</translation>
    </message>
    <message>
        <source>The database could not be written; your changes were not saved.</source>
        <translation>Impossible d’écrire dans la base de données&#xa0;; vos modifications n’ont pas été enregistrées.</translation>
    </message>
</context>
<context>
    <name>condtree::workbench::ConditionEditor</name>
    <message>
        <source>Never changed</source>
        <translation>Jamais modifiée</translation>
    </message>
    <message>
        <source>Last changed by %1, %2</source>
        <extracomment>%1 is a login name, %2 a date and time</extracomment>
        <translation>Dernière modification par %1, %2</translation>
    </message>
    <message>
        <source>Condition</source>
        <extracomment>What the rows are to those who hear the window</extracomment>
        <translation>Condition</translation>
    </message>
    <message>
        <source>There is no transition to save.</source>
        <translation>Il n’y a aucune transition à enregistrer.</translation>
    </message>
    <message>
        <source>There is no transition to import into.</source>
        <translation>Il n’y a aucune transition dans laquelle importer.</translation>
    </message>
    <message numerus="yes">
        <source>Saving will drop %n of the %1 record(s) that were read.</source>
        <translation>
            <numerusform>Si vous enregistrez, %n enregistrement lu sur %1 sera supprimé.</numerusform>
            <numerusform>Si vous enregistrez, %n enregistrements lus sur %1 seront supprimés.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Saving will store something other than what was read: %n of the %1 record(s), row(s) %2.</source>
        <extracomment>%n counts the records that change, %1 all; %2 names the first: &quot;3&quot;, &quot;1, 2 and 9&quot;</extracomment>
        <translation>
            <numerusform>Si vous enregistrez, %n enregistrement sur %1 sera stocké autrement qu’il n’a été lu&#xa0;: ligne %2.</numerusform>
            <numerusform>Si vous enregistrez, %n enregistrements sur %1 seront stockés autrement qu’ils n’ont été lus&#xa0;: lignes %2.</numerusform>
        </translation>
    </message>
    <message>
        <source>No transition is open</source>
        <translation>Aucune transition n’est ouverte</translation>
    </message>
    <message>
        <source>%1: %2 → %3</source>
        <extracomment>A workflow and the states that a transition goes from and to</extracomment>
        <translation>%1&#xa0;: %2 → %3</translation>
    </message>
</context>
<context>
    <name>condtree::workbench::MainWindow</name>
    <message>
        <source>&amp;Save</source>
        <translation>&amp;Enregistrer</translation>
    </message>
    <message>
        <source>&amp;Revert</source>
        <translation>&amp;Restaurer</translation>
    </message>
    <message>
        <source>&amp;Import…</source>
        <translation>&amp;Importer…</translation>
    </message>
    <message>
        <source>&amp;Export…</source>
        <translation>E&amp;xporter…</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>&amp;Quitter</translation>
    </message>
    <message>
        <source>&amp;Condition</source>
        <extracomment>The menu of what is done with a condition</extracomment>
        <translation>&amp;Condition</translation>
    </message>
    <message>
        <source>Condition</source>
        <extracomment>The name of the tool bar, as its context menu shows it</extracomment>
        <translation>Condition</translation>
    </message>
    <message>
        <source>&amp;Transitions</source>
        <translation>&amp;Transitions</translation>
    </message>
    <message>
        <source>%1 on %2</source>
        <extracomment>%1 is a login name, %2 the name of a database</extracomment>
        <translation>%1 sur %2</translation>
    </message>
    <message>
        <source>Nothing was stored, and your changes are still here. You can export them to a file, or revert to the condition in the database.</source>
        <translation>Rien n’a été enregistré et vos modifications sont toujours là. Vous pouvez les exporter dans un fichier ou restaurer la condition de la base de données.</translation>
    </message>
    <message>
        <source>Saved.</source>
        <translation>Condition enregistrée.</translation>
    </message>
    <message>
        <source>There is nothing to save.</source>
        <translation>Il n’y a rien à enregistrer.</translation>
    </message>
    <message>
        <source>Read from the database again.</source>
        <translation>Condition relue dans la base de données.</translation>
    </message>
    <message>
        <source>Imported. Save stores it in the database.</source>
        <translation>Condition importée. Choisissez «&#xa0;Enregistrer&#xa0;» pour la stocker dans la base de données.</translation>
    </message>
    <message>
        <source>Exported to %1</source>
        <translation>Condition exportée vers %1</translation>
    </message>
</context>
<context>
    <name>condtree::workbench::TransitionList</name>
    <message>
        <source>Workflows and their transitions</source>
        <extracomment>What the list is to those who hear the window</extracomment>
        <translation>Workflows et leurs transitions</translation>
    </message>
    <message>
        <source>* %1</source>
        <extracomment>The mark in front of a transition whose condition has changes that are not saved</extracomment>
        <translation>* %1</translation>
    </message>
    <message>
        <source>%1 (not saved)</source>
        <translation>%1 (non enregistrée)</translation>
    </message>
    <message>
        <source>empty</source>
        <extracomment>Stands in place of the number of rows of a condition; short, for a narrow column</extracomment>
        <translation>vide</translation>
    </message>
    <message>
        <source>There is no condition yet</source>
        <translation>Il n’y a pas encore de condition</translation>
    </message>
    <message numerus="yes">
        <source>The condition has %n row(s) and group(s)</source>
        <translation>
            <numerusform>La condition compte %n ligne ou groupe</numerusform>
            <numerusform>La condition compte %n lignes et groupes</numerusform>
        </translation>
    </message>
</context>
</TS>
