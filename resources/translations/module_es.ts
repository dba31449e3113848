<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="es_ES" sourcelanguage="en">
<context>
    <name>BlockReplacementDialog</name>
    <message>
        <source>The block &quot;%1&quot; is taken for %2, as another block of the drawing is. Rename one of the two first.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>DLG_QT_ConvertNotes</name>
    <message>
        <source>Convert SimpleNote</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Format</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Keep original T&amp;extStyle</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Keep original &amp;LineColor</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Keep original &amp;height</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Ordering</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Selection set</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Top-down</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Alphabetical</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Create word-wrap text</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>OK</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Help</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>DLG_QT_PatternHatch</name>
    <message>
        <source>Pattern Hatch</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Type </source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Block</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Image</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;External reference</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Mask</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Name:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Favorites</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Save favorite</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Remove favorite</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Pattern preview</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Size</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Width and height as scale factor</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Lock aspect ratio</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Wid&amp;th:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Hei&amp;ght:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Spacing</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Offset &amp;X:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Offset &amp;Y:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Position</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Pattern &amp;origin:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>X</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Specify in graphics area</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Y</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Rotation &amp;angle:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Extracts pattern, size, position and rotation from an entity in drawing</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Extract from entity</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Boundaries</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Specify &amp;entities</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Specify points</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Delete boundary entities</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Highlight boundary entities</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Extract from a hatch</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Type of entities</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Anonymous block</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>E&amp;ntity group</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Limits</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Cut entities</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Draw surpassing entities</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Tolerance for curves</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Previews the result in the drawing</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Preview</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>OK</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Help</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A drawing of this version has neither images nor masks.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>At the boundary copies of references are left out: they cannot be cut.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>At the boundary copies with anything but lines, arcs and polylines are left out.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Copies of references are clipped at the boundary, not cut.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Copies with texts, images or tilted entities are clipped, not cut.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Select image for pattern</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Specify Pattern </source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Scale must be higher than zero. </source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The tolerance value is less than minimum. The value is reset to minimum (0.01). </source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>All supported Image file (*.bmp *.gif *.jpg *.jpeg *.png *.tif *.tiff *.ecw);;</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Windows Bitmap (*.bmp);;</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Graphics Interchange Format (*.gif);;</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>JPEG File Interchange Format (*.jpg *.jpeg);;</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Portable Netkword Graphics (*.png);;</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Tagged Image File Format (*.tif *.tiff);;</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Enhanced Compression Wavelet (*.ecw)</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>DLG_QT_SelectBlock</name>
    <message>
        <source>Select Block</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Blocks of</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Active drawing</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Drawing file:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Drawing file that has the block</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Browse the disk for the drawing that has the block</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Browse...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Filter by:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Regular expression; blocks whose name contains it are listed</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>List the blocks that programs have made without a name of their own, such as *U12</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Show anonymous blocks</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Preview</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>OK</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Help</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Name;Type</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>External reference</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Drawing files (*.dwg *.dxf)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Block</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Anonymous block</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cannot find the specified file.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The drawing file cannot be read.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Blocks: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Blocks: %1 of %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The drawing has no blocks.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>You must first select a block.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The name of the block holds characters that no program can take. Rename it first.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The block &quot;%1&quot; is an external reference of the other drawing. Attach its drawing instead.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The block &quot;%1&quot; is anonymous: it cannot be brought in from another drawing.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The drawing file does not have the block &quot;%1&quot; any more.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>Dlg_QT_Breakline</name>
    <message>
        <source>Breakline</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Specify a drawing for breakline</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Browse...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Preview</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Sizes</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Si&amp;ze:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>O&amp;ffset:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>New symbol</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Name:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Specify entities to use as breakline</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Specify entity to use as breakline</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>OK</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Help</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Drawing files (*.dwg *.dxf)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cannot find the specified drawing file.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>Dlg_QT_DrawOderColor</name>
    <message>
        <source>Draw Order by Color</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Back: drawn first</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Front: drawn last, over all others</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Draw the selected colors before all others (Alt+Home)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>To &amp;back</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Move the selected rows up by one place (Alt+Up)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Move &amp;up</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Move the selected rows down by one place (Alt+Down)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Move &amp;down</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Draw the selected colors after all others (Alt+End)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>To &amp;front</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Turn the order around</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>R&amp;everse</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Order the colors by their numbers</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Sort by number</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Take the selected colors off the list (Del)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Remove</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Color:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Add this color at the front</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Add</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Favorites</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Name:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Save favorite</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Remove favorite</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>OK</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Help</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 (no color)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Color</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>Dlg_QT_EditAlias</name>
    <message>
        <source>Edit Alias</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Current alias:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Create new alias</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Remove alias</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Clean alias list</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Save alias</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Import alias from file</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Export alias to file</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Print alias</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>OK</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Help</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Command;Alias</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The alias file could not be read whole (%1). Keep it as it is under another name, and write what the table holds in its place?</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>What %1 held before is in %2.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Select the rows of table for remove.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Are you sure you want to remove this alias for %1?</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Are you sure you want to delete all alias?</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The alias file has been saved.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The alias file could not be saved.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Save As</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Alias files (*.xml);; All files (*.*)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The alias file has been exported.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The alias file could not be exported.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Select the file to import</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Alias files (*.txt);; All files (*.*)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The alias file could not be imported.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>This alias already begin used for other command.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Sorting...</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>Dlg_QT_EditTextCase</name>
    <message>
        <source>EditTextCase</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Text:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>This is a sample text for kora</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Style</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Sentence case</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Lowercase</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Uppercase</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Title</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>T&amp;oggle case</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Preview</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>OK</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Help</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Sentence</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Lower</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Upper</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Title</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>toGgle</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>Dlg_QT_ExchangedDimensionStyle</name>
    <message>
        <source>Export Dimension Style</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Available DimensionStyles</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Style Variables</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Options</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;TextStyle name only</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Full TextStyle information</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Export...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Export to file</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Select Dimension Style file</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>DimStyle files (*.dim)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No dimension style selected, please select a dimension style to export. </source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Exchange Dimension Style</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 already exists. Do you want to replace it?</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>Dlg_QT_ExportInfo</name>
    <message>
        <source>Export Settings</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>User information</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Name:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;E-mail address: </source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Phone number: </source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Issue description: </source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Steps to Reproduce the Issue</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>System information</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>OK</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Help</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Export information</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Text files (*.txt)</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>Dlg_QT_ExportSettings</name>
    <message>
        <source>Export Settings</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Variable type:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Select a system variable</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Save modified settings</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Export to script...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>All,Read only,Dangerous,Standard</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>VariableToScript</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>ExportVariables</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Append to script...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Export to script...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Append settings to an existing file</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Save script file</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Append to script file</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Script files (*.scr)</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>Dlg_QT_GetBlockInfo</name>
    <message>
        <source>Get Block Info</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Creates a table in the drawing with the block information</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Export list to a table in &amp;drawing</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Saves the list to a text file</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Export list to a &amp;file</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Block Information</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Include nested blocks</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Name;Instances</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Resulting file</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Text files (*.txt)</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>Dlg_QT_ImportBlockAttributes</name>
    <message>
        <source>Import Block Attributes</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>File</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Opens an attribute text file</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Browse...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Find and replace</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Find what:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>R&amp;eplace with:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Replace coincidences with specified string</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Replace</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Select all</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>OK</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Help</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Select the file to import</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Attributes files (*.txt)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The table is too large.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Reading the attributes...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Select items of table for search.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Select the rows of table for import.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Collecting the rows...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Sorting...</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>Dlg_QT_ImportDimensionStyle</name>
    <message>
        <source>Import Dimension Style</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;File to import:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Browse...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Browse for location of exported file</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Available Dimension Styles</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Style variables</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Options</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Overwrite existing TextStyle</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Overwrite existing DimensionStyle</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>OK</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Help</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Select Dimension Style file</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>DimStyle files (*.dim)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No dimension style selected, please select a dimension style to import. </source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>Dlg_QT_LispExplorer</name>
    <message>
        <source>Lisp Explorer</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Location</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Library</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>L&amp;oaded</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Folder:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Browse a folder containing lisp files</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Browse...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Files:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Functions:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Loads this function</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Lo&amp;ad</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Display as:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Filter the function content</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Search:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Search</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Type</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Commands</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Functions</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Variables</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Saves commands, functions and variables in a text file.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Export...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>; %1 more lines</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Header Only;Function Only;Both</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Specify a folder for lisp files</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Specify Folder</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Error</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No matches found for</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The file has been loaded.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>LispExplorer</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Error loading database</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Name;Data type;Value</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Name;Data type;Type</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Sorting...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Save dump file</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Dump files (*.dmp)</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>Dlg_QT_MakeLineStyle</name>
    <message>
        <source>Make LineStyle</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>File</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Select the .LIN file where the new line style will be included</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Browse...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Definition</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Name:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Description:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>OK</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Help</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Name;Description</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Specify Linestyle file</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Linestyle files (*.lin)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The format of the file is not valid. </source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Invalid file format</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Make Linestyle</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>You must select a file. </source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>You must provide a name for the Linestyle. </source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Linestyle names cannot include blank spaces.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Linestyle already exists, you want to replace it?</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>Dlg_QT_MakeShape</name>
    <message>
        <source>Make shape</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>File</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Select the .SHP file where the new shape will be included</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Browse...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Definition</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Name:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>shapeName</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Resolution value:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>OK</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Help</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Number;Name</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Select shape file</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Shape files (*.shp);; All files (*.*)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Make Shape</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>You must select a file. </source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>You must provide a name for the shape. </source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Shape names cannot include blank spaces.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Shape already exists, you want to replace it?</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>Dlg_QT_MergeSheets</name>
    <message>
        <source>Merge Sheets</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Sheets to merge</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Move the selected rows to the top (Alt+Home)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>To &amp;top</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Move the selected rows up by one place (Alt+Up)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Move &amp;up</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Move the selected rows down by one place (Alt+Down)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Move &amp;down</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Move the selected rows to the bottom (Alt+End)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>To &amp;bottom</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Select &amp;all</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Names in the target</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Prefix:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Stands in front of the name of each sheet</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Give sheets of the same name the names Plan, Plan (2), Plan (3)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Nu&amp;mber equal names</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Target</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Current drawing</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Ne&amp;w drawing:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Br&amp;owse...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Favorites</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Name:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Save favorite</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Remove favorite</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>OK</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Help</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A sheet must have a name.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A name has at most 255 characters.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No sheet can have the name &quot;%1&quot;.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Two sheets have the name &quot;%1&quot;.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Sheet;New name</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A name cannot have any of &lt; &gt; / \ &quot; : ; ? * | , = `</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 of %2 sheets are merged.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Specify the target drawing</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Drawing files (*.dwg *.dxf)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Select the sheets to merge.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The target cannot be the current drawing or one of its sheets.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>Dlg_QT_MultiViewSetup</name>
    <message>
        <source>Multiview Setup</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Work Space</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Current Paper Space</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Model Space</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Title Block</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>C&amp;reate Viewports</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Align Viewports</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Scale Viewports</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Block</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Browse...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Adds a block to list</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>X:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Y:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Units:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Layer:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Layer</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Remove entities in same paper space:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>I&amp;nsert as external reference</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>L&amp;imits</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Insert Title Block</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Inserts a tile block</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Simp&amp;le</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A&amp;rray of Viewports</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Array:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Number of &amp;rows:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Number of &amp;columns:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Delete viewports</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Create viewports</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Creates a viewport</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Alignment format:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Horizontal</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Vertical</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Viewports alignment</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Modify viewports alignment</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Escalar viewports:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Scale of viewports:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Model</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Paper</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Scale viewports</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Viewports scaling</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Units:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Scientific</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Decimal</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Engineering</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Architectural</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Me&amp;tric</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Size:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Width: </source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Height:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Scale:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Scale Factor:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Create Title Block</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Creates a tile block</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Close</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Help</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Blocks</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Scales;Factors</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Feet</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Inches</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Meters</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Milimeters</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Do not remove entities</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Remove all entities</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Specify entities for remove</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Do not remove viewports</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Remove all viewports</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Specify viewports to remove</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Specify folder</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>Dlg_QT_RedefinePaths</name>
    <message>
        <source>Redefine Paths</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Type</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;External references</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Images</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Styles</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Rtext</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Filter by:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Select &amp;all</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Find and Replace</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Find what:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>R&amp;eplace with:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Replace coincidences with specified string</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Replace</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>OK</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Help</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Type;Name;Path</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Xref</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Image</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>TextStyle</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>RemoteText</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Filtering...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Select the rows of table for search.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Sorting...</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>Dlg_QT_RemoveFavorits</name>
    <message>
        <source>Delete favorites</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Delete favorite</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Delete</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>OK</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Remove favorites</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Select items for remove.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>Dlg_QT_ReplaceBlock</name>
    <message>
        <source>Replace Block</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Blocks to replace</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Specify blocks in the drawing</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Specify blocks</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Preview</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Replacing block</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Clean unreferenced items</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Update BlockAttributes for block replacements</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Apply changes</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Apply</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Close</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Help</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&quot;Block to be replaced&quot; and &quot;Replacing block&quot; must be different.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>Dlg_QT_ReplaceBlockToXref</name>
    <message>
        <source>Replace Block by Reference</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Blocks to replace</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Specify blocks in the drawing</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Specify blocks</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Preview</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Replacing reference</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Browse the disk for the reference that will be used</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Browse...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Clean unreferenced items</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Apply changes</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Apply</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Close</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Help</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Replace blocks</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>You must first select the replacing reference. </source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>Dlg_QT_ShowLinks</name>
    <message>
        <source>Show Links</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Find and Replace</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Find what:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>R&amp;eplace with:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Replace coincidences with specified string</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Replace</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Shows selected URL</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Show URL</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Remove selected URL</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Remove &amp;URL</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Show the entity of selected  URL</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>S&amp;how Entity</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Close</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Help</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>;URL Name;Entity Type;Space</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Select one row of table for show.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Unable to display the link.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Open this link?</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>It is a program, or starts one.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Warning</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Select the rows of table for searching.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Replace text</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The are no items selected.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Information</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Remove urls for selected items?</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Sorting...</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>Dlg_QT_TextFrame</name>
    <message>
        <source>Text Frame</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Type</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Slot</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Rectangle</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Circle</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Dimensions</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Offset</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>C&amp;onstant</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Variable</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Maintain Constant </source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Width</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Height</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Both</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Background</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Transparent</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>H&amp;atch</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Color:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>OK</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Help</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>Dlg_QT_TextMask</name>
    <message>
        <source>Text Mask</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Dimensions</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Offset</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Entity type</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Mask</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>3&amp;D Face</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Solid</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Background</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Color:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>OK</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Help</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Wrong dimension value.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Must be positive or zero.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>Dlg_QT_TrackTime</name>
    <message>
        <source>Track Time</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Folder</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Fo&amp;lder:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Selects the folder of the drawings</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Browse...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Reads the drawings again</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Re&amp;fresh</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Include s&amp;ub-folders</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Fa&amp;vorites:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Save favorite</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Save</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Remove favorite</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Re&amp;move...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Drawings</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>F&amp;ilter:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Shows only drawings with this in their name; regular expressions are allowed</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Writes the table to a text file</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Export...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Selected drawings</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Counts the time that is worked on them</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Track</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Counts no more time</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Do not track</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Idle limit (mi&amp;n):</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Longer pauses are not counted; with 0 every pause is</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Gives the selected drawings this idle limit</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Apply</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Sets the editing time to 0</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Reset time...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>OK</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Help</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Name;Track Active;EditTime (hr)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The changes have not been written yet. Do you want to discard them?</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Looking for drawings...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Reading the drawings...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Not readable</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>On</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Off</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>, %1 min</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Every pause counts.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>, open (bold): %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Total: %1 h. Drawings: %2%3</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Are you sure you want to set the editing time of the selected drawings to 0?</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Export editing time</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Text with tabs (*.txt);; Text with semicolons (*.csv);; All files (*.*)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The file could not be written: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Writing the drawings...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>and %1 more</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Some drawings could not be changed.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>Dlg_QT_numbertext</name>
    <message>
        <source>Number Text</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Sorting Method</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Position X</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>P&amp;osition Y</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Select order</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Relative to one point</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>R&amp;elative to two points</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Sorting Direction</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Ascending</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Descendin&amp;g</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Counter</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Initial &amp;value:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Increment:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Digits:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Text Format</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>(Prefix)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>(Suffix)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>NUMBER</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Text Placement</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>S&amp;uffix</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Repla&amp;ce</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Pre&amp;fix</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>O&amp;verwrite</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Find what:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Replace with:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>OK</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Help</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>DrawingPreview</name>
    <message>
        <source>No preview</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>LispExtension</name>
    <message>
        <source>The file is too large</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>. for none,.</source>
        <comment>Command Option: Upper- and Lowercase letters are relevant.</comment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>block %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>layer %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>linetype %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>text style %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>dimension style %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Specify drawing file</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Specify block</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Specify state file</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>
Settings saved to: </source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source> successfully.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>You must first select the blocks to replace. </source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 could not be written: %2.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The document could not be printed.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Drawing files (*.dwg)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Drawing exchange files (*.dxf)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Specify a drawing</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Error: Xref contains circular reference</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Select folder</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Filename can`t be empty</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The following characters are not valid in File names: &lt;&gt;/\&quot;:;?*|,=&apos;</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Drawing symbol &quot;%1&quot; already exists. Do you want to replace it?</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Path can`t be empty</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cannot find the specified Path.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cannot find the specified file.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Name</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Replacing...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1: the drawing has no room for an editing time</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1: the drawing is not open any more</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A tag or text of the file is too long.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>An element of the file has too many attributes.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Enter to %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Entities that this drawing cannot hold and that were left out: %1.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Error reading alias file.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Favorite &quot;%1&quot; already exists. Do you want to replace it?</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Favorite name is required.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Favorites</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No file name</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Select object</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Specify folder</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Specify new path for Backup folder</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Specify option</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Specify second point</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The drawing has its own, which stays as it is: %1.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The entities of the file expand to too much text.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>There are too many copies of it already.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>There is no block &quot;%1&quot; in %2.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&quot;%1&quot; is a invalid directory.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>
%1 could not be moved.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>
Nothing is there.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>
This %1 is not what is asked for.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>
This is a %1; asked for is %2.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>line %1: %2</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>StyleTables</name>
    <message>
        <source>Name</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Variable;Value</source>
        <translation type="unfinished"></translation>
    </message>
</context>
</TS>
