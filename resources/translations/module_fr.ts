<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fr_FR" sourcelanguage="en">
<context>
    <name>BlockReplacementDialog</name>
    <message>
        <source>The block &quot;%1&quot; is taken for %2, as another block of the drawing is. Rename one of the two first.</source>
        <translation>Le bloc &quot;%1&quot; est pris pour %2, comme un autre bloc du dessin. Renommez d&apos;abord l&apos;un des deux.</translation>
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
        <translation>Format</translation>
    </message>
    <message>
        <source>Keep original T&amp;extStyle</source>
        <translation>Conserver le s&amp;tyle de texte d&apos;origine</translation>
    </message>
    <message>
        <source>Keep original &amp;LineColor</source>
        <translation>Conserver la &amp;couleur de ligne d&apos;origine</translation>
    </message>
    <message>
        <source>Keep original &amp;height</source>
        <translation>Conserver la &amp;hauteur d&apos;origine</translation>
    </message>
    <message>
        <source>Ordering</source>
        <translation>Ordre</translation>
    </message>
    <message>
        <source>&amp;Selection set</source>
        <translation>&amp;Jeu de sélection</translation>
    </message>
    <message>
        <source>&amp;Top-down</source>
        <translation>&amp;De haut en bas</translation>
    </message>
    <message>
        <source>&amp;Alphabetical</source>
        <translation>&amp;Alphabétique</translation>
    </message>
    <message>
        <source>&amp;Create word-wrap text</source>
        <translation>Créer un texte à retour à la &amp;ligne</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annuler</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Aide</translation>
    </message>
</context>
<context>
    <name>DLG_QT_PatternHatch</name>
    <message>
        <source>Pattern Hatch</source>
        <translation>Hachures à motif</translation>
    </message>
    <message>
        <source>Type </source>
        <translation>Type </translation>
    </message>
    <message>
        <source>&amp;Block</source>
        <translation>&amp;Bloc</translation>
    </message>
    <message>
        <source>&amp;Image</source>
        <translation>&amp;Image</translation>
    </message>
    <message>
        <source>&amp;External reference</source>
        <translation>Référence &amp;externe</translation>
    </message>
    <message>
        <source>&amp;Mask</source>
        <translation>&amp;Masque</translation>
    </message>
    <message>
        <source>&amp;Name:</source>
        <translation>&amp;Nom&#xa0;:</translation>
    </message>
    <message>
        <source>...</source>
        <translation>...</translation>
    </message>
    <message>
        <source>Favorites</source>
        <translation>Favoris</translation>
    </message>
    <message>
        <source>Save favorite</source>
        <translation>Enregistrer le favori</translation>
    </message>
    <message>
        <source>Remove favorite</source>
        <translation>Supprimer le favori</translation>
    </message>
    <message>
        <source>Pattern preview</source>
        <translation>Aperçu du motif</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Taille</translation>
    </message>
    <message>
        <source>&amp;Width and height as scale factor</source>
        <translation>Largeur et hauteur en &amp;facteurs d&apos;échelle</translation>
    </message>
    <message>
        <source>&amp;Lock aspect ratio</source>
        <translation>&amp;Verrouiller les proportions</translation>
    </message>
    <message>
        <source>Wid&amp;th:</source>
        <translation>&amp;Largeur&#xa0;:</translation>
    </message>
    <message>
        <source>Hei&amp;ght:</source>
        <translation>&amp;Hauteur&#xa0;:</translation>
    </message>
    <message>
        <source>Spacing</source>
        <translation>Espacement</translation>
    </message>
    <message>
        <source>Offset &amp;X:</source>
        <translation>Décalage &amp;X&#xa0;:</translation>
    </message>
    <message>
        <source>Offset &amp;Y:</source>
        <translation>Décalage &amp;Y&#xa0;:</translation>
    </message>
    <message>
        <source>Position</source>
        <translation>Position</translation>
    </message>
    <message>
        <source>Pattern &amp;origin:</source>
        <translation>&amp;Origine du motif&#xa0;:</translation>
    </message>
    <message>
        <source>X</source>
        <translation>X</translation>
    </message>
    <message>
        <source>Specify in graphics area</source>
        <translation>Spécifier dans la zone de dessin</translation>
    </message>
    <message>
        <source>Y</source>
        <translation>Y</translation>
    </message>
    <message>
        <source>Rotation &amp;angle:</source>
        <translation>An&amp;gle de rotation&#xa0;:</translation>
    </message>
    <message>
        <source>Extracts pattern, size, position and rotation from an entity in drawing</source>
        <translation>Reprend le motif, la taille, la position et la rotation d&apos;un objet du dessin</translation>
    </message>
    <message>
        <source>&amp;Extract from entity</source>
        <translation>Ex&amp;traire d&apos;un objet</translation>
    </message>
    <message>
        <source>Boundaries</source>
        <translation>Contours</translation>
    </message>
    <message>
        <source>Specify &amp;entities</source>
        <translation>Spécifiez les ob&amp;jets</translation>
    </message>
    <message>
        <source>&amp;Specify points</source>
        <translation>Spécifie&amp;z les points</translation>
    </message>
    <message>
        <source>&amp;Delete boundary entities</source>
        <translation>&amp;Supprimer les objets du contour</translation>
    </message>
    <message>
        <source>&amp;Highlight boundary entities</source>
        <translation>Mar&amp;quer les objets du contour</translation>
    </message>
    <message>
        <source>&amp;Extract from a hatch</source>
        <translation>Extraire d&apos;une hach&amp;ure</translation>
    </message>
    <message>
        <source>Type of entities</source>
        <translation>Type d&apos;objets</translation>
    </message>
    <message>
        <source>&amp;Anonymous block</source>
        <translation>Bloc &amp;anonyme</translation>
    </message>
    <message>
        <source>E&amp;ntity group</source>
        <translation>G&amp;roupe d&apos;objets</translation>
    </message>
    <message>
        <source>Limits</source>
        <translation>Limites</translation>
    </message>
    <message>
        <source>&amp;Cut entities</source>
        <translation>&amp;Couper les objets</translation>
    </message>
    <message>
        <source>&amp;Draw surpassing entities</source>
        <translation>&amp;Dessiner les objets qui dépassent</translation>
    </message>
    <message>
        <source>Tolerance for curves</source>
        <translation>Tolérance des courbes</translation>
    </message>
    <message>
        <source>Previews the result in the drawing</source>
        <translation>Montre le résultat à l&apos;avance dans le dessin</translation>
    </message>
    <message>
        <source>&amp;Preview</source>
        <translation>A&amp;perçu</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annuler</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Aide</translation>
    </message>
    <message>
        <source>A drawing of this version has neither images nor masks.</source>
        <translation>Un dessin de cette version n&apos;a ni images ni masques.</translation>
    </message>
    <message>
        <source>At the boundary copies of references are left out: they cannot be cut.</source>
        <translation>Sur le contour, les copies de références sont omises&#xa0;: elles ne peuvent pas être coupées.</translation>
    </message>
    <message>
        <source>At the boundary copies with anything but lines, arcs and polylines are left out.</source>
        <translation>Sur le contour, les copies contenant autre chose que des lignes, des arcs et des polylignes sont omises.</translation>
    </message>
    <message>
        <source>Copies of references are clipped at the boundary, not cut.</source>
        <translation>Les copies de références sont délimitées par le contour, non coupées.</translation>
    </message>
    <message>
        <source>Copies with texts, images or tilted entities are clipped, not cut.</source>
        <translation>Les copies contenant des textes, des images ou des objets inclinés sont délimitées, non coupées.</translation>
    </message>
    <message>
        <source>Select image for pattern</source>
        <translation>Sélectionner une image pour le motif</translation>
    </message>
    <message>
        <source>Specify Pattern </source>
        <translation>Spécifiez un motif </translation>
    </message>
    <message>
        <source>Scale must be higher than zero. </source>
        <translation>L&apos;échelle doit être supérieure à zéro. </translation>
    </message>
    <message>
        <source>The tolerance value is less than minimum. The value is reset to minimum (0.01). </source>
        <translation>La tolérance est inférieure au minimum. Elle est ramenée au minimum (0.01). </translation>
    </message>
    <message>
        <source>All supported Image file (*.bmp *.gif *.jpg *.jpeg *.png *.tif *.tiff *.ecw);;</source>
        <translation>Tous les fichiers image pris en charge (*.bmp *.gif *.jpg *.jpeg *.png *.tif *.tiff *.ecw);;</translation>
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
        <translation>Sélectionner un bloc</translation>
    </message>
    <message>
        <source>Blocks of</source>
        <translation>Blocs de</translation>
    </message>
    <message>
        <source>&amp;Active drawing</source>
        <translation>Dessin &amp;actif</translation>
    </message>
    <message>
        <source>&amp;Drawing file:</source>
        <translation>Fichier de &amp;dessin&#xa0;:</translation>
    </message>
    <message>
        <source>Drawing file that has the block</source>
        <translation>Fichier de dessin qui contient le bloc</translation>
    </message>
    <message>
        <source>Browse the disk for the drawing that has the block</source>
        <translation>Parcourt le disque à la recherche du dessin qui contient le bloc</translation>
    </message>
    <message>
        <source>&amp;Browse...</source>
        <translation>&amp;Parcourir...</translation>
    </message>
    <message>
        <source>&amp;Filter by:</source>
        <translation>&amp;Filtrer par&#xa0;:</translation>
    </message>
    <message>
        <source>Regular expression; blocks whose name contains it are listed</source>
        <translation>Expression régulière&#xa0;; les blocs dont le nom la contient sont listés</translation>
    </message>
    <message>
        <source>List the blocks that programs have made without a name of their own, such as *U12</source>
        <translation>Lister les blocs que des programmes ont créés sans nom propre, comme *U12</translation>
    </message>
    <message>
        <source>&amp;Show anonymous blocks</source>
        <translation>Afficher les &amp;blocs anonymes</translation>
    </message>
    <message>
        <source>Preview</source>
        <translation>Aperçu</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annuler</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Aide</translation>
    </message>
    <message>
        <source>Name;Type</source>
        <translation>Nom;Type</translation>
    </message>
    <message>
        <source>External reference</source>
        <translation>Référence externe</translation>
    </message>
    <message>
        <source>Drawing files (*.dwg *.dxf)</source>
        <translation>Fichiers de dessin (*.dwg *.dxf)</translation>
    </message>
    <message>
        <source>Block</source>
        <translation>Bloc</translation>
    </message>
    <message>
        <source>Anonymous block</source>
        <translation>Bloc anonyme</translation>
    </message>
    <message>
        <source>Cannot find the specified file.</source>
        <translation>Le fichier spécifié est introuvable.</translation>
    </message>
    <message>
        <source>The drawing file cannot be read.</source>
        <translation>Le fichier de dessin ne peut pas être lu.</translation>
    </message>
    <message>
        <source>Blocks: %1</source>
        <translation>Blocs&#xa0;: %1</translation>
    </message>
    <message>
        <source>Blocks: %1 of %2</source>
        <translation>Blocs&#xa0;: %1 sur %2</translation>
    </message>
    <message>
        <source>The drawing has no blocks.</source>
        <translation>Le dessin n&apos;a pas de blocs.</translation>
    </message>
    <message>
        <source>You must first select a block.</source>
        <translation>Vous devez d&apos;abord sélectionner un bloc.</translation>
    </message>
    <message>
        <source>The name of the block holds characters that no program can take. Rename it first.</source>
        <translation>Le nom du bloc contient des caractères qu&apos;aucun programme n&apos;accepte. Renommez-le d&apos;abord.</translation>
    </message>
    <message>
        <source>The block &quot;%1&quot; is an external reference of the other drawing. Attach its drawing instead.</source>
        <translation>Le bloc &quot;%1&quot; est une référence externe de l&apos;autre dessin. Attachez plutôt le dessin qu&apos;il désigne.</translation>
    </message>
    <message>
        <source>The block &quot;%1&quot; is anonymous: it cannot be brought in from another drawing.</source>
        <translation>Le bloc &quot;%1&quot; est anonyme&#xa0;: il ne peut pas être repris d&apos;un autre dessin.</translation>
    </message>
    <message>
        <source>The drawing file does not have the block &quot;%1&quot; any more.</source>
        <translation>Le fichier de dessin ne contient plus le bloc &quot;%1&quot;.</translation>
    </message>
</context>
<context>
    <name>Dlg_QT_Breakline</name>
    <message>
        <source>Breakline</source>
        <translation>Ligne de rupture</translation>
    </message>
    <message>
        <source>Specify a drawing for breakline</source>
        <translation>Spécifier un dessin pour la ligne de rupture</translation>
    </message>
    <message>
        <source>&amp;Browse...</source>
        <translation>&amp;Parcourir...</translation>
    </message>
    <message>
        <source>Preview</source>
        <translation>Aperçu</translation>
    </message>
    <message>
        <source>Sizes</source>
        <translation>Dimensions</translation>
    </message>
    <message>
        <source>Si&amp;ze:</source>
        <translation>&amp;Taille&#xa0;:</translation>
    </message>
    <message>
        <source>O&amp;ffset:</source>
        <translation>&amp;Décalage&#xa0;:</translation>
    </message>
    <message>
        <source>New symbol</source>
        <translation>Nouveau symbole</translation>
    </message>
    <message>
        <source>&amp;Name:</source>
        <translation>&amp;Nom&#xa0;:</translation>
    </message>
    <message>
        <source>Specify entities to use as breakline</source>
        <translation>Spécifier les objets servant de ligne de rupture</translation>
    </message>
    <message>
        <source>&amp;Specify entity to use as breakline</source>
        <translation>&amp;Spécifier l&apos;objet servant de ligne de rupture</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annuler</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Aide</translation>
    </message>
    <message>
        <source>Drawing files (*.dwg *.dxf)</source>
        <translation>Fichiers de dessin (*.dwg *.dxf)</translation>
    </message>
    <message>
        <source>Cannot find the specified drawing file.</source>
        <translation>Le fichier de dessin spécifié est introuvable.</translation>
    </message>
</context>
<context>
    <name>Dlg_QT_DrawOderColor</name>
    <message>
        <source>Draw Order by Color</source>
        <translation>Ordre de tracé par couleur</translation>
    </message>
    <message>
        <source>Back: drawn first</source>
        <translation>Arrière&#xa0;: dessiné en premier</translation>
    </message>
    <message>
        <source>Front: drawn last, over all others</source>
        <translation>Avant&#xa0;: dessiné en dernier, par-dessus tout le reste</translation>
    </message>
    <message>
        <source>Draw the selected colors before all others (Alt+Home)</source>
        <translation>Dessiner les couleurs sélectionnées avant toutes les autres (Alt+Début)</translation>
    </message>
    <message>
        <source>To &amp;back</source>
        <translation>À l&apos;a&amp;rrière</translation>
    </message>
    <message>
        <source>Move the selected rows up by one place (Alt+Up)</source>
        <translation>Monter les lignes sélectionnées d&apos;un rang (Alt+Haut)</translation>
    </message>
    <message>
        <source>Move &amp;up</source>
        <translation>Vers le &amp;haut</translation>
    </message>
    <message>
        <source>Move the selected rows down by one place (Alt+Down)</source>
        <translation>Descendre les lignes sélectionnées d&apos;un rang (Alt+Bas)</translation>
    </message>
    <message>
        <source>Move &amp;down</source>
        <translation>Vers le &amp;bas</translation>
    </message>
    <message>
        <source>Draw the selected colors after all others (Alt+End)</source>
        <translation>Dessiner les couleurs sélectionnées après toutes les autres (Alt+Fin)</translation>
    </message>
    <message>
        <source>To &amp;front</source>
        <translation>À l&apos;a&amp;vant</translation>
    </message>
    <message>
        <source>Turn the order around</source>
        <translation>Inverser l&apos;ordre</translation>
    </message>
    <message>
        <source>R&amp;everse</source>
        <translation>&amp;Inverser</translation>
    </message>
    <message>
        <source>Order the colors by their numbers</source>
        <translation>Ranger les couleurs selon leur numéro</translation>
    </message>
    <message>
        <source>&amp;Sort by number</source>
        <translation>&amp;Trier par numéro</translation>
    </message>
    <message>
        <source>Take the selected colors off the list (Del)</source>
        <translation>Retirer de la liste les couleurs sélectionnées (Suppr)</translation>
    </message>
    <message>
        <source>&amp;Remove</source>
        <translation>&amp;Enlever</translation>
    </message>
    <message>
        <source>&amp;Color:</source>
        <translation>&amp;Couleur&#xa0;:</translation>
    </message>
    <message>
        <source>Add this color at the front</source>
        <translation>Ajouter cette couleur à l&apos;avant</translation>
    </message>
    <message>
        <source>&amp;Add</source>
        <translation>&amp;Ajouter</translation>
    </message>
    <message>
        <source>Favorites</source>
        <translation>Favoris</translation>
    </message>
    <message>
        <source>&amp;Name:</source>
        <translation>&amp;Nom&#xa0;:</translation>
    </message>
    <message>
        <source>Save favorite</source>
        <translation>Enregistrer le favori</translation>
    </message>
    <message>
        <source>Remove favorite</source>
        <translation>Supprimer le favori</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annuler</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Aide</translation>
    </message>
    <message>
        <source>%1 (no color)</source>
        <translation>%1 (aucune couleur)</translation>
    </message>
    <message>
        <source>Color</source>
        <translation>Couleur</translation>
    </message>
</context>
<context>
    <name>Dlg_QT_EditAlias</name>
    <message>
        <source>Edit Alias</source>
        <translation>Modifier les alias</translation>
    </message>
    <message>
        <source>Current alias:</source>
        <translation>Alias actuels&#xa0;:</translation>
    </message>
    <message>
        <source>Create new alias</source>
        <translation>Créer un nouvel alias</translation>
    </message>
    <message>
        <source>Remove alias</source>
        <translation>Supprimer l&apos;alias</translation>
    </message>
    <message>
        <source>Clean alias list</source>
        <translation>Vider la liste des alias</translation>
    </message>
    <message>
        <source>Save alias</source>
        <translation>Enregistrer les alias</translation>
    </message>
    <message>
        <source>Import alias from file</source>
        <translation>Importer des alias d&apos;un fichier</translation>
    </message>
    <message>
        <source>Export alias to file</source>
        <translation>Exporter les alias vers un fichier</translation>
    </message>
    <message>
        <source>Print alias</source>
        <translation>Imprimer les alias</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annuler</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Aide</translation>
    </message>
    <message>
        <source>Command;Alias</source>
        <translation>Commande;Alias</translation>
    </message>
    <message>
        <source>The alias file could not be read whole (%1). Keep it as it is under another name, and write what the table holds in its place?</source>
        <translation>Le fichier d&apos;alias n&apos;a pas pu être lu en entier (%1). Faut-il le garder tel quel sous un autre nom et écrire à sa place le contenu du tableau&#xa0;?</translation>
    </message>
    <message>
        <source>What %1 held before is in %2.</source>
        <translation>L&apos;ancien contenu de %1 se trouve dans %2.</translation>
    </message>
    <message>
        <source>Select the rows of table for remove.</source>
        <translation>Sélectionnez les lignes du tableau à supprimer.</translation>
    </message>
    <message>
        <source>Are you sure you want to remove this alias for %1?</source>
        <translation>Voulez-vous vraiment supprimer cet alias de %1&#xa0;?</translation>
    </message>
    <message>
        <source>Are you sure you want to delete all alias?</source>
        <translation>Voulez-vous vraiment supprimer tous les alias&#xa0;?</translation>
    </message>
    <message>
        <source>The alias file has been saved.</source>
        <translation>Le fichier d&apos;alias a été enregistré.</translation>
    </message>
    <message>
        <source>The alias file could not be saved.</source>
        <translation>Le fichier d&apos;alias n&apos;a pas pu être enregistré.</translation>
    </message>
    <message>
        <source>Save As</source>
        <translation>Enregistrer sous</translation>
    </message>
    <message>
        <source>Alias files (*.xml);; All files (*.*)</source>
        <translation>Fichiers d&apos;alias (*.xml);; Tous les fichiers (*.*)</translation>
    </message>
    <message>
        <source>The alias file has been exported.</source>
        <translation>Le fichier d&apos;alias a été exporté.</translation>
    </message>
    <message>
        <source>The alias file could not be exported.</source>
        <translation>Le fichier d&apos;alias n&apos;a pas pu être exporté.</translation>
    </message>
    <message>
        <source>Select the file to import</source>
        <translation>Sélectionner le fichier à importer</translation>
    </message>
    <message>
        <source>Alias files (*.txt);; All files (*.*)</source>
        <translation>Fichiers d&apos;alias (*.txt);; Tous les fichiers (*.*)</translation>
    </message>
    <message>
        <source>The alias file could not be imported.</source>
        <translation>Le fichier d&apos;alias n&apos;a pas pu être importé.</translation>
    </message>
    <message>
        <source>This alias already begin used for other command.</source>
        <translation>Cet alias est déjà utilisé pour une autre commande.</translation>
    </message>
    <message>
        <source>Sorting...</source>
        <translation>Tri en cours...</translation>
    </message>
</context>
<context>
    <name>Dlg_QT_EditTextCase</name>
    <message>
        <source>EditTextCase</source>
        <translation>Modifier la casse du texte</translation>
    </message>
    <message>
        <source>Text:</source>
        <translation>Texte&#xa0;:</translation>
    </message>
    <message>
        <source>This is a sample text for kora</source>
        <translation>Ceci est un exemple de texte pour Kora</translation>
    </message>
    <message>
        <source>Style</source>
        <translation>Style</translation>
    </message>
    <message>
        <source>&amp;Sentence case</source>
        <translation>Majuscule en début de &amp;phrase</translation>
    </message>
    <message>
        <source>&amp;Lowercase</source>
        <translation>&amp;Minuscules</translation>
    </message>
    <message>
        <source>&amp;Uppercase</source>
        <translation>Majusc&amp;ules</translation>
    </message>
    <message>
        <source>&amp;Title</source>
        <translation>Majuscule à chaque m&amp;ot</translation>
    </message>
    <message>
        <source>T&amp;oggle case</source>
        <translation>&amp;Inverser la casse</translation>
    </message>
    <message>
        <source>Preview</source>
        <translation>Aperçu</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annuler</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Aide</translation>
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
        <translation>Exporter des styles de cote</translation>
    </message>
    <message>
        <source>Available DimensionStyles</source>
        <translation>Styles de cote disponibles</translation>
    </message>
    <message>
        <source>Style Variables</source>
        <translation>Variables du style</translation>
    </message>
    <message>
        <source>Options</source>
        <translation>Options</translation>
    </message>
    <message>
        <source>&amp;TextStyle name only</source>
        <translation>&amp;Nom du style de texte seulement</translation>
    </message>
    <message>
        <source>&amp;Full TextStyle information</source>
        <translation>Style de texte &amp;complet</translation>
    </message>
    <message>
        <source>&amp;Export...</source>
        <translation>&amp;Exporter...</translation>
    </message>
    <message>
        <source>Export to file</source>
        <translation>Exporter vers un fichier</translation>
    </message>
    <message>
        <source>Select Dimension Style file</source>
        <translation>Sélectionner un fichier de styles de cote</translation>
    </message>
    <message>
        <source>DimStyle files (*.dim)</source>
        <translation>Fichiers de styles de cote (*.dim)</translation>
    </message>
    <message>
        <source>No dimension style selected, please select a dimension style to export. </source>
        <translation>Aucun style de cote sélectionné. Sélectionnez un style de cote à exporter. </translation>
    </message>
    <message>
        <source>Exchange Dimension Style</source>
        <translation>Échanger des styles de cote</translation>
    </message>
    <message>
        <source>%1 already exists. Do you want to replace it?</source>
        <translation>%1 existe déjà. Voulez-vous le remplacer&#xa0;?</translation>
    </message>
</context>
<context>
    <name>Dlg_QT_ExportInfo</name>
    <message>
        <source>Export Settings</source>
        <translation>Exporter les paramètres</translation>
    </message>
    <message>
        <source>User information</source>
        <translation>Informations sur l&apos;utilisateur</translation>
    </message>
    <message>
        <source>&amp;Name:</source>
        <translation>&amp;Nom&#xa0;:</translation>
    </message>
    <message>
        <source>&amp;E-mail address: </source>
        <translation>Adresse &amp;e-mail&#xa0;: </translation>
    </message>
    <message>
        <source>&amp;Phone number: </source>
        <translation>&amp;Téléphone&#xa0;: </translation>
    </message>
    <message>
        <source>&amp;Issue description: </source>
        <translation>&amp;Description du problème&#xa0;: </translation>
    </message>
    <message>
        <source>Steps to Reproduce the Issue</source>
        <translation>Étapes pour reproduire le problème</translation>
    </message>
    <message>
        <source>System information</source>
        <translation>Informations sur le système</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annuler</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Aide</translation>
    </message>
    <message>
        <source>Export information</source>
        <translation>Exporter les informations</translation>
    </message>
    <message>
        <source>Text files (*.txt)</source>
        <translation>Fichiers texte (*.txt)</translation>
    </message>
</context>
<context>
    <name>Dlg_QT_ExportSettings</name>
    <message>
        <source>Export Settings</source>
        <translation>Exporter les paramètres</translation>
    </message>
    <message>
        <source>&amp;Variable type:</source>
        <translation>&amp;Type de variable&#xa0;:</translation>
    </message>
    <message>
        <source>Select a system variable</source>
        <translation>Sélectionnez une variable système</translation>
    </message>
    <message>
        <source>Save modified settings</source>
        <translation>Enregistrer les paramètres modifiés</translation>
    </message>
    <message>
        <source>&amp;Export to script...</source>
        <translation>&amp;Exporter vers un script...</translation>
    </message>
    <message>
        <source>All,Read only,Dangerous,Standard</source>
        <translation>Toutes,Lecture seule,Dangereuses,Standard</translation>
    </message>
    <message>
        <source>VariableToScript</source>
        <translation>Variable vers script</translation>
    </message>
    <message>
        <source>ExportVariables</source>
        <translation>Exporter les variables</translation>
    </message>
    <message>
        <source>Append to script...</source>
        <translation>Ajouter au script...</translation>
    </message>
    <message>
        <source>Export to script...</source>
        <translation>Exporter vers un script...</translation>
    </message>
    <message>
        <source>Append settings to an existing file</source>
        <translation>Ajouter les paramètres à un fichier existant</translation>
    </message>
    <message>
        <source>Save script file</source>
        <translation>Enregistrer le fichier de script</translation>
    </message>
    <message>
        <source>Append to script file</source>
        <translation>Ajouter au fichier de script</translation>
    </message>
    <message>
        <source>Script files (*.scr)</source>
        <translation>Fichiers de script (*.scr)</translation>
    </message>
</context>
<context>
    <name>Dlg_QT_GetBlockInfo</name>
    <message>
        <source>Get Block Info</source>
        <translation>Informations sur les blocs</translation>
    </message>
    <message>
        <source>Creates a table in the drawing with the block information</source>
        <translation>Crée dans le dessin un tableau avec les informations sur les blocs</translation>
    </message>
    <message>
        <source>Export list to a table in &amp;drawing</source>
        <translation>Exporter la liste en &amp;tableau dans le dessin</translation>
    </message>
    <message>
        <source>Saves the list to a text file</source>
        <translation>Enregistre la liste dans un fichier texte</translation>
    </message>
    <message>
        <source>Export list to a &amp;file</source>
        <translation>Exporter la liste vers un &amp;fichier</translation>
    </message>
    <message>
        <source>Block Information</source>
        <translation>Informations sur les blocs</translation>
    </message>
    <message>
        <source>&amp;Include nested blocks</source>
        <translation>&amp;Inclure les blocs imbriqués</translation>
    </message>
    <message>
        <source>Name;Instances</source>
        <translation>Nom;Occurrences</translation>
    </message>
    <message>
        <source>Resulting file</source>
        <translation>Fichier de résultat</translation>
    </message>
    <message>
        <source>Text files (*.txt)</source>
        <translation>Fichiers texte (*.txt)</translation>
    </message>
</context>
<context>
    <name>Dlg_QT_ImportBlockAttributes</name>
    <message>
        <source>Import Block Attributes</source>
        <translation>Importer des attributs de blocs</translation>
    </message>
    <message>
        <source>File</source>
        <translation>Fichier</translation>
    </message>
    <message>
        <source>Opens an attribute text file</source>
        <translation>Ouvre un fichier texte d&apos;attributs</translation>
    </message>
    <message>
        <source>&amp;Browse...</source>
        <translation>&amp;Parcourir...</translation>
    </message>
    <message>
        <source>Find and replace</source>
        <translation>Rechercher et remplacer</translation>
    </message>
    <message>
        <source>&amp;Find what:</source>
        <translation>&amp;Rechercher&#xa0;:</translation>
    </message>
    <message>
        <source>R&amp;eplace with:</source>
        <translation>Re&amp;mplacer par&#xa0;:</translation>
    </message>
    <message>
        <source>Replace coincidences with specified string</source>
        <translation>Remplacer les occurrences par la chaîne indiquée</translation>
    </message>
    <message>
        <source>&amp;Replace</source>
        <translation>Rempl&amp;acer</translation>
    </message>
    <message>
        <source>&amp;Select all</source>
        <translation>&amp;Tout sélectionner</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annuler</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Aide</translation>
    </message>
    <message>
        <source>Select the file to import</source>
        <translation>Sélectionner le fichier à importer</translation>
    </message>
    <message>
        <source>Attributes files (*.txt)</source>
        <translation>Fichiers d&apos;attributs (*.txt)</translation>
    </message>
    <message>
        <source>The table is too large.</source>
        <translation>Le tableau est trop grand.</translation>
    </message>
    <message>
        <source>Reading the attributes...</source>
        <translation>Lecture des attributs...</translation>
    </message>
    <message>
        <source>Select items of table for search.</source>
        <translation>Sélectionnez les cellules du tableau où chercher.</translation>
    </message>
    <message>
        <source>Select the rows of table for import.</source>
        <translation>Sélectionnez les lignes du tableau à importer.</translation>
    </message>
    <message>
        <source>Collecting the rows...</source>
        <translation>Collecte des lignes...</translation>
    </message>
    <message>
        <source>Sorting...</source>
        <translation>Tri en cours...</translation>
    </message>
</context>
<context>
    <name>Dlg_QT_ImportDimensionStyle</name>
    <message>
        <source>Import Dimension Style</source>
        <translation>Importer des styles de cote</translation>
    </message>
    <message>
        <source>&amp;File to import:</source>
        <translation>&amp;Fichier à importer&#xa0;:</translation>
    </message>
    <message>
        <source>&amp;Browse...</source>
        <translation>&amp;Parcourir...</translation>
    </message>
    <message>
        <source>Browse for location of exported file</source>
        <translation>Rechercher l&apos;emplacement du fichier exporté</translation>
    </message>
    <message>
        <source>Available Dimension Styles</source>
        <translation>Styles de cote disponibles</translation>
    </message>
    <message>
        <source>Style variables</source>
        <translation>Variables du style</translation>
    </message>
    <message>
        <source>Options</source>
        <translation>Options</translation>
    </message>
    <message>
        <source>Overwrite existing TextStyle</source>
        <translation>Remplacer le style de texte existant</translation>
    </message>
    <message>
        <source>Overwrite existing DimensionStyle</source>
        <translation>Remplacer le style de cote existant</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annuler</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Aide</translation>
    </message>
    <message>
        <source>Select Dimension Style file</source>
        <translation>Sélectionner un fichier de styles de cote</translation>
    </message>
    <message>
        <source>DimStyle files (*.dim)</source>
        <translation>Fichiers de styles de cote (*.dim)</translation>
    </message>
    <message>
        <source>No dimension style selected, please select a dimension style to import. </source>
        <translation>Aucun style de cote sélectionné. Sélectionnez un style de cote à importer. </translation>
    </message>
</context>
<context>
    <name>Dlg_QT_LispExplorer</name>
    <message>
        <source>Lisp Explorer</source>
        <translation>Explorateur Lisp</translation>
    </message>
    <message>
        <source>Location</source>
        <translation>Emplacement</translation>
    </message>
    <message>
        <source>&amp;Library</source>
        <translation>&amp;Bibliothèque</translation>
    </message>
    <message>
        <source>L&amp;oaded</source>
        <translation>&amp;Chargés</translation>
    </message>
    <message>
        <source>&amp;Folder:</source>
        <translation>&amp;Dossier&#xa0;:</translation>
    </message>
    <message>
        <source>Browse a folder containing lisp files</source>
        <translation>Rechercher un dossier contenant des fichiers Lisp</translation>
    </message>
    <message>
        <source>&amp;Browse...</source>
        <translation>&amp;Parcourir...</translation>
    </message>
    <message>
        <source>Files:</source>
        <translation>Fichiers&#xa0;:</translation>
    </message>
    <message>
        <source>Functions:</source>
        <translation>Fonctions&#xa0;:</translation>
    </message>
    <message>
        <source>Loads this function</source>
        <translation>Charge cette fonction</translation>
    </message>
    <message>
        <source>Lo&amp;ad</source>
        <translation>C&amp;harger</translation>
    </message>
    <message>
        <source>&amp;Display as:</source>
        <translation>&amp;Afficher&#xa0;:</translation>
    </message>
    <message>
        <source>Filter the function content</source>
        <translation>Filtrer le contenu des fonctions</translation>
    </message>
    <message>
        <source>&amp;Search:</source>
        <translation>&amp;Rechercher&#xa0;:</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>Rechercher</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>Type</translation>
    </message>
    <message>
        <source>&amp;Commands</source>
        <translation>C&amp;ommandes</translation>
    </message>
    <message>
        <source>&amp;Functions</source>
        <translation>&amp;Fonctions</translation>
    </message>
    <message>
        <source>&amp;Variables</source>
        <translation>&amp;Variables</translation>
    </message>
    <message>
        <source>Saves commands, functions and variables in a text file.</source>
        <translation>Enregistre les commandes, les fonctions et les variables dans un fichier texte.</translation>
    </message>
    <message>
        <source>Export...</source>
        <translation>Exporter...</translation>
    </message>
    <message>
        <source>; %1 more lines</source>
        <translation>; %1 lignes de plus</translation>
    </message>
    <message>
        <source>Header Only;Function Only;Both</source>
        <translation>En-tête seul;Fonction seule;Les deux</translation>
    </message>
    <message>
        <source>Specify a folder for lisp files</source>
        <translation>Spécifier un dossier de fichiers Lisp</translation>
    </message>
    <message>
        <source>Specify Folder</source>
        <translation>Spécifier un dossier</translation>
    </message>
    <message>
        <source>Error</source>
        <translation>Erreur</translation>
    </message>
    <message>
        <source>No matches found for</source>
        <translation>Aucune occurrence de</translation>
    </message>
    <message>
        <source>The file has been loaded.</source>
        <translation>Le fichier a été chargé.</translation>
    </message>
    <message>
        <source>LispExplorer</source>
        <translation>Explorateur Lisp</translation>
    </message>
    <message>
        <source>Error loading database</source>
        <translation>Erreur de chargement de la base de données</translation>
    </message>
    <message>
        <source>Name;Data type;Value</source>
        <translation>Nom;Type de données;Valeur</translation>
    </message>
    <message>
        <source>Name;Data type;Type</source>
        <translation>Nom;Type de données;Type</translation>
    </message>
    <message>
        <source>Sorting...</source>
        <translation>Tri en cours...</translation>
    </message>
    <message>
        <source>Save dump file</source>
        <translation>Enregistrer le fichier de vidage</translation>
    </message>
    <message>
        <source>Dump files (*.dmp)</source>
        <translation>Fichiers de vidage (*.dmp)</translation>
    </message>
</context>
<context>
    <name>Dlg_QT_MakeLineStyle</name>
    <message>
        <source>Make LineStyle</source>
        <translation>Créer un type de ligne</translation>
    </message>
    <message>
        <source>File</source>
        <translation>Fichier</translation>
    </message>
    <message>
        <source>Select the .LIN file where the new line style will be included</source>
        <translation>Sélectionner le fichier .LIN qui recevra le nouveau type de ligne</translation>
    </message>
    <message>
        <source>&amp;Browse...</source>
        <translation>&amp;Parcourir...</translation>
    </message>
    <message>
        <source>Definition</source>
        <translation>Définition</translation>
    </message>
    <message>
        <source>&amp;Name:</source>
        <translation>&amp;Nom&#xa0;:</translation>
    </message>
    <message>
        <source>&amp;Description:</source>
        <translation>&amp;Description&#xa0;:</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annuler</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Aide</translation>
    </message>
    <message>
        <source>Name;Description</source>
        <translation>Nom;Description</translation>
    </message>
    <message>
        <source>Specify Linestyle file</source>
        <translation>Spécifier un fichier de types de ligne</translation>
    </message>
    <message>
        <source>Linestyle files (*.lin)</source>
        <translation>Fichiers de types de ligne (*.lin)</translation>
    </message>
    <message>
        <source>The format of the file is not valid. </source>
        <translation>Le format du fichier n&apos;est pas valide. </translation>
    </message>
    <message>
        <source>Invalid file format</source>
        <translation>Format de fichier non valide</translation>
    </message>
    <message>
        <source>Make Linestyle</source>
        <translation>Créer un type de ligne</translation>
    </message>
    <message>
        <source>You must select a file. </source>
        <translation>Vous devez sélectionner un fichier. </translation>
    </message>
    <message>
        <source>You must provide a name for the Linestyle. </source>
        <translation>Vous devez donner un nom au type de ligne. </translation>
    </message>
    <message>
        <source>Linestyle names cannot include blank spaces.</source>
        <translation>Les noms de types de ligne ne peuvent pas contenir d&apos;espaces.</translation>
    </message>
    <message>
        <source>Linestyle already exists, you want to replace it?</source>
        <translation>Ce type de ligne existe déjà. Voulez-vous le remplacer&#xa0;?</translation>
    </message>
</context>
<context>
    <name>Dlg_QT_MakeShape</name>
    <message>
        <source>Make shape</source>
        <translation>Créer une forme</translation>
    </message>
    <message>
        <source>File</source>
        <translation>Fichier</translation>
    </message>
    <message>
        <source>Select the .SHP file where the new shape will be included</source>
        <translation>Sélectionner le fichier .SHP qui recevra la nouvelle forme</translation>
    </message>
    <message>
        <source>&amp;Browse...</source>
        <translation>&amp;Parcourir...</translation>
    </message>
    <message>
        <source>Definition</source>
        <translation>Définition</translation>
    </message>
    <message>
        <source>&amp;Name:</source>
        <translation>&amp;Nom&#xa0;:</translation>
    </message>
    <message>
        <source>shapeName</source>
        <translation>nomDeForme</translation>
    </message>
    <message>
        <source>&amp;Resolution value:</source>
        <translation>&amp;Résolution&#xa0;:</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annuler</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Aide</translation>
    </message>
    <message>
        <source>Number;Name</source>
        <translation>Numéro;Nom</translation>
    </message>
    <message>
        <source>Select shape file</source>
        <translation>Sélectionner un fichier de formes</translation>
    </message>
    <message>
        <source>Shape files (*.shp);; All files (*.*)</source>
        <translation>Fichiers de formes (*.shp);; Tous les fichiers (*.*)</translation>
    </message>
    <message>
        <source>Make Shape</source>
        <translation>Créer une forme</translation>
    </message>
    <message>
        <source>You must select a file. </source>
        <translation>Vous devez sélectionner un fichier. </translation>
    </message>
    <message>
        <source>You must provide a name for the shape. </source>
        <translation>Vous devez donner un nom à la forme. </translation>
    </message>
    <message>
        <source>Shape names cannot include blank spaces.</source>
        <translation>Les noms de formes ne peuvent pas contenir d&apos;espaces.</translation>
    </message>
    <message>
        <source>Shape already exists, you want to replace it?</source>
        <translation>Cette forme existe déjà. Voulez-vous la remplacer&#xa0;?</translation>
    </message>
</context>
<context>
    <name>Dlg_QT_MergeSheets</name>
    <message>
        <source>Merge Sheets</source>
        <translation>Fusionner des feuilles</translation>
    </message>
    <message>
        <source>Sheets to merge</source>
        <translation>Feuilles à fusionner</translation>
    </message>
    <message>
        <source>Move the selected rows to the top (Alt+Home)</source>
        <translation>Placer les lignes sélectionnées au début (Alt+Début)</translation>
    </message>
    <message>
        <source>To &amp;top</source>
        <translation>Au &amp;début</translation>
    </message>
    <message>
        <source>Move the selected rows up by one place (Alt+Up)</source>
        <translation>Monter les lignes sélectionnées d&apos;un rang (Alt+Haut)</translation>
    </message>
    <message>
        <source>Move &amp;up</source>
        <translation>Vers le &amp;haut</translation>
    </message>
    <message>
        <source>Move the selected rows down by one place (Alt+Down)</source>
        <translation>Descendre les lignes sélectionnées d&apos;un rang (Alt+Bas)</translation>
    </message>
    <message>
        <source>Move &amp;down</source>
        <translation>Vers le &amp;bas</translation>
    </message>
    <message>
        <source>Move the selected rows to the bottom (Alt+End)</source>
        <translation>Placer les lignes sélectionnées à la fin (Alt+Fin)</translation>
    </message>
    <message>
        <source>To &amp;bottom</source>
        <translation>À la &amp;fin</translation>
    </message>
    <message>
        <source>Select &amp;all</source>
        <translation>&amp;Tout sélectionner</translation>
    </message>
    <message>
        <source>Names in the target</source>
        <translation>Noms dans la cible</translation>
    </message>
    <message>
        <source>&amp;Prefix:</source>
        <translation>&amp;Préfixe&#xa0;:</translation>
    </message>
    <message>
        <source>Stands in front of the name of each sheet</source>
        <translation>Se place devant le nom de chaque feuille</translation>
    </message>
    <message>
        <source>Give sheets of the same name the names Plan, Plan (2), Plan (3)</source>
        <translation>Donner aux feuilles de même nom les noms Plan, Plan (2), Plan (3)</translation>
    </message>
    <message>
        <source>Nu&amp;mber equal names</source>
        <translation>Nu&amp;méroter les noms identiques</translation>
    </message>
    <message>
        <source>Target</source>
        <translation>Cible</translation>
    </message>
    <message>
        <source>&amp;Current drawing</source>
        <translation>Dessin &amp;courant</translation>
    </message>
    <message>
        <source>Ne&amp;w drawing:</source>
        <translation>Nou&amp;veau dessin&#xa0;:</translation>
    </message>
    <message>
        <source>Br&amp;owse...</source>
        <translation>Pa&amp;rcourir...</translation>
    </message>
    <message>
        <source>Favorites</source>
        <translation>Favoris</translation>
    </message>
    <message>
        <source>&amp;Name:</source>
        <translation>&amp;Nom&#xa0;:</translation>
    </message>
    <message>
        <source>Save favorite</source>
        <translation>Enregistrer le favori</translation>
    </message>
    <message>
        <source>Remove favorite</source>
        <translation>Supprimer le favori</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annuler</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Aide</translation>
    </message>
    <message>
        <source>A sheet must have a name.</source>
        <translation>Une feuille doit avoir un nom.</translation>
    </message>
    <message>
        <source>A name has at most 255 characters.</source>
        <translation>Un nom a au plus 255 caractères.</translation>
    </message>
    <message>
        <source>No sheet can have the name &quot;%1&quot;.</source>
        <translation>Aucune feuille ne peut porter le nom &quot;%1&quot;.</translation>
    </message>
    <message>
        <source>Two sheets have the name &quot;%1&quot;.</source>
        <translation>Deux feuilles portent le nom &quot;%1&quot;.</translation>
    </message>
    <message>
        <source>Sheet;New name</source>
        <translation>Feuille;Nouveau nom</translation>
    </message>
    <message>
        <source>A name cannot have any of &lt; &gt; / \ &quot; : ; ? * | , = `</source>
        <translation>Un nom ne peut contenir aucun de ces caractères : &lt; &gt; / \ &quot; : ; ? * | , = `</translation>
    </message>
    <message>
        <source>%1 of %2 sheets are merged.</source>
        <translation>%1 feuilles sur %2 seront fusionnées.</translation>
    </message>
    <message>
        <source>Specify the target drawing</source>
        <translation>Spécifier le dessin cible</translation>
    </message>
    <message>
        <source>Drawing files (*.dwg *.dxf)</source>
        <translation>Fichiers de dessin (*.dwg *.dxf)</translation>
    </message>
    <message>
        <source>Select the sheets to merge.</source>
        <translation>Sélectionnez les feuilles à fusionner.</translation>
    </message>
    <message>
        <source>The target cannot be the current drawing or one of its sheets.</source>
        <translation>La cible ne peut être ni le dessin courant ni l&apos;une de ses feuilles.</translation>
    </message>
</context>
<context>
    <name>Dlg_QT_MultiViewSetup</name>
    <message>
        <source>Multiview Setup</source>
        <translation>Configuration des fenêtres</translation>
    </message>
    <message>
        <source>Work Space</source>
        <translation>Espace de travail</translation>
    </message>
    <message>
        <source>&amp;Current Paper Space</source>
        <translation>E&amp;space papier courant</translation>
    </message>
    <message>
        <source>&amp;Model Space</source>
        <translation>Espace &amp;objet</translation>
    </message>
    <message>
        <source>&amp;Title Block</source>
        <translation>&amp;Cartouche</translation>
    </message>
    <message>
        <source>C&amp;reate Viewports</source>
        <translation>Créer &amp;fenêtres</translation>
    </message>
    <message>
        <source>&amp;Align Viewports</source>
        <translation>&amp;Aligner fenêtres</translation>
    </message>
    <message>
        <source>&amp;Scale Viewports</source>
        <translation>Échelle fenê&amp;tres</translation>
    </message>
    <message>
        <source>Block</source>
        <translation>Bloc</translation>
    </message>
    <message>
        <source>&amp;Browse...</source>
        <translation>&amp;Parcourir...</translation>
    </message>
    <message>
        <source>Adds a block to list</source>
        <translation>Ajoute un bloc à la liste</translation>
    </message>
    <message>
        <source>X:</source>
        <translation>X&#xa0;:</translation>
    </message>
    <message>
        <source>Y:</source>
        <translation>Y&#xa0;:</translation>
    </message>
    <message>
        <source>&amp;Units:</source>
        <translation>&amp;Unités&#xa0;:</translation>
    </message>
    <message>
        <source>&amp;Layer:</source>
        <translation>Cal&amp;que&#xa0;:</translation>
    </message>
    <message>
        <source>Layer</source>
        <translation>Calque</translation>
    </message>
    <message>
        <source>&amp;Remove entities in same paper space:</source>
        <translation>Supp&amp;rimer les objets de l&apos;espace papier&#xa0;:</translation>
    </message>
    <message>
        <source>I&amp;nsert as external reference</source>
        <translation>Insérer en référe&amp;nce externe</translation>
    </message>
    <message>
        <source>L&amp;imits</source>
        <translation>L&amp;imites</translation>
    </message>
    <message>
        <source>&amp;Insert Title Block</source>
        <translation>Insérer &amp;le cartouche</translation>
    </message>
    <message>
        <source>Inserts a tile block</source>
        <translation>Insère un cartouche</translation>
    </message>
    <message>
        <source>Simp&amp;le</source>
        <translation>Si&amp;mple</translation>
    </message>
    <message>
        <source>A&amp;rray of Viewports</source>
        <translation>Rés&amp;eau de fenêtres</translation>
    </message>
    <message>
        <source>Array:</source>
        <translation>Réseau&#xa0;:</translation>
    </message>
    <message>
        <source>Number of &amp;rows:</source>
        <translation>Nombre de &amp;rangées&#xa0;:</translation>
    </message>
    <message>
        <source>Number of &amp;columns:</source>
        <translation>Nombre de colo&amp;nnes&#xa0;:</translation>
    </message>
    <message>
        <source>&amp;Delete viewports</source>
        <translation>Supprimer &amp;des fenêtres</translation>
    </message>
    <message>
        <source>&amp;Create viewports</source>
        <translation>Créer &amp;les fenêtres</translation>
    </message>
    <message>
        <source>Creates a viewport</source>
        <translation>Crée une fenêtre</translation>
    </message>
    <message>
        <source>Alignment format:</source>
        <translation>Alignement&#xa0;:</translation>
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
        <translation>Ali&amp;gner les fenêtres</translation>
    </message>
    <message>
        <source>Modify viewports alignment</source>
        <translation>Modifie l&apos;alignement des fenêtres</translation>
    </message>
    <message>
        <source>Escalar viewports:</source>
        <translation>Mise à l&apos;échelle des fenêtres&#xa0;:</translation>
    </message>
    <message>
        <source>Scale of viewports:</source>
        <translation>Échelle des fenêtres&#xa0;:</translation>
    </message>
    <message>
        <source>&amp;Model</source>
        <translation>O&amp;bjet</translation>
    </message>
    <message>
        <source>&amp;Paper</source>
        <translation>Papi&amp;er</translation>
    </message>
    <message>
        <source>Scale viewports</source>
        <translation>Mettre les fenêtres à l&apos;échelle</translation>
    </message>
    <message>
        <source>Viewports scaling</source>
        <translation>Mise à l&apos;échelle des fenêtres</translation>
    </message>
    <message>
        <source>Units:</source>
        <translation>Unités&#xa0;:</translation>
    </message>
    <message>
        <source>&amp;Scientific</source>
        <translation>Sc&amp;ientifique</translation>
    </message>
    <message>
        <source>&amp;Decimal</source>
        <translation>&amp;Décimal</translation>
    </message>
    <message>
        <source>&amp;Engineering</source>
        <translation>I&amp;ngénierie</translation>
    </message>
    <message>
        <source>&amp;Architectural</source>
        <translation>A&amp;rchitecture</translation>
    </message>
    <message>
        <source>Me&amp;tric</source>
        <translation>&amp;Métrique</translation>
    </message>
    <message>
        <source>Size:</source>
        <translation>Taille&#xa0;:</translation>
    </message>
    <message>
        <source>&amp;Width: </source>
        <translation>&amp;Largeur&#xa0;: </translation>
    </message>
    <message>
        <source>&amp;Height:</source>
        <translation>&amp;Hauteur&#xa0;:</translation>
    </message>
    <message>
        <source>Scale:</source>
        <translation>Échelle&#xa0;:</translation>
    </message>
    <message>
        <source>&amp;Scale Factor:</source>
        <translation>&amp;Facteur d&apos;échelle&#xa0;:</translation>
    </message>
    <message>
        <source>&amp;Create Title Block</source>
        <translation>&amp;Créer le cartouche</translation>
    </message>
    <message>
        <source>Creates a tile block</source>
        <translation>Crée un cartouche</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Fermer</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Aide</translation>
    </message>
    <message>
        <source>Blocks</source>
        <translation>Blocs</translation>
    </message>
    <message>
        <source>Scales;Factors</source>
        <translation>Échelles;Facteurs</translation>
    </message>
    <message>
        <source>Feet</source>
        <translation>Pieds</translation>
    </message>
    <message>
        <source>Inches</source>
        <translation>Pouces</translation>
    </message>
    <message>
        <source>Meters</source>
        <translation>Mètres</translation>
    </message>
    <message>
        <source>Milimeters</source>
        <translation>Millimètres</translation>
    </message>
    <message>
        <source>Do not remove entities</source>
        <translation>Ne supprimer aucun objet</translation>
    </message>
    <message>
        <source>Remove all entities</source>
        <translation>Supprimer tous les objets</translation>
    </message>
    <message>
        <source>Specify entities for remove</source>
        <translation>Spécifier les objets à supprimer</translation>
    </message>
    <message>
        <source>Do not remove viewports</source>
        <translation>Ne supprimer aucune fenêtre</translation>
    </message>
    <message>
        <source>Remove all viewports</source>
        <translation>Supprimer toutes les fenêtres</translation>
    </message>
    <message>
        <source>Specify viewports to remove</source>
        <translation>Spécifier les fenêtres à supprimer</translation>
    </message>
    <message>
        <source>Specify folder</source>
        <translation>Spécifier un dossier</translation>
    </message>
</context>
<context>
    <name>Dlg_QT_RedefinePaths</name>
    <message>
        <source>Redefine Paths</source>
        <translation>Redéfinir les chemins</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>Type</translation>
    </message>
    <message>
        <source>&amp;External references</source>
        <translation>Références e&amp;xternes</translation>
    </message>
    <message>
        <source>&amp;Images</source>
        <translation>&amp;Images</translation>
    </message>
    <message>
        <source>&amp;Styles</source>
        <translation>&amp;Styles</translation>
    </message>
    <message>
        <source>&amp;Rtext</source>
        <translation>RT&amp;ext</translation>
    </message>
    <message>
        <source>&amp;Filter by:</source>
        <translation>&amp;Filtrer par&#xa0;:</translation>
    </message>
    <message>
        <source>Select &amp;all</source>
        <translation>&amp;Tout sélectionner</translation>
    </message>
    <message>
        <source>Find and Replace</source>
        <translation>Rechercher et remplacer</translation>
    </message>
    <message>
        <source>&amp;Find what:</source>
        <translation>&amp;Rechercher&#xa0;:</translation>
    </message>
    <message>
        <source>R&amp;eplace with:</source>
        <translation>Re&amp;mplacer par&#xa0;:</translation>
    </message>
    <message>
        <source>Replace coincidences with specified string</source>
        <translation>Remplacer les occurrences par la chaîne indiquée</translation>
    </message>
    <message>
        <source>&amp;Replace</source>
        <translation>Rempl&amp;acer</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annuler</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Aide</translation>
    </message>
    <message>
        <source>Type;Name;Path</source>
        <translation>Type;Nom;Chemin</translation>
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
        <translation>Filtrage en cours...</translation>
    </message>
    <message>
        <source>Select the rows of table for search.</source>
        <translation>Sélectionnez les lignes du tableau où chercher.</translation>
    </message>
    <message>
        <source>Sorting...</source>
        <translation>Tri en cours...</translation>
    </message>
</context>
<context>
    <name>Dlg_QT_RemoveFavorits</name>
    <message>
        <source>Delete favorites</source>
        <translation>Supprimer des favoris</translation>
    </message>
    <message>
        <source>Delete favorite</source>
        <translation>Supprimer le favori</translation>
    </message>
    <message>
        <source>&amp;Delete</source>
        <translation>&amp;Supprimer</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annuler</translation>
    </message>
    <message>
        <source>Remove favorites</source>
        <translation>Supprimer des favoris</translation>
    </message>
    <message>
        <source>Select items for remove.</source>
        <translation>Sélectionnez les éléments à supprimer.</translation>
    </message>
</context>
<context>
    <name>Dlg_QT_ReplaceBlock</name>
    <message>
        <source>Replace Block</source>
        <translation>Remplacer un bloc</translation>
    </message>
    <message>
        <source>Blocks to replace</source>
        <translation>Blocs à remplacer</translation>
    </message>
    <message>
        <source>Specify blocks in the drawing</source>
        <translation>Spécifier des blocs dans le dessin</translation>
    </message>
    <message>
        <source>&amp;Specify blocks</source>
        <translation>&amp;Spécifier les blocs</translation>
    </message>
    <message>
        <source>Preview</source>
        <translation>Aperçu</translation>
    </message>
    <message>
        <source>Replacing block</source>
        <translation>Bloc de remplacement</translation>
    </message>
    <message>
        <source>&amp;Clean unreferenced items</source>
        <translation>P&amp;urger les éléments non référencés</translation>
    </message>
    <message>
        <source>&amp;Update BlockAttributes for block replacements</source>
        <translation>Mettre à jour les a&amp;ttributs des blocs remplacés</translation>
    </message>
    <message>
        <source>Apply changes</source>
        <translation>Appliquer les modifications</translation>
    </message>
    <message>
        <source>&amp;Apply</source>
        <translation>&amp;Appliquer</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Fermer</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Aide</translation>
    </message>
    <message>
        <source>&quot;Block to be replaced&quot; and &quot;Replacing block&quot; must be different.</source>
        <translation>Le bloc à remplacer et le bloc de remplacement doivent être différents.</translation>
    </message>
</context>
<context>
    <name>Dlg_QT_ReplaceBlockToXref</name>
    <message>
        <source>Replace Block by Reference</source>
        <translation>Remplacer un bloc par une référence</translation>
    </message>
    <message>
        <source>Blocks to replace</source>
        <translation>Blocs à remplacer</translation>
    </message>
    <message>
        <source>Specify blocks in the drawing</source>
        <translation>Spécifier des blocs dans le dessin</translation>
    </message>
    <message>
        <source>&amp;Specify blocks</source>
        <translation>&amp;Spécifier les blocs</translation>
    </message>
    <message>
        <source>Preview</source>
        <translation>Aperçu</translation>
    </message>
    <message>
        <source>Replacing reference</source>
        <translation>Référence de remplacement</translation>
    </message>
    <message>
        <source>Browse the disk for the reference that will be used</source>
        <translation>Parcourt le disque à la recherche de la référence à utiliser</translation>
    </message>
    <message>
        <source>&amp;Browse...</source>
        <translation>&amp;Parcourir...</translation>
    </message>
    <message>
        <source>&amp;Clean unreferenced items</source>
        <translation>P&amp;urger les éléments non référencés</translation>
    </message>
    <message>
        <source>Apply changes</source>
        <translation>Appliquer les modifications</translation>
    </message>
    <message>
        <source>&amp;Apply</source>
        <translation>&amp;Appliquer</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Fermer</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Aide</translation>
    </message>
    <message>
        <source>Replace blocks</source>
        <translation>Remplacer les blocs</translation>
    </message>
    <message>
        <source>You must first select the replacing reference. </source>
        <translation>Vous devez d&apos;abord sélectionner la référence de remplacement. </translation>
    </message>
</context>
<context>
    <name>Dlg_QT_ShowLinks</name>
    <message>
        <source>Show Links</source>
        <translation>Afficher les liens</translation>
    </message>
    <message>
        <source>Find and Replace</source>
        <translation>Rechercher et remplacer</translation>
    </message>
    <message>
        <source>&amp;Find what:</source>
        <translation>&amp;Rechercher&#xa0;:</translation>
    </message>
    <message>
        <source>R&amp;eplace with:</source>
        <translation>Re&amp;mplacer par&#xa0;:</translation>
    </message>
    <message>
        <source>Replace coincidences with specified string</source>
        <translation>Remplacer les occurrences par la chaîne indiquée</translation>
    </message>
    <message>
        <source>&amp;Replace</source>
        <translation>Rempl&amp;acer</translation>
    </message>
    <message>
        <source>Shows selected URL</source>
        <translation>Affiche l&apos;URL sélectionnée</translation>
    </message>
    <message>
        <source>&amp;Show URL</source>
        <translation>Afficher l&apos;&amp;URL</translation>
    </message>
    <message>
        <source>Remove selected URL</source>
        <translation>Supprimer l&apos;URL sélectionnée</translation>
    </message>
    <message>
        <source>Remove &amp;URL</source>
        <translation>&amp;Supprimer l&apos;URL</translation>
    </message>
    <message>
        <source>Show the entity of selected  URL</source>
        <translation>Afficher l&apos;objet de l&apos;URL sélectionnée</translation>
    </message>
    <message>
        <source>S&amp;how Entity</source>
        <translation>Afficher l&apos;&amp;objet</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Fermer</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Aide</translation>
    </message>
    <message>
        <source>;URL Name;Entity Type;Space</source>
        <translation>;Nom de l&apos;URL;Type d&apos;objet;Espace</translation>
    </message>
    <message>
        <source>Select one row of table for show.</source>
        <translation>Sélectionnez une ligne du tableau à afficher.</translation>
    </message>
    <message>
        <source>Unable to display the link.</source>
        <translation>Impossible d&apos;afficher le lien.</translation>
    </message>
    <message>
        <source>Open this link?</source>
        <translation>Ouvrir ce lien&#xa0;?</translation>
    </message>
    <message>
        <source>It is a program, or starts one.</source>
        <translation>C&apos;est un programme, ou il en démarre un.</translation>
    </message>
    <message>
        <source>Warning</source>
        <translation>Avertissement</translation>
    </message>
    <message>
        <source>Select the rows of table for searching.</source>
        <translation>Sélectionnez les lignes du tableau où chercher.</translation>
    </message>
    <message>
        <source>Replace text</source>
        <translation>Remplacer le texte</translation>
    </message>
    <message>
        <source>The are no items selected.</source>
        <translation>Aucun élément n&apos;est sélectionné.</translation>
    </message>
    <message>
        <source>Information</source>
        <translation>Information</translation>
    </message>
    <message>
        <source>Remove urls for selected items?</source>
        <translation>Supprimer les URL des éléments sélectionnés&#xa0;?</translation>
    </message>
    <message>
        <source>Sorting...</source>
        <translation>Tri en cours...</translation>
    </message>
</context>
<context>
    <name>Dlg_QT_TextFrame</name>
    <message>
        <source>Text Frame</source>
        <translation>Cadre de texte</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>Type</translation>
    </message>
    <message>
        <source>&amp;Slot</source>
        <translation>&amp;Oblong</translation>
    </message>
    <message>
        <source>&amp;Rectangle</source>
        <translation>&amp;Rectangle</translation>
    </message>
    <message>
        <source>&amp;Circle</source>
        <translation>Cercl&amp;e</translation>
    </message>
    <message>
        <source>Dimensions</source>
        <translation>Dimensions</translation>
    </message>
    <message>
        <source>Offset</source>
        <translation>Décalage</translation>
    </message>
    <message>
        <source>C&amp;onstant</source>
        <translation>Co&amp;nstant</translation>
    </message>
    <message>
        <source>&amp;Variable</source>
        <translation>&amp;Variable</translation>
    </message>
    <message>
        <source>Maintain Constant </source>
        <translation>Garder constant </translation>
    </message>
    <message>
        <source>&amp;Width</source>
        <translation>&amp;Largeur</translation>
    </message>
    <message>
        <source>&amp;Height</source>
        <translation>&amp;Hauteur</translation>
    </message>
    <message>
        <source>&amp;Both</source>
        <translation>Les &amp;deux</translation>
    </message>
    <message>
        <source>Background</source>
        <translation>Arrière-plan</translation>
    </message>
    <message>
        <source>&amp;Transparent</source>
        <translation>&amp;Transparent</translation>
    </message>
    <message>
        <source>H&amp;atch</source>
        <translation>H&amp;achures</translation>
    </message>
    <message>
        <source>&amp;Color:</source>
        <translation>&amp;Couleur&#xa0;:</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annuler</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Aide</translation>
    </message>
</context>
<context>
    <name>Dlg_QT_TextMask</name>
    <message>
        <source>Text Mask</source>
        <translation>Masque de texte</translation>
    </message>
    <message>
        <source>Dimensions</source>
        <translation>Dimensions</translation>
    </message>
    <message>
        <source>Offset</source>
        <translation>Décalage</translation>
    </message>
    <message>
        <source>Entity type</source>
        <translation>Type d&apos;objet</translation>
    </message>
    <message>
        <source>&amp;Mask</source>
        <translation>&amp;Masque</translation>
    </message>
    <message>
        <source>3&amp;D Face</source>
        <translation>Face 3&amp;D</translation>
    </message>
    <message>
        <source>&amp;Solid</source>
        <translation>&amp;Solide</translation>
    </message>
    <message>
        <source>Background</source>
        <translation>Arrière-plan</translation>
    </message>
    <message>
        <source>&amp;Color:</source>
        <translation>&amp;Couleur&#xa0;:</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annuler</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Aide</translation>
    </message>
    <message>
        <source>Wrong dimension value.</source>
        <translation>Valeur de dimension incorrecte.</translation>
    </message>
    <message>
        <source>Must be positive or zero.</source>
        <translation>Doit être positif ou nul.</translation>
    </message>
</context>
<context>
    <name>Dlg_QT_TrackTime</name>
    <message>
        <source>Track Time</source>
        <translation>Suivi du temps</translation>
    </message>
    <message>
        <source>Folder</source>
        <translation>Dossier</translation>
    </message>
    <message>
        <source>Fo&amp;lder:</source>
        <translation>&amp;Dossier&#xa0;:</translation>
    </message>
    <message>
        <source>Selects the folder of the drawings</source>
        <translation>Sélectionne le dossier des dessins</translation>
    </message>
    <message>
        <source>&amp;Browse...</source>
        <translation>&amp;Parcourir...</translation>
    </message>
    <message>
        <source>Reads the drawings again</source>
        <translation>Relit les dessins</translation>
    </message>
    <message>
        <source>Re&amp;fresh</source>
        <translation>Act&amp;ualiser</translation>
    </message>
    <message>
        <source>Include s&amp;ub-folders</source>
        <translation>&amp;Inclure les sous-dossiers</translation>
    </message>
    <message>
        <source>Fa&amp;vorites:</source>
        <translation>Fa&amp;voris&#xa0;:</translation>
    </message>
    <message>
        <source>Save favorite</source>
        <translation>Enregistrer le favori</translation>
    </message>
    <message>
        <source>&amp;Save</source>
        <translation>Enre&amp;gistrer</translation>
    </message>
    <message>
        <source>Remove favorite</source>
        <translation>Supprimer le favori</translation>
    </message>
    <message>
        <source>Re&amp;move...</source>
        <translation>Supprime&amp;r...</translation>
    </message>
    <message>
        <source>Drawings</source>
        <translation>Dessins</translation>
    </message>
    <message>
        <source>F&amp;ilter:</source>
        <translation>&amp;Filtre&#xa0;:</translation>
    </message>
    <message>
        <source>Shows only drawings with this in their name; regular expressions are allowed</source>
        <translation>N&apos;affiche que les dessins dont le nom contient ceci&#xa0;; les expressions régulières sont permises</translation>
    </message>
    <message>
        <source>Writes the table to a text file</source>
        <translation>Écrit le tableau dans un fichier texte</translation>
    </message>
    <message>
        <source>&amp;Export...</source>
        <translation>&amp;Exporter...</translation>
    </message>
    <message>
        <source>Selected drawings</source>
        <translation>Dessins sélectionnés</translation>
    </message>
    <message>
        <source>Counts the time that is worked on them</source>
        <translation>Compte le temps pendant lequel on y travaille</translation>
    </message>
    <message>
        <source>&amp;Track</source>
        <translation>&amp;Suivre</translation>
    </message>
    <message>
        <source>Counts no more time</source>
        <translation>Ne compte plus le temps</translation>
    </message>
    <message>
        <source>&amp;Do not track</source>
        <translation>&amp;Ne pas suivre</translation>
    </message>
    <message>
        <source>Idle limit (mi&amp;n):</source>
        <translation>Inactivité &amp;max. (min)&#xa0;:</translation>
    </message>
    <message>
        <source>Longer pauses are not counted; with 0 every pause is</source>
        <translation>Les pauses plus longues ne sont pas comptées&#xa0;; avec 0, toutes le sont</translation>
    </message>
    <message>
        <source>Gives the selected drawings this idle limit</source>
        <translation>Donne cette limite d&apos;inactivité aux dessins sélectionnés</translation>
    </message>
    <message>
        <source>&amp;Apply</source>
        <translation>&amp;Appliquer</translation>
    </message>
    <message>
        <source>Sets the editing time to 0</source>
        <translation>Remet le temps d&apos;édition à 0</translation>
    </message>
    <message>
        <source>&amp;Reset time...</source>
        <translation>Remettre à &amp;zéro...</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annuler</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Aide</translation>
    </message>
    <message>
        <source>Name;Track Active;EditTime (hr)</source>
        <translation>Nom;Suivi actif;Temps (h)</translation>
    </message>
    <message>
        <source>The changes have not been written yet. Do you want to discard them?</source>
        <translation>Les modifications n&apos;ont pas encore été écrites. Voulez-vous les abandonner&#xa0;?</translation>
    </message>
    <message>
        <source>Looking for drawings...</source>
        <translation>Recherche des dessins...</translation>
    </message>
    <message>
        <source>Reading the drawings...</source>
        <translation>Lecture des dessins...</translation>
    </message>
    <message>
        <source>Not readable</source>
        <translation>Non lisible</translation>
    </message>
    <message>
        <source>On</source>
        <translation>Oui</translation>
    </message>
    <message>
        <source>Off</source>
        <translation>Non</translation>
    </message>
    <message>
        <source>, %1 min</source>
        <translation>, %1 min</translation>
    </message>
    <message>
        <source>Every pause counts.</source>
        <translation>Toutes les pauses comptent.</translation>
    </message>
    <message>
        <source>, open (bold): %1</source>
        <translation>, ouverts (en gras)&#xa0;: %1</translation>
    </message>
    <message>
        <source>Total: %1 h. Drawings: %2%3</source>
        <translation>Total&#xa0;: %1 h. Dessins&#xa0;: %2%3</translation>
    </message>
    <message>
        <source>Are you sure you want to set the editing time of the selected drawings to 0?</source>
        <translation>Voulez-vous vraiment remettre à 0 le temps d&apos;édition des dessins sélectionnés&#xa0;?</translation>
    </message>
    <message>
        <source>Export editing time</source>
        <translation>Exporter le temps d&apos;édition</translation>
    </message>
    <message>
        <source>Text with tabs (*.txt);; Text with semicolons (*.csv);; All files (*.*)</source>
        <translation>Texte avec tabulations (*.txt);; Texte avec points-virgules (*.csv);; Tous les fichiers (*.*)</translation>
    </message>
    <message>
        <source>The file could not be written: %1</source>
        <translation>Le fichier n&apos;a pas pu être écrit&#xa0;: %1</translation>
    </message>
    <message>
        <source>Writing the drawings...</source>
        <translation>Écriture des dessins...</translation>
    </message>
    <message>
        <source>and %1 more</source>
        <translation>et %1 de plus</translation>
    </message>
    <message>
        <source>Some drawings could not be changed.</source>
        <translation>Certains dessins n&apos;ont pas pu être modifiés.</translation>
    </message>
</context>
<context>
    <name>Dlg_QT_numbertext</name>
    <message>
        <source>Number Text</source>
        <translation>Numéroter des textes</translation>
    </message>
    <message>
        <source>Sorting Method</source>
        <translation>Méthode de tri</translation>
    </message>
    <message>
        <source>&amp;Position X</source>
        <translation>Position &amp;X</translation>
    </message>
    <message>
        <source>P&amp;osition Y</source>
        <translation>Position &amp;Y</translation>
    </message>
    <message>
        <source>&amp;Select order</source>
        <translation>&amp;Ordre de sélection</translation>
    </message>
    <message>
        <source>&amp;Relative to one point</source>
        <translation>Relatif à un &amp;point</translation>
    </message>
    <message>
        <source>R&amp;elative to two points</source>
        <translation>Relatif à &amp;deux points</translation>
    </message>
    <message>
        <source>Sorting Direction</source>
        <translation>Sens du tri</translation>
    </message>
    <message>
        <source>&amp;Ascending</source>
        <translation>&amp;Croissant</translation>
    </message>
    <message>
        <source>Descendin&amp;g</source>
        <translation>Décroi&amp;ssant</translation>
    </message>
    <message>
        <source>Counter</source>
        <translation>Compteur</translation>
    </message>
    <message>
        <source>Initial &amp;value:</source>
        <translation>&amp;Valeur initiale&#xa0;:</translation>
    </message>
    <message>
        <source>&amp;Increment:</source>
        <translation>&amp;Incrément&#xa0;:</translation>
    </message>
    <message>
        <source>&amp;Digits:</source>
        <translation>C&amp;hiffres&#xa0;:</translation>
    </message>
    <message>
        <source>Text Format</source>
        <translation>Format du texte</translation>
    </message>
    <message>
        <source>(Prefix)</source>
        <translation>(Préfixe)</translation>
    </message>
    <message>
        <source>(Suffix)</source>
        <translation>(Suffixe)</translation>
    </message>
    <message>
        <source>NUMBER</source>
        <translation>NUMÉRO</translation>
    </message>
    <message>
        <source>Text Placement</source>
        <translation>Place dans le texte</translation>
    </message>
    <message>
        <source>S&amp;uffix</source>
        <translation>S&amp;uffixe</translation>
    </message>
    <message>
        <source>Repla&amp;ce</source>
        <translation>Re&amp;mplacer</translation>
    </message>
    <message>
        <source>Pre&amp;fix</source>
        <translation>Pré&amp;fixe</translation>
    </message>
    <message>
        <source>O&amp;verwrite</source>
        <translation>Écr&amp;aser</translation>
    </message>
    <message>
        <source>&amp;Find what:</source>
        <translation>&amp;Rechercher&#xa0;:</translation>
    </message>
    <message>
        <source>Replace with:</source>
        <translation>Remplacer par&#xa0;:</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annuler</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Aide</translation>
    </message>
</context>
<context>
    <name>DrawingPreview</name>
    <message>
        <source>No preview</source>
        <translation>Pas d&apos;aperçu</translation>
    </message>
</context>
<context>
    <name>LispExtension</name>
    <message>
        <source>The file is too large</source>
        <translation>Le fichier est trop grand</translation>
    </message>
    <message>
        <source>. for none,.</source>
        <comment>Command Option: Upper- and Lowercase letters are relevant.</comment>
        <translation>. pour aucun,.</translation>
    </message>
    <message>
        <source>block %1</source>
        <translation>bloc %1</translation>
    </message>
    <message>
        <source>layer %1</source>
        <translation>calque %1</translation>
    </message>
    <message>
        <source>linetype %1</source>
        <translation>type de ligne %1</translation>
    </message>
    <message>
        <source>text style %1</source>
        <translation>style de texte %1</translation>
    </message>
    <message>
        <source>dimension style %1</source>
        <translation>style de cote %1</translation>
    </message>
    <message>
        <source>Specify drawing file</source>
        <translation>Spécifier un fichier de dessin</translation>
    </message>
    <message>
        <source>Specify block</source>
        <translation>Spécifier un bloc</translation>
    </message>
    <message>
        <source>Specify state file</source>
        <translation>Spécifier un fichier d&apos;état</translation>
    </message>
    <message>
        <source>
Settings saved to: </source>
        <translation>
Paramètres enregistrés dans&#xa0;: </translation>
    </message>
    <message>
        <source> successfully.</source>
        <translation> avec succès.</translation>
    </message>
    <message>
        <source>You must first select the blocks to replace. </source>
        <translation>Vous devez d&apos;abord sélectionner les blocs à remplacer. </translation>
    </message>
    <message>
        <source>%1 could not be written: %2.</source>
        <translation>%1 n&apos;a pas pu être écrit&#xa0;: %2.</translation>
    </message>
    <message>
        <source>The document could not be printed.</source>
        <translation>Le document n&apos;a pas pu être imprimé.</translation>
    </message>
    <message>
        <source>Drawing files (*.dwg)</source>
        <translation>Fichiers de dessin (*.dwg)</translation>
    </message>
    <message>
        <source>Drawing exchange files (*.dxf)</source>
        <translation>Fichiers d&apos;échange de dessins (*.dxf)</translation>
    </message>
    <message>
        <source>Specify a drawing</source>
        <translation>Spécifier un dessin</translation>
    </message>
    <message>
        <source>Error: Xref contains circular reference</source>
        <translation>Erreur&#xa0;: la référence externe contient une référence circulaire</translation>
    </message>
    <message>
        <source>Select folder</source>
        <translation>Sélectionner un dossier</translation>
    </message>
    <message>
        <source>Filename can`t be empty</source>
        <translation>Le nom de fichier ne peut pas être vide</translation>
    </message>
    <message>
        <source>The following characters are not valid in File names: &lt;&gt;/\&quot;:;?*|,=&apos;</source>
        <translation>Ces caractères ne sont pas permis dans les noms de fichiers&#xa0;: &lt;&gt;/\&quot;:;?*|,=&apos;</translation>
    </message>
    <message>
        <source>Drawing symbol &quot;%1&quot; already exists. Do you want to replace it?</source>
        <translation>Le symbole de dessin &quot;%1&quot; existe déjà. Voulez-vous le remplacer&#xa0;?</translation>
    </message>
    <message>
        <source>Path can`t be empty</source>
        <translation>Le chemin ne peut pas être vide</translation>
    </message>
    <message>
        <source>Cannot find the specified Path.</source>
        <translation>Le chemin spécifié est introuvable.</translation>
    </message>
    <message>
        <source>Cannot find the specified file.</source>
        <translation>Le fichier spécifié est introuvable.</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Nom</translation>
    </message>
    <message>
        <source>Replacing...</source>
        <translation>Remplacement en cours...</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annuler</translation>
    </message>
    <message>
        <source>%1: the drawing has no room for an editing time</source>
        <translation>%1&#xa0;: le dessin n&apos;a pas de place pour un temps d&apos;édition</translation>
    </message>
    <message>
        <source>%1: the drawing is not open any more</source>
        <translation>%1&#xa0;: le dessin n&apos;est plus ouvert</translation>
    </message>
    <message>
        <source>A tag or text of the file is too long.</source>
        <translation>Une balise ou un texte du fichier est trop long.</translation>
    </message>
    <message>
        <source>An element of the file has too many attributes.</source>
        <translation>Un élément du fichier a trop d&apos;attributs.</translation>
    </message>
    <message>
        <source>Enter to %1</source>
        <translation>Entrée pour %1</translation>
    </message>
    <message>
        <source>Entities that this drawing cannot hold and that were left out: %1.</source>
        <translation>Objets que ce dessin ne peut pas contenir et qui ont été omis&#xa0;: %1.</translation>
    </message>
    <message>
        <source>Error reading alias file.</source>
        <translation>Erreur de lecture du fichier d&apos;alias.</translation>
    </message>
    <message>
        <source>Favorite &quot;%1&quot; already exists. Do you want to replace it?</source>
        <translation>Le favori &quot;%1&quot; existe déjà. Voulez-vous le remplacer&#xa0;?</translation>
    </message>
    <message>
        <source>Favorite name is required.</source>
        <translation>Un nom de favori est nécessaire.</translation>
    </message>
    <message>
        <source>Favorites</source>
        <translation>Favoris</translation>
    </message>
    <message>
        <source>No file name</source>
        <translation>Aucun nom de fichier</translation>
    </message>
    <message>
        <source>Select object</source>
        <translation>Sélectionnez un objet</translation>
    </message>
    <message>
        <source>Specify folder</source>
        <translation>Spécifier un dossier</translation>
    </message>
    <message>
        <source>Specify new path for Backup folder</source>
        <translation>Spécifiez le nouveau chemin du dossier de sauvegarde</translation>
    </message>
    <message>
        <source>Specify option</source>
        <translation>Spécifiez une option</translation>
    </message>
    <message>
        <source>Specify second point</source>
        <translation>Spécifiez le second point</translation>
    </message>
    <message>
        <source>The drawing has its own, which stays as it is: %1.</source>
        <translation>Le dessin a les siens, qui restent tels quels&#xa0;: %1.</translation>
    </message>
    <message>
        <source>The entities of the file expand to too much text.</source>
        <translation>Les entités du fichier donnent trop de texte.</translation>
    </message>
    <message>
        <source>There are too many copies of it already.</source>
        <translation>Il y en a déjà trop de copies.</translation>
    </message>
    <message>
        <source>There is no block &quot;%1&quot; in %2.</source>
        <translation>Il n&apos;y a pas de bloc &quot;%1&quot; dans %2.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is a invalid directory.</source>
        <translation>&quot;%1&quot; n&apos;est pas un dossier valide.</translation>
    </message>
    <message>
        <source>
%1 could not be moved.</source>
        <translation>
%1 n&apos;ont pas pu être déplacés.</translation>
    </message>
    <message>
        <source>
Nothing is there.</source>
        <translation>
Il n&apos;y a rien là.</translation>
    </message>
    <message>
        <source>
This %1 is not what is asked for.</source>
        <translation>
Cet objet (%1) n&apos;est pas celui qui est demandé.</translation>
    </message>
    <message>
        <source>
This is a %1; asked for is %2.</source>
        <translation>
C&apos;est %1&#xa0;; il est demandé %2.</translation>
    </message>
    <message>
        <source>line %1: %2</source>
        <translation>ligne %1&#xa0;: %2</translation>
    </message>
</context>
<context>
    <name>StyleTables</name>
    <message>
        <source>Name</source>
        <translation>Nom</translation>
    </message>
    <message>
        <source>Variable;Value</source>
        <translation>Variable;Valeur</translation>
    </message>
</context>
</TS>
