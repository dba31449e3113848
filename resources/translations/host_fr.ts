<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fr_FR" sourcelanguage="en">
<context>
    <name>AimMarks</name>
    <message>
        <source>Polar: %1 &lt; %2</source>
        <translation>Polaire : %1 &lt; %2</translation>
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
        <translation>%1 existe déjà. Voulez-vous le remplacer ?</translation>
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
Écrit : %1
</translation>
    </message>
    <message>
        <source>In the picture: %1
</source>
        <translation>Dans l&apos;image : %1
</translation>
    </message>
    <message>
        <source>%1 was changed. Save it?</source>
        <translation>%1 a été modifié. L&apos;enregistrer ?</translation>
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
        <translation>&quot;%1&quot; n&apos;est pas une transparence : ByLayer, ByBlock ou 0 à 90.</translation>
    </message>
    <message>
        <source>%1: the current color is one of the table.</source>
        <translation>%1 : la couleur courante doit être l&apos;une de la table.</translation>
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
        <translation>%1 : la valeur doit être supérieure à 0.</translation>
    </message>
    <message>
        <source>%1: it must not be 0.</source>
        <translation>%1 : la valeur ne doit pas être 0.</translation>
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
    <message>
        <source>Help</source>
        <translation>Aide</translation>
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
        <translation>Des fenêtres, des boîtes de dialogue et des invites ; prise en compte au prochain démarrage</translation>
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
        <translation>Chemins complets, séparés par des points-virgules, dans cet ordre ; pris en compte à partir du prochain dessin</translation>
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
    <name>StatusSwitches</name>
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
        <translation>La longueur et l&apos;angle s&apos;affichent au pointeur ; Tab verrouille ce qui est saisi</translation>
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
    <name>host::app</name>
    <message>
        <source>there is %1</source>
        <translation>il y a %1</translation>
    </message>
    <message>
        <source>%1 has no button &quot;%2&quot;</source>
        <translation>%1 n&apos;a pas de bouton &quot;%2&quot;</translation>
    </message>
    <message>
        <source>%1 took &quot;%2&quot;</source>
        <translation>%1 a pris &quot;%2&quot;</translation>
    </message>
    <message>
        <source>%1 takes no file name</source>
        <translation>%1 n&apos;accepte pas de nom de fichier</translation>
    </message>
    <message>
        <source>the menu&apos;s entry &quot;%1&quot; is disabled</source>
        <translation>l&apos;entrée de menu &quot;%1&quot; est désactivée</translation>
    </message>
    <message>
        <source>the menu has no entry &quot;%1&quot;; it has %2</source>
        <translation>le menu n&apos;a pas d&apos;entrée &quot;%1&quot; ; il a %2</translation>
    </message>
    <message>
        <source>%1 has the keyboard</source>
        <translation>%1 a le clavier</translation>
    </message>
    <message>
        <source>nothing has the keyboard</source>
        <translation>rien n&apos;a le clavier</translation>
    </message>
    <message>
        <source>the items are &quot;%1&quot;</source>
        <translation>les éléments sont &quot;%1&quot;</translation>
    </message>
    <message>
        <source>%1 is open</source>
        <translation>%1 est ouvert</translation>
    </message>
    <message>
        <source>the title is &quot;%1&quot;</source>
        <translation>le titre est &quot;%1&quot;</translation>
    </message>
    <message>
        <source>it is enabled</source>
        <translation>il est activé</translation>
    </message>
    <message>
        <source>it is disabled</source>
        <translation>il est désactivé</translation>
    </message>
    <message>
        <source>it is visible</source>
        <translation>il est visible</translation>
    </message>
    <message>
        <source>it is not visible</source>
        <translation>il n&apos;est pas visible</translation>
    </message>
    <message>
        <source>it shows &quot;%1&quot;</source>
        <translation>il affiche &quot;%1&quot;</translation>
    </message>
    <message>
        <source>a quote is not closed, or text follows right behind it</source>
        <translation>un guillemet n&apos;est pas fermé, ou du texte le suit immédiatement</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is neither yes nor no (on, off)</source>
        <translation>&quot;%1&quot; n&apos;est ni yes ni no (on, off)</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no point; write x,y or x,y,z</source>
        <translation>&quot;%1&quot; n&apos;est pas un point ; écrivez x,y ou x,y,z</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no whole number from 0 up</source>
        <translation>&quot;%1&quot; n&apos;est pas un nombre entier à partir de 0</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no handle</source>
        <translation>&quot;%1&quot; n&apos;est pas un identificateur d&apos;objet</translation>
    </message>
    <message>
        <source>unknown word &quot;%1&quot;</source>
        <translation>mot inconnu &quot;%1&quot;</translation>
    </message>
    <message>
        <source>${%1} is not known</source>
        <translation>${%1} n&apos;est pas connu</translation>
    </message>
    <message>
        <source>the line goes on (it ends in a backslash), but the session ends</source>
        <translation>la ligne continue (elle finit par une barre oblique inverse), mais la session finit</translation>
    </message>
    <message>
        <source>%1 is too long for a session</source>
        <translation>%1 est trop long pour une session</translation>
    </message>
    <message>
        <source>cannot read %1: %2</source>
        <translation>impossible de lire %1 : %2</translation>
    </message>
    <message>
        <source>%1 is no UTF-8 text</source>
        <translation>%1 n&apos;est pas un texte UTF-8</translation>
    </message>
    <message>
        <source>%1 has no row &quot;%2&quot;</source>
        <translation>%1 n&apos;a pas de ligne &quot;%2&quot;</translation>
    </message>
    <message>
        <source>%1 is no list, table or tree</source>
        <translation>%1 n&apos;est ni une liste, ni un tableau, ni un arbre</translation>
    </message>
    <message>
        <source>the list went away while rows were selected</source>
        <translation>la liste a disparu pendant la sélection de lignes</translation>
    </message>
    <message>
        <source>row &quot;%1&quot; of %2 is not visible</source>
        <translation>la ligne &quot;%1&quot; de %2 n&apos;est pas visible</translation>
    </message>
    <message>
        <source>row &quot;%1&quot; of %2 cannot be checked</source>
        <translation>la ligne &quot;%1&quot; de %2 ne peut pas être cochée</translation>
    </message>
    <message>
        <source>%1 has no cell %2, %3</source>
        <translation>%1 n&apos;a pas de cellule %2, %3</translation>
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
        <source>what was printed is &quot;%1&quot;</source>
        <translation>ce qui a été affiché est &quot;%1&quot;</translation>
    </message>
    <message>
        <source>there are %1</source>
        <translation>il y en a %1</translation>
    </message>
    <message>
        <source>what cannot be read again</source>
        <translation>ce qui ne peut pas être relu</translation>
    </message>
    <message>
        <source>the changes are &quot;%1&quot;</source>
        <translation>les modifications sont &quot;%1&quot;</translation>
    </message>
    <message>
        <source>there was no run before it</source>
        <translation>il n&apos;y a pas eu d&apos;exécution avant</translation>
    </message>
    <message>
        <source>the drawing differs from what it was: %1</source>
        <translation>le dessin diffère de ce qu&apos;il était : %1</translation>
    </message>
    <message>
        <source>no program was given that reads drawings (--audit, or the environment&apos;s ORTAKIT_AUDIT)</source>
        <translation>aucun programme lisant les dessins n&apos;a été donné (--audit, ou ORTAKIT_AUDIT dans l&apos;environnement)</translation>
    </message>
    <message>
        <source>the order of its records</source>
        <translation>l&apos;ordre de ses enregistrements</translation>
    </message>
    <message>
        <source>the run changed nothing</source>
        <translation>l&apos;exécution n&apos;a rien modifié</translation>
    </message>
    <message>
        <source>undone, the drawing differs from what it was: %1</source>
        <translation>après annulation, le dessin diffère de ce qu&apos;il était : %1</translation>
    </message>
    <message>
        <source>done again, the drawing differs from what it was: %1</source>
        <translation>après rétablissement, le dessin diffère de ce qu&apos;il était : %1</translation>
    </message>
    <message>
        <source>the drawing was changed</source>
        <translation>le dessin a été modifié</translation>
    </message>
    <message>
        <source>the drawing is unchanged</source>
        <translation>le dessin est inchangé</translation>
    </message>
    <message>
        <source>the file&apos;s text is &quot;%1&quot;</source>
        <translation>le texte du fichier est &quot;%1&quot;</translation>
    </message>
    <message>
        <source>the file does not hold it; its text is &quot;%1&quot;</source>
        <translation>le fichier ne le contient pas ; son texte est &quot;%1&quot;</translation>
    </message>
    <message>
        <source>the files differ at byte %1: &quot;%2&quot; and &quot;%3&quot;</source>
        <translation>les fichiers diffèrent à l&apos;octet %1 : &quot;%2&quot; et &quot;%3&quot;</translation>
    </message>
    <message>
        <source>no folder was given to write to (--out)</source>
        <translation>aucun dossier où écrire n&apos;a été donné (--out)</translation>
    </message>
    <message>
        <source>the file is there</source>
        <translation>le fichier est présent</translation>
    </message>
    <message>
        <source>line %1%2 (%3): </source>
        <translation>ligne %1%2 (%3) : </translation>
    </message>
    <message>
        <source>line %1: %2</source>
        <translation>ligne %1 : %2</translation>
    </message>
    <message>
        <source>line %1: the session has cases, each of which wants the drawing opened anew</source>
        <translation>ligne %1 : la session a des cas, qui demandent chacun que le dessin soit rouvert</translation>
    </message>
    <message>
        <source>%1 cannot be written to</source>
        <translation>impossible d&apos;écrire dans %1</translation>
    </message>
    <message>
        <source>%1 does not take &quot;%2&quot;; it shows &quot;%3&quot;</source>
        <translation>%1 n&apos;accepte pas &quot;%2&quot; ; il affiche &quot;%3&quot;</translation>
    </message>
    <message>
        <source>%1 does not take &quot;%2&quot;</source>
        <translation>%1 n&apos;accepte pas &quot;%2&quot;</translation>
    </message>
    <message>
        <source>%1 has no item &quot;%2&quot;; it has %3</source>
        <translation>%1 n&apos;a pas d&apos;élément &quot;%2&quot; ; il a %3</translation>
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
        <source>the widget went away while it was typed into</source>
        <translation>l&apos;élément de saisie a disparu pendant la frappe</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no key</source>
        <translation>&quot;%1&quot; n&apos;est pas une touche</translation>
    </message>
    <message>
        <source>%1 cannot be checked</source>
        <translation>%1 ne peut pas être coché</translation>
    </message>
    <message>
        <source>%1 stays as it is; another button of its group must be checked</source>
        <translation>%1 reste tel quel ; un autre bouton de son groupe doit être coché</translation>
    </message>
    <message>
        <source>%1 is not visible</source>
        <translation>%1 n&apos;est pas visible</translation>
    </message>
    <message>
        <source>%1 is disabled</source>
        <translation>%1 est désactivé</translation>
    </message>
    <message>
        <source>nothing with a name</source>
        <translation>rien qui ait un nom</translation>
    </message>
    <message>
        <source>%1 has no widget &quot;%2&quot;; it has %3</source>
        <translation>%1 n&apos;a pas d&apos;élément &quot;%2&quot; ; il a %3</translation>
    </message>
    <message>
        <source>dialog %1</source>
        <translation>boîte de dialogue %1</translation>
    </message>
    <message>
        <source> saying &quot;%1&quot;</source>
        <translation> qui dit &quot;%1&quot;</translation>
    </message>
</context>
<context>
    <name>host::app::ClosingQuestion</name>
    <message>
        <source>not saved yet: a name is asked for</source>
        <translation>pas encore enregistré : un nom sera demandé</translation>
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
        <translation>Commande :</translation>
    </message>
    <message>
        <source>Search what was entered: %1</source>
        <translation>Recherche dans les saisies : %1</translation>
    </message>
    <message>
        <source>Not found: %1</source>
        <translation>Introuvable : %1</translation>
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
        <translation>Que faut-il faire ? Une commande, une entrée de menu, une variable système</translation>
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
Une commande est en cours ; Échap l&apos;arrête.
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
        <translation>Commande :</translation>
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
        <translation>Filtre : une partie d&apos;un nom, ou un motif</translation>
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
        <translation>il y a quelque chose de trop sur la ligne : &quot;%1&quot;</translation>
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
        <translation>Recherche dans les saisies : %1</translation>
    </message>
    <message>
        <source>Not found: %1</source>
        <translation>Introuvable : %1</translation>
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
Une commande est en cours ; Échap l&apos;arrête.
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
Il y a plus à afficher que ce qui est dessiné en une fois : l&apos;image est incomplète.
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
        <translation>variable système : %1</translation>
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
L&apos;enregistrement n&apos;a pas été écrit : %1 : %2
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
Aucune copie de %1 n&apos;est gardée en cas de plantage : %2.
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
        <translation>Chaque ligne est un paragraphe. Les codes sont affichés tels quels : {\C1;rouge}, %%c, %%d.</translation>
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
        <translation>Tous</translation>
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
        <translation>Rien n&apos;a été modifié : ce qui est sélectionné est sur des calques verrouillés.</translation>
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
            <numerusform>Abandonner ce qui n&apos;a pas été enregistré de %n dessin ? Cela ne pourra pas être récupéré.</numerusform>
            <numerusform>Abandonner ce qui n&apos;a pas été enregistré de %n dessins ? Cela ne pourra pas être récupéré.</numerusform>
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
        <translation>Écrit : %1</translation>
    </message>
</context>
<context>
    <name>host::app::ScriptReader</name>
    <message>
        <source>part: it has no end</source>
        <translation>part : elle n&apos;a pas de fin</translation>
    </message>
    <message>
        <source>part: the part before it has no end</source>
        <translation>part : la partie précédente n&apos;a pas de fin</translation>
    </message>
    <message>
        <source>end: no part was begun</source>
        <translation>end : aucune partie n&apos;a été commencée</translation>
    </message>
    <message>
        <source>drawing: only the first line says which drawing it is</source>
        <translation>drawing : seule la première ligne dit de quel dessin il s&apos;agit</translation>
    </message>
    <message>
        <source>part: there is a part %1 already</source>
        <translation>part : il y a déjà une partie %1</translation>
    </message>
    <message>
        <source>part: a part cannot be written in a part</source>
        <translation>part : une partie ne peut pas être écrite dans une partie</translation>
    </message>
    <message>
        <source>play: there is no part %1</source>
        <translation>play : il n&apos;y a pas de partie %1</translation>
    </message>
    <message>
        <source>play: the part %1 plays itself</source>
        <translation>play : la partie %1 se joue elle-même</translation>
    </message>
    <message>
        <source>play: too many parts are played one in the other</source>
        <translation>play : trop de parties sont jouées l&apos;une dans l&apos;autre</translation>
    </message>
    <message>
        <source>play: the part %1 takes %2</source>
        <translation>play : la partie %1 prend %2</translation>
    </message>
    <message>
        <source>part %1, line %2</source>
        <translation>partie %1, ligne %2</translation>
    </message>
    <message>
        <source>play: the parts write too much</source>
        <translation>play : les parties écrivent trop</translation>
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
        <translation>la session a duré plus de %1 s ; est ouvert : %2</translation>
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
        <translation>la session finit alors que ceci est ouvert : %1</translation>
    </message>
    <message>
        <source>%1 is open</source>
        <translation>%1 est ouvert</translation>
    </message>
    <message>
        <source>%1 is still open</source>
        <translation>%1 : encore ouvert</translation>
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
        <translation>le dessin diffère de ce qu&apos;il était : %1</translation>
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
        <translation>Ajouter à : %1</translation>
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
        <translation>Une commande est en cours ; Échap l&apos;arrête.</translation>
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
        <translation>&amp;Détacher</translation>
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
        <translation>Un texte sans lettres ne pourrait pas être retrouvé : il reste tel qu&apos;il était.</translation>
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
        <translation>La valeur est constante : le bloc la fixe.</translation>
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
        <translation>%1 n&apos;a pas été lu : %2</translation>
    </message>
    <message>
        <source>%1 was not loaded: %2</source>
        <translation>%1 n&apos;a pas été chargé : %2</translation>
    </message>
    <message>
        <source>%1 was not started: %2</source>
        <translation>%1 n&apos;a pas été démarré : %2</translation>
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
        <source>Detai&amp;ls</source>
        <translation>Détai&amp;ls</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Fermer</translation>
    </message>
    <message>
        <source>%1 things were kept back: they are named here but not in trusted folders.</source>
        <translation>%1 éléments ont été retenus : ils sont nommés ici, mais ne sont pas dans des dossiers de confiance.</translation>
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
        <translation>&amp;Nom :</translation>
    </message>
</context>
<context>
    <name>host::app::Workbench</name>
    <message>
        <source>The folder of the Lisp tools was not found; there are no tools.</source>
        <translation>Le dossier des outils Lisp est introuvable ; il n&apos;y a pas d&apos;outils.</translation>
    </message>
    <message>
        <source>There is no folder %1; there are no tools.</source>
        <translation>Il n&apos;y a pas de dossier %1 ; il n&apos;y a pas d&apos;outils.</translation>
    </message>
    <message>
        <source>The plug-in module was not found; tools with dialogs will not work.</source>
        <translation>Le module d&apos;extension est introuvable ; les outils avec boîtes de dialogue ne fonctionneront pas.</translation>
    </message>
    <message>
        <source>%1 Tools with dialogs will not work.</source>
        <translation>%1 Les outils avec boîtes de dialogue ne fonctionneront pas.</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1 : %2</translation>
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
        <translation>&amp;Couleur :</translation>
    </message>
</context>
<context>
    <name>kernel</name>
    <message>
        <source>the drawing has no entity with the handle %1</source>
        <translation>le dessin n&apos;a pas d&apos;objet avec l&apos;identificateur %1</translation>
    </message>
</context>
</TS>
