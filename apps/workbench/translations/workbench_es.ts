<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="es" sourcelanguage="en">
<context>
    <name>ConditionJson</name>
    <message>
        <source>row %1: the field %2 holds %3, which a file cannot carry</source>
        <extracomment>%2 is the field&apos;s name in the file, %3 a character as U+0000</extracomment>
        <translation>fila %1: el campo %2 contiene %3, que no se puede guardar en un archivo</translation>
    </message>
    <message>
        <source>row %1: the field %2 holds the unpaired surrogate %3, which a file cannot carry</source>
        <extracomment>%2 is the field&apos;s name in the file, %3 a character as U+D800</extracomment>
        <translation>fila %1: el campo %2 contiene el sustituto sin pareja %3, que no se puede guardar en un archivo</translation>
    </message>
    <message>
        <source>true or false</source>
        <extracomment>Behind &quot;a number is expected, not&quot;; so are the other kinds of value</extracomment>
        <translation>un valor true o false</translation>
    </message>
    <message>
        <source>a number</source>
        <translation>un número</translation>
    </message>
    <message>
        <source>a text</source>
        <translation>un texto</translation>
    </message>
    <message>
        <source>a list</source>
        <translation>una lista</translation>
    </message>
    <message>
        <source>an object</source>
        <translation>un objeto</translation>
    </message>
    <message>
        <source>null</source>
        <extracomment>The word of JSON for no value</extracomment>
        <translation>null</translation>
    </message>
    <message>
        <source>a number is expected, not %1</source>
        <translation>se espera un número, no %1</translation>
    </message>
    <message>
        <source>a text is expected, not %1</source>
        <translation>se espera un texto, no %1</translation>
    </message>
    <message>
        <source>a list is expected, not %1</source>
        <translation>se espera una lista, no %1</translation>
    </message>
    <message>
        <source>an object is expected, not %1</source>
        <translation>se espera un objeto, no %1</translation>
    </message>
    <message>
        <source>%1 is no whole number of 32 bits</source>
        <translation>%1 no es un número entero de 32 bits</translation>
    </message>
    <message>
        <source>the text holds %1</source>
        <extracomment>%1 is a character as U+0000</extracomment>
        <translation>el texto contiene %1</translation>
    </message>
    <message>
        <source>the text holds the unpaired surrogate %1</source>
        <extracomment>%1 is a character as U+D800</extracomment>
        <translation>el texto contiene el sustituto sin pareja %1</translation>
    </message>
    <message>
        <source>the field is missing</source>
        <translation>falta el campo</translation>
    </message>
    <message>
        <source>the field %1 is unknown</source>
        <translation>el campo %1 es desconocido</translation>
    </message>
    <message>
        <source>%1 is expected, not %2</source>
        <extracomment>%1 and %2 are values: 1, &quot;condtree-condition&quot;</extracomment>
        <translation>se espera %1, no %2</translation>
    </message>
    <message>
        <source>%1 (byte %2, line %3)</source>
        <extracomment>%1 is what is wrong in a file, %2 and %3 the place</extracomment>
        <translation>%1 (byte %2, línea %3)</translation>
    </message>
    <message>
        <source>not JSON: %1</source>
        <extracomment>%1 is the reason, perhaps in the words of the toolkit</extracomment>
        <translation>no es JSON válido: %1</translation>
    </message>
    <message>
        <source>more than %1 values</source>
        <extracomment>%1 is 4000000; values are objects, lists and whatever stands in them</extracomment>
        <translation>más de %1 valores</translation>
    </message>
    <message>
        <source>the file is empty</source>
        <translation>el archivo está vacío</translation>
    </message>
    <message>
        <source>the text is in UTF-16 or UTF-32; UTF-8 is expected</source>
        <translation>el texto está en UTF-16 o UTF-32; se espera UTF-8</translation>
    </message>
    <message>
        <source>the condition takes more than the %1 bytes that a file may have</source>
        <translation>la condición ocupa más de los %1 bytes que puede tener un archivo</translation>
    </message>
    <message>
        <source>the condition has more than %1 values, which no file may have</source>
        <extracomment>%1 is 4000000</extracomment>
        <translation>la condición tiene más de %1 valores, el máximo que admite un archivo</translation>
    </message>
</context>
<context>
    <name>Database</name>
    <message>
        <source>cannot open the database %1</source>
        <translation>no se puede abrir la base de datos %1</translation>
    </message>
    <message>
        <source>there is no database %1</source>
        <translation>no existe la base de datos %1</translation>
    </message>
    <message>
        <source>the database %1 has no user %2</source>
        <translation>en la base de datos %1 no existe el usuario %2</translation>
    </message>
    <message>
        <source>cannot make the folder %1</source>
        <translation>no se puede crear la carpeta %1</translation>
    </message>
    <message>
        <source>cannot make the sample database %1</source>
        <translation>no se puede crear la base de datos de ejemplo %1</translation>
    </message>
    <message>
        <source>cannot read the transitions</source>
        <translation>no se pueden leer las transiciones</translation>
    </message>
    <message>
        <source>cannot read the condition of %1</source>
        <translation>no se puede leer la condición de %1</translation>
    </message>
    <message>
        <source>cannot save the condition of %1</source>
        <translation>no se puede guardar la condición de %1</translation>
    </message>
    <message>
        <source>more than one transition is named %1</source>
        <translation>hay más de una transición con el nombre %1</translation>
    </message>
    <message>
        <source>there is no transition %1</source>
        <translation>no existe la transición %1</translation>
    </message>
</context>
<context>
    <name>Dialogs</name>
    <message>
        <source>Conditions (*.json);;All files (*)</source>
        <translation>Condiciones (*.json);;Todos los archivos (*)</translation>
    </message>
    <message>
        <source>The condition of %1 has changes that are not saved.</source>
        <translation>La condición de %1 tiene cambios sin guardar.</translation>
    </message>
    <message>
        <source>Save them before going on?</source>
        <translation>¿Desea guardarlos antes de continuar?</translation>
    </message>
    <message>
        <source>Give up the changes to the condition of %1?</source>
        <translation>¿Desea descartar los cambios de la condición de %1?</translation>
    </message>
    <message>
        <source>The condition will be read from the database again.</source>
        <translation>La condición se volverá a leer de la base de datos.</translation>
    </message>
    <message>
        <source>Import a condition</source>
        <translation>Importar una condición</translation>
    </message>
    <message>
        <source>Export the condition</source>
        <translation>Exportar la condición</translation>
    </message>
</context>
<context>
    <name>Files</name>
    <message>
        <source>standard input</source>
        <extracomment>Stands where the name of a file stands otherwise</extracomment>
        <translation>entrada estándar</translation>
    </message>
    <message>
        <source>standard output</source>
        <extracomment>Stands where the name of a file stands otherwise</extracomment>
        <translation>salida estándar</translation>
    </message>
    <message>
        <source>%1: cannot be read: %2</source>
        <extracomment>%1 is a file, %2 the reason in the words of the system</extracomment>
        <translation>%1: no se puede leer: %2</translation>
    </message>
    <message>
        <source>%1: cannot be written: %2</source>
        <extracomment>%1 is a file, %2 the reason in the words of the system</extracomment>
        <translation>%1: no se puede escribir: %2</translation>
    </message>
    <message>
        <source>is a folder, not a file</source>
        <translation>es una carpeta, no un archivo</translation>
    </message>
    <message>
        <source>%1: more than the limit of %2 bytes</source>
        <translation>%1: supera el límite de %2 bytes</translation>
    </message>
    <message>
        <source>is no regular file</source>
        <translation>no es un archivo normal</translation>
    </message>
    <message>
        <source>%1: %2 bytes; the limit is %3 bytes</source>
        <translation>%1: %2 bytes; el límite es de %3 bytes</translation>
    </message>
</context>
<context>
    <name>Headless</name>
    <message>
        <source>the picture cannot be made</source>
        <translation>no se puede crear la imagen</translation>
    </message>
    <message>
        <source>the database has no transitions</source>
        <translation>la base de datos no tiene transiciones</translation>
    </message>
</context>
<context>
    <name>JsonFlaws</name>
    <message>
        <source>a control character in a text</source>
        <extracomment>Behind &quot;not JSON: &quot;; so are the next ones</extracomment>
        <translation>carácter de control en un texto</translation>
    </message>
    <message>
        <source>an unknown escape sequence</source>
        <translation>secuencia de escape desconocida</translation>
    </message>
    <message>
        <source>the key %1 is given twice</source>
        <translation>la clave %1 aparece dos veces</translation>
    </message>
    <message>
        <source>an incomplete number</source>
        <translation>número incompleto</translation>
    </message>
</context>
<context>
    <name>Main</name>
    <message>
        <source>there is no display to open a window on: %1 is not set</source>
        <extracomment>%1 is a variable of the environment</extracomment>
        <translation>no hay ninguna pantalla en la que abrir una ventana: %1 no está definida</translation>
    </message>
    <message>
        <source>there is no display to open a window on: neither DISPLAY nor WAYLAND_DISPLAY is set</source>
        <translation>no hay ninguna pantalla en la que abrir una ventana: ni DISPLAY ni WAYLAND_DISPLAY están definidas</translation>
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
        <translation>la base de datos; si se omite, se abre la de ejemplo</translation>
    </message>
    <message>
        <source>the login name</source>
        <translation>el nombre de inicio de sesión</translation>
    </message>
    <message>
        <source>the transition, WORKFLOW/NAME as --list has it</source>
        <extracomment>WORKFLOW and NAME may be translated</extracomment>
        <translation>la transición, FLUJO/NOMBRE tal como la muestra --list</translation>
    </message>
    <message>
        <source>the language, such as de or pt_BR; without it the user&apos;s own</source>
        <translation>el idioma, por ejemplo, «de» o «pt_BR»; si se omite, el del usuario</translation>
    </message>
    <message>
        <source>print the transitions</source>
        <translation>muestra las transiciones</translation>
    </message>
    <message>
        <source>print the transition&apos;s condition as a tree</source>
        <translation>muestra la condición de la transición en forma de árbol</translation>
    </message>
    <message>
        <source>write the condition as JSON; - is the standard output</source>
        <translation>escribe la condición como JSON; - es la salida estándar</translation>
    </message>
    <message>
        <source>store a condition from JSON; - is the standard input</source>
        <translation>guarda una condición leída de JSON; - es la entrada estándar</translation>
    </message>
    <message>
        <source>draw the window to a PNG picture</source>
        <translation>dibuja la ventana en una imagen PNG</translation>
    </message>
    <message>
        <source>print this text</source>
        <translation>muestra este texto</translation>
    </message>
    <message>
        <source>print the version</source>
        <translation>muestra la versión</translation>
    </message>
    <message>
        <source>%1 needs %2</source>
        <extracomment>%1 and %2 are options</extracomment>
        <translation>%1 requiere %2</translation>
    </message>
    <message>
        <source>unexpected argument %1</source>
        <translation>argumento inesperado: %1</translation>
    </message>
    <message>
        <source>unknown option %1</source>
        <translation>opción desconocida: %1</translation>
    </message>
    <message>
        <source>%1 takes no value</source>
        <translation>%1 no admite ningún valor</translation>
    </message>
    <message>
        <source>%1 needs a value: %2</source>
        <extracomment>%1 is an option, %2 the kind of value, as FILE</extracomment>
        <translation>%1 requiere un valor: %2</translation>
    </message>
    <message>
        <source>%1 is given twice</source>
        <translation>%1 se ha indicado dos veces</translation>
    </message>
    <message>
        <source>Usage: condtree-workbench [OPTION]...</source>
        <translation>Uso: condtree-workbench [OPCIÓN]...</translation>
    </message>
    <message>
        <source>Edit the conditions of workflow transitions.</source>
        <translation>Edita las condiciones de las transiciones de los flujos de trabajo.</translation>
    </message>
    <message>
        <source>With --list, --print, --export, --import or --screenshot no window is opened and no display
is needed.</source>
        <extracomment>Lines of at most 100 characters</extracomment>
        <translation>Con --list, --print, --export, --import o --screenshot no se abre ninguna ventana
ni se necesita una pantalla.</translation>
    </message>
</context>
<context>
    <name>QGnomeTheme</name>
    <message>
        <source>&amp;OK</source>
        <extracomment>A button of a message box on a GNOME desktop</extracomment>
        <translation>&amp;Aceptar</translation>
    </message>
    <message>
        <source>&amp;Save</source>
        <extracomment>A button of a message box on a GNOME desktop</extracomment>
        <translation>&amp;Guardar</translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <extracomment>A button of a message box on a GNOME desktop</extracomment>
        <translation>&amp;Cancelar</translation>
    </message>
    <message>
        <source>Close without Saving</source>
        <extracomment>A button of a message box on a GNOME desktop: goes on and gives up the changes</extracomment>
        <translation>Cerrar sin guardar</translation>
    </message>
</context>
<context>
    <name>QPlatformTheme</name>
    <message>
        <source>OK</source>
        <extracomment>A button of a message box</extracomment>
        <translation>Aceptar</translation>
    </message>
    <message>
        <source>Save</source>
        <extracomment>A button of a message box</extracomment>
        <translation>Guardar</translation>
    </message>
    <message>
        <source>Cancel</source>
        <extracomment>A button of a message box</extracomment>
        <translation>Cancelar</translation>
    </message>
    <message>
        <source>Discard</source>
        <extracomment>A button of a message box: gives up the changes</extracomment>
        <translation>Descartar</translation>
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
        <translation>%1 y %2</translation>
    </message>
    <message numerus="yes">
        <source>%1 and %n more</source>
        <extracomment>A list of row numbers that is cut: &quot;1, 2, 3, 4, 5 and 7 more&quot;</extracomment>
        <translation>
            <numerusform>%1 y %n más</numerusform>
            <numerusform>%1 y %n más</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>SaveRefusal</name>
    <message>
        <source>Row %1: the name holds a character that the database cannot hold.</source>
        <translation>Fila %1: el nombre contiene un carácter que la base de datos no puede almacenar.</translation>
    </message>
    <message>
        <source>Row %1: the remark holds a character that the database cannot hold.</source>
        <translation>Fila %1: la observación contiene un carácter que la base de datos no puede almacenar.</translation>
    </message>
    <message>
        <source>Row %1: the value holds a character that the database cannot hold.</source>
        <translation>Fila %1: el valor contiene un carácter que la base de datos no puede almacenar.</translation>
    </message>
    <message>
        <source>Row %1: the name is larger than 16 MiB, which the database cannot hold.</source>
        <translation>Fila %1: el nombre ocupa más de 16 MiB, tamaño que la base de datos no puede almacenar.</translation>
    </message>
    <message>
        <source>Row %1: the remark is larger than 16 MiB, which the database cannot hold.</source>
        <translation>Fila %1: la observación ocupa más de 16 MiB, tamaño que la base de datos no puede almacenar.</translation>
    </message>
    <message>
        <source>Row %1: the value is larger than 16 MiB, which the database cannot hold.</source>
        <translation>Fila %1: el valor ocupa más de 16 MiB, tamaño que la base de datos no puede almacenar.</translation>
    </message>
    <message>
        <source>The condition was saved by %1 after it was loaded; your changes were not saved.</source>
        <translation>%1 guardó la condición después de que usted la cargara; los cambios que usted hizo no se han guardado.</translation>
    </message>
    <message>
        <source>The condition was saved by %1 (%2) after it was loaded; your changes were not saved.</source>
        <extracomment>%1 is a login name, %2 a date and time</extracomment>
        <translation>%1 guardó la condición (%2) después de que usted la cargara; los cambios que usted hizo no se han guardado.</translation>
    </message>
    <message>
        <source>The disk is full; your changes were not saved.</source>
        <translation>El disco está lleno; los cambios que usted hizo no se han guardado.</translation>
    </message>
    <message>
        <source>The database could not be written; your changes were not saved.</source>
        <translation>No se pudo escribir en la base de datos; los cambios que usted hizo no se han guardado.</translation>
    </message>
</context>
<context>
    <name>condtree::workbench::ConditionEditor</name>
    <message>
        <source>Never changed</source>
        <translation>Nunca modificada</translation>
    </message>
    <message>
        <source>Last changed by %1, %2</source>
        <extracomment>%1 is a login name, %2 a date and time</extracomment>
        <translation>Última modificación: %1, %2</translation>
    </message>
    <message>
        <source>Condition</source>
        <extracomment>What the rows are to those who hear the window</extracomment>
        <translation>Condición</translation>
    </message>
    <message>
        <source>There is no transition to save.</source>
        <translation>No hay ninguna transición que guardar.</translation>
    </message>
    <message>
        <source>There is no transition to import into.</source>
        <translation>No hay ninguna transición en la que importar una condición.</translation>
    </message>
    <message numerus="yes">
        <source>Saving will drop %n of the %1 record(s) that were read.</source>
        <translation>
            <numerusform>Al guardar se eliminará %n de los registros leídos, de un total de %1.</numerusform>
            <numerusform>Al guardar se eliminarán %n de los registros leídos, de un total de %1.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Saving will store something other than what was read: %n of the %1 record(s), row(s) %2.</source>
        <extracomment>%n counts the records that change, %1 all; %2 names the first: &quot;3&quot;, &quot;1, 2 and 9&quot;</extracomment>
        <translation>
            <numerusform>Al guardar se almacenará algo distinto de lo leído: %n registro de un total de %1, fila %2.</numerusform>
            <numerusform>Al guardar se almacenará algo distinto de lo leído: %n registros de un total de %1, filas %2.</numerusform>
        </translation>
    </message>
    <message>
        <source>No transition is open</source>
        <translation>No hay ninguna transición abierta</translation>
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
        <translation>&amp;Guardar</translation>
    </message>
    <message>
        <source>&amp;Revert</source>
        <translation>&amp;Revertir</translation>
    </message>
    <message>
        <source>&amp;Import…</source>
        <translation>&amp;Importar…</translation>
    </message>
    <message>
        <source>&amp;Export…</source>
        <translation>&amp;Exportar…</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>&amp;Salir</translation>
    </message>
    <message>
        <source>&amp;Condition</source>
        <extracomment>The menu of what is done with a condition</extracomment>
        <translation>&amp;Condición</translation>
    </message>
    <message>
        <source>Condition</source>
        <extracomment>The name of the tool bar, as its context menu shows it</extracomment>
        <translation>Condición</translation>
    </message>
    <message>
        <source>&amp;Transitions</source>
        <translation>&amp;Transiciones</translation>
    </message>
    <message>
        <source>%1 on %2</source>
        <extracomment>%1 is a login name, %2 the name of a database</extracomment>
        <translation>%1 en %2</translation>
    </message>
    <message>
        <source>Nothing was stored, and your changes are still here. You can export them to a file, or revert to the condition in the database.</source>
        <translation>No se ha almacenado nada y sus cambios siguen aquí. Puede exportarlos a un archivo o revertir a la condición de la base de datos.</translation>
    </message>
    <message>
        <source>Saved.</source>
        <translation>Condición guardada.</translation>
    </message>
    <message>
        <source>There is nothing to save.</source>
        <translation>No hay nada que guardar.</translation>
    </message>
    <message>
        <source>Read from the database again.</source>
        <translation>Condición leída de nuevo de la base de datos.</translation>
    </message>
    <message>
        <source>Imported. Save stores it in the database.</source>
        <translation>Condición importada. «Guardar» la almacena en la base de datos.</translation>
    </message>
    <message>
        <source>Exported to %1</source>
        <translation>Condición exportada a %1</translation>
    </message>
</context>
<context>
    <name>condtree::workbench::TransitionList</name>
    <message>
        <source>Workflows and their transitions</source>
        <extracomment>What the list is to those who hear the window</extracomment>
        <translation>Flujos de trabajo y sus transiciones</translation>
    </message>
    <message>
        <source>* %1</source>
        <extracomment>The mark in front of a transition whose condition has changes that are not saved</extracomment>
        <translation>* %1</translation>
    </message>
    <message>
        <source>%1 (not saved)</source>
        <translation>%1 (sin guardar)</translation>
    </message>
    <message>
        <source>empty</source>
        <extracomment>Stands in place of the number of rows of a condition; short, for a narrow column</extracomment>
        <translation>vacía</translation>
    </message>
    <message>
        <source>There is no condition yet</source>
        <translation>Todavía no hay ninguna condición</translation>
    </message>
    <message numerus="yes">
        <source>The condition has %n row(s) and group(s)</source>
        <translation>
            <numerusform>La condición tiene %n fila o grupo</numerusform>
            <numerusform>La condición tiene %n filas y grupos</numerusform>
        </translation>
    </message>
</context>
</TS>
