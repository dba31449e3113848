<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fr_FR" sourcelanguage="en">
<context>
    <name>AimMarks</name>
    <message>
        <source>Polar: %1 &lt; %2</source>
        <translation>Polaire&#xa0;: %1 &lt; %2</translation>
    </message>
</context>
<context>
    <name>Batch</name>
    <message>
        <source>%1 of %2, %3 failed</source>
        <translation>%1 sur %2, dont %3 en échec</translation>
    </message>
    <message>
        <source>the process that worked on it was killed or crashed</source>
        <translation>le processus qui y travaillait a été tué ou a planté</translation>
    </message>
    <message>
        <source>interrupted: %1 of %2 were not worked on to the end</source>
        <translation>interrompu&#xa0;: le travail sur %1 de %2 n&apos;est pas allé à son terme</translation>
    </message>
    <message>
        <source>done</source>
        <translation>fait</translation>
    </message>
    <message>
        <source>failed</source>
        <translation>échec</translation>
    </message>
    <message>
        <source>not read</source>
        <translation>non lu</translation>
    </message>
    <message>
        <source>not written</source>
        <translation>non écrit</translation>
    </message>
    <message>
        <source>incomplete</source>
        <translation>incomplet</translation>
    </message>
    <message>
        <source>cut short</source>
        <translation>interrompu</translation>
    </message>
    <message>
        <source>%1, case %2</source>
        <translation>%1, cas %2</translation>
    </message>
    <message>
        <source>%1: the folder cannot be made</source>
        <translation>%1&#xa0;: le dossier ne peut pas être créé</translation>
    </message>
    <message>
        <source>two of the drawings are named %1: their results would have the same name</source>
        <translation>deux des dessins s&apos;appellent %1&#xa0;: leurs résultats auraient le même nom</translation>
    </message>
    <message>
        <source>%1: the extension must be dxf, %2</source>
        <translation>%1&#xa0;: l&apos;extension doit être dxf, %2</translation>
    </message>
    <message>
        <source>--binary is for DXF files</source>
        <translation>--binary est pour les fichiers DXF</translation>
    </message>
    <message>
        <source>... and %1 more lines</source>
        <translation>... et %1 lignes de plus</translation>
    </message>
    <message>
        <source>the dialog of %1 does not open</source>
        <translation>la boîte de dialogue de %1 ne s&apos;ouvre pas</translation>
    </message>
    <message>
        <source>%1: the file cannot be read</source>
        <translation>%1&#xa0;: le fichier ne peut pas être lu</translation>
    </message>
    <message>
        <source>the tool asks &quot;%1&quot;; see --answer</source>
        <translation>l&apos;outil demande &quot;%1&quot;&#xa0;; voir --answer</translation>
    </message>
    <message>
        <source>the tool asks for a file; see --set %1=PATH</source>
        <translation>l&apos;outil demande un fichier&#xa0;; voir --set %1=PATH</translation>
    </message>
    <message>
        <source>the dialog does not go on with these values</source>
        <translation>la boîte de dialogue n&apos;accepte pas ces valeurs</translation>
    </message>
    <message>
        <source>there is nothing to choose in %1</source>
        <translation>il n&apos;y a rien à choisir dans %1</translation>
    </message>
    <message>
        <source>it does not take &quot;%1&quot;</source>
        <translation>il n&apos;accepte pas &quot;%1&quot;</translation>
    </message>
    <message>
        <source>%1 has nothing to do</source>
        <translation>%1 n&apos;a rien à faire</translation>
    </message>
    <message>
        <source>%1: there is no file %2</source>
        <translation>%1&#xa0;: il n&apos;y a pas de fichier %2</translation>
    </message>
    <message>
        <source>%1 is there already, beside the drawing, and may be another one: name another folder, or --force to replace it</source>
        <translation>%1 existe déjà à côté du dessin et peut en être un autre : nommez un autre dossier, ou --force pour le remplacer</translation>
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
        <translation>Rouge</translation>
    </message>
    <message>
        <source>Yellow</source>
        <translation>Jaune</translation>
    </message>
    <message>
        <source>Green</source>
        <translation>Vert</translation>
    </message>
    <message>
        <source>Cyan</source>
        <translation>Cyan</translation>
    </message>
    <message>
        <source>Blue</source>
        <translation>Bleu</translation>
    </message>
    <message>
        <source>Magenta</source>
        <translation>Magenta</translation>
    </message>
    <message>
        <source>White</source>
        <translation>Blanc</translation>
    </message>
    <message>
        <source>ByLayer</source>
        <translation>ByLayer</translation>
    </message>
    <message>
        <source>Color %1</source>
        <translation>Couleur %1</translation>
    </message>
</context>
<context>
    <name>Commands</name>
    <message>
        <source>Specify angle vertex: </source>
        <translation>Spécifiez le sommet de l&apos;angle&#xa0;: </translation>
    </message>
    <message>
        <source>Specify first angle endpoint: </source>
        <translation>Spécifiez la première extrémité de l&apos;angle&#xa0;: </translation>
    </message>
    <message>
        <source>Specify second angle endpoint: </source>
        <translation>Spécifiez la seconde extrémité de l&apos;angle&#xa0;: </translation>
    </message>
    <message>
        <source>Select second line: </source>
        <translation>Sélectionnez la seconde ligne&#xa0;: </translation>
    </message>
    <message>
        <source>Lines are parallel.</source>
        <translation>Les lignes sont parallèles.</translation>
    </message>
    <message>
        <source>Object selected is not a line.</source>
        <translation>L&apos;objet sélectionné n&apos;est pas une ligne.</translation>
    </message>
    <message>
        <source>Select arc, circle, line, or &lt;specify vertex&gt;: </source>
        <translation>Sélectionnez un arc, un cercle ou une ligne, ou &lt;spécifier le sommet&gt;&#xa0;: </translation>
    </message>
    <message>
        <source>Object selected is not an arc, circle or line.</source>
        <translation>L&apos;objet sélectionné n&apos;est ni un arc, ni un cercle, ni une ligne.</translation>
    </message>
    <message>
        <source>Enter text location (or press ENTER): </source>
        <translation>Entrez l&apos;emplacement du texte (ou appuyez sur ENTRÉE)&#xa0;: </translation>
    </message>
    <message>
        <source>Specify dimension arc line location or [Mtext/Text/Angle/Quadrant]: </source>
        <translation>Spécifiez l&apos;emplacement de l&apos;arc de cote ou [Mtext/Text/Angle/Quadrant]&#xa0;: </translation>
    </message>
    <message>
        <source>Specify quadrant: </source>
        <translation>Spécifiez le quadrant&#xa0;: </translation>
    </message>
    <message>
        <source>Select arc or polyline arc segment: </source>
        <translation>Sélectionnez un arc ou un segment d&apos;arc de polyligne&#xa0;: </translation>
    </message>
    <message>
        <source>Object selected is not an arc or polyline arc segment.</source>
        <translation>L&apos;objet sélectionné n&apos;est ni un arc ni un segment d&apos;arc de polyligne.</translation>
    </message>
    <message>
        <source>Specify first point for arc length dimension: </source>
        <translation>Spécifiez le premier point de la cote de longueur d&apos;arc&#xa0;: </translation>
    </message>
    <message>
        <source>Specify second point for arc length dimension: </source>
        <translation>Spécifiez le second point de la cote de longueur d&apos;arc&#xa0;: </translation>
    </message>
    <message>
        <source>The two points are one.</source>
        <translation>Les deux points n&apos;en font qu&apos;un.</translation>
    </message>
    <message>
        <source>Specify arc length dimension location, or [Mtext/Text/Angle/Partial%1]: </source>
        <translation>Spécifiez l&apos;emplacement de la cote de longueur d&apos;arc ou [Mtext/Text/Angle/Partial%1]&#xa0;: </translation>
    </message>
    <message>
        <source>A drawing of this version has no dimensions of arc lengths: they come with R2004.</source>
        <translation>Un dessin de cette version n&apos;a pas de cotes de longueur d&apos;arc&#xa0;: elles existent depuis R2004.</translation>
    </message>
    <message>
        <source>
Current attribute modes:  </source>
        <translation>
Modes d&apos;attribut courants&#xa0;:  </translation>
    </message>
    <message>
        <source>Enter an option to change [Invisible/Constant/Verify/Preset] &lt;done&gt;: </source>
        <translation>Entrez une option à modifier [Invisible/Constant/Verify/Preset] &lt;terminé&gt;&#xa0;: </translation>
    </message>
    <message>
        <source>Enter attribute tag name: </source>
        <translation>Entrez l&apos;étiquette de l&apos;attribut&#xa0;: </translation>
    </message>
    <message>
        <source>A tag is needed.</source>
        <translation>Une étiquette est nécessaire.</translation>
    </message>
    <message>
        <source>A tag has no blanks.</source>
        <translation>Une étiquette n&apos;a pas d&apos;espaces.</translation>
    </message>
    <message>
        <source>Enter attribute prompt: </source>
        <translation>Entrez l&apos;invite de l&apos;attribut&#xa0;: </translation>
    </message>
    <message>
        <source>Enter attribute value: </source>
        <translation>Entrez la valeur de l&apos;attribut&#xa0;: </translation>
    </message>
    <message>
        <source>Enter default attribute value: </source>
        <translation>Entrez la valeur par défaut de l&apos;attribut&#xa0;: </translation>
    </message>
    <message>
        <source>Enter attribute tag name</source>
        <translation>Entrez l&apos;étiquette de l&apos;attribut</translation>
    </message>
    <message>
        <source>Enter attribute prompt</source>
        <translation>Entrez l&apos;invite de l&apos;attribut</translation>
    </message>
    <message>
        <source>Enter default attribute value, . for none</source>
        <translation>Entrez la valeur par défaut de l&apos;attribut, . pour aucune</translation>
    </message>
    <message>
        <source>Enter text</source>
        <translation>Entrez le texte</translation>
    </message>
    <message>
        <source>Select an annotation object: </source>
        <translation>Sélectionnez un objet d&apos;annotation&#xa0;: </translation>
    </message>
    <message>
        <source>Requires a text.</source>
        <translation>Un texte est nécessaire.</translation>
    </message>
    <message>
        <source>Select continued dimension: </source>
        <translation>Sélectionnez la cote à continuer&#xa0;: </translation>
    </message>
    <message>
        <source>Select base dimension: </source>
        <translation>Sélectionnez la cote de base&#xa0;: </translation>
    </message>
    <message>
        <source>Linear, ordinate, or angular associative dimension required.</source>
        <translation>Une cote linéaire, d&apos;ordonnée ou angulaire est nécessaire.</translation>
    </message>
    <message>
        <source>
All dimensions of the command are undone.</source>
        <translation>
Toutes les cotes de la commande sont annulées.</translation>
    </message>
    <message>
        <source>Specify feature location or [Select/Undo] &lt;Select&gt;: </source>
        <translation>Spécifiez l&apos;emplacement de l&apos;élément ou [Select/Undo] &lt;Select&gt;&#xa0;: </translation>
    </message>
    <message>
        <source>Specify second extension line origin or [Select/Undo] &lt;Select&gt;: </source>
        <translation>Spécifiez l&apos;origine de la seconde ligne d&apos;attache ou [Select/Undo] &lt;Select&gt;&#xa0;: </translation>
    </message>
    <message>
        <source>Specify a second extension line origin or [Select] &lt;Select&gt;: </source>
        <translation>Spécifiez l&apos;origine d&apos;une seconde ligne d&apos;attache ou [Select] &lt;Select&gt;&#xa0;: </translation>
    </message>
    <message>
        <source>Enter obliquing angle (press ENTER for none): </source>
        <translation>Entrez l&apos;angle d&apos;inclinaison (ENTRÉE pour aucun)&#xa0;: </translation>
    </message>
    <message>
        <source>Unknown dimension variable &quot;%1&quot;.</source>
        <translation>Variable de cote inconnue &quot;%1&quot;.</translation>
    </message>
    <message>
        <source>Enter new value for dimension variable &lt;%1&gt;: </source>
        <translation>Entrez la nouvelle valeur de la variable de cote &lt;%1&gt;&#xa0;: </translation>
    </message>
    <message>
        <source>%1 does not take this value.</source>
        <translation>%1 n&apos;accepte pas cette valeur.</translation>
    </message>
    <message>
        <source>Enter dimension variable name to override: </source>
        <translation>Entrez le nom de la variable de cote à remplacer&#xa0;: </translation>
    </message>
    <message>
        <source>Enter type of dimension editing [Home/New/Rotate/Oblique] &lt;Home&gt;: </source>
        <translation>Entrez le type d&apos;édition de cote [Home/New/Rotate/Oblique] &lt;Home&gt;&#xa0;: </translation>
    </message>
    <message>
        <source>Enter dimension text &lt;&lt;&gt;&gt;: </source>
        <translation>Entrez le texte de la cote &lt;&lt;&gt;&gt;&#xa0;: </translation>
    </message>
    <message>
        <source>Specify angle for dimension text: </source>
        <translation>Spécifiez l&apos;angle du texte de la cote&#xa0;: </translation>
    </message>
    <message>
        <source>Select dimension: </source>
        <translation>Sélectionnez une cote&#xa0;: </translation>
    </message>
    <message>
        <source>Object selected is not a dimension.</source>
        <translation>L&apos;objet sélectionné n&apos;est pas une cote.</translation>
    </message>
    <message>
        <source>Specify new location for dimension text or [Left/Right/Center/Home/Angle]: </source>
        <translation>Spécifiez le nouvel emplacement du texte de la cote ou [Left/Right/Center/Home/Angle]&#xa0;: </translation>
    </message>
    <message>
        <source>Enter dimension variable name to override or [Clear overrides]: </source>
        <translation>Entrez le nom de la variable de cote à remplacer ou [Clear overrides]&#xa0;: </translation>
    </message>
    <message>
        <source>Enter new text style name</source>
        <translation>Entrez le nom du nouveau style de texte</translation>
    </message>
    <message>
        <source>Dim: </source>
        <translation>Cote&#xa0;: </translation>
    </message>
    <message>
        <source>Unknown dimension subcommand &quot;%1&quot;.</source>
        <translation>Sous-commande de cotation inconnue &quot;%1&quot;.</translation>
    </message>
    <message>
        <source>
Nothing that was made here is left to undo.</source>
        <translation>
Il ne reste rien à annuler de ce qui a été fait ici.</translation>
    </message>
    <message>
        <source>Enter dimension style(s) to list &lt;*&gt;: </source>
        <translation>Entrez les styles de cote à lister &lt;*&gt;&#xa0;: </translation>
    </message>
    <message>
        <source>Enter a dimension style name, [?] or &lt;select dimension&gt;: </source>
        <translation>Entrez le nom d&apos;un style de cote, [?] ou &lt;sélectionner une cote&gt;&#xa0;: </translation>
    </message>
    <message>
        <source>Cannot find dimension style &quot;%1&quot;.</source>
        <translation>Style de cote &quot;%1&quot; introuvable.</translation>
    </message>
    <message>
        <source>Enter name for new dimension style or [?]: </source>
        <translation>Entrez le nom du nouveau style de cote ou [?]&#xa0;: </translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no name for a dimension style.</source>
        <translation>&quot;%1&quot; n&apos;est pas un nom de style de cote.</translation>
    </message>
    <message>
        <source>That name is already in use, redefine it? [Yes/No] &lt;N&gt;: </source>
        <translation>Ce nom est déjà utilisé, le redéfinir&#xa0;? [Yes/No] &lt;N&gt;&#xa0;: </translation>
    </message>
    <message>
        <source>Create annotative dimension style [Yes/No] &lt;Yes&gt;: </source>
        <translation>Créer un style de cote annotatif [Yes/No] &lt;Yes&gt;&#xa0;: </translation>
    </message>
    <message>
        <source>
Current dimension style: </source>
        <translation>
Style de cote courant&#xa0;: </translation>
    </message>
    <message>
        <source>Enter a dimension style option [ANnotative/Save/Restore/STatus/Variables/Apply/?] &lt;Restore&gt;: </source>
        <translation>Entrez une option de style de cote [ANnotative/Save/Restore/STatus/Variables/Apply/?] &lt;Restore&gt;&#xa0;: </translation>
    </message>
    <message>
        <source>Specify internal point or [Properties/Select objects/draW boundary/remove Boundaries/Advanced/DRaw order/Origin/ANnotative/hatch COlor/LAyer/Transparency]: </source>
        <translation>Spécifiez un point interne ou [Properties/Select objects/draW boundary/remove Boundaries/Advanced/DRaw order/Origin/ANnotative/hatch COlor/LAyer/Transparency]&#xa0;: </translation>
    </message>
    <message>
        <source>
Too many curves cross here: choose a boundary set.</source>
        <translation>
Trop de courbes se croisent ici&#xa0;: choisissez un jeu de contours.</translation>
    </message>
    <message>
        <source>
Valid hatch boundary not found.</source>
        <translation>
Aucun contour de hachures valide trouvé.</translation>
    </message>
    <message>
        <source>
The objects make no closed boundary.</source>
        <translation>
Les objets ne forment pas de contour fermé.</translation>
    </message>
    <message>
        <source>Retain polyline boundary? [Yes/No] &lt;N&gt;: </source>
        <translation>Conserver la polyligne du contour&#xa0;? [Yes/No] &lt;N&gt;&#xa0;: </translation>
    </message>
    <message>
        <source>Specify start point: </source>
        <translation>Spécifiez le point de départ&#xa0;: </translation>
    </message>
    <message>
        <source>Specify next point or [Close/Undo] &lt;Close&gt;: </source>
        <translation>Spécifiez le point suivant ou [Close/Undo] &lt;Close&gt;&#xa0;: </translation>
    </message>
    <message>
        <source>Specify start point for new boundary or &lt;Accept&gt;: </source>
        <translation>Spécifiez le point de départ d&apos;un nouveau contour ou &lt;accepter&gt;&#xa0;: </translation>
    </message>
    <message>
        <source>Select boundary to remove: </source>
        <translation>Sélectionnez le contour à supprimer&#xa0;: </translation>
    </message>
    <message>
        <source>
Current hatch pattern:  </source>
        <translation>
Motif de hachures courant&#xa0;:  </translation>
    </message>
    <message>
        <source>Enter an option [Boundary set/Island detection/Object type] &lt;eXit&gt;: </source>
        <translation>Entrez une option [Boundary set/Island detection/Object type] &lt;eXit&gt;&#xa0;: </translation>
    </message>
    <message>
        <source>Enter type of boundary object [Region/Polyline] &lt;%1&gt;: </source>
        <translation>Entrez le type d&apos;objet de contour [Region/Polyline] &lt;%1&gt;&#xa0;: </translation>
    </message>
    <message>
        <source>Specify internal point or [Advanced options]: </source>
        <translation>Spécifiez un point interne ou [Advanced options]&#xa0;: </translation>
    </message>
    <message>
        <source>
BOUNDARY created 1 region</source>
        <translation>
BOUNDARY a créé 1 région</translation>
    </message>
    <message>
        <source>
BOUNDARY created 1 polyline</source>
        <translation>
BOUNDARY a créé 1 polyligne</translation>
    </message>
    <message>
        <source>
BOUNDARY created %1 regions</source>
        <translation>
BOUNDARY a créé %1 régions</translation>
    </message>
    <message>
        <source>
BOUNDARY created %1 polylines</source>
        <translation>
BOUNDARY a créé %1 polylignes</translation>
    </message>
    <message>
        <source>Enter pattern(s) to list &lt;*&gt;: </source>
        <translation>Entrez les motifs à lister &lt;*&gt;&#xa0;: </translation>
    </message>
    <message>
        <source>Specify angle for crosshatch lines &lt;%1&gt;: </source>
        <translation>Spécifiez l&apos;angle des lignes de hachures &lt;%1&gt;&#xa0;: </translation>
    </message>
    <message>
        <source>Specify spacing between the lines &lt;%1&gt;: </source>
        <translation>Spécifiez l&apos;espacement des lignes &lt;%1&gt;&#xa0;: </translation>
    </message>
    <message>
        <source>Double hatch area? [Yes/No] &lt;%1&gt;: </source>
        <translation>Hachurer la zone en double&#xa0;? [Yes/No] &lt;%1&gt;&#xa0;: </translation>
    </message>
    <message>
        <source>Specify a scale for the pattern &lt;%1&gt;: </source>
        <translation>Spécifiez l&apos;échelle du motif &lt;%1&gt;&#xa0;: </translation>
    </message>
    <message>
        <source>Specify an angle for the pattern &lt;%1&gt;: </source>
        <translation>Spécifiez l&apos;angle du motif &lt;%1&gt;&#xa0;: </translation>
    </message>
    <message>
        <source>Enter new color or [. (for use current)] &lt;.&gt;: </source>
        <translation>Entrez la nouvelle couleur ou [. (for use current)] &lt;.&gt;&#xa0;: </translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no colour.</source>
        <translation>&quot;%1&quot; n&apos;est pas une couleur.</translation>
    </message>
    <message>
        <source>Specify new layer name or [. (for use current)] &lt;.&gt;: </source>
        <translation>Spécifiez le nouveau nom de calque ou [. (for use current)] &lt;.&gt;&#xa0;: </translation>
    </message>
    <message>
        <source>Cannot find layer &quot;%1&quot;.</source>
        <translation>Calque &quot;%1&quot; introuvable.</translation>
    </message>
    <message>
        <source>Enter new transparency value (0-90) or [. (for use current)] &lt;.&gt;: </source>
        <translation>Entrez la nouvelle valeur de transparence (0-90) ou [. (for use current)] &lt;.&gt;&#xa0;: </translation>
    </message>
    <message>
        <source>Requires a whole number from 0 to 90.</source>
        <translation>Un nombre entier de 0 à 90 est nécessaire.</translation>
    </message>
    <message>
        <source>Enter draw order [do Not assign/send to Back/bring to Front/send beHind boundary/bring in front of bounDary] &lt;send behind boundary&gt;: </source>
        <translation>Entrez l&apos;ordre de tracé [do Not assign/send to Back/bring to Front/send beHind boundary/bring in front of bounDary] &lt;derrière le contour&gt;&#xa0;: </translation>
    </message>
    <message>
        <source>[Use current origin/Set new origin] &lt;Use current origin&gt;: </source>
        <translation>[Use current origin/Set new origin] &lt;Use current origin&gt;&#xa0;: </translation>
    </message>
    <message>
        <source>Specify point: </source>
        <translation>Spécifiez un point&#xa0;: </translation>
    </message>
    <message>
        <source>Store as default origin? [Yes/No] &lt;N&gt;: </source>
        <translation>Enregistrer comme origine par défaut&#xa0;? [Yes/No] &lt;N&gt;&#xa0;: </translation>
    </message>
    <message>
        <source>Unknown hatch pattern &quot;%1&quot;.</source>
        <translation>Motif de hachures inconnu &quot;%1&quot;.</translation>
    </message>
    <message>
        <source>Enter a pattern name or [?/Solid/User defined] &lt;%1&gt;: </source>
        <translation>Entrez un nom de motif ou [?/Solid/User defined] &lt;%1&gt;&#xa0;: </translation>
    </message>
    <message>
        <source>Enter hatching style [Ignore/Outer/Normal] &lt;%1&gt;: </source>
        <translation>Entrez le style de hachures [Ignore/Outer/Normal] &lt;%1&gt;&#xa0;: </translation>
    </message>
    <message>
        <source>Specify candidate set for boundary [New/Everything] &lt;Everything&gt;: </source>
        <translation>Spécifiez le jeu de contours candidats [New/Everything] &lt;Everything&gt;&#xa0;: </translation>
    </message>
    <message>
        <source>Do you want island detection? [Yes/No] &lt;Y&gt;: </source>
        <translation>Voulez-vous détecter les îlots&#xa0;? [Yes/No] &lt;Y&gt;&#xa0;: </translation>
    </message>
    <message>
        <source>Enter an option [Boundary set/Retain boundary/Island detection/Style/Associativity/Gap tolerance/separate Hatches] &lt;eXit&gt;: </source>
        <translation>Entrez une option [Boundary set/Retain boundary/Island detection/Style/Associativity/Gap tolerance/separate Hatches] &lt;eXit&gt;&#xa0;: </translation>
    </message>
    <message>
        <source>Retain derived boundaries? [Yes/No] &lt;N&gt;: </source>
        <translation>Conserver les contours dérivés&#xa0;? [Yes/No] &lt;N&gt;&#xa0;: </translation>
    </message>
    <message>
        <source>Do you want associativity? [Yes/No] &lt;Y&gt;: </source>
        <translation>Voulez-vous l&apos;associativité&#xa0;? [Yes/No] &lt;Y&gt;&#xa0;: </translation>
    </message>
    <message>
        <source>Specify a boundary gap tolerance value &lt;%1&gt;: </source>
        <translation>Spécifiez la tolérance d&apos;espacement du contour &lt;%1&gt;&#xa0;: </translation>
    </message>
    <message>
        <source>Create separate hatches? [Yes/No] &lt;N&gt;: </source>
        <translation>Créer des hachures séparées&#xa0;? [Yes/No] &lt;N&gt;&#xa0;: </translation>
    </message>
    <message>
        <source>Create annotative hatch [Yes/No] &lt;N&gt;: </source>
        <translation>Créer des hachures annotatives [Yes/No] &lt;N&gt;&#xa0;: </translation>
    </message>
    <message>
        <source>Annotative hatches are not made.</source>
        <translation>Les hachures annotatives ne sont pas créées.</translation>
    </message>
    <message>
        <source>
A boundary needs three points.</source>
        <translation>
Un contour demande trois points.</translation>
    </message>
    <message>
        <source>
A drawing of this version keeps no draw order.</source>
        <translation>
Un dessin de cette version ne conserve pas d&apos;ordre de tracé.</translation>
    </message>
    <message>
        <source>The hatch spacing is too dense, or the dash size too small.</source>
        <translation>L&apos;espacement des hachures est trop dense ou les tirets sont trop petits.</translation>
    </message>
    <message>
        <source>
No polyline can follow the boundary: it has pieces of ellipses or splines.</source>
        <translation>
Aucune polyligne ne peut suivre le contour&#xa0;: il a des morceaux d&apos;ellipses ou de splines.</translation>
    </message>
    <message>
        <source>Select hatch object: </source>
        <translation>Sélectionnez un objet hachure&#xa0;: </translation>
    </message>
    <message>
        <source>Object selected is not a hatch.</source>
        <translation>L&apos;objet sélectionné n&apos;est pas une hachure.</translation>
    </message>
    <message>
        <source>Enter hatch option [DIsassociate/Style/Properties/Origin/ANnotative/hatch COlor/LAyer/Transparency] &lt;Properties&gt;: </source>
        <translation>Entrez une option de hachures [DIsassociate/Style/Properties/Origin/ANnotative/hatch COlor/LAyer/Transparency] &lt;Properties&gt;&#xa0;: </translation>
    </message>
    <message>
        <source>Specify first endpoint of text baseline: </source>
        <translation>Spécifiez la première extrémité de la ligne de base du texte&#xa0;: </translation>
    </message>
    <message>
        <source>Specify start point of text: </source>
        <translation>Spécifiez le point de départ du texte&#xa0;: </translation>
    </message>
    <message>
        <source>Specify center point of text: </source>
        <translation>Spécifiez le centre de la ligne de base du texte&#xa0;: </translation>
    </message>
    <message>
        <source>Specify right endpoint of text baseline: </source>
        <translation>Spécifiez l&apos;extrémité droite de la ligne de base du texte&#xa0;: </translation>
    </message>
    <message>
        <source>Specify middle point of text: </source>
        <translation>Spécifiez le point milieu du texte&#xa0;: </translation>
    </message>
    <message>
        <source>Specify top-left point of text: </source>
        <translation>Spécifiez le point haut gauche du texte&#xa0;: </translation>
    </message>
    <message>
        <source>Specify top-center point of text: </source>
        <translation>Spécifiez le point haut centre du texte&#xa0;: </translation>
    </message>
    <message>
        <source>Specify top-right point of text: </source>
        <translation>Spécifiez le point haut droit du texte&#xa0;: </translation>
    </message>
    <message>
        <source>Specify middle-left point of text: </source>
        <translation>Spécifiez le point milieu gauche du texte&#xa0;: </translation>
    </message>
    <message>
        <source>Specify middle-center point of text: </source>
        <translation>Spécifiez le point milieu centre du texte&#xa0;: </translation>
    </message>
    <message>
        <source>Specify middle-right point of text: </source>
        <translation>Spécifiez le point milieu droit du texte&#xa0;: </translation>
    </message>
    <message>
        <source>Specify bottom-left point of text: </source>
        <translation>Spécifiez le point bas gauche du texte&#xa0;: </translation>
    </message>
    <message>
        <source>Specify bottom-center point of text: </source>
        <translation>Spécifiez le point bas centre du texte&#xa0;: </translation>
    </message>
    <message>
        <source>Specify bottom-right point of text: </source>
        <translation>Spécifiez le point bas droit du texte&#xa0;: </translation>
    </message>
    <message>
        <source>Enter an option [%1]: </source>
        <translation>Entrez une option [%1]&#xa0;: </translation>
    </message>
    <message>
        <source>Enter next line of annotation text: </source>
        <translation>Entrez la ligne suivante du texte d&apos;annotation&#xa0;: </translation>
    </message>
    <message>
        <source>A text, tolerance or block reference is needed.</source>
        <translation>Un texte, une tolérance ou une référence de bloc est nécessaire.</translation>
    </message>
    <message>
        <source>Enter block name: </source>
        <translation>Entrez le nom du bloc&#xa0;: </translation>
    </message>
    <message>
        <source>Cannot find block &quot;%1&quot;.</source>
        <translation>Bloc &quot;%1&quot; introuvable.</translation>
    </message>
    <message>
        <source>Enter scale factor &lt;1&gt;: </source>
        <translation>Entrez le facteur d&apos;échelle &lt;1&gt;&#xa0;: </translation>
    </message>
    <message>
        <source>Specify rotation angle &lt;0&gt;: </source>
        <translation>Spécifiez l&apos;angle de rotation &lt;0&gt;&#xa0;: </translation>
    </message>
    <message>
        <source>Enter tolerance text: </source>
        <translation>Entrez le texte de la tolérance&#xa0;: </translation>
    </message>
    <message>
        <source>Enter an annotation option [Tolerance/Copy/Block/None/Mtext] &lt;Mtext&gt;: </source>
        <translation>Entrez une option d&apos;annotation [Tolerance/Copy/Block/None/Mtext] &lt;Mtext&gt;&#xa0;: </translation>
    </message>
    <message>
        <source>Select an object to copy: </source>
        <translation>Sélectionnez un objet à copier&#xa0;: </translation>
    </message>
    <message>
        <source>Enter first line of annotation text: </source>
        <translation>Entrez la première ligne du texte d&apos;annotation&#xa0;: </translation>
    </message>
    <message>
        <source>Enter leader format option [Spline/STraight/Arrow/None] &lt;Exit&gt;: </source>
        <translation>Entrez une option de format de repère [Spline/STraight/Arrow/None] &lt;Exit&gt;&#xa0;: </translation>
    </message>
    <message>
        <source>Specify leader start point: </source>
        <translation>Spécifiez le point de départ de la ligne de repère&#xa0;: </translation>
    </message>
    <message>
        <source>Specify next point: </source>
        <translation>Spécifiez le point suivant&#xa0;: </translation>
    </message>
    <message>
        <source>Specify next point or [Annotation/Format/Undo] &lt;Annotation&gt;: </source>
        <translation>Spécifiez le point suivant ou [Annotation/Format/Undo] &lt;Annotation&gt;&#xa0;: </translation>
    </message>
    <message>
        <source>Enter first line of annotation text or &lt;options&gt;: </source>
        <translation>Entrez la première ligne du texte d&apos;annotation ou &lt;options&gt;&#xa0;: </translation>
    </message>
    <message>
        <source>Specify first leader point: </source>
        <translation>Spécifiez le premier point de la ligne de repère&#xa0;: </translation>
    </message>
    <message>
        <source>Specify text width &lt;0&gt;: </source>
        <translation>Spécifiez la largeur du texte &lt;0&gt;&#xa0;: </translation>
    </message>
    <message>
        <source>Enter first line of annotation text &lt;Mtext&gt;: </source>
        <translation>Entrez la première ligne du texte d&apos;annotation &lt;Mtext&gt;&#xa0;: </translation>
    </message>
    <message>
        <source>Leader start: </source>
        <translation>Départ du repère&#xa0;: </translation>
    </message>
    <message>
        <source>To point: </source>
        <translation>Au point&#xa0;: </translation>
    </message>
    <message>
        <source>Enter dimension text &lt;%1&gt;: </source>
        <translation>Entrez le texte de la cote &lt;%1&gt;&#xa0;: </translation>
    </message>
    <message>
        <source>Specify first extension line origin or &lt;select object&gt;: </source>
        <translation>Spécifiez l&apos;origine de la première ligne d&apos;attache ou &lt;sélectionner un objet&gt;&#xa0;: </translation>
    </message>
    <message>
        <source>Specify second extension line origin: </source>
        <translation>Spécifiez l&apos;origine de la seconde ligne d&apos;attache&#xa0;: </translation>
    </message>
    <message>
        <source>Select object to dimension: </source>
        <translation>Sélectionnez l&apos;objet à coter&#xa0;: </translation>
    </message>
    <message>
        <source>Object selected is not a line, arc, circle or piece of a polyline.</source>
        <translation>L&apos;objet sélectionné n&apos;est ni une ligne, ni un arc, ni un cercle, ni un morceau de polyligne.</translation>
    </message>
    <message>
        <source>Specify angle of dimension line &lt;0&gt;: </source>
        <translation>Spécifiez l&apos;angle de la ligne de cote &lt;0&gt;&#xa0;: </translation>
    </message>
    <message>
        <source>Specify dimension line location or [%1]: </source>
        <translation>Spécifiez l&apos;emplacement de la ligne de cote ou [%1]&#xa0;: </translation>
    </message>
    <message>
        <source>Specify dimension line location or [Mtext/Text/Angle]: </source>
        <translation>Spécifiez l&apos;emplacement de la ligne de cote ou [Mtext/Text/Angle]&#xa0;: </translation>
    </message>
    <message>
        <source>Specify feature location: </source>
        <translation>Spécifiez l&apos;emplacement de l&apos;élément&#xa0;: </translation>
    </message>
    <message>
        <source>Specify leader endpoint or [Xdatum/Ydatum/Mtext/Text/Angle]: </source>
        <translation>Spécifiez l&apos;extrémité de la ligne de repère ou [Xdatum/Ydatum/Mtext/Text/Angle]&#xa0;: </translation>
    </message>
    <message>
        <source>The object is not parallel to the current UCS.</source>
        <translation>L&apos;objet n&apos;est pas parallèle au SCU courant.</translation>
    </message>
    <message>
        <source>Select a leader type [Straight/sPline/None]</source>
        <translation>Sélectionnez un type de ligne de repère [Straight/sPline/None]</translation>
    </message>
    <message>
        <source>Use landing [Yes/No]</source>
        <translation>Utiliser une ligne de guidage [Yes/No]</translation>
    </message>
    <message>
        <source>Specify fixed landing distance</source>
        <translation>Spécifiez la longueur fixe de la ligne de guidage</translation>
    </message>
    <message>
        <source>Select a content type [Block/Mtext/None]</source>
        <translation>Sélectionnez un type de contenu [Block/Mtext/None]</translation>
    </message>
    <message>
        <source>Enter the maximum points for leader or [None] &lt;%1&gt;: </source>
        <translation>Entrez le nombre maximal de points du repère ou [None] &lt;%1&gt;&#xa0;: </translation>
    </message>
    <message>
        <source>A leader has two points at least.</source>
        <translation>Une ligne de repère a au moins deux points.</translation>
    </message>
    <message>
        <source>Enter an option [Leader type/leader lAnding/Content type/Maxpoints/First angle/Second angle/eXit options] &lt;eXit options&gt;: </source>
        <translation>Entrez une option [Leader type/leader lAnding/Content type/Maxpoints/First angle/Second angle/eXit options] &lt;eXit options&gt;&#xa0;: </translation>
    </message>
    <message>
        <source>Enter first angle constraint &lt;%1&gt;: </source>
        <translation>Entrez la première contrainte d&apos;angle &lt;%1&gt;&#xa0;: </translation>
    </message>
    <message>
        <source>Enter second angle constraint &lt;%1&gt;: </source>
        <translation>Entrez la seconde contrainte d&apos;angle &lt;%1&gt;&#xa0;: </translation>
    </message>
    <message>
        <source>Specify leader landing location: </source>
        <translation>Spécifiez l&apos;emplacement de la ligne de guidage&#xa0;: </translation>
    </message>
    <message>
        <source>Enter text: </source>
        <translation>Entrez le texte&#xa0;: </translation>
    </message>
    <message>
        <source>Specify first corner of text: </source>
        <translation>Spécifiez le premier coin du texte&#xa0;: </translation>
    </message>
    <message>
        <source>Specify insertion point for block: </source>
        <translation>Spécifiez le point d&apos;insertion du bloc&#xa0;: </translation>
    </message>
    <message>
        <source>Specify opposite corner: </source>
        <translation>Spécifiez le coin opposé&#xa0;: </translation>
    </message>
    <message>
        <source>Specify leader arrowhead location or [leader Landing first/Content first/Options] &lt;Options&gt;: </source>
        <translation>Spécifiez l&apos;emplacement de la pointe de flèche ou [leader Landing first/Content first/Options] &lt;Options&gt;&#xa0;: </translation>
    </message>
    <message>
        <source>A drawing of this version has no multileaders: they come with R2007.</source>
        <translation>Un dessin de cette version n&apos;a pas de repères multiples&#xa0;: ils existent depuis R2007.</translation>
    </message>
    <message>
        <source>Specify leader arrowhead location: </source>
        <translation>Spécifiez l&apos;emplacement de la pointe de flèche&#xa0;: </translation>
    </message>
    <message>
        <source>Object selected is not a multileader.</source>
        <translation>L&apos;objet sélectionné n&apos;est pas un repère multiple.</translation>
    </message>
    <message>
        <source>Select a multileader: </source>
        <translation>Sélectionnez un repère multiple&#xa0;: </translation>
    </message>
    <message>
        <source>Specify leaders to remove or [Add leaders]: </source>
        <translation>Spécifiez les lignes de repère à supprimer ou [Add leaders]&#xa0;: </translation>
    </message>
    <message>
        <source>Specify leader arrowhead location or [Remove leaders]: </source>
        <translation>Spécifiez l&apos;emplacement de la pointe de flèche ou [Remove leaders]&#xa0;: </translation>
    </message>
    <message>
        <source>
The multileader has no leader there.</source>
        <translation>
Le repère multiple n&apos;a pas de ligne de repère à cet endroit.</translation>
    </message>
    <message>
        <source>Enter an option [Distribute/specify Spacing/Use current spacing] &lt;Use current spacing&gt;: </source>
        <translation>Entrez une option [Distribute/specify Spacing/Use current spacing] &lt;Use current spacing&gt;&#xa0;: </translation>
    </message>
    <message>
        <source>Specify spacing</source>
        <translation>Spécifiez l&apos;espacement</translation>
    </message>
    <message>
        <source>Select multileaders: </source>
        <translation>Sélectionnez des repères multiples&#xa0;: </translation>
    </message>
    <message>
        <source>No multileaders were selected.</source>
        <translation>Aucun repère multiple n&apos;a été sélectionné.</translation>
    </message>
    <message>
        <source>Specify first point or [Options]: </source>
        <translation>Spécifiez le premier point ou [Options]&#xa0;: </translation>
    </message>
    <message>
        <source>Specify second point: </source>
        <translation>Spécifiez le second point&#xa0;: </translation>
    </message>
    <message>
        <source>Select multileader to align to or [Options]: </source>
        <translation>Sélectionnez le repère multiple sur lequel aligner ou [Options]&#xa0;: </translation>
    </message>
    <message>
        <source>Specify direction: </source>
        <translation>Spécifiez la direction&#xa0;: </translation>
    </message>
    <message>
        <source>Specify angle of dimension text: </source>
        <translation>Spécifiez l&apos;angle du texte de la cote&#xa0;: </translation>
    </message>
    <message>
        <source>
Dimension text = </source>
        <translation>
Texte de la cote = </translation>
    </message>
    <message>
        <source>Enter justification [%1]</source>
        <translation>Entrez la justification [%1]</translation>
    </message>
    <message>
        <source>Enter line spacing type [At least/Exactly]</source>
        <translation>Entrez le type d&apos;interligne [At least/Exactly]</translation>
    </message>
    <message>
        <source>Enter line spacing factor or distance &lt;%1&gt;: </source>
        <translation>Entrez le facteur ou la distance d&apos;interligne &lt;%1&gt;&#xa0;: </translation>
    </message>
    <message>
        <source>Lines are 0.25x to 4x of the usual distance apart.</source>
        <translation>Les lignes sont espacées de 0.25x à 4x la distance habituelle.</translation>
    </message>
    <message>
        <source>Specify total width</source>
        <translation>Spécifiez la largeur totale</translation>
    </message>
    <message>
        <source>Specify number of columns &lt;2&gt;: </source>
        <translation>Spécifiez le nombre de colonnes &lt;2&gt;&#xa0;: </translation>
    </message>
    <message>
        <source>Specify gutter width</source>
        <translation>Spécifiez la largeur de la gouttière</translation>
    </message>
    <message>
        <source>So many columns do not fit into this width.</source>
        <translation>Tant de colonnes ne tiennent pas dans cette largeur.</translation>
    </message>
    <message>
        <source>Specify column width</source>
        <translation>Spécifiez la largeur de colonne</translation>
    </message>
    <message>
        <source>Enter column type [Dynamic/Static/No columns]</source>
        <translation>Entrez le type de colonnes [Dynamic/Static/No columns]</translation>
    </message>
    <message>
        <source>A drawing of this version has no columns in texts: they come with R2007.</source>
        <translation>Un dessin de cette version n&apos;a pas de colonnes dans les textes&#xa0;: elles existent depuis R2007.</translation>
    </message>
    <message>
        <source>Specify column height</source>
        <translation>Spécifiez la hauteur de colonne</translation>
    </message>
    <message>
        <source>Specify height</source>
        <translation>Spécifiez la hauteur</translation>
    </message>
    <message>
        <source>Specify rotation angle &lt;%1&gt;: </source>
        <translation>Spécifiez l&apos;angle de rotation &lt;%1&gt;&#xa0;: </translation>
    </message>
    <message>
        <source>Specify width</source>
        <translation>Spécifiez la largeur</translation>
    </message>
    <message>
        <source>Specify first corner: </source>
        <translation>Spécifiez le premier coin&#xa0;: </translation>
    </message>
    <message>
        <source>Specify opposite corner or [Height/Justify/Line spacing/Rotation/Style/Width/Columns]: </source>
        <translation>Spécifiez le coin opposé ou [Height/Justify/Line spacing/Rotation/Style/Width/Columns]&#xa0;: </translation>
    </message>
    <message>
        <source>
Current text style:  &quot;%1&quot;  Text height:  %2</source>
        <translation>
Style de texte courant&#xa0;:  &quot;%1&quot;  Hauteur du texte&#xa0;:  %2</translation>
    </message>
    <message>
        <source>MText: </source>
        <translation>MText&#xa0;: </translation>
    </message>
    <message>
        <source>No texts were selected.</source>
        <translation>Aucun texte n&apos;a été sélectionné.</translation>
    </message>
    <message>
        <source>
%1 texts became one paragraph.</source>
        <translation>
%1 textes sont devenus un paragraphe.</translation>
    </message>
    <message>
        <source>Object selected is not a circle or arc.</source>
        <translation>L&apos;objet sélectionné n&apos;est ni un cercle ni un arc.</translation>
    </message>
    <message>
        <source>Specify dimension line location or leader length for text: </source>
        <translation>Spécifiez l&apos;emplacement de la ligne de cote ou la longueur du repère du texte&#xa0;: </translation>
    </message>
    <message>
        <source>A drawing of this version has no jogged dimensions of radii: they come with R2004.</source>
        <translation>Un dessin de cette version n&apos;a pas de cotes de rayon raccourcies&#xa0;: elles existent depuis R2004.</translation>
    </message>
    <message>
        <source>Select arc or circle: </source>
        <translation>Sélectionnez un arc ou un cercle&#xa0;: </translation>
    </message>
    <message>
        <source>Specify center location override: </source>
        <translation>Spécifiez l&apos;emplacement remplaçant le centre&#xa0;: </translation>
    </message>
    <message>
        <source>Specify jog location: </source>
        <translation>Spécifiez l&apos;emplacement du raccourcissement&#xa0;: </translation>
    </message>
    <message>
        <source>DIMCEN is 0: there is no centre mark.</source>
        <translation>DIMCEN vaut 0&#xa0;: il n&apos;y a pas de marque de centre.</translation>
    </message>
    <message>
        <source>Enter name of text style</source>
        <translation>Entrez le nom du style de texte</translation>
    </message>
    <message>
        <source>Invalid style name.</source>
        <translation>Nom de style non valide.</translation>
    </message>
    <message>
        <source>Specify full font name or font filename (TTF or SHX) &lt;%1&gt;: </source>
        <translation>Spécifiez le nom complet de la police ou le fichier de police (TTF ou SHX) &lt;%1&gt;&#xa0;: </translation>
    </message>
    <message>
        <source>Specify height of text</source>
        <translation>Spécifiez la hauteur du texte</translation>
    </message>
    <message>
        <source>Specify width factor</source>
        <translation>Spécifiez le facteur de largeur</translation>
    </message>
    <message>
        <source>Specify obliquing angle &lt;%1&gt;: </source>
        <translation>Spécifiez l&apos;angle d&apos;inclinaison &lt;%1&gt;&#xa0;: </translation>
    </message>
    <message>
        <source>The obliquing angle is from -85 to 85 degrees.</source>
        <translation>L&apos;angle d&apos;inclinaison va de -85 à 85 degrés.</translation>
    </message>
    <message>
        <source>Display text backwards?</source>
        <translation>Afficher le texte à l&apos;envers&#xa0;?</translation>
    </message>
    <message>
        <source>Display text upside-down?</source>
        <translation>Afficher le texte tête en bas&#xa0;?</translation>
    </message>
    <message>
        <source>
Existing style.</source>
        <translation>
Style existant.</translation>
    </message>
    <message>
        <source>
New style.</source>
        <translation>
Nouveau style.</translation>
    </message>
    <message>
        <source>
&quot;%1&quot; is now the current text style.</source>
        <translation>
&quot;%1&quot; est maintenant le style de texte courant.</translation>
    </message>
    <message>
        <source>Specify start point of text or [Justify/Style]: </source>
        <translation>Spécifiez le point de départ du texte ou [Justify/Style]&#xa0;: </translation>
    </message>
    <message>
        <source>There is no text to go on below.</source>
        <translation>Il n&apos;y a pas de texte sous lequel continuer.</translation>
    </message>
    <message>
        <source>Specify second endpoint of text baseline: </source>
        <translation>Spécifiez la seconde extrémité de la ligne de base du texte&#xa0;: </translation>
    </message>
    <message>
        <source>Specify height &lt;%1&gt;: </source>
        <translation>Spécifiez la hauteur &lt;%1&gt;&#xa0;: </translation>
    </message>
    <message>
        <source>Specify rotation angle of text &lt;0&gt;: </source>
        <translation>Spécifiez l&apos;angle de rotation du texte &lt;0&gt;&#xa0;: </translation>
    </message>
    <message>
        <source>The two endpoints are one point.</source>
        <translation>Les deux extrémités n&apos;en font qu&apos;une.</translation>
    </message>
    <message>
        <source>
Style name: &quot;%1&quot;  Font files: %2  Height: %3  Width factor: %4</source>
        <translation>
Nom du style&#xa0;: &quot;%1&quot;  Fichiers de police&#xa0;: %2  Hauteur&#xa0;: %3  Facteur de largeur&#xa0;: %4</translation>
    </message>
    <message>
        <source>%1 or [?] &lt;%2&gt;: </source>
        <translation>%1 ou [?] &lt;%2&gt;&#xa0;: </translation>
    </message>
    <message>
        <source>Enter text style(s) to list &lt;*&gt;: </source>
        <translation>Entrez les styles de texte à lister &lt;*&gt;&#xa0;: </translation>
    </message>
    <message>
        <source>Enter style name</source>
        <translation>Entrez le nom du style</translation>
    </message>
    <message>
        <source>Cannot find text style &quot;%1&quot;.</source>
        <translation>Style de texte &quot;%1&quot; introuvable.</translation>
    </message>
    <message>
        <source>
Cannot find file &quot;%1&quot; of reference &quot;%2&quot;.</source>
        <translation>
Fichier &quot;%1&quot; de la référence &quot;%2&quot; introuvable.</translation>
    </message>
    <message>
        <source>
Warning: &quot;%1&quot; shows this drawing, which is left out there.</source>
        <translation>
Attention&#xa0;: &quot;%1&quot; montre ce dessin, qui y est omis.</translation>
    </message>
    <message>
        <source>
&quot;%1&quot; loaded.</source>
        <translation>
&quot;%1&quot; chargé.</translation>
    </message>
    <message>
        <source>Cannot find file &quot;%1&quot; of reference &quot;%2&quot;.</source>
        <translation>Fichier &quot;%1&quot; de la référence &quot;%2&quot; introuvable.</translation>
    </message>
    <message>
        <source>
&quot;%1&quot; is a block of this drawing now.</source>
        <translation>
&quot;%1&quot; est maintenant un bloc de ce dessin.</translation>
    </message>
    <message>
        <source> %1 of its records could not be taken over.</source>
        <translation> %1 de ses enregistrements n&apos;ont pas pu être repris.</translation>
    </message>
    <message>
        <source>Enter an option [?/Name/Select] &lt;Select&gt;: </source>
        <translation>Entrez une option [?/Name/Select] &lt;Select&gt;&#xa0;: </translation>
    </message>
    <message>
        <source>
Blocks with attributes:
  </source>
        <translation>
Blocs avec attributs&#xa0;:
  </translation>
    </message>
    <message>
        <source>Enter name of block to synchronize or [?]: </source>
        <translation>Entrez le nom du bloc à synchroniser ou [?]&#xa0;: </translation>
    </message>
    <message>
        <source>Select a block: </source>
        <translation>Sélectionnez un bloc&#xa0;: </translation>
    </message>
    <message>
        <source>That is no block reference.</source>
        <translation>Ce n&apos;est pas une référence de bloc.</translation>
    </message>
    <message>
        <source>ATTSYNC block %1? [Yes/No] &lt;Yes&gt;: </source>
        <translation>Synchroniser le bloc %1 par ATTSYNC&#xa0;? [Yes/No] &lt;Yes&gt;&#xa0;: </translation>
    </message>
    <message>
        <source>Block &quot;%1&quot; not found.</source>
        <translation>Bloc &quot;%1&quot; introuvable.</translation>
    </message>
    <message>
        <source>
%1 block references were synchronized.</source>
        <translation>
%1 références de bloc ont été synchronisées.</translation>
    </message>
    <message>
        <source>Enter block name specification &lt;*&gt;: </source>
        <translation>Entrez la spécification de nom de bloc &lt;*&gt;&#xa0;: </translation>
    </message>
    <message>
        <source>Enter attribute tag specification &lt;*&gt;: </source>
        <translation>Entrez la spécification d&apos;étiquette d&apos;attribut &lt;*&gt;&#xa0;: </translation>
    </message>
    <message>
        <source>Enter attribute value specification &lt;*&gt;: </source>
        <translation>Entrez la spécification de valeur d&apos;attribut &lt;*&gt;&#xa0;: </translation>
    </message>
    <message>
        <source>
%1 attributes selected.</source>
        <translation>
%1 attributs sélectionnés.</translation>
    </message>
    <message>
        <source>Enter string to change: </source>
        <translation>Entrez la chaîne à modifier&#xa0;: </translation>
    </message>
    <message>
        <source>Enter new string: </source>
        <translation>Entrez la nouvelle chaîne&#xa0;: </translation>
    </message>
    <message>
        <source>Enter type of value modification [Change/Replace] &lt;R&gt;: </source>
        <translation>Entrez le type de modification de la valeur [Change/Replace] &lt;R&gt;&#xa0;: </translation>
    </message>
    <message>
        <source>Enter new attribute value: </source>
        <translation>Entrez la nouvelle valeur de l&apos;attribut&#xa0;: </translation>
    </message>
    <message>
        <source>Specify new height &lt;%1&gt;: </source>
        <translation>Spécifiez la nouvelle hauteur &lt;%1&gt;&#xa0;: </translation>
    </message>
    <message>
        <source>Enter new layer name: </source>
        <translation>Entrez le nouveau nom de calque&#xa0;: </translation>
    </message>
    <message>
        <source>Enter an option [Value/Height/Layer/Next] &lt;N&gt;: </source>
        <translation>Entrez une option [Value/Height/Layer/Next] &lt;N&gt;&#xa0;: </translation>
    </message>
    <message>
        <source>Edit attributes one at a time? [Yes/No] &lt;Y&gt;: </source>
        <translation>Modifier les attributs un par un&#xa0;? [Yes/No] &lt;Y&gt;&#xa0;: </translation>
    </message>
    <message>
        <source>Edit only attributes visible on screen? [Yes/No] &lt;Y&gt;: </source>
        <translation>Modifier seulement les attributs visibles à l&apos;écran&#xa0;? [Yes/No] &lt;Y&gt;&#xa0;: </translation>
    </message>
    <message>
        <source>%1, . for none &lt;%2&gt;: </source>
        <translation>%1, . pour aucun &lt;%2&gt;&#xa0;: </translation>
    </message>
    <message>
        <source>The block has no attributes.</source>
        <translation>Le bloc n&apos;a pas d&apos;attributs.</translation>
    </message>
    <message>
        <source>Enter number or tag of attribute or [?] &lt;exit&gt;: </source>
        <translation>Entrez le numéro ou l&apos;étiquette de l&apos;attribut ou [?] &lt;quitter&gt;&#xa0;: </translation>
    </message>
    <message>
        <source>The value of %1 is constant.</source>
        <translation>La valeur de %1 est constante.</translation>
    </message>
    <message>
        <source>There is no attribute &quot;%1&quot;.</source>
        <translation>Il n&apos;y a pas d&apos;attribut &quot;%1&quot;.</translation>
    </message>
    <message>
        <source>
Defined blocks.</source>
        <translation>
Blocs définis.</translation>
    </message>
    <message>
        <source>
%1 user blocks.</source>
        <translation>
%1 blocs d&apos;utilisateur.</translation>
    </message>
    <message>
        <source>Enter block name or [?]: </source>
        <translation>Entrez le nom du bloc ou [?]&#xa0;: </translation>
    </message>
    <message>
        <source>Enter block(s) to list &lt;*&gt;: </source>
        <translation>Entrez les blocs à lister &lt;*&gt;&#xa0;: </translation>
    </message>
    <message>
        <source>&quot;%1&quot; cannot be the name of a block.</source>
        <translation>&quot;%1&quot; ne peut pas être le nom d&apos;un bloc.</translation>
    </message>
    <message>
        <source>Block &quot;%1&quot; cannot be redefined.</source>
        <translation>Le bloc &quot;%1&quot; ne peut pas être redéfini.</translation>
    </message>
    <message>
        <source>Block &quot;%1&quot; already exists. Redefine it? [Yes/No] &lt;N&gt;: </source>
        <translation>Le bloc &quot;%1&quot; existe déjà. Le redéfinir&#xa0;? [Yes/No] &lt;N&gt;&#xa0;: </translation>
    </message>
    <message>
        <source>Block &quot;%1&quot; would show itself.</source>
        <translation>Le bloc &quot;%1&quot; se montrerait lui-même.</translation>
    </message>
    <message>
        <source>Specify insertion base point or [Annotative]: </source>
        <translation>Spécifiez le point de base d&apos;insertion ou [Annotative]&#xa0;: </translation>
    </message>
    <message>
        <source>
Blocks are made without annotation scales.</source>
        <translation>
Les blocs sont créés sans échelles d&apos;annotation.</translation>
    </message>
    <message>
        <source>Create annotative block? [Yes/No] &lt;N&gt;: </source>
        <translation>Créer un bloc annotatif&#xa0;? [Yes/No] &lt;N&gt;&#xa0;: </translation>
    </message>
    <message>
        <source>Enter base point &lt;%1&gt;: </source>
        <translation>Entrez le point de base &lt;%1&gt;&#xa0;: </translation>
    </message>
    <message>
        <source>
%1 field(s) found
%1 field(s) updated</source>
        <translation>
%1 champ(s) trouvé(s)
%1 champ(s) mis à jour</translation>
    </message>
    <message>
        <source>Specify first point: </source>
        <translation>Spécifiez le premier point&#xa0;: </translation>
    </message>
    <message>
        <source>Specify next point or [Undo]: </source>
        <translation>Spécifiez le point suivant ou [Undo]&#xa0;: </translation>
    </message>
    <message>
        <source>Select polyline: </source>
        <translation>Sélectionnez une polyligne&#xa0;: </translation>
    </message>
    <message>
        <source>Specify clipping boundary or select invert option: [Select polyline/Polygonal/Rectangular/Invert clip] &lt;Rectangular&gt;: </source>
        <translation>Spécifiez le contour de délimitation ou choisissez d&apos;inverser&#xa0;: [Select polyline/Polygonal/Rectangular/Invert clip] &lt;Rectangular&gt;&#xa0;: </translation>
    </message>
    <message>
        <source>
Objects inside boundary will be hidden.</source>
        <translation>
Les objets à l&apos;intérieur du contour seront masqués.</translation>
    </message>
    <message>
        <source>
Objects outside boundary will be hidden.</source>
        <translation>
Les objets à l&apos;extérieur du contour seront masqués.</translation>
    </message>
    <message>
        <source>That encloses nothing.</source>
        <translation>Cela n&apos;entoure rien.</translation>
    </message>
    <message>
        <source>
%1 could not be clipped.</source>
        <translation>
%1 n&apos;ont pas pu être délimités.</translation>
    </message>
    <message>
        <source>Delete old boundary(s)? [Yes/No] &lt;Yes&gt;: </source>
        <translation>Supprimer les anciens contours&#xa0;? [Yes/No] &lt;Yes&gt;&#xa0;: </translation>
    </message>
    <message>
        <source>No block references were chosen.</source>
        <translation>Aucune référence de bloc n&apos;a été choisie.</translation>
    </message>
    <message>
        <source>Enter clipping option [ON/OFF/Delete/generate Polyline/New boundary] &lt;New&gt;: </source>
        <translation>Entrez une option de délimitation [ON/OFF/Delete/generate Polyline/New boundary] &lt;New&gt;&#xa0;: </translation>
    </message>
    <message>
        <source>Nothing of that can be copied.</source>
        <translation>Rien de cela ne peut être copié.</translation>
    </message>
    <message>
        <source>Specify base point: </source>
        <translation>Spécifiez le point de base&#xa0;: </translation>
    </message>
    <message>
        <source>The clipboard is empty.</source>
        <translation>Le presse-papiers est vide.</translation>
    </message>
    <message>
        <source>
%1 could not be pasted.</source>
        <translation>
%1 n&apos;ont pas pu être collés.</translation>
    </message>
    <message>
        <source>Specify insertion point: </source>
        <translation>Spécifiez le point d&apos;insertion&#xa0;: </translation>
    </message>
    <message>
        <source>
Defined groups.                            Selectable</source>
        <translation>
Groupes définis.                            Sélectionnable</translation>
    </message>
    <message>
        <source>Enter group name(s) to list &lt;*&gt;: </source>
        <translation>Entrez les noms des groupes à lister &lt;*&gt;&#xa0;: </translation>
    </message>
    <message>
        <source>Enter a group name or [?]: </source>
        <translation>Entrez un nom de groupe ou [?]&#xa0;: </translation>
    </message>
    <message>
        <source>Group &quot;%1&quot; does not exist.</source>
        <translation>Le groupe &quot;%1&quot; n&apos;existe pas.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; cannot be the name of a group.</source>
        <translation>&quot;%1&quot; ne peut pas être le nom d&apos;un groupe.</translation>
    </message>
    <message>
        <source>Group &quot;%1&quot; already exists.</source>
        <translation>Le groupe &quot;%1&quot; existe déjà.</translation>
    </message>
    <message>
        <source>A group needs an entity.</source>
        <translation>Un groupe demande un objet.</translation>
    </message>
    <message>
        <source>A drawing of this version has no groups.</source>
        <translation>Un dessin de cette version n&apos;a pas de groupes.</translation>
    </message>
    <message>
        <source>Enter a group description: </source>
        <translation>Entrez une description du groupe&#xa0;: </translation>
    </message>
    <message>
        <source>Select objects: </source>
        <translation>Sélectionnez des objets&#xa0;: </translation>
    </message>
    <message>
        <source>Enter a new name for group or [?]: </source>
        <translation>Entrez un nouveau nom de groupe ou [?]&#xa0;: </translation>
    </message>
    <message>
        <source>Enter position number of the object to reorder %1 or [Reverse]: </source>
        <translation>Entrez le numéro de position de l&apos;objet à réordonner %1 ou [Reverse]&#xa0;: </translation>
    </message>
    <message>
        <source>Enter new position number for the object %1: </source>
        <translation>Entrez le nouveau numéro de position de l&apos;objet %1&#xa0;: </translation>
    </message>
    <message>
        <source>Enter number of objects to reorder &lt;1&gt;: </source>
        <translation>Entrez le nombre d&apos;objets à réordonner &lt;1&gt;&#xa0;: </translation>
    </message>
    <message>
        <source>Requires a number from 0 to %1.</source>
        <translation>Un nombre de 0 à %1 est nécessaire.</translation>
    </message>
    <message>
        <source>Is group selectable? [Yes/No] &lt;Y&gt;: </source>
        <translation>Le groupe est-il sélectionnable&#xa0;? [Yes/No] &lt;Y&gt;&#xa0;: </translation>
    </message>
    <message>
        <source>Enter a group option [?/Order/Add/Remove/Explode/REName/Selectable/Create] &lt;Create&gt;: </source>
        <translation>Entrez une option de groupe [?/Order/Add/Remove/Explode/REName/Selectable/Create] &lt;Create&gt;&#xa0;: </translation>
    </message>
    <message>
        <source>
%1 of its entities became ones that a drawing of this version has.</source>
        <translation>
%1 de ses objets sont devenus des objets qu&apos;un dessin de cette version connaît.</translation>
    </message>
    <message>
        <source>
%1 of its entities could not be taken over.</source>
        <translation>
%1 de ses objets n&apos;ont pas pu être repris.</translation>
    </message>
    <message>
        <source>Cannot find block or file &quot;%1&quot;.</source>
        <translation>Bloc ou fichier &quot;%1&quot; introuvable.</translation>
    </message>
    <message>
        <source>Enter block name or [?] &lt;%1&gt;: </source>
        <translation>Entrez le nom du bloc ou [?] &lt;%1&gt;&#xa0;: </translation>
    </message>
    <message>
        <source>Specify scale factor for XYZ axes &lt;1&gt;: </source>
        <translation>Spécifiez le facteur d&apos;échelle des axes XYZ &lt;1&gt;&#xa0;: </translation>
    </message>
    <message>
        <source>Specify %1 scale factor &lt;1&gt;: </source>
        <translation>Spécifiez le facteur d&apos;échelle %1 &lt;1&gt;&#xa0;: </translation>
    </message>
    <message>
        <source>Enter %1 scale factor &lt;use X scale factor&gt;: </source>
        <translation>Entrez le facteur d&apos;échelle %1 &lt;utiliser le facteur X&gt;&#xa0;: </translation>
    </message>
    <message>
        <source>Enter X scale factor or [Corner/XYZ] &lt;1&gt;: </source>
        <translation>Entrez le facteur d&apos;échelle X ou [Corner/XYZ] &lt;1&gt;&#xa0;: </translation>
    </message>
    <message>
        <source>Value must be nonzero.</source>
        <translation>La valeur ne doit pas être nulle.</translation>
    </message>
    <message>
        <source>Specify X scale factor &lt;1&gt;: </source>
        <translation>Spécifiez le facteur d&apos;échelle X &lt;1&gt;&#xa0;: </translation>
    </message>
    <message>
        <source>Specify insertion point or [Scale/X/Y/Z/Rotate]: </source>
        <translation>Spécifiez le point d&apos;insertion ou [Scale/X/Y/Z/Rotate]&#xa0;: </translation>
    </message>
    <message>
        <source>Specify scale factor &lt;1&gt;: </source>
        <translation>Spécifiez le facteur d&apos;échelle &lt;1&gt;&#xa0;: </translation>
    </message>
    <message>
        <source>Cannot find file &quot;%1&quot;.</source>
        <translation>Fichier &quot;%1&quot; introuvable.</translation>
    </message>
    <message>
        <source>The drawing cannot refer to itself.</source>
        <translation>Le dessin ne peut pas se référencer lui-même.</translation>
    </message>
    <message>
        <source>The name &quot;%1&quot; is a block&apos;s already.</source>
        <translation>Le nom &quot;%1&quot; est déjà celui d&apos;un bloc.</translation>
    </message>
    <message>
        <source>The name &quot;%1&quot; cannot be used.</source>
        <translation>Le nom &quot;%1&quot; ne peut pas être utilisé.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no drawing.</source>
        <translation>&quot;%1&quot; n&apos;est pas un dessin.</translation>
    </message>
    <message>
        <source>
Xref &quot;%1&quot; has already been defined.
Using existing definition.</source>
        <translation>
La référence externe &quot;%1&quot; est déjà définie.
La définition existante est utilisée.</translation>
    </message>
    <message>
        <source>
%1 Xref &quot;%2&quot;: %3</source>
        <translation>
%1, référence externe &quot;%2&quot;&#xa0;: %3</translation>
    </message>
    <message>
        <source>
No matching references found.</source>
        <translation>
Aucune référence correspondante trouvée.</translation>
    </message>
    <message>
        <source>
&quot;%1&quot; was not detached: block &quot;%2&quot; holds it.</source>
        <translation>
&quot;%1&quot; n&apos;a pas été détachée&#xa0;: le bloc &quot;%2&quot; la contient.</translation>
    </message>
    <message>
        <source>
&quot;%1&quot; was not detached.</source>
        <translation>
&quot;%1&quot; n&apos;a pas été détachée.</translation>
    </message>
    <message>
        <source>
&quot;%1&quot; detached.</source>
        <translation>
&quot;%1&quot; détachée.</translation>
    </message>
    <message>
        <source>
&quot;%1&quot; unloaded.</source>
        <translation>
&quot;%1&quot; déchargée.</translation>
    </message>
    <message>
        <source>Enter xref name(s) to list &lt;*&gt;: </source>
        <translation>Entrez les noms des références externes à lister &lt;*&gt;&#xa0;: </translation>
    </message>
    <message>
        <source>Enter xref name(s) to bind: </source>
        <translation>Entrez les noms des références externes à lier&#xa0;: </translation>
    </message>
    <message>
        <source>Enter xref name(s) to detach: </source>
        <translation>Entrez les noms des références externes à détacher&#xa0;: </translation>
    </message>
    <message>
        <source>Enter xref name(s) to unload: </source>
        <translation>Entrez les noms des références externes à décharger&#xa0;: </translation>
    </message>
    <message>
        <source>Enter xref name(s) to reload: </source>
        <translation>Entrez les noms des références externes à recharger&#xa0;: </translation>
    </message>
    <message>
        <source>Enter xref name(s) to edit path: </source>
        <translation>Entrez les noms des références externes dont modifier le chemin&#xa0;: </translation>
    </message>
    <message>
        <source>
Xref name: %1
Old path: %2</source>
        <translation>
Nom de la référence externe&#xa0;: %1
Ancien chemin&#xa0;: %2</translation>
    </message>
    <message>
        <source>Enter new path: </source>
        <translation>Entrez le nouveau chemin&#xa0;: </translation>
    </message>
    <message>
        <source>Enter name of file to attach: </source>
        <translation>Entrez le nom du fichier à attacher&#xa0;: </translation>
    </message>
    <message>
        <source>Enter an option [?/Bind/Detach/Path/Unload/Reload/Overlay/Attach] &lt;Attach&gt;: </source>
        <translation>Entrez une option [?/Bind/Detach/Path/Unload/Reload/Overlay/Attach] &lt;Attach&gt;&#xa0;: </translation>
    </message>
    <message>
        <source>
Nothing to write.</source>
        <translation>
Rien à écrire.</translation>
    </message>
    <message>
        <source>
%1 was written as DXF text.</source>
        <translation>
%1 a été écrit en texte DXF.</translation>
    </message>
    <message>
        <source>
%1 was written.</source>
        <translation>
%1 a été écrit.</translation>
    </message>
    <message>
        <source>Enter name of output file: </source>
        <translation>Entrez le nom du fichier de sortie&#xa0;: </translation>
    </message>
    <message>
        <source>Enter name of existing block, [= (same name)/* (whole drawing)] &lt;choose entities&gt;: </source>
        <translation>Entrez le nom d&apos;un bloc existant, [= (same name)/* (whole drawing)] &lt;choisir des objets&gt;&#xa0;: </translation>
    </message>
    <message>
        <source>
Block &quot;%1&quot; not found.</source>
        <translation>
Bloc &quot;%1&quot; introuvable.</translation>
    </message>
    <message>
        <source>Specify insertion base point: </source>
        <translation>Spécifiez le point de base d&apos;insertion&#xa0;: </translation>
    </message>
    <message>
        <source>
1 was on a locked layer.</source>
        <translation>
1 objet était sur un calque verrouillé.</translation>
    </message>
    <message>
        <source>
%1 were on a locked layer.</source>
        <translation>
%1 objets étaient sur un calque verrouillé.</translation>
    </message>
    <message>
        <source>The numbers are too large.</source>
        <translation>Les nombres sont trop grands.</translation>
    </message>
    <message>
        <source>
%1 could not be changed.</source>
        <translation>
%1 n&apos;ont pas pu être modifiés.</translation>
    </message>
    <message>
        <source>
%1 could not be mirrored.</source>
        <translation>
%1 n&apos;ont pas pu être mis en miroir.</translation>
    </message>
    <message>
        <source>
%1 could not be copied.</source>
        <translation>
%1 n&apos;ont pas pu être copiés.</translation>
    </message>
    <message>
        <source>
Linetype &quot;%1&quot; loaded.</source>
        <translation>
Type de ligne &quot;%1&quot; chargé.</translation>
    </message>
    <message>
        <source>Specify displacement &lt;%1&gt;: </source>
        <translation>Spécifiez le déplacement &lt;%1&gt;&#xa0;: </translation>
    </message>
    <message>
        <source>Specify base point or [Displacement] &lt;Displacement&gt;: </source>
        <translation>Spécifiez le point de base ou [Displacement] &lt;Displacement&gt;&#xa0;: </translation>
    </message>
    <message>
        <source>Specify second point or &lt;use first point as displacement&gt;: </source>
        <translation>Spécifiez le second point ou &lt;utiliser le premier point comme déplacement&gt;&#xa0;: </translation>
    </message>
    <message>
        <source>Cannot find %1 &quot;%2&quot;.</source>
        <translation>Introuvable&#xa0;: %1 &quot;%2&quot;.</translation>
    </message>
    <message>
        <source>%1 already exists. Replace it? [Yes/No] &lt;No&gt;: </source>
        <translation>%1 existe déjà. Le remplacer&#xa0;? [Yes/No] &lt;No&gt;&#xa0;: </translation>
    </message>
    <message>
        <source>Specify the reference angle &lt;%1&gt;: </source>
        <translation>Spécifiez l&apos;angle de référence &lt;%1&gt;&#xa0;: </translation>
    </message>
    <message>
        <source>Specify the new angle or [Points] &lt;%1&gt;: </source>
        <translation>Spécifiez le nouvel angle ou [Points] &lt;%1&gt;&#xa0;: </translation>
    </message>
    <message>
        <source>Specify reference length &lt;%1&gt;: </source>
        <translation>Spécifiez la longueur de référence &lt;%1&gt;&#xa0;: </translation>
    </message>
    <message>
        <source>Specify new length or [Points] &lt;%1&gt;: </source>
        <translation>Spécifiez la nouvelle longueur ou [Points] &lt;%1&gt;&#xa0;: </translation>
    </message>
    <message>
        <source>(ADD mode) </source>
        <translation>(Mode ADDITION) </translation>
    </message>
    <message>
        <source>(SUBTRACT mode) </source>
        <translation>(Mode SOUSTRACTION) </translation>
    </message>
    <message>
        <source>
Area = %1, %2 = %3</source>
        <translation>
Aire = %1, %2 = %3</translation>
    </message>
    <message>
        <source>
Total area = %1</source>
        <translation>
Aire totale = %1</translation>
    </message>
    <message>
        <source>
Selected object does not have an area.</source>
        <translation>
L&apos;objet sélectionné n&apos;a pas d&apos;aire.</translation>
    </message>
    <message>
        <source>%1Specify next point or [Undo]: </source>
        <translation>%1Spécifiez le point suivant ou [Undo]&#xa0;: </translation>
    </message>
    <message>
        <source>%1Specify next point or [Undo/Total] &lt;Total&gt;: </source>
        <translation>%1Spécifiez le point suivant ou [Undo/Total] &lt;Total&gt;&#xa0;: </translation>
    </message>
    <message>
        <source>Specify first corner point or [Object/Add area/Subtract area] &lt;Object&gt;: </source>
        <translation>Spécifiez le premier coin ou [Object/Add area/Subtract area] &lt;Object&gt;&#xa0;: </translation>
    </message>
    <message>
        <source>Specify first corner point or [Object/Subtract area]: </source>
        <translation>Spécifiez le premier coin ou [Object/Subtract area]&#xa0;: </translation>
    </message>
    <message>
        <source>Specify first corner point or [Object/Add area]: </source>
        <translation>Spécifiez le premier coin ou [Object/Add area]&#xa0;: </translation>
    </message>
    <message>
        <source>Select object: </source>
        <translation>Sélectionnez un objet&#xa0;: </translation>
    </message>
    <message>
        <source>Specify second break point or [First point]: </source>
        <translation>Spécifiez le second point de coupure ou [First point]&#xa0;: </translation>
    </message>
    <message>
        <source>Specify first break point: </source>
        <translation>Spécifiez le premier point de coupure&#xa0;: </translation>
    </message>
    <message>
        <source>Specify second break point: </source>
        <translation>Spécifiez le second point de coupure&#xa0;: </translation>
    </message>
    <message>
        <source>A whole circle or ellipse cannot be broken at one point.</source>
        <translation>Un cercle ou une ellipse entière ne peut pas être coupé en un seul point.</translation>
    </message>
    <message>
        <source>The object cannot be broken there.</source>
        <translation>L&apos;objet ne peut pas être coupé à cet endroit.</translation>
    </message>
    <message>
        <source>The lines are parallel.</source>
        <translation>Les lignes sont parallèles.</translation>
    </message>
    <message>
        <source>The lines are one.</source>
        <translation>Les lignes n&apos;en font qu&apos;une.</translation>
    </message>
    <message>
        <source>The angle leads to no cut.</source>
        <translation>L&apos;angle ne mène à aucune coupe.</translation>
    </message>
    <message>
        <source>Radius is too large.</source>
        <translation>Le rayon est trop grand.</translation>
    </message>
    <message>
        <source>Distance is too large.</source>
        <translation>La distance est trop grande.</translation>
    </message>
    <message>
        <source>There is no arc of that radius.</source>
        <translation>Il n&apos;y a pas d&apos;arc de ce rayon.</translation>
    </message>
    <message>
        <source>They do not lie in one plane.</source>
        <translation>Ils ne sont pas dans un même plan.</translation>
    </message>
    <message>
        <source>Two different ones are needed.</source>
        <translation>Deux objets différents sont nécessaires.</translation>
    </message>
    <message>
        <source>Only straight lines can be chamfered.</source>
        <translation>Seules les lignes droites peuvent être chanfreinées.</translation>
    </message>
    <message>
        <source>Enter Trim mode option [Trim/No trim]</source>
        <translation>Entrez l&apos;option du mode d&apos;ajustement [Trim/No trim]</translation>
    </message>
    <message>
        <source>Specify first chamfer distance</source>
        <translation>Spécifiez la première distance de chanfrein</translation>
    </message>
    <message>
        <source>Specify second chamfer distance</source>
        <translation>Spécifiez la seconde distance de chanfrein</translation>
    </message>
    <message>
        <source>Specify chamfer length on the first line</source>
        <translation>Spécifiez la longueur du chanfrein sur la première ligne</translation>
    </message>
    <message>
        <source>Specify chamfer angle from the first line &lt;%1&gt;: </source>
        <translation>Spécifiez l&apos;angle du chanfrein depuis la première ligne &lt;%1&gt;&#xa0;: </translation>
    </message>
    <message>
        <source>Specify fillet radius</source>
        <translation>Spécifiez le rayon de raccord</translation>
    </message>
    <message>
        <source>Enter trim method [Distance/Angle]</source>
        <translation>Entrez la méthode d&apos;ajustement [Distance/Angle]</translation>
    </message>
    <message>
        <source>Select 2D polyline or [Radius]: </source>
        <translation>Sélectionnez une polyligne 2D ou [Radius]&#xa0;: </translation>
    </message>
    <message>
        <source>Select 2D polyline or [Distance/Angle/mEthod]: </source>
        <translation>Sélectionnez une polyligne 2D ou [Distance/Angle/mEthod]&#xa0;: </translation>
    </message>
    <message>
        <source>Requires a flat polyline.</source>
        <translation>Une polyligne plane est nécessaire.</translation>
    </message>
    <message>
        <source>
%1 lines were filleted</source>
        <translation>
%1 lignes ont été raccordées</translation>
    </message>
    <message>
        <source>
%1 lines were chamfered</source>
        <translation>
%1 lignes ont été chanfreinées</translation>
    </message>
    <message>
        <source>
%1 were too short</source>
        <translation>
%1 étaient trop courtes</translation>
    </message>
    <message>
        <source>
%1 were parallel</source>
        <translation>
%1 étaient parallèles</translation>
    </message>
    <message>
        <source>Requires a line, arc, circle or straight stretch of a polyline in the user&apos;s plane.</source>
        <translation>Une ligne, un arc, un cercle ou une partie droite de polyligne dans le plan de l&apos;utilisateur est nécessaire.</translation>
    </message>
    <message>
        <source>Select second object or [Radius]: </source>
        <translation>Sélectionnez le second objet ou [Radius]&#xa0;: </translation>
    </message>
    <message>
        <source>Select second line or [Distance/Angle/Method]: </source>
        <translation>Sélectionnez la seconde ligne ou [Distance/Angle/Method]&#xa0;: </translation>
    </message>
    <message>
        <source>Select first object or [Undo/Polyline/Radius/Trim/Multiple]: </source>
        <translation>Sélectionnez le premier objet ou [Undo/Polyline/Radius/Trim/Multiple]&#xa0;: </translation>
    </message>
    <message>
        <source>Select first line or [Undo/Polyline/Distance/Angle/Trim/mEthod/Multiple]: </source>
        <translation>Sélectionnez la première ligne ou [Undo/Polyline/Distance/Angle/Trim/mEthod/Multiple]&#xa0;: </translation>
    </message>
    <message>
        <source>
Nothing to undo</source>
        <translation>
Rien à annuler</translation>
    </message>
    <message>
        <source>
Current settings: Mode = %1, Radius = %2</source>
        <translation>
Paramètres courants&#xa0;: Mode = %1, Rayon = %2</translation>
    </message>
    <message>
        <source>
(%1 mode) Current chamfer Dist1 = %2, Dist2 = %3</source>
        <translation>
(mode %1) Chanfrein courant Dist1 = %2, Dist2 = %3</translation>
    </message>
    <message>
        <source>The corner has no room for that.</source>
        <translation>Le coin n&apos;a pas assez de place pour cela.</translation>
    </message>
    <message>
        <source>Only the ends of open polylines, lines and arcs can be joined.</source>
        <translation>Seules les extrémités de polylignes ouvertes, de lignes et d&apos;arcs peuvent être jointes.</translation>
    </message>
    <message>
        <source>Only neighbouring stretches of a polyline make a corner.</source>
        <translation>Seules des parties voisines d&apos;une polyligne forment un coin.</translation>
    </message>
    <message>
        <source>Enter name of block to insert: </source>
        <translation>Entrez le nom du bloc à insérer&#xa0;: </translation>
    </message>
    <message>
        <source>Align block with object?</source>
        <translation>Aligner le bloc sur l&apos;objet&#xa0;?</translation>
    </message>
    <message>
        <source>Select object to divide: </source>
        <translation>Sélectionnez l&apos;objet à diviser&#xa0;: </translation>
    </message>
    <message>
        <source>Enter the number of segments or [Block]: </source>
        <translation>Entrez le nombre de segments ou [Block]&#xa0;: </translation>
    </message>
    <message>
        <source>Enter the number of segments: </source>
        <translation>Entrez le nombre de segments&#xa0;: </translation>
    </message>
    <message>
        <source>The number must be between 2 and %1.</source>
        <translation>Le nombre doit être compris entre 2 et %1.</translation>
    </message>
    <message>
        <source>Select object to measure: </source>
        <translation>Sélectionnez l&apos;objet à mesurer&#xa0;: </translation>
    </message>
    <message>
        <source>Specify length of segment or [Block]: </source>
        <translation>Spécifiez la longueur du segment ou [Block]&#xa0;: </translation>
    </message>
    <message>
        <source>Specify length of segment: </source>
        <translation>Spécifiez la longueur du segment&#xa0;: </translation>
    </message>
    <message>
        <source>These would be more than %1.</source>
        <translation>Cela en ferait plus de %1.</translation>
    </message>
    <message>
        <source>
%1 lines joined into 1 line</source>
        <translation>
%1 lignes jointes en 1 ligne</translation>
    </message>
    <message>
        <source>
%1 arcs joined into 1 arc</source>
        <translation>
%1 arcs joints en 1 arc</translation>
    </message>
    <message>
        <source>
%1 ellipses joined into 1 ellipse</source>
        <translation>
%1 ellipses jointes en 1 ellipse</translation>
    </message>
    <message>
        <source>
%1 objects converted to 1 polyline</source>
        <translation>
%1 objets convertis en 1 polyligne</translation>
    </message>
    <message>
        <source>
%1 objects converted to 1 spline</source>
        <translation>
%1 objets convertis en 1 spline</translation>
    </message>
    <message>
        <source>
%1 objects discarded from the operation</source>
        <translation>
%1 objets écartés de l&apos;opération</translation>
    </message>
    <message>
        <source>Select source object or multiple objects to join at once: </source>
        <translation>Sélectionnez l&apos;objet source ou plusieurs objets à joindre à la fois&#xa0;: </translation>
    </message>
    <message>
        <source>Select arcs to join to source or [cLose]: </source>
        <translation>Sélectionnez les arcs à joindre à la source ou [cLose]&#xa0;: </translation>
    </message>
    <message>
        <source>Select objects to join: </source>
        <translation>Sélectionnez les objets à joindre&#xa0;: </translation>
    </message>
    <message>
        <source>
Current length: %1</source>
        <translation>
Longueur courante&#xa0;: %1</translation>
    </message>
    <message>
        <source>, included angle: %1</source>
        <translation>, angle décrit&#xa0;: %1</translation>
    </message>
    <message>
        <source>
This object cannot be lengthened.</source>
        <translation>
Cet objet ne peut pas être modifié en longueur.</translation>
    </message>
    <message>
        <source>Select an object to change or [Undo]: </source>
        <translation>Sélectionnez un objet à modifier ou [Undo]&#xa0;: </translation>
    </message>
    <message>
        <source>Specify new endpoint: </source>
        <translation>Spécifiez la nouvelle extrémité&#xa0;: </translation>
    </message>
    <message>
        <source>
The object cannot have that length.</source>
        <translation>
L&apos;objet ne peut pas avoir cette longueur.</translation>
    </message>
    <message>
        <source>Enter delta length or [Angle] &lt;%1&gt;: </source>
        <translation>Entrez l&apos;écart de longueur ou [Angle] &lt;%1&gt;&#xa0;: </translation>
    </message>
    <message>
        <source>Enter delta angle &lt;%1&gt;: </source>
        <translation>Entrez l&apos;écart d&apos;angle &lt;%1&gt;&#xa0;: </translation>
    </message>
    <message>
        <source>Specify total length or [Angle] &lt;%1&gt;: </source>
        <translation>Spécifiez la longueur totale ou [Angle] &lt;%1&gt;&#xa0;: </translation>
    </message>
    <message>
        <source>Specify total angle &lt;%1&gt;: </source>
        <translation>Spécifiez l&apos;angle total &lt;%1&gt;&#xa0;: </translation>
    </message>
    <message>
        <source>Enter percentage length &lt;100.0000&gt;: </source>
        <translation>Entrez la longueur en pour cent &lt;100.0000&gt;&#xa0;: </translation>
    </message>
    <message>
        <source>Select an object to measure or [DElta/Percent/Total/DYnamic]: </source>
        <translation>Sélectionnez un objet à mesurer ou [DElta/Percent/Total/DYnamic]&#xa0;: </translation>
    </message>
    <message>
        <source>Specify offset distance or [Through/Erase/Layer] &lt;%1&gt;: </source>
        <translation>Spécifiez la distance de décalage ou [Through/Erase/Layer] &lt;%1&gt;&#xa0;: </translation>
    </message>
    <message>
        <source>Erase source object after offsetting?</source>
        <translation>Effacer l&apos;objet source après le décalage&#xa0;?</translation>
    </message>
    <message>
        <source>Enter layer option for offset objects [Current/Source]</source>
        <translation>Entrez l&apos;option de calque des objets décalés [Current/Source]</translation>
    </message>
    <message>
        <source>Specify through point</source>
        <translation>Spécifiez le point de passage</translation>
    </message>
    <message>
        <source>Specify point on side to offset</source>
        <translation>Spécifiez un point du côté à décaler</translation>
    </message>
    <message>
        <source> or [Exit/Undo] &lt;next object&gt;: </source>
        <translation> ou [Exit/Undo] &lt;objet suivant&gt;&#xa0;: </translation>
    </message>
    <message>
        <source> or [Exit/Multiple/Undo] &lt;Exit&gt;: </source>
        <translation> ou [Exit/Multiple/Undo] &lt;Exit&gt;&#xa0;: </translation>
    </message>
    <message>
        <source>Cannot offset that object so far.</source>
        <translation>Cet objet ne peut pas être décalé d&apos;autant.</translation>
    </message>
    <message>
        <source>
Select object to offset or [Exit/Undo] &lt;Exit&gt;: </source>
        <translation>
Sélectionnez l&apos;objet à décaler ou [Exit/Undo] &lt;Exit&gt;&#xa0;: </translation>
    </message>
    <message>
        <source>Cannot offset that object.</source>
        <translation>Cet objet ne peut pas être décalé.</translation>
    </message>
    <message>
        <source>Enter property to ignore [%1]</source>
        <translation>Entrez la propriété à ignorer [%1]</translation>
    </message>
    <message>
        <source>Enter an option to change [Done/Ignore/Tolerance/Overlaps/Endtoend]</source>
        <translation>Entrez une option à modifier [Done/Ignore/Tolerance/Overlaps/Endtoend]</translation>
    </message>
    <message>
        <source>Specify tolerance</source>
        <translation>Spécifiez la tolérance</translation>
    </message>
    <message>
        <source>Combine lines and arcs that overlap?</source>
        <translation>Réunir les lignes et arcs qui se recouvrent&#xa0;?</translation>
    </message>
    <message>
        <source>Combine lines and arcs that meet end to end?</source>
        <translation>Réunir les lignes et arcs qui se touchent bout à bout&#xa0;?</translation>
    </message>
    <message>
        <source>
%1 duplicate(s) deleted</source>
        <translation>
%1 doublon(s) supprimé(s)</translation>
    </message>
    <message>
        <source>
%1 overlapping object(s) or segment(s) deleted</source>
        <translation>
%1 objet(s) ou segment(s) se recouvrant supprimé(s)</translation>
    </message>
    <message>
        <source>
Select polyline or [Multiple]: </source>
        <translation>
Sélectionnez une polyligne ou [Multiple]&#xa0;: </translation>
    </message>
    <message>
        <source>Object selected is not a polyline.</source>
        <translation>L&apos;objet sélectionné n&apos;est pas une polyligne.</translation>
    </message>
    <message>
        <source>
Object selected is not a polyline</source>
        <translation>
L&apos;objet sélectionné n&apos;est pas une polyligne</translation>
    </message>
    <message>
        <source>Do you want to turn it into one?</source>
        <translation>Voulez-vous le transformer en polyligne&#xa0;?</translation>
    </message>
    <message>
        <source>Convert Lines, Arcs and Splines to polylines</source>
        <translation>Convertir les lignes, arcs et splines en polylignes</translation>
    </message>
    <message>
        <source>
Splines do not become part of a polyline: %1 left out.</source>
        <translation>
Les splines ne deviennent pas partie d&apos;une polyligne&#xa0;: %1 omises.</translation>
    </message>
    <message>
        <source>
%1 segments added to polyline</source>
        <translation>
%1 segments ajoutés à la polyligne</translation>
    </message>
    <message>
        <source>Enter fuzz distance or [Jointype] &lt;%1&gt;: </source>
        <translation>Entrez la distance d&apos;approximation ou [Jointype] &lt;%1&gt;&#xa0;: </translation>
    </message>
    <message>
        <source>Enter a vertex join type [Extend/Add/Both]</source>
        <translation>Entrez le type de jonction des sommets [Extend/Add/Both]</translation>
    </message>
    <message>
        <source>
%1 segments added to %2 polylines</source>
        <translation>
%1 segments ajoutés à %2 polylignes</translation>
    </message>
    <message>
        <source>Specify new width for all segments: </source>
        <translation>Spécifiez la nouvelle largeur de tous les segments&#xa0;: </translation>
    </message>
    <message>
        <source>Enter polyline linetype generation option [ON/OFF]</source>
        <translation>Entrez l&apos;option de génération du type de ligne de la polyligne [ON/OFF]</translation>
    </message>
    <message>
        <source>Enter an option [Close/Open/Join/Width/Fit/Spline/Decurve/Ltype gen/Reverse/Undo]: </source>
        <translation>Entrez une option [Close/Open/Join/Width/Fit/Spline/Decurve/Ltype gen/Reverse/Undo]&#xa0;: </translation>
    </message>
    <message>
        <source>Enter an option [%1/Edit vertex/Spline curve/Decurve/Reverse/Undo]: </source>
        <translation>Entrez une option [%1/Edit vertex/Spline curve/Decurve/Reverse/Undo]&#xa0;: </translation>
    </message>
    <message>
        <source>Enter an option [%1/Join/Width/Edit vertex/Fit/Spline/Decurve/Ltype gen/Reverse/Undo]: </source>
        <translation>Entrez une option [%1/Join/Width/Edit vertex/Fit/Spline/Decurve/Ltype gen/Reverse/Undo]&#xa0;: </translation>
    </message>
    <message>
        <source>Enter an option [Next/Previous/Go/eXit] &lt;N&gt;: </source>
        <translation>Entrez une option [Next/Previous/Go/eXit] &lt;N&gt;&#xa0;: </translation>
    </message>
    <message>
        <source>
Nothing would be left on one side.</source>
        <translation>
Il ne resterait rien d&apos;un côté.</translation>
    </message>
    <message>
        <source>Specify starting width for next segment</source>
        <translation>Spécifiez la largeur de départ du segment suivant</translation>
    </message>
    <message>
        <source>Specify ending width for next segment</source>
        <translation>Spécifiez la largeur de fin du segment suivant</translation>
    </message>
    <message>
        <source>Specify location for new vertex: </source>
        <translation>Spécifiez l&apos;emplacement du nouveau sommet&#xa0;: </translation>
    </message>
    <message>
        <source>Specify direction of vertex tangent: </source>
        <translation>Spécifiez la direction de la tangente au sommet&#xa0;: </translation>
    </message>
    <message>
        <source>Enter a vertex editing option [Next/Previous/Break/Insert/Move/Regen/Straighten/%1eXit] &lt;N&gt;: </source>
        <translation>Entrez une option d&apos;édition de sommet [Next/Previous/Break/Insert/Move/Regen/Straighten/%1eXit] &lt;N&gt;&#xa0;: </translation>
    </message>
    <message>
        <source>Specify new location for marked vertex: </source>
        <translation>Spécifiez le nouvel emplacement du sommet marqué&#xa0;: </translation>
    </message>
    <message>
        <source>
That object is on a locked layer.</source>
        <translation>
Cet objet est sur un calque verrouillé.</translation>
    </message>
    <message>
        <source>
Cannot %1 this object.</source>
        <translation>
%1 n&apos;est pas possible sur cet objet.</translation>
    </message>
    <message>
        <source>
Cannot EXTEND this object.</source>
        <translation>
EXTEND n&apos;est pas possible sur cet objet.</translation>
    </message>
    <message>
        <source>
Object does not intersect an edge.</source>
        <translation>
L&apos;objet ne coupe aucune arête.</translation>
    </message>
    <message>
        <source>
Command has been completely undone.</source>
        <translation>
La commande a été entièrement annulée.</translation>
    </message>
    <message>
        <source>Specify first fence point: </source>
        <translation>Spécifiez le premier point du trajet&#xa0;: </translation>
    </message>
    <message>
        <source>Specify next fence point or [Undo]: </source>
        <translation>Spécifiez le point suivant du trajet ou [Undo]&#xa0;: </translation>
    </message>
    <message>
        <source>Enter a projection option [None/Ucs/View]</source>
        <translation>Entrez une option de projection [None/Ucs/View]</translation>
    </message>
    <message>
        <source>Enter an implied edge extension mode [Extend/No extend]</source>
        <translation>Entrez le mode de prolongement implicite des arêtes [Extend/No extend]</translation>
    </message>
    <message>
        <source>
Current settings: Projection=%1, Edge=%2</source>
        <translation>
Paramètres courants&#xa0;: Projection=%1, Côté=%2</translation>
    </message>
    <message>
        <source>
Select boundary edges ...</source>
        <translation>
Sélectionnez les arêtes limites ...</translation>
    </message>
    <message>
        <source>
Select cutting edges ...</source>
        <translation>
Sélectionnez les arêtes sécantes ...</translation>
    </message>
    <message>
        <source>Select object to extend or [Fence/Crossing/Project/Edge/Undo]: </source>
        <translation>Sélectionnez l&apos;objet à prolonger ou [Fence/Crossing/Project/Edge/Undo]&#xa0;: </translation>
    </message>
    <message>
        <source>Select object to trim or [Fence/Crossing/Project/Edge/eRase/Undo]: </source>
        <translation>Sélectionnez l&apos;objet à ajuster ou [Fence/Crossing/Project/Edge/eRase/Undo]&#xa0;: </translation>
    </message>
    <message>
        <source>Specify included angle: </source>
        <translation>Spécifiez l&apos;angle décrit&#xa0;: </translation>
    </message>
    <message>
        <source>Specify end point of arc or [Angle/chord Length]: </source>
        <translation>Spécifiez l&apos;extrémité de l&apos;arc ou [Angle/chord Length]&#xa0;: </translation>
    </message>
    <message>
        <source>Specify length of chord: </source>
        <translation>Spécifiez la longueur de la corde&#xa0;: </translation>
    </message>
    <message>
        <source>Specify end point of arc: </source>
        <translation>Spécifiez l&apos;extrémité de l&apos;arc&#xa0;: </translation>
    </message>
    <message>
        <source>Specify center point of arc or [Angle/Direction/Radius]: </source>
        <translation>Spécifiez le centre de l&apos;arc ou [Angle/Direction/Radius]&#xa0;: </translation>
    </message>
    <message>
        <source>Specify tangent direction for the start point of arc: </source>
        <translation>Spécifiez la direction de la tangente au point de départ de l&apos;arc&#xa0;: </translation>
    </message>
    <message>
        <source>Specify radius of arc: </source>
        <translation>Spécifiez le rayon de l&apos;arc&#xa0;: </translation>
    </message>
    <message>
        <source>Specify second point of arc or [Center/End]: </source>
        <translation>Spécifiez le second point de l&apos;arc ou [Center/End]&#xa0;: </translation>
    </message>
    <message>
        <source>Specify center point of arc: </source>
        <translation>Spécifiez le centre de l&apos;arc&#xa0;: </translation>
    </message>
    <message>
        <source>Specify start point of arc or [Center]: </source>
        <translation>Spécifiez le point de départ de l&apos;arc ou [Center]&#xa0;: </translation>
    </message>
    <message>
        <source>No line or arc to continue.</source>
        <translation>Aucune ligne ni aucun arc à continuer.</translation>
    </message>
    <message>
        <source>Specify start point of arc: </source>
        <translation>Spécifiez le point de départ de l&apos;arc&#xa0;: </translation>
    </message>
    <message>
        <source>There is no such arc.</source>
        <translation>Un tel arc n&apos;existe pas.</translation>
    </message>
    <message>
        <source>Specify first end point of circle&apos;s diameter: </source>
        <translation>Spécifiez la première extrémité du diamètre du cercle&#xa0;: </translation>
    </message>
    <message>
        <source>Specify second end point of circle&apos;s diameter: </source>
        <translation>Spécifiez la seconde extrémité du diamètre du cercle&#xa0;: </translation>
    </message>
    <message>
        <source>Specify first point on circle: </source>
        <translation>Spécifiez le premier point du cercle&#xa0;: </translation>
    </message>
    <message>
        <source>Specify second point on circle: </source>
        <translation>Spécifiez le second point du cercle&#xa0;: </translation>
    </message>
    <message>
        <source>Specify third point on circle: </source>
        <translation>Spécifiez le troisième point du cercle&#xa0;: </translation>
    </message>
    <message>
        <source>Circle does not exist: the points lie in one line.</source>
        <translation>Le cercle n&apos;existe pas&#xa0;: les points sont alignés.</translation>
    </message>
    <message>
        <source>Specify diameter of circle</source>
        <translation>Spécifiez le diamètre du cercle</translation>
    </message>
    <message>
        <source>Specify point on object for first tangent of circle: </source>
        <translation>Spécifiez un point sur l&apos;objet pour la première tangente du cercle&#xa0;: </translation>
    </message>
    <message>
        <source>Specify point on object for second tangent of circle: </source>
        <translation>Spécifiez un point sur l&apos;objet pour la seconde tangente du cercle&#xa0;: </translation>
    </message>
    <message>
        <source>Requires a line, an arc or a circle in the user&apos;s plane.</source>
        <translation>Une ligne, un arc ou un cercle dans le plan de l&apos;utilisateur est nécessaire.</translation>
    </message>
    <message>
        <source>Specify radius of circle</source>
        <translation>Spécifiez le rayon du cercle</translation>
    </message>
    <message>
        <source>Circle does not exist.</source>
        <translation>Le cercle n&apos;existe pas.</translation>
    </message>
    <message>
        <source>Specify center point for circle or [3P/2P/Ttr (tan tan radius)]: </source>
        <translation>Spécifiez le centre du cercle ou [3P/2P/Ttr (tan tan radius)]&#xa0;: </translation>
    </message>
    <message>
        <source>Specify radius of circle or [Diameter]</source>
        <translation>Spécifiez le rayon du cercle ou [Diameter]</translation>
    </message>
    <message>
        <source>Circle does not exist: the points are one.</source>
        <translation>Le cercle n&apos;existe pas&#xa0;: les points n&apos;en font qu&apos;un.</translation>
    </message>
    <message>
        <source>Specify through point: </source>
        <translation>Spécifiez le point de passage&#xa0;: </translation>
    </message>
    <message>
        <source>Select a line object: </source>
        <translation>Sélectionnez une ligne&#xa0;: </translation>
    </message>
    <message>
        <source>Requires a line, a ray or a straight part of a polyline.</source>
        <translation>Une ligne, une demi-droite ou une partie droite de polyligne est nécessaire.</translation>
    </message>
    <message>
        <source>Enter angle of xline (%1) or [Reference]: </source>
        <translation>Entrez l&apos;angle de la droite (%1) ou [Reference]&#xa0;: </translation>
    </message>
    <message>
        <source>Enter angle of xline &lt;%1&gt;: </source>
        <translation>Entrez l&apos;angle de la droite &lt;%1&gt;&#xa0;: </translation>
    </message>
    <message>
        <source>Specify angle vertex point: </source>
        <translation>Spécifiez le sommet de l&apos;angle&#xa0;: </translation>
    </message>
    <message>
        <source>Specify angle start point: </source>
        <translation>Spécifiez le point de départ de l&apos;angle&#xa0;: </translation>
    </message>
    <message>
        <source>Specify angle end point: </source>
        <translation>Spécifiez le point de fin de l&apos;angle&#xa0;: </translation>
    </message>
    <message>
        <source>Specify offset distance or [Through] &lt;%1&gt;: </source>
        <translation>Spécifiez la distance de décalage ou [Through] &lt;%1&gt;&#xa0;: </translation>
    </message>
    <message>
        <source>Specify side to offset: </source>
        <translation>Spécifiez le côté à décaler&#xa0;: </translation>
    </message>
    <message>
        <source>Specify a point or [Hor/Ver/Ang/Bisect/Offset]: </source>
        <translation>Spécifiez un point ou [Hor/Ver/Ang/Bisect/Offset]&#xa0;: </translation>
    </message>
    <message>
        <source>Length of line: </source>
        <translation>Longueur de la ligne&#xa0;: </translation>
    </message>
    <message>
        <source>Specify next point or [Close/Undo]: </source>
        <translation>Spécifiez le point suivant ou [Close/Undo]&#xa0;: </translation>
    </message>
    <message>
        <source>Specify a point: </source>
        <translation>Spécifiez un point&#xa0;: </translation>
    </message>
    <message>
        <source>Specify distance to other axis or [Rotation]: </source>
        <translation>Spécifiez la distance à l&apos;autre axe ou [Rotation]&#xa0;: </translation>
    </message>
    <message>
        <source>Specify rotation around major axis: </source>
        <translation>Spécifiez la rotation autour du grand axe&#xa0;: </translation>
    </message>
    <message>
        <source>An ellipse is turned by 0 to 89.4 degrees.</source>
        <translation>Une ellipse est tournée de 0 à 89.4 degrés.</translation>
    </message>
    <message>
        <source>Specify center of ellipse: </source>
        <translation>Spécifiez le centre de l&apos;ellipse&#xa0;: </translation>
    </message>
    <message>
        <source>Specify endpoint of axis: </source>
        <translation>Spécifiez l&apos;extrémité de l&apos;axe&#xa0;: </translation>
    </message>
    <message>
        <source>Specify other endpoint of axis: </source>
        <translation>Spécifiez l&apos;autre extrémité de l&apos;axe&#xa0;: </translation>
    </message>
    <message>
        <source>The endpoints of the axis are one point.</source>
        <translation>Les extrémités de l&apos;axe n&apos;en font qu&apos;une.</translation>
    </message>
    <message>
        <source>Specify end parameter or [Angle/Included angle]: </source>
        <translation>Spécifiez le paramètre de fin ou [Angle/Included angle]&#xa0;: </translation>
    </message>
    <message>
        <source>Specify end angle or [Parameter/Included angle]: </source>
        <translation>Spécifiez l&apos;angle de fin ou [Parameter/Included angle]&#xa0;: </translation>
    </message>
    <message>
        <source>Specify start parameter or [Angle]: </source>
        <translation>Spécifiez le paramètre de départ ou [Angle]&#xa0;: </translation>
    </message>
    <message>
        <source>Specify start angle or [Parameter]: </source>
        <translation>Spécifiez l&apos;angle de départ ou [Parameter]&#xa0;: </translation>
    </message>
    <message>
        <source>Specify included angle for arc &lt;180&gt;: </source>
        <translation>Spécifiez l&apos;angle décrit par l&apos;arc &lt;180&gt;&#xa0;: </translation>
    </message>
    <message>
        <source>Specify axis endpoint of ellipse or [Arc/Center]: </source>
        <translation>Spécifiez l&apos;extrémité d&apos;axe de l&apos;ellipse ou [Arc/Center]&#xa0;: </translation>
    </message>
    <message>
        <source>Specify axis endpoint of elliptical arc or [Center]: </source>
        <translation>Spécifiez l&apos;extrémité d&apos;axe de l&apos;arc elliptique ou [Center]&#xa0;: </translation>
    </message>
    <message>
        <source>Specify third point: </source>
        <translation>Spécifiez le troisième point&#xa0;: </translation>
    </message>
    <message>
        <source>Specify fourth point or &lt;exit&gt;: </source>
        <translation>Spécifiez le quatrième point ou &lt;quitter&gt;&#xa0;: </translation>
    </message>
    <message>
        <source>Specify trace width</source>
        <translation>Spécifiez la largeur du tracé</translation>
    </message>
    <message>
        <source>Specify first point or [Invisible]: </source>
        <translation>Spécifiez le premier point ou [Invisible]&#xa0;: </translation>
    </message>
    <message>
        <source>Specify second point or [Invisible]: </source>
        <translation>Spécifiez le second point ou [Invisible]&#xa0;: </translation>
    </message>
    <message>
        <source>Specify third point or [Invisible] &lt;exit&gt;: </source>
        <translation>Spécifiez le troisième point ou [Invisible] &lt;quitter&gt;&#xa0;: </translation>
    </message>
    <message>
        <source>Specify fourth point or [Invisible] &lt;create three-sided face&gt;: </source>
        <translation>Spécifiez le quatrième point ou [Invisible] &lt;créer une face à trois côtés&gt;&#xa0;: </translation>
    </message>
    <message>
        <source>Specify start point of polyline: </source>
        <translation>Spécifiez le point de départ de la polyligne&#xa0;: </translation>
    </message>
    <message>
        <source>Specify endpoint of line or [Close/Undo]: </source>
        <translation>Spécifiez l&apos;extrémité de la ligne ou [Close/Undo]&#xa0;: </translation>
    </message>
    <message>
        <source>Specify endpoint of line or [Undo]: </source>
        <translation>Spécifiez l&apos;extrémité de la ligne ou [Undo]&#xa0;: </translation>
    </message>
    <message>
        <source>
All segments already undone.</source>
        <translation>
Tous les segments sont déjà annulés.</translation>
    </message>
    <message>
        <source>Enter mline style name or [?]: </source>
        <translation>Entrez le nom du style de multiligne ou [?]&#xa0;: </translation>
    </message>
    <message>
        <source>Cannot find multiline style &quot;%1&quot;.</source>
        <translation>Style de multiligne &quot;%1&quot; introuvable.</translation>
    </message>
    <message>
        <source>
Current settings: Justification = %1, Scale = %2, Style = %3</source>
        <translation>
Paramètres courants&#xa0;: Justification = %1, Échelle = %2, Style = %3</translation>
    </message>
    <message>
        <source>Specify start point or [Justification/Scale/STyle]: </source>
        <translation>Spécifiez le point de départ ou [Justification/Scale/STyle]&#xa0;: </translation>
    </message>
    <message>
        <source>Enter justification type [Top/Zero/Bottom]</source>
        <translation>Entrez le type de justification [Top/Zero/Bottom]</translation>
    </message>
    <message>
        <source>Enter mline scale &lt;%1&gt;: </source>
        <translation>Entrez l&apos;échelle de la multiligne &lt;%1&gt;&#xa0;: </translation>
    </message>
    <message>
        <source>Enter number of sides &lt;%1&gt;: </source>
        <translation>Entrez le nombre de côtés &lt;%1&gt;&#xa0;: </translation>
    </message>
    <message>
        <source>A polygon has 3 to 1024 sides.</source>
        <translation>Un polygone a de 3 à 1024 côtés.</translation>
    </message>
    <message>
        <source>Specify first endpoint of edge: </source>
        <translation>Spécifiez la première extrémité du côté&#xa0;: </translation>
    </message>
    <message>
        <source>Specify second endpoint of edge: </source>
        <translation>Spécifiez la seconde extrémité du côté&#xa0;: </translation>
    </message>
    <message>
        <source>Enter an option [Inscribed in circle/Circumscribed about circle]</source>
        <translation>Entrez une option [Inscribed in circle/Circumscribed about circle]</translation>
    </message>
    <message>
        <source>Specify radius of circle: </source>
        <translation>Spécifiez le rayon du cercle&#xa0;: </translation>
    </message>
    <message>
        <source>Specify center of polygon or [Edge]: </source>
        <translation>Spécifiez le centre du polygone ou [Edge]&#xa0;: </translation>
    </message>
    <message>
        <source>The endpoints of the edge are one point.</source>
        <translation>Les extrémités du côté n&apos;en font qu&apos;une.</translation>
    </message>
    <message>
        <source>Specify inside diameter of donut</source>
        <translation>Spécifiez le diamètre intérieur de l&apos;anneau</translation>
    </message>
    <message>
        <source>Specify outside diameter of donut</source>
        <translation>Spécifiez le diamètre extérieur de l&apos;anneau</translation>
    </message>
    <message>
        <source>Specify center of donut or &lt;exit&gt;: </source>
        <translation>Spécifiez le centre de l&apos;anneau ou &lt;quitter&gt;&#xa0;: </translation>
    </message>
    <message>
        <source>Specify direction of chord for arc &lt;%1&gt;: </source>
        <translation>Spécifiez la direction de la corde de l&apos;arc &lt;%1&gt;&#xa0;: </translation>
    </message>
    <message>
        <source>Specify endpoint of arc or [CEnter/Radius]: </source>
        <translation>Spécifiez l&apos;extrémité de l&apos;arc ou [CEnter/Radius]&#xa0;: </translation>
    </message>
    <message>
        <source>Specify endpoint of arc or [Angle/Length]: </source>
        <translation>Spécifiez l&apos;extrémité de l&apos;arc ou [Angle/Length]&#xa0;: </translation>
    </message>
    <message>
        <source>Specify the tangent direction for the start point of arc: </source>
        <translation>Spécifiez la direction de la tangente au point de départ de l&apos;arc&#xa0;: </translation>
    </message>
    <message>
        <source>Specify endpoint of the arc: </source>
        <translation>Spécifiez l&apos;extrémité de l&apos;arc&#xa0;: </translation>
    </message>
    <message>
        <source>Specify endpoint of arc or [Angle]: </source>
        <translation>Spécifiez l&apos;extrémité de l&apos;arc ou [Angle]&#xa0;: </translation>
    </message>
    <message>
        <source>Specify second point on arc: </source>
        <translation>Spécifiez le second point de l&apos;arc&#xa0;: </translation>
    </message>
    <message>
        <source>Specify starting half-width &lt;%1&gt;: </source>
        <translation>Spécifiez la demi-largeur de départ &lt;%1&gt;&#xa0;: </translation>
    </message>
    <message>
        <source>Specify ending half-width &lt;%1&gt;: </source>
        <translation>Spécifiez la demi-largeur de fin &lt;%1&gt;&#xa0;: </translation>
    </message>
    <message>
        <source>Specify starting width &lt;%1&gt;: </source>
        <translation>Spécifiez la largeur de départ &lt;%1&gt;&#xa0;: </translation>
    </message>
    <message>
        <source>Specify ending width &lt;%1&gt;: </source>
        <translation>Spécifiez la largeur de fin &lt;%1&gt;&#xa0;: </translation>
    </message>
    <message>
        <source>Specify length of line: </source>
        <translation>Spécifiez la longueur de la ligne&#xa0;: </translation>
    </message>
    <message>
        <source>Specify endpoint of arc or [Angle/CEnter/%1Direction/Halfwidth/Line/Radius/Second pt/Undo/Width]: </source>
        <translation>Spécifiez l&apos;extrémité de l&apos;arc ou [Angle/CEnter/%1Direction/Halfwidth/Line/Radius/Second pt/Undo/Width]&#xa0;: </translation>
    </message>
    <message>
        <source>Specify next point or [Arc/%1Halfwidth/Length/Undo/Width]: </source>
        <translation>Spécifiez le point suivant ou [Arc/%1Halfwidth/Length/Undo/Width]&#xa0;: </translation>
    </message>
    <message>
        <source>
Current line-width is %1</source>
        <translation>
La largeur de ligne courante est %1</translation>
    </message>
    <message>
        <source>Specify fillet radius for rectangles</source>
        <translation>Spécifiez le rayon de raccord des rectangles</translation>
    </message>
    <message>
        <source>Specify first chamfer distance for rectangles</source>
        <translation>Spécifiez la première distance de chanfrein des rectangles</translation>
    </message>
    <message>
        <source>Specify second chamfer distance for rectangles</source>
        <translation>Spécifiez la seconde distance de chanfrein des rectangles</translation>
    </message>
    <message>
        <source>Specify first corner point or [Chamfer/Elevation/Fillet/Thickness/Width]: </source>
        <translation>Spécifiez le premier coin ou [Chamfer/Elevation/Fillet/Thickness/Width]&#xa0;: </translation>
    </message>
    <message>
        <source>Specify the elevation for rectangles</source>
        <translation>Spécifiez l&apos;élévation des rectangles</translation>
    </message>
    <message>
        <source>Specify thickness for rectangles</source>
        <translation>Spécifiez l&apos;épaisseur des rectangles</translation>
    </message>
    <message>
        <source>Specify line width for rectangles</source>
        <translation>Spécifiez la largeur de ligne des rectangles</translation>
    </message>
    <message>
        <source>Enter area of rectangle in current units</source>
        <translation>Entrez l&apos;aire du rectangle dans les unités courantes</translation>
    </message>
    <message>
        <source>Calculate rectangle dimensions based on [Length/Width]</source>
        <translation>Calculer les dimensions du rectangle d&apos;après [Length/Width]</translation>
    </message>
    <message>
        <source>Enter rectangle width</source>
        <translation>Entrez la largeur du rectangle</translation>
    </message>
    <message>
        <source>Enter rectangle length</source>
        <translation>Entrez la longueur du rectangle</translation>
    </message>
    <message>
        <source>Specify rotation angle or [Pick points] &lt;%1&gt;: </source>
        <translation>Spécifiez l&apos;angle de rotation ou [Pick points] &lt;%1&gt;&#xa0;: </translation>
    </message>
    <message>
        <source>Specify other corner point or [Area/Dimensions/Rotation]: </source>
        <translation>Spécifiez l&apos;autre coin ou [Area/Dimensions/Rotation]&#xa0;: </translation>
    </message>
    <message>
        <source>Specify length for rectangles</source>
        <translation>Spécifiez la longueur des rectangles</translation>
    </message>
    <message>
        <source>Specify width for rectangles</source>
        <translation>Spécifiez la largeur des rectangles</translation>
    </message>
    <message>
        <source>The corners of a rectangle lie neither above nor beside each other.</source>
        <translation>Les coins d&apos;un rectangle ne sont ni l&apos;un au-dessus ni l&apos;un à côté de l&apos;autre.</translation>
    </message>
    <message>
        <source>1 loop rejected: it crosses itself or branches.</source>
        <translation>1 boucle rejetée&#xa0;: elle se croise ou se ramifie.</translation>
    </message>
    <message>
        <source>%1 loops rejected: it crosses itself or branches.</source>
        <translation>%1 boucles rejetées&#xa0;: elles se croisent ou se ramifient.</translation>
    </message>
    <message>
        <source>1 loop rejected: it does not lie in a plane.</source>
        <translation>1 boucle rejetée&#xa0;: elle n&apos;est pas plane.</translation>
    </message>
    <message>
        <source>%1 loops rejected: it does not lie in a plane.</source>
        <translation>%1 boucles rejetées&#xa0;: elles ne sont pas planes.</translation>
    </message>
    <message>
        <source>1 loop rejected: it encloses nothing.</source>
        <translation>1 boucle rejetée&#xa0;: elle n&apos;entoure rien.</translation>
    </message>
    <message>
        <source>%1 loops rejected: it encloses nothing.</source>
        <translation>%1 boucles rejetées&#xa0;: elles n&apos;entourent rien.</translation>
    </message>
    <message>
        <source>1 curve rejected: it is not part of a closed loop.</source>
        <translation>1 courbe rejetée&#xa0;: elle ne fait pas partie d&apos;une boucle fermée.</translation>
    </message>
    <message>
        <source>%1 curves rejected: it is not part of a closed loop.</source>
        <translation>%1 courbes rejetées&#xa0;: elles ne font pas partie d&apos;une boucle fermée.</translation>
    </message>
    <message>
        <source>1 object rejected: it is no curve.</source>
        <translation>1 objet rejeté&#xa0;: ce n&apos;est pas une courbe.</translation>
    </message>
    <message>
        <source>%1 objects rejected: it is no curve.</source>
        <translation>%1 objets rejetés&#xa0;: ce ne sont pas des courbes.</translation>
    </message>
    <message>
        <source>Drawings of R12 have no regions.</source>
        <translation>Les dessins R12 n&apos;ont pas de régions.</translation>
    </message>
    <message>
        <source>
1 loop extracted.
1 Region created.</source>
        <translation>
1 boucle extraite.
1 région créée.</translation>
    </message>
    <message>
        <source>
%1 loops extracted.
%1 Regions created.</source>
        <translation>
%1 boucles extraites.
%1 régions créées.</translation>
    </message>
    <message>
        <source>Specify minimum length of arc</source>
        <translation>Spécifiez la longueur minimale des arcs</translation>
    </message>
    <message>
        <source>Specify maximum length of arc &lt;%1&gt;: </source>
        <translation>Spécifiez la longueur maximale des arcs &lt;%1&gt;&#xa0;: </translation>
    </message>
    <message>
        <source>Specify first corner point or [Arc length/Object/Rectangular/Polygonal/Freehand/Style] &lt;Object&gt;: </source>
        <translation>Spécifiez le premier coin ou [Arc length/Object/Rectangular/Polygonal/Freehand/Style] &lt;Object&gt;&#xa0;: </translation>
    </message>
    <message>
        <source>Specify start point or [Arc length/Object/Rectangular/Polygonal/Freehand/Style] &lt;Object&gt;: </source>
        <translation>Spécifiez le point de départ ou [Arc length/Object/Rectangular/Polygonal/Freehand/Style] &lt;Object&gt;&#xa0;: </translation>
    </message>
    <message>
        <source>Select arc style [Normal/Calligraphy]</source>
        <translation>Sélectionnez le style des arcs [Normal/Calligraphy]</translation>
    </message>
    <message>
        <source>Enter name of shape file to load: </source>
        <translation>Entrez le nom du fichier de formes à charger&#xa0;: </translation>
    </message>
    <message>
        <source>Cannot read shape file &quot;%1&quot;.</source>
        <translation>Impossible de lire le fichier de formes &quot;%1&quot;.</translation>
    </message>
    <message>
        <source>Enter shape name: </source>
        <translation>Entrez le nom de la forme&#xa0;: </translation>
    </message>
    <message>
        <source>Cannot find shape &quot;%1&quot;. Load its file first.</source>
        <translation>Forme &quot;%1&quot; introuvable. Chargez d&apos;abord son fichier.</translation>
    </message>
    <message>
        <source>Specify height &lt;1&gt;: </source>
        <translation>Spécifiez la hauteur &lt;1&gt;&#xa0;: </translation>
    </message>
    <message>
        <source>
Only polylines with the smoothing of splines can be converted.</source>
        <translation>
Seules les polylignes lissées en splines peuvent être converties.</translation>
    </message>
    <message>
        <source>Specify first point or [Method/Knots/Object]: </source>
        <translation>Spécifiez le premier point ou [Method/Knots/Object]&#xa0;: </translation>
    </message>
    <message>
        <source>Specify first point or [Method/Degree/Object]: </source>
        <translation>Spécifiez le premier point ou [Method/Degree/Object]&#xa0;: </translation>
    </message>
    <message>
        <source>Enter spline creation method [Fit/CV]</source>
        <translation>Entrez la méthode de création de la spline [Fit/CV]</translation>
    </message>
    <message>
        <source>Enter knot parameterization [Chord/Square root/Uniform]</source>
        <translation>Entrez le paramétrage des nœuds [Chord/Square root/Uniform]</translation>
    </message>
    <message>
        <source>Enter degree of spline &lt;%1&gt;: </source>
        <translation>Entrez le degré de la spline &lt;%1&gt;&#xa0;: </translation>
    </message>
    <message>
        <source>Enter next point or [%1Undo]: </source>
        <translation>Entrez le point suivant ou [%1Undo]&#xa0;: </translation>
    </message>
    <message>
        <source>Enter next point or [start Tangency/toLerance]: </source>
        <translation>Entrez le point suivant ou [start Tangency/toLerance]&#xa0;: </translation>
    </message>
    <message>
        <source>Enter next point or [%1Fit tolerance/Undo/end Tangency] &lt;start tangent&gt;: </source>
        <translation>Entrez le point suivant ou [%1Fit tolerance/Undo/end Tangency] &lt;tangente de départ&gt;&#xa0;: </translation>
    </message>
    <message>
        <source>
All points already undone.</source>
        <translation>
Tous les points sont déjà annulés.</translation>
    </message>
    <message>
        <source>Specify start tangent: </source>
        <translation>Spécifiez la tangente de départ&#xa0;: </translation>
    </message>
    <message>
        <source>Specify end tangent: </source>
        <translation>Spécifiez la tangente de fin&#xa0;: </translation>
    </message>
    <message>
        <source>Specify fit tolerance</source>
        <translation>Spécifiez la tolérance de lissage</translation>
    </message>
    <message>
        <source>Specify tangent: </source>
        <translation>Spécifiez la tangente&#xa0;: </translation>
    </message>
    <message>
        <source>Specify first source point: </source>
        <translation>Spécifiez le premier point source&#xa0;: </translation>
    </message>
    <message>
        <source>Specify first destination point: </source>
        <translation>Spécifiez le premier point de destination&#xa0;: </translation>
    </message>
    <message>
        <source>Specify second source point: </source>
        <translation>Spécifiez le deuxième point source&#xa0;: </translation>
    </message>
    <message>
        <source>Specify second destination point: </source>
        <translation>Spécifiez le deuxième point de destination&#xa0;: </translation>
    </message>
    <message>
        <source>Specify third source point or &lt;continue&gt;: </source>
        <translation>Spécifiez le troisième point source ou &lt;continuer&gt;&#xa0;: </translation>
    </message>
    <message>
        <source>Specify third destination point: </source>
        <translation>Spécifiez le troisième point de destination&#xa0;: </translation>
    </message>
    <message>
        <source>Scale objects based on alignment points? [Yes/No] &lt;N&gt;: </source>
        <translation>Mettre les objets à l&apos;échelle d&apos;après les points d&apos;alignement&#xa0;? [Yes/No] &lt;N&gt;&#xa0;: </translation>
    </message>
    <message>
        <source>The points say no direction.</source>
        <translation>Les points ne donnent aucune direction.</translation>
    </message>
    <message>
        <source>Specify first point on axis or define axis by [Xaxis/Yaxis/Zaxis/2points]: </source>
        <translation>Spécifiez le premier point de l&apos;axe ou définissez l&apos;axe par [Xaxis/Yaxis/Zaxis/2points]&#xa0;: </translation>
    </message>
    <message>
        <source>Specify a point on the %1 axis &lt;0,0,0&gt;: </source>
        <translation>Spécifiez un point sur l&apos;axe %1 &lt;0,0,0&gt;&#xa0;: </translation>
    </message>
    <message>
        <source>Specify first point on axis: </source>
        <translation>Spécifiez le premier point de l&apos;axe&#xa0;: </translation>
    </message>
    <message>
        <source>Specify second point on axis: </source>
        <translation>Spécifiez le second point de l&apos;axe&#xa0;: </translation>
    </message>
    <message>
        <source>Specify rotation angle or [Reference]: </source>
        <translation>Spécifiez l&apos;angle de rotation ou [Reference]&#xa0;: </translation>
    </message>
    <message>
        <source>Specify the distance between columns (|||): </source>
        <translation>Spécifiez la distance entre les colonnes (|||)&#xa0;: </translation>
    </message>
    <message>
        <source>
Enter the distance between rows or specify unit cell (---): </source>
        <translation>
Entrez la distance entre les rangées ou spécifiez une cellule (---)&#xa0;: </translation>
    </message>
    <message>
        <source>Enter the number of rows (---) &lt;1&gt;: </source>
        <translation>Entrez le nombre de rangées (---) &lt;1&gt;&#xa0;: </translation>
    </message>
    <message>
        <source>Enter the number of columns (|||) &lt;1&gt;: </source>
        <translation>Entrez le nombre de colonnes (|||) &lt;1&gt;&#xa0;: </translation>
    </message>
    <message>
        <source>One-element array, nothing to do.</source>
        <translation>Réseau d&apos;un seul élément, rien à faire.</translation>
    </message>
    <message>
        <source>Requires a distance other than 0, or two corners of a cell.</source>
        <translation>Une distance autre que 0 ou deux coins d&apos;une cellule sont nécessaires.</translation>
    </message>
    <message>
        <source>Enter the number of items in the array: </source>
        <translation>Entrez le nombre d&apos;éléments du réseau&#xa0;: </translation>
    </message>
    <message>
        <source>Specify the angle to fill (+=ccw, -=cw) &lt;360&gt;: </source>
        <translation>Spécifiez l&apos;angle à décrire (+=sens trigonométrique, -=sens horaire) &lt;360&gt;&#xa0;: </translation>
    </message>
    <message>
        <source>Angle between items: </source>
        <translation>Angle entre les éléments&#xa0;: </translation>
    </message>
    <message>
        <source>Specify center point of array or [Base]: </source>
        <translation>Spécifiez le centre du réseau ou [Base]&#xa0;: </translation>
    </message>
    <message>
        <source>Specify base point of objects: </source>
        <translation>Spécifiez le point de base des objets&#xa0;: </translation>
    </message>
    <message>
        <source>Specify center point of array: </source>
        <translation>Spécifiez le centre du réseau&#xa0;: </translation>
    </message>
    <message>
        <source>Requires a number of items or an angle between them.</source>
        <translation>Un nombre d&apos;éléments ou un angle entre eux est nécessaire.</translation>
    </message>
    <message>
        <source>Rotate arrayed objects? [Yes/No] &lt;Y&gt;: </source>
        <translation>Faire pivoter les objets du réseau&#xa0;? [Yes/No] &lt;Y&gt;&#xa0;: </translation>
    </message>
    <message>
        <source>Enter the type of array [Rectangular/Polar] &lt;R&gt;: </source>
        <translation>Entrez le type de réseau [Rectangular/Polar] &lt;R&gt;&#xa0;: </translation>
    </message>
    <message>
        <source>Enter property to change [%1]: </source>
        <translation>Entrez la propriété à modifier [%1]&#xa0;: </translation>
    </message>
    <message>
        <source>Specify change point or [Properties]: </source>
        <translation>Spécifiez le point de modification ou [Properties]&#xa0;: </translation>
    </message>
    <message>
        <source>Enter new text style &lt;%1&gt;: </source>
        <translation>Entrez le nouveau style de texte &lt;%1&gt;&#xa0;: </translation>
    </message>
    <message>
        <source>Specify new rotation angle &lt;%1&gt;: </source>
        <translation>Spécifiez le nouvel angle de rotation &lt;%1&gt;&#xa0;: </translation>
    </message>
    <message>
        <source>Enter new text &lt;%1&gt;: </source>
        <translation>Entrez le nouveau texte &lt;%1&gt;&#xa0;: </translation>
    </message>
    <message>
        <source>Enter new tag &lt;%1&gt;: </source>
        <translation>Entrez la nouvelle étiquette &lt;%1&gt;&#xa0;: </translation>
    </message>
    <message>
        <source>Enter new prompt &lt;%1&gt;: </source>
        <translation>Entrez la nouvelle invite &lt;%1&gt;&#xa0;: </translation>
    </message>
    <message>
        <source>Enter new default value &lt;%1&gt;: </source>
        <translation>Entrez la nouvelle valeur par défaut &lt;%1&gt;&#xa0;: </translation>
    </message>
    <message>
        <source>Specify new text insertion point &lt;no change&gt;: </source>
        <translation>Spécifiez le nouveau point d&apos;insertion du texte &lt;aucun changement&gt;&#xa0;: </translation>
    </message>
    <message>
        <source>Specify new block insertion point &lt;no change&gt;: </source>
        <translation>Spécifiez le nouveau point d&apos;insertion du bloc &lt;aucun changement&gt;&#xa0;: </translation>
    </message>
    <message>
        <source>Specify new block rotation angle &lt;%1&gt;: </source>
        <translation>Spécifiez le nouvel angle de rotation du bloc &lt;%1&gt;&#xa0;: </translation>
    </message>
    <message>
        <source>
%1 not changed.</source>
        <translation>
%1 non modifiés.</translation>
    </message>
    <message>
        <source>Enter object ordering option [Above objects/Under objects/Front/Back] &lt;Back&gt;: </source>
        <translation>Entrez une option d&apos;ordre des objets [Above objects/Under objects/Front/Back] &lt;Back&gt;&#xa0;: </translation>
    </message>
    <message>
        <source>Enter number of items to array: </source>
        <translation>Entrez le nombre d&apos;éléments du réseau&#xa0;: </translation>
    </message>
    <message>
        <source>Requires an integer of 2 or more.</source>
        <translation>Un nombre entier d&apos;au moins 2 est nécessaire.</translation>
    </message>
    <message>
        <source>Specify second point or [Fit]: </source>
        <translation>Spécifiez le second point ou [Fit]&#xa0;: </translation>
    </message>
    <message>
        <source>Specify second point or [Array] &lt;use first point as displacement&gt;: </source>
        <translation>Spécifiez le second point ou [Array] &lt;utiliser le premier point comme déplacement&gt;&#xa0;: </translation>
    </message>
    <message>
        <source>Specify second point or [Array/Exit/Undo] &lt;Exit&gt;: </source>
        <translation>Spécifiez le second point ou [Array/Exit/Undo] &lt;Exit&gt;&#xa0;: </translation>
    </message>
    <message>
        <source>Specify base point or [Displacement/mOde] &lt;Displacement&gt;: </source>
        <translation>Spécifiez le point de base ou [Displacement/mOde] &lt;Displacement&gt;&#xa0;: </translation>
    </message>
    <message>
        <source>Enter a copy mode option [Single/Multiple] &lt;Multiple&gt;: </source>
        <translation>Entrez une option de mode de copie [Single/Multiple] &lt;Multiple&gt;&#xa0;: </translation>
    </message>
    <message>
        <source>
Current positive angle in UCS:  ANGDIR=%1  ANGBASE=%2</source>
        <translation>
Angle positif courant dans le SCU&#xa0;:  ANGDIR=%1  ANGBASE=%2</translation>
    </message>
    <message>
        <source>Specify rotation angle or [Copy/Reference] &lt;%1&gt;: </source>
        <translation>Spécifiez l&apos;angle de rotation ou [Copy/Reference] &lt;%1&gt;&#xa0;: </translation>
    </message>
    <message>
        <source>
Rotating a copy of the selected objects.</source>
        <translation>
Rotation d&apos;une copie des objets sélectionnés.</translation>
    </message>
    <message>
        <source>Specify scale factor or [Copy/Reference]: </source>
        <translation>Spécifiez le facteur d&apos;échelle ou [Copy/Reference]&#xa0;: </translation>
    </message>
    <message>
        <source>
Scaling a copy of the selected objects.</source>
        <translation>
Mise à l&apos;échelle d&apos;une copie des objets sélectionnés.</translation>
    </message>
    <message>
        <source>Requires three numbers from 0 to 255.</source>
        <translation>Trois nombres de 0 à 255 sont nécessaires.</translation>
    </message>
    <message>
        <source>A drawing of this version has no such colors.</source>
        <translation>Un dessin de cette version n&apos;a pas de telles couleurs.</translation>
    </message>
    <message>
        <source>New color [Truecolor/COlorbook] &lt;%1&gt;: </source>
        <translation>Nouvelle couleur [Truecolor/COlorbook] &lt;%1&gt;&#xa0;: </translation>
    </message>
    <message>
        <source>Red,Green,Blue: </source>
        <translation>Rouge,Vert,Bleu&#xa0;: </translation>
    </message>
    <message>
        <source>This program has no color books.</source>
        <translation>Ce programme n&apos;a pas de nuanciers.</translation>
    </message>
    <message>
        <source>Requires a color number from 1 to 255 or a color name.</source>
        <translation>Un numéro de couleur de 1 à 255 ou un nom de couleur est nécessaire.</translation>
    </message>
    <message>
        <source>Enter new layer name &lt;%1&gt;: </source>
        <translation>Entrez le nouveau nom de calque &lt;%1&gt;&#xa0;: </translation>
    </message>
    <message>
        <source>Enter new linetype name &lt;%1&gt;: </source>
        <translation>Entrez le nouveau nom de type de ligne &lt;%1&gt;&#xa0;: </translation>
    </message>
    <message>
        <source>Cannot find linetype &quot;%1&quot;.</source>
        <translation>Type de ligne &quot;%1&quot; introuvable.</translation>
    </message>
    <message>
        <source>Specify new linetype scale &lt;%1&gt;: </source>
        <translation>Spécifiez la nouvelle échelle du type de ligne &lt;%1&gt;&#xa0;: </translation>
    </message>
    <message>
        <source>Enter new lineweight &lt;%1&gt;: </source>
        <translation>Entrez la nouvelle épaisseur de ligne &lt;%1&gt;&#xa0;: </translation>
    </message>
    <message>
        <source>A drawing of this version has no lineweights.</source>
        <translation>Un dessin de cette version n&apos;a pas d&apos;épaisseurs de ligne.</translation>
    </message>
    <message>
        <source>Requires a lineweight from 0 to 2.11.</source>
        <translation>Une épaisseur de ligne de 0 à 2.11 est nécessaire.</translation>
    </message>
    <message>
        <source>Specify new thickness &lt;%1&gt;: </source>
        <translation>Spécifiez la nouvelle épaisseur &lt;%1&gt;&#xa0;: </translation>
    </message>
    <message>
        <source>Enter new transparency value &lt;ByLayer&gt;: </source>
        <translation>Entrez la nouvelle valeur de transparence &lt;ByLayer&gt;&#xa0;: </translation>
    </message>
    <message>
        <source>A drawing of this version has no transparency.</source>
        <translation>Un dessin de cette version n&apos;a pas de transparence.</translation>
    </message>
    <message>
        <source>Requires an integer from 0 to 90.</source>
        <translation>Un nombre entier de 0 à 90 est nécessaire.</translation>
    </message>
    <message>
        <source>Specify new elevation &lt;%1&gt;: </source>
        <translation>Spécifiez la nouvelle élévation &lt;%1&gt;&#xa0;: </translation>
    </message>
    <message>
        <source>
%1 of the pieces could not be made.</source>
        <translation>
%1 des morceaux n&apos;ont pas pu être créés.</translation>
    </message>
    <message>
        <source>Specify stretch point or [Base point/Copy/Undo/eXit]: </source>
        <translation>Spécifiez le point d&apos;étirement ou [Base point/Copy/Undo/eXit]&#xa0;: </translation>
    </message>
    <message>
        <source>Specify move point or [Base point/Copy/Undo/eXit]: </source>
        <translation>Spécifiez le point de déplacement ou [Base point/Copy/Undo/eXit]&#xa0;: </translation>
    </message>
    <message>
        <source>Specify rotation angle or [Base point/Copy/Undo/Reference/eXit]: </source>
        <translation>Spécifiez l&apos;angle de rotation ou [Base point/Copy/Undo/Reference/eXit]&#xa0;: </translation>
    </message>
    <message>
        <source>Specify scale factor or [Base point/Copy/Undo/Reference/eXit]: </source>
        <translation>Spécifiez le facteur d&apos;échelle ou [Base point/Copy/Undo/Reference/eXit]&#xa0;: </translation>
    </message>
    <message>
        <source>Specify second point or [Base point/Copy/Undo/eXit]: </source>
        <translation>Spécifiez le second point ou [Base point/Copy/Undo/eXit]&#xa0;: </translation>
    </message>
    <message>
        <source> (multiple)</source>
        <translation> (multiple)</translation>
    </message>
    <message>
        <source>Specify grips to move: </source>
        <translation>Spécifiez les poignées à déplacer&#xa0;: </translation>
    </message>
    <message>
        <source>There is no grip of the chosen entities.</source>
        <translation>Les objets choisis n&apos;ont pas une telle poignée.</translation>
    </message>
    <message>
        <source>
There is nothing to undo.</source>
        <translation>
Il n&apos;y a rien à annuler.</translation>
    </message>
    <message>
        <source>Enter a setting to switch off or on [%1] &lt;exit&gt;: </source>
        <translation>Entrez un paramètre à désactiver ou activer [%1] &lt;quitter&gt;&#xa0;: </translation>
    </message>
    <message>
        <source>
%1 is %2.</source>
        <translation>
%1 est %2.</translation>
    </message>
    <message>
        <source>Select source object: </source>
        <translation>Sélectionnez l&apos;objet source&#xa0;: </translation>
    </message>
    <message>
        <source>
Current active settings:  </source>
        <translation>
Paramètres actifs&#xa0;:  </translation>
    </message>
    <message>
        <source>Select destination object(s) or [Settings]: </source>
        <translation>Sélectionnez les objets de destination ou [Settings]&#xa0;: </translation>
    </message>
    <message>
        <source>
%1 selected.</source>
        <translation>
%1 sélectionnés.</translation>
    </message>
    <message>
        <source>Specify first point of mirror line: </source>
        <translation>Spécifiez le premier point de la ligne de miroir&#xa0;: </translation>
    </message>
    <message>
        <source>Specify second point of mirror line: </source>
        <translation>Spécifiez le second point de la ligne de miroir&#xa0;: </translation>
    </message>
    <message>
        <source>Erase source objects? [Yes/No] &lt;N&gt;: </source>
        <translation>Effacer les objets source&#xa0;? [Yes/No] &lt;N&gt;&#xa0;: </translation>
    </message>
    <message>
        <source>Specify first point on mirror plane: </source>
        <translation>Spécifiez le premier point du plan de miroir&#xa0;: </translation>
    </message>
    <message>
        <source>Specify second point on mirror plane: </source>
        <translation>Spécifiez le deuxième point du plan de miroir&#xa0;: </translation>
    </message>
    <message>
        <source>Specify third point on mirror plane: </source>
        <translation>Spécifiez le troisième point du plan de miroir&#xa0;: </translation>
    </message>
    <message>
        <source>Specify point on %1 plane &lt;%2&gt;: </source>
        <translation>Spécifiez un point sur le plan %1 &lt;%2&gt;&#xa0;: </translation>
    </message>
    <message>
        <source>Specify first point of mirror plane (3 points) or [Zaxis/View/XY/YZ/ZX/3points] &lt;3points&gt;: </source>
        <translation>Spécifiez le premier point du plan de miroir (3 points) ou [Zaxis/View/XY/YZ/ZX/3points] &lt;3points&gt;&#xa0;: </translation>
    </message>
    <message>
        <source>Specify point on mirror plane: </source>
        <translation>Spécifiez un point du plan de miroir&#xa0;: </translation>
    </message>
    <message>
        <source>Specify point on Z-axis (normal) of mirror plane: </source>
        <translation>Spécifiez un point sur l&apos;axe Z (normale) du plan de miroir&#xa0;: </translation>
    </message>
    <message>
        <source>Specify point on view plane &lt;0,0,0&gt;: </source>
        <translation>Spécifiez un point sur le plan de vue &lt;0,0,0&gt;&#xa0;: </translation>
    </message>
    <message>
        <source>The points say no plane.</source>
        <translation>Les points ne donnent aucun plan.</translation>
    </message>
    <message>
        <source>Delete source objects? [Yes/No] &lt;N&gt;: </source>
        <translation>Supprimer les objets source&#xa0;? [Yes/No] &lt;N&gt;&#xa0;: </translation>
    </message>
    <message>
        <source>The sheet has no viewport.</source>
        <translation>La feuille n&apos;a pas de fenêtre.</translation>
    </message>
    <message>
        <source>
%1 object(s) changed from MODEL space to PAPER space.</source>
        <translation>
%1 objet(s) passé(s) de l&apos;espace OBJET à l&apos;espace PAPIER.</translation>
    </message>
    <message>
        <source>
%1 object(s) changed from PAPER space to MODEL space.</source>
        <translation>
%1 objet(s) passé(s) de l&apos;espace PAPIER à l&apos;espace OBJET.</translation>
    </message>
    <message>
        <source>
Objects were scaled by a factor of %1 to maintain visual appearance.</source>
        <translation>
Les objets ont été mis à l&apos;échelle d&apos;un facteur %1 pour garder leur apparence.</translation>
    </message>
    <message>
        <source>Only a layout has both spaces.</source>
        <translation>Seule une présentation a les deux espaces.</translation>
    </message>
    <message>
        <source>
Select objects to stretch by crossing-window or crossing-polygon...</source>
        <translation>
Sélectionnez les objets à étirer par une fenêtre ou un polygone de capture...</translation>
    </message>
    <message>
        <source>Enter name of customization file to load: </source>
        <translation>Entrez le nom du fichier de personnalisation à charger&#xa0;: </translation>
    </message>
    <message>
        <source>
&quot;%1&quot; was not loaded: there are no menu files here.</source>
        <translation>
&quot;%1&quot; n&apos;a pas été chargé&#xa0;: il n&apos;y a pas de fichiers de menu ici.</translation>
    </message>
    <message>
        <source>Enter name of customization group to unload: </source>
        <translation>Entrez le nom du groupe de personnalisation à décharger&#xa0;: </translation>
    </message>
    <message>
        <source>
There is no customization group &quot;%1&quot;.</source>
        <translation>
Il n&apos;y a pas de groupe de personnalisation &quot;%1&quot;.</translation>
    </message>
    <message>
        <source>Enter name of assembly to load: </source>
        <translation>Entrez le nom de l&apos;assemblage à charger&#xa0;: </translation>
    </message>
    <message>
        <source>
&quot;%1&quot; was not loaded: programs for other hosts do not run here.</source>
        <translation>
&quot;%1&quot; n&apos;a pas été chargé&#xa0;: les programmes d&apos;autres hôtes ne s&apos;exécutent pas ici.</translation>
    </message>
    <message>
        <source>Enter an option [?/Load/Unload/Commands/Options]: </source>
        <translation>Entrez une option [?/Load/Unload/Commands/Options]&#xa0;: </translation>
    </message>
    <message>
        <source>Enter name of application file: </source>
        <translation>Entrez le nom du fichier d&apos;application&#xa0;: </translation>
    </message>
    <message>
        <source>
Programs for other hosts do not run here.</source>
        <translation>
Les programmes d&apos;autres hôtes ne s&apos;exécutent pas ici.</translation>
    </message>
    <message>
        <source>Enter delay time (in milliseconds): </source>
        <translation>Entrez le délai (en millisecondes)&#xa0;: </translation>
    </message>
    <message>
        <source>Fix any errors detected? [Yes/No] &lt;No&gt;: </source>
        <translation>Corriger les erreurs détectées&#xa0;? [Yes/No] &lt;No&gt;&#xa0;: </translation>
    </message>
    <message>
        <source>
Total errors found %1 fixed %2</source>
        <translation>
Total des erreurs trouvées %1 corrigées %2</translation>
    </message>
    <message>
        <source>
Save the drawing and open it with --recover: that mends the others.</source>
        <translation>
Enregistrez le dessin et ouvrez-le avec --recover&#xa0;: cela répare les autres.</translation>
    </message>
    <message>
        <source>Enter name of drawing to open: </source>
        <translation>Entrez le nom du dessin à ouvrir&#xa0;: </translation>
    </message>
    <message>
        <source>Enter template file name or [. (for none)] &lt;.&gt;: </source>
        <translation>Entrez le nom du fichier gabarit ou [. (for none)] &lt;.&gt;&#xa0;: </translation>
    </message>
    <message>
        <source>Cannot find template &quot;%1&quot;.</source>
        <translation>Gabarit &quot;%1&quot; introuvable.</translation>
    </message>
    <message>
        <source>Save changes to %1? [Yes/No/Cancel] &lt;Yes&gt;: </source>
        <translation>Enregistrer les modifications de %1&#xa0;? [Yes/No/Cancel] &lt;Yes&gt;&#xa0;: </translation>
    </message>
    <message>
        <source>Really want to discard all changes to drawing? [Yes/No] &lt;No&gt;: </source>
        <translation>Voulez-vous vraiment abandonner toutes les modifications du dessin&#xa0;? [Yes/No] &lt;No&gt;&#xa0;: </translation>
    </message>
    <message>
        <source>another version</source>
        <translation>une autre version</translation>
    </message>
    <message>
        <source>This drawing is of %1, and this program writes no drawing in another version: nothing was written.</source>
        <translation>Ce dessin est de la version %1, et ce programme n&apos;écrit aucun dessin dans une autre version&#xa0;: rien n&apos;a été écrit.</translation>
    </message>
    <message>
        <source>Enter decimal places of accuracy (0 to 16) or [Objects/Binary/Version] &lt;16&gt;: </source>
        <translation>Entrez le nombre de décimales (0 à 16) ou [Objects/Binary/Version] &lt;16&gt;&#xa0;: </translation>
    </message>
    <message>
        <source>Enter version [%1]: </source>
        <translation>Entrez la version [%1]&#xa0;: </translation>
    </message>
    <message>
        <source>This program writes whole drawings with all decimal places: nothing was written.</source>
        <translation>Ce programme écrit des dessins entiers avec toutes les décimales&#xa0;: rien n&apos;a été écrit.</translation>
    </message>
    <message>
        <source>Save drawing as, or enter file format [%1/DXF] &lt;%2&gt;: </source>
        <translation>Enregistrer le dessin sous, ou entrez un format de fichier [%1/DXF] &lt;%2&gt;&#xa0;: </translation>
    </message>
    <message>
        <source>Save drawing as &lt;%1&gt;: </source>
        <translation>Enregistrer le dessin sous &lt;%1&gt;&#xa0;: </translation>
    </message>
    <message>
        <source>
The rest of the script that called it is left out.</source>
        <translation>
Le reste du script qui l&apos;a appelé est omis.</translation>
    </message>
    <message>
        <source>
Too many scripts wait to be run: &quot;%1&quot; is left out.</source>
        <translation>
Trop de scripts attendent leur exécution&#xa0;: &quot;%1&quot; est omis.</translation>
    </message>
    <message>
        <source>Enter script file name: </source>
        <translation>Entrez le nom du fichier de script&#xa0;: </translation>
    </message>
    <message>
        <source>
Cannot read script &quot;%1&quot;.</source>
        <translation>
Impossible de lire le script &quot;%1&quot;.</translation>
    </message>
    <message>
        <source>
Cannot read script &quot;%1&quot;: %2 (the limit is %3 MB).</source>
        <translation>
Impossible de lire le script &quot;%1&quot;&#xa0;: %2 (la limite est de %3 Mo).</translation>
    </message>
    <message>
        <source>No script has been run.</source>
        <translation>Aucun script n&apos;a été exécuté.</translation>
    </message>
    <message>
        <source>%1 [Yes/No] &lt;%2&gt;: </source>
        <translation>%1 [Yes/No] &lt;%2&gt;&#xa0;: </translation>
    </message>
    <message>
        <source>Enter a layout name</source>
        <translation>Entrez un nom de présentation</translation>
    </message>
    <message>
        <source>Layout &quot;%1&quot; not found.</source>
        <translation>Présentation &quot;%1&quot; introuvable.</translation>
    </message>
    <message>
        <source>Enter an output device name</source>
        <translation>Entrez le nom d&apos;un périphérique de sortie</translation>
    </message>
    <message>
        <source>There is no device &quot;%1&quot;: plots are files of PDF, PNG or SVG.</source>
        <translation>Il n&apos;y a pas de périphérique &quot;%1&quot;&#xa0;: les tracés sont des fichiers PDF, PNG ou SVG.</translation>
    </message>
    <message>
        <source>Enter paper size</source>
        <translation>Entrez le format de papier</translation>
    </message>
    <message>
        <source>There is no paper size &quot;%1&quot;.</source>
        <translation>Il n&apos;y a pas de format de papier &quot;%1&quot;.</translation>
    </message>
    <message>
        <source>Enter paper units [Inches/Millimeters] &lt;Millimeters&gt;: </source>
        <translation>Entrez les unités de papier [Inches/Millimeters] &lt;Millimeters&gt;&#xa0;: </translation>
    </message>
    <message>
        <source>Enter drawing orientation [Portrait/Landscape] &lt;%1&gt;: </source>
        <translation>Entrez l&apos;orientation du dessin [Portrait/Landscape] &lt;%1&gt;&#xa0;: </translation>
    </message>
    <message>
        <source>Plot upside down?</source>
        <translation>Tracer tête en bas&#xa0;?</translation>
    </message>
    <message>
        <source>
Plots stand upright here.</source>
        <translation>
Les tracés sont droits ici.</translation>
    </message>
    <message>
        <source>Enter lower left corner of window &lt;0.000000,0.000000&gt;: </source>
        <translation>Entrez le coin inférieur gauche de la fenêtre &lt;0.000000,0.000000&gt;&#xa0;: </translation>
    </message>
    <message>
        <source>Enter upper right corner of window: </source>
        <translation>Entrez le coin supérieur droit de la fenêtre&#xa0;: </translation>
    </message>
    <message>
        <source>Enter plot area [%1] &lt;%2&gt;: </source>
        <translation>Entrez la zone de tracé [%1] &lt;%2&gt;&#xa0;: </translation>
    </message>
    <message>
        <source>Enter view name: </source>
        <translation>Entrez le nom de la vue&#xa0;: </translation>
    </message>
    <message>
        <source>Cannot find view &quot;%1&quot;.</source>
        <translation>Vue &quot;%1&quot; introuvable.</translation>
    </message>
    <message>
        <source>Enter plot scale (Plotted Millimeters=Drawing Units) or [Fit] &lt;%1&gt;: </source>
        <translation>Entrez l&apos;échelle de tracé (millimètres tracés=unités de dessin) ou [Fit] &lt;%1&gt;&#xa0;: </translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no plot scale.</source>
        <translation>&quot;%1&quot; n&apos;est pas une échelle de tracé.</translation>
    </message>
    <message>
        <source>Enter plot offset (x,y) or [Center] &lt;Center&gt;: </source>
        <translation>Entrez le décalage du tracé (x,y) ou [Center] &lt;Center&gt;&#xa0;: </translation>
    </message>
    <message>
        <source>Plot with plot styles?</source>
        <translation>Tracer avec des styles de tracé&#xa0;?</translation>
    </message>
    <message>
        <source>Enter plot style table name</source>
        <translation>Entrez le nom de la table de styles de tracé</translation>
    </message>
    <message>
        <source>Plot with lineweights?</source>
        <translation>Tracer avec les épaisseurs de ligne&#xa0;?</translation>
    </message>
    <message>
        <source>Enter shade plot setting [As displayed/Wireframe/Hidden/Visual styles/Rendered] &lt;As displayed&gt;: </source>
        <translation>Entrez le paramètre de tracé ombré [As displayed/Wireframe/Hidden/Visual styles/Rendered] &lt;As displayed&gt;&#xa0;: </translation>
    </message>
    <message>
        <source>Scale lineweights with plot scale?</source>
        <translation>Mettre les épaisseurs de ligne à l&apos;échelle du tracé&#xa0;?</translation>
    </message>
    <message>
        <source>Plot paper space first?</source>
        <translation>Tracer d&apos;abord l&apos;espace papier&#xa0;?</translation>
    </message>
    <message>
        <source>Hide paperspace objects?</source>
        <translation>Masquer les objets de l&apos;espace papier&#xa0;?</translation>
    </message>
    <message>
        <source>Enter file name &lt;%1&gt;: </source>
        <translation>Entrez le nom du fichier &lt;%1&gt;&#xa0;: </translation>
    </message>
    <message>
        <source>Save changes to page setup?</source>
        <translation>Enregistrer les modifications dans la mise en page&#xa0;?</translation>
    </message>
    <message>
        <source>Proceed with plot</source>
        <translation>Lancer le tracé</translation>
    </message>
    <message>
        <source>Enter a page setup name &lt;&gt;: </source>
        <translation>Entrez un nom de mise en page &lt;&gt;&#xa0;: </translation>
    </message>
    <message>
        <source>Detailed plot configuration?</source>
        <translation>Configuration détaillée du tracé&#xa0;?</translation>
    </message>
    <message>
        <source>
Plotted to %1.</source>
        <translation>
Tracé dans %1.</translation>
    </message>
    <message>
        <source>Cannot find plot style table &quot;%1&quot;.</source>
        <translation>Table de styles de tracé &quot;%1&quot; introuvable.</translation>
    </message>
    <message>
        <source>
Some of what the drawing holds is not drawn, or in part.</source>
        <translation>
Une partie du contenu du dessin n&apos;est pas dessinée, ou seulement en partie.</translation>
    </message>
    <message>
        <source>Purge %1 &quot;%2&quot;? [Yes/No] &lt;No&gt;: </source>
        <translation>Purger %1 &quot;%2&quot;&#xa0;? [Yes/No] &lt;No&gt;&#xa0;: </translation>
    </message>
    <message>
        <source>
Deleting %1 &quot;%2&quot;.</source>
        <translation>
Suppression&#xa0;: %1 &quot;%2&quot;.</translation>
    </message>
    <message>
        <source>Enter name(s) to purge &lt;*&gt;: </source>
        <translation>Entrez les noms à purger &lt;*&gt;&#xa0;: </translation>
    </message>
    <message>
        <source>Verify each name to be purged? [Yes/No] &lt;Yes&gt;: </source>
        <translation>Vérifier chaque nom à purger&#xa0;? [Yes/No] &lt;Yes&gt;&#xa0;: </translation>
    </message>
    <message>
        <source>
Nothing unreferenced found.</source>
        <translation>
Rien de non référencé n&apos;a été trouvé.</translation>
    </message>
    <message>
        <source>
%1 orphaned objects deleted.</source>
        <translation>
%1 objets orphelins supprimés.</translation>
    </message>
    <message>
        <source>
%1 entities without length deleted.</source>
        <translation>
%1 objets sans longueur supprimés.</translation>
    </message>
    <message>
        <source>
%1 empty texts deleted.</source>
        <translation>
%1 textes vides supprimés.</translation>
    </message>
    <message>
        <source>
No unreferenced %1 found.</source>
        <translation>
Rien de non référencé n&apos;a été trouvé&#xa0;: %1.</translation>
    </message>
    <message>
        <source>Enter type of unused objects to purge [Blocks/DEtailviewstyles/Dimstyles/Groups/LAyers/LTypes/MAterials/MUltileaderstyles/Plotstyles/SHapes/textSTyles/Mlinestyles/SEctionviewstyles/Tablestyles/Visualstyles/Regapps/Zero-length geometry/Empty text objects/Orphaned data/All]: </source>
        <translation>Entrez le type d&apos;objets inutilisés à purger [Blocks/DEtailviewstyles/Dimstyles/Groups/LAyers/LTypes/MAterials/MUltileaderstyles/Plotstyles/SHapes/textSTyles/Mlinestyles/SEctionviewstyles/Tablestyles/Visualstyles/Regapps/Zero-length geometry/Empty text objects/Orphaned data/All]&#xa0;: </translation>
    </message>
    <message>
        <source>block</source>
        <translation>bloc</translation>
    </message>
    <message>
        <source>dimension style</source>
        <translation>style de cote</translation>
    </message>
    <message>
        <source>layer</source>
        <translation>calque</translation>
    </message>
    <message>
        <source>linetype</source>
        <translation>type de ligne</translation>
    </message>
    <message>
        <source>material</source>
        <translation>matériau</translation>
    </message>
    <message>
        <source>multileader style</source>
        <translation>style de repère multiple</translation>
    </message>
    <message>
        <source>text style</source>
        <translation>style de texte</translation>
    </message>
    <message>
        <source>table style</source>
        <translation>style de tableau</translation>
    </message>
    <message>
        <source>UCS</source>
        <translation>SCU</translation>
    </message>
    <message>
        <source>view</source>
        <translation>vue</translation>
    </message>
    <message>
        <source>viewport</source>
        <translation>fenêtre</translation>
    </message>
    <message>
        <source>layout</source>
        <translation>présentation</translation>
    </message>
    <message>
        <source>Enter object type to rename [Block/Dimstyle/LAyer/LType/Material/multileadersTyle/Style/Tablestyle/Ucs/VIew/VPort]: </source>
        <translation>Entrez le type d&apos;objet à renommer [Block/Dimstyle/LAyer/LType/Material/multileadersTyle/Style/Tablestyle/Ucs/VIew/VPort]&#xa0;: </translation>
    </message>
    <message>
        <source>Enter old %1 name: </source>
        <translation>Entrez l&apos;ancien nom (%1)&#xa0;: </translation>
    </message>
    <message>
        <source>Enter new %1 name: </source>
        <translation>Entrez le nouveau nom (%1)&#xa0;: </translation>
    </message>
    <message>
        <source>Enter command name: </source>
        <translation>Entrez le nom de la commande&#xa0;: </translation>
    </message>
    <message>
        <source>Unknown command &quot;%1&quot;.</source>
        <translation>Commande inconnue &quot;%1&quot;.</translation>
    </message>
    <message>
        <source>
%1 is a command already.</source>
        <translation>
%1 est déjà une commande.</translation>
    </message>
    <message>
        <source>
Saved to %1.</source>
        <translation>
Enregistré dans %1.</translation>
    </message>
    <message>
        <source>Save all the same, or under another name? [Anyway/Name/Cancel] &lt;Cancel&gt;: </source>
        <translation>Enregistrer quand même, ou sous un autre nom&#xa0;? [Anyway/Name/Cancel] &lt;Cancel&gt;&#xa0;: </translation>
    </message>
    <message>
        <source>Save under another name? [Name/Cancel] &lt;Cancel&gt;: </source>
        <translation>Enregistrer sous un autre nom&#xa0;? [Name/Cancel] &lt;Cancel&gt;&#xa0;: </translation>
    </message>
    <message>
        <source>Nothing was written.</source>
        <translation>Rien n&apos;a été écrit.</translation>
    </message>
    <message>
        <source>Save drawing as: </source>
        <translation>Enregistrer le dessin sous&#xa0;: </translation>
    </message>
    <message>
        <source>%1 cannot be set to that value.</source>
        <translation>%1 ne peut pas prendre cette valeur.</translation>
    </message>
    <message>
        <source>Enter mode [ON/OFF] &lt;%1&gt;: </source>
        <translation>Entrez le mode [ON/OFF] &lt;%1&gt;&#xa0;: </translation>
    </message>
    <message>
        <source>Specify horizontal spacing(X) &lt;%1&gt;: </source>
        <translation>Spécifiez l&apos;espacement horizontal (X) &lt;%1&gt;&#xa0;: </translation>
    </message>
    <message>
        <source>Specify vertical spacing(Y) &lt;%1&gt;: </source>
        <translation>Spécifiez l&apos;espacement vertical (Y) &lt;%1&gt;&#xa0;: </translation>
    </message>
    <message>
        <source>Specify grid spacing(X) or [ON/OFF/Snap/Aspect]</source>
        <translation>Spécifiez l&apos;espacement de la grille (X) ou [ON/OFF/Snap/Aspect]</translation>
    </message>
    <message>
        <source>Specify snap spacing or [ON/OFF/Aspect/Rotate/Style/Type]</source>
        <translation>Spécifiez la résolution ou [ON/OFF/Aspect/Rotate/Style/Type]</translation>
    </message>
    <message>
        <source>Specify base point &lt;%1&gt;: </source>
        <translation>Spécifiez le point de base &lt;%1&gt;&#xa0;: </translation>
    </message>
    <message>
        <source>Enter snap grid style [Standard/Isometric] &lt;%1&gt;: </source>
        <translation>Entrez le style de la grille de résolution [Standard/Isometric] &lt;%1&gt;&#xa0;: </translation>
    </message>
    <message>
        <source>Specify vertical spacing</source>
        <translation>Spécifiez l&apos;espacement vertical</translation>
    </message>
    <message>
        <source>Specify snap spacing or [Aspect]</source>
        <translation>Spécifiez la résolution ou [Aspect]</translation>
    </message>
    <message>
        <source>Enter snap type [Polar/Grid] &lt;%1&gt;: </source>
        <translation>Entrez le type de résolution [Polar/Grid] &lt;%1&gt;&#xa0;: </translation>
    </message>
    <message>
        <source>Enter isometric plane setting [Left/Top/Right] &lt;%1&gt;: </source>
        <translation>Entrez le plan isométrique [Left/Top/Right] &lt;%1&gt;&#xa0;: </translation>
    </message>
    <message>
        <source>
Current Isoplane: </source>
        <translation>
Plan isométrique courant&#xa0;: </translation>
    </message>
    <message>
        <source>Specify lower left corner or [ON/OFF] &lt;%1&gt;: </source>
        <translation>Spécifiez le coin inférieur gauche ou [ON/OFF] &lt;%1&gt;&#xa0;: </translation>
    </message>
    <message>
        <source>Specify upper right corner &lt;%1&gt;: </source>
        <translation>Spécifiez le coin supérieur droit &lt;%1&gt;&#xa0;: </translation>
    </message>
    <message>
        <source>Specify new default elevation &lt;%1&gt;: </source>
        <translation>Spécifiez la nouvelle élévation par défaut &lt;%1&gt;&#xa0;: </translation>
    </message>
    <message>
        <source>Specify new default thickness &lt;%1&gt;: </source>
        <translation>Spécifiez la nouvelle épaisseur par défaut &lt;%1&gt;&#xa0;: </translation>
    </message>
    <message>
        <source>Enter default object color [Truecolor/COlorbook] &lt;%1&gt;: </source>
        <translation>Entrez la couleur par défaut des objets [Truecolor/COlorbook] &lt;%1&gt;&#xa0;: </translation>
    </message>
    <message>
        <source>New objects take colors by number or name here.</source>
        <translation>Les nouveaux objets prennent ici leurs couleurs par numéro ou par nom.</translation>
    </message>
    <message>
        <source>
Everything has been undone.</source>
        <translation>
Tout a été annulé.</translation>
    </message>
    <message>
        <source>Enter UNDO Auto mode [ON/OFF] &lt;ON&gt;: </source>
        <translation>Entrez le mode automatique de UNDO [ON/OFF] &lt;ON&gt;&#xa0;: </translation>
    </message>
    <message>
        <source>Enter an UNDO control option [All/None/One/Combine/Layer] &lt;All&gt;: </source>
        <translation>Entrez une option de contrôle de UNDO [All/None/One/Combine/Layer] &lt;All&gt;&#xa0;: </translation>
    </message>
    <message>
        <source>Combine zoom and pan operations? [Yes/No] &lt;Yes&gt;: </source>
        <translation>Combiner les opérations de zoom et de panoramique&#xa0;? [Yes/No] &lt;Yes&gt;&#xa0;: </translation>
    </message>
    <message>
        <source>Combine layer property changes? [Yes/No] &lt;Yes&gt;: </source>
        <translation>Combiner les modifications de propriétés de calques&#xa0;? [Yes/No] &lt;Yes&gt;&#xa0;: </translation>
    </message>
    <message>
        <source>
Undo is always on.</source>
        <translation>
L&apos;annulation est toujours active.</translation>
    </message>
    <message>
        <source>This will undo everything. OK? [Yes/No] &lt;Yes&gt;: </source>
        <translation>Tout sera annulé. OK&#xa0;? [Yes/No] &lt;Yes&gt;&#xa0;: </translation>
    </message>
    <message>
        <source>Enter the number of operations to undo or [Auto/Control/BEgin/End/Mark/Back] &lt;1&gt;: </source>
        <translation>Entrez le nombre d&apos;opérations à annuler ou [Auto/Control/BEgin/End/Mark/Back] &lt;1&gt;&#xa0;: </translation>
    </message>
    <message>
        <source>
There is nothing to redo.</source>
        <translation>
Il n&apos;y a rien à rétablir.</translation>
    </message>
    <message>
        <source>Enter number of actions or [All/Last]: </source>
        <translation>Entrez le nombre d&apos;actions ou [All/Last]&#xa0;: </translation>
    </message>
    <message>
        <source>
There is nothing to bring back.</source>
        <translation>
Il n&apos;y a rien à ramener.</translation>
    </message>
    <message>
        <source>Enter command name to repeat: </source>
        <translation>Entrez le nom de la commande à répéter&#xa0;: </translation>
    </message>
    <message>
        <source>Unknown command &quot;%1&quot;: only built-in ones are repeated.</source>
        <translation>Commande inconnue &quot;%1&quot;&#xa0;: seules les commandes intégrées sont répétées.</translation>
    </message>
    <message>
        <source>Requires an integer between %1 and %2.</source>
        <translation>Un nombre entier entre %1 et %2 est nécessaire.</translation>
    </message>
    <message>
        <source>Enter denominator of smallest fraction to display (1, 2, 4, 8, 16, 32, 64, 128, or 256) &lt;%1&gt;: </source>
        <translation>Entrez le dénominateur de la plus petite fraction à afficher (1, 2, 4, 8, 16, 32, 64, 128 ou 256) &lt;%1&gt;&#xa0;: </translation>
    </message>
    <message>
        <source>Requires a power of two up to 256.</source>
        <translation>Une puissance de deux jusqu&apos;à 256 est nécessaire.</translation>
    </message>
    <message>
        <source>
Report formats: 1. Scientific  2. Decimal  3. Engineering  4. Architectural  5. Fractional</source>
        <translation>
Formats&#xa0;: 1. Scientifique  2. Décimal  3. Ingénierie  4. Architecture  5. Fractionnaire</translation>
    </message>
    <message>
        <source>Enter choice, 1 to 5</source>
        <translation>Entrez votre choix, 1 à 5</translation>
    </message>
    <message>
        <source>Enter number of digits to right of decimal point (0 to 8)</source>
        <translation>Entrez le nombre de décimales (0 à 8)</translation>
    </message>
    <message>
        <source>
Systems of angle measure: 1. Decimal degrees  2. Degrees/minutes/seconds  3. Grads  4. Radians  5. Surveyor&apos;s units</source>
        <translation>
Mesures d&apos;angle&#xa0;: 1. Degrés décimaux  2. Degrés/minutes/secondes  3. Grades  4. Radians  5. Unités géodésiques</translation>
    </message>
    <message>
        <source>Enter number of fractional places for display of angles (0 to 8)</source>
        <translation>Entrez le nombre de décimales des angles (0 à 8)</translation>
    </message>
    <message>
        <source>Enter direction for angle 0 &lt;%1&gt;: </source>
        <translation>Entrez la direction de l&apos;angle 0 &lt;%1&gt;&#xa0;: </translation>
    </message>
    <message>
        <source>Measure angles clockwise? [Yes/No] &lt;%1&gt;: </source>
        <translation>Mesurer les angles dans le sens horaire&#xa0;? [Yes/No] &lt;%1&gt;&#xa0;: </translation>
    </message>
    <message>
        <source>%1 mm</source>
        <translation>%1 mm</translation>
    </message>
    <message>
        <source>
Current lineweight: %1</source>
        <translation>
Épaisseur de ligne courante&#xa0;: %1</translation>
    </message>
    <message>
        <source>Enter default lineweight for new objects or [?]: </source>
        <translation>Entrez l&apos;épaisseur de ligne par défaut des nouveaux objets ou [?]&#xa0;: </translation>
    </message>
    <message>
        <source>
ByLayer, ByBlock, Default, or 0.00 to 2.11 mm</source>
        <translation>
ByLayer, ByBlock, Default ou 0.00 à 2.11 mm</translation>
    </message>
    <message>
        <source>from point,</source>
        <translation>du point,</translation>
    </message>
    <message>
        <source>  to point,</source>
        <translation>  au point,</translation>
    </message>
    <message>
        <source>Length = %1,  Angle in XY Plane = %2</source>
        <translation>Longueur = %1,  Angle dans le plan XY = %2</translation>
    </message>
    <message>
        <source>Delta X = %1, Delta Y = %2, Delta Z = %3</source>
        <translation>Delta X = %1, Delta Y = %2, Delta Z = %3</translation>
    </message>
    <message>
        <source>at point,</source>
        <translation>au point,</translation>
    </message>
    <message>
        <source>base point,</source>
        <translation>point de base,</translation>
    </message>
    <message>
        <source>through point,</source>
        <translation>par le point,</translation>
    </message>
    <message>
        <source>center point,</source>
        <translation>centre,</translation>
    </message>
    <message>
        <source>start angle</source>
        <translation>angle de départ</translation>
    </message>
    <message>
        <source>end angle</source>
        <translation>angle de fin</translation>
    </message>
    <message>
        <source>Center:</source>
        <translation>Centre&#xa0;:</translation>
    </message>
    <message>
        <source>Major Axis:</source>
        <translation>Grand axe&#xa0;:</translation>
    </message>
    <message>
        <source>at point</source>
        <translation>au point</translation>
    </message>
    <message>
        <source>Constant width</source>
        <translation>Largeur constante</translation>
    </message>
    <message>
        <source>first point</source>
        <translation>premier point</translation>
    </message>
    <message>
        <source>second point</source>
        <translation>deuxième point</translation>
    </message>
    <message>
        <source>third point</source>
        <translation>troisième point</translation>
    </message>
    <message>
        <source>fourth point</source>
        <translation>quatrième point</translation>
    </message>
    <message>
        <source>Control Point:</source>
        <translation>Point de contrôle&#xa0;:</translation>
    </message>
    <message>
        <source>Fit Point:</source>
        <translation>Point de lissage&#xa0;:</translation>
    </message>
    <message>
        <source>alignment point,</source>
        <translation>point d&apos;alignement,</translation>
    </message>
    <message>
        <source>start point,</source>
        <translation>point de départ,</translation>
    </message>
    <message>
        <source>rotation angle</source>
        <translation>angle de rotation</translation>
    </message>
    <message>
        <source>width scale</source>
        <translation>échelle de largeur</translation>
    </message>
    <message>
        <source>obliquing angle</source>
        <translation>angle d&apos;inclinaison</translation>
    </message>
    <message>
        <source>Location:</source>
        <translation>Emplacement&#xa0;:</translation>
    </message>
    <message>
        <source>Text style</source>
        <translation>Style de texte</translation>
    </message>
    <message>
        <source>Text height</source>
        <translation>Hauteur du texte</translation>
    </message>
    <message>
        <source>X scale factor</source>
        <translation>facteur d&apos;échelle X</translation>
    </message>
    <message>
        <source>Y scale factor</source>
        <translation>facteur d&apos;échelle Y</translation>
    </message>
    <message>
        <source>Z scale factor</source>
        <translation>facteur d&apos;échelle Z</translation>
    </message>
    <message>
        <source>number of columns</source>
        <translation>nombre de colonnes</translation>
    </message>
    <message>
        <source>number of rows</source>
        <translation>nombre de rangées</translation>
    </message>
    <message>
        <source>between columns</source>
        <translation>entre colonnes</translation>
    </message>
    <message>
        <source>between rows</source>
        <translation>entre rangées</translation>
    </message>
    <message>
        <source>arc length</source>
        <translation>longueur d&apos;arc</translation>
    </message>
    <message>
        <source>jogged radius</source>
        <translation>rayon raccourci</translation>
    </message>
    <message>
        <source>defining point:</source>
        <translation>point de définition&#xa0;:</translation>
    </message>
    <message>
        <source>Hatch pattern</source>
        <translation>Motif de hachures</translation>
    </message>
    <message>
        <source>Hatch scale</source>
        <translation>Échelle des hachures</translation>
    </message>
    <message>
        <source>Hatch angle</source>
        <translation>Angle des hachures</translation>
    </message>
    <message>
        <source>Scale relative to Paper space</source>
        <translation>Échelle relative à l&apos;espace papier</translation>
    </message>
    <message>
        <source>Bounding Box: Lower Bound</source>
        <translation>Cadre&#xa0;: limite inférieure</translation>
    </message>
    <message>
        <source>Area:</source>
        <translation>Aire&#xa0;:</translation>
    </message>
    <message>
        <source>Perimeter:</source>
        <translation>Périmètre&#xa0;:</translation>
    </message>
    <message>
        <source>Color:</source>
        <translation>Couleur&#xa0;:</translation>
    </message>
    <message>
        <source>Linetype:</source>
        <translation>Type de ligne&#xa0;:</translation>
    </message>
    <message>
        <source>Linetype scale</source>
        <translation>Échelle du type de ligne</translation>
    </message>
    <message>
        <source>Lineweight:</source>
        <translation>Épaisseur de ligne&#xa0;:</translation>
    </message>
    <message>
        <source>%1  Layer: &quot;%2&quot;</source>
        <translation>%1  Calque&#xa0;: &quot;%2&quot;</translation>
    </message>
    <message>
        <source>Space:</source>
        <translation>Espace&#xa0;:</translation>
    </message>
    <message>
        <source>Model space</source>
        <translation>Espace objet</translation>
    </message>
    <message>
        <source>Paper space</source>
        <translation>Espace papier</translation>
    </message>
    <message>
        <source>Layout:</source>
        <translation>Présentation&#xa0;:</translation>
    </message>
    <message>
        <source>Handle =</source>
        <translation>Identificateur =</translation>
    </message>
    <message>
        <source>
Distance = %1,  Angle in XY Plane = %2,  Angle from XY Plane = %3</source>
        <translation>
Distance = %1,  Angle dans le plan XY = %2,  Angle depuis le plan XY = %3</translation>
    </message>
    <message>
        <source>
Delta X = %1,  Delta Y = %2,   Delta Z = %3</source>
        <translation>
Delta X = %1,  Delta Y = %2,   Delta Z = %3</translation>
    </message>
    <message>
        <source>Specify next point or [Close/Undo/Total] &lt;Total&gt;: </source>
        <translation>Spécifiez le point suivant ou [Close/Undo/Total] &lt;Total&gt;&#xa0;: </translation>
    </message>
    <message>
        <source>
Distance = %1</source>
        <translation>
Distance = %1</translation>
    </message>
    <message>
        <source>Specify second point or [Multiple points]: </source>
        <translation>Spécifiez le second point ou [Multiple points]&#xa0;: </translation>
    </message>
    <message>
        <source>%1 days %2:%3:%4</source>
        <translation>%1 jours %2:%3:%4</translation>
    </message>
    <message>
        <source>
Current time:             </source>
        <translation>
Date, heure&#xa0;:             </translation>
    </message>
    <message>
        <source>
Times for this drawing:</source>
        <translation>
Dates et durées de ce dessin&#xa0;:</translation>
    </message>
    <message>
        <source>
  Created:                </source>
        <translation>
  Création&#xa0;:                </translation>
    </message>
    <message>
        <source>
  Last updated:           </source>
        <translation>
  Mise à jour&#xa0;:           </translation>
    </message>
    <message>
        <source>
  Total editing time:     </source>
        <translation>
  Durée d&apos;édition&#xa0;:     </translation>
    </message>
    <message>
        <source>
  Elapsed timer:          </source>
        <translation>
  Chronomètre&#xa0;:          </translation>
    </message>
    <message>
        <source>
%1 objects in %2</source>
        <translation>
%1 objets dans %2</translation>
    </message>
    <message>
        <source>Limits are, low</source>
        <translation>Limites, bas</translation>
    </message>
    <message>
        <source>Limits are, high</source>
        <translation>Limites, haut</translation>
    </message>
    <message>
        <source>Uses, low</source>
        <translation>Occupé, bas</translation>
    </message>
    <message>
        <source>Uses, high</source>
        <translation>Occupé, haut</translation>
    </message>
    <message>
        <source>Insertion base is</source>
        <translation>Base d&apos;insertion</translation>
    </message>
    <message>
        <source>Current space:</source>
        <translation>Espace courant&#xa0;:</translation>
    </message>
    <message>
        <source>Current layer:</source>
        <translation>Calque courant&#xa0;:</translation>
    </message>
    <message>
        <source>Current color:</source>
        <translation>Couleur courante&#xa0;:</translation>
    </message>
    <message>
        <source>Current linetype:</source>
        <translation>Type de ligne courant&#xa0;:</translation>
    </message>
    <message>
        <source>Current elevation:</source>
        <translation>Élévation courante&#xa0;:</translation>
    </message>
    <message>
        <source>Thickness:</source>
        <translation>Épaisseur&#xa0;:</translation>
    </message>
    <message>
        <source>A drawing of this version has no such property of layers.</source>
        <translation>Un dessin de cette version ne connaît pas cette propriété des calques.</translation>
    </message>
    <message>
        <source>New color [Truecolor/COlorbook] &lt;7 (white)&gt;: </source>
        <translation>Nouvelle couleur [Truecolor/COlorbook] &lt;7 (blanc)&gt;&#xa0;: </translation>
    </message>
    <message>
        <source>Enter loaded linetype name or [?] &lt;%1&gt;: </source>
        <translation>Entrez le nom d&apos;un type de ligne chargé ou [?] &lt;%1&gt;&#xa0;: </translation>
    </message>
    <message>
        <source>Linetype &quot;%1&quot; not found.</source>
        <translation>Type de ligne &quot;%1&quot; introuvable.</translation>
    </message>
    <message>
        <source>linetype &quot;%1&quot;</source>
        <translation>type de ligne &quot;%1&quot;</translation>
    </message>
    <message>
        <source>Enter lineweight (0.0mm - 2.11mm) or [Default]: </source>
        <translation>Entrez l&apos;épaisseur de ligne (0.0mm - 2.11mm) ou [Default]&#xa0;: </translation>
    </message>
    <message>
        <source>Enter transparency value (0-90): </source>
        <translation>Entrez la valeur de transparence (0-90)&#xa0;: </translation>
    </message>
    <message>
        <source>transparency value %1</source>
        <translation>valeur de transparence %1</translation>
    </message>
    <message>
        <source>Enter material name &lt;Global&gt;: </source>
        <translation>Entrez le nom du matériau &lt;Global&gt;&#xa0;: </translation>
    </message>
    <message>
        <source>Cannot find material &quot;%1&quot;.</source>
        <translation>Matériau &quot;%1&quot; introuvable.</translation>
    </message>
    <message>
        <source>material &quot;%1&quot;</source>
        <translation>matériau &quot;%1&quot;</translation>
    </message>
    <message>
        <source>Enter a plotting preference [Plot/No plot] &lt;Plot&gt;: </source>
        <translation>Entrez une préférence de tracé [Plot/No plot] &lt;Plot&gt;&#xa0;: </translation>
    </message>
    <message>
        <source>this plot preference</source>
        <translation>cette préférence de tracé</translation>
    </message>
    <message>
        <source>Enter layer description: </source>
        <translation>Entrez la description du calque&#xa0;: </translation>
    </message>
    <message>
        <source>this description</source>
        <translation>cette description</translation>
    </message>
    <message>
        <source>This program keeps no named plot styles: nothing was changed.</source>
        <translation>Ce programme ne conserve pas de styles de tracé nommés&#xa0;: rien n&apos;a été modifié.</translation>
    </message>
    <message>
        <source>
No matching layer names found.</source>
        <translation>
Aucun nom de calque correspondant trouvé.</translation>
    </message>
    <message>
        <source>
Cannot freeze layer &quot;%1&quot;. It is the current layer.</source>
        <translation>
Impossible de geler le calque &quot;%1&quot;. C&apos;est le calque courant.</translation>
    </message>
    <message>
        <source>Enter name list of layer(s) to turn on: </source>
        <translation>Entrez la liste des noms des calques à activer&#xa0;: </translation>
    </message>
    <message>
        <source>Enter name list of layer(s) to turn off: </source>
        <translation>Entrez la liste des noms des calques à désactiver&#xa0;: </translation>
    </message>
    <message>
        <source>Enter name list of layer(s) to freeze: </source>
        <translation>Entrez la liste des noms des calques à geler&#xa0;: </translation>
    </message>
    <message>
        <source>Enter name list of layer(s) to thaw: </source>
        <translation>Entrez la liste des noms des calques à dégeler&#xa0;: </translation>
    </message>
    <message>
        <source>Enter name list of layer(s) to lock: </source>
        <translation>Entrez la liste des noms des calques à verrouiller&#xa0;: </translation>
    </message>
    <message>
        <source>Enter name list of layer(s) to unlock: </source>
        <translation>Entrez la liste des noms des calques à déverrouiller&#xa0;: </translation>
    </message>
    <message>
        <source>Really want layer &quot;%1&quot; (the CURRENT layer) off? [Yes/No] &lt;No&gt;: </source>
        <translation>Voulez-vous vraiment désactiver le calque &quot;%1&quot; (le calque COURANT)&#xa0;? [Yes/No] &lt;No&gt;&#xa0;: </translation>
    </message>
    <message>
        <source>&quot;%1&quot; cannot be the name of a layer.</source>
        <translation>&quot;%1&quot; ne peut pas être le nom d&apos;un calque.</translation>
    </message>
    <message>
        <source>Cannot make layer &quot;%1&quot; current: it is frozen.</source>
        <translation>Impossible de rendre courant le calque &quot;%1&quot;&#xa0;: il est gelé.</translation>
    </message>
    <message>
        <source>Enter name for new layer (becomes the current layer) &lt;%1&gt;: </source>
        <translation>Entrez le nom du nouveau calque (qui devient le calque courant) &lt;%1&gt;&#xa0;: </translation>
    </message>
    <message>
        <source>Enter layer name to make current or &lt;select object&gt;: </source>
        <translation>Entrez le nom du calque à rendre courant ou &lt;sélectionner un objet&gt;&#xa0;: </translation>
    </message>
    <message>
        <source>Enter name list for new layer(s): </source>
        <translation>Entrez la liste des noms des nouveaux calques&#xa0;: </translation>
    </message>
    <message>
        <source>Enter old layer name: </source>
        <translation>Entrez l&apos;ancien nom du calque&#xa0;: </translation>
    </message>
    <message>
        <source>Enter layer name(s) to list &lt;*&gt;: </source>
        <translation>Entrez les noms des calques à lister &lt;*&gt;&#xa0;: </translation>
    </message>
    <message>
        <source>
Layer name  State  Color  Linetype  Lineweight</source>
        <translation>
Nom du calque  État  Couleur  Type de ligne  Épaisseur</translation>
    </message>
    <message>
        <source>
Current layer:  &quot;%1&quot;</source>
        <translation>
Calque courant&#xa0;:  &quot;%1&quot;</translation>
    </message>
    <message>
        <source>Enter name list of layer(s) to reconcile: </source>
        <translation>Entrez la liste des noms des calques à rapprocher&#xa0;: </translation>
    </message>
    <message>
        <source>
No unreconciled layers.</source>
        <translation>
Aucun calque non rapproché.</translation>
    </message>
    <message>
        <source>Enter name list of layer(s) for %1 &lt;%2&gt;: </source>
        <translation>Entrez la liste des noms des calques pour %1 &lt;%2&gt;&#xa0;: </translation>
    </message>
    <message>
        <source>Enter an option [?/Make/Set/New/Rename/ON/OFF/Color/Ltype/LWeight/TRansparency/MATerial/Plot/PStyle/Freeze/Thaw/LOck/Unlock/stAte/Description/rEconcile]: </source>
        <translation>Entrez une option [?/Make/Set/New/Rename/ON/OFF/Color/Ltype/LWeight/TRansparency/MATerial/Plot/PStyle/Freeze/Thaw/LOck/Unlock/stAte/Description/rEconcile]&#xa0;: </translation>
    </message>
    <message>
        <source>
States to restore: </source>
        <translation>
États à restaurer&#xa0;: </translation>
    </message>
    <message>
        <source>Enter states to change [On/Frozen/Lock/Plot/Newvpfreeze/Color/lineType/lineWeight/plotStyle/TRansparency]: </source>
        <translation>Entrez les états à modifier [On/Frozen/Lock/Plot/Newvpfreeze/Color/lineType/lineWeight/plotStyle/TRansparency]&#xa0;: </translation>
    </message>
    <message>
        <source>
No layer states.</source>
        <translation>
Aucun état de calques.</translation>
    </message>
    <message>
        <source>
Layer states: </source>
        <translation>
États de calques&#xa0;: </translation>
    </message>
    <message>
        <source>Cannot find layer state &quot;%1&quot;.</source>
        <translation>État de calques &quot;%1&quot; introuvable.</translation>
    </message>
    <message>
        <source>Enter new layer state name: </source>
        <translation>Entrez le nom du nouvel état de calques&#xa0;: </translation>
    </message>
    <message>
        <source>A drawing of this version keeps no layer states.</source>
        <translation>Un dessin de cette version ne conserve pas d&apos;états de calques.</translation>
    </message>
    <message>
        <source>Enter name of layer state to restore or [?]: </source>
        <translation>Entrez le nom de l&apos;état de calques à restaurer ou [?]&#xa0;: </translation>
    </message>
    <message>
        <source>Enter name of layer state to edit or [?]: </source>
        <translation>Entrez le nom de l&apos;état de calques à modifier ou [?]&#xa0;: </translation>
    </message>
    <message>
        <source>Enter name of layer state to rename or [?]: </source>
        <translation>Entrez le nom de l&apos;état de calques à renommer ou [?]&#xa0;: </translation>
    </message>
    <message>
        <source>Layer state &quot;%1&quot; already exists or cannot be one.</source>
        <translation>L&apos;état de calques &quot;%1&quot; existe déjà ou ne peut pas en être un.</translation>
    </message>
    <message>
        <source>Enter name of layer state to delete or [?]: </source>
        <translation>Entrez le nom de l&apos;état de calques à supprimer ou [?]&#xa0;: </translation>
    </message>
    <message>
        <source>Enter name of file to import: </source>
        <translation>Entrez le nom du fichier à importer&#xa0;: </translation>
    </message>
    <message>
        <source>No layer state was taken from &quot;%1&quot;.</source>
        <translation>Aucun état de calques n&apos;a été pris dans &quot;%1&quot;.</translation>
    </message>
    <message>
        <source>
Layer state &quot;%1&quot; imported.</source>
        <translation>
État de calques &quot;%1&quot; importé.</translation>
    </message>
    <message>
        <source>Enter name of layer state to export or [?]: </source>
        <translation>Entrez le nom de l&apos;état de calques à exporter ou [?]&#xa0;: </translation>
    </message>
    <message>
        <source>Enter name of file to export: </source>
        <translation>Entrez le nom du fichier d&apos;exportation&#xa0;: </translation>
    </message>
    <message>
        <source>Enter an option [?/Save/Restore/Edit/Name/Delete/Import/EXport]: </source>
        <translation>Entrez une option [?/Save/Restore/Edit/Name/Delete/Import/EXport]&#xa0;: </translation>
    </message>
    <message>
        <source>
Cannot read linetype file &quot;%1&quot;.</source>
        <translation>
Impossible de lire le fichier de types de ligne &quot;%1&quot;.</translation>
    </message>
    <message>
        <source>
Cannot read linetype file &quot;%1&quot;: %2 (the limit is %3 MB).</source>
        <translation>
Impossible de lire le fichier de types de ligne &quot;%1&quot;&#xa0;: %2 (la limite est de %3 Mo).</translation>
    </message>
    <message>
        <source>
Linetype &quot;%1&quot; not loaded: %2.</source>
        <translation>
Type de ligne &quot;%1&quot; non chargé&#xa0;: %2.</translation>
    </message>
    <message>
        <source>
Linetype &quot;%1&quot; not found.</source>
        <translation>
Type de ligne &quot;%1&quot; introuvable.</translation>
    </message>
    <message>
        <source>Enter an option [?/Load/Set]: </source>
        <translation>Entrez une option [?/Load/Set]&#xa0;: </translation>
    </message>
    <message>
        <source>Specify linetype name: </source>
        <translation>Spécifiez le nom du type de ligne&#xa0;: </translation>
    </message>
    <message>
        <source>Enter linetype(s) to load: </source>
        <translation>Entrez les types de ligne à charger&#xa0;: </translation>
    </message>
    <message>
        <source>Enter name of linetype file: </source>
        <translation>Entrez le nom du fichier de types de ligne&#xa0;: </translation>
    </message>
    <message>
        <source>
No matching linetypes found.</source>
        <translation>
Aucun type de ligne correspondant trouvé.</translation>
    </message>
    <message>
        <source>Linetype &quot;%1&quot; is already loaded. Reload it? [Yes/No] &lt;Yes&gt;: </source>
        <translation>Le type de ligne &quot;%1&quot; est déjà chargé. Le recharger&#xa0;? [Yes/No] &lt;Yes&gt;&#xa0;: </translation>
    </message>
    <message>
        <source>Enter setting for layers not isolated [Off/Lock and fade] &lt;%1&gt;: </source>
        <translation>Entrez le paramètre des calques non isolés [Off/Lock and fade] &lt;%1&gt;&#xa0;: </translation>
    </message>
    <message>
        <source>In paper space viewport use [Vpfreeze/Off] &lt;Vpfreeze&gt;: </source>
        <translation>Dans une fenêtre de l&apos;espace papier, utiliser [Vpfreeze/Off] &lt;Vpfreeze&gt;&#xa0;: </translation>
    </message>
    <message>
        <source>Enter fade value (0-90) &lt;50&gt;: </source>
        <translation>Entrez la valeur d&apos;estompage (0-90) &lt;50&gt;&#xa0;: </translation>
    </message>
    <message>
        <source>
Layer &quot;%1&quot; has been isolated.</source>
        <translation>
Le calque &quot;%1&quot; a été isolé.</translation>
    </message>
    <message>
        <source>
%1 layers have been isolated.</source>
        <translation>
%1 calques ont été isolés.</translation>
    </message>
    <message>
        <source>
Current setting: Hide layers, Viewports=Vpfreeze</source>
        <translation>
Paramètre courant&#xa0;: masquer les calques, Viewports=Vpfreeze</translation>
    </message>
    <message>
        <source>
Current setting: Lock layers, Fade=50</source>
        <translation>
Paramètre courant&#xa0;: verrouiller les calques, estompage=50</translation>
    </message>
    <message>
        <source>Select objects on the layer(s) to be isolated or [Settings]: </source>
        <translation>Sélectionnez des objets sur les calques à isoler ou [Settings]&#xa0;: </translation>
    </message>
    <message>
        <source>Nothing was selected.</source>
        <translation>Rien n&apos;a été sélectionné.</translation>
    </message>
    <message>
        <source>
No layers are isolated.</source>
        <translation>
Aucun calque n&apos;est isolé.</translation>
    </message>
    <message>
        <source>
Layers isolated by LAYISO command have been restored.</source>
        <translation>
Les calques isolés par la commande LAYISO ont été restaurés.</translation>
    </message>
    <message>
        <source>
There is no previous state of the layers.</source>
        <translation>
Il n&apos;y a pas d&apos;état précédent des calques.</translation>
    </message>
    <message>
        <source>
Restored previous layer status.</source>
        <translation>
L&apos;état précédent des calques a été restauré.</translation>
    </message>
    <message>
        <source>Select an object on the layer to be frozen or [Settings/Undo]: </source>
        <translation>Sélectionnez un objet sur le calque à geler ou [Settings/Undo]&#xa0;: </translation>
    </message>
    <message>
        <source>
Layer &quot;%1&quot; has been frozen.</source>
        <translation>
Le calque &quot;%1&quot; a été gelé.</translation>
    </message>
    <message>
        <source>Select an object on the layer to be turned off or [Settings/Undo]: </source>
        <translation>Sélectionnez un objet sur le calque à désactiver ou [Settings/Undo]&#xa0;: </translation>
    </message>
    <message>
        <source>
Layer &quot;%1&quot; has been turned off.</source>
        <translation>
Le calque &quot;%1&quot; a été désactivé.</translation>
    </message>
    <message>
        <source>Enter setting type for [Viewports/Block selection]: </source>
        <translation>Entrez le type de paramètre pour [Viewports/Block selection]&#xa0;: </translation>
    </message>
    <message>
        <source>In paper space viewport use [Vpfreeze/Freeze/Off] &lt;Vpfreeze&gt;: </source>
        <translation>Dans une fenêtre de l&apos;espace papier, utiliser [Vpfreeze/Freeze/Off] &lt;Vpfreeze&gt;&#xa0;: </translation>
    </message>
    <message>
        <source>Enter block selection nesting level [Block/Entity/None] &lt;Entity&gt;: </source>
        <translation>Entrez le niveau d&apos;imbrication de la sélection de blocs [Block/Entity/None] &lt;Entity&gt;&#xa0;: </translation>
    </message>
    <message>
        <source>Layer &quot;%1&quot; is current, do you want to turn it off? [Yes/No] &lt;No&gt;: </source>
        <translation>Le calque &quot;%1&quot; est courant, voulez-vous le désactiver&#xa0;? [Yes/No] &lt;No&gt;&#xa0;: </translation>
    </message>
    <message>
        <source>
All layers have been turned on.</source>
        <translation>
Tous les calques ont été activés.</translation>
    </message>
    <message>
        <source>
All layers have been thawed.</source>
        <translation>
Tous les calques ont été dégelés.</translation>
    </message>
    <message>
        <source>Select an object on the layer to be locked: </source>
        <translation>Sélectionnez un objet sur le calque à verrouiller&#xa0;: </translation>
    </message>
    <message>
        <source>Select an object on the layer to be unlocked: </source>
        <translation>Sélectionnez un objet sur le calque à déverrouiller&#xa0;: </translation>
    </message>
    <message>
        <source>
Layer &quot;%1&quot; has been locked.</source>
        <translation>
Le calque &quot;%1&quot; a été verrouillé.</translation>
    </message>
    <message>
        <source>
Layer &quot;%1&quot; has been unlocked.</source>
        <translation>
Le calque &quot;%1&quot; a été déverrouillé.</translation>
    </message>
    <message>
        <source>
One object changed to layer &quot;%1&quot;.</source>
        <translation>
Un objet placé sur le calque &quot;%1&quot;.</translation>
    </message>
    <message>
        <source>
%1 objects changed to layer &quot;%2&quot;.</source>
        <translation>
%1 objets placés sur le calque &quot;%2&quot;.</translation>
    </message>
    <message>
        <source>Select objects to be changed to the current layer: </source>
        <translation>Sélectionnez les objets à placer sur le calque courant&#xa0;: </translation>
    </message>
    <message>
        <source>Select objects to be changed: </source>
        <translation>Sélectionnez les objets à modifier&#xa0;: </translation>
    </message>
    <message>
        <source>Select object on destination layer or [Name]: </source>
        <translation>Sélectionnez un objet du calque de destination ou [Name]&#xa0;: </translation>
    </message>
    <message>
        <source>Enter layer name: </source>
        <translation>Entrez le nom du calque&#xa0;: </translation>
    </message>
    <message>
        <source>Select object whose layer will become current: </source>
        <translation>Sélectionnez l&apos;objet dont le calque deviendra courant&#xa0;: </translation>
    </message>
    <message>
        <source>
%1 is now the current layer.</source>
        <translation>
%1 est maintenant le calque courant.</translation>
    </message>
    <message>
        <source>This command works through a viewport of a sheet: MSPACE goes into one.</source>
        <translation>Cette commande travaille à travers une fenêtre d&apos;une feuille&#xa0;: MSPACE y entre.</translation>
    </message>
    <message>
        <source>Select an object on the layer to be isolated in viewport or [Settings/Undo]: </source>
        <translation>Sélectionnez un objet sur le calque à isoler dans la fenêtre ou [Settings/Undo]&#xa0;: </translation>
    </message>
    <message>
        <source>
Layer &quot;%1&quot; has been frozen in all viewports but the current one.</source>
        <translation>
Le calque &quot;%1&quot; a été gelé dans toutes les fenêtres sauf la fenêtre courante.</translation>
    </message>
    <message>
        <source>
Selected layers: %1.</source>
        <translation>
Calques sélectionnés&#xa0;: %1.</translation>
    </message>
    <message>
        <source>Do you wish to continue? [Yes/No] &lt;No&gt;: </source>
        <translation>Voulez-vous continuer&#xa0;? [Yes/No] &lt;No&gt;&#xa0;: </translation>
    </message>
    <message>
        <source>Select object on layer to delete or %1: </source>
        <translation>Sélectionnez un objet du calque à supprimer ou %1&#xa0;: </translation>
    </message>
    <message>
        <source>Enter layer name to delete: </source>
        <translation>Entrez le nom du calque à supprimer&#xa0;: </translation>
    </message>
    <message>
        <source>All that is on layer(s) %1 is erased, and the layers are deleted.</source>
        <translation>Tout ce qui est sur les calques %1 est effacé, et les calques sont supprimés.</translation>
    </message>
    <message>
        <source>
%1 layer(s) deleted with %2 object(s).</source>
        <translation>
%1 calque(s) supprimé(s) avec %2 objet(s).</translation>
    </message>
    <message>
        <source>Select object on layer to merge or %1: </source>
        <translation>Sélectionnez un objet du calque à fusionner ou %1&#xa0;: </translation>
    </message>
    <message>
        <source>Enter layer name to merge: </source>
        <translation>Entrez le nom du calque à fusionner&#xa0;: </translation>
    </message>
    <message>
        <source>Select object on target layer or [Name]: </source>
        <translation>Sélectionnez un objet du calque cible ou [Name]&#xa0;: </translation>
    </message>
    <message>
        <source>You are about to merge %1 layer(s) into layer &quot;%2&quot;.</source>
        <translation>Vous allez fusionner %1 calque(s) dans le calque &quot;%2&quot;.</translation>
    </message>
    <message>
        <source>
%1 layer(s) deleted.</source>
        <translation>
%1 calque(s) supprimé(s).</translation>
    </message>
    <message>
        <source>Enter variable(s) to list &lt;*&gt;: </source>
        <translation>Entrez les variables à lister &lt;*&gt;&#xa0;: </translation>
    </message>
    <message>
        <source> (read only)</source>
        <translation> (lecture seule)</translation>
    </message>
    <message>
        <source>
No variable has such a name.</source>
        <translation>
Aucune variable ne porte ce nom.</translation>
    </message>
    <message>
        <source>Requires an integer.</source>
        <translation>Un nombre entier est nécessaire.</translation>
    </message>
    <message>
        <source>Requires a number.</source>
        <translation>Un nombre est nécessaire.</translation>
    </message>
    <message>
        <source>Requires a number between %1 and %2.</source>
        <translation>Un nombre entre %1 et %2 est nécessaire.</translation>
    </message>
    <message>
        <source>Cannot set %1 to that value.</source>
        <translation>Impossible de donner cette valeur à %1.</translation>
    </message>
    <message>
        <source>Requires a point.</source>
        <translation>Un point est nécessaire.</translation>
    </message>
    <message>
        <source>Enter variable name or [?]: </source>
        <translation>Entrez le nom de la variable ou [?]&#xa0;: </translation>
    </message>
    <message>
        <source>Unknown variable name &quot;%1&quot;. Type SETVAR ? for a list of variables.</source>
        <translation>Variable inconnue &quot;%1&quot;. Tapez SETVAR&#xa0;? pour une liste des variables.</translation>
    </message>
    <message>
        <source>
%1 = %2 (read only)</source>
        <translation>
%1 = %2 (lecture seule)</translation>
    </message>
    <message>
        <source>Enter new value for %1 &lt;%2&gt;: </source>
        <translation>Entrez la nouvelle valeur de %1 &lt;%2&gt;&#xa0;: </translation>
    </message>
    <message>
        <source>
Active layouts:</source>
        <translation>
Présentations actives&#xa0;:</translation>
    </message>
    <message>
        <source>
Layout: %1	Block name: %2.</source>
        <translation>
Présentation&#xa0;: %1	Nom du bloc&#xa0;: %2.</translation>
    </message>
    <message>
        <source>
%1 active layout(s) found.</source>
        <translation>
%1 présentation(s) active(s) trouvée(s).</translation>
    </message>
    <message>
        <source>Enter name of layout to copy: </source>
        <translation>Entrez le nom de la présentation à copier&#xa0;: </translation>
    </message>
    <message>
        <source>Enter layout name for copy: </source>
        <translation>Entrez le nom de la copie&#xa0;: </translation>
    </message>
    <message>
        <source>Layout &quot;%1&quot; copied to &quot;%2&quot;.</source>
        <translation>Présentation &quot;%1&quot; copiée dans &quot;%2&quot;.</translation>
    </message>
    <message>
        <source>Enter new Layout name: </source>
        <translation>Entrez le nom de la nouvelle présentation&#xa0;: </translation>
    </message>
    <message>
        <source>Layout &quot;%1&quot; created.</source>
        <translation>Présentation &quot;%1&quot; créée.</translation>
    </message>
    <message>
        <source>Enter layout to rename: </source>
        <translation>Entrez la présentation à renommer&#xa0;: </translation>
    </message>
    <message>
        <source>Enter new layout name: </source>
        <translation>Entrez le nouveau nom de la présentation&#xa0;: </translation>
    </message>
    <message>
        <source>Layout &quot;%1&quot; renamed to &quot;%2&quot;.</source>
        <translation>Présentation &quot;%1&quot; renommée en &quot;%2&quot;.</translation>
    </message>
    <message>
        <source>Enter name of layout to delete: </source>
        <translation>Entrez le nom de la présentation à supprimer&#xa0;: </translation>
    </message>
    <message>
        <source>Layout &quot;%1&quot; deleted.</source>
        <translation>Présentation &quot;%1&quot; supprimée.</translation>
    </message>
    <message>
        <source>Enter layout to make current: </source>
        <translation>Entrez la présentation à rendre courante&#xa0;: </translation>
    </message>
    <message>
        <source>Enter layout to move: </source>
        <translation>Entrez la présentation à déplacer&#xa0;: </translation>
    </message>
    <message>
        <source>Enter its place among the layouts: </source>
        <translation>Entrez sa place parmi les présentations&#xa0;: </translation>
    </message>
    <message>
        <source>Layout &quot;%1&quot; moved.</source>
        <translation>Présentation &quot;%1&quot; déplacée.</translation>
    </message>
    <message>
        <source>Enter layout to save to template: </source>
        <translation>Entrez la présentation à enregistrer comme gabarit&#xa0;: </translation>
    </message>
    <message>
        <source>Enter layout option [Copy/Delete/New/Template/Rename/SAveas/Set/Move/?]: </source>
        <translation>Entrez une option de présentation [Copy/Delete/New/Template/Rename/SAveas/Set/Move/?]&#xa0;: </translation>
    </message>
    <message>
        <source>Layout &quot;%1&quot;: %2.</source>
        <translation>Présentation &quot;%1&quot;&#xa0;: %2.</translation>
    </message>
    <message>
        <source>
Layout &quot;%1&quot; created.</source>
        <translation>
Présentation &quot;%1&quot; créée.</translation>
    </message>
    <message>
        <source> %1 of its entities could not be taken over.</source>
        <translation> %1 de ses objets n&apos;ont pas pu être repris.</translation>
    </message>
    <message>
        <source>Enter template file name: </source>
        <translation>Entrez le nom du fichier gabarit&#xa0;: </translation>
    </message>
    <message>
        <source>Enter layout name(s): </source>
        <translation>Entrez les noms des présentations&#xa0;: </translation>
    </message>
    <message>
        <source>Layout &quot;%1&quot; not found in %2.</source>
        <translation>Présentation &quot;%1&quot; introuvable dans %2.</translation>
    </message>
    <message>
        <source>Enter file name to save layout to: </source>
        <translation>Entrez le nom du fichier où enregistrer la présentation&#xa0;: </translation>
    </message>
    <message>
        <source>Enter view name to save: </source>
        <translation>Entrez le nom de la vue à enregistrer&#xa0;: </translation>
    </message>
    <message>
        <source>&quot;%1&quot; cannot be the name of a view.</source>
        <translation>&quot;%1&quot; ne peut pas être le nom d&apos;une vue.</translation>
    </message>
    <message>
        <source>
Specify opposite corner: </source>
        <translation>
Spécifiez le coin opposé&#xa0;: </translation>
    </message>
    <message>
        <source>The window has no area.</source>
        <translation>La fenêtre n&apos;a pas d&apos;aire.</translation>
    </message>
    <message>
        <source>Select viewport for view: </source>
        <translation>Sélectionnez la fenêtre pour la vue&#xa0;: </translation>
    </message>
    <message>
        <source>The view shows model space, and no viewport was chosen for it.</source>
        <translation>La vue montre l&apos;espace objet, et aucune fenêtre n&apos;a été choisie pour elle.</translation>
    </message>
    <message>
        <source>Enter view name to restore: </source>
        <translation>Entrez le nom de la vue à restaurer&#xa0;: </translation>
    </message>
    <message>
        <source>Enter view name(s) to delete: </source>
        <translation>Entrez les noms des vues à supprimer&#xa0;: </translation>
    </message>
    <message>
        <source>
No matching views found.</source>
        <translation>
Aucune vue correspondante trouvée.</translation>
    </message>
    <message>
        <source>Enter view name(s) to list &lt;*&gt;: </source>
        <translation>Entrez les noms des vues à lister &lt;*&gt;&#xa0;: </translation>
    </message>
    <message>
        <source>Enter an option [Top/Bottom/Front/BAck/Left/Right] &lt;Top&gt;: </source>
        <translation>Entrez une option [Top/Bottom/Front/BAck/Left/Right] &lt;Top&gt;&#xa0;: </translation>
    </message>
    <message>
        <source>Save current UCS with named views? [Yes/No] &lt;Yes&gt;: </source>
        <translation>Enregistrer le SCU courant avec les vues nommées&#xa0;? [Yes/No] &lt;Yes&gt;&#xa0;: </translation>
    </message>
    <message>
        <source>
Coordinate systems are not kept with views.</source>
        <translation>
Les systèmes de coordonnées ne sont pas conservés avec les vues.</translation>
    </message>
    <message>
        <source>Enter an option [?/Delete/Orthographic/Restore/Save/Ucs/Window]: </source>
        <translation>Entrez une option [?/Delete/Orthographic/Restore/Save/Ucs/Window]&#xa0;: </translation>
    </message>
    <message>
        <source>Enter an option [Current ucs/Ucs/World] &lt;Current&gt;: </source>
        <translation>Entrez une option [Current ucs/Ucs/World] &lt;Current&gt;&#xa0;: </translation>
    </message>
    <message>
        <source>Enter name of UCS or [?]: </source>
        <translation>Entrez le nom du SCU ou [?]&#xa0;: </translation>
    </message>
    <message>
        <source>Enter angle in XY plane from X axis: </source>
        <translation>Entrez l&apos;angle dans le plan XY depuis l&apos;axe X&#xa0;: </translation>
    </message>
    <message>
        <source>Enter angle from XY plane: </source>
        <translation>Entrez l&apos;angle depuis le plan XY&#xa0;: </translation>
    </message>
    <message>
        <source>Specify a view point or [Rotate] &lt;%1&gt;: </source>
        <translation>Spécifiez un point de vue ou [Rotate] &lt;%1&gt;&#xa0;: </translation>
    </message>
    <message>
        <source>There is no direction from the target to itself.</source>
        <translation>Il n&apos;y a pas de direction de la cible vers elle-même.</translation>
    </message>
    <message>
        <source>Enter name for new viewport configuration or [?]: </source>
        <translation>Entrez le nom de la nouvelle configuration de fenêtres ou [?]&#xa0;: </translation>
    </message>
    <message>
        <source>&quot;%1&quot; cannot be the name of a viewport configuration.</source>
        <translation>&quot;%1&quot; ne peut pas être le nom d&apos;une configuration de fenêtres.</translation>
    </message>
    <message>
        <source>Enter name of viewport configuration to restore or [?]: </source>
        <translation>Entrez le nom de la configuration de fenêtres à restaurer ou [?]&#xa0;: </translation>
    </message>
    <message>
        <source>Cannot find viewport configuration &quot;%1&quot;.</source>
        <translation>Configuration de fenêtres &quot;%1&quot; introuvable.</translation>
    </message>
    <message>
        <source>Enter name(s) of viewport configurations to delete &lt;none&gt;: </source>
        <translation>Entrez les noms des configurations de fenêtres à supprimer &lt;aucune&gt;&#xa0;: </translation>
    </message>
    <message>
        <source>
No matching viewport configurations found.</source>
        <translation>
Aucune configuration de fenêtres correspondante trouvée.</translation>
    </message>
    <message>
        <source>Enter name(s) of viewport configuration(s) to list &lt;*&gt;: </source>
        <translation>Entrez les noms des configurations de fenêtres à lister &lt;*&gt;&#xa0;: </translation>
    </message>
    <message>
        <source>The screen is divided into too many viewports already.</source>
        <translation>L&apos;écran est déjà divisé en trop de fenêtres.</translation>
    </message>
    <message>
        <source>The window shows one view: the viewports to join cannot be picked.</source>
        <translation>La fenêtre du programme montre une vue&#xa0;: les fenêtres à joindre ne peuvent pas être désignées.</translation>
    </message>
    <message>
        <source>Enter an option [Save/Restore/Delete/Join/SIngle/?/2/3/4] &lt;3&gt;: </source>
        <translation>Entrez une option [Save/Restore/Delete/Join/SIngle/?/2/3/4] &lt;3&gt;&#xa0;: </translation>
    </message>
    <message>
        <source>** Command not allowed in Model Tab **</source>
        <translation>** Commande non permise dans l&apos;onglet Objet **</translation>
    </message>
    <message>
        <source>There are no active model space viewports.</source>
        <translation>Il n&apos;y a pas de fenêtres actives de l&apos;espace objet.</translation>
    </message>
    <message>
        <source>The viewport has no area.</source>
        <translation>La fenêtre n&apos;a pas d&apos;aire.</translation>
    </message>
    <message>
        <source>Enter viewport arrangement [Horizontal/Vertical] &lt;Vertical&gt;: </source>
        <translation>Entrez la disposition des fenêtres [Horizontal/Vertical] &lt;Vertical&gt;&#xa0;: </translation>
    </message>
    <message>
        <source>Enter viewport arrangement [Horizontal/Vertical/Above/Below/Left/Right] &lt;Right&gt;: </source>
        <translation>Entrez la disposition des fenêtres [Horizontal/Vertical/Above/Below/Left/Right] &lt;Right&gt;&#xa0;: </translation>
    </message>
    <message>
        <source>
No viewport was chosen.</source>
        <translation>
Aucune fenêtre n&apos;a été choisie.</translation>
    </message>
    <message>
        <source>
Current osnap modes: </source>
        <translation>
Modes d&apos;accrochage aux objets courants&#xa0;: </translation>
    </message>
    <message>
        <source>Enter list of object snap modes: </source>
        <translation>Entrez la liste des modes d&apos;accrochage aux objets&#xa0;: </translation>
    </message>
    <message>
        <source>Invalid object snap mode.</source>
        <translation>Mode d&apos;accrochage aux objets non valide.</translation>
    </message>
    <message>
        <source>Object snap target height (1-50 pixels) &lt;%1&gt;: </source>
        <translation>Hauteur de la cible d&apos;accrochage (1-50 pixels) &lt;%1&gt;&#xa0;: </translation>
    </message>
    <message>
        <source>Value must be between 1 and 50.</source>
        <translation>La valeur doit être comprise entre 1 et 50.</translation>
    </message>
    <message>
        <source>Specify new origin point</source>
        <translation>Spécifiez la nouvelle origine</translation>
    </message>
    <message>
        <source>Specify new origin point or [Zdepth] &lt;%1&gt;: </source>
        <translation>Spécifiez la nouvelle origine ou [Zdepth] &lt;%1&gt;&#xa0;: </translation>
    </message>
    <message>
        <source>Specify Z depth &lt;0&gt;: </source>
        <translation>Spécifiez la profondeur Z &lt;0&gt;&#xa0;: </translation>
    </message>
    <message>
        <source>Specify point on positive portion of X-axis</source>
        <translation>Spécifiez un point de la partie positive de l&apos;axe X</translation>
    </message>
    <message>
        <source>Specify point on positive-Y portion of the UCS XY plane</source>
        <translation>Spécifiez un point de Y positif dans le plan XY du SCU</translation>
    </message>
    <message>
        <source>The three points lie on a line.</source>
        <translation>Les trois points sont alignés.</translation>
    </message>
    <message>
        <source>Specify point on positive portion of Z-axis</source>
        <translation>Spécifiez un point de la partie positive de l&apos;axe Z</translation>
    </message>
    <message>
        <source>The Z axis has no direction.</source>
        <translation>L&apos;axe Z n&apos;a pas de direction.</translation>
    </message>
    <message>
        <source>Specify rotation angle about %1 axis &lt;%2&gt;: </source>
        <translation>Spécifiez l&apos;angle de rotation autour de l&apos;axe %1 &lt;%2&gt;&#xa0;: </translation>
    </message>
    <message>
        <source>Select object to align UCS: </source>
        <translation>Sélectionnez l&apos;objet sur lequel aligner le SCU&#xa0;: </translation>
    </message>
    <message>
        <source>No UCS can be aligned with this object.</source>
        <translation>Aucun SCU ne peut être aligné sur cet objet.</translation>
    </message>
    <message>
        <source>Enter name to save current UCS or [?]: </source>
        <translation>Entrez le nom sous lequel enregistrer le SCU courant ou [?]&#xa0;: </translation>
    </message>
    <message>
        <source>&quot;%1&quot; cannot be the name of a UCS.</source>
        <translation>&quot;%1&quot; ne peut pas être le nom d&apos;un SCU.</translation>
    </message>
    <message>
        <source>UCS &quot;%1&quot; already exists. Replace it? [Yes/No] &lt;No&gt;: </source>
        <translation>Le SCU &quot;%1&quot; existe déjà. Le remplacer&#xa0;? [Yes/No] &lt;No&gt;&#xa0;: </translation>
    </message>
    <message>
        <source>Enter name of UCS to restore or [?]: </source>
        <translation>Entrez le nom du SCU à restaurer ou [?]&#xa0;: </translation>
    </message>
    <message>
        <source>Enter UCS name(s) to delete &lt;none&gt;: </source>
        <translation>Entrez les noms des SCU à supprimer &lt;aucun&gt;&#xa0;: </translation>
    </message>
    <message>
        <source>
No matching UCS names found.</source>
        <translation>
Aucun nom de SCU correspondant trouvé.</translation>
    </message>
    <message>
        <source>
Current UCS:  %1</source>
        <translation>
SCU courant&#xa0;:  %1</translation>
    </message>
    <message>
        <source>Enter UCS name(s) to list &lt;*&gt;: </source>
        <translation>Entrez les noms des SCU à lister &lt;*&gt;&#xa0;: </translation>
    </message>
    <message>
        <source>&quot;%1&quot;  Origin = &lt;%2&gt;, X = &lt;%3&gt;, Y = &lt;%4&gt;</source>
        <translation>&quot;%1&quot;  Origine = &lt;%2&gt;, X = &lt;%3&gt;, Y = &lt;%4&gt;</translation>
    </message>
    <message>
        <source>Faces of solids cannot be chosen here.</source>
        <translation>Les faces de solides ne peuvent pas être choisies ici.</translation>
    </message>
    <message>
        <source>
No previous coordinate system saved.</source>
        <translation>
Aucun système de coordonnées précédent enregistré.</translation>
    </message>
    <message>
        <source>Specify point on X-axis or &lt;accept&gt;: </source>
        <translation>Spécifiez un point sur l&apos;axe X ou &lt;accepter&gt;&#xa0;: </translation>
    </message>
    <message>
        <source>Specify point on the XY plane or &lt;accept&gt;: </source>
        <translation>Spécifiez un point du plan XY ou &lt;accepter&gt;&#xa0;: </translation>
    </message>
    <message>
        <source>Specify origin of new UCS or [ZAxis/3point/OBject/Face/View/X/Y/Z] &lt;%1&gt;: </source>
        <translation>Spécifiez l&apos;origine du nouveau SCU ou [ZAxis/3point/OBject/Face/View/X/Y/Z] &lt;%1&gt;&#xa0;: </translation>
    </message>
    <message>
        <source>
Current ucs name:  %1</source>
        <translation>
Nom du SCU courant&#xa0;:  %1</translation>
    </message>
    <message>
        <source>Specify origin of UCS or [Face/NAmed/OBject/Previous/View/World/X/Y/Z/ZAxis] &lt;World&gt;: </source>
        <translation>Spécifiez l&apos;origine du SCU ou [Face/NAmed/OBject/Previous/View/World/X/Y/Z/ZAxis] &lt;World&gt;&#xa0;: </translation>
    </message>
    <message>
        <source>Enter an option [Restore/Save/Delete/?]: </source>
        <translation>Entrez une option [Restore/Save/Delete/?]&#xa0;: </translation>
    </message>
    <message>
        <source>Requires a scale factor, two corners or an option keyword.</source>
        <translation>Un facteur d&apos;échelle, deux coins ou un mot-clé est nécessaire.</translation>
    </message>
    <message>
        <source>A scale of the sheet is for viewports: MSPACE goes into one.</source>
        <translation>Une échelle de la feuille s&apos;applique aux fenêtres&#xa0;: MSPACE y entre.</translation>
    </message>
    <message>
        <source>
Enter magnification or height &lt;%1&gt;: </source>
        <translation>
Entrez l&apos;agrandissement ou la hauteur &lt;%1&gt;&#xa0;: </translation>
    </message>
    <message>
        <source>Requires a height, or a magnification (nX).</source>
        <translation>Une hauteur ou un agrandissement (nX) est nécessaire.</translation>
    </message>
    <message>
        <source>Specify center point: </source>
        <translation>Spécifiez le centre&#xa0;: </translation>
    </message>
    <message>
        <source>Specify lower left corner point: </source>
        <translation>Spécifiez le coin inférieur gauche&#xa0;: </translation>
    </message>
    <message>
        <source>Enter a scale factor (nX or nXP): </source>
        <translation>Entrez un facteur d&apos;échelle (nX ou nXP)&#xa0;: </translation>
    </message>
    <message>
        <source>There is no dynamic zoom: use the window&apos;s wheel.</source>
        <translation>Il n&apos;y a pas de zoom dynamique&#xa0;: utilisez la molette dans la fenêtre.</translation>
    </message>
    <message>
        <source>
Specify corner of window, enter a scale factor (nX or nXP), or [All/Center/Dynamic/Extents/Previous/Scale/Window/Object] &lt;real time&gt;: </source>
        <translation>
Spécifiez un coin de la fenêtre, entrez un facteur d&apos;échelle (nX ou nXP) ou [All/Center/Dynamic/Extents/Previous/Scale/Window/Object] &lt;temps réel&gt;&#xa0;: </translation>
    </message>
    <message>
        <source>
No previous view saved.</source>
        <translation>
Aucune vue précédente enregistrée.</translation>
    </message>
    <message>
        <source>Specify base point or displacement: </source>
        <translation>Spécifiez le point de base ou le déplacement&#xa0;: </translation>
    </message>
    <message>
        <source>Specify first corner or [Fit] &lt;Fit&gt;: </source>
        <translation>Spécifiez le premier coin ou [Fit] &lt;Fit&gt;&#xa0;: </translation>
    </message>
    <message>
        <source>Enter viewport configuration name or [?] &lt;*Active&gt;: </source>
        <translation>Entrez le nom de la configuration de fenêtres ou [?] &lt;*Active&gt;&#xa0;: </translation>
    </message>
    <message>
        <source>A drawing of this version has no viewports with other outlines than rectangles.</source>
        <translation>Un dessin de cette version n&apos;a pas de fenêtres autres que rectangulaires.</translation>
    </message>
    <message>
        <source>A viewport is bounded by a closed polyline, circle, ellipse, spline or region.</source>
        <translation>Une fenêtre est délimitée par une polyligne fermée, un cercle, une ellipse, une spline ou une région.</translation>
    </message>
    <message>
        <source>Select object to clip viewport: </source>
        <translation>Sélectionnez l&apos;objet qui délimite la fenêtre&#xa0;: </translation>
    </message>
    <message>
        <source>A viewport has three corners at least.</source>
        <translation>Une fenêtre a au moins trois coins.</translation>
    </message>
    <message>
        <source>Viewport View Locking [ON/OFF]: </source>
        <translation>Verrouillage de la vue de la fenêtre [ON/OFF]&#xa0;: </translation>
    </message>
    <message>
        <source>Shade plot? [As displayed/Wireframe/Hidden/Rendered] &lt;As displayed&gt;: </source>
        <translation>Tracé ombré&#xa0;? [As displayed/Wireframe/Hidden/Rendered] &lt;As displayed&gt;&#xa0;: </translation>
    </message>
    <message>
        <source>Specify corner of viewport or [ON/OFF/Fit/Shadeplot/Lock/Object/Polygonal/Restore/2/3/4] &lt;Fit&gt;: </source>
        <translation>Spécifiez un coin de la fenêtre ou [ON/OFF/Fit/Shadeplot/Lock/Object/Polygonal/Restore/2/3/4] &lt;Fit&gt;&#xa0;: </translation>
    </message>
    <message>
        <source>
Already in model space.</source>
        <translation>
Déjà dans l&apos;espace objet.</translation>
    </message>
    <message>
        <source>
Already in paper space.</source>
        <translation>
Déjà dans l&apos;espace papier.</translation>
    </message>
    <message>
        <source>Enter an option [All/Select/Current/eXcept current] &lt;Current&gt;: </source>
        <translation>Entrez une option [All/Select/Current/eXcept current] &lt;Current&gt;&#xa0;: </translation>
    </message>
    <message>
        <source>Enter name(s) of new layers frozen in all viewports: </source>
        <translation>Entrez les noms des nouveaux calques gelés dans toutes les fenêtres&#xa0;: </translation>
    </message>
    <message>
        <source>Enter layer name(s) to change viewport visibility: </source>
        <translation>Entrez les noms des calques dont modifier la visibilité dans les fenêtres&#xa0;: </translation>
    </message>
    <message>
        <source>Enter a viewport visibility option [Frozen/Thawed] &lt;Thawed&gt;: </source>
        <translation>Entrez une option de visibilité dans les fenêtres [Frozen/Thawed] &lt;Thawed&gt;&#xa0;: </translation>
    </message>
    <message>
        <source>Select a viewport: </source>
        <translation>Sélectionnez une fenêtre&#xa0;: </translation>
    </message>
    <message>
        <source>No viewport was chosen.</source>
        <translation>Aucune fenêtre n&apos;a été choisie.</translation>
    </message>
    <message>
        <source>
Layers currently frozen in viewport %1:</source>
        <translation>
Calques actuellement gelés dans la fenêtre %1&#xa0;:</translation>
    </message>
    <message>
        <source>Enter layer name(s) to freeze or &lt;select objects&gt;: </source>
        <translation>Entrez les noms des calques à geler ou &lt;sélectionner des objets&gt;&#xa0;: </translation>
    </message>
    <message>
        <source>Enter layer name(s) to thaw: </source>
        <translation>Entrez les noms des calques à dégeler&#xa0;: </translation>
    </message>
    <message>
        <source>Enter layer name(s) to reset: </source>
        <translation>Entrez les noms des calques à réinitialiser&#xa0;: </translation>
    </message>
    <message>
        <source>Layers have the same properties in all viewports here: nothing was changed.</source>
        <translation>Les calques ont ici les mêmes propriétés dans toutes les fenêtres&#xa0;: rien n&apos;a été modifié.</translation>
    </message>
    <message>
        <source>Enter an option [?/Color/Ltype/LWeight/TRansparency/Freeze/Thaw/Reset/Newfrz/Vpvisdflt]: </source>
        <translation>Entrez une option [?/Color/Ltype/LWeight/TRansparency/Freeze/Thaw/Reset/Newfrz/Vpvisdflt]&#xa0;: </translation>
    </message>
    <message>
        <source>  Unloaded</source>
        <translation>  Déchargée</translation>
    </message>
    <message>
        <source>That would be %1 entities; at most %2 are made at once.</source>
        <translation>Cela ferait %1 objets ; %2 au plus sont créés en une fois.</translation>
    </message>
    <message>
        <source>A cloud needs a line along which it goes.</source>
        <translation>Un nuage a besoin d’une ligne le long de laquelle il passe.</translation>
    </message>
    <message>
        <source>The arcs are too short for this line.</source>
        <translation>Les arcs sont trop courts pour cette ligne.</translation>
    </message>
    <message>
        <source>
Revision cloud finished.</source>
        <translation>
Nuage de révision terminé.</translation>
    </message>
    <message>
        <source>
******** WARNING ********
</source>
        <translation>
******** AVERTISSEMENT ********
</translation>
    </message>
</context>
<context>
    <name>Comparing</name>
    <message>
        <source>matched by content, not by handles</source>
        <translation>appariés par leur contenu, non par leurs identificateurs</translation>
    </message>
    <message>
        <source>= %1 added, %2 removed, %3 changed, %4 the same</source>
        <translation>= %1 ajoutés, %2 supprimés, %3 modifiés, %4 identiques</translation>
    </message>
    <message>
        <source>= by type:</source>
        <translation>= par type&#xa0;:</translation>
    </message>
    <message>
        <source>= by layer:</source>
        <translation>= par calque&#xa0;:</translation>
    </message>
    <message>
        <source>%1: the extension must be %2</source>
        <translation>%1&#xa0;: l&apos;extension doit être %2</translation>
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
        <translation>espace objet</translation>
    </message>
    <message>
        <source>paper space</source>
        <translation>espace papier</translation>
    </message>
    <message>
        <source>All entities drawn</source>
        <translation>Tous les objets sont dessinés</translation>
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
        <translation>&quot;%1&quot; ne peut pas être le nom d&apos;un bloc</translation>
    </message>
    <message>
        <source>there is no such block</source>
        <translation>un tel bloc n&apos;existe pas</translation>
    </message>
    <message>
        <source>%1 cannot be exploded.</source>
        <translation>%1 ne peut pas être décomposé.</translation>
    </message>
    <message>
        <source>Block &quot;%1&quot; is missing.</source>
        <translation>Le bloc &quot;%1&quot; manque.</translation>
    </message>
    <message>
        <source>An external reference cannot be exploded.</source>
        <translation>Une référence externe ne peut pas être décomposée.</translation>
    </message>
    <message>
        <source>Block &quot;%1&quot; may not be exploded.</source>
        <translation>Le bloc &quot;%1&quot; ne peut pas être décomposé.</translation>
    </message>
    <message>
        <source>The scales of block &quot;%1&quot; differ.</source>
        <translation>Les échelles du bloc &quot;%1&quot; diffèrent.</translation>
    </message>
    <message>
        <source>Too many entities would come of it.</source>
        <translation>Il en sortirait trop d&apos;objets.</translation>
    </message>
    <message>
        <source>A drawing of this version has one sheet.</source>
        <translation>Un dessin de cette version n&apos;a qu&apos;une feuille.</translation>
    </message>
    <message>
        <source>A layout cannot be called &quot;%1&quot;.</source>
        <translation>Une présentation ne peut pas s&apos;appeler &quot;%1&quot;.</translation>
    </message>
    <message>
        <source>Layout &quot;%1&quot; already exists.</source>
        <translation>La présentation &quot;%1&quot; existe déjà.</translation>
    </message>
    <message>
        <source>Model space cannot be copied.</source>
        <translation>L&apos;espace objet ne peut pas être copié.</translation>
    </message>
    <message>
        <source>Model space cannot be moved.</source>
        <translation>L&apos;espace objet ne peut pas être déplacé.</translation>
    </message>
    <message>
        <source>Model space cannot be renamed.</source>
        <translation>L&apos;espace objet ne peut pas être renommé.</translation>
    </message>
    <message>
        <source>Layout &quot;%1&quot; has no object in this drawing that a name could be given to.</source>
        <translation>La présentation &quot;%1&quot; n&apos;a dans ce dessin aucun objet auquel donner un nom.</translation>
    </message>
    <message>
        <source>Model space cannot be deleted.</source>
        <translation>L&apos;espace objet ne peut pas être supprimé.</translation>
    </message>
    <message>
        <source>The last layout cannot be deleted.</source>
        <translation>La dernière présentation ne peut pas être supprimée.</translation>
    </message>
    <message>
        <source>Cannot find layer &quot;%1&quot;.</source>
        <translation>Calque &quot;%1&quot; introuvable.</translation>
    </message>
    <message>
        <source>Layer &quot;%1&quot; is needed by every drawing.</source>
        <translation>Tout dessin a besoin du calque &quot;%1&quot;.</translation>
    </message>
    <message>
        <source>Layer &quot;%1&quot; is the current layer.</source>
        <translation>Le calque &quot;%1&quot; est le calque courant.</translation>
    </message>
    <message>
        <source>Layer &quot;%1&quot; belongs to an external reference.</source>
        <translation>Le calque &quot;%1&quot; appartient à une référence externe.</translation>
    </message>
    <message>
        <source>A drawing of this version keeps no page setup.</source>
        <translation>Un dessin de cette version ne conserve pas de mise en page.</translation>
    </message>
    <message>
        <source>Layer &quot;%1&quot; cannot be renamed.</source>
        <translation>Le calque &quot;%1&quot; ne peut pas être renommé.</translation>
    </message>
    <message>
        <source>Layer &quot;%1&quot; already exists.</source>
        <translation>Le calque &quot;%1&quot; existe déjà.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; cannot be the name of a layer.</source>
        <translation>&quot;%1&quot; ne peut pas être le nom d&apos;un calque.</translation>
    </message>
    <message>
        <source>Block</source>
        <translation>Bloc</translation>
    </message>
    <message>
        <source>block</source>
        <translation>bloc</translation>
    </message>
    <message>
        <source>Dimension style</source>
        <translation>Style de cote</translation>
    </message>
    <message>
        <source>dimension style</source>
        <translation>style de cote</translation>
    </message>
    <message>
        <source>Linetype</source>
        <translation>Type de ligne</translation>
    </message>
    <message>
        <source>linetype</source>
        <translation>type de ligne</translation>
    </message>
    <message>
        <source>Text style</source>
        <translation>Style de texte</translation>
    </message>
    <message>
        <source>text style</source>
        <translation>style de texte</translation>
    </message>
    <message>
        <source>UCS</source>
        <translation>SCU</translation>
    </message>
    <message>
        <source>ucs</source>
        <translation>SCU</translation>
    </message>
    <message>
        <source>View</source>
        <translation>Vue</translation>
    </message>
    <message>
        <source>view</source>
        <translation>vue</translation>
    </message>
    <message>
        <source>Viewport configuration</source>
        <translation>Configuration de fenêtres</translation>
    </message>
    <message>
        <source>viewport configuration</source>
        <translation>configuration de fenêtres</translation>
    </message>
    <message>
        <source>Cannot find %1 &quot;%2&quot;.</source>
        <translation>Introuvable&#xa0;: %1 &quot;%2&quot;.</translation>
    </message>
    <message>
        <source>%1 &quot;%2&quot; cannot be renamed.</source>
        <translation>Ne peut pas être renommé&#xa0;: %1 &quot;%2&quot;.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; cannot be a name.</source>
        <translation>&quot;%1&quot; ne peut pas être un nom.</translation>
    </message>
    <message>
        <source>%1 &quot;%2&quot; already exists.</source>
        <translation>Existe déjà&#xa0;: %1 &quot;%2&quot;.</translation>
    </message>
    <message>
        <source>Registered applications cannot be renamed.</source>
        <translation>Les applications enregistrées ne peuvent pas être renommées.</translation>
    </message>
    <message>
        <source>Cannot find &quot;%1&quot;.</source>
        <translation>&quot;%1&quot; introuvable.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; already exists.</source>
        <translation>&quot;%1&quot; existe déjà.</translation>
    </message>
    <message>
        <source>a drawing of this version has one sheet only</source>
        <translation>un dessin de cette version n&apos;a qu&apos;une feuille</translation>
    </message>
    <message>
        <source>&quot;%1&quot; cannot be the name of a sheet</source>
        <translation>&quot;%1&quot; ne peut pas être le nom d&apos;une feuille</translation>
    </message>
    <message>
        <source>there is no sheet &quot;%1&quot;</source>
        <translation>il n&apos;y a pas de feuille &quot;%1&quot;</translation>
    </message>
    <message>
        <source>there is a sheet &quot;%1&quot; already</source>
        <translation>il y a déjà une feuille &quot;%1&quot;</translation>
    </message>
    <message>
        <source>blocks</source>
        <translation>blocs</translation>
    </message>
    <message>
        <source>detail view styles</source>
        <translation>styles de vue de détail</translation>
    </message>
    <message>
        <source>detail view style</source>
        <translation>style de vue de détail</translation>
    </message>
    <message>
        <source>dimension styles</source>
        <translation>styles de cote</translation>
    </message>
    <message>
        <source>groups</source>
        <translation>groupes</translation>
    </message>
    <message>
        <source>group</source>
        <translation>groupe</translation>
    </message>
    <message>
        <source>layers</source>
        <translation>calques</translation>
    </message>
    <message>
        <source>layer</source>
        <translation>calque</translation>
    </message>
    <message>
        <source>linetypes</source>
        <translation>types de ligne</translation>
    </message>
    <message>
        <source>materials</source>
        <translation>matériaux</translation>
    </message>
    <message>
        <source>material</source>
        <translation>matériau</translation>
    </message>
    <message>
        <source>multileader styles</source>
        <translation>styles de repère multiple</translation>
    </message>
    <message>
        <source>multileader style</source>
        <translation>style de repère multiple</translation>
    </message>
    <message>
        <source>plot styles</source>
        <translation>styles de tracé</translation>
    </message>
    <message>
        <source>plot style</source>
        <translation>style de tracé</translation>
    </message>
    <message>
        <source>shape files</source>
        <translation>fichiers de formes</translation>
    </message>
    <message>
        <source>shape file</source>
        <translation>fichier de formes</translation>
    </message>
    <message>
        <source>text styles</source>
        <translation>styles de texte</translation>
    </message>
    <message>
        <source>multiline styles</source>
        <translation>styles de multiligne</translation>
    </message>
    <message>
        <source>multiline style</source>
        <translation>style de multiligne</translation>
    </message>
    <message>
        <source>section view styles</source>
        <translation>styles de vue de coupe</translation>
    </message>
    <message>
        <source>section view style</source>
        <translation>style de vue de coupe</translation>
    </message>
    <message>
        <source>table styles</source>
        <translation>styles de tableau</translation>
    </message>
    <message>
        <source>table style</source>
        <translation>style de tableau</translation>
    </message>
    <message>
        <source>visual styles</source>
        <translation>styles visuels</translation>
    </message>
    <message>
        <source>visual style</source>
        <translation>style visuel</translation>
    </message>
    <message>
        <source>registered applications</source>
        <translation>applications enregistrées</translation>
    </message>
    <message>
        <source>registered application</source>
        <translation>application enregistrée</translation>
    </message>
    <message>
        <source>no record begins here</source>
        <translation>aucun enregistrement ne commence ici</translation>
    </message>
    <message>
        <source>the file goes on behind it</source>
        <translation>le fichier continue derrière</translation>
    </message>
    <message>
        <source>the file ends within it</source>
        <translation>le fichier finit au milieu</translation>
    </message>
    <message>
        <source>group code expected, found %1</source>
        <translation>code de groupe attendu, %1 trouvé</translation>
    </message>
    <message>
        <source>type of a record expected, found %1</source>
        <translation>type d&apos;enregistrement attendu, %1 trouvé</translation>
    </message>
    <message>
        <source>group %1 cannot be %2</source>
        <translation>le groupe %1 ne peut pas être %2</translation>
    </message>
    <message>
        <source>line %1: %2</source>
        <translation>ligne %1&#xa0;: %2</translation>
    </message>
    <message>
        <source>%1 has a value for group %2 that the binary form has no room for: &quot;%3&quot;</source>
        <translation>%1 a pour le groupe %2 une valeur à laquelle la forme binaire n&apos;a pas de place&#xa0;: &quot;%3&quot;</translation>
    </message>
    <message>
        <source>%1 with the handle %2</source>
        <translation>%1 d&apos;identificateur %2</translation>
    </message>
    <message>
        <source>it names no version</source>
        <translation>il ne nomme aucune version</translation>
    </message>
    <message>
        <source>its handle was another record&apos;s, it has a new one</source>
        <translation>son identificateur était celui d&apos;un autre enregistrement, il en a un nouveau</translation>
    </message>
    <message>
        <source>its handle was none, it has a new one</source>
        <translation>son identificateur n&apos;en était pas un, il en a un nouveau</translation>
    </message>
    <message>
        <source>it has no name</source>
        <translation>il n&apos;a pas de nom</translation>
    </message>
    <message>
        <source>it has no value</source>
        <translation>il n&apos;a pas de valeur</translation>
    </message>
    <message>
        <source>it has more than one value, of which the first was taken</source>
        <translation>il a plus d&apos;une valeur, dont la première a été prise</translation>
    </message>
    <message>
        <source>it leads to all other objects, and is the first of them now</source>
        <translation>il mène à tous les autres objets, et en est maintenant le premier</translation>
    </message>
    <message>
        <source>the one that leads to all other objects was lost</source>
        <translation>celui qui mène à tous les autres objets était perdu</translation>
    </message>
    <message>
        <source>its text was no UTF-8 and was taken for %1</source>
        <translation>son texte n&apos;était pas en UTF-8 et a été pris pour du %1</translation>
    </message>
    <message>
        <source>the one of block %1 was lost</source>
        <translation>celui du bloc %1 était perdu</translation>
    </message>
    <message>
        <source>the file is larger than 4 GB</source>
        <translation>le fichier dépasse 4 Go</translation>
    </message>
    <message>
        <source>nothing in this file is a part of a drawing</source>
        <translation>rien dans ce fichier n&apos;est une partie de dessin</translation>
    </message>
    <message>
        <source>%1: this is a folder</source>
        <translation>%1&#xa0;: c&apos;est un dossier</translation>
    </message>
    <message>
        <source> (--recover opens what is sound of it)</source>
        <translation> (--recover ouvre ce qui en est sain)</translation>
    </message>
    <message>
        <source>%1 times </source>
        <translation>%1 fois </translation>
    </message>
    <message>
        <source>and %1 more</source>
        <translation>et %1 de plus</translation>
    </message>
    <message>
        <source>the file is sound, nothing was dropped</source>
        <translation>le fichier est sain, rien n&apos;a été écarté</translation>
    </message>
    <message>
        <source>recovered: %1 dropped%2, %3 mended, %4 added</source>
        <translation>récupéré&#xa0;: %1 écartés%2, %3 réparés, %4 ajoutés</translation>
    </message>
    <message>
        <source>what was written does not read back the same</source>
        <translation>ce qui a été écrit ne se relit pas à l&apos;identique</translation>
    </message>
    <message>
        <source>what would be written could not be opened again (%1)</source>
        <translation>ce qui serait écrit ne pourrait pas être rouvert (%1)</translation>
    </message>
    <message>
        <source>what would be written could not be opened the same: see %1 of handle %2</source>
        <translation>ce qui serait écrit ne pourrait pas être rouvert à l&apos;identique&#xa0;: voir %1 d&apos;identificateur %2</translation>
    </message>
    <message>
        <source>%1: the file cannot be written: %2</source>
        <translation>%1&#xa0;: le fichier ne peut pas être écrit&#xa0;: %2</translation>
    </message>
    <message>
        <source>%1: %2; the old file was kept</source>
        <translation>%1&#xa0;: %2&#xa0;; l&apos;ancien fichier a été conservé</translation>
    </message>
    <message>
        <source>%1: this program cannot write DWG files; give the file a name ending in .dxf</source>
        <translation>%1&#xa0;: ce programme ne peut pas écrire de fichiers DWG&#xa0;; donnez au fichier un nom finissant par .dxf</translation>
    </message>
    <message>
        <source>header variable</source>
        <translation>variable d&apos;en-tête</translation>
    </message>
    <message>
        <source>it stands outside of the sections</source>
        <translation>il se trouve hors des sections</translation>
    </message>
    <message>
        <source>its name is none, and what it holds tells another</source>
        <translation>son nom n&apos;en est pas un, et ce qu&apos;il contient en indique un autre</translation>
    </message>
    <message>
        <source>it was there before, and goes on here</source>
        <translation>il était déjà là, et continue ici</translation>
    </message>
    <message>
        <source>it stands outside of its section, and was put into %1</source>
        <translation>il se trouve hors de sa section, et a été mis dans %1</translation>
    </message>
    <message>
        <source>no table is open</source>
        <translation>aucune table n&apos;est ouverte</translation>
    </message>
    <message>
        <source>it stands outside of the tables</source>
        <translation>il se trouve hors des tables</translation>
    </message>
    <message>
        <source>table entry</source>
        <translation>entrée de table</translation>
    </message>
    <message>
        <source>it stands outside of its table</source>
        <translation>il se trouve hors de sa table</translation>
    </message>
    <message>
        <source>no block is open</source>
        <translation>aucun bloc n&apos;est ouvert</translation>
    </message>
    <message>
        <source>it had no name, and is %1 now</source>
        <translation>il n&apos;avait pas de nom, et s&apos;appelle maintenant %1</translation>
    </message>
    <message>
        <source>the one for the entities here was lost; it is %1 now</source>
        <translation>celui des objets présents ici était perdu&#xa0;; c&apos;est maintenant %1</translation>
    </message>
    <message>
        <source>nothing is open that it could end</source>
        <translation>rien n&apos;est ouvert qu&apos;il pourrait finir</translation>
    </message>
    <message>
        <source>what it is a part of is not there</source>
        <translation>ce dont il fait partie n&apos;est pas là</translation>
    </message>
    <message>
        <source>it was missing</source>
        <translation>il manquait</translation>
    </message>
    <message>
        <source>no section is open</source>
        <translation>aucune section n&apos;est ouverte</translation>
    </message>
    <message>
        <source>the drawing looks like one of %1</source>
        <translation>le dessin ressemble à un dessin %1</translation>
    </message>
    <message>
        <source>%1: this is not a file</source>
        <translation>%1&#xa0;: ce n&apos;est pas un fichier</translation>
    </message>
    <message>
        <source>%1: drawings of this version have no room for such data</source>
        <translation>%1&#xa0;: les dessins de cette version n&apos;ont pas de place pour de telles données</translation>
    </message>
    <message>
        <source>%1: %2 stands for something else in this drawing</source>
        <translation>%1&#xa0;: %2 désigne autre chose dans ce dessin</translation>
    </message>
    <message>
        <source>%1: the file is larger than 4 GB</source>
        <translation>%1&#xa0;: le fichier dépasse 4 Go</translation>
    </message>
    <message>
        <source>the drawing has no paper space</source>
        <translation>le dessin n&apos;a pas d&apos;espace papier</translation>
    </message>
    <message>
        <source>POLYLINE: its vertices are missing</source>
        <translation>POLYLINE&#xa0;: ses sommets manquent</translation>
    </message>
    <message>
        <source>%1: an entity of this type has no parts</source>
        <translation>%1&#xa0;: un objet de ce type n&apos;a pas de parties</translation>
    </message>
    <message>
        <source>%1: %2 expected, found %3</source>
        <translation>%1&#xa0;: %2 attendu, %3 trouvé</translation>
    </message>
    <message>
        <source>the entity is erased</source>
        <translation>l&apos;objet est effacé</translation>
    </message>
    <message>
        <source>a number</source>
        <translation>un nombre</translation>
    </message>
    <message>
        <source>a handle</source>
        <translation>un identificateur</translation>
    </message>
    <message>
        <source>a text</source>
        <translation>un texte</translation>
    </message>
    <message>
        <source>group 0 (the type) is missing</source>
        <translation>le groupe 0 (le type) manque</translation>
    </message>
    <message>
        <source>this is no entity</source>
        <translation>ce n&apos;est pas un objet</translation>
    </message>
    <message>
        <source>this type is not known, and its subclass markers (group 100) are missing</source>
        <translation>ce type n&apos;est pas connu, et ses marques de sous-classe (groupe 100) manquent</translation>
    </message>
    <message>
        <source>a drawing of this version has no such entity</source>
        <translation>un dessin de cette version n&apos;a pas un tel objet</translation>
    </message>
    <message>
        <source>group %1 is missing</source>
        <translation>le groupe %1 manque</translation>
    </message>
    <message>
        <source>group %1 is not a point</source>
        <translation>le groupe %1 n&apos;est pas un point</translation>
    </message>
    <message>
        <source>group %1 is not %2</source>
        <translation>le groupe %1 n&apos;est pas %2</translation>
    </message>
    <message>
        <source>linetype %1 is not in the drawing</source>
        <translation>le type de ligne %1 n&apos;est pas dans le dessin</translation>
    </message>
    <message>
        <source>text style %1 is not in the drawing</source>
        <translation>le style de texte %1 n&apos;est pas dans le dessin</translation>
    </message>
    <message>
        <source>block %1 is not in the drawing</source>
        <translation>le bloc %1 n&apos;est pas dans le dessin</translation>
    </message>
    <message>
        <source>group code expected, found </source>
        <translation>code de groupe attendu, trouvé </translation>
    </message>
    <message>
        <source>this is not a DXF file: </source>
        <translation>ce n&apos;est pas un fichier DXF&#xa0;: </translation>
    </message>
    <message>
        <source>this is not a DXF file: it has no sections</source>
        <translation>ce n&apos;est pas un fichier DXF&#xa0;: il n&apos;a pas de sections</translation>
    </message>
    <message>
        <source>the file is cut off: it ends before EOF</source>
        <translation>le fichier est tronqué&#xa0;: il finit avant EOF</translation>
    </message>
    <message>
        <source>the section has no name</source>
        <translation>la section n&apos;a pas de nom</translation>
    </message>
    <message>
        <source>a record without a type</source>
        <translation>un enregistrement sans type</translation>
    </message>
    <message>
        <source>%1 inside a section: ENDSEC is missing</source>
        <translation>%1 dans une section&#xa0;: ENDSEC manque</translation>
    </message>
    <message>
        <source>%1 stands in the header section</source>
        <translation>%1 se trouve dans la section d&apos;en-tête</translation>
    </message>
    <message>
        <source>this is not a DXF file: section expected, found </source>
        <translation>ce n&apos;est pas un fichier DXF&#xa0;: section attendue, trouvé </translation>
    </message>
    <message>
        <source>%1 stands outside of the sections</source>
        <translation>%1 se trouve hors des sections</translation>
    </message>
    <message>
        <source>TABLE inside a table: ENDTAB is missing</source>
        <translation>TABLE dans une table&#xa0;: ENDTAB manque</translation>
    </message>
    <message>
        <source>%1 stands outside of the tables: TABLE is missing</source>
        <translation>%1 se trouve hors des tables&#xa0;: TABLE manque</translation>
    </message>
    <message>
        <source>BLOCK inside a block: ENDBLK is missing</source>
        <translation>BLOCK dans un bloc&#xa0;: ENDBLK manque</translation>
    </message>
    <message>
        <source>%1 stands outside of the blocks: BLOCK is missing</source>
        <translation>%1 se trouve hors des blocs&#xa0;: BLOCK manque</translation>
    </message>
    <message>
        <source>the section ends inside a table: ENDTAB is missing</source>
        <translation>la section finit dans une table&#xa0;: ENDTAB manque</translation>
    </message>
    <message>
        <source>the section ends inside a block: ENDBLK is missing</source>
        <translation>la section finit dans un bloc&#xa0;: ENDBLK manque</translation>
    </message>
    <message>
        <source>tag %1 of the binary file: %2</source>
        <translation>balise %1 du fichier binaire&#xa0;: %2</translation>
    </message>
    <message>
        <source>the file is larger than 4 GB as text</source>
        <translation>le fichier dépasse 4 Go en texte</translation>
    </message>
    <message>
        <source>the file is empty</source>
        <translation>le fichier est vide</translation>
    </message>
    <message>
        <source>this is a UTF-16 text file, not a DXF file</source>
        <translation>c&apos;est un fichier texte UTF-16, non un fichier DXF</translation>
    </message>
    <message>
        <source>this is a packed file; unpack it first</source>
        <translation>c&apos;est un fichier compressé&#xa0;; décompressez-le d&apos;abord</translation>
    </message>
    <message>
        <source>this is a binary DXF file whose first bytes are damaged, as by a transfer as text</source>
        <translation>c&apos;est un fichier DXF binaire dont les premiers octets sont endommagés, comme par un transfert en texte</translation>
    </message>
    <message>
        <source>the pattern does not begin with &quot;A&quot;</source>
        <translation>le motif ne commence pas par &quot;A&quot;</translation>
    </message>
    <message>
        <source>the pattern is empty</source>
        <translation>le motif est vide</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no length</source>
        <translation>&quot;%1&quot; n&apos;est pas une longueur</translation>
    </message>
    <message>
        <source>the pattern is too long</source>
        <translation>le motif est trop long</translation>
    </message>
    <message>
        <source>a text or shape is not closed, or stands in front of all dashes</source>
        <translation>un texte ou une forme n&apos;est pas fermé, ou se trouve avant tous les tirets</translation>
    </message>
    <message>
        <source>a shape needs its name and its file</source>
        <translation>une forme demande son nom et son fichier</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not understood</source>
        <translation>&quot;%1&quot; n&apos;est pas compris</translation>
    </message>
    <message>
        <source>text style &quot;%1&quot; is not in the drawing</source>
        <translation>le style de texte &quot;%1&quot; n&apos;est pas dans le dessin</translation>
    </message>
    <message>
        <source>the shape file &quot;%1&quot; is not found</source>
        <translation>le fichier de formes &quot;%1&quot; est introuvable</translation>
    </message>
    <message>
        <source>shape &quot;%1&quot; is not in the file &quot;%2&quot;</source>
        <translation>la forme &quot;%1&quot; n&apos;est pas dans le fichier &quot;%2&quot;</translation>
    </message>
    <message>
        <source>a drawing of this version has no texts and shapes in linetypes</source>
        <translation>un dessin de cette version n&apos;a ni textes ni formes dans les types de ligne</translation>
    </message>
    <message>
        <source>the name cannot be used</source>
        <translation>le nom ne peut pas être utilisé</translation>
    </message>
    <message>
        <source>it is not in the drawing&apos;s folder. READPATHS, or the option --allow-read, names folders whose files drawings may name</source>
        <translation>il n&apos;est pas dans le dossier du dessin. READPATHS, ou l&apos;option --allow-read, nomme les dossiers dont les dessins peuvent nommer les fichiers</translation>
    </message>
    <message>
        <source>there are no shapes in it</source>
        <translation>il ne contient pas de formes</translation>
    </message>
    <message>
        <source>the file is cut off</source>
        <translation>le fichier est tronqué</translation>
    </message>
    <message>
        <source>it is a compiled file of another kind</source>
        <translation>c&apos;est un fichier compilé d&apos;un autre genre</translation>
    </message>
    <message>
        <source>%1 (remote texts have at most 256 kB)</source>
        <translation>%1 (les textes distants ont au plus 256 ko)</translation>
    </message>
    <message>
        <source>this DWG file cannot be read: %1</source>
        <translation>ce fichier DWG ne peut pas être lu : %1</translation>
    </message>
    <message>
        <source>1 object could not be read</source>
        <translation>1 objet n&apos;a pas pu être lu</translation>
    </message>
    <message>
        <source>%1 objects could not be read</source>
        <translation>%1 objets n&apos;ont pas pu être lus</translation>
    </message>
    <message>
        <source>a part of the file</source>
        <translation>une partie du fichier</translation>
    </message>
    <message>
        <source>some of the file is not as expected; what was read of it may be wrong</source>
        <translation>une partie du fichier n&apos;est pas comme attendu ; ce qui en a été lu est peut-être faux</translation>
    </message>
    <message>
        <source>1 part of the file could not be read</source>
        <translation>1 partie du fichier n&apos;a pas pu être lue</translation>
    </message>
    <message>
        <source>%1 parts of the file could not be read</source>
        <translation>%1 parties du fichier n&apos;ont pas pu être lues</translation>
    </message>
    <message>
        <source>1 object and 1 part of the file could not be read</source>
        <translation>1 objet et 1 partie du fichier n&apos;ont pas pu être lus</translation>
    </message>
    <message>
        <source>1 object and %1 parts of the file could not be read</source>
        <translation>1 objet et %1 parties du fichier n&apos;ont pas pu être lus</translation>
    </message>
    <message>
        <source>%1 objects and 1 part of the file could not be read</source>
        <translation>%1 objets et 1 partie du fichier n&apos;ont pas pu être lus</translation>
    </message>
    <message>
        <source>%1 objects and %2 parts of the file could not be read</source>
        <translation>%1 objets et %2 parties du fichier n&apos;ont pas pu être lus</translation>
    </message>
    <message>
        <source>object %1</source>
        <translation>objet %1</translation>
    </message>
    <message>
        <source>%1 could not be read: %2</source>
        <translation>%1 n&apos;a pas pu être lu : %2</translation>
    </message>
    <message>
        <source>%1 may be wrong: %2</source>
        <translation>%1 est peut-être faux : %2</translation>
    </message>
    <message>
        <source>the file is damaged; the drawing is whole</source>
        <translation>le fichier est endommagé ; le dessin est complet</translation>
    </message>
</context>
<context>
    <name>FileActions</name>
    <message>
        <source>Open drawings</source>
        <translation>Ouvrir des dessins</translation>
    </message>
    <message>
        <source>Drawings (*.dxf *.dwg);;All files (*)</source>
        <translation>Dessins (*.dxf *.dwg);;Tous les fichiers (*)</translation>
    </message>
    <message>
        <source>%1
What is saved here replaces what is saved there.</source>
        <translation>%1
Ce qui est enregistré ici remplace ce qui est enregistré là-bas.</translation>
    </message>
    <message>
        <source>Open &amp;read-only</source>
        <translation>Ouvrir en &amp;lecture seule</translation>
    </message>
    <message>
        <source>Open &amp;anyway</source>
        <translation>Ouvrir &amp;quand même</translation>
    </message>
    <message>
        <source>Save under another &amp;name...</source>
        <translation>Enregistrer sous un autre &amp;nom...</translation>
    </message>
    <message>
        <source>Save &amp;anyway</source>
        <translation>Enregistrer q&amp;uand même</translation>
    </message>
    <message>
        <source>%1

The drawing stays open.</source>
        <translation>%1

Le dessin reste ouvert.</translation>
    </message>
    <message>
        <source>Save &amp;as...</source>
        <translation>Enregistrer &amp;sous...</translation>
    </message>
    <message>
        <source>%1 already exists. Do you want to replace it?</source>
        <translation>%1 existe déjà. Voulez-vous le remplacer&#xa0;?</translation>
    </message>
    <message>
        <source>Save drawing</source>
        <translation>Enregistrer le dessin</translation>
    </message>
    <message>
        <source>DXF drawings (*.dxf)</source>
        <translation>Dessins DXF (*.dxf)</translation>
    </message>
    <message>
        <source>Export picture</source>
        <translation>Exporter une image</translation>
    </message>
    <message>
        <source>%1 pictures (*.%2)</source>
        <translation>Images %1 (*.%2)</translation>
    </message>
    <message>
        <source>
Written: %1
</source>
        <translation>
Écrit&#xa0;: %1
</translation>
    </message>
    <message>
        <source>In the picture: %1
</source>
        <translation>Dans l&apos;image&#xa0;: %1
</translation>
    </message>
    <message>
        <source>%1 was changed. Save it?</source>
        <translation>%1 a été modifié. L&apos;enregistrer&#xa0;?</translation>
    </message>
    <message>
        <source>%1
It is a DWG file: what you change here is saved under another name.</source>
        <translation>%1
C&apos;est un fichier DWG : ce que vous modifiez ici est enregistré sous un autre nom.</translation>
    </message>
</context>
<context>
    <name>Functions</name>
    <message>
        <source>
New color &lt;%1&gt;: </source>
        <translation>
Nouvelle couleur &lt;%1&gt;&#xa0;: </translation>
    </message>
    <message>
        <source>
Requires a color number or name.</source>
        <translation>
Un numéro ou un nom de couleur est nécessaire.</translation>
    </message>
    <message>
        <source>
Unknown command &quot;%1&quot;.
</source>
        <translation>
Commande inconnue &quot;%1&quot;.
</translation>
    </message>
    <message>
        <source>
Left over from (command): %1
</source>
        <translation>
Reste de (command)&#xa0;: %1
</translation>
    </message>
    <message>
        <source>
The dialog file &quot;%1&quot; was not found.
</source>
        <translation>
Le fichier de boîtes de dialogue &quot;%1&quot; est introuvable.
</translation>
    </message>
    <message>
        <source>
The actions that the file gives to the tiles of &quot;%1&quot; do not run: its folder is not trusted.
</source>
        <translation>
Les actions que le fichier donne aux éléments de &quot;%1&quot; ne s&apos;exécutent pas&#xa0;: son dossier n&apos;est pas de confiance.
</translation>
    </message>
    <message>
        <source>
There is no dialog &quot;%1&quot; in what was loaded.
</source>
        <translation>
Il n&apos;y a pas de boîte de dialogue &quot;%1&quot; dans ce qui a été chargé.
</translation>
    </message>
    <message>
        <source>
Nobody is there to answer the dialog &quot;%1&quot;: cancelled.
</source>
        <translation>
Personne n&apos;est là pour répondre à la boîte de dialogue &quot;%1&quot;&#xa0;: annulé.
</translation>
    </message>
    <message>
        <source>action of &quot;%1&quot; in dialog %2</source>
        <translation>action de &quot;%1&quot; dans la boîte de dialogue %2</translation>
    </message>
    <message>
        <source>
Select object: </source>
        <translation>
Sélectionnez un objet&#xa0;: </translation>
    </message>
    <message>
        <source>
startapp: %1 is not started: the user&apos;s settings do not let programs start others.
</source>
        <translation>
startapp&#xa0;: %1 n&apos;est pas démarré&#xa0;: les paramètres de l&apos;utilisateur ne permettent pas aux programmes d&apos;en démarrer d&apos;autres.
</translation>
    </message>
    <message>
        <source>there is no sheet &quot;%1&quot;</source>
        <translation>il n&apos;y a pas de feuille &quot;%1&quot;</translation>
    </message>
    <message>
        <source>&quot;%1&quot; cannot be the name of a sheet</source>
        <translation>&quot;%1&quot; ne peut pas être le nom d&apos;une feuille</translation>
    </message>
    <message>
        <source>there is a sheet &quot;%1&quot; already</source>
        <translation>il y a déjà une feuille &quot;%1&quot;</translation>
    </message>
    <message>
        <source>%1 is one of the drawings that sheets come from</source>
        <translation>%1 est l&apos;un des dessins dont proviennent des feuilles</translation>
    </message>
    <message>
        <source>the file was not found</source>
        <translation>le fichier est introuvable</translation>
    </message>
    <message>
        <source>
The slide &quot;%1&quot;: %2.
</source>
        <translation>
Le cliché &quot;%1&quot;&#xa0;: %2.
</translation>
    </message>
</context>
<context>
    <name>Help</name>
    <message>
        <source>0: heights count</source>
        <translation>0&#xa0;: les hauteurs comptent</translation>
    </message>
    <message>
        <source>As -COLOR</source>
        <translation>Comme -COLOR</translation>
    </message>
    <message>
        <source>As -COLOR; there is no window for it</source>
        <translation>Comme -COLOR&#xa0;; il n&apos;y a pas de fenêtre pour cela</translation>
    </message>
    <message>
        <source>As -LAYDEL; there is no window for it</source>
        <translation>Comme -LAYDEL&#xa0;; il n&apos;y a pas de fenêtre pour cela</translation>
    </message>
    <message>
        <source>As -LAYER; entered by hand in the window it shows the layer panel</source>
        <translation>Comme -LAYER&#xa0;; saisi à la main dans la fenêtre, montre le panneau des calques</translation>
    </message>
    <message>
        <source>As -LAYMRG; there is no window for it</source>
        <translation>Comme -LAYMRG&#xa0;; il n&apos;y a pas de fenêtre pour cela</translation>
    </message>
    <message>
        <source>As -LINETYPE; there is no window for it</source>
        <translation>Comme -LINETYPE&#xa0;; il n&apos;y a pas de fenêtre pour cela</translation>
    </message>
    <message>
        <source>As -LWEIGHT; there is no window for it</source>
        <translation>Comme -LWEIGHT&#xa0;; il n&apos;y a pas de fenêtre pour cela</translation>
    </message>
    <message>
        <source>As -PAN; the middle button of the mouse moves the view too</source>
        <translation>Comme -PAN&#xa0;; le bouton central de la souris déplace aussi la vue</translation>
    </message>
    <message>
        <source>As -PURGE; there is no window for it</source>
        <translation>Comme -PURGE&#xa0;; il n&apos;y a pas de fenêtre pour cela</translation>
    </message>
    <message>
        <source>As -RENAME; there is no window for it</source>
        <translation>Comme -RENAME&#xa0;; il n&apos;y a pas de fenêtre pour cela</translation>
    </message>
    <message>
        <source>As -UNITS; there is no window for it</source>
        <translation>Comme -UNITS&#xa0;; il n&apos;y a pas de fenêtre pour cela</translation>
    </message>
    <message>
        <source>As -VIEW; there is no window for it</source>
        <translation>Comme -VIEW&#xa0;; il n&apos;y a pas de fenêtre pour cela</translation>
    </message>
    <message>
        <source>As -VPOINT; there is no window for it</source>
        <translation>Comme -VPOINT&#xa0;; il n&apos;y a pas de fenêtre pour cela</translation>
    </message>
    <message>
        <source>As -VPORTS; there is no window for it</source>
        <translation>Comme -VPORTS&#xa0;; il n&apos;y a pas de fenêtre pour cela</translation>
    </message>
    <message>
        <source>As -XREF; there is no window for it</source>
        <translation>Comme -XREF&#xa0;; il n&apos;y a pas de fenêtre pour cela</translation>
    </message>
    <message>
        <source>As LAYOUT; there is no window for it</source>
        <translation>Comme LAYOUT&#xa0;; il n&apos;y a pas de fenêtre pour cela</translation>
    </message>
    <message>
        <source>As NEW</source>
        <translation>Comme NEW</translation>
    </message>
    <message>
        <source>As QUIT</source>
        <translation>Comme QUIT</translation>
    </message>
    <message>
        <source>Attaches drawing files as external references, and changes, binds and detaches these</source>
        <translation>Attache des fichiers de dessin en références externes, les modifie, les lie et les détache</translation>
    </message>
    <message>
        <source>BOUNDARY makes polylines (1) or regions (0)</source>
        <translation>BOUNDARY crée des polylignes (1) ou des régions (0)</translation>
    </message>
    <message>
        <source>Brings back what was erased last</source>
        <translation>Ramène ce qui a été effacé en dernier</translation>
    </message>
    <message>
        <source>Brings entities in front of others or behind them</source>
        <translation>Place des objets devant ou derrière d&apos;autres</translation>
    </message>
    <message>
        <source>COPY goes on until an empty answer (0) or makes one copy (1)</source>
        <translation>COPY continue jusqu&apos;à une réponse vide (0) ou fait une seule copie (1)</translation>
    </message>
    <message>
        <source>Changes entities by a point, or their properties</source>
        <translation>Modifie des objets par un point, ou leurs propriétés</translation>
    </message>
    <message>
        <source>Changes entities by their grips</source>
        <translation>Modifie des objets par leurs poignées</translation>
    </message>
    <message>
        <source>Changes layer, color, linetype and weight of entities</source>
        <translation>Modifie le calque, la couleur, le type et l&apos;épaisseur de ligne d&apos;objets</translation>
    </message>
    <message>
        <source>Changes pattern, style and layer of a hatch</source>
        <translation>Modifie le motif, le style et le calque de hachures</translation>
    </message>
    <message>
        <source>Changes text and extension lines of dimensions</source>
        <translation>Modifie le texte et les lignes d&apos;attache de cotes</translation>
    </message>
    <message>
        <source>Changes the values of a block reference&apos;s attributes</source>
        <translation>Modifie les valeurs des attributs d&apos;une référence de bloc</translation>
    </message>
    <message>
        <source>Changes the values of attributes</source>
        <translation>Modifie les valeurs d&apos;attributs</translation>
    </message>
    <message>
        <source>Changes what texts, dimensions and definitions of attributes say</source>
        <translation>Modifie ce que disent les textes, les cotes et les définitions d&apos;attributs</translation>
    </message>
    <message>
        <source>Chooses entities for the next command</source>
        <translation>Choisit des objets pour la commande suivante</translation>
    </message>
    <message>
        <source>Chooses entities; they are the previous selection then</source>
        <translation>Choisit des objets&#xa0;; ils forment alors la sélection précédente</translation>
    </message>
    <message>
        <source>Chooses the isometric plane</source>
        <translation>Choisit le plan isométrique</translation>
    </message>
    <message>
        <source>Chooses what is similar to the chosen entities</source>
        <translation>Choisit ce qui ressemble aux objets sélectionnés</translation>
    </message>
    <message>
        <source>Closes all drawings</source>
        <translation>Ferme tous les dessins</translation>
    </message>
    <message>
        <source>Closes the drawing</source>
        <translation>Ferme le dessin</translation>
    </message>
    <message>
        <source>Closes the drawing without saving, and ends the program</source>
        <translation>Ferme le dessin sans l&apos;enregistrer et quitte le programme</translation>
    </message>
    <message>
        <source>Copies entities</source>
        <translation>Copie des objets</translation>
    </message>
    <message>
        <source>Copies entities into rows and columns or round a point</source>
        <translation>Copie des objets en rangées et colonnes ou autour d&apos;un point</translation>
    </message>
    <message>
        <source>Copies entities to the clipboard</source>
        <translation>Copie des objets dans le presse-papiers</translation>
    </message>
    <message>
        <source>Copies entities to the clipboard by a base point</source>
        <translation>Copie des objets dans le presse-papiers avec un point de base</translation>
    </message>
    <message>
        <source>Cuts block references off at a boundary</source>
        <translation>Délimite des références de bloc par un contour</translation>
    </message>
    <message>
        <source>Cuts corners off</source>
        <translation>Coupe les coins</translation>
    </message>
    <message>
        <source>Defines an attribute of a block</source>
        <translation>Définit un attribut d&apos;un bloc</translation>
    </message>
    <message>
        <source>Deletes layers with all that is on them</source>
        <translation>Supprime des calques avec tout leur contenu</translation>
    </message>
    <message>
        <source>Dimensions a distance along itself</source>
        <translation>Cote une distance dans sa propre direction</translation>
    </message>
    <message>
        <source>Dimensions a distance along x, y or another direction</source>
        <translation>Cote une distance selon x, y ou une autre direction</translation>
    </message>
    <message>
        <source>Dimensions an angle</source>
        <translation>Cote un angle</translation>
    </message>
    <message>
        <source>Dimensions by subcommands until Exit</source>
        <translation>Cote par sous-commandes jusqu&apos;à Exit</translation>
    </message>
    <message>
        <source>Dimensions further points from the same begin</source>
        <translation>Cote d&apos;autres points depuis le même départ</translation>
    </message>
    <message>
        <source>Dimensions on from the last dimension</source>
        <translation>Continue la cotation depuis la dernière cote</translation>
    </message>
    <message>
        <source>Dimensions the diameter of a circle or arc</source>
        <translation>Cote le diamètre d&apos;un cercle ou d&apos;un arc</translation>
    </message>
    <message>
        <source>Dimensions the length of an arc</source>
        <translation>Cote la longueur d&apos;un arc</translation>
    </message>
    <message>
        <source>Dimensions the radius of a circle or arc</source>
        <translation>Cote le rayon d&apos;un cercle ou d&apos;un arc</translation>
    </message>
    <message>
        <source>Dimensions the radius of a circle or arc from a nearer centre</source>
        <translation>Cote le rayon d&apos;un cercle ou d&apos;un arc depuis un centre plus proche</translation>
    </message>
    <message>
        <source>Dimensions the x or y coordinate of a point</source>
        <translation>Cote la coordonnée x ou y d&apos;un point</translation>
    </message>
    <message>
        <source>Divides the screen or makes viewports on a sheet</source>
        <translation>Divise l&apos;écran ou crée des fenêtres sur une feuille</translation>
    </message>
    <message>
        <source>Does again what was undone last</source>
        <translation>Rétablit ce qui a été annulé en dernier</translation>
    </message>
    <message>
        <source>Does again what was undone, several steps at once</source>
        <translation>Rétablit ce qui a été annulé, plusieurs pas à la fois</translation>
    </message>
    <message>
        <source>Draws a circle: centre and radius, two or three points, two tangents and radius</source>
        <translation>Dessine un cercle&#xa0;: centre et rayon, deux ou trois points, deux tangentes et rayon</translation>
    </message>
    <message>
        <source>Draws a cloud of arcs, or makes one of an entity</source>
        <translation>Dessine un nuage d&apos;arcs, ou en fait un d&apos;un objet</translation>
    </message>
    <message>
        <source>Draws a line from a feature to a note</source>
        <translation>Dessine une ligne d&apos;un élément à une note</translation>
    </message>
    <message>
        <source>Draws a line of up to three points with a text</source>
        <translation>Dessine une ligne d&apos;au plus trois points avec un texte</translation>
    </message>
    <message>
        <source>Draws a point</source>
        <translation>Dessine un point</translation>
    </message>
    <message>
        <source>Draws a polygon with sides of one length</source>
        <translation>Dessine un polygone à côtés de même longueur</translation>
    </message>
    <message>
        <source>Draws a polyline in space</source>
        <translation>Dessine une polyligne dans l&apos;espace</translation>
    </message>
    <message>
        <source>Draws a polyline of straight segments and arcs</source>
        <translation>Dessine une polyligne de segments droits et d&apos;arcs</translation>
    </message>
    <message>
        <source>Draws a rectangle by corners, sides or area</source>
        <translation>Dessine un rectangle par ses coins, ses côtés ou son aire</translation>
    </message>
    <message>
        <source>Draws a smooth curve through points or along control points</source>
        <translation>Dessine une courbe lisse par des points ou le long de points de contrôle</translation>
    </message>
    <message>
        <source>Draws an arc: three points, or start, center, end, angle, length, direction, radius</source>
        <translation>Dessine un arc&#xa0;: trois points, ou départ, centre, fin, angle, longueur, direction, rayon</translation>
    </message>
    <message>
        <source>Draws an arrow with a note as one entity</source>
        <translation>Dessine une flèche avec une note en un seul objet</translation>
    </message>
    <message>
        <source>Draws an ellipse or a part of one</source>
        <translation>Dessine une ellipse ou une partie d&apos;ellipse</translation>
    </message>
    <message>
        <source>Draws faces in space</source>
        <translation>Dessine des faces dans l&apos;espace</translation>
    </message>
    <message>
        <source>Draws filled areas with three or four corners</source>
        <translation>Dessine des surfaces remplies à trois ou quatre coins</translation>
    </message>
    <message>
        <source>Draws filled rings</source>
        <translation>Dessine des anneaux remplis</translation>
    </message>
    <message>
        <source>Draws lines that end at one side only</source>
        <translation>Dessine des lignes qui ne finissent que d&apos;un côté</translation>
    </message>
    <message>
        <source>Draws lines without ends</source>
        <translation>Dessine des lignes sans fin</translation>
    </message>
    <message>
        <source>Draws parallel curves</source>
        <translation>Dessine des courbes parallèles</translation>
    </message>
    <message>
        <source>Draws parallel lines with the current multiline style</source>
        <translation>Dessine des lignes parallèles avec le style de multiligne courant</translation>
    </message>
    <message>
        <source>Draws straight segments</source>
        <translation>Dessine des segments droits</translation>
    </message>
    <message>
        <source>Draws the window anew</source>
        <translation>Redessine la fenêtre</translation>
    </message>
    <message>
        <source>Draws wide lines</source>
        <translation>Dessine des lignes larges</translation>
    </message>
    <message>
        <source>ELLIPSE makes true ellipses (0) or polylines (1)</source>
        <translation>ELLIPSE crée de vraies ellipses (0) ou des polylignes (1)</translation>
    </message>
    <message>
        <source>EXPLODE takes blocks of unequal scales</source>
        <translation>EXPLODE accepte les blocs d&apos;échelles inégales</translation>
    </message>
    <message>
        <source>Edits polylines: closes, joins, widens, smooths, changes vertices</source>
        <translation>Modifie des polylignes&#xa0;: les ferme, joint, élargit, lisse, change leurs sommets</translation>
    </message>
    <message>
        <source>Evaluates the expressions of texts anew</source>
        <translation>Évalue à nouveau les expressions des textes</translation>
    </message>
    <message>
        <source>FILLET and CHAMFER trim what they join</source>
        <translation>FILLET et CHAMFER ajustent ce qu&apos;ils relient</translation>
    </message>
    <message>
        <source>Freezes and thaws layers in viewports of sheets</source>
        <translation>Gèle et dégèle des calques dans les fenêtres des feuilles</translation>
    </message>
    <message>
        <source>Freezes layers of picked objects in all other viewports</source>
        <translation>Gèle les calques des objets désignés dans toutes les autres fenêtres</translation>
    </message>
    <message>
        <source>Freezes the layers of picked objects</source>
        <translation>Gèle les calques des objets désignés</translation>
    </message>
    <message>
        <source>Gives a multileader further arrows, or takes some away</source>
        <translation>Donne d&apos;autres flèches à un repère multiple, ou en retire</translation>
    </message>
    <message>
        <source>Gives blocks, layers, styles and other named things another name</source>
        <translation>Donne un autre nom à des blocs, calques, styles et autres éléments nommés</translation>
    </message>
    <message>
        <source>Gives entities the properties of another one</source>
        <translation>Donne à des objets les propriétés d&apos;un autre</translation>
    </message>
    <message>
        <source>Gives layers what they had before LAYISO</source>
        <translation>Rend aux calques ce qu&apos;ils avaient avant LAYISO</translation>
    </message>
    <message>
        <source>Gives references the attributes that their block defines</source>
        <translation>Donne aux références les attributs que leur bloc définit</translation>
    </message>
    <message>
        <source>Hatches areas</source>
        <translation>Hachure des zones</translation>
    </message>
    <message>
        <source>Hides a command, which a point in front still runs</source>
        <translation>Cache une commande, qu&apos;un point placé devant exécute encore</translation>
    </message>
    <message>
        <source>INSERT asks for attributes (1) or takes their defaults (0)</source>
        <translation>INSERT demande les attributs (1) ou prend leurs valeurs par défaut (0)</translation>
    </message>
    <message>
        <source>INSERT asks for attributes with a dialog (1) or on the command line (0)</source>
        <translation>INSERT demande les attributs par une boîte de dialogue (1) ou sur la ligne de commande (0)</translation>
    </message>
    <message>
        <source>Inserts a block or drawing file, as a reference or in pieces</source>
        <translation>Insère un bloc ou un fichier de dessin, en référence ou en morceaux</translation>
    </message>
    <message>
        <source>Loads a shape file, so that its shapes can be placed</source>
        <translation>Charge un fichier de formes, pour que ses formes puissent être placées</translation>
    </message>
    <message>
        <source>Loads linetypes from a file and chooses the current one</source>
        <translation>Charge des types de ligne d&apos;un fichier et choisit le type courant</translation>
    </message>
    <message>
        <source>Locks or turns off all layers but those of chosen objects</source>
        <translation>Verrouille ou désactive tous les calques sauf ceux des objets choisis</translation>
    </message>
    <message>
        <source>Locks the layer of a picked object</source>
        <translation>Verrouille le calque d&apos;un objet désigné</translation>
    </message>
    <message>
        <source>Looks for errors in the drawing and mends them</source>
        <translation>Cherche les erreurs du dessin et les répare</translation>
    </message>
    <message>
        <source>Looks from another direction</source>
        <translation>Regarde d&apos;une autre direction</translation>
    </message>
    <message>
        <source>Looks straight at the plane of a coordinate system</source>
        <translation>Regarde de face le plan d&apos;un système de coordonnées</translation>
    </message>
    <message>
        <source>Makes a block of entities</source>
        <translation>Crée un bloc à partir d&apos;objets</translation>
    </message>
    <message>
        <source>Makes a command known again that UNDEFINE hid</source>
        <translation>Rend de nouveau connue une commande que UNDEFINE avait cachée</translation>
    </message>
    <message>
        <source>Makes a new drawing, from a template or empty</source>
        <translation>Crée un nouveau dessin, d&apos;un gabarit ou vide</translation>
    </message>
    <message>
        <source>Makes and changes groups of entities</source>
        <translation>Crée et modifie des groupes d&apos;objets</translation>
    </message>
    <message>
        <source>Makes and changes text styles</source>
        <translation>Crée et modifie des styles de texte</translation>
    </message>
    <message>
        <source>Makes entities larger or smaller</source>
        <translation>Agrandit ou réduit des objets</translation>
    </message>
    <message>
        <source>Makes layers and changes their properties and states</source>
        <translation>Crée des calques et modifie leurs propriétés et états</translation>
    </message>
    <message>
        <source>Makes one paragraph of texts</source>
        <translation>Fait un paragraphe de plusieurs textes</translation>
    </message>
    <message>
        <source>Makes polylines or regions round areas</source>
        <translation>Crée des polylignes ou des régions autour de zones</translation>
    </message>
    <message>
        <source>Makes the layer of a picked object current</source>
        <translation>Rend courant le calque d&apos;un objet désigné</translation>
    </message>
    <message>
        <source>Makes viewports on a sheet and switches them</source>
        <translation>Crée des fenêtres sur une feuille et les active</translation>
    </message>
    <message>
        <source>Makes, copies, renames and deletes layouts and chooses the current one</source>
        <translation>Crée, copie, renomme et supprime des présentations et choisit la présentation courante</translation>
    </message>
    <message>
        <source>Marks the centre of a circle or arc</source>
        <translation>Marque le centre d&apos;un cercle ou d&apos;un arc</translation>
    </message>
    <message>
        <source>Mirrors entities in a line</source>
        <translation>Met des objets en miroir par rapport à une ligne</translation>
    </message>
    <message>
        <source>Mirrors entities in a plane</source>
        <translation>Met des objets en miroir par rapport à un plan</translation>
    </message>
    <message>
        <source>Moves entities</source>
        <translation>Déplace des objets</translation>
    </message>
    <message>
        <source>Moves entities between the sheet and the model that it shows</source>
        <translation>Déplace des objets entre la feuille et le modèle qu&apos;elle montre</translation>
    </message>
    <message>
        <source>Moves entities in space</source>
        <translation>Déplace des objets dans l&apos;espace</translation>
    </message>
    <message>
        <source>Moves entities to the clipboard</source>
        <translation>Déplace des objets dans le presse-papiers</translation>
    </message>
    <message>
        <source>Moves or turns the text of a dimension</source>
        <translation>Déplace ou tourne le texte d&apos;une cote</translation>
    </message>
    <message>
        <source>Moves the notes of multileaders onto a line</source>
        <translation>Place les notes de repères multiples sur une ligne</translation>
    </message>
    <message>
        <source>Moves what is shown</source>
        <translation>Déplace ce qui est affiché</translation>
    </message>
    <message>
        <source>Moves what lies within a window, and what is tied to it follows</source>
        <translation>Déplace ce qui est dans une fenêtre, et ce qui y est lié suit</translation>
    </message>
    <message>
        <source>Moves, turns and scales entities by pairs of points</source>
        <translation>Déplace, tourne et met à l&apos;échelle des objets par paires de points</translation>
    </message>
    <message>
        <source>Opens a drawing, where what is typed next goes on</source>
        <translation>Ouvre un dessin, où se poursuit ce qui est saisi ensuite</translation>
    </message>
    <message>
        <source>PEDIT makes polylines of others without asking</source>
        <translation>PEDIT fait des polylignes d&apos;autres objets sans demander</translation>
    </message>
    <message>
        <source>Places a shape of a loaded shape file</source>
        <translation>Place une forme d&apos;un fichier de formes chargé</translation>
    </message>
    <message>
        <source>Places what is on the clipboard</source>
        <translation>Place le contenu du presse-papiers</translation>
    </message>
    <message>
        <source>Places what is on the clipboard as a block</source>
        <translation>Place le contenu du presse-papiers en bloc</translation>
    </message>
    <message>
        <source>Places what is on the clipboard where it was copied</source>
        <translation>Place le contenu du presse-papiers là où il a été copié</translation>
    </message>
    <message>
        <source>Plots a layout to a file of PDF, PNG or SVG</source>
        <translation>Trace une présentation dans un fichier PDF, PNG ou SVG</translation>
    </message>
    <message>
        <source>Plots a layout to a file; in the window as a dialog with a preview</source>
        <translation>Trace une présentation dans un fichier&#xa0;; dans la fenêtre, par une boîte de dialogue avec aperçu</translation>
    </message>
    <message>
        <source>Puts objects on the current layer</source>
        <translation>Place des objets sur le calque courant</translation>
    </message>
    <message>
        <source>Puts objects on the layer of another one</source>
        <translation>Place des objets sur le calque d&apos;un autre</translation>
    </message>
    <message>
        <source>Puts what is on layers on another one and deletes them</source>
        <translation>Place le contenu de calques sur un autre et les supprime</translation>
    </message>
    <message>
        <source>Rounds corners with arcs</source>
        <translation>Arrondit les coins par des arcs</translation>
    </message>
    <message>
        <source>Runs a command again and again until it is cancelled</source>
        <translation>Répète une commande jusqu&apos;à ce qu&apos;elle soit annulée</translation>
    </message>
    <message>
        <source>Runs one subcommand of the dimension mode</source>
        <translation>Exécute une sous-commande du mode de cotation</translation>
    </message>
    <message>
        <source>Saves the drawing under a name</source>
        <translation>Enregistre le dessin sous un nom</translation>
    </message>
    <message>
        <source>Saves the drawing under its own name</source>
        <translation>Enregistre le dessin sous son propre nom</translation>
    </message>
    <message>
        <source>Saves, restores and deletes named views</source>
        <translation>Enregistre, restaure et supprime des vues nommées</translation>
    </message>
    <message>
        <source>Saves, restores, lists and applies dimension styles</source>
        <translation>Enregistre, restaure, liste et applique des styles de cote</translation>
    </message>
    <message>
        <source>Says how near the pointer object snap looks</source>
        <translation>Dit à quelle distance du pointeur cherche l&apos;accrochage aux objets</translation>
    </message>
    <message>
        <source>Says which object snaps are always on</source>
        <translation>Dit quels accrochages aux objets sont toujours actifs</translation>
    </message>
    <message>
        <source>Scripts go on by themselves</source>
        <translation>Les scripts continuent d&apos;eux-mêmes</translation>
    </message>
    <message>
        <source>Sets and checks the drawing&apos;s limits</source>
        <translation>Définit et contrôle les limites du dessin</translation>
    </message>
    <message>
        <source>Sets and switches the grid</source>
        <translation>Définit et active la grille</translation>
    </message>
    <message>
        <source>Sets and switches the grid that points snap to</source>
        <translation>Définit et active la grille à laquelle les points s&apos;accrochent</translation>
    </message>
    <message>
        <source>Sets how lengths and angles are shown</source>
        <translation>Définit comment longueurs et angles sont affichés</translation>
    </message>
    <message>
        <source>Sets the color of new objects</source>
        <translation>Définit la couleur des nouveaux objets</translation>
    </message>
    <message>
        <source>Sets the elevation and thickness of new objects</source>
        <translation>Définit l&apos;élévation et l&apos;épaisseur des nouveaux objets</translation>
    </message>
    <message>
        <source>Sets the lineweight of new objects</source>
        <translation>Définit l&apos;épaisseur de ligne des nouveaux objets</translation>
    </message>
    <message>
        <source>Sets the point that the drawing is inserted by</source>
        <translation>Définit le point par lequel le dessin est inséré</translation>
    </message>
    <message>
        <source>Sets variables of single dimensions</source>
        <translation>Définit les variables de cotes isolées</translation>
    </message>
    <message>
        <source>Sets, saves and restores the user coordinate system</source>
        <translation>Définit, enregistre et restaure le système de coordonnées utilisateur</translation>
    </message>
    <message>
        <source>Shows more or less of the drawing</source>
        <translation>Montre plus ou moins du dessin</translation>
    </message>
    <message>
        <source>Shows the help pages</source>
        <translation>Affiche les pages d&apos;aide</translation>
    </message>
    <message>
        <source>Shows the properties panel where it is entered by hand in the window</source>
        <translation>Affiche le panneau des propriétés quand il est saisi à la main dans la fenêtre</translation>
    </message>
    <message>
        <source>Shows, lists or sets a system variable</source>
        <translation>Affiche, liste ou définit une variable système</translation>
    </message>
    <message>
        <source>Switches whether areas are filled</source>
        <translation>Active ou non le remplissage des surfaces</translation>
    </message>
    <message>
        <source>Switches whether lines go along the axes</source>
        <translation>Active ou non les lignes selon les axes</translation>
    </message>
    <message>
        <source>Switches whether texts are boxes</source>
        <translation>Active ou non les textes en rectangles</translation>
    </message>
    <message>
        <source>Switches whether the drawing is made anew by itself</source>
        <translation>Active ou non la régénération automatique du dessin</translation>
    </message>
    <message>
        <source>TRIM and EXTEND begin with edges (0) or take all (1)</source>
        <translation>TRIM et EXTEND commencent par les arêtes (0) ou les prennent toutes (1)</translation>
    </message>
    <message>
        <source>TRIM and EXTEND take edges as if they went on</source>
        <translation>TRIM et EXTEND prennent les arêtes comme si elles continuaient</translation>
    </message>
    <message>
        <source>Takes a file&apos;s name; programs for other hosts do not run here</source>
        <translation>Prend un nom de fichier&#xa0;; les programmes d&apos;autres hôtes ne s&apos;exécutent pas ici</translation>
    </message>
    <message>
        <source>Takes back steps; marks and groups them</source>
        <translation>Annule des pas&#xa0;; les marque et les groupe</translation>
    </message>
    <message>
        <source>Takes back the last change of layer settings</source>
        <translation>Annule la dernière modification des paramètres de calques</translation>
    </message>
    <message>
        <source>Takes back the last step</source>
        <translation>Annule le dernier pas</translation>
    </message>
    <message>
        <source>Takes blocks, polylines, texts and dimensions apart</source>
        <translation>Décompose blocs, polylignes, textes et cotes</translation>
    </message>
    <message>
        <source>Takes entities out of the drawing</source>
        <translation>Retire des objets du dessin</translation>
    </message>
    <message>
        <source>Takes out of the drawing what nothing refers to</source>
        <translation>Retire du dessin ce à quoi rien ne se réfère</translation>
    </message>
    <message>
        <source>Takes the name of a menu file; there are none here</source>
        <translation>Prend le nom d&apos;un fichier de menu&#xa0;; il n&apos;y en a pas ici</translation>
    </message>
    <message>
        <source>Takes the name of a menu; there are none here</source>
        <translation>Prend le nom d&apos;un menu&#xa0;; il n&apos;y en a pas ici</translation>
    </message>
    <message>
        <source>Takes what programs ask of it; programs for other hosts do not run here</source>
        <translation>Prend ce que les programmes lui demandent&#xa0;; les programmes d&apos;autres hôtes ne s&apos;exécutent pas ici</translation>
    </message>
    <message>
        <source>Tells the coordinates of a point</source>
        <translation>Donne les coordonnées d&apos;un point</translation>
    </message>
    <message>
        <source>Tells the distance and angle between points</source>
        <translation>Donne la distance et l&apos;angle entre des points</translation>
    </message>
    <message>
        <source>Tells what is in the drawing and what is current</source>
        <translation>Dit ce que contient le dessin et ce qui est courant</translation>
    </message>
    <message>
        <source>Tells what is known of entities</source>
        <translation>Dit ce qui est connu des objets</translation>
    </message>
    <message>
        <source>Tells when the drawing was made and changed</source>
        <translation>Dit quand le dessin a été créé et modifié</translation>
    </message>
    <message>
        <source>Thaws all layers</source>
        <translation>Dégèle tous les calques</translation>
    </message>
    <message>
        <source>The command line is always in sight</source>
        <translation>La ligne de commande est toujours visible</translation>
    </message>
    <message>
        <source>The drawing is always in sight</source>
        <translation>Le dessin est toujours visible</translation>
    </message>
    <message>
        <source>Turns all layers on</source>
        <translation>Active tous les calques</translation>
    </message>
    <message>
        <source>Turns entities round a point</source>
        <translation>Tourne des objets autour d&apos;un point</translation>
    </message>
    <message>
        <source>Turns entities round an axis in space</source>
        <translation>Tourne des objets autour d&apos;un axe dans l&apos;espace</translation>
    </message>
    <message>
        <source>Turns off the layers of picked objects</source>
        <translation>Désactive les calques des objets désignés</translation>
    </message>
    <message>
        <source>Types the last script once more</source>
        <translation>Saisit le dernier script encore une fois</translation>
    </message>
    <message>
        <source>Types what a script file holds</source>
        <translation>Saisit ce que contient un fichier de script</translation>
    </message>
    <message>
        <source>Unlocks the layer of a picked object</source>
        <translation>Déverrouille le calque d&apos;un objet désigné</translation>
    </message>
    <message>
        <source>Waits for so many milliseconds</source>
        <translation>Attend tant de millisecondes</translation>
    </message>
    <message>
        <source>Works on model space through a viewport of the sheet</source>
        <translation>Travaille sur l&apos;espace objet à travers une fenêtre de la feuille</translation>
    </message>
    <message>
        <source>Works on the sheet itself</source>
        <translation>Travaille sur la feuille elle-même</translation>
    </message>
    <message>
        <source>Writes a block or entities to a drawing file</source>
        <translation>Écrit un bloc ou des objets dans un fichier de dessin</translation>
    </message>
    <message>
        <source>Writes a paragraph of several lines</source>
        <translation>Écrit un paragraphe de plusieurs lignes</translation>
    </message>
    <message>
        <source>Writes one line of text</source>
        <translation>Écrit une ligne de texte</translation>
    </message>
    <message>
        <source>&quot;(&quot; and &quot;!&quot; in texts are evaluated</source>
        <translation>&quot;(&quot; et &quot;!&quot; dans les textes sont évalués</translation>
    </message>
    <message>
        <source>a block is being edited in place</source>
        <translation>un bloc est en cours d&apos;édition sur place</translation>
    </message>
    <message>
        <source>a double click edits</source>
        <translation>un double-clic modifie</translation>
    </message>
    <message>
        <source>a drawing&apos;s sheet set is looked for</source>
        <translation>le jeu de feuilles d&apos;un dessin est recherché</translation>
    </message>
    <message>
        <source>a file&apos;s tab shows its layouts</source>
        <translation>l&apos;onglet d&apos;un fichier montre ses présentations</translation>
    </message>
    <message>
        <source>a hatch is shown before it is made</source>
        <translation>des hachures sont montrées avant d&apos;être créées</translation>
    </message>
    <message>
        <source>a line is drawn inside though the text is outside</source>
        <translation>une ligne est tracée à l&apos;intérieur même si le texte est à l&apos;extérieur</translation>
    </message>
    <message>
        <source>a new annotation scale is given to annotative things</source>
        <translation>une nouvelle échelle d&apos;annotation est donnée aux objets annotatifs</translation>
    </message>
    <message>
        <source>a panel for fingers</source>
        <translation>un panneau pour les doigts</translation>
    </message>
    <message>
        <source>a picture is saved in the file</source>
        <translation>une image est enregistrée dans le fichier</translation>
    </message>
    <message>
        <source>a real for programs, kept with the drawing</source>
        <translation>un réel pour les programmes, conservé avec le dessin</translation>
    </message>
    <message>
        <source>a second unit is shown</source>
        <translation>une seconde unité est affichée</translation>
    </message>
    <message>
        <source>a sheet that the printer lacks is told</source>
        <translation>une feuille que l&apos;imprimante n&apos;a pas est signalée</translation>
    </message>
    <message>
        <source>a text for programs</source>
        <translation>un texte pour les programmes</translation>
    </message>
    <message>
        <source>addresses that programs may come from</source>
        <translation>adresses d&apos;où peuvent venir des programmes</translation>
    </message>
    <message>
        <source>after how long names are completed, in seconds</source>
        <translation>après combien de temps les noms sont complétés, en secondes</translation>
    </message>
    <message>
        <source>after how many milliseconds names are offered</source>
        <translation>après combien de millisecondes les noms sont proposés</translation>
    </message>
    <message>
        <source>all grips of clouds are shown</source>
        <translation>toutes les poignées des nuages sont affichées</translation>
    </message>
    <message>
        <source>an empty place picked begins a window</source>
        <translation>un endroit vide désigné commence une fenêtre</translation>
    </message>
    <message>
        <source>an expression in the status line</source>
        <translation>une expression dans la barre d&apos;état</translation>
    </message>
    <message>
        <source>an integer for programs, kept with the drawing</source>
        <translation>un entier pour les programmes, conservé avec le dessin</translation>
    </message>
    <message>
        <source>an orthographic view brings its coordinate system</source>
        <translation>une vue orthogonale amène son système de coordonnées</translation>
    </message>
    <message>
        <source>and a foreground</source>
        <translation>et un premier plan</translation>
    </message>
    <message>
        <source>and opened</source>
        <translation>et ouvert</translation>
    </message>
    <message>
        <source>angles count counterclockwise (0) or clockwise (1)</source>
        <translation>les angles comptent dans le sens trigonométrique (0) ou horaire (1)</translation>
    </message>
    <message>
        <source>annotative things are saved for older programs</source>
        <translation>les objets annotatifs sont enregistrés pour des programmes plus anciens</translation>
    </message>
    <message>
        <source>annotative things show at every scale</source>
        <translation>les objets annotatifs s&apos;affichent à toute échelle</translation>
    </message>
    <message>
        <source>arcs are smooth</source>
        <translation>les arcs sont lisses</translation>
    </message>
    <message>
        <source>areas are filled</source>
        <translation>les surfaces sont remplies</translation>
    </message>
    <message>
        <source>areas that are hatched at once become a hatch each</source>
        <translation>les zones hachurées à la fois deviennent chacune une hachure</translation>
    </message>
    <message>
        <source>arrays stay one thing</source>
        <translation>les réseaux restent un seul objet</translation>
    </message>
    <message>
        <source>arrows outside are left out</source>
        <translation>les flèches extérieures sont omises</translation>
    </message>
    <message>
        <source>attribute definitions may have several lines</source>
        <translation>les définitions d&apos;attributs peuvent avoir plusieurs lignes</translation>
    </message>
    <message>
        <source>attributes: none are shown (0), as they say (1), all (2)</source>
        <translation>attributs&#xa0;: aucun n&apos;est affiché (0), selon leur réglage (1), tous (2)</translation>
    </message>
    <message>
        <source>blocks cannot be edited in place</source>
        <translation>les blocs ne peuvent pas être édités sur place</translation>
    </message>
    <message>
        <source>boundaries of hatches are kept</source>
        <translation>les contours de hachures sont conservés</translation>
    </message>
    <message>
        <source>boxes of the screen menu</source>
        <translation>cases du menu d&apos;écran</translation>
    </message>
    <message>
        <source>breaches of standards are told</source>
        <translation>les infractions aux standards sont signalées</translation>
    </message>
    <message>
        <source>cameras are shown</source>
        <translation>les caméras sont affichées</translation>
    </message>
    <message>
        <source>centre marks have lines</source>
        <translation>les marques de centre ont des lignes</translation>
    </message>
    <message>
        <source>chains take the style of what they go on from (1)</source>
        <translation>les chaînes de cotes prennent le style de ce qu&apos;elles continuent (1)</translation>
    </message>
    <message>
        <source>chamfers by two distances (0) or by length and angle (1)</source>
        <translation>chanfreins par deux distances (0) ou par longueur et angle (1)</translation>
    </message>
    <message>
        <source>changed external drawings are told</source>
        <translation>les dessins externes modifiés sont signalés</translation>
    </message>
    <message>
        <source>changes of external drawings&apos; blocks are told</source>
        <translation>les modifications des blocs de dessins externes sont signalées</translation>
    </message>
    <message>
        <source>changes of variables are told</source>
        <translation>les modifications de variables sont signalées</translation>
    </message>
    <message>
        <source>closed splines have no corner</source>
        <translation>les splines fermées n&apos;ont pas de coin</translation>
    </message>
    <message>
        <source>colours of external drawings&apos; entities go by layer</source>
        <translation>les couleurs des objets de dessins externes suivent le calque</translation>
    </message>
    <message>
        <source>columns of new paragraphs</source>
        <translation>colonnes des nouveaux paragraphes</translation>
    </message>
    <message>
        <source>commands ask for files with a dialog</source>
        <translation>les commandes demandent les fichiers par une boîte de dialogue</translation>
    </message>
    <message>
        <source>commands may show dialogs</source>
        <translation>les commandes peuvent afficher des boîtes de dialogue</translation>
    </message>
    <message>
        <source>commands of programs are echoed</source>
        <translation>les commandes des programmes sont affichées</translation>
    </message>
    <message>
        <source>crashes are reported</source>
        <translation>les plantages sont signalés</translation>
    </message>
    <message>
        <source>cuts curves off at others</source>
        <translation>coupe des courbes sur d&apos;autres</translation>
    </message>
    <message>
        <source>dark (0) or light (1)</source>
        <translation>sombre (0) ou clair (1)</translation>
    </message>
    <message>
        <source>date and time as a number: YYYYMMDD.HHMMSS</source>
        <translation>date et heure en un nombre&#xa0;: AAAAMMJJ.HHMMSS</translation>
    </message>
    <message>
        <source>date and time as days of the Julian calendar</source>
        <translation>date et heure en jours du calendrier julien</translation>
    </message>
    <message>
        <source>decimals of angles</source>
        <translation>décimales des angles</translation>
    </message>
    <message>
        <source>decimals of angles; -1 as DIMDEC</source>
        <translation>décimales des angles&#xa0;; -1 comme DIMDEC</translation>
    </message>
    <message>
        <source>decimals of dimensions</source>
        <translation>décimales des cotes</translation>
    </message>
    <message>
        <source>decimals of lengths</source>
        <translation>décimales des longueurs</translation>
    </message>
    <message>
        <source>decimals of the second unit</source>
        <translation>décimales de la seconde unité</translation>
    </message>
    <message>
        <source>decimals of tolerances</source>
        <translation>décimales des tolérances</translation>
    </message>
    <message>
        <source>decimals of tolerances in the second unit</source>
        <translation>décimales des tolérances dans la seconde unité</translation>
    </message>
    <message>
        <source>density of surfaces one way</source>
        <translation>densité des surfaces dans un sens</translation>
    </message>
    <message>
        <source>density of surfaces the other way</source>
        <translation>densité des surfaces dans l&apos;autre sens</translation>
    </message>
    <message>
        <source>depth of the spatial index</source>
        <translation>profondeur de l&apos;index spatial</translation>
    </message>
    <message>
        <source>dialogs begin in the folder used last</source>
        <translation>les boîtes de dialogue commencent dans le dernier dossier utilisé</translation>
    </message>
    <message>
        <source>dimensions are exploded (0), one thing (1), or follow what they measure (2)</source>
        <translation>les cotes sont décomposées (0), un seul objet (1), ou suivent ce qu&apos;elles mesurent (2)</translation>
    </message>
    <message>
        <source>dimensions are one thing (1) or exploded (0)</source>
        <translation>les cotes sont un seul objet (1) ou décomposées (0)</translation>
    </message>
    <message>
        <source>dimensions change while they are dragged</source>
        <translation>les cotes changent pendant qu&apos;on les tire</translation>
    </message>
    <message>
        <source>drawings are checked when opened</source>
        <translation>les dessins sont contrôlés à l&apos;ouverture</translation>
    </message>
    <message>
        <source>drawings have tabs</source>
        <translation>les dessins ont des onglets</translation>
    </message>
    <message>
        <source>drawings may be opened in part</source>
        <translation>les dessins peuvent être ouverts en partie</translation>
    </message>
    <message>
        <source>entities are shown while they are dragged</source>
        <translation>les objets sont affichés pendant qu&apos;on les tire</translation>
    </message>
    <message>
        <source>entities have handles: always 1</source>
        <translation>les objets ont des identificateurs&#xa0;: toujours 1</translation>
    </message>
    <message>
        <source>entities may be chosen before a command</source>
        <translation>les objets peuvent être choisis avant une commande</translation>
    </message>
    <message>
        <source>entities that are chosen show grips</source>
        <translation>les objets choisis montrent des poignées</translation>
    </message>
    <message>
        <source>erases what is there twice and makes one of lines and arcs that overlap</source>
        <translation>efface ce qui est en double et réunit les lignes et arcs qui se recouvrent</translation>
    </message>
    <message>
        <source>everything but the drawing is hidden</source>
        <translation>tout sauf le dessin est caché</translation>
    </message>
    <message>
        <source>extension lines have a fixed length</source>
        <translation>les lignes d&apos;attache ont une longueur fixe</translation>
    </message>
    <message>
        <source>external drawings are read in part</source>
        <translation>les dessins externes sont lus en partie</translation>
    </message>
    <message>
        <source>fields have a ground</source>
        <translation>les champs ont un fond</translation>
    </message>
    <message>
        <source>folders that drawings may name files of</source>
        <translation>dossiers dont les dessins peuvent nommer les fichiers</translation>
    </message>
    <message>
        <source>folders that programs may come from</source>
        <translation>dossiers d&apos;où peuvent venir des programmes</translation>
    </message>
    <message>
        <source>frames of clipped blocks</source>
        <translation>cadres des blocs délimités</translation>
    </message>
    <message>
        <source>frames of masks</source>
        <translation>cadres des masques</translation>
    </message>
    <message>
        <source>frames of objects of other programs</source>
        <translation>cadres des objets d&apos;autres programmes</translation>
    </message>
    <message>
        <source>frames of pictures</source>
        <translation>cadres des images</translation>
    </message>
    <message>
        <source>frames of splines and hidden edges are shown</source>
        <translation>les cadres des splines et les arêtes cachées sont affichés</translation>
    </message>
    <message>
        <source>frames of underlays</source>
        <translation>cadres des fonds de plan</translation>
    </message>
    <message>
        <source>functions and variables are the drawing&apos;s own</source>
        <translation>fonctions et variables sont propres au dessin</translation>
    </message>
    <message>
        <source>further angles of polar tracking</source>
        <translation>autres angles du repérage polaire</translation>
    </message>
    <message>
        <source>gaps of boundaries that are taken as closed</source>
        <translation>lacunes des contours considérées comme fermées</translation>
    </message>
    <message>
        <source>gaps where things cross others that are in front</source>
        <translation>lacunes où des objets en croisent d&apos;autres placés devant</translation>
    </message>
    <message>
        <source>gradients have one colour (1) or two (0)</source>
        <translation>les dégradés ont une couleur (1) ou deux (0)</translation>
    </message>
    <message>
        <source>gradients lie in the middle (0) or beside it</source>
        <translation>les dégradés sont centrés (0) ou décalés</translation>
    </message>
    <message>
        <source>grips have tips</source>
        <translation>les poignées ont des infobulles</translation>
    </message>
    <message>
        <source>grips within blocks are shown</source>
        <translation>les poignées dans les blocs sont affichées</translation>
    </message>
    <message>
        <source>groups and hatches with their boundary are chosen as one</source>
        <translation>groupes et hachures avec leur contour sont choisis d&apos;un bloc</translation>
    </message>
    <message>
        <source>half the size of the box of object snap, in pixels</source>
        <translation>demi-taille de la cible d&apos;accrochage aux objets, en pixels</translation>
    </message>
    <message>
        <source>half the size of the box that picks, in pixels</source>
        <translation>demi-taille de la cible de sélection, en pixels</translation>
    </message>
    <message>
        <source>hatches follow their boundary</source>
        <translation>les hachures suivent leur contour</translation>
    </message>
    <message>
        <source>hatches may have linetypes</source>
        <translation>les hachures peuvent avoir des types de ligne</translation>
    </message>
    <message>
        <source>hatches of the user&apos;s lines cross</source>
        <translation>les hachures de lignes de l&apos;utilisateur se croisent</translation>
    </message>
    <message>
        <source>how angles are shown: degrees, minutes, gradians, radians, surveyor&apos;s units</source>
        <translation>affichage des angles&#xa0;: degrés, minutes, grades, radians, unités géodésiques</translation>
    </message>
    <message>
        <source>how areas are picked</source>
        <translation>comment les zones sont désignées</translation>
    </message>
    <message>
        <source>how closely splines follow sketches</source>
        <translation>à quel point les splines suivent les esquisses</translation>
    </message>
    <message>
        <source>how clouds are drawn</source>
        <translation>comment les nuages sont dessinés</translation>
    </message>
    <message>
        <source>how edges meet</source>
        <translation>comment les arêtes se rencontrent</translation>
    </message>
    <message>
        <source>how exactly hidden lines are found</source>
        <translation>avec quelle précision les lignes cachées sont trouvées</translation>
    </message>
    <message>
        <source>how external drawings&apos; names are bound: with $ (0) or as if inserted (1)</source>
        <translation>comment les noms des dessins externes sont liés&#xa0;: avec $ (0) ou comme insérés (1)</translation>
    </message>
    <message>
        <source>how faces and edges are shaded</source>
        <translation>comment faces et arêtes sont ombrées</translation>
    </message>
    <message>
        <source>how far TRIM and EXTEND of hatches go</source>
        <translation>jusqu&apos;où vont TRIM et EXTEND de hachures</translation>
    </message>
    <message>
        <source>how far apart ends may be that JOIN puts together</source>
        <translation>quel écart peuvent avoir les extrémités que JOIN réunit</translation>
    </message>
    <message>
        <source>how far centre lines go beyond</source>
        <translation>de combien les lignes de centre dépassent</translation>
    </message>
    <message>
        <source>how far extension lines go beyond the line</source>
        <translation>de combien les lignes d&apos;attache dépassent la ligne de cote</translation>
    </message>
    <message>
        <source>how far extension lines stay from what is measured</source>
        <translation>à quelle distance les lignes d&apos;attache restent de ce qui est mesuré</translation>
    </message>
    <message>
        <source>how far new entities rise above their plane</source>
        <translation>de combien les nouveaux objets s&apos;élèvent au-dessus de leur plan</translation>
    </message>
    <message>
        <source>how far the line goes beyond extension lines</source>
        <translation>de combien la ligne de cote dépasse les lignes d&apos;attache</translation>
    </message>
    <message>
        <source>how far the text stands from the line</source>
        <translation>à quelle distance de la ligne se tient le texte</translation>
    </message>
    <message>
        <source>how far tracking lines go</source>
        <translation>jusqu&apos;où vont les lignes de repérage</translation>
    </message>
    <message>
        <source>how fit points share the knots</source>
        <translation>comment les points de lissage partagent les nœuds</translation>
    </message>
    <message>
        <source>how fractions are written</source>
        <translation>comment les fractions sont écrites</translation>
    </message>
    <message>
        <source>how grips offer more than one thing</source>
        <translation>comment les poignées offrent plus d&apos;une chose</translation>
    </message>
    <message>
        <source>how large points look</source>
        <translation>quelle taille ont les points</translation>
    </message>
    <message>
        <source>how lengths are shown: scientific, decimal, engineering, architectural, fractional</source>
        <translation>affichage des longueurs&#xa0;: scientifique, décimal, ingénierie, architecture, fractionnaire</translation>
    </message>
    <message>
        <source>how lofted surfaces are shaped, as bits</source>
        <translation>forme des surfaces lissées, en bits</translation>
    </message>
    <message>
        <source>how lofted surfaces leave their sections</source>
        <translation>comment les surfaces lissées quittent leurs sections</translation>
    </message>
    <message>
        <source>how long</source>
        <translation>combien de temps</translation>
    </message>
    <message>
        <source>how long smooth changes of the view take, in milliseconds</source>
        <translation>durée des changements de vue en douceur, en millisecondes</translation>
    </message>
    <message>
        <source>how long the drawing was worked on</source>
        <translation>combien de temps le dessin a été travaillé</translation>
    </message>
    <message>
        <source>how long the right button is held for a menu</source>
        <translation>combien de temps le bouton droit est tenu pour un menu</translation>
    </message>
    <message>
        <source>how many corners a face may have</source>
        <translation>combien de coins une face peut avoir</translation>
    </message>
    <message>
        <source>how many dimensions are shown while a grip is pulled</source>
        <translation>combien de cotes sont affichées pendant qu&apos;on tire une poignée</translation>
    </message>
    <message>
        <source>how many entities the panel of properties takes</source>
        <translation>combien d&apos;objets prend le panneau des propriétés</translation>
    </message>
    <message>
        <source>how many lines a hatch may have</source>
        <translation>combien de lignes une hachure peut avoir</translation>
    </message>
    <message>
        <source>how many lines of input are remembered</source>
        <translation>combien de lignes de saisie sont retenues</translation>
    </message>
    <message>
        <source>how many lines of the grid lie between two stronger ones</source>
        <translation>combien de lignes de la grille se trouvent entre deux plus fortes</translation>
    </message>
    <message>
        <source>how many names are listed in order</source>
        <translation>combien de noms sont listés dans l&apos;ordre</translation>
    </message>
    <message>
        <source>how many sides POLYGON proposes</source>
        <translation>combien de côtés propose POLYGON</translation>
    </message>
    <message>
        <source>how many turns HELIX proposes</source>
        <translation>combien de tours propose HELIX</translation>
    </message>
    <message>
        <source>how many viewports may show something</source>
        <translation>combien de fenêtres peuvent montrer quelque chose</translation>
    </message>
    <message>
        <source>how much</source>
        <translation>combien</translation>
    </message>
    <message>
        <source>how much external drawings fade</source>
        <translation>de combien s&apos;estompent les dessins externes</translation>
    </message>
    <message>
        <source>how much light is scattered</source>
        <translation>combien de lumière est diffusée</translation>
    </message>
    <message>
        <source>how much locked layers fade</source>
        <translation>de combien s&apos;estompent les calques verrouillés</translation>
    </message>
    <message>
        <source>how much of a file may be waste before it is saved whole</source>
        <translation>quelle part d&apos;un fichier peut être perdue avant qu&apos;il soit enregistré en entier</translation>
    </message>
    <message>
        <source>how much the wheel zooms</source>
        <translation>de combien zoome la molette</translation>
    </message>
    <message>
        <source>how much what is not edited fades</source>
        <translation>de combien s&apos;estompe ce qui n&apos;est pas édité</translation>
    </message>
    <message>
        <source>how names are completed, as bits</source>
        <translation>comment les noms sont complétés, en bits</translation>
    </message>
    <message>
        <source>how often dragging is drawn again with regeneration</source>
        <translation>fréquence de redessin du déplacement avec régénération</translation>
    </message>
    <message>
        <source>how often dragging is drawn again without</source>
        <translation>fréquence de redessin du déplacement sans régénération</translation>
    </message>
    <message>
        <source>how paragraphs are shown while edited</source>
        <translation>comment les paragraphes sont affichés pendant l&apos;édition</translation>
    </message>
    <message>
        <source>how places on earth are shown</source>
        <translation>comment les lieux sur terre sont affichés</translation>
    </message>
    <message>
        <source>how points look</source>
        <translation>aspect des points</translation>
    </message>
    <message>
        <source>how polar and object tracking work, as bits</source>
        <translation>comment fonctionnent le repérage polaire et le repérage d&apos;objets, en bits</translation>
    </message>
    <message>
        <source>how programs are tested, as bits</source>
        <translation>comment les programmes sont testés, en bits</translation>
    </message>
    <message>
        <source>how sheets are turned</source>
        <translation>comment les feuilles sont tournées</translation>
    </message>
    <message>
        <source>how smooth letters are plotted</source>
        <translation>finesse des lettres au tracé</translation>
    </message>
    <message>
        <source>how smooth round things are shown</source>
        <translation>finesse d&apos;affichage des objets ronds</translation>
    </message>
    <message>
        <source>how stacked texts are aligned</source>
        <translation>comment les textes superposés sont alignés</translation>
    </message>
    <message>
        <source>how surfaces are smoothed</source>
        <translation>comment les surfaces sont lissées</translation>
    </message>
    <message>
        <source>how text and arrows share the room, in the old form</source>
        <translation>comment texte et flèches se partagent la place, à l&apos;ancienne</translation>
    </message>
    <message>
        <source>how texts are aligned</source>
        <translation>comment les textes sont alignés</translation>
    </message>
    <message>
        <source>how texts are edited</source>
        <translation>comment les textes sont édités</translation>
    </message>
    <message>
        <source>how the dialog of hatches is shown</source>
        <translation>comment la boîte de dialogue des hachures est affichée</translation>
    </message>
    <message>
        <source>how the grid is shown, as bits</source>
        <translation>comment la grille est affichée, en bits</translation>
    </message>
    <message>
        <source>how the status line shows the pointer&apos;s place</source>
        <translation>comment la barre d&apos;état montre la place du pointeur</translation>
    </message>
    <message>
        <source>how undo works, as bits</source>
        <translation>comment fonctionne l&apos;annulation, en bits</translation>
    </message>
    <message>
        <source>how unknown entities are shown</source>
        <translation>comment les objets inconnus sont affichés</translation>
    </message>
    <message>
        <source>how well objects of other programs are plotted</source>
        <translation>qualité de tracé des objets d&apos;autres programmes</translation>
    </message>
    <message>
        <source>how well pictures are shown</source>
        <translation>qualité d&apos;affichage des images</translation>
    </message>
    <message>
        <source>how what is under the pointer is shown</source>
        <translation>comment est affiché ce qui est sous le pointeur</translation>
    </message>
    <message>
        <source>how wide lines end</source>
        <translation>comment les lignes larges finissent</translation>
    </message>
    <message>
        <source>how wide lines meet</source>
        <translation>comment les lignes larges se rencontrent</translation>
    </message>
    <message>
        <source>indices of layers and places are kept</source>
        <translation>des index des calques et des lieux sont tenus</translation>
    </message>
    <message>
        <source>islands are looked for</source>
        <translation>les îlots sont recherchés</translation>
    </message>
    <message>
        <source>its colour</source>
        <translation>sa couleur</translation>
    </message>
    <message>
        <source>kept as it is set, for programs: nothing here depends on it</source>
        <translation>conservé comme défini, pour les programmes&#xa0;: rien n&apos;en dépend ici</translation>
    </message>
    <message>
        <source>kept for programs that ask for it</source>
        <translation>conservé pour les programmes qui le demandent</translation>
    </message>
    <message>
        <source>keys that override a mode for a moment</source>
        <translation>touches qui changent un mode pour un moment</translation>
    </message>
    <message>
        <source>layers of external drawings keep what is set here</source>
        <translation>les calques des dessins externes gardent ce qui est défini ici</translation>
    </message>
    <message>
        <source>layers without entities are shown so</source>
        <translation>les calques sans objets sont affichés comme tels</translation>
    </message>
    <message>
        <source>layouts have tabs</source>
        <translation>les présentations ont des onglets</translation>
    </message>
    <message>
        <source>lengthens curves up to others</source>
        <translation>prolonge des courbes jusqu&apos;à d&apos;autres</translation>
    </message>
    <message>
        <source>lengths are shown as they are typed</source>
        <translation>les longueurs sont affichées comme elles sont saisies</translation>
    </message>
    <message>
        <source>letters are filled when plotted</source>
        <translation>les lettres sont remplies au tracé</translation>
    </message>
    <message>
        <source>limits are shown</source>
        <translation>les limites sont affichées</translation>
    </message>
    <message>
        <source>line spacing at least (1) or exactly (2)</source>
        <translation>interligne au moins (1) ou exactement (2)</translation>
    </message>
    <message>
        <source>lines are drawn smoothly</source>
        <translation>les lignes sont dessinées lisses</translation>
    </message>
    <message>
        <source>lines between two corners of a spline-fitted polyline</source>
        <translation>lignes entre deux coins d&apos;une polyligne lissée en spline</translation>
    </message>
    <message>
        <source>lines of history that the command line shows</source>
        <translation>lignes d&apos;historique que montre la ligne de commande</translation>
    </message>
    <message>
        <source>lines of surfaces one way</source>
        <translation>lignes des surfaces dans un sens</translation>
    </message>
    <message>
        <source>lines of surfaces the other way</source>
        <translation>lignes des surfaces dans l&apos;autre sens</translation>
    </message>
    <message>
        <source>lines on round solids</source>
        <translation>lignes sur les solides ronds</translation>
    </message>
    <message>
        <source>lines where solids meet are shown</source>
        <translation>les lignes où des solides se rencontrent sont affichées</translation>
    </message>
    <message>
        <source>linetypes in model space take the annotation scale</source>
        <translation>les types de ligne de l&apos;espace objet prennent l&apos;échelle d&apos;annotation</translation>
    </message>
    <message>
        <source>linetypes in viewports take the scale of the sheet</source>
        <translation>les types de ligne des fenêtres prennent l&apos;échelle de la feuille</translation>
    </message>
    <message>
        <source>linetypes run through the corners of polylines</source>
        <translation>les types de ligne continuent dans les coins des polylignes</translation>
    </message>
    <message>
        <source>lineweights are shown</source>
        <translation>les épaisseurs de ligne sont affichées</translation>
    </message>
    <message>
        <source>lineweights are shown in inches (0) or millimetres (1)</source>
        <translation>les épaisseurs de ligne sont affichées en pouces (0) ou en millimètres (1)</translation>
    </message>
    <message>
        <source>makes one curve of several that meet or lie on one line or circle</source>
        <translation>fait une courbe de plusieurs qui se touchent ou sont sur une même ligne ou un même cercle</translation>
    </message>
    <message>
        <source>makes regions of closed loops</source>
        <translation>fait des régions de boucles fermées</translation>
    </message>
    <message>
        <source>marks and tips of object snap, polar and object tracking, as bits</source>
        <translation>marques et infobulles de l&apos;accrochage, du repérage polaire et du repérage d&apos;objets, en bits</translation>
    </message>
    <message>
        <source>marks of centres: their size, negative with lines, 0 for none</source>
        <translation>marques de centre&#xa0;: leur taille, négative avec lignes, 0 pour aucune</translation>
    </message>
    <message>
        <source>marks where points were picked</source>
        <translation>marques où des points ont été désignés</translation>
    </message>
    <message>
        <source>measures areas and perimeters of corners and curves</source>
        <translation>mesure les aires et périmètres de coins et de courbes</translation>
    </message>
    <message>
        <source>measures curves and makes them longer or shorter</source>
        <translation>mesure des courbes et les allonge ou les raccourcit</translation>
    </message>
    <message>
        <source>menus follow the command</source>
        <translation>les menus suivent la commande</translation>
    </message>
    <message>
        <source>menus of the right button, as bits: at rest, for what is chosen, at prompts, with options, held</source>
        <translation>menus du bouton droit, en bits&#xa0;: au repos, pour ce qui est choisi, aux invites, avec options, tenu</translation>
    </message>
    <message>
        <source>milliseconds since the machine was started</source>
        <translation>millisecondes depuis le démarrage de la machine</translation>
    </message>
    <message>
        <source>minutes between automatic saves</source>
        <translation>minutes entre les enregistrements automatiques</translation>
    </message>
    <message>
        <source>model space is shown (1) or a layout (0)</source>
        <translation>l&apos;espace objet est affiché (1) ou une présentation (0)</translation>
    </message>
    <message>
        <source>names may be long and have blanks</source>
        <translation>les noms peuvent être longs et avoir des espaces</translation>
    </message>
    <message>
        <source>names of applications come with external drawings</source>
        <translation>des noms d&apos;applications viennent avec les dessins externes</translation>
    </message>
    <message>
        <source>new drawings are imperial (0) or metric (1)</source>
        <translation>les nouveaux dessins sont impériaux (0) ou métriques (1)</translation>
    </message>
    <message>
        <source>new external drawings are attached (0) or overlaid (1)</source>
        <translation>les nouveaux dessins externes sont attachés (0) ou superposés (1)</translation>
    </message>
    <message>
        <source>new external drawings have no path (0), a relative (1) or a full one (2)</source>
        <translation>les nouveaux dessins externes n&apos;ont pas de chemin (0), un chemin relatif (1) ou complet (2)</translation>
    </message>
    <message>
        <source>new hatches are annotative</source>
        <translation>les nouvelles hachures sont annotatives</translation>
    </message>
    <message>
        <source>new layers are looked for</source>
        <translation>les nouveaux calques sont recherchés</translation>
    </message>
    <message>
        <source>new layouts get a viewport</source>
        <translation>les nouvelles présentations reçoivent une fenêtre</translation>
    </message>
    <message>
        <source>new texts are in capitals</source>
        <translation>les nouveaux textes sont en majuscules</translation>
    </message>
    <message>
        <source>notes are shown in the status bar</source>
        <translation>les notes sont affichées dans la barre d&apos;état</translation>
    </message>
    <message>
        <source>object snap finds hatches</source>
        <translation>l&apos;accrochage aux objets trouve les hachures</translation>
    </message>
    <message>
        <source>object snap finds underlays</source>
        <translation>l&apos;accrochage aux objets trouve les fonds de plan</translation>
    </message>
    <message>
        <source>object snap takes the height of the user&apos;s plane</source>
        <translation>l&apos;accrochage aux objets prend la hauteur du plan de l&apos;utilisateur</translation>
    </message>
    <message>
        <source>object snaps in space, as bits</source>
        <translation>accrochages aux objets dans l&apos;espace, en bits</translation>
    </message>
    <message>
        <source>objects of other programs are hidden</source>
        <translation>les objets d&apos;autres programmes sont cachés</translation>
    </message>
    <message>
        <source>one drawing at a time</source>
        <translation>un dessin à la fois</translation>
    </message>
    <message>
        <source>one text is edited (1) or several (0)</source>
        <translation>un texte est édité (1) ou plusieurs (0)</translation>
    </message>
    <message>
        <source>patterns are mirrored with hatches</source>
        <translation>les motifs sont mis en miroir avec les hachures</translation>
    </message>
    <message>
        <source>pictures are shown whole when chosen</source>
        <translation>les images sont montrées en entier quand elles sont choisies</translation>
    </message>
    <message>
        <source>pictures have a ground</source>
        <translation>les images ont un fond</translation>
    </message>
    <message>
        <source>pictures of unknown entities are saved</source>
        <translation>les images des objets inconnus sont enregistrées</translation>
    </message>
    <message>
        <source>plot styles go by colour (1) or name (0)</source>
        <translation>les styles de tracé suivent la couleur (1) ou le nom (0)</translation>
    </message>
    <message>
        <source>points must be within the limits</source>
        <translation>les points doivent être dans les limites</translation>
    </message>
    <message>
        <source>points typed beside the pointer are polar (0) or cartesian (1)</source>
        <translation>les points saisis au pointeur sont polaires (0) ou cartésiens (1)</translation>
    </message>
    <message>
        <source>points typed beside the pointer are relative (0) or absolute (1)</source>
        <translation>les points saisis au pointeur sont relatifs (0) ou absolus (1)</translation>
    </message>
    <message>
        <source>polylines are made light: never (0), new ones (1), old ones too (2)</source>
        <translation>les polylignes sont allégées&#xa0;: jamais (0), les nouvelles (1), les anciennes aussi (2)</translation>
    </message>
    <message>
        <source>programs from elsewhere: loaded (0), asked for (1), refused (2); trusted folders decide here</source>
        <translation>programmes venus d&apos;ailleurs&#xa0;: chargés (0), demandés (1), refusés (2)&#xa0;; les dossiers de confiance décident ici</translation>
    </message>
    <message>
        <source>prompts are not printed</source>
        <translation>les invites ne sont pas affichées</translation>
    </message>
    <message>
        <source>prompts are shown beside the pointer</source>
        <translation>les invites sont affichées au pointeur</translation>
    </message>
    <message>
        <source>prompts beside the pointer, as bits</source>
        <translation>invites au pointeur, en bits</translation>
    </message>
    <message>
        <source>puts points or blocks at steps along a curve</source>
        <translation>place des points ou des blocs à intervalles le long d&apos;une courbe</translation>
    </message>
    <message>
        <source>puts points or blocks that cut a curve into equal parts</source>
        <translation>place des points ou des blocs qui coupent une courbe en parties égales</translation>
    </message>
    <message>
        <source>quick properties are shown</source>
        <translation>les propriétés rapides sont affichées</translation>
    </message>
    <message>
        <source>regeneration on several processors</source>
        <translation>régénération sur plusieurs processeurs</translation>
    </message>
    <message>
        <source>reversing a polyline swaps its widths</source>
        <translation>inverser une polyligne échange ses largeurs</translation>
    </message>
    <message>
        <source>saving keeps a backup</source>
        <translation>l&apos;enregistrement conserve une copie de sauvegarde</translation>
    </message>
    <message>
        <source>scripts plot without questions</source>
        <translation>les scripts tracent sans questions</translation>
    </message>
    <message>
        <source>silhouettes of solids are drawn</source>
        <translation>les silhouettes des solides sont dessinées</translation>
    </message>
    <message>
        <source>sketches become lines (0), polylines (1), splines (2)</source>
        <translation>les esquisses deviennent des lignes (0), polylignes (1), splines (2)</translation>
    </message>
    <message>
        <source>snap goes by the grid (0) or by polar tracking (1)</source>
        <translation>la résolution suit la grille (0) ou le repérage polaire (1)</translation>
    </message>
    <message>
        <source>snap is square (0) or isometric (1)</source>
        <translation>la résolution est rectangulaire (0) ou isométrique (1)</translation>
    </message>
    <message>
        <source>solids are checked</source>
        <translation>les solides sont contrôlés</translation>
    </message>
    <message>
        <source>solids keep their history</source>
        <translation>les solides gardent leur historique</translation>
    </message>
    <message>
        <source>spline-fitted polylines are quadratic (5) or cubic (6)</source>
        <translation>les polylignes lissées en spline sont quadratiques (5) ou cubiques (6)</translation>
    </message>
    <message>
        <source>splines become polylines of lines (0) or arcs (1)</source>
        <translation>les splines deviennent des polylignes de lignes (0) ou d&apos;arcs (1)</translation>
    </message>
    <message>
        <source>splines go by fit points (0) or control points (1)</source>
        <translation>les splines suivent des points de lissage (0) ou de contrôle (1)</translation>
    </message>
    <message>
        <source>start-up programs are loaded into every drawing (1) or the first (0)</source>
        <translation>les programmes de démarrage sont chargés dans chaque dessin (1) ou le premier (0)</translation>
    </message>
    <message>
        <source>steps of a walk in a second</source>
        <translation>pas d&apos;une promenade par seconde</translation>
    </message>
    <message>
        <source>such settings are shown</source>
        <translation>de tels réglages sont affichés</translation>
    </message>
    <message>
        <source>symbols are shown in the status bar</source>
        <translation>les symboles sont affichés dans la barre d&apos;état</translation>
    </message>
    <message>
        <source>takes a part out of a curve, or cuts it in two</source>
        <translation>retire une partie d&apos;une courbe, ou la coupe en deux</translation>
    </message>
    <message>
        <source>texts are kept inside</source>
        <translation>les textes sont maintenus à l&apos;intérieur</translation>
    </message>
    <message>
        <source>texts are mirrored with the drawing</source>
        <translation>les textes sont mis en miroir avec le dessin</translation>
    </message>
    <message>
        <source>texts are read the other way</source>
        <translation>les textes se lisent dans l&apos;autre sens</translation>
    </message>
    <message>
        <source>texts are shown as boxes</source>
        <translation>les textes sont affichés en rectangles</translation>
    </message>
    <message>
        <source>texts hide and are hidden</source>
        <translation>les textes cachent et sont cachés</translation>
    </message>
    <message>
        <source>texts inside are level</source>
        <translation>les textes intérieurs sont horizontaux</translation>
    </message>
    <message>
        <source>texts outside are level</source>
        <translation>les textes extérieurs sont horizontaux</translation>
    </message>
    <message>
        <source>the address of the browser</source>
        <translation>l&apos;adresse du navigateur</translation>
    </message>
    <message>
        <source>the angle of gradients</source>
        <translation>l&apos;angle des dégradés</translation>
    </message>
    <message>
        <source>the angle of hatches</source>
        <translation>l&apos;angle des hachures</translation>
    </message>
    <message>
        <source>the angle of the jog of large radii</source>
        <translation>l&apos;angle du raccourcissement des grands rayons</translation>
    </message>
    <message>
        <source>the angle that ROTATE proposes</source>
        <translation>l&apos;angle que propose ROTATE</translation>
    </message>
    <message>
        <source>the angle that UCS proposes for a turn</source>
        <translation>l&apos;angle que propose UCS pour une rotation</translation>
    </message>
    <message>
        <source>the arcs of clouds differ</source>
        <translation>les arcs des nuages diffèrent</translation>
    </message>
    <message>
        <source>the area that was measured last</source>
        <translation>l&apos;aire mesurée en dernier</translation>
    </message>
    <message>
        <source>the arrow at both ends</source>
        <translation>la flèche aux deux extrémités</translation>
    </message>
    <message>
        <source>the arrow at the first end</source>
        <translation>la flèche à la première extrémité</translation>
    </message>
    <message>
        <source>the arrow at the second end</source>
        <translation>la flèche à la seconde extrémité</translation>
    </message>
    <message>
        <source>the arrow of leaders</source>
        <translation>la flèche des lignes de repère</translation>
    </message>
    <message>
        <source>the bar of navigation is shown</source>
        <translation>la barre de navigation est affichée</translation>
    </message>
    <message>
        <source>the base point of the drawing</source>
        <translation>le point de base du dessin</translation>
    </message>
    <message>
        <source>the blank key ends a line of a list</source>
        <translation>la touche espace termine une ligne de liste</translation>
    </message>
    <message>
        <source>the block that INSERT proposes</source>
        <translation>le bloc que propose INSERT</translation>
    </message>
    <message>
        <source>the block that is edited in place</source>
        <translation>le bloc édité sur place</translation>
    </message>
    <message>
        <source>the blocks inserted last</source>
        <translation>les derniers blocs insérés</translation>
    </message>
    <message>
        <source>the box of object snap is shown</source>
        <translation>la cible d&apos;accrochage aux objets est affichée</translation>
    </message>
    <message>
        <source>the chamfer angle</source>
        <translation>l&apos;angle de chanfrein</translation>
    </message>
    <message>
        <source>the chamfer length</source>
        <translation>la longueur de chanfrein</translation>
    </message>
    <message>
        <source>the code page of the machine</source>
        <translation>la page de codes de la machine</translation>
    </message>
    <message>
        <source>the colour of crossing windows</source>
        <translation>la couleur des fenêtres de capture</translation>
    </message>
    <message>
        <source>the colour of dimension lines</source>
        <translation>la couleur des lignes de cote</translation>
    </message>
    <message>
        <source>the colour of extension lines</source>
        <translation>la couleur des lignes d&apos;attache</translation>
    </message>
    <message>
        <source>the colour of grips</source>
        <translation>la couleur des poignées</translation>
    </message>
    <message>
        <source>the colour of hidden lines</source>
        <translation>la couleur des lignes cachées</translation>
    </message>
    <message>
        <source>the colour of lines where solids meet</source>
        <translation>la couleur des lignes où des solides se rencontrent</translation>
    </message>
    <message>
        <source>the colour of new entities</source>
        <translation>la couleur des nouveaux objets</translation>
    </message>
    <message>
        <source>the colour of new hatches; &quot;.&quot; is the current one</source>
        <translation>la couleur des nouvelles hachures&#xa0;; &quot;.&quot; est la couleur courante</translation>
    </message>
    <message>
        <source>the colour of texts</source>
        <translation>la couleur des textes</translation>
    </message>
    <message>
        <source>the colour of the grip that is pulled</source>
        <translation>la couleur de la poignée tirée</translation>
    </message>
    <message>
        <source>the colour of the grip under the pointer</source>
        <translation>la couleur de la poignée sous le pointeur</translation>
    </message>
    <message>
        <source>the colour of the grips of dynamic blocks</source>
        <translation>la couleur des poignées des blocs dynamiques</translation>
    </message>
    <message>
        <source>the colour of windows of selections</source>
        <translation>la couleur des fenêtres de sélection</translation>
    </message>
    <message>
        <source>the command line is written to a file</source>
        <translation>la ligne de commande est écrite dans un fichier</translation>
    </message>
    <message>
        <source>the commands that are under way</source>
        <translation>les commandes en cours</translation>
    </message>
    <message>
        <source>the control key goes through what lies above each other</source>
        <translation>la touche Ctrl parcourt ce qui est superposé</translation>
    </message>
    <message>
        <source>the cube of views is shown</source>
        <translation>le cube de vues est affiché</translation>
    </message>
    <message>
        <source>the cube of views is shown in flat views</source>
        <translation>le cube de vues est affiché dans les vues planes</translation>
    </message>
    <message>
        <source>the current dimension style</source>
        <translation>le style de cote courant</translation>
    </message>
    <message>
        <source>the current dimension style is annotative</source>
        <translation>le style de cote courant est annotatif</translation>
    </message>
    <message>
        <source>the decimal separator</source>
        <translation>le séparateur décimal</translation>
    </message>
    <message>
        <source>the default lineweight, in hundredths of a millimetre</source>
        <translation>l&apos;épaisseur de ligne par défaut, en centièmes de millimètre</translation>
    </message>
    <message>
        <source>the degree of new splines</source>
        <translation>le degré des nouvelles splines</translation>
    </message>
    <message>
        <source>the dictionary of spelling</source>
        <translation>le dictionnaire d&apos;orthographe</translation>
    </message>
    <message>
        <source>the distance of dimension lines above each other</source>
        <translation>la distance entre lignes de cote superposées</translation>
    </message>
    <message>
        <source>the distance of the back clipping plane</source>
        <translation>la distance du plan de délimitation arrière</translation>
    </message>
    <message>
        <source>the distance of the front clipping plane</source>
        <translation>la distance du plan de délimitation avant</translation>
    </message>
    <message>
        <source>the distance of the user&apos;s lines</source>
        <translation>la distance des lignes de l&apos;utilisateur</translation>
    </message>
    <message>
        <source>the distance that OFFSET proposes; negative for through a point</source>
        <translation>la distance que propose OFFSET&#xa0;; négative pour par un point</translation>
    </message>
    <message>
        <source>the distance that was measured last</source>
        <translation>la distance mesurée en dernier</translation>
    </message>
    <message>
        <source>the distances of the grid</source>
        <translation>les distances de la grille</translation>
    </message>
    <message>
        <source>the drawing behaves as annotative when inserted</source>
        <translation>le dessin se comporte en annotatif quand il est inséré</translation>
    </message>
    <message>
        <source>the drawing has a name</source>
        <translation>le dessin a un nom</translation>
    </message>
    <message>
        <source>the drawing may be edited in place by others</source>
        <translation>le dessin peut être édité sur place par d&apos;autres</translation>
    </message>
    <message>
        <source>the drawing may be written</source>
        <translation>le dessin peut être écrit</translation>
    </message>
    <message>
        <source>the drawing takes imperial (0) or metric (1) patterns</source>
        <translation>le dessin prend des motifs impériaux (0) ou métriques (1)</translation>
    </message>
    <message>
        <source>the drawing was opened whole</source>
        <translation>le dessin a été ouvert en entier</translation>
    </message>
    <message>
        <source>the drawing&apos;s code page</source>
        <translation>la page de codes du dessin</translation>
    </message>
    <message>
        <source>the drawing&apos;s file name</source>
        <translation>le nom de fichier du dessin</translation>
    </message>
    <message>
        <source>the drawing&apos;s folder</source>
        <translation>le dossier du dessin</translation>
    </message>
    <message>
        <source>the drawing&apos;s unit of length</source>
        <translation>l&apos;unité de longueur du dessin</translation>
    </message>
    <message>
        <source>the editor of paragraphs</source>
        <translation>l&apos;éditeur de paragraphes</translation>
    </message>
    <message>
        <source>the encoding of text files</source>
        <translation>l&apos;encodage des fichiers texte</translation>
    </message>
    <message>
        <source>the end direction of the arc drawn last</source>
        <translation>la direction de fin du dernier arc dessiné</translation>
    </message>
    <message>
        <source>the ends have arrows of their own</source>
        <translation>les extrémités ont leurs propres flèches</translation>
    </message>
    <message>
        <source>the factor of a unit&apos;s parts</source>
        <translation>le facteur des parties d&apos;une unité</translation>
    </message>
    <message>
        <source>the factor of lengths</source>
        <translation>le facteur des longueurs</translation>
    </message>
    <message>
        <source>the factor of the line spacing of paragraphs</source>
        <translation>le facteur d&apos;interligne des paragraphes</translation>
    </message>
    <message>
        <source>the factor of the second unit</source>
        <translation>le facteur de la seconde unité</translation>
    </message>
    <message>
        <source>the factor of the second unit&apos;s parts</source>
        <translation>le facteur des parties de la seconde unité</translation>
    </message>
    <message>
        <source>the factor that SCALE proposes</source>
        <translation>le facteur que propose SCALE</translation>
    </message>
    <message>
        <source>the far corner of the limits</source>
        <translation>le coin éloigné des limites</translation>
    </message>
    <message>
        <source>the far corner of the virtual screen</source>
        <translation>le coin éloigné de l&apos;écran virtuel</translation>
    </message>
    <message>
        <source>the far corner of what the space shows</source>
        <translation>le coin éloigné de ce que montre l&apos;espace</translation>
    </message>
    <message>
        <source>the file of the command line</source>
        <translation>le fichier de la ligne de commande</translation>
    </message>
    <message>
        <source>the file of the last automatic save</source>
        <translation>le fichier du dernier enregistrement automatique</translation>
    </message>
    <message>
        <source>the file of the menu</source>
        <translation>le fichier du menu</translation>
    </message>
    <message>
        <source>the file that says which font replaces which</source>
        <translation>le fichier qui dit quelle police en remplace une autre</translation>
    </message>
    <message>
        <source>the file that was saved last</source>
        <translation>le dernier fichier enregistré</translation>
    </message>
    <message>
        <source>the first chamfer distance</source>
        <translation>la première distance de chanfrein</translation>
    </message>
    <message>
        <source>the first colour of gradients</source>
        <translation>la première couleur des dégradés</translation>
    </message>
    <message>
        <source>the first extension line is left out</source>
        <translation>la première ligne d&apos;attache est omise</translation>
    </message>
    <message>
        <source>the first half of the line is left out</source>
        <translation>la première moitié de la ligne est omise</translation>
    </message>
    <message>
        <source>the focal length of perspective views</source>
        <translation>la focale des vues en perspective</translation>
    </message>
    <message>
        <source>the folder of automatic saves</source>
        <translation>le dossier des enregistrements automatiques</translation>
    </message>
    <message>
        <source>the folder of such files</source>
        <translation>le dossier de tels fichiers</translation>
    </message>
    <message>
        <source>the folder of temporary files</source>
        <translation>le dossier des fichiers temporaires</translation>
    </message>
    <message>
        <source>the folder of the user&apos;s data</source>
        <translation>le dossier des données de l&apos;utilisateur</translation>
    </message>
    <message>
        <source>the folder of the user&apos;s documents</source>
        <translation>le dossier des documents de l&apos;utilisateur</translation>
    </message>
    <message>
        <source>the folder of what stays on this machine</source>
        <translation>le dossier de ce qui reste sur cette machine</translation>
    </message>
    <message>
        <source>the folder that the program was started in</source>
        <translation>le dossier où le programme a été démarré</translation>
    </message>
    <message>
        <source>the folders that files are looked for in</source>
        <translation>les dossiers où les fichiers sont cherchés</translation>
    </message>
    <message>
        <source>the font for those that are missing</source>
        <translation>la police de celles qui manquent</translation>
    </message>
    <message>
        <source>the format of angles</source>
        <translation>le format des angles</translation>
    </message>
    <message>
        <source>the format of lengths</source>
        <translation>le format des longueurs</translation>
    </message>
    <message>
        <source>the format of lengths, in the old form</source>
        <translation>le format des longueurs, à l&apos;ancienne</translation>
    </message>
    <message>
        <source>the format of the second unit</source>
        <translation>le format de la seconde unité</translation>
    </message>
    <message>
        <source>the frames of pictures, underlays and clips</source>
        <translation>les cadres des images, fonds de plan et délimitations</translation>
    </message>
    <message>
        <source>the gap between a multileader&apos;s landing and its text</source>
        <translation>l&apos;écart entre la ligne de guidage d&apos;un repère multiple et son texte</translation>
    </message>
    <message>
        <source>the gap of centre marks</source>
        <translation>l&apos;écart des marques de centre</translation>
    </message>
    <message>
        <source>the grid is shown</source>
        <translation>la grille est affichée</translation>
    </message>
    <message>
        <source>the ground of hatches</source>
        <translation>le fond des hachures</translation>
    </message>
    <message>
        <source>the ground of texts</source>
        <translation>le fond des textes</translation>
    </message>
    <message>
        <source>the handle that comes next</source>
        <translation>le prochain identificateur</translation>
    </message>
    <message>
        <source>the height of POLYSOLID</source>
        <translation>la hauteur de POLYSOLID</translation>
    </message>
    <message>
        <source>the height of new cameras</source>
        <translation>la hauteur des nouvelles caméras</translation>
    </message>
    <message>
        <source>the height of new entities above the user&apos;s plane</source>
        <translation>la hauteur des nouveaux objets au-dessus du plan de l&apos;utilisateur</translation>
    </message>
    <message>
        <source>the height of new entities on sheets</source>
        <translation>la hauteur des nouveaux objets sur les feuilles</translation>
    </message>
    <message>
        <source>the height of texts</source>
        <translation>la hauteur des textes</translation>
    </message>
    <message>
        <source>the height of the view</source>
        <translation>la hauteur de la vue</translation>
    </message>
    <message>
        <source>the height that shadows fall on</source>
        <translation>la hauteur sur laquelle tombent les ombres</translation>
    </message>
    <message>
        <source>the history of solids is shown</source>
        <translation>l&apos;historique des solides est affiché</translation>
    </message>
    <message>
        <source>the inner diameter that DONUT proposes</source>
        <translation>le diamètre intérieur que propose DONUT</translation>
    </message>
    <message>
        <source>the isometric plane</source>
        <translation>le plan isométrique</translation>
    </message>
    <message>
        <source>the kind of array that is proposed</source>
        <translation>le type de réseau proposé</translation>
    </message>
    <message>
        <source>the kind of gradients</source>
        <translation>le type des dégradés</translation>
    </message>
    <message>
        <source>the language of the machine</source>
        <translation>la langue de la machine</translation>
    </message>
    <message>
        <source>the last dialog ended with OK</source>
        <translation>la dernière boîte de dialogue a fini par OK</translation>
    </message>
    <message>
        <source>the last line of the command line</source>
        <translation>la dernière ligne de la ligne de commande</translation>
    </message>
    <message>
        <source>the layer of centre marks</source>
        <translation>le calque des marques de centre</translation>
    </message>
    <message>
        <source>the layer of new dimensions; &quot;.&quot; is the current one</source>
        <translation>le calque des nouvelles cotes&#xa0;; &quot;.&quot; est le calque courant</translation>
    </message>
    <message>
        <source>the layer of new entities</source>
        <translation>le calque des nouveaux objets</translation>
    </message>
    <message>
        <source>the layer of new external drawings; &quot;.&quot; is the current one</source>
        <translation>le calque des nouveaux dessins externes&#xa0;; &quot;.&quot; est le calque courant</translation>
    </message>
    <message>
        <source>the layer of new hatches; &quot;.&quot; is the current one</source>
        <translation>le calque des nouvelles hachures&#xa0;; &quot;.&quot; est le calque courant</translation>
    </message>
    <message>
        <source>the least speed of smooth changes of the view</source>
        <translation>la vitesse minimale des changements de vue en douceur</translation>
    </message>
    <message>
        <source>the length of extension lines, where fixed</source>
        <translation>la longueur des lignes d&apos;attache, où elle est fixe</translation>
    </message>
    <message>
        <source>the length of the arcs of clouds</source>
        <translation>la longueur des arcs des nuages</translation>
    </message>
    <message>
        <source>the length round what was measured last</source>
        <translation>le périmètre de ce qui a été mesuré en dernier</translation>
    </message>
    <message>
        <source>the linetype of centre marks</source>
        <translation>le type de ligne des marques de centre</translation>
    </message>
    <message>
        <source>the linetype of dimension lines</source>
        <translation>le type de ligne des lignes de cote</translation>
    </message>
    <message>
        <source>the linetype of hidden lines</source>
        <translation>le type de ligne des lignes cachées</translation>
    </message>
    <message>
        <source>the linetype of new entities</source>
        <translation>le type de ligne des nouveaux objets</translation>
    </message>
    <message>
        <source>the linetype of the first extension line</source>
        <translation>le type de ligne de la première ligne d&apos;attache</translation>
    </message>
    <message>
        <source>the linetype of the second extension line</source>
        <translation>le type de ligne de la seconde ligne d&apos;attache</translation>
    </message>
    <message>
        <source>the linetype scale of centre marks</source>
        <translation>l&apos;échelle du type de ligne des marques de centre</translation>
    </message>
    <message>
        <source>the linetype scale of new entities</source>
        <translation>l&apos;échelle du type de ligne des nouveaux objets</translation>
    </message>
    <message>
        <source>the lineweight of dimension lines</source>
        <translation>l&apos;épaisseur des lignes de cote</translation>
    </message>
    <message>
        <source>the lineweight of extension lines</source>
        <translation>l&apos;épaisseur des lignes d&apos;attache</translation>
    </message>
    <message>
        <source>the lineweight of new entities</source>
        <translation>l&apos;épaisseur de ligne des nouveaux objets</translation>
    </message>
    <message>
        <source>the longest arc of clouds</source>
        <translation>le plus long arc des nuages</translation>
    </message>
    <message>
        <source>the lower tolerance</source>
        <translation>la tolérance inférieure</translation>
    </message>
    <message>
        <source>the maintenance version of the drawing&apos;s format</source>
        <translation>la version de maintenance du format du dessin</translation>
    </message>
    <message>
        <source>the material of new entities</source>
        <translation>le matériau des nouveaux objets</translation>
    </message>
    <message>
        <source>the menu bar is shown</source>
        <translation>la barre de menus est affichée</translation>
    </message>
    <message>
        <source>the menus of viewports are shown</source>
        <translation>les menus des fenêtres sont affichés</translation>
    </message>
    <message>
        <source>the middle of the view</source>
        <translation>le milieu de la vue</translation>
    </message>
    <message>
        <source>the most memory that Lisp may take, in megabytes</source>
        <translation>la mémoire maximale que Lisp peut prendre, en mégaoctets</translation>
    </message>
    <message>
        <source>the most nodes of the spatial index</source>
        <translation>le nombre maximal de nœuds de l&apos;index spatial</translation>
    </message>
    <message>
        <source>the name of the current annotation scale</source>
        <translation>le nom de l&apos;échelle d&apos;annotation courante</translation>
    </message>
    <message>
        <source>the name of the layout that is shown</source>
        <translation>le nom de la présentation affichée</translation>
    </message>
    <message>
        <source>the name of the menu</source>
        <translation>le nom du menu</translation>
    </message>
    <message>
        <source>the name of the program</source>
        <translation>le nom du programme</translation>
    </message>
    <message>
        <source>the name of the project</source>
        <translation>le nom du projet</translation>
    </message>
    <message>
        <source>the name of the user&apos;s coordinate system</source>
        <translation>le nom du système de coordonnées utilisateur</translation>
    </message>
    <message>
        <source>the name of the user&apos;s profile</source>
        <translation>le nom du profil de l&apos;utilisateur</translation>
    </message>
    <message>
        <source>the near corner of the limits</source>
        <translation>le coin proche des limites</translation>
    </message>
    <message>
        <source>the near corner of the virtual screen</source>
        <translation>le coin proche de l&apos;écran virtuel</translation>
    </message>
    <message>
        <source>the near corner of what the space shows</source>
        <translation>le coin proche de ce que montre l&apos;espace</translation>
    </message>
    <message>
        <source>the number of the current viewport; 1 is the sheet</source>
        <translation>le numéro de la fenêtre courante&#xa0;; 1 est la feuille</translation>
    </message>
    <message>
        <source>the offset of plots counts from the margin (0) or the edge (1)</source>
        <translation>le décalage des tracés compte depuis la marge (0) ou le bord (1)</translation>
    </message>
    <message>
        <source>the operating system</source>
        <translation>le système d&apos;exploitation</translation>
    </message>
    <message>
        <source>the origin of hatches</source>
        <translation>l&apos;origine des hachures</translation>
    </message>
    <message>
        <source>the origin of snap and grid</source>
        <translation>l&apos;origine de la résolution et de la grille</translation>
    </message>
    <message>
        <source>the origin of the user&apos;s coordinate system</source>
        <translation>l&apos;origine du système de coordonnées utilisateur</translation>
    </message>
    <message>
        <source>the outer diameter that DONUT proposes</source>
        <translation>le diamètre extérieur que propose DONUT</translation>
    </message>
    <message>
        <source>the panel of databases is open</source>
        <translation>le panneau des bases de données est ouvert</translation>
    </message>
    <message>
        <source>the panel of external drawings is open</source>
        <translation>le panneau des dessins externes est ouvert</translation>
    </message>
    <message>
        <source>the panel of layers is open</source>
        <translation>le panneau des calques est ouvert</translation>
    </message>
    <message>
        <source>the panel of other drawings&apos; contents is open</source>
        <translation>le panneau du contenu d&apos;autres dessins est ouvert</translation>
    </message>
    <message>
        <source>the panel of properties is open</source>
        <translation>le panneau des propriétés est ouvert</translation>
    </message>
    <message>
        <source>the pattern of hatches</source>
        <translation>le motif des hachures</translation>
    </message>
    <message>
        <source>the plan view follows the user&apos;s coordinate system</source>
        <translation>la vue en plan suit le système de coordonnées utilisateur</translation>
    </message>
    <message>
        <source>the plane follows faces</source>
        <translation>le plan suit les faces</translation>
    </message>
    <message>
        <source>the plot style of layer 0 in new drawings</source>
        <translation>le style de tracé du calque 0 dans les nouveaux dessins</translation>
    </message>
    <message>
        <source>the plot style of new entities</source>
        <translation>le style de tracé des nouveaux objets</translation>
    </message>
    <message>
        <source>the plot style of new entities in new drawings</source>
        <translation>le style de tracé des nouveaux objets dans les nouveaux dessins</translation>
    </message>
    <message>
        <source>the point given last</source>
        <translation>le dernier point donné</translation>
    </message>
    <message>
        <source>the pointer moves along the axes</source>
        <translation>le pointeur se déplace selon les axes</translation>
    </message>
    <message>
        <source>the pointer moves in steps</source>
        <translation>le pointeur se déplace par pas</translation>
    </message>
    <message>
        <source>the program of such an object is started for a plot</source>
        <translation>le programme d&apos;un tel objet est démarré pour un tracé</translation>
    </message>
    <message>
        <source>the radius that CIRCLE proposes; 0 for none</source>
        <translation>le rayon que propose CIRCLE&#xa0;; 0 pour aucun</translation>
    </message>
    <message>
        <source>the radius that FILLET takes</source>
        <translation>le rayon que prend FILLET</translation>
    </message>
    <message>
        <source>the release of the dialect, beginning with its number</source>
        <translation>la version du dialecte, commençant par son numéro</translation>
    </message>
    <message>
        <source>the ribbon is shown</source>
        <translation>le ruban est affiché</translation>
    </message>
    <message>
        <source>the room round the text; negative with a frame</source>
        <translation>la place autour du texte&#xa0;; négative avec un cadre</translation>
    </message>
    <message>
        <source>the running object snaps, as bits</source>
        <translation>les accrochages aux objets actifs, en bits</translation>
    </message>
    <message>
        <source>the scale of all linetypes</source>
        <translation>l&apos;échelle de tous les types de ligne</translation>
    </message>
    <message>
        <source>the scale of everything in dimensions; 0 by the sheet</source>
        <translation>l&apos;échelle de tout dans les cotes&#xa0;; 0 selon la feuille</translation>
    </message>
    <message>
        <source>the scale of hatches</source>
        <translation>l&apos;échelle des hachures</translation>
    </message>
    <message>
        <source>the scale of multileaders</source>
        <translation>l&apos;échelle des repères multiples</translation>
    </message>
    <message>
        <source>the scale of multilines</source>
        <translation>l&apos;échelle des multilignes</translation>
    </message>
    <message>
        <source>the scale of new viewports</source>
        <translation>l&apos;échelle des nouvelles fenêtres</translation>
    </message>
    <message>
        <source>the scale of objects of other programs</source>
        <translation>l&apos;échelle des objets d&apos;autres programmes</translation>
    </message>
    <message>
        <source>the scales of chosen annotative things are shown</source>
        <translation>les échelles des objets annotatifs choisis sont affichées</translation>
    </message>
    <message>
        <source>the second chamfer distance</source>
        <translation>la seconde distance de chanfrein</translation>
    </message>
    <message>
        <source>the second colour of gradients</source>
        <translation>la seconde couleur des dégradés</translation>
    </message>
    <message>
        <source>the second extension line is left out</source>
        <translation>la seconde ligne d&apos;attache est omise</translation>
    </message>
    <message>
        <source>the second half of the line is left out</source>
        <translation>la seconde moitié de la ligne est omise</translation>
    </message>
    <message>
        <source>the shadow of an entity</source>
        <translation>l&apos;ombre d&apos;un objet</translation>
    </message>
    <message>
        <source>the shape that SHAPE proposes</source>
        <translation>la forme que propose SHAPE</translation>
    </message>
    <message>
        <source>the sheet set of the drawing</source>
        <translation>le jeu de feuilles du dessin</translation>
    </message>
    <message>
        <source>the shortest arc of clouds</source>
        <translation>le plus court arc des nuages</translation>
    </message>
    <message>
        <source>the size of a step in a walk</source>
        <translation>la taille d&apos;un pas de promenade</translation>
    </message>
    <message>
        <source>the size of arrows</source>
        <translation>la taille des flèches</translation>
    </message>
    <message>
        <source>the size of centre marks</source>
        <translation>la taille des marques de centre</translation>
    </message>
    <message>
        <source>the size of grips in pixels</source>
        <translation>la taille des poignées en pixels</translation>
    </message>
    <message>
        <source>the size of stacked texts, as per cent</source>
        <translation>la taille des textes superposés, en pour cent</translation>
    </message>
    <message>
        <source>the size of the box that picks dimensions</source>
        <translation>la taille de la cible qui désigne les cotes</translation>
    </message>
    <message>
        <source>the size of the cross hairs, as per cent of the window</source>
        <translation>la taille du réticule, en pour cent de la fenêtre</translation>
    </message>
    <message>
        <source>the size of the drawing&apos;s window in pixels</source>
        <translation>la taille de la fenêtre du dessin en pixels</translation>
    </message>
    <message>
        <source>the size of ticks; 0 for arrows</source>
        <translation>la taille des traits obliques&#xa0;; 0 pour des flèches</translation>
    </message>
    <message>
        <source>the size of tolerances</source>
        <translation>la taille des tolérances</translation>
    </message>
    <message>
        <source>the start page is shown</source>
        <translation>la page d&apos;accueil est affichée</translation>
    </message>
    <message>
        <source>the status bar is shown</source>
        <translation>la barre d&apos;état est affichée</translation>
    </message>
    <message>
        <source>the status bar may have two lines</source>
        <translation>la barre d&apos;état peut avoir deux lignes</translation>
    </message>
    <message>
        <source>the step along polar tracking</source>
        <translation>le pas le long du repérage polaire</translation>
    </message>
    <message>
        <source>the step of polar tracking</source>
        <translation>le pas du repérage polaire</translation>
    </message>
    <message>
        <source>the step of sketches</source>
        <translation>le pas des esquisses</translation>
    </message>
    <message>
        <source>the steps of snap</source>
        <translation>les pas de la résolution</translation>
    </message>
    <message>
        <source>the style of details</source>
        <translation>le style des détails</translation>
    </message>
    <message>
        <source>the style of multilines</source>
        <translation>le style des multilignes</translation>
    </message>
    <message>
        <source>the style of new multileaders</source>
        <translation>le style des nouveaux repères multiples</translation>
    </message>
    <message>
        <source>the style of new tables</source>
        <translation>le style des nouveaux tableaux</translation>
    </message>
    <message>
        <source>the style of sections</source>
        <translation>le style des coupes</translation>
    </message>
    <message>
        <source>the style of texts</source>
        <translation>le style des textes</translation>
    </message>
    <message>
        <source>the symbol of the axes, as bits</source>
        <translation>le symbole des axes, en bits</translation>
    </message>
    <message>
        <source>the text around the number</source>
        <translation>le texte autour du nombre</translation>
    </message>
    <message>
        <source>the text around the second unit</source>
        <translation>le texte autour de la seconde unité</translation>
    </message>
    <message>
        <source>the text of a unit&apos;s parts</source>
        <translation>le texte des parties d&apos;une unité</translation>
    </message>
    <message>
        <source>the text of the second unit&apos;s parts</source>
        <translation>le texte des parties de la seconde unité</translation>
    </message>
    <message>
        <source>the text stands above the line</source>
        <translation>le texte se tient au-dessus de la ligne</translation>
    </message>
    <message>
        <source>the text that hangs at the pointer where MTEXT asks</source>
        <translation>le texte suspendu au pointeur quand MTEXT demande</translation>
    </message>
    <message>
        <source>the tint of gradients of one colour</source>
        <translation>la teinte des dégradés d&apos;une couleur</translation>
    </message>
    <message>
        <source>the tool palettes are open</source>
        <translation>les palettes d&apos;outils sont ouvertes</translation>
    </message>
    <message>
        <source>the transparency of new entities</source>
        <translation>la transparence des nouveaux objets</translation>
    </message>
    <message>
        <source>the transparency of new hatches; &quot;.&quot; is the current one</source>
        <translation>la transparence des nouvelles hachures&#xa0;; &quot;.&quot; est la transparence courante</translation>
    </message>
    <message>
        <source>the turn of snap and grid</source>
        <translation>la rotation de la résolution et de la grille</translation>
    </message>
    <message>
        <source>the turn of the view</source>
        <translation>la rotation de la vue</translation>
    </message>
    <message>
        <source>the unit of drawings that say none, when inserted</source>
        <translation>l&apos;unité des dessins qui n&apos;en disent pas, quand ils sont insérés</translation>
    </message>
    <message>
        <source>the unit of the drawing that says none</source>
        <translation>l&apos;unité du dessin qui n&apos;en dit pas</translation>
    </message>
    <message>
        <source>the upper tolerance</source>
        <translation>la tolérance supérieure</translation>
    </message>
    <message>
        <source>the user places the text</source>
        <translation>l&apos;utilisateur place le texte</translation>
    </message>
    <message>
        <source>the user&apos;s coordinate system is the world&apos;s</source>
        <translation>le système de coordonnées utilisateur est le système général</translation>
    </message>
    <message>
        <source>the user&apos;s name</source>
        <translation>le nom de l&apos;utilisateur</translation>
    </message>
    <message>
        <source>the user&apos;s own dictionary of spelling</source>
        <translation>le dictionnaire d&apos;orthographe de l&apos;utilisateur</translation>
    </message>
    <message>
        <source>the user&apos;s timer</source>
        <translation>le chronomètre de l&apos;utilisateur</translation>
    </message>
    <message>
        <source>the user&apos;s timer is on</source>
        <translation>le chronomètre de l&apos;utilisateur est en marche</translation>
    </message>
    <message>
        <source>the value of the current annotation scale</source>
        <translation>la valeur de l&apos;échelle d&apos;annotation courante</translation>
    </message>
    <message>
        <source>the version of bodies that are written</source>
        <translation>la version des corps écrits</translation>
    </message>
    <message>
        <source>the version of the drawing&apos;s file, as &quot;AC1032&quot;</source>
        <translation>la version du fichier de dessin, comme &quot;AC1032&quot;</translation>
    </message>
    <message>
        <source>the view is a perspective</source>
        <translation>la vue est une perspective</translation>
    </message>
    <message>
        <source>the viewport has layers with settings of its own</source>
        <translation>la fenêtre a des calques avec leurs propres réglages</translation>
    </message>
    <message>
        <source>the wheel button pans</source>
        <translation>le bouton de la molette déplace la vue</translation>
    </message>
    <message>
        <source>the width of POLYSOLID</source>
        <translation>la largeur de POLYSOLID</translation>
    </message>
    <message>
        <source>the width of polylines</source>
        <translation>la largeur des polylignes</translation>
    </message>
    <message>
        <source>the width of traces</source>
        <translation>la largeur des tracés larges</translation>
    </message>
    <message>
        <source>the workspace</source>
        <translation>l&apos;espace de travail</translation>
    </message>
    <message>
        <source>the x axis of the user&apos;s coordinate system</source>
        <translation>l&apos;axe x du système de coordonnées utilisateur</translation>
    </message>
    <message>
        <source>the y axis of the user&apos;s coordinate system</source>
        <translation>l&apos;axe y du système de coordonnées utilisateur</translation>
    </message>
    <message>
        <source>the zone of the drawing&apos;s place</source>
        <translation>le fuseau du lieu du dessin</translation>
    </message>
    <message>
        <source>their distance</source>
        <translation>leur distance</translation>
    </message>
    <message>
        <source>their distances</source>
        <translation>leurs distances</translation>
    </message>
    <message>
        <source>there are menus</source>
        <translation>il y a des menus</translation>
    </message>
    <message>
        <source>ticks along the axes, in early programs</source>
        <translation>graduations le long des axes, dans les premiers programmes</translation>
    </message>
    <message>
        <source>ticks of the clock, for measuring</source>
        <translation>battements de l&apos;horloge, pour mesurer</translation>
    </message>
    <message>
        <source>tips are shown</source>
        <translation>les infobulles sont affichées</translation>
    </message>
    <message>
        <source>tips on the keys beside the pointer</source>
        <translation>infobulles sur les touches au pointeur</translation>
    </message>
    <message>
        <source>tips on what is under the pointer</source>
        <translation>infobulles sur ce qui est sous le pointeur</translation>
    </message>
    <message>
        <source>tolerances are shown</source>
        <translation>les tolérances sont affichées</translation>
    </message>
    <message>
        <source>transparency is plotted</source>
        <translation>la transparence est tracée</translation>
    </message>
    <message>
        <source>transparency is shown</source>
        <translation>la transparence est affichée</translation>
    </message>
    <message>
        <source>typed coordinates go before object snap: never (0), always (1), not in scripts (2)</source>
        <translation>les coordonnées saisies l&apos;emportent sur l&apos;accrochage&#xa0;: jamais (0), toujours (1), sauf dans les scripts (2)</translation>
    </message>
    <message>
        <source>units of light</source>
        <translation>unités de lumière</translation>
    </message>
    <message>
        <source>unknown entities are told</source>
        <translation>les objets inconnus sont signalés</translation>
    </message>
    <message>
        <source>viewports keep their coordinate system</source>
        <translation>les fenêtres gardent leur système de coordonnées</translation>
    </message>
    <message>
        <source>views are made anew when needed</source>
        <translation>les vues sont régénérées au besoin</translation>
    </message>
    <message>
        <source>views count from the world (1) or the user&apos;s system (0)</source>
        <translation>les vues comptent depuis le système général (1) ou celui de l&apos;utilisateur (0)</translation>
    </message>
    <message>
        <source>views keep their coordinate system</source>
        <translation>les vues gardent leur système de coordonnées</translation>
    </message>
    <message>
        <source>what TRIM and EXTEND project on</source>
        <translation>sur quoi TRIM et EXTEND projettent</translation>
    </message>
    <message>
        <source>what a file&apos;s tab shows</source>
        <translation>ce que montre l&apos;onglet d&apos;un fichier</translation>
    </message>
    <message>
        <source>what commands make others of is erased</source>
        <translation>ce dont les commandes font autre chose est effacé</translation>
    </message>
    <message>
        <source>what fills the gaps of offset polylines</source>
        <translation>ce qui comble les lacunes des polylignes décalées</translation>
    </message>
    <message>
        <source>what goes out first where there is no room</source>
        <translation>ce qui sort d&apos;abord où la place manque</translation>
    </message>
    <message>
        <source>what happens to external drawings is logged</source>
        <translation>ce qui arrive aux dessins externes est consigné</translation>
    </message>
    <message>
        <source>what has changed since the drawing was saved, as bits</source>
        <translation>ce qui a changé depuis l&apos;enregistrement du dessin, en bits</translation>
    </message>
    <message>
        <source>what is asked when a block is defined again</source>
        <translation>ce qui est demandé quand un bloc est redéfini</translation>
    </message>
    <message>
        <source>what is chosen is added to what was</source>
        <translation>ce qui est choisi s&apos;ajoute à ce qui l&apos;était</translation>
    </message>
    <message>
        <source>what is chosen is drawn smoothly</source>
        <translation>ce qui est choisi est dessiné lisse</translation>
    </message>
    <message>
        <source>what is chosen is shown so</source>
        <translation>ce qui est choisi est montré comme tel</translation>
    </message>
    <message>
        <source>what is chosen of things that hide each other</source>
        <translation>ce qui est choisi d&apos;objets qui se cachent</translation>
    </message>
    <message>
        <source>what is cut off near the eye, as per cent</source>
        <translation>ce qui est coupé près de l&apos;œil, en pour cent</translation>
    </message>
    <message>
        <source>what is done after a crash</source>
        <translation>ce qui est fait après un plantage</translation>
    </message>
    <message>
        <source>what is not shown under the pointer, as bits</source>
        <translation>ce qui n&apos;est pas montré sous le pointeur, en bits</translation>
    </message>
    <message>
        <source>what is offered while one types</source>
        <translation>ce qui est proposé pendant la frappe</translation>
    </message>
    <message>
        <source>what is plotted in the background, as bits</source>
        <translation>ce qui est tracé en arrière-plan, en bits</translation>
    </message>
    <message>
        <source>what is shown while a grip is pulled, as bits</source>
        <translation>ce qui est montré pendant qu&apos;on tire une poignée, en bits</translation>
    </message>
    <message>
        <source>what is shown while attributes are edited</source>
        <translation>ce qui est montré pendant l&apos;édition d&apos;attributs</translation>
    </message>
    <message>
        <source>what is under the pointer is shown so</source>
        <translation>ce qui est sous le pointeur est montré comme tel</translation>
    </message>
    <message>
        <source>what is under way: a command (1), transparent one (2), script (4), dialog (8), Lisp (32)</source>
        <translation>ce qui est en cours&#xa0;: une commande (1), transparente (2), script (4), boîte de dialogue (8), Lisp (32)</translation>
    </message>
    <message>
        <source>what keeps to the drawing order</source>
        <translation>ce qui respecte l&apos;ordre de tracé</translation>
    </message>
    <message>
        <source>what keeps to the order of the file, as bits</source>
        <translation>ce qui respecte l&apos;ordre du fichier, en bits</translation>
    </message>
    <message>
        <source>what layouts keep ready</source>
        <translation>ce que les présentations tiennent prêt</translation>
    </message>
    <message>
        <source>what lengths are rounded to</source>
        <translation>à quoi les longueurs sont arrondies</translation>
    </message>
    <message>
        <source>what lies above each other is offered</source>
        <translation>ce qui est superposé est proposé</translation>
    </message>
    <message>
        <source>what menus echo, as bits</source>
        <translation>ce que les menus affichent, en bits</translation>
    </message>
    <message>
        <source>what moves with the text</source>
        <translation>ce qui se déplace avec le texte</translation>
    </message>
    <message>
        <source>what new drawings do</source>
        <translation>ce que font les nouveaux dessins</translation>
    </message>
    <message>
        <source>what object snap leaves out, as bits</source>
        <translation>ce que l&apos;accrochage aux objets laisse de côté, en bits</translation>
    </message>
    <message>
        <source>what orthographic settings count from</source>
        <translation>depuis quoi comptent les réglages orthogonaux</translation>
    </message>
    <message>
        <source>what relative links start from</source>
        <translation>d&apos;où partent les liens relatifs</translation>
    </message>
    <message>
        <source>what similar means, as bits</source>
        <translation>ce que veut dire semblable, en bits</translation>
    </message>
    <message>
        <source>what the picture in the file shows</source>
        <translation>ce que montre l&apos;image dans le fichier</translation>
    </message>
    <message>
        <source>what the program shows at its start</source>
        <translation>ce que montre le programme à son démarrage</translation>
    </message>
    <message>
        <source>what the screen shows</source>
        <translation>ce que montre l&apos;écran</translation>
    </message>
    <message>
        <source>what the second unit is rounded to</source>
        <translation>à quoi la seconde unité est arrondie</translation>
    </message>
    <message>
        <source>what the view is: perspective, clipped, ..., as bits</source>
        <translation>ce qu&apos;est la vue&#xa0;: perspective, délimitée, ..., en bits</translation>
    </message>
    <message>
        <source>what the view looks at</source>
        <translation>ce que regarde la vue</translation>
    </message>
    <message>
        <source>when coordinates are shown beside the pointer</source>
        <translation>quand les coordonnées sont montrées au pointeur</translation>
    </message>
    <message>
        <source>when fields are evaluated, as bits</source>
        <translation>quand les champs sont évalués, en bits</translation>
    </message>
    <message>
        <source>when it was made, in world time</source>
        <translation>quand il a été créé, en temps universel</translation>
    </message>
    <message>
        <source>when it was saved last</source>
        <translation>quand il a été enregistré en dernier</translation>
    </message>
    <message>
        <source>when it was saved last, in world time</source>
        <translation>quand il a été enregistré en dernier, en temps universel</translation>
    </message>
    <message>
        <source>when links to tables are checked</source>
        <translation>quand les liens aux tableaux sont contrôlés</translation>
    </message>
    <message>
        <source>when modules of other makers are loaded, as bits</source>
        <translation>quand les modules d&apos;autres fabricants sont chargés, en bits</translation>
    </message>
    <message>
        <source>when new layers are looked for</source>
        <translation>quand les nouveaux calques sont recherchés</translation>
    </message>
    <message>
        <source>when new layers are told, as bits</source>
        <translation>quand les nouveaux calques sont signalés, en bits</translation>
    </message>
    <message>
        <source>when the drawing was made</source>
        <translation>quand le dessin a été créé</translation>
    </message>
    <message>
        <source>when the pointer snaps to the grid</source>
        <translation>quand le pointeur s&apos;accroche à la grille</translation>
    </message>
    <message>
        <source>where a hatch like another has its origin</source>
        <translation>où une hachure semblable à une autre a son origine</translation>
    </message>
    <message>
        <source>where angles count from, from the x axis</source>
        <translation>d&apos;où comptent les angles, depuis l&apos;axe x</translation>
    </message>
    <message>
        <source>where earlier input is offered, as bits</source>
        <translation>où les saisies antérieures sont proposées, en bits</translation>
    </message>
    <message>
        <source>where multilines lie on their points: top, middle, bottom</source>
        <translation>où les multilignes se tiennent sur leurs points&#xa0;: haut, milieu, bas</translation>
    </message>
    <message>
        <source>where new hatches lie in the drawing order</source>
        <translation>où se placent les nouvelles hachures dans l&apos;ordre de tracé</translation>
    </message>
    <message>
        <source>where north is, from the y axis</source>
        <translation>où est le nord, depuis l&apos;axe y</translation>
    </message>
    <message>
        <source>where on earth the drawing is</source>
        <translation>où sur terre se trouve le dessin</translation>
    </message>
    <message>
        <source>where quick properties are shown</source>
        <translation>où les propriétés rapides sont affichées</translation>
    </message>
    <message>
        <source>where the grid is of dots, as bits</source>
        <translation>où la grille est faite de points, en bits</translation>
    </message>
    <message>
        <source>where the origin of hatches lies</source>
        <translation>où se trouve l&apos;origine des hachures</translation>
    </message>
    <message>
        <source>where the sign of an arc&apos;s length stands</source>
        <translation>où se tient le signe d&apos;une longueur d&apos;arc</translation>
    </message>
    <message>
        <source>where the text stands along the line</source>
        <translation>où se tient le texte le long de la ligne</translation>
    </message>
    <message>
        <source>where the view is seen from</source>
        <translation>d&apos;où la vue est regardée</translation>
    </message>
    <message>
        <source>where to look for what knows them</source>
        <translation>où chercher ce qui les connaît</translation>
    </message>
    <message>
        <source>where tolerances stand beside the number</source>
        <translation>où se tiennent les tolérances à côté du nombre</translation>
    </message>
    <message>
        <source>which changes of the view are smooth</source>
        <translation>quels changements de vue se font en douceur</translation>
    </message>
    <message>
        <source>which extents count</source>
        <translation>quelles étendues comptent</translation>
    </message>
    <message>
        <source>which islands a hatch leaves out</source>
        <translation>quels îlots une hachure laisse de côté</translation>
    </message>
    <message>
        <source>which parts of solids are chosen</source>
        <translation>quelles parties de solides sont choisies</translation>
    </message>
    <message>
        <source>which pictures in the file are kept up</source>
        <translation>quelles images du fichier sont tenues à jour</translation>
    </message>
    <message>
        <source>which questions commands leave out</source>
        <translation>quelles questions les commandes laissent de côté</translation>
    </message>
    <message>
        <source>which tips beside the pointer take its settings</source>
        <translation>quelles infobulles au pointeur prennent ses réglages</translation>
    </message>
    <message>
        <source>which tool bars and panels are fixed</source>
        <translation>quelles barres d&apos;outils et quels panneaux sont fixes</translation>
    </message>
    <message>
        <source>which way the wheel zooms</source>
        <translation>dans quel sens zoome la molette</translation>
    </message>
    <message>
        <source>why a function of Lisp failed, as a number</source>
        <translation>pourquoi une fonction Lisp a échoué, en nombre</translation>
    </message>
    <message>
        <source>windows are dragged</source>
        <translation>les fenêtres sont tirées</translation>
    </message>
    <message>
        <source>windows of selections are filled</source>
        <translation>les fenêtres de sélection sont remplies</translation>
    </message>
    <message>
        <source>with more boundaries than this HATCH warns</source>
        <translation>avec plus de contours que cela, HATCH avertit</translation>
    </message>
    <message>
        <source>with more entities than this no grips are shown</source>
        <translation>avec plus d&apos;objets que cela, aucune poignée n&apos;est affichée</translation>
    </message>
    <message>
        <source>words of object snap replace the running modes</source>
        <translation>les mots d&apos;accrochage remplacent les modes actifs</translation>
    </message>
    <message>
        <source>zeros of angles</source>
        <translation>zéros des angles</translation>
    </message>
    <message>
        <source>zeros of lengths</source>
        <translation>zéros des longueurs</translation>
    </message>
    <message>
        <source>zeros of the second unit</source>
        <translation>zéros de la seconde unité</translation>
    </message>
    <message>
        <source>zeros of tolerances</source>
        <translation>zéros des tolérances</translation>
    </message>
    <message>
        <source>zeros of tolerances in the second unit</source>
        <translation>zéros des tolérances dans la seconde unité</translation>
    </message>
</context>
<context>
    <name>Inspecting</name>
    <message>
        <source>%1: what is mended is not written over the drawing</source>
        <translation>%1&#xa0;: ce qui est réparé n&apos;est pas écrit par-dessus le dessin</translation>
    </message>
    <message>
        <source>not read</source>
        <translation>non lu</translation>
    </message>
    <message>
        <source>sound</source>
        <translation>sain</translation>
    </message>
    <message>
        <source>, opens with --recover alone</source>
        <translation>, ne s&apos;ouvre qu&apos;avec --recover</translation>
    </message>
    <message>
        <source>and %1 more</source>
        <translation>et %1 de plus</translation>
    </message>
    <message>
        <source> and %1 more</source>
        <translation> et %1 de plus</translation>
    </message>
    <message>
        <source>%1 bytes</source>
        <translation>%1 octets</translation>
    </message>
    <message>
        <source>by %1</source>
        <translation>par %1</translation>
    </message>
    <message>
        <source>begun %1</source>
        <translation>commencé %1</translation>
    </message>
    <message>
        <source>the file says %1</source>
        <translation>le fichier dit %1</translation>
    </message>
    <message>
        <source>; %1 in blocks</source>
        <translation>; %1 dans des blocs</translation>
    </message>
    <message>
        <source> off</source>
        <translation> inactif</translation>
    </message>
    <message>
        <source> frozen</source>
        <translation> gelé</translation>
    </message>
    <message>
        <source> locked</source>
        <translation> verrouillé</translation>
    </message>
    <message>
        <source> (not found: %1)</source>
        <translation> (introuvable&#xa0;: %1)</translation>
    </message>
    <message>
        <source> (not found)</source>
        <translation> (introuvable)</translation>
    </message>
    <message>
        <source>none</source>
        <translation>aucun</translation>
    </message>
    <message>
        <source>, %1 records without</source>
        <translation>, %1 enregistrements sans</translation>
    </message>
    <message>
        <source>, %1 twice</source>
        <translation>, %1 en double</translation>
    </message>
    <message>
        <source>, the next one (%1) is taken</source>
        <translation>, le suivant (%1) est pris</translation>
    </message>
    <message>
        <source>format</source>
        <translation>format</translation>
    </message>
    <message>
        <source>title</source>
        <translation>titre</translation>
    </message>
    <message>
        <source>author</source>
        <translation>auteur</translation>
    </message>
    <message>
        <source>saved</source>
        <translation>enregistré</translation>
    </message>
    <message>
        <source>units</source>
        <translation>unités</translation>
    </message>
    <message>
        <source>extents</source>
        <translation>étendue</translation>
    </message>
    <message>
        <source>entities</source>
        <translation>objets</translation>
    </message>
    <message>
        <source>layers</source>
        <translation>calques</translation>
    </message>
    <message>
        <source>blocks</source>
        <translation>blocs</translation>
    </message>
    <message>
        <source>layouts</source>
        <translation>présentations</translation>
    </message>
    <message>
        <source>text styles</source>
        <translation>styles de texte</translation>
    </message>
    <message>
        <source>fonts</source>
        <translation>polices</translation>
    </message>
    <message>
        <source>linetypes</source>
        <translation>types de ligne</translation>
    </message>
    <message>
        <source>dimensions</source>
        <translation>cotes</translation>
    </message>
    <message>
        <source>files</source>
        <translation>fichiers</translation>
    </message>
    <message>
        <source>classes</source>
        <translation>classes</translation>
    </message>
    <message>
        <source>proxies</source>
        <translation>proxys</translation>
    </message>
    <message>
        <source>handles</source>
        <translation>identificateurs</translation>
    </message>
    <message>
        <source>faults: %1</source>
        <translation>défauts : %1</translation>
    </message>
</context>
<context>
    <name>Kernel</name>
    <message>
        <source>%1 has no file yet.</source>
        <translation>%1 n&apos;a pas encore de fichier.</translation>
    </message>
    <message>
        <source>
More files that the drawing names were not read.
</source>
        <translation>
D&apos;autres fichiers que nomme le dessin n&apos;ont pas été lus.
</translation>
    </message>
    <message>
        <source>
%1 was not read: %2.
</source>
        <translation>
%1 n&apos;a pas été lu&#xa0;: %2.
</translation>
    </message>
    <message>
        <source>%1 (recovered)</source>
        <translation>%1 (récupéré)</translation>
    </message>
    <message>
        <source>
Saving this drawing was broken off once. What was to be saved is in %1; the drawing&apos;s own file may have only a part of it.
</source>
        <translation>
L&apos;enregistrement de ce dessin a été interrompu une fois. Ce qui devait être enregistré est dans %1&#xa0;; le fichier du dessin lui-même n&apos;en a peut-être qu&apos;une partie.
</translation>
    </message>
    <message>
        <source>The document has no Lisp engine.</source>
        <translation>Le document n&apos;a pas de moteur Lisp.</translation>
    </message>
    <message>
        <source>Unknown command &quot;%1&quot;.</source>
        <translation>Commande inconnue &quot;%1&quot;.</translation>
    </message>
    <message>
        <source>%1 was cancelled.</source>
        <translation>%1 a été annulé.</translation>
    </message>
    <message>
        <source>%1: %2; nothing was changed.</source>
        <translation>%1&#xa0;: %2&#xa0;; rien n&apos;a été modifié.</translation>
    </message>
    <message>
        <source>%1 stays open while a session is played on it.</source>
        <translation>%1 reste ouvert pendant qu&apos;une session s&apos;y joue.</translation>
    </message>
    <message>
        <source>%1 was not closed: it was changed since.</source>
        <translation>%1 n&apos;a pas été fermé&#xa0;: il a été modifié depuis.</translation>
    </message>
    <message>
        <source>%1 was not closed: a program of it runs.</source>
        <translation>%1 n&apos;a pas été fermé&#xa0;: l&apos;un de ses programmes s&apos;exécute.</translation>
    </message>
    <message>
        <source>%1: %2 done, %3 skipped</source>
        <translation>%1&#xa0;: %2 faits, %3 ignorés</translation>
    </message>
    <message>
        <source>and %1 more
</source>
        <translation>et %1 de plus
</translation>
    </message>
    <message>
        <source>
*Cancel*
</source>
        <translation>
*Annulé*
</translation>
    </message>
    <message>
        <source>This cannot be allowed here: %1.</source>
        <translation>Cela ne peut pas être autorisé ici&#xa0;: %1.</translation>
    </message>
    <message>
        <source>The folder cannot be trusted: everyone may write to it, or its name has a &quot;;&quot;.</source>
        <translation>On ne peut pas faire confiance à ce dossier&#xa0;: tout le monde peut y écrire, ou son nom contient un &quot;;&quot;.</translation>
    </message>
    <message>
        <source>The list cannot be kept in %1.</source>
        <translation>La liste ne peut pas être conservée dans %1.</translation>
    </message>
    <message>
        <source>its folder is not trusted</source>
        <translation>son dossier n&apos;est pas de confiance</translation>
    </message>
    <message>
        <source>everyone may write to %1</source>
        <translation>tout le monde peut écrire dans %1</translation>
    </message>
    <message>
        <source>
TRUSTEDPATHS cannot be kept in %1.
</source>
        <translation>
TRUSTEDPATHS ne peut pas être conservé dans %1.
</translation>
    </message>
    <message>
        <source>
%1 was not loaded: %2. TRUSTEDPATHS, or the option --trust, names folders whose programs may run.
</source>
        <translation>
%1 n&apos;a pas été chargé&#xa0;: %2. TRUSTEDPATHS, ou l&apos;option --trust, nomme les dossiers dont les programmes peuvent s&apos;exécuter.
</translation>
    </message>
    <message>
        <source>%1 was opened for reading only; save it under another name.</source>
        <translation>%1 a été ouvert en lecture seule&#xa0;; enregistrez-le sous un autre nom.</translation>
    </message>
    <message>
        <source>%1 was changed by another program since it was opened or saved here.</source>
        <translation>%1 a été modifié par un autre programme depuis qu&apos;il a été ouvert ou enregistré ici.</translation>
    </message>
    <message>
        <source>%1 is not there any more.</source>
        <translation>%1 n&apos;existe plus.</translation>
    </message>
    <message>
        <source>%1 is the damaged file that this drawing was recovered from; save it under another name.</source>
        <translation>%1 est le fichier endommagé d&apos;où ce dessin a été récupéré&#xa0;; enregistrez-le sous un autre nom.</translation>
    </message>
    <message>
        <source>%1 leads to another file than when it was opened or saved here.</source>
        <translation>%1 mène à un autre fichier que lorsqu&apos;il a été ouvert ou enregistré ici.</translation>
    </message>
    <message>
        <source>%1 is open in this program; close it first, or give another name.</source>
        <translation>%1 est ouvert dans ce programme&#xa0;; fermez-le d&apos;abord, ou donnez un autre nom.</translation>
    </message>
    <message>
        <source>%1 is open in another program (%2).</source>
        <translation>%1 est ouvert dans un autre programme (%2).</translation>
    </message>
    <message>
        <source> of </source>
        <translation> de </translation>
    </message>
    <message>
        <source> (need %1): </source>
        <translation> (besoin de %1)&#xa0;: </translation>
    </message>
    <message>
        <source>
Second point of mid: </source>
        <translation>
Second point du milieu&#xa0;: </translation>
    </message>
    <message>
        <source>
First point of mid: </source>
        <translation>
Premier point du milieu&#xa0;: </translation>
    </message>
    <message>
        <source>&lt;Offset&gt;: </source>
        <translation>&lt;Décalage&gt;&#xa0;: </translation>
    </message>
    <message>
        <source>
Base point: </source>
        <translation>
Point de base&#xa0;: </translation>
    </message>
    <message>
        <source>
Next point (Press ENTER to end tracking): </source>
        <translation>
Point suivant (ENTRÉE termine le repérage)&#xa0;: </translation>
    </message>
    <message>
        <source>
First tracking point: </source>
        <translation>
Premier point de repérage&#xa0;: </translation>
    </message>
    <message>
        <source>
Specify point: </source>
        <translation>
Spécifiez un point&#xa0;: </translation>
    </message>
    <message>
        <source>
Specify temporary tracking point: </source>
        <translation>
Spécifiez un point de repérage temporaire&#xa0;: </translation>
    </message>
    <message>
        <source>Requires an integer value or option keyword.</source>
        <translation>Un nombre entier ou un mot-clé est nécessaire.</translation>
    </message>
    <message>
        <source>Requires numeric value or option keyword.</source>
        <translation>Un nombre ou un mot-clé est nécessaire.</translation>
    </message>
    <message>
        <source>Requires numeric distance, two points, or option keyword.</source>
        <translation>Une distance numérique, deux points ou un mot-clé est nécessaire.</translation>
    </message>
    <message>
        <source>Requires valid numeric angle, two points, or option keyword.</source>
        <translation>Un angle numérique valide, deux points ou un mot-clé est nécessaire.</translation>
    </message>
    <message>
        <source>Point or option keyword required.</source>
        <translation>Un point ou un mot-clé est nécessaire.</translation>
    </message>
    <message>
        <source>Requires an integer value.</source>
        <translation>Un nombre entier est nécessaire.</translation>
    </message>
    <message>
        <source>Requires numeric value.</source>
        <translation>Un nombre est nécessaire.</translation>
    </message>
    <message>
        <source>Requires numeric distance or two points.</source>
        <translation>Une distance numérique ou deux points sont nécessaires.</translation>
    </message>
    <message>
        <source>Requires valid numeric angle or two points.</source>
        <translation>Un angle numérique valide ou deux points sont nécessaires.</translation>
    </message>
    <message>
        <source>Invalid option keyword.</source>
        <translation>Mot-clé non valide.</translation>
    </message>
    <message>
        <source>Expects a point or %1.</source>
        <translation>Un point ou %1 est attendu.</translation>
    </message>
    <message>
        <source>Invalid input.</source>
        <translation>Saisie non valide.</translation>
    </message>
    <message>
        <source>Invalid point.</source>
        <translation>Point non valide.</translation>
    </message>
    <message>
        <source>Value must be nonzero.</source>
        <translation>La valeur ne doit pas être nulle.</translation>
    </message>
    <message>
        <source>Value must not be negative.</source>
        <translation>La valeur ne doit pas être négative.</translation>
    </message>
    <message>
        <source>**Outside limits</source>
        <translation>**Hors des limites</translation>
    </message>
    <message>
        <source>
Specify second point: </source>
        <translation>
Spécifiez le second point&#xa0;: </translation>
    </message>
    <message>
        <source> to </source>
        <translation> à </translation>
    </message>
    <message>
        <source>
Angle Override: </source>
        <translation>
Angle imposé&#xa0;: </translation>
    </message>
    <message>
        <source>No %1 found for specified point.</source>
        <translation>Introuvable au point spécifié&#xa0;: %1.</translation>
    </message>
    <message>
        <source>
Enter group name: </source>
        <translation>
Entrez le nom du groupe&#xa0;: </translation>
    </message>
    <message>
        <source>
Remove objects: </source>
        <translation>
Retirez des objets&#xa0;: </translation>
    </message>
    <message>
        <source>
First point: </source>
        <translation>
Premier point&#xa0;: </translation>
    </message>
    <message>
        <source>
Specify first corner: </source>
        <translation>
Spécifiez le premier coin&#xa0;: </translation>
    </message>
    <message>
        <source>
Next point: </source>
        <translation>
Point suivant&#xa0;: </translation>
    </message>
    <message>
        <source>
Specify opposite corner: </source>
        <translation>
Spécifiez le coin opposé&#xa0;: </translation>
    </message>
    <message>
        <source>
Command has been completely undone.</source>
        <translation>
La commande a été entièrement annulée.</translation>
    </message>
    <message>
        <source>
Cannot find group &quot;%1&quot;.</source>
        <translation>
Groupe &quot;%1&quot; introuvable.</translation>
    </message>
    <message>
        <source>
%1 found</source>
        <translation>
%1 trouvé(s)</translation>
    </message>
    <message>
        <source>
%1 found, %2 total</source>
        <translation>
%1 trouvé(s), %2 au total</translation>
    </message>
    <message>
        <source>
Select objects: </source>
        <translation>
Sélectionnez des objets&#xa0;: </translation>
    </message>
    <message>
        <source>endpoint</source>
        <translation>extrémité</translation>
    </message>
    <message>
        <source>midpoint</source>
        <translation>milieu</translation>
    </message>
    <message>
        <source>center</source>
        <translation>centre</translation>
    </message>
    <message>
        <source>node</source>
        <translation>nodal</translation>
    </message>
    <message>
        <source>quadrant</source>
        <translation>quadrant</translation>
    </message>
    <message>
        <source>intersection</source>
        <translation>intersection</translation>
    </message>
    <message>
        <source>insertion point</source>
        <translation>point d&apos;insertion</translation>
    </message>
    <message>
        <source>perpendicular</source>
        <translation>perpendiculaire</translation>
    </message>
    <message>
        <source>tangent</source>
        <translation>tangente</translation>
    </message>
    <message>
        <source>nearest point</source>
        <translation>proche</translation>
    </message>
    <message>
        <source>quick</source>
        <translation>rapide</translation>
    </message>
    <message>
        <source>apparent intersection</source>
        <translation>intersection projetée</translation>
    </message>
    <message>
        <source>extension</source>
        <translation>prolongement</translation>
    </message>
    <message>
        <source>parallel</source>
        <translation>parallèle</translation>
    </message>
    <message>
        <source>none</source>
        <translation>aucun</translation>
    </message>
    <message>
        <source>
The rest of what was typed ahead is left out.
</source>
        <translation>
Le reste de ce qui a été saisi d&apos;avance est omis.
</translation>
    </message>
    <message>
        <source>
Nobody is there to answer &quot;%1&quot;: cancelled.
</source>
        <translation>
Personne n&apos;est là pour répondre à &quot;%1&quot;&#xa0;: annulé.
</translation>
    </message>
    <message>
        <source>*Cancel*
</source>
        <translation>*Annulé*
</translation>
    </message>
    <message>
        <source>No help page.</source>
        <translation>Pas de page d&apos;aide.</translation>
    </message>
    <message>
        <source>it is no module (odrxGetAPIVersion is missing)</source>
        <translation>ce n&apos;est pas un module (odrxGetAPIVersion manque)</translation>
    </message>
    <message>
        <source>it was built for version %1 of the interface, this host has %2</source>
        <translation>il a été construit pour la version %1 de l&apos;interface, cet hôte a la version %2</translation>
    </message>
    <message>
        <source>it is no module (odrxCreateModuleObject is missing)</source>
        <translation>ce n&apos;est pas un module (odrxCreateModuleObject manque)</translation>
    </message>
    <message>
        <source>it made no module object</source>
        <translation>il n&apos;a pas créé d&apos;objet de module</translation>
    </message>
    <message>
        <source>there is no memory for its module object</source>
        <translation>il n&apos;y a pas de mémoire pour son objet de module</translation>
    </message>
    <message>
        <source>Cannot load %1: %2</source>
        <translation>Impossible de charger %1&#xa0;: %2</translation>
    </message>
    <message>
        <source>
%1 cannot run while another command is under way.</source>
        <translation>
%1 ne peut pas s&apos;exécuter pendant qu&apos;une autre commande est en cours.</translation>
    </message>
    <message>
        <source>
%1: the setting cannot be written to %2.
</source>
        <translation>
%1&#xa0;: le paramètre ne peut pas être écrit dans %2.
</translation>
    </message>
    <message>
        <source>The command aliases in %1 cannot be read: %2 The ones before stay in use.</source>
        <translation>Les alias de commandes dans %1 ne peuvent pas être lus&#xa0;: %2 Les précédents restent en usage.</translation>
    </message>
    <message>
        <source>The numbers are too large.</source>
        <translation>Les nombres sont trop grands.</translation>
    </message>
    <message>
        <source>
%1 has ended, nothing was changed.</source>
        <translation>
%1 est terminé, rien n&apos;a été modifié.</translation>
    </message>
    <message>
        <source>
** That command may not be invoked transparently **
</source>
        <translation>
** Cette commande ne peut pas être appelée en transparence **
</translation>
    </message>
    <message>
        <source>
Resuming %1 command.
</source>
        <translation>
Reprise de la commande %1.
</translation>
    </message>
    <message>
        <source>
%1 cannot be kept.
</source>
        <translation>
%1 ne peut pas être conservé.
</translation>
    </message>
    <message>
        <source>
The user&apos;s settings cannot be kept.
</source>
        <translation>
Les paramètres de l&apos;utilisateur ne peuvent pas être conservés.
</translation>
    </message>
    <message>
        <source>%1 is a DWG file, which this program reads but does not write; give the drawing another name.</source>
        <translation>%1 est un fichier DWG, que ce programme lit mais n&apos;écrit pas ; donnez un autre nom au dessin.</translation>
    </message>
</context>
<context>
    <name>Keywords</name>
    <message>
        <source>2points</source>
        <translation>2points</translation>
    </message>
    <message>
        <source>3point</source>
        <translation>3Points</translation>
    </message>
    <message>
        <source>3points</source>
        <translation>3points</translation>
    </message>
    <message>
        <source>ALL</source>
        <translation>TOUT</translation>
    </message>
    <message>
        <source>ALl</source>
        <translation>TOut</translation>
    </message>
    <message>
        <source>ANnotative</source>
        <translation>ANnotatif</translation>
    </message>
    <message>
        <source>AUto</source>
        <translation>AUto</translation>
    </message>
    <message>
        <source>Above</source>
        <translation>Sur</translation>
    </message>
    <message>
        <source>Above objects</source>
        <translation>auDessus d&apos;objets</translation>
    </message>
    <message>
        <source>Add</source>
        <translation>Ajouter</translation>
    </message>
    <message>
        <source>Add area</source>
        <translation>Ajouter</translation>
    </message>
    <message>
        <source>Add leaders</source>
        <translation>Ajouter</translation>
    </message>
    <message>
        <source>Advanced</source>
        <translation>aVAncé</translation>
    </message>
    <message>
        <source>Advanced options</source>
        <translation>aVAncé</translation>
    </message>
    <message>
        <source>All</source>
        <translation>TOut</translation>
    </message>
    <message>
        <source>Ang</source>
        <translation>Ang</translation>
    </message>
    <message>
        <source>Angle</source>
        <translation>Angle</translation>
    </message>
    <message>
        <source>Annotation</source>
        <translation>aNnotation</translation>
    </message>
    <message>
        <source>Annotative</source>
        <translation>annOtatif</translation>
    </message>
    <message>
        <source>Anyway</source>
        <translation>Quand même</translation>
    </message>
    <message>
        <source>Apply</source>
        <translation>APpliquer</translation>
    </message>
    <message>
        <source>Arc</source>
        <translation>ARc</translation>
    </message>
    <message>
        <source>Arc length</source>
        <translation>Longueur d&apos;arc</translation>
    </message>
    <message>
        <source>Area</source>
        <translation>aIre</translation>
    </message>
    <message>
        <source>Array</source>
        <translation>Réseau</translation>
    </message>
    <message>
        <source>Arrow</source>
        <translation>Flèche</translation>
    </message>
    <message>
        <source>As</source>
        <translation>Comme</translation>
    </message>
    <message>
        <source>As displayed</source>
        <translation>comme Affiché</translation>
    </message>
    <message>
        <source>Aspect</source>
        <translation>aSPect</translation>
    </message>
    <message>
        <source>Associativity</source>
        <translation>ASsociativité</translation>
    </message>
    <message>
        <source>At least</source>
        <translation>aU moins</translation>
    </message>
    <message>
        <source>Attach</source>
        <translation>Attacher</translation>
    </message>
    <message>
        <source>Auto</source>
        <translation>Auto</translation>
    </message>
    <message>
        <source>BAck</source>
        <translation>arRière</translation>
    </message>
    <message>
        <source>BC</source>
        <translation>BC</translation>
    </message>
    <message>
        <source>BEgin</source>
        <translation>Début</translation>
    </message>
    <message>
        <source>BL</source>
        <translation>BG</translation>
    </message>
    <message>
        <source>BOX</source>
        <translation>BOîte</translation>
    </message>
    <message>
        <source>BR</source>
        <translation>BD</translation>
    </message>
    <message>
        <source>BYBlock</source>
        <translation>DUBloc</translation>
    </message>
    <message>
        <source>BYLayer</source>
        <translation>DUCalque</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>arRière</translation>
    </message>
    <message>
        <source>Base</source>
        <translation>Base</translation>
    </message>
    <message>
        <source>Base point</source>
        <translation>point de Base</translation>
    </message>
    <message>
        <source>Below</source>
        <translation>soUs</translation>
    </message>
    <message>
        <source>Binary</source>
        <translation>Binaire</translation>
    </message>
    <message>
        <source>Bind</source>
        <translation>Lier</translation>
    </message>
    <message>
        <source>Bisect</source>
        <translation>Bissectrice</translation>
    </message>
    <message>
        <source>Block</source>
        <translation>Bloc</translation>
    </message>
    <message>
        <source>Block selection</source>
        <translation>sélection de Blocs</translation>
    </message>
    <message>
        <source>Blocks</source>
        <translation>Blocs</translation>
    </message>
    <message>
        <source>Both</source>
        <translation>Deux</translation>
    </message>
    <message>
        <source>Bottom</source>
        <translation>Bas</translation>
    </message>
    <message>
        <source>Boundaries</source>
        <translation>COntours</translation>
    </message>
    <message>
        <source>Boundary</source>
        <translation>Contour</translation>
    </message>
    <message>
        <source>Boundary set</source>
        <translation>Jeu de contours</translation>
    </message>
    <message>
        <source>Break</source>
        <translation>cOuper</translation>
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
        <translation>CEntre</translation>
    </message>
    <message>
        <source>CLose</source>
        <translation>CLore</translation>
    </message>
    <message>
        <source>COlor</source>
        <translation>COuleur</translation>
    </message>
    <message>
        <source>COlorbook</source>
        <translation>NUancier</translation>
    </message>
    <message>
        <source>CPolygon</source>
        <translation>CPolygone</translation>
    </message>
    <message>
        <source>CV</source>
        <translation>PC</translation>
    </message>
    <message>
        <source>Calligraphy</source>
        <translation>Calligraphie</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annuler</translation>
    </message>
    <message>
        <source>Center</source>
        <translation>Centre</translation>
    </message>
    <message>
        <source>Chamfer</source>
        <translation>CHanfrein</translation>
    </message>
    <message>
        <source>Change</source>
        <translation>Modifier</translation>
    </message>
    <message>
        <source>Chord</source>
        <translation>Corde</translation>
    </message>
    <message>
        <source>Circumscribed about circle</source>
        <translation>Circonscrit au cercle</translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>Effacer</translation>
    </message>
    <message>
        <source>Clear overrides</source>
        <translation>Effacer</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Clore</translation>
    </message>
    <message>
        <source>Color</source>
        <translation>COuleur</translation>
    </message>
    <message>
        <source>Columns</source>
        <translation>COlonnes</translation>
    </message>
    <message>
        <source>Combine</source>
        <translation>COmbiner</translation>
    </message>
    <message>
        <source>Commands</source>
        <translation>COmmandes</translation>
    </message>
    <message>
        <source>Constant</source>
        <translation>Constant</translation>
    </message>
    <message>
        <source>Content</source>
        <translation>COntenu</translation>
    </message>
    <message>
        <source>Content first</source>
        <translation>COntenu d&apos;abord</translation>
    </message>
    <message>
        <source>Content type</source>
        <translation>COntenu</translation>
    </message>
    <message>
        <source>Control</source>
        <translation>Contrôle</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>COpier</translation>
    </message>
    <message>
        <source>Corner</source>
        <translation>Coin</translation>
    </message>
    <message>
        <source>Create</source>
        <translation>Créer</translation>
    </message>
    <message>
        <source>Crossing</source>
        <translation>CApture</translation>
    </message>
    <message>
        <source>Current</source>
        <translation>Courant</translation>
    </message>
    <message>
        <source>Current ucs</source>
        <translation>scu Courant</translation>
    </message>
    <message>
        <source>DElta</source>
        <translation>écArt</translation>
    </message>
    <message>
        <source>DEtailviewstyles</source>
        <translation>DEtail</translation>
    </message>
    <message>
        <source>DIsassociate</source>
        <translation>DIssocier</translation>
    </message>
    <message>
        <source>DRaw</source>
        <translation>ORdre</translation>
    </message>
    <message>
        <source>DRaw order</source>
        <translation>ORdre</translation>
    </message>
    <message>
        <source>DXF</source>
        <translation>DXF</translation>
    </message>
    <message>
        <source>DYnamic</source>
        <translation>DYnamique</translation>
    </message>
    <message>
        <source>Decurve</source>
        <translation>Délisser</translation>
    </message>
    <message>
        <source>Default</source>
        <translation>Default</translation>
    </message>
    <message>
        <source>Degree</source>
        <translation>DEgré</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>SUpprimer</translation>
    </message>
    <message>
        <source>Description</source>
        <translation>Description</translation>
    </message>
    <message>
        <source>Detach</source>
        <translation>Détacher</translation>
    </message>
    <message>
        <source>Diameter</source>
        <translation>Diamètre</translation>
    </message>
    <message>
        <source>Dimensions</source>
        <translation>COtes</translation>
    </message>
    <message>
        <source>Dimstyle</source>
        <translation>stylecOte</translation>
    </message>
    <message>
        <source>Dimstyles</source>
        <translation>stylescOte</translation>
    </message>
    <message>
        <source>Direction</source>
        <translation>Direction</translation>
    </message>
    <message>
        <source>Displacement</source>
        <translation>Déplacement</translation>
    </message>
    <message>
        <source>Display</source>
        <translation>éCran</translation>
    </message>
    <message>
        <source>Distance</source>
        <translation>Distance</translation>
    </message>
    <message>
        <source>Distribute</source>
        <translation>Distribuer</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>Terminé</translation>
    </message>
    <message>
        <source>Dynamic</source>
        <translation>Dynamique</translation>
    </message>
    <message>
        <source>EXport</source>
        <translation>EXporter</translation>
    </message>
    <message>
        <source>Edge</source>
        <translation>Côté</translation>
    </message>
    <message>
        <source>Edit</source>
        <translation>MOdifier</translation>
    </message>
    <message>
        <source>Edit vertex</source>
        <translation>Modifier sommet</translation>
    </message>
    <message>
        <source>Elev</source>
        <translation>éLévation</translation>
    </message>
    <message>
        <source>Elevation</source>
        <translation>éLévation</translation>
    </message>
    <message>
        <source>Empty text objects</source>
        <translation>textesVIDes</translation>
    </message>
    <message>
        <source>End</source>
        <translation>Fin</translation>
    </message>
    <message>
        <source>Endtoend</source>
        <translation>Boutàbout</translation>
    </message>
    <message>
        <source>Entity</source>
        <translation>Objet</translation>
    </message>
    <message>
        <source>Erase</source>
        <translation>Effacer</translation>
    </message>
    <message>
        <source>Everything</source>
        <translation>Tout</translation>
    </message>
    <message>
        <source>Exactly</source>
        <translation>Exactement</translation>
    </message>
    <message>
        <source>Exit</source>
        <translation>Quitter</translation>
    </message>
    <message>
        <source>Explode</source>
        <translation>DEcomposer</translation>
    </message>
    <message>
        <source>Extend</source>
        <translation>Prolonger</translation>
    </message>
    <message>
        <source>Extents</source>
        <translation>éTendu</translation>
    </message>
    <message>
        <source>Face</source>
        <translation>Face</translation>
    </message>
    <message>
        <source>Fence</source>
        <translation>Trajet</translation>
    </message>
    <message>
        <source>Fillet</source>
        <translation>Raccord</translation>
    </message>
    <message>
        <source>First</source>
        <translation>Premier</translation>
    </message>
    <message>
        <source>First angle</source>
        <translation>Premier angle</translation>
    </message>
    <message>
        <source>First point</source>
        <translation>Premier point</translation>
    </message>
    <message>
        <source>Fit</source>
        <translation>Lisser</translation>
    </message>
    <message>
        <source>Fit tolerance</source>
        <translation>TOlérance</translation>
    </message>
    <message>
        <source>Format</source>
        <translation>Format</translation>
    </message>
    <message>
        <source>Freehand</source>
        <translation>Mainlevée</translation>
    </message>
    <message>
        <source>Freeze</source>
        <translation>Geler</translation>
    </message>
    <message>
        <source>Front</source>
        <translation>aVant</translation>
    </message>
    <message>
        <source>Frozen</source>
        <translation>Gelé</translation>
    </message>
    <message>
        <source>Gap</source>
        <translation>Espacement</translation>
    </message>
    <message>
        <source>Gap tolerance</source>
        <translation>tolérance d&apos;Espacement</translation>
    </message>
    <message>
        <source>Go</source>
        <translation>Aller</translation>
    </message>
    <message>
        <source>Grid</source>
        <translation>Grille</translation>
    </message>
    <message>
        <source>Group</source>
        <translation>Groupe</translation>
    </message>
    <message>
        <source>Groups</source>
        <translation>Groupes</translation>
    </message>
    <message>
        <source>HELP</source>
        <translation>AIDE</translation>
    </message>
    <message>
        <source>Halfwidth</source>
        <translation>DEmilargeur</translation>
    </message>
    <message>
        <source>Hatches</source>
        <translation>Hachures</translation>
    </message>
    <message>
        <source>Height</source>
        <translation>Hauteur</translation>
    </message>
    <message>
        <source>Hidden</source>
        <translation>Masqué</translation>
    </message>
    <message>
        <source>Hideplot</source>
        <translation>MAsquertracé</translation>
    </message>
    <message>
        <source>Home</source>
        <translation>Origine</translation>
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
        <translation>Ignorer</translation>
    </message>
    <message>
        <source>Import</source>
        <translation>Importer</translation>
    </message>
    <message>
        <source>Inches</source>
        <translation>Pouces</translation>
    </message>
    <message>
        <source>Included</source>
        <translation>Décrit</translation>
    </message>
    <message>
        <source>Included angle</source>
        <translation>angle Décrit</translation>
    </message>
    <message>
        <source>Inscribed in circle</source>
        <translation>Inscrit dans le cercle</translation>
    </message>
    <message>
        <source>Insert</source>
        <translation>Insérer</translation>
    </message>
    <message>
        <source>Invert clip</source>
        <translation>Inverser</translation>
    </message>
    <message>
        <source>Invisible</source>
        <translation>Invisible</translation>
    </message>
    <message>
        <source>Island</source>
        <translation>Ilots</translation>
    </message>
    <message>
        <source>Island detection</source>
        <translation>détection des Ilots</translation>
    </message>
    <message>
        <source>Isometric</source>
        <translation>Isométrique</translation>
    </message>
    <message>
        <source>Join</source>
        <translation>Joindre</translation>
    </message>
    <message>
        <source>Jointype</source>
        <translation>Typedejonction</translation>
    </message>
    <message>
        <source>Justification</source>
        <translation>Justification</translation>
    </message>
    <message>
        <source>Justify</source>
        <translation>Justifier</translation>
    </message>
    <message>
        <source>Knots</source>
        <translation>Nœuds</translation>
    </message>
    <message>
        <source>LAYOut</source>
        <translation>Présentation</translation>
    </message>
    <message>
        <source>LAyer</source>
        <translation>CAlque</translation>
    </message>
    <message>
        <source>LAyers</source>
        <translation>CAlques</translation>
    </message>
    <message>
        <source>LOck</source>
        <translation>Verrouiller</translation>
    </message>
    <message>
        <source>LType</source>
        <translation>TYpeligne</translation>
    </message>
    <message>
        <source>LTypes</source>
        <translation>TYpesligne</translation>
    </message>
    <message>
        <source>LWeight</source>
        <translation>éPaisseurligne</translation>
    </message>
    <message>
        <source>Landing</source>
        <translation>Guidage</translation>
    </message>
    <message>
        <source>Landscape</source>
        <translation>pAysage</translation>
    </message>
    <message>
        <source>Last</source>
        <translation>DErnier</translation>
    </message>
    <message>
        <source>Layer</source>
        <translation>CAlque</translation>
    </message>
    <message>
        <source>Layout</source>
        <translation>Présentation</translation>
    </message>
    <message>
        <source>Leader</source>
        <translation>Repère</translation>
    </message>
    <message>
        <source>Leader type</source>
        <translation>type de Repère</translation>
    </message>
    <message>
        <source>Left</source>
        <translation>Gauche</translation>
    </message>
    <message>
        <source>Length</source>
        <translation>LOngueur</translation>
    </message>
    <message>
        <source>Limits</source>
        <translation>Limites</translation>
    </message>
    <message>
        <source>Line</source>
        <translation>LIgne</translation>
    </message>
    <message>
        <source>Line spacing</source>
        <translation>Interligne</translation>
    </message>
    <message>
        <source>Load</source>
        <translation>Charger</translation>
    </message>
    <message>
        <source>Lock</source>
        <translation>Verrouiller</translation>
    </message>
    <message>
        <source>Lock and fade</source>
        <translation>Verrouiller et estomper</translation>
    </message>
    <message>
        <source>Ltype</source>
        <translation>TYpeligne</translation>
    </message>
    <message>
        <source>Ltype gen</source>
        <translation>Gentypeligne</translation>
    </message>
    <message>
        <source>MATerial</source>
        <translation>MATériau</translation>
    </message>
    <message>
        <source>MAterials</source>
        <translation>MATériaux</translation>
    </message>
    <message>
        <source>MC</source>
        <translation>MC</translation>
    </message>
    <message>
        <source>MIrror</source>
        <translation>MIroir</translation>
    </message>
    <message>
        <source>ML</source>
        <translation>MG</translation>
    </message>
    <message>
        <source>MOve</source>
        <translation>DEplacer</translation>
    </message>
    <message>
        <source>MR</source>
        <translation>MD</translation>
    </message>
    <message>
        <source>MUltileaderstyles</source>
        <translation>stylesREpère</translation>
    </message>
    <message>
        <source>Make</source>
        <translation>Faire</translation>
    </message>
    <message>
        <source>Mark</source>
        <translation>Marque</translation>
    </message>
    <message>
        <source>Material</source>
        <translation>MAtériau</translation>
    </message>
    <message>
        <source>Maxpoints</source>
        <translation>Maxpoints</translation>
    </message>
    <message>
        <source>Method</source>
        <translation>Méthode</translation>
    </message>
    <message>
        <source>Middle</source>
        <translation>Milieu</translation>
    </message>
    <message>
        <source>Millimeters</source>
        <translation>Millimètres</translation>
    </message>
    <message>
        <source>Mlinestyles</source>
        <translation>stylesMligne</translation>
    </message>
    <message>
        <source>Move</source>
        <translation>DEplacer</translation>
    </message>
    <message>
        <source>Mtext</source>
        <translation>TEXTMult</translation>
    </message>
    <message>
        <source>Multiple</source>
        <translation>Multiple</translation>
    </message>
    <message>
        <source>Multiple points</source>
        <translation>Multiples points</translation>
    </message>
    <message>
        <source>NAmed</source>
        <translation>NOmmé</translation>
    </message>
    <message>
        <source>NEW</source>
        <translation>NOUVEAU</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Nom</translation>
    </message>
    <message>
        <source>New</source>
        <translation>Nouveau</translation>
    </message>
    <message>
        <source>New boundary</source>
        <translation>Nouveau contour</translation>
    </message>
    <message>
        <source>Newfrz</source>
        <translation>NOUVgelés</translation>
    </message>
    <message>
        <source>Newvpfreeze</source>
        <translation>gelNouvfen</translation>
    </message>
    <message>
        <source>Next</source>
        <translation>Suivant</translation>
    </message>
    <message>
        <source>No</source>
        <translation>Non</translation>
    </message>
    <message>
        <source>No columns</source>
        <translation>Sans colonnes</translation>
    </message>
    <message>
        <source>No extend</source>
        <translation>Non prolongé</translation>
    </message>
    <message>
        <source>No leader</source>
        <translation>Sans repère</translation>
    </message>
    <message>
        <source>No plot</source>
        <translation>Non tracé</translation>
    </message>
    <message>
        <source>No trim</source>
        <translation>Non ajusté</translation>
    </message>
    <message>
        <source>None</source>
        <translation>AUcun</translation>
    </message>
    <message>
        <source>Normal</source>
        <translation>Normal</translation>
    </message>
    <message>
        <source>Not</source>
        <translation>Ne</translation>
    </message>
    <message>
        <source>OBject</source>
        <translation>OBjet</translation>
    </message>
    <message>
        <source>OFF</source>
        <translation>INactif</translation>
    </message>
    <message>
        <source>ON</source>
        <translation>ACtif</translation>
    </message>
    <message>
        <source>Object</source>
        <translation>Objet</translation>
    </message>
    <message>
        <source>Object type</source>
        <translation>Type d&apos;objet</translation>
    </message>
    <message>
        <source>Objects</source>
        <translation>Objets</translation>
    </message>
    <message>
        <source>Oblique</source>
        <translation>oBlique</translation>
    </message>
    <message>
        <source>Off</source>
        <translation>INactif</translation>
    </message>
    <message>
        <source>Offset</source>
        <translation>Décalage</translation>
    </message>
    <message>
        <source>On</source>
        <translation>ACtif</translation>
    </message>
    <message>
        <source>One</source>
        <translation>UN</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>Ouvrir</translation>
    </message>
    <message>
        <source>Options</source>
        <translation>Options</translation>
    </message>
    <message>
        <source>Order</source>
        <translation>ORdre</translation>
    </message>
    <message>
        <source>Origin</source>
        <translation>orIGine</translation>
    </message>
    <message>
        <source>Orphaned data</source>
        <translation>donnéesORphelines</translation>
    </message>
    <message>
        <source>Orthographic</source>
        <translation>orTHogonal</translation>
    </message>
    <message>
        <source>Outer</source>
        <translation>Extérieur</translation>
    </message>
    <message>
        <source>Overlaps</source>
        <translation>REcouvrements</translation>
    </message>
    <message>
        <source>Overlay</source>
        <translation>SUperposer</translation>
    </message>
    <message>
        <source>PStyle</source>
        <translation>STyletracé</translation>
    </message>
    <message>
        <source>Parameter</source>
        <translation>Paramètre</translation>
    </message>
    <message>
        <source>Partial</source>
        <translation>Partiel</translation>
    </message>
    <message>
        <source>Path</source>
        <translation>CHemin</translation>
    </message>
    <message>
        <source>Percent</source>
        <translation>Pourcent</translation>
    </message>
    <message>
        <source>Pick</source>
        <translation>Points</translation>
    </message>
    <message>
        <source>Pick points</source>
        <translation>choisir des Points</translation>
    </message>
    <message>
        <source>Plot</source>
        <translation>Tracé</translation>
    </message>
    <message>
        <source>Plotstyle</source>
        <translation>STyletracé</translation>
    </message>
    <message>
        <source>Plotstyles</source>
        <translation>STylestracé</translation>
    </message>
    <message>
        <source>Points</source>
        <translation>Points</translation>
    </message>
    <message>
        <source>Polar</source>
        <translation>Polaire</translation>
    </message>
    <message>
        <source>Polygonal</source>
        <translation>POLygonal</translation>
    </message>
    <message>
        <source>Polyline</source>
        <translation>POLyligne</translation>
    </message>
    <message>
        <source>Portrait</source>
        <translation>Portrait</translation>
    </message>
    <message>
        <source>Preset</source>
        <translation>Prédéfini</translation>
    </message>
    <message>
        <source>Previous</source>
        <translation>Précédent</translation>
    </message>
    <message>
        <source>Project</source>
        <translation>PRojection</translation>
    </message>
    <message>
        <source>Properties</source>
        <translation>PROpriétés</translation>
    </message>
    <message>
        <source>QUIT</source>
        <translation>QUITTER</translation>
    </message>
    <message>
        <source>Quadrant</source>
        <translation>Quadrant</translation>
    </message>
    <message>
        <source>REName</source>
        <translation>RENommer</translation>
    </message>
    <message>
        <source>Radius</source>
        <translation>RAyon</translation>
    </message>
    <message>
        <source>Ratio</source>
        <translation>Rapport</translation>
    </message>
    <message>
        <source>Rectangular</source>
        <translation>Rectangulaire</translation>
    </message>
    <message>
        <source>Reference</source>
        <translation>Référence</translation>
    </message>
    <message>
        <source>Regapps</source>
        <translation>APPlications</translation>
    </message>
    <message>
        <source>Regen</source>
        <translation>REgén</translation>
    </message>
    <message>
        <source>Region</source>
        <translation>Région</translation>
    </message>
    <message>
        <source>Reload</source>
        <translation>REcharger</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Retirer</translation>
    </message>
    <message>
        <source>Remove leaders</source>
        <translation>Supprimer</translation>
    </message>
    <message>
        <source>Rename</source>
        <translation>RENommer</translation>
    </message>
    <message>
        <source>Rendered</source>
        <translation>Rendu</translation>
    </message>
    <message>
        <source>Replace</source>
        <translation>Remplacer</translation>
    </message>
    <message>
        <source>Reset</source>
        <translation>Réinitialiser</translation>
    </message>
    <message>
        <source>Restore</source>
        <translation>RESTituer</translation>
    </message>
    <message>
        <source>Retain</source>
        <translation>Conserver</translation>
    </message>
    <message>
        <source>Retain boundary</source>
        <translation>Conserver le contour</translation>
    </message>
    <message>
        <source>Reverse</source>
        <translation>INVerser</translation>
    </message>
    <message>
        <source>Right</source>
        <translation>Droite</translation>
    </message>
    <message>
        <source>Rotate</source>
        <translation>ROtation</translation>
    </message>
    <message>
        <source>Rotated</source>
        <translation>ROtation</translation>
    </message>
    <message>
        <source>Rotation</source>
        <translation>ROtation</translation>
    </message>
    <message>
        <source>SAveas</source>
        <translation>ENregistrersous</translation>
    </message>
    <message>
        <source>SCale</source>
        <translation>éCHelle</translation>
    </message>
    <message>
        <source>SEctionviewstyles</source>
        <translation>COUpe</translation>
    </message>
    <message>
        <source>SHapes</source>
        <translation>FORmes</translation>
    </message>
    <message>
        <source>SIngle</source>
        <translation>UNique</translation>
    </message>
    <message>
        <source>STatus</source>
        <translation>étAt</translation>
    </message>
    <message>
        <source>STraight</source>
        <translation>Droit</translation>
    </message>
    <message>
        <source>STretch</source>
        <translation>éTirer</translation>
    </message>
    <message>
        <source>STyle</source>
        <translation>STyle</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Enregistrer</translation>
    </message>
    <message>
        <source>Scale</source>
        <translation>éCHelle</translation>
    </message>
    <message>
        <source>Second</source>
        <translation>Second</translation>
    </message>
    <message>
        <source>Second angle</source>
        <translation>Second angle</translation>
    </message>
    <message>
        <source>Second pt</source>
        <translation>Second pt</translation>
    </message>
    <message>
        <source>Select</source>
        <translation>CHoisir</translation>
    </message>
    <message>
        <source>Select objects</source>
        <translation>Objets</translation>
    </message>
    <message>
        <source>Select polyline</source>
        <translation>choisir polyLigne</translation>
    </message>
    <message>
        <source>Selectable</source>
        <translation>Sélectionnable</translation>
    </message>
    <message>
        <source>Set</source>
        <translation>fiXer</translation>
    </message>
    <message>
        <source>Set new origin</source>
        <translation>Nouvelle origine</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Paramètres</translation>
    </message>
    <message>
        <source>Shadeplot</source>
        <translation>Tracéombré</translation>
    </message>
    <message>
        <source>Single</source>
        <translation>UNique</translation>
    </message>
    <message>
        <source>Snap</source>
        <translation>Résolution</translation>
    </message>
    <message>
        <source>Solid</source>
        <translation>Solide</translation>
    </message>
    <message>
        <source>Source</source>
        <translation>Source</translation>
    </message>
    <message>
        <source>Spacing</source>
        <translation>Espacement</translation>
    </message>
    <message>
        <source>Spline</source>
        <translation>SPline</translation>
    </message>
    <message>
        <source>Spline curve</source>
        <translation>SPline</translation>
    </message>
    <message>
        <source>Square root</source>
        <translation>Racine carrée</translation>
    </message>
    <message>
        <source>Standard</source>
        <translation>Standard</translation>
    </message>
    <message>
        <source>Static</source>
        <translation>STatique</translation>
    </message>
    <message>
        <source>Straight</source>
        <translation>Droit</translation>
    </message>
    <message>
        <source>Straighten</source>
        <translation>REDresser</translation>
    </message>
    <message>
        <source>Style</source>
        <translation>STyle</translation>
    </message>
    <message>
        <source>Subtract area</source>
        <translation>Soustraire</translation>
    </message>
    <message>
        <source>TC</source>
        <translation>HC</translation>
    </message>
    <message>
        <source>TL</source>
        <translation>HG</translation>
    </message>
    <message>
        <source>TR</source>
        <translation>HD</translation>
    </message>
    <message>
        <source>TRansparency</source>
        <translation>TRANsparence</translation>
    </message>
    <message>
        <source>Tablestyle</source>
        <translation>styletABleau</translation>
    </message>
    <message>
        <source>Tablestyles</source>
        <translation>stylestABleau</translation>
    </message>
    <message>
        <source>Tangency</source>
        <translation>Tangente</translation>
    </message>
    <message>
        <source>Tangent</source>
        <translation>Tangente</translation>
    </message>
    <message>
        <source>Template</source>
        <translation>Gabarit</translation>
    </message>
    <message>
        <source>Text</source>
        <translation>Texte</translation>
    </message>
    <message>
        <source>Thaw</source>
        <translation>DEGeler</translation>
    </message>
    <message>
        <source>Thawed</source>
        <translation>Dégelé</translation>
    </message>
    <message>
        <source>Thickness</source>
        <translation>épaiSseur</translation>
    </message>
    <message>
        <source>Through</source>
        <translation>Par</translation>
    </message>
    <message>
        <source>Tolerance</source>
        <translation>TOlérance</translation>
    </message>
    <message>
        <source>Top</source>
        <translation>Haut</translation>
    </message>
    <message>
        <source>Total</source>
        <translation>Total</translation>
    </message>
    <message>
        <source>Transparency</source>
        <translation>TRANsparence</translation>
    </message>
    <message>
        <source>Trim</source>
        <translation>AJuster</translation>
    </message>
    <message>
        <source>Truecolor</source>
        <translation>Vraiecouleur</translation>
    </message>
    <message>
        <source>Ttr</source>
        <translation>TTr</translation>
    </message>
    <message>
        <source>Ttr (tan tan radius)</source>
        <translation>TTr (tan tan rayon)</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>TYpe</translation>
    </message>
    <message>
        <source>Ucs</source>
        <translation>Scu</translation>
    </message>
    <message>
        <source>Under</source>
        <translation>auDEssous</translation>
    </message>
    <message>
        <source>Under objects</source>
        <translation>Sous des objets</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>annUler</translation>
    </message>
    <message>
        <source>Uniform</source>
        <translation>Uniforme</translation>
    </message>
    <message>
        <source>Unload</source>
        <translation>DECharger</translation>
    </message>
    <message>
        <source>Unlock</source>
        <translation>DEVerrouiller</translation>
    </message>
    <message>
        <source>Use</source>
        <translation>Utiliser</translation>
    </message>
    <message>
        <source>Use current origin</source>
        <translation>Utiliser l&apos;origine courante</translation>
    </message>
    <message>
        <source>Use current spacing</source>
        <translation>Utiliser l&apos;espacement courant</translation>
    </message>
    <message>
        <source>User defined</source>
        <translation>Utilisateur</translation>
    </message>
    <message>
        <source>VIew</source>
        <translation>VUe</translation>
    </message>
    <message>
        <source>VPort</source>
        <translation>FENêtre</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>Valeur</translation>
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
        <translation>Vérifié</translation>
    </message>
    <message>
        <source>Version</source>
        <translation>Version</translation>
    </message>
    <message>
        <source>Vertical</source>
        <translation>Vertical</translation>
    </message>
    <message>
        <source>View</source>
        <translation>Vue</translation>
    </message>
    <message>
        <source>Viewports</source>
        <translation>Fenêtres</translation>
    </message>
    <message>
        <source>Visual styles</source>
        <translation>styles VIsuels</translation>
    </message>
    <message>
        <source>Visualstyles</source>
        <translation>stylesVIsuels</translation>
    </message>
    <message>
        <source>Vpfreeze</source>
        <translation>GElfenêtre</translation>
    </message>
    <message>
        <source>Vpvisdflt</source>
        <translation>VISfenêtre</translation>
    </message>
    <message>
        <source>WPolygon</source>
        <translation>FPolygone</translation>
    </message>
    <message>
        <source>Width</source>
        <translation>LArgeur</translation>
    </message>
    <message>
        <source>Window</source>
        <translation>Fenêtre</translation>
    </message>
    <message>
        <source>Wireframe</source>
        <translation>Filaire</translation>
    </message>
    <message>
        <source>World</source>
        <translation>Général</translation>
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
        <translation>Xaxe</translation>
    </message>
    <message>
        <source>Xdatum</source>
        <translation>Xordonnée</translation>
    </message>
    <message>
        <source>YZ</source>
        <translation>YZ</translation>
    </message>
    <message>
        <source>Yaxis</source>
        <translation>Yaxe</translation>
    </message>
    <message>
        <source>Ydatum</source>
        <translation>Yordonnée</translation>
    </message>
    <message>
        <source>Yes</source>
        <translation>Oui</translation>
    </message>
    <message>
        <source>ZAxis</source>
        <translation>ZAxe</translation>
    </message>
    <message>
        <source>ZX</source>
        <translation>ZX</translation>
    </message>
    <message>
        <source>Zaxis</source>
        <translation>Zaxe</translation>
    </message>
    <message>
        <source>Zdepth</source>
        <translation>Zprofondeur</translation>
    </message>
    <message>
        <source>Zero</source>
        <translation>Zéro</translation>
    </message>
    <message>
        <source>Zero-length geometry</source>
        <translation>LONgueurnulle</translation>
    </message>
    <message>
        <source>beHind</source>
        <translation>derrIère</translation>
    </message>
    <message>
        <source>bounDary</source>
        <translation>coNtour</translation>
    </message>
    <message>
        <source>bring in front of bounDary</source>
        <translation>devant le Contour</translation>
    </message>
    <message>
        <source>bring to Front</source>
        <translation>à l&apos;aVant</translation>
    </message>
    <message>
        <source>cLose</source>
        <translation>Clore</translation>
    </message>
    <message>
        <source>chord Length</source>
        <translation>Longueur de corde</translation>
    </message>
    <message>
        <source>do Not assign</source>
        <translation>Ne pas attribuer</translation>
    </message>
    <message>
        <source>draW</source>
        <translation>dEssiner</translation>
    </message>
    <message>
        <source>draW boundary</source>
        <translation>dEssiner le contour</translation>
    </message>
    <message>
        <source>eRase</source>
        <translation>Effacer</translation>
    </message>
    <message>
        <source>eXcept current</source>
        <translation>Sauf courant</translation>
    </message>
    <message>
        <source>eXit</source>
        <translation>Quitter</translation>
    </message>
    <message>
        <source>eXit options</source>
        <translation>Quitter les options</translation>
    </message>
    <message>
        <source>end Tangency</source>
        <translation>Tangente de fin</translation>
    </message>
    <message>
        <source>generate Polyline</source>
        <translation>générer une Polyligne</translation>
    </message>
    <message>
        <source>hatch COlor</source>
        <translation>COuleur</translation>
    </message>
    <message>
        <source>lAnding</source>
        <translation>Guidage</translation>
    </message>
    <message>
        <source>leader Landing first</source>
        <translation>Guidage d&apos;abord</translation>
    </message>
    <message>
        <source>leader lAnding</source>
        <translation>Guidage</translation>
    </message>
    <message>
        <source>lineType</source>
        <translation>TYpeligne</translation>
    </message>
    <message>
        <source>lineWeight</source>
        <translation>éPaisseurligne</translation>
    </message>
    <message>
        <source>ltScale</source>
        <translation>éCHelletl</translation>
    </message>
    <message>
        <source>mEthod</source>
        <translation>MEthode</translation>
    </message>
    <message>
        <source>mOde</source>
        <translation>mOde</translation>
    </message>
    <message>
        <source>multileadersTyle</source>
        <translation>styleREpère</translation>
    </message>
    <message>
        <source>plotStyle</source>
        <translation>STyletracé</translation>
    </message>
    <message>
        <source>rEconcile</source>
        <translation>RAPprocher</translation>
    </message>
    <message>
        <source>remove Boundaries</source>
        <translation>Retirer des contours</translation>
    </message>
    <message>
        <source>sPline</source>
        <translation>SPline</translation>
    </message>
    <message>
        <source>send beHind boundary</source>
        <translation>Derrière le contour</translation>
    </message>
    <message>
        <source>send to Back</source>
        <translation>à l&apos;aRrière</translation>
    </message>
    <message>
        <source>separate Hatches</source>
        <translation>Hachures séparées</translation>
    </message>
    <message>
        <source>specify Spacing</source>
        <translation>Espacement</translation>
    </message>
    <message>
        <source>stAte</source>
        <translation>étAt</translation>
    </message>
    <message>
        <source>start Tangency</source>
        <translation>Tangente de départ</translation>
    </message>
    <message>
        <source>textSTyles</source>
        <translation>stylesTEXte</translation>
    </message>
    <message>
        <source>toLerance</source>
        <translation>tOlérance</translation>
    </message>
    <message>
        <source>Align</source>
        <translation>ALigner</translation>
    </message>
    <message>
        <source>orthoGraphic</source>
        <translation>orTHogonal</translation>
    </message>
</context>
<context>
    <name>Layers</name>
    <message>
        <source>Name</source>
        <translation>Nom</translation>
    </message>
    <message>
        <source>On</source>
        <translation>Actif</translation>
    </message>
    <message>
        <source>Freeze</source>
        <translation>Geler</translation>
    </message>
    <message>
        <source>Lock</source>
        <translation>Verrouiller</translation>
    </message>
    <message>
        <source>Plot</source>
        <translation>Tracer</translation>
    </message>
    <message>
        <source>Color</source>
        <translation>Couleur</translation>
    </message>
    <message>
        <source>Linetype</source>
        <translation>Type de ligne</translation>
    </message>
    <message>
        <source>Lineweight</source>
        <translation>Épaisseur de ligne</translation>
    </message>
    <message>
        <source>Transparency</source>
        <translation>Transparence</translation>
    </message>
    <message>
        <source>Description</source>
        <translation>Description</translation>
    </message>
    <message>
        <source>Viewport</source>
        <translation>Fenêtre</translation>
    </message>
    <message>
        <source>thawed</source>
        <translation>dégelé</translation>
    </message>
    <message>
        <source>frozen</source>
        <translation>gelé</translation>
    </message>
    <message>
        <source>unlocked</source>
        <translation>déverrouillé</translation>
    </message>
    <message>
        <source>locked</source>
        <translation>verrouillé</translation>
    </message>
    <message>
        <source>plots</source>
        <translation>tracé</translation>
    </message>
    <message>
        <source>no plot</source>
        <translation>non tracé</translation>
    </message>
    <message>
        <source>on</source>
        <translation>actif</translation>
    </message>
    <message>
        <source>off</source>
        <translation>inactif</translation>
    </message>
</context>
<context>
    <name>Menus</name>
    <message>
        <source>&amp;About Ortakit</source>
        <translation>À &amp;propos d&apos;Ortakit</translation>
    </message>
    <message>
        <source>&amp;Aiming</source>
        <translation>Aides au &amp;dessin</translation>
    </message>
    <message>
        <source>&amp;Black ground</source>
        <translation>Fond n&amp;oir</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>&amp;Fermer</translation>
    </message>
    <message>
        <source>&amp;Construction lines</source>
        <translation>Lignes de &amp;construction</translation>
    </message>
    <message>
        <source>&amp;Contents</source>
        <translation>&amp;Sommaire</translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation>&amp;Copier</translation>
    </message>
    <message>
        <source>&amp;Dark style</source>
        <translation>&amp;Style sombre</translation>
    </message>
    <message>
        <source>&amp;Delete</source>
        <translation>&amp;Supprimer</translation>
    </message>
    <message>
        <source>&amp;Draw</source>
        <translation>&amp;Dessin</translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <translation>Éditio&amp;n</translation>
    </message>
    <message>
        <source>&amp;Export</source>
        <translation>E&amp;xporter</translation>
    </message>
    <message>
        <source>&amp;File</source>
        <translation>&amp;Fichier</translation>
    </message>
    <message>
        <source>&amp;Fit</source>
        <translation>&amp;Ajuster</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>Aid&amp;e</translation>
    </message>
    <message>
        <source>&amp;In space</source>
        <translation>&amp;Dans l&apos;espace</translation>
    </message>
    <message>
        <source>&amp;Insert</source>
        <translation>&amp;Insertion</translation>
    </message>
    <message>
        <source>&amp;Light style</source>
        <translation>Styl&amp;e clair</translation>
    </message>
    <message>
        <source>&amp;Lock display</source>
        <translation>&amp;Verrouiller l&apos;affichage</translation>
    </message>
    <message>
        <source>&amp;Make</source>
        <translation>&amp;Créer</translation>
    </message>
    <message>
        <source>&amp;Modify</source>
        <translation>&amp;Modification</translation>
    </message>
    <message>
        <source>&amp;New</source>
        <translation>&amp;Nouveau</translation>
    </message>
    <message>
        <source>&amp;Next under the pointer</source>
        <translation>Suiva&amp;nt sous le pointeur</translation>
    </message>
    <message>
        <source>&amp;Open...</source>
        <translation>&amp;Ouvrir...</translation>
    </message>
    <message>
        <source>&amp;PNG picture...</source>
        <translation>Image &amp;PNG...</translation>
    </message>
    <message>
        <source>&amp;Pan</source>
        <translation>&amp;Panoramique</translation>
    </message>
    <message>
        <source>&amp;Paste</source>
        <translation>C&amp;oller</translation>
    </message>
    <message>
        <source>&amp;Print...</source>
        <translation>&amp;Imprimer...</translation>
    </message>
    <message>
        <source>&amp;Properties</source>
        <translation>&amp;Propriétés</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>&amp;Quitter</translation>
    </message>
    <message>
        <source>&amp;Record session...</source>
        <translation>Enre&amp;gistrer une session...</translation>
    </message>
    <message>
        <source>&amp;Redo</source>
        <translation>&amp;Rétablir</translation>
    </message>
    <message>
        <source>&amp;Regenerate</source>
        <translation>Ré&amp;générer</translation>
    </message>
    <message>
        <source>&amp;SVG drawing...</source>
        <translation>Dessin &amp;SVG...</translation>
    </message>
    <message>
        <source>&amp;Save</source>
        <translation>&amp;Enregistrer</translation>
    </message>
    <message>
        <source>&amp;Start page</source>
        <translation>Page d&apos;&amp;accueil</translation>
    </message>
    <message>
        <source>&amp;Toolbars</source>
        <translation>&amp;Barres d&apos;outils</translation>
    </message>
    <message>
        <source>&amp;Tools</source>
        <translation>Ou&amp;tils</translation>
    </message>
    <message>
        <source>&amp;Undo</source>
        <translation>&amp;Annuler</translation>
    </message>
    <message>
        <source>&amp;Unlock display</source>
        <translation>&amp;Déverrouiller l&apos;affichage</translation>
    </message>
    <message>
        <source>&amp;Upkeep</source>
        <translation>M&amp;aintenance</translation>
    </message>
    <message>
        <source>&amp;View</source>
        <translation>&amp;Affichage</translation>
    </message>
    <message>
        <source>&amp;Views and planes</source>
        <translation>Vues et pla&amp;ns</translation>
    </message>
    <message>
        <source>&amp;Zoom by its options</source>
        <translation>&amp;Zoom par options</translation>
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
        <translation>Aligner</translation>
    </message>
    <message>
        <source>Align multileaders</source>
        <translation>Aligner des repères multiples</translation>
    </message>
    <message>
        <source>Aligned</source>
        <translation>Alignée</translation>
    </message>
    <message>
        <source>Along the axes</source>
        <translation>Selon les axes</translation>
    </message>
    <message>
        <source>Angle</source>
        <translation>Angle</translation>
    </message>
    <message>
        <source>Arc</source>
        <translation>Arc</translation>
    </message>
    <message>
        <source>Arc length</source>
        <translation>Longueur d&apos;arc</translation>
    </message>
    <message>
        <source>Area</source>
        <translation>Aire</translation>
    </message>
    <message>
        <source>Array</source>
        <translation>Réseau</translation>
    </message>
    <message>
        <source>As another one</source>
        <translation>Comme un autre</translation>
    </message>
    <message>
        <source>At steps along a curve</source>
        <translation>À intervalles le long d&apos;une courbe</translation>
    </message>
    <message>
        <source>Attributes</source>
        <translation>Attributs</translation>
    </message>
    <message>
        <source>Base point</source>
        <translation>Point de base</translation>
    </message>
    <message>
        <source>Between sheet and model</source>
        <translation>Entre feuille et modèle</translation>
    </message>
    <message>
        <source>Boundary</source>
        <translation>Contour</translation>
    </message>
    <message>
        <source>Break</source>
        <translation>Coupure</translation>
    </message>
    <message>
        <source>Bring back what was &amp;erased</source>
        <translation>Ra&amp;mener ce qui était effacé</translation>
    </message>
    <message>
        <source>Center mark</source>
        <translation>Marque de centre</translation>
    </message>
    <message>
        <source>Chamfer</source>
        <translation>Chanfrein</translation>
    </message>
    <message>
        <source>Choose &amp;all</source>
        <translation>&amp;Tout sélectionner</translation>
    </message>
    <message>
        <source>Choose &amp;similar</source>
        <translation>Sélect&amp;ionner les semblables</translation>
    </message>
    <message>
        <source>Chooses what can be seen and changed</source>
        <translation>Choisit ce qui peut être vu et modifié</translation>
    </message>
    <message>
        <source>Circle</source>
        <translation>Cercle</translation>
    </message>
    <message>
        <source>Clip</source>
        <translation>Délimiter</translation>
    </message>
    <message>
        <source>Closes all drawings and the program</source>
        <translation>Ferme tous les dessins et le programme</translation>
    </message>
    <message>
        <source>Closes the drawing in front</source>
        <translation>Ferme le dessin au premier plan</translation>
    </message>
    <message>
        <source>Co&amp;mmands...</source>
        <translation>Co&amp;mmandes...</translation>
    </message>
    <message>
        <source>Color</source>
        <translation>Couleur</translation>
    </message>
    <message>
        <source>Coordinates of a point</source>
        <translation>Coordonnées d&apos;un point</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>Copier</translation>
    </message>
    <message>
        <source>Copy with &amp;base point</source>
        <translation>Copier avec point de &amp;base</translation>
    </message>
    <message>
        <source>Cu&amp;t</source>
        <translation>Co&amp;uper</translation>
    </message>
    <message>
        <source>Dark windows</source>
        <translation>Fenêtres sombres</translation>
    </message>
    <message>
        <source>Define an attribute</source>
        <translation>Définir un attribut</translation>
    </message>
    <message>
        <source>Delete layers</source>
        <translation>Supprimer des calques</translation>
    </message>
    <message>
        <source>Diameter</source>
        <translation>Diamètre</translation>
    </message>
    <message>
        <source>Dime&amp;nsion</source>
        <translation>&amp;Cotation</translation>
    </message>
    <message>
        <source>Dimension style</source>
        <translation>Style de cote</translation>
    </message>
    <message>
        <source>Distance</source>
        <translation>Distance</translation>
    </message>
    <message>
        <source>Divide a curve</source>
        <translation>Diviser une courbe</translation>
    </message>
    <message>
        <source>Divide the screen</source>
        <translation>Diviser l&apos;écran</translation>
    </message>
    <message>
        <source>Draw order</source>
        <translation>Ordre de tracé</translation>
    </message>
    <message>
        <source>Drawing limits</source>
        <translation>Limites du dessin</translation>
    </message>
    <message>
        <source>Drawing status</source>
        <translation>État du dessin</translation>
    </message>
    <message>
        <source>Draws on black</source>
        <translation>Dessine sur fond noir</translation>
    </message>
    <message>
        <source>Draws on white</source>
        <translation>Dessine sur fond blanc</translation>
    </message>
    <message>
        <source>Edit multileaders</source>
        <translation>Modifier des repères multiples</translation>
    </message>
    <message>
        <source>Edit text and extension lines</source>
        <translation>Modifier le texte et les lignes d&apos;attache</translation>
    </message>
    <message>
        <source>Elevation and thickness</source>
        <translation>Élévation et épaisseur</translation>
    </message>
    <message>
        <source>Ellipse</source>
        <translation>Ellipse</translation>
    </message>
    <message>
        <source>End isolating</source>
        <translation>Finir l&apos;isolement</translation>
    </message>
    <message>
        <source>Erase</source>
        <translation>Effacer</translation>
    </message>
    <message>
        <source>Erases what is chosen</source>
        <translation>Efface ce qui est choisi</translation>
    </message>
    <message>
        <source>Explode</source>
        <translation>Décomposer</translation>
    </message>
    <message>
        <source>Extend</source>
        <translation>Prolonger</translation>
    </message>
    <message>
        <source>External reference</source>
        <translation>Référence externe</translation>
    </message>
    <message>
        <source>F&amp;ormat</source>
        <translation>F&amp;ormat</translation>
    </message>
    <message>
        <source>Face</source>
        <translation>Face</translation>
    </message>
    <message>
        <source>Filled area</source>
        <translation>Surface remplie</translation>
    </message>
    <message>
        <source>Fillet</source>
        <translation>Raccord</translation>
    </message>
    <message>
        <source>Finds commands, menu entries and system variables</source>
        <translation>Trouve des commandes, des entrées de menu et des variables système</translation>
    </message>
    <message>
        <source>Freeze</source>
        <translation>Geler</translation>
    </message>
    <message>
        <source>From the same begin</source>
        <translation>Depuis le même départ</translation>
    </message>
    <message>
        <source>Gives what was printed most of the window, and back</source>
        <translation>Donne à ce qui a été affiché la plus grande partie de la fenêtre, et la rend</translation>
    </message>
    <message>
        <source>Goes through what lies on top of each other</source>
        <translation>Parcourt ce qui est superposé</translation>
    </message>
    <message>
        <source>Grid</source>
        <translation>Grille</translation>
    </message>
    <message>
        <source>Group</source>
        <translation>Groupe</translation>
    </message>
    <message>
        <source>Hatch</source>
        <translation>Hachures</translation>
    </message>
    <message>
        <source>Horizontal or vertical</source>
        <translation>Horizontale ou verticale</translation>
    </message>
    <message>
        <source>How the layout that is shown lies on its paper</source>
        <translation>Comment la présentation affichée est placée sur son papier</translation>
    </message>
    <message>
        <source>I&amp;n space</source>
        <translation>Da&amp;ns l&apos;espace</translation>
    </message>
    <message>
        <source>In a row</source>
        <translation>À la suite</translation>
    </message>
    <message>
        <source>In&amp;quiry</source>
        <translation>&amp;Renseignements</translation>
    </message>
    <message>
        <source>Insert a block</source>
        <translation>Insérer un bloc</translation>
    </message>
    <message>
        <source>Into the viewport</source>
        <translation>Dans la fenêtre</translation>
    </message>
    <message>
        <source>Isolate</source>
        <translation>Isoler</translation>
    </message>
    <message>
        <source>Isometric plane</source>
        <translation>Plan isométrique</translation>
    </message>
    <message>
        <source>Jogged radius</source>
        <translation>Rayon raccourci</translation>
    </message>
    <message>
        <source>Join</source>
        <translation>Joindre</translation>
    </message>
    <message>
        <source>Layer, color, linetype</source>
        <translation>Calque, couleur, type de ligne</translation>
    </message>
    <message>
        <source>Layers</source>
        <translation>Calques</translation>
    </message>
    <message>
        <source>Layers of &amp;objects</source>
        <translation>Calques des &amp;objets</translation>
    </message>
    <message>
        <source>Layout</source>
        <translation>Présentation</translation>
    </message>
    <message>
        <source>Leader</source>
        <translation>Ligne de repère</translation>
    </message>
    <message>
        <source>Lengthen</source>
        <translation>Modifier la longueur</translation>
    </message>
    <message>
        <source>Light windows</source>
        <translation>Fenêtres claires</translation>
    </message>
    <message>
        <source>Line</source>
        <translation>Ligne</translation>
    </message>
    <message>
        <source>Linetype</source>
        <translation>Type de ligne</translation>
    </message>
    <message>
        <source>Lineweight</source>
        <translation>Épaisseur de ligne</translation>
    </message>
    <message>
        <source>Lisp &amp;console</source>
        <translation>&amp;Console Lisp</translation>
    </message>
    <message>
        <source>List</source>
        <translation>Lister</translation>
    </message>
    <message>
        <source>Load shapes</source>
        <translation>Charger des formes</translation>
    </message>
    <message>
        <source>Lock</source>
        <translation>Verrouiller</translation>
    </message>
    <message>
        <source>Lon&amp;g command history</source>
        <translation>&amp;Historique long des commandes</translation>
    </message>
    <message>
        <source>Look for errors</source>
        <translation>Chercher les erreurs</translation>
    </message>
    <message>
        <source>Look from a direction</source>
        <translation>Regarder d&apos;une direction</translation>
    </message>
    <message>
        <source>Look straight at a plane</source>
        <translation>Regarder un plan de face</translation>
    </message>
    <message>
        <source>Make a block</source>
        <translation>Créer un bloc</translation>
    </message>
    <message>
        <source>Make current</source>
        <translation>Rendre courant</translation>
    </message>
    <message>
        <source>Makes a new drawing</source>
        <translation>Crée un nouveau dessin</translation>
    </message>
    <message>
        <source>Merge layers</source>
        <translation>Fusionner des calques</translation>
    </message>
    <message>
        <source>Mirror</source>
        <translation>Miroir</translation>
    </message>
    <message>
        <source>Mirror in a plane</source>
        <translation>Miroir par rapport à un plan</translation>
    </message>
    <message>
        <source>Move</source>
        <translation>Déplacer</translation>
    </message>
    <message>
        <source>Move in space</source>
        <translation>Déplacer dans l&apos;espace</translation>
    </message>
    <message>
        <source>Move the text</source>
        <translation>Déplacer le texte</translation>
    </message>
    <message>
        <source>Multileader</source>
        <translation>Repère multiple</translation>
    </message>
    <message>
        <source>Multiline</source>
        <translation>Multiligne</translation>
    </message>
    <message>
        <source>Named views</source>
        <translation>Vues nommées</translation>
    </message>
    <message>
        <source>O&amp;bjects</source>
        <translation>O&amp;bjets</translation>
    </message>
    <message>
        <source>Object snap</source>
        <translation>Accrochage aux objets</translation>
    </message>
    <message>
        <source>Offset</source>
        <translation>Décaler</translation>
    </message>
    <message>
        <source>Onto the sheet</source>
        <translation>Sur la feuille</translation>
    </message>
    <message>
        <source>Opens drawings</source>
        <translation>Ouvre des dessins</translation>
    </message>
    <message>
        <source>Ordinate</source>
        <translation>Ordonnée</translation>
    </message>
    <message>
        <source>Override variables</source>
        <translation>Remplacer des variables</translation>
    </message>
    <message>
        <source>P&amp;DF page...</source>
        <translation>Page P&amp;DF...</translation>
    </message>
    <message>
        <source>Pa&amp;ge setup...</source>
        <translation>&amp;Mise en page...</translation>
    </message>
    <message>
        <source>Paragraph</source>
        <translation>Paragraphe</translation>
    </message>
    <message>
        <source>Paste as b&amp;lock</source>
        <translation>Coller en b&amp;loc</translation>
    </message>
    <message>
        <source>Paste where it &amp;was</source>
        <translation>Coller à l&apos;&amp;emplacement d&apos;origine</translation>
    </message>
    <message>
        <source>Place a shape</source>
        <translation>Placer une forme</translation>
    </message>
    <message>
        <source>Poin&amp;ts</source>
        <translation>Poin&amp;ts</translation>
    </message>
    <message>
        <source>Point</source>
        <translation>Point</translation>
    </message>
    <message>
        <source>Polygon</source>
        <translation>Polygone</translation>
    </message>
    <message>
        <source>Polyline</source>
        <translation>Polyligne</translation>
    </message>
    <message>
        <source>Polyline in space</source>
        <translation>Polyligne dans l&apos;espace</translation>
    </message>
    <message>
        <source>Prints the layout that is shown, or writes it as a page</source>
        <translation>Imprime la présentation affichée, ou l&apos;écrit en page</translation>
    </message>
    <message>
        <source>Purge</source>
        <translation>Purger</translation>
    </message>
    <message>
        <source>Radius</source>
        <translation>Rayon</translation>
    </message>
    <message>
        <source>Rectangle</source>
        <translation>Rectangle</translation>
    </message>
    <message>
        <source>Region</source>
        <translation>Région</translation>
    </message>
    <message>
        <source>Remove duplicates</source>
        <translation>Supprimer les doublons</translation>
    </message>
    <message>
        <source>Rename</source>
        <translation>Renommer</translation>
    </message>
    <message>
        <source>Revision cloud</source>
        <translation>Nuage de révision</translation>
    </message>
    <message>
        <source>Ring</source>
        <translation>Anneau</translation>
    </message>
    <message>
        <source>Rotate</source>
        <translation>Rotation</translation>
    </message>
    <message>
        <source>Rotate round an axis</source>
        <translation>Tourner autour d&apos;un axe</translation>
    </message>
    <message>
        <source>Run a s&amp;cript</source>
        <translation>E&amp;xécuter un script</translation>
    </message>
    <message>
        <source>S&amp;ettings...</source>
        <translation>&amp;Paramètres...</translation>
    </message>
    <message>
        <source>Save &amp;as...</source>
        <translation>Enregistrer &amp;sous...</translation>
    </message>
    <message>
        <source>Saves the drawing</source>
        <translation>Enregistre le dessin</translation>
    </message>
    <message>
        <source>Saves the drawing under another name</source>
        <translation>Enregistre le dessin sous un autre nom</translation>
    </message>
    <message>
        <source>Says what this program is</source>
        <translation>Dit ce qu&apos;est ce programme</translation>
    </message>
    <message>
        <source>Scale</source>
        <translation>Échelle</translation>
    </message>
    <message>
        <source>Shows a place to try Lisp at</source>
        <translation>Affiche un endroit où essayer Lisp</translation>
    </message>
    <message>
        <source>Shows all that is drawn</source>
        <translation>Affiche tout ce qui est dessiné</translation>
    </message>
    <message>
        <source>Shows all through the viewport that is worked through</source>
        <translation>Affiche tout à travers la fenêtre où l&apos;on travaille</translation>
    </message>
    <message>
        <source>Shows less, larger</source>
        <translation>Affiche moins, en plus grand</translation>
    </message>
    <message>
        <source>Shows more, smaller</source>
        <translation>Affiche plus, en plus petit</translation>
    </message>
    <message>
        <source>Shows recent drawings, samples and first steps</source>
        <translation>Affiche les dessins récents, les exemples et les premiers pas</translation>
    </message>
    <message>
        <source>Shows the help pages</source>
        <translation>Affiche les pages d&apos;aide</translation>
    </message>
    <message>
        <source>Shows what is in a box</source>
        <translation>Affiche ce qui est dans un cadre</translation>
    </message>
    <message>
        <source>Snap to a grid</source>
        <translation>Résolution</translation>
    </message>
    <message>
        <source>Snaps, display, selection, units, folders and trust</source>
        <translation>Accrochages, affichage, sélection, unités, dossiers et confiance</translation>
    </message>
    <message>
        <source>Spline</source>
        <translation>Spline</translation>
    </message>
    <message>
        <source>Stretch</source>
        <translation>Étirer</translation>
    </message>
    <message>
        <source>Synchronize attributes</source>
        <translation>Synchroniser les attributs</translation>
    </message>
    <message>
        <source>System &amp;variables</source>
        <translation>&amp;Variables système</translation>
    </message>
    <message>
        <source>Take back the last layer change</source>
        <translation>Annuler la dernière modification de calques</translation>
    </message>
    <message>
        <source>Text</source>
        <translation>Texte</translation>
    </message>
    <message>
        <source>Text of one line</source>
        <translation>Texte sur une ligne</translation>
    </message>
    <message>
        <source>Text style</source>
        <translation>Style de texte</translation>
    </message>
    <message>
        <source>Texts to a paragraph</source>
        <translation>Textes en un paragraphe</translation>
    </message>
    <message>
        <source>Thaw all</source>
        <translation>Tout dégeler</translation>
    </message>
    <message>
        <source>The viewport that is worked through shows a scale of 1:1</source>
        <translation>La fenêtre où l&apos;on travaille affiche à l&apos;échelle 1:1</translation>
    </message>
    <message>
        <source>The viewport that is worked through shows a scale of 1:10</source>
        <translation>La fenêtre où l&apos;on travaille affiche à l&apos;échelle 1:10</translation>
    </message>
    <message>
        <source>The viewport that is worked through shows a scale of 1:100</source>
        <translation>La fenêtre où l&apos;on travaille affiche à l&apos;échelle 1:100</translation>
    </message>
    <message>
        <source>The viewport that is worked through shows a scale of 1:2</source>
        <translation>La fenêtre où l&apos;on travaille affiche à l&apos;échelle 1:2</translation>
    </message>
    <message>
        <source>The viewport that is worked through shows a scale of 1:20</source>
        <translation>La fenêtre où l&apos;on travaille affiche à l&apos;échelle 1:20</translation>
    </message>
    <message>
        <source>The viewport that is worked through shows a scale of 1:5</source>
        <translation>La fenêtre où l&apos;on travaille affiche à l&apos;échelle 1:5</translation>
    </message>
    <message>
        <source>The viewport that is worked through shows a scale of 1:50</source>
        <translation>La fenêtre où l&apos;on travaille affiche à l&apos;échelle 1:50</translation>
    </message>
    <message>
        <source>Times</source>
        <translation>Dates et durées</translation>
    </message>
    <message>
        <source>To the current layer</source>
        <translation>Sur le calque courant</translation>
    </message>
    <message>
        <source>To the layer of another one</source>
        <translation>Sur le calque d&apos;un autre</translation>
    </message>
    <message>
        <source>Trim</source>
        <translation>Ajuster</translation>
    </message>
    <message>
        <source>Turn all on</source>
        <translation>Tout activer</translation>
    </message>
    <message>
        <source>Turn off</source>
        <translation>Désactiver</translation>
    </message>
    <message>
        <source>Units</source>
        <translation>Unités</translation>
    </message>
    <message>
        <source>Unlock</source>
        <translation>Déverrouiller</translation>
    </message>
    <message>
        <source>Update expressions of texts</source>
        <translation>Actualiser les expressions des textes</translation>
    </message>
    <message>
        <source>User coordinate system</source>
        <translation>Système de coordonnées utilisateur</translation>
    </message>
    <message>
        <source>Viewports of &amp;a sheet</source>
        <translation>Fenêtres d&apos;une feui&amp;lle</translation>
    </message>
    <message>
        <source>W&amp;hite ground</source>
        <translation>Fon&amp;d blanc</translation>
    </message>
    <message>
        <source>With one end</source>
        <translation>À une extrémité</translation>
    </message>
    <message>
        <source>Without ends</source>
        <translation>Sans extrémités</translation>
    </message>
    <message>
        <source>Write a block to a file</source>
        <translation>Écrire un bloc dans un fichier</translation>
    </message>
    <message>
        <source>Writes down what you do as a session that plays</source>
        <translation>Note ce que vous faites en une session qui se joue</translation>
    </message>
    <message>
        <source>Writes what is drawn as a page</source>
        <translation>Écrit ce qui est dessiné en page</translation>
    </message>
    <message>
        <source>Writes what is drawn as a picture</source>
        <translation>Écrit ce qui est dessiné en image</translation>
    </message>
    <message>
        <source>Writes what is drawn as lines and areas</source>
        <translation>Écrit ce qui est dessiné en lignes et surfaces</translation>
    </message>
    <message>
        <source>Zoom &amp;extents</source>
        <translation>Zoom é&amp;tendu</translation>
    </message>
    <message>
        <source>Zoom &amp;in</source>
        <translation>Zoom a&amp;vant</translation>
    </message>
    <message>
        <source>Zoom &amp;out</source>
        <translation>Zoom a&amp;rrière</translation>
    </message>
    <message>
        <source>Zoom &amp;window</source>
        <translation>Zoom &amp;fenêtre</translation>
    </message>
    <message>
        <source>Draw</source>
        <translation>Dessin</translation>
    </message>
    <message>
        <source>Modify</source>
        <translation>Modification</translation>
    </message>
    <message>
        <source>Standard</source>
        <translation>Standard</translation>
    </message>
</context>
<context>
    <name>Panels</name>
    <message>
        <source>Properties</source>
        <translation>Propriétés</translation>
    </message>
    <message>
        <source>Layers</source>
        <translation>Calques</translation>
    </message>
    <message>
        <source>Results</source>
        <translation>Résultats</translation>
    </message>
</context>
<context>
    <name>Playback</name>
    <message>
        <source>nobody is there to answer %1</source>
        <translation>personne n&apos;est là pour répondre à %1</translation>
    </message>
    <message>
        <source>it took longer than %1 s</source>
        <translation>cela a duré plus de %1 s</translation>
    </message>
    <message>
        <source> saying &quot;%1&quot;</source>
        <translation> qui dit &quot;%1&quot;</translation>
    </message>
    <message>
        <source>${%1} is not known</source>
        <translation>${%1} n&apos;est pas connu</translation>
    </message>
    <message>
        <source>%1 cannot be checked</source>
        <translation>%1 ne peut pas être coché</translation>
    </message>
    <message>
        <source>%1 cannot be written to</source>
        <translation>impossible d&apos;écrire dans %1</translation>
    </message>
    <message>
        <source>%1 does not take &quot;%2&quot;</source>
        <translation>%1 n&apos;accepte pas &quot;%2&quot;</translation>
    </message>
    <message>
        <source>%1 does not take &quot;%2&quot;; it shows &quot;%3&quot;</source>
        <translation>%1 n&apos;accepte pas &quot;%2&quot;&#xa0;; il affiche &quot;%3&quot;</translation>
    </message>
    <message>
        <source>%1 has no button &quot;%2&quot;</source>
        <translation>%1 n&apos;a pas de bouton &quot;%2&quot;</translation>
    </message>
    <message>
        <source>%1 has no cell %2, %3</source>
        <translation>%1 n&apos;a pas de cellule %2, %3</translation>
    </message>
    <message>
        <source>%1 has no item &quot;%2&quot;; it has %3</source>
        <translation>%1 n&apos;a pas d&apos;élément &quot;%2&quot;&#xa0;; il a %3</translation>
    </message>
    <message>
        <source>%1 has no row &quot;%2&quot;</source>
        <translation>%1 n&apos;a pas de ligne &quot;%2&quot;</translation>
    </message>
    <message>
        <source>%1 has no tab &quot;%2&quot;</source>
        <translation>%1 n&apos;a pas d&apos;onglet &quot;%2&quot;</translation>
    </message>
    <message>
        <source>%1 has no value to set</source>
        <translation>%1 n&apos;a pas de valeur à définir</translation>
    </message>
    <message>
        <source>%1 has no widget &quot;%2&quot;; it has %3</source>
        <translation>%1 n&apos;a pas d&apos;élément &quot;%2&quot;&#xa0;; il a %3</translation>
    </message>
    <message>
        <source>%1 has the keyboard</source>
        <translation>%1 a le clavier</translation>
    </message>
    <message>
        <source>%1 is disabled</source>
        <translation>%1 est désactivé</translation>
    </message>
    <message>
        <source>%1 is no UTF-8 text</source>
        <translation>%1 n&apos;est pas un texte UTF-8</translation>
    </message>
    <message>
        <source>%1 is no list, table or tree</source>
        <translation>%1 n&apos;est ni une liste, ni un tableau, ni un arbre</translation>
    </message>
    <message>
        <source>%1 is not visible</source>
        <translation>%1 n&apos;est pas visible</translation>
    </message>
    <message>
        <source>%1 is open</source>
        <translation>%1 est ouvert</translation>
    </message>
    <message>
        <source>%1 is still open</source>
        <translation>%1&#xa0;: encore ouvert</translation>
    </message>
    <message>
        <source>%1 is too long for a session</source>
        <translation>%1 est trop long pour une session</translation>
    </message>
    <message>
        <source>%1 stays as it is; another button of its group must be checked</source>
        <translation>%1 reste tel quel&#xa0;; un autre bouton de son groupe doit être coché</translation>
    </message>
    <message>
        <source>%1 takes no file name</source>
        <translation>%1 n&apos;accepte pas de nom de fichier</translation>
    </message>
    <message>
        <source>%1 took &quot;%2&quot;</source>
        <translation>%1 a pris &quot;%2&quot;</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is neither yes nor no (on, off)</source>
        <translation>&quot;%1&quot; n&apos;est ni yes ni no (on, off)</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no handle</source>
        <translation>&quot;%1&quot; n&apos;est pas un identificateur d&apos;objet</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no key</source>
        <translation>&quot;%1&quot; n&apos;est pas une touche</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no point; write x,y or x,y,z</source>
        <translation>&quot;%1&quot; n&apos;est pas un point&#xa0;; écrivez x,y ou x,y,z</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no whole number from 0 up</source>
        <translation>&quot;%1&quot; n&apos;est pas un nombre entier à partir de 0</translation>
    </message>
    <message>
        <source>a quote is not closed, or text follows right behind it</source>
        <translation>un guillemet n&apos;est pas fermé, ou du texte le suit immédiatement</translation>
    </message>
    <message>
        <source>a view needs two corners</source>
        <translation>une vue demande deux coins</translation>
    </message>
    <message>
        <source>cancelled at %1, </source>
        <translation>annulé à %1, </translation>
    </message>
    <message>
        <source>cannot read %1: %2</source>
        <translation>impossible de lire %1&#xa0;: %2</translation>
    </message>
    <message>
        <source>cell %1, %2 of %3 cannot be written to</source>
        <translation>la cellule %1, %2 de %3 n&apos;est pas modifiable</translation>
    </message>
    <message>
        <source>cell %1, %2 of %3 does not take &quot;%4&quot;</source>
        <translation>la cellule %1, %2 de %3 n&apos;accepte pas &quot;%4&quot;</translation>
    </message>
    <message>
        <source>dialog %1</source>
        <translation>boîte de dialogue %1</translation>
    </message>
    <message>
        <source>done again, the drawing differs from what it was: %1</source>
        <translation>après rétablissement, le dessin diffère de ce qu&apos;il était&#xa0;: %1</translation>
    </message>
    <message>
        <source>drawing: only the first line says which drawing it is</source>
        <translation>drawing&#xa0;: seule la première ligne dit de quel dessin il s&apos;agit</translation>
    </message>
    <message>
        <source>end: no part was begun</source>
        <translation>end&#xa0;: aucune partie n&apos;a été commencée</translation>
    </message>
    <message>
        <source>it is disabled</source>
        <translation>il est désactivé</translation>
    </message>
    <message>
        <source>it is enabled</source>
        <translation>il est activé</translation>
    </message>
    <message>
        <source>it is nil</source>
        <translation>c&apos;est nil</translation>
    </message>
    <message>
        <source>it is not visible</source>
        <translation>il n&apos;est pas visible</translation>
    </message>
    <message>
        <source>it is visible</source>
        <translation>il est visible</translation>
    </message>
    <message>
        <source>it shows &quot;%1&quot;</source>
        <translation>il affiche &quot;%1&quot;</translation>
    </message>
    <message>
        <source>it stands in front of a command or lisp</source>
        <translation>cela se place devant une commande ou lisp</translation>
    </message>
    <message>
        <source>line %1%2 (%3): </source>
        <translation>ligne %1%2 (%3)&#xa0;: </translation>
    </message>
    <message>
        <source>line %1: %2</source>
        <translation>ligne %1&#xa0;: %2</translation>
    </message>
    <message>
        <source>line %1: the session has cases, each of which wants the drawing opened anew</source>
        <translation>ligne %1&#xa0;: la session a des cas, qui demandent chacun que le dessin soit rouvert</translation>
    </message>
    <message>
        <source>no arguments</source>
        <translation>aucun argument</translation>
    </message>
    <message>
        <source>no dialog</source>
        <translation>aucune boîte de dialogue</translation>
    </message>
    <message>
        <source>no folder was given to write to (--out)</source>
        <translation>aucun dossier où écrire n&apos;a été donné (--out)</translation>
    </message>
    <message>
        <source>no program was given that reads drawings (--audit, or the environment&apos;s ORTAKIT_AUDIT)</source>
        <translation>aucun programme lisant les dessins n&apos;a été donné (--audit, ou ORTAKIT_AUDIT dans l&apos;environnement)</translation>
    </message>
    <message>
        <source>no prompt and no dialog is open that this could be meant for</source>
        <translation>ni invite ni boîte de dialogue n&apos;est ouverte à laquelle cela pourrait s&apos;adresser</translation>
    </message>
    <message>
        <source>nothing has the keyboard</source>
        <translation>rien n&apos;a le clavier</translation>
    </message>
    <message>
        <source>nothing with a name</source>
        <translation>rien qui ait un nom</translation>
    </message>
    <message>
        <source>part %1, line %2</source>
        <translation>partie %1, ligne %2</translation>
    </message>
    <message>
        <source>part: a part cannot be written in a part</source>
        <translation>part&#xa0;: une partie ne peut pas être écrite dans une partie</translation>
    </message>
    <message>
        <source>part: it has no end</source>
        <translation>part&#xa0;: elle n&apos;a pas de fin</translation>
    </message>
    <message>
        <source>part: the part before it has no end</source>
        <translation>part&#xa0;: la partie précédente n&apos;a pas de fin</translation>
    </message>
    <message>
        <source>part: there is a part %1 already</source>
        <translation>part&#xa0;: il y a déjà une partie %1</translation>
    </message>
    <message>
        <source>play: the part %1 plays itself</source>
        <translation>play&#xa0;: la partie %1 se joue elle-même</translation>
    </message>
    <message>
        <source>play: the part %1 takes %2</source>
        <translation>play&#xa0;: la partie %1 prend %2</translation>
    </message>
    <message>
        <source>play: the parts write too much</source>
        <translation>play&#xa0;: les parties écrivent trop</translation>
    </message>
    <message>
        <source>play: there is no part %1</source>
        <translation>play&#xa0;: il n&apos;y a pas de partie %1</translation>
    </message>
    <message>
        <source>play: too many parts are played one in the other</source>
        <translation>play&#xa0;: trop de parties sont jouées l&apos;une dans l&apos;autre</translation>
    </message>
    <message>
        <source>row &quot;%1&quot; of %2 cannot be checked</source>
        <translation>la ligne &quot;%1&quot; de %2 ne peut pas être cochée</translation>
    </message>
    <message>
        <source>row &quot;%1&quot; of %2 is not visible</source>
        <translation>la ligne &quot;%1&quot; de %2 n&apos;est pas visible</translation>
    </message>
    <message>
        <source>something is missing at the end of the line</source>
        <translation>il manque quelque chose à la fin de la ligne</translation>
    </message>
    <message>
        <source>the changes are &quot;%1&quot;</source>
        <translation>les modifications sont &quot;%1&quot;</translation>
    </message>
    <message>
        <source>the drawing differs from what it was: %1</source>
        <translation>le dessin diffère de ce qu&apos;il était&#xa0;: %1</translation>
    </message>
    <message>
        <source>the drawing has no entity with the handle %1</source>
        <translation>le dessin n&apos;a pas d&apos;objet avec l&apos;identificateur %1</translation>
    </message>
    <message>
        <source>the drawing is unchanged</source>
        <translation>le dessin est inchangé</translation>
    </message>
    <message>
        <source>the drawing was changed</source>
        <translation>le dessin a été modifié</translation>
    </message>
    <message>
        <source>the error is &quot;%1&quot;</source>
        <translation>l&apos;erreur est &quot;%1&quot;</translation>
    </message>
    <message>
        <source>the file does not hold it; its text is &quot;%1&quot;</source>
        <translation>le fichier ne le contient pas&#xa0;; son texte est &quot;%1&quot;</translation>
    </message>
    <message>
        <source>the file is there</source>
        <translation>le fichier est présent</translation>
    </message>
    <message>
        <source>the file&apos;s text is &quot;%1&quot;</source>
        <translation>le texte du fichier est &quot;%1&quot;</translation>
    </message>
    <message>
        <source>the files differ at byte %1: &quot;%2&quot; and &quot;%3&quot;</source>
        <translation>les fichiers diffèrent à l&apos;octet %1&#xa0;: &quot;%2&quot; et &quot;%3&quot;</translation>
    </message>
    <message>
        <source>the items are &quot;%1&quot;</source>
        <translation>les éléments sont &quot;%1&quot;</translation>
    </message>
    <message>
        <source>the line goes on (it ends in a backslash), but the session ends</source>
        <translation>la ligne continue (elle finit par une barre oblique inverse), mais la session finit</translation>
    </message>
    <message>
        <source>the list went away while rows were selected</source>
        <translation>la liste a disparu pendant la sélection de lignes</translation>
    </message>
    <message>
        <source>the menu has no entry &quot;%1&quot;; it has %2</source>
        <translation>le menu n&apos;a pas d&apos;entrée &quot;%1&quot;&#xa0;; il a %2</translation>
    </message>
    <message>
        <source>the menu&apos;s entry &quot;%1&quot; is disabled</source>
        <translation>l&apos;entrée de menu &quot;%1&quot; est désactivée</translation>
    </message>
    <message>
        <source>the order of its records</source>
        <translation>l&apos;ordre de ses enregistrements</translation>
    </message>
    <message>
        <source>the prompt &quot;%1&quot;</source>
        <translation>l&apos;invite &quot;%1&quot;</translation>
    </message>
    <message>
        <source>the reader %1 does not answer</source>
        <translation>le lecteur %1 ne répond pas</translation>
    </message>
    <message>
        <source>the reader takes no names with line feeds</source>
        <translation>le lecteur n&apos;accepte pas les noms avec des sauts de ligne</translation>
    </message>
    <message>
        <source>the run before it ended without an error</source>
        <translation>l&apos;exécution précédente a fini sans erreur</translation>
    </message>
    <message>
        <source>the run changed nothing</source>
        <translation>l&apos;exécution n&apos;a rien modifié</translation>
    </message>
    <message>
        <source>the run ended with &quot;%1&quot;</source>
        <translation>l&apos;exécution a fini par &quot;%1&quot;</translation>
    </message>
    <message>
        <source>the session ends while %1 is open</source>
        <translation>la session finit alors que ceci est ouvert&#xa0;: %1</translation>
    </message>
    <message>
        <source>the session took longer than %1 s; open is %2</source>
        <translation>la session a duré plus de %1 s&#xa0;; est ouvert&#xa0;: %2</translation>
    </message>
    <message>
        <source>the title is &quot;%1&quot;</source>
        <translation>le titre est &quot;%1&quot;</translation>
    </message>
    <message>
        <source>the widget went away while it was typed into</source>
        <translation>l&apos;élément de saisie a disparu pendant la frappe</translation>
    </message>
    <message>
        <source>there are %1</source>
        <translation>il y en a %1</translation>
    </message>
    <message>
        <source>there is %1</source>
        <translation>il y a %1</translation>
    </message>
    <message>
        <source>there is no panel &quot;%1&quot;</source>
        <translation>il n&apos;y a pas de panneau &quot;%1&quot;</translation>
    </message>
    <message>
        <source>there is nothing to redo</source>
        <translation>il n&apos;y a rien à rétablir</translation>
    </message>
    <message>
        <source>there is nothing to undo</source>
        <translation>il n&apos;y a rien à annuler</translation>
    </message>
    <message>
        <source>there was no run before it</source>
        <translation>il n&apos;y a pas eu d&apos;exécution avant</translation>
    </message>
    <message>
        <source>too much on the line: &quot;%1&quot;</source>
        <translation>il y a quelque chose de trop sur la ligne&#xa0;: &quot;%1&quot;</translation>
    </message>
    <message>
        <source>undone, the drawing differs from what it was: %1</source>
        <translation>après annulation, le dessin diffère de ce qu&apos;il était&#xa0;: %1</translation>
    </message>
    <message>
        <source>unknown word &quot;%1&quot;</source>
        <translation>mot inconnu &quot;%1&quot;</translation>
    </message>
    <message>
        <source>what cannot be read again</source>
        <translation>ce qui ne peut pas être relu</translation>
    </message>
    <message>
        <source>what was printed is &quot;%1&quot;</source>
        <translation>ce qui a été affiché est &quot;%1&quot;</translation>
    </message>
</context>
<context>
    <name>Properties</name>
    <message>
        <source>General</source>
        <translation>Général</translation>
    </message>
    <message>
        <source>Geometry</source>
        <translation>Géométrie</translation>
    </message>
    <message>
        <source>Text</source>
        <translation>Texte</translation>
    </message>
    <message>
        <source>Misc</source>
        <translation>Divers</translation>
    </message>
    <message>
        <source>Color</source>
        <translation>Couleur</translation>
    </message>
    <message>
        <source>Layer</source>
        <translation>Calque</translation>
    </message>
    <message>
        <source>Linetype</source>
        <translation>Type de ligne</translation>
    </message>
    <message>
        <source>Linetype scale</source>
        <translation>Échelle du type de ligne</translation>
    </message>
    <message>
        <source>Lineweight</source>
        <translation>Épaisseur de ligne</translation>
    </message>
    <message>
        <source>Thickness</source>
        <translation>Épaisseur</translation>
    </message>
    <message>
        <source>Text style</source>
        <translation>Style de texte</translation>
    </message>
    <message>
        <source>Dimension style</source>
        <translation>Style de cote</translation>
    </message>
    <message>
        <source>Of what is drawn next</source>
        <translation>De ce qui sera dessiné ensuite</translation>
    </message>
    <message>
        <source>Property</source>
        <translation>Propriété</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>Valeur</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no color.</source>
        <translation>&quot;%1&quot; n&apos;est pas une couleur.</translation>
    </message>
    <message>
        <source>There is no layer &quot;%1&quot;.</source>
        <translation>Il n&apos;y a pas de calque &quot;%1&quot;.</translation>
    </message>
    <message>
        <source>There is no linetype &quot;%1&quot;.</source>
        <translation>Il n&apos;y a pas de type de ligne &quot;%1&quot;.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no lineweight.</source>
        <translation>&quot;%1&quot; n&apos;est pas une épaisseur de ligne.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no transparency: ByLayer, ByBlock or 0 to 90.</source>
        <translation>&quot;%1&quot; n&apos;est pas une transparence&#xa0;: ByLayer, ByBlock ou 0 à 90.</translation>
    </message>
    <message>
        <source>%1: the current color is one of the table.</source>
        <translation>%1&#xa0;: la couleur courante doit être l&apos;une de la table.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no angle.</source>
        <translation>&quot;%1&quot; n&apos;est pas un angle.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no number.</source>
        <translation>&quot;%1&quot; n&apos;est pas un nombre.</translation>
    </message>
    <message>
        <source>%1: it must be more than 0.</source>
        <translation>%1&#xa0;: la valeur doit être supérieure à 0.</translation>
    </message>
    <message>
        <source>%1: it must not be 0.</source>
        <translation>%1&#xa0;: la valeur ne doit pas être 0.</translation>
    </message>
    <message>
        <source>*varies*</source>
        <translation>*divers*</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no whole number.</source>
        <translation>&quot;%1&quot; n&apos;est pas un nombre entier.</translation>
    </message>
    <message>
        <source>Other...</source>
        <translation>Autre...</translation>
    </message>
    <message>
        <source>Transparency</source>
        <translation>Transparence</translation>
    </message>
    <message>
        <source>Plot style</source>
        <translation>Style de tracé</translation>
    </message>
    <message>
        <source>Corner 1</source>
        <translation>Coin 1</translation>
    </message>
    <message>
        <source>Corner 2</source>
        <translation>Coin 2</translation>
    </message>
    <message>
        <source>Corner 3</source>
        <translation>Coin 3</translation>
    </message>
    <message>
        <source>Corner 4</source>
        <translation>Coin 4</translation>
    </message>
    <message>
        <source>Center</source>
        <translation>Centre</translation>
    </message>
    <message>
        <source>Radius</source>
        <translation>Rayon</translation>
    </message>
    <message>
        <source>Start angle</source>
        <translation>Angle de départ</translation>
    </message>
    <message>
        <source>End angle</source>
        <translation>Angle de fin</translation>
    </message>
    <message>
        <source>Start</source>
        <translation>Départ</translation>
    </message>
    <message>
        <source>End</source>
        <translation>Fin</translation>
    </message>
    <message>
        <source>Total angle</source>
        <translation>Angle total</translation>
    </message>
    <message>
        <source>Arc length</source>
        <translation>Longueur d&apos;arc</translation>
    </message>
    <message>
        <source>Area</source>
        <translation>Aire</translation>
    </message>
    <message>
        <source>Height</source>
        <translation>Hauteur</translation>
    </message>
    <message>
        <source>Position</source>
        <translation>Position</translation>
    </message>
    <message>
        <source>Prompt</source>
        <translation>Invite</translation>
    </message>
    <message>
        <source>Rotation</source>
        <translation>Rotation</translation>
    </message>
    <message>
        <source>Tag</source>
        <translation>Étiquette</translation>
    </message>
    <message>
        <source>Diameter</source>
        <translation>Diamètre</translation>
    </message>
    <message>
        <source>Circumference</source>
        <translation>Circonférence</translation>
    </message>
    <message>
        <source>Text override</source>
        <translation>Texte de remplacement</translation>
    </message>
    <message>
        <source>Measurement</source>
        <translation>Mesure</translation>
    </message>
    <message>
        <source>Major axis</source>
        <translation>Grand axe</translation>
    </message>
    <message>
        <source>Radius ratio</source>
        <translation>Rapport des rayons</translation>
    </message>
    <message>
        <source>Start parameter</source>
        <translation>Paramètre de départ</translation>
    </message>
    <message>
        <source>End parameter</source>
        <translation>Paramètre de fin</translation>
    </message>
    <message>
        <source>Length</source>
        <translation>Longueur</translation>
    </message>
    <message>
        <source>Angle</source>
        <translation>Angle</translation>
    </message>
    <message>
        <source>Pattern</source>
        <translation>Motif</translation>
    </message>
    <message>
        <source>Scale</source>
        <translation>Échelle</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Nom</translation>
    </message>
    <message>
        <source>Scale X</source>
        <translation>Échelle X</translation>
    </message>
    <message>
        <source>Scale Y</source>
        <translation>Échelle Y</translation>
    </message>
    <message>
        <source>Scale Z</source>
        <translation>Échelle Z</translation>
    </message>
    <message>
        <source>Delta</source>
        <translation>Delta</translation>
    </message>
    <message>
        <source>Global width</source>
        <translation>Largeur globale</translation>
    </message>
    <message>
        <source>Elevation</source>
        <translation>Élévation</translation>
    </message>
    <message>
        <source>Vertices</source>
        <translation>Sommets</translation>
    </message>
    <message>
        <source>Contents</source>
        <translation>Contenu</translation>
    </message>
    <message>
        <source>Style</source>
        <translation>Style</translation>
    </message>
    <message>
        <source>Location</source>
        <translation>Emplacement</translation>
    </message>
    <message>
        <source>Attachment</source>
        <translation>Justification</translation>
    </message>
    <message>
        <source>Width</source>
        <translation>Largeur</translation>
    </message>
    <message>
        <source>Direction</source>
        <translation>Direction</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Taille</translation>
    </message>
    <message>
        <source>Degree</source>
        <translation>Degré</translation>
    </message>
    <message>
        <source>Alignment point</source>
        <translation>Point d&apos;alignement</translation>
    </message>
    <message>
        <source>Horizontal mode</source>
        <translation>Alignement horizontal</translation>
    </message>
    <message>
        <source>Obliquing</source>
        <translation>Inclinaison</translation>
    </message>
    <message>
        <source>Vertical mode</source>
        <translation>Alignement vertical</translation>
    </message>
    <message>
        <source>Width factor</source>
        <translation>Facteur de largeur</translation>
    </message>
    <message>
        <source>Base point</source>
        <translation>Point de base</translation>
    </message>
</context>
<context>
    <name>QObject</name>
    <message>
        <source>Message</source>
        <translation>Message</translation>
    </message>
    <message>
        <source>All files (*)</source>
        <translation>Tous les fichiers (*)</translation>
    </message>
    <message>
        <source>Choose a folder</source>
        <translation>Choisir un dossier</translation>
    </message>
</context>
<context>
    <name>RenderReport</name>
    <message>
        <source>%1 drawn</source>
        <translation>%1 dessinés</translation>
    </message>
    <message>
        <source>%1 invisible</source>
        <translation>%1 invisibles</translation>
    </message>
    <message>
        <source>simplified</source>
        <translation>simplifié</translation>
    </message>
    <message>
        <source>skipped</source>
        <translation>ignoré</translation>
    </message>
    <message>
        <source>not drawn</source>
        <translation>non dessinés</translation>
    </message>
    <message>
        <source>drawn in part</source>
        <translation>dessinés en partie</translation>
    </message>
    <message>
        <source>cut short: there is more than is drawn in one go</source>
        <translation>interrompu&#xa0;: il y a plus que ce qui est dessiné en une fois</translation>
    </message>
</context>
<context>
    <name>Settings</name>
    <message>
        <source>Window</source>
        <translation>Fenêtre</translation>
    </message>
    <message>
        <source>Style of windows</source>
        <translation>Style des fenêtres</translation>
    </message>
    <message>
        <source>0=Light|1=Dark</source>
        <translation>0=Clair|1=Sombre</translation>
    </message>
    <message>
        <source>The colours of windows and dialogs</source>
        <translation>Les couleurs des fenêtres et des boîtes de dialogue</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>Langue</translation>
    </message>
    <message>
        <source>0=System|1=English|2=Deutsch|3=Français|4=Español|5=Italiano</source>
        <translation>0=System|1=English|2=Deutsch|3=Français|4=Español|5=Italiano</translation>
    </message>
    <message>
        <source>Of windows, dialogs and prompts; it counts from the next start</source>
        <translation>Des fenêtres, des boîtes de dialogue et des invites&#xa0;; prise en compte au prochain démarrage</translation>
    </message>
    <message>
        <source>Ground of drawings</source>
        <translation>Fond des dessins</translation>
    </message>
    <message>
        <source>0=Black|1=White</source>
        <translation>0=Noir|1=Blanc</translation>
    </message>
    <message>
        <source>What drawings lie on</source>
        <translation>Ce sur quoi les dessins reposent</translation>
    </message>
    <message>
        <source>Length of the cross-hair, percent</source>
        <translation>Longueur du réticule, pour cent</translation>
    </message>
    <message>
        <source>Right button</source>
        <translation>Bouton droit</translation>
    </message>
    <message>
        <source>File dialogs</source>
        <translation>Boîtes de dialogue de fichiers</translation>
    </message>
    <message>
        <source>Attributes of a block are asked for in a dialog</source>
        <translation>Les attributs d&apos;un bloc sont demandés dans une boîte de dialogue</translation>
    </message>
    <message>
        <source>Snap</source>
        <translation>Accrochage</translation>
    </message>
    <message>
        <source>End points</source>
        <translation>Extrémités</translation>
    </message>
    <message>
        <source>Middle points</source>
        <translation>Milieux</translation>
    </message>
    <message>
        <source>Centres</source>
        <translation>Centres</translation>
    </message>
    <message>
        <source>Nodes</source>
        <translation>Points nodaux</translation>
    </message>
    <message>
        <source>Quadrants</source>
        <translation>Quadrants</translation>
    </message>
    <message>
        <source>Intersections</source>
        <translation>Intersections</translation>
    </message>
    <message>
        <source>Insertion points</source>
        <translation>Points d&apos;insertion</translation>
    </message>
    <message>
        <source>Perpendicular</source>
        <translation>Perpendiculaire</translation>
    </message>
    <message>
        <source>Tangent</source>
        <translation>Tangente</translation>
    </message>
    <message>
        <source>Nearest</source>
        <translation>Proche</translation>
    </message>
    <message>
        <source>Reach of snaps, pixels</source>
        <translation>Portée de l&apos;accrochage, pixels</translation>
    </message>
    <message>
        <source>Ortho</source>
        <translation>Ortho</translation>
    </message>
    <message>
        <source>Grid shown</source>
        <translation>Grille affichée</translation>
    </message>
    <message>
        <source>Snap to the grid</source>
        <translation>Accrochage à la grille</translation>
    </message>
    <message>
        <source>Typed coordinates and snaps</source>
        <translation>Coordonnées saisies et accrochage</translation>
    </message>
    <message>
        <source>0=Snaps move typed points|1=Typed points stay|2=Typed points stay, but in scripts</source>
        <translation>0=L&apos;accrochage déplace les points saisis|1=Les points saisis restent|2=Les points saisis restent, sauf dans les scripts</translation>
    </message>
    <message>
        <source>Display</source>
        <translation>Affichage</translation>
    </message>
    <message>
        <source>Lineweights</source>
        <translation>Épaisseurs de ligne</translation>
    </message>
    <message>
        <source>Lineweight of &quot;Default&quot;, hundredths of a millimetre</source>
        <translation>Épaisseur de ligne de &quot;Default&quot;, centièmes de millimètre</translation>
    </message>
    <message>
        <source>Areas are filled</source>
        <translation>Les surfaces sont remplies</translation>
    </message>
    <message>
        <source>Texts as boxes</source>
        <translation>Textes en rectangles</translation>
    </message>
    <message>
        <source>Frames of images</source>
        <translation>Cadres des images</translation>
    </message>
    <message>
        <source>0=Hidden|1=Shown and plotted|2=Shown only</source>
        <translation>0=Cachés|1=Affichés et tracés|2=Affichés seulement</translation>
    </message>
    <message>
        <source>Frames of masks</source>
        <translation>Cadres des masques</translation>
    </message>
    <message>
        <source>Scale of linetypes</source>
        <translation>Échelle des types de ligne</translation>
    </message>
    <message>
        <source>Font in place of missing ones</source>
        <translation>Police remplaçant celles qui manquent</translation>
    </message>
    <message>
        <source>Selection</source>
        <translation>Sélection</translation>
    </message>
    <message>
        <source>Choose first, then the command</source>
        <translation>Sélectionner d&apos;abord, puis la commande</translation>
    </message>
    <message>
        <source>What is picked is added</source>
        <translation>Ce qui est désigné s&apos;ajoute</translation>
    </message>
    <message>
        <source>0=With Shift only|1=Always|2=Always, and stays chosen</source>
        <translation>0=Avec Maj seulement|1=Toujours|2=Toujours, et reste sélectionné</translation>
    </message>
    <message>
        <source>Groups are chosen whole</source>
        <translation>Les groupes sont sélectionnés en entier</translation>
    </message>
    <message>
        <source>Hatches are chosen with their boundaries</source>
        <translation>Les hachures sont sélectionnées avec leurs contours</translation>
    </message>
    <message>
        <source>Size of the pick box, pixels</source>
        <translation>Taille de la cible de sélection, pixels</translation>
    </message>
    <message>
        <source>Chosen entities are marked</source>
        <translation>Les objets sélectionnés sont mis en évidence</translation>
    </message>
    <message>
        <source>Marks under the pointer while nothing runs</source>
        <translation>Mise en évidence sous le pointeur quand rien ne s&apos;exécute</translation>
    </message>
    <message>
        <source>Marks under the pointer while a command asks</source>
        <translation>Mise en évidence sous le pointeur quand une commande le demande</translation>
    </message>
    <message>
        <source>Grips</source>
        <translation>Poignées</translation>
    </message>
    <message>
        <source>0=None|1=Shown|2=Shown, of segments too</source>
        <translation>0=Aucune|1=Affichées|2=Affichées, des segments aussi</translation>
    </message>
    <message>
        <source>Size of grips, pixels</source>
        <translation>Taille des poignées, pixels</translation>
    </message>
    <message>
        <source>No grips beyond so many entities</source>
        <translation>Pas de poignées au-delà de tant d&apos;objets</translation>
    </message>
    <message>
        <source>Units</source>
        <translation>Unités</translation>
    </message>
    <message>
        <source>Lengths</source>
        <translation>Longueurs</translation>
    </message>
    <message>
        <source>1=Scientific|2=Decimal|3=Engineering|4=Architectural|5=Fractional</source>
        <translation>1=Scientifique|2=Décimal|3=Ingénierie|4=Architecture|5=Fractionnaire</translation>
    </message>
    <message>
        <source>Places of lengths</source>
        <translation>Décimales des longueurs</translation>
    </message>
    <message>
        <source>Angles</source>
        <translation>Angles</translation>
    </message>
    <message>
        <source>0=Degrees|1=Degrees, minutes, seconds|2=Grads|3=Radians|4=Surveyor&apos;s units</source>
        <translation>0=Degrés|1=Degrés, minutes, secondes|2=Grades|3=Radians|4=Unités géodésiques</translation>
    </message>
    <message>
        <source>Places of angles</source>
        <translation>Décimales des angles</translation>
    </message>
    <message>
        <source>A drawing unit is</source>
        <translation>Une unité de dessin est</translation>
    </message>
    <message>
        <source>0=Not said|1=An inch|2=A foot|4=A millimetre|5=A centimetre|6=A metre|7=A kilometre</source>
        <translation>0=Non précisé|1=Un pouce|2=Un pied|4=Un millimètre|5=Un centimètre|6=Un mètre|7=Un kilomètre</translation>
    </message>
    <message>
        <source>Saving</source>
        <translation>Enregistrement</translation>
    </message>
    <message>
        <source>A backup is kept of what is saved over</source>
        <translation>Une copie de ce qui est remplacé est conservée</translation>
    </message>
    <message>
        <source>Minutes between saves by itself</source>
        <translation>Minutes entre les enregistrements automatiques</translation>
    </message>
    <message>
        <source>External references tell of changes</source>
        <translation>Les références externes signalent les changements</translation>
    </message>
    <message>
        <source>0=No|1=With a mark|2=With a message</source>
        <translation>0=Non|1=Par une marque|2=Par un message</translation>
    </message>
    <message>
        <source>Lisp</source>
        <translation>Lisp</translation>
    </message>
    <message>
        <source>Programs loaded with each drawing</source>
        <translation>Programmes chargés avec chaque dessin</translation>
    </message>
    <message>
        <source>Full paths, between semicolons, in this order; they count from the next drawing on</source>
        <translation>Chemins complets, séparés par des points-virgules, dans cet ordre&#xa0;; pris en compte à partir du prochain dessin</translation>
    </message>
    <message>
        <source>Most memory of programs, MB</source>
        <translation>Mémoire maximale des programmes, Mo</translation>
    </message>
    <message>
        <source>What programs do is shown</source>
        <translation>Ce que font les programmes est affiché</translation>
    </message>
    <message>
        <source>Folders and trust</source>
        <translation>Dossiers et confiance</translation>
    </message>
    <message>
        <source>Folders whose programs may run</source>
        <translation>Dossiers dont les programmes peuvent s&apos;exécuter</translation>
    </message>
    <message>
        <source>Folders whose files drawings may name</source>
        <translation>Dossiers dont les dessins peuvent nommer les fichiers</translation>
    </message>
</context>
<context>
    <name>SnapMenu</name>
    <message>
        <source>&amp;Endpoint</source>
        <translation>&amp;Extrémité</translation>
    </message>
    <message>
        <source>&amp;Midpoint</source>
        <translation>&amp;Milieu</translation>
    </message>
    <message>
        <source>&amp;Center</source>
        <translation>&amp;Centre</translation>
    </message>
    <message>
        <source>N&amp;ode</source>
        <translation>&amp;Nodal</translation>
    </message>
    <message>
        <source>&amp;Quadrant</source>
        <translation>&amp;Quadrant</translation>
    </message>
    <message>
        <source>&amp;Intersection</source>
        <translation>&amp;Intersection</translation>
    </message>
    <message>
        <source>&amp;Apparent intersection</source>
        <translation>Intersection pro&amp;jetée</translation>
    </message>
    <message>
        <source>E&amp;xtension</source>
        <translation>Prolon&amp;gement</translation>
    </message>
    <message>
        <source>In&amp;sertion point</source>
        <translation>Point d&apos;in&amp;sertion</translation>
    </message>
    <message>
        <source>&amp;Perpendicular</source>
        <translation>&amp;Perpendiculaire</translation>
    </message>
    <message>
        <source>&amp;Tangent</source>
        <translation>&amp;Tangente</translation>
    </message>
    <message>
        <source>Nea&amp;rest</source>
        <translation>P&amp;roche</translation>
    </message>
    <message>
        <source>&amp;None</source>
        <translation>A&amp;ucun</translation>
    </message>
    <message>
        <source>Mid&amp;way between two points</source>
        <translation>Milieu entre &amp;deux points</translation>
    </message>
    <message>
        <source>&amp;From a point</source>
        <translation>À p&amp;artir d&apos;un point</translation>
    </message>
</context>
<context>
    <name>Suggestions</name>
    <message>
        <source>command of a program</source>
        <translation>commande d&apos;un programme</translation>
    </message>
</context>
<context>
    <name>TrustQuestion</name>
    <message>
        <source>&amp;Load once</source>
        <translation>Charger &amp;une fois</translation>
    </message>
    <message>
        <source>&amp;Trust this folder</source>
        <translation>Faire &amp;confiance à ce dossier</translation>
    </message>
    <message>
        <source>Load this program? It can do whatever you can.</source>
        <translation>Charger ce programme&#xa0;? Il peut faire tout ce que vous pouvez faire.</translation>
    </message>
</context>
<context>
    <name>Uses</name>
    <message>
        <source>%1 takes %2 from %3 to %4, not &quot;%5&quot;</source>
        <translation>%1 prend %2 de %3 à %4, non &quot;%5&quot;</translation>
    </message>
    <message>
        <source>%1 is %2, not &quot;%3&quot;</source>
        <translation>%1 est %2, non &quot;%3&quot;</translation>
    </message>
    <message>
        <source>or</source>
        <translation>ou</translation>
    </message>
    <message>
        <source>%1 has no meaning here</source>
        <translation>%1 n&apos;a pas de sens ici</translation>
    </message>
    <message>
        <source>there is no option %1%2</source>
        <translation>il n&apos;y a pas d&apos;option %1%2</translation>
    </message>
    <message>
        <source>%1 needs a value</source>
        <translation>%1 demande une valeur</translation>
    </message>
    <message>
        <source>%1 takes no value</source>
        <translation>%1 ne prend pas de valeur</translation>
    </message>
    <message>
        <source>there is no command %1%2</source>
        <translation>il n&apos;y a pas de commande %1%2</translation>
    </message>
    <message>
        <source>convert needs two files</source>
        <translation>convert demande deux fichiers</translation>
    </message>
    <message>
        <source>the sheet of a layout as its page setup has it; &quot;model&quot; for the page of model space; &quot;all&quot; for every sheet: a page each in a pdf, a file each as png and svg, with its name: OUT-NAME.png</source>
        <translation>la feuille d&apos;une présentation selon sa mise en page&#xa0;; &quot;model&quot; pour la page de l&apos;espace objet&#xa0;; &quot;all&quot; pour chaque feuille&#xa0;: une page chacune dans un pdf, un fichier chacune en png et svg, avec son nom&#xa0;: OUT-NAME.png</translation>
    </message>
    <message>
        <source>another sheet, on which everything is to be seen: A0 to A6, B0 to B6, ANSI-A to ANSI-E, ARCH-A to ARCH-E1 or millimetres as 420x297; -landscape or -portrait behind it turns it</source>
        <translation>une autre feuille, où tout doit être visible&#xa0;: A0 à A6, B0 à B6, ANSI-A à ANSI-E, ARCH-A à ARCH-E1 ou des millimètres comme 420x297&#xa0;; -landscape ou -portrait à la suite l&apos;oriente</translation>
    </message>
    <message>
        <source>millimetres on the sheet to drawing units, in place of what the page says or as fits</source>
        <translation>millimètres sur la feuille pour unités de dessin, au lieu de ce que dit la page ou de ce qui convient</translation>
    </message>
    <message>
        <source>show what lies between these corners, in drawing units</source>
        <translation>montre ce qui se trouve entre ces coins, en unités de dessin</translation>
    </message>
    <message>
        <source>png, svg: so many pixels, 1 to 16000 each way; a sheet goes into their middle</source>
        <translation>png, svg&#xa0;: tant de pixels, 1 à 16000 par côté&#xa0;; une feuille se place en leur milieu</translation>
    </message>
    <message>
        <source>png, svg: pixels an inch of the sheet</source>
        <translation>png, svg&#xa0;: pixels par pouce de la feuille</translation>
    </message>
    <message>
        <source>what it lies on</source>
        <translation>sur quoi il repose</translation>
    </message>
    <message>
        <source>only layers whose names match, as in a layer filter: &quot;walls,door*&quot;</source>
        <translation>seulement les calques dont les noms conviennent, comme dans un filtre de calques&#xa0;: &quot;walls,door*&quot;</translation>
    </message>
    <message>
        <source>pdf, svg: texts as areas, or as text that can be searched</source>
        <translation>pdf, svg&#xa0;: textes en surfaces, ou en texte où l&apos;on peut chercher</translation>
    </message>
    <message>
        <source>a table of plot styles (ctb, stb) in place of what the page names; &quot;none&quot; for none. Without a file there are monochrome, grayscale and screening 25%, 50%, 75%, 100%</source>
        <translation>une table de styles de tracé (ctb, stb) au lieu de celle que nomme la page&#xa0;; &quot;none&quot; pour aucune. Sans fichier il y a monochrome, grayscale et screening 25%, 50%, 75%, 100%</translation>
    </message>
    <message>
        <source>all lines as thin as can be</source>
        <translation>toutes les lignes aussi fines que possible</translation>
    </message>
    <message>
        <source>the most it may take; OUT stays as it was when it takes longer</source>
        <translation>la durée maximale&#xa0;; OUT reste tel quel quand elle est dépassée</translation>
    </message>
    <message>
        <source>no limit</source>
        <translation>aucune limite</translation>
    </message>
    <message>
        <source>write a DXF file in the binary form; without it, as text</source>
        <translation>écrit un fichier DXF sous la forme binaire&#xa0;; sans cela, en texte</translation>
    </message>
    <message>
        <source>open a damaged IN as far as it is sound, and tell on standard error what was dropped; OUT must be another file</source>
        <translation>ouvre un IN endommagé autant qu&apos;il est sain, et dit sur l&apos;erreur standard ce qui a été écarté&#xa0;; OUT doit être un autre fichier</translation>
    </message>
    <message>
        <source>writes a drawing as DXF, PNG, SVG or PDF</source>
        <translation>écrit un dessin en DXF, PNG, SVG ou PDF</translation>
    </message>
    <message>
        <source>the drawing</source>
        <translation>le dessin</translation>
    </message>
    <message>
        <source>the file to write, as what its extension says</source>
        <translation>le fichier à écrire, selon son extension</translation>
    </message>
    <message>
        <source>Opens a drawing and writes it as what the extension of OUT says: dxf, png, svg or pdf. What a picture does not show, or only in part, is told on standard error, by type.</source>
        <translation>Ouvre un dessin et l&apos;écrit selon l&apos;extension de OUT&#xa0;: dxf, png, svg ou pdf. Ce qu&apos;une image ne montre pas, ou seulement en partie, est dit sur l&apos;erreur standard, par type.</translation>
    </message>
    <message>
        <source>Pictures</source>
        <translation>Images</translation>
    </message>
    <message>
        <source>Without the options of a sheet, png and svg show all of model space in 1600 by 1200 pixels, with the lineweights that it would have on a sheet 297 mm long; pdf shows it on A4.</source>
        <translation>Sans les options d&apos;une feuille, png et svg montrent tout l&apos;espace objet en 1600 sur 1200 pixels, avec les épaisseurs de ligne qu&apos;il aurait sur une feuille de 297 mm de long&#xa0;; pdf le montre sur A4.</translation>
    </message>
    <message>
        <source>%1 to %2</source>
        <translation>%1 à %2</translation>
    </message>
    <message>
        <source>default: %1</source>
        <translation>par défaut&#xa0;: %1</translation>
    </message>
    <message>
        <source>Exit status: 0 done, 1 a tool, expression or session failed or passed a limit, 2 wrong use, 3 part of a batch failed or, with --strict, of a picture is missing, 4 a file could not be read or written, 5 a picture was written, but there was more to show than is drawn in one go: a few lines of a drawing can make millions.</source>
        <translation>Statut de sortie&#xa0;: 0 fait, 1 un outil, une expression ou une session a échoué ou dépassé une limite, 2 mauvais usage, 3 une partie d&apos;un lot a échoué ou, avec --strict, manque dans une image, 4 un fichier n&apos;a pas pu être lu ou écrit, 5 une image a été écrite, mais il y avait plus à montrer que ce qui est dessiné en une fois&#xa0;: quelques lignes d&apos;un dessin peuvent en faire des millions.</translation>
    </message>
    <message>
        <source>Usage: </source>
        <translation>Usage&#xa0;: </translation>
    </message>
    <message>
        <source>Commands:</source>
        <translation>Commandes&#xa0;:</translation>
    </message>
    <message>
        <source>Drafting tools without their dialogs:</source>
        <translation>Outils de dessin sans leurs boîtes de dialogue&#xa0;:</translation>
    </message>
    <message>
        <source>Options for every use:</source>
        <translation>Options pour tout usage&#xa0;:</translation>
    </message>
    <message>
        <source>there is no kind of finding &quot;%1&quot;</source>
        <translation>il n&apos;y a pas de sorte de constat &quot;%1&quot;</translation>
    </message>
    <message>
        <source>lisp needs at least one file for this</source>
        <translation>lisp demande pour cela au moins un fichier</translation>
    </message>
    <message>
        <source>--json, --only and --except go with --check</source>
        <translation>--json, --only et --except vont avec --check</translation>
    </message>
    <message>
        <source>--filter and --junit go with --test</source>
        <translation>--filter et --junit vont avec --test</translation>
    </message>
    <message>
        <source>--profile goes with programs that are run</source>
        <translation>--profile va avec des programmes exécutés</translation>
    </message>
    <message>
        <source>--check and --test do not go together</source>
        <translation>--check et --test ne vont pas ensemble</translation>
    </message>
    <message>
        <source>Loads the Lisp files in order and prints what they print. &quot;-&quot; reads expressions from standard input. Without --drawing a new drawing is open. Nothing asks a person: prompts are cancelled, and a dialog ends the program with status 1.

What these files load must lie in a trusted folder: the installation, the folder of the user&apos;s data, those that the system variable TRUSTEDPATHS lists, and those named here.</source>
        <translation>Charge les fichiers Lisp dans l&apos;ordre et affiche ce qu&apos;ils affichent. &quot;-&quot; lit des expressions de l&apos;entrée standard. Sans --drawing, un nouveau dessin est ouvert. Rien n&apos;est demandé à personne&#xa0;: les invites sont annulées, et une boîte de dialogue finit le programme par le statut 1.

Ce que ces fichiers chargent doit être dans un dossier de confiance&#xa0;: l&apos;installation, le dossier des données de l&apos;utilisateur, ceux que liste la variable système TRUSTEDPATHS, et ceux nommés ici.</translation>
    </message>
    <message>
        <source>the drawing to work on</source>
        <translation>le dessin sur lequel travailler</translation>
    </message>
    <message>
        <source>a new one</source>
        <translation>un nouveau</translation>
    </message>
    <message>
        <source>the most all of it may take</source>
        <translation>la durée maximale de l&apos;ensemble</translation>
    </message>
    <message>
        <source>write files as well that another program has open, or has changed since they were opened</source>
        <translation>écrit aussi les fichiers qu&apos;un autre programme a ouverts, ou modifiés depuis leur ouverture</translation>
    </message>
    <message>
        <source>tell on standard error where the time went, function by function</source>
        <translation>dit sur l&apos;erreur standard où le temps est passé, fonction par fonction</translation>
    </message>
    <message>
        <source>write that as folded stacks as well, of which flame graphs are drawn</source>
        <translation>écrit cela aussi en piles repliées, dont on dessine des graphes de flammes</translation>
    </message>
    <message>
        <source>Without a file</source>
        <translation>Sans fichier</translation>
    </message>
    <message>
        <source>It is a prompt: expressions are evaluated as they are typed, and their values printed. Tab completes names, &quot;help NAME&quot; or &quot;?NAME&quot; tells about one, Ctrl+C stops what runs, Ctrl+D ends. What is piped in is evaluated form by form; errors go to standard error with their line, the forms behind one are evaluated all the same, and the status is 1 then.</source>
        <translation>C&apos;est une invite&#xa0;: les expressions sont évaluées à mesure qu&apos;elles sont saisies, et leurs valeurs affichées. Tab complète les noms, &quot;help NAME&quot; ou &quot;?NAME&quot; en explique un, Ctrl+C arrête ce qui s&apos;exécute, Ctrl+D termine. Ce qui est transmis par un tube est évalué forme par forme&#xa0;; les erreurs vont sur l&apos;erreur standard avec leur ligne, les formes suivantes sont évaluées quand même, et le statut est alors 1.</translation>
    </message>
    <message>
        <source>With --check</source>
        <translation>Avec --check</translation>
    </message>
    <message>
        <source>The files are read and not run, and what looks wrong in them is told, a line each: FILE:LINE:COLUMN: error or warning: what it is [KIND]. What one of them defines the others know. Ends with status 1 when something was told.</source>
        <translation>Les fichiers sont lus et non exécutés, et ce qui y paraît faux est dit, une ligne chacun&#xa0;: FILE:LINE:COLUMN: erreur ou avertissement&#xa0;: ce que c&apos;est [KIND]. Ce que l&apos;un d&apos;eux définit, les autres le connaissent. Finit par le statut 1 quand quelque chose a été dit.</translation>
    </message>
    <message>
        <source>read the files and tell what looks wrong in them</source>
        <translation>lit les fichiers et dit ce qui y paraît faux</translation>
    </message>
    <message>
        <source>tell it as one line of JSON: findings, each with file, line, column, severity, kind and message, and the numbers of errors and warnings</source>
        <translation>le dit en une ligne de JSON&#xa0;: findings, chacun avec file, line, column, severity, kind et message, et les nombres d&apos;erreurs et d&apos;avertissements</translation>
    </message>
    <message>
        <source>tell only these kinds</source>
        <translation>ne dit que ces sortes</translation>
    </message>
    <message>
        <source>tell all kinds but these</source>
        <translation>dit toutes les sortes sauf celles-ci</translation>
    </message>
    <message>
        <source>With --test</source>
        <translation>Avec --test</translation>
    </message>
    <message>
        <source>The tests that the files define by (deftest name form...) are run, each in a new drawing (or DRAWING) into which its file was loaded before, and told on standard output in version 14 of the Test Anything Protocol. The time limit is that of each test. Ends with status 1 when one failed or there was none.</source>
        <translation>Les tests que les fichiers définissent par (deftest name form...) sont exécutés, chacun dans un nouveau dessin (ou DRAWING) où son fichier a été chargé auparavant, et rapportés sur la sortie standard dans la version 14 du Test Anything Protocol. La limite de temps est celle de chaque test. Finit par le statut 1 quand l&apos;un a échoué ou qu&apos;il n&apos;y en avait aucun.</translation>
    </message>
    <message>
        <source>run the tests that the files define</source>
        <translation>exécute les tests que les fichiers définissent</translation>
    </message>
    <message>
        <source>run only tests of such names: * stands for any characters, ? for one</source>
        <translation>n&apos;exécute que les tests de tels noms&#xa0;: * vaut pour des caractères quelconques,&#xa0;? pour un seul</translation>
    </message>
    <message>
        <source>write a report in JUnit&apos;s XML instead</source>
        <translation>écrit plutôt un rapport dans le XML de JUnit</translation>
    </message>
    <message>
        <source>runs, checks or tests Lisp files, or is a prompt for Lisp</source>
        <translation>exécute, contrôle ou teste des fichiers Lisp, ou est une invite Lisp</translation>
    </message>
    <message>
        <source>a Lisp file, or - for standard input</source>
        <translation>un fichier Lisp, ou - pour l&apos;entrée standard</translation>
    </message>
    <message>
        <source>names takes no word</source>
        <translation>names ne prend pas de mot</translation>
    </message>
    <message>
        <source>help takes one command</source>
        <translation>help prend une commande</translation>
    </message>
    <message>
        <source>lists what Lisp programs find here</source>
        <translation>liste ce que les programmes Lisp trouvent ici</translation>
    </message>
    <message>
        <source>Prints what Lisp programs find here in a new drawing, a line each with tabs between its fields, sorted:

  function  NAME  ARGUMENTS  WHAT IT GIVES
  command   NAME  -          WHAT IT DOES
  variable  NAME  KIND       WHAT IT IS

Documents are made from this, and scripts/demand compares it with what programs ask for.</source>
        <translation>Affiche ce que les programmes Lisp trouvent ici dans un nouveau dessin, une ligne chacun avec des tabulations entre les champs, triées&#xa0;:

  function  NOM  ARGUMENTS  CE QU&apos;ELLE DONNE
  command   NOM  -          CE QU&apos;ELLE FAIT
  variable  NOM  GENRE      CE QU&apos;ELLE EST

Des documents en sont faits, et scripts/demand le compare à ce que les programmes demandent.</translation>
    </message>
    <message>
        <source>tells about a command</source>
        <translation>explique une commande</translation>
    </message>
    <message>
        <source>which one; without it, the program as a whole</source>
        <translation>laquelle&#xa0;; sans elle, le programme dans son ensemble</translation>
    </message>
    <message>
        <source>The same as --help behind the command.</source>
        <translation>La même chose que --help après la commande.</translation>
    </message>
    <message>
        <source>run needs a session</source>
        <translation>run demande une session</translation>
    </message>
    <message>
        <source>open damaged drawings as far as they are sound, and tell on standard error what was dropped</source>
        <translation>ouvre les dessins endommagés autant qu&apos;ils sont sains, et dit sur l&apos;erreur standard ce qui a été écarté</translation>
    </message>
    <message>
        <source>write the drawings that the session changed there, under their own names; of a session with cases, what it saves itself</source>
        <translation>y écrit les dessins que la session a modifiés, sous leurs propres noms&#xa0;; d&apos;une session à cas, ce qu&apos;elle enregistre elle-même</translation>
    </message>
    <message>
        <source>write a picture of each drawing as it is in the end to the out folder, or else beside the drawing</source>
        <translation>écrit une image de chaque dessin tel qu&apos;il est à la fin dans le dossier de sortie, ou sinon à côté du dessin</translation>
    </message>
    <message>
        <source>an independent reader for sessions that ask one (default: the environment&apos;s ORTAKIT_AUDIT); see scripts/audit</source>
        <translation>un lecteur indépendant pour les sessions qui en interrogent un (par défaut&#xa0;: ORTAKIT_AUDIT de l&apos;environnement)&#xa0;; voir scripts/audit</translation>
    </message>
    <message>
        <source>where pictures go that the session takes, and those of --png</source>
        <translation>où vont les images que prend la session, et celles de --png</translation>
    </message>
    <message>
        <source>the most the session may take with one drawing; one that does not stop then ends the program</source>
        <translation>la durée maximale de la session avec un dessin&#xa0;; si elle ne s&apos;arrête pas alors, le programme finit</translation>
    </message>
    <message>
        <source>plays a recorded session over drawings</source>
        <translation>joue une session enregistrée sur des dessins</translation>
    </message>
    <message>
        <source>the recorded session</source>
        <translation>la session enregistrée</translation>
    </message>
    <message>
        <source>what it is played over</source>
        <translation>sur quoi elle est jouée</translation>
    </message>
    <message>
        <source>Plays a recorded session over each drawing, one after the other, each opened afresh; without a drawing, over the one that the session says. The drawings themselves stay as they are. Prints a line for each, and of a session with cases for each of them. What a picture does not show, or only in part, is told on standard error, by type.</source>
        <translation>Joue une session enregistrée sur chaque dessin, l&apos;un après l&apos;autre, chacun ouvert à neuf&#xa0;; sans dessin, sur celui que dit la session. Les dessins eux-mêmes restent tels quels. Affiche une ligne pour chacun, et pour une session à cas, pour chacun d&apos;eux. Ce qu&apos;une image ne montre pas, ou seulement en partie, est dit sur l&apos;erreur standard, par type.</translation>
    </message>
    <message>
        <source>look of windows and dialogs</source>
        <translation>aspect des fenêtres et des boîtes de dialogue</translation>
    </message>
    <message>
        <source>language of texts</source>
        <translation>langue des textes</translation>
    </message>
    <message>
        <source>$ORTAKIT_LANGUAGE; else the window&apos;s setting or the desktop&apos;s language, and English where there is no window or a session is played</source>
        <translation>$ORTAKIT_LANGUAGE&#xa0;; sinon le paramètre de la fenêtre ou la langue du bureau, et l&apos;anglais où il n&apos;y a pas de fenêtre ou qu&apos;une session est jouée</translation>
    </message>
    <message>
        <source>folder of the user&apos;s data</source>
        <translation>dossier des données de l&apos;utilisateur</translation>
    </message>
    <message>
        <source>$ORTAKIT_HOME, or the system&apos;s place for such data</source>
        <translation>$ORTAKIT_HOME, ou l&apos;endroit du système pour de telles données</translation>
    </message>
    <message>
        <source>the plug-in module</source>
        <translation>le module d&apos;extension</translation>
    </message>
    <message>
        <source>$ORTAKIT_MODULE, or the one installed with the program</source>
        <translation>$ORTAKIT_MODULE, ou celui installé avec le programme</translation>
    </message>
    <message>
        <source>folder of the Lisp tools</source>
        <translation>dossier des outils Lisp</translation>
    </message>
    <message>
        <source>$ORTAKIT_TOOLS, or the one installed with the program</source>
        <translation>$ORTAKIT_TOOLS, ou celui installé avec le programme</translation>
    </message>
    <message>
        <source>let drawings name files of this folder and those below; may be given again. Else they are read from the drawing&apos;s own folder, those below and trusted ones only</source>
        <translation>laisse les dessins nommer des fichiers de ce dossier et de ceux qu&apos;il contient&#xa0;; peut être répété. Sinon, ils ne sont lus que dans le dossier du dessin, ceux qu&apos;il contient et ceux de confiance</translation>
    </message>
    <message>
        <source>tell this and end</source>
        <translation>dit ceci et finit</translation>
    </message>
    <message>
        <source>tell the version and end</source>
        <translation>dit la version et finit</translation>
    </message>
    <message>
        <source> (did you mean %1?)</source>
        <translation> (vouliez-vous dire %1&#xa0;?)</translation>
    </message>
    <message>
        <source>run programs of this folder and those below as well; may be given again</source>
        <translation>exécute aussi les programmes de ce dossier et de ceux qu&apos;il contient&#xa0;; peut être répété</translation>
    </message>
    <message>
        <source>the most memory Lisp may take, more being an error of the program</source>
        <translation>la mémoire maximale que Lisp peut prendre&#xa0;; au-delà, c&apos;est une erreur du programme</translation>
    </message>
    <message>
        <source>the system variable LISPHEAPMAX, which is 2048 as long as nobody changed it</source>
        <translation>la variable système LISPHEAPMAX, qui vaut 2048 tant que personne ne l&apos;a modifiée</translation>
    </message>
    <message>
        <source>open damaged drawings as far as they are sound; they have no file until they are saved under a name</source>
        <translation>ouvre les dessins endommagés autant qu&apos;ils sont sains&#xa0;; ils n&apos;ont pas de fichier avant d&apos;être enregistrés sous un nom</translation>
    </message>
    <message>
        <source>open what a program that was killed left of changed drawings, without asking</source>
        <translation>ouvre sans demander ce qu&apos;un programme tué a laissé de dessins modifiés</translation>
    </message>
    <message>
        <source>play a recorded session in the window first</source>
        <translation>joue d&apos;abord une session enregistrée dans la fenêtre</translation>
    </message>
    <message>
        <source>how long each line of the session waits, so that you can watch it</source>
        <translation>combien de temps attend chaque ligne de la session, pour que vous puissiez la regarder</translation>
    </message>
    <message>
        <source>write what you do down as a session that plays</source>
        <translation>note ce que vous faites en une session qui se joue</translation>
    </message>
    <message>
        <source>write a picture of the window to DIR/window.png and end</source>
        <translation>écrit une image de la fenêtre dans DIR/window.png et finit</translation>
    </message>
    <message>
        <source>the most a session may take</source>
        <translation>la durée maximale d&apos;une session</translation>
    </message>
    <message>
        <source>opens drawings in a window</source>
        <translation>ouvre des dessins dans une fenêtre</translation>
    </message>
    <message>
        <source>a drawing to open</source>
        <translation>un dessin à ouvrir</translation>
    </message>
    <message>
        <source>Opens the drawings in a window, or works on them without one. &quot;ortakit help COMMAND&quot; tells more about a command. A drawing whose name is that of a command is written with its folder: ./run</source>
        <translation>Ouvre les dessins dans une fenêtre, ou travaille dessus sans elle. &quot;ortakit help COMMAND&quot; en dit plus sur une commande. Un dessin dont le nom est celui d&apos;une commande s&apos;écrit avec son dossier&#xa0;: ./run</translation>
    </message>
    <message>
        <source>Options of the window</source>
        <translation>Options de la fenêtre</translation>
    </message>
    <message>
        <source>tell what became of each drawing as one line of JSON</source>
        <translation>dit en une ligne de JSON ce qu&apos;il est advenu de chaque dessin</translation>
    </message>
    <message>
        <source>work on so many files at a time, each in a process of its own, so that one that crashes or takes too long is one file that failed; what is told and its order are the same for any N</source>
        <translation>travaille sur tant de fichiers à la fois, chacun dans un processus à lui, si bien qu&apos;un fichier qui plante ou dure trop longtemps n&apos;est qu&apos;un fichier en échec&#xa0;; ce qui est dit et son ordre sont les mêmes pour tout N</translation>
    </message>
    <message>
        <source>one process for all</source>
        <translation>un seul processus pour tous</translation>
    </message>
    <message>
        <source>%1 asks for points or entities: play a recorded session with ortakit run</source>
        <translation>%1 demande des points ou des objets&#xa0;: jouez une session enregistrée avec ortakit run</translation>
    </message>
    <message>
        <source>%1 needs a drawing</source>
        <translation>%1 demande un dessin</translation>
    </message>
    <message>
        <source>--out and --in-place do not go together</source>
        <translation>--out et --in-place ne vont pas ensemble</translation>
    </message>
    <message>
        <source>%1 changes drawings: say where they go, --out DIR or --in-place</source>
        <translation>%1 modifie des dessins&#xa0;: dites où ils vont, --out DIR ou --in-place</translation>
    </message>
    <message>
        <source>%1 works on no selection</source>
        <translation>%1 ne travaille sur aucune sélection</translation>
    </message>
    <message>
        <source>of several drawings each has its own file: put {name} into %1</source>
        <translation>de plusieurs dessins, chacun a son propre fichier&#xa0;: mettez {name} dans %1</translation>
    </message>
    <message>
        <source>%1 needs a file to write: --set %2=PATH</source>
        <translation>%1 demande un fichier à écrire&#xa0;: --set %2=PATH</translation>
    </message>
    <message>
        <source>%1 has no button %2%3; it has %4</source>
        <translation>%1 n&apos;a pas de bouton %2%3&#xa0;; il a %4</translation>
    </message>
    <message>
        <source>%1 has no key %2%3; it has %4</source>
        <translation>%1 n&apos;a pas de clé %2%3&#xa0;; il a %4</translation>
    </message>
    <message>
        <source>the file to write; {name} stands for the drawing&apos;s name</source>
        <translation>le fichier à écrire&#xa0;; {name} tient lieu du nom du dessin</translation>
    </message>
    <message>
        <source>the file to read</source>
        <translation>le fichier à lire</translation>
    </message>
    <message>
        <source>yes or no</source>
        <translation>oui ou non (yes, no)</translation>
    </message>
    <message>
        <source>yes or no, one of its group</source>
        <translation>oui ou non (yes, no), un de son groupe</translation>
    </message>
    <message>
        <source>one of a list</source>
        <translation>un élément d&apos;une liste</translation>
    </message>
    <message>
        <source>one of: %1</source>
        <translation>un de&#xa0;: %1</translation>
    </message>
    <message>
        <source>a number from %1 to %2</source>
        <translation>un nombre de %1 à %2</translation>
    </message>
    <message>
        <source>a number, %1 or more</source>
        <translation>un nombre, %1 ou plus</translation>
    </message>
    <message>
        <source>a number</source>
        <translation>un nombre</translation>
    </message>
    <message>
        <source>a colour&apos;s number, 0 to 256</source>
        <translation>un numéro de couleur, 0 à 256</translation>
    </message>
    <message>
        <source>rows by the texts of their first column with ^ between; * for all</source>
        <translation>des lignes par les textes de leur première colonne séparés par ^&#xa0;; * pour toutes</translation>
    </message>
    <message>
        <source>a file or folder</source>
        <translation>un fichier ou un dossier</translation>
    </message>
    <message>
        <source>a text</source>
        <translation>un texte</translation>
    </message>
    <message>
        <source> (default: %1)</source>
        <translation> (par défaut&#xa0;: %1)</translation>
    </message>
    <message>
        <source>--select takes all, TYPES [on layer PATTERN] [of block PATTERN] [in style PATTERN] [in color NUMBER], or a filter list, not &quot;%1&quot;</source>
        <translation>--select prend all, TYPES [on layer PATTERN] [of block PATTERN] [in style PATTERN] [in color NUMBER], ou une liste de filtres, non &quot;%1&quot;</translation>
    </message>
    <message>
        <source>makes one paragraph of single-line texts</source>
        <translation>fait un paragraphe de textes d&apos;une ligne</translation>
    </message>
    <message>
        <source>writes texts in capitals, small letters or as titles</source>
        <translation>écrit des textes en majuscules, en minuscules ou comme des titres</translation>
    </message>
    <message>
        <source>writes texts of attributes to a table in a text file</source>
        <translation>écrit des textes d&apos;attributs dans un tableau d&apos;un fichier texte</translation>
    </message>
    <message>
        <source>counts the blocks of the drawing, for a text file</source>
        <translation>compte les blocs du dessin, pour un fichier texte</translation>
    </message>
    <message>
        <source>With --press exporttable the table is drawn instead; its upper left corner and the height of its texts are answers: --answer 0,0 --answer 2.5</source>
        <translation>Avec --press exporttable, le tableau est dessiné à la place&#xa0;; son coin supérieur gauche et la hauteur de ses textes sont des réponses&#xa0;: --answer 0,0 --answer 2.5</translation>
    </message>
    <message>
        <source>takes texts of attributes from a table in a text file</source>
        <translation>prend les textes d&apos;attributs d&apos;un tableau dans un fichier texte</translation>
    </message>
    <message>
        <source>All rows of the table are taken unless attributes names some. With --press btreplace, txreplace takes the place of txsearch in them first.</source>
        <translation>Toutes les lignes du tableau sont prises à moins que attributes n&apos;en nomme. Avec --press btreplace, txreplace y prend d&apos;abord la place de txsearch.</translation>
    </message>
    <message>
        <source>writes numbers into texts in the order of their places</source>
        <translation>écrit des numéros dans des textes dans l&apos;ordre de leurs places</translation>
    </message>
    <message>
        <source>For the orders by points the points are answers: --answer 0,0</source>
        <translation>Pour les ordres par points, les points sont des réponses&#xa0;: --answer 0,0</translation>
    </message>
    <message>
        <source>replaces references to blocks by another block of the drawing</source>
        <translation>remplace des références à des blocs par un autre bloc du dessin</translation>
    </message>
    <message>
        <source>replaces references to blocks by a drawing file</source>
        <translation>remplace des références à des blocs par un fichier de dessin</translation>
    </message>
    <message>
        <source>directory is the folder of the file, blockstablerep its name there.</source>
        <translation>directory est le dossier du fichier, blockstablerep son nom là-bas.</translation>
    </message>
    <message>
        <source>draws slots, rectangles or circles around texts</source>
        <translation>dessine des oblongs, rectangles ou cercles autour de textes</translation>
    </message>
    <message>
        <source>hides what lies behind texts</source>
        <translation>cache ce qui se trouve derrière des textes</translation>
    </message>
    <message>
        <source>writes dimension styles of the drawing to a file</source>
        <translation>écrit des styles de cote du dessin dans un fichier</translation>
    </message>
    <message>
        <source>All styles are written unless lststyles names some.</source>
        <translation>Tous les styles sont écrits à moins que lststyles n&apos;en nomme.</translation>
    </message>
    <message>
        <source>brings dimension styles from a file into the drawing</source>
        <translation>amène des styles de cote d&apos;un fichier dans le dessin</translation>
    </message>
    <message>
        <source>All styles of the file are taken unless lststyles names some, by the first words of their names.</source>
        <translation>Tous les styles du fichier sont pris à moins que lststyles n&apos;en nomme, par les premiers mots de leurs noms.</translation>
    </message>
    <message>
        <source>puts entities over each other in the order of their colours</source>
        <translation>place des objets les uns sur les autres dans l&apos;ordre de leurs couleurs</translation>
    </message>
    <message>
        <source>Steps are taken in the order in which they are given: --set lstcolors=&quot;5 Blue&quot; --press tofront puts blue on top.</source>
        <translation>Les pas se font dans l&apos;ordre où ils sont donnés&#xa0;: --set lstcolors=&quot;5 Blue&quot; --press tofront place le bleu au-dessus.</translation>
    </message>
    <message>
        <source>writes a problem report with what the program and the drawing are</source>
        <translation>écrit un rapport de problème sur le programme et le dessin</translation>
    </message>
    <message>
        <source>writes system variables to a script that sets them again</source>
        <translation>écrit des variables système dans un script qui les redéfinit</translation>
    </message>
    <message>
        <source>changes the paths of references, images, fonts and remote texts</source>
        <translation>modifie les chemins de références, d&apos;images, de polices et de textes distants</translation>
    </message>
    <message>
        <source>All paths are meant unless lstfiles names some. --press btreplace puts txreplace in the place of txsearch in them.</source>
        <translation>Tous les chemins sont visés à moins que lstfiles n&apos;en nomme. --press btreplace y met txreplace à la place de txsearch.</translation>
    </message>
    <message>
        <source>changes and removes hyperlinks of entities</source>
        <translation>modifie et supprime des hyperliens d&apos;objets</translation>
    </message>
    <message>
        <source>All links are meant unless tableurl names some, by their handles. --press btnreplace puts txreplace in the place of txsearch in them, --press btnremoveurl takes them away.</source>
        <translation>Tous les liens sont visés à moins que tableurl n&apos;en nomme, par leurs identificateurs. --press btnreplace y met txreplace à la place de txsearch, --press btnremoveurl les supprime.</translation>
    </message>
    <message>
        <source>cuts a line open and draws a break symbol in the gap</source>
        <translation>ouvre une ligne et dessine un symbole de rupture dans l&apos;intervalle</translation>
    </message>
    <message>
        <source>edits the short names that are typed in place of commands</source>
        <translation>modifie les noms courts saisis à la place des commandes</translation>
    </message>
    <message>
        <source>shows the functions of Lisp files</source>
        <translation>affiche les fonctions de fichiers Lisp</translation>
    </message>
    <message>
        <source>makes a linetype of a drawn pattern</source>
        <translation>fait un type de ligne d&apos;un motif dessiné</translation>
    </message>
    <message>
        <source>makes a shape of drawn lines and arcs</source>
        <translation>fait une forme de lignes et d&apos;arcs dessinés</translation>
    </message>
    <message>
        <source>makes one drawing of the sheets of several</source>
        <translation>fait un seul dessin des feuilles de plusieurs</translation>
    </message>
    <message>
        <source>sets up a sheet: title block, viewports, alignment and scale</source>
        <translation>prépare une feuille&#xa0;: cartouche, fenêtres, alignement et échelle</translation>
    </message>
    <message>
        <source>fills a closed area with copies of a pattern</source>
        <translation>remplit une zone fermée de copies d&apos;un motif</translation>
    </message>
    <message>
        <source>inserts a block of the drawing or of another drawing file</source>
        <translation>insère un bloc du dessin ou d&apos;un autre fichier de dessin</translation>
    </message>
    <message>
        <source>shows and sets the time that was worked on drawings</source>
        <translation>affiche et définit le temps de travail sur des dessins</translation>
    </message>
    <message>
        <source>--to and --out go together</source>
        <translation>--to et --out vont ensemble</translation>
    </message>
    <message>
        <source>convert needs drawings</source>
        <translation>convert demande des dessins</translation>
    </message>
    <message>
        <source>-j goes with --to and --out</source>
        <translation>-j va avec --to et --out</translation>
    </message>
    <message>
        <source>Many drawings</source>
        <translation>De nombreux dessins</translation>
    </message>
    <message>
        <source>With --to and --out all words are drawings, and each becomes a file of its name in the folder. What became of them is told on standard output, a line each. The time limit is that of each.</source>
        <translation>Avec --to et --out, tous les mots sont des dessins, et chacun devient un fichier de son nom dans le dossier. Ce qu&apos;il en est advenu est dit sur la sortie standard, une ligne chacun. La limite de temps est celle de chacun.</translation>
    </message>
    <message>
        <source>what they become</source>
        <translation>ce qu&apos;ils deviennent</translation>
    </message>
    <message>
        <source>where they go</source>
        <translation>où ils vont</translation>
    </message>
    <message>
        <source>print one line of JSON: of each drawing file, status, messages and out; of pictures complete, drawn, invisible, inPart and notDrawn (a number for each type) and cutShort; with --layout all of it for each of the pages, with layout and output; with --recover the same of what was dropped, mended and added</source>
        <translation>affiche une ligne de JSON&#xa0;: de chaque dessin file, status, messages et out&#xa0;; pour les images complete, drawn, invisible, inPart et notDrawn (un nombre pour chaque type) et cutShort&#xa0;; avec --layout, tout cela pour chacune des pages, avec layout et output&#xa0;; avec --recover, de même ce qui a été écarté, réparé et ajouté</translation>
    </message>
    <message>
        <source>there is nothing called %1 to ignore%2</source>
        <translation>il n&apos;y a rien du nom de %1 à ne pas compter%2</translation>
    </message>
    <message>
        <source>diff needs two drawings</source>
        <translation>diff demande deux dessins</translation>
    </message>
    <message>
        <source>take numbers and coordinates for the same that are no farther apart</source>
        <translation>tient pour égaux des nombres et des coordonnées qui ne sont pas plus éloignés</translation>
    </message>
    <message>
        <source>what does not count in addition, separated by commas: version, view, header, classes, objects, xdata, order. times, handles, identity, extents and reactors do not count anyway; &quot;none&quot; in front counts them</source>
        <translation>ce qui ne compte pas en plus, séparé par des virgules&#xa0;: version, view, header, classes, objects, xdata, order. times, handles, identity, extents et reactors ne comptent pas de toute façon&#xa0;; &quot;none&quot; devant les compte</translation>
    </message>
    <message>
        <source>what makes entities the same one: their handles, or what is in them</source>
        <translation>ce qui rend des objets identiques&#xa0;: leurs identificateurs, ou leur contenu</translation>
    </message>
    <message>
        <source>auto: by handle, unless far more entities are the same by content</source>
        <translation>auto&#xa0;: par identificateur, à moins que bien plus d&apos;objets soient identiques par leur contenu</translation>
    </message>
    <message>
        <source>tell the sums alone</source>
        <translation>ne dit que les totaux</translation>
    </message>
    <message>
        <source>draw both over each other into a png, svg or pdf file: what is gone red and dashed, what is new green and thick, what has changed orange and dashed as it was, blue and thick as it is</source>
        <translation>dessine les deux l&apos;un sur l&apos;autre dans un fichier png, svg ou pdf&#xa0;: ce qui a disparu en rouge et tireté, ce qui est nouveau en vert et épais, ce qui a changé en orange et tireté tel qu&apos;il était, en bleu et épais tel qu&apos;il est</translation>
    </message>
    <message>
        <source>which sheet the picture shows; without it, model space</source>
        <translation>quelle feuille montre l&apos;image&#xa0;; sans cela, l&apos;espace objet</translation>
    </message>
    <message>
        <source>write the picture although another program has it open</source>
        <translation>écrit l&apos;image bien qu&apos;un autre programme l&apos;ait ouverte</translation>
    </message>
    <message>
        <source>the most it may take</source>
        <translation>la durée maximale</translation>
    </message>
    <message>
        <source>print the differences as one line of JSON</source>
        <translation>affiche les différences en une ligne de JSON</translation>
    </message>
    <message>
        <source>tells what differs in two drawings</source>
        <translation>dit ce qui diffère entre deux dessins</translation>
    </message>
    <message>
        <source>a drawing as it was</source>
        <translation>un dessin tel qu&apos;il était</translation>
    </message>
    <message>
        <source>the drawing as it is</source>
        <translation>le dessin tel qu&apos;il est</translation>
    </message>
    <message>
        <source>Prints a line for each variable, layer, style, block, entity and object that differs: + for what B has alone, - for what A has alone, ~ for what has other values in B, with these. Sums stand behind =, by type and by layer. The files&apos; forms and versions do not matter, nor how numbers are spelt.

Ends with status 0 when nothing differs, 1 when something does, 2 and more when it could not be found out.

With the seven words that git hands to a program for differences it compares these two files and ends with 0 either way: git config diff.dxf.command &quot;ortakit diff&quot;.</source>
        <translation>Affiche une ligne pour chaque variable, calque, style, bloc, entité et objet qui diffère&#xa0;: + pour ce que B seul a, - pour ce que A seul a, ~ pour ce qui a d&apos;autres valeurs dans B, avec celles-ci. Les totaux sont derrière =, par type et par calque. La forme et la version des fichiers n&apos;importent pas, ni l&apos;écriture des nombres.

Finit par le statut 0 quand rien ne diffère, 1 quand quelque chose diffère, 2 et plus quand cela n&apos;a pas pu être établi.

Avec les sept mots que git donne à un programme pour les différences, il compare ces deux fichiers et finit par 0 dans tous les cas&#xa0;: git config diff.dxf.command &quot;ortakit diff&quot;.</translation>
    </message>
    <message>
        <source>Example:</source>
        <translation>Exemple&#xa0;:</translation>
    </message>
    <message>
        <source>%1 needs at least one drawing</source>
        <translation>%1 demande au moins un dessin</translation>
    </message>
    <message>
        <source>a drawing to look at</source>
        <translation>un dessin à examiner</translation>
    </message>
    <message>
        <source>--entities goes neither with --json nor with -j</source>
        <translation>--entities ne va ni avec --json ni avec -j</translation>
    </message>
    <message>
        <source>--fix and --out go together</source>
        <translation>--fix et --out vont ensemble</translation>
    </message>
    <message>
        <source>tells what is wrong with drawings</source>
        <translation>dit ce qui ne va pas dans des dessins</translation>
    </message>
    <message>
        <source>Looks for all that opening with --recover would mend, add or drop, and the command AUDIT would find, and changes nothing. A hundred faults of a drawing are told; with --json all are.

Ends with status 0 when all drawings are sound or were mended, 1 when faults were found, 4 when files could not be read or written, 3 when that is so for some of several.</source>
        <translation>Cherche tout ce que l&apos;ouverture avec --recover réparerait, ajouterait ou écarterait, et ce que la commande AUDIT trouverait, et ne modifie rien. Cent défauts d&apos;un dessin sont dits&#xa0;; avec --json, tous.

Finit par le statut 0 quand tous les dessins sont sains ou ont été réparés, 1 quand des défauts ont été trouvés, 4 quand des fichiers n&apos;ont pas pu être lus ou écrits, 3 quand c&apos;est le cas de certains sur plusieurs.</translation>
    </message>
    <message>
        <source>write the drawings with what was found mended, sound ones too</source>
        <translation>écrit les dessins avec ce qui a été trouvé réparé, les dessins sains aussi</translation>
    </message>
    <message>
        <source>the folder to write them into, under their names</source>
        <translation>le dossier où les écrire, sous leurs noms</translation>
    </message>
    <message>
        <source>the most that each drawing may take</source>
        <translation>la durée maximale pour chaque dessin</translation>
    </message>
    <message>
        <source>print one line of JSON: for each drawing opens, faults and found, as convert has it for --recover, and out</source>
        <translation>affiche une ligne de JSON&#xa0;: pour chaque dessin opens, faults et found, comme convert les a pour --recover, et out</translation>
    </message>
    <message>
        <source>tells what drawings are and hold</source>
        <translation>dit ce que sont et contiennent des dessins</translation>
    </message>
    <message>
        <source>Tells of each drawing its version and form, who saved it when, units, extents as the file says and as measured, how many entities of which type, layers, blocks, layouts with their paper, styles, the files and fonts that it names and whether they are found, and the state of its handles. Lists longer than twelve names are cut short; with --json they are whole.</source>
        <translation>Dit de chaque dessin sa version et sa forme, qui l&apos;a enregistré et quand, les unités, l&apos;étendue selon le fichier et mesurée, combien d&apos;objets de quel type, les calques, les blocs, les présentations avec leur papier, les styles, les fichiers et polices qu&apos;il nomme et s&apos;ils sont trouvés, et l&apos;état de ses identificateurs. Les listes de plus de douze noms sont abrégées&#xa0;; avec --json elles sont entières.</translation>
    </message>
    <message>
        <source>print in place of that a line for each variable, table entry, block, entity and object, in the file&apos;s order, with all its values: git config diff.dxf.textconv &quot;ortakit info --entities&quot; shows differences of these</source>
        <translation>affiche à la place une ligne pour chaque variable, entrée de table, bloc, entité et objet, dans l&apos;ordre du fichier, avec toutes ses valeurs&#xa0;: git config diff.dxf.textconv &quot;ortakit info --entities&quot; en montre les différences</translation>
    </message>
    <message>
        <source>print all of it as one line of JSON</source>
        <translation>affiche tout cela en une ligne de JSON</translation>
    </message>
    <message>
        <source>Kinds of findings</source>
        <translation>Sortes de constats</translation>
    </message>
    <message>
        <source>uses takes man DIR, completions DIR or document</source>
        <translation>uses prend man DIR, completions DIR ou document</translation>
    </message>
    <message>
        <source>writes manual pages, completions and a document about the commands</source>
        <translation>écrit des pages de manuel, des complétions et un document sur les commandes</translation>
    </message>
    <message>
        <source>Writes ortakit(1) and a page for each command to a folder, the completions of bash, zsh and fish to their places below a folder, or the sections of docs/cli.md to standard output.</source>
        <translation>Écrit ortakit(1) et une page pour chaque commande dans un dossier, les complétions de bash, zsh et fish à leurs places sous un dossier, ou les sections de docs/cli.md sur la sortie standard.</translation>
    </message>
    <message>
        <source>--set takes KEY=VALUE, not &quot;%1&quot;</source>
        <translation>--set prend KEY=VALUE, non &quot;%1&quot;</translation>
    </message>
    <message>
        <source>what it works on: all, or types of entities as TEXT,MTEXT, with &quot;on layer PATTERN&quot;, &quot;of block PATTERN&quot;, &quot;in style PATTERN&quot; and &quot;in color NUMBER&quot; behind, or a filter list as ssget takes it: &apos;((0 . &quot;TEXT&quot;) (8 . &quot;NOTES&quot;))&apos;. What the tool cannot use is left out</source>
        <translation>sur quoi il travaille&#xa0;: all, ou des types d&apos;objets comme TEXT,MTEXT, avec &quot;on layer PATTERN&quot;, &quot;of block PATTERN&quot;, &quot;in style PATTERN&quot; et &quot;in color NUMBER&quot; à la suite, ou une liste de filtres comme ssget la prend&#xa0;: &apos;((0 . &quot;TEXT&quot;) (8 . &quot;NOTES&quot;))&apos;. Ce que l&apos;outil ne peut pas utiliser est omis</translation>
    </message>
    <message>
        <source>put the value into a field of the dialog; may be given again. {name} stands for the name of the drawing without folder and extension</source>
        <translation>met la valeur dans un champ de la boîte de dialogue&#xa0;; peut être répété. {name} tient lieu du nom du dessin sans dossier ni extension</translation>
    </message>
    <message>
        <source>begin with the values of a state file that the dialog saved</source>
        <translation>commence par les valeurs d&apos;un fichier d&apos;état que la boîte de dialogue a enregistré</translation>
    </message>
    <message>
        <source>press a button of the dialog behind the values that were set before; may be given again</source>
        <translation>presse un bouton de la boîte de dialogue après les valeurs définies avant&#xa0;; peut être répété</translation>
    </message>
    <message>
        <source>answer the next prompt with this: a keyword, a number, a point as 10,20; may be given again</source>
        <translation>répond ainsi à l&apos;invite suivante&#xa0;: un mot-clé, un nombre, un point comme 10,20&#xa0;; peut être répété</translation>
    </message>
    <message>
        <source>write each drawing there, under its own name</source>
        <translation>y écrit chaque dessin, sous son propre nom</translation>
    </message>
    <message>
        <source>the most it may take with one drawing</source>
        <translation>la durée maximale avec un dessin</translation>
    </message>
    <message>
        <source>This tool asks for points or entities of the drawing, or works on none: it is for the window, and for recorded sessions, which ortakit run plays over drawings.</source>
        <translation>Cet outil demande des points ou des objets du dessin, ou ne travaille sur aucun&#xa0;: il est pour la fenêtre, et pour des sessions enregistrées, que ortakit run joue sur des dessins.</translation>
    </message>
    <message>
        <source>Runs the tool over each drawing with its dialog filled in as --set says, and tells what it did. All of the dialog&apos;s checks hold, and what it complains about is an error of that drawing. Fields that are not set are as the dialog opens with them, whatever was chosen last. The drawings themselves stay as they are unless --in-place is given. It works in the space that is current in the drawing.</source>
        <translation>Exécute l&apos;outil sur chaque dessin, sa boîte de dialogue remplie comme le dit --set, et dit ce qu&apos;il a fait. Tous les contrôles de la boîte de dialogue valent, et ce qu&apos;elle refuse est une erreur de ce dessin. Les champs non définis sont comme la boîte de dialogue s&apos;ouvre, quoi qu&apos;on ait choisi en dernier. Les dessins eux-mêmes restent tels quels à moins que --in-place ne soit donné. Il travaille dans l&apos;espace courant du dessin.</translation>
    </message>
    <message>
        <source>Keys of --set</source>
        <translation>Clés de --set</translation>
    </message>
    <message>
        <source>what it works on</source>
        <translation>sur quoi il travaille</translation>
    </message>
    <message>
        <source>Texts that have a frame get a new one in its place; with --answer No the old one stays as well.</source>
        <translation>Les textes qui ont un cadre en reçoivent un nouveau à sa place&#xa0;; avec --answer No, l&apos;ancien reste aussi.</translation>
    </message>
    <message>
        <source>end with status 3 when something could not be read or is missing in the picture, which is written all the same</source>
        <translation>finir avec l&apos;état 3 quand quelque chose n&apos;a pas pu être lu ou manque dans l&apos;image, qui est écrite quand même</translation>
    </message>
    <message>
        <source>--recover and --in-place do not go together: what is recovered is not written over the damaged file</source>
        <translation>--recover et --in-place ne vont pas ensemble : ce qui est récupéré n&apos;est pas écrit sur le fichier endommagé</translation>
    </message>
    <message>
        <source>save each drawing that was changed where it is, with a copy of the old one where SETBACKUPFOLDER has named a folder for that; the tool does not run over what cannot be saved so, such as DWG files</source>
        <translation>enregistre chaque dessin modifié à sa place, avec une copie de l&apos;ancien où SETBACKUPFOLDER a nommé un dossier pour cela ; l&apos;outil ne traite pas ce qui ne peut être enregistré ainsi, comme les fichiers DWG</translation>
    </message>
    <message>
        <source>write files although another program has them open, or they lie beside a drawing under its result&apos;s name</source>
        <translation>écrit les fichiers même si un autre programme les a ouverts, ou s&apos;ils se trouvent à côté d&apos;un dessin sous le nom de son résultat</translation>
    </message>
    <message>
        <source>write files as well that another program has open, or has changed since they were opened, or that lie beside a drawing under its result&apos;s name</source>
        <translation>écrit aussi les fichiers qu&apos;un autre programme a ouverts, ou modifiés depuis leur ouverture, ou qui se trouvent à côté d&apos;un dessin sous le nom de son résultat</translation>
    </message>
</context>
<context>
    <name>host::app::ClosingQuestion</name>
    <message>
        <source>not saved yet: a name is asked for</source>
        <translation>pas encore enregistré&#xa0;: un nom sera demandé</translation>
    </message>
    <message>
        <source>Save changes</source>
        <translation>Enregistrer les modifications</translation>
    </message>
    <message>
        <source>Changed drawings</source>
        <translation>Dessins modifiés</translation>
    </message>
    <message>
        <source>Drawing</source>
        <translation>Dessin</translation>
    </message>
    <message>
        <source>File</source>
        <translation>Fichier</translation>
    </message>
    <message>
        <source>&amp;Save selected</source>
        <translation>&amp;Enregistrer la sélection</translation>
    </message>
    <message>
        <source>&amp;Discard all changes</source>
        <translation>A&amp;bandonner les modifications</translation>
    </message>
    <message>
        <source>These drawings were changed. Those that are not checked are closed unsaved.</source>
        <translation>Ces dessins ont été modifiés. Ceux qui ne sont pas cochés seront fermés sans être enregistrés.</translation>
    </message>
</context>
<context>
    <name>host::app::CommandLine</name>
    <message>
        <source>Command line</source>
        <translation>Ligne de commande</translation>
    </message>
    <message>
        <source>What was printed</source>
        <translation>Ce qui a été affiché</translation>
    </message>
    <message>
        <source>Command:</source>
        <translation>Commande&#xa0;:</translation>
    </message>
    <message>
        <source>Search what was entered: %1</source>
        <translation>Recherche dans les saisies&#xa0;: %1</translation>
    </message>
    <message>
        <source>Not found: %1</source>
        <translation>Introuvable&#xa0;: %1</translation>
    </message>
    <message>
        <source>Find</source>
        <translation>Rechercher</translation>
    </message>
    <message>
        <source>Find in what was printed</source>
        <translation>Rechercher dans ce qui a été affiché</translation>
    </message>
</context>
<context>
    <name>host::app::CommandPalette</name>
    <message>
        <source>Commands</source>
        <translation>Commandes</translation>
    </message>
    <message>
        <source>What is to be done? A command, a menu entry, a system variable</source>
        <translation>Que faut-il faire&#xa0;? Une commande, une entrée de menu, une variable système</translation>
    </message>
    <message>
        <source>What is sought</source>
        <translation>Ce qui est cherché</translation>
    </message>
    <message>
        <source>Commands that fit</source>
        <translation>Commandes qui conviennent</translation>
    </message>
</context>
<context>
    <name>host::app::CommandRunner</name>
    <message>
        <source>
A command is running; Esc stops it.
</source>
        <translation>
Une commande est en cours&#xa0;; Échap l&apos;arrête.
</translation>
    </message>
    <message>
        <source>
No drawing is open.
</source>
        <translation>
Aucun dessin n&apos;est ouvert.
</translation>
    </message>
    <message>
        <source>(_&gt;</source>
        <translation>(_&gt;</translation>
    </message>
    <message>
        <source>Command:</source>
        <translation>Commande&#xa0;:</translation>
    </message>
    <message>
        <source>No session can be played now.</source>
        <translation>Aucune session ne peut être jouée maintenant.</translation>
    </message>
</context>
<context>
    <name>host::app::DrawingAudit</name>
    <message>
        <source>the reader takes no names with line feeds</source>
        <translation>le lecteur n&apos;accepte pas les noms avec des sauts de ligne</translation>
    </message>
    <message>
        <source>the reader %1 does not answer</source>
        <translation>le lecteur %1 ne répond pas</translation>
    </message>
</context>
<context>
    <name>host::app::DrawingCanvas</name>
    <message>
        <source>simplified</source>
        <translation>simplifié</translation>
    </message>
</context>
<context>
    <name>host::app::DrawingTabs</name>
    <message>
        <source>%1 (recovered)</source>
        <translation>%1 (récupéré)</translation>
    </message>
    <message>
        <source>%1 (read only)</source>
        <translation>%1 (lecture seule)</translation>
    </message>
</context>
<context>
    <name>host::app::HelpWindow</name>
    <message>
        <source>Help</source>
        <translation>Aide</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>Rechercher</translation>
    </message>
    <message>
        <source>Contents</source>
        <translation>Contenu</translation>
    </message>
    <message>
        <source>What was found</source>
        <translation>Ce qui a été trouvé</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Précédent</translation>
    </message>
    <message>
        <source>Forward</source>
        <translation>Suivant</translation>
    </message>
    <message>
        <source>Index</source>
        <translation>Index</translation>
    </message>
    <message>
        <source>Larger</source>
        <translation>Plus grand</translation>
    </message>
    <message>
        <source>Smaller</source>
        <translation>Plus petit</translation>
    </message>
    <message>
        <source>Print...</source>
        <translation>Imprimer...</translation>
    </message>
    <message>
        <source>Nothing was found.</source>
        <translation>Rien n&apos;a été trouvé.</translation>
    </message>
</context>
<context>
    <name>host::app::InPlaceEdit</name>
    <message>
        <source>Text</source>
        <translation>Texte</translation>
    </message>
</context>
<context>
    <name>host::app::LayerBox</name>
    <message>
        <source>Filter of names</source>
        <translation>Filtre de noms</translation>
    </message>
    <message>
        <source>Filter</source>
        <translation>Filtre</translation>
    </message>
    <message>
        <source>Layers</source>
        <translation>Calques</translation>
    </message>
</context>
<context>
    <name>host::app::LayerPanel</name>
    <message>
        <source>Layers</source>
        <translation>Calques</translation>
    </message>
    <message>
        <source>&amp;New</source>
        <translation>&amp;Nouveau</translation>
    </message>
    <message>
        <source>A layer that looks like the chosen one</source>
        <translation>Un calque qui ressemble au calque sélectionné</translation>
    </message>
    <message>
        <source>&amp;Delete</source>
        <translation>&amp;Supprimer</translation>
    </message>
    <message>
        <source>Takes unused layers out of the drawing</source>
        <translation>Retire du dessin les calques inutilisés</translation>
    </message>
    <message>
        <source>Make &amp;current</source>
        <translation>Rendre &amp;courant</translation>
    </message>
    <message>
        <source>Filter of names</source>
        <translation>Filtre de noms</translation>
    </message>
    <message>
        <source>Filter: part of a name, or a pattern</source>
        <translation>Filtre&#xa0;: une partie d&apos;un nom, ou un motif</translation>
    </message>
    <message>
        <source>Which layers are shown</source>
        <translation>Quels calques sont affichés</translation>
    </message>
    <message>
        <source>All</source>
        <translation>Tous</translation>
    </message>
    <message>
        <source>Used</source>
        <translation>Utilisés</translation>
    </message>
    <message>
        <source>Of references</source>
        <translation>Des références</translation>
    </message>
    <message>
        <source>Not frozen</source>
        <translation>Non gelés</translation>
    </message>
    <message>
        <source>Visible</source>
        <translation>Visibles</translation>
    </message>
    <message>
        <source>%1 of %2 layers</source>
        <translation>%1 calques sur %2</translation>
    </message>
    <message>
        <source>%1, %2 chosen</source>
        <translation>%1, dont %2 sélectionnés</translation>
    </message>
    <message>
        <source>... and %1 more</source>
        <translation>... et %1 de plus</translation>
    </message>
    <message>
        <source>Nothing can be changed while a command runs.</source>
        <translation>Rien ne peut être modifié pendant qu&apos;une commande est en cours.</translation>
    </message>
    <message>
        <source>No drawing is open.</source>
        <translation>Aucun dessin n&apos;est ouvert.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no value for this.</source>
        <translation>&quot;%1&quot; n&apos;est pas une valeur valable ici.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; belongs to an external reference and cannot be current.</source>
        <translation>&quot;%1&quot; appartient à une référence externe et ne peut pas être courant.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is frozen and cannot be current.</source>
        <translation>&quot;%1&quot; est gelé et ne peut pas être courant.</translation>
    </message>
    <message>
        <source>Layer &quot;%1&quot; is used.</source>
        <translation>Le calque &quot;%1&quot; est utilisé.</translation>
    </message>
    <message>
        <source>&amp;Rename</source>
        <translation>&amp;Renommer</translation>
    </message>
    <message>
        <source>C&amp;olor...</source>
        <translation>C&amp;ouleur...</translation>
    </message>
    <message>
        <source>Select &amp;all</source>
        <translation>&amp;Tout sélectionner</translation>
    </message>
</context>
<context>
    <name>host::app::LayoutTabs</name>
    <message>
        <source>Layouts</source>
        <translation>Présentations</translation>
    </message>
</context>
<context>
    <name>host::app::LineReader</name>
    <message>
        <source>too much on the line: &quot;%1&quot;</source>
        <translation>il y a quelque chose de trop sur la ligne&#xa0;: &quot;%1&quot;</translation>
    </message>
    <message>
        <source>something is missing at the end of the line</source>
        <translation>il manque quelque chose à la fin de la ligne</translation>
    </message>
</context>
<context>
    <name>host::app::LispConsole</name>
    <message>
        <source>A Lisp expression</source>
        <translation>Une expression Lisp</translation>
    </message>
    <message>
        <source>Lisp expression</source>
        <translation>Expression Lisp</translation>
    </message>
    <message>
        <source>Search what was entered: %1</source>
        <translation>Recherche dans les saisies&#xa0;: %1</translation>
    </message>
    <message>
        <source>Not found: %1</source>
        <translation>Introuvable&#xa0;: %1</translation>
    </message>
</context>
<context>
    <name>host::app::LossBar</name>
    <message>
        <source>What of the file could not be read</source>
        <translation>Ce qui n&apos;a pas pu être lu du fichier</translation>
    </message>
    <message>
        <source>Objects that could not be read</source>
        <translation>Objets qui n&apos;ont pas pu être lus</translation>
    </message>
</context>
<context>
    <name>host::app::MainWindow</name>
    <message>
        <source>Lisp console</source>
        <translation>Console Lisp</translation>
    </message>
    <message>
        <source>
A command is running; Esc stops it.
</source>
        <translation>
Une commande est en cours&#xa0;; Échap l&apos;arrête.
</translation>
    </message>
    <message>
        <source>
No drawing is open.
</source>
        <translation>
Aucun dessin n&apos;est ouvert.
</translation>
    </message>
    <message>
        <source>%1 is a folder.</source>
        <translation>%1 est un dossier.</translation>
    </message>
    <message>
        <source>%1 is a picture or document, no drawing.</source>
        <translation>%1 est une image ou un document, pas un dessin.</translation>
    </message>
    <message>
        <source>No tools were found</source>
        <translation>Aucun outil n&apos;a été trouvé</translation>
    </message>
    <message>
        <source>
The help pages were not found.
</source>
        <translation>
Les pages d&apos;aide sont introuvables.
</translation>
    </message>
    <message>
        <source>About Ortakit</source>
        <translation>À propos d&apos;Ortakit</translation>
    </message>
    <message>
        <source>Ortakit %1

Drafting tools for CAD drawings, with a host of their own.
Qt %2</source>
        <translation>Ortakit %1

Outils de dessin pour la CAO, avec leur propre programme hôte.
Qt %2</translation>
    </message>
    <message>
        <source>Command line</source>
        <translation>Ligne de commande</translation>
    </message>
    <message>
        <source>
There is more to show than is drawn in one go: the picture lacks part of it.
</source>
        <translation>
Il y a plus à afficher que ce qui est dessiné en une fois&#xa0;: l&apos;image est incomplète.
</translation>
    </message>
    <message>
        <source>%1 is no full path of a program.</source>
        <translation>%1 n&apos;est pas un chemin complet de programme.</translation>
    </message>
    <message>
        <source>This cannot be kept in %1.</source>
        <translation>Cela ne peut pas être conservé dans %1.</translation>
    </message>
    <message>
        <source>not while something runs</source>
        <translation>pas pendant une exécution</translation>
    </message>
    <message>
        <source>not possible now</source>
        <translation>impossible maintenant</translation>
    </message>
    <message>
        <source>command of a program</source>
        <translation>commande d&apos;un programme</translation>
    </message>
    <message>
        <source>system variable: %1</source>
        <translation>variable système&#xa0;: %1</translation>
    </message>
    <message>
        <source>Open &amp;recent</source>
        <translation>Dessins &amp;récents</translation>
    </message>
    <message>
        <source>%1 (pinned)</source>
        <translation>%1 (épinglé)</translation>
    </message>
    <message>
        <source>&amp;Last time&apos;s drawings</source>
        <translation>&amp;Dessins de la dernière fois</translation>
    </message>
    <message>
        <source>Open them at each &amp;start</source>
        <translation>Les ouvrir à chaque dé&amp;marrage</translation>
    </message>
    <message>
        <source>&amp;Clear the list</source>
        <translation>&amp;Vider la liste</translation>
    </message>
    <message>
        <source>Start</source>
        <translation>Départ</translation>
    </message>
    <message>
        <source>Stop &amp;recording</source>
        <translation>Arrêter l&apos;enre&amp;gistrement</translation>
    </message>
    <message>
        <source>
Recording to %1.
</source>
        <translation>
Enregistrement dans %1.
</translation>
    </message>
    <message>
        <source>&amp;Record session...</source>
        <translation>Enre&amp;gistrer une session...</translation>
    </message>
    <message>
        <source>
Recorded in %1.
</source>
        <translation>
Enregistré dans %1.
</translation>
    </message>
    <message>
        <source>
The recording was not written: %1: %2
</source>
        <translation>
L&apos;enregistrement n&apos;a pas été écrit&#xa0;: %1&#xa0;: %2
</translation>
    </message>
    <message>
        <source>Record session</source>
        <translation>Enregistrer une session</translation>
    </message>
    <message>
        <source>Recorded sessions (*.txt);;All files (*)</source>
        <translation>Sessions enregistrées (*.txt);;Tous les fichiers (*)</translation>
    </message>
    <message>
        <source>
No copy of %1 is kept for after a crash: %2.
</source>
        <translation>
Aucune copie de %1 n&apos;est gardée en cas de plantage&#xa0;: %2.
</translation>
    </message>
    <message>
        <source>
%1 was recovered by another program.
</source>
        <translation>
%1 a été récupéré par un autre programme.
</translation>
    </message>
    <message>
        <source>
Recovered as it was on %1. It is not in its file until it is saved.
</source>
        <translation>
Récupéré dans son état du %1. Il n&apos;est pas dans son fichier tant qu&apos;il n&apos;est pas enregistré.
</translation>
    </message>
    <message>
        <source>Enter</source>
        <translation>Entrée</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annuler</translation>
    </message>
    <message>
        <source>Repeat %1</source>
        <translation>Répéter %1</translation>
    </message>
    <message>
        <source>Recent input</source>
        <translation>Saisies récentes</translation>
    </message>
    <message>
        <source>Choose nothing</source>
        <translation>Tout désélectionner</translation>
    </message>
    <message>
        <source>
This link of the help page is not followed: %1
</source>
        <translation>
Ce lien de la page d&apos;aide n&apos;est pas suivi&#xa0;: %1
</translation>
    </message>
</context>
<context>
    <name>host::app::NoticeBar</name>
    <message>
        <source>Detai&amp;ls</source>
        <translation>Détai&amp;ls</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Fermer</translation>
    </message>
</context>
<context>
    <name>host::app::ParagraphDialog</name>
    <message>
        <source>Edit paragraph</source>
        <translation>Modifier le paragraphe</translation>
    </message>
    <message>
        <source>Text of the paragraph</source>
        <translation>Texte du paragraphe</translation>
    </message>
    <message>
        <source>Each line is a paragraph. Codes are shown as they are: {\C1;red}, %%c, %%d.</source>
        <translation>Chaque ligne est un paragraphe. Les codes sont affichés tels quels&#xa0;: {\C1;rouge}, %%c, %%d.</translation>
    </message>
    <message>
        <source>Ctrl+Enter</source>
        <translation>Ctrl+Entrée</translation>
    </message>
</context>
<context>
    <name>host::app::PrintDialog</name>
    <message>
        <source>&amp;Centred</source>
        <translation>&amp;Centré</translation>
    </message>
    <message>
        <source>&amp;Lineweights</source>
        <translation>É&amp;paisseurs de ligne</translation>
    </message>
    <message>
        <source>&amp;Remember in the layout</source>
        <translation>&amp;Mémoriser dans la présentation</translation>
    </message>
    <message>
        <source>Print %1</source>
        <translation>Imprimer %1</translation>
    </message>
    <message>
        <source>Page setup of %1</source>
        <translation>Mise en page de %1</translation>
    </message>
    <message>
        <source>Preview</source>
        <translation>Aperçu</translation>
    </message>
    <message>
        <source>&amp;Print</source>
        <translation>&amp;Imprimer</translation>
    </message>
    <message>
        <source>%1 file</source>
        <translation>Fichier %1</translation>
    </message>
    <message>
        <source>Landscape</source>
        <translation>Paysage</translation>
    </message>
    <message>
        <source>Portrait</source>
        <translation>Portrait</translation>
    </message>
    <message>
        <source>What is shown</source>
        <translation>Ce qui est affiché</translation>
    </message>
    <message>
        <source>All</source>
        <translation>Tout</translation>
    </message>
    <message>
        <source>Limits</source>
        <translation>Limites</translation>
    </message>
    <message>
        <source>The layout&apos;s sheet</source>
        <translation>La feuille de la présentation</translation>
    </message>
    <message>
        <source>Window</source>
        <translation>Fenêtre</translation>
    </message>
    <message>
        <source>Fit</source>
        <translation>Ajuster</translation>
    </message>
    <message>
        <source>As the layout says</source>
        <translation>Selon la présentation</translation>
    </message>
    <message>
        <source>Colours</source>
        <translation>Couleurs</translation>
    </message>
    <message>
        <source>Black and white</source>
        <translation>Noir et blanc</translation>
    </message>
    <message>
        <source>Greys</source>
        <translation>Niveaux de gris</translation>
    </message>
    <message>
        <source>&amp;Device</source>
        <translation>Périphéri&amp;que</translation>
    </message>
    <message>
        <source>P&amp;aper</source>
        <translation>P&amp;apier</translation>
    </message>
    <message>
        <source>&amp;Orientation</source>
        <translation>&amp;Orientation</translation>
    </message>
    <message>
        <source>A&amp;rea</source>
        <translation>&amp;Zone</translation>
    </message>
    <message>
        <source>Lower left corner</source>
        <translation>Coin inférieur gauche</translation>
    </message>
    <message>
        <source>Upper right corner</source>
        <translation>Coin supérieur droit</translation>
    </message>
    <message>
        <source>&amp;Scale</source>
        <translation>Éc&amp;helle</translation>
    </message>
    <message>
        <source>O&amp;ffset (mm)</source>
        <translation>&amp;Décalage (mm)</translation>
    </message>
    <message>
        <source>Colo&amp;urs</source>
        <translation>Co&amp;uleurs</translation>
    </message>
    <message>
        <source>Cop&amp;ies</source>
        <translation>Copi&amp;es</translation>
    </message>
</context>
<context>
    <name>host::app::PropertiesPanel</name>
    <message>
        <source>Which of the chosen entities</source>
        <translation>Lesquels des objets sélectionnés</translation>
    </message>
    <message>
        <source>Properties</source>
        <translation>Propriétés</translation>
    </message>
    <message>
        <source>Nothing chosen</source>
        <translation>Rien de sélectionné</translation>
    </message>
    <message>
        <source>No drawing is open</source>
        <translation>Aucun dessin ouvert</translation>
    </message>
    <message>
        <source>All</source>
        <translation>Tous</translation>
    </message>
    <message>
        <source>%1 of %2 are on locked layers and stay as they are.</source>
        <translation>%1 sur %2 sont sur des calques verrouillés et restent tels quels.</translation>
    </message>
    <message>
        <source>Nothing was changed: what is chosen is on locked layers.</source>
        <translation>Rien n&apos;a été modifié&#xa0;: ce qui est sélectionné est sur des calques verrouillés.</translation>
    </message>
</context>
<context>
    <name>host::app::RecoveryDialog</name>
    <message>
        <source>never saved</source>
        <translation>jamais enregistré</translation>
    </message>
    <message>
        <source>%1
(changed since by another program)</source>
        <translation>%1
(modifié depuis par un autre programme)</translation>
    </message>
    <message>
        <source>%1
(not there any more)</source>
        <translation>%1
(n&apos;existe plus)</translation>
    </message>
    <message>
        <source>Recover drawings</source>
        <translation>Récupérer des dessins</translation>
    </message>
    <message>
        <source>The program ended without closing these drawings. What had not been saved of them was kept in copies.</source>
        <translation>Le programme s&apos;est arrêté sans fermer ces dessins. Ce qui n&apos;en avait pas été enregistré a été gardé dans des copies.</translation>
    </message>
    <message>
        <source>Drawings to recover</source>
        <translation>Dessins à récupérer</translation>
    </message>
    <message>
        <source>Drawing</source>
        <translation>Dessin</translation>
    </message>
    <message>
        <source>Copied</source>
        <translation>Copié</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Taille</translation>
    </message>
    <message>
        <source>File</source>
        <translation>Fichier</translation>
    </message>
    <message>
        <source>&amp;Open selected</source>
        <translation>&amp;Ouvrir la sélection</translation>
    </message>
    <message>
        <source>&amp;Discard selected...</source>
        <translation>&amp;Abandonner la sélection...</translation>
    </message>
    <message>
        <source>&amp;Later</source>
        <translation>&amp;Plus tard</translation>
    </message>
    <message>
        <source>The copies are offered again at the next start</source>
        <translation>Les copies seront proposées à nouveau au prochain démarrage</translation>
    </message>
    <message>
        <source>(no name)</source>
        <translation>(sans nom)</translation>
    </message>
    <message numerus="yes">
        <source>Discard what was not saved of %n drawing(s)? It cannot be brought back.</source>
        <translation>
            <numerusform>Abandonner ce qui n&apos;a pas été enregistré de %n dessin&#xa0;? Cela ne pourra pas être récupéré.</numerusform>
            <numerusform>Abandonner ce qui n&apos;a pas été enregistré de %n dessins&#xa0;? Cela ne pourra pas être récupéré.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>host::app::ResultsModel</name>
    <message>
        <source>done</source>
        <translation>fait</translation>
    </message>
    <message>
        <source>skipped</source>
        <translation>ignoré</translation>
    </message>
    <message>
        <source>Outcome</source>
        <translation>Résultat</translation>
    </message>
    <message>
        <source>Entity</source>
        <translation>Objet</translation>
    </message>
    <message>
        <source>What and why</source>
        <translation>Quoi et pourquoi</translation>
    </message>
</context>
<context>
    <name>host::app::ResultsPanel</name>
    <message>
        <source>&amp;Save...</source>
        <translation>&amp;Enregistrer...</translation>
    </message>
    <message>
        <source>Results</source>
        <translation>Résultats</translation>
    </message>
    <message>
        <source>Which results are shown</source>
        <translation>Quels résultats sont affichés</translation>
    </message>
    <message>
        <source>All</source>
        <translation>Tous</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>Faits</translation>
    </message>
    <message>
        <source>Skipped</source>
        <translation>Ignorés</translation>
    </message>
    <message>
        <source>No tool has listed results in this drawing.</source>
        <translation>Aucun outil n&apos;a listé de résultats dans ce dessin.</translation>
    </message>
    <message>
        <source>It is not in the drawing any more.</source>
        <translation>Il n&apos;est plus dans le dessin.</translation>
    </message>
    <message>
        <source>It is not in the space that is shown.</source>
        <translation>Il n&apos;est pas dans l&apos;espace affiché.</translation>
    </message>
    <message>
        <source>Save results</source>
        <translation>Enregistrer les résultats</translation>
    </message>
    <message>
        <source>Text (*.txt);;JSON (*.json)</source>
        <translation>Texte (*.txt);;JSON (*.json)</translation>
    </message>
    <message>
        <source>Written: %1</source>
        <translation>Écrit&#xa0;: %1</translation>
    </message>
</context>
<context>
    <name>host::app::ScriptReader</name>
    <message>
        <source>part: it has no end</source>
        <translation>part&#xa0;: elle n&apos;a pas de fin</translation>
    </message>
    <message>
        <source>part: the part before it has no end</source>
        <translation>part&#xa0;: la partie précédente n&apos;a pas de fin</translation>
    </message>
    <message>
        <source>end: no part was begun</source>
        <translation>end&#xa0;: aucune partie n&apos;a été commencée</translation>
    </message>
    <message>
        <source>drawing: only the first line says which drawing it is</source>
        <translation>drawing&#xa0;: seule la première ligne dit de quel dessin il s&apos;agit</translation>
    </message>
    <message>
        <source>part: there is a part %1 already</source>
        <translation>part&#xa0;: il y a déjà une partie %1</translation>
    </message>
    <message>
        <source>part: a part cannot be written in a part</source>
        <translation>part&#xa0;: une partie ne peut pas être écrite dans une partie</translation>
    </message>
    <message>
        <source>play: there is no part %1</source>
        <translation>play&#xa0;: il n&apos;y a pas de partie %1</translation>
    </message>
    <message>
        <source>play: the part %1 plays itself</source>
        <translation>play&#xa0;: la partie %1 se joue elle-même</translation>
    </message>
    <message>
        <source>play: too many parts are played one in the other</source>
        <translation>play&#xa0;: trop de parties sont jouées l&apos;une dans l&apos;autre</translation>
    </message>
    <message>
        <source>play: the part %1 takes %2</source>
        <translation>play&#xa0;: la partie %1 prend %2</translation>
    </message>
    <message>
        <source>part %1, line %2</source>
        <translation>partie %1, ligne %2</translation>
    </message>
    <message>
        <source>play: the parts write too much</source>
        <translation>play&#xa0;: les parties écrivent trop</translation>
    </message>
    <message>
        <source>no arguments</source>
        <translation>aucun argument</translation>
    </message>
</context>
<context>
    <name>host::app::SessionPlayer</name>
    <message>
        <source>the session took longer than %1 s; open is %2</source>
        <translation>la session a duré plus de %1 s&#xa0;; est ouvert&#xa0;: %2</translation>
    </message>
    <message>
        <source>no dialog</source>
        <translation>aucune boîte de dialogue</translation>
    </message>
    <message>
        <source>${%1} is not known</source>
        <translation>${%1} n&apos;est pas connu</translation>
    </message>
    <message>
        <source>the prompt &quot;%1&quot;</source>
        <translation>l&apos;invite &quot;%1&quot;</translation>
    </message>
    <message>
        <source>the session ends while %1 is open</source>
        <translation>la session finit alors que ceci est ouvert&#xa0;: %1</translation>
    </message>
    <message>
        <source>%1 is open</source>
        <translation>%1 est ouvert</translation>
    </message>
    <message>
        <source>%1 is still open</source>
        <translation>%1&#xa0;: encore ouvert</translation>
    </message>
    <message>
        <source>a view needs two corners</source>
        <translation>une vue demande deux coins</translation>
    </message>
    <message>
        <source>the run before it ended without an error</source>
        <translation>l&apos;exécution précédente a fini sans erreur</translation>
    </message>
    <message>
        <source>no prompt and no dialog is open that this could be meant for</source>
        <translation>ni invite ni boîte de dialogue n&apos;est ouverte à laquelle cela pourrait s&apos;adresser</translation>
    </message>
    <message>
        <source>there is no panel &quot;%1&quot;</source>
        <translation>il n&apos;y a pas de panneau &quot;%1&quot;</translation>
    </message>
    <message>
        <source>it stands in front of a command or lisp</source>
        <translation>cela se place devant une commande ou lisp</translation>
    </message>
    <message>
        <source>the error is &quot;%1&quot;</source>
        <translation>l&apos;erreur est &quot;%1&quot;</translation>
    </message>
    <message>
        <source>the run ended with &quot;%1&quot;</source>
        <translation>l&apos;exécution a fini par &quot;%1&quot;</translation>
    </message>
    <message>
        <source>cancelled at %1, </source>
        <translation>annulé à %1, </translation>
    </message>
    <message>
        <source>the drawing differs from what it was: %1</source>
        <translation>le dessin diffère de ce qu&apos;il était&#xa0;: %1</translation>
    </message>
    <message>
        <source>there is nothing to undo</source>
        <translation>il n&apos;y a rien à annuler</translation>
    </message>
    <message>
        <source>there is nothing to redo</source>
        <translation>il n&apos;y a rien à rétablir</translation>
    </message>
    <message>
        <source>it is nil</source>
        <translation>c&apos;est nil</translation>
    </message>
</context>
<context>
    <name>host::app::SettingEditor</name>
    <message>
        <source>Add to: %1</source>
        <translation>Ajouter à&#xa0;: %1</translation>
    </message>
    <message>
        <source>Lisp programs (*.lsp)</source>
        <translation>Programmes Lisp (*.lsp)</translation>
    </message>
</context>
<context>
    <name>host::app::SettingsWindow</name>
    <message>
        <source>Settings</source>
        <translation>Paramètres</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>Rechercher</translation>
    </message>
    <message>
        <source>Search the settings</source>
        <translation>Rechercher dans les paramètres</translation>
    </message>
    <message>
        <source>Sections</source>
        <translation>Sections</translation>
    </message>
    <message>
        <source>System variables are shown while a drawing is open.</source>
        <translation>Les variables système sont affichées quand un dessin est ouvert.</translation>
    </message>
    <message>
        <source>A command is running; Esc stops it.</source>
        <translation>Une commande est en cours&#xa0;; Échap l&apos;arrête.</translation>
    </message>
    <message>
        <source>%1 cannot be &quot;%2&quot;.</source>
        <translation>%1 ne peut pas être &quot;%2&quot;.</translation>
    </message>
</context>
<context>
    <name>host::app::StartPage</name>
    <message>
        <source>Recent drawings</source>
        <translation>Dessins récents</translation>
    </message>
    <message>
        <source>Samples</source>
        <translation>Exemples</translation>
    </message>
    <message>
        <source>Ortakit</source>
        <translation>Ortakit</translation>
    </message>
    <message>
        <source>First steps</source>
        <translation>Premiers pas</translation>
    </message>
    <message>
        <source>&amp;New drawing</source>
        <translation>&amp;Nouveau dessin</translation>
    </message>
    <message>
        <source>&amp;Open drawings...</source>
        <translation>&amp;Ouvrir des dessins...</translation>
    </message>
    <message>
        <source>Open &amp;last time&apos;s drawings</source>
        <translation>Ouvrir les &amp;dessins de la dernière fois</translation>
    </message>
    <message>
        <source>Look at a sample</source>
        <translation>Regarder un exemple</translation>
    </message>
    <message>
        <source>Draw a line</source>
        <translation>Dessiner une ligne</translation>
    </message>
    <message>
        <source>Read the help</source>
        <translation>Lire l&apos;aide</translation>
    </message>
    <message>
        <source>(not there any more)</source>
        <translation>(n&apos;existe plus)</translation>
    </message>
    <message>
        <source>%1 (pinned)</source>
        <translation>%1 (épinglé)</translation>
    </message>
    <message>
        <source>Un&amp;pin</source>
        <translation>Dé&amp;tacher</translation>
    </message>
    <message>
        <source>&amp;Pin</source>
        <translation>Épin&amp;gler</translation>
    </message>
    <message>
        <source>&amp;Remove from the list</source>
        <translation>&amp;Retirer de la liste</translation>
    </message>
</context>
<context>
    <name>host::app::StatusSwitches</name>
    <message>
        <source>%1 on</source>
        <translation>%1 actif</translation>
    </message>
    <message>
        <source>%1 off</source>
        <translation>%1 inactif</translation>
    </message>
    <message>
        <source>GRID</source>
        <translation>GRILLE</translation>
    </message>
    <message>
        <source>Shows the grid</source>
        <translation>Affiche la grille</translation>
    </message>
    <message>
        <source>SNAP</source>
        <translation>RESOL</translation>
    </message>
    <message>
        <source>Points snap to the grid</source>
        <translation>Les points s&apos;accrochent à la grille</translation>
    </message>
    <message>
        <source>ORTHO</source>
        <translation>ORTHO</translation>
    </message>
    <message>
        <source>Points lie along the axes from the last one</source>
        <translation>Les points suivent les axes depuis le dernier</translation>
    </message>
    <message>
        <source>POLAR</source>
        <translation>POLAIRE</translation>
    </message>
    <message>
        <source>Points lock to angles from the last one</source>
        <translation>Les points se calent sur des angles depuis le dernier</translation>
    </message>
    <message>
        <source>OSNAP</source>
        <translation>ACCROBJ</translation>
    </message>
    <message>
        <source>Points snap to entities</source>
        <translation>Les points s&apos;accrochent aux objets</translation>
    </message>
    <message>
        <source>DYN</source>
        <translation>DYN</translation>
    </message>
    <message>
        <source>Length and angle stand at the pointer; Tab locks what was typed</source>
        <translation>La longueur et l&apos;angle s&apos;affichent au pointeur&#xa0;; Tab verrouille ce qui est saisi</translation>
    </message>
</context>
<context>
    <name>host::app::StyleBar</name>
    <message>
        <source>Current properties</source>
        <translation>Propriétés courantes</translation>
    </message>
    <message>
        <source>Layer</source>
        <translation>Calque</translation>
    </message>
    <message>
        <source>Color</source>
        <translation>Couleur</translation>
    </message>
    <message>
        <source>Linetype</source>
        <translation>Type de ligne</translation>
    </message>
    <message>
        <source>Lineweight</source>
        <translation>Épaisseur de ligne</translation>
    </message>
</context>
<context>
    <name>host::app::SuggestionList</name>
    <message>
        <source>Suggestions</source>
        <translation>Suggestions</translation>
    </message>
</context>
<context>
    <name>host::app::TextEditing</name>
    <message>
        <source>It is on a locked layer.</source>
        <translation>Il est sur un calque verrouillé.</translation>
    </message>
    <message>
        <source>A text without letters could not be found again: it stays as it was.</source>
        <translation>Un texte sans lettres ne pourrait pas être retrouvé&#xa0;: il reste tel qu&apos;il était.</translation>
    </message>
    <message>
        <source>Edit attribute definition</source>
        <translation>Modifier la définition d&apos;attribut</translation>
    </message>
    <message>
        <source>Tag</source>
        <translation>Étiquette</translation>
    </message>
    <message>
        <source>Prompt</source>
        <translation>Invite</translation>
    </message>
    <message>
        <source>Default</source>
        <translation>Valeur par défaut</translation>
    </message>
    <message>
        <source>A tag has no blanks.</source>
        <translation>Une étiquette n&apos;a pas d&apos;espaces.</translation>
    </message>
    <message>
        <source>The value is constant: the block says it.</source>
        <translation>La valeur est constante&#xa0;: le bloc la fixe.</translation>
    </message>
    <message>
        <source>Several lines, with \P between them.</source>
        <translation>Plusieurs lignes, séparées par \P.</translation>
    </message>
    <message>
        <source>Attributes of %1</source>
        <translation>Attributs de %1</translation>
    </message>
</context>
<context>
    <name>host::app::TrustBar</name>
    <message>
        <source>%1 was not read: %2</source>
        <translation>%1 n&apos;a pas été lu&#xa0;: %2</translation>
    </message>
    <message>
        <source>%1 was not loaded: %2</source>
        <translation>%1 n&apos;a pas été chargé&#xa0;: %2</translation>
    </message>
    <message>
        <source>%1 was not started: %2</source>
        <translation>%1 n&apos;a pas été démarré&#xa0;: %2</translation>
    </message>
    <message>
        <source>Allow &amp;once</source>
        <translation>&amp;Autoriser une fois</translation>
    </message>
    <message>
        <source>Trust the folde&amp;r</source>
        <translation>Faire confiance au dossie&amp;r</translation>
    </message>
    <message>
        <source>What was kept from running or being read</source>
        <translation>Ce qui n&apos;a pu ni s&apos;exécuter ni être lu</translation>
    </message>
    <message>
        <source>Files and programs that were kept back</source>
        <translation>Fichiers et programmes retenus</translation>
    </message>
    <message>
        <source>%1 things were kept back: they are named here but not in trusted folders.</source>
        <translation>%1 éléments ont été retenus&#xa0;: ils sont nommés ici, mais ne sont pas dans des dossiers de confiance.</translation>
    </message>
</context>
<context>
    <name>host::app::ValuesDialog</name>
    <message>
        <source>Tag</source>
        <translation>Étiquette</translation>
    </message>
    <message>
        <source>Prompt</source>
        <translation>Invite</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>Valeur</translation>
    </message>
</context>
<context>
    <name>host::app::WindowDialogs</name>
    <message>
        <source>Printed on %1.</source>
        <translation>Imprimé sur %1.</translation>
    </message>
    <message>
        <source>Print to file</source>
        <translation>Imprimer dans un fichier</translation>
    </message>
    <message>
        <source>%1 files (*.%2)</source>
        <translation>Fichiers %1 (*.%2)</translation>
    </message>
    <message>
        <source>&amp;New</source>
        <translation>&amp;Nouveau</translation>
    </message>
    <message>
        <source>&amp;Rename...</source>
        <translation>&amp;Renommer...</translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation>&amp;Copier</translation>
    </message>
    <message>
        <source>&amp;Delete</source>
        <translation>&amp;Supprimer</translation>
    </message>
    <message>
        <source>Move &amp;left</source>
        <translation>Déplacer à &amp;gauche</translation>
    </message>
    <message>
        <source>Move righ&amp;t</source>
        <translation>Déplacer à &amp;droite</translation>
    </message>
    <message>
        <source>&amp;Page setup...</source>
        <translation>&amp;Mise en page...</translation>
    </message>
    <message>
        <source>Rename layout</source>
        <translation>Renommer la présentation</translation>
    </message>
    <message>
        <source>&amp;Name:</source>
        <translation>&amp;Nom&#xa0;:</translation>
    </message>
</context>
<context>
    <name>host::app::Workbench</name>
    <message>
        <source>The folder of the Lisp tools was not found; there are no tools.</source>
        <translation>Le dossier des outils Lisp est introuvable&#xa0;; il n&apos;y a pas d&apos;outils.</translation>
    </message>
    <message>
        <source>There is no folder %1; there are no tools.</source>
        <translation>Il n&apos;y a pas de dossier %1&#xa0;; il n&apos;y a pas d&apos;outils.</translation>
    </message>
    <message>
        <source>The plug-in module was not found; tools with dialogs will not work.</source>
        <translation>Le module d&apos;extension est introuvable&#xa0;; les outils avec boîtes de dialogue ne fonctionneront pas.</translation>
    </message>
    <message>
        <source>%1 Tools with dialogs will not work.</source>
        <translation>%1 Les outils avec boîtes de dialogue ne fonctionneront pas.</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1&#xa0;: %2</translation>
    </message>
</context>
<context>
    <name>host::kernel::Autosave</name>
    <message>
        <source>the folder %1 takes no files</source>
        <translation>le dossier %1 n&apos;accepte pas de fichiers</translation>
    </message>
</context>
<context>
    <name>host::kernel::ColourDialog</name>
    <message>
        <source>Select Color</source>
        <translation>Sélectionner une couleur</translation>
    </message>
    <message>
        <source>By&amp;Layer</source>
        <translation>By&amp;Layer</translation>
    </message>
    <message>
        <source>By&amp;Block</source>
        <translation>By&amp;Block</translation>
    </message>
    <message>
        <source>&amp;More Colors...</source>
        <translation>&amp;Autres couleurs...</translation>
    </message>
    <message>
        <source>&amp;Color:</source>
        <translation>&amp;Couleur&#xa0;:</translation>
    </message>
</context>
<context>
    <name>host::kernel::DrawingBackup</name>
    <message>
        <source>No backup of %1: %2.</source>
        <translation>Aucune copie de sauvegarde de %1&#xa0;: %2.</translation>
    </message>
    <message>
        <source>the backup would take the place of the drawing</source>
        <translation>la copie de sauvegarde prendrait la place du dessin</translation>
    </message>
    <message>
        <source>there is no folder %1</source>
        <translation>il n&apos;y a pas de dossier %1</translation>
    </message>
</context>
<context>
    <name>host::view::DifferencePicture</name>
    <message>
        <source>gone: %n</source>
        <translation>disparus&#xa0;: %n</translation>
    </message>
    <message>
        <source>new: %n</source>
        <translation>nouveaux&#xa0;: %n</translation>
    </message>
    <message>
        <source>changed, as it was: %n</source>
        <translation>modifiés, tels qu&apos;ils étaient&#xa0;: %n</translation>
    </message>
    <message>
        <source>changed, as it is: %n</source>
        <translation>modifiés, tels qu&apos;ils sont&#xa0;: %n</translation>
    </message>
    <message>
        <source>the same in both</source>
        <translation>identiques dans les deux</translation>
    </message>
    <message>
        <source>the picture is too large</source>
        <translation>l&apos;image est trop grande</translation>
    </message>
</context>
<context>
    <name>host::view::Export</name>
    <message>
        <source>Cannot make a picture of this size for %1</source>
        <translation>Impossible de faire une image de cette taille pour %1</translation>
    </message>
    <message>
        <source>Cannot write %1: %2</source>
        <translation>Impossible d&apos;écrire %1&#xa0;: %2</translation>
    </message>
    <message>
        <source>The sheet would be %1 by %2 pixels; %3 each way are the most</source>
        <translation>La feuille aurait %1 sur %2 pixels&#xa0;; %3 par côté est le maximum</translation>
    </message>
    <message>
        <source>There is no block named %1</source>
        <translation>Il n&apos;y a pas de bloc nommé %1</translation>
    </message>
    <message>
        <source>There is no layout named %1</source>
        <translation>Il n&apos;y a pas de présentation nommée %1</translation>
    </message>
    <message>
        <source>it is not found</source>
        <translation>il est introuvable</translation>
    </message>
    <message>
        <source>the plot styles %1 are left out: %2</source>
        <translation>les styles de tracé %1 sont omis&#xa0;: %2</translation>
    </message>
</context>
</TS>
