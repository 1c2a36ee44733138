<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="es" sourcelanguage="en_GB">
<context>
    <name>Accessibility</name>
    <message>
        <source>Clear</source>
        <translation>Borrar</translation>
    </message>
</context>
<context>
    <name>Alerts</name>
    <message>
        <source>OK</source>
        <translation>Aceptar</translation>
    </message>
    <message>
        <source>Yes</source>
        <translation>Sí</translation>
    </message>
    <message>
        <source>No</source>
        <translation>No</translation>
    </message>
</context>
<context>
    <name>AtomicFile</name>
    <message>
        <source>The file “%1” was written, but the disk did not confirm it: %2.</source>
        <translation>El archivo «%1» se ha escrito, pero el disco no lo ha confirmado: %2.</translation>
    </message>
    <message>
        <source>The file “%1” cannot be reached: %2.</source>
        <translation>No se puede acceder al archivo «%1»: %2.</translation>
    </message>
    <message>
        <source>The file “%1” cannot be replaced: %2.</source>
        <translation>No se puede reemplazar el archivo «%1»: %2.</translation>
    </message>
    <message>
        <source>The folder of “%1” cannot be opened: %2.</source>
        <translation>No se puede abrir la carpeta de «%1»: %2.</translation>
    </message>
    <message>
        <source>No new file can be made in the folder of “%1”: %2.</source>
        <translation>No se puede crear ningún archivo en la carpeta de «%1»: %2.</translation>
    </message>
    <message>
        <source>The file “%1” could not be written: %2.</source>
        <translation>No se ha podido escribir el archivo «%1»: %2.</translation>
    </message>
    <message>
        <source>The permissions of “%1” could not be kept: %2.</source>
        <translation>No se han podido conservar los permisos de «%1»: %2.</translation>
    </message>
    <message>
        <source>The file “%1” could not be brought to the disk: %2.</source>
        <translation>No se ha podido llevar al disco el archivo «%1»: %2.</translation>
    </message>
    <message>
        <source>The file “%1” could not be checked: %2.</source>
        <translation>No se ha podido comprobar el archivo «%1»: %2.</translation>
    </message>
    <message>
        <source>The disk gave back other data for “%1” than was written: %2.</source>
        <translation>Los datos que devuelve el disco para «%1» no son los que se escribieron: %2.</translation>
    </message>
    <message>
        <source>The file “%1” could not be written to its end: %2.</source>
        <translation>No se ha podido escribir el archivo «%1» hasta el final: %2.</translation>
    </message>
    <message>
        <source>The file “%1” could not be put in its place: %2.</source>
        <translation>No se ha podido colocar el archivo «%1» en su sitio: %2.</translation>
    </message>
    <message>
        <source>The file “%1” is not replaced: %2.</source>
        <translation>El archivo «%1» no se ha reemplazado: %2.</translation>
    </message>
</context>
<context>
    <name>BookEntryWindow</name>
    <message>
        <source>Standard</source>
        <translation>Estándar</translation>
    </message>
    <message>
        <source>Picture 1, cover</source>
        <translation>Imagen 1, portada</translation>
    </message>
    <message>
        <source>Clear this picture</source>
        <translation>Quitar esta imagen</translation>
    </message>
    <message>
        <source>Clear picture 1</source>
        <translation>Quitar la imagen 1</translation>
    </message>
    <message>
        <source>Picture 2, back</source>
        <translation>Imagen 2, contraportada</translation>
    </message>
    <message>
        <source>Clear picture 2</source>
        <translation>Quitar la imagen 2</translation>
    </message>
    <message>
        <source>Picture 3</source>
        <translation>Imagen 3</translation>
    </message>
    <message>
        <source>Clear picture 3</source>
        <translation>Quitar la imagen 3</translation>
    </message>
    <message>
        <source>Picture 4</source>
        <translation>Imagen 4</translation>
    </message>
    <message>
        <source>Clear picture 4</source>
        <translation>Quitar la imagen 4</translation>
    </message>
    <message>
        <source>Picture 5</source>
        <translation>Imagen 5</translation>
    </message>
    <message>
        <source>Clear picture 5</source>
        <translation>Quitar la imagen 5</translation>
    </message>
    <message>
        <source>&amp;ISBN:</source>
        <translation>&amp;ISBN:</translation>
    </message>
    <message>
        <source>Loo&amp;k Up…</source>
        <translation>Bús&amp;queda…</translation>
    </message>
    <message>
        <source>Looking up the book</source>
        <translation>Buscando el libro</translation>
    </message>
    <message>
        <source>Esc stops</source>
        <translation>Esc para detener</translation>
    </message>
    <message>
        <source>&amp;Title:</source>
        <translation>&amp;Título:</translation>
    </message>
    <message>
        <source>&amp;Author:</source>
        <translation>&amp;Autor:</translation>
    </message>
    <message>
        <source>T&amp;ype:</source>
        <translation>&amp;Formato:</translation>
    </message>
    <message>
        <source>&amp;Rating:</source>
        <translation>&amp;Valoración:</translation>
    </message>
    <message>
        <source>&amp;Publisher:</source>
        <translation>E&amp;ditorial:</translation>
    </message>
    <message>
        <source>Pa&amp;ges:</source>
        <translation>&amp;Páginas:</translation>
    </message>
    <message>
        <source>Publishe&amp;d:</source>
        <translation>Pu&amp;blicación:</translation>
    </message>
    <message>
        <source>Published month</source>
        <translation>Mes de publicación</translation>
    </message>
    <message>
        <source>Published year</source>
        <translation>Año de publicación</translation>
    </message>
    <message>
        <source>Year</source>
        <translation>Año</translation>
    </message>
    <message>
        <source>Copyrig&amp;ht:</source>
        <translation>Copyrig&amp;ht:</translation>
    </message>
    <message>
        <source>Copyright month</source>
        <translation>Mes del copyright</translation>
    </message>
    <message>
        <source>Copyright year</source>
        <translation>Año del copyright</translation>
    </message>
    <message>
        <source>&amp;First read:</source>
        <translation>P&amp;rimera lectura:</translation>
    </message>
    <message>
        <source>First read month</source>
        <translation>Mes de la primera lectura</translation>
    </message>
    <message>
        <source>First read year</source>
        <translation>Año de la primera lectura</translation>
    </message>
    <message>
        <source>&amp;Last read:</source>
        <translation>Últi&amp;ma lectura:</translation>
    </message>
    <message>
        <source>Last read month</source>
        <translation>Mes de la última lectura</translation>
    </message>
    <message>
        <source>Last read year</source>
        <translation>Año de la última lectura</translation>
    </message>
    <message>
        <source>Purchased:</source>
        <translation>Compra:</translation>
    </message>
    <message>
        <source>Purchased month</source>
        <translation>Mes de compra</translation>
    </message>
    <message>
        <source>Purchased year</source>
        <translation>Año de compra</translation>
    </message>
    <message>
        <source>Valued:</source>
        <translation>Tasación:</translation>
    </message>
    <message>
        <source>Valued month</source>
        <translation>Mes de tasación</translation>
    </message>
    <message>
        <source>Valued year</source>
        <translation>Año de tasación</translation>
    </message>
    <message>
        <source>Price paid:</source>
        <translation>Precio pagado:</translation>
    </message>
    <message>
        <source>Est. &amp;value:</source>
        <translation>Valor apro&amp;x.:</translation>
    </message>
    <message>
        <source>Paid from:</source>
        <translation>Comprado en:</translation>
    </message>
    <message>
        <source>Location:</source>
        <translation>Ubicación:</translation>
    </message>
    <message>
        <source>Lent t&amp;o:</source>
        <translation>Pre&amp;stado a:</translation>
    </message>
    <message>
        <source>Lent:</source>
        <translation>Préstamo:</translation>
    </message>
    <message>
        <source>Lent month</source>
        <translation>Mes de préstamo</translation>
    </message>
    <message>
        <source>Lent year</source>
        <translation>Año de préstamo</translation>
    </message>
    <message>
        <source>Own</source>
        <translation>Propio</translation>
    </message>
    <message>
        <source>Signed</source>
        <translation>Firmado</translation>
    </message>
    <message>
        <source>First edition</source>
        <translation>Primera edición</translation>
    </message>
    <message>
        <source>Read</source>
        <translation>Leído</translation>
    </message>
    <message>
        <source>&amp;Notes:</source>
        <translation>N&amp;otas:</translation>
    </message>
    <message>
        <source>Custom</source>
        <translation>Personalizado</translation>
    </message>
    <message>
        <source>Double-click a name to change it, or press F2 in its field.</source>
        <translation>Para cambiar un nombre, haga doble clic en él o pulse F2 en su campo.</translation>
    </message>
    <message>
        <source>Gro&amp;ups…</source>
        <translation>Gr&amp;upos…</translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <translation>&amp;Cancelar</translation>
    </message>
    <message>
        <source>Add &amp;More</source>
        <translation>Guardar &amp;y añadir otro</translation>
    </message>
    <message>
        <source>Save this book and add another one (Ctrl+Shift+Return)</source>
        <translation>Guarda este libro y añade otro (Ctrl+Mayús+Intro)</translation>
    </message>
    <message>
        <source>&amp;Save</source>
        <translation>&amp;Guardar</translation>
    </message>
    <message>
        <source>Save this book and close its window (Ctrl+Return)</source>
        <translation>Guarda este libro y cierra su ventana (Ctrl+Intro)</translation>
    </message>
</context>
<context>
    <name>BookListWindow</name>
    <message>
        <source>Groups</source>
        <translation>Grupos</translation>
    </message>
    <message>
        <source>Picture of the selected book</source>
        <translation>Imagen del libro seleccionado</translation>
    </message>
    <message>
        <source>Books</source>
        <translation>Libros</translation>
    </message>
</context>
<context>
    <name>BookLookup</name>
    <message>
        <source>Look Up</source>
        <translation>Búsqueda por ISBN</translation>
    </message>
    <message>
        <source>&amp;ISBN:</source>
        <translation>&amp;ISBN:</translation>
    </message>
    <message>
        <source>Looking up the book</source>
        <translation>Buscando el libro</translation>
    </message>
    <message>
        <source>Esc stops</source>
        <translation>Esc para detener</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>Aceptar</translation>
    </message>
</context>
<context>
    <name>BookType</name>
    <message>
        <source>Hardcover</source>
        <translation>Tapa dura</translation>
    </message>
    <message>
        <source>Paperback</source>
        <translation>Tapa blanda</translation>
    </message>
    <message>
        <source>Audio Book</source>
        <translation>Audiolibro</translation>
    </message>
    <message>
        <source>eBook</source>
        <translation>Libro electrónico</translation>
    </message>
</context>
<context>
    <name>CollectionFileType</name>
    <message>
        <source>Tomely Collections</source>
        <translation>Colecciones de Tomely</translation>
    </message>
</context>
<context>
    <name>Columns</name>
    <message>
        <source>Title</source>
        <translation>Título</translation>
    </message>
    <message>
        <source>Author</source>
        <translation>Autor</translation>
    </message>
    <message>
        <source>Publisher</source>
        <translation>Editorial</translation>
    </message>
    <message>
        <source>Rating</source>
        <translation>Valoración</translation>
    </message>
    <message>
        <source>Last Read</source>
        <translation>Última lectura</translation>
    </message>
    <message>
        <source>Last Read Date</source>
        <translation>Fecha de la última lectura</translation>
    </message>
    <message>
        <source>Published</source>
        <translation>Publicación</translation>
    </message>
    <message>
        <source>Published Date</source>
        <translation>Fecha de publicación</translation>
    </message>
    <message>
        <source>Purchased</source>
        <translation>Compra</translation>
    </message>
    <message>
        <source>Purchased Date</source>
        <translation>Fecha de compra</translation>
    </message>
    <message>
        <source>First Read</source>
        <translation>Primera lectura</translation>
    </message>
    <message>
        <source>First Read Date</source>
        <translation>Fecha de la primera lectura</translation>
    </message>
    <message>
        <source>Copyright</source>
        <translation>Copyright</translation>
    </message>
    <message>
        <source>Copyright Date</source>
        <translation>Fecha del copyright</translation>
    </message>
    <message>
        <source>Own</source>
        <translation>Propio</translation>
    </message>
    <message>
        <source>Signed</source>
        <translation>Firmado</translation>
    </message>
    <message>
        <source>First Edition</source>
        <translation>Primera edición</translation>
    </message>
    <message>
        <source>Read</source>
        <translation>Leído</translation>
    </message>
    <message>
        <source>Read / Listened To</source>
        <translation>Leído / escuchado</translation>
    </message>
    <message>
        <source>Pages</source>
        <translation>Páginas</translation>
    </message>
    <message>
        <source>Price Paid</source>
        <translation>Precio pagado</translation>
    </message>
    <message>
        <source>Est Value</source>
        <translation>Valor aprox.</translation>
    </message>
    <message>
        <source>ISBN</source>
        <translation>ISBN</translation>
    </message>
    <message>
        <source>Location</source>
        <translation>Ubicación</translation>
    </message>
    <message>
        <source>Lent To</source>
        <translation>Prestado a</translation>
    </message>
    <message>
        <source>Notes</source>
        <translation>Notas</translation>
    </message>
    <message>
        <source>Est Value Date</source>
        <translation>Fecha de tasación</translation>
    </message>
    <message>
        <source>Lent Date</source>
        <translation>Fecha de préstamo</translation>
    </message>
    <message>
        <source>Price Paid From</source>
        <translation>Comprado en</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>Formato</translation>
    </message>
    <message>
        <source>Custom Field %1</source>
        <translation>Campo personalizado %1</translation>
    </message>
    <message>
        <source>Custom Date %1</source>
        <translation>Fecha personalizada %1</translation>
    </message>
    <message>
        <source>Custom Switch %1</source>
        <translation>Casilla personalizada %1</translation>
    </message>
    <message>
        <source>Custom: %1</source>
        <translation>Personalizado: %1</translation>
    </message>
    <message>
        <source>Images</source>
        <translation>Imágenes</translation>
    </message>
    <message>
        <source>Groups</source>
        <translation>Grupos</translation>
    </message>
    <message>
        <source>Author &amp; Title</source>
        <translation>Autor y título</translation>
    </message>
</context>
<context>
    <name>Commands</name>
    <message>
        <source>&amp;Add Book…</source>
        <translation>&amp;Añadir libro…</translation>
    </message>
    <message>
        <source>&amp;Edit Book…</source>
        <translation>&amp;Editar libro…</translation>
    </message>
    <message>
        <source>&amp;Delete Book…</source>
        <translation>E&amp;liminar libro…</translation>
    </message>
    <message>
        <source>&amp;Remove from Group…</source>
        <translation>&amp;Quitar del grupo…</translation>
    </message>
    <message>
        <source>&amp;Scale All Pictures…</source>
        <translation>E&amp;scalar todas las imágenes…</translation>
    </message>
    <message>
        <source>Remove All &amp;Pictures…</source>
        <translation>Quitar todas las &amp;imágenes…</translation>
    </message>
    <message>
        <source>&amp;New Group</source>
        <translation>&amp;Nuevo grupo</translation>
    </message>
    <message>
        <source>&amp;Rename Group</source>
        <translation>&amp;Renombrar grupo</translation>
    </message>
    <message>
        <source>&amp;Delete Group…</source>
        <translation>&amp;Eliminar grupo…</translation>
    </message>
    <message>
        <source>&amp;Manage Groups…</source>
        <translation>&amp;Gestionar grupos…</translation>
    </message>
    <message>
        <source>&amp;Columns…</source>
        <translation>&amp;Columnas…</translation>
    </message>
    <message>
        <source>Customise &amp;Toolbar…</source>
        <translation>Personalizar la &amp;barra de herramientas…</translation>
    </message>
    <message>
        <source>&amp;Find</source>
        <translation>&amp;Buscar</translation>
    </message>
    <message>
        <source>Clear &amp;Filter</source>
        <translation>Borrar el &amp;filtro</translation>
    </message>
    <message>
        <source>&amp;Import XML…</source>
        <translation>I&amp;mportar XML…</translation>
    </message>
    <message>
        <source>Export &amp;XML…</source>
        <translation>Exportar &amp;XML…</translation>
    </message>
    <message>
        <source>&amp;Export CSV…</source>
        <translation>&amp;Exportar CSV…</translation>
    </message>
    <message>
        <source>Print Previe&amp;w…</source>
        <translation>Vista &amp;previa de impresión…</translation>
    </message>
    <message>
        <source>&amp;Print…</source>
        <translation>&amp;Imprimir…</translation>
    </message>
</context>
<context>
    <name>CsvExport</name>
    <message>
        <source>There is not enough memory</source>
        <translation>No hay memoria suficiente</translation>
    </message>
</context>
<context>
    <name>CustomizeList</name>
    <message>
        <source>Columns</source>
        <translation>Columnas</translation>
    </message>
    <message>
        <source>&amp;Show these columns:</source>
        <translation>&amp;Mostrar estas columnas:</translation>
    </message>
    <message>
        <source>Ticked columns are shown in the book list. The space bar ticks the current one.</source>
        <translation>Las columnas marcadas se muestran en la lista de libros. La barra espaciadora marca la columna actual.</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>Aceptar</translation>
    </message>
</context>
<context>
    <name>CustomizeToolbarDialog</name>
    <message>
        <source>Customise Toolbar</source>
        <translation>Personalizar la barra de herramientas</translation>
    </message>
    <message>
        <source>&amp;Items to drag into the toolbar:</source>
        <translation>&amp;Elementos que se pueden arrastrar a la barra de herramientas:</translation>
    </message>
    <message>
        <source>Items to choose from</source>
        <translation>Elementos disponibles</translation>
    </message>
    <message>
        <source>&amp;Add</source>
        <translation>&amp;Añadir</translation>
    </message>
    <message>
        <source>&amp;Toolbar; drag items to move them, and out of it to remove them:</source>
        <translation>&amp;Barra de herramientas; arrastre los elementos para moverlos, o fuera de ella para quitarlos:</translation>
    </message>
    <message>
        <source>Toolbar</source>
        <translation>Barra de herramientas</translation>
    </message>
    <message>
        <source>&amp;Remove</source>
        <translation>&amp;Quitar</translation>
    </message>
    <message>
        <source>Move &amp;Left</source>
        <translation>Mover a la &amp;izquierda</translation>
    </message>
    <message>
        <source>Move Ri&amp;ght</source>
        <translation>Mover a la &amp;derecha</translation>
    </message>
    <message>
        <source>Restore &amp;Default Set</source>
        <translation>&amp;Restaurar el conjunto predeterminado</translation>
    </message>
    <message>
        <source>&amp;Show:</source>
        <translation>&amp;Mostrar:</translation>
    </message>
    <message>
        <source>Show</source>
        <translation>Mostrar</translation>
    </message>
    <message>
        <source>Icon and Text</source>
        <translation>Icono y texto</translation>
    </message>
    <message>
        <source>Icon Only</source>
        <translation>Solo icono</translation>
    </message>
    <message>
        <source>Text Only</source>
        <translation>Solo texto</translation>
    </message>
    <message>
        <source>Do&amp;ne</source>
        <translation>&amp;Hecho</translation>
    </message>
</context>
<context>
    <name>EditMenu</name>
    <message>
        <source>&amp;Undo</source>
        <translation>&amp;Deshacer</translation>
    </message>
    <message>
        <source>&amp;Redo</source>
        <translation>&amp;Rehacer</translation>
    </message>
    <message>
        <source>Cu&amp;t</source>
        <translation>Cor&amp;tar</translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation>&amp;Copiar</translation>
    </message>
    <message>
        <source>&amp;Paste</source>
        <translation>&amp;Pegar</translation>
    </message>
    <message>
        <source>Select &amp;All</source>
        <translation>&amp;Seleccionar todo</translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <translation>&amp;Editar</translation>
    </message>
</context>
<context>
    <name>EditorMenus</name>
    <message>
        <source>&amp;Book</source>
        <translation>&amp;Libro</translation>
    </message>
    <message>
        <source>&amp;Save</source>
        <translation>&amp;Guardar</translation>
    </message>
    <message>
        <source>Save and &amp;Add More</source>
        <translation>Guardar y &amp;añadir otro</translation>
    </message>
    <message>
        <source>&amp;Look Up…</source>
        <translation>&amp;Búsqueda por ISBN…</translation>
    </message>
    <message>
        <source>&amp;Groups…</source>
        <translation>Gr&amp;upos…</translation>
    </message>
    <message>
        <source>&amp;Print…</source>
        <translation>&amp;Imprimir…</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>&amp;Cerrar</translation>
    </message>
</context>
<context>
    <name>EntryForm</name>
    <message>
        <source>None</source>
        <translation>Ninguna</translation>
    </message>
</context>
<context>
    <name>ExportCSVOptions</name>
    <message>
        <source>Export CSV</source>
        <translation>Exportar CSV</translation>
    </message>
    <message>
        <source>Books</source>
        <translation>Libros</translation>
    </message>
    <message>
        <source>All books</source>
        <translation>Todos los libros</translation>
    </message>
    <message>
        <source>Displayed books</source>
        <translation>Libros mostrados</translation>
    </message>
    <message>
        <source>&amp;Columns</source>
        <translation>&amp;Columnas</translation>
    </message>
    <message>
        <source>All fields of a book</source>
        <translation>Todos los campos de un libro</translation>
    </message>
    <message>
        <source>Only fields that the list shows</source>
        <translation>Solo los campos que muestra la lista</translation>
    </message>
    <message>
        <source>Da&amp;tes</source>
        <translation>&amp;Fechas</translation>
    </message>
    <message>
        <source>Month and year in two columns</source>
        <translation>Mes y año en dos columnas</translation>
    </message>
    <message>
        <source>Year</source>
        <translation>Año</translation>
    </message>
    <message>
        <source>Year and month, as 2001-03</source>
        <translation>Año y mes, por ejemplo 2001-03</translation>
    </message>
    <message>
        <source>Year, month and day, as 2001-03-01</source>
        <translation>Año, mes y día, por ejemplo 2001-03-01</translation>
    </message>
    <message>
        <source>C&amp;heck boxes</source>
        <translation>Casillas de &amp;verificación</translation>
    </message>
    <message>
        <source>1 and 0</source>
        <translation>1 y 0</translation>
    </message>
    <message>
        <source>TRUE and FALSE</source>
        <translation>TRUE y FALSE</translation>
    </message>
    <message>
        <source>Y and N</source>
        <translation>Y y N</translation>
    </message>
    <message>
        <source>&amp;Groups</source>
        <translation>&amp;Grupos</translation>
    </message>
    <message>
        <source>No column</source>
        <translation>Ninguna columna</translation>
    </message>
    <message>
        <source>A column for each group</source>
        <translation>Una columna para cada grupo</translation>
    </message>
    <message>
        <source>One column, names separated by:</source>
        <translation>Una columna, nombres separados por:</translation>
    </message>
    <message>
        <source>Text between the names of groups</source>
        <translation>Texto entre los nombres de los grupos</translation>
    </message>
    <message>
        <source>&amp;ISBN</source>
        <translation>&amp;ISBN</translation>
    </message>
    <message>
        <source>One column</source>
        <translation>Una columna</translation>
    </message>
    <message>
        <source>Two columns, for 10 and 13 digits</source>
        <translation>Dos columnas, para 10 y 13 dígitos</translation>
    </message>
    <message>
        <source>&amp;Line breaks in texts</source>
        <translation>&amp;Saltos de línea en los textos</translation>
    </message>
    <message>
        <source>Kept</source>
        <translation>Se conservan</translation>
    </message>
    <message>
        <source>Replaced by a space</source>
        <translation>Se sustituyen por un espacio</translation>
    </message>
    <message>
        <source>Written as \n</source>
        <translation>Se escriben como \n</translation>
    </message>
    <message>
        <source>&amp;Preview:</source>
        <translation>Vista &amp;previa:</translation>
    </message>
    <message>
        <source>Preview</source>
        <translation>Vista previa</translation>
    </message>
    <message>
        <source>The first lines of the file as they will be.</source>
        <translation>Las primeras líneas del archivo tal como serán.</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>Aceptar</translation>
    </message>
</context>
<context>
    <name>ExportChoices</name>
    <message>
        <source>&amp;All books (%1)</source>
        <translation>&amp;Todos los libros (%1)</translation>
    </message>
    <message>
        <source>&amp;Displayed books (%1)</source>
        <translation>&amp;Libros mostrados (%1)</translation>
    </message>
</context>
<context>
    <name>ExportOptions</name>
    <message>
        <source>Export XML</source>
        <translation>Exportar XML</translation>
    </message>
    <message>
        <source>Books</source>
        <translation>Libros</translation>
    </message>
    <message>
        <source>All books</source>
        <translation>Todos los libros</translation>
    </message>
    <message>
        <source>Displayed books</source>
        <translation>Libros mostrados</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>Aceptar</translation>
    </message>
</context>
<context>
    <name>FilePanels</name>
    <message>
        <source>All Files (*)</source>
        <translation>Todos los archivos (*)</translation>
    </message>
    <message>
        <source>&apos;%1&apos; already exists.

Do you want to replace it?</source>
        <translation>«%1» ya existe.

¿Desea reemplazarlo?</translation>
    </message>
</context>
<context>
    <name>FileReading</name>
    <message>
        <source>Not a plain file</source>
        <translation>No es un archivo normal</translation>
    </message>
</context>
<context>
    <name>FilterBar</name>
    <message>
        <source>Filter field</source>
        <translation>Campo del filtro</translation>
    </message>
    <message>
        <source>Comparison of dates</source>
        <translation>Comparación de fechas</translation>
    </message>
    <message>
        <source>Month</source>
        <translation>Mes</translation>
    </message>
    <message>
        <source>Year</source>
        <translation>Año</translation>
    </message>
    <message>
        <source>Check mark</source>
        <translation>Marca de verificación</translation>
    </message>
    <message>
        <source>Comparison of numbers</source>
        <translation>Comparación de números</translation>
    </message>
    <message>
        <source>Number</source>
        <translation>Número</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>Formato</translation>
    </message>
    <message>
        <source>Rating</source>
        <translation>Valoración</translation>
    </message>
    <message>
        <source>Pictures</source>
        <translation>Imágenes</translation>
    </message>
    <message>
        <source>Groups</source>
        <translation>Grupos</translation>
    </message>
</context>
<context>
    <name>GroupManager</name>
    <message>
        <source>Groups</source>
        <translation>Grupos</translation>
    </message>
    <message>
        <source>&amp;Add</source>
        <translation>&amp;Añadir</translation>
    </message>
    <message>
        <source>&amp;Delete</source>
        <translation>&amp;Eliminar</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>Aceptar</translation>
    </message>
</context>
<context>
    <name>Help</name>
    <message>
        <source>Guide</source>
        <translation>Guía</translation>
    </message>
    <message>
        <source>The guide is not installed.</source>
        <translation>La guía no está instalada.</translation>
    </message>
    <message>
        <source>No program of this desktop shows the guide. It is at %1</source>
        <translation>Ningún programa de este escritorio muestra la guía. Se encuentra en %1</translation>
    </message>
    <message>
        <source>Report a Problem</source>
        <translation>Informar de un problema</translation>
    </message>
    <message>
        <source>The versions are on the clipboard</source>
        <translation>Las versiones están en el portapapeles</translation>
    </message>
    <message>
        <source>Paste them into your report, and write what you did, what you expected and what happened instead. Nothing of your books is among them.</source>
        <translation>Péguelas en su informe y escriba qué hizo, qué esperaba y qué ocurrió en su lugar. No contienen nada de sus libros.</translation>
    </message>
    <message>
        <source>About Tomely</source>
        <translation>Acerca de Tomely</translation>
    </message>
    <message>
        <source>Tomely %1</source>
        <translation>Tomely %1</translation>
    </message>
    <message>
        <source>A catalogue of the books you own.

Free software under the MIT licence, built with Qt %1, Expat and Hunspell.</source>
        <translation>Un catálogo de sus libros.

Software libre con licencia MIT, creado con Qt %1, Expat y Hunspell.</translation>
    </message>
    <message>
        <source>Versions</source>
        <translation>Versiones</translation>
    </message>
</context>
<context>
    <name>MainMenu</name>
    <message>
        <source>&amp;Clear Menu</source>
        <translation>&amp;Vaciar el menú</translation>
    </message>
    <message>
        <source>Open &amp;Recent</source>
        <translation>Abrir &amp;reciente</translation>
    </message>
    <message>
        <source>&amp;File</source>
        <translation>&amp;Archivo</translation>
    </message>
    <message>
        <source>&amp;New Collection</source>
        <translation>&amp;Nueva colección</translation>
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
        <translation>G&amp;uardar como…</translation>
    </message>
    <message>
        <source>Re&amp;vert to Saved</source>
        <translation>Re&amp;vertir a la versión guardada</translation>
    </message>
    <message>
        <source>Pre&amp;ferences…</source>
        <translation>Pre&amp;ferencias…</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>&amp;Cerrar</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>&amp;Salir</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>A&amp;yuda</translation>
    </message>
    <message>
        <source>&amp;About Tomely</source>
        <translation>&amp;Acerca de Tomely</translation>
    </message>
    <message>
        <source>&amp;Guide</source>
        <translation>&amp;Guía</translation>
    </message>
    <message>
        <source>&amp;Report a Problem…</source>
        <translation>&amp;Informar de un problema…</translation>
    </message>
</context>
<context>
    <name>Months</name>
    <message>
        <source>January</source>
        <translation>enero</translation>
    </message>
    <message>
        <source>February</source>
        <translation>febrero</translation>
    </message>
    <message>
        <source>March</source>
        <translation>marzo</translation>
    </message>
    <message>
        <source>April</source>
        <translation>abril</translation>
    </message>
    <message>
        <source>May</source>
        <translation>mayo</translation>
    </message>
    <message>
        <source>June</source>
        <translation>junio</translation>
    </message>
    <message>
        <source>July</source>
        <translation>julio</translation>
    </message>
    <message>
        <source>August</source>
        <translation>agosto</translation>
    </message>
    <message>
        <source>September</source>
        <translation>septiembre</translation>
    </message>
    <message>
        <source>October</source>
        <translation>octubre</translation>
    </message>
    <message>
        <source>November</source>
        <translation>noviembre</translation>
    </message>
    <message>
        <source>December</source>
        <translation>diciembre</translation>
    </message>
    <message>
        <source>%1, %2</source>
        <extracomment>A month and a year, as in &quot;June, 2001&quot;</extracomment>
        <translation>%1 de %2</translation>
    </message>
</context>
<context>
    <name>Preferences</name>
    <message>
        <source>Preferences</source>
        <translation>Preferencias</translation>
    </message>
    <message>
        <source>Start-up</source>
        <translation>Inicio</translation>
    </message>
    <message>
        <source>&amp;Open this collection when Tomely starts</source>
        <translation>Abrir esta &amp;colección al iniciar Tomely</translation>
    </message>
    <message>
        <source>Collection to open</source>
        <translation>Colección que se abrirá</translation>
    </message>
    <message>
        <source>No collection chosen</source>
        <translation>Ninguna colección elegida</translation>
    </message>
    <message>
        <source>&amp;Choose…</source>
        <translation>&amp;Elegir…</translation>
    </message>
    <message>
        <source>Choose collection to open</source>
        <translation>Elegir la colección que se abrirá</translation>
    </message>
    <message>
        <source>Without one, Tomely starts with a new, untitled collection.</source>
        <translation>Sin ella, Tomely se inicia con una colección nueva sin título.</translation>
    </message>
    <message>
        <source>New books</source>
        <translation>Libros nuevos</translation>
    </message>
    <message>
        <source>Set &amp;First read to this month</source>
        <translation>Poner este mes en «P&amp;rimera lectura»</translation>
    </message>
    <message>
        <source>Set &amp;Last read to this month</source>
        <translation>Poner este mes en «Última lect&amp;ura»</translation>
    </message>
    <message>
        <source>Set Purchased to this &amp;month</source>
        <translation>Poner este &amp;mes en «Compra»</translation>
    </message>
    <message>
        <source>Mark as &amp;read</source>
        <translation>Marcar como &amp;leído</translation>
    </message>
    <message>
        <source>Start in the &amp;ISBN field</source>
        <translation>Empezar en el campo &amp;ISBN</translation>
    </message>
    <message>
        <source>Open editors on the Custom &amp;tab</source>
        <translation>Abrir las fic&amp;has en la pestaña «Personalizado»</translation>
    </message>
    <message>
        <source>Of every book; a new one then does not start in the ISBN field.</source>
        <translation>Las de todos los libros; una nueva no empieza entonces en el campo ISBN.</translation>
    </message>
    <message>
        <source>Look-up and pictures</source>
        <translation>Búsqueda por ISBN e imágenes</translation>
    </message>
    <message>
        <source>Do &amp;not look a book up when its ISBN changes</source>
        <translation>&amp;No buscar un libro cuando cambie su ISBN</translation>
    </message>
    <message>
        <source>Look Up… in the editor still does.</source>
        <translation>«Búsqueda…» en la ficha lo sigue haciendo.</translation>
    </message>
    <message>
        <source>Take only the first of several aut&amp;hors</source>
        <translation>Tomar solo el primero de varios aut&amp;ores</translation>
    </message>
    <message>
        <source>Do not fetch co&amp;vers</source>
        <translation>No &amp;descargar las portadas</translation>
    </message>
    <message>
        <source>Ask the &amp;second source too</source>
        <translation>Consultar también la &amp;segunda fuente</translation>
    </message>
    <message>
        <source>For what the first lacks. It needs a host of book pages below.</source>
        <translation>Para lo que falte en la primera. Requiere abajo un servidor de páginas de libros.</translation>
    </message>
    <message>
        <source>Scale &amp;down new pictures to the size of their place</source>
        <translation>Reducir las imágenes nuevas al &amp;tamaño de su espacio</translation>
    </message>
    <message>
        <source>Keeps the file small, but the full size is not stored.</source>
        <translation>El archivo ocupa poco, pero no se guarda el tamaño completo.</translation>
    </message>
    <message>
        <source>Picture &amp;quality:</source>
        <translation>Calidad de ima&amp;gen:</translation>
    </message>
    <message>
        <source>7</source>
        <translation>7</translation>
    </message>
    <message>
        <source>Of new pictures: 1 makes the smallest files, 10 the best pictures.</source>
        <translation>De las imágenes nuevas: 1 da los archivos más pequeños y 10 las mejores imágenes.</translation>
    </message>
    <message>
        <source>Sources of look-ups</source>
        <translation>Fuentes de las búsquedas por ISBN</translation>
    </message>
    <message>
        <source>Book id&amp;entifiers:</source>
        <translation>Identi&amp;ficadores de libros:</translation>
    </message>
    <message>
        <source>&amp;Book records:</source>
        <translation>Registros de li&amp;bros:</translation>
    </message>
    <message>
        <source>Book &amp;pages:</source>
        <translation>&amp;Páginas de libros:</translation>
    </message>
    <message>
        <source>None</source>
        <translation>Sin valor</translation>
    </message>
    <message>
        <source>Service &amp;key:</source>
        <translation>Clave del ser&amp;vicio:</translation>
    </message>
    <message>
        <source>&amp;Apply</source>
        <translation>&amp;Aplicar</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>Aceptar</translation>
    </message>
</context>
<context>
    <name>PrintPreview</name>
    <message>
        <source>Print Preview</source>
        <translation>Vista previa de impresión</translation>
    </message>
    <message>
        <source>Pa&amp;ge:</source>
        <translation>&amp;Página:</translation>
    </message>
    <message>
        <source>of 1</source>
        <translation>de 1</translation>
    </message>
    <message>
        <source>P&amp;revious</source>
        <translation>A&amp;nterior</translation>
    </message>
    <message>
        <source>Previous page (Page Up)</source>
        <translation>Página anterior (Re Pág)</translation>
    </message>
    <message>
        <source>&amp;Next</source>
        <translation>&amp;Siguiente</translation>
    </message>
    <message>
        <source>Next page (Page Down)</source>
        <translation>Página siguiente (Av Pág)</translation>
    </message>
    <message>
        <source>&amp;Orientation:</source>
        <translation>&amp;Orientación:</translation>
    </message>
    <message>
        <source>Portrait</source>
        <translation>Vertical</translation>
    </message>
    <message>
        <source>Landscape</source>
        <translation>Horizontal</translation>
    </message>
    <message>
        <source>&amp;Zoom:</source>
        <translation>&amp;Zoom:</translation>
    </message>
    <message>
        <source>Whole Page</source>
        <translation>Página completa</translation>
    </message>
    <message>
        <source>Page Width</source>
        <translation>Ancho de página</translation>
    </message>
    <message>
        <source>100 %</source>
        <translation>100&#xa0;%</translation>
    </message>
    <message>
        <source>200 %</source>
        <translation>200&#xa0;%</translation>
    </message>
    <message>
        <source>Page</source>
        <translation>Página</translation>
    </message>
    <message>
        <source>&amp;Print…</source>
        <translation>&amp;Imprimir…</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>&amp;Cerrar</translation>
    </message>
</context>
<context>
    <name>TomelyDelegate</name>
    <message>
        <source>You will be prompted to select your default file.

This is only required once.</source>
        <translation>A continuación se le pedirá que elija el archivo predeterminado.

Solo es necesario una vez.</translation>
    </message>
    <message>
        <source>Change default file to selected file?</source>
        <translation>¿Usar el archivo seleccionado como archivo predeterminado?</translation>
    </message>
</context>
<context>
    <name>ToolbarItems</name>
    <message>
        <source>Add Book</source>
        <translation>Añadir libro</translation>
    </message>
    <message>
        <source>Edit Book</source>
        <translation>Editar libro</translation>
    </message>
    <message>
        <source>Delete Book</source>
        <translation>Eliminar libro</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Quitar</translation>
    </message>
    <message>
        <source>Columns</source>
        <translation>Columnas</translation>
    </message>
    <message>
        <source>Add Group</source>
        <translation>Añadir grupo</translation>
    </message>
    <message>
        <source>Delete Group</source>
        <translation>Eliminar grupo</translation>
    </message>
    <message>
        <source>Author &amp; Title</source>
        <translation>Autor y título</translation>
    </message>
    <message>
        <source>Print</source>
        <translation>Imprimir</translation>
    </message>
    <message>
        <source>Flexible Space</source>
        <translation>Espacio flexible</translation>
    </message>
    <message>
        <source>Customise</source>
        <translation>Personalizar</translation>
    </message>
    <message>
        <source>Space</source>
        <translation>Espacio</translation>
    </message>
    <message>
        <source>Separator</source>
        <translation>Separador</translation>
    </message>
</context>
<context>
    <name>WindowMenu</name>
    <message>
        <source>&amp;Window</source>
        <translation>Ve&amp;ntana</translation>
    </message>
</context>
<context>
    <name>XmlExport</name>
    <message>
        <source>There is not enough memory</source>
        <translation>No hay memoria suficiente</translation>
    </message>
</context>
<context>
    <name>XmlImport</name>
    <message>
        <source>The collection takes no more books</source>
        <translation>La colección no admite más libros</translation>
    </message>
    <message>
        <source>not an XML file that can be read: %1</source>
        <translation>no es un archivo XML que se pueda leer: %1</translation>
    </message>
    <message>
        <source>There is not enough memory</source>
        <translation>No hay memoria suficiente</translation>
    </message>
</context>
<context>
    <name>main</name>
    <message>
        <source>A catalogue of the books you own.</source>
        <translation>Un catálogo de sus libros.</translation>
    </message>
    <message>
        <source>Collections to open; the default collection without any.</source>
        <translation>Colecciones que se abrirán; si no se indica ninguna, la predeterminada.</translation>
    </message>
    <message>
        <source>Write a picture of the first window to FILE, print its status line and quit.</source>
        <translation>Escribir una imagen de la primera ventana en FILE, mostrar su línea de estado y salir.</translation>
    </message>
    <message>
        <source>Tomely is running already but is busy at the moment. It opens your collections as soon as it is ready.</source>
        <translation>Tomely ya está en ejecución, pero está ocupado en este momento. Abrirá sus colecciones en cuanto esté listo.</translation>
    </message>
</context>
<context>
    <name>tomely::BookCommands</name>
    <message>
        <source>Are you sure you want to delete &apos;%1&apos;?</source>
        <translation>¿Seguro que desea eliminar «%1»?</translation>
    </message>
    <message>
        <source>Are you sure you want to delete %1 books?</source>
        <translation>¿Seguro que desea eliminar %1 libros?</translation>
    </message>
    <message>
        <source>Remove images from all books?</source>
        <translation>¿Quitar las imágenes de todos los libros?</translation>
    </message>
    <message>
        <source>Removing pictures…</source>
        <translation>Quitando las imágenes…</translation>
    </message>
    <message>
        <source>Scale all images to the book entry display size?</source>
        <translation>¿Escalar todas las imágenes al tamaño con que se muestran en la ficha del libro?</translation>
    </message>
    <message>
        <source>Scaling pictures…</source>
        <translation>Escalando las imágenes…</translation>
    </message>
</context>
<context>
    <name>tomely::BookEntryWindowController</name>
    <message>
        <source>%1 - %2</source>
        <translation>%1 - %2</translation>
    </message>
    <message>
        <source>%1 - New Entry</source>
        <translation>%1 - Nueva ficha</translation>
    </message>
    <message>
        <source>Listened To</source>
        <translation>Escuchado</translation>
    </message>
    <message>
        <source>Read</source>
        <translation>Leído</translation>
    </message>
    <message>
        <source>This book has no title yet and cannot be saved.

Do you want to discard it?</source>
        <translation>Este libro aún no tiene título y no se puede guardar.

¿Desea descartarlo?</translation>
    </message>
    <message>
        <source>Do you want to save the changes to the book &apos;%1&apos;?</source>
        <translation>¿Desea guardar los cambios del libro «%1»?</translation>
    </message>
</context>
<context>
    <name>tomely::BookExchange</name>
    <message>
        <source>XML Files</source>
        <translation>Archivos XML</translation>
    </message>
    <message>
        <source>CSV Files</source>
        <translation>Archivos CSV</translation>
    </message>
    <message>
        <source>Exporting books…</source>
        <translation>Exportando los libros…</translation>
    </message>
    <message>
        <source>Importing books…</source>
        <translation>Importando los libros…</translation>
    </message>
</context>
<context>
    <name>tomely::BookListDocument</name>
    <message>
        <source>Tomely cannot open files from newer versions.</source>
        <translation>Tomely no puede abrir archivos de versiones más recientes.</translation>
    </message>
    <message>
        <source>damaged: %1</source>
        <translation>dañado: %1</translation>
    </message>
    <message>
        <source>not a collection file</source>
        <translation>no es un archivo de colección</translation>
    </message>
    <message>
        <source>Open this file when Tomely starts?

You may change this in Preferences at any time.</source>
        <translation>¿Abrir este archivo al iniciar Tomely?

Puede cambiarlo en cualquier momento en Preferencias.</translation>
    </message>
</context>
<context>
    <name>tomely::BookListWindowController</name>
    <message>
        <source>%1 of %2 displayed</source>
        <translation>%1 de %2 mostrados</translation>
    </message>
</context>
<context>
    <name>tomely::BookPrinting</name>
    <message>
        <source>&apos;%1&apos; could not be printed.

%2</source>
        <translation>No se ha podido imprimir «%1».

%2</translation>
    </message>
    <message>
        <source>The printer does not take the pages.</source>
        <translation>La impresora no acepta las páginas.</translation>
    </message>
    <message>
        <source>The list has none of the chosen pages.</source>
        <translation>La lista no tiene ninguna de las páginas elegidas.</translation>
    </message>
    <message>
        <source>Printing &apos;%1&apos;…</source>
        <translation>Imprimiendo «%1»…</translation>
    </message>
    <message>
        <source>There is not enough memory</source>
        <translation>No hay memoria suficiente</translation>
    </message>
</context>
<context>
    <name>tomely::BookTableModel</name>
    <message>
        <source>yes</source>
        <translation>sí</translation>
    </message>
    <message>
        <source>no</source>
        <translation>no</translation>
    </message>
</context>
<context>
    <name>tomely::CommandActions</name>
    <message>
        <source>Add to &amp;Group</source>
        <translation>Añadir al &amp;grupo</translation>
    </message>
    <message>
        <source>&amp;Book</source>
        <translation>&amp;Libro</translation>
    </message>
    <message>
        <source>&amp;Group</source>
        <translation>&amp;Grupo</translation>
    </message>
    <message>
        <source>&amp;View</source>
        <translation>&amp;Ver</translation>
    </message>
    <message>
        <source>No Groups</source>
        <translation>No hay grupos</translation>
    </message>
</context>
<context>
    <name>tomely::CommandToolbar</name>
    <message>
        <source>Toolbar</source>
        <translation>Barra de herramientas</translation>
    </message>
    <message>
        <source>&amp;Icon and Text</source>
        <translation>&amp;Icono y texto</translation>
    </message>
    <message>
        <source>Icon &amp;Only</source>
        <translation>&amp;Solo icono</translation>
    </message>
    <message>
        <source>Te&amp;xt Only</source>
        <translation>Solo &amp;texto</translation>
    </message>
    <message>
        <source>More commands</source>
        <translation>Más órdenes</translation>
    </message>
</context>
<context>
    <name>tomely::Document</name>
    <message>
        <source>There is not enough memory</source>
        <translation>No hay memoria suficiente</translation>
    </message>
</context>
<context>
    <name>tomely::DocumentController</name>
    <message>
        <source>Untitled</source>
        <translation>Sin título</translation>
    </message>
    <message>
        <source>Untitled %1</source>
        <translation>Sin título %1</translation>
    </message>
    <message>
        <source>Opening &apos;%1&apos;…</source>
        <translation>Abriendo «%1»…</translation>
    </message>
    <message>
        <source>The file &apos;%1&apos; could not be opened.

%2</source>
        <translation>No se ha podido abrir el archivo «%1».

%2</translation>
    </message>
    <message>
        <source>Saving &apos;%1&apos;…</source>
        <translation>Guardando «%1»…</translation>
    </message>
    <message>
        <source>&apos;%1&apos; could not be saved.

%2</source>
        <translation>No se ha podido guardar «%1».

%2</translation>
    </message>
    <message>
        <source>The file of &apos;%1&apos; was changed by another program since you opened it.

Do you want to replace it with what you have here? What the other program wrote will be lost.</source>
        <translation>Otro programa ha modificado el archivo de «%1» desde que se abrió.

¿Desea reemplazarlo con lo que tiene aquí? Se perderá lo que ha escrito el otro programa.</translation>
    </message>
    <message>
        <source>Replace</source>
        <translation>Reemplazar</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is open in another window. Choose another name.</source>
        <translation>«%1» está abierto en otra ventana. Elija otro nombre.</translation>
    </message>
    <message>
        <source>Do you want to go back to the saved version of &apos;%1&apos;?

Your changes since will be lost.</source>
        <translation>¿Desea revertir «%1» a la versión guardada?

Se perderán los cambios realizados desde entonces.</translation>
    </message>
    <message>
        <source>Revert</source>
        <translation>Revertir</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Guardar</translation>
    </message>
    <message>
        <source>Don&apos;t Save</source>
        <translation>No guardar</translation>
    </message>
    <message>
        <source>Discard</source>
        <translation>Descartar</translation>
    </message>
    <message>
        <source>Do you want to save the changes to &apos;%1&apos;?</source>
        <translation>¿Desea guardar los cambios de «%1»?</translation>
    </message>
</context>
<context>
    <name>tomely::DraggableImageView</name>
    <message>
        <source>Drop or paste a picture here, or press Return to choose a file.</source>
        <translation>Suelte o pegue aquí una imagen, o pulse Intro para elegir un archivo.</translation>
    </message>
    <message>
        <source>No picture</source>
        <translation>Sin imagen</translation>
    </message>
    <message>
        <source>%1 by %2 pixels</source>
        <translation>%1 por %2 píxeles</translation>
    </message>
    <message>
        <source>This is not a picture that Tomely can read.</source>
        <translation>No es una imagen que Tomely pueda leer.</translation>
    </message>
    <message>
        <source>Choose &amp;Picture…</source>
        <translation>Elegir &amp;imagen…</translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation>&amp;Copiar</translation>
    </message>
    <message>
        <source>Pas&amp;te</source>
        <translation>&amp;Pegar</translation>
    </message>
    <message>
        <source>C&amp;lear</source>
        <translation>&amp;Quitar</translation>
    </message>
    <message>
        <source>This picture is damaged</source>
        <translation>Esta imagen está dañada</translation>
    </message>
    <message>
        <source>Drop a picture here</source>
        <translation>Suelte una imagen aquí</translation>
    </message>
    <message>
        <source>%1&#xa0;×&#xa0;%2</source>
        <comment>width and height of a picture in pixels</comment>
        <translation>%1&#xa0;×&#xa0;%2</translation>
    </message>
</context>
<context>
    <name>tomely::EditableLabel</name>
    <message>
        <source>Double-click to rename</source>
        <translation>Doble clic para renombrar</translation>
    </message>
</context>
<context>
    <name>tomely::EmptyList</name>
    <message>
        <source>&amp;Add the First Book</source>
        <translation>Añadir el &amp;primer libro</translation>
    </message>
    <message>
        <source>&amp;Clear Filter</source>
        <translation>&amp;Borrar el filtro</translation>
    </message>
    <message>
        <source>There are no books in this collection yet.</source>
        <translation>Aún no hay libros en esta colección.</translation>
    </message>
    <message>
        <source>There are no books in this group.</source>
        <translation>No hay libros en este grupo.</translation>
    </message>
    <message>
        <source>No books match the filter.</source>
        <translation>Ningún libro coincide con el filtro.</translation>
    </message>
</context>
<context>
    <name>tomely::FilterBar</name>
    <message>
        <source>All books</source>
        <translation>Todos los libros</translation>
    </message>
    <message>
        <source>Checked</source>
        <translation>Marcados</translation>
    </message>
    <message>
        <source>Unchecked</source>
        <translation>Sin marcar</translation>
    </message>
    <message>
        <source>With pictures</source>
        <translation>Con imágenes</translation>
    </message>
    <message>
        <source>Without pictures</source>
        <translation>Sin imágenes</translation>
    </message>
    <message>
        <source>In a group</source>
        <translation>En algún grupo</translation>
    </message>
    <message>
        <source>In no group</source>
        <translation>En ningún grupo</translation>
    </message>
    <message>
        <source>is</source>
        <translation>es</translation>
    </message>
    <message>
        <source>is not</source>
        <translation>no es</translation>
    </message>
    <message>
        <source>less than</source>
        <translation>menor que</translation>
    </message>
    <message>
        <source>greater than</source>
        <translation>mayor que</translation>
    </message>
    <message>
        <source>before</source>
        <translation>antes de</translation>
    </message>
    <message>
        <source>after</source>
        <translation>después de</translation>
    </message>
    <message>
        <source>on or before</source>
        <translation>hasta</translation>
    </message>
    <message>
        <source>on or after</source>
        <translation>desde</translation>
    </message>
    <message>
        <source>Any month</source>
        <translation>Cualquier mes</translation>
    </message>
    <message>
        <source>None</source>
        <translation>Ninguna</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>Buscar</translation>
    </message>
    <message>
        <source>Search %1</source>
        <translation>Buscar en %1</translation>
    </message>
    <message>
        <source>Choose what to search</source>
        <translation>Elegir dónde buscar</translation>
    </message>
    <message>
        <source>Choose what to search: %1</source>
        <translation>Elegir dónde buscar: %1</translation>
    </message>
</context>
<context>
    <name>tomely::GroupCommands</name>
    <message>
        <source>Are you sure you want to delete group &apos;%1&apos;?</source>
        <translation>¿Seguro que desea eliminar el grupo «%1»?</translation>
    </message>
    <message>
        <source>Remove selected book(s) from group?</source>
        <translation>¿Quitar del grupo los libros seleccionados?</translation>
    </message>
</context>
<context>
    <name>tomely::GroupManagerController</name>
    <message>
        <source>Tick the groups that the book is in.</source>
        <translation>Marque los grupos a los que pertenece el libro.</translation>
    </message>
    <message>
        <source>The groups of this collection.</source>
        <translation>Los grupos de esta colección.</translation>
    </message>
</context>
<context>
    <name>tomely::GroupTableModel</name>
    <message>
        <source>Library</source>
        <translation>Biblioteca</translation>
    </message>
</context>
<context>
    <name>tomely::HeaderMenu</name>
    <message>
        <source>&amp;Columns…</source>
        <translation>&amp;Columnas…</translation>
    </message>
    <message>
        <source>&amp;Hide This Column</source>
        <translation>&amp;Ocultar esta columna</translation>
    </message>
    <message>
        <source>&amp;Hide &apos;%1&apos;</source>
        <translation>&amp;Ocultar «%1»</translation>
    </message>
</context>
<context>
    <name>tomely::ImageWells</name>
    <message>
        <source>Pictures</source>
        <translation>Imágenes</translation>
    </message>
</context>
<context>
    <name>tomely::LookupWorkflow</name>
    <message>
        <source>Book lookup did not find the requested book.</source>
        <translation>La búsqueda no ha encontrado el libro solicitado.</translation>
    </message>
</context>
<context>
    <name>tomely::NotesView</name>
    <message>
        <source>No Suggestions</source>
        <translation>Sin sugerencias</translation>
    </message>
    <message>
        <source>Ignore Spelling</source>
        <translation>Ignorar la ortografía</translation>
    </message>
</context>
<context>
    <name>tomely::PreferencesController</name>
    <message>
        <source>The preferences could not be written to &apos;%1&apos;. They count until Tomely ends.</source>
        <translation>No se han podido escribir las preferencias en «%1». Valdrán hasta que se cierre Tomely.</translation>
    </message>
    <message>
        <source>Leave a field empty for what it shows. A host is a name, with a colon and a port where need be: books.example.org:8443.</source>
        <translation>Deje un campo vacío para usar lo que muestra. Un servidor es un nombre, con dos puntos y un puerto si hace falta: books.example.org:8443.</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is not a host, so look-ups ask nobody there. Type a name like books.example.org, with a colon and a port where need be.</source>
        <translation>«%1» no es un servidor, así que ahí no se busca nada. Escriba un nombre como books.example.org, con dos puntos y un puerto si hace falta.</translation>
    </message>
</context>
<context>
    <name>tomely::PrintPreview</name>
    <message>
        <source>of %L1</source>
        <translation>de %L1</translation>
    </message>
</context>
<context>
    <name>tomely::StartWindow</name>
    <message>
        <source>A catalogue of the books you own</source>
        <translation>Un catálogo de sus libros</translation>
    </message>
    <message>
        <source>&amp;New Collection</source>
        <translation>&amp;Nueva colección</translation>
    </message>
    <message>
        <source>&amp;Open…</source>
        <translation>&amp;Abrir…</translation>
    </message>
    <message>
        <source>&amp;Preferences…</source>
        <translation>&amp;Preferencias…</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>&amp;Salir</translation>
    </message>
    <message>
        <source>&amp;Recent collections</source>
        <translation>Colecciones &amp;recientes</translation>
    </message>
    <message>
        <source>Recent collections</source>
        <translation>Colecciones recientes</translation>
    </message>
</context>
</TS>
