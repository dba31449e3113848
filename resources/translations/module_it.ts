<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="it_IT" sourcelanguage="en">
<context>
    <name>BlockReplacementDialog</name>
    <message>
        <source>The block &quot;%1&quot; is taken for %2, as another block of the drawing is. Rename one of the two first.</source>
        <translation>Il blocco &quot;%1&quot; viene preso per %2, come un altro blocco del disegno. Rinominare prima uno dei due.</translation>
    </message>
</context>
<context>
    <name>DLG_QT_ConvertNotes</name>
    <message>
        <source>Convert SimpleNote</source>
        <translation>Converti SimpleNote</translation>
    </message>
    <message>
        <source>Format</source>
        <translation>Formato</translation>
    </message>
    <message>
        <source>Keep original T&amp;extStyle</source>
        <translation>Mantieni stile di te&amp;sto</translation>
    </message>
    <message>
        <source>Keep original &amp;LineColor</source>
        <translation>Mantieni colore &amp;linea</translation>
    </message>
    <message>
        <source>Keep original &amp;height</source>
        <translation>Mantieni alte&amp;zza</translation>
    </message>
    <message>
        <source>Ordering</source>
        <translation>Ordinamento</translation>
    </message>
    <message>
        <source>&amp;Selection set</source>
        <translation>&amp;Gruppo di selezione</translation>
    </message>
    <message>
        <source>&amp;Top-down</source>
        <translation>Dall&apos;al&amp;to in basso</translation>
    </message>
    <message>
        <source>&amp;Alphabetical</source>
        <translation>&amp;Alfabetico</translation>
    </message>
    <message>
        <source>&amp;Create word-wrap text</source>
        <translation>&amp;Crea testo con a capo automatico</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annulla</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Aiuto</translation>
    </message>
</context>
<context>
    <name>DLG_QT_PatternHatch</name>
    <message>
        <source>Pattern Hatch</source>
        <translation>Tratteggio a motivo</translation>
    </message>
    <message>
        <source>Type </source>
        <translation>Tipo </translation>
    </message>
    <message>
        <source>&amp;Block</source>
        <translation>&amp;Blocco</translation>
    </message>
    <message>
        <source>&amp;Image</source>
        <translation>&amp;Immagine</translation>
    </message>
    <message>
        <source>&amp;External reference</source>
        <translation>&amp;Riferimento esterno</translation>
    </message>
    <message>
        <source>&amp;Mask</source>
        <translation>&amp;Maschera</translation>
    </message>
    <message>
        <source>&amp;Name:</source>
        <translation>&amp;Nome:</translation>
    </message>
    <message>
        <source>...</source>
        <translation>...</translation>
    </message>
    <message>
        <source>Favorites</source>
        <translation>Preferiti</translation>
    </message>
    <message>
        <source>Save favorite</source>
        <translation>Salva preferito</translation>
    </message>
    <message>
        <source>Remove favorite</source>
        <translation>Rimuovi preferito</translation>
    </message>
    <message>
        <source>Pattern preview</source>
        <translation>Anteprima motivo</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Dimensione</translation>
    </message>
    <message>
        <source>&amp;Width and height as scale factor</source>
        <translation>Larghezza e altezza come &amp;fattore di scala</translation>
    </message>
    <message>
        <source>&amp;Lock aspect ratio</source>
        <translation>Blocca p&amp;roporzioni</translation>
    </message>
    <message>
        <source>Wid&amp;th:</source>
        <translation>&amp;Larghezza:</translation>
    </message>
    <message>
        <source>Hei&amp;ght:</source>
        <translation>Alte&amp;zza:</translation>
    </message>
    <message>
        <source>Spacing</source>
        <translation>Spaziatura</translation>
    </message>
    <message>
        <source>Offset &amp;X:</source>
        <translation>Offset &amp;X:</translation>
    </message>
    <message>
        <source>Offset &amp;Y:</source>
        <translation>Offset &amp;Y:</translation>
    </message>
    <message>
        <source>Position</source>
        <translation>Posizione</translation>
    </message>
    <message>
        <source>Pattern &amp;origin:</source>
        <translation>&amp;Origine motivo:</translation>
    </message>
    <message>
        <source>X</source>
        <translation>X</translation>
    </message>
    <message>
        <source>Specify in graphics area</source>
        <translation>Specifica nell&apos;area grafica</translation>
    </message>
    <message>
        <source>Y</source>
        <translation>Y</translation>
    </message>
    <message>
        <source>Rotation &amp;angle:</source>
        <translation>Angolo di ro&amp;tazione:</translation>
    </message>
    <message>
        <source>Extracts pattern, size, position and rotation from an entity in drawing</source>
        <translation>Estrae motivo, dimensione, posizione e rotazione da un&apos;entità del disegno</translation>
    </message>
    <message>
        <source>&amp;Extract from entity</source>
        <translation>&amp;Estrai da entità</translation>
    </message>
    <message>
        <source>Boundaries</source>
        <translation>Contorni</translation>
    </message>
    <message>
        <source>Specify &amp;entities</source>
        <translation>&amp;Specifica entità</translation>
    </message>
    <message>
        <source>&amp;Specify points</source>
        <translation>Specifica p&amp;unti</translation>
    </message>
    <message>
        <source>&amp;Delete boundary entities</source>
        <translation>Elimina entità del &amp;contorno</translation>
    </message>
    <message>
        <source>&amp;Highlight boundary entities</source>
        <translation>E&amp;videnzia entità del contorno</translation>
    </message>
    <message>
        <source>&amp;Extract from a hatch</source>
        <translation>Est&amp;rai da un tratteggio</translation>
    </message>
    <message>
        <source>Type of entities</source>
        <translation>Tipo di entità</translation>
    </message>
    <message>
        <source>&amp;Anonymous block</source>
        <translation>Blocco &amp;anonimo</translation>
    </message>
    <message>
        <source>E&amp;ntity group</source>
        <translation>&amp;Gruppo di entità</translation>
    </message>
    <message>
        <source>Limits</source>
        <translation>Limiti</translation>
    </message>
    <message>
        <source>&amp;Cut entities</source>
        <translation>&amp;Taglia entità</translation>
    </message>
    <message>
        <source>&amp;Draw surpassing entities</source>
        <translation>&amp;Disegna entità eccedenti</translation>
    </message>
    <message>
        <source>Tolerance for curves</source>
        <translation>Tolleranza per curve</translation>
    </message>
    <message>
        <source>Previews the result in the drawing</source>
        <translation>Mostra il risultato nel disegno</translation>
    </message>
    <message>
        <source>&amp;Preview</source>
        <translation>Ante&amp;prima</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annulla</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Aiuto</translation>
    </message>
    <message>
        <source>A drawing of this version has neither images nor masks.</source>
        <translation>Un disegno di questa versione non ha né immagini né maschere.</translation>
    </message>
    <message>
        <source>At the boundary copies of references are left out: they cannot be cut.</source>
        <translation>Sul contorno le copie di riferimenti vengono omesse: non si possono tagliare.</translation>
    </message>
    <message>
        <source>At the boundary copies with anything but lines, arcs and polylines are left out.</source>
        <translation>Sul contorno vengono omesse le copie che contengono altro che linee, archi e polilinee.</translation>
    </message>
    <message>
        <source>Copies of references are clipped at the boundary, not cut.</source>
        <translation>Le copie di riferimenti vengono ritagliate sul contorno, non tagliate.</translation>
    </message>
    <message>
        <source>Copies with texts, images or tilted entities are clipped, not cut.</source>
        <translation>Le copie con testi, immagini o entità inclinate vengono ritagliate, non tagliate.</translation>
    </message>
    <message>
        <source>Select image for pattern</source>
        <translation>Seleziona immagine per il motivo</translation>
    </message>
    <message>
        <source>Specify Pattern </source>
        <translation>Specifica motivo </translation>
    </message>
    <message>
        <source>Scale must be higher than zero. </source>
        <translation>La scala deve essere maggiore di zero. </translation>
    </message>
    <message>
        <source>The tolerance value is less than minimum. The value is reset to minimum (0.01). </source>
        <translation>La tolleranza è inferiore al minimo. Viene ripristinato il valore minimo (0.01). </translation>
    </message>
    <message>
        <source>All supported Image file (*.bmp *.gif *.jpg *.jpeg *.png *.tif *.tiff *.ecw);;</source>
        <translation>Tutte le immagini supportate (*.bmp *.gif *.jpg *.jpeg *.png *.tif *.tiff *.ecw);;</translation>
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
        <translation>Seleziona blocco</translation>
    </message>
    <message>
        <source>Blocks of</source>
        <translation>Blocchi di</translation>
    </message>
    <message>
        <source>&amp;Active drawing</source>
        <translation>Disegno &amp;attivo</translation>
    </message>
    <message>
        <source>&amp;Drawing file:</source>
        <translation>File di &amp;disegno:</translation>
    </message>
    <message>
        <source>Drawing file that has the block</source>
        <translation>File di disegno che contiene il blocco</translation>
    </message>
    <message>
        <source>Browse the disk for the drawing that has the block</source>
        <translation>Cerca sul disco il disegno che contiene il blocco</translation>
    </message>
    <message>
        <source>&amp;Browse...</source>
        <translation>S&amp;foglia...</translation>
    </message>
    <message>
        <source>&amp;Filter by:</source>
        <translation>Filtra &amp;per:</translation>
    </message>
    <message>
        <source>Regular expression; blocks whose name contains it are listed</source>
        <translation>Espressione regolare; vengono elencati i blocchi il cui nome la contiene</translation>
    </message>
    <message>
        <source>List the blocks that programs have made without a name of their own, such as *U12</source>
        <translation>Elenca i blocchi creati da programmi senza un nome proprio, come *U12</translation>
    </message>
    <message>
        <source>&amp;Show anonymous blocks</source>
        <translation>&amp;Mostra blocchi anonimi</translation>
    </message>
    <message>
        <source>Preview</source>
        <translation>Anteprima</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annulla</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Aiuto</translation>
    </message>
    <message>
        <source>Name;Type</source>
        <translation>Nome;Tipo</translation>
    </message>
    <message>
        <source>External reference</source>
        <translation>Riferimento esterno</translation>
    </message>
    <message>
        <source>Drawing files (*.dwg *.dxf)</source>
        <translation>File di disegno (*.dwg *.dxf)</translation>
    </message>
    <message>
        <source>Block</source>
        <translation>Blocco</translation>
    </message>
    <message>
        <source>Anonymous block</source>
        <translation>Blocco anonimo</translation>
    </message>
    <message>
        <source>Cannot find the specified file.</source>
        <translation>Impossibile trovare il file specificato.</translation>
    </message>
    <message>
        <source>The drawing file cannot be read.</source>
        <translation>Impossibile leggere il file di disegno.</translation>
    </message>
    <message>
        <source>Blocks: %1</source>
        <translation>Blocchi: %1</translation>
    </message>
    <message>
        <source>Blocks: %1 of %2</source>
        <translation>Blocchi: %1 di %2</translation>
    </message>
    <message>
        <source>The drawing has no blocks.</source>
        <translation>Il disegno non ha blocchi.</translation>
    </message>
    <message>
        <source>You must first select a block.</source>
        <translation>Selezionare prima un blocco.</translation>
    </message>
    <message>
        <source>The name of the block holds characters that no program can take. Rename it first.</source>
        <translation>Il nome del blocco contiene caratteri che nessun programma accetta. Rinominarlo prima.</translation>
    </message>
    <message>
        <source>The block &quot;%1&quot; is an external reference of the other drawing. Attach its drawing instead.</source>
        <translation>Il blocco &quot;%1&quot; è un riferimento esterno dell&apos;altro disegno. Attaccare invece il suo disegno.</translation>
    </message>
    <message>
        <source>The block &quot;%1&quot; is anonymous: it cannot be brought in from another drawing.</source>
        <translation>Il blocco &quot;%1&quot; è anonimo: non può essere preso da un altro disegno.</translation>
    </message>
    <message>
        <source>The drawing file does not have the block &quot;%1&quot; any more.</source>
        <translation>Il file di disegno non ha più il blocco &quot;%1&quot;.</translation>
    </message>
</context>
<context>
    <name>Dlg_QT_Breakline</name>
    <message>
        <source>Breakline</source>
        <translation>Linea di interruzione</translation>
    </message>
    <message>
        <source>Specify a drawing for breakline</source>
        <translation>Specifica un disegno per la linea di interruzione</translation>
    </message>
    <message>
        <source>&amp;Browse...</source>
        <translation>S&amp;foglia...</translation>
    </message>
    <message>
        <source>Preview</source>
        <translation>Anteprima</translation>
    </message>
    <message>
        <source>Sizes</source>
        <translation>Dimensioni</translation>
    </message>
    <message>
        <source>Si&amp;ze:</source>
        <translation>&amp;Dimensione:</translation>
    </message>
    <message>
        <source>O&amp;ffset:</source>
        <translation>&amp;Offset:</translation>
    </message>
    <message>
        <source>New symbol</source>
        <translation>Nuovo simbolo</translation>
    </message>
    <message>
        <source>&amp;Name:</source>
        <translation>&amp;Nome:</translation>
    </message>
    <message>
        <source>Specify entities to use as breakline</source>
        <translation>Specifica le entità da usare come linea di interruzione</translation>
    </message>
    <message>
        <source>&amp;Specify entity to use as breakline</source>
        <translation>&amp;Specifica entità da usare come linea</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annulla</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Aiuto</translation>
    </message>
    <message>
        <source>Drawing files (*.dwg *.dxf)</source>
        <translation>File di disegno (*.dwg *.dxf)</translation>
    </message>
    <message>
        <source>Cannot find the specified drawing file.</source>
        <translation>Impossibile trovare il file di disegno specificato.</translation>
    </message>
</context>
<context>
    <name>Dlg_QT_DrawOderColor</name>
    <message>
        <source>Draw Order by Color</source>
        <translation>Ordine di disegno per colore</translation>
    </message>
    <message>
        <source>Back: drawn first</source>
        <translation>Dietro: disegnato per primo</translation>
    </message>
    <message>
        <source>Front: drawn last, over all others</source>
        <translation>Davanti: disegnato per ultimo, sopra tutti gli altri</translation>
    </message>
    <message>
        <source>Draw the selected colors before all others (Alt+Home)</source>
        <translation>Disegna i colori selezionati prima di tutti gli altri (Alt+Home)</translation>
    </message>
    <message>
        <source>To &amp;back</source>
        <translation>In &amp;fondo</translation>
    </message>
    <message>
        <source>Move the selected rows up by one place (Alt+Up)</source>
        <translation>Sposta le righe selezionate su di un posto (Alt+Su)</translation>
    </message>
    <message>
        <source>Move &amp;up</source>
        <translation>Sposta &amp;su</translation>
    </message>
    <message>
        <source>Move the selected rows down by one place (Alt+Down)</source>
        <translation>Sposta le righe selezionate giù di un posto (Alt+Giù)</translation>
    </message>
    <message>
        <source>Move &amp;down</source>
        <translation>Sposta &amp;giù</translation>
    </message>
    <message>
        <source>Draw the selected colors after all others (Alt+End)</source>
        <translation>Disegna i colori selezionati dopo tutti gli altri (Alt+Fine)</translation>
    </message>
    <message>
        <source>To &amp;front</source>
        <translation>In &amp;primo piano</translation>
    </message>
    <message>
        <source>Turn the order around</source>
        <translation>Inverte l&apos;ordine</translation>
    </message>
    <message>
        <source>R&amp;everse</source>
        <translation>In&amp;verti</translation>
    </message>
    <message>
        <source>Order the colors by their numbers</source>
        <translation>Ordina i colori per numero</translation>
    </message>
    <message>
        <source>&amp;Sort by number</source>
        <translation>&amp;Ordina per numero</translation>
    </message>
    <message>
        <source>Take the selected colors off the list (Del)</source>
        <translation>Toglie dall&apos;elenco i colori selezionati (Canc)</translation>
    </message>
    <message>
        <source>&amp;Remove</source>
        <translation>&amp;Rimuovi</translation>
    </message>
    <message>
        <source>&amp;Color:</source>
        <translation>&amp;Colore:</translation>
    </message>
    <message>
        <source>Add this color at the front</source>
        <translation>Aggiunge questo colore in primo piano</translation>
    </message>
    <message>
        <source>&amp;Add</source>
        <translation>&amp;Aggiungi</translation>
    </message>
    <message>
        <source>Favorites</source>
        <translation>Preferiti</translation>
    </message>
    <message>
        <source>&amp;Name:</source>
        <translation>&amp;Nome:</translation>
    </message>
    <message>
        <source>Save favorite</source>
        <translation>Salva preferito</translation>
    </message>
    <message>
        <source>Remove favorite</source>
        <translation>Rimuovi preferito</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annulla</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Aiuto</translation>
    </message>
    <message>
        <source>%1 (no color)</source>
        <translation>%1 (non è un colore)</translation>
    </message>
    <message>
        <source>Color</source>
        <translation>Colore</translation>
    </message>
</context>
<context>
    <name>Dlg_QT_EditAlias</name>
    <message>
        <source>Edit Alias</source>
        <translation>Modifica alias</translation>
    </message>
    <message>
        <source>Current alias:</source>
        <translation>Alias correnti:</translation>
    </message>
    <message>
        <source>Create new alias</source>
        <translation>Crea nuovo alias</translation>
    </message>
    <message>
        <source>Remove alias</source>
        <translation>Rimuovi alias</translation>
    </message>
    <message>
        <source>Clean alias list</source>
        <translation>Svuota elenco alias</translation>
    </message>
    <message>
        <source>Save alias</source>
        <translation>Salva alias</translation>
    </message>
    <message>
        <source>Import alias from file</source>
        <translation>Importa alias da file</translation>
    </message>
    <message>
        <source>Export alias to file</source>
        <translation>Esporta alias su file</translation>
    </message>
    <message>
        <source>Print alias</source>
        <translation>Stampa alias</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annulla</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Aiuto</translation>
    </message>
    <message>
        <source>Command;Alias</source>
        <translation>Comando;Alias</translation>
    </message>
    <message>
        <source>The alias file could not be read whole (%1). Keep it as it is under another name, and write what the table holds in its place?</source>
        <translation>Il file degli alias non è stato letto per intero (%1). Conservarlo così com&apos;è con un altro nome e scrivere al suo posto il contenuto della tabella?</translation>
    </message>
    <message>
        <source>What %1 held before is in %2.</source>
        <translation>Il contenuto precedente di %1 è in %2.</translation>
    </message>
    <message>
        <source>Select the rows of table for remove.</source>
        <translation>Selezionare le righe della tabella da rimuovere.</translation>
    </message>
    <message>
        <source>Are you sure you want to remove this alias for %1?</source>
        <translation>Rimuovere questo alias di %1?</translation>
    </message>
    <message>
        <source>Are you sure you want to delete all alias?</source>
        <translation>Eliminare tutti gli alias?</translation>
    </message>
    <message>
        <source>The alias file has been saved.</source>
        <translation>Il file degli alias è stato salvato.</translation>
    </message>
    <message>
        <source>The alias file could not be saved.</source>
        <translation>Impossibile salvare il file degli alias.</translation>
    </message>
    <message>
        <source>Save As</source>
        <translation>Salva con nome</translation>
    </message>
    <message>
        <source>Alias files (*.xml);; All files (*.*)</source>
        <translation>File di alias (*.xml);; Tutti i file (*.*)</translation>
    </message>
    <message>
        <source>The alias file has been exported.</source>
        <translation>Il file degli alias è stato esportato.</translation>
    </message>
    <message>
        <source>The alias file could not be exported.</source>
        <translation>Impossibile esportare il file degli alias.</translation>
    </message>
    <message>
        <source>Select the file to import</source>
        <translation>Selezionare il file da importare</translation>
    </message>
    <message>
        <source>Alias files (*.txt);; All files (*.*)</source>
        <translation>File di alias (*.txt);; Tutti i file (*.*)</translation>
    </message>
    <message>
        <source>The alias file could not be imported.</source>
        <translation>Impossibile importare il file degli alias.</translation>
    </message>
    <message>
        <source>This alias already begin used for other command.</source>
        <translation>Questo alias è già usato per un altro comando.</translation>
    </message>
    <message>
        <source>Sorting...</source>
        <translation>Ordinamento...</translation>
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
        <translation>Testo:</translation>
    </message>
    <message>
        <source>This is a sample text for kora</source>
        <translation>Questo è un testo di esempio per kora</translation>
    </message>
    <message>
        <source>Style</source>
        <translation>Stile</translation>
    </message>
    <message>
        <source>&amp;Sentence case</source>
        <translation>Come nelle &amp;frasi</translation>
    </message>
    <message>
        <source>&amp;Lowercase</source>
        <translation>&amp;Minuscole</translation>
    </message>
    <message>
        <source>&amp;Uppercase</source>
        <translation>M&amp;aiuscole</translation>
    </message>
    <message>
        <source>&amp;Title</source>
        <translation>&amp;Titolo</translation>
    </message>
    <message>
        <source>T&amp;oggle case</source>
        <translation>&amp;Inverti maiuscole/minuscole</translation>
    </message>
    <message>
        <source>Preview</source>
        <translation>Anteprima</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annulla</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Aiuto</translation>
    </message>
    <message>
        <source>Sentence</source>
        <translation>Frase</translation>
    </message>
    <message>
        <source>Lower</source>
        <translation>Minuscole</translation>
    </message>
    <message>
        <source>Upper</source>
        <translation>Maiuscole</translation>
    </message>
    <message>
        <source>Title</source>
        <translation>Titolo</translation>
    </message>
    <message>
        <source>toGgle</source>
        <translation>iNverti</translation>
    </message>
</context>
<context>
    <name>Dlg_QT_ExchangedDimensionStyle</name>
    <message>
        <source>Export Dimension Style</source>
        <translation>Esporta stile di quota</translation>
    </message>
    <message>
        <source>Available DimensionStyles</source>
        <translation>Stili di quota disponibili</translation>
    </message>
    <message>
        <source>Style Variables</source>
        <translation>Variabili dello stile</translation>
    </message>
    <message>
        <source>Options</source>
        <translation>Opzioni</translation>
    </message>
    <message>
        <source>&amp;TextStyle name only</source>
        <translation>Solo nome dello stile di &amp;testo</translation>
    </message>
    <message>
        <source>&amp;Full TextStyle information</source>
        <translation>In&amp;formazioni complete stile di testo</translation>
    </message>
    <message>
        <source>&amp;Export...</source>
        <translation>&amp;Esporta...</translation>
    </message>
    <message>
        <source>Export to file</source>
        <translation>Esporta su file</translation>
    </message>
    <message>
        <source>Select Dimension Style file</source>
        <translation>Seleziona file di stili di quota</translation>
    </message>
    <message>
        <source>DimStyle files (*.dim)</source>
        <translation>File di stili di quota (*.dim)</translation>
    </message>
    <message>
        <source>No dimension style selected, please select a dimension style to export. </source>
        <translation>Nessuno stile di quota selezionato. Selezionarne uno da esportare. </translation>
    </message>
    <message>
        <source>Exchange Dimension Style</source>
        <translation>Scambio stile di quota</translation>
    </message>
    <message>
        <source>%1 already exists. Do you want to replace it?</source>
        <translation>%1 esiste già. Sostituirlo?</translation>
    </message>
</context>
<context>
    <name>Dlg_QT_ExportInfo</name>
    <message>
        <source>Export Settings</source>
        <translation>Esporta impostazioni</translation>
    </message>
    <message>
        <source>User information</source>
        <translation>Informazioni utente</translation>
    </message>
    <message>
        <source>&amp;Name:</source>
        <translation>&amp;Nome:</translation>
    </message>
    <message>
        <source>&amp;E-mail address: </source>
        <translation>Indirizzo &amp;e-mail: </translation>
    </message>
    <message>
        <source>&amp;Phone number: </source>
        <translation>Numero di &amp;telefono: </translation>
    </message>
    <message>
        <source>&amp;Issue description: </source>
        <translation>&amp;Descrizione del problema: </translation>
    </message>
    <message>
        <source>Steps to Reproduce the Issue</source>
        <translation>Passaggi per riprodurre il problema</translation>
    </message>
    <message>
        <source>System information</source>
        <translation>Informazioni di sistema</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annulla</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Aiuto</translation>
    </message>
    <message>
        <source>Export information</source>
        <translation>Esporta informazioni</translation>
    </message>
    <message>
        <source>Text files (*.txt)</source>
        <translation>File di testo (*.txt)</translation>
    </message>
</context>
<context>
    <name>Dlg_QT_ExportSettings</name>
    <message>
        <source>Export Settings</source>
        <translation>Esporta impostazioni</translation>
    </message>
    <message>
        <source>&amp;Variable type:</source>
        <translation>Tipo di &amp;variabile:</translation>
    </message>
    <message>
        <source>Select a system variable</source>
        <translation>Selezionare una variabile di sistema</translation>
    </message>
    <message>
        <source>Save modified settings</source>
        <translation>Salva impostazioni modificate</translation>
    </message>
    <message>
        <source>&amp;Export to script...</source>
        <translation>&amp;Esporta su script...</translation>
    </message>
    <message>
        <source>All,Read only,Dangerous,Standard</source>
        <translation>Tutte,Sola lettura,Pericolose,Standard</translation>
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
        <translation>Aggiungi a script...</translation>
    </message>
    <message>
        <source>Export to script...</source>
        <translation>Esporta su script...</translation>
    </message>
    <message>
        <source>Append settings to an existing file</source>
        <translation>Aggiungi impostazioni a un file esistente</translation>
    </message>
    <message>
        <source>Save script file</source>
        <translation>Salva file di script</translation>
    </message>
    <message>
        <source>Append to script file</source>
        <translation>Aggiungi a file di script</translation>
    </message>
    <message>
        <source>Script files (*.scr)</source>
        <translation>File di script (*.scr)</translation>
    </message>
</context>
<context>
    <name>Dlg_QT_GetBlockInfo</name>
    <message>
        <source>Get Block Info</source>
        <translation>Informazioni sui blocchi</translation>
    </message>
    <message>
        <source>Creates a table in the drawing with the block information</source>
        <translation>Crea nel disegno una tabella con le informazioni sui blocchi</translation>
    </message>
    <message>
        <source>Export list to a table in &amp;drawing</source>
        <translation>Esporta elenco in una tabella del &amp;disegno</translation>
    </message>
    <message>
        <source>Saves the list to a text file</source>
        <translation>Salva l&apos;elenco in un file di testo</translation>
    </message>
    <message>
        <source>Export list to a &amp;file</source>
        <translation>Esporta elenco su &amp;file</translation>
    </message>
    <message>
        <source>Block Information</source>
        <translation>Informazioni sui blocchi</translation>
    </message>
    <message>
        <source>&amp;Include nested blocks</source>
        <translation>&amp;Includi blocchi nidificati</translation>
    </message>
    <message>
        <source>Name;Instances</source>
        <translation>Nome;Istanze</translation>
    </message>
    <message>
        <source>Resulting file</source>
        <translation>File risultante</translation>
    </message>
    <message>
        <source>Text files (*.txt)</source>
        <translation>File di testo (*.txt)</translation>
    </message>
</context>
<context>
    <name>Dlg_QT_ImportBlockAttributes</name>
    <message>
        <source>Import Block Attributes</source>
        <translation>Importa attributi di blocco</translation>
    </message>
    <message>
        <source>File</source>
        <translation>File</translation>
    </message>
    <message>
        <source>Opens an attribute text file</source>
        <translation>Apre un file di testo di attributi</translation>
    </message>
    <message>
        <source>&amp;Browse...</source>
        <translation>S&amp;foglia...</translation>
    </message>
    <message>
        <source>Find and replace</source>
        <translation>Trova e sostituisci</translation>
    </message>
    <message>
        <source>&amp;Find what:</source>
        <translation>&amp;Trova:</translation>
    </message>
    <message>
        <source>R&amp;eplace with:</source>
        <translation>Sostituisci &amp;con:</translation>
    </message>
    <message>
        <source>Replace coincidences with specified string</source>
        <translation>Sostituisce le corrispondenze con la stringa specificata</translation>
    </message>
    <message>
        <source>&amp;Replace</source>
        <translation>&amp;Sostituisci</translation>
    </message>
    <message>
        <source>&amp;Select all</source>
        <translation>Seleziona t&amp;utto</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annulla</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Aiuto</translation>
    </message>
    <message>
        <source>Select the file to import</source>
        <translation>Selezionare il file da importare</translation>
    </message>
    <message>
        <source>Attributes files (*.txt)</source>
        <translation>File di attributi (*.txt)</translation>
    </message>
    <message>
        <source>The table is too large.</source>
        <translation>La tabella è troppo grande.</translation>
    </message>
    <message>
        <source>Reading the attributes...</source>
        <translation>Lettura degli attributi...</translation>
    </message>
    <message>
        <source>Select items of table for search.</source>
        <translation>Selezionare elementi della tabella per la ricerca.</translation>
    </message>
    <message>
        <source>Select the rows of table for import.</source>
        <translation>Selezionare le righe della tabella da importare.</translation>
    </message>
    <message>
        <source>Collecting the rows...</source>
        <translation>Raccolta delle righe...</translation>
    </message>
    <message>
        <source>Sorting...</source>
        <translation>Ordinamento...</translation>
    </message>
</context>
<context>
    <name>Dlg_QT_ImportDimensionStyle</name>
    <message>
        <source>Import Dimension Style</source>
        <translation>Importa stile di quota</translation>
    </message>
    <message>
        <source>&amp;File to import:</source>
        <translation>&amp;File da importare:</translation>
    </message>
    <message>
        <source>&amp;Browse...</source>
        <translation>Sfo&amp;glia...</translation>
    </message>
    <message>
        <source>Browse for location of exported file</source>
        <translation>Cerca la posizione del file esportato</translation>
    </message>
    <message>
        <source>Available Dimension Styles</source>
        <translation>Stili di quota disponibili</translation>
    </message>
    <message>
        <source>Style variables</source>
        <translation>Variabili dello stile</translation>
    </message>
    <message>
        <source>Options</source>
        <translation>Opzioni</translation>
    </message>
    <message>
        <source>Overwrite existing TextStyle</source>
        <translation>Sovrascrivi stile di testo esistente</translation>
    </message>
    <message>
        <source>Overwrite existing DimensionStyle</source>
        <translation>Sovrascrivi stile di quota esistente</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annulla</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Aiuto</translation>
    </message>
    <message>
        <source>Select Dimension Style file</source>
        <translation>Seleziona file di stili di quota</translation>
    </message>
    <message>
        <source>DimStyle files (*.dim)</source>
        <translation>File di stili di quota (*.dim)</translation>
    </message>
    <message>
        <source>No dimension style selected, please select a dimension style to import. </source>
        <translation>Nessuno stile di quota selezionato. Selezionarne uno da importare. </translation>
    </message>
</context>
<context>
    <name>Dlg_QT_LispExplorer</name>
    <message>
        <source>Lisp Explorer</source>
        <translation>Esplora Lisp</translation>
    </message>
    <message>
        <source>Location</source>
        <translation>Posizione</translation>
    </message>
    <message>
        <source>&amp;Library</source>
        <translation>&amp;Libreria</translation>
    </message>
    <message>
        <source>L&amp;oaded</source>
        <translation>C&amp;aricate</translation>
    </message>
    <message>
        <source>&amp;Folder:</source>
        <translation>Car&amp;tella:</translation>
    </message>
    <message>
        <source>Browse a folder containing lisp files</source>
        <translation>Cerca una cartella che contenga file Lisp</translation>
    </message>
    <message>
        <source>&amp;Browse...</source>
        <translation>S&amp;foglia...</translation>
    </message>
    <message>
        <source>Files:</source>
        <translation>File:</translation>
    </message>
    <message>
        <source>Functions:</source>
        <translation>Funzioni:</translation>
    </message>
    <message>
        <source>Loads this function</source>
        <translation>Carica questa funzione</translation>
    </message>
    <message>
        <source>Lo&amp;ad</source>
        <translation>Ca&amp;rica</translation>
    </message>
    <message>
        <source>&amp;Display as:</source>
        <translation>&amp;Mostra come:</translation>
    </message>
    <message>
        <source>Filter the function content</source>
        <translation>Filtra il contenuto della funzione</translation>
    </message>
    <message>
        <source>&amp;Search:</source>
        <translation>C&amp;erca:</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>Cerca</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>Tipo</translation>
    </message>
    <message>
        <source>&amp;Commands</source>
        <translation>C&amp;omandi</translation>
    </message>
    <message>
        <source>&amp;Functions</source>
        <translation>Fu&amp;nzioni</translation>
    </message>
    <message>
        <source>&amp;Variables</source>
        <translation>&amp;Variabili</translation>
    </message>
    <message>
        <source>Saves commands, functions and variables in a text file.</source>
        <translation>Salva comandi, funzioni e variabili in un file di testo.</translation>
    </message>
    <message>
        <source>Export...</source>
        <translation>Esporta...</translation>
    </message>
    <message>
        <source>; %1 more lines</source>
        <translation>; altre %1 righe</translation>
    </message>
    <message>
        <source>Header Only;Function Only;Both</source>
        <translation>Solo intestazione;Solo funzione;Entrambe</translation>
    </message>
    <message>
        <source>Specify a folder for lisp files</source>
        <translation>Specifica una cartella per i file Lisp</translation>
    </message>
    <message>
        <source>Specify Folder</source>
        <translation>Specifica cartella</translation>
    </message>
    <message>
        <source>Error</source>
        <translation>Errore</translation>
    </message>
    <message>
        <source>No matches found for</source>
        <translation>Nessuna corrispondenza trovata per</translation>
    </message>
    <message>
        <source>The file has been loaded.</source>
        <translation>Il file è stato caricato.</translation>
    </message>
    <message>
        <source>LispExplorer</source>
        <translation>LispExplorer</translation>
    </message>
    <message>
        <source>Error loading database</source>
        <translation>Errore di caricamento del database</translation>
    </message>
    <message>
        <source>Name;Data type;Value</source>
        <translation>Nome;Tipo di dati;Valore</translation>
    </message>
    <message>
        <source>Name;Data type;Type</source>
        <translation>Nome;Tipo di dati;Tipo</translation>
    </message>
    <message>
        <source>Sorting...</source>
        <translation>Ordinamento...</translation>
    </message>
    <message>
        <source>Save dump file</source>
        <translation>Salva file di dump</translation>
    </message>
    <message>
        <source>Dump files (*.dmp)</source>
        <translation>File di dump (*.dmp)</translation>
    </message>
</context>
<context>
    <name>Dlg_QT_MakeLineStyle</name>
    <message>
        <source>Make LineStyle</source>
        <translation>Crea tipo di linea</translation>
    </message>
    <message>
        <source>File</source>
        <translation>File</translation>
    </message>
    <message>
        <source>Select the .LIN file where the new line style will be included</source>
        <translation>Selezionare il file .LIN in cui includere il nuovo tipo di linea</translation>
    </message>
    <message>
        <source>&amp;Browse...</source>
        <translation>S&amp;foglia...</translation>
    </message>
    <message>
        <source>Definition</source>
        <translation>Definizione</translation>
    </message>
    <message>
        <source>&amp;Name:</source>
        <translation>&amp;Nome:</translation>
    </message>
    <message>
        <source>&amp;Description:</source>
        <translation>&amp;Descrizione:</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annulla</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Aiuto</translation>
    </message>
    <message>
        <source>Name;Description</source>
        <translation>Nome;Descrizione</translation>
    </message>
    <message>
        <source>Specify Linestyle file</source>
        <translation>Specifica file di tipi di linea</translation>
    </message>
    <message>
        <source>Linestyle files (*.lin)</source>
        <translation>File di tipi di linea (*.lin)</translation>
    </message>
    <message>
        <source>The format of the file is not valid. </source>
        <translation>Il formato del file non è valido. </translation>
    </message>
    <message>
        <source>Invalid file format</source>
        <translation>Formato di file non valido</translation>
    </message>
    <message>
        <source>Make Linestyle</source>
        <translation>Crea tipo di linea</translation>
    </message>
    <message>
        <source>You must select a file. </source>
        <translation>Occorre selezionare un file. </translation>
    </message>
    <message>
        <source>You must provide a name for the Linestyle. </source>
        <translation>Occorre indicare un nome per il tipo di linea. </translation>
    </message>
    <message>
        <source>Linestyle names cannot include blank spaces.</source>
        <translation>I nomi dei tipi di linea non possono contenere spazi.</translation>
    </message>
    <message>
        <source>Linestyle already exists, you want to replace it?</source>
        <translation>Il tipo di linea esiste già. Sostituirlo?</translation>
    </message>
</context>
<context>
    <name>Dlg_QT_MakeShape</name>
    <message>
        <source>Make shape</source>
        <translation>Crea forma</translation>
    </message>
    <message>
        <source>File</source>
        <translation>File</translation>
    </message>
    <message>
        <source>Select the .SHP file where the new shape will be included</source>
        <translation>Selezionare il file .SHP in cui includere la nuova forma</translation>
    </message>
    <message>
        <source>&amp;Browse...</source>
        <translation>S&amp;foglia...</translation>
    </message>
    <message>
        <source>Definition</source>
        <translation>Definizione</translation>
    </message>
    <message>
        <source>&amp;Name:</source>
        <translation>&amp;Nome:</translation>
    </message>
    <message>
        <source>shapeName</source>
        <translation>nomeForma</translation>
    </message>
    <message>
        <source>&amp;Resolution value:</source>
        <translation>Valore di &amp;risoluzione:</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annulla</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Aiuto</translation>
    </message>
    <message>
        <source>Number;Name</source>
        <translation>Numero;Nome</translation>
    </message>
    <message>
        <source>Select shape file</source>
        <translation>Seleziona file di forme</translation>
    </message>
    <message>
        <source>Shape files (*.shp);; All files (*.*)</source>
        <translation>File di forme (*.shp);; Tutti i file (*.*)</translation>
    </message>
    <message>
        <source>Make Shape</source>
        <translation>Crea forma</translation>
    </message>
    <message>
        <source>You must select a file. </source>
        <translation>Occorre selezionare un file. </translation>
    </message>
    <message>
        <source>You must provide a name for the shape. </source>
        <translation>Occorre indicare un nome per la forma. </translation>
    </message>
    <message>
        <source>Shape names cannot include blank spaces.</source>
        <translation>I nomi delle forme non possono contenere spazi.</translation>
    </message>
    <message>
        <source>Shape already exists, you want to replace it?</source>
        <translation>La forma esiste già. Sostituirla?</translation>
    </message>
</context>
<context>
    <name>Dlg_QT_MergeSheets</name>
    <message>
        <source>Merge Sheets</source>
        <translation>Unisci fogli</translation>
    </message>
    <message>
        <source>Sheets to merge</source>
        <translation>Fogli da unire</translation>
    </message>
    <message>
        <source>Move the selected rows to the top (Alt+Home)</source>
        <translation>Sposta le righe selezionate all&apos;inizio (Alt+Home)</translation>
    </message>
    <message>
        <source>To &amp;top</source>
        <translation>All&apos;ini&amp;zio</translation>
    </message>
    <message>
        <source>Move the selected rows up by one place (Alt+Up)</source>
        <translation>Sposta le righe selezionate su di un posto (Alt+Su)</translation>
    </message>
    <message>
        <source>Move &amp;up</source>
        <translation>Sposta &amp;su</translation>
    </message>
    <message>
        <source>Move the selected rows down by one place (Alt+Down)</source>
        <translation>Sposta le righe selezionate giù di un posto (Alt+Giù)</translation>
    </message>
    <message>
        <source>Move &amp;down</source>
        <translation>Sposta &amp;giù</translation>
    </message>
    <message>
        <source>Move the selected rows to the bottom (Alt+End)</source>
        <translation>Sposta le righe selezionate alla fine (Alt+Fine)</translation>
    </message>
    <message>
        <source>To &amp;bottom</source>
        <translation>&amp;Alla fine</translation>
    </message>
    <message>
        <source>Select &amp;all</source>
        <translation>Seleziona &amp;tutto</translation>
    </message>
    <message>
        <source>Names in the target</source>
        <translation>Nomi nella destinazione</translation>
    </message>
    <message>
        <source>&amp;Prefix:</source>
        <translation>&amp;Prefisso:</translation>
    </message>
    <message>
        <source>Stands in front of the name of each sheet</source>
        <translation>Precede il nome di ogni foglio</translation>
    </message>
    <message>
        <source>Give sheets of the same name the names Plan, Plan (2), Plan (3)</source>
        <translation>Dà ai fogli dello stesso nome i nomi Plan, Plan (2), Plan (3)</translation>
    </message>
    <message>
        <source>Nu&amp;mber equal names</source>
        <translation>Nu&amp;mera nomi uguali</translation>
    </message>
    <message>
        <source>Target</source>
        <translation>Destinazione</translation>
    </message>
    <message>
        <source>&amp;Current drawing</source>
        <translation>Disegno &amp;corrente</translation>
    </message>
    <message>
        <source>Ne&amp;w drawing:</source>
        <translation>N&amp;uovo disegno:</translation>
    </message>
    <message>
        <source>Br&amp;owse...</source>
        <translation>S&amp;foglia...</translation>
    </message>
    <message>
        <source>Favorites</source>
        <translation>Preferiti</translation>
    </message>
    <message>
        <source>&amp;Name:</source>
        <translation>&amp;Nome:</translation>
    </message>
    <message>
        <source>Save favorite</source>
        <translation>Salva preferito</translation>
    </message>
    <message>
        <source>Remove favorite</source>
        <translation>Rimuovi preferito</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annulla</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Aiuto</translation>
    </message>
    <message>
        <source>A sheet must have a name.</source>
        <translation>Un foglio deve avere un nome.</translation>
    </message>
    <message>
        <source>A name has at most 255 characters.</source>
        <translation>Un nome ha al massimo 255 caratteri.</translation>
    </message>
    <message>
        <source>No sheet can have the name &quot;%1&quot;.</source>
        <translation>Nessun foglio può avere il nome &quot;%1&quot;.</translation>
    </message>
    <message>
        <source>Two sheets have the name &quot;%1&quot;.</source>
        <translation>Due fogli hanno il nome &quot;%1&quot;.</translation>
    </message>
    <message>
        <source>Sheet;New name</source>
        <translation>Foglio;Nuovo nome</translation>
    </message>
    <message>
        <source>A name cannot have any of &lt; &gt; / \ &quot; : ; ? * | , = `</source>
        <translation>Un nome non può contenere nessuno di &lt; &gt; / \ &quot; : ; ? * | , = `</translation>
    </message>
    <message>
        <source>%1 of %2 sheets are merged.</source>
        <translation>%1 di %2 fogli sono stati uniti.</translation>
    </message>
    <message>
        <source>Specify the target drawing</source>
        <translation>Specifica il disegno di destinazione</translation>
    </message>
    <message>
        <source>Drawing files (*.dwg *.dxf)</source>
        <translation>File di disegno (*.dwg *.dxf)</translation>
    </message>
    <message>
        <source>Select the sheets to merge.</source>
        <translation>Selezionare i fogli da unire.</translation>
    </message>
    <message>
        <source>The target cannot be the current drawing or one of its sheets.</source>
        <translation>La destinazione non può essere il disegno corrente né uno dei suoi fogli.</translation>
    </message>
</context>
<context>
    <name>Dlg_QT_MultiViewSetup</name>
    <message>
        <source>Multiview Setup</source>
        <translation>Imposta viste multiple</translation>
    </message>
    <message>
        <source>Work Space</source>
        <translation>Spazio di lavoro</translation>
    </message>
    <message>
        <source>&amp;Current Paper Space</source>
        <translation>Spazio carta &amp;corrente</translation>
    </message>
    <message>
        <source>&amp;Model Space</source>
        <translation>Spazio &amp;modello</translation>
    </message>
    <message>
        <source>&amp;Title Block</source>
        <translation>Car&amp;tiglio</translation>
    </message>
    <message>
        <source>C&amp;reate Viewports</source>
        <translation>C&amp;rea finestre</translation>
    </message>
    <message>
        <source>&amp;Align Viewports</source>
        <translation>&amp;Allinea finestre</translation>
    </message>
    <message>
        <source>&amp;Scale Viewports</source>
        <translation>&amp;Scala finestre</translation>
    </message>
    <message>
        <source>Block</source>
        <translation>Blocco</translation>
    </message>
    <message>
        <source>&amp;Browse...</source>
        <translation>S&amp;foglia...</translation>
    </message>
    <message>
        <source>Adds a block to list</source>
        <translation>Aggiunge un blocco all&apos;elenco</translation>
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
        <translation>&amp;Unità:</translation>
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
        <translation>&amp;Rimuovi entità dello stesso spazio carta:</translation>
    </message>
    <message>
        <source>I&amp;nsert as external reference</source>
        <translation>I&amp;nserisci come riferimento esterno</translation>
    </message>
    <message>
        <source>L&amp;imits</source>
        <translation>L&amp;imiti</translation>
    </message>
    <message>
        <source>&amp;Insert Title Block</source>
        <translation>&amp;Inserisci cartiglio</translation>
    </message>
    <message>
        <source>Inserts a tile block</source>
        <translation>Inserisce un cartiglio</translation>
    </message>
    <message>
        <source>Simp&amp;le</source>
        <translation>Singo&amp;la</translation>
    </message>
    <message>
        <source>A&amp;rray of Viewports</source>
        <translation>Se&amp;rie di finestre</translation>
    </message>
    <message>
        <source>Array:</source>
        <translation>Serie:</translation>
    </message>
    <message>
        <source>Number of &amp;rows:</source>
        <translation>Numero di ri&amp;ghe:</translation>
    </message>
    <message>
        <source>Number of &amp;columns:</source>
        <translation>Numero di c&amp;olonne:</translation>
    </message>
    <message>
        <source>&amp;Delete viewports</source>
        <translation>&amp;Elimina finestre</translation>
    </message>
    <message>
        <source>&amp;Create viewports</source>
        <translation>&amp;Crea finestre</translation>
    </message>
    <message>
        <source>Creates a viewport</source>
        <translation>Crea una finestra</translation>
    </message>
    <message>
        <source>Alignment format:</source>
        <translation>Tipo di allineamento:</translation>
    </message>
    <message>
        <source>&amp;Horizontal</source>
        <translation>Ori&amp;zzontale</translation>
    </message>
    <message>
        <source>&amp;Vertical</source>
        <translation>&amp;Verticale</translation>
    </message>
    <message>
        <source>&amp;Viewports alignment</source>
        <translation>Allineamento &amp;finestre</translation>
    </message>
    <message>
        <source>Modify viewports alignment</source>
        <translation>Modifica l&apos;allineamento delle finestre</translation>
    </message>
    <message>
        <source>Escalar viewports:</source>
        <translation>Scala finestre:</translation>
    </message>
    <message>
        <source>Scale of viewports:</source>
        <translation>Scala delle finestre:</translation>
    </message>
    <message>
        <source>&amp;Model</source>
        <translation>&amp;Modello</translation>
    </message>
    <message>
        <source>&amp;Paper</source>
        <translation>Carta (&amp;P)</translation>
    </message>
    <message>
        <source>Scale viewports</source>
        <translation>Scala finestre</translation>
    </message>
    <message>
        <source>Viewports scaling</source>
        <translation>Scala delle finestre</translation>
    </message>
    <message>
        <source>Units:</source>
        <translation>Unità:</translation>
    </message>
    <message>
        <source>&amp;Scientific</source>
        <translation>&amp;Scientifiche</translation>
    </message>
    <message>
        <source>&amp;Decimal</source>
        <translation>&amp;Decimali</translation>
    </message>
    <message>
        <source>&amp;Engineering</source>
        <translation>Ing&amp;egneria</translation>
    </message>
    <message>
        <source>&amp;Architectural</source>
        <translation>&amp;Architettura</translation>
    </message>
    <message>
        <source>Me&amp;tric</source>
        <translation>Me&amp;triche</translation>
    </message>
    <message>
        <source>Size:</source>
        <translation>Dimensione:</translation>
    </message>
    <message>
        <source>&amp;Width: </source>
        <translation>&amp;Larghezza: </translation>
    </message>
    <message>
        <source>&amp;Height:</source>
        <translation>Alte&amp;zza:</translation>
    </message>
    <message>
        <source>Scale:</source>
        <translation>Scala:</translation>
    </message>
    <message>
        <source>&amp;Scale Factor:</source>
        <translation>&amp;Fattore di scala:</translation>
    </message>
    <message>
        <source>&amp;Create Title Block</source>
        <translation>C&amp;rea cartiglio</translation>
    </message>
    <message>
        <source>Creates a tile block</source>
        <translation>Crea un cartiglio</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Chiudi</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Aiuto</translation>
    </message>
    <message>
        <source>Blocks</source>
        <translation>Blocchi</translation>
    </message>
    <message>
        <source>Scales;Factors</source>
        <translation>Scale;Fattori</translation>
    </message>
    <message>
        <source>Feet</source>
        <translation>Piedi</translation>
    </message>
    <message>
        <source>Inches</source>
        <translation>Pollici</translation>
    </message>
    <message>
        <source>Meters</source>
        <translation>Metri</translation>
    </message>
    <message>
        <source>Milimeters</source>
        <translation>Millimetri</translation>
    </message>
    <message>
        <source>Do not remove entities</source>
        <translation>Non rimuovere entità</translation>
    </message>
    <message>
        <source>Remove all entities</source>
        <translation>Rimuovi tutte le entità</translation>
    </message>
    <message>
        <source>Specify entities for remove</source>
        <translation>Specifica le entità da rimuovere</translation>
    </message>
    <message>
        <source>Do not remove viewports</source>
        <translation>Non rimuovere finestre</translation>
    </message>
    <message>
        <source>Remove all viewports</source>
        <translation>Rimuovi tutte le finestre</translation>
    </message>
    <message>
        <source>Specify viewports to remove</source>
        <translation>Specifica le finestre da rimuovere</translation>
    </message>
    <message>
        <source>Specify folder</source>
        <translation>Specifica cartella</translation>
    </message>
</context>
<context>
    <name>Dlg_QT_RedefinePaths</name>
    <message>
        <source>Redefine Paths</source>
        <translation>Ridefinisci percorsi</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>Tipo</translation>
    </message>
    <message>
        <source>&amp;External references</source>
        <translation>Riferimenti &amp;esterni</translation>
    </message>
    <message>
        <source>&amp;Images</source>
        <translation>&amp;Immagini</translation>
    </message>
    <message>
        <source>&amp;Styles</source>
        <translation>Sti&amp;li</translation>
    </message>
    <message>
        <source>&amp;Rtext</source>
        <translation>&amp;Rtext</translation>
    </message>
    <message>
        <source>&amp;Filter by:</source>
        <translation>Filtra &amp;per:</translation>
    </message>
    <message>
        <source>Select &amp;all</source>
        <translation>Seleziona &amp;tutto</translation>
    </message>
    <message>
        <source>Find and Replace</source>
        <translation>Trova e sostituisci</translation>
    </message>
    <message>
        <source>&amp;Find what:</source>
        <translation>&amp;Trova:</translation>
    </message>
    <message>
        <source>R&amp;eplace with:</source>
        <translation>Sostituisci &amp;con:</translation>
    </message>
    <message>
        <source>Replace coincidences with specified string</source>
        <translation>Sostituisce le corrispondenze con la stringa specificata</translation>
    </message>
    <message>
        <source>&amp;Replace</source>
        <translation>&amp;Sostituisci</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annulla</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Aiuto</translation>
    </message>
    <message>
        <source>Type;Name;Path</source>
        <translation>Tipo;Nome;Percorso</translation>
    </message>
    <message>
        <source>Xref</source>
        <translation>Xrif</translation>
    </message>
    <message>
        <source>Image</source>
        <translation>Immagine</translation>
    </message>
    <message>
        <source>TextStyle</source>
        <translation>Stile di testo</translation>
    </message>
    <message>
        <source>RemoteText</source>
        <translation>Testo remoto</translation>
    </message>
    <message>
        <source>Filtering...</source>
        <translation>Filtraggio...</translation>
    </message>
    <message>
        <source>Select the rows of table for search.</source>
        <translation>Selezionare le righe della tabella in cui cercare.</translation>
    </message>
    <message>
        <source>Sorting...</source>
        <translation>Ordinamento...</translation>
    </message>
</context>
<context>
    <name>Dlg_QT_RemoveFavorits</name>
    <message>
        <source>Delete favorites</source>
        <translation>Elimina preferiti</translation>
    </message>
    <message>
        <source>Delete favorite</source>
        <translation>Elimina preferito</translation>
    </message>
    <message>
        <source>&amp;Delete</source>
        <translation>&amp;Elimina</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annulla</translation>
    </message>
    <message>
        <source>Remove favorites</source>
        <translation>Rimuovi preferiti</translation>
    </message>
    <message>
        <source>Select items for remove.</source>
        <translation>Selezionare gli elementi da rimuovere.</translation>
    </message>
</context>
<context>
    <name>Dlg_QT_ReplaceBlock</name>
    <message>
        <source>Replace Block</source>
        <translation>Sostituisci blocco</translation>
    </message>
    <message>
        <source>Blocks to replace</source>
        <translation>Blocchi da sostituire</translation>
    </message>
    <message>
        <source>Specify blocks in the drawing</source>
        <translation>Specifica i blocchi nel disegno</translation>
    </message>
    <message>
        <source>&amp;Specify blocks</source>
        <translation>&amp;Specifica blocchi</translation>
    </message>
    <message>
        <source>Preview</source>
        <translation>Anteprima</translation>
    </message>
    <message>
        <source>Replacing block</source>
        <translation>Blocco sostitutivo</translation>
    </message>
    <message>
        <source>&amp;Clean unreferenced items</source>
        <translation>Elimina elementi non &amp;referenziati</translation>
    </message>
    <message>
        <source>&amp;Update BlockAttributes for block replacements</source>
        <translation>Aggiorna attrib&amp;uti dei blocchi sostituiti</translation>
    </message>
    <message>
        <source>Apply changes</source>
        <translation>Applica modifiche</translation>
    </message>
    <message>
        <source>&amp;Apply</source>
        <translation>&amp;Applica</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Chiudi</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Aiuto</translation>
    </message>
    <message>
        <source>&quot;Block to be replaced&quot; and &quot;Replacing block&quot; must be different.</source>
        <translation>Il &quot;blocco da sostituire&quot; e il &quot;blocco sostitutivo&quot; devono essere diversi.</translation>
    </message>
</context>
<context>
    <name>Dlg_QT_ReplaceBlockToXref</name>
    <message>
        <source>Replace Block by Reference</source>
        <translation>Sostituisci blocco con riferimento</translation>
    </message>
    <message>
        <source>Blocks to replace</source>
        <translation>Blocchi da sostituire</translation>
    </message>
    <message>
        <source>Specify blocks in the drawing</source>
        <translation>Specifica i blocchi nel disegno</translation>
    </message>
    <message>
        <source>&amp;Specify blocks</source>
        <translation>&amp;Specifica blocchi</translation>
    </message>
    <message>
        <source>Preview</source>
        <translation>Anteprima</translation>
    </message>
    <message>
        <source>Replacing reference</source>
        <translation>Riferimento sostitutivo</translation>
    </message>
    <message>
        <source>Browse the disk for the reference that will be used</source>
        <translation>Cerca sul disco il riferimento da usare</translation>
    </message>
    <message>
        <source>&amp;Browse...</source>
        <translation>S&amp;foglia...</translation>
    </message>
    <message>
        <source>&amp;Clean unreferenced items</source>
        <translation>Elimina elementi non &amp;referenziati</translation>
    </message>
    <message>
        <source>Apply changes</source>
        <translation>Applica modifiche</translation>
    </message>
    <message>
        <source>&amp;Apply</source>
        <translation>&amp;Applica</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Chiudi</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Aiuto</translation>
    </message>
    <message>
        <source>Replace blocks</source>
        <translation>Sostituisci blocchi</translation>
    </message>
    <message>
        <source>You must first select the replacing reference. </source>
        <translation>Selezionare prima il riferimento sostitutivo. </translation>
    </message>
</context>
<context>
    <name>Dlg_QT_ShowLinks</name>
    <message>
        <source>Show Links</source>
        <translation>Mostra collegamenti</translation>
    </message>
    <message>
        <source>Find and Replace</source>
        <translation>Trova e sostituisci</translation>
    </message>
    <message>
        <source>&amp;Find what:</source>
        <translation>&amp;Trova:</translation>
    </message>
    <message>
        <source>R&amp;eplace with:</source>
        <translation>Sostituisci &amp;con:</translation>
    </message>
    <message>
        <source>Replace coincidences with specified string</source>
        <translation>Sostituisce le corrispondenze con la stringa specificata</translation>
    </message>
    <message>
        <source>&amp;Replace</source>
        <translation>&amp;Sostituisci</translation>
    </message>
    <message>
        <source>Shows selected URL</source>
        <translation>Mostra l&apos;URL selezionato</translation>
    </message>
    <message>
        <source>&amp;Show URL</source>
        <translation>&amp;Mostra URL</translation>
    </message>
    <message>
        <source>Remove selected URL</source>
        <translation>Rimuove l&apos;URL selezionato</translation>
    </message>
    <message>
        <source>Remove &amp;URL</source>
        <translation>Rimuovi &amp;URL</translation>
    </message>
    <message>
        <source>Show the entity of selected  URL</source>
        <translation>Mostra l&apos;entità dell&apos;URL selezionato</translation>
    </message>
    <message>
        <source>S&amp;how Entity</source>
        <translation>Mostra &amp;entità</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Chiudi</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Aiuto</translation>
    </message>
    <message>
        <source>;URL Name;Entity Type;Space</source>
        <translation>;Nome URL;Tipo di entità;Spazio</translation>
    </message>
    <message>
        <source>Select one row of table for show.</source>
        <translation>Selezionare la riga della tabella da mostrare.</translation>
    </message>
    <message>
        <source>Unable to display the link.</source>
        <translation>Impossibile mostrare il collegamento.</translation>
    </message>
    <message>
        <source>Open this link?</source>
        <translation>Aprire questo collegamento?</translation>
    </message>
    <message>
        <source>It is a program, or starts one.</source>
        <translation>È un programma, o ne avvia uno.</translation>
    </message>
    <message>
        <source>Warning</source>
        <translation>Avviso</translation>
    </message>
    <message>
        <source>Select the rows of table for searching.</source>
        <translation>Selezionare le righe della tabella in cui cercare.</translation>
    </message>
    <message>
        <source>Replace text</source>
        <translation>Sostituisci testo</translation>
    </message>
    <message>
        <source>The are no items selected.</source>
        <translation>Nessun elemento selezionato.</translation>
    </message>
    <message>
        <source>Information</source>
        <translation>Informazioni</translation>
    </message>
    <message>
        <source>Remove urls for selected items?</source>
        <translation>Rimuovere gli URL degli elementi selezionati?</translation>
    </message>
    <message>
        <source>Sorting...</source>
        <translation>Ordinamento...</translation>
    </message>
</context>
<context>
    <name>Dlg_QT_TextFrame</name>
    <message>
        <source>Text Frame</source>
        <translation>Cornice di testo</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>Tipo</translation>
    </message>
    <message>
        <source>&amp;Slot</source>
        <translation>A&amp;sola</translation>
    </message>
    <message>
        <source>&amp;Rectangle</source>
        <translation>&amp;Rettangolo</translation>
    </message>
    <message>
        <source>&amp;Circle</source>
        <translation>C&amp;erchio</translation>
    </message>
    <message>
        <source>Dimensions</source>
        <translation>Dimensioni</translation>
    </message>
    <message>
        <source>Offset</source>
        <translation>Offset</translation>
    </message>
    <message>
        <source>C&amp;onstant</source>
        <translation>C&amp;ostante</translation>
    </message>
    <message>
        <source>&amp;Variable</source>
        <translation>&amp;Variabile</translation>
    </message>
    <message>
        <source>Maintain Constant </source>
        <translation>Mantieni costante </translation>
    </message>
    <message>
        <source>&amp;Width</source>
        <translation>&amp;Larghezza</translation>
    </message>
    <message>
        <source>&amp;Height</source>
        <translation>&amp;Altezza</translation>
    </message>
    <message>
        <source>&amp;Both</source>
        <translation>En&amp;trambe</translation>
    </message>
    <message>
        <source>Background</source>
        <translation>Sfondo</translation>
    </message>
    <message>
        <source>&amp;Transparent</source>
        <translation>Tras&amp;parente</translation>
    </message>
    <message>
        <source>H&amp;atch</source>
        <translation>Tratte&amp;ggio</translation>
    </message>
    <message>
        <source>&amp;Color:</source>
        <translation>&amp;Colore:</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annulla</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Aiuto</translation>
    </message>
</context>
<context>
    <name>Dlg_QT_TextMask</name>
    <message>
        <source>Text Mask</source>
        <translation>Maschera di testo</translation>
    </message>
    <message>
        <source>Dimensions</source>
        <translation>Dimensioni</translation>
    </message>
    <message>
        <source>Offset</source>
        <translation>Offset</translation>
    </message>
    <message>
        <source>Entity type</source>
        <translation>Tipo di entità</translation>
    </message>
    <message>
        <source>&amp;Mask</source>
        <translation>&amp;Maschera</translation>
    </message>
    <message>
        <source>3&amp;D Face</source>
        <translation>Faccia 3&amp;D</translation>
    </message>
    <message>
        <source>&amp;Solid</source>
        <translation>&amp;Solido</translation>
    </message>
    <message>
        <source>Background</source>
        <translation>Sfondo</translation>
    </message>
    <message>
        <source>&amp;Color:</source>
        <translation>&amp;Colore:</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annulla</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Aiuto</translation>
    </message>
    <message>
        <source>Wrong dimension value.</source>
        <translation>Valore di dimensione errato.</translation>
    </message>
    <message>
        <source>Must be positive or zero.</source>
        <translation>Deve essere positivo o zero.</translation>
    </message>
</context>
<context>
    <name>Dlg_QT_TrackTime</name>
    <message>
        <source>Track Time</source>
        <translation>Controllo del tempo</translation>
    </message>
    <message>
        <source>Folder</source>
        <translation>Cartella</translation>
    </message>
    <message>
        <source>Fo&amp;lder:</source>
        <translation>&amp;Cartella:</translation>
    </message>
    <message>
        <source>Selects the folder of the drawings</source>
        <translation>Seleziona la cartella dei disegni</translation>
    </message>
    <message>
        <source>&amp;Browse...</source>
        <translation>S&amp;foglia...</translation>
    </message>
    <message>
        <source>Reads the drawings again</source>
        <translation>Rilegge i disegni</translation>
    </message>
    <message>
        <source>Re&amp;fresh</source>
        <translation>Agg&amp;iorna</translation>
    </message>
    <message>
        <source>Include s&amp;ub-folders</source>
        <translation>Incl&amp;udi sottocartelle</translation>
    </message>
    <message>
        <source>Fa&amp;vorites:</source>
        <translation>&amp;Preferiti:</translation>
    </message>
    <message>
        <source>Save favorite</source>
        <translation>Salva preferito</translation>
    </message>
    <message>
        <source>&amp;Save</source>
        <translation>&amp;Salva</translation>
    </message>
    <message>
        <source>Remove favorite</source>
        <translation>Rimuovi preferito</translation>
    </message>
    <message>
        <source>Re&amp;move...</source>
        <translation>Ri&amp;muovi...</translation>
    </message>
    <message>
        <source>Drawings</source>
        <translation>Disegni</translation>
    </message>
    <message>
        <source>F&amp;ilter:</source>
        <translation>Fi&amp;ltro:</translation>
    </message>
    <message>
        <source>Shows only drawings with this in their name; regular expressions are allowed</source>
        <translation>Mostra solo i disegni con questo testo nel nome; sono ammesse espressioni regolari</translation>
    </message>
    <message>
        <source>Writes the table to a text file</source>
        <translation>Scrive la tabella in un file di testo</translation>
    </message>
    <message>
        <source>&amp;Export...</source>
        <translation>&amp;Esporta...</translation>
    </message>
    <message>
        <source>Selected drawings</source>
        <translation>Disegni selezionati</translation>
    </message>
    <message>
        <source>Counts the time that is worked on them</source>
        <translation>Conta il tempo di lavoro su di essi</translation>
    </message>
    <message>
        <source>&amp;Track</source>
        <translation>Con&amp;ta il tempo</translation>
    </message>
    <message>
        <source>Counts no more time</source>
        <translation>Non conta più il tempo</translation>
    </message>
    <message>
        <source>&amp;Do not track</source>
        <translation>&amp;Non contare</translation>
    </message>
    <message>
        <source>Idle limit (mi&amp;n):</source>
        <translation>Limite di inatti&amp;vità (min):</translation>
    </message>
    <message>
        <source>Longer pauses are not counted; with 0 every pause is</source>
        <translation>Le pause più lunghe non vengono contate; con 0 vengono contate tutte</translation>
    </message>
    <message>
        <source>Gives the selected drawings this idle limit</source>
        <translation>Dà ai disegni selezionati questo limite di inattività</translation>
    </message>
    <message>
        <source>&amp;Apply</source>
        <translation>&amp;Applica</translation>
    </message>
    <message>
        <source>Sets the editing time to 0</source>
        <translation>Azzera il tempo di modifica</translation>
    </message>
    <message>
        <source>&amp;Reset time...</source>
        <translation>Azze&amp;ra tempo...</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annulla</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Aiuto</translation>
    </message>
    <message>
        <source>Name;Track Active;EditTime (hr)</source>
        <translation>Nome;Attivo;Modifica (h)</translation>
    </message>
    <message>
        <source>The changes have not been written yet. Do you want to discard them?</source>
        <translation>Le modifiche non sono ancora state scritte. Scartarle?</translation>
    </message>
    <message>
        <source>Looking for drawings...</source>
        <translation>Ricerca dei disegni...</translation>
    </message>
    <message>
        <source>Reading the drawings...</source>
        <translation>Lettura dei disegni...</translation>
    </message>
    <message>
        <source>Not readable</source>
        <translation>Non leggibile</translation>
    </message>
    <message>
        <source>On</source>
        <translation>Sì</translation>
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
        <translation>Ogni pausa conta.</translation>
    </message>
    <message>
        <source>, open (bold): %1</source>
        <translation>, aperti (grassetto): %1</translation>
    </message>
    <message>
        <source>Total: %1 h. Drawings: %2%3</source>
        <translation>Totale: %1 h. Disegni: %2%3</translation>
    </message>
    <message>
        <source>Are you sure you want to set the editing time of the selected drawings to 0?</source>
        <translation>Azzerare il tempo di modifica dei disegni selezionati?</translation>
    </message>
    <message>
        <source>Export editing time</source>
        <translation>Esporta tempo di modifica</translation>
    </message>
    <message>
        <source>Text with tabs (*.txt);; Text with semicolons (*.csv);; All files (*.*)</source>
        <translation>Testo con tabulazioni (*.txt);; Testo con punti e virgola (*.csv);; Tutti i file (*.*)</translation>
    </message>
    <message>
        <source>The file could not be written: %1</source>
        <translation>Impossibile scrivere il file: %1</translation>
    </message>
    <message>
        <source>Writing the drawings...</source>
        <translation>Scrittura dei disegni...</translation>
    </message>
    <message>
        <source>and %1 more</source>
        <translation>e altri %1</translation>
    </message>
    <message>
        <source>Some drawings could not be changed.</source>
        <translation>Alcuni disegni non sono stati modificati.</translation>
    </message>
</context>
<context>
    <name>Dlg_QT_numbertext</name>
    <message>
        <source>Number Text</source>
        <translation>Numera testo</translation>
    </message>
    <message>
        <source>Sorting Method</source>
        <translation>Metodo di ordinamento</translation>
    </message>
    <message>
        <source>&amp;Position X</source>
        <translation>Posizione &amp;X</translation>
    </message>
    <message>
        <source>P&amp;osition Y</source>
        <translation>Posizione &amp;Y</translation>
    </message>
    <message>
        <source>&amp;Select order</source>
        <translation>Ordine di &amp;selezione</translation>
    </message>
    <message>
        <source>&amp;Relative to one point</source>
        <translation>&amp;Relativo a un punto</translation>
    </message>
    <message>
        <source>R&amp;elative to two points</source>
        <translation>Relativo a d&amp;ue punti</translation>
    </message>
    <message>
        <source>Sorting Direction</source>
        <translation>Direzione di ordinamento</translation>
    </message>
    <message>
        <source>&amp;Ascending</source>
        <translation>&amp;Crescente</translation>
    </message>
    <message>
        <source>Descendin&amp;g</source>
        <translation>&amp;Decrescente</translation>
    </message>
    <message>
        <source>Counter</source>
        <translation>Contatore</translation>
    </message>
    <message>
        <source>Initial &amp;value:</source>
        <translation>&amp;Valore iniziale:</translation>
    </message>
    <message>
        <source>&amp;Increment:</source>
        <translation>&amp;Incremento:</translation>
    </message>
    <message>
        <source>&amp;Digits:</source>
        <translation>Ci&amp;fre:</translation>
    </message>
    <message>
        <source>Text Format</source>
        <translation>Formato del testo</translation>
    </message>
    <message>
        <source>(Prefix)</source>
        <translation>(Prefisso)</translation>
    </message>
    <message>
        <source>(Suffix)</source>
        <translation>(Suffisso)</translation>
    </message>
    <message>
        <source>NUMBER</source>
        <translation>NUMERO</translation>
    </message>
    <message>
        <source>Text Placement</source>
        <translation>Posizione del testo</translation>
    </message>
    <message>
        <source>S&amp;uffix</source>
        <translation>Suffiss&amp;o</translation>
    </message>
    <message>
        <source>Repla&amp;ce</source>
        <translation>Sostit&amp;uisci</translation>
    </message>
    <message>
        <source>Pre&amp;fix</source>
        <translation>&amp;Prefisso</translation>
    </message>
    <message>
        <source>O&amp;verwrite</source>
        <translation>Sovr&amp;ascrivi</translation>
    </message>
    <message>
        <source>&amp;Find what:</source>
        <translation>&amp;Trova:</translation>
    </message>
    <message>
        <source>Replace with:</source>
        <translation>Sostituisci con:</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annulla</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Aiuto</translation>
    </message>
</context>
<context>
    <name>DrawingPreview</name>
    <message>
        <source>No preview</source>
        <translation>Nessuna anteprima</translation>
    </message>
</context>
<context>
    <name>LispExtension</name>
    <message>
        <source>The file is too large</source>
        <translation>Il file è troppo grande</translation>
    </message>
    <message>
        <source>. for none,.</source>
        <comment>Command Option: Upper- and Lowercase letters are relevant.</comment>
        <translation>. per nessuno,.</translation>
    </message>
    <message>
        <source>block %1</source>
        <translation>blocco %1</translation>
    </message>
    <message>
        <source>layer %1</source>
        <translation>layer %1</translation>
    </message>
    <message>
        <source>linetype %1</source>
        <translation>tipo di linea %1</translation>
    </message>
    <message>
        <source>text style %1</source>
        <translation>stile di testo %1</translation>
    </message>
    <message>
        <source>dimension style %1</source>
        <translation>stile di quota %1</translation>
    </message>
    <message>
        <source>Specify drawing file</source>
        <translation>Specifica file di disegno</translation>
    </message>
    <message>
        <source>Specify block</source>
        <translation>Specifica blocco</translation>
    </message>
    <message>
        <source>Specify state file</source>
        <translation>Specifica file di stato</translation>
    </message>
    <message>
        <source>
Settings saved to: </source>
        <translation>
Impostazioni salvate in: </translation>
    </message>
    <message>
        <source> successfully.</source>
        <translation> correttamente.</translation>
    </message>
    <message>
        <source>You must first select the blocks to replace. </source>
        <translation>Selezionare prima i blocchi da sostituire. </translation>
    </message>
    <message>
        <source>%1 could not be written: %2.</source>
        <translation>Impossibile scrivere %1: %2.</translation>
    </message>
    <message>
        <source>The document could not be printed.</source>
        <translation>Impossibile stampare il documento.</translation>
    </message>
    <message>
        <source>Drawing files (*.dwg)</source>
        <translation>File di disegno (*.dwg)</translation>
    </message>
    <message>
        <source>Drawing exchange files (*.dxf)</source>
        <translation>File di interscambio di disegni (*.dxf)</translation>
    </message>
    <message>
        <source>Specify a drawing</source>
        <translation>Specifica un disegno</translation>
    </message>
    <message>
        <source>Error: Xref contains circular reference</source>
        <translation>Errore: l&apos;Xrif contiene un riferimento circolare</translation>
    </message>
    <message>
        <source>Select folder</source>
        <translation>Seleziona cartella</translation>
    </message>
    <message>
        <source>Filename can`t be empty</source>
        <translation>Il nome del file non può essere vuoto</translation>
    </message>
    <message>
        <source>The following characters are not valid in File names: &lt;&gt;/\&quot;:;?*|,=&apos;</source>
        <translation>I seguenti caratteri non sono validi nei nomi di file: &lt;&gt;/\&quot;:;?*|,=&apos;</translation>
    </message>
    <message>
        <source>Drawing symbol &quot;%1&quot; already exists. Do you want to replace it?</source>
        <translation>Il simbolo di disegno &quot;%1&quot; esiste già. Sostituirlo?</translation>
    </message>
    <message>
        <source>Path can`t be empty</source>
        <translation>Il percorso non può essere vuoto</translation>
    </message>
    <message>
        <source>Cannot find the specified Path.</source>
        <translation>Impossibile trovare il percorso specificato.</translation>
    </message>
    <message>
        <source>Cannot find the specified file.</source>
        <translation>Impossibile trovare il file specificato.</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Nome</translation>
    </message>
    <message>
        <source>Replacing...</source>
        <translation>Sostituzione...</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annulla</translation>
    </message>
    <message>
        <source>%1: the drawing has no room for an editing time</source>
        <translation>%1: il disegno non ha posto per un tempo di modifica</translation>
    </message>
    <message>
        <source>%1: the drawing is not open any more</source>
        <translation>%1: il disegno non è più aperto</translation>
    </message>
    <message>
        <source>A tag or text of the file is too long.</source>
        <translation>Un&apos;etichetta o un testo del file è troppo lungo.</translation>
    </message>
    <message>
        <source>An element of the file has too many attributes.</source>
        <translation>Un elemento del file ha troppi attributi.</translation>
    </message>
    <message>
        <source>Enter to %1</source>
        <translation>INVIO per %1</translation>
    </message>
    <message>
        <source>Entities that this drawing cannot hold and that were left out: %1.</source>
        <translation>Entità che questo disegno non può contenere e che sono state omesse: %1.</translation>
    </message>
    <message>
        <source>Error reading alias file.</source>
        <translation>Errore di lettura del file degli alias.</translation>
    </message>
    <message>
        <source>Favorite &quot;%1&quot; already exists. Do you want to replace it?</source>
        <translation>Il preferito &quot;%1&quot; esiste già. Sostituirlo?</translation>
    </message>
    <message>
        <source>Favorite name is required.</source>
        <translation>Occorre un nome per il preferito.</translation>
    </message>
    <message>
        <source>Favorites</source>
        <translation>Preferiti</translation>
    </message>
    <message>
        <source>No file name</source>
        <translation>Nessun nome di file</translation>
    </message>
    <message>
        <source>Select object</source>
        <translation>Selezionare oggetto</translation>
    </message>
    <message>
        <source>Specify folder</source>
        <translation>Specifica cartella</translation>
    </message>
    <message>
        <source>Specify new path for Backup folder</source>
        <translation>Specifica un nuovo percorso per la cartella di backup</translation>
    </message>
    <message>
        <source>Specify option</source>
        <translation>Specificare opzione</translation>
    </message>
    <message>
        <source>Specify second point</source>
        <translation>Specificare secondo punto</translation>
    </message>
    <message>
        <source>The drawing has its own, which stays as it is: %1.</source>
        <translation>Il disegno ha il proprio, che resta com&apos;è: %1.</translation>
    </message>
    <message>
        <source>The entities of the file expand to too much text.</source>
        <translation>Le entità del file si espandono in troppo testo.</translation>
    </message>
    <message>
        <source>There are too many copies of it already.</source>
        <translation>Ne esistono già troppe copie.</translation>
    </message>
    <message>
        <source>There is no block &quot;%1&quot; in %2.</source>
        <translation>Non c&apos;è nessun blocco &quot;%1&quot; in %2.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is a invalid directory.</source>
        <translation>&quot;%1&quot; non è una cartella valida.</translation>
    </message>
    <message>
        <source>
%1 could not be moved.</source>
        <translation>
Impossibile spostare %1.</translation>
    </message>
    <message>
        <source>
Nothing is there.</source>
        <translation>
Lì non c&apos;è nulla.</translation>
    </message>
    <message>
        <source>
This %1 is not what is asked for.</source>
        <translation>
Questo oggetto (%1) non è quello richiesto.</translation>
    </message>
    <message>
        <source>
This is a %1; asked for is %2.</source>
        <translation>
Questo è %1; è richiesto %2.</translation>
    </message>
    <message>
        <source>line %1: %2</source>
        <translation>riga %1: %2</translation>
    </message>
</context>
<context>
    <name>StyleTables</name>
    <message>
        <source>Name</source>
        <translation>Nome</translation>
    </message>
    <message>
        <source>Variable;Value</source>
        <translation>Variabile;Valore</translation>
    </message>
</context>
</TS>
