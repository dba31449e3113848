<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de_DE" sourcelanguage="en">
<context>
    <name>BlockReplacementDialog</name>
    <message>
        <source>The block &quot;%1&quot; is taken for %2, as another block of the drawing is. Rename one of the two first.</source>
        <translation>Der Block &quot;%1&quot; wird für %2 gehalten, wie ein anderer Block der Zeichnung auch. Benennen Sie zuerst einen der beiden um.</translation>
    </message>
</context>
<context>
    <name>DLG_QT_ConvertNotes</name>
    <message>
        <source>Convert SimpleNote</source>
        <translation>SimpleNote umwandeln</translation>
    </message>
    <message>
        <source>Format</source>
        <translation>Format</translation>
    </message>
    <message>
        <source>Keep original T&amp;extStyle</source>
        <translation>Original-T&amp;extstil beibehalten</translation>
    </message>
    <message>
        <source>Keep original &amp;LineColor</source>
        <translation>Original-&amp;Linienfarbe beibehalten</translation>
    </message>
    <message>
        <source>Keep original &amp;height</source>
        <translation>Original-&amp;Höhe beibehalten</translation>
    </message>
    <message>
        <source>Ordering</source>
        <translation>Reihenfolge</translation>
    </message>
    <message>
        <source>&amp;Selection set</source>
        <translation>&amp;Auswahlsatz</translation>
    </message>
    <message>
        <source>&amp;Top-down</source>
        <translation>&amp;Von oben nach unten</translation>
    </message>
    <message>
        <source>&amp;Alphabetical</source>
        <translation>Alpha&amp;betisch</translation>
    </message>
    <message>
        <source>&amp;Create word-wrap text</source>
        <translation>Text mit &amp;Zeilenumbruch erstellen</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Hilfe</translation>
    </message>
</context>
<context>
    <name>DLG_QT_PatternHatch</name>
    <message>
        <source>Pattern Hatch</source>
        <translation>Musterschraffur</translation>
    </message>
    <message>
        <source>Type </source>
        <translation>Typ </translation>
    </message>
    <message>
        <source>&amp;Block</source>
        <translation>&amp;Block</translation>
    </message>
    <message>
        <source>&amp;Image</source>
        <translation>B&amp;ild</translation>
    </message>
    <message>
        <source>&amp;External reference</source>
        <translation>&amp;Externe Referenz</translation>
    </message>
    <message>
        <source>&amp;Mask</source>
        <translation>&amp;Maske</translation>
    </message>
    <message>
        <source>&amp;Name:</source>
        <translation>&amp;Name:</translation>
    </message>
    <message>
        <source>...</source>
        <translation>...</translation>
    </message>
    <message>
        <source>Favorites</source>
        <translation>Favoriten</translation>
    </message>
    <message>
        <source>Save favorite</source>
        <translation>Favorit speichern</translation>
    </message>
    <message>
        <source>Remove favorite</source>
        <translation>Favorit löschen</translation>
    </message>
    <message>
        <source>Pattern preview</source>
        <translation>Mustervorschau</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Größe</translation>
    </message>
    <message>
        <source>&amp;Width and height as scale factor</source>
        <translation>Breite und Höhe als &amp;Skalierfaktor</translation>
    </message>
    <message>
        <source>&amp;Lock aspect ratio</source>
        <translation>Sei&amp;tenverhältnis sperren</translation>
    </message>
    <message>
        <source>Wid&amp;th:</source>
        <translation>B&amp;reite:</translation>
    </message>
    <message>
        <source>Hei&amp;ght:</source>
        <translation>&amp;Höhe:</translation>
    </message>
    <message>
        <source>Spacing</source>
        <translation>Abstände</translation>
    </message>
    <message>
        <source>Offset &amp;X:</source>
        <translation>Versatz &amp;X:</translation>
    </message>
    <message>
        <source>Offset &amp;Y:</source>
        <translation>Versatz &amp;Y:</translation>
    </message>
    <message>
        <source>Position</source>
        <translation>Position</translation>
    </message>
    <message>
        <source>Pattern &amp;origin:</source>
        <translation>Muster&amp;ursprung:</translation>
    </message>
    <message>
        <source>X</source>
        <translation>X</translation>
    </message>
    <message>
        <source>Specify in graphics area</source>
        <translation>Im Zeichenbereich angeben</translation>
    </message>
    <message>
        <source>Y</source>
        <translation>Y</translation>
    </message>
    <message>
        <source>Rotation &amp;angle:</source>
        <translation>&amp;Drehwinkel:</translation>
    </message>
    <message>
        <source>Extracts pattern, size, position and rotation from an entity in drawing</source>
        <translation>Übernimmt Muster, Größe, Position und Drehung von einem Objekt der Zeichnung</translation>
    </message>
    <message>
        <source>&amp;Extract from entity</source>
        <translation>Von &amp;Objekt übernehmen</translation>
    </message>
    <message>
        <source>Boundaries</source>
        <translation>Umgrenzungen</translation>
    </message>
    <message>
        <source>Specify &amp;entities</source>
        <translation>Ob&amp;jekte angeben</translation>
    </message>
    <message>
        <source>&amp;Specify points</source>
        <translation>&amp;Punkte angeben</translation>
    </message>
    <message>
        <source>&amp;Delete boundary entities</source>
        <translation>Umgrenzungsobjekte &amp;löschen</translation>
    </message>
    <message>
        <source>&amp;Highlight boundary entities</source>
        <translation>Um&amp;grenzungsobjekte hervorheben</translation>
    </message>
    <message>
        <source>&amp;Extract from a hatch</source>
        <translation>Von Schra&amp;ffur übernehmen</translation>
    </message>
    <message>
        <source>Type of entities</source>
        <translation>Art der Objekte</translation>
    </message>
    <message>
        <source>&amp;Anonymous block</source>
        <translation>&amp;Anonymer Block</translation>
    </message>
    <message>
        <source>E&amp;ntity group</source>
        <translation>Obje&amp;ktgruppe</translation>
    </message>
    <message>
        <source>Limits</source>
        <translation>Grenzen</translation>
    </message>
    <message>
        <source>&amp;Cut entities</source>
        <translation>Objekte &amp;zuschneiden</translation>
    </message>
    <message>
        <source>&amp;Draw surpassing entities</source>
        <translation>Überstehende Objekte zei&amp;chnen</translation>
    </message>
    <message>
        <source>Tolerance for curves</source>
        <translation>Toleranz für Kurven</translation>
    </message>
    <message>
        <source>Previews the result in the drawing</source>
        <translation>Zeigt das Ergebnis vorab in der Zeichnung</translation>
    </message>
    <message>
        <source>&amp;Preview</source>
        <translation>&amp;Vorschau</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Hilfe</translation>
    </message>
    <message>
        <source>A drawing of this version has neither images nor masks.</source>
        <translation>Eine Zeichnung dieser Version kennt weder Bilder noch Masken.</translation>
    </message>
    <message>
        <source>At the boundary copies of references are left out: they cannot be cut.</source>
        <translation>An der Umgrenzung werden Kopien von Referenzen weggelassen: sie lassen sich nicht zuschneiden.</translation>
    </message>
    <message>
        <source>At the boundary copies with anything but lines, arcs and polylines are left out.</source>
        <translation>An der Umgrenzung werden Kopien weggelassen, die anderes als Linien, Bögen und Polylinien enthalten.</translation>
    </message>
    <message>
        <source>Copies of references are clipped at the boundary, not cut.</source>
        <translation>Kopien von Referenzen werden an der Umgrenzung zugeschnitten dargestellt, nicht zerteilt.</translation>
    </message>
    <message>
        <source>Copies with texts, images or tilted entities are clipped, not cut.</source>
        <translation>Kopien mit Texten, Bildern oder geneigten Objekten werden zugeschnitten dargestellt, nicht zerteilt.</translation>
    </message>
    <message>
        <source>Select image for pattern</source>
        <translation>Bild für das Muster wählen</translation>
    </message>
    <message>
        <source>Specify Pattern </source>
        <translation>Muster angeben </translation>
    </message>
    <message>
        <source>Scale must be higher than zero. </source>
        <translation>Der Maßstab muss größer als null sein. </translation>
    </message>
    <message>
        <source>The tolerance value is less than minimum. The value is reset to minimum (0.01). </source>
        <translation>Die Toleranz ist kleiner als der Mindestwert. Sie wird auf den Mindestwert (0.01) gesetzt. </translation>
    </message>
    <message>
        <source>All supported Image file (*.bmp *.gif *.jpg *.jpeg *.png *.tif *.tiff *.ecw);;</source>
        <translation>Alle unterstützten Bilddateien (*.bmp *.gif *.jpg *.jpeg *.png *.tif *.tiff *.ecw);;</translation>
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
        <translation>Block wählen</translation>
    </message>
    <message>
        <source>Blocks of</source>
        <translation>Blöcke aus</translation>
    </message>
    <message>
        <source>&amp;Active drawing</source>
        <translation>&amp;Aktive Zeichnung</translation>
    </message>
    <message>
        <source>&amp;Drawing file:</source>
        <translation>&amp;Zeichnungsdatei:</translation>
    </message>
    <message>
        <source>Drawing file that has the block</source>
        <translation>Zeichnungsdatei, die den Block enthält</translation>
    </message>
    <message>
        <source>Browse the disk for the drawing that has the block</source>
        <translation>Sucht auf dem Datenträger nach der Zeichnung, die den Block enthält</translation>
    </message>
    <message>
        <source>&amp;Browse...</source>
        <translation>&amp;Durchsuchen...</translation>
    </message>
    <message>
        <source>&amp;Filter by:</source>
        <translation>&amp;Filtern nach:</translation>
    </message>
    <message>
        <source>Regular expression; blocks whose name contains it are listed</source>
        <translation>Regulärer Ausdruck; aufgelistet werden Blöcke, deren Name ihn enthält</translation>
    </message>
    <message>
        <source>List the blocks that programs have made without a name of their own, such as *U12</source>
        <translation>Blöcke auflisten, die Programme ohne eigenen Namen erstellt haben, etwa *U12</translation>
    </message>
    <message>
        <source>&amp;Show anonymous blocks</source>
        <translation>A&amp;nonyme Blöcke zeigen</translation>
    </message>
    <message>
        <source>Preview</source>
        <translation>Vorschau</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Hilfe</translation>
    </message>
    <message>
        <source>Name;Type</source>
        <translation>Name;Typ</translation>
    </message>
    <message>
        <source>External reference</source>
        <translation>Externe Referenz</translation>
    </message>
    <message>
        <source>Drawing files (*.dwg *.dxf)</source>
        <translation>Zeichnungsdateien (*.dwg *.dxf)</translation>
    </message>
    <message>
        <source>Block</source>
        <translation>Block</translation>
    </message>
    <message>
        <source>Anonymous block</source>
        <translation>Anonymer Block</translation>
    </message>
    <message>
        <source>Cannot find the specified file.</source>
        <translation>Die angegebene Datei wurde nicht gefunden.</translation>
    </message>
    <message>
        <source>The drawing file cannot be read.</source>
        <translation>Die Zeichnungsdatei kann nicht gelesen werden.</translation>
    </message>
    <message>
        <source>Blocks: %1</source>
        <translation>Blöcke: %1</translation>
    </message>
    <message>
        <source>Blocks: %1 of %2</source>
        <translation>Blöcke: %1 von %2</translation>
    </message>
    <message>
        <source>The drawing has no blocks.</source>
        <translation>Die Zeichnung hat keine Blöcke.</translation>
    </message>
    <message>
        <source>You must first select a block.</source>
        <translation>Wählen Sie zuerst einen Block.</translation>
    </message>
    <message>
        <source>The name of the block holds characters that no program can take. Rename it first.</source>
        <translation>Der Name des Blocks enthält Zeichen, die kein Programm annehmen kann. Benennen Sie ihn zuerst um.</translation>
    </message>
    <message>
        <source>The block &quot;%1&quot; is an external reference of the other drawing. Attach its drawing instead.</source>
        <translation>Der Block &quot;%1&quot; ist eine externe Referenz der anderen Zeichnung. Hängen Sie stattdessen deren Zeichnung an.</translation>
    </message>
    <message>
        <source>The block &quot;%1&quot; is anonymous: it cannot be brought in from another drawing.</source>
        <translation>Der Block &quot;%1&quot; ist anonym: er kann nicht aus einer anderen Zeichnung geholt werden.</translation>
    </message>
    <message>
        <source>The drawing file does not have the block &quot;%1&quot; any more.</source>
        <translation>Die Zeichnungsdatei enthält den Block &quot;%1&quot; nicht mehr.</translation>
    </message>
</context>
<context>
    <name>Dlg_QT_Breakline</name>
    <message>
        <source>Breakline</source>
        <translation>Bruchlinie</translation>
    </message>
    <message>
        <source>Specify a drawing for breakline</source>
        <translation>Zeichnung für die Bruchlinie angeben</translation>
    </message>
    <message>
        <source>&amp;Browse...</source>
        <translation>&amp;Durchsuchen...</translation>
    </message>
    <message>
        <source>Preview</source>
        <translation>Vorschau</translation>
    </message>
    <message>
        <source>Sizes</source>
        <translation>Größen</translation>
    </message>
    <message>
        <source>Si&amp;ze:</source>
        <translation>&amp;Größe:</translation>
    </message>
    <message>
        <source>O&amp;ffset:</source>
        <translation>&amp;Versatz:</translation>
    </message>
    <message>
        <source>New symbol</source>
        <translation>Neues Symbol</translation>
    </message>
    <message>
        <source>&amp;Name:</source>
        <translation>&amp;Name:</translation>
    </message>
    <message>
        <source>Specify entities to use as breakline</source>
        <translation>Objekte angeben, die als Bruchlinie dienen</translation>
    </message>
    <message>
        <source>&amp;Specify entity to use as breakline</source>
        <translation>&amp;Objekt als Bruchlinie angeben</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Hilfe</translation>
    </message>
    <message>
        <source>Drawing files (*.dwg *.dxf)</source>
        <translation>Zeichnungsdateien (*.dwg *.dxf)</translation>
    </message>
    <message>
        <source>Cannot find the specified drawing file.</source>
        <translation>Die angegebene Zeichnungsdatei wurde nicht gefunden.</translation>
    </message>
</context>
<context>
    <name>Dlg_QT_DrawOderColor</name>
    <message>
        <source>Draw Order by Color</source>
        <translation>Zeichenreihenfolge nach Farbe</translation>
    </message>
    <message>
        <source>Back: drawn first</source>
        <translation>Hinten: wird zuerst gezeichnet</translation>
    </message>
    <message>
        <source>Front: drawn last, over all others</source>
        <translation>Vorn: wird zuletzt gezeichnet, über allem anderen</translation>
    </message>
    <message>
        <source>Draw the selected colors before all others (Alt+Home)</source>
        <translation>Die gewählten Farben vor allen anderen zeichnen (Alt+Pos1)</translation>
    </message>
    <message>
        <source>To &amp;back</source>
        <translation>Nach &amp;hinten</translation>
    </message>
    <message>
        <source>Move the selected rows up by one place (Alt+Up)</source>
        <translation>Die gewählten Zeilen um einen Platz nach oben schieben (Alt+Auf)</translation>
    </message>
    <message>
        <source>Move &amp;up</source>
        <translation>Nach &amp;oben</translation>
    </message>
    <message>
        <source>Move the selected rows down by one place (Alt+Down)</source>
        <translation>Die gewählten Zeilen um einen Platz nach unten schieben (Alt+Ab)</translation>
    </message>
    <message>
        <source>Move &amp;down</source>
        <translation>Nach &amp;unten</translation>
    </message>
    <message>
        <source>Draw the selected colors after all others (Alt+End)</source>
        <translation>Die gewählten Farben nach allen anderen zeichnen (Alt+Ende)</translation>
    </message>
    <message>
        <source>To &amp;front</source>
        <translation>Nach &amp;vorn</translation>
    </message>
    <message>
        <source>Turn the order around</source>
        <translation>Die Reihenfolge umdrehen</translation>
    </message>
    <message>
        <source>R&amp;everse</source>
        <translation>Um&amp;kehren</translation>
    </message>
    <message>
        <source>Order the colors by their numbers</source>
        <translation>Die Farben nach ihren Nummern ordnen</translation>
    </message>
    <message>
        <source>&amp;Sort by number</source>
        <translation>Nach Nummer &amp;sortieren</translation>
    </message>
    <message>
        <source>Take the selected colors off the list (Del)</source>
        <translation>Die gewählten Farben aus der Liste nehmen (Entf)</translation>
    </message>
    <message>
        <source>&amp;Remove</source>
        <translation>&amp;Entfernen</translation>
    </message>
    <message>
        <source>&amp;Color:</source>
        <translation>&amp;Farbe:</translation>
    </message>
    <message>
        <source>Add this color at the front</source>
        <translation>Diese Farbe vorn hinzufügen</translation>
    </message>
    <message>
        <source>&amp;Add</source>
        <translation>Hin&amp;zufügen</translation>
    </message>
    <message>
        <source>Favorites</source>
        <translation>Favoriten</translation>
    </message>
    <message>
        <source>&amp;Name:</source>
        <translation>&amp;Name:</translation>
    </message>
    <message>
        <source>Save favorite</source>
        <translation>Favorit speichern</translation>
    </message>
    <message>
        <source>Remove favorite</source>
        <translation>Favorit löschen</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Hilfe</translation>
    </message>
    <message>
        <source>%1 (no color)</source>
        <translation>%1 (keine Farbe)</translation>
    </message>
    <message>
        <source>Color</source>
        <translation>Farbe</translation>
    </message>
</context>
<context>
    <name>Dlg_QT_EditAlias</name>
    <message>
        <source>Edit Alias</source>
        <translation>Aliasse bearbeiten</translation>
    </message>
    <message>
        <source>Current alias:</source>
        <translation>Vorhandene Aliasse:</translation>
    </message>
    <message>
        <source>Create new alias</source>
        <translation>Neuen Alias erstellen</translation>
    </message>
    <message>
        <source>Remove alias</source>
        <translation>Alias löschen</translation>
    </message>
    <message>
        <source>Clean alias list</source>
        <translation>Aliasliste leeren</translation>
    </message>
    <message>
        <source>Save alias</source>
        <translation>Aliasse speichern</translation>
    </message>
    <message>
        <source>Import alias from file</source>
        <translation>Aliasse aus Datei importieren</translation>
    </message>
    <message>
        <source>Export alias to file</source>
        <translation>Aliasse in Datei exportieren</translation>
    </message>
    <message>
        <source>Print alias</source>
        <translation>Aliasse drucken</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Hilfe</translation>
    </message>
    <message>
        <source>Command;Alias</source>
        <translation>Befehl;Alias</translation>
    </message>
    <message>
        <source>The alias file could not be read whole (%1). Keep it as it is under another name, and write what the table holds in its place?</source>
        <translation>Die Aliasdatei konnte nicht vollständig gelesen werden (%1). Soll sie unverändert unter einem anderen Namen aufgehoben und an ihrer Stelle der Inhalt der Tabelle geschrieben werden?</translation>
    </message>
    <message>
        <source>What %1 held before is in %2.</source>
        <translation>Der bisherige Inhalt von %1 steht in %2.</translation>
    </message>
    <message>
        <source>Select the rows of table for remove.</source>
        <translation>Wählen Sie die Tabellenzeilen, die gelöscht werden sollen.</translation>
    </message>
    <message>
        <source>Are you sure you want to remove this alias for %1?</source>
        <translation>Soll dieser Alias für %1 wirklich gelöscht werden?</translation>
    </message>
    <message>
        <source>Are you sure you want to delete all alias?</source>
        <translation>Sollen wirklich alle Aliasse gelöscht werden?</translation>
    </message>
    <message>
        <source>The alias file has been saved.</source>
        <translation>Die Aliasdatei wurde gespeichert.</translation>
    </message>
    <message>
        <source>The alias file could not be saved.</source>
        <translation>Die Aliasdatei konnte nicht gespeichert werden.</translation>
    </message>
    <message>
        <source>Save As</source>
        <translation>Speichern unter</translation>
    </message>
    <message>
        <source>Alias files (*.xml);; All files (*.*)</source>
        <translation>Aliasdateien (*.xml);; Alle Dateien (*.*)</translation>
    </message>
    <message>
        <source>The alias file has been exported.</source>
        <translation>Die Aliasdatei wurde exportiert.</translation>
    </message>
    <message>
        <source>The alias file could not be exported.</source>
        <translation>Die Aliasdatei konnte nicht exportiert werden.</translation>
    </message>
    <message>
        <source>Select the file to import</source>
        <translation>Wählen Sie die zu importierende Datei</translation>
    </message>
    <message>
        <source>Alias files (*.txt);; All files (*.*)</source>
        <translation>Aliasdateien (*.txt);; Alle Dateien (*.*)</translation>
    </message>
    <message>
        <source>The alias file could not be imported.</source>
        <translation>Die Aliasdatei konnte nicht importiert werden.</translation>
    </message>
    <message>
        <source>This alias already begin used for other command.</source>
        <translation>Dieser Alias wird bereits für einen anderen Befehl verwendet.</translation>
    </message>
    <message>
        <source>Sorting...</source>
        <translation>Wird sortiert...</translation>
    </message>
</context>
<context>
    <name>Dlg_QT_EditTextCase</name>
    <message>
        <source>EditTextCase</source>
        <translation>Groß-/Kleinschreibung ändern</translation>
    </message>
    <message>
        <source>Text:</source>
        <translation>Text:</translation>
    </message>
    <message>
        <source>This is a sample text for kora</source>
        <translation>Dies ist ein Beispieltext für Kora</translation>
    </message>
    <message>
        <source>Style</source>
        <translation>Schreibweise</translation>
    </message>
    <message>
        <source>&amp;Sentence case</source>
        <translation>&amp;Satzanfang groß</translation>
    </message>
    <message>
        <source>&amp;Lowercase</source>
        <translation>&amp;Kleinbuchstaben</translation>
    </message>
    <message>
        <source>&amp;Uppercase</source>
        <translation>&amp;Großbuchstaben</translation>
    </message>
    <message>
        <source>&amp;Title</source>
        <translation>&amp;Wortanfänge groß</translation>
    </message>
    <message>
        <source>T&amp;oggle case</source>
        <translation>Groß/klein &amp;umkehren</translation>
    </message>
    <message>
        <source>Preview</source>
        <translation>Vorschau</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Hilfe</translation>
    </message>
    <message>
        <source>Sentence</source>
        <translation>Sentence</translation>
    </message>
    <message>
        <source>Lower</source>
        <translation>Lower</translation>
    </message>
    <message>
        <source>Upper</source>
        <translation>Upper</translation>
    </message>
    <message>
        <source>Title</source>
        <translation>Title</translation>
    </message>
    <message>
        <source>toGgle</source>
        <translation>toGgle</translation>
    </message>
</context>
<context>
    <name>Dlg_QT_ExchangedDimensionStyle</name>
    <message>
        <source>Export Dimension Style</source>
        <translation>Bemaßungsstil exportieren</translation>
    </message>
    <message>
        <source>Available DimensionStyles</source>
        <translation>Verfügbare Bemaßungsstile</translation>
    </message>
    <message>
        <source>Style Variables</source>
        <translation>Variablen des Stils</translation>
    </message>
    <message>
        <source>Options</source>
        <translation>Optionen</translation>
    </message>
    <message>
        <source>&amp;TextStyle name only</source>
        <translation>Nur &amp;Name des Textstils</translation>
    </message>
    <message>
        <source>&amp;Full TextStyle information</source>
        <translation>&amp;Vollständiger Textstil</translation>
    </message>
    <message>
        <source>&amp;Export...</source>
        <translation>&amp;Exportieren...</translation>
    </message>
    <message>
        <source>Export to file</source>
        <translation>In Datei exportieren</translation>
    </message>
    <message>
        <source>Select Dimension Style file</source>
        <translation>Bemaßungsstildatei wählen</translation>
    </message>
    <message>
        <source>DimStyle files (*.dim)</source>
        <translation>Bemaßungsstildateien (*.dim)</translation>
    </message>
    <message>
        <source>No dimension style selected, please select a dimension style to export. </source>
        <translation>Kein Bemaßungsstil gewählt. Wählen Sie einen Bemaßungsstil für den Export. </translation>
    </message>
    <message>
        <source>Exchange Dimension Style</source>
        <translation>Bemaßungsstil austauschen</translation>
    </message>
    <message>
        <source>%1 already exists. Do you want to replace it?</source>
        <translation>%1 ist bereits vorhanden. Soll die Datei ersetzt werden?</translation>
    </message>
</context>
<context>
    <name>Dlg_QT_ExportInfo</name>
    <message>
        <source>Export Settings</source>
        <translation>Einstellungen exportieren</translation>
    </message>
    <message>
        <source>User information</source>
        <translation>Angaben zum Benutzer</translation>
    </message>
    <message>
        <source>&amp;Name:</source>
        <translation>&amp;Name:</translation>
    </message>
    <message>
        <source>&amp;E-mail address: </source>
        <translation>&amp;E-Mail-Adresse: </translation>
    </message>
    <message>
        <source>&amp;Phone number: </source>
        <translation>&amp;Telefonnummer: </translation>
    </message>
    <message>
        <source>&amp;Issue description: </source>
        <translation>&amp;Beschreibung des Problems: </translation>
    </message>
    <message>
        <source>Steps to Reproduce the Issue</source>
        <translation>Schritte, die zum Problem führen</translation>
    </message>
    <message>
        <source>System information</source>
        <translation>Angaben zum System</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Hilfe</translation>
    </message>
    <message>
        <source>Export information</source>
        <translation>Angaben exportieren</translation>
    </message>
    <message>
        <source>Text files (*.txt)</source>
        <translation>Textdateien (*.txt)</translation>
    </message>
</context>
<context>
    <name>Dlg_QT_ExportSettings</name>
    <message>
        <source>Export Settings</source>
        <translation>Einstellungen exportieren</translation>
    </message>
    <message>
        <source>&amp;Variable type:</source>
        <translation>&amp;Variablentyp:</translation>
    </message>
    <message>
        <source>Select a system variable</source>
        <translation>Wählen Sie eine Systemvariable</translation>
    </message>
    <message>
        <source>Save modified settings</source>
        <translation>Geänderte Einstellungen speichern</translation>
    </message>
    <message>
        <source>&amp;Export to script...</source>
        <translation>In &amp;Skript exportieren...</translation>
    </message>
    <message>
        <source>All,Read only,Dangerous,Standard</source>
        <translation>Alle,Schreibgeschützt,Gefährlich,Normal</translation>
    </message>
    <message>
        <source>VariableToScript</source>
        <translation>Variable in Skript</translation>
    </message>
    <message>
        <source>ExportVariables</source>
        <translation>Variablen exportieren</translation>
    </message>
    <message>
        <source>Append to script...</source>
        <translation>An Skript anhängen...</translation>
    </message>
    <message>
        <source>Export to script...</source>
        <translation>In Skript exportieren...</translation>
    </message>
    <message>
        <source>Append settings to an existing file</source>
        <translation>Einstellungen an eine vorhandene Datei anhängen</translation>
    </message>
    <message>
        <source>Save script file</source>
        <translation>Skriptdatei speichern</translation>
    </message>
    <message>
        <source>Append to script file</source>
        <translation>An Skriptdatei anhängen</translation>
    </message>
    <message>
        <source>Script files (*.scr)</source>
        <translation>Skriptdateien (*.scr)</translation>
    </message>
</context>
<context>
    <name>Dlg_QT_GetBlockInfo</name>
    <message>
        <source>Get Block Info</source>
        <translation>Blockinformationen</translation>
    </message>
    <message>
        <source>Creates a table in the drawing with the block information</source>
        <translation>Erstellt in der Zeichnung eine Tabelle mit den Blockinformationen</translation>
    </message>
    <message>
        <source>Export list to a table in &amp;drawing</source>
        <translation>Liste als &amp;Tabelle in die Zeichnung</translation>
    </message>
    <message>
        <source>Saves the list to a text file</source>
        <translation>Speichert die Liste in einer Textdatei</translation>
    </message>
    <message>
        <source>Export list to a &amp;file</source>
        <translation>Liste in &amp;Datei exportieren</translation>
    </message>
    <message>
        <source>Block Information</source>
        <translation>Blockinformationen</translation>
    </message>
    <message>
        <source>&amp;Include nested blocks</source>
        <translation>&amp;Verschachtelte Blöcke einbeziehen</translation>
    </message>
    <message>
        <source>Name;Instances</source>
        <translation>Name;Anzahl</translation>
    </message>
    <message>
        <source>Resulting file</source>
        <translation>Ergebnisdatei</translation>
    </message>
    <message>
        <source>Text files (*.txt)</source>
        <translation>Textdateien (*.txt)</translation>
    </message>
</context>
<context>
    <name>Dlg_QT_ImportBlockAttributes</name>
    <message>
        <source>Import Block Attributes</source>
        <translation>Blockattribute importieren</translation>
    </message>
    <message>
        <source>File</source>
        <translation>Datei</translation>
    </message>
    <message>
        <source>Opens an attribute text file</source>
        <translation>Öffnet eine Textdatei mit Attributen</translation>
    </message>
    <message>
        <source>&amp;Browse...</source>
        <translation>&amp;Durchsuchen...</translation>
    </message>
    <message>
        <source>Find and replace</source>
        <translation>Suchen und ersetzen</translation>
    </message>
    <message>
        <source>&amp;Find what:</source>
        <translation>&amp;Suchen nach:</translation>
    </message>
    <message>
        <source>R&amp;eplace with:</source>
        <translation>Ersetzen d&amp;urch:</translation>
    </message>
    <message>
        <source>Replace coincidences with specified string</source>
        <translation>Fundstellen durch die angegebene Zeichenfolge ersetzen</translation>
    </message>
    <message>
        <source>&amp;Replace</source>
        <translation>&amp;Ersetzen</translation>
    </message>
    <message>
        <source>&amp;Select all</source>
        <translation>&amp;Alle auswählen</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Hilfe</translation>
    </message>
    <message>
        <source>Select the file to import</source>
        <translation>Wählen Sie die zu importierende Datei</translation>
    </message>
    <message>
        <source>Attributes files (*.txt)</source>
        <translation>Attributdateien (*.txt)</translation>
    </message>
    <message>
        <source>The table is too large.</source>
        <translation>Die Tabelle ist zu groß.</translation>
    </message>
    <message>
        <source>Reading the attributes...</source>
        <translation>Die Attribute werden gelesen...</translation>
    </message>
    <message>
        <source>Select items of table for search.</source>
        <translation>Wählen Sie die Tabellenzellen, in denen gesucht werden soll.</translation>
    </message>
    <message>
        <source>Select the rows of table for import.</source>
        <translation>Wählen Sie die Tabellenzeilen, die importiert werden sollen.</translation>
    </message>
    <message>
        <source>Collecting the rows...</source>
        <translation>Die Zeilen werden gesammelt...</translation>
    </message>
    <message>
        <source>Sorting...</source>
        <translation>Wird sortiert...</translation>
    </message>
</context>
<context>
    <name>Dlg_QT_ImportDimensionStyle</name>
    <message>
        <source>Import Dimension Style</source>
        <translation>Bemaßungsstil importieren</translation>
    </message>
    <message>
        <source>&amp;File to import:</source>
        <translation>&amp;Zu importierende Datei:</translation>
    </message>
    <message>
        <source>&amp;Browse...</source>
        <translation>&amp;Durchsuchen...</translation>
    </message>
    <message>
        <source>Browse for location of exported file</source>
        <translation>Nach dem Ort der exportierten Datei suchen</translation>
    </message>
    <message>
        <source>Available Dimension Styles</source>
        <translation>Verfügbare Bemaßungsstile</translation>
    </message>
    <message>
        <source>Style variables</source>
        <translation>Variablen des Stils</translation>
    </message>
    <message>
        <source>Options</source>
        <translation>Optionen</translation>
    </message>
    <message>
        <source>Overwrite existing TextStyle</source>
        <translation>Vorhandenen Textstil überschreiben</translation>
    </message>
    <message>
        <source>Overwrite existing DimensionStyle</source>
        <translation>Vorhandenen Bemaßungsstil überschreiben</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Hilfe</translation>
    </message>
    <message>
        <source>Select Dimension Style file</source>
        <translation>Bemaßungsstildatei wählen</translation>
    </message>
    <message>
        <source>DimStyle files (*.dim)</source>
        <translation>Bemaßungsstildateien (*.dim)</translation>
    </message>
    <message>
        <source>No dimension style selected, please select a dimension style to import. </source>
        <translation>Kein Bemaßungsstil gewählt. Wählen Sie einen Bemaßungsstil für den Import. </translation>
    </message>
</context>
<context>
    <name>Dlg_QT_LispExplorer</name>
    <message>
        <source>Lisp Explorer</source>
        <translation>Lisp-Explorer</translation>
    </message>
    <message>
        <source>Location</source>
        <translation>Ort</translation>
    </message>
    <message>
        <source>&amp;Library</source>
        <translation>&amp;Bibliothek</translation>
    </message>
    <message>
        <source>L&amp;oaded</source>
        <translation>&amp;Geladen</translation>
    </message>
    <message>
        <source>&amp;Folder:</source>
        <translation>&amp;Ordner:</translation>
    </message>
    <message>
        <source>Browse a folder containing lisp files</source>
        <translation>Nach einem Ordner mit Lisp-Dateien suchen</translation>
    </message>
    <message>
        <source>&amp;Browse...</source>
        <translation>&amp;Durchsuchen...</translation>
    </message>
    <message>
        <source>Files:</source>
        <translation>Dateien:</translation>
    </message>
    <message>
        <source>Functions:</source>
        <translation>Funktionen:</translation>
    </message>
    <message>
        <source>Loads this function</source>
        <translation>Lädt diese Funktion</translation>
    </message>
    <message>
        <source>Lo&amp;ad</source>
        <translation>&amp;Laden</translation>
    </message>
    <message>
        <source>&amp;Display as:</source>
        <translation>An&amp;zeigen als:</translation>
    </message>
    <message>
        <source>Filter the function content</source>
        <translation>Den Inhalt der Funktionen filtern</translation>
    </message>
    <message>
        <source>&amp;Search:</source>
        <translation>&amp;Suchen:</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>Suchen</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>Typ</translation>
    </message>
    <message>
        <source>&amp;Commands</source>
        <translation>Be&amp;fehle</translation>
    </message>
    <message>
        <source>&amp;Functions</source>
        <translation>Funktio&amp;nen</translation>
    </message>
    <message>
        <source>&amp;Variables</source>
        <translation>&amp;Variablen</translation>
    </message>
    <message>
        <source>Saves commands, functions and variables in a text file.</source>
        <translation>Speichert Befehle, Funktionen und Variablen in einer Textdatei.</translation>
    </message>
    <message>
        <source>Export...</source>
        <translation>Exportieren...</translation>
    </message>
    <message>
        <source>; %1 more lines</source>
        <translation>; %1 weitere Zeilen</translation>
    </message>
    <message>
        <source>Header Only;Function Only;Both</source>
        <translation>Nur Kopf;Nur Funktion;Beides</translation>
    </message>
    <message>
        <source>Specify a folder for lisp files</source>
        <translation>Ordner für Lisp-Dateien angeben</translation>
    </message>
    <message>
        <source>Specify Folder</source>
        <translation>Ordner angeben</translation>
    </message>
    <message>
        <source>Error</source>
        <translation>Fehler</translation>
    </message>
    <message>
        <source>No matches found for</source>
        <translation>Keine Treffer für</translation>
    </message>
    <message>
        <source>The file has been loaded.</source>
        <translation>Die Datei wurde geladen.</translation>
    </message>
    <message>
        <source>LispExplorer</source>
        <translation>Lisp-Explorer</translation>
    </message>
    <message>
        <source>Error loading database</source>
        <translation>Fehler beim Laden der Datenbank</translation>
    </message>
    <message>
        <source>Name;Data type;Value</source>
        <translation>Name;Datentyp;Wert</translation>
    </message>
    <message>
        <source>Name;Data type;Type</source>
        <translation>Name;Datentyp;Typ</translation>
    </message>
    <message>
        <source>Sorting...</source>
        <translation>Wird sortiert...</translation>
    </message>
    <message>
        <source>Save dump file</source>
        <translation>Dump-Datei speichern</translation>
    </message>
    <message>
        <source>Dump files (*.dmp)</source>
        <translation>Dump-Dateien (*.dmp)</translation>
    </message>
</context>
<context>
    <name>Dlg_QT_MakeLineStyle</name>
    <message>
        <source>Make LineStyle</source>
        <translation>Linientyp erstellen</translation>
    </message>
    <message>
        <source>File</source>
        <translation>Datei</translation>
    </message>
    <message>
        <source>Select the .LIN file where the new line style will be included</source>
        <translation>Wählen Sie die .LIN-Datei, in die der neue Linientyp aufgenommen wird</translation>
    </message>
    <message>
        <source>&amp;Browse...</source>
        <translation>&amp;Durchsuchen...</translation>
    </message>
    <message>
        <source>Definition</source>
        <translation>Definition</translation>
    </message>
    <message>
        <source>&amp;Name:</source>
        <translation>&amp;Name:</translation>
    </message>
    <message>
        <source>&amp;Description:</source>
        <translation>&amp;Beschreibung:</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Hilfe</translation>
    </message>
    <message>
        <source>Name;Description</source>
        <translation>Name;Beschreibung</translation>
    </message>
    <message>
        <source>Specify Linestyle file</source>
        <translation>Linientypdatei angeben</translation>
    </message>
    <message>
        <source>Linestyle files (*.lin)</source>
        <translation>Linientypdateien (*.lin)</translation>
    </message>
    <message>
        <source>The format of the file is not valid. </source>
        <translation>Das Format der Datei ist ungültig. </translation>
    </message>
    <message>
        <source>Invalid file format</source>
        <translation>Ungültiges Dateiformat</translation>
    </message>
    <message>
        <source>Make Linestyle</source>
        <translation>Linientyp erstellen</translation>
    </message>
    <message>
        <source>You must select a file. </source>
        <translation>Sie müssen eine Datei wählen. </translation>
    </message>
    <message>
        <source>You must provide a name for the Linestyle. </source>
        <translation>Sie müssen einen Namen für den Linientyp angeben. </translation>
    </message>
    <message>
        <source>Linestyle names cannot include blank spaces.</source>
        <translation>Namen von Linientypen dürfen keine Leerzeichen enthalten.</translation>
    </message>
    <message>
        <source>Linestyle already exists, you want to replace it?</source>
        <translation>Der Linientyp ist bereits vorhanden. Soll er ersetzt werden?</translation>
    </message>
</context>
<context>
    <name>Dlg_QT_MakeShape</name>
    <message>
        <source>Make shape</source>
        <translation>Symbol erstellen</translation>
    </message>
    <message>
        <source>File</source>
        <translation>Datei</translation>
    </message>
    <message>
        <source>Select the .SHP file where the new shape will be included</source>
        <translation>Wählen Sie die .SHP-Datei, in die das neue Symbol aufgenommen wird</translation>
    </message>
    <message>
        <source>&amp;Browse...</source>
        <translation>&amp;Durchsuchen...</translation>
    </message>
    <message>
        <source>Definition</source>
        <translation>Definition</translation>
    </message>
    <message>
        <source>&amp;Name:</source>
        <translation>&amp;Name:</translation>
    </message>
    <message>
        <source>shapeName</source>
        <translation>Symbolname</translation>
    </message>
    <message>
        <source>&amp;Resolution value:</source>
        <translation>&amp;Auflösung:</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Hilfe</translation>
    </message>
    <message>
        <source>Number;Name</source>
        <translation>Nummer;Name</translation>
    </message>
    <message>
        <source>Select shape file</source>
        <translation>Symboldatei wählen</translation>
    </message>
    <message>
        <source>Shape files (*.shp);; All files (*.*)</source>
        <translation>Symboldateien (*.shp);; Alle Dateien (*.*)</translation>
    </message>
    <message>
        <source>Make Shape</source>
        <translation>Symbol erstellen</translation>
    </message>
    <message>
        <source>You must select a file. </source>
        <translation>Sie müssen eine Datei wählen. </translation>
    </message>
    <message>
        <source>You must provide a name for the shape. </source>
        <translation>Sie müssen einen Namen für das Symbol angeben. </translation>
    </message>
    <message>
        <source>Shape names cannot include blank spaces.</source>
        <translation>Namen von Symbolen dürfen keine Leerzeichen enthalten.</translation>
    </message>
    <message>
        <source>Shape already exists, you want to replace it?</source>
        <translation>Das Symbol ist bereits vorhanden. Soll es ersetzt werden?</translation>
    </message>
</context>
<context>
    <name>Dlg_QT_MergeSheets</name>
    <message>
        <source>Merge Sheets</source>
        <translation>Blätter zusammenführen</translation>
    </message>
    <message>
        <source>Sheets to merge</source>
        <translation>Zusammenzuführende Blätter</translation>
    </message>
    <message>
        <source>Move the selected rows to the top (Alt+Home)</source>
        <translation>Die gewählten Zeilen an den Anfang schieben (Alt+Pos1)</translation>
    </message>
    <message>
        <source>To &amp;top</source>
        <translation>An den An&amp;fang</translation>
    </message>
    <message>
        <source>Move the selected rows up by one place (Alt+Up)</source>
        <translation>Die gewählten Zeilen um einen Platz nach oben schieben (Alt+Auf)</translation>
    </message>
    <message>
        <source>Move &amp;up</source>
        <translation>Nach &amp;oben</translation>
    </message>
    <message>
        <source>Move the selected rows down by one place (Alt+Down)</source>
        <translation>Die gewählten Zeilen um einen Platz nach unten schieben (Alt+Ab)</translation>
    </message>
    <message>
        <source>Move &amp;down</source>
        <translation>Nach &amp;unten</translation>
    </message>
    <message>
        <source>Move the selected rows to the bottom (Alt+End)</source>
        <translation>Die gewählten Zeilen ans Ende schieben (Alt+Ende)</translation>
    </message>
    <message>
        <source>To &amp;bottom</source>
        <translation>Ans &amp;Ende</translation>
    </message>
    <message>
        <source>Select &amp;all</source>
        <translation>&amp;Alle auswählen</translation>
    </message>
    <message>
        <source>Names in the target</source>
        <translation>Namen im Ziel</translation>
    </message>
    <message>
        <source>&amp;Prefix:</source>
        <translation>&amp;Präfix:</translation>
    </message>
    <message>
        <source>Stands in front of the name of each sheet</source>
        <translation>Steht vor dem Namen jedes Blattes</translation>
    </message>
    <message>
        <source>Give sheets of the same name the names Plan, Plan (2), Plan (3)</source>
        <translation>Blätter gleichen Namens bekommen die Namen Plan, Plan (2), Plan (3)</translation>
    </message>
    <message>
        <source>Nu&amp;mber equal names</source>
        <translation>&amp;Gleiche Namen nummerieren</translation>
    </message>
    <message>
        <source>Target</source>
        <translation>Ziel</translation>
    </message>
    <message>
        <source>&amp;Current drawing</source>
        <translation>Ak&amp;tuelle Zeichnung</translation>
    </message>
    <message>
        <source>Ne&amp;w drawing:</source>
        <translation>Neue &amp;Zeichnung:</translation>
    </message>
    <message>
        <source>Br&amp;owse...</source>
        <translation>&amp;Durchsuchen...</translation>
    </message>
    <message>
        <source>Favorites</source>
        <translation>Favoriten</translation>
    </message>
    <message>
        <source>&amp;Name:</source>
        <translation>&amp;Name:</translation>
    </message>
    <message>
        <source>Save favorite</source>
        <translation>Favorit speichern</translation>
    </message>
    <message>
        <source>Remove favorite</source>
        <translation>Favorit löschen</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Hilfe</translation>
    </message>
    <message>
        <source>A sheet must have a name.</source>
        <translation>Ein Blatt muss einen Namen haben.</translation>
    </message>
    <message>
        <source>A name has at most 255 characters.</source>
        <translation>Ein Name hat höchstens 255 Zeichen.</translation>
    </message>
    <message>
        <source>No sheet can have the name &quot;%1&quot;.</source>
        <translation>Kein Blatt kann den Namen &quot;%1&quot; haben.</translation>
    </message>
    <message>
        <source>Two sheets have the name &quot;%1&quot;.</source>
        <translation>Zwei Blätter haben den Namen &quot;%1&quot;.</translation>
    </message>
    <message>
        <source>Sheet;New name</source>
        <translation>Blatt;Neuer Name</translation>
    </message>
    <message>
        <source>A name cannot have any of &lt; &gt; / \ &quot; : ; ? * | , = `</source>
        <translation>Ein Name darf keines dieser Zeichen enthalten: &lt; &gt; / \ &quot; : ; ? * | , = `</translation>
    </message>
    <message>
        <source>%1 of %2 sheets are merged.</source>
        <translation>%1 von %2 Blättern werden zusammengeführt.</translation>
    </message>
    <message>
        <source>Specify the target drawing</source>
        <translation>Zielzeichnung angeben</translation>
    </message>
    <message>
        <source>Drawing files (*.dwg *.dxf)</source>
        <translation>Zeichnungsdateien (*.dwg *.dxf)</translation>
    </message>
    <message>
        <source>Select the sheets to merge.</source>
        <translation>Wählen Sie die Blätter, die zusammengeführt werden sollen.</translation>
    </message>
    <message>
        <source>The target cannot be the current drawing or one of its sheets.</source>
        <translation>Das Ziel darf weder die aktuelle Zeichnung noch eines ihrer Blätter sein.</translation>
    </message>
</context>
<context>
    <name>Dlg_QT_MultiViewSetup</name>
    <message>
        <source>Multiview Setup</source>
        <translation>Ansichtsfenster einrichten</translation>
    </message>
    <message>
        <source>Work Space</source>
        <translation>Arbeitsbereich</translation>
    </message>
    <message>
        <source>&amp;Current Paper Space</source>
        <translation>Aktueller &amp;Papierbereich</translation>
    </message>
    <message>
        <source>&amp;Model Space</source>
        <translation>&amp;Modellbereich</translation>
    </message>
    <message>
        <source>&amp;Title Block</source>
        <translation>&amp;Schriftfeld</translation>
    </message>
    <message>
        <source>C&amp;reate Viewports</source>
        <translation>Fenster &amp;erstellen</translation>
    </message>
    <message>
        <source>&amp;Align Viewports</source>
        <translation>&amp;Ausrichten</translation>
    </message>
    <message>
        <source>&amp;Scale Viewports</source>
        <translation>Fenster s&amp;kalieren</translation>
    </message>
    <message>
        <source>Block</source>
        <translation>Block</translation>
    </message>
    <message>
        <source>&amp;Browse...</source>
        <translation>&amp;Durchsuchen...</translation>
    </message>
    <message>
        <source>Adds a block to list</source>
        <translation>Fügt der Liste einen Block hinzu</translation>
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
        <translation>E&amp;inheiten:</translation>
    </message>
    <message>
        <source>&amp;Layer:</source>
        <translation>&amp;Layer:</translation>
    </message>
    <message>
        <source>Layer</source>
        <translation>Layer</translation>
    </message>
    <message>
        <source>&amp;Remove entities in same paper space:</source>
        <translation>Objekte im selben Papierbereich ent&amp;fernen:</translation>
    </message>
    <message>
        <source>I&amp;nsert as external reference</source>
        <translation>Als e&amp;xterne Referenz einfügen</translation>
    </message>
    <message>
        <source>L&amp;imits</source>
        <translation>&amp;Grenzen</translation>
    </message>
    <message>
        <source>&amp;Insert Title Block</source>
        <translation>Schriftfeld ei&amp;nfügen</translation>
    </message>
    <message>
        <source>Inserts a tile block</source>
        <translation>Fügt ein Schriftfeld ein</translation>
    </message>
    <message>
        <source>Simp&amp;le</source>
        <translation>Ein&amp;fach</translation>
    </message>
    <message>
        <source>A&amp;rray of Viewports</source>
        <translation>An&amp;ordnung von Ansichtsfenstern</translation>
    </message>
    <message>
        <source>Array:</source>
        <translation>Anordnung:</translation>
    </message>
    <message>
        <source>Number of &amp;rows:</source>
        <translation>Anzahl &amp;Zeilen:</translation>
    </message>
    <message>
        <source>Number of &amp;columns:</source>
        <translation>Anzahl Spal&amp;ten:</translation>
    </message>
    <message>
        <source>&amp;Delete viewports</source>
        <translation>Ansichtsfenster &amp;löschen</translation>
    </message>
    <message>
        <source>&amp;Create viewports</source>
        <translation>Ansichtsfe&amp;nster erstellen</translation>
    </message>
    <message>
        <source>Creates a viewport</source>
        <translation>Erstellt ein Ansichtsfenster</translation>
    </message>
    <message>
        <source>Alignment format:</source>
        <translation>Ausrichtung:</translation>
    </message>
    <message>
        <source>&amp;Horizontal</source>
        <translation>&amp;Horizontal</translation>
    </message>
    <message>
        <source>&amp;Vertical</source>
        <translation>&amp;Vertikal</translation>
    </message>
    <message>
        <source>&amp;Viewports alignment</source>
        <translation>Ansichtsfenster a&amp;usrichten</translation>
    </message>
    <message>
        <source>Modify viewports alignment</source>
        <translation>Ändert die Ausrichtung der Ansichtsfenster</translation>
    </message>
    <message>
        <source>Escalar viewports:</source>
        <translation>Ansichtsfenster skalieren:</translation>
    </message>
    <message>
        <source>Scale of viewports:</source>
        <translation>Maßstab der Ansichtsfenster:</translation>
    </message>
    <message>
        <source>&amp;Model</source>
        <translation>M&amp;odell</translation>
    </message>
    <message>
        <source>&amp;Paper</source>
        <translation>Papie&amp;r</translation>
    </message>
    <message>
        <source>Scale viewports</source>
        <translation>Ansichtsfenster skalieren</translation>
    </message>
    <message>
        <source>Viewports scaling</source>
        <translation>Skaliert die Ansichtsfenster</translation>
    </message>
    <message>
        <source>Units:</source>
        <translation>Einheiten:</translation>
    </message>
    <message>
        <source>&amp;Scientific</source>
        <translation>&amp;Wissenschaftlich</translation>
    </message>
    <message>
        <source>&amp;Decimal</source>
        <translation>&amp;Dezimal</translation>
    </message>
    <message>
        <source>&amp;Engineering</source>
        <translation>&amp;Technisch</translation>
    </message>
    <message>
        <source>&amp;Architectural</source>
        <translation>A&amp;rchitektur</translation>
    </message>
    <message>
        <source>Me&amp;tric</source>
        <translation>Metris&amp;ch</translation>
    </message>
    <message>
        <source>Size:</source>
        <translation>Größe:</translation>
    </message>
    <message>
        <source>&amp;Width: </source>
        <translation>&amp;Breite: </translation>
    </message>
    <message>
        <source>&amp;Height:</source>
        <translation>&amp;Höhe:</translation>
    </message>
    <message>
        <source>Scale:</source>
        <translation>Maßstab:</translation>
    </message>
    <message>
        <source>&amp;Scale Factor:</source>
        <translation>&amp;Skalierfaktor:</translation>
    </message>
    <message>
        <source>&amp;Create Title Block</source>
        <translation>Schriftfeld &amp;erstellen</translation>
    </message>
    <message>
        <source>Creates a tile block</source>
        <translation>Erstellt ein Schriftfeld</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Schließen</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Hilfe</translation>
    </message>
    <message>
        <source>Blocks</source>
        <translation>Blöcke</translation>
    </message>
    <message>
        <source>Scales;Factors</source>
        <translation>Maßstäbe;Faktoren</translation>
    </message>
    <message>
        <source>Feet</source>
        <translation>Fuß</translation>
    </message>
    <message>
        <source>Inches</source>
        <translation>Zoll</translation>
    </message>
    <message>
        <source>Meters</source>
        <translation>Meter</translation>
    </message>
    <message>
        <source>Milimeters</source>
        <translation>Millimeter</translation>
    </message>
    <message>
        <source>Do not remove entities</source>
        <translation>Keine Objekte entfernen</translation>
    </message>
    <message>
        <source>Remove all entities</source>
        <translation>Alle Objekte entfernen</translation>
    </message>
    <message>
        <source>Specify entities for remove</source>
        <translation>Zu entfernende Objekte angeben</translation>
    </message>
    <message>
        <source>Do not remove viewports</source>
        <translation>Keine Ansichtsfenster entfernen</translation>
    </message>
    <message>
        <source>Remove all viewports</source>
        <translation>Alle Ansichtsfenster entfernen</translation>
    </message>
    <message>
        <source>Specify viewports to remove</source>
        <translation>Zu entfernende Ansichtsfenster angeben</translation>
    </message>
    <message>
        <source>Specify folder</source>
        <translation>Ordner angeben</translation>
    </message>
</context>
<context>
    <name>Dlg_QT_RedefinePaths</name>
    <message>
        <source>Redefine Paths</source>
        <translation>Pfade neu festlegen</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>Typ</translation>
    </message>
    <message>
        <source>&amp;External references</source>
        <translation>E&amp;xterne Referenzen</translation>
    </message>
    <message>
        <source>&amp;Images</source>
        <translation>&amp;Bilder</translation>
    </message>
    <message>
        <source>&amp;Styles</source>
        <translation>S&amp;tile</translation>
    </message>
    <message>
        <source>&amp;Rtext</source>
        <translation>&amp;RText</translation>
    </message>
    <message>
        <source>&amp;Filter by:</source>
        <translation>&amp;Filtern nach:</translation>
    </message>
    <message>
        <source>Select &amp;all</source>
        <translation>&amp;Alle auswählen</translation>
    </message>
    <message>
        <source>Find and Replace</source>
        <translation>Suchen und ersetzen</translation>
    </message>
    <message>
        <source>&amp;Find what:</source>
        <translation>&amp;Suchen nach:</translation>
    </message>
    <message>
        <source>R&amp;eplace with:</source>
        <translation>Ersetzen d&amp;urch:</translation>
    </message>
    <message>
        <source>Replace coincidences with specified string</source>
        <translation>Fundstellen durch die angegebene Zeichenfolge ersetzen</translation>
    </message>
    <message>
        <source>&amp;Replace</source>
        <translation>&amp;Ersetzen</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Hilfe</translation>
    </message>
    <message>
        <source>Type;Name;Path</source>
        <translation>Typ;Name;Pfad</translation>
    </message>
    <message>
        <source>Xref</source>
        <translation>Xref</translation>
    </message>
    <message>
        <source>Image</source>
        <translation>Image</translation>
    </message>
    <message>
        <source>TextStyle</source>
        <translation>TextStyle</translation>
    </message>
    <message>
        <source>RemoteText</source>
        <translation>RemoteText</translation>
    </message>
    <message>
        <source>Filtering...</source>
        <translation>Wird gefiltert...</translation>
    </message>
    <message>
        <source>Select the rows of table for search.</source>
        <translation>Wählen Sie die Tabellenzeilen, in denen gesucht werden soll.</translation>
    </message>
    <message>
        <source>Sorting...</source>
        <translation>Wird sortiert...</translation>
    </message>
</context>
<context>
    <name>Dlg_QT_RemoveFavorits</name>
    <message>
        <source>Delete favorites</source>
        <translation>Favoriten löschen</translation>
    </message>
    <message>
        <source>Delete favorite</source>
        <translation>Favorit löschen</translation>
    </message>
    <message>
        <source>&amp;Delete</source>
        <translation>&amp;Löschen</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>Remove favorites</source>
        <translation>Favoriten löschen</translation>
    </message>
    <message>
        <source>Select items for remove.</source>
        <translation>Wählen Sie die Einträge, die gelöscht werden sollen.</translation>
    </message>
</context>
<context>
    <name>Dlg_QT_ReplaceBlock</name>
    <message>
        <source>Replace Block</source>
        <translation>Block ersetzen</translation>
    </message>
    <message>
        <source>Blocks to replace</source>
        <translation>Zu ersetzende Blöcke</translation>
    </message>
    <message>
        <source>Specify blocks in the drawing</source>
        <translation>Blöcke in der Zeichnung angeben</translation>
    </message>
    <message>
        <source>&amp;Specify blocks</source>
        <translation>&amp;Blöcke angeben</translation>
    </message>
    <message>
        <source>Preview</source>
        <translation>Vorschau</translation>
    </message>
    <message>
        <source>Replacing block</source>
        <translation>Ersatzblock</translation>
    </message>
    <message>
        <source>&amp;Clean unreferenced items</source>
        <translation>Nicht &amp;referenzierte Elemente bereinigen</translation>
    </message>
    <message>
        <source>&amp;Update BlockAttributes for block replacements</source>
        <translation>Blocka&amp;ttribute der ersetzten Blöcke aktualisieren</translation>
    </message>
    <message>
        <source>Apply changes</source>
        <translation>Änderungen anwenden</translation>
    </message>
    <message>
        <source>&amp;Apply</source>
        <translation>&amp;Anwenden</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Schließen</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Hilfe</translation>
    </message>
    <message>
        <source>&quot;Block to be replaced&quot; and &quot;Replacing block&quot; must be different.</source>
        <translation>Zu ersetzender Block und Ersatzblock müssen verschieden sein.</translation>
    </message>
</context>
<context>
    <name>Dlg_QT_ReplaceBlockToXref</name>
    <message>
        <source>Replace Block by Reference</source>
        <translation>Block durch Referenz ersetzen</translation>
    </message>
    <message>
        <source>Blocks to replace</source>
        <translation>Zu ersetzende Blöcke</translation>
    </message>
    <message>
        <source>Specify blocks in the drawing</source>
        <translation>Blöcke in der Zeichnung angeben</translation>
    </message>
    <message>
        <source>&amp;Specify blocks</source>
        <translation>&amp;Blöcke angeben</translation>
    </message>
    <message>
        <source>Preview</source>
        <translation>Vorschau</translation>
    </message>
    <message>
        <source>Replacing reference</source>
        <translation>Ersatzreferenz</translation>
    </message>
    <message>
        <source>Browse the disk for the reference that will be used</source>
        <translation>Sucht auf dem Datenträger nach der Referenz, die verwendet werden soll</translation>
    </message>
    <message>
        <source>&amp;Browse...</source>
        <translation>&amp;Durchsuchen...</translation>
    </message>
    <message>
        <source>&amp;Clean unreferenced items</source>
        <translation>Nicht &amp;referenzierte Elemente bereinigen</translation>
    </message>
    <message>
        <source>Apply changes</source>
        <translation>Änderungen anwenden</translation>
    </message>
    <message>
        <source>&amp;Apply</source>
        <translation>&amp;Anwenden</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Schließen</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Hilfe</translation>
    </message>
    <message>
        <source>Replace blocks</source>
        <translation>Blöcke ersetzen</translation>
    </message>
    <message>
        <source>You must first select the replacing reference. </source>
        <translation>Wählen Sie zuerst die Ersatzreferenz. </translation>
    </message>
</context>
<context>
    <name>Dlg_QT_ShowLinks</name>
    <message>
        <source>Show Links</source>
        <translation>Links anzeigen</translation>
    </message>
    <message>
        <source>Find and Replace</source>
        <translation>Suchen und ersetzen</translation>
    </message>
    <message>
        <source>&amp;Find what:</source>
        <translation>&amp;Suchen nach:</translation>
    </message>
    <message>
        <source>R&amp;eplace with:</source>
        <translation>Ersetzen d&amp;urch:</translation>
    </message>
    <message>
        <source>Replace coincidences with specified string</source>
        <translation>Fundstellen durch die angegebene Zeichenfolge ersetzen</translation>
    </message>
    <message>
        <source>&amp;Replace</source>
        <translation>&amp;Ersetzen</translation>
    </message>
    <message>
        <source>Shows selected URL</source>
        <translation>Zeigt die gewählte URL</translation>
    </message>
    <message>
        <source>&amp;Show URL</source>
        <translation>URL an&amp;zeigen</translation>
    </message>
    <message>
        <source>Remove selected URL</source>
        <translation>Gewählte URL entfernen</translation>
    </message>
    <message>
        <source>Remove &amp;URL</source>
        <translation>URL ent&amp;fernen</translation>
    </message>
    <message>
        <source>Show the entity of selected  URL</source>
        <translation>Das Objekt der gewählten URL zeigen</translation>
    </message>
    <message>
        <source>S&amp;how Entity</source>
        <translation>&amp;Objekt anzeigen</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Schließen</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Hilfe</translation>
    </message>
    <message>
        <source>;URL Name;Entity Type;Space</source>
        <translation>;Name der URL;Objekttyp;Bereich</translation>
    </message>
    <message>
        <source>Select one row of table for show.</source>
        <translation>Wählen Sie eine Tabellenzeile, die angezeigt werden soll.</translation>
    </message>
    <message>
        <source>Unable to display the link.</source>
        <translation>Der Link kann nicht angezeigt werden.</translation>
    </message>
    <message>
        <source>Open this link?</source>
        <translation>Diesen Link öffnen?</translation>
    </message>
    <message>
        <source>It is a program, or starts one.</source>
        <translation>Es ist ein Programm oder startet eines.</translation>
    </message>
    <message>
        <source>Warning</source>
        <translation>Warnung</translation>
    </message>
    <message>
        <source>Select the rows of table for searching.</source>
        <translation>Wählen Sie die Tabellenzeilen, in denen gesucht werden soll.</translation>
    </message>
    <message>
        <source>Replace text</source>
        <translation>Text ersetzen</translation>
    </message>
    <message>
        <source>The are no items selected.</source>
        <translation>Es sind keine Einträge gewählt.</translation>
    </message>
    <message>
        <source>Information</source>
        <translation>Information</translation>
    </message>
    <message>
        <source>Remove urls for selected items?</source>
        <translation>URLs der gewählten Einträge entfernen?</translation>
    </message>
    <message>
        <source>Sorting...</source>
        <translation>Wird sortiert...</translation>
    </message>
</context>
<context>
    <name>Dlg_QT_TextFrame</name>
    <message>
        <source>Text Frame</source>
        <translation>Textrahmen</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>Typ</translation>
    </message>
    <message>
        <source>&amp;Slot</source>
        <translation>Lang&amp;loch</translation>
    </message>
    <message>
        <source>&amp;Rectangle</source>
        <translation>&amp;Rechteck</translation>
    </message>
    <message>
        <source>&amp;Circle</source>
        <translation>&amp;Kreis</translation>
    </message>
    <message>
        <source>Dimensions</source>
        <translation>Abmessungen</translation>
    </message>
    <message>
        <source>Offset</source>
        <translation>Versatz</translation>
    </message>
    <message>
        <source>C&amp;onstant</source>
        <translation>K&amp;onstant</translation>
    </message>
    <message>
        <source>&amp;Variable</source>
        <translation>&amp;Variabel</translation>
    </message>
    <message>
        <source>Maintain Constant </source>
        <translation>Konstant halten </translation>
    </message>
    <message>
        <source>&amp;Width</source>
        <translation>&amp;Breite</translation>
    </message>
    <message>
        <source>&amp;Height</source>
        <translation>&amp;Höhe</translation>
    </message>
    <message>
        <source>&amp;Both</source>
        <translation>B&amp;eides</translation>
    </message>
    <message>
        <source>Background</source>
        <translation>Hintergrund</translation>
    </message>
    <message>
        <source>&amp;Transparent</source>
        <translation>&amp;Transparent</translation>
    </message>
    <message>
        <source>H&amp;atch</source>
        <translation>&amp;Schraffur</translation>
    </message>
    <message>
        <source>&amp;Color:</source>
        <translation>&amp;Farbe:</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Hilfe</translation>
    </message>
</context>
<context>
    <name>Dlg_QT_TextMask</name>
    <message>
        <source>Text Mask</source>
        <translation>Textmaske</translation>
    </message>
    <message>
        <source>Dimensions</source>
        <translation>Abmessungen</translation>
    </message>
    <message>
        <source>Offset</source>
        <translation>Versatz</translation>
    </message>
    <message>
        <source>Entity type</source>
        <translation>Objekttyp</translation>
    </message>
    <message>
        <source>&amp;Mask</source>
        <translation>&amp;Maske</translation>
    </message>
    <message>
        <source>3&amp;D Face</source>
        <translation>3&amp;D-Fläche</translation>
    </message>
    <message>
        <source>&amp;Solid</source>
        <translation>&amp;Solid</translation>
    </message>
    <message>
        <source>Background</source>
        <translation>Hintergrund</translation>
    </message>
    <message>
        <source>&amp;Color:</source>
        <translation>&amp;Farbe:</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Hilfe</translation>
    </message>
    <message>
        <source>Wrong dimension value.</source>
        <translation>Falscher Wert für die Abmessung.</translation>
    </message>
    <message>
        <source>Must be positive or zero.</source>
        <translation>Muss positiv oder null sein.</translation>
    </message>
</context>
<context>
    <name>Dlg_QT_TrackTime</name>
    <message>
        <source>Track Time</source>
        <translation>Zeiterfassung</translation>
    </message>
    <message>
        <source>Folder</source>
        <translation>Ordner</translation>
    </message>
    <message>
        <source>Fo&amp;lder:</source>
        <translation>&amp;Ordner:</translation>
    </message>
    <message>
        <source>Selects the folder of the drawings</source>
        <translation>Wählt den Ordner der Zeichnungen</translation>
    </message>
    <message>
        <source>&amp;Browse...</source>
        <translation>&amp;Durchsuchen...</translation>
    </message>
    <message>
        <source>Reads the drawings again</source>
        <translation>Liest die Zeichnungen neu ein</translation>
    </message>
    <message>
        <source>Re&amp;fresh</source>
        <translation>Aktualisie&amp;ren</translation>
    </message>
    <message>
        <source>Include s&amp;ub-folders</source>
        <translation>&amp;Unterordner einbeziehen</translation>
    </message>
    <message>
        <source>Fa&amp;vorites:</source>
        <translation>Fa&amp;voriten:</translation>
    </message>
    <message>
        <source>Save favorite</source>
        <translation>Favorit speichern</translation>
    </message>
    <message>
        <source>&amp;Save</source>
        <translation>&amp;Speichern</translation>
    </message>
    <message>
        <source>Remove favorite</source>
        <translation>Favorit löschen</translation>
    </message>
    <message>
        <source>Re&amp;move...</source>
        <translation>Lös&amp;chen...</translation>
    </message>
    <message>
        <source>Drawings</source>
        <translation>Zeichnungen</translation>
    </message>
    <message>
        <source>F&amp;ilter:</source>
        <translation>F&amp;ilter:</translation>
    </message>
    <message>
        <source>Shows only drawings with this in their name; regular expressions are allowed</source>
        <translation>Zeigt nur Zeichnungen, deren Name dies enthält; reguläre Ausdrücke sind erlaubt</translation>
    </message>
    <message>
        <source>Writes the table to a text file</source>
        <translation>Schreibt die Tabelle in eine Textdatei</translation>
    </message>
    <message>
        <source>&amp;Export...</source>
        <translation>&amp;Exportieren...</translation>
    </message>
    <message>
        <source>Selected drawings</source>
        <translation>Gewählte Zeichnungen</translation>
    </message>
    <message>
        <source>Counts the time that is worked on them</source>
        <translation>Zählt die Zeit, in der an ihnen gearbeitet wird</translation>
    </message>
    <message>
        <source>&amp;Track</source>
        <translation>&amp;Zeit erfassen</translation>
    </message>
    <message>
        <source>Counts no more time</source>
        <translation>Zählt keine Zeit mehr</translation>
    </message>
    <message>
        <source>&amp;Do not track</source>
        <translation>&amp;Nicht erfassen</translation>
    </message>
    <message>
        <source>Idle limit (mi&amp;n):</source>
        <translation>Leer&amp;laufgrenze (min):</translation>
    </message>
    <message>
        <source>Longer pauses are not counted; with 0 every pause is</source>
        <translation>Längere Pausen werden nicht gezählt; bei 0 wird jede gezählt</translation>
    </message>
    <message>
        <source>Gives the selected drawings this idle limit</source>
        <translation>Gibt den gewählten Zeichnungen diese Leerlaufgrenze</translation>
    </message>
    <message>
        <source>&amp;Apply</source>
        <translation>&amp;Anwenden</translation>
    </message>
    <message>
        <source>Sets the editing time to 0</source>
        <translation>Setzt die Bearbeitungszeit auf 0</translation>
    </message>
    <message>
        <source>&amp;Reset time...</source>
        <translation>Zei&amp;t zurücksetzen...</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Hilfe</translation>
    </message>
    <message>
        <source>Name;Track Active;EditTime (hr)</source>
        <translation>Name;Erfassung aktiv;Arbeitszeit (h)</translation>
    </message>
    <message>
        <source>The changes have not been written yet. Do you want to discard them?</source>
        <translation>Die Änderungen sind noch nicht geschrieben. Sollen sie verworfen werden?</translation>
    </message>
    <message>
        <source>Looking for drawings...</source>
        <translation>Zeichnungen werden gesucht...</translation>
    </message>
    <message>
        <source>Reading the drawings...</source>
        <translation>Die Zeichnungen werden gelesen...</translation>
    </message>
    <message>
        <source>Not readable</source>
        <translation>Nicht lesbar</translation>
    </message>
    <message>
        <source>On</source>
        <translation>Ein</translation>
    </message>
    <message>
        <source>Off</source>
        <translation>Aus</translation>
    </message>
    <message>
        <source>, %1 min</source>
        <translation>, %1 min</translation>
    </message>
    <message>
        <source>Every pause counts.</source>
        <translation>Jede Pause zählt.</translation>
    </message>
    <message>
        <source>, open (bold): %1</source>
        <translation>, offen (fett): %1</translation>
    </message>
    <message>
        <source>Total: %1 h. Drawings: %2%3</source>
        <translation>Summe: %1 h. Zeichnungen: %2%3</translation>
    </message>
    <message>
        <source>Are you sure you want to set the editing time of the selected drawings to 0?</source>
        <translation>Soll die Bearbeitungszeit der gewählten Zeichnungen wirklich auf 0 gesetzt werden?</translation>
    </message>
    <message>
        <source>Export editing time</source>
        <translation>Bearbeitungszeit exportieren</translation>
    </message>
    <message>
        <source>Text with tabs (*.txt);; Text with semicolons (*.csv);; All files (*.*)</source>
        <translation>Text mit Tabulatoren (*.txt);; Text mit Semikolons (*.csv);; Alle Dateien (*.*)</translation>
    </message>
    <message>
        <source>The file could not be written: %1</source>
        <translation>Die Datei konnte nicht geschrieben werden: %1</translation>
    </message>
    <message>
        <source>Writing the drawings...</source>
        <translation>Die Zeichnungen werden geschrieben...</translation>
    </message>
    <message>
        <source>and %1 more</source>
        <translation>und %1 weitere</translation>
    </message>
    <message>
        <source>Some drawings could not be changed.</source>
        <translation>Einige Zeichnungen konnten nicht geändert werden.</translation>
    </message>
</context>
<context>
    <name>Dlg_QT_numbertext</name>
    <message>
        <source>Number Text</source>
        <translation>Texte nummerieren</translation>
    </message>
    <message>
        <source>Sorting Method</source>
        <translation>Sortierung</translation>
    </message>
    <message>
        <source>&amp;Position X</source>
        <translation>&amp;X-Position</translation>
    </message>
    <message>
        <source>P&amp;osition Y</source>
        <translation>&amp;Y-Position</translation>
    </message>
    <message>
        <source>&amp;Select order</source>
        <translation>A&amp;uswahlreihenfolge</translation>
    </message>
    <message>
        <source>&amp;Relative to one point</source>
        <translation>&amp;Relativ zu einem Punkt</translation>
    </message>
    <message>
        <source>R&amp;elative to two points</source>
        <translation>Relativ zu &amp;zwei Punkten</translation>
    </message>
    <message>
        <source>Sorting Direction</source>
        <translation>Sortierrichtung</translation>
    </message>
    <message>
        <source>&amp;Ascending</source>
        <translation>&amp;Aufsteigend</translation>
    </message>
    <message>
        <source>Descendin&amp;g</source>
        <translation>A&amp;bsteigend</translation>
    </message>
    <message>
        <source>Counter</source>
        <translation>Zähler</translation>
    </message>
    <message>
        <source>Initial &amp;value:</source>
        <translation>Anfangs&amp;wert:</translation>
    </message>
    <message>
        <source>&amp;Increment:</source>
        <translation>In&amp;krement:</translation>
    </message>
    <message>
        <source>&amp;Digits:</source>
        <translation>S&amp;tellen:</translation>
    </message>
    <message>
        <source>Text Format</source>
        <translation>Textformat</translation>
    </message>
    <message>
        <source>(Prefix)</source>
        <translation>(Präfix)</translation>
    </message>
    <message>
        <source>(Suffix)</source>
        <translation>(Suffix)</translation>
    </message>
    <message>
        <source>NUMBER</source>
        <translation>NUMMER</translation>
    </message>
    <message>
        <source>Text Placement</source>
        <translation>Platzierung im Text</translation>
    </message>
    <message>
        <source>S&amp;uffix</source>
        <translation>Suf&amp;fix</translation>
    </message>
    <message>
        <source>Repla&amp;ce</source>
        <translation>&amp;Ersetzen</translation>
    </message>
    <message>
        <source>Pre&amp;fix</source>
        <translation>&amp;Präfix</translation>
    </message>
    <message>
        <source>O&amp;verwrite</source>
        <translation>Übersc&amp;hreiben</translation>
    </message>
    <message>
        <source>&amp;Find what:</source>
        <translation>&amp;Suchen nach:</translation>
    </message>
    <message>
        <source>Replace with:</source>
        <translation>Ersetzen durch:</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Hilfe</translation>
    </message>
</context>
<context>
    <name>DrawingPreview</name>
    <message>
        <source>No preview</source>
        <translation>Keine Vorschau</translation>
    </message>
</context>
<context>
    <name>LispExtension</name>
    <message>
        <source>The file is too large</source>
        <translation>Die Datei ist zu groß</translation>
    </message>
    <message>
        <source>. for none,.</source>
        <comment>Command Option: Upper- and Lowercase letters are relevant.</comment>
        <translation>. für keinen,.</translation>
    </message>
    <message>
        <source>block %1</source>
        <translation>Block %1</translation>
    </message>
    <message>
        <source>layer %1</source>
        <translation>Layer %1</translation>
    </message>
    <message>
        <source>linetype %1</source>
        <translation>Linientyp %1</translation>
    </message>
    <message>
        <source>text style %1</source>
        <translation>Textstil %1</translation>
    </message>
    <message>
        <source>dimension style %1</source>
        <translation>Bemaßungsstil %1</translation>
    </message>
    <message>
        <source>Specify drawing file</source>
        <translation>Zeichnungsdatei angeben</translation>
    </message>
    <message>
        <source>Specify block</source>
        <translation>Block angeben</translation>
    </message>
    <message>
        <source>Specify state file</source>
        <translation>Zustandsdatei angeben</translation>
    </message>
    <message>
        <source>
Settings saved to: </source>
        <translation>
Einstellungen gespeichert in: </translation>
    </message>
    <message>
        <source> successfully.</source>
        <translation> - erfolgreich.</translation>
    </message>
    <message>
        <source>You must first select the blocks to replace. </source>
        <translation>Wählen Sie zuerst die zu ersetzenden Blöcke. </translation>
    </message>
    <message>
        <source>%1 could not be written: %2.</source>
        <translation>%1 konnte nicht geschrieben werden: %2.</translation>
    </message>
    <message>
        <source>The document could not be printed.</source>
        <translation>Das Dokument konnte nicht gedruckt werden.</translation>
    </message>
    <message>
        <source>Drawing files (*.dwg)</source>
        <translation>Zeichnungsdateien (*.dwg)</translation>
    </message>
    <message>
        <source>Drawing exchange files (*.dxf)</source>
        <translation>DXF-Dateien (*.dxf)</translation>
    </message>
    <message>
        <source>Specify a drawing</source>
        <translation>Zeichnung angeben</translation>
    </message>
    <message>
        <source>Error: Xref contains circular reference</source>
        <translation>Fehler: Die externe Referenz enthält einen Zirkelbezug</translation>
    </message>
    <message>
        <source>Select folder</source>
        <translation>Ordner wählen</translation>
    </message>
    <message>
        <source>Filename can`t be empty</source>
        <translation>Der Dateiname darf nicht leer sein</translation>
    </message>
    <message>
        <source>The following characters are not valid in File names: &lt;&gt;/\&quot;:;?*|,=&apos;</source>
        <translation>Diese Zeichen sind in Dateinamen nicht erlaubt: &lt;&gt;/\&quot;:;?*|,=&apos;</translation>
    </message>
    <message>
        <source>Drawing symbol &quot;%1&quot; already exists. Do you want to replace it?</source>
        <translation>Das Zeichnungssymbol &quot;%1&quot; ist bereits vorhanden. Soll es ersetzt werden?</translation>
    </message>
    <message>
        <source>Path can`t be empty</source>
        <translation>Der Pfad darf nicht leer sein</translation>
    </message>
    <message>
        <source>Cannot find the specified Path.</source>
        <translation>Der angegebene Pfad wurde nicht gefunden.</translation>
    </message>
    <message>
        <source>Cannot find the specified file.</source>
        <translation>Die angegebene Datei wurde nicht gefunden.</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Name</translation>
    </message>
    <message>
        <source>Replacing...</source>
        <translation>Wird ersetzt...</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>%1: the drawing has no room for an editing time</source>
        <translation>%1: die Zeichnung hat keinen Platz für eine Bearbeitungszeit</translation>
    </message>
    <message>
        <source>%1: the drawing is not open any more</source>
        <translation>%1: die Zeichnung ist nicht mehr geöffnet</translation>
    </message>
    <message>
        <source>A tag or text of the file is too long.</source>
        <translation>Ein Tag oder Text der Datei ist zu lang.</translation>
    </message>
    <message>
        <source>An element of the file has too many attributes.</source>
        <translation>Ein Element der Datei hat zu viele Attribute.</translation>
    </message>
    <message>
        <source>Enter to %1</source>
        <translation>Eingabetaste für %1</translation>
    </message>
    <message>
        <source>Entities that this drawing cannot hold and that were left out: %1.</source>
        <translation>Objekte, die diese Zeichnung nicht aufnehmen kann und die weggelassen wurden: %1.</translation>
    </message>
    <message>
        <source>Error reading alias file.</source>
        <translation>Fehler beim Lesen der Aliasdatei.</translation>
    </message>
    <message>
        <source>Favorite &quot;%1&quot; already exists. Do you want to replace it?</source>
        <translation>Der Favorit &quot;%1&quot; ist bereits vorhanden. Soll er ersetzt werden?</translation>
    </message>
    <message>
        <source>Favorite name is required.</source>
        <translation>Ein Name für den Favoriten wird gebraucht.</translation>
    </message>
    <message>
        <source>Favorites</source>
        <translation>Favoriten</translation>
    </message>
    <message>
        <source>No file name</source>
        <translation>Kein Dateiname</translation>
    </message>
    <message>
        <source>Select object</source>
        <translation>Objekt wählen</translation>
    </message>
    <message>
        <source>Specify folder</source>
        <translation>Ordner angeben</translation>
    </message>
    <message>
        <source>Specify new path for Backup folder</source>
        <translation>Neuen Pfad für den Sicherungsordner angeben</translation>
    </message>
    <message>
        <source>Specify option</source>
        <translation>Option angeben</translation>
    </message>
    <message>
        <source>Specify second point</source>
        <translation>Zweiten Punkt angeben</translation>
    </message>
    <message>
        <source>The drawing has its own, which stays as it is: %1.</source>
        <translation>Die Zeichnung hat Eigenes, das bleibt, wie es ist: %1.</translation>
    </message>
    <message>
        <source>The entities of the file expand to too much text.</source>
        <translation>Die Entitäten der Datei ergeben zu viel Text.</translation>
    </message>
    <message>
        <source>There are too many copies of it already.</source>
        <translation>Es gibt davon schon zu viele Kopien.</translation>
    </message>
    <message>
        <source>There is no block &quot;%1&quot; in %2.</source>
        <translation>Es gibt keinen Block &quot;%1&quot; in %2.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is a invalid directory.</source>
        <translation>&quot;%1&quot; ist kein gültiger Ordner.</translation>
    </message>
    <message>
        <source>
%1 could not be moved.</source>
        <translation>
%1 konnten nicht verschoben werden.</translation>
    </message>
    <message>
        <source>
Nothing is there.</source>
        <translation>
Dort ist nichts.</translation>
    </message>
    <message>
        <source>
This %1 is not what is asked for.</source>
        <translation>
Dieses Objekt (%1) ist nicht das gefragte.</translation>
    </message>
    <message>
        <source>
This is a %1; asked for is %2.</source>
        <translation>
Dies ist %1; gefragt ist %2.</translation>
    </message>
    <message>
        <source>line %1: %2</source>
        <translation>Zeile %1: %2</translation>
    </message>
</context>
<context>
    <name>StyleTables</name>
    <message>
        <source>Name</source>
        <translation>Name</translation>
    </message>
    <message>
        <source>Variable;Value</source>
        <translation>Variable;Wert</translation>
    </message>
</context>
</TS>
