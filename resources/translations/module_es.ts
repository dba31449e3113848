<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="es_ES" sourcelanguage="en">
<context>
    <name>BlockReplacementDialog</name>
    <message>
        <source>The block &quot;%1&quot; is taken for %2, as another block of the drawing is. Rename one of the two first.</source>
        <translation>El bloque &quot;%1&quot; se toma por %2, igual que otro bloque del dibujo. Cambie antes el nombre de uno de los dos.</translation>
    </message>
</context>
<context>
    <name>DLG_QT_ConvertNotes</name>
    <message>
        <source>Convert SimpleNote</source>
        <translation>Convertir SimpleNote</translation>
    </message>
    <message>
        <source>Format</source>
        <translation>Formato</translation>
    </message>
    <message>
        <source>Keep original T&amp;extStyle</source>
        <translation>Conservar estilo de te&amp;xto</translation>
    </message>
    <message>
        <source>Keep original &amp;LineColor</source>
        <translation>Conservar color de &amp;línea</translation>
    </message>
    <message>
        <source>Keep original &amp;height</source>
        <translation>Conservar al&amp;tura</translation>
    </message>
    <message>
        <source>Ordering</source>
        <translation>Orden</translation>
    </message>
    <message>
        <source>&amp;Selection set</source>
        <translation>Conjunto de &amp;selección</translation>
    </message>
    <message>
        <source>&amp;Top-down</source>
        <translation>De a&amp;rriba abajo</translation>
    </message>
    <message>
        <source>&amp;Alphabetical</source>
        <translation>&amp;Alfabético</translation>
    </message>
    <message>
        <source>&amp;Create word-wrap text</source>
        <translation>&amp;Crear texto con ajuste de línea</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>Aceptar</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Ayuda</translation>
    </message>
</context>
<context>
    <name>DLG_QT_PatternHatch</name>
    <message>
        <source>Pattern Hatch</source>
        <translation>Sombreado con patrón</translation>
    </message>
    <message>
        <source>Type </source>
        <translation>Tipo </translation>
    </message>
    <message>
        <source>&amp;Block</source>
        <translation>&amp;Bloque</translation>
    </message>
    <message>
        <source>&amp;Image</source>
        <translation>&amp;Imagen</translation>
    </message>
    <message>
        <source>&amp;External reference</source>
        <translation>&amp;Referencia externa</translation>
    </message>
    <message>
        <source>&amp;Mask</source>
        <translation>&amp;Máscara</translation>
    </message>
    <message>
        <source>&amp;Name:</source>
        <translation>&amp;Nombre:</translation>
    </message>
    <message>
        <source>...</source>
        <translation>...</translation>
    </message>
    <message>
        <source>Favorites</source>
        <translation>Favoritos</translation>
    </message>
    <message>
        <source>Save favorite</source>
        <translation>Guardar favorito</translation>
    </message>
    <message>
        <source>Remove favorite</source>
        <translation>Eliminar favorito</translation>
    </message>
    <message>
        <source>Pattern preview</source>
        <translation>Vista previa del patrón</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Tamaño</translation>
    </message>
    <message>
        <source>&amp;Width and height as scale factor</source>
        <translation>Anchura y altura como &amp;factor de escala</translation>
    </message>
    <message>
        <source>&amp;Lock aspect ratio</source>
        <translation>Fi&amp;jar proporción</translation>
    </message>
    <message>
        <source>Wid&amp;th:</source>
        <translation>&amp;Anchura:</translation>
    </message>
    <message>
        <source>Hei&amp;ght:</source>
        <translation>Alt&amp;ura:</translation>
    </message>
    <message>
        <source>Spacing</source>
        <translation>Separación</translation>
    </message>
    <message>
        <source>Offset &amp;X:</source>
        <translation>Desfase &amp;X:</translation>
    </message>
    <message>
        <source>Offset &amp;Y:</source>
        <translation>Desfase &amp;Y:</translation>
    </message>
    <message>
        <source>Position</source>
        <translation>Posición</translation>
    </message>
    <message>
        <source>Pattern &amp;origin:</source>
        <translation>&amp;Origen del patrón:</translation>
    </message>
    <message>
        <source>X</source>
        <translation>X</translation>
    </message>
    <message>
        <source>Specify in graphics area</source>
        <translation>Precisar en el área gráfica</translation>
    </message>
    <message>
        <source>Y</source>
        <translation>Y</translation>
    </message>
    <message>
        <source>Rotation &amp;angle:</source>
        <translation>Ángu&amp;lo de rotación:</translation>
    </message>
    <message>
        <source>Extracts pattern, size, position and rotation from an entity in drawing</source>
        <translation>Extrae el patrón, el tamaño, la posición y la rotación de una entidad del dibujo</translation>
    </message>
    <message>
        <source>&amp;Extract from entity</source>
        <translation>&amp;Extraer de entidad</translation>
    </message>
    <message>
        <source>Boundaries</source>
        <translation>Contornos</translation>
    </message>
    <message>
        <source>Specify &amp;entities</source>
        <translation>De&amp;signar entidades</translation>
    </message>
    <message>
        <source>&amp;Specify points</source>
        <translation>Designar &amp;puntos</translation>
    </message>
    <message>
        <source>&amp;Delete boundary entities</source>
        <translation>Borrar entidades de &amp;contorno</translation>
    </message>
    <message>
        <source>&amp;Highlight boundary entities</source>
        <translation>&amp;Resaltar entidades de contorno</translation>
    </message>
    <message>
        <source>&amp;Extract from a hatch</source>
        <translation>E&amp;xtraer de un sombreado</translation>
    </message>
    <message>
        <source>Type of entities</source>
        <translation>Tipo de entidades</translation>
    </message>
    <message>
        <source>&amp;Anonymous block</source>
        <translation>Blo&amp;que anónimo</translation>
    </message>
    <message>
        <source>E&amp;ntity group</source>
        <translation>&amp;Grupo de entidades</translation>
    </message>
    <message>
        <source>Limits</source>
        <translation>Límites</translation>
    </message>
    <message>
        <source>&amp;Cut entities</source>
        <translation>Cor&amp;tar entidades</translation>
    </message>
    <message>
        <source>&amp;Draw surpassing entities</source>
        <translation>&amp;Dibujar entidades excedentes</translation>
    </message>
    <message>
        <source>Tolerance for curves</source>
        <translation>Tolerancia para curvas</translation>
    </message>
    <message>
        <source>Previews the result in the drawing</source>
        <translation>Muestra el resultado en el dibujo</translation>
    </message>
    <message>
        <source>&amp;Preview</source>
        <translation>&amp;Vista previa</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>Aceptar</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Ayuda</translation>
    </message>
    <message>
        <source>A drawing of this version has neither images nor masks.</source>
        <translation>Un dibujo de esta versión no tiene ni imágenes ni máscaras.</translation>
    </message>
    <message>
        <source>At the boundary copies of references are left out: they cannot be cut.</source>
        <translation>En el contorno se omiten copias de referencias: no se pueden cortar.</translation>
    </message>
    <message>
        <source>At the boundary copies with anything but lines, arcs and polylines are left out.</source>
        <translation>En el contorno se omiten las copias que tengan algo más que líneas, arcos y polilíneas.</translation>
    </message>
    <message>
        <source>Copies of references are clipped at the boundary, not cut.</source>
        <translation>Las copias de referencias se delimitan en el contorno, no se cortan.</translation>
    </message>
    <message>
        <source>Copies with texts, images or tilted entities are clipped, not cut.</source>
        <translation>Las copias con textos, imágenes o entidades inclinadas se delimitan, no se cortan.</translation>
    </message>
    <message>
        <source>Select image for pattern</source>
        <translation>Seleccionar imagen para el patrón</translation>
    </message>
    <message>
        <source>Specify Pattern </source>
        <translation>Precisar patrón </translation>
    </message>
    <message>
        <source>Scale must be higher than zero. </source>
        <translation>La escala debe ser mayor que cero. </translation>
    </message>
    <message>
        <source>The tolerance value is less than minimum. The value is reset to minimum (0.01). </source>
        <translation>La tolerancia es inferior al mínimo. Se restablece el valor mínimo (0.01). </translation>
    </message>
    <message>
        <source>All supported Image file (*.bmp *.gif *.jpg *.jpeg *.png *.tif *.tiff *.ecw);;</source>
        <translation>Todas las imágenes admitidas (*.bmp *.gif *.jpg *.jpeg *.png *.tif *.tiff *.ecw);;</translation>
    </message>
    <message>
        <source>Windows Bitmap (*.bmp);;</source>
        <translation>Windows Bitmap (*.bmp);;</translation>
    </message>
    <message>
        <source>Graphics Interchange Format (*.gif);;</source>
        <translation>Graphics Interchange Format (*.gif);;</translation>
    </message>
    <message>
        <source>JPEG File Interchange Format (*.jpg *.jpeg);;</source>
        <translation>JPEG File Interchange Format (*.jpg *.jpeg);;</translation>
    </message>
    <message>
        <source>Portable Netkword Graphics (*.png);;</source>
        <translation>Portable Network Graphics (*.png);;</translation>
    </message>
    <message>
        <source>Tagged Image File Format (*.tif *.tiff);;</source>
        <translation>Tagged Image File Format (*.tif *.tiff);;</translation>
    </message>
    <message>
        <source>Enhanced Compression Wavelet (*.ecw)</source>
        <translation>Enhanced Compression Wavelet (*.ecw)</translation>
    </message>
</context>
<context>
    <name>DLG_QT_SelectBlock</name>
    <message>
        <source>Select Block</source>
        <translation>Seleccionar bloque</translation>
    </message>
    <message>
        <source>Blocks of</source>
        <translation>Bloques de</translation>
    </message>
    <message>
        <source>&amp;Active drawing</source>
        <translation>Dibujo &amp;activo</translation>
    </message>
    <message>
        <source>&amp;Drawing file:</source>
        <translation>Archivo de &amp;dibujo:</translation>
    </message>
    <message>
        <source>Drawing file that has the block</source>
        <translation>Archivo de dibujo que contiene el bloque</translation>
    </message>
    <message>
        <source>Browse the disk for the drawing that has the block</source>
        <translation>Buscar en el disco el dibujo que contiene el bloque</translation>
    </message>
    <message>
        <source>&amp;Browse...</source>
        <translation>E&amp;xaminar...</translation>
    </message>
    <message>
        <source>&amp;Filter by:</source>
        <translation>&amp;Filtrar por:</translation>
    </message>
    <message>
        <source>Regular expression; blocks whose name contains it are listed</source>
        <translation>Expresión regular; se listan los bloques cuyo nombre la contiene</translation>
    </message>
    <message>
        <source>List the blocks that programs have made without a name of their own, such as *U12</source>
        <translation>Listar los bloques que los programas han creado sin nombre propio, como *U12</translation>
    </message>
    <message>
        <source>&amp;Show anonymous blocks</source>
        <translation>&amp;Mostrar bloques anónimos</translation>
    </message>
    <message>
        <source>Preview</source>
        <translation>Vista previa</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>Aceptar</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Ayuda</translation>
    </message>
    <message>
        <source>Name;Type</source>
        <translation>Nombre;Tipo</translation>
    </message>
    <message>
        <source>External reference</source>
        <translation>Referencia externa</translation>
    </message>
    <message>
        <source>Drawing files (*.dwg *.dxf)</source>
        <translation>Archivos de dibujo (*.dwg *.dxf)</translation>
    </message>
    <message>
        <source>Block</source>
        <translation>Bloque</translation>
    </message>
    <message>
        <source>Anonymous block</source>
        <translation>Bloque anónimo</translation>
    </message>
    <message>
        <source>Cannot find the specified file.</source>
        <translation>No se encuentra el archivo especificado.</translation>
    </message>
    <message>
        <source>The drawing file cannot be read.</source>
        <translation>No se puede leer el archivo de dibujo.</translation>
    </message>
    <message>
        <source>Blocks: %1</source>
        <translation>Bloques: %1</translation>
    </message>
    <message>
        <source>Blocks: %1 of %2</source>
        <translation>Bloques: %1 de %2</translation>
    </message>
    <message>
        <source>The drawing has no blocks.</source>
        <translation>El dibujo no tiene bloques.</translation>
    </message>
    <message>
        <source>You must first select a block.</source>
        <translation>Primero debe seleccionar un bloque.</translation>
    </message>
    <message>
        <source>The name of the block holds characters that no program can take. Rename it first.</source>
        <translation>El nombre del bloque contiene caracteres que ningún programa acepta. Cámbielo antes.</translation>
    </message>
    <message>
        <source>The block &quot;%1&quot; is an external reference of the other drawing. Attach its drawing instead.</source>
        <translation>El bloque &quot;%1&quot; es una referencia externa del otro dibujo. Enlace su dibujo en su lugar.</translation>
    </message>
    <message>
        <source>The block &quot;%1&quot; is anonymous: it cannot be brought in from another drawing.</source>
        <translation>El bloque &quot;%1&quot; es anónimo: no se puede traer de otro dibujo.</translation>
    </message>
    <message>
        <source>The drawing file does not have the block &quot;%1&quot; any more.</source>
        <translation>El archivo de dibujo ya no tiene el bloque &quot;%1&quot;.</translation>
    </message>
</context>
<context>
    <name>Dlg_QT_Breakline</name>
    <message>
        <source>Breakline</source>
        <translation>Línea de rotura</translation>
    </message>
    <message>
        <source>Specify a drawing for breakline</source>
        <translation>Precisar un dibujo para la línea de rotura</translation>
    </message>
    <message>
        <source>&amp;Browse...</source>
        <translation>E&amp;xaminar...</translation>
    </message>
    <message>
        <source>Preview</source>
        <translation>Vista previa</translation>
    </message>
    <message>
        <source>Sizes</source>
        <translation>Tamaños</translation>
    </message>
    <message>
        <source>Si&amp;ze:</source>
        <translation>&amp;Tamaño:</translation>
    </message>
    <message>
        <source>O&amp;ffset:</source>
        <translation>&amp;Desfase:</translation>
    </message>
    <message>
        <source>New symbol</source>
        <translation>Símbolo nuevo</translation>
    </message>
    <message>
        <source>&amp;Name:</source>
        <translation>&amp;Nombre:</translation>
    </message>
    <message>
        <source>Specify entities to use as breakline</source>
        <translation>Designar entidades como línea de rotura</translation>
    </message>
    <message>
        <source>&amp;Specify entity to use as breakline</source>
        <translation>De&amp;signar entidad como línea de rotura</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>Aceptar</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Ayuda</translation>
    </message>
    <message>
        <source>Drawing files (*.dwg *.dxf)</source>
        <translation>Archivos de dibujo (*.dwg *.dxf)</translation>
    </message>
    <message>
        <source>Cannot find the specified drawing file.</source>
        <translation>No se encuentra el archivo de dibujo especificado.</translation>
    </message>
</context>
<context>
    <name>Dlg_QT_DrawOderColor</name>
    <message>
        <source>Draw Order by Color</source>
        <translation>Orden de dibujo por color</translation>
    </message>
    <message>
        <source>Back: drawn first</source>
        <translation>Detrás: se dibuja primero</translation>
    </message>
    <message>
        <source>Front: drawn last, over all others</source>
        <translation>Delante: se dibuja al final, sobre los demás</translation>
    </message>
    <message>
        <source>Draw the selected colors before all others (Alt+Home)</source>
        <translation>Dibujar los colores seleccionados antes que los demás (Alt+Inicio)</translation>
    </message>
    <message>
        <source>To &amp;back</source>
        <translation>De&amp;trás</translation>
    </message>
    <message>
        <source>Move the selected rows up by one place (Alt+Up)</source>
        <translation>Subir las filas seleccionadas una posición (Alt+Arriba)</translation>
    </message>
    <message>
        <source>Move &amp;up</source>
        <translation>S&amp;ubir</translation>
    </message>
    <message>
        <source>Move the selected rows down by one place (Alt+Down)</source>
        <translation>Bajar las filas seleccionadas una posición (Alt+Abajo)</translation>
    </message>
    <message>
        <source>Move &amp;down</source>
        <translation>&amp;Bajar</translation>
    </message>
    <message>
        <source>Draw the selected colors after all others (Alt+End)</source>
        <translation>Dibujar los colores seleccionados después que los demás (Alt+Fin)</translation>
    </message>
    <message>
        <source>To &amp;front</source>
        <translation>&amp;Delante</translation>
    </message>
    <message>
        <source>Turn the order around</source>
        <translation>Invertir el orden</translation>
    </message>
    <message>
        <source>R&amp;everse</source>
        <translation>&amp;Invertir</translation>
    </message>
    <message>
        <source>Order the colors by their numbers</source>
        <translation>Ordenar los colores por su número</translation>
    </message>
    <message>
        <source>&amp;Sort by number</source>
        <translation>&amp;Ordenar por número</translation>
    </message>
    <message>
        <source>Take the selected colors off the list (Del)</source>
        <translation>Quitar de la lista los colores seleccionados (Supr)</translation>
    </message>
    <message>
        <source>&amp;Remove</source>
        <translation>&amp;Quitar</translation>
    </message>
    <message>
        <source>&amp;Color:</source>
        <translation>&amp;Color:</translation>
    </message>
    <message>
        <source>Add this color at the front</source>
        <translation>Añadir este color delante</translation>
    </message>
    <message>
        <source>&amp;Add</source>
        <translation>&amp;Añadir</translation>
    </message>
    <message>
        <source>Favorites</source>
        <translation>Favoritos</translation>
    </message>
    <message>
        <source>&amp;Name:</source>
        <translation>&amp;Nombre:</translation>
    </message>
    <message>
        <source>Save favorite</source>
        <translation>Guardar favorito</translation>
    </message>
    <message>
        <source>Remove favorite</source>
        <translation>Eliminar favorito</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>Aceptar</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Ayuda</translation>
    </message>
    <message>
        <source>%1 (no color)</source>
        <translation>%1 (no es un color)</translation>
    </message>
    <message>
        <source>Color</source>
        <translation>Color</translation>
    </message>
</context>
<context>
    <name>Dlg_QT_EditAlias</name>
    <message>
        <source>Edit Alias</source>
        <translation>Editar alias</translation>
    </message>
    <message>
        <source>Current alias:</source>
        <translation>Alias actuales:</translation>
    </message>
    <message>
        <source>Create new alias</source>
        <translation>Crear alias nuevo</translation>
    </message>
    <message>
        <source>Remove alias</source>
        <translation>Eliminar alias</translation>
    </message>
    <message>
        <source>Clean alias list</source>
        <translation>Vaciar la lista de alias</translation>
    </message>
    <message>
        <source>Save alias</source>
        <translation>Guardar alias</translation>
    </message>
    <message>
        <source>Import alias from file</source>
        <translation>Importar alias de un archivo</translation>
    </message>
    <message>
        <source>Export alias to file</source>
        <translation>Exportar alias a un archivo</translation>
    </message>
    <message>
        <source>Print alias</source>
        <translation>Imprimir alias</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>Aceptar</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Ayuda</translation>
    </message>
    <message>
        <source>Command;Alias</source>
        <translation>Comando;Alias</translation>
    </message>
    <message>
        <source>The alias file could not be read whole (%1). Keep it as it is under another name, and write what the table holds in its place?</source>
        <translation>El archivo de alias no se ha podido leer entero (%1). ¿Conservarlo tal como está con otro nombre y escribir en su lugar el contenido de la tabla?</translation>
    </message>
    <message>
        <source>What %1 held before is in %2.</source>
        <translation>Lo que %1 contenía antes está en %2.</translation>
    </message>
    <message>
        <source>Select the rows of table for remove.</source>
        <translation>Seleccione las filas de la tabla que quiera eliminar.</translation>
    </message>
    <message>
        <source>Are you sure you want to remove this alias for %1?</source>
        <translation>¿Seguro que quiere eliminar este alias de %1?</translation>
    </message>
    <message>
        <source>Are you sure you want to delete all alias?</source>
        <translation>¿Seguro que quiere borrar todos los alias?</translation>
    </message>
    <message>
        <source>The alias file has been saved.</source>
        <translation>El archivo de alias se ha guardado.</translation>
    </message>
    <message>
        <source>The alias file could not be saved.</source>
        <translation>No se ha podido guardar el archivo de alias.</translation>
    </message>
    <message>
        <source>Save As</source>
        <translation>Guardar como</translation>
    </message>
    <message>
        <source>Alias files (*.xml);; All files (*.*)</source>
        <translation>Archivos de alias (*.xml);; Todos los archivos (*.*)</translation>
    </message>
    <message>
        <source>The alias file has been exported.</source>
        <translation>El archivo de alias se ha exportado.</translation>
    </message>
    <message>
        <source>The alias file could not be exported.</source>
        <translation>No se ha podido exportar el archivo de alias.</translation>
    </message>
    <message>
        <source>Select the file to import</source>
        <translation>Seleccione el archivo que se va a importar</translation>
    </message>
    <message>
        <source>Alias files (*.txt);; All files (*.*)</source>
        <translation>Archivos de alias (*.txt);; Todos los archivos (*.*)</translation>
    </message>
    <message>
        <source>The alias file could not be imported.</source>
        <translation>No se ha podido importar el archivo de alias.</translation>
    </message>
    <message>
        <source>This alias already begin used for other command.</source>
        <translation>Este alias ya se usa para otro comando.</translation>
    </message>
    <message>
        <source>Sorting...</source>
        <translation>Ordenando...</translation>
    </message>
</context>
<context>
    <name>Dlg_QT_EditTextCase</name>
    <message>
        <source>EditTextCase</source>
        <translation>EditTextCase</translation>
    </message>
    <message>
        <source>Text:</source>
        <translation>Texto:</translation>
    </message>
    <message>
        <source>This is a sample text for kora</source>
        <translation>Este es un texto de muestra para kora</translation>
    </message>
    <message>
        <source>Style</source>
        <translation>Estilo</translation>
    </message>
    <message>
        <source>&amp;Sentence case</source>
        <translation>Tipo &amp;oración</translation>
    </message>
    <message>
        <source>&amp;Lowercase</source>
        <translation>&amp;Minúsculas</translation>
    </message>
    <message>
        <source>&amp;Uppercase</source>
        <translation>M&amp;ayúsculas</translation>
    </message>
    <message>
        <source>&amp;Title</source>
        <translation>&amp;Título</translation>
    </message>
    <message>
        <source>T&amp;oggle case</source>
        <translation>&amp;Invertir may./min.</translation>
    </message>
    <message>
        <source>Preview</source>
        <translation>Vista previa</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>Aceptar</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Ayuda</translation>
    </message>
    <message>
        <source>Sentence</source>
        <translation>Oración</translation>
    </message>
    <message>
        <source>Lower</source>
        <translation>Minúsculas</translation>
    </message>
    <message>
        <source>Upper</source>
        <translation>Mayúsculas</translation>
    </message>
    <message>
        <source>Title</source>
        <translation>Título</translation>
    </message>
    <message>
        <source>toGgle</source>
        <translation>iNvertir</translation>
    </message>
</context>
<context>
    <name>Dlg_QT_ExchangedDimensionStyle</name>
    <message>
        <source>Export Dimension Style</source>
        <translation>Exportar estilo de cota</translation>
    </message>
    <message>
        <source>Available DimensionStyles</source>
        <translation>Estilos de cota disponibles</translation>
    </message>
    <message>
        <source>Style Variables</source>
        <translation>Variables del estilo</translation>
    </message>
    <message>
        <source>Options</source>
        <translation>Opciones</translation>
    </message>
    <message>
        <source>&amp;TextStyle name only</source>
        <translation>Solo nombre de estilo de &amp;texto</translation>
    </message>
    <message>
        <source>&amp;Full TextStyle information</source>
        <translation>In&amp;formación completa de estilo de texto</translation>
    </message>
    <message>
        <source>&amp;Export...</source>
        <translation>&amp;Exportar...</translation>
    </message>
    <message>
        <source>Export to file</source>
        <translation>Exportar a archivo</translation>
    </message>
    <message>
        <source>Select Dimension Style file</source>
        <translation>Seleccionar archivo de estilos de cota</translation>
    </message>
    <message>
        <source>DimStyle files (*.dim)</source>
        <translation>Archivos de estilos de cota (*.dim)</translation>
    </message>
    <message>
        <source>No dimension style selected, please select a dimension style to export. </source>
        <translation>No se ha seleccionado ningún estilo de cota. Seleccione uno para exportar. </translation>
    </message>
    <message>
        <source>Exchange Dimension Style</source>
        <translation>Intercambiar estilo de cota</translation>
    </message>
    <message>
        <source>%1 already exists. Do you want to replace it?</source>
        <translation>%1 ya existe. ¿Desea reemplazarlo?</translation>
    </message>
</context>
<context>
    <name>Dlg_QT_ExportInfo</name>
    <message>
        <source>Export Settings</source>
        <translation>Exportar parámetros</translation>
    </message>
    <message>
        <source>User information</source>
        <translation>Información del usuario</translation>
    </message>
    <message>
        <source>&amp;Name:</source>
        <translation>&amp;Nombre:</translation>
    </message>
    <message>
        <source>&amp;E-mail address: </source>
        <translation>Correo &amp;electrónico: </translation>
    </message>
    <message>
        <source>&amp;Phone number: </source>
        <translation>&amp;Teléfono: </translation>
    </message>
    <message>
        <source>&amp;Issue description: </source>
        <translation>&amp;Descripción del problema: </translation>
    </message>
    <message>
        <source>Steps to Reproduce the Issue</source>
        <translation>Pasos para reproducir el problema</translation>
    </message>
    <message>
        <source>System information</source>
        <translation>Información del sistema</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>Aceptar</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Ayuda</translation>
    </message>
    <message>
        <source>Export information</source>
        <translation>Exportar información</translation>
    </message>
    <message>
        <source>Text files (*.txt)</source>
        <translation>Archivos de texto (*.txt)</translation>
    </message>
</context>
<context>
    <name>Dlg_QT_ExportSettings</name>
    <message>
        <source>Export Settings</source>
        <translation>Exportar parámetros</translation>
    </message>
    <message>
        <source>&amp;Variable type:</source>
        <translation>Tipo de &amp;variable:</translation>
    </message>
    <message>
        <source>Select a system variable</source>
        <translation>Seleccione una variable de sistema</translation>
    </message>
    <message>
        <source>Save modified settings</source>
        <translation>Guardar parámetros modificados</translation>
    </message>
    <message>
        <source>&amp;Export to script...</source>
        <translation>&amp;Exportar a script...</translation>
    </message>
    <message>
        <source>All,Read only,Dangerous,Standard</source>
        <translation>Todas,Solo lectura,Peligrosas,Estándar</translation>
    </message>
    <message>
        <source>VariableToScript</source>
        <translation>VariableToScript</translation>
    </message>
    <message>
        <source>ExportVariables</source>
        <translation>ExportVariables</translation>
    </message>
    <message>
        <source>Append to script...</source>
        <translation>Añadir a script...</translation>
    </message>
    <message>
        <source>Export to script...</source>
        <translation>Exportar a script...</translation>
    </message>
    <message>
        <source>Append settings to an existing file</source>
        <translation>Añadir parámetros a un archivo existente</translation>
    </message>
    <message>
        <source>Save script file</source>
        <translation>Guardar archivo de script</translation>
    </message>
    <message>
        <source>Append to script file</source>
        <translation>Añadir a archivo de script</translation>
    </message>
    <message>
        <source>Script files (*.scr)</source>
        <translation>Archivos de script (*.scr)</translation>
    </message>
</context>
<context>
    <name>Dlg_QT_GetBlockInfo</name>
    <message>
        <source>Get Block Info</source>
        <translation>Información de bloques</translation>
    </message>
    <message>
        <source>Creates a table in the drawing with the block information</source>
        <translation>Crea en el dibujo una tabla con la información de los bloques</translation>
    </message>
    <message>
        <source>Export list to a table in &amp;drawing</source>
        <translation>Exportar lista a una tabla del &amp;dibujo</translation>
    </message>
    <message>
        <source>Saves the list to a text file</source>
        <translation>Guarda la lista en un archivo de texto</translation>
    </message>
    <message>
        <source>Export list to a &amp;file</source>
        <translation>Exportar lista a un &amp;archivo</translation>
    </message>
    <message>
        <source>Block Information</source>
        <translation>Información de bloques</translation>
    </message>
    <message>
        <source>&amp;Include nested blocks</source>
        <translation>&amp;Incluir bloques anidados</translation>
    </message>
    <message>
        <source>Name;Instances</source>
        <translation>Nombre;Apariciones</translation>
    </message>
    <message>
        <source>Resulting file</source>
        <translation>Archivo resultante</translation>
    </message>
    <message>
        <source>Text files (*.txt)</source>
        <translation>Archivos de texto (*.txt)</translation>
    </message>
</context>
<context>
    <name>Dlg_QT_ImportBlockAttributes</name>
    <message>
        <source>Import Block Attributes</source>
        <translation>Importar atributos de bloque</translation>
    </message>
    <message>
        <source>File</source>
        <translation>Archivo</translation>
    </message>
    <message>
        <source>Opens an attribute text file</source>
        <translation>Abre un archivo de texto de atributos</translation>
    </message>
    <message>
        <source>&amp;Browse...</source>
        <translation>E&amp;xaminar...</translation>
    </message>
    <message>
        <source>Find and replace</source>
        <translation>Buscar y reemplazar</translation>
    </message>
    <message>
        <source>&amp;Find what:</source>
        <translation>&amp;Buscar:</translation>
    </message>
    <message>
        <source>R&amp;eplace with:</source>
        <translation>R&amp;eemplazar por:</translation>
    </message>
    <message>
        <source>Replace coincidences with specified string</source>
        <translation>Reemplazar las coincidencias por la cadena indicada</translation>
    </message>
    <message>
        <source>&amp;Replace</source>
        <translation>&amp;Reemplazar</translation>
    </message>
    <message>
        <source>&amp;Select all</source>
        <translation>Seleccionar &amp;todo</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>Aceptar</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Ayuda</translation>
    </message>
    <message>
        <source>Select the file to import</source>
        <translation>Seleccione el archivo que se va a importar</translation>
    </message>
    <message>
        <source>Attributes files (*.txt)</source>
        <translation>Archivos de atributos (*.txt)</translation>
    </message>
    <message>
        <source>The table is too large.</source>
        <translation>La tabla es demasiado grande.</translation>
    </message>
    <message>
        <source>Reading the attributes...</source>
        <translation>Leyendo los atributos...</translation>
    </message>
    <message>
        <source>Select items of table for search.</source>
        <translation>Seleccione elementos de la tabla para buscar.</translation>
    </message>
    <message>
        <source>Select the rows of table for import.</source>
        <translation>Seleccione las filas de la tabla que quiera importar.</translation>
    </message>
    <message>
        <source>Collecting the rows...</source>
        <translation>Recopilando las filas...</translation>
    </message>
    <message>
        <source>Sorting...</source>
        <translation>Ordenando...</translation>
    </message>
</context>
<context>
    <name>Dlg_QT_ImportDimensionStyle</name>
    <message>
        <source>Import Dimension Style</source>
        <translation>Importar estilo de cota</translation>
    </message>
    <message>
        <source>&amp;File to import:</source>
        <translation>&amp;Archivo que se importa:</translation>
    </message>
    <message>
        <source>&amp;Browse...</source>
        <translation>E&amp;xaminar...</translation>
    </message>
    <message>
        <source>Browse for location of exported file</source>
        <translation>Buscar la ubicación del archivo exportado</translation>
    </message>
    <message>
        <source>Available Dimension Styles</source>
        <translation>Estilos de cota disponibles</translation>
    </message>
    <message>
        <source>Style variables</source>
        <translation>Variables del estilo</translation>
    </message>
    <message>
        <source>Options</source>
        <translation>Opciones</translation>
    </message>
    <message>
        <source>Overwrite existing TextStyle</source>
        <translation>Sobrescribir estilo de texto existente</translation>
    </message>
    <message>
        <source>Overwrite existing DimensionStyle</source>
        <translation>Sobrescribir estilo de cota existente</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>Aceptar</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Ayuda</translation>
    </message>
    <message>
        <source>Select Dimension Style file</source>
        <translation>Seleccionar archivo de estilos de cota</translation>
    </message>
    <message>
        <source>DimStyle files (*.dim)</source>
        <translation>Archivos de estilos de cota (*.dim)</translation>
    </message>
    <message>
        <source>No dimension style selected, please select a dimension style to import. </source>
        <translation>No se ha seleccionado ningún estilo de cota. Seleccione uno para importar. </translation>
    </message>
</context>
<context>
    <name>Dlg_QT_LispExplorer</name>
    <message>
        <source>Lisp Explorer</source>
        <translation>Explorador de Lisp</translation>
    </message>
    <message>
        <source>Location</source>
        <translation>Ubicación</translation>
    </message>
    <message>
        <source>&amp;Library</source>
        <translation>&amp;Biblioteca</translation>
    </message>
    <message>
        <source>L&amp;oaded</source>
        <translation>&amp;Cargadas</translation>
    </message>
    <message>
        <source>&amp;Folder:</source>
        <translation>Car&amp;peta:</translation>
    </message>
    <message>
        <source>Browse a folder containing lisp files</source>
        <translation>Buscar una carpeta que contenga archivos Lisp</translation>
    </message>
    <message>
        <source>&amp;Browse...</source>
        <translation>E&amp;xaminar...</translation>
    </message>
    <message>
        <source>Files:</source>
        <translation>Archivos:</translation>
    </message>
    <message>
        <source>Functions:</source>
        <translation>Funciones:</translation>
    </message>
    <message>
        <source>Loads this function</source>
        <translation>Carga esta función</translation>
    </message>
    <message>
        <source>Lo&amp;ad</source>
        <translation>Car&amp;gar</translation>
    </message>
    <message>
        <source>&amp;Display as:</source>
        <translation>&amp;Mostrar como:</translation>
    </message>
    <message>
        <source>Filter the function content</source>
        <translation>Filtrar el contenido de la función</translation>
    </message>
    <message>
        <source>&amp;Search:</source>
        <translation>B&amp;uscar:</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>Buscar</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>Tipo</translation>
    </message>
    <message>
        <source>&amp;Commands</source>
        <translation>C&amp;omandos</translation>
    </message>
    <message>
        <source>&amp;Functions</source>
        <translation>&amp;Funciones</translation>
    </message>
    <message>
        <source>&amp;Variables</source>
        <translation>&amp;Variables</translation>
    </message>
    <message>
        <source>Saves commands, functions and variables in a text file.</source>
        <translation>Guarda comandos, funciones y variables en un archivo de texto.</translation>
    </message>
    <message>
        <source>Export...</source>
        <translation>Exportar...</translation>
    </message>
    <message>
        <source>; %1 more lines</source>
        <translation>; %1 líneas más</translation>
    </message>
    <message>
        <source>Header Only;Function Only;Both</source>
        <translation>Solo cabecera;Solo función;Ambas</translation>
    </message>
    <message>
        <source>Specify a folder for lisp files</source>
        <translation>Precisar una carpeta para archivos Lisp</translation>
    </message>
    <message>
        <source>Specify Folder</source>
        <translation>Precisar carpeta</translation>
    </message>
    <message>
        <source>Error</source>
        <translation>Error</translation>
    </message>
    <message>
        <source>No matches found for</source>
        <translation>Ninguna coincidencia con</translation>
    </message>
    <message>
        <source>The file has been loaded.</source>
        <translation>El archivo se ha cargado.</translation>
    </message>
    <message>
        <source>LispExplorer</source>
        <translation>LispExplorer</translation>
    </message>
    <message>
        <source>Error loading database</source>
        <translation>Error al cargar la base de datos</translation>
    </message>
    <message>
        <source>Name;Data type;Value</source>
        <translation>Nombre;Tipo de datos;Valor</translation>
    </message>
    <message>
        <source>Name;Data type;Type</source>
        <translation>Nombre;Tipo de datos;Tipo</translation>
    </message>
    <message>
        <source>Sorting...</source>
        <translation>Ordenando...</translation>
    </message>
    <message>
        <source>Save dump file</source>
        <translation>Guardar archivo de volcado</translation>
    </message>
    <message>
        <source>Dump files (*.dmp)</source>
        <translation>Archivos de volcado (*.dmp)</translation>
    </message>
</context>
<context>
    <name>Dlg_QT_MakeLineStyle</name>
    <message>
        <source>Make LineStyle</source>
        <translation>Crear tipo de línea</translation>
    </message>
    <message>
        <source>File</source>
        <translation>Archivo</translation>
    </message>
    <message>
        <source>Select the .LIN file where the new line style will be included</source>
        <translation>Seleccione el archivo .LIN en el que se incluirá el nuevo tipo de línea</translation>
    </message>
    <message>
        <source>&amp;Browse...</source>
        <translation>E&amp;xaminar...</translation>
    </message>
    <message>
        <source>Definition</source>
        <translation>Definición</translation>
    </message>
    <message>
        <source>&amp;Name:</source>
        <translation>&amp;Nombre:</translation>
    </message>
    <message>
        <source>&amp;Description:</source>
        <translation>&amp;Descripción:</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>Aceptar</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Ayuda</translation>
    </message>
    <message>
        <source>Name;Description</source>
        <translation>Nombre;Descripción</translation>
    </message>
    <message>
        <source>Specify Linestyle file</source>
        <translation>Precisar archivo de tipos de línea</translation>
    </message>
    <message>
        <source>Linestyle files (*.lin)</source>
        <translation>Archivos de tipos de línea (*.lin)</translation>
    </message>
    <message>
        <source>The format of the file is not valid. </source>
        <translation>El formato del archivo no es válido. </translation>
    </message>
    <message>
        <source>Invalid file format</source>
        <translation>Formato de archivo no válido</translation>
    </message>
    <message>
        <source>Make Linestyle</source>
        <translation>Crear tipo de línea</translation>
    </message>
    <message>
        <source>You must select a file. </source>
        <translation>Debe seleccionar un archivo. </translation>
    </message>
    <message>
        <source>You must provide a name for the Linestyle. </source>
        <translation>Debe indicar un nombre para el tipo de línea. </translation>
    </message>
    <message>
        <source>Linestyle names cannot include blank spaces.</source>
        <translation>Los nombres de tipos de línea no pueden contener espacios en blanco.</translation>
    </message>
    <message>
        <source>Linestyle already exists, you want to replace it?</source>
        <translation>El tipo de línea ya existe. ¿Desea reemplazarlo?</translation>
    </message>
</context>
<context>
    <name>Dlg_QT_MakeShape</name>
    <message>
        <source>Make shape</source>
        <translation>Crear forma</translation>
    </message>
    <message>
        <source>File</source>
        <translation>Archivo</translation>
    </message>
    <message>
        <source>Select the .SHP file where the new shape will be included</source>
        <translation>Seleccione el archivo .SHP en el que se incluirá la nueva forma</translation>
    </message>
    <message>
        <source>&amp;Browse...</source>
        <translation>E&amp;xaminar...</translation>
    </message>
    <message>
        <source>Definition</source>
        <translation>Definición</translation>
    </message>
    <message>
        <source>&amp;Name:</source>
        <translation>&amp;Nombre:</translation>
    </message>
    <message>
        <source>shapeName</source>
        <translation>nombreForma</translation>
    </message>
    <message>
        <source>&amp;Resolution value:</source>
        <translation>Valor de &amp;resolución:</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>Aceptar</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Ayuda</translation>
    </message>
    <message>
        <source>Number;Name</source>
        <translation>Número;Nombre</translation>
    </message>
    <message>
        <source>Select shape file</source>
        <translation>Seleccionar archivo de formas</translation>
    </message>
    <message>
        <source>Shape files (*.shp);; All files (*.*)</source>
        <translation>Archivos de formas (*.shp);; Todos los archivos (*.*)</translation>
    </message>
    <message>
        <source>Make Shape</source>
        <translation>Crear forma</translation>
    </message>
    <message>
        <source>You must select a file. </source>
        <translation>Debe seleccionar un archivo. </translation>
    </message>
    <message>
        <source>You must provide a name for the shape. </source>
        <translation>Debe indicar un nombre para la forma. </translation>
    </message>
    <message>
        <source>Shape names cannot include blank spaces.</source>
        <translation>Los nombres de formas no pueden contener espacios en blanco.</translation>
    </message>
    <message>
        <source>Shape already exists, you want to replace it?</source>
        <translation>La forma ya existe. ¿Desea reemplazarla?</translation>
    </message>
</context>
<context>
    <name>Dlg_QT_MergeSheets</name>
    <message>
        <source>Merge Sheets</source>
        <translation>Combinar planos</translation>
    </message>
    <message>
        <source>Sheets to merge</source>
        <translation>Planos que se combinan</translation>
    </message>
    <message>
        <source>Move the selected rows to the top (Alt+Home)</source>
        <translation>Mover las filas seleccionadas al principio (Alt+Inicio)</translation>
    </message>
    <message>
        <source>To &amp;top</source>
        <translation>Al &amp;principio</translation>
    </message>
    <message>
        <source>Move the selected rows up by one place (Alt+Up)</source>
        <translation>Subir las filas seleccionadas una posición (Alt+Arriba)</translation>
    </message>
    <message>
        <source>Move &amp;up</source>
        <translation>S&amp;ubir</translation>
    </message>
    <message>
        <source>Move the selected rows down by one place (Alt+Down)</source>
        <translation>Bajar las filas seleccionadas una posición (Alt+Abajo)</translation>
    </message>
    <message>
        <source>Move &amp;down</source>
        <translation>&amp;Bajar</translation>
    </message>
    <message>
        <source>Move the selected rows to the bottom (Alt+End)</source>
        <translation>Mover las filas seleccionadas al final (Alt+Fin)</translation>
    </message>
    <message>
        <source>To &amp;bottom</source>
        <translation>Al &amp;final</translation>
    </message>
    <message>
        <source>Select &amp;all</source>
        <translation>Seleccionar &amp;todo</translation>
    </message>
    <message>
        <source>Names in the target</source>
        <translation>Nombres en el destino</translation>
    </message>
    <message>
        <source>&amp;Prefix:</source>
        <translation>Prefi&amp;jo:</translation>
    </message>
    <message>
        <source>Stands in front of the name of each sheet</source>
        <translation>Se antepone al nombre de cada plano</translation>
    </message>
    <message>
        <source>Give sheets of the same name the names Plan, Plan (2), Plan (3)</source>
        <translation>Dar a los planos del mismo nombre los nombres Plan, Plan (2), Plan (3)</translation>
    </message>
    <message>
        <source>Nu&amp;mber equal names</source>
        <translation>Nu&amp;merar nombres iguales</translation>
    </message>
    <message>
        <source>Target</source>
        <translation>Destino</translation>
    </message>
    <message>
        <source>&amp;Current drawing</source>
        <translation>Dibujo a&amp;ctual</translation>
    </message>
    <message>
        <source>Ne&amp;w drawing:</source>
        <translation>Dibuj&amp;o nuevo:</translation>
    </message>
    <message>
        <source>Br&amp;owse...</source>
        <translation>E&amp;xaminar...</translation>
    </message>
    <message>
        <source>Favorites</source>
        <translation>Favoritos</translation>
    </message>
    <message>
        <source>&amp;Name:</source>
        <translation>&amp;Nombre:</translation>
    </message>
    <message>
        <source>Save favorite</source>
        <translation>Guardar favorito</translation>
    </message>
    <message>
        <source>Remove favorite</source>
        <translation>Eliminar favorito</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>Aceptar</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Ayuda</translation>
    </message>
    <message>
        <source>A sheet must have a name.</source>
        <translation>Un plano debe tener un nombre.</translation>
    </message>
    <message>
        <source>A name has at most 255 characters.</source>
        <translation>Un nombre tiene como máximo 255 caracteres.</translation>
    </message>
    <message>
        <source>No sheet can have the name &quot;%1&quot;.</source>
        <translation>Ningún plano puede tener el nombre &quot;%1&quot;.</translation>
    </message>
    <message>
        <source>Two sheets have the name &quot;%1&quot;.</source>
        <translation>Dos planos tienen el nombre &quot;%1&quot;.</translation>
    </message>
    <message>
        <source>Sheet;New name</source>
        <translation>Plano;Nombre nuevo</translation>
    </message>
    <message>
        <source>A name cannot have any of &lt; &gt; / \ &quot; : ; ? * | , = `</source>
        <translation>Un nombre no puede contener ninguno de &lt; &gt; / \ &quot; : ; ? * | , = `</translation>
    </message>
    <message>
        <source>%1 of %2 sheets are merged.</source>
        <translation>Se han combinado %1 de %2 planos.</translation>
    </message>
    <message>
        <source>Specify the target drawing</source>
        <translation>Precisar el dibujo de destino</translation>
    </message>
    <message>
        <source>Drawing files (*.dwg *.dxf)</source>
        <translation>Archivos de dibujo (*.dwg *.dxf)</translation>
    </message>
    <message>
        <source>Select the sheets to merge.</source>
        <translation>Seleccione los planos que se combinan.</translation>
    </message>
    <message>
        <source>The target cannot be the current drawing or one of its sheets.</source>
        <translation>El destino no puede ser el dibujo actual ni uno de sus planos.</translation>
    </message>
</context>
<context>
    <name>Dlg_QT_MultiViewSetup</name>
    <message>
        <source>Multiview Setup</source>
        <translation>Configuración de vistas múltiples</translation>
    </message>
    <message>
        <source>Work Space</source>
        <translation>Espacio de trabajo</translation>
    </message>
    <message>
        <source>&amp;Current Paper Space</source>
        <translation>Espacio &amp;papel actual</translation>
    </message>
    <message>
        <source>&amp;Model Space</source>
        <translation>Espacio &amp;modelo</translation>
    </message>
    <message>
        <source>&amp;Title Block</source>
        <translation>&amp;Cajetín</translation>
    </message>
    <message>
        <source>C&amp;reate Viewports</source>
        <translation>C&amp;rear ventanas</translation>
    </message>
    <message>
        <source>&amp;Align Viewports</source>
        <translation>&amp;Alinear ventanas</translation>
    </message>
    <message>
        <source>&amp;Scale Viewports</source>
        <translation>&amp;Escalar ventanas</translation>
    </message>
    <message>
        <source>Block</source>
        <translation>Bloque</translation>
    </message>
    <message>
        <source>&amp;Browse...</source>
        <translation>E&amp;xaminar...</translation>
    </message>
    <message>
        <source>Adds a block to list</source>
        <translation>Añade un bloque a la lista</translation>
    </message>
    <message>
        <source>X:</source>
        <translation>X:</translation>
    </message>
    <message>
        <source>Y:</source>
        <translation>Y:</translation>
    </message>
    <message>
        <source>&amp;Units:</source>
        <translation>&amp;Unidades:</translation>
    </message>
    <message>
        <source>&amp;Layer:</source>
        <translation>&amp;Capa:</translation>
    </message>
    <message>
        <source>Layer</source>
        <translation>Capa</translation>
    </message>
    <message>
        <source>&amp;Remove entities in same paper space:</source>
        <translation>&amp;Borrar entidades en el mismo espacio papel:</translation>
    </message>
    <message>
        <source>I&amp;nsert as external reference</source>
        <translation>I&amp;nsertar como referencia externa</translation>
    </message>
    <message>
        <source>L&amp;imits</source>
        <translation>Lí&amp;mites</translation>
    </message>
    <message>
        <source>&amp;Insert Title Block</source>
        <translation>&amp;Insertar cajetín</translation>
    </message>
    <message>
        <source>Inserts a tile block</source>
        <translation>Inserta un cajetín</translation>
    </message>
    <message>
        <source>Simp&amp;le</source>
        <translation>Simp&amp;le</translation>
    </message>
    <message>
        <source>A&amp;rray of Viewports</source>
        <translation>Matri&amp;z de ventanas</translation>
    </message>
    <message>
        <source>Array:</source>
        <translation>Matriz:</translation>
    </message>
    <message>
        <source>Number of &amp;rows:</source>
        <translation>Número de &amp;filas:</translation>
    </message>
    <message>
        <source>Number of &amp;columns:</source>
        <translation>Número de c&amp;olumnas:</translation>
    </message>
    <message>
        <source>&amp;Delete viewports</source>
        <translation>&amp;Borrar ventanas</translation>
    </message>
    <message>
        <source>&amp;Create viewports</source>
        <translation>C&amp;rear ventanas</translation>
    </message>
    <message>
        <source>Creates a viewport</source>
        <translation>Crea una ventana</translation>
    </message>
    <message>
        <source>Alignment format:</source>
        <translation>Forma de alineación:</translation>
    </message>
    <message>
        <source>&amp;Horizontal</source>
        <translation>&amp;Horizontal</translation>
    </message>
    <message>
        <source>&amp;Vertical</source>
        <translation>&amp;Vertical</translation>
    </message>
    <message>
        <source>&amp;Viewports alignment</source>
        <translation>Alineación de &amp;ventanas</translation>
    </message>
    <message>
        <source>Modify viewports alignment</source>
        <translation>Modificar la alineación de ventanas</translation>
    </message>
    <message>
        <source>Escalar viewports:</source>
        <translation>Escalar ventanas:</translation>
    </message>
    <message>
        <source>Scale of viewports:</source>
        <translation>Escala de las ventanas:</translation>
    </message>
    <message>
        <source>&amp;Model</source>
        <translation>&amp;Modelo</translation>
    </message>
    <message>
        <source>&amp;Paper</source>
        <translation>&amp;Papel</translation>
    </message>
    <message>
        <source>Scale viewports</source>
        <translation>Escalar ventanas</translation>
    </message>
    <message>
        <source>Viewports scaling</source>
        <translation>Escala de las ventanas</translation>
    </message>
    <message>
        <source>Units:</source>
        <translation>Unidades:</translation>
    </message>
    <message>
        <source>&amp;Scientific</source>
        <translation>Ci&amp;entíficas</translation>
    </message>
    <message>
        <source>&amp;Decimal</source>
        <translation>&amp;Decimales</translation>
    </message>
    <message>
        <source>&amp;Engineering</source>
        <translation>&amp;Ingeniería</translation>
    </message>
    <message>
        <source>&amp;Architectural</source>
        <translation>&amp;Arquitectura</translation>
    </message>
    <message>
        <source>Me&amp;tric</source>
        <translation>Mé&amp;tricas</translation>
    </message>
    <message>
        <source>Size:</source>
        <translation>Tamaño:</translation>
    </message>
    <message>
        <source>&amp;Width: </source>
        <translation>A&amp;nchura: </translation>
    </message>
    <message>
        <source>&amp;Height:</source>
        <translation>A&amp;ltura:</translation>
    </message>
    <message>
        <source>Scale:</source>
        <translation>Escala:</translation>
    </message>
    <message>
        <source>&amp;Scale Factor:</source>
        <translation>Fac&amp;tor de escala:</translation>
    </message>
    <message>
        <source>&amp;Create Title Block</source>
        <translation>C&amp;rear cajetín</translation>
    </message>
    <message>
        <source>Creates a tile block</source>
        <translation>Crea un cajetín</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Cerrar</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Ayuda</translation>
    </message>
    <message>
        <source>Blocks</source>
        <translation>Bloques</translation>
    </message>
    <message>
        <source>Scales;Factors</source>
        <translation>Escalas;Factores</translation>
    </message>
    <message>
        <source>Feet</source>
        <translation>Pies</translation>
    </message>
    <message>
        <source>Inches</source>
        <translation>Pulgadas</translation>
    </message>
    <message>
        <source>Meters</source>
        <translation>Metros</translation>
    </message>
    <message>
        <source>Milimeters</source>
        <translation>Milímetros</translation>
    </message>
    <message>
        <source>Do not remove entities</source>
        <translation>No borrar entidades</translation>
    </message>
    <message>
        <source>Remove all entities</source>
        <translation>Borrar todas las entidades</translation>
    </message>
    <message>
        <source>Specify entities for remove</source>
        <translation>Designar entidades que se borran</translation>
    </message>
    <message>
        <source>Do not remove viewports</source>
        <translation>No borrar ventanas</translation>
    </message>
    <message>
        <source>Remove all viewports</source>
        <translation>Borrar todas las ventanas</translation>
    </message>
    <message>
        <source>Specify viewports to remove</source>
        <translation>Designar ventanas que se borran</translation>
    </message>
    <message>
        <source>Specify folder</source>
        <translation>Precisar carpeta</translation>
    </message>
</context>
<context>
    <name>Dlg_QT_RedefinePaths</name>
    <message>
        <source>Redefine Paths</source>
        <translation>Redefinir rutas</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>Tipo</translation>
    </message>
    <message>
        <source>&amp;External references</source>
        <translation>Referencias e&amp;xternas</translation>
    </message>
    <message>
        <source>&amp;Images</source>
        <translation>&amp;Imágenes</translation>
    </message>
    <message>
        <source>&amp;Styles</source>
        <translation>E&amp;stilos</translation>
    </message>
    <message>
        <source>&amp;Rtext</source>
        <translation>R&amp;text</translation>
    </message>
    <message>
        <source>&amp;Filter by:</source>
        <translation>&amp;Filtrar por:</translation>
    </message>
    <message>
        <source>Select &amp;all</source>
        <translation>Seleccionar &amp;todo</translation>
    </message>
    <message>
        <source>Find and Replace</source>
        <translation>Buscar y reemplazar</translation>
    </message>
    <message>
        <source>&amp;Find what:</source>
        <translation>&amp;Buscar:</translation>
    </message>
    <message>
        <source>R&amp;eplace with:</source>
        <translation>R&amp;eemplazar por:</translation>
    </message>
    <message>
        <source>Replace coincidences with specified string</source>
        <translation>Reemplazar las coincidencias por la cadena indicada</translation>
    </message>
    <message>
        <source>&amp;Replace</source>
        <translation>&amp;Reemplazar</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>Aceptar</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Ayuda</translation>
    </message>
    <message>
        <source>Type;Name;Path</source>
        <translation>Tipo;Nombre;Ruta</translation>
    </message>
    <message>
        <source>Xref</source>
        <translation>RefX</translation>
    </message>
    <message>
        <source>Image</source>
        <translation>Imagen</translation>
    </message>
    <message>
        <source>TextStyle</source>
        <translation>Estilo de texto</translation>
    </message>
    <message>
        <source>RemoteText</source>
        <translation>Texto remoto</translation>
    </message>
    <message>
        <source>Filtering...</source>
        <translation>Filtrando...</translation>
    </message>
    <message>
        <source>Select the rows of table for search.</source>
        <translation>Seleccione las filas de la tabla en las que se busca.</translation>
    </message>
    <message>
        <source>Sorting...</source>
        <translation>Ordenando...</translation>
    </message>
</context>
<context>
    <name>Dlg_QT_RemoveFavorits</name>
    <message>
        <source>Delete favorites</source>
        <translation>Borrar favoritos</translation>
    </message>
    <message>
        <source>Delete favorite</source>
        <translation>Borrar favorito</translation>
    </message>
    <message>
        <source>&amp;Delete</source>
        <translation>&amp;Borrar</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>Aceptar</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
    <message>
        <source>Remove favorites</source>
        <translation>Eliminar favoritos</translation>
    </message>
    <message>
        <source>Select items for remove.</source>
        <translation>Seleccione los elementos que quiera eliminar.</translation>
    </message>
</context>
<context>
    <name>Dlg_QT_ReplaceBlock</name>
    <message>
        <source>Replace Block</source>
        <translation>Reemplazar bloque</translation>
    </message>
    <message>
        <source>Blocks to replace</source>
        <translation>Bloques que se reemplazan</translation>
    </message>
    <message>
        <source>Specify blocks in the drawing</source>
        <translation>Designar bloques en el dibujo</translation>
    </message>
    <message>
        <source>&amp;Specify blocks</source>
        <translation>De&amp;signar bloques</translation>
    </message>
    <message>
        <source>Preview</source>
        <translation>Vista previa</translation>
    </message>
    <message>
        <source>Replacing block</source>
        <translation>Bloque de reemplazo</translation>
    </message>
    <message>
        <source>&amp;Clean unreferenced items</source>
        <translation>&amp;Limpiar elementos no referenciados</translation>
    </message>
    <message>
        <source>&amp;Update BlockAttributes for block replacements</source>
        <translation>Act&amp;ualizar los atributos de los bloques reemplazados</translation>
    </message>
    <message>
        <source>Apply changes</source>
        <translation>Aplicar cambios</translation>
    </message>
    <message>
        <source>&amp;Apply</source>
        <translation>&amp;Aplicar</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Cerrar</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Ayuda</translation>
    </message>
    <message>
        <source>&quot;Block to be replaced&quot; and &quot;Replacing block&quot; must be different.</source>
        <translation>El &quot;bloque reemplazado&quot; y el &quot;bloque de reemplazo&quot; deben ser distintos.</translation>
    </message>
</context>
<context>
    <name>Dlg_QT_ReplaceBlockToXref</name>
    <message>
        <source>Replace Block by Reference</source>
        <translation>Reemplazar bloque por referencia</translation>
    </message>
    <message>
        <source>Blocks to replace</source>
        <translation>Bloques que se reemplazan</translation>
    </message>
    <message>
        <source>Specify blocks in the drawing</source>
        <translation>Designar bloques en el dibujo</translation>
    </message>
    <message>
        <source>&amp;Specify blocks</source>
        <translation>De&amp;signar bloques</translation>
    </message>
    <message>
        <source>Preview</source>
        <translation>Vista previa</translation>
    </message>
    <message>
        <source>Replacing reference</source>
        <translation>Referencia de reemplazo</translation>
    </message>
    <message>
        <source>Browse the disk for the reference that will be used</source>
        <translation>Buscar en el disco la referencia que se usará</translation>
    </message>
    <message>
        <source>&amp;Browse...</source>
        <translation>E&amp;xaminar...</translation>
    </message>
    <message>
        <source>&amp;Clean unreferenced items</source>
        <translation>&amp;Limpiar elementos no referenciados</translation>
    </message>
    <message>
        <source>Apply changes</source>
        <translation>Aplicar cambios</translation>
    </message>
    <message>
        <source>&amp;Apply</source>
        <translation>&amp;Aplicar</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Cerrar</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Ayuda</translation>
    </message>
    <message>
        <source>Replace blocks</source>
        <translation>Reemplazar bloques</translation>
    </message>
    <message>
        <source>You must first select the replacing reference. </source>
        <translation>Primero debe seleccionar la referencia de reemplazo. </translation>
    </message>
</context>
<context>
    <name>Dlg_QT_ShowLinks</name>
    <message>
        <source>Show Links</source>
        <translation>Mostrar vínculos</translation>
    </message>
    <message>
        <source>Find and Replace</source>
        <translation>Buscar y reemplazar</translation>
    </message>
    <message>
        <source>&amp;Find what:</source>
        <translation>&amp;Buscar:</translation>
    </message>
    <message>
        <source>R&amp;eplace with:</source>
        <translation>R&amp;eemplazar por:</translation>
    </message>
    <message>
        <source>Replace coincidences with specified string</source>
        <translation>Reemplazar las coincidencias por la cadena indicada</translation>
    </message>
    <message>
        <source>&amp;Replace</source>
        <translation>&amp;Reemplazar</translation>
    </message>
    <message>
        <source>Shows selected URL</source>
        <translation>Muestra el URL seleccionado</translation>
    </message>
    <message>
        <source>&amp;Show URL</source>
        <translation>&amp;Mostrar URL</translation>
    </message>
    <message>
        <source>Remove selected URL</source>
        <translation>Elimina el URL seleccionado</translation>
    </message>
    <message>
        <source>Remove &amp;URL</source>
        <translation>Eliminar &amp;URL</translation>
    </message>
    <message>
        <source>Show the entity of selected  URL</source>
        <translation>Muestra la entidad del URL seleccionado</translation>
    </message>
    <message>
        <source>S&amp;how Entity</source>
        <translation>Mostrar en&amp;tidad</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Cerrar</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Ayuda</translation>
    </message>
    <message>
        <source>;URL Name;Entity Type;Space</source>
        <translation>;Nombre del URL;Tipo de entidad;Espacio</translation>
    </message>
    <message>
        <source>Select one row of table for show.</source>
        <translation>Seleccione la fila de la tabla que quiera mostrar.</translation>
    </message>
    <message>
        <source>Unable to display the link.</source>
        <translation>No se puede mostrar el vínculo.</translation>
    </message>
    <message>
        <source>Open this link?</source>
        <translation>¿Abrir este vínculo?</translation>
    </message>
    <message>
        <source>It is a program, or starts one.</source>
        <translation>Es un programa, o inicia uno.</translation>
    </message>
    <message>
        <source>Warning</source>
        <translation>Advertencia</translation>
    </message>
    <message>
        <source>Select the rows of table for searching.</source>
        <translation>Seleccione las filas de la tabla en las que se busca.</translation>
    </message>
    <message>
        <source>Replace text</source>
        <translation>Reemplazar texto</translation>
    </message>
    <message>
        <source>The are no items selected.</source>
        <translation>No hay elementos seleccionados.</translation>
    </message>
    <message>
        <source>Information</source>
        <translation>Información</translation>
    </message>
    <message>
        <source>Remove urls for selected items?</source>
        <translation>¿Eliminar los URL de los elementos seleccionados?</translation>
    </message>
    <message>
        <source>Sorting...</source>
        <translation>Ordenando...</translation>
    </message>
</context>
<context>
    <name>Dlg_QT_TextFrame</name>
    <message>
        <source>Text Frame</source>
        <translation>Marco de texto</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>Tipo</translation>
    </message>
    <message>
        <source>&amp;Slot</source>
        <translation>Ran&amp;ura</translation>
    </message>
    <message>
        <source>&amp;Rectangle</source>
        <translation>&amp;Rectángulo</translation>
    </message>
    <message>
        <source>&amp;Circle</source>
        <translation>Cí&amp;rculo</translation>
    </message>
    <message>
        <source>Dimensions</source>
        <translation>Dimensiones</translation>
    </message>
    <message>
        <source>Offset</source>
        <translation>Desfase</translation>
    </message>
    <message>
        <source>C&amp;onstant</source>
        <translation>C&amp;onstante</translation>
    </message>
    <message>
        <source>&amp;Variable</source>
        <translation>&amp;Variable</translation>
    </message>
    <message>
        <source>Maintain Constant </source>
        <translation>Mantener constante </translation>
    </message>
    <message>
        <source>&amp;Width</source>
        <translation>&amp;Anchura</translation>
    </message>
    <message>
        <source>&amp;Height</source>
        <translation>A&amp;ltura</translation>
    </message>
    <message>
        <source>&amp;Both</source>
        <translation>A&amp;mbas</translation>
    </message>
    <message>
        <source>Background</source>
        <translation>Fondo</translation>
    </message>
    <message>
        <source>&amp;Transparent</source>
        <translation>&amp;Transparente</translation>
    </message>
    <message>
        <source>H&amp;atch</source>
        <translation>&amp;Sombreado</translation>
    </message>
    <message>
        <source>&amp;Color:</source>
        <translation>&amp;Color:</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>Aceptar</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Ayuda</translation>
    </message>
</context>
<context>
    <name>Dlg_QT_TextMask</name>
    <message>
        <source>Text Mask</source>
        <translation>Máscara de texto</translation>
    </message>
    <message>
        <source>Dimensions</source>
        <translation>Dimensiones</translation>
    </message>
    <message>
        <source>Offset</source>
        <translation>Desfase</translation>
    </message>
    <message>
        <source>Entity type</source>
        <translation>Tipo de entidad</translation>
    </message>
    <message>
        <source>&amp;Mask</source>
        <translation>&amp;Máscara</translation>
    </message>
    <message>
        <source>3&amp;D Face</source>
        <translation>Cara 3&amp;D</translation>
    </message>
    <message>
        <source>&amp;Solid</source>
        <translation>&amp;Sólido</translation>
    </message>
    <message>
        <source>Background</source>
        <translation>Fondo</translation>
    </message>
    <message>
        <source>&amp;Color:</source>
        <translation>&amp;Color:</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>Aceptar</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Ayuda</translation>
    </message>
    <message>
        <source>Wrong dimension value.</source>
        <translation>Valor de dimensión incorrecto.</translation>
    </message>
    <message>
        <source>Must be positive or zero.</source>
        <translation>Debe ser positivo o cero.</translation>
    </message>
</context>
<context>
    <name>Dlg_QT_TrackTime</name>
    <message>
        <source>Track Time</source>
        <translation>Control de tiempo</translation>
    </message>
    <message>
        <source>Folder</source>
        <translation>Carpeta</translation>
    </message>
    <message>
        <source>Fo&amp;lder:</source>
        <translation>&amp;Carpeta:</translation>
    </message>
    <message>
        <source>Selects the folder of the drawings</source>
        <translation>Selecciona la carpeta de los dibujos</translation>
    </message>
    <message>
        <source>&amp;Browse...</source>
        <translation>E&amp;xaminar...</translation>
    </message>
    <message>
        <source>Reads the drawings again</source>
        <translation>Vuelve a leer los dibujos</translation>
    </message>
    <message>
        <source>Re&amp;fresh</source>
        <translation>Actuali&amp;zar</translation>
    </message>
    <message>
        <source>Include s&amp;ub-folders</source>
        <translation>Incluir s&amp;ubcarpetas</translation>
    </message>
    <message>
        <source>Fa&amp;vorites:</source>
        <translation>Fa&amp;voritos:</translation>
    </message>
    <message>
        <source>Save favorite</source>
        <translation>Guardar favorito</translation>
    </message>
    <message>
        <source>&amp;Save</source>
        <translation>&amp;Guardar</translation>
    </message>
    <message>
        <source>Remove favorite</source>
        <translation>Eliminar favorito</translation>
    </message>
    <message>
        <source>Re&amp;move...</source>
        <translation>Eli&amp;minar...</translation>
    </message>
    <message>
        <source>Drawings</source>
        <translation>Dibujos</translation>
    </message>
    <message>
        <source>F&amp;ilter:</source>
        <translation>&amp;Filtro:</translation>
    </message>
    <message>
        <source>Shows only drawings with this in their name; regular expressions are allowed</source>
        <translation>Muestra solo los dibujos con este texto en el nombre; se admiten expresiones regulares</translation>
    </message>
    <message>
        <source>Writes the table to a text file</source>
        <translation>Escribe la tabla en un archivo de texto</translation>
    </message>
    <message>
        <source>&amp;Export...</source>
        <translation>&amp;Exportar...</translation>
    </message>
    <message>
        <source>Selected drawings</source>
        <translation>Dibujos seleccionados</translation>
    </message>
    <message>
        <source>Counts the time that is worked on them</source>
        <translation>Cuenta el tiempo que se trabaja en ellos</translation>
    </message>
    <message>
        <source>&amp;Track</source>
        <translation>Contar &amp;tiempo</translation>
    </message>
    <message>
        <source>Counts no more time</source>
        <translation>Deja de contar el tiempo</translation>
    </message>
    <message>
        <source>&amp;Do not track</source>
        <translation>&amp;No contar</translation>
    </message>
    <message>
        <source>Idle limit (mi&amp;n):</source>
        <translation>Límite de &amp;inactividad (min):</translation>
    </message>
    <message>
        <source>Longer pauses are not counted; with 0 every pause is</source>
        <translation>Las pausas más largas no se cuentan; con 0 se cuentan todas</translation>
    </message>
    <message>
        <source>Gives the selected drawings this idle limit</source>
        <translation>Da a los dibujos seleccionados este límite de inactividad</translation>
    </message>
    <message>
        <source>&amp;Apply</source>
        <translation>&amp;Aplicar</translation>
    </message>
    <message>
        <source>Sets the editing time to 0</source>
        <translation>Pone a 0 el tiempo de edición</translation>
    </message>
    <message>
        <source>&amp;Reset time...</source>
        <translation>&amp;Restablecer tiempo...</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>Aceptar</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Ayuda</translation>
    </message>
    <message>
        <source>Name;Track Active;EditTime (hr)</source>
        <translation>Nombre;Activo;Edición (h)</translation>
    </message>
    <message>
        <source>The changes have not been written yet. Do you want to discard them?</source>
        <translation>Los cambios aún no se han escrito. ¿Desea descartarlos?</translation>
    </message>
    <message>
        <source>Looking for drawings...</source>
        <translation>Buscando dibujos...</translation>
    </message>
    <message>
        <source>Reading the drawings...</source>
        <translation>Leyendo los dibujos...</translation>
    </message>
    <message>
        <source>Not readable</source>
        <translation>Ilegible</translation>
    </message>
    <message>
        <source>On</source>
        <translation>Sí</translation>
    </message>
    <message>
        <source>Off</source>
        <translation>No</translation>
    </message>
    <message>
        <source>, %1 min</source>
        <translation>, %1 min</translation>
    </message>
    <message>
        <source>Every pause counts.</source>
        <translation>Todas las pausas cuentan.</translation>
    </message>
    <message>
        <source>, open (bold): %1</source>
        <translation>, abiertos (negrita): %1</translation>
    </message>
    <message>
        <source>Total: %1 h. Drawings: %2%3</source>
        <translation>Total: %1 h. Dibujos: %2%3</translation>
    </message>
    <message>
        <source>Are you sure you want to set the editing time of the selected drawings to 0?</source>
        <translation>¿Seguro que quiere poner a 0 el tiempo de edición de los dibujos seleccionados?</translation>
    </message>
    <message>
        <source>Export editing time</source>
        <translation>Exportar tiempo de edición</translation>
    </message>
    <message>
        <source>Text with tabs (*.txt);; Text with semicolons (*.csv);; All files (*.*)</source>
        <translation>Texto con tabuladores (*.txt);; Texto con puntos y coma (*.csv);; Todos los archivos (*.*)</translation>
    </message>
    <message>
        <source>The file could not be written: %1</source>
        <translation>No se ha podido escribir el archivo: %1</translation>
    </message>
    <message>
        <source>Writing the drawings...</source>
        <translation>Escribiendo los dibujos...</translation>
    </message>
    <message>
        <source>and %1 more</source>
        <translation>y %1 más</translation>
    </message>
    <message>
        <source>Some drawings could not be changed.</source>
        <translation>Algunos dibujos no se han podido cambiar.</translation>
    </message>
</context>
<context>
    <name>Dlg_QT_numbertext</name>
    <message>
        <source>Number Text</source>
        <translation>Numerar texto</translation>
    </message>
    <message>
        <source>Sorting Method</source>
        <translation>Método de ordenación</translation>
    </message>
    <message>
        <source>&amp;Position X</source>
        <translation>Posición &amp;X</translation>
    </message>
    <message>
        <source>P&amp;osition Y</source>
        <translation>Posición &amp;Y</translation>
    </message>
    <message>
        <source>&amp;Select order</source>
        <translation>Orden de &amp;selección</translation>
    </message>
    <message>
        <source>&amp;Relative to one point</source>
        <translation>&amp;Relativo a un punto</translation>
    </message>
    <message>
        <source>R&amp;elative to two points</source>
        <translation>Relativo a &amp;dos puntos</translation>
    </message>
    <message>
        <source>Sorting Direction</source>
        <translation>Sentido de ordenación</translation>
    </message>
    <message>
        <source>&amp;Ascending</source>
        <translation>&amp;Ascendente</translation>
    </message>
    <message>
        <source>Descendin&amp;g</source>
        <translation>Descend&amp;ente</translation>
    </message>
    <message>
        <source>Counter</source>
        <translation>Contador</translation>
    </message>
    <message>
        <source>Initial &amp;value:</source>
        <translation>&amp;Valor inicial:</translation>
    </message>
    <message>
        <source>&amp;Increment:</source>
        <translation>&amp;Incremento:</translation>
    </message>
    <message>
        <source>&amp;Digits:</source>
        <translation>Dí&amp;gitos:</translation>
    </message>
    <message>
        <source>Text Format</source>
        <translation>Formato de texto</translation>
    </message>
    <message>
        <source>(Prefix)</source>
        <translation>(Prefijo)</translation>
    </message>
    <message>
        <source>(Suffix)</source>
        <translation>(Sufijo)</translation>
    </message>
    <message>
        <source>NUMBER</source>
        <translation>NÚMERO</translation>
    </message>
    <message>
        <source>Text Placement</source>
        <translation>Colocación del texto</translation>
    </message>
    <message>
        <source>S&amp;uffix</source>
        <translation>Su&amp;fijo</translation>
    </message>
    <message>
        <source>Repla&amp;ce</source>
        <translation>Ree&amp;mplazar</translation>
    </message>
    <message>
        <source>Pre&amp;fix</source>
        <translation>&amp;Prefijo</translation>
    </message>
    <message>
        <source>O&amp;verwrite</source>
        <translation>S&amp;obrescribir</translation>
    </message>
    <message>
        <source>&amp;Find what:</source>
        <translation>&amp;Buscar:</translation>
    </message>
    <message>
        <source>Replace with:</source>
        <translation>Reemplazar por:</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>Aceptar</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Ayuda</translation>
    </message>
</context>
<context>
    <name>DrawingPreview</name>
    <message>
        <source>No preview</source>
        <translation>Sin vista previa</translation>
    </message>
</context>
<context>
    <name>LispExtension</name>
    <message>
        <source>The file is too large</source>
        <translation>El archivo es demasiado grande</translation>
    </message>
    <message>
        <source>. for none,.</source>
        <comment>Command Option: Upper- and Lowercase letters are relevant.</comment>
        <translation>. para ninguno,.</translation>
    </message>
    <message>
        <source>block %1</source>
        <translation>bloque %1</translation>
    </message>
    <message>
        <source>layer %1</source>
        <translation>capa %1</translation>
    </message>
    <message>
        <source>linetype %1</source>
        <translation>tipo de línea %1</translation>
    </message>
    <message>
        <source>text style %1</source>
        <translation>estilo de texto %1</translation>
    </message>
    <message>
        <source>dimension style %1</source>
        <translation>estilo de cota %1</translation>
    </message>
    <message>
        <source>Specify drawing file</source>
        <translation>Precisar archivo de dibujo</translation>
    </message>
    <message>
        <source>Specify block</source>
        <translation>Precisar bloque</translation>
    </message>
    <message>
        <source>Specify state file</source>
        <translation>Precisar archivo de estado</translation>
    </message>
    <message>
        <source>
Settings saved to: </source>
        <translation>
Parámetros guardados en: </translation>
    </message>
    <message>
        <source> successfully.</source>
        <translation> correctamente.</translation>
    </message>
    <message>
        <source>You must first select the blocks to replace. </source>
        <translation>Primero debe seleccionar los bloques que se reemplazan. </translation>
    </message>
    <message>
        <source>%1 could not be written: %2.</source>
        <translation>No se ha podido escribir %1: %2.</translation>
    </message>
    <message>
        <source>The document could not be printed.</source>
        <translation>No se ha podido imprimir el documento.</translation>
    </message>
    <message>
        <source>Drawing files (*.dwg)</source>
        <translation>Archivos de dibujo (*.dwg)</translation>
    </message>
    <message>
        <source>Drawing exchange files (*.dxf)</source>
        <translation>Archivos de intercambio de dibujos (*.dxf)</translation>
    </message>
    <message>
        <source>Specify a drawing</source>
        <translation>Precisar un dibujo</translation>
    </message>
    <message>
        <source>Error: Xref contains circular reference</source>
        <translation>Error: la RefX contiene una referencia circular</translation>
    </message>
    <message>
        <source>Select folder</source>
        <translation>Seleccionar carpeta</translation>
    </message>
    <message>
        <source>Filename can`t be empty</source>
        <translation>El nombre de archivo no puede estar vacío</translation>
    </message>
    <message>
        <source>The following characters are not valid in File names: &lt;&gt;/\&quot;:;?*|,=&apos;</source>
        <translation>Estos caracteres no son válidos en nombres de archivo: &lt;&gt;/\&quot;:;?*|,=&apos;</translation>
    </message>
    <message>
        <source>Drawing symbol &quot;%1&quot; already exists. Do you want to replace it?</source>
        <translation>El símbolo de dibujo &quot;%1&quot; ya existe. ¿Desea reemplazarlo?</translation>
    </message>
    <message>
        <source>Path can`t be empty</source>
        <translation>La ruta no puede estar vacía</translation>
    </message>
    <message>
        <source>Cannot find the specified Path.</source>
        <translation>No se encuentra la ruta especificada.</translation>
    </message>
    <message>
        <source>Cannot find the specified file.</source>
        <translation>No se encuentra el archivo especificado.</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Nombre</translation>
    </message>
    <message>
        <source>Replacing...</source>
        <translation>Reemplazando...</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
    <message>
        <source>%1: the drawing has no room for an editing time</source>
        <translation>%1: el dibujo no tiene sitio para un tiempo de edición</translation>
    </message>
    <message>
        <source>%1: the drawing is not open any more</source>
        <translation>%1: el dibujo ya no está abierto</translation>
    </message>
    <message>
        <source>A tag or text of the file is too long.</source>
        <translation>Una etiqueta o un texto del archivo es demasiado largo.</translation>
    </message>
    <message>
        <source>An element of the file has too many attributes.</source>
        <translation>Un elemento del archivo tiene demasiados atributos.</translation>
    </message>
    <message>
        <source>Enter to %1</source>
        <translation>Intro para %1</translation>
    </message>
    <message>
        <source>Entities that this drawing cannot hold and that were left out: %1.</source>
        <translation>Entidades que este dibujo no puede contener y que se han omitido: %1.</translation>
    </message>
    <message>
        <source>Error reading alias file.</source>
        <translation>Error al leer el archivo de alias.</translation>
    </message>
    <message>
        <source>Favorite &quot;%1&quot; already exists. Do you want to replace it?</source>
        <translation>El favorito &quot;%1&quot; ya existe. ¿Desea reemplazarlo?</translation>
    </message>
    <message>
        <source>Favorite name is required.</source>
        <translation>Se necesita un nombre de favorito.</translation>
    </message>
    <message>
        <source>Favorites</source>
        <translation>Favoritos</translation>
    </message>
    <message>
        <source>No file name</source>
        <translation>Sin nombre de archivo</translation>
    </message>
    <message>
        <source>Select object</source>
        <translation>Designar objeto</translation>
    </message>
    <message>
        <source>Specify folder</source>
        <translation>Precisar carpeta</translation>
    </message>
    <message>
        <source>Specify new path for Backup folder</source>
        <translation>Precisar nueva ruta de la carpeta de copias de seguridad</translation>
    </message>
    <message>
        <source>Specify option</source>
        <translation>Precisar opción</translation>
    </message>
    <message>
        <source>Specify second point</source>
        <translation>Precisar segundo punto</translation>
    </message>
    <message>
        <source>The drawing has its own, which stays as it is: %1.</source>
        <translation>El dibujo tiene el suyo propio, que se queda como está: %1.</translation>
    </message>
    <message>
        <source>The entities of the file expand to too much text.</source>
        <translation>Las entidades del archivo se expanden a demasiado texto.</translation>
    </message>
    <message>
        <source>There are too many copies of it already.</source>
        <translation>Ya hay demasiadas copias de él.</translation>
    </message>
    <message>
        <source>There is no block &quot;%1&quot; in %2.</source>
        <translation>No hay ningún bloque &quot;%1&quot; en %2.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is a invalid directory.</source>
        <translation>&quot;%1&quot; no es una carpeta válida.</translation>
    </message>
    <message>
        <source>
%1 could not be moved.</source>
        <translation>
No se ha podido desplazar %1.</translation>
    </message>
    <message>
        <source>
Nothing is there.</source>
        <translation>
Ahí no hay nada.</translation>
    </message>
    <message>
        <source>
This %1 is not what is asked for.</source>
        <translation>
Este objeto (%1) no es lo que se pide.</translation>
    </message>
    <message>
        <source>
This is a %1; asked for is %2.</source>
        <translation>
Esto es %1; se pide %2.</translation>
    </message>
    <message>
        <source>line %1: %2</source>
        <translation>línea %1: %2</translation>
    </message>
</context>
<context>
    <name>StyleTables</name>
    <message>
        <source>Name</source>
        <translation>Nombre</translation>
    </message>
    <message>
        <source>Variable;Value</source>
        <translation>Variable;Valor</translation>
    </message>
</context>
</TS>
