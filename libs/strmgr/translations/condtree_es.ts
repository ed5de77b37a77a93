<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="es" sourcelanguage="en">
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
        <translation>Operador</translation>
    </message>
    <message>
        <source>Value</source>
        <comment>TS 3</comment>
        <translation>Valor</translation>
    </message>
    <message>
        <source>Remark</source>
        <comment>TS 4</comment>
        <translation>Observación</translation>
    </message>
    <message>
        <source>Columns</source>
        <comment>TS 5</comment>
        <translation>Columnas</translation>
    </message>
    <message>
        <source>Left and Right choose a boundary, plus and minus move it, Home resets the columns.</source>
        <comment>TS 6</comment>
        <translation>Izquierda y Derecha eligen un límite, más y menos lo mueven, Inicio restablece las columnas.</translation>
    </message>
</context>
<context>
    <name>ErrorCodes</name>
    <message>
        <source>The method was successfully executed.</source>
        <comment>ErrorCodes 0</comment>
        <translation>El método se ejecutó correctamente.</translation>
    </message>
    <message>
        <source>The method was successfully executed but returned &apos;false&apos;.</source>
        <comment>ErrorCodes 1</comment>
        <translation>El método se ejecutó correctamente, pero devolvió «false».</translation>
    </message>
    <message>
        <source>The program used an object without initializing it properly first.</source>
        <comment>ErrorCodes 3</comment>
        <translation>El programa usó un objeto sin haberlo inicializado antes correctamente.</translation>
    </message>
    <message>
        <source>The folder does not have a parent.</source>
        <comment>ErrorCodes 4</comment>
        <translation>La carpeta no tiene carpeta principal.</translation>
    </message>
    <message>
        <source>You don&apos;t have permission to perform this action.</source>
        <comment>ErrorCodes 5</comment>
        <translation>No tiene permiso para realizar esta acción.</translation>
    </message>
    <message>
        <source>You haven&apos;t logged in on the file vault.</source>
        <comment>ErrorCodes 6</comment>
        <translation>No ha iniciado sesión en el almacén de archivos.</translation>
    </message>
    <message>
        <source>You tried to log in twice.</source>
        <comment>ErrorCodes 7</comment>
        <translation>Ha intentado iniciar sesión dos veces.</translation>
    </message>
    <message>
        <source>Could not open database. This could happen if the network connection is broken or if the database has been removed.</source>
        <comment>ErrorCodes 8</comment>
        <translation>No se pudo abrir la base de datos. Es posible que se haya interrumpido la conexión de red o que se haya eliminado la base de datos.</translation>
    </message>
    <message>
        <source>Could not access the item in the database.</source>
        <comment>ErrorCodes 9</comment>
        <translation>No se pudo acceder al elemento en la base de datos.</translation>
    </message>
    <message>
        <source>You tried to get an element from a list where the cursor is off-right.</source>
        <comment>ErrorCodes 10</comment>
        <translation>Ha intentado obtener un elemento de una lista cuyo cursor está más allá del extremo derecho.</translation>
    </message>
    <message>
        <source>Error accessing the revision management system. Network connection down?</source>
        <comment>ErrorCodes 11</comment>
        <translation>Error al acceder al sistema de gestión de revisiones. ¿Se ha interrumpido la conexión de red?</translation>
    </message>
    <message>
        <source>An attempt was made to access a record in the database that is locked by another user.
This can sometimes happen during high workload on the database.
Usually this is solved if you try the operation again.</source>
        <comment>ErrorCodes 12</comment>
        <translation>Se intentó acceder a un registro de la base de datos que otro usuario tiene bloqueado.
Esto puede ocurrir cuando la base de datos está muy cargada.
Normalmente se resuelve repitiendo la operación.</translation>
    </message>
    <message>
        <source>An attempt was made to access a file that is exclusively opened by another application.</source>
        <comment>ErrorCodes 13</comment>
        <translation>Se intentó acceder a un archivo que otra aplicación tiene abierto en modo exclusivo.</translation>
    </message>
    <message>
        <source>Administrated plugins successfully. You should now recreate the plugin menu.</source>
        <comment>ErrorCodes 26</comment>
        <translation>Los complementos se administraron correctamente. Ahora debería volver a crear el menú de complementos.</translation>
    </message>
    <message>
        <source>Menu item not valid in this context due to specified flags.</source>
        <comment>ErrorCodes 27</comment>
        <translation>El elemento de menú no es válido en este contexto debido a los indicadores especificados.</translation>
    </message>
    <message>
        <source>An invalid pointer was supplied to the method.</source>
        <comment>ErrorCodes 32</comment>
        <translation>Se pasó un puntero no válido al método.</translation>
    </message>
    <message>
        <source>Not enough memory to complete the operation.</source>
        <comment>ErrorCodes 33</comment>
        <translation>No hay memoria suficiente para completar la operación.</translation>
    </message>
    <message>
        <source>An invalid argument was given to the method.</source>
        <comment>ErrorCodes 34</comment>
        <translation>Se pasó un argumento no válido al método.</translation>
    </message>
    <message>
        <source>The called method is not implemented.</source>
        <comment>ErrorCodes 64</comment>
        <translation>El método llamado no está implementado.</translation>
    </message>
    <message>
        <source>An unspecified error occurred.</source>
        <comment>ErrorCodes 66</comment>
        <translation>Se produjo un error no especificado.</translation>
    </message>
    <message>
        <source>The SQL Server version is not supported by Tamsel.</source>
        <comment>ErrorCodes 183</comment>
        <translation>Tamsel no admite la versión de SQL Server.</translation>
    </message>
    <message>
        <source>Supported versions:</source>
        <comment>ErrorCodes 196</comment>
        <translation>Versiones admitidas:</translation>
    </message>
    <message>
        <source>The operating system version is not supported
The following is the minimum requirement:</source>
        <comment>ErrorCodes 274</comment>
        <translation>La versión del sistema operativo no es compatible
Los requisitos mínimos son los siguientes:</translation>
    </message>
</context>
<context>
    <name>ItemMgr</name>
    <message>
        <source>Item</source>
        <comment>TS 15</comment>
        <translation>Elemento</translation>
    </message>
</context>
<context>
    <name>Search</name>
    <message>
        <source>And</source>
        <comment>TS 38</comment>
        <translation>Y</translation>
    </message>
    <message>
        <source>Or</source>
        <comment>TS 39</comment>
        <translation>O</translation>
    </message>
    <message>
        <source>&lt;Any Variable&gt;</source>
        <comment>TS 44</comment>
        <translation>&lt;Cualquier variable&gt;</translation>
    </message>
    <message>
        <source>Remove</source>
        <comment>TS 55</comment>
        <translation>Quitar</translation>
    </message>
    <message>
        <source>&lt;Click here to add a condition&gt;</source>
        <comment>TS 70</comment>
        <translation>&lt;Haga clic aquí para añadir una condición&gt;</translation>
    </message>
    <message>
        <source>String Equal To</source>
        <comment>OpName 100</comment>
        <translation>Texto igual a</translation>
    </message>
    <message>
        <source>String Not Equal To</source>
        <comment>OpName 101</comment>
        <translation>Texto distinto de</translation>
    </message>
    <message>
        <source>String Less Than</source>
        <comment>OpName 102</comment>
        <translation>Texto menor que</translation>
    </message>
    <message>
        <source>String Bigger Than</source>
        <comment>OpName 103</comment>
        <translation>Texto mayor que</translation>
    </message>
    <message>
        <source>String Less Than or Equal</source>
        <comment>OpName 104</comment>
        <translation>Texto menor o igual que</translation>
    </message>
    <message>
        <source>String Bigger Than or Equal</source>
        <comment>OpName 105</comment>
        <translation>Texto mayor o igual que</translation>
    </message>
    <message>
        <source>String Contains</source>
        <comment>OpName 106</comment>
        <translation>Texto contiene</translation>
    </message>
    <message>
        <source>String Does Not Contain</source>
        <comment>OpName 107</comment>
        <translation>Texto no contiene</translation>
    </message>
    <message>
        <source>Text Compare</source>
        <comment>OpName 108</comment>
        <translation>Comparación de texto</translation>
    </message>
    <message>
        <source>Number Equal To</source>
        <comment>OpName 120</comment>
        <translation>Número igual a</translation>
    </message>
    <message>
        <source>Number Not Equal To</source>
        <comment>OpName 121</comment>
        <translation>Número distinto de</translation>
    </message>
    <message>
        <source>Number Less Than</source>
        <comment>OpName 122</comment>
        <translation>Número menor que</translation>
    </message>
    <message>
        <source>Number Bigger Than</source>
        <comment>OpName 123</comment>
        <translation>Número mayor que</translation>
    </message>
    <message>
        <source>Number Less Than or Equal</source>
        <comment>OpName 124</comment>
        <translation>Número menor o igual que</translation>
    </message>
    <message>
        <source>Number Bigger Than or Equal</source>
        <comment>OpName 125</comment>
        <translation>Número mayor o igual que</translation>
    </message>
    <message>
        <source>Date Equal To</source>
        <comment>OpName 130</comment>
        <translation>Fecha igual a</translation>
    </message>
    <message>
        <source>Date Not Equal To</source>
        <comment>OpName 131</comment>
        <translation>Fecha distinta de</translation>
    </message>
    <message>
        <source>Date Less Than</source>
        <comment>OpName 132</comment>
        <translation>Fecha anterior a</translation>
    </message>
    <message>
        <source>Date Bigger Than</source>
        <comment>OpName 133</comment>
        <translation>Fecha posterior a</translation>
    </message>
    <message>
        <source>Date Less Than or Equal</source>
        <comment>OpName 134</comment>
        <translation>Fecha anterior o igual a</translation>
    </message>
    <message>
        <source>Date Bigger Than or Equal</source>
        <comment>OpName 135</comment>
        <translation>Fecha posterior o igual a</translation>
    </message>
    <message>
        <source>Binary Equal To</source>
        <comment>OpName 139</comment>
        <translation>Sí/No igual a</translation>
    </message>
</context>
<context>
    <name>StoredProcs</name>
    <message>
        <source>The condition was saved by somebody else after it was loaded; your changes were not saved. Load the condition again and repeat your changes.</source>
        <comment>StoredProcs 1</comment>
        <translation>Otra persona guardó la condición después de cargarla usted; los cambios que usted hizo no se guardaron. Vuelva a cargar la condición y repita los cambios.</translation>
    </message>
    <message>
        <source>A text holds a character that the database cannot hold; your changes were not saved. Remove the character and save again.</source>
        <comment>StoredProcs 2</comment>
        <translation>Un texto contiene un carácter que la base de datos no puede almacenar; los cambios no se guardaron. Quite el carácter y vuelva a guardar.</translation>
    </message>
    <message>
        <source>A text is larger than 16 MiB, which the database cannot hold; your changes were not saved. Shorten the text and save again.</source>
        <comment>StoredProcs 3</comment>
        <translation>Un texto ocupa más de 16 MiB, que es más de lo que la base de datos puede almacenar; los cambios no se guardaron. Acorte el texto y vuelva a guardar.</translation>
    </message>
</context>
<context>
    <name>Workflow</name>
    <message>
        <source>FilePath</source>
        <comment>TS 20</comment>
        <translation>Ruta de archivo</translation>
    </message>
    <message>
        <source>Revision</source>
        <comment>TS 21</comment>
        <translation>Revisión</translation>
    </message>
    <message>
        <source>User</source>
        <comment>TS 40</comment>
        <translation>Usuario</translation>
    </message>
    <message>
        <source>Yes</source>
        <comment>TS 58</comment>
        <translation>Sí</translation>
    </message>
    <message>
        <source>No</source>
        <comment>TS 59</comment>
        <translation>No</translation>
    </message>
    <message>
        <source>Category</source>
        <comment>TS 87</comment>
        <translation>Categoría</translation>
    </message>
    <message>
        <source>Group</source>
        <comment>TS 180</comment>
        <translation>Grupo</translation>
    </message>
    <message>
        <source>Object Type</source>
        <comment>TS 732</comment>
        <translation>Tipo de objeto</translation>
    </message>
    <message>
        <source>File</source>
        <comment>TS 733</comment>
        <translation>Archivo</translation>
    </message>
    <message>
        <source>BOM</source>
        <comment>TS 734</comment>
        <translation>Lista de materiales</translation>
    </message>
    <message>
        <source>Child Reference State</source>
        <comment>TS 756</comment>
        <translation>Estado de la referencia subordinada</translation>
    </message>
    <message>
        <source>Child Reference historic State</source>
        <comment>TS 757</comment>
        <translation>Estado histórico de la referencia subordinada</translation>
    </message>
</context>
</TS>
