<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="es" sourcelanguage="en">
<context>
    <name>ConfigEditor</name>
    <message>
        <source>and %1 more</source>
        <translation>y %1 más</translation>
    </message>
    <message>
        <source>%1 cannot be edited.</source>
        <translation>%1 no se puede modificar.</translation>
    </message>
    <message>
        <source>It is not a file.</source>
        <translation>No es un archivo.</translation>
    </message>
    <message>
        <source>It has more than 64 MiB.</source>
        <translation>Supera los 64 MiB.</translation>
    </message>
    <message>
        <source>%1 cannot be read.</source>
        <translation>%1 no se puede leer.</translation>
    </message>
    <message>
        <source>Its groups stand too deep within each other.</source>
        <translation>Sus grupos están anidados a demasiada profundidad.</translation>
    </message>
    <message>
        <source>Configuration</source>
        <translation>Configuración</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>Abrir</translation>
    </message>
    <message>
        <source>Save As</source>
        <translation>Guardar como</translation>
    </message>
    <message>
        <source>Open a Print Request</source>
        <translation>Abrir una petición de impresión</translation>
    </message>
    <message>
        <source>%1 cannot be shown.</source>
        <translation>%1 no se puede mostrar.</translation>
    </message>
    <message>
        <source>%1 could not be written.</source>
        <translation>%1 no se ha podido escribir.</translation>
    </message>
    <message>
        <source>Saved %1</source>
        <translation>%1 guardado</translation>
    </message>
    <message>
        <source>%1 has changed since it was opened.</source>
        <translation>%1 ha cambiado desde que se abrió.</translation>
    </message>
    <message>
        <source>Saving replaces it with what this window shows.</source>
        <translation>Al guardar se sustituye por lo que muestra esta ventana.</translation>
    </message>
    <message>
        <source>The file that is written will lack something:</source>
        <translation>Al archivo escrito le faltará algo:</translation>
    </message>
    <message>
        <source>%1 has changes that are not saved.</source>
        <translation>%1 tiene cambios sin guardar.</translation>
    </message>
    <message>
        <source>saving loses %1</source>
        <translation>al guardar se pierde %1</translation>
    </message>
    <message>
        <source>In the file, line %1: %2</source>
        <translation>En el archivo, línea %1: %2</translation>
    </message>
    <message>
        <source>Nothing wrong</source>
        <translation>Ningún problema</translation>
    </message>
    <message>
        <source>Findings: %1</source>
        <translation>Problemas: %1</translation>
    </message>
    <message>
        <source>This file cannot be written: %1. “Save As” writes another.</source>
        <translation>Este archivo no se puede escribir: %1. «Guardar como» escribe otro.</translation>
    </message>
    <message>
        <source>There are no settings yet. “zentaro config init” writes a complete configuration to start from; or add a group “zentaro” first.</source>
        <translation>Todavía no hay ajustes. «zentaro config init» escribe una configuración completa para empezar; o añada primero un grupo «zentaro».</translation>
    </message>
    <message>
        <source>Search keys (Ctrl+F)</source>
        <translation>Buscar claves (Ctrl+F)</translation>
    </message>
    <message>
        <source>&amp;File</source>
        <translation>&amp;Archivo</translation>
    </message>
    <message>
        <source>&amp;Open…</source>
        <translation>&amp;Abrir…</translation>
    </message>
    <message>
        <source>&amp;Save</source>
        <translation>&amp;Guardar</translation>
    </message>
    <message>
        <source>Save &amp;As…</source>
        <translation>Guardar &amp;como…</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>&amp;Salir</translation>
    </message>
    <message>
        <source>Tools</source>
        <translation>Herramientas</translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <translation>&amp;Editar</translation>
    </message>
    <message>
        <source>&amp;Undo</source>
        <translation>&amp;Deshacer</translation>
    </message>
    <message>
        <source>&amp;Redo</source>
        <translation>&amp;Rehacer</translation>
    </message>
    <message>
        <source>Add &amp;Setting</source>
        <translation>Añadir a&amp;juste</translation>
    </message>
    <message>
        <source>Add &amp;Group</source>
        <translation>Añadir &amp;grupo</translation>
    </message>
    <message>
        <source>Change &amp;Value</source>
        <translation>Cambiar &amp;valor</translation>
    </message>
    <message>
        <source>Switch &amp;On or Off</source>
        <translation>Ac&amp;tivar o desactivar</translation>
    </message>
    <message>
        <source>Set &amp;Everywhere</source>
        <translation>Aplicar en t&amp;odos</translation>
    </message>
    <message>
        <source>Re&amp;move</source>
        <translation>&amp;Quitar</translation>
    </message>
    <message>
        <source>&amp;Find</source>
        <translation>&amp;Buscar</translation>
    </message>
    <message>
        <source>&amp;Next Finding</source>
        <translation>Problema &amp;siguiente</translation>
    </message>
    <message>
        <source>&amp;Paper</source>
        <translation>&amp;Papel</translation>
    </message>
    <message>
        <source>Open a &amp;Print Request…</source>
        <translation>Abrir una &amp;petición de impresión…</translation>
    </message>
    <message>
        <source>Zoom &amp;In</source>
        <translation>&amp;Acercar</translation>
    </message>
    <message>
        <source>Zoom &amp;Out</source>
        <translation>Ale&amp;jar</translation>
    </message>
    <message>
        <source>Ren&amp;ame</source>
        <translation>Re&amp;nombrar</translation>
    </message>
</context>
<context>
    <name>Document</name>
    <message>
        <source>The ticket that carries an order to where it is prepared: quantities and names</source>
        <translation>La comanda que lleva el pedido a donde se prepara: cantidades y nombres</translation>
    </message>
    <message>
        <source>The pre-bill: items with prices</source>
        <translation>La cuenta previa: artículos con precios</translation>
    </message>
    <message>
        <source>The receipt, one line per item</source>
        <translation>El recibo, una línea por artículo</translation>
    </message>
    <message>
        <source>The invoice, one line per item</source>
        <translation>La factura, una línea por artículo</translation>
    </message>
    <message>
        <source>The delivery note: its items are printed as on a ticket</source>
        <translation>El albarán: los artículos como en una comanda</translation>
    </message>
    <message>
        <source>The fiscal receipt: a command line per item for the fiscal printer</source>
        <translation>El tique fiscal: una orden por artículo para la impresora fiscal</translation>
    </message>
    <message>
        <source>An order in summary: it prints nothing</source>
        <translation>Un pedido en resumen: no imprime nada</translation>
    </message>
    <message>
        <source>The receipt, one line per type of item</source>
        <translation>El recibo, una línea por tipo de artículo</translation>
    </message>
    <message>
        <source>The invoice, one line per type of item</source>
        <translation>La factura, una línea por tipo de artículo</translation>
    </message>
    <message>
        <source>The fiscal receipt, one command line per type of item</source>
        <translation>El tique fiscal, una orden por tipo de artículo</translation>
    </message>
    <message>
        <source>The summary of a period</source>
        <translation>El resumen de un período</translation>
    </message>
    <message>
        <source>The items sold in a period</source>
        <translation>Lo vendido en un período</translation>
    </message>
    <message>
        <source>A customer&apos;s statement of account</source>
        <translation>El estado de cuenta de un cliente</translation>
    </message>
</context>
<context>
    <name>Finding</name>
    <message>
        <source>the file begins with a byte order mark, which becomes part of its first name</source>
        <translation>el archivo empieza con una marca de orden de bytes, que pasa a ser parte de su primer nombre</translation>
    </message>
    <message>
        <source>no `{` follows the `:` of the group %1: the rest of the file is skipped</source>
        <translation>ninguna `{` sigue a los `:` del grupo %1: se salta el resto del archivo</translation>
    </message>
    <message>
        <source>no `{` of its own follows the `:` of the group %1: it takes that of line %2, and all between is lost: %3</source>
        <translation>ninguna `{` propia sigue a los `:` del grupo %1: toma la de la línea %2, y se pierde todo lo que hay entre medias: %3</translation>
    </message>
    <message>
        <source>lost between `:` and `{`: %1</source>
        <translation>perdido entre `:` y `{`: %1</translation>
    </message>
    <message>
        <source>a NUL byte ends the value of %1</source>
        <translation>un byte NUL termina el valor de %1</translation>
    </message>
    <message>
        <source>no setting, and lost: %1</source>
        <translation>no es un ajuste, y se pierde: %1</translation>
    </message>
    <message>
        <source>this `}` closes no group</source>
        <translation>esta `}` no cierra ningún grupo</translation>
    </message>
    <message>
        <source>this `}` closes no group: reading ends here, and the rest of the file is lost: %1</source>
        <translation>esta `}` no cierra ningún grupo: la lectura termina aquí, y se pierde el resto del archivo: %1</translation>
    </message>
    <message>
        <source>no `;` follows the `}` of the group %1: all up to the next one is lost: %2</source>
        <translation>ningún `;` sigue a la `}` del grupo %1: se pierde todo hasta el siguiente: %2</translation>
    </message>
    <message>
        <source>no `;` follows the `}` of the group %1</source>
        <translation>ningún `;` sigue a la `}` del grupo %1</translation>
    </message>
    <message>
        <source>the end of the file is lost: %1</source>
        <translation>se pierde el final del archivo: %1</translation>
    </message>
    <message>
        <source>the group %1 is not closed</source>
        <translation>el grupo %1 no está cerrado</translation>
    </message>
    <message>
        <source>group</source>
        <translation>grupo</translation>
    </message>
    <message>
        <source>key</source>
        <translation>clave</translation>
    </message>
    <message>
        <source>a NUL byte ends the name of the %1 %2</source>
        <translation>un byte NUL termina el nombre %2 (%1)</translation>
    </message>
    <message>
        <source>a `;` too many became part of the %1 %2</source>
        <translation>un `;` de más pasó a ser parte del nombre %2 (%1)</translation>
    </message>
    <message>
        <source>%1 became part of the %2 %3: %4</source>
        <translation>%1 pasó a ser parte del nombre %3 (%2): %4</translation>
    </message>
    <message>
        <source>there are no comments</source>
        <translation>no existen comentarios</translation>
    </message>
    <message>
        <source>it is neither `key = value;` nor `group : {`</source>
        <translation>no es ni `clave = valor;` ni `grupo : {`</translation>
    </message>
    <message>
        <source>%1 is read as a %2: there are no comments</source>
        <translation>%1 se lee como un nombre (%2): no existen comentarios</translation>
    </message>
    <message>
        <source>a `{` became part of the %1 %2: the `:` before it is missing</source>
        <translation>una `{` pasó a ser parte del nombre %2 (%1): faltan los `:` que la preceden</translation>
    </message>
    <message>
        <source>no `;` ends the value of %1: it runs to the end of the file</source>
        <translation>ningún `;` termina el valor de %1: llega hasta el final del archivo</translation>
    </message>
    <message>
        <source>the quoted value of %1 goes on to line %2</source>
        <translation>el valor de %1 entre comillas sigue hasta la línea %2</translation>
    </message>
    <message>
        <source>no `;` ends the value of %1 on its line: it runs on to line %2 and takes in %3</source>
        <translation>ningún `;` termina el valor de %1 en su línea: sigue hasta la línea %2 e incluye %3</translation>
    </message>
    <message>
        <source>double quotes inside a value are lost: %1 is %2</source>
        <translation>las comillas dentro de un valor se pierden: %1 es %2</translation>
    </message>
    <message>
        <source>nothing is escaped, and it breaks the file</source>
        <translation>nada se escapa, y rompe el archivo</translation>
    </message>
    <message>
        <source>it breaks what is written around it</source>
        <translation>rompe lo que se escribe alrededor</translation>
    </message>
    <message>
        <source>it is read back as %1</source>
        <translation>se vuelve a leer como %1</translation>
    </message>
    <message>
        <source>the name %1: %2</source>
        <translation>el nombre %1: %2</translation>
    </message>
    <message>
        <source>everything: the setting %1 outside any group makes a file that is no XML</source>
        <translation>todo: el ajuste %1 fuera de cualquier grupo da un archivo que no es XML</translation>
    </message>
    <message>
        <source>the value of %1: %2</source>
        <translation>el valor de %1: %2</translation>
    </message>
    <message>
        <source>the value %1 of %2: the key stands there twice</source>
        <translation>el valor %1 de %2: la clave está ahí dos veces</translation>
    </message>
    <message>
        <source>the group %1, which is empty</source>
        <translation>el grupo %1, que está vacío</translation>
    </message>
    <message>
        <source>the group %1 with all it holds: only the first top-level group is written</source>
        <translation>el grupo %1 con todo lo que contiene: solo se escribe el primer grupo del nivel superior</translation>
    </message>
    <message>
        <source>text that is no setting: %1</source>
        <translation>texto que no es un ajuste: %1</translation>
    </message>
    <message>
        <source>groups nest more than %1 deep</source>
        <translation>los grupos se anidan a más de %1 niveles</translation>
    </message>
    <message>
        <source>nothing of the file is read: %1</source>
        <translation>no se lee nada del archivo: %1</translation>
    </message>
    <message>
        <source>not well-formed, nothing of the file is read: %1</source>
        <translation>mal formado, no se lee nada del archivo: %1</translation>
    </message>
    <message>
        <source>the file has no group: every setting is empty</source>
        <translation>el archivo no tiene ningún grupo: todos los ajustes están vacíos</translation>
    </message>
    <message>
        <source>the group %1 is empty and counts for nothing</source>
        <translation>el grupo %1 está vacío y no cuenta</translation>
    </message>
    <message>
        <source>the group %1 stands here again: of a key in both, the first value that is not empty counts</source>
        <translation>el grupo %1 está aquí otra vez: de una clave en ambos cuenta el primer valor que no está vacío</translation>
    </message>
    <message>
        <source>nothing reads the group %1</source>
        <translation>nada lee el grupo %1</translation>
    </message>
    <message>
        <source>nothing in the group %1 is ever found: only the first top-level group is looked at</source>
        <translation>nada del grupo %1 se encuentra nunca: solo se mira el primer grupo del nivel superior</translation>
    </message>
    <message>
        <source>no key is ever found: the first group is %1, not `%2`</source>
        <translation>nunca se encuentra ninguna clave: el primer grupo es %1, no `%2`</translation>
    </message>
    <message>
        <source>no lookup finds the key %1 outside any group</source>
        <translation>ninguna búsqueda encuentra la clave %1 fuera de todo grupo</translation>
    </message>
    <message>
        <source>the key %1 is overridden: it stands in this group again</source>
        <translation>la clave %1 queda sustituida: está otra vez en este grupo</translation>
    </message>
    <message>
        <source>no lookup finds the key %1: a `.` stands between the names of groups</source>
        <translation>ninguna búsqueda encuentra la clave %1: un `.` va entre los nombres de los grupos</translation>
    </message>
    <message>
        <source>nothing reads the key %1</source>
        <translation>nada lee la clave %1</translation>
    </message>
    <message>
        <source>no lookup finds this %1: an earlier group of the name has it</source>
        <translation>ninguna búsqueda encuentra este %1: lo tiene un grupo anterior del mismo nombre</translation>
    </message>
    <message>
        <source> (it belongs to `%1`)</source>
        <translation> (pertenece a `%1`)</translation>
    </message>
    <message>
        <source>%1 wants a whole number, not %2: 0 is read</source>
        <translation>%1 pide un número entero, no %2: se lee 0</translation>
    </message>
    <message>
        <source>%1 is %2, which is not between 0 and %3</source>
        <translation>%1 es %2, que no está entre 0 y %3</translation>
    </message>
    <message>
        <source>%1 is %2, neither &quot;true&quot; nor &quot;false&quot;: it is off</source>
        <translation>%1 es %2, ni &quot;true&quot; ni &quot;false&quot;: está desactivado</translation>
    </message>
    <message>
        <source>%1 is %2: every line is logged</source>
        <translation>%1 es %2: se registra cada línea</translation>
    </message>
    <message>
        <source>%1 is %2: nothing is logged</source>
        <translation>%1 es %2: no se registra nada</translation>
    </message>
    <message>
        <source>%1: quantity, price and total take %2 characters with what stands between them, the paper has %3: nothing is left for the description</source>
        <translation>%1: cantidad, precio y total ocupan %2 caracteres con lo que hay entre ellos, el papel tiene %3: no queda nada para la descripción</translation>
    </message>
    <message>
        <source>there is no language file %1</source>
        <translation>no hay archivo de idioma %1</translation>
    </message>
    <message>
        <source>there is no language file %1: labels stay in English</source>
        <translation>no hay archivo de idioma %1: las etiquetas quedan en inglés</translation>
    </message>
    <message>
        <source>%1 more like this</source>
        <translation>%1 más de este tipo</translation>
    </message>
    <message>
        <source> (did you mean `%1`?)</source>
        <translation> (¿quería decir `%1`?)</translation>
    </message>
    <message>
        <source>without its line end</source>
        <translation>sin fin de línea</translation>
    </message>
    <message>
        <source>ends with a carriage return</source>
        <translation>termina con un retorno de carro</translation>
    </message>
    <message>
        <source>without its carriage return</source>
        <translation>sin retorno de carro</translation>
    </message>
    <message>
        <source>fiscal</source>
        <translation>fiscal</translation>
    </message>
    <message>
        <source>closes what was not opened</source>
        <translation>cierra lo que no estaba abierto</translation>
    </message>
    <message>
        <source>the section is not closed</source>
        <translation>la sección no está cerrada</translation>
    </message>
    <message>
        <source>outside of a section</source>
        <translation>fuera de una sección</translation>
    </message>
    <message>
        <source>a double quote ends the name early</source>
        <translation>unas comillas terminan antes el nombre</translation>
    </message>
    <message>
        <source>quantity and price take digits and at most one point</source>
        <translation>cantidad y precio llevan cifras y como mucho un punto</translation>
    </message>
    <message>
        <source>the department is no number</source>
        <translation>el departamento no es un número</translation>
    </message>
    <message>
        <source>empty line</source>
        <translation>línea vacía</translation>
    </message>
    <message>
        <source>ends at its first &quot;@</source>
        <translation>termina en el primer &quot;@</translation>
    </message>
    <message>
        <source>without its opening quote</source>
        <translation>sin las comillas iniciales</translation>
    </message>
    <message>
        <source>without its closing &quot;@</source>
        <translation>sin &quot;@ final</translation>
    </message>
    <message>
        <source>not framed: a command to the printer</source>
        <translation>sin marco: una orden a la impresora</translation>
    </message>
    <message>
        <source>there is no memory for the print file</source>
        <translation>no hay memoria para el archivo de impresión</translation>
    </message>
    <message>
        <source>more than %1 bytes would be printed</source>
        <translation>se imprimirían más de %1 bytes</translation>
    </message>
    <message>
        <source>line %1: the print run stops reading here</source>
        <translation>línea %1: la impresión deja de leer aquí</translation>
    </message>
</context>
<context>
    <name>PaperPane</name>
    <message>
        <source>%1 mm</source>
        <translation>%1 mm</translation>
    </message>
    <message>
        <source>Document</source>
        <translation>Documento</translation>
    </message>
    <message>
        <source>Paper</source>
        <translation>Papel</translation>
    </message>
    <message>
        <source>It is not a print request.</source>
        <translation>No es una petición de impresión.</translation>
    </message>
    <message>
        <source>No setting in the file shapes this line.</source>
        <translation>Ningún ajuste del archivo da forma a esta línea.</translation>
    </message>
    <message>
        <source>This line is shaped by: %1</source>
        <translation>A esta línea le dan forma: %1</translation>
    </message>
    <message>
        <source>It has more than 1 MiB.</source>
        <translation>Supera 1 MiB.</translation>
    </message>
</context>
<context>
    <name>Setting</name>
    <message>
        <source>The folder of the translations of the printed labels.</source>
        <translation>La carpeta de las traducciones de los rótulos impresos.</translation>
    </message>
    <message>
        <source>Which translation: / for that of the system&apos;s language, or a name that is put right behind the folder&apos;s.</source>
        <translation>Qué traducción: / para la del idioma del sistema, o un nombre que se pone justo detrás del de la carpeta.</translation>
    </message>
    <message>
        <source>Lines below this level are not logged: DEBUG, INFO, WARNING, ERROR or FATAL, in any letter case. Any other text means the default.</source>
        <translation>Las líneas por debajo de este nivel no se registran: DEBUG, INFO, WARNING, ERROR o FATAL, en mayúsculas o minúsculas. Cualquier otro texto vale el predeterminado.</translation>
    </message>
    <message>
        <source>The folder of the log file; it has to exist.</source>
        <translation>La carpeta del archivo de registro; debe existir.</translation>
    </message>
    <message>
        <source>The name of the log file in its folder.</source>
        <translation>El nombre del archivo de registro en su carpeta.</translation>
    </message>
    <message>
        <source>APPEND goes on in the log file, OVERWRITE empties it first, in any letter case. With any other text nothing is logged.</source>
        <translation>APPEND continúa el archivo de registro, OVERWRITE lo vacía antes, en mayúsculas o minúsculas. Con cualquier otro texto no se registra nada.</translation>
    </message>
    <message>
        <source>The name of the database.</source>
        <translation>El nombre de la base de datos.</translation>
    </message>
    <message>
        <source>The database&apos;s user.</source>
        <translation>El usuario de la base de datos.</translation>
    </message>
    <message>
        <source>The user&apos;s password, which whoever may read this file can read.</source>
        <translation>La contraseña del usuario, que puede leer quien pueda leer este archivo.</translation>
    </message>
    <message>
        <source>The database&apos;s server.</source>
        <translation>El servidor de la base de datos.</translation>
    </message>
    <message>
        <source>The folder of the suite&apos;s programs.</source>
        <translation>La carpeta de los programas de la suite.</translation>
    </message>
    <message>
        <source>Characters of the quantity column.</source>
        <translation>Caracteres de la columna de la cantidad.</translation>
    </message>
    <message>
        <source>Characters of the unit price column; in a statement of account, of the amount.</source>
        <translation>Caracteres de la columna del precio unitario; en un estado de cuenta, del importe.</translation>
    </message>
    <message>
        <source>Characters of the column of line totals.</source>
        <translation>Caracteres de la columna de los totales de línea.</translation>
    </message>
    <message>
        <source>Characters in a line. The description gets what the other columns leave, and is cut to it. 0 means the default.</source>
        <translation>Caracteres en una línea. La descripción toma lo que dejan las otras columnas, y se corta a ello. 0 vale el predeterminado.</translation>
    </message>
    <message>
        <source>Nothing on this printer: kept for printers with pages.</source>
        <translation>Nada en esta impresora: se guarda para impresoras con páginas.</translation>
    </message>
    <message>
        <source>Nothing on this printer: kept for printers with styles.</source>
        <translation>Nada en esta impresora: se guarda para impresoras con estilos.</translation>
    </message>
    <message>
        <source>Empty lines of the top margin, which printGeometry switches on.</source>
        <translation>Líneas vacías del margen superior, que printGeometry activa.</translation>
    </message>
    <message>
        <source>Characters that an item&apos;s name keeps in a fiscal receipt by item. 0 means the default.</source>
        <translation>Caracteres que conserva el nombre de un artículo en un tique fiscal por artículo. 0 vale el predeterminado.</translation>
    </message>
    <message>
        <source>The copies that the suite&apos;s programs print of the document.</source>
        <translation>Las copias que los programas de la suite imprimen del documento.</translation>
    </message>
    <message>
        <source>Prints the top margin, at the geometry element.</source>
        <translation>Imprime el margen superior, en el elemento geometry.</translation>
    </message>
    <message>
        <source>Prints the lines of the headers element; the printer&apos;s name below them is printed always.</source>
        <translation>Imprime las líneas del elemento headers; el nombre de la impresora debajo se imprime siempre.</translation>
    </message>
    <message>
        <source>Nothing on this printer, which has no logo.</source>
        <translation>Nada en esta impresora, que no tiene logotipo.</translation>
    </message>
    <message>
        <source>Prints the company element.</source>
        <translation>Imprime el elemento company.</translation>
    </message>
    <message>
        <source>Prints the customer&apos;s delivery address.</source>
        <translation>Imprime la dirección de entrega del cliente.</translation>
    </message>
    <message>
        <source>Prints the customer&apos;s billing address.</source>
        <translation>Imprime la dirección de facturación del cliente.</translation>
    </message>
    <message>
        <source>Prints the customer&apos;s telephone.</source>
        <translation>Imprime el teléfono del cliente.</translation>
    </message>
    <message>
        <source>Prints the order&apos;s date.</source>
        <translation>Imprime la fecha del pedido.</translation>
    </message>
    <message>
        <source>Prints the order&apos;s time.</source>
        <translation>Imprime la hora del pedido.</translation>
    </message>
    <message>
        <source>Prints the order&apos;s table.</source>
        <translation>Imprime la mesa del pedido.</translation>
    </message>
    <message>
        <source>Prints the customer element. Without it no other setting of the customer counts.</source>
        <translation>Imprime el elemento customer. Sin él no cuenta ningún otro ajuste del cliente.</translation>
    </message>
    <message>
        <source>Prints the customer&apos;s license number.</source>
        <translation>Imprime el número de licencia del cliente.</translation>
    </message>
    <message>
        <source>Prints the customer&apos;s fiscal code.</source>
        <translation>Imprime el código fiscal del cliente.</translation>
    </message>
    <message>
        <source>Prints the order&apos;s credit.</source>
        <translation>Imprime el crédito del pedido.</translation>
    </message>
    <message>
        <source>Prints the order&apos;s waiter.</source>
        <translation>Imprime el camarero del pedido.</translation>
    </message>
    <message>
        <source>Prints the order&apos;s note.</source>
        <translation>Imprime la nota del pedido.</translation>
    </message>
    <message>
        <source>Nothing on this printer, which has no drawer.</source>
        <translation>Nada en esta impresora, que no tiene cajón.</translation>
    </message>
</context>
<context>
    <name>SettingPane</name>
    <message>
        <source>Set Everywhere</source>
        <translation>Aplicar en todos</translation>
    </message>
    <message>
        <source>Gives every document that has this setting the same value.</source>
        <translation>Da el mismo valor a cada documento que tiene este ajuste.</translation>
    </message>
    <message>
        <source>Nothing reads this key.</source>
        <translation>Nada lee esta clave.</translation>
    </message>
    <message>
        <source>0 to %1.</source>
        <translation>De 0 a %1.</translation>
    </message>
    <message>
        <source>Unless set: %1.</source>
        <translation>Si no se indica: %1.</translation>
    </message>
    <message>
        <source>&amp;Value: on</source>
        <translation>&amp;Valor: activado</translation>
    </message>
    <message>
        <source>Choose a folder (F4)</source>
        <translation>Elegir una carpeta (F4)</translation>
    </message>
    <message>
        <source>Choose a folder</source>
        <translation>Elegir una carpeta</translation>
    </message>
    <message>
        <source>as the system (/)</source>
        <translation>como el sistema (/)</translation>
    </message>
</context>
</TS>
