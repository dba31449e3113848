<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="es_ES" sourcelanguage="en">
<context>
    <name>AimMarks</name>
    <message>
        <source>Polar: %1 &lt; %2</source>
        <translation>Polar: %1 &lt; %2</translation>
    </message>
</context>
<context>
    <name>Batch</name>
    <message>
        <source>%1 of %2, %3 failed</source>
        <translation>%1 de %2, %3 fallaron</translation>
    </message>
    <message>
        <source>the process that worked on it was killed or crashed</source>
        <translation>el proceso que trabajaba en él fue detenido o falló</translation>
    </message>
    <message>
        <source>interrupted: %1 of %2 were not worked on to the end</source>
        <translation>interrumpido: %1 de %2 no se trabajaron hasta el final</translation>
    </message>
    <message>
        <source>done</source>
        <translation>hecho</translation>
    </message>
    <message>
        <source>failed</source>
        <translation>fallido</translation>
    </message>
    <message>
        <source>not read</source>
        <translation>no leído</translation>
    </message>
    <message>
        <source>not written</source>
        <translation>no escrito</translation>
    </message>
    <message>
        <source>incomplete</source>
        <translation>incompleto</translation>
    </message>
    <message>
        <source>cut short</source>
        <translation>abreviado</translation>
    </message>
    <message>
        <source>%1, case %2</source>
        <translation>%1, caso %2</translation>
    </message>
    <message>
        <source>%1: the folder cannot be made</source>
        <translation>%1: la carpeta no se puede crear</translation>
    </message>
    <message>
        <source>two of the drawings are named %1: their results would have the same name</source>
        <translation>dos de los dibujos se llaman %1: sus resultados tendrían el mismo nombre</translation>
    </message>
    <message>
        <source>%1: the extension must be dxf, %2</source>
        <translation>%1: la extensión debe ser dxf, %2</translation>
    </message>
    <message>
        <source>--binary is for DXF files</source>
        <translation>--binary es para archivos DXF</translation>
    </message>
    <message>
        <source>... and %1 more lines</source>
        <translation>... y %1 líneas más</translation>
    </message>
    <message>
        <source>the dialog of %1 does not open</source>
        <translation>el diálogo de %1 no se abre</translation>
    </message>
    <message>
        <source>%1: the file cannot be read</source>
        <translation>%1: el archivo no se puede leer</translation>
    </message>
    <message>
        <source>the tool asks &quot;%1&quot;; see --answer</source>
        <translation>la herramienta pregunta &quot;%1&quot;; véase --answer</translation>
    </message>
    <message>
        <source>the tool asks for a file; see --set %1=PATH</source>
        <translation>la herramienta pide un archivo; véase --set %1=PATH</translation>
    </message>
    <message>
        <source>the dialog does not go on with these values</source>
        <translation>el diálogo no continúa con estos valores</translation>
    </message>
    <message>
        <source>there is nothing to choose in %1</source>
        <translation>no hay nada que elegir en %1</translation>
    </message>
    <message>
        <source>it does not take &quot;%1&quot;</source>
        <translation>no acepta &quot;%1&quot;</translation>
    </message>
    <message>
        <source>%1 has nothing to do</source>
        <translation>%1 no tiene nada que hacer</translation>
    </message>
    <message>
        <source>%1: there is no file %2</source>
        <translation>%1: no existe el archivo %2</translation>
    </message>
    <message>
        <source>%1 is there already, beside the drawing, and may be another one: name another folder, or --force to replace it</source>
        <translation>%1 ya existe junto al dibujo y puede ser otro: indique otra carpeta, o --force para reemplazarlo</translation>
    </message>
</context>
<context>
    <name>CKvQtColorComboBox</name>
    <message>
        <source>ByBlock</source>
        <translation>ByBlock</translation>
    </message>
    <message>
        <source>Red</source>
        <translation>Rojo</translation>
    </message>
    <message>
        <source>Yellow</source>
        <translation>Amarillo</translation>
    </message>
    <message>
        <source>Green</source>
        <translation>Verde</translation>
    </message>
    <message>
        <source>Cyan</source>
        <translation>Cian</translation>
    </message>
    <message>
        <source>Blue</source>
        <translation>Azul</translation>
    </message>
    <message>
        <source>Magenta</source>
        <translation>Magenta</translation>
    </message>
    <message>
        <source>White</source>
        <translation>Blanco</translation>
    </message>
    <message>
        <source>ByLayer</source>
        <translation>ByLayer</translation>
    </message>
    <message>
        <source>Color %1</source>
        <translation>Color %1</translation>
    </message>
</context>
<context>
    <name>Commands</name>
    <message>
        <source>Specify angle vertex: </source>
        <translation>Precise vértice del ángulo: </translation>
    </message>
    <message>
        <source>Specify first angle endpoint: </source>
        <translation>Precise primer punto final del ángulo: </translation>
    </message>
    <message>
        <source>Specify second angle endpoint: </source>
        <translation>Precise segundo punto final del ángulo: </translation>
    </message>
    <message>
        <source>Select second line: </source>
        <translation>Designe segunda línea: </translation>
    </message>
    <message>
        <source>Lines are parallel.</source>
        <translation>Las líneas son paralelas.</translation>
    </message>
    <message>
        <source>Object selected is not a line.</source>
        <translation>El objeto designado no es una línea.</translation>
    </message>
    <message>
        <source>Select arc, circle, line, or &lt;specify vertex&gt;: </source>
        <translation>Designe arco, círculo, línea o &lt;precisar vértice&gt;: </translation>
    </message>
    <message>
        <source>Object selected is not an arc, circle or line.</source>
        <translation>El objeto designado no es un arco, un círculo ni una línea.</translation>
    </message>
    <message>
        <source>Enter text location (or press ENTER): </source>
        <translation>Indique ubicación del texto (o pulse INTRO): </translation>
    </message>
    <message>
        <source>Specify dimension arc line location or [Mtext/Text/Angle/Quadrant]: </source>
        <translation>Precise ubicación del arco de cota o [Mtext/Text/Angle/Quadrant]: </translation>
    </message>
    <message>
        <source>Specify quadrant: </source>
        <translation>Precise cuadrante: </translation>
    </message>
    <message>
        <source>Select arc or polyline arc segment: </source>
        <translation>Designe arco o segmento de arco de polilínea: </translation>
    </message>
    <message>
        <source>Object selected is not an arc or polyline arc segment.</source>
        <translation>El objeto designado no es un arco ni un segmento de arco de polilínea.</translation>
    </message>
    <message>
        <source>Specify first point for arc length dimension: </source>
        <translation>Precise primer punto de la cota de longitud de arco: </translation>
    </message>
    <message>
        <source>Specify second point for arc length dimension: </source>
        <translation>Precise segundo punto de la cota de longitud de arco: </translation>
    </message>
    <message>
        <source>The two points are one.</source>
        <translation>Los dos puntos son el mismo.</translation>
    </message>
    <message>
        <source>Specify arc length dimension location, or [Mtext/Text/Angle/Partial%1]: </source>
        <translation>Precise ubicación de la cota de longitud de arco, o [Mtext/Text/Angle/Partial%1]: </translation>
    </message>
    <message>
        <source>A drawing of this version has no dimensions of arc lengths: they come with R2004.</source>
        <translation>Un dibujo de esta versión no tiene cotas de longitud de arco: existen desde R2004.</translation>
    </message>
    <message>
        <source>
Current attribute modes:  </source>
        <translation>
Modos de atributo actuales:  </translation>
    </message>
    <message>
        <source>Enter an option to change [Invisible/Constant/Verify/Preset] &lt;done&gt;: </source>
        <translation>Indique una opción que desee cambiar [Invisible/Constant/Verify/Preset] &lt;hecho&gt;: </translation>
    </message>
    <message>
        <source>Enter attribute tag name: </source>
        <translation>Indique identificador del atributo: </translation>
    </message>
    <message>
        <source>A tag is needed.</source>
        <translation>Se necesita un identificador.</translation>
    </message>
    <message>
        <source>A tag has no blanks.</source>
        <translation>Un identificador no lleva espacios.</translation>
    </message>
    <message>
        <source>Enter attribute prompt: </source>
        <translation>Indique mensaje de solicitud del atributo: </translation>
    </message>
    <message>
        <source>Enter attribute value: </source>
        <translation>Indique valor del atributo: </translation>
    </message>
    <message>
        <source>Enter default attribute value: </source>
        <translation>Indique valor por defecto del atributo: </translation>
    </message>
    <message>
        <source>Enter attribute tag name</source>
        <translation>Indique identificador del atributo</translation>
    </message>
    <message>
        <source>Enter attribute prompt</source>
        <translation>Indique mensaje de solicitud del atributo</translation>
    </message>
    <message>
        <source>Enter default attribute value, . for none</source>
        <translation>Indique valor por defecto del atributo, . para ninguno</translation>
    </message>
    <message>
        <source>Enter text</source>
        <translation>Indique texto</translation>
    </message>
    <message>
        <source>Select an annotation object: </source>
        <translation>Designe un objeto de anotación: </translation>
    </message>
    <message>
        <source>Requires a text.</source>
        <translation>Se requiere un texto.</translation>
    </message>
    <message>
        <source>Select continued dimension: </source>
        <translation>Designe cota que se continúa: </translation>
    </message>
    <message>
        <source>Select base dimension: </source>
        <translation>Designe cota de línea base: </translation>
    </message>
    <message>
        <source>Linear, ordinate, or angular associative dimension required.</source>
        <translation>Se requiere una cota asociativa lineal, por coordenadas o angular.</translation>
    </message>
    <message>
        <source>
All dimensions of the command are undone.</source>
        <translation>
Se han deshecho todas las cotas del comando.</translation>
    </message>
    <message>
        <source>Specify feature location or [Select/Undo] &lt;Select&gt;: </source>
        <translation>Precise ubicación de la característica o [Select/Undo] &lt;Select&gt;: </translation>
    </message>
    <message>
        <source>Specify second extension line origin or [Select/Undo] &lt;Select&gt;: </source>
        <translation>Precise origen de la segunda línea de referencia o [Select/Undo] &lt;Select&gt;: </translation>
    </message>
    <message>
        <source>Specify a second extension line origin or [Select] &lt;Select&gt;: </source>
        <translation>Precise un origen de la segunda línea de referencia o [Select] &lt;Select&gt;: </translation>
    </message>
    <message>
        <source>Enter obliquing angle (press ENTER for none): </source>
        <translation>Indique ángulo de oblicuidad (pulse INTRO para ninguno): </translation>
    </message>
    <message>
        <source>Unknown dimension variable &quot;%1&quot;.</source>
        <translation>Variable de cota desconocida &quot;%1&quot;.</translation>
    </message>
    <message>
        <source>Enter new value for dimension variable &lt;%1&gt;: </source>
        <translation>Indique nuevo valor de la variable de cota &lt;%1&gt;: </translation>
    </message>
    <message>
        <source>%1 does not take this value.</source>
        <translation>%1 no admite este valor.</translation>
    </message>
    <message>
        <source>Enter dimension variable name to override: </source>
        <translation>Indique nombre de la variable de cota que se modifica: </translation>
    </message>
    <message>
        <source>Enter type of dimension editing [Home/New/Rotate/Oblique] &lt;Home&gt;: </source>
        <translation>Indique tipo de edición de cotas [Home/New/Rotate/Oblique] &lt;Home&gt;: </translation>
    </message>
    <message>
        <source>Enter dimension text &lt;&lt;&gt;&gt;: </source>
        <translation>Indique texto de cota &lt;&lt;&gt;&gt;: </translation>
    </message>
    <message>
        <source>Specify angle for dimension text: </source>
        <translation>Precise ángulo del texto de cota: </translation>
    </message>
    <message>
        <source>Select dimension: </source>
        <translation>Designe cota: </translation>
    </message>
    <message>
        <source>Object selected is not a dimension.</source>
        <translation>El objeto designado no es una cota.</translation>
    </message>
    <message>
        <source>Specify new location for dimension text or [Left/Right/Center/Home/Angle]: </source>
        <translation>Precise nueva ubicación del texto de cota o [Left/Right/Center/Home/Angle]: </translation>
    </message>
    <message>
        <source>Enter dimension variable name to override or [Clear overrides]: </source>
        <translation>Indique nombre de la variable de cota que se modifica o [Clear overrides]: </translation>
    </message>
    <message>
        <source>Enter new text style name</source>
        <translation>Indique nombre del nuevo estilo de texto</translation>
    </message>
    <message>
        <source>Dim: </source>
        <translation>Cota: </translation>
    </message>
    <message>
        <source>Unknown dimension subcommand &quot;%1&quot;.</source>
        <translation>Subcomando de cota desconocido &quot;%1&quot;.</translation>
    </message>
    <message>
        <source>
Nothing that was made here is left to undo.</source>
        <translation>
No queda nada por deshacer de lo creado aquí.</translation>
    </message>
    <message>
        <source>Enter dimension style(s) to list &lt;*&gt;: </source>
        <translation>Indique estilos de cota que se listan &lt;*&gt;: </translation>
    </message>
    <message>
        <source>Enter a dimension style name, [?] or &lt;select dimension&gt;: </source>
        <translation>Indique nombre de un estilo de cota, [?] o &lt;designar cota&gt;: </translation>
    </message>
    <message>
        <source>Cannot find dimension style &quot;%1&quot;.</source>
        <translation>No se encuentra el estilo de cota &quot;%1&quot;.</translation>
    </message>
    <message>
        <source>Enter name for new dimension style or [?]: </source>
        <translation>Indique nombre del nuevo estilo de cota o [?]: </translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no name for a dimension style.</source>
        <translation>&quot;%1&quot; no es un nombre de estilo de cota.</translation>
    </message>
    <message>
        <source>That name is already in use, redefine it? [Yes/No] &lt;N&gt;: </source>
        <translation>Ese nombre ya se usa. ¿Redefinirlo? [Yes/No] &lt;N&gt;: </translation>
    </message>
    <message>
        <source>Create annotative dimension style [Yes/No] &lt;Yes&gt;: </source>
        <translation>Crear estilo de cota anotativo [Yes/No] &lt;Yes&gt;: </translation>
    </message>
    <message>
        <source>
Current dimension style: </source>
        <translation>
Estilo de cota actual: </translation>
    </message>
    <message>
        <source>Enter a dimension style option [ANnotative/Save/Restore/STatus/Variables/Apply/?] &lt;Restore&gt;: </source>
        <translation>Indique una opción de estilo de cota [ANnotative/Save/Restore/STatus/Variables/Apply/?] &lt;Restore&gt;: </translation>
    </message>
    <message>
        <source>Specify internal point or [Properties/Select objects/draW boundary/remove Boundaries/Advanced/DRaw order/Origin/ANnotative/hatch COlor/LAyer/Transparency]: </source>
        <translation>Precise punto interno o [Properties/Select objects/draW boundary/remove Boundaries/Advanced/DRaw order/Origin/ANnotative/hatch COlor/LAyer/Transparency]: </translation>
    </message>
    <message>
        <source>
Too many curves cross here: choose a boundary set.</source>
        <translation>
Aquí se cruzan demasiadas curvas: elija un conjunto de contornos.</translation>
    </message>
    <message>
        <source>
Valid hatch boundary not found.</source>
        <translation>
No se ha encontrado un contorno de sombreado válido.</translation>
    </message>
    <message>
        <source>
The objects make no closed boundary.</source>
        <translation>
Los objetos no forman un contorno cerrado.</translation>
    </message>
    <message>
        <source>Retain polyline boundary? [Yes/No] &lt;N&gt;: </source>
        <translation>¿Conservar el contorno de polilínea? [Yes/No] &lt;N&gt;: </translation>
    </message>
    <message>
        <source>Specify start point: </source>
        <translation>Precise punto inicial: </translation>
    </message>
    <message>
        <source>Specify next point or [Close/Undo] &lt;Close&gt;: </source>
        <translation>Precise punto siguiente o [Close/Undo] &lt;Close&gt;: </translation>
    </message>
    <message>
        <source>Specify start point for new boundary or &lt;Accept&gt;: </source>
        <translation>Precise punto inicial de un contorno nuevo o &lt;aceptar&gt;: </translation>
    </message>
    <message>
        <source>Select boundary to remove: </source>
        <translation>Designe contorno que se elimina: </translation>
    </message>
    <message>
        <source>
Current hatch pattern:  </source>
        <translation>
Patrón de sombreado actual:  </translation>
    </message>
    <message>
        <source>Enter an option [Boundary set/Island detection/Object type] &lt;eXit&gt;: </source>
        <translation>Indique una opción [Boundary set/Island detection/Object type] &lt;eXit&gt;: </translation>
    </message>
    <message>
        <source>Enter type of boundary object [Region/Polyline] &lt;%1&gt;: </source>
        <translation>Indique tipo de objeto de contorno [Region/Polyline] &lt;%1&gt;: </translation>
    </message>
    <message>
        <source>Specify internal point or [Advanced options]: </source>
        <translation>Precise punto interno o [Advanced options]: </translation>
    </message>
    <message>
        <source>
BOUNDARY created 1 region</source>
        <translation>
BOUNDARY ha creado 1 región</translation>
    </message>
    <message>
        <source>
BOUNDARY created 1 polyline</source>
        <translation>
BOUNDARY ha creado 1 polilínea</translation>
    </message>
    <message>
        <source>
BOUNDARY created %1 regions</source>
        <translation>
BOUNDARY ha creado %1 regiones</translation>
    </message>
    <message>
        <source>
BOUNDARY created %1 polylines</source>
        <translation>
BOUNDARY ha creado %1 polilíneas</translation>
    </message>
    <message>
        <source>Enter pattern(s) to list &lt;*&gt;: </source>
        <translation>Indique patrones que se listan &lt;*&gt;: </translation>
    </message>
    <message>
        <source>Specify angle for crosshatch lines &lt;%1&gt;: </source>
        <translation>Precise ángulo de las líneas de sombreado &lt;%1&gt;: </translation>
    </message>
    <message>
        <source>Specify spacing between the lines &lt;%1&gt;: </source>
        <translation>Precise separación entre las líneas &lt;%1&gt;: </translation>
    </message>
    <message>
        <source>Double hatch area? [Yes/No] &lt;%1&gt;: </source>
        <translation>¿Sombreado doble? [Yes/No] &lt;%1&gt;: </translation>
    </message>
    <message>
        <source>Specify a scale for the pattern &lt;%1&gt;: </source>
        <translation>Precise escala del patrón &lt;%1&gt;: </translation>
    </message>
    <message>
        <source>Specify an angle for the pattern &lt;%1&gt;: </source>
        <translation>Precise ángulo del patrón &lt;%1&gt;: </translation>
    </message>
    <message>
        <source>Enter new color or [. (for use current)] &lt;.&gt;: </source>
        <translation>Indique nuevo color o [. (for use current)] &lt;.&gt;: </translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no colour.</source>
        <translation>&quot;%1&quot; no es un color.</translation>
    </message>
    <message>
        <source>Specify new layer name or [. (for use current)] &lt;.&gt;: </source>
        <translation>Precise nombre de nueva capa o [. (for use current)] &lt;.&gt;: </translation>
    </message>
    <message>
        <source>Cannot find layer &quot;%1&quot;.</source>
        <translation>No se encuentra la capa &quot;%1&quot;.</translation>
    </message>
    <message>
        <source>Enter new transparency value (0-90) or [. (for use current)] &lt;.&gt;: </source>
        <translation>Indique nuevo valor de transparencia (0-90) o [. (for use current)] &lt;.&gt;: </translation>
    </message>
    <message>
        <source>Requires a whole number from 0 to 90.</source>
        <translation>Se requiere un número entero de 0 a 90.</translation>
    </message>
    <message>
        <source>Enter draw order [do Not assign/send to Back/bring to Front/send beHind boundary/bring in front of bounDary] &lt;send behind boundary&gt;: </source>
        <translation>Indique orden de dibujo [do Not assign/send to Back/bring to Front/send beHind boundary/bring in front of bounDary] &lt;detrás del contorno&gt;: </translation>
    </message>
    <message>
        <source>[Use current origin/Set new origin] &lt;Use current origin&gt;: </source>
        <translation>[Use current origin/Set new origin] &lt;Use current origin&gt;: </translation>
    </message>
    <message>
        <source>Specify point: </source>
        <translation>Precise punto: </translation>
    </message>
    <message>
        <source>Store as default origin? [Yes/No] &lt;N&gt;: </source>
        <translation>¿Guardar como origen por defecto? [Yes/No] &lt;N&gt;: </translation>
    </message>
    <message>
        <source>Unknown hatch pattern &quot;%1&quot;.</source>
        <translation>Patrón de sombreado desconocido &quot;%1&quot;.</translation>
    </message>
    <message>
        <source>Enter a pattern name or [?/Solid/User defined] &lt;%1&gt;: </source>
        <translation>Indique nombre de un patrón o [?/Solid/User defined] &lt;%1&gt;: </translation>
    </message>
    <message>
        <source>Enter hatching style [Ignore/Outer/Normal] &lt;%1&gt;: </source>
        <translation>Indique estilo de sombreado [Ignore/Outer/Normal] &lt;%1&gt;: </translation>
    </message>
    <message>
        <source>Specify candidate set for boundary [New/Everything] &lt;Everything&gt;: </source>
        <translation>Precise conjunto de candidatos para el contorno [New/Everything] &lt;Everything&gt;: </translation>
    </message>
    <message>
        <source>Do you want island detection? [Yes/No] &lt;Y&gt;: </source>
        <translation>¿Desea detectar islas? [Yes/No] &lt;Y&gt;: </translation>
    </message>
    <message>
        <source>Enter an option [Boundary set/Retain boundary/Island detection/Style/Associativity/Gap tolerance/separate Hatches] &lt;eXit&gt;: </source>
        <translation>Indique una opción [Boundary set/Retain boundary/Island detection/Style/Associativity/Gap tolerance/separate Hatches] &lt;eXit&gt;: </translation>
    </message>
    <message>
        <source>Retain derived boundaries? [Yes/No] &lt;N&gt;: </source>
        <translation>¿Conservar los contornos obtenidos? [Yes/No] &lt;N&gt;: </translation>
    </message>
    <message>
        <source>Do you want associativity? [Yes/No] &lt;Y&gt;: </source>
        <translation>¿Desea asociatividad? [Yes/No] &lt;Y&gt;: </translation>
    </message>
    <message>
        <source>Specify a boundary gap tolerance value &lt;%1&gt;: </source>
        <translation>Precise tolerancia de huecos del contorno &lt;%1&gt;: </translation>
    </message>
    <message>
        <source>Create separate hatches? [Yes/No] &lt;N&gt;: </source>
        <translation>¿Crear sombreados separados? [Yes/No] &lt;N&gt;: </translation>
    </message>
    <message>
        <source>Create annotative hatch [Yes/No] &lt;N&gt;: </source>
        <translation>Crear sombreado anotativo [Yes/No] &lt;N&gt;: </translation>
    </message>
    <message>
        <source>Annotative hatches are not made.</source>
        <translation>No se crean sombreados anotativos.</translation>
    </message>
    <message>
        <source>
A boundary needs three points.</source>
        <translation>
Un contorno necesita tres puntos.</translation>
    </message>
    <message>
        <source>
A drawing of this version keeps no draw order.</source>
        <translation>
Un dibujo de esta versión no guarda orden de dibujo.</translation>
    </message>
    <message>
        <source>The hatch spacing is too dense, or the dash size too small.</source>
        <translation>El sombreado es demasiado denso o los trazos demasiado pequeños.</translation>
    </message>
    <message>
        <source>
No polyline can follow the boundary: it has pieces of ellipses or splines.</source>
        <translation>
Ninguna polilínea puede seguir el contorno: tiene trozos de elipses o splines.</translation>
    </message>
    <message>
        <source>Select hatch object: </source>
        <translation>Designe objeto de sombreado: </translation>
    </message>
    <message>
        <source>Object selected is not a hatch.</source>
        <translation>El objeto designado no es un sombreado.</translation>
    </message>
    <message>
        <source>Enter hatch option [DIsassociate/Style/Properties/Origin/ANnotative/hatch COlor/LAyer/Transparency] &lt;Properties&gt;: </source>
        <translation>Indique opción de sombreado [DIsassociate/Style/Properties/Origin/ANnotative/hatch COlor/LAyer/Transparency] &lt;Properties&gt;: </translation>
    </message>
    <message>
        <source>Specify first endpoint of text baseline: </source>
        <translation>Precise primer punto final de la línea base del texto: </translation>
    </message>
    <message>
        <source>Specify start point of text: </source>
        <translation>Precise punto inicial del texto: </translation>
    </message>
    <message>
        <source>Specify center point of text: </source>
        <translation>Precise punto central del texto: </translation>
    </message>
    <message>
        <source>Specify right endpoint of text baseline: </source>
        <translation>Precise punto final derecho de la línea base del texto: </translation>
    </message>
    <message>
        <source>Specify middle point of text: </source>
        <translation>Precise punto medio del texto: </translation>
    </message>
    <message>
        <source>Specify top-left point of text: </source>
        <translation>Precise punto superior izquierdo del texto: </translation>
    </message>
    <message>
        <source>Specify top-center point of text: </source>
        <translation>Precise punto superior central del texto: </translation>
    </message>
    <message>
        <source>Specify top-right point of text: </source>
        <translation>Precise punto superior derecho del texto: </translation>
    </message>
    <message>
        <source>Specify middle-left point of text: </source>
        <translation>Precise punto medio izquierdo del texto: </translation>
    </message>
    <message>
        <source>Specify middle-center point of text: </source>
        <translation>Precise punto medio central del texto: </translation>
    </message>
    <message>
        <source>Specify middle-right point of text: </source>
        <translation>Precise punto medio derecho del texto: </translation>
    </message>
    <message>
        <source>Specify bottom-left point of text: </source>
        <translation>Precise punto inferior izquierdo del texto: </translation>
    </message>
    <message>
        <source>Specify bottom-center point of text: </source>
        <translation>Precise punto inferior central del texto: </translation>
    </message>
    <message>
        <source>Specify bottom-right point of text: </source>
        <translation>Precise punto inferior derecho del texto: </translation>
    </message>
    <message>
        <source>Enter an option [%1]: </source>
        <translation>Indique una opción [%1]: </translation>
    </message>
    <message>
        <source>Enter next line of annotation text: </source>
        <translation>Indique siguiente línea del texto de anotación: </translation>
    </message>
    <message>
        <source>A text, tolerance or block reference is needed.</source>
        <translation>Se necesita un texto, una tolerancia o una referencia de bloque.</translation>
    </message>
    <message>
        <source>Enter block name: </source>
        <translation>Indique nombre del bloque: </translation>
    </message>
    <message>
        <source>Cannot find block &quot;%1&quot;.</source>
        <translation>No se encuentra el bloque &quot;%1&quot;.</translation>
    </message>
    <message>
        <source>Enter scale factor &lt;1&gt;: </source>
        <translation>Indique factor de escala &lt;1&gt;: </translation>
    </message>
    <message>
        <source>Specify rotation angle &lt;0&gt;: </source>
        <translation>Precise ángulo de rotación &lt;0&gt;: </translation>
    </message>
    <message>
        <source>Enter tolerance text: </source>
        <translation>Indique texto de tolerancia: </translation>
    </message>
    <message>
        <source>Enter an annotation option [Tolerance/Copy/Block/None/Mtext] &lt;Mtext&gt;: </source>
        <translation>Indique una opción de anotación [Tolerance/Copy/Block/None/Mtext] &lt;Mtext&gt;: </translation>
    </message>
    <message>
        <source>Select an object to copy: </source>
        <translation>Designe un objeto que se copia: </translation>
    </message>
    <message>
        <source>Enter first line of annotation text: </source>
        <translation>Indique primera línea del texto de anotación: </translation>
    </message>
    <message>
        <source>Enter leader format option [Spline/STraight/Arrow/None] &lt;Exit&gt;: </source>
        <translation>Indique opción de formato de la directriz [Spline/STraight/Arrow/None] &lt;Exit&gt;: </translation>
    </message>
    <message>
        <source>Specify leader start point: </source>
        <translation>Precise punto inicial de la directriz: </translation>
    </message>
    <message>
        <source>Specify next point: </source>
        <translation>Precise punto siguiente: </translation>
    </message>
    <message>
        <source>Specify next point or [Annotation/Format/Undo] &lt;Annotation&gt;: </source>
        <translation>Precise punto siguiente o [Annotation/Format/Undo] &lt;Annotation&gt;: </translation>
    </message>
    <message>
        <source>Enter first line of annotation text or &lt;options&gt;: </source>
        <translation>Indique primera línea del texto de anotación o &lt;opciones&gt;: </translation>
    </message>
    <message>
        <source>Specify first leader point: </source>
        <translation>Precise primer punto de la directriz: </translation>
    </message>
    <message>
        <source>Specify text width &lt;0&gt;: </source>
        <translation>Precise anchura del texto &lt;0&gt;: </translation>
    </message>
    <message>
        <source>Enter first line of annotation text &lt;Mtext&gt;: </source>
        <translation>Indique primera línea del texto de anotación &lt;Mtext&gt;: </translation>
    </message>
    <message>
        <source>Leader start: </source>
        <translation>Inicio de la directriz: </translation>
    </message>
    <message>
        <source>To point: </source>
        <translation>Al punto: </translation>
    </message>
    <message>
        <source>Enter dimension text &lt;%1&gt;: </source>
        <translation>Indique texto de cota &lt;%1&gt;: </translation>
    </message>
    <message>
        <source>Specify first extension line origin or &lt;select object&gt;: </source>
        <translation>Precise origen de la primera línea de referencia o &lt;designar objeto&gt;: </translation>
    </message>
    <message>
        <source>Specify second extension line origin: </source>
        <translation>Precise origen de la segunda línea de referencia: </translation>
    </message>
    <message>
        <source>Select object to dimension: </source>
        <translation>Designe objeto que se acota: </translation>
    </message>
    <message>
        <source>Object selected is not a line, arc, circle or piece of a polyline.</source>
        <translation>El objeto designado no es una línea, un arco, un círculo ni un tramo de polilínea.</translation>
    </message>
    <message>
        <source>Specify angle of dimension line &lt;0&gt;: </source>
        <translation>Precise ángulo de la línea de cota &lt;0&gt;: </translation>
    </message>
    <message>
        <source>Specify dimension line location or [%1]: </source>
        <translation>Precise ubicación de la línea de cota o [%1]: </translation>
    </message>
    <message>
        <source>Specify dimension line location or [Mtext/Text/Angle]: </source>
        <translation>Precise ubicación de la línea de cota o [Mtext/Text/Angle]: </translation>
    </message>
    <message>
        <source>Specify feature location: </source>
        <translation>Precise ubicación de la característica: </translation>
    </message>
    <message>
        <source>Specify leader endpoint or [Xdatum/Ydatum/Mtext/Text/Angle]: </source>
        <translation>Precise punto final de la directriz o [Xdatum/Ydatum/Mtext/Text/Angle]: </translation>
    </message>
    <message>
        <source>The object is not parallel to the current UCS.</source>
        <translation>El objeto no es paralelo al SCP actual.</translation>
    </message>
    <message>
        <source>Select a leader type [Straight/sPline/None]</source>
        <translation>Designe un tipo de directriz [Straight/sPline/None]</translation>
    </message>
    <message>
        <source>Use landing [Yes/No]</source>
        <translation>Usar línea de conexión [Yes/No]</translation>
    </message>
    <message>
        <source>Specify fixed landing distance</source>
        <translation>Precise longitud fija de la línea de conexión</translation>
    </message>
    <message>
        <source>Select a content type [Block/Mtext/None]</source>
        <translation>Designe un tipo de contenido [Block/Mtext/None]</translation>
    </message>
    <message>
        <source>Enter the maximum points for leader or [None] &lt;%1&gt;: </source>
        <translation>Indique número máximo de puntos de la directriz o [None] &lt;%1&gt;: </translation>
    </message>
    <message>
        <source>A leader has two points at least.</source>
        <translation>Una directriz tiene al menos dos puntos.</translation>
    </message>
    <message>
        <source>Enter an option [Leader type/leader lAnding/Content type/Maxpoints/First angle/Second angle/eXit options] &lt;eXit options&gt;: </source>
        <translation>Indique una opción [Leader type/leader lAnding/Content type/Maxpoints/First angle/Second angle/eXit options] &lt;eXit options&gt;: </translation>
    </message>
    <message>
        <source>Enter first angle constraint &lt;%1&gt;: </source>
        <translation>Indique restricción del primer ángulo &lt;%1&gt;: </translation>
    </message>
    <message>
        <source>Enter second angle constraint &lt;%1&gt;: </source>
        <translation>Indique restricción del segundo ángulo &lt;%1&gt;: </translation>
    </message>
    <message>
        <source>Specify leader landing location: </source>
        <translation>Precise ubicación de la línea de conexión de la directriz: </translation>
    </message>
    <message>
        <source>Enter text: </source>
        <translation>Indique texto: </translation>
    </message>
    <message>
        <source>Specify first corner of text: </source>
        <translation>Precise primera esquina del texto: </translation>
    </message>
    <message>
        <source>Specify insertion point for block: </source>
        <translation>Precise punto de inserción del bloque: </translation>
    </message>
    <message>
        <source>Specify opposite corner: </source>
        <translation>Precise esquina opuesta: </translation>
    </message>
    <message>
        <source>Specify leader arrowhead location or [leader Landing first/Content first/Options] &lt;Options&gt;: </source>
        <translation>Precise ubicación de la punta de flecha de la directriz o [leader Landing first/Content first/Options] &lt;Options&gt;: </translation>
    </message>
    <message>
        <source>A drawing of this version has no multileaders: they come with R2007.</source>
        <translation>Un dibujo de esta versión no tiene directrices múltiples: existen desde R2007.</translation>
    </message>
    <message>
        <source>Specify leader arrowhead location: </source>
        <translation>Precise ubicación de la punta de flecha de la directriz: </translation>
    </message>
    <message>
        <source>Object selected is not a multileader.</source>
        <translation>El objeto designado no es una directriz múltiple.</translation>
    </message>
    <message>
        <source>Select a multileader: </source>
        <translation>Designe una directriz múltiple: </translation>
    </message>
    <message>
        <source>Specify leaders to remove or [Add leaders]: </source>
        <translation>Designe directrices que se eliminan o [Add leaders]: </translation>
    </message>
    <message>
        <source>Specify leader arrowhead location or [Remove leaders]: </source>
        <translation>Precise ubicación de la punta de flecha de la directriz o [Remove leaders]: </translation>
    </message>
    <message>
        <source>
The multileader has no leader there.</source>
        <translation>
La directriz múltiple no tiene ahí ninguna directriz.</translation>
    </message>
    <message>
        <source>Enter an option [Distribute/specify Spacing/Use current spacing] &lt;Use current spacing&gt;: </source>
        <translation>Indique una opción [Distribute/specify Spacing/Use current spacing] &lt;Use current spacing&gt;: </translation>
    </message>
    <message>
        <source>Specify spacing</source>
        <translation>Precise separación</translation>
    </message>
    <message>
        <source>Select multileaders: </source>
        <translation>Designe directrices múltiples: </translation>
    </message>
    <message>
        <source>No multileaders were selected.</source>
        <translation>No se ha designado ninguna directriz múltiple.</translation>
    </message>
    <message>
        <source>Specify first point or [Options]: </source>
        <translation>Precise primer punto o [Options]: </translation>
    </message>
    <message>
        <source>Specify second point: </source>
        <translation>Precise segundo punto: </translation>
    </message>
    <message>
        <source>Select multileader to align to or [Options]: </source>
        <translation>Designe directriz múltiple con la que se alinea o [Options]: </translation>
    </message>
    <message>
        <source>Specify direction: </source>
        <translation>Precise dirección: </translation>
    </message>
    <message>
        <source>Specify angle of dimension text: </source>
        <translation>Precise ángulo del texto de cota: </translation>
    </message>
    <message>
        <source>
Dimension text = </source>
        <translation>
Texto de cota = </translation>
    </message>
    <message>
        <source>Enter justification [%1]</source>
        <translation>Indique justificación [%1]</translation>
    </message>
    <message>
        <source>Enter line spacing type [At least/Exactly]</source>
        <translation>Indique tipo de interlineado [At least/Exactly]</translation>
    </message>
    <message>
        <source>Enter line spacing factor or distance &lt;%1&gt;: </source>
        <translation>Indique factor o distancia de interlineado &lt;%1&gt;: </translation>
    </message>
    <message>
        <source>Lines are 0.25x to 4x of the usual distance apart.</source>
        <translation>Las líneas distan entre 0.25x y 4x de la distancia habitual.</translation>
    </message>
    <message>
        <source>Specify total width</source>
        <translation>Precise anchura total</translation>
    </message>
    <message>
        <source>Specify number of columns &lt;2&gt;: </source>
        <translation>Precise número de columnas &lt;2&gt;: </translation>
    </message>
    <message>
        <source>Specify gutter width</source>
        <translation>Precise anchura del medianil</translation>
    </message>
    <message>
        <source>So many columns do not fit into this width.</source>
        <translation>No caben tantas columnas en esta anchura.</translation>
    </message>
    <message>
        <source>Specify column width</source>
        <translation>Precise anchura de columna</translation>
    </message>
    <message>
        <source>Enter column type [Dynamic/Static/No columns]</source>
        <translation>Indique tipo de columnas [Dynamic/Static/No columns]</translation>
    </message>
    <message>
        <source>A drawing of this version has no columns in texts: they come with R2007.</source>
        <translation>Un dibujo de esta versión no tiene columnas en los textos: existen desde R2007.</translation>
    </message>
    <message>
        <source>Specify column height</source>
        <translation>Precise altura de columna</translation>
    </message>
    <message>
        <source>Specify height</source>
        <translation>Precise altura</translation>
    </message>
    <message>
        <source>Specify rotation angle &lt;%1&gt;: </source>
        <translation>Precise ángulo de rotación &lt;%1&gt;: </translation>
    </message>
    <message>
        <source>Specify width</source>
        <translation>Precise anchura</translation>
    </message>
    <message>
        <source>Specify first corner: </source>
        <translation>Precise primera esquina: </translation>
    </message>
    <message>
        <source>Specify opposite corner or [Height/Justify/Line spacing/Rotation/Style/Width/Columns]: </source>
        <translation>Precise esquina opuesta o [Height/Justify/Line spacing/Rotation/Style/Width/Columns]: </translation>
    </message>
    <message>
        <source>
Current text style:  &quot;%1&quot;  Text height:  %2</source>
        <translation>
Estilo de texto actual:  &quot;%1&quot;  Altura de texto:  %2</translation>
    </message>
    <message>
        <source>MText: </source>
        <translation>TextoM: </translation>
    </message>
    <message>
        <source>No texts were selected.</source>
        <translation>No se ha designado ningún texto.</translation>
    </message>
    <message>
        <source>
%1 texts became one paragraph.</source>
        <translation>
%1 textos se han convertido en un párrafo.</translation>
    </message>
    <message>
        <source>Object selected is not a circle or arc.</source>
        <translation>El objeto designado no es un círculo ni un arco.</translation>
    </message>
    <message>
        <source>Specify dimension line location or leader length for text: </source>
        <translation>Precise ubicación de la línea de cota o longitud de directriz para el texto: </translation>
    </message>
    <message>
        <source>A drawing of this version has no jogged dimensions of radii: they come with R2004.</source>
        <translation>Un dibujo de esta versión no tiene cotas de radio con recodo: existen desde R2004.</translation>
    </message>
    <message>
        <source>Select arc or circle: </source>
        <translation>Designe arco o círculo: </translation>
    </message>
    <message>
        <source>Specify center location override: </source>
        <translation>Precise ubicación sustituta del centro: </translation>
    </message>
    <message>
        <source>Specify jog location: </source>
        <translation>Precise ubicación del recodo: </translation>
    </message>
    <message>
        <source>DIMCEN is 0: there is no centre mark.</source>
        <translation>DIMCEN es 0: no hay marca de centro.</translation>
    </message>
    <message>
        <source>Enter name of text style</source>
        <translation>Indique nombre del estilo de texto</translation>
    </message>
    <message>
        <source>Invalid style name.</source>
        <translation>Nombre de estilo no válido.</translation>
    </message>
    <message>
        <source>Specify full font name or font filename (TTF or SHX) &lt;%1&gt;: </source>
        <translation>Precise nombre completo de fuente o archivo de fuente (TTF o SHX) &lt;%1&gt;: </translation>
    </message>
    <message>
        <source>Specify height of text</source>
        <translation>Precise altura del texto</translation>
    </message>
    <message>
        <source>Specify width factor</source>
        <translation>Precise factor de anchura</translation>
    </message>
    <message>
        <source>Specify obliquing angle &lt;%1&gt;: </source>
        <translation>Precise ángulo de oblicuidad &lt;%1&gt;: </translation>
    </message>
    <message>
        <source>The obliquing angle is from -85 to 85 degrees.</source>
        <translation>El ángulo de oblicuidad va de -85 a 85 grados.</translation>
    </message>
    <message>
        <source>Display text backwards?</source>
        <translation>¿Mostrar texto hacia atrás?</translation>
    </message>
    <message>
        <source>Display text upside-down?</source>
        <translation>¿Mostrar texto cabeza abajo?</translation>
    </message>
    <message>
        <source>
Existing style.</source>
        <translation>
Estilo existente.</translation>
    </message>
    <message>
        <source>
New style.</source>
        <translation>
Estilo nuevo.</translation>
    </message>
    <message>
        <source>
&quot;%1&quot; is now the current text style.</source>
        <translation>
&quot;%1&quot; es ahora el estilo de texto actual.</translation>
    </message>
    <message>
        <source>Specify start point of text or [Justify/Style]: </source>
        <translation>Precise punto inicial del texto o [Justify/Style]: </translation>
    </message>
    <message>
        <source>There is no text to go on below.</source>
        <translation>No hay texto debajo del cual continuar.</translation>
    </message>
    <message>
        <source>Specify second endpoint of text baseline: </source>
        <translation>Precise segundo punto final de la línea base del texto: </translation>
    </message>
    <message>
        <source>Specify height &lt;%1&gt;: </source>
        <translation>Precise altura &lt;%1&gt;: </translation>
    </message>
    <message>
        <source>Specify rotation angle of text &lt;0&gt;: </source>
        <translation>Precise ángulo de rotación del texto &lt;0&gt;: </translation>
    </message>
    <message>
        <source>The two endpoints are one point.</source>
        <translation>Los dos puntos finales son el mismo punto.</translation>
    </message>
    <message>
        <source>
Style name: &quot;%1&quot;  Font files: %2  Height: %3  Width factor: %4</source>
        <translation>
Nombre de estilo: &quot;%1&quot;  Archivos de fuente: %2  Altura: %3  Factor de anchura: %4</translation>
    </message>
    <message>
        <source>%1 or [?] &lt;%2&gt;: </source>
        <translation>%1 o [?] &lt;%2&gt;: </translation>
    </message>
    <message>
        <source>Enter text style(s) to list &lt;*&gt;: </source>
        <translation>Indique estilos de texto que se listan &lt;*&gt;: </translation>
    </message>
    <message>
        <source>Enter style name</source>
        <translation>Indique nombre del estilo</translation>
    </message>
    <message>
        <source>Cannot find text style &quot;%1&quot;.</source>
        <translation>No se encuentra el estilo de texto &quot;%1&quot;.</translation>
    </message>
    <message>
        <source>
Cannot find file &quot;%1&quot; of reference &quot;%2&quot;.</source>
        <translation>
No se encuentra el archivo &quot;%1&quot; de la referencia &quot;%2&quot;.</translation>
    </message>
    <message>
        <source>
Warning: &quot;%1&quot; shows this drawing, which is left out there.</source>
        <translation>
Advertencia: &quot;%1&quot; muestra este dibujo, que se omite allí.</translation>
    </message>
    <message>
        <source>
&quot;%1&quot; loaded.</source>
        <translation>
&quot;%1&quot; cargada.</translation>
    </message>
    <message>
        <source>Cannot find file &quot;%1&quot; of reference &quot;%2&quot;.</source>
        <translation>No se encuentra el archivo &quot;%1&quot; de la referencia &quot;%2&quot;.</translation>
    </message>
    <message>
        <source>
&quot;%1&quot; is a block of this drawing now.</source>
        <translation>
&quot;%1&quot; es ahora un bloque de este dibujo.</translation>
    </message>
    <message>
        <source> %1 of its records could not be taken over.</source>
        <translation> No se han podido incorporar %1 de sus registros.</translation>
    </message>
    <message>
        <source>Enter an option [?/Name/Select] &lt;Select&gt;: </source>
        <translation>Indique una opción [?/Name/Select] &lt;Select&gt;: </translation>
    </message>
    <message>
        <source>
Blocks with attributes:
  </source>
        <translation>
Bloques con atributos:
  </translation>
    </message>
    <message>
        <source>Enter name of block to synchronize or [?]: </source>
        <translation>Indique nombre del bloque que se sincroniza o [?]: </translation>
    </message>
    <message>
        <source>Select a block: </source>
        <translation>Designe un bloque: </translation>
    </message>
    <message>
        <source>That is no block reference.</source>
        <translation>Eso no es una referencia de bloque.</translation>
    </message>
    <message>
        <source>ATTSYNC block %1? [Yes/No] &lt;Yes&gt;: </source>
        <translation>¿Aplicar ATTSYNC al bloque %1? [Yes/No] &lt;Yes&gt;: </translation>
    </message>
    <message>
        <source>Block &quot;%1&quot; not found.</source>
        <translation>No se encuentra el bloque &quot;%1&quot;.</translation>
    </message>
    <message>
        <source>
%1 block references were synchronized.</source>
        <translation>
%1 referencias de bloque sincronizadas.</translation>
    </message>
    <message>
        <source>Enter block name specification &lt;*&gt;: </source>
        <translation>Indique filtro de nombre de bloque &lt;*&gt;: </translation>
    </message>
    <message>
        <source>Enter attribute tag specification &lt;*&gt;: </source>
        <translation>Indique filtro de identificador de atributo &lt;*&gt;: </translation>
    </message>
    <message>
        <source>Enter attribute value specification &lt;*&gt;: </source>
        <translation>Indique filtro de valor de atributo &lt;*&gt;: </translation>
    </message>
    <message>
        <source>
%1 attributes selected.</source>
        <translation>
%1 atributos designados.</translation>
    </message>
    <message>
        <source>Enter string to change: </source>
        <translation>Indique cadena que se cambia: </translation>
    </message>
    <message>
        <source>Enter new string: </source>
        <translation>Indique nueva cadena: </translation>
    </message>
    <message>
        <source>Enter type of value modification [Change/Replace] &lt;R&gt;: </source>
        <translation>Indique tipo de modificación del valor [Change/Replace] &lt;R&gt;: </translation>
    </message>
    <message>
        <source>Enter new attribute value: </source>
        <translation>Indique nuevo valor del atributo: </translation>
    </message>
    <message>
        <source>Specify new height &lt;%1&gt;: </source>
        <translation>Precise nueva altura &lt;%1&gt;: </translation>
    </message>
    <message>
        <source>Enter new layer name: </source>
        <translation>Indique nombre de nueva capa: </translation>
    </message>
    <message>
        <source>Enter an option [Value/Height/Layer/Next] &lt;N&gt;: </source>
        <translation>Indique una opción [Value/Height/Layer/Next] &lt;N&gt;: </translation>
    </message>
    <message>
        <source>Edit attributes one at a time? [Yes/No] &lt;Y&gt;: </source>
        <translation>¿Editar los atributos uno por uno? [Yes/No] &lt;Y&gt;: </translation>
    </message>
    <message>
        <source>Edit only attributes visible on screen? [Yes/No] &lt;Y&gt;: </source>
        <translation>¿Editar solo los atributos visibles en pantalla? [Yes/No] &lt;Y&gt;: </translation>
    </message>
    <message>
        <source>%1, . for none &lt;%2&gt;: </source>
        <translation>%1, . para ninguno &lt;%2&gt;: </translation>
    </message>
    <message>
        <source>The block has no attributes.</source>
        <translation>El bloque no tiene atributos.</translation>
    </message>
    <message>
        <source>Enter number or tag of attribute or [?] &lt;exit&gt;: </source>
        <translation>Indique número o identificador del atributo o [?] &lt;salir&gt;: </translation>
    </message>
    <message>
        <source>The value of %1 is constant.</source>
        <translation>El valor de %1 es constante.</translation>
    </message>
    <message>
        <source>There is no attribute &quot;%1&quot;.</source>
        <translation>No hay ningún atributo &quot;%1&quot;.</translation>
    </message>
    <message>
        <source>
Defined blocks.</source>
        <translation>
Bloques definidos.</translation>
    </message>
    <message>
        <source>
%1 user blocks.</source>
        <translation>
%1 bloques de usuario.</translation>
    </message>
    <message>
        <source>Enter block name or [?]: </source>
        <translation>Indique nombre de bloque o [?]: </translation>
    </message>
    <message>
        <source>Enter block(s) to list &lt;*&gt;: </source>
        <translation>Indique bloques que se listan &lt;*&gt;: </translation>
    </message>
    <message>
        <source>&quot;%1&quot; cannot be the name of a block.</source>
        <translation>&quot;%1&quot; no puede ser el nombre de un bloque.</translation>
    </message>
    <message>
        <source>Block &quot;%1&quot; cannot be redefined.</source>
        <translation>El bloque &quot;%1&quot; no se puede redefinir.</translation>
    </message>
    <message>
        <source>Block &quot;%1&quot; already exists. Redefine it? [Yes/No] &lt;N&gt;: </source>
        <translation>El bloque &quot;%1&quot; ya existe. ¿Redefinirlo? [Yes/No] &lt;N&gt;: </translation>
    </message>
    <message>
        <source>Block &quot;%1&quot; would show itself.</source>
        <translation>El bloque &quot;%1&quot; se mostraría a sí mismo.</translation>
    </message>
    <message>
        <source>Specify insertion base point or [Annotative]: </source>
        <translation>Precise punto base de inserción o [Annotative]: </translation>
    </message>
    <message>
        <source>
Blocks are made without annotation scales.</source>
        <translation>
Los bloques se crean sin escalas de anotación.</translation>
    </message>
    <message>
        <source>Create annotative block? [Yes/No] &lt;N&gt;: </source>
        <translation>¿Crear bloque anotativo? [Yes/No] &lt;N&gt;: </translation>
    </message>
    <message>
        <source>Enter base point &lt;%1&gt;: </source>
        <translation>Indique punto base &lt;%1&gt;: </translation>
    </message>
    <message>
        <source>
%1 field(s) found
%1 field(s) updated</source>
        <translation>
%1 campo(s) encontrado(s)
%1 campo(s) actualizado(s)</translation>
    </message>
    <message>
        <source>Specify first point: </source>
        <translation>Precise primer punto: </translation>
    </message>
    <message>
        <source>Specify next point or [Undo]: </source>
        <translation>Precise punto siguiente o [Undo]: </translation>
    </message>
    <message>
        <source>Select polyline: </source>
        <translation>Designe polilínea: </translation>
    </message>
    <message>
        <source>Specify clipping boundary or select invert option: [Select polyline/Polygonal/Rectangular/Invert clip] &lt;Rectangular&gt;: </source>
        <translation>Precise contorno delimitador o elija la opción de inversión: [Select polyline/Polygonal/Rectangular/Invert clip] &lt;Rectangular&gt;: </translation>
    </message>
    <message>
        <source>
Objects inside boundary will be hidden.</source>
        <translation>
Se ocultarán los objetos del interior del contorno.</translation>
    </message>
    <message>
        <source>
Objects outside boundary will be hidden.</source>
        <translation>
Se ocultarán los objetos del exterior del contorno.</translation>
    </message>
    <message>
        <source>That encloses nothing.</source>
        <translation>Eso no encierra nada.</translation>
    </message>
    <message>
        <source>
%1 could not be clipped.</source>
        <translation>
%1 no se han podido delimitar.</translation>
    </message>
    <message>
        <source>Delete old boundary(s)? [Yes/No] &lt;Yes&gt;: </source>
        <translation>¿Borrar contornos antiguos? [Yes/No] &lt;Yes&gt;: </translation>
    </message>
    <message>
        <source>No block references were chosen.</source>
        <translation>No se ha designado ninguna referencia de bloque.</translation>
    </message>
    <message>
        <source>Enter clipping option [ON/OFF/Delete/generate Polyline/New boundary] &lt;New&gt;: </source>
        <translation>Indique opción de delimitación [ON/OFF/Delete/generate Polyline/New boundary] &lt;New&gt;: </translation>
    </message>
    <message>
        <source>Nothing of that can be copied.</source>
        <translation>Nada de eso se puede copiar.</translation>
    </message>
    <message>
        <source>Specify base point: </source>
        <translation>Precise punto base: </translation>
    </message>
    <message>
        <source>The clipboard is empty.</source>
        <translation>El portapapeles está vacío.</translation>
    </message>
    <message>
        <source>
%1 could not be pasted.</source>
        <translation>
%1 no se han podido pegar.</translation>
    </message>
    <message>
        <source>Specify insertion point: </source>
        <translation>Precise punto de inserción: </translation>
    </message>
    <message>
        <source>
Defined groups.                            Selectable</source>
        <translation>
Grupos definidos.                           Seleccionable</translation>
    </message>
    <message>
        <source>Enter group name(s) to list &lt;*&gt;: </source>
        <translation>Indique nombres de grupos que se listan &lt;*&gt;: </translation>
    </message>
    <message>
        <source>Enter a group name or [?]: </source>
        <translation>Indique nombre de un grupo o [?]: </translation>
    </message>
    <message>
        <source>Group &quot;%1&quot; does not exist.</source>
        <translation>El grupo &quot;%1&quot; no existe.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; cannot be the name of a group.</source>
        <translation>&quot;%1&quot; no puede ser el nombre de un grupo.</translation>
    </message>
    <message>
        <source>Group &quot;%1&quot; already exists.</source>
        <translation>El grupo &quot;%1&quot; ya existe.</translation>
    </message>
    <message>
        <source>A group needs an entity.</source>
        <translation>Un grupo necesita una entidad.</translation>
    </message>
    <message>
        <source>A drawing of this version has no groups.</source>
        <translation>Un dibujo de esta versión no tiene grupos.</translation>
    </message>
    <message>
        <source>Enter a group description: </source>
        <translation>Indique descripción del grupo: </translation>
    </message>
    <message>
        <source>Select objects: </source>
        <translation>Designe objetos: </translation>
    </message>
    <message>
        <source>Enter a new name for group or [?]: </source>
        <translation>Indique nuevo nombre del grupo o [?]: </translation>
    </message>
    <message>
        <source>Enter position number of the object to reorder %1 or [Reverse]: </source>
        <translation>Indique número de posición del objeto que se reordena %1 o [Reverse]: </translation>
    </message>
    <message>
        <source>Enter new position number for the object %1: </source>
        <translation>Indique nuevo número de posición del objeto %1: </translation>
    </message>
    <message>
        <source>Enter number of objects to reorder &lt;1&gt;: </source>
        <translation>Indique número de objetos que se reordenan &lt;1&gt;: </translation>
    </message>
    <message>
        <source>Requires a number from 0 to %1.</source>
        <translation>Se requiere un número de 0 a %1.</translation>
    </message>
    <message>
        <source>Is group selectable? [Yes/No] &lt;Y&gt;: </source>
        <translation>¿Es seleccionable el grupo? [Yes/No] &lt;Y&gt;: </translation>
    </message>
    <message>
        <source>Enter a group option [?/Order/Add/Remove/Explode/REName/Selectable/Create] &lt;Create&gt;: </source>
        <translation>Indique una opción de grupo [?/Order/Add/Remove/Explode/REName/Selectable/Create] &lt;Create&gt;: </translation>
    </message>
    <message>
        <source>
%1 of its entities became ones that a drawing of this version has.</source>
        <translation>
%1 de sus entidades se han convertido en otras que existen en un dibujo de esta versión.</translation>
    </message>
    <message>
        <source>
%1 of its entities could not be taken over.</source>
        <translation>
No se han podido incorporar %1 de sus entidades.</translation>
    </message>
    <message>
        <source>Cannot find block or file &quot;%1&quot;.</source>
        <translation>No se encuentra el bloque o archivo &quot;%1&quot;.</translation>
    </message>
    <message>
        <source>Enter block name or [?] &lt;%1&gt;: </source>
        <translation>Indique nombre de bloque o [?] &lt;%1&gt;: </translation>
    </message>
    <message>
        <source>Specify scale factor for XYZ axes &lt;1&gt;: </source>
        <translation>Precise factor de escala para los ejes XYZ &lt;1&gt;: </translation>
    </message>
    <message>
        <source>Specify %1 scale factor &lt;1&gt;: </source>
        <translation>Precise factor de escala %1 &lt;1&gt;: </translation>
    </message>
    <message>
        <source>Enter %1 scale factor &lt;use X scale factor&gt;: </source>
        <translation>Indique factor de escala %1 &lt;usar factor de escala X&gt;: </translation>
    </message>
    <message>
        <source>Enter X scale factor or [Corner/XYZ] &lt;1&gt;: </source>
        <translation>Indique factor de escala X o [Corner/XYZ] &lt;1&gt;: </translation>
    </message>
    <message>
        <source>Value must be nonzero.</source>
        <translation>El valor debe ser distinto de cero.</translation>
    </message>
    <message>
        <source>Specify X scale factor &lt;1&gt;: </source>
        <translation>Precise factor de escala X &lt;1&gt;: </translation>
    </message>
    <message>
        <source>Specify insertion point or [Scale/X/Y/Z/Rotate]: </source>
        <translation>Precise punto de inserción o [Scale/X/Y/Z/Rotate]: </translation>
    </message>
    <message>
        <source>Specify scale factor &lt;1&gt;: </source>
        <translation>Precise factor de escala &lt;1&gt;: </translation>
    </message>
    <message>
        <source>Cannot find file &quot;%1&quot;.</source>
        <translation>No se encuentra el archivo &quot;%1&quot;.</translation>
    </message>
    <message>
        <source>The drawing cannot refer to itself.</source>
        <translation>El dibujo no puede referirse a sí mismo.</translation>
    </message>
    <message>
        <source>The name &quot;%1&quot; is a block&apos;s already.</source>
        <translation>El nombre &quot;%1&quot; ya es de un bloque.</translation>
    </message>
    <message>
        <source>The name &quot;%1&quot; cannot be used.</source>
        <translation>No se puede usar el nombre &quot;%1&quot;.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no drawing.</source>
        <translation>&quot;%1&quot; no es un dibujo.</translation>
    </message>
    <message>
        <source>
Xref &quot;%1&quot; has already been defined.
Using existing definition.</source>
        <translation>
La RefX &quot;%1&quot; ya está definida.
Se usa la definición existente.</translation>
    </message>
    <message>
        <source>
%1 Xref &quot;%2&quot;: %3</source>
        <translation>
%1 RefX &quot;%2&quot;: %3</translation>
    </message>
    <message>
        <source>
No matching references found.</source>
        <translation>
No se han encontrado referencias coincidentes.</translation>
    </message>
    <message>
        <source>
&quot;%1&quot; was not detached: block &quot;%2&quot; holds it.</source>
        <translation>
&quot;%1&quot; no se ha desenlazado: la contiene el bloque &quot;%2&quot;.</translation>
    </message>
    <message>
        <source>
&quot;%1&quot; was not detached.</source>
        <translation>
&quot;%1&quot; no se ha desenlazado.</translation>
    </message>
    <message>
        <source>
&quot;%1&quot; detached.</source>
        <translation>
&quot;%1&quot; desenlazada.</translation>
    </message>
    <message>
        <source>
&quot;%1&quot; unloaded.</source>
        <translation>
&quot;%1&quot; descargada.</translation>
    </message>
    <message>
        <source>Enter xref name(s) to list &lt;*&gt;: </source>
        <translation>Indique nombres de RefX que se listan &lt;*&gt;: </translation>
    </message>
    <message>
        <source>Enter xref name(s) to bind: </source>
        <translation>Indique nombres de RefX que se unen: </translation>
    </message>
    <message>
        <source>Enter xref name(s) to detach: </source>
        <translation>Indique nombres de RefX que se desenlazan: </translation>
    </message>
    <message>
        <source>Enter xref name(s) to unload: </source>
        <translation>Indique nombres de RefX que se descargan: </translation>
    </message>
    <message>
        <source>Enter xref name(s) to reload: </source>
        <translation>Indique nombres de RefX que se recargan: </translation>
    </message>
    <message>
        <source>Enter xref name(s) to edit path: </source>
        <translation>Indique nombres de RefX cuya ruta se edita: </translation>
    </message>
    <message>
        <source>
Xref name: %1
Old path: %2</source>
        <translation>
Nombre de RefX: %1
Ruta antigua: %2</translation>
    </message>
    <message>
        <source>Enter new path: </source>
        <translation>Indique nueva ruta: </translation>
    </message>
    <message>
        <source>Enter name of file to attach: </source>
        <translation>Indique nombre del archivo que se enlaza: </translation>
    </message>
    <message>
        <source>Enter an option [?/Bind/Detach/Path/Unload/Reload/Overlay/Attach] &lt;Attach&gt;: </source>
        <translation>Indique una opción [?/Bind/Detach/Path/Unload/Reload/Overlay/Attach] &lt;Attach&gt;: </translation>
    </message>
    <message>
        <source>
Nothing to write.</source>
        <translation>
No hay nada que escribir.</translation>
    </message>
    <message>
        <source>
%1 was written as DXF text.</source>
        <translation>
%1 se ha escrito como texto DXF.</translation>
    </message>
    <message>
        <source>
%1 was written.</source>
        <translation>
%1 se ha escrito.</translation>
    </message>
    <message>
        <source>Enter name of output file: </source>
        <translation>Indique nombre del archivo de salida: </translation>
    </message>
    <message>
        <source>Enter name of existing block, [= (same name)/* (whole drawing)] &lt;choose entities&gt;: </source>
        <translation>Indique nombre de un bloque existente, [= (same name)/* (whole drawing)] &lt;elegir entidades&gt;: </translation>
    </message>
    <message>
        <source>
Block &quot;%1&quot; not found.</source>
        <translation>
No se encuentra el bloque &quot;%1&quot;.</translation>
    </message>
    <message>
        <source>Specify insertion base point: </source>
        <translation>Precise punto base de inserción: </translation>
    </message>
    <message>
        <source>
1 was on a locked layer.</source>
        <translation>
1 estaba en una capa bloqueada.</translation>
    </message>
    <message>
        <source>
%1 were on a locked layer.</source>
        <translation>
%1 estaban en una capa bloqueada.</translation>
    </message>
    <message>
        <source>The numbers are too large.</source>
        <translation>Los números son demasiado grandes.</translation>
    </message>
    <message>
        <source>
%1 could not be changed.</source>
        <translation>
%1 no se han podido cambiar.</translation>
    </message>
    <message>
        <source>
%1 could not be mirrored.</source>
        <translation>
%1 no se han podido reflejar.</translation>
    </message>
    <message>
        <source>
%1 could not be copied.</source>
        <translation>
%1 no se han podido copiar.</translation>
    </message>
    <message>
        <source>
Linetype &quot;%1&quot; loaded.</source>
        <translation>
Tipo de línea &quot;%1&quot; cargado.</translation>
    </message>
    <message>
        <source>Specify displacement &lt;%1&gt;: </source>
        <translation>Precise desplazamiento &lt;%1&gt;: </translation>
    </message>
    <message>
        <source>Specify base point or [Displacement] &lt;Displacement&gt;: </source>
        <translation>Precise punto base o [Displacement] &lt;Displacement&gt;: </translation>
    </message>
    <message>
        <source>Specify second point or &lt;use first point as displacement&gt;: </source>
        <translation>Precise segundo punto o &lt;usar primer punto como desplazamiento&gt;: </translation>
    </message>
    <message>
        <source>Cannot find %1 &quot;%2&quot;.</source>
        <translation>No se encuentra %1 &quot;%2&quot;.</translation>
    </message>
    <message>
        <source>%1 already exists. Replace it? [Yes/No] &lt;No&gt;: </source>
        <translation>%1 ya existe. ¿Reemplazarlo? [Yes/No] &lt;No&gt;: </translation>
    </message>
    <message>
        <source>Specify the reference angle &lt;%1&gt;: </source>
        <translation>Precise ángulo de referencia &lt;%1&gt;: </translation>
    </message>
    <message>
        <source>Specify the new angle or [Points] &lt;%1&gt;: </source>
        <translation>Precise nuevo ángulo o [Points] &lt;%1&gt;: </translation>
    </message>
    <message>
        <source>Specify reference length &lt;%1&gt;: </source>
        <translation>Precise longitud de referencia &lt;%1&gt;: </translation>
    </message>
    <message>
        <source>Specify new length or [Points] &lt;%1&gt;: </source>
        <translation>Precise nueva longitud o [Points] &lt;%1&gt;: </translation>
    </message>
    <message>
        <source>(ADD mode) </source>
        <translation>(modo AÑADIR) </translation>
    </message>
    <message>
        <source>(SUBTRACT mode) </source>
        <translation>(modo SUSTRAER) </translation>
    </message>
    <message>
        <source>
Area = %1, %2 = %3</source>
        <translation>
Área = %1, %2 = %3</translation>
    </message>
    <message>
        <source>
Total area = %1</source>
        <translation>
Área total = %1</translation>
    </message>
    <message>
        <source>
Selected object does not have an area.</source>
        <translation>
El objeto designado no tiene área.</translation>
    </message>
    <message>
        <source>%1Specify next point or [Undo]: </source>
        <translation>%1Precise punto siguiente o [Undo]: </translation>
    </message>
    <message>
        <source>%1Specify next point or [Undo/Total] &lt;Total&gt;: </source>
        <translation>%1Precise punto siguiente o [Undo/Total] &lt;Total&gt;: </translation>
    </message>
    <message>
        <source>Specify first corner point or [Object/Add area/Subtract area] &lt;Object&gt;: </source>
        <translation>Precise primera esquina o [Object/Add area/Subtract area] &lt;Object&gt;: </translation>
    </message>
    <message>
        <source>Specify first corner point or [Object/Subtract area]: </source>
        <translation>Precise primera esquina o [Object/Subtract area]: </translation>
    </message>
    <message>
        <source>Specify first corner point or [Object/Add area]: </source>
        <translation>Precise primera esquina o [Object/Add area]: </translation>
    </message>
    <message>
        <source>Select object: </source>
        <translation>Designe objeto: </translation>
    </message>
    <message>
        <source>Specify second break point or [First point]: </source>
        <translation>Precise segundo punto de ruptura o [First point]: </translation>
    </message>
    <message>
        <source>Specify first break point: </source>
        <translation>Precise primer punto de ruptura: </translation>
    </message>
    <message>
        <source>Specify second break point: </source>
        <translation>Precise segundo punto de ruptura: </translation>
    </message>
    <message>
        <source>A whole circle or ellipse cannot be broken at one point.</source>
        <translation>Un círculo o una elipse enteros no se pueden partir en un punto.</translation>
    </message>
    <message>
        <source>The object cannot be broken there.</source>
        <translation>El objeto no se puede partir ahí.</translation>
    </message>
    <message>
        <source>The lines are parallel.</source>
        <translation>Las líneas son paralelas.</translation>
    </message>
    <message>
        <source>The lines are one.</source>
        <translation>Las líneas son la misma.</translation>
    </message>
    <message>
        <source>The angle leads to no cut.</source>
        <translation>El ángulo no conduce a ningún corte.</translation>
    </message>
    <message>
        <source>Radius is too large.</source>
        <translation>El radio es demasiado grande.</translation>
    </message>
    <message>
        <source>Distance is too large.</source>
        <translation>La distancia es demasiado grande.</translation>
    </message>
    <message>
        <source>There is no arc of that radius.</source>
        <translation>No hay ningún arco de ese radio.</translation>
    </message>
    <message>
        <source>They do not lie in one plane.</source>
        <translation>No están en un mismo plano.</translation>
    </message>
    <message>
        <source>Two different ones are needed.</source>
        <translation>Se necesitan dos distintos.</translation>
    </message>
    <message>
        <source>Only straight lines can be chamfered.</source>
        <translation>Solo se pueden achaflanar líneas rectas.</translation>
    </message>
    <message>
        <source>Enter Trim mode option [Trim/No trim]</source>
        <translation>Indique opción del modo Recortar [Trim/No trim]</translation>
    </message>
    <message>
        <source>Specify first chamfer distance</source>
        <translation>Precise primera distancia de chaflán</translation>
    </message>
    <message>
        <source>Specify second chamfer distance</source>
        <translation>Precise segunda distancia de chaflán</translation>
    </message>
    <message>
        <source>Specify chamfer length on the first line</source>
        <translation>Precise longitud de chaflán en la primera línea</translation>
    </message>
    <message>
        <source>Specify chamfer angle from the first line &lt;%1&gt;: </source>
        <translation>Precise ángulo de chaflán desde la primera línea &lt;%1&gt;: </translation>
    </message>
    <message>
        <source>Specify fillet radius</source>
        <translation>Precise radio de empalme</translation>
    </message>
    <message>
        <source>Enter trim method [Distance/Angle]</source>
        <translation>Indique método de recorte [Distance/Angle]</translation>
    </message>
    <message>
        <source>Select 2D polyline or [Radius]: </source>
        <translation>Designe polilínea 2D o [Radius]: </translation>
    </message>
    <message>
        <source>Select 2D polyline or [Distance/Angle/mEthod]: </source>
        <translation>Designe polilínea 2D o [Distance/Angle/mEthod]: </translation>
    </message>
    <message>
        <source>Requires a flat polyline.</source>
        <translation>Se requiere una polilínea plana.</translation>
    </message>
    <message>
        <source>
%1 lines were filleted</source>
        <translation>
%1 líneas empalmadas</translation>
    </message>
    <message>
        <source>
%1 lines were chamfered</source>
        <translation>
%1 líneas achaflanadas</translation>
    </message>
    <message>
        <source>
%1 were too short</source>
        <translation>
%1 eran demasiado cortas</translation>
    </message>
    <message>
        <source>
%1 were parallel</source>
        <translation>
%1 eran paralelas</translation>
    </message>
    <message>
        <source>Requires a line, arc, circle or straight stretch of a polyline in the user&apos;s plane.</source>
        <translation>Se requiere una línea, un arco, un círculo o un tramo recto de polilínea en el plano del usuario.</translation>
    </message>
    <message>
        <source>Select second object or [Radius]: </source>
        <translation>Designe segundo objeto o [Radius]: </translation>
    </message>
    <message>
        <source>Select second line or [Distance/Angle/Method]: </source>
        <translation>Designe segunda línea o [Distance/Angle/Method]: </translation>
    </message>
    <message>
        <source>Select first object or [Undo/Polyline/Radius/Trim/Multiple]: </source>
        <translation>Designe primer objeto o [Undo/Polyline/Radius/Trim/Multiple]: </translation>
    </message>
    <message>
        <source>Select first line or [Undo/Polyline/Distance/Angle/Trim/mEthod/Multiple]: </source>
        <translation>Designe primera línea o [Undo/Polyline/Distance/Angle/Trim/mEthod/Multiple]: </translation>
    </message>
    <message>
        <source>
Nothing to undo</source>
        <translation>
No hay nada que deshacer</translation>
    </message>
    <message>
        <source>
Current settings: Mode = %1, Radius = %2</source>
        <translation>
Parámetros actuales: Modo = %1, Radio = %2</translation>
    </message>
    <message>
        <source>
(%1 mode) Current chamfer Dist1 = %2, Dist2 = %3</source>
        <translation>
(Modo %1) Chaflán actual Dist1 = %2, Dist2 = %3</translation>
    </message>
    <message>
        <source>The corner has no room for that.</source>
        <translation>La esquina no tiene sitio para eso.</translation>
    </message>
    <message>
        <source>Only the ends of open polylines, lines and arcs can be joined.</source>
        <translation>Solo se pueden unir los extremos de polilíneas abiertas, líneas y arcos.</translation>
    </message>
    <message>
        <source>Only neighbouring stretches of a polyline make a corner.</source>
        <translation>Solo los tramos contiguos de una polilínea forman una esquina.</translation>
    </message>
    <message>
        <source>Enter name of block to insert: </source>
        <translation>Indique nombre del bloque que se inserta: </translation>
    </message>
    <message>
        <source>Align block with object?</source>
        <translation>¿Alinear bloque con objeto?</translation>
    </message>
    <message>
        <source>Select object to divide: </source>
        <translation>Designe objeto que se divide: </translation>
    </message>
    <message>
        <source>Enter the number of segments or [Block]: </source>
        <translation>Indique número de segmentos o [Block]: </translation>
    </message>
    <message>
        <source>Enter the number of segments: </source>
        <translation>Indique número de segmentos: </translation>
    </message>
    <message>
        <source>The number must be between 2 and %1.</source>
        <translation>El número debe estar entre 2 y %1.</translation>
    </message>
    <message>
        <source>Select object to measure: </source>
        <translation>Designe objeto que se gradúa: </translation>
    </message>
    <message>
        <source>Specify length of segment or [Block]: </source>
        <translation>Precise longitud de segmento o [Block]: </translation>
    </message>
    <message>
        <source>Specify length of segment: </source>
        <translation>Precise longitud de segmento: </translation>
    </message>
    <message>
        <source>These would be more than %1.</source>
        <translation>Serían más de %1.</translation>
    </message>
    <message>
        <source>
%1 lines joined into 1 line</source>
        <translation>
%1 líneas unidas en 1 línea</translation>
    </message>
    <message>
        <source>
%1 arcs joined into 1 arc</source>
        <translation>
%1 arcos unidos en 1 arco</translation>
    </message>
    <message>
        <source>
%1 ellipses joined into 1 ellipse</source>
        <translation>
%1 elipses unidas en 1 elipse</translation>
    </message>
    <message>
        <source>
%1 objects converted to 1 polyline</source>
        <translation>
%1 objetos convertidos en 1 polilínea</translation>
    </message>
    <message>
        <source>
%1 objects converted to 1 spline</source>
        <translation>
%1 objetos convertidos en 1 spline</translation>
    </message>
    <message>
        <source>
%1 objects discarded from the operation</source>
        <translation>
%1 objetos descartados de la operación</translation>
    </message>
    <message>
        <source>Select source object or multiple objects to join at once: </source>
        <translation>Designe objeto de origen o varios objetos que se unen a la vez: </translation>
    </message>
    <message>
        <source>Select arcs to join to source or [cLose]: </source>
        <translation>Designe arcos que se unen al de origen o [cLose]: </translation>
    </message>
    <message>
        <source>Select objects to join: </source>
        <translation>Designe objetos que se unen: </translation>
    </message>
    <message>
        <source>
Current length: %1</source>
        <translation>
Longitud actual: %1</translation>
    </message>
    <message>
        <source>, included angle: %1</source>
        <translation>, ángulo incluido: %1</translation>
    </message>
    <message>
        <source>
This object cannot be lengthened.</source>
        <translation>
Este objeto no se puede cambiar de longitud.</translation>
    </message>
    <message>
        <source>Select an object to change or [Undo]: </source>
        <translation>Designe un objeto que se cambia o [Undo]: </translation>
    </message>
    <message>
        <source>Specify new endpoint: </source>
        <translation>Precise nuevo punto final: </translation>
    </message>
    <message>
        <source>
The object cannot have that length.</source>
        <translation>
El objeto no puede tener esa longitud.</translation>
    </message>
    <message>
        <source>Enter delta length or [Angle] &lt;%1&gt;: </source>
        <translation>Indique incremento de longitud o [Angle] &lt;%1&gt;: </translation>
    </message>
    <message>
        <source>Enter delta angle &lt;%1&gt;: </source>
        <translation>Indique incremento de ángulo &lt;%1&gt;: </translation>
    </message>
    <message>
        <source>Specify total length or [Angle] &lt;%1&gt;: </source>
        <translation>Precise longitud total o [Angle] &lt;%1&gt;: </translation>
    </message>
    <message>
        <source>Specify total angle &lt;%1&gt;: </source>
        <translation>Precise ángulo total &lt;%1&gt;: </translation>
    </message>
    <message>
        <source>Enter percentage length &lt;100.0000&gt;: </source>
        <translation>Indique porcentaje de longitud &lt;100.0000&gt;: </translation>
    </message>
    <message>
        <source>Select an object to measure or [DElta/Percent/Total/DYnamic]: </source>
        <translation>Designe un objeto que se mide o [DElta/Percent/Total/DYnamic]: </translation>
    </message>
    <message>
        <source>Specify offset distance or [Through/Erase/Layer] &lt;%1&gt;: </source>
        <translation>Precise distancia de desfase o [Through/Erase/Layer] &lt;%1&gt;: </translation>
    </message>
    <message>
        <source>Erase source object after offsetting?</source>
        <translation>¿Borrar el objeto de origen tras el desfase?</translation>
    </message>
    <message>
        <source>Enter layer option for offset objects [Current/Source]</source>
        <translation>Indique opción de capa para los objetos desfasados [Current/Source]</translation>
    </message>
    <message>
        <source>Specify through point</source>
        <translation>Precise punto por el que pasa</translation>
    </message>
    <message>
        <source>Specify point on side to offset</source>
        <translation>Precise punto en el lado de desfase</translation>
    </message>
    <message>
        <source> or [Exit/Undo] &lt;next object&gt;: </source>
        <translation> o [Exit/Undo] &lt;objeto siguiente&gt;: </translation>
    </message>
    <message>
        <source> or [Exit/Multiple/Undo] &lt;Exit&gt;: </source>
        <translation> o [Exit/Multiple/Undo] &lt;Exit&gt;: </translation>
    </message>
    <message>
        <source>Cannot offset that object so far.</source>
        <translation>Ese objeto no se puede desfasar tanto.</translation>
    </message>
    <message>
        <source>
Select object to offset or [Exit/Undo] &lt;Exit&gt;: </source>
        <translation>
Designe objeto que se desfasa o [Exit/Undo] &lt;Exit&gt;: </translation>
    </message>
    <message>
        <source>Cannot offset that object.</source>
        <translation>Ese objeto no se puede desfasar.</translation>
    </message>
    <message>
        <source>Enter property to ignore [%1]</source>
        <translation>Indique propiedad que se omite [%1]</translation>
    </message>
    <message>
        <source>Enter an option to change [Done/Ignore/Tolerance/Overlaps/Endtoend]</source>
        <translation>Indique una opción que se cambia [Done/Ignore/Tolerance/Overlaps/Endtoend]</translation>
    </message>
    <message>
        <source>Specify tolerance</source>
        <translation>Precise tolerancia</translation>
    </message>
    <message>
        <source>Combine lines and arcs that overlap?</source>
        <translation>¿Combinar líneas y arcos que se solapan?</translation>
    </message>
    <message>
        <source>Combine lines and arcs that meet end to end?</source>
        <translation>¿Combinar líneas y arcos que se tocan por los extremos?</translation>
    </message>
    <message>
        <source>
%1 duplicate(s) deleted</source>
        <translation>
%1 duplicado(s) borrado(s)</translation>
    </message>
    <message>
        <source>
%1 overlapping object(s) or segment(s) deleted</source>
        <translation>
%1 objeto(s) o segmento(s) solapado(s) borrado(s)</translation>
    </message>
    <message>
        <source>
Select polyline or [Multiple]: </source>
        <translation>
Designe polilínea o [Multiple]: </translation>
    </message>
    <message>
        <source>Object selected is not a polyline.</source>
        <translation>El objeto designado no es una polilínea.</translation>
    </message>
    <message>
        <source>
Object selected is not a polyline</source>
        <translation>
El objeto designado no es una polilínea</translation>
    </message>
    <message>
        <source>Do you want to turn it into one?</source>
        <translation>¿Desea convertirlo en una?</translation>
    </message>
    <message>
        <source>Convert Lines, Arcs and Splines to polylines</source>
        <translation>Convertir líneas, arcos y splines en polilíneas</translation>
    </message>
    <message>
        <source>
Splines do not become part of a polyline: %1 left out.</source>
        <translation>
Las splines no pasan a formar parte de una polilínea: %1 omitidas.</translation>
    </message>
    <message>
        <source>
%1 segments added to polyline</source>
        <translation>
%1 segmentos añadidos a la polilínea</translation>
    </message>
    <message>
        <source>Enter fuzz distance or [Jointype] &lt;%1&gt;: </source>
        <translation>Indique distancia de aproximación o [Jointype] &lt;%1&gt;: </translation>
    </message>
    <message>
        <source>Enter a vertex join type [Extend/Add/Both]</source>
        <translation>Indique tipo de unión de vértices [Extend/Add/Both]</translation>
    </message>
    <message>
        <source>
%1 segments added to %2 polylines</source>
        <translation>
%1 segmentos añadidos a %2 polilíneas</translation>
    </message>
    <message>
        <source>Specify new width for all segments: </source>
        <translation>Precise nuevo grosor de todos los segmentos: </translation>
    </message>
    <message>
        <source>Enter polyline linetype generation option [ON/OFF]</source>
        <translation>Indique opción de generación del tipo de línea de polilíneas [ON/OFF]</translation>
    </message>
    <message>
        <source>Enter an option [Close/Open/Join/Width/Fit/Spline/Decurve/Ltype gen/Reverse/Undo]: </source>
        <translation>Indique una opción [Close/Open/Join/Width/Fit/Spline/Decurve/Ltype gen/Reverse/Undo]: </translation>
    </message>
    <message>
        <source>Enter an option [%1/Edit vertex/Spline curve/Decurve/Reverse/Undo]: </source>
        <translation>Indique una opción [%1/Edit vertex/Spline curve/Decurve/Reverse/Undo]: </translation>
    </message>
    <message>
        <source>Enter an option [%1/Join/Width/Edit vertex/Fit/Spline/Decurve/Ltype gen/Reverse/Undo]: </source>
        <translation>Indique una opción [%1/Join/Width/Edit vertex/Fit/Spline/Decurve/Ltype gen/Reverse/Undo]: </translation>
    </message>
    <message>
        <source>Enter an option [Next/Previous/Go/eXit] &lt;N&gt;: </source>
        <translation>Indique una opción [Next/Previous/Go/eXit] &lt;N&gt;: </translation>
    </message>
    <message>
        <source>
Nothing would be left on one side.</source>
        <translation>
No quedaría nada en uno de los lados.</translation>
    </message>
    <message>
        <source>Specify starting width for next segment</source>
        <translation>Precise grosor inicial del siguiente segmento</translation>
    </message>
    <message>
        <source>Specify ending width for next segment</source>
        <translation>Precise grosor final del siguiente segmento</translation>
    </message>
    <message>
        <source>Specify location for new vertex: </source>
        <translation>Precise ubicación del nuevo vértice: </translation>
    </message>
    <message>
        <source>Specify direction of vertex tangent: </source>
        <translation>Precise dirección de la tangente del vértice: </translation>
    </message>
    <message>
        <source>Enter a vertex editing option [Next/Previous/Break/Insert/Move/Regen/Straighten/%1eXit] &lt;N&gt;: </source>
        <translation>Indique una opción de edición de vértices [Next/Previous/Break/Insert/Move/Regen/Straighten/%1eXit] &lt;N&gt;: </translation>
    </message>
    <message>
        <source>Specify new location for marked vertex: </source>
        <translation>Precise nueva ubicación del vértice marcado: </translation>
    </message>
    <message>
        <source>
That object is on a locked layer.</source>
        <translation>
Ese objeto está en una capa bloqueada.</translation>
    </message>
    <message>
        <source>
Cannot %1 this object.</source>
        <translation>
No se puede aplicar %1 a este objeto.</translation>
    </message>
    <message>
        <source>
Cannot EXTEND this object.</source>
        <translation>
No se puede aplicar EXTEND a este objeto.</translation>
    </message>
    <message>
        <source>
Object does not intersect an edge.</source>
        <translation>
El objeto no corta ninguna arista.</translation>
    </message>
    <message>
        <source>
Command has been completely undone.</source>
        <translation>
El comando se ha deshecho por completo.</translation>
    </message>
    <message>
        <source>Specify first fence point: </source>
        <translation>Precise primer punto del borde: </translation>
    </message>
    <message>
        <source>Specify next fence point or [Undo]: </source>
        <translation>Precise siguiente punto del borde o [Undo]: </translation>
    </message>
    <message>
        <source>Enter a projection option [None/Ucs/View]</source>
        <translation>Indique una opción de proyección [None/Ucs/View]</translation>
    </message>
    <message>
        <source>Enter an implied edge extension mode [Extend/No extend]</source>
        <translation>Indique un modo de alargamiento implícito de aristas [Extend/No extend]</translation>
    </message>
    <message>
        <source>
Current settings: Projection=%1, Edge=%2</source>
        <translation>
Parámetros actuales: Proyección=%1, Arista=%2</translation>
    </message>
    <message>
        <source>
Select boundary edges ...</source>
        <translation>
Designe aristas límite ...</translation>
    </message>
    <message>
        <source>
Select cutting edges ...</source>
        <translation>
Designe aristas cortantes ...</translation>
    </message>
    <message>
        <source>Select object to extend or [Fence/Crossing/Project/Edge/Undo]: </source>
        <translation>Designe objeto que se alarga o [Fence/Crossing/Project/Edge/Undo]: </translation>
    </message>
    <message>
        <source>Select object to trim or [Fence/Crossing/Project/Edge/eRase/Undo]: </source>
        <translation>Designe objeto que se recorta o [Fence/Crossing/Project/Edge/eRase/Undo]: </translation>
    </message>
    <message>
        <source>Specify included angle: </source>
        <translation>Precise ángulo incluido: </translation>
    </message>
    <message>
        <source>Specify end point of arc or [Angle/chord Length]: </source>
        <translation>Precise punto final del arco o [Angle/chord Length]: </translation>
    </message>
    <message>
        <source>Specify length of chord: </source>
        <translation>Precise longitud de la cuerda: </translation>
    </message>
    <message>
        <source>Specify end point of arc: </source>
        <translation>Precise punto final del arco: </translation>
    </message>
    <message>
        <source>Specify center point of arc or [Angle/Direction/Radius]: </source>
        <translation>Precise centro del arco o [Angle/Direction/Radius]: </translation>
    </message>
    <message>
        <source>Specify tangent direction for the start point of arc: </source>
        <translation>Precise dirección tangente en el punto inicial del arco: </translation>
    </message>
    <message>
        <source>Specify radius of arc: </source>
        <translation>Precise radio del arco: </translation>
    </message>
    <message>
        <source>Specify second point of arc or [Center/End]: </source>
        <translation>Precise segundo punto del arco o [Center/End]: </translation>
    </message>
    <message>
        <source>Specify center point of arc: </source>
        <translation>Precise centro del arco: </translation>
    </message>
    <message>
        <source>Specify start point of arc or [Center]: </source>
        <translation>Precise punto inicial del arco o [Center]: </translation>
    </message>
    <message>
        <source>No line or arc to continue.</source>
        <translation>No hay línea ni arco que continuar.</translation>
    </message>
    <message>
        <source>Specify start point of arc: </source>
        <translation>Precise punto inicial del arco: </translation>
    </message>
    <message>
        <source>There is no such arc.</source>
        <translation>No existe tal arco.</translation>
    </message>
    <message>
        <source>Specify first end point of circle&apos;s diameter: </source>
        <translation>Precise primer punto final del diámetro del círculo: </translation>
    </message>
    <message>
        <source>Specify second end point of circle&apos;s diameter: </source>
        <translation>Precise segundo punto final del diámetro del círculo: </translation>
    </message>
    <message>
        <source>Specify first point on circle: </source>
        <translation>Precise primer punto del círculo: </translation>
    </message>
    <message>
        <source>Specify second point on circle: </source>
        <translation>Precise segundo punto del círculo: </translation>
    </message>
    <message>
        <source>Specify third point on circle: </source>
        <translation>Precise tercer punto del círculo: </translation>
    </message>
    <message>
        <source>Circle does not exist: the points lie in one line.</source>
        <translation>El círculo no existe: los puntos están en una recta.</translation>
    </message>
    <message>
        <source>Specify diameter of circle</source>
        <translation>Precise diámetro del círculo</translation>
    </message>
    <message>
        <source>Specify point on object for first tangent of circle: </source>
        <translation>Precise punto del objeto para la primera tangente del círculo: </translation>
    </message>
    <message>
        <source>Specify point on object for second tangent of circle: </source>
        <translation>Precise punto del objeto para la segunda tangente del círculo: </translation>
    </message>
    <message>
        <source>Requires a line, an arc or a circle in the user&apos;s plane.</source>
        <translation>Se requiere una línea, un arco o un círculo en el plano del usuario.</translation>
    </message>
    <message>
        <source>Specify radius of circle</source>
        <translation>Precise radio del círculo</translation>
    </message>
    <message>
        <source>Circle does not exist.</source>
        <translation>El círculo no existe.</translation>
    </message>
    <message>
        <source>Specify center point for circle or [3P/2P/Ttr (tan tan radius)]: </source>
        <translation>Precise centro del círculo o [3P/2P/Ttr (tan tan radius)]: </translation>
    </message>
    <message>
        <source>Specify radius of circle or [Diameter]</source>
        <translation>Precise radio del círculo o [Diameter]</translation>
    </message>
    <message>
        <source>Circle does not exist: the points are one.</source>
        <translation>El círculo no existe: los puntos son el mismo.</translation>
    </message>
    <message>
        <source>Specify through point: </source>
        <translation>Precise punto por el que pasa: </translation>
    </message>
    <message>
        <source>Select a line object: </source>
        <translation>Designe un objeto lineal: </translation>
    </message>
    <message>
        <source>Requires a line, a ray or a straight part of a polyline.</source>
        <translation>Se requiere una línea, un rayo o un tramo recto de polilínea.</translation>
    </message>
    <message>
        <source>Enter angle of xline (%1) or [Reference]: </source>
        <translation>Indique ángulo de la línea auxiliar (%1) o [Reference]: </translation>
    </message>
    <message>
        <source>Enter angle of xline &lt;%1&gt;: </source>
        <translation>Indique ángulo de la línea auxiliar &lt;%1&gt;: </translation>
    </message>
    <message>
        <source>Specify angle vertex point: </source>
        <translation>Precise vértice del ángulo: </translation>
    </message>
    <message>
        <source>Specify angle start point: </source>
        <translation>Precise punto inicial del ángulo: </translation>
    </message>
    <message>
        <source>Specify angle end point: </source>
        <translation>Precise punto final del ángulo: </translation>
    </message>
    <message>
        <source>Specify offset distance or [Through] &lt;%1&gt;: </source>
        <translation>Precise distancia de desfase o [Through] &lt;%1&gt;: </translation>
    </message>
    <message>
        <source>Specify side to offset: </source>
        <translation>Precise lado de desfase: </translation>
    </message>
    <message>
        <source>Specify a point or [Hor/Ver/Ang/Bisect/Offset]: </source>
        <translation>Precise un punto o [Hor/Ver/Ang/Bisect/Offset]: </translation>
    </message>
    <message>
        <source>Length of line: </source>
        <translation>Longitud de línea: </translation>
    </message>
    <message>
        <source>Specify next point or [Close/Undo]: </source>
        <translation>Precise punto siguiente o [Close/Undo]: </translation>
    </message>
    <message>
        <source>Specify a point: </source>
        <translation>Precise un punto: </translation>
    </message>
    <message>
        <source>Specify distance to other axis or [Rotation]: </source>
        <translation>Precise distancia al otro eje o [Rotation]: </translation>
    </message>
    <message>
        <source>Specify rotation around major axis: </source>
        <translation>Precise rotación alrededor del eje mayor: </translation>
    </message>
    <message>
        <source>An ellipse is turned by 0 to 89.4 degrees.</source>
        <translation>Una elipse se gira de 0 a 89.4 grados.</translation>
    </message>
    <message>
        <source>Specify center of ellipse: </source>
        <translation>Precise centro de la elipse: </translation>
    </message>
    <message>
        <source>Specify endpoint of axis: </source>
        <translation>Precise punto final del eje: </translation>
    </message>
    <message>
        <source>Specify other endpoint of axis: </source>
        <translation>Precise otro punto final del eje: </translation>
    </message>
    <message>
        <source>The endpoints of the axis are one point.</source>
        <translation>Los puntos finales del eje son el mismo punto.</translation>
    </message>
    <message>
        <source>Specify end parameter or [Angle/Included angle]: </source>
        <translation>Precise parámetro final o [Angle/Included angle]: </translation>
    </message>
    <message>
        <source>Specify end angle or [Parameter/Included angle]: </source>
        <translation>Precise ángulo final o [Parameter/Included angle]: </translation>
    </message>
    <message>
        <source>Specify start parameter or [Angle]: </source>
        <translation>Precise parámetro inicial o [Angle]: </translation>
    </message>
    <message>
        <source>Specify start angle or [Parameter]: </source>
        <translation>Precise ángulo inicial o [Parameter]: </translation>
    </message>
    <message>
        <source>Specify included angle for arc &lt;180&gt;: </source>
        <translation>Precise ángulo incluido del arco &lt;180&gt;: </translation>
    </message>
    <message>
        <source>Specify axis endpoint of ellipse or [Arc/Center]: </source>
        <translation>Precise punto final de eje de la elipse o [Arc/Center]: </translation>
    </message>
    <message>
        <source>Specify axis endpoint of elliptical arc or [Center]: </source>
        <translation>Precise punto final de eje del arco elíptico o [Center]: </translation>
    </message>
    <message>
        <source>Specify third point: </source>
        <translation>Precise tercer punto: </translation>
    </message>
    <message>
        <source>Specify fourth point or &lt;exit&gt;: </source>
        <translation>Precise cuarto punto o &lt;salir&gt;: </translation>
    </message>
    <message>
        <source>Specify trace width</source>
        <translation>Precise grosor del trazo</translation>
    </message>
    <message>
        <source>Specify first point or [Invisible]: </source>
        <translation>Precise primer punto o [Invisible]: </translation>
    </message>
    <message>
        <source>Specify second point or [Invisible]: </source>
        <translation>Precise segundo punto o [Invisible]: </translation>
    </message>
    <message>
        <source>Specify third point or [Invisible] &lt;exit&gt;: </source>
        <translation>Precise tercer punto o [Invisible] &lt;salir&gt;: </translation>
    </message>
    <message>
        <source>Specify fourth point or [Invisible] &lt;create three-sided face&gt;: </source>
        <translation>Precise cuarto punto o [Invisible] &lt;crear cara de tres lados&gt;: </translation>
    </message>
    <message>
        <source>Specify start point of polyline: </source>
        <translation>Precise punto inicial de la polilínea: </translation>
    </message>
    <message>
        <source>Specify endpoint of line or [Close/Undo]: </source>
        <translation>Precise punto final de la línea o [Close/Undo]: </translation>
    </message>
    <message>
        <source>Specify endpoint of line or [Undo]: </source>
        <translation>Precise punto final de la línea o [Undo]: </translation>
    </message>
    <message>
        <source>
All segments already undone.</source>
        <translation>
Ya se han deshecho todos los segmentos.</translation>
    </message>
    <message>
        <source>Enter mline style name or [?]: </source>
        <translation>Indique nombre de estilo de línea múltiple o [?]: </translation>
    </message>
    <message>
        <source>Cannot find multiline style &quot;%1&quot;.</source>
        <translation>No se encuentra el estilo de línea múltiple &quot;%1&quot;.</translation>
    </message>
    <message>
        <source>
Current settings: Justification = %1, Scale = %2, Style = %3</source>
        <translation>
Parámetros actuales: Justificación = %1, Escala = %2, Estilo = %3</translation>
    </message>
    <message>
        <source>Specify start point or [Justification/Scale/STyle]: </source>
        <translation>Precise punto inicial o [Justification/Scale/STyle]: </translation>
    </message>
    <message>
        <source>Enter justification type [Top/Zero/Bottom]</source>
        <translation>Indique tipo de justificación [Top/Zero/Bottom]</translation>
    </message>
    <message>
        <source>Enter mline scale &lt;%1&gt;: </source>
        <translation>Indique escala de línea múltiple &lt;%1&gt;: </translation>
    </message>
    <message>
        <source>Enter number of sides &lt;%1&gt;: </source>
        <translation>Indique número de lados &lt;%1&gt;: </translation>
    </message>
    <message>
        <source>A polygon has 3 to 1024 sides.</source>
        <translation>Un polígono tiene de 3 a 1024 lados.</translation>
    </message>
    <message>
        <source>Specify first endpoint of edge: </source>
        <translation>Precise primer punto final del lado: </translation>
    </message>
    <message>
        <source>Specify second endpoint of edge: </source>
        <translation>Precise segundo punto final del lado: </translation>
    </message>
    <message>
        <source>Enter an option [Inscribed in circle/Circumscribed about circle]</source>
        <translation>Indique una opción [Inscribed in circle/Circumscribed about circle]</translation>
    </message>
    <message>
        <source>Specify radius of circle: </source>
        <translation>Precise radio del círculo: </translation>
    </message>
    <message>
        <source>Specify center of polygon or [Edge]: </source>
        <translation>Precise centro del polígono o [Edge]: </translation>
    </message>
    <message>
        <source>The endpoints of the edge are one point.</source>
        <translation>Los puntos finales del lado son el mismo punto.</translation>
    </message>
    <message>
        <source>Specify inside diameter of donut</source>
        <translation>Precise diámetro interior de la arandela</translation>
    </message>
    <message>
        <source>Specify outside diameter of donut</source>
        <translation>Precise diámetro exterior de la arandela</translation>
    </message>
    <message>
        <source>Specify center of donut or &lt;exit&gt;: </source>
        <translation>Precise centro de la arandela o &lt;salir&gt;: </translation>
    </message>
    <message>
        <source>Specify direction of chord for arc &lt;%1&gt;: </source>
        <translation>Precise dirección de la cuerda del arco &lt;%1&gt;: </translation>
    </message>
    <message>
        <source>Specify endpoint of arc or [CEnter/Radius]: </source>
        <translation>Precise punto final del arco o [CEnter/Radius]: </translation>
    </message>
    <message>
        <source>Specify endpoint of arc or [Angle/Length]: </source>
        <translation>Precise punto final del arco o [Angle/Length]: </translation>
    </message>
    <message>
        <source>Specify the tangent direction for the start point of arc: </source>
        <translation>Precise dirección tangente en el punto inicial del arco: </translation>
    </message>
    <message>
        <source>Specify endpoint of the arc: </source>
        <translation>Precise punto final del arco: </translation>
    </message>
    <message>
        <source>Specify endpoint of arc or [Angle]: </source>
        <translation>Precise punto final del arco o [Angle]: </translation>
    </message>
    <message>
        <source>Specify second point on arc: </source>
        <translation>Precise segundo punto del arco: </translation>
    </message>
    <message>
        <source>Specify starting half-width &lt;%1&gt;: </source>
        <translation>Precise mitad de grosor inicial &lt;%1&gt;: </translation>
    </message>
    <message>
        <source>Specify ending half-width &lt;%1&gt;: </source>
        <translation>Precise mitad de grosor final &lt;%1&gt;: </translation>
    </message>
    <message>
        <source>Specify starting width &lt;%1&gt;: </source>
        <translation>Precise grosor inicial &lt;%1&gt;: </translation>
    </message>
    <message>
        <source>Specify ending width &lt;%1&gt;: </source>
        <translation>Precise grosor final &lt;%1&gt;: </translation>
    </message>
    <message>
        <source>Specify length of line: </source>
        <translation>Precise longitud de la línea: </translation>
    </message>
    <message>
        <source>Specify endpoint of arc or [Angle/CEnter/%1Direction/Halfwidth/Line/Radius/Second pt/Undo/Width]: </source>
        <translation>Precise punto final del arco o [Angle/CEnter/%1Direction/Halfwidth/Line/Radius/Second pt/Undo/Width]: </translation>
    </message>
    <message>
        <source>Specify next point or [Arc/%1Halfwidth/Length/Undo/Width]: </source>
        <translation>Precise punto siguiente o [Arc/%1Halfwidth/Length/Undo/Width]: </translation>
    </message>
    <message>
        <source>
Current line-width is %1</source>
        <translation>
El grosor de línea actual es %1</translation>
    </message>
    <message>
        <source>Specify fillet radius for rectangles</source>
        <translation>Precise radio de empalme para rectángulos</translation>
    </message>
    <message>
        <source>Specify first chamfer distance for rectangles</source>
        <translation>Precise primera distancia de chaflán para rectángulos</translation>
    </message>
    <message>
        <source>Specify second chamfer distance for rectangles</source>
        <translation>Precise segunda distancia de chaflán para rectángulos</translation>
    </message>
    <message>
        <source>Specify first corner point or [Chamfer/Elevation/Fillet/Thickness/Width]: </source>
        <translation>Precise primera esquina o [Chamfer/Elevation/Fillet/Thickness/Width]: </translation>
    </message>
    <message>
        <source>Specify the elevation for rectangles</source>
        <translation>Precise elevación para rectángulos</translation>
    </message>
    <message>
        <source>Specify thickness for rectangles</source>
        <translation>Precise altura de objeto para rectángulos</translation>
    </message>
    <message>
        <source>Specify line width for rectangles</source>
        <translation>Precise grosor de línea para rectángulos</translation>
    </message>
    <message>
        <source>Enter area of rectangle in current units</source>
        <translation>Indique área del rectángulo en las unidades actuales</translation>
    </message>
    <message>
        <source>Calculate rectangle dimensions based on [Length/Width]</source>
        <translation>Calcular dimensiones del rectángulo según [Length/Width]</translation>
    </message>
    <message>
        <source>Enter rectangle width</source>
        <translation>Indique anchura del rectángulo</translation>
    </message>
    <message>
        <source>Enter rectangle length</source>
        <translation>Indique longitud del rectángulo</translation>
    </message>
    <message>
        <source>Specify rotation angle or [Pick points] &lt;%1&gt;: </source>
        <translation>Precise ángulo de rotación o [Pick points] &lt;%1&gt;: </translation>
    </message>
    <message>
        <source>Specify other corner point or [Area/Dimensions/Rotation]: </source>
        <translation>Precise otra esquina o [Area/Dimensions/Rotation]: </translation>
    </message>
    <message>
        <source>Specify length for rectangles</source>
        <translation>Precise longitud de los rectángulos</translation>
    </message>
    <message>
        <source>Specify width for rectangles</source>
        <translation>Precise anchura de los rectángulos</translation>
    </message>
    <message>
        <source>The corners of a rectangle lie neither above nor beside each other.</source>
        <translation>Las esquinas de un rectángulo no están ni una sobre otra ni una al lado de otra.</translation>
    </message>
    <message>
        <source>1 loop rejected: it crosses itself or branches.</source>
        <translation>1 bucle rechazado: se corta a sí mismo o se ramifica.</translation>
    </message>
    <message>
        <source>%1 loops rejected: it crosses itself or branches.</source>
        <translation>%1 bucles rechazados: se cortan a sí mismos o se ramifican.</translation>
    </message>
    <message>
        <source>1 loop rejected: it does not lie in a plane.</source>
        <translation>1 bucle rechazado: no está en un plano.</translation>
    </message>
    <message>
        <source>%1 loops rejected: it does not lie in a plane.</source>
        <translation>%1 bucles rechazados: no están en un plano.</translation>
    </message>
    <message>
        <source>1 loop rejected: it encloses nothing.</source>
        <translation>1 bucle rechazado: no encierra nada.</translation>
    </message>
    <message>
        <source>%1 loops rejected: it encloses nothing.</source>
        <translation>%1 bucles rechazados: no encierran nada.</translation>
    </message>
    <message>
        <source>1 curve rejected: it is not part of a closed loop.</source>
        <translation>1 curva rechazada: no forma parte de un bucle cerrado.</translation>
    </message>
    <message>
        <source>%1 curves rejected: it is not part of a closed loop.</source>
        <translation>%1 curvas rechazadas: no forman parte de un bucle cerrado.</translation>
    </message>
    <message>
        <source>1 object rejected: it is no curve.</source>
        <translation>1 objeto rechazado: no es una curva.</translation>
    </message>
    <message>
        <source>%1 objects rejected: it is no curve.</source>
        <translation>%1 objetos rechazados: no son curvas.</translation>
    </message>
    <message>
        <source>Drawings of R12 have no regions.</source>
        <translation>Los dibujos de R12 no tienen regiones.</translation>
    </message>
    <message>
        <source>
1 loop extracted.
1 Region created.</source>
        <translation>
1 bucle extraído.
1 región creada.</translation>
    </message>
    <message>
        <source>
%1 loops extracted.
%1 Regions created.</source>
        <translation>
%1 bucles extraídos.
%1 regiones creadas.</translation>
    </message>
    <message>
        <source>Specify minimum length of arc</source>
        <translation>Precise longitud mínima del arco</translation>
    </message>
    <message>
        <source>Specify maximum length of arc &lt;%1&gt;: </source>
        <translation>Precise longitud máxima del arco &lt;%1&gt;: </translation>
    </message>
    <message>
        <source>Specify first corner point or [Arc length/Object/Rectangular/Polygonal/Freehand/Style] &lt;Object&gt;: </source>
        <translation>Precise primera esquina o [Arc length/Object/Rectangular/Polygonal/Freehand/Style] &lt;Object&gt;: </translation>
    </message>
    <message>
        <source>Specify start point or [Arc length/Object/Rectangular/Polygonal/Freehand/Style] &lt;Object&gt;: </source>
        <translation>Precise punto inicial o [Arc length/Object/Rectangular/Polygonal/Freehand/Style] &lt;Object&gt;: </translation>
    </message>
    <message>
        <source>Select arc style [Normal/Calligraphy]</source>
        <translation>Designe estilo de arco [Normal/Calligraphy]</translation>
    </message>
    <message>
        <source>Enter name of shape file to load: </source>
        <translation>Indique nombre del archivo de formas que se carga: </translation>
    </message>
    <message>
        <source>Cannot read shape file &quot;%1&quot;.</source>
        <translation>No se puede leer el archivo de formas &quot;%1&quot;.</translation>
    </message>
    <message>
        <source>Enter shape name: </source>
        <translation>Indique nombre de forma: </translation>
    </message>
    <message>
        <source>Cannot find shape &quot;%1&quot;. Load its file first.</source>
        <translation>No se encuentra la forma &quot;%1&quot;. Cargue antes su archivo.</translation>
    </message>
    <message>
        <source>Specify height &lt;1&gt;: </source>
        <translation>Precise altura &lt;1&gt;: </translation>
    </message>
    <message>
        <source>
Only polylines with the smoothing of splines can be converted.</source>
        <translation>
Solo se pueden convertir polilíneas suavizadas como splines.</translation>
    </message>
    <message>
        <source>Specify first point or [Method/Knots/Object]: </source>
        <translation>Precise primer punto o [Method/Knots/Object]: </translation>
    </message>
    <message>
        <source>Specify first point or [Method/Degree/Object]: </source>
        <translation>Precise primer punto o [Method/Degree/Object]: </translation>
    </message>
    <message>
        <source>Enter spline creation method [Fit/CV]</source>
        <translation>Indique método de creación de splines [Fit/CV]</translation>
    </message>
    <message>
        <source>Enter knot parameterization [Chord/Square root/Uniform]</source>
        <translation>Indique parametrización de nudos [Chord/Square root/Uniform]</translation>
    </message>
    <message>
        <source>Enter degree of spline &lt;%1&gt;: </source>
        <translation>Indique grado de la spline &lt;%1&gt;: </translation>
    </message>
    <message>
        <source>Enter next point or [%1Undo]: </source>
        <translation>Indique punto siguiente o [%1Undo]: </translation>
    </message>
    <message>
        <source>Enter next point or [start Tangency/toLerance]: </source>
        <translation>Indique punto siguiente o [start Tangency/toLerance]: </translation>
    </message>
    <message>
        <source>Enter next point or [%1Fit tolerance/Undo/end Tangency] &lt;start tangent&gt;: </source>
        <translation>Indique punto siguiente o [%1Fit tolerance/Undo/end Tangency] &lt;tangente inicial&gt;: </translation>
    </message>
    <message>
        <source>
All points already undone.</source>
        <translation>
Ya se han deshecho todos los puntos.</translation>
    </message>
    <message>
        <source>Specify start tangent: </source>
        <translation>Precise tangente inicial: </translation>
    </message>
    <message>
        <source>Specify end tangent: </source>
        <translation>Precise tangente final: </translation>
    </message>
    <message>
        <source>Specify fit tolerance</source>
        <translation>Precise tolerancia de ajuste</translation>
    </message>
    <message>
        <source>Specify tangent: </source>
        <translation>Precise tangente: </translation>
    </message>
    <message>
        <source>Specify first source point: </source>
        <translation>Precise primer punto de origen: </translation>
    </message>
    <message>
        <source>Specify first destination point: </source>
        <translation>Precise primer punto de destino: </translation>
    </message>
    <message>
        <source>Specify second source point: </source>
        <translation>Precise segundo punto de origen: </translation>
    </message>
    <message>
        <source>Specify second destination point: </source>
        <translation>Precise segundo punto de destino: </translation>
    </message>
    <message>
        <source>Specify third source point or &lt;continue&gt;: </source>
        <translation>Precise tercer punto de origen o &lt;continuar&gt;: </translation>
    </message>
    <message>
        <source>Specify third destination point: </source>
        <translation>Precise tercer punto de destino: </translation>
    </message>
    <message>
        <source>Scale objects based on alignment points? [Yes/No] &lt;N&gt;: </source>
        <translation>¿Escalar objetos según los puntos de alineación? [Yes/No] &lt;N&gt;: </translation>
    </message>
    <message>
        <source>The points say no direction.</source>
        <translation>Los puntos no indican ninguna dirección.</translation>
    </message>
    <message>
        <source>Specify first point on axis or define axis by [Xaxis/Yaxis/Zaxis/2points]: </source>
        <translation>Precise primer punto del eje o defina el eje por [Xaxis/Yaxis/Zaxis/2points]: </translation>
    </message>
    <message>
        <source>Specify a point on the %1 axis &lt;0,0,0&gt;: </source>
        <translation>Precise un punto del eje %1 &lt;0,0,0&gt;: </translation>
    </message>
    <message>
        <source>Specify first point on axis: </source>
        <translation>Precise primer punto del eje: </translation>
    </message>
    <message>
        <source>Specify second point on axis: </source>
        <translation>Precise segundo punto del eje: </translation>
    </message>
    <message>
        <source>Specify rotation angle or [Reference]: </source>
        <translation>Precise ángulo de rotación o [Reference]: </translation>
    </message>
    <message>
        <source>Specify the distance between columns (|||): </source>
        <translation>Precise distancia entre columnas (|||): </translation>
    </message>
    <message>
        <source>
Enter the distance between rows or specify unit cell (---): </source>
        <translation>
Indique distancia entre filas o precise celda unidad (---): </translation>
    </message>
    <message>
        <source>Enter the number of rows (---) &lt;1&gt;: </source>
        <translation>Indique número de filas (---) &lt;1&gt;: </translation>
    </message>
    <message>
        <source>Enter the number of columns (|||) &lt;1&gt;: </source>
        <translation>Indique número de columnas (|||) &lt;1&gt;: </translation>
    </message>
    <message>
        <source>One-element array, nothing to do.</source>
        <translation>Matriz de un solo elemento, nada que hacer.</translation>
    </message>
    <message>
        <source>Requires a distance other than 0, or two corners of a cell.</source>
        <translation>Se requiere una distancia distinta de 0 o dos esquinas de una celda.</translation>
    </message>
    <message>
        <source>Enter the number of items in the array: </source>
        <translation>Indique número de elementos de la matriz: </translation>
    </message>
    <message>
        <source>Specify the angle to fill (+=ccw, -=cw) &lt;360&gt;: </source>
        <translation>Precise ángulo que se rellena (+=antihorario, -=horario) &lt;360&gt;: </translation>
    </message>
    <message>
        <source>Angle between items: </source>
        <translation>Ángulo entre elementos: </translation>
    </message>
    <message>
        <source>Specify center point of array or [Base]: </source>
        <translation>Precise centro de la matriz o [Base]: </translation>
    </message>
    <message>
        <source>Specify base point of objects: </source>
        <translation>Precise punto base de los objetos: </translation>
    </message>
    <message>
        <source>Specify center point of array: </source>
        <translation>Precise centro de la matriz: </translation>
    </message>
    <message>
        <source>Requires a number of items or an angle between them.</source>
        <translation>Se requiere un número de elementos o un ángulo entre ellos.</translation>
    </message>
    <message>
        <source>Rotate arrayed objects? [Yes/No] &lt;Y&gt;: </source>
        <translation>¿Girar los objetos de la matriz? [Yes/No] &lt;Y&gt;: </translation>
    </message>
    <message>
        <source>Enter the type of array [Rectangular/Polar] &lt;R&gt;: </source>
        <translation>Indique tipo de matriz [Rectangular/Polar] &lt;R&gt;: </translation>
    </message>
    <message>
        <source>Enter property to change [%1]: </source>
        <translation>Indique propiedad que se cambia [%1]: </translation>
    </message>
    <message>
        <source>Specify change point or [Properties]: </source>
        <translation>Precise punto de cambio o [Properties]: </translation>
    </message>
    <message>
        <source>Enter new text style &lt;%1&gt;: </source>
        <translation>Indique nuevo estilo de texto &lt;%1&gt;: </translation>
    </message>
    <message>
        <source>Specify new rotation angle &lt;%1&gt;: </source>
        <translation>Precise nuevo ángulo de rotación &lt;%1&gt;: </translation>
    </message>
    <message>
        <source>Enter new text &lt;%1&gt;: </source>
        <translation>Indique nuevo texto &lt;%1&gt;: </translation>
    </message>
    <message>
        <source>Enter new tag &lt;%1&gt;: </source>
        <translation>Indique nuevo identificador &lt;%1&gt;: </translation>
    </message>
    <message>
        <source>Enter new prompt &lt;%1&gt;: </source>
        <translation>Indique nuevo mensaje de solicitud &lt;%1&gt;: </translation>
    </message>
    <message>
        <source>Enter new default value &lt;%1&gt;: </source>
        <translation>Indique nuevo valor por defecto &lt;%1&gt;: </translation>
    </message>
    <message>
        <source>Specify new text insertion point &lt;no change&gt;: </source>
        <translation>Precise nuevo punto de inserción del texto &lt;sin cambios&gt;: </translation>
    </message>
    <message>
        <source>Specify new block insertion point &lt;no change&gt;: </source>
        <translation>Precise nuevo punto de inserción del bloque &lt;sin cambios&gt;: </translation>
    </message>
    <message>
        <source>Specify new block rotation angle &lt;%1&gt;: </source>
        <translation>Precise nuevo ángulo de rotación del bloque &lt;%1&gt;: </translation>
    </message>
    <message>
        <source>
%1 not changed.</source>
        <translation>
%1 sin cambiar.</translation>
    </message>
    <message>
        <source>Enter object ordering option [Above objects/Under objects/Front/Back] &lt;Back&gt;: </source>
        <translation>Indique opción de orden de objetos [Above objects/Under objects/Front/Back] &lt;Back&gt;: </translation>
    </message>
    <message>
        <source>Enter number of items to array: </source>
        <translation>Indique número de elementos de la matriz: </translation>
    </message>
    <message>
        <source>Requires an integer of 2 or more.</source>
        <translation>Se requiere un entero de 2 o más.</translation>
    </message>
    <message>
        <source>Specify second point or [Fit]: </source>
        <translation>Precise segundo punto o [Fit]: </translation>
    </message>
    <message>
        <source>Specify second point or [Array] &lt;use first point as displacement&gt;: </source>
        <translation>Precise segundo punto o [Array] &lt;usar primer punto como desplazamiento&gt;: </translation>
    </message>
    <message>
        <source>Specify second point or [Array/Exit/Undo] &lt;Exit&gt;: </source>
        <translation>Precise segundo punto o [Array/Exit/Undo] &lt;Exit&gt;: </translation>
    </message>
    <message>
        <source>Specify base point or [Displacement/mOde] &lt;Displacement&gt;: </source>
        <translation>Precise punto base o [Displacement/mOde] &lt;Displacement&gt;: </translation>
    </message>
    <message>
        <source>Enter a copy mode option [Single/Multiple] &lt;Multiple&gt;: </source>
        <translation>Indique una opción del modo de copia [Single/Multiple] &lt;Multiple&gt;: </translation>
    </message>
    <message>
        <source>
Current positive angle in UCS:  ANGDIR=%1  ANGBASE=%2</source>
        <translation>
Ángulo positivo actual en el SCP:  ANGDIR=%1  ANGBASE=%2</translation>
    </message>
    <message>
        <source>Specify rotation angle or [Copy/Reference] &lt;%1&gt;: </source>
        <translation>Precise ángulo de rotación o [Copy/Reference] &lt;%1&gt;: </translation>
    </message>
    <message>
        <source>
Rotating a copy of the selected objects.</source>
        <translation>
Se gira una copia de los objetos designados.</translation>
    </message>
    <message>
        <source>Specify scale factor or [Copy/Reference]: </source>
        <translation>Precise factor de escala o [Copy/Reference]: </translation>
    </message>
    <message>
        <source>
Scaling a copy of the selected objects.</source>
        <translation>
Se escala una copia de los objetos designados.</translation>
    </message>
    <message>
        <source>Requires three numbers from 0 to 255.</source>
        <translation>Se requieren tres números de 0 a 255.</translation>
    </message>
    <message>
        <source>A drawing of this version has no such colors.</source>
        <translation>Un dibujo de esta versión no tiene esos colores.</translation>
    </message>
    <message>
        <source>New color [Truecolor/COlorbook] &lt;%1&gt;: </source>
        <translation>Nuevo color [Truecolor/COlorbook] &lt;%1&gt;: </translation>
    </message>
    <message>
        <source>Red,Green,Blue: </source>
        <translation>Rojo,Verde,Azul: </translation>
    </message>
    <message>
        <source>This program has no color books.</source>
        <translation>Este programa no tiene libros de colores.</translation>
    </message>
    <message>
        <source>Requires a color number from 1 to 255 or a color name.</source>
        <translation>Se requiere un número de color de 1 a 255 o un nombre de color.</translation>
    </message>
    <message>
        <source>Enter new layer name &lt;%1&gt;: </source>
        <translation>Indique nombre de nueva capa &lt;%1&gt;: </translation>
    </message>
    <message>
        <source>Enter new linetype name &lt;%1&gt;: </source>
        <translation>Indique nombre de nuevo tipo de línea &lt;%1&gt;: </translation>
    </message>
    <message>
        <source>Cannot find linetype &quot;%1&quot;.</source>
        <translation>No se encuentra el tipo de línea &quot;%1&quot;.</translation>
    </message>
    <message>
        <source>Specify new linetype scale &lt;%1&gt;: </source>
        <translation>Precise nueva escala de tipo de línea &lt;%1&gt;: </translation>
    </message>
    <message>
        <source>Enter new lineweight &lt;%1&gt;: </source>
        <translation>Indique nuevo grosor de línea &lt;%1&gt;: </translation>
    </message>
    <message>
        <source>A drawing of this version has no lineweights.</source>
        <translation>Un dibujo de esta versión no tiene grosores de línea.</translation>
    </message>
    <message>
        <source>Requires a lineweight from 0 to 2.11.</source>
        <translation>Se requiere un grosor de línea de 0 a 2.11.</translation>
    </message>
    <message>
        <source>Specify new thickness &lt;%1&gt;: </source>
        <translation>Precise nueva altura de objeto &lt;%1&gt;: </translation>
    </message>
    <message>
        <source>Enter new transparency value &lt;ByLayer&gt;: </source>
        <translation>Indique nuevo valor de transparencia &lt;ByLayer&gt;: </translation>
    </message>
    <message>
        <source>A drawing of this version has no transparency.</source>
        <translation>Un dibujo de esta versión no tiene transparencia.</translation>
    </message>
    <message>
        <source>Requires an integer from 0 to 90.</source>
        <translation>Se requiere un entero de 0 a 90.</translation>
    </message>
    <message>
        <source>Specify new elevation &lt;%1&gt;: </source>
        <translation>Precise nueva elevación &lt;%1&gt;: </translation>
    </message>
    <message>
        <source>
%1 of the pieces could not be made.</source>
        <translation>
%1 de los trozos no se han podido crear.</translation>
    </message>
    <message>
        <source>Specify stretch point or [Base point/Copy/Undo/eXit]: </source>
        <translation>Precise punto de estiramiento o [Base point/Copy/Undo/eXit]: </translation>
    </message>
    <message>
        <source>Specify move point or [Base point/Copy/Undo/eXit]: </source>
        <translation>Precise punto de desplazamiento o [Base point/Copy/Undo/eXit]: </translation>
    </message>
    <message>
        <source>Specify rotation angle or [Base point/Copy/Undo/Reference/eXit]: </source>
        <translation>Precise ángulo de rotación o [Base point/Copy/Undo/Reference/eXit]: </translation>
    </message>
    <message>
        <source>Specify scale factor or [Base point/Copy/Undo/Reference/eXit]: </source>
        <translation>Precise factor de escala o [Base point/Copy/Undo/Reference/eXit]: </translation>
    </message>
    <message>
        <source>Specify second point or [Base point/Copy/Undo/eXit]: </source>
        <translation>Precise segundo punto o [Base point/Copy/Undo/eXit]: </translation>
    </message>
    <message>
        <source> (multiple)</source>
        <translation> (múltiple)</translation>
    </message>
    <message>
        <source>Specify grips to move: </source>
        <translation>Precise pinzamientos que se desplazan: </translation>
    </message>
    <message>
        <source>There is no grip of the chosen entities.</source>
        <translation>Las entidades elegidas no tienen ahí ningún pinzamiento.</translation>
    </message>
    <message>
        <source>
There is nothing to undo.</source>
        <translation>
No hay nada que deshacer.</translation>
    </message>
    <message>
        <source>Enter a setting to switch off or on [%1] &lt;exit&gt;: </source>
        <translation>Indique un parámetro que se desactiva o activa [%1] &lt;salir&gt;: </translation>
    </message>
    <message>
        <source>
%1 is %2.</source>
        <translation>
%1 es %2.</translation>
    </message>
    <message>
        <source>Select source object: </source>
        <translation>Designe objeto de origen: </translation>
    </message>
    <message>
        <source>
Current active settings:  </source>
        <translation>
Parámetros activos actuales:  </translation>
    </message>
    <message>
        <source>Select destination object(s) or [Settings]: </source>
        <translation>Designe objetos de destino o [Settings]: </translation>
    </message>
    <message>
        <source>
%1 selected.</source>
        <translation>
%1 designados.</translation>
    </message>
    <message>
        <source>Specify first point of mirror line: </source>
        <translation>Precise primer punto de la línea de simetría: </translation>
    </message>
    <message>
        <source>Specify second point of mirror line: </source>
        <translation>Precise segundo punto de la línea de simetría: </translation>
    </message>
    <message>
        <source>Erase source objects? [Yes/No] &lt;N&gt;: </source>
        <translation>¿Borrar objetos de origen? [Yes/No] &lt;N&gt;: </translation>
    </message>
    <message>
        <source>Specify first point on mirror plane: </source>
        <translation>Precise primer punto del plano de simetría: </translation>
    </message>
    <message>
        <source>Specify second point on mirror plane: </source>
        <translation>Precise segundo punto del plano de simetría: </translation>
    </message>
    <message>
        <source>Specify third point on mirror plane: </source>
        <translation>Precise tercer punto del plano de simetría: </translation>
    </message>
    <message>
        <source>Specify point on %1 plane &lt;%2&gt;: </source>
        <translation>Precise punto del plano %1 &lt;%2&gt;: </translation>
    </message>
    <message>
        <source>Specify first point of mirror plane (3 points) or [Zaxis/View/XY/YZ/ZX/3points] &lt;3points&gt;: </source>
        <translation>Precise primer punto del plano de simetría (3 puntos) o [Zaxis/View/XY/YZ/ZX/3points] &lt;3points&gt;: </translation>
    </message>
    <message>
        <source>Specify point on mirror plane: </source>
        <translation>Precise punto del plano de simetría: </translation>
    </message>
    <message>
        <source>Specify point on Z-axis (normal) of mirror plane: </source>
        <translation>Precise punto del eje Z (normal) del plano de simetría: </translation>
    </message>
    <message>
        <source>Specify point on view plane &lt;0,0,0&gt;: </source>
        <translation>Precise punto del plano de la vista &lt;0,0,0&gt;: </translation>
    </message>
    <message>
        <source>The points say no plane.</source>
        <translation>Los puntos no indican ningún plano.</translation>
    </message>
    <message>
        <source>Delete source objects? [Yes/No] &lt;N&gt;: </source>
        <translation>¿Borrar objetos de origen? [Yes/No] &lt;N&gt;: </translation>
    </message>
    <message>
        <source>The sheet has no viewport.</source>
        <translation>La presentación no tiene ninguna ventana.</translation>
    </message>
    <message>
        <source>
%1 object(s) changed from MODEL space to PAPER space.</source>
        <translation>
%1 objeto(s) pasado(s) del espacio MODELO al espacio PAPEL.</translation>
    </message>
    <message>
        <source>
%1 object(s) changed from PAPER space to MODEL space.</source>
        <translation>
%1 objeto(s) pasado(s) del espacio PAPEL al espacio MODELO.</translation>
    </message>
    <message>
        <source>
Objects were scaled by a factor of %1 to maintain visual appearance.</source>
        <translation>
Los objetos se han escalado por un factor de %1 para mantener su aspecto.</translation>
    </message>
    <message>
        <source>Only a layout has both spaces.</source>
        <translation>Solo una presentación tiene ambos espacios.</translation>
    </message>
    <message>
        <source>
Select objects to stretch by crossing-window or crossing-polygon...</source>
        <translation>
Designe objetos que se estiran mediante ventana o polígono de captura...</translation>
    </message>
    <message>
        <source>Enter name of customization file to load: </source>
        <translation>Indique nombre del archivo de personalización que se carga: </translation>
    </message>
    <message>
        <source>
&quot;%1&quot; was not loaded: there are no menu files here.</source>
        <translation>
&quot;%1&quot; no se ha cargado: aquí no hay archivos de menú.</translation>
    </message>
    <message>
        <source>Enter name of customization group to unload: </source>
        <translation>Indique nombre del grupo de personalización que se descarga: </translation>
    </message>
    <message>
        <source>
There is no customization group &quot;%1&quot;.</source>
        <translation>
No hay ningún grupo de personalización &quot;%1&quot;.</translation>
    </message>
    <message>
        <source>Enter name of assembly to load: </source>
        <translation>Indique nombre del ensamblado que se carga: </translation>
    </message>
    <message>
        <source>
&quot;%1&quot; was not loaded: programs for other hosts do not run here.</source>
        <translation>
&quot;%1&quot; no se ha cargado: aquí no se ejecutan programas para otros entornos.</translation>
    </message>
    <message>
        <source>Enter an option [?/Load/Unload/Commands/Options]: </source>
        <translation>Indique una opción [?/Load/Unload/Commands/Options]: </translation>
    </message>
    <message>
        <source>Enter name of application file: </source>
        <translation>Indique nombre del archivo de aplicación: </translation>
    </message>
    <message>
        <source>
Programs for other hosts do not run here.</source>
        <translation>
Aquí no se ejecutan programas para otros entornos.</translation>
    </message>
    <message>
        <source>Enter delay time (in milliseconds): </source>
        <translation>Indique tiempo de espera (en milisegundos): </translation>
    </message>
    <message>
        <source>Fix any errors detected? [Yes/No] &lt;No&gt;: </source>
        <translation>¿Corregir los errores detectados? [Yes/No] &lt;No&gt;: </translation>
    </message>
    <message>
        <source>
Total errors found %1 fixed %2</source>
        <translation>
Total de errores encontrados %1 corregidos %2</translation>
    </message>
    <message>
        <source>
Save the drawing and open it with --recover: that mends the others.</source>
        <translation>
Guarde el dibujo y ábralo con --recover: así se reparan los demás.</translation>
    </message>
    <message>
        <source>Enter name of drawing to open: </source>
        <translation>Indique nombre del dibujo que se abre: </translation>
    </message>
    <message>
        <source>Enter template file name or [. (for none)] &lt;.&gt;: </source>
        <translation>Indique nombre de archivo de plantilla o [. (for none)] &lt;.&gt;: </translation>
    </message>
    <message>
        <source>Cannot find template &quot;%1&quot;.</source>
        <translation>No se encuentra la plantilla &quot;%1&quot;.</translation>
    </message>
    <message>
        <source>Save changes to %1? [Yes/No/Cancel] &lt;Yes&gt;: </source>
        <translation>¿Guardar los cambios en %1? [Yes/No/Cancel] &lt;Yes&gt;: </translation>
    </message>
    <message>
        <source>Really want to discard all changes to drawing? [Yes/No] &lt;No&gt;: </source>
        <translation>¿Seguro que quiere descartar todos los cambios del dibujo? [Yes/No] &lt;No&gt;: </translation>
    </message>
    <message>
        <source>another version</source>
        <translation>otra versión</translation>
    </message>
    <message>
        <source>This drawing is of %1, and this program writes no drawing in another version: nothing was written.</source>
        <translation>Este dibujo es de %1, y este programa no escribe dibujos en otra versión: no se ha escrito nada.</translation>
    </message>
    <message>
        <source>Enter decimal places of accuracy (0 to 16) or [Objects/Binary/Version] &lt;16&gt;: </source>
        <translation>Indique decimales de precisión (0 a 16) o [Objects/Binary/Version] &lt;16&gt;: </translation>
    </message>
    <message>
        <source>Enter version [%1]: </source>
        <translation>Indique versión [%1]: </translation>
    </message>
    <message>
        <source>This program writes whole drawings with all decimal places: nothing was written.</source>
        <translation>Este programa escribe dibujos enteros con todos los decimales: no se ha escrito nada.</translation>
    </message>
    <message>
        <source>Save drawing as, or enter file format [%1/DXF] &lt;%2&gt;: </source>
        <translation>Guarde el dibujo como, o indique formato de archivo [%1/DXF] &lt;%2&gt;: </translation>
    </message>
    <message>
        <source>Save drawing as &lt;%1&gt;: </source>
        <translation>Guardar dibujo como &lt;%1&gt;: </translation>
    </message>
    <message>
        <source>
The rest of the script that called it is left out.</source>
        <translation>
Se omite el resto del script que lo llamó.</translation>
    </message>
    <message>
        <source>
Too many scripts wait to be run: &quot;%1&quot; is left out.</source>
        <translation>
Hay demasiados scripts en espera: &quot;%1&quot; se omite.</translation>
    </message>
    <message>
        <source>Enter script file name: </source>
        <translation>Indique nombre del archivo de script: </translation>
    </message>
    <message>
        <source>
Cannot read script &quot;%1&quot;.</source>
        <translation>
No se puede leer el script &quot;%1&quot;.</translation>
    </message>
    <message>
        <source>
Cannot read script &quot;%1&quot;: %2 (the limit is %3 MB).</source>
        <translation>
No se puede leer el script &quot;%1&quot;: %2 (el límite es %3 MB).</translation>
    </message>
    <message>
        <source>No script has been run.</source>
        <translation>No se ha ejecutado ningún script.</translation>
    </message>
    <message>
        <source>%1 [Yes/No] &lt;%2&gt;: </source>
        <translation>%1 [Yes/No] &lt;%2&gt;: </translation>
    </message>
    <message>
        <source>Enter a layout name</source>
        <translation>Indique nombre de presentación</translation>
    </message>
    <message>
        <source>Layout &quot;%1&quot; not found.</source>
        <translation>No se encuentra la presentación &quot;%1&quot;.</translation>
    </message>
    <message>
        <source>Enter an output device name</source>
        <translation>Indique nombre de dispositivo de salida</translation>
    </message>
    <message>
        <source>There is no device &quot;%1&quot;: plots are files of PDF, PNG or SVG.</source>
        <translation>No hay ningún dispositivo &quot;%1&quot;: los trazados son archivos PDF, PNG o SVG.</translation>
    </message>
    <message>
        <source>Enter paper size</source>
        <translation>Indique tamaño de papel</translation>
    </message>
    <message>
        <source>There is no paper size &quot;%1&quot;.</source>
        <translation>No hay ningún tamaño de papel &quot;%1&quot;.</translation>
    </message>
    <message>
        <source>Enter paper units [Inches/Millimeters] &lt;Millimeters&gt;: </source>
        <translation>Indique unidades de papel [Inches/Millimeters] &lt;Millimeters&gt;: </translation>
    </message>
    <message>
        <source>Enter drawing orientation [Portrait/Landscape] &lt;%1&gt;: </source>
        <translation>Indique orientación del dibujo [Portrait/Landscape] &lt;%1&gt;: </translation>
    </message>
    <message>
        <source>Plot upside down?</source>
        <translation>¿Trazar cabeza abajo?</translation>
    </message>
    <message>
        <source>
Plots stand upright here.</source>
        <translation>
Aquí los trazados van siempre derechos.</translation>
    </message>
    <message>
        <source>Enter lower left corner of window &lt;0.000000,0.000000&gt;: </source>
        <translation>Indique esquina inferior izquierda de la ventana &lt;0.000000,0.000000&gt;: </translation>
    </message>
    <message>
        <source>Enter upper right corner of window: </source>
        <translation>Indique esquina superior derecha de la ventana: </translation>
    </message>
    <message>
        <source>Enter plot area [%1] &lt;%2&gt;: </source>
        <translation>Indique área de trazado [%1] &lt;%2&gt;: </translation>
    </message>
    <message>
        <source>Enter view name: </source>
        <translation>Indique nombre de vista: </translation>
    </message>
    <message>
        <source>Cannot find view &quot;%1&quot;.</source>
        <translation>No se encuentra la vista &quot;%1&quot;.</translation>
    </message>
    <message>
        <source>Enter plot scale (Plotted Millimeters=Drawing Units) or [Fit] &lt;%1&gt;: </source>
        <translation>Indique escala de trazado (milímetros trazados=unidades de dibujo) o [Fit] &lt;%1&gt;: </translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no plot scale.</source>
        <translation>&quot;%1&quot; no es una escala de trazado.</translation>
    </message>
    <message>
        <source>Enter plot offset (x,y) or [Center] &lt;Center&gt;: </source>
        <translation>Indique desfase de trazado (x,y) o [Center] &lt;Center&gt;: </translation>
    </message>
    <message>
        <source>Plot with plot styles?</source>
        <translation>¿Trazar con estilos de trazado?</translation>
    </message>
    <message>
        <source>Enter plot style table name</source>
        <translation>Indique nombre de tabla de estilos de trazado</translation>
    </message>
    <message>
        <source>Plot with lineweights?</source>
        <translation>¿Trazar con grosores de línea?</translation>
    </message>
    <message>
        <source>Enter shade plot setting [As displayed/Wireframe/Hidden/Visual styles/Rendered] &lt;As displayed&gt;: </source>
        <translation>Indique parámetro de trazado sombreado [As displayed/Wireframe/Hidden/Visual styles/Rendered] &lt;As displayed&gt;: </translation>
    </message>
    <message>
        <source>Scale lineweights with plot scale?</source>
        <translation>¿Escalar grosores de línea con la escala de trazado?</translation>
    </message>
    <message>
        <source>Plot paper space first?</source>
        <translation>¿Trazar primero el espacio papel?</translation>
    </message>
    <message>
        <source>Hide paperspace objects?</source>
        <translation>¿Ocultar objetos del espacio papel?</translation>
    </message>
    <message>
        <source>Enter file name &lt;%1&gt;: </source>
        <translation>Indique nombre de archivo &lt;%1&gt;: </translation>
    </message>
    <message>
        <source>Save changes to page setup?</source>
        <translation>¿Guardar los cambios en la configuración de página?</translation>
    </message>
    <message>
        <source>Proceed with plot</source>
        <translation>Continuar con el trazado</translation>
    </message>
    <message>
        <source>Enter a page setup name &lt;&gt;: </source>
        <translation>Indique nombre de configuración de página &lt;&gt;: </translation>
    </message>
    <message>
        <source>Detailed plot configuration?</source>
        <translation>¿Configuración detallada del trazado?</translation>
    </message>
    <message>
        <source>
Plotted to %1.</source>
        <translation>
Trazado en %1.</translation>
    </message>
    <message>
        <source>Cannot find plot style table &quot;%1&quot;.</source>
        <translation>No se encuentra la tabla de estilos de trazado &quot;%1&quot;.</translation>
    </message>
    <message>
        <source>
Some of what the drawing holds is not drawn, or in part.</source>
        <translation>
Parte de lo que contiene el dibujo no se dibuja, o solo parcialmente.</translation>
    </message>
    <message>
        <source>Purge %1 &quot;%2&quot;? [Yes/No] &lt;No&gt;: </source>
        <translation>¿Limpiar %1 &quot;%2&quot;? [Yes/No] &lt;No&gt;: </translation>
    </message>
    <message>
        <source>
Deleting %1 &quot;%2&quot;.</source>
        <translation>
Borrando %1 &quot;%2&quot;.</translation>
    </message>
    <message>
        <source>Enter name(s) to purge &lt;*&gt;: </source>
        <translation>Indique nombres que se limpian &lt;*&gt;: </translation>
    </message>
    <message>
        <source>Verify each name to be purged? [Yes/No] &lt;Yes&gt;: </source>
        <translation>¿Verificar cada nombre que se limpia? [Yes/No] &lt;Yes&gt;: </translation>
    </message>
    <message>
        <source>
Nothing unreferenced found.</source>
        <translation>
No se ha encontrado nada sin referencias.</translation>
    </message>
    <message>
        <source>
%1 orphaned objects deleted.</source>
        <translation>
%1 objetos huérfanos borrados.</translation>
    </message>
    <message>
        <source>
%1 entities without length deleted.</source>
        <translation>
%1 entidades sin longitud borradas.</translation>
    </message>
    <message>
        <source>
%1 empty texts deleted.</source>
        <translation>
%1 textos vacíos borrados.</translation>
    </message>
    <message>
        <source>
No unreferenced %1 found.</source>
        <translation>
Sin referencias no se ha encontrado: %1.</translation>
    </message>
    <message>
        <source>Enter type of unused objects to purge [Blocks/DEtailviewstyles/Dimstyles/Groups/LAyers/LTypes/MAterials/MUltileaderstyles/Plotstyles/SHapes/textSTyles/Mlinestyles/SEctionviewstyles/Tablestyles/Visualstyles/Regapps/Zero-length geometry/Empty text objects/Orphaned data/All]: </source>
        <translation>Indique tipo de objetos sin usar que se limpian [Blocks/DEtailviewstyles/Dimstyles/Groups/LAyers/LTypes/MAterials/MUltileaderstyles/Plotstyles/SHapes/textSTyles/Mlinestyles/SEctionviewstyles/Tablestyles/Visualstyles/Regapps/Zero-length geometry/Empty text objects/Orphaned data/All]: </translation>
    </message>
    <message>
        <source>block</source>
        <translation>bloque</translation>
    </message>
    <message>
        <source>dimension style</source>
        <translation>estilo de cota</translation>
    </message>
    <message>
        <source>layer</source>
        <translation>capa</translation>
    </message>
    <message>
        <source>linetype</source>
        <translation>tipo de línea</translation>
    </message>
    <message>
        <source>material</source>
        <translation>material</translation>
    </message>
    <message>
        <source>multileader style</source>
        <translation>estilo de directriz múltiple</translation>
    </message>
    <message>
        <source>text style</source>
        <translation>estilo de texto</translation>
    </message>
    <message>
        <source>table style</source>
        <translation>estilo de tabla</translation>
    </message>
    <message>
        <source>UCS</source>
        <translation>SCP</translation>
    </message>
    <message>
        <source>view</source>
        <translation>vista</translation>
    </message>
    <message>
        <source>viewport</source>
        <translation>ventana</translation>
    </message>
    <message>
        <source>layout</source>
        <translation>presentación</translation>
    </message>
    <message>
        <source>Enter object type to rename [Block/Dimstyle/LAyer/LType/Material/multileadersTyle/Style/Tablestyle/Ucs/VIew/VPort]: </source>
        <translation>Indique tipo de objeto cuyo nombre se cambia [Block/Dimstyle/LAyer/LType/Material/multileadersTyle/Style/Tablestyle/Ucs/VIew/VPort]: </translation>
    </message>
    <message>
        <source>Enter old %1 name: </source>
        <translation>Indique nombre antiguo de %1: </translation>
    </message>
    <message>
        <source>Enter new %1 name: </source>
        <translation>Indique nombre nuevo de %1: </translation>
    </message>
    <message>
        <source>Enter command name: </source>
        <translation>Indique nombre de comando: </translation>
    </message>
    <message>
        <source>Unknown command &quot;%1&quot;.</source>
        <translation>Comando desconocido &quot;%1&quot;.</translation>
    </message>
    <message>
        <source>
%1 is a command already.</source>
        <translation>
%1 ya es un comando.</translation>
    </message>
    <message>
        <source>
Saved to %1.</source>
        <translation>
Guardado en %1.</translation>
    </message>
    <message>
        <source>Save all the same, or under another name? [Anyway/Name/Cancel] &lt;Cancel&gt;: </source>
        <translation>¿Guardar de todos modos o con otro nombre? [Anyway/Name/Cancel] &lt;Cancel&gt;: </translation>
    </message>
    <message>
        <source>Save under another name? [Name/Cancel] &lt;Cancel&gt;: </source>
        <translation>¿Guardar con otro nombre? [Name/Cancel] &lt;Cancel&gt;: </translation>
    </message>
    <message>
        <source>Nothing was written.</source>
        <translation>No se ha escrito nada.</translation>
    </message>
    <message>
        <source>Save drawing as: </source>
        <translation>Guardar dibujo como: </translation>
    </message>
    <message>
        <source>%1 cannot be set to that value.</source>
        <translation>%1 no admite ese valor.</translation>
    </message>
    <message>
        <source>Enter mode [ON/OFF] &lt;%1&gt;: </source>
        <translation>Indique modo [ON/OFF] &lt;%1&gt;: </translation>
    </message>
    <message>
        <source>Specify horizontal spacing(X) &lt;%1&gt;: </source>
        <translation>Precise separación horizontal(X) &lt;%1&gt;: </translation>
    </message>
    <message>
        <source>Specify vertical spacing(Y) &lt;%1&gt;: </source>
        <translation>Precise separación vertical(Y) &lt;%1&gt;: </translation>
    </message>
    <message>
        <source>Specify grid spacing(X) or [ON/OFF/Snap/Aspect]</source>
        <translation>Precise separación de la rejilla(X) o [ON/OFF/Snap/Aspect]</translation>
    </message>
    <message>
        <source>Specify snap spacing or [ON/OFF/Aspect/Rotate/Style/Type]</source>
        <translation>Precise separación del forzado de cursor o [ON/OFF/Aspect/Rotate/Style/Type]</translation>
    </message>
    <message>
        <source>Specify base point &lt;%1&gt;: </source>
        <translation>Precise punto base &lt;%1&gt;: </translation>
    </message>
    <message>
        <source>Enter snap grid style [Standard/Isometric] &lt;%1&gt;: </source>
        <translation>Indique estilo de la rejilla de forzado [Standard/Isometric] &lt;%1&gt;: </translation>
    </message>
    <message>
        <source>Specify vertical spacing</source>
        <translation>Precise separación vertical</translation>
    </message>
    <message>
        <source>Specify snap spacing or [Aspect]</source>
        <translation>Precise separación del forzado de cursor o [Aspect]</translation>
    </message>
    <message>
        <source>Enter snap type [Polar/Grid] &lt;%1&gt;: </source>
        <translation>Indique tipo de forzado de cursor [Polar/Grid] &lt;%1&gt;: </translation>
    </message>
    <message>
        <source>Enter isometric plane setting [Left/Top/Right] &lt;%1&gt;: </source>
        <translation>Indique plano isométrico [Left/Top/Right] &lt;%1&gt;: </translation>
    </message>
    <message>
        <source>
Current Isoplane: </source>
        <translation>
Plano isométrico actual: </translation>
    </message>
    <message>
        <source>Specify lower left corner or [ON/OFF] &lt;%1&gt;: </source>
        <translation>Precise esquina inferior izquierda o [ON/OFF] &lt;%1&gt;: </translation>
    </message>
    <message>
        <source>Specify upper right corner &lt;%1&gt;: </source>
        <translation>Precise esquina superior derecha &lt;%1&gt;: </translation>
    </message>
    <message>
        <source>Specify new default elevation &lt;%1&gt;: </source>
        <translation>Precise nueva elevación por defecto &lt;%1&gt;: </translation>
    </message>
    <message>
        <source>Specify new default thickness &lt;%1&gt;: </source>
        <translation>Precise nueva altura de objeto por defecto &lt;%1&gt;: </translation>
    </message>
    <message>
        <source>Enter default object color [Truecolor/COlorbook] &lt;%1&gt;: </source>
        <translation>Indique color de objetos por defecto [Truecolor/COlorbook] &lt;%1&gt;: </translation>
    </message>
    <message>
        <source>New objects take colors by number or name here.</source>
        <translation>Aquí los objetos nuevos toman colores por número o nombre.</translation>
    </message>
    <message>
        <source>
Everything has been undone.</source>
        <translation>
Se ha deshecho todo.</translation>
    </message>
    <message>
        <source>Enter UNDO Auto mode [ON/OFF] &lt;ON&gt;: </source>
        <translation>Indique modo Auto de UNDO [ON/OFF] &lt;ON&gt;: </translation>
    </message>
    <message>
        <source>Enter an UNDO control option [All/None/One/Combine/Layer] &lt;All&gt;: </source>
        <translation>Indique una opción de control de UNDO [All/None/One/Combine/Layer] &lt;All&gt;: </translation>
    </message>
    <message>
        <source>Combine zoom and pan operations? [Yes/No] &lt;Yes&gt;: </source>
        <translation>¿Combinar operaciones de zoom y encuadre? [Yes/No] &lt;Yes&gt;: </translation>
    </message>
    <message>
        <source>Combine layer property changes? [Yes/No] &lt;Yes&gt;: </source>
        <translation>¿Combinar cambios de propiedades de capas? [Yes/No] &lt;Yes&gt;: </translation>
    </message>
    <message>
        <source>
Undo is always on.</source>
        <translation>
Deshacer está siempre activado.</translation>
    </message>
    <message>
        <source>This will undo everything. OK? [Yes/No] &lt;Yes&gt;: </source>
        <translation>Esto lo deshará todo. ¿De acuerdo? [Yes/No] &lt;Yes&gt;: </translation>
    </message>
    <message>
        <source>Enter the number of operations to undo or [Auto/Control/BEgin/End/Mark/Back] &lt;1&gt;: </source>
        <translation>Indique número de operaciones que se deshacen o [Auto/Control/BEgin/End/Mark/Back] &lt;1&gt;: </translation>
    </message>
    <message>
        <source>
There is nothing to redo.</source>
        <translation>
No hay nada que rehacer.</translation>
    </message>
    <message>
        <source>Enter number of actions or [All/Last]: </source>
        <translation>Indique número de acciones o [All/Last]: </translation>
    </message>
    <message>
        <source>
There is nothing to bring back.</source>
        <translation>
No hay nada que recuperar.</translation>
    </message>
    <message>
        <source>Enter command name to repeat: </source>
        <translation>Indique nombre del comando que se repite: </translation>
    </message>
    <message>
        <source>Unknown command &quot;%1&quot;: only built-in ones are repeated.</source>
        <translation>Comando desconocido &quot;%1&quot;: solo se repiten los incorporados.</translation>
    </message>
    <message>
        <source>Requires an integer between %1 and %2.</source>
        <translation>Se requiere un entero entre %1 y %2.</translation>
    </message>
    <message>
        <source>Enter denominator of smallest fraction to display (1, 2, 4, 8, 16, 32, 64, 128, or 256) &lt;%1&gt;: </source>
        <translation>Indique denominador de la menor fracción que se muestra (1, 2, 4, 8, 16, 32, 64, 128 o 256) &lt;%1&gt;: </translation>
    </message>
    <message>
        <source>Requires a power of two up to 256.</source>
        <translation>Se requiere una potencia de dos hasta 256.</translation>
    </message>
    <message>
        <source>
Report formats: 1. Scientific  2. Decimal  3. Engineering  4. Architectural  5. Fractional</source>
        <translation>
Formatos: 1. Científico  2. Decimal  3. Ingeniería  4. Arquitectura  5. Fraccionario</translation>
    </message>
    <message>
        <source>Enter choice, 1 to 5</source>
        <translation>Indique elección, 1 a 5</translation>
    </message>
    <message>
        <source>Enter number of digits to right of decimal point (0 to 8)</source>
        <translation>Indique número de decimales (0 a 8)</translation>
    </message>
    <message>
        <source>
Systems of angle measure: 1. Decimal degrees  2. Degrees/minutes/seconds  3. Grads  4. Radians  5. Surveyor&apos;s units</source>
        <translation>
Sistemas de ángulos: 1. Grados decimales  2. Grados/minutos/segundos  3. Grados centesimales  4. Radianes  5. Unidades geodésicas</translation>
    </message>
    <message>
        <source>Enter number of fractional places for display of angles (0 to 8)</source>
        <translation>Indique número de decimales de los ángulos (0 a 8)</translation>
    </message>
    <message>
        <source>Enter direction for angle 0 &lt;%1&gt;: </source>
        <translation>Indique dirección del ángulo 0 &lt;%1&gt;: </translation>
    </message>
    <message>
        <source>Measure angles clockwise? [Yes/No] &lt;%1&gt;: </source>
        <translation>¿Medir ángulos en sentido horario? [Yes/No] &lt;%1&gt;: </translation>
    </message>
    <message>
        <source>%1 mm</source>
        <translation>%1 mm</translation>
    </message>
    <message>
        <source>
Current lineweight: %1</source>
        <translation>
Grosor de línea actual: %1</translation>
    </message>
    <message>
        <source>Enter default lineweight for new objects or [?]: </source>
        <translation>Indique grosor de línea por defecto de los objetos nuevos o [?]: </translation>
    </message>
    <message>
        <source>
ByLayer, ByBlock, Default, or 0.00 to 2.11 mm</source>
        <translation>
ByLayer, ByBlock, Por defecto, o de 0.00 a 2.11 mm</translation>
    </message>
    <message>
        <source>from point,</source>
        <translation>del punto,</translation>
    </message>
    <message>
        <source>  to point,</source>
        <translation>  al punto,</translation>
    </message>
    <message>
        <source>Length = %1,  Angle in XY Plane = %2</source>
        <translation>Longitud = %1,  Ángulo en el plano XY = %2</translation>
    </message>
    <message>
        <source>Delta X = %1, Delta Y = %2, Delta Z = %3</source>
        <translation>Incr. X = %1, Incr. Y = %2, Incr. Z = %3</translation>
    </message>
    <message>
        <source>at point,</source>
        <translation>en el punto,</translation>
    </message>
    <message>
        <source>base point,</source>
        <translation>punto base,</translation>
    </message>
    <message>
        <source>through point,</source>
        <translation>pasa por el punto,</translation>
    </message>
    <message>
        <source>center point,</source>
        <translation>centro,</translation>
    </message>
    <message>
        <source>start angle</source>
        <translation>ángulo inicial</translation>
    </message>
    <message>
        <source>end angle</source>
        <translation>ángulo final</translation>
    </message>
    <message>
        <source>Center:</source>
        <translation>Centro:</translation>
    </message>
    <message>
        <source>Major Axis:</source>
        <translation>Eje mayor:</translation>
    </message>
    <message>
        <source>at point</source>
        <translation>en el punto</translation>
    </message>
    <message>
        <source>Constant width</source>
        <translation>Grosor constante</translation>
    </message>
    <message>
        <source>first point</source>
        <translation>primer punto</translation>
    </message>
    <message>
        <source>second point</source>
        <translation>segundo punto</translation>
    </message>
    <message>
        <source>third point</source>
        <translation>tercer punto</translation>
    </message>
    <message>
        <source>fourth point</source>
        <translation>cuarto punto</translation>
    </message>
    <message>
        <source>Control Point:</source>
        <translation>Punto de control:</translation>
    </message>
    <message>
        <source>Fit Point:</source>
        <translation>Punto de ajuste:</translation>
    </message>
    <message>
        <source>alignment point,</source>
        <translation>punto de alineación,</translation>
    </message>
    <message>
        <source>start point,</source>
        <translation>punto inicial,</translation>
    </message>
    <message>
        <source>rotation angle</source>
        <translation>ángulo de rotación</translation>
    </message>
    <message>
        <source>width scale</source>
        <translation>escala de anchura</translation>
    </message>
    <message>
        <source>obliquing angle</source>
        <translation>ángulo de oblicuidad</translation>
    </message>
    <message>
        <source>Location:</source>
        <translation>Ubicación:</translation>
    </message>
    <message>
        <source>Text style</source>
        <translation>Estilo de texto</translation>
    </message>
    <message>
        <source>Text height</source>
        <translation>Altura de texto</translation>
    </message>
    <message>
        <source>X scale factor</source>
        <translation>Factor de escala X</translation>
    </message>
    <message>
        <source>Y scale factor</source>
        <translation>Factor de escala Y</translation>
    </message>
    <message>
        <source>Z scale factor</source>
        <translation>Factor de escala Z</translation>
    </message>
    <message>
        <source>number of columns</source>
        <translation>número de columnas</translation>
    </message>
    <message>
        <source>number of rows</source>
        <translation>número de filas</translation>
    </message>
    <message>
        <source>between columns</source>
        <translation>entre columnas</translation>
    </message>
    <message>
        <source>between rows</source>
        <translation>entre filas</translation>
    </message>
    <message>
        <source>arc length</source>
        <translation>longitud de arco</translation>
    </message>
    <message>
        <source>jogged radius</source>
        <translation>radio con recodo</translation>
    </message>
    <message>
        <source>defining point:</source>
        <translation>punto de definición:</translation>
    </message>
    <message>
        <source>Hatch pattern</source>
        <translation>Patrón de sombreado</translation>
    </message>
    <message>
        <source>Hatch scale</source>
        <translation>Escala de sombreado</translation>
    </message>
    <message>
        <source>Hatch angle</source>
        <translation>Ángulo de sombreado</translation>
    </message>
    <message>
        <source>Scale relative to Paper space</source>
        <translation>Escala relativa al espacio papel</translation>
    </message>
    <message>
        <source>Bounding Box: Lower Bound</source>
        <translation>Caja envolvente: límite inferior</translation>
    </message>
    <message>
        <source>Area:</source>
        <translation>Área:</translation>
    </message>
    <message>
        <source>Perimeter:</source>
        <translation>Perímetro:</translation>
    </message>
    <message>
        <source>Color:</source>
        <translation>Color:</translation>
    </message>
    <message>
        <source>Linetype:</source>
        <translation>Tipo de línea:</translation>
    </message>
    <message>
        <source>Linetype scale</source>
        <translation>Escala de tipo de línea</translation>
    </message>
    <message>
        <source>Lineweight:</source>
        <translation>Grosor de línea:</translation>
    </message>
    <message>
        <source>%1  Layer: &quot;%2&quot;</source>
        <translation>%1  Capa: &quot;%2&quot;</translation>
    </message>
    <message>
        <source>Space:</source>
        <translation>Espacio:</translation>
    </message>
    <message>
        <source>Model space</source>
        <translation>Espacio modelo</translation>
    </message>
    <message>
        <source>Paper space</source>
        <translation>Espacio papel</translation>
    </message>
    <message>
        <source>Layout:</source>
        <translation>Presentación:</translation>
    </message>
    <message>
        <source>Handle =</source>
        <translation>Identificador =</translation>
    </message>
    <message>
        <source>
Distance = %1,  Angle in XY Plane = %2,  Angle from XY Plane = %3</source>
        <translation>
Distancia = %1,  Ángulo en el plano XY = %2,  Ángulo desde el plano XY = %3</translation>
    </message>
    <message>
        <source>
Delta X = %1,  Delta Y = %2,   Delta Z = %3</source>
        <translation>
Incr. X = %1,  Incr. Y = %2,   Incr. Z = %3</translation>
    </message>
    <message>
        <source>Specify next point or [Close/Undo/Total] &lt;Total&gt;: </source>
        <translation>Precise punto siguiente o [Close/Undo/Total] &lt;Total&gt;: </translation>
    </message>
    <message>
        <source>
Distance = %1</source>
        <translation>
Distancia = %1</translation>
    </message>
    <message>
        <source>Specify second point or [Multiple points]: </source>
        <translation>Precise segundo punto o [Multiple points]: </translation>
    </message>
    <message>
        <source>%1 days %2:%3:%4</source>
        <translation>%1 días %2:%3:%4</translation>
    </message>
    <message>
        <source>
Current time:             </source>
        <translation>
Hora actual:             </translation>
    </message>
    <message>
        <source>
Times for this drawing:</source>
        <translation>
Tiempos de este dibujo:</translation>
    </message>
    <message>
        <source>
  Created:                </source>
        <translation>
  Creado:                </translation>
    </message>
    <message>
        <source>
  Last updated:           </source>
        <translation>
  Última actualización:           </translation>
    </message>
    <message>
        <source>
  Total editing time:     </source>
        <translation>
  Tiempo total de edición:     </translation>
    </message>
    <message>
        <source>
  Elapsed timer:          </source>
        <translation>
  Cronómetro:          </translation>
    </message>
    <message>
        <source>
%1 objects in %2</source>
        <translation>
%1 objetos en %2</translation>
    </message>
    <message>
        <source>Limits are, low</source>
        <translation>Límites, inferior</translation>
    </message>
    <message>
        <source>Limits are, high</source>
        <translation>Límites, superior</translation>
    </message>
    <message>
        <source>Uses, low</source>
        <translation>Extensión, inferior</translation>
    </message>
    <message>
        <source>Uses, high</source>
        <translation>Extensión, superior</translation>
    </message>
    <message>
        <source>Insertion base is</source>
        <translation>La base de inserción es</translation>
    </message>
    <message>
        <source>Current space:</source>
        <translation>Espacio actual:</translation>
    </message>
    <message>
        <source>Current layer:</source>
        <translation>Capa actual:</translation>
    </message>
    <message>
        <source>Current color:</source>
        <translation>Color actual:</translation>
    </message>
    <message>
        <source>Current linetype:</source>
        <translation>Tipo de línea actual:</translation>
    </message>
    <message>
        <source>Current elevation:</source>
        <translation>Elevación actual:</translation>
    </message>
    <message>
        <source>Thickness:</source>
        <translation>Altura de objeto:</translation>
    </message>
    <message>
        <source>A drawing of this version has no such property of layers.</source>
        <translation>Un dibujo de esta versión no tiene esa propiedad de capas.</translation>
    </message>
    <message>
        <source>New color [Truecolor/COlorbook] &lt;7 (white)&gt;: </source>
        <translation>Nuevo color [Truecolor/COlorbook] &lt;7 (blanco)&gt;: </translation>
    </message>
    <message>
        <source>Enter loaded linetype name or [?] &lt;%1&gt;: </source>
        <translation>Indique nombre de tipo de línea cargado o [?] &lt;%1&gt;: </translation>
    </message>
    <message>
        <source>Linetype &quot;%1&quot; not found.</source>
        <translation>No se encuentra el tipo de línea &quot;%1&quot;.</translation>
    </message>
    <message>
        <source>linetype &quot;%1&quot;</source>
        <translation>tipo de línea &quot;%1&quot;</translation>
    </message>
    <message>
        <source>Enter lineweight (0.0mm - 2.11mm) or [Default]: </source>
        <translation>Indique grosor de línea (0.0mm - 2.11mm) o [Default]: </translation>
    </message>
    <message>
        <source>Enter transparency value (0-90): </source>
        <translation>Indique valor de transparencia (0-90): </translation>
    </message>
    <message>
        <source>transparency value %1</source>
        <translation>valor de transparencia %1</translation>
    </message>
    <message>
        <source>Enter material name &lt;Global&gt;: </source>
        <translation>Indique nombre de material &lt;Global&gt;: </translation>
    </message>
    <message>
        <source>Cannot find material &quot;%1&quot;.</source>
        <translation>No se encuentra el material &quot;%1&quot;.</translation>
    </message>
    <message>
        <source>material &quot;%1&quot;</source>
        <translation>material &quot;%1&quot;</translation>
    </message>
    <message>
        <source>Enter a plotting preference [Plot/No plot] &lt;Plot&gt;: </source>
        <translation>Indique preferencia de trazado [Plot/No plot] &lt;Plot&gt;: </translation>
    </message>
    <message>
        <source>this plot preference</source>
        <translation>esta preferencia de trazado</translation>
    </message>
    <message>
        <source>Enter layer description: </source>
        <translation>Indique descripción de capa: </translation>
    </message>
    <message>
        <source>this description</source>
        <translation>esta descripción</translation>
    </message>
    <message>
        <source>This program keeps no named plot styles: nothing was changed.</source>
        <translation>Este programa no guarda estilos de trazado guardados: no se ha cambiado nada.</translation>
    </message>
    <message>
        <source>
No matching layer names found.</source>
        <translation>
No se han encontrado nombres de capa coincidentes.</translation>
    </message>
    <message>
        <source>
Cannot freeze layer &quot;%1&quot;. It is the current layer.</source>
        <translation>
No se puede inutilizar la capa &quot;%1&quot;. Es la capa actual.</translation>
    </message>
    <message>
        <source>Enter name list of layer(s) to turn on: </source>
        <translation>Indique lista de capas que se activan: </translation>
    </message>
    <message>
        <source>Enter name list of layer(s) to turn off: </source>
        <translation>Indique lista de capas que se desactivan: </translation>
    </message>
    <message>
        <source>Enter name list of layer(s) to freeze: </source>
        <translation>Indique lista de capas que se inutilizan: </translation>
    </message>
    <message>
        <source>Enter name list of layer(s) to thaw: </source>
        <translation>Indique lista de capas que se reutilizan: </translation>
    </message>
    <message>
        <source>Enter name list of layer(s) to lock: </source>
        <translation>Indique lista de capas que se bloquean: </translation>
    </message>
    <message>
        <source>Enter name list of layer(s) to unlock: </source>
        <translation>Indique lista de capas que se desbloquean: </translation>
    </message>
    <message>
        <source>Really want layer &quot;%1&quot; (the CURRENT layer) off? [Yes/No] &lt;No&gt;: </source>
        <translation>¿Seguro que quiere desactivar la capa &quot;%1&quot; (la capa ACTUAL)? [Yes/No] &lt;No&gt;: </translation>
    </message>
    <message>
        <source>&quot;%1&quot; cannot be the name of a layer.</source>
        <translation>&quot;%1&quot; no puede ser el nombre de una capa.</translation>
    </message>
    <message>
        <source>Cannot make layer &quot;%1&quot; current: it is frozen.</source>
        <translation>La capa &quot;%1&quot; no puede ser la actual: está inutilizada.</translation>
    </message>
    <message>
        <source>Enter name for new layer (becomes the current layer) &lt;%1&gt;: </source>
        <translation>Indique nombre de nueva capa (pasa a ser la actual) &lt;%1&gt;: </translation>
    </message>
    <message>
        <source>Enter layer name to make current or &lt;select object&gt;: </source>
        <translation>Indique nombre de la capa que será la actual o &lt;designar objeto&gt;: </translation>
    </message>
    <message>
        <source>Enter name list for new layer(s): </source>
        <translation>Indique lista de nombres de capas nuevas: </translation>
    </message>
    <message>
        <source>Enter old layer name: </source>
        <translation>Indique nombre antiguo de capa: </translation>
    </message>
    <message>
        <source>Enter layer name(s) to list &lt;*&gt;: </source>
        <translation>Indique nombres de capas que se listan &lt;*&gt;: </translation>
    </message>
    <message>
        <source>
Layer name  State  Color  Linetype  Lineweight</source>
        <translation>
Nombre de capa  Estado  Color  Tipo de línea  Grosor de línea</translation>
    </message>
    <message>
        <source>
Current layer:  &quot;%1&quot;</source>
        <translation>
Capa actual:  &quot;%1&quot;</translation>
    </message>
    <message>
        <source>Enter name list of layer(s) to reconcile: </source>
        <translation>Indique lista de capas que se reconcilian: </translation>
    </message>
    <message>
        <source>
No unreconciled layers.</source>
        <translation>
No hay capas sin reconciliar.</translation>
    </message>
    <message>
        <source>Enter name list of layer(s) for %1 &lt;%2&gt;: </source>
        <translation>Indique lista de capas para %1 &lt;%2&gt;: </translation>
    </message>
    <message>
        <source>Enter an option [?/Make/Set/New/Rename/ON/OFF/Color/Ltype/LWeight/TRansparency/MATerial/Plot/PStyle/Freeze/Thaw/LOck/Unlock/stAte/Description/rEconcile]: </source>
        <translation>Indique una opción [?/Make/Set/New/Rename/ON/OFF/Color/Ltype/LWeight/TRansparency/MATerial/Plot/PStyle/Freeze/Thaw/LOck/Unlock/stAte/Description/rEconcile]: </translation>
    </message>
    <message>
        <source>
States to restore: </source>
        <translation>
Estados que se restablecen: </translation>
    </message>
    <message>
        <source>Enter states to change [On/Frozen/Lock/Plot/Newvpfreeze/Color/lineType/lineWeight/plotStyle/TRansparency]: </source>
        <translation>Indique estados que se cambian [On/Frozen/Lock/Plot/Newvpfreeze/Color/lineType/lineWeight/plotStyle/TRansparency]: </translation>
    </message>
    <message>
        <source>
No layer states.</source>
        <translation>
No hay estados de capas.</translation>
    </message>
    <message>
        <source>
Layer states: </source>
        <translation>
Estados de capas: </translation>
    </message>
    <message>
        <source>Cannot find layer state &quot;%1&quot;.</source>
        <translation>No se encuentra el estado de capas &quot;%1&quot;.</translation>
    </message>
    <message>
        <source>Enter new layer state name: </source>
        <translation>Indique nombre de nuevo estado de capas: </translation>
    </message>
    <message>
        <source>A drawing of this version keeps no layer states.</source>
        <translation>Un dibujo de esta versión no guarda estados de capas.</translation>
    </message>
    <message>
        <source>Enter name of layer state to restore or [?]: </source>
        <translation>Indique nombre del estado de capas que se restablece o [?]: </translation>
    </message>
    <message>
        <source>Enter name of layer state to edit or [?]: </source>
        <translation>Indique nombre del estado de capas que se edita o [?]: </translation>
    </message>
    <message>
        <source>Enter name of layer state to rename or [?]: </source>
        <translation>Indique nombre del estado de capas que cambia de nombre o [?]: </translation>
    </message>
    <message>
        <source>Layer state &quot;%1&quot; already exists or cannot be one.</source>
        <translation>El estado de capas &quot;%1&quot; ya existe o no puede serlo.</translation>
    </message>
    <message>
        <source>Enter name of layer state to delete or [?]: </source>
        <translation>Indique nombre del estado de capas que se borra o [?]: </translation>
    </message>
    <message>
        <source>Enter name of file to import: </source>
        <translation>Indique nombre del archivo que se importa: </translation>
    </message>
    <message>
        <source>No layer state was taken from &quot;%1&quot;.</source>
        <translation>No se ha tomado ningún estado de capas de &quot;%1&quot;.</translation>
    </message>
    <message>
        <source>
Layer state &quot;%1&quot; imported.</source>
        <translation>
Estado de capas &quot;%1&quot; importado.</translation>
    </message>
    <message>
        <source>Enter name of layer state to export or [?]: </source>
        <translation>Indique nombre del estado de capas que se exporta o [?]: </translation>
    </message>
    <message>
        <source>Enter name of file to export: </source>
        <translation>Indique nombre del archivo de exportación: </translation>
    </message>
    <message>
        <source>Enter an option [?/Save/Restore/Edit/Name/Delete/Import/EXport]: </source>
        <translation>Indique una opción [?/Save/Restore/Edit/Name/Delete/Import/EXport]: </translation>
    </message>
    <message>
        <source>
Cannot read linetype file &quot;%1&quot;.</source>
        <translation>
No se puede leer el archivo de tipos de línea &quot;%1&quot;.</translation>
    </message>
    <message>
        <source>
Cannot read linetype file &quot;%1&quot;: %2 (the limit is %3 MB).</source>
        <translation>
No se puede leer el archivo de tipos de línea &quot;%1&quot;: %2 (el límite es %3 MB).</translation>
    </message>
    <message>
        <source>
Linetype &quot;%1&quot; not loaded: %2.</source>
        <translation>
Tipo de línea &quot;%1&quot; no cargado: %2.</translation>
    </message>
    <message>
        <source>
Linetype &quot;%1&quot; not found.</source>
        <translation>
No se encuentra el tipo de línea &quot;%1&quot;.</translation>
    </message>
    <message>
        <source>Enter an option [?/Load/Set]: </source>
        <translation>Indique una opción [?/Load/Set]: </translation>
    </message>
    <message>
        <source>Specify linetype name: </source>
        <translation>Precise nombre de tipo de línea: </translation>
    </message>
    <message>
        <source>Enter linetype(s) to load: </source>
        <translation>Indique tipos de línea que se cargan: </translation>
    </message>
    <message>
        <source>Enter name of linetype file: </source>
        <translation>Indique nombre de archivo de tipos de línea: </translation>
    </message>
    <message>
        <source>
No matching linetypes found.</source>
        <translation>
No se han encontrado tipos de línea coincidentes.</translation>
    </message>
    <message>
        <source>Linetype &quot;%1&quot; is already loaded. Reload it? [Yes/No] &lt;Yes&gt;: </source>
        <translation>El tipo de línea &quot;%1&quot; ya está cargado. ¿Volver a cargarlo? [Yes/No] &lt;Yes&gt;: </translation>
    </message>
    <message>
        <source>Enter setting for layers not isolated [Off/Lock and fade] &lt;%1&gt;: </source>
        <translation>Indique parámetro para las capas no aisladas [Off/Lock and fade] &lt;%1&gt;: </translation>
    </message>
    <message>
        <source>In paper space viewport use [Vpfreeze/Off] &lt;Vpfreeze&gt;: </source>
        <translation>En ventanas del espacio papel usar [Vpfreeze/Off] &lt;Vpfreeze&gt;: </translation>
    </message>
    <message>
        <source>Enter fade value (0-90) &lt;50&gt;: </source>
        <translation>Indique valor de difuminado (0-90) &lt;50&gt;: </translation>
    </message>
    <message>
        <source>
Layer &quot;%1&quot; has been isolated.</source>
        <translation>
Se ha aislado la capa &quot;%1&quot;.</translation>
    </message>
    <message>
        <source>
%1 layers have been isolated.</source>
        <translation>
Se han aislado %1 capas.</translation>
    </message>
    <message>
        <source>
Current setting: Hide layers, Viewports=Vpfreeze</source>
        <translation>
Parámetro actual: ocultar capas, ventanas=Vpfreeze</translation>
    </message>
    <message>
        <source>
Current setting: Lock layers, Fade=50</source>
        <translation>
Parámetro actual: bloquear capas, difuminado=50</translation>
    </message>
    <message>
        <source>Select objects on the layer(s) to be isolated or [Settings]: </source>
        <translation>Designe objetos de las capas que se aíslan o [Settings]: </translation>
    </message>
    <message>
        <source>Nothing was selected.</source>
        <translation>No se ha designado nada.</translation>
    </message>
    <message>
        <source>
No layers are isolated.</source>
        <translation>
No hay capas aisladas.</translation>
    </message>
    <message>
        <source>
Layers isolated by LAYISO command have been restored.</source>
        <translation>
Se han restablecido las capas aisladas con LAYISO.</translation>
    </message>
    <message>
        <source>
There is no previous state of the layers.</source>
        <translation>
No hay un estado anterior de las capas.</translation>
    </message>
    <message>
        <source>
Restored previous layer status.</source>
        <translation>
Se ha restablecido el estado anterior de las capas.</translation>
    </message>
    <message>
        <source>Select an object on the layer to be frozen or [Settings/Undo]: </source>
        <translation>Designe un objeto de la capa que se inutiliza o [Settings/Undo]: </translation>
    </message>
    <message>
        <source>
Layer &quot;%1&quot; has been frozen.</source>
        <translation>
Se ha inutilizado la capa &quot;%1&quot;.</translation>
    </message>
    <message>
        <source>Select an object on the layer to be turned off or [Settings/Undo]: </source>
        <translation>Designe un objeto de la capa que se desactiva o [Settings/Undo]: </translation>
    </message>
    <message>
        <source>
Layer &quot;%1&quot; has been turned off.</source>
        <translation>
Se ha desactivado la capa &quot;%1&quot;.</translation>
    </message>
    <message>
        <source>Enter setting type for [Viewports/Block selection]: </source>
        <translation>Indique tipo de parámetro para [Viewports/Block selection]: </translation>
    </message>
    <message>
        <source>In paper space viewport use [Vpfreeze/Freeze/Off] &lt;Vpfreeze&gt;: </source>
        <translation>En ventanas del espacio papel usar [Vpfreeze/Freeze/Off] &lt;Vpfreeze&gt;: </translation>
    </message>
    <message>
        <source>Enter block selection nesting level [Block/Entity/None] &lt;Entity&gt;: </source>
        <translation>Indique nivel de anidamiento para designar bloques [Block/Entity/None] &lt;Entity&gt;: </translation>
    </message>
    <message>
        <source>Layer &quot;%1&quot; is current, do you want to turn it off? [Yes/No] &lt;No&gt;: </source>
        <translation>La capa &quot;%1&quot; es la actual. ¿Desea desactivarla? [Yes/No] &lt;No&gt;: </translation>
    </message>
    <message>
        <source>
All layers have been turned on.</source>
        <translation>
Se han activado todas las capas.</translation>
    </message>
    <message>
        <source>
All layers have been thawed.</source>
        <translation>
Se han reutilizado todas las capas.</translation>
    </message>
    <message>
        <source>Select an object on the layer to be locked: </source>
        <translation>Designe un objeto de la capa que se bloquea: </translation>
    </message>
    <message>
        <source>Select an object on the layer to be unlocked: </source>
        <translation>Designe un objeto de la capa que se desbloquea: </translation>
    </message>
    <message>
        <source>
Layer &quot;%1&quot; has been locked.</source>
        <translation>
Se ha bloqueado la capa &quot;%1&quot;.</translation>
    </message>
    <message>
        <source>
Layer &quot;%1&quot; has been unlocked.</source>
        <translation>
Se ha desbloqueado la capa &quot;%1&quot;.</translation>
    </message>
    <message>
        <source>
One object changed to layer &quot;%1&quot;.</source>
        <translation>
Un objeto pasado a la capa &quot;%1&quot;.</translation>
    </message>
    <message>
        <source>
%1 objects changed to layer &quot;%2&quot;.</source>
        <translation>
%1 objetos pasados a la capa &quot;%2&quot;.</translation>
    </message>
    <message>
        <source>Select objects to be changed to the current layer: </source>
        <translation>Designe objetos que pasan a la capa actual: </translation>
    </message>
    <message>
        <source>Select objects to be changed: </source>
        <translation>Designe objetos que se cambian: </translation>
    </message>
    <message>
        <source>Select object on destination layer or [Name]: </source>
        <translation>Designe objeto de la capa de destino o [Name]: </translation>
    </message>
    <message>
        <source>Enter layer name: </source>
        <translation>Indique nombre de capa: </translation>
    </message>
    <message>
        <source>Select object whose layer will become current: </source>
        <translation>Designe objeto cuya capa será la actual: </translation>
    </message>
    <message>
        <source>
%1 is now the current layer.</source>
        <translation>
%1 es ahora la capa actual.</translation>
    </message>
    <message>
        <source>This command works through a viewport of a sheet: MSPACE goes into one.</source>
        <translation>Este comando actúa a través de una ventana de presentación: MSPACE entra en una.</translation>
    </message>
    <message>
        <source>Select an object on the layer to be isolated in viewport or [Settings/Undo]: </source>
        <translation>Designe un objeto de la capa que se aísla en la ventana o [Settings/Undo]: </translation>
    </message>
    <message>
        <source>
Layer &quot;%1&quot; has been frozen in all viewports but the current one.</source>
        <translation>
La capa &quot;%1&quot; se ha inutilizado en todas las ventanas menos la actual.</translation>
    </message>
    <message>
        <source>
Selected layers: %1.</source>
        <translation>
Capas designadas: %1.</translation>
    </message>
    <message>
        <source>Do you wish to continue? [Yes/No] &lt;No&gt;: </source>
        <translation>¿Desea continuar? [Yes/No] &lt;No&gt;: </translation>
    </message>
    <message>
        <source>Select object on layer to delete or %1: </source>
        <translation>Designe objeto de la capa que se borra o %1: </translation>
    </message>
    <message>
        <source>Enter layer name to delete: </source>
        <translation>Indique nombre de la capa que se borra: </translation>
    </message>
    <message>
        <source>All that is on layer(s) %1 is erased, and the layers are deleted.</source>
        <translation>Se borra todo lo que hay en las capas %1, y también las capas.</translation>
    </message>
    <message>
        <source>
%1 layer(s) deleted with %2 object(s).</source>
        <translation>
%1 capa(s) borrada(s) con %2 objeto(s).</translation>
    </message>
    <message>
        <source>Select object on layer to merge or %1: </source>
        <translation>Designe objeto de la capa que se fusiona o %1: </translation>
    </message>
    <message>
        <source>Enter layer name to merge: </source>
        <translation>Indique nombre de la capa que se fusiona: </translation>
    </message>
    <message>
        <source>Select object on target layer or [Name]: </source>
        <translation>Designe objeto de la capa de destino o [Name]: </translation>
    </message>
    <message>
        <source>You are about to merge %1 layer(s) into layer &quot;%2&quot;.</source>
        <translation>Va a fusionar %1 capa(s) en la capa &quot;%2&quot;.</translation>
    </message>
    <message>
        <source>
%1 layer(s) deleted.</source>
        <translation>
%1 capa(s) borrada(s).</translation>
    </message>
    <message>
        <source>Enter variable(s) to list &lt;*&gt;: </source>
        <translation>Indique variables que se listan &lt;*&gt;: </translation>
    </message>
    <message>
        <source> (read only)</source>
        <translation> (solo lectura)</translation>
    </message>
    <message>
        <source>
No variable has such a name.</source>
        <translation>
Ninguna variable tiene ese nombre.</translation>
    </message>
    <message>
        <source>Requires an integer.</source>
        <translation>Se requiere un entero.</translation>
    </message>
    <message>
        <source>Requires a number.</source>
        <translation>Se requiere un número.</translation>
    </message>
    <message>
        <source>Requires a number between %1 and %2.</source>
        <translation>Se requiere un número entre %1 y %2.</translation>
    </message>
    <message>
        <source>Cannot set %1 to that value.</source>
        <translation>No se puede dar ese valor a %1.</translation>
    </message>
    <message>
        <source>Requires a point.</source>
        <translation>Se requiere un punto.</translation>
    </message>
    <message>
        <source>Enter variable name or [?]: </source>
        <translation>Indique nombre de variable o [?]: </translation>
    </message>
    <message>
        <source>Unknown variable name &quot;%1&quot;. Type SETVAR ? for a list of variables.</source>
        <translation>Variable desconocida &quot;%1&quot;. Escriba SETVAR ? para ver una lista de variables.</translation>
    </message>
    <message>
        <source>
%1 = %2 (read only)</source>
        <translation>
%1 = %2 (solo lectura)</translation>
    </message>
    <message>
        <source>Enter new value for %1 &lt;%2&gt;: </source>
        <translation>Indique nuevo valor de %1 &lt;%2&gt;: </translation>
    </message>
    <message>
        <source>
Active layouts:</source>
        <translation>
Presentaciones activas:</translation>
    </message>
    <message>
        <source>
Layout: %1	Block name: %2.</source>
        <translation>
Presentación: %1	Nombre de bloque: %2.</translation>
    </message>
    <message>
        <source>
%1 active layout(s) found.</source>
        <translation>
%1 presentación(es) activa(s) encontrada(s).</translation>
    </message>
    <message>
        <source>Enter name of layout to copy: </source>
        <translation>Indique nombre de la presentación que se copia: </translation>
    </message>
    <message>
        <source>Enter layout name for copy: </source>
        <translation>Indique nombre de presentación para la copia: </translation>
    </message>
    <message>
        <source>Layout &quot;%1&quot; copied to &quot;%2&quot;.</source>
        <translation>Presentación &quot;%1&quot; copiada en &quot;%2&quot;.</translation>
    </message>
    <message>
        <source>Enter new Layout name: </source>
        <translation>Indique nombre de nueva presentación: </translation>
    </message>
    <message>
        <source>Layout &quot;%1&quot; created.</source>
        <translation>Presentación &quot;%1&quot; creada.</translation>
    </message>
    <message>
        <source>Enter layout to rename: </source>
        <translation>Indique presentación que cambia de nombre: </translation>
    </message>
    <message>
        <source>Enter new layout name: </source>
        <translation>Indique nuevo nombre de presentación: </translation>
    </message>
    <message>
        <source>Layout &quot;%1&quot; renamed to &quot;%2&quot;.</source>
        <translation>Presentación &quot;%1&quot; renombrada como &quot;%2&quot;.</translation>
    </message>
    <message>
        <source>Enter name of layout to delete: </source>
        <translation>Indique nombre de la presentación que se borra: </translation>
    </message>
    <message>
        <source>Layout &quot;%1&quot; deleted.</source>
        <translation>Presentación &quot;%1&quot; borrada.</translation>
    </message>
    <message>
        <source>Enter layout to make current: </source>
        <translation>Indique presentación que será la actual: </translation>
    </message>
    <message>
        <source>Enter layout to move: </source>
        <translation>Indique presentación que se desplaza: </translation>
    </message>
    <message>
        <source>Enter its place among the layouts: </source>
        <translation>Indique su lugar entre las presentaciones: </translation>
    </message>
    <message>
        <source>Layout &quot;%1&quot; moved.</source>
        <translation>Presentación &quot;%1&quot; desplazada.</translation>
    </message>
    <message>
        <source>Enter layout to save to template: </source>
        <translation>Indique presentación que se guarda en plantilla: </translation>
    </message>
    <message>
        <source>Enter layout option [Copy/Delete/New/Template/Rename/SAveas/Set/Move/?]: </source>
        <translation>Indique opción de presentación [Copy/Delete/New/Template/Rename/SAveas/Set/Move/?]: </translation>
    </message>
    <message>
        <source>Layout &quot;%1&quot;: %2.</source>
        <translation>Presentación &quot;%1&quot;: %2.</translation>
    </message>
    <message>
        <source>
Layout &quot;%1&quot; created.</source>
        <translation>
Presentación &quot;%1&quot; creada.</translation>
    </message>
    <message>
        <source> %1 of its entities could not be taken over.</source>
        <translation> No se han podido incorporar %1 de sus entidades.</translation>
    </message>
    <message>
        <source>Enter template file name: </source>
        <translation>Indique nombre de archivo de plantilla: </translation>
    </message>
    <message>
        <source>Enter layout name(s): </source>
        <translation>Indique nombres de presentaciones: </translation>
    </message>
    <message>
        <source>Layout &quot;%1&quot; not found in %2.</source>
        <translation>No se encuentra la presentación &quot;%1&quot; en %2.</translation>
    </message>
    <message>
        <source>Enter file name to save layout to: </source>
        <translation>Indique nombre del archivo en el que se guarda la presentación: </translation>
    </message>
    <message>
        <source>Enter view name to save: </source>
        <translation>Indique nombre de la vista que se guarda: </translation>
    </message>
    <message>
        <source>&quot;%1&quot; cannot be the name of a view.</source>
        <translation>&quot;%1&quot; no puede ser el nombre de una vista.</translation>
    </message>
    <message>
        <source>
Specify opposite corner: </source>
        <translation>
Precise esquina opuesta: </translation>
    </message>
    <message>
        <source>The window has no area.</source>
        <translation>La ventana no tiene área.</translation>
    </message>
    <message>
        <source>Select viewport for view: </source>
        <translation>Designe ventana para la vista: </translation>
    </message>
    <message>
        <source>The view shows model space, and no viewport was chosen for it.</source>
        <translation>La vista muestra el espacio modelo y no se ha elegido ninguna ventana para ella.</translation>
    </message>
    <message>
        <source>Enter view name to restore: </source>
        <translation>Indique nombre de la vista que se restablece: </translation>
    </message>
    <message>
        <source>Enter view name(s) to delete: </source>
        <translation>Indique nombres de vistas que se borran: </translation>
    </message>
    <message>
        <source>
No matching views found.</source>
        <translation>
No se han encontrado vistas coincidentes.</translation>
    </message>
    <message>
        <source>Enter view name(s) to list &lt;*&gt;: </source>
        <translation>Indique nombres de vistas que se listan &lt;*&gt;: </translation>
    </message>
    <message>
        <source>Enter an option [Top/Bottom/Front/BAck/Left/Right] &lt;Top&gt;: </source>
        <translation>Indique una opción [Top/Bottom/Front/BAck/Left/Right] &lt;Top&gt;: </translation>
    </message>
    <message>
        <source>Save current UCS with named views? [Yes/No] &lt;Yes&gt;: </source>
        <translation>¿Guardar el SCP actual con las vistas guardadas? [Yes/No] &lt;Yes&gt;: </translation>
    </message>
    <message>
        <source>
Coordinate systems are not kept with views.</source>
        <translation>
Los sistemas de coordenadas no se guardan con las vistas.</translation>
    </message>
    <message>
        <source>Enter an option [?/Delete/Orthographic/Restore/Save/Ucs/Window]: </source>
        <translation>Indique una opción [?/Delete/Orthographic/Restore/Save/Ucs/Window]: </translation>
    </message>
    <message>
        <source>Enter an option [Current ucs/Ucs/World] &lt;Current&gt;: </source>
        <translation>Indique una opción [Current ucs/Ucs/World] &lt;Current&gt;: </translation>
    </message>
    <message>
        <source>Enter name of UCS or [?]: </source>
        <translation>Indique nombre de SCP o [?]: </translation>
    </message>
    <message>
        <source>Enter angle in XY plane from X axis: </source>
        <translation>Indique ángulo en el plano XY desde el eje X: </translation>
    </message>
    <message>
        <source>Enter angle from XY plane: </source>
        <translation>Indique ángulo desde el plano XY: </translation>
    </message>
    <message>
        <source>Specify a view point or [Rotate] &lt;%1&gt;: </source>
        <translation>Precise un punto de vista o [Rotate] &lt;%1&gt;: </translation>
    </message>
    <message>
        <source>There is no direction from the target to itself.</source>
        <translation>No hay dirección del objetivo a sí mismo.</translation>
    </message>
    <message>
        <source>Enter name for new viewport configuration or [?]: </source>
        <translation>Indique nombre de nueva configuración de ventanas o [?]: </translation>
    </message>
    <message>
        <source>&quot;%1&quot; cannot be the name of a viewport configuration.</source>
        <translation>&quot;%1&quot; no puede ser el nombre de una configuración de ventanas.</translation>
    </message>
    <message>
        <source>Enter name of viewport configuration to restore or [?]: </source>
        <translation>Indique nombre de la configuración de ventanas que se restablece o [?]: </translation>
    </message>
    <message>
        <source>Cannot find viewport configuration &quot;%1&quot;.</source>
        <translation>No se encuentra la configuración de ventanas &quot;%1&quot;.</translation>
    </message>
    <message>
        <source>Enter name(s) of viewport configurations to delete &lt;none&gt;: </source>
        <translation>Indique nombres de configuraciones de ventanas que se borran &lt;ninguna&gt;: </translation>
    </message>
    <message>
        <source>
No matching viewport configurations found.</source>
        <translation>
No se han encontrado configuraciones de ventanas coincidentes.</translation>
    </message>
    <message>
        <source>Enter name(s) of viewport configuration(s) to list &lt;*&gt;: </source>
        <translation>Indique nombres de configuraciones de ventanas que se listan &lt;*&gt;: </translation>
    </message>
    <message>
        <source>The screen is divided into too many viewports already.</source>
        <translation>La pantalla ya está dividida en demasiadas ventanas.</translation>
    </message>
    <message>
        <source>The window shows one view: the viewports to join cannot be picked.</source>
        <translation>La pantalla muestra una sola vista: no se pueden designar las ventanas que se unen.</translation>
    </message>
    <message>
        <source>Enter an option [Save/Restore/Delete/Join/SIngle/?/2/3/4] &lt;3&gt;: </source>
        <translation>Indique una opción [Save/Restore/Delete/Join/SIngle/?/2/3/4] &lt;3&gt;: </translation>
    </message>
    <message>
        <source>** Command not allowed in Model Tab **</source>
        <translation>** Comando no permitido en la ficha Modelo **</translation>
    </message>
    <message>
        <source>There are no active model space viewports.</source>
        <translation>No hay ventanas del espacio modelo activas.</translation>
    </message>
    <message>
        <source>The viewport has no area.</source>
        <translation>La ventana no tiene área.</translation>
    </message>
    <message>
        <source>Enter viewport arrangement [Horizontal/Vertical] &lt;Vertical&gt;: </source>
        <translation>Indique disposición de ventanas [Horizontal/Vertical] &lt;Vertical&gt;: </translation>
    </message>
    <message>
        <source>Enter viewport arrangement [Horizontal/Vertical/Above/Below/Left/Right] &lt;Right&gt;: </source>
        <translation>Indique disposición de ventanas [Horizontal/Vertical/Above/Below/Left/Right] &lt;Right&gt;: </translation>
    </message>
    <message>
        <source>
No viewport was chosen.</source>
        <translation>
No se ha elegido ninguna ventana.</translation>
    </message>
    <message>
        <source>
Current osnap modes: </source>
        <translation>
Modos de referencia a objetos actuales: </translation>
    </message>
    <message>
        <source>Enter list of object snap modes: </source>
        <translation>Indique lista de modos de referencia a objetos: </translation>
    </message>
    <message>
        <source>Invalid object snap mode.</source>
        <translation>Modo de referencia a objetos no válido.</translation>
    </message>
    <message>
        <source>Object snap target height (1-50 pixels) &lt;%1&gt;: </source>
        <translation>Altura de la mira de referencia a objetos (1-50 píxeles) &lt;%1&gt;: </translation>
    </message>
    <message>
        <source>Value must be between 1 and 50.</source>
        <translation>El valor debe estar entre 1 y 50.</translation>
    </message>
    <message>
        <source>Specify new origin point</source>
        <translation>Precise nuevo punto de origen</translation>
    </message>
    <message>
        <source>Specify new origin point or [Zdepth] &lt;%1&gt;: </source>
        <translation>Precise nuevo punto de origen o [Zdepth] &lt;%1&gt;: </translation>
    </message>
    <message>
        <source>Specify Z depth &lt;0&gt;: </source>
        <translation>Precise profundidad Z &lt;0&gt;: </translation>
    </message>
    <message>
        <source>Specify point on positive portion of X-axis</source>
        <translation>Precise punto en la parte positiva del eje X</translation>
    </message>
    <message>
        <source>Specify point on positive-Y portion of the UCS XY plane</source>
        <translation>Precise punto en la parte Y positiva del plano XY del SCP</translation>
    </message>
    <message>
        <source>The three points lie on a line.</source>
        <translation>Los tres puntos están en una recta.</translation>
    </message>
    <message>
        <source>Specify point on positive portion of Z-axis</source>
        <translation>Precise punto en la parte positiva del eje Z</translation>
    </message>
    <message>
        <source>The Z axis has no direction.</source>
        <translation>El eje Z no tiene dirección.</translation>
    </message>
    <message>
        <source>Specify rotation angle about %1 axis &lt;%2&gt;: </source>
        <translation>Precise ángulo de rotación alrededor del eje %1 &lt;%2&gt;: </translation>
    </message>
    <message>
        <source>Select object to align UCS: </source>
        <translation>Designe objeto con el que se alinea el SCP: </translation>
    </message>
    <message>
        <source>No UCS can be aligned with this object.</source>
        <translation>Ningún SCP se puede alinear con este objeto.</translation>
    </message>
    <message>
        <source>Enter name to save current UCS or [?]: </source>
        <translation>Indique nombre con el que se guarda el SCP actual o [?]: </translation>
    </message>
    <message>
        <source>&quot;%1&quot; cannot be the name of a UCS.</source>
        <translation>&quot;%1&quot; no puede ser el nombre de un SCP.</translation>
    </message>
    <message>
        <source>UCS &quot;%1&quot; already exists. Replace it? [Yes/No] &lt;No&gt;: </source>
        <translation>El SCP &quot;%1&quot; ya existe. ¿Reemplazarlo? [Yes/No] &lt;No&gt;: </translation>
    </message>
    <message>
        <source>Enter name of UCS to restore or [?]: </source>
        <translation>Indique nombre del SCP que se restablece o [?]: </translation>
    </message>
    <message>
        <source>Enter UCS name(s) to delete &lt;none&gt;: </source>
        <translation>Indique nombres de SCP que se borran &lt;ninguno&gt;: </translation>
    </message>
    <message>
        <source>
No matching UCS names found.</source>
        <translation>
No se han encontrado nombres de SCP coincidentes.</translation>
    </message>
    <message>
        <source>
Current UCS:  %1</source>
        <translation>
SCP actual:  %1</translation>
    </message>
    <message>
        <source>Enter UCS name(s) to list &lt;*&gt;: </source>
        <translation>Indique nombres de SCP que se listan &lt;*&gt;: </translation>
    </message>
    <message>
        <source>&quot;%1&quot;  Origin = &lt;%2&gt;, X = &lt;%3&gt;, Y = &lt;%4&gt;</source>
        <translation>&quot;%1&quot;  Origen = &lt;%2&gt;, X = &lt;%3&gt;, Y = &lt;%4&gt;</translation>
    </message>
    <message>
        <source>Faces of solids cannot be chosen here.</source>
        <translation>Aquí no se pueden elegir caras de sólidos.</translation>
    </message>
    <message>
        <source>
No previous coordinate system saved.</source>
        <translation>
No hay un sistema de coordenadas anterior guardado.</translation>
    </message>
    <message>
        <source>Specify point on X-axis or &lt;accept&gt;: </source>
        <translation>Precise punto en el eje X o &lt;aceptar&gt;: </translation>
    </message>
    <message>
        <source>Specify point on the XY plane or &lt;accept&gt;: </source>
        <translation>Precise punto en el plano XY o &lt;aceptar&gt;: </translation>
    </message>
    <message>
        <source>Specify origin of new UCS or [ZAxis/3point/OBject/Face/View/X/Y/Z] &lt;%1&gt;: </source>
        <translation>Precise origen del nuevo SCP o [ZAxis/3point/OBject/Face/View/X/Y/Z] &lt;%1&gt;: </translation>
    </message>
    <message>
        <source>
Current ucs name:  %1</source>
        <translation>
Nombre del SCP actual:  %1</translation>
    </message>
    <message>
        <source>Specify origin of UCS or [Face/NAmed/OBject/Previous/View/World/X/Y/Z/ZAxis] &lt;World&gt;: </source>
        <translation>Precise origen del SCP o [Face/NAmed/OBject/Previous/View/World/X/Y/Z/ZAxis] &lt;World&gt;: </translation>
    </message>
    <message>
        <source>Enter an option [Restore/Save/Delete/?]: </source>
        <translation>Indique una opción [Restore/Save/Delete/?]: </translation>
    </message>
    <message>
        <source>Requires a scale factor, two corners or an option keyword.</source>
        <translation>Se requiere un factor de escala, dos esquinas o una opción.</translation>
    </message>
    <message>
        <source>A scale of the sheet is for viewports: MSPACE goes into one.</source>
        <translation>La escala de la presentación es para ventanas: MSPACE entra en una.</translation>
    </message>
    <message>
        <source>
Enter magnification or height &lt;%1&gt;: </source>
        <translation>
Indique ampliación o altura &lt;%1&gt;: </translation>
    </message>
    <message>
        <source>Requires a height, or a magnification (nX).</source>
        <translation>Se requiere una altura o una ampliación (nX).</translation>
    </message>
    <message>
        <source>Specify center point: </source>
        <translation>Precise punto central: </translation>
    </message>
    <message>
        <source>Specify lower left corner point: </source>
        <translation>Precise esquina inferior izquierda: </translation>
    </message>
    <message>
        <source>Enter a scale factor (nX or nXP): </source>
        <translation>Indique factor de escala (nX o nXP): </translation>
    </message>
    <message>
        <source>There is no dynamic zoom: use the window&apos;s wheel.</source>
        <translation>No hay zoom dinámico: use la rueda del ratón.</translation>
    </message>
    <message>
        <source>
Specify corner of window, enter a scale factor (nX or nXP), or [All/Center/Dynamic/Extents/Previous/Scale/Window/Object] &lt;real time&gt;: </source>
        <translation>
Precise esquina de ventana, indique factor de escala (nX o nXP), o [All/Center/Dynamic/Extents/Previous/Scale/Window/Object] &lt;tiempo real&gt;: </translation>
    </message>
    <message>
        <source>
No previous view saved.</source>
        <translation>
No hay una vista anterior guardada.</translation>
    </message>
    <message>
        <source>Specify base point or displacement: </source>
        <translation>Precise punto base o desplazamiento: </translation>
    </message>
    <message>
        <source>Specify first corner or [Fit] &lt;Fit&gt;: </source>
        <translation>Precise primera esquina o [Fit] &lt;Fit&gt;: </translation>
    </message>
    <message>
        <source>Enter viewport configuration name or [?] &lt;*Active&gt;: </source>
        <translation>Indique nombre de configuración de ventanas o [?] &lt;*Active&gt;: </translation>
    </message>
    <message>
        <source>A drawing of this version has no viewports with other outlines than rectangles.</source>
        <translation>Un dibujo de esta versión no tiene ventanas con otro contorno que el rectángulo.</translation>
    </message>
    <message>
        <source>A viewport is bounded by a closed polyline, circle, ellipse, spline or region.</source>
        <translation>Una ventana se delimita con una polilínea cerrada, un círculo, una elipse, una spline o una región.</translation>
    </message>
    <message>
        <source>Select object to clip viewport: </source>
        <translation>Designe objeto que delimita la ventana: </translation>
    </message>
    <message>
        <source>A viewport has three corners at least.</source>
        <translation>Una ventana tiene al menos tres esquinas.</translation>
    </message>
    <message>
        <source>Viewport View Locking [ON/OFF]: </source>
        <translation>Bloqueo de vista de la ventana [ON/OFF]: </translation>
    </message>
    <message>
        <source>Shade plot? [As displayed/Wireframe/Hidden/Rendered] &lt;As displayed&gt;: </source>
        <translation>¿Trazado sombreado? [As displayed/Wireframe/Hidden/Rendered] &lt;As displayed&gt;: </translation>
    </message>
    <message>
        <source>Specify corner of viewport or [ON/OFF/Fit/Shadeplot/Lock/Object/Polygonal/Restore/2/3/4] &lt;Fit&gt;: </source>
        <translation>Precise esquina de la ventana o [ON/OFF/Fit/Shadeplot/Lock/Object/Polygonal/Restore/2/3/4] &lt;Fit&gt;: </translation>
    </message>
    <message>
        <source>
Already in model space.</source>
        <translation>
Ya se está en el espacio modelo.</translation>
    </message>
    <message>
        <source>
Already in paper space.</source>
        <translation>
Ya se está en el espacio papel.</translation>
    </message>
    <message>
        <source>Enter an option [All/Select/Current/eXcept current] &lt;Current&gt;: </source>
        <translation>Indique una opción [All/Select/Current/eXcept current] &lt;Current&gt;: </translation>
    </message>
    <message>
        <source>Enter name(s) of new layers frozen in all viewports: </source>
        <translation>Indique nombres de capas nuevas inutilizadas en todas las ventanas: </translation>
    </message>
    <message>
        <source>Enter layer name(s) to change viewport visibility: </source>
        <translation>Indique nombres de capas cuya visibilidad en ventanas se cambia: </translation>
    </message>
    <message>
        <source>Enter a viewport visibility option [Frozen/Thawed] &lt;Thawed&gt;: </source>
        <translation>Indique una opción de visibilidad en ventanas [Frozen/Thawed] &lt;Thawed&gt;: </translation>
    </message>
    <message>
        <source>Select a viewport: </source>
        <translation>Designe una ventana: </translation>
    </message>
    <message>
        <source>No viewport was chosen.</source>
        <translation>No se ha elegido ninguna ventana.</translation>
    </message>
    <message>
        <source>
Layers currently frozen in viewport %1:</source>
        <translation>
Capas inutilizadas en la ventana %1:</translation>
    </message>
    <message>
        <source>Enter layer name(s) to freeze or &lt;select objects&gt;: </source>
        <translation>Indique nombres de capas que se inutilizan o &lt;designar objetos&gt;: </translation>
    </message>
    <message>
        <source>Enter layer name(s) to thaw: </source>
        <translation>Indique nombres de capas que se reutilizan: </translation>
    </message>
    <message>
        <source>Enter layer name(s) to reset: </source>
        <translation>Indique nombres de capas que se restablecen: </translation>
    </message>
    <message>
        <source>Layers have the same properties in all viewports here: nothing was changed.</source>
        <translation>Aquí las capas tienen las mismas propiedades en todas las ventanas: no se ha cambiado nada.</translation>
    </message>
    <message>
        <source>Enter an option [?/Color/Ltype/LWeight/TRansparency/Freeze/Thaw/Reset/Newfrz/Vpvisdflt]: </source>
        <translation>Indique una opción [?/Color/Ltype/LWeight/TRansparency/Freeze/Thaw/Reset/Newfrz/Vpvisdflt]: </translation>
    </message>
    <message>
        <source>  Unloaded</source>
        <translation>  Descargada</translation>
    </message>
    <message>
        <source>That would be %1 entities; at most %2 are made at once.</source>
        <translation>Serían %1 objetos; se crean %2 como máximo de una vez.</translation>
    </message>
    <message>
        <source>A cloud needs a line along which it goes.</source>
        <translation>Una nube necesita una línea que recorrer.</translation>
    </message>
    <message>
        <source>The arcs are too short for this line.</source>
        <translation>Los arcos son demasiado cortos para esta línea.</translation>
    </message>
    <message>
        <source>
Revision cloud finished.</source>
        <translation>
Nube de revisión terminada.</translation>
    </message>
    <message>
        <source>
******** WARNING ********
</source>
        <translation>
******** ADVERTENCIA ********
</translation>
    </message>
</context>
<context>
    <name>Comparing</name>
    <message>
        <source>matched by content, not by handles</source>
        <translation>emparejados por contenido, no por identificadores</translation>
    </message>
    <message>
        <source>= %1 added, %2 removed, %3 changed, %4 the same</source>
        <translation>= %1 añadidos, %2 eliminados, %3 cambiados, %4 iguales</translation>
    </message>
    <message>
        <source>= by type:</source>
        <translation>= por tipo:</translation>
    </message>
    <message>
        <source>= by layer:</source>
        <translation>= por capa:</translation>
    </message>
    <message>
        <source>%1: the extension must be %2</source>
        <translation>%1: la extensión debe ser %2</translation>
    </message>
</context>
<context>
    <name>DrawingStatus</name>
    <message>
        <source>DXF %1, %2</source>
        <translation>DXF %1, %2</translation>
    </message>
    <message>
        <source>model space</source>
        <translation>espacio modelo</translation>
    </message>
    <message>
        <source>paper space</source>
        <translation>espacio papel</translation>
    </message>
    <message>
        <source>All entities drawn</source>
        <translation>Todas las entidades dibujadas</translation>
    </message>
    <message>
        <source>DWG %1, %2</source>
        <translation>DWG %1, %2</translation>
    </message>
</context>
<context>
    <name>DrawingTexts</name>
    <message>
        <source>&quot;%1&quot; cannot be the name of a block</source>
        <translation>&quot;%1&quot; no puede ser el nombre de un bloque</translation>
    </message>
    <message>
        <source>there is no such block</source>
        <translation>no existe tal bloque</translation>
    </message>
    <message>
        <source>%1 cannot be exploded.</source>
        <translation>%1 no se puede descomponer.</translation>
    </message>
    <message>
        <source>Block &quot;%1&quot; is missing.</source>
        <translation>Falta el bloque &quot;%1&quot;.</translation>
    </message>
    <message>
        <source>An external reference cannot be exploded.</source>
        <translation>Una referencia externa no se puede descomponer.</translation>
    </message>
    <message>
        <source>Block &quot;%1&quot; may not be exploded.</source>
        <translation>El bloque &quot;%1&quot; no admite ser descompuesto.</translation>
    </message>
    <message>
        <source>The scales of block &quot;%1&quot; differ.</source>
        <translation>Las escalas del bloque &quot;%1&quot; son distintas.</translation>
    </message>
    <message>
        <source>Too many entities would come of it.</source>
        <translation>Resultarían demasiadas entidades.</translation>
    </message>
    <message>
        <source>A drawing of this version has one sheet.</source>
        <translation>Un dibujo de esta versión tiene una sola presentación.</translation>
    </message>
    <message>
        <source>A layout cannot be called &quot;%1&quot;.</source>
        <translation>Una presentación no puede llamarse &quot;%1&quot;.</translation>
    </message>
    <message>
        <source>Layout &quot;%1&quot; already exists.</source>
        <translation>La presentación &quot;%1&quot; ya existe.</translation>
    </message>
    <message>
        <source>Model space cannot be copied.</source>
        <translation>El espacio modelo no se puede copiar.</translation>
    </message>
    <message>
        <source>Model space cannot be moved.</source>
        <translation>El espacio modelo no se puede desplazar.</translation>
    </message>
    <message>
        <source>Model space cannot be renamed.</source>
        <translation>Al espacio modelo no se le puede cambiar el nombre.</translation>
    </message>
    <message>
        <source>Layout &quot;%1&quot; has no object in this drawing that a name could be given to.</source>
        <translation>La presentación &quot;%1&quot; no tiene en este dibujo ningún objeto al que dar un nombre.</translation>
    </message>
    <message>
        <source>Model space cannot be deleted.</source>
        <translation>El espacio modelo no se puede borrar.</translation>
    </message>
    <message>
        <source>The last layout cannot be deleted.</source>
        <translation>La última presentación no se puede borrar.</translation>
    </message>
    <message>
        <source>Cannot find layer &quot;%1&quot;.</source>
        <translation>No se encuentra la capa &quot;%1&quot;.</translation>
    </message>
    <message>
        <source>Layer &quot;%1&quot; is needed by every drawing.</source>
        <translation>Todo dibujo necesita la capa &quot;%1&quot;.</translation>
    </message>
    <message>
        <source>Layer &quot;%1&quot; is the current layer.</source>
        <translation>La capa &quot;%1&quot; es la capa actual.</translation>
    </message>
    <message>
        <source>Layer &quot;%1&quot; belongs to an external reference.</source>
        <translation>La capa &quot;%1&quot; pertenece a una referencia externa.</translation>
    </message>
    <message>
        <source>A drawing of this version keeps no page setup.</source>
        <translation>Un dibujo de esta versión no guarda configuración de página.</translation>
    </message>
    <message>
        <source>Layer &quot;%1&quot; cannot be renamed.</source>
        <translation>A la capa &quot;%1&quot; no se le puede cambiar el nombre.</translation>
    </message>
    <message>
        <source>Layer &quot;%1&quot; already exists.</source>
        <translation>La capa &quot;%1&quot; ya existe.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; cannot be the name of a layer.</source>
        <translation>&quot;%1&quot; no puede ser el nombre de una capa.</translation>
    </message>
    <message>
        <source>Block</source>
        <translation>Bloque</translation>
    </message>
    <message>
        <source>block</source>
        <translation>bloque</translation>
    </message>
    <message>
        <source>Dimension style</source>
        <translation>Estilo de cota</translation>
    </message>
    <message>
        <source>dimension style</source>
        <translation>estilo de cota</translation>
    </message>
    <message>
        <source>Linetype</source>
        <translation>Tipo de línea</translation>
    </message>
    <message>
        <source>linetype</source>
        <translation>tipo de línea</translation>
    </message>
    <message>
        <source>Text style</source>
        <translation>Estilo de texto</translation>
    </message>
    <message>
        <source>text style</source>
        <translation>estilo de texto</translation>
    </message>
    <message>
        <source>UCS</source>
        <translation>SCP</translation>
    </message>
    <message>
        <source>ucs</source>
        <translation>scp</translation>
    </message>
    <message>
        <source>View</source>
        <translation>Vista</translation>
    </message>
    <message>
        <source>view</source>
        <translation>vista</translation>
    </message>
    <message>
        <source>Viewport configuration</source>
        <translation>Configuración de ventanas</translation>
    </message>
    <message>
        <source>viewport configuration</source>
        <translation>configuración de ventanas</translation>
    </message>
    <message>
        <source>Cannot find %1 &quot;%2&quot;.</source>
        <translation>No se encuentra %1 &quot;%2&quot;.</translation>
    </message>
    <message>
        <source>%1 &quot;%2&quot; cannot be renamed.</source>
        <translation>%1 &quot;%2&quot; no puede cambiar de nombre.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; cannot be a name.</source>
        <translation>&quot;%1&quot; no puede ser un nombre.</translation>
    </message>
    <message>
        <source>%1 &quot;%2&quot; already exists.</source>
        <translation>%1 &quot;%2&quot; ya existe.</translation>
    </message>
    <message>
        <source>Registered applications cannot be renamed.</source>
        <translation>Las aplicaciones registradas no pueden cambiar de nombre.</translation>
    </message>
    <message>
        <source>Cannot find &quot;%1&quot;.</source>
        <translation>No se encuentra &quot;%1&quot;.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; already exists.</source>
        <translation>&quot;%1&quot; ya existe.</translation>
    </message>
    <message>
        <source>a drawing of this version has one sheet only</source>
        <translation>un dibujo de esta versión tiene una sola presentación</translation>
    </message>
    <message>
        <source>&quot;%1&quot; cannot be the name of a sheet</source>
        <translation>&quot;%1&quot; no puede ser el nombre de una presentación</translation>
    </message>
    <message>
        <source>there is no sheet &quot;%1&quot;</source>
        <translation>no hay ninguna presentación &quot;%1&quot;</translation>
    </message>
    <message>
        <source>there is a sheet &quot;%1&quot; already</source>
        <translation>ya hay una presentación &quot;%1&quot;</translation>
    </message>
    <message>
        <source>blocks</source>
        <translation>bloques</translation>
    </message>
    <message>
        <source>detail view styles</source>
        <translation>estilos de vista en detalle</translation>
    </message>
    <message>
        <source>detail view style</source>
        <translation>estilo de vista en detalle</translation>
    </message>
    <message>
        <source>dimension styles</source>
        <translation>estilos de cota</translation>
    </message>
    <message>
        <source>groups</source>
        <translation>grupos</translation>
    </message>
    <message>
        <source>group</source>
        <translation>grupo</translation>
    </message>
    <message>
        <source>layers</source>
        <translation>capas</translation>
    </message>
    <message>
        <source>layer</source>
        <translation>capa</translation>
    </message>
    <message>
        <source>linetypes</source>
        <translation>tipos de línea</translation>
    </message>
    <message>
        <source>materials</source>
        <translation>materiales</translation>
    </message>
    <message>
        <source>material</source>
        <translation>material</translation>
    </message>
    <message>
        <source>multileader styles</source>
        <translation>estilos de directriz múltiple</translation>
    </message>
    <message>
        <source>multileader style</source>
        <translation>estilo de directriz múltiple</translation>
    </message>
    <message>
        <source>plot styles</source>
        <translation>estilos de trazado</translation>
    </message>
    <message>
        <source>plot style</source>
        <translation>estilo de trazado</translation>
    </message>
    <message>
        <source>shape files</source>
        <translation>archivos de formas</translation>
    </message>
    <message>
        <source>shape file</source>
        <translation>archivo de formas</translation>
    </message>
    <message>
        <source>text styles</source>
        <translation>estilos de texto</translation>
    </message>
    <message>
        <source>multiline styles</source>
        <translation>estilos de línea múltiple</translation>
    </message>
    <message>
        <source>multiline style</source>
        <translation>estilo de línea múltiple</translation>
    </message>
    <message>
        <source>section view styles</source>
        <translation>estilos de vista en sección</translation>
    </message>
    <message>
        <source>section view style</source>
        <translation>estilo de vista en sección</translation>
    </message>
    <message>
        <source>table styles</source>
        <translation>estilos de tabla</translation>
    </message>
    <message>
        <source>table style</source>
        <translation>estilo de tabla</translation>
    </message>
    <message>
        <source>visual styles</source>
        <translation>estilos visuales</translation>
    </message>
    <message>
        <source>visual style</source>
        <translation>estilo visual</translation>
    </message>
    <message>
        <source>registered applications</source>
        <translation>aplicaciones registradas</translation>
    </message>
    <message>
        <source>registered application</source>
        <translation>aplicación registrada</translation>
    </message>
    <message>
        <source>no record begins here</source>
        <translation>aquí no empieza ningún registro</translation>
    </message>
    <message>
        <source>the file goes on behind it</source>
        <translation>el archivo continúa detrás</translation>
    </message>
    <message>
        <source>the file ends within it</source>
        <translation>el archivo termina dentro</translation>
    </message>
    <message>
        <source>group code expected, found %1</source>
        <translation>se esperaba un código de grupo y se encontró %1</translation>
    </message>
    <message>
        <source>type of a record expected, found %1</source>
        <translation>se esperaba el tipo de un registro y se encontró %1</translation>
    </message>
    <message>
        <source>group %1 cannot be %2</source>
        <translation>el grupo %1 no puede ser %2</translation>
    </message>
    <message>
        <source>line %1: %2</source>
        <translation>línea %1: %2</translation>
    </message>
    <message>
        <source>%1 has a value for group %2 that the binary form has no room for: &quot;%3&quot;</source>
        <translation>%1 tiene un valor del grupo %2 que no cabe en la forma binaria: &quot;%3&quot;</translation>
    </message>
    <message>
        <source>%1 with the handle %2</source>
        <translation>%1 con el identificador %2</translation>
    </message>
    <message>
        <source>it names no version</source>
        <translation>no indica ninguna versión</translation>
    </message>
    <message>
        <source>its handle was another record&apos;s, it has a new one</source>
        <translation>su identificador era de otro registro, tiene uno nuevo</translation>
    </message>
    <message>
        <source>its handle was none, it has a new one</source>
        <translation>su identificador no era tal, tiene uno nuevo</translation>
    </message>
    <message>
        <source>it has no name</source>
        <translation>no tiene nombre</translation>
    </message>
    <message>
        <source>it has no value</source>
        <translation>no tiene valor</translation>
    </message>
    <message>
        <source>it has more than one value, of which the first was taken</source>
        <translation>tiene más de un valor, del que se tomó el primero</translation>
    </message>
    <message>
        <source>it leads to all other objects, and is the first of them now</source>
        <translation>conduce a todos los demás objetos, y ahora es el primero de ellos</translation>
    </message>
    <message>
        <source>the one that leads to all other objects was lost</source>
        <translation>se perdió el que conduce a todos los demás objetos</translation>
    </message>
    <message>
        <source>its text was no UTF-8 and was taken for %1</source>
        <translation>su texto no era UTF-8 y se tomó por %1</translation>
    </message>
    <message>
        <source>the one of block %1 was lost</source>
        <translation>se perdió el del bloque %1</translation>
    </message>
    <message>
        <source>the file is larger than 4 GB</source>
        <translation>el archivo ocupa más de 4 GB</translation>
    </message>
    <message>
        <source>nothing in this file is a part of a drawing</source>
        <translation>nada de este archivo forma parte de un dibujo</translation>
    </message>
    <message>
        <source>%1: this is a folder</source>
        <translation>%1: esto es una carpeta</translation>
    </message>
    <message>
        <source> (--recover opens what is sound of it)</source>
        <translation> (--recover abre lo que está sano)</translation>
    </message>
    <message>
        <source>%1 times </source>
        <translation>%1 veces </translation>
    </message>
    <message>
        <source>and %1 more</source>
        <translation>y %1 más</translation>
    </message>
    <message>
        <source>the file is sound, nothing was dropped</source>
        <translation>el archivo está sano, no se ha descartado nada</translation>
    </message>
    <message>
        <source>recovered: %1 dropped%2, %3 mended, %4 added</source>
        <translation>recuperado: %1 descartados%2, %3 reparados, %4 añadidos</translation>
    </message>
    <message>
        <source>what was written does not read back the same</source>
        <translation>lo escrito no se vuelve a leer igual</translation>
    </message>
    <message>
        <source>what would be written could not be opened again (%1)</source>
        <translation>lo que se escribiría no se podría volver a abrir (%1)</translation>
    </message>
    <message>
        <source>what would be written could not be opened the same: see %1 of handle %2</source>
        <translation>lo que se escribiría no se abriría igual: véase %1 del identificador %2</translation>
    </message>
    <message>
        <source>%1: the file cannot be written: %2</source>
        <translation>%1: no se puede escribir el archivo: %2</translation>
    </message>
    <message>
        <source>%1: %2; the old file was kept</source>
        <translation>%1: %2; se ha conservado el archivo antiguo</translation>
    </message>
    <message>
        <source>%1: this program cannot write DWG files; give the file a name ending in .dxf</source>
        <translation>%1: este programa no puede escribir archivos DWG; dé al archivo un nombre acabado en .dxf</translation>
    </message>
    <message>
        <source>header variable</source>
        <translation>variable de cabecera</translation>
    </message>
    <message>
        <source>it stands outside of the sections</source>
        <translation>está fuera de las secciones</translation>
    </message>
    <message>
        <source>its name is none, and what it holds tells another</source>
        <translation>su nombre no es tal, y su contenido revela otro</translation>
    </message>
    <message>
        <source>it was there before, and goes on here</source>
        <translation>ya estaba antes, y continúa aquí</translation>
    </message>
    <message>
        <source>it stands outside of its section, and was put into %1</source>
        <translation>está fuera de su sección, y se ha puesto en %1</translation>
    </message>
    <message>
        <source>no table is open</source>
        <translation>no hay ninguna tabla abierta</translation>
    </message>
    <message>
        <source>it stands outside of the tables</source>
        <translation>está fuera de las tablas</translation>
    </message>
    <message>
        <source>table entry</source>
        <translation>entrada de tabla</translation>
    </message>
    <message>
        <source>it stands outside of its table</source>
        <translation>está fuera de su tabla</translation>
    </message>
    <message>
        <source>no block is open</source>
        <translation>no hay ningún bloque abierto</translation>
    </message>
    <message>
        <source>it had no name, and is %1 now</source>
        <translation>no tenía nombre, y ahora es %1</translation>
    </message>
    <message>
        <source>the one for the entities here was lost; it is %1 now</source>
        <translation>se perdió el de las entidades de aquí; ahora es %1</translation>
    </message>
    <message>
        <source>nothing is open that it could end</source>
        <translation>no hay nada abierto que pudiera terminar</translation>
    </message>
    <message>
        <source>what it is a part of is not there</source>
        <translation>aquello de lo que forma parte no está</translation>
    </message>
    <message>
        <source>it was missing</source>
        <translation>faltaba</translation>
    </message>
    <message>
        <source>no section is open</source>
        <translation>no hay ninguna sección abierta</translation>
    </message>
    <message>
        <source>the drawing looks like one of %1</source>
        <translation>el dibujo parece de %1</translation>
    </message>
    <message>
        <source>%1: this is not a file</source>
        <translation>%1: esto no es un archivo</translation>
    </message>
    <message>
        <source>%1: drawings of this version have no room for such data</source>
        <translation>%1: los dibujos de esta versión no tienen sitio para esos datos</translation>
    </message>
    <message>
        <source>%1: %2 stands for something else in this drawing</source>
        <translation>%1: %2 significa otra cosa en este dibujo</translation>
    </message>
    <message>
        <source>%1: the file is larger than 4 GB</source>
        <translation>%1: el archivo ocupa más de 4 GB</translation>
    </message>
    <message>
        <source>the drawing has no paper space</source>
        <translation>el dibujo no tiene espacio papel</translation>
    </message>
    <message>
        <source>POLYLINE: its vertices are missing</source>
        <translation>POLYLINE: faltan sus vértices</translation>
    </message>
    <message>
        <source>%1: an entity of this type has no parts</source>
        <translation>%1: una entidad de este tipo no tiene partes</translation>
    </message>
    <message>
        <source>%1: %2 expected, found %3</source>
        <translation>%1: se esperaba %2 y se encontró %3</translation>
    </message>
    <message>
        <source>the entity is erased</source>
        <translation>la entidad está borrada</translation>
    </message>
    <message>
        <source>a number</source>
        <translation>un número</translation>
    </message>
    <message>
        <source>a handle</source>
        <translation>un identificador</translation>
    </message>
    <message>
        <source>a text</source>
        <translation>un texto</translation>
    </message>
    <message>
        <source>group 0 (the type) is missing</source>
        <translation>falta el grupo 0 (el tipo)</translation>
    </message>
    <message>
        <source>this is no entity</source>
        <translation>esto no es una entidad</translation>
    </message>
    <message>
        <source>this type is not known, and its subclass markers (group 100) are missing</source>
        <translation>este tipo no se conoce, y faltan sus marcas de subclase (grupo 100)</translation>
    </message>
    <message>
        <source>a drawing of this version has no such entity</source>
        <translation>un dibujo de esta versión no tiene tal entidad</translation>
    </message>
    <message>
        <source>group %1 is missing</source>
        <translation>falta el grupo %1</translation>
    </message>
    <message>
        <source>group %1 is not a point</source>
        <translation>el grupo %1 no es un punto</translation>
    </message>
    <message>
        <source>group %1 is not %2</source>
        <translation>el grupo %1 no es %2</translation>
    </message>
    <message>
        <source>linetype %1 is not in the drawing</source>
        <translation>el tipo de línea %1 no está en el dibujo</translation>
    </message>
    <message>
        <source>text style %1 is not in the drawing</source>
        <translation>el estilo de texto %1 no está en el dibujo</translation>
    </message>
    <message>
        <source>block %1 is not in the drawing</source>
        <translation>el bloque %1 no está en el dibujo</translation>
    </message>
    <message>
        <source>group code expected, found </source>
        <translation>se esperaba un código de grupo y se encontró </translation>
    </message>
    <message>
        <source>this is not a DXF file: </source>
        <translation>esto no es un archivo DXF: </translation>
    </message>
    <message>
        <source>this is not a DXF file: it has no sections</source>
        <translation>esto no es un archivo DXF: no tiene secciones</translation>
    </message>
    <message>
        <source>the file is cut off: it ends before EOF</source>
        <translation>el archivo está cortado: termina antes de EOF</translation>
    </message>
    <message>
        <source>the section has no name</source>
        <translation>la sección no tiene nombre</translation>
    </message>
    <message>
        <source>a record without a type</source>
        <translation>un registro sin tipo</translation>
    </message>
    <message>
        <source>%1 inside a section: ENDSEC is missing</source>
        <translation>%1 dentro de una sección: falta ENDSEC</translation>
    </message>
    <message>
        <source>%1 stands in the header section</source>
        <translation>%1 está en la sección de cabecera</translation>
    </message>
    <message>
        <source>this is not a DXF file: section expected, found </source>
        <translation>esto no es un archivo DXF: se esperaba una sección y se encontró </translation>
    </message>
    <message>
        <source>%1 stands outside of the sections</source>
        <translation>%1 está fuera de las secciones</translation>
    </message>
    <message>
        <source>TABLE inside a table: ENDTAB is missing</source>
        <translation>TABLE dentro de una tabla: falta ENDTAB</translation>
    </message>
    <message>
        <source>%1 stands outside of the tables: TABLE is missing</source>
        <translation>%1 está fuera de las tablas: falta TABLE</translation>
    </message>
    <message>
        <source>BLOCK inside a block: ENDBLK is missing</source>
        <translation>BLOCK dentro de un bloque: falta ENDBLK</translation>
    </message>
    <message>
        <source>%1 stands outside of the blocks: BLOCK is missing</source>
        <translation>%1 está fuera de los bloques: falta BLOCK</translation>
    </message>
    <message>
        <source>the section ends inside a table: ENDTAB is missing</source>
        <translation>la sección termina dentro de una tabla: falta ENDTAB</translation>
    </message>
    <message>
        <source>the section ends inside a block: ENDBLK is missing</source>
        <translation>la sección termina dentro de un bloque: falta ENDBLK</translation>
    </message>
    <message>
        <source>tag %1 of the binary file: %2</source>
        <translation>etiqueta %1 del archivo binario: %2</translation>
    </message>
    <message>
        <source>the file is larger than 4 GB as text</source>
        <translation>el archivo ocupa más de 4 GB como texto</translation>
    </message>
    <message>
        <source>the file is empty</source>
        <translation>el archivo está vacío</translation>
    </message>
    <message>
        <source>this is a UTF-16 text file, not a DXF file</source>
        <translation>esto es un archivo de texto UTF-16, no un archivo DXF</translation>
    </message>
    <message>
        <source>this is a packed file; unpack it first</source>
        <translation>esto es un archivo comprimido; descomprímalo antes</translation>
    </message>
    <message>
        <source>this is a binary DXF file whose first bytes are damaged, as by a transfer as text</source>
        <translation>esto es un archivo DXF binario cuyos primeros bytes están dañados, como al transferirlo como texto</translation>
    </message>
    <message>
        <source>the pattern does not begin with &quot;A&quot;</source>
        <translation>el patrón no empieza por &quot;A&quot;</translation>
    </message>
    <message>
        <source>the pattern is empty</source>
        <translation>el patrón está vacío</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no length</source>
        <translation>&quot;%1&quot; no es una longitud</translation>
    </message>
    <message>
        <source>the pattern is too long</source>
        <translation>el patrón es demasiado largo</translation>
    </message>
    <message>
        <source>a text or shape is not closed, or stands in front of all dashes</source>
        <translation>un texto o una forma no está cerrado, o está antes de todos los trazos</translation>
    </message>
    <message>
        <source>a shape needs its name and its file</source>
        <translation>una forma necesita su nombre y su archivo</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not understood</source>
        <translation>no se entiende &quot;%1&quot;</translation>
    </message>
    <message>
        <source>text style &quot;%1&quot; is not in the drawing</source>
        <translation>el estilo de texto &quot;%1&quot; no está en el dibujo</translation>
    </message>
    <message>
        <source>the shape file &quot;%1&quot; is not found</source>
        <translation>no se encuentra el archivo de formas &quot;%1&quot;</translation>
    </message>
    <message>
        <source>shape &quot;%1&quot; is not in the file &quot;%2&quot;</source>
        <translation>la forma &quot;%1&quot; no está en el archivo &quot;%2&quot;</translation>
    </message>
    <message>
        <source>a drawing of this version has no texts and shapes in linetypes</source>
        <translation>un dibujo de esta versión no tiene textos ni formas en los tipos de línea</translation>
    </message>
    <message>
        <source>the name cannot be used</source>
        <translation>no se puede usar el nombre</translation>
    </message>
    <message>
        <source>it is not in the drawing&apos;s folder. READPATHS, or the option --allow-read, names folders whose files drawings may name</source>
        <translation>no está en la carpeta del dibujo. READPATHS, o la opción --allow-read, nombra carpetas cuyos archivos pueden nombrar los dibujos</translation>
    </message>
    <message>
        <source>there are no shapes in it</source>
        <translation>no contiene formas</translation>
    </message>
    <message>
        <source>the file is cut off</source>
        <translation>el archivo está cortado</translation>
    </message>
    <message>
        <source>it is a compiled file of another kind</source>
        <translation>es un archivo compilado de otra clase</translation>
    </message>
    <message>
        <source>%1 (remote texts have at most 256 kB)</source>
        <translation>%1 (los textos remotos tienen como máximo 256 kB)</translation>
    </message>
    <message>
        <source>this DWG file cannot be read: %1</source>
        <translation>no se puede leer este archivo DWG: %1</translation>
    </message>
    <message>
        <source>1 object could not be read</source>
        <translation>no se pudo leer 1 objeto</translation>
    </message>
    <message>
        <source>%1 objects could not be read</source>
        <translation>no se pudieron leer %1 objetos</translation>
    </message>
    <message>
        <source>a part of the file</source>
        <translation>una parte del archivo</translation>
    </message>
    <message>
        <source>some of the file is not as expected; what was read of it may be wrong</source>
        <translation>parte del archivo no es como se esperaba; lo que se leyó de ella puede ser erróneo</translation>
    </message>
    <message>
        <source>1 part of the file could not be read</source>
        <translation>no se pudo leer 1 parte del archivo</translation>
    </message>
    <message>
        <source>%1 parts of the file could not be read</source>
        <translation>no se pudieron leer %1 partes del archivo</translation>
    </message>
    <message>
        <source>1 object and 1 part of the file could not be read</source>
        <translation>no se pudieron leer 1 objeto y 1 parte del archivo</translation>
    </message>
    <message>
        <source>1 object and %1 parts of the file could not be read</source>
        <translation>no se pudieron leer 1 objeto y %1 partes del archivo</translation>
    </message>
    <message>
        <source>%1 objects and 1 part of the file could not be read</source>
        <translation>no se pudieron leer %1 objetos y 1 parte del archivo</translation>
    </message>
    <message>
        <source>%1 objects and %2 parts of the file could not be read</source>
        <translation>no se pudieron leer %1 objetos y %2 partes del archivo</translation>
    </message>
    <message>
        <source>object %1</source>
        <translation>objeto %1</translation>
    </message>
    <message>
        <source>%1 could not be read: %2</source>
        <translation>no se pudo leer %1: %2</translation>
    </message>
    <message>
        <source>%1 may be wrong: %2</source>
        <translation>%1 puede ser incorrecto: %2</translation>
    </message>
    <message>
        <source>the file is damaged; the drawing is whole</source>
        <translation>el archivo está dañado; el dibujo está completo</translation>
    </message>
</context>
<context>
    <name>FileActions</name>
    <message>
        <source>Open drawings</source>
        <translation>Abrir dibujos</translation>
    </message>
    <message>
        <source>Drawings (*.dxf *.dwg);;All files (*)</source>
        <translation>Dibujos (*.dxf *.dwg);;Todos los archivos (*)</translation>
    </message>
    <message>
        <source>%1
What is saved here replaces what is saved there.</source>
        <translation>%1
Lo que se guarde aquí reemplaza lo que se guarde allí.</translation>
    </message>
    <message>
        <source>Open &amp;read-only</source>
        <translation>Abrir de solo &amp;lectura</translation>
    </message>
    <message>
        <source>Open &amp;anyway</source>
        <translation>&amp;Abrir de todos modos</translation>
    </message>
    <message>
        <source>Save under another &amp;name...</source>
        <translation>Guardar con otro &amp;nombre...</translation>
    </message>
    <message>
        <source>Save &amp;anyway</source>
        <translation>&amp;Guardar de todos modos</translation>
    </message>
    <message>
        <source>%1

The drawing stays open.</source>
        <translation>%1

El dibujo sigue abierto.</translation>
    </message>
    <message>
        <source>Save &amp;as...</source>
        <translation>Guardar &amp;como...</translation>
    </message>
    <message>
        <source>%1 already exists. Do you want to replace it?</source>
        <translation>%1 ya existe. ¿Desea reemplazarlo?</translation>
    </message>
    <message>
        <source>Save drawing</source>
        <translation>Guardar dibujo</translation>
    </message>
    <message>
        <source>DXF drawings (*.dxf)</source>
        <translation>Dibujos DXF (*.dxf)</translation>
    </message>
    <message>
        <source>Export picture</source>
        <translation>Exportar imagen</translation>
    </message>
    <message>
        <source>%1 pictures (*.%2)</source>
        <translation>Imágenes %1 (*.%2)</translation>
    </message>
    <message>
        <source>
Written: %1
</source>
        <translation>
Escrito: %1
</translation>
    </message>
    <message>
        <source>In the picture: %1
</source>
        <translation>En la imagen: %1
</translation>
    </message>
    <message>
        <source>%1 was changed. Save it?</source>
        <translation>%1 ha cambiado. ¿Guardarlo?</translation>
    </message>
    <message>
        <source>%1
It is a DWG file: what you change here is saved under another name.</source>
        <translation>%1
Es un archivo DWG: lo que cambie aquí se guarda con otro nombre.</translation>
    </message>
</context>
<context>
    <name>Functions</name>
    <message>
        <source>
New color &lt;%1&gt;: </source>
        <translation>
Nuevo color &lt;%1&gt;: </translation>
    </message>
    <message>
        <source>
Requires a color number or name.</source>
        <translation>
Se requiere un número o nombre de color.</translation>
    </message>
    <message>
        <source>
Unknown command &quot;%1&quot;.
</source>
        <translation>
Comando desconocido &quot;%1&quot;.
</translation>
    </message>
    <message>
        <source>
Left over from (command): %1
</source>
        <translation>
Sobra de (command): %1
</translation>
    </message>
    <message>
        <source>
The dialog file &quot;%1&quot; was not found.
</source>
        <translation>
No se encuentra el archivo de diálogo &quot;%1&quot;.
</translation>
    </message>
    <message>
        <source>
The actions that the file gives to the tiles of &quot;%1&quot; do not run: its folder is not trusted.
</source>
        <translation>
Las acciones que el archivo da a los elementos de &quot;%1&quot; no se ejecutan: su carpeta no es de confianza.
</translation>
    </message>
    <message>
        <source>
There is no dialog &quot;%1&quot; in what was loaded.
</source>
        <translation>
No hay ningún diálogo &quot;%1&quot; en lo cargado.
</translation>
    </message>
    <message>
        <source>
Nobody is there to answer the dialog &quot;%1&quot;: cancelled.
</source>
        <translation>
No hay nadie que responda al diálogo &quot;%1&quot;: cancelado.
</translation>
    </message>
    <message>
        <source>action of &quot;%1&quot; in dialog %2</source>
        <translation>acción de &quot;%1&quot; en el diálogo %2</translation>
    </message>
    <message>
        <source>
Select object: </source>
        <translation>
Designe objeto: </translation>
    </message>
    <message>
        <source>
startapp: %1 is not started: the user&apos;s settings do not let programs start others.
</source>
        <translation>
startapp: %1 no se inicia: la configuración del usuario no permite que los programas inicien otros.
</translation>
    </message>
    <message>
        <source>there is no sheet &quot;%1&quot;</source>
        <translation>no hay ninguna presentación &quot;%1&quot;</translation>
    </message>
    <message>
        <source>&quot;%1&quot; cannot be the name of a sheet</source>
        <translation>&quot;%1&quot; no puede ser el nombre de una presentación</translation>
    </message>
    <message>
        <source>there is a sheet &quot;%1&quot; already</source>
        <translation>ya hay una presentación &quot;%1&quot;</translation>
    </message>
    <message>
        <source>%1 is one of the drawings that sheets come from</source>
        <translation>%1 es uno de los dibujos de los que proceden los planos</translation>
    </message>
    <message>
        <source>the file was not found</source>
        <translation>no se encuentra el archivo</translation>
    </message>
    <message>
        <source>
The slide &quot;%1&quot;: %2.
</source>
        <translation>
La foto &quot;%1&quot;: %2.
</translation>
    </message>
</context>
<context>
    <name>Help</name>
    <message>
        <source>0: heights count</source>
        <translation>0: cuentan las alturas</translation>
    </message>
    <message>
        <source>As -COLOR</source>
        <translation>Como -COLOR</translation>
    </message>
    <message>
        <source>As -COLOR; there is no window for it</source>
        <translation>Como -COLOR; no tiene ventana</translation>
    </message>
    <message>
        <source>As -LAYDEL; there is no window for it</source>
        <translation>Como -LAYDEL; no tiene ventana</translation>
    </message>
    <message>
        <source>As -LAYER; entered by hand in the window it shows the layer panel</source>
        <translation>Como -LAYER; escrito a mano en la ventana muestra el panel de capas</translation>
    </message>
    <message>
        <source>As -LAYMRG; there is no window for it</source>
        <translation>Como -LAYMRG; no tiene ventana</translation>
    </message>
    <message>
        <source>As -LINETYPE; there is no window for it</source>
        <translation>Como -LINETYPE; no tiene ventana</translation>
    </message>
    <message>
        <source>As -LWEIGHT; there is no window for it</source>
        <translation>Como -LWEIGHT; no tiene ventana</translation>
    </message>
    <message>
        <source>As -PAN; the middle button of the mouse moves the view too</source>
        <translation>Como -PAN; el botón central del ratón también desplaza la vista</translation>
    </message>
    <message>
        <source>As -PURGE; there is no window for it</source>
        <translation>Como -PURGE; no tiene ventana</translation>
    </message>
    <message>
        <source>As -RENAME; there is no window for it</source>
        <translation>Como -RENAME; no tiene ventana</translation>
    </message>
    <message>
        <source>As -UNITS; there is no window for it</source>
        <translation>Como -UNITS; no tiene ventana</translation>
    </message>
    <message>
        <source>As -VIEW; there is no window for it</source>
        <translation>Como -VIEW; no tiene ventana</translation>
    </message>
    <message>
        <source>As -VPOINT; there is no window for it</source>
        <translation>Como -VPOINT; no tiene ventana</translation>
    </message>
    <message>
        <source>As -VPORTS; there is no window for it</source>
        <translation>Como -VPORTS; no tiene ventana</translation>
    </message>
    <message>
        <source>As -XREF; there is no window for it</source>
        <translation>Como -XREF; no tiene ventana</translation>
    </message>
    <message>
        <source>As LAYOUT; there is no window for it</source>
        <translation>Como LAYOUT; no tiene ventana</translation>
    </message>
    <message>
        <source>As NEW</source>
        <translation>Como NEW</translation>
    </message>
    <message>
        <source>As QUIT</source>
        <translation>Como QUIT</translation>
    </message>
    <message>
        <source>Attaches drawing files as external references, and changes, binds and detaches these</source>
        <translation>Enlaza archivos de dibujo como referencias externas, y las cambia, une y desenlaza</translation>
    </message>
    <message>
        <source>BOUNDARY makes polylines (1) or regions (0)</source>
        <translation>BOUNDARY crea polilíneas (1) o regiones (0)</translation>
    </message>
    <message>
        <source>Brings back what was erased last</source>
        <translation>Recupera lo último que se borró</translation>
    </message>
    <message>
        <source>Brings entities in front of others or behind them</source>
        <translation>Pone entidades delante o detrás de otras</translation>
    </message>
    <message>
        <source>COPY goes on until an empty answer (0) or makes one copy (1)</source>
        <translation>COPY sigue hasta una respuesta vacía (0) o hace una sola copia (1)</translation>
    </message>
    <message>
        <source>Changes entities by a point, or their properties</source>
        <translation>Cambia entidades por un punto, o sus propiedades</translation>
    </message>
    <message>
        <source>Changes entities by their grips</source>
        <translation>Cambia entidades por sus pinzamientos</translation>
    </message>
    <message>
        <source>Changes layer, color, linetype and weight of entities</source>
        <translation>Cambia capa, color, tipo y grosor de línea de entidades</translation>
    </message>
    <message>
        <source>Changes pattern, style and layer of a hatch</source>
        <translation>Cambia patrón, estilo y capa de un sombreado</translation>
    </message>
    <message>
        <source>Changes text and extension lines of dimensions</source>
        <translation>Cambia el texto y las líneas de referencia de las cotas</translation>
    </message>
    <message>
        <source>Changes the values of a block reference&apos;s attributes</source>
        <translation>Cambia los valores de los atributos de una referencia de bloque</translation>
    </message>
    <message>
        <source>Changes the values of attributes</source>
        <translation>Cambia los valores de atributos</translation>
    </message>
    <message>
        <source>Changes what texts, dimensions and definitions of attributes say</source>
        <translation>Cambia lo que dicen textos, cotas y definiciones de atributos</translation>
    </message>
    <message>
        <source>Chooses entities for the next command</source>
        <translation>Designa entidades para el comando siguiente</translation>
    </message>
    <message>
        <source>Chooses entities; they are the previous selection then</source>
        <translation>Designa entidades; pasan a ser la selección previa</translation>
    </message>
    <message>
        <source>Chooses the isometric plane</source>
        <translation>Elige el plano isométrico</translation>
    </message>
    <message>
        <source>Chooses what is similar to the chosen entities</source>
        <translation>Designa lo que se parece a las entidades elegidas</translation>
    </message>
    <message>
        <source>Closes all drawings</source>
        <translation>Cierra todos los dibujos</translation>
    </message>
    <message>
        <source>Closes the drawing</source>
        <translation>Cierra el dibujo</translation>
    </message>
    <message>
        <source>Closes the drawing without saving, and ends the program</source>
        <translation>Cierra el dibujo sin guardar y termina el programa</translation>
    </message>
    <message>
        <source>Copies entities</source>
        <translation>Copia entidades</translation>
    </message>
    <message>
        <source>Copies entities into rows and columns or round a point</source>
        <translation>Copia entidades en filas y columnas o alrededor de un punto</translation>
    </message>
    <message>
        <source>Copies entities to the clipboard</source>
        <translation>Copia entidades al portapapeles</translation>
    </message>
    <message>
        <source>Copies entities to the clipboard by a base point</source>
        <translation>Copia entidades al portapapeles con un punto base</translation>
    </message>
    <message>
        <source>Cuts block references off at a boundary</source>
        <translation>Delimita referencias de bloque con un contorno</translation>
    </message>
    <message>
        <source>Cuts corners off</source>
        <translation>Achaflana esquinas</translation>
    </message>
    <message>
        <source>Defines an attribute of a block</source>
        <translation>Define un atributo de un bloque</translation>
    </message>
    <message>
        <source>Deletes layers with all that is on them</source>
        <translation>Borra capas con todo lo que contienen</translation>
    </message>
    <message>
        <source>Dimensions a distance along itself</source>
        <translation>Acota una distancia a lo largo de ella</translation>
    </message>
    <message>
        <source>Dimensions a distance along x, y or another direction</source>
        <translation>Acota una distancia según x, y u otra dirección</translation>
    </message>
    <message>
        <source>Dimensions an angle</source>
        <translation>Acota un ángulo</translation>
    </message>
    <message>
        <source>Dimensions by subcommands until Exit</source>
        <translation>Acota con subcomandos hasta Exit</translation>
    </message>
    <message>
        <source>Dimensions further points from the same begin</source>
        <translation>Acota más puntos desde el mismo origen</translation>
    </message>
    <message>
        <source>Dimensions on from the last dimension</source>
        <translation>Continúa acotando desde la última cota</translation>
    </message>
    <message>
        <source>Dimensions the diameter of a circle or arc</source>
        <translation>Acota el diámetro de un círculo o arco</translation>
    </message>
    <message>
        <source>Dimensions the length of an arc</source>
        <translation>Acota la longitud de un arco</translation>
    </message>
    <message>
        <source>Dimensions the radius of a circle or arc</source>
        <translation>Acota el radio de un círculo o arco</translation>
    </message>
    <message>
        <source>Dimensions the radius of a circle or arc from a nearer centre</source>
        <translation>Acota el radio de un círculo o arco desde un centro más cercano</translation>
    </message>
    <message>
        <source>Dimensions the x or y coordinate of a point</source>
        <translation>Acota la coordenada x o y de un punto</translation>
    </message>
    <message>
        <source>Divides the screen or makes viewports on a sheet</source>
        <translation>Divide la pantalla o crea ventanas en una presentación</translation>
    </message>
    <message>
        <source>Does again what was undone last</source>
        <translation>Rehace lo último que se deshizo</translation>
    </message>
    <message>
        <source>Does again what was undone, several steps at once</source>
        <translation>Rehace lo deshecho, varios pasos a la vez</translation>
    </message>
    <message>
        <source>Draws a circle: centre and radius, two or three points, two tangents and radius</source>
        <translation>Dibuja un círculo: centro y radio, dos o tres puntos, dos tangentes y radio</translation>
    </message>
    <message>
        <source>Draws a cloud of arcs, or makes one of an entity</source>
        <translation>Dibuja una nube de arcos, o convierte una entidad en una</translation>
    </message>
    <message>
        <source>Draws a line from a feature to a note</source>
        <translation>Dibuja una directriz de una característica a una nota</translation>
    </message>
    <message>
        <source>Draws a line of up to three points with a text</source>
        <translation>Dibuja una directriz de hasta tres puntos con un texto</translation>
    </message>
    <message>
        <source>Draws a point</source>
        <translation>Dibuja un punto</translation>
    </message>
    <message>
        <source>Draws a polygon with sides of one length</source>
        <translation>Dibuja un polígono regular</translation>
    </message>
    <message>
        <source>Draws a polyline in space</source>
        <translation>Dibuja una polilínea en el espacio</translation>
    </message>
    <message>
        <source>Draws a polyline of straight segments and arcs</source>
        <translation>Dibuja una polilínea de segmentos rectos y arcos</translation>
    </message>
    <message>
        <source>Draws a rectangle by corners, sides or area</source>
        <translation>Dibuja un rectángulo por esquinas, lados o área</translation>
    </message>
    <message>
        <source>Draws a smooth curve through points or along control points</source>
        <translation>Dibuja una curva suave por puntos o según puntos de control</translation>
    </message>
    <message>
        <source>Draws an arc: three points, or start, center, end, angle, length, direction, radius</source>
        <translation>Dibuja un arco: tres puntos, o inicio, centro, fin, ángulo, longitud, dirección, radio</translation>
    </message>
    <message>
        <source>Draws an arrow with a note as one entity</source>
        <translation>Dibuja una flecha con una nota como una sola entidad</translation>
    </message>
    <message>
        <source>Draws an ellipse or a part of one</source>
        <translation>Dibuja una elipse o parte de una</translation>
    </message>
    <message>
        <source>Draws faces in space</source>
        <translation>Dibuja caras en el espacio</translation>
    </message>
    <message>
        <source>Draws filled areas with three or four corners</source>
        <translation>Dibuja áreas rellenas de tres o cuatro esquinas</translation>
    </message>
    <message>
        <source>Draws filled rings</source>
        <translation>Dibuja anillos rellenos</translation>
    </message>
    <message>
        <source>Draws lines that end at one side only</source>
        <translation>Dibuja líneas que terminan solo por un lado</translation>
    </message>
    <message>
        <source>Draws lines without ends</source>
        <translation>Dibuja líneas sin fin</translation>
    </message>
    <message>
        <source>Draws parallel curves</source>
        <translation>Dibuja curvas paralelas</translation>
    </message>
    <message>
        <source>Draws parallel lines with the current multiline style</source>
        <translation>Dibuja líneas paralelas con el estilo de línea múltiple actual</translation>
    </message>
    <message>
        <source>Draws straight segments</source>
        <translation>Dibuja segmentos rectos</translation>
    </message>
    <message>
        <source>Draws the window anew</source>
        <translation>Vuelve a dibujar la ventana</translation>
    </message>
    <message>
        <source>Draws wide lines</source>
        <translation>Dibuja líneas gruesas</translation>
    </message>
    <message>
        <source>ELLIPSE makes true ellipses (0) or polylines (1)</source>
        <translation>ELLIPSE crea elipses verdaderas (0) o polilíneas (1)</translation>
    </message>
    <message>
        <source>EXPLODE takes blocks of unequal scales</source>
        <translation>EXPLODE admite bloques de escalas desiguales</translation>
    </message>
    <message>
        <source>Edits polylines: closes, joins, widens, smooths, changes vertices</source>
        <translation>Edita polilíneas: cierra, une, ensancha, suaviza, cambia vértices</translation>
    </message>
    <message>
        <source>Evaluates the expressions of texts anew</source>
        <translation>Vuelve a evaluar las expresiones de los textos</translation>
    </message>
    <message>
        <source>FILLET and CHAMFER trim what they join</source>
        <translation>FILLET y CHAMFER recortan lo que unen</translation>
    </message>
    <message>
        <source>Freezes and thaws layers in viewports of sheets</source>
        <translation>Inutiliza y reutiliza capas en ventanas de presentaciones</translation>
    </message>
    <message>
        <source>Freezes layers of picked objects in all other viewports</source>
        <translation>Inutiliza en las demás ventanas las capas de los objetos designados</translation>
    </message>
    <message>
        <source>Freezes the layers of picked objects</source>
        <translation>Inutiliza las capas de los objetos designados</translation>
    </message>
    <message>
        <source>Gives a multileader further arrows, or takes some away</source>
        <translation>Da más flechas a una directriz múltiple, o quita algunas</translation>
    </message>
    <message>
        <source>Gives blocks, layers, styles and other named things another name</source>
        <translation>Da otro nombre a bloques, capas, estilos y otros elementos con nombre</translation>
    </message>
    <message>
        <source>Gives entities the properties of another one</source>
        <translation>Da a entidades las propiedades de otra</translation>
    </message>
    <message>
        <source>Gives layers what they had before LAYISO</source>
        <translation>Devuelve a las capas lo que tenían antes de LAYISO</translation>
    </message>
    <message>
        <source>Gives references the attributes that their block defines</source>
        <translation>Da a las referencias los atributos que define su bloque</translation>
    </message>
    <message>
        <source>Hatches areas</source>
        <translation>Sombrea áreas</translation>
    </message>
    <message>
        <source>Hides a command, which a point in front still runs</source>
        <translation>Oculta un comando, que sigue disponible con un punto delante</translation>
    </message>
    <message>
        <source>INSERT asks for attributes (1) or takes their defaults (0)</source>
        <translation>INSERT pide los atributos (1) o toma sus valores por defecto (0)</translation>
    </message>
    <message>
        <source>INSERT asks for attributes with a dialog (1) or on the command line (0)</source>
        <translation>INSERT pide los atributos con un diálogo (1) o en la línea de comandos (0)</translation>
    </message>
    <message>
        <source>Inserts a block or drawing file, as a reference or in pieces</source>
        <translation>Inserta un bloque o archivo de dibujo, como referencia o descompuesto</translation>
    </message>
    <message>
        <source>Loads a shape file, so that its shapes can be placed</source>
        <translation>Carga un archivo de formas para poder colocarlas</translation>
    </message>
    <message>
        <source>Loads linetypes from a file and chooses the current one</source>
        <translation>Carga tipos de línea de un archivo y elige el actual</translation>
    </message>
    <message>
        <source>Locks or turns off all layers but those of chosen objects</source>
        <translation>Bloquea o desactiva todas las capas menos las de los objetos elegidos</translation>
    </message>
    <message>
        <source>Locks the layer of a picked object</source>
        <translation>Bloquea la capa de un objeto designado</translation>
    </message>
    <message>
        <source>Looks for errors in the drawing and mends them</source>
        <translation>Busca errores en el dibujo y los repara</translation>
    </message>
    <message>
        <source>Looks from another direction</source>
        <translation>Mira desde otra dirección</translation>
    </message>
    <message>
        <source>Looks straight at the plane of a coordinate system</source>
        <translation>Mira de frente al plano de un sistema de coordenadas</translation>
    </message>
    <message>
        <source>Makes a block of entities</source>
        <translation>Crea un bloque con entidades</translation>
    </message>
    <message>
        <source>Makes a command known again that UNDEFINE hid</source>
        <translation>Restablece un comando que ocultó UNDEFINE</translation>
    </message>
    <message>
        <source>Makes a new drawing, from a template or empty</source>
        <translation>Crea un dibujo nuevo, a partir de una plantilla o vacío</translation>
    </message>
    <message>
        <source>Makes and changes groups of entities</source>
        <translation>Crea y cambia grupos de entidades</translation>
    </message>
    <message>
        <source>Makes and changes text styles</source>
        <translation>Crea y cambia estilos de texto</translation>
    </message>
    <message>
        <source>Makes entities larger or smaller</source>
        <translation>Amplía o reduce entidades</translation>
    </message>
    <message>
        <source>Makes layers and changes their properties and states</source>
        <translation>Crea capas y cambia sus propiedades y estados</translation>
    </message>
    <message>
        <source>Makes one paragraph of texts</source>
        <translation>Hace un párrafo de textos</translation>
    </message>
    <message>
        <source>Makes polylines or regions round areas</source>
        <translation>Crea polilíneas o regiones alrededor de áreas</translation>
    </message>
    <message>
        <source>Makes the layer of a picked object current</source>
        <translation>Hace actual la capa de un objeto designado</translation>
    </message>
    <message>
        <source>Makes viewports on a sheet and switches them</source>
        <translation>Crea ventanas en una presentación y las activa o desactiva</translation>
    </message>
    <message>
        <source>Makes, copies, renames and deletes layouts and chooses the current one</source>
        <translation>Crea, copia, renombra y borra presentaciones y elige la actual</translation>
    </message>
    <message>
        <source>Marks the centre of a circle or arc</source>
        <translation>Marca el centro de un círculo o arco</translation>
    </message>
    <message>
        <source>Mirrors entities in a line</source>
        <translation>Refleja entidades respecto a una línea</translation>
    </message>
    <message>
        <source>Mirrors entities in a plane</source>
        <translation>Refleja entidades respecto a un plano</translation>
    </message>
    <message>
        <source>Moves entities</source>
        <translation>Desplaza entidades</translation>
    </message>
    <message>
        <source>Moves entities between the sheet and the model that it shows</source>
        <translation>Pasa entidades entre la presentación y el modelo que muestra</translation>
    </message>
    <message>
        <source>Moves entities in space</source>
        <translation>Desplaza entidades en el espacio</translation>
    </message>
    <message>
        <source>Moves entities to the clipboard</source>
        <translation>Corta entidades al portapapeles</translation>
    </message>
    <message>
        <source>Moves or turns the text of a dimension</source>
        <translation>Desplaza o gira el texto de una cota</translation>
    </message>
    <message>
        <source>Moves the notes of multileaders onto a line</source>
        <translation>Alinea las notas de directrices múltiples</translation>
    </message>
    <message>
        <source>Moves what is shown</source>
        <translation>Desplaza lo que se muestra</translation>
    </message>
    <message>
        <source>Moves what lies within a window, and what is tied to it follows</source>
        <translation>Desplaza lo que está en una ventana, y lo unido a ello lo sigue</translation>
    </message>
    <message>
        <source>Moves, turns and scales entities by pairs of points</source>
        <translation>Desplaza, gira y escala entidades por parejas de puntos</translation>
    </message>
    <message>
        <source>Opens a drawing, where what is typed next goes on</source>
        <translation>Abre un dibujo, en el que continúa lo que se escriba</translation>
    </message>
    <message>
        <source>PEDIT makes polylines of others without asking</source>
        <translation>PEDIT convierte otras entidades en polilíneas sin preguntar</translation>
    </message>
    <message>
        <source>Places a shape of a loaded shape file</source>
        <translation>Coloca una forma de un archivo de formas cargado</translation>
    </message>
    <message>
        <source>Places what is on the clipboard</source>
        <translation>Coloca lo que hay en el portapapeles</translation>
    </message>
    <message>
        <source>Places what is on the clipboard as a block</source>
        <translation>Coloca como bloque lo que hay en el portapapeles</translation>
    </message>
    <message>
        <source>Places what is on the clipboard where it was copied</source>
        <translation>Coloca lo del portapapeles donde se copió</translation>
    </message>
    <message>
        <source>Plots a layout to a file of PDF, PNG or SVG</source>
        <translation>Traza una presentación en un archivo PDF, PNG o SVG</translation>
    </message>
    <message>
        <source>Plots a layout to a file; in the window as a dialog with a preview</source>
        <translation>Traza una presentación en un archivo; en la ventana, con un diálogo y vista previa</translation>
    </message>
    <message>
        <source>Puts objects on the current layer</source>
        <translation>Pone objetos en la capa actual</translation>
    </message>
    <message>
        <source>Puts objects on the layer of another one</source>
        <translation>Pone objetos en la capa de otro</translation>
    </message>
    <message>
        <source>Puts what is on layers on another one and deletes them</source>
        <translation>Pasa a otra capa lo que hay en unas capas y las borra</translation>
    </message>
    <message>
        <source>Rounds corners with arcs</source>
        <translation>Redondea esquinas con arcos</translation>
    </message>
    <message>
        <source>Runs a command again and again until it is cancelled</source>
        <translation>Ejecuta un comando una y otra vez hasta cancelarlo</translation>
    </message>
    <message>
        <source>Runs one subcommand of the dimension mode</source>
        <translation>Ejecuta un subcomando del modo de acotación</translation>
    </message>
    <message>
        <source>Saves the drawing under a name</source>
        <translation>Guarda el dibujo con un nombre</translation>
    </message>
    <message>
        <source>Saves the drawing under its own name</source>
        <translation>Guarda el dibujo con su propio nombre</translation>
    </message>
    <message>
        <source>Saves, restores and deletes named views</source>
        <translation>Guarda, restablece y borra vistas guardadas</translation>
    </message>
    <message>
        <source>Saves, restores, lists and applies dimension styles</source>
        <translation>Guarda, restablece, lista y aplica estilos de cota</translation>
    </message>
    <message>
        <source>Says how near the pointer object snap looks</source>
        <translation>Indica a qué distancia del cursor busca la referencia a objetos</translation>
    </message>
    <message>
        <source>Says which object snaps are always on</source>
        <translation>Indica qué referencias a objetos están siempre activas</translation>
    </message>
    <message>
        <source>Scripts go on by themselves</source>
        <translation>Los scripts continúan solos</translation>
    </message>
    <message>
        <source>Sets and checks the drawing&apos;s limits</source>
        <translation>Define y comprueba los límites del dibujo</translation>
    </message>
    <message>
        <source>Sets and switches the grid</source>
        <translation>Define y activa la rejilla</translation>
    </message>
    <message>
        <source>Sets and switches the grid that points snap to</source>
        <translation>Define y activa el forzado de cursor</translation>
    </message>
    <message>
        <source>Sets how lengths and angles are shown</source>
        <translation>Define cómo se muestran longitudes y ángulos</translation>
    </message>
    <message>
        <source>Sets the color of new objects</source>
        <translation>Define el color de los objetos nuevos</translation>
    </message>
    <message>
        <source>Sets the elevation and thickness of new objects</source>
        <translation>Define la elevación y la altura de los objetos nuevos</translation>
    </message>
    <message>
        <source>Sets the lineweight of new objects</source>
        <translation>Define el grosor de línea de los objetos nuevos</translation>
    </message>
    <message>
        <source>Sets the point that the drawing is inserted by</source>
        <translation>Define el punto por el que se inserta el dibujo</translation>
    </message>
    <message>
        <source>Sets variables of single dimensions</source>
        <translation>Define variables de cotas sueltas</translation>
    </message>
    <message>
        <source>Sets, saves and restores the user coordinate system</source>
        <translation>Define, guarda y restablece el sistema de coordenadas personales</translation>
    </message>
    <message>
        <source>Shows more or less of the drawing</source>
        <translation>Muestra más o menos del dibujo</translation>
    </message>
    <message>
        <source>Shows the help pages</source>
        <translation>Muestra las páginas de ayuda</translation>
    </message>
    <message>
        <source>Shows the properties panel where it is entered by hand in the window</source>
        <translation>Muestra el panel de propiedades si se escribe a mano en la ventana</translation>
    </message>
    <message>
        <source>Shows, lists or sets a system variable</source>
        <translation>Muestra, lista o define una variable de sistema</translation>
    </message>
    <message>
        <source>Switches whether areas are filled</source>
        <translation>Activa o desactiva el relleno de áreas</translation>
    </message>
    <message>
        <source>Switches whether lines go along the axes</source>
        <translation>Activa o desactiva las líneas según los ejes</translation>
    </message>
    <message>
        <source>Switches whether texts are boxes</source>
        <translation>Activa o desactiva los textos como rectángulos</translation>
    </message>
    <message>
        <source>Switches whether the drawing is made anew by itself</source>
        <translation>Activa o desactiva la regeneración automática del dibujo</translation>
    </message>
    <message>
        <source>TRIM and EXTEND begin with edges (0) or take all (1)</source>
        <translation>TRIM y EXTEND empiezan por aristas (0) o toman todas (1)</translation>
    </message>
    <message>
        <source>TRIM and EXTEND take edges as if they went on</source>
        <translation>TRIM y EXTEND toman las aristas como si continuaran</translation>
    </message>
    <message>
        <source>Takes a file&apos;s name; programs for other hosts do not run here</source>
        <translation>Toma el nombre de un archivo; aquí no se ejecutan programas para otros entornos</translation>
    </message>
    <message>
        <source>Takes back steps; marks and groups them</source>
        <translation>Deshace pasos; los marca y agrupa</translation>
    </message>
    <message>
        <source>Takes back the last change of layer settings</source>
        <translation>Deshace el último cambio de capas</translation>
    </message>
    <message>
        <source>Takes back the last step</source>
        <translation>Deshace el último paso</translation>
    </message>
    <message>
        <source>Takes blocks, polylines, texts and dimensions apart</source>
        <translation>Descompone bloques, polilíneas, textos y cotas</translation>
    </message>
    <message>
        <source>Takes entities out of the drawing</source>
        <translation>Quita entidades del dibujo</translation>
    </message>
    <message>
        <source>Takes out of the drawing what nothing refers to</source>
        <translation>Quita del dibujo aquello a lo que nada se refiere</translation>
    </message>
    <message>
        <source>Takes the name of a menu file; there are none here</source>
        <translation>Toma el nombre de un archivo de menú; aquí no los hay</translation>
    </message>
    <message>
        <source>Takes the name of a menu; there are none here</source>
        <translation>Toma el nombre de un menú; aquí no los hay</translation>
    </message>
    <message>
        <source>Takes what programs ask of it; programs for other hosts do not run here</source>
        <translation>Toma lo que le piden los programas; aquí no se ejecutan programas para otros entornos</translation>
    </message>
    <message>
        <source>Tells the coordinates of a point</source>
        <translation>Indica las coordenadas de un punto</translation>
    </message>
    <message>
        <source>Tells the distance and angle between points</source>
        <translation>Indica la distancia y el ángulo entre puntos</translation>
    </message>
    <message>
        <source>Tells what is in the drawing and what is current</source>
        <translation>Indica qué hay en el dibujo y qué es lo actual</translation>
    </message>
    <message>
        <source>Tells what is known of entities</source>
        <translation>Indica lo que se sabe de entidades</translation>
    </message>
    <message>
        <source>Tells when the drawing was made and changed</source>
        <translation>Indica cuándo se creó y cambió el dibujo</translation>
    </message>
    <message>
        <source>Thaws all layers</source>
        <translation>Reutiliza todas las capas</translation>
    </message>
    <message>
        <source>The command line is always in sight</source>
        <translation>La línea de comandos está siempre a la vista</translation>
    </message>
    <message>
        <source>The drawing is always in sight</source>
        <translation>El dibujo está siempre a la vista</translation>
    </message>
    <message>
        <source>Turns all layers on</source>
        <translation>Activa todas las capas</translation>
    </message>
    <message>
        <source>Turns entities round a point</source>
        <translation>Gira entidades alrededor de un punto</translation>
    </message>
    <message>
        <source>Turns entities round an axis in space</source>
        <translation>Gira entidades alrededor de un eje en el espacio</translation>
    </message>
    <message>
        <source>Turns off the layers of picked objects</source>
        <translation>Desactiva las capas de los objetos designados</translation>
    </message>
    <message>
        <source>Types the last script once more</source>
        <translation>Repite el último script</translation>
    </message>
    <message>
        <source>Types what a script file holds</source>
        <translation>Escribe lo que contiene un archivo de script</translation>
    </message>
    <message>
        <source>Unlocks the layer of a picked object</source>
        <translation>Desbloquea la capa de un objeto designado</translation>
    </message>
    <message>
        <source>Waits for so many milliseconds</source>
        <translation>Espera el número de milisegundos indicado</translation>
    </message>
    <message>
        <source>Works on model space through a viewport of the sheet</source>
        <translation>Trabaja en el espacio modelo a través de una ventana de la presentación</translation>
    </message>
    <message>
        <source>Works on the sheet itself</source>
        <translation>Trabaja en la propia presentación</translation>
    </message>
    <message>
        <source>Writes a block or entities to a drawing file</source>
        <translation>Escribe un bloque o entidades en un archivo de dibujo</translation>
    </message>
    <message>
        <source>Writes a paragraph of several lines</source>
        <translation>Escribe un párrafo de varias líneas</translation>
    </message>
    <message>
        <source>Writes one line of text</source>
        <translation>Escribe una línea de texto</translation>
    </message>
    <message>
        <source>&quot;(&quot; and &quot;!&quot; in texts are evaluated</source>
        <translation>&quot;(&quot; y &quot;!&quot; en los textos se evalúan</translation>
    </message>
    <message>
        <source>a block is being edited in place</source>
        <translation>se está editando un bloque in situ</translation>
    </message>
    <message>
        <source>a double click edits</source>
        <translation>un doble clic edita</translation>
    </message>
    <message>
        <source>a drawing&apos;s sheet set is looked for</source>
        <translation>se busca el conjunto de planos de un dibujo</translation>
    </message>
    <message>
        <source>a file&apos;s tab shows its layouts</source>
        <translation>la ficha de un archivo muestra sus presentaciones</translation>
    </message>
    <message>
        <source>a hatch is shown before it is made</source>
        <translation>un sombreado se muestra antes de crearse</translation>
    </message>
    <message>
        <source>a line is drawn inside though the text is outside</source>
        <translation>se dibuja una línea dentro aunque el texto esté fuera</translation>
    </message>
    <message>
        <source>a new annotation scale is given to annotative things</source>
        <translation>una nueva escala de anotación se da a los objetos anotativos</translation>
    </message>
    <message>
        <source>a panel for fingers</source>
        <translation>un panel para dedos</translation>
    </message>
    <message>
        <source>a picture is saved in the file</source>
        <translation>en el archivo se guarda una imagen</translation>
    </message>
    <message>
        <source>a real for programs, kept with the drawing</source>
        <translation>un real para programas, guardado con el dibujo</translation>
    </message>
    <message>
        <source>a second unit is shown</source>
        <translation>se muestra una segunda unidad</translation>
    </message>
    <message>
        <source>a sheet that the printer lacks is told</source>
        <translation>se avisa de un papel que la impresora no tiene</translation>
    </message>
    <message>
        <source>a text for programs</source>
        <translation>un texto para programas</translation>
    </message>
    <message>
        <source>addresses that programs may come from</source>
        <translation>direcciones de las que pueden venir programas</translation>
    </message>
    <message>
        <source>after how long names are completed, in seconds</source>
        <translation>tras cuánto tiempo se completan los nombres, en segundos</translation>
    </message>
    <message>
        <source>after how many milliseconds names are offered</source>
        <translation>tras cuántos milisegundos se ofrecen nombres</translation>
    </message>
    <message>
        <source>all grips of clouds are shown</source>
        <translation>se muestran todos los pinzamientos de las nubes</translation>
    </message>
    <message>
        <source>an empty place picked begins a window</source>
        <translation>un clic en un sitio vacío empieza una ventana</translation>
    </message>
    <message>
        <source>an expression in the status line</source>
        <translation>una expresión en la línea de estado</translation>
    </message>
    <message>
        <source>an integer for programs, kept with the drawing</source>
        <translation>un entero para programas, guardado con el dibujo</translation>
    </message>
    <message>
        <source>an orthographic view brings its coordinate system</source>
        <translation>una vista ortogonal trae su sistema de coordenadas</translation>
    </message>
    <message>
        <source>and a foreground</source>
        <translation>y un primer plano</translation>
    </message>
    <message>
        <source>and opened</source>
        <translation>y se abren</translation>
    </message>
    <message>
        <source>angles count counterclockwise (0) or clockwise (1)</source>
        <translation>los ángulos cuentan en sentido antihorario (0) u horario (1)</translation>
    </message>
    <message>
        <source>annotative things are saved for older programs</source>
        <translation>los objetos anotativos se guardan para programas antiguos</translation>
    </message>
    <message>
        <source>annotative things show at every scale</source>
        <translation>los objetos anotativos se muestran a toda escala</translation>
    </message>
    <message>
        <source>arcs are smooth</source>
        <translation>los arcos son suaves</translation>
    </message>
    <message>
        <source>areas are filled</source>
        <translation>las áreas se rellenan</translation>
    </message>
    <message>
        <source>areas that are hatched at once become a hatch each</source>
        <translation>las áreas sombreadas a la vez dan un sombreado cada una</translation>
    </message>
    <message>
        <source>arrays stay one thing</source>
        <translation>las matrices siguen siendo un solo objeto</translation>
    </message>
    <message>
        <source>arrows outside are left out</source>
        <translation>se omiten las flechas exteriores</translation>
    </message>
    <message>
        <source>attribute definitions may have several lines</source>
        <translation>las definiciones de atributos pueden tener varias líneas</translation>
    </message>
    <message>
        <source>attributes: none are shown (0), as they say (1), all (2)</source>
        <translation>atributos: no se muestra ninguno (0), según digan (1), todos (2)</translation>
    </message>
    <message>
        <source>blocks cannot be edited in place</source>
        <translation>los bloques no se pueden editar in situ</translation>
    </message>
    <message>
        <source>boundaries of hatches are kept</source>
        <translation>se conservan los contornos de sombreados</translation>
    </message>
    <message>
        <source>boxes of the screen menu</source>
        <translation>casillas del menú de pantalla</translation>
    </message>
    <message>
        <source>breaches of standards are told</source>
        <translation>se avisa de incumplimientos de normas</translation>
    </message>
    <message>
        <source>cameras are shown</source>
        <translation>se muestran las cámaras</translation>
    </message>
    <message>
        <source>centre marks have lines</source>
        <translation>las marcas de centro tienen líneas</translation>
    </message>
    <message>
        <source>chains take the style of what they go on from (1)</source>
        <translation>las cadenas toman el estilo de aquello que continúan (1)</translation>
    </message>
    <message>
        <source>chamfers by two distances (0) or by length and angle (1)</source>
        <translation>chaflanes por dos distancias (0) o por longitud y ángulo (1)</translation>
    </message>
    <message>
        <source>changed external drawings are told</source>
        <translation>se avisa de dibujos externos cambiados</translation>
    </message>
    <message>
        <source>changes of external drawings&apos; blocks are told</source>
        <translation>se avisa de cambios en los bloques de dibujos externos</translation>
    </message>
    <message>
        <source>changes of variables are told</source>
        <translation>se avisa de cambios de variables</translation>
    </message>
    <message>
        <source>closed splines have no corner</source>
        <translation>las splines cerradas no tienen esquina</translation>
    </message>
    <message>
        <source>colours of external drawings&apos; entities go by layer</source>
        <translation>los colores de entidades de dibujos externos van por capa</translation>
    </message>
    <message>
        <source>columns of new paragraphs</source>
        <translation>columnas de párrafos nuevos</translation>
    </message>
    <message>
        <source>commands ask for files with a dialog</source>
        <translation>los comandos piden archivos con un diálogo</translation>
    </message>
    <message>
        <source>commands may show dialogs</source>
        <translation>los comandos pueden mostrar diálogos</translation>
    </message>
    <message>
        <source>commands of programs are echoed</source>
        <translation>los comandos de programas se muestran</translation>
    </message>
    <message>
        <source>crashes are reported</source>
        <translation>se informa de las interrupciones del programa</translation>
    </message>
    <message>
        <source>cuts curves off at others</source>
        <translation>corta curvas en otras</translation>
    </message>
    <message>
        <source>dark (0) or light (1)</source>
        <translation>oscuro (0) o claro (1)</translation>
    </message>
    <message>
        <source>date and time as a number: YYYYMMDD.HHMMSS</source>
        <translation>fecha y hora como número: AAAAMMDD.HHMMSS</translation>
    </message>
    <message>
        <source>date and time as days of the Julian calendar</source>
        <translation>fecha y hora como días del calendario juliano</translation>
    </message>
    <message>
        <source>decimals of angles</source>
        <translation>decimales de ángulos</translation>
    </message>
    <message>
        <source>decimals of angles; -1 as DIMDEC</source>
        <translation>decimales de ángulos; -1 como DIMDEC</translation>
    </message>
    <message>
        <source>decimals of dimensions</source>
        <translation>decimales de cotas</translation>
    </message>
    <message>
        <source>decimals of lengths</source>
        <translation>decimales de longitudes</translation>
    </message>
    <message>
        <source>decimals of the second unit</source>
        <translation>decimales de la segunda unidad</translation>
    </message>
    <message>
        <source>decimals of tolerances</source>
        <translation>decimales de tolerancias</translation>
    </message>
    <message>
        <source>decimals of tolerances in the second unit</source>
        <translation>decimales de tolerancias en la segunda unidad</translation>
    </message>
    <message>
        <source>density of surfaces one way</source>
        <translation>densidad de superficies en un sentido</translation>
    </message>
    <message>
        <source>density of surfaces the other way</source>
        <translation>densidad de superficies en el otro sentido</translation>
    </message>
    <message>
        <source>depth of the spatial index</source>
        <translation>profundidad del índice espacial</translation>
    </message>
    <message>
        <source>dialogs begin in the folder used last</source>
        <translation>los diálogos empiezan en la última carpeta usada</translation>
    </message>
    <message>
        <source>dimensions are exploded (0), one thing (1), or follow what they measure (2)</source>
        <translation>las cotas se descomponen (0), son un objeto (1) o siguen lo que miden (2)</translation>
    </message>
    <message>
        <source>dimensions are one thing (1) or exploded (0)</source>
        <translation>las cotas son un objeto (1) o se descomponen (0)</translation>
    </message>
    <message>
        <source>dimensions change while they are dragged</source>
        <translation>las cotas cambian mientras se arrastran</translation>
    </message>
    <message>
        <source>drawings are checked when opened</source>
        <translation>los dibujos se comprueban al abrirlos</translation>
    </message>
    <message>
        <source>drawings have tabs</source>
        <translation>los dibujos tienen fichas</translation>
    </message>
    <message>
        <source>drawings may be opened in part</source>
        <translation>los dibujos se pueden abrir en parte</translation>
    </message>
    <message>
        <source>entities are shown while they are dragged</source>
        <translation>las entidades se muestran mientras se arrastran</translation>
    </message>
    <message>
        <source>entities have handles: always 1</source>
        <translation>las entidades tienen identificadores: siempre 1</translation>
    </message>
    <message>
        <source>entities may be chosen before a command</source>
        <translation>las entidades se pueden designar antes de un comando</translation>
    </message>
    <message>
        <source>entities that are chosen show grips</source>
        <translation>las entidades designadas muestran pinzamientos</translation>
    </message>
    <message>
        <source>erases what is there twice and makes one of lines and arcs that overlap</source>
        <translation>borra lo que está repetido y une líneas y arcos que se solapan</translation>
    </message>
    <message>
        <source>everything but the drawing is hidden</source>
        <translation>se oculta todo menos el dibujo</translation>
    </message>
    <message>
        <source>extension lines have a fixed length</source>
        <translation>las líneas de referencia tienen longitud fija</translation>
    </message>
    <message>
        <source>external drawings are read in part</source>
        <translation>los dibujos externos se leen en parte</translation>
    </message>
    <message>
        <source>fields have a ground</source>
        <translation>los campos tienen fondo</translation>
    </message>
    <message>
        <source>folders that drawings may name files of</source>
        <translation>carpetas cuyos archivos pueden nombrar los dibujos</translation>
    </message>
    <message>
        <source>folders that programs may come from</source>
        <translation>carpetas de las que pueden venir programas</translation>
    </message>
    <message>
        <source>frames of clipped blocks</source>
        <translation>marcos de bloques delimitados</translation>
    </message>
    <message>
        <source>frames of masks</source>
        <translation>marcos de máscaras</translation>
    </message>
    <message>
        <source>frames of objects of other programs</source>
        <translation>marcos de objetos de otros programas</translation>
    </message>
    <message>
        <source>frames of pictures</source>
        <translation>marcos de imágenes</translation>
    </message>
    <message>
        <source>frames of splines and hidden edges are shown</source>
        <translation>se muestran marcos de splines y aristas ocultas</translation>
    </message>
    <message>
        <source>frames of underlays</source>
        <translation>marcos de calcos subyacentes</translation>
    </message>
    <message>
        <source>functions and variables are the drawing&apos;s own</source>
        <translation>funciones y variables son propias del dibujo</translation>
    </message>
    <message>
        <source>further angles of polar tracking</source>
        <translation>otros ángulos de rastreo polar</translation>
    </message>
    <message>
        <source>gaps of boundaries that are taken as closed</source>
        <translation>huecos de contornos que se toman por cerrados</translation>
    </message>
    <message>
        <source>gaps where things cross others that are in front</source>
        <translation>huecos donde los objetos cruzan otros que están delante</translation>
    </message>
    <message>
        <source>gradients have one colour (1) or two (0)</source>
        <translation>los degradados tienen un color (1) o dos (0)</translation>
    </message>
    <message>
        <source>gradients lie in the middle (0) or beside it</source>
        <translation>los degradados están centrados (0) o al lado</translation>
    </message>
    <message>
        <source>grips have tips</source>
        <translation>los pinzamientos tienen sugerencias</translation>
    </message>
    <message>
        <source>grips within blocks are shown</source>
        <translation>se muestran pinzamientos dentro de bloques</translation>
    </message>
    <message>
        <source>groups and hatches with their boundary are chosen as one</source>
        <translation>los grupos y los sombreados con su contorno se designan juntos</translation>
    </message>
    <message>
        <source>half the size of the box of object snap, in pixels</source>
        <translation>medio tamaño de la caja de referencia a objetos, en píxeles</translation>
    </message>
    <message>
        <source>half the size of the box that picks, in pixels</source>
        <translation>medio tamaño de la caja de selección, en píxeles</translation>
    </message>
    <message>
        <source>hatches follow their boundary</source>
        <translation>los sombreados siguen su contorno</translation>
    </message>
    <message>
        <source>hatches may have linetypes</source>
        <translation>los sombreados pueden tener tipos de línea</translation>
    </message>
    <message>
        <source>hatches of the user&apos;s lines cross</source>
        <translation>los sombreados de líneas del usuario se cruzan</translation>
    </message>
    <message>
        <source>how angles are shown: degrees, minutes, gradians, radians, surveyor&apos;s units</source>
        <translation>cómo se muestran los ángulos: grados, minutos, centesimales, radianes, geodésicas</translation>
    </message>
    <message>
        <source>how areas are picked</source>
        <translation>cómo se designan áreas</translation>
    </message>
    <message>
        <source>how closely splines follow sketches</source>
        <translation>con qué exactitud siguen las splines los bocetos</translation>
    </message>
    <message>
        <source>how clouds are drawn</source>
        <translation>cómo se dibujan las nubes</translation>
    </message>
    <message>
        <source>how edges meet</source>
        <translation>cómo se unen las aristas</translation>
    </message>
    <message>
        <source>how exactly hidden lines are found</source>
        <translation>con qué exactitud se hallan líneas ocultas</translation>
    </message>
    <message>
        <source>how external drawings&apos; names are bound: with $ (0) or as if inserted (1)</source>
        <translation>cómo se unen los nombres de dibujos externos: con $ (0) o como insertados (1)</translation>
    </message>
    <message>
        <source>how faces and edges are shaded</source>
        <translation>cómo se sombrean caras y aristas</translation>
    </message>
    <message>
        <source>how far TRIM and EXTEND of hatches go</source>
        <translation>hasta dónde llegan TRIM y EXTEND de sombreados</translation>
    </message>
    <message>
        <source>how far apart ends may be that JOIN puts together</source>
        <translation>a qué distancia pueden estar los extremos que une JOIN</translation>
    </message>
    <message>
        <source>how far centre lines go beyond</source>
        <translation>cuánto sobresalen las líneas de centro</translation>
    </message>
    <message>
        <source>how far extension lines go beyond the line</source>
        <translation>cuánto sobresalen las líneas de referencia de la línea</translation>
    </message>
    <message>
        <source>how far extension lines stay from what is measured</source>
        <translation>a qué distancia de lo medido quedan las líneas de referencia</translation>
    </message>
    <message>
        <source>how far new entities rise above their plane</source>
        <translation>cuánto se elevan las entidades nuevas sobre su plano</translation>
    </message>
    <message>
        <source>how far the line goes beyond extension lines</source>
        <translation>cuánto sobresale la línea de las líneas de referencia</translation>
    </message>
    <message>
        <source>how far the text stands from the line</source>
        <translation>a qué distancia de la línea está el texto</translation>
    </message>
    <message>
        <source>how far tracking lines go</source>
        <translation>hasta dónde llegan las líneas de rastreo</translation>
    </message>
    <message>
        <source>how fit points share the knots</source>
        <translation>cómo reparten los nudos los puntos de ajuste</translation>
    </message>
    <message>
        <source>how fractions are written</source>
        <translation>cómo se escriben las fracciones</translation>
    </message>
    <message>
        <source>how grips offer more than one thing</source>
        <translation>cómo ofrecen los pinzamientos más de una opción</translation>
    </message>
    <message>
        <source>how large points look</source>
        <translation>qué tamaño tienen los puntos</translation>
    </message>
    <message>
        <source>how lengths are shown: scientific, decimal, engineering, architectural, fractional</source>
        <translation>cómo se muestran las longitudes: científico, decimal, ingeniería, arquitectura, fraccionario</translation>
    </message>
    <message>
        <source>how lofted surfaces are shaped, as bits</source>
        <translation>qué forma tienen las superficies solevadas, en bits</translation>
    </message>
    <message>
        <source>how lofted surfaces leave their sections</source>
        <translation>cómo salen las superficies solevadas de sus secciones</translation>
    </message>
    <message>
        <source>how long</source>
        <translation>qué largo</translation>
    </message>
    <message>
        <source>how long smooth changes of the view take, in milliseconds</source>
        <translation>cuánto duran los cambios suaves de vista, en milisegundos</translation>
    </message>
    <message>
        <source>how long the drawing was worked on</source>
        <translation>cuánto tiempo se ha trabajado en el dibujo</translation>
    </message>
    <message>
        <source>how long the right button is held for a menu</source>
        <translation>cuánto se mantiene el botón derecho para un menú</translation>
    </message>
    <message>
        <source>how many corners a face may have</source>
        <translation>cuántas esquinas puede tener una cara</translation>
    </message>
    <message>
        <source>how many dimensions are shown while a grip is pulled</source>
        <translation>cuántas cotas se muestran al tirar de un pinzamiento</translation>
    </message>
    <message>
        <source>how many entities the panel of properties takes</source>
        <translation>cuántas entidades toma el panel de propiedades</translation>
    </message>
    <message>
        <source>how many lines a hatch may have</source>
        <translation>cuántas líneas puede tener un sombreado</translation>
    </message>
    <message>
        <source>how many lines of input are remembered</source>
        <translation>cuántas líneas de entrada se recuerdan</translation>
    </message>
    <message>
        <source>how many lines of the grid lie between two stronger ones</source>
        <translation>cuántas líneas de rejilla hay entre dos más marcadas</translation>
    </message>
    <message>
        <source>how many names are listed in order</source>
        <translation>cuántos nombres se listan en orden</translation>
    </message>
    <message>
        <source>how many sides POLYGON proposes</source>
        <translation>cuántos lados propone POLYGON</translation>
    </message>
    <message>
        <source>how many turns HELIX proposes</source>
        <translation>cuántas vueltas propone HELIX</translation>
    </message>
    <message>
        <source>how many viewports may show something</source>
        <translation>cuántas ventanas pueden mostrar algo</translation>
    </message>
    <message>
        <source>how much</source>
        <translation>cuánto</translation>
    </message>
    <message>
        <source>how much external drawings fade</source>
        <translation>cuánto se difuminan los dibujos externos</translation>
    </message>
    <message>
        <source>how much light is scattered</source>
        <translation>cuánta luz se dispersa</translation>
    </message>
    <message>
        <source>how much locked layers fade</source>
        <translation>cuánto se difuminan las capas bloqueadas</translation>
    </message>
    <message>
        <source>how much of a file may be waste before it is saved whole</source>
        <translation>cuánto de un archivo puede sobrar antes de guardarlo entero</translation>
    </message>
    <message>
        <source>how much the wheel zooms</source>
        <translation>cuánto amplía la rueda</translation>
    </message>
    <message>
        <source>how much what is not edited fades</source>
        <translation>cuánto se difumina lo que no se edita</translation>
    </message>
    <message>
        <source>how names are completed, as bits</source>
        <translation>cómo se completan los nombres, en bits</translation>
    </message>
    <message>
        <source>how often dragging is drawn again with regeneration</source>
        <translation>cada cuánto se redibuja el arrastre con regeneración</translation>
    </message>
    <message>
        <source>how often dragging is drawn again without</source>
        <translation>cada cuánto se redibuja el arrastre sin ella</translation>
    </message>
    <message>
        <source>how paragraphs are shown while edited</source>
        <translation>cómo se muestran los párrafos al editarlos</translation>
    </message>
    <message>
        <source>how places on earth are shown</source>
        <translation>cómo se muestran los lugares de la tierra</translation>
    </message>
    <message>
        <source>how points look</source>
        <translation>qué aspecto tienen los puntos</translation>
    </message>
    <message>
        <source>how polar and object tracking work, as bits</source>
        <translation>cómo funcionan el rastreo polar y el de objetos, en bits</translation>
    </message>
    <message>
        <source>how programs are tested, as bits</source>
        <translation>cómo se prueban los programas, en bits</translation>
    </message>
    <message>
        <source>how sheets are turned</source>
        <translation>cómo se giran las hojas</translation>
    </message>
    <message>
        <source>how smooth letters are plotted</source>
        <translation>con qué suavidad se trazan las letras</translation>
    </message>
    <message>
        <source>how smooth round things are shown</source>
        <translation>con qué suavidad se muestra lo redondo</translation>
    </message>
    <message>
        <source>how stacked texts are aligned</source>
        <translation>cómo se alinean los textos apilados</translation>
    </message>
    <message>
        <source>how surfaces are smoothed</source>
        <translation>cómo se suavizan las superficies</translation>
    </message>
    <message>
        <source>how text and arrows share the room, in the old form</source>
        <translation>cómo se reparten el sitio texto y flechas, en la forma antigua</translation>
    </message>
    <message>
        <source>how texts are aligned</source>
        <translation>cómo se alinean los textos</translation>
    </message>
    <message>
        <source>how texts are edited</source>
        <translation>cómo se editan los textos</translation>
    </message>
    <message>
        <source>how the dialog of hatches is shown</source>
        <translation>cómo se muestra el diálogo de sombreados</translation>
    </message>
    <message>
        <source>how the grid is shown, as bits</source>
        <translation>cómo se muestra la rejilla, en bits</translation>
    </message>
    <message>
        <source>how the status line shows the pointer&apos;s place</source>
        <translation>cómo muestra la línea de estado el lugar del cursor</translation>
    </message>
    <message>
        <source>how undo works, as bits</source>
        <translation>cómo funciona deshacer, en bits</translation>
    </message>
    <message>
        <source>how unknown entities are shown</source>
        <translation>cómo se muestran entidades desconocidas</translation>
    </message>
    <message>
        <source>how well objects of other programs are plotted</source>
        <translation>con qué calidad se trazan objetos de otros programas</translation>
    </message>
    <message>
        <source>how well pictures are shown</source>
        <translation>con qué calidad se muestran las imágenes</translation>
    </message>
    <message>
        <source>how what is under the pointer is shown</source>
        <translation>cómo se muestra lo que está bajo el cursor</translation>
    </message>
    <message>
        <source>how wide lines end</source>
        <translation>cómo terminan las líneas gruesas</translation>
    </message>
    <message>
        <source>how wide lines meet</source>
        <translation>cómo se unen las líneas gruesas</translation>
    </message>
    <message>
        <source>indices of layers and places are kept</source>
        <translation>se guardan índices de capas y lugares</translation>
    </message>
    <message>
        <source>islands are looked for</source>
        <translation>se buscan islas</translation>
    </message>
    <message>
        <source>its colour</source>
        <translation>su color</translation>
    </message>
    <message>
        <source>kept as it is set, for programs: nothing here depends on it</source>
        <translation>se conserva tal como se define, para programas: nada depende aquí de ello</translation>
    </message>
    <message>
        <source>kept for programs that ask for it</source>
        <translation>se conserva para los programas que lo pidan</translation>
    </message>
    <message>
        <source>keys that override a mode for a moment</source>
        <translation>teclas que sustituyen un modo por un momento</translation>
    </message>
    <message>
        <source>layers of external drawings keep what is set here</source>
        <translation>las capas de dibujos externos conservan lo definido aquí</translation>
    </message>
    <message>
        <source>layers without entities are shown so</source>
        <translation>las capas sin entidades se muestran como tales</translation>
    </message>
    <message>
        <source>layouts have tabs</source>
        <translation>las presentaciones tienen fichas</translation>
    </message>
    <message>
        <source>lengthens curves up to others</source>
        <translation>alarga curvas hasta otras</translation>
    </message>
    <message>
        <source>lengths are shown as they are typed</source>
        <translation>las longitudes se muestran como se escriben</translation>
    </message>
    <message>
        <source>letters are filled when plotted</source>
        <translation>las letras se rellenan al trazar</translation>
    </message>
    <message>
        <source>limits are shown</source>
        <translation>se muestran los límites</translation>
    </message>
    <message>
        <source>line spacing at least (1) or exactly (2)</source>
        <translation>interlineado mínimo (1) o exacto (2)</translation>
    </message>
    <message>
        <source>lines are drawn smoothly</source>
        <translation>las líneas se dibujan suavizadas</translation>
    </message>
    <message>
        <source>lines between two corners of a spline-fitted polyline</source>
        <translation>líneas entre dos esquinas de una polilínea suavizada como spline</translation>
    </message>
    <message>
        <source>lines of history that the command line shows</source>
        <translation>líneas de historial que muestra la línea de comandos</translation>
    </message>
    <message>
        <source>lines of surfaces one way</source>
        <translation>líneas de superficies en un sentido</translation>
    </message>
    <message>
        <source>lines of surfaces the other way</source>
        <translation>líneas de superficies en el otro sentido</translation>
    </message>
    <message>
        <source>lines on round solids</source>
        <translation>líneas en sólidos redondos</translation>
    </message>
    <message>
        <source>lines where solids meet are shown</source>
        <translation>se muestran líneas donde se encuentran sólidos</translation>
    </message>
    <message>
        <source>linetypes in model space take the annotation scale</source>
        <translation>los tipos de línea del espacio modelo toman la escala de anotación</translation>
    </message>
    <message>
        <source>linetypes in viewports take the scale of the sheet</source>
        <translation>los tipos de línea en ventanas toman la escala de la presentación</translation>
    </message>
    <message>
        <source>linetypes run through the corners of polylines</source>
        <translation>los tipos de línea atraviesan las esquinas de polilíneas</translation>
    </message>
    <message>
        <source>lineweights are shown</source>
        <translation>se muestran los grosores de línea</translation>
    </message>
    <message>
        <source>lineweights are shown in inches (0) or millimetres (1)</source>
        <translation>los grosores de línea se muestran en pulgadas (0) o milímetros (1)</translation>
    </message>
    <message>
        <source>makes one curve of several that meet or lie on one line or circle</source>
        <translation>hace una curva de varias que se tocan o están en una línea o círculo</translation>
    </message>
    <message>
        <source>makes regions of closed loops</source>
        <translation>crea regiones de bucles cerrados</translation>
    </message>
    <message>
        <source>marks and tips of object snap, polar and object tracking, as bits</source>
        <translation>marcas y sugerencias de referencia a objetos y de rastreo polar y de objetos, en bits</translation>
    </message>
    <message>
        <source>marks of centres: their size, negative with lines, 0 for none</source>
        <translation>marcas de centro: su tamaño, negativo con líneas, 0 para ninguna</translation>
    </message>
    <message>
        <source>marks where points were picked</source>
        <translation>marcas donde se designaron puntos</translation>
    </message>
    <message>
        <source>measures areas and perimeters of corners and curves</source>
        <translation>mide áreas y perímetros de esquinas y curvas</translation>
    </message>
    <message>
        <source>measures curves and makes them longer or shorter</source>
        <translation>mide curvas y las alarga o acorta</translation>
    </message>
    <message>
        <source>menus follow the command</source>
        <translation>los menús siguen al comando</translation>
    </message>
    <message>
        <source>menus of the right button, as bits: at rest, for what is chosen, at prompts, with options, held</source>
        <translation>menús del botón derecho, en bits: en reposo, para lo designado, en solicitudes, con opciones, al mantener pulsado</translation>
    </message>
    <message>
        <source>milliseconds since the machine was started</source>
        <translation>milisegundos desde que arrancó la máquina</translation>
    </message>
    <message>
        <source>minutes between automatic saves</source>
        <translation>minutos entre guardados automáticos</translation>
    </message>
    <message>
        <source>model space is shown (1) or a layout (0)</source>
        <translation>se muestra el espacio modelo (1) o una presentación (0)</translation>
    </message>
    <message>
        <source>names may be long and have blanks</source>
        <translation>los nombres pueden ser largos y llevar espacios</translation>
    </message>
    <message>
        <source>names of applications come with external drawings</source>
        <translation>los nombres de aplicaciones vienen con dibujos externos</translation>
    </message>
    <message>
        <source>new drawings are imperial (0) or metric (1)</source>
        <translation>los dibujos nuevos son imperiales (0) o métricos (1)</translation>
    </message>
    <message>
        <source>new external drawings are attached (0) or overlaid (1)</source>
        <translation>los dibujos externos nuevos se enlazan (0) o se superponen (1)</translation>
    </message>
    <message>
        <source>new external drawings have no path (0), a relative (1) or a full one (2)</source>
        <translation>los dibujos externos nuevos no tienen ruta (0), una relativa (1) o una completa (2)</translation>
    </message>
    <message>
        <source>new hatches are annotative</source>
        <translation>los sombreados nuevos son anotativos</translation>
    </message>
    <message>
        <source>new layers are looked for</source>
        <translation>se buscan capas nuevas</translation>
    </message>
    <message>
        <source>new layouts get a viewport</source>
        <translation>las presentaciones nuevas reciben una ventana</translation>
    </message>
    <message>
        <source>new texts are in capitals</source>
        <translation>los textos nuevos van en mayúsculas</translation>
    </message>
    <message>
        <source>notes are shown in the status bar</source>
        <translation>las notas se muestran en la barra de estado</translation>
    </message>
    <message>
        <source>object snap finds hatches</source>
        <translation>la referencia a objetos halla sombreados</translation>
    </message>
    <message>
        <source>object snap finds underlays</source>
        <translation>la referencia a objetos halla calcos subyacentes</translation>
    </message>
    <message>
        <source>object snap takes the height of the user&apos;s plane</source>
        <translation>la referencia a objetos toma la altura del plano del usuario</translation>
    </message>
    <message>
        <source>object snaps in space, as bits</source>
        <translation>referencias a objetos en el espacio, en bits</translation>
    </message>
    <message>
        <source>objects of other programs are hidden</source>
        <translation>los objetos de otros programas se ocultan</translation>
    </message>
    <message>
        <source>one drawing at a time</source>
        <translation>un dibujo a la vez</translation>
    </message>
    <message>
        <source>one text is edited (1) or several (0)</source>
        <translation>se edita un texto (1) o varios (0)</translation>
    </message>
    <message>
        <source>patterns are mirrored with hatches</source>
        <translation>los patrones se reflejan con los sombreados</translation>
    </message>
    <message>
        <source>pictures are shown whole when chosen</source>
        <translation>las imágenes se muestran enteras al designarlas</translation>
    </message>
    <message>
        <source>pictures have a ground</source>
        <translation>las imágenes tienen fondo</translation>
    </message>
    <message>
        <source>pictures of unknown entities are saved</source>
        <translation>se guardan imágenes de entidades desconocidas</translation>
    </message>
    <message>
        <source>plot styles go by colour (1) or name (0)</source>
        <translation>los estilos de trazado van por color (1) o por nombre (0)</translation>
    </message>
    <message>
        <source>points must be within the limits</source>
        <translation>los puntos deben estar dentro de los límites</translation>
    </message>
    <message>
        <source>points typed beside the pointer are polar (0) or cartesian (1)</source>
        <translation>los puntos escritos junto al cursor son polares (0) o cartesianos (1)</translation>
    </message>
    <message>
        <source>points typed beside the pointer are relative (0) or absolute (1)</source>
        <translation>los puntos escritos junto al cursor son relativos (0) o absolutos (1)</translation>
    </message>
    <message>
        <source>polylines are made light: never (0), new ones (1), old ones too (2)</source>
        <translation>las polilíneas se aligeran: nunca (0), las nuevas (1), también las antiguas (2)</translation>
    </message>
    <message>
        <source>programs from elsewhere: loaded (0), asked for (1), refused (2); trusted folders decide here</source>
        <translation>programas de otro lugar: se cargan (0), se pregunta (1), se rechazan (2); aquí deciden las carpetas de confianza</translation>
    </message>
    <message>
        <source>prompts are not printed</source>
        <translation>los mensajes de solicitud no se imprimen</translation>
    </message>
    <message>
        <source>prompts are shown beside the pointer</source>
        <translation>los mensajes de solicitud se muestran junto al cursor</translation>
    </message>
    <message>
        <source>prompts beside the pointer, as bits</source>
        <translation>mensajes de solicitud junto al cursor, en bits</translation>
    </message>
    <message>
        <source>puts points or blocks at steps along a curve</source>
        <translation>pone puntos o bloques a intervalos a lo largo de una curva</translation>
    </message>
    <message>
        <source>puts points or blocks that cut a curve into equal parts</source>
        <translation>pone puntos o bloques que dividen una curva en partes iguales</translation>
    </message>
    <message>
        <source>quick properties are shown</source>
        <translation>se muestran las propiedades rápidas</translation>
    </message>
    <message>
        <source>regeneration on several processors</source>
        <translation>regeneración en varios procesadores</translation>
    </message>
    <message>
        <source>reversing a polyline swaps its widths</source>
        <translation>invertir una polilínea intercambia sus grosores</translation>
    </message>
    <message>
        <source>saving keeps a backup</source>
        <translation>al guardar se conserva una copia de seguridad</translation>
    </message>
    <message>
        <source>scripts plot without questions</source>
        <translation>los scripts trazan sin preguntas</translation>
    </message>
    <message>
        <source>silhouettes of solids are drawn</source>
        <translation>se dibujan siluetas de sólidos</translation>
    </message>
    <message>
        <source>sketches become lines (0), polylines (1), splines (2)</source>
        <translation>los bocetos dan líneas (0), polilíneas (1), splines (2)</translation>
    </message>
    <message>
        <source>snap goes by the grid (0) or by polar tracking (1)</source>
        <translation>el forzado va por rejilla (0) o por rastreo polar (1)</translation>
    </message>
    <message>
        <source>snap is square (0) or isometric (1)</source>
        <translation>el forzado es rectangular (0) o isométrico (1)</translation>
    </message>
    <message>
        <source>solids are checked</source>
        <translation>se comprueban los sólidos</translation>
    </message>
    <message>
        <source>solids keep their history</source>
        <translation>los sólidos guardan su historial</translation>
    </message>
    <message>
        <source>spline-fitted polylines are quadratic (5) or cubic (6)</source>
        <translation>las polilíneas suavizadas como spline son cuadráticas (5) o cúbicas (6)</translation>
    </message>
    <message>
        <source>splines become polylines of lines (0) or arcs (1)</source>
        <translation>las splines dan polilíneas de líneas (0) o arcos (1)</translation>
    </message>
    <message>
        <source>splines go by fit points (0) or control points (1)</source>
        <translation>las splines van por puntos de ajuste (0) o de control (1)</translation>
    </message>
    <message>
        <source>start-up programs are loaded into every drawing (1) or the first (0)</source>
        <translation>los programas de inicio se cargan en cada dibujo (1) o en el primero (0)</translation>
    </message>
    <message>
        <source>steps of a walk in a second</source>
        <translation>pasos de un paseo por segundo</translation>
    </message>
    <message>
        <source>such settings are shown</source>
        <translation>esos parámetros se muestran</translation>
    </message>
    <message>
        <source>symbols are shown in the status bar</source>
        <translation>se muestran símbolos en la barra de estado</translation>
    </message>
    <message>
        <source>takes a part out of a curve, or cuts it in two</source>
        <translation>quita una parte de una curva, o la corta en dos</translation>
    </message>
    <message>
        <source>texts are kept inside</source>
        <translation>los textos se mantienen dentro</translation>
    </message>
    <message>
        <source>texts are mirrored with the drawing</source>
        <translation>los textos se reflejan con el dibujo</translation>
    </message>
    <message>
        <source>texts are read the other way</source>
        <translation>los textos se leen al revés</translation>
    </message>
    <message>
        <source>texts are shown as boxes</source>
        <translation>los textos se muestran como rectángulos</translation>
    </message>
    <message>
        <source>texts hide and are hidden</source>
        <translation>los textos ocultan y se ocultan</translation>
    </message>
    <message>
        <source>texts inside are level</source>
        <translation>los textos de dentro son horizontales</translation>
    </message>
    <message>
        <source>texts outside are level</source>
        <translation>los textos de fuera son horizontales</translation>
    </message>
    <message>
        <source>the address of the browser</source>
        <translation>la dirección del navegador</translation>
    </message>
    <message>
        <source>the angle of gradients</source>
        <translation>el ángulo de los degradados</translation>
    </message>
    <message>
        <source>the angle of hatches</source>
        <translation>el ángulo de los sombreados</translation>
    </message>
    <message>
        <source>the angle of the jog of large radii</source>
        <translation>el ángulo del recodo de radios grandes</translation>
    </message>
    <message>
        <source>the angle that ROTATE proposes</source>
        <translation>el ángulo que propone ROTATE</translation>
    </message>
    <message>
        <source>the angle that UCS proposes for a turn</source>
        <translation>el ángulo que propone UCS para un giro</translation>
    </message>
    <message>
        <source>the arcs of clouds differ</source>
        <translation>los arcos de las nubes son distintos</translation>
    </message>
    <message>
        <source>the area that was measured last</source>
        <translation>el área que se midió por última vez</translation>
    </message>
    <message>
        <source>the arrow at both ends</source>
        <translation>la flecha en ambos extremos</translation>
    </message>
    <message>
        <source>the arrow at the first end</source>
        <translation>la flecha en el primer extremo</translation>
    </message>
    <message>
        <source>the arrow at the second end</source>
        <translation>la flecha en el segundo extremo</translation>
    </message>
    <message>
        <source>the arrow of leaders</source>
        <translation>la flecha de las directrices</translation>
    </message>
    <message>
        <source>the bar of navigation is shown</source>
        <translation>se muestra la barra de navegación</translation>
    </message>
    <message>
        <source>the base point of the drawing</source>
        <translation>el punto base del dibujo</translation>
    </message>
    <message>
        <source>the blank key ends a line of a list</source>
        <translation>la barra espaciadora termina una línea de una lista</translation>
    </message>
    <message>
        <source>the block that INSERT proposes</source>
        <translation>el bloque que propone INSERT</translation>
    </message>
    <message>
        <source>the block that is edited in place</source>
        <translation>el bloque que se edita in situ</translation>
    </message>
    <message>
        <source>the blocks inserted last</source>
        <translation>los últimos bloques insertados</translation>
    </message>
    <message>
        <source>the box of object snap is shown</source>
        <translation>se muestra la caja de referencia a objetos</translation>
    </message>
    <message>
        <source>the chamfer angle</source>
        <translation>el ángulo de chaflán</translation>
    </message>
    <message>
        <source>the chamfer length</source>
        <translation>la longitud de chaflán</translation>
    </message>
    <message>
        <source>the code page of the machine</source>
        <translation>la página de códigos de la máquina</translation>
    </message>
    <message>
        <source>the colour of crossing windows</source>
        <translation>el color de las ventanas de captura</translation>
    </message>
    <message>
        <source>the colour of dimension lines</source>
        <translation>el color de las líneas de cota</translation>
    </message>
    <message>
        <source>the colour of extension lines</source>
        <translation>el color de las líneas de referencia</translation>
    </message>
    <message>
        <source>the colour of grips</source>
        <translation>el color de los pinzamientos</translation>
    </message>
    <message>
        <source>the colour of hidden lines</source>
        <translation>el color de las líneas ocultas</translation>
    </message>
    <message>
        <source>the colour of lines where solids meet</source>
        <translation>el color de las líneas donde se encuentran sólidos</translation>
    </message>
    <message>
        <source>the colour of new entities</source>
        <translation>el color de las entidades nuevas</translation>
    </message>
    <message>
        <source>the colour of new hatches; &quot;.&quot; is the current one</source>
        <translation>el color de los sombreados nuevos; &quot;.&quot; es el actual</translation>
    </message>
    <message>
        <source>the colour of texts</source>
        <translation>el color de los textos</translation>
    </message>
    <message>
        <source>the colour of the grip that is pulled</source>
        <translation>el color del pinzamiento del que se tira</translation>
    </message>
    <message>
        <source>the colour of the grip under the pointer</source>
        <translation>el color del pinzamiento bajo el cursor</translation>
    </message>
    <message>
        <source>the colour of the grips of dynamic blocks</source>
        <translation>el color de los pinzamientos de bloques dinámicos</translation>
    </message>
    <message>
        <source>the colour of windows of selections</source>
        <translation>el color de las ventanas de selección</translation>
    </message>
    <message>
        <source>the command line is written to a file</source>
        <translation>la línea de comandos se escribe en un archivo</translation>
    </message>
    <message>
        <source>the commands that are under way</source>
        <translation>los comandos en curso</translation>
    </message>
    <message>
        <source>the control key goes through what lies above each other</source>
        <translation>la tecla Control recorre lo que está uno encima de otro</translation>
    </message>
    <message>
        <source>the cube of views is shown</source>
        <translation>se muestra el cubo de vistas</translation>
    </message>
    <message>
        <source>the cube of views is shown in flat views</source>
        <translation>el cubo de vistas se muestra en vistas planas</translation>
    </message>
    <message>
        <source>the current dimension style</source>
        <translation>el estilo de cota actual</translation>
    </message>
    <message>
        <source>the current dimension style is annotative</source>
        <translation>el estilo de cota actual es anotativo</translation>
    </message>
    <message>
        <source>the decimal separator</source>
        <translation>el separador decimal</translation>
    </message>
    <message>
        <source>the default lineweight, in hundredths of a millimetre</source>
        <translation>el grosor de línea por defecto, en centésimas de milímetro</translation>
    </message>
    <message>
        <source>the degree of new splines</source>
        <translation>el grado de las splines nuevas</translation>
    </message>
    <message>
        <source>the dictionary of spelling</source>
        <translation>el diccionario ortográfico</translation>
    </message>
    <message>
        <source>the distance of dimension lines above each other</source>
        <translation>la distancia entre líneas de cota superpuestas</translation>
    </message>
    <message>
        <source>the distance of the back clipping plane</source>
        <translation>la distancia del plano delimitador posterior</translation>
    </message>
    <message>
        <source>the distance of the front clipping plane</source>
        <translation>la distancia del plano delimitador frontal</translation>
    </message>
    <message>
        <source>the distance of the user&apos;s lines</source>
        <translation>la distancia de las líneas del usuario</translation>
    </message>
    <message>
        <source>the distance that OFFSET proposes; negative for through a point</source>
        <translation>la distancia que propone OFFSET; negativa para pasar por un punto</translation>
    </message>
    <message>
        <source>the distance that was measured last</source>
        <translation>la última distancia medida</translation>
    </message>
    <message>
        <source>the distances of the grid</source>
        <translation>las distancias de la rejilla</translation>
    </message>
    <message>
        <source>the drawing behaves as annotative when inserted</source>
        <translation>el dibujo se comporta como anotativo al insertarlo</translation>
    </message>
    <message>
        <source>the drawing has a name</source>
        <translation>el dibujo tiene un nombre</translation>
    </message>
    <message>
        <source>the drawing may be edited in place by others</source>
        <translation>otros pueden editar in situ el dibujo</translation>
    </message>
    <message>
        <source>the drawing may be written</source>
        <translation>el dibujo se puede escribir</translation>
    </message>
    <message>
        <source>the drawing takes imperial (0) or metric (1) patterns</source>
        <translation>el dibujo toma patrones imperiales (0) o métricos (1)</translation>
    </message>
    <message>
        <source>the drawing was opened whole</source>
        <translation>el dibujo se abrió entero</translation>
    </message>
    <message>
        <source>the drawing&apos;s code page</source>
        <translation>la página de códigos del dibujo</translation>
    </message>
    <message>
        <source>the drawing&apos;s file name</source>
        <translation>el nombre de archivo del dibujo</translation>
    </message>
    <message>
        <source>the drawing&apos;s folder</source>
        <translation>la carpeta del dibujo</translation>
    </message>
    <message>
        <source>the drawing&apos;s unit of length</source>
        <translation>la unidad de longitud del dibujo</translation>
    </message>
    <message>
        <source>the editor of paragraphs</source>
        <translation>el editor de párrafos</translation>
    </message>
    <message>
        <source>the encoding of text files</source>
        <translation>la codificación de los archivos de texto</translation>
    </message>
    <message>
        <source>the end direction of the arc drawn last</source>
        <translation>la dirección final del último arco dibujado</translation>
    </message>
    <message>
        <source>the ends have arrows of their own</source>
        <translation>los extremos tienen flechas propias</translation>
    </message>
    <message>
        <source>the factor of a unit&apos;s parts</source>
        <translation>el factor de las partes de una unidad</translation>
    </message>
    <message>
        <source>the factor of lengths</source>
        <translation>el factor de las longitudes</translation>
    </message>
    <message>
        <source>the factor of the line spacing of paragraphs</source>
        <translation>el factor de interlineado de los párrafos</translation>
    </message>
    <message>
        <source>the factor of the second unit</source>
        <translation>el factor de la segunda unidad</translation>
    </message>
    <message>
        <source>the factor of the second unit&apos;s parts</source>
        <translation>el factor de las partes de la segunda unidad</translation>
    </message>
    <message>
        <source>the factor that SCALE proposes</source>
        <translation>el factor que propone SCALE</translation>
    </message>
    <message>
        <source>the far corner of the limits</source>
        <translation>la esquina lejana de los límites</translation>
    </message>
    <message>
        <source>the far corner of the virtual screen</source>
        <translation>la esquina lejana de la pantalla virtual</translation>
    </message>
    <message>
        <source>the far corner of what the space shows</source>
        <translation>la esquina lejana de lo que muestra el espacio</translation>
    </message>
    <message>
        <source>the file of the command line</source>
        <translation>el archivo de la línea de comandos</translation>
    </message>
    <message>
        <source>the file of the last automatic save</source>
        <translation>el archivo del último guardado automático</translation>
    </message>
    <message>
        <source>the file of the menu</source>
        <translation>el archivo del menú</translation>
    </message>
    <message>
        <source>the file that says which font replaces which</source>
        <translation>el archivo que indica qué fuente sustituye a cuál</translation>
    </message>
    <message>
        <source>the file that was saved last</source>
        <translation>el último archivo guardado</translation>
    </message>
    <message>
        <source>the first chamfer distance</source>
        <translation>la primera distancia de chaflán</translation>
    </message>
    <message>
        <source>the first colour of gradients</source>
        <translation>el primer color de los degradados</translation>
    </message>
    <message>
        <source>the first extension line is left out</source>
        <translation>se omite la primera línea de referencia</translation>
    </message>
    <message>
        <source>the first half of the line is left out</source>
        <translation>se omite la primera mitad de la línea</translation>
    </message>
    <message>
        <source>the focal length of perspective views</source>
        <translation>la distancia focal de las vistas en perspectiva</translation>
    </message>
    <message>
        <source>the folder of automatic saves</source>
        <translation>la carpeta de los guardados automáticos</translation>
    </message>
    <message>
        <source>the folder of such files</source>
        <translation>la carpeta de esos archivos</translation>
    </message>
    <message>
        <source>the folder of temporary files</source>
        <translation>la carpeta de archivos temporales</translation>
    </message>
    <message>
        <source>the folder of the user&apos;s data</source>
        <translation>la carpeta de datos del usuario</translation>
    </message>
    <message>
        <source>the folder of the user&apos;s documents</source>
        <translation>la carpeta de documentos del usuario</translation>
    </message>
    <message>
        <source>the folder of what stays on this machine</source>
        <translation>la carpeta de lo que se queda en esta máquina</translation>
    </message>
    <message>
        <source>the folder that the program was started in</source>
        <translation>la carpeta en la que se inició el programa</translation>
    </message>
    <message>
        <source>the folders that files are looked for in</source>
        <translation>las carpetas en las que se buscan archivos</translation>
    </message>
    <message>
        <source>the font for those that are missing</source>
        <translation>la fuente para las que faltan</translation>
    </message>
    <message>
        <source>the format of angles</source>
        <translation>el formato de los ángulos</translation>
    </message>
    <message>
        <source>the format of lengths</source>
        <translation>el formato de las longitudes</translation>
    </message>
    <message>
        <source>the format of lengths, in the old form</source>
        <translation>el formato de las longitudes, en la forma antigua</translation>
    </message>
    <message>
        <source>the format of the second unit</source>
        <translation>el formato de la segunda unidad</translation>
    </message>
    <message>
        <source>the frames of pictures, underlays and clips</source>
        <translation>los marcos de imágenes, calcos subyacentes y delimitaciones</translation>
    </message>
    <message>
        <source>the gap between a multileader&apos;s landing and its text</source>
        <translation>el hueco entre la línea de conexión de una directriz múltiple y su texto</translation>
    </message>
    <message>
        <source>the gap of centre marks</source>
        <translation>el hueco de las marcas de centro</translation>
    </message>
    <message>
        <source>the grid is shown</source>
        <translation>se muestra la rejilla</translation>
    </message>
    <message>
        <source>the ground of hatches</source>
        <translation>el fondo de los sombreados</translation>
    </message>
    <message>
        <source>the ground of texts</source>
        <translation>el fondo de los textos</translation>
    </message>
    <message>
        <source>the handle that comes next</source>
        <translation>el identificador siguiente</translation>
    </message>
    <message>
        <source>the height of POLYSOLID</source>
        <translation>la altura de POLYSOLID</translation>
    </message>
    <message>
        <source>the height of new cameras</source>
        <translation>la altura de las cámaras nuevas</translation>
    </message>
    <message>
        <source>the height of new entities above the user&apos;s plane</source>
        <translation>la altura de las entidades nuevas sobre el plano del usuario</translation>
    </message>
    <message>
        <source>the height of new entities on sheets</source>
        <translation>la altura de las entidades nuevas en presentaciones</translation>
    </message>
    <message>
        <source>the height of texts</source>
        <translation>la altura de los textos</translation>
    </message>
    <message>
        <source>the height of the view</source>
        <translation>la altura de la vista</translation>
    </message>
    <message>
        <source>the height that shadows fall on</source>
        <translation>la altura en la que caen las sombras</translation>
    </message>
    <message>
        <source>the history of solids is shown</source>
        <translation>se muestra el historial de los sólidos</translation>
    </message>
    <message>
        <source>the inner diameter that DONUT proposes</source>
        <translation>el diámetro interior que propone DONUT</translation>
    </message>
    <message>
        <source>the isometric plane</source>
        <translation>el plano isométrico</translation>
    </message>
    <message>
        <source>the kind of array that is proposed</source>
        <translation>la clase de matriz que se propone</translation>
    </message>
    <message>
        <source>the kind of gradients</source>
        <translation>la clase de degradados</translation>
    </message>
    <message>
        <source>the language of the machine</source>
        <translation>el idioma de la máquina</translation>
    </message>
    <message>
        <source>the last dialog ended with OK</source>
        <translation>el último diálogo terminó con Aceptar</translation>
    </message>
    <message>
        <source>the last line of the command line</source>
        <translation>la última línea de la línea de comandos</translation>
    </message>
    <message>
        <source>the layer of centre marks</source>
        <translation>la capa de las marcas de centro</translation>
    </message>
    <message>
        <source>the layer of new dimensions; &quot;.&quot; is the current one</source>
        <translation>la capa de las cotas nuevas; &quot;.&quot; es la actual</translation>
    </message>
    <message>
        <source>the layer of new entities</source>
        <translation>la capa de las entidades nuevas</translation>
    </message>
    <message>
        <source>the layer of new external drawings; &quot;.&quot; is the current one</source>
        <translation>la capa de los dibujos externos nuevos; &quot;.&quot; es la actual</translation>
    </message>
    <message>
        <source>the layer of new hatches; &quot;.&quot; is the current one</source>
        <translation>la capa de los sombreados nuevos; &quot;.&quot; es la actual</translation>
    </message>
    <message>
        <source>the least speed of smooth changes of the view</source>
        <translation>la velocidad mínima de los cambios suaves de vista</translation>
    </message>
    <message>
        <source>the length of extension lines, where fixed</source>
        <translation>la longitud de las líneas de referencia, si es fija</translation>
    </message>
    <message>
        <source>the length of the arcs of clouds</source>
        <translation>la longitud de los arcos de las nubes</translation>
    </message>
    <message>
        <source>the length round what was measured last</source>
        <translation>el contorno de lo último que se midió</translation>
    </message>
    <message>
        <source>the linetype of centre marks</source>
        <translation>el tipo de línea de las marcas de centro</translation>
    </message>
    <message>
        <source>the linetype of dimension lines</source>
        <translation>el tipo de línea de las líneas de cota</translation>
    </message>
    <message>
        <source>the linetype of hidden lines</source>
        <translation>el tipo de línea de las líneas ocultas</translation>
    </message>
    <message>
        <source>the linetype of new entities</source>
        <translation>el tipo de línea de las entidades nuevas</translation>
    </message>
    <message>
        <source>the linetype of the first extension line</source>
        <translation>el tipo de línea de la primera línea de referencia</translation>
    </message>
    <message>
        <source>the linetype of the second extension line</source>
        <translation>el tipo de línea de la segunda línea de referencia</translation>
    </message>
    <message>
        <source>the linetype scale of centre marks</source>
        <translation>la escala de tipo de línea de las marcas de centro</translation>
    </message>
    <message>
        <source>the linetype scale of new entities</source>
        <translation>la escala de tipo de línea de las entidades nuevas</translation>
    </message>
    <message>
        <source>the lineweight of dimension lines</source>
        <translation>el grosor de las líneas de cota</translation>
    </message>
    <message>
        <source>the lineweight of extension lines</source>
        <translation>el grosor de las líneas de referencia</translation>
    </message>
    <message>
        <source>the lineweight of new entities</source>
        <translation>el grosor de línea de las entidades nuevas</translation>
    </message>
    <message>
        <source>the longest arc of clouds</source>
        <translation>el arco más largo de las nubes</translation>
    </message>
    <message>
        <source>the lower tolerance</source>
        <translation>la tolerancia inferior</translation>
    </message>
    <message>
        <source>the maintenance version of the drawing&apos;s format</source>
        <translation>la versión de mantenimiento del formato del dibujo</translation>
    </message>
    <message>
        <source>the material of new entities</source>
        <translation>el material de las entidades nuevas</translation>
    </message>
    <message>
        <source>the menu bar is shown</source>
        <translation>se muestra la barra de menús</translation>
    </message>
    <message>
        <source>the menus of viewports are shown</source>
        <translation>se muestran los menús de las ventanas gráficas</translation>
    </message>
    <message>
        <source>the middle of the view</source>
        <translation>el centro de la vista</translation>
    </message>
    <message>
        <source>the most memory that Lisp may take, in megabytes</source>
        <translation>la memoria máxima que puede tomar Lisp, en megabytes</translation>
    </message>
    <message>
        <source>the most nodes of the spatial index</source>
        <translation>el número máximo de nodos del índice espacial</translation>
    </message>
    <message>
        <source>the name of the current annotation scale</source>
        <translation>el nombre de la escala de anotación actual</translation>
    </message>
    <message>
        <source>the name of the layout that is shown</source>
        <translation>el nombre de la presentación que se muestra</translation>
    </message>
    <message>
        <source>the name of the menu</source>
        <translation>el nombre del menú</translation>
    </message>
    <message>
        <source>the name of the program</source>
        <translation>el nombre del programa</translation>
    </message>
    <message>
        <source>the name of the project</source>
        <translation>el nombre del proyecto</translation>
    </message>
    <message>
        <source>the name of the user&apos;s coordinate system</source>
        <translation>el nombre del sistema de coordenadas personales</translation>
    </message>
    <message>
        <source>the name of the user&apos;s profile</source>
        <translation>el nombre del perfil del usuario</translation>
    </message>
    <message>
        <source>the near corner of the limits</source>
        <translation>la esquina cercana de los límites</translation>
    </message>
    <message>
        <source>the near corner of the virtual screen</source>
        <translation>la esquina cercana de la pantalla virtual</translation>
    </message>
    <message>
        <source>the near corner of what the space shows</source>
        <translation>la esquina cercana de lo que muestra el espacio</translation>
    </message>
    <message>
        <source>the number of the current viewport; 1 is the sheet</source>
        <translation>el número de la ventana actual; 1 es la presentación</translation>
    </message>
    <message>
        <source>the offset of plots counts from the margin (0) or the edge (1)</source>
        <translation>el desfase de los trazados cuenta desde el margen (0) o el borde (1)</translation>
    </message>
    <message>
        <source>the operating system</source>
        <translation>el sistema operativo</translation>
    </message>
    <message>
        <source>the origin of hatches</source>
        <translation>el origen de los sombreados</translation>
    </message>
    <message>
        <source>the origin of snap and grid</source>
        <translation>el origen del forzado y de la rejilla</translation>
    </message>
    <message>
        <source>the origin of the user&apos;s coordinate system</source>
        <translation>el origen del sistema de coordenadas personales</translation>
    </message>
    <message>
        <source>the outer diameter that DONUT proposes</source>
        <translation>el diámetro exterior que propone DONUT</translation>
    </message>
    <message>
        <source>the panel of databases is open</source>
        <translation>el panel de bases de datos está abierto</translation>
    </message>
    <message>
        <source>the panel of external drawings is open</source>
        <translation>el panel de dibujos externos está abierto</translation>
    </message>
    <message>
        <source>the panel of layers is open</source>
        <translation>el panel de capas está abierto</translation>
    </message>
    <message>
        <source>the panel of other drawings&apos; contents is open</source>
        <translation>el panel de contenido de otros dibujos está abierto</translation>
    </message>
    <message>
        <source>the panel of properties is open</source>
        <translation>el panel de propiedades está abierto</translation>
    </message>
    <message>
        <source>the pattern of hatches</source>
        <translation>el patrón de los sombreados</translation>
    </message>
    <message>
        <source>the plan view follows the user&apos;s coordinate system</source>
        <translation>la vista en planta sigue al sistema de coordenadas personales</translation>
    </message>
    <message>
        <source>the plane follows faces</source>
        <translation>el plano sigue a las caras</translation>
    </message>
    <message>
        <source>the plot style of layer 0 in new drawings</source>
        <translation>el estilo de trazado de la capa 0 en dibujos nuevos</translation>
    </message>
    <message>
        <source>the plot style of new entities</source>
        <translation>el estilo de trazado de las entidades nuevas</translation>
    </message>
    <message>
        <source>the plot style of new entities in new drawings</source>
        <translation>el estilo de trazado de las entidades nuevas en dibujos nuevos</translation>
    </message>
    <message>
        <source>the point given last</source>
        <translation>el último punto indicado</translation>
    </message>
    <message>
        <source>the pointer moves along the axes</source>
        <translation>el cursor se mueve según los ejes</translation>
    </message>
    <message>
        <source>the pointer moves in steps</source>
        <translation>el cursor se mueve por pasos</translation>
    </message>
    <message>
        <source>the program of such an object is started for a plot</source>
        <translation>el programa de un objeto así se inicia para trazar</translation>
    </message>
    <message>
        <source>the radius that CIRCLE proposes; 0 for none</source>
        <translation>el radio que propone CIRCLE; 0 para ninguno</translation>
    </message>
    <message>
        <source>the radius that FILLET takes</source>
        <translation>el radio que toma FILLET</translation>
    </message>
    <message>
        <source>the release of the dialect, beginning with its number</source>
        <translation>la edición del dialecto, que empieza por su número</translation>
    </message>
    <message>
        <source>the ribbon is shown</source>
        <translation>se muestra la cinta de opciones</translation>
    </message>
    <message>
        <source>the room round the text; negative with a frame</source>
        <translation>el espacio alrededor del texto; negativo con marco</translation>
    </message>
    <message>
        <source>the running object snaps, as bits</source>
        <translation>las referencias a objetos activas, en bits</translation>
    </message>
    <message>
        <source>the scale of all linetypes</source>
        <translation>la escala de todos los tipos de línea</translation>
    </message>
    <message>
        <source>the scale of everything in dimensions; 0 by the sheet</source>
        <translation>la escala de todo en las cotas; 0 según la presentación</translation>
    </message>
    <message>
        <source>the scale of hatches</source>
        <translation>la escala de los sombreados</translation>
    </message>
    <message>
        <source>the scale of multileaders</source>
        <translation>la escala de las directrices múltiples</translation>
    </message>
    <message>
        <source>the scale of multilines</source>
        <translation>la escala de las líneas múltiples</translation>
    </message>
    <message>
        <source>the scale of new viewports</source>
        <translation>la escala de las ventanas nuevas</translation>
    </message>
    <message>
        <source>the scale of objects of other programs</source>
        <translation>la escala de los objetos de otros programas</translation>
    </message>
    <message>
        <source>the scales of chosen annotative things are shown</source>
        <translation>se muestran las escalas de los objetos anotativos elegidos</translation>
    </message>
    <message>
        <source>the second chamfer distance</source>
        <translation>la segunda distancia de chaflán</translation>
    </message>
    <message>
        <source>the second colour of gradients</source>
        <translation>el segundo color de los degradados</translation>
    </message>
    <message>
        <source>the second extension line is left out</source>
        <translation>se omite la segunda línea de referencia</translation>
    </message>
    <message>
        <source>the second half of the line is left out</source>
        <translation>se omite la segunda mitad de la línea</translation>
    </message>
    <message>
        <source>the shadow of an entity</source>
        <translation>la sombra de una entidad</translation>
    </message>
    <message>
        <source>the shape that SHAPE proposes</source>
        <translation>la forma que propone SHAPE</translation>
    </message>
    <message>
        <source>the sheet set of the drawing</source>
        <translation>el conjunto de planos del dibujo</translation>
    </message>
    <message>
        <source>the shortest arc of clouds</source>
        <translation>el arco más corto de las nubes</translation>
    </message>
    <message>
        <source>the size of a step in a walk</source>
        <translation>el tamaño de un paso en un paseo</translation>
    </message>
    <message>
        <source>the size of arrows</source>
        <translation>el tamaño de las flechas</translation>
    </message>
    <message>
        <source>the size of centre marks</source>
        <translation>el tamaño de las marcas de centro</translation>
    </message>
    <message>
        <source>the size of grips in pixels</source>
        <translation>el tamaño de los pinzamientos en píxeles</translation>
    </message>
    <message>
        <source>the size of stacked texts, as per cent</source>
        <translation>el tamaño de los textos apilados, en tanto por ciento</translation>
    </message>
    <message>
        <source>the size of the box that picks dimensions</source>
        <translation>el tamaño de la caja que designa cotas</translation>
    </message>
    <message>
        <source>the size of the cross hairs, as per cent of the window</source>
        <translation>el tamaño del cursor en cruz, en tanto por ciento de la ventana</translation>
    </message>
    <message>
        <source>the size of the drawing&apos;s window in pixels</source>
        <translation>el tamaño de la ventana del dibujo en píxeles</translation>
    </message>
    <message>
        <source>the size of ticks; 0 for arrows</source>
        <translation>el tamaño de los trazos oblicuos; 0 para flechas</translation>
    </message>
    <message>
        <source>the size of tolerances</source>
        <translation>el tamaño de las tolerancias</translation>
    </message>
    <message>
        <source>the start page is shown</source>
        <translation>se muestra la página de inicio</translation>
    </message>
    <message>
        <source>the status bar is shown</source>
        <translation>se muestra la barra de estado</translation>
    </message>
    <message>
        <source>the status bar may have two lines</source>
        <translation>la barra de estado puede tener dos líneas</translation>
    </message>
    <message>
        <source>the step along polar tracking</source>
        <translation>el paso a lo largo del rastreo polar</translation>
    </message>
    <message>
        <source>the step of polar tracking</source>
        <translation>el paso del rastreo polar</translation>
    </message>
    <message>
        <source>the step of sketches</source>
        <translation>el paso de los bocetos</translation>
    </message>
    <message>
        <source>the steps of snap</source>
        <translation>los pasos del forzado de cursor</translation>
    </message>
    <message>
        <source>the style of details</source>
        <translation>el estilo de los detalles</translation>
    </message>
    <message>
        <source>the style of multilines</source>
        <translation>el estilo de las líneas múltiples</translation>
    </message>
    <message>
        <source>the style of new multileaders</source>
        <translation>el estilo de las directrices múltiples nuevas</translation>
    </message>
    <message>
        <source>the style of new tables</source>
        <translation>el estilo de las tablas nuevas</translation>
    </message>
    <message>
        <source>the style of sections</source>
        <translation>el estilo de las secciones</translation>
    </message>
    <message>
        <source>the style of texts</source>
        <translation>el estilo de los textos</translation>
    </message>
    <message>
        <source>the symbol of the axes, as bits</source>
        <translation>el símbolo de los ejes, en bits</translation>
    </message>
    <message>
        <source>the text around the number</source>
        <translation>el texto alrededor del número</translation>
    </message>
    <message>
        <source>the text around the second unit</source>
        <translation>el texto alrededor de la segunda unidad</translation>
    </message>
    <message>
        <source>the text of a unit&apos;s parts</source>
        <translation>el texto de las partes de una unidad</translation>
    </message>
    <message>
        <source>the text of the second unit&apos;s parts</source>
        <translation>el texto de las partes de la segunda unidad</translation>
    </message>
    <message>
        <source>the text stands above the line</source>
        <translation>el texto está encima de la línea</translation>
    </message>
    <message>
        <source>the text that hangs at the pointer where MTEXT asks</source>
        <translation>el texto que cuelga del cursor cuando pregunta MTEXT</translation>
    </message>
    <message>
        <source>the tint of gradients of one colour</source>
        <translation>el tono de los degradados de un color</translation>
    </message>
    <message>
        <source>the tool palettes are open</source>
        <translation>las paletas de herramientas están abiertas</translation>
    </message>
    <message>
        <source>the transparency of new entities</source>
        <translation>la transparencia de las entidades nuevas</translation>
    </message>
    <message>
        <source>the transparency of new hatches; &quot;.&quot; is the current one</source>
        <translation>la transparencia de los sombreados nuevos; &quot;.&quot; es la actual</translation>
    </message>
    <message>
        <source>the turn of snap and grid</source>
        <translation>el giro del forzado y de la rejilla</translation>
    </message>
    <message>
        <source>the turn of the view</source>
        <translation>el giro de la vista</translation>
    </message>
    <message>
        <source>the unit of drawings that say none, when inserted</source>
        <translation>la unidad de dibujos que no indican ninguna, al insertarlos</translation>
    </message>
    <message>
        <source>the unit of the drawing that says none</source>
        <translation>la unidad del dibujo que no indica ninguna</translation>
    </message>
    <message>
        <source>the upper tolerance</source>
        <translation>la tolerancia superior</translation>
    </message>
    <message>
        <source>the user places the text</source>
        <translation>el usuario coloca el texto</translation>
    </message>
    <message>
        <source>the user&apos;s coordinate system is the world&apos;s</source>
        <translation>el sistema de coordenadas personales es el universal</translation>
    </message>
    <message>
        <source>the user&apos;s name</source>
        <translation>el nombre del usuario</translation>
    </message>
    <message>
        <source>the user&apos;s own dictionary of spelling</source>
        <translation>el diccionario ortográfico propio del usuario</translation>
    </message>
    <message>
        <source>the user&apos;s timer</source>
        <translation>el cronómetro del usuario</translation>
    </message>
    <message>
        <source>the user&apos;s timer is on</source>
        <translation>el cronómetro del usuario está en marcha</translation>
    </message>
    <message>
        <source>the value of the current annotation scale</source>
        <translation>el valor de la escala de anotación actual</translation>
    </message>
    <message>
        <source>the version of bodies that are written</source>
        <translation>la versión de los cuerpos que se escriben</translation>
    </message>
    <message>
        <source>the version of the drawing&apos;s file, as &quot;AC1032&quot;</source>
        <translation>la versión del archivo del dibujo, como &quot;AC1032&quot;</translation>
    </message>
    <message>
        <source>the view is a perspective</source>
        <translation>la vista es una perspectiva</translation>
    </message>
    <message>
        <source>the viewport has layers with settings of its own</source>
        <translation>la ventana tiene capas con parámetros propios</translation>
    </message>
    <message>
        <source>the wheel button pans</source>
        <translation>el botón de la rueda encuadra</translation>
    </message>
    <message>
        <source>the width of POLYSOLID</source>
        <translation>la anchura de POLYSOLID</translation>
    </message>
    <message>
        <source>the width of polylines</source>
        <translation>el grosor de las polilíneas</translation>
    </message>
    <message>
        <source>the width of traces</source>
        <translation>el grosor de los trazos</translation>
    </message>
    <message>
        <source>the workspace</source>
        <translation>el espacio de trabajo</translation>
    </message>
    <message>
        <source>the x axis of the user&apos;s coordinate system</source>
        <translation>el eje x del sistema de coordenadas personales</translation>
    </message>
    <message>
        <source>the y axis of the user&apos;s coordinate system</source>
        <translation>el eje y del sistema de coordenadas personales</translation>
    </message>
    <message>
        <source>the zone of the drawing&apos;s place</source>
        <translation>la zona del lugar del dibujo</translation>
    </message>
    <message>
        <source>their distance</source>
        <translation>su distancia</translation>
    </message>
    <message>
        <source>their distances</source>
        <translation>sus distancias</translation>
    </message>
    <message>
        <source>there are menus</source>
        <translation>hay menús</translation>
    </message>
    <message>
        <source>ticks along the axes, in early programs</source>
        <translation>marcas a lo largo de los ejes, en programas antiguos</translation>
    </message>
    <message>
        <source>ticks of the clock, for measuring</source>
        <translation>pulsos del reloj, para medir</translation>
    </message>
    <message>
        <source>tips are shown</source>
        <translation>se muestran sugerencias</translation>
    </message>
    <message>
        <source>tips on the keys beside the pointer</source>
        <translation>sugerencias sobre las teclas junto al cursor</translation>
    </message>
    <message>
        <source>tips on what is under the pointer</source>
        <translation>sugerencias sobre lo que está bajo el cursor</translation>
    </message>
    <message>
        <source>tolerances are shown</source>
        <translation>se muestran las tolerancias</translation>
    </message>
    <message>
        <source>transparency is plotted</source>
        <translation>la transparencia se traza</translation>
    </message>
    <message>
        <source>transparency is shown</source>
        <translation>la transparencia se muestra</translation>
    </message>
    <message>
        <source>typed coordinates go before object snap: never (0), always (1), not in scripts (2)</source>
        <translation>las coordenadas escritas prevalecen sobre la referencia a objetos: nunca (0), siempre (1), no en scripts (2)</translation>
    </message>
    <message>
        <source>units of light</source>
        <translation>unidades de luz</translation>
    </message>
    <message>
        <source>unknown entities are told</source>
        <translation>se avisa de entidades desconocidas</translation>
    </message>
    <message>
        <source>viewports keep their coordinate system</source>
        <translation>las ventanas conservan su sistema de coordenadas</translation>
    </message>
    <message>
        <source>views are made anew when needed</source>
        <translation>las vistas se regeneran cuando hace falta</translation>
    </message>
    <message>
        <source>views count from the world (1) or the user&apos;s system (0)</source>
        <translation>las vistas cuentan desde el sistema universal (1) o el personal (0)</translation>
    </message>
    <message>
        <source>views keep their coordinate system</source>
        <translation>las vistas conservan su sistema de coordenadas</translation>
    </message>
    <message>
        <source>what TRIM and EXTEND project on</source>
        <translation>sobre qué proyectan TRIM y EXTEND</translation>
    </message>
    <message>
        <source>what a file&apos;s tab shows</source>
        <translation>lo que muestra la ficha de un archivo</translation>
    </message>
    <message>
        <source>what commands make others of is erased</source>
        <translation>se borra aquello a partir de lo cual los comandos crean otras cosas</translation>
    </message>
    <message>
        <source>what fills the gaps of offset polylines</source>
        <translation>lo que rellena los huecos de polilíneas desfasadas</translation>
    </message>
    <message>
        <source>what goes out first where there is no room</source>
        <translation>lo que sale primero cuando no hay sitio</translation>
    </message>
    <message>
        <source>what happens to external drawings is logged</source>
        <translation>se registra lo que ocurre con los dibujos externos</translation>
    </message>
    <message>
        <source>what has changed since the drawing was saved, as bits</source>
        <translation>lo que ha cambiado desde que se guardó el dibujo, en bits</translation>
    </message>
    <message>
        <source>what is asked when a block is defined again</source>
        <translation>lo que se pregunta al redefinir un bloque</translation>
    </message>
    <message>
        <source>what is chosen is added to what was</source>
        <translation>lo que se designa se añade a lo ya designado</translation>
    </message>
    <message>
        <source>what is chosen is drawn smoothly</source>
        <translation>lo designado se dibuja suavizado</translation>
    </message>
    <message>
        <source>what is chosen is shown so</source>
        <translation>lo designado se muestra como tal</translation>
    </message>
    <message>
        <source>what is chosen of things that hide each other</source>
        <translation>lo que se designa de objetos que se tapan</translation>
    </message>
    <message>
        <source>what is cut off near the eye, as per cent</source>
        <translation>lo que se corta cerca del ojo, en tanto por ciento</translation>
    </message>
    <message>
        <source>what is done after a crash</source>
        <translation>lo que se hace tras una interrupción</translation>
    </message>
    <message>
        <source>what is not shown under the pointer, as bits</source>
        <translation>lo que no se muestra bajo el cursor, en bits</translation>
    </message>
    <message>
        <source>what is offered while one types</source>
        <translation>lo que se ofrece mientras se escribe</translation>
    </message>
    <message>
        <source>what is plotted in the background, as bits</source>
        <translation>lo que se traza en segundo plano, en bits</translation>
    </message>
    <message>
        <source>what is shown while a grip is pulled, as bits</source>
        <translation>lo que se muestra al tirar de un pinzamiento, en bits</translation>
    </message>
    <message>
        <source>what is shown while attributes are edited</source>
        <translation>lo que se muestra al editar atributos</translation>
    </message>
    <message>
        <source>what is under the pointer is shown so</source>
        <translation>lo que está bajo el cursor se muestra como tal</translation>
    </message>
    <message>
        <source>what is under way: a command (1), transparent one (2), script (4), dialog (8), Lisp (32)</source>
        <translation>lo que está en curso: un comando (1), uno transparente (2), script (4), diálogo (8), Lisp (32)</translation>
    </message>
    <message>
        <source>what keeps to the drawing order</source>
        <translation>lo que respeta el orden de dibujo</translation>
    </message>
    <message>
        <source>what keeps to the order of the file, as bits</source>
        <translation>lo que respeta el orden del archivo, en bits</translation>
    </message>
    <message>
        <source>what layouts keep ready</source>
        <translation>lo que las presentaciones tienen preparado</translation>
    </message>
    <message>
        <source>what lengths are rounded to</source>
        <translation>a qué se redondean las longitudes</translation>
    </message>
    <message>
        <source>what lies above each other is offered</source>
        <translation>se ofrece lo que está uno encima de otro</translation>
    </message>
    <message>
        <source>what menus echo, as bits</source>
        <translation>lo que muestran los menús, en bits</translation>
    </message>
    <message>
        <source>what moves with the text</source>
        <translation>lo que se desplaza con el texto</translation>
    </message>
    <message>
        <source>what new drawings do</source>
        <translation>lo que hacen los dibujos nuevos</translation>
    </message>
    <message>
        <source>what object snap leaves out, as bits</source>
        <translation>lo que omite la referencia a objetos, en bits</translation>
    </message>
    <message>
        <source>what orthographic settings count from</source>
        <translation>desde qué cuentan los parámetros ortogonales</translation>
    </message>
    <message>
        <source>what relative links start from</source>
        <translation>desde dónde parten los vínculos relativos</translation>
    </message>
    <message>
        <source>what similar means, as bits</source>
        <translation>lo que significa similar, en bits</translation>
    </message>
    <message>
        <source>what the picture in the file shows</source>
        <translation>lo que muestra la imagen del archivo</translation>
    </message>
    <message>
        <source>what the program shows at its start</source>
        <translation>lo que muestra el programa al iniciarse</translation>
    </message>
    <message>
        <source>what the screen shows</source>
        <translation>lo que muestra la pantalla</translation>
    </message>
    <message>
        <source>what the second unit is rounded to</source>
        <translation>a qué se redondea la segunda unidad</translation>
    </message>
    <message>
        <source>what the view is: perspective, clipped, ..., as bits</source>
        <translation>lo que es la vista: perspectiva, delimitada, ..., en bits</translation>
    </message>
    <message>
        <source>what the view looks at</source>
        <translation>lo que mira la vista</translation>
    </message>
    <message>
        <source>when coordinates are shown beside the pointer</source>
        <translation>cuándo se muestran coordenadas junto al cursor</translation>
    </message>
    <message>
        <source>when fields are evaluated, as bits</source>
        <translation>cuándo se evalúan los campos, en bits</translation>
    </message>
    <message>
        <source>when it was made, in world time</source>
        <translation>cuándo se creó, en hora universal</translation>
    </message>
    <message>
        <source>when it was saved last</source>
        <translation>cuándo se guardó por última vez</translation>
    </message>
    <message>
        <source>when it was saved last, in world time</source>
        <translation>cuándo se guardó por última vez, en hora universal</translation>
    </message>
    <message>
        <source>when links to tables are checked</source>
        <translation>cuándo se comprueban los vínculos a tablas</translation>
    </message>
    <message>
        <source>when modules of other makers are loaded, as bits</source>
        <translation>cuándo se cargan módulos de otros fabricantes, en bits</translation>
    </message>
    <message>
        <source>when new layers are looked for</source>
        <translation>cuándo se buscan capas nuevas</translation>
    </message>
    <message>
        <source>when new layers are told, as bits</source>
        <translation>cuándo se avisa de capas nuevas, en bits</translation>
    </message>
    <message>
        <source>when the drawing was made</source>
        <translation>cuándo se creó el dibujo</translation>
    </message>
    <message>
        <source>when the pointer snaps to the grid</source>
        <translation>cuándo se ajusta el cursor a la rejilla</translation>
    </message>
    <message>
        <source>where a hatch like another has its origin</source>
        <translation>dónde tiene su origen un sombreado igual a otro</translation>
    </message>
    <message>
        <source>where angles count from, from the x axis</source>
        <translation>desde dónde cuentan los ángulos, a partir del eje x</translation>
    </message>
    <message>
        <source>where earlier input is offered, as bits</source>
        <translation>dónde se ofrece la entrada anterior, en bits</translation>
    </message>
    <message>
        <source>where multilines lie on their points: top, middle, bottom</source>
        <translation>cómo están las líneas múltiples sobre sus puntos: arriba, centro, abajo</translation>
    </message>
    <message>
        <source>where new hatches lie in the drawing order</source>
        <translation>dónde están los sombreados nuevos en el orden de dibujo</translation>
    </message>
    <message>
        <source>where north is, from the y axis</source>
        <translation>dónde está el norte, a partir del eje y</translation>
    </message>
    <message>
        <source>where on earth the drawing is</source>
        <translation>en qué lugar de la tierra está el dibujo</translation>
    </message>
    <message>
        <source>where quick properties are shown</source>
        <translation>dónde se muestran las propiedades rápidas</translation>
    </message>
    <message>
        <source>where the grid is of dots, as bits</source>
        <translation>dónde es de puntos la rejilla, en bits</translation>
    </message>
    <message>
        <source>where the origin of hatches lies</source>
        <translation>dónde está el origen de los sombreados</translation>
    </message>
    <message>
        <source>where the sign of an arc&apos;s length stands</source>
        <translation>dónde está el signo de la longitud de un arco</translation>
    </message>
    <message>
        <source>where the text stands along the line</source>
        <translation>dónde está el texto a lo largo de la línea</translation>
    </message>
    <message>
        <source>where the view is seen from</source>
        <translation>desde dónde se ve la vista</translation>
    </message>
    <message>
        <source>where to look for what knows them</source>
        <translation>dónde buscar lo que las conoce</translation>
    </message>
    <message>
        <source>where tolerances stand beside the number</source>
        <translation>dónde están las tolerancias junto al número</translation>
    </message>
    <message>
        <source>which changes of the view are smooth</source>
        <translation>qué cambios de la vista son suaves</translation>
    </message>
    <message>
        <source>which extents count</source>
        <translation>qué extensión cuenta</translation>
    </message>
    <message>
        <source>which islands a hatch leaves out</source>
        <translation>qué islas omite un sombreado</translation>
    </message>
    <message>
        <source>which parts of solids are chosen</source>
        <translation>qué partes de sólidos se designan</translation>
    </message>
    <message>
        <source>which pictures in the file are kept up</source>
        <translation>qué imágenes del archivo se mantienen al día</translation>
    </message>
    <message>
        <source>which questions commands leave out</source>
        <translation>qué preguntas omiten los comandos</translation>
    </message>
    <message>
        <source>which tips beside the pointer take its settings</source>
        <translation>qué sugerencias junto al cursor toman sus parámetros</translation>
    </message>
    <message>
        <source>which tool bars and panels are fixed</source>
        <translation>qué barras y paneles están fijos</translation>
    </message>
    <message>
        <source>which way the wheel zooms</source>
        <translation>en qué sentido amplía la rueda</translation>
    </message>
    <message>
        <source>why a function of Lisp failed, as a number</source>
        <translation>por qué falló una función de Lisp, como número</translation>
    </message>
    <message>
        <source>windows are dragged</source>
        <translation>las ventanas se arrastran</translation>
    </message>
    <message>
        <source>windows of selections are filled</source>
        <translation>las ventanas de selección se rellenan</translation>
    </message>
    <message>
        <source>with more boundaries than this HATCH warns</source>
        <translation>con más contornos que estos advierte HATCH</translation>
    </message>
    <message>
        <source>with more entities than this no grips are shown</source>
        <translation>con más entidades que estas no se muestran pinzamientos</translation>
    </message>
    <message>
        <source>words of object snap replace the running modes</source>
        <translation>las palabras de referencia a objetos sustituyen a los modos activos</translation>
    </message>
    <message>
        <source>zeros of angles</source>
        <translation>ceros de los ángulos</translation>
    </message>
    <message>
        <source>zeros of lengths</source>
        <translation>ceros de las longitudes</translation>
    </message>
    <message>
        <source>zeros of the second unit</source>
        <translation>ceros de la segunda unidad</translation>
    </message>
    <message>
        <source>zeros of tolerances</source>
        <translation>ceros de las tolerancias</translation>
    </message>
    <message>
        <source>zeros of tolerances in the second unit</source>
        <translation>ceros de las tolerancias en la segunda unidad</translation>
    </message>
</context>
<context>
    <name>Inspecting</name>
    <message>
        <source>%1: what is mended is not written over the drawing</source>
        <translation>%1: lo reparado no se escribe sobre el dibujo</translation>
    </message>
    <message>
        <source>not read</source>
        <translation>no leído</translation>
    </message>
    <message>
        <source>sound</source>
        <translation>intacto</translation>
    </message>
    <message>
        <source>faults: %1</source>
        <translation>defectos: %1</translation>
    </message>
    <message>
        <source>, opens with --recover alone</source>
        <translation>, solo se abre con --recover</translation>
    </message>
    <message>
        <source>and %1 more</source>
        <translation>y %1 más</translation>
    </message>
    <message>
        <source> and %1 more</source>
        <translation> y %1 más</translation>
    </message>
    <message>
        <source>%1 bytes</source>
        <translation>%1 bytes</translation>
    </message>
    <message>
        <source>by %1</source>
        <translation>por %1</translation>
    </message>
    <message>
        <source>begun %1</source>
        <translation>empezado %1</translation>
    </message>
    <message>
        <source>the file says %1</source>
        <translation>según el archivo %1</translation>
    </message>
    <message>
        <source>; %1 in blocks</source>
        <translation>; %1 en bloques</translation>
    </message>
    <message>
        <source> off</source>
        <translation> desactivada</translation>
    </message>
    <message>
        <source> frozen</source>
        <translation> inutilizada</translation>
    </message>
    <message>
        <source> locked</source>
        <translation> bloqueada</translation>
    </message>
    <message>
        <source> (not found: %1)</source>
        <translation> (no encontrado: %1)</translation>
    </message>
    <message>
        <source> (not found)</source>
        <translation> (no encontrado)</translation>
    </message>
    <message>
        <source>none</source>
        <translation>ninguno</translation>
    </message>
    <message>
        <source>, %1 records without</source>
        <translation>, %1 registros sin él</translation>
    </message>
    <message>
        <source>, %1 twice</source>
        <translation>, %1 dos veces</translation>
    </message>
    <message>
        <source>, the next one (%1) is taken</source>
        <translation>, el siguiente (%1) está ocupado</translation>
    </message>
    <message>
        <source>format</source>
        <translation>formato</translation>
    </message>
    <message>
        <source>title</source>
        <translation>título</translation>
    </message>
    <message>
        <source>author</source>
        <translation>autor</translation>
    </message>
    <message>
        <source>saved</source>
        <translation>guardado</translation>
    </message>
    <message>
        <source>units</source>
        <translation>unidades</translation>
    </message>
    <message>
        <source>extents</source>
        <translation>extensión</translation>
    </message>
    <message>
        <source>entities</source>
        <translation>entidades</translation>
    </message>
    <message>
        <source>layers</source>
        <translation>capas</translation>
    </message>
    <message>
        <source>blocks</source>
        <translation>bloques</translation>
    </message>
    <message>
        <source>layouts</source>
        <translation>presentaciones</translation>
    </message>
    <message>
        <source>text styles</source>
        <translation>estilos de texto</translation>
    </message>
    <message>
        <source>fonts</source>
        <translation>fuentes</translation>
    </message>
    <message>
        <source>linetypes</source>
        <translation>tipos de línea</translation>
    </message>
    <message>
        <source>dimensions</source>
        <translation>cotas</translation>
    </message>
    <message>
        <source>files</source>
        <translation>archivos</translation>
    </message>
    <message>
        <source>classes</source>
        <translation>clases</translation>
    </message>
    <message>
        <source>proxies</source>
        <translation>proxies</translation>
    </message>
    <message>
        <source>handles</source>
        <translation>identificadores</translation>
    </message>
</context>
<context>
    <name>Kernel</name>
    <message>
        <source>%1 has no file yet.</source>
        <translation>%1 aún no tiene archivo.</translation>
    </message>
    <message>
        <source>
More files that the drawing names were not read.
</source>
        <translation>
No se han leído otros archivos que nombra el dibujo.
</translation>
    </message>
    <message>
        <source>
%1 was not read: %2.
</source>
        <translation>
%1 no se ha leído: %2.
</translation>
    </message>
    <message>
        <source>%1 (recovered)</source>
        <translation>%1 (recuperado)</translation>
    </message>
    <message>
        <source>
Saving this drawing was broken off once. What was to be saved is in %1; the drawing&apos;s own file may have only a part of it.
</source>
        <translation>
Una vez se interrumpió el guardado de este dibujo. Lo que se iba a guardar está en %1; el archivo del propio dibujo puede contener solo una parte.
</translation>
    </message>
    <message>
        <source>The document has no Lisp engine.</source>
        <translation>El documento no tiene motor Lisp.</translation>
    </message>
    <message>
        <source>Unknown command &quot;%1&quot;.</source>
        <translation>Comando desconocido &quot;%1&quot;.</translation>
    </message>
    <message>
        <source>%1 was cancelled.</source>
        <translation>%1 se ha cancelado.</translation>
    </message>
    <message>
        <source>%1: %2; nothing was changed.</source>
        <translation>%1: %2; no se ha cambiado nada.</translation>
    </message>
    <message>
        <source>%1 stays open while a session is played on it.</source>
        <translation>%1 sigue abierto mientras se reproduce en él una sesión.</translation>
    </message>
    <message>
        <source>%1 was not closed: it was changed since.</source>
        <translation>%1 no se ha cerrado: ha cambiado desde entonces.</translation>
    </message>
    <message>
        <source>%1 was not closed: a program of it runs.</source>
        <translation>%1 no se ha cerrado: se ejecuta un programa suyo.</translation>
    </message>
    <message>
        <source>%1: %2 done, %3 skipped</source>
        <translation>%1: %2 hechos, %3 omitidos</translation>
    </message>
    <message>
        <source>and %1 more
</source>
        <translation>y %1 más
</translation>
    </message>
    <message>
        <source>
*Cancel*
</source>
        <translation>
*Cancelar*
</translation>
    </message>
    <message>
        <source>This cannot be allowed here: %1.</source>
        <translation>Esto no se puede permitir aquí: %1.</translation>
    </message>
    <message>
        <source>The folder cannot be trusted: everyone may write to it, or its name has a &quot;;&quot;.</source>
        <translation>No se puede confiar en la carpeta: todos pueden escribir en ella, o su nombre lleva un &quot;;&quot;.</translation>
    </message>
    <message>
        <source>The list cannot be kept in %1.</source>
        <translation>La lista no se puede guardar en %1.</translation>
    </message>
    <message>
        <source>its folder is not trusted</source>
        <translation>su carpeta no es de confianza</translation>
    </message>
    <message>
        <source>everyone may write to %1</source>
        <translation>todos pueden escribir en %1</translation>
    </message>
    <message>
        <source>
TRUSTEDPATHS cannot be kept in %1.
</source>
        <translation>
TRUSTEDPATHS no se puede guardar en %1.
</translation>
    </message>
    <message>
        <source>
%1 was not loaded: %2. TRUSTEDPATHS, or the option --trust, names folders whose programs may run.
</source>
        <translation>
%1 no se ha cargado: %2. TRUSTEDPATHS, o la opción --trust, nombra carpetas cuyos programas pueden ejecutarse.
</translation>
    </message>
    <message>
        <source>%1 was opened for reading only; save it under another name.</source>
        <translation>%1 se abrió solo para lectura; guárdelo con otro nombre.</translation>
    </message>
    <message>
        <source>%1 was changed by another program since it was opened or saved here.</source>
        <translation>Otro programa ha cambiado %1 desde que se abrió o guardó aquí.</translation>
    </message>
    <message>
        <source>%1 is not there any more.</source>
        <translation>%1 ya no está.</translation>
    </message>
    <message>
        <source>%1 is the damaged file that this drawing was recovered from; save it under another name.</source>
        <translation>%1 es el archivo dañado del que se recuperó este dibujo; guárdelo con otro nombre.</translation>
    </message>
    <message>
        <source>%1 leads to another file than when it was opened or saved here.</source>
        <translation>%1 conduce a otro archivo que cuando se abrió o guardó aquí.</translation>
    </message>
    <message>
        <source>%1 is open in this program; close it first, or give another name.</source>
        <translation>%1 está abierto en este programa; ciérrelo antes o indique otro nombre.</translation>
    </message>
    <message>
        <source>%1 is open in another program (%2).</source>
        <translation>%1 está abierto en otro programa (%2).</translation>
    </message>
    <message>
        <source> of </source>
        <translation> de </translation>
    </message>
    <message>
        <source> (need %1): </source>
        <translation> (se necesita %1): </translation>
    </message>
    <message>
        <source>
Second point of mid: </source>
        <translation>
Segundo punto del medio: </translation>
    </message>
    <message>
        <source>
First point of mid: </source>
        <translation>
Primer punto del medio: </translation>
    </message>
    <message>
        <source>&lt;Offset&gt;: </source>
        <translation>&lt;Desfase&gt;: </translation>
    </message>
    <message>
        <source>
Base point: </source>
        <translation>
Punto base: </translation>
    </message>
    <message>
        <source>
Next point (Press ENTER to end tracking): </source>
        <translation>
Punto siguiente (pulse INTRO para terminar el rastreo): </translation>
    </message>
    <message>
        <source>
First tracking point: </source>
        <translation>
Primer punto de rastreo: </translation>
    </message>
    <message>
        <source>
Specify point: </source>
        <translation>
Precise punto: </translation>
    </message>
    <message>
        <source>
Specify temporary tracking point: </source>
        <translation>
Precise punto de rastreo temporal: </translation>
    </message>
    <message>
        <source>Requires an integer value or option keyword.</source>
        <translation>Se requiere un entero o una opción.</translation>
    </message>
    <message>
        <source>Requires numeric value or option keyword.</source>
        <translation>Se requiere un valor numérico o una opción.</translation>
    </message>
    <message>
        <source>Requires numeric distance, two points, or option keyword.</source>
        <translation>Se requiere una distancia numérica, dos puntos o una opción.</translation>
    </message>
    <message>
        <source>Requires valid numeric angle, two points, or option keyword.</source>
        <translation>Se requiere un ángulo numérico válido, dos puntos o una opción.</translation>
    </message>
    <message>
        <source>Point or option keyword required.</source>
        <translation>Se requiere un punto o una opción.</translation>
    </message>
    <message>
        <source>Requires an integer value.</source>
        <translation>Se requiere un valor entero.</translation>
    </message>
    <message>
        <source>Requires numeric value.</source>
        <translation>Se requiere un valor numérico.</translation>
    </message>
    <message>
        <source>Requires numeric distance or two points.</source>
        <translation>Se requiere una distancia numérica o dos puntos.</translation>
    </message>
    <message>
        <source>Requires valid numeric angle or two points.</source>
        <translation>Se requiere un ángulo numérico válido o dos puntos.</translation>
    </message>
    <message>
        <source>Invalid option keyword.</source>
        <translation>Opción no válida.</translation>
    </message>
    <message>
        <source>Expects a point or %1.</source>
        <translation>Se espera un punto o %1.</translation>
    </message>
    <message>
        <source>Invalid input.</source>
        <translation>Entrada no válida.</translation>
    </message>
    <message>
        <source>Invalid point.</source>
        <translation>Punto no válido.</translation>
    </message>
    <message>
        <source>Value must be nonzero.</source>
        <translation>El valor debe ser distinto de cero.</translation>
    </message>
    <message>
        <source>Value must not be negative.</source>
        <translation>El valor no debe ser negativo.</translation>
    </message>
    <message>
        <source>**Outside limits</source>
        <translation>**Fuera de los límites</translation>
    </message>
    <message>
        <source>
Specify second point: </source>
        <translation>
Precise segundo punto: </translation>
    </message>
    <message>
        <source> to </source>
        <translation> a </translation>
    </message>
    <message>
        <source>
Angle Override: </source>
        <translation>
Ángulo sustituto: </translation>
    </message>
    <message>
        <source>No %1 found for specified point.</source>
        <translation>En el punto indicado no se encuentra: %1.</translation>
    </message>
    <message>
        <source>
Enter group name: </source>
        <translation>
Indique nombre de grupo: </translation>
    </message>
    <message>
        <source>
Remove objects: </source>
        <translation>
Quite objetos: </translation>
    </message>
    <message>
        <source>
First point: </source>
        <translation>
Primer punto: </translation>
    </message>
    <message>
        <source>
Specify first corner: </source>
        <translation>
Precise primera esquina: </translation>
    </message>
    <message>
        <source>
Next point: </source>
        <translation>
Punto siguiente: </translation>
    </message>
    <message>
        <source>
Specify opposite corner: </source>
        <translation>
Precise esquina opuesta: </translation>
    </message>
    <message>
        <source>
Command has been completely undone.</source>
        <translation>
El comando se ha deshecho por completo.</translation>
    </message>
    <message>
        <source>
Cannot find group &quot;%1&quot;.</source>
        <translation>
No se encuentra el grupo &quot;%1&quot;.</translation>
    </message>
    <message>
        <source>
%1 found</source>
        <translation>
%1 encontrados</translation>
    </message>
    <message>
        <source>
%1 found, %2 total</source>
        <translation>
%1 encontrados, %2 en total</translation>
    </message>
    <message>
        <source>
Select objects: </source>
        <translation>
Designe objetos: </translation>
    </message>
    <message>
        <source>endpoint</source>
        <translation>punto final</translation>
    </message>
    <message>
        <source>midpoint</source>
        <translation>punto medio</translation>
    </message>
    <message>
        <source>center</source>
        <translation>centro</translation>
    </message>
    <message>
        <source>node</source>
        <translation>nodo</translation>
    </message>
    <message>
        <source>quadrant</source>
        <translation>cuadrante</translation>
    </message>
    <message>
        <source>intersection</source>
        <translation>intersección</translation>
    </message>
    <message>
        <source>insertion point</source>
        <translation>punto de inserción</translation>
    </message>
    <message>
        <source>perpendicular</source>
        <translation>perpendicular</translation>
    </message>
    <message>
        <source>tangent</source>
        <translation>tangente</translation>
    </message>
    <message>
        <source>nearest point</source>
        <translation>punto más cercano</translation>
    </message>
    <message>
        <source>quick</source>
        <translation>rápido</translation>
    </message>
    <message>
        <source>apparent intersection</source>
        <translation>intersección ficticia</translation>
    </message>
    <message>
        <source>extension</source>
        <translation>extensión</translation>
    </message>
    <message>
        <source>parallel</source>
        <translation>paralelo</translation>
    </message>
    <message>
        <source>none</source>
        <translation>ninguno</translation>
    </message>
    <message>
        <source>
The rest of what was typed ahead is left out.
</source>
        <translation>
Se omite el resto de lo escrito por adelantado.
</translation>
    </message>
    <message>
        <source>
Nobody is there to answer &quot;%1&quot;: cancelled.
</source>
        <translation>
No hay nadie que responda a &quot;%1&quot;: cancelado.
</translation>
    </message>
    <message>
        <source>*Cancel*
</source>
        <translation>*Cancelar*
</translation>
    </message>
    <message>
        <source>No help page.</source>
        <translation>No hay página de ayuda.</translation>
    </message>
    <message>
        <source>it is no module (odrxGetAPIVersion is missing)</source>
        <translation>no es un módulo (falta odrxGetAPIVersion)</translation>
    </message>
    <message>
        <source>it was built for version %1 of the interface, this host has %2</source>
        <translation>se hizo para la versión %1 de la interfaz, este entorno tiene la %2</translation>
    </message>
    <message>
        <source>it is no module (odrxCreateModuleObject is missing)</source>
        <translation>no es un módulo (falta odrxCreateModuleObject)</translation>
    </message>
    <message>
        <source>it made no module object</source>
        <translation>no creó ningún objeto de módulo</translation>
    </message>
    <message>
        <source>there is no memory for its module object</source>
        <translation>no hay memoria para su objeto de módulo</translation>
    </message>
    <message>
        <source>Cannot load %1: %2</source>
        <translation>No se puede cargar %1: %2</translation>
    </message>
    <message>
        <source>
%1 cannot run while another command is under way.</source>
        <translation>
%1 no se puede ejecutar mientras haya otro comando en curso.</translation>
    </message>
    <message>
        <source>
%1: the setting cannot be written to %2.
</source>
        <translation>
%1: el parámetro no se puede escribir en %2.
</translation>
    </message>
    <message>
        <source>The command aliases in %1 cannot be read: %2 The ones before stay in use.</source>
        <translation>No se pueden leer los alias de comandos de %1: %2 Siguen en uso los anteriores.</translation>
    </message>
    <message>
        <source>The numbers are too large.</source>
        <translation>Los números son demasiado grandes.</translation>
    </message>
    <message>
        <source>
%1 has ended, nothing was changed.</source>
        <translation>
%1 ha terminado, no se ha cambiado nada.</translation>
    </message>
    <message>
        <source>
** That command may not be invoked transparently **
</source>
        <translation>
** Ese comando no se puede invocar en modo transparente **
</translation>
    </message>
    <message>
        <source>
Resuming %1 command.
</source>
        <translation>
Se reanuda el comando %1.
</translation>
    </message>
    <message>
        <source>
%1 cannot be kept.
</source>
        <translation>
%1 no se puede conservar.
</translation>
    </message>
    <message>
        <source>
The user&apos;s settings cannot be kept.
</source>
        <translation>
No se puede guardar la configuración del usuario.
</translation>
    </message>
    <message>
        <source>%1 is a DWG file, which this program reads but does not write; give the drawing another name.</source>
        <translation>%1 es un archivo DWG, que este programa lee pero no escribe; dé otro nombre al dibujo.</translation>
    </message>
</context>
<context>
    <name>Keywords</name>
    <message>
        <source>2points</source>
        <translation>2puntos</translation>
    </message>
    <message>
        <source>3point</source>
        <translation>3punto</translation>
    </message>
    <message>
        <source>3points</source>
        <translation>3puntos</translation>
    </message>
    <message>
        <source>ANnotative</source>
        <translation>ANotativo</translation>
    </message>
    <message>
        <source>Above</source>
        <translation>Encima</translation>
    </message>
    <message>
        <source>Above objects</source>
        <translation>Encima de objetos</translation>
    </message>
    <message>
        <source>Add</source>
        <translation>Añadir</translation>
    </message>
    <message>
        <source>Add area</source>
        <translation>Añadir área</translation>
    </message>
    <message>
        <source>Add leaders</source>
        <translation>Añadir directrices</translation>
    </message>
    <message>
        <source>Advanced</source>
        <translation>Avanzado</translation>
    </message>
    <message>
        <source>Advanced options</source>
        <translation>Avanzado</translation>
    </message>
    <message>
        <source>All</source>
        <translation>Todo</translation>
    </message>
    <message>
        <source>Ang</source>
        <translation>ángUlo</translation>
    </message>
    <message>
        <source>Angle</source>
        <translation>ángUlo</translation>
    </message>
    <message>
        <source>Annotation</source>
        <translation>Anotación</translation>
    </message>
    <message>
        <source>Annotative</source>
        <translation>Anotativo</translation>
    </message>
    <message>
        <source>Anyway</source>
        <translation>de Todos modos</translation>
    </message>
    <message>
        <source>Apply</source>
        <translation>Aplicar</translation>
    </message>
    <message>
        <source>Arc</source>
        <translation>Arco</translation>
    </message>
    <message>
        <source>Arc length</source>
        <translation>Longitud arco</translation>
    </message>
    <message>
        <source>Area</source>
        <translation>árEa</translation>
    </message>
    <message>
        <source>Array</source>
        <translation>Matriz</translation>
    </message>
    <message>
        <source>Arrow</source>
        <translation>Flecha</translation>
    </message>
    <message>
        <source>As</source>
        <translation>Como</translation>
    </message>
    <message>
        <source>As displayed</source>
        <translation>Como se muestra</translation>
    </message>
    <message>
        <source>Aspect</source>
        <translation>Aspecto</translation>
    </message>
    <message>
        <source>Associativity</source>
        <translation>Asociatividad</translation>
    </message>
    <message>
        <source>At least</source>
        <translation>Mínimo</translation>
    </message>
    <message>
        <source>Attach</source>
        <translation>Enlazar</translation>
    </message>
    <message>
        <source>Auto</source>
        <translation>Auto</translation>
    </message>
    <message>
        <source>BAck</source>
        <translation>POsterior</translation>
    </message>
    <message>
        <source>BEgin</source>
        <translation>INicio</translation>
    </message>
    <message>
        <source>BYBlock</source>
        <translation>PORBloque</translation>
    </message>
    <message>
        <source>BYLayer</source>
        <translation>PORCapa</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Retroceder</translation>
    </message>
    <message>
        <source>Base</source>
        <translation>Base</translation>
    </message>
    <message>
        <source>Base point</source>
        <translation>Punto base</translation>
    </message>
    <message>
        <source>Below</source>
        <translation>deBajo</translation>
    </message>
    <message>
        <source>Binary</source>
        <translation>Binario</translation>
    </message>
    <message>
        <source>Bind</source>
        <translation>Unir</translation>
    </message>
    <message>
        <source>Bisect</source>
        <translation>Bisecar</translation>
    </message>
    <message>
        <source>Block</source>
        <translation>Bloque</translation>
    </message>
    <message>
        <source>Block selection</source>
        <translation>Bloques designados</translation>
    </message>
    <message>
        <source>Blocks</source>
        <translation>Bloques</translation>
    </message>
    <message>
        <source>Both</source>
        <translation>aMbos</translation>
    </message>
    <message>
        <source>Bottom</source>
        <translation>aBajo</translation>
    </message>
    <message>
        <source>Boundaries</source>
        <translation>Contornos</translation>
    </message>
    <message>
        <source>Boundary</source>
        <translation>Contorno</translation>
    </message>
    <message>
        <source>Boundary set</source>
        <translation>Conjunto de contornos</translation>
    </message>
    <message>
        <source>Break</source>
        <translation>rOmper</translation>
    </message>
    <message>
        <source>ByBlock</source>
        <translation>ByBlock</translation>
    </message>
    <message>
        <source>ByLayer</source>
        <translation>ByLayer</translation>
    </message>
    <message>
        <source>CEnter</source>
        <translation>CEntro</translation>
    </message>
    <message>
        <source>CLose</source>
        <translation>CIerra</translation>
    </message>
    <message>
        <source>COlor</source>
        <translation>COlor</translation>
    </message>
    <message>
        <source>COlorbook</source>
        <translation>LIbrocolor</translation>
    </message>
    <message>
        <source>CV</source>
        <translation>VC</translation>
    </message>
    <message>
        <source>Calligraphy</source>
        <translation>Caligrafía</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
    <message>
        <source>Center</source>
        <translation>Centro</translation>
    </message>
    <message>
        <source>Chamfer</source>
        <translation>Chaflán</translation>
    </message>
    <message>
        <source>Change</source>
        <translation>Cambiar</translation>
    </message>
    <message>
        <source>Chord</source>
        <translation>Cuerda</translation>
    </message>
    <message>
        <source>Circumscribed about circle</source>
        <translation>Circunscrito alrededor del círculo</translation>
    </message>
    <message>
        <source>Clear overrides</source>
        <translation>Borrar modificaciones</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Cerrar</translation>
    </message>
    <message>
        <source>Color</source>
        <translation>Color</translation>
    </message>
    <message>
        <source>Columns</source>
        <translation>colUmnas</translation>
    </message>
    <message>
        <source>Combine</source>
        <translation>coMbinar</translation>
    </message>
    <message>
        <source>Commands</source>
        <translation>coMandos</translation>
    </message>
    <message>
        <source>Constant</source>
        <translation>Constante</translation>
    </message>
    <message>
        <source>Content</source>
        <translation>Contenido</translation>
    </message>
    <message>
        <source>Content first</source>
        <translation>Contenido primero</translation>
    </message>
    <message>
        <source>Content type</source>
        <translation>Tipo de contenido</translation>
    </message>
    <message>
        <source>Control</source>
        <translation>Control</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>Copiar</translation>
    </message>
    <message>
        <source>Corner</source>
        <translation>Esquina</translation>
    </message>
    <message>
        <source>Create</source>
        <translation>Crear</translation>
    </message>
    <message>
        <source>Crossing</source>
        <translation>Captura</translation>
    </message>
    <message>
        <source>Current</source>
        <translation>Actual</translation>
    </message>
    <message>
        <source>Current ucs</source>
        <translation>Actual SCP</translation>
    </message>
    <message>
        <source>DElta</source>
        <translation>INcremento</translation>
    </message>
    <message>
        <source>DEtailviewstyles</source>
        <translation>DEtallevistaestilos</translation>
    </message>
    <message>
        <source>DIsassociate</source>
        <translation>DEsasociar</translation>
    </message>
    <message>
        <source>DRaw</source>
        <translation>ORden</translation>
    </message>
    <message>
        <source>DRaw order</source>
        <translation>ORden de dibujo</translation>
    </message>
    <message>
        <source>DXF</source>
        <translation>DXF</translation>
    </message>
    <message>
        <source>DYnamic</source>
        <translation>DInámico</translation>
    </message>
    <message>
        <source>Decurve</source>
        <translation>Descurvar</translation>
    </message>
    <message>
        <source>Default</source>
        <translation>Pordefecto</translation>
    </message>
    <message>
        <source>Degree</source>
        <translation>Grado</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Borrar</translation>
    </message>
    <message>
        <source>Description</source>
        <translation>descriPción</translation>
    </message>
    <message>
        <source>Detach</source>
        <translation>Desenlazar</translation>
    </message>
    <message>
        <source>Diameter</source>
        <translation>Diámetro</translation>
    </message>
    <message>
        <source>Dimensions</source>
        <translation>Dimensiones</translation>
    </message>
    <message>
        <source>Dimstyle</source>
        <translation>estiloCota</translation>
    </message>
    <message>
        <source>Dimstyles</source>
        <translation>estilosCOta</translation>
    </message>
    <message>
        <source>Direction</source>
        <translation>Dirección</translation>
    </message>
    <message>
        <source>Displacement</source>
        <translation>Desplazamiento</translation>
    </message>
    <message>
        <source>Display</source>
        <translation>Pantalla</translation>
    </message>
    <message>
        <source>Distance</source>
        <translation>Distancia</translation>
    </message>
    <message>
        <source>Distribute</source>
        <translation>Distribuir</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>Hecho</translation>
    </message>
    <message>
        <source>Dynamic</source>
        <translation>Dinámico</translation>
    </message>
    <message>
        <source>EXport</source>
        <translation>EXportar</translation>
    </message>
    <message>
        <source>Edge</source>
        <translation>Arista</translation>
    </message>
    <message>
        <source>Edit</source>
        <translation>Editar</translation>
    </message>
    <message>
        <source>Edit vertex</source>
        <translation>Editar vértice</translation>
    </message>
    <message>
        <source>Elev</source>
        <translation>Elev</translation>
    </message>
    <message>
        <source>Elevation</source>
        <translation>Elevación</translation>
    </message>
    <message>
        <source>Empty text objects</source>
        <translation>tExtos vacíos</translation>
    </message>
    <message>
        <source>End</source>
        <translation>Fin</translation>
    </message>
    <message>
        <source>Endtoend</source>
        <translation>Extremos</translation>
    </message>
    <message>
        <source>Entity</source>
        <translation>Entidad</translation>
    </message>
    <message>
        <source>Erase</source>
        <translation>Borrar</translation>
    </message>
    <message>
        <source>Everything</source>
        <translation>Todo</translation>
    </message>
    <message>
        <source>Exactly</source>
        <translation>Exacto</translation>
    </message>
    <message>
        <source>Exit</source>
        <translation>Salir</translation>
    </message>
    <message>
        <source>Explode</source>
        <translation>Descomponer</translation>
    </message>
    <message>
        <source>Extend</source>
        <translation>aLargar</translation>
    </message>
    <message>
        <source>Extents</source>
        <translation>eXtensión</translation>
    </message>
    <message>
        <source>Face</source>
        <translation>Cara</translation>
    </message>
    <message>
        <source>Fence</source>
        <translation>Borde</translation>
    </message>
    <message>
        <source>Fillet</source>
        <translation>eMpalme</translation>
    </message>
    <message>
        <source>First</source>
        <translation>Primer</translation>
    </message>
    <message>
        <source>First angle</source>
        <translation>Primer ángulo</translation>
    </message>
    <message>
        <source>First point</source>
        <translation>Primer punto</translation>
    </message>
    <message>
        <source>Fit</source>
        <translation>Ajustar</translation>
    </message>
    <message>
        <source>Fit tolerance</source>
        <translation>Tolerancia de ajuste</translation>
    </message>
    <message>
        <source>Format</source>
        <translation>Formato</translation>
    </message>
    <message>
        <source>Freehand</source>
        <translation>Manoalzada</translation>
    </message>
    <message>
        <source>Freeze</source>
        <translation>Inutilizar</translation>
    </message>
    <message>
        <source>Front</source>
        <translation>Frente</translation>
    </message>
    <message>
        <source>Frozen</source>
        <translation>Inutilizada</translation>
    </message>
    <message>
        <source>Gap</source>
        <translation>Hueco</translation>
    </message>
    <message>
        <source>Gap tolerance</source>
        <translation>tolerancia de Hueco</translation>
    </message>
    <message>
        <source>Go</source>
        <translation>Ir</translation>
    </message>
    <message>
        <source>Grid</source>
        <translation>Rejilla</translation>
    </message>
    <message>
        <source>Group</source>
        <translation>Grupo</translation>
    </message>
    <message>
        <source>Groups</source>
        <translation>Grupos</translation>
    </message>
    <message>
        <source>HELP</source>
        <translation>AYUDA</translation>
    </message>
    <message>
        <source>Halfwidth</source>
        <translation>Mitadancho</translation>
    </message>
    <message>
        <source>Hatches</source>
        <translation>Sombreados</translation>
    </message>
    <message>
        <source>Height</source>
        <translation>alTura</translation>
    </message>
    <message>
        <source>Hidden</source>
        <translation>Oculto</translation>
    </message>
    <message>
        <source>Hideplot</source>
        <translation>OCultartrazado</translation>
    </message>
    <message>
        <source>Home</source>
        <translation>Predefinida</translation>
    </message>
    <message>
        <source>Hor</source>
        <translation>Hor</translation>
    </message>
    <message>
        <source>Horizontal</source>
        <translation>Horizontal</translation>
    </message>
    <message>
        <source>Ignore</source>
        <translation>Ignorar</translation>
    </message>
    <message>
        <source>Import</source>
        <translation>Importar</translation>
    </message>
    <message>
        <source>Inches</source>
        <translation>Pulgadas</translation>
    </message>
    <message>
        <source>Included angle</source>
        <translation>Incluido ángulo</translation>
    </message>
    <message>
        <source>Inscribed in circle</source>
        <translation>Inscrito en el círculo</translation>
    </message>
    <message>
        <source>Insert</source>
        <translation>Insertar</translation>
    </message>
    <message>
        <source>Invert clip</source>
        <translation>Invertir delimitación</translation>
    </message>
    <message>
        <source>Invisible</source>
        <translation>Invisible</translation>
    </message>
    <message>
        <source>Island</source>
        <translation>Isla</translation>
    </message>
    <message>
        <source>Island detection</source>
        <translation>detección de Islas</translation>
    </message>
    <message>
        <source>Isometric</source>
        <translation>Isométrico</translation>
    </message>
    <message>
        <source>Join</source>
        <translation>Juntar</translation>
    </message>
    <message>
        <source>Jointype</source>
        <translation>tipoUnión</translation>
    </message>
    <message>
        <source>Justification</source>
        <translation>Justificación</translation>
    </message>
    <message>
        <source>Justify</source>
        <translation>Justificar</translation>
    </message>
    <message>
        <source>Knots</source>
        <translation>nUdos</translation>
    </message>
    <message>
        <source>LAYOut</source>
        <translation>PREsentación</translation>
    </message>
    <message>
        <source>LAyer</source>
        <translation>CApa</translation>
    </message>
    <message>
        <source>LAyers</source>
        <translation>CApas</translation>
    </message>
    <message>
        <source>LOck</source>
        <translation>BLoquear</translation>
    </message>
    <message>
        <source>LType</source>
        <translation>TLínea</translation>
    </message>
    <message>
        <source>LTypes</source>
        <translation>TLíneas</translation>
    </message>
    <message>
        <source>LWeight</source>
        <translation>GLínea</translation>
    </message>
    <message>
        <source>Landing</source>
        <translation>Conexión</translation>
    </message>
    <message>
        <source>Landscape</source>
        <translation>Apaisado</translation>
    </message>
    <message>
        <source>Last</source>
        <translation>Último</translation>
    </message>
    <message>
        <source>Layer</source>
        <translation>CApa</translation>
    </message>
    <message>
        <source>Layout</source>
        <translation>Presentación</translation>
    </message>
    <message>
        <source>Leader</source>
        <translation>Directriz</translation>
    </message>
    <message>
        <source>Leader type</source>
        <translation>tipo de Directriz</translation>
    </message>
    <message>
        <source>Left</source>
        <translation>Izquierda</translation>
    </message>
    <message>
        <source>Length</source>
        <translation>Longitud</translation>
    </message>
    <message>
        <source>Limits</source>
        <translation>Límites</translation>
    </message>
    <message>
        <source>Line</source>
        <translation>Línea</translation>
    </message>
    <message>
        <source>Line spacing</source>
        <translation>Interlineado</translation>
    </message>
    <message>
        <source>Load</source>
        <translation>Cargar</translation>
    </message>
    <message>
        <source>Lock</source>
        <translation>Bloquear</translation>
    </message>
    <message>
        <source>Lock and fade</source>
        <translation>Bloquear y difuminar</translation>
    </message>
    <message>
        <source>Ltype</source>
        <translation>Tlínea</translation>
    </message>
    <message>
        <source>Ltype gen</source>
        <translation>Tipolínea gen</translation>
    </message>
    <message>
        <source>MATerial</source>
        <translation>MATerial</translation>
    </message>
    <message>
        <source>MAterials</source>
        <translation>MAteriales</translation>
    </message>
    <message>
        <source>MUltileaderstyles</source>
        <translation>DIrectrizmúltipleestilos</translation>
    </message>
    <message>
        <source>Make</source>
        <translation>CRear</translation>
    </message>
    <message>
        <source>Mark</source>
        <translation>Marca</translation>
    </message>
    <message>
        <source>Material</source>
        <translation>Material</translation>
    </message>
    <message>
        <source>Maxpoints</source>
        <translation>Maxpuntos</translation>
    </message>
    <message>
        <source>Method</source>
        <translation>Método</translation>
    </message>
    <message>
        <source>Millimeters</source>
        <translation>Milímetros</translation>
    </message>
    <message>
        <source>Mlinestyles</source>
        <translation>LMúltipleestilos</translation>
    </message>
    <message>
        <source>Move</source>
        <translation>Desplazar</translation>
    </message>
    <message>
        <source>Mtext</source>
        <translation>textoM</translation>
    </message>
    <message>
        <source>Multiple</source>
        <translation>Múltiple</translation>
    </message>
    <message>
        <source>Multiple points</source>
        <translation>Múltiples puntos</translation>
    </message>
    <message>
        <source>NAmed</source>
        <translation>GUardado</translation>
    </message>
    <message>
        <source>NEW</source>
        <translation>NUEVO</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Nombre</translation>
    </message>
    <message>
        <source>New</source>
        <translation>Nuevo</translation>
    </message>
    <message>
        <source>New boundary</source>
        <translation>Nuevo contorno</translation>
    </message>
    <message>
        <source>Newfrz</source>
        <translation>Nuevainut</translation>
    </message>
    <message>
        <source>Newvpfreeze</source>
        <translation>nuevainutVentana</translation>
    </message>
    <message>
        <source>Next</source>
        <translation>Siguiente</translation>
    </message>
    <message>
        <source>No</source>
        <translation>No</translation>
    </message>
    <message>
        <source>No columns</source>
        <translation>Sin columnas</translation>
    </message>
    <message>
        <source>No extend</source>
        <translation>Noalargar</translation>
    </message>
    <message>
        <source>No leader</source>
        <translation>Sin directriz</translation>
    </message>
    <message>
        <source>No plot</source>
        <translation>No trazar</translation>
    </message>
    <message>
        <source>No trim</source>
        <translation>Norecortar</translation>
    </message>
    <message>
        <source>None</source>
        <translation>Ninguno</translation>
    </message>
    <message>
        <source>Normal</source>
        <translation>Normal</translation>
    </message>
    <message>
        <source>Not</source>
        <translation>No</translation>
    </message>
    <message>
        <source>OBject</source>
        <translation>OBjeto</translation>
    </message>
    <message>
        <source>OFF</source>
        <translation>DES</translation>
    </message>
    <message>
        <source>ON</source>
        <translation>ACT</translation>
    </message>
    <message>
        <source>Object</source>
        <translation>Objeto</translation>
    </message>
    <message>
        <source>Object type</source>
        <translation>tipo de Objeto</translation>
    </message>
    <message>
        <source>Objects</source>
        <translation>Objetos</translation>
    </message>
    <message>
        <source>Oblique</source>
        <translation>Oblicuidad</translation>
    </message>
    <message>
        <source>Off</source>
        <translation>Desactivar</translation>
    </message>
    <message>
        <source>Offset</source>
        <translation>Desfase</translation>
    </message>
    <message>
        <source>On</source>
        <translation>Activado</translation>
    </message>
    <message>
        <source>One</source>
        <translation>Uno</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>aBrir</translation>
    </message>
    <message>
        <source>Options</source>
        <translation>Opciones</translation>
    </message>
    <message>
        <source>Order</source>
        <translation>Orden</translation>
    </message>
    <message>
        <source>Origin</source>
        <translation>Origen</translation>
    </message>
    <message>
        <source>Orphaned data</source>
        <translation>datos Huérfanos</translation>
    </message>
    <message>
        <source>Orthographic</source>
        <translation>Ortogonal</translation>
    </message>
    <message>
        <source>Outer</source>
        <translation>Exterior</translation>
    </message>
    <message>
        <source>Overlaps</source>
        <translation>Solapes</translation>
    </message>
    <message>
        <source>Overlay</source>
        <translation>Superponer</translation>
    </message>
    <message>
        <source>PStyle</source>
        <translation>ETrazado</translation>
    </message>
    <message>
        <source>Parameter</source>
        <translation>Parámetro</translation>
    </message>
    <message>
        <source>Partial</source>
        <translation>Parcial</translation>
    </message>
    <message>
        <source>Path</source>
        <translation>Ruta</translation>
    </message>
    <message>
        <source>Percent</source>
        <translation>Porcentaje</translation>
    </message>
    <message>
        <source>Pick points</source>
        <translation>designar Puntos</translation>
    </message>
    <message>
        <source>Plot</source>
        <translation>traZar</translation>
    </message>
    <message>
        <source>Plotstyles</source>
        <translation>estilosTRazado</translation>
    </message>
    <message>
        <source>Points</source>
        <translation>Puntos</translation>
    </message>
    <message>
        <source>Polar</source>
        <translation>Polar</translation>
    </message>
    <message>
        <source>Polygonal</source>
        <translation>Poligonal</translation>
    </message>
    <message>
        <source>Polyline</source>
        <translation>Polilínea</translation>
    </message>
    <message>
        <source>Portrait</source>
        <translation>Vertical</translation>
    </message>
    <message>
        <source>Preset</source>
        <translation>Predefinido</translation>
    </message>
    <message>
        <source>Previous</source>
        <translation>Previo</translation>
    </message>
    <message>
        <source>Project</source>
        <translation>Proyección</translation>
    </message>
    <message>
        <source>Properties</source>
        <translation>Propiedades</translation>
    </message>
    <message>
        <source>QUIT</source>
        <translation>SALIR</translation>
    </message>
    <message>
        <source>Quadrant</source>
        <translation>Cuadrante</translation>
    </message>
    <message>
        <source>REName</source>
        <translation>REnombrar</translation>
    </message>
    <message>
        <source>Radius</source>
        <translation>Radio</translation>
    </message>
    <message>
        <source>Ratio</source>
        <translation>Relación</translation>
    </message>
    <message>
        <source>Rectangular</source>
        <translation>Rectangular</translation>
    </message>
    <message>
        <source>Reference</source>
        <translation>Referencia</translation>
    </message>
    <message>
        <source>Regapps</source>
        <translation>APlicreg</translation>
    </message>
    <message>
        <source>Regen</source>
        <translation>Regen</translation>
    </message>
    <message>
        <source>Region</source>
        <translation>Región</translation>
    </message>
    <message>
        <source>Reload</source>
        <translation>reCargar</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Quitar</translation>
    </message>
    <message>
        <source>Remove leaders</source>
        <translation>Quitar directrices</translation>
    </message>
    <message>
        <source>Rename</source>
        <translation>renOmbrar</translation>
    </message>
    <message>
        <source>Rendered</source>
        <translation>Renderizado</translation>
    </message>
    <message>
        <source>Replace</source>
        <translation>Reemplazar</translation>
    </message>
    <message>
        <source>Reset</source>
        <translation>Restablecer</translation>
    </message>
    <message>
        <source>Restore</source>
        <translation>Restablecer</translation>
    </message>
    <message>
        <source>Retain</source>
        <translation>coNservar</translation>
    </message>
    <message>
        <source>Retain boundary</source>
        <translation>coNservar contorno</translation>
    </message>
    <message>
        <source>Reverse</source>
        <translation>inVertir</translation>
    </message>
    <message>
        <source>Right</source>
        <translation>Derecha</translation>
    </message>
    <message>
        <source>Rotate</source>
        <translation>Girar</translation>
    </message>
    <message>
        <source>Rotated</source>
        <translation>giRada</translation>
    </message>
    <message>
        <source>Rotation</source>
        <translation>Rotación</translation>
    </message>
    <message>
        <source>SAveas</source>
        <translation>GUardarcomo</translation>
    </message>
    <message>
        <source>SEctionviewstyles</source>
        <translation>SEcciónvistaestilos</translation>
    </message>
    <message>
        <source>SHapes</source>
        <translation>FOrmas</translation>
    </message>
    <message>
        <source>SIngle</source>
        <translation>UNica</translation>
    </message>
    <message>
        <source>STatus</source>
        <translation>ESTado</translation>
    </message>
    <message>
        <source>STraight</source>
        <translation>REcto</translation>
    </message>
    <message>
        <source>STyle</source>
        <translation>ESTilo</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Guardar</translation>
    </message>
    <message>
        <source>Scale</source>
        <translation>Escala</translation>
    </message>
    <message>
        <source>Second</source>
        <translation>Segundo</translation>
    </message>
    <message>
        <source>Second angle</source>
        <translation>Segundo ángulo</translation>
    </message>
    <message>
        <source>Second pt</source>
        <translation>Segundo punto</translation>
    </message>
    <message>
        <source>Select</source>
        <translation>Designar</translation>
    </message>
    <message>
        <source>Select objects</source>
        <translation>Designar objetos</translation>
    </message>
    <message>
        <source>Select polyline</source>
        <translation>Designar polilínea</translation>
    </message>
    <message>
        <source>Selectable</source>
        <translation>Seleccionable</translation>
    </message>
    <message>
        <source>Set</source>
        <translation>Fijar</translation>
    </message>
    <message>
        <source>Set new origin</source>
        <translation>Definir nuevo origen</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Parámetros</translation>
    </message>
    <message>
        <source>Shadeplot</source>
        <translation>trazadoSombreado</translation>
    </message>
    <message>
        <source>Single</source>
        <translation>Sencillo</translation>
    </message>
    <message>
        <source>Snap</source>
        <translation>Forzado</translation>
    </message>
    <message>
        <source>Solid</source>
        <translation>Sólido</translation>
    </message>
    <message>
        <source>Source</source>
        <translation>Origen</translation>
    </message>
    <message>
        <source>Spacing</source>
        <translation>Separación</translation>
    </message>
    <message>
        <source>Spline</source>
        <translation>Spline</translation>
    </message>
    <message>
        <source>Spline curve</source>
        <translation>Spline curva</translation>
    </message>
    <message>
        <source>Square root</source>
        <translation>Raíz cuadrada</translation>
    </message>
    <message>
        <source>Standard</source>
        <translation>Estándar</translation>
    </message>
    <message>
        <source>Static</source>
        <translation>Estático</translation>
    </message>
    <message>
        <source>Straight</source>
        <translation>Recta</translation>
    </message>
    <message>
        <source>Straighten</source>
        <translation>Enderezar</translation>
    </message>
    <message>
        <source>Style</source>
        <translation>Estilo</translation>
    </message>
    <message>
        <source>Subtract area</source>
        <translation>Sustraer área</translation>
    </message>
    <message>
        <source>TRansparency</source>
        <translation>TRansparencia</translation>
    </message>
    <message>
        <source>Tablestyle</source>
        <translation>estiloTabla</translation>
    </message>
    <message>
        <source>Tablestyles</source>
        <translation>estilosTAbla</translation>
    </message>
    <message>
        <source>Tangent</source>
        <translation>Tangente</translation>
    </message>
    <message>
        <source>Template</source>
        <translation>Plantilla</translation>
    </message>
    <message>
        <source>Text</source>
        <translation>Texto</translation>
    </message>
    <message>
        <source>Thaw</source>
        <translation>reUtilizar</translation>
    </message>
    <message>
        <source>Thawed</source>
        <translation>Reutilizada</translation>
    </message>
    <message>
        <source>Thickness</source>
        <translation>alturaObjeto</translation>
    </message>
    <message>
        <source>Through</source>
        <translation>porPunto</translation>
    </message>
    <message>
        <source>Tolerance</source>
        <translation>Tolerancia</translation>
    </message>
    <message>
        <source>Top</source>
        <translation>Superior</translation>
    </message>
    <message>
        <source>Total</source>
        <translation>Total</translation>
    </message>
    <message>
        <source>Transparency</source>
        <translation>Transparencia</translation>
    </message>
    <message>
        <source>Trim</source>
        <translation>recorTar</translation>
    </message>
    <message>
        <source>Truecolor</source>
        <translation>Colorverdadero</translation>
    </message>
    <message>
        <source>Ttr (tan tan radius)</source>
        <translation>Ttr (tan tan radio)</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>Tipo</translation>
    </message>
    <message>
        <source>Ucs</source>
        <translation>Scp</translation>
    </message>
    <message>
        <source>Under</source>
        <translation>Debajo</translation>
    </message>
    <message>
        <source>Under objects</source>
        <translation>Debajo de objetos</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>desHacer</translation>
    </message>
    <message>
        <source>Uniform</source>
        <translation>Uniforme</translation>
    </message>
    <message>
        <source>Unload</source>
        <translation>descarGar</translation>
    </message>
    <message>
        <source>Unlock</source>
        <translation>desbloQuear</translation>
    </message>
    <message>
        <source>Use</source>
        <translation>Usar</translation>
    </message>
    <message>
        <source>Use current origin</source>
        <translation>Usar origen actual</translation>
    </message>
    <message>
        <source>Use current spacing</source>
        <translation>Usar separación actual</translation>
    </message>
    <message>
        <source>User defined</source>
        <translation>Usuario</translation>
    </message>
    <message>
        <source>VIew</source>
        <translation>VIsta</translation>
    </message>
    <message>
        <source>VPort</source>
        <translation>VEntana</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>Valor</translation>
    </message>
    <message>
        <source>Variables</source>
        <translation>Variables</translation>
    </message>
    <message>
        <source>Ver</source>
        <translation>Ver</translation>
    </message>
    <message>
        <source>Verify</source>
        <translation>Verificar</translation>
    </message>
    <message>
        <source>Version</source>
        <translation>Versión</translation>
    </message>
    <message>
        <source>Vertical</source>
        <translation>Vertical</translation>
    </message>
    <message>
        <source>View</source>
        <translation>Vista</translation>
    </message>
    <message>
        <source>Viewports</source>
        <translation>Ventanas</translation>
    </message>
    <message>
        <source>Visual styles</source>
        <translation>estilos Visuales</translation>
    </message>
    <message>
        <source>Visualstyles</source>
        <translation>estilosVIsuales</translation>
    </message>
    <message>
        <source>Vpfreeze</source>
        <translation>inutVentana</translation>
    </message>
    <message>
        <source>Vpvisdflt</source>
        <translation>Visdefventana</translation>
    </message>
    <message>
        <source>Width</source>
        <translation>aNcho</translation>
    </message>
    <message>
        <source>Window</source>
        <translation>Ventana</translation>
    </message>
    <message>
        <source>Wireframe</source>
        <translation>Alámbrico</translation>
    </message>
    <message>
        <source>World</source>
        <translation>Universal</translation>
    </message>
    <message>
        <source>XY</source>
        <translation>XY</translation>
    </message>
    <message>
        <source>XYZ</source>
        <translation>XYZ</translation>
    </message>
    <message>
        <source>Xaxis</source>
        <translation>ejeX</translation>
    </message>
    <message>
        <source>Xdatum</source>
        <translation>coordX</translation>
    </message>
    <message>
        <source>YZ</source>
        <translation>YZ</translation>
    </message>
    <message>
        <source>Yaxis</source>
        <translation>ejeY</translation>
    </message>
    <message>
        <source>Ydatum</source>
        <translation>coordY</translation>
    </message>
    <message>
        <source>Yes</source>
        <translation>Sí</translation>
    </message>
    <message>
        <source>ZAxis</source>
        <translation>EZ</translation>
    </message>
    <message>
        <source>ZX</source>
        <translation>ZX</translation>
    </message>
    <message>
        <source>Zaxis</source>
        <translation>ejeZ</translation>
    </message>
    <message>
        <source>Zdepth</source>
        <translation>Zprofundidad</translation>
    </message>
    <message>
        <source>Zero</source>
        <translation>Cero</translation>
    </message>
    <message>
        <source>Zero-length geometry</source>
        <translation>geometría de longitud Cero</translation>
    </message>
    <message>
        <source>beHind</source>
        <translation>Contorno</translation>
    </message>
    <message>
        <source>bounDary</source>
        <translation>delanTe</translation>
    </message>
    <message>
        <source>bring in front of bounDary</source>
        <translation>traer delanTe del contorno</translation>
    </message>
    <message>
        <source>bring to Front</source>
        <translation>traer al Frente</translation>
    </message>
    <message>
        <source>cLose</source>
        <translation>cErrar</translation>
    </message>
    <message>
        <source>chord Length</source>
        <translation>Longitud de cuerda</translation>
    </message>
    <message>
        <source>do Not assign</source>
        <translation>No asignar</translation>
    </message>
    <message>
        <source>draW</source>
        <translation>diBujar</translation>
    </message>
    <message>
        <source>draW boundary</source>
        <translation>diBujar contorno</translation>
    </message>
    <message>
        <source>eRase</source>
        <translation>Suprimir</translation>
    </message>
    <message>
        <source>eXcept current</source>
        <translation>todas Excepto la actual</translation>
    </message>
    <message>
        <source>eXit</source>
        <translation>saLir</translation>
    </message>
    <message>
        <source>eXit options</source>
        <translation>saLir de opciones</translation>
    </message>
    <message>
        <source>end Tangency</source>
        <translation>Tangencia final</translation>
    </message>
    <message>
        <source>generate Polyline</source>
        <translation>generar Polilínea</translation>
    </message>
    <message>
        <source>hatch COlor</source>
        <translation>COlor de sombreado</translation>
    </message>
    <message>
        <source>lAnding</source>
        <translation>Conexión</translation>
    </message>
    <message>
        <source>leader Landing first</source>
        <translation>coneXión primero</translation>
    </message>
    <message>
        <source>leader lAnding</source>
        <translation>Conexión de directriz</translation>
    </message>
    <message>
        <source>lineType</source>
        <translation>Tipolínea</translation>
    </message>
    <message>
        <source>lineWeight</source>
        <translation>Grosorlínea</translation>
    </message>
    <message>
        <source>ltScale</source>
        <translation>ESCalatl</translation>
    </message>
    <message>
        <source>mEthod</source>
        <translation>métOdo</translation>
    </message>
    <message>
        <source>mOde</source>
        <translation>mOdo</translation>
    </message>
    <message>
        <source>multileadersTyle</source>
        <translation>estiloDirectrizmúltiple</translation>
    </message>
    <message>
        <source>plotStyle</source>
        <translation>Estilotrazado</translation>
    </message>
    <message>
        <source>rEconcile</source>
        <translation>rEconciliar</translation>
    </message>
    <message>
        <source>remove Boundaries</source>
        <translation>Eliminar contornos</translation>
    </message>
    <message>
        <source>sPline</source>
        <translation>Spline</translation>
    </message>
    <message>
        <source>send beHind boundary</source>
        <translation>enviar detrás del Contorno</translation>
    </message>
    <message>
        <source>send to Back</source>
        <translation>enviar Atrás</translation>
    </message>
    <message>
        <source>separate Hatches</source>
        <translation>Sombreados separados</translation>
    </message>
    <message>
        <source>specify Spacing</source>
        <translation>precisar Separación</translation>
    </message>
    <message>
        <source>stAte</source>
        <translation>estAdo</translation>
    </message>
    <message>
        <source>start Tangency</source>
        <translation>Tangencia inicial</translation>
    </message>
    <message>
        <source>textSTyles</source>
        <translation>ESTilostexto</translation>
    </message>
    <message>
        <source>toLerance</source>
        <translation>toLerancia</translation>
    </message>
    <message>
        <source>ALL</source>
        <translation>TODO</translation>
    </message>
    <message>
        <source>ALl</source>
        <translation>TOdo</translation>
    </message>
    <message>
        <source>AUto</source>
        <translation>AUto</translation>
    </message>
    <message>
        <source>BC</source>
        <translation>IC</translation>
    </message>
    <message>
        <source>BL</source>
        <translation>II</translation>
    </message>
    <message>
        <source>BOX</source>
        <translation>CAja</translation>
    </message>
    <message>
        <source>BR</source>
        <translation>ID</translation>
    </message>
    <message>
        <source>CPolygon</source>
        <translation>CPolígono</translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>Borrar</translation>
    </message>
    <message>
        <source>Included</source>
        <translation>Incluido</translation>
    </message>
    <message>
        <source>MC</source>
        <translation>MC</translation>
    </message>
    <message>
        <source>MIrror</source>
        <translation>SImetría</translation>
    </message>
    <message>
        <source>ML</source>
        <translation>MI</translation>
    </message>
    <message>
        <source>MOve</source>
        <translation>DEsplazar</translation>
    </message>
    <message>
        <source>MR</source>
        <translation>MD</translation>
    </message>
    <message>
        <source>Middle</source>
        <translation>Medio</translation>
    </message>
    <message>
        <source>Pick</source>
        <translation>Puntos</translation>
    </message>
    <message>
        <source>Plotstyle</source>
        <translation>estiloTrazado</translation>
    </message>
    <message>
        <source>SCale</source>
        <translation>ESCala</translation>
    </message>
    <message>
        <source>STretch</source>
        <translation>ESTirar</translation>
    </message>
    <message>
        <source>TC</source>
        <translation>SC</translation>
    </message>
    <message>
        <source>TL</source>
        <translation>SI</translation>
    </message>
    <message>
        <source>TR</source>
        <translation>SD</translation>
    </message>
    <message>
        <source>Tangency</source>
        <translation>Tangencia</translation>
    </message>
    <message>
        <source>Ttr</source>
        <translation>Ttr</translation>
    </message>
    <message>
        <source>WPolygon</source>
        <translation>VPolígono</translation>
    </message>
    <message>
        <source>Align</source>
        <translation>aLinear</translation>
    </message>
    <message>
        <source>orthoGraphic</source>
        <translation>orTogonal</translation>
    </message>
</context>
<context>
    <name>Layers</name>
    <message>
        <source>Name</source>
        <translation>Nombre</translation>
    </message>
    <message>
        <source>On</source>
        <translation>Act.</translation>
    </message>
    <message>
        <source>Freeze</source>
        <translation>Inutilizar</translation>
    </message>
    <message>
        <source>Lock</source>
        <translation>Bloquear</translation>
    </message>
    <message>
        <source>Plot</source>
        <translation>Trazar</translation>
    </message>
    <message>
        <source>Color</source>
        <translation>Color</translation>
    </message>
    <message>
        <source>Linetype</source>
        <translation>Tipo de línea</translation>
    </message>
    <message>
        <source>Lineweight</source>
        <translation>Grosor de línea</translation>
    </message>
    <message>
        <source>Transparency</source>
        <translation>Transparencia</translation>
    </message>
    <message>
        <source>Description</source>
        <translation>Descripción</translation>
    </message>
    <message>
        <source>Viewport</source>
        <translation>Ventana</translation>
    </message>
    <message>
        <source>thawed</source>
        <translation>utilizada</translation>
    </message>
    <message>
        <source>frozen</source>
        <translation>inutilizada</translation>
    </message>
    <message>
        <source>unlocked</source>
        <translation>desbloqueada</translation>
    </message>
    <message>
        <source>locked</source>
        <translation>bloqueada</translation>
    </message>
    <message>
        <source>plots</source>
        <translation>se traza</translation>
    </message>
    <message>
        <source>no plot</source>
        <translation>no se traza</translation>
    </message>
    <message>
        <source>on</source>
        <translation>activada</translation>
    </message>
    <message>
        <source>off</source>
        <translation>desactivada</translation>
    </message>
</context>
<context>
    <name>Menus</name>
    <message>
        <source>&amp;About Ortakit</source>
        <translation>&amp;Acerca de Ortakit</translation>
    </message>
    <message>
        <source>&amp;Aiming</source>
        <translation>&amp;Puntería</translation>
    </message>
    <message>
        <source>&amp;Black ground</source>
        <translation>Fondo &amp;negro</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>&amp;Cerrar</translation>
    </message>
    <message>
        <source>&amp;Construction lines</source>
        <translation>Líneas de &amp;construcción</translation>
    </message>
    <message>
        <source>&amp;Contents</source>
        <translation>&amp;Contenido</translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation>&amp;Copiar</translation>
    </message>
    <message>
        <source>&amp;Dark style</source>
        <translation>Estilo &amp;oscuro</translation>
    </message>
    <message>
        <source>&amp;Delete</source>
        <translation>&amp;Borrar</translation>
    </message>
    <message>
        <source>&amp;Draw</source>
        <translation>&amp;Dibujo</translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <translation>&amp;Edición</translation>
    </message>
    <message>
        <source>&amp;Export</source>
        <translation>&amp;Exportar</translation>
    </message>
    <message>
        <source>&amp;File</source>
        <translation>&amp;Archivo</translation>
    </message>
    <message>
        <source>&amp;Fit</source>
        <translation>A&amp;justar</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>A&amp;yuda</translation>
    </message>
    <message>
        <source>&amp;In space</source>
        <translation>En el e&amp;spacio</translation>
    </message>
    <message>
        <source>&amp;Insert</source>
        <translation>&amp;Insertar</translation>
    </message>
    <message>
        <source>&amp;Light style</source>
        <translation>Estilo c&amp;laro</translation>
    </message>
    <message>
        <source>&amp;Lock display</source>
        <translation>&amp;Bloquear visualización</translation>
    </message>
    <message>
        <source>&amp;Make</source>
        <translation>&amp;Crear</translation>
    </message>
    <message>
        <source>&amp;Modify</source>
        <translation>&amp;Modificar</translation>
    </message>
    <message>
        <source>&amp;New</source>
        <translation>&amp;Nuevo</translation>
    </message>
    <message>
        <source>&amp;Next under the pointer</source>
        <translation>&amp;Siguiente bajo el cursor</translation>
    </message>
    <message>
        <source>&amp;Open...</source>
        <translation>&amp;Abrir...</translation>
    </message>
    <message>
        <source>&amp;PNG picture...</source>
        <translation>Imagen &amp;PNG...</translation>
    </message>
    <message>
        <source>&amp;Pan</source>
        <translation>&amp;Encuadre</translation>
    </message>
    <message>
        <source>&amp;Paste</source>
        <translation>&amp;Pegar</translation>
    </message>
    <message>
        <source>&amp;Print...</source>
        <translation>Im&amp;primir...</translation>
    </message>
    <message>
        <source>&amp;Properties</source>
        <translation>&amp;Propiedades</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>&amp;Salir</translation>
    </message>
    <message>
        <source>&amp;Record session...</source>
        <translation>&amp;Grabar sesión...</translation>
    </message>
    <message>
        <source>&amp;Redo</source>
        <translation>&amp;Rehacer</translation>
    </message>
    <message>
        <source>&amp;Regenerate</source>
        <translation>&amp;Regenerar</translation>
    </message>
    <message>
        <source>&amp;SVG drawing...</source>
        <translation>Dibujo &amp;SVG...</translation>
    </message>
    <message>
        <source>&amp;Save</source>
        <translation>&amp;Guardar</translation>
    </message>
    <message>
        <source>&amp;Start page</source>
        <translation>Página de &amp;inicio</translation>
    </message>
    <message>
        <source>&amp;Toolbars</source>
        <translation>&amp;Barras de herramientas</translation>
    </message>
    <message>
        <source>&amp;Tools</source>
        <translation>&amp;Herramientas</translation>
    </message>
    <message>
        <source>&amp;Undo</source>
        <translation>&amp;Deshacer</translation>
    </message>
    <message>
        <source>&amp;Unlock display</source>
        <translation>&amp;Desbloquear visualización</translation>
    </message>
    <message>
        <source>&amp;Upkeep</source>
        <translation>&amp;Mantenimiento</translation>
    </message>
    <message>
        <source>&amp;View</source>
        <translation>&amp;Ver</translation>
    </message>
    <message>
        <source>&amp;Views and planes</source>
        <translation>&amp;Vistas y planos</translation>
    </message>
    <message>
        <source>&amp;Zoom by its options</source>
        <translation>&amp;Zoom por opciones</translation>
    </message>
    <message>
        <source>1:1</source>
        <translation>1:1</translation>
    </message>
    <message>
        <source>1:10</source>
        <translation>1:10</translation>
    </message>
    <message>
        <source>1:100</source>
        <translation>1:100</translation>
    </message>
    <message>
        <source>1:2</source>
        <translation>1:2</translation>
    </message>
    <message>
        <source>1:20</source>
        <translation>1:20</translation>
    </message>
    <message>
        <source>1:5</source>
        <translation>1:5</translation>
    </message>
    <message>
        <source>1:50</source>
        <translation>1:50</translation>
    </message>
    <message>
        <source>Align</source>
        <translation>Alinear</translation>
    </message>
    <message>
        <source>Align multileaders</source>
        <translation>Alinear directrices múltiples</translation>
    </message>
    <message>
        <source>Aligned</source>
        <translation>Alineada</translation>
    </message>
    <message>
        <source>Along the axes</source>
        <translation>Según los ejes</translation>
    </message>
    <message>
        <source>Angle</source>
        <translation>Ángulo</translation>
    </message>
    <message>
        <source>Arc</source>
        <translation>Arco</translation>
    </message>
    <message>
        <source>Arc length</source>
        <translation>Longitud de arco</translation>
    </message>
    <message>
        <source>Area</source>
        <translation>Área</translation>
    </message>
    <message>
        <source>Array</source>
        <translation>Matriz</translation>
    </message>
    <message>
        <source>As another one</source>
        <translation>Como otro</translation>
    </message>
    <message>
        <source>At steps along a curve</source>
        <translation>A intervalos en una curva</translation>
    </message>
    <message>
        <source>Attributes</source>
        <translation>Atributos</translation>
    </message>
    <message>
        <source>Base point</source>
        <translation>Punto base</translation>
    </message>
    <message>
        <source>Between sheet and model</source>
        <translation>Entre presentación y modelo</translation>
    </message>
    <message>
        <source>Boundary</source>
        <translation>Contorno</translation>
    </message>
    <message>
        <source>Break</source>
        <translation>Partir</translation>
    </message>
    <message>
        <source>Bring back what was &amp;erased</source>
        <translation>Recuperar lo &amp;borrado</translation>
    </message>
    <message>
        <source>Center mark</source>
        <translation>Marca de centro</translation>
    </message>
    <message>
        <source>Chamfer</source>
        <translation>Chaflán</translation>
    </message>
    <message>
        <source>Choose &amp;all</source>
        <translation>Designar &amp;todo</translation>
    </message>
    <message>
        <source>Choose &amp;similar</source>
        <translation>Designar &amp;similares</translation>
    </message>
    <message>
        <source>Chooses what can be seen and changed</source>
        <translation>Designa lo que se puede ver y cambiar</translation>
    </message>
    <message>
        <source>Circle</source>
        <translation>Círculo</translation>
    </message>
    <message>
        <source>Clip</source>
        <translation>Delimitar</translation>
    </message>
    <message>
        <source>Closes all drawings and the program</source>
        <translation>Cierra todos los dibujos y el programa</translation>
    </message>
    <message>
        <source>Closes the drawing in front</source>
        <translation>Cierra el dibujo que está delante</translation>
    </message>
    <message>
        <source>Co&amp;mmands...</source>
        <translation>Co&amp;mandos...</translation>
    </message>
    <message>
        <source>Color</source>
        <translation>Color</translation>
    </message>
    <message>
        <source>Coordinates of a point</source>
        <translation>Coordenadas de un punto</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>Copiar</translation>
    </message>
    <message>
        <source>Copy with &amp;base point</source>
        <translation>Copiar con punto &amp;base</translation>
    </message>
    <message>
        <source>Cu&amp;t</source>
        <translation>Cor&amp;tar</translation>
    </message>
    <message>
        <source>Dark windows</source>
        <translation>Ventanas oscuras</translation>
    </message>
    <message>
        <source>Define an attribute</source>
        <translation>Definir un atributo</translation>
    </message>
    <message>
        <source>Delete layers</source>
        <translation>Borrar capas</translation>
    </message>
    <message>
        <source>Diameter</source>
        <translation>Diámetro</translation>
    </message>
    <message>
        <source>Dime&amp;nsion</source>
        <translation>Acotació&amp;n</translation>
    </message>
    <message>
        <source>Dimension style</source>
        <translation>Estilo de cota</translation>
    </message>
    <message>
        <source>Distance</source>
        <translation>Distancia</translation>
    </message>
    <message>
        <source>Divide a curve</source>
        <translation>Dividir una curva</translation>
    </message>
    <message>
        <source>Divide the screen</source>
        <translation>Dividir la pantalla</translation>
    </message>
    <message>
        <source>Draw order</source>
        <translation>Orden de dibujo</translation>
    </message>
    <message>
        <source>Drawing limits</source>
        <translation>Límites del dibujo</translation>
    </message>
    <message>
        <source>Drawing status</source>
        <translation>Estado del dibujo</translation>
    </message>
    <message>
        <source>Draws on black</source>
        <translation>Dibuja sobre negro</translation>
    </message>
    <message>
        <source>Draws on white</source>
        <translation>Dibuja sobre blanco</translation>
    </message>
    <message>
        <source>Edit multileaders</source>
        <translation>Editar directrices múltiples</translation>
    </message>
    <message>
        <source>Edit text and extension lines</source>
        <translation>Editar texto y líneas de referencia</translation>
    </message>
    <message>
        <source>Elevation and thickness</source>
        <translation>Elevación y altura de objeto</translation>
    </message>
    <message>
        <source>Ellipse</source>
        <translation>Elipse</translation>
    </message>
    <message>
        <source>End isolating</source>
        <translation>Terminar aislamiento</translation>
    </message>
    <message>
        <source>Erase</source>
        <translation>Borrar</translation>
    </message>
    <message>
        <source>Erases what is chosen</source>
        <translation>Borra lo designado</translation>
    </message>
    <message>
        <source>Explode</source>
        <translation>Descomponer</translation>
    </message>
    <message>
        <source>Extend</source>
        <translation>Alargar</translation>
    </message>
    <message>
        <source>External reference</source>
        <translation>Referencia externa</translation>
    </message>
    <message>
        <source>F&amp;ormat</source>
        <translation>F&amp;ormato</translation>
    </message>
    <message>
        <source>Face</source>
        <translation>Cara</translation>
    </message>
    <message>
        <source>Filled area</source>
        <translation>Área rellena</translation>
    </message>
    <message>
        <source>Fillet</source>
        <translation>Empalme</translation>
    </message>
    <message>
        <source>Finds commands, menu entries and system variables</source>
        <translation>Busca comandos, entradas de menú y variables de sistema</translation>
    </message>
    <message>
        <source>Freeze</source>
        <translation>Inutilizar</translation>
    </message>
    <message>
        <source>From the same begin</source>
        <translation>Desde el mismo origen</translation>
    </message>
    <message>
        <source>Gives what was printed most of the window, and back</source>
        <translation>Da a lo impreso la mayor parte de la ventana, y vuelta</translation>
    </message>
    <message>
        <source>Goes through what lies on top of each other</source>
        <translation>Recorre lo que está uno encima de otro</translation>
    </message>
    <message>
        <source>Grid</source>
        <translation>Rejilla</translation>
    </message>
    <message>
        <source>Group</source>
        <translation>Grupo</translation>
    </message>
    <message>
        <source>Hatch</source>
        <translation>Sombreado</translation>
    </message>
    <message>
        <source>Horizontal or vertical</source>
        <translation>Horizontal o vertical</translation>
    </message>
    <message>
        <source>How the layout that is shown lies on its paper</source>
        <translation>Cómo está en su papel la presentación que se muestra</translation>
    </message>
    <message>
        <source>I&amp;n space</source>
        <translation>En el e&amp;spacio</translation>
    </message>
    <message>
        <source>In a row</source>
        <translation>En cadena</translation>
    </message>
    <message>
        <source>In&amp;quiry</source>
        <translation>Con&amp;sulta</translation>
    </message>
    <message>
        <source>Insert a block</source>
        <translation>Insertar un bloque</translation>
    </message>
    <message>
        <source>Into the viewport</source>
        <translation>A la ventana</translation>
    </message>
    <message>
        <source>Isolate</source>
        <translation>Aislar</translation>
    </message>
    <message>
        <source>Isometric plane</source>
        <translation>Plano isométrico</translation>
    </message>
    <message>
        <source>Jogged radius</source>
        <translation>Radio con recodo</translation>
    </message>
    <message>
        <source>Join</source>
        <translation>Unir</translation>
    </message>
    <message>
        <source>Layer, color, linetype</source>
        <translation>Capa, color, tipo de línea</translation>
    </message>
    <message>
        <source>Layers</source>
        <translation>Capas</translation>
    </message>
    <message>
        <source>Layers of &amp;objects</source>
        <translation>Capas de &amp;objetos</translation>
    </message>
    <message>
        <source>Layout</source>
        <translation>Presentación</translation>
    </message>
    <message>
        <source>Leader</source>
        <translation>Directriz</translation>
    </message>
    <message>
        <source>Lengthen</source>
        <translation>Longitud</translation>
    </message>
    <message>
        <source>Light windows</source>
        <translation>Ventanas claras</translation>
    </message>
    <message>
        <source>Line</source>
        <translation>Línea</translation>
    </message>
    <message>
        <source>Linetype</source>
        <translation>Tipo de línea</translation>
    </message>
    <message>
        <source>Lineweight</source>
        <translation>Grosor de línea</translation>
    </message>
    <message>
        <source>Lisp &amp;console</source>
        <translation>&amp;Consola Lisp</translation>
    </message>
    <message>
        <source>List</source>
        <translation>Lista</translation>
    </message>
    <message>
        <source>Load shapes</source>
        <translation>Cargar formas</translation>
    </message>
    <message>
        <source>Lock</source>
        <translation>Bloquear</translation>
    </message>
    <message>
        <source>Lon&amp;g command history</source>
        <translation>Historial &amp;largo de comandos</translation>
    </message>
    <message>
        <source>Look for errors</source>
        <translation>Buscar errores</translation>
    </message>
    <message>
        <source>Look from a direction</source>
        <translation>Mirar desde una dirección</translation>
    </message>
    <message>
        <source>Look straight at a plane</source>
        <translation>Mirar de frente a un plano</translation>
    </message>
    <message>
        <source>Make a block</source>
        <translation>Crear un bloque</translation>
    </message>
    <message>
        <source>Make current</source>
        <translation>Hacer actual</translation>
    </message>
    <message>
        <source>Makes a new drawing</source>
        <translation>Crea un dibujo nuevo</translation>
    </message>
    <message>
        <source>Merge layers</source>
        <translation>Fusionar capas</translation>
    </message>
    <message>
        <source>Mirror</source>
        <translation>Simetría</translation>
    </message>
    <message>
        <source>Mirror in a plane</source>
        <translation>Simetría respecto a un plano</translation>
    </message>
    <message>
        <source>Move</source>
        <translation>Desplazar</translation>
    </message>
    <message>
        <source>Move in space</source>
        <translation>Desplazar en el espacio</translation>
    </message>
    <message>
        <source>Move the text</source>
        <translation>Desplazar el texto</translation>
    </message>
    <message>
        <source>Multileader</source>
        <translation>Directriz múltiple</translation>
    </message>
    <message>
        <source>Multiline</source>
        <translation>Línea múltiple</translation>
    </message>
    <message>
        <source>Named views</source>
        <translation>Vistas guardadas</translation>
    </message>
    <message>
        <source>O&amp;bjects</source>
        <translation>O&amp;bjetos</translation>
    </message>
    <message>
        <source>Object snap</source>
        <translation>Referencia a objetos</translation>
    </message>
    <message>
        <source>Offset</source>
        <translation>Desfase</translation>
    </message>
    <message>
        <source>Onto the sheet</source>
        <translation>A la presentación</translation>
    </message>
    <message>
        <source>Opens drawings</source>
        <translation>Abre dibujos</translation>
    </message>
    <message>
        <source>Ordinate</source>
        <translation>Por coordenadas</translation>
    </message>
    <message>
        <source>Override variables</source>
        <translation>Modificar variables</translation>
    </message>
    <message>
        <source>P&amp;DF page...</source>
        <translation>Página P&amp;DF...</translation>
    </message>
    <message>
        <source>Pa&amp;ge setup...</source>
        <translation>Confi&amp;gurar página...</translation>
    </message>
    <message>
        <source>Paragraph</source>
        <translation>Párrafo</translation>
    </message>
    <message>
        <source>Paste as b&amp;lock</source>
        <translation>Pegar como b&amp;loque</translation>
    </message>
    <message>
        <source>Paste where it &amp;was</source>
        <translation>Pegar donde &amp;estaba</translation>
    </message>
    <message>
        <source>Place a shape</source>
        <translation>Colocar una forma</translation>
    </message>
    <message>
        <source>Poin&amp;ts</source>
        <translation>Pun&amp;tos</translation>
    </message>
    <message>
        <source>Point</source>
        <translation>Punto</translation>
    </message>
    <message>
        <source>Polygon</source>
        <translation>Polígono</translation>
    </message>
    <message>
        <source>Polyline</source>
        <translation>Polilínea</translation>
    </message>
    <message>
        <source>Polyline in space</source>
        <translation>Polilínea en el espacio</translation>
    </message>
    <message>
        <source>Prints the layout that is shown, or writes it as a page</source>
        <translation>Imprime la presentación que se muestra, o la escribe como página</translation>
    </message>
    <message>
        <source>Purge</source>
        <translation>Limpiar</translation>
    </message>
    <message>
        <source>Radius</source>
        <translation>Radio</translation>
    </message>
    <message>
        <source>Rectangle</source>
        <translation>Rectángulo</translation>
    </message>
    <message>
        <source>Region</source>
        <translation>Región</translation>
    </message>
    <message>
        <source>Remove duplicates</source>
        <translation>Quitar duplicados</translation>
    </message>
    <message>
        <source>Rename</source>
        <translation>Renombrar</translation>
    </message>
    <message>
        <source>Revision cloud</source>
        <translation>Nube de revisión</translation>
    </message>
    <message>
        <source>Ring</source>
        <translation>Anillo</translation>
    </message>
    <message>
        <source>Rotate</source>
        <translation>Girar</translation>
    </message>
    <message>
        <source>Rotate round an axis</source>
        <translation>Girar alrededor de un eje</translation>
    </message>
    <message>
        <source>Run a s&amp;cript</source>
        <translation>Ejecutar un s&amp;cript</translation>
    </message>
    <message>
        <source>S&amp;ettings...</source>
        <translation>C&amp;onfiguración...</translation>
    </message>
    <message>
        <source>Save &amp;as...</source>
        <translation>Guardar &amp;como...</translation>
    </message>
    <message>
        <source>Saves the drawing</source>
        <translation>Guarda el dibujo</translation>
    </message>
    <message>
        <source>Saves the drawing under another name</source>
        <translation>Guarda el dibujo con otro nombre</translation>
    </message>
    <message>
        <source>Says what this program is</source>
        <translation>Dice qué es este programa</translation>
    </message>
    <message>
        <source>Scale</source>
        <translation>Escala</translation>
    </message>
    <message>
        <source>Shows a place to try Lisp at</source>
        <translation>Muestra un sitio para probar Lisp</translation>
    </message>
    <message>
        <source>Shows all that is drawn</source>
        <translation>Muestra todo lo dibujado</translation>
    </message>
    <message>
        <source>Shows all through the viewport that is worked through</source>
        <translation>Muestra todo a través de la ventana en la que se trabaja</translation>
    </message>
    <message>
        <source>Shows less, larger</source>
        <translation>Muestra menos, más grande</translation>
    </message>
    <message>
        <source>Shows more, smaller</source>
        <translation>Muestra más, más pequeño</translation>
    </message>
    <message>
        <source>Shows recent drawings, samples and first steps</source>
        <translation>Muestra dibujos recientes, ejemplos y primeros pasos</translation>
    </message>
    <message>
        <source>Shows the help pages</source>
        <translation>Muestra las páginas de ayuda</translation>
    </message>
    <message>
        <source>Shows what is in a box</source>
        <translation>Muestra lo que hay en un recuadro</translation>
    </message>
    <message>
        <source>Snap to a grid</source>
        <translation>Forzar a una rejilla</translation>
    </message>
    <message>
        <source>Snaps, display, selection, units, folders and trust</source>
        <translation>Referencias, visualización, selección, unidades, carpetas y confianza</translation>
    </message>
    <message>
        <source>Spline</source>
        <translation>Spline</translation>
    </message>
    <message>
        <source>Stretch</source>
        <translation>Estirar</translation>
    </message>
    <message>
        <source>Synchronize attributes</source>
        <translation>Sincronizar atributos</translation>
    </message>
    <message>
        <source>System &amp;variables</source>
        <translation>&amp;Variables de sistema</translation>
    </message>
    <message>
        <source>Take back the last layer change</source>
        <translation>Deshacer el último cambio de capas</translation>
    </message>
    <message>
        <source>Text</source>
        <translation>Texto</translation>
    </message>
    <message>
        <source>Text of one line</source>
        <translation>Texto de una línea</translation>
    </message>
    <message>
        <source>Text style</source>
        <translation>Estilo de texto</translation>
    </message>
    <message>
        <source>Texts to a paragraph</source>
        <translation>Textos a párrafo</translation>
    </message>
    <message>
        <source>Thaw all</source>
        <translation>Reutilizar todas</translation>
    </message>
    <message>
        <source>The viewport that is worked through shows a scale of 1:1</source>
        <translation>La ventana en la que se trabaja muestra una escala de 1:1</translation>
    </message>
    <message>
        <source>The viewport that is worked through shows a scale of 1:10</source>
        <translation>La ventana en la que se trabaja muestra una escala de 1:10</translation>
    </message>
    <message>
        <source>The viewport that is worked through shows a scale of 1:100</source>
        <translation>La ventana en la que se trabaja muestra una escala de 1:100</translation>
    </message>
    <message>
        <source>The viewport that is worked through shows a scale of 1:2</source>
        <translation>La ventana en la que se trabaja muestra una escala de 1:2</translation>
    </message>
    <message>
        <source>The viewport that is worked through shows a scale of 1:20</source>
        <translation>La ventana en la que se trabaja muestra una escala de 1:20</translation>
    </message>
    <message>
        <source>The viewport that is worked through shows a scale of 1:5</source>
        <translation>La ventana en la que se trabaja muestra una escala de 1:5</translation>
    </message>
    <message>
        <source>The viewport that is worked through shows a scale of 1:50</source>
        <translation>La ventana en la que se trabaja muestra una escala de 1:50</translation>
    </message>
    <message>
        <source>Times</source>
        <translation>Tiempos</translation>
    </message>
    <message>
        <source>To the current layer</source>
        <translation>A la capa actual</translation>
    </message>
    <message>
        <source>To the layer of another one</source>
        <translation>A la capa de otro</translation>
    </message>
    <message>
        <source>Trim</source>
        <translation>Recortar</translation>
    </message>
    <message>
        <source>Turn all on</source>
        <translation>Activar todas</translation>
    </message>
    <message>
        <source>Turn off</source>
        <translation>Desactivar</translation>
    </message>
    <message>
        <source>Units</source>
        <translation>Unidades</translation>
    </message>
    <message>
        <source>Unlock</source>
        <translation>Desbloquear</translation>
    </message>
    <message>
        <source>Update expressions of texts</source>
        <translation>Actualizar expresiones de textos</translation>
    </message>
    <message>
        <source>User coordinate system</source>
        <translation>Sistema de coordenadas personales</translation>
    </message>
    <message>
        <source>Viewports of &amp;a sheet</source>
        <translation>Vent&amp;anas de una presentación</translation>
    </message>
    <message>
        <source>W&amp;hite ground</source>
        <translation>Fondo &amp;blanco</translation>
    </message>
    <message>
        <source>With one end</source>
        <translation>Con un extremo</translation>
    </message>
    <message>
        <source>Without ends</source>
        <translation>Sin fin</translation>
    </message>
    <message>
        <source>Write a block to a file</source>
        <translation>Escribir un bloque en un archivo</translation>
    </message>
    <message>
        <source>Writes down what you do as a session that plays</source>
        <translation>Anota lo que hace como una sesión que se reproduce</translation>
    </message>
    <message>
        <source>Writes what is drawn as a page</source>
        <translation>Escribe lo dibujado como página</translation>
    </message>
    <message>
        <source>Writes what is drawn as a picture</source>
        <translation>Escribe lo dibujado como imagen</translation>
    </message>
    <message>
        <source>Writes what is drawn as lines and areas</source>
        <translation>Escribe lo dibujado como líneas y áreas</translation>
    </message>
    <message>
        <source>Zoom &amp;extents</source>
        <translation>Zoom &amp;extensión</translation>
    </message>
    <message>
        <source>Zoom &amp;in</source>
        <translation>A&amp;mpliar</translation>
    </message>
    <message>
        <source>Zoom &amp;out</source>
        <translation>&amp;Reducir</translation>
    </message>
    <message>
        <source>Zoom &amp;window</source>
        <translation>Zoom &amp;ventana</translation>
    </message>
    <message>
        <source>Draw</source>
        <translation>Dibujo</translation>
    </message>
    <message>
        <source>Modify</source>
        <translation>Modificar</translation>
    </message>
    <message>
        <source>Standard</source>
        <translation>Estándar</translation>
    </message>
</context>
<context>
    <name>Panels</name>
    <message>
        <source>Properties</source>
        <translation>Propiedades</translation>
    </message>
    <message>
        <source>Layers</source>
        <translation>Capas</translation>
    </message>
    <message>
        <source>Results</source>
        <translation>Resultados</translation>
    </message>
</context>
<context>
    <name>Playback</name>
    <message>
        <source>nobody is there to answer %1</source>
        <translation>no hay nadie que responda a %1</translation>
    </message>
    <message>
        <source>it took longer than %1 s</source>
        <translation>ha tardado más de %1 s</translation>
    </message>
    <message>
        <source> saying &quot;%1&quot;</source>
        <translation> que dice &quot;%1&quot;</translation>
    </message>
    <message>
        <source>${%1} is not known</source>
        <translation>${%1} no se conoce</translation>
    </message>
    <message>
        <source>%1 cannot be checked</source>
        <translation>%1 no se puede marcar</translation>
    </message>
    <message>
        <source>%1 cannot be written to</source>
        <translation>en %1 no se puede escribir</translation>
    </message>
    <message>
        <source>%1 does not take &quot;%2&quot;</source>
        <translation>%1 no admite &quot;%2&quot;</translation>
    </message>
    <message>
        <source>%1 does not take &quot;%2&quot;; it shows &quot;%3&quot;</source>
        <translation>%1 no admite &quot;%2&quot;; muestra &quot;%3&quot;</translation>
    </message>
    <message>
        <source>%1 has no button &quot;%2&quot;</source>
        <translation>%1 no tiene ningún botón &quot;%2&quot;</translation>
    </message>
    <message>
        <source>%1 has no cell %2, %3</source>
        <translation>%1 no tiene ninguna celda %2, %3</translation>
    </message>
    <message>
        <source>%1 has no item &quot;%2&quot;; it has %3</source>
        <translation>%1 no tiene ningún elemento &quot;%2&quot;; tiene %3</translation>
    </message>
    <message>
        <source>%1 has no row &quot;%2&quot;</source>
        <translation>%1 no tiene ninguna fila &quot;%2&quot;</translation>
    </message>
    <message>
        <source>%1 has no tab &quot;%2&quot;</source>
        <translation>%1 no tiene ninguna ficha &quot;%2&quot;</translation>
    </message>
    <message>
        <source>%1 has no value to set</source>
        <translation>%1 no tiene valor que definir</translation>
    </message>
    <message>
        <source>%1 has no widget &quot;%2&quot;; it has %3</source>
        <translation>%1 no tiene ningún control &quot;%2&quot;; tiene %3</translation>
    </message>
    <message>
        <source>%1 has the keyboard</source>
        <translation>%1 tiene el teclado</translation>
    </message>
    <message>
        <source>%1 is disabled</source>
        <translation>%1 está desactivado</translation>
    </message>
    <message>
        <source>%1 is no UTF-8 text</source>
        <translation>%1 no es un texto UTF-8</translation>
    </message>
    <message>
        <source>%1 is no list, table or tree</source>
        <translation>%1 no es una lista, tabla o árbol</translation>
    </message>
    <message>
        <source>%1 is not visible</source>
        <translation>%1 no es visible</translation>
    </message>
    <message>
        <source>%1 is open</source>
        <translation>%1 está abierto</translation>
    </message>
    <message>
        <source>%1 is still open</source>
        <translation>%1 sigue abierto</translation>
    </message>
    <message>
        <source>%1 is too long for a session</source>
        <translation>%1 es demasiado largo para una sesión</translation>
    </message>
    <message>
        <source>%1 stays as it is; another button of its group must be checked</source>
        <translation>%1 se queda como está; hay que marcar otro botón de su grupo</translation>
    </message>
    <message>
        <source>%1 takes no file name</source>
        <translation>%1 no admite nombre de archivo</translation>
    </message>
    <message>
        <source>%1 took &quot;%2&quot;</source>
        <translation>%1 tomó &quot;%2&quot;</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is neither yes nor no (on, off)</source>
        <translation>&quot;%1&quot; no es ni yes ni no (on, off)</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no handle</source>
        <translation>&quot;%1&quot; no es un identificador</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no key</source>
        <translation>&quot;%1&quot; no es una tecla</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no point; write x,y or x,y,z</source>
        <translation>&quot;%1&quot; no es un punto; escriba x,y o x,y,z</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no whole number from 0 up</source>
        <translation>&quot;%1&quot; no es un número entero desde 0</translation>
    </message>
    <message>
        <source>a quote is not closed, or text follows right behind it</source>
        <translation>unas comillas no se cierran, o las sigue texto sin espacio</translation>
    </message>
    <message>
        <source>a view needs two corners</source>
        <translation>una vista necesita dos esquinas</translation>
    </message>
    <message>
        <source>cancelled at %1, </source>
        <translation>cancelado en %1, </translation>
    </message>
    <message>
        <source>cannot read %1: %2</source>
        <translation>no se puede leer %1: %2</translation>
    </message>
    <message>
        <source>cell %1, %2 of %3 cannot be written to</source>
        <translation>en la celda %1, %2 de %3 no se puede escribir</translation>
    </message>
    <message>
        <source>cell %1, %2 of %3 does not take &quot;%4&quot;</source>
        <translation>la celda %1, %2 de %3 no admite &quot;%4&quot;</translation>
    </message>
    <message>
        <source>dialog %1</source>
        <translation>diálogo %1</translation>
    </message>
    <message>
        <source>done again, the drawing differs from what it was: %1</source>
        <translation>al rehacer, el dibujo difiere de como era: %1</translation>
    </message>
    <message>
        <source>drawing: only the first line says which drawing it is</source>
        <translation>drawing: solo la primera línea dice qué dibujo es</translation>
    </message>
    <message>
        <source>end: no part was begun</source>
        <translation>end: no se empezó ninguna parte</translation>
    </message>
    <message>
        <source>it is disabled</source>
        <translation>está desactivado</translation>
    </message>
    <message>
        <source>it is enabled</source>
        <translation>está activado</translation>
    </message>
    <message>
        <source>it is nil</source>
        <translation>es nil</translation>
    </message>
    <message>
        <source>it is not visible</source>
        <translation>no es visible</translation>
    </message>
    <message>
        <source>it is visible</source>
        <translation>es visible</translation>
    </message>
    <message>
        <source>it shows &quot;%1&quot;</source>
        <translation>muestra &quot;%1&quot;</translation>
    </message>
    <message>
        <source>it stands in front of a command or lisp</source>
        <translation>está delante de un comando o de lisp</translation>
    </message>
    <message>
        <source>line %1%2 (%3): </source>
        <translation>línea %1%2 (%3): </translation>
    </message>
    <message>
        <source>line %1: %2</source>
        <translation>línea %1: %2</translation>
    </message>
    <message>
        <source>line %1: the session has cases, each of which wants the drawing opened anew</source>
        <translation>línea %1: la sesión tiene casos, y cada uno quiere el dibujo abierto de nuevo</translation>
    </message>
    <message>
        <source>no arguments</source>
        <translation>sin argumentos</translation>
    </message>
    <message>
        <source>no dialog</source>
        <translation>ningún diálogo</translation>
    </message>
    <message>
        <source>no folder was given to write to (--out)</source>
        <translation>no se indicó carpeta en la que escribir (--out)</translation>
    </message>
    <message>
        <source>no program was given that reads drawings (--audit, or the environment&apos;s ORTAKIT_AUDIT)</source>
        <translation>no se indicó ningún programa que lea dibujos (--audit, o ORTAKIT_AUDIT del entorno)</translation>
    </message>
    <message>
        <source>no prompt and no dialog is open that this could be meant for</source>
        <translation>no hay ninguna solicitud ni diálogo abierto al que se pueda referir</translation>
    </message>
    <message>
        <source>nothing has the keyboard</source>
        <translation>nada tiene el teclado</translation>
    </message>
    <message>
        <source>nothing with a name</source>
        <translation>nada con nombre</translation>
    </message>
    <message>
        <source>part %1, line %2</source>
        <translation>parte %1, línea %2</translation>
    </message>
    <message>
        <source>part: a part cannot be written in a part</source>
        <translation>part: una parte no se puede escribir dentro de otra</translation>
    </message>
    <message>
        <source>part: it has no end</source>
        <translation>part: no tiene fin</translation>
    </message>
    <message>
        <source>part: the part before it has no end</source>
        <translation>part: la parte anterior no tiene fin</translation>
    </message>
    <message>
        <source>part: there is a part %1 already</source>
        <translation>part: ya hay una parte %1</translation>
    </message>
    <message>
        <source>play: the part %1 plays itself</source>
        <translation>play: la parte %1 se reproduce a sí misma</translation>
    </message>
    <message>
        <source>play: the part %1 takes %2</source>
        <translation>play: la parte %1 toma %2</translation>
    </message>
    <message>
        <source>play: the parts write too much</source>
        <translation>play: las partes escriben demasiado</translation>
    </message>
    <message>
        <source>play: there is no part %1</source>
        <translation>play: no hay ninguna parte %1</translation>
    </message>
    <message>
        <source>play: too many parts are played one in the other</source>
        <translation>play: hay demasiadas partes unas dentro de otras</translation>
    </message>
    <message>
        <source>row &quot;%1&quot; of %2 cannot be checked</source>
        <translation>la fila &quot;%1&quot; de %2 no se puede marcar</translation>
    </message>
    <message>
        <source>row &quot;%1&quot; of %2 is not visible</source>
        <translation>la fila &quot;%1&quot; de %2 no es visible</translation>
    </message>
    <message>
        <source>something is missing at the end of the line</source>
        <translation>falta algo al final de la línea</translation>
    </message>
    <message>
        <source>the changes are &quot;%1&quot;</source>
        <translation>los cambios son &quot;%1&quot;</translation>
    </message>
    <message>
        <source>the drawing differs from what it was: %1</source>
        <translation>el dibujo difiere de como era: %1</translation>
    </message>
    <message>
        <source>the drawing has no entity with the handle %1</source>
        <translation>el dibujo no tiene ninguna entidad con el identificador %1</translation>
    </message>
    <message>
        <source>the drawing is unchanged</source>
        <translation>el dibujo no ha cambiado</translation>
    </message>
    <message>
        <source>the drawing was changed</source>
        <translation>el dibujo ha cambiado</translation>
    </message>
    <message>
        <source>the error is &quot;%1&quot;</source>
        <translation>el error es &quot;%1&quot;</translation>
    </message>
    <message>
        <source>the file does not hold it; its text is &quot;%1&quot;</source>
        <translation>el archivo no lo contiene; su texto es &quot;%1&quot;</translation>
    </message>
    <message>
        <source>the file is there</source>
        <translation>el archivo está</translation>
    </message>
    <message>
        <source>the file&apos;s text is &quot;%1&quot;</source>
        <translation>el texto del archivo es &quot;%1&quot;</translation>
    </message>
    <message>
        <source>the files differ at byte %1: &quot;%2&quot; and &quot;%3&quot;</source>
        <translation>los archivos difieren en el byte %1: &quot;%2&quot; y &quot;%3&quot;</translation>
    </message>
    <message>
        <source>the items are &quot;%1&quot;</source>
        <translation>los elementos son &quot;%1&quot;</translation>
    </message>
    <message>
        <source>the line goes on (it ends in a backslash), but the session ends</source>
        <translation>la línea continúa (termina en barra inversa), pero la sesión termina</translation>
    </message>
    <message>
        <source>the list went away while rows were selected</source>
        <translation>la lista desapareció mientras se seleccionaban filas</translation>
    </message>
    <message>
        <source>the menu has no entry &quot;%1&quot;; it has %2</source>
        <translation>el menú no tiene ninguna entrada &quot;%1&quot;; tiene %2</translation>
    </message>
    <message>
        <source>the menu&apos;s entry &quot;%1&quot; is disabled</source>
        <translation>la entrada &quot;%1&quot; del menú está desactivada</translation>
    </message>
    <message>
        <source>the order of its records</source>
        <translation>el orden de sus registros</translation>
    </message>
    <message>
        <source>the prompt &quot;%1&quot;</source>
        <translation>la solicitud &quot;%1&quot;</translation>
    </message>
    <message>
        <source>the reader %1 does not answer</source>
        <translation>el lector %1 no responde</translation>
    </message>
    <message>
        <source>the reader takes no names with line feeds</source>
        <translation>el lector no admite nombres con saltos de línea</translation>
    </message>
    <message>
        <source>the run before it ended without an error</source>
        <translation>la ejecución anterior terminó sin error</translation>
    </message>
    <message>
        <source>the run changed nothing</source>
        <translation>la ejecución no cambió nada</translation>
    </message>
    <message>
        <source>the run ended with &quot;%1&quot;</source>
        <translation>la ejecución terminó con &quot;%1&quot;</translation>
    </message>
    <message>
        <source>the session ends while %1 is open</source>
        <translation>la sesión termina mientras %1 está abierto</translation>
    </message>
    <message>
        <source>the session took longer than %1 s; open is %2</source>
        <translation>la sesión tardó más de %1 s; está abierto %2</translation>
    </message>
    <message>
        <source>the title is &quot;%1&quot;</source>
        <translation>el título es &quot;%1&quot;</translation>
    </message>
    <message>
        <source>the widget went away while it was typed into</source>
        <translation>el control desapareció mientras se escribía en él</translation>
    </message>
    <message>
        <source>there are %1</source>
        <translation>hay %1</translation>
    </message>
    <message>
        <source>there is %1</source>
        <translation>hay %1</translation>
    </message>
    <message>
        <source>there is no panel &quot;%1&quot;</source>
        <translation>no hay ningún panel &quot;%1&quot;</translation>
    </message>
    <message>
        <source>there is nothing to redo</source>
        <translation>no hay nada que rehacer</translation>
    </message>
    <message>
        <source>there is nothing to undo</source>
        <translation>no hay nada que deshacer</translation>
    </message>
    <message>
        <source>there was no run before it</source>
        <translation>no hubo ninguna ejecución anterior</translation>
    </message>
    <message>
        <source>too much on the line: &quot;%1&quot;</source>
        <translation>sobra en la línea: &quot;%1&quot;</translation>
    </message>
    <message>
        <source>undone, the drawing differs from what it was: %1</source>
        <translation>al deshacer, el dibujo difiere de como era: %1</translation>
    </message>
    <message>
        <source>unknown word &quot;%1&quot;</source>
        <translation>palabra desconocida &quot;%1&quot;</translation>
    </message>
    <message>
        <source>what cannot be read again</source>
        <translation>lo que no se puede volver a leer</translation>
    </message>
    <message>
        <source>what was printed is &quot;%1&quot;</source>
        <translation>lo impreso es &quot;%1&quot;</translation>
    </message>
</context>
<context>
    <name>Properties</name>
    <message>
        <source>General</source>
        <translation>General</translation>
    </message>
    <message>
        <source>Geometry</source>
        <translation>Geometría</translation>
    </message>
    <message>
        <source>Text</source>
        <translation>Texto</translation>
    </message>
    <message>
        <source>Misc</source>
        <translation>Varios</translation>
    </message>
    <message>
        <source>Color</source>
        <translation>Color</translation>
    </message>
    <message>
        <source>Layer</source>
        <translation>Capa</translation>
    </message>
    <message>
        <source>Linetype</source>
        <translation>Tipo de línea</translation>
    </message>
    <message>
        <source>Linetype scale</source>
        <translation>Escala de tipo de línea</translation>
    </message>
    <message>
        <source>Lineweight</source>
        <translation>Grosor de línea</translation>
    </message>
    <message>
        <source>Thickness</source>
        <translation>Altura de objeto</translation>
    </message>
    <message>
        <source>Text style</source>
        <translation>Estilo de texto</translation>
    </message>
    <message>
        <source>Dimension style</source>
        <translation>Estilo de cota</translation>
    </message>
    <message>
        <source>Of what is drawn next</source>
        <translation>De lo que se dibuje a continuación</translation>
    </message>
    <message>
        <source>Property</source>
        <translation>Propiedad</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>Valor</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no color.</source>
        <translation>&quot;%1&quot; no es un color.</translation>
    </message>
    <message>
        <source>There is no layer &quot;%1&quot;.</source>
        <translation>No hay ninguna capa &quot;%1&quot;.</translation>
    </message>
    <message>
        <source>There is no linetype &quot;%1&quot;.</source>
        <translation>No hay ningún tipo de línea &quot;%1&quot;.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no lineweight.</source>
        <translation>&quot;%1&quot; no es un grosor de línea.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no transparency: ByLayer, ByBlock or 0 to 90.</source>
        <translation>&quot;%1&quot; no es una transparencia: ByLayer, ByBlock o de 0 a 90.</translation>
    </message>
    <message>
        <source>%1: the current color is one of the table.</source>
        <translation>%1: el color actual es uno de la tabla.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no angle.</source>
        <translation>&quot;%1&quot; no es un ángulo.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no number.</source>
        <translation>&quot;%1&quot; no es un número.</translation>
    </message>
    <message>
        <source>%1: it must be more than 0.</source>
        <translation>%1: debe ser mayor que 0.</translation>
    </message>
    <message>
        <source>%1: it must not be 0.</source>
        <translation>%1: no debe ser 0.</translation>
    </message>
    <message>
        <source>*varies*</source>
        <translation>*varía*</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no whole number.</source>
        <translation>&quot;%1&quot; no es un número entero.</translation>
    </message>
    <message>
        <source>Other...</source>
        <translation>Otro...</translation>
    </message>
    <message>
        <source>Transparency</source>
        <translation>Transparencia</translation>
    </message>
    <message>
        <source>Plot style</source>
        <translation>Estilo de trazado</translation>
    </message>
    <message>
        <source>Corner 1</source>
        <translation>Esquina 1</translation>
    </message>
    <message>
        <source>Corner 2</source>
        <translation>Esquina 2</translation>
    </message>
    <message>
        <source>Corner 3</source>
        <translation>Esquina 3</translation>
    </message>
    <message>
        <source>Corner 4</source>
        <translation>Esquina 4</translation>
    </message>
    <message>
        <source>Center</source>
        <translation>Centro</translation>
    </message>
    <message>
        <source>Radius</source>
        <translation>Radio</translation>
    </message>
    <message>
        <source>Start angle</source>
        <translation>Ángulo inicial</translation>
    </message>
    <message>
        <source>End angle</source>
        <translation>Ángulo final</translation>
    </message>
    <message>
        <source>Start</source>
        <translation>Inicio</translation>
    </message>
    <message>
        <source>End</source>
        <translation>Fin</translation>
    </message>
    <message>
        <source>Total angle</source>
        <translation>Ángulo total</translation>
    </message>
    <message>
        <source>Arc length</source>
        <translation>Longitud de arco</translation>
    </message>
    <message>
        <source>Area</source>
        <translation>Área</translation>
    </message>
    <message>
        <source>Height</source>
        <translation>Altura</translation>
    </message>
    <message>
        <source>Position</source>
        <translation>Posición</translation>
    </message>
    <message>
        <source>Prompt</source>
        <translation>Solicitud</translation>
    </message>
    <message>
        <source>Rotation</source>
        <translation>Rotación</translation>
    </message>
    <message>
        <source>Tag</source>
        <translation>Identificador</translation>
    </message>
    <message>
        <source>Diameter</source>
        <translation>Diámetro</translation>
    </message>
    <message>
        <source>Circumference</source>
        <translation>Circunferencia</translation>
    </message>
    <message>
        <source>Text override</source>
        <translation>Texto sustituto</translation>
    </message>
    <message>
        <source>Measurement</source>
        <translation>Medida</translation>
    </message>
    <message>
        <source>Major axis</source>
        <translation>Eje mayor</translation>
    </message>
    <message>
        <source>Radius ratio</source>
        <translation>Proporción de radios</translation>
    </message>
    <message>
        <source>Start parameter</source>
        <translation>Parámetro inicial</translation>
    </message>
    <message>
        <source>End parameter</source>
        <translation>Parámetro final</translation>
    </message>
    <message>
        <source>Length</source>
        <translation>Longitud</translation>
    </message>
    <message>
        <source>Angle</source>
        <translation>Ángulo</translation>
    </message>
    <message>
        <source>Pattern</source>
        <translation>Patrón</translation>
    </message>
    <message>
        <source>Scale</source>
        <translation>Escala</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Nombre</translation>
    </message>
    <message>
        <source>Scale X</source>
        <translation>Escala X</translation>
    </message>
    <message>
        <source>Scale Y</source>
        <translation>Escala Y</translation>
    </message>
    <message>
        <source>Scale Z</source>
        <translation>Escala Z</translation>
    </message>
    <message>
        <source>Delta</source>
        <translation>Incremento</translation>
    </message>
    <message>
        <source>Global width</source>
        <translation>Grosor global</translation>
    </message>
    <message>
        <source>Elevation</source>
        <translation>Elevación</translation>
    </message>
    <message>
        <source>Vertices</source>
        <translation>Vértices</translation>
    </message>
    <message>
        <source>Contents</source>
        <translation>Contenido</translation>
    </message>
    <message>
        <source>Style</source>
        <translation>Estilo</translation>
    </message>
    <message>
        <source>Location</source>
        <translation>Ubicación</translation>
    </message>
    <message>
        <source>Attachment</source>
        <translation>Enlace</translation>
    </message>
    <message>
        <source>Width</source>
        <translation>Anchura</translation>
    </message>
    <message>
        <source>Direction</source>
        <translation>Dirección</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Tamaño</translation>
    </message>
    <message>
        <source>Degree</source>
        <translation>Grado</translation>
    </message>
    <message>
        <source>Alignment point</source>
        <translation>Punto de alineación</translation>
    </message>
    <message>
        <source>Horizontal mode</source>
        <translation>Modo horizontal</translation>
    </message>
    <message>
        <source>Obliquing</source>
        <translation>Oblicuidad</translation>
    </message>
    <message>
        <source>Vertical mode</source>
        <translation>Modo vertical</translation>
    </message>
    <message>
        <source>Width factor</source>
        <translation>Factor de anchura</translation>
    </message>
    <message>
        <source>Base point</source>
        <translation>Punto base</translation>
    </message>
</context>
<context>
    <name>QObject</name>
    <message>
        <source>Message</source>
        <translation>Mensaje</translation>
    </message>
    <message>
        <source>All files (*)</source>
        <translation>Todos los archivos (*)</translation>
    </message>
    <message>
        <source>Choose a folder</source>
        <translation>Elegir una carpeta</translation>
    </message>
</context>
<context>
    <name>RenderReport</name>
    <message>
        <source>%1 drawn</source>
        <translation>%1 dibujados</translation>
    </message>
    <message>
        <source>%1 invisible</source>
        <translation>%1 invisibles</translation>
    </message>
    <message>
        <source>simplified</source>
        <translation>simplificado</translation>
    </message>
    <message>
        <source>skipped</source>
        <translation>omitido</translation>
    </message>
    <message>
        <source>not drawn</source>
        <translation>no dibujado</translation>
    </message>
    <message>
        <source>drawn in part</source>
        <translation>dibujado en parte</translation>
    </message>
    <message>
        <source>cut short: there is more than is drawn in one go</source>
        <translation>interrumpido: hay más de lo que se dibuja de una vez</translation>
    </message>
</context>
<context>
    <name>Settings</name>
    <message>
        <source>Window</source>
        <translation>Ventana</translation>
    </message>
    <message>
        <source>Style of windows</source>
        <translation>Estilo de las ventanas</translation>
    </message>
    <message>
        <source>0=Light|1=Dark</source>
        <translation>0=Claro|1=Oscuro</translation>
    </message>
    <message>
        <source>The colours of windows and dialogs</source>
        <translation>Los colores de ventanas y diálogos</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>Idioma</translation>
    </message>
    <message>
        <source>0=System|1=English|2=Deutsch|3=Français|4=Español|5=Italiano</source>
        <translation>0=Sistema|1=English|2=Deutsch|3=Français|4=Español|5=Italiano</translation>
    </message>
    <message>
        <source>Of windows, dialogs and prompts; it counts from the next start</source>
        <translation>De ventanas, diálogos y solicitudes; vale desde el próximo inicio</translation>
    </message>
    <message>
        <source>Ground of drawings</source>
        <translation>Fondo de los dibujos</translation>
    </message>
    <message>
        <source>0=Black|1=White</source>
        <translation>0=Negro|1=Blanco</translation>
    </message>
    <message>
        <source>What drawings lie on</source>
        <translation>Sobre qué están los dibujos</translation>
    </message>
    <message>
        <source>Length of the cross-hair, percent</source>
        <translation>Longitud del cursor en cruz, por ciento</translation>
    </message>
    <message>
        <source>Right button</source>
        <translation>Botón derecho</translation>
    </message>
    <message>
        <source>File dialogs</source>
        <translation>Diálogos de archivos</translation>
    </message>
    <message>
        <source>Attributes of a block are asked for in a dialog</source>
        <translation>Los atributos de un bloque se piden en un diálogo</translation>
    </message>
    <message>
        <source>Snap</source>
        <translation>Forzado</translation>
    </message>
    <message>
        <source>End points</source>
        <translation>Puntos finales</translation>
    </message>
    <message>
        <source>Middle points</source>
        <translation>Puntos medios</translation>
    </message>
    <message>
        <source>Centres</source>
        <translation>Centros</translation>
    </message>
    <message>
        <source>Nodes</source>
        <translation>Nodos</translation>
    </message>
    <message>
        <source>Quadrants</source>
        <translation>Cuadrantes</translation>
    </message>
    <message>
        <source>Intersections</source>
        <translation>Intersecciones</translation>
    </message>
    <message>
        <source>Insertion points</source>
        <translation>Puntos de inserción</translation>
    </message>
    <message>
        <source>Perpendicular</source>
        <translation>Perpendicular</translation>
    </message>
    <message>
        <source>Tangent</source>
        <translation>Tangente</translation>
    </message>
    <message>
        <source>Nearest</source>
        <translation>Más cercano</translation>
    </message>
    <message>
        <source>Reach of snaps, pixels</source>
        <translation>Alcance de las referencias, píxeles</translation>
    </message>
    <message>
        <source>Ortho</source>
        <translation>Orto</translation>
    </message>
    <message>
        <source>Grid shown</source>
        <translation>Rejilla visible</translation>
    </message>
    <message>
        <source>Snap to the grid</source>
        <translation>Forzado a la rejilla</translation>
    </message>
    <message>
        <source>Typed coordinates and snaps</source>
        <translation>Coordenadas escritas y referencias</translation>
    </message>
    <message>
        <source>0=Snaps move typed points|1=Typed points stay|2=Typed points stay, but in scripts</source>
        <translation>0=Las referencias mueven los puntos escritos|1=Los puntos escritos se quedan|2=Se quedan, salvo en scripts</translation>
    </message>
    <message>
        <source>Display</source>
        <translation>Visualización</translation>
    </message>
    <message>
        <source>Lineweights</source>
        <translation>Grosores de línea</translation>
    </message>
    <message>
        <source>Lineweight of &quot;Default&quot;, hundredths of a millimetre</source>
        <translation>Grosor de línea de &quot;Por defecto&quot;, centésimas de milímetro</translation>
    </message>
    <message>
        <source>Areas are filled</source>
        <translation>Las áreas se rellenan</translation>
    </message>
    <message>
        <source>Texts as boxes</source>
        <translation>Textos como rectángulos</translation>
    </message>
    <message>
        <source>Frames of images</source>
        <translation>Marcos de imágenes</translation>
    </message>
    <message>
        <source>0=Hidden|1=Shown and plotted|2=Shown only</source>
        <translation>0=Ocultos|1=Visibles y trazados|2=Solo visibles</translation>
    </message>
    <message>
        <source>Frames of masks</source>
        <translation>Marcos de máscaras</translation>
    </message>
    <message>
        <source>Scale of linetypes</source>
        <translation>Escala de los tipos de línea</translation>
    </message>
    <message>
        <source>Font in place of missing ones</source>
        <translation>Fuente en lugar de las que faltan</translation>
    </message>
    <message>
        <source>Selection</source>
        <translation>Selección</translation>
    </message>
    <message>
        <source>Choose first, then the command</source>
        <translation>Designar primero, luego el comando</translation>
    </message>
    <message>
        <source>What is picked is added</source>
        <translation>Lo designado se añade</translation>
    </message>
    <message>
        <source>0=With Shift only|1=Always|2=Always, and stays chosen</source>
        <translation>0=Solo con Mayús|1=Siempre|2=Siempre, y sigue designado</translation>
    </message>
    <message>
        <source>Groups are chosen whole</source>
        <translation>Los grupos se designan enteros</translation>
    </message>
    <message>
        <source>Hatches are chosen with their boundaries</source>
        <translation>Los sombreados se designan con su contorno</translation>
    </message>
    <message>
        <source>Size of the pick box, pixels</source>
        <translation>Tamaño de la caja de selección, píxeles</translation>
    </message>
    <message>
        <source>Chosen entities are marked</source>
        <translation>Las entidades designadas se marcan</translation>
    </message>
    <message>
        <source>Marks under the pointer while nothing runs</source>
        <translation>Marcas bajo el cursor cuando no se ejecuta nada</translation>
    </message>
    <message>
        <source>Marks under the pointer while a command asks</source>
        <translation>Marcas bajo el cursor cuando un comando pregunta</translation>
    </message>
    <message>
        <source>Grips</source>
        <translation>Pinzamientos</translation>
    </message>
    <message>
        <source>0=None|1=Shown|2=Shown, of segments too</source>
        <translation>0=Ninguno|1=Visibles|2=Visibles, también de segmentos</translation>
    </message>
    <message>
        <source>Size of grips, pixels</source>
        <translation>Tamaño de los pinzamientos, píxeles</translation>
    </message>
    <message>
        <source>No grips beyond so many entities</source>
        <translation>Sin pinzamientos a partir de este número de entidades</translation>
    </message>
    <message>
        <source>Units</source>
        <translation>Unidades</translation>
    </message>
    <message>
        <source>Lengths</source>
        <translation>Longitudes</translation>
    </message>
    <message>
        <source>1=Scientific|2=Decimal|3=Engineering|4=Architectural|5=Fractional</source>
        <translation>1=Científico|2=Decimal|3=Ingeniería|4=Arquitectura|5=Fraccionario</translation>
    </message>
    <message>
        <source>Places of lengths</source>
        <translation>Decimales de longitudes</translation>
    </message>
    <message>
        <source>Angles</source>
        <translation>Ángulos</translation>
    </message>
    <message>
        <source>0=Degrees|1=Degrees, minutes, seconds|2=Grads|3=Radians|4=Surveyor&apos;s units</source>
        <translation>0=Grados|1=Grados, minutos, segundos|2=Centesimales|3=Radianes|4=Unidades geodésicas</translation>
    </message>
    <message>
        <source>Places of angles</source>
        <translation>Decimales de ángulos</translation>
    </message>
    <message>
        <source>A drawing unit is</source>
        <translation>Una unidad de dibujo es</translation>
    </message>
    <message>
        <source>0=Not said|1=An inch|2=A foot|4=A millimetre|5=A centimetre|6=A metre|7=A kilometre</source>
        <translation>0=No indicada|1=Una pulgada|2=Un pie|4=Un milímetro|5=Un centímetro|6=Un metro|7=Un kilómetro</translation>
    </message>
    <message>
        <source>Saving</source>
        <translation>Guardado</translation>
    </message>
    <message>
        <source>A backup is kept of what is saved over</source>
        <translation>Se conserva copia de lo que se sobrescribe</translation>
    </message>
    <message>
        <source>Minutes between saves by itself</source>
        <translation>Minutos entre guardados automáticos</translation>
    </message>
    <message>
        <source>External references tell of changes</source>
        <translation>Las referencias externas avisan de cambios</translation>
    </message>
    <message>
        <source>0=No|1=With a mark|2=With a message</source>
        <translation>0=No|1=Con una marca|2=Con un mensaje</translation>
    </message>
    <message>
        <source>Lisp</source>
        <translation>Lisp</translation>
    </message>
    <message>
        <source>Programs loaded with each drawing</source>
        <translation>Programas que se cargan con cada dibujo</translation>
    </message>
    <message>
        <source>Full paths, between semicolons, in this order; they count from the next drawing on</source>
        <translation>Rutas completas, separadas por punto y coma, en este orden; valen desde el próximo dibujo</translation>
    </message>
    <message>
        <source>Most memory of programs, MB</source>
        <translation>Memoria máxima de los programas, MB</translation>
    </message>
    <message>
        <source>What programs do is shown</source>
        <translation>Se muestra lo que hacen los programas</translation>
    </message>
    <message>
        <source>Folders and trust</source>
        <translation>Carpetas y confianza</translation>
    </message>
    <message>
        <source>Folders whose programs may run</source>
        <translation>Carpetas cuyos programas pueden ejecutarse</translation>
    </message>
    <message>
        <source>Folders whose files drawings may name</source>
        <translation>Carpetas cuyos archivos pueden nombrar los dibujos</translation>
    </message>
</context>
<context>
    <name>SnapMenu</name>
    <message>
        <source>&amp;Endpoint</source>
        <translation>Punto &amp;final</translation>
    </message>
    <message>
        <source>&amp;Midpoint</source>
        <translation>Punto &amp;medio</translation>
    </message>
    <message>
        <source>&amp;Center</source>
        <translation>&amp;Centro</translation>
    </message>
    <message>
        <source>N&amp;ode</source>
        <translation>N&amp;odo</translation>
    </message>
    <message>
        <source>&amp;Quadrant</source>
        <translation>C&amp;uadrante</translation>
    </message>
    <message>
        <source>&amp;Intersection</source>
        <translation>&amp;Intersección</translation>
    </message>
    <message>
        <source>&amp;Apparent intersection</source>
        <translation>Intersección fic&amp;ticia</translation>
    </message>
    <message>
        <source>E&amp;xtension</source>
        <translation>E&amp;xtensión</translation>
    </message>
    <message>
        <source>In&amp;sertion point</source>
        <translation>In&amp;serción</translation>
    </message>
    <message>
        <source>&amp;Perpendicular</source>
        <translation>&amp;Perpendicular</translation>
    </message>
    <message>
        <source>&amp;Tangent</source>
        <translation>Tan&amp;gente</translation>
    </message>
    <message>
        <source>Nea&amp;rest</source>
        <translation>Más ce&amp;rcano</translation>
    </message>
    <message>
        <source>&amp;None</source>
        <translation>&amp;Ninguno</translation>
    </message>
    <message>
        <source>Mid&amp;way between two points</source>
        <translation>Punto medio &amp;entre dos puntos</translation>
    </message>
    <message>
        <source>&amp;From a point</source>
        <translation>&amp;Desde un punto</translation>
    </message>
</context>
<context>
    <name>Suggestions</name>
    <message>
        <source>command of a program</source>
        <translation>comando de un programa</translation>
    </message>
</context>
<context>
    <name>TrustQuestion</name>
    <message>
        <source>&amp;Load once</source>
        <translation>&amp;Cargar una vez</translation>
    </message>
    <message>
        <source>&amp;Trust this folder</source>
        <translation>Con&amp;fiar en esta carpeta</translation>
    </message>
    <message>
        <source>Load this program? It can do whatever you can.</source>
        <translation>¿Cargar este programa? Puede hacer todo lo que usted puede.</translation>
    </message>
</context>
<context>
    <name>Uses</name>
    <message>
        <source>%1 takes %2 from %3 to %4, not &quot;%5&quot;</source>
        <translation>%1 toma %2 de %3 a %4, no &quot;%5&quot;</translation>
    </message>
    <message>
        <source>%1 is %2, not &quot;%3&quot;</source>
        <translation>%1 es %2, no &quot;%3&quot;</translation>
    </message>
    <message>
        <source>or</source>
        <translation>o</translation>
    </message>
    <message>
        <source>%1 has no meaning here</source>
        <translation>%1 no tiene aquí significado</translation>
    </message>
    <message>
        <source>there is no option %1%2</source>
        <translation>no hay ninguna opción %1%2</translation>
    </message>
    <message>
        <source>%1 needs a value</source>
        <translation>%1 necesita un valor</translation>
    </message>
    <message>
        <source>%1 takes no value</source>
        <translation>%1 no admite valor</translation>
    </message>
    <message>
        <source>there is no command %1%2</source>
        <translation>no hay ningún comando %1%2</translation>
    </message>
    <message>
        <source>convert needs two files</source>
        <translation>convert necesita dos archivos</translation>
    </message>
    <message>
        <source>the sheet of a layout as its page setup has it; &quot;model&quot; for the page of model space; &quot;all&quot; for every sheet: a page each in a pdf, a file each as png and svg, with its name: OUT-NAME.png</source>
        <translation>la hoja de una presentación según su configuración de página; &quot;model&quot; para la página del espacio modelo; &quot;all&quot; para todas las hojas: una página cada una en un pdf, un archivo cada una en png y svg, con su nombre: OUT-NAME.png</translation>
    </message>
    <message>
        <source>another sheet, on which everything is to be seen: A0 to A6, B0 to B6, ANSI-A to ANSI-E, ARCH-A to ARCH-E1 or millimetres as 420x297; -landscape or -portrait behind it turns it</source>
        <translation>otra hoja, en la que se verá todo: A0 a A6, B0 a B6, ANSI-A a ANSI-E, ARCH-A a ARCH-E1 o milímetros como 420x297; -landscape o -portrait detrás la gira</translation>
    </message>
    <message>
        <source>millimetres on the sheet to drawing units, in place of what the page says or as fits</source>
        <translation>milímetros en la hoja por unidades de dibujo, en lugar de lo que diga la página o de ajustar</translation>
    </message>
    <message>
        <source>show what lies between these corners, in drawing units</source>
        <translation>mostrar lo que hay entre estas esquinas, en unidades de dibujo</translation>
    </message>
    <message>
        <source>png, svg: so many pixels, 1 to 16000 each way; a sheet goes into their middle</source>
        <translation>png, svg: tantos píxeles, de 1 a 16000 en cada sentido; una hoja va en su centro</translation>
    </message>
    <message>
        <source>png, svg: pixels an inch of the sheet</source>
        <translation>png, svg: píxeles por pulgada de la hoja</translation>
    </message>
    <message>
        <source>what it lies on</source>
        <translation>sobre qué está</translation>
    </message>
    <message>
        <source>only layers whose names match, as in a layer filter: &quot;walls,door*&quot;</source>
        <translation>solo capas cuyo nombre coincida, como en un filtro de capas: &quot;walls,door*&quot;</translation>
    </message>
    <message>
        <source>pdf, svg: texts as areas, or as text that can be searched</source>
        <translation>pdf, svg: textos como áreas, o como texto en el que se puede buscar</translation>
    </message>
    <message>
        <source>a table of plot styles (ctb, stb) in place of what the page names; &quot;none&quot; for none. Without a file there are monochrome, grayscale and screening 25%, 50%, 75%, 100%</source>
        <translation>una tabla de estilos de trazado (ctb, stb) en lugar de la que nombra la página; &quot;none&quot; para ninguna. Sin archivo existen monochrome, grayscale y screening 25%, 50%, 75%, 100%</translation>
    </message>
    <message>
        <source>all lines as thin as can be</source>
        <translation>todas las líneas tan finas como sea posible</translation>
    </message>
    <message>
        <source>the most it may take; OUT stays as it was when it takes longer</source>
        <translation>lo máximo que puede tardar; OUT se queda como estaba si tarda más</translation>
    </message>
    <message>
        <source>no limit</source>
        <translation>sin límite</translation>
    </message>
    <message>
        <source>write a DXF file in the binary form; without it, as text</source>
        <translation>escribir un archivo DXF en forma binaria; sin esto, como texto</translation>
    </message>
    <message>
        <source>open a damaged IN as far as it is sound, and tell on standard error what was dropped; OUT must be another file</source>
        <translation>abrir un IN dañado en lo que esté sano, e indicar en la salida de errores lo que se descartó; OUT debe ser otro archivo</translation>
    </message>
    <message>
        <source>writes a drawing as DXF, PNG, SVG or PDF</source>
        <translation>escribe un dibujo como DXF, PNG, SVG o PDF</translation>
    </message>
    <message>
        <source>the drawing</source>
        <translation>el dibujo</translation>
    </message>
    <message>
        <source>the file to write, as what its extension says</source>
        <translation>el archivo que se escribe, según su extensión</translation>
    </message>
    <message>
        <source>Opens a drawing and writes it as what the extension of OUT says: dxf, png, svg or pdf. What a picture does not show, or only in part, is told on standard error, by type.</source>
        <translation>Abre un dibujo y lo escribe según la extensión de OUT: dxf, png, svg o pdf. Lo que una imagen no muestra, o solo en parte, se indica en la salida de errores, por tipo.</translation>
    </message>
    <message>
        <source>Pictures</source>
        <translation>Imágenes</translation>
    </message>
    <message>
        <source>Without the options of a sheet, png and svg show all of model space in 1600 by 1200 pixels, with the lineweights that it would have on a sheet 297 mm long; pdf shows it on A4.</source>
        <translation>Sin las opciones de hoja, png y svg muestran todo el espacio modelo en 1600 por 1200 píxeles, con los grosores de línea que tendría en una hoja de 297 mm de largo; pdf lo muestra en A4.</translation>
    </message>
    <message>
        <source>%1 to %2</source>
        <translation>%1 a %2</translation>
    </message>
    <message>
        <source>default: %1</source>
        <translation>por defecto: %1</translation>
    </message>
    <message>
        <source>Exit status: 0 done, 1 a tool, expression or session failed or passed a limit, 2 wrong use, 3 part of a batch failed or, with --strict, of a picture is missing, 4 a file could not be read or written, 5 a picture was written, but there was more to show than is drawn in one go: a few lines of a drawing can make millions.</source>
        <translation>Estado de salida: 0 hecho, 1 una herramienta, expresión o sesión falló o superó un límite, 2 uso incorrecto, 3 falló parte de un lote o, con --strict, falta parte de una imagen, 4 un archivo no se pudo leer o escribir, 5 se escribió una imagen, pero había más que mostrar de lo que se dibuja de una vez: unas líneas de un dibujo pueden dar millones.</translation>
    </message>
    <message>
        <source>Usage: </source>
        <translation>Uso: </translation>
    </message>
    <message>
        <source>Commands:</source>
        <translation>Comandos:</translation>
    </message>
    <message>
        <source>Drafting tools without their dialogs:</source>
        <translation>Herramientas de dibujo sin sus diálogos:</translation>
    </message>
    <message>
        <source>Options for every use:</source>
        <translation>Opciones para todo uso:</translation>
    </message>
    <message>
        <source>there is no kind of finding &quot;%1&quot;</source>
        <translation>no hay ninguna clase de hallazgo &quot;%1&quot;</translation>
    </message>
    <message>
        <source>lisp needs at least one file for this</source>
        <translation>para esto lisp necesita al menos un archivo</translation>
    </message>
    <message>
        <source>--json, --only and --except go with --check</source>
        <translation>--json, --only y --except van con --check</translation>
    </message>
    <message>
        <source>--filter and --junit go with --test</source>
        <translation>--filter y --junit van con --test</translation>
    </message>
    <message>
        <source>--profile goes with programs that are run</source>
        <translation>--profile va con programas que se ejecutan</translation>
    </message>
    <message>
        <source>--check and --test do not go together</source>
        <translation>--check y --test no van juntos</translation>
    </message>
    <message>
        <source>Loads the Lisp files in order and prints what they print. &quot;-&quot; reads expressions from standard input. Without --drawing a new drawing is open. Nothing asks a person: prompts are cancelled, and a dialog ends the program with status 1.

What these files load must lie in a trusted folder: the installation, the folder of the user&apos;s data, those that the system variable TRUSTEDPATHS lists, and those named here.</source>
        <translation>Carga los archivos Lisp por orden e imprime lo que imprimen. &quot;-&quot; lee expresiones de la entrada estándar. Sin --drawing se abre un dibujo nuevo. Nada pregunta a nadie: las solicitudes se cancelan, y un diálogo termina el programa con el estado 1.

Lo que cargan estos archivos debe estar en una carpeta de confianza: la instalación, la carpeta de datos del usuario, las que lista la variable de sistema TRUSTEDPATHS y las nombradas aquí.</translation>
    </message>
    <message>
        <source>the drawing to work on</source>
        <translation>el dibujo en el que se trabaja</translation>
    </message>
    <message>
        <source>a new one</source>
        <translation>uno nuevo</translation>
    </message>
    <message>
        <source>the most all of it may take</source>
        <translation>lo máximo que puede tardar todo</translation>
    </message>
    <message>
        <source>write files as well that another program has open, or has changed since they were opened</source>
        <translation>escribir también archivos que otro programa tenga abiertos, o haya cambiado desde que se abrieron</translation>
    </message>
    <message>
        <source>tell on standard error where the time went, function by function</source>
        <translation>indicar en la salida de errores en qué se fue el tiempo, función por función</translation>
    </message>
    <message>
        <source>write that as folded stacks as well, of which flame graphs are drawn</source>
        <translation>escribirlo también como pilas plegadas, de las que se dibujan gráficos de llamas</translation>
    </message>
    <message>
        <source>Without a file</source>
        <translation>Sin archivo</translation>
    </message>
    <message>
        <source>It is a prompt: expressions are evaluated as they are typed, and their values printed. Tab completes names, &quot;help NAME&quot; or &quot;?NAME&quot; tells about one, Ctrl+C stops what runs, Ctrl+D ends. What is piped in is evaluated form by form; errors go to standard error with their line, the forms behind one are evaluated all the same, and the status is 1 then.</source>
        <translation>Es un intérprete interactivo: las expresiones se evalúan según se escriben y se imprimen sus valores. Tab completa nombres, &quot;help NAME&quot; o &quot;?NAME&quot; informa de uno, Ctrl+C detiene lo que se ejecuta, Ctrl+D termina. Lo que entra por una tubería se evalúa forma por forma; los errores van a la salida de errores con su línea, las formas siguientes se evalúan de todos modos, y entonces el estado es 1.</translation>
    </message>
    <message>
        <source>With --check</source>
        <translation>Con --check</translation>
    </message>
    <message>
        <source>The files are read and not run, and what looks wrong in them is told, a line each: FILE:LINE:COLUMN: error or warning: what it is [KIND]. What one of them defines the others know. Ends with status 1 when something was told.</source>
        <translation>Los archivos se leen y no se ejecutan, y se indica lo que parece incorrecto en ellos, una línea cada vez: FILE:LINE:COLUMN: error o warning: qué es [KIND]. Lo que define uno de ellos lo conocen los demás. Termina con el estado 1 si se indicó algo.</translation>
    </message>
    <message>
        <source>read the files and tell what looks wrong in them</source>
        <translation>leer los archivos e indicar lo que parece incorrecto</translation>
    </message>
    <message>
        <source>tell it as one line of JSON: findings, each with file, line, column, severity, kind and message, and the numbers of errors and warnings</source>
        <translation>indicarlo como una línea de JSON: findings, cada uno con file, line, column, severity, kind y message, y los números de errores y advertencias</translation>
    </message>
    <message>
        <source>tell only these kinds</source>
        <translation>indicar solo estas clases</translation>
    </message>
    <message>
        <source>tell all kinds but these</source>
        <translation>indicar todas las clases menos estas</translation>
    </message>
    <message>
        <source>With --test</source>
        <translation>Con --test</translation>
    </message>
    <message>
        <source>The tests that the files define by (deftest name form...) are run, each in a new drawing (or DRAWING) into which its file was loaded before, and told on standard output in version 14 of the Test Anything Protocol. The time limit is that of each test. Ends with status 1 when one failed or there was none.</source>
        <translation>Las pruebas que los archivos definen con (deftest name form...) se ejecutan, cada una en un dibujo nuevo (o DRAWING) en el que antes se cargó su archivo, y se indican en la salida estándar en la versión 14 del Test Anything Protocol. El límite de tiempo es el de cada prueba. Termina con el estado 1 si una falló o no había ninguna.</translation>
    </message>
    <message>
        <source>run the tests that the files define</source>
        <translation>ejecutar las pruebas que definen los archivos</translation>
    </message>
    <message>
        <source>run only tests of such names: * stands for any characters, ? for one</source>
        <translation>ejecutar solo pruebas de esos nombres: * vale por cualesquiera caracteres, ? por uno</translation>
    </message>
    <message>
        <source>write a report in JUnit&apos;s XML instead</source>
        <translation>escribir en su lugar un informe en el XML de JUnit</translation>
    </message>
    <message>
        <source>runs, checks or tests Lisp files, or is a prompt for Lisp</source>
        <translation>ejecuta, comprueba o prueba archivos Lisp, o es un intérprete de Lisp</translation>
    </message>
    <message>
        <source>a Lisp file, or - for standard input</source>
        <translation>un archivo Lisp, o - para la entrada estándar</translation>
    </message>
    <message>
        <source>names takes no word</source>
        <translation>names no admite ninguna palabra</translation>
    </message>
    <message>
        <source>help takes one command</source>
        <translation>help admite un comando</translation>
    </message>
    <message>
        <source>lists what Lisp programs find here</source>
        <translation>lista lo que los programas Lisp encuentran aquí</translation>
    </message>
    <message>
        <source>Prints what Lisp programs find here in a new drawing, a line each with tabs between its fields, sorted:

  function  NAME  ARGUMENTS  WHAT IT GIVES
  command   NAME  -          WHAT IT DOES
  variable  NAME  KIND       WHAT IT IS

Documents are made from this, and scripts/demand compares it with what programs ask for.</source>
        <translation>Imprime lo que los programas Lisp encuentran aquí en un dibujo nuevo, una línea cada uno con tabuladores entre sus campos, ordenado:

  function  NAME  ARGUMENTS  LO QUE DA
  command   NAME  -          LO QUE HACE
  variable  NAME  KIND       LO QUE ES

De ello se hacen documentos, y scripts/demand lo compara con lo que piden los programas.</translation>
    </message>
    <message>
        <source>tells about a command</source>
        <translation>informa de un comando</translation>
    </message>
    <message>
        <source>which one; without it, the program as a whole</source>
        <translation>cuál; sin él, el programa entero</translation>
    </message>
    <message>
        <source>The same as --help behind the command.</source>
        <translation>Lo mismo que --help detrás del comando.</translation>
    </message>
    <message>
        <source>run needs a session</source>
        <translation>run necesita una sesión</translation>
    </message>
    <message>
        <source>open damaged drawings as far as they are sound, and tell on standard error what was dropped</source>
        <translation>abrir dibujos dañados en lo que estén sanos, e indicar en la salida de errores lo que se descartó</translation>
    </message>
    <message>
        <source>write the drawings that the session changed there, under their own names; of a session with cases, what it saves itself</source>
        <translation>escribir ahí los dibujos que cambió la sesión, con sus propios nombres; de una sesión con casos, lo que ella misma guarda</translation>
    </message>
    <message>
        <source>write a picture of each drawing as it is in the end to the out folder, or else beside the drawing</source>
        <translation>escribir una imagen de cada dibujo tal como queda al final en la carpeta de salida, o si no junto al dibujo</translation>
    </message>
    <message>
        <source>an independent reader for sessions that ask one (default: the environment&apos;s ORTAKIT_AUDIT); see scripts/audit</source>
        <translation>un lector independiente para sesiones que pidan uno (por defecto: ORTAKIT_AUDIT del entorno); véase scripts/audit</translation>
    </message>
    <message>
        <source>where pictures go that the session takes, and those of --png</source>
        <translation>adónde van las imágenes que toma la sesión, y las de --png</translation>
    </message>
    <message>
        <source>the most the session may take with one drawing; one that does not stop then ends the program</source>
        <translation>lo máximo que la sesión puede tardar con un dibujo; una que no pare entonces termina el programa</translation>
    </message>
    <message>
        <source>plays a recorded session over drawings</source>
        <translation>reproduce una sesión grabada sobre dibujos</translation>
    </message>
    <message>
        <source>the recorded session</source>
        <translation>la sesión grabada</translation>
    </message>
    <message>
        <source>what it is played over</source>
        <translation>sobre qué se reproduce</translation>
    </message>
    <message>
        <source>Plays a recorded session over each drawing, one after the other, each opened afresh; without a drawing, over the one that the session says. The drawings themselves stay as they are. Prints a line for each, and of a session with cases for each of them. What a picture does not show, or only in part, is told on standard error, by type.</source>
        <translation>Reproduce una sesión grabada sobre cada dibujo, uno tras otro, abierto cada uno de nuevo; sin dibujo, sobre el que indica la sesión. Los dibujos mismos se quedan como están. Imprime una línea por cada uno, y de una sesión con casos por cada caso. Lo que una imagen no muestra, o solo en parte, se indica en la salida de errores, por tipo.</translation>
    </message>
    <message>
        <source>look of windows and dialogs</source>
        <translation>aspecto de ventanas y diálogos</translation>
    </message>
    <message>
        <source>language of texts</source>
        <translation>idioma de los textos</translation>
    </message>
    <message>
        <source>$ORTAKIT_LANGUAGE; else the window&apos;s setting or the desktop&apos;s language, and English where there is no window or a session is played</source>
        <translation>$ORTAKIT_LANGUAGE; si no, el parámetro de la ventana o el idioma del escritorio, e inglés donde no hay ventana o se reproduce una sesión</translation>
    </message>
    <message>
        <source>folder of the user&apos;s data</source>
        <translation>carpeta de datos del usuario</translation>
    </message>
    <message>
        <source>$ORTAKIT_HOME, or the system&apos;s place for such data</source>
        <translation>$ORTAKIT_HOME, o el lugar del sistema para esos datos</translation>
    </message>
    <message>
        <source>the plug-in module</source>
        <translation>el módulo de extensión</translation>
    </message>
    <message>
        <source>$ORTAKIT_MODULE, or the one installed with the program</source>
        <translation>$ORTAKIT_MODULE, o el instalado con el programa</translation>
    </message>
    <message>
        <source>folder of the Lisp tools</source>
        <translation>carpeta de las herramientas Lisp</translation>
    </message>
    <message>
        <source>$ORTAKIT_TOOLS, or the one installed with the program</source>
        <translation>$ORTAKIT_TOOLS, o la instalada con el programa</translation>
    </message>
    <message>
        <source>let drawings name files of this folder and those below; may be given again. Else they are read from the drawing&apos;s own folder, those below and trusted ones only</source>
        <translation>permitir que los dibujos nombren archivos de esta carpeta y las de debajo; se puede repetir. Si no, solo se leen de la carpeta del propio dibujo, las de debajo y las de confianza</translation>
    </message>
    <message>
        <source>tell this and end</source>
        <translation>indicar esto y terminar</translation>
    </message>
    <message>
        <source>tell the version and end</source>
        <translation>indicar la versión y terminar</translation>
    </message>
    <message>
        <source> (did you mean %1?)</source>
        <translation> (¿quiso decir %1?)</translation>
    </message>
    <message>
        <source>run programs of this folder and those below as well; may be given again</source>
        <translation>ejecutar también programas de esta carpeta y las de debajo; se puede repetir</translation>
    </message>
    <message>
        <source>the most memory Lisp may take, more being an error of the program</source>
        <translation>la memoria máxima que puede tomar Lisp. Más es un error del programa</translation>
    </message>
    <message>
        <source>the system variable LISPHEAPMAX, which is 2048 as long as nobody changed it</source>
        <translation>la variable de sistema LISPHEAPMAX, que es 2048 mientras nadie la cambie</translation>
    </message>
    <message>
        <source>open damaged drawings as far as they are sound; they have no file until they are saved under a name</source>
        <translation>abrir dibujos dañados en lo que estén sanos; no tienen archivo hasta que se guarden con un nombre</translation>
    </message>
    <message>
        <source>open what a program that was killed left of changed drawings, without asking</source>
        <translation>abrir sin preguntar lo que dejó de dibujos cambiados un programa interrumpido</translation>
    </message>
    <message>
        <source>play a recorded session in the window first</source>
        <translation>reproducir antes en la ventana una sesión grabada</translation>
    </message>
    <message>
        <source>how long each line of the session waits, so that you can watch it</source>
        <translation>cuánto espera cada línea de la sesión, para poder mirarla</translation>
    </message>
    <message>
        <source>write what you do down as a session that plays</source>
        <translation>anotar lo que hace como una sesión que se reproduce</translation>
    </message>
    <message>
        <source>write a picture of the window to DIR/window.png and end</source>
        <translation>escribir una imagen de la ventana en DIR/window.png y terminar</translation>
    </message>
    <message>
        <source>the most a session may take</source>
        <translation>lo máximo que puede tardar una sesión</translation>
    </message>
    <message>
        <source>opens drawings in a window</source>
        <translation>abre dibujos en una ventana</translation>
    </message>
    <message>
        <source>a drawing to open</source>
        <translation>un dibujo que se abre</translation>
    </message>
    <message>
        <source>Opens the drawings in a window, or works on them without one. &quot;ortakit help COMMAND&quot; tells more about a command. A drawing whose name is that of a command is written with its folder: ./run</source>
        <translation>Abre los dibujos en una ventana, o trabaja en ellos sin ella. &quot;ortakit help COMMAND&quot; dice más de un comando. Un dibujo que se llame como un comando se escribe con su carpeta: ./run</translation>
    </message>
    <message>
        <source>Options of the window</source>
        <translation>Opciones de la ventana</translation>
    </message>
    <message>
        <source>%1 asks for points or entities: play a recorded session with ortakit run</source>
        <translation>%1 pide puntos o entidades: reproduzca una sesión grabada con ortakit run</translation>
    </message>
    <message>
        <source>%1 needs a drawing</source>
        <translation>%1 necesita un dibujo</translation>
    </message>
    <message>
        <source>--out and --in-place do not go together</source>
        <translation>--out y --in-place no van juntos</translation>
    </message>
    <message>
        <source>%1 changes drawings: say where they go, --out DIR or --in-place</source>
        <translation>%1 cambia dibujos: diga adónde van, --out DIR o --in-place</translation>
    </message>
    <message>
        <source>%1 works on no selection</source>
        <translation>%1 no trabaja con ninguna selección</translation>
    </message>
    <message>
        <source>of several drawings each has its own file: put {name} into %1</source>
        <translation>de varios dibujos cada uno tiene su propio archivo: ponga {name} en %1</translation>
    </message>
    <message>
        <source>%1 needs a file to write: --set %2=PATH</source>
        <translation>%1 necesita un archivo que escribir: --set %2=PATH</translation>
    </message>
    <message>
        <source>%1 has no button %2%3; it has %4</source>
        <translation>%1 no tiene el botón %2%3; tiene %4</translation>
    </message>
    <message>
        <source>%1 has no key %2%3; it has %4</source>
        <translation>%1 no tiene la clave %2%3; tiene %4</translation>
    </message>
    <message>
        <source>the file to write; {name} stands for the drawing&apos;s name</source>
        <translation>el archivo que se escribe; {name} representa el nombre del dibujo</translation>
    </message>
    <message>
        <source>the file to read</source>
        <translation>el archivo que se lee</translation>
    </message>
    <message>
        <source>yes or no</source>
        <translation>sí o no</translation>
    </message>
    <message>
        <source>yes or no, one of its group</source>
        <translation>sí o no, uno de su grupo</translation>
    </message>
    <message>
        <source>one of a list</source>
        <translation>uno de una lista</translation>
    </message>
    <message>
        <source>one of: %1</source>
        <translation>uno de: %1</translation>
    </message>
    <message>
        <source>a number from %1 to %2</source>
        <translation>un número de %1 a %2</translation>
    </message>
    <message>
        <source>a number, %1 or more</source>
        <translation>un número, %1 o más</translation>
    </message>
    <message>
        <source>a number</source>
        <translation>un número</translation>
    </message>
    <message>
        <source>a colour&apos;s number, 0 to 256</source>
        <translation>el número de un color, de 0 a 256</translation>
    </message>
    <message>
        <source>rows by the texts of their first column with ^ between; * for all</source>
        <translation>filas según los textos de su primera columna con ^ entre ellos; * para todas</translation>
    </message>
    <message>
        <source>a file or folder</source>
        <translation>un archivo o una carpeta</translation>
    </message>
    <message>
        <source>a text</source>
        <translation>un texto</translation>
    </message>
    <message>
        <source> (default: %1)</source>
        <translation> (por defecto: %1)</translation>
    </message>
    <message>
        <source>--select takes all, TYPES [on layer PATTERN] [of block PATTERN] [in style PATTERN] [in color NUMBER], or a filter list, not &quot;%1&quot;</source>
        <translation>--select acepta all, TYPES [on layer PATTERN] [of block PATTERN] [in style PATTERN] [in color NUMBER] o una lista de filtro, no &quot;%1&quot;</translation>
    </message>
    <message>
        <source>makes one paragraph of single-line texts</source>
        <translation>hace un párrafo de textos de una línea</translation>
    </message>
    <message>
        <source>writes texts in capitals, small letters or as titles</source>
        <translation>escribe los textos en mayúsculas, en minúsculas o como títulos</translation>
    </message>
    <message>
        <source>writes texts of attributes to a table in a text file</source>
        <translation>escribe textos de atributos en una tabla de un archivo de texto</translation>
    </message>
    <message>
        <source>counts the blocks of the drawing, for a text file</source>
        <translation>cuenta los bloques del dibujo, para un archivo de texto</translation>
    </message>
    <message>
        <source>With --press exporttable the table is drawn instead; its upper left corner and the height of its texts are answers: --answer 0,0 --answer 2.5</source>
        <translation>Con --press exporttable se dibuja en su lugar la tabla; su esquina superior izquierda y la altura de sus textos son respuestas: --answer 0,0 --answer 2.5</translation>
    </message>
    <message>
        <source>takes texts of attributes from a table in a text file</source>
        <translation>toma textos de atributos de una tabla de un archivo de texto</translation>
    </message>
    <message>
        <source>All rows of the table are taken unless attributes names some. With --press btreplace, txreplace takes the place of txsearch in them first.</source>
        <translation>Se toman todas las filas de la tabla, salvo que attributes nombre algunas. Con --press btreplace, antes txreplace ocupa en ellas el lugar de txsearch.</translation>
    </message>
    <message>
        <source>writes numbers into texts in the order of their places</source>
        <translation>escribe números en los textos en el orden de sus lugares</translation>
    </message>
    <message>
        <source>For the orders by points the points are answers: --answer 0,0</source>
        <translation>Para los órdenes por puntos, los puntos son respuestas: --answer 0,0</translation>
    </message>
    <message>
        <source>replaces references to blocks by another block of the drawing</source>
        <translation>reemplaza referencias a bloques por otro bloque del dibujo</translation>
    </message>
    <message>
        <source>replaces references to blocks by a drawing file</source>
        <translation>reemplaza referencias a bloques por un archivo de dibujo</translation>
    </message>
    <message>
        <source>directory is the folder of the file, blockstablerep its name there.</source>
        <translation>directory es la carpeta del archivo, blockstablerep su nombre en ella.</translation>
    </message>
    <message>
        <source>draws slots, rectangles or circles around texts</source>
        <translation>dibuja ranuras, rectángulos o círculos alrededor de textos</translation>
    </message>
    <message>
        <source>hides what lies behind texts</source>
        <translation>oculta lo que hay detrás de los textos</translation>
    </message>
    <message>
        <source>writes dimension styles of the drawing to a file</source>
        <translation>escribe los estilos de cota del dibujo en un archivo</translation>
    </message>
    <message>
        <source>All styles are written unless lststyles names some.</source>
        <translation>Se escriben todos los estilos, salvo que lststyles nombre algunos.</translation>
    </message>
    <message>
        <source>brings dimension styles from a file into the drawing</source>
        <translation>trae al dibujo los estilos de cota de un archivo</translation>
    </message>
    <message>
        <source>All styles of the file are taken unless lststyles names some, by the first words of their names.</source>
        <translation>Se toman todos los estilos del archivo, salvo que lststyles nombre algunos, por las primeras palabras de sus nombres.</translation>
    </message>
    <message>
        <source>puts entities over each other in the order of their colours</source>
        <translation>superpone las entidades en el orden de sus colores</translation>
    </message>
    <message>
        <source>Steps are taken in the order in which they are given: --set lstcolors=&quot;5 Blue&quot; --press tofront puts blue on top.</source>
        <translation>Los pasos se dan en el orden en que se indican: --set lstcolors=&quot;5 Blue&quot; --press tofront pone el azul encima.</translation>
    </message>
    <message>
        <source>writes a problem report with what the program and the drawing are</source>
        <translation>escribe un informe de problemas con lo que son el programa y el dibujo</translation>
    </message>
    <message>
        <source>writes system variables to a script that sets them again</source>
        <translation>escribe variables de sistema en un script que las restablece</translation>
    </message>
    <message>
        <source>changes the paths of references, images, fonts and remote texts</source>
        <translation>cambia las rutas de referencias, imágenes, fuentes y textos remotos</translation>
    </message>
    <message>
        <source>All paths are meant unless lstfiles names some. --press btreplace puts txreplace in the place of txsearch in them.</source>
        <translation>Se entienden todas las rutas, salvo que lstfiles nombre algunas. --press btreplace pone en ellas txreplace en el lugar de txsearch.</translation>
    </message>
    <message>
        <source>changes and removes hyperlinks of entities</source>
        <translation>cambia y elimina hipervínculos de entidades</translation>
    </message>
    <message>
        <source>All links are meant unless tableurl names some, by their handles. --press btnreplace puts txreplace in the place of txsearch in them, --press btnremoveurl takes them away.</source>
        <translation>Se entienden todos los vínculos, salvo que tableurl nombre algunos, por sus identificadores. --press btnreplace pone en ellos txreplace en el lugar de txsearch, --press btnremoveurl los elimina.</translation>
    </message>
    <message>
        <source>cuts a line open and draws a break symbol in the gap</source>
        <translation>corta una línea y dibuja un símbolo de rotura en el hueco</translation>
    </message>
    <message>
        <source>edits the short names that are typed in place of commands</source>
        <translation>edita los nombres cortos que se escriben en lugar de los comandos</translation>
    </message>
    <message>
        <source>shows the functions of Lisp files</source>
        <translation>muestra las funciones de archivos Lisp</translation>
    </message>
    <message>
        <source>makes a linetype of a drawn pattern</source>
        <translation>crea un tipo de línea de un patrón dibujado</translation>
    </message>
    <message>
        <source>makes a shape of drawn lines and arcs</source>
        <translation>crea una forma de líneas y arcos dibujados</translation>
    </message>
    <message>
        <source>makes one drawing of the sheets of several</source>
        <translation>hace un dibujo con las hojas de varios</translation>
    </message>
    <message>
        <source>sets up a sheet: title block, viewports, alignment and scale</source>
        <translation>prepara una hoja: cajetín, ventanas gráficas, alineación y escala</translation>
    </message>
    <message>
        <source>fills a closed area with copies of a pattern</source>
        <translation>llena un área cerrada con copias de un patrón</translation>
    </message>
    <message>
        <source>inserts a block of the drawing or of another drawing file</source>
        <translation>inserta un bloque del dibujo o de otro archivo de dibujo</translation>
    </message>
    <message>
        <source>shows and sets the time that was worked on drawings</source>
        <translation>muestra y fija el tiempo trabajado en los dibujos</translation>
    </message>
    <message>
        <source>--to and --out go together</source>
        <translation>--to y --out van juntos</translation>
    </message>
    <message>
        <source>convert needs drawings</source>
        <translation>convert necesita dibujos</translation>
    </message>
    <message>
        <source>-j goes with --to and --out</source>
        <translation>-j va con --to y --out</translation>
    </message>
    <message>
        <source>Many drawings</source>
        <translation>Muchos dibujos</translation>
    </message>
    <message>
        <source>With --to and --out all words are drawings, and each becomes a file of its name in the folder. What became of them is told on standard output, a line each. The time limit is that of each.</source>
        <translation>Con --to y --out todas las palabras son dibujos, y cada uno pasa a ser un archivo de su nombre en la carpeta. Lo que fue de ellos se dice en la salida estándar, una línea por cada uno. El límite de tiempo es el de cada uno.</translation>
    </message>
    <message>
        <source>what they become</source>
        <translation>lo que pasan a ser</translation>
    </message>
    <message>
        <source>where they go</source>
        <translation>adónde van</translation>
    </message>
    <message>
        <source>print one line of JSON: of each drawing file, status, messages and out; of pictures complete, drawn, invisible, inPart and notDrawn (a number for each type) and cutShort; with --layout all of it for each of the pages, with layout and output; with --recover the same of what was dropped, mended and added</source>
        <translation>imprimir una línea de JSON: de cada dibujo file, status, messages y out; de las imágenes complete, drawn, invisible, inPart y notDrawn (un número por tipo) y cutShort; con --layout todo ello de cada una de las páginas, con layout y output; con --recover lo mismo de lo omitido, reparado y añadido</translation>
    </message>
    <message>
        <source>there is nothing called %1 to ignore%2</source>
        <translation>no hay nada llamado %1 que ignorar%2</translation>
    </message>
    <message>
        <source>diff needs two drawings</source>
        <translation>diff necesita dos dibujos</translation>
    </message>
    <message>
        <source>take numbers and coordinates for the same that are no farther apart</source>
        <translation>tomar por iguales los números y coordenadas que no estén más alejados</translation>
    </message>
    <message>
        <source>what does not count in addition, separated by commas: version, view, header, classes, objects, xdata, order. times, handles, identity, extents and reactors do not count anyway; &quot;none&quot; in front counts them</source>
        <translation>lo que además no cuenta, separado por comas: version, view, header, classes, objects, xdata, order. times, handles, identity, extents y reactors no cuentan de todos modos; &quot;none&quot; delante hace que cuenten</translation>
    </message>
    <message>
        <source>what makes entities the same one: their handles, or what is in them</source>
        <translation>lo que hace que las entidades sean la misma: sus identificadores o lo que contienen</translation>
    </message>
    <message>
        <source>auto: by handle, unless far more entities are the same by content</source>
        <translation>auto: por identificador, salvo que muchas más entidades sean las mismas por su contenido</translation>
    </message>
    <message>
        <source>tell the sums alone</source>
        <translation>decir solo las sumas</translation>
    </message>
    <message>
        <source>draw both over each other into a png, svg or pdf file: what is gone red and dashed, what is new green and thick, what has changed orange and dashed as it was, blue and thick as it is</source>
        <translation>dibujar ambos uno sobre otro en un archivo png, svg o pdf: lo que ya no está en rojo y discontinuo, lo nuevo en verde y grueso, lo que ha cambiado en naranja y discontinuo como era, en azul y grueso como es</translation>
    </message>
    <message>
        <source>which sheet the picture shows; without it, model space</source>
        <translation>qué hoja muestra la imagen; sin ello, el espacio modelo</translation>
    </message>
    <message>
        <source>write the picture although another program has it open</source>
        <translation>escribir la imagen aunque otro programa la tenga abierta</translation>
    </message>
    <message>
        <source>the most it may take</source>
        <translation>lo máximo que puede tardar</translation>
    </message>
    <message>
        <source>print the differences as one line of JSON</source>
        <translation>imprimir las diferencias como una línea de JSON</translation>
    </message>
    <message>
        <source>tells what differs in two drawings</source>
        <translation>dice en qué difieren dos dibujos</translation>
    </message>
    <message>
        <source>a drawing as it was</source>
        <translation>un dibujo como era</translation>
    </message>
    <message>
        <source>the drawing as it is</source>
        <translation>el dibujo como es</translation>
    </message>
    <message>
        <source>Prints a line for each variable, layer, style, block, entity and object that differs: + for what B has alone, - for what A has alone, ~ for what has other values in B, with these. Sums stand behind =, by type and by layer. The files&apos; forms and versions do not matter, nor how numbers are spelt.

Ends with status 0 when nothing differs, 1 when something does, 2 and more when it could not be found out.

With the seven words that git hands to a program for differences it compares these two files and ends with 0 either way: git config diff.dxf.command &quot;ortakit diff&quot;.</source>
        <translation>Imprime una línea por cada variable, capa, estilo, bloque, entidad y objeto que difiere: + para lo que solo tiene B, - para lo que solo tiene A, ~ para lo que tiene otros valores en B, con ellos. Las sumas están detrás de =, por tipo y por capa. No importan las formas y versiones de los archivos ni cómo se escriben los números.

Termina con el estado 0 cuando nada difiere, 1 cuando algo difiere, 2 y más cuando no se pudo averiguar.

Con las siete palabras que git pasa a un programa de diferencias compara estos dos archivos y termina con 0 en cualquier caso: git config diff.dxf.command &quot;ortakit diff&quot;.</translation>
    </message>
    <message>
        <source>Example:</source>
        <translation>Ejemplo:</translation>
    </message>
    <message>
        <source>%1 needs at least one drawing</source>
        <translation>%1 necesita al menos un dibujo</translation>
    </message>
    <message>
        <source>a drawing to look at</source>
        <translation>un dibujo que mirar</translation>
    </message>
    <message>
        <source>--entities goes neither with --json nor with -j</source>
        <translation>--entities no va ni con --json ni con -j</translation>
    </message>
    <message>
        <source>--fix and --out go together</source>
        <translation>--fix y --out van juntos</translation>
    </message>
    <message>
        <source>tells what is wrong with drawings</source>
        <translation>dice qué está mal en los dibujos</translation>
    </message>
    <message>
        <source>Looks for all that opening with --recover would mend, add or drop, and the command AUDIT would find, and changes nothing. A hundred faults of a drawing are told; with --json all are.

Ends with status 0 when all drawings are sound or were mended, 1 when faults were found, 4 when files could not be read or written, 3 when that is so for some of several.</source>
        <translation>Busca todo lo que abrir con --recover repararía, añadiría u omitiría y lo que encontraría el comando AUDIT, y no cambia nada. Se dicen cien defectos de un dibujo; con --json, todos.

Termina con el estado 0 cuando todos los dibujos están intactos o fueron reparados, 1 cuando se encontraron defectos, 4 cuando no se pudieron leer o escribir archivos, 3 cuando es así en algunos de varios.</translation>
    </message>
    <message>
        <source>write the drawings with what was found mended, sound ones too</source>
        <translation>escribir los dibujos con lo encontrado reparado, también los intactos</translation>
    </message>
    <message>
        <source>the folder to write them into, under their names</source>
        <translation>la carpeta en que se escriben, con sus nombres</translation>
    </message>
    <message>
        <source>the most that each drawing may take</source>
        <translation>lo máximo que puede tardar cada dibujo</translation>
    </message>
    <message>
        <source>print one line of JSON: for each drawing opens, faults and found, as convert has it for --recover, and out</source>
        <translation>imprimir una línea de JSON: de cada dibujo opens, faults y found, como los tiene convert con --recover, y out</translation>
    </message>
    <message>
        <source>tells what drawings are and hold</source>
        <translation>dice lo que son y contienen los dibujos</translation>
    </message>
    <message>
        <source>Tells of each drawing its version and form, who saved it when, units, extents as the file says and as measured, how many entities of which type, layers, blocks, layouts with their paper, styles, the files and fonts that it names and whether they are found, and the state of its handles. Lists longer than twelve names are cut short; with --json they are whole.</source>
        <translation>Dice de cada dibujo su versión y forma, quién lo guardó y cuándo, unidades, extensión según el archivo y según lo medido, cuántas entidades de qué tipo, capas, bloques, presentaciones con su papel, estilos, los archivos y fuentes que nombra y si se encuentran, y el estado de sus identificadores. Las listas de más de doce nombres se abrevian; con --json están completas.</translation>
    </message>
    <message>
        <source>print in place of that a line for each variable, table entry, block, entity and object, in the file&apos;s order, with all its values: git config diff.dxf.textconv &quot;ortakit info --entities&quot; shows differences of these</source>
        <translation>imprimir en su lugar una línea por cada variable, entrada de tabla, bloque, entidad y objeto, en el orden del archivo, con todos sus valores: git config diff.dxf.textconv &quot;ortakit info --entities&quot; muestra las diferencias de ellas</translation>
    </message>
    <message>
        <source>print all of it as one line of JSON</source>
        <translation>imprimirlo todo como una línea de JSON</translation>
    </message>
    <message>
        <source>Kinds of findings</source>
        <translation>Tipos de hallazgos</translation>
    </message>
    <message>
        <source>uses takes man DIR, completions DIR or document</source>
        <translation>uses se llama con &quot;man DIR&quot;, &quot;completions DIR&quot; o &quot;document&quot;</translation>
    </message>
    <message>
        <source>writes manual pages, completions and a document about the commands</source>
        <translation>escribe páginas de manual, complementos y un documento sobre los comandos</translation>
    </message>
    <message>
        <source>Writes ortakit(1) and a page for each command to a folder, the completions of bash, zsh and fish to their places below a folder, or the sections of docs/cli.md to standard output.</source>
        <translation>Escribe ortakit(1) y una página por comando en una carpeta, los complementos de bash, zsh y fish en sus lugares bajo una carpeta, o las secciones de docs/cli.md en la salida estándar.</translation>
    </message>
    <message>
        <source>tell what became of each drawing as one line of JSON</source>
        <translation>decir lo que fue de cada dibujo como una línea de JSON</translation>
    </message>
    <message>
        <source>--set takes KEY=VALUE, not &quot;%1&quot;</source>
        <translation>--set acepta KEY=VALUE, no &quot;%1&quot;</translation>
    </message>
    <message>
        <source>what it works on: all, or types of entities as TEXT,MTEXT, with &quot;on layer PATTERN&quot;, &quot;of block PATTERN&quot;, &quot;in style PATTERN&quot; and &quot;in color NUMBER&quot; behind, or a filter list as ssget takes it: &apos;((0 . &quot;TEXT&quot;) (8 . &quot;NOTES&quot;))&apos;. What the tool cannot use is left out</source>
        <translation>con qué trabaja: all o tipos de entidades como TEXT,MTEXT, con &quot;on layer PATTERN&quot;, &quot;of block PATTERN&quot;, &quot;in style PATTERN&quot; e &quot;in color NUMBER&quot; detrás, o una lista de filtro como la toma ssget: &apos;((0 . &quot;TEXT&quot;) (8 . &quot;NOTES&quot;))&apos;. Lo que la herramienta no puede usar se omite</translation>
    </message>
    <message>
        <source>put the value into a field of the dialog; may be given again. {name} stands for the name of the drawing without folder and extension</source>
        <translation>poner el valor en un campo del diálogo; se puede repetir. {name} representa el nombre del dibujo sin carpeta ni extensión</translation>
    </message>
    <message>
        <source>begin with the values of a state file that the dialog saved</source>
        <translation>empezar con los valores de un archivo de estado que guardó el diálogo</translation>
    </message>
    <message>
        <source>press a button of the dialog behind the values that were set before; may be given again</source>
        <translation>pulsar un botón del diálogo después de los valores puestos antes; se puede repetir</translation>
    </message>
    <message>
        <source>answer the next prompt with this: a keyword, a number, a point as 10,20; may be given again</source>
        <translation>responder con esto a la siguiente pregunta: una palabra clave, un número, un punto como 10,20; se puede repetir</translation>
    </message>
    <message>
        <source>write each drawing there, under its own name</source>
        <translation>escribir allí cada dibujo, con su propio nombre</translation>
    </message>
    <message>
        <source>the most it may take with one drawing</source>
        <translation>lo máximo que puede tardar con un dibujo</translation>
    </message>
    <message>
        <source>This tool asks for points or entities of the drawing, or works on none: it is for the window, and for recorded sessions, which ortakit run plays over drawings.</source>
        <translation>Esta herramienta pide puntos o entidades del dibujo, o no trabaja con ninguno: es para la ventana y para sesiones grabadas, que ortakit run reproduce sobre dibujos.</translation>
    </message>
    <message>
        <source>Runs the tool over each drawing with its dialog filled in as --set says, and tells what it did. All of the dialog&apos;s checks hold, and what it complains about is an error of that drawing. Fields that are not set are as the dialog opens with them, whatever was chosen last. The drawings themselves stay as they are unless --in-place is given. It works in the space that is current in the drawing.</source>
        <translation>Pasa la herramienta por cada dibujo con su diálogo rellenado como dice --set, y dice lo que hizo. Valen todas las comprobaciones del diálogo, y aquello de lo que se queja es un error de ese dibujo. Los campos que no se ponen están como el diálogo se abre con ellos, se eligiera lo que se eligiera antes. Los propios dibujos quedan como están, salvo con --in-place. Trabaja en el espacio actual del dibujo.</translation>
    </message>
    <message>
        <source>Keys of --set</source>
        <translation>Claves de --set</translation>
    </message>
    <message>
        <source>what it works on</source>
        <translation>con qué trabaja</translation>
    </message>
    <message>
        <source>work on so many files at a time, each in a process of its own, so that one that crashes or takes too long is one file that failed; what is told and its order are the same for any N</source>
        <translation>trabajar en tantos archivos a la vez, cada uno en un proceso propio, de modo que uno que falle o tarde demasiado sea un archivo fallido; lo que se dice y su orden son los mismos para cualquier N</translation>
    </message>
    <message>
        <source>one process for all</source>
        <translation>un proceso para todos</translation>
    </message>
    <message>
        <source>Texts that have a frame get a new one in its place; with --answer No the old one stays as well.</source>
        <translation>Los textos que tienen un marco reciben uno nuevo en su lugar; con --answer No se conserva también el anterior.</translation>
    </message>
    <message>
        <source>end with status 3 when something could not be read or is missing in the picture, which is written all the same</source>
        <translation>terminar con estado 3 cuando algo no se pudo leer o falta en la imagen, que se escribe de todos modos</translation>
    </message>
    <message>
        <source>--recover and --in-place do not go together: what is recovered is not written over the damaged file</source>
        <translation>--recover y --in-place no van juntos: lo que se recupera no se escribe sobre el archivo dañado</translation>
    </message>
    <message>
        <source>save each drawing that was changed where it is, with a copy of the old one where SETBACKUPFOLDER has named a folder for that; the tool does not run over what cannot be saved so, such as DWG files</source>
        <translation>guardar en su lugar cada dibujo cambiado, con una copia del anterior si SETBACKUPFOLDER ha nombrado una carpeta para ello; la herramienta no trabaja con lo que no se puede guardar así, como los archivos DWG</translation>
    </message>
    <message>
        <source>write files although another program has them open, or they lie beside a drawing under its result&apos;s name</source>
        <translation>escribir archivos aunque otro programa los tenga abiertos, o estén junto a un dibujo con el nombre de su resultado</translation>
    </message>
    <message>
        <source>write files as well that another program has open, or has changed since they were opened, or that lie beside a drawing under its result&apos;s name</source>
        <translation>escribir también archivos que otro programa tenga abiertos, o haya cambiado desde que se abrieron, o que estén junto a un dibujo con el nombre de su resultado</translation>
    </message>
</context>
<context>
    <name>host::app::ClosingQuestion</name>
    <message>
        <source>not saved yet: a name is asked for</source>
        <translation>aún no guardado: se pide un nombre</translation>
    </message>
    <message>
        <source>Save changes</source>
        <translation>Guardar cambios</translation>
    </message>
    <message>
        <source>Changed drawings</source>
        <translation>Dibujos cambiados</translation>
    </message>
    <message>
        <source>Drawing</source>
        <translation>Dibujo</translation>
    </message>
    <message>
        <source>File</source>
        <translation>Archivo</translation>
    </message>
    <message>
        <source>&amp;Save selected</source>
        <translation>&amp;Guardar seleccionados</translation>
    </message>
    <message>
        <source>&amp;Discard all changes</source>
        <translation>&amp;Descartar todos los cambios</translation>
    </message>
    <message>
        <source>These drawings were changed. Those that are not checked are closed unsaved.</source>
        <translation>Estos dibujos han cambiado. Los que no estén marcados se cierran sin guardar.</translation>
    </message>
</context>
<context>
    <name>host::app::CommandLine</name>
    <message>
        <source>Command line</source>
        <translation>Línea de comandos</translation>
    </message>
    <message>
        <source>What was printed</source>
        <translation>Lo impreso</translation>
    </message>
    <message>
        <source>Command:</source>
        <translation>Comando:</translation>
    </message>
    <message>
        <source>Search what was entered: %1</source>
        <translation>Buscar en lo introducido: %1</translation>
    </message>
    <message>
        <source>Not found: %1</source>
        <translation>No encontrado: %1</translation>
    </message>
    <message>
        <source>Find</source>
        <translation>Buscar</translation>
    </message>
    <message>
        <source>Find in what was printed</source>
        <translation>Buscar en lo impreso</translation>
    </message>
</context>
<context>
    <name>host::app::CommandPalette</name>
    <message>
        <source>Commands</source>
        <translation>Comandos</translation>
    </message>
    <message>
        <source>What is to be done? A command, a menu entry, a system variable</source>
        <translation>¿Qué se va a hacer? Un comando, una entrada de menú, una variable de sistema</translation>
    </message>
    <message>
        <source>What is sought</source>
        <translation>Lo que se busca</translation>
    </message>
    <message>
        <source>Commands that fit</source>
        <translation>Comandos que coinciden</translation>
    </message>
</context>
<context>
    <name>host::app::CommandRunner</name>
    <message>
        <source>
A command is running; Esc stops it.
</source>
        <translation>
Hay un comando en curso; Esc lo detiene.
</translation>
    </message>
    <message>
        <source>
No drawing is open.
</source>
        <translation>
No hay ningún dibujo abierto.
</translation>
    </message>
    <message>
        <source>(_&gt;</source>
        <translation>(_&gt;</translation>
    </message>
    <message>
        <source>Command:</source>
        <translation>Comando:</translation>
    </message>
    <message>
        <source>No session can be played now.</source>
        <translation>Ahora no se puede reproducir ninguna sesión.</translation>
    </message>
</context>
<context>
    <name>host::app::DrawingAudit</name>
    <message>
        <source>the reader takes no names with line feeds</source>
        <translation>el lector no admite nombres con saltos de línea</translation>
    </message>
    <message>
        <source>the reader %1 does not answer</source>
        <translation>el lector %1 no responde</translation>
    </message>
</context>
<context>
    <name>host::app::DrawingCanvas</name>
    <message>
        <source>simplified</source>
        <translation>simplificado</translation>
    </message>
</context>
<context>
    <name>host::app::DrawingTabs</name>
    <message>
        <source>%1 (recovered)</source>
        <translation>%1 (recuperado)</translation>
    </message>
    <message>
        <source>%1 (read only)</source>
        <translation>%1 (solo lectura)</translation>
    </message>
</context>
<context>
    <name>host::app::HelpWindow</name>
    <message>
        <source>Help</source>
        <translation>Ayuda</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>Buscar</translation>
    </message>
    <message>
        <source>Contents</source>
        <translation>Contenido</translation>
    </message>
    <message>
        <source>What was found</source>
        <translation>Lo encontrado</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Atrás</translation>
    </message>
    <message>
        <source>Forward</source>
        <translation>Adelante</translation>
    </message>
    <message>
        <source>Index</source>
        <translation>Índice</translation>
    </message>
    <message>
        <source>Larger</source>
        <translation>Más grande</translation>
    </message>
    <message>
        <source>Smaller</source>
        <translation>Más pequeño</translation>
    </message>
    <message>
        <source>Print...</source>
        <translation>Imprimir...</translation>
    </message>
    <message>
        <source>Nothing was found.</source>
        <translation>No se encontró nada.</translation>
    </message>
</context>
<context>
    <name>host::app::InPlaceEdit</name>
    <message>
        <source>Text</source>
        <translation>Texto</translation>
    </message>
</context>
<context>
    <name>host::app::LayerBox</name>
    <message>
        <source>Filter of names</source>
        <translation>Filtro de nombres</translation>
    </message>
    <message>
        <source>Filter</source>
        <translation>Filtro</translation>
    </message>
    <message>
        <source>Layers</source>
        <translation>Capas</translation>
    </message>
</context>
<context>
    <name>host::app::LayerPanel</name>
    <message>
        <source>Layers</source>
        <translation>Capas</translation>
    </message>
    <message>
        <source>&amp;New</source>
        <translation>&amp;Nuevo</translation>
    </message>
    <message>
        <source>A layer that looks like the chosen one</source>
        <translation>Una capa que se parece a la elegida</translation>
    </message>
    <message>
        <source>&amp;Delete</source>
        <translation>&amp;Borrar</translation>
    </message>
    <message>
        <source>Takes unused layers out of the drawing</source>
        <translation>Quita del dibujo las capas sin usar</translation>
    </message>
    <message>
        <source>Make &amp;current</source>
        <translation>Hacer a&amp;ctual</translation>
    </message>
    <message>
        <source>Filter of names</source>
        <translation>Filtro de nombres</translation>
    </message>
    <message>
        <source>Filter: part of a name, or a pattern</source>
        <translation>Filtro: parte de un nombre o un patrón</translation>
    </message>
    <message>
        <source>Which layers are shown</source>
        <translation>Qué capas se muestran</translation>
    </message>
    <message>
        <source>All</source>
        <translation>Todo</translation>
    </message>
    <message>
        <source>Used</source>
        <translation>Usadas</translation>
    </message>
    <message>
        <source>Of references</source>
        <translation>De referencias</translation>
    </message>
    <message>
        <source>Not frozen</source>
        <translation>No inutilizadas</translation>
    </message>
    <message>
        <source>Visible</source>
        <translation>Visibles</translation>
    </message>
    <message>
        <source>%1 of %2 layers</source>
        <translation>%1 de %2 capas</translation>
    </message>
    <message>
        <source>%1, %2 chosen</source>
        <translation>%1, %2 elegidas</translation>
    </message>
    <message>
        <source>... and %1 more</source>
        <translation>... y %1 más</translation>
    </message>
    <message>
        <source>Nothing can be changed while a command runs.</source>
        <translation>No se puede cambiar nada mientras hay un comando en curso.</translation>
    </message>
    <message>
        <source>No drawing is open.</source>
        <translation>No hay ningún dibujo abierto.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no value for this.</source>
        <translation>&quot;%1&quot; no es un valor para esto.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; belongs to an external reference and cannot be current.</source>
        <translation>&quot;%1&quot; pertenece a una referencia externa y no puede ser la actual.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is frozen and cannot be current.</source>
        <translation>&quot;%1&quot; está inutilizada y no puede ser la actual.</translation>
    </message>
    <message>
        <source>Layer &quot;%1&quot; is used.</source>
        <translation>La capa &quot;%1&quot; está en uso.</translation>
    </message>
    <message>
        <source>&amp;Rename</source>
        <translation>&amp;Renombrar</translation>
    </message>
    <message>
        <source>C&amp;olor...</source>
        <translation>C&amp;olor...</translation>
    </message>
    <message>
        <source>Select &amp;all</source>
        <translation>Seleccionar &amp;todo</translation>
    </message>
</context>
<context>
    <name>host::app::LayoutTabs</name>
    <message>
        <source>Layouts</source>
        <translation>Presentaciones</translation>
    </message>
</context>
<context>
    <name>host::app::LineReader</name>
    <message>
        <source>too much on the line: &quot;%1&quot;</source>
        <translation>sobra en la línea: &quot;%1&quot;</translation>
    </message>
    <message>
        <source>something is missing at the end of the line</source>
        <translation>falta algo al final de la línea</translation>
    </message>
</context>
<context>
    <name>host::app::LispConsole</name>
    <message>
        <source>A Lisp expression</source>
        <translation>Una expresión Lisp</translation>
    </message>
    <message>
        <source>Lisp expression</source>
        <translation>Expresión Lisp</translation>
    </message>
    <message>
        <source>Search what was entered: %1</source>
        <translation>Buscar en lo introducido: %1</translation>
    </message>
    <message>
        <source>Not found: %1</source>
        <translation>No encontrado: %1</translation>
    </message>
</context>
<context>
    <name>host::app::LossBar</name>
    <message>
        <source>What of the file could not be read</source>
        <translation>Lo que no se pudo leer del archivo</translation>
    </message>
    <message>
        <source>Objects that could not be read</source>
        <translation>Objetos que no se pudieron leer</translation>
    </message>
</context>
<context>
    <name>host::app::MainWindow</name>
    <message>
        <source>Lisp console</source>
        <translation>Consola Lisp</translation>
    </message>
    <message>
        <source>
A command is running; Esc stops it.
</source>
        <translation>
Hay un comando en curso; Esc lo detiene.
</translation>
    </message>
    <message>
        <source>
No drawing is open.
</source>
        <translation>
No hay ningún dibujo abierto.
</translation>
    </message>
    <message>
        <source>%1 is a folder.</source>
        <translation>%1 es una carpeta.</translation>
    </message>
    <message>
        <source>%1 is a picture or document, no drawing.</source>
        <translation>%1 es una imagen o un documento, no un dibujo.</translation>
    </message>
    <message>
        <source>No tools were found</source>
        <translation>No se han encontrado herramientas</translation>
    </message>
    <message>
        <source>
The help pages were not found.
</source>
        <translation>
No se han encontrado las páginas de ayuda.
</translation>
    </message>
    <message>
        <source>About Ortakit</source>
        <translation>Acerca de Ortakit</translation>
    </message>
    <message>
        <source>Ortakit %1

Drafting tools for CAD drawings, with a host of their own.
Qt %2</source>
        <translation>Ortakit %1

Herramientas de dibujo para dibujos CAD, con un entorno propio.
Qt %2</translation>
    </message>
    <message>
        <source>Command line</source>
        <translation>Línea de comandos</translation>
    </message>
    <message>
        <source>
There is more to show than is drawn in one go: the picture lacks part of it.
</source>
        <translation>
Hay más que mostrar de lo que se dibuja de una vez: a la imagen le falta una parte.
</translation>
    </message>
    <message>
        <source>%1 is no full path of a program.</source>
        <translation>%1 no es la ruta completa de un programa.</translation>
    </message>
    <message>
        <source>This cannot be kept in %1.</source>
        <translation>Esto no se puede guardar en %1.</translation>
    </message>
    <message>
        <source>not while something runs</source>
        <translation>no mientras algo está en curso</translation>
    </message>
    <message>
        <source>not possible now</source>
        <translation>no es posible ahora</translation>
    </message>
    <message>
        <source>command of a program</source>
        <translation>comando de un programa</translation>
    </message>
    <message>
        <source>system variable: %1</source>
        <translation>variable de sistema: %1</translation>
    </message>
    <message>
        <source>Open &amp;recent</source>
        <translation>Abrir &amp;recientes</translation>
    </message>
    <message>
        <source>%1 (pinned)</source>
        <translation>%1 (fijado)</translation>
    </message>
    <message>
        <source>&amp;Last time&apos;s drawings</source>
        <translation>&amp;Dibujos de la última vez</translation>
    </message>
    <message>
        <source>Open them at each &amp;start</source>
        <translation>Abrirlos en cada &amp;inicio</translation>
    </message>
    <message>
        <source>&amp;Clear the list</source>
        <translation>&amp;Vaciar la lista</translation>
    </message>
    <message>
        <source>Start</source>
        <translation>Inicio</translation>
    </message>
    <message>
        <source>Stop &amp;recording</source>
        <translation>Detener &amp;grabación</translation>
    </message>
    <message>
        <source>
Recording to %1.
</source>
        <translation>
Grabando en %1.
</translation>
    </message>
    <message>
        <source>&amp;Record session...</source>
        <translation>&amp;Grabar sesión...</translation>
    </message>
    <message>
        <source>
Recorded in %1.
</source>
        <translation>
Grabado en %1.
</translation>
    </message>
    <message>
        <source>
The recording was not written: %1: %2
</source>
        <translation>
La grabación no se ha escrito: %1: %2
</translation>
    </message>
    <message>
        <source>Record session</source>
        <translation>Grabar sesión</translation>
    </message>
    <message>
        <source>Recorded sessions (*.txt);;All files (*)</source>
        <translation>Sesiones grabadas (*.txt);;Todos los archivos (*)</translation>
    </message>
    <message>
        <source>
No copy of %1 is kept for after a crash: %2.
</source>
        <translation>
No se guarda copia de %1 para después de una interrupción: %2.
</translation>
    </message>
    <message>
        <source>
%1 was recovered by another program.
</source>
        <translation>
%1 lo recuperó otro programa.
</translation>
    </message>
    <message>
        <source>
Recovered as it was on %1. It is not in its file until it is saved.
</source>
        <translation>
Recuperado tal como estaba el %1. No está en su archivo hasta que se guarde.
</translation>
    </message>
    <message>
        <source>Enter</source>
        <translation>Intro</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
    <message>
        <source>Repeat %1</source>
        <translation>Repetir %1</translation>
    </message>
    <message>
        <source>Recent input</source>
        <translation>Entrada reciente</translation>
    </message>
    <message>
        <source>Choose nothing</source>
        <translation>No designar nada</translation>
    </message>
    <message>
        <source>
This link of the help page is not followed: %1
</source>
        <translation>
No se sigue este enlace de la página de ayuda: %1
</translation>
    </message>
</context>
<context>
    <name>host::app::NoticeBar</name>
    <message>
        <source>Detai&amp;ls</source>
        <translation>Deta&amp;lles</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Cerrar</translation>
    </message>
</context>
<context>
    <name>host::app::ParagraphDialog</name>
    <message>
        <source>Edit paragraph</source>
        <translation>Editar párrafo</translation>
    </message>
    <message>
        <source>Text of the paragraph</source>
        <translation>Texto del párrafo</translation>
    </message>
    <message>
        <source>Each line is a paragraph. Codes are shown as they are: {\C1;red}, %%c, %%d.</source>
        <translation>Cada línea es un párrafo. Los códigos se muestran como son: {\C1;red}, %%c, %%d.</translation>
    </message>
    <message>
        <source>Ctrl+Enter</source>
        <translation>Ctrl+Intro</translation>
    </message>
</context>
<context>
    <name>host::app::PrintDialog</name>
    <message>
        <source>&amp;Centred</source>
        <translation>&amp;Centrado</translation>
    </message>
    <message>
        <source>&amp;Lineweights</source>
        <translation>Grosores de &amp;línea</translation>
    </message>
    <message>
        <source>&amp;Remember in the layout</source>
        <translation>Recordar e&amp;n la presentación</translation>
    </message>
    <message>
        <source>Print %1</source>
        <translation>Imprimir %1</translation>
    </message>
    <message>
        <source>Page setup of %1</source>
        <translation>Configuración de página de %1</translation>
    </message>
    <message>
        <source>Preview</source>
        <translation>Vista previa</translation>
    </message>
    <message>
        <source>&amp;Print</source>
        <translation>Im&amp;primir</translation>
    </message>
    <message>
        <source>%1 file</source>
        <translation>Archivo %1</translation>
    </message>
    <message>
        <source>Landscape</source>
        <translation>Horizontal</translation>
    </message>
    <message>
        <source>Portrait</source>
        <translation>Vertical</translation>
    </message>
    <message>
        <source>What is shown</source>
        <translation>Lo que se muestra</translation>
    </message>
    <message>
        <source>All</source>
        <translation>Todo</translation>
    </message>
    <message>
        <source>Limits</source>
        <translation>Límites</translation>
    </message>
    <message>
        <source>The layout&apos;s sheet</source>
        <translation>La hoja de la presentación</translation>
    </message>
    <message>
        <source>Window</source>
        <translation>Ventana</translation>
    </message>
    <message>
        <source>Fit</source>
        <translation>Ajustar</translation>
    </message>
    <message>
        <source>As the layout says</source>
        <translation>Según la presentación</translation>
    </message>
    <message>
        <source>Colours</source>
        <translation>Colores</translation>
    </message>
    <message>
        <source>Black and white</source>
        <translation>Blanco y negro</translation>
    </message>
    <message>
        <source>Greys</source>
        <translation>Grises</translation>
    </message>
    <message>
        <source>&amp;Device</source>
        <translation>&amp;Dispositivo</translation>
    </message>
    <message>
        <source>P&amp;aper</source>
        <translation>P&amp;apel</translation>
    </message>
    <message>
        <source>&amp;Orientation</source>
        <translation>&amp;Orientación</translation>
    </message>
    <message>
        <source>A&amp;rea</source>
        <translation>Ár&amp;ea</translation>
    </message>
    <message>
        <source>Lower left corner</source>
        <translation>Esquina inferior izquierda</translation>
    </message>
    <message>
        <source>Upper right corner</source>
        <translation>Esquina superior derecha</translation>
    </message>
    <message>
        <source>&amp;Scale</source>
        <translation>E&amp;scala</translation>
    </message>
    <message>
        <source>O&amp;ffset (mm)</source>
        <translation>Des&amp;fase (mm)</translation>
    </message>
    <message>
        <source>Colo&amp;urs</source>
        <translation>Colo&amp;res</translation>
    </message>
    <message>
        <source>Cop&amp;ies</source>
        <translation>Cop&amp;ias</translation>
    </message>
</context>
<context>
    <name>host::app::PropertiesPanel</name>
    <message>
        <source>Which of the chosen entities</source>
        <translation>Cuáles de las entidades designadas</translation>
    </message>
    <message>
        <source>Properties</source>
        <translation>Propiedades</translation>
    </message>
    <message>
        <source>Nothing chosen</source>
        <translation>Nada designado</translation>
    </message>
    <message>
        <source>No drawing is open</source>
        <translation>No hay ningún dibujo abierto</translation>
    </message>
    <message>
        <source>All</source>
        <translation>Todo</translation>
    </message>
    <message>
        <source>%1 of %2 are on locked layers and stay as they are.</source>
        <translation>%1 de %2 están en capas bloqueadas y se quedan como están.</translation>
    </message>
    <message>
        <source>Nothing was changed: what is chosen is on locked layers.</source>
        <translation>No se ha cambiado nada: lo designado está en capas bloqueadas.</translation>
    </message>
</context>
<context>
    <name>host::app::RecoveryDialog</name>
    <message>
        <source>never saved</source>
        <translation>nunca guardado</translation>
    </message>
    <message>
        <source>%1
(changed since by another program)</source>
        <translation>%1
(cambiado desde entonces por otro programa)</translation>
    </message>
    <message>
        <source>%1
(not there any more)</source>
        <translation>%1
(ya no está)</translation>
    </message>
    <message>
        <source>Recover drawings</source>
        <translation>Recuperar dibujos</translation>
    </message>
    <message>
        <source>The program ended without closing these drawings. What had not been saved of them was kept in copies.</source>
        <translation>El programa terminó sin cerrar estos dibujos. Lo que no se había guardado de ellos se conservó en copias.</translation>
    </message>
    <message>
        <source>Drawings to recover</source>
        <translation>Dibujos que se recuperan</translation>
    </message>
    <message>
        <source>Drawing</source>
        <translation>Dibujo</translation>
    </message>
    <message>
        <source>Copied</source>
        <translation>Copiado</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Tamaño</translation>
    </message>
    <message>
        <source>File</source>
        <translation>Archivo</translation>
    </message>
    <message>
        <source>&amp;Open selected</source>
        <translation>&amp;Abrir seleccionados</translation>
    </message>
    <message>
        <source>&amp;Discard selected...</source>
        <translation>&amp;Descartar seleccionados...</translation>
    </message>
    <message>
        <source>&amp;Later</source>
        <translation>&amp;Más tarde</translation>
    </message>
    <message>
        <source>The copies are offered again at the next start</source>
        <translation>Las copias se vuelven a ofrecer en el próximo inicio</translation>
    </message>
    <message>
        <source>(no name)</source>
        <translation>(sin nombre)</translation>
    </message>
    <message numerus="yes">
        <source>Discard what was not saved of %n drawing(s)? It cannot be brought back.</source>
        <translation>
            <numerusform>¿Descartar lo no guardado de %n dibujo? No se puede recuperar.</numerusform>
            <numerusform>¿Descartar lo no guardado de %n dibujos? No se puede recuperar.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>host::app::ResultsModel</name>
    <message>
        <source>done</source>
        <translation>hecho</translation>
    </message>
    <message>
        <source>skipped</source>
        <translation>omitido</translation>
    </message>
    <message>
        <source>Outcome</source>
        <translation>Resultado</translation>
    </message>
    <message>
        <source>Entity</source>
        <translation>Entidad</translation>
    </message>
    <message>
        <source>What and why</source>
        <translation>Qué y por qué</translation>
    </message>
</context>
<context>
    <name>host::app::ResultsPanel</name>
    <message>
        <source>&amp;Save...</source>
        <translation>&amp;Guardar...</translation>
    </message>
    <message>
        <source>Results</source>
        <translation>Resultados</translation>
    </message>
    <message>
        <source>Which results are shown</source>
        <translation>Qué resultados se muestran</translation>
    </message>
    <message>
        <source>All</source>
        <translation>Todo</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>Hecho</translation>
    </message>
    <message>
        <source>Skipped</source>
        <translation>Omitidos</translation>
    </message>
    <message>
        <source>No tool has listed results in this drawing.</source>
        <translation>Ninguna herramienta ha listado resultados en este dibujo.</translation>
    </message>
    <message>
        <source>It is not in the drawing any more.</source>
        <translation>Ya no está en el dibujo.</translation>
    </message>
    <message>
        <source>It is not in the space that is shown.</source>
        <translation>No está en el espacio que se muestra.</translation>
    </message>
    <message>
        <source>Save results</source>
        <translation>Guardar resultados</translation>
    </message>
    <message>
        <source>Text (*.txt);;JSON (*.json)</source>
        <translation>Texto (*.txt);;JSON (*.json)</translation>
    </message>
    <message>
        <source>Written: %1</source>
        <translation>Escrito: %1</translation>
    </message>
</context>
<context>
    <name>host::app::ScriptReader</name>
    <message>
        <source>part: it has no end</source>
        <translation>part: no tiene fin</translation>
    </message>
    <message>
        <source>part: the part before it has no end</source>
        <translation>part: la parte anterior no tiene fin</translation>
    </message>
    <message>
        <source>end: no part was begun</source>
        <translation>end: no se empezó ninguna parte</translation>
    </message>
    <message>
        <source>drawing: only the first line says which drawing it is</source>
        <translation>drawing: solo la primera línea dice qué dibujo es</translation>
    </message>
    <message>
        <source>part: there is a part %1 already</source>
        <translation>part: ya hay una parte %1</translation>
    </message>
    <message>
        <source>part: a part cannot be written in a part</source>
        <translation>part: una parte no se puede escribir dentro de otra</translation>
    </message>
    <message>
        <source>play: there is no part %1</source>
        <translation>play: no hay ninguna parte %1</translation>
    </message>
    <message>
        <source>play: the part %1 plays itself</source>
        <translation>play: la parte %1 se reproduce a sí misma</translation>
    </message>
    <message>
        <source>play: too many parts are played one in the other</source>
        <translation>play: hay demasiadas partes unas dentro de otras</translation>
    </message>
    <message>
        <source>play: the part %1 takes %2</source>
        <translation>play: la parte %1 toma %2</translation>
    </message>
    <message>
        <source>part %1, line %2</source>
        <translation>parte %1, línea %2</translation>
    </message>
    <message>
        <source>play: the parts write too much</source>
        <translation>play: las partes escriben demasiado</translation>
    </message>
    <message>
        <source>no arguments</source>
        <translation>sin argumentos</translation>
    </message>
</context>
<context>
    <name>host::app::SessionPlayer</name>
    <message>
        <source>the session took longer than %1 s; open is %2</source>
        <translation>la sesión tardó más de %1 s; está abierto %2</translation>
    </message>
    <message>
        <source>no dialog</source>
        <translation>ningún diálogo</translation>
    </message>
    <message>
        <source>${%1} is not known</source>
        <translation>${%1} no se conoce</translation>
    </message>
    <message>
        <source>the prompt &quot;%1&quot;</source>
        <translation>la solicitud &quot;%1&quot;</translation>
    </message>
    <message>
        <source>the session ends while %1 is open</source>
        <translation>la sesión termina mientras %1 está abierto</translation>
    </message>
    <message>
        <source>%1 is open</source>
        <translation>%1 está abierto</translation>
    </message>
    <message>
        <source>%1 is still open</source>
        <translation>%1 sigue abierto</translation>
    </message>
    <message>
        <source>a view needs two corners</source>
        <translation>una vista necesita dos esquinas</translation>
    </message>
    <message>
        <source>the run before it ended without an error</source>
        <translation>la ejecución anterior terminó sin error</translation>
    </message>
    <message>
        <source>no prompt and no dialog is open that this could be meant for</source>
        <translation>no hay ninguna solicitud ni diálogo abierto al que se pueda referir</translation>
    </message>
    <message>
        <source>there is no panel &quot;%1&quot;</source>
        <translation>no hay ningún panel &quot;%1&quot;</translation>
    </message>
    <message>
        <source>it stands in front of a command or lisp</source>
        <translation>está delante de un comando o de lisp</translation>
    </message>
    <message>
        <source>the error is &quot;%1&quot;</source>
        <translation>el error es &quot;%1&quot;</translation>
    </message>
    <message>
        <source>the run ended with &quot;%1&quot;</source>
        <translation>la ejecución terminó con &quot;%1&quot;</translation>
    </message>
    <message>
        <source>cancelled at %1, </source>
        <translation>cancelado en %1, </translation>
    </message>
    <message>
        <source>the drawing differs from what it was: %1</source>
        <translation>el dibujo difiere de como era: %1</translation>
    </message>
    <message>
        <source>there is nothing to undo</source>
        <translation>no hay nada que deshacer</translation>
    </message>
    <message>
        <source>there is nothing to redo</source>
        <translation>no hay nada que rehacer</translation>
    </message>
    <message>
        <source>it is nil</source>
        <translation>es nil</translation>
    </message>
</context>
<context>
    <name>host::app::SettingEditor</name>
    <message>
        <source>Add to: %1</source>
        <translation>Añadir a: %1</translation>
    </message>
    <message>
        <source>Lisp programs (*.lsp)</source>
        <translation>Programas Lisp (*.lsp)</translation>
    </message>
</context>
<context>
    <name>host::app::SettingsWindow</name>
    <message>
        <source>Settings</source>
        <translation>Configuración</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>Buscar</translation>
    </message>
    <message>
        <source>Search the settings</source>
        <translation>Buscar en la configuración</translation>
    </message>
    <message>
        <source>Sections</source>
        <translation>Secciones</translation>
    </message>
    <message>
        <source>System variables are shown while a drawing is open.</source>
        <translation>Las variables de sistema se muestran mientras hay un dibujo abierto.</translation>
    </message>
    <message>
        <source>A command is running; Esc stops it.</source>
        <translation>Hay un comando en curso; Esc lo detiene.</translation>
    </message>
    <message>
        <source>%1 cannot be &quot;%2&quot;.</source>
        <translation>%1 no puede ser &quot;%2&quot;.</translation>
    </message>
</context>
<context>
    <name>host::app::StartPage</name>
    <message>
        <source>Recent drawings</source>
        <translation>Dibujos recientes</translation>
    </message>
    <message>
        <source>Samples</source>
        <translation>Ejemplos</translation>
    </message>
    <message>
        <source>Ortakit</source>
        <translation>Ortakit</translation>
    </message>
    <message>
        <source>First steps</source>
        <translation>Primeros pasos</translation>
    </message>
    <message>
        <source>&amp;New drawing</source>
        <translation>Dibujo &amp;nuevo</translation>
    </message>
    <message>
        <source>&amp;Open drawings...</source>
        <translation>&amp;Abrir dibujos...</translation>
    </message>
    <message>
        <source>Open &amp;last time&apos;s drawings</source>
        <translation>Abrir dibujos de la ú&amp;ltima vez</translation>
    </message>
    <message>
        <source>Look at a sample</source>
        <translation>Ver un ejemplo</translation>
    </message>
    <message>
        <source>Draw a line</source>
        <translation>Dibujar una línea</translation>
    </message>
    <message>
        <source>Read the help</source>
        <translation>Leer la ayuda</translation>
    </message>
    <message>
        <source>(not there any more)</source>
        <translation>(ya no está)</translation>
    </message>
    <message>
        <source>%1 (pinned)</source>
        <translation>%1 (fijado)</translation>
    </message>
    <message>
        <source>Un&amp;pin</source>
        <translation>&amp;Soltar</translation>
    </message>
    <message>
        <source>&amp;Pin</source>
        <translation>&amp;Fijar</translation>
    </message>
    <message>
        <source>&amp;Remove from the list</source>
        <translation>&amp;Quitar de la lista</translation>
    </message>
</context>
<context>
    <name>host::app::StatusSwitches</name>
    <message>
        <source>%1 on</source>
        <translation>%1 activado</translation>
    </message>
    <message>
        <source>%1 off</source>
        <translation>%1 desactivado</translation>
    </message>
    <message>
        <source>GRID</source>
        <translation>REJILLA</translation>
    </message>
    <message>
        <source>Shows the grid</source>
        <translation>Muestra la rejilla</translation>
    </message>
    <message>
        <source>SNAP</source>
        <translation>FORZC</translation>
    </message>
    <message>
        <source>Points snap to the grid</source>
        <translation>Los puntos se ajustan a la rejilla</translation>
    </message>
    <message>
        <source>ORTHO</source>
        <translation>ORTO</translation>
    </message>
    <message>
        <source>Points lie along the axes from the last one</source>
        <translation>Los puntos siguen los ejes desde el último</translation>
    </message>
    <message>
        <source>POLAR</source>
        <translation>POLAR</translation>
    </message>
    <message>
        <source>Points lock to angles from the last one</source>
        <translation>Los puntos se fijan a ángulos desde el último</translation>
    </message>
    <message>
        <source>OSNAP</source>
        <translation>REFENT</translation>
    </message>
    <message>
        <source>Points snap to entities</source>
        <translation>Los puntos se ajustan a las entidades</translation>
    </message>
    <message>
        <source>DYN</source>
        <translation>DIN</translation>
    </message>
    <message>
        <source>Length and angle stand at the pointer; Tab locks what was typed</source>
        <translation>La longitud y el ángulo están junto al cursor; Tab fija lo escrito</translation>
    </message>
</context>
<context>
    <name>host::app::StyleBar</name>
    <message>
        <source>Current properties</source>
        <translation>Propiedades actuales</translation>
    </message>
    <message>
        <source>Layer</source>
        <translation>Capa</translation>
    </message>
    <message>
        <source>Color</source>
        <translation>Color</translation>
    </message>
    <message>
        <source>Linetype</source>
        <translation>Tipo de línea</translation>
    </message>
    <message>
        <source>Lineweight</source>
        <translation>Grosor de línea</translation>
    </message>
</context>
<context>
    <name>host::app::SuggestionList</name>
    <message>
        <source>Suggestions</source>
        <translation>Sugerencias</translation>
    </message>
</context>
<context>
    <name>host::app::TextEditing</name>
    <message>
        <source>It is on a locked layer.</source>
        <translation>Está en una capa bloqueada.</translation>
    </message>
    <message>
        <source>A text without letters could not be found again: it stays as it was.</source>
        <translation>Un texto sin letras no se podría volver a encontrar: se queda como estaba.</translation>
    </message>
    <message>
        <source>Edit attribute definition</source>
        <translation>Editar definición de atributo</translation>
    </message>
    <message>
        <source>Tag</source>
        <translation>Identificador</translation>
    </message>
    <message>
        <source>Prompt</source>
        <translation>Solicitud</translation>
    </message>
    <message>
        <source>Default</source>
        <translation>Valor por defecto</translation>
    </message>
    <message>
        <source>A tag has no blanks.</source>
        <translation>Un identificador no lleva espacios.</translation>
    </message>
    <message>
        <source>The value is constant: the block says it.</source>
        <translation>El valor es constante: lo dice el bloque.</translation>
    </message>
    <message>
        <source>Several lines, with \P between them.</source>
        <translation>Varias líneas, con \P entre ellas.</translation>
    </message>
    <message>
        <source>Attributes of %1</source>
        <translation>Atributos de %1</translation>
    </message>
</context>
<context>
    <name>host::app::TrustBar</name>
    <message>
        <source>%1 was not read: %2</source>
        <translation>%1 no se ha leído: %2</translation>
    </message>
    <message>
        <source>%1 was not loaded: %2</source>
        <translation>%1 no se ha cargado: %2</translation>
    </message>
    <message>
        <source>%1 was not started: %2</source>
        <translation>%1 no se ha iniciado: %2</translation>
    </message>
    <message>
        <source>Allow &amp;once</source>
        <translation>Permitir &amp;una vez</translation>
    </message>
    <message>
        <source>Trust the folde&amp;r</source>
        <translation>Confia&amp;r en la carpeta</translation>
    </message>
    <message>
        <source>What was kept from running or being read</source>
        <translation>Lo que no se ha dejado ejecutar o leer</translation>
    </message>
    <message>
        <source>Files and programs that were kept back</source>
        <translation>Archivos y programas retenidos</translation>
    </message>
    <message>
        <source>%1 things were kept back: they are named here but not in trusted folders.</source>
        <translation>%1 elementos retenidos: se nombran aquí, pero no están en carpetas de confianza.</translation>
    </message>
</context>
<context>
    <name>host::app::ValuesDialog</name>
    <message>
        <source>Tag</source>
        <translation>Identificador</translation>
    </message>
    <message>
        <source>Prompt</source>
        <translation>Solicitud</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>Valor</translation>
    </message>
</context>
<context>
    <name>host::app::WindowDialogs</name>
    <message>
        <source>Printed on %1.</source>
        <translation>Impreso en %1.</translation>
    </message>
    <message>
        <source>Print to file</source>
        <translation>Imprimir en archivo</translation>
    </message>
    <message>
        <source>%1 files (*.%2)</source>
        <translation>Archivos %1 (*.%2)</translation>
    </message>
    <message>
        <source>&amp;New</source>
        <translation>&amp;Nuevo</translation>
    </message>
    <message>
        <source>&amp;Rename...</source>
        <translation>&amp;Renombrar...</translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation>&amp;Copiar</translation>
    </message>
    <message>
        <source>&amp;Delete</source>
        <translation>&amp;Borrar</translation>
    </message>
    <message>
        <source>Move &amp;left</source>
        <translation>Mover a la &amp;izquierda</translation>
    </message>
    <message>
        <source>Move righ&amp;t</source>
        <translation>Mover a la &amp;derecha</translation>
    </message>
    <message>
        <source>&amp;Page setup...</source>
        <translation>Configurar &amp;página...</translation>
    </message>
    <message>
        <source>Rename layout</source>
        <translation>Renombrar presentación</translation>
    </message>
    <message>
        <source>&amp;Name:</source>
        <translation>&amp;Nombre:</translation>
    </message>
</context>
<context>
    <name>host::app::Workbench</name>
    <message>
        <source>The folder of the Lisp tools was not found; there are no tools.</source>
        <translation>No se ha encontrado la carpeta de las herramientas Lisp; no hay herramientas.</translation>
    </message>
    <message>
        <source>There is no folder %1; there are no tools.</source>
        <translation>No hay ninguna carpeta %1; no hay herramientas.</translation>
    </message>
    <message>
        <source>The plug-in module was not found; tools with dialogs will not work.</source>
        <translation>No se ha encontrado el módulo de extensión; las herramientas con diálogos no funcionarán.</translation>
    </message>
    <message>
        <source>%1 Tools with dialogs will not work.</source>
        <translation>%1 Las herramientas con diálogos no funcionarán.</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
</context>
<context>
    <name>host::kernel::Autosave</name>
    <message>
        <source>the folder %1 takes no files</source>
        <translation>la carpeta %1 no admite archivos</translation>
    </message>
</context>
<context>
    <name>host::kernel::ColourDialog</name>
    <message>
        <source>Select Color</source>
        <translation>Seleccionar color</translation>
    </message>
    <message>
        <source>By&amp;Layer</source>
        <translation>Por&amp;Capa</translation>
    </message>
    <message>
        <source>By&amp;Block</source>
        <translation>Por&amp;Bloque</translation>
    </message>
    <message>
        <source>&amp;More Colors...</source>
        <translation>&amp;Más colores...</translation>
    </message>
    <message>
        <source>&amp;Color:</source>
        <translation>C&amp;olor:</translation>
    </message>
</context>
<context>
    <name>host::kernel::DrawingBackup</name>
    <message>
        <source>No backup of %1: %2.</source>
        <translation>Sin copia de seguridad de %1: %2.</translation>
    </message>
    <message>
        <source>the backup would take the place of the drawing</source>
        <translation>la copia de seguridad ocuparía el lugar del dibujo</translation>
    </message>
    <message>
        <source>there is no folder %1</source>
        <translation>no hay ninguna carpeta %1</translation>
    </message>
</context>
<context>
    <name>host::view::DifferencePicture</name>
    <message>
        <source>gone: %n</source>
        <translation>ya no están: %n</translation>
    </message>
    <message>
        <source>new: %n</source>
        <translation>nuevas: %n</translation>
    </message>
    <message>
        <source>changed, as it was: %n</source>
        <translation>cambiadas, como eran: %n</translation>
    </message>
    <message>
        <source>changed, as it is: %n</source>
        <translation>cambiadas, como son: %n</translation>
    </message>
    <message>
        <source>the same in both</source>
        <translation>lo mismo en ambos</translation>
    </message>
    <message>
        <source>the picture is too large</source>
        <translation>la imagen es demasiado grande</translation>
    </message>
</context>
<context>
    <name>host::view::Export</name>
    <message>
        <source>Cannot make a picture of this size for %1</source>
        <translation>No se puede hacer una imagen de este tamaño para %1</translation>
    </message>
    <message>
        <source>Cannot write %1: %2</source>
        <translation>No se puede escribir %1: %2</translation>
    </message>
    <message>
        <source>The sheet would be %1 by %2 pixels; %3 each way are the most</source>
        <translation>La hoja tendría %1 por %2 píxeles; lo máximo en cada sentido son %3</translation>
    </message>
    <message>
        <source>There is no block named %1</source>
        <translation>No hay ningún bloque llamado %1</translation>
    </message>
    <message>
        <source>There is no layout named %1</source>
        <translation>No hay ninguna presentación llamada %1</translation>
    </message>
    <message>
        <source>it is not found</source>
        <translation>no se encuentra</translation>
    </message>
    <message>
        <source>the plot styles %1 are left out: %2</source>
        <translation>los estilos de trazado %1 se omiten: %2</translation>
    </message>
</context>
</TS>
