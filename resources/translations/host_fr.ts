<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fr_FR" sourcelanguage="en">
<context>
    <name>AimMarks</name>
    <message>
        <source>Polar: %1 &lt; %2</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>CKvQtColorComboBox</name>
    <message>
        <source>ByBlock</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Red</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Yellow</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Green</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cyan</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Blue</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Magenta</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>White</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>ByLayer</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Color %1</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>DrawingStatus</name>
    <message>
        <source>DXF %1, %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>model space</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>paper space</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>All entities drawn</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>FileActions</name>
    <message>
        <source>Open drawings</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Drawings (*.dxf *.dwg);;All files (*)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1
What is saved here replaces what is saved there.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Open &amp;read-only</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Open &amp;anyway</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Save under another &amp;name...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Save &amp;anyway</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1

The drawing stays open.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Save &amp;as...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 already exists. Do you want to replace it?</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Save drawing</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>DXF drawings (*.dxf)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Export picture</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 pictures (*.%2)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>
Written: %1
</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>In the picture: %1
</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 was changed. Save it?</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>Layers</name>
    <message>
        <source>Name</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>On</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Freeze</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Lock</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Plot</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Color</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Linetype</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Lineweight</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Transparency</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Description</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Viewport</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>thawed</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>frozen</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>unlocked</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>locked</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>plots</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>no plot</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>on</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>off</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>Panels</name>
    <message>
        <source>Properties</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Layers</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Results</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>Playback</name>
    <message>
        <source>nobody is there to answer %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>it took longer than %1 s</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>Properties</name>
    <message>
        <source>General</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Geometry</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Text</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Misc</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Color</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Layer</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Linetype</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Linetype scale</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Lineweight</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Thickness</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Text style</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Dimension style</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Of what is drawn next</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Property</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Value</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no color.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>There is no layer &quot;%1&quot;.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>There is no linetype &quot;%1&quot;.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no lineweight.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no transparency: ByLayer, ByBlock or 0 to 90.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1: the current color is one of the table.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no angle.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no number.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1: it must be more than 0.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1: it must not be 0.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>*varies*</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no whole number.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Other...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Transparency</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Plot style</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Corner 1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Corner 2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Corner 3</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Corner 4</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Center</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Radius</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Start angle</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>End angle</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Start</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>End</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Total angle</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Arc length</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Area</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Height</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Position</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Prompt</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Rotation</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Tag</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Diameter</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Circumference</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Text override</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Measurement</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Major axis</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Radius ratio</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Start parameter</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>End parameter</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Length</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Angle</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Pattern</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Scale</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Name</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Scale X</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Scale Y</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Scale Z</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Delta</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Global width</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Elevation</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Vertices</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Contents</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Style</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Location</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Attachment</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Width</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Direction</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Size</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Degree</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Alignment point</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Horizontal mode</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Obliquing</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Vertical mode</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Width factor</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Base point</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>QObject</name>
    <message>
        <source>Message</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>All files (*)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Choose a folder</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Help</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>Settings</name>
    <message>
        <source>Window</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Style of windows</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>0=Light|1=Dark</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The colours of windows and dialogs</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Language</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>0=System|1=English|2=Deutsch|3=Français|4=Español|5=Italiano</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Of windows, dialogs and prompts; it counts from the next start</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Ground of drawings</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>0=Black|1=White</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>What drawings lie on</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Length of the cross-hair, percent</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Right button</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>File dialogs</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Attributes of a block are asked for in a dialog</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Snap</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>End points</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Middle points</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Centres</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Nodes</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Quadrants</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Intersections</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Insertion points</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Perpendicular</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Tangent</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Nearest</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Reach of snaps, pixels</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Ortho</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Grid shown</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Snap to the grid</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Typed coordinates and snaps</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>0=Snaps move typed points|1=Typed points stay|2=Typed points stay, but in scripts</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Display</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Lineweights</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Lineweight of &quot;Default&quot;, hundredths of a millimetre</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Areas are filled</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Texts as boxes</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Frames of images</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>0=Hidden|1=Shown and plotted|2=Shown only</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Frames of masks</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Scale of linetypes</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Font in place of missing ones</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Selection</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Choose first, then the command</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>What is picked is added</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>0=With Shift only|1=Always|2=Always, and stays chosen</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Groups are chosen whole</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Hatches are chosen with their boundaries</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Size of the pick box, pixels</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Chosen entities are marked</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Marks under the pointer while nothing runs</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Marks under the pointer while a command asks</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Grips</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>0=None|1=Shown|2=Shown, of segments too</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Size of grips, pixels</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No grips beyond so many entities</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Units</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Lengths</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>1=Scientific|2=Decimal|3=Engineering|4=Architectural|5=Fractional</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Places of lengths</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Angles</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>0=Degrees|1=Degrees, minutes, seconds|2=Grads|3=Radians|4=Surveyor&apos;s units</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Places of angles</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A drawing unit is</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>0=Not said|1=An inch|2=A foot|4=A millimetre|5=A centimetre|6=A metre|7=A kilometre</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Saving</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A backup is kept of what is saved over</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Minutes between saves by itself</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>External references tell of changes</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>0=No|1=With a mark|2=With a message</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Lisp</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Programs loaded with each drawing</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Full paths, between semicolons, in this order; they count from the next drawing on</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Most memory of programs, MB</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>What programs do is shown</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Folders and trust</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Folders whose programs may run</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Folders whose files drawings may name</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>SnapMenu</name>
    <message>
        <source>&amp;Endpoint</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Midpoint</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Center</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>N&amp;ode</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Quadrant</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Intersection</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Apparent intersection</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>E&amp;xtension</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>In&amp;sertion point</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Perpendicular</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Tangent</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Nea&amp;rest</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;None</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Mid&amp;way between two points</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;From a point</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>StatusSwitches</name>
    <message>
        <source>GRID</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Shows the grid</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>SNAP</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Points snap to the grid</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>ORTHO</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Points lie along the axes from the last one</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>POLAR</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Points lock to angles from the last one</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>OSNAP</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Points snap to entities</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>DYN</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Length and angle stand at the pointer; Tab locks what was typed</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>Suggestions</name>
    <message>
        <source>command of a program</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>host::app</name>
    <message>
        <source>there is %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 has no button &quot;%2&quot;</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 took &quot;%2&quot;</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 takes no file name</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the menu&apos;s entry &quot;%1&quot; is disabled</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the menu has no entry &quot;%1&quot;; it has %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 has the keyboard</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>nothing has the keyboard</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the items are &quot;%1&quot;</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 is open</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the title is &quot;%1&quot;</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>it is enabled</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>it is disabled</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>it is visible</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>it is not visible</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>it shows &quot;%1&quot;</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>a quote is not closed, or text follows right behind it</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&quot;%1&quot; is neither yes nor no (on, off)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no point; write x,y or x,y,z</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no whole number from 0 up</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no handle</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>unknown word &quot;%1&quot;</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>${%1} is not known</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the line goes on (it ends in a backslash), but the session ends</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 is too long for a session</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>cannot read %1: %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 is no UTF-8 text</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 has no row &quot;%2&quot;</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 is no list, table or tree</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the list went away while rows were selected</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>row &quot;%1&quot; of %2 is not visible</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>row &quot;%1&quot; of %2 cannot be checked</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 has no cell %2, %3</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>cell %1, %2 of %3 cannot be written to</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>cell %1, %2 of %3 does not take &quot;%4&quot;</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>what was printed is &quot;%1&quot;</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>there are %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>what cannot be read again</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the changes are &quot;%1&quot;</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>there was no run before it</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the drawing differs from what it was: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>no program was given that reads drawings (--audit, or the environment&apos;s ORTAKIT_AUDIT)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the order of its records</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the run changed nothing</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>undone, the drawing differs from what it was: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>done again, the drawing differs from what it was: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the drawing was changed</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the drawing is unchanged</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the file&apos;s text is &quot;%1&quot;</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the file does not hold it; its text is &quot;%1&quot;</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the files differ at byte %1: &quot;%2&quot; and &quot;%3&quot;</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>no folder was given to write to (--out)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the file is there</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>line %1%2 (%3): </source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>line %1: %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>line %1: the session has cases, each of which wants the drawing opened anew</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 cannot be written to</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 does not take &quot;%2&quot;; it shows &quot;%3&quot;</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 does not take &quot;%2&quot;</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 has no item &quot;%2&quot;; it has %3</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 has no tab &quot;%2&quot;</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 has no value to set</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the widget went away while it was typed into</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no key</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 cannot be checked</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 stays as it is; another button of its group must be checked</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 is not visible</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 is disabled</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>nothing with a name</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 has no widget &quot;%2&quot;; it has %3</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>dialog %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source> saying &quot;%1&quot;</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>host::app::ClosingQuestion</name>
    <message>
        <source>not saved yet: a name is asked for</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Save changes</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Changed drawings</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Drawing</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>File</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Save selected</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Discard all changes</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>These drawings were changed. Those that are not checked are closed unsaved.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>host::app::CommandLine</name>
    <message>
        <source>Command line</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>What was printed</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Command:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Search what was entered: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Not found: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Find</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Find in what was printed</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>host::app::CommandPalette</name>
    <message>
        <source>Commands</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>What is to be done? A command, a menu entry, a system variable</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>What is sought</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Commands that fit</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>host::app::CommandRunner</name>
    <message>
        <source>
A command is running; Esc stops it.
</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>
No drawing is open.
</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>(_&gt;</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Command:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No session can be played now.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>host::app::DrawingAudit</name>
    <message>
        <source>the reader takes no names with line feeds</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the reader %1 does not answer</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>host::app::DrawingCanvas</name>
    <message>
        <source>simplified</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>host::app::DrawingTabs</name>
    <message>
        <source>%1 (recovered)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 (read only)</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>host::app::InPlaceEdit</name>
    <message>
        <source>Text</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>host::app::LayerBox</name>
    <message>
        <source>Filter of names</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Filter</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Layers</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>host::app::LayerPanel</name>
    <message>
        <source>Layers</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;New</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A layer that looks like the chosen one</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Delete</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Takes unused layers out of the drawing</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Make &amp;current</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Filter of names</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Filter: part of a name, or a pattern</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Which layers are shown</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>All</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Used</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Of references</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Not frozen</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Visible</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 of %2 layers</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1, %2 chosen</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>... and %1 more</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Nothing can be changed while a command runs.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No drawing is open.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no value for this.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&quot;%1&quot; belongs to an external reference and cannot be current.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&quot;%1&quot; is frozen and cannot be current.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Layer &quot;%1&quot; is used.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Rename</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>C&amp;olor...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Select &amp;all</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>host::app::LayoutTabs</name>
    <message>
        <source>Layouts</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>host::app::LineReader</name>
    <message>
        <source>too much on the line: &quot;%1&quot;</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>something is missing at the end of the line</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>host::app::LispConsole</name>
    <message>
        <source>A Lisp expression</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Lisp expression</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Search what was entered: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Not found: %1</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>host::app::MainWindow</name>
    <message>
        <source>Lisp console</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>
A command is running; Esc stops it.
</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>
No drawing is open.
</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 is a folder.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 is a picture or document, no drawing.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No tools were found</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>
The help pages were not found.
</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>About Ortakit</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Ortakit %1

Drafting tools for CAD drawings, with a host of their own.
Qt %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Command line</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>
There is more to show than is drawn in one go: the picture lacks part of it.
</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 is no full path of a program.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>This cannot be kept in %1.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>not while something runs</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>not possible now</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>command of a program</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>system variable: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Open &amp;recent</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 (pinned)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Last time&apos;s drawings</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Open them at each &amp;start</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Clear the list</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Start</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Stop &amp;recording</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>
Recording to %1.
</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Record session...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>
Recorded in %1.
</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>
The recording was not written: %1: %2
</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Record session</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Recorded sessions (*.txt);;All files (*)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>
No copy of %1 is kept for after a crash: %2.
</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>
%1 was recovered by another program.
</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>
Recovered as it was on %1. It is not in its file until it is saved.
</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Enter</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Repeat %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Recent input</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Choose nothing</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>host::app::ParagraphDialog</name>
    <message>
        <source>Edit paragraph</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Text of the paragraph</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Each line is a paragraph. Codes are shown as they are: {\C1;red}, %%c, %%d.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Ctrl+Enter</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>host::app::PrintDialog</name>
    <message>
        <source>&amp;Centred</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Lineweights</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Remember in the layout</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Print %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Page setup of %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Preview</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Print</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 file</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Landscape</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Portrait</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>What is shown</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>All</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Limits</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The layout&apos;s sheet</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Window</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Fit</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>As the layout says</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Colours</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Black and white</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Greys</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Device</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>P&amp;aper</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Orientation</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A&amp;rea</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Lower left corner</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Upper right corner</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Scale</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>O&amp;ffset (mm)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Colo&amp;urs</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cop&amp;ies</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>host::app::PropertiesPanel</name>
    <message>
        <source>Which of the chosen entities</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Properties</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Nothing chosen</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No drawing is open</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>All</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 of %2 are on locked layers and stay as they are.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Nothing was changed: what is chosen is on locked layers.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>host::app::RecoveryDialog</name>
    <message>
        <source>never saved</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1
(changed since by another program)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1
(not there any more)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Recover drawings</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The program ended without closing these drawings. What had not been saved of them was kept in copies.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Drawings to recover</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Drawing</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Copied</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Size</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>File</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Open selected</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Discard selected...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Later</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The copies are offered again at the next start</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>(no name)</source>
        <translation type="unfinished"></translation>
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
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>skipped</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Outcome</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Entity</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>What and why</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>host::app::ResultsPanel</name>
    <message>
        <source>&amp;Save...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Results</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Which results are shown</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>All</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Done</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Skipped</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No tool has listed results in this drawing.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>It is not in the drawing any more.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>It is not in the space that is shown.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Save results</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Text (*.txt);;JSON (*.json)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Written: %1</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>host::app::ScriptReader</name>
    <message>
        <source>part: it has no end</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>part: the part before it has no end</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>end: no part was begun</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>drawing: only the first line says which drawing it is</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>part: there is a part %1 already</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>part: a part cannot be written in a part</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>play: there is no part %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>play: the part %1 plays itself</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>play: too many parts are played one in the other</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>play: the part %1 takes %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>part %1, line %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>play: the parts write too much</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>no arguments</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>host::app::SessionPlayer</name>
    <message>
        <source>the session took longer than %1 s; open is %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>no dialog</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>${%1} is not known</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the prompt &quot;%1&quot;</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the session ends while %1 is open</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 is open</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 is still open</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>a view needs two corners</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the run before it ended without an error</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>no prompt and no dialog is open that this could be meant for</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>there is no panel &quot;%1&quot;</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>it stands in front of a command or lisp</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the error is &quot;%1&quot;</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the run ended with &quot;%1&quot;</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>cancelled at %1, </source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the drawing differs from what it was: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>there is nothing to undo</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>there is nothing to redo</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>it is nil</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>host::app::SettingEditor</name>
    <message>
        <source>Add to: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Lisp programs (*.lsp)</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>host::app::SettingsWindow</name>
    <message>
        <source>Settings</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Search</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Search the settings</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Sections</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>System variables are shown while a drawing is open.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A command is running; Esc stops it.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 cannot be &quot;%2&quot;.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>host::app::StartPage</name>
    <message>
        <source>Recent drawings</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Samples</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Ortakit</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>First steps</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;New drawing</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Open drawings...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Open &amp;last time&apos;s drawings</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Look at a sample</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Draw a line</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Read the help</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>(not there any more)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 (pinned)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Un&amp;pin</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Pin</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Remove from the list</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>host::app::StatusSwitches</name>
    <message>
        <source>%1 on</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 off</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>host::app::StyleBar</name>
    <message>
        <source>Current properties</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Layer</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Color</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Linetype</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Lineweight</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>host::app::SuggestionList</name>
    <message>
        <source>Suggestions</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>host::app::TextEditing</name>
    <message>
        <source>It is on a locked layer.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A text without letters could not be found again: it stays as it was.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Edit attribute definition</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Tag</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Prompt</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Default</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A tag has no blanks.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The value is constant: the block says it.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Several lines, with \P between them.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Attributes of %1</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>host::app::TrustBar</name>
    <message>
        <source>%1 was not read: %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 was not loaded: %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 was not started: %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Allow &amp;once</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Trust the folde&amp;r</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>What was kept from running or being read</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Files and programs that were kept back</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Detai&amp;ls</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Close</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 things were kept back: they are named here but not in trusted folders.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>host::app::ValuesDialog</name>
    <message>
        <source>Tag</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Prompt</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Value</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>host::app::WindowDialogs</name>
    <message>
        <source>Printed on %1.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Print to file</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 files (*.%2)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;New</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Rename...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Delete</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Move &amp;left</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Move righ&amp;t</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Page setup...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Rename layout</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Name:</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>host::app::Workbench</name>
    <message>
        <source>The folder of the Lisp tools was not found; there are no tools.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>There is no folder %1; there are no tools.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The plug-in module was not found; tools with dialogs will not work.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 Tools with dialogs will not work.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>host::kernel::Autosave</name>
    <message>
        <source>the folder %1 takes no files</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>host::kernel::ColourDialog</name>
    <message>
        <source>Select Color</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>By&amp;Layer</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>By&amp;Block</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;More Colors...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Color:</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>kernel</name>
    <message>
        <source>the drawing has no entity with the handle %1</source>
        <translation type="unfinished"></translation>
    </message>
</context>
</TS>
