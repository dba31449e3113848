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
    <name>Batch</name>
    <message>
        <source>%1 of %2, %3 failed</source>
        <translation>%1 von %2, %3 gescheitert</translation>
    </message>
    <message>
        <source>the process that worked on it was killed or crashed</source>
        <translation>der Prozess, der daran arbeitete, wurde beendet oder stürzte ab</translation>
    </message>
    <message>
        <source>interrupted: %1 of %2 were not worked on to the end</source>
        <translation>unterbrochen: an %1 von %2 wurde nicht zu Ende gearbeitet</translation>
    </message>
    <message>
        <source>done</source>
        <translation>erledigt</translation>
    </message>
    <message>
        <source>failed</source>
        <translation>gescheitert</translation>
    </message>
    <message>
        <source>not read</source>
        <translation>nicht gelesen</translation>
    </message>
    <message>
        <source>not written</source>
        <translation>nicht geschrieben</translation>
    </message>
    <message>
        <source>incomplete</source>
        <translation>unvollständig</translation>
    </message>
    <message>
        <source>cut short</source>
        <translation>abgebrochen</translation>
    </message>
    <message>
        <source>%1, case %2</source>
        <translation>%1, Fall %2</translation>
    </message>
    <message>
        <source>%1: the folder cannot be made</source>
        <translation>%1: der Ordner kann nicht angelegt werden</translation>
    </message>
    <message>
        <source>two of the drawings are named %1: their results would have the same name</source>
        <translation>zwei der Zeichnungen heißen %1: ihre Ergebnisse hätten denselben Namen</translation>
    </message>
    <message>
        <source>%1: the extension must be dxf, %2</source>
        <translation>%1: die Endung muss dxf, %2 sein</translation>
    </message>
    <message>
        <source>--binary is for DXF files</source>
        <translation>--binary gilt für DXF-Dateien</translation>
    </message>
    <message>
        <source>... and %1 more lines</source>
        <translation>... und %1 weitere Zeilen</translation>
    </message>
    <message>
        <source>the dialog of %1 does not open</source>
        <translation>der Dialog von %1 öffnet sich nicht</translation>
    </message>
    <message>
        <source>%1: the file cannot be read</source>
        <translation>%1: die Datei kann nicht gelesen werden</translation>
    </message>
    <message>
        <source>the tool asks &quot;%1&quot;; see --answer</source>
        <translation>das Werkzeug fragt &quot;%1&quot;; siehe --answer</translation>
    </message>
    <message>
        <source>the tool asks for a file; see --set %1=PATH</source>
        <translation>das Werkzeug fragt nach einer Datei; siehe --set %1=PATH</translation>
    </message>
    <message>
        <source>the dialog does not go on with these values</source>
        <translation>der Dialog geht mit diesen Werten nicht weiter</translation>
    </message>
    <message>
        <source>there is nothing to choose in %1</source>
        <translation>in %1 gibt es nichts zu wählen</translation>
    </message>
    <message>
        <source>it does not take &quot;%1&quot;</source>
        <translation>es nimmt &quot;%1&quot; nicht an</translation>
    </message>
    <message>
        <source>%1 has nothing to do</source>
        <translation>%1 hat nichts zu tun</translation>
    </message>
    <message>
        <source>%1: there is no file %2</source>
        <translation>%1: die Datei %2 gibt es nicht</translation>
    </message>
    <message>
        <source>%1 is there already, beside the drawing, and may be another one: name another folder, or --force to replace it</source>
        <translation>%1 ist neben der Zeichnung schon vorhanden und kann eine andere sein: einen anderen Ordner nennen, oder --force, um sie zu ersetzen</translation>
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
    <name>Commands</name>
    <message>
        <source>Specify angle vertex: </source>
        <translation>Scheitelpunkt des Winkels angeben: </translation>
    </message>
    <message>
        <source>Specify first angle endpoint: </source>
        <translation>Ersten Endpunkt des Winkels angeben: </translation>
    </message>
    <message>
        <source>Specify second angle endpoint: </source>
        <translation>Zweiten Endpunkt des Winkels angeben: </translation>
    </message>
    <message>
        <source>Select second line: </source>
        <translation>Zweite Linie wählen: </translation>
    </message>
    <message>
        <source>Lines are parallel.</source>
        <translation>Die Linien sind parallel.</translation>
    </message>
    <message>
        <source>Object selected is not a line.</source>
        <translation>Das gewählte Objekt ist keine Linie.</translation>
    </message>
    <message>
        <source>Select arc, circle, line, or &lt;specify vertex&gt;: </source>
        <translation>Bogen, Kreis oder Linie wählen oder &lt;Scheitelpunkt angeben&gt;: </translation>
    </message>
    <message>
        <source>Object selected is not an arc, circle or line.</source>
        <translation>Das gewählte Objekt ist weder Bogen noch Kreis noch Linie.</translation>
    </message>
    <message>
        <source>Enter text location (or press ENTER): </source>
        <translation>Textposition eingeben (oder Eingabetaste drücken): </translation>
    </message>
    <message>
        <source>Specify dimension arc line location or [Mtext/Text/Angle/Quadrant]: </source>
        <translation>Position des Maßbogens angeben oder [Mtext/Text/Angle/Quadrant]: </translation>
    </message>
    <message>
        <source>Specify quadrant: </source>
        <translation>Quadranten angeben: </translation>
    </message>
    <message>
        <source>Select arc or polyline arc segment: </source>
        <translation>Bogen oder Bogensegment einer Polylinie wählen: </translation>
    </message>
    <message>
        <source>Object selected is not an arc or polyline arc segment.</source>
        <translation>Das gewählte Objekt ist weder Bogen noch Bogensegment einer Polylinie.</translation>
    </message>
    <message>
        <source>Specify first point for arc length dimension: </source>
        <translation>Ersten Punkt der Bogenlängenbemaßung angeben: </translation>
    </message>
    <message>
        <source>Specify second point for arc length dimension: </source>
        <translation>Zweiten Punkt der Bogenlängenbemaßung angeben: </translation>
    </message>
    <message>
        <source>The two points are one.</source>
        <translation>Die beiden Punkte sind derselbe.</translation>
    </message>
    <message>
        <source>Specify arc length dimension location, or [Mtext/Text/Angle/Partial%1]: </source>
        <translation>Position der Bogenlängenbemaßung angeben oder [Mtext/Text/Angle/Partial%1]: </translation>
    </message>
    <message>
        <source>A drawing of this version has no dimensions of arc lengths: they come with R2004.</source>
        <translation>Eine Zeichnung dieser Version hat keine Bogenlängenbemaßungen: die gibt es ab R2004.</translation>
    </message>
    <message>
        <source>
Current attribute modes:  </source>
        <translation>
Aktuelle Attributmodi:  </translation>
    </message>
    <message>
        <source>Enter an option to change [Invisible/Constant/Verify/Preset] &lt;done&gt;: </source>
        <translation>Zu ändernde Option eingeben [Invisible/Constant/Verify/Preset] &lt;fertig&gt;: </translation>
    </message>
    <message>
        <source>Enter attribute tag name: </source>
        <translation>Attributbezeichnung eingeben: </translation>
    </message>
    <message>
        <source>A tag is needed.</source>
        <translation>Eine Bezeichnung wird gebraucht.</translation>
    </message>
    <message>
        <source>A tag has no blanks.</source>
        <translation>Eine Bezeichnung hat keine Leerzeichen.</translation>
    </message>
    <message>
        <source>Enter attribute prompt: </source>
        <translation>Eingabeaufforderung des Attributs eingeben: </translation>
    </message>
    <message>
        <source>Enter attribute value: </source>
        <translation>Attributwert eingeben: </translation>
    </message>
    <message>
        <source>Enter default attribute value: </source>
        <translation>Vorgabewert des Attributs eingeben: </translation>
    </message>
    <message>
        <source>Enter attribute tag name</source>
        <translation>Attributbezeichnung eingeben</translation>
    </message>
    <message>
        <source>Enter attribute prompt</source>
        <translation>Eingabeaufforderung des Attributs eingeben</translation>
    </message>
    <message>
        <source>Enter default attribute value, . for none</source>
        <translation>Vorgabewert des Attributs eingeben, . für keinen</translation>
    </message>
    <message>
        <source>Enter text</source>
        <translation>Text eingeben</translation>
    </message>
    <message>
        <source>Select an annotation object: </source>
        <translation>Anmerkungsobjekt wählen: </translation>
    </message>
    <message>
        <source>Requires a text.</source>
        <translation>Ein Text wird gebraucht.</translation>
    </message>
    <message>
        <source>Select continued dimension: </source>
        <translation>Fortzusetzende Bemaßung wählen: </translation>
    </message>
    <message>
        <source>Select base dimension: </source>
        <translation>Basisbemaßung wählen: </translation>
    </message>
    <message>
        <source>Linear, ordinate, or angular associative dimension required.</source>
        <translation>Eine lineare Bemaßung, Koordinaten- oder Winkelbemaßung wird gebraucht.</translation>
    </message>
    <message>
        <source>
All dimensions of the command are undone.</source>
        <translation>
Alle Bemaßungen des Befehls sind rückgängig gemacht.</translation>
    </message>
    <message>
        <source>Specify feature location or [Select/Undo] &lt;Select&gt;: </source>
        <translation>Position des Merkmals angeben oder [Select/Undo] &lt;Select&gt;: </translation>
    </message>
    <message>
        <source>Specify second extension line origin or [Select/Undo] &lt;Select&gt;: </source>
        <translation>Ursprung der zweiten Hilfslinie angeben oder [Select/Undo] &lt;Select&gt;: </translation>
    </message>
    <message>
        <source>Specify a second extension line origin or [Select] &lt;Select&gt;: </source>
        <translation>Ursprung einer zweiten Hilfslinie angeben oder [Select] &lt;Select&gt;: </translation>
    </message>
    <message>
        <source>Enter obliquing angle (press ENTER for none): </source>
        <translation>Neigungswinkel eingeben (Eingabetaste für keinen): </translation>
    </message>
    <message>
        <source>Unknown dimension variable &quot;%1&quot;.</source>
        <translation>Unbekannte Bemaßungsvariable &quot;%1&quot;.</translation>
    </message>
    <message>
        <source>Enter new value for dimension variable &lt;%1&gt;: </source>
        <translation>Neuen Wert der Bemaßungsvariablen eingeben &lt;%1&gt;: </translation>
    </message>
    <message>
        <source>%1 does not take this value.</source>
        <translation>%1 nimmt diesen Wert nicht an.</translation>
    </message>
    <message>
        <source>Enter dimension variable name to override: </source>
        <translation>Namen der zu überschreibenden Bemaßungsvariablen eingeben: </translation>
    </message>
    <message>
        <source>Enter type of dimension editing [Home/New/Rotate/Oblique] &lt;Home&gt;: </source>
        <translation>Art der Bemaßungsbearbeitung eingeben [Home/New/Rotate/Oblique] &lt;Home&gt;: </translation>
    </message>
    <message>
        <source>Enter dimension text &lt;&lt;&gt;&gt;: </source>
        <translation>Maßtext eingeben &lt;&lt;&gt;&gt;: </translation>
    </message>
    <message>
        <source>Specify angle for dimension text: </source>
        <translation>Winkel des Maßtextes angeben: </translation>
    </message>
    <message>
        <source>Select dimension: </source>
        <translation>Bemaßung wählen: </translation>
    </message>
    <message>
        <source>Object selected is not a dimension.</source>
        <translation>Das gewählte Objekt ist keine Bemaßung.</translation>
    </message>
    <message>
        <source>Specify new location for dimension text or [Left/Right/Center/Home/Angle]: </source>
        <translation>Neue Position des Maßtextes angeben oder [Left/Right/Center/Home/Angle]: </translation>
    </message>
    <message>
        <source>Enter dimension variable name to override or [Clear overrides]: </source>
        <translation>Namen der zu überschreibenden Bemaßungsvariablen eingeben oder [Clear overrides]: </translation>
    </message>
    <message>
        <source>Enter new text style name</source>
        <translation>Neuen Textstilnamen eingeben</translation>
    </message>
    <message>
        <source>Dim: </source>
        <translation>Bem: </translation>
    </message>
    <message>
        <source>Unknown dimension subcommand &quot;%1&quot;.</source>
        <translation>Unbekannter Bemaßungsbefehl &quot;%1&quot;.</translation>
    </message>
    <message>
        <source>
Nothing that was made here is left to undo.</source>
        <translation>
Hier wurde nichts gemacht, was noch rückgängig zu machen wäre.</translation>
    </message>
    <message>
        <source>Enter dimension style(s) to list &lt;*&gt;: </source>
        <translation>Aufzulistende Bemaßungsstile eingeben &lt;*&gt;: </translation>
    </message>
    <message>
        <source>Enter a dimension style name, [?] or &lt;select dimension&gt;: </source>
        <translation>Namen eines Bemaßungsstils eingeben, [?] oder &lt;Bemaßung wählen&gt;: </translation>
    </message>
    <message>
        <source>Cannot find dimension style &quot;%1&quot;.</source>
        <translation>Der Bemaßungsstil &quot;%1&quot; wurde nicht gefunden.</translation>
    </message>
    <message>
        <source>Enter name for new dimension style or [?]: </source>
        <translation>Namen des neuen Bemaßungsstils eingeben oder [?]: </translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no name for a dimension style.</source>
        <translation>&quot;%1&quot; ist kein Name für einen Bemaßungsstil.</translation>
    </message>
    <message>
        <source>That name is already in use, redefine it? [Yes/No] &lt;N&gt;: </source>
        <translation>Der Name ist schon vergeben. Neu definieren? [Yes/No] &lt;N&gt;: </translation>
    </message>
    <message>
        <source>Create annotative dimension style [Yes/No] &lt;Yes&gt;: </source>
        <translation>Annotativen Bemaßungsstil erstellen [Yes/No] &lt;Yes&gt;: </translation>
    </message>
    <message>
        <source>
Current dimension style: </source>
        <translation>
Aktueller Bemaßungsstil: </translation>
    </message>
    <message>
        <source>Enter a dimension style option [ANnotative/Save/Restore/STatus/Variables/Apply/?] &lt;Restore&gt;: </source>
        <translation>Bemaßungsstil-Option eingeben [ANnotative/Save/Restore/STatus/Variables/Apply/?] &lt;Restore&gt;: </translation>
    </message>
    <message>
        <source>Specify internal point or [Properties/Select objects/draW boundary/remove Boundaries/Advanced/DRaw order/Origin/ANnotative/hatch COlor/LAyer/Transparency]: </source>
        <translation>Internen Punkt angeben oder [Properties/Select objects/draW boundary/remove Boundaries/Advanced/DRaw order/Origin/ANnotative/hatch COlor/LAyer/Transparency]: </translation>
    </message>
    <message>
        <source>
Too many curves cross here: choose a boundary set.</source>
        <translation>
Hier kreuzen sich zu viele Kurven: wählen Sie einen Umgrenzungssatz.</translation>
    </message>
    <message>
        <source>
Valid hatch boundary not found.</source>
        <translation>
Keine gültige Schraffurumgrenzung gefunden.</translation>
    </message>
    <message>
        <source>
The objects make no closed boundary.</source>
        <translation>
Die Objekte bilden keine geschlossene Umgrenzung.</translation>
    </message>
    <message>
        <source>Retain polyline boundary? [Yes/No] &lt;N&gt;: </source>
        <translation>Polylinie der Umgrenzung beibehalten? [Yes/No] &lt;N&gt;: </translation>
    </message>
    <message>
        <source>Specify start point: </source>
        <translation>Startpunkt angeben: </translation>
    </message>
    <message>
        <source>Specify next point or [Close/Undo] &lt;Close&gt;: </source>
        <translation>Nächsten Punkt angeben oder [Close/Undo] &lt;Close&gt;: </translation>
    </message>
    <message>
        <source>Specify start point for new boundary or &lt;Accept&gt;: </source>
        <translation>Startpunkt einer neuen Umgrenzung angeben oder &lt;annehmen&gt;: </translation>
    </message>
    <message>
        <source>Select boundary to remove: </source>
        <translation>Zu entfernende Umgrenzung wählen: </translation>
    </message>
    <message>
        <source>
Current hatch pattern:  </source>
        <translation>
Aktuelles Schraffurmuster:  </translation>
    </message>
    <message>
        <source>Enter an option [Boundary set/Island detection/Object type] &lt;eXit&gt;: </source>
        <translation>Option eingeben [Boundary set/Island detection/Object type] &lt;eXit&gt;: </translation>
    </message>
    <message>
        <source>Enter type of boundary object [Region/Polyline] &lt;%1&gt;: </source>
        <translation>Typ des Umgrenzungsobjekts eingeben [Region/Polyline] &lt;%1&gt;: </translation>
    </message>
    <message>
        <source>Specify internal point or [Advanced options]: </source>
        <translation>Internen Punkt angeben oder [Advanced options]: </translation>
    </message>
    <message>
        <source>
BOUNDARY created 1 region</source>
        <translation>
BOUNDARY hat 1 Region erstellt</translation>
    </message>
    <message>
        <source>
BOUNDARY created 1 polyline</source>
        <translation>
BOUNDARY hat 1 Polylinie erstellt</translation>
    </message>
    <message>
        <source>
BOUNDARY created %1 regions</source>
        <translation>
BOUNDARY hat %1 Regionen erstellt</translation>
    </message>
    <message>
        <source>
BOUNDARY created %1 polylines</source>
        <translation>
BOUNDARY hat %1 Polylinien erstellt</translation>
    </message>
    <message>
        <source>Enter pattern(s) to list &lt;*&gt;: </source>
        <translation>Aufzulistende Muster eingeben &lt;*&gt;: </translation>
    </message>
    <message>
        <source>Specify angle for crosshatch lines &lt;%1&gt;: </source>
        <translation>Winkel der Schraffurlinien angeben &lt;%1&gt;: </translation>
    </message>
    <message>
        <source>Specify spacing between the lines &lt;%1&gt;: </source>
        <translation>Abstand der Linien angeben &lt;%1&gt;: </translation>
    </message>
    <message>
        <source>Double hatch area? [Yes/No] &lt;%1&gt;: </source>
        <translation>Fläche kreuzweise schraffieren? [Yes/No] &lt;%1&gt;: </translation>
    </message>
    <message>
        <source>Specify a scale for the pattern &lt;%1&gt;: </source>
        <translation>Skalierung des Musters angeben &lt;%1&gt;: </translation>
    </message>
    <message>
        <source>Specify an angle for the pattern &lt;%1&gt;: </source>
        <translation>Winkel des Musters angeben &lt;%1&gt;: </translation>
    </message>
    <message>
        <source>Enter new color or [. (for use current)] &lt;.&gt;: </source>
        <translation>Neue Farbe eingeben oder [. (for use current)] &lt;.&gt;: </translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no colour.</source>
        <translation>&quot;%1&quot; ist keine Farbe.</translation>
    </message>
    <message>
        <source>Specify new layer name or [. (for use current)] &lt;.&gt;: </source>
        <translation>Neuen Layernamen angeben oder [. (for use current)] &lt;.&gt;: </translation>
    </message>
    <message>
        <source>Cannot find layer &quot;%1&quot;.</source>
        <translation>Der Layer &quot;%1&quot; wurde nicht gefunden.</translation>
    </message>
    <message>
        <source>Enter new transparency value (0-90) or [. (for use current)] &lt;.&gt;: </source>
        <translation>Neuen Transparenzwert eingeben (0-90) oder [. (for use current)] &lt;.&gt;: </translation>
    </message>
    <message>
        <source>Requires a whole number from 0 to 90.</source>
        <translation>Eine ganze Zahl von 0 bis 90 wird gebraucht.</translation>
    </message>
    <message>
        <source>Enter draw order [do Not assign/send to Back/bring to Front/send beHind boundary/bring in front of bounDary] &lt;send behind boundary&gt;: </source>
        <translation>Zeichenreihenfolge eingeben [do Not assign/send to Back/bring to Front/send beHind boundary/bring in front of bounDary] &lt;hinter die Umgrenzung&gt;: </translation>
    </message>
    <message>
        <source>[Use current origin/Set new origin] &lt;Use current origin&gt;: </source>
        <translation>[Use current origin/Set new origin] &lt;Use current origin&gt;: </translation>
    </message>
    <message>
        <source>Specify point: </source>
        <translation>Punkt angeben: </translation>
    </message>
    <message>
        <source>Store as default origin? [Yes/No] &lt;N&gt;: </source>
        <translation>Als vorgegebenen Ursprung speichern? [Yes/No] &lt;N&gt;: </translation>
    </message>
    <message>
        <source>Unknown hatch pattern &quot;%1&quot;.</source>
        <translation>Unbekanntes Schraffurmuster &quot;%1&quot;.</translation>
    </message>
    <message>
        <source>Enter a pattern name or [?/Solid/User defined] &lt;%1&gt;: </source>
        <translation>Namen eines Musters eingeben oder [?/Solid/User defined] &lt;%1&gt;: </translation>
    </message>
    <message>
        <source>Enter hatching style [Ignore/Outer/Normal] &lt;%1&gt;: </source>
        <translation>Schraffurstil eingeben [Ignore/Outer/Normal] &lt;%1&gt;: </translation>
    </message>
    <message>
        <source>Specify candidate set for boundary [New/Everything] &lt;Everything&gt;: </source>
        <translation>Satz möglicher Umgrenzungen angeben [New/Everything] &lt;Everything&gt;: </translation>
    </message>
    <message>
        <source>Do you want island detection? [Yes/No] &lt;Y&gt;: </source>
        <translation>Sollen Inseln erkannt werden? [Yes/No] &lt;Y&gt;: </translation>
    </message>
    <message>
        <source>Enter an option [Boundary set/Retain boundary/Island detection/Style/Associativity/Gap tolerance/separate Hatches] &lt;eXit&gt;: </source>
        <translation>Option eingeben [Boundary set/Retain boundary/Island detection/Style/Associativity/Gap tolerance/separate Hatches] &lt;eXit&gt;: </translation>
    </message>
    <message>
        <source>Retain derived boundaries? [Yes/No] &lt;N&gt;: </source>
        <translation>Abgeleitete Umgrenzungen beibehalten? [Yes/No] &lt;N&gt;: </translation>
    </message>
    <message>
        <source>Do you want associativity? [Yes/No] &lt;Y&gt;: </source>
        <translation>Assoziativ? [Yes/No] &lt;Y&gt;: </translation>
    </message>
    <message>
        <source>Specify a boundary gap tolerance value &lt;%1&gt;: </source>
        <translation>Abstandstoleranz der Umgrenzung angeben &lt;%1&gt;: </translation>
    </message>
    <message>
        <source>Create separate hatches? [Yes/No] &lt;N&gt;: </source>
        <translation>Getrennte Schraffuren erstellen? [Yes/No] &lt;N&gt;: </translation>
    </message>
    <message>
        <source>Create annotative hatch [Yes/No] &lt;N&gt;: </source>
        <translation>Annotative Schraffur erstellen [Yes/No] &lt;N&gt;: </translation>
    </message>
    <message>
        <source>Annotative hatches are not made.</source>
        <translation>Annotative Schraffuren werden nicht erstellt.</translation>
    </message>
    <message>
        <source>
A boundary needs three points.</source>
        <translation>
Eine Umgrenzung braucht drei Punkte.</translation>
    </message>
    <message>
        <source>
A drawing of this version keeps no draw order.</source>
        <translation>
Eine Zeichnung dieser Version hält keine Zeichenreihenfolge fest.</translation>
    </message>
    <message>
        <source>The hatch spacing is too dense, or the dash size too small.</source>
        <translation>Der Schraffurabstand ist zu dicht oder die Strichlänge zu klein.</translation>
    </message>
    <message>
        <source>
No polyline can follow the boundary: it has pieces of ellipses or splines.</source>
        <translation>
Keine Polylinie kann der Umgrenzung folgen: sie hat Stücke von Ellipsen oder Splines.</translation>
    </message>
    <message>
        <source>Select hatch object: </source>
        <translation>Schraffurobjekt wählen: </translation>
    </message>
    <message>
        <source>Object selected is not a hatch.</source>
        <translation>Das gewählte Objekt ist keine Schraffur.</translation>
    </message>
    <message>
        <source>Enter hatch option [DIsassociate/Style/Properties/Origin/ANnotative/hatch COlor/LAyer/Transparency] &lt;Properties&gt;: </source>
        <translation>Schraffuroption eingeben [DIsassociate/Style/Properties/Origin/ANnotative/hatch COlor/LAyer/Transparency] &lt;Properties&gt;: </translation>
    </message>
    <message>
        <source>Specify first endpoint of text baseline: </source>
        <translation>Ersten Endpunkt der Textbasislinie angeben: </translation>
    </message>
    <message>
        <source>Specify start point of text: </source>
        <translation>Startpunkt des Textes angeben: </translation>
    </message>
    <message>
        <source>Specify center point of text: </source>
        <translation>Mittelpunkt der Textbasislinie angeben: </translation>
    </message>
    <message>
        <source>Specify right endpoint of text baseline: </source>
        <translation>Rechten Endpunkt der Textbasislinie angeben: </translation>
    </message>
    <message>
        <source>Specify middle point of text: </source>
        <translation>Mittelpunkt des Textes angeben: </translation>
    </message>
    <message>
        <source>Specify top-left point of text: </source>
        <translation>Punkt oben links des Textes angeben: </translation>
    </message>
    <message>
        <source>Specify top-center point of text: </source>
        <translation>Punkt oben zentriert des Textes angeben: </translation>
    </message>
    <message>
        <source>Specify top-right point of text: </source>
        <translation>Punkt oben rechts des Textes angeben: </translation>
    </message>
    <message>
        <source>Specify middle-left point of text: </source>
        <translation>Punkt Mitte links des Textes angeben: </translation>
    </message>
    <message>
        <source>Specify middle-center point of text: </source>
        <translation>Punkt Mitte zentriert des Textes angeben: </translation>
    </message>
    <message>
        <source>Specify middle-right point of text: </source>
        <translation>Punkt Mitte rechts des Textes angeben: </translation>
    </message>
    <message>
        <source>Specify bottom-left point of text: </source>
        <translation>Punkt unten links des Textes angeben: </translation>
    </message>
    <message>
        <source>Specify bottom-center point of text: </source>
        <translation>Punkt unten zentriert des Textes angeben: </translation>
    </message>
    <message>
        <source>Specify bottom-right point of text: </source>
        <translation>Punkt unten rechts des Textes angeben: </translation>
    </message>
    <message>
        <source>Enter an option [%1]: </source>
        <translation>Option eingeben [%1]: </translation>
    </message>
    <message>
        <source>Enter next line of annotation text: </source>
        <translation>Nächste Zeile der Anmerkung eingeben: </translation>
    </message>
    <message>
        <source>A text, tolerance or block reference is needed.</source>
        <translation>Ein Text, eine Toleranz oder eine Blockreferenz wird gebraucht.</translation>
    </message>
    <message>
        <source>Enter block name: </source>
        <translation>Blocknamen eingeben: </translation>
    </message>
    <message>
        <source>Cannot find block &quot;%1&quot;.</source>
        <translation>Der Block &quot;%1&quot; wurde nicht gefunden.</translation>
    </message>
    <message>
        <source>Enter scale factor &lt;1&gt;: </source>
        <translation>Skalierfaktor eingeben &lt;1&gt;: </translation>
    </message>
    <message>
        <source>Specify rotation angle &lt;0&gt;: </source>
        <translation>Drehwinkel angeben &lt;0&gt;: </translation>
    </message>
    <message>
        <source>Enter tolerance text: </source>
        <translation>Toleranztext eingeben: </translation>
    </message>
    <message>
        <source>Enter an annotation option [Tolerance/Copy/Block/None/Mtext] &lt;Mtext&gt;: </source>
        <translation>Anmerkungsoption eingeben [Tolerance/Copy/Block/None/Mtext] &lt;Mtext&gt;: </translation>
    </message>
    <message>
        <source>Select an object to copy: </source>
        <translation>Zu kopierendes Objekt wählen: </translation>
    </message>
    <message>
        <source>Enter first line of annotation text: </source>
        <translation>Erste Zeile der Anmerkung eingeben: </translation>
    </message>
    <message>
        <source>Enter leader format option [Spline/STraight/Arrow/None] &lt;Exit&gt;: </source>
        <translation>Formatoption der Führungslinie eingeben [Spline/STraight/Arrow/None] &lt;Exit&gt;: </translation>
    </message>
    <message>
        <source>Specify leader start point: </source>
        <translation>Startpunkt der Führungslinie angeben: </translation>
    </message>
    <message>
        <source>Specify next point: </source>
        <translation>Nächsten Punkt angeben: </translation>
    </message>
    <message>
        <source>Specify next point or [Annotation/Format/Undo] &lt;Annotation&gt;: </source>
        <translation>Nächsten Punkt angeben oder [Annotation/Format/Undo] &lt;Annotation&gt;: </translation>
    </message>
    <message>
        <source>Enter first line of annotation text or &lt;options&gt;: </source>
        <translation>Erste Zeile der Anmerkung eingeben oder &lt;Optionen&gt;: </translation>
    </message>
    <message>
        <source>Specify first leader point: </source>
        <translation>Ersten Punkt der Führungslinie angeben: </translation>
    </message>
    <message>
        <source>Specify text width &lt;0&gt;: </source>
        <translation>Textbreite angeben &lt;0&gt;: </translation>
    </message>
    <message>
        <source>Enter first line of annotation text &lt;Mtext&gt;: </source>
        <translation>Erste Zeile der Anmerkung eingeben &lt;Mtext&gt;: </translation>
    </message>
    <message>
        <source>Leader start: </source>
        <translation>Anfang der Führungslinie: </translation>
    </message>
    <message>
        <source>To point: </source>
        <translation>Nach Punkt: </translation>
    </message>
    <message>
        <source>Enter dimension text &lt;%1&gt;: </source>
        <translation>Maßtext eingeben &lt;%1&gt;: </translation>
    </message>
    <message>
        <source>Specify first extension line origin or &lt;select object&gt;: </source>
        <translation>Ursprung der ersten Hilfslinie angeben oder &lt;Objekt wählen&gt;: </translation>
    </message>
    <message>
        <source>Specify second extension line origin: </source>
        <translation>Ursprung der zweiten Hilfslinie angeben: </translation>
    </message>
    <message>
        <source>Select object to dimension: </source>
        <translation>Zu bemaßendes Objekt wählen: </translation>
    </message>
    <message>
        <source>Object selected is not a line, arc, circle or piece of a polyline.</source>
        <translation>Das gewählte Objekt ist weder Linie noch Bogen, Kreis oder Stück einer Polylinie.</translation>
    </message>
    <message>
        <source>Specify angle of dimension line &lt;0&gt;: </source>
        <translation>Winkel der Maßlinie angeben &lt;0&gt;: </translation>
    </message>
    <message>
        <source>Specify dimension line location or [%1]: </source>
        <translation>Position der Maßlinie angeben oder [%1]: </translation>
    </message>
    <message>
        <source>Specify dimension line location or [Mtext/Text/Angle]: </source>
        <translation>Position der Maßlinie angeben oder [Mtext/Text/Angle]: </translation>
    </message>
    <message>
        <source>Specify feature location: </source>
        <translation>Position des Merkmals angeben: </translation>
    </message>
    <message>
        <source>Specify leader endpoint or [Xdatum/Ydatum/Mtext/Text/Angle]: </source>
        <translation>Endpunkt der Führungslinie angeben oder [Xdatum/Ydatum/Mtext/Text/Angle]: </translation>
    </message>
    <message>
        <source>The object is not parallel to the current UCS.</source>
        <translation>Das Objekt ist nicht parallel zum aktuellen BKS.</translation>
    </message>
    <message>
        <source>Select a leader type [Straight/sPline/None]</source>
        <translation>Führungslinientyp wählen [Straight/sPline/None]</translation>
    </message>
    <message>
        <source>Use landing [Yes/No]</source>
        <translation>Verlängerung verwenden [Yes/No]</translation>
    </message>
    <message>
        <source>Specify fixed landing distance</source>
        <translation>Feste Verlängerungslänge angeben</translation>
    </message>
    <message>
        <source>Select a content type [Block/Mtext/None]</source>
        <translation>Inhaltstyp wählen [Block/Mtext/None]</translation>
    </message>
    <message>
        <source>Enter the maximum points for leader or [None] &lt;%1&gt;: </source>
        <translation>Höchstzahl der Führungslinienpunkte eingeben oder [None] &lt;%1&gt;: </translation>
    </message>
    <message>
        <source>A leader has two points at least.</source>
        <translation>Eine Führungslinie hat mindestens zwei Punkte.</translation>
    </message>
    <message>
        <source>Enter an option [Leader type/leader lAnding/Content type/Maxpoints/First angle/Second angle/eXit options] &lt;eXit options&gt;: </source>
        <translation>Option eingeben [Leader type/leader lAnding/Content type/Maxpoints/First angle/Second angle/eXit options] &lt;eXit options&gt;: </translation>
    </message>
    <message>
        <source>Enter first angle constraint &lt;%1&gt;: </source>
        <translation>Erste Winkelbeschränkung eingeben &lt;%1&gt;: </translation>
    </message>
    <message>
        <source>Enter second angle constraint &lt;%1&gt;: </source>
        <translation>Zweite Winkelbeschränkung eingeben &lt;%1&gt;: </translation>
    </message>
    <message>
        <source>Specify leader landing location: </source>
        <translation>Position der Führungslinienverlängerung angeben: </translation>
    </message>
    <message>
        <source>Enter text: </source>
        <translation>Text eingeben: </translation>
    </message>
    <message>
        <source>Specify first corner of text: </source>
        <translation>Erste Ecke des Textes angeben: </translation>
    </message>
    <message>
        <source>Specify insertion point for block: </source>
        <translation>Einfügepunkt des Blocks angeben: </translation>
    </message>
    <message>
        <source>Specify opposite corner: </source>
        <translation>Gegenüberliegende Ecke angeben: </translation>
    </message>
    <message>
        <source>Specify leader arrowhead location or [leader Landing first/Content first/Options] &lt;Options&gt;: </source>
        <translation>Position der Pfeilspitze angeben oder [leader Landing first/Content first/Options] &lt;Options&gt;: </translation>
    </message>
    <message>
        <source>A drawing of this version has no multileaders: they come with R2007.</source>
        <translation>Eine Zeichnung dieser Version hat keine Multi-Führungslinien: die gibt es ab R2007.</translation>
    </message>
    <message>
        <source>Specify leader arrowhead location: </source>
        <translation>Position der Pfeilspitze angeben: </translation>
    </message>
    <message>
        <source>Object selected is not a multileader.</source>
        <translation>Das gewählte Objekt ist keine Multi-Führungslinie.</translation>
    </message>
    <message>
        <source>Select a multileader: </source>
        <translation>Multi-Führungslinie wählen: </translation>
    </message>
    <message>
        <source>Specify leaders to remove or [Add leaders]: </source>
        <translation>Zu entfernende Führungslinien angeben oder [Add leaders]: </translation>
    </message>
    <message>
        <source>Specify leader arrowhead location or [Remove leaders]: </source>
        <translation>Position der Pfeilspitze angeben oder [Remove leaders]: </translation>
    </message>
    <message>
        <source>
The multileader has no leader there.</source>
        <translation>
Dort hat die Multi-Führungslinie keine Führungslinie.</translation>
    </message>
    <message>
        <source>Enter an option [Distribute/specify Spacing/Use current spacing] &lt;Use current spacing&gt;: </source>
        <translation>Option eingeben [Distribute/specify Spacing/Use current spacing] &lt;Use current spacing&gt;: </translation>
    </message>
    <message>
        <source>Specify spacing</source>
        <translation>Abstand angeben</translation>
    </message>
    <message>
        <source>Select multileaders: </source>
        <translation>Multi-Führungslinien wählen: </translation>
    </message>
    <message>
        <source>No multileaders were selected.</source>
        <translation>Es wurden keine Multi-Führungslinien gewählt.</translation>
    </message>
    <message>
        <source>Specify first point or [Options]: </source>
        <translation>Ersten Punkt angeben oder [Options]: </translation>
    </message>
    <message>
        <source>Specify second point: </source>
        <translation>Zweiten Punkt angeben: </translation>
    </message>
    <message>
        <source>Select multileader to align to or [Options]: </source>
        <translation>Multi-Führungslinie zum Ausrichten wählen oder [Options]: </translation>
    </message>
    <message>
        <source>Specify direction: </source>
        <translation>Richtung angeben: </translation>
    </message>
    <message>
        <source>Specify angle of dimension text: </source>
        <translation>Winkel des Maßtextes angeben: </translation>
    </message>
    <message>
        <source>
Dimension text = </source>
        <translation>
Maßtext = </translation>
    </message>
    <message>
        <source>Enter justification [%1]</source>
        <translation>Ausrichtung eingeben [%1]</translation>
    </message>
    <message>
        <source>Enter line spacing type [At least/Exactly]</source>
        <translation>Zeilenabstandstyp eingeben [At least/Exactly]</translation>
    </message>
    <message>
        <source>Enter line spacing factor or distance &lt;%1&gt;: </source>
        <translation>Zeilenabstandsfaktor oder Abstand eingeben &lt;%1&gt;: </translation>
    </message>
    <message>
        <source>Lines are 0.25x to 4x of the usual distance apart.</source>
        <translation>Zeilen haben das 0.25x- bis 4x-Fache des üblichen Abstands.</translation>
    </message>
    <message>
        <source>Specify total width</source>
        <translation>Gesamtbreite angeben</translation>
    </message>
    <message>
        <source>Specify number of columns &lt;2&gt;: </source>
        <translation>Anzahl der Spalten angeben &lt;2&gt;: </translation>
    </message>
    <message>
        <source>Specify gutter width</source>
        <translation>Spaltenabstand angeben</translation>
    </message>
    <message>
        <source>So many columns do not fit into this width.</source>
        <translation>So viele Spalten passen nicht in diese Breite.</translation>
    </message>
    <message>
        <source>Specify column width</source>
        <translation>Spaltenbreite angeben</translation>
    </message>
    <message>
        <source>Enter column type [Dynamic/Static/No columns]</source>
        <translation>Spaltentyp eingeben [Dynamic/Static/No columns]</translation>
    </message>
    <message>
        <source>A drawing of this version has no columns in texts: they come with R2007.</source>
        <translation>Eine Zeichnung dieser Version hat keine Spalten in Texten: die gibt es ab R2007.</translation>
    </message>
    <message>
        <source>Specify column height</source>
        <translation>Spaltenhöhe angeben</translation>
    </message>
    <message>
        <source>Specify height</source>
        <translation>Höhe angeben</translation>
    </message>
    <message>
        <source>Specify rotation angle &lt;%1&gt;: </source>
        <translation>Drehwinkel angeben &lt;%1&gt;: </translation>
    </message>
    <message>
        <source>Specify width</source>
        <translation>Breite angeben</translation>
    </message>
    <message>
        <source>Specify first corner: </source>
        <translation>Erste Ecke angeben: </translation>
    </message>
    <message>
        <source>Specify opposite corner or [Height/Justify/Line spacing/Rotation/Style/Width/Columns]: </source>
        <translation>Gegenüberliegende Ecke angeben oder [Height/Justify/Line spacing/Rotation/Style/Width/Columns]: </translation>
    </message>
    <message>
        <source>
Current text style:  &quot;%1&quot;  Text height:  %2</source>
        <translation>
Aktueller Textstil:  &quot;%1&quot;  Texthöhe:  %2</translation>
    </message>
    <message>
        <source>MText: </source>
        <translation>MText: </translation>
    </message>
    <message>
        <source>No texts were selected.</source>
        <translation>Es wurden keine Texte gewählt.</translation>
    </message>
    <message>
        <source>
%1 texts became one paragraph.</source>
        <translation>
%1 Texte wurden zu einem Absatztext.</translation>
    </message>
    <message>
        <source>Object selected is not a circle or arc.</source>
        <translation>Das gewählte Objekt ist weder Kreis noch Bogen.</translation>
    </message>
    <message>
        <source>Specify dimension line location or leader length for text: </source>
        <translation>Position der Maßlinie oder Länge der Führungslinie für den Text angeben: </translation>
    </message>
    <message>
        <source>A drawing of this version has no jogged dimensions of radii: they come with R2004.</source>
        <translation>Eine Zeichnung dieser Version hat keine verkürzten Radiusbemaßungen: die gibt es ab R2004.</translation>
    </message>
    <message>
        <source>Select arc or circle: </source>
        <translation>Bogen oder Kreis wählen: </translation>
    </message>
    <message>
        <source>Specify center location override: </source>
        <translation>Ersatz für den Mittelpunkt angeben: </translation>
    </message>
    <message>
        <source>Specify jog location: </source>
        <translation>Position der Verkürzung angeben: </translation>
    </message>
    <message>
        <source>DIMCEN is 0: there is no centre mark.</source>
        <translation>DIMCEN ist 0: es gibt keine Zentrumsmarke.</translation>
    </message>
    <message>
        <source>Enter name of text style</source>
        <translation>Namen des Textstils eingeben</translation>
    </message>
    <message>
        <source>Invalid style name.</source>
        <translation>Ungültiger Stilname.</translation>
    </message>
    <message>
        <source>Specify full font name or font filename (TTF or SHX) &lt;%1&gt;: </source>
        <translation>Vollen Schriftnamen oder Schriftdatei (TTF oder SHX) angeben &lt;%1&gt;: </translation>
    </message>
    <message>
        <source>Specify height of text</source>
        <translation>Texthöhe angeben</translation>
    </message>
    <message>
        <source>Specify width factor</source>
        <translation>Breitenfaktor angeben</translation>
    </message>
    <message>
        <source>Specify obliquing angle &lt;%1&gt;: </source>
        <translation>Neigungswinkel angeben &lt;%1&gt;: </translation>
    </message>
    <message>
        <source>The obliquing angle is from -85 to 85 degrees.</source>
        <translation>Der Neigungswinkel liegt zwischen -85 und 85 Grad.</translation>
    </message>
    <message>
        <source>Display text backwards?</source>
        <translation>Text rückwärts anzeigen?</translation>
    </message>
    <message>
        <source>Display text upside-down?</source>
        <translation>Text auf dem Kopf anzeigen?</translation>
    </message>
    <message>
        <source>
Existing style.</source>
        <translation>
Vorhandener Stil.</translation>
    </message>
    <message>
        <source>
New style.</source>
        <translation>
Neuer Stil.</translation>
    </message>
    <message>
        <source>
&quot;%1&quot; is now the current text style.</source>
        <translation>
&quot;%1&quot; ist jetzt der aktuelle Textstil.</translation>
    </message>
    <message>
        <source>Specify start point of text or [Justify/Style]: </source>
        <translation>Startpunkt des Textes angeben oder [Justify/Style]: </translation>
    </message>
    <message>
        <source>There is no text to go on below.</source>
        <translation>Es gibt keinen Text, unter dem fortgefahren werden könnte.</translation>
    </message>
    <message>
        <source>Specify second endpoint of text baseline: </source>
        <translation>Zweiten Endpunkt der Textbasislinie angeben: </translation>
    </message>
    <message>
        <source>Specify height &lt;%1&gt;: </source>
        <translation>Höhe angeben &lt;%1&gt;: </translation>
    </message>
    <message>
        <source>Specify rotation angle of text &lt;0&gt;: </source>
        <translation>Drehwinkel des Textes angeben &lt;0&gt;: </translation>
    </message>
    <message>
        <source>The two endpoints are one point.</source>
        <translation>Die beiden Endpunkte sind derselbe Punkt.</translation>
    </message>
    <message>
        <source>
Style name: &quot;%1&quot;  Font files: %2  Height: %3  Width factor: %4</source>
        <translation>
Stilname: &quot;%1&quot;  Schriftdateien: %2  Höhe: %3  Breitenfaktor: %4</translation>
    </message>
    <message>
        <source>%1 or [?] &lt;%2&gt;: </source>
        <translation>%1 oder [?] &lt;%2&gt;: </translation>
    </message>
    <message>
        <source>Enter text style(s) to list &lt;*&gt;: </source>
        <translation>Aufzulistende Textstile eingeben &lt;*&gt;: </translation>
    </message>
    <message>
        <source>Enter style name</source>
        <translation>Stilnamen eingeben</translation>
    </message>
    <message>
        <source>Cannot find text style &quot;%1&quot;.</source>
        <translation>Der Textstil &quot;%1&quot; wurde nicht gefunden.</translation>
    </message>
    <message>
        <source>
Cannot find file &quot;%1&quot; of reference &quot;%2&quot;.</source>
        <translation>
Die Datei &quot;%1&quot; der Referenz &quot;%2&quot; wurde nicht gefunden.</translation>
    </message>
    <message>
        <source>
Warning: &quot;%1&quot; shows this drawing, which is left out there.</source>
        <translation>
Warnung: &quot;%1&quot; zeigt diese Zeichnung, die dort weggelassen wird.</translation>
    </message>
    <message>
        <source>
&quot;%1&quot; loaded.</source>
        <translation>
&quot;%1&quot; geladen.</translation>
    </message>
    <message>
        <source>Cannot find file &quot;%1&quot; of reference &quot;%2&quot;.</source>
        <translation>Die Datei &quot;%1&quot; der Referenz &quot;%2&quot; wurde nicht gefunden.</translation>
    </message>
    <message>
        <source>
&quot;%1&quot; is a block of this drawing now.</source>
        <translation>
&quot;%1&quot; ist jetzt ein Block dieser Zeichnung.</translation>
    </message>
    <message>
        <source> %1 of its records could not be taken over.</source>
        <translation> %1 Datensätze konnten nicht übernommen werden.</translation>
    </message>
    <message>
        <source>Enter an option [?/Name/Select] &lt;Select&gt;: </source>
        <translation>Option eingeben [?/Name/Select] &lt;Select&gt;: </translation>
    </message>
    <message>
        <source>
Blocks with attributes:
  </source>
        <translation>
Blöcke mit Attributen:
  </translation>
    </message>
    <message>
        <source>Enter name of block to synchronize or [?]: </source>
        <translation>Namen des zu synchronisierenden Blocks eingeben oder [?]: </translation>
    </message>
    <message>
        <source>Select a block: </source>
        <translation>Block wählen: </translation>
    </message>
    <message>
        <source>That is no block reference.</source>
        <translation>Das ist keine Blockreferenz.</translation>
    </message>
    <message>
        <source>ATTSYNC block %1? [Yes/No] &lt;Yes&gt;: </source>
        <translation>Block %1 mit ATTSYNC abgleichen? [Yes/No] &lt;Yes&gt;: </translation>
    </message>
    <message>
        <source>Block &quot;%1&quot; not found.</source>
        <translation>Der Block &quot;%1&quot; wurde nicht gefunden.</translation>
    </message>
    <message>
        <source>
%1 block references were synchronized.</source>
        <translation>
%1 Blockreferenzen wurden synchronisiert.</translation>
    </message>
    <message>
        <source>Enter block name specification &lt;*&gt;: </source>
        <translation>Angabe der Blocknamen eingeben &lt;*&gt;: </translation>
    </message>
    <message>
        <source>Enter attribute tag specification &lt;*&gt;: </source>
        <translation>Angabe der Attributbezeichnungen eingeben &lt;*&gt;: </translation>
    </message>
    <message>
        <source>Enter attribute value specification &lt;*&gt;: </source>
        <translation>Angabe der Attributwerte eingeben &lt;*&gt;: </translation>
    </message>
    <message>
        <source>
%1 attributes selected.</source>
        <translation>
%1 Attribute gewählt.</translation>
    </message>
    <message>
        <source>Enter string to change: </source>
        <translation>Zu ändernde Zeichenfolge eingeben: </translation>
    </message>
    <message>
        <source>Enter new string: </source>
        <translation>Neue Zeichenfolge eingeben: </translation>
    </message>
    <message>
        <source>Enter type of value modification [Change/Replace] &lt;R&gt;: </source>
        <translation>Art der Wertänderung eingeben [Change/Replace] &lt;R&gt;: </translation>
    </message>
    <message>
        <source>Enter new attribute value: </source>
        <translation>Neuen Attributwert eingeben: </translation>
    </message>
    <message>
        <source>Specify new height &lt;%1&gt;: </source>
        <translation>Neue Höhe angeben &lt;%1&gt;: </translation>
    </message>
    <message>
        <source>Enter new layer name: </source>
        <translation>Neuen Layernamen eingeben: </translation>
    </message>
    <message>
        <source>Enter an option [Value/Height/Layer/Next] &lt;N&gt;: </source>
        <translation>Option eingeben [Value/Height/Layer/Next] &lt;N&gt;: </translation>
    </message>
    <message>
        <source>Edit attributes one at a time? [Yes/No] &lt;Y&gt;: </source>
        <translation>Attribute einzeln bearbeiten? [Yes/No] &lt;Y&gt;: </translation>
    </message>
    <message>
        <source>Edit only attributes visible on screen? [Yes/No] &lt;Y&gt;: </source>
        <translation>Nur am Bildschirm sichtbare Attribute bearbeiten? [Yes/No] &lt;Y&gt;: </translation>
    </message>
    <message>
        <source>%1, . for none &lt;%2&gt;: </source>
        <translation>%1, . für keinen &lt;%2&gt;: </translation>
    </message>
    <message>
        <source>The block has no attributes.</source>
        <translation>Der Block hat keine Attribute.</translation>
    </message>
    <message>
        <source>Enter number or tag of attribute or [?] &lt;exit&gt;: </source>
        <translation>Nummer oder Bezeichnung des Attributs eingeben oder [?] &lt;Ende&gt;: </translation>
    </message>
    <message>
        <source>The value of %1 is constant.</source>
        <translation>Der Wert von %1 ist konstant.</translation>
    </message>
    <message>
        <source>There is no attribute &quot;%1&quot;.</source>
        <translation>Es gibt kein Attribut &quot;%1&quot;.</translation>
    </message>
    <message>
        <source>
Defined blocks.</source>
        <translation>
Definierte Blöcke.</translation>
    </message>
    <message>
        <source>
%1 user blocks.</source>
        <translation>
%1 Benutzerblöcke.</translation>
    </message>
    <message>
        <source>Enter block name or [?]: </source>
        <translation>Blocknamen eingeben oder [?]: </translation>
    </message>
    <message>
        <source>Enter block(s) to list &lt;*&gt;: </source>
        <translation>Aufzulistende Blöcke eingeben &lt;*&gt;: </translation>
    </message>
    <message>
        <source>&quot;%1&quot; cannot be the name of a block.</source>
        <translation>&quot;%1&quot; kann kein Blockname sein.</translation>
    </message>
    <message>
        <source>Block &quot;%1&quot; cannot be redefined.</source>
        <translation>Der Block &quot;%1&quot; kann nicht neu definiert werden.</translation>
    </message>
    <message>
        <source>Block &quot;%1&quot; already exists. Redefine it? [Yes/No] &lt;N&gt;: </source>
        <translation>Der Block &quot;%1&quot; ist bereits vorhanden. Neu definieren? [Yes/No] &lt;N&gt;: </translation>
    </message>
    <message>
        <source>Block &quot;%1&quot; would show itself.</source>
        <translation>Der Block &quot;%1&quot; würde sich selbst zeigen.</translation>
    </message>
    <message>
        <source>Specify insertion base point or [Annotative]: </source>
        <translation>Einfügebasispunkt angeben oder [Annotative]: </translation>
    </message>
    <message>
        <source>
Blocks are made without annotation scales.</source>
        <translation>
Blöcke werden ohne Beschriftungsmaßstäbe erstellt.</translation>
    </message>
    <message>
        <source>Create annotative block? [Yes/No] &lt;N&gt;: </source>
        <translation>Annotativen Block erstellen? [Yes/No] &lt;N&gt;: </translation>
    </message>
    <message>
        <source>Enter base point &lt;%1&gt;: </source>
        <translation>Basispunkt eingeben &lt;%1&gt;: </translation>
    </message>
    <message>
        <source>
%1 field(s) found
%1 field(s) updated</source>
        <translation>
%1 Feld(er) gefunden
%1 Feld(er) aktualisiert</translation>
    </message>
    <message>
        <source>Specify first point: </source>
        <translation>Ersten Punkt angeben: </translation>
    </message>
    <message>
        <source>Specify next point or [Undo]: </source>
        <translation>Nächsten Punkt angeben oder [Undo]: </translation>
    </message>
    <message>
        <source>Select polyline: </source>
        <translation>Polylinie wählen: </translation>
    </message>
    <message>
        <source>Specify clipping boundary or select invert option: [Select polyline/Polygonal/Rectangular/Invert clip] &lt;Rectangular&gt;: </source>
        <translation>Zuschneideumgrenzung angeben oder Umkehroption wählen: [Select polyline/Polygonal/Rectangular/Invert clip] &lt;Rectangular&gt;: </translation>
    </message>
    <message>
        <source>
Objects inside boundary will be hidden.</source>
        <translation>
Objekte innerhalb der Umgrenzung werden verborgen.</translation>
    </message>
    <message>
        <source>
Objects outside boundary will be hidden.</source>
        <translation>
Objekte außerhalb der Umgrenzung werden verborgen.</translation>
    </message>
    <message>
        <source>That encloses nothing.</source>
        <translation>Das umschließt nichts.</translation>
    </message>
    <message>
        <source>
%1 could not be clipped.</source>
        <translation>
%1 konnten nicht zugeschnitten werden.</translation>
    </message>
    <message>
        <source>Delete old boundary(s)? [Yes/No] &lt;Yes&gt;: </source>
        <translation>Alte Umgrenzung(en) löschen? [Yes/No] &lt;Yes&gt;: </translation>
    </message>
    <message>
        <source>No block references were chosen.</source>
        <translation>Es wurden keine Blockreferenzen gewählt.</translation>
    </message>
    <message>
        <source>Enter clipping option [ON/OFF/Delete/generate Polyline/New boundary] &lt;New&gt;: </source>
        <translation>Zuschneideoption eingeben [ON/OFF/Delete/generate Polyline/New boundary] &lt;New&gt;: </translation>
    </message>
    <message>
        <source>Nothing of that can be copied.</source>
        <translation>Nichts davon kann kopiert werden.</translation>
    </message>
    <message>
        <source>Specify base point: </source>
        <translation>Basispunkt angeben: </translation>
    </message>
    <message>
        <source>The clipboard is empty.</source>
        <translation>Die Zwischenablage ist leer.</translation>
    </message>
    <message>
        <source>
%1 could not be pasted.</source>
        <translation>
%1 konnten nicht eingefügt werden.</translation>
    </message>
    <message>
        <source>Specify insertion point: </source>
        <translation>Einfügepunkt angeben: </translation>
    </message>
    <message>
        <source>
Defined groups.                            Selectable</source>
        <translation>
Definierte Gruppen.                         Wählbar</translation>
    </message>
    <message>
        <source>Enter group name(s) to list &lt;*&gt;: </source>
        <translation>Aufzulistende Gruppennamen eingeben &lt;*&gt;: </translation>
    </message>
    <message>
        <source>Enter a group name or [?]: </source>
        <translation>Gruppennamen eingeben oder [?]: </translation>
    </message>
    <message>
        <source>Group &quot;%1&quot; does not exist.</source>
        <translation>Die Gruppe &quot;%1&quot; ist nicht vorhanden.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; cannot be the name of a group.</source>
        <translation>&quot;%1&quot; kann kein Gruppenname sein.</translation>
    </message>
    <message>
        <source>Group &quot;%1&quot; already exists.</source>
        <translation>Die Gruppe &quot;%1&quot; ist bereits vorhanden.</translation>
    </message>
    <message>
        <source>A group needs an entity.</source>
        <translation>Eine Gruppe braucht ein Objekt.</translation>
    </message>
    <message>
        <source>A drawing of this version has no groups.</source>
        <translation>Eine Zeichnung dieser Version hat keine Gruppen.</translation>
    </message>
    <message>
        <source>Enter a group description: </source>
        <translation>Gruppenbeschreibung eingeben: </translation>
    </message>
    <message>
        <source>Select objects: </source>
        <translation>Objekte wählen: </translation>
    </message>
    <message>
        <source>Enter a new name for group or [?]: </source>
        <translation>Neuen Gruppennamen eingeben oder [?]: </translation>
    </message>
    <message>
        <source>Enter position number of the object to reorder %1 or [Reverse]: </source>
        <translation>Positionsnummer des umzuordnenden Objekts eingeben %1 oder [Reverse]: </translation>
    </message>
    <message>
        <source>Enter new position number for the object %1: </source>
        <translation>Neue Positionsnummer des Objekts eingeben %1: </translation>
    </message>
    <message>
        <source>Enter number of objects to reorder &lt;1&gt;: </source>
        <translation>Anzahl der umzuordnenden Objekte eingeben &lt;1&gt;: </translation>
    </message>
    <message>
        <source>Requires a number from 0 to %1.</source>
        <translation>Eine Zahl von 0 bis %1 wird gebraucht.</translation>
    </message>
    <message>
        <source>Is group selectable? [Yes/No] &lt;Y&gt;: </source>
        <translation>Soll die Gruppe wählbar sein? [Yes/No] &lt;Y&gt;: </translation>
    </message>
    <message>
        <source>Enter a group option [?/Order/Add/Remove/Explode/REName/Selectable/Create] &lt;Create&gt;: </source>
        <translation>Gruppenoption eingeben [?/Order/Add/Remove/Explode/REName/Selectable/Create] &lt;Create&gt;: </translation>
    </message>
    <message>
        <source>
%1 of its entities became ones that a drawing of this version has.</source>
        <translation>
%1 der Objekte wurden durch solche ersetzt, die eine Zeichnung dieser Version hat.</translation>
    </message>
    <message>
        <source>
%1 of its entities could not be taken over.</source>
        <translation>
%1 der Objekte konnten nicht übernommen werden.</translation>
    </message>
    <message>
        <source>Cannot find block or file &quot;%1&quot;.</source>
        <translation>Weder Block noch Datei &quot;%1&quot; wurde gefunden.</translation>
    </message>
    <message>
        <source>Enter block name or [?] &lt;%1&gt;: </source>
        <translation>Blocknamen eingeben oder [?] &lt;%1&gt;: </translation>
    </message>
    <message>
        <source>Specify scale factor for XYZ axes &lt;1&gt;: </source>
        <translation>Skalierfaktor für die Achsen X, Y, Z angeben &lt;1&gt;: </translation>
    </message>
    <message>
        <source>Specify %1 scale factor &lt;1&gt;: </source>
        <translation>Skalierfaktor %1 angeben &lt;1&gt;: </translation>
    </message>
    <message>
        <source>Enter %1 scale factor &lt;use X scale factor&gt;: </source>
        <translation>Skalierfaktor %1 eingeben &lt;Faktor X verwenden&gt;: </translation>
    </message>
    <message>
        <source>Enter X scale factor or [Corner/XYZ] &lt;1&gt;: </source>
        <translation>Skalierfaktor X eingeben oder [Corner/XYZ] &lt;1&gt;: </translation>
    </message>
    <message>
        <source>Value must be nonzero.</source>
        <translation>Der Wert darf nicht null sein.</translation>
    </message>
    <message>
        <source>Specify X scale factor &lt;1&gt;: </source>
        <translation>Skalierfaktor X angeben &lt;1&gt;: </translation>
    </message>
    <message>
        <source>Specify insertion point or [Scale/X/Y/Z/Rotate]: </source>
        <translation>Einfügepunkt angeben oder [Scale/X/Y/Z/Rotate]: </translation>
    </message>
    <message>
        <source>Specify scale factor &lt;1&gt;: </source>
        <translation>Skalierfaktor angeben &lt;1&gt;: </translation>
    </message>
    <message>
        <source>Cannot find file &quot;%1&quot;.</source>
        <translation>Die Datei &quot;%1&quot; wurde nicht gefunden.</translation>
    </message>
    <message>
        <source>The drawing cannot refer to itself.</source>
        <translation>Die Zeichnung kann nicht auf sich selbst verweisen.</translation>
    </message>
    <message>
        <source>The name &quot;%1&quot; is a block&apos;s already.</source>
        <translation>Der Name &quot;%1&quot; gehört schon einem Block.</translation>
    </message>
    <message>
        <source>The name &quot;%1&quot; cannot be used.</source>
        <translation>Der Name &quot;%1&quot; kann nicht verwendet werden.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no drawing.</source>
        <translation>&quot;%1&quot; ist keine Zeichnung.</translation>
    </message>
    <message>
        <source>
Xref &quot;%1&quot; has already been defined.
Using existing definition.</source>
        <translation>
Die externe Referenz &quot;%1&quot; ist bereits definiert.
Die vorhandene Definition wird verwendet.</translation>
    </message>
    <message>
        <source>
%1 Xref &quot;%2&quot;: %3</source>
        <translation>
%1: externe Referenz &quot;%2&quot;: %3</translation>
    </message>
    <message>
        <source>
No matching references found.</source>
        <translation>
Keine passenden Referenzen gefunden.</translation>
    </message>
    <message>
        <source>
&quot;%1&quot; was not detached: block &quot;%2&quot; holds it.</source>
        <translation>
&quot;%1&quot; wurde nicht gelöst: Block &quot;%2&quot; enthält die Referenz.</translation>
    </message>
    <message>
        <source>
&quot;%1&quot; was not detached.</source>
        <translation>
&quot;%1&quot; wurde nicht gelöst.</translation>
    </message>
    <message>
        <source>
&quot;%1&quot; detached.</source>
        <translation>
&quot;%1&quot; gelöst.</translation>
    </message>
    <message>
        <source>
&quot;%1&quot; unloaded.</source>
        <translation>
&quot;%1&quot; entladen.</translation>
    </message>
    <message>
        <source>Enter xref name(s) to list &lt;*&gt;: </source>
        <translation>Aufzulistende externe Referenzen eingeben &lt;*&gt;: </translation>
    </message>
    <message>
        <source>Enter xref name(s) to bind: </source>
        <translation>Zu bindende externe Referenzen eingeben: </translation>
    </message>
    <message>
        <source>Enter xref name(s) to detach: </source>
        <translation>Zu lösende externe Referenzen eingeben: </translation>
    </message>
    <message>
        <source>Enter xref name(s) to unload: </source>
        <translation>Zu entladende externe Referenzen eingeben: </translation>
    </message>
    <message>
        <source>Enter xref name(s) to reload: </source>
        <translation>Neu zu ladende externe Referenzen eingeben: </translation>
    </message>
    <message>
        <source>Enter xref name(s) to edit path: </source>
        <translation>Externe Referenzen eingeben, deren Pfad geändert wird: </translation>
    </message>
    <message>
        <source>
Xref name: %1
Old path: %2</source>
        <translation>
Name der externen Referenz: %1
Alter Pfad: %2</translation>
    </message>
    <message>
        <source>Enter new path: </source>
        <translation>Neuen Pfad eingeben: </translation>
    </message>
    <message>
        <source>Enter name of file to attach: </source>
        <translation>Namen der zuzuordnenden Datei eingeben: </translation>
    </message>
    <message>
        <source>Enter an option [?/Bind/Detach/Path/Unload/Reload/Overlay/Attach] &lt;Attach&gt;: </source>
        <translation>Option eingeben [?/Bind/Detach/Path/Unload/Reload/Overlay/Attach] &lt;Attach&gt;: </translation>
    </message>
    <message>
        <source>
Nothing to write.</source>
        <translation>
Nichts zu schreiben.</translation>
    </message>
    <message>
        <source>
%1 was written as DXF text.</source>
        <translation>
%1 wurde als DXF-Text geschrieben.</translation>
    </message>
    <message>
        <source>
%1 was written.</source>
        <translation>
%1 wurde geschrieben.</translation>
    </message>
    <message>
        <source>Enter name of output file: </source>
        <translation>Namen der Ausgabedatei eingeben: </translation>
    </message>
    <message>
        <source>Enter name of existing block, [= (same name)/* (whole drawing)] &lt;choose entities&gt;: </source>
        <translation>Namen eines vorhandenen Blocks eingeben, [= (same name)/* (whole drawing)] &lt;Objekte wählen&gt;: </translation>
    </message>
    <message>
        <source>
Block &quot;%1&quot; not found.</source>
        <translation>
Der Block &quot;%1&quot; wurde nicht gefunden.</translation>
    </message>
    <message>
        <source>Specify insertion base point: </source>
        <translation>Einfügebasispunkt angeben: </translation>
    </message>
    <message>
        <source>
1 was on a locked layer.</source>
        <translation>
1 Objekt war auf einem gesperrten Layer.</translation>
    </message>
    <message>
        <source>
%1 were on a locked layer.</source>
        <translation>
%1 Objekte waren auf einem gesperrten Layer.</translation>
    </message>
    <message>
        <source>The numbers are too large.</source>
        <translation>Die Zahlen sind zu groß.</translation>
    </message>
    <message>
        <source>
%1 could not be changed.</source>
        <translation>
%1 konnten nicht geändert werden.</translation>
    </message>
    <message>
        <source>
%1 could not be mirrored.</source>
        <translation>
%1 konnten nicht gespiegelt werden.</translation>
    </message>
    <message>
        <source>
%1 could not be copied.</source>
        <translation>
%1 konnten nicht kopiert werden.</translation>
    </message>
    <message>
        <source>
Linetype &quot;%1&quot; loaded.</source>
        <translation>
Linientyp &quot;%1&quot; geladen.</translation>
    </message>
    <message>
        <source>Specify displacement &lt;%1&gt;: </source>
        <translation>Verschiebung angeben &lt;%1&gt;: </translation>
    </message>
    <message>
        <source>Specify base point or [Displacement] &lt;Displacement&gt;: </source>
        <translation>Basispunkt angeben oder [Displacement] &lt;Displacement&gt;: </translation>
    </message>
    <message>
        <source>Specify second point or &lt;use first point as displacement&gt;: </source>
        <translation>Zweiten Punkt angeben oder &lt;ersten Punkt als Verschiebung verwenden&gt;: </translation>
    </message>
    <message>
        <source>Cannot find %1 &quot;%2&quot;.</source>
        <translation>%1 &quot;%2&quot; wurde nicht gefunden.</translation>
    </message>
    <message>
        <source>%1 already exists. Replace it? [Yes/No] &lt;No&gt;: </source>
        <translation>%1 ist bereits vorhanden. Ersetzen? [Yes/No] &lt;No&gt;: </translation>
    </message>
    <message>
        <source>Specify the reference angle &lt;%1&gt;: </source>
        <translation>Bezugswinkel angeben &lt;%1&gt;: </translation>
    </message>
    <message>
        <source>Specify the new angle or [Points] &lt;%1&gt;: </source>
        <translation>Neuen Winkel angeben oder [Points] &lt;%1&gt;: </translation>
    </message>
    <message>
        <source>Specify reference length &lt;%1&gt;: </source>
        <translation>Bezugslänge angeben &lt;%1&gt;: </translation>
    </message>
    <message>
        <source>Specify new length or [Points] &lt;%1&gt;: </source>
        <translation>Neue Länge angeben oder [Points] &lt;%1&gt;: </translation>
    </message>
    <message>
        <source>(ADD mode) </source>
        <translation>(Modus ADDIEREN) </translation>
    </message>
    <message>
        <source>(SUBTRACT mode) </source>
        <translation>(Modus SUBTRAHIEREN) </translation>
    </message>
    <message>
        <source>
Area = %1, %2 = %3</source>
        <translation>
Fläche = %1, %2 = %3</translation>
    </message>
    <message>
        <source>
Total area = %1</source>
        <translation>
Gesamtfläche = %1</translation>
    </message>
    <message>
        <source>
Selected object does not have an area.</source>
        <translation>
Das gewählte Objekt hat keine Fläche.</translation>
    </message>
    <message>
        <source>%1Specify next point or [Undo]: </source>
        <translation>%1Nächsten Punkt angeben oder [Undo]: </translation>
    </message>
    <message>
        <source>%1Specify next point or [Undo/Total] &lt;Total&gt;: </source>
        <translation>%1Nächsten Punkt angeben oder [Undo/Total] &lt;Total&gt;: </translation>
    </message>
    <message>
        <source>Specify first corner point or [Object/Add area/Subtract area] &lt;Object&gt;: </source>
        <translation>Ersten Eckpunkt angeben oder [Object/Add area/Subtract area] &lt;Object&gt;: </translation>
    </message>
    <message>
        <source>Specify first corner point or [Object/Subtract area]: </source>
        <translation>Ersten Eckpunkt angeben oder [Object/Subtract area]: </translation>
    </message>
    <message>
        <source>Specify first corner point or [Object/Add area]: </source>
        <translation>Ersten Eckpunkt angeben oder [Object/Add area]: </translation>
    </message>
    <message>
        <source>Select object: </source>
        <translation>Objekt wählen: </translation>
    </message>
    <message>
        <source>Specify second break point or [First point]: </source>
        <translation>Zweiten Bruchpunkt angeben oder [First point]: </translation>
    </message>
    <message>
        <source>Specify first break point: </source>
        <translation>Ersten Bruchpunkt angeben: </translation>
    </message>
    <message>
        <source>Specify second break point: </source>
        <translation>Zweiten Bruchpunkt angeben: </translation>
    </message>
    <message>
        <source>A whole circle or ellipse cannot be broken at one point.</source>
        <translation>Ein ganzer Kreis oder eine ganze Ellipse kann nicht an einem einzigen Punkt gebrochen werden.</translation>
    </message>
    <message>
        <source>The object cannot be broken there.</source>
        <translation>Das Objekt kann dort nicht gebrochen werden.</translation>
    </message>
    <message>
        <source>The lines are parallel.</source>
        <translation>Die Linien sind parallel.</translation>
    </message>
    <message>
        <source>The lines are one.</source>
        <translation>Die Linien sind dieselbe.</translation>
    </message>
    <message>
        <source>The angle leads to no cut.</source>
        <translation>Der Winkel führt zu keinem Schnitt.</translation>
    </message>
    <message>
        <source>Radius is too large.</source>
        <translation>Der Radius ist zu groß.</translation>
    </message>
    <message>
        <source>Distance is too large.</source>
        <translation>Der Abstand ist zu groß.</translation>
    </message>
    <message>
        <source>There is no arc of that radius.</source>
        <translation>Es gibt keinen Bogen mit diesem Radius.</translation>
    </message>
    <message>
        <source>They do not lie in one plane.</source>
        <translation>Sie liegen nicht in einer Ebene.</translation>
    </message>
    <message>
        <source>Two different ones are needed.</source>
        <translation>Zwei verschiedene werden gebraucht.</translation>
    </message>
    <message>
        <source>Only straight lines can be chamfered.</source>
        <translation>Nur gerade Linien können gefast werden.</translation>
    </message>
    <message>
        <source>Enter Trim mode option [Trim/No trim]</source>
        <translation>Option für den Stutzmodus eingeben [Trim/No trim]</translation>
    </message>
    <message>
        <source>Specify first chamfer distance</source>
        <translation>Ersten Fasenabstand angeben</translation>
    </message>
    <message>
        <source>Specify second chamfer distance</source>
        <translation>Zweiten Fasenabstand angeben</translation>
    </message>
    <message>
        <source>Specify chamfer length on the first line</source>
        <translation>Fasenlänge auf der ersten Linie angeben</translation>
    </message>
    <message>
        <source>Specify chamfer angle from the first line &lt;%1&gt;: </source>
        <translation>Fasenwinkel zur ersten Linie angeben &lt;%1&gt;: </translation>
    </message>
    <message>
        <source>Specify fillet radius</source>
        <translation>Abrundungsradius angeben</translation>
    </message>
    <message>
        <source>Enter trim method [Distance/Angle]</source>
        <translation>Stutzmethode eingeben [Distance/Angle]</translation>
    </message>
    <message>
        <source>Select 2D polyline or [Radius]: </source>
        <translation>2D-Polylinie wählen oder [Radius]: </translation>
    </message>
    <message>
        <source>Select 2D polyline or [Distance/Angle/mEthod]: </source>
        <translation>2D-Polylinie wählen oder [Distance/Angle/mEthod]: </translation>
    </message>
    <message>
        <source>Requires a flat polyline.</source>
        <translation>Eine ebene Polylinie wird gebraucht.</translation>
    </message>
    <message>
        <source>
%1 lines were filleted</source>
        <translation>
%1 Linien wurden abgerundet</translation>
    </message>
    <message>
        <source>
%1 lines were chamfered</source>
        <translation>
%1 Linien wurden gefast</translation>
    </message>
    <message>
        <source>
%1 were too short</source>
        <translation>
%1 waren zu kurz</translation>
    </message>
    <message>
        <source>
%1 were parallel</source>
        <translation>
%1 waren parallel</translation>
    </message>
    <message>
        <source>Requires a line, arc, circle or straight stretch of a polyline in the user&apos;s plane.</source>
        <translation>Eine Linie, ein Bogen, Kreis oder gerades Stück einer Polylinie in der Ebene des Benutzers wird gebraucht.</translation>
    </message>
    <message>
        <source>Select second object or [Radius]: </source>
        <translation>Zweites Objekt wählen oder [Radius]: </translation>
    </message>
    <message>
        <source>Select second line or [Distance/Angle/Method]: </source>
        <translation>Zweite Linie wählen oder [Distance/Angle/Method]: </translation>
    </message>
    <message>
        <source>Select first object or [Undo/Polyline/Radius/Trim/Multiple]: </source>
        <translation>Erstes Objekt wählen oder [Undo/Polyline/Radius/Trim/Multiple]: </translation>
    </message>
    <message>
        <source>Select first line or [Undo/Polyline/Distance/Angle/Trim/mEthod/Multiple]: </source>
        <translation>Erste Linie wählen oder [Undo/Polyline/Distance/Angle/Trim/mEthod/Multiple]: </translation>
    </message>
    <message>
        <source>
Nothing to undo</source>
        <translation>
Nichts rückgängig zu machen</translation>
    </message>
    <message>
        <source>
Current settings: Mode = %1, Radius = %2</source>
        <translation>
Aktuelle Einstellungen: Modus = %1, Radius = %2</translation>
    </message>
    <message>
        <source>
(%1 mode) Current chamfer Dist1 = %2, Dist2 = %3</source>
        <translation>
(Modus %1) Aktuelle Fasenabstände: Abst1 = %2, Abst2 = %3</translation>
    </message>
    <message>
        <source>The corner has no room for that.</source>
        <translation>Die Ecke hat dafür keinen Platz.</translation>
    </message>
    <message>
        <source>Only the ends of open polylines, lines and arcs can be joined.</source>
        <translation>Nur die Enden offener Polylinien, Linien und Bögen können verbunden werden.</translation>
    </message>
    <message>
        <source>Only neighbouring stretches of a polyline make a corner.</source>
        <translation>Nur benachbarte Stücke einer Polylinie bilden eine Ecke.</translation>
    </message>
    <message>
        <source>Enter name of block to insert: </source>
        <translation>Namen des einzufügenden Blocks eingeben: </translation>
    </message>
    <message>
        <source>Align block with object?</source>
        <translation>Block am Objekt ausrichten?</translation>
    </message>
    <message>
        <source>Select object to divide: </source>
        <translation>Zu teilendes Objekt wählen: </translation>
    </message>
    <message>
        <source>Enter the number of segments or [Block]: </source>
        <translation>Anzahl der Segmente eingeben oder [Block]: </translation>
    </message>
    <message>
        <source>Enter the number of segments: </source>
        <translation>Anzahl der Segmente eingeben: </translation>
    </message>
    <message>
        <source>The number must be between 2 and %1.</source>
        <translation>Die Anzahl muss zwischen 2 und %1 liegen.</translation>
    </message>
    <message>
        <source>Select object to measure: </source>
        <translation>Zu messendes Objekt wählen: </translation>
    </message>
    <message>
        <source>Specify length of segment or [Block]: </source>
        <translation>Segmentlänge angeben oder [Block]: </translation>
    </message>
    <message>
        <source>Specify length of segment: </source>
        <translation>Segmentlänge angeben: </translation>
    </message>
    <message>
        <source>These would be more than %1.</source>
        <translation>Das wären mehr als %1.</translation>
    </message>
    <message>
        <source>
%1 lines joined into 1 line</source>
        <translation>
%1 Linien zu 1 Linie verbunden</translation>
    </message>
    <message>
        <source>
%1 arcs joined into 1 arc</source>
        <translation>
%1 Bögen zu 1 Bogen verbunden</translation>
    </message>
    <message>
        <source>
%1 ellipses joined into 1 ellipse</source>
        <translation>
%1 Ellipsen zu 1 Ellipse verbunden</translation>
    </message>
    <message>
        <source>
%1 objects converted to 1 polyline</source>
        <translation>
%1 Objekte in 1 Polylinie umgewandelt</translation>
    </message>
    <message>
        <source>
%1 objects converted to 1 spline</source>
        <translation>
%1 Objekte in 1 Spline umgewandelt</translation>
    </message>
    <message>
        <source>
%1 objects discarded from the operation</source>
        <translation>
%1 Objekte nicht einbezogen</translation>
    </message>
    <message>
        <source>Select source object or multiple objects to join at once: </source>
        <translation>Quellobjekt oder mehrere auf einmal zu verbindende Objekte wählen: </translation>
    </message>
    <message>
        <source>Select arcs to join to source or [cLose]: </source>
        <translation>Bögen wählen, die mit der Quelle verbunden werden, oder [cLose]: </translation>
    </message>
    <message>
        <source>Select objects to join: </source>
        <translation>Zu verbindende Objekte wählen: </translation>
    </message>
    <message>
        <source>
Current length: %1</source>
        <translation>
Aktuelle Länge: %1</translation>
    </message>
    <message>
        <source>, included angle: %1</source>
        <translation>, eingeschlossener Winkel: %1</translation>
    </message>
    <message>
        <source>
This object cannot be lengthened.</source>
        <translation>
Dieses Objekt kann nicht verlängert werden.</translation>
    </message>
    <message>
        <source>Select an object to change or [Undo]: </source>
        <translation>Zu änderndes Objekt wählen oder [Undo]: </translation>
    </message>
    <message>
        <source>Specify new endpoint: </source>
        <translation>Neuen Endpunkt angeben: </translation>
    </message>
    <message>
        <source>
The object cannot have that length.</source>
        <translation>
Das Objekt kann diese Länge nicht haben.</translation>
    </message>
    <message>
        <source>Enter delta length or [Angle] &lt;%1&gt;: </source>
        <translation>Längendifferenz eingeben oder [Angle] &lt;%1&gt;: </translation>
    </message>
    <message>
        <source>Enter delta angle &lt;%1&gt;: </source>
        <translation>Winkeldifferenz eingeben &lt;%1&gt;: </translation>
    </message>
    <message>
        <source>Specify total length or [Angle] &lt;%1&gt;: </source>
        <translation>Gesamtlänge angeben oder [Angle] &lt;%1&gt;: </translation>
    </message>
    <message>
        <source>Specify total angle &lt;%1&gt;: </source>
        <translation>Gesamtwinkel angeben &lt;%1&gt;: </translation>
    </message>
    <message>
        <source>Enter percentage length &lt;100.0000&gt;: </source>
        <translation>Länge in Prozent eingeben &lt;100.0000&gt;: </translation>
    </message>
    <message>
        <source>Select an object to measure or [DElta/Percent/Total/DYnamic]: </source>
        <translation>Zu messendes Objekt wählen oder [DElta/Percent/Total/DYnamic]: </translation>
    </message>
    <message>
        <source>Specify offset distance or [Through/Erase/Layer] &lt;%1&gt;: </source>
        <translation>Abstand angeben oder [Through/Erase/Layer] &lt;%1&gt;: </translation>
    </message>
    <message>
        <source>Erase source object after offsetting?</source>
        <translation>Quellobjekt nach dem Versetzen löschen?</translation>
    </message>
    <message>
        <source>Enter layer option for offset objects [Current/Source]</source>
        <translation>Layer der versetzten Objekte eingeben [Current/Source]</translation>
    </message>
    <message>
        <source>Specify through point</source>
        <translation>Punkt angeben, durch den versetzt wird</translation>
    </message>
    <message>
        <source>Specify point on side to offset</source>
        <translation>Punkt auf der Seite angeben, zu der versetzt wird</translation>
    </message>
    <message>
        <source> or [Exit/Undo] &lt;next object&gt;: </source>
        <translation> oder [Exit/Undo] &lt;nächstes Objekt&gt;: </translation>
    </message>
    <message>
        <source> or [Exit/Multiple/Undo] &lt;Exit&gt;: </source>
        <translation> oder [Exit/Multiple/Undo] &lt;Exit&gt;: </translation>
    </message>
    <message>
        <source>Cannot offset that object so far.</source>
        <translation>Das Objekt kann nicht so weit versetzt werden.</translation>
    </message>
    <message>
        <source>
Select object to offset or [Exit/Undo] &lt;Exit&gt;: </source>
        <translation>
Zu versetzendes Objekt wählen oder [Exit/Undo] &lt;Exit&gt;: </translation>
    </message>
    <message>
        <source>Cannot offset that object.</source>
        <translation>Das Objekt kann nicht versetzt werden.</translation>
    </message>
    <message>
        <source>Enter property to ignore [%1]</source>
        <translation>Zu ignorierende Eigenschaft eingeben [%1]</translation>
    </message>
    <message>
        <source>Enter an option to change [Done/Ignore/Tolerance/Overlaps/Endtoend]</source>
        <translation>Zu ändernde Option eingeben [Done/Ignore/Tolerance/Overlaps/Endtoend]</translation>
    </message>
    <message>
        <source>Specify tolerance</source>
        <translation>Toleranz angeben</translation>
    </message>
    <message>
        <source>Combine lines and arcs that overlap?</source>
        <translation>Überlappende Linien und Bögen zusammenfassen?</translation>
    </message>
    <message>
        <source>Combine lines and arcs that meet end to end?</source>
        <translation>Linien und Bögen zusammenfassen, die sich an den Enden treffen?</translation>
    </message>
    <message>
        <source>
%1 duplicate(s) deleted</source>
        <translation>
%1 Duplikat(e) gelöscht</translation>
    </message>
    <message>
        <source>
%1 overlapping object(s) or segment(s) deleted</source>
        <translation>
%1 überlappende Objekte oder Segmente gelöscht</translation>
    </message>
    <message>
        <source>
Select polyline or [Multiple]: </source>
        <translation>
Polylinie wählen oder [Multiple]: </translation>
    </message>
    <message>
        <source>Object selected is not a polyline.</source>
        <translation>Das gewählte Objekt ist keine Polylinie.</translation>
    </message>
    <message>
        <source>
Object selected is not a polyline</source>
        <translation>
Das gewählte Objekt ist keine Polylinie</translation>
    </message>
    <message>
        <source>Do you want to turn it into one?</source>
        <translation>Soll es in eine umgewandelt werden?</translation>
    </message>
    <message>
        <source>Convert Lines, Arcs and Splines to polylines</source>
        <translation>Linien, Bögen und Splines in Polylinien umwandeln</translation>
    </message>
    <message>
        <source>
Splines do not become part of a polyline: %1 left out.</source>
        <translation>
Splines werden nicht Teil einer Polylinie: %1 weggelassen.</translation>
    </message>
    <message>
        <source>
%1 segments added to polyline</source>
        <translation>
%1 Segmente der Polylinie hinzugefügt</translation>
    </message>
    <message>
        <source>Enter fuzz distance or [Jointype] &lt;%1&gt;: </source>
        <translation>Fuzzy-Abstand eingeben oder [Jointype] &lt;%1&gt;: </translation>
    </message>
    <message>
        <source>Enter a vertex join type [Extend/Add/Both]</source>
        <translation>Art der Verbindung der Scheitelpunkte eingeben [Extend/Add/Both]</translation>
    </message>
    <message>
        <source>
%1 segments added to %2 polylines</source>
        <translation>
%1 Segmente zu %2 Polylinien hinzugefügt</translation>
    </message>
    <message>
        <source>Specify new width for all segments: </source>
        <translation>Neue Breite aller Segmente angeben: </translation>
    </message>
    <message>
        <source>Enter polyline linetype generation option [ON/OFF]</source>
        <translation>Option für durchgehenden Linientyp der Polylinie eingeben [ON/OFF]</translation>
    </message>
    <message>
        <source>Enter an option [Close/Open/Join/Width/Fit/Spline/Decurve/Ltype gen/Reverse/Undo]: </source>
        <translation>Option eingeben [Close/Open/Join/Width/Fit/Spline/Decurve/Ltype gen/Reverse/Undo]: </translation>
    </message>
    <message>
        <source>Enter an option [%1/Edit vertex/Spline curve/Decurve/Reverse/Undo]: </source>
        <translation>Option eingeben [%1/Edit vertex/Spline curve/Decurve/Reverse/Undo]: </translation>
    </message>
    <message>
        <source>Enter an option [%1/Join/Width/Edit vertex/Fit/Spline/Decurve/Ltype gen/Reverse/Undo]: </source>
        <translation>Option eingeben [%1/Join/Width/Edit vertex/Fit/Spline/Decurve/Ltype gen/Reverse/Undo]: </translation>
    </message>
    <message>
        <source>Enter an option [Next/Previous/Go/eXit] &lt;N&gt;: </source>
        <translation>Option eingeben [Next/Previous/Go/eXit] &lt;N&gt;: </translation>
    </message>
    <message>
        <source>
Nothing would be left on one side.</source>
        <translation>
Auf einer Seite bliebe nichts übrig.</translation>
    </message>
    <message>
        <source>Specify starting width for next segment</source>
        <translation>Anfangsbreite des nächsten Segments angeben</translation>
    </message>
    <message>
        <source>Specify ending width for next segment</source>
        <translation>Endbreite des nächsten Segments angeben</translation>
    </message>
    <message>
        <source>Specify location for new vertex: </source>
        <translation>Position des neuen Scheitelpunkts angeben: </translation>
    </message>
    <message>
        <source>Specify direction of vertex tangent: </source>
        <translation>Tangentenrichtung des Scheitelpunkts angeben: </translation>
    </message>
    <message>
        <source>Enter a vertex editing option [Next/Previous/Break/Insert/Move/Regen/Straighten/%1eXit] &lt;N&gt;: </source>
        <translation>Option für die Scheitelpunktbearbeitung eingeben [Next/Previous/Break/Insert/Move/Regen/Straighten/%1eXit] &lt;N&gt;: </translation>
    </message>
    <message>
        <source>Specify new location for marked vertex: </source>
        <translation>Neue Position des markierten Scheitelpunkts angeben: </translation>
    </message>
    <message>
        <source>
That object is on a locked layer.</source>
        <translation>
Das Objekt ist auf einem gesperrten Layer.</translation>
    </message>
    <message>
        <source>
Cannot %1 this object.</source>
        <translation>
Dieses Objekt ist für %1 nicht geeignet.</translation>
    </message>
    <message>
        <source>
Cannot EXTEND this object.</source>
        <translation>
Dieses Objekt ist für EXTEND nicht geeignet.</translation>
    </message>
    <message>
        <source>
Object does not intersect an edge.</source>
        <translation>
Das Objekt schneidet keine Kante.</translation>
    </message>
    <message>
        <source>
Command has been completely undone.</source>
        <translation>
Der Befehl wurde vollständig rückgängig gemacht.</translation>
    </message>
    <message>
        <source>Specify first fence point: </source>
        <translation>Ersten Zaunpunkt angeben: </translation>
    </message>
    <message>
        <source>Specify next fence point or [Undo]: </source>
        <translation>Nächsten Zaunpunkt angeben oder [Undo]: </translation>
    </message>
    <message>
        <source>Enter a projection option [None/Ucs/View]</source>
        <translation>Projektionsoption eingeben [None/Ucs/View]</translation>
    </message>
    <message>
        <source>Enter an implied edge extension mode [Extend/No extend]</source>
        <translation>Modus für gedachte Kantenverlängerung eingeben [Extend/No extend]</translation>
    </message>
    <message>
        <source>
Current settings: Projection=%1, Edge=%2</source>
        <translation>
Aktuelle Einstellungen: Projektion=%1, Kante=%2</translation>
    </message>
    <message>
        <source>
Select boundary edges ...</source>
        <translation>
Grenzkanten wählen ...</translation>
    </message>
    <message>
        <source>
Select cutting edges ...</source>
        <translation>
Schnittkanten wählen ...</translation>
    </message>
    <message>
        <source>Select object to extend or [Fence/Crossing/Project/Edge/Undo]: </source>
        <translation>Zu dehnendes Objekt wählen oder [Fence/Crossing/Project/Edge/Undo]: </translation>
    </message>
    <message>
        <source>Select object to trim or [Fence/Crossing/Project/Edge/eRase/Undo]: </source>
        <translation>Zu stutzendes Objekt wählen oder [Fence/Crossing/Project/Edge/eRase/Undo]: </translation>
    </message>
    <message>
        <source>Specify included angle: </source>
        <translation>Eingeschlossenen Winkel angeben: </translation>
    </message>
    <message>
        <source>Specify end point of arc or [Angle/chord Length]: </source>
        <translation>Endpunkt des Bogens angeben oder [Angle/chord Length]: </translation>
    </message>
    <message>
        <source>Specify length of chord: </source>
        <translation>Sehnenlänge angeben: </translation>
    </message>
    <message>
        <source>Specify end point of arc: </source>
        <translation>Endpunkt des Bogens angeben: </translation>
    </message>
    <message>
        <source>Specify center point of arc or [Angle/Direction/Radius]: </source>
        <translation>Zentrum des Bogens angeben oder [Angle/Direction/Radius]: </translation>
    </message>
    <message>
        <source>Specify tangent direction for the start point of arc: </source>
        <translation>Tangentenrichtung am Startpunkt des Bogens angeben: </translation>
    </message>
    <message>
        <source>Specify radius of arc: </source>
        <translation>Radius des Bogens angeben: </translation>
    </message>
    <message>
        <source>Specify second point of arc or [Center/End]: </source>
        <translation>Zweiten Punkt des Bogens angeben oder [Center/End]: </translation>
    </message>
    <message>
        <source>Specify center point of arc: </source>
        <translation>Zentrum des Bogens angeben: </translation>
    </message>
    <message>
        <source>Specify start point of arc or [Center]: </source>
        <translation>Startpunkt des Bogens angeben oder [Center]: </translation>
    </message>
    <message>
        <source>No line or arc to continue.</source>
        <translation>Es gibt weder Linie noch Bogen zum Fortsetzen.</translation>
    </message>
    <message>
        <source>Specify start point of arc: </source>
        <translation>Startpunkt des Bogens angeben: </translation>
    </message>
    <message>
        <source>There is no such arc.</source>
        <translation>Einen solchen Bogen gibt es nicht.</translation>
    </message>
    <message>
        <source>Specify first end point of circle&apos;s diameter: </source>
        <translation>Ersten Endpunkt des Kreisdurchmessers angeben: </translation>
    </message>
    <message>
        <source>Specify second end point of circle&apos;s diameter: </source>
        <translation>Zweiten Endpunkt des Kreisdurchmessers angeben: </translation>
    </message>
    <message>
        <source>Specify first point on circle: </source>
        <translation>Ersten Punkt auf dem Kreis angeben: </translation>
    </message>
    <message>
        <source>Specify second point on circle: </source>
        <translation>Zweiten Punkt auf dem Kreis angeben: </translation>
    </message>
    <message>
        <source>Specify third point on circle: </source>
        <translation>Dritten Punkt auf dem Kreis angeben: </translation>
    </message>
    <message>
        <source>Circle does not exist: the points lie in one line.</source>
        <translation>Den Kreis gibt es nicht: die Punkte liegen auf einer Geraden.</translation>
    </message>
    <message>
        <source>Specify diameter of circle</source>
        <translation>Durchmesser des Kreises angeben</translation>
    </message>
    <message>
        <source>Specify point on object for first tangent of circle: </source>
        <translation>Punkt auf dem Objekt für die erste Tangente des Kreises angeben: </translation>
    </message>
    <message>
        <source>Specify point on object for second tangent of circle: </source>
        <translation>Punkt auf dem Objekt für die zweite Tangente des Kreises angeben: </translation>
    </message>
    <message>
        <source>Requires a line, an arc or a circle in the user&apos;s plane.</source>
        <translation>Eine Linie, ein Bogen oder Kreis in der Ebene des Benutzers wird gebraucht.</translation>
    </message>
    <message>
        <source>Specify radius of circle</source>
        <translation>Radius des Kreises angeben</translation>
    </message>
    <message>
        <source>Circle does not exist.</source>
        <translation>Den Kreis gibt es nicht.</translation>
    </message>
    <message>
        <source>Specify center point for circle or [3P/2P/Ttr (tan tan radius)]: </source>
        <translation>Zentrum des Kreises angeben oder [3P/2P/Ttr (tan tan radius)]: </translation>
    </message>
    <message>
        <source>Specify radius of circle or [Diameter]</source>
        <translation>Radius des Kreises angeben oder [Diameter]</translation>
    </message>
    <message>
        <source>Circle does not exist: the points are one.</source>
        <translation>Den Kreis gibt es nicht: die Punkte sind derselbe.</translation>
    </message>
    <message>
        <source>Specify through point: </source>
        <translation>Durchgangspunkt angeben: </translation>
    </message>
    <message>
        <source>Select a line object: </source>
        <translation>Linienobjekt wählen: </translation>
    </message>
    <message>
        <source>Requires a line, a ray or a straight part of a polyline.</source>
        <translation>Eine Linie, ein Strahl oder ein gerades Stück einer Polylinie wird gebraucht.</translation>
    </message>
    <message>
        <source>Enter angle of xline (%1) or [Reference]: </source>
        <translation>Winkel der Konstruktionslinie eingeben (%1) oder [Reference]: </translation>
    </message>
    <message>
        <source>Enter angle of xline &lt;%1&gt;: </source>
        <translation>Winkel der Konstruktionslinie eingeben &lt;%1&gt;: </translation>
    </message>
    <message>
        <source>Specify angle vertex point: </source>
        <translation>Scheitelpunkt des Winkels angeben: </translation>
    </message>
    <message>
        <source>Specify angle start point: </source>
        <translation>Startpunkt des Winkels angeben: </translation>
    </message>
    <message>
        <source>Specify angle end point: </source>
        <translation>Endpunkt des Winkels angeben: </translation>
    </message>
    <message>
        <source>Specify offset distance or [Through] &lt;%1&gt;: </source>
        <translation>Abstand angeben oder [Through] &lt;%1&gt;: </translation>
    </message>
    <message>
        <source>Specify side to offset: </source>
        <translation>Seite angeben, zu der versetzt wird: </translation>
    </message>
    <message>
        <source>Specify a point or [Hor/Ver/Ang/Bisect/Offset]: </source>
        <translation>Punkt angeben oder [Hor/Ver/Ang/Bisect/Offset]: </translation>
    </message>
    <message>
        <source>Length of line: </source>
        <translation>Länge der Linie: </translation>
    </message>
    <message>
        <source>Specify next point or [Close/Undo]: </source>
        <translation>Nächsten Punkt angeben oder [Close/Undo]: </translation>
    </message>
    <message>
        <source>Specify a point: </source>
        <translation>Punkt angeben: </translation>
    </message>
    <message>
        <source>Specify distance to other axis or [Rotation]: </source>
        <translation>Abstand zur anderen Achse angeben oder [Rotation]: </translation>
    </message>
    <message>
        <source>Specify rotation around major axis: </source>
        <translation>Drehung um die Hauptachse angeben: </translation>
    </message>
    <message>
        <source>An ellipse is turned by 0 to 89.4 degrees.</source>
        <translation>Eine Ellipse wird um 0 bis 89.4 Grad gedreht.</translation>
    </message>
    <message>
        <source>Specify center of ellipse: </source>
        <translation>Zentrum der Ellipse angeben: </translation>
    </message>
    <message>
        <source>Specify endpoint of axis: </source>
        <translation>Endpunkt der Achse angeben: </translation>
    </message>
    <message>
        <source>Specify other endpoint of axis: </source>
        <translation>Anderen Endpunkt der Achse angeben: </translation>
    </message>
    <message>
        <source>The endpoints of the axis are one point.</source>
        <translation>Die Endpunkte der Achse sind derselbe Punkt.</translation>
    </message>
    <message>
        <source>Specify end parameter or [Angle/Included angle]: </source>
        <translation>Endparameter angeben oder [Angle/Included angle]: </translation>
    </message>
    <message>
        <source>Specify end angle or [Parameter/Included angle]: </source>
        <translation>Endwinkel angeben oder [Parameter/Included angle]: </translation>
    </message>
    <message>
        <source>Specify start parameter or [Angle]: </source>
        <translation>Startparameter angeben oder [Angle]: </translation>
    </message>
    <message>
        <source>Specify start angle or [Parameter]: </source>
        <translation>Startwinkel angeben oder [Parameter]: </translation>
    </message>
    <message>
        <source>Specify included angle for arc &lt;180&gt;: </source>
        <translation>Eingeschlossenen Winkel des Bogens angeben &lt;180&gt;: </translation>
    </message>
    <message>
        <source>Specify axis endpoint of ellipse or [Arc/Center]: </source>
        <translation>Achsenendpunkt der Ellipse angeben oder [Arc/Center]: </translation>
    </message>
    <message>
        <source>Specify axis endpoint of elliptical arc or [Center]: </source>
        <translation>Achsenendpunkt des elliptischen Bogens angeben oder [Center]: </translation>
    </message>
    <message>
        <source>Specify third point: </source>
        <translation>Dritten Punkt angeben: </translation>
    </message>
    <message>
        <source>Specify fourth point or &lt;exit&gt;: </source>
        <translation>Vierten Punkt angeben oder &lt;Ende&gt;: </translation>
    </message>
    <message>
        <source>Specify trace width</source>
        <translation>Bandbreite angeben</translation>
    </message>
    <message>
        <source>Specify first point or [Invisible]: </source>
        <translation>Ersten Punkt angeben oder [Invisible]: </translation>
    </message>
    <message>
        <source>Specify second point or [Invisible]: </source>
        <translation>Zweiten Punkt angeben oder [Invisible]: </translation>
    </message>
    <message>
        <source>Specify third point or [Invisible] &lt;exit&gt;: </source>
        <translation>Dritten Punkt angeben oder [Invisible] &lt;Ende&gt;: </translation>
    </message>
    <message>
        <source>Specify fourth point or [Invisible] &lt;create three-sided face&gt;: </source>
        <translation>Vierten Punkt angeben oder [Invisible] &lt;dreiseitige Fläche erstellen&gt;: </translation>
    </message>
    <message>
        <source>Specify start point of polyline: </source>
        <translation>Startpunkt der Polylinie angeben: </translation>
    </message>
    <message>
        <source>Specify endpoint of line or [Close/Undo]: </source>
        <translation>Endpunkt der Linie angeben oder [Close/Undo]: </translation>
    </message>
    <message>
        <source>Specify endpoint of line or [Undo]: </source>
        <translation>Endpunkt der Linie angeben oder [Undo]: </translation>
    </message>
    <message>
        <source>
All segments already undone.</source>
        <translation>
Alle Segmente sind bereits rückgängig gemacht.</translation>
    </message>
    <message>
        <source>Enter mline style name or [?]: </source>
        <translation>Namen des Multilinienstils eingeben oder [?]: </translation>
    </message>
    <message>
        <source>Cannot find multiline style &quot;%1&quot;.</source>
        <translation>Der Multilinienstil &quot;%1&quot; wurde nicht gefunden.</translation>
    </message>
    <message>
        <source>
Current settings: Justification = %1, Scale = %2, Style = %3</source>
        <translation>
Aktuelle Einstellungen: Ausrichtung = %1, Maßstab = %2, Stil = %3</translation>
    </message>
    <message>
        <source>Specify start point or [Justification/Scale/STyle]: </source>
        <translation>Startpunkt angeben oder [Justification/Scale/STyle]: </translation>
    </message>
    <message>
        <source>Enter justification type [Top/Zero/Bottom]</source>
        <translation>Ausrichtung eingeben [Top/Zero/Bottom]</translation>
    </message>
    <message>
        <source>Enter mline scale &lt;%1&gt;: </source>
        <translation>Maßstab der Multilinie eingeben &lt;%1&gt;: </translation>
    </message>
    <message>
        <source>Enter number of sides &lt;%1&gt;: </source>
        <translation>Anzahl der Seiten eingeben &lt;%1&gt;: </translation>
    </message>
    <message>
        <source>A polygon has 3 to 1024 sides.</source>
        <translation>Ein Polygon hat 3 bis 1024 Seiten.</translation>
    </message>
    <message>
        <source>Specify first endpoint of edge: </source>
        <translation>Ersten Endpunkt der Kante angeben: </translation>
    </message>
    <message>
        <source>Specify second endpoint of edge: </source>
        <translation>Zweiten Endpunkt der Kante angeben: </translation>
    </message>
    <message>
        <source>Enter an option [Inscribed in circle/Circumscribed about circle]</source>
        <translation>Option eingeben [Inscribed in circle/Circumscribed about circle]</translation>
    </message>
    <message>
        <source>Specify radius of circle: </source>
        <translation>Radius des Kreises angeben: </translation>
    </message>
    <message>
        <source>Specify center of polygon or [Edge]: </source>
        <translation>Zentrum des Polygons angeben oder [Edge]: </translation>
    </message>
    <message>
        <source>The endpoints of the edge are one point.</source>
        <translation>Die Endpunkte der Kante sind derselbe Punkt.</translation>
    </message>
    <message>
        <source>Specify inside diameter of donut</source>
        <translation>Innendurchmesser des Rings angeben</translation>
    </message>
    <message>
        <source>Specify outside diameter of donut</source>
        <translation>Außendurchmesser des Rings angeben</translation>
    </message>
    <message>
        <source>Specify center of donut or &lt;exit&gt;: </source>
        <translation>Zentrum des Rings angeben oder &lt;Ende&gt;: </translation>
    </message>
    <message>
        <source>Specify direction of chord for arc &lt;%1&gt;: </source>
        <translation>Richtung der Bogensehne angeben &lt;%1&gt;: </translation>
    </message>
    <message>
        <source>Specify endpoint of arc or [CEnter/Radius]: </source>
        <translation>Endpunkt des Bogens angeben oder [CEnter/Radius]: </translation>
    </message>
    <message>
        <source>Specify endpoint of arc or [Angle/Length]: </source>
        <translation>Endpunkt des Bogens angeben oder [Angle/Length]: </translation>
    </message>
    <message>
        <source>Specify the tangent direction for the start point of arc: </source>
        <translation>Tangentenrichtung am Startpunkt des Bogens angeben: </translation>
    </message>
    <message>
        <source>Specify endpoint of the arc: </source>
        <translation>Endpunkt des Bogens angeben: </translation>
    </message>
    <message>
        <source>Specify endpoint of arc or [Angle]: </source>
        <translation>Endpunkt des Bogens angeben oder [Angle]: </translation>
    </message>
    <message>
        <source>Specify second point on arc: </source>
        <translation>Zweiten Punkt auf dem Bogen angeben: </translation>
    </message>
    <message>
        <source>Specify starting half-width &lt;%1&gt;: </source>
        <translation>Halbe Anfangsbreite angeben &lt;%1&gt;: </translation>
    </message>
    <message>
        <source>Specify ending half-width &lt;%1&gt;: </source>
        <translation>Halbe Endbreite angeben &lt;%1&gt;: </translation>
    </message>
    <message>
        <source>Specify starting width &lt;%1&gt;: </source>
        <translation>Anfangsbreite angeben &lt;%1&gt;: </translation>
    </message>
    <message>
        <source>Specify ending width &lt;%1&gt;: </source>
        <translation>Endbreite angeben &lt;%1&gt;: </translation>
    </message>
    <message>
        <source>Specify length of line: </source>
        <translation>Länge der Linie angeben: </translation>
    </message>
    <message>
        <source>Specify endpoint of arc or [Angle/CEnter/%1Direction/Halfwidth/Line/Radius/Second pt/Undo/Width]: </source>
        <translation>Endpunkt des Bogens angeben oder [Angle/CEnter/%1Direction/Halfwidth/Line/Radius/Second pt/Undo/Width]: </translation>
    </message>
    <message>
        <source>Specify next point or [Arc/%1Halfwidth/Length/Undo/Width]: </source>
        <translation>Nächsten Punkt angeben oder [Arc/%1Halfwidth/Length/Undo/Width]: </translation>
    </message>
    <message>
        <source>
Current line-width is %1</source>
        <translation>
Die aktuelle Linienbreite ist %1</translation>
    </message>
    <message>
        <source>Specify fillet radius for rectangles</source>
        <translation>Abrundungsradius der Rechtecke angeben</translation>
    </message>
    <message>
        <source>Specify first chamfer distance for rectangles</source>
        <translation>Ersten Fasenabstand der Rechtecke angeben</translation>
    </message>
    <message>
        <source>Specify second chamfer distance for rectangles</source>
        <translation>Zweiten Fasenabstand der Rechtecke angeben</translation>
    </message>
    <message>
        <source>Specify first corner point or [Chamfer/Elevation/Fillet/Thickness/Width]: </source>
        <translation>Ersten Eckpunkt angeben oder [Chamfer/Elevation/Fillet/Thickness/Width]: </translation>
    </message>
    <message>
        <source>Specify the elevation for rectangles</source>
        <translation>Erhebung der Rechtecke angeben</translation>
    </message>
    <message>
        <source>Specify thickness for rectangles</source>
        <translation>Objekthöhe der Rechtecke angeben</translation>
    </message>
    <message>
        <source>Specify line width for rectangles</source>
        <translation>Linienbreite der Rechtecke angeben</translation>
    </message>
    <message>
        <source>Enter area of rectangle in current units</source>
        <translation>Fläche des Rechtecks in aktuellen Einheiten eingeben</translation>
    </message>
    <message>
        <source>Calculate rectangle dimensions based on [Length/Width]</source>
        <translation>Abmessungen des Rechtecks berechnen aus [Length/Width]</translation>
    </message>
    <message>
        <source>Enter rectangle width</source>
        <translation>Breite des Rechtecks eingeben</translation>
    </message>
    <message>
        <source>Enter rectangle length</source>
        <translation>Länge des Rechtecks eingeben</translation>
    </message>
    <message>
        <source>Specify rotation angle or [Pick points] &lt;%1&gt;: </source>
        <translation>Drehwinkel angeben oder [Pick points] &lt;%1&gt;: </translation>
    </message>
    <message>
        <source>Specify other corner point or [Area/Dimensions/Rotation]: </source>
        <translation>Anderen Eckpunkt angeben oder [Area/Dimensions/Rotation]: </translation>
    </message>
    <message>
        <source>Specify length for rectangles</source>
        <translation>Länge der Rechtecke angeben</translation>
    </message>
    <message>
        <source>Specify width for rectangles</source>
        <translation>Breite der Rechtecke angeben</translation>
    </message>
    <message>
        <source>The corners of a rectangle lie neither above nor beside each other.</source>
        <translation>Die Ecken eines Rechtecks liegen weder über- noch nebeneinander.</translation>
    </message>
    <message>
        <source>1 loop rejected: it crosses itself or branches.</source>
        <translation>1 Schleife abgewiesen: sie kreuzt sich selbst oder verzweigt sich.</translation>
    </message>
    <message>
        <source>%1 loops rejected: it crosses itself or branches.</source>
        <translation>%1 Schleifen abgewiesen: sie kreuzen sich selbst oder verzweigen sich.</translation>
    </message>
    <message>
        <source>1 loop rejected: it does not lie in a plane.</source>
        <translation>1 Schleife abgewiesen: sie liegt nicht in einer Ebene.</translation>
    </message>
    <message>
        <source>%1 loops rejected: it does not lie in a plane.</source>
        <translation>%1 Schleifen abgewiesen: sie liegen nicht in einer Ebene.</translation>
    </message>
    <message>
        <source>1 loop rejected: it encloses nothing.</source>
        <translation>1 Schleife abgewiesen: sie umschließt nichts.</translation>
    </message>
    <message>
        <source>%1 loops rejected: it encloses nothing.</source>
        <translation>%1 Schleifen abgewiesen: sie umschließen nichts.</translation>
    </message>
    <message>
        <source>1 curve rejected: it is not part of a closed loop.</source>
        <translation>1 Kurve abgewiesen: sie ist nicht Teil einer geschlossenen Schleife.</translation>
    </message>
    <message>
        <source>%1 curves rejected: it is not part of a closed loop.</source>
        <translation>%1 Kurven abgewiesen: sie sind nicht Teil einer geschlossenen Schleife.</translation>
    </message>
    <message>
        <source>1 object rejected: it is no curve.</source>
        <translation>1 Objekt abgewiesen: es ist keine Kurve.</translation>
    </message>
    <message>
        <source>%1 objects rejected: it is no curve.</source>
        <translation>%1 Objekte abgewiesen: sie sind keine Kurven.</translation>
    </message>
    <message>
        <source>Drawings of R12 have no regions.</source>
        <translation>Zeichnungen von R12 haben keine Regionen.</translation>
    </message>
    <message>
        <source>
1 loop extracted.
1 Region created.</source>
        <translation>
1 Schleife extrahiert.
1 Region erstellt.</translation>
    </message>
    <message>
        <source>
%1 loops extracted.
%1 Regions created.</source>
        <translation>
%1 Schleifen extrahiert.
%1 Regionen erstellt.</translation>
    </message>
    <message>
        <source>Specify minimum length of arc</source>
        <translation>Mindestlänge der Bögen angeben</translation>
    </message>
    <message>
        <source>Specify maximum length of arc &lt;%1&gt;: </source>
        <translation>Höchstlänge der Bögen angeben &lt;%1&gt;: </translation>
    </message>
    <message>
        <source>Specify first corner point or [Arc length/Object/Rectangular/Polygonal/Freehand/Style] &lt;Object&gt;: </source>
        <translation>Ersten Eckpunkt angeben oder [Arc length/Object/Rectangular/Polygonal/Freehand/Style] &lt;Object&gt;: </translation>
    </message>
    <message>
        <source>Specify start point or [Arc length/Object/Rectangular/Polygonal/Freehand/Style] &lt;Object&gt;: </source>
        <translation>Startpunkt angeben oder [Arc length/Object/Rectangular/Polygonal/Freehand/Style] &lt;Object&gt;: </translation>
    </message>
    <message>
        <source>Select arc style [Normal/Calligraphy]</source>
        <translation>Bogenstil wählen [Normal/Calligraphy]</translation>
    </message>
    <message>
        <source>Enter name of shape file to load: </source>
        <translation>Namen der zu ladenden Symboldatei eingeben: </translation>
    </message>
    <message>
        <source>Cannot read shape file &quot;%1&quot;.</source>
        <translation>Die Symboldatei &quot;%1&quot; kann nicht gelesen werden.</translation>
    </message>
    <message>
        <source>Enter shape name: </source>
        <translation>Symbolnamen eingeben: </translation>
    </message>
    <message>
        <source>Cannot find shape &quot;%1&quot;. Load its file first.</source>
        <translation>Das Symbol &quot;%1&quot; wurde nicht gefunden. Laden Sie zuerst seine Datei.</translation>
    </message>
    <message>
        <source>Specify height &lt;1&gt;: </source>
        <translation>Höhe angeben &lt;1&gt;: </translation>
    </message>
    <message>
        <source>
Only polylines with the smoothing of splines can be converted.</source>
        <translation>
Nur Polylinien mit Spline-Glättung können umgewandelt werden.</translation>
    </message>
    <message>
        <source>Specify first point or [Method/Knots/Object]: </source>
        <translation>Ersten Punkt angeben oder [Method/Knots/Object]: </translation>
    </message>
    <message>
        <source>Specify first point or [Method/Degree/Object]: </source>
        <translation>Ersten Punkt angeben oder [Method/Degree/Object]: </translation>
    </message>
    <message>
        <source>Enter spline creation method [Fit/CV]</source>
        <translation>Methode der Spline-Erstellung eingeben [Fit/CV]</translation>
    </message>
    <message>
        <source>Enter knot parameterization [Chord/Square root/Uniform]</source>
        <translation>Knotenparametrisierung eingeben [Chord/Square root/Uniform]</translation>
    </message>
    <message>
        <source>Enter degree of spline &lt;%1&gt;: </source>
        <translation>Grad des Splines eingeben &lt;%1&gt;: </translation>
    </message>
    <message>
        <source>Enter next point or [%1Undo]: </source>
        <translation>Nächsten Punkt eingeben oder [%1Undo]: </translation>
    </message>
    <message>
        <source>Enter next point or [start Tangency/toLerance]: </source>
        <translation>Nächsten Punkt eingeben oder [start Tangency/toLerance]: </translation>
    </message>
    <message>
        <source>Enter next point or [%1Fit tolerance/Undo/end Tangency] &lt;start tangent&gt;: </source>
        <translation>Nächsten Punkt eingeben oder [%1Fit tolerance/Undo/end Tangency] &lt;Starttangente&gt;: </translation>
    </message>
    <message>
        <source>
All points already undone.</source>
        <translation>
Alle Punkte sind bereits rückgängig gemacht.</translation>
    </message>
    <message>
        <source>Specify start tangent: </source>
        <translation>Starttangente angeben: </translation>
    </message>
    <message>
        <source>Specify end tangent: </source>
        <translation>Endtangente angeben: </translation>
    </message>
    <message>
        <source>Specify fit tolerance</source>
        <translation>Anpassungstoleranz angeben</translation>
    </message>
    <message>
        <source>Specify tangent: </source>
        <translation>Tangente angeben: </translation>
    </message>
    <message>
        <source>Specify first source point: </source>
        <translation>Ersten Ausgangspunkt angeben: </translation>
    </message>
    <message>
        <source>Specify first destination point: </source>
        <translation>Ersten Zielpunkt angeben: </translation>
    </message>
    <message>
        <source>Specify second source point: </source>
        <translation>Zweiten Ausgangspunkt angeben: </translation>
    </message>
    <message>
        <source>Specify second destination point: </source>
        <translation>Zweiten Zielpunkt angeben: </translation>
    </message>
    <message>
        <source>Specify third source point or &lt;continue&gt;: </source>
        <translation>Dritten Ausgangspunkt angeben oder &lt;weiter&gt;: </translation>
    </message>
    <message>
        <source>Specify third destination point: </source>
        <translation>Dritten Zielpunkt angeben: </translation>
    </message>
    <message>
        <source>Scale objects based on alignment points? [Yes/No] &lt;N&gt;: </source>
        <translation>Objekte anhand der Ausrichtungspunkte skalieren? [Yes/No] &lt;N&gt;: </translation>
    </message>
    <message>
        <source>The points say no direction.</source>
        <translation>Die Punkte ergeben keine Richtung.</translation>
    </message>
    <message>
        <source>Specify first point on axis or define axis by [Xaxis/Yaxis/Zaxis/2points]: </source>
        <translation>Ersten Punkt auf der Achse angeben oder Achse definieren durch [Xaxis/Yaxis/Zaxis/2points]: </translation>
    </message>
    <message>
        <source>Specify a point on the %1 axis &lt;0,0,0&gt;: </source>
        <translation>Punkt auf der Achse %1 angeben &lt;0,0,0&gt;: </translation>
    </message>
    <message>
        <source>Specify first point on axis: </source>
        <translation>Ersten Punkt auf der Achse angeben: </translation>
    </message>
    <message>
        <source>Specify second point on axis: </source>
        <translation>Zweiten Punkt auf der Achse angeben: </translation>
    </message>
    <message>
        <source>Specify rotation angle or [Reference]: </source>
        <translation>Drehwinkel angeben oder [Reference]: </translation>
    </message>
    <message>
        <source>Specify the distance between columns (|||): </source>
        <translation>Abstand zwischen den Spalten angeben (|||): </translation>
    </message>
    <message>
        <source>
Enter the distance between rows or specify unit cell (---): </source>
        <translation>
Abstand zwischen den Zeilen eingeben oder Zelle angeben (---): </translation>
    </message>
    <message>
        <source>Enter the number of rows (---) &lt;1&gt;: </source>
        <translation>Anzahl der Zeilen eingeben (---) &lt;1&gt;: </translation>
    </message>
    <message>
        <source>Enter the number of columns (|||) &lt;1&gt;: </source>
        <translation>Anzahl der Spalten eingeben (|||) &lt;1&gt;: </translation>
    </message>
    <message>
        <source>One-element array, nothing to do.</source>
        <translation>Anordnung mit einem Element, nichts zu tun.</translation>
    </message>
    <message>
        <source>Requires a distance other than 0, or two corners of a cell.</source>
        <translation>Ein Abstand ungleich 0 oder zwei Ecken einer Zelle werden gebraucht.</translation>
    </message>
    <message>
        <source>Enter the number of items in the array: </source>
        <translation>Anzahl der Elemente der Anordnung eingeben: </translation>
    </message>
    <message>
        <source>Specify the angle to fill (+=ccw, -=cw) &lt;360&gt;: </source>
        <translation>Auszufüllenden Winkel angeben (+=gegen den Uhrzeigersinn, -=im Uhrzeigersinn) &lt;360&gt;: </translation>
    </message>
    <message>
        <source>Angle between items: </source>
        <translation>Winkel zwischen den Elementen: </translation>
    </message>
    <message>
        <source>Specify center point of array or [Base]: </source>
        <translation>Zentrum der Anordnung angeben oder [Base]: </translation>
    </message>
    <message>
        <source>Specify base point of objects: </source>
        <translation>Basispunkt der Objekte angeben: </translation>
    </message>
    <message>
        <source>Specify center point of array: </source>
        <translation>Zentrum der Anordnung angeben: </translation>
    </message>
    <message>
        <source>Requires a number of items or an angle between them.</source>
        <translation>Die Anzahl der Elemente oder ein Winkel zwischen ihnen wird gebraucht.</translation>
    </message>
    <message>
        <source>Rotate arrayed objects? [Yes/No] &lt;Y&gt;: </source>
        <translation>Angeordnete Objekte drehen? [Yes/No] &lt;Y&gt;: </translation>
    </message>
    <message>
        <source>Enter the type of array [Rectangular/Polar] &lt;R&gt;: </source>
        <translation>Art der Anordnung eingeben [Rectangular/Polar] &lt;R&gt;: </translation>
    </message>
    <message>
        <source>Enter property to change [%1]: </source>
        <translation>Zu ändernde Eigenschaft eingeben [%1]: </translation>
    </message>
    <message>
        <source>Specify change point or [Properties]: </source>
        <translation>Änderungspunkt angeben oder [Properties]: </translation>
    </message>
    <message>
        <source>Enter new text style &lt;%1&gt;: </source>
        <translation>Neuen Textstil eingeben &lt;%1&gt;: </translation>
    </message>
    <message>
        <source>Specify new rotation angle &lt;%1&gt;: </source>
        <translation>Neuen Drehwinkel angeben &lt;%1&gt;: </translation>
    </message>
    <message>
        <source>Enter new text &lt;%1&gt;: </source>
        <translation>Neuen Text eingeben &lt;%1&gt;: </translation>
    </message>
    <message>
        <source>Enter new tag &lt;%1&gt;: </source>
        <translation>Neue Bezeichnung eingeben &lt;%1&gt;: </translation>
    </message>
    <message>
        <source>Enter new prompt &lt;%1&gt;: </source>
        <translation>Neue Eingabeaufforderung eingeben &lt;%1&gt;: </translation>
    </message>
    <message>
        <source>Enter new default value &lt;%1&gt;: </source>
        <translation>Neuen Vorgabewert eingeben &lt;%1&gt;: </translation>
    </message>
    <message>
        <source>Specify new text insertion point &lt;no change&gt;: </source>
        <translation>Neuen Einfügepunkt des Textes angeben &lt;keine Änderung&gt;: </translation>
    </message>
    <message>
        <source>Specify new block insertion point &lt;no change&gt;: </source>
        <translation>Neuen Einfügepunkt des Blocks angeben &lt;keine Änderung&gt;: </translation>
    </message>
    <message>
        <source>Specify new block rotation angle &lt;%1&gt;: </source>
        <translation>Neuen Drehwinkel des Blocks angeben &lt;%1&gt;: </translation>
    </message>
    <message>
        <source>
%1 not changed.</source>
        <translation>
%1 nicht geändert.</translation>
    </message>
    <message>
        <source>Enter object ordering option [Above objects/Under objects/Front/Back] &lt;Back&gt;: </source>
        <translation>Option für die Reihenfolge eingeben [Above objects/Under objects/Front/Back] &lt;Back&gt;: </translation>
    </message>
    <message>
        <source>Enter number of items to array: </source>
        <translation>Anzahl der anzuordnenden Elemente eingeben: </translation>
    </message>
    <message>
        <source>Requires an integer of 2 or more.</source>
        <translation>Eine ganze Zahl ab 2 wird gebraucht.</translation>
    </message>
    <message>
        <source>Specify second point or [Fit]: </source>
        <translation>Zweiten Punkt angeben oder [Fit]: </translation>
    </message>
    <message>
        <source>Specify second point or [Array] &lt;use first point as displacement&gt;: </source>
        <translation>Zweiten Punkt angeben oder [Array] &lt;ersten Punkt als Verschiebung verwenden&gt;: </translation>
    </message>
    <message>
        <source>Specify second point or [Array/Exit/Undo] &lt;Exit&gt;: </source>
        <translation>Zweiten Punkt angeben oder [Array/Exit/Undo] &lt;Exit&gt;: </translation>
    </message>
    <message>
        <source>Specify base point or [Displacement/mOde] &lt;Displacement&gt;: </source>
        <translation>Basispunkt angeben oder [Displacement/mOde] &lt;Displacement&gt;: </translation>
    </message>
    <message>
        <source>Enter a copy mode option [Single/Multiple] &lt;Multiple&gt;: </source>
        <translation>Kopiermodus eingeben [Single/Multiple] &lt;Multiple&gt;: </translation>
    </message>
    <message>
        <source>
Current positive angle in UCS:  ANGDIR=%1  ANGBASE=%2</source>
        <translation>
Aktueller positiver Winkel im BKS:  ANGDIR=%1  ANGBASE=%2</translation>
    </message>
    <message>
        <source>Specify rotation angle or [Copy/Reference] &lt;%1&gt;: </source>
        <translation>Drehwinkel angeben oder [Copy/Reference] &lt;%1&gt;: </translation>
    </message>
    <message>
        <source>
Rotating a copy of the selected objects.</source>
        <translation>
Eine Kopie der gewählten Objekte wird gedreht.</translation>
    </message>
    <message>
        <source>Specify scale factor or [Copy/Reference]: </source>
        <translation>Skalierfaktor angeben oder [Copy/Reference]: </translation>
    </message>
    <message>
        <source>
Scaling a copy of the selected objects.</source>
        <translation>
Eine Kopie der gewählten Objekte wird skaliert.</translation>
    </message>
    <message>
        <source>Requires three numbers from 0 to 255.</source>
        <translation>Drei Zahlen von 0 bis 255 werden gebraucht.</translation>
    </message>
    <message>
        <source>A drawing of this version has no such colors.</source>
        <translation>Eine Zeichnung dieser Version hat solche Farben nicht.</translation>
    </message>
    <message>
        <source>New color [Truecolor/COlorbook] &lt;%1&gt;: </source>
        <translation>Neue Farbe [Truecolor/COlorbook] &lt;%1&gt;: </translation>
    </message>
    <message>
        <source>Red,Green,Blue: </source>
        <translation>Rot,Grün,Blau: </translation>
    </message>
    <message>
        <source>This program has no color books.</source>
        <translation>Dieses Programm hat keine Farbbücher.</translation>
    </message>
    <message>
        <source>Requires a color number from 1 to 255 or a color name.</source>
        <translation>Eine Farbnummer von 1 bis 255 oder ein Farbname wird gebraucht.</translation>
    </message>
    <message>
        <source>Enter new layer name &lt;%1&gt;: </source>
        <translation>Neuen Layernamen eingeben &lt;%1&gt;: </translation>
    </message>
    <message>
        <source>Enter new linetype name &lt;%1&gt;: </source>
        <translation>Neuen Linientypnamen eingeben &lt;%1&gt;: </translation>
    </message>
    <message>
        <source>Cannot find linetype &quot;%1&quot;.</source>
        <translation>Der Linientyp &quot;%1&quot; wurde nicht gefunden.</translation>
    </message>
    <message>
        <source>Specify new linetype scale &lt;%1&gt;: </source>
        <translation>Neuen Linientypfaktor angeben &lt;%1&gt;: </translation>
    </message>
    <message>
        <source>Enter new lineweight &lt;%1&gt;: </source>
        <translation>Neue Linienstärke eingeben &lt;%1&gt;: </translation>
    </message>
    <message>
        <source>A drawing of this version has no lineweights.</source>
        <translation>Eine Zeichnung dieser Version hat keine Linienstärken.</translation>
    </message>
    <message>
        <source>Requires a lineweight from 0 to 2.11.</source>
        <translation>Eine Linienstärke von 0 bis 2.11 wird gebraucht.</translation>
    </message>
    <message>
        <source>Specify new thickness &lt;%1&gt;: </source>
        <translation>Neue Objekthöhe angeben &lt;%1&gt;: </translation>
    </message>
    <message>
        <source>Enter new transparency value &lt;ByLayer&gt;: </source>
        <translation>Neuen Transparenzwert eingeben &lt;ByLayer&gt;: </translation>
    </message>
    <message>
        <source>A drawing of this version has no transparency.</source>
        <translation>Eine Zeichnung dieser Version hat keine Transparenz.</translation>
    </message>
    <message>
        <source>Requires an integer from 0 to 90.</source>
        <translation>Eine ganze Zahl von 0 bis 90 wird gebraucht.</translation>
    </message>
    <message>
        <source>Specify new elevation &lt;%1&gt;: </source>
        <translation>Neue Erhebung angeben &lt;%1&gt;: </translation>
    </message>
    <message>
        <source>
%1 of the pieces could not be made.</source>
        <translation>
%1 der Stücke konnten nicht erstellt werden.</translation>
    </message>
    <message>
        <source>Specify stretch point or [Base point/Copy/Undo/eXit]: </source>
        <translation>Streckpunkt angeben oder [Base point/Copy/Undo/eXit]: </translation>
    </message>
    <message>
        <source>Specify move point or [Base point/Copy/Undo/eXit]: </source>
        <translation>Verschiebepunkt angeben oder [Base point/Copy/Undo/eXit]: </translation>
    </message>
    <message>
        <source>Specify rotation angle or [Base point/Copy/Undo/Reference/eXit]: </source>
        <translation>Drehwinkel angeben oder [Base point/Copy/Undo/Reference/eXit]: </translation>
    </message>
    <message>
        <source>Specify scale factor or [Base point/Copy/Undo/Reference/eXit]: </source>
        <translation>Skalierfaktor angeben oder [Base point/Copy/Undo/Reference/eXit]: </translation>
    </message>
    <message>
        <source>Specify second point or [Base point/Copy/Undo/eXit]: </source>
        <translation>Zweiten Punkt angeben oder [Base point/Copy/Undo/eXit]: </translation>
    </message>
    <message>
        <source> (multiple)</source>
        <translation> (mehrfach)</translation>
    </message>
    <message>
        <source>Specify grips to move: </source>
        <translation>Zu verschiebende Griffe angeben: </translation>
    </message>
    <message>
        <source>There is no grip of the chosen entities.</source>
        <translation>Einen solchen Griff haben die gewählten Objekte nicht.</translation>
    </message>
    <message>
        <source>
There is nothing to undo.</source>
        <translation>
Es gibt nichts rückgängig zu machen.</translation>
    </message>
    <message>
        <source>Enter a setting to switch off or on [%1] &lt;exit&gt;: </source>
        <translation>Aus- oder einzuschaltende Einstellung eingeben [%1] &lt;Ende&gt;: </translation>
    </message>
    <message>
        <source>
%1 is %2.</source>
        <translation>
%1 ist %2.</translation>
    </message>
    <message>
        <source>Select source object: </source>
        <translation>Quellobjekt wählen: </translation>
    </message>
    <message>
        <source>
Current active settings:  </source>
        <translation>
Aktuell wirksame Einstellungen:  </translation>
    </message>
    <message>
        <source>Select destination object(s) or [Settings]: </source>
        <translation>Zielobjekt(e) wählen oder [Settings]: </translation>
    </message>
    <message>
        <source>
%1 selected.</source>
        <translation>
%1 gewählt.</translation>
    </message>
    <message>
        <source>Specify first point of mirror line: </source>
        <translation>Ersten Punkt der Spiegelachse angeben: </translation>
    </message>
    <message>
        <source>Specify second point of mirror line: </source>
        <translation>Zweiten Punkt der Spiegelachse angeben: </translation>
    </message>
    <message>
        <source>Erase source objects? [Yes/No] &lt;N&gt;: </source>
        <translation>Quellobjekte löschen? [Yes/No] &lt;N&gt;: </translation>
    </message>
    <message>
        <source>Specify first point on mirror plane: </source>
        <translation>Ersten Punkt auf der Spiegelebene angeben: </translation>
    </message>
    <message>
        <source>Specify second point on mirror plane: </source>
        <translation>Zweiten Punkt auf der Spiegelebene angeben: </translation>
    </message>
    <message>
        <source>Specify third point on mirror plane: </source>
        <translation>Dritten Punkt auf der Spiegelebene angeben: </translation>
    </message>
    <message>
        <source>Specify point on %1 plane &lt;%2&gt;: </source>
        <translation>Punkt auf der Ebene %1 angeben &lt;%2&gt;: </translation>
    </message>
    <message>
        <source>Specify first point of mirror plane (3 points) or [Zaxis/View/XY/YZ/ZX/3points] &lt;3points&gt;: </source>
        <translation>Ersten Punkt der Spiegelebene angeben (3 Punkte) oder [Zaxis/View/XY/YZ/ZX/3points] &lt;3points&gt;: </translation>
    </message>
    <message>
        <source>Specify point on mirror plane: </source>
        <translation>Punkt auf der Spiegelebene angeben: </translation>
    </message>
    <message>
        <source>Specify point on Z-axis (normal) of mirror plane: </source>
        <translation>Punkt auf der Z-Achse (Normale) der Spiegelebene angeben: </translation>
    </message>
    <message>
        <source>Specify point on view plane &lt;0,0,0&gt;: </source>
        <translation>Punkt auf der Ansichtsebene angeben &lt;0,0,0&gt;: </translation>
    </message>
    <message>
        <source>The points say no plane.</source>
        <translation>Die Punkte ergeben keine Ebene.</translation>
    </message>
    <message>
        <source>Delete source objects? [Yes/No] &lt;N&gt;: </source>
        <translation>Quellobjekte löschen? [Yes/No] &lt;N&gt;: </translation>
    </message>
    <message>
        <source>The sheet has no viewport.</source>
        <translation>Das Blatt hat kein Ansichtsfenster.</translation>
    </message>
    <message>
        <source>
%1 object(s) changed from MODEL space to PAPER space.</source>
        <translation>
%1 Objekt(e) vom MODELL- in den PAPIERbereich verschoben.</translation>
    </message>
    <message>
        <source>
%1 object(s) changed from PAPER space to MODEL space.</source>
        <translation>
%1 Objekt(e) vom PAPIER- in den MODELLbereich verschoben.</translation>
    </message>
    <message>
        <source>
Objects were scaled by a factor of %1 to maintain visual appearance.</source>
        <translation>
Die Objekte wurden mit dem Faktor %1 skaliert, damit sie gleich aussehen.</translation>
    </message>
    <message>
        <source>Only a layout has both spaces.</source>
        <translation>Nur ein Layout hat beide Bereiche.</translation>
    </message>
    <message>
        <source>
Select objects to stretch by crossing-window or crossing-polygon...</source>
        <translation>
Zu streckende Objekte mit Kreuzen-Fenster oder Kreuzen-Polygon wählen...</translation>
    </message>
    <message>
        <source>Enter name of customization file to load: </source>
        <translation>Namen der zu ladenden Anpassungsdatei eingeben: </translation>
    </message>
    <message>
        <source>
&quot;%1&quot; was not loaded: there are no menu files here.</source>
        <translation>
&quot;%1&quot; wurde nicht geladen: hier gibt es keine Menüdateien.</translation>
    </message>
    <message>
        <source>Enter name of customization group to unload: </source>
        <translation>Namen der zu entladenden Anpassungsgruppe eingeben: </translation>
    </message>
    <message>
        <source>
There is no customization group &quot;%1&quot;.</source>
        <translation>
Es gibt keine Anpassungsgruppe &quot;%1&quot;.</translation>
    </message>
    <message>
        <source>Enter name of assembly to load: </source>
        <translation>Namen der zu ladenden Assembly eingeben: </translation>
    </message>
    <message>
        <source>
&quot;%1&quot; was not loaded: programs for other hosts do not run here.</source>
        <translation>
&quot;%1&quot; wurde nicht geladen: Programme für andere Wirtsprogramme laufen hier nicht.</translation>
    </message>
    <message>
        <source>Enter an option [?/Load/Unload/Commands/Options]: </source>
        <translation>Option eingeben [?/Load/Unload/Commands/Options]: </translation>
    </message>
    <message>
        <source>Enter name of application file: </source>
        <translation>Namen der Anwendungsdatei eingeben: </translation>
    </message>
    <message>
        <source>
Programs for other hosts do not run here.</source>
        <translation>
Programme für andere Wirtsprogramme laufen hier nicht.</translation>
    </message>
    <message>
        <source>Enter delay time (in milliseconds): </source>
        <translation>Verzögerung eingeben (in Millisekunden): </translation>
    </message>
    <message>
        <source>Fix any errors detected? [Yes/No] &lt;No&gt;: </source>
        <translation>Gefundene Fehler beheben? [Yes/No] &lt;No&gt;: </translation>
    </message>
    <message>
        <source>
Total errors found %1 fixed %2</source>
        <translation>
Fehler insgesamt: gefunden %1, behoben %2</translation>
    </message>
    <message>
        <source>
Save the drawing and open it with --recover: that mends the others.</source>
        <translation>
Speichern Sie die Zeichnung und öffnen Sie sie mit --recover: das behebt die übrigen.</translation>
    </message>
    <message>
        <source>Enter name of drawing to open: </source>
        <translation>Namen der zu öffnenden Zeichnung eingeben: </translation>
    </message>
    <message>
        <source>Enter template file name or [. (for none)] &lt;.&gt;: </source>
        <translation>Namen der Vorlagendatei eingeben oder [. (for none)] &lt;.&gt;: </translation>
    </message>
    <message>
        <source>Cannot find template &quot;%1&quot;.</source>
        <translation>Die Vorlage &quot;%1&quot; wurde nicht gefunden.</translation>
    </message>
    <message>
        <source>Save changes to %1? [Yes/No/Cancel] &lt;Yes&gt;: </source>
        <translation>Änderungen an %1 speichern? [Yes/No/Cancel] &lt;Yes&gt;: </translation>
    </message>
    <message>
        <source>Really want to discard all changes to drawing? [Yes/No] &lt;No&gt;: </source>
        <translation>Wirklich alle Änderungen an der Zeichnung verwerfen? [Yes/No] &lt;No&gt;: </translation>
    </message>
    <message>
        <source>another version</source>
        <translation>einer anderen Version</translation>
    </message>
    <message>
        <source>This drawing is of %1, and this program writes no drawing in another version: nothing was written.</source>
        <translation>Diese Zeichnung hat die Version %1, und dieses Programm schreibt keine Zeichnung in einer anderen Version: nichts wurde geschrieben.</translation>
    </message>
    <message>
        <source>Enter decimal places of accuracy (0 to 16) or [Objects/Binary/Version] &lt;16&gt;: </source>
        <translation>Genauigkeit in Nachkommastellen eingeben (0 bis 16) oder [Objects/Binary/Version] &lt;16&gt;: </translation>
    </message>
    <message>
        <source>Enter version [%1]: </source>
        <translation>Version eingeben [%1]: </translation>
    </message>
    <message>
        <source>This program writes whole drawings with all decimal places: nothing was written.</source>
        <translation>Dieses Programm schreibt ganze Zeichnungen mit allen Nachkommastellen: nichts wurde geschrieben.</translation>
    </message>
    <message>
        <source>Save drawing as, or enter file format [%1/DXF] &lt;%2&gt;: </source>
        <translation>Zeichnung speichern als, oder Dateiformat eingeben [%1/DXF] &lt;%2&gt;: </translation>
    </message>
    <message>
        <source>Save drawing as &lt;%1&gt;: </source>
        <translation>Zeichnung speichern als &lt;%1&gt;: </translation>
    </message>
    <message>
        <source>
The rest of the script that called it is left out.</source>
        <translation>
Der Rest des Skripts, das es aufgerufen hat, wird ausgelassen.</translation>
    </message>
    <message>
        <source>
Too many scripts wait to be run: &quot;%1&quot; is left out.</source>
        <translation>
Zu viele Skripte warten auf ihre Ausführung: &quot;%1&quot; wird ausgelassen.</translation>
    </message>
    <message>
        <source>Enter script file name: </source>
        <translation>Namen der Skriptdatei eingeben: </translation>
    </message>
    <message>
        <source>
Cannot read script &quot;%1&quot;.</source>
        <translation>
Das Skript &quot;%1&quot; kann nicht gelesen werden.</translation>
    </message>
    <message>
        <source>
Cannot read script &quot;%1&quot;: %2 (the limit is %3 MB).</source>
        <translation>
Das Skript &quot;%1&quot; kann nicht gelesen werden: %2 (die Grenze liegt bei %3 MB).</translation>
    </message>
    <message>
        <source>No script has been run.</source>
        <translation>Es ist noch kein Skript gelaufen.</translation>
    </message>
    <message>
        <source>%1 [Yes/No] &lt;%2&gt;: </source>
        <translation>%1 [Yes/No] &lt;%2&gt;: </translation>
    </message>
    <message>
        <source>Enter a layout name</source>
        <translation>Layoutnamen eingeben</translation>
    </message>
    <message>
        <source>Layout &quot;%1&quot; not found.</source>
        <translation>Das Layout &quot;%1&quot; wurde nicht gefunden.</translation>
    </message>
    <message>
        <source>Enter an output device name</source>
        <translation>Namen des Ausgabegeräts eingeben</translation>
    </message>
    <message>
        <source>There is no device &quot;%1&quot;: plots are files of PDF, PNG or SVG.</source>
        <translation>Es gibt kein Gerät &quot;%1&quot;: geplottet wird in Dateien von PDF, PNG oder SVG.</translation>
    </message>
    <message>
        <source>Enter paper size</source>
        <translation>Papierformat eingeben</translation>
    </message>
    <message>
        <source>There is no paper size &quot;%1&quot;.</source>
        <translation>Es gibt kein Papierformat &quot;%1&quot;.</translation>
    </message>
    <message>
        <source>Enter paper units [Inches/Millimeters] &lt;Millimeters&gt;: </source>
        <translation>Papiereinheiten eingeben [Inches/Millimeters] &lt;Millimeters&gt;: </translation>
    </message>
    <message>
        <source>Enter drawing orientation [Portrait/Landscape] &lt;%1&gt;: </source>
        <translation>Ausrichtung der Zeichnung eingeben [Portrait/Landscape] &lt;%1&gt;: </translation>
    </message>
    <message>
        <source>Plot upside down?</source>
        <translation>Auf dem Kopf plotten?</translation>
    </message>
    <message>
        <source>
Plots stand upright here.</source>
        <translation>
Geplottet wird hier aufrecht.</translation>
    </message>
    <message>
        <source>Enter lower left corner of window &lt;0.000000,0.000000&gt;: </source>
        <translation>Linke untere Ecke des Fensters eingeben &lt;0.000000,0.000000&gt;: </translation>
    </message>
    <message>
        <source>Enter upper right corner of window: </source>
        <translation>Rechte obere Ecke des Fensters eingeben: </translation>
    </message>
    <message>
        <source>Enter plot area [%1] &lt;%2&gt;: </source>
        <translation>Plotbereich eingeben [%1] &lt;%2&gt;: </translation>
    </message>
    <message>
        <source>Enter view name: </source>
        <translation>Namen des Ausschnitts eingeben: </translation>
    </message>
    <message>
        <source>Cannot find view &quot;%1&quot;.</source>
        <translation>Der Ausschnitt &quot;%1&quot; wurde nicht gefunden.</translation>
    </message>
    <message>
        <source>Enter plot scale (Plotted Millimeters=Drawing Units) or [Fit] &lt;%1&gt;: </source>
        <translation>Plotmaßstab eingeben (geplottete Millimeter=Zeichnungseinheiten) oder [Fit] &lt;%1&gt;: </translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no plot scale.</source>
        <translation>&quot;%1&quot; ist kein Plotmaßstab.</translation>
    </message>
    <message>
        <source>Enter plot offset (x,y) or [Center] &lt;Center&gt;: </source>
        <translation>Plotversatz eingeben (x,y) oder [Center] &lt;Center&gt;: </translation>
    </message>
    <message>
        <source>Plot with plot styles?</source>
        <translation>Mit Plotstilen plotten?</translation>
    </message>
    <message>
        <source>Enter plot style table name</source>
        <translation>Namen der Plotstiltabelle eingeben</translation>
    </message>
    <message>
        <source>Plot with lineweights?</source>
        <translation>Mit Linienstärken plotten?</translation>
    </message>
    <message>
        <source>Enter shade plot setting [As displayed/Wireframe/Hidden/Visual styles/Rendered] &lt;As displayed&gt;: </source>
        <translation>Einstellung für schattiertes Plotten eingeben [As displayed/Wireframe/Hidden/Visual styles/Rendered] &lt;As displayed&gt;: </translation>
    </message>
    <message>
        <source>Scale lineweights with plot scale?</source>
        <translation>Linienstärken mit dem Plotmaßstab skalieren?</translation>
    </message>
    <message>
        <source>Plot paper space first?</source>
        <translation>Papierbereich zuerst plotten?</translation>
    </message>
    <message>
        <source>Hide paperspace objects?</source>
        <translation>Objekte im Papierbereich verdecken?</translation>
    </message>
    <message>
        <source>Enter file name &lt;%1&gt;: </source>
        <translation>Dateinamen eingeben &lt;%1&gt;: </translation>
    </message>
    <message>
        <source>Save changes to page setup?</source>
        <translation>Änderungen in der Seiteneinrichtung speichern?</translation>
    </message>
    <message>
        <source>Proceed with plot</source>
        <translation>Mit dem Plotten fortfahren</translation>
    </message>
    <message>
        <source>Enter a page setup name &lt;&gt;: </source>
        <translation>Namen einer Seiteneinrichtung eingeben &lt;&gt;: </translation>
    </message>
    <message>
        <source>Detailed plot configuration?</source>
        <translation>Ausführliche Plotkonfiguration?</translation>
    </message>
    <message>
        <source>
Plotted to %1.</source>
        <translation>
Geplottet in %1.</translation>
    </message>
    <message>
        <source>Cannot find plot style table &quot;%1&quot;.</source>
        <translation>Die Plotstiltabelle &quot;%1&quot; wurde nicht gefunden.</translation>
    </message>
    <message>
        <source>
Some of what the drawing holds is not drawn, or in part.</source>
        <translation>
Manches, was die Zeichnung enthält, wird nicht oder nur teilweise gezeichnet.</translation>
    </message>
    <message>
        <source>Purge %1 &quot;%2&quot;? [Yes/No] &lt;No&gt;: </source>
        <translation>%1 &quot;%2&quot; bereinigen? [Yes/No] &lt;No&gt;: </translation>
    </message>
    <message>
        <source>
Deleting %1 &quot;%2&quot;.</source>
        <translation>
Gelöscht wird: %1 &quot;%2&quot;.</translation>
    </message>
    <message>
        <source>Enter name(s) to purge &lt;*&gt;: </source>
        <translation>Zu bereinigende Namen eingeben &lt;*&gt;: </translation>
    </message>
    <message>
        <source>Verify each name to be purged? [Yes/No] &lt;Yes&gt;: </source>
        <translation>Jeden zu bereinigenden Namen bestätigen? [Yes/No] &lt;Yes&gt;: </translation>
    </message>
    <message>
        <source>
Nothing unreferenced found.</source>
        <translation>
Nichts Unbenutztes gefunden.</translation>
    </message>
    <message>
        <source>
%1 orphaned objects deleted.</source>
        <translation>
%1 verwaiste Objekte gelöscht.</translation>
    </message>
    <message>
        <source>
%1 entities without length deleted.</source>
        <translation>
%1 Objekte ohne Länge gelöscht.</translation>
    </message>
    <message>
        <source>
%1 empty texts deleted.</source>
        <translation>
%1 leere Texte gelöscht.</translation>
    </message>
    <message>
        <source>
No unreferenced %1 found.</source>
        <translation>
Nichts Unbenutztes dieser Art gefunden: %1.</translation>
    </message>
    <message>
        <source>Enter type of unused objects to purge [Blocks/DEtailviewstyles/Dimstyles/Groups/LAyers/LTypes/MAterials/MUltileaderstyles/Plotstyles/SHapes/textSTyles/Mlinestyles/SEctionviewstyles/Tablestyles/Visualstyles/Regapps/Zero-length geometry/Empty text objects/Orphaned data/All]: </source>
        <translation>Art der zu bereinigenden unbenutzten Objekte eingeben [Blocks/DEtailviewstyles/Dimstyles/Groups/LAyers/LTypes/MAterials/MUltileaderstyles/Plotstyles/SHapes/textSTyles/Mlinestyles/SEctionviewstyles/Tablestyles/Visualstyles/Regapps/Zero-length geometry/Empty text objects/Orphaned data/All]: </translation>
    </message>
    <message>
        <source>block</source>
        <translation>Block</translation>
    </message>
    <message>
        <source>dimension style</source>
        <translation>Bemaßungsstil</translation>
    </message>
    <message>
        <source>layer</source>
        <translation>Layer</translation>
    </message>
    <message>
        <source>linetype</source>
        <translation>Linientyp</translation>
    </message>
    <message>
        <source>material</source>
        <translation>Material</translation>
    </message>
    <message>
        <source>multileader style</source>
        <translation>Multi-Führungslinienstil</translation>
    </message>
    <message>
        <source>text style</source>
        <translation>Textstil</translation>
    </message>
    <message>
        <source>table style</source>
        <translation>Tabellenstil</translation>
    </message>
    <message>
        <source>UCS</source>
        <translation>BKS</translation>
    </message>
    <message>
        <source>view</source>
        <translation>Ausschnitt</translation>
    </message>
    <message>
        <source>viewport</source>
        <translation>Ansichtsfenster</translation>
    </message>
    <message>
        <source>layout</source>
        <translation>Layout</translation>
    </message>
    <message>
        <source>Enter object type to rename [Block/Dimstyle/LAyer/LType/Material/multileadersTyle/Style/Tablestyle/Ucs/VIew/VPort]: </source>
        <translation>Art des umzubenennenden Objekts eingeben [Block/Dimstyle/LAyer/LType/Material/multileadersTyle/Style/Tablestyle/Ucs/VIew/VPort]: </translation>
    </message>
    <message>
        <source>Enter old %1 name: </source>
        <translation>Alten Namen eingeben (%1): </translation>
    </message>
    <message>
        <source>Enter new %1 name: </source>
        <translation>Neuen Namen eingeben (%1): </translation>
    </message>
    <message>
        <source>Enter command name: </source>
        <translation>Befehlsnamen eingeben: </translation>
    </message>
    <message>
        <source>Unknown command &quot;%1&quot;.</source>
        <translation>Unbekannter Befehl &quot;%1&quot;.</translation>
    </message>
    <message>
        <source>
%1 is a command already.</source>
        <translation>
%1 ist bereits ein Befehl.</translation>
    </message>
    <message>
        <source>
Saved to %1.</source>
        <translation>
Gespeichert in %1.</translation>
    </message>
    <message>
        <source>Save all the same, or under another name? [Anyway/Name/Cancel] &lt;Cancel&gt;: </source>
        <translation>Trotzdem oder unter anderem Namen speichern? [Anyway/Name/Cancel] &lt;Cancel&gt;: </translation>
    </message>
    <message>
        <source>Save under another name? [Name/Cancel] &lt;Cancel&gt;: </source>
        <translation>Unter anderem Namen speichern? [Name/Cancel] &lt;Cancel&gt;: </translation>
    </message>
    <message>
        <source>Nothing was written.</source>
        <translation>Nichts wurde geschrieben.</translation>
    </message>
    <message>
        <source>Save drawing as: </source>
        <translation>Zeichnung speichern als: </translation>
    </message>
    <message>
        <source>%1 cannot be set to that value.</source>
        <translation>%1 kann nicht auf diesen Wert gesetzt werden.</translation>
    </message>
    <message>
        <source>Enter mode [ON/OFF] &lt;%1&gt;: </source>
        <translation>Modus eingeben [ON/OFF] &lt;%1&gt;: </translation>
    </message>
    <message>
        <source>Specify horizontal spacing(X) &lt;%1&gt;: </source>
        <translation>Horizontalen Abstand (X) angeben &lt;%1&gt;: </translation>
    </message>
    <message>
        <source>Specify vertical spacing(Y) &lt;%1&gt;: </source>
        <translation>Vertikalen Abstand (Y) angeben &lt;%1&gt;: </translation>
    </message>
    <message>
        <source>Specify grid spacing(X) or [ON/OFF/Snap/Aspect]</source>
        <translation>Rasterabstand (X) angeben oder [ON/OFF/Snap/Aspect]</translation>
    </message>
    <message>
        <source>Specify snap spacing or [ON/OFF/Aspect/Rotate/Style/Type]</source>
        <translation>Fangabstand angeben oder [ON/OFF/Aspect/Rotate/Style/Type]</translation>
    </message>
    <message>
        <source>Specify base point &lt;%1&gt;: </source>
        <translation>Basispunkt angeben &lt;%1&gt;: </translation>
    </message>
    <message>
        <source>Enter snap grid style [Standard/Isometric] &lt;%1&gt;: </source>
        <translation>Stil des Fangrasters eingeben [Standard/Isometric] &lt;%1&gt;: </translation>
    </message>
    <message>
        <source>Specify vertical spacing</source>
        <translation>Vertikalen Abstand angeben</translation>
    </message>
    <message>
        <source>Specify snap spacing or [Aspect]</source>
        <translation>Fangabstand angeben oder [Aspect]</translation>
    </message>
    <message>
        <source>Enter snap type [Polar/Grid] &lt;%1&gt;: </source>
        <translation>Fangtyp eingeben [Polar/Grid] &lt;%1&gt;: </translation>
    </message>
    <message>
        <source>Enter isometric plane setting [Left/Top/Right] &lt;%1&gt;: </source>
        <translation>Isometrische Ebene eingeben [Left/Top/Right] &lt;%1&gt;: </translation>
    </message>
    <message>
        <source>
Current Isoplane: </source>
        <translation>
Aktuelle isometrische Ebene: </translation>
    </message>
    <message>
        <source>Specify lower left corner or [ON/OFF] &lt;%1&gt;: </source>
        <translation>Linke untere Ecke angeben oder [ON/OFF] &lt;%1&gt;: </translation>
    </message>
    <message>
        <source>Specify upper right corner &lt;%1&gt;: </source>
        <translation>Rechte obere Ecke angeben &lt;%1&gt;: </translation>
    </message>
    <message>
        <source>Specify new default elevation &lt;%1&gt;: </source>
        <translation>Neue vorgegebene Erhebung angeben &lt;%1&gt;: </translation>
    </message>
    <message>
        <source>Specify new default thickness &lt;%1&gt;: </source>
        <translation>Neue vorgegebene Objekthöhe angeben &lt;%1&gt;: </translation>
    </message>
    <message>
        <source>Enter default object color [Truecolor/COlorbook] &lt;%1&gt;: </source>
        <translation>Vorgegebene Objektfarbe eingeben [Truecolor/COlorbook] &lt;%1&gt;: </translation>
    </message>
    <message>
        <source>New objects take colors by number or name here.</source>
        <translation>Neue Objekte nehmen hier Farben nach Nummer oder Namen.</translation>
    </message>
    <message>
        <source>
Everything has been undone.</source>
        <translation>
Alles wurde rückgängig gemacht.</translation>
    </message>
    <message>
        <source>Enter UNDO Auto mode [ON/OFF] &lt;ON&gt;: </source>
        <translation>UNDO-Automatikmodus eingeben [ON/OFF] &lt;ON&gt;: </translation>
    </message>
    <message>
        <source>Enter an UNDO control option [All/None/One/Combine/Layer] &lt;All&gt;: </source>
        <translation>UNDO-Steuerungsoption eingeben [All/None/One/Combine/Layer] &lt;All&gt;: </translation>
    </message>
    <message>
        <source>Combine zoom and pan operations? [Yes/No] &lt;Yes&gt;: </source>
        <translation>Zoom- und Pan-Vorgänge zusammenfassen? [Yes/No] &lt;Yes&gt;: </translation>
    </message>
    <message>
        <source>Combine layer property changes? [Yes/No] &lt;Yes&gt;: </source>
        <translation>Änderungen von Layereigenschaften zusammenfassen? [Yes/No] &lt;Yes&gt;: </translation>
    </message>
    <message>
        <source>
Undo is always on.</source>
        <translation>
Das Rückgängigmachen ist immer eingeschaltet.</translation>
    </message>
    <message>
        <source>This will undo everything. OK? [Yes/No] &lt;Yes&gt;: </source>
        <translation>Damit wird alles rückgängig gemacht. OK? [Yes/No] &lt;Yes&gt;: </translation>
    </message>
    <message>
        <source>Enter the number of operations to undo or [Auto/Control/BEgin/End/Mark/Back] &lt;1&gt;: </source>
        <translation>Anzahl der rückgängig zu machenden Vorgänge eingeben oder [Auto/Control/BEgin/End/Mark/Back] &lt;1&gt;: </translation>
    </message>
    <message>
        <source>
There is nothing to redo.</source>
        <translation>
Es gibt nichts wiederherzustellen.</translation>
    </message>
    <message>
        <source>Enter number of actions or [All/Last]: </source>
        <translation>Anzahl der Vorgänge eingeben oder [All/Last]: </translation>
    </message>
    <message>
        <source>
There is nothing to bring back.</source>
        <translation>
Es gibt nichts zurückzuholen.</translation>
    </message>
    <message>
        <source>Enter command name to repeat: </source>
        <translation>Zu wiederholenden Befehl eingeben: </translation>
    </message>
    <message>
        <source>Unknown command &quot;%1&quot;: only built-in ones are repeated.</source>
        <translation>Unbekannter Befehl &quot;%1&quot;: nur eingebaute werden wiederholt.</translation>
    </message>
    <message>
        <source>Requires an integer between %1 and %2.</source>
        <translation>Eine ganze Zahl zwischen %1 und %2 wird gebraucht.</translation>
    </message>
    <message>
        <source>Enter denominator of smallest fraction to display (1, 2, 4, 8, 16, 32, 64, 128, or 256) &lt;%1&gt;: </source>
        <translation>Nenner des kleinsten anzuzeigenden Bruchs eingeben (1, 2, 4, 8, 16, 32, 64, 128 oder 256) &lt;%1&gt;: </translation>
    </message>
    <message>
        <source>Requires a power of two up to 256.</source>
        <translation>Eine Zweierpotenz bis 256 wird gebraucht.</translation>
    </message>
    <message>
        <source>
Report formats: 1. Scientific  2. Decimal  3. Engineering  4. Architectural  5. Fractional</source>
        <translation>
Darstellungen: 1. Wissenschaftlich  2. Dezimal  3. Technisch  4. Architektur  5. Bruch</translation>
    </message>
    <message>
        <source>Enter choice, 1 to 5</source>
        <translation>Wahl eingeben, 1 bis 5</translation>
    </message>
    <message>
        <source>Enter number of digits to right of decimal point (0 to 8)</source>
        <translation>Anzahl der Nachkommastellen eingeben (0 bis 8)</translation>
    </message>
    <message>
        <source>
Systems of angle measure: 1. Decimal degrees  2. Degrees/minutes/seconds  3. Grads  4. Radians  5. Surveyor&apos;s units</source>
        <translation>
Winkelmaße: 1. Dezimalgrad  2. Grad/Minuten/Sekunden  3. Neugrad  4. Bogenmaß  5. Feldmaß</translation>
    </message>
    <message>
        <source>Enter number of fractional places for display of angles (0 to 8)</source>
        <translation>Anzahl der Nachkommastellen für Winkel eingeben (0 bis 8)</translation>
    </message>
    <message>
        <source>Enter direction for angle 0 &lt;%1&gt;: </source>
        <translation>Richtung für Winkel 0 eingeben &lt;%1&gt;: </translation>
    </message>
    <message>
        <source>Measure angles clockwise? [Yes/No] &lt;%1&gt;: </source>
        <translation>Winkel im Uhrzeigersinn messen? [Yes/No] &lt;%1&gt;: </translation>
    </message>
    <message>
        <source>%1 mm</source>
        <translation>%1 mm</translation>
    </message>
    <message>
        <source>
Current lineweight: %1</source>
        <translation>
Aktuelle Linienstärke: %1</translation>
    </message>
    <message>
        <source>Enter default lineweight for new objects or [?]: </source>
        <translation>Vorgegebene Linienstärke neuer Objekte eingeben oder [?]: </translation>
    </message>
    <message>
        <source>
ByLayer, ByBlock, Default, or 0.00 to 2.11 mm</source>
        <translation>
ByLayer, ByBlock, Default oder 0.00 bis 2.11 mm</translation>
    </message>
    <message>
        <source>from point,</source>
        <translation>von Punkt,</translation>
    </message>
    <message>
        <source>  to point,</source>
        <translation>  nach Punkt,</translation>
    </message>
    <message>
        <source>Length = %1,  Angle in XY Plane = %2</source>
        <translation>Länge = %1,  Winkel in der XY-Ebene = %2</translation>
    </message>
    <message>
        <source>Delta X = %1, Delta Y = %2, Delta Z = %3</source>
        <translation>Delta X = %1, Delta Y = %2, Delta Z = %3</translation>
    </message>
    <message>
        <source>at point,</source>
        <translation>am Punkt,</translation>
    </message>
    <message>
        <source>base point,</source>
        <translation>Basispunkt,</translation>
    </message>
    <message>
        <source>through point,</source>
        <translation>durch Punkt,</translation>
    </message>
    <message>
        <source>center point,</source>
        <translation>Zentrum,</translation>
    </message>
    <message>
        <source>start angle</source>
        <translation>Startwinkel</translation>
    </message>
    <message>
        <source>end angle</source>
        <translation>Endwinkel</translation>
    </message>
    <message>
        <source>Center:</source>
        <translation>Zentrum:</translation>
    </message>
    <message>
        <source>Major Axis:</source>
        <translation>Hauptachse:</translation>
    </message>
    <message>
        <source>at point</source>
        <translation>am Punkt</translation>
    </message>
    <message>
        <source>Constant width</source>
        <translation>konstante Breite</translation>
    </message>
    <message>
        <source>first point</source>
        <translation>erster Punkt</translation>
    </message>
    <message>
        <source>second point</source>
        <translation>zweiter Punkt</translation>
    </message>
    <message>
        <source>third point</source>
        <translation>dritter Punkt</translation>
    </message>
    <message>
        <source>fourth point</source>
        <translation>vierter Punkt</translation>
    </message>
    <message>
        <source>Control Point:</source>
        <translation>Kontrollpunkt:</translation>
    </message>
    <message>
        <source>Fit Point:</source>
        <translation>Anpassungspunkt:</translation>
    </message>
    <message>
        <source>alignment point,</source>
        <translation>Ausrichtungspunkt,</translation>
    </message>
    <message>
        <source>start point,</source>
        <translation>Startpunkt,</translation>
    </message>
    <message>
        <source>rotation angle</source>
        <translation>Drehwinkel</translation>
    </message>
    <message>
        <source>width scale</source>
        <translation>Breitenfaktor</translation>
    </message>
    <message>
        <source>obliquing angle</source>
        <translation>Neigungswinkel</translation>
    </message>
    <message>
        <source>Location:</source>
        <translation>Position:</translation>
    </message>
    <message>
        <source>Text style</source>
        <translation>Textstil</translation>
    </message>
    <message>
        <source>Text height</source>
        <translation>Texthöhe</translation>
    </message>
    <message>
        <source>X scale factor</source>
        <translation>Skalierfaktor X</translation>
    </message>
    <message>
        <source>Y scale factor</source>
        <translation>Skalierfaktor Y</translation>
    </message>
    <message>
        <source>Z scale factor</source>
        <translation>Skalierfaktor Z</translation>
    </message>
    <message>
        <source>number of columns</source>
        <translation>Anzahl Spalten</translation>
    </message>
    <message>
        <source>number of rows</source>
        <translation>Anzahl Zeilen</translation>
    </message>
    <message>
        <source>between columns</source>
        <translation>zwischen Spalten</translation>
    </message>
    <message>
        <source>between rows</source>
        <translation>zwischen Zeilen</translation>
    </message>
    <message>
        <source>arc length</source>
        <translation>Bogenlänge</translation>
    </message>
    <message>
        <source>jogged radius</source>
        <translation>verkürzter Radius</translation>
    </message>
    <message>
        <source>defining point:</source>
        <translation>Definitionspunkt:</translation>
    </message>
    <message>
        <source>Hatch pattern</source>
        <translation>Schraffurmuster</translation>
    </message>
    <message>
        <source>Hatch scale</source>
        <translation>Schraffurskalierung</translation>
    </message>
    <message>
        <source>Hatch angle</source>
        <translation>Schraffurwinkel</translation>
    </message>
    <message>
        <source>Scale relative to Paper space</source>
        <translation>Maßstab relativ zum Papierbereich</translation>
    </message>
    <message>
        <source>Bounding Box: Lower Bound</source>
        <translation>Begrenzungsrahmen: Untergrenze</translation>
    </message>
    <message>
        <source>Area:</source>
        <translation>Fläche:</translation>
    </message>
    <message>
        <source>Perimeter:</source>
        <translation>Umfang:</translation>
    </message>
    <message>
        <source>Color:</source>
        <translation>Farbe:</translation>
    </message>
    <message>
        <source>Linetype:</source>
        <translation>Linientyp:</translation>
    </message>
    <message>
        <source>Linetype scale</source>
        <translation>Linientypfaktor</translation>
    </message>
    <message>
        <source>Lineweight:</source>
        <translation>Linienstärke:</translation>
    </message>
    <message>
        <source>%1  Layer: &quot;%2&quot;</source>
        <translation>%1  Layer: &quot;%2&quot;</translation>
    </message>
    <message>
        <source>Space:</source>
        <translation>Bereich:</translation>
    </message>
    <message>
        <source>Model space</source>
        <translation>Modellbereich</translation>
    </message>
    <message>
        <source>Paper space</source>
        <translation>Papierbereich</translation>
    </message>
    <message>
        <source>Layout:</source>
        <translation>Layout:</translation>
    </message>
    <message>
        <source>Handle =</source>
        <translation>Referenznummer =</translation>
    </message>
    <message>
        <source>
Distance = %1,  Angle in XY Plane = %2,  Angle from XY Plane = %3</source>
        <translation>
Abstand = %1,  Winkel in der XY-Ebene = %2,  Winkel von der XY-Ebene = %3</translation>
    </message>
    <message>
        <source>
Delta X = %1,  Delta Y = %2,   Delta Z = %3</source>
        <translation>
Delta X = %1,  Delta Y = %2,   Delta Z = %3</translation>
    </message>
    <message>
        <source>Specify next point or [Close/Undo/Total] &lt;Total&gt;: </source>
        <translation>Nächsten Punkt angeben oder [Close/Undo/Total] &lt;Total&gt;: </translation>
    </message>
    <message>
        <source>
Distance = %1</source>
        <translation>
Abstand = %1</translation>
    </message>
    <message>
        <source>Specify second point or [Multiple points]: </source>
        <translation>Zweiten Punkt angeben oder [Multiple points]: </translation>
    </message>
    <message>
        <source>%1 days %2:%3:%4</source>
        <translation>%1 Tage %2:%3:%4</translation>
    </message>
    <message>
        <source>
Current time:             </source>
        <translation>
Jetzige Zeit:             </translation>
    </message>
    <message>
        <source>
Times for this drawing:</source>
        <translation>
Zeiten dieser Zeichnung:</translation>
    </message>
    <message>
        <source>
  Created:                </source>
        <translation>
  Erzeugt:                </translation>
    </message>
    <message>
        <source>
  Last updated:           </source>
        <translation>
  Aktualisiert:           </translation>
    </message>
    <message>
        <source>
  Total editing time:     </source>
        <translation>
  Editierzeit gesamt:     </translation>
    </message>
    <message>
        <source>
  Elapsed timer:          </source>
        <translation>
  Stoppuhrstand:          </translation>
    </message>
    <message>
        <source>
%1 objects in %2</source>
        <translation>
%1 Objekte in %2</translation>
    </message>
    <message>
        <source>Limits are, low</source>
        <translation>Limiten, unten</translation>
    </message>
    <message>
        <source>Limits are, high</source>
        <translation>Limiten, oben</translation>
    </message>
    <message>
        <source>Uses, low</source>
        <translation>Belegt, unten</translation>
    </message>
    <message>
        <source>Uses, high</source>
        <translation>Belegt, oben</translation>
    </message>
    <message>
        <source>Insertion base is</source>
        <translation>Einfügebasis</translation>
    </message>
    <message>
        <source>Current space:</source>
        <translation>Aktueller Bereich:</translation>
    </message>
    <message>
        <source>Current layer:</source>
        <translation>Aktueller Layer:</translation>
    </message>
    <message>
        <source>Current color:</source>
        <translation>Aktuelle Farbe:</translation>
    </message>
    <message>
        <source>Current linetype:</source>
        <translation>Aktueller Linientyp:</translation>
    </message>
    <message>
        <source>Current elevation:</source>
        <translation>Aktuelle Erhebung:</translation>
    </message>
    <message>
        <source>Thickness:</source>
        <translation>Objekthöhe:</translation>
    </message>
    <message>
        <source>A drawing of this version has no such property of layers.</source>
        <translation>Eine Zeichnung dieser Version kennt diese Eigenschaft von Layern nicht.</translation>
    </message>
    <message>
        <source>New color [Truecolor/COlorbook] &lt;7 (white)&gt;: </source>
        <translation>Neue Farbe [Truecolor/COlorbook] &lt;7 (weiß)&gt;: </translation>
    </message>
    <message>
        <source>Enter loaded linetype name or [?] &lt;%1&gt;: </source>
        <translation>Geladenen Linientypnamen eingeben oder [?] &lt;%1&gt;: </translation>
    </message>
    <message>
        <source>Linetype &quot;%1&quot; not found.</source>
        <translation>Der Linientyp &quot;%1&quot; wurde nicht gefunden.</translation>
    </message>
    <message>
        <source>linetype &quot;%1&quot;</source>
        <translation>Linientyp &quot;%1&quot;</translation>
    </message>
    <message>
        <source>Enter lineweight (0.0mm - 2.11mm) or [Default]: </source>
        <translation>Linienstärke eingeben (0.0mm - 2.11mm) oder [Default]: </translation>
    </message>
    <message>
        <source>Enter transparency value (0-90): </source>
        <translation>Transparenzwert eingeben (0-90): </translation>
    </message>
    <message>
        <source>transparency value %1</source>
        <translation>Transparenzwert %1</translation>
    </message>
    <message>
        <source>Enter material name &lt;Global&gt;: </source>
        <translation>Materialnamen eingeben &lt;Global&gt;: </translation>
    </message>
    <message>
        <source>Cannot find material &quot;%1&quot;.</source>
        <translation>Das Material &quot;%1&quot; wurde nicht gefunden.</translation>
    </message>
    <message>
        <source>material &quot;%1&quot;</source>
        <translation>Material &quot;%1&quot;</translation>
    </message>
    <message>
        <source>Enter a plotting preference [Plot/No plot] &lt;Plot&gt;: </source>
        <translation>Ploteinstellung eingeben [Plot/No plot] &lt;Plot&gt;: </translation>
    </message>
    <message>
        <source>this plot preference</source>
        <translation>diese Ploteinstellung</translation>
    </message>
    <message>
        <source>Enter layer description: </source>
        <translation>Layerbeschreibung eingeben: </translation>
    </message>
    <message>
        <source>this description</source>
        <translation>diese Beschreibung</translation>
    </message>
    <message>
        <source>This program keeps no named plot styles: nothing was changed.</source>
        <translation>Dieses Programm hat keine benannten Plotstile: nichts wurde geändert.</translation>
    </message>
    <message>
        <source>
No matching layer names found.</source>
        <translation>
Keine passenden Layernamen gefunden.</translation>
    </message>
    <message>
        <source>
Cannot freeze layer &quot;%1&quot;. It is the current layer.</source>
        <translation>
Der Layer &quot;%1&quot; kann nicht gefroren werden. Es ist der aktuelle Layer.</translation>
    </message>
    <message>
        <source>Enter name list of layer(s) to turn on: </source>
        <translation>Namensliste der einzuschaltenden Layer eingeben: </translation>
    </message>
    <message>
        <source>Enter name list of layer(s) to turn off: </source>
        <translation>Namensliste der auszuschaltenden Layer eingeben: </translation>
    </message>
    <message>
        <source>Enter name list of layer(s) to freeze: </source>
        <translation>Namensliste der zu frierenden Layer eingeben: </translation>
    </message>
    <message>
        <source>Enter name list of layer(s) to thaw: </source>
        <translation>Namensliste der zu tauenden Layer eingeben: </translation>
    </message>
    <message>
        <source>Enter name list of layer(s) to lock: </source>
        <translation>Namensliste der zu sperrenden Layer eingeben: </translation>
    </message>
    <message>
        <source>Enter name list of layer(s) to unlock: </source>
        <translation>Namensliste der zu entsperrenden Layer eingeben: </translation>
    </message>
    <message>
        <source>Really want layer &quot;%1&quot; (the CURRENT layer) off? [Yes/No] &lt;No&gt;: </source>
        <translation>Layer &quot;%1&quot; (den AKTUELLEN Layer) wirklich ausschalten? [Yes/No] &lt;No&gt;: </translation>
    </message>
    <message>
        <source>&quot;%1&quot; cannot be the name of a layer.</source>
        <translation>&quot;%1&quot; kann kein Layername sein.</translation>
    </message>
    <message>
        <source>Cannot make layer &quot;%1&quot; current: it is frozen.</source>
        <translation>Der Layer &quot;%1&quot; kann nicht aktuell werden: er ist gefroren.</translation>
    </message>
    <message>
        <source>Enter name for new layer (becomes the current layer) &lt;%1&gt;: </source>
        <translation>Namen des neuen Layers eingeben (wird der aktuelle) &lt;%1&gt;: </translation>
    </message>
    <message>
        <source>Enter layer name to make current or &lt;select object&gt;: </source>
        <translation>Namen des Layers eingeben, der aktuell wird, oder &lt;Objekt wählen&gt;: </translation>
    </message>
    <message>
        <source>Enter name list for new layer(s): </source>
        <translation>Namensliste der neuen Layer eingeben: </translation>
    </message>
    <message>
        <source>Enter old layer name: </source>
        <translation>Alten Layernamen eingeben: </translation>
    </message>
    <message>
        <source>Enter layer name(s) to list &lt;*&gt;: </source>
        <translation>Aufzulistende Layernamen eingeben &lt;*&gt;: </translation>
    </message>
    <message>
        <source>
Layer name  State  Color  Linetype  Lineweight</source>
        <translation>
Layername   Status Farbe  Linientyp Linienstärke</translation>
    </message>
    <message>
        <source>
Current layer:  &quot;%1&quot;</source>
        <translation>
Aktueller Layer:  &quot;%1&quot;</translation>
    </message>
    <message>
        <source>Enter name list of layer(s) to reconcile: </source>
        <translation>Namensliste der abzustimmenden Layer eingeben: </translation>
    </message>
    <message>
        <source>
No unreconciled layers.</source>
        <translation>
Es gibt keine nicht abgestimmten Layer.</translation>
    </message>
    <message>
        <source>Enter name list of layer(s) for %1 &lt;%2&gt;: </source>
        <translation>Namensliste der Layer eingeben für %1 &lt;%2&gt;: </translation>
    </message>
    <message>
        <source>Enter an option [?/Make/Set/New/Rename/ON/OFF/Color/Ltype/LWeight/TRansparency/MATerial/Plot/PStyle/Freeze/Thaw/LOck/Unlock/stAte/Description/rEconcile]: </source>
        <translation>Option eingeben [?/Make/Set/New/Rename/ON/OFF/Color/Ltype/LWeight/TRansparency/MATerial/Plot/PStyle/Freeze/Thaw/LOck/Unlock/stAte/Description/rEconcile]: </translation>
    </message>
    <message>
        <source>
States to restore: </source>
        <translation>
Wiederherzustellende Eigenschaften: </translation>
    </message>
    <message>
        <source>Enter states to change [On/Frozen/Lock/Plot/Newvpfreeze/Color/lineType/lineWeight/plotStyle/TRansparency]: </source>
        <translation>Zu ändernde Eigenschaften eingeben [On/Frozen/Lock/Plot/Newvpfreeze/Color/lineType/lineWeight/plotStyle/TRansparency]: </translation>
    </message>
    <message>
        <source>
No layer states.</source>
        <translation>
Keine Layerstatus.</translation>
    </message>
    <message>
        <source>
Layer states: </source>
        <translation>
Layerstatus: </translation>
    </message>
    <message>
        <source>Cannot find layer state &quot;%1&quot;.</source>
        <translation>Der Layerstatus &quot;%1&quot; wurde nicht gefunden.</translation>
    </message>
    <message>
        <source>Enter new layer state name: </source>
        <translation>Namen des neuen Layerstatus eingeben: </translation>
    </message>
    <message>
        <source>A drawing of this version keeps no layer states.</source>
        <translation>Eine Zeichnung dieser Version hält keine Layerstatus fest.</translation>
    </message>
    <message>
        <source>Enter name of layer state to restore or [?]: </source>
        <translation>Namen des wiederherzustellenden Layerstatus eingeben oder [?]: </translation>
    </message>
    <message>
        <source>Enter name of layer state to edit or [?]: </source>
        <translation>Namen des zu bearbeitenden Layerstatus eingeben oder [?]: </translation>
    </message>
    <message>
        <source>Enter name of layer state to rename or [?]: </source>
        <translation>Namen des umzubenennenden Layerstatus eingeben oder [?]: </translation>
    </message>
    <message>
        <source>Layer state &quot;%1&quot; already exists or cannot be one.</source>
        <translation>Der Layerstatus &quot;%1&quot; ist bereits vorhanden oder kann keiner sein.</translation>
    </message>
    <message>
        <source>Enter name of layer state to delete or [?]: </source>
        <translation>Namen des zu löschenden Layerstatus eingeben oder [?]: </translation>
    </message>
    <message>
        <source>Enter name of file to import: </source>
        <translation>Namen der zu importierenden Datei eingeben: </translation>
    </message>
    <message>
        <source>No layer state was taken from &quot;%1&quot;.</source>
        <translation>Aus &quot;%1&quot; wurde kein Layerstatus übernommen.</translation>
    </message>
    <message>
        <source>
Layer state &quot;%1&quot; imported.</source>
        <translation>
Layerstatus &quot;%1&quot; importiert.</translation>
    </message>
    <message>
        <source>Enter name of layer state to export or [?]: </source>
        <translation>Namen des zu exportierenden Layerstatus eingeben oder [?]: </translation>
    </message>
    <message>
        <source>Enter name of file to export: </source>
        <translation>Namen der Exportdatei eingeben: </translation>
    </message>
    <message>
        <source>Enter an option [?/Save/Restore/Edit/Name/Delete/Import/EXport]: </source>
        <translation>Option eingeben [?/Save/Restore/Edit/Name/Delete/Import/EXport]: </translation>
    </message>
    <message>
        <source>
Cannot read linetype file &quot;%1&quot;.</source>
        <translation>
Die Linientypdatei &quot;%1&quot; kann nicht gelesen werden.</translation>
    </message>
    <message>
        <source>
Cannot read linetype file &quot;%1&quot;: %2 (the limit is %3 MB).</source>
        <translation>
Die Linientypdatei &quot;%1&quot; kann nicht gelesen werden: %2 (die Grenze liegt bei %3 MB).</translation>
    </message>
    <message>
        <source>
Linetype &quot;%1&quot; not loaded: %2.</source>
        <translation>
Linientyp &quot;%1&quot; nicht geladen: %2.</translation>
    </message>
    <message>
        <source>
Linetype &quot;%1&quot; not found.</source>
        <translation>
Der Linientyp &quot;%1&quot; wurde nicht gefunden.</translation>
    </message>
    <message>
        <source>Enter an option [?/Load/Set]: </source>
        <translation>Option eingeben [?/Load/Set]: </translation>
    </message>
    <message>
        <source>Specify linetype name: </source>
        <translation>Linientypnamen angeben: </translation>
    </message>
    <message>
        <source>Enter linetype(s) to load: </source>
        <translation>Zu ladende Linientypen eingeben: </translation>
    </message>
    <message>
        <source>Enter name of linetype file: </source>
        <translation>Namen der Linientypdatei eingeben: </translation>
    </message>
    <message>
        <source>
No matching linetypes found.</source>
        <translation>
Keine passenden Linientypen gefunden.</translation>
    </message>
    <message>
        <source>Linetype &quot;%1&quot; is already loaded. Reload it? [Yes/No] &lt;Yes&gt;: </source>
        <translation>Der Linientyp &quot;%1&quot; ist bereits geladen. Neu laden? [Yes/No] &lt;Yes&gt;: </translation>
    </message>
    <message>
        <source>Enter setting for layers not isolated [Off/Lock and fade] &lt;%1&gt;: </source>
        <translation>Einstellung für nicht isolierte Layer eingeben [Off/Lock and fade] &lt;%1&gt;: </translation>
    </message>
    <message>
        <source>In paper space viewport use [Vpfreeze/Off] &lt;Vpfreeze&gt;: </source>
        <translation>Im Ansichtsfenster des Papierbereichs verwenden [Vpfreeze/Off] &lt;Vpfreeze&gt;: </translation>
    </message>
    <message>
        <source>Enter fade value (0-90) &lt;50&gt;: </source>
        <translation>Verblassungswert eingeben (0-90) &lt;50&gt;: </translation>
    </message>
    <message>
        <source>
Layer &quot;%1&quot; has been isolated.</source>
        <translation>
Der Layer &quot;%1&quot; wurde isoliert.</translation>
    </message>
    <message>
        <source>
%1 layers have been isolated.</source>
        <translation>
%1 Layer wurden isoliert.</translation>
    </message>
    <message>
        <source>
Current setting: Hide layers, Viewports=Vpfreeze</source>
        <translation>
Aktuelle Einstellung: Layer verbergen, Viewports=Vpfreeze</translation>
    </message>
    <message>
        <source>
Current setting: Lock layers, Fade=50</source>
        <translation>
Aktuelle Einstellung: Layer sperren, Verblassung=50</translation>
    </message>
    <message>
        <source>Select objects on the layer(s) to be isolated or [Settings]: </source>
        <translation>Objekte auf den zu isolierenden Layern wählen oder [Settings]: </translation>
    </message>
    <message>
        <source>Nothing was selected.</source>
        <translation>Es wurde nichts gewählt.</translation>
    </message>
    <message>
        <source>
No layers are isolated.</source>
        <translation>
Es sind keine Layer isoliert.</translation>
    </message>
    <message>
        <source>
Layers isolated by LAYISO command have been restored.</source>
        <translation>
Die mit LAYISO isolierten Layer wurden wiederhergestellt.</translation>
    </message>
    <message>
        <source>
There is no previous state of the layers.</source>
        <translation>
Es gibt keinen vorherigen Zustand der Layer.</translation>
    </message>
    <message>
        <source>
Restored previous layer status.</source>
        <translation>
Der vorherige Layerzustand wurde wiederhergestellt.</translation>
    </message>
    <message>
        <source>Select an object on the layer to be frozen or [Settings/Undo]: </source>
        <translation>Objekt auf dem zu frierenden Layer wählen oder [Settings/Undo]: </translation>
    </message>
    <message>
        <source>
Layer &quot;%1&quot; has been frozen.</source>
        <translation>
Der Layer &quot;%1&quot; wurde gefroren.</translation>
    </message>
    <message>
        <source>Select an object on the layer to be turned off or [Settings/Undo]: </source>
        <translation>Objekt auf dem auszuschaltenden Layer wählen oder [Settings/Undo]: </translation>
    </message>
    <message>
        <source>
Layer &quot;%1&quot; has been turned off.</source>
        <translation>
Der Layer &quot;%1&quot; wurde ausgeschaltet.</translation>
    </message>
    <message>
        <source>Enter setting type for [Viewports/Block selection]: </source>
        <translation>Art der Einstellung eingeben für [Viewports/Block selection]: </translation>
    </message>
    <message>
        <source>In paper space viewport use [Vpfreeze/Freeze/Off] &lt;Vpfreeze&gt;: </source>
        <translation>Im Ansichtsfenster des Papierbereichs verwenden [Vpfreeze/Freeze/Off] &lt;Vpfreeze&gt;: </translation>
    </message>
    <message>
        <source>Enter block selection nesting level [Block/Entity/None] &lt;Entity&gt;: </source>
        <translation>Verschachtelungsebene der Blockwahl eingeben [Block/Entity/None] &lt;Entity&gt;: </translation>
    </message>
    <message>
        <source>Layer &quot;%1&quot; is current, do you want to turn it off? [Yes/No] &lt;No&gt;: </source>
        <translation>Der Layer &quot;%1&quot; ist aktuell. Soll er ausgeschaltet werden? [Yes/No] &lt;No&gt;: </translation>
    </message>
    <message>
        <source>
All layers have been turned on.</source>
        <translation>
Alle Layer wurden eingeschaltet.</translation>
    </message>
    <message>
        <source>
All layers have been thawed.</source>
        <translation>
Alle Layer wurden getaut.</translation>
    </message>
    <message>
        <source>Select an object on the layer to be locked: </source>
        <translation>Objekt auf dem zu sperrenden Layer wählen: </translation>
    </message>
    <message>
        <source>Select an object on the layer to be unlocked: </source>
        <translation>Objekt auf dem zu entsperrenden Layer wählen: </translation>
    </message>
    <message>
        <source>
Layer &quot;%1&quot; has been locked.</source>
        <translation>
Der Layer &quot;%1&quot; wurde gesperrt.</translation>
    </message>
    <message>
        <source>
Layer &quot;%1&quot; has been unlocked.</source>
        <translation>
Der Layer &quot;%1&quot; wurde entsperrt.</translation>
    </message>
    <message>
        <source>
One object changed to layer &quot;%1&quot;.</source>
        <translation>
Ein Objekt liegt jetzt auf dem Layer &quot;%1&quot;.</translation>
    </message>
    <message>
        <source>
%1 objects changed to layer &quot;%2&quot;.</source>
        <translation>
%1 Objekte liegen jetzt auf dem Layer &quot;%2&quot;.</translation>
    </message>
    <message>
        <source>Select objects to be changed to the current layer: </source>
        <translation>Objekte wählen, die auf den aktuellen Layer kommen: </translation>
    </message>
    <message>
        <source>Select objects to be changed: </source>
        <translation>Zu ändernde Objekte wählen: </translation>
    </message>
    <message>
        <source>Select object on destination layer or [Name]: </source>
        <translation>Objekt auf dem Ziellayer wählen oder [Name]: </translation>
    </message>
    <message>
        <source>Enter layer name: </source>
        <translation>Layernamen eingeben: </translation>
    </message>
    <message>
        <source>Select object whose layer will become current: </source>
        <translation>Objekt wählen, dessen Layer aktuell wird: </translation>
    </message>
    <message>
        <source>
%1 is now the current layer.</source>
        <translation>
%1 ist jetzt der aktuelle Layer.</translation>
    </message>
    <message>
        <source>This command works through a viewport of a sheet: MSPACE goes into one.</source>
        <translation>Dieser Befehl arbeitet durch ein Ansichtsfenster eines Blattes: MSPACE geht in eines.</translation>
    </message>
    <message>
        <source>Select an object on the layer to be isolated in viewport or [Settings/Undo]: </source>
        <translation>Objekt auf dem im Ansichtsfenster zu isolierenden Layer wählen oder [Settings/Undo]: </translation>
    </message>
    <message>
        <source>
Layer &quot;%1&quot; has been frozen in all viewports but the current one.</source>
        <translation>
Der Layer &quot;%1&quot; wurde in allen Ansichtsfenstern außer dem aktuellen gefroren.</translation>
    </message>
    <message>
        <source>
Selected layers: %1.</source>
        <translation>
Gewählte Layer: %1.</translation>
    </message>
    <message>
        <source>Do you wish to continue? [Yes/No] &lt;No&gt;: </source>
        <translation>Möchten Sie fortfahren? [Yes/No] &lt;No&gt;: </translation>
    </message>
    <message>
        <source>Select object on layer to delete or %1: </source>
        <translation>Objekt auf dem zu löschenden Layer wählen oder %1: </translation>
    </message>
    <message>
        <source>Enter layer name to delete: </source>
        <translation>Namen des zu löschenden Layers eingeben: </translation>
    </message>
    <message>
        <source>All that is on layer(s) %1 is erased, and the layers are deleted.</source>
        <translation>Alles auf den Layern %1 wird gelöscht, und die Layer werden gelöscht.</translation>
    </message>
    <message>
        <source>
%1 layer(s) deleted with %2 object(s).</source>
        <translation>
%1 Layer mit %2 Objekt(en) gelöscht.</translation>
    </message>
    <message>
        <source>Select object on layer to merge or %1: </source>
        <translation>Objekt auf dem zusammenzuführenden Layer wählen oder %1: </translation>
    </message>
    <message>
        <source>Enter layer name to merge: </source>
        <translation>Namen des zusammenzuführenden Layers eingeben: </translation>
    </message>
    <message>
        <source>Select object on target layer or [Name]: </source>
        <translation>Objekt auf dem Ziellayer wählen oder [Name]: </translation>
    </message>
    <message>
        <source>You are about to merge %1 layer(s) into layer &quot;%2&quot;.</source>
        <translation>%1 Layer werden mit dem Layer &quot;%2&quot; zusammengeführt.</translation>
    </message>
    <message>
        <source>
%1 layer(s) deleted.</source>
        <translation>
%1 Layer gelöscht.</translation>
    </message>
    <message>
        <source>Enter variable(s) to list &lt;*&gt;: </source>
        <translation>Aufzulistende Variablen eingeben &lt;*&gt;: </translation>
    </message>
    <message>
        <source> (read only)</source>
        <translation> (schreibgeschützt)</translation>
    </message>
    <message>
        <source>
No variable has such a name.</source>
        <translation>
Keine Variable heißt so.</translation>
    </message>
    <message>
        <source>Requires an integer.</source>
        <translation>Eine ganze Zahl wird gebraucht.</translation>
    </message>
    <message>
        <source>Requires a number.</source>
        <translation>Eine Zahl wird gebraucht.</translation>
    </message>
    <message>
        <source>Requires a number between %1 and %2.</source>
        <translation>Eine Zahl zwischen %1 und %2 wird gebraucht.</translation>
    </message>
    <message>
        <source>Cannot set %1 to that value.</source>
        <translation>%1 kann nicht auf diesen Wert gesetzt werden.</translation>
    </message>
    <message>
        <source>Requires a point.</source>
        <translation>Ein Punkt wird gebraucht.</translation>
    </message>
    <message>
        <source>Enter variable name or [?]: </source>
        <translation>Namen der Variablen eingeben oder [?]: </translation>
    </message>
    <message>
        <source>Unknown variable name &quot;%1&quot;. Type SETVAR ? for a list of variables.</source>
        <translation>Unbekannte Variable &quot;%1&quot;. SETVAR ? zeigt eine Liste der Variablen.</translation>
    </message>
    <message>
        <source>
%1 = %2 (read only)</source>
        <translation>
%1 = %2 (schreibgeschützt)</translation>
    </message>
    <message>
        <source>Enter new value for %1 &lt;%2&gt;: </source>
        <translation>Neuen Wert für %1 eingeben &lt;%2&gt;: </translation>
    </message>
    <message>
        <source>
Active layouts:</source>
        <translation>
Aktive Layouts:</translation>
    </message>
    <message>
        <source>
Layout: %1	Block name: %2.</source>
        <translation>
Layout: %1	Blockname: %2.</translation>
    </message>
    <message>
        <source>
%1 active layout(s) found.</source>
        <translation>
%1 aktive(s) Layout(s) gefunden.</translation>
    </message>
    <message>
        <source>Enter name of layout to copy: </source>
        <translation>Namen des zu kopierenden Layouts eingeben: </translation>
    </message>
    <message>
        <source>Enter layout name for copy: </source>
        <translation>Layoutnamen der Kopie eingeben: </translation>
    </message>
    <message>
        <source>Layout &quot;%1&quot; copied to &quot;%2&quot;.</source>
        <translation>Layout &quot;%1&quot; nach &quot;%2&quot; kopiert.</translation>
    </message>
    <message>
        <source>Enter new Layout name: </source>
        <translation>Neuen Layoutnamen eingeben: </translation>
    </message>
    <message>
        <source>Layout &quot;%1&quot; created.</source>
        <translation>Layout &quot;%1&quot; erstellt.</translation>
    </message>
    <message>
        <source>Enter layout to rename: </source>
        <translation>Umzubenennendes Layout eingeben: </translation>
    </message>
    <message>
        <source>Enter new layout name: </source>
        <translation>Neuen Layoutnamen eingeben: </translation>
    </message>
    <message>
        <source>Layout &quot;%1&quot; renamed to &quot;%2&quot;.</source>
        <translation>Layout &quot;%1&quot; in &quot;%2&quot; umbenannt.</translation>
    </message>
    <message>
        <source>Enter name of layout to delete: </source>
        <translation>Namen des zu löschenden Layouts eingeben: </translation>
    </message>
    <message>
        <source>Layout &quot;%1&quot; deleted.</source>
        <translation>Layout &quot;%1&quot; gelöscht.</translation>
    </message>
    <message>
        <source>Enter layout to make current: </source>
        <translation>Layout eingeben, das aktuell wird: </translation>
    </message>
    <message>
        <source>Enter layout to move: </source>
        <translation>Zu verschiebendes Layout eingeben: </translation>
    </message>
    <message>
        <source>Enter its place among the layouts: </source>
        <translation>Seinen Platz unter den Layouts eingeben: </translation>
    </message>
    <message>
        <source>Layout &quot;%1&quot; moved.</source>
        <translation>Layout &quot;%1&quot; verschoben.</translation>
    </message>
    <message>
        <source>Enter layout to save to template: </source>
        <translation>Layout eingeben, das als Vorlage gespeichert wird: </translation>
    </message>
    <message>
        <source>Enter layout option [Copy/Delete/New/Template/Rename/SAveas/Set/Move/?]: </source>
        <translation>Layoutoption eingeben [Copy/Delete/New/Template/Rename/SAveas/Set/Move/?]: </translation>
    </message>
    <message>
        <source>Layout &quot;%1&quot;: %2.</source>
        <translation>Layout &quot;%1&quot;: %2.</translation>
    </message>
    <message>
        <source>
Layout &quot;%1&quot; created.</source>
        <translation>
Layout &quot;%1&quot; erstellt.</translation>
    </message>
    <message>
        <source> %1 of its entities could not be taken over.</source>
        <translation> %1 der Objekte konnten nicht übernommen werden.</translation>
    </message>
    <message>
        <source>Enter template file name: </source>
        <translation>Namen der Vorlagendatei eingeben: </translation>
    </message>
    <message>
        <source>Enter layout name(s): </source>
        <translation>Layoutname(n) eingeben: </translation>
    </message>
    <message>
        <source>Layout &quot;%1&quot; not found in %2.</source>
        <translation>Das Layout &quot;%1&quot; wurde in %2 nicht gefunden.</translation>
    </message>
    <message>
        <source>Enter file name to save layout to: </source>
        <translation>Namen der Datei eingeben, in der das Layout gespeichert wird: </translation>
    </message>
    <message>
        <source>Enter view name to save: </source>
        <translation>Namen des zu speichernden Ausschnitts eingeben: </translation>
    </message>
    <message>
        <source>&quot;%1&quot; cannot be the name of a view.</source>
        <translation>&quot;%1&quot; kann kein Name eines Ausschnitts sein.</translation>
    </message>
    <message>
        <source>
Specify opposite corner: </source>
        <translation>
Gegenüberliegende Ecke angeben: </translation>
    </message>
    <message>
        <source>The window has no area.</source>
        <translation>Das Fenster hat keine Fläche.</translation>
    </message>
    <message>
        <source>Select viewport for view: </source>
        <translation>Ansichtsfenster für den Ausschnitt wählen: </translation>
    </message>
    <message>
        <source>The view shows model space, and no viewport was chosen for it.</source>
        <translation>Der Ausschnitt zeigt den Modellbereich, und es wurde kein Ansichtsfenster dafür gewählt.</translation>
    </message>
    <message>
        <source>Enter view name to restore: </source>
        <translation>Namen des wiederherzustellenden Ausschnitts eingeben: </translation>
    </message>
    <message>
        <source>Enter view name(s) to delete: </source>
        <translation>Zu löschende Ausschnittnamen eingeben: </translation>
    </message>
    <message>
        <source>
No matching views found.</source>
        <translation>
Keine passenden Ausschnitte gefunden.</translation>
    </message>
    <message>
        <source>Enter view name(s) to list &lt;*&gt;: </source>
        <translation>Aufzulistende Ausschnittnamen eingeben &lt;*&gt;: </translation>
    </message>
    <message>
        <source>Enter an option [Top/Bottom/Front/BAck/Left/Right] &lt;Top&gt;: </source>
        <translation>Option eingeben [Top/Bottom/Front/BAck/Left/Right] &lt;Top&gt;: </translation>
    </message>
    <message>
        <source>Save current UCS with named views? [Yes/No] &lt;Yes&gt;: </source>
        <translation>Aktuelles BKS mit benannten Ausschnitten speichern? [Yes/No] &lt;Yes&gt;: </translation>
    </message>
    <message>
        <source>
Coordinate systems are not kept with views.</source>
        <translation>
Koordinatensysteme werden nicht mit Ausschnitten gespeichert.</translation>
    </message>
    <message>
        <source>Enter an option [?/Delete/Orthographic/Restore/Save/Ucs/Window]: </source>
        <translation>Option eingeben [?/Delete/Orthographic/Restore/Save/Ucs/Window]: </translation>
    </message>
    <message>
        <source>Enter an option [Current ucs/Ucs/World] &lt;Current&gt;: </source>
        <translation>Option eingeben [Current ucs/Ucs/World] &lt;Current&gt;: </translation>
    </message>
    <message>
        <source>Enter name of UCS or [?]: </source>
        <translation>Namen des BKS eingeben oder [?]: </translation>
    </message>
    <message>
        <source>Enter angle in XY plane from X axis: </source>
        <translation>Winkel zur X-Achse in der XY-Ebene eingeben: </translation>
    </message>
    <message>
        <source>Enter angle from XY plane: </source>
        <translation>Winkel zur XY-Ebene eingeben: </translation>
    </message>
    <message>
        <source>Specify a view point or [Rotate] &lt;%1&gt;: </source>
        <translation>Ansichtspunkt angeben oder [Rotate] &lt;%1&gt;: </translation>
    </message>
    <message>
        <source>There is no direction from the target to itself.</source>
        <translation>Vom Zielpunkt zu sich selbst gibt es keine Richtung.</translation>
    </message>
    <message>
        <source>Enter name for new viewport configuration or [?]: </source>
        <translation>Namen der neuen Ansichtsfensterkonfiguration eingeben oder [?]: </translation>
    </message>
    <message>
        <source>&quot;%1&quot; cannot be the name of a viewport configuration.</source>
        <translation>&quot;%1&quot; kann kein Name einer Ansichtsfensterkonfiguration sein.</translation>
    </message>
    <message>
        <source>Enter name of viewport configuration to restore or [?]: </source>
        <translation>Namen der wiederherzustellenden Ansichtsfensterkonfiguration eingeben oder [?]: </translation>
    </message>
    <message>
        <source>Cannot find viewport configuration &quot;%1&quot;.</source>
        <translation>Die Ansichtsfensterkonfiguration &quot;%1&quot; wurde nicht gefunden.</translation>
    </message>
    <message>
        <source>Enter name(s) of viewport configurations to delete &lt;none&gt;: </source>
        <translation>Namen der zu löschenden Ansichtsfensterkonfigurationen eingeben &lt;keine&gt;: </translation>
    </message>
    <message>
        <source>
No matching viewport configurations found.</source>
        <translation>
Keine passenden Ansichtsfensterkonfigurationen gefunden.</translation>
    </message>
    <message>
        <source>Enter name(s) of viewport configuration(s) to list &lt;*&gt;: </source>
        <translation>Aufzulistende Ansichtsfensterkonfigurationen eingeben &lt;*&gt;: </translation>
    </message>
    <message>
        <source>The screen is divided into too many viewports already.</source>
        <translation>Der Bildschirm ist schon in zu viele Ansichtsfenster geteilt.</translation>
    </message>
    <message>
        <source>The window shows one view: the viewports to join cannot be picked.</source>
        <translation>Das Fenster zeigt eine Ansicht: die zu verbindenden Ansichtsfenster können nicht gewählt werden.</translation>
    </message>
    <message>
        <source>Enter an option [Save/Restore/Delete/Join/SIngle/?/2/3/4] &lt;3&gt;: </source>
        <translation>Option eingeben [Save/Restore/Delete/Join/SIngle/?/2/3/4] &lt;3&gt;: </translation>
    </message>
    <message>
        <source>** Command not allowed in Model Tab **</source>
        <translation>** Befehl auf der Registerkarte Modell nicht erlaubt **</translation>
    </message>
    <message>
        <source>There are no active model space viewports.</source>
        <translation>Es gibt keine aktiven Ansichtsfenster des Modellbereichs.</translation>
    </message>
    <message>
        <source>The viewport has no area.</source>
        <translation>Das Ansichtsfenster hat keine Fläche.</translation>
    </message>
    <message>
        <source>Enter viewport arrangement [Horizontal/Vertical] &lt;Vertical&gt;: </source>
        <translation>Anordnung der Ansichtsfenster eingeben [Horizontal/Vertical] &lt;Vertical&gt;: </translation>
    </message>
    <message>
        <source>Enter viewport arrangement [Horizontal/Vertical/Above/Below/Left/Right] &lt;Right&gt;: </source>
        <translation>Anordnung der Ansichtsfenster eingeben [Horizontal/Vertical/Above/Below/Left/Right] &lt;Right&gt;: </translation>
    </message>
    <message>
        <source>
No viewport was chosen.</source>
        <translation>
Es wurde kein Ansichtsfenster gewählt.</translation>
    </message>
    <message>
        <source>
Current osnap modes: </source>
        <translation>
Aktuelle Objektfangmodi: </translation>
    </message>
    <message>
        <source>Enter list of object snap modes: </source>
        <translation>Liste der Objektfangmodi eingeben: </translation>
    </message>
    <message>
        <source>Invalid object snap mode.</source>
        <translation>Ungültiger Objektfangmodus.</translation>
    </message>
    <message>
        <source>Object snap target height (1-50 pixels) &lt;%1&gt;: </source>
        <translation>Höhe der Objektfang-Pickbox (1-50 Pixel) &lt;%1&gt;: </translation>
    </message>
    <message>
        <source>Value must be between 1 and 50.</source>
        <translation>Der Wert muss zwischen 1 und 50 liegen.</translation>
    </message>
    <message>
        <source>Specify new origin point</source>
        <translation>Neuen Ursprung angeben</translation>
    </message>
    <message>
        <source>Specify new origin point or [Zdepth] &lt;%1&gt;: </source>
        <translation>Neuen Ursprung angeben oder [Zdepth] &lt;%1&gt;: </translation>
    </message>
    <message>
        <source>Specify Z depth &lt;0&gt;: </source>
        <translation>Z-Tiefe angeben &lt;0&gt;: </translation>
    </message>
    <message>
        <source>Specify point on positive portion of X-axis</source>
        <translation>Punkt auf dem positiven Teil der X-Achse angeben</translation>
    </message>
    <message>
        <source>Specify point on positive-Y portion of the UCS XY plane</source>
        <translation>Punkt mit positivem Y in der XY-Ebene des BKS angeben</translation>
    </message>
    <message>
        <source>The three points lie on a line.</source>
        <translation>Die drei Punkte liegen auf einer Geraden.</translation>
    </message>
    <message>
        <source>Specify point on positive portion of Z-axis</source>
        <translation>Punkt auf dem positiven Teil der Z-Achse angeben</translation>
    </message>
    <message>
        <source>The Z axis has no direction.</source>
        <translation>Die Z-Achse hat keine Richtung.</translation>
    </message>
    <message>
        <source>Specify rotation angle about %1 axis &lt;%2&gt;: </source>
        <translation>Drehwinkel um die Achse %1 angeben &lt;%2&gt;: </translation>
    </message>
    <message>
        <source>Select object to align UCS: </source>
        <translation>Objekt wählen, an dem das BKS ausgerichtet wird: </translation>
    </message>
    <message>
        <source>No UCS can be aligned with this object.</source>
        <translation>An diesem Objekt kann kein BKS ausgerichtet werden.</translation>
    </message>
    <message>
        <source>Enter name to save current UCS or [?]: </source>
        <translation>Namen eingeben, unter dem das aktuelle BKS gespeichert wird, oder [?]: </translation>
    </message>
    <message>
        <source>&quot;%1&quot; cannot be the name of a UCS.</source>
        <translation>&quot;%1&quot; kann kein Name eines BKS sein.</translation>
    </message>
    <message>
        <source>UCS &quot;%1&quot; already exists. Replace it? [Yes/No] &lt;No&gt;: </source>
        <translation>Das BKS &quot;%1&quot; ist bereits vorhanden. Ersetzen? [Yes/No] &lt;No&gt;: </translation>
    </message>
    <message>
        <source>Enter name of UCS to restore or [?]: </source>
        <translation>Namen des wiederherzustellenden BKS eingeben oder [?]: </translation>
    </message>
    <message>
        <source>Enter UCS name(s) to delete &lt;none&gt;: </source>
        <translation>Namen der zu löschenden BKS eingeben &lt;keine&gt;: </translation>
    </message>
    <message>
        <source>
No matching UCS names found.</source>
        <translation>
Keine passenden BKS-Namen gefunden.</translation>
    </message>
    <message>
        <source>
Current UCS:  %1</source>
        <translation>
Aktuelles BKS:  %1</translation>
    </message>
    <message>
        <source>Enter UCS name(s) to list &lt;*&gt;: </source>
        <translation>Aufzulistende BKS-Namen eingeben &lt;*&gt;: </translation>
    </message>
    <message>
        <source>&quot;%1&quot;  Origin = &lt;%2&gt;, X = &lt;%3&gt;, Y = &lt;%4&gt;</source>
        <translation>&quot;%1&quot;  Ursprung = &lt;%2&gt;, X = &lt;%3&gt;, Y = &lt;%4&gt;</translation>
    </message>
    <message>
        <source>Faces of solids cannot be chosen here.</source>
        <translation>Flächen von Volumenkörpern können hier nicht gewählt werden.</translation>
    </message>
    <message>
        <source>
No previous coordinate system saved.</source>
        <translation>
Kein vorheriges Koordinatensystem gespeichert.</translation>
    </message>
    <message>
        <source>Specify point on X-axis or &lt;accept&gt;: </source>
        <translation>Punkt auf der X-Achse angeben oder &lt;annehmen&gt;: </translation>
    </message>
    <message>
        <source>Specify point on the XY plane or &lt;accept&gt;: </source>
        <translation>Punkt in der XY-Ebene angeben oder &lt;annehmen&gt;: </translation>
    </message>
    <message>
        <source>Specify origin of new UCS or [ZAxis/3point/OBject/Face/View/X/Y/Z] &lt;%1&gt;: </source>
        <translation>Ursprung des neuen BKS angeben oder [ZAxis/3point/OBject/Face/View/X/Y/Z] &lt;%1&gt;: </translation>
    </message>
    <message>
        <source>
Current ucs name:  %1</source>
        <translation>
Name des aktuellen BKS:  %1</translation>
    </message>
    <message>
        <source>Specify origin of UCS or [Face/NAmed/OBject/Previous/View/World/X/Y/Z/ZAxis] &lt;World&gt;: </source>
        <translation>Ursprung des BKS angeben oder [Face/NAmed/OBject/Previous/View/World/X/Y/Z/ZAxis] &lt;World&gt;: </translation>
    </message>
    <message>
        <source>Enter an option [Restore/Save/Delete/?]: </source>
        <translation>Option eingeben [Restore/Save/Delete/?]: </translation>
    </message>
    <message>
        <source>Requires a scale factor, two corners or an option keyword.</source>
        <translation>Ein Skalierfaktor, zwei Ecken oder ein Optionswort wird gebraucht.</translation>
    </message>
    <message>
        <source>A scale of the sheet is for viewports: MSPACE goes into one.</source>
        <translation>Ein Maßstab zum Blatt ist für Ansichtsfenster: MSPACE geht in eines.</translation>
    </message>
    <message>
        <source>
Enter magnification or height &lt;%1&gt;: </source>
        <translation>
Vergrößerung oder Höhe eingeben &lt;%1&gt;: </translation>
    </message>
    <message>
        <source>Requires a height, or a magnification (nX).</source>
        <translation>Eine Höhe oder Vergrößerung (nX) wird gebraucht.</translation>
    </message>
    <message>
        <source>Specify center point: </source>
        <translation>Mittelpunkt angeben: </translation>
    </message>
    <message>
        <source>Specify lower left corner point: </source>
        <translation>Linke untere Ecke angeben: </translation>
    </message>
    <message>
        <source>Enter a scale factor (nX or nXP): </source>
        <translation>Skalierfaktor eingeben (nX oder nXP): </translation>
    </message>
    <message>
        <source>There is no dynamic zoom: use the window&apos;s wheel.</source>
        <translation>Es gibt keinen dynamischen Zoom: verwenden Sie das Rad im Fenster.</translation>
    </message>
    <message>
        <source>
Specify corner of window, enter a scale factor (nX or nXP), or [All/Center/Dynamic/Extents/Previous/Scale/Window/Object] &lt;real time&gt;: </source>
        <translation>
Ecke des Fensters angeben, Skalierfaktor eingeben (nX oder nXP) oder [All/Center/Dynamic/Extents/Previous/Scale/Window/Object] &lt;Echtzeit&gt;: </translation>
    </message>
    <message>
        <source>
No previous view saved.</source>
        <translation>
Keine vorherige Ansicht gespeichert.</translation>
    </message>
    <message>
        <source>Specify base point or displacement: </source>
        <translation>Basispunkt oder Verschiebung angeben: </translation>
    </message>
    <message>
        <source>Specify first corner or [Fit] &lt;Fit&gt;: </source>
        <translation>Erste Ecke angeben oder [Fit] &lt;Fit&gt;: </translation>
    </message>
    <message>
        <source>Enter viewport configuration name or [?] &lt;*Active&gt;: </source>
        <translation>Namen der Ansichtsfensterkonfiguration eingeben oder [?] &lt;*Active&gt;: </translation>
    </message>
    <message>
        <source>A drawing of this version has no viewports with other outlines than rectangles.</source>
        <translation>Eine Zeichnung dieser Version hat nur rechteckige Ansichtsfenster.</translation>
    </message>
    <message>
        <source>A viewport is bounded by a closed polyline, circle, ellipse, spline or region.</source>
        <translation>Ein Ansichtsfenster wird von einer geschlossenen Polylinie, einem Kreis, einer Ellipse, einem Spline oder einer Region umgrenzt.</translation>
    </message>
    <message>
        <source>Select object to clip viewport: </source>
        <translation>Objekt wählen, an dem das Ansichtsfenster zugeschnitten wird: </translation>
    </message>
    <message>
        <source>A viewport has three corners at least.</source>
        <translation>Ein Ansichtsfenster hat mindestens drei Ecken.</translation>
    </message>
    <message>
        <source>Viewport View Locking [ON/OFF]: </source>
        <translation>Ansicht im Ansichtsfenster sperren [ON/OFF]: </translation>
    </message>
    <message>
        <source>Shade plot? [As displayed/Wireframe/Hidden/Rendered] &lt;As displayed&gt;: </source>
        <translation>Schattiert plotten? [As displayed/Wireframe/Hidden/Rendered] &lt;As displayed&gt;: </translation>
    </message>
    <message>
        <source>Specify corner of viewport or [ON/OFF/Fit/Shadeplot/Lock/Object/Polygonal/Restore/2/3/4] &lt;Fit&gt;: </source>
        <translation>Ecke des Ansichtsfensters angeben oder [ON/OFF/Fit/Shadeplot/Lock/Object/Polygonal/Restore/2/3/4] &lt;Fit&gt;: </translation>
    </message>
    <message>
        <source>
Already in model space.</source>
        <translation>
Schon im Modellbereich.</translation>
    </message>
    <message>
        <source>
Already in paper space.</source>
        <translation>
Schon im Papierbereich.</translation>
    </message>
    <message>
        <source>Enter an option [All/Select/Current/eXcept current] &lt;Current&gt;: </source>
        <translation>Option eingeben [All/Select/Current/eXcept current] &lt;Current&gt;: </translation>
    </message>
    <message>
        <source>Enter name(s) of new layers frozen in all viewports: </source>
        <translation>Namen der in allen Ansichtsfenstern gefrorenen neuen Layer eingeben: </translation>
    </message>
    <message>
        <source>Enter layer name(s) to change viewport visibility: </source>
        <translation>Layernamen eingeben, deren Sichtbarkeit in Ansichtsfenstern geändert wird: </translation>
    </message>
    <message>
        <source>Enter a viewport visibility option [Frozen/Thawed] &lt;Thawed&gt;: </source>
        <translation>Sichtbarkeit in Ansichtsfenstern eingeben [Frozen/Thawed] &lt;Thawed&gt;: </translation>
    </message>
    <message>
        <source>Select a viewport: </source>
        <translation>Ansichtsfenster wählen: </translation>
    </message>
    <message>
        <source>No viewport was chosen.</source>
        <translation>Es wurde kein Ansichtsfenster gewählt.</translation>
    </message>
    <message>
        <source>
Layers currently frozen in viewport %1:</source>
        <translation>
Im Ansichtsfenster %1 sind zurzeit diese Layer gefroren:</translation>
    </message>
    <message>
        <source>Enter layer name(s) to freeze or &lt;select objects&gt;: </source>
        <translation>Zu frierende Layernamen eingeben oder &lt;Objekte wählen&gt;: </translation>
    </message>
    <message>
        <source>Enter layer name(s) to thaw: </source>
        <translation>Zu tauende Layernamen eingeben: </translation>
    </message>
    <message>
        <source>Enter layer name(s) to reset: </source>
        <translation>Zurückzusetzende Layernamen eingeben: </translation>
    </message>
    <message>
        <source>Layers have the same properties in all viewports here: nothing was changed.</source>
        <translation>Layer haben hier in allen Ansichtsfenstern dieselben Eigenschaften: nichts wurde geändert.</translation>
    </message>
    <message>
        <source>Enter an option [?/Color/Ltype/LWeight/TRansparency/Freeze/Thaw/Reset/Newfrz/Vpvisdflt]: </source>
        <translation>Option eingeben [?/Color/Ltype/LWeight/TRansparency/Freeze/Thaw/Reset/Newfrz/Vpvisdflt]: </translation>
    </message>
    <message>
        <source>  Unloaded</source>
        <translation>  Entladen</translation>
    </message>
    <message>
        <source>That would be %1 entities; at most %2 are made at once.</source>
        <translation>Das wären %1 Objekte; höchstens %2 werden auf einmal erzeugt.</translation>
    </message>
    <message>
        <source>A cloud needs a line along which it goes.</source>
        <translation>Eine Revisionswolke braucht eine Linie, an der sie entlangläuft.</translation>
    </message>
    <message>
        <source>The arcs are too short for this line.</source>
        <translation>Die Bögen sind für diese Linie zu kurz.</translation>
    </message>
    <message>
        <source>
Revision cloud finished.</source>
        <translation>
Revisionswolke fertiggestellt.</translation>
    </message>
    <message>
        <source>
******** WARNING ********
</source>
        <translation>
******** WARNUNG ********
</translation>
    </message>
</context>
<context>
    <name>Comparing</name>
    <message>
        <source>matched by content, not by handles</source>
        <translation>nach Inhalt zugeordnet, nicht nach Referenznummern</translation>
    </message>
    <message>
        <source>= %1 added, %2 removed, %3 changed, %4 the same</source>
        <translation>= %1 hinzugefügt, %2 entfernt, %3 geändert, %4 gleich</translation>
    </message>
    <message>
        <source>= by type:</source>
        <translation>= nach Typ:</translation>
    </message>
    <message>
        <source>= by layer:</source>
        <translation>= nach Layer:</translation>
    </message>
    <message>
        <source>%1: the extension must be %2</source>
        <translation>%1: die Endung muss %2 sein</translation>
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
    <message>
        <source>DWG %1, %2</source>
        <translation>DWG %1, %2</translation>
    </message>
</context>
<context>
    <name>DrawingTexts</name>
    <message>
        <source>&quot;%1&quot; cannot be the name of a block</source>
        <translation>&quot;%1&quot; kann kein Blockname sein</translation>
    </message>
    <message>
        <source>there is no such block</source>
        <translation>einen solchen Block gibt es nicht</translation>
    </message>
    <message>
        <source>%1 cannot be exploded.</source>
        <translation>%1 kann nicht zerlegt werden.</translation>
    </message>
    <message>
        <source>Block &quot;%1&quot; is missing.</source>
        <translation>Der Block &quot;%1&quot; fehlt.</translation>
    </message>
    <message>
        <source>An external reference cannot be exploded.</source>
        <translation>Eine externe Referenz kann nicht zerlegt werden.</translation>
    </message>
    <message>
        <source>Block &quot;%1&quot; may not be exploded.</source>
        <translation>Der Block &quot;%1&quot; darf nicht zerlegt werden.</translation>
    </message>
    <message>
        <source>The scales of block &quot;%1&quot; differ.</source>
        <translation>Die Skalierungen von Block &quot;%1&quot; sind ungleich.</translation>
    </message>
    <message>
        <source>Too many entities would come of it.</source>
        <translation>Daraus würden zu viele Objekte.</translation>
    </message>
    <message>
        <source>A drawing of this version has one sheet.</source>
        <translation>Eine Zeichnung dieser Version hat nur ein Blatt.</translation>
    </message>
    <message>
        <source>A layout cannot be called &quot;%1&quot;.</source>
        <translation>Ein Layout kann nicht &quot;%1&quot; heißen.</translation>
    </message>
    <message>
        <source>Layout &quot;%1&quot; already exists.</source>
        <translation>Das Layout &quot;%1&quot; ist bereits vorhanden.</translation>
    </message>
    <message>
        <source>Model space cannot be copied.</source>
        <translation>Der Modellbereich kann nicht kopiert werden.</translation>
    </message>
    <message>
        <source>Model space cannot be moved.</source>
        <translation>Der Modellbereich kann nicht verschoben werden.</translation>
    </message>
    <message>
        <source>Model space cannot be renamed.</source>
        <translation>Der Modellbereich kann nicht umbenannt werden.</translation>
    </message>
    <message>
        <source>Layout &quot;%1&quot; has no object in this drawing that a name could be given to.</source>
        <translation>Das Layout &quot;%1&quot; hat in dieser Zeichnung kein Objekt, das einen Namen bekommen könnte.</translation>
    </message>
    <message>
        <source>Model space cannot be deleted.</source>
        <translation>Der Modellbereich kann nicht gelöscht werden.</translation>
    </message>
    <message>
        <source>The last layout cannot be deleted.</source>
        <translation>Das letzte Layout kann nicht gelöscht werden.</translation>
    </message>
    <message>
        <source>Cannot find layer &quot;%1&quot;.</source>
        <translation>Der Layer &quot;%1&quot; wurde nicht gefunden.</translation>
    </message>
    <message>
        <source>Layer &quot;%1&quot; is needed by every drawing.</source>
        <translation>Der Layer &quot;%1&quot; wird von jeder Zeichnung gebraucht.</translation>
    </message>
    <message>
        <source>Layer &quot;%1&quot; is the current layer.</source>
        <translation>Der Layer &quot;%1&quot; ist der aktuelle Layer.</translation>
    </message>
    <message>
        <source>Layer &quot;%1&quot; belongs to an external reference.</source>
        <translation>Der Layer &quot;%1&quot; gehört zu einer externen Referenz.</translation>
    </message>
    <message>
        <source>A drawing of this version keeps no page setup.</source>
        <translation>Eine Zeichnung dieser Version hält keine Seiteneinrichtung fest.</translation>
    </message>
    <message>
        <source>Layer &quot;%1&quot; cannot be renamed.</source>
        <translation>Der Layer &quot;%1&quot; kann nicht umbenannt werden.</translation>
    </message>
    <message>
        <source>Layer &quot;%1&quot; already exists.</source>
        <translation>Der Layer &quot;%1&quot; ist bereits vorhanden.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; cannot be the name of a layer.</source>
        <translation>&quot;%1&quot; kann kein Layername sein.</translation>
    </message>
    <message>
        <source>Block</source>
        <translation>Block</translation>
    </message>
    <message>
        <source>block</source>
        <translation>Block</translation>
    </message>
    <message>
        <source>Dimension style</source>
        <translation>Bemaßungsstil</translation>
    </message>
    <message>
        <source>dimension style</source>
        <translation>Bemaßungsstil</translation>
    </message>
    <message>
        <source>Linetype</source>
        <translation>Linientyp</translation>
    </message>
    <message>
        <source>linetype</source>
        <translation>Linientyp</translation>
    </message>
    <message>
        <source>Text style</source>
        <translation>Textstil</translation>
    </message>
    <message>
        <source>text style</source>
        <translation>Textstil</translation>
    </message>
    <message>
        <source>UCS</source>
        <translation>BKS</translation>
    </message>
    <message>
        <source>ucs</source>
        <translation>BKS</translation>
    </message>
    <message>
        <source>View</source>
        <translation>Ausschnitt</translation>
    </message>
    <message>
        <source>view</source>
        <translation>Ausschnitt</translation>
    </message>
    <message>
        <source>Viewport configuration</source>
        <translation>Ansichtsfensterkonfiguration</translation>
    </message>
    <message>
        <source>viewport configuration</source>
        <translation>Ansichtsfensterkonfiguration</translation>
    </message>
    <message>
        <source>Cannot find %1 &quot;%2&quot;.</source>
        <translation>%1 &quot;%2&quot; wurde nicht gefunden.</translation>
    </message>
    <message>
        <source>%1 &quot;%2&quot; cannot be renamed.</source>
        <translation>%1 &quot;%2&quot; kann nicht umbenannt werden.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; cannot be a name.</source>
        <translation>&quot;%1&quot; kann kein Name sein.</translation>
    </message>
    <message>
        <source>%1 &quot;%2&quot; already exists.</source>
        <translation>%1 &quot;%2&quot; ist bereits vorhanden.</translation>
    </message>
    <message>
        <source>Registered applications cannot be renamed.</source>
        <translation>Registrierte Anwendungen können nicht umbenannt werden.</translation>
    </message>
    <message>
        <source>Cannot find &quot;%1&quot;.</source>
        <translation>&quot;%1&quot; wurde nicht gefunden.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; already exists.</source>
        <translation>&quot;%1&quot; ist bereits vorhanden.</translation>
    </message>
    <message>
        <source>a drawing of this version has one sheet only</source>
        <translation>eine Zeichnung dieser Version hat nur ein Blatt</translation>
    </message>
    <message>
        <source>&quot;%1&quot; cannot be the name of a sheet</source>
        <translation>&quot;%1&quot; kann kein Blattname sein</translation>
    </message>
    <message>
        <source>there is no sheet &quot;%1&quot;</source>
        <translation>es gibt kein Blatt &quot;%1&quot;</translation>
    </message>
    <message>
        <source>there is a sheet &quot;%1&quot; already</source>
        <translation>es gibt schon ein Blatt &quot;%1&quot;</translation>
    </message>
    <message>
        <source>blocks</source>
        <translation>Blöcke</translation>
    </message>
    <message>
        <source>detail view styles</source>
        <translation>Detailansichtstile</translation>
    </message>
    <message>
        <source>detail view style</source>
        <translation>Detailansichtstil</translation>
    </message>
    <message>
        <source>dimension styles</source>
        <translation>Bemaßungsstile</translation>
    </message>
    <message>
        <source>groups</source>
        <translation>Gruppen</translation>
    </message>
    <message>
        <source>group</source>
        <translation>Gruppe</translation>
    </message>
    <message>
        <source>layers</source>
        <translation>Layer</translation>
    </message>
    <message>
        <source>layer</source>
        <translation>Layer</translation>
    </message>
    <message>
        <source>linetypes</source>
        <translation>Linientypen</translation>
    </message>
    <message>
        <source>materials</source>
        <translation>Materialien</translation>
    </message>
    <message>
        <source>material</source>
        <translation>Material</translation>
    </message>
    <message>
        <source>multileader styles</source>
        <translation>Multi-Führungslinienstile</translation>
    </message>
    <message>
        <source>multileader style</source>
        <translation>Multi-Führungslinienstil</translation>
    </message>
    <message>
        <source>plot styles</source>
        <translation>Plotstile</translation>
    </message>
    <message>
        <source>plot style</source>
        <translation>Plotstil</translation>
    </message>
    <message>
        <source>shape files</source>
        <translation>Symboldateien</translation>
    </message>
    <message>
        <source>shape file</source>
        <translation>Symboldatei</translation>
    </message>
    <message>
        <source>text styles</source>
        <translation>Textstile</translation>
    </message>
    <message>
        <source>multiline styles</source>
        <translation>Multilinienstile</translation>
    </message>
    <message>
        <source>multiline style</source>
        <translation>Multilinienstil</translation>
    </message>
    <message>
        <source>section view styles</source>
        <translation>Schnittansichtstile</translation>
    </message>
    <message>
        <source>section view style</source>
        <translation>Schnittansichtstil</translation>
    </message>
    <message>
        <source>table styles</source>
        <translation>Tabellenstile</translation>
    </message>
    <message>
        <source>table style</source>
        <translation>Tabellenstil</translation>
    </message>
    <message>
        <source>visual styles</source>
        <translation>Visuelle Stile</translation>
    </message>
    <message>
        <source>visual style</source>
        <translation>Visueller Stil</translation>
    </message>
    <message>
        <source>registered applications</source>
        <translation>registrierte Anwendungen</translation>
    </message>
    <message>
        <source>registered application</source>
        <translation>registrierte Anwendung</translation>
    </message>
    <message>
        <source>no record begins here</source>
        <translation>hier beginnt kein Datensatz</translation>
    </message>
    <message>
        <source>the file goes on behind it</source>
        <translation>dahinter geht die Datei weiter</translation>
    </message>
    <message>
        <source>the file ends within it</source>
        <translation>die Datei endet darin</translation>
    </message>
    <message>
        <source>group code expected, found %1</source>
        <translation>Gruppencode erwartet, %1 gefunden</translation>
    </message>
    <message>
        <source>type of a record expected, found %1</source>
        <translation>Typ eines Datensatzes erwartet, %1 gefunden</translation>
    </message>
    <message>
        <source>group %1 cannot be %2</source>
        <translation>Gruppe %1 kann nicht %2 sein</translation>
    </message>
    <message>
        <source>line %1: %2</source>
        <translation>Zeile %1: %2</translation>
    </message>
    <message>
        <source>%1 has a value for group %2 that the binary form has no room for: &quot;%3&quot;</source>
        <translation>%1 hat für Gruppe %2 einen Wert, für den die binäre Form keinen Platz hat: &quot;%3&quot;</translation>
    </message>
    <message>
        <source>%1 with the handle %2</source>
        <translation>%1 mit der Referenznummer %2</translation>
    </message>
    <message>
        <source>it names no version</source>
        <translation>es nennt keine Version</translation>
    </message>
    <message>
        <source>its handle was another record&apos;s, it has a new one</source>
        <translation>seine Referenznummer gehörte einem anderen Datensatz, es hat eine neue</translation>
    </message>
    <message>
        <source>its handle was none, it has a new one</source>
        <translation>seine Referenznummer war keine, es hat eine neue</translation>
    </message>
    <message>
        <source>it has no name</source>
        <translation>es hat keinen Namen</translation>
    </message>
    <message>
        <source>it has no value</source>
        <translation>es hat keinen Wert</translation>
    </message>
    <message>
        <source>it has more than one value, of which the first was taken</source>
        <translation>es hat mehr als einen Wert, von denen der erste genommen wurde</translation>
    </message>
    <message>
        <source>it leads to all other objects, and is the first of them now</source>
        <translation>es führt zu allen anderen Objekten und ist jetzt das erste von ihnen</translation>
    </message>
    <message>
        <source>the one that leads to all other objects was lost</source>
        <translation>das Objekt, das zu allen anderen führt, war verloren</translation>
    </message>
    <message>
        <source>its text was no UTF-8 and was taken for %1</source>
        <translation>sein Text war kein UTF-8 und wurde für %1 genommen</translation>
    </message>
    <message>
        <source>the one of block %1 was lost</source>
        <translation>der von Block %1 war verloren</translation>
    </message>
    <message>
        <source>the file is larger than 4 GB</source>
        <translation>die Datei ist größer als 4 GB</translation>
    </message>
    <message>
        <source>nothing in this file is a part of a drawing</source>
        <translation>nichts in dieser Datei ist Teil einer Zeichnung</translation>
    </message>
    <message>
        <source>%1: this is a folder</source>
        <translation>%1: dies ist ein Ordner</translation>
    </message>
    <message>
        <source> (--recover opens what is sound of it)</source>
        <translation> (--recover öffnet, was davon heil ist)</translation>
    </message>
    <message>
        <source>%1 times </source>
        <translation>%1-mal </translation>
    </message>
    <message>
        <source>and %1 more</source>
        <translation>und %1 weitere</translation>
    </message>
    <message>
        <source>the file is sound, nothing was dropped</source>
        <translation>die Datei ist heil, nichts wurde weggelassen</translation>
    </message>
    <message>
        <source>recovered: %1 dropped%2, %3 mended, %4 added</source>
        <translation>wiederhergestellt: %1 weggelassen%2, %3 ausgebessert, %4 hinzugefügt</translation>
    </message>
    <message>
        <source>what was written does not read back the same</source>
        <translation>was geschrieben wurde, liest sich nicht gleich zurück</translation>
    </message>
    <message>
        <source>what would be written could not be opened again (%1)</source>
        <translation>was geschrieben würde, könnte nicht wieder geöffnet werden (%1)</translation>
    </message>
    <message>
        <source>what would be written could not be opened the same: see %1 of handle %2</source>
        <translation>was geschrieben würde, könnte nicht gleich geöffnet werden: siehe %1 mit der Referenznummer %2</translation>
    </message>
    <message>
        <source>%1: the file cannot be written: %2</source>
        <translation>%1: die Datei kann nicht geschrieben werden: %2</translation>
    </message>
    <message>
        <source>%1: %2; the old file was kept</source>
        <translation>%1: %2; die alte Datei blieb erhalten</translation>
    </message>
    <message>
        <source>%1: this program cannot write DWG files; give the file a name ending in .dxf</source>
        <translation>%1: dieses Programm kann keine DWG-Dateien schreiben; geben Sie der Datei einen Namen, der auf .dxf endet</translation>
    </message>
    <message>
        <source>header variable</source>
        <translation>Variable des Kopfteils</translation>
    </message>
    <message>
        <source>it stands outside of the sections</source>
        <translation>es steht außerhalb der Abschnitte</translation>
    </message>
    <message>
        <source>its name is none, and what it holds tells another</source>
        <translation>es hat keinen Namen, und was es enthält, zeigt einen anderen</translation>
    </message>
    <message>
        <source>it was there before, and goes on here</source>
        <translation>es war schon da und geht hier weiter</translation>
    </message>
    <message>
        <source>it stands outside of its section, and was put into %1</source>
        <translation>es steht außerhalb seines Abschnitts und kam nach %1</translation>
    </message>
    <message>
        <source>no table is open</source>
        <translation>keine Tabelle ist offen</translation>
    </message>
    <message>
        <source>it stands outside of the tables</source>
        <translation>es steht außerhalb der Tabellen</translation>
    </message>
    <message>
        <source>table entry</source>
        <translation>Tabelleneintrag</translation>
    </message>
    <message>
        <source>it stands outside of its table</source>
        <translation>es steht außerhalb seiner Tabelle</translation>
    </message>
    <message>
        <source>no block is open</source>
        <translation>kein Block ist offen</translation>
    </message>
    <message>
        <source>it had no name, and is %1 now</source>
        <translation>es hatte keinen Namen und heißt jetzt %1</translation>
    </message>
    <message>
        <source>the one for the entities here was lost; it is %1 now</source>
        <translation>der für die Objekte hier war verloren; es ist jetzt %1</translation>
    </message>
    <message>
        <source>nothing is open that it could end</source>
        <translation>nichts ist offen, was damit enden könnte</translation>
    </message>
    <message>
        <source>what it is a part of is not there</source>
        <translation>wovon es ein Teil ist, ist nicht da</translation>
    </message>
    <message>
        <source>it was missing</source>
        <translation>es fehlte</translation>
    </message>
    <message>
        <source>no section is open</source>
        <translation>kein Abschnitt ist offen</translation>
    </message>
    <message>
        <source>the drawing looks like one of %1</source>
        <translation>die Zeichnung sieht aus wie eine von %1</translation>
    </message>
    <message>
        <source>%1: this is not a file</source>
        <translation>%1: dies ist keine Datei</translation>
    </message>
    <message>
        <source>%1: drawings of this version have no room for such data</source>
        <translation>%1: Zeichnungen dieser Version haben keinen Platz für solche Daten</translation>
    </message>
    <message>
        <source>%1: %2 stands for something else in this drawing</source>
        <translation>%1: %2 steht in dieser Zeichnung für etwas anderes</translation>
    </message>
    <message>
        <source>%1: the file is larger than 4 GB</source>
        <translation>%1: die Datei ist größer als 4 GB</translation>
    </message>
    <message>
        <source>the drawing has no paper space</source>
        <translation>die Zeichnung hat keinen Papierbereich</translation>
    </message>
    <message>
        <source>POLYLINE: its vertices are missing</source>
        <translation>POLYLINE: die Scheitelpunkte fehlen</translation>
    </message>
    <message>
        <source>%1: an entity of this type has no parts</source>
        <translation>%1: ein Objekt dieses Typs hat keine Teile</translation>
    </message>
    <message>
        <source>%1: %2 expected, found %3</source>
        <translation>%1: %2 erwartet, %3 gefunden</translation>
    </message>
    <message>
        <source>the entity is erased</source>
        <translation>das Objekt ist gelöscht</translation>
    </message>
    <message>
        <source>a number</source>
        <translation>eine Zahl</translation>
    </message>
    <message>
        <source>a handle</source>
        <translation>eine Referenznummer</translation>
    </message>
    <message>
        <source>a text</source>
        <translation>ein Text</translation>
    </message>
    <message>
        <source>group 0 (the type) is missing</source>
        <translation>Gruppe 0 (der Typ) fehlt</translation>
    </message>
    <message>
        <source>this is no entity</source>
        <translation>dies ist kein Objekt</translation>
    </message>
    <message>
        <source>this type is not known, and its subclass markers (group 100) are missing</source>
        <translation>dieser Typ ist nicht bekannt, und seine Unterklassenmarken (Gruppe 100) fehlen</translation>
    </message>
    <message>
        <source>a drawing of this version has no such entity</source>
        <translation>eine Zeichnung dieser Version kennt kein solches Objekt</translation>
    </message>
    <message>
        <source>group %1 is missing</source>
        <translation>Gruppe %1 fehlt</translation>
    </message>
    <message>
        <source>group %1 is not a point</source>
        <translation>Gruppe %1 ist kein Punkt</translation>
    </message>
    <message>
        <source>group %1 is not %2</source>
        <translation>in Gruppe %1 steht nicht, was dort stehen muss: %2</translation>
    </message>
    <message>
        <source>linetype %1 is not in the drawing</source>
        <translation>der Linientyp %1 ist nicht in der Zeichnung</translation>
    </message>
    <message>
        <source>text style %1 is not in the drawing</source>
        <translation>der Textstil %1 ist nicht in der Zeichnung</translation>
    </message>
    <message>
        <source>block %1 is not in the drawing</source>
        <translation>der Block %1 ist nicht in der Zeichnung</translation>
    </message>
    <message>
        <source>group code expected, found </source>
        <translation>Gruppencode erwartet, gefunden wurde </translation>
    </message>
    <message>
        <source>this is not a DXF file: </source>
        <translation>dies ist keine DXF-Datei: </translation>
    </message>
    <message>
        <source>this is not a DXF file: it has no sections</source>
        <translation>dies ist keine DXF-Datei: sie hat keine Abschnitte</translation>
    </message>
    <message>
        <source>the file is cut off: it ends before EOF</source>
        <translation>die Datei ist abgeschnitten: sie endet vor EOF</translation>
    </message>
    <message>
        <source>the section has no name</source>
        <translation>der Abschnitt hat keinen Namen</translation>
    </message>
    <message>
        <source>a record without a type</source>
        <translation>ein Datensatz ohne Typ</translation>
    </message>
    <message>
        <source>%1 inside a section: ENDSEC is missing</source>
        <translation>%1 innerhalb eines Abschnitts: ENDSEC fehlt</translation>
    </message>
    <message>
        <source>%1 stands in the header section</source>
        <translation>%1 steht im Abschnitt HEADER</translation>
    </message>
    <message>
        <source>this is not a DXF file: section expected, found </source>
        <translation>dies ist keine DXF-Datei: Abschnitt erwartet, gefunden wurde </translation>
    </message>
    <message>
        <source>%1 stands outside of the sections</source>
        <translation>%1 steht außerhalb der Abschnitte</translation>
    </message>
    <message>
        <source>TABLE inside a table: ENDTAB is missing</source>
        <translation>TABLE innerhalb einer Tabelle: ENDTAB fehlt</translation>
    </message>
    <message>
        <source>%1 stands outside of the tables: TABLE is missing</source>
        <translation>%1 steht außerhalb der Tabellen: TABLE fehlt</translation>
    </message>
    <message>
        <source>BLOCK inside a block: ENDBLK is missing</source>
        <translation>BLOCK innerhalb eines Blocks: ENDBLK fehlt</translation>
    </message>
    <message>
        <source>%1 stands outside of the blocks: BLOCK is missing</source>
        <translation>%1 steht außerhalb der Blöcke: BLOCK fehlt</translation>
    </message>
    <message>
        <source>the section ends inside a table: ENDTAB is missing</source>
        <translation>der Abschnitt endet innerhalb einer Tabelle: ENDTAB fehlt</translation>
    </message>
    <message>
        <source>the section ends inside a block: ENDBLK is missing</source>
        <translation>der Abschnitt endet innerhalb eines Blocks: ENDBLK fehlt</translation>
    </message>
    <message>
        <source>tag %1 of the binary file: %2</source>
        <translation>Tag %1 der binären Datei: %2</translation>
    </message>
    <message>
        <source>the file is larger than 4 GB as text</source>
        <translation>die Datei ist als Text größer als 4 GB</translation>
    </message>
    <message>
        <source>the file is empty</source>
        <translation>die Datei ist leer</translation>
    </message>
    <message>
        <source>this is a UTF-16 text file, not a DXF file</source>
        <translation>dies ist eine UTF-16-Textdatei, keine DXF-Datei</translation>
    </message>
    <message>
        <source>this is a packed file; unpack it first</source>
        <translation>dies ist eine gepackte Datei; packen Sie sie zuerst aus</translation>
    </message>
    <message>
        <source>this is a binary DXF file whose first bytes are damaged, as by a transfer as text</source>
        <translation>dies ist eine binäre DXF-Datei, deren erste Bytes beschädigt sind, wie bei einer Übertragung als Text</translation>
    </message>
    <message>
        <source>the pattern does not begin with &quot;A&quot;</source>
        <translation>das Muster beginnt nicht mit &quot;A&quot;</translation>
    </message>
    <message>
        <source>the pattern is empty</source>
        <translation>das Muster ist leer</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no length</source>
        <translation>&quot;%1&quot; ist keine Länge</translation>
    </message>
    <message>
        <source>the pattern is too long</source>
        <translation>das Muster ist zu lang</translation>
    </message>
    <message>
        <source>a text or shape is not closed, or stands in front of all dashes</source>
        <translation>ein Text oder Symbol ist nicht geschlossen oder steht vor allen Strichen</translation>
    </message>
    <message>
        <source>a shape needs its name and its file</source>
        <translation>ein Symbol braucht seinen Namen und seine Datei</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not understood</source>
        <translation>&quot;%1&quot; wird nicht verstanden</translation>
    </message>
    <message>
        <source>text style &quot;%1&quot; is not in the drawing</source>
        <translation>der Textstil &quot;%1&quot; ist nicht in der Zeichnung</translation>
    </message>
    <message>
        <source>the shape file &quot;%1&quot; is not found</source>
        <translation>die Symboldatei &quot;%1&quot; wurde nicht gefunden</translation>
    </message>
    <message>
        <source>shape &quot;%1&quot; is not in the file &quot;%2&quot;</source>
        <translation>das Symbol &quot;%1&quot; ist nicht in der Datei &quot;%2&quot;</translation>
    </message>
    <message>
        <source>a drawing of this version has no texts and shapes in linetypes</source>
        <translation>eine Zeichnung dieser Version hat keine Texte und Symbole in Linientypen</translation>
    </message>
    <message>
        <source>the name cannot be used</source>
        <translation>der Name kann nicht verwendet werden</translation>
    </message>
    <message>
        <source>it is not in the drawing&apos;s folder. READPATHS, or the option --allow-read, names folders whose files drawings may name</source>
        <translation>sie liegt nicht im Ordner der Zeichnung. READPATHS oder die Option --allow-read nennt Ordner, deren Dateien in Zeichnungen genannt werden dürfen</translation>
    </message>
    <message>
        <source>there are no shapes in it</source>
        <translation>es sind keine Symbole darin</translation>
    </message>
    <message>
        <source>the file is cut off</source>
        <translation>die Datei ist abgeschnitten</translation>
    </message>
    <message>
        <source>it is a compiled file of another kind</source>
        <translation>es ist eine kompilierte Datei anderer Art</translation>
    </message>
    <message>
        <source>%1 (remote texts have at most 256 kB)</source>
        <translation>%1 (entfernte Texte haben höchstens 256 kB)</translation>
    </message>
    <message>
        <source>this DWG file cannot be read: %1</source>
        <translation>diese DWG-Datei kann nicht gelesen werden: %1</translation>
    </message>
    <message>
        <source>1 object could not be read</source>
        <translation>1 Objekt konnte nicht gelesen werden</translation>
    </message>
    <message>
        <source>%1 objects could not be read</source>
        <translation>%1 Objekte konnten nicht gelesen werden</translation>
    </message>
    <message>
        <source>a part of the file</source>
        <translation>ein Teil der Datei</translation>
    </message>
    <message>
        <source>some of the file is not as expected; what was read of it may be wrong</source>
        <translation>manches in der Datei ist anders als erwartet; was davon gelesen wurde, kann falsch sein</translation>
    </message>
    <message>
        <source>1 part of the file could not be read</source>
        <translation>1 Teil der Datei konnte nicht gelesen werden</translation>
    </message>
    <message>
        <source>%1 parts of the file could not be read</source>
        <translation>%1 Teile der Datei konnten nicht gelesen werden</translation>
    </message>
    <message>
        <source>1 object and 1 part of the file could not be read</source>
        <translation>1 Objekt und 1 Teil der Datei konnten nicht gelesen werden</translation>
    </message>
    <message>
        <source>1 object and %1 parts of the file could not be read</source>
        <translation>1 Objekt und %1 Teile der Datei konnten nicht gelesen werden</translation>
    </message>
    <message>
        <source>%1 objects and 1 part of the file could not be read</source>
        <translation>%1 Objekte und 1 Teil der Datei konnten nicht gelesen werden</translation>
    </message>
    <message>
        <source>%1 objects and %2 parts of the file could not be read</source>
        <translation>%1 Objekte und %2 Teile der Datei konnten nicht gelesen werden</translation>
    </message>
    <message>
        <source>object %1</source>
        <translation>Objekt %1</translation>
    </message>
    <message>
        <source>%1 could not be read: %2</source>
        <translation>%1 konnte nicht gelesen werden: %2</translation>
    </message>
    <message>
        <source>%1 may be wrong: %2</source>
        <translation>%1 ist vielleicht falsch: %2</translation>
    </message>
    <message>
        <source>the file is damaged; the drawing is whole</source>
        <translation>die Datei ist beschädigt; die Zeichnung ist vollständig</translation>
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
    <message>
        <source>%1
It is a DWG file: what you change here is saved under another name.</source>
        <translation>%1
Es ist eine DWG-Datei: Was Sie hier ändern, wird unter einem anderen Namen gespeichert.</translation>
    </message>
</context>
<context>
    <name>Functions</name>
    <message>
        <source>
New color &lt;%1&gt;: </source>
        <translation>
Neue Farbe &lt;%1&gt;: </translation>
    </message>
    <message>
        <source>
Requires a color number or name.</source>
        <translation>
Eine Farbnummer oder ein Farbname wird gebraucht.</translation>
    </message>
    <message>
        <source>
Unknown command &quot;%1&quot;.
</source>
        <translation>
Unbekannter Befehl &quot;%1&quot;.
</translation>
    </message>
    <message>
        <source>
Left over from (command): %1
</source>
        <translation>
Von (command) übrig: %1
</translation>
    </message>
    <message>
        <source>
The dialog file &quot;%1&quot; was not found.
</source>
        <translation>
Die Dialogdatei &quot;%1&quot; wurde nicht gefunden.
</translation>
    </message>
    <message>
        <source>
The actions that the file gives to the tiles of &quot;%1&quot; do not run: its folder is not trusted.
</source>
        <translation>
Die Aktionen, die die Datei den Kacheln von &quot;%1&quot; gibt, laufen nicht: ihr Ordner ist nicht vertrauenswürdig.
</translation>
    </message>
    <message>
        <source>
There is no dialog &quot;%1&quot; in what was loaded.
</source>
        <translation>
In dem, was geladen wurde, gibt es keinen Dialog &quot;%1&quot;.
</translation>
    </message>
    <message>
        <source>
Nobody is there to answer the dialog &quot;%1&quot;: cancelled.
</source>
        <translation>
Niemand ist da, um den Dialog &quot;%1&quot; zu beantworten: abgebrochen.
</translation>
    </message>
    <message>
        <source>action of &quot;%1&quot; in dialog %2</source>
        <translation>Aktion von &quot;%1&quot; im Dialog %2</translation>
    </message>
    <message>
        <source>
Select object: </source>
        <translation>
Objekt wählen: </translation>
    </message>
    <message>
        <source>
startapp: %1 is not started: the user&apos;s settings do not let programs start others.
</source>
        <translation>
startapp: %1 wird nicht gestartet: die Einstellungen des Benutzers lassen Programme keine anderen starten.
</translation>
    </message>
    <message>
        <source>there is no sheet &quot;%1&quot;</source>
        <translation>es gibt kein Blatt &quot;%1&quot;</translation>
    </message>
    <message>
        <source>&quot;%1&quot; cannot be the name of a sheet</source>
        <translation>&quot;%1&quot; kann kein Blattname sein</translation>
    </message>
    <message>
        <source>there is a sheet &quot;%1&quot; already</source>
        <translation>es gibt schon ein Blatt &quot;%1&quot;</translation>
    </message>
    <message>
        <source>%1 is one of the drawings that sheets come from</source>
        <translation>%1 ist eine der Zeichnungen, aus denen Blätter kommen</translation>
    </message>
    <message>
        <source>the file was not found</source>
        <translation>die Datei wurde nicht gefunden</translation>
    </message>
    <message>
        <source>
The slide &quot;%1&quot;: %2.
</source>
        <translation>
Das Dia &quot;%1&quot;: %2.
</translation>
    </message>
</context>
<context>
    <name>Help</name>
    <message>
        <source>0: heights count</source>
        <translation>0: Höhen zählen</translation>
    </message>
    <message>
        <source>As -COLOR</source>
        <translation>Wie -COLOR</translation>
    </message>
    <message>
        <source>As -COLOR; there is no window for it</source>
        <translation>Wie -COLOR; ein Fenster dafür gibt es nicht</translation>
    </message>
    <message>
        <source>As -LAYDEL; there is no window for it</source>
        <translation>Wie -LAYDEL; ein Fenster dafür gibt es nicht</translation>
    </message>
    <message>
        <source>As -LAYER; entered by hand in the window it shows the layer panel</source>
        <translation>Wie -LAYER; von Hand im Fenster eingegeben, zeigt es das Layerfeld</translation>
    </message>
    <message>
        <source>As -LAYMRG; there is no window for it</source>
        <translation>Wie -LAYMRG; ein Fenster dafür gibt es nicht</translation>
    </message>
    <message>
        <source>As -LINETYPE; there is no window for it</source>
        <translation>Wie -LINETYPE; ein Fenster dafür gibt es nicht</translation>
    </message>
    <message>
        <source>As -LWEIGHT; there is no window for it</source>
        <translation>Wie -LWEIGHT; ein Fenster dafür gibt es nicht</translation>
    </message>
    <message>
        <source>As -PAN; the middle button of the mouse moves the view too</source>
        <translation>Wie -PAN; auch die mittlere Maustaste verschiebt die Ansicht</translation>
    </message>
    <message>
        <source>As -PURGE; there is no window for it</source>
        <translation>Wie -PURGE; ein Fenster dafür gibt es nicht</translation>
    </message>
    <message>
        <source>As -RENAME; there is no window for it</source>
        <translation>Wie -RENAME; ein Fenster dafür gibt es nicht</translation>
    </message>
    <message>
        <source>As -UNITS; there is no window for it</source>
        <translation>Wie -UNITS; ein Fenster dafür gibt es nicht</translation>
    </message>
    <message>
        <source>As -VIEW; there is no window for it</source>
        <translation>Wie -VIEW; ein Fenster dafür gibt es nicht</translation>
    </message>
    <message>
        <source>As -VPOINT; there is no window for it</source>
        <translation>Wie -VPOINT; ein Fenster dafür gibt es nicht</translation>
    </message>
    <message>
        <source>As -VPORTS; there is no window for it</source>
        <translation>Wie -VPORTS; ein Fenster dafür gibt es nicht</translation>
    </message>
    <message>
        <source>As -XREF; there is no window for it</source>
        <translation>Wie -XREF; ein Fenster dafür gibt es nicht</translation>
    </message>
    <message>
        <source>As LAYOUT; there is no window for it</source>
        <translation>Wie LAYOUT; ein Fenster dafür gibt es nicht</translation>
    </message>
    <message>
        <source>As NEW</source>
        <translation>Wie NEW</translation>
    </message>
    <message>
        <source>As QUIT</source>
        <translation>Wie QUIT</translation>
    </message>
    <message>
        <source>Attaches drawing files as external references, and changes, binds and detaches these</source>
        <translation>Ordnet Zeichnungsdateien als externe Referenzen zu, ändert, bindet und löst sie</translation>
    </message>
    <message>
        <source>BOUNDARY makes polylines (1) or regions (0)</source>
        <translation>BOUNDARY erstellt Polylinien (1) oder Regionen (0)</translation>
    </message>
    <message>
        <source>Brings back what was erased last</source>
        <translation>Holt zurück, was zuletzt gelöscht wurde</translation>
    </message>
    <message>
        <source>Brings entities in front of others or behind them</source>
        <translation>Bringt Objekte vor andere oder hinter sie</translation>
    </message>
    <message>
        <source>COPY goes on until an empty answer (0) or makes one copy (1)</source>
        <translation>COPY fährt bis zu einer leeren Antwort fort (0) oder macht eine Kopie (1)</translation>
    </message>
    <message>
        <source>Changes entities by a point, or their properties</source>
        <translation>Ändert Objekte durch einen Punkt oder ihre Eigenschaften</translation>
    </message>
    <message>
        <source>Changes entities by their grips</source>
        <translation>Ändert Objekte an ihren Griffen</translation>
    </message>
    <message>
        <source>Changes layer, color, linetype and weight of entities</source>
        <translation>Ändert Layer, Farbe, Linientyp und Linienstärke von Objekten</translation>
    </message>
    <message>
        <source>Changes pattern, style and layer of a hatch</source>
        <translation>Ändert Muster, Stil und Layer einer Schraffur</translation>
    </message>
    <message>
        <source>Changes text and extension lines of dimensions</source>
        <translation>Ändert Text und Hilfslinien von Bemaßungen</translation>
    </message>
    <message>
        <source>Changes the values of a block reference&apos;s attributes</source>
        <translation>Ändert die Werte der Attribute einer Blockreferenz</translation>
    </message>
    <message>
        <source>Changes the values of attributes</source>
        <translation>Ändert die Werte von Attributen</translation>
    </message>
    <message>
        <source>Changes what texts, dimensions and definitions of attributes say</source>
        <translation>Ändert den Wortlaut von Texten, Bemaßungen und Attributdefinitionen</translation>
    </message>
    <message>
        <source>Chooses entities for the next command</source>
        <translation>Wählt Objekte für den nächsten Befehl</translation>
    </message>
    <message>
        <source>Chooses entities; they are the previous selection then</source>
        <translation>Wählt Objekte; sie sind dann die vorherige Auswahl</translation>
    </message>
    <message>
        <source>Chooses the isometric plane</source>
        <translation>Wählt die isometrische Ebene</translation>
    </message>
    <message>
        <source>Chooses what is similar to the chosen entities</source>
        <translation>Wählt, was den gewählten Objekten ähnlich ist</translation>
    </message>
    <message>
        <source>Closes all drawings</source>
        <translation>Schließt alle Zeichnungen</translation>
    </message>
    <message>
        <source>Closes the drawing</source>
        <translation>Schließt die Zeichnung</translation>
    </message>
    <message>
        <source>Closes the drawing without saving, and ends the program</source>
        <translation>Schließt die Zeichnung ohne Speichern und beendet das Programm</translation>
    </message>
    <message>
        <source>Copies entities</source>
        <translation>Kopiert Objekte</translation>
    </message>
    <message>
        <source>Copies entities into rows and columns or round a point</source>
        <translation>Kopiert Objekte in Zeilen und Spalten oder um einen Punkt</translation>
    </message>
    <message>
        <source>Copies entities to the clipboard</source>
        <translation>Kopiert Objekte in die Zwischenablage</translation>
    </message>
    <message>
        <source>Copies entities to the clipboard by a base point</source>
        <translation>Kopiert Objekte mit einem Basispunkt in die Zwischenablage</translation>
    </message>
    <message>
        <source>Cuts block references off at a boundary</source>
        <translation>Schneidet Blockreferenzen an einer Umgrenzung zu</translation>
    </message>
    <message>
        <source>Cuts corners off</source>
        <translation>Schneidet Ecken ab</translation>
    </message>
    <message>
        <source>Defines an attribute of a block</source>
        <translation>Definiert ein Attribut eines Blocks</translation>
    </message>
    <message>
        <source>Deletes layers with all that is on them</source>
        <translation>Löscht Layer mit allem, was auf ihnen ist</translation>
    </message>
    <message>
        <source>Dimensions a distance along itself</source>
        <translation>Bemaßt einen Abstand in seiner eigenen Richtung</translation>
    </message>
    <message>
        <source>Dimensions a distance along x, y or another direction</source>
        <translation>Bemaßt einen Abstand in x, y oder einer anderen Richtung</translation>
    </message>
    <message>
        <source>Dimensions an angle</source>
        <translation>Bemaßt einen Winkel</translation>
    </message>
    <message>
        <source>Dimensions by subcommands until Exit</source>
        <translation>Bemaßt durch Unterbefehle bis Exit</translation>
    </message>
    <message>
        <source>Dimensions further points from the same begin</source>
        <translation>Bemaßt weitere Punkte vom selben Anfang aus</translation>
    </message>
    <message>
        <source>Dimensions on from the last dimension</source>
        <translation>Bemaßt von der letzten Bemaßung aus weiter</translation>
    </message>
    <message>
        <source>Dimensions the diameter of a circle or arc</source>
        <translation>Bemaßt den Durchmesser eines Kreises oder Bogens</translation>
    </message>
    <message>
        <source>Dimensions the length of an arc</source>
        <translation>Bemaßt die Länge eines Bogens</translation>
    </message>
    <message>
        <source>Dimensions the radius of a circle or arc</source>
        <translation>Bemaßt den Radius eines Kreises oder Bogens</translation>
    </message>
    <message>
        <source>Dimensions the radius of a circle or arc from a nearer centre</source>
        <translation>Bemaßt den Radius eines Kreises oder Bogens von einem näheren Mittelpunkt aus</translation>
    </message>
    <message>
        <source>Dimensions the x or y coordinate of a point</source>
        <translation>Bemaßt die x- oder y-Koordinate eines Punkts</translation>
    </message>
    <message>
        <source>Divides the screen or makes viewports on a sheet</source>
        <translation>Teilt den Bildschirm oder erstellt Ansichtsfenster auf einem Blatt</translation>
    </message>
    <message>
        <source>Does again what was undone last</source>
        <translation>Stellt wieder her, was zuletzt rückgängig gemacht wurde</translation>
    </message>
    <message>
        <source>Does again what was undone, several steps at once</source>
        <translation>Stellt wieder her, was rückgängig gemacht wurde, mehrere Schritte auf einmal</translation>
    </message>
    <message>
        <source>Draws a circle: centre and radius, two or three points, two tangents and radius</source>
        <translation>Zeichnet einen Kreis: Zentrum und Radius, zwei oder drei Punkte, zwei Tangenten und Radius</translation>
    </message>
    <message>
        <source>Draws a cloud of arcs, or makes one of an entity</source>
        <translation>Zeichnet eine Wolke aus Bögen oder macht eine aus einem Objekt</translation>
    </message>
    <message>
        <source>Draws a line from a feature to a note</source>
        <translation>Zeichnet eine Linie von einem Merkmal zu einer Anmerkung</translation>
    </message>
    <message>
        <source>Draws a line of up to three points with a text</source>
        <translation>Zeichnet eine Linie mit bis zu drei Punkten und einem Text</translation>
    </message>
    <message>
        <source>Draws a point</source>
        <translation>Zeichnet einen Punkt</translation>
    </message>
    <message>
        <source>Draws a polygon with sides of one length</source>
        <translation>Zeichnet ein Polygon mit gleich langen Seiten</translation>
    </message>
    <message>
        <source>Draws a polyline in space</source>
        <translation>Zeichnet eine Polylinie im Raum</translation>
    </message>
    <message>
        <source>Draws a polyline of straight segments and arcs</source>
        <translation>Zeichnet eine Polylinie aus geraden Segmenten und Bögen</translation>
    </message>
    <message>
        <source>Draws a rectangle by corners, sides or area</source>
        <translation>Zeichnet ein Rechteck durch Ecken, Seiten oder Fläche</translation>
    </message>
    <message>
        <source>Draws a smooth curve through points or along control points</source>
        <translation>Zeichnet eine glatte Kurve durch Punkte oder entlang von Kontrollpunkten</translation>
    </message>
    <message>
        <source>Draws an arc: three points, or start, center, end, angle, length, direction, radius</source>
        <translation>Zeichnet einen Bogen: drei Punkte, oder Start, Zentrum, Ende, Winkel, Länge, Richtung, Radius</translation>
    </message>
    <message>
        <source>Draws an arrow with a note as one entity</source>
        <translation>Zeichnet einen Pfeil mit einer Anmerkung als ein Objekt</translation>
    </message>
    <message>
        <source>Draws an ellipse or a part of one</source>
        <translation>Zeichnet eine Ellipse oder einen Teil davon</translation>
    </message>
    <message>
        <source>Draws faces in space</source>
        <translation>Zeichnet Flächen im Raum</translation>
    </message>
    <message>
        <source>Draws filled areas with three or four corners</source>
        <translation>Zeichnet gefüllte Flächen mit drei oder vier Ecken</translation>
    </message>
    <message>
        <source>Draws filled rings</source>
        <translation>Zeichnet gefüllte Ringe</translation>
    </message>
    <message>
        <source>Draws lines that end at one side only</source>
        <translation>Zeichnet Linien, die nur auf einer Seite enden</translation>
    </message>
    <message>
        <source>Draws lines without ends</source>
        <translation>Zeichnet Linien ohne Enden</translation>
    </message>
    <message>
        <source>Draws parallel curves</source>
        <translation>Zeichnet parallele Kurven</translation>
    </message>
    <message>
        <source>Draws parallel lines with the current multiline style</source>
        <translation>Zeichnet parallele Linien mit dem aktuellen Multilinienstil</translation>
    </message>
    <message>
        <source>Draws straight segments</source>
        <translation>Zeichnet gerade Segmente</translation>
    </message>
    <message>
        <source>Draws the window anew</source>
        <translation>Zeichnet das Fenster neu</translation>
    </message>
    <message>
        <source>Draws wide lines</source>
        <translation>Zeichnet breite Linien</translation>
    </message>
    <message>
        <source>ELLIPSE makes true ellipses (0) or polylines (1)</source>
        <translation>ELLIPSE erstellt echte Ellipsen (0) oder Polylinien (1)</translation>
    </message>
    <message>
        <source>EXPLODE takes blocks of unequal scales</source>
        <translation>EXPLODE nimmt Blöcke mit ungleicher Skalierung</translation>
    </message>
    <message>
        <source>Edits polylines: closes, joins, widens, smooths, changes vertices</source>
        <translation>Bearbeitet Polylinien: schließt, verbindet, verbreitert, glättet sie, ändert Scheitelpunkte</translation>
    </message>
    <message>
        <source>Evaluates the expressions of texts anew</source>
        <translation>Wertet die Ausdrücke von Texten neu aus</translation>
    </message>
    <message>
        <source>FILLET and CHAMFER trim what they join</source>
        <translation>FILLET und CHAMFER stutzen, was sie verbinden</translation>
    </message>
    <message>
        <source>Freezes and thaws layers in viewports of sheets</source>
        <translation>Friert und taut Layer in Ansichtsfenstern von Blättern</translation>
    </message>
    <message>
        <source>Freezes layers of picked objects in all other viewports</source>
        <translation>Friert Layer gewählter Objekte in allen anderen Ansichtsfenstern</translation>
    </message>
    <message>
        <source>Freezes the layers of picked objects</source>
        <translation>Friert die Layer gewählter Objekte</translation>
    </message>
    <message>
        <source>Gives a multileader further arrows, or takes some away</source>
        <translation>Gibt einer Multi-Führungslinie weitere Pfeile oder nimmt welche weg</translation>
    </message>
    <message>
        <source>Gives blocks, layers, styles and other named things another name</source>
        <translation>Gibt Blöcken, Layern, Stilen und anderem Benannten einen anderen Namen</translation>
    </message>
    <message>
        <source>Gives entities the properties of another one</source>
        <translation>Gibt Objekten die Eigenschaften eines anderen</translation>
    </message>
    <message>
        <source>Gives layers what they had before LAYISO</source>
        <translation>Gibt Layern zurück, was sie vor LAYISO hatten</translation>
    </message>
    <message>
        <source>Gives references the attributes that their block defines</source>
        <translation>Gibt Referenzen die Attribute, die ihr Block definiert</translation>
    </message>
    <message>
        <source>Hatches areas</source>
        <translation>Schraffiert Flächen</translation>
    </message>
    <message>
        <source>Hides a command, which a point in front still runs</source>
        <translation>Verbirgt einen Befehl, der mit einem Punkt davor weiterhin läuft</translation>
    </message>
    <message>
        <source>INSERT asks for attributes (1) or takes their defaults (0)</source>
        <translation>INSERT fragt nach Attributen (1) oder nimmt ihre Vorgaben (0)</translation>
    </message>
    <message>
        <source>INSERT asks for attributes with a dialog (1) or on the command line (0)</source>
        <translation>INSERT fragt nach Attributen mit einem Dialog (1) oder in der Befehlszeile (0)</translation>
    </message>
    <message>
        <source>Inserts a block or drawing file, as a reference or in pieces</source>
        <translation>Fügt einen Block oder eine Zeichnungsdatei ein, als Referenz oder in Teilen</translation>
    </message>
    <message>
        <source>Loads a shape file, so that its shapes can be placed</source>
        <translation>Lädt eine Symboldatei, damit ihre Symbole gesetzt werden können</translation>
    </message>
    <message>
        <source>Loads linetypes from a file and chooses the current one</source>
        <translation>Lädt Linientypen aus einer Datei und wählt den aktuellen</translation>
    </message>
    <message>
        <source>Locks or turns off all layers but those of chosen objects</source>
        <translation>Sperrt alle Layer außer denen gewählter Objekte oder schaltet sie aus</translation>
    </message>
    <message>
        <source>Locks the layer of a picked object</source>
        <translation>Sperrt den Layer eines gewählten Objekts</translation>
    </message>
    <message>
        <source>Looks for errors in the drawing and mends them</source>
        <translation>Sucht Fehler in der Zeichnung und behebt sie</translation>
    </message>
    <message>
        <source>Looks from another direction</source>
        <translation>Blickt aus einer anderen Richtung</translation>
    </message>
    <message>
        <source>Looks straight at the plane of a coordinate system</source>
        <translation>Blickt gerade auf die Ebene eines Koordinatensystems</translation>
    </message>
    <message>
        <source>Makes a block of entities</source>
        <translation>Erstellt einen Block aus Objekten</translation>
    </message>
    <message>
        <source>Makes a command known again that UNDEFINE hid</source>
        <translation>Macht einen Befehl wieder bekannt, den UNDEFINE verborgen hat</translation>
    </message>
    <message>
        <source>Makes a new drawing, from a template or empty</source>
        <translation>Erstellt eine neue Zeichnung, nach einer Vorlage oder leer</translation>
    </message>
    <message>
        <source>Makes and changes groups of entities</source>
        <translation>Erstellt und ändert Gruppen von Objekten</translation>
    </message>
    <message>
        <source>Makes and changes text styles</source>
        <translation>Erstellt und ändert Textstile</translation>
    </message>
    <message>
        <source>Makes entities larger or smaller</source>
        <translation>Macht Objekte größer oder kleiner</translation>
    </message>
    <message>
        <source>Makes layers and changes their properties and states</source>
        <translation>Erstellt Layer und ändert ihre Eigenschaften und Zustände</translation>
    </message>
    <message>
        <source>Makes one paragraph of texts</source>
        <translation>Macht aus Texten einen Absatztext</translation>
    </message>
    <message>
        <source>Makes polylines or regions round areas</source>
        <translation>Erstellt Polylinien oder Regionen um Flächen</translation>
    </message>
    <message>
        <source>Makes the layer of a picked object current</source>
        <translation>Macht den Layer eines gewählten Objekts zum aktuellen</translation>
    </message>
    <message>
        <source>Makes viewports on a sheet and switches them</source>
        <translation>Erstellt Ansichtsfenster auf einem Blatt und schaltet sie</translation>
    </message>
    <message>
        <source>Makes, copies, renames and deletes layouts and chooses the current one</source>
        <translation>Erstellt, kopiert, benennt und löscht Layouts und wählt das aktuelle</translation>
    </message>
    <message>
        <source>Marks the centre of a circle or arc</source>
        <translation>Markiert das Zentrum eines Kreises oder Bogens</translation>
    </message>
    <message>
        <source>Mirrors entities in a line</source>
        <translation>Spiegelt Objekte an einer Linie</translation>
    </message>
    <message>
        <source>Mirrors entities in a plane</source>
        <translation>Spiegelt Objekte an einer Ebene</translation>
    </message>
    <message>
        <source>Moves entities</source>
        <translation>Verschiebt Objekte</translation>
    </message>
    <message>
        <source>Moves entities between the sheet and the model that it shows</source>
        <translation>Verschiebt Objekte zwischen dem Blatt und dem Modell, das es zeigt</translation>
    </message>
    <message>
        <source>Moves entities in space</source>
        <translation>Verschiebt Objekte im Raum</translation>
    </message>
    <message>
        <source>Moves entities to the clipboard</source>
        <translation>Verschiebt Objekte in die Zwischenablage</translation>
    </message>
    <message>
        <source>Moves or turns the text of a dimension</source>
        <translation>Verschiebt oder dreht den Text einer Bemaßung</translation>
    </message>
    <message>
        <source>Moves the notes of multileaders onto a line</source>
        <translation>Verschiebt die Anmerkungen von Multi-Führungslinien auf eine Linie</translation>
    </message>
    <message>
        <source>Moves what is shown</source>
        <translation>Verschiebt, was gezeigt wird</translation>
    </message>
    <message>
        <source>Moves what lies within a window, and what is tied to it follows</source>
        <translation>Verschiebt, was in einem Fenster liegt, und was daran hängt, folgt</translation>
    </message>
    <message>
        <source>Moves, turns and scales entities by pairs of points</source>
        <translation>Verschiebt, dreht und skaliert Objekte durch Punktpaare</translation>
    </message>
    <message>
        <source>Opens a drawing, where what is typed next goes on</source>
        <translation>Öffnet eine Zeichnung, in der das als Nächstes Eingegebene weitergeht</translation>
    </message>
    <message>
        <source>PEDIT makes polylines of others without asking</source>
        <translation>PEDIT macht ohne Rückfrage Polylinien aus anderen Objekten</translation>
    </message>
    <message>
        <source>Places a shape of a loaded shape file</source>
        <translation>Setzt ein Symbol aus einer geladenen Symboldatei</translation>
    </message>
    <message>
        <source>Places what is on the clipboard</source>
        <translation>Fügt den Inhalt der Zwischenablage ein</translation>
    </message>
    <message>
        <source>Places what is on the clipboard as a block</source>
        <translation>Fügt den Inhalt der Zwischenablage als Block ein</translation>
    </message>
    <message>
        <source>Places what is on the clipboard where it was copied</source>
        <translation>Fügt den Inhalt der Zwischenablage dort ein, wo er kopiert wurde</translation>
    </message>
    <message>
        <source>Plots a layout to a file of PDF, PNG or SVG</source>
        <translation>Plottet ein Layout in eine PDF-, PNG- oder SVG-Datei</translation>
    </message>
    <message>
        <source>Plots a layout to a file; in the window as a dialog with a preview</source>
        <translation>Plottet ein Layout in eine Datei; im Fenster als Dialog mit Vorschau</translation>
    </message>
    <message>
        <source>Puts objects on the current layer</source>
        <translation>Bringt Objekte auf den aktuellen Layer</translation>
    </message>
    <message>
        <source>Puts objects on the layer of another one</source>
        <translation>Bringt Objekte auf den Layer eines anderen</translation>
    </message>
    <message>
        <source>Puts what is on layers on another one and deletes them</source>
        <translation>Bringt den Inhalt von Layern auf einen anderen und löscht sie</translation>
    </message>
    <message>
        <source>Rounds corners with arcs</source>
        <translation>Rundet Ecken mit Bögen ab</translation>
    </message>
    <message>
        <source>Runs a command again and again until it is cancelled</source>
        <translation>Wiederholt einen Befehl, bis er abgebrochen wird</translation>
    </message>
    <message>
        <source>Runs one subcommand of the dimension mode</source>
        <translation>Führt einen Unterbefehl des Bemaßungsmodus aus</translation>
    </message>
    <message>
        <source>Saves the drawing under a name</source>
        <translation>Speichert die Zeichnung unter einem Namen</translation>
    </message>
    <message>
        <source>Saves the drawing under its own name</source>
        <translation>Speichert die Zeichnung unter ihrem eigenen Namen</translation>
    </message>
    <message>
        <source>Saves, restores and deletes named views</source>
        <translation>Speichert, stellt wieder her und löscht benannte Ausschnitte</translation>
    </message>
    <message>
        <source>Saves, restores, lists and applies dimension styles</source>
        <translation>Speichert, listet auf und wendet Bemaßungsstile an</translation>
    </message>
    <message>
        <source>Says how near the pointer object snap looks</source>
        <translation>Sagt, wie nah am Zeiger der Objektfang sucht</translation>
    </message>
    <message>
        <source>Says which object snaps are always on</source>
        <translation>Sagt, welche Objektfänge immer eingeschaltet sind</translation>
    </message>
    <message>
        <source>Scripts go on by themselves</source>
        <translation>Skripte gehen von selbst weiter</translation>
    </message>
    <message>
        <source>Sets and checks the drawing&apos;s limits</source>
        <translation>Setzt und prüft die Limiten der Zeichnung</translation>
    </message>
    <message>
        <source>Sets and switches the grid</source>
        <translation>Stellt das Raster ein und schaltet es</translation>
    </message>
    <message>
        <source>Sets and switches the grid that points snap to</source>
        <translation>Stellt das Raster ein, an dem Punkte gefangen werden, und schaltet es</translation>
    </message>
    <message>
        <source>Sets how lengths and angles are shown</source>
        <translation>Stellt ein, wie Längen und Winkel gezeigt werden</translation>
    </message>
    <message>
        <source>Sets the color of new objects</source>
        <translation>Setzt die Farbe neuer Objekte</translation>
    </message>
    <message>
        <source>Sets the elevation and thickness of new objects</source>
        <translation>Setzt Erhebung und Objekthöhe neuer Objekte</translation>
    </message>
    <message>
        <source>Sets the lineweight of new objects</source>
        <translation>Setzt die Linienstärke neuer Objekte</translation>
    </message>
    <message>
        <source>Sets the point that the drawing is inserted by</source>
        <translation>Setzt den Punkt, an dem die Zeichnung eingefügt wird</translation>
    </message>
    <message>
        <source>Sets variables of single dimensions</source>
        <translation>Setzt Variablen einzelner Bemaßungen</translation>
    </message>
    <message>
        <source>Sets, saves and restores the user coordinate system</source>
        <translation>Setzt, speichert und holt das Benutzerkoordinatensystem</translation>
    </message>
    <message>
        <source>Shows more or less of the drawing</source>
        <translation>Zeigt mehr oder weniger von der Zeichnung</translation>
    </message>
    <message>
        <source>Shows the help pages</source>
        <translation>Zeigt die Hilfeseiten</translation>
    </message>
    <message>
        <source>Shows the properties panel where it is entered by hand in the window</source>
        <translation>Zeigt das Eigenschaftenfeld, wenn im Fenster von Hand eingegeben</translation>
    </message>
    <message>
        <source>Shows, lists or sets a system variable</source>
        <translation>Zeigt, listet oder setzt eine Systemvariable</translation>
    </message>
    <message>
        <source>Switches whether areas are filled</source>
        <translation>Schaltet, ob Flächen gefüllt werden</translation>
    </message>
    <message>
        <source>Switches whether lines go along the axes</source>
        <translation>Schaltet, ob Linien entlang der Achsen verlaufen</translation>
    </message>
    <message>
        <source>Switches whether texts are boxes</source>
        <translation>Schaltet, ob Texte Rechtecke sind</translation>
    </message>
    <message>
        <source>Switches whether the drawing is made anew by itself</source>
        <translation>Schaltet, ob die Zeichnung von selbst neu aufgebaut wird</translation>
    </message>
    <message>
        <source>TRIM and EXTEND begin with edges (0) or take all (1)</source>
        <translation>TRIM und EXTEND beginnen mit Kanten (0) oder nehmen alle (1)</translation>
    </message>
    <message>
        <source>TRIM and EXTEND take edges as if they went on</source>
        <translation>TRIM und EXTEND nehmen Kanten so, als gingen sie weiter</translation>
    </message>
    <message>
        <source>Takes a file&apos;s name; programs for other hosts do not run here</source>
        <translation>Nimmt einen Dateinamen; Programme für andere Wirtsprogramme laufen hier nicht</translation>
    </message>
    <message>
        <source>Takes back steps; marks and groups them</source>
        <translation>Nimmt Schritte zurück; markiert und gruppiert sie</translation>
    </message>
    <message>
        <source>Takes back the last change of layer settings</source>
        <translation>Nimmt die letzte Änderung von Layereinstellungen zurück</translation>
    </message>
    <message>
        <source>Takes back the last step</source>
        <translation>Nimmt den letzten Schritt zurück</translation>
    </message>
    <message>
        <source>Takes blocks, polylines, texts and dimensions apart</source>
        <translation>Zerlegt Blöcke, Polylinien, Texte und Bemaßungen</translation>
    </message>
    <message>
        <source>Takes entities out of the drawing</source>
        <translation>Nimmt Objekte aus der Zeichnung</translation>
    </message>
    <message>
        <source>Takes out of the drawing what nothing refers to</source>
        <translation>Nimmt aus der Zeichnung, worauf nichts verweist</translation>
    </message>
    <message>
        <source>Takes the name of a menu file; there are none here</source>
        <translation>Nimmt den Namen einer Menüdatei; hier gibt es keine</translation>
    </message>
    <message>
        <source>Takes the name of a menu; there are none here</source>
        <translation>Nimmt den Namen eines Menüs; hier gibt es keine</translation>
    </message>
    <message>
        <source>Takes what programs ask of it; programs for other hosts do not run here</source>
        <translation>Nimmt, was Programme davon wollen; Programme für andere Wirtsprogramme laufen hier nicht</translation>
    </message>
    <message>
        <source>Tells the coordinates of a point</source>
        <translation>Nennt die Koordinaten eines Punkts</translation>
    </message>
    <message>
        <source>Tells the distance and angle between points</source>
        <translation>Nennt Abstand und Winkel zwischen Punkten</translation>
    </message>
    <message>
        <source>Tells what is in the drawing and what is current</source>
        <translation>Nennt, was in der Zeichnung ist und was aktuell ist</translation>
    </message>
    <message>
        <source>Tells what is known of entities</source>
        <translation>Nennt, was von Objekten bekannt ist</translation>
    </message>
    <message>
        <source>Tells when the drawing was made and changed</source>
        <translation>Nennt, wann die Zeichnung erstellt und geändert wurde</translation>
    </message>
    <message>
        <source>Thaws all layers</source>
        <translation>Taut alle Layer</translation>
    </message>
    <message>
        <source>The command line is always in sight</source>
        <translation>Die Befehlszeile ist immer sichtbar</translation>
    </message>
    <message>
        <source>The drawing is always in sight</source>
        <translation>Die Zeichnung ist immer sichtbar</translation>
    </message>
    <message>
        <source>Turns all layers on</source>
        <translation>Schaltet alle Layer ein</translation>
    </message>
    <message>
        <source>Turns entities round a point</source>
        <translation>Dreht Objekte um einen Punkt</translation>
    </message>
    <message>
        <source>Turns entities round an axis in space</source>
        <translation>Dreht Objekte um eine Achse im Raum</translation>
    </message>
    <message>
        <source>Turns off the layers of picked objects</source>
        <translation>Schaltet die Layer gewählter Objekte aus</translation>
    </message>
    <message>
        <source>Types the last script once more</source>
        <translation>Gibt das letzte Skript noch einmal ein</translation>
    </message>
    <message>
        <source>Types what a script file holds</source>
        <translation>Gibt ein, was eine Skriptdatei enthält</translation>
    </message>
    <message>
        <source>Unlocks the layer of a picked object</source>
        <translation>Entsperrt den Layer eines gewählten Objekts</translation>
    </message>
    <message>
        <source>Waits for so many milliseconds</source>
        <translation>Wartet so viele Millisekunden</translation>
    </message>
    <message>
        <source>Works on model space through a viewport of the sheet</source>
        <translation>Arbeitet durch ein Ansichtsfenster des Blattes im Modellbereich</translation>
    </message>
    <message>
        <source>Works on the sheet itself</source>
        <translation>Arbeitet auf dem Blatt selbst</translation>
    </message>
    <message>
        <source>Writes a block or entities to a drawing file</source>
        <translation>Schreibt einen Block oder Objekte in eine Zeichnungsdatei</translation>
    </message>
    <message>
        <source>Writes a paragraph of several lines</source>
        <translation>Schreibt einen Absatztext aus mehreren Zeilen</translation>
    </message>
    <message>
        <source>Writes one line of text</source>
        <translation>Schreibt eine Zeile Text</translation>
    </message>
    <message>
        <source>&quot;(&quot; and &quot;!&quot; in texts are evaluated</source>
        <translation>&quot;(&quot; und &quot;!&quot; in Texten werden ausgewertet</translation>
    </message>
    <message>
        <source>a block is being edited in place</source>
        <translation>ein Block wird am Ort bearbeitet</translation>
    </message>
    <message>
        <source>a double click edits</source>
        <translation>ein Doppelklick bearbeitet</translation>
    </message>
    <message>
        <source>a drawing&apos;s sheet set is looked for</source>
        <translation>der Plansatz einer Zeichnung wird gesucht</translation>
    </message>
    <message>
        <source>a file&apos;s tab shows its layouts</source>
        <translation>die Registerkarte einer Datei zeigt ihre Layouts</translation>
    </message>
    <message>
        <source>a hatch is shown before it is made</source>
        <translation>eine Schraffur wird gezeigt, bevor sie erstellt wird</translation>
    </message>
    <message>
        <source>a line is drawn inside though the text is outside</source>
        <translation>innen wird eine Linie gezeichnet, auch wenn der Text außen steht</translation>
    </message>
    <message>
        <source>a new annotation scale is given to annotative things</source>
        <translation>ein neuer Beschriftungsmaßstab wird annotativen Objekten gegeben</translation>
    </message>
    <message>
        <source>a panel for fingers</source>
        <translation>ein Bedienfeld für Finger</translation>
    </message>
    <message>
        <source>a picture is saved in the file</source>
        <translation>ein Bild wird in der Datei gespeichert</translation>
    </message>
    <message>
        <source>a real for programs, kept with the drawing</source>
        <translation>eine reelle Zahl für Programme, mit der Zeichnung gespeichert</translation>
    </message>
    <message>
        <source>a second unit is shown</source>
        <translation>eine zweite Einheit wird gezeigt</translation>
    </message>
    <message>
        <source>a sheet that the printer lacks is told</source>
        <translation>ein Blatt, das dem Drucker fehlt, wird gemeldet</translation>
    </message>
    <message>
        <source>a text for programs</source>
        <translation>ein Text für Programme</translation>
    </message>
    <message>
        <source>addresses that programs may come from</source>
        <translation>Adressen, von denen Programme kommen dürfen</translation>
    </message>
    <message>
        <source>after how long names are completed, in seconds</source>
        <translation>nach welcher Zeit Namen ergänzt werden, in Sekunden</translation>
    </message>
    <message>
        <source>after how many milliseconds names are offered</source>
        <translation>nach wie vielen Millisekunden Namen angeboten werden</translation>
    </message>
    <message>
        <source>all grips of clouds are shown</source>
        <translation>alle Griffe von Wolken werden gezeigt</translation>
    </message>
    <message>
        <source>an empty place picked begins a window</source>
        <translation>eine Wahl an leerer Stelle beginnt ein Fenster</translation>
    </message>
    <message>
        <source>an expression in the status line</source>
        <translation>ein Ausdruck in der Statuszeile</translation>
    </message>
    <message>
        <source>an integer for programs, kept with the drawing</source>
        <translation>eine ganze Zahl für Programme, mit der Zeichnung gespeichert</translation>
    </message>
    <message>
        <source>an orthographic view brings its coordinate system</source>
        <translation>eine orthogonale Ansicht bringt ihr Koordinatensystem mit</translation>
    </message>
    <message>
        <source>and a foreground</source>
        <translation>und einen Vordergrund</translation>
    </message>
    <message>
        <source>and opened</source>
        <translation>und geöffnet</translation>
    </message>
    <message>
        <source>angles count counterclockwise (0) or clockwise (1)</source>
        <translation>Winkel zählen gegen den Uhrzeigersinn (0) oder mit ihm (1)</translation>
    </message>
    <message>
        <source>annotative things are saved for older programs</source>
        <translation>annotative Objekte werden für ältere Programme gespeichert</translation>
    </message>
    <message>
        <source>annotative things show at every scale</source>
        <translation>annotative Objekte erscheinen in jedem Maßstab</translation>
    </message>
    <message>
        <source>arcs are smooth</source>
        <translation>Bögen sind glatt</translation>
    </message>
    <message>
        <source>areas are filled</source>
        <translation>Flächen werden gefüllt</translation>
    </message>
    <message>
        <source>areas that are hatched at once become a hatch each</source>
        <translation>auf einmal schraffierte Flächen werden je eine Schraffur</translation>
    </message>
    <message>
        <source>arrays stay one thing</source>
        <translation>Anordnungen bleiben ein Objekt</translation>
    </message>
    <message>
        <source>arrows outside are left out</source>
        <translation>Pfeile außen werden weggelassen</translation>
    </message>
    <message>
        <source>attribute definitions may have several lines</source>
        <translation>Attributdefinitionen dürfen mehrere Zeilen haben</translation>
    </message>
    <message>
        <source>attributes: none are shown (0), as they say (1), all (2)</source>
        <translation>Attribute: keine werden gezeigt (0), wie sie es sagen (1), alle (2)</translation>
    </message>
    <message>
        <source>blocks cannot be edited in place</source>
        <translation>Blöcke können nicht am Ort bearbeitet werden</translation>
    </message>
    <message>
        <source>boundaries of hatches are kept</source>
        <translation>Umgrenzungen von Schraffuren werden behalten</translation>
    </message>
    <message>
        <source>boxes of the screen menu</source>
        <translation>Felder des Bildschirmmenüs</translation>
    </message>
    <message>
        <source>breaches of standards are told</source>
        <translation>Verstöße gegen Standards werden gemeldet</translation>
    </message>
    <message>
        <source>cameras are shown</source>
        <translation>Kameras werden gezeigt</translation>
    </message>
    <message>
        <source>centre marks have lines</source>
        <translation>Zentrumsmarken haben Linien</translation>
    </message>
    <message>
        <source>chains take the style of what they go on from (1)</source>
        <translation>Bemaßungsketten nehmen den Stil dessen, woran sie anschließen (1)</translation>
    </message>
    <message>
        <source>chamfers by two distances (0) or by length and angle (1)</source>
        <translation>Fasen durch zwei Abstände (0) oder durch Länge und Winkel (1)</translation>
    </message>
    <message>
        <source>changed external drawings are told</source>
        <translation>geänderte externe Zeichnungen werden gemeldet</translation>
    </message>
    <message>
        <source>changes of external drawings&apos; blocks are told</source>
        <translation>Änderungen an Blöcken externer Zeichnungen werden gemeldet</translation>
    </message>
    <message>
        <source>changes of variables are told</source>
        <translation>Änderungen von Variablen werden gemeldet</translation>
    </message>
    <message>
        <source>closed splines have no corner</source>
        <translation>geschlossene Splines haben keine Ecke</translation>
    </message>
    <message>
        <source>colours of external drawings&apos; entities go by layer</source>
        <translation>Farben der Objekte externer Zeichnungen folgen dem Layer</translation>
    </message>
    <message>
        <source>columns of new paragraphs</source>
        <translation>Spalten neuer Absatztexte</translation>
    </message>
    <message>
        <source>commands ask for files with a dialog</source>
        <translation>Befehle fragen mit einem Dialog nach Dateien</translation>
    </message>
    <message>
        <source>commands may show dialogs</source>
        <translation>Befehle dürfen Dialoge zeigen</translation>
    </message>
    <message>
        <source>commands of programs are echoed</source>
        <translation>Befehle von Programmen werden ausgegeben</translation>
    </message>
    <message>
        <source>crashes are reported</source>
        <translation>Abstürze werden gemeldet</translation>
    </message>
    <message>
        <source>cuts curves off at others</source>
        <translation>schneidet Kurven an anderen ab</translation>
    </message>
    <message>
        <source>dark (0) or light (1)</source>
        <translation>dunkel (0) oder hell (1)</translation>
    </message>
    <message>
        <source>date and time as a number: YYYYMMDD.HHMMSS</source>
        <translation>Datum und Zeit als Zahl: JJJJMMTT.HHMMSS</translation>
    </message>
    <message>
        <source>date and time as days of the Julian calendar</source>
        <translation>Datum und Zeit als Tage des julianischen Kalenders</translation>
    </message>
    <message>
        <source>decimals of angles</source>
        <translation>Nachkommastellen von Winkeln</translation>
    </message>
    <message>
        <source>decimals of angles; -1 as DIMDEC</source>
        <translation>Nachkommastellen von Winkeln; -1 wie DIMDEC</translation>
    </message>
    <message>
        <source>decimals of dimensions</source>
        <translation>Nachkommastellen von Bemaßungen</translation>
    </message>
    <message>
        <source>decimals of lengths</source>
        <translation>Nachkommastellen von Längen</translation>
    </message>
    <message>
        <source>decimals of the second unit</source>
        <translation>Nachkommastellen der zweiten Einheit</translation>
    </message>
    <message>
        <source>decimals of tolerances</source>
        <translation>Nachkommastellen von Toleranzen</translation>
    </message>
    <message>
        <source>decimals of tolerances in the second unit</source>
        <translation>Nachkommastellen von Toleranzen in der zweiten Einheit</translation>
    </message>
    <message>
        <source>density of surfaces one way</source>
        <translation>Dichte von Flächen in der einen Richtung</translation>
    </message>
    <message>
        <source>density of surfaces the other way</source>
        <translation>Dichte von Flächen in der anderen Richtung</translation>
    </message>
    <message>
        <source>depth of the spatial index</source>
        <translation>Tiefe des räumlichen Index</translation>
    </message>
    <message>
        <source>dialogs begin in the folder used last</source>
        <translation>Dialoge beginnen im zuletzt verwendeten Ordner</translation>
    </message>
    <message>
        <source>dimensions are exploded (0), one thing (1), or follow what they measure (2)</source>
        <translation>Bemaßungen sind zerlegt (0), ein Objekt (1) oder folgen dem Bemaßten (2)</translation>
    </message>
    <message>
        <source>dimensions are one thing (1) or exploded (0)</source>
        <translation>Bemaßungen sind ein Objekt (1) oder zerlegt (0)</translation>
    </message>
    <message>
        <source>dimensions change while they are dragged</source>
        <translation>Bemaßungen ändern sich, während sie gezogen werden</translation>
    </message>
    <message>
        <source>drawings are checked when opened</source>
        <translation>Zeichnungen werden beim Öffnen geprüft</translation>
    </message>
    <message>
        <source>drawings have tabs</source>
        <translation>Zeichnungen haben Registerkarten</translation>
    </message>
    <message>
        <source>drawings may be opened in part</source>
        <translation>Zeichnungen dürfen teilweise geöffnet werden</translation>
    </message>
    <message>
        <source>entities are shown while they are dragged</source>
        <translation>Objekte werden gezeigt, während sie gezogen werden</translation>
    </message>
    <message>
        <source>entities have handles: always 1</source>
        <translation>Objekte haben Referenznummern: immer 1</translation>
    </message>
    <message>
        <source>entities may be chosen before a command</source>
        <translation>Objekte dürfen vor einem Befehl gewählt werden</translation>
    </message>
    <message>
        <source>entities that are chosen show grips</source>
        <translation>gewählte Objekte zeigen Griffe</translation>
    </message>
    <message>
        <source>erases what is there twice and makes one of lines and arcs that overlap</source>
        <translation>löscht doppelt Vorhandenes und fasst überlappende Linien und Bögen zusammen</translation>
    </message>
    <message>
        <source>everything but the drawing is hidden</source>
        <translation>alles außer der Zeichnung ist verborgen</translation>
    </message>
    <message>
        <source>extension lines have a fixed length</source>
        <translation>Hilfslinien haben eine feste Länge</translation>
    </message>
    <message>
        <source>external drawings are read in part</source>
        <translation>externe Zeichnungen werden teilweise gelesen</translation>
    </message>
    <message>
        <source>fields have a ground</source>
        <translation>Felder haben einen Hintergrund</translation>
    </message>
    <message>
        <source>folders that drawings may name files of</source>
        <translation>Ordner, deren Dateien in Zeichnungen genannt werden dürfen</translation>
    </message>
    <message>
        <source>folders that programs may come from</source>
        <translation>Ordner, aus denen Programme kommen dürfen</translation>
    </message>
    <message>
        <source>frames of clipped blocks</source>
        <translation>Rahmen zugeschnittener Blöcke</translation>
    </message>
    <message>
        <source>frames of masks</source>
        <translation>Rahmen von Masken</translation>
    </message>
    <message>
        <source>frames of objects of other programs</source>
        <translation>Rahmen von Objekten anderer Programme</translation>
    </message>
    <message>
        <source>frames of pictures</source>
        <translation>Rahmen von Bildern</translation>
    </message>
    <message>
        <source>frames of splines and hidden edges are shown</source>
        <translation>Rahmen von Splines und verdeckte Kanten werden gezeigt</translation>
    </message>
    <message>
        <source>frames of underlays</source>
        <translation>Rahmen von Unterlagen</translation>
    </message>
    <message>
        <source>functions and variables are the drawing&apos;s own</source>
        <translation>Funktionen und Variablen gehören der Zeichnung</translation>
    </message>
    <message>
        <source>further angles of polar tracking</source>
        <translation>weitere Winkel der polaren Spur</translation>
    </message>
    <message>
        <source>gaps of boundaries that are taken as closed</source>
        <translation>Lücken in Umgrenzungen, die als geschlossen gelten</translation>
    </message>
    <message>
        <source>gaps where things cross others that are in front</source>
        <translation>Lücken, wo Objekte andere kreuzen, die davor liegen</translation>
    </message>
    <message>
        <source>gradients have one colour (1) or two (0)</source>
        <translation>Farbverläufe haben eine Farbe (1) oder zwei (0)</translation>
    </message>
    <message>
        <source>gradients lie in the middle (0) or beside it</source>
        <translation>Farbverläufe liegen in der Mitte (0) oder daneben</translation>
    </message>
    <message>
        <source>grips have tips</source>
        <translation>Griffe haben Hinweise</translation>
    </message>
    <message>
        <source>grips within blocks are shown</source>
        <translation>Griffe innerhalb von Blöcken werden gezeigt</translation>
    </message>
    <message>
        <source>groups and hatches with their boundary are chosen as one</source>
        <translation>Gruppen und Schraffuren mit ihrer Umgrenzung werden als Ganzes gewählt</translation>
    </message>
    <message>
        <source>half the size of the box of object snap, in pixels</source>
        <translation>halbe Größe der Objektfang-Pickbox, in Pixeln</translation>
    </message>
    <message>
        <source>half the size of the box that picks, in pixels</source>
        <translation>halbe Größe der Pickbox, in Pixeln</translation>
    </message>
    <message>
        <source>hatches follow their boundary</source>
        <translation>Schraffuren folgen ihrer Umgrenzung</translation>
    </message>
    <message>
        <source>hatches may have linetypes</source>
        <translation>Schraffuren dürfen Linientypen haben</translation>
    </message>
    <message>
        <source>hatches of the user&apos;s lines cross</source>
        <translation>Schraffuren aus Linien des Benutzers kreuzen sich</translation>
    </message>
    <message>
        <source>how angles are shown: degrees, minutes, gradians, radians, surveyor&apos;s units</source>
        <translation>wie Winkel gezeigt werden: Grad, Minuten, Neugrad, Bogenmaß, Feldmaß</translation>
    </message>
    <message>
        <source>how areas are picked</source>
        <translation>wie Flächen gewählt werden</translation>
    </message>
    <message>
        <source>how closely splines follow sketches</source>
        <translation>wie genau Splines Skizzen folgen</translation>
    </message>
    <message>
        <source>how clouds are drawn</source>
        <translation>wie Wolken gezeichnet werden</translation>
    </message>
    <message>
        <source>how edges meet</source>
        <translation>wie Kanten zusammentreffen</translation>
    </message>
    <message>
        <source>how exactly hidden lines are found</source>
        <translation>wie genau verdeckte Linien gefunden werden</translation>
    </message>
    <message>
        <source>how external drawings&apos; names are bound: with $ (0) or as if inserted (1)</source>
        <translation>wie Namen externer Zeichnungen gebunden werden: mit $ (0) oder wie eingefügt (1)</translation>
    </message>
    <message>
        <source>how faces and edges are shaded</source>
        <translation>wie Flächen und Kanten schattiert werden</translation>
    </message>
    <message>
        <source>how far TRIM and EXTEND of hatches go</source>
        <translation>wie weit TRIM und EXTEND von Schraffuren gehen</translation>
    </message>
    <message>
        <source>how far apart ends may be that JOIN puts together</source>
        <translation>wie weit Enden auseinander sein dürfen, die JOIN verbindet</translation>
    </message>
    <message>
        <source>how far centre lines go beyond</source>
        <translation>wie weit Mittellinien hinausgehen</translation>
    </message>
    <message>
        <source>how far extension lines go beyond the line</source>
        <translation>wie weit Hilfslinien über die Maßlinie hinausgehen</translation>
    </message>
    <message>
        <source>how far extension lines stay from what is measured</source>
        <translation>wie weit Hilfslinien vom Bemaßten wegbleiben</translation>
    </message>
    <message>
        <source>how far new entities rise above their plane</source>
        <translation>wie weit sich neue Objekte über ihre Ebene erheben</translation>
    </message>
    <message>
        <source>how far the line goes beyond extension lines</source>
        <translation>wie weit die Maßlinie über die Hilfslinien hinausgeht</translation>
    </message>
    <message>
        <source>how far the text stands from the line</source>
        <translation>wie weit der Text von der Maßlinie steht</translation>
    </message>
    <message>
        <source>how far tracking lines go</source>
        <translation>wie weit Spurlinien reichen</translation>
    </message>
    <message>
        <source>how fit points share the knots</source>
        <translation>wie Anpassungspunkte die Knoten teilen</translation>
    </message>
    <message>
        <source>how fractions are written</source>
        <translation>wie Brüche geschrieben werden</translation>
    </message>
    <message>
        <source>how grips offer more than one thing</source>
        <translation>wie Griffe mehr als eines anbieten</translation>
    </message>
    <message>
        <source>how large points look</source>
        <translation>wie groß Punkte aussehen</translation>
    </message>
    <message>
        <source>how lengths are shown: scientific, decimal, engineering, architectural, fractional</source>
        <translation>wie Längen gezeigt werden: wissenschaftlich, dezimal, technisch, Architektur, Bruch</translation>
    </message>
    <message>
        <source>how lofted surfaces are shaped, as bits</source>
        <translation>wie Übergangsflächen geformt sind, als Bits</translation>
    </message>
    <message>
        <source>how lofted surfaces leave their sections</source>
        <translation>wie Übergangsflächen ihre Querschnitte verlassen</translation>
    </message>
    <message>
        <source>how long</source>
        <translation>wie lange</translation>
    </message>
    <message>
        <source>how long smooth changes of the view take, in milliseconds</source>
        <translation>wie lange sanfte Wechsel der Ansicht dauern, in Millisekunden</translation>
    </message>
    <message>
        <source>how long the drawing was worked on</source>
        <translation>wie lange an der Zeichnung gearbeitet wurde</translation>
    </message>
    <message>
        <source>how long the right button is held for a menu</source>
        <translation>wie lange die rechte Taste für ein Menü gehalten wird</translation>
    </message>
    <message>
        <source>how many corners a face may have</source>
        <translation>wie viele Ecken eine Fläche haben darf</translation>
    </message>
    <message>
        <source>how many dimensions are shown while a grip is pulled</source>
        <translation>wie viele Maße gezeigt werden, während ein Griff gezogen wird</translation>
    </message>
    <message>
        <source>how many entities the panel of properties takes</source>
        <translation>wie viele Objekte das Eigenschaftenfeld nimmt</translation>
    </message>
    <message>
        <source>how many lines a hatch may have</source>
        <translation>wie viele Linien eine Schraffur haben darf</translation>
    </message>
    <message>
        <source>how many lines of input are remembered</source>
        <translation>wie viele Eingabezeilen behalten werden</translation>
    </message>
    <message>
        <source>how many lines of the grid lie between two stronger ones</source>
        <translation>wie viele Rasterlinien zwischen zwei stärkeren liegen</translation>
    </message>
    <message>
        <source>how many names are listed in order</source>
        <translation>wie viele Namen geordnet aufgelistet werden</translation>
    </message>
    <message>
        <source>how many sides POLYGON proposes</source>
        <translation>wie viele Seiten POLYGON vorschlägt</translation>
    </message>
    <message>
        <source>how many turns HELIX proposes</source>
        <translation>wie viele Windungen HELIX vorschlägt</translation>
    </message>
    <message>
        <source>how many viewports may show something</source>
        <translation>wie viele Ansichtsfenster etwas zeigen dürfen</translation>
    </message>
    <message>
        <source>how much</source>
        <translation>wie viel</translation>
    </message>
    <message>
        <source>how much external drawings fade</source>
        <translation>wie stark externe Zeichnungen verblassen</translation>
    </message>
    <message>
        <source>how much light is scattered</source>
        <translation>wie viel Licht gestreut wird</translation>
    </message>
    <message>
        <source>how much locked layers fade</source>
        <translation>wie stark gesperrte Layer verblassen</translation>
    </message>
    <message>
        <source>how much of a file may be waste before it is saved whole</source>
        <translation>wie viel einer Datei Abfall sein darf, bevor sie ganz gespeichert wird</translation>
    </message>
    <message>
        <source>how much the wheel zooms</source>
        <translation>wie stark das Rad zoomt</translation>
    </message>
    <message>
        <source>how much what is not edited fades</source>
        <translation>wie stark verblasst, was nicht bearbeitet wird</translation>
    </message>
    <message>
        <source>how names are completed, as bits</source>
        <translation>wie Namen ergänzt werden, als Bits</translation>
    </message>
    <message>
        <source>how often dragging is drawn again with regeneration</source>
        <translation>wie oft das Ziehen mit Neuaufbau gezeichnet wird</translation>
    </message>
    <message>
        <source>how often dragging is drawn again without</source>
        <translation>wie oft das Ziehen ohne Neuaufbau gezeichnet wird</translation>
    </message>
    <message>
        <source>how paragraphs are shown while edited</source>
        <translation>wie Absatztexte beim Bearbeiten gezeigt werden</translation>
    </message>
    <message>
        <source>how places on earth are shown</source>
        <translation>wie Orte auf der Erde gezeigt werden</translation>
    </message>
    <message>
        <source>how points look</source>
        <translation>wie Punkte aussehen</translation>
    </message>
    <message>
        <source>how polar and object tracking work, as bits</source>
        <translation>wie polare Spur und Objektfangspur arbeiten, als Bits</translation>
    </message>
    <message>
        <source>how programs are tested, as bits</source>
        <translation>wie Programme geprüft werden, als Bits</translation>
    </message>
    <message>
        <source>how sheets are turned</source>
        <translation>wie Blätter gedreht werden</translation>
    </message>
    <message>
        <source>how smooth letters are plotted</source>
        <translation>wie glatt Buchstaben geplottet werden</translation>
    </message>
    <message>
        <source>how smooth round things are shown</source>
        <translation>wie glatt Rundes gezeigt wird</translation>
    </message>
    <message>
        <source>how stacked texts are aligned</source>
        <translation>wie gestapelte Texte ausgerichtet werden</translation>
    </message>
    <message>
        <source>how surfaces are smoothed</source>
        <translation>wie Flächen geglättet werden</translation>
    </message>
    <message>
        <source>how text and arrows share the room, in the old form</source>
        <translation>wie sich Text und Pfeile den Platz teilen, in der alten Form</translation>
    </message>
    <message>
        <source>how texts are aligned</source>
        <translation>wie Texte ausgerichtet werden</translation>
    </message>
    <message>
        <source>how texts are edited</source>
        <translation>wie Texte bearbeitet werden</translation>
    </message>
    <message>
        <source>how the dialog of hatches is shown</source>
        <translation>wie der Schraffurdialog gezeigt wird</translation>
    </message>
    <message>
        <source>how the grid is shown, as bits</source>
        <translation>wie das Raster gezeigt wird, als Bits</translation>
    </message>
    <message>
        <source>how the status line shows the pointer&apos;s place</source>
        <translation>wie die Statuszeile den Ort des Zeigers zeigt</translation>
    </message>
    <message>
        <source>how undo works, as bits</source>
        <translation>wie das Rückgängigmachen arbeitet, als Bits</translation>
    </message>
    <message>
        <source>how unknown entities are shown</source>
        <translation>wie unbekannte Objekte gezeigt werden</translation>
    </message>
    <message>
        <source>how well objects of other programs are plotted</source>
        <translation>wie gut Objekte anderer Programme geplottet werden</translation>
    </message>
    <message>
        <source>how well pictures are shown</source>
        <translation>wie gut Bilder gezeigt werden</translation>
    </message>
    <message>
        <source>how what is under the pointer is shown</source>
        <translation>wie gezeigt wird, was unter dem Zeiger ist</translation>
    </message>
    <message>
        <source>how wide lines end</source>
        <translation>wie breite Linien enden</translation>
    </message>
    <message>
        <source>how wide lines meet</source>
        <translation>wie breite Linien zusammentreffen</translation>
    </message>
    <message>
        <source>indices of layers and places are kept</source>
        <translation>Indizes von Layern und Orten werden gehalten</translation>
    </message>
    <message>
        <source>islands are looked for</source>
        <translation>Inseln werden gesucht</translation>
    </message>
    <message>
        <source>its colour</source>
        <translation>seine Farbe</translation>
    </message>
    <message>
        <source>kept as it is set, for programs: nothing here depends on it</source>
        <translation>behalten, wie es gesetzt wird, für Programme: hier hängt nichts davon ab</translation>
    </message>
    <message>
        <source>kept for programs that ask for it</source>
        <translation>behalten für Programme, die danach fragen</translation>
    </message>
    <message>
        <source>keys that override a mode for a moment</source>
        <translation>Tasten, die einen Modus vorübergehend ändern</translation>
    </message>
    <message>
        <source>layers of external drawings keep what is set here</source>
        <translation>Layer externer Zeichnungen behalten, was hier eingestellt wird</translation>
    </message>
    <message>
        <source>layers without entities are shown so</source>
        <translation>Layer ohne Objekte werden als solche gezeigt</translation>
    </message>
    <message>
        <source>layouts have tabs</source>
        <translation>Layouts haben Registerkarten</translation>
    </message>
    <message>
        <source>lengthens curves up to others</source>
        <translation>verlängert Kurven bis zu anderen</translation>
    </message>
    <message>
        <source>lengths are shown as they are typed</source>
        <translation>Längen werden gezeigt, wie sie eingegeben werden</translation>
    </message>
    <message>
        <source>letters are filled when plotted</source>
        <translation>Buchstaben werden beim Plotten gefüllt</translation>
    </message>
    <message>
        <source>limits are shown</source>
        <translation>Limiten werden gezeigt</translation>
    </message>
    <message>
        <source>line spacing at least (1) or exactly (2)</source>
        <translation>Zeilenabstand mindestens (1) oder genau (2)</translation>
    </message>
    <message>
        <source>lines are drawn smoothly</source>
        <translation>Linien werden glatt gezeichnet</translation>
    </message>
    <message>
        <source>lines between two corners of a spline-fitted polyline</source>
        <translation>Linien zwischen zwei Ecken einer Polylinie mit Spline-Glättung</translation>
    </message>
    <message>
        <source>lines of history that the command line shows</source>
        <translation>Zeilen bisheriger Ausgabe, die die Befehlszeile zeigt</translation>
    </message>
    <message>
        <source>lines of surfaces one way</source>
        <translation>Linien von Flächen in der einen Richtung</translation>
    </message>
    <message>
        <source>lines of surfaces the other way</source>
        <translation>Linien von Flächen in der anderen Richtung</translation>
    </message>
    <message>
        <source>lines on round solids</source>
        <translation>Linien auf runden Volumenkörpern</translation>
    </message>
    <message>
        <source>lines where solids meet are shown</source>
        <translation>Linien, an denen Volumenkörper zusammentreffen, werden gezeigt</translation>
    </message>
    <message>
        <source>linetypes in model space take the annotation scale</source>
        <translation>Linientypen im Modellbereich nehmen den Beschriftungsmaßstab</translation>
    </message>
    <message>
        <source>linetypes in viewports take the scale of the sheet</source>
        <translation>Linientypen in Ansichtsfenstern nehmen den Maßstab des Blattes</translation>
    </message>
    <message>
        <source>linetypes run through the corners of polylines</source>
        <translation>Linientypen laufen durch die Ecken von Polylinien</translation>
    </message>
    <message>
        <source>lineweights are shown</source>
        <translation>Linienstärken werden gezeigt</translation>
    </message>
    <message>
        <source>lineweights are shown in inches (0) or millimetres (1)</source>
        <translation>Linienstärken werden in Zoll (0) oder Millimetern (1) gezeigt</translation>
    </message>
    <message>
        <source>makes one curve of several that meet or lie on one line or circle</source>
        <translation>macht eine Kurve aus mehreren, die sich treffen oder auf einer Linie oder einem Kreis liegen</translation>
    </message>
    <message>
        <source>makes regions of closed loops</source>
        <translation>macht Regionen aus geschlossenen Schleifen</translation>
    </message>
    <message>
        <source>marks and tips of object snap, polar and object tracking, as bits</source>
        <translation>Marken und Hinweise von Objektfang, polarer Spur und Objektfangspur, als Bits</translation>
    </message>
    <message>
        <source>marks of centres: their size, negative with lines, 0 for none</source>
        <translation>Zentrumsmarken: ihre Größe, negativ mit Linien, 0 für keine</translation>
    </message>
    <message>
        <source>marks where points were picked</source>
        <translation>Marken, wo Punkte gewählt wurden</translation>
    </message>
    <message>
        <source>measures areas and perimeters of corners and curves</source>
        <translation>misst Flächen und Umfänge von Ecken und Kurven</translation>
    </message>
    <message>
        <source>measures curves and makes them longer or shorter</source>
        <translation>misst Kurven und macht sie länger oder kürzer</translation>
    </message>
    <message>
        <source>menus follow the command</source>
        <translation>Menüs folgen dem Befehl</translation>
    </message>
    <message>
        <source>menus of the right button, as bits: at rest, for what is chosen, at prompts, with options, held</source>
        <translation>Menüs der rechten Taste, als Bits: in Ruhe, für Gewähltes, bei Eingabeaufforderungen, mit Optionen, gehalten</translation>
    </message>
    <message>
        <source>milliseconds since the machine was started</source>
        <translation>Millisekunden seit dem Start des Rechners</translation>
    </message>
    <message>
        <source>minutes between automatic saves</source>
        <translation>Minuten zwischen automatischen Speicherungen</translation>
    </message>
    <message>
        <source>model space is shown (1) or a layout (0)</source>
        <translation>der Modellbereich wird gezeigt (1) oder ein Layout (0)</translation>
    </message>
    <message>
        <source>names may be long and have blanks</source>
        <translation>Namen dürfen lang sein und Leerzeichen haben</translation>
    </message>
    <message>
        <source>names of applications come with external drawings</source>
        <translation>Anwendungsnamen kommen mit externen Zeichnungen</translation>
    </message>
    <message>
        <source>new drawings are imperial (0) or metric (1)</source>
        <translation>neue Zeichnungen sind britisch (0) oder metrisch (1)</translation>
    </message>
    <message>
        <source>new external drawings are attached (0) or overlaid (1)</source>
        <translation>neue externe Zeichnungen werden zugeordnet (0) oder überlagert (1)</translation>
    </message>
    <message>
        <source>new external drawings have no path (0), a relative (1) or a full one (2)</source>
        <translation>neue externe Zeichnungen haben keinen Pfad (0), einen relativen (1) oder einen vollen (2)</translation>
    </message>
    <message>
        <source>new hatches are annotative</source>
        <translation>neue Schraffuren sind annotativ</translation>
    </message>
    <message>
        <source>new layers are looked for</source>
        <translation>neue Layer werden gesucht</translation>
    </message>
    <message>
        <source>new layouts get a viewport</source>
        <translation>neue Layouts bekommen ein Ansichtsfenster</translation>
    </message>
    <message>
        <source>new texts are in capitals</source>
        <translation>neue Texte sind in Großbuchstaben</translation>
    </message>
    <message>
        <source>notes are shown in the status bar</source>
        <translation>Hinweise werden in der Statusleiste gezeigt</translation>
    </message>
    <message>
        <source>object snap finds hatches</source>
        <translation>der Objektfang findet Schraffuren</translation>
    </message>
    <message>
        <source>object snap finds underlays</source>
        <translation>der Objektfang findet Unterlagen</translation>
    </message>
    <message>
        <source>object snap takes the height of the user&apos;s plane</source>
        <translation>der Objektfang nimmt die Höhe der Ebene des Benutzers</translation>
    </message>
    <message>
        <source>object snaps in space, as bits</source>
        <translation>Objektfänge im Raum, als Bits</translation>
    </message>
    <message>
        <source>objects of other programs are hidden</source>
        <translation>Objekte anderer Programme werden verborgen</translation>
    </message>
    <message>
        <source>one drawing at a time</source>
        <translation>eine Zeichnung auf einmal</translation>
    </message>
    <message>
        <source>one text is edited (1) or several (0)</source>
        <translation>ein Text wird bearbeitet (1) oder mehrere (0)</translation>
    </message>
    <message>
        <source>patterns are mirrored with hatches</source>
        <translation>Muster werden mit Schraffuren gespiegelt</translation>
    </message>
    <message>
        <source>pictures are shown whole when chosen</source>
        <translation>Bilder werden ganz gezeigt, wenn sie gewählt sind</translation>
    </message>
    <message>
        <source>pictures have a ground</source>
        <translation>Bilder haben einen Hintergrund</translation>
    </message>
    <message>
        <source>pictures of unknown entities are saved</source>
        <translation>Bilder unbekannter Objekte werden gespeichert</translation>
    </message>
    <message>
        <source>plot styles go by colour (1) or name (0)</source>
        <translation>Plotstile richten sich nach Farbe (1) oder Namen (0)</translation>
    </message>
    <message>
        <source>points must be within the limits</source>
        <translation>Punkte müssen innerhalb der Limiten liegen</translation>
    </message>
    <message>
        <source>points typed beside the pointer are polar (0) or cartesian (1)</source>
        <translation>am Zeiger eingegebene Punkte sind polar (0) oder kartesisch (1)</translation>
    </message>
    <message>
        <source>points typed beside the pointer are relative (0) or absolute (1)</source>
        <translation>am Zeiger eingegebene Punkte sind relativ (0) oder absolut (1)</translation>
    </message>
    <message>
        <source>polylines are made light: never (0), new ones (1), old ones too (2)</source>
        <translation>Polylinien werden leicht gemacht: nie (0), neue (1), auch alte (2)</translation>
    </message>
    <message>
        <source>programs from elsewhere: loaded (0), asked for (1), refused (2); trusted folders decide here</source>
        <translation>Programme von anderswo: geladen (0), erfragt (1), abgelehnt (2); hier entscheiden vertrauenswürdige Ordner</translation>
    </message>
    <message>
        <source>prompts are not printed</source>
        <translation>Eingabeaufforderungen werden nicht ausgegeben</translation>
    </message>
    <message>
        <source>prompts are shown beside the pointer</source>
        <translation>Eingabeaufforderungen werden am Zeiger gezeigt</translation>
    </message>
    <message>
        <source>prompts beside the pointer, as bits</source>
        <translation>Eingabeaufforderungen am Zeiger, als Bits</translation>
    </message>
    <message>
        <source>puts points or blocks at steps along a curve</source>
        <translation>setzt Punkte oder Blöcke in Schritten entlang einer Kurve</translation>
    </message>
    <message>
        <source>puts points or blocks that cut a curve into equal parts</source>
        <translation>setzt Punkte oder Blöcke, die eine Kurve in gleiche Teile teilen</translation>
    </message>
    <message>
        <source>quick properties are shown</source>
        <translation>Schnelleigenschaften werden gezeigt</translation>
    </message>
    <message>
        <source>regeneration on several processors</source>
        <translation>Neuaufbau auf mehreren Prozessoren</translation>
    </message>
    <message>
        <source>reversing a polyline swaps its widths</source>
        <translation>das Umkehren einer Polylinie vertauscht ihre Breiten</translation>
    </message>
    <message>
        <source>saving keeps a backup</source>
        <translation>beim Speichern wird eine Sicherung behalten</translation>
    </message>
    <message>
        <source>scripts plot without questions</source>
        <translation>Skripte plotten ohne Rückfragen</translation>
    </message>
    <message>
        <source>silhouettes of solids are drawn</source>
        <translation>Silhouetten von Volumenkörpern werden gezeichnet</translation>
    </message>
    <message>
        <source>sketches become lines (0), polylines (1), splines (2)</source>
        <translation>Skizzen werden Linien (0), Polylinien (1), Splines (2)</translation>
    </message>
    <message>
        <source>snap goes by the grid (0) or by polar tracking (1)</source>
        <translation>der Fang richtet sich nach dem Raster (0) oder der polaren Spur (1)</translation>
    </message>
    <message>
        <source>snap is square (0) or isometric (1)</source>
        <translation>der Fang ist rechtwinklig (0) oder isometrisch (1)</translation>
    </message>
    <message>
        <source>solids are checked</source>
        <translation>Volumenkörper werden geprüft</translation>
    </message>
    <message>
        <source>solids keep their history</source>
        <translation>Volumenkörper behalten ihre Geschichte</translation>
    </message>
    <message>
        <source>spline-fitted polylines are quadratic (5) or cubic (6)</source>
        <translation>Polylinien mit Spline-Glättung sind quadratisch (5) oder kubisch (6)</translation>
    </message>
    <message>
        <source>splines become polylines of lines (0) or arcs (1)</source>
        <translation>Splines werden Polylinien aus Linien (0) oder Bögen (1)</translation>
    </message>
    <message>
        <source>splines go by fit points (0) or control points (1)</source>
        <translation>Splines richten sich nach Anpassungspunkten (0) oder Kontrollpunkten (1)</translation>
    </message>
    <message>
        <source>start-up programs are loaded into every drawing (1) or the first (0)</source>
        <translation>Startprogramme werden in jede Zeichnung (1) oder die erste (0) geladen</translation>
    </message>
    <message>
        <source>steps of a walk in a second</source>
        <translation>Schritte eines Gangs in einer Sekunde</translation>
    </message>
    <message>
        <source>such settings are shown</source>
        <translation>solche Einstellungen werden gezeigt</translation>
    </message>
    <message>
        <source>symbols are shown in the status bar</source>
        <translation>Symbole werden in der Statusleiste gezeigt</translation>
    </message>
    <message>
        <source>takes a part out of a curve, or cuts it in two</source>
        <translation>nimmt ein Stück aus einer Kurve oder schneidet sie entzwei</translation>
    </message>
    <message>
        <source>texts are kept inside</source>
        <translation>Texte werden innen gehalten</translation>
    </message>
    <message>
        <source>texts are mirrored with the drawing</source>
        <translation>Texte werden mit der Zeichnung gespiegelt</translation>
    </message>
    <message>
        <source>texts are read the other way</source>
        <translation>Texte werden andersherum gelesen</translation>
    </message>
    <message>
        <source>texts are shown as boxes</source>
        <translation>Texte werden als Rechtecke gezeigt</translation>
    </message>
    <message>
        <source>texts hide and are hidden</source>
        <translation>Texte verdecken und werden verdeckt</translation>
    </message>
    <message>
        <source>texts inside are level</source>
        <translation>Texte innen stehen waagrecht</translation>
    </message>
    <message>
        <source>texts outside are level</source>
        <translation>Texte außen stehen waagrecht</translation>
    </message>
    <message>
        <source>the address of the browser</source>
        <translation>die Adresse des Browsers</translation>
    </message>
    <message>
        <source>the angle of gradients</source>
        <translation>der Winkel von Farbverläufen</translation>
    </message>
    <message>
        <source>the angle of hatches</source>
        <translation>der Winkel von Schraffuren</translation>
    </message>
    <message>
        <source>the angle of the jog of large radii</source>
        <translation>der Winkel der Verkürzung großer Radien</translation>
    </message>
    <message>
        <source>the angle that ROTATE proposes</source>
        <translation>der Winkel, den ROTATE vorschlägt</translation>
    </message>
    <message>
        <source>the angle that UCS proposes for a turn</source>
        <translation>der Winkel, den UCS für eine Drehung vorschlägt</translation>
    </message>
    <message>
        <source>the arcs of clouds differ</source>
        <translation>die Bögen von Wolken sind verschieden</translation>
    </message>
    <message>
        <source>the area that was measured last</source>
        <translation>die zuletzt gemessene Fläche</translation>
    </message>
    <message>
        <source>the arrow at both ends</source>
        <translation>der Pfeil an beiden Enden</translation>
    </message>
    <message>
        <source>the arrow at the first end</source>
        <translation>der Pfeil am ersten Ende</translation>
    </message>
    <message>
        <source>the arrow at the second end</source>
        <translation>der Pfeil am zweiten Ende</translation>
    </message>
    <message>
        <source>the arrow of leaders</source>
        <translation>der Pfeil von Führungslinien</translation>
    </message>
    <message>
        <source>the bar of navigation is shown</source>
        <translation>die Navigationsleiste wird gezeigt</translation>
    </message>
    <message>
        <source>the base point of the drawing</source>
        <translation>der Basispunkt der Zeichnung</translation>
    </message>
    <message>
        <source>the blank key ends a line of a list</source>
        <translation>die Leertaste beendet eine Zeile einer Liste</translation>
    </message>
    <message>
        <source>the block that INSERT proposes</source>
        <translation>der Block, den INSERT vorschlägt</translation>
    </message>
    <message>
        <source>the block that is edited in place</source>
        <translation>der Block, der am Ort bearbeitet wird</translation>
    </message>
    <message>
        <source>the blocks inserted last</source>
        <translation>die zuletzt eingefügten Blöcke</translation>
    </message>
    <message>
        <source>the box of object snap is shown</source>
        <translation>die Objektfang-Pickbox wird gezeigt</translation>
    </message>
    <message>
        <source>the chamfer angle</source>
        <translation>der Fasenwinkel</translation>
    </message>
    <message>
        <source>the chamfer length</source>
        <translation>die Fasenlänge</translation>
    </message>
    <message>
        <source>the code page of the machine</source>
        <translation>die Codepage des Rechners</translation>
    </message>
    <message>
        <source>the colour of crossing windows</source>
        <translation>die Farbe von Kreuzen-Fenstern</translation>
    </message>
    <message>
        <source>the colour of dimension lines</source>
        <translation>die Farbe von Maßlinien</translation>
    </message>
    <message>
        <source>the colour of extension lines</source>
        <translation>die Farbe von Hilfslinien</translation>
    </message>
    <message>
        <source>the colour of grips</source>
        <translation>die Farbe von Griffen</translation>
    </message>
    <message>
        <source>the colour of hidden lines</source>
        <translation>die Farbe verdeckter Linien</translation>
    </message>
    <message>
        <source>the colour of lines where solids meet</source>
        <translation>die Farbe von Linien, an denen Volumenkörper zusammentreffen</translation>
    </message>
    <message>
        <source>the colour of new entities</source>
        <translation>die Farbe neuer Objekte</translation>
    </message>
    <message>
        <source>the colour of new hatches; &quot;.&quot; is the current one</source>
        <translation>die Farbe neuer Schraffuren; &quot;.&quot; ist die aktuelle</translation>
    </message>
    <message>
        <source>the colour of texts</source>
        <translation>die Farbe von Texten</translation>
    </message>
    <message>
        <source>the colour of the grip that is pulled</source>
        <translation>die Farbe des gezogenen Griffs</translation>
    </message>
    <message>
        <source>the colour of the grip under the pointer</source>
        <translation>die Farbe des Griffs unter dem Zeiger</translation>
    </message>
    <message>
        <source>the colour of the grips of dynamic blocks</source>
        <translation>die Farbe der Griffe dynamischer Blöcke</translation>
    </message>
    <message>
        <source>the colour of windows of selections</source>
        <translation>die Farbe von Auswahlfenstern</translation>
    </message>
    <message>
        <source>the command line is written to a file</source>
        <translation>die Befehlszeile wird in eine Datei geschrieben</translation>
    </message>
    <message>
        <source>the commands that are under way</source>
        <translation>die Befehle, die gerade laufen</translation>
    </message>
    <message>
        <source>the control key goes through what lies above each other</source>
        <translation>die Strg-Taste geht durch, was übereinander liegt</translation>
    </message>
    <message>
        <source>the cube of views is shown</source>
        <translation>der Ansichtswürfel wird gezeigt</translation>
    </message>
    <message>
        <source>the cube of views is shown in flat views</source>
        <translation>der Ansichtswürfel wird in flachen Ansichten gezeigt</translation>
    </message>
    <message>
        <source>the current dimension style</source>
        <translation>der aktuelle Bemaßungsstil</translation>
    </message>
    <message>
        <source>the current dimension style is annotative</source>
        <translation>der aktuelle Bemaßungsstil ist annotativ</translation>
    </message>
    <message>
        <source>the decimal separator</source>
        <translation>das Dezimaltrennzeichen</translation>
    </message>
    <message>
        <source>the default lineweight, in hundredths of a millimetre</source>
        <translation>die vorgegebene Linienstärke, in Hundertstelmillimetern</translation>
    </message>
    <message>
        <source>the degree of new splines</source>
        <translation>der Grad neuer Splines</translation>
    </message>
    <message>
        <source>the dictionary of spelling</source>
        <translation>das Wörterbuch der Rechtschreibung</translation>
    </message>
    <message>
        <source>the distance of dimension lines above each other</source>
        <translation>der Abstand übereinanderliegender Maßlinien</translation>
    </message>
    <message>
        <source>the distance of the back clipping plane</source>
        <translation>der Abstand der hinteren Schnittebene</translation>
    </message>
    <message>
        <source>the distance of the front clipping plane</source>
        <translation>der Abstand der vorderen Schnittebene</translation>
    </message>
    <message>
        <source>the distance of the user&apos;s lines</source>
        <translation>der Abstand der Linien des Benutzers</translation>
    </message>
    <message>
        <source>the distance that OFFSET proposes; negative for through a point</source>
        <translation>der Abstand, den OFFSET vorschlägt; negativ für durch einen Punkt</translation>
    </message>
    <message>
        <source>the distance that was measured last</source>
        <translation>der zuletzt gemessene Abstand</translation>
    </message>
    <message>
        <source>the distances of the grid</source>
        <translation>die Abstände des Rasters</translation>
    </message>
    <message>
        <source>the drawing behaves as annotative when inserted</source>
        <translation>die Zeichnung verhält sich beim Einfügen annotativ</translation>
    </message>
    <message>
        <source>the drawing has a name</source>
        <translation>die Zeichnung hat einen Namen</translation>
    </message>
    <message>
        <source>the drawing may be edited in place by others</source>
        <translation>die Zeichnung darf von anderen am Ort bearbeitet werden</translation>
    </message>
    <message>
        <source>the drawing may be written</source>
        <translation>die Zeichnung darf geschrieben werden</translation>
    </message>
    <message>
        <source>the drawing takes imperial (0) or metric (1) patterns</source>
        <translation>die Zeichnung nimmt britische (0) oder metrische (1) Muster</translation>
    </message>
    <message>
        <source>the drawing was opened whole</source>
        <translation>die Zeichnung wurde ganz geöffnet</translation>
    </message>
    <message>
        <source>the drawing&apos;s code page</source>
        <translation>die Codepage der Zeichnung</translation>
    </message>
    <message>
        <source>the drawing&apos;s file name</source>
        <translation>der Dateiname der Zeichnung</translation>
    </message>
    <message>
        <source>the drawing&apos;s folder</source>
        <translation>der Ordner der Zeichnung</translation>
    </message>
    <message>
        <source>the drawing&apos;s unit of length</source>
        <translation>die Längeneinheit der Zeichnung</translation>
    </message>
    <message>
        <source>the editor of paragraphs</source>
        <translation>der Editor für Absatztexte</translation>
    </message>
    <message>
        <source>the encoding of text files</source>
        <translation>die Kodierung von Textdateien</translation>
    </message>
    <message>
        <source>the end direction of the arc drawn last</source>
        <translation>die Endrichtung des zuletzt gezeichneten Bogens</translation>
    </message>
    <message>
        <source>the ends have arrows of their own</source>
        <translation>die Enden haben eigene Pfeile</translation>
    </message>
    <message>
        <source>the factor of a unit&apos;s parts</source>
        <translation>der Faktor der Teile einer Einheit</translation>
    </message>
    <message>
        <source>the factor of lengths</source>
        <translation>der Faktor von Längen</translation>
    </message>
    <message>
        <source>the factor of the line spacing of paragraphs</source>
        <translation>der Faktor des Zeilenabstands von Absatztexten</translation>
    </message>
    <message>
        <source>the factor of the second unit</source>
        <translation>der Faktor der zweiten Einheit</translation>
    </message>
    <message>
        <source>the factor of the second unit&apos;s parts</source>
        <translation>der Faktor der Teile der zweiten Einheit</translation>
    </message>
    <message>
        <source>the factor that SCALE proposes</source>
        <translation>der Faktor, den SCALE vorschlägt</translation>
    </message>
    <message>
        <source>the far corner of the limits</source>
        <translation>die obere Ecke der Limiten</translation>
    </message>
    <message>
        <source>the far corner of the virtual screen</source>
        <translation>die obere Ecke des virtuellen Bildschirms</translation>
    </message>
    <message>
        <source>the far corner of what the space shows</source>
        <translation>die obere Ecke dessen, was der Bereich zeigt</translation>
    </message>
    <message>
        <source>the file of the command line</source>
        <translation>die Datei der Befehlszeile</translation>
    </message>
    <message>
        <source>the file of the last automatic save</source>
        <translation>die Datei der letzten automatischen Speicherung</translation>
    </message>
    <message>
        <source>the file of the menu</source>
        <translation>die Datei des Menüs</translation>
    </message>
    <message>
        <source>the file that says which font replaces which</source>
        <translation>die Datei, die sagt, welche Schrift welche ersetzt</translation>
    </message>
    <message>
        <source>the file that was saved last</source>
        <translation>die zuletzt gespeicherte Datei</translation>
    </message>
    <message>
        <source>the first chamfer distance</source>
        <translation>der erste Fasenabstand</translation>
    </message>
    <message>
        <source>the first colour of gradients</source>
        <translation>die erste Farbe von Farbverläufen</translation>
    </message>
    <message>
        <source>the first extension line is left out</source>
        <translation>die erste Hilfslinie wird weggelassen</translation>
    </message>
    <message>
        <source>the first half of the line is left out</source>
        <translation>die erste Hälfte der Maßlinie wird weggelassen</translation>
    </message>
    <message>
        <source>the focal length of perspective views</source>
        <translation>die Brennweite perspektivischer Ansichten</translation>
    </message>
    <message>
        <source>the folder of automatic saves</source>
        <translation>der Ordner automatischer Speicherungen</translation>
    </message>
    <message>
        <source>the folder of such files</source>
        <translation>der Ordner solcher Dateien</translation>
    </message>
    <message>
        <source>the folder of temporary files</source>
        <translation>der Ordner temporärer Dateien</translation>
    </message>
    <message>
        <source>the folder of the user&apos;s data</source>
        <translation>der Ordner der Benutzerdaten</translation>
    </message>
    <message>
        <source>the folder of the user&apos;s documents</source>
        <translation>der Ordner der Dokumente des Benutzers</translation>
    </message>
    <message>
        <source>the folder of what stays on this machine</source>
        <translation>der Ordner dessen, was auf diesem Rechner bleibt</translation>
    </message>
    <message>
        <source>the folder that the program was started in</source>
        <translation>der Ordner, in dem das Programm gestartet wurde</translation>
    </message>
    <message>
        <source>the folders that files are looked for in</source>
        <translation>die Ordner, in denen Dateien gesucht werden</translation>
    </message>
    <message>
        <source>the font for those that are missing</source>
        <translation>die Schrift anstelle fehlender</translation>
    </message>
    <message>
        <source>the format of angles</source>
        <translation>das Format von Winkeln</translation>
    </message>
    <message>
        <source>the format of lengths</source>
        <translation>das Format von Längen</translation>
    </message>
    <message>
        <source>the format of lengths, in the old form</source>
        <translation>das Format von Längen, in der alten Form</translation>
    </message>
    <message>
        <source>the format of the second unit</source>
        <translation>das Format der zweiten Einheit</translation>
    </message>
    <message>
        <source>the frames of pictures, underlays and clips</source>
        <translation>die Rahmen von Bildern, Unterlagen und Zuschnitten</translation>
    </message>
    <message>
        <source>the gap between a multileader&apos;s landing and its text</source>
        <translation>der Abstand zwischen der Verlängerung einer Multi-Führungslinie und ihrem Text</translation>
    </message>
    <message>
        <source>the gap of centre marks</source>
        <translation>die Lücke von Zentrumsmarken</translation>
    </message>
    <message>
        <source>the grid is shown</source>
        <translation>das Raster wird gezeigt</translation>
    </message>
    <message>
        <source>the ground of hatches</source>
        <translation>der Hintergrund von Schraffuren</translation>
    </message>
    <message>
        <source>the ground of texts</source>
        <translation>der Hintergrund von Texten</translation>
    </message>
    <message>
        <source>the handle that comes next</source>
        <translation>die nächste Referenznummer</translation>
    </message>
    <message>
        <source>the height of POLYSOLID</source>
        <translation>die Höhe von POLYSOLID</translation>
    </message>
    <message>
        <source>the height of new cameras</source>
        <translation>die Höhe neuer Kameras</translation>
    </message>
    <message>
        <source>the height of new entities above the user&apos;s plane</source>
        <translation>die Höhe neuer Objekte über der Ebene des Benutzers</translation>
    </message>
    <message>
        <source>the height of new entities on sheets</source>
        <translation>die Höhe neuer Objekte auf Blättern</translation>
    </message>
    <message>
        <source>the height of texts</source>
        <translation>die Höhe von Texten</translation>
    </message>
    <message>
        <source>the height of the view</source>
        <translation>die Höhe der Ansicht</translation>
    </message>
    <message>
        <source>the height that shadows fall on</source>
        <translation>die Höhe, auf die Schatten fallen</translation>
    </message>
    <message>
        <source>the history of solids is shown</source>
        <translation>die Geschichte von Volumenkörpern wird gezeigt</translation>
    </message>
    <message>
        <source>the inner diameter that DONUT proposes</source>
        <translation>der Innendurchmesser, den DONUT vorschlägt</translation>
    </message>
    <message>
        <source>the isometric plane</source>
        <translation>die isometrische Ebene</translation>
    </message>
    <message>
        <source>the kind of array that is proposed</source>
        <translation>die Art der Anordnung, die vorgeschlagen wird</translation>
    </message>
    <message>
        <source>the kind of gradients</source>
        <translation>die Art von Farbverläufen</translation>
    </message>
    <message>
        <source>the language of the machine</source>
        <translation>die Sprache des Rechners</translation>
    </message>
    <message>
        <source>the last dialog ended with OK</source>
        <translation>der letzte Dialog endete mit OK</translation>
    </message>
    <message>
        <source>the last line of the command line</source>
        <translation>die letzte Zeile der Befehlszeile</translation>
    </message>
    <message>
        <source>the layer of centre marks</source>
        <translation>der Layer von Zentrumsmarken</translation>
    </message>
    <message>
        <source>the layer of new dimensions; &quot;.&quot; is the current one</source>
        <translation>der Layer neuer Bemaßungen; &quot;.&quot; ist der aktuelle</translation>
    </message>
    <message>
        <source>the layer of new entities</source>
        <translation>der Layer neuer Objekte</translation>
    </message>
    <message>
        <source>the layer of new external drawings; &quot;.&quot; is the current one</source>
        <translation>der Layer neuer externer Zeichnungen; &quot;.&quot; ist der aktuelle</translation>
    </message>
    <message>
        <source>the layer of new hatches; &quot;.&quot; is the current one</source>
        <translation>der Layer neuer Schraffuren; &quot;.&quot; ist der aktuelle</translation>
    </message>
    <message>
        <source>the least speed of smooth changes of the view</source>
        <translation>die Mindestgeschwindigkeit sanfter Wechsel der Ansicht</translation>
    </message>
    <message>
        <source>the length of extension lines, where fixed</source>
        <translation>die Länge von Hilfslinien, wo sie fest ist</translation>
    </message>
    <message>
        <source>the length of the arcs of clouds</source>
        <translation>die Länge der Bögen von Wolken</translation>
    </message>
    <message>
        <source>the length round what was measured last</source>
        <translation>der Umfang des zuletzt Gemessenen</translation>
    </message>
    <message>
        <source>the linetype of centre marks</source>
        <translation>der Linientyp von Zentrumsmarken</translation>
    </message>
    <message>
        <source>the linetype of dimension lines</source>
        <translation>der Linientyp von Maßlinien</translation>
    </message>
    <message>
        <source>the linetype of hidden lines</source>
        <translation>der Linientyp verdeckter Linien</translation>
    </message>
    <message>
        <source>the linetype of new entities</source>
        <translation>der Linientyp neuer Objekte</translation>
    </message>
    <message>
        <source>the linetype of the first extension line</source>
        <translation>der Linientyp der ersten Hilfslinie</translation>
    </message>
    <message>
        <source>the linetype of the second extension line</source>
        <translation>der Linientyp der zweiten Hilfslinie</translation>
    </message>
    <message>
        <source>the linetype scale of centre marks</source>
        <translation>der Linientypfaktor von Zentrumsmarken</translation>
    </message>
    <message>
        <source>the linetype scale of new entities</source>
        <translation>der Linientypfaktor neuer Objekte</translation>
    </message>
    <message>
        <source>the lineweight of dimension lines</source>
        <translation>die Linienstärke von Maßlinien</translation>
    </message>
    <message>
        <source>the lineweight of extension lines</source>
        <translation>die Linienstärke von Hilfslinien</translation>
    </message>
    <message>
        <source>the lineweight of new entities</source>
        <translation>die Linienstärke neuer Objekte</translation>
    </message>
    <message>
        <source>the longest arc of clouds</source>
        <translation>der längste Bogen von Wolken</translation>
    </message>
    <message>
        <source>the lower tolerance</source>
        <translation>die untere Toleranz</translation>
    </message>
    <message>
        <source>the maintenance version of the drawing&apos;s format</source>
        <translation>die Wartungsversion des Zeichnungsformats</translation>
    </message>
    <message>
        <source>the material of new entities</source>
        <translation>das Material neuer Objekte</translation>
    </message>
    <message>
        <source>the menu bar is shown</source>
        <translation>die Menüleiste wird gezeigt</translation>
    </message>
    <message>
        <source>the menus of viewports are shown</source>
        <translation>die Menüs von Ansichtsfenstern werden gezeigt</translation>
    </message>
    <message>
        <source>the middle of the view</source>
        <translation>die Mitte der Ansicht</translation>
    </message>
    <message>
        <source>the most memory that Lisp may take, in megabytes</source>
        <translation>der größte Speicher, den Lisp nehmen darf, in Megabyte</translation>
    </message>
    <message>
        <source>the most nodes of the spatial index</source>
        <translation>die größte Zahl von Knoten des räumlichen Index</translation>
    </message>
    <message>
        <source>the name of the current annotation scale</source>
        <translation>der Name des aktuellen Beschriftungsmaßstabs</translation>
    </message>
    <message>
        <source>the name of the layout that is shown</source>
        <translation>der Name des gezeigten Layouts</translation>
    </message>
    <message>
        <source>the name of the menu</source>
        <translation>der Name des Menüs</translation>
    </message>
    <message>
        <source>the name of the program</source>
        <translation>der Name des Programms</translation>
    </message>
    <message>
        <source>the name of the project</source>
        <translation>der Name des Projekts</translation>
    </message>
    <message>
        <source>the name of the user&apos;s coordinate system</source>
        <translation>der Name des Benutzerkoordinatensystems</translation>
    </message>
    <message>
        <source>the name of the user&apos;s profile</source>
        <translation>der Name des Benutzerprofils</translation>
    </message>
    <message>
        <source>the near corner of the limits</source>
        <translation>die untere Ecke der Limiten</translation>
    </message>
    <message>
        <source>the near corner of the virtual screen</source>
        <translation>die untere Ecke des virtuellen Bildschirms</translation>
    </message>
    <message>
        <source>the near corner of what the space shows</source>
        <translation>die untere Ecke dessen, was der Bereich zeigt</translation>
    </message>
    <message>
        <source>the number of the current viewport; 1 is the sheet</source>
        <translation>die Nummer des aktuellen Ansichtsfensters; 1 ist das Blatt</translation>
    </message>
    <message>
        <source>the offset of plots counts from the margin (0) or the edge (1)</source>
        <translation>der Plotversatz zählt vom Rand (0) oder von der Kante (1)</translation>
    </message>
    <message>
        <source>the operating system</source>
        <translation>das Betriebssystem</translation>
    </message>
    <message>
        <source>the origin of hatches</source>
        <translation>der Ursprung von Schraffuren</translation>
    </message>
    <message>
        <source>the origin of snap and grid</source>
        <translation>der Ursprung von Fang und Raster</translation>
    </message>
    <message>
        <source>the origin of the user&apos;s coordinate system</source>
        <translation>der Ursprung des Benutzerkoordinatensystems</translation>
    </message>
    <message>
        <source>the outer diameter that DONUT proposes</source>
        <translation>der Außendurchmesser, den DONUT vorschlägt</translation>
    </message>
    <message>
        <source>the panel of databases is open</source>
        <translation>das Feld der Datenbanken ist offen</translation>
    </message>
    <message>
        <source>the panel of external drawings is open</source>
        <translation>das Feld externer Zeichnungen ist offen</translation>
    </message>
    <message>
        <source>the panel of layers is open</source>
        <translation>das Layerfeld ist offen</translation>
    </message>
    <message>
        <source>the panel of other drawings&apos; contents is open</source>
        <translation>das Feld für Inhalte anderer Zeichnungen ist offen</translation>
    </message>
    <message>
        <source>the panel of properties is open</source>
        <translation>das Eigenschaftenfeld ist offen</translation>
    </message>
    <message>
        <source>the pattern of hatches</source>
        <translation>das Muster von Schraffuren</translation>
    </message>
    <message>
        <source>the plan view follows the user&apos;s coordinate system</source>
        <translation>die Draufsicht folgt dem Benutzerkoordinatensystem</translation>
    </message>
    <message>
        <source>the plane follows faces</source>
        <translation>die Ebene folgt Flächen</translation>
    </message>
    <message>
        <source>the plot style of layer 0 in new drawings</source>
        <translation>der Plotstil von Layer 0 in neuen Zeichnungen</translation>
    </message>
    <message>
        <source>the plot style of new entities</source>
        <translation>der Plotstil neuer Objekte</translation>
    </message>
    <message>
        <source>the plot style of new entities in new drawings</source>
        <translation>der Plotstil neuer Objekte in neuen Zeichnungen</translation>
    </message>
    <message>
        <source>the point given last</source>
        <translation>der zuletzt angegebene Punkt</translation>
    </message>
    <message>
        <source>the pointer moves along the axes</source>
        <translation>der Zeiger bewegt sich entlang der Achsen</translation>
    </message>
    <message>
        <source>the pointer moves in steps</source>
        <translation>der Zeiger bewegt sich in Schritten</translation>
    </message>
    <message>
        <source>the program of such an object is started for a plot</source>
        <translation>das Programm eines solchen Objekts wird zum Plotten gestartet</translation>
    </message>
    <message>
        <source>the radius that CIRCLE proposes; 0 for none</source>
        <translation>der Radius, den CIRCLE vorschlägt; 0 für keinen</translation>
    </message>
    <message>
        <source>the radius that FILLET takes</source>
        <translation>der Radius, den FILLET nimmt</translation>
    </message>
    <message>
        <source>the release of the dialect, beginning with its number</source>
        <translation>die Version des Dialekts, beginnend mit ihrer Nummer</translation>
    </message>
    <message>
        <source>the ribbon is shown</source>
        <translation>das Menüband wird gezeigt</translation>
    </message>
    <message>
        <source>the room round the text; negative with a frame</source>
        <translation>der Platz um den Text; negativ mit Rahmen</translation>
    </message>
    <message>
        <source>the running object snaps, as bits</source>
        <translation>die laufenden Objektfänge, als Bits</translation>
    </message>
    <message>
        <source>the scale of all linetypes</source>
        <translation>der Faktor aller Linientypen</translation>
    </message>
    <message>
        <source>the scale of everything in dimensions; 0 by the sheet</source>
        <translation>der Maßstab von allem in Bemaßungen; 0 nach dem Blatt</translation>
    </message>
    <message>
        <source>the scale of hatches</source>
        <translation>der Maßstab von Schraffuren</translation>
    </message>
    <message>
        <source>the scale of multileaders</source>
        <translation>der Maßstab von Multi-Führungslinien</translation>
    </message>
    <message>
        <source>the scale of multilines</source>
        <translation>der Maßstab von Multilinien</translation>
    </message>
    <message>
        <source>the scale of new viewports</source>
        <translation>der Maßstab neuer Ansichtsfenster</translation>
    </message>
    <message>
        <source>the scale of objects of other programs</source>
        <translation>der Maßstab von Objekten anderer Programme</translation>
    </message>
    <message>
        <source>the scales of chosen annotative things are shown</source>
        <translation>die Maßstäbe gewählter annotativer Objekte werden gezeigt</translation>
    </message>
    <message>
        <source>the second chamfer distance</source>
        <translation>der zweite Fasenabstand</translation>
    </message>
    <message>
        <source>the second colour of gradients</source>
        <translation>die zweite Farbe von Farbverläufen</translation>
    </message>
    <message>
        <source>the second extension line is left out</source>
        <translation>die zweite Hilfslinie wird weggelassen</translation>
    </message>
    <message>
        <source>the second half of the line is left out</source>
        <translation>die zweite Hälfte der Maßlinie wird weggelassen</translation>
    </message>
    <message>
        <source>the shadow of an entity</source>
        <translation>der Schatten eines Objekts</translation>
    </message>
    <message>
        <source>the shape that SHAPE proposes</source>
        <translation>das Symbol, das SHAPE vorschlägt</translation>
    </message>
    <message>
        <source>the sheet set of the drawing</source>
        <translation>der Plansatz der Zeichnung</translation>
    </message>
    <message>
        <source>the shortest arc of clouds</source>
        <translation>der kürzeste Bogen von Wolken</translation>
    </message>
    <message>
        <source>the size of a step in a walk</source>
        <translation>die Größe eines Schritts bei einem Gang</translation>
    </message>
    <message>
        <source>the size of arrows</source>
        <translation>die Größe von Pfeilen</translation>
    </message>
    <message>
        <source>the size of centre marks</source>
        <translation>die Größe von Zentrumsmarken</translation>
    </message>
    <message>
        <source>the size of grips in pixels</source>
        <translation>die Größe von Griffen in Pixeln</translation>
    </message>
    <message>
        <source>the size of stacked texts, as per cent</source>
        <translation>die Größe gestapelter Texte, in Prozent</translation>
    </message>
    <message>
        <source>the size of the box that picks dimensions</source>
        <translation>die Größe der Pickbox für Bemaßungen</translation>
    </message>
    <message>
        <source>the size of the cross hairs, as per cent of the window</source>
        <translation>die Größe des Fadenkreuzes, in Prozent des Fensters</translation>
    </message>
    <message>
        <source>the size of the drawing&apos;s window in pixels</source>
        <translation>die Größe des Zeichnungsfensters in Pixeln</translation>
    </message>
    <message>
        <source>the size of ticks; 0 for arrows</source>
        <translation>die Größe von Schrägstrichen; 0 für Pfeile</translation>
    </message>
    <message>
        <source>the size of tolerances</source>
        <translation>die Größe von Toleranzen</translation>
    </message>
    <message>
        <source>the start page is shown</source>
        <translation>die Startseite wird gezeigt</translation>
    </message>
    <message>
        <source>the status bar is shown</source>
        <translation>die Statusleiste wird gezeigt</translation>
    </message>
    <message>
        <source>the status bar may have two lines</source>
        <translation>die Statusleiste darf zwei Zeilen haben</translation>
    </message>
    <message>
        <source>the step along polar tracking</source>
        <translation>der Schritt entlang der polaren Spur</translation>
    </message>
    <message>
        <source>the step of polar tracking</source>
        <translation>der Winkelschritt der polaren Spur</translation>
    </message>
    <message>
        <source>the step of sketches</source>
        <translation>der Schritt von Skizzen</translation>
    </message>
    <message>
        <source>the steps of snap</source>
        <translation>die Schritte des Fangs</translation>
    </message>
    <message>
        <source>the style of details</source>
        <translation>der Stil von Details</translation>
    </message>
    <message>
        <source>the style of multilines</source>
        <translation>der Stil von Multilinien</translation>
    </message>
    <message>
        <source>the style of new multileaders</source>
        <translation>der Stil neuer Multi-Führungslinien</translation>
    </message>
    <message>
        <source>the style of new tables</source>
        <translation>der Stil neuer Tabellen</translation>
    </message>
    <message>
        <source>the style of sections</source>
        <translation>der Stil von Schnitten</translation>
    </message>
    <message>
        <source>the style of texts</source>
        <translation>der Stil von Texten</translation>
    </message>
    <message>
        <source>the symbol of the axes, as bits</source>
        <translation>das Achsensymbol, als Bits</translation>
    </message>
    <message>
        <source>the text around the number</source>
        <translation>der Text um die Zahl</translation>
    </message>
    <message>
        <source>the text around the second unit</source>
        <translation>der Text um die zweite Einheit</translation>
    </message>
    <message>
        <source>the text of a unit&apos;s parts</source>
        <translation>der Text der Teile einer Einheit</translation>
    </message>
    <message>
        <source>the text of the second unit&apos;s parts</source>
        <translation>der Text der Teile der zweiten Einheit</translation>
    </message>
    <message>
        <source>the text stands above the line</source>
        <translation>der Text steht über der Maßlinie</translation>
    </message>
    <message>
        <source>the text that hangs at the pointer where MTEXT asks</source>
        <translation>der Text, der am Zeiger hängt, wenn MTEXT fragt</translation>
    </message>
    <message>
        <source>the tint of gradients of one colour</source>
        <translation>die Tönung einfarbiger Farbverläufe</translation>
    </message>
    <message>
        <source>the tool palettes are open</source>
        <translation>die Werkzeugpaletten sind offen</translation>
    </message>
    <message>
        <source>the transparency of new entities</source>
        <translation>die Transparenz neuer Objekte</translation>
    </message>
    <message>
        <source>the transparency of new hatches; &quot;.&quot; is the current one</source>
        <translation>die Transparenz neuer Schraffuren; &quot;.&quot; ist die aktuelle</translation>
    </message>
    <message>
        <source>the turn of snap and grid</source>
        <translation>die Drehung von Fang und Raster</translation>
    </message>
    <message>
        <source>the turn of the view</source>
        <translation>die Drehung der Ansicht</translation>
    </message>
    <message>
        <source>the unit of drawings that say none, when inserted</source>
        <translation>die Einheit von Zeichnungen, die keine nennen, beim Einfügen</translation>
    </message>
    <message>
        <source>the unit of the drawing that says none</source>
        <translation>die Einheit der Zeichnung, die keine nennt</translation>
    </message>
    <message>
        <source>the upper tolerance</source>
        <translation>die obere Toleranz</translation>
    </message>
    <message>
        <source>the user places the text</source>
        <translation>der Benutzer platziert den Text</translation>
    </message>
    <message>
        <source>the user&apos;s coordinate system is the world&apos;s</source>
        <translation>das Benutzerkoordinatensystem ist das Weltsystem</translation>
    </message>
    <message>
        <source>the user&apos;s name</source>
        <translation>der Name des Benutzers</translation>
    </message>
    <message>
        <source>the user&apos;s own dictionary of spelling</source>
        <translation>das eigene Wörterbuch der Rechtschreibung</translation>
    </message>
    <message>
        <source>the user&apos;s timer</source>
        <translation>die Stoppuhr des Benutzers</translation>
    </message>
    <message>
        <source>the user&apos;s timer is on</source>
        <translation>die Stoppuhr des Benutzers läuft</translation>
    </message>
    <message>
        <source>the value of the current annotation scale</source>
        <translation>der Wert des aktuellen Beschriftungsmaßstabs</translation>
    </message>
    <message>
        <source>the version of bodies that are written</source>
        <translation>die Version geschriebener Körper</translation>
    </message>
    <message>
        <source>the version of the drawing&apos;s file, as &quot;AC1032&quot;</source>
        <translation>die Version der Zeichnungsdatei, etwa &quot;AC1032&quot;</translation>
    </message>
    <message>
        <source>the view is a perspective</source>
        <translation>die Ansicht ist perspektivisch</translation>
    </message>
    <message>
        <source>the viewport has layers with settings of its own</source>
        <translation>das Ansichtsfenster hat Layer mit eigenen Einstellungen</translation>
    </message>
    <message>
        <source>the wheel button pans</source>
        <translation>die Radtaste verschiebt die Ansicht</translation>
    </message>
    <message>
        <source>the width of POLYSOLID</source>
        <translation>die Breite von POLYSOLID</translation>
    </message>
    <message>
        <source>the width of polylines</source>
        <translation>die Breite von Polylinien</translation>
    </message>
    <message>
        <source>the width of traces</source>
        <translation>die Breite von Bändern</translation>
    </message>
    <message>
        <source>the workspace</source>
        <translation>der Arbeitsbereich</translation>
    </message>
    <message>
        <source>the x axis of the user&apos;s coordinate system</source>
        <translation>die x-Achse des Benutzerkoordinatensystems</translation>
    </message>
    <message>
        <source>the y axis of the user&apos;s coordinate system</source>
        <translation>die y-Achse des Benutzerkoordinatensystems</translation>
    </message>
    <message>
        <source>the zone of the drawing&apos;s place</source>
        <translation>die Zone des Ortes der Zeichnung</translation>
    </message>
    <message>
        <source>their distance</source>
        <translation>ihr Abstand</translation>
    </message>
    <message>
        <source>their distances</source>
        <translation>ihre Abstände</translation>
    </message>
    <message>
        <source>there are menus</source>
        <translation>es gibt Menüs</translation>
    </message>
    <message>
        <source>ticks along the axes, in early programs</source>
        <translation>Teilstriche an den Achsen, in frühen Programmen</translation>
    </message>
    <message>
        <source>ticks of the clock, for measuring</source>
        <translation>Takte der Uhr, zum Messen</translation>
    </message>
    <message>
        <source>tips are shown</source>
        <translation>Hinweise werden gezeigt</translation>
    </message>
    <message>
        <source>tips on the keys beside the pointer</source>
        <translation>Hinweise auf die Tasten am Zeiger</translation>
    </message>
    <message>
        <source>tips on what is under the pointer</source>
        <translation>Hinweise auf das, was unter dem Zeiger ist</translation>
    </message>
    <message>
        <source>tolerances are shown</source>
        <translation>Toleranzen werden gezeigt</translation>
    </message>
    <message>
        <source>transparency is plotted</source>
        <translation>Transparenz wird geplottet</translation>
    </message>
    <message>
        <source>transparency is shown</source>
        <translation>Transparenz wird gezeigt</translation>
    </message>
    <message>
        <source>typed coordinates go before object snap: never (0), always (1), not in scripts (2)</source>
        <translation>eingegebene Koordinaten gehen dem Objektfang vor: nie (0), immer (1), nicht in Skripten (2)</translation>
    </message>
    <message>
        <source>units of light</source>
        <translation>Einheiten des Lichts</translation>
    </message>
    <message>
        <source>unknown entities are told</source>
        <translation>unbekannte Objekte werden gemeldet</translation>
    </message>
    <message>
        <source>viewports keep their coordinate system</source>
        <translation>Ansichtsfenster behalten ihr Koordinatensystem</translation>
    </message>
    <message>
        <source>views are made anew when needed</source>
        <translation>Ansichten werden bei Bedarf neu aufgebaut</translation>
    </message>
    <message>
        <source>views count from the world (1) or the user&apos;s system (0)</source>
        <translation>Ansichten zählen von der Welt (1) oder vom System des Benutzers (0)</translation>
    </message>
    <message>
        <source>views keep their coordinate system</source>
        <translation>Ansichten behalten ihr Koordinatensystem</translation>
    </message>
    <message>
        <source>what TRIM and EXTEND project on</source>
        <translation>worauf TRIM und EXTEND projizieren</translation>
    </message>
    <message>
        <source>what a file&apos;s tab shows</source>
        <translation>was die Registerkarte einer Datei zeigt</translation>
    </message>
    <message>
        <source>what commands make others of is erased</source>
        <translation>woraus Befehle anderes machen, wird gelöscht</translation>
    </message>
    <message>
        <source>what fills the gaps of offset polylines</source>
        <translation>was die Lücken versetzter Polylinien füllt</translation>
    </message>
    <message>
        <source>what goes out first where there is no room</source>
        <translation>was zuerst hinausgeht, wo kein Platz ist</translation>
    </message>
    <message>
        <source>what happens to external drawings is logged</source>
        <translation>was mit externen Zeichnungen geschieht, wird protokolliert</translation>
    </message>
    <message>
        <source>what has changed since the drawing was saved, as bits</source>
        <translation>was sich seit dem Speichern der Zeichnung geändert hat, als Bits</translation>
    </message>
    <message>
        <source>what is asked when a block is defined again</source>
        <translation>was gefragt wird, wenn ein Block neu definiert wird</translation>
    </message>
    <message>
        <source>what is chosen is added to what was</source>
        <translation>was gewählt wird, kommt zum Gewählten hinzu</translation>
    </message>
    <message>
        <source>what is chosen is drawn smoothly</source>
        <translation>was gewählt ist, wird glatt gezeichnet</translation>
    </message>
    <message>
        <source>what is chosen is shown so</source>
        <translation>was gewählt ist, wird so gezeigt</translation>
    </message>
    <message>
        <source>what is chosen of things that hide each other</source>
        <translation>was von Objekten gewählt wird, die einander verdecken</translation>
    </message>
    <message>
        <source>what is cut off near the eye, as per cent</source>
        <translation>was nahe am Auge abgeschnitten wird, in Prozent</translation>
    </message>
    <message>
        <source>what is done after a crash</source>
        <translation>was nach einem Absturz getan wird</translation>
    </message>
    <message>
        <source>what is not shown under the pointer, as bits</source>
        <translation>was unter dem Zeiger nicht gezeigt wird, als Bits</translation>
    </message>
    <message>
        <source>what is offered while one types</source>
        <translation>was beim Tippen angeboten wird</translation>
    </message>
    <message>
        <source>what is plotted in the background, as bits</source>
        <translation>was im Hintergrund geplottet wird, als Bits</translation>
    </message>
    <message>
        <source>what is shown while a grip is pulled, as bits</source>
        <translation>was gezeigt wird, während ein Griff gezogen wird, als Bits</translation>
    </message>
    <message>
        <source>what is shown while attributes are edited</source>
        <translation>was gezeigt wird, während Attribute bearbeitet werden</translation>
    </message>
    <message>
        <source>what is under the pointer is shown so</source>
        <translation>was unter dem Zeiger ist, wird so gezeigt</translation>
    </message>
    <message>
        <source>what is under way: a command (1), transparent one (2), script (4), dialog (8), Lisp (32)</source>
        <translation>was gerade läuft: ein Befehl (1), transparenter (2), Skript (4), Dialog (8), Lisp (32)</translation>
    </message>
    <message>
        <source>what keeps to the drawing order</source>
        <translation>was sich an die Zeichenreihenfolge hält</translation>
    </message>
    <message>
        <source>what keeps to the order of the file, as bits</source>
        <translation>was sich an die Reihenfolge der Datei hält, als Bits</translation>
    </message>
    <message>
        <source>what layouts keep ready</source>
        <translation>was Layouts bereithalten</translation>
    </message>
    <message>
        <source>what lengths are rounded to</source>
        <translation>worauf Längen gerundet werden</translation>
    </message>
    <message>
        <source>what lies above each other is offered</source>
        <translation>was übereinander liegt, wird angeboten</translation>
    </message>
    <message>
        <source>what menus echo, as bits</source>
        <translation>was Menüs ausgeben, als Bits</translation>
    </message>
    <message>
        <source>what moves with the text</source>
        <translation>was sich mit dem Text bewegt</translation>
    </message>
    <message>
        <source>what new drawings do</source>
        <translation>was neue Zeichnungen tun</translation>
    </message>
    <message>
        <source>what object snap leaves out, as bits</source>
        <translation>was der Objektfang auslässt, als Bits</translation>
    </message>
    <message>
        <source>what orthographic settings count from</source>
        <translation>wovon orthogonale Einstellungen zählen</translation>
    </message>
    <message>
        <source>what relative links start from</source>
        <translation>wovon relative Links ausgehen</translation>
    </message>
    <message>
        <source>what similar means, as bits</source>
        <translation>was ähnlich bedeutet, als Bits</translation>
    </message>
    <message>
        <source>what the picture in the file shows</source>
        <translation>was das Bild in der Datei zeigt</translation>
    </message>
    <message>
        <source>what the program shows at its start</source>
        <translation>was das Programm beim Start zeigt</translation>
    </message>
    <message>
        <source>what the screen shows</source>
        <translation>was der Bildschirm zeigt</translation>
    </message>
    <message>
        <source>what the second unit is rounded to</source>
        <translation>worauf die zweite Einheit gerundet wird</translation>
    </message>
    <message>
        <source>what the view is: perspective, clipped, ..., as bits</source>
        <translation>was die Ansicht ist: perspektivisch, abgeschnitten, ..., als Bits</translation>
    </message>
    <message>
        <source>what the view looks at</source>
        <translation>worauf die Ansicht blickt</translation>
    </message>
    <message>
        <source>when coordinates are shown beside the pointer</source>
        <translation>wann Koordinaten am Zeiger gezeigt werden</translation>
    </message>
    <message>
        <source>when fields are evaluated, as bits</source>
        <translation>wann Felder ausgewertet werden, als Bits</translation>
    </message>
    <message>
        <source>when it was made, in world time</source>
        <translation>wann sie erstellt wurde, in Weltzeit</translation>
    </message>
    <message>
        <source>when it was saved last</source>
        <translation>wann sie zuletzt gespeichert wurde</translation>
    </message>
    <message>
        <source>when it was saved last, in world time</source>
        <translation>wann sie zuletzt gespeichert wurde, in Weltzeit</translation>
    </message>
    <message>
        <source>when links to tables are checked</source>
        <translation>wann Verknüpfungen zu Tabellen geprüft werden</translation>
    </message>
    <message>
        <source>when modules of other makers are loaded, as bits</source>
        <translation>wann Module anderer Hersteller geladen werden, als Bits</translation>
    </message>
    <message>
        <source>when new layers are looked for</source>
        <translation>wann neue Layer gesucht werden</translation>
    </message>
    <message>
        <source>when new layers are told, as bits</source>
        <translation>wann neue Layer gemeldet werden, als Bits</translation>
    </message>
    <message>
        <source>when the drawing was made</source>
        <translation>wann die Zeichnung erstellt wurde</translation>
    </message>
    <message>
        <source>when the pointer snaps to the grid</source>
        <translation>wann der Zeiger am Raster fängt</translation>
    </message>
    <message>
        <source>where a hatch like another has its origin</source>
        <translation>wo eine Schraffur nach dem Vorbild einer anderen ihren Ursprung hat</translation>
    </message>
    <message>
        <source>where angles count from, from the x axis</source>
        <translation>von wo Winkel zählen, ab der x-Achse</translation>
    </message>
    <message>
        <source>where earlier input is offered, as bits</source>
        <translation>wo frühere Eingaben angeboten werden, als Bits</translation>
    </message>
    <message>
        <source>where multilines lie on their points: top, middle, bottom</source>
        <translation>wo Multilinien auf ihren Punkten liegen: oben, Mitte, unten</translation>
    </message>
    <message>
        <source>where new hatches lie in the drawing order</source>
        <translation>wo neue Schraffuren in der Zeichenreihenfolge liegen</translation>
    </message>
    <message>
        <source>where north is, from the y axis</source>
        <translation>wo Norden ist, ab der y-Achse</translation>
    </message>
    <message>
        <source>where on earth the drawing is</source>
        <translation>wo auf der Erde die Zeichnung liegt</translation>
    </message>
    <message>
        <source>where quick properties are shown</source>
        <translation>wo Schnelleigenschaften gezeigt werden</translation>
    </message>
    <message>
        <source>where the grid is of dots, as bits</source>
        <translation>wo das Raster aus Punkten ist, als Bits</translation>
    </message>
    <message>
        <source>where the origin of hatches lies</source>
        <translation>wo der Ursprung von Schraffuren liegt</translation>
    </message>
    <message>
        <source>where the sign of an arc&apos;s length stands</source>
        <translation>wo das Zeichen einer Bogenlänge steht</translation>
    </message>
    <message>
        <source>where the text stands along the line</source>
        <translation>wo der Text entlang der Maßlinie steht</translation>
    </message>
    <message>
        <source>where the view is seen from</source>
        <translation>von wo die Ansicht gesehen wird</translation>
    </message>
    <message>
        <source>where to look for what knows them</source>
        <translation>wo zu suchen ist, was sie kennt</translation>
    </message>
    <message>
        <source>where tolerances stand beside the number</source>
        <translation>wo Toleranzen neben der Zahl stehen</translation>
    </message>
    <message>
        <source>which changes of the view are smooth</source>
        <translation>welche Wechsel der Ansicht sanft sind</translation>
    </message>
    <message>
        <source>which extents count</source>
        <translation>welche Grenzen zählen</translation>
    </message>
    <message>
        <source>which islands a hatch leaves out</source>
        <translation>welche Inseln eine Schraffur auslässt</translation>
    </message>
    <message>
        <source>which parts of solids are chosen</source>
        <translation>welche Teile von Volumenkörpern gewählt werden</translation>
    </message>
    <message>
        <source>which pictures in the file are kept up</source>
        <translation>welche Bilder in der Datei aktuell gehalten werden</translation>
    </message>
    <message>
        <source>which questions commands leave out</source>
        <translation>welche Fragen Befehle auslassen</translation>
    </message>
    <message>
        <source>which tips beside the pointer take its settings</source>
        <translation>welche Hinweise am Zeiger seine Einstellungen nehmen</translation>
    </message>
    <message>
        <source>which tool bars and panels are fixed</source>
        <translation>welche Werkzeugleisten und Felder fest sind</translation>
    </message>
    <message>
        <source>which way the wheel zooms</source>
        <translation>in welche Richtung das Rad zoomt</translation>
    </message>
    <message>
        <source>why a function of Lisp failed, as a number</source>
        <translation>warum eine Lisp-Funktion scheiterte, als Zahl</translation>
    </message>
    <message>
        <source>windows are dragged</source>
        <translation>Fenster werden gezogen</translation>
    </message>
    <message>
        <source>windows of selections are filled</source>
        <translation>Auswahlfenster werden gefüllt</translation>
    </message>
    <message>
        <source>with more boundaries than this HATCH warns</source>
        <translation>bei mehr Umgrenzungen als diesen warnt HATCH</translation>
    </message>
    <message>
        <source>with more entities than this no grips are shown</source>
        <translation>bei mehr Objekten als diesen werden keine Griffe gezeigt</translation>
    </message>
    <message>
        <source>words of object snap replace the running modes</source>
        <translation>Objektfangwörter ersetzen die laufenden Modi</translation>
    </message>
    <message>
        <source>zeros of angles</source>
        <translation>Nullen von Winkeln</translation>
    </message>
    <message>
        <source>zeros of lengths</source>
        <translation>Nullen von Längen</translation>
    </message>
    <message>
        <source>zeros of the second unit</source>
        <translation>Nullen der zweiten Einheit</translation>
    </message>
    <message>
        <source>zeros of tolerances</source>
        <translation>Nullen von Toleranzen</translation>
    </message>
    <message>
        <source>zeros of tolerances in the second unit</source>
        <translation>Nullen von Toleranzen in der zweiten Einheit</translation>
    </message>
</context>
<context>
    <name>Inspecting</name>
    <message>
        <source>%1: what is mended is not written over the drawing</source>
        <translation>%1: Ausgebessertes wird nicht über die Zeichnung geschrieben</translation>
    </message>
    <message>
        <source>not read</source>
        <translation>nicht gelesen</translation>
    </message>
    <message>
        <source>sound</source>
        <translation>heil</translation>
    </message>
    <message>
        <source>, opens with --recover alone</source>
        <translation>, öffnet nur mit --recover</translation>
    </message>
    <message>
        <source>and %1 more</source>
        <translation>und %1 weitere</translation>
    </message>
    <message>
        <source> and %1 more</source>
        <translation> und %1 weitere</translation>
    </message>
    <message>
        <source>%1 bytes</source>
        <translation>%1 Bytes</translation>
    </message>
    <message>
        <source>by %1</source>
        <translation>von %1</translation>
    </message>
    <message>
        <source>begun %1</source>
        <translation>begonnen %1</translation>
    </message>
    <message>
        <source>the file says %1</source>
        <translation>die Datei sagt %1</translation>
    </message>
    <message>
        <source>; %1 in blocks</source>
        <translation>; %1 in Blöcken</translation>
    </message>
    <message>
        <source> off</source>
        <translation> aus</translation>
    </message>
    <message>
        <source> frozen</source>
        <translation> gefroren</translation>
    </message>
    <message>
        <source> locked</source>
        <translation> gesperrt</translation>
    </message>
    <message>
        <source> (not found: %1)</source>
        <translation> (nicht gefunden: %1)</translation>
    </message>
    <message>
        <source> (not found)</source>
        <translation> (nicht gefunden)</translation>
    </message>
    <message>
        <source>none</source>
        <translation>keine</translation>
    </message>
    <message>
        <source>, %1 records without</source>
        <translation>, %1 Datensätze ohne</translation>
    </message>
    <message>
        <source>, %1 twice</source>
        <translation>, %1 doppelt</translation>
    </message>
    <message>
        <source>, the next one (%1) is taken</source>
        <translation>, die nächste (%1) ist vergeben</translation>
    </message>
    <message>
        <source>format</source>
        <translation>Format</translation>
    </message>
    <message>
        <source>title</source>
        <translation>Titel</translation>
    </message>
    <message>
        <source>author</source>
        <translation>Autor</translation>
    </message>
    <message>
        <source>saved</source>
        <translation>gespeichert</translation>
    </message>
    <message>
        <source>units</source>
        <translation>Einheiten</translation>
    </message>
    <message>
        <source>extents</source>
        <translation>Ausdehnung</translation>
    </message>
    <message>
        <source>entities</source>
        <translation>Objekte</translation>
    </message>
    <message>
        <source>layers</source>
        <translation>Layer</translation>
    </message>
    <message>
        <source>blocks</source>
        <translation>Blöcke</translation>
    </message>
    <message>
        <source>layouts</source>
        <translation>Layouts</translation>
    </message>
    <message>
        <source>text styles</source>
        <translation>Textstile</translation>
    </message>
    <message>
        <source>fonts</source>
        <translation>Schriften</translation>
    </message>
    <message>
        <source>linetypes</source>
        <translation>Linientypen</translation>
    </message>
    <message>
        <source>dimensions</source>
        <translation>Bemaßungen</translation>
    </message>
    <message>
        <source>files</source>
        <translation>Dateien</translation>
    </message>
    <message>
        <source>classes</source>
        <translation>Klassen</translation>
    </message>
    <message>
        <source>proxies</source>
        <translation>Proxys</translation>
    </message>
    <message>
        <source>handles</source>
        <translation>Referenznummern</translation>
    </message>
    <message>
        <source>faults: %1</source>
        <translation>Fehler: %1</translation>
    </message>
</context>
<context>
    <name>Kernel</name>
    <message>
        <source>%1 has no file yet.</source>
        <translation>%1 hat noch keine Datei.</translation>
    </message>
    <message>
        <source>
More files that the drawing names were not read.
</source>
        <translation>
Weitere Dateien, die die Zeichnung nennt, wurden nicht gelesen.
</translation>
    </message>
    <message>
        <source>
%1 was not read: %2.
</source>
        <translation>
%1 wurde nicht gelesen: %2.
</translation>
    </message>
    <message>
        <source>%1 (recovered)</source>
        <translation>%1 (wiederhergestellt)</translation>
    </message>
    <message>
        <source>
Saving this drawing was broken off once. What was to be saved is in %1; the drawing&apos;s own file may have only a part of it.
</source>
        <translation>
Das Speichern dieser Zeichnung brach einmal ab. Was gespeichert werden sollte, ist in %1; die Datei der Zeichnung selbst hat vielleicht nur einen Teil davon.
</translation>
    </message>
    <message>
        <source>The document has no Lisp engine.</source>
        <translation>Das Dokument hat keine Lisp-Engine.</translation>
    </message>
    <message>
        <source>Unknown command &quot;%1&quot;.</source>
        <translation>Unbekannter Befehl &quot;%1&quot;.</translation>
    </message>
    <message>
        <source>%1 was cancelled.</source>
        <translation>%1 wurde abgebrochen.</translation>
    </message>
    <message>
        <source>%1: %2; nothing was changed.</source>
        <translation>%1: %2; nichts wurde geändert.</translation>
    </message>
    <message>
        <source>%1 stays open while a session is played on it.</source>
        <translation>%1 bleibt geöffnet, solange eine Sitzung darauf abgespielt wird.</translation>
    </message>
    <message>
        <source>%1 was not closed: it was changed since.</source>
        <translation>%1 wurde nicht geschlossen: es wurde seither geändert.</translation>
    </message>
    <message>
        <source>%1 was not closed: a program of it runs.</source>
        <translation>%1 wurde nicht geschlossen: ein Programm davon läuft.</translation>
    </message>
    <message>
        <source>%1: %2 done, %3 skipped</source>
        <translation>%1: %2 erledigt, %3 übersprungen</translation>
    </message>
    <message>
        <source>and %1 more
</source>
        <translation>und %1 weitere
</translation>
    </message>
    <message>
        <source>
*Cancel*
</source>
        <translation>
*Abbruch*
</translation>
    </message>
    <message>
        <source>This cannot be allowed here: %1.</source>
        <translation>Das kann hier nicht erlaubt werden: %1.</translation>
    </message>
    <message>
        <source>The folder cannot be trusted: everyone may write to it, or its name has a &quot;;&quot;.</source>
        <translation>Dem Ordner kann nicht vertraut werden: jeder darf in ihn schreiben, oder sein Name enthält ein &quot;;&quot;.</translation>
    </message>
    <message>
        <source>The list cannot be kept in %1.</source>
        <translation>Die Liste kann in %1 nicht aufbewahrt werden.</translation>
    </message>
    <message>
        <source>its folder is not trusted</source>
        <translation>sein Ordner ist nicht vertrauenswürdig</translation>
    </message>
    <message>
        <source>everyone may write to %1</source>
        <translation>jeder darf in %1 schreiben</translation>
    </message>
    <message>
        <source>
TRUSTEDPATHS cannot be kept in %1.
</source>
        <translation>
TRUSTEDPATHS kann in %1 nicht aufbewahrt werden.
</translation>
    </message>
    <message>
        <source>
%1 was not loaded: %2. TRUSTEDPATHS, or the option --trust, names folders whose programs may run.
</source>
        <translation>
%1 wurde nicht geladen: %2. TRUSTEDPATHS oder die Option --trust nennt Ordner, deren Programme laufen dürfen.
</translation>
    </message>
    <message>
        <source>%1 was opened for reading only; save it under another name.</source>
        <translation>%1 wurde nur zum Lesen geöffnet; speichern Sie unter einem anderen Namen.</translation>
    </message>
    <message>
        <source>%1 was changed by another program since it was opened or saved here.</source>
        <translation>%1 wurde von einem anderen Programm geändert, seit es hier geöffnet oder gespeichert wurde.</translation>
    </message>
    <message>
        <source>%1 is not there any more.</source>
        <translation>%1 ist nicht mehr vorhanden.</translation>
    </message>
    <message>
        <source>%1 is the damaged file that this drawing was recovered from; save it under another name.</source>
        <translation>%1 ist die beschädigte Datei, aus der diese Zeichnung wiederhergestellt wurde; speichern Sie unter einem anderen Namen.</translation>
    </message>
    <message>
        <source>%1 leads to another file than when it was opened or saved here.</source>
        <translation>%1 führt zu einer anderen Datei als beim Öffnen oder Speichern hier.</translation>
    </message>
    <message>
        <source>%1 is open in this program; close it first, or give another name.</source>
        <translation>%1 ist in diesem Programm geöffnet; schließen Sie es zuerst oder geben Sie einen anderen Namen an.</translation>
    </message>
    <message>
        <source>%1 is open in another program (%2).</source>
        <translation>%1 ist in einem anderen Programm geöffnet (%2).</translation>
    </message>
    <message>
        <source> of </source>
        <translation> von </translation>
    </message>
    <message>
        <source> (need %1): </source>
        <translation> (nötig %1): </translation>
    </message>
    <message>
        <source>
Second point of mid: </source>
        <translation>
Zweiter Punkt der Mitte: </translation>
    </message>
    <message>
        <source>
First point of mid: </source>
        <translation>
Erster Punkt der Mitte: </translation>
    </message>
    <message>
        <source>&lt;Offset&gt;: </source>
        <translation>&lt;Versatz&gt;: </translation>
    </message>
    <message>
        <source>
Base point: </source>
        <translation>
Basispunkt: </translation>
    </message>
    <message>
        <source>
Next point (Press ENTER to end tracking): </source>
        <translation>
Nächster Punkt (Eingabetaste beendet die Spur): </translation>
    </message>
    <message>
        <source>
First tracking point: </source>
        <translation>
Erster Spurpunkt: </translation>
    </message>
    <message>
        <source>
Specify point: </source>
        <translation>
Punkt angeben: </translation>
    </message>
    <message>
        <source>
Specify temporary tracking point: </source>
        <translation>
Temporären Spurpunkt angeben: </translation>
    </message>
    <message>
        <source>Requires an integer value or option keyword.</source>
        <translation>Eine ganze Zahl oder ein Optionswort wird gebraucht.</translation>
    </message>
    <message>
        <source>Requires numeric value or option keyword.</source>
        <translation>Eine Zahl oder ein Optionswort wird gebraucht.</translation>
    </message>
    <message>
        <source>Requires numeric distance, two points, or option keyword.</source>
        <translation>Ein Abstand als Zahl, zwei Punkte oder ein Optionswort wird gebraucht.</translation>
    </message>
    <message>
        <source>Requires valid numeric angle, two points, or option keyword.</source>
        <translation>Ein gültiger Winkel als Zahl, zwei Punkte oder ein Optionswort wird gebraucht.</translation>
    </message>
    <message>
        <source>Point or option keyword required.</source>
        <translation>Ein Punkt oder ein Optionswort wird gebraucht.</translation>
    </message>
    <message>
        <source>Requires an integer value.</source>
        <translation>Eine ganze Zahl wird gebraucht.</translation>
    </message>
    <message>
        <source>Requires numeric value.</source>
        <translation>Eine Zahl wird gebraucht.</translation>
    </message>
    <message>
        <source>Requires numeric distance or two points.</source>
        <translation>Ein Abstand als Zahl oder zwei Punkte wird gebraucht.</translation>
    </message>
    <message>
        <source>Requires valid numeric angle or two points.</source>
        <translation>Ein gültiger Winkel als Zahl oder zwei Punkte wird gebraucht.</translation>
    </message>
    <message>
        <source>Invalid option keyword.</source>
        <translation>Ungültiges Optionswort.</translation>
    </message>
    <message>
        <source>Expects a point or %1.</source>
        <translation>Ein Punkt oder %1 wird erwartet.</translation>
    </message>
    <message>
        <source>Invalid input.</source>
        <translation>Ungültige Eingabe.</translation>
    </message>
    <message>
        <source>Invalid point.</source>
        <translation>Ungültiger Punkt.</translation>
    </message>
    <message>
        <source>Value must be nonzero.</source>
        <translation>Der Wert darf nicht null sein.</translation>
    </message>
    <message>
        <source>Value must not be negative.</source>
        <translation>Der Wert darf nicht negativ sein.</translation>
    </message>
    <message>
        <source>**Outside limits</source>
        <translation>**Außerhalb der Limiten</translation>
    </message>
    <message>
        <source>
Specify second point: </source>
        <translation>
Zweiten Punkt angeben: </translation>
    </message>
    <message>
        <source> to </source>
        <translation> zu </translation>
    </message>
    <message>
        <source>
Angle Override: </source>
        <translation>
Ersatzwinkel: </translation>
    </message>
    <message>
        <source>No %1 found for specified point.</source>
        <translation>Am angegebenen Punkt nicht gefunden: %1.</translation>
    </message>
    <message>
        <source>
Enter group name: </source>
        <translation>
Gruppennamen eingeben: </translation>
    </message>
    <message>
        <source>
Remove objects: </source>
        <translation>
Objekte entfernen: </translation>
    </message>
    <message>
        <source>
First point: </source>
        <translation>
Erster Punkt: </translation>
    </message>
    <message>
        <source>
Specify first corner: </source>
        <translation>
Erste Ecke angeben: </translation>
    </message>
    <message>
        <source>
Next point: </source>
        <translation>
Nächster Punkt: </translation>
    </message>
    <message>
        <source>
Specify opposite corner: </source>
        <translation>
Gegenüberliegende Ecke angeben: </translation>
    </message>
    <message>
        <source>
Command has been completely undone.</source>
        <translation>
Der Befehl wurde vollständig rückgängig gemacht.</translation>
    </message>
    <message>
        <source>
Cannot find group &quot;%1&quot;.</source>
        <translation>
Die Gruppe &quot;%1&quot; wurde nicht gefunden.</translation>
    </message>
    <message>
        <source>
%1 found</source>
        <translation>
%1 gefunden</translation>
    </message>
    <message>
        <source>
%1 found, %2 total</source>
        <translation>
%1 gefunden, %2 insgesamt</translation>
    </message>
    <message>
        <source>
Select objects: </source>
        <translation>
Objekte wählen: </translation>
    </message>
    <message>
        <source>endpoint</source>
        <translation>Endpunkt</translation>
    </message>
    <message>
        <source>midpoint</source>
        <translation>Mittelpunkt</translation>
    </message>
    <message>
        <source>center</source>
        <translation>Zentrum</translation>
    </message>
    <message>
        <source>node</source>
        <translation>Punkt</translation>
    </message>
    <message>
        <source>quadrant</source>
        <translation>Quadrant</translation>
    </message>
    <message>
        <source>intersection</source>
        <translation>Schnittpunkt</translation>
    </message>
    <message>
        <source>insertion point</source>
        <translation>Einfügepunkt</translation>
    </message>
    <message>
        <source>perpendicular</source>
        <translation>Lot</translation>
    </message>
    <message>
        <source>tangent</source>
        <translation>Tangente</translation>
    </message>
    <message>
        <source>nearest point</source>
        <translation>nächster Punkt</translation>
    </message>
    <message>
        <source>quick</source>
        <translation>schnell</translation>
    </message>
    <message>
        <source>apparent intersection</source>
        <translation>angenommener Schnittpunkt</translation>
    </message>
    <message>
        <source>extension</source>
        <translation>Verlängerung</translation>
    </message>
    <message>
        <source>parallel</source>
        <translation>Parallele</translation>
    </message>
    <message>
        <source>none</source>
        <translation>keiner</translation>
    </message>
    <message>
        <source>
The rest of what was typed ahead is left out.
</source>
        <translation>
Der Rest des im Voraus Eingegebenen wird ausgelassen.
</translation>
    </message>
    <message>
        <source>
Nobody is there to answer &quot;%1&quot;: cancelled.
</source>
        <translation>
Niemand ist da, um &quot;%1&quot; zu beantworten: abgebrochen.
</translation>
    </message>
    <message>
        <source>*Cancel*
</source>
        <translation>*Abbruch*
</translation>
    </message>
    <message>
        <source>No help page.</source>
        <translation>Keine Hilfeseite.</translation>
    </message>
    <message>
        <source>it is no module (odrxGetAPIVersion is missing)</source>
        <translation>es ist kein Modul (odrxGetAPIVersion fehlt)</translation>
    </message>
    <message>
        <source>it was built for version %1 of the interface, this host has %2</source>
        <translation>es wurde für Version %1 der Schnittstelle gebaut, dieses Wirtsprogramm hat %2</translation>
    </message>
    <message>
        <source>it is no module (odrxCreateModuleObject is missing)</source>
        <translation>es ist kein Modul (odrxCreateModuleObject fehlt)</translation>
    </message>
    <message>
        <source>it made no module object</source>
        <translation>es erstellte kein Modulobjekt</translation>
    </message>
    <message>
        <source>there is no memory for its module object</source>
        <translation>für sein Modulobjekt ist kein Speicher da</translation>
    </message>
    <message>
        <source>Cannot load %1: %2</source>
        <translation>%1 kann nicht geladen werden: %2</translation>
    </message>
    <message>
        <source>
%1 cannot run while another command is under way.</source>
        <translation>
%1 kann nicht laufen, solange ein anderer Befehl läuft.</translation>
    </message>
    <message>
        <source>
%1: the setting cannot be written to %2.
</source>
        <translation>
%1: die Einstellung kann nicht in %2 geschrieben werden.
</translation>
    </message>
    <message>
        <source>The command aliases in %1 cannot be read: %2 The ones before stay in use.</source>
        <translation>Die Befehlsaliasse in %1 können nicht gelesen werden: %2 Die bisherigen bleiben in Gebrauch.</translation>
    </message>
    <message>
        <source>The numbers are too large.</source>
        <translation>Die Zahlen sind zu groß.</translation>
    </message>
    <message>
        <source>
%1 has ended, nothing was changed.</source>
        <translation>
%1 ist beendet, nichts wurde geändert.</translation>
    </message>
    <message>
        <source>
** That command may not be invoked transparently **
</source>
        <translation>
** Dieser Befehl kann nicht transparent aufgerufen werden **
</translation>
    </message>
    <message>
        <source>
Resuming %1 command.
</source>
        <translation>
Der Befehl %1 wird fortgesetzt.
</translation>
    </message>
    <message>
        <source>
%1 cannot be kept.
</source>
        <translation>
%1 kann nicht aufbewahrt werden.
</translation>
    </message>
    <message>
        <source>
The user&apos;s settings cannot be kept.
</source>
        <translation>
Die Einstellungen des Benutzers können nicht aufbewahrt werden.
</translation>
    </message>
    <message>
        <source>%1 is a DWG file, which this program reads but does not write; give the drawing another name.</source>
        <translation>%1 ist eine DWG-Datei, die dieses Programm liest, aber nicht schreibt; geben Sie der Zeichnung einen anderen Namen.</translation>
    </message>
</context>
<context>
    <name>Keywords</name>
    <message>
        <source>2points</source>
        <translation>2punkte</translation>
    </message>
    <message>
        <source>3point</source>
        <translation>3Punkt</translation>
    </message>
    <message>
        <source>3points</source>
        <translation>3punkte</translation>
    </message>
    <message>
        <source>ALL</source>
        <translation>ALLe</translation>
    </message>
    <message>
        <source>ALl</source>
        <translation>ALle</translation>
    </message>
    <message>
        <source>ANnotative</source>
        <translation>ANnotativ</translation>
    </message>
    <message>
        <source>AUto</source>
        <translation>AUto</translation>
    </message>
    <message>
        <source>Above</source>
        <translation>Darüber</translation>
    </message>
    <message>
        <source>Above objects</source>
        <translation>über Objekte</translation>
    </message>
    <message>
        <source>Add</source>
        <translation>Hinzufügen</translation>
    </message>
    <message>
        <source>Add area</source>
        <translation>Addieren</translation>
    </message>
    <message>
        <source>Add leaders</source>
        <translation>Hinzufügen</translation>
    </message>
    <message>
        <source>Advanced</source>
        <translation>ERweitert</translation>
    </message>
    <message>
        <source>Advanced options</source>
        <translation>ERweitert</translation>
    </message>
    <message>
        <source>All</source>
        <translation>Alle</translation>
    </message>
    <message>
        <source>Ang</source>
        <translation>Winkel</translation>
    </message>
    <message>
        <source>Angle</source>
        <translation>Winkel</translation>
    </message>
    <message>
        <source>Annotation</source>
        <translation>Anmerkung</translation>
    </message>
    <message>
        <source>Annotative</source>
        <translation>Annotativ</translation>
    </message>
    <message>
        <source>Anyway</source>
        <translation>Trotzdem</translation>
    </message>
    <message>
        <source>Apply</source>
        <translation>ANWenden</translation>
    </message>
    <message>
        <source>Arc</source>
        <translation>Bogen</translation>
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
        <source>Array</source>
        <translation>Anordnung</translation>
    </message>
    <message>
        <source>Arrow</source>
        <translation>Pfeil</translation>
    </message>
    <message>
        <source>As</source>
        <translation>Wie</translation>
    </message>
    <message>
        <source>As displayed</source>
        <translation>Wie angezeigt</translation>
    </message>
    <message>
        <source>Aspect</source>
        <translation>Seitenverhältnis</translation>
    </message>
    <message>
        <source>Associativity</source>
        <translation>Assoziativität</translation>
    </message>
    <message>
        <source>At least</source>
        <translation>Mindestens</translation>
    </message>
    <message>
        <source>Attach</source>
        <translation>Zuordnen</translation>
    </message>
    <message>
        <source>Auto</source>
        <translation>Auto</translation>
    </message>
    <message>
        <source>BAck</source>
        <translation>HInten</translation>
    </message>
    <message>
        <source>BC</source>
        <translation>UZ</translation>
    </message>
    <message>
        <source>BEgin</source>
        <translation>BEginn</translation>
    </message>
    <message>
        <source>BL</source>
        <translation>UL</translation>
    </message>
    <message>
        <source>BOX</source>
        <translation>BOX</translation>
    </message>
    <message>
        <source>BR</source>
        <translation>UR</translation>
    </message>
    <message>
        <source>BYBlock</source>
        <translation>VONBlock</translation>
    </message>
    <message>
        <source>BYLayer</source>
        <translation>VONLayer</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Hinten</translation>
    </message>
    <message>
        <source>Base</source>
        <translation>Basis</translation>
    </message>
    <message>
        <source>Base point</source>
        <translation>Basispunkt</translation>
    </message>
    <message>
        <source>Below</source>
        <translation>Unterhalb</translation>
    </message>
    <message>
        <source>Binary</source>
        <translation>Binär</translation>
    </message>
    <message>
        <source>Bind</source>
        <translation>Binden</translation>
    </message>
    <message>
        <source>Bisect</source>
        <translation>HAlb</translation>
    </message>
    <message>
        <source>Block</source>
        <translation>Block</translation>
    </message>
    <message>
        <source>Block selection</source>
        <translation>Blockwahl</translation>
    </message>
    <message>
        <source>Blocks</source>
        <translation>BLöcke</translation>
    </message>
    <message>
        <source>Both</source>
        <translation>BEide</translation>
    </message>
    <message>
        <source>Bottom</source>
        <translation>Unten</translation>
    </message>
    <message>
        <source>Boundaries</source>
        <translation>Umgrenzungen</translation>
    </message>
    <message>
        <source>Boundary</source>
        <translation>Umgrenzung</translation>
    </message>
    <message>
        <source>Boundary set</source>
        <translation>Umgrenzungssatz</translation>
    </message>
    <message>
        <source>Break</source>
        <translation>Trennen</translation>
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
        <translation>ZEntrum</translation>
    </message>
    <message>
        <source>CLose</source>
        <translation>SChließen</translation>
    </message>
    <message>
        <source>COlor</source>
        <translation>Farbe</translation>
    </message>
    <message>
        <source>COlorbook</source>
        <translation>FArbbuch</translation>
    </message>
    <message>
        <source>CPolygon</source>
        <translation>KPolygon</translation>
    </message>
    <message>
        <source>CV</source>
        <translation>KP</translation>
    </message>
    <message>
        <source>Calligraphy</source>
        <translation>Kalligrafie</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>Center</source>
        <translation>Zentrum</translation>
    </message>
    <message>
        <source>Chamfer</source>
        <translation>Fase</translation>
    </message>
    <message>
        <source>Change</source>
        <translation>Wechseln</translation>
    </message>
    <message>
        <source>Chord</source>
        <translation>Sehne</translation>
    </message>
    <message>
        <source>Circumscribed about circle</source>
        <translation>Umkreis</translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>Löschen</translation>
    </message>
    <message>
        <source>Clear overrides</source>
        <translation>Löschen</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Schließen</translation>
    </message>
    <message>
        <source>Color</source>
        <translation>Farbe</translation>
    </message>
    <message>
        <source>Columns</source>
        <translation>SPalten</translation>
    </message>
    <message>
        <source>Combine</source>
        <translation>Zusammenfassen</translation>
    </message>
    <message>
        <source>Commands</source>
        <translation>Befehle</translation>
    </message>
    <message>
        <source>Constant</source>
        <translation>Konstant</translation>
    </message>
    <message>
        <source>Content</source>
        <translation>Inhalt</translation>
    </message>
    <message>
        <source>Content first</source>
        <translation>Inhalt zuerst</translation>
    </message>
    <message>
        <source>Content type</source>
        <translation>Inhaltstyp</translation>
    </message>
    <message>
        <source>Control</source>
        <translation>Steuerung</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>Kopieren</translation>
    </message>
    <message>
        <source>Corner</source>
        <translation>Ecke</translation>
    </message>
    <message>
        <source>Create</source>
        <translation>ERstellen</translation>
    </message>
    <message>
        <source>Crossing</source>
        <translation>Kreuzen</translation>
    </message>
    <message>
        <source>Current</source>
        <translation>AKtuell</translation>
    </message>
    <message>
        <source>Current ucs</source>
        <translation>AKtuelles bks</translation>
    </message>
    <message>
        <source>DElta</source>
        <translation>DElta</translation>
    </message>
    <message>
        <source>DEtailviewstyles</source>
        <translation>DEtailansichtstile</translation>
    </message>
    <message>
        <source>DIsassociate</source>
        <translation>Lösen</translation>
    </message>
    <message>
        <source>DRaw</source>
        <translation>Reihenfolge</translation>
    </message>
    <message>
        <source>DRaw order</source>
        <translation>Reihenfolge</translation>
    </message>
    <message>
        <source>DXF</source>
        <translation>DXF</translation>
    </message>
    <message>
        <source>DYnamic</source>
        <translation>DYnamisch</translation>
    </message>
    <message>
        <source>Decurve</source>
        <translation>KUrve löschen</translation>
    </message>
    <message>
        <source>Default</source>
        <translation>Default</translation>
    </message>
    <message>
        <source>Degree</source>
        <translation>Grad</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Löschen</translation>
    </message>
    <message>
        <source>Description</source>
        <translation>Beschreibung</translation>
    </message>
    <message>
        <source>Detach</source>
        <translation>Lösen</translation>
    </message>
    <message>
        <source>Diameter</source>
        <translation>Durchmesser</translation>
    </message>
    <message>
        <source>Dimensions</source>
        <translation>Abmessungen</translation>
    </message>
    <message>
        <source>Dimstyle</source>
        <translation>BEmstil</translation>
    </message>
    <message>
        <source>Dimstyles</source>
        <translation>BEmstile</translation>
    </message>
    <message>
        <source>Direction</source>
        <translation>RIchtung</translation>
    </message>
    <message>
        <source>Displacement</source>
        <translation>Verschiebung</translation>
    </message>
    <message>
        <source>Display</source>
        <translation>Bildschirm</translation>
    </message>
    <message>
        <source>Distance</source>
        <translation>Abstand</translation>
    </message>
    <message>
        <source>Distribute</source>
        <translation>Verteilen</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>Fertig</translation>
    </message>
    <message>
        <source>Dynamic</source>
        <translation>Dynamisch</translation>
    </message>
    <message>
        <source>EXport</source>
        <translation>EXport</translation>
    </message>
    <message>
        <source>Edge</source>
        <translation>KAnte</translation>
    </message>
    <message>
        <source>Edit</source>
        <translation>Bearbeiten</translation>
    </message>
    <message>
        <source>Edit vertex</source>
        <translation>BEarbeiten</translation>
    </message>
    <message>
        <source>Elev</source>
        <translation>ERhebung</translation>
    </message>
    <message>
        <source>Elevation</source>
        <translation>Erhebung</translation>
    </message>
    <message>
        <source>Empty text objects</source>
        <translation>TExte ohne Inhalt</translation>
    </message>
    <message>
        <source>End</source>
        <translation>Ende</translation>
    </message>
    <message>
        <source>Endtoend</source>
        <translation>Endezuende</translation>
    </message>
    <message>
        <source>Entity</source>
        <translation>Objekt</translation>
    </message>
    <message>
        <source>Erase</source>
        <translation>Löschen</translation>
    </message>
    <message>
        <source>Everything</source>
        <translation>Alles</translation>
    </message>
    <message>
        <source>Exactly</source>
        <translation>Genau</translation>
    </message>
    <message>
        <source>Exit</source>
        <translation>Ende</translation>
    </message>
    <message>
        <source>Explode</source>
        <translation>URsprung</translation>
    </message>
    <message>
        <source>Extend</source>
        <translation>Dehnen</translation>
    </message>
    <message>
        <source>Extents</source>
        <translation>Grenzen</translation>
    </message>
    <message>
        <source>Face</source>
        <translation>FLäche</translation>
    </message>
    <message>
        <source>Fence</source>
        <translation>Zaun</translation>
    </message>
    <message>
        <source>Fillet</source>
        <translation>Abrunden</translation>
    </message>
    <message>
        <source>First</source>
        <translation>Erster</translation>
    </message>
    <message>
        <source>First angle</source>
        <translation>Erster winkel</translation>
    </message>
    <message>
        <source>First point</source>
        <translation>Erster punkt</translation>
    </message>
    <message>
        <source>Fit</source>
        <translation>ANpassen</translation>
    </message>
    <message>
        <source>Fit tolerance</source>
        <translation>Anpassungstoleranz</translation>
    </message>
    <message>
        <source>Format</source>
        <translation>Format</translation>
    </message>
    <message>
        <source>Freehand</source>
        <translation>Freihand</translation>
    </message>
    <message>
        <source>Freeze</source>
        <translation>FRieren</translation>
    </message>
    <message>
        <source>Front</source>
        <translation>Vorn</translation>
    </message>
    <message>
        <source>Frozen</source>
        <translation>Gefroren</translation>
    </message>
    <message>
        <source>Gap</source>
        <translation>Lücke</translation>
    </message>
    <message>
        <source>Gap tolerance</source>
        <translation>Lückentoleranz</translation>
    </message>
    <message>
        <source>Go</source>
        <translation>Los</translation>
    </message>
    <message>
        <source>Grid</source>
        <translation>Raster</translation>
    </message>
    <message>
        <source>Group</source>
        <translation>Gruppe</translation>
    </message>
    <message>
        <source>Groups</source>
        <translation>Gruppen</translation>
    </message>
    <message>
        <source>HELP</source>
        <translation>HILFE</translation>
    </message>
    <message>
        <source>Halfwidth</source>
        <translation>Halbbreite</translation>
    </message>
    <message>
        <source>Hatches</source>
        <translation>Schraffuren</translation>
    </message>
    <message>
        <source>Height</source>
        <translation>Höhe</translation>
    </message>
    <message>
        <source>Hidden</source>
        <translation>Verdeckt</translation>
    </message>
    <message>
        <source>Hideplot</source>
        <translation>VERdecktplotten</translation>
    </message>
    <message>
        <source>Home</source>
        <translation>Standard</translation>
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
        <translation>Ignorieren</translation>
    </message>
    <message>
        <source>Import</source>
        <translation>Importieren</translation>
    </message>
    <message>
        <source>Inches</source>
        <translation>Zoll</translation>
    </message>
    <message>
        <source>Included</source>
        <translation>Eingeschlossen</translation>
    </message>
    <message>
        <source>Included angle</source>
        <translation>Eingeschlossener winkel</translation>
    </message>
    <message>
        <source>Inscribed in circle</source>
        <translation>Inkreis</translation>
    </message>
    <message>
        <source>Insert</source>
        <translation>Einfügen</translation>
    </message>
    <message>
        <source>Invert clip</source>
        <translation>Umkehren</translation>
    </message>
    <message>
        <source>Invisible</source>
        <translation>Unsichtbar</translation>
    </message>
    <message>
        <source>Island</source>
        <translation>Inselerkennung</translation>
    </message>
    <message>
        <source>Island detection</source>
        <translation>Inselerkennung</translation>
    </message>
    <message>
        <source>Isometric</source>
        <translation>Isometrisch</translation>
    </message>
    <message>
        <source>Join</source>
        <translation>VErbinden</translation>
    </message>
    <message>
        <source>Jointype</source>
        <translation>Verbindungsart</translation>
    </message>
    <message>
        <source>Justification</source>
        <translation>Ausrichtung</translation>
    </message>
    <message>
        <source>Justify</source>
        <translation>AUsrichten</translation>
    </message>
    <message>
        <source>Knots</source>
        <translation>Knoten</translation>
    </message>
    <message>
        <source>LAYOut</source>
        <translation>LAYOut</translation>
    </message>
    <message>
        <source>LAyer</source>
        <translation>LAyer</translation>
    </message>
    <message>
        <source>LAyers</source>
        <translation>LAyer</translation>
    </message>
    <message>
        <source>LOck</source>
        <translation>SPerren</translation>
    </message>
    <message>
        <source>LType</source>
        <translation>LTyp</translation>
    </message>
    <message>
        <source>LTypes</source>
        <translation>LTypen</translation>
    </message>
    <message>
        <source>LWeight</source>
        <translation>LStärke</translation>
    </message>
    <message>
        <source>Landing</source>
        <translation>Verlängerung</translation>
    </message>
    <message>
        <source>Landscape</source>
        <translation>Querformat</translation>
    </message>
    <message>
        <source>Last</source>
        <translation>Letztes</translation>
    </message>
    <message>
        <source>Layer</source>
        <translation>LAyer</translation>
    </message>
    <message>
        <source>Layout</source>
        <translation>LAYout</translation>
    </message>
    <message>
        <source>Leader</source>
        <translation>Führungslinie</translation>
    </message>
    <message>
        <source>Leader type</source>
        <translation>Führungslinientyp</translation>
    </message>
    <message>
        <source>Left</source>
        <translation>Links</translation>
    </message>
    <message>
        <source>Length</source>
        <translation>Länge</translation>
    </message>
    <message>
        <source>Limits</source>
        <translation>Limiten</translation>
    </message>
    <message>
        <source>Line</source>
        <translation>Linie</translation>
    </message>
    <message>
        <source>Line spacing</source>
        <translation>Zeilenabstand</translation>
    </message>
    <message>
        <source>Load</source>
        <translation>Laden</translation>
    </message>
    <message>
        <source>Lock</source>
        <translation>Sperren</translation>
    </message>
    <message>
        <source>Lock and fade</source>
        <translation>Sperren und verblassen</translation>
    </message>
    <message>
        <source>Ltype</source>
        <translation>LTyp</translation>
    </message>
    <message>
        <source>Ltype gen</source>
        <translation>LTypgen</translation>
    </message>
    <message>
        <source>MATerial</source>
        <translation>MATerial</translation>
    </message>
    <message>
        <source>MAterials</source>
        <translation>MATerialien</translation>
    </message>
    <message>
        <source>MC</source>
        <translation>MZ</translation>
    </message>
    <message>
        <source>MIrror</source>
        <translation>SPiegeln</translation>
    </message>
    <message>
        <source>ML</source>
        <translation>ML</translation>
    </message>
    <message>
        <source>MOve</source>
        <translation>SChieben</translation>
    </message>
    <message>
        <source>MR</source>
        <translation>MR</translation>
    </message>
    <message>
        <source>MUltileaderstyles</source>
        <translation>MUltiführungsstile</translation>
    </message>
    <message>
        <source>Make</source>
        <translation>Machen</translation>
    </message>
    <message>
        <source>Mark</source>
        <translation>Marke</translation>
    </message>
    <message>
        <source>Material</source>
        <translation>Material</translation>
    </message>
    <message>
        <source>Maxpoints</source>
        <translation>Maxpunkte</translation>
    </message>
    <message>
        <source>Method</source>
        <translation>Methode</translation>
    </message>
    <message>
        <source>Middle</source>
        <translation>Mitte</translation>
    </message>
    <message>
        <source>Millimeters</source>
        <translation>Millimeter</translation>
    </message>
    <message>
        <source>Mlinestyles</source>
        <translation>MLinienstile</translation>
    </message>
    <message>
        <source>Move</source>
        <translation>VErschieben</translation>
    </message>
    <message>
        <source>Mtext</source>
        <translation>Mtext</translation>
    </message>
    <message>
        <source>Multiple</source>
        <translation>Mehrfach</translation>
    </message>
    <message>
        <source>Multiple points</source>
        <translation>Mehrere punkte</translation>
    </message>
    <message>
        <source>NAmed</source>
        <translation>BEnannt</translation>
    </message>
    <message>
        <source>NEW</source>
        <translation>NEU</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Name</translation>
    </message>
    <message>
        <source>New</source>
        <translation>Neu</translation>
    </message>
    <message>
        <source>New boundary</source>
        <translation>Neue umgrenzung</translation>
    </message>
    <message>
        <source>Newfrz</source>
        <translation>NEUFrieren</translation>
    </message>
    <message>
        <source>Newvpfreeze</source>
        <translation>Neuaffrieren</translation>
    </message>
    <message>
        <source>Next</source>
        <translation>Nächster</translation>
    </message>
    <message>
        <source>No</source>
        <translation>Nein</translation>
    </message>
    <message>
        <source>No columns</source>
        <translation>Keine spalten</translation>
    </message>
    <message>
        <source>No extend</source>
        <translation>Nicht dehnen</translation>
    </message>
    <message>
        <source>No leader</source>
        <translation>Keine führungslinie</translation>
    </message>
    <message>
        <source>No plot</source>
        <translation>Nicht plotten</translation>
    </message>
    <message>
        <source>No trim</source>
        <translation>Nicht stutzen</translation>
    </message>
    <message>
        <source>None</source>
        <translation>KEine</translation>
    </message>
    <message>
        <source>Normal</source>
        <translation>Normal</translation>
    </message>
    <message>
        <source>Not</source>
        <translation>Nicht</translation>
    </message>
    <message>
        <source>OBject</source>
        <translation>OBjekt</translation>
    </message>
    <message>
        <source>OFF</source>
        <translation>AUS</translation>
    </message>
    <message>
        <source>ON</source>
        <translation>EIN</translation>
    </message>
    <message>
        <source>Object</source>
        <translation>Objekt</translation>
    </message>
    <message>
        <source>Object type</source>
        <translation>Objekttyp</translation>
    </message>
    <message>
        <source>Objects</source>
        <translation>Objekte</translation>
    </message>
    <message>
        <source>Oblique</source>
        <translation>SChräg</translation>
    </message>
    <message>
        <source>Off</source>
        <translation>AUS</translation>
    </message>
    <message>
        <source>Offset</source>
        <translation>Abstand</translation>
    </message>
    <message>
        <source>On</source>
        <translation>EIN</translation>
    </message>
    <message>
        <source>One</source>
        <translation>EINer</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>öFfnen</translation>
    </message>
    <message>
        <source>Options</source>
        <translation>Optionen</translation>
    </message>
    <message>
        <source>Order</source>
        <translation>ORdnen</translation>
    </message>
    <message>
        <source>Origin</source>
        <translation>URsprung</translation>
    </message>
    <message>
        <source>Orphaned data</source>
        <translation>VErwaiste daten</translation>
    </message>
    <message>
        <source>Orthographic</source>
        <translation>ORthogonal</translation>
    </message>
    <message>
        <source>Outer</source>
        <translation>äUßere</translation>
    </message>
    <message>
        <source>Overlaps</source>
        <translation>üBerlappungen</translation>
    </message>
    <message>
        <source>Overlay</source>
        <translation>übeRlagern</translation>
    </message>
    <message>
        <source>PStyle</source>
        <translation>PStil</translation>
    </message>
    <message>
        <source>Parameter</source>
        <translation>Parameter</translation>
    </message>
    <message>
        <source>Partial</source>
        <translation>Partiell</translation>
    </message>
    <message>
        <source>Path</source>
        <translation>Pfad</translation>
    </message>
    <message>
        <source>Percent</source>
        <translation>Prozent</translation>
    </message>
    <message>
        <source>Pick</source>
        <translation>Wählen</translation>
    </message>
    <message>
        <source>Pick points</source>
        <translation>Punkte wählen</translation>
    </message>
    <message>
        <source>Plot</source>
        <translation>Plotten</translation>
    </message>
    <message>
        <source>Plotstyle</source>
        <translation>plotSTil</translation>
    </message>
    <message>
        <source>Plotstyles</source>
        <translation>plotSTile</translation>
    </message>
    <message>
        <source>Points</source>
        <translation>Punkte</translation>
    </message>
    <message>
        <source>Polar</source>
        <translation>Polar</translation>
    </message>
    <message>
        <source>Polygonal</source>
        <translation>Polygonal</translation>
    </message>
    <message>
        <source>Polyline</source>
        <translation>Polylinie</translation>
    </message>
    <message>
        <source>Portrait</source>
        <translation>Hochformat</translation>
    </message>
    <message>
        <source>Preset</source>
        <translation>Vorgegeben</translation>
    </message>
    <message>
        <source>Previous</source>
        <translation>VOrheriger</translation>
    </message>
    <message>
        <source>Project</source>
        <translation>Projektion</translation>
    </message>
    <message>
        <source>Properties</source>
        <translation>Eigenschaften</translation>
    </message>
    <message>
        <source>QUIT</source>
        <translation>QUIT</translation>
    </message>
    <message>
        <source>Quadrant</source>
        <translation>Quadrant</translation>
    </message>
    <message>
        <source>REName</source>
        <translation>Umbenennen</translation>
    </message>
    <message>
        <source>Radius</source>
        <translation>RAdius</translation>
    </message>
    <message>
        <source>Ratio</source>
        <translation>Verhältnis</translation>
    </message>
    <message>
        <source>Rectangular</source>
        <translation>Rechteckig</translation>
    </message>
    <message>
        <source>Reference</source>
        <translation>BEzug</translation>
    </message>
    <message>
        <source>Regapps</source>
        <translation>REGapps</translation>
    </message>
    <message>
        <source>Regen</source>
        <translation>Regen</translation>
    </message>
    <message>
        <source>Region</source>
        <translation>Region</translation>
    </message>
    <message>
        <source>Reload</source>
        <translation>Neuladen</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Entfernen</translation>
    </message>
    <message>
        <source>Remove leaders</source>
        <translation>Entfernen</translation>
    </message>
    <message>
        <source>Rename</source>
        <translation>Umbenennen</translation>
    </message>
    <message>
        <source>Rendered</source>
        <translation>Gerendert</translation>
    </message>
    <message>
        <source>Replace</source>
        <translation>Ersetzen</translation>
    </message>
    <message>
        <source>Reset</source>
        <translation>Zurücksetzen</translation>
    </message>
    <message>
        <source>Restore</source>
        <translation>Holen</translation>
    </message>
    <message>
        <source>Retain</source>
        <translation>Beibehalten</translation>
    </message>
    <message>
        <source>Retain boundary</source>
        <translation>Beibehalten</translation>
    </message>
    <message>
        <source>Reverse</source>
        <translation>Richtungwechseln</translation>
    </message>
    <message>
        <source>Right</source>
        <translation>Rechts</translation>
    </message>
    <message>
        <source>Rotate</source>
        <translation>Drehen</translation>
    </message>
    <message>
        <source>Rotated</source>
        <translation>Gedreht</translation>
    </message>
    <message>
        <source>Rotation</source>
        <translation>DRehung</translation>
    </message>
    <message>
        <source>SAveas</source>
        <translation>SIchernals</translation>
    </message>
    <message>
        <source>SCale</source>
        <translation>SKalieren</translation>
    </message>
    <message>
        <source>SEctionviewstyles</source>
        <translation>SChnittansichtstile</translation>
    </message>
    <message>
        <source>SHapes</source>
        <translation>SYmbole</translation>
    </message>
    <message>
        <source>SIngle</source>
        <translation>EInzeln</translation>
    </message>
    <message>
        <source>STatus</source>
        <translation>STatus</translation>
    </message>
    <message>
        <source>STraight</source>
        <translation>Gerade</translation>
    </message>
    <message>
        <source>STretch</source>
        <translation>STrecken</translation>
    </message>
    <message>
        <source>STyle</source>
        <translation>STil</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>SIchern</translation>
    </message>
    <message>
        <source>Scale</source>
        <translation>SKalieren</translation>
    </message>
    <message>
        <source>Second</source>
        <translation>Zweiter</translation>
    </message>
    <message>
        <source>Second angle</source>
        <translation>Zweiter winkel</translation>
    </message>
    <message>
        <source>Second pt</source>
        <translation>zweiter Pt</translation>
    </message>
    <message>
        <source>Select</source>
        <translation>Wählen</translation>
    </message>
    <message>
        <source>Select objects</source>
        <translation>Objekte wählen</translation>
    </message>
    <message>
        <source>Select polyline</source>
        <translation>POLylinie wählen</translation>
    </message>
    <message>
        <source>Selectable</source>
        <translation>Wählbar</translation>
    </message>
    <message>
        <source>Set</source>
        <translation>SEtzen</translation>
    </message>
    <message>
        <source>Set new origin</source>
        <translation>Neuen ursprung setzen</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Einstellungen</translation>
    </message>
    <message>
        <source>Shadeplot</source>
        <translation>SChattplot</translation>
    </message>
    <message>
        <source>Single</source>
        <translation>Einzeln</translation>
    </message>
    <message>
        <source>Snap</source>
        <translation>Fang</translation>
    </message>
    <message>
        <source>Solid</source>
        <translation>Solid</translation>
    </message>
    <message>
        <source>Source</source>
        <translation>Quelle</translation>
    </message>
    <message>
        <source>Spacing</source>
        <translation>Abstand</translation>
    </message>
    <message>
        <source>Spline</source>
        <translation>SPline</translation>
    </message>
    <message>
        <source>Spline curve</source>
        <translation>SPlinekurve</translation>
    </message>
    <message>
        <source>Square root</source>
        <translation>Quadratwurzel</translation>
    </message>
    <message>
        <source>Standard</source>
        <translation>Standard</translation>
    </message>
    <message>
        <source>Static</source>
        <translation>Statisch</translation>
    </message>
    <message>
        <source>Straight</source>
        <translation>Gerade</translation>
    </message>
    <message>
        <source>Straighten</source>
        <translation>GEradebiegen</translation>
    </message>
    <message>
        <source>Style</source>
        <translation>STil</translation>
    </message>
    <message>
        <source>Subtract area</source>
        <translation>Subtrahieren</translation>
    </message>
    <message>
        <source>TC</source>
        <translation>OZ</translation>
    </message>
    <message>
        <source>TL</source>
        <translation>OL</translation>
    </message>
    <message>
        <source>TR</source>
        <translation>OR</translation>
    </message>
    <message>
        <source>TRansparency</source>
        <translation>TRansparenz</translation>
    </message>
    <message>
        <source>Tablestyle</source>
        <translation>TAbstil</translation>
    </message>
    <message>
        <source>Tablestyles</source>
        <translation>TAbellenstile</translation>
    </message>
    <message>
        <source>Tangency</source>
        <translation>TAngente</translation>
    </message>
    <message>
        <source>Tangent</source>
        <translation>TAngente</translation>
    </message>
    <message>
        <source>Template</source>
        <translation>VOrlage</translation>
    </message>
    <message>
        <source>Text</source>
        <translation>Text</translation>
    </message>
    <message>
        <source>Thaw</source>
        <translation>Tauen</translation>
    </message>
    <message>
        <source>Thawed</source>
        <translation>Aufgetaut</translation>
    </message>
    <message>
        <source>Thickness</source>
        <translation>Objekthöhe</translation>
    </message>
    <message>
        <source>Through</source>
        <translation>Durch</translation>
    </message>
    <message>
        <source>Tolerance</source>
        <translation>TOleranz</translation>
    </message>
    <message>
        <source>Top</source>
        <translation>Oben</translation>
    </message>
    <message>
        <source>Total</source>
        <translation>Gesamt</translation>
    </message>
    <message>
        <source>Transparency</source>
        <translation>TRansparenz</translation>
    </message>
    <message>
        <source>Trim</source>
        <translation>Stutzen</translation>
    </message>
    <message>
        <source>Truecolor</source>
        <translation>Truecolor</translation>
    </message>
    <message>
        <source>Ttr</source>
        <translation>TTr</translation>
    </message>
    <message>
        <source>Ttr (tan tan radius)</source>
        <translation>TTr (tan tan radius)</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>Typ</translation>
    </message>
    <message>
        <source>Ucs</source>
        <translation>BKs</translation>
    </message>
    <message>
        <source>Under</source>
        <translation>Unter</translation>
    </message>
    <message>
        <source>Under objects</source>
        <translation>Unter objekte</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>ZUrück</translation>
    </message>
    <message>
        <source>Uniform</source>
        <translation>Gleichmäßig</translation>
    </message>
    <message>
        <source>Unload</source>
        <translation>Entladen</translation>
    </message>
    <message>
        <source>Unlock</source>
        <translation>ENTsperren</translation>
    </message>
    <message>
        <source>Use</source>
        <translation>Verwenden</translation>
    </message>
    <message>
        <source>Use current origin</source>
        <translation>Aktuellen ursprung verwenden</translation>
    </message>
    <message>
        <source>Use current spacing</source>
        <translation>Aktuellen abstand verwenden</translation>
    </message>
    <message>
        <source>User defined</source>
        <translation>Benutzerdefiniert</translation>
    </message>
    <message>
        <source>VIew</source>
        <translation>AUSSchnitt</translation>
    </message>
    <message>
        <source>VPort</source>
        <translation>AFenster</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>Wert</translation>
    </message>
    <message>
        <source>Variables</source>
        <translation>Variablen</translation>
    </message>
    <message>
        <source>Ver</source>
        <translation>Ver</translation>
    </message>
    <message>
        <source>Verify</source>
        <translation>Prüfen</translation>
    </message>
    <message>
        <source>Version</source>
        <translation>Version</translation>
    </message>
    <message>
        <source>Vertical</source>
        <translation>Vertikal</translation>
    </message>
    <message>
        <source>View</source>
        <translation>Ansicht</translation>
    </message>
    <message>
        <source>Viewports</source>
        <translation>Ansichtsfenster</translation>
    </message>
    <message>
        <source>Visual styles</source>
        <translation>VIsuelle stile</translation>
    </message>
    <message>
        <source>Visualstyles</source>
        <translation>VIsuellestile</translation>
    </message>
    <message>
        <source>Vpfreeze</source>
        <translation>AFfrieren</translation>
    </message>
    <message>
        <source>Vpvisdflt</source>
        <translation>AFsichtbarkeit</translation>
    </message>
    <message>
        <source>WPolygon</source>
        <translation>FPolygon</translation>
    </message>
    <message>
        <source>Width</source>
        <translation>BReite</translation>
    </message>
    <message>
        <source>Window</source>
        <translation>Fenster</translation>
    </message>
    <message>
        <source>Wireframe</source>
        <translation>Drahtmodell</translation>
    </message>
    <message>
        <source>World</source>
        <translation>Welt</translation>
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
        <translation>Xachse</translation>
    </message>
    <message>
        <source>Xdatum</source>
        <translation>Xdatum</translation>
    </message>
    <message>
        <source>YZ</source>
        <translation>YZ</translation>
    </message>
    <message>
        <source>Yaxis</source>
        <translation>Yachse</translation>
    </message>
    <message>
        <source>Ydatum</source>
        <translation>Ydatum</translation>
    </message>
    <message>
        <source>Yes</source>
        <translation>Ja</translation>
    </message>
    <message>
        <source>ZAxis</source>
        <translation>ZAchse</translation>
    </message>
    <message>
        <source>ZX</source>
        <translation>ZX</translation>
    </message>
    <message>
        <source>Zaxis</source>
        <translation>Zachse</translation>
    </message>
    <message>
        <source>Zdepth</source>
        <translation>Ztiefe</translation>
    </message>
    <message>
        <source>Zero</source>
        <translation>Null</translation>
    </message>
    <message>
        <source>Zero-length geometry</source>
        <translation>NUlllänge</translation>
    </message>
    <message>
        <source>beHind</source>
        <translation>HInter</translation>
    </message>
    <message>
        <source>bounDary</source>
        <translation>vOR</translation>
    </message>
    <message>
        <source>bring in front of bounDary</source>
        <translation>vor die Umgrenzung</translation>
    </message>
    <message>
        <source>bring to Front</source>
        <translation>nach Vorn</translation>
    </message>
    <message>
        <source>cLose</source>
        <translation>Schließen</translation>
    </message>
    <message>
        <source>chord Length</source>
        <translation>Sehnenlänge</translation>
    </message>
    <message>
        <source>do Not assign</source>
        <translation>Nicht zuweisen</translation>
    </message>
    <message>
        <source>draW</source>
        <translation>umgrenzung Zeichnen</translation>
    </message>
    <message>
        <source>draW boundary</source>
        <translation>umgrenzung Zeichnen</translation>
    </message>
    <message>
        <source>eRase</source>
        <translation>Löschen</translation>
    </message>
    <message>
        <source>eXcept current</source>
        <translation>außer aktuelleM</translation>
    </message>
    <message>
        <source>eXit</source>
        <translation>ENde</translation>
    </message>
    <message>
        <source>eXit options</source>
        <translation>ENde</translation>
    </message>
    <message>
        <source>end Tangency</source>
        <translation>endTangente</translation>
    </message>
    <message>
        <source>generate Polyline</source>
        <translation>Polylinie erzeugen</translation>
    </message>
    <message>
        <source>hatch COlor</source>
        <translation>Farbe</translation>
    </message>
    <message>
        <source>lAnding</source>
        <translation>Verlängerung</translation>
    </message>
    <message>
        <source>leader Landing first</source>
        <translation>Verlängerung zuerst</translation>
    </message>
    <message>
        <source>leader lAnding</source>
        <translation>Verlängerung</translation>
    </message>
    <message>
        <source>lineType</source>
        <translation>LTyp</translation>
    </message>
    <message>
        <source>lineWeight</source>
        <translation>LStärke</translation>
    </message>
    <message>
        <source>ltScale</source>
        <translation>LTFaktor</translation>
    </message>
    <message>
        <source>mEthod</source>
        <translation>METhode</translation>
    </message>
    <message>
        <source>mOde</source>
        <translation>mOdus</translation>
    </message>
    <message>
        <source>multileadersTyle</source>
        <translation>MUltiführungsstil</translation>
    </message>
    <message>
        <source>plotStyle</source>
        <translation>plotSTil</translation>
    </message>
    <message>
        <source>rEconcile</source>
        <translation>ABstimmen</translation>
    </message>
    <message>
        <source>remove Boundaries</source>
        <translation>Umgrenzungen entfernen</translation>
    </message>
    <message>
        <source>sPline</source>
        <translation>SPline</translation>
    </message>
    <message>
        <source>send beHind boundary</source>
        <translation>hinter die umGrenzung</translation>
    </message>
    <message>
        <source>send to Back</source>
        <translation>nach Hinten</translation>
    </message>
    <message>
        <source>separate Hatches</source>
        <translation>Getrennte schraffuren</translation>
    </message>
    <message>
        <source>specify Spacing</source>
        <translation>aBstand angeben</translation>
    </message>
    <message>
        <source>stAte</source>
        <translation>STatus</translation>
    </message>
    <message>
        <source>start Tangency</source>
        <translation>startTangente</translation>
    </message>
    <message>
        <source>textSTyles</source>
        <translation>TEXtstile</translation>
    </message>
    <message>
        <source>toLerance</source>
        <translation>TOleranz</translation>
    </message>
    <message>
        <source>Align</source>
        <translation>AUsrichten</translation>
    </message>
    <message>
        <source>orthoGraphic</source>
        <translation>ORthogonal</translation>
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
    <name>Menus</name>
    <message>
        <source>&amp;About Ortakit</source>
        <translation>Ü&amp;ber Ortakit</translation>
    </message>
    <message>
        <source>&amp;Aiming</source>
        <translation>&amp;Zeichenhilfen</translation>
    </message>
    <message>
        <source>&amp;Black ground</source>
        <translation>S&amp;chwarzer Hintergrund</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>S&amp;chließen</translation>
    </message>
    <message>
        <source>&amp;Construction lines</source>
        <translation>&amp;Konstruktionslinien</translation>
    </message>
    <message>
        <source>&amp;Contents</source>
        <translation>&amp;Inhalt</translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation>&amp;Kopieren</translation>
    </message>
    <message>
        <source>&amp;Dark style</source>
        <translation>&amp;Dunkler Stil</translation>
    </message>
    <message>
        <source>&amp;Delete</source>
        <translation>&amp;Löschen</translation>
    </message>
    <message>
        <source>&amp;Draw</source>
        <translation>&amp;Zeichnen</translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <translation>&amp;Bearbeiten</translation>
    </message>
    <message>
        <source>&amp;Export</source>
        <translation>E&amp;xportieren</translation>
    </message>
    <message>
        <source>&amp;File</source>
        <translation>&amp;Datei</translation>
    </message>
    <message>
        <source>&amp;Fit</source>
        <translation>Ein&amp;passen</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>&amp;Hilfe</translation>
    </message>
    <message>
        <source>&amp;In space</source>
        <translation>Im &amp;Raum</translation>
    </message>
    <message>
        <source>&amp;Insert</source>
        <translation>&amp;Einfügen</translation>
    </message>
    <message>
        <source>&amp;Light style</source>
        <translation>&amp;Heller Stil</translation>
    </message>
    <message>
        <source>&amp;Lock display</source>
        <translation>Anzeige &amp;sperren</translation>
    </message>
    <message>
        <source>&amp;Make</source>
        <translation>&amp;Erstellen</translation>
    </message>
    <message>
        <source>&amp;Modify</source>
        <translation>Ände&amp;rn</translation>
    </message>
    <message>
        <source>&amp;New</source>
        <translation>&amp;Neu</translation>
    </message>
    <message>
        <source>&amp;Next under the pointer</source>
        <translation>&amp;Nächstes unter dem Zeiger</translation>
    </message>
    <message>
        <source>&amp;Open...</source>
        <translation>Ö&amp;ffnen...</translation>
    </message>
    <message>
        <source>&amp;PNG picture...</source>
        <translation>&amp;PNG-Bild...</translation>
    </message>
    <message>
        <source>&amp;Pan</source>
        <translation>&amp;Pan</translation>
    </message>
    <message>
        <source>&amp;Paste</source>
        <translation>&amp;Einfügen</translation>
    </message>
    <message>
        <source>&amp;Print...</source>
        <translation>&amp;Drucken...</translation>
    </message>
    <message>
        <source>&amp;Properties</source>
        <translation>&amp;Eigenschaften</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>&amp;Beenden</translation>
    </message>
    <message>
        <source>&amp;Record session...</source>
        <translation>Sitzung &amp;aufzeichnen...</translation>
    </message>
    <message>
        <source>&amp;Redo</source>
        <translation>&amp;Wiederherstellen</translation>
    </message>
    <message>
        <source>&amp;Regenerate</source>
        <translation>&amp;Regenerieren</translation>
    </message>
    <message>
        <source>&amp;SVG drawing...</source>
        <translation>&amp;SVG-Zeichnung...</translation>
    </message>
    <message>
        <source>&amp;Save</source>
        <translation>&amp;Speichern</translation>
    </message>
    <message>
        <source>&amp;Start page</source>
        <translation>&amp;Startseite</translation>
    </message>
    <message>
        <source>&amp;Toolbars</source>
        <translation>&amp;Werkzeugleisten</translation>
    </message>
    <message>
        <source>&amp;Tools</source>
        <translation>&amp;Werkzeuge</translation>
    </message>
    <message>
        <source>&amp;Undo</source>
        <translation>&amp;Rückgängig</translation>
    </message>
    <message>
        <source>&amp;Unlock display</source>
        <translation>Anzeige e&amp;ntsperren</translation>
    </message>
    <message>
        <source>&amp;Upkeep</source>
        <translation>&amp;Pflege</translation>
    </message>
    <message>
        <source>&amp;View</source>
        <translation>&amp;Ansicht</translation>
    </message>
    <message>
        <source>&amp;Views and planes</source>
        <translation>&amp;Ansichten und Ebenen</translation>
    </message>
    <message>
        <source>&amp;Zoom by its options</source>
        <translation>&amp;Zoom mit Optionen</translation>
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
        <translation>Ausrichten</translation>
    </message>
    <message>
        <source>Align multileaders</source>
        <translation>Multi-Führungslinien ausrichten</translation>
    </message>
    <message>
        <source>Aligned</source>
        <translation>Ausgerichtet</translation>
    </message>
    <message>
        <source>Along the axes</source>
        <translation>Entlang der Achsen</translation>
    </message>
    <message>
        <source>Angle</source>
        <translation>Winkel</translation>
    </message>
    <message>
        <source>Arc</source>
        <translation>Bogen</translation>
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
        <source>Array</source>
        <translation>Anordnen</translation>
    </message>
    <message>
        <source>As another one</source>
        <translation>Wie ein anderes</translation>
    </message>
    <message>
        <source>At steps along a curve</source>
        <translation>In Schritten entlang einer Kurve</translation>
    </message>
    <message>
        <source>Attributes</source>
        <translation>Attribute</translation>
    </message>
    <message>
        <source>Base point</source>
        <translation>Basispunkt</translation>
    </message>
    <message>
        <source>Between sheet and model</source>
        <translation>Zwischen Blatt und Modell</translation>
    </message>
    <message>
        <source>Boundary</source>
        <translation>Umgrenzung</translation>
    </message>
    <message>
        <source>Break</source>
        <translation>Brechen</translation>
    </message>
    <message>
        <source>Bring back what was &amp;erased</source>
        <translation>Gelöschtes &amp;zurückholen</translation>
    </message>
    <message>
        <source>Center mark</source>
        <translation>Zentrumsmarke</translation>
    </message>
    <message>
        <source>Chamfer</source>
        <translation>Fasen</translation>
    </message>
    <message>
        <source>Choose &amp;all</source>
        <translation>&amp;Alles wählen</translation>
    </message>
    <message>
        <source>Choose &amp;similar</source>
        <translation>Ähnl&amp;iches wählen</translation>
    </message>
    <message>
        <source>Chooses what can be seen and changed</source>
        <translation>Wählt, was zu sehen und zu ändern ist</translation>
    </message>
    <message>
        <source>Circle</source>
        <translation>Kreis</translation>
    </message>
    <message>
        <source>Clip</source>
        <translation>Zuschneiden</translation>
    </message>
    <message>
        <source>Closes all drawings and the program</source>
        <translation>Schließt alle Zeichnungen und das Programm</translation>
    </message>
    <message>
        <source>Closes the drawing in front</source>
        <translation>Schließt die vordere Zeichnung</translation>
    </message>
    <message>
        <source>Co&amp;mmands...</source>
        <translation>Be&amp;fehle...</translation>
    </message>
    <message>
        <source>Color</source>
        <translation>Farbe</translation>
    </message>
    <message>
        <source>Coordinates of a point</source>
        <translation>Koordinaten eines Punkts</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>Kopieren</translation>
    </message>
    <message>
        <source>Copy with &amp;base point</source>
        <translation>Kopieren mit &amp;Basispunkt</translation>
    </message>
    <message>
        <source>Cu&amp;t</source>
        <translation>A&amp;usschneiden</translation>
    </message>
    <message>
        <source>Dark windows</source>
        <translation>Dunkle Fenster</translation>
    </message>
    <message>
        <source>Define an attribute</source>
        <translation>Attribut definieren</translation>
    </message>
    <message>
        <source>Delete layers</source>
        <translation>Layer löschen</translation>
    </message>
    <message>
        <source>Diameter</source>
        <translation>Durchmesser</translation>
    </message>
    <message>
        <source>Dime&amp;nsion</source>
        <translation>Be&amp;maßung</translation>
    </message>
    <message>
        <source>Dimension style</source>
        <translation>Bemaßungsstil</translation>
    </message>
    <message>
        <source>Distance</source>
        <translation>Abstand</translation>
    </message>
    <message>
        <source>Divide a curve</source>
        <translation>Kurve teilen</translation>
    </message>
    <message>
        <source>Divide the screen</source>
        <translation>Bildschirm teilen</translation>
    </message>
    <message>
        <source>Draw order</source>
        <translation>Zeichenreihenfolge</translation>
    </message>
    <message>
        <source>Drawing limits</source>
        <translation>Limiten</translation>
    </message>
    <message>
        <source>Drawing status</source>
        <translation>Zeichnungsstatus</translation>
    </message>
    <message>
        <source>Draws on black</source>
        <translation>Zeichnet auf Schwarz</translation>
    </message>
    <message>
        <source>Draws on white</source>
        <translation>Zeichnet auf Weiß</translation>
    </message>
    <message>
        <source>Edit multileaders</source>
        <translation>Multi-Führungslinien bearbeiten</translation>
    </message>
    <message>
        <source>Edit text and extension lines</source>
        <translation>Text und Hilfslinien bearbeiten</translation>
    </message>
    <message>
        <source>Elevation and thickness</source>
        <translation>Erhebung und Objekthöhe</translation>
    </message>
    <message>
        <source>Ellipse</source>
        <translation>Ellipse</translation>
    </message>
    <message>
        <source>End isolating</source>
        <translation>Isolieren beenden</translation>
    </message>
    <message>
        <source>Erase</source>
        <translation>Löschen</translation>
    </message>
    <message>
        <source>Erases what is chosen</source>
        <translation>Löscht, was gewählt ist</translation>
    </message>
    <message>
        <source>Explode</source>
        <translation>Zerlegen</translation>
    </message>
    <message>
        <source>Extend</source>
        <translation>Dehnen</translation>
    </message>
    <message>
        <source>External reference</source>
        <translation>Externe Referenz</translation>
    </message>
    <message>
        <source>F&amp;ormat</source>
        <translation>&amp;Format</translation>
    </message>
    <message>
        <source>Face</source>
        <translation>3D-Fläche</translation>
    </message>
    <message>
        <source>Filled area</source>
        <translation>Gefüllte Fläche</translation>
    </message>
    <message>
        <source>Fillet</source>
        <translation>Abrunden</translation>
    </message>
    <message>
        <source>Finds commands, menu entries and system variables</source>
        <translation>Findet Befehle, Menüeinträge und Systemvariablen</translation>
    </message>
    <message>
        <source>Freeze</source>
        <translation>Frieren</translation>
    </message>
    <message>
        <source>From the same begin</source>
        <translation>Vom selben Anfang</translation>
    </message>
    <message>
        <source>Gives what was printed most of the window, and back</source>
        <translation>Gibt der bisherigen Ausgabe den größten Teil des Fensters, und zurück</translation>
    </message>
    <message>
        <source>Goes through what lies on top of each other</source>
        <translation>Geht durch, was übereinander liegt</translation>
    </message>
    <message>
        <source>Grid</source>
        <translation>Raster</translation>
    </message>
    <message>
        <source>Group</source>
        <translation>Gruppe</translation>
    </message>
    <message>
        <source>Hatch</source>
        <translation>Schraffur</translation>
    </message>
    <message>
        <source>Horizontal or vertical</source>
        <translation>Horizontal oder vertikal</translation>
    </message>
    <message>
        <source>How the layout that is shown lies on its paper</source>
        <translation>Wie das gezeigte Layout auf seinem Papier liegt</translation>
    </message>
    <message>
        <source>I&amp;n space</source>
        <translation>Im &amp;Raum</translation>
    </message>
    <message>
        <source>In a row</source>
        <translation>In einer Reihe</translation>
    </message>
    <message>
        <source>In&amp;quiry</source>
        <translation>A&amp;bfrage</translation>
    </message>
    <message>
        <source>Insert a block</source>
        <translation>Block einfügen</translation>
    </message>
    <message>
        <source>Into the viewport</source>
        <translation>In das Ansichtsfenster</translation>
    </message>
    <message>
        <source>Isolate</source>
        <translation>Isolieren</translation>
    </message>
    <message>
        <source>Isometric plane</source>
        <translation>Isometrische Ebene</translation>
    </message>
    <message>
        <source>Jogged radius</source>
        <translation>Verkürzter Radius</translation>
    </message>
    <message>
        <source>Join</source>
        <translation>Verbinden</translation>
    </message>
    <message>
        <source>Layer, color, linetype</source>
        <translation>Layer, Farbe, Linientyp</translation>
    </message>
    <message>
        <source>Layers</source>
        <translation>Layer</translation>
    </message>
    <message>
        <source>Layers of &amp;objects</source>
        <translation>Layer von &amp;Objekten</translation>
    </message>
    <message>
        <source>Layout</source>
        <translation>Layout</translation>
    </message>
    <message>
        <source>Leader</source>
        <translation>Führungslinie</translation>
    </message>
    <message>
        <source>Lengthen</source>
        <translation>Länge ändern</translation>
    </message>
    <message>
        <source>Light windows</source>
        <translation>Helle Fenster</translation>
    </message>
    <message>
        <source>Line</source>
        <translation>Linie</translation>
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
        <source>Lisp &amp;console</source>
        <translation>Lisp-K&amp;onsole</translation>
    </message>
    <message>
        <source>List</source>
        <translation>Auflisten</translation>
    </message>
    <message>
        <source>Load shapes</source>
        <translation>Symbole laden</translation>
    </message>
    <message>
        <source>Lock</source>
        <translation>Sperren</translation>
    </message>
    <message>
        <source>Lon&amp;g command history</source>
        <translation>&amp;Lange Befehlsausgabe</translation>
    </message>
    <message>
        <source>Look for errors</source>
        <translation>Fehler suchen</translation>
    </message>
    <message>
        <source>Look from a direction</source>
        <translation>Aus einer Richtung blicken</translation>
    </message>
    <message>
        <source>Look straight at a plane</source>
        <translation>Gerade auf eine Ebene blicken</translation>
    </message>
    <message>
        <source>Make a block</source>
        <translation>Block erstellen</translation>
    </message>
    <message>
        <source>Make current</source>
        <translation>Aktuell setzen</translation>
    </message>
    <message>
        <source>Makes a new drawing</source>
        <translation>Erstellt eine neue Zeichnung</translation>
    </message>
    <message>
        <source>Merge layers</source>
        <translation>Layer zusammenführen</translation>
    </message>
    <message>
        <source>Mirror</source>
        <translation>Spiegeln</translation>
    </message>
    <message>
        <source>Mirror in a plane</source>
        <translation>An einer Ebene spiegeln</translation>
    </message>
    <message>
        <source>Move</source>
        <translation>Verschieben</translation>
    </message>
    <message>
        <source>Move in space</source>
        <translation>Im Raum verschieben</translation>
    </message>
    <message>
        <source>Move the text</source>
        <translation>Text verschieben</translation>
    </message>
    <message>
        <source>Multileader</source>
        <translation>Multi-Führungslinie</translation>
    </message>
    <message>
        <source>Multiline</source>
        <translation>Multilinie</translation>
    </message>
    <message>
        <source>Named views</source>
        <translation>Benannte Ausschnitte</translation>
    </message>
    <message>
        <source>O&amp;bjects</source>
        <translation>O&amp;bjekte</translation>
    </message>
    <message>
        <source>Object snap</source>
        <translation>Objektfang</translation>
    </message>
    <message>
        <source>Offset</source>
        <translation>Versetzen</translation>
    </message>
    <message>
        <source>Onto the sheet</source>
        <translation>Auf das Blatt</translation>
    </message>
    <message>
        <source>Opens drawings</source>
        <translation>Öffnet Zeichnungen</translation>
    </message>
    <message>
        <source>Ordinate</source>
        <translation>Koordinate</translation>
    </message>
    <message>
        <source>Override variables</source>
        <translation>Variablen überschreiben</translation>
    </message>
    <message>
        <source>P&amp;DF page...</source>
        <translation>P&amp;DF-Seite...</translation>
    </message>
    <message>
        <source>Pa&amp;ge setup...</source>
        <translation>S&amp;eite einrichten...</translation>
    </message>
    <message>
        <source>Paragraph</source>
        <translation>Absatztext</translation>
    </message>
    <message>
        <source>Paste as b&amp;lock</source>
        <translation>Als Bl&amp;ock einfügen</translation>
    </message>
    <message>
        <source>Paste where it &amp;was</source>
        <translation>An alter &amp;Stelle einfügen</translation>
    </message>
    <message>
        <source>Place a shape</source>
        <translation>Symbol setzen</translation>
    </message>
    <message>
        <source>Poin&amp;ts</source>
        <translation>&amp;Punkte</translation>
    </message>
    <message>
        <source>Point</source>
        <translation>Punkt</translation>
    </message>
    <message>
        <source>Polygon</source>
        <translation>Polygon</translation>
    </message>
    <message>
        <source>Polyline</source>
        <translation>Polylinie</translation>
    </message>
    <message>
        <source>Polyline in space</source>
        <translation>Polylinie im Raum</translation>
    </message>
    <message>
        <source>Prints the layout that is shown, or writes it as a page</source>
        <translation>Druckt das gezeigte Layout oder schreibt es als Seite</translation>
    </message>
    <message>
        <source>Purge</source>
        <translation>Bereinigen</translation>
    </message>
    <message>
        <source>Radius</source>
        <translation>Radius</translation>
    </message>
    <message>
        <source>Rectangle</source>
        <translation>Rechteck</translation>
    </message>
    <message>
        <source>Region</source>
        <translation>Region</translation>
    </message>
    <message>
        <source>Remove duplicates</source>
        <translation>Duplikate entfernen</translation>
    </message>
    <message>
        <source>Rename</source>
        <translation>Umbenennen</translation>
    </message>
    <message>
        <source>Revision cloud</source>
        <translation>Revisionswolke</translation>
    </message>
    <message>
        <source>Ring</source>
        <translation>Ring</translation>
    </message>
    <message>
        <source>Rotate</source>
        <translation>Drehen</translation>
    </message>
    <message>
        <source>Rotate round an axis</source>
        <translation>Um eine Achse drehen</translation>
    </message>
    <message>
        <source>Run a s&amp;cript</source>
        <translation>S&amp;kript ausführen</translation>
    </message>
    <message>
        <source>S&amp;ettings...</source>
        <translation>&amp;Einstellungen...</translation>
    </message>
    <message>
        <source>Save &amp;as...</source>
        <translation>Speichern &amp;unter...</translation>
    </message>
    <message>
        <source>Saves the drawing</source>
        <translation>Speichert die Zeichnung</translation>
    </message>
    <message>
        <source>Saves the drawing under another name</source>
        <translation>Speichert die Zeichnung unter einem anderen Namen</translation>
    </message>
    <message>
        <source>Says what this program is</source>
        <translation>Sagt, was dieses Programm ist</translation>
    </message>
    <message>
        <source>Scale</source>
        <translation>Skalieren</translation>
    </message>
    <message>
        <source>Shows a place to try Lisp at</source>
        <translation>Zeigt einen Ort, um Lisp auszuprobieren</translation>
    </message>
    <message>
        <source>Shows all that is drawn</source>
        <translation>Zeigt alles, was gezeichnet ist</translation>
    </message>
    <message>
        <source>Shows all through the viewport that is worked through</source>
        <translation>Zeigt alles durch das Ansichtsfenster, durch das gearbeitet wird</translation>
    </message>
    <message>
        <source>Shows less, larger</source>
        <translation>Zeigt weniger, größer</translation>
    </message>
    <message>
        <source>Shows more, smaller</source>
        <translation>Zeigt mehr, kleiner</translation>
    </message>
    <message>
        <source>Shows recent drawings, samples and first steps</source>
        <translation>Zeigt letzte Zeichnungen, Beispiele und erste Schritte</translation>
    </message>
    <message>
        <source>Shows the help pages</source>
        <translation>Zeigt die Hilfeseiten</translation>
    </message>
    <message>
        <source>Shows what is in a box</source>
        <translation>Zeigt, was in einem Rechteck liegt</translation>
    </message>
    <message>
        <source>Snap to a grid</source>
        <translation>Fang an einem Raster</translation>
    </message>
    <message>
        <source>Snaps, display, selection, units, folders and trust</source>
        <translation>Fänge, Anzeige, Auswahl, Einheiten, Ordner und Vertrauen</translation>
    </message>
    <message>
        <source>Spline</source>
        <translation>Spline</translation>
    </message>
    <message>
        <source>Stretch</source>
        <translation>Strecken</translation>
    </message>
    <message>
        <source>Synchronize attributes</source>
        <translation>Attribute synchronisieren</translation>
    </message>
    <message>
        <source>System &amp;variables</source>
        <translation>System&amp;variablen</translation>
    </message>
    <message>
        <source>Take back the last layer change</source>
        <translation>Letzte Layeränderung zurücknehmen</translation>
    </message>
    <message>
        <source>Text</source>
        <translation>Text</translation>
    </message>
    <message>
        <source>Text of one line</source>
        <translation>Einzeiliger Text</translation>
    </message>
    <message>
        <source>Text style</source>
        <translation>Textstil</translation>
    </message>
    <message>
        <source>Texts to a paragraph</source>
        <translation>Texte zu einem Absatztext</translation>
    </message>
    <message>
        <source>Thaw all</source>
        <translation>Alle tauen</translation>
    </message>
    <message>
        <source>The viewport that is worked through shows a scale of 1:1</source>
        <translation>Das Ansichtsfenster, durch das gearbeitet wird, zeigt im Maßstab 1:1</translation>
    </message>
    <message>
        <source>The viewport that is worked through shows a scale of 1:10</source>
        <translation>Das Ansichtsfenster, durch das gearbeitet wird, zeigt im Maßstab 1:10</translation>
    </message>
    <message>
        <source>The viewport that is worked through shows a scale of 1:100</source>
        <translation>Das Ansichtsfenster, durch das gearbeitet wird, zeigt im Maßstab 1:100</translation>
    </message>
    <message>
        <source>The viewport that is worked through shows a scale of 1:2</source>
        <translation>Das Ansichtsfenster, durch das gearbeitet wird, zeigt im Maßstab 1:2</translation>
    </message>
    <message>
        <source>The viewport that is worked through shows a scale of 1:20</source>
        <translation>Das Ansichtsfenster, durch das gearbeitet wird, zeigt im Maßstab 1:20</translation>
    </message>
    <message>
        <source>The viewport that is worked through shows a scale of 1:5</source>
        <translation>Das Ansichtsfenster, durch das gearbeitet wird, zeigt im Maßstab 1:5</translation>
    </message>
    <message>
        <source>The viewport that is worked through shows a scale of 1:50</source>
        <translation>Das Ansichtsfenster, durch das gearbeitet wird, zeigt im Maßstab 1:50</translation>
    </message>
    <message>
        <source>Times</source>
        <translation>Zeiten</translation>
    </message>
    <message>
        <source>To the current layer</source>
        <translation>Auf den aktuellen Layer</translation>
    </message>
    <message>
        <source>To the layer of another one</source>
        <translation>Auf den Layer eines anderen</translation>
    </message>
    <message>
        <source>Trim</source>
        <translation>Stutzen</translation>
    </message>
    <message>
        <source>Turn all on</source>
        <translation>Alle einschalten</translation>
    </message>
    <message>
        <source>Turn off</source>
        <translation>Ausschalten</translation>
    </message>
    <message>
        <source>Units</source>
        <translation>Einheiten</translation>
    </message>
    <message>
        <source>Unlock</source>
        <translation>Entsperren</translation>
    </message>
    <message>
        <source>Update expressions of texts</source>
        <translation>Ausdrücke in Texten aktualisieren</translation>
    </message>
    <message>
        <source>User coordinate system</source>
        <translation>Benutzerkoordinatensystem</translation>
    </message>
    <message>
        <source>Viewports of &amp;a sheet</source>
        <translation>Ansichtsfenster eines &amp;Blattes</translation>
    </message>
    <message>
        <source>W&amp;hite ground</source>
        <translation>We&amp;ißer Hintergrund</translation>
    </message>
    <message>
        <source>With one end</source>
        <translation>Mit einem Ende</translation>
    </message>
    <message>
        <source>Without ends</source>
        <translation>Ohne Enden</translation>
    </message>
    <message>
        <source>Write a block to a file</source>
        <translation>Block in Datei schreiben</translation>
    </message>
    <message>
        <source>Writes down what you do as a session that plays</source>
        <translation>Schreibt auf, was Sie tun, als Sitzung, die sich abspielen lässt</translation>
    </message>
    <message>
        <source>Writes what is drawn as a page</source>
        <translation>Schreibt das Gezeichnete als Seite</translation>
    </message>
    <message>
        <source>Writes what is drawn as a picture</source>
        <translation>Schreibt das Gezeichnete als Bild</translation>
    </message>
    <message>
        <source>Writes what is drawn as lines and areas</source>
        <translation>Schreibt das Gezeichnete als Linien und Flächen</translation>
    </message>
    <message>
        <source>Zoom &amp;extents</source>
        <translation>Zoom &amp;Grenzen</translation>
    </message>
    <message>
        <source>Zoom &amp;in</source>
        <translation>&amp;Vergrößern</translation>
    </message>
    <message>
        <source>Zoom &amp;out</source>
        <translation>Ver&amp;kleinern</translation>
    </message>
    <message>
        <source>Zoom &amp;window</source>
        <translation>Zoom &amp;Fenster</translation>
    </message>
    <message>
        <source>Draw</source>
        <translation>Zeichnen</translation>
    </message>
    <message>
        <source>Modify</source>
        <translation>Ändern</translation>
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
    <message>
        <source> saying &quot;%1&quot;</source>
        <translation> mit dem Text &quot;%1&quot;</translation>
    </message>
    <message>
        <source>${%1} is not known</source>
        <translation>${%1} ist nicht bekannt</translation>
    </message>
    <message>
        <source>%1 cannot be checked</source>
        <translation>%1 kann nicht angekreuzt werden</translation>
    </message>
    <message>
        <source>%1 cannot be written to</source>
        <translation>in %1 kann nicht geschrieben werden</translation>
    </message>
    <message>
        <source>%1 does not take &quot;%2&quot;</source>
        <translation>%1 nimmt &quot;%2&quot; nicht an</translation>
    </message>
    <message>
        <source>%1 does not take &quot;%2&quot;; it shows &quot;%3&quot;</source>
        <translation>%1 nimmt &quot;%2&quot; nicht an; es zeigt &quot;%3&quot;</translation>
    </message>
    <message>
        <source>%1 has no button &quot;%2&quot;</source>
        <translation>%1 hat keine Schaltfläche &quot;%2&quot;</translation>
    </message>
    <message>
        <source>%1 has no cell %2, %3</source>
        <translation>%1 hat keine Zelle %2, %3</translation>
    </message>
    <message>
        <source>%1 has no item &quot;%2&quot;; it has %3</source>
        <translation>%1 hat keinen Eintrag &quot;%2&quot;; es hat %3</translation>
    </message>
    <message>
        <source>%1 has no row &quot;%2&quot;</source>
        <translation>%1 hat keine Zeile &quot;%2&quot;</translation>
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
        <source>%1 has no widget &quot;%2&quot;; it has %3</source>
        <translation>%1 hat kein Bedienelement &quot;%2&quot;; es hat %3</translation>
    </message>
    <message>
        <source>%1 has the keyboard</source>
        <translation>%1 hat die Tastatur</translation>
    </message>
    <message>
        <source>%1 is disabled</source>
        <translation>%1 ist inaktiv</translation>
    </message>
    <message>
        <source>%1 is no UTF-8 text</source>
        <translation>%1 ist kein UTF-8-Text</translation>
    </message>
    <message>
        <source>%1 is no list, table or tree</source>
        <translation>%1 ist weder Liste noch Tabelle noch Baum</translation>
    </message>
    <message>
        <source>%1 is not visible</source>
        <translation>%1 ist nicht sichtbar</translation>
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
        <source>%1 is too long for a session</source>
        <translation>%1 ist zu lang für eine Sitzung</translation>
    </message>
    <message>
        <source>%1 stays as it is; another button of its group must be checked</source>
        <translation>%1 bleibt, wie es ist; eine andere Schaltfläche der Gruppe muss gewählt werden</translation>
    </message>
    <message>
        <source>%1 takes no file name</source>
        <translation>%1 nimmt keinen Dateinamen an</translation>
    </message>
    <message>
        <source>%1 took &quot;%2&quot;</source>
        <translation>%1 nahm &quot;%2&quot;</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is neither yes nor no (on, off)</source>
        <translation>&quot;%1&quot; ist weder yes noch no (on, off)</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no handle</source>
        <translation>&quot;%1&quot; ist keine Referenznummer</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no key</source>
        <translation>&quot;%1&quot; ist keine Taste</translation>
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
        <source>a quote is not closed, or text follows right behind it</source>
        <translation>ein Anführungszeichen ist nicht geschlossen, oder Text folgt unmittelbar dahinter</translation>
    </message>
    <message>
        <source>a view needs two corners</source>
        <translation>eine Ansicht braucht zwei Ecken</translation>
    </message>
    <message>
        <source>cancelled at %1, </source>
        <translation>abgebrochen bei %1, </translation>
    </message>
    <message>
        <source>cannot read %1: %2</source>
        <translation>%1 ist nicht lesbar: %2</translation>
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
        <source>dialog %1</source>
        <translation>Dialog %1</translation>
    </message>
    <message>
        <source>done again, the drawing differs from what it was: %1</source>
        <translation>nach dem Wiederherstellen unterscheidet sich die Zeichnung von dem, was sie war: %1</translation>
    </message>
    <message>
        <source>drawing: only the first line says which drawing it is</source>
        <translation>drawing: nur die erste Zeile sagt, welche Zeichnung es ist</translation>
    </message>
    <message>
        <source>end: no part was begun</source>
        <translation>end: kein Teil wurde begonnen</translation>
    </message>
    <message>
        <source>it is disabled</source>
        <translation>es ist inaktiv</translation>
    </message>
    <message>
        <source>it is enabled</source>
        <translation>es ist aktiv</translation>
    </message>
    <message>
        <source>it is nil</source>
        <translation>es ist nil</translation>
    </message>
    <message>
        <source>it is not visible</source>
        <translation>es ist nicht sichtbar</translation>
    </message>
    <message>
        <source>it is visible</source>
        <translation>es ist sichtbar</translation>
    </message>
    <message>
        <source>it shows &quot;%1&quot;</source>
        <translation>es zeigt &quot;%1&quot;</translation>
    </message>
    <message>
        <source>it stands in front of a command or lisp</source>
        <translation>es steht vor einem Befehl oder vor lisp</translation>
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
        <source>no arguments</source>
        <translation>keine Argumente</translation>
    </message>
    <message>
        <source>no dialog</source>
        <translation>kein Dialog</translation>
    </message>
    <message>
        <source>no folder was given to write to (--out)</source>
        <translation>es wurde kein Ordner zum Schreiben angegeben (--out)</translation>
    </message>
    <message>
        <source>no program was given that reads drawings (--audit, or the environment&apos;s ORTAKIT_AUDIT)</source>
        <translation>es wurde kein Programm angegeben, das Zeichnungen liest (--audit oder ORTAKIT_AUDIT in der Umgebung)</translation>
    </message>
    <message>
        <source>no prompt and no dialog is open that this could be meant for</source>
        <translation>weder eine Eingabeaufforderung noch ein Dialog ist offen, für den dies gemeint sein könnte</translation>
    </message>
    <message>
        <source>nothing has the keyboard</source>
        <translation>nichts hat die Tastatur</translation>
    </message>
    <message>
        <source>nothing with a name</source>
        <translation>nichts mit einem Namen</translation>
    </message>
    <message>
        <source>part %1, line %2</source>
        <translation>Teil %1, Zeile %2</translation>
    </message>
    <message>
        <source>part: a part cannot be written in a part</source>
        <translation>part: ein Teil kann nicht in einem Teil geschrieben werden</translation>
    </message>
    <message>
        <source>part: it has no end</source>
        <translation>part: es hat kein Ende</translation>
    </message>
    <message>
        <source>part: the part before it has no end</source>
        <translation>part: der Teil davor hat kein Ende</translation>
    </message>
    <message>
        <source>part: there is a part %1 already</source>
        <translation>part: einen Teil %1 gibt es schon</translation>
    </message>
    <message>
        <source>play: the part %1 plays itself</source>
        <translation>play: der Teil %1 spielt sich selbst ab</translation>
    </message>
    <message>
        <source>play: the part %1 takes %2</source>
        <translation>play: der Teil %1 nimmt %2</translation>
    </message>
    <message>
        <source>play: the parts write too much</source>
        <translation>play: die Teile schreiben zu viel</translation>
    </message>
    <message>
        <source>play: there is no part %1</source>
        <translation>play: es gibt keinen Teil %1</translation>
    </message>
    <message>
        <source>play: too many parts are played one in the other</source>
        <translation>play: zu viele Teile werden ineinander abgespielt</translation>
    </message>
    <message>
        <source>row &quot;%1&quot; of %2 cannot be checked</source>
        <translation>Zeile &quot;%1&quot; von %2 kann nicht angekreuzt werden</translation>
    </message>
    <message>
        <source>row &quot;%1&quot; of %2 is not visible</source>
        <translation>Zeile &quot;%1&quot; von %2 ist nicht sichtbar</translation>
    </message>
    <message>
        <source>something is missing at the end of the line</source>
        <translation>am Ende der Zeile fehlt etwas</translation>
    </message>
    <message>
        <source>the changes are &quot;%1&quot;</source>
        <translation>die Änderungen sind &quot;%1&quot;</translation>
    </message>
    <message>
        <source>the drawing differs from what it was: %1</source>
        <translation>die Zeichnung unterscheidet sich von dem, was sie war: %1</translation>
    </message>
    <message>
        <source>the drawing has no entity with the handle %1</source>
        <translation>die Zeichnung hat kein Objekt mit der Referenznummer %1</translation>
    </message>
    <message>
        <source>the drawing is unchanged</source>
        <translation>die Zeichnung ist unverändert</translation>
    </message>
    <message>
        <source>the drawing was changed</source>
        <translation>die Zeichnung wurde geändert</translation>
    </message>
    <message>
        <source>the error is &quot;%1&quot;</source>
        <translation>der Fehler ist &quot;%1&quot;</translation>
    </message>
    <message>
        <source>the file does not hold it; its text is &quot;%1&quot;</source>
        <translation>die Datei enthält es nicht; ihr Text ist &quot;%1&quot;</translation>
    </message>
    <message>
        <source>the file is there</source>
        <translation>die Datei ist vorhanden</translation>
    </message>
    <message>
        <source>the file&apos;s text is &quot;%1&quot;</source>
        <translation>der Text der Datei ist &quot;%1&quot;</translation>
    </message>
    <message>
        <source>the files differ at byte %1: &quot;%2&quot; and &quot;%3&quot;</source>
        <translation>die Dateien unterscheiden sich bei Byte %1: &quot;%2&quot; und &quot;%3&quot;</translation>
    </message>
    <message>
        <source>the items are &quot;%1&quot;</source>
        <translation>die Einträge sind &quot;%1&quot;</translation>
    </message>
    <message>
        <source>the line goes on (it ends in a backslash), but the session ends</source>
        <translation>die Zeile geht weiter (sie endet mit einem umgekehrten Schrägstrich), aber die Sitzung endet</translation>
    </message>
    <message>
        <source>the list went away while rows were selected</source>
        <translation>die Liste verschwand, während Zeilen gewählt wurden</translation>
    </message>
    <message>
        <source>the menu has no entry &quot;%1&quot;; it has %2</source>
        <translation>das Menü hat keinen Eintrag &quot;%1&quot;; es hat %2</translation>
    </message>
    <message>
        <source>the menu&apos;s entry &quot;%1&quot; is disabled</source>
        <translation>der Menüeintrag &quot;%1&quot; ist inaktiv</translation>
    </message>
    <message>
        <source>the order of its records</source>
        <translation>die Reihenfolge ihrer Datensätze</translation>
    </message>
    <message>
        <source>the prompt &quot;%1&quot;</source>
        <translation>die Eingabeaufforderung &quot;%1&quot;</translation>
    </message>
    <message>
        <source>the reader %1 does not answer</source>
        <translation>das Leseprogramm %1 antwortet nicht</translation>
    </message>
    <message>
        <source>the reader takes no names with line feeds</source>
        <translation>das Leseprogramm nimmt keine Namen mit Zeilenumbrüchen an</translation>
    </message>
    <message>
        <source>the run before it ended without an error</source>
        <translation>der Lauf davor endete ohne Fehler</translation>
    </message>
    <message>
        <source>the run changed nothing</source>
        <translation>der Lauf hat nichts geändert</translation>
    </message>
    <message>
        <source>the run ended with &quot;%1&quot;</source>
        <translation>der Lauf endete mit &quot;%1&quot;</translation>
    </message>
    <message>
        <source>the session ends while %1 is open</source>
        <translation>die Sitzung endet, während %1 offen ist</translation>
    </message>
    <message>
        <source>the session took longer than %1 s; open is %2</source>
        <translation>die Sitzung dauerte länger als %1 s; offen ist %2</translation>
    </message>
    <message>
        <source>the title is &quot;%1&quot;</source>
        <translation>der Titel ist &quot;%1&quot;</translation>
    </message>
    <message>
        <source>the widget went away while it was typed into</source>
        <translation>das Bedienelement verschwand, während darin geschrieben wurde</translation>
    </message>
    <message>
        <source>there are %1</source>
        <translation>es gibt %1</translation>
    </message>
    <message>
        <source>there is %1</source>
        <translation>da ist %1</translation>
    </message>
    <message>
        <source>there is no panel &quot;%1&quot;</source>
        <translation>es gibt kein Bedienfeld &quot;%1&quot;</translation>
    </message>
    <message>
        <source>there is nothing to redo</source>
        <translation>es gibt nichts wiederherzustellen</translation>
    </message>
    <message>
        <source>there is nothing to undo</source>
        <translation>es gibt nichts rückgängig zu machen</translation>
    </message>
    <message>
        <source>there was no run before it</source>
        <translation>davor gab es keinen Lauf</translation>
    </message>
    <message>
        <source>too much on the line: &quot;%1&quot;</source>
        <translation>zu viel in der Zeile: &quot;%1&quot;</translation>
    </message>
    <message>
        <source>undone, the drawing differs from what it was: %1</source>
        <translation>nach dem Rückgängigmachen unterscheidet sich die Zeichnung von dem, was sie war: %1</translation>
    </message>
    <message>
        <source>unknown word &quot;%1&quot;</source>
        <translation>unbekanntes Wort &quot;%1&quot;</translation>
    </message>
    <message>
        <source>what cannot be read again</source>
        <translation>was nicht wieder gelesen werden kann</translation>
    </message>
    <message>
        <source>what was printed is &quot;%1&quot;</source>
        <translation>ausgegeben wurde &quot;%1&quot;</translation>
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
</context>
<context>
    <name>RenderReport</name>
    <message>
        <source>%1 drawn</source>
        <translation>%1 gezeichnet</translation>
    </message>
    <message>
        <source>%1 invisible</source>
        <translation>%1 unsichtbar</translation>
    </message>
    <message>
        <source>simplified</source>
        <translation>vereinfacht</translation>
    </message>
    <message>
        <source>skipped</source>
        <translation>übersprungen</translation>
    </message>
    <message>
        <source>not drawn</source>
        <translation>nicht gezeichnet</translation>
    </message>
    <message>
        <source>drawn in part</source>
        <translation>teilweise gezeichnet</translation>
    </message>
    <message>
        <source>cut short: there is more than is drawn in one go</source>
        <translation>abgebrochen: es gibt mehr, als auf einmal gezeichnet wird</translation>
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
    <name>Suggestions</name>
    <message>
        <source>command of a program</source>
        <translation>Befehl eines Programms</translation>
    </message>
</context>
<context>
    <name>TrustQuestion</name>
    <message>
        <source>&amp;Load once</source>
        <translation>Einmal &amp;laden</translation>
    </message>
    <message>
        <source>&amp;Trust this folder</source>
        <translation>Diesem Ordner &amp;vertrauen</translation>
    </message>
    <message>
        <source>Load this program? It can do whatever you can.</source>
        <translation>Dieses Programm laden? Es kann alles, was Sie können.</translation>
    </message>
</context>
<context>
    <name>Uses</name>
    <message>
        <source>%1 takes %2 from %3 to %4, not &quot;%5&quot;</source>
        <translation>%1 nimmt %2 von %3 bis %4, nicht &quot;%5&quot;</translation>
    </message>
    <message>
        <source>%1 is %2, not &quot;%3&quot;</source>
        <translation>%1 ist %2, nicht &quot;%3&quot;</translation>
    </message>
    <message>
        <source>or</source>
        <translation>oder</translation>
    </message>
    <message>
        <source>%1 has no meaning here</source>
        <translation>%1 hat hier keine Bedeutung</translation>
    </message>
    <message>
        <source>there is no option %1%2</source>
        <translation>es gibt keine Option %1%2</translation>
    </message>
    <message>
        <source>%1 needs a value</source>
        <translation>%1 braucht einen Wert</translation>
    </message>
    <message>
        <source>%1 takes no value</source>
        <translation>%1 nimmt keinen Wert</translation>
    </message>
    <message>
        <source>there is no command %1%2</source>
        <translation>es gibt keinen Befehl %1%2</translation>
    </message>
    <message>
        <source>convert needs two files</source>
        <translation>convert braucht zwei Dateien</translation>
    </message>
    <message>
        <source>the sheet of a layout as its page setup has it; &quot;model&quot; for the page of model space; &quot;all&quot; for every sheet: a page each in a pdf, a file each as png and svg, with its name: OUT-NAME.png</source>
        <translation>das Blatt eines Layouts nach seiner Seiteneinrichtung; &quot;model&quot; für die Seite des Modellbereichs; &quot;all&quot; für jedes Blatt: in einem pdf je eine Seite, als png und svg je eine Datei mit seinem Namen: OUT-NAME.png</translation>
    </message>
    <message>
        <source>another sheet, on which everything is to be seen: A0 to A6, B0 to B6, ANSI-A to ANSI-E, ARCH-A to ARCH-E1 or millimetres as 420x297; -landscape or -portrait behind it turns it</source>
        <translation>ein anderes Blatt, auf dem alles zu sehen sein soll: A0 bis A6, B0 bis B6, ANSI-A bis ANSI-E, ARCH-A bis ARCH-E1 oder Millimeter wie 420x297; -landscape oder -portrait dahinter dreht es</translation>
    </message>
    <message>
        <source>millimetres on the sheet to drawing units, in place of what the page says or as fits</source>
        <translation>Millimeter auf dem Blatt zu Zeichnungseinheiten, anstelle dessen, was die Seite sagt oder was passt</translation>
    </message>
    <message>
        <source>show what lies between these corners, in drawing units</source>
        <translation>zeigt, was zwischen diesen Ecken liegt, in Zeichnungseinheiten</translation>
    </message>
    <message>
        <source>png, svg: so many pixels, 1 to 16000 each way; a sheet goes into their middle</source>
        <translation>png, svg: so viele Pixel, 1 bis 16000 je Richtung; ein Blatt kommt in ihre Mitte</translation>
    </message>
    <message>
        <source>png, svg: pixels an inch of the sheet</source>
        <translation>png, svg: Pixel je Zoll des Blattes</translation>
    </message>
    <message>
        <source>what it lies on</source>
        <translation>worauf es liegt</translation>
    </message>
    <message>
        <source>only layers whose names match, as in a layer filter: &quot;walls,door*&quot;</source>
        <translation>nur Layer, deren Namen passen, wie in einem Layerfilter: &quot;walls,door*&quot;</translation>
    </message>
    <message>
        <source>pdf, svg: texts as areas, or as text that can be searched</source>
        <translation>pdf, svg: Texte als Flächen oder als Text, der durchsucht werden kann</translation>
    </message>
    <message>
        <source>a table of plot styles (ctb, stb) in place of what the page names; &quot;none&quot; for none. Without a file there are monochrome, grayscale and screening 25%, 50%, 75%, 100%</source>
        <translation>eine Plotstiltabelle (ctb, stb) anstelle der, die die Seite nennt; &quot;none&quot; für keine. Ohne Datei gibt es monochrome, grayscale und screening 25%, 50%, 75%, 100%</translation>
    </message>
    <message>
        <source>all lines as thin as can be</source>
        <translation>alle Linien so dünn wie möglich</translation>
    </message>
    <message>
        <source>the most it may take; OUT stays as it was when it takes longer</source>
        <translation>so lange darf es höchstens dauern; OUT bleibt, wie es war, wenn es länger dauert</translation>
    </message>
    <message>
        <source>no limit</source>
        <translation>keine Grenze</translation>
    </message>
    <message>
        <source>write a DXF file in the binary form; without it, as text</source>
        <translation>schreibt eine DXF-Datei in der binären Form; ohne das als Text</translation>
    </message>
    <message>
        <source>open a damaged IN as far as it is sound, and tell on standard error what was dropped; OUT must be another file</source>
        <translation>öffnet ein beschädigtes IN, soweit es heil ist, und sagt auf der Standardfehlerausgabe, was weggelassen wurde; OUT muss eine andere Datei sein</translation>
    </message>
    <message>
        <source>writes a drawing as DXF, PNG, SVG or PDF</source>
        <translation>schreibt eine Zeichnung als DXF, PNG, SVG oder PDF</translation>
    </message>
    <message>
        <source>the drawing</source>
        <translation>die Zeichnung</translation>
    </message>
    <message>
        <source>the file to write, as what its extension says</source>
        <translation>die zu schreibende Datei, als was ihre Endung sagt</translation>
    </message>
    <message>
        <source>Opens a drawing and writes it as what the extension of OUT says: dxf, png, svg or pdf. What a picture does not show, or only in part, is told on standard error, by type.</source>
        <translation>Öffnet eine Zeichnung und schreibt sie als das, was die Endung von OUT sagt: dxf, png, svg oder pdf. Was ein Bild nicht oder nur teilweise zeigt, wird nach Typen auf der Standardfehlerausgabe gesagt.</translation>
    </message>
    <message>
        <source>Pictures</source>
        <translation>Bilder</translation>
    </message>
    <message>
        <source>Without the options of a sheet, png and svg show all of model space in 1600 by 1200 pixels, with the lineweights that it would have on a sheet 297 mm long; pdf shows it on A4.</source>
        <translation>Ohne die Optionen eines Blattes zeigen png und svg den ganzen Modellbereich in 1600 mal 1200 Pixeln, mit den Linienstärken, die er auf einem 297 mm langen Blatt hätte; pdf zeigt ihn auf A4.</translation>
    </message>
    <message>
        <source>%1 to %2</source>
        <translation>%1 bis %2</translation>
    </message>
    <message>
        <source>default: %1</source>
        <translation>Vorgabe: %1</translation>
    </message>
    <message>
        <source>Exit status: 0 done, 1 a tool, expression or session failed or passed a limit, 2 wrong use, 3 part of a batch failed or, with --strict, of a picture is missing, 4 a file could not be read or written, 5 a picture was written, but there was more to show than is drawn in one go: a few lines of a drawing can make millions.</source>
        <translation>Endstatus: 0 erledigt, 1 ein Werkzeug, ein Ausdruck oder eine Sitzung scheiterte oder überschritt eine Grenze, 2 falscher Gebrauch, 3 ein Teil eines Stapels scheiterte oder fehlt, mit --strict, in einem Bild, 4 eine Datei konnte nicht gelesen oder geschrieben werden, 5 ein Bild wurde geschrieben, aber es gab mehr zu zeigen, als auf einmal gezeichnet wird: wenige Zeilen einer Zeichnung können Millionen ergeben.</translation>
    </message>
    <message>
        <source>Usage: </source>
        <translation>Aufruf: </translation>
    </message>
    <message>
        <source>Commands:</source>
        <translation>Befehle:</translation>
    </message>
    <message>
        <source>Drafting tools without their dialogs:</source>
        <translation>Zeichenwerkzeuge ohne ihre Dialoge:</translation>
    </message>
    <message>
        <source>Options for every use:</source>
        <translation>Optionen für jeden Gebrauch:</translation>
    </message>
    <message>
        <source>there is no kind of finding &quot;%1&quot;</source>
        <translation>es gibt keine Art von Befund &quot;%1&quot;</translation>
    </message>
    <message>
        <source>lisp needs at least one file for this</source>
        <translation>lisp braucht dafür mindestens eine Datei</translation>
    </message>
    <message>
        <source>--json, --only and --except go with --check</source>
        <translation>--json, --only und --except gehören zu --check</translation>
    </message>
    <message>
        <source>--filter and --junit go with --test</source>
        <translation>--filter und --junit gehören zu --test</translation>
    </message>
    <message>
        <source>--profile goes with programs that are run</source>
        <translation>--profile gehört zu Programmen, die laufen</translation>
    </message>
    <message>
        <source>--check and --test do not go together</source>
        <translation>--check und --test gehen nicht zusammen</translation>
    </message>
    <message>
        <source>Loads the Lisp files in order and prints what they print. &quot;-&quot; reads expressions from standard input. Without --drawing a new drawing is open. Nothing asks a person: prompts are cancelled, and a dialog ends the program with status 1.

What these files load must lie in a trusted folder: the installation, the folder of the user&apos;s data, those that the system variable TRUSTEDPATHS lists, and those named here.</source>
        <translation>Lädt die Lisp-Dateien der Reihe nach und gibt aus, was sie ausgeben. &quot;-&quot; liest Ausdrücke von der Standardeingabe. Ohne --drawing ist eine neue Zeichnung geöffnet. Nichts fragt einen Menschen: Eingabeaufforderungen werden abgebrochen, und ein Dialog beendet das Programm mit Status 1.

Was diese Dateien laden, muss in einem vertrauenswürdigen Ordner liegen: der Installation, dem Ordner der Benutzerdaten, denen, die die Systemvariable TRUSTEDPATHS auflistet, und den hier genannten.</translation>
    </message>
    <message>
        <source>the drawing to work on</source>
        <translation>die Zeichnung, an der gearbeitet wird</translation>
    </message>
    <message>
        <source>a new one</source>
        <translation>eine neue</translation>
    </message>
    <message>
        <source>the most all of it may take</source>
        <translation>so lange darf alles zusammen höchstens dauern</translation>
    </message>
    <message>
        <source>write files as well that another program has open, or has changed since they were opened</source>
        <translation>schreibt auch Dateien, die ein anderes Programm geöffnet oder seit dem Öffnen geändert hat</translation>
    </message>
    <message>
        <source>tell on standard error where the time went, function by function</source>
        <translation>sagt auf der Standardfehlerausgabe, wohin die Zeit ging, Funktion für Funktion</translation>
    </message>
    <message>
        <source>write that as folded stacks as well, of which flame graphs are drawn</source>
        <translation>schreibt das auch als gefaltete Stapel, aus denen Flammengraphen gezeichnet werden</translation>
    </message>
    <message>
        <source>Without a file</source>
        <translation>Ohne Datei</translation>
    </message>
    <message>
        <source>It is a prompt: expressions are evaluated as they are typed, and their values printed. Tab completes names, &quot;help NAME&quot; or &quot;?NAME&quot; tells about one, Ctrl+C stops what runs, Ctrl+D ends. What is piped in is evaluated form by form; errors go to standard error with their line, the forms behind one are evaluated all the same, and the status is 1 then.</source>
        <translation>Es ist eine Eingabeaufforderung: Ausdrücke werden ausgewertet, wie sie eingegeben werden, und ihre Werte ausgegeben. Tab ergänzt Namen, &quot;help NAME&quot; oder &quot;?NAME&quot; erklärt einen, Strg+C stoppt, was läuft, Strg+D beendet. Was hineingeleitet wird, wird Form für Form ausgewertet; Fehler gehen mit ihrer Zeile auf die Standardfehlerausgabe, die Formen dahinter werden dennoch ausgewertet, und der Status ist dann 1.</translation>
    </message>
    <message>
        <source>With --check</source>
        <translation>Mit --check</translation>
    </message>
    <message>
        <source>The files are read and not run, and what looks wrong in them is told, a line each: FILE:LINE:COLUMN: error or warning: what it is [KIND]. What one of them defines the others know. Ends with status 1 when something was told.</source>
        <translation>Die Dateien werden gelesen und nicht ausgeführt, und was darin falsch aussieht, wird je in einer Zeile gesagt: FILE:LINE:COLUMN: Fehler oder Warnung: was es ist [KIND]. Was eine von ihnen definiert, kennen die anderen. Endet mit Status 1, wenn etwas gesagt wurde.</translation>
    </message>
    <message>
        <source>read the files and tell what looks wrong in them</source>
        <translation>liest die Dateien und sagt, was darin falsch aussieht</translation>
    </message>
    <message>
        <source>tell it as one line of JSON: findings, each with file, line, column, severity, kind and message, and the numbers of errors and warnings</source>
        <translation>sagt es als eine Zeile JSON: findings, jeder mit file, line, column, severity, kind und message, und die Zahlen der Fehler und Warnungen</translation>
    </message>
    <message>
        <source>tell only these kinds</source>
        <translation>sagt nur diese Arten</translation>
    </message>
    <message>
        <source>tell all kinds but these</source>
        <translation>sagt alle Arten außer diesen</translation>
    </message>
    <message>
        <source>With --test</source>
        <translation>Mit --test</translation>
    </message>
    <message>
        <source>The tests that the files define by (deftest name form...) are run, each in a new drawing (or DRAWING) into which its file was loaded before, and told on standard output in version 14 of the Test Anything Protocol. The time limit is that of each test. Ends with status 1 when one failed or there was none.</source>
        <translation>Die Tests, die die Dateien mit (deftest name form...) definieren, werden ausgeführt, jeder in einer neuen Zeichnung (oder DRAWING), in die seine Datei zuvor geladen wurde, und auf der Standardausgabe in Version 14 des Test Anything Protocol gemeldet. Die Zeitgrenze gilt für jeden Test. Endet mit Status 1, wenn einer scheiterte oder es keinen gab.</translation>
    </message>
    <message>
        <source>run the tests that the files define</source>
        <translation>führt die Tests aus, die die Dateien definieren</translation>
    </message>
    <message>
        <source>run only tests of such names: * stands for any characters, ? for one</source>
        <translation>führt nur Tests mit solchen Namen aus: * steht für beliebige Zeichen, ? für eines</translation>
    </message>
    <message>
        <source>write a report in JUnit&apos;s XML instead</source>
        <translation>schreibt stattdessen einen Bericht im XML von JUnit</translation>
    </message>
    <message>
        <source>runs, checks or tests Lisp files, or is a prompt for Lisp</source>
        <translation>führt Lisp-Dateien aus, prüft oder testet sie, oder ist eine Eingabeaufforderung für Lisp</translation>
    </message>
    <message>
        <source>a Lisp file, or - for standard input</source>
        <translation>eine Lisp-Datei oder - für die Standardeingabe</translation>
    </message>
    <message>
        <source>names takes no word</source>
        <translation>names nimmt kein Wort</translation>
    </message>
    <message>
        <source>help takes one command</source>
        <translation>help nimmt einen Befehl</translation>
    </message>
    <message>
        <source>lists what Lisp programs find here</source>
        <translation>listet auf, was Lisp-Programme hier finden</translation>
    </message>
    <message>
        <source>Prints what Lisp programs find here in a new drawing, a line each with tabs between its fields, sorted:

  function  NAME  ARGUMENTS  WHAT IT GIVES
  command   NAME  -          WHAT IT DOES
  variable  NAME  KIND       WHAT IT IS

Documents are made from this, and scripts/demand compares it with what programs ask for.</source>
        <translation>Gibt aus, was Lisp-Programme hier in einer neuen Zeichnung finden, je eine Zeile mit Tabulatoren zwischen den Feldern, sortiert:

  function  NAME  ARGUMENTE  WAS SIE ERGIBT
  command   NAME  -          WAS ER TUT
  variable  NAME  ART        WAS SIE IST

Daraus werden Dokumente gemacht, und scripts/demand vergleicht es mit dem, was Programme verlangen.</translation>
    </message>
    <message>
        <source>tells about a command</source>
        <translation>erklärt einen Befehl</translation>
    </message>
    <message>
        <source>which one; without it, the program as a whole</source>
        <translation>welchen; ohne Angabe das Programm als Ganzes</translation>
    </message>
    <message>
        <source>The same as --help behind the command.</source>
        <translation>Dasselbe wie --help hinter dem Befehl.</translation>
    </message>
    <message>
        <source>run needs a session</source>
        <translation>run braucht eine Sitzung</translation>
    </message>
    <message>
        <source>open damaged drawings as far as they are sound, and tell on standard error what was dropped</source>
        <translation>öffnet beschädigte Zeichnungen, soweit sie heil sind, und sagt auf der Standardfehlerausgabe, was weggelassen wurde</translation>
    </message>
    <message>
        <source>write the drawings that the session changed there, under their own names; of a session with cases, what it saves itself</source>
        <translation>schreibt die Zeichnungen, die die Sitzung geändert hat, dorthin, unter ihren eigenen Namen; von einer Sitzung mit Fällen, was sie selbst speichert</translation>
    </message>
    <message>
        <source>write a picture of each drawing as it is in the end to the out folder, or else beside the drawing</source>
        <translation>schreibt ein Bild jeder Zeichnung, wie sie am Ende ist, in den Ausgabeordner oder sonst neben die Zeichnung</translation>
    </message>
    <message>
        <source>an independent reader for sessions that ask one (default: the environment&apos;s ORTAKIT_AUDIT); see scripts/audit</source>
        <translation>ein unabhängiges Leseprogramm für Sitzungen, die eines befragen (Vorgabe: ORTAKIT_AUDIT der Umgebung); siehe scripts/audit</translation>
    </message>
    <message>
        <source>where pictures go that the session takes, and those of --png</source>
        <translation>wohin Bilder gehen, die die Sitzung macht, und die von --png</translation>
    </message>
    <message>
        <source>the most the session may take with one drawing; one that does not stop then ends the program</source>
        <translation>so lange darf die Sitzung mit einer Zeichnung höchstens dauern; hält sie dann nicht an, endet das Programm</translation>
    </message>
    <message>
        <source>plays a recorded session over drawings</source>
        <translation>spielt eine aufgezeichnete Sitzung über Zeichnungen ab</translation>
    </message>
    <message>
        <source>the recorded session</source>
        <translation>die aufgezeichnete Sitzung</translation>
    </message>
    <message>
        <source>what it is played over</source>
        <translation>worüber sie abgespielt wird</translation>
    </message>
    <message>
        <source>Plays a recorded session over each drawing, one after the other, each opened afresh; without a drawing, over the one that the session says. The drawings themselves stay as they are. Prints a line for each, and of a session with cases for each of them. What a picture does not show, or only in part, is told on standard error, by type.</source>
        <translation>Spielt eine aufgezeichnete Sitzung über jede Zeichnung ab, eine nach der anderen, jede frisch geöffnet; ohne Zeichnung über die, welche die Sitzung nennt. Die Zeichnungen selbst bleiben, wie sie sind. Gibt für jede eine Zeile aus und bei einer Sitzung mit Fällen für jeden von ihnen. Was ein Bild nicht oder nur teilweise zeigt, wird nach Typen auf der Standardfehlerausgabe gesagt.</translation>
    </message>
    <message>
        <source>look of windows and dialogs</source>
        <translation>Aussehen von Fenstern und Dialogen</translation>
    </message>
    <message>
        <source>language of texts</source>
        <translation>Sprache der Texte</translation>
    </message>
    <message>
        <source>$ORTAKIT_LANGUAGE; else the window&apos;s setting or the desktop&apos;s language, and English where there is no window or a session is played</source>
        <translation>$ORTAKIT_LANGUAGE; sonst die Einstellung des Fensters oder die Sprache des Desktops, und Englisch, wo es kein Fenster gibt oder eine Sitzung abgespielt wird</translation>
    </message>
    <message>
        <source>folder of the user&apos;s data</source>
        <translation>Ordner der Benutzerdaten</translation>
    </message>
    <message>
        <source>$ORTAKIT_HOME, or the system&apos;s place for such data</source>
        <translation>$ORTAKIT_HOME oder der Ort des Systems für solche Daten</translation>
    </message>
    <message>
        <source>the plug-in module</source>
        <translation>das Plug-in-Modul</translation>
    </message>
    <message>
        <source>$ORTAKIT_MODULE, or the one installed with the program</source>
        <translation>$ORTAKIT_MODULE oder das mit dem Programm installierte</translation>
    </message>
    <message>
        <source>folder of the Lisp tools</source>
        <translation>Ordner der Lisp-Werkzeuge</translation>
    </message>
    <message>
        <source>$ORTAKIT_TOOLS, or the one installed with the program</source>
        <translation>$ORTAKIT_TOOLS oder der mit dem Programm installierte</translation>
    </message>
    <message>
        <source>let drawings name files of this folder and those below; may be given again. Else they are read from the drawing&apos;s own folder, those below and trusted ones only</source>
        <translation>lässt Zeichnungen Dateien dieses Ordners und der darunterliegenden nennen; darf mehrfach stehen. Sonst werden sie nur aus dem Ordner der Zeichnung, den darunterliegenden und vertrauenswürdigen gelesen</translation>
    </message>
    <message>
        <source>tell this and end</source>
        <translation>sagt dies und endet</translation>
    </message>
    <message>
        <source>tell the version and end</source>
        <translation>sagt die Version und endet</translation>
    </message>
    <message>
        <source> (did you mean %1?)</source>
        <translation> (meinten Sie %1?)</translation>
    </message>
    <message>
        <source>run programs of this folder and those below as well; may be given again</source>
        <translation>führt auch Programme dieses Ordners und der darunterliegenden aus; darf mehrfach stehen</translation>
    </message>
    <message>
        <source>the most memory Lisp may take, more being an error of the program</source>
        <translation>so viel Speicher darf Lisp höchstens nehmen, mehr ist ein Fehler des Programms</translation>
    </message>
    <message>
        <source>the system variable LISPHEAPMAX, which is 2048 as long as nobody changed it</source>
        <translation>die Systemvariable LISPHEAPMAX, die 2048 ist, solange niemand sie geändert hat</translation>
    </message>
    <message>
        <source>open damaged drawings as far as they are sound; they have no file until they are saved under a name</source>
        <translation>öffnet beschädigte Zeichnungen, soweit sie heil sind; sie haben keine Datei, bis sie unter einem Namen gespeichert werden</translation>
    </message>
    <message>
        <source>open what a program that was killed left of changed drawings, without asking</source>
        <translation>öffnet ohne Rückfrage, was ein abgebrochenes Programm von geänderten Zeichnungen hinterließ</translation>
    </message>
    <message>
        <source>play a recorded session in the window first</source>
        <translation>spielt zuerst eine aufgezeichnete Sitzung im Fenster ab</translation>
    </message>
    <message>
        <source>how long each line of the session waits, so that you can watch it</source>
        <translation>wie lange jede Zeile der Sitzung wartet, sodass Sie zusehen können</translation>
    </message>
    <message>
        <source>write what you do down as a session that plays</source>
        <translation>schreibt auf, was Sie tun, als Sitzung, die sich abspielen lässt</translation>
    </message>
    <message>
        <source>write a picture of the window to DIR/window.png and end</source>
        <translation>schreibt ein Bild des Fensters nach DIR/window.png und endet</translation>
    </message>
    <message>
        <source>the most a session may take</source>
        <translation>so lange darf eine Sitzung höchstens dauern</translation>
    </message>
    <message>
        <source>opens drawings in a window</source>
        <translation>öffnet Zeichnungen in einem Fenster</translation>
    </message>
    <message>
        <source>a drawing to open</source>
        <translation>eine zu öffnende Zeichnung</translation>
    </message>
    <message>
        <source>Opens the drawings in a window, or works on them without one. &quot;ortakit help COMMAND&quot; tells more about a command. A drawing whose name is that of a command is written with its folder: ./run</source>
        <translation>Öffnet die Zeichnungen in einem Fenster oder bearbeitet sie ohne eines. &quot;ortakit help COMMAND&quot; sagt mehr über einen Befehl. Eine Zeichnung, die wie ein Befehl heißt, wird mit ihrem Ordner geschrieben: ./run</translation>
    </message>
    <message>
        <source>Options of the window</source>
        <translation>Optionen des Fensters</translation>
    </message>
    <message>
        <source>tell what became of each drawing as one line of JSON</source>
        <translation>sagt als eine Zeile JSON, was aus jeder Zeichnung wurde</translation>
    </message>
    <message>
        <source>work on so many files at a time, each in a process of its own, so that one that crashes or takes too long is one file that failed; what is told and its order are the same for any N</source>
        <translation>arbeitet an so vielen Dateien zugleich, jede in einem eigenen Prozess, sodass eine, die abstürzt oder zu lange braucht, eine gescheiterte Datei ist; was gesagt wird und die Reihenfolge sind für jedes N gleich</translation>
    </message>
    <message>
        <source>one process for all</source>
        <translation>ein Prozess für alle</translation>
    </message>
    <message>
        <source>%1 asks for points or entities: play a recorded session with ortakit run</source>
        <translation>%1 fragt nach Punkten oder Objekten: spielen Sie eine aufgezeichnete Sitzung mit ortakit run ab</translation>
    </message>
    <message>
        <source>%1 needs a drawing</source>
        <translation>%1 braucht eine Zeichnung</translation>
    </message>
    <message>
        <source>--out and --in-place do not go together</source>
        <translation>--out und --in-place gehen nicht zusammen</translation>
    </message>
    <message>
        <source>%1 changes drawings: say where they go, --out DIR or --in-place</source>
        <translation>%1 ändert Zeichnungen: sagen Sie, wohin sie gehen, --out DIR oder --in-place</translation>
    </message>
    <message>
        <source>%1 works on no selection</source>
        <translation>%1 arbeitet auf keiner Auswahl</translation>
    </message>
    <message>
        <source>of several drawings each has its own file: put {name} into %1</source>
        <translation>von mehreren Zeichnungen hat jede ihre eigene Datei: setzen Sie {name} in %1</translation>
    </message>
    <message>
        <source>%1 needs a file to write: --set %2=PATH</source>
        <translation>%1 braucht eine zu schreibende Datei: --set %2=PATH</translation>
    </message>
    <message>
        <source>%1 has no button %2%3; it has %4</source>
        <translation>%1 hat keine Schaltfläche %2%3; es hat %4</translation>
    </message>
    <message>
        <source>%1 has no key %2%3; it has %4</source>
        <translation>%1 hat keinen Schlüssel %2%3; es hat %4</translation>
    </message>
    <message>
        <source>the file to write; {name} stands for the drawing&apos;s name</source>
        <translation>die zu schreibende Datei; {name} steht für den Namen der Zeichnung</translation>
    </message>
    <message>
        <source>the file to read</source>
        <translation>die zu lesende Datei</translation>
    </message>
    <message>
        <source>yes or no</source>
        <translation>ja oder nein (yes, no)</translation>
    </message>
    <message>
        <source>yes or no, one of its group</source>
        <translation>ja oder nein (yes, no), eines seiner Gruppe</translation>
    </message>
    <message>
        <source>one of a list</source>
        <translation>eines aus einer Liste</translation>
    </message>
    <message>
        <source>one of: %1</source>
        <translation>eines von: %1</translation>
    </message>
    <message>
        <source>a number from %1 to %2</source>
        <translation>eine Zahl von %1 bis %2</translation>
    </message>
    <message>
        <source>a number, %1 or more</source>
        <translation>eine Zahl, %1 oder mehr</translation>
    </message>
    <message>
        <source>a number</source>
        <translation>eine Zahl</translation>
    </message>
    <message>
        <source>a colour&apos;s number, 0 to 256</source>
        <translation>eine Farbnummer, 0 bis 256</translation>
    </message>
    <message>
        <source>rows by the texts of their first column with ^ between; * for all</source>
        <translation>Zeilen nach dem Text ihrer ersten Spalte mit ^ dazwischen; * für alle</translation>
    </message>
    <message>
        <source>a file or folder</source>
        <translation>eine Datei oder ein Ordner</translation>
    </message>
    <message>
        <source>a text</source>
        <translation>ein Text</translation>
    </message>
    <message>
        <source> (default: %1)</source>
        <translation> (Vorgabe: %1)</translation>
    </message>
    <message>
        <source>--select takes all, TYPES [on layer PATTERN] [of block PATTERN] [in style PATTERN] [in color NUMBER], or a filter list, not &quot;%1&quot;</source>
        <translation>--select nimmt all, TYPES [on layer PATTERN] [of block PATTERN] [in style PATTERN] [in color NUMBER] oder eine Filterliste, nicht &quot;%1&quot;</translation>
    </message>
    <message>
        <source>makes one paragraph of single-line texts</source>
        <translation>macht aus einzeiligen Texten einen Absatztext</translation>
    </message>
    <message>
        <source>writes texts in capitals, small letters or as titles</source>
        <translation>schreibt Texte in Großbuchstaben, Kleinbuchstaben oder wie Titel</translation>
    </message>
    <message>
        <source>writes texts of attributes to a table in a text file</source>
        <translation>schreibt Texte von Attributen in eine Tabelle in einer Textdatei</translation>
    </message>
    <message>
        <source>counts the blocks of the drawing, for a text file</source>
        <translation>zählt die Blöcke der Zeichnung, für eine Textdatei</translation>
    </message>
    <message>
        <source>With --press exporttable the table is drawn instead; its upper left corner and the height of its texts are answers: --answer 0,0 --answer 2.5</source>
        <translation>Mit --press exporttable wird stattdessen die Tabelle gezeichnet; ihre linke obere Ecke und die Höhe ihrer Texte sind Antworten: --answer 0,0 --answer 2.5</translation>
    </message>
    <message>
        <source>takes texts of attributes from a table in a text file</source>
        <translation>nimmt Texte von Attributen aus einer Tabelle in einer Textdatei</translation>
    </message>
    <message>
        <source>All rows of the table are taken unless attributes names some. With --press btreplace, txreplace takes the place of txsearch in them first.</source>
        <translation>Alle Zeilen der Tabelle werden genommen, außer attributes nennt einige. Mit --press btreplace tritt darin zuerst txreplace an die Stelle von txsearch.</translation>
    </message>
    <message>
        <source>writes numbers into texts in the order of their places</source>
        <translation>schreibt Nummern in Texte, in der Reihenfolge ihrer Plätze</translation>
    </message>
    <message>
        <source>For the orders by points the points are answers: --answer 0,0</source>
        <translation>Für die Reihenfolgen nach Punkten sind die Punkte Antworten: --answer 0,0</translation>
    </message>
    <message>
        <source>replaces references to blocks by another block of the drawing</source>
        <translation>ersetzt Referenzen auf Blöcke durch einen anderen Block der Zeichnung</translation>
    </message>
    <message>
        <source>replaces references to blocks by a drawing file</source>
        <translation>ersetzt Referenzen auf Blöcke durch eine Zeichnungsdatei</translation>
    </message>
    <message>
        <source>directory is the folder of the file, blockstablerep its name there.</source>
        <translation>directory ist der Ordner der Datei, blockstablerep ihr Name dort.</translation>
    </message>
    <message>
        <source>draws slots, rectangles or circles around texts</source>
        <translation>zeichnet Langlöcher, Rechtecke oder Kreise um Texte</translation>
    </message>
    <message>
        <source>hides what lies behind texts</source>
        <translation>verdeckt, was hinter Texten liegt</translation>
    </message>
    <message>
        <source>writes dimension styles of the drawing to a file</source>
        <translation>schreibt Bemaßungsstile der Zeichnung in eine Datei</translation>
    </message>
    <message>
        <source>All styles are written unless lststyles names some.</source>
        <translation>Alle Stile werden geschrieben, außer lststyles nennt einige.</translation>
    </message>
    <message>
        <source>brings dimension styles from a file into the drawing</source>
        <translation>holt Bemaßungsstile aus einer Datei in die Zeichnung</translation>
    </message>
    <message>
        <source>All styles of the file are taken unless lststyles names some, by the first words of their names.</source>
        <translation>Alle Stile der Datei werden genommen, außer lststyles nennt einige, nach den ersten Wörtern ihrer Namen.</translation>
    </message>
    <message>
        <source>puts entities over each other in the order of their colours</source>
        <translation>legt Objekte in der Reihenfolge ihrer Farben übereinander</translation>
    </message>
    <message>
        <source>Steps are taken in the order in which they are given: --set lstcolors=&quot;5 Blue&quot; --press tofront puts blue on top.</source>
        <translation>Schritte werden in der Reihenfolge getan, in der sie angegeben sind: --set lstcolors=&quot;5 Blue&quot; --press tofront legt Blau nach oben.</translation>
    </message>
    <message>
        <source>writes a problem report with what the program and the drawing are</source>
        <translation>schreibt einen Problembericht mit Angaben zu Programm und Zeichnung</translation>
    </message>
    <message>
        <source>writes system variables to a script that sets them again</source>
        <translation>schreibt Systemvariablen in ein Skript, das sie wieder setzt</translation>
    </message>
    <message>
        <source>changes the paths of references, images, fonts and remote texts</source>
        <translation>ändert die Pfade von Referenzen, Bildern, Schriften und entfernten Texten</translation>
    </message>
    <message>
        <source>All paths are meant unless lstfiles names some. --press btreplace puts txreplace in the place of txsearch in them.</source>
        <translation>Alle Pfade sind gemeint, außer lstfiles nennt einige. --press btreplace setzt darin txreplace an die Stelle von txsearch.</translation>
    </message>
    <message>
        <source>changes and removes hyperlinks of entities</source>
        <translation>ändert und entfernt Hyperlinks von Objekten</translation>
    </message>
    <message>
        <source>All links are meant unless tableurl names some, by their handles. --press btnreplace puts txreplace in the place of txsearch in them, --press btnremoveurl takes them away.</source>
        <translation>Alle Links sind gemeint, außer tableurl nennt einige, nach ihren Referenznummern. --press btnreplace setzt darin txreplace an die Stelle von txsearch, --press btnremoveurl nimmt sie weg.</translation>
    </message>
    <message>
        <source>cuts a line open and draws a break symbol in the gap</source>
        <translation>schneidet eine Linie auf und zeichnet ein Bruchsymbol in die Lücke</translation>
    </message>
    <message>
        <source>edits the short names that are typed in place of commands</source>
        <translation>bearbeitet die Kürzel, die anstelle von Befehlen eingegeben werden</translation>
    </message>
    <message>
        <source>shows the functions of Lisp files</source>
        <translation>zeigt die Funktionen von Lisp-Dateien</translation>
    </message>
    <message>
        <source>makes a linetype of a drawn pattern</source>
        <translation>macht aus einem gezeichneten Muster einen Linientyp</translation>
    </message>
    <message>
        <source>makes a shape of drawn lines and arcs</source>
        <translation>macht aus gezeichneten Linien und Bögen ein Symbol</translation>
    </message>
    <message>
        <source>makes one drawing of the sheets of several</source>
        <translation>macht aus den Blättern mehrerer Zeichnungen eine Zeichnung</translation>
    </message>
    <message>
        <source>sets up a sheet: title block, viewports, alignment and scale</source>
        <translation>richtet ein Blatt ein: Schriftfeld, Ansichtsfenster, Ausrichtung und Maßstab</translation>
    </message>
    <message>
        <source>fills a closed area with copies of a pattern</source>
        <translation>füllt eine geschlossene Fläche mit Kopien eines Musters</translation>
    </message>
    <message>
        <source>inserts a block of the drawing or of another drawing file</source>
        <translation>fügt einen Block der Zeichnung oder einer anderen Zeichnungsdatei ein</translation>
    </message>
    <message>
        <source>shows and sets the time that was worked on drawings</source>
        <translation>zeigt und setzt die Zeit, in der an Zeichnungen gearbeitet wurde</translation>
    </message>
    <message>
        <source>--to and --out go together</source>
        <translation>--to und --out gehören zusammen</translation>
    </message>
    <message>
        <source>convert needs drawings</source>
        <translation>convert braucht Zeichnungen</translation>
    </message>
    <message>
        <source>-j goes with --to and --out</source>
        <translation>-j gehört zu --to und --out</translation>
    </message>
    <message>
        <source>Many drawings</source>
        <translation>Viele Zeichnungen</translation>
    </message>
    <message>
        <source>With --to and --out all words are drawings, and each becomes a file of its name in the folder. What became of them is told on standard output, a line each. The time limit is that of each.</source>
        <translation>Mit --to und --out sind alle Wörter Zeichnungen, und jede wird zu einer Datei ihres Namens in dem Ordner. Was aus ihnen wurde, wird auf der Standardausgabe gesagt, je eine Zeile. Die Zeitgrenze gilt für jede.</translation>
    </message>
    <message>
        <source>what they become</source>
        <translation>was sie werden</translation>
    </message>
    <message>
        <source>where they go</source>
        <translation>wohin sie gehen</translation>
    </message>
    <message>
        <source>print one line of JSON: of each drawing file, status, messages and out; of pictures complete, drawn, invisible, inPart and notDrawn (a number for each type) and cutShort; with --layout all of it for each of the pages, with layout and output; with --recover the same of what was dropped, mended and added</source>
        <translation>gibt eine Zeile JSON aus: von jeder Zeichnung file, status, messages und out; von Bildern complete, drawn, invisible, inPart und notDrawn (eine Zahl für jeden Typ) und cutShort; mit --layout all das für jede der Seiten, mit layout und output; mit --recover ebenso, was weggelassen, ausgebessert und hinzugefügt wurde</translation>
    </message>
    <message>
        <source>there is nothing called %1 to ignore%2</source>
        <translation>es gibt nichts namens %1, das nicht zählen könnte%2</translation>
    </message>
    <message>
        <source>diff needs two drawings</source>
        <translation>diff braucht zwei Zeichnungen</translation>
    </message>
    <message>
        <source>take numbers and coordinates for the same that are no farther apart</source>
        <translation>hält Zahlen und Koordinaten für gleich, die nicht weiter auseinander sind</translation>
    </message>
    <message>
        <source>what does not count in addition, separated by commas: version, view, header, classes, objects, xdata, order. times, handles, identity, extents and reactors do not count anyway; &quot;none&quot; in front counts them</source>
        <translation>was zusätzlich nicht zählt, durch Kommas getrennt: version, view, header, classes, objects, xdata, order. times, handles, identity, extents und reactors zählen ohnehin nicht; &quot;none&quot; davor lässt sie zählen</translation>
    </message>
    <message>
        <source>what makes entities the same one: their handles, or what is in them</source>
        <translation>was Objekte zu denselben macht: ihre Referenznummern oder was in ihnen ist</translation>
    </message>
    <message>
        <source>auto: by handle, unless far more entities are the same by content</source>
        <translation>auto: nach Referenznummer, außer weit mehr Objekte sind nach ihrem Inhalt dieselben</translation>
    </message>
    <message>
        <source>tell the sums alone</source>
        <translation>sagt nur die Summen</translation>
    </message>
    <message>
        <source>draw both over each other into a png, svg or pdf file: what is gone red and dashed, what is new green and thick, what has changed orange and dashed as it was, blue and thick as it is</source>
        <translation>zeichnet beide übereinander in eine png-, svg- oder pdf-Datei: Verschwundenes rot und gestrichelt, Neues grün und dick, Geändertes orange und gestrichelt, wie es war, blau und dick, wie es ist</translation>
    </message>
    <message>
        <source>which sheet the picture shows; without it, model space</source>
        <translation>welches Blatt das Bild zeigt; ohne Angabe den Modellbereich</translation>
    </message>
    <message>
        <source>write the picture although another program has it open</source>
        <translation>schreibt das Bild, obwohl ein anderes Programm es geöffnet hat</translation>
    </message>
    <message>
        <source>the most it may take</source>
        <translation>so lange darf es höchstens dauern</translation>
    </message>
    <message>
        <source>print the differences as one line of JSON</source>
        <translation>gibt die Unterschiede als eine Zeile JSON aus</translation>
    </message>
    <message>
        <source>tells what differs in two drawings</source>
        <translation>sagt, worin sich zwei Zeichnungen unterscheiden</translation>
    </message>
    <message>
        <source>a drawing as it was</source>
        <translation>eine Zeichnung, wie sie war</translation>
    </message>
    <message>
        <source>the drawing as it is</source>
        <translation>die Zeichnung, wie sie ist</translation>
    </message>
    <message>
        <source>Prints a line for each variable, layer, style, block, entity and object that differs: + for what B has alone, - for what A has alone, ~ for what has other values in B, with these. Sums stand behind =, by type and by layer. The files&apos; forms and versions do not matter, nor how numbers are spelt.

Ends with status 0 when nothing differs, 1 when something does, 2 and more when it could not be found out.

With the seven words that git hands to a program for differences it compares these two files and ends with 0 either way: git config diff.dxf.command &quot;ortakit diff&quot;.</source>
        <translation>Gibt eine Zeile für jede Variable, jeden Layer, Stil, Block, jede Entität und jedes Objekt aus, das sich unterscheidet: + für das, was nur B hat, - für das, was nur A hat, ~ für das, was in B andere Werte hat, mit diesen. Summen stehen hinter =, nach Typ und nach Layer. Form und Version der Dateien zählen nicht, ebenso wenig die Schreibweise von Zahlen.

Endet mit Status 0, wenn sich nichts unterscheidet, 1, wenn sich etwas unterscheidet, 2 und mehr, wenn es nicht festgestellt werden konnte.

Mit den sieben Wörtern, die git einem Programm für Unterschiede gibt, vergleicht es diese zwei Dateien und endet so oder so mit 0: git config diff.dxf.command &quot;ortakit diff&quot;.</translation>
    </message>
    <message>
        <source>Example:</source>
        <translation>Beispiel:</translation>
    </message>
    <message>
        <source>%1 needs at least one drawing</source>
        <translation>%1 braucht mindestens eine Zeichnung</translation>
    </message>
    <message>
        <source>a drawing to look at</source>
        <translation>eine anzusehende Zeichnung</translation>
    </message>
    <message>
        <source>--entities goes neither with --json nor with -j</source>
        <translation>--entities geht weder mit --json noch mit -j</translation>
    </message>
    <message>
        <source>--fix and --out go together</source>
        <translation>--fix und --out gehören zusammen</translation>
    </message>
    <message>
        <source>tells what is wrong with drawings</source>
        <translation>sagt, was an Zeichnungen falsch ist</translation>
    </message>
    <message>
        <source>Looks for all that opening with --recover would mend, add or drop, and the command AUDIT would find, and changes nothing. A hundred faults of a drawing are told; with --json all are.

Ends with status 0 when all drawings are sound or were mended, 1 when faults were found, 4 when files could not be read or written, 3 when that is so for some of several.</source>
        <translation>Sucht alles, was das Öffnen mit --recover ausbessern, hinzufügen oder weglassen und was der Befehl AUDIT finden würde, und ändert nichts. Hundert Fehler einer Zeichnung werden gesagt; mit --json alle.

Endet mit Status 0, wenn alle Zeichnungen heil sind oder ausgebessert wurden, 1, wenn Fehler gefunden wurden, 4, wenn Dateien nicht gelesen oder geschrieben werden konnten, 3, wenn das für einige von mehreren gilt.</translation>
    </message>
    <message>
        <source>write the drawings with what was found mended, sound ones too</source>
        <translation>schreibt die Zeichnungen mit ausgebesserten Fehlern, auch heile</translation>
    </message>
    <message>
        <source>the folder to write them into, under their names</source>
        <translation>der Ordner, in den sie unter ihren Namen geschrieben werden</translation>
    </message>
    <message>
        <source>the most that each drawing may take</source>
        <translation>so lange darf jede Zeichnung höchstens dauern</translation>
    </message>
    <message>
        <source>print one line of JSON: for each drawing opens, faults and found, as convert has it for --recover, and out</source>
        <translation>gibt eine Zeile JSON aus: für jede Zeichnung opens, faults und found, wie convert es bei --recover hat, und out</translation>
    </message>
    <message>
        <source>tells what drawings are and hold</source>
        <translation>sagt, was Zeichnungen sind und enthalten</translation>
    </message>
    <message>
        <source>Tells of each drawing its version and form, who saved it when, units, extents as the file says and as measured, how many entities of which type, layers, blocks, layouts with their paper, styles, the files and fonts that it names and whether they are found, and the state of its handles. Lists longer than twelve names are cut short; with --json they are whole.</source>
        <translation>Sagt von jeder Zeichnung Version und Form, wer sie wann gespeichert hat, Einheiten, Ausdehnung nach der Datei und gemessen, wie viele Objekte von welchem Typ, Layer, Blöcke, Layouts mit ihrem Papier, Stile, die Dateien und Schriften, die sie nennt, und ob sie gefunden werden, und den Zustand ihrer Referenznummern. Listen mit mehr als zwölf Namen werden gekürzt; mit --json sind sie vollständig.</translation>
    </message>
    <message>
        <source>print in place of that a line for each variable, table entry, block, entity and object, in the file&apos;s order, with all its values: git config diff.dxf.textconv &quot;ortakit info --entities&quot; shows differences of these</source>
        <translation>gibt stattdessen eine Zeile für jede Variable, jeden Tabelleneintrag, Block, jede Entität und jedes Objekt aus, in der Reihenfolge der Datei, mit allen Werten: git config diff.dxf.textconv &quot;ortakit info --entities&quot; zeigt Unterschiede davon</translation>
    </message>
    <message>
        <source>print all of it as one line of JSON</source>
        <translation>gibt alles als eine Zeile JSON aus</translation>
    </message>
    <message>
        <source>Kinds of findings</source>
        <translation>Arten von Befunden</translation>
    </message>
    <message>
        <source>uses takes man DIR, completions DIR or document</source>
        <translation>uses nimmt man DIR, completions DIR oder document</translation>
    </message>
    <message>
        <source>writes manual pages, completions and a document about the commands</source>
        <translation>schreibt Handbuchseiten, Ergänzungen und ein Dokument über die Befehle</translation>
    </message>
    <message>
        <source>Writes ortakit(1) and a page for each command to a folder, the completions of bash, zsh and fish to their places below a folder, or the sections of docs/cli.md to standard output.</source>
        <translation>Schreibt ortakit(1) und eine Seite für jeden Befehl in einen Ordner, die Ergänzungen für bash, zsh und fish an ihre Plätze unter einem Ordner, oder die Abschnitte von docs/cli.md auf die Standardausgabe.</translation>
    </message>
    <message>
        <source>--set takes KEY=VALUE, not &quot;%1&quot;</source>
        <translation>--set nimmt KEY=VALUE, nicht &quot;%1&quot;</translation>
    </message>
    <message>
        <source>what it works on: all, or types of entities as TEXT,MTEXT, with &quot;on layer PATTERN&quot;, &quot;of block PATTERN&quot;, &quot;in style PATTERN&quot; and &quot;in color NUMBER&quot; behind, or a filter list as ssget takes it: &apos;((0 . &quot;TEXT&quot;) (8 . &quot;NOTES&quot;))&apos;. What the tool cannot use is left out</source>
        <translation>worauf es arbeitet: all oder Typen von Objekten wie TEXT,MTEXT, mit &quot;on layer PATTERN&quot;, &quot;of block PATTERN&quot;, &quot;in style PATTERN&quot; und &quot;in color NUMBER&quot; dahinter, oder eine Filterliste, wie ssget sie nimmt: &apos;((0 . &quot;TEXT&quot;) (8 . &quot;NOTES&quot;))&apos;. Was das Werkzeug nicht brauchen kann, wird ausgelassen</translation>
    </message>
    <message>
        <source>put the value into a field of the dialog; may be given again. {name} stands for the name of the drawing without folder and extension</source>
        <translation>setzt den Wert in ein Feld des Dialogs; darf mehrfach stehen. {name} steht für den Namen der Zeichnung ohne Ordner und Endung</translation>
    </message>
    <message>
        <source>begin with the values of a state file that the dialog saved</source>
        <translation>beginnt mit den Werten einer Zustandsdatei, die der Dialog gespeichert hat</translation>
    </message>
    <message>
        <source>press a button of the dialog behind the values that were set before; may be given again</source>
        <translation>drückt eine Schaltfläche des Dialogs, nach den davor gesetzten Werten; darf mehrfach stehen</translation>
    </message>
    <message>
        <source>answer the next prompt with this: a keyword, a number, a point as 10,20; may be given again</source>
        <translation>beantwortet damit die nächste Eingabeaufforderung: ein Optionswort, eine Zahl, ein Punkt wie 10,20; darf mehrfach stehen</translation>
    </message>
    <message>
        <source>write each drawing there, under its own name</source>
        <translation>schreibt jede Zeichnung dorthin, unter ihrem eigenen Namen</translation>
    </message>
    <message>
        <source>the most it may take with one drawing</source>
        <translation>so lange darf es mit einer Zeichnung höchstens dauern</translation>
    </message>
    <message>
        <source>This tool asks for points or entities of the drawing, or works on none: it is for the window, and for recorded sessions, which ortakit run plays over drawings.</source>
        <translation>Dieses Werkzeug fragt nach Punkten oder Objekten der Zeichnung oder arbeitet auf keiner: es ist für das Fenster und für aufgezeichnete Sitzungen, die ortakit run über Zeichnungen abspielt.</translation>
    </message>
    <message>
        <source>Runs the tool over each drawing with its dialog filled in as --set says, and tells what it did. All of the dialog&apos;s checks hold, and what it complains about is an error of that drawing. Fields that are not set are as the dialog opens with them, whatever was chosen last. The drawings themselves stay as they are unless --in-place is given. It works in the space that is current in the drawing.</source>
        <translation>Führt das Werkzeug über jede Zeichnung aus, den Dialog ausgefüllt, wie --set es sagt, und sagt, was es tat. Alle Prüfungen des Dialogs gelten, und was er beanstandet, ist ein Fehler dieser Zeichnung. Nicht gesetzte Felder sind, wie der Dialog sich öffnet, was auch immer zuletzt gewählt war. Die Zeichnungen selbst bleiben, wie sie sind, außer mit --in-place. Es arbeitet in dem Bereich, der in der Zeichnung aktuell ist.</translation>
    </message>
    <message>
        <source>Keys of --set</source>
        <translation>Schlüssel von --set</translation>
    </message>
    <message>
        <source>what it works on</source>
        <translation>worauf es arbeitet</translation>
    </message>
    <message>
        <source>Texts that have a frame get a new one in its place; with --answer No the old one stays as well.</source>
        <translation>Texte, die einen Rahmen haben, bekommen an seiner Stelle einen neuen; mit --answer No bleibt der alte zusätzlich.</translation>
    </message>
    <message>
        <source>end with status 3 when something could not be read or is missing in the picture, which is written all the same</source>
        <translation>mit Status 3 enden, wenn etwas nicht gelesen werden konnte oder im Bild fehlt, das trotzdem geschrieben wird</translation>
    </message>
    <message>
        <source>--recover and --in-place do not go together: what is recovered is not written over the damaged file</source>
        <translation>--recover und --in-place gehen nicht zusammen: was gerettet wird, wird nicht über die beschädigte Datei geschrieben</translation>
    </message>
    <message>
        <source>save each drawing that was changed where it is, with a copy of the old one where SETBACKUPFOLDER has named a folder for that; the tool does not run over what cannot be saved so, such as DWG files</source>
        <translation>speichert jede geänderte Zeichnung, wo sie ist, mit einer Kopie der alten, wo SETBACKUPFOLDER einen Ordner dafür genannt hat; was sich so nicht speichern lässt, wie DWG-Dateien, bearbeitet das Werkzeug nicht</translation>
    </message>
    <message>
        <source>write files although another program has them open, or they lie beside a drawing under its result&apos;s name</source>
        <translation>schreibt Dateien, obwohl ein anderes Programm sie geöffnet hat oder sie neben einer Zeichnung unter dem Namen ihres Ergebnisses liegen</translation>
    </message>
    <message>
        <source>write files as well that another program has open, or has changed since they were opened, or that lie beside a drawing under its result&apos;s name</source>
        <translation>schreibt auch Dateien, die ein anderes Programm geöffnet oder seit dem Öffnen geändert hat oder die neben einer Zeichnung unter dem Namen ihres Ergebnisses liegen</translation>
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
    <name>host::app::HelpWindow</name>
    <message>
        <source>Help</source>
        <translation>Hilfe</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>Suchen</translation>
    </message>
    <message>
        <source>Contents</source>
        <translation>Inhalt</translation>
    </message>
    <message>
        <source>What was found</source>
        <translation>Was gefunden wurde</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Zurück</translation>
    </message>
    <message>
        <source>Forward</source>
        <translation>Vorwärts</translation>
    </message>
    <message>
        <source>Index</source>
        <translation>Stichwörter</translation>
    </message>
    <message>
        <source>Larger</source>
        <translation>Größer</translation>
    </message>
    <message>
        <source>Smaller</source>
        <translation>Kleiner</translation>
    </message>
    <message>
        <source>Print...</source>
        <translation>Drucken...</translation>
    </message>
    <message>
        <source>Nothing was found.</source>
        <translation>Nichts wurde gefunden.</translation>
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
    <name>host::app::LossBar</name>
    <message>
        <source>What of the file could not be read</source>
        <translation>Was von der Datei nicht gelesen werden konnte</translation>
    </message>
    <message>
        <source>Objects that could not be read</source>
        <translation>Objekte, die nicht gelesen werden konnten</translation>
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
        <translation>Zeichnungen vom &amp;letzten Mal</translation>
    </message>
    <message>
        <source>Open them at each &amp;start</source>
        <translation>Bei jedem &amp;Start öffnen</translation>
    </message>
    <message>
        <source>&amp;Clear the list</source>
        <translation>Liste lee&amp;ren</translation>
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
    <message>
        <source>
This link of the help page is not followed: %1
</source>
        <translation>
Diesem Link der Hilfeseite wird nicht gefolgt: %1
</translation>
    </message>
</context>
<context>
    <name>host::app::NoticeBar</name>
    <message>
        <source>Detai&amp;ls</source>
        <translation>Detai&amp;ls</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Schließen</translation>
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
        <translation>Alles</translation>
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
    <name>host::kernel::DrawingBackup</name>
    <message>
        <source>No backup of %1: %2.</source>
        <translation>Keine Sicherung von %1: %2.</translation>
    </message>
    <message>
        <source>the backup would take the place of the drawing</source>
        <translation>die Sicherung käme an die Stelle der Zeichnung</translation>
    </message>
    <message>
        <source>there is no folder %1</source>
        <translation>es gibt keinen Ordner %1</translation>
    </message>
</context>
<context>
    <name>host::view::DifferencePicture</name>
    <message>
        <source>gone: %n</source>
        <translation>verschwunden: %n</translation>
    </message>
    <message>
        <source>new: %n</source>
        <translation>neu: %n</translation>
    </message>
    <message>
        <source>changed, as it was: %n</source>
        <translation>geändert, wie es war: %n</translation>
    </message>
    <message>
        <source>changed, as it is: %n</source>
        <translation>geändert, wie es ist: %n</translation>
    </message>
    <message>
        <source>the same in both</source>
        <translation>in beiden gleich</translation>
    </message>
    <message>
        <source>the picture is too large</source>
        <translation>das Bild ist zu groß</translation>
    </message>
</context>
<context>
    <name>host::view::Export</name>
    <message>
        <source>Cannot make a picture of this size for %1</source>
        <translation>Ein Bild dieser Größe kann für %1 nicht erstellt werden</translation>
    </message>
    <message>
        <source>Cannot write %1: %2</source>
        <translation>%1 kann nicht geschrieben werden: %2</translation>
    </message>
    <message>
        <source>The sheet would be %1 by %2 pixels; %3 each way are the most</source>
        <translation>Das Blatt hätte %1 mal %2 Pixel; höchstens sind es %3 je Richtung</translation>
    </message>
    <message>
        <source>There is no block named %1</source>
        <translation>Es gibt keinen Block namens %1</translation>
    </message>
    <message>
        <source>There is no layout named %1</source>
        <translation>Es gibt kein Layout namens %1</translation>
    </message>
    <message>
        <source>it is not found</source>
        <translation>es wurde nicht gefunden</translation>
    </message>
    <message>
        <source>the plot styles %1 are left out: %2</source>
        <translation>die Plotstile %1 werden ausgelassen: %2</translation>
    </message>
</context>
</TS>
