<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de_DE" sourcelanguage="en">
<context>
    <name>AimMarks</name>
    <message>
        <source>Polar: %1 &lt; %2</source>
        <translation>Polar: %1 &lt; %2</translation>
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
        <translation>Rot</translation>
    </message>
    <message>
        <source>Yellow</source>
        <translation>Gelb</translation>
    </message>
    <message>
        <source>Green</source>
        <translation>Grün</translation>
    </message>
    <message>
        <source>Cyan</source>
        <translation>Cyan</translation>
    </message>
    <message>
        <source>Blue</source>
        <translation>Blau</translation>
    </message>
    <message>
        <source>Magenta</source>
        <translation>Magenta</translation>
    </message>
    <message>
        <source>White</source>
        <translation>Weiß</translation>
    </message>
    <message>
        <source>ByLayer</source>
        <translation>ByLayer</translation>
    </message>
    <message>
        <source>Color %1</source>
        <translation>Farbe %1</translation>
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
        <translation>Modellbereich</translation>
    </message>
    <message>
        <source>paper space</source>
        <translation>Papierbereich</translation>
    </message>
    <message>
        <source>All entities drawn</source>
        <translation>Alle Objekte gezeichnet</translation>
    </message>
</context>
<context>
    <name>FileActions</name>
    <message>
        <source>Open drawings</source>
        <translation>Zeichnungen öffnen</translation>
    </message>
    <message>
        <source>Drawings (*.dxf *.dwg);;All files (*)</source>
        <translation>Zeichnungen (*.dxf *.dwg);;Alle Dateien (*)</translation>
    </message>
    <message>
        <source>%1
What is saved here replaces what is saved there.</source>
        <translation>%1
Was hier gespeichert wird, ersetzt das dort Gespeicherte.</translation>
    </message>
    <message>
        <source>Open &amp;read-only</source>
        <translation>Sch&amp;reibgeschützt öffnen</translation>
    </message>
    <message>
        <source>Open &amp;anyway</source>
        <translation>&amp;Trotzdem öffnen</translation>
    </message>
    <message>
        <source>Save under another &amp;name...</source>
        <translation>Unter anderem &amp;Namen speichern...</translation>
    </message>
    <message>
        <source>Save &amp;anyway</source>
        <translation>Trotzdem &amp;speichern</translation>
    </message>
    <message>
        <source>%1

The drawing stays open.</source>
        <translation>%1

Die Zeichnung bleibt geöffnet.</translation>
    </message>
    <message>
        <source>Save &amp;as...</source>
        <translation>Speichern &amp;unter...</translation>
    </message>
    <message>
        <source>%1 already exists. Do you want to replace it?</source>
        <translation>%1 ist bereits vorhanden. Soll die Datei ersetzt werden?</translation>
    </message>
    <message>
        <source>Save drawing</source>
        <translation>Zeichnung speichern</translation>
    </message>
    <message>
        <source>DXF drawings (*.dxf)</source>
        <translation>DXF-Zeichnungen (*.dxf)</translation>
    </message>
    <message>
        <source>Export picture</source>
        <translation>Bild exportieren</translation>
    </message>
    <message>
        <source>%1 pictures (*.%2)</source>
        <translation>%1-Bilder (*.%2)</translation>
    </message>
    <message>
        <source>
Written: %1
</source>
        <translation>
Geschrieben: %1
</translation>
    </message>
    <message>
        <source>In the picture: %1
</source>
        <translation>Im Bild: %1
</translation>
    </message>
    <message>
        <source>%1 was changed. Save it?</source>
        <translation>%1 wurde geändert. Speichern?</translation>
    </message>
</context>
<context>
    <name>Layers</name>
    <message>
        <source>Name</source>
        <translation>Name</translation>
    </message>
    <message>
        <source>On</source>
        <translation>Ein</translation>
    </message>
    <message>
        <source>Freeze</source>
        <translation>Frieren</translation>
    </message>
    <message>
        <source>Lock</source>
        <translation>Sperren</translation>
    </message>
    <message>
        <source>Plot</source>
        <translation>Plotten</translation>
    </message>
    <message>
        <source>Color</source>
        <translation>Farbe</translation>
    </message>
    <message>
        <source>Linetype</source>
        <translation>Linientyp</translation>
    </message>
    <message>
        <source>Lineweight</source>
        <translation>Linienstärke</translation>
    </message>
    <message>
        <source>Transparency</source>
        <translation>Transparenz</translation>
    </message>
    <message>
        <source>Description</source>
        <translation>Beschreibung</translation>
    </message>
    <message>
        <source>Viewport</source>
        <translation>Ansichtsfenster</translation>
    </message>
    <message>
        <source>thawed</source>
        <translation>getaut</translation>
    </message>
    <message>
        <source>frozen</source>
        <translation>gefroren</translation>
    </message>
    <message>
        <source>unlocked</source>
        <translation>entsperrt</translation>
    </message>
    <message>
        <source>locked</source>
        <translation>gesperrt</translation>
    </message>
    <message>
        <source>plots</source>
        <translation>plotten</translation>
    </message>
    <message>
        <source>no plot</source>
        <translation>nicht plotten</translation>
    </message>
    <message>
        <source>on</source>
        <translation>ein</translation>
    </message>
    <message>
        <source>off</source>
        <translation>aus</translation>
    </message>
</context>
<context>
    <name>Panels</name>
    <message>
        <source>Properties</source>
        <translation>Eigenschaften</translation>
    </message>
    <message>
        <source>Layers</source>
        <translation>Layer</translation>
    </message>
    <message>
        <source>Results</source>
        <translation>Ergebnisse</translation>
    </message>
</context>
<context>
    <name>Playback</name>
    <message>
        <source>nobody is there to answer %1</source>
        <translation>niemand ist da, um %1 zu beantworten</translation>
    </message>
    <message>
        <source>it took longer than %1 s</source>
        <translation>es dauerte länger als %1 s</translation>
    </message>
</context>
<context>
    <name>Properties</name>
    <message>
        <source>General</source>
        <translation>Allgemein</translation>
    </message>
    <message>
        <source>Geometry</source>
        <translation>Geometrie</translation>
    </message>
    <message>
        <source>Text</source>
        <translation>Text</translation>
    </message>
    <message>
        <source>Misc</source>
        <translation>Verschiedenes</translation>
    </message>
    <message>
        <source>Color</source>
        <translation>Farbe</translation>
    </message>
    <message>
        <source>Layer</source>
        <translation>Layer</translation>
    </message>
    <message>
        <source>Linetype</source>
        <translation>Linientyp</translation>
    </message>
    <message>
        <source>Linetype scale</source>
        <translation>Linientypfaktor</translation>
    </message>
    <message>
        <source>Lineweight</source>
        <translation>Linienstärke</translation>
    </message>
    <message>
        <source>Thickness</source>
        <translation>Objekthöhe</translation>
    </message>
    <message>
        <source>Text style</source>
        <translation>Textstil</translation>
    </message>
    <message>
        <source>Dimension style</source>
        <translation>Bemaßungsstil</translation>
    </message>
    <message>
        <source>Of what is drawn next</source>
        <translation>Für das, was als Nächstes gezeichnet wird</translation>
    </message>
    <message>
        <source>Property</source>
        <translation>Eigenschaft</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>Wert</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no color.</source>
        <translation>&quot;%1&quot; ist keine Farbe.</translation>
    </message>
    <message>
        <source>There is no layer &quot;%1&quot;.</source>
        <translation>Es gibt keinen Layer &quot;%1&quot;.</translation>
    </message>
    <message>
        <source>There is no linetype &quot;%1&quot;.</source>
        <translation>Es gibt keinen Linientyp &quot;%1&quot;.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no lineweight.</source>
        <translation>&quot;%1&quot; ist keine Linienstärke.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no transparency: ByLayer, ByBlock or 0 to 90.</source>
        <translation>&quot;%1&quot; ist keine Transparenz: ByLayer, ByBlock oder 0 bis 90.</translation>
    </message>
    <message>
        <source>%1: the current color is one of the table.</source>
        <translation>%1: die aktuelle Farbe muss eine der Tabelle sein.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no angle.</source>
        <translation>&quot;%1&quot; ist kein Winkel.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no number.</source>
        <translation>&quot;%1&quot; ist keine Zahl.</translation>
    </message>
    <message>
        <source>%1: it must be more than 0.</source>
        <translation>%1: der Wert muss größer als 0 sein.</translation>
    </message>
    <message>
        <source>%1: it must not be 0.</source>
        <translation>%1: der Wert darf nicht 0 sein.</translation>
    </message>
    <message>
        <source>*varies*</source>
        <translation>*verschieden*</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no whole number.</source>
        <translation>&quot;%1&quot; ist keine ganze Zahl.</translation>
    </message>
    <message>
        <source>Other...</source>
        <translation>Andere...</translation>
    </message>
    <message>
        <source>Transparency</source>
        <translation>Transparenz</translation>
    </message>
    <message>
        <source>Plot style</source>
        <translation>Plotstil</translation>
    </message>
    <message>
        <source>Corner 1</source>
        <translation>Ecke 1</translation>
    </message>
    <message>
        <source>Corner 2</source>
        <translation>Ecke 2</translation>
    </message>
    <message>
        <source>Corner 3</source>
        <translation>Ecke 3</translation>
    </message>
    <message>
        <source>Corner 4</source>
        <translation>Ecke 4</translation>
    </message>
    <message>
        <source>Center</source>
        <translation>Mittelpunkt</translation>
    </message>
    <message>
        <source>Radius</source>
        <translation>Radius</translation>
    </message>
    <message>
        <source>Start angle</source>
        <translation>Startwinkel</translation>
    </message>
    <message>
        <source>End angle</source>
        <translation>Endwinkel</translation>
    </message>
    <message>
        <source>Start</source>
        <translation>Start</translation>
    </message>
    <message>
        <source>End</source>
        <translation>Ende</translation>
    </message>
    <message>
        <source>Total angle</source>
        <translation>Gesamtwinkel</translation>
    </message>
    <message>
        <source>Arc length</source>
        <translation>Bogenlänge</translation>
    </message>
    <message>
        <source>Area</source>
        <translation>Fläche</translation>
    </message>
    <message>
        <source>Height</source>
        <translation>Höhe</translation>
    </message>
    <message>
        <source>Position</source>
        <translation>Position</translation>
    </message>
    <message>
        <source>Prompt</source>
        <translation>Eingabeaufforderung</translation>
    </message>
    <message>
        <source>Rotation</source>
        <translation>Drehung</translation>
    </message>
    <message>
        <source>Tag</source>
        <translation>Bezeichnung</translation>
    </message>
    <message>
        <source>Diameter</source>
        <translation>Durchmesser</translation>
    </message>
    <message>
        <source>Circumference</source>
        <translation>Umfang</translation>
    </message>
    <message>
        <source>Text override</source>
        <translation>Ersatztext</translation>
    </message>
    <message>
        <source>Measurement</source>
        <translation>Messwert</translation>
    </message>
    <message>
        <source>Major axis</source>
        <translation>Hauptachse</translation>
    </message>
    <message>
        <source>Radius ratio</source>
        <translation>Radienverhältnis</translation>
    </message>
    <message>
        <source>Start parameter</source>
        <translation>Startparameter</translation>
    </message>
    <message>
        <source>End parameter</source>
        <translation>Endparameter</translation>
    </message>
    <message>
        <source>Length</source>
        <translation>Länge</translation>
    </message>
    <message>
        <source>Angle</source>
        <translation>Winkel</translation>
    </message>
    <message>
        <source>Pattern</source>
        <translation>Muster</translation>
    </message>
    <message>
        <source>Scale</source>
        <translation>Skalierung</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Name</translation>
    </message>
    <message>
        <source>Scale X</source>
        <translation>Skalierung X</translation>
    </message>
    <message>
        <source>Scale Y</source>
        <translation>Skalierung Y</translation>
    </message>
    <message>
        <source>Scale Z</source>
        <translation>Skalierung Z</translation>
    </message>
    <message>
        <source>Delta</source>
        <translation>Delta</translation>
    </message>
    <message>
        <source>Global width</source>
        <translation>Globale Breite</translation>
    </message>
    <message>
        <source>Elevation</source>
        <translation>Erhebung</translation>
    </message>
    <message>
        <source>Vertices</source>
        <translation>Scheitelpunkte</translation>
    </message>
    <message>
        <source>Contents</source>
        <translation>Inhalt</translation>
    </message>
    <message>
        <source>Style</source>
        <translation>Stil</translation>
    </message>
    <message>
        <source>Location</source>
        <translation>Position</translation>
    </message>
    <message>
        <source>Attachment</source>
        <translation>Ausrichtung</translation>
    </message>
    <message>
        <source>Width</source>
        <translation>Breite</translation>
    </message>
    <message>
        <source>Direction</source>
        <translation>Richtung</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Größe</translation>
    </message>
    <message>
        <source>Degree</source>
        <translation>Grad</translation>
    </message>
    <message>
        <source>Alignment point</source>
        <translation>Ausrichtungspunkt</translation>
    </message>
    <message>
        <source>Horizontal mode</source>
        <translation>Ausrichtung horizontal</translation>
    </message>
    <message>
        <source>Obliquing</source>
        <translation>Neigung</translation>
    </message>
    <message>
        <source>Vertical mode</source>
        <translation>Ausrichtung vertikal</translation>
    </message>
    <message>
        <source>Width factor</source>
        <translation>Breitenfaktor</translation>
    </message>
    <message>
        <source>Base point</source>
        <translation>Basispunkt</translation>
    </message>
</context>
<context>
    <name>QObject</name>
    <message>
        <source>Message</source>
        <translation>Meldung</translation>
    </message>
    <message>
        <source>All files (*)</source>
        <translation>Alle Dateien (*)</translation>
    </message>
    <message>
        <source>Choose a folder</source>
        <translation>Ordner wählen</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Hilfe</translation>
    </message>
</context>
<context>
    <name>Settings</name>
    <message>
        <source>Window</source>
        <translation>Fenster</translation>
    </message>
    <message>
        <source>Style of windows</source>
        <translation>Stil der Fenster</translation>
    </message>
    <message>
        <source>0=Light|1=Dark</source>
        <translation>0=Hell|1=Dunkel</translation>
    </message>
    <message>
        <source>The colours of windows and dialogs</source>
        <translation>Die Farben von Fenstern und Dialogen</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>Sprache</translation>
    </message>
    <message>
        <source>0=System|1=English|2=Deutsch|3=Français|4=Español|5=Italiano</source>
        <translation>0=System|1=English|2=Deutsch|3=Français|4=Español|5=Italiano</translation>
    </message>
    <message>
        <source>Of windows, dialogs and prompts; it counts from the next start</source>
        <translation>Für Fenster, Dialoge und Eingabeaufforderungen; gilt ab dem nächsten Start</translation>
    </message>
    <message>
        <source>Ground of drawings</source>
        <translation>Hintergrund der Zeichnungen</translation>
    </message>
    <message>
        <source>0=Black|1=White</source>
        <translation>0=Schwarz|1=Weiß</translation>
    </message>
    <message>
        <source>What drawings lie on</source>
        <translation>Worauf die Zeichnungen liegen</translation>
    </message>
    <message>
        <source>Length of the cross-hair, percent</source>
        <translation>Länge des Fadenkreuzes, Prozent</translation>
    </message>
    <message>
        <source>Right button</source>
        <translation>Rechte Maustaste</translation>
    </message>
    <message>
        <source>File dialogs</source>
        <translation>Dateidialoge</translation>
    </message>
    <message>
        <source>Attributes of a block are asked for in a dialog</source>
        <translation>Attribute eines Blocks werden in einem Dialog abgefragt</translation>
    </message>
    <message>
        <source>Snap</source>
        <translation>Fang</translation>
    </message>
    <message>
        <source>End points</source>
        <translation>Endpunkte</translation>
    </message>
    <message>
        <source>Middle points</source>
        <translation>Mittelpunkte</translation>
    </message>
    <message>
        <source>Centres</source>
        <translation>Zentren</translation>
    </message>
    <message>
        <source>Nodes</source>
        <translation>Punkte</translation>
    </message>
    <message>
        <source>Quadrants</source>
        <translation>Quadranten</translation>
    </message>
    <message>
        <source>Intersections</source>
        <translation>Schnittpunkte</translation>
    </message>
    <message>
        <source>Insertion points</source>
        <translation>Einfügepunkte</translation>
    </message>
    <message>
        <source>Perpendicular</source>
        <translation>Lot</translation>
    </message>
    <message>
        <source>Tangent</source>
        <translation>Tangente</translation>
    </message>
    <message>
        <source>Nearest</source>
        <translation>Nächster Punkt</translation>
    </message>
    <message>
        <source>Reach of snaps, pixels</source>
        <translation>Fangweite, Pixel</translation>
    </message>
    <message>
        <source>Ortho</source>
        <translation>Ortho</translation>
    </message>
    <message>
        <source>Grid shown</source>
        <translation>Raster sichtbar</translation>
    </message>
    <message>
        <source>Snap to the grid</source>
        <translation>Am Raster fangen</translation>
    </message>
    <message>
        <source>Typed coordinates and snaps</source>
        <translation>Eingegebene Koordinaten und Fang</translation>
    </message>
    <message>
        <source>0=Snaps move typed points|1=Typed points stay|2=Typed points stay, but in scripts</source>
        <translation>0=Fang verschiebt eingegebene Punkte|1=Eingegebene Punkte bleiben|2=Eingegebene Punkte bleiben, außer in Skripten</translation>
    </message>
    <message>
        <source>Display</source>
        <translation>Anzeige</translation>
    </message>
    <message>
        <source>Lineweights</source>
        <translation>Linienstärken</translation>
    </message>
    <message>
        <source>Lineweight of &quot;Default&quot;, hundredths of a millimetre</source>
        <translation>Linienstärke von &quot;Default&quot;, Hundertstelmillimeter</translation>
    </message>
    <message>
        <source>Areas are filled</source>
        <translation>Flächen werden gefüllt</translation>
    </message>
    <message>
        <source>Texts as boxes</source>
        <translation>Texte als Rechtecke</translation>
    </message>
    <message>
        <source>Frames of images</source>
        <translation>Bilderrahmen</translation>
    </message>
    <message>
        <source>0=Hidden|1=Shown and plotted|2=Shown only</source>
        <translation>0=Verborgen|1=Sichtbar und geplottet|2=Nur sichtbar</translation>
    </message>
    <message>
        <source>Frames of masks</source>
        <translation>Rahmen von Masken</translation>
    </message>
    <message>
        <source>Scale of linetypes</source>
        <translation>Linientypfaktor</translation>
    </message>
    <message>
        <source>Font in place of missing ones</source>
        <translation>Schrift anstelle fehlender</translation>
    </message>
    <message>
        <source>Selection</source>
        <translation>Auswahl</translation>
    </message>
    <message>
        <source>Choose first, then the command</source>
        <translation>Erst wählen, dann der Befehl</translation>
    </message>
    <message>
        <source>What is picked is added</source>
        <translation>Gewähltes kommt zur Auswahl hinzu</translation>
    </message>
    <message>
        <source>0=With Shift only|1=Always|2=Always, and stays chosen</source>
        <translation>0=Nur mit Umschalttaste|1=Immer|2=Immer, und bleibt gewählt</translation>
    </message>
    <message>
        <source>Groups are chosen whole</source>
        <translation>Gruppen werden als Ganzes gewählt</translation>
    </message>
    <message>
        <source>Hatches are chosen with their boundaries</source>
        <translation>Schraffuren werden mit ihren Umgrenzungen gewählt</translation>
    </message>
    <message>
        <source>Size of the pick box, pixels</source>
        <translation>Größe der Pickbox, Pixel</translation>
    </message>
    <message>
        <source>Chosen entities are marked</source>
        <translation>Gewählte Objekte werden hervorgehoben</translation>
    </message>
    <message>
        <source>Marks under the pointer while nothing runs</source>
        <translation>Hervorheben unter dem Zeiger, solange nichts läuft</translation>
    </message>
    <message>
        <source>Marks under the pointer while a command asks</source>
        <translation>Hervorheben unter dem Zeiger, solange ein Befehl fragt</translation>
    </message>
    <message>
        <source>Grips</source>
        <translation>Griffe</translation>
    </message>
    <message>
        <source>0=None|1=Shown|2=Shown, of segments too</source>
        <translation>0=Keine|1=Sichtbar|2=Sichtbar, auch von Segmenten</translation>
    </message>
    <message>
        <source>Size of grips, pixels</source>
        <translation>Größe der Griffe, Pixel</translation>
    </message>
    <message>
        <source>No grips beyond so many entities</source>
        <translation>Keine Griffe bei mehr Objekten als</translation>
    </message>
    <message>
        <source>Units</source>
        <translation>Einheiten</translation>
    </message>
    <message>
        <source>Lengths</source>
        <translation>Längen</translation>
    </message>
    <message>
        <source>1=Scientific|2=Decimal|3=Engineering|4=Architectural|5=Fractional</source>
        <translation>1=Wissenschaftlich|2=Dezimal|3=Technisch|4=Architektur|5=Bruch</translation>
    </message>
    <message>
        <source>Places of lengths</source>
        <translation>Nachkommastellen der Längen</translation>
    </message>
    <message>
        <source>Angles</source>
        <translation>Winkel</translation>
    </message>
    <message>
        <source>0=Degrees|1=Degrees, minutes, seconds|2=Grads|3=Radians|4=Surveyor&apos;s units</source>
        <translation>0=Grad|1=Grad, Minuten, Sekunden|2=Neugrad|3=Bogenmaß|4=Feldmaß</translation>
    </message>
    <message>
        <source>Places of angles</source>
        <translation>Nachkommastellen der Winkel</translation>
    </message>
    <message>
        <source>A drawing unit is</source>
        <translation>Eine Zeichnungseinheit ist</translation>
    </message>
    <message>
        <source>0=Not said|1=An inch|2=A foot|4=A millimetre|5=A centimetre|6=A metre|7=A kilometre</source>
        <translation>0=Nicht angegeben|1=Ein Zoll|2=Ein Fuß|4=Ein Millimeter|5=Ein Zentimeter|6=Ein Meter|7=Ein Kilometer</translation>
    </message>
    <message>
        <source>Saving</source>
        <translation>Speichern</translation>
    </message>
    <message>
        <source>A backup is kept of what is saved over</source>
        <translation>Beim Überschreiben wird eine Sicherung behalten</translation>
    </message>
    <message>
        <source>Minutes between saves by itself</source>
        <translation>Minuten zwischen automatischen Speicherungen</translation>
    </message>
    <message>
        <source>External references tell of changes</source>
        <translation>Externe Referenzen melden Änderungen</translation>
    </message>
    <message>
        <source>0=No|1=With a mark|2=With a message</source>
        <translation>0=Nein|1=Mit einer Marke|2=Mit einer Meldung</translation>
    </message>
    <message>
        <source>Lisp</source>
        <translation>Lisp</translation>
    </message>
    <message>
        <source>Programs loaded with each drawing</source>
        <translation>Programme, die mit jeder Zeichnung geladen werden</translation>
    </message>
    <message>
        <source>Full paths, between semicolons, in this order; they count from the next drawing on</source>
        <translation>Volle Pfade, durch Semikolons getrennt, in dieser Reihenfolge; sie gelten ab der nächsten Zeichnung</translation>
    </message>
    <message>
        <source>Most memory of programs, MB</source>
        <translation>Größter Speicher von Programmen, MB</translation>
    </message>
    <message>
        <source>What programs do is shown</source>
        <translation>Was Programme tun, wird angezeigt</translation>
    </message>
    <message>
        <source>Folders and trust</source>
        <translation>Ordner und Vertrauen</translation>
    </message>
    <message>
        <source>Folders whose programs may run</source>
        <translation>Ordner, deren Programme laufen dürfen</translation>
    </message>
    <message>
        <source>Folders whose files drawings may name</source>
        <translation>Ordner, deren Dateien in Zeichnungen genannt werden dürfen</translation>
    </message>
</context>
<context>
    <name>SnapMenu</name>
    <message>
        <source>&amp;Endpoint</source>
        <translation>&amp;Endpunkt</translation>
    </message>
    <message>
        <source>&amp;Midpoint</source>
        <translation>&amp;Mittelpunkt</translation>
    </message>
    <message>
        <source>&amp;Center</source>
        <translation>&amp;Zentrum</translation>
    </message>
    <message>
        <source>N&amp;ode</source>
        <translation>P&amp;unkt</translation>
    </message>
    <message>
        <source>&amp;Quadrant</source>
        <translation>&amp;Quadrant</translation>
    </message>
    <message>
        <source>&amp;Intersection</source>
        <translation>&amp;Schnittpunkt</translation>
    </message>
    <message>
        <source>&amp;Apparent intersection</source>
        <translation>&amp;Angenommener Schnittpunkt</translation>
    </message>
    <message>
        <source>E&amp;xtension</source>
        <translation>&amp;Verlängerung</translation>
    </message>
    <message>
        <source>In&amp;sertion point</source>
        <translation>E&amp;infügepunkt</translation>
    </message>
    <message>
        <source>&amp;Perpendicular</source>
        <translation>&amp;Lot</translation>
    </message>
    <message>
        <source>&amp;Tangent</source>
        <translation>&amp;Tangente</translation>
    </message>
    <message>
        <source>Nea&amp;rest</source>
        <translation>&amp;Nächster Punkt</translation>
    </message>
    <message>
        <source>&amp;None</source>
        <translation>&amp;Keiner</translation>
    </message>
    <message>
        <source>Mid&amp;way between two points</source>
        <translation>Mitte z&amp;wischen zwei Punkten</translation>
    </message>
    <message>
        <source>&amp;From a point</source>
        <translation>V&amp;on einem Punkt aus</translation>
    </message>
</context>
<context>
    <name>StatusSwitches</name>
    <message>
        <source>GRID</source>
        <translation>RASTER</translation>
    </message>
    <message>
        <source>Shows the grid</source>
        <translation>Zeigt das Raster</translation>
    </message>
    <message>
        <source>SNAP</source>
        <translation>FANG</translation>
    </message>
    <message>
        <source>Points snap to the grid</source>
        <translation>Punkte werden am Raster gefangen</translation>
    </message>
    <message>
        <source>ORTHO</source>
        <translation>ORTHO</translation>
    </message>
    <message>
        <source>Points lie along the axes from the last one</source>
        <translation>Punkte liegen vom letzten aus entlang der Achsen</translation>
    </message>
    <message>
        <source>POLAR</source>
        <translation>POLAR</translation>
    </message>
    <message>
        <source>Points lock to angles from the last one</source>
        <translation>Punkte rasten vom letzten aus in Winkeln ein</translation>
    </message>
    <message>
        <source>OSNAP</source>
        <translation>OFANG</translation>
    </message>
    <message>
        <source>Points snap to entities</source>
        <translation>Punkte werden an Objekten gefangen</translation>
    </message>
    <message>
        <source>DYN</source>
        <translation>DYN</translation>
    </message>
    <message>
        <source>Length and angle stand at the pointer; Tab locks what was typed</source>
        <translation>Länge und Winkel stehen am Zeiger; Tab hält fest, was eingegeben wurde</translation>
    </message>
</context>
<context>
    <name>Suggestions</name>
    <message>
        <source>command of a program</source>
        <translation>Befehl eines Programms</translation>
    </message>
</context>
<context>
    <name>host::app</name>
    <message>
        <source>there is %1</source>
        <translation>da ist %1</translation>
    </message>
    <message>
        <source>%1 has no button &quot;%2&quot;</source>
        <translation>%1 hat keine Schaltfläche &quot;%2&quot;</translation>
    </message>
    <message>
        <source>%1 took &quot;%2&quot;</source>
        <translation>%1 nahm &quot;%2&quot;</translation>
    </message>
    <message>
        <source>%1 takes no file name</source>
        <translation>%1 nimmt keinen Dateinamen an</translation>
    </message>
    <message>
        <source>the menu&apos;s entry &quot;%1&quot; is disabled</source>
        <translation>der Menüeintrag &quot;%1&quot; ist inaktiv</translation>
    </message>
    <message>
        <source>the menu has no entry &quot;%1&quot;; it has %2</source>
        <translation>das Menü hat keinen Eintrag &quot;%1&quot;; es hat %2</translation>
    </message>
    <message>
        <source>%1 has the keyboard</source>
        <translation>%1 hat die Tastatur</translation>
    </message>
    <message>
        <source>nothing has the keyboard</source>
        <translation>nichts hat die Tastatur</translation>
    </message>
    <message>
        <source>the items are &quot;%1&quot;</source>
        <translation>die Einträge sind &quot;%1&quot;</translation>
    </message>
    <message>
        <source>%1 is open</source>
        <translation>%1 ist offen</translation>
    </message>
    <message>
        <source>the title is &quot;%1&quot;</source>
        <translation>der Titel ist &quot;%1&quot;</translation>
    </message>
    <message>
        <source>it is enabled</source>
        <translation>es ist aktiv</translation>
    </message>
    <message>
        <source>it is disabled</source>
        <translation>es ist inaktiv</translation>
    </message>
    <message>
        <source>it is visible</source>
        <translation>es ist sichtbar</translation>
    </message>
    <message>
        <source>it is not visible</source>
        <translation>es ist nicht sichtbar</translation>
    </message>
    <message>
        <source>it shows &quot;%1&quot;</source>
        <translation>es zeigt &quot;%1&quot;</translation>
    </message>
    <message>
        <source>a quote is not closed, or text follows right behind it</source>
        <translation>ein Anführungszeichen ist nicht geschlossen, oder Text folgt unmittelbar dahinter</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is neither yes nor no (on, off)</source>
        <translation>&quot;%1&quot; ist weder yes noch no (on, off)</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no point; write x,y or x,y,z</source>
        <translation>&quot;%1&quot; ist kein Punkt; schreiben Sie x,y oder x,y,z</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no whole number from 0 up</source>
        <translation>&quot;%1&quot; ist keine ganze Zahl ab 0</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no handle</source>
        <translation>&quot;%1&quot; ist keine Referenznummer</translation>
    </message>
    <message>
        <source>unknown word &quot;%1&quot;</source>
        <translation>unbekanntes Wort &quot;%1&quot;</translation>
    </message>
    <message>
        <source>${%1} is not known</source>
        <translation>${%1} ist nicht bekannt</translation>
    </message>
    <message>
        <source>the line goes on (it ends in a backslash), but the session ends</source>
        <translation>die Zeile geht weiter (sie endet mit einem umgekehrten Schrägstrich), aber die Sitzung endet</translation>
    </message>
    <message>
        <source>%1 is too long for a session</source>
        <translation>%1 ist zu lang für eine Sitzung</translation>
    </message>
    <message>
        <source>cannot read %1: %2</source>
        <translation>%1 ist nicht lesbar: %2</translation>
    </message>
    <message>
        <source>%1 is no UTF-8 text</source>
        <translation>%1 ist kein UTF-8-Text</translation>
    </message>
    <message>
        <source>%1 has no row &quot;%2&quot;</source>
        <translation>%1 hat keine Zeile &quot;%2&quot;</translation>
    </message>
    <message>
        <source>%1 is no list, table or tree</source>
        <translation>%1 ist weder Liste noch Tabelle noch Baum</translation>
    </message>
    <message>
        <source>the list went away while rows were selected</source>
        <translation>die Liste verschwand, während Zeilen gewählt wurden</translation>
    </message>
    <message>
        <source>row &quot;%1&quot; of %2 is not visible</source>
        <translation>Zeile &quot;%1&quot; von %2 ist nicht sichtbar</translation>
    </message>
    <message>
        <source>row &quot;%1&quot; of %2 cannot be checked</source>
        <translation>Zeile &quot;%1&quot; von %2 kann nicht angekreuzt werden</translation>
    </message>
    <message>
        <source>%1 has no cell %2, %3</source>
        <translation>%1 hat keine Zelle %2, %3</translation>
    </message>
    <message>
        <source>cell %1, %2 of %3 cannot be written to</source>
        <translation>in Zelle %1, %2 von %3 kann nicht geschrieben werden</translation>
    </message>
    <message>
        <source>cell %1, %2 of %3 does not take &quot;%4&quot;</source>
        <translation>Zelle %1, %2 von %3 nimmt &quot;%4&quot; nicht an</translation>
    </message>
    <message>
        <source>what was printed is &quot;%1&quot;</source>
        <translation>ausgegeben wurde &quot;%1&quot;</translation>
    </message>
    <message>
        <source>there are %1</source>
        <translation>es gibt %1</translation>
    </message>
    <message>
        <source>what cannot be read again</source>
        <translation>was nicht wieder gelesen werden kann</translation>
    </message>
    <message>
        <source>the changes are &quot;%1&quot;</source>
        <translation>die Änderungen sind &quot;%1&quot;</translation>
    </message>
    <message>
        <source>there was no run before it</source>
        <translation>davor gab es keinen Lauf</translation>
    </message>
    <message>
        <source>the drawing differs from what it was: %1</source>
        <translation>die Zeichnung unterscheidet sich von dem, was sie war: %1</translation>
    </message>
    <message>
        <source>no program was given that reads drawings (--audit, or the environment&apos;s ORTAKIT_AUDIT)</source>
        <translation>es wurde kein Programm angegeben, das Zeichnungen liest (--audit oder ORTAKIT_AUDIT in der Umgebung)</translation>
    </message>
    <message>
        <source>the order of its records</source>
        <translation>die Reihenfolge ihrer Datensätze</translation>
    </message>
    <message>
        <source>the run changed nothing</source>
        <translation>der Lauf hat nichts geändert</translation>
    </message>
    <message>
        <source>undone, the drawing differs from what it was: %1</source>
        <translation>nach dem Rückgängigmachen unterscheidet sich die Zeichnung von dem, was sie war: %1</translation>
    </message>
    <message>
        <source>done again, the drawing differs from what it was: %1</source>
        <translation>nach dem Wiederherstellen unterscheidet sich die Zeichnung von dem, was sie war: %1</translation>
    </message>
    <message>
        <source>the drawing was changed</source>
        <translation>die Zeichnung wurde geändert</translation>
    </message>
    <message>
        <source>the drawing is unchanged</source>
        <translation>die Zeichnung ist unverändert</translation>
    </message>
    <message>
        <source>the file&apos;s text is &quot;%1&quot;</source>
        <translation>der Text der Datei ist &quot;%1&quot;</translation>
    </message>
    <message>
        <source>the file does not hold it; its text is &quot;%1&quot;</source>
        <translation>die Datei enthält es nicht; ihr Text ist &quot;%1&quot;</translation>
    </message>
    <message>
        <source>the files differ at byte %1: &quot;%2&quot; and &quot;%3&quot;</source>
        <translation>die Dateien unterscheiden sich bei Byte %1: &quot;%2&quot; und &quot;%3&quot;</translation>
    </message>
    <message>
        <source>no folder was given to write to (--out)</source>
        <translation>es wurde kein Ordner zum Schreiben angegeben (--out)</translation>
    </message>
    <message>
        <source>the file is there</source>
        <translation>die Datei ist vorhanden</translation>
    </message>
    <message>
        <source>line %1%2 (%3): </source>
        <translation>Zeile %1%2 (%3): </translation>
    </message>
    <message>
        <source>line %1: %2</source>
        <translation>Zeile %1: %2</translation>
    </message>
    <message>
        <source>line %1: the session has cases, each of which wants the drawing opened anew</source>
        <translation>Zeile %1: die Sitzung hat Fälle, für die jeweils die Zeichnung neu geöffnet werden muss</translation>
    </message>
    <message>
        <source>%1 cannot be written to</source>
        <translation>in %1 kann nicht geschrieben werden</translation>
    </message>
    <message>
        <source>%1 does not take &quot;%2&quot;; it shows &quot;%3&quot;</source>
        <translation>%1 nimmt &quot;%2&quot; nicht an; es zeigt &quot;%3&quot;</translation>
    </message>
    <message>
        <source>%1 does not take &quot;%2&quot;</source>
        <translation>%1 nimmt &quot;%2&quot; nicht an</translation>
    </message>
    <message>
        <source>%1 has no item &quot;%2&quot;; it has %3</source>
        <translation>%1 hat keinen Eintrag &quot;%2&quot;; es hat %3</translation>
    </message>
    <message>
        <source>%1 has no tab &quot;%2&quot;</source>
        <translation>%1 hat keine Registerkarte &quot;%2&quot;</translation>
    </message>
    <message>
        <source>%1 has no value to set</source>
        <translation>%1 hat keinen Wert zum Setzen</translation>
    </message>
    <message>
        <source>the widget went away while it was typed into</source>
        <translation>das Bedienelement verschwand, während darin geschrieben wurde</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no key</source>
        <translation>&quot;%1&quot; ist keine Taste</translation>
    </message>
    <message>
        <source>%1 cannot be checked</source>
        <translation>%1 kann nicht angekreuzt werden</translation>
    </message>
    <message>
        <source>%1 stays as it is; another button of its group must be checked</source>
        <translation>%1 bleibt, wie es ist; eine andere Schaltfläche der Gruppe muss gewählt werden</translation>
    </message>
    <message>
        <source>%1 is not visible</source>
        <translation>%1 ist nicht sichtbar</translation>
    </message>
    <message>
        <source>%1 is disabled</source>
        <translation>%1 ist inaktiv</translation>
    </message>
    <message>
        <source>nothing with a name</source>
        <translation>nichts mit einem Namen</translation>
    </message>
    <message>
        <source>%1 has no widget &quot;%2&quot;; it has %3</source>
        <translation>%1 hat kein Bedienelement &quot;%2&quot;; es hat %3</translation>
    </message>
    <message>
        <source>dialog %1</source>
        <translation>Dialog %1</translation>
    </message>
    <message>
        <source> saying &quot;%1&quot;</source>
        <translation> mit dem Text &quot;%1&quot;</translation>
    </message>
</context>
<context>
    <name>host::app::ClosingQuestion</name>
    <message>
        <source>not saved yet: a name is asked for</source>
        <translation>noch nie gespeichert: nach einem Namen wird gefragt</translation>
    </message>
    <message>
        <source>Save changes</source>
        <translation>Änderungen speichern</translation>
    </message>
    <message>
        <source>Changed drawings</source>
        <translation>Geänderte Zeichnungen</translation>
    </message>
    <message>
        <source>Drawing</source>
        <translation>Zeichnung</translation>
    </message>
    <message>
        <source>File</source>
        <translation>Datei</translation>
    </message>
    <message>
        <source>&amp;Save selected</source>
        <translation>Gewählte &amp;speichern</translation>
    </message>
    <message>
        <source>&amp;Discard all changes</source>
        <translation>Alle Änderungen &amp;verwerfen</translation>
    </message>
    <message>
        <source>These drawings were changed. Those that are not checked are closed unsaved.</source>
        <translation>Diese Zeichnungen wurden geändert. Was nicht angekreuzt ist, wird ohne Speichern geschlossen.</translation>
    </message>
</context>
<context>
    <name>host::app::CommandLine</name>
    <message>
        <source>Command line</source>
        <translation>Befehlszeile</translation>
    </message>
    <message>
        <source>What was printed</source>
        <translation>Bisherige Ausgabe</translation>
    </message>
    <message>
        <source>Command:</source>
        <translation>Befehl:</translation>
    </message>
    <message>
        <source>Search what was entered: %1</source>
        <translation>Suche in den Eingaben: %1</translation>
    </message>
    <message>
        <source>Not found: %1</source>
        <translation>Nicht gefunden: %1</translation>
    </message>
    <message>
        <source>Find</source>
        <translation>Suchen</translation>
    </message>
    <message>
        <source>Find in what was printed</source>
        <translation>In der bisherigen Ausgabe suchen</translation>
    </message>
</context>
<context>
    <name>host::app::CommandPalette</name>
    <message>
        <source>Commands</source>
        <translation>Befehle</translation>
    </message>
    <message>
        <source>What is to be done? A command, a menu entry, a system variable</source>
        <translation>Was soll getan werden? Ein Befehl, ein Menüeintrag, eine Systemvariable</translation>
    </message>
    <message>
        <source>What is sought</source>
        <translation>Suchbegriff</translation>
    </message>
    <message>
        <source>Commands that fit</source>
        <translation>Passende Befehle</translation>
    </message>
</context>
<context>
    <name>host::app::CommandRunner</name>
    <message>
        <source>
A command is running; Esc stops it.
</source>
        <translation>
Ein Befehl läuft; Esc beendet ihn.
</translation>
    </message>
    <message>
        <source>
No drawing is open.
</source>
        <translation>
Keine Zeichnung ist geöffnet.
</translation>
    </message>
    <message>
        <source>(_&gt;</source>
        <translation>(_&gt;</translation>
    </message>
    <message>
        <source>Command:</source>
        <translation>Befehl:</translation>
    </message>
    <message>
        <source>No session can be played now.</source>
        <translation>Zurzeit kann keine Sitzung abgespielt werden.</translation>
    </message>
</context>
<context>
    <name>host::app::DrawingAudit</name>
    <message>
        <source>the reader takes no names with line feeds</source>
        <translation>das Leseprogramm nimmt keine Namen mit Zeilenumbrüchen an</translation>
    </message>
    <message>
        <source>the reader %1 does not answer</source>
        <translation>das Leseprogramm %1 antwortet nicht</translation>
    </message>
</context>
<context>
    <name>host::app::DrawingCanvas</name>
    <message>
        <source>simplified</source>
        <translation>vereinfacht</translation>
    </message>
</context>
<context>
    <name>host::app::DrawingTabs</name>
    <message>
        <source>%1 (recovered)</source>
        <translation>%1 (wiederhergestellt)</translation>
    </message>
    <message>
        <source>%1 (read only)</source>
        <translation>%1 (schreibgeschützt)</translation>
    </message>
</context>
<context>
    <name>host::app::InPlaceEdit</name>
    <message>
        <source>Text</source>
        <translation>Text</translation>
    </message>
</context>
<context>
    <name>host::app::LayerBox</name>
    <message>
        <source>Filter of names</source>
        <translation>Namensfilter</translation>
    </message>
    <message>
        <source>Filter</source>
        <translation>Filter</translation>
    </message>
    <message>
        <source>Layers</source>
        <translation>Layer</translation>
    </message>
</context>
<context>
    <name>host::app::LayerPanel</name>
    <message>
        <source>Layers</source>
        <translation>Layer</translation>
    </message>
    <message>
        <source>&amp;New</source>
        <translation>&amp;Neu</translation>
    </message>
    <message>
        <source>A layer that looks like the chosen one</source>
        <translation>Ein Layer, der wie der gewählte aussieht</translation>
    </message>
    <message>
        <source>&amp;Delete</source>
        <translation>&amp;Löschen</translation>
    </message>
    <message>
        <source>Takes unused layers out of the drawing</source>
        <translation>Nimmt unbenutzte Layer aus der Zeichnung</translation>
    </message>
    <message>
        <source>Make &amp;current</source>
        <translation>&amp;Aktuell setzen</translation>
    </message>
    <message>
        <source>Filter of names</source>
        <translation>Namensfilter</translation>
    </message>
    <message>
        <source>Filter: part of a name, or a pattern</source>
        <translation>Filter: Teil eines Namens oder ein Muster</translation>
    </message>
    <message>
        <source>Which layers are shown</source>
        <translation>Welche Layer gezeigt werden</translation>
    </message>
    <message>
        <source>All</source>
        <translation>Alle</translation>
    </message>
    <message>
        <source>Used</source>
        <translation>Benutzte</translation>
    </message>
    <message>
        <source>Of references</source>
        <translation>Von Referenzen</translation>
    </message>
    <message>
        <source>Not frozen</source>
        <translation>Nicht gefrorene</translation>
    </message>
    <message>
        <source>Visible</source>
        <translation>Sichtbare</translation>
    </message>
    <message>
        <source>%1 of %2 layers</source>
        <translation>%1 von %2 Layern</translation>
    </message>
    <message>
        <source>%1, %2 chosen</source>
        <translation>%1, %2 gewählt</translation>
    </message>
    <message>
        <source>... and %1 more</source>
        <translation>... und %1 weitere</translation>
    </message>
    <message>
        <source>Nothing can be changed while a command runs.</source>
        <translation>Solange ein Befehl läuft, kann nichts geändert werden.</translation>
    </message>
    <message>
        <source>No drawing is open.</source>
        <translation>Keine Zeichnung ist geöffnet.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no value for this.</source>
        <translation>&quot;%1&quot; ist hierfür kein Wert.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; belongs to an external reference and cannot be current.</source>
        <translation>&quot;%1&quot; gehört zu einer externen Referenz und kann nicht aktuell sein.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is frozen and cannot be current.</source>
        <translation>&quot;%1&quot; ist gefroren und kann nicht aktuell sein.</translation>
    </message>
    <message>
        <source>Layer &quot;%1&quot; is used.</source>
        <translation>Layer &quot;%1&quot; wird verwendet.</translation>
    </message>
    <message>
        <source>&amp;Rename</source>
        <translation>&amp;Umbenennen</translation>
    </message>
    <message>
        <source>C&amp;olor...</source>
        <translation>&amp;Farbe...</translation>
    </message>
    <message>
        <source>Select &amp;all</source>
        <translation>Alle aus&amp;wählen</translation>
    </message>
</context>
<context>
    <name>host::app::LayoutTabs</name>
    <message>
        <source>Layouts</source>
        <translation>Layouts</translation>
    </message>
</context>
<context>
    <name>host::app::LineReader</name>
    <message>
        <source>too much on the line: &quot;%1&quot;</source>
        <translation>zu viel in der Zeile: &quot;%1&quot;</translation>
    </message>
    <message>
        <source>something is missing at the end of the line</source>
        <translation>am Ende der Zeile fehlt etwas</translation>
    </message>
</context>
<context>
    <name>host::app::LispConsole</name>
    <message>
        <source>A Lisp expression</source>
        <translation>Ein Lisp-Ausdruck</translation>
    </message>
    <message>
        <source>Lisp expression</source>
        <translation>Lisp-Ausdruck</translation>
    </message>
    <message>
        <source>Search what was entered: %1</source>
        <translation>Suche in den Eingaben: %1</translation>
    </message>
    <message>
        <source>Not found: %1</source>
        <translation>Nicht gefunden: %1</translation>
    </message>
</context>
<context>
    <name>host::app::MainWindow</name>
    <message>
        <source>Lisp console</source>
        <translation>Lisp-Konsole</translation>
    </message>
    <message>
        <source>
A command is running; Esc stops it.
</source>
        <translation>
Ein Befehl läuft; Esc beendet ihn.
</translation>
    </message>
    <message>
        <source>
No drawing is open.
</source>
        <translation>
Keine Zeichnung ist geöffnet.
</translation>
    </message>
    <message>
        <source>%1 is a folder.</source>
        <translation>%1 ist ein Ordner.</translation>
    </message>
    <message>
        <source>%1 is a picture or document, no drawing.</source>
        <translation>%1 ist ein Bild oder Dokument, keine Zeichnung.</translation>
    </message>
    <message>
        <source>No tools were found</source>
        <translation>Es wurden keine Werkzeuge gefunden</translation>
    </message>
    <message>
        <source>
The help pages were not found.
</source>
        <translation>
Die Hilfeseiten wurden nicht gefunden.
</translation>
    </message>
    <message>
        <source>About Ortakit</source>
        <translation>Über Ortakit</translation>
    </message>
    <message>
        <source>Ortakit %1

Drafting tools for CAD drawings, with a host of their own.
Qt %2</source>
        <translation>Ortakit %1

Zeichenwerkzeuge für CAD-Zeichnungen, mit eigenem Wirtsprogramm.
Qt %2</translation>
    </message>
    <message>
        <source>Command line</source>
        <translation>Befehlszeile</translation>
    </message>
    <message>
        <source>
There is more to show than is drawn in one go: the picture lacks part of it.
</source>
        <translation>
Es gibt mehr zu zeigen, als auf einmal gezeichnet wird: dem Bild fehlt ein Teil davon.
</translation>
    </message>
    <message>
        <source>%1 is no full path of a program.</source>
        <translation>%1 ist kein voller Pfad eines Programms.</translation>
    </message>
    <message>
        <source>This cannot be kept in %1.</source>
        <translation>Das kann in %1 nicht aufbewahrt werden.</translation>
    </message>
    <message>
        <source>not while something runs</source>
        <translation>nicht, solange etwas läuft</translation>
    </message>
    <message>
        <source>not possible now</source>
        <translation>zurzeit nicht möglich</translation>
    </message>
    <message>
        <source>command of a program</source>
        <translation>Befehl eines Programms</translation>
    </message>
    <message>
        <source>system variable: %1</source>
        <translation>Systemvariable: %1</translation>
    </message>
    <message>
        <source>Open &amp;recent</source>
        <translation>&amp;Zuletzt geöffnet</translation>
    </message>
    <message>
        <source>%1 (pinned)</source>
        <translation>%1 (angeheftet)</translation>
    </message>
    <message>
        <source>&amp;Last time&apos;s drawings</source>
        <translation>&amp;Zeichnungen vom letzten Mal</translation>
    </message>
    <message>
        <source>Open them at each &amp;start</source>
        <translation>Bei jedem &amp;Start öffnen</translation>
    </message>
    <message>
        <source>&amp;Clear the list</source>
        <translation>&amp;Liste leeren</translation>
    </message>
    <message>
        <source>Start</source>
        <translation>Start</translation>
    </message>
    <message>
        <source>Stop &amp;recording</source>
        <translation>&amp;Aufzeichnung beenden</translation>
    </message>
    <message>
        <source>
Recording to %1.
</source>
        <translation>
Aufzeichnung in %1.
</translation>
    </message>
    <message>
        <source>&amp;Record session...</source>
        <translation>Sitzung &amp;aufzeichnen...</translation>
    </message>
    <message>
        <source>
Recorded in %1.
</source>
        <translation>
Aufgezeichnet in %1.
</translation>
    </message>
    <message>
        <source>
The recording was not written: %1: %2
</source>
        <translation>
Die Aufzeichnung wurde nicht geschrieben: %1: %2
</translation>
    </message>
    <message>
        <source>Record session</source>
        <translation>Sitzung aufzeichnen</translation>
    </message>
    <message>
        <source>Recorded sessions (*.txt);;All files (*)</source>
        <translation>Aufgezeichnete Sitzungen (*.txt);;Alle Dateien (*)</translation>
    </message>
    <message>
        <source>
No copy of %1 is kept for after a crash: %2.
</source>
        <translation>
Für den Fall eines Absturzes wird keine Kopie von %1 gehalten: %2.
</translation>
    </message>
    <message>
        <source>
%1 was recovered by another program.
</source>
        <translation>
%1 wurde von einem anderen Programm wiederhergestellt.
</translation>
    </message>
    <message>
        <source>
Recovered as it was on %1. It is not in its file until it is saved.
</source>
        <translation>
Wiederhergestellt nach dem Stand vom %1. Erst nach dem Speichern steht es in der Datei.
</translation>
    </message>
    <message>
        <source>Enter</source>
        <translation>Eingabe</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>Repeat %1</source>
        <translation>%1 wiederholen</translation>
    </message>
    <message>
        <source>Recent input</source>
        <translation>Letzte Eingaben</translation>
    </message>
    <message>
        <source>Choose nothing</source>
        <translation>Auswahl aufheben</translation>
    </message>
</context>
<context>
    <name>host::app::ParagraphDialog</name>
    <message>
        <source>Edit paragraph</source>
        <translation>Absatztext bearbeiten</translation>
    </message>
    <message>
        <source>Text of the paragraph</source>
        <translation>Text des Absatzes</translation>
    </message>
    <message>
        <source>Each line is a paragraph. Codes are shown as they are: {\C1;red}, %%c, %%d.</source>
        <translation>Jede Zeile ist ein Absatz. Codes werden gezeigt, wie sie sind: {\C1;rot}, %%c, %%d.</translation>
    </message>
    <message>
        <source>Ctrl+Enter</source>
        <translation>Strg+Eingabe</translation>
    </message>
</context>
<context>
    <name>host::app::PrintDialog</name>
    <message>
        <source>&amp;Centred</source>
        <translation>&amp;Zentriert</translation>
    </message>
    <message>
        <source>&amp;Lineweights</source>
        <translation>&amp;Linienstärken</translation>
    </message>
    <message>
        <source>&amp;Remember in the layout</source>
        <translation>Im Layout &amp;merken</translation>
    </message>
    <message>
        <source>Print %1</source>
        <translation>%1 drucken</translation>
    </message>
    <message>
        <source>Page setup of %1</source>
        <translation>Seite einrichten: %1</translation>
    </message>
    <message>
        <source>Preview</source>
        <translation>Vorschau</translation>
    </message>
    <message>
        <source>&amp;Print</source>
        <translation>&amp;Drucken</translation>
    </message>
    <message>
        <source>%1 file</source>
        <translation>%1-Datei</translation>
    </message>
    <message>
        <source>Landscape</source>
        <translation>Querformat</translation>
    </message>
    <message>
        <source>Portrait</source>
        <translation>Hochformat</translation>
    </message>
    <message>
        <source>What is shown</source>
        <translation>Was gezeigt wird</translation>
    </message>
    <message>
        <source>All</source>
        <translation>Alle</translation>
    </message>
    <message>
        <source>Limits</source>
        <translation>Limiten</translation>
    </message>
    <message>
        <source>The layout&apos;s sheet</source>
        <translation>Das Blatt des Layouts</translation>
    </message>
    <message>
        <source>Window</source>
        <translation>Fenster</translation>
    </message>
    <message>
        <source>Fit</source>
        <translation>Einpassen</translation>
    </message>
    <message>
        <source>As the layout says</source>
        <translation>Wie das Layout es sagt</translation>
    </message>
    <message>
        <source>Colours</source>
        <translation>Farben</translation>
    </message>
    <message>
        <source>Black and white</source>
        <translation>Schwarzweiß</translation>
    </message>
    <message>
        <source>Greys</source>
        <translation>Graustufen</translation>
    </message>
    <message>
        <source>&amp;Device</source>
        <translation>&amp;Gerät</translation>
    </message>
    <message>
        <source>P&amp;aper</source>
        <translation>Pa&amp;pier</translation>
    </message>
    <message>
        <source>&amp;Orientation</source>
        <translation>&amp;Ausrichtung</translation>
    </message>
    <message>
        <source>A&amp;rea</source>
        <translation>&amp;Bereich</translation>
    </message>
    <message>
        <source>Lower left corner</source>
        <translation>Ecke unten links</translation>
    </message>
    <message>
        <source>Upper right corner</source>
        <translation>Ecke oben rechts</translation>
    </message>
    <message>
        <source>&amp;Scale</source>
        <translation>Maß&amp;stab</translation>
    </message>
    <message>
        <source>O&amp;ffset (mm)</source>
        <translation>&amp;Versatz (mm)</translation>
    </message>
    <message>
        <source>Colo&amp;urs</source>
        <translation>&amp;Farben</translation>
    </message>
    <message>
        <source>Cop&amp;ies</source>
        <translation>&amp;Kopien</translation>
    </message>
</context>
<context>
    <name>host::app::PropertiesPanel</name>
    <message>
        <source>Which of the chosen entities</source>
        <translation>Welche der gewählten Objekte</translation>
    </message>
    <message>
        <source>Properties</source>
        <translation>Eigenschaften</translation>
    </message>
    <message>
        <source>Nothing chosen</source>
        <translation>Nichts gewählt</translation>
    </message>
    <message>
        <source>No drawing is open</source>
        <translation>Keine Zeichnung geöffnet</translation>
    </message>
    <message>
        <source>All</source>
        <translation>Alle</translation>
    </message>
    <message>
        <source>%1 of %2 are on locked layers and stay as they are.</source>
        <translation>%1 von %2 liegen auf gesperrten Layern und bleiben, wie sie sind.</translation>
    </message>
    <message>
        <source>Nothing was changed: what is chosen is on locked layers.</source>
        <translation>Nichts wurde geändert: das Gewählte liegt auf gesperrten Layern.</translation>
    </message>
</context>
<context>
    <name>host::app::RecoveryDialog</name>
    <message>
        <source>never saved</source>
        <translation>nie gespeichert</translation>
    </message>
    <message>
        <source>%1
(changed since by another program)</source>
        <translation>%1
(seither von einem anderen Programm geändert)</translation>
    </message>
    <message>
        <source>%1
(not there any more)</source>
        <translation>%1
(nicht mehr vorhanden)</translation>
    </message>
    <message>
        <source>Recover drawings</source>
        <translation>Zeichnungen wiederherstellen</translation>
    </message>
    <message>
        <source>The program ended without closing these drawings. What had not been saved of them was kept in copies.</source>
        <translation>Das Programm endete, ohne diese Zeichnungen zu schließen. Was von ihnen nicht gespeichert war, wurde in Kopien aufgehoben.</translation>
    </message>
    <message>
        <source>Drawings to recover</source>
        <translation>Wiederherzustellende Zeichnungen</translation>
    </message>
    <message>
        <source>Drawing</source>
        <translation>Zeichnung</translation>
    </message>
    <message>
        <source>Copied</source>
        <translation>Kopiert</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Größe</translation>
    </message>
    <message>
        <source>File</source>
        <translation>Datei</translation>
    </message>
    <message>
        <source>&amp;Open selected</source>
        <translation>Gewählte ö&amp;ffnen</translation>
    </message>
    <message>
        <source>&amp;Discard selected...</source>
        <translation>Gewählte &amp;verwerfen...</translation>
    </message>
    <message>
        <source>&amp;Later</source>
        <translation>&amp;Später</translation>
    </message>
    <message>
        <source>The copies are offered again at the next start</source>
        <translation>Die Kopien werden beim nächsten Start wieder angeboten</translation>
    </message>
    <message>
        <source>(no name)</source>
        <translation>(ohne Namen)</translation>
    </message>
    <message numerus="yes">
        <source>Discard what was not saved of %n drawing(s)? It cannot be brought back.</source>
        <translation>
            <numerusform>Nicht Gespeichertes von %n Zeichnung verwerfen? Es kann nicht zurückgeholt werden.</numerusform>
            <numerusform>Nicht Gespeichertes von %n Zeichnungen verwerfen? Es kann nicht zurückgeholt werden.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>host::app::ResultsModel</name>
    <message>
        <source>done</source>
        <translation>erledigt</translation>
    </message>
    <message>
        <source>skipped</source>
        <translation>übersprungen</translation>
    </message>
    <message>
        <source>Outcome</source>
        <translation>Ergebnis</translation>
    </message>
    <message>
        <source>Entity</source>
        <translation>Objekt</translation>
    </message>
    <message>
        <source>What and why</source>
        <translation>Was und warum</translation>
    </message>
</context>
<context>
    <name>host::app::ResultsPanel</name>
    <message>
        <source>&amp;Save...</source>
        <translation>&amp;Speichern...</translation>
    </message>
    <message>
        <source>Results</source>
        <translation>Ergebnisse</translation>
    </message>
    <message>
        <source>Which results are shown</source>
        <translation>Welche Ergebnisse gezeigt werden</translation>
    </message>
    <message>
        <source>All</source>
        <translation>Alle</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>Erledigte</translation>
    </message>
    <message>
        <source>Skipped</source>
        <translation>Übersprungene</translation>
    </message>
    <message>
        <source>No tool has listed results in this drawing.</source>
        <translation>In dieser Zeichnung hat noch kein Werkzeug Ergebnisse aufgelistet.</translation>
    </message>
    <message>
        <source>It is not in the drawing any more.</source>
        <translation>Es ist nicht mehr in der Zeichnung.</translation>
    </message>
    <message>
        <source>It is not in the space that is shown.</source>
        <translation>Es liegt nicht in dem Bereich, der gezeigt wird.</translation>
    </message>
    <message>
        <source>Save results</source>
        <translation>Ergebnisse speichern</translation>
    </message>
    <message>
        <source>Text (*.txt);;JSON (*.json)</source>
        <translation>Text (*.txt);;JSON (*.json)</translation>
    </message>
    <message>
        <source>Written: %1</source>
        <translation>Geschrieben: %1</translation>
    </message>
</context>
<context>
    <name>host::app::ScriptReader</name>
    <message>
        <source>part: it has no end</source>
        <translation>part: es hat kein Ende</translation>
    </message>
    <message>
        <source>part: the part before it has no end</source>
        <translation>part: der Teil davor hat kein Ende</translation>
    </message>
    <message>
        <source>end: no part was begun</source>
        <translation>end: kein Teil wurde begonnen</translation>
    </message>
    <message>
        <source>drawing: only the first line says which drawing it is</source>
        <translation>drawing: nur die erste Zeile sagt, welche Zeichnung es ist</translation>
    </message>
    <message>
        <source>part: there is a part %1 already</source>
        <translation>part: einen Teil %1 gibt es schon</translation>
    </message>
    <message>
        <source>part: a part cannot be written in a part</source>
        <translation>part: ein Teil kann nicht in einem Teil geschrieben werden</translation>
    </message>
    <message>
        <source>play: there is no part %1</source>
        <translation>play: es gibt keinen Teil %1</translation>
    </message>
    <message>
        <source>play: the part %1 plays itself</source>
        <translation>play: der Teil %1 spielt sich selbst ab</translation>
    </message>
    <message>
        <source>play: too many parts are played one in the other</source>
        <translation>play: zu viele Teile werden ineinander abgespielt</translation>
    </message>
    <message>
        <source>play: the part %1 takes %2</source>
        <translation>play: der Teil %1 nimmt %2</translation>
    </message>
    <message>
        <source>part %1, line %2</source>
        <translation>Teil %1, Zeile %2</translation>
    </message>
    <message>
        <source>play: the parts write too much</source>
        <translation>play: die Teile schreiben zu viel</translation>
    </message>
    <message>
        <source>no arguments</source>
        <translation>keine Argumente</translation>
    </message>
</context>
<context>
    <name>host::app::SessionPlayer</name>
    <message>
        <source>the session took longer than %1 s; open is %2</source>
        <translation>die Sitzung dauerte länger als %1 s; offen ist %2</translation>
    </message>
    <message>
        <source>no dialog</source>
        <translation>kein Dialog</translation>
    </message>
    <message>
        <source>${%1} is not known</source>
        <translation>${%1} ist nicht bekannt</translation>
    </message>
    <message>
        <source>the prompt &quot;%1&quot;</source>
        <translation>die Eingabeaufforderung &quot;%1&quot;</translation>
    </message>
    <message>
        <source>the session ends while %1 is open</source>
        <translation>die Sitzung endet, während %1 offen ist</translation>
    </message>
    <message>
        <source>%1 is open</source>
        <translation>%1 ist offen</translation>
    </message>
    <message>
        <source>%1 is still open</source>
        <translation>%1 ist noch offen</translation>
    </message>
    <message>
        <source>a view needs two corners</source>
        <translation>eine Ansicht braucht zwei Ecken</translation>
    </message>
    <message>
        <source>the run before it ended without an error</source>
        <translation>der Lauf davor endete ohne Fehler</translation>
    </message>
    <message>
        <source>no prompt and no dialog is open that this could be meant for</source>
        <translation>weder eine Eingabeaufforderung noch ein Dialog ist offen, für den dies gemeint sein könnte</translation>
    </message>
    <message>
        <source>there is no panel &quot;%1&quot;</source>
        <translation>es gibt kein Bedienfeld &quot;%1&quot;</translation>
    </message>
    <message>
        <source>it stands in front of a command or lisp</source>
        <translation>es steht vor einem Befehl oder vor lisp</translation>
    </message>
    <message>
        <source>the error is &quot;%1&quot;</source>
        <translation>der Fehler ist &quot;%1&quot;</translation>
    </message>
    <message>
        <source>the run ended with &quot;%1&quot;</source>
        <translation>der Lauf endete mit &quot;%1&quot;</translation>
    </message>
    <message>
        <source>cancelled at %1, </source>
        <translation>abgebrochen bei %1, </translation>
    </message>
    <message>
        <source>the drawing differs from what it was: %1</source>
        <translation>die Zeichnung unterscheidet sich von dem, was sie war: %1</translation>
    </message>
    <message>
        <source>there is nothing to undo</source>
        <translation>es gibt nichts rückgängig zu machen</translation>
    </message>
    <message>
        <source>there is nothing to redo</source>
        <translation>es gibt nichts wiederherzustellen</translation>
    </message>
    <message>
        <source>it is nil</source>
        <translation>es ist nil</translation>
    </message>
</context>
<context>
    <name>host::app::SettingEditor</name>
    <message>
        <source>Add to: %1</source>
        <translation>Hinzufügen zu: %1</translation>
    </message>
    <message>
        <source>Lisp programs (*.lsp)</source>
        <translation>Lisp-Programme (*.lsp)</translation>
    </message>
</context>
<context>
    <name>host::app::SettingsWindow</name>
    <message>
        <source>Settings</source>
        <translation>Einstellungen</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>Suchen</translation>
    </message>
    <message>
        <source>Search the settings</source>
        <translation>Einstellungen durchsuchen</translation>
    </message>
    <message>
        <source>Sections</source>
        <translation>Abschnitte</translation>
    </message>
    <message>
        <source>System variables are shown while a drawing is open.</source>
        <translation>Systemvariablen werden gezeigt, solange eine Zeichnung geöffnet ist.</translation>
    </message>
    <message>
        <source>A command is running; Esc stops it.</source>
        <translation>Ein Befehl läuft; Esc beendet ihn.</translation>
    </message>
    <message>
        <source>%1 cannot be &quot;%2&quot;.</source>
        <translation>%1 kann nicht &quot;%2&quot; sein.</translation>
    </message>
</context>
<context>
    <name>host::app::StartPage</name>
    <message>
        <source>Recent drawings</source>
        <translation>Letzte Zeichnungen</translation>
    </message>
    <message>
        <source>Samples</source>
        <translation>Beispiele</translation>
    </message>
    <message>
        <source>Ortakit</source>
        <translation>Ortakit</translation>
    </message>
    <message>
        <source>First steps</source>
        <translation>Erste Schritte</translation>
    </message>
    <message>
        <source>&amp;New drawing</source>
        <translation>&amp;Neue Zeichnung</translation>
    </message>
    <message>
        <source>&amp;Open drawings...</source>
        <translation>Zeichnungen ö&amp;ffnen...</translation>
    </message>
    <message>
        <source>Open &amp;last time&apos;s drawings</source>
        <translation>Zeichnungen vom &amp;letzten Mal öffnen</translation>
    </message>
    <message>
        <source>Look at a sample</source>
        <translation>Ein Beispiel ansehen</translation>
    </message>
    <message>
        <source>Draw a line</source>
        <translation>Eine Linie zeichnen</translation>
    </message>
    <message>
        <source>Read the help</source>
        <translation>Die Hilfe lesen</translation>
    </message>
    <message>
        <source>(not there any more)</source>
        <translation>(nicht mehr vorhanden)</translation>
    </message>
    <message>
        <source>%1 (pinned)</source>
        <translation>%1 (angeheftet)</translation>
    </message>
    <message>
        <source>Un&amp;pin</source>
        <translation>Nicht mehr an&amp;heften</translation>
    </message>
    <message>
        <source>&amp;Pin</source>
        <translation>An&amp;heften</translation>
    </message>
    <message>
        <source>&amp;Remove from the list</source>
        <translation>Aus der Liste &amp;entfernen</translation>
    </message>
</context>
<context>
    <name>host::app::StatusSwitches</name>
    <message>
        <source>%1 on</source>
        <translation>%1 ein</translation>
    </message>
    <message>
        <source>%1 off</source>
        <translation>%1 aus</translation>
    </message>
</context>
<context>
    <name>host::app::StyleBar</name>
    <message>
        <source>Current properties</source>
        <translation>Aktuelle Eigenschaften</translation>
    </message>
    <message>
        <source>Layer</source>
        <translation>Layer</translation>
    </message>
    <message>
        <source>Color</source>
        <translation>Farbe</translation>
    </message>
    <message>
        <source>Linetype</source>
        <translation>Linientyp</translation>
    </message>
    <message>
        <source>Lineweight</source>
        <translation>Linienstärke</translation>
    </message>
</context>
<context>
    <name>host::app::SuggestionList</name>
    <message>
        <source>Suggestions</source>
        <translation>Vorschläge</translation>
    </message>
</context>
<context>
    <name>host::app::TextEditing</name>
    <message>
        <source>It is on a locked layer.</source>
        <translation>Es liegt auf einem gesperrten Layer.</translation>
    </message>
    <message>
        <source>A text without letters could not be found again: it stays as it was.</source>
        <translation>Ein Text ohne Buchstaben wäre nicht wiederzufinden: er bleibt, wie er war.</translation>
    </message>
    <message>
        <source>Edit attribute definition</source>
        <translation>Attributdefinition bearbeiten</translation>
    </message>
    <message>
        <source>Tag</source>
        <translation>Bezeichnung</translation>
    </message>
    <message>
        <source>Prompt</source>
        <translation>Eingabeaufforderung</translation>
    </message>
    <message>
        <source>Default</source>
        <translation>Vorgabe</translation>
    </message>
    <message>
        <source>A tag has no blanks.</source>
        <translation>Eine Bezeichnung hat keine Leerzeichen.</translation>
    </message>
    <message>
        <source>The value is constant: the block says it.</source>
        <translation>Der Wert ist konstant: der Block legt ihn fest.</translation>
    </message>
    <message>
        <source>Several lines, with \P between them.</source>
        <translation>Mehrere Zeilen, dazwischen \P.</translation>
    </message>
    <message>
        <source>Attributes of %1</source>
        <translation>Attribute von %1</translation>
    </message>
</context>
<context>
    <name>host::app::TrustBar</name>
    <message>
        <source>%1 was not read: %2</source>
        <translation>%1 wurde nicht gelesen: %2</translation>
    </message>
    <message>
        <source>%1 was not loaded: %2</source>
        <translation>%1 wurde nicht geladen: %2</translation>
    </message>
    <message>
        <source>%1 was not started: %2</source>
        <translation>%1 wurde nicht gestartet: %2</translation>
    </message>
    <message>
        <source>Allow &amp;once</source>
        <translation>&amp;Einmal erlauben</translation>
    </message>
    <message>
        <source>Trust the folde&amp;r</source>
        <translation>Dem O&amp;rdner vertrauen</translation>
    </message>
    <message>
        <source>What was kept from running or being read</source>
        <translation>Was nicht laufen oder gelesen werden durfte</translation>
    </message>
    <message>
        <source>Files and programs that were kept back</source>
        <translation>Zurückgehaltene Dateien und Programme</translation>
    </message>
    <message>
        <source>Detai&amp;ls</source>
        <translation>Detai&amp;ls</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Schließen</translation>
    </message>
    <message>
        <source>%1 things were kept back: they are named here but not in trusted folders.</source>
        <translation>%1 Dinge wurden zurückgehalten: sie werden hier genannt, liegen aber nicht in vertrauenswürdigen Ordnern.</translation>
    </message>
</context>
<context>
    <name>host::app::ValuesDialog</name>
    <message>
        <source>Tag</source>
        <translation>Bezeichnung</translation>
    </message>
    <message>
        <source>Prompt</source>
        <translation>Eingabeaufforderung</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>Wert</translation>
    </message>
</context>
<context>
    <name>host::app::WindowDialogs</name>
    <message>
        <source>Printed on %1.</source>
        <translation>Gedruckt auf %1.</translation>
    </message>
    <message>
        <source>Print to file</source>
        <translation>In Datei drucken</translation>
    </message>
    <message>
        <source>%1 files (*.%2)</source>
        <translation>%1-Dateien (*.%2)</translation>
    </message>
    <message>
        <source>&amp;New</source>
        <translation>&amp;Neu</translation>
    </message>
    <message>
        <source>&amp;Rename...</source>
        <translation>&amp;Umbenennen...</translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation>&amp;Kopieren</translation>
    </message>
    <message>
        <source>&amp;Delete</source>
        <translation>&amp;Löschen</translation>
    </message>
    <message>
        <source>Move &amp;left</source>
        <translation>Nach l&amp;inks</translation>
    </message>
    <message>
        <source>Move righ&amp;t</source>
        <translation>Nach r&amp;echts</translation>
    </message>
    <message>
        <source>&amp;Page setup...</source>
        <translation>&amp;Seite einrichten...</translation>
    </message>
    <message>
        <source>Rename layout</source>
        <translation>Layout umbenennen</translation>
    </message>
    <message>
        <source>&amp;Name:</source>
        <translation>&amp;Name:</translation>
    </message>
</context>
<context>
    <name>host::app::Workbench</name>
    <message>
        <source>The folder of the Lisp tools was not found; there are no tools.</source>
        <translation>Der Ordner der Lisp-Werkzeuge wurde nicht gefunden; es gibt keine Werkzeuge.</translation>
    </message>
    <message>
        <source>There is no folder %1; there are no tools.</source>
        <translation>Es gibt keinen Ordner %1; es gibt keine Werkzeuge.</translation>
    </message>
    <message>
        <source>The plug-in module was not found; tools with dialogs will not work.</source>
        <translation>Das Plug-in-Modul wurde nicht gefunden; Werkzeuge mit Dialogen werden nicht funktionieren.</translation>
    </message>
    <message>
        <source>%1 Tools with dialogs will not work.</source>
        <translation>%1 Werkzeuge mit Dialogen werden nicht funktionieren.</translation>
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
        <translation>der Ordner %1 nimmt keine Dateien an</translation>
    </message>
</context>
<context>
    <name>host::kernel::ColourDialog</name>
    <message>
        <source>Select Color</source>
        <translation>Farbe wählen</translation>
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
        <translation>&amp;Weitere Farben...</translation>
    </message>
    <message>
        <source>&amp;Color:</source>
        <translation>&amp;Farbe:</translation>
    </message>
</context>
<context>
    <name>kernel</name>
    <message>
        <source>the drawing has no entity with the handle %1</source>
        <translation>die Zeichnung hat kein Objekt mit der Referenznummer %1</translation>
    </message>
</context>
</TS>
