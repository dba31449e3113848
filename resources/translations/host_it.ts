<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="it_IT" sourcelanguage="en">
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
        <translation>%1 di %2, %3 non riusciti</translation>
    </message>
    <message>
        <source>the process that worked on it was killed or crashed</source>
        <translation>il processo che ci lavorava è stato terminato o si è interrotto</translation>
    </message>
    <message>
        <source>interrupted: %1 of %2 were not worked on to the end</source>
        <translation>interrotto: %1 di %2 non sono stati elaborati fino alla fine</translation>
    </message>
    <message>
        <source>done</source>
        <translation>fatto</translation>
    </message>
    <message>
        <source>failed</source>
        <translation>non riuscito</translation>
    </message>
    <message>
        <source>not read</source>
        <translation>non letto</translation>
    </message>
    <message>
        <source>not written</source>
        <translation>non scritto</translation>
    </message>
    <message>
        <source>incomplete</source>
        <translation>incompleto</translation>
    </message>
    <message>
        <source>cut short</source>
        <translation>abbreviato</translation>
    </message>
    <message>
        <source>%1, case %2</source>
        <translation>%1, caso %2</translation>
    </message>
    <message>
        <source>%1: the folder cannot be made</source>
        <translation>%1: la cartella non si può creare</translation>
    </message>
    <message>
        <source>two of the drawings are named %1: their results would have the same name</source>
        <translation>due dei disegni si chiamano %1: i loro risultati avrebbero lo stesso nome</translation>
    </message>
    <message>
        <source>%1: the extension must be dxf, %2</source>
        <translation>%1: l&apos;estensione deve essere dxf, %2</translation>
    </message>
    <message>
        <source>--binary is for DXF files</source>
        <translation>--binary è per file DXF</translation>
    </message>
    <message>
        <source>... and %1 more lines</source>
        <translation>... e altre %1 righe</translation>
    </message>
    <message>
        <source>the dialog of %1 does not open</source>
        <translation>la finestra di dialogo di %1 non si apre</translation>
    </message>
    <message>
        <source>%1: the file cannot be read</source>
        <translation>%1: il file non si può leggere</translation>
    </message>
    <message>
        <source>the tool asks &quot;%1&quot;; see --answer</source>
        <translation>lo strumento chiede &quot;%1&quot;; vedere --answer</translation>
    </message>
    <message>
        <source>the tool asks for a file; see --set %1=PATH</source>
        <translation>lo strumento chiede un file; vedere --set %1=PATH</translation>
    </message>
    <message>
        <source>the dialog does not go on with these values</source>
        <translation>la finestra di dialogo non prosegue con questi valori</translation>
    </message>
    <message>
        <source>there is nothing to choose in %1</source>
        <translation>in %1 non c&apos;è nulla da scegliere</translation>
    </message>
    <message>
        <source>it does not take &quot;%1&quot;</source>
        <translation>non accetta &quot;%1&quot;</translation>
    </message>
    <message>
        <source>%1 has nothing to do</source>
        <translation>%1 non ha nulla da fare</translation>
    </message>
    <message>
        <source>%1: there is no file %2</source>
        <translation>%1: non c&apos;è alcun file %2</translation>
    </message>
    <message>
        <source>%1 is there already, beside the drawing, and may be another one: name another folder, or --force to replace it</source>
        <translation>%1 esiste già accanto al disegno e può essere un altro: indicare un&apos;altra cartella, o --force per sostituirlo</translation>
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
        <translation>Rosso</translation>
    </message>
    <message>
        <source>Yellow</source>
        <translation>Giallo</translation>
    </message>
    <message>
        <source>Green</source>
        <translation>Verde</translation>
    </message>
    <message>
        <source>Cyan</source>
        <translation>Ciano</translation>
    </message>
    <message>
        <source>Blue</source>
        <translation>Blu</translation>
    </message>
    <message>
        <source>Magenta</source>
        <translation>Magenta</translation>
    </message>
    <message>
        <source>White</source>
        <translation>Bianco</translation>
    </message>
    <message>
        <source>ByLayer</source>
        <translation>ByLayer</translation>
    </message>
    <message>
        <source>Color %1</source>
        <translation>Colore %1</translation>
    </message>
</context>
<context>
    <name>Commands</name>
    <message>
        <source>Specify angle vertex: </source>
        <translation>Specificare vertice dell&apos;angolo: </translation>
    </message>
    <message>
        <source>Specify first angle endpoint: </source>
        <translation>Specificare primo estremo dell&apos;angolo: </translation>
    </message>
    <message>
        <source>Specify second angle endpoint: </source>
        <translation>Specificare secondo estremo dell&apos;angolo: </translation>
    </message>
    <message>
        <source>Select second line: </source>
        <translation>Selezionare seconda linea: </translation>
    </message>
    <message>
        <source>Lines are parallel.</source>
        <translation>Le linee sono parallele.</translation>
    </message>
    <message>
        <source>Object selected is not a line.</source>
        <translation>L&apos;oggetto selezionato non è una linea.</translation>
    </message>
    <message>
        <source>Select arc, circle, line, or &lt;specify vertex&gt;: </source>
        <translation>Selezionare arco, cerchio, linea o &lt;specificare vertice&gt;: </translation>
    </message>
    <message>
        <source>Object selected is not an arc, circle or line.</source>
        <translation>L&apos;oggetto selezionato non è un arco, un cerchio o una linea.</translation>
    </message>
    <message>
        <source>Enter text location (or press ENTER): </source>
        <translation>Specificare posizione del testo (o premere INVIO): </translation>
    </message>
    <message>
        <source>Specify dimension arc line location or [Mtext/Text/Angle/Quadrant]: </source>
        <translation>Specificare posizione dell&apos;arco di quota o [Mtext/Text/Angle/Quadrant]: </translation>
    </message>
    <message>
        <source>Specify quadrant: </source>
        <translation>Specificare quadrante: </translation>
    </message>
    <message>
        <source>Select arc or polyline arc segment: </source>
        <translation>Selezionare arco o segmento d&apos;arco di polilinea: </translation>
    </message>
    <message>
        <source>Object selected is not an arc or polyline arc segment.</source>
        <translation>L&apos;oggetto selezionato non è un arco o un segmento d&apos;arco di polilinea.</translation>
    </message>
    <message>
        <source>Specify first point for arc length dimension: </source>
        <translation>Specificare primo punto per la quota della lunghezza d&apos;arco: </translation>
    </message>
    <message>
        <source>Specify second point for arc length dimension: </source>
        <translation>Specificare secondo punto per la quota della lunghezza d&apos;arco: </translation>
    </message>
    <message>
        <source>The two points are one.</source>
        <translation>I due punti coincidono.</translation>
    </message>
    <message>
        <source>Specify arc length dimension location, or [Mtext/Text/Angle/Partial%1]: </source>
        <translation>Specificare posizione della quota della lunghezza d&apos;arco, o [Mtext/Text/Angle/Partial%1]: </translation>
    </message>
    <message>
        <source>A drawing of this version has no dimensions of arc lengths: they come with R2004.</source>
        <translation>Un disegno di questa versione non ha quote di lunghezza d&apos;arco: esistono da R2004.</translation>
    </message>
    <message>
        <source>
Current attribute modes:  </source>
        <translation>
Modi attributo correnti:  </translation>
    </message>
    <message>
        <source>Enter an option to change [Invisible/Constant/Verify/Preset] &lt;done&gt;: </source>
        <translation>Digitare un&apos;opzione da cambiare [Invisible/Constant/Verify/Preset] &lt;fatto&gt;: </translation>
    </message>
    <message>
        <source>Enter attribute tag name: </source>
        <translation>Digitare etichetta dell&apos;attributo: </translation>
    </message>
    <message>
        <source>A tag is needed.</source>
        <translation>Occorre un&apos;etichetta.</translation>
    </message>
    <message>
        <source>A tag has no blanks.</source>
        <translation>Un&apos;etichetta non ha spazi.</translation>
    </message>
    <message>
        <source>Enter attribute prompt: </source>
        <translation>Digitare messaggio di richiesta dell&apos;attributo: </translation>
    </message>
    <message>
        <source>Enter attribute value: </source>
        <translation>Digitare valore dell&apos;attributo: </translation>
    </message>
    <message>
        <source>Enter default attribute value: </source>
        <translation>Digitare valore di default dell&apos;attributo: </translation>
    </message>
    <message>
        <source>Enter attribute tag name</source>
        <translation>Digitare etichetta dell&apos;attributo</translation>
    </message>
    <message>
        <source>Enter attribute prompt</source>
        <translation>Digitare messaggio di richiesta dell&apos;attributo</translation>
    </message>
    <message>
        <source>Enter default attribute value, . for none</source>
        <translation>Digitare valore di default dell&apos;attributo, . per nessuno</translation>
    </message>
    <message>
        <source>Enter text</source>
        <translation>Digitare testo</translation>
    </message>
    <message>
        <source>Select an annotation object: </source>
        <translation>Selezionare un oggetto di annotazione: </translation>
    </message>
    <message>
        <source>Requires a text.</source>
        <translation>Occorre un testo.</translation>
    </message>
    <message>
        <source>Select continued dimension: </source>
        <translation>Selezionare quota da continuare: </translation>
    </message>
    <message>
        <source>Select base dimension: </source>
        <translation>Selezionare quota di base: </translation>
    </message>
    <message>
        <source>Linear, ordinate, or angular associative dimension required.</source>
        <translation>Occorre una quota associativa lineare, coordinata o angolare.</translation>
    </message>
    <message>
        <source>
All dimensions of the command are undone.</source>
        <translation>
Tutte le quote del comando sono state annullate.</translation>
    </message>
    <message>
        <source>Specify feature location or [Select/Undo] &lt;Select&gt;: </source>
        <translation>Specificare posizione della funzione o [Select/Undo] &lt;Select&gt;: </translation>
    </message>
    <message>
        <source>Specify second extension line origin or [Select/Undo] &lt;Select&gt;: </source>
        <translation>Specificare origine della seconda linea di estensione o [Select/Undo] &lt;Select&gt;: </translation>
    </message>
    <message>
        <source>Specify a second extension line origin or [Select] &lt;Select&gt;: </source>
        <translation>Specificare un&apos;origine della seconda linea di estensione o [Select] &lt;Select&gt;: </translation>
    </message>
    <message>
        <source>Enter obliquing angle (press ENTER for none): </source>
        <translation>Digitare angolo di inclinazione (premere INVIO per nessuno): </translation>
    </message>
    <message>
        <source>Unknown dimension variable &quot;%1&quot;.</source>
        <translation>Variabile di quota sconosciuta &quot;%1&quot;.</translation>
    </message>
    <message>
        <source>Enter new value for dimension variable &lt;%1&gt;: </source>
        <translation>Digitare nuovo valore della variabile di quota &lt;%1&gt;: </translation>
    </message>
    <message>
        <source>%1 does not take this value.</source>
        <translation>%1 non accetta questo valore.</translation>
    </message>
    <message>
        <source>Enter dimension variable name to override: </source>
        <translation>Digitare nome della variabile di quota da sostituire: </translation>
    </message>
    <message>
        <source>Enter type of dimension editing [Home/New/Rotate/Oblique] &lt;Home&gt;: </source>
        <translation>Digitare tipo di modifica della quota [Home/New/Rotate/Oblique] &lt;Home&gt;: </translation>
    </message>
    <message>
        <source>Enter dimension text &lt;&lt;&gt;&gt;: </source>
        <translation>Digitare testo di quota &lt;&lt;&gt;&gt;: </translation>
    </message>
    <message>
        <source>Specify angle for dimension text: </source>
        <translation>Specificare angolo del testo di quota: </translation>
    </message>
    <message>
        <source>Select dimension: </source>
        <translation>Selezionare quota: </translation>
    </message>
    <message>
        <source>Object selected is not a dimension.</source>
        <translation>L&apos;oggetto selezionato non è una quota.</translation>
    </message>
    <message>
        <source>Specify new location for dimension text or [Left/Right/Center/Home/Angle]: </source>
        <translation>Specificare nuova posizione del testo di quota o [Left/Right/Center/Home/Angle]: </translation>
    </message>
    <message>
        <source>Enter dimension variable name to override or [Clear overrides]: </source>
        <translation>Digitare nome della variabile di quota da sostituire o [Clear overrides]: </translation>
    </message>
    <message>
        <source>Enter new text style name</source>
        <translation>Digitare nome del nuovo stile di testo</translation>
    </message>
    <message>
        <source>Dim: </source>
        <translation>Quota: </translation>
    </message>
    <message>
        <source>Unknown dimension subcommand &quot;%1&quot;.</source>
        <translation>Sottocomando di quota sconosciuto &quot;%1&quot;.</translation>
    </message>
    <message>
        <source>
Nothing that was made here is left to undo.</source>
        <translation>
Non resta nulla da annullare di quanto creato qui.</translation>
    </message>
    <message>
        <source>Enter dimension style(s) to list &lt;*&gt;: </source>
        <translation>Digitare stili di quota da elencare &lt;*&gt;: </translation>
    </message>
    <message>
        <source>Enter a dimension style name, [?] or &lt;select dimension&gt;: </source>
        <translation>Digitare nome di uno stile di quota, [?] o &lt;selezionare quota&gt;: </translation>
    </message>
    <message>
        <source>Cannot find dimension style &quot;%1&quot;.</source>
        <translation>Impossibile trovare lo stile di quota &quot;%1&quot;.</translation>
    </message>
    <message>
        <source>Enter name for new dimension style or [?]: </source>
        <translation>Digitare nome del nuovo stile di quota o [?]: </translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no name for a dimension style.</source>
        <translation>&quot;%1&quot; non è un nome per uno stile di quota.</translation>
    </message>
    <message>
        <source>That name is already in use, redefine it? [Yes/No] &lt;N&gt;: </source>
        <translation>Il nome è già in uso. Ridefinirlo? [Yes/No] &lt;N&gt;: </translation>
    </message>
    <message>
        <source>Create annotative dimension style [Yes/No] &lt;Yes&gt;: </source>
        <translation>Creare stile di quota annotativo [Yes/No] &lt;Yes&gt;: </translation>
    </message>
    <message>
        <source>
Current dimension style: </source>
        <translation>
Stile di quota corrente: </translation>
    </message>
    <message>
        <source>Enter a dimension style option [ANnotative/Save/Restore/STatus/Variables/Apply/?] &lt;Restore&gt;: </source>
        <translation>Digitare un&apos;opzione dello stile di quota [ANnotative/Save/Restore/STatus/Variables/Apply/?] &lt;Restore&gt;: </translation>
    </message>
    <message>
        <source>Specify internal point or [Properties/Select objects/draW boundary/remove Boundaries/Advanced/DRaw order/Origin/ANnotative/hatch COlor/LAyer/Transparency]: </source>
        <translation>Specificare punto interno o [Properties/Select objects/draW boundary/remove Boundaries/Advanced/DRaw order/Origin/ANnotative/hatch COlor/LAyer/Transparency]: </translation>
    </message>
    <message>
        <source>
Too many curves cross here: choose a boundary set.</source>
        <translation>
Qui si incrociano troppe curve: scegliere un gruppo di contorni.</translation>
    </message>
    <message>
        <source>
Valid hatch boundary not found.</source>
        <translation>
Contorno di tratteggio valido non trovato.</translation>
    </message>
    <message>
        <source>
The objects make no closed boundary.</source>
        <translation>
Gli oggetti non formano un contorno chiuso.</translation>
    </message>
    <message>
        <source>Retain polyline boundary? [Yes/No] &lt;N&gt;: </source>
        <translation>Mantenere il contorno a polilinea? [Yes/No] &lt;N&gt;: </translation>
    </message>
    <message>
        <source>Specify start point: </source>
        <translation>Specificare punto iniziale: </translation>
    </message>
    <message>
        <source>Specify next point or [Close/Undo] &lt;Close&gt;: </source>
        <translation>Specificare punto successivo o [Close/Undo] &lt;Close&gt;: </translation>
    </message>
    <message>
        <source>Specify start point for new boundary or &lt;Accept&gt;: </source>
        <translation>Specificare punto iniziale di un nuovo contorno o &lt;accettare&gt;: </translation>
    </message>
    <message>
        <source>Select boundary to remove: </source>
        <translation>Selezionare contorno da rimuovere: </translation>
    </message>
    <message>
        <source>
Current hatch pattern:  </source>
        <translation>
Modello di tratteggio corrente:  </translation>
    </message>
    <message>
        <source>Enter an option [Boundary set/Island detection/Object type] &lt;eXit&gt;: </source>
        <translation>Digitare un&apos;opzione [Boundary set/Island detection/Object type] &lt;eXit&gt;: </translation>
    </message>
    <message>
        <source>Enter type of boundary object [Region/Polyline] &lt;%1&gt;: </source>
        <translation>Digitare tipo di oggetto contorno [Region/Polyline] &lt;%1&gt;: </translation>
    </message>
    <message>
        <source>Specify internal point or [Advanced options]: </source>
        <translation>Specificare punto interno o [Advanced options]: </translation>
    </message>
    <message>
        <source>
BOUNDARY created 1 region</source>
        <translation>
BOUNDARY ha creato 1 regione</translation>
    </message>
    <message>
        <source>
BOUNDARY created 1 polyline</source>
        <translation>
BOUNDARY ha creato 1 polilinea</translation>
    </message>
    <message>
        <source>
BOUNDARY created %1 regions</source>
        <translation>
BOUNDARY ha creato %1 regioni</translation>
    </message>
    <message>
        <source>
BOUNDARY created %1 polylines</source>
        <translation>
BOUNDARY ha creato %1 polilinee</translation>
    </message>
    <message>
        <source>Enter pattern(s) to list &lt;*&gt;: </source>
        <translation>Digitare modelli da elencare &lt;*&gt;: </translation>
    </message>
    <message>
        <source>Specify angle for crosshatch lines &lt;%1&gt;: </source>
        <translation>Specificare angolo delle linee di tratteggio &lt;%1&gt;: </translation>
    </message>
    <message>
        <source>Specify spacing between the lines &lt;%1&gt;: </source>
        <translation>Specificare spaziatura fra le linee &lt;%1&gt;: </translation>
    </message>
    <message>
        <source>Double hatch area? [Yes/No] &lt;%1&gt;: </source>
        <translation>Doppio tratteggio dell&apos;area? [Yes/No] &lt;%1&gt;: </translation>
    </message>
    <message>
        <source>Specify a scale for the pattern &lt;%1&gt;: </source>
        <translation>Specificare scala del modello &lt;%1&gt;: </translation>
    </message>
    <message>
        <source>Specify an angle for the pattern &lt;%1&gt;: </source>
        <translation>Specificare angolo del modello &lt;%1&gt;: </translation>
    </message>
    <message>
        <source>Enter new color or [. (for use current)] &lt;.&gt;: </source>
        <translation>Digitare nuovo colore o [. (for use current)] &lt;.&gt;: </translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no colour.</source>
        <translation>&quot;%1&quot; non è un colore.</translation>
    </message>
    <message>
        <source>Specify new layer name or [. (for use current)] &lt;.&gt;: </source>
        <translation>Specificare nome del nuovo layer o [. (for use current)] &lt;.&gt;: </translation>
    </message>
    <message>
        <source>Cannot find layer &quot;%1&quot;.</source>
        <translation>Impossibile trovare il layer &quot;%1&quot;.</translation>
    </message>
    <message>
        <source>Enter new transparency value (0-90) or [. (for use current)] &lt;.&gt;: </source>
        <translation>Digitare nuovo valore di trasparenza (0-90) o [. (for use current)] &lt;.&gt;: </translation>
    </message>
    <message>
        <source>Requires a whole number from 0 to 90.</source>
        <translation>Occorre un numero intero da 0 a 90.</translation>
    </message>
    <message>
        <source>Enter draw order [do Not assign/send to Back/bring to Front/send beHind boundary/bring in front of bounDary] &lt;send behind boundary&gt;: </source>
        <translation>Digitare ordine di disegno [do Not assign/send to Back/bring to Front/send beHind boundary/bring in front of bounDary] &lt;dietro il contorno&gt;: </translation>
    </message>
    <message>
        <source>[Use current origin/Set new origin] &lt;Use current origin&gt;: </source>
        <translation>[Use current origin/Set new origin] &lt;Use current origin&gt;: </translation>
    </message>
    <message>
        <source>Specify point: </source>
        <translation>Specificare punto: </translation>
    </message>
    <message>
        <source>Store as default origin? [Yes/No] &lt;N&gt;: </source>
        <translation>Salvare come origine di default? [Yes/No] &lt;N&gt;: </translation>
    </message>
    <message>
        <source>Unknown hatch pattern &quot;%1&quot;.</source>
        <translation>Modello di tratteggio sconosciuto &quot;%1&quot;.</translation>
    </message>
    <message>
        <source>Enter a pattern name or [?/Solid/User defined] &lt;%1&gt;: </source>
        <translation>Digitare nome di un modello o [?/Solid/User defined] &lt;%1&gt;: </translation>
    </message>
    <message>
        <source>Enter hatching style [Ignore/Outer/Normal] &lt;%1&gt;: </source>
        <translation>Digitare stile di tratteggio [Ignore/Outer/Normal] &lt;%1&gt;: </translation>
    </message>
    <message>
        <source>Specify candidate set for boundary [New/Everything] &lt;Everything&gt;: </source>
        <translation>Specificare gruppo di candidati per il contorno [New/Everything] &lt;Everything&gt;: </translation>
    </message>
    <message>
        <source>Do you want island detection? [Yes/No] &lt;Y&gt;: </source>
        <translation>Rilevare le isole? [Yes/No] &lt;Y&gt;: </translation>
    </message>
    <message>
        <source>Enter an option [Boundary set/Retain boundary/Island detection/Style/Associativity/Gap tolerance/separate Hatches] &lt;eXit&gt;: </source>
        <translation>Digitare un&apos;opzione [Boundary set/Retain boundary/Island detection/Style/Associativity/Gap tolerance/separate Hatches] &lt;eXit&gt;: </translation>
    </message>
    <message>
        <source>Retain derived boundaries? [Yes/No] &lt;N&gt;: </source>
        <translation>Mantenere i contorni derivati? [Yes/No] &lt;N&gt;: </translation>
    </message>
    <message>
        <source>Do you want associativity? [Yes/No] &lt;Y&gt;: </source>
        <translation>Usare l&apos;associatività? [Yes/No] &lt;Y&gt;: </translation>
    </message>
    <message>
        <source>Specify a boundary gap tolerance value &lt;%1&gt;: </source>
        <translation>Specificare tolleranza di apertura del contorno &lt;%1&gt;: </translation>
    </message>
    <message>
        <source>Create separate hatches? [Yes/No] &lt;N&gt;: </source>
        <translation>Creare tratteggi separati? [Yes/No] &lt;N&gt;: </translation>
    </message>
    <message>
        <source>Create annotative hatch [Yes/No] &lt;N&gt;: </source>
        <translation>Creare tratteggio annotativo [Yes/No] &lt;N&gt;: </translation>
    </message>
    <message>
        <source>Annotative hatches are not made.</source>
        <translation>I tratteggi annotativi non vengono creati.</translation>
    </message>
    <message>
        <source>
A boundary needs three points.</source>
        <translation>
Un contorno richiede tre punti.</translation>
    </message>
    <message>
        <source>
A drawing of this version keeps no draw order.</source>
        <translation>
Un disegno di questa versione non conserva l&apos;ordine di disegno.</translation>
    </message>
    <message>
        <source>The hatch spacing is too dense, or the dash size too small.</source>
        <translation>Il tratteggio è troppo fitto o i trattini sono troppo piccoli.</translation>
    </message>
    <message>
        <source>
No polyline can follow the boundary: it has pieces of ellipses or splines.</source>
        <translation>
Nessuna polilinea può seguire il contorno: ha parti di ellissi o spline.</translation>
    </message>
    <message>
        <source>Select hatch object: </source>
        <translation>Selezionare tratteggio: </translation>
    </message>
    <message>
        <source>Object selected is not a hatch.</source>
        <translation>L&apos;oggetto selezionato non è un tratteggio.</translation>
    </message>
    <message>
        <source>Enter hatch option [DIsassociate/Style/Properties/Origin/ANnotative/hatch COlor/LAyer/Transparency] &lt;Properties&gt;: </source>
        <translation>Digitare opzione di tratteggio [DIsassociate/Style/Properties/Origin/ANnotative/hatch COlor/LAyer/Transparency] &lt;Properties&gt;: </translation>
    </message>
    <message>
        <source>Specify first endpoint of text baseline: </source>
        <translation>Specificare primo estremo della linea di base del testo: </translation>
    </message>
    <message>
        <source>Specify start point of text: </source>
        <translation>Specificare punto iniziale del testo: </translation>
    </message>
    <message>
        <source>Specify center point of text: </source>
        <translation>Specificare punto centrale del testo: </translation>
    </message>
    <message>
        <source>Specify right endpoint of text baseline: </source>
        <translation>Specificare estremo destro della linea di base del testo: </translation>
    </message>
    <message>
        <source>Specify middle point of text: </source>
        <translation>Specificare punto medio del testo: </translation>
    </message>
    <message>
        <source>Specify top-left point of text: </source>
        <translation>Specificare punto in alto a sinistra del testo: </translation>
    </message>
    <message>
        <source>Specify top-center point of text: </source>
        <translation>Specificare punto in alto al centro del testo: </translation>
    </message>
    <message>
        <source>Specify top-right point of text: </source>
        <translation>Specificare punto in alto a destra del testo: </translation>
    </message>
    <message>
        <source>Specify middle-left point of text: </source>
        <translation>Specificare punto al medio a sinistra del testo: </translation>
    </message>
    <message>
        <source>Specify middle-center point of text: </source>
        <translation>Specificare punto al medio al centro del testo: </translation>
    </message>
    <message>
        <source>Specify middle-right point of text: </source>
        <translation>Specificare punto al medio a destra del testo: </translation>
    </message>
    <message>
        <source>Specify bottom-left point of text: </source>
        <translation>Specificare punto in basso a sinistra del testo: </translation>
    </message>
    <message>
        <source>Specify bottom-center point of text: </source>
        <translation>Specificare punto in basso al centro del testo: </translation>
    </message>
    <message>
        <source>Specify bottom-right point of text: </source>
        <translation>Specificare punto in basso a destra del testo: </translation>
    </message>
    <message>
        <source>Enter an option [%1]: </source>
        <translation>Digitare un&apos;opzione [%1]: </translation>
    </message>
    <message>
        <source>Enter next line of annotation text: </source>
        <translation>Digitare riga successiva del testo di annotazione: </translation>
    </message>
    <message>
        <source>A text, tolerance or block reference is needed.</source>
        <translation>Occorre un testo, una tolleranza o un riferimento di blocco.</translation>
    </message>
    <message>
        <source>Enter block name: </source>
        <translation>Digitare nome del blocco: </translation>
    </message>
    <message>
        <source>Cannot find block &quot;%1&quot;.</source>
        <translation>Impossibile trovare il blocco &quot;%1&quot;.</translation>
    </message>
    <message>
        <source>Enter scale factor &lt;1&gt;: </source>
        <translation>Digitare fattore di scala &lt;1&gt;: </translation>
    </message>
    <message>
        <source>Specify rotation angle &lt;0&gt;: </source>
        <translation>Specificare angolo di rotazione &lt;0&gt;: </translation>
    </message>
    <message>
        <source>Enter tolerance text: </source>
        <translation>Digitare testo della tolleranza: </translation>
    </message>
    <message>
        <source>Enter an annotation option [Tolerance/Copy/Block/None/Mtext] &lt;Mtext&gt;: </source>
        <translation>Digitare un&apos;opzione di annotazione [Tolerance/Copy/Block/None/Mtext] &lt;Mtext&gt;: </translation>
    </message>
    <message>
        <source>Select an object to copy: </source>
        <translation>Selezionare un oggetto da copiare: </translation>
    </message>
    <message>
        <source>Enter first line of annotation text: </source>
        <translation>Digitare prima riga del testo di annotazione: </translation>
    </message>
    <message>
        <source>Enter leader format option [Spline/STraight/Arrow/None] &lt;Exit&gt;: </source>
        <translation>Digitare opzione di formato della direttrice [Spline/STraight/Arrow/None] &lt;Exit&gt;: </translation>
    </message>
    <message>
        <source>Specify leader start point: </source>
        <translation>Specificare punto iniziale della direttrice: </translation>
    </message>
    <message>
        <source>Specify next point: </source>
        <translation>Specificare punto successivo: </translation>
    </message>
    <message>
        <source>Specify next point or [Annotation/Format/Undo] &lt;Annotation&gt;: </source>
        <translation>Specificare punto successivo o [Annotation/Format/Undo] &lt;Annotation&gt;: </translation>
    </message>
    <message>
        <source>Enter first line of annotation text or &lt;options&gt;: </source>
        <translation>Digitare prima riga del testo di annotazione o &lt;opzioni&gt;: </translation>
    </message>
    <message>
        <source>Specify first leader point: </source>
        <translation>Specificare primo punto della direttrice: </translation>
    </message>
    <message>
        <source>Specify text width &lt;0&gt;: </source>
        <translation>Specificare larghezza del testo &lt;0&gt;: </translation>
    </message>
    <message>
        <source>Enter first line of annotation text &lt;Mtext&gt;: </source>
        <translation>Digitare prima riga del testo di annotazione &lt;Mtext&gt;: </translation>
    </message>
    <message>
        <source>Leader start: </source>
        <translation>Inizio della direttrice: </translation>
    </message>
    <message>
        <source>To point: </source>
        <translation>Al punto: </translation>
    </message>
    <message>
        <source>Enter dimension text &lt;%1&gt;: </source>
        <translation>Digitare testo di quota &lt;%1&gt;: </translation>
    </message>
    <message>
        <source>Specify first extension line origin or &lt;select object&gt;: </source>
        <translation>Specificare origine della prima linea di estensione o &lt;selezionare oggetto&gt;: </translation>
    </message>
    <message>
        <source>Specify second extension line origin: </source>
        <translation>Specificare origine della seconda linea di estensione: </translation>
    </message>
    <message>
        <source>Select object to dimension: </source>
        <translation>Selezionare oggetto da quotare: </translation>
    </message>
    <message>
        <source>Object selected is not a line, arc, circle or piece of a polyline.</source>
        <translation>L&apos;oggetto selezionato non è una linea, un arco, un cerchio o un tratto di polilinea.</translation>
    </message>
    <message>
        <source>Specify angle of dimension line &lt;0&gt;: </source>
        <translation>Specificare angolo della linea di quota &lt;0&gt;: </translation>
    </message>
    <message>
        <source>Specify dimension line location or [%1]: </source>
        <translation>Specificare posizione della linea di quota o [%1]: </translation>
    </message>
    <message>
        <source>Specify dimension line location or [Mtext/Text/Angle]: </source>
        <translation>Specificare posizione della linea di quota o [Mtext/Text/Angle]: </translation>
    </message>
    <message>
        <source>Specify feature location: </source>
        <translation>Specificare posizione della funzione: </translation>
    </message>
    <message>
        <source>Specify leader endpoint or [Xdatum/Ydatum/Mtext/Text/Angle]: </source>
        <translation>Specificare estremo della direttrice o [Xdatum/Ydatum/Mtext/Text/Angle]: </translation>
    </message>
    <message>
        <source>The object is not parallel to the current UCS.</source>
        <translation>L&apos;oggetto non è parallelo all&apos;UCS corrente.</translation>
    </message>
    <message>
        <source>Select a leader type [Straight/sPline/None]</source>
        <translation>Selezionare un tipo di direttrice [Straight/sPline/None]</translation>
    </message>
    <message>
        <source>Use landing [Yes/No]</source>
        <translation>Usare linea di collegamento [Yes/No]</translation>
    </message>
    <message>
        <source>Specify fixed landing distance</source>
        <translation>Specificare distanza fissa della linea di collegamento</translation>
    </message>
    <message>
        <source>Select a content type [Block/Mtext/None]</source>
        <translation>Selezionare un tipo di contenuto [Block/Mtext/None]</translation>
    </message>
    <message>
        <source>Enter the maximum points for leader or [None] &lt;%1&gt;: </source>
        <translation>Digitare numero massimo di punti della direttrice o [None] &lt;%1&gt;: </translation>
    </message>
    <message>
        <source>A leader has two points at least.</source>
        <translation>Una direttrice ha almeno due punti.</translation>
    </message>
    <message>
        <source>Enter an option [Leader type/leader lAnding/Content type/Maxpoints/First angle/Second angle/eXit options] &lt;eXit options&gt;: </source>
        <translation>Digitare un&apos;opzione [Leader type/leader lAnding/Content type/Maxpoints/First angle/Second angle/eXit options] &lt;eXit options&gt;: </translation>
    </message>
    <message>
        <source>Enter first angle constraint &lt;%1&gt;: </source>
        <translation>Digitare vincolo del primo angolo &lt;%1&gt;: </translation>
    </message>
    <message>
        <source>Enter second angle constraint &lt;%1&gt;: </source>
        <translation>Digitare vincolo del secondo angolo &lt;%1&gt;: </translation>
    </message>
    <message>
        <source>Specify leader landing location: </source>
        <translation>Specificare posizione della linea di collegamento della direttrice: </translation>
    </message>
    <message>
        <source>Enter text: </source>
        <translation>Digitare testo: </translation>
    </message>
    <message>
        <source>Specify first corner of text: </source>
        <translation>Specificare primo angolo del testo: </translation>
    </message>
    <message>
        <source>Specify insertion point for block: </source>
        <translation>Specificare punto di inserimento del blocco: </translation>
    </message>
    <message>
        <source>Specify opposite corner: </source>
        <translation>Specificare angolo opposto: </translation>
    </message>
    <message>
        <source>Specify leader arrowhead location or [leader Landing first/Content first/Options] &lt;Options&gt;: </source>
        <translation>Specificare posizione della punta di freccia della direttrice o [leader Landing first/Content first/Options] &lt;Options&gt;: </translation>
    </message>
    <message>
        <source>A drawing of this version has no multileaders: they come with R2007.</source>
        <translation>Un disegno di questa versione non ha multidirettrici: esistono da R2007.</translation>
    </message>
    <message>
        <source>Specify leader arrowhead location: </source>
        <translation>Specificare posizione della punta di freccia della direttrice: </translation>
    </message>
    <message>
        <source>Object selected is not a multileader.</source>
        <translation>L&apos;oggetto selezionato non è una multidirettrice.</translation>
    </message>
    <message>
        <source>Select a multileader: </source>
        <translation>Selezionare una multidirettrice: </translation>
    </message>
    <message>
        <source>Specify leaders to remove or [Add leaders]: </source>
        <translation>Specificare direttrici da rimuovere o [Add leaders]: </translation>
    </message>
    <message>
        <source>Specify leader arrowhead location or [Remove leaders]: </source>
        <translation>Specificare posizione della punta di freccia della direttrice o [Remove leaders]: </translation>
    </message>
    <message>
        <source>
The multileader has no leader there.</source>
        <translation>
La multidirettrice non ha una direttrice in quel punto.</translation>
    </message>
    <message>
        <source>Enter an option [Distribute/specify Spacing/Use current spacing] &lt;Use current spacing&gt;: </source>
        <translation>Digitare un&apos;opzione [Distribute/specify Spacing/Use current spacing] &lt;Use current spacing&gt;: </translation>
    </message>
    <message>
        <source>Specify spacing</source>
        <translation>Specificare spaziatura</translation>
    </message>
    <message>
        <source>Select multileaders: </source>
        <translation>Selezionare multidirettrici: </translation>
    </message>
    <message>
        <source>No multileaders were selected.</source>
        <translation>Nessuna multidirettrice selezionata.</translation>
    </message>
    <message>
        <source>Specify first point or [Options]: </source>
        <translation>Specificare primo punto o [Options]: </translation>
    </message>
    <message>
        <source>Specify second point: </source>
        <translation>Specificare secondo punto: </translation>
    </message>
    <message>
        <source>Select multileader to align to or [Options]: </source>
        <translation>Selezionare multidirettrice a cui allineare o [Options]: </translation>
    </message>
    <message>
        <source>Specify direction: </source>
        <translation>Specificare direzione: </translation>
    </message>
    <message>
        <source>Specify angle of dimension text: </source>
        <translation>Specificare angolo del testo di quota: </translation>
    </message>
    <message>
        <source>
Dimension text = </source>
        <translation>
Testo di quota = </translation>
    </message>
    <message>
        <source>Enter justification [%1]</source>
        <translation>Digitare giustificazione [%1]</translation>
    </message>
    <message>
        <source>Enter line spacing type [At least/Exactly]</source>
        <translation>Digitare tipo di interlinea [At least/Exactly]</translation>
    </message>
    <message>
        <source>Enter line spacing factor or distance &lt;%1&gt;: </source>
        <translation>Digitare fattore o distanza di interlinea &lt;%1&gt;: </translation>
    </message>
    <message>
        <source>Lines are 0.25x to 4x of the usual distance apart.</source>
        <translation>Le righe distano da 0.25x a 4x della distanza abituale.</translation>
    </message>
    <message>
        <source>Specify total width</source>
        <translation>Specificare larghezza totale</translation>
    </message>
    <message>
        <source>Specify number of columns &lt;2&gt;: </source>
        <translation>Specificare numero di colonne &lt;2&gt;: </translation>
    </message>
    <message>
        <source>Specify gutter width</source>
        <translation>Specificare larghezza dello spazio fra colonne</translation>
    </message>
    <message>
        <source>So many columns do not fit into this width.</source>
        <translation>Tante colonne non stanno in questa larghezza.</translation>
    </message>
    <message>
        <source>Specify column width</source>
        <translation>Specificare larghezza delle colonne</translation>
    </message>
    <message>
        <source>Enter column type [Dynamic/Static/No columns]</source>
        <translation>Digitare tipo di colonne [Dynamic/Static/No columns]</translation>
    </message>
    <message>
        <source>A drawing of this version has no columns in texts: they come with R2007.</source>
        <translation>Un disegno di questa versione non ha colonne nei testi: esistono da R2007.</translation>
    </message>
    <message>
        <source>Specify column height</source>
        <translation>Specificare altezza delle colonne</translation>
    </message>
    <message>
        <source>Specify height</source>
        <translation>Specificare altezza</translation>
    </message>
    <message>
        <source>Specify rotation angle &lt;%1&gt;: </source>
        <translation>Specificare angolo di rotazione &lt;%1&gt;: </translation>
    </message>
    <message>
        <source>Specify width</source>
        <translation>Specificare larghezza</translation>
    </message>
    <message>
        <source>Specify first corner: </source>
        <translation>Specificare primo angolo: </translation>
    </message>
    <message>
        <source>Specify opposite corner or [Height/Justify/Line spacing/Rotation/Style/Width/Columns]: </source>
        <translation>Specificare angolo opposto o [Height/Justify/Line spacing/Rotation/Style/Width/Columns]: </translation>
    </message>
    <message>
        <source>
Current text style:  &quot;%1&quot;  Text height:  %2</source>
        <translation>
Stile di testo corrente:  &quot;%1&quot;  Altezza testo:  %2</translation>
    </message>
    <message>
        <source>MText: </source>
        <translation>TestoM: </translation>
    </message>
    <message>
        <source>No texts were selected.</source>
        <translation>Nessun testo selezionato.</translation>
    </message>
    <message>
        <source>
%1 texts became one paragraph.</source>
        <translation>
%1 testi sono diventati un paragrafo.</translation>
    </message>
    <message>
        <source>Object selected is not a circle or arc.</source>
        <translation>L&apos;oggetto selezionato non è un cerchio o un arco.</translation>
    </message>
    <message>
        <source>Specify dimension line location or leader length for text: </source>
        <translation>Specificare posizione della linea di quota o lunghezza della direttrice per il testo: </translation>
    </message>
    <message>
        <source>A drawing of this version has no jogged dimensions of radii: they come with R2004.</source>
        <translation>Un disegno di questa versione non ha quote di raggio ridotte: esistono da R2004.</translation>
    </message>
    <message>
        <source>Select arc or circle: </source>
        <translation>Selezionare arco o cerchio: </translation>
    </message>
    <message>
        <source>Specify center location override: </source>
        <translation>Specificare posizione sostitutiva del centro: </translation>
    </message>
    <message>
        <source>Specify jog location: </source>
        <translation>Specificare posizione dello spezzamento: </translation>
    </message>
    <message>
        <source>DIMCEN is 0: there is no centre mark.</source>
        <translation>DIMCEN è 0: non c&apos;è contrassegno del centro.</translation>
    </message>
    <message>
        <source>Enter name of text style</source>
        <translation>Digitare nome dello stile di testo</translation>
    </message>
    <message>
        <source>Invalid style name.</source>
        <translation>Nome di stile non valido.</translation>
    </message>
    <message>
        <source>Specify full font name or font filename (TTF or SHX) &lt;%1&gt;: </source>
        <translation>Specificare nome completo o file del font (TTF o SHX) &lt;%1&gt;: </translation>
    </message>
    <message>
        <source>Specify height of text</source>
        <translation>Specificare altezza del testo</translation>
    </message>
    <message>
        <source>Specify width factor</source>
        <translation>Specificare fattore di larghezza</translation>
    </message>
    <message>
        <source>Specify obliquing angle &lt;%1&gt;: </source>
        <translation>Specificare angolo di inclinazione &lt;%1&gt;: </translation>
    </message>
    <message>
        <source>The obliquing angle is from -85 to 85 degrees.</source>
        <translation>L&apos;angolo di inclinazione va da -85 a 85 gradi.</translation>
    </message>
    <message>
        <source>Display text backwards?</source>
        <translation>Visualizzare il testo da destra a sinistra?</translation>
    </message>
    <message>
        <source>Display text upside-down?</source>
        <translation>Visualizzare il testo capovolto?</translation>
    </message>
    <message>
        <source>
Existing style.</source>
        <translation>
Stile esistente.</translation>
    </message>
    <message>
        <source>
New style.</source>
        <translation>
Nuovo stile.</translation>
    </message>
    <message>
        <source>
&quot;%1&quot; is now the current text style.</source>
        <translation>
&quot;%1&quot; è ora lo stile di testo corrente.</translation>
    </message>
    <message>
        <source>Specify start point of text or [Justify/Style]: </source>
        <translation>Specificare punto iniziale del testo o [Justify/Style]: </translation>
    </message>
    <message>
        <source>There is no text to go on below.</source>
        <translation>Non c&apos;è un testo sotto cui continuare.</translation>
    </message>
    <message>
        <source>Specify second endpoint of text baseline: </source>
        <translation>Specificare secondo estremo della linea di base del testo: </translation>
    </message>
    <message>
        <source>Specify height &lt;%1&gt;: </source>
        <translation>Specificare altezza &lt;%1&gt;: </translation>
    </message>
    <message>
        <source>Specify rotation angle of text &lt;0&gt;: </source>
        <translation>Specificare angolo di rotazione del testo &lt;0&gt;: </translation>
    </message>
    <message>
        <source>The two endpoints are one point.</source>
        <translation>I due estremi coincidono.</translation>
    </message>
    <message>
        <source>
Style name: &quot;%1&quot;  Font files: %2  Height: %3  Width factor: %4</source>
        <translation>
Nome stile: &quot;%1&quot;  File di font: %2  Altezza: %3  Fattore di larghezza: %4</translation>
    </message>
    <message>
        <source>%1 or [?] &lt;%2&gt;: </source>
        <translation>%1 o [?] &lt;%2&gt;: </translation>
    </message>
    <message>
        <source>Enter text style(s) to list &lt;*&gt;: </source>
        <translation>Digitare stili di testo da elencare &lt;*&gt;: </translation>
    </message>
    <message>
        <source>Enter style name</source>
        <translation>Digitare nome dello stile</translation>
    </message>
    <message>
        <source>Cannot find text style &quot;%1&quot;.</source>
        <translation>Impossibile trovare lo stile di testo &quot;%1&quot;.</translation>
    </message>
    <message>
        <source>
Cannot find file &quot;%1&quot; of reference &quot;%2&quot;.</source>
        <translation>
Impossibile trovare il file &quot;%1&quot; del riferimento &quot;%2&quot;.</translation>
    </message>
    <message>
        <source>
Warning: &quot;%1&quot; shows this drawing, which is left out there.</source>
        <translation>
Avviso: &quot;%1&quot; mostra questo disegno, che là viene omesso.</translation>
    </message>
    <message>
        <source>
&quot;%1&quot; loaded.</source>
        <translation>
&quot;%1&quot; caricato.</translation>
    </message>
    <message>
        <source>Cannot find file &quot;%1&quot; of reference &quot;%2&quot;.</source>
        <translation>Impossibile trovare il file &quot;%1&quot; del riferimento &quot;%2&quot;.</translation>
    </message>
    <message>
        <source>
&quot;%1&quot; is a block of this drawing now.</source>
        <translation>
&quot;%1&quot; è ora un blocco di questo disegno.</translation>
    </message>
    <message>
        <source> %1 of its records could not be taken over.</source>
        <translation> %1 dei suoi record non sono stati acquisiti.</translation>
    </message>
    <message>
        <source>Enter an option [?/Name/Select] &lt;Select&gt;: </source>
        <translation>Digitare un&apos;opzione [?/Name/Select] &lt;Select&gt;: </translation>
    </message>
    <message>
        <source>
Blocks with attributes:
  </source>
        <translation>
Blocchi con attributi:
  </translation>
    </message>
    <message>
        <source>Enter name of block to synchronize or [?]: </source>
        <translation>Digitare nome del blocco da sincronizzare o [?]: </translation>
    </message>
    <message>
        <source>Select a block: </source>
        <translation>Selezionare un blocco: </translation>
    </message>
    <message>
        <source>That is no block reference.</source>
        <translation>Questo non è un riferimento di blocco.</translation>
    </message>
    <message>
        <source>ATTSYNC block %1? [Yes/No] &lt;Yes&gt;: </source>
        <translation>Applicare ATTSYNC al blocco %1? [Yes/No] &lt;Yes&gt;: </translation>
    </message>
    <message>
        <source>Block &quot;%1&quot; not found.</source>
        <translation>Blocco &quot;%1&quot; non trovato.</translation>
    </message>
    <message>
        <source>
%1 block references were synchronized.</source>
        <translation>
%1 riferimenti di blocco sincronizzati.</translation>
    </message>
    <message>
        <source>Enter block name specification &lt;*&gt;: </source>
        <translation>Digitare filtro dei nomi di blocco &lt;*&gt;: </translation>
    </message>
    <message>
        <source>Enter attribute tag specification &lt;*&gt;: </source>
        <translation>Digitare filtro delle etichette di attributo &lt;*&gt;: </translation>
    </message>
    <message>
        <source>Enter attribute value specification &lt;*&gt;: </source>
        <translation>Digitare filtro dei valori di attributo &lt;*&gt;: </translation>
    </message>
    <message>
        <source>
%1 attributes selected.</source>
        <translation>
%1 attributi selezionati.</translation>
    </message>
    <message>
        <source>Enter string to change: </source>
        <translation>Digitare stringa da cambiare: </translation>
    </message>
    <message>
        <source>Enter new string: </source>
        <translation>Digitare nuova stringa: </translation>
    </message>
    <message>
        <source>Enter type of value modification [Change/Replace] &lt;R&gt;: </source>
        <translation>Digitare tipo di modifica del valore [Change/Replace] &lt;R&gt;: </translation>
    </message>
    <message>
        <source>Enter new attribute value: </source>
        <translation>Digitare nuovo valore dell&apos;attributo: </translation>
    </message>
    <message>
        <source>Specify new height &lt;%1&gt;: </source>
        <translation>Specificare nuova altezza &lt;%1&gt;: </translation>
    </message>
    <message>
        <source>Enter new layer name: </source>
        <translation>Digitare nome del nuovo layer: </translation>
    </message>
    <message>
        <source>Enter an option [Value/Height/Layer/Next] &lt;N&gt;: </source>
        <translation>Digitare un&apos;opzione [Value/Height/Layer/Next] &lt;N&gt;: </translation>
    </message>
    <message>
        <source>Edit attributes one at a time? [Yes/No] &lt;Y&gt;: </source>
        <translation>Modificare gli attributi uno alla volta? [Yes/No] &lt;Y&gt;: </translation>
    </message>
    <message>
        <source>Edit only attributes visible on screen? [Yes/No] &lt;Y&gt;: </source>
        <translation>Modificare solo gli attributi visibili sullo schermo? [Yes/No] &lt;Y&gt;: </translation>
    </message>
    <message>
        <source>%1, . for none &lt;%2&gt;: </source>
        <translation>%1, . per nessuno &lt;%2&gt;: </translation>
    </message>
    <message>
        <source>The block has no attributes.</source>
        <translation>Il blocco non ha attributi.</translation>
    </message>
    <message>
        <source>Enter number or tag of attribute or [?] &lt;exit&gt;: </source>
        <translation>Digitare numero o etichetta dell&apos;attributo o [?] &lt;esci&gt;: </translation>
    </message>
    <message>
        <source>The value of %1 is constant.</source>
        <translation>Il valore di %1 è costante.</translation>
    </message>
    <message>
        <source>There is no attribute &quot;%1&quot;.</source>
        <translation>Non c&apos;è nessun attributo &quot;%1&quot;.</translation>
    </message>
    <message>
        <source>
Defined blocks.</source>
        <translation>
Blocchi definiti.</translation>
    </message>
    <message>
        <source>
%1 user blocks.</source>
        <translation>
%1 blocchi utente.</translation>
    </message>
    <message>
        <source>Enter block name or [?]: </source>
        <translation>Digitare nome del blocco o [?]: </translation>
    </message>
    <message>
        <source>Enter block(s) to list &lt;*&gt;: </source>
        <translation>Digitare blocchi da elencare &lt;*&gt;: </translation>
    </message>
    <message>
        <source>&quot;%1&quot; cannot be the name of a block.</source>
        <translation>&quot;%1&quot; non può essere il nome di un blocco.</translation>
    </message>
    <message>
        <source>Block &quot;%1&quot; cannot be redefined.</source>
        <translation>Il blocco &quot;%1&quot; non può essere ridefinito.</translation>
    </message>
    <message>
        <source>Block &quot;%1&quot; already exists. Redefine it? [Yes/No] &lt;N&gt;: </source>
        <translation>Il blocco &quot;%1&quot; esiste già. Ridefinirlo? [Yes/No] &lt;N&gt;: </translation>
    </message>
    <message>
        <source>Block &quot;%1&quot; would show itself.</source>
        <translation>Il blocco &quot;%1&quot; mostrerebbe se stesso.</translation>
    </message>
    <message>
        <source>Specify insertion base point or [Annotative]: </source>
        <translation>Specificare punto base di inserimento o [Annotative]: </translation>
    </message>
    <message>
        <source>
Blocks are made without annotation scales.</source>
        <translation>
I blocchi vengono creati senza scale di annotazione.</translation>
    </message>
    <message>
        <source>Create annotative block? [Yes/No] &lt;N&gt;: </source>
        <translation>Creare blocco annotativo? [Yes/No] &lt;N&gt;: </translation>
    </message>
    <message>
        <source>Enter base point &lt;%1&gt;: </source>
        <translation>Digitare punto base &lt;%1&gt;: </translation>
    </message>
    <message>
        <source>
%1 field(s) found
%1 field(s) updated</source>
        <translation>
%1 campo/i trovato/i
%1 campo/i aggiornato/i</translation>
    </message>
    <message>
        <source>Specify first point: </source>
        <translation>Specificare primo punto: </translation>
    </message>
    <message>
        <source>Specify next point or [Undo]: </source>
        <translation>Specificare punto successivo o [Undo]: </translation>
    </message>
    <message>
        <source>Select polyline: </source>
        <translation>Selezionare polilinea: </translation>
    </message>
    <message>
        <source>Specify clipping boundary or select invert option: [Select polyline/Polygonal/Rectangular/Invert clip] &lt;Rectangular&gt;: </source>
        <translation>Specificare contorno di ritaglio o scegliere l&apos;opzione di inversione: [Select polyline/Polygonal/Rectangular/Invert clip] &lt;Rectangular&gt;: </translation>
    </message>
    <message>
        <source>
Objects inside boundary will be hidden.</source>
        <translation>
Gli oggetti interni al contorno verranno nascosti.</translation>
    </message>
    <message>
        <source>
Objects outside boundary will be hidden.</source>
        <translation>
Gli oggetti esterni al contorno verranno nascosti.</translation>
    </message>
    <message>
        <source>That encloses nothing.</source>
        <translation>Questo non racchiude nulla.</translation>
    </message>
    <message>
        <source>
%1 could not be clipped.</source>
        <translation>
%1 non sono stati ritagliati.</translation>
    </message>
    <message>
        <source>Delete old boundary(s)? [Yes/No] &lt;Yes&gt;: </source>
        <translation>Eliminare i vecchi contorni? [Yes/No] &lt;Yes&gt;: </translation>
    </message>
    <message>
        <source>No block references were chosen.</source>
        <translation>Nessun riferimento di blocco scelto.</translation>
    </message>
    <message>
        <source>Enter clipping option [ON/OFF/Delete/generate Polyline/New boundary] &lt;New&gt;: </source>
        <translation>Digitare opzione di ritaglio [ON/OFF/Delete/generate Polyline/New boundary] &lt;New&gt;: </translation>
    </message>
    <message>
        <source>Nothing of that can be copied.</source>
        <translation>Nulla di questo può essere copiato.</translation>
    </message>
    <message>
        <source>Specify base point: </source>
        <translation>Specificare punto base: </translation>
    </message>
    <message>
        <source>The clipboard is empty.</source>
        <translation>Gli Appunti sono vuoti.</translation>
    </message>
    <message>
        <source>
%1 could not be pasted.</source>
        <translation>
%1 non sono stati incollati.</translation>
    </message>
    <message>
        <source>Specify insertion point: </source>
        <translation>Specificare punto di inserimento: </translation>
    </message>
    <message>
        <source>
Defined groups.                            Selectable</source>
        <translation>
Gruppi definiti.                           Selezionabile</translation>
    </message>
    <message>
        <source>Enter group name(s) to list &lt;*&gt;: </source>
        <translation>Digitare nomi di gruppi da elencare &lt;*&gt;: </translation>
    </message>
    <message>
        <source>Enter a group name or [?]: </source>
        <translation>Digitare nome di un gruppo o [?]: </translation>
    </message>
    <message>
        <source>Group &quot;%1&quot; does not exist.</source>
        <translation>Il gruppo &quot;%1&quot; non esiste.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; cannot be the name of a group.</source>
        <translation>&quot;%1&quot; non può essere il nome di un gruppo.</translation>
    </message>
    <message>
        <source>Group &quot;%1&quot; already exists.</source>
        <translation>Il gruppo &quot;%1&quot; esiste già.</translation>
    </message>
    <message>
        <source>A group needs an entity.</source>
        <translation>Un gruppo richiede un&apos;entità.</translation>
    </message>
    <message>
        <source>A drawing of this version has no groups.</source>
        <translation>Un disegno di questa versione non ha gruppi.</translation>
    </message>
    <message>
        <source>Enter a group description: </source>
        <translation>Digitare descrizione del gruppo: </translation>
    </message>
    <message>
        <source>Select objects: </source>
        <translation>Selezionare oggetti: </translation>
    </message>
    <message>
        <source>Enter a new name for group or [?]: </source>
        <translation>Digitare nuovo nome del gruppo o [?]: </translation>
    </message>
    <message>
        <source>Enter position number of the object to reorder %1 or [Reverse]: </source>
        <translation>Digitare numero di posizione dell&apos;oggetto da riordinare %1 o [Reverse]: </translation>
    </message>
    <message>
        <source>Enter new position number for the object %1: </source>
        <translation>Digitare nuovo numero di posizione dell&apos;oggetto %1: </translation>
    </message>
    <message>
        <source>Enter number of objects to reorder &lt;1&gt;: </source>
        <translation>Digitare numero di oggetti da riordinare &lt;1&gt;: </translation>
    </message>
    <message>
        <source>Requires a number from 0 to %1.</source>
        <translation>Occorre un numero da 0 a %1.</translation>
    </message>
    <message>
        <source>Is group selectable? [Yes/No] &lt;Y&gt;: </source>
        <translation>Il gruppo è selezionabile? [Yes/No] &lt;Y&gt;: </translation>
    </message>
    <message>
        <source>Enter a group option [?/Order/Add/Remove/Explode/REName/Selectable/Create] &lt;Create&gt;: </source>
        <translation>Digitare un&apos;opzione di gruppo [?/Order/Add/Remove/Explode/REName/Selectable/Create] &lt;Create&gt;: </translation>
    </message>
    <message>
        <source>
%1 of its entities became ones that a drawing of this version has.</source>
        <translation>
%1 delle sue entità sono diventate entità che un disegno di questa versione possiede.</translation>
    </message>
    <message>
        <source>
%1 of its entities could not be taken over.</source>
        <translation>
%1 delle sue entità non sono state acquisite.</translation>
    </message>
    <message>
        <source>Cannot find block or file &quot;%1&quot;.</source>
        <translation>Impossibile trovare il blocco o file &quot;%1&quot;.</translation>
    </message>
    <message>
        <source>Enter block name or [?] &lt;%1&gt;: </source>
        <translation>Digitare nome del blocco o [?] &lt;%1&gt;: </translation>
    </message>
    <message>
        <source>Specify scale factor for XYZ axes &lt;1&gt;: </source>
        <translation>Specificare fattore di scala per gli assi XYZ &lt;1&gt;: </translation>
    </message>
    <message>
        <source>Specify %1 scale factor &lt;1&gt;: </source>
        <translation>Specificare fattore di scala %1 &lt;1&gt;: </translation>
    </message>
    <message>
        <source>Enter %1 scale factor &lt;use X scale factor&gt;: </source>
        <translation>Digitare fattore di scala %1 &lt;usare fattore di scala X&gt;: </translation>
    </message>
    <message>
        <source>Enter X scale factor or [Corner/XYZ] &lt;1&gt;: </source>
        <translation>Digitare fattore di scala X o [Corner/XYZ] &lt;1&gt;: </translation>
    </message>
    <message>
        <source>Value must be nonzero.</source>
        <translation>Il valore deve essere diverso da zero.</translation>
    </message>
    <message>
        <source>Specify X scale factor &lt;1&gt;: </source>
        <translation>Specificare fattore di scala X &lt;1&gt;: </translation>
    </message>
    <message>
        <source>Specify insertion point or [Scale/X/Y/Z/Rotate]: </source>
        <translation>Specificare punto di inserimento o [Scale/X/Y/Z/Rotate]: </translation>
    </message>
    <message>
        <source>Specify scale factor &lt;1&gt;: </source>
        <translation>Specificare fattore di scala &lt;1&gt;: </translation>
    </message>
    <message>
        <source>Cannot find file &quot;%1&quot;.</source>
        <translation>Impossibile trovare il file &quot;%1&quot;.</translation>
    </message>
    <message>
        <source>The drawing cannot refer to itself.</source>
        <translation>Il disegno non può fare riferimento a se stesso.</translation>
    </message>
    <message>
        <source>The name &quot;%1&quot; is a block&apos;s already.</source>
        <translation>Il nome &quot;%1&quot; è già di un blocco.</translation>
    </message>
    <message>
        <source>The name &quot;%1&quot; cannot be used.</source>
        <translation>Il nome &quot;%1&quot; non può essere usato.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no drawing.</source>
        <translation>&quot;%1&quot; non è un disegno.</translation>
    </message>
    <message>
        <source>
Xref &quot;%1&quot; has already been defined.
Using existing definition.</source>
        <translation>
L&apos;Xrif &quot;%1&quot; è già definito.
Viene usata la definizione esistente.</translation>
    </message>
    <message>
        <source>
%1 Xref &quot;%2&quot;: %3</source>
        <translation>
%1 Xrif &quot;%2&quot;: %3</translation>
    </message>
    <message>
        <source>
No matching references found.</source>
        <translation>
Nessun riferimento corrispondente trovato.</translation>
    </message>
    <message>
        <source>
&quot;%1&quot; was not detached: block &quot;%2&quot; holds it.</source>
        <translation>
&quot;%1&quot; non è stato staccato: lo contiene il blocco &quot;%2&quot;.</translation>
    </message>
    <message>
        <source>
&quot;%1&quot; was not detached.</source>
        <translation>
&quot;%1&quot; non è stato staccato.</translation>
    </message>
    <message>
        <source>
&quot;%1&quot; detached.</source>
        <translation>
&quot;%1&quot; staccato.</translation>
    </message>
    <message>
        <source>
&quot;%1&quot; unloaded.</source>
        <translation>
&quot;%1&quot; scaricato.</translation>
    </message>
    <message>
        <source>Enter xref name(s) to list &lt;*&gt;: </source>
        <translation>Digitare nomi di xrif da elencare &lt;*&gt;: </translation>
    </message>
    <message>
        <source>Enter xref name(s) to bind: </source>
        <translation>Digitare nomi di xrif da unire: </translation>
    </message>
    <message>
        <source>Enter xref name(s) to detach: </source>
        <translation>Digitare nomi di xrif da staccare: </translation>
    </message>
    <message>
        <source>Enter xref name(s) to unload: </source>
        <translation>Digitare nomi di xrif da scaricare: </translation>
    </message>
    <message>
        <source>Enter xref name(s) to reload: </source>
        <translation>Digitare nomi di xrif da ricaricare: </translation>
    </message>
    <message>
        <source>Enter xref name(s) to edit path: </source>
        <translation>Digitare nomi di xrif di cui modificare il percorso: </translation>
    </message>
    <message>
        <source>
Xref name: %1
Old path: %2</source>
        <translation>
Nome xrif: %1
Vecchio percorso: %2</translation>
    </message>
    <message>
        <source>Enter new path: </source>
        <translation>Digitare nuovo percorso: </translation>
    </message>
    <message>
        <source>Enter name of file to attach: </source>
        <translation>Digitare nome del file da attaccare: </translation>
    </message>
    <message>
        <source>Enter an option [?/Bind/Detach/Path/Unload/Reload/Overlay/Attach] &lt;Attach&gt;: </source>
        <translation>Digitare un&apos;opzione [?/Bind/Detach/Path/Unload/Reload/Overlay/Attach] &lt;Attach&gt;: </translation>
    </message>
    <message>
        <source>
Nothing to write.</source>
        <translation>
Nulla da scrivere.</translation>
    </message>
    <message>
        <source>
%1 was written as DXF text.</source>
        <translation>
%1 è stato scritto come testo DXF.</translation>
    </message>
    <message>
        <source>
%1 was written.</source>
        <translation>
%1 è stato scritto.</translation>
    </message>
    <message>
        <source>Enter name of output file: </source>
        <translation>Digitare nome del file di output: </translation>
    </message>
    <message>
        <source>Enter name of existing block, [= (same name)/* (whole drawing)] &lt;choose entities&gt;: </source>
        <translation>Digitare nome di un blocco esistente, [= (same name)/* (whole drawing)] &lt;scegliere entità&gt;: </translation>
    </message>
    <message>
        <source>
Block &quot;%1&quot; not found.</source>
        <translation>
Blocco &quot;%1&quot; non trovato.</translation>
    </message>
    <message>
        <source>Specify insertion base point: </source>
        <translation>Specificare punto base di inserimento: </translation>
    </message>
    <message>
        <source>
1 was on a locked layer.</source>
        <translation>
1 era su un layer bloccato.</translation>
    </message>
    <message>
        <source>
%1 were on a locked layer.</source>
        <translation>
%1 erano su un layer bloccato.</translation>
    </message>
    <message>
        <source>The numbers are too large.</source>
        <translation>I numeri sono troppo grandi.</translation>
    </message>
    <message>
        <source>
%1 could not be changed.</source>
        <translation>
%1 non sono stati modificati.</translation>
    </message>
    <message>
        <source>
%1 could not be mirrored.</source>
        <translation>
%1 non sono stati specchiati.</translation>
    </message>
    <message>
        <source>
%1 could not be copied.</source>
        <translation>
%1 non sono stati copiati.</translation>
    </message>
    <message>
        <source>
Linetype &quot;%1&quot; loaded.</source>
        <translation>
Tipo di linea &quot;%1&quot; caricato.</translation>
    </message>
    <message>
        <source>Specify displacement &lt;%1&gt;: </source>
        <translation>Specificare spostamento &lt;%1&gt;: </translation>
    </message>
    <message>
        <source>Specify base point or [Displacement] &lt;Displacement&gt;: </source>
        <translation>Specificare punto base o [Displacement] &lt;Displacement&gt;: </translation>
    </message>
    <message>
        <source>Specify second point or &lt;use first point as displacement&gt;: </source>
        <translation>Specificare secondo punto o &lt;usare primo punto come spostamento&gt;: </translation>
    </message>
    <message>
        <source>Cannot find %1 &quot;%2&quot;.</source>
        <translation>Impossibile trovare %1 &quot;%2&quot;.</translation>
    </message>
    <message>
        <source>%1 already exists. Replace it? [Yes/No] &lt;No&gt;: </source>
        <translation>%1 esiste già. Sostituirlo? [Yes/No] &lt;No&gt;: </translation>
    </message>
    <message>
        <source>Specify the reference angle &lt;%1&gt;: </source>
        <translation>Specificare angolo di riferimento &lt;%1&gt;: </translation>
    </message>
    <message>
        <source>Specify the new angle or [Points] &lt;%1&gt;: </source>
        <translation>Specificare nuovo angolo o [Points] &lt;%1&gt;: </translation>
    </message>
    <message>
        <source>Specify reference length &lt;%1&gt;: </source>
        <translation>Specificare lunghezza di riferimento &lt;%1&gt;: </translation>
    </message>
    <message>
        <source>Specify new length or [Points] &lt;%1&gt;: </source>
        <translation>Specificare nuova lunghezza o [Points] &lt;%1&gt;: </translation>
    </message>
    <message>
        <source>(ADD mode) </source>
        <translation>(modo AGGIUNGI) </translation>
    </message>
    <message>
        <source>(SUBTRACT mode) </source>
        <translation>(modo SOTTRAI) </translation>
    </message>
    <message>
        <source>
Area = %1, %2 = %3</source>
        <translation>
Area = %1, %2 = %3</translation>
    </message>
    <message>
        <source>
Total area = %1</source>
        <translation>
Area totale = %1</translation>
    </message>
    <message>
        <source>
Selected object does not have an area.</source>
        <translation>
L&apos;oggetto selezionato non ha un&apos;area.</translation>
    </message>
    <message>
        <source>%1Specify next point or [Undo]: </source>
        <translation>%1Specificare punto successivo o [Undo]: </translation>
    </message>
    <message>
        <source>%1Specify next point or [Undo/Total] &lt;Total&gt;: </source>
        <translation>%1Specificare punto successivo o [Undo/Total] &lt;Total&gt;: </translation>
    </message>
    <message>
        <source>Specify first corner point or [Object/Add area/Subtract area] &lt;Object&gt;: </source>
        <translation>Specificare primo vertice o [Object/Add area/Subtract area] &lt;Object&gt;: </translation>
    </message>
    <message>
        <source>Specify first corner point or [Object/Subtract area]: </source>
        <translation>Specificare primo vertice o [Object/Subtract area]: </translation>
    </message>
    <message>
        <source>Specify first corner point or [Object/Add area]: </source>
        <translation>Specificare primo vertice o [Object/Add area]: </translation>
    </message>
    <message>
        <source>Select object: </source>
        <translation>Selezionare oggetto: </translation>
    </message>
    <message>
        <source>Specify second break point or [First point]: </source>
        <translation>Specificare secondo punto di interruzione o [First point]: </translation>
    </message>
    <message>
        <source>Specify first break point: </source>
        <translation>Specificare primo punto di interruzione: </translation>
    </message>
    <message>
        <source>Specify second break point: </source>
        <translation>Specificare secondo punto di interruzione: </translation>
    </message>
    <message>
        <source>A whole circle or ellipse cannot be broken at one point.</source>
        <translation>Un cerchio o un&apos;ellisse interi non si possono spezzare in un punto.</translation>
    </message>
    <message>
        <source>The object cannot be broken there.</source>
        <translation>L&apos;oggetto non può essere spezzato in quel punto.</translation>
    </message>
    <message>
        <source>The lines are parallel.</source>
        <translation>Le linee sono parallele.</translation>
    </message>
    <message>
        <source>The lines are one.</source>
        <translation>Le linee coincidono.</translation>
    </message>
    <message>
        <source>The angle leads to no cut.</source>
        <translation>L&apos;angolo non porta a nessun taglio.</translation>
    </message>
    <message>
        <source>Radius is too large.</source>
        <translation>Il raggio è troppo grande.</translation>
    </message>
    <message>
        <source>Distance is too large.</source>
        <translation>La distanza è troppo grande.</translation>
    </message>
    <message>
        <source>There is no arc of that radius.</source>
        <translation>Non c&apos;è nessun arco di quel raggio.</translation>
    </message>
    <message>
        <source>They do not lie in one plane.</source>
        <translation>Non giacciono su un unico piano.</translation>
    </message>
    <message>
        <source>Two different ones are needed.</source>
        <translation>Ne occorrono due diversi.</translation>
    </message>
    <message>
        <source>Only straight lines can be chamfered.</source>
        <translation>Si possono cimare solo linee rette.</translation>
    </message>
    <message>
        <source>Enter Trim mode option [Trim/No trim]</source>
        <translation>Digitare opzione del modo Taglia [Trim/No trim]</translation>
    </message>
    <message>
        <source>Specify first chamfer distance</source>
        <translation>Specificare prima distanza di cimatura</translation>
    </message>
    <message>
        <source>Specify second chamfer distance</source>
        <translation>Specificare seconda distanza di cimatura</translation>
    </message>
    <message>
        <source>Specify chamfer length on the first line</source>
        <translation>Specificare lunghezza di cimatura sulla prima linea</translation>
    </message>
    <message>
        <source>Specify chamfer angle from the first line &lt;%1&gt;: </source>
        <translation>Specificare angolo di cimatura dalla prima linea &lt;%1&gt;: </translation>
    </message>
    <message>
        <source>Specify fillet radius</source>
        <translation>Specificare raggio di raccordo</translation>
    </message>
    <message>
        <source>Enter trim method [Distance/Angle]</source>
        <translation>Digitare metodo di taglio [Distance/Angle]</translation>
    </message>
    <message>
        <source>Select 2D polyline or [Radius]: </source>
        <translation>Selezionare polilinea 2D o [Radius]: </translation>
    </message>
    <message>
        <source>Select 2D polyline or [Distance/Angle/mEthod]: </source>
        <translation>Selezionare polilinea 2D o [Distance/Angle/mEthod]: </translation>
    </message>
    <message>
        <source>Requires a flat polyline.</source>
        <translation>Occorre una polilinea piana.</translation>
    </message>
    <message>
        <source>
%1 lines were filleted</source>
        <translation>
%1 linee raccordate</translation>
    </message>
    <message>
        <source>
%1 lines were chamfered</source>
        <translation>
%1 linee cimate</translation>
    </message>
    <message>
        <source>
%1 were too short</source>
        <translation>
%1 erano troppo corte</translation>
    </message>
    <message>
        <source>
%1 were parallel</source>
        <translation>
%1 erano parallele</translation>
    </message>
    <message>
        <source>Requires a line, arc, circle or straight stretch of a polyline in the user&apos;s plane.</source>
        <translation>Occorre una linea, un arco, un cerchio o un tratto retto di polilinea nel piano dell&apos;utente.</translation>
    </message>
    <message>
        <source>Select second object or [Radius]: </source>
        <translation>Selezionare secondo oggetto o [Radius]: </translation>
    </message>
    <message>
        <source>Select second line or [Distance/Angle/Method]: </source>
        <translation>Selezionare seconda linea o [Distance/Angle/Method]: </translation>
    </message>
    <message>
        <source>Select first object or [Undo/Polyline/Radius/Trim/Multiple]: </source>
        <translation>Selezionare primo oggetto o [Undo/Polyline/Radius/Trim/Multiple]: </translation>
    </message>
    <message>
        <source>Select first line or [Undo/Polyline/Distance/Angle/Trim/mEthod/Multiple]: </source>
        <translation>Selezionare prima linea o [Undo/Polyline/Distance/Angle/Trim/mEthod/Multiple]: </translation>
    </message>
    <message>
        <source>
Nothing to undo</source>
        <translation>
Nulla da annullare</translation>
    </message>
    <message>
        <source>
Current settings: Mode = %1, Radius = %2</source>
        <translation>
Impostazioni correnti: Modo = %1, Raggio = %2</translation>
    </message>
    <message>
        <source>
(%1 mode) Current chamfer Dist1 = %2, Dist2 = %3</source>
        <translation>
(Modo %1) Cimatura corrente Dist1 = %2, Dist2 = %3</translation>
    </message>
    <message>
        <source>The corner has no room for that.</source>
        <translation>L&apos;angolo non ha spazio per questo.</translation>
    </message>
    <message>
        <source>Only the ends of open polylines, lines and arcs can be joined.</source>
        <translation>Si possono unire solo gli estremi di polilinee aperte, linee e archi.</translation>
    </message>
    <message>
        <source>Only neighbouring stretches of a polyline make a corner.</source>
        <translation>Solo tratti contigui di una polilinea formano un angolo.</translation>
    </message>
    <message>
        <source>Enter name of block to insert: </source>
        <translation>Digitare nome del blocco da inserire: </translation>
    </message>
    <message>
        <source>Align block with object?</source>
        <translation>Allineare il blocco con l&apos;oggetto?</translation>
    </message>
    <message>
        <source>Select object to divide: </source>
        <translation>Selezionare oggetto da dividere: </translation>
    </message>
    <message>
        <source>Enter the number of segments or [Block]: </source>
        <translation>Digitare numero di segmenti o [Block]: </translation>
    </message>
    <message>
        <source>Enter the number of segments: </source>
        <translation>Digitare numero di segmenti: </translation>
    </message>
    <message>
        <source>The number must be between 2 and %1.</source>
        <translation>Il numero deve essere fra 2 e %1.</translation>
    </message>
    <message>
        <source>Select object to measure: </source>
        <translation>Selezionare oggetto da misurare: </translation>
    </message>
    <message>
        <source>Specify length of segment or [Block]: </source>
        <translation>Specificare lunghezza del segmento o [Block]: </translation>
    </message>
    <message>
        <source>Specify length of segment: </source>
        <translation>Specificare lunghezza del segmento: </translation>
    </message>
    <message>
        <source>These would be more than %1.</source>
        <translation>Sarebbero più di %1.</translation>
    </message>
    <message>
        <source>
%1 lines joined into 1 line</source>
        <translation>
%1 linee unite in 1 linea</translation>
    </message>
    <message>
        <source>
%1 arcs joined into 1 arc</source>
        <translation>
%1 archi uniti in 1 arco</translation>
    </message>
    <message>
        <source>
%1 ellipses joined into 1 ellipse</source>
        <translation>
%1 ellissi unite in 1 ellisse</translation>
    </message>
    <message>
        <source>
%1 objects converted to 1 polyline</source>
        <translation>
%1 oggetti convertiti in 1 polilinea</translation>
    </message>
    <message>
        <source>
%1 objects converted to 1 spline</source>
        <translation>
%1 oggetti convertiti in 1 spline</translation>
    </message>
    <message>
        <source>
%1 objects discarded from the operation</source>
        <translation>
%1 oggetti esclusi dall&apos;operazione</translation>
    </message>
    <message>
        <source>Select source object or multiple objects to join at once: </source>
        <translation>Selezionare oggetto di origine o più oggetti da unire insieme: </translation>
    </message>
    <message>
        <source>Select arcs to join to source or [cLose]: </source>
        <translation>Selezionare archi da unire all&apos;origine o [cLose]: </translation>
    </message>
    <message>
        <source>Select objects to join: </source>
        <translation>Selezionare oggetti da unire: </translation>
    </message>
    <message>
        <source>
Current length: %1</source>
        <translation>
Lunghezza corrente: %1</translation>
    </message>
    <message>
        <source>, included angle: %1</source>
        <translation>, angolo inscritto: %1</translation>
    </message>
    <message>
        <source>
This object cannot be lengthened.</source>
        <translation>
Questo oggetto non può essere allungato.</translation>
    </message>
    <message>
        <source>Select an object to change or [Undo]: </source>
        <translation>Selezionare un oggetto da cambiare o [Undo]: </translation>
    </message>
    <message>
        <source>Specify new endpoint: </source>
        <translation>Specificare nuovo estremo: </translation>
    </message>
    <message>
        <source>
The object cannot have that length.</source>
        <translation>
L&apos;oggetto non può avere quella lunghezza.</translation>
    </message>
    <message>
        <source>Enter delta length or [Angle] &lt;%1&gt;: </source>
        <translation>Digitare incremento di lunghezza o [Angle] &lt;%1&gt;: </translation>
    </message>
    <message>
        <source>Enter delta angle &lt;%1&gt;: </source>
        <translation>Digitare incremento dell&apos;angolo &lt;%1&gt;: </translation>
    </message>
    <message>
        <source>Specify total length or [Angle] &lt;%1&gt;: </source>
        <translation>Specificare lunghezza totale o [Angle] &lt;%1&gt;: </translation>
    </message>
    <message>
        <source>Specify total angle &lt;%1&gt;: </source>
        <translation>Specificare angolo totale &lt;%1&gt;: </translation>
    </message>
    <message>
        <source>Enter percentage length &lt;100.0000&gt;: </source>
        <translation>Digitare percentuale di lunghezza &lt;100.0000&gt;: </translation>
    </message>
    <message>
        <source>Select an object to measure or [DElta/Percent/Total/DYnamic]: </source>
        <translation>Selezionare un oggetto da misurare o [DElta/Percent/Total/DYnamic]: </translation>
    </message>
    <message>
        <source>Specify offset distance or [Through/Erase/Layer] &lt;%1&gt;: </source>
        <translation>Specificare distanza di offset o [Through/Erase/Layer] &lt;%1&gt;: </translation>
    </message>
    <message>
        <source>Erase source object after offsetting?</source>
        <translation>Cancellare l&apos;oggetto di origine dopo l&apos;offset?</translation>
    </message>
    <message>
        <source>Enter layer option for offset objects [Current/Source]</source>
        <translation>Digitare opzione di layer per gli oggetti di offset [Current/Source]</translation>
    </message>
    <message>
        <source>Specify through point</source>
        <translation>Specificare punto di passaggio</translation>
    </message>
    <message>
        <source>Specify point on side to offset</source>
        <translation>Specificare punto sul lato di offset</translation>
    </message>
    <message>
        <source> or [Exit/Undo] &lt;next object&gt;: </source>
        <translation> o [Exit/Undo] &lt;oggetto successivo&gt;: </translation>
    </message>
    <message>
        <source> or [Exit/Multiple/Undo] &lt;Exit&gt;: </source>
        <translation> o [Exit/Multiple/Undo] &lt;Exit&gt;: </translation>
    </message>
    <message>
        <source>Cannot offset that object so far.</source>
        <translation>Quell&apos;oggetto non può essere sfalsato di tanto.</translation>
    </message>
    <message>
        <source>
Select object to offset or [Exit/Undo] &lt;Exit&gt;: </source>
        <translation>
Selezionare oggetto di cui eseguire l&apos;offset o [Exit/Undo] &lt;Exit&gt;: </translation>
    </message>
    <message>
        <source>Cannot offset that object.</source>
        <translation>Di quell&apos;oggetto non si può eseguire l&apos;offset.</translation>
    </message>
    <message>
        <source>Enter property to ignore [%1]</source>
        <translation>Digitare proprietà da ignorare [%1]</translation>
    </message>
    <message>
        <source>Enter an option to change [Done/Ignore/Tolerance/Overlaps/Endtoend]</source>
        <translation>Digitare un&apos;opzione da cambiare [Done/Ignore/Tolerance/Overlaps/Endtoend]</translation>
    </message>
    <message>
        <source>Specify tolerance</source>
        <translation>Specificare tolleranza</translation>
    </message>
    <message>
        <source>Combine lines and arcs that overlap?</source>
        <translation>Combinare linee e archi sovrapposti?</translation>
    </message>
    <message>
        <source>Combine lines and arcs that meet end to end?</source>
        <translation>Combinare linee e archi che si toccano agli estremi?</translation>
    </message>
    <message>
        <source>
%1 duplicate(s) deleted</source>
        <translation>
Duplicati eliminati: %1</translation>
    </message>
    <message>
        <source>
%1 overlapping object(s) or segment(s) deleted</source>
        <translation>
Oggetti o segmenti sovrapposti eliminati: %1</translation>
    </message>
    <message>
        <source>
Select polyline or [Multiple]: </source>
        <translation>
Selezionare polilinea o [Multiple]: </translation>
    </message>
    <message>
        <source>Object selected is not a polyline.</source>
        <translation>L&apos;oggetto selezionato non è una polilinea.</translation>
    </message>
    <message>
        <source>
Object selected is not a polyline</source>
        <translation>
L&apos;oggetto selezionato non è una polilinea</translation>
    </message>
    <message>
        <source>Do you want to turn it into one?</source>
        <translation>Convertirlo in polilinea?</translation>
    </message>
    <message>
        <source>Convert Lines, Arcs and Splines to polylines</source>
        <translation>Convertire linee, archi e spline in polilinee</translation>
    </message>
    <message>
        <source>
Splines do not become part of a polyline: %1 left out.</source>
        <translation>
Le spline non diventano parte di una polilinea: %1 omesse.</translation>
    </message>
    <message>
        <source>
%1 segments added to polyline</source>
        <translation>
%1 segmenti aggiunti alla polilinea</translation>
    </message>
    <message>
        <source>Enter fuzz distance or [Jointype] &lt;%1&gt;: </source>
        <translation>Digitare distanza di approssimazione o [Jointype] &lt;%1&gt;: </translation>
    </message>
    <message>
        <source>Enter a vertex join type [Extend/Add/Both]</source>
        <translation>Digitare tipo di unione dei vertici [Extend/Add/Both]</translation>
    </message>
    <message>
        <source>
%1 segments added to %2 polylines</source>
        <translation>
%1 segmenti aggiunti a %2 polilinee</translation>
    </message>
    <message>
        <source>Specify new width for all segments: </source>
        <translation>Specificare nuova larghezza per tutti i segmenti: </translation>
    </message>
    <message>
        <source>Enter polyline linetype generation option [ON/OFF]</source>
        <translation>Digitare opzione di generazione del tipo di linea delle polilinee [ON/OFF]</translation>
    </message>
    <message>
        <source>Enter an option [Close/Open/Join/Width/Fit/Spline/Decurve/Ltype gen/Reverse/Undo]: </source>
        <translation>Digitare un&apos;opzione [Close/Open/Join/Width/Fit/Spline/Decurve/Ltype gen/Reverse/Undo]: </translation>
    </message>
    <message>
        <source>Enter an option [%1/Edit vertex/Spline curve/Decurve/Reverse/Undo]: </source>
        <translation>Digitare un&apos;opzione [%1/Edit vertex/Spline curve/Decurve/Reverse/Undo]: </translation>
    </message>
    <message>
        <source>Enter an option [%1/Join/Width/Edit vertex/Fit/Spline/Decurve/Ltype gen/Reverse/Undo]: </source>
        <translation>Digitare un&apos;opzione [%1/Join/Width/Edit vertex/Fit/Spline/Decurve/Ltype gen/Reverse/Undo]: </translation>
    </message>
    <message>
        <source>Enter an option [Next/Previous/Go/eXit] &lt;N&gt;: </source>
        <translation>Digitare un&apos;opzione [Next/Previous/Go/eXit] &lt;N&gt;: </translation>
    </message>
    <message>
        <source>
Nothing would be left on one side.</source>
        <translation>
Da un lato non resterebbe nulla.</translation>
    </message>
    <message>
        <source>Specify starting width for next segment</source>
        <translation>Specificare larghezza iniziale del segmento successivo</translation>
    </message>
    <message>
        <source>Specify ending width for next segment</source>
        <translation>Specificare larghezza finale del segmento successivo</translation>
    </message>
    <message>
        <source>Specify location for new vertex: </source>
        <translation>Specificare posizione del nuovo vertice: </translation>
    </message>
    <message>
        <source>Specify direction of vertex tangent: </source>
        <translation>Specificare direzione della tangente del vertice: </translation>
    </message>
    <message>
        <source>Enter a vertex editing option [Next/Previous/Break/Insert/Move/Regen/Straighten/%1eXit] &lt;N&gt;: </source>
        <translation>Digitare un&apos;opzione di modifica dei vertici [Next/Previous/Break/Insert/Move/Regen/Straighten/%1eXit] &lt;N&gt;: </translation>
    </message>
    <message>
        <source>Specify new location for marked vertex: </source>
        <translation>Specificare nuova posizione del vertice contrassegnato: </translation>
    </message>
    <message>
        <source>
That object is on a locked layer.</source>
        <translation>
Quell&apos;oggetto è su un layer bloccato.</translation>
    </message>
    <message>
        <source>
Cannot %1 this object.</source>
        <translation>
Impossibile applicare %1 a questo oggetto.</translation>
    </message>
    <message>
        <source>
Cannot EXTEND this object.</source>
        <translation>
Impossibile applicare EXTEND a questo oggetto.</translation>
    </message>
    <message>
        <source>
Object does not intersect an edge.</source>
        <translation>
L&apos;oggetto non interseca nessuno spigolo.</translation>
    </message>
    <message>
        <source>
Command has been completely undone.</source>
        <translation>
Il comando è stato completamente annullato.</translation>
    </message>
    <message>
        <source>Specify first fence point: </source>
        <translation>Specificare primo punto dell&apos;intercetta: </translation>
    </message>
    <message>
        <source>Specify next fence point or [Undo]: </source>
        <translation>Specificare punto successivo dell&apos;intercetta o [Undo]: </translation>
    </message>
    <message>
        <source>Enter a projection option [None/Ucs/View]</source>
        <translation>Digitare un&apos;opzione di proiezione [None/Ucs/View]</translation>
    </message>
    <message>
        <source>Enter an implied edge extension mode [Extend/No extend]</source>
        <translation>Digitare un modo di estensione implicita degli spigoli [Extend/No extend]</translation>
    </message>
    <message>
        <source>
Current settings: Projection=%1, Edge=%2</source>
        <translation>
Impostazioni correnti: Proiezione=%1, Spigolo=%2</translation>
    </message>
    <message>
        <source>
Select boundary edges ...</source>
        <translation>
Selezionare spigoli di contorno ...</translation>
    </message>
    <message>
        <source>
Select cutting edges ...</source>
        <translation>
Selezionare spigoli di taglio ...</translation>
    </message>
    <message>
        <source>Select object to extend or [Fence/Crossing/Project/Edge/Undo]: </source>
        <translation>Selezionare oggetto da estendere o [Fence/Crossing/Project/Edge/Undo]: </translation>
    </message>
    <message>
        <source>Select object to trim or [Fence/Crossing/Project/Edge/eRase/Undo]: </source>
        <translation>Selezionare oggetto da tagliare o [Fence/Crossing/Project/Edge/eRase/Undo]: </translation>
    </message>
    <message>
        <source>Specify included angle: </source>
        <translation>Specificare angolo inscritto: </translation>
    </message>
    <message>
        <source>Specify end point of arc or [Angle/chord Length]: </source>
        <translation>Specificare punto finale dell&apos;arco o [Angle/chord Length]: </translation>
    </message>
    <message>
        <source>Specify length of chord: </source>
        <translation>Specificare lunghezza della corda: </translation>
    </message>
    <message>
        <source>Specify end point of arc: </source>
        <translation>Specificare punto finale dell&apos;arco: </translation>
    </message>
    <message>
        <source>Specify center point of arc or [Angle/Direction/Radius]: </source>
        <translation>Specificare centro dell&apos;arco o [Angle/Direction/Radius]: </translation>
    </message>
    <message>
        <source>Specify tangent direction for the start point of arc: </source>
        <translation>Specificare direzione della tangente per il punto iniziale dell&apos;arco: </translation>
    </message>
    <message>
        <source>Specify radius of arc: </source>
        <translation>Specificare raggio dell&apos;arco: </translation>
    </message>
    <message>
        <source>Specify second point of arc or [Center/End]: </source>
        <translation>Specificare secondo punto dell&apos;arco o [Center/End]: </translation>
    </message>
    <message>
        <source>Specify center point of arc: </source>
        <translation>Specificare centro dell&apos;arco: </translation>
    </message>
    <message>
        <source>Specify start point of arc or [Center]: </source>
        <translation>Specificare punto iniziale dell&apos;arco o [Center]: </translation>
    </message>
    <message>
        <source>No line or arc to continue.</source>
        <translation>Nessuna linea o arco da continuare.</translation>
    </message>
    <message>
        <source>Specify start point of arc: </source>
        <translation>Specificare punto iniziale dell&apos;arco: </translation>
    </message>
    <message>
        <source>There is no such arc.</source>
        <translation>Un tale arco non esiste.</translation>
    </message>
    <message>
        <source>Specify first end point of circle&apos;s diameter: </source>
        <translation>Specificare primo estremo del diametro del cerchio: </translation>
    </message>
    <message>
        <source>Specify second end point of circle&apos;s diameter: </source>
        <translation>Specificare secondo estremo del diametro del cerchio: </translation>
    </message>
    <message>
        <source>Specify first point on circle: </source>
        <translation>Specificare primo punto sul cerchio: </translation>
    </message>
    <message>
        <source>Specify second point on circle: </source>
        <translation>Specificare secondo punto sul cerchio: </translation>
    </message>
    <message>
        <source>Specify third point on circle: </source>
        <translation>Specificare terzo punto sul cerchio: </translation>
    </message>
    <message>
        <source>Circle does not exist: the points lie in one line.</source>
        <translation>Il cerchio non esiste: i punti giacciono su una retta.</translation>
    </message>
    <message>
        <source>Specify diameter of circle</source>
        <translation>Specificare diametro del cerchio</translation>
    </message>
    <message>
        <source>Specify point on object for first tangent of circle: </source>
        <translation>Specificare punto sull&apos;oggetto per la prima tangente del cerchio: </translation>
    </message>
    <message>
        <source>Specify point on object for second tangent of circle: </source>
        <translation>Specificare punto sull&apos;oggetto per la seconda tangente del cerchio: </translation>
    </message>
    <message>
        <source>Requires a line, an arc or a circle in the user&apos;s plane.</source>
        <translation>Occorre una linea, un arco o un cerchio nel piano dell&apos;utente.</translation>
    </message>
    <message>
        <source>Specify radius of circle</source>
        <translation>Specificare raggio del cerchio</translation>
    </message>
    <message>
        <source>Circle does not exist.</source>
        <translation>Il cerchio non esiste.</translation>
    </message>
    <message>
        <source>Specify center point for circle or [3P/2P/Ttr (tan tan radius)]: </source>
        <translation>Specificare centro del cerchio o [3P/2P/Ttr (tan tan radius)]: </translation>
    </message>
    <message>
        <source>Specify radius of circle or [Diameter]</source>
        <translation>Specificare raggio del cerchio o [Diameter]</translation>
    </message>
    <message>
        <source>Circle does not exist: the points are one.</source>
        <translation>Il cerchio non esiste: i punti coincidono.</translation>
    </message>
    <message>
        <source>Specify through point: </source>
        <translation>Specificare punto di passaggio: </translation>
    </message>
    <message>
        <source>Select a line object: </source>
        <translation>Selezionare un oggetto lineare: </translation>
    </message>
    <message>
        <source>Requires a line, a ray or a straight part of a polyline.</source>
        <translation>Occorre una linea, un raggio o un tratto retto di polilinea.</translation>
    </message>
    <message>
        <source>Enter angle of xline (%1) or [Reference]: </source>
        <translation>Digitare angolo della xlinea (%1) o [Reference]: </translation>
    </message>
    <message>
        <source>Enter angle of xline &lt;%1&gt;: </source>
        <translation>Digitare angolo della xlinea &lt;%1&gt;: </translation>
    </message>
    <message>
        <source>Specify angle vertex point: </source>
        <translation>Specificare vertice dell&apos;angolo: </translation>
    </message>
    <message>
        <source>Specify angle start point: </source>
        <translation>Specificare punto iniziale dell&apos;angolo: </translation>
    </message>
    <message>
        <source>Specify angle end point: </source>
        <translation>Specificare punto finale dell&apos;angolo: </translation>
    </message>
    <message>
        <source>Specify offset distance or [Through] &lt;%1&gt;: </source>
        <translation>Specificare distanza di offset o [Through] &lt;%1&gt;: </translation>
    </message>
    <message>
        <source>Specify side to offset: </source>
        <translation>Specificare lato di offset: </translation>
    </message>
    <message>
        <source>Specify a point or [Hor/Ver/Ang/Bisect/Offset]: </source>
        <translation>Specificare un punto o [Hor/Ver/Ang/Bisect/Offset]: </translation>
    </message>
    <message>
        <source>Length of line: </source>
        <translation>Lunghezza della linea: </translation>
    </message>
    <message>
        <source>Specify next point or [Close/Undo]: </source>
        <translation>Specificare punto successivo o [Close/Undo]: </translation>
    </message>
    <message>
        <source>Specify a point: </source>
        <translation>Specificare un punto: </translation>
    </message>
    <message>
        <source>Specify distance to other axis or [Rotation]: </source>
        <translation>Specificare distanza dall&apos;altro asse o [Rotation]: </translation>
    </message>
    <message>
        <source>Specify rotation around major axis: </source>
        <translation>Specificare rotazione attorno all&apos;asse maggiore: </translation>
    </message>
    <message>
        <source>An ellipse is turned by 0 to 89.4 degrees.</source>
        <translation>Un&apos;ellisse viene ruotata da 0 a 89.4 gradi.</translation>
    </message>
    <message>
        <source>Specify center of ellipse: </source>
        <translation>Specificare centro dell&apos;ellisse: </translation>
    </message>
    <message>
        <source>Specify endpoint of axis: </source>
        <translation>Specificare estremo dell&apos;asse: </translation>
    </message>
    <message>
        <source>Specify other endpoint of axis: </source>
        <translation>Specificare altro estremo dell&apos;asse: </translation>
    </message>
    <message>
        <source>The endpoints of the axis are one point.</source>
        <translation>Gli estremi dell&apos;asse coincidono.</translation>
    </message>
    <message>
        <source>Specify end parameter or [Angle/Included angle]: </source>
        <translation>Specificare parametro finale o [Angle/Included angle]: </translation>
    </message>
    <message>
        <source>Specify end angle or [Parameter/Included angle]: </source>
        <translation>Specificare angolo finale o [Parameter/Included angle]: </translation>
    </message>
    <message>
        <source>Specify start parameter or [Angle]: </source>
        <translation>Specificare parametro iniziale o [Angle]: </translation>
    </message>
    <message>
        <source>Specify start angle or [Parameter]: </source>
        <translation>Specificare angolo iniziale o [Parameter]: </translation>
    </message>
    <message>
        <source>Specify included angle for arc &lt;180&gt;: </source>
        <translation>Specificare angolo inscritto dell&apos;arco &lt;180&gt;: </translation>
    </message>
    <message>
        <source>Specify axis endpoint of ellipse or [Arc/Center]: </source>
        <translation>Specificare estremo dell&apos;asse dell&apos;ellisse o [Arc/Center]: </translation>
    </message>
    <message>
        <source>Specify axis endpoint of elliptical arc or [Center]: </source>
        <translation>Specificare estremo dell&apos;asse dell&apos;arco ellittico o [Center]: </translation>
    </message>
    <message>
        <source>Specify third point: </source>
        <translation>Specificare terzo punto: </translation>
    </message>
    <message>
        <source>Specify fourth point or &lt;exit&gt;: </source>
        <translation>Specificare quarto punto o &lt;esci&gt;: </translation>
    </message>
    <message>
        <source>Specify trace width</source>
        <translation>Specificare larghezza della traccia</translation>
    </message>
    <message>
        <source>Specify first point or [Invisible]: </source>
        <translation>Specificare primo punto o [Invisible]: </translation>
    </message>
    <message>
        <source>Specify second point or [Invisible]: </source>
        <translation>Specificare secondo punto o [Invisible]: </translation>
    </message>
    <message>
        <source>Specify third point or [Invisible] &lt;exit&gt;: </source>
        <translation>Specificare terzo punto o [Invisible] &lt;esci&gt;: </translation>
    </message>
    <message>
        <source>Specify fourth point or [Invisible] &lt;create three-sided face&gt;: </source>
        <translation>Specificare quarto punto o [Invisible] &lt;crea faccia a tre lati&gt;: </translation>
    </message>
    <message>
        <source>Specify start point of polyline: </source>
        <translation>Specificare punto iniziale della polilinea: </translation>
    </message>
    <message>
        <source>Specify endpoint of line or [Close/Undo]: </source>
        <translation>Specificare punto finale della linea o [Close/Undo]: </translation>
    </message>
    <message>
        <source>Specify endpoint of line or [Undo]: </source>
        <translation>Specificare punto finale della linea o [Undo]: </translation>
    </message>
    <message>
        <source>
All segments already undone.</source>
        <translation>
Tutti i segmenti sono già stati annullati.</translation>
    </message>
    <message>
        <source>Enter mline style name or [?]: </source>
        <translation>Digitare nome dello stile multilinea o [?]: </translation>
    </message>
    <message>
        <source>Cannot find multiline style &quot;%1&quot;.</source>
        <translation>Impossibile trovare lo stile multilinea &quot;%1&quot;.</translation>
    </message>
    <message>
        <source>
Current settings: Justification = %1, Scale = %2, Style = %3</source>
        <translation>
Impostazioni correnti: Giustificazione = %1, Scala = %2, Stile = %3</translation>
    </message>
    <message>
        <source>Specify start point or [Justification/Scale/STyle]: </source>
        <translation>Specificare punto iniziale o [Justification/Scale/STyle]: </translation>
    </message>
    <message>
        <source>Enter justification type [Top/Zero/Bottom]</source>
        <translation>Digitare tipo di giustificazione [Top/Zero/Bottom]</translation>
    </message>
    <message>
        <source>Enter mline scale &lt;%1&gt;: </source>
        <translation>Digitare scala della multilinea &lt;%1&gt;: </translation>
    </message>
    <message>
        <source>Enter number of sides &lt;%1&gt;: </source>
        <translation>Digitare numero di lati &lt;%1&gt;: </translation>
    </message>
    <message>
        <source>A polygon has 3 to 1024 sides.</source>
        <translation>Un poligono ha da 3 a 1024 lati.</translation>
    </message>
    <message>
        <source>Specify first endpoint of edge: </source>
        <translation>Specificare primo estremo del lato: </translation>
    </message>
    <message>
        <source>Specify second endpoint of edge: </source>
        <translation>Specificare secondo estremo del lato: </translation>
    </message>
    <message>
        <source>Enter an option [Inscribed in circle/Circumscribed about circle]</source>
        <translation>Digitare un&apos;opzione [Inscribed in circle/Circumscribed about circle]</translation>
    </message>
    <message>
        <source>Specify radius of circle: </source>
        <translation>Specificare raggio del cerchio: </translation>
    </message>
    <message>
        <source>Specify center of polygon or [Edge]: </source>
        <translation>Specificare centro del poligono o [Edge]: </translation>
    </message>
    <message>
        <source>The endpoints of the edge are one point.</source>
        <translation>Gli estremi del lato coincidono.</translation>
    </message>
    <message>
        <source>Specify inside diameter of donut</source>
        <translation>Specificare diametro interno dell&apos;anello</translation>
    </message>
    <message>
        <source>Specify outside diameter of donut</source>
        <translation>Specificare diametro esterno dell&apos;anello</translation>
    </message>
    <message>
        <source>Specify center of donut or &lt;exit&gt;: </source>
        <translation>Specificare centro dell&apos;anello o &lt;esci&gt;: </translation>
    </message>
    <message>
        <source>Specify direction of chord for arc &lt;%1&gt;: </source>
        <translation>Specificare direzione della corda dell&apos;arco &lt;%1&gt;: </translation>
    </message>
    <message>
        <source>Specify endpoint of arc or [CEnter/Radius]: </source>
        <translation>Specificare punto finale dell&apos;arco o [CEnter/Radius]: </translation>
    </message>
    <message>
        <source>Specify endpoint of arc or [Angle/Length]: </source>
        <translation>Specificare punto finale dell&apos;arco o [Angle/Length]: </translation>
    </message>
    <message>
        <source>Specify the tangent direction for the start point of arc: </source>
        <translation>Specificare direzione della tangente per il punto iniziale dell&apos;arco: </translation>
    </message>
    <message>
        <source>Specify endpoint of the arc: </source>
        <translation>Specificare punto finale dell&apos;arco: </translation>
    </message>
    <message>
        <source>Specify endpoint of arc or [Angle]: </source>
        <translation>Specificare punto finale dell&apos;arco o [Angle]: </translation>
    </message>
    <message>
        <source>Specify second point on arc: </source>
        <translation>Specificare secondo punto sull&apos;arco: </translation>
    </message>
    <message>
        <source>Specify starting half-width &lt;%1&gt;: </source>
        <translation>Specificare mezza larghezza iniziale &lt;%1&gt;: </translation>
    </message>
    <message>
        <source>Specify ending half-width &lt;%1&gt;: </source>
        <translation>Specificare mezza larghezza finale &lt;%1&gt;: </translation>
    </message>
    <message>
        <source>Specify starting width &lt;%1&gt;: </source>
        <translation>Specificare larghezza iniziale &lt;%1&gt;: </translation>
    </message>
    <message>
        <source>Specify ending width &lt;%1&gt;: </source>
        <translation>Specificare larghezza finale &lt;%1&gt;: </translation>
    </message>
    <message>
        <source>Specify length of line: </source>
        <translation>Specificare lunghezza della linea: </translation>
    </message>
    <message>
        <source>Specify endpoint of arc or [Angle/CEnter/%1Direction/Halfwidth/Line/Radius/Second pt/Undo/Width]: </source>
        <translation>Specificare punto finale dell&apos;arco o [Angle/CEnter/%1Direction/Halfwidth/Line/Radius/Second pt/Undo/Width]: </translation>
    </message>
    <message>
        <source>Specify next point or [Arc/%1Halfwidth/Length/Undo/Width]: </source>
        <translation>Specificare punto successivo o [Arc/%1Halfwidth/Length/Undo/Width]: </translation>
    </message>
    <message>
        <source>
Current line-width is %1</source>
        <translation>
La larghezza di linea corrente è %1</translation>
    </message>
    <message>
        <source>Specify fillet radius for rectangles</source>
        <translation>Specificare raggio di raccordo per i rettangoli</translation>
    </message>
    <message>
        <source>Specify first chamfer distance for rectangles</source>
        <translation>Specificare prima distanza di cimatura per i rettangoli</translation>
    </message>
    <message>
        <source>Specify second chamfer distance for rectangles</source>
        <translation>Specificare seconda distanza di cimatura per i rettangoli</translation>
    </message>
    <message>
        <source>Specify first corner point or [Chamfer/Elevation/Fillet/Thickness/Width]: </source>
        <translation>Specificare primo vertice o [Chamfer/Elevation/Fillet/Thickness/Width]: </translation>
    </message>
    <message>
        <source>Specify the elevation for rectangles</source>
        <translation>Specificare elevazione per i rettangoli</translation>
    </message>
    <message>
        <source>Specify thickness for rectangles</source>
        <translation>Specificare spessore per i rettangoli</translation>
    </message>
    <message>
        <source>Specify line width for rectangles</source>
        <translation>Specificare larghezza di linea per i rettangoli</translation>
    </message>
    <message>
        <source>Enter area of rectangle in current units</source>
        <translation>Digitare area del rettangolo nelle unità correnti</translation>
    </message>
    <message>
        <source>Calculate rectangle dimensions based on [Length/Width]</source>
        <translation>Calcolare le dimensioni del rettangolo in base a [Length/Width]</translation>
    </message>
    <message>
        <source>Enter rectangle width</source>
        <translation>Digitare larghezza del rettangolo</translation>
    </message>
    <message>
        <source>Enter rectangle length</source>
        <translation>Digitare lunghezza del rettangolo</translation>
    </message>
    <message>
        <source>Specify rotation angle or [Pick points] &lt;%1&gt;: </source>
        <translation>Specificare angolo di rotazione o [Pick points] &lt;%1&gt;: </translation>
    </message>
    <message>
        <source>Specify other corner point or [Area/Dimensions/Rotation]: </source>
        <translation>Specificare altro vertice o [Area/Dimensions/Rotation]: </translation>
    </message>
    <message>
        <source>Specify length for rectangles</source>
        <translation>Specificare lunghezza per i rettangoli</translation>
    </message>
    <message>
        <source>Specify width for rectangles</source>
        <translation>Specificare larghezza per i rettangoli</translation>
    </message>
    <message>
        <source>The corners of a rectangle lie neither above nor beside each other.</source>
        <translation>I vertici di un rettangolo non stanno né uno sopra l&apos;altro né uno accanto all&apos;altro.</translation>
    </message>
    <message>
        <source>1 loop rejected: it crosses itself or branches.</source>
        <translation>1 anello rifiutato: interseca se stesso o si dirama.</translation>
    </message>
    <message>
        <source>%1 loops rejected: it crosses itself or branches.</source>
        <translation>%1 anelli rifiutati: intersecano se stessi o si diramano.</translation>
    </message>
    <message>
        <source>1 loop rejected: it does not lie in a plane.</source>
        <translation>1 anello rifiutato: non giace su un piano.</translation>
    </message>
    <message>
        <source>%1 loops rejected: it does not lie in a plane.</source>
        <translation>%1 anelli rifiutati: non giacciono su un piano.</translation>
    </message>
    <message>
        <source>1 loop rejected: it encloses nothing.</source>
        <translation>1 anello rifiutato: non racchiude nulla.</translation>
    </message>
    <message>
        <source>%1 loops rejected: it encloses nothing.</source>
        <translation>%1 anelli rifiutati: non racchiudono nulla.</translation>
    </message>
    <message>
        <source>1 curve rejected: it is not part of a closed loop.</source>
        <translation>1 curva rifiutata: non fa parte di un anello chiuso.</translation>
    </message>
    <message>
        <source>%1 curves rejected: it is not part of a closed loop.</source>
        <translation>%1 curve rifiutate: non fanno parte di un anello chiuso.</translation>
    </message>
    <message>
        <source>1 object rejected: it is no curve.</source>
        <translation>1 oggetto rifiutato: non è una curva.</translation>
    </message>
    <message>
        <source>%1 objects rejected: it is no curve.</source>
        <translation>%1 oggetti rifiutati: non sono curve.</translation>
    </message>
    <message>
        <source>Drawings of R12 have no regions.</source>
        <translation>I disegni di R12 non hanno regioni.</translation>
    </message>
    <message>
        <source>
1 loop extracted.
1 Region created.</source>
        <translation>
1 anello estratto.
1 regione creata.</translation>
    </message>
    <message>
        <source>
%1 loops extracted.
%1 Regions created.</source>
        <translation>
%1 anelli estratti.
%1 regioni create.</translation>
    </message>
    <message>
        <source>Specify minimum length of arc</source>
        <translation>Specificare lunghezza minima dell&apos;arco</translation>
    </message>
    <message>
        <source>Specify maximum length of arc &lt;%1&gt;: </source>
        <translation>Specificare lunghezza massima dell&apos;arco &lt;%1&gt;: </translation>
    </message>
    <message>
        <source>Specify first corner point or [Arc length/Object/Rectangular/Polygonal/Freehand/Style] &lt;Object&gt;: </source>
        <translation>Specificare primo vertice o [Arc length/Object/Rectangular/Polygonal/Freehand/Style] &lt;Object&gt;: </translation>
    </message>
    <message>
        <source>Specify start point or [Arc length/Object/Rectangular/Polygonal/Freehand/Style] &lt;Object&gt;: </source>
        <translation>Specificare punto iniziale o [Arc length/Object/Rectangular/Polygonal/Freehand/Style] &lt;Object&gt;: </translation>
    </message>
    <message>
        <source>Select arc style [Normal/Calligraphy]</source>
        <translation>Selezionare stile d&apos;arco [Normal/Calligraphy]</translation>
    </message>
    <message>
        <source>Enter name of shape file to load: </source>
        <translation>Digitare nome del file di forme da caricare: </translation>
    </message>
    <message>
        <source>Cannot read shape file &quot;%1&quot;.</source>
        <translation>Impossibile leggere il file di forme &quot;%1&quot;.</translation>
    </message>
    <message>
        <source>Enter shape name: </source>
        <translation>Digitare nome della forma: </translation>
    </message>
    <message>
        <source>Cannot find shape &quot;%1&quot;. Load its file first.</source>
        <translation>Impossibile trovare la forma &quot;%1&quot;. Caricare prima il suo file.</translation>
    </message>
    <message>
        <source>Specify height &lt;1&gt;: </source>
        <translation>Specificare altezza &lt;1&gt;: </translation>
    </message>
    <message>
        <source>
Only polylines with the smoothing of splines can be converted.</source>
        <translation>
Si possono convertire solo polilinee con smussatura di spline.</translation>
    </message>
    <message>
        <source>Specify first point or [Method/Knots/Object]: </source>
        <translation>Specificare primo punto o [Method/Knots/Object]: </translation>
    </message>
    <message>
        <source>Specify first point or [Method/Degree/Object]: </source>
        <translation>Specificare primo punto o [Method/Degree/Object]: </translation>
    </message>
    <message>
        <source>Enter spline creation method [Fit/CV]</source>
        <translation>Digitare metodo di creazione della spline [Fit/CV]</translation>
    </message>
    <message>
        <source>Enter knot parameterization [Chord/Square root/Uniform]</source>
        <translation>Digitare parametrizzazione dei nodi [Chord/Square root/Uniform]</translation>
    </message>
    <message>
        <source>Enter degree of spline &lt;%1&gt;: </source>
        <translation>Digitare grado della spline &lt;%1&gt;: </translation>
    </message>
    <message>
        <source>Enter next point or [%1Undo]: </source>
        <translation>Digitare punto successivo o [%1Undo]: </translation>
    </message>
    <message>
        <source>Enter next point or [start Tangency/toLerance]: </source>
        <translation>Digitare punto successivo o [start Tangency/toLerance]: </translation>
    </message>
    <message>
        <source>Enter next point or [%1Fit tolerance/Undo/end Tangency] &lt;start tangent&gt;: </source>
        <translation>Digitare punto successivo o [%1Fit tolerance/Undo/end Tangency] &lt;tangente iniziale&gt;: </translation>
    </message>
    <message>
        <source>
All points already undone.</source>
        <translation>
Tutti i punti sono già stati annullati.</translation>
    </message>
    <message>
        <source>Specify start tangent: </source>
        <translation>Specificare tangente iniziale: </translation>
    </message>
    <message>
        <source>Specify end tangent: </source>
        <translation>Specificare tangente finale: </translation>
    </message>
    <message>
        <source>Specify fit tolerance</source>
        <translation>Specificare tolleranza di adattamento</translation>
    </message>
    <message>
        <source>Specify tangent: </source>
        <translation>Specificare tangente: </translation>
    </message>
    <message>
        <source>Specify first source point: </source>
        <translation>Specificare primo punto di origine: </translation>
    </message>
    <message>
        <source>Specify first destination point: </source>
        <translation>Specificare primo punto di destinazione: </translation>
    </message>
    <message>
        <source>Specify second source point: </source>
        <translation>Specificare secondo punto di origine: </translation>
    </message>
    <message>
        <source>Specify second destination point: </source>
        <translation>Specificare secondo punto di destinazione: </translation>
    </message>
    <message>
        <source>Specify third source point or &lt;continue&gt;: </source>
        <translation>Specificare terzo punto di origine o &lt;continua&gt;: </translation>
    </message>
    <message>
        <source>Specify third destination point: </source>
        <translation>Specificare terzo punto di destinazione: </translation>
    </message>
    <message>
        <source>Scale objects based on alignment points? [Yes/No] &lt;N&gt;: </source>
        <translation>Scalare gli oggetti in base ai punti di allineamento? [Yes/No] &lt;N&gt;: </translation>
    </message>
    <message>
        <source>The points say no direction.</source>
        <translation>I punti non indicano nessuna direzione.</translation>
    </message>
    <message>
        <source>Specify first point on axis or define axis by [Xaxis/Yaxis/Zaxis/2points]: </source>
        <translation>Specificare primo punto sull&apos;asse o definire l&apos;asse con [Xaxis/Yaxis/Zaxis/2points]: </translation>
    </message>
    <message>
        <source>Specify a point on the %1 axis &lt;0,0,0&gt;: </source>
        <translation>Specificare un punto sull&apos;asse %1 &lt;0,0,0&gt;: </translation>
    </message>
    <message>
        <source>Specify first point on axis: </source>
        <translation>Specificare primo punto sull&apos;asse: </translation>
    </message>
    <message>
        <source>Specify second point on axis: </source>
        <translation>Specificare secondo punto sull&apos;asse: </translation>
    </message>
    <message>
        <source>Specify rotation angle or [Reference]: </source>
        <translation>Specificare angolo di rotazione o [Reference]: </translation>
    </message>
    <message>
        <source>Specify the distance between columns (|||): </source>
        <translation>Specificare distanza fra le colonne (|||): </translation>
    </message>
    <message>
        <source>
Enter the distance between rows or specify unit cell (---): </source>
        <translation>
Digitare distanza fra le righe o specificare cella unità (---): </translation>
    </message>
    <message>
        <source>Enter the number of rows (---) &lt;1&gt;: </source>
        <translation>Digitare numero di righe (---) &lt;1&gt;: </translation>
    </message>
    <message>
        <source>Enter the number of columns (|||) &lt;1&gt;: </source>
        <translation>Digitare numero di colonne (|||) &lt;1&gt;: </translation>
    </message>
    <message>
        <source>One-element array, nothing to do.</source>
        <translation>Serie di un solo elemento, nulla da fare.</translation>
    </message>
    <message>
        <source>Requires a distance other than 0, or two corners of a cell.</source>
        <translation>Occorre una distanza diversa da 0 o due angoli di una cella.</translation>
    </message>
    <message>
        <source>Enter the number of items in the array: </source>
        <translation>Digitare numero di elementi della serie: </translation>
    </message>
    <message>
        <source>Specify the angle to fill (+=ccw, -=cw) &lt;360&gt;: </source>
        <translation>Specificare angolo da riempire (+=antiorario, -=orario) &lt;360&gt;: </translation>
    </message>
    <message>
        <source>Angle between items: </source>
        <translation>Angolo fra gli elementi: </translation>
    </message>
    <message>
        <source>Specify center point of array or [Base]: </source>
        <translation>Specificare centro della serie o [Base]: </translation>
    </message>
    <message>
        <source>Specify base point of objects: </source>
        <translation>Specificare punto base degli oggetti: </translation>
    </message>
    <message>
        <source>Specify center point of array: </source>
        <translation>Specificare centro della serie: </translation>
    </message>
    <message>
        <source>Requires a number of items or an angle between them.</source>
        <translation>Occorre un numero di elementi o un angolo fra loro.</translation>
    </message>
    <message>
        <source>Rotate arrayed objects? [Yes/No] &lt;Y&gt;: </source>
        <translation>Ruotare gli oggetti in serie? [Yes/No] &lt;Y&gt;: </translation>
    </message>
    <message>
        <source>Enter the type of array [Rectangular/Polar] &lt;R&gt;: </source>
        <translation>Digitare tipo di serie [Rectangular/Polar] &lt;R&gt;: </translation>
    </message>
    <message>
        <source>Enter property to change [%1]: </source>
        <translation>Digitare proprietà da cambiare [%1]: </translation>
    </message>
    <message>
        <source>Specify change point or [Properties]: </source>
        <translation>Specificare punto di modifica o [Properties]: </translation>
    </message>
    <message>
        <source>Enter new text style &lt;%1&gt;: </source>
        <translation>Digitare nuovo stile di testo &lt;%1&gt;: </translation>
    </message>
    <message>
        <source>Specify new rotation angle &lt;%1&gt;: </source>
        <translation>Specificare nuovo angolo di rotazione &lt;%1&gt;: </translation>
    </message>
    <message>
        <source>Enter new text &lt;%1&gt;: </source>
        <translation>Digitare nuovo testo &lt;%1&gt;: </translation>
    </message>
    <message>
        <source>Enter new tag &lt;%1&gt;: </source>
        <translation>Digitare nuova etichetta &lt;%1&gt;: </translation>
    </message>
    <message>
        <source>Enter new prompt &lt;%1&gt;: </source>
        <translation>Digitare nuovo messaggio di richiesta &lt;%1&gt;: </translation>
    </message>
    <message>
        <source>Enter new default value &lt;%1&gt;: </source>
        <translation>Digitare nuovo valore di default &lt;%1&gt;: </translation>
    </message>
    <message>
        <source>Specify new text insertion point &lt;no change&gt;: </source>
        <translation>Specificare nuovo punto di inserimento del testo &lt;nessuna modifica&gt;: </translation>
    </message>
    <message>
        <source>Specify new block insertion point &lt;no change&gt;: </source>
        <translation>Specificare nuovo punto di inserimento del blocco &lt;nessuna modifica&gt;: </translation>
    </message>
    <message>
        <source>Specify new block rotation angle &lt;%1&gt;: </source>
        <translation>Specificare nuovo angolo di rotazione del blocco &lt;%1&gt;: </translation>
    </message>
    <message>
        <source>
%1 not changed.</source>
        <translation>
%1 non modificati.</translation>
    </message>
    <message>
        <source>Enter object ordering option [Above objects/Under objects/Front/Back] &lt;Back&gt;: </source>
        <translation>Digitare opzione di ordinamento degli oggetti [Above objects/Under objects/Front/Back] &lt;Back&gt;: </translation>
    </message>
    <message>
        <source>Enter number of items to array: </source>
        <translation>Digitare numero di elementi da disporre in serie: </translation>
    </message>
    <message>
        <source>Requires an integer of 2 or more.</source>
        <translation>Occorre un intero di 2 o più.</translation>
    </message>
    <message>
        <source>Specify second point or [Fit]: </source>
        <translation>Specificare secondo punto o [Fit]: </translation>
    </message>
    <message>
        <source>Specify second point or [Array] &lt;use first point as displacement&gt;: </source>
        <translation>Specificare secondo punto o [Array] &lt;usare primo punto come spostamento&gt;: </translation>
    </message>
    <message>
        <source>Specify second point or [Array/Exit/Undo] &lt;Exit&gt;: </source>
        <translation>Specificare secondo punto o [Array/Exit/Undo] &lt;Exit&gt;: </translation>
    </message>
    <message>
        <source>Specify base point or [Displacement/mOde] &lt;Displacement&gt;: </source>
        <translation>Specificare punto base o [Displacement/mOde] &lt;Displacement&gt;: </translation>
    </message>
    <message>
        <source>Enter a copy mode option [Single/Multiple] &lt;Multiple&gt;: </source>
        <translation>Digitare un&apos;opzione del modo di copia [Single/Multiple] &lt;Multiple&gt;: </translation>
    </message>
    <message>
        <source>
Current positive angle in UCS:  ANGDIR=%1  ANGBASE=%2</source>
        <translation>
Angolo positivo corrente nell&apos;UCS:  ANGDIR=%1  ANGBASE=%2</translation>
    </message>
    <message>
        <source>Specify rotation angle or [Copy/Reference] &lt;%1&gt;: </source>
        <translation>Specificare angolo di rotazione o [Copy/Reference] &lt;%1&gt;: </translation>
    </message>
    <message>
        <source>
Rotating a copy of the selected objects.</source>
        <translation>
Rotazione di una copia degli oggetti selezionati.</translation>
    </message>
    <message>
        <source>Specify scale factor or [Copy/Reference]: </source>
        <translation>Specificare fattore di scala o [Copy/Reference]: </translation>
    </message>
    <message>
        <source>
Scaling a copy of the selected objects.</source>
        <translation>
Scalatura di una copia degli oggetti selezionati.</translation>
    </message>
    <message>
        <source>Requires three numbers from 0 to 255.</source>
        <translation>Occorrono tre numeri da 0 a 255.</translation>
    </message>
    <message>
        <source>A drawing of this version has no such colors.</source>
        <translation>Un disegno di questa versione non ha colori simili.</translation>
    </message>
    <message>
        <source>New color [Truecolor/COlorbook] &lt;%1&gt;: </source>
        <translation>Nuovo colore [Truecolor/COlorbook] &lt;%1&gt;: </translation>
    </message>
    <message>
        <source>Red,Green,Blue: </source>
        <translation>Rosso,Verde,Blu: </translation>
    </message>
    <message>
        <source>This program has no color books.</source>
        <translation>Questo programma non ha libri dei colori.</translation>
    </message>
    <message>
        <source>Requires a color number from 1 to 255 or a color name.</source>
        <translation>Occorre un numero di colore da 1 a 255 o un nome di colore.</translation>
    </message>
    <message>
        <source>Enter new layer name &lt;%1&gt;: </source>
        <translation>Digitare nome del nuovo layer &lt;%1&gt;: </translation>
    </message>
    <message>
        <source>Enter new linetype name &lt;%1&gt;: </source>
        <translation>Digitare nome del nuovo tipo di linea &lt;%1&gt;: </translation>
    </message>
    <message>
        <source>Cannot find linetype &quot;%1&quot;.</source>
        <translation>Impossibile trovare il tipo di linea &quot;%1&quot;.</translation>
    </message>
    <message>
        <source>Specify new linetype scale &lt;%1&gt;: </source>
        <translation>Specificare nuova scala del tipo di linea &lt;%1&gt;: </translation>
    </message>
    <message>
        <source>Enter new lineweight &lt;%1&gt;: </source>
        <translation>Digitare nuovo spessore di linea &lt;%1&gt;: </translation>
    </message>
    <message>
        <source>A drawing of this version has no lineweights.</source>
        <translation>Un disegno di questa versione non ha spessori di linea.</translation>
    </message>
    <message>
        <source>Requires a lineweight from 0 to 2.11.</source>
        <translation>Occorre uno spessore di linea da 0 a 2.11.</translation>
    </message>
    <message>
        <source>Specify new thickness &lt;%1&gt;: </source>
        <translation>Specificare nuovo spessore &lt;%1&gt;: </translation>
    </message>
    <message>
        <source>Enter new transparency value &lt;ByLayer&gt;: </source>
        <translation>Digitare nuovo valore di trasparenza &lt;ByLayer&gt;: </translation>
    </message>
    <message>
        <source>A drawing of this version has no transparency.</source>
        <translation>Un disegno di questa versione non ha trasparenza.</translation>
    </message>
    <message>
        <source>Requires an integer from 0 to 90.</source>
        <translation>Occorre un intero da 0 a 90.</translation>
    </message>
    <message>
        <source>Specify new elevation &lt;%1&gt;: </source>
        <translation>Specificare nuova elevazione &lt;%1&gt;: </translation>
    </message>
    <message>
        <source>
%1 of the pieces could not be made.</source>
        <translation>
%1 delle parti non sono state create.</translation>
    </message>
    <message>
        <source>Specify stretch point or [Base point/Copy/Undo/eXit]: </source>
        <translation>Specificare punto di stiramento o [Base point/Copy/Undo/eXit]: </translation>
    </message>
    <message>
        <source>Specify move point or [Base point/Copy/Undo/eXit]: </source>
        <translation>Specificare punto di spostamento o [Base point/Copy/Undo/eXit]: </translation>
    </message>
    <message>
        <source>Specify rotation angle or [Base point/Copy/Undo/Reference/eXit]: </source>
        <translation>Specificare angolo di rotazione o [Base point/Copy/Undo/Reference/eXit]: </translation>
    </message>
    <message>
        <source>Specify scale factor or [Base point/Copy/Undo/Reference/eXit]: </source>
        <translation>Specificare fattore di scala o [Base point/Copy/Undo/Reference/eXit]: </translation>
    </message>
    <message>
        <source>Specify second point or [Base point/Copy/Undo/eXit]: </source>
        <translation>Specificare secondo punto o [Base point/Copy/Undo/eXit]: </translation>
    </message>
    <message>
        <source> (multiple)</source>
        <translation> (multiplo)</translation>
    </message>
    <message>
        <source>Specify grips to move: </source>
        <translation>Specificare grip da spostare: </translation>
    </message>
    <message>
        <source>There is no grip of the chosen entities.</source>
        <translation>Le entità scelte non hanno grip in quel punto.</translation>
    </message>
    <message>
        <source>
There is nothing to undo.</source>
        <translation>
Non c&apos;è nulla da annullare.</translation>
    </message>
    <message>
        <source>Enter a setting to switch off or on [%1] &lt;exit&gt;: </source>
        <translation>Digitare un&apos;impostazione da disattivare o attivare [%1] &lt;esci&gt;: </translation>
    </message>
    <message>
        <source>
%1 is %2.</source>
        <translation>
%1 è %2.</translation>
    </message>
    <message>
        <source>Select source object: </source>
        <translation>Selezionare oggetto di origine: </translation>
    </message>
    <message>
        <source>
Current active settings:  </source>
        <translation>
Impostazioni attive correnti:  </translation>
    </message>
    <message>
        <source>Select destination object(s) or [Settings]: </source>
        <translation>Selezionare oggetti di destinazione o [Settings]: </translation>
    </message>
    <message>
        <source>
%1 selected.</source>
        <translation>
%1 selezionati.</translation>
    </message>
    <message>
        <source>Specify first point of mirror line: </source>
        <translation>Specificare primo punto della linea di simmetria: </translation>
    </message>
    <message>
        <source>Specify second point of mirror line: </source>
        <translation>Specificare secondo punto della linea di simmetria: </translation>
    </message>
    <message>
        <source>Erase source objects? [Yes/No] &lt;N&gt;: </source>
        <translation>Cancellare gli oggetti di origine? [Yes/No] &lt;N&gt;: </translation>
    </message>
    <message>
        <source>Specify first point on mirror plane: </source>
        <translation>Specificare primo punto sul piano di simmetria: </translation>
    </message>
    <message>
        <source>Specify second point on mirror plane: </source>
        <translation>Specificare secondo punto sul piano di simmetria: </translation>
    </message>
    <message>
        <source>Specify third point on mirror plane: </source>
        <translation>Specificare terzo punto sul piano di simmetria: </translation>
    </message>
    <message>
        <source>Specify point on %1 plane &lt;%2&gt;: </source>
        <translation>Specificare punto sul piano %1 &lt;%2&gt;: </translation>
    </message>
    <message>
        <source>Specify first point of mirror plane (3 points) or [Zaxis/View/XY/YZ/ZX/3points] &lt;3points&gt;: </source>
        <translation>Specificare primo punto del piano di simmetria (3 punti) o [Zaxis/View/XY/YZ/ZX/3points] &lt;3points&gt;: </translation>
    </message>
    <message>
        <source>Specify point on mirror plane: </source>
        <translation>Specificare punto sul piano di simmetria: </translation>
    </message>
    <message>
        <source>Specify point on Z-axis (normal) of mirror plane: </source>
        <translation>Specificare punto sull&apos;asse Z (normale) del piano di simmetria: </translation>
    </message>
    <message>
        <source>Specify point on view plane &lt;0,0,0&gt;: </source>
        <translation>Specificare punto sul piano della vista &lt;0,0,0&gt;: </translation>
    </message>
    <message>
        <source>The points say no plane.</source>
        <translation>I punti non indicano nessun piano.</translation>
    </message>
    <message>
        <source>Delete source objects? [Yes/No] &lt;N&gt;: </source>
        <translation>Eliminare gli oggetti di origine? [Yes/No] &lt;N&gt;: </translation>
    </message>
    <message>
        <source>The sheet has no viewport.</source>
        <translation>Il foglio non ha nessuna finestra.</translation>
    </message>
    <message>
        <source>
%1 object(s) changed from MODEL space to PAPER space.</source>
        <translation>
%1 oggetto/i passato/i dallo spazio MODELLO allo spazio CARTA.</translation>
    </message>
    <message>
        <source>
%1 object(s) changed from PAPER space to MODEL space.</source>
        <translation>
%1 oggetto/i passato/i dallo spazio CARTA allo spazio MODELLO.</translation>
    </message>
    <message>
        <source>
Objects were scaled by a factor of %1 to maintain visual appearance.</source>
        <translation>
Gli oggetti sono stati scalati di un fattore %1 per mantenere l&apos;aspetto.</translation>
    </message>
    <message>
        <source>Only a layout has both spaces.</source>
        <translation>Solo un layout ha entrambi gli spazi.</translation>
    </message>
    <message>
        <source>
Select objects to stretch by crossing-window or crossing-polygon...</source>
        <translation>
Selezionare oggetti da stirare con finestra o poligono di intersezione...</translation>
    </message>
    <message>
        <source>Enter name of customization file to load: </source>
        <translation>Digitare nome del file di personalizzazione da caricare: </translation>
    </message>
    <message>
        <source>
&quot;%1&quot; was not loaded: there are no menu files here.</source>
        <translation>
&quot;%1&quot; non è stato caricato: qui non ci sono file di menu.</translation>
    </message>
    <message>
        <source>Enter name of customization group to unload: </source>
        <translation>Digitare nome del gruppo di personalizzazione da scaricare: </translation>
    </message>
    <message>
        <source>
There is no customization group &quot;%1&quot;.</source>
        <translation>
Non c&apos;è nessun gruppo di personalizzazione &quot;%1&quot;.</translation>
    </message>
    <message>
        <source>Enter name of assembly to load: </source>
        <translation>Digitare nome dell&apos;assembly da caricare: </translation>
    </message>
    <message>
        <source>
&quot;%1&quot; was not loaded: programs for other hosts do not run here.</source>
        <translation>
&quot;%1&quot; non è stato caricato: i programmi per altri host non funzionano qui.</translation>
    </message>
    <message>
        <source>Enter an option [?/Load/Unload/Commands/Options]: </source>
        <translation>Digitare un&apos;opzione [?/Load/Unload/Commands/Options]: </translation>
    </message>
    <message>
        <source>Enter name of application file: </source>
        <translation>Digitare nome del file di applicazione: </translation>
    </message>
    <message>
        <source>
Programs for other hosts do not run here.</source>
        <translation>
I programmi per altri host non funzionano qui.</translation>
    </message>
    <message>
        <source>Enter delay time (in milliseconds): </source>
        <translation>Digitare tempo di attesa (in millisecondi): </translation>
    </message>
    <message>
        <source>Fix any errors detected? [Yes/No] &lt;No&gt;: </source>
        <translation>Correggere gli errori rilevati? [Yes/No] &lt;No&gt;: </translation>
    </message>
    <message>
        <source>
Total errors found %1 fixed %2</source>
        <translation>
Totale errori trovati %1 corretti %2</translation>
    </message>
    <message>
        <source>
Save the drawing and open it with --recover: that mends the others.</source>
        <translation>
Salvare il disegno e aprirlo con --recover: così si riparano gli altri.</translation>
    </message>
    <message>
        <source>Enter name of drawing to open: </source>
        <translation>Digitare nome del disegno da aprire: </translation>
    </message>
    <message>
        <source>Enter template file name or [. (for none)] &lt;.&gt;: </source>
        <translation>Digitare nome del file modello o [. (for none)] &lt;.&gt;: </translation>
    </message>
    <message>
        <source>Cannot find template &quot;%1&quot;.</source>
        <translation>Impossibile trovare il modello &quot;%1&quot;.</translation>
    </message>
    <message>
        <source>Save changes to %1? [Yes/No/Cancel] &lt;Yes&gt;: </source>
        <translation>Salvare le modifiche a %1? [Yes/No/Cancel] &lt;Yes&gt;: </translation>
    </message>
    <message>
        <source>Really want to discard all changes to drawing? [Yes/No] &lt;No&gt;: </source>
        <translation>Scartare davvero tutte le modifiche al disegno? [Yes/No] &lt;No&gt;: </translation>
    </message>
    <message>
        <source>another version</source>
        <translation>un&apos;altra versione</translation>
    </message>
    <message>
        <source>This drawing is of %1, and this program writes no drawing in another version: nothing was written.</source>
        <translation>Questo disegno è di %1, e questo programma non scrive disegni in un&apos;altra versione: non è stato scritto nulla.</translation>
    </message>
    <message>
        <source>Enter decimal places of accuracy (0 to 16) or [Objects/Binary/Version] &lt;16&gt;: </source>
        <translation>Digitare cifre decimali di precisione (da 0 a 16) o [Objects/Binary/Version] &lt;16&gt;: </translation>
    </message>
    <message>
        <source>Enter version [%1]: </source>
        <translation>Digitare versione [%1]: </translation>
    </message>
    <message>
        <source>This program writes whole drawings with all decimal places: nothing was written.</source>
        <translation>Questo programma scrive disegni interi con tutti i decimali: non è stato scritto nulla.</translation>
    </message>
    <message>
        <source>Save drawing as, or enter file format [%1/DXF] &lt;%2&gt;: </source>
        <translation>Salvare il disegno come, o digitare formato di file [%1/DXF] &lt;%2&gt;: </translation>
    </message>
    <message>
        <source>Save drawing as &lt;%1&gt;: </source>
        <translation>Salvare il disegno come &lt;%1&gt;: </translation>
    </message>
    <message>
        <source>
The rest of the script that called it is left out.</source>
        <translation>
Il resto dello script chiamante viene omesso.</translation>
    </message>
    <message>
        <source>
Too many scripts wait to be run: &quot;%1&quot; is left out.</source>
        <translation>
Troppi script attendono l&apos;esecuzione: &quot;%1&quot; viene omesso.</translation>
    </message>
    <message>
        <source>Enter script file name: </source>
        <translation>Digitare nome del file di script: </translation>
    </message>
    <message>
        <source>
Cannot read script &quot;%1&quot;.</source>
        <translation>
Impossibile leggere lo script &quot;%1&quot;.</translation>
    </message>
    <message>
        <source>
Cannot read script &quot;%1&quot;: %2 (the limit is %3 MB).</source>
        <translation>
Impossibile leggere lo script &quot;%1&quot;: %2 (il limite è %3 MB).</translation>
    </message>
    <message>
        <source>No script has been run.</source>
        <translation>Nessuno script è stato eseguito.</translation>
    </message>
    <message>
        <source>%1 [Yes/No] &lt;%2&gt;: </source>
        <translation>%1 [Yes/No] &lt;%2&gt;: </translation>
    </message>
    <message>
        <source>Enter a layout name</source>
        <translation>Digitare nome di un layout</translation>
    </message>
    <message>
        <source>Layout &quot;%1&quot; not found.</source>
        <translation>Layout &quot;%1&quot; non trovato.</translation>
    </message>
    <message>
        <source>Enter an output device name</source>
        <translation>Digitare nome di un dispositivo di output</translation>
    </message>
    <message>
        <source>There is no device &quot;%1&quot;: plots are files of PDF, PNG or SVG.</source>
        <translation>Non c&apos;è nessun dispositivo &quot;%1&quot;: le stampe sono file PDF, PNG o SVG.</translation>
    </message>
    <message>
        <source>Enter paper size</source>
        <translation>Digitare formato carta</translation>
    </message>
    <message>
        <source>There is no paper size &quot;%1&quot;.</source>
        <translation>Non c&apos;è nessun formato carta &quot;%1&quot;.</translation>
    </message>
    <message>
        <source>Enter paper units [Inches/Millimeters] &lt;Millimeters&gt;: </source>
        <translation>Digitare unità della carta [Inches/Millimeters] &lt;Millimeters&gt;: </translation>
    </message>
    <message>
        <source>Enter drawing orientation [Portrait/Landscape] &lt;%1&gt;: </source>
        <translation>Digitare orientamento del disegno [Portrait/Landscape] &lt;%1&gt;: </translation>
    </message>
    <message>
        <source>Plot upside down?</source>
        <translation>Stampare capovolto?</translation>
    </message>
    <message>
        <source>
Plots stand upright here.</source>
        <translation>
Qui le stampe sono sempre diritte.</translation>
    </message>
    <message>
        <source>Enter lower left corner of window &lt;0.000000,0.000000&gt;: </source>
        <translation>Digitare angolo inferiore sinistro della finestra &lt;0.000000,0.000000&gt;: </translation>
    </message>
    <message>
        <source>Enter upper right corner of window: </source>
        <translation>Digitare angolo superiore destro della finestra: </translation>
    </message>
    <message>
        <source>Enter plot area [%1] &lt;%2&gt;: </source>
        <translation>Digitare area di stampa [%1] &lt;%2&gt;: </translation>
    </message>
    <message>
        <source>Enter view name: </source>
        <translation>Digitare nome della vista: </translation>
    </message>
    <message>
        <source>Cannot find view &quot;%1&quot;.</source>
        <translation>Impossibile trovare la vista &quot;%1&quot;.</translation>
    </message>
    <message>
        <source>Enter plot scale (Plotted Millimeters=Drawing Units) or [Fit] &lt;%1&gt;: </source>
        <translation>Digitare scala di stampa (millimetri stampati=unità disegno) o [Fit] &lt;%1&gt;: </translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no plot scale.</source>
        <translation>&quot;%1&quot; non è una scala di stampa.</translation>
    </message>
    <message>
        <source>Enter plot offset (x,y) or [Center] &lt;Center&gt;: </source>
        <translation>Digitare offset di stampa (x,y) o [Center] &lt;Center&gt;: </translation>
    </message>
    <message>
        <source>Plot with plot styles?</source>
        <translation>Stampare con stili di stampa?</translation>
    </message>
    <message>
        <source>Enter plot style table name</source>
        <translation>Digitare nome della tabella stili di stampa</translation>
    </message>
    <message>
        <source>Plot with lineweights?</source>
        <translation>Stampare con spessori di linea?</translation>
    </message>
    <message>
        <source>Enter shade plot setting [As displayed/Wireframe/Hidden/Visual styles/Rendered] &lt;As displayed&gt;: </source>
        <translation>Digitare impostazione di stampa ombreggiata [As displayed/Wireframe/Hidden/Visual styles/Rendered] &lt;As displayed&gt;: </translation>
    </message>
    <message>
        <source>Scale lineweights with plot scale?</source>
        <translation>Scalare gli spessori di linea con la scala di stampa?</translation>
    </message>
    <message>
        <source>Plot paper space first?</source>
        <translation>Stampare prima lo spazio carta?</translation>
    </message>
    <message>
        <source>Hide paperspace objects?</source>
        <translation>Nascondere gli oggetti dello spazio carta?</translation>
    </message>
    <message>
        <source>Enter file name &lt;%1&gt;: </source>
        <translation>Digitare nome del file &lt;%1&gt;: </translation>
    </message>
    <message>
        <source>Save changes to page setup?</source>
        <translation>Salvare le modifiche all&apos;impostazione di pagina?</translation>
    </message>
    <message>
        <source>Proceed with plot</source>
        <translation>Procedere con la stampa</translation>
    </message>
    <message>
        <source>Enter a page setup name &lt;&gt;: </source>
        <translation>Digitare nome di un&apos;impostazione di pagina &lt;&gt;: </translation>
    </message>
    <message>
        <source>Detailed plot configuration?</source>
        <translation>Configurazione dettagliata della stampa?</translation>
    </message>
    <message>
        <source>
Plotted to %1.</source>
        <translation>
Stampato su %1.</translation>
    </message>
    <message>
        <source>Cannot find plot style table &quot;%1&quot;.</source>
        <translation>Impossibile trovare la tabella stili di stampa &quot;%1&quot;.</translation>
    </message>
    <message>
        <source>
Some of what the drawing holds is not drawn, or in part.</source>
        <translation>
Parte del contenuto del disegno non viene disegnata, o solo parzialmente.</translation>
    </message>
    <message>
        <source>Purge %1 &quot;%2&quot;? [Yes/No] &lt;No&gt;: </source>
        <translation>Eliminare %1 &quot;%2&quot;? [Yes/No] &lt;No&gt;: </translation>
    </message>
    <message>
        <source>
Deleting %1 &quot;%2&quot;.</source>
        <translation>
Eliminazione di %1 &quot;%2&quot;.</translation>
    </message>
    <message>
        <source>Enter name(s) to purge &lt;*&gt;: </source>
        <translation>Digitare nomi da eliminare &lt;*&gt;: </translation>
    </message>
    <message>
        <source>Verify each name to be purged? [Yes/No] &lt;Yes&gt;: </source>
        <translation>Verificare ogni nome da eliminare? [Yes/No] &lt;Yes&gt;: </translation>
    </message>
    <message>
        <source>
Nothing unreferenced found.</source>
        <translation>
Nessun elemento senza riferimenti trovato.</translation>
    </message>
    <message>
        <source>
%1 orphaned objects deleted.</source>
        <translation>
%1 oggetti orfani eliminati.</translation>
    </message>
    <message>
        <source>
%1 entities without length deleted.</source>
        <translation>
%1 entità di lunghezza nulla eliminate.</translation>
    </message>
    <message>
        <source>
%1 empty texts deleted.</source>
        <translation>
%1 testi vuoti eliminati.</translation>
    </message>
    <message>
        <source>
No unreferenced %1 found.</source>
        <translation>
Nessun elemento senza riferimenti trovato: %1.</translation>
    </message>
    <message>
        <source>Enter type of unused objects to purge [Blocks/DEtailviewstyles/Dimstyles/Groups/LAyers/LTypes/MAterials/MUltileaderstyles/Plotstyles/SHapes/textSTyles/Mlinestyles/SEctionviewstyles/Tablestyles/Visualstyles/Regapps/Zero-length geometry/Empty text objects/Orphaned data/All]: </source>
        <translation>Digitare tipo di oggetti inutilizzati da eliminare [Blocks/DEtailviewstyles/Dimstyles/Groups/LAyers/LTypes/MAterials/MUltileaderstyles/Plotstyles/SHapes/textSTyles/Mlinestyles/SEctionviewstyles/Tablestyles/Visualstyles/Regapps/Zero-length geometry/Empty text objects/Orphaned data/All]: </translation>
    </message>
    <message>
        <source>block</source>
        <translation>blocco</translation>
    </message>
    <message>
        <source>dimension style</source>
        <translation>stile di quota</translation>
    </message>
    <message>
        <source>layer</source>
        <translation>layer</translation>
    </message>
    <message>
        <source>linetype</source>
        <translation>tipo di linea</translation>
    </message>
    <message>
        <source>material</source>
        <translation>materiale</translation>
    </message>
    <message>
        <source>multileader style</source>
        <translation>stile multidirettrice</translation>
    </message>
    <message>
        <source>text style</source>
        <translation>stile di testo</translation>
    </message>
    <message>
        <source>table style</source>
        <translation>stile di tabella</translation>
    </message>
    <message>
        <source>UCS</source>
        <translation>UCS</translation>
    </message>
    <message>
        <source>view</source>
        <translation>vista</translation>
    </message>
    <message>
        <source>viewport</source>
        <translation>finestra</translation>
    </message>
    <message>
        <source>layout</source>
        <translation>layout</translation>
    </message>
    <message>
        <source>Enter object type to rename [Block/Dimstyle/LAyer/LType/Material/multileadersTyle/Style/Tablestyle/Ucs/VIew/VPort]: </source>
        <translation>Digitare tipo di oggetto da rinominare [Block/Dimstyle/LAyer/LType/Material/multileadersTyle/Style/Tablestyle/Ucs/VIew/VPort]: </translation>
    </message>
    <message>
        <source>Enter old %1 name: </source>
        <translation>Digitare vecchio nome di %1: </translation>
    </message>
    <message>
        <source>Enter new %1 name: </source>
        <translation>Digitare nuovo nome di %1: </translation>
    </message>
    <message>
        <source>Enter command name: </source>
        <translation>Digitare nome del comando: </translation>
    </message>
    <message>
        <source>Unknown command &quot;%1&quot;.</source>
        <translation>Comando sconosciuto &quot;%1&quot;.</translation>
    </message>
    <message>
        <source>
%1 is a command already.</source>
        <translation>
%1 è già un comando.</translation>
    </message>
    <message>
        <source>
Saved to %1.</source>
        <translation>
Salvato in %1.</translation>
    </message>
    <message>
        <source>Save all the same, or under another name? [Anyway/Name/Cancel] &lt;Cancel&gt;: </source>
        <translation>Salvare comunque o con un altro nome? [Anyway/Name/Cancel] &lt;Cancel&gt;: </translation>
    </message>
    <message>
        <source>Save under another name? [Name/Cancel] &lt;Cancel&gt;: </source>
        <translation>Salvare con un altro nome? [Name/Cancel] &lt;Cancel&gt;: </translation>
    </message>
    <message>
        <source>Nothing was written.</source>
        <translation>Non è stato scritto nulla.</translation>
    </message>
    <message>
        <source>Save drawing as: </source>
        <translation>Salvare il disegno come: </translation>
    </message>
    <message>
        <source>%1 cannot be set to that value.</source>
        <translation>%1 non può assumere quel valore.</translation>
    </message>
    <message>
        <source>Enter mode [ON/OFF] &lt;%1&gt;: </source>
        <translation>Digitare modo [ON/OFF] &lt;%1&gt;: </translation>
    </message>
    <message>
        <source>Specify horizontal spacing(X) &lt;%1&gt;: </source>
        <translation>Specificare spaziatura orizzontale(X) &lt;%1&gt;: </translation>
    </message>
    <message>
        <source>Specify vertical spacing(Y) &lt;%1&gt;: </source>
        <translation>Specificare spaziatura verticale(Y) &lt;%1&gt;: </translation>
    </message>
    <message>
        <source>Specify grid spacing(X) or [ON/OFF/Snap/Aspect]</source>
        <translation>Specificare spaziatura della griglia(X) o [ON/OFF/Snap/Aspect]</translation>
    </message>
    <message>
        <source>Specify snap spacing or [ON/OFF/Aspect/Rotate/Style/Type]</source>
        <translation>Specificare spaziatura dello snap o [ON/OFF/Aspect/Rotate/Style/Type]</translation>
    </message>
    <message>
        <source>Specify base point &lt;%1&gt;: </source>
        <translation>Specificare punto base &lt;%1&gt;: </translation>
    </message>
    <message>
        <source>Enter snap grid style [Standard/Isometric] &lt;%1&gt;: </source>
        <translation>Digitare stile della griglia di snap [Standard/Isometric] &lt;%1&gt;: </translation>
    </message>
    <message>
        <source>Specify vertical spacing</source>
        <translation>Specificare spaziatura verticale</translation>
    </message>
    <message>
        <source>Specify snap spacing or [Aspect]</source>
        <translation>Specificare spaziatura dello snap o [Aspect]</translation>
    </message>
    <message>
        <source>Enter snap type [Polar/Grid] &lt;%1&gt;: </source>
        <translation>Digitare tipo di snap [Polar/Grid] &lt;%1&gt;: </translation>
    </message>
    <message>
        <source>Enter isometric plane setting [Left/Top/Right] &lt;%1&gt;: </source>
        <translation>Digitare piano isometrico [Left/Top/Right] &lt;%1&gt;: </translation>
    </message>
    <message>
        <source>
Current Isoplane: </source>
        <translation>
Piano isometrico corrente: </translation>
    </message>
    <message>
        <source>Specify lower left corner or [ON/OFF] &lt;%1&gt;: </source>
        <translation>Specificare angolo inferiore sinistro o [ON/OFF] &lt;%1&gt;: </translation>
    </message>
    <message>
        <source>Specify upper right corner &lt;%1&gt;: </source>
        <translation>Specificare angolo superiore destro &lt;%1&gt;: </translation>
    </message>
    <message>
        <source>Specify new default elevation &lt;%1&gt;: </source>
        <translation>Specificare nuova elevazione di default &lt;%1&gt;: </translation>
    </message>
    <message>
        <source>Specify new default thickness &lt;%1&gt;: </source>
        <translation>Specificare nuovo spessore di default &lt;%1&gt;: </translation>
    </message>
    <message>
        <source>Enter default object color [Truecolor/COlorbook] &lt;%1&gt;: </source>
        <translation>Digitare colore di default degli oggetti [Truecolor/COlorbook] &lt;%1&gt;: </translation>
    </message>
    <message>
        <source>New objects take colors by number or name here.</source>
        <translation>Qui i nuovi oggetti prendono i colori per numero o nome.</translation>
    </message>
    <message>
        <source>
Everything has been undone.</source>
        <translation>
Tutto è stato annullato.</translation>
    </message>
    <message>
        <source>Enter UNDO Auto mode [ON/OFF] &lt;ON&gt;: </source>
        <translation>Digitare modo Auto di UNDO [ON/OFF] &lt;ON&gt;: </translation>
    </message>
    <message>
        <source>Enter an UNDO control option [All/None/One/Combine/Layer] &lt;All&gt;: </source>
        <translation>Digitare un&apos;opzione di controllo di UNDO [All/None/One/Combine/Layer] &lt;All&gt;: </translation>
    </message>
    <message>
        <source>Combine zoom and pan operations? [Yes/No] &lt;Yes&gt;: </source>
        <translation>Combinare operazioni di zoom e pan? [Yes/No] &lt;Yes&gt;: </translation>
    </message>
    <message>
        <source>Combine layer property changes? [Yes/No] &lt;Yes&gt;: </source>
        <translation>Combinare modifiche delle proprietà dei layer? [Yes/No] &lt;Yes&gt;: </translation>
    </message>
    <message>
        <source>
Undo is always on.</source>
        <translation>
L&apos;annullamento è sempre attivo.</translation>
    </message>
    <message>
        <source>This will undo everything. OK? [Yes/No] &lt;Yes&gt;: </source>
        <translation>Questo annullerà tutto. Va bene? [Yes/No] &lt;Yes&gt;: </translation>
    </message>
    <message>
        <source>Enter the number of operations to undo or [Auto/Control/BEgin/End/Mark/Back] &lt;1&gt;: </source>
        <translation>Digitare numero di operazioni da annullare o [Auto/Control/BEgin/End/Mark/Back] &lt;1&gt;: </translation>
    </message>
    <message>
        <source>
There is nothing to redo.</source>
        <translation>
Non c&apos;è nulla da ripristinare.</translation>
    </message>
    <message>
        <source>Enter number of actions or [All/Last]: </source>
        <translation>Digitare numero di azioni o [All/Last]: </translation>
    </message>
    <message>
        <source>
There is nothing to bring back.</source>
        <translation>
Non c&apos;è nulla da recuperare.</translation>
    </message>
    <message>
        <source>Enter command name to repeat: </source>
        <translation>Digitare nome del comando da ripetere: </translation>
    </message>
    <message>
        <source>Unknown command &quot;%1&quot;: only built-in ones are repeated.</source>
        <translation>Comando sconosciuto &quot;%1&quot;: si ripetono solo quelli incorporati.</translation>
    </message>
    <message>
        <source>Requires an integer between %1 and %2.</source>
        <translation>Occorre un intero fra %1 e %2.</translation>
    </message>
    <message>
        <source>Enter denominator of smallest fraction to display (1, 2, 4, 8, 16, 32, 64, 128, or 256) &lt;%1&gt;: </source>
        <translation>Digitare denominatore della frazione più piccola da visualizzare (1, 2, 4, 8, 16, 32, 64, 128 o 256) &lt;%1&gt;: </translation>
    </message>
    <message>
        <source>Requires a power of two up to 256.</source>
        <translation>Occorre una potenza di due fino a 256.</translation>
    </message>
    <message>
        <source>
Report formats: 1. Scientific  2. Decimal  3. Engineering  4. Architectural  5. Fractional</source>
        <translation>
Formati: 1. Scientifico  2. Decimale  3. Ingegneria  4. Architettonico  5. Frazionario</translation>
    </message>
    <message>
        <source>Enter choice, 1 to 5</source>
        <translation>Digitare scelta, da 1 a 5</translation>
    </message>
    <message>
        <source>Enter number of digits to right of decimal point (0 to 8)</source>
        <translation>Digitare numero di cifre decimali (da 0 a 8)</translation>
    </message>
    <message>
        <source>
Systems of angle measure: 1. Decimal degrees  2. Degrees/minutes/seconds  3. Grads  4. Radians  5. Surveyor&apos;s units</source>
        <translation>
Sistemi di misura angolare: 1. Gradi decimali  2. Gradi/primi/secondi  3. Gradi centesimali  4. Radianti  5. Unità topografiche</translation>
    </message>
    <message>
        <source>Enter number of fractional places for display of angles (0 to 8)</source>
        <translation>Digitare numero di decimali per gli angoli (da 0 a 8)</translation>
    </message>
    <message>
        <source>Enter direction for angle 0 &lt;%1&gt;: </source>
        <translation>Digitare direzione dell&apos;angolo 0 &lt;%1&gt;: </translation>
    </message>
    <message>
        <source>Measure angles clockwise? [Yes/No] &lt;%1&gt;: </source>
        <translation>Misurare gli angoli in senso orario? [Yes/No] &lt;%1&gt;: </translation>
    </message>
    <message>
        <source>%1 mm</source>
        <translation>%1 mm</translation>
    </message>
    <message>
        <source>
Current lineweight: %1</source>
        <translation>
Spessore di linea corrente: %1</translation>
    </message>
    <message>
        <source>Enter default lineweight for new objects or [?]: </source>
        <translation>Digitare spessore di linea di default per i nuovi oggetti o [?]: </translation>
    </message>
    <message>
        <source>
ByLayer, ByBlock, Default, or 0.00 to 2.11 mm</source>
        <translation>
ByLayer, ByBlock, Default o da 0.00 a 2.11 mm</translation>
    </message>
    <message>
        <source>from point,</source>
        <translation>dal punto,</translation>
    </message>
    <message>
        <source>  to point,</source>
        <translation>  al punto,</translation>
    </message>
    <message>
        <source>Length = %1,  Angle in XY Plane = %2</source>
        <translation>Lunghezza = %1,  Angolo nel piano XY = %2</translation>
    </message>
    <message>
        <source>Delta X = %1, Delta Y = %2, Delta Z = %3</source>
        <translation>Delta X = %1, Delta Y = %2, Delta Z = %3</translation>
    </message>
    <message>
        <source>at point,</source>
        <translation>nel punto,</translation>
    </message>
    <message>
        <source>base point,</source>
        <translation>punto base,</translation>
    </message>
    <message>
        <source>through point,</source>
        <translation>passa per il punto,</translation>
    </message>
    <message>
        <source>center point,</source>
        <translation>punto centrale,</translation>
    </message>
    <message>
        <source>start angle</source>
        <translation>angolo iniziale</translation>
    </message>
    <message>
        <source>end angle</source>
        <translation>angolo finale</translation>
    </message>
    <message>
        <source>Center:</source>
        <translation>Centro:</translation>
    </message>
    <message>
        <source>Major Axis:</source>
        <translation>Asse maggiore:</translation>
    </message>
    <message>
        <source>at point</source>
        <translation>nel punto</translation>
    </message>
    <message>
        <source>Constant width</source>
        <translation>Larghezza costante</translation>
    </message>
    <message>
        <source>first point</source>
        <translation>primo punto</translation>
    </message>
    <message>
        <source>second point</source>
        <translation>secondo punto</translation>
    </message>
    <message>
        <source>third point</source>
        <translation>terzo punto</translation>
    </message>
    <message>
        <source>fourth point</source>
        <translation>quarto punto</translation>
    </message>
    <message>
        <source>Control Point:</source>
        <translation>Punto di controllo:</translation>
    </message>
    <message>
        <source>Fit Point:</source>
        <translation>Punto di adattamento:</translation>
    </message>
    <message>
        <source>alignment point,</source>
        <translation>punto di allineamento,</translation>
    </message>
    <message>
        <source>start point,</source>
        <translation>punto iniziale,</translation>
    </message>
    <message>
        <source>rotation angle</source>
        <translation>angolo di rotazione</translation>
    </message>
    <message>
        <source>width scale</source>
        <translation>scala di larghezza</translation>
    </message>
    <message>
        <source>obliquing angle</source>
        <translation>angolo di inclinazione</translation>
    </message>
    <message>
        <source>Location:</source>
        <translation>Posizione:</translation>
    </message>
    <message>
        <source>Text style</source>
        <translation>Stile di testo</translation>
    </message>
    <message>
        <source>Text height</source>
        <translation>Altezza testo</translation>
    </message>
    <message>
        <source>X scale factor</source>
        <translation>Fattore di scala X</translation>
    </message>
    <message>
        <source>Y scale factor</source>
        <translation>Fattore di scala Y</translation>
    </message>
    <message>
        <source>Z scale factor</source>
        <translation>Fattore di scala Z</translation>
    </message>
    <message>
        <source>number of columns</source>
        <translation>numero di colonne</translation>
    </message>
    <message>
        <source>number of rows</source>
        <translation>numero di righe</translation>
    </message>
    <message>
        <source>between columns</source>
        <translation>fra le colonne</translation>
    </message>
    <message>
        <source>between rows</source>
        <translation>fra le righe</translation>
    </message>
    <message>
        <source>arc length</source>
        <translation>lunghezza dell&apos;arco</translation>
    </message>
    <message>
        <source>jogged radius</source>
        <translation>raggio ridotto</translation>
    </message>
    <message>
        <source>defining point:</source>
        <translation>punto di definizione:</translation>
    </message>
    <message>
        <source>Hatch pattern</source>
        <translation>Modello di tratteggio</translation>
    </message>
    <message>
        <source>Hatch scale</source>
        <translation>Scala del tratteggio</translation>
    </message>
    <message>
        <source>Hatch angle</source>
        <translation>Angolo del tratteggio</translation>
    </message>
    <message>
        <source>Scale relative to Paper space</source>
        <translation>Scala relativa allo spazio carta</translation>
    </message>
    <message>
        <source>Bounding Box: Lower Bound</source>
        <translation>Riquadro di delimitazione: limite inferiore</translation>
    </message>
    <message>
        <source>Area:</source>
        <translation>Area:</translation>
    </message>
    <message>
        <source>Perimeter:</source>
        <translation>Perimetro:</translation>
    </message>
    <message>
        <source>Color:</source>
        <translation>Colore:</translation>
    </message>
    <message>
        <source>Linetype:</source>
        <translation>Tipo di linea:</translation>
    </message>
    <message>
        <source>Linetype scale</source>
        <translation>Scala tipo di linea</translation>
    </message>
    <message>
        <source>Lineweight:</source>
        <translation>Spessore di linea:</translation>
    </message>
    <message>
        <source>%1  Layer: &quot;%2&quot;</source>
        <translation>%1  Layer: &quot;%2&quot;</translation>
    </message>
    <message>
        <source>Space:</source>
        <translation>Spazio:</translation>
    </message>
    <message>
        <source>Model space</source>
        <translation>Spazio modello</translation>
    </message>
    <message>
        <source>Paper space</source>
        <translation>Spazio carta</translation>
    </message>
    <message>
        <source>Layout:</source>
        <translation>Layout:</translation>
    </message>
    <message>
        <source>Handle =</source>
        <translation>Handle =</translation>
    </message>
    <message>
        <source>
Distance = %1,  Angle in XY Plane = %2,  Angle from XY Plane = %3</source>
        <translation>
Distanza = %1,  Angolo nel piano XY = %2,  Angolo dal piano XY = %3</translation>
    </message>
    <message>
        <source>
Delta X = %1,  Delta Y = %2,   Delta Z = %3</source>
        <translation>
Delta X = %1,  Delta Y = %2,   Delta Z = %3</translation>
    </message>
    <message>
        <source>Specify next point or [Close/Undo/Total] &lt;Total&gt;: </source>
        <translation>Specificare punto successivo o [Close/Undo/Total] &lt;Total&gt;: </translation>
    </message>
    <message>
        <source>
Distance = %1</source>
        <translation>
Distanza = %1</translation>
    </message>
    <message>
        <source>Specify second point or [Multiple points]: </source>
        <translation>Specificare secondo punto o [Multiple points]: </translation>
    </message>
    <message>
        <source>%1 days %2:%3:%4</source>
        <translation>%1 giorni %2:%3:%4</translation>
    </message>
    <message>
        <source>
Current time:             </source>
        <translation>
Ora corrente:             </translation>
    </message>
    <message>
        <source>
Times for this drawing:</source>
        <translation>
Tempi per questo disegno:</translation>
    </message>
    <message>
        <source>
  Created:                </source>
        <translation>
  Creato:                </translation>
    </message>
    <message>
        <source>
  Last updated:           </source>
        <translation>
  Ultimo aggiornamento:           </translation>
    </message>
    <message>
        <source>
  Total editing time:     </source>
        <translation>
  Tempo totale di modifica:     </translation>
    </message>
    <message>
        <source>
  Elapsed timer:          </source>
        <translation>
  Cronometro:          </translation>
    </message>
    <message>
        <source>
%1 objects in %2</source>
        <translation>
%1 oggetti in %2</translation>
    </message>
    <message>
        <source>Limits are, low</source>
        <translation>Limiti, inferiore</translation>
    </message>
    <message>
        <source>Limits are, high</source>
        <translation>Limiti, superiore</translation>
    </message>
    <message>
        <source>Uses, low</source>
        <translation>Estensioni, inferiore</translation>
    </message>
    <message>
        <source>Uses, high</source>
        <translation>Estensioni, superiore</translation>
    </message>
    <message>
        <source>Insertion base is</source>
        <translation>La base di inserimento è</translation>
    </message>
    <message>
        <source>Current space:</source>
        <translation>Spazio corrente:</translation>
    </message>
    <message>
        <source>Current layer:</source>
        <translation>Layer corrente:</translation>
    </message>
    <message>
        <source>Current color:</source>
        <translation>Colore corrente:</translation>
    </message>
    <message>
        <source>Current linetype:</source>
        <translation>Tipo di linea corrente:</translation>
    </message>
    <message>
        <source>Current elevation:</source>
        <translation>Elevazione corrente:</translation>
    </message>
    <message>
        <source>Thickness:</source>
        <translation>Spessore:</translation>
    </message>
    <message>
        <source>A drawing of this version has no such property of layers.</source>
        <translation>Un disegno di questa versione non ha tale proprietà dei layer.</translation>
    </message>
    <message>
        <source>New color [Truecolor/COlorbook] &lt;7 (white)&gt;: </source>
        <translation>Nuovo colore [Truecolor/COlorbook] &lt;7 (bianco)&gt;: </translation>
    </message>
    <message>
        <source>Enter loaded linetype name or [?] &lt;%1&gt;: </source>
        <translation>Digitare nome di un tipo di linea caricato o [?] &lt;%1&gt;: </translation>
    </message>
    <message>
        <source>Linetype &quot;%1&quot; not found.</source>
        <translation>Tipo di linea &quot;%1&quot; non trovato.</translation>
    </message>
    <message>
        <source>linetype &quot;%1&quot;</source>
        <translation>tipo di linea &quot;%1&quot;</translation>
    </message>
    <message>
        <source>Enter lineweight (0.0mm - 2.11mm) or [Default]: </source>
        <translation>Digitare spessore di linea (0.0mm - 2.11mm) o [Default]: </translation>
    </message>
    <message>
        <source>Enter transparency value (0-90): </source>
        <translation>Digitare valore di trasparenza (0-90): </translation>
    </message>
    <message>
        <source>transparency value %1</source>
        <translation>valore di trasparenza %1</translation>
    </message>
    <message>
        <source>Enter material name &lt;Global&gt;: </source>
        <translation>Digitare nome del materiale &lt;Global&gt;: </translation>
    </message>
    <message>
        <source>Cannot find material &quot;%1&quot;.</source>
        <translation>Impossibile trovare il materiale &quot;%1&quot;.</translation>
    </message>
    <message>
        <source>material &quot;%1&quot;</source>
        <translation>materiale &quot;%1&quot;</translation>
    </message>
    <message>
        <source>Enter a plotting preference [Plot/No plot] &lt;Plot&gt;: </source>
        <translation>Digitare preferenza di stampa [Plot/No plot] &lt;Plot&gt;: </translation>
    </message>
    <message>
        <source>this plot preference</source>
        <translation>questa preferenza di stampa</translation>
    </message>
    <message>
        <source>Enter layer description: </source>
        <translation>Digitare descrizione del layer: </translation>
    </message>
    <message>
        <source>this description</source>
        <translation>questa descrizione</translation>
    </message>
    <message>
        <source>This program keeps no named plot styles: nothing was changed.</source>
        <translation>Questo programma non conserva stili di stampa con nome: nulla è stato modificato.</translation>
    </message>
    <message>
        <source>
No matching layer names found.</source>
        <translation>
Nessun nome di layer corrispondente trovato.</translation>
    </message>
    <message>
        <source>
Cannot freeze layer &quot;%1&quot;. It is the current layer.</source>
        <translation>
Impossibile congelare il layer &quot;%1&quot;. È il layer corrente.</translation>
    </message>
    <message>
        <source>Enter name list of layer(s) to turn on: </source>
        <translation>Digitare elenco dei layer da attivare: </translation>
    </message>
    <message>
        <source>Enter name list of layer(s) to turn off: </source>
        <translation>Digitare elenco dei layer da disattivare: </translation>
    </message>
    <message>
        <source>Enter name list of layer(s) to freeze: </source>
        <translation>Digitare elenco dei layer da congelare: </translation>
    </message>
    <message>
        <source>Enter name list of layer(s) to thaw: </source>
        <translation>Digitare elenco dei layer da scongelare: </translation>
    </message>
    <message>
        <source>Enter name list of layer(s) to lock: </source>
        <translation>Digitare elenco dei layer da bloccare: </translation>
    </message>
    <message>
        <source>Enter name list of layer(s) to unlock: </source>
        <translation>Digitare elenco dei layer da sbloccare: </translation>
    </message>
    <message>
        <source>Really want layer &quot;%1&quot; (the CURRENT layer) off? [Yes/No] &lt;No&gt;: </source>
        <translation>Disattivare davvero il layer &quot;%1&quot; (il layer CORRENTE)? [Yes/No] &lt;No&gt;: </translation>
    </message>
    <message>
        <source>&quot;%1&quot; cannot be the name of a layer.</source>
        <translation>&quot;%1&quot; non può essere il nome di un layer.</translation>
    </message>
    <message>
        <source>Cannot make layer &quot;%1&quot; current: it is frozen.</source>
        <translation>Impossibile rendere corrente il layer &quot;%1&quot;: è congelato.</translation>
    </message>
    <message>
        <source>Enter name for new layer (becomes the current layer) &lt;%1&gt;: </source>
        <translation>Digitare nome del nuovo layer (diventa il layer corrente) &lt;%1&gt;: </translation>
    </message>
    <message>
        <source>Enter layer name to make current or &lt;select object&gt;: </source>
        <translation>Digitare nome del layer da rendere corrente o &lt;selezionare oggetto&gt;: </translation>
    </message>
    <message>
        <source>Enter name list for new layer(s): </source>
        <translation>Digitare elenco di nomi dei nuovi layer: </translation>
    </message>
    <message>
        <source>Enter old layer name: </source>
        <translation>Digitare vecchio nome del layer: </translation>
    </message>
    <message>
        <source>Enter layer name(s) to list &lt;*&gt;: </source>
        <translation>Digitare nomi di layer da elencare &lt;*&gt;: </translation>
    </message>
    <message>
        <source>
Layer name  State  Color  Linetype  Lineweight</source>
        <translation>
Nome layer  Stato  Colore  Tipo di linea  Spessore di linea</translation>
    </message>
    <message>
        <source>
Current layer:  &quot;%1&quot;</source>
        <translation>
Layer corrente:  &quot;%1&quot;</translation>
    </message>
    <message>
        <source>Enter name list of layer(s) to reconcile: </source>
        <translation>Digitare elenco dei layer da riconciliare: </translation>
    </message>
    <message>
        <source>
No unreconciled layers.</source>
        <translation>
Nessun layer non riconciliato.</translation>
    </message>
    <message>
        <source>Enter name list of layer(s) for %1 &lt;%2&gt;: </source>
        <translation>Digitare elenco dei layer per %1 &lt;%2&gt;: </translation>
    </message>
    <message>
        <source>Enter an option [?/Make/Set/New/Rename/ON/OFF/Color/Ltype/LWeight/TRansparency/MATerial/Plot/PStyle/Freeze/Thaw/LOck/Unlock/stAte/Description/rEconcile]: </source>
        <translation>Digitare un&apos;opzione [?/Make/Set/New/Rename/ON/OFF/Color/Ltype/LWeight/TRansparency/MATerial/Plot/PStyle/Freeze/Thaw/LOck/Unlock/stAte/Description/rEconcile]: </translation>
    </message>
    <message>
        <source>
States to restore: </source>
        <translation>
Stati da ripristinare: </translation>
    </message>
    <message>
        <source>Enter states to change [On/Frozen/Lock/Plot/Newvpfreeze/Color/lineType/lineWeight/plotStyle/TRansparency]: </source>
        <translation>Digitare stati da cambiare [On/Frozen/Lock/Plot/Newvpfreeze/Color/lineType/lineWeight/plotStyle/TRansparency]: </translation>
    </message>
    <message>
        <source>
No layer states.</source>
        <translation>
Nessuno stato dei layer.</translation>
    </message>
    <message>
        <source>
Layer states: </source>
        <translation>
Stati dei layer: </translation>
    </message>
    <message>
        <source>Cannot find layer state &quot;%1&quot;.</source>
        <translation>Impossibile trovare lo stato dei layer &quot;%1&quot;.</translation>
    </message>
    <message>
        <source>Enter new layer state name: </source>
        <translation>Digitare nome del nuovo stato dei layer: </translation>
    </message>
    <message>
        <source>A drawing of this version keeps no layer states.</source>
        <translation>Un disegno di questa versione non conserva stati dei layer.</translation>
    </message>
    <message>
        <source>Enter name of layer state to restore or [?]: </source>
        <translation>Digitare nome dello stato dei layer da ripristinare o [?]: </translation>
    </message>
    <message>
        <source>Enter name of layer state to edit or [?]: </source>
        <translation>Digitare nome dello stato dei layer da modificare o [?]: </translation>
    </message>
    <message>
        <source>Enter name of layer state to rename or [?]: </source>
        <translation>Digitare nome dello stato dei layer da rinominare o [?]: </translation>
    </message>
    <message>
        <source>Layer state &quot;%1&quot; already exists or cannot be one.</source>
        <translation>Lo stato dei layer &quot;%1&quot; esiste già o non può essere tale.</translation>
    </message>
    <message>
        <source>Enter name of layer state to delete or [?]: </source>
        <translation>Digitare nome dello stato dei layer da eliminare o [?]: </translation>
    </message>
    <message>
        <source>Enter name of file to import: </source>
        <translation>Digitare nome del file da importare: </translation>
    </message>
    <message>
        <source>No layer state was taken from &quot;%1&quot;.</source>
        <translation>Nessuno stato dei layer è stato preso da &quot;%1&quot;.</translation>
    </message>
    <message>
        <source>
Layer state &quot;%1&quot; imported.</source>
        <translation>
Stato dei layer &quot;%1&quot; importato.</translation>
    </message>
    <message>
        <source>Enter name of layer state to export or [?]: </source>
        <translation>Digitare nome dello stato dei layer da esportare o [?]: </translation>
    </message>
    <message>
        <source>Enter name of file to export: </source>
        <translation>Digitare nome del file di esportazione: </translation>
    </message>
    <message>
        <source>Enter an option [?/Save/Restore/Edit/Name/Delete/Import/EXport]: </source>
        <translation>Digitare un&apos;opzione [?/Save/Restore/Edit/Name/Delete/Import/EXport]: </translation>
    </message>
    <message>
        <source>
Cannot read linetype file &quot;%1&quot;.</source>
        <translation>
Impossibile leggere il file di tipi di linea &quot;%1&quot;.</translation>
    </message>
    <message>
        <source>
Cannot read linetype file &quot;%1&quot;: %2 (the limit is %3 MB).</source>
        <translation>
Impossibile leggere il file di tipi di linea &quot;%1&quot;: %2 (il limite è %3 MB).</translation>
    </message>
    <message>
        <source>
Linetype &quot;%1&quot; not loaded: %2.</source>
        <translation>
Tipo di linea &quot;%1&quot; non caricato: %2.</translation>
    </message>
    <message>
        <source>
Linetype &quot;%1&quot; not found.</source>
        <translation>
Tipo di linea &quot;%1&quot; non trovato.</translation>
    </message>
    <message>
        <source>Enter an option [?/Load/Set]: </source>
        <translation>Digitare un&apos;opzione [?/Load/Set]: </translation>
    </message>
    <message>
        <source>Specify linetype name: </source>
        <translation>Specificare nome del tipo di linea: </translation>
    </message>
    <message>
        <source>Enter linetype(s) to load: </source>
        <translation>Digitare tipi di linea da caricare: </translation>
    </message>
    <message>
        <source>Enter name of linetype file: </source>
        <translation>Digitare nome del file di tipi di linea: </translation>
    </message>
    <message>
        <source>
No matching linetypes found.</source>
        <translation>
Nessun tipo di linea corrispondente trovato.</translation>
    </message>
    <message>
        <source>Linetype &quot;%1&quot; is already loaded. Reload it? [Yes/No] &lt;Yes&gt;: </source>
        <translation>Il tipo di linea &quot;%1&quot; è già caricato. Ricaricarlo? [Yes/No] &lt;Yes&gt;: </translation>
    </message>
    <message>
        <source>Enter setting for layers not isolated [Off/Lock and fade] &lt;%1&gt;: </source>
        <translation>Digitare impostazione per i layer non isolati [Off/Lock and fade] &lt;%1&gt;: </translation>
    </message>
    <message>
        <source>In paper space viewport use [Vpfreeze/Off] &lt;Vpfreeze&gt;: </source>
        <translation>Nelle finestre dello spazio carta usare [Vpfreeze/Off] &lt;Vpfreeze&gt;: </translation>
    </message>
    <message>
        <source>Enter fade value (0-90) &lt;50&gt;: </source>
        <translation>Digitare valore di dissolvenza (0-90) &lt;50&gt;: </translation>
    </message>
    <message>
        <source>
Layer &quot;%1&quot; has been isolated.</source>
        <translation>
Il layer &quot;%1&quot; è stato isolato.</translation>
    </message>
    <message>
        <source>
%1 layers have been isolated.</source>
        <translation>
%1 layer sono stati isolati.</translation>
    </message>
    <message>
        <source>
Current setting: Hide layers, Viewports=Vpfreeze</source>
        <translation>
Impostazione corrente: nascondi layer, finestre=Vpfreeze</translation>
    </message>
    <message>
        <source>
Current setting: Lock layers, Fade=50</source>
        <translation>
Impostazione corrente: blocca layer, dissolvenza=50</translation>
    </message>
    <message>
        <source>Select objects on the layer(s) to be isolated or [Settings]: </source>
        <translation>Selezionare oggetti sui layer da isolare o [Settings]: </translation>
    </message>
    <message>
        <source>Nothing was selected.</source>
        <translation>Nulla è stato selezionato.</translation>
    </message>
    <message>
        <source>
No layers are isolated.</source>
        <translation>
Nessun layer è isolato.</translation>
    </message>
    <message>
        <source>
Layers isolated by LAYISO command have been restored.</source>
        <translation>
I layer isolati con il comando LAYISO sono stati ripristinati.</translation>
    </message>
    <message>
        <source>
There is no previous state of the layers.</source>
        <translation>
Non c&apos;è uno stato precedente dei layer.</translation>
    </message>
    <message>
        <source>
Restored previous layer status.</source>
        <translation>
Stato precedente dei layer ripristinato.</translation>
    </message>
    <message>
        <source>Select an object on the layer to be frozen or [Settings/Undo]: </source>
        <translation>Selezionare un oggetto sul layer da congelare o [Settings/Undo]: </translation>
    </message>
    <message>
        <source>
Layer &quot;%1&quot; has been frozen.</source>
        <translation>
Il layer &quot;%1&quot; è stato congelato.</translation>
    </message>
    <message>
        <source>Select an object on the layer to be turned off or [Settings/Undo]: </source>
        <translation>Selezionare un oggetto sul layer da disattivare o [Settings/Undo]: </translation>
    </message>
    <message>
        <source>
Layer &quot;%1&quot; has been turned off.</source>
        <translation>
Il layer &quot;%1&quot; è stato disattivato.</translation>
    </message>
    <message>
        <source>Enter setting type for [Viewports/Block selection]: </source>
        <translation>Digitare tipo di impostazione per [Viewports/Block selection]: </translation>
    </message>
    <message>
        <source>In paper space viewport use [Vpfreeze/Freeze/Off] &lt;Vpfreeze&gt;: </source>
        <translation>Nelle finestre dello spazio carta usare [Vpfreeze/Freeze/Off] &lt;Vpfreeze&gt;: </translation>
    </message>
    <message>
        <source>Enter block selection nesting level [Block/Entity/None] &lt;Entity&gt;: </source>
        <translation>Digitare livello di nidificazione per la selezione di blocchi [Block/Entity/None] &lt;Entity&gt;: </translation>
    </message>
    <message>
        <source>Layer &quot;%1&quot; is current, do you want to turn it off? [Yes/No] &lt;No&gt;: </source>
        <translation>Il layer &quot;%1&quot; è corrente. Disattivarlo? [Yes/No] &lt;No&gt;: </translation>
    </message>
    <message>
        <source>
All layers have been turned on.</source>
        <translation>
Tutti i layer sono stati attivati.</translation>
    </message>
    <message>
        <source>
All layers have been thawed.</source>
        <translation>
Tutti i layer sono stati scongelati.</translation>
    </message>
    <message>
        <source>Select an object on the layer to be locked: </source>
        <translation>Selezionare un oggetto sul layer da bloccare: </translation>
    </message>
    <message>
        <source>Select an object on the layer to be unlocked: </source>
        <translation>Selezionare un oggetto sul layer da sbloccare: </translation>
    </message>
    <message>
        <source>
Layer &quot;%1&quot; has been locked.</source>
        <translation>
Il layer &quot;%1&quot; è stato bloccato.</translation>
    </message>
    <message>
        <source>
Layer &quot;%1&quot; has been unlocked.</source>
        <translation>
Il layer &quot;%1&quot; è stato sbloccato.</translation>
    </message>
    <message>
        <source>
One object changed to layer &quot;%1&quot;.</source>
        <translation>
Un oggetto passato al layer &quot;%1&quot;.</translation>
    </message>
    <message>
        <source>
%1 objects changed to layer &quot;%2&quot;.</source>
        <translation>
%1 oggetti passati al layer &quot;%2&quot;.</translation>
    </message>
    <message>
        <source>Select objects to be changed to the current layer: </source>
        <translation>Selezionare oggetti da passare al layer corrente: </translation>
    </message>
    <message>
        <source>Select objects to be changed: </source>
        <translation>Selezionare oggetti da cambiare: </translation>
    </message>
    <message>
        <source>Select object on destination layer or [Name]: </source>
        <translation>Selezionare oggetto sul layer di destinazione o [Name]: </translation>
    </message>
    <message>
        <source>Enter layer name: </source>
        <translation>Digitare nome del layer: </translation>
    </message>
    <message>
        <source>Select object whose layer will become current: </source>
        <translation>Selezionare oggetto il cui layer diventerà corrente: </translation>
    </message>
    <message>
        <source>
%1 is now the current layer.</source>
        <translation>
%1 è ora il layer corrente.</translation>
    </message>
    <message>
        <source>This command works through a viewport of a sheet: MSPACE goes into one.</source>
        <translation>Questo comando opera attraverso una finestra di un layout: MSPACE entra in una.</translation>
    </message>
    <message>
        <source>Select an object on the layer to be isolated in viewport or [Settings/Undo]: </source>
        <translation>Selezionare un oggetto sul layer da isolare nella finestra o [Settings/Undo]: </translation>
    </message>
    <message>
        <source>
Layer &quot;%1&quot; has been frozen in all viewports but the current one.</source>
        <translation>
Il layer &quot;%1&quot; è stato congelato in tutte le finestre tranne la corrente.</translation>
    </message>
    <message>
        <source>
Selected layers: %1.</source>
        <translation>
Layer selezionati: %1.</translation>
    </message>
    <message>
        <source>Do you wish to continue? [Yes/No] &lt;No&gt;: </source>
        <translation>Continuare? [Yes/No] &lt;No&gt;: </translation>
    </message>
    <message>
        <source>Select object on layer to delete or %1: </source>
        <translation>Selezionare oggetto sul layer da eliminare o %1: </translation>
    </message>
    <message>
        <source>Enter layer name to delete: </source>
        <translation>Digitare nome del layer da eliminare: </translation>
    </message>
    <message>
        <source>All that is on layer(s) %1 is erased, and the layers are deleted.</source>
        <translation>Tutto ciò che è sui layer %1 viene cancellato, e i layer eliminati.</translation>
    </message>
    <message>
        <source>
%1 layer(s) deleted with %2 object(s).</source>
        <translation>
%1 layer eliminato/i con %2 oggetto/i.</translation>
    </message>
    <message>
        <source>Select object on layer to merge or %1: </source>
        <translation>Selezionare oggetto sul layer da unire o %1: </translation>
    </message>
    <message>
        <source>Enter layer name to merge: </source>
        <translation>Digitare nome del layer da unire: </translation>
    </message>
    <message>
        <source>Select object on target layer or [Name]: </source>
        <translation>Selezionare oggetto sul layer di destinazione o [Name]: </translation>
    </message>
    <message>
        <source>You are about to merge %1 layer(s) into layer &quot;%2&quot;.</source>
        <translation>Si sta per unire %1 layer nel layer &quot;%2&quot;.</translation>
    </message>
    <message>
        <source>
%1 layer(s) deleted.</source>
        <translation>
%1 layer eliminato/i.</translation>
    </message>
    <message>
        <source>Enter variable(s) to list &lt;*&gt;: </source>
        <translation>Digitare variabili da elencare &lt;*&gt;: </translation>
    </message>
    <message>
        <source> (read only)</source>
        <translation> (sola lettura)</translation>
    </message>
    <message>
        <source>
No variable has such a name.</source>
        <translation>
Nessuna variabile ha questo nome.</translation>
    </message>
    <message>
        <source>Requires an integer.</source>
        <translation>Occorre un intero.</translation>
    </message>
    <message>
        <source>Requires a number.</source>
        <translation>Occorre un numero.</translation>
    </message>
    <message>
        <source>Requires a number between %1 and %2.</source>
        <translation>Occorre un numero fra %1 e %2.</translation>
    </message>
    <message>
        <source>Cannot set %1 to that value.</source>
        <translation>Impossibile dare quel valore a %1.</translation>
    </message>
    <message>
        <source>Requires a point.</source>
        <translation>Occorre un punto.</translation>
    </message>
    <message>
        <source>Enter variable name or [?]: </source>
        <translation>Digitare nome della variabile o [?]: </translation>
    </message>
    <message>
        <source>Unknown variable name &quot;%1&quot;. Type SETVAR ? for a list of variables.</source>
        <translation>Nome di variabile sconosciuto &quot;%1&quot;. Digitare SETVAR ? per un elenco delle variabili.</translation>
    </message>
    <message>
        <source>
%1 = %2 (read only)</source>
        <translation>
%1 = %2 (sola lettura)</translation>
    </message>
    <message>
        <source>Enter new value for %1 &lt;%2&gt;: </source>
        <translation>Digitare nuovo valore di %1 &lt;%2&gt;: </translation>
    </message>
    <message>
        <source>
Active layouts:</source>
        <translation>
Layout attivi:</translation>
    </message>
    <message>
        <source>
Layout: %1	Block name: %2.</source>
        <translation>
Layout: %1	Nome del blocco: %2.</translation>
    </message>
    <message>
        <source>
%1 active layout(s) found.</source>
        <translation>
Layout attivi trovati: %1.</translation>
    </message>
    <message>
        <source>Enter name of layout to copy: </source>
        <translation>Digitare nome del layout da copiare: </translation>
    </message>
    <message>
        <source>Enter layout name for copy: </source>
        <translation>Digitare nome di layout per la copia: </translation>
    </message>
    <message>
        <source>Layout &quot;%1&quot; copied to &quot;%2&quot;.</source>
        <translation>Layout &quot;%1&quot; copiato in &quot;%2&quot;.</translation>
    </message>
    <message>
        <source>Enter new Layout name: </source>
        <translation>Digitare nome del nuovo layout: </translation>
    </message>
    <message>
        <source>Layout &quot;%1&quot; created.</source>
        <translation>Layout &quot;%1&quot; creato.</translation>
    </message>
    <message>
        <source>Enter layout to rename: </source>
        <translation>Digitare layout da rinominare: </translation>
    </message>
    <message>
        <source>Enter new layout name: </source>
        <translation>Digitare nuovo nome del layout: </translation>
    </message>
    <message>
        <source>Layout &quot;%1&quot; renamed to &quot;%2&quot;.</source>
        <translation>Layout &quot;%1&quot; rinominato in &quot;%2&quot;.</translation>
    </message>
    <message>
        <source>Enter name of layout to delete: </source>
        <translation>Digitare nome del layout da eliminare: </translation>
    </message>
    <message>
        <source>Layout &quot;%1&quot; deleted.</source>
        <translation>Layout &quot;%1&quot; eliminato.</translation>
    </message>
    <message>
        <source>Enter layout to make current: </source>
        <translation>Digitare layout da rendere corrente: </translation>
    </message>
    <message>
        <source>Enter layout to move: </source>
        <translation>Digitare layout da spostare: </translation>
    </message>
    <message>
        <source>Enter its place among the layouts: </source>
        <translation>Digitare il suo posto fra i layout: </translation>
    </message>
    <message>
        <source>Layout &quot;%1&quot; moved.</source>
        <translation>Layout &quot;%1&quot; spostato.</translation>
    </message>
    <message>
        <source>Enter layout to save to template: </source>
        <translation>Digitare layout da salvare in un modello: </translation>
    </message>
    <message>
        <source>Enter layout option [Copy/Delete/New/Template/Rename/SAveas/Set/Move/?]: </source>
        <translation>Digitare opzione di layout [Copy/Delete/New/Template/Rename/SAveas/Set/Move/?]: </translation>
    </message>
    <message>
        <source>Layout &quot;%1&quot;: %2.</source>
        <translation>Layout &quot;%1&quot;: %2.</translation>
    </message>
    <message>
        <source>
Layout &quot;%1&quot; created.</source>
        <translation>
Layout &quot;%1&quot; creato.</translation>
    </message>
    <message>
        <source> %1 of its entities could not be taken over.</source>
        <translation> %1 delle sue entità non sono state acquisite.</translation>
    </message>
    <message>
        <source>Enter template file name: </source>
        <translation>Digitare nome del file modello: </translation>
    </message>
    <message>
        <source>Enter layout name(s): </source>
        <translation>Digitare nomi dei layout: </translation>
    </message>
    <message>
        <source>Layout &quot;%1&quot; not found in %2.</source>
        <translation>Layout &quot;%1&quot; non trovato in %2.</translation>
    </message>
    <message>
        <source>Enter file name to save layout to: </source>
        <translation>Digitare nome del file in cui salvare il layout: </translation>
    </message>
    <message>
        <source>Enter view name to save: </source>
        <translation>Digitare nome della vista da salvare: </translation>
    </message>
    <message>
        <source>&quot;%1&quot; cannot be the name of a view.</source>
        <translation>&quot;%1&quot; non può essere il nome di una vista.</translation>
    </message>
    <message>
        <source>
Specify opposite corner: </source>
        <translation>
Specificare angolo opposto: </translation>
    </message>
    <message>
        <source>The window has no area.</source>
        <translation>La finestra non ha area.</translation>
    </message>
    <message>
        <source>Select viewport for view: </source>
        <translation>Selezionare finestra per la vista: </translation>
    </message>
    <message>
        <source>The view shows model space, and no viewport was chosen for it.</source>
        <translation>La vista mostra lo spazio modello e nessuna finestra è stata scelta per essa.</translation>
    </message>
    <message>
        <source>Enter view name to restore: </source>
        <translation>Digitare nome della vista da ripristinare: </translation>
    </message>
    <message>
        <source>Enter view name(s) to delete: </source>
        <translation>Digitare nomi di viste da eliminare: </translation>
    </message>
    <message>
        <source>
No matching views found.</source>
        <translation>
Nessuna vista corrispondente trovata.</translation>
    </message>
    <message>
        <source>Enter view name(s) to list &lt;*&gt;: </source>
        <translation>Digitare nomi di viste da elencare &lt;*&gt;: </translation>
    </message>
    <message>
        <source>Enter an option [Top/Bottom/Front/BAck/Left/Right] &lt;Top&gt;: </source>
        <translation>Digitare un&apos;opzione [Top/Bottom/Front/BAck/Left/Right] &lt;Top&gt;: </translation>
    </message>
    <message>
        <source>Save current UCS with named views? [Yes/No] &lt;Yes&gt;: </source>
        <translation>Salvare l&apos;UCS corrente con le viste con nome? [Yes/No] &lt;Yes&gt;: </translation>
    </message>
    <message>
        <source>
Coordinate systems are not kept with views.</source>
        <translation>
I sistemi di coordinate non vengono conservati con le viste.</translation>
    </message>
    <message>
        <source>Enter an option [?/Delete/Orthographic/Restore/Save/Ucs/Window]: </source>
        <translation>Digitare un&apos;opzione [?/Delete/Orthographic/Restore/Save/Ucs/Window]: </translation>
    </message>
    <message>
        <source>Enter an option [Current ucs/Ucs/World] &lt;Current&gt;: </source>
        <translation>Digitare un&apos;opzione [Current ucs/Ucs/World] &lt;Current&gt;: </translation>
    </message>
    <message>
        <source>Enter name of UCS or [?]: </source>
        <translation>Digitare nome dell&apos;UCS o [?]: </translation>
    </message>
    <message>
        <source>Enter angle in XY plane from X axis: </source>
        <translation>Digitare angolo nel piano XY dall&apos;asse X: </translation>
    </message>
    <message>
        <source>Enter angle from XY plane: </source>
        <translation>Digitare angolo dal piano XY: </translation>
    </message>
    <message>
        <source>Specify a view point or [Rotate] &lt;%1&gt;: </source>
        <translation>Specificare un punto di vista o [Rotate] &lt;%1&gt;: </translation>
    </message>
    <message>
        <source>There is no direction from the target to itself.</source>
        <translation>Non c&apos;è direzione dall&apos;obiettivo a se stesso.</translation>
    </message>
    <message>
        <source>Enter name for new viewport configuration or [?]: </source>
        <translation>Digitare nome della nuova configurazione di finestre o [?]: </translation>
    </message>
    <message>
        <source>&quot;%1&quot; cannot be the name of a viewport configuration.</source>
        <translation>&quot;%1&quot; non può essere il nome di una configurazione di finestre.</translation>
    </message>
    <message>
        <source>Enter name of viewport configuration to restore or [?]: </source>
        <translation>Digitare nome della configurazione di finestre da ripristinare o [?]: </translation>
    </message>
    <message>
        <source>Cannot find viewport configuration &quot;%1&quot;.</source>
        <translation>Impossibile trovare la configurazione di finestre &quot;%1&quot;.</translation>
    </message>
    <message>
        <source>Enter name(s) of viewport configurations to delete &lt;none&gt;: </source>
        <translation>Digitare nomi di configurazioni di finestre da eliminare &lt;nessuna&gt;: </translation>
    </message>
    <message>
        <source>
No matching viewport configurations found.</source>
        <translation>
Nessuna configurazione di finestre corrispondente trovata.</translation>
    </message>
    <message>
        <source>Enter name(s) of viewport configuration(s) to list &lt;*&gt;: </source>
        <translation>Digitare nomi di configurazioni di finestre da elencare &lt;*&gt;: </translation>
    </message>
    <message>
        <source>The screen is divided into too many viewports already.</source>
        <translation>Lo schermo è già diviso in troppe finestre.</translation>
    </message>
    <message>
        <source>The window shows one view: the viewports to join cannot be picked.</source>
        <translation>Lo schermo mostra una sola vista: le finestre da unire non possono essere scelte.</translation>
    </message>
    <message>
        <source>Enter an option [Save/Restore/Delete/Join/SIngle/?/2/3/4] &lt;3&gt;: </source>
        <translation>Digitare un&apos;opzione [Save/Restore/Delete/Join/SIngle/?/2/3/4] &lt;3&gt;: </translation>
    </message>
    <message>
        <source>** Command not allowed in Model Tab **</source>
        <translation>** Comando non consentito nella scheda Modello **</translation>
    </message>
    <message>
        <source>There are no active model space viewports.</source>
        <translation>Non ci sono finestre dello spazio modello attive.</translation>
    </message>
    <message>
        <source>The viewport has no area.</source>
        <translation>La finestra non ha area.</translation>
    </message>
    <message>
        <source>Enter viewport arrangement [Horizontal/Vertical] &lt;Vertical&gt;: </source>
        <translation>Digitare disposizione delle finestre [Horizontal/Vertical] &lt;Vertical&gt;: </translation>
    </message>
    <message>
        <source>Enter viewport arrangement [Horizontal/Vertical/Above/Below/Left/Right] &lt;Right&gt;: </source>
        <translation>Digitare disposizione delle finestre [Horizontal/Vertical/Above/Below/Left/Right] &lt;Right&gt;: </translation>
    </message>
    <message>
        <source>
No viewport was chosen.</source>
        <translation>
Nessuna finestra scelta.</translation>
    </message>
    <message>
        <source>
Current osnap modes: </source>
        <translation>
Modi di snap ad oggetto correnti: </translation>
    </message>
    <message>
        <source>Enter list of object snap modes: </source>
        <translation>Digitare elenco dei modi di snap ad oggetto: </translation>
    </message>
    <message>
        <source>Invalid object snap mode.</source>
        <translation>Modo di snap ad oggetto non valido.</translation>
    </message>
    <message>
        <source>Object snap target height (1-50 pixels) &lt;%1&gt;: </source>
        <translation>Altezza del mirino di snap ad oggetto (1-50 pixel) &lt;%1&gt;: </translation>
    </message>
    <message>
        <source>Value must be between 1 and 50.</source>
        <translation>Il valore deve essere fra 1 e 50.</translation>
    </message>
    <message>
        <source>Specify new origin point</source>
        <translation>Specificare nuovo punto di origine</translation>
    </message>
    <message>
        <source>Specify new origin point or [Zdepth] &lt;%1&gt;: </source>
        <translation>Specificare nuovo punto di origine o [Zdepth] &lt;%1&gt;: </translation>
    </message>
    <message>
        <source>Specify Z depth &lt;0&gt;: </source>
        <translation>Specificare profondità Z &lt;0&gt;: </translation>
    </message>
    <message>
        <source>Specify point on positive portion of X-axis</source>
        <translation>Specificare punto sulla parte positiva dell&apos;asse X</translation>
    </message>
    <message>
        <source>Specify point on positive-Y portion of the UCS XY plane</source>
        <translation>Specificare punto sulla parte Y positiva del piano XY dell&apos;UCS</translation>
    </message>
    <message>
        <source>The three points lie on a line.</source>
        <translation>I tre punti giacciono su una retta.</translation>
    </message>
    <message>
        <source>Specify point on positive portion of Z-axis</source>
        <translation>Specificare punto sulla parte positiva dell&apos;asse Z</translation>
    </message>
    <message>
        <source>The Z axis has no direction.</source>
        <translation>L&apos;asse Z non ha direzione.</translation>
    </message>
    <message>
        <source>Specify rotation angle about %1 axis &lt;%2&gt;: </source>
        <translation>Specificare angolo di rotazione attorno all&apos;asse %1 &lt;%2&gt;: </translation>
    </message>
    <message>
        <source>Select object to align UCS: </source>
        <translation>Selezionare oggetto a cui allineare l&apos;UCS: </translation>
    </message>
    <message>
        <source>No UCS can be aligned with this object.</source>
        <translation>Nessun UCS può essere allineato con questo oggetto.</translation>
    </message>
    <message>
        <source>Enter name to save current UCS or [?]: </source>
        <translation>Digitare nome con cui salvare l&apos;UCS corrente o [?]: </translation>
    </message>
    <message>
        <source>&quot;%1&quot; cannot be the name of a UCS.</source>
        <translation>&quot;%1&quot; non può essere il nome di un UCS.</translation>
    </message>
    <message>
        <source>UCS &quot;%1&quot; already exists. Replace it? [Yes/No] &lt;No&gt;: </source>
        <translation>L&apos;UCS &quot;%1&quot; esiste già. Sostituirlo? [Yes/No] &lt;No&gt;: </translation>
    </message>
    <message>
        <source>Enter name of UCS to restore or [?]: </source>
        <translation>Digitare nome dell&apos;UCS da ripristinare o [?]: </translation>
    </message>
    <message>
        <source>Enter UCS name(s) to delete &lt;none&gt;: </source>
        <translation>Digitare nomi di UCS da eliminare &lt;nessuno&gt;: </translation>
    </message>
    <message>
        <source>
No matching UCS names found.</source>
        <translation>
Nessun nome di UCS corrispondente trovato.</translation>
    </message>
    <message>
        <source>
Current UCS:  %1</source>
        <translation>
UCS corrente:  %1</translation>
    </message>
    <message>
        <source>Enter UCS name(s) to list &lt;*&gt;: </source>
        <translation>Digitare nomi di UCS da elencare &lt;*&gt;: </translation>
    </message>
    <message>
        <source>&quot;%1&quot;  Origin = &lt;%2&gt;, X = &lt;%3&gt;, Y = &lt;%4&gt;</source>
        <translation>&quot;%1&quot;  Origine = &lt;%2&gt;, X = &lt;%3&gt;, Y = &lt;%4&gt;</translation>
    </message>
    <message>
        <source>Faces of solids cannot be chosen here.</source>
        <translation>Qui non si possono scegliere facce di solidi.</translation>
    </message>
    <message>
        <source>
No previous coordinate system saved.</source>
        <translation>
Nessun sistema di coordinate precedente salvato.</translation>
    </message>
    <message>
        <source>Specify point on X-axis or &lt;accept&gt;: </source>
        <translation>Specificare punto sull&apos;asse X o &lt;accettare&gt;: </translation>
    </message>
    <message>
        <source>Specify point on the XY plane or &lt;accept&gt;: </source>
        <translation>Specificare punto sul piano XY o &lt;accettare&gt;: </translation>
    </message>
    <message>
        <source>Specify origin of new UCS or [ZAxis/3point/OBject/Face/View/X/Y/Z] &lt;%1&gt;: </source>
        <translation>Specificare origine del nuovo UCS o [ZAxis/3point/OBject/Face/View/X/Y/Z] &lt;%1&gt;: </translation>
    </message>
    <message>
        <source>
Current ucs name:  %1</source>
        <translation>
Nome UCS corrente:  %1</translation>
    </message>
    <message>
        <source>Specify origin of UCS or [Face/NAmed/OBject/Previous/View/World/X/Y/Z/ZAxis] &lt;World&gt;: </source>
        <translation>Specificare origine dell&apos;UCS o [Face/NAmed/OBject/Previous/View/World/X/Y/Z/ZAxis] &lt;World&gt;: </translation>
    </message>
    <message>
        <source>Enter an option [Restore/Save/Delete/?]: </source>
        <translation>Digitare un&apos;opzione [Restore/Save/Delete/?]: </translation>
    </message>
    <message>
        <source>Requires a scale factor, two corners or an option keyword.</source>
        <translation>Occorre un fattore di scala, due angoli o un&apos;opzione.</translation>
    </message>
    <message>
        <source>A scale of the sheet is for viewports: MSPACE goes into one.</source>
        <translation>La scala del foglio è per le finestre: MSPACE entra in una.</translation>
    </message>
    <message>
        <source>
Enter magnification or height &lt;%1&gt;: </source>
        <translation>
Digitare ingrandimento o altezza &lt;%1&gt;: </translation>
    </message>
    <message>
        <source>Requires a height, or a magnification (nX).</source>
        <translation>Occorre un&apos;altezza o un ingrandimento (nX).</translation>
    </message>
    <message>
        <source>Specify center point: </source>
        <translation>Specificare punto centrale: </translation>
    </message>
    <message>
        <source>Specify lower left corner point: </source>
        <translation>Specificare angolo inferiore sinistro: </translation>
    </message>
    <message>
        <source>Enter a scale factor (nX or nXP): </source>
        <translation>Digitare fattore di scala (nX o nXP): </translation>
    </message>
    <message>
        <source>There is no dynamic zoom: use the window&apos;s wheel.</source>
        <translation>Non c&apos;è zoom dinamico: usare la rotella nella finestra.</translation>
    </message>
    <message>
        <source>
Specify corner of window, enter a scale factor (nX or nXP), or [All/Center/Dynamic/Extents/Previous/Scale/Window/Object] &lt;real time&gt;: </source>
        <translation>
Specificare angolo della finestra, digitare fattore di scala (nX o nXP), o [All/Center/Dynamic/Extents/Previous/Scale/Window/Object] &lt;tempo reale&gt;: </translation>
    </message>
    <message>
        <source>
No previous view saved.</source>
        <translation>
Nessuna vista precedente salvata.</translation>
    </message>
    <message>
        <source>Specify base point or displacement: </source>
        <translation>Specificare punto base o spostamento: </translation>
    </message>
    <message>
        <source>Specify first corner or [Fit] &lt;Fit&gt;: </source>
        <translation>Specificare primo angolo o [Fit] &lt;Fit&gt;: </translation>
    </message>
    <message>
        <source>Enter viewport configuration name or [?] &lt;*Active&gt;: </source>
        <translation>Digitare nome della configurazione di finestre o [?] &lt;*Active&gt;: </translation>
    </message>
    <message>
        <source>A drawing of this version has no viewports with other outlines than rectangles.</source>
        <translation>Un disegno di questa versione non ha finestre con contorni diversi dai rettangoli.</translation>
    </message>
    <message>
        <source>A viewport is bounded by a closed polyline, circle, ellipse, spline or region.</source>
        <translation>Una finestra è delimitata da una polilinea chiusa, un cerchio, un&apos;ellisse, una spline o una regione.</translation>
    </message>
    <message>
        <source>Select object to clip viewport: </source>
        <translation>Selezionare oggetto per ritagliare la finestra: </translation>
    </message>
    <message>
        <source>A viewport has three corners at least.</source>
        <translation>Una finestra ha almeno tre angoli.</translation>
    </message>
    <message>
        <source>Viewport View Locking [ON/OFF]: </source>
        <translation>Blocco della vista della finestra [ON/OFF]: </translation>
    </message>
    <message>
        <source>Shade plot? [As displayed/Wireframe/Hidden/Rendered] &lt;As displayed&gt;: </source>
        <translation>Stampa ombreggiata? [As displayed/Wireframe/Hidden/Rendered] &lt;As displayed&gt;: </translation>
    </message>
    <message>
        <source>Specify corner of viewport or [ON/OFF/Fit/Shadeplot/Lock/Object/Polygonal/Restore/2/3/4] &lt;Fit&gt;: </source>
        <translation>Specificare angolo della finestra o [ON/OFF/Fit/Shadeplot/Lock/Object/Polygonal/Restore/2/3/4] &lt;Fit&gt;: </translation>
    </message>
    <message>
        <source>
Already in model space.</source>
        <translation>
Già nello spazio modello.</translation>
    </message>
    <message>
        <source>
Already in paper space.</source>
        <translation>
Già nello spazio carta.</translation>
    </message>
    <message>
        <source>Enter an option [All/Select/Current/eXcept current] &lt;Current&gt;: </source>
        <translation>Digitare un&apos;opzione [All/Select/Current/eXcept current] &lt;Current&gt;: </translation>
    </message>
    <message>
        <source>Enter name(s) of new layers frozen in all viewports: </source>
        <translation>Digitare nomi dei nuovi layer congelati in tutte le finestre: </translation>
    </message>
    <message>
        <source>Enter layer name(s) to change viewport visibility: </source>
        <translation>Digitare nomi dei layer di cui cambiare la visibilità nelle finestre: </translation>
    </message>
    <message>
        <source>Enter a viewport visibility option [Frozen/Thawed] &lt;Thawed&gt;: </source>
        <translation>Digitare un&apos;opzione di visibilità nelle finestre [Frozen/Thawed] &lt;Thawed&gt;: </translation>
    </message>
    <message>
        <source>Select a viewport: </source>
        <translation>Selezionare una finestra: </translation>
    </message>
    <message>
        <source>No viewport was chosen.</source>
        <translation>Nessuna finestra scelta.</translation>
    </message>
    <message>
        <source>
Layers currently frozen in viewport %1:</source>
        <translation>
Layer congelati nella finestra %1:</translation>
    </message>
    <message>
        <source>Enter layer name(s) to freeze or &lt;select objects&gt;: </source>
        <translation>Digitare nomi dei layer da congelare o &lt;selezionare oggetti&gt;: </translation>
    </message>
    <message>
        <source>Enter layer name(s) to thaw: </source>
        <translation>Digitare nomi dei layer da scongelare: </translation>
    </message>
    <message>
        <source>Enter layer name(s) to reset: </source>
        <translation>Digitare nomi dei layer da reimpostare: </translation>
    </message>
    <message>
        <source>Layers have the same properties in all viewports here: nothing was changed.</source>
        <translation>Qui i layer hanno le stesse proprietà in tutte le finestre: nulla è stato modificato.</translation>
    </message>
    <message>
        <source>Enter an option [?/Color/Ltype/LWeight/TRansparency/Freeze/Thaw/Reset/Newfrz/Vpvisdflt]: </source>
        <translation>Digitare un&apos;opzione [?/Color/Ltype/LWeight/TRansparency/Freeze/Thaw/Reset/Newfrz/Vpvisdflt]: </translation>
    </message>
    <message>
        <source>  Unloaded</source>
        <translation>  Scaricato</translation>
    </message>
    <message>
        <source>That would be %1 entities; at most %2 are made at once.</source>
        <translation>Sarebbero %1 oggetti; se ne creano al massimo %2 alla volta.</translation>
    </message>
    <message>
        <source>A cloud needs a line along which it goes.</source>
        <translation>Un fumetto di revisione ha bisogno di una linea da seguire.</translation>
    </message>
    <message>
        <source>The arcs are too short for this line.</source>
        <translation>Gli archi sono troppo corti per questa linea.</translation>
    </message>
    <message>
        <source>
Revision cloud finished.</source>
        <translation>
Fumetto di revisione completato.</translation>
    </message>
    <message>
        <source>
******** WARNING ********
</source>
        <translation>
******** ATTENZIONE ********
</translation>
    </message>
</context>
<context>
    <name>Comparing</name>
    <message>
        <source>matched by content, not by handles</source>
        <translation>abbinati per contenuto, non per identificativi</translation>
    </message>
    <message>
        <source>= %1 added, %2 removed, %3 changed, %4 the same</source>
        <translation>= %1 aggiunti, %2 rimossi, %3 modificati, %4 uguali</translation>
    </message>
    <message>
        <source>= by type:</source>
        <translation>= per tipo:</translation>
    </message>
    <message>
        <source>= by layer:</source>
        <translation>= per layer:</translation>
    </message>
    <message>
        <source>%1: the extension must be %2</source>
        <translation>%1: l&apos;estensione deve essere %2</translation>
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
        <translation>spazio modello</translation>
    </message>
    <message>
        <source>paper space</source>
        <translation>spazio carta</translation>
    </message>
    <message>
        <source>All entities drawn</source>
        <translation>Tutte le entità disegnate</translation>
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
        <translation>&quot;%1&quot; non può essere il nome di un blocco</translation>
    </message>
    <message>
        <source>there is no such block</source>
        <translation>un tale blocco non esiste</translation>
    </message>
    <message>
        <source>%1 cannot be exploded.</source>
        <translation>%1 non può essere esploso.</translation>
    </message>
    <message>
        <source>Block &quot;%1&quot; is missing.</source>
        <translation>Il blocco &quot;%1&quot; manca.</translation>
    </message>
    <message>
        <source>An external reference cannot be exploded.</source>
        <translation>Un riferimento esterno non può essere esploso.</translation>
    </message>
    <message>
        <source>Block &quot;%1&quot; may not be exploded.</source>
        <translation>Il blocco &quot;%1&quot; non può essere esploso.</translation>
    </message>
    <message>
        <source>The scales of block &quot;%1&quot; differ.</source>
        <translation>Le scale del blocco &quot;%1&quot; sono diverse.</translation>
    </message>
    <message>
        <source>Too many entities would come of it.</source>
        <translation>Ne risulterebbero troppe entità.</translation>
    </message>
    <message>
        <source>A drawing of this version has one sheet.</source>
        <translation>Un disegno di questa versione ha un solo layout.</translation>
    </message>
    <message>
        <source>A layout cannot be called &quot;%1&quot;.</source>
        <translation>Un layout non può chiamarsi &quot;%1&quot;.</translation>
    </message>
    <message>
        <source>Layout &quot;%1&quot; already exists.</source>
        <translation>Il layout &quot;%1&quot; esiste già.</translation>
    </message>
    <message>
        <source>Model space cannot be copied.</source>
        <translation>Lo spazio modello non può essere copiato.</translation>
    </message>
    <message>
        <source>Model space cannot be moved.</source>
        <translation>Lo spazio modello non può essere spostato.</translation>
    </message>
    <message>
        <source>Model space cannot be renamed.</source>
        <translation>Lo spazio modello non può essere rinominato.</translation>
    </message>
    <message>
        <source>Layout &quot;%1&quot; has no object in this drawing that a name could be given to.</source>
        <translation>Il layout &quot;%1&quot; non ha in questo disegno un oggetto a cui dare un nome.</translation>
    </message>
    <message>
        <source>Model space cannot be deleted.</source>
        <translation>Lo spazio modello non può essere eliminato.</translation>
    </message>
    <message>
        <source>The last layout cannot be deleted.</source>
        <translation>L&apos;ultimo layout non può essere eliminato.</translation>
    </message>
    <message>
        <source>Cannot find layer &quot;%1&quot;.</source>
        <translation>Impossibile trovare il layer &quot;%1&quot;.</translation>
    </message>
    <message>
        <source>Layer &quot;%1&quot; is needed by every drawing.</source>
        <translation>Il layer &quot;%1&quot; serve in ogni disegno.</translation>
    </message>
    <message>
        <source>Layer &quot;%1&quot; is the current layer.</source>
        <translation>Il layer &quot;%1&quot; è il layer corrente.</translation>
    </message>
    <message>
        <source>Layer &quot;%1&quot; belongs to an external reference.</source>
        <translation>Il layer &quot;%1&quot; appartiene a un riferimento esterno.</translation>
    </message>
    <message>
        <source>A drawing of this version keeps no page setup.</source>
        <translation>Un disegno di questa versione non conserva impostazioni di pagina.</translation>
    </message>
    <message>
        <source>Layer &quot;%1&quot; cannot be renamed.</source>
        <translation>Il layer &quot;%1&quot; non può essere rinominato.</translation>
    </message>
    <message>
        <source>Layer &quot;%1&quot; already exists.</source>
        <translation>Il layer &quot;%1&quot; esiste già.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; cannot be the name of a layer.</source>
        <translation>&quot;%1&quot; non può essere il nome di un layer.</translation>
    </message>
    <message>
        <source>Block</source>
        <translation>Blocco</translation>
    </message>
    <message>
        <source>block</source>
        <translation>blocco</translation>
    </message>
    <message>
        <source>Dimension style</source>
        <translation>Stile di quota</translation>
    </message>
    <message>
        <source>dimension style</source>
        <translation>stile di quota</translation>
    </message>
    <message>
        <source>Linetype</source>
        <translation>Tipo di linea</translation>
    </message>
    <message>
        <source>linetype</source>
        <translation>tipo di linea</translation>
    </message>
    <message>
        <source>Text style</source>
        <translation>Stile di testo</translation>
    </message>
    <message>
        <source>text style</source>
        <translation>stile di testo</translation>
    </message>
    <message>
        <source>UCS</source>
        <translation>UCS</translation>
    </message>
    <message>
        <source>ucs</source>
        <translation>ucs</translation>
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
        <translation>Configurazione di finestre</translation>
    </message>
    <message>
        <source>viewport configuration</source>
        <translation>configurazione di finestre</translation>
    </message>
    <message>
        <source>Cannot find %1 &quot;%2&quot;.</source>
        <translation>Impossibile trovare %1 &quot;%2&quot;.</translation>
    </message>
    <message>
        <source>%1 &quot;%2&quot; cannot be renamed.</source>
        <translation>%1 &quot;%2&quot;: impossibile rinominare.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; cannot be a name.</source>
        <translation>&quot;%1&quot; non può essere un nome.</translation>
    </message>
    <message>
        <source>%1 &quot;%2&quot; already exists.</source>
        <translation>%1 &quot;%2&quot; esiste già.</translation>
    </message>
    <message>
        <source>Registered applications cannot be renamed.</source>
        <translation>Le applicazioni registrate non possono essere rinominate.</translation>
    </message>
    <message>
        <source>Cannot find &quot;%1&quot;.</source>
        <translation>Impossibile trovare &quot;%1&quot;.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; already exists.</source>
        <translation>&quot;%1&quot; esiste già.</translation>
    </message>
    <message>
        <source>a drawing of this version has one sheet only</source>
        <translation>un disegno di questa versione ha un solo layout</translation>
    </message>
    <message>
        <source>&quot;%1&quot; cannot be the name of a sheet</source>
        <translation>&quot;%1&quot; non può essere il nome di un layout</translation>
    </message>
    <message>
        <source>there is no sheet &quot;%1&quot;</source>
        <translation>non c&apos;è nessun layout &quot;%1&quot;</translation>
    </message>
    <message>
        <source>there is a sheet &quot;%1&quot; already</source>
        <translation>c&apos;è già un layout &quot;%1&quot;</translation>
    </message>
    <message>
        <source>blocks</source>
        <translation>blocchi</translation>
    </message>
    <message>
        <source>detail view styles</source>
        <translation>stili di vista di dettaglio</translation>
    </message>
    <message>
        <source>detail view style</source>
        <translation>stile di vista di dettaglio</translation>
    </message>
    <message>
        <source>dimension styles</source>
        <translation>stili di quota</translation>
    </message>
    <message>
        <source>groups</source>
        <translation>gruppi</translation>
    </message>
    <message>
        <source>group</source>
        <translation>gruppo</translation>
    </message>
    <message>
        <source>layers</source>
        <translation>layer</translation>
    </message>
    <message>
        <source>layer</source>
        <translation>layer</translation>
    </message>
    <message>
        <source>linetypes</source>
        <translation>tipi di linea</translation>
    </message>
    <message>
        <source>materials</source>
        <translation>materiali</translation>
    </message>
    <message>
        <source>material</source>
        <translation>materiale</translation>
    </message>
    <message>
        <source>multileader styles</source>
        <translation>stili multidirettrice</translation>
    </message>
    <message>
        <source>multileader style</source>
        <translation>stile multidirettrice</translation>
    </message>
    <message>
        <source>plot styles</source>
        <translation>stili di stampa</translation>
    </message>
    <message>
        <source>plot style</source>
        <translation>stile di stampa</translation>
    </message>
    <message>
        <source>shape files</source>
        <translation>file di forme</translation>
    </message>
    <message>
        <source>shape file</source>
        <translation>file di forme</translation>
    </message>
    <message>
        <source>text styles</source>
        <translation>stili di testo</translation>
    </message>
    <message>
        <source>multiline styles</source>
        <translation>stili multilinea</translation>
    </message>
    <message>
        <source>multiline style</source>
        <translation>stile multilinea</translation>
    </message>
    <message>
        <source>section view styles</source>
        <translation>stili di vista di sezione</translation>
    </message>
    <message>
        <source>section view style</source>
        <translation>stile di vista di sezione</translation>
    </message>
    <message>
        <source>table styles</source>
        <translation>stili di tabella</translation>
    </message>
    <message>
        <source>table style</source>
        <translation>stile di tabella</translation>
    </message>
    <message>
        <source>visual styles</source>
        <translation>stili di visualizzazione</translation>
    </message>
    <message>
        <source>visual style</source>
        <translation>stile di visualizzazione</translation>
    </message>
    <message>
        <source>registered applications</source>
        <translation>applicazioni registrate</translation>
    </message>
    <message>
        <source>registered application</source>
        <translation>applicazione registrata</translation>
    </message>
    <message>
        <source>no record begins here</source>
        <translation>qui non comincia nessun record</translation>
    </message>
    <message>
        <source>the file goes on behind it</source>
        <translation>il file continua dopo</translation>
    </message>
    <message>
        <source>the file ends within it</source>
        <translation>il file finisce al suo interno</translation>
    </message>
    <message>
        <source>group code expected, found %1</source>
        <translation>codice di gruppo atteso, trovato %1</translation>
    </message>
    <message>
        <source>type of a record expected, found %1</source>
        <translation>tipo di record atteso, trovato %1</translation>
    </message>
    <message>
        <source>group %1 cannot be %2</source>
        <translation>il gruppo %1 non può essere %2</translation>
    </message>
    <message>
        <source>line %1: %2</source>
        <translation>riga %1: %2</translation>
    </message>
    <message>
        <source>%1 has a value for group %2 that the binary form has no room for: &quot;%3&quot;</source>
        <translation>%1 ha per il gruppo %2 un valore per cui la forma binaria non ha posto: &quot;%3&quot;</translation>
    </message>
    <message>
        <source>%1 with the handle %2</source>
        <translation>%1 con l&apos;handle %2</translation>
    </message>
    <message>
        <source>it names no version</source>
        <translation>non indica nessuna versione</translation>
    </message>
    <message>
        <source>its handle was another record&apos;s, it has a new one</source>
        <translation>il suo handle era di un altro record, ne ha uno nuovo</translation>
    </message>
    <message>
        <source>its handle was none, it has a new one</source>
        <translation>il suo handle non era valido, ne ha uno nuovo</translation>
    </message>
    <message>
        <source>it has no name</source>
        <translation>non ha nome</translation>
    </message>
    <message>
        <source>it has no value</source>
        <translation>non ha valore</translation>
    </message>
    <message>
        <source>it has more than one value, of which the first was taken</source>
        <translation>ha più di un valore, di cui è stato preso il primo</translation>
    </message>
    <message>
        <source>it leads to all other objects, and is the first of them now</source>
        <translation>porta a tutti gli altri oggetti, e ora è il primo di essi</translation>
    </message>
    <message>
        <source>the one that leads to all other objects was lost</source>
        <translation>quello che porta a tutti gli altri oggetti è andato perso</translation>
    </message>
    <message>
        <source>its text was no UTF-8 and was taken for %1</source>
        <translation>il suo testo non era UTF-8 ed è stato preso per %1</translation>
    </message>
    <message>
        <source>the one of block %1 was lost</source>
        <translation>quello del blocco %1 è andato perso</translation>
    </message>
    <message>
        <source>the file is larger than 4 GB</source>
        <translation>il file è più grande di 4 GB</translation>
    </message>
    <message>
        <source>nothing in this file is a part of a drawing</source>
        <translation>nulla in questo file fa parte di un disegno</translation>
    </message>
    <message>
        <source>%1: this is a folder</source>
        <translation>%1: questa è una cartella</translation>
    </message>
    <message>
        <source> (--recover opens what is sound of it)</source>
        <translation> (--recover apre ciò che è integro)</translation>
    </message>
    <message>
        <source>%1 times </source>
        <translation>%1 volte </translation>
    </message>
    <message>
        <source>and %1 more</source>
        <translation>e altri %1</translation>
    </message>
    <message>
        <source>the file is sound, nothing was dropped</source>
        <translation>il file è integro, nulla è stato scartato</translation>
    </message>
    <message>
        <source>recovered: %1 dropped%2, %3 mended, %4 added</source>
        <translation>recuperato: %1 scartati%2, %3 riparati, %4 aggiunti</translation>
    </message>
    <message>
        <source>what was written does not read back the same</source>
        <translation>ciò che è stato scritto non si rilegge uguale</translation>
    </message>
    <message>
        <source>what would be written could not be opened again (%1)</source>
        <translation>ciò che verrebbe scritto non potrebbe essere riaperto (%1)</translation>
    </message>
    <message>
        <source>what would be written could not be opened the same: see %1 of handle %2</source>
        <translation>ciò che verrebbe scritto non si riaprirebbe uguale: vedere %1 dell&apos;handle %2</translation>
    </message>
    <message>
        <source>%1: the file cannot be written: %2</source>
        <translation>%1: impossibile scrivere il file: %2</translation>
    </message>
    <message>
        <source>%1: %2; the old file was kept</source>
        <translation>%1: %2; il vecchio file è stato conservato</translation>
    </message>
    <message>
        <source>%1: this program cannot write DWG files; give the file a name ending in .dxf</source>
        <translation>%1: questo programma non può scrivere file DWG; dare al file un nome che termini in .dxf</translation>
    </message>
    <message>
        <source>header variable</source>
        <translation>variabile di intestazione</translation>
    </message>
    <message>
        <source>it stands outside of the sections</source>
        <translation>si trova fuori dalle sezioni</translation>
    </message>
    <message>
        <source>its name is none, and what it holds tells another</source>
        <translation>il suo nome non è valido, e il contenuto ne indica un altro</translation>
    </message>
    <message>
        <source>it was there before, and goes on here</source>
        <translation>c&apos;era già prima, e continua qui</translation>
    </message>
    <message>
        <source>it stands outside of its section, and was put into %1</source>
        <translation>si trova fuori dalla sua sezione, ed è stato messo in %1</translation>
    </message>
    <message>
        <source>no table is open</source>
        <translation>nessuna tabella è aperta</translation>
    </message>
    <message>
        <source>it stands outside of the tables</source>
        <translation>si trova fuori dalle tabelle</translation>
    </message>
    <message>
        <source>table entry</source>
        <translation>voce di tabella</translation>
    </message>
    <message>
        <source>it stands outside of its table</source>
        <translation>si trova fuori dalla sua tabella</translation>
    </message>
    <message>
        <source>no block is open</source>
        <translation>nessun blocco è aperto</translation>
    </message>
    <message>
        <source>it had no name, and is %1 now</source>
        <translation>non aveva nome, e ora è %1</translation>
    </message>
    <message>
        <source>the one for the entities here was lost; it is %1 now</source>
        <translation>quello per le entità qui è andato perso; ora è %1</translation>
    </message>
    <message>
        <source>nothing is open that it could end</source>
        <translation>nulla è aperto che potesse terminare</translation>
    </message>
    <message>
        <source>what it is a part of is not there</source>
        <translation>ciò di cui fa parte non c&apos;è</translation>
    </message>
    <message>
        <source>it was missing</source>
        <translation>mancava</translation>
    </message>
    <message>
        <source>no section is open</source>
        <translation>nessuna sezione è aperta</translation>
    </message>
    <message>
        <source>the drawing looks like one of %1</source>
        <translation>il disegno sembra di %1</translation>
    </message>
    <message>
        <source>%1: this is not a file</source>
        <translation>%1: questo non è un file</translation>
    </message>
    <message>
        <source>%1: drawings of this version have no room for such data</source>
        <translation>%1: i disegni di questa versione non hanno posto per tali dati</translation>
    </message>
    <message>
        <source>%1: %2 stands for something else in this drawing</source>
        <translation>%1: %2 indica qualcos&apos;altro in questo disegno</translation>
    </message>
    <message>
        <source>%1: the file is larger than 4 GB</source>
        <translation>%1: il file è più grande di 4 GB</translation>
    </message>
    <message>
        <source>the drawing has no paper space</source>
        <translation>il disegno non ha spazio carta</translation>
    </message>
    <message>
        <source>POLYLINE: its vertices are missing</source>
        <translation>POLYLINE: mancano i suoi vertici</translation>
    </message>
    <message>
        <source>%1: an entity of this type has no parts</source>
        <translation>%1: un&apos;entità di questo tipo non ha parti</translation>
    </message>
    <message>
        <source>%1: %2 expected, found %3</source>
        <translation>%1: atteso %2, trovato %3</translation>
    </message>
    <message>
        <source>the entity is erased</source>
        <translation>l&apos;entità è cancellata</translation>
    </message>
    <message>
        <source>a number</source>
        <translation>un numero</translation>
    </message>
    <message>
        <source>a handle</source>
        <translation>un handle</translation>
    </message>
    <message>
        <source>a text</source>
        <translation>un testo</translation>
    </message>
    <message>
        <source>group 0 (the type) is missing</source>
        <translation>manca il gruppo 0 (il tipo)</translation>
    </message>
    <message>
        <source>this is no entity</source>
        <translation>questa non è un&apos;entità</translation>
    </message>
    <message>
        <source>this type is not known, and its subclass markers (group 100) are missing</source>
        <translation>questo tipo non è noto, e mancano i suoi marcatori di sottoclasse (gruppo 100)</translation>
    </message>
    <message>
        <source>a drawing of this version has no such entity</source>
        <translation>un disegno di questa versione non ha una tale entità</translation>
    </message>
    <message>
        <source>group %1 is missing</source>
        <translation>manca il gruppo %1</translation>
    </message>
    <message>
        <source>group %1 is not a point</source>
        <translation>il gruppo %1 non è un punto</translation>
    </message>
    <message>
        <source>group %1 is not %2</source>
        <translation>il gruppo %1 non è %2</translation>
    </message>
    <message>
        <source>linetype %1 is not in the drawing</source>
        <translation>il tipo di linea %1 non è nel disegno</translation>
    </message>
    <message>
        <source>text style %1 is not in the drawing</source>
        <translation>lo stile di testo %1 non è nel disegno</translation>
    </message>
    <message>
        <source>block %1 is not in the drawing</source>
        <translation>il blocco %1 non è nel disegno</translation>
    </message>
    <message>
        <source>group code expected, found </source>
        <translation>codice di gruppo atteso, trovato </translation>
    </message>
    <message>
        <source>this is not a DXF file: </source>
        <translation>questo non è un file DXF: </translation>
    </message>
    <message>
        <source>this is not a DXF file: it has no sections</source>
        <translation>questo non è un file DXF: non ha sezioni</translation>
    </message>
    <message>
        <source>the file is cut off: it ends before EOF</source>
        <translation>il file è troncato: finisce prima di EOF</translation>
    </message>
    <message>
        <source>the section has no name</source>
        <translation>la sezione non ha nome</translation>
    </message>
    <message>
        <source>a record without a type</source>
        <translation>un record senza tipo</translation>
    </message>
    <message>
        <source>%1 inside a section: ENDSEC is missing</source>
        <translation>%1 dentro una sezione: manca ENDSEC</translation>
    </message>
    <message>
        <source>%1 stands in the header section</source>
        <translation>%1 si trova nella sezione di intestazione</translation>
    </message>
    <message>
        <source>this is not a DXF file: section expected, found </source>
        <translation>questo non è un file DXF: sezione attesa, trovato </translation>
    </message>
    <message>
        <source>%1 stands outside of the sections</source>
        <translation>%1 si trova fuori dalle sezioni</translation>
    </message>
    <message>
        <source>TABLE inside a table: ENDTAB is missing</source>
        <translation>TABLE dentro una tabella: manca ENDTAB</translation>
    </message>
    <message>
        <source>%1 stands outside of the tables: TABLE is missing</source>
        <translation>%1 si trova fuori dalle tabelle: manca TABLE</translation>
    </message>
    <message>
        <source>BLOCK inside a block: ENDBLK is missing</source>
        <translation>BLOCK dentro un blocco: manca ENDBLK</translation>
    </message>
    <message>
        <source>%1 stands outside of the blocks: BLOCK is missing</source>
        <translation>%1 si trova fuori dai blocchi: manca BLOCK</translation>
    </message>
    <message>
        <source>the section ends inside a table: ENDTAB is missing</source>
        <translation>la sezione finisce dentro una tabella: manca ENDTAB</translation>
    </message>
    <message>
        <source>the section ends inside a block: ENDBLK is missing</source>
        <translation>la sezione finisce dentro un blocco: manca ENDBLK</translation>
    </message>
    <message>
        <source>tag %1 of the binary file: %2</source>
        <translation>tag %1 del file binario: %2</translation>
    </message>
    <message>
        <source>the file is larger than 4 GB as text</source>
        <translation>il file come testo è più grande di 4 GB</translation>
    </message>
    <message>
        <source>the file is empty</source>
        <translation>il file è vuoto</translation>
    </message>
    <message>
        <source>this is a UTF-16 text file, not a DXF file</source>
        <translation>questo è un file di testo UTF-16, non un file DXF</translation>
    </message>
    <message>
        <source>this is a packed file; unpack it first</source>
        <translation>questo è un file compresso; decomprimerlo prima</translation>
    </message>
    <message>
        <source>this is a binary DXF file whose first bytes are damaged, as by a transfer as text</source>
        <translation>questo è un file DXF binario i cui primi byte sono danneggiati, come da un trasferimento come testo</translation>
    </message>
    <message>
        <source>the pattern does not begin with &quot;A&quot;</source>
        <translation>il modello non comincia con &quot;A&quot;</translation>
    </message>
    <message>
        <source>the pattern is empty</source>
        <translation>il modello è vuoto</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no length</source>
        <translation>&quot;%1&quot; non è una lunghezza</translation>
    </message>
    <message>
        <source>the pattern is too long</source>
        <translation>il modello è troppo lungo</translation>
    </message>
    <message>
        <source>a text or shape is not closed, or stands in front of all dashes</source>
        <translation>un testo o una forma non è chiuso, o precede tutti i trattini</translation>
    </message>
    <message>
        <source>a shape needs its name and its file</source>
        <translation>una forma richiede il suo nome e il suo file</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not understood</source>
        <translation>&quot;%1&quot; non è comprensibile</translation>
    </message>
    <message>
        <source>text style &quot;%1&quot; is not in the drawing</source>
        <translation>lo stile di testo &quot;%1&quot; non è nel disegno</translation>
    </message>
    <message>
        <source>the shape file &quot;%1&quot; is not found</source>
        <translation>il file di forme &quot;%1&quot; non è stato trovato</translation>
    </message>
    <message>
        <source>shape &quot;%1&quot; is not in the file &quot;%2&quot;</source>
        <translation>la forma &quot;%1&quot; non è nel file &quot;%2&quot;</translation>
    </message>
    <message>
        <source>a drawing of this version has no texts and shapes in linetypes</source>
        <translation>un disegno di questa versione non ha testi e forme nei tipi di linea</translation>
    </message>
    <message>
        <source>the name cannot be used</source>
        <translation>il nome non può essere usato</translation>
    </message>
    <message>
        <source>it is not in the drawing&apos;s folder. READPATHS, or the option --allow-read, names folders whose files drawings may name</source>
        <translation>non è nella cartella del disegno. READPATHS, o l&apos;opzione --allow-read, indica le cartelle i cui file possono essere nominati dai disegni</translation>
    </message>
    <message>
        <source>there are no shapes in it</source>
        <translation>non contiene forme</translation>
    </message>
    <message>
        <source>the file is cut off</source>
        <translation>il file è troncato</translation>
    </message>
    <message>
        <source>it is a compiled file of another kind</source>
        <translation>è un file compilato di altro genere</translation>
    </message>
    <message>
        <source>%1 (remote texts have at most 256 kB)</source>
        <translation>%1 (i testi remoti hanno al massimo 256 kB)</translation>
    </message>
    <message>
        <source>this DWG file cannot be read: %1</source>
        <translation>questo file DWG non può essere letto: %1</translation>
    </message>
    <message>
        <source>1 object could not be read</source>
        <translation>1 oggetto non è stato letto</translation>
    </message>
    <message>
        <source>%1 objects could not be read</source>
        <translation>%1 oggetti non sono stati letti</translation>
    </message>
    <message>
        <source>a part of the file</source>
        <translation>una parte del file</translation>
    </message>
    <message>
        <source>some of the file is not as expected; what was read of it may be wrong</source>
        <translation>parte del file non è come previsto; ciò che ne è stato letto può essere errato</translation>
    </message>
    <message>
        <source>1 part of the file could not be read</source>
        <translation>1 parte del file non è stata letta</translation>
    </message>
    <message>
        <source>%1 parts of the file could not be read</source>
        <translation>%1 parti del file non sono state lette</translation>
    </message>
    <message>
        <source>1 object and 1 part of the file could not be read</source>
        <translation>1 oggetto e 1 parte del file non sono stati letti</translation>
    </message>
    <message>
        <source>1 object and %1 parts of the file could not be read</source>
        <translation>1 oggetto e %1 parti del file non sono stati letti</translation>
    </message>
    <message>
        <source>%1 objects and 1 part of the file could not be read</source>
        <translation>%1 oggetti e 1 parte del file non sono stati letti</translation>
    </message>
    <message>
        <source>%1 objects and %2 parts of the file could not be read</source>
        <translation>%1 oggetti e %2 parti del file non sono stati letti</translation>
    </message>
    <message>
        <source>object %1</source>
        <translation>oggetto %1</translation>
    </message>
    <message>
        <source>%1 could not be read: %2</source>
        <translation>%1 non è stato letto: %2</translation>
    </message>
    <message>
        <source>%1 may be wrong: %2</source>
        <translation>%1 può essere sbagliato: %2</translation>
    </message>
    <message>
        <source>the file is damaged; the drawing is whole</source>
        <translation>il file è danneggiato; il disegno è completo</translation>
    </message>
</context>
<context>
    <name>FileActions</name>
    <message>
        <source>Open drawings</source>
        <translation>Apri disegni</translation>
    </message>
    <message>
        <source>Drawings (*.dxf *.dwg);;All files (*)</source>
        <translation>Disegni (*.dxf *.dwg);;Tutti i file (*)</translation>
    </message>
    <message>
        <source>%1
What is saved here replaces what is saved there.</source>
        <translation>%1
Ciò che si salva qui sostituisce ciò che si salva là.</translation>
    </message>
    <message>
        <source>Open &amp;read-only</source>
        <translation>Apri in sola &amp;lettura</translation>
    </message>
    <message>
        <source>Open &amp;anyway</source>
        <translation>&amp;Apri comunque</translation>
    </message>
    <message>
        <source>Save under another &amp;name...</source>
        <translation>Salva con altro &amp;nome...</translation>
    </message>
    <message>
        <source>Save &amp;anyway</source>
        <translation>&amp;Salva comunque</translation>
    </message>
    <message>
        <source>%1

The drawing stays open.</source>
        <translation>%1

Il disegno resta aperto.</translation>
    </message>
    <message>
        <source>Save &amp;as...</source>
        <translation>Salva co&amp;n nome...</translation>
    </message>
    <message>
        <source>%1 already exists. Do you want to replace it?</source>
        <translation>%1 esiste già. Sostituirlo?</translation>
    </message>
    <message>
        <source>Save drawing</source>
        <translation>Salva disegno</translation>
    </message>
    <message>
        <source>DXF drawings (*.dxf)</source>
        <translation>Disegni DXF (*.dxf)</translation>
    </message>
    <message>
        <source>Export picture</source>
        <translation>Esporta immagine</translation>
    </message>
    <message>
        <source>%1 pictures (*.%2)</source>
        <translation>Immagini %1 (*.%2)</translation>
    </message>
    <message>
        <source>
Written: %1
</source>
        <translation>
Scritto: %1
</translation>
    </message>
    <message>
        <source>In the picture: %1
</source>
        <translation>Nell&apos;immagine: %1
</translation>
    </message>
    <message>
        <source>%1 was changed. Save it?</source>
        <translation>%1 è stato modificato. Salvarlo?</translation>
    </message>
    <message>
        <source>%1
It is a DWG file: what you change here is saved under another name.</source>
        <translation>%1
È un file DWG: ciò che si modifica qui si salva con un altro nome.</translation>
    </message>
</context>
<context>
    <name>Functions</name>
    <message>
        <source>
New color &lt;%1&gt;: </source>
        <translation>
Nuovo colore &lt;%1&gt;: </translation>
    </message>
    <message>
        <source>
Requires a color number or name.</source>
        <translation>
Occorre un numero o nome di colore.</translation>
    </message>
    <message>
        <source>
Unknown command &quot;%1&quot;.
</source>
        <translation>
Comando sconosciuto &quot;%1&quot;.
</translation>
    </message>
    <message>
        <source>
Left over from (command): %1
</source>
        <translation>
Rimasto da (command): %1
</translation>
    </message>
    <message>
        <source>
The dialog file &quot;%1&quot; was not found.
</source>
        <translation>
Il file di dialogo &quot;%1&quot; non è stato trovato.
</translation>
    </message>
    <message>
        <source>
The actions that the file gives to the tiles of &quot;%1&quot; do not run: its folder is not trusted.
</source>
        <translation>
Le azioni che il file assegna agli elementi di &quot;%1&quot; non vengono eseguite: la sua cartella non è attendibile.
</translation>
    </message>
    <message>
        <source>
There is no dialog &quot;%1&quot; in what was loaded.
</source>
        <translation>
Non c&apos;è nessun dialogo &quot;%1&quot; in ciò che è stato caricato.
</translation>
    </message>
    <message>
        <source>
Nobody is there to answer the dialog &quot;%1&quot;: cancelled.
</source>
        <translation>
Nessuno può rispondere al dialogo &quot;%1&quot;: annullato.
</translation>
    </message>
    <message>
        <source>action of &quot;%1&quot; in dialog %2</source>
        <translation>azione di &quot;%1&quot; nel dialogo %2</translation>
    </message>
    <message>
        <source>
Select object: </source>
        <translation>
Selezionare oggetto: </translation>
    </message>
    <message>
        <source>
startapp: %1 is not started: the user&apos;s settings do not let programs start others.
</source>
        <translation>
startapp: %1 non viene avviato: le impostazioni dell&apos;utente non consentono ai programmi di avviarne altri.
</translation>
    </message>
    <message>
        <source>there is no sheet &quot;%1&quot;</source>
        <translation>non c&apos;è nessun layout &quot;%1&quot;</translation>
    </message>
    <message>
        <source>&quot;%1&quot; cannot be the name of a sheet</source>
        <translation>&quot;%1&quot; non può essere il nome di un layout</translation>
    </message>
    <message>
        <source>there is a sheet &quot;%1&quot; already</source>
        <translation>c&apos;è già un layout &quot;%1&quot;</translation>
    </message>
    <message>
        <source>%1 is one of the drawings that sheets come from</source>
        <translation>%1 è uno dei disegni da cui provengono i fogli</translation>
    </message>
    <message>
        <source>the file was not found</source>
        <translation>il file non è stato trovato</translation>
    </message>
    <message>
        <source>
The slide &quot;%1&quot;: %2.
</source>
        <translation>
La diapositiva &quot;%1&quot;: %2.
</translation>
    </message>
</context>
<context>
    <name>Help</name>
    <message>
        <source>0: heights count</source>
        <translation>0: le altezze contano</translation>
    </message>
    <message>
        <source>As -COLOR</source>
        <translation>Come -COLOR</translation>
    </message>
    <message>
        <source>As -COLOR; there is no window for it</source>
        <translation>Come -COLOR; non ha una finestra</translation>
    </message>
    <message>
        <source>As -LAYDEL; there is no window for it</source>
        <translation>Come -LAYDEL; non ha una finestra</translation>
    </message>
    <message>
        <source>As -LAYER; entered by hand in the window it shows the layer panel</source>
        <translation>Come -LAYER; digitato nella finestra mostra il pannello dei layer</translation>
    </message>
    <message>
        <source>As -LAYMRG; there is no window for it</source>
        <translation>Come -LAYMRG; non ha una finestra</translation>
    </message>
    <message>
        <source>As -LINETYPE; there is no window for it</source>
        <translation>Come -LINETYPE; non ha una finestra</translation>
    </message>
    <message>
        <source>As -LWEIGHT; there is no window for it</source>
        <translation>Come -LWEIGHT; non ha una finestra</translation>
    </message>
    <message>
        <source>As -PAN; the middle button of the mouse moves the view too</source>
        <translation>Come -PAN; anche il tasto centrale del mouse sposta la vista</translation>
    </message>
    <message>
        <source>As -PURGE; there is no window for it</source>
        <translation>Come -PURGE; non ha una finestra</translation>
    </message>
    <message>
        <source>As -RENAME; there is no window for it</source>
        <translation>Come -RENAME; non ha una finestra</translation>
    </message>
    <message>
        <source>As -UNITS; there is no window for it</source>
        <translation>Come -UNITS; non ha una finestra</translation>
    </message>
    <message>
        <source>As -VIEW; there is no window for it</source>
        <translation>Come -VIEW; non ha una finestra</translation>
    </message>
    <message>
        <source>As -VPOINT; there is no window for it</source>
        <translation>Come -VPOINT; non ha una finestra</translation>
    </message>
    <message>
        <source>As -VPORTS; there is no window for it</source>
        <translation>Come -VPORTS; non ha una finestra</translation>
    </message>
    <message>
        <source>As -XREF; there is no window for it</source>
        <translation>Come -XREF; non ha una finestra</translation>
    </message>
    <message>
        <source>As LAYOUT; there is no window for it</source>
        <translation>Come LAYOUT; non ha una finestra</translation>
    </message>
    <message>
        <source>As NEW</source>
        <translation>Come NEW</translation>
    </message>
    <message>
        <source>As QUIT</source>
        <translation>Come QUIT</translation>
    </message>
    <message>
        <source>Attaches drawing files as external references, and changes, binds and detaches these</source>
        <translation>Attacca file di disegno come riferimenti esterni, e li modifica, unisce e stacca</translation>
    </message>
    <message>
        <source>BOUNDARY makes polylines (1) or regions (0)</source>
        <translation>BOUNDARY crea polilinee (1) o regioni (0)</translation>
    </message>
    <message>
        <source>Brings back what was erased last</source>
        <translation>Recupera ciò che è stato cancellato per ultimo</translation>
    </message>
    <message>
        <source>Brings entities in front of others or behind them</source>
        <translation>Porta entità davanti o dietro ad altre</translation>
    </message>
    <message>
        <source>COPY goes on until an empty answer (0) or makes one copy (1)</source>
        <translation>COPY continua fino a una risposta vuota (0) o fa una sola copia (1)</translation>
    </message>
    <message>
        <source>Changes entities by a point, or their properties</source>
        <translation>Modifica entità con un punto, o le loro proprietà</translation>
    </message>
    <message>
        <source>Changes entities by their grips</source>
        <translation>Modifica entità con i loro grip</translation>
    </message>
    <message>
        <source>Changes layer, color, linetype and weight of entities</source>
        <translation>Cambia layer, colore, tipo e spessore di linea di entità</translation>
    </message>
    <message>
        <source>Changes pattern, style and layer of a hatch</source>
        <translation>Cambia modello, stile e layer di un tratteggio</translation>
    </message>
    <message>
        <source>Changes text and extension lines of dimensions</source>
        <translation>Cambia testo e linee di estensione delle quote</translation>
    </message>
    <message>
        <source>Changes the values of a block reference&apos;s attributes</source>
        <translation>Cambia i valori degli attributi di un riferimento di blocco</translation>
    </message>
    <message>
        <source>Changes the values of attributes</source>
        <translation>Cambia i valori di attributi</translation>
    </message>
    <message>
        <source>Changes what texts, dimensions and definitions of attributes say</source>
        <translation>Cambia ciò che dicono testi, quote e definizioni di attributi</translation>
    </message>
    <message>
        <source>Chooses entities for the next command</source>
        <translation>Sceglie entità per il comando successivo</translation>
    </message>
    <message>
        <source>Chooses entities; they are the previous selection then</source>
        <translation>Sceglie entità; diventano la selezione precedente</translation>
    </message>
    <message>
        <source>Chooses the isometric plane</source>
        <translation>Sceglie il piano isometrico</translation>
    </message>
    <message>
        <source>Chooses what is similar to the chosen entities</source>
        <translation>Sceglie ciò che è simile alle entità scelte</translation>
    </message>
    <message>
        <source>Closes all drawings</source>
        <translation>Chiude tutti i disegni</translation>
    </message>
    <message>
        <source>Closes the drawing</source>
        <translation>Chiude il disegno</translation>
    </message>
    <message>
        <source>Closes the drawing without saving, and ends the program</source>
        <translation>Chiude il disegno senza salvare e termina il programma</translation>
    </message>
    <message>
        <source>Copies entities</source>
        <translation>Copia entità</translation>
    </message>
    <message>
        <source>Copies entities into rows and columns or round a point</source>
        <translation>Copia entità in righe e colonne o attorno a un punto</translation>
    </message>
    <message>
        <source>Copies entities to the clipboard</source>
        <translation>Copia entità negli Appunti</translation>
    </message>
    <message>
        <source>Copies entities to the clipboard by a base point</source>
        <translation>Copia entità negli Appunti con un punto base</translation>
    </message>
    <message>
        <source>Cuts block references off at a boundary</source>
        <translation>Ritaglia riferimenti di blocco lungo un contorno</translation>
    </message>
    <message>
        <source>Cuts corners off</source>
        <translation>Cima gli angoli</translation>
    </message>
    <message>
        <source>Defines an attribute of a block</source>
        <translation>Definisce un attributo di un blocco</translation>
    </message>
    <message>
        <source>Deletes layers with all that is on them</source>
        <translation>Elimina layer con tutto ciò che contengono</translation>
    </message>
    <message>
        <source>Dimensions a distance along itself</source>
        <translation>Quota una distanza lungo se stessa</translation>
    </message>
    <message>
        <source>Dimensions a distance along x, y or another direction</source>
        <translation>Quota una distanza lungo x, y o un&apos;altra direzione</translation>
    </message>
    <message>
        <source>Dimensions an angle</source>
        <translation>Quota un angolo</translation>
    </message>
    <message>
        <source>Dimensions by subcommands until Exit</source>
        <translation>Quota con sottocomandi fino a Exit</translation>
    </message>
    <message>
        <source>Dimensions further points from the same begin</source>
        <translation>Quota altri punti dalla stessa origine</translation>
    </message>
    <message>
        <source>Dimensions on from the last dimension</source>
        <translation>Continua a quotare dall&apos;ultima quota</translation>
    </message>
    <message>
        <source>Dimensions the diameter of a circle or arc</source>
        <translation>Quota il diametro di un cerchio o arco</translation>
    </message>
    <message>
        <source>Dimensions the length of an arc</source>
        <translation>Quota la lunghezza di un arco</translation>
    </message>
    <message>
        <source>Dimensions the radius of a circle or arc</source>
        <translation>Quota il raggio di un cerchio o arco</translation>
    </message>
    <message>
        <source>Dimensions the radius of a circle or arc from a nearer centre</source>
        <translation>Quota il raggio di un cerchio o arco da un centro più vicino</translation>
    </message>
    <message>
        <source>Dimensions the x or y coordinate of a point</source>
        <translation>Quota la coordinata x o y di un punto</translation>
    </message>
    <message>
        <source>Divides the screen or makes viewports on a sheet</source>
        <translation>Divide lo schermo o crea finestre in un layout</translation>
    </message>
    <message>
        <source>Does again what was undone last</source>
        <translation>Ripristina l&apos;ultima operazione annullata</translation>
    </message>
    <message>
        <source>Does again what was undone, several steps at once</source>
        <translation>Ripristina ciò che è stato annullato, più passi alla volta</translation>
    </message>
    <message>
        <source>Draws a circle: centre and radius, two or three points, two tangents and radius</source>
        <translation>Disegna un cerchio: centro e raggio, due o tre punti, due tangenti e raggio</translation>
    </message>
    <message>
        <source>Draws a cloud of arcs, or makes one of an entity</source>
        <translation>Disegna una nuvola di archi, o trasforma in una un&apos;entità</translation>
    </message>
    <message>
        <source>Draws a line from a feature to a note</source>
        <translation>Disegna una direttrice da una parte a una nota</translation>
    </message>
    <message>
        <source>Draws a line of up to three points with a text</source>
        <translation>Disegna una direttrice di al massimo tre punti con un testo</translation>
    </message>
    <message>
        <source>Draws a point</source>
        <translation>Disegna un punto</translation>
    </message>
    <message>
        <source>Draws a polygon with sides of one length</source>
        <translation>Disegna un poligono regolare</translation>
    </message>
    <message>
        <source>Draws a polyline in space</source>
        <translation>Disegna una polilinea nello spazio</translation>
    </message>
    <message>
        <source>Draws a polyline of straight segments and arcs</source>
        <translation>Disegna una polilinea di segmenti retti e archi</translation>
    </message>
    <message>
        <source>Draws a rectangle by corners, sides or area</source>
        <translation>Disegna un rettangolo con vertici, lati o area</translation>
    </message>
    <message>
        <source>Draws a smooth curve through points or along control points</source>
        <translation>Disegna una curva liscia per punti o lungo punti di controllo</translation>
    </message>
    <message>
        <source>Draws an arc: three points, or start, center, end, angle, length, direction, radius</source>
        <translation>Disegna un arco: tre punti, o inizio, centro, fine, angolo, lunghezza, direzione, raggio</translation>
    </message>
    <message>
        <source>Draws an arrow with a note as one entity</source>
        <translation>Disegna una freccia con una nota come unica entità</translation>
    </message>
    <message>
        <source>Draws an ellipse or a part of one</source>
        <translation>Disegna un&apos;ellisse o una sua parte</translation>
    </message>
    <message>
        <source>Draws faces in space</source>
        <translation>Disegna facce nello spazio</translation>
    </message>
    <message>
        <source>Draws filled areas with three or four corners</source>
        <translation>Disegna aree piene con tre o quattro vertici</translation>
    </message>
    <message>
        <source>Draws filled rings</source>
        <translation>Disegna anelli pieni</translation>
    </message>
    <message>
        <source>Draws lines that end at one side only</source>
        <translation>Disegna linee che finiscono da un solo lato</translation>
    </message>
    <message>
        <source>Draws lines without ends</source>
        <translation>Disegna linee senza fine</translation>
    </message>
    <message>
        <source>Draws parallel curves</source>
        <translation>Disegna curve parallele</translation>
    </message>
    <message>
        <source>Draws parallel lines with the current multiline style</source>
        <translation>Disegna linee parallele con lo stile multilinea corrente</translation>
    </message>
    <message>
        <source>Draws straight segments</source>
        <translation>Disegna segmenti retti</translation>
    </message>
    <message>
        <source>Draws the window anew</source>
        <translation>Ridisegna la finestra</translation>
    </message>
    <message>
        <source>Draws wide lines</source>
        <translation>Disegna linee larghe</translation>
    </message>
    <message>
        <source>ELLIPSE makes true ellipses (0) or polylines (1)</source>
        <translation>ELLIPSE crea ellissi vere (0) o polilinee (1)</translation>
    </message>
    <message>
        <source>EXPLODE takes blocks of unequal scales</source>
        <translation>EXPLODE accetta blocchi con scale diverse</translation>
    </message>
    <message>
        <source>Edits polylines: closes, joins, widens, smooths, changes vertices</source>
        <translation>Modifica polilinee: chiude, unisce, allarga, smussa, cambia vertici</translation>
    </message>
    <message>
        <source>Evaluates the expressions of texts anew</source>
        <translation>Rivaluta le espressioni dei testi</translation>
    </message>
    <message>
        <source>FILLET and CHAMFER trim what they join</source>
        <translation>FILLET e CHAMFER tagliano ciò che uniscono</translation>
    </message>
    <message>
        <source>Freezes and thaws layers in viewports of sheets</source>
        <translation>Congela e scongela layer nelle finestre dei layout</translation>
    </message>
    <message>
        <source>Freezes layers of picked objects in all other viewports</source>
        <translation>Congela i layer degli oggetti scelti in tutte le altre finestre</translation>
    </message>
    <message>
        <source>Freezes the layers of picked objects</source>
        <translation>Congela i layer degli oggetti scelti</translation>
    </message>
    <message>
        <source>Gives a multileader further arrows, or takes some away</source>
        <translation>Dà altre frecce a una multidirettrice, o ne toglie alcune</translation>
    </message>
    <message>
        <source>Gives blocks, layers, styles and other named things another name</source>
        <translation>Dà un altro nome a blocchi, layer, stili e altri elementi con nome</translation>
    </message>
    <message>
        <source>Gives entities the properties of another one</source>
        <translation>Dà a entità le proprietà di un&apos;altra</translation>
    </message>
    <message>
        <source>Gives layers what they had before LAYISO</source>
        <translation>Ridà ai layer ciò che avevano prima di LAYISO</translation>
    </message>
    <message>
        <source>Gives references the attributes that their block defines</source>
        <translation>Dà ai riferimenti gli attributi definiti dal loro blocco</translation>
    </message>
    <message>
        <source>Hatches areas</source>
        <translation>Tratteggia aree</translation>
    </message>
    <message>
        <source>Hides a command, which a point in front still runs</source>
        <translation>Nasconde un comando, che resta eseguibile con un punto davanti</translation>
    </message>
    <message>
        <source>INSERT asks for attributes (1) or takes their defaults (0)</source>
        <translation>INSERT chiede gli attributi (1) o prende i loro default (0)</translation>
    </message>
    <message>
        <source>INSERT asks for attributes with a dialog (1) or on the command line (0)</source>
        <translation>INSERT chiede gli attributi con un dialogo (1) o sulla riga di comando (0)</translation>
    </message>
    <message>
        <source>Inserts a block or drawing file, as a reference or in pieces</source>
        <translation>Inserisce un blocco o file di disegno, come riferimento o esploso</translation>
    </message>
    <message>
        <source>Loads a shape file, so that its shapes can be placed</source>
        <translation>Carica un file di forme, per poterle collocare</translation>
    </message>
    <message>
        <source>Loads linetypes from a file and chooses the current one</source>
        <translation>Carica tipi di linea da un file e sceglie quello corrente</translation>
    </message>
    <message>
        <source>Locks or turns off all layers but those of chosen objects</source>
        <translation>Blocca o disattiva tutti i layer tranne quelli degli oggetti scelti</translation>
    </message>
    <message>
        <source>Locks the layer of a picked object</source>
        <translation>Blocca il layer di un oggetto scelto</translation>
    </message>
    <message>
        <source>Looks for errors in the drawing and mends them</source>
        <translation>Cerca errori nel disegno e li ripara</translation>
    </message>
    <message>
        <source>Looks from another direction</source>
        <translation>Guarda da un&apos;altra direzione</translation>
    </message>
    <message>
        <source>Looks straight at the plane of a coordinate system</source>
        <translation>Guarda perpendicolarmente il piano di un sistema di coordinate</translation>
    </message>
    <message>
        <source>Makes a block of entities</source>
        <translation>Crea un blocco di entità</translation>
    </message>
    <message>
        <source>Makes a command known again that UNDEFINE hid</source>
        <translation>Rende di nuovo noto un comando nascosto da UNDEFINE</translation>
    </message>
    <message>
        <source>Makes a new drawing, from a template or empty</source>
        <translation>Crea un nuovo disegno, da un modello o vuoto</translation>
    </message>
    <message>
        <source>Makes and changes groups of entities</source>
        <translation>Crea e modifica gruppi di entità</translation>
    </message>
    <message>
        <source>Makes and changes text styles</source>
        <translation>Crea e modifica stili di testo</translation>
    </message>
    <message>
        <source>Makes entities larger or smaller</source>
        <translation>Ingrandisce o riduce entità</translation>
    </message>
    <message>
        <source>Makes layers and changes their properties and states</source>
        <translation>Crea layer e ne cambia proprietà e stati</translation>
    </message>
    <message>
        <source>Makes one paragraph of texts</source>
        <translation>Fa un paragrafo di testi</translation>
    </message>
    <message>
        <source>Makes polylines or regions round areas</source>
        <translation>Crea polilinee o regioni attorno ad aree</translation>
    </message>
    <message>
        <source>Makes the layer of a picked object current</source>
        <translation>Rende corrente il layer di un oggetto scelto</translation>
    </message>
    <message>
        <source>Makes viewports on a sheet and switches them</source>
        <translation>Crea finestre in un layout e le attiva o disattiva</translation>
    </message>
    <message>
        <source>Makes, copies, renames and deletes layouts and chooses the current one</source>
        <translation>Crea, copia, rinomina ed elimina layout e sceglie quello corrente</translation>
    </message>
    <message>
        <source>Marks the centre of a circle or arc</source>
        <translation>Contrassegna il centro di un cerchio o arco</translation>
    </message>
    <message>
        <source>Mirrors entities in a line</source>
        <translation>Specchia entità rispetto a una linea</translation>
    </message>
    <message>
        <source>Mirrors entities in a plane</source>
        <translation>Specchia entità rispetto a un piano</translation>
    </message>
    <message>
        <source>Moves entities</source>
        <translation>Sposta entità</translation>
    </message>
    <message>
        <source>Moves entities between the sheet and the model that it shows</source>
        <translation>Passa entità fra il layout e il modello che mostra</translation>
    </message>
    <message>
        <source>Moves entities in space</source>
        <translation>Sposta entità nello spazio</translation>
    </message>
    <message>
        <source>Moves entities to the clipboard</source>
        <translation>Sposta entità negli Appunti</translation>
    </message>
    <message>
        <source>Moves or turns the text of a dimension</source>
        <translation>Sposta o ruota il testo di una quota</translation>
    </message>
    <message>
        <source>Moves the notes of multileaders onto a line</source>
        <translation>Allinea le note delle multidirettrici su una linea</translation>
    </message>
    <message>
        <source>Moves what is shown</source>
        <translation>Sposta ciò che è mostrato</translation>
    </message>
    <message>
        <source>Moves what lies within a window, and what is tied to it follows</source>
        <translation>Sposta ciò che è in una finestra, e ciò che vi è legato lo segue</translation>
    </message>
    <message>
        <source>Moves, turns and scales entities by pairs of points</source>
        <translation>Sposta, ruota e scala entità con coppie di punti</translation>
    </message>
    <message>
        <source>Opens a drawing, where what is typed next goes on</source>
        <translation>Apre un disegno, in cui prosegue ciò che si digita</translation>
    </message>
    <message>
        <source>PEDIT makes polylines of others without asking</source>
        <translation>PEDIT trasforma altre entità in polilinee senza chiedere</translation>
    </message>
    <message>
        <source>Places a shape of a loaded shape file</source>
        <translation>Colloca una forma di un file di forme caricato</translation>
    </message>
    <message>
        <source>Places what is on the clipboard</source>
        <translation>Colloca ciò che è negli Appunti</translation>
    </message>
    <message>
        <source>Places what is on the clipboard as a block</source>
        <translation>Colloca come blocco ciò che è negli Appunti</translation>
    </message>
    <message>
        <source>Places what is on the clipboard where it was copied</source>
        <translation>Colloca ciò che è negli Appunti dove è stato copiato</translation>
    </message>
    <message>
        <source>Plots a layout to a file of PDF, PNG or SVG</source>
        <translation>Stampa un layout su un file PDF, PNG o SVG</translation>
    </message>
    <message>
        <source>Plots a layout to a file; in the window as a dialog with a preview</source>
        <translation>Stampa un layout su file; nella finestra con un dialogo e anteprima</translation>
    </message>
    <message>
        <source>Puts objects on the current layer</source>
        <translation>Mette oggetti sul layer corrente</translation>
    </message>
    <message>
        <source>Puts objects on the layer of another one</source>
        <translation>Mette oggetti sul layer di un altro</translation>
    </message>
    <message>
        <source>Puts what is on layers on another one and deletes them</source>
        <translation>Mette su un altro layer ciò che è su dei layer e li elimina</translation>
    </message>
    <message>
        <source>Rounds corners with arcs</source>
        <translation>Arrotonda angoli con archi</translation>
    </message>
    <message>
        <source>Runs a command again and again until it is cancelled</source>
        <translation>Esegue un comando più volte finché viene annullato</translation>
    </message>
    <message>
        <source>Runs one subcommand of the dimension mode</source>
        <translation>Esegue un sottocomando del modo di quotatura</translation>
    </message>
    <message>
        <source>Saves the drawing under a name</source>
        <translation>Salva il disegno con un nome</translation>
    </message>
    <message>
        <source>Saves the drawing under its own name</source>
        <translation>Salva il disegno con il suo nome</translation>
    </message>
    <message>
        <source>Saves, restores and deletes named views</source>
        <translation>Salva, ripristina ed elimina viste con nome</translation>
    </message>
    <message>
        <source>Saves, restores, lists and applies dimension styles</source>
        <translation>Salva, ripristina, elenca e applica stili di quota</translation>
    </message>
    <message>
        <source>Says how near the pointer object snap looks</source>
        <translation>Indica quanto vicino al puntatore cerca lo snap ad oggetto</translation>
    </message>
    <message>
        <source>Says which object snaps are always on</source>
        <translation>Indica quali snap ad oggetto sono sempre attivi</translation>
    </message>
    <message>
        <source>Scripts go on by themselves</source>
        <translation>Gli script proseguono da soli</translation>
    </message>
    <message>
        <source>Sets and checks the drawing&apos;s limits</source>
        <translation>Imposta e controlla i limiti del disegno</translation>
    </message>
    <message>
        <source>Sets and switches the grid</source>
        <translation>Imposta e attiva la griglia</translation>
    </message>
    <message>
        <source>Sets and switches the grid that points snap to</source>
        <translation>Imposta e attiva la griglia di snap</translation>
    </message>
    <message>
        <source>Sets how lengths and angles are shown</source>
        <translation>Imposta come vengono mostrati lunghezze e angoli</translation>
    </message>
    <message>
        <source>Sets the color of new objects</source>
        <translation>Imposta il colore dei nuovi oggetti</translation>
    </message>
    <message>
        <source>Sets the elevation and thickness of new objects</source>
        <translation>Imposta elevazione e spessore dei nuovi oggetti</translation>
    </message>
    <message>
        <source>Sets the lineweight of new objects</source>
        <translation>Imposta lo spessore di linea dei nuovi oggetti</translation>
    </message>
    <message>
        <source>Sets the point that the drawing is inserted by</source>
        <translation>Imposta il punto con cui si inserisce il disegno</translation>
    </message>
    <message>
        <source>Sets variables of single dimensions</source>
        <translation>Imposta variabili di singole quote</translation>
    </message>
    <message>
        <source>Sets, saves and restores the user coordinate system</source>
        <translation>Imposta, salva e ripristina il sistema di coordinate utente</translation>
    </message>
    <message>
        <source>Shows more or less of the drawing</source>
        <translation>Mostra di più o di meno del disegno</translation>
    </message>
    <message>
        <source>Shows the help pages</source>
        <translation>Mostra le pagine della guida</translation>
    </message>
    <message>
        <source>Shows the properties panel where it is entered by hand in the window</source>
        <translation>Mostra il pannello delle proprietà se digitato nella finestra</translation>
    </message>
    <message>
        <source>Shows, lists or sets a system variable</source>
        <translation>Mostra, elenca o imposta una variabile di sistema</translation>
    </message>
    <message>
        <source>Switches whether areas are filled</source>
        <translation>Attiva o disattiva il riempimento delle aree</translation>
    </message>
    <message>
        <source>Switches whether lines go along the axes</source>
        <translation>Attiva o disattiva le linee lungo gli assi</translation>
    </message>
    <message>
        <source>Switches whether texts are boxes</source>
        <translation>Attiva o disattiva i testi come riquadri</translation>
    </message>
    <message>
        <source>Switches whether the drawing is made anew by itself</source>
        <translation>Attiva o disattiva la rigenerazione automatica del disegno</translation>
    </message>
    <message>
        <source>TRIM and EXTEND begin with edges (0) or take all (1)</source>
        <translation>TRIM ed EXTEND cominciano dagli spigoli (0) o li prendono tutti (1)</translation>
    </message>
    <message>
        <source>TRIM and EXTEND take edges as if they went on</source>
        <translation>TRIM ed EXTEND prendono gli spigoli come se proseguissero</translation>
    </message>
    <message>
        <source>Takes a file&apos;s name; programs for other hosts do not run here</source>
        <translation>Prende il nome di un file; i programmi per altri host non funzionano qui</translation>
    </message>
    <message>
        <source>Takes back steps; marks and groups them</source>
        <translation>Annulla passi; li contrassegna e li raggruppa</translation>
    </message>
    <message>
        <source>Takes back the last change of layer settings</source>
        <translation>Annulla l&apos;ultima modifica delle impostazioni dei layer</translation>
    </message>
    <message>
        <source>Takes back the last step</source>
        <translation>Annulla l&apos;ultimo passo</translation>
    </message>
    <message>
        <source>Takes blocks, polylines, texts and dimensions apart</source>
        <translation>Scompone blocchi, polilinee, testi e quote</translation>
    </message>
    <message>
        <source>Takes entities out of the drawing</source>
        <translation>Toglie entità dal disegno</translation>
    </message>
    <message>
        <source>Takes out of the drawing what nothing refers to</source>
        <translation>Toglie dal disegno ciò a cui nulla fa riferimento</translation>
    </message>
    <message>
        <source>Takes the name of a menu file; there are none here</source>
        <translation>Prende il nome di un file di menu; qui non ce ne sono</translation>
    </message>
    <message>
        <source>Takes the name of a menu; there are none here</source>
        <translation>Prende il nome di un menu; qui non ce ne sono</translation>
    </message>
    <message>
        <source>Takes what programs ask of it; programs for other hosts do not run here</source>
        <translation>Prende ciò che i programmi gli chiedono; i programmi per altri host non funzionano qui</translation>
    </message>
    <message>
        <source>Tells the coordinates of a point</source>
        <translation>Indica le coordinate di un punto</translation>
    </message>
    <message>
        <source>Tells the distance and angle between points</source>
        <translation>Indica distanza e angolo fra punti</translation>
    </message>
    <message>
        <source>Tells what is in the drawing and what is current</source>
        <translation>Indica che cosa c&apos;è nel disegno e che cosa è corrente</translation>
    </message>
    <message>
        <source>Tells what is known of entities</source>
        <translation>Indica ciò che si sa di entità</translation>
    </message>
    <message>
        <source>Tells when the drawing was made and changed</source>
        <translation>Indica quando il disegno è stato creato e modificato</translation>
    </message>
    <message>
        <source>Thaws all layers</source>
        <translation>Scongela tutti i layer</translation>
    </message>
    <message>
        <source>The command line is always in sight</source>
        <translation>La riga di comando è sempre visibile</translation>
    </message>
    <message>
        <source>The drawing is always in sight</source>
        <translation>Il disegno è sempre visibile</translation>
    </message>
    <message>
        <source>Turns all layers on</source>
        <translation>Attiva tutti i layer</translation>
    </message>
    <message>
        <source>Turns entities round a point</source>
        <translation>Ruota entità attorno a un punto</translation>
    </message>
    <message>
        <source>Turns entities round an axis in space</source>
        <translation>Ruota entità attorno a un asse nello spazio</translation>
    </message>
    <message>
        <source>Turns off the layers of picked objects</source>
        <translation>Disattiva i layer degli oggetti scelti</translation>
    </message>
    <message>
        <source>Types the last script once more</source>
        <translation>Ripete l&apos;ultimo script</translation>
    </message>
    <message>
        <source>Types what a script file holds</source>
        <translation>Digita ciò che contiene un file di script</translation>
    </message>
    <message>
        <source>Unlocks the layer of a picked object</source>
        <translation>Sblocca il layer di un oggetto scelto</translation>
    </message>
    <message>
        <source>Waits for so many milliseconds</source>
        <translation>Attende il numero di millisecondi indicato</translation>
    </message>
    <message>
        <source>Works on model space through a viewport of the sheet</source>
        <translation>Lavora nello spazio modello attraverso una finestra del layout</translation>
    </message>
    <message>
        <source>Works on the sheet itself</source>
        <translation>Lavora sul layout stesso</translation>
    </message>
    <message>
        <source>Writes a block or entities to a drawing file</source>
        <translation>Scrive un blocco o entità in un file di disegno</translation>
    </message>
    <message>
        <source>Writes a paragraph of several lines</source>
        <translation>Scrive un paragrafo di più righe</translation>
    </message>
    <message>
        <source>Writes one line of text</source>
        <translation>Scrive una riga di testo</translation>
    </message>
    <message>
        <source>&quot;(&quot; and &quot;!&quot; in texts are evaluated</source>
        <translation>&quot;(&quot; e &quot;!&quot; nei testi vengono valutati</translation>
    </message>
    <message>
        <source>a block is being edited in place</source>
        <translation>un blocco viene modificato sul posto</translation>
    </message>
    <message>
        <source>a double click edits</source>
        <translation>un doppio clic modifica</translation>
    </message>
    <message>
        <source>a drawing&apos;s sheet set is looked for</source>
        <translation>viene cercato il gruppo di fogli di un disegno</translation>
    </message>
    <message>
        <source>a file&apos;s tab shows its layouts</source>
        <translation>la scheda di un file mostra i suoi layout</translation>
    </message>
    <message>
        <source>a hatch is shown before it is made</source>
        <translation>un tratteggio viene mostrato prima di essere creato</translation>
    </message>
    <message>
        <source>a line is drawn inside though the text is outside</source>
        <translation>una linea viene disegnata dentro anche se il testo è fuori</translation>
    </message>
    <message>
        <source>a new annotation scale is given to annotative things</source>
        <translation>una nuova scala di annotazione viene data agli oggetti annotativi</translation>
    </message>
    <message>
        <source>a panel for fingers</source>
        <translation>un pannello per le dita</translation>
    </message>
    <message>
        <source>a picture is saved in the file</source>
        <translation>nel file viene salvata un&apos;immagine</translation>
    </message>
    <message>
        <source>a real for programs, kept with the drawing</source>
        <translation>un reale per i programmi, conservato con il disegno</translation>
    </message>
    <message>
        <source>a second unit is shown</source>
        <translation>viene mostrata una seconda unità</translation>
    </message>
    <message>
        <source>a sheet that the printer lacks is told</source>
        <translation>viene segnalato un foglio che la stampante non ha</translation>
    </message>
    <message>
        <source>a text for programs</source>
        <translation>un testo per i programmi</translation>
    </message>
    <message>
        <source>addresses that programs may come from</source>
        <translation>indirizzi da cui possono venire programmi</translation>
    </message>
    <message>
        <source>after how long names are completed, in seconds</source>
        <translation>dopo quanto tempo i nomi vengono completati, in secondi</translation>
    </message>
    <message>
        <source>after how many milliseconds names are offered</source>
        <translation>dopo quanti millisecondi vengono proposti nomi</translation>
    </message>
    <message>
        <source>all grips of clouds are shown</source>
        <translation>vengono mostrati tutti i grip delle nuvole</translation>
    </message>
    <message>
        <source>an empty place picked begins a window</source>
        <translation>un clic in un punto vuoto comincia una finestra</translation>
    </message>
    <message>
        <source>an expression in the status line</source>
        <translation>un&apos;espressione nella riga di stato</translation>
    </message>
    <message>
        <source>an integer for programs, kept with the drawing</source>
        <translation>un intero per i programmi, conservato con il disegno</translation>
    </message>
    <message>
        <source>an orthographic view brings its coordinate system</source>
        <translation>una vista ortogonale porta il suo sistema di coordinate</translation>
    </message>
    <message>
        <source>and a foreground</source>
        <translation>e un primo piano</translation>
    </message>
    <message>
        <source>and opened</source>
        <translation>e aperti</translation>
    </message>
    <message>
        <source>angles count counterclockwise (0) or clockwise (1)</source>
        <translation>gli angoli contano in senso antiorario (0) o orario (1)</translation>
    </message>
    <message>
        <source>annotative things are saved for older programs</source>
        <translation>gli oggetti annotativi vengono salvati per programmi più vecchi</translation>
    </message>
    <message>
        <source>annotative things show at every scale</source>
        <translation>gli oggetti annotativi vengono mostrati a ogni scala</translation>
    </message>
    <message>
        <source>arcs are smooth</source>
        <translation>gli archi sono lisci</translation>
    </message>
    <message>
        <source>areas are filled</source>
        <translation>le aree vengono riempite</translation>
    </message>
    <message>
        <source>areas that are hatched at once become a hatch each</source>
        <translation>le aree tratteggiate insieme danno un tratteggio ciascuna</translation>
    </message>
    <message>
        <source>arrays stay one thing</source>
        <translation>le serie restano un unico oggetto</translation>
    </message>
    <message>
        <source>arrows outside are left out</source>
        <translation>le frecce esterne vengono omesse</translation>
    </message>
    <message>
        <source>attribute definitions may have several lines</source>
        <translation>le definizioni di attributi possono avere più righe</translation>
    </message>
    <message>
        <source>attributes: none are shown (0), as they say (1), all (2)</source>
        <translation>attributi: non mostrati (0), come indicano (1), tutti (2)</translation>
    </message>
    <message>
        <source>blocks cannot be edited in place</source>
        <translation>i blocchi non possono essere modificati sul posto</translation>
    </message>
    <message>
        <source>boundaries of hatches are kept</source>
        <translation>i contorni dei tratteggi vengono conservati</translation>
    </message>
    <message>
        <source>boxes of the screen menu</source>
        <translation>caselle del menu di schermo</translation>
    </message>
    <message>
        <source>breaches of standards are told</source>
        <translation>vengono segnalate violazioni degli standard</translation>
    </message>
    <message>
        <source>cameras are shown</source>
        <translation>le telecamere vengono mostrate</translation>
    </message>
    <message>
        <source>centre marks have lines</source>
        <translation>i contrassegni del centro hanno linee</translation>
    </message>
    <message>
        <source>chains take the style of what they go on from (1)</source>
        <translation>le catene prendono lo stile di ciò che proseguono (1)</translation>
    </message>
    <message>
        <source>chamfers by two distances (0) or by length and angle (1)</source>
        <translation>cimature con due distanze (0) o con lunghezza e angolo (1)</translation>
    </message>
    <message>
        <source>changed external drawings are told</source>
        <translation>vengono segnalati i disegni esterni modificati</translation>
    </message>
    <message>
        <source>changes of external drawings&apos; blocks are told</source>
        <translation>vengono segnalate le modifiche ai blocchi dei disegni esterni</translation>
    </message>
    <message>
        <source>changes of variables are told</source>
        <translation>vengono segnalate le modifiche di variabili</translation>
    </message>
    <message>
        <source>closed splines have no corner</source>
        <translation>le spline chiuse non hanno angolo</translation>
    </message>
    <message>
        <source>colours of external drawings&apos; entities go by layer</source>
        <translation>i colori delle entità dei disegni esterni vanno per layer</translation>
    </message>
    <message>
        <source>columns of new paragraphs</source>
        <translation>colonne dei nuovi paragrafi</translation>
    </message>
    <message>
        <source>commands ask for files with a dialog</source>
        <translation>i comandi chiedono i file con un dialogo</translation>
    </message>
    <message>
        <source>commands may show dialogs</source>
        <translation>i comandi possono mostrare dialoghi</translation>
    </message>
    <message>
        <source>commands of programs are echoed</source>
        <translation>i comandi dei programmi vengono visualizzati</translation>
    </message>
    <message>
        <source>crashes are reported</source>
        <translation>vengono segnalati gli arresti anomali</translation>
    </message>
    <message>
        <source>cuts curves off at others</source>
        <translation>taglia curve su altre</translation>
    </message>
    <message>
        <source>dark (0) or light (1)</source>
        <translation>scuro (0) o chiaro (1)</translation>
    </message>
    <message>
        <source>date and time as a number: YYYYMMDD.HHMMSS</source>
        <translation>data e ora come numero: AAAAMMGG.HHMMSS</translation>
    </message>
    <message>
        <source>date and time as days of the Julian calendar</source>
        <translation>data e ora come giorni del calendario giuliano</translation>
    </message>
    <message>
        <source>decimals of angles</source>
        <translation>decimali degli angoli</translation>
    </message>
    <message>
        <source>decimals of angles; -1 as DIMDEC</source>
        <translation>decimali degli angoli; -1 come DIMDEC</translation>
    </message>
    <message>
        <source>decimals of dimensions</source>
        <translation>decimali delle quote</translation>
    </message>
    <message>
        <source>decimals of lengths</source>
        <translation>decimali delle lunghezze</translation>
    </message>
    <message>
        <source>decimals of the second unit</source>
        <translation>decimali della seconda unità</translation>
    </message>
    <message>
        <source>decimals of tolerances</source>
        <translation>decimali delle tolleranze</translation>
    </message>
    <message>
        <source>decimals of tolerances in the second unit</source>
        <translation>decimali delle tolleranze nella seconda unità</translation>
    </message>
    <message>
        <source>density of surfaces one way</source>
        <translation>densità delle superfici in un senso</translation>
    </message>
    <message>
        <source>density of surfaces the other way</source>
        <translation>densità delle superfici nell&apos;altro senso</translation>
    </message>
    <message>
        <source>depth of the spatial index</source>
        <translation>profondità dell&apos;indice spaziale</translation>
    </message>
    <message>
        <source>dialogs begin in the folder used last</source>
        <translation>i dialoghi cominciano nell&apos;ultima cartella usata</translation>
    </message>
    <message>
        <source>dimensions are exploded (0), one thing (1), or follow what they measure (2)</source>
        <translation>le quote sono esplose (0), un unico oggetto (1) o seguono ciò che misurano (2)</translation>
    </message>
    <message>
        <source>dimensions are one thing (1) or exploded (0)</source>
        <translation>le quote sono un unico oggetto (1) o esplose (0)</translation>
    </message>
    <message>
        <source>dimensions change while they are dragged</source>
        <translation>le quote cambiano mentre vengono trascinate</translation>
    </message>
    <message>
        <source>drawings are checked when opened</source>
        <translation>i disegni vengono controllati all&apos;apertura</translation>
    </message>
    <message>
        <source>drawings have tabs</source>
        <translation>i disegni hanno schede</translation>
    </message>
    <message>
        <source>drawings may be opened in part</source>
        <translation>i disegni possono essere aperti in parte</translation>
    </message>
    <message>
        <source>entities are shown while they are dragged</source>
        <translation>le entità vengono mostrate mentre sono trascinate</translation>
    </message>
    <message>
        <source>entities have handles: always 1</source>
        <translation>le entità hanno handle: sempre 1</translation>
    </message>
    <message>
        <source>entities may be chosen before a command</source>
        <translation>le entità possono essere scelte prima di un comando</translation>
    </message>
    <message>
        <source>entities that are chosen show grips</source>
        <translation>le entità scelte mostrano i grip</translation>
    </message>
    <message>
        <source>erases what is there twice and makes one of lines and arcs that overlap</source>
        <translation>cancella i doppioni e fa di linee e archi sovrapposti uno solo</translation>
    </message>
    <message>
        <source>everything but the drawing is hidden</source>
        <translation>tutto tranne il disegno viene nascosto</translation>
    </message>
    <message>
        <source>extension lines have a fixed length</source>
        <translation>le linee di estensione hanno lunghezza fissa</translation>
    </message>
    <message>
        <source>external drawings are read in part</source>
        <translation>i disegni esterni vengono letti in parte</translation>
    </message>
    <message>
        <source>fields have a ground</source>
        <translation>i campi hanno uno sfondo</translation>
    </message>
    <message>
        <source>folders that drawings may name files of</source>
        <translation>cartelle i cui file possono essere nominati dai disegni</translation>
    </message>
    <message>
        <source>folders that programs may come from</source>
        <translation>cartelle da cui possono venire programmi</translation>
    </message>
    <message>
        <source>frames of clipped blocks</source>
        <translation>cornici di blocchi ritagliati</translation>
    </message>
    <message>
        <source>frames of masks</source>
        <translation>cornici di maschere</translation>
    </message>
    <message>
        <source>frames of objects of other programs</source>
        <translation>cornici di oggetti di altri programmi</translation>
    </message>
    <message>
        <source>frames of pictures</source>
        <translation>cornici di immagini</translation>
    </message>
    <message>
        <source>frames of splines and hidden edges are shown</source>
        <translation>vengono mostrati cornici di spline e spigoli nascosti</translation>
    </message>
    <message>
        <source>frames of underlays</source>
        <translation>cornici di sottofondi</translation>
    </message>
    <message>
        <source>functions and variables are the drawing&apos;s own</source>
        <translation>funzioni e variabili sono proprie del disegno</translation>
    </message>
    <message>
        <source>further angles of polar tracking</source>
        <translation>altri angoli del puntamento polare</translation>
    </message>
    <message>
        <source>gaps of boundaries that are taken as closed</source>
        <translation>aperture dei contorni considerate chiuse</translation>
    </message>
    <message>
        <source>gaps where things cross others that are in front</source>
        <translation>interruzioni dove oggetti ne incrociano altri che stanno davanti</translation>
    </message>
    <message>
        <source>gradients have one colour (1) or two (0)</source>
        <translation>le sfumature hanno un colore (1) o due (0)</translation>
    </message>
    <message>
        <source>gradients lie in the middle (0) or beside it</source>
        <translation>le sfumature sono centrate (0) o a lato</translation>
    </message>
    <message>
        <source>grips have tips</source>
        <translation>i grip hanno suggerimenti</translation>
    </message>
    <message>
        <source>grips within blocks are shown</source>
        <translation>vengono mostrati i grip entro i blocchi</translation>
    </message>
    <message>
        <source>groups and hatches with their boundary are chosen as one</source>
        <translation>gruppi e tratteggi con il contorno vengono scelti insieme</translation>
    </message>
    <message>
        <source>half the size of the box of object snap, in pixels</source>
        <translation>metà della dimensione della casella di snap ad oggetto, in pixel</translation>
    </message>
    <message>
        <source>half the size of the box that picks, in pixels</source>
        <translation>metà della dimensione della casella di selezione, in pixel</translation>
    </message>
    <message>
        <source>hatches follow their boundary</source>
        <translation>i tratteggi seguono il contorno</translation>
    </message>
    <message>
        <source>hatches may have linetypes</source>
        <translation>i tratteggi possono avere tipi di linea</translation>
    </message>
    <message>
        <source>hatches of the user&apos;s lines cross</source>
        <translation>i tratteggi di linee dell&apos;utente si incrociano</translation>
    </message>
    <message>
        <source>how angles are shown: degrees, minutes, gradians, radians, surveyor&apos;s units</source>
        <translation>come vengono mostrati gli angoli: gradi, primi, centesimali, radianti, topografiche</translation>
    </message>
    <message>
        <source>how areas are picked</source>
        <translation>come si scelgono le aree</translation>
    </message>
    <message>
        <source>how closely splines follow sketches</source>
        <translation>quanto fedelmente le spline seguono gli schizzi</translation>
    </message>
    <message>
        <source>how clouds are drawn</source>
        <translation>come vengono disegnate le nuvole</translation>
    </message>
    <message>
        <source>how edges meet</source>
        <translation>come si incontrano gli spigoli</translation>
    </message>
    <message>
        <source>how exactly hidden lines are found</source>
        <translation>quanto esattamente vengono trovate le linee nascoste</translation>
    </message>
    <message>
        <source>how external drawings&apos; names are bound: with $ (0) or as if inserted (1)</source>
        <translation>come vengono uniti i nomi dei disegni esterni: con $ (0) o come inseriti (1)</translation>
    </message>
    <message>
        <source>how faces and edges are shaded</source>
        <translation>come vengono ombreggiati facce e spigoli</translation>
    </message>
    <message>
        <source>how far TRIM and EXTEND of hatches go</source>
        <translation>fin dove vanno TRIM ed EXTEND dei tratteggi</translation>
    </message>
    <message>
        <source>how far apart ends may be that JOIN puts together</source>
        <translation>quanto possono distare gli estremi che JOIN unisce</translation>
    </message>
    <message>
        <source>how far centre lines go beyond</source>
        <translation>di quanto sporgono le linee d&apos;asse</translation>
    </message>
    <message>
        <source>how far extension lines go beyond the line</source>
        <translation>di quanto le linee di estensione superano la linea</translation>
    </message>
    <message>
        <source>how far extension lines stay from what is measured</source>
        <translation>a che distanza dal misurato stanno le linee di estensione</translation>
    </message>
    <message>
        <source>how far new entities rise above their plane</source>
        <translation>di quanto le nuove entità si alzano sopra il loro piano</translation>
    </message>
    <message>
        <source>how far the line goes beyond extension lines</source>
        <translation>di quanto la linea supera le linee di estensione</translation>
    </message>
    <message>
        <source>how far the text stands from the line</source>
        <translation>a che distanza dalla linea sta il testo</translation>
    </message>
    <message>
        <source>how far tracking lines go</source>
        <translation>fin dove vanno le linee di puntamento</translation>
    </message>
    <message>
        <source>how fit points share the knots</source>
        <translation>come i punti di adattamento ripartiscono i nodi</translation>
    </message>
    <message>
        <source>how fractions are written</source>
        <translation>come vengono scritte le frazioni</translation>
    </message>
    <message>
        <source>how grips offer more than one thing</source>
        <translation>come i grip offrono più di una possibilità</translation>
    </message>
    <message>
        <source>how large points look</source>
        <translation>quanto grandi appaiono i punti</translation>
    </message>
    <message>
        <source>how lengths are shown: scientific, decimal, engineering, architectural, fractional</source>
        <translation>come vengono mostrate le lunghezze: scientifico, decimale, ingegneria, architettonico, frazionario</translation>
    </message>
    <message>
        <source>how lofted surfaces are shaped, as bits</source>
        <translation>come sono formate le superfici di loft, in bit</translation>
    </message>
    <message>
        <source>how lofted surfaces leave their sections</source>
        <translation>come le superfici di loft lasciano le loro sezioni</translation>
    </message>
    <message>
        <source>how long</source>
        <translation>quanto lungo</translation>
    </message>
    <message>
        <source>how long smooth changes of the view take, in milliseconds</source>
        <translation>quanto durano i cambi graduali di vista, in millisecondi</translation>
    </message>
    <message>
        <source>how long the drawing was worked on</source>
        <translation>per quanto tempo si è lavorato al disegno</translation>
    </message>
    <message>
        <source>how long the right button is held for a menu</source>
        <translation>quanto si tiene premuto il tasto destro per un menu</translation>
    </message>
    <message>
        <source>how many corners a face may have</source>
        <translation>quanti vertici può avere una faccia</translation>
    </message>
    <message>
        <source>how many dimensions are shown while a grip is pulled</source>
        <translation>quante quote vengono mostrate mentre si tira un grip</translation>
    </message>
    <message>
        <source>how many entities the panel of properties takes</source>
        <translation>quante entità prende il pannello delle proprietà</translation>
    </message>
    <message>
        <source>how many lines a hatch may have</source>
        <translation>quante linee può avere un tratteggio</translation>
    </message>
    <message>
        <source>how many lines of input are remembered</source>
        <translation>quante righe di input vengono ricordate</translation>
    </message>
    <message>
        <source>how many lines of the grid lie between two stronger ones</source>
        <translation>quante linee della griglia stanno fra due più marcate</translation>
    </message>
    <message>
        <source>how many names are listed in order</source>
        <translation>quanti nomi vengono elencati in ordine</translation>
    </message>
    <message>
        <source>how many sides POLYGON proposes</source>
        <translation>quanti lati propone POLYGON</translation>
    </message>
    <message>
        <source>how many turns HELIX proposes</source>
        <translation>quanti giri propone HELIX</translation>
    </message>
    <message>
        <source>how many viewports may show something</source>
        <translation>quante finestre possono mostrare qualcosa</translation>
    </message>
    <message>
        <source>how much</source>
        <translation>quanto</translation>
    </message>
    <message>
        <source>how much external drawings fade</source>
        <translation>quanto sfumano i disegni esterni</translation>
    </message>
    <message>
        <source>how much light is scattered</source>
        <translation>quanta luce viene diffusa</translation>
    </message>
    <message>
        <source>how much locked layers fade</source>
        <translation>quanto sfumano i layer bloccati</translation>
    </message>
    <message>
        <source>how much of a file may be waste before it is saved whole</source>
        <translation>quanto di un file può essere sprecato prima che sia salvato intero</translation>
    </message>
    <message>
        <source>how much the wheel zooms</source>
        <translation>quanto ingrandisce la rotella</translation>
    </message>
    <message>
        <source>how much what is not edited fades</source>
        <translation>quanto sfuma ciò che non viene modificato</translation>
    </message>
    <message>
        <source>how names are completed, as bits</source>
        <translation>come vengono completati i nomi, in bit</translation>
    </message>
    <message>
        <source>how often dragging is drawn again with regeneration</source>
        <translation>quanto spesso il trascinamento viene ridisegnato con rigenerazione</translation>
    </message>
    <message>
        <source>how often dragging is drawn again without</source>
        <translation>quanto spesso il trascinamento viene ridisegnato senza</translation>
    </message>
    <message>
        <source>how paragraphs are shown while edited</source>
        <translation>come vengono mostrati i paragrafi durante la modifica</translation>
    </message>
    <message>
        <source>how places on earth are shown</source>
        <translation>come vengono mostrati i luoghi sulla terra</translation>
    </message>
    <message>
        <source>how points look</source>
        <translation>come appaiono i punti</translation>
    </message>
    <message>
        <source>how polar and object tracking work, as bits</source>
        <translation>come funzionano il puntamento polare e ad oggetto, in bit</translation>
    </message>
    <message>
        <source>how programs are tested, as bits</source>
        <translation>come vengono provati i programmi, in bit</translation>
    </message>
    <message>
        <source>how sheets are turned</source>
        <translation>come sono girati i fogli</translation>
    </message>
    <message>
        <source>how smooth letters are plotted</source>
        <translation>quanto lisce vengono stampate le lettere</translation>
    </message>
    <message>
        <source>how smooth round things are shown</source>
        <translation>quanto lisce vengono mostrate le forme rotonde</translation>
    </message>
    <message>
        <source>how stacked texts are aligned</source>
        <translation>come sono allineati i testi in pila</translation>
    </message>
    <message>
        <source>how surfaces are smoothed</source>
        <translation>come vengono smussate le superfici</translation>
    </message>
    <message>
        <source>how text and arrows share the room, in the old form</source>
        <translation>come testo e frecce si dividono lo spazio, nella vecchia forma</translation>
    </message>
    <message>
        <source>how texts are aligned</source>
        <translation>come sono allineati i testi</translation>
    </message>
    <message>
        <source>how texts are edited</source>
        <translation>come vengono modificati i testi</translation>
    </message>
    <message>
        <source>how the dialog of hatches is shown</source>
        <translation>come viene mostrato il dialogo dei tratteggi</translation>
    </message>
    <message>
        <source>how the grid is shown, as bits</source>
        <translation>come viene mostrata la griglia, in bit</translation>
    </message>
    <message>
        <source>how the status line shows the pointer&apos;s place</source>
        <translation>come la riga di stato mostra la posizione del puntatore</translation>
    </message>
    <message>
        <source>how undo works, as bits</source>
        <translation>come funziona l&apos;annullamento, in bit</translation>
    </message>
    <message>
        <source>how unknown entities are shown</source>
        <translation>come vengono mostrate entità sconosciute</translation>
    </message>
    <message>
        <source>how well objects of other programs are plotted</source>
        <translation>con che qualità vengono stampati oggetti di altri programmi</translation>
    </message>
    <message>
        <source>how well pictures are shown</source>
        <translation>con che qualità vengono mostrate le immagini</translation>
    </message>
    <message>
        <source>how what is under the pointer is shown</source>
        <translation>come viene mostrato ciò che è sotto il puntatore</translation>
    </message>
    <message>
        <source>how wide lines end</source>
        <translation>come finiscono le linee larghe</translation>
    </message>
    <message>
        <source>how wide lines meet</source>
        <translation>come si incontrano le linee larghe</translation>
    </message>
    <message>
        <source>indices of layers and places are kept</source>
        <translation>vengono conservati indici di layer e posizioni</translation>
    </message>
    <message>
        <source>islands are looked for</source>
        <translation>vengono cercate le isole</translation>
    </message>
    <message>
        <source>its colour</source>
        <translation>il suo colore</translation>
    </message>
    <message>
        <source>kept as it is set, for programs: nothing here depends on it</source>
        <translation>conservato com&apos;è impostato, per i programmi: qui nulla ne dipende</translation>
    </message>
    <message>
        <source>kept for programs that ask for it</source>
        <translation>conservato per i programmi che lo chiedono</translation>
    </message>
    <message>
        <source>keys that override a mode for a moment</source>
        <translation>tasti che sostituiscono un modo per un momento</translation>
    </message>
    <message>
        <source>layers of external drawings keep what is set here</source>
        <translation>i layer dei disegni esterni conservano ciò che è impostato qui</translation>
    </message>
    <message>
        <source>layers without entities are shown so</source>
        <translation>i layer senza entità vengono mostrati come tali</translation>
    </message>
    <message>
        <source>layouts have tabs</source>
        <translation>i layout hanno schede</translation>
    </message>
    <message>
        <source>lengthens curves up to others</source>
        <translation>estende curve fino ad altre</translation>
    </message>
    <message>
        <source>lengths are shown as they are typed</source>
        <translation>le lunghezze vengono mostrate come si digitano</translation>
    </message>
    <message>
        <source>letters are filled when plotted</source>
        <translation>le lettere vengono riempite in stampa</translation>
    </message>
    <message>
        <source>limits are shown</source>
        <translation>i limiti vengono mostrati</translation>
    </message>
    <message>
        <source>line spacing at least (1) or exactly (2)</source>
        <translation>interlinea minima (1) o esatta (2)</translation>
    </message>
    <message>
        <source>lines are drawn smoothly</source>
        <translation>le linee vengono disegnate smussate</translation>
    </message>
    <message>
        <source>lines between two corners of a spline-fitted polyline</source>
        <translation>linee fra due vertici di una polilinea adattata a spline</translation>
    </message>
    <message>
        <source>lines of history that the command line shows</source>
        <translation>righe di cronologia mostrate dalla riga di comando</translation>
    </message>
    <message>
        <source>lines of surfaces one way</source>
        <translation>linee delle superfici in un senso</translation>
    </message>
    <message>
        <source>lines of surfaces the other way</source>
        <translation>linee delle superfici nell&apos;altro senso</translation>
    </message>
    <message>
        <source>lines on round solids</source>
        <translation>linee sui solidi rotondi</translation>
    </message>
    <message>
        <source>lines where solids meet are shown</source>
        <translation>vengono mostrate le linee dove i solidi si incontrano</translation>
    </message>
    <message>
        <source>linetypes in model space take the annotation scale</source>
        <translation>i tipi di linea nello spazio modello prendono la scala di annotazione</translation>
    </message>
    <message>
        <source>linetypes in viewports take the scale of the sheet</source>
        <translation>i tipi di linea nelle finestre prendono la scala del layout</translation>
    </message>
    <message>
        <source>linetypes run through the corners of polylines</source>
        <translation>i tipi di linea attraversano i vertici delle polilinee</translation>
    </message>
    <message>
        <source>lineweights are shown</source>
        <translation>gli spessori di linea vengono mostrati</translation>
    </message>
    <message>
        <source>lineweights are shown in inches (0) or millimetres (1)</source>
        <translation>gli spessori di linea vengono mostrati in pollici (0) o millimetri (1)</translation>
    </message>
    <message>
        <source>makes one curve of several that meet or lie on one line or circle</source>
        <translation>fa una curva di più curve che si toccano o giacciono su una linea o un cerchio</translation>
    </message>
    <message>
        <source>makes regions of closed loops</source>
        <translation>crea regioni da anelli chiusi</translation>
    </message>
    <message>
        <source>marks and tips of object snap, polar and object tracking, as bits</source>
        <translation>contrassegni e suggerimenti di snap ad oggetto e puntamento polare e ad oggetto, in bit</translation>
    </message>
    <message>
        <source>marks of centres: their size, negative with lines, 0 for none</source>
        <translation>contrassegni del centro: dimensione, negativa con linee, 0 per nessuno</translation>
    </message>
    <message>
        <source>marks where points were picked</source>
        <translation>contrassegni dove sono stati scelti punti</translation>
    </message>
    <message>
        <source>measures areas and perimeters of corners and curves</source>
        <translation>misura aree e perimetri di vertici e curve</translation>
    </message>
    <message>
        <source>measures curves and makes them longer or shorter</source>
        <translation>misura curve e le allunga o accorcia</translation>
    </message>
    <message>
        <source>menus follow the command</source>
        <translation>i menu seguono il comando</translation>
    </message>
    <message>
        <source>menus of the right button, as bits: at rest, for what is chosen, at prompts, with options, held</source>
        <translation>menu del tasto destro, in bit: a riposo, per ciò che è scelto, alle richieste, con opzioni, tenuto premuto</translation>
    </message>
    <message>
        <source>milliseconds since the machine was started</source>
        <translation>millisecondi dall&apos;avvio della macchina</translation>
    </message>
    <message>
        <source>minutes between automatic saves</source>
        <translation>minuti fra i salvataggi automatici</translation>
    </message>
    <message>
        <source>model space is shown (1) or a layout (0)</source>
        <translation>viene mostrato lo spazio modello (1) o un layout (0)</translation>
    </message>
    <message>
        <source>names may be long and have blanks</source>
        <translation>i nomi possono essere lunghi e avere spazi</translation>
    </message>
    <message>
        <source>names of applications come with external drawings</source>
        <translation>i nomi di applicazioni vengono con i disegni esterni</translation>
    </message>
    <message>
        <source>new drawings are imperial (0) or metric (1)</source>
        <translation>i nuovi disegni sono imperiali (0) o metrici (1)</translation>
    </message>
    <message>
        <source>new external drawings are attached (0) or overlaid (1)</source>
        <translation>i nuovi disegni esterni vengono attaccati (0) o sovrapposti (1)</translation>
    </message>
    <message>
        <source>new external drawings have no path (0), a relative (1) or a full one (2)</source>
        <translation>i nuovi disegni esterni non hanno percorso (0), uno relativo (1) o uno completo (2)</translation>
    </message>
    <message>
        <source>new hatches are annotative</source>
        <translation>i nuovi tratteggi sono annotativi</translation>
    </message>
    <message>
        <source>new layers are looked for</source>
        <translation>vengono cercati nuovi layer</translation>
    </message>
    <message>
        <source>new layouts get a viewport</source>
        <translation>i nuovi layout ricevono una finestra</translation>
    </message>
    <message>
        <source>new texts are in capitals</source>
        <translation>i nuovi testi sono in maiuscole</translation>
    </message>
    <message>
        <source>notes are shown in the status bar</source>
        <translation>le note vengono mostrate nella barra di stato</translation>
    </message>
    <message>
        <source>object snap finds hatches</source>
        <translation>lo snap ad oggetto trova i tratteggi</translation>
    </message>
    <message>
        <source>object snap finds underlays</source>
        <translation>lo snap ad oggetto trova i sottofondi</translation>
    </message>
    <message>
        <source>object snap takes the height of the user&apos;s plane</source>
        <translation>lo snap ad oggetto prende l&apos;altezza del piano dell&apos;utente</translation>
    </message>
    <message>
        <source>object snaps in space, as bits</source>
        <translation>snap ad oggetto nello spazio, in bit</translation>
    </message>
    <message>
        <source>objects of other programs are hidden</source>
        <translation>gli oggetti di altri programmi vengono nascosti</translation>
    </message>
    <message>
        <source>one drawing at a time</source>
        <translation>un disegno alla volta</translation>
    </message>
    <message>
        <source>one text is edited (1) or several (0)</source>
        <translation>viene modificato un testo (1) o più (0)</translation>
    </message>
    <message>
        <source>patterns are mirrored with hatches</source>
        <translation>i modelli vengono specchiati con i tratteggi</translation>
    </message>
    <message>
        <source>pictures are shown whole when chosen</source>
        <translation>le immagini vengono mostrate intere quando scelte</translation>
    </message>
    <message>
        <source>pictures have a ground</source>
        <translation>le immagini hanno uno sfondo</translation>
    </message>
    <message>
        <source>pictures of unknown entities are saved</source>
        <translation>vengono salvate immagini di entità sconosciute</translation>
    </message>
    <message>
        <source>plot styles go by colour (1) or name (0)</source>
        <translation>gli stili di stampa vanno per colore (1) o per nome (0)</translation>
    </message>
    <message>
        <source>points must be within the limits</source>
        <translation>i punti devono stare entro i limiti</translation>
    </message>
    <message>
        <source>points typed beside the pointer are polar (0) or cartesian (1)</source>
        <translation>i punti digitati accanto al puntatore sono polari (0) o cartesiani (1)</translation>
    </message>
    <message>
        <source>points typed beside the pointer are relative (0) or absolute (1)</source>
        <translation>i punti digitati accanto al puntatore sono relativi (0) o assoluti (1)</translation>
    </message>
    <message>
        <source>polylines are made light: never (0), new ones (1), old ones too (2)</source>
        <translation>le polilinee vengono alleggerite: mai (0), le nuove (1), anche le vecchie (2)</translation>
    </message>
    <message>
        <source>programs from elsewhere: loaded (0), asked for (1), refused (2); trusted folders decide here</source>
        <translation>programmi da altrove: caricati (0), chiesti (1), rifiutati (2); qui decidono le cartelle attendibili</translation>
    </message>
    <message>
        <source>prompts are not printed</source>
        <translation>le richieste non vengono stampate</translation>
    </message>
    <message>
        <source>prompts are shown beside the pointer</source>
        <translation>le richieste vengono mostrate accanto al puntatore</translation>
    </message>
    <message>
        <source>prompts beside the pointer, as bits</source>
        <translation>richieste accanto al puntatore, in bit</translation>
    </message>
    <message>
        <source>puts points or blocks at steps along a curve</source>
        <translation>mette punti o blocchi a intervalli lungo una curva</translation>
    </message>
    <message>
        <source>puts points or blocks that cut a curve into equal parts</source>
        <translation>mette punti o blocchi che dividono una curva in parti uguali</translation>
    </message>
    <message>
        <source>quick properties are shown</source>
        <translation>le proprietà rapide vengono mostrate</translation>
    </message>
    <message>
        <source>regeneration on several processors</source>
        <translation>rigenerazione su più processori</translation>
    </message>
    <message>
        <source>reversing a polyline swaps its widths</source>
        <translation>invertire una polilinea scambia le sue larghezze</translation>
    </message>
    <message>
        <source>saving keeps a backup</source>
        <translation>il salvataggio conserva una copia di backup</translation>
    </message>
    <message>
        <source>scripts plot without questions</source>
        <translation>gli script stampano senza domande</translation>
    </message>
    <message>
        <source>silhouettes of solids are drawn</source>
        <translation>vengono disegnati i profili dei solidi</translation>
    </message>
    <message>
        <source>sketches become lines (0), polylines (1), splines (2)</source>
        <translation>gli schizzi diventano linee (0), polilinee (1), spline (2)</translation>
    </message>
    <message>
        <source>snap goes by the grid (0) or by polar tracking (1)</source>
        <translation>lo snap va per griglia (0) o per puntamento polare (1)</translation>
    </message>
    <message>
        <source>snap is square (0) or isometric (1)</source>
        <translation>lo snap è rettangolare (0) o isometrico (1)</translation>
    </message>
    <message>
        <source>solids are checked</source>
        <translation>i solidi vengono controllati</translation>
    </message>
    <message>
        <source>solids keep their history</source>
        <translation>i solidi conservano la loro cronologia</translation>
    </message>
    <message>
        <source>spline-fitted polylines are quadratic (5) or cubic (6)</source>
        <translation>le polilinee adattate a spline sono quadratiche (5) o cubiche (6)</translation>
    </message>
    <message>
        <source>splines become polylines of lines (0) or arcs (1)</source>
        <translation>le spline diventano polilinee di linee (0) o archi (1)</translation>
    </message>
    <message>
        <source>splines go by fit points (0) or control points (1)</source>
        <translation>le spline vanno per punti di adattamento (0) o di controllo (1)</translation>
    </message>
    <message>
        <source>start-up programs are loaded into every drawing (1) or the first (0)</source>
        <translation>i programmi di avvio vengono caricati in ogni disegno (1) o nel primo (0)</translation>
    </message>
    <message>
        <source>steps of a walk in a second</source>
        <translation>passi di una camminata al secondo</translation>
    </message>
    <message>
        <source>such settings are shown</source>
        <translation>tali impostazioni vengono mostrate</translation>
    </message>
    <message>
        <source>symbols are shown in the status bar</source>
        <translation>vengono mostrati simboli nella barra di stato</translation>
    </message>
    <message>
        <source>takes a part out of a curve, or cuts it in two</source>
        <translation>toglie una parte di una curva, o la taglia in due</translation>
    </message>
    <message>
        <source>texts are kept inside</source>
        <translation>i testi restano dentro</translation>
    </message>
    <message>
        <source>texts are mirrored with the drawing</source>
        <translation>i testi vengono specchiati con il disegno</translation>
    </message>
    <message>
        <source>texts are read the other way</source>
        <translation>i testi si leggono nell&apos;altro senso</translation>
    </message>
    <message>
        <source>texts are shown as boxes</source>
        <translation>i testi vengono mostrati come riquadri</translation>
    </message>
    <message>
        <source>texts hide and are hidden</source>
        <translation>i testi nascondono e vengono nascosti</translation>
    </message>
    <message>
        <source>texts inside are level</source>
        <translation>i testi interni sono orizzontali</translation>
    </message>
    <message>
        <source>texts outside are level</source>
        <translation>i testi esterni sono orizzontali</translation>
    </message>
    <message>
        <source>the address of the browser</source>
        <translation>l&apos;indirizzo del browser</translation>
    </message>
    <message>
        <source>the angle of gradients</source>
        <translation>l&apos;angolo delle sfumature</translation>
    </message>
    <message>
        <source>the angle of hatches</source>
        <translation>l&apos;angolo dei tratteggi</translation>
    </message>
    <message>
        <source>the angle of the jog of large radii</source>
        <translation>l&apos;angolo dello spezzamento di raggi grandi</translation>
    </message>
    <message>
        <source>the angle that ROTATE proposes</source>
        <translation>l&apos;angolo che ROTATE propone</translation>
    </message>
    <message>
        <source>the angle that UCS proposes for a turn</source>
        <translation>l&apos;angolo che UCS propone per una rotazione</translation>
    </message>
    <message>
        <source>the arcs of clouds differ</source>
        <translation>gli archi delle nuvole sono diversi</translation>
    </message>
    <message>
        <source>the area that was measured last</source>
        <translation>l&apos;area misurata per ultima</translation>
    </message>
    <message>
        <source>the arrow at both ends</source>
        <translation>la freccia a entrambi gli estremi</translation>
    </message>
    <message>
        <source>the arrow at the first end</source>
        <translation>la freccia al primo estremo</translation>
    </message>
    <message>
        <source>the arrow at the second end</source>
        <translation>la freccia al secondo estremo</translation>
    </message>
    <message>
        <source>the arrow of leaders</source>
        <translation>la freccia delle direttrici</translation>
    </message>
    <message>
        <source>the bar of navigation is shown</source>
        <translation>la barra di navigazione viene mostrata</translation>
    </message>
    <message>
        <source>the base point of the drawing</source>
        <translation>il punto base del disegno</translation>
    </message>
    <message>
        <source>the blank key ends a line of a list</source>
        <translation>la barra spaziatrice termina una riga di un elenco</translation>
    </message>
    <message>
        <source>the block that INSERT proposes</source>
        <translation>il blocco che INSERT propone</translation>
    </message>
    <message>
        <source>the block that is edited in place</source>
        <translation>il blocco modificato sul posto</translation>
    </message>
    <message>
        <source>the blocks inserted last</source>
        <translation>gli ultimi blocchi inseriti</translation>
    </message>
    <message>
        <source>the box of object snap is shown</source>
        <translation>la casella di snap ad oggetto viene mostrata</translation>
    </message>
    <message>
        <source>the chamfer angle</source>
        <translation>l&apos;angolo di cimatura</translation>
    </message>
    <message>
        <source>the chamfer length</source>
        <translation>la lunghezza di cimatura</translation>
    </message>
    <message>
        <source>the code page of the machine</source>
        <translation>la tabella codici della macchina</translation>
    </message>
    <message>
        <source>the colour of crossing windows</source>
        <translation>il colore delle finestre di intersezione</translation>
    </message>
    <message>
        <source>the colour of dimension lines</source>
        <translation>il colore delle linee di quota</translation>
    </message>
    <message>
        <source>the colour of extension lines</source>
        <translation>il colore delle linee di estensione</translation>
    </message>
    <message>
        <source>the colour of grips</source>
        <translation>il colore dei grip</translation>
    </message>
    <message>
        <source>the colour of hidden lines</source>
        <translation>il colore delle linee nascoste</translation>
    </message>
    <message>
        <source>the colour of lines where solids meet</source>
        <translation>il colore delle linee dove i solidi si incontrano</translation>
    </message>
    <message>
        <source>the colour of new entities</source>
        <translation>il colore delle nuove entità</translation>
    </message>
    <message>
        <source>the colour of new hatches; &quot;.&quot; is the current one</source>
        <translation>il colore dei nuovi tratteggi; &quot;.&quot; è quello corrente</translation>
    </message>
    <message>
        <source>the colour of texts</source>
        <translation>il colore dei testi</translation>
    </message>
    <message>
        <source>the colour of the grip that is pulled</source>
        <translation>il colore del grip che viene tirato</translation>
    </message>
    <message>
        <source>the colour of the grip under the pointer</source>
        <translation>il colore del grip sotto il puntatore</translation>
    </message>
    <message>
        <source>the colour of the grips of dynamic blocks</source>
        <translation>il colore dei grip dei blocchi dinamici</translation>
    </message>
    <message>
        <source>the colour of windows of selections</source>
        <translation>il colore delle finestre di selezione</translation>
    </message>
    <message>
        <source>the command line is written to a file</source>
        <translation>la riga di comando viene scritta in un file</translation>
    </message>
    <message>
        <source>the commands that are under way</source>
        <translation>i comandi in corso</translation>
    </message>
    <message>
        <source>the control key goes through what lies above each other</source>
        <translation>il tasto Ctrl scorre ciò che sta uno sopra l&apos;altro</translation>
    </message>
    <message>
        <source>the cube of views is shown</source>
        <translation>il cubo delle viste viene mostrato</translation>
    </message>
    <message>
        <source>the cube of views is shown in flat views</source>
        <translation>il cubo delle viste viene mostrato in viste piane</translation>
    </message>
    <message>
        <source>the current dimension style</source>
        <translation>lo stile di quota corrente</translation>
    </message>
    <message>
        <source>the current dimension style is annotative</source>
        <translation>lo stile di quota corrente è annotativo</translation>
    </message>
    <message>
        <source>the decimal separator</source>
        <translation>il separatore decimale</translation>
    </message>
    <message>
        <source>the default lineweight, in hundredths of a millimetre</source>
        <translation>lo spessore di linea di default, in centesimi di millimetro</translation>
    </message>
    <message>
        <source>the degree of new splines</source>
        <translation>il grado delle nuove spline</translation>
    </message>
    <message>
        <source>the dictionary of spelling</source>
        <translation>il dizionario ortografico</translation>
    </message>
    <message>
        <source>the distance of dimension lines above each other</source>
        <translation>la distanza fra linee di quota sovrapposte</translation>
    </message>
    <message>
        <source>the distance of the back clipping plane</source>
        <translation>la distanza del piano di ritaglio posteriore</translation>
    </message>
    <message>
        <source>the distance of the front clipping plane</source>
        <translation>la distanza del piano di ritaglio anteriore</translation>
    </message>
    <message>
        <source>the distance of the user&apos;s lines</source>
        <translation>la distanza delle linee dell&apos;utente</translation>
    </message>
    <message>
        <source>the distance that OFFSET proposes; negative for through a point</source>
        <translation>la distanza che OFFSET propone; negativa per passare da un punto</translation>
    </message>
    <message>
        <source>the distance that was measured last</source>
        <translation>l&apos;ultima distanza misurata</translation>
    </message>
    <message>
        <source>the distances of the grid</source>
        <translation>le distanze della griglia</translation>
    </message>
    <message>
        <source>the drawing behaves as annotative when inserted</source>
        <translation>il disegno si comporta da annotativo se inserito</translation>
    </message>
    <message>
        <source>the drawing has a name</source>
        <translation>il disegno ha un nome</translation>
    </message>
    <message>
        <source>the drawing may be edited in place by others</source>
        <translation>il disegno può essere modificato sul posto da altri</translation>
    </message>
    <message>
        <source>the drawing may be written</source>
        <translation>il disegno può essere scritto</translation>
    </message>
    <message>
        <source>the drawing takes imperial (0) or metric (1) patterns</source>
        <translation>il disegno prende modelli imperiali (0) o metrici (1)</translation>
    </message>
    <message>
        <source>the drawing was opened whole</source>
        <translation>il disegno è stato aperto intero</translation>
    </message>
    <message>
        <source>the drawing&apos;s code page</source>
        <translation>la tabella codici del disegno</translation>
    </message>
    <message>
        <source>the drawing&apos;s file name</source>
        <translation>il nome del file del disegno</translation>
    </message>
    <message>
        <source>the drawing&apos;s folder</source>
        <translation>la cartella del disegno</translation>
    </message>
    <message>
        <source>the drawing&apos;s unit of length</source>
        <translation>l&apos;unità di lunghezza del disegno</translation>
    </message>
    <message>
        <source>the editor of paragraphs</source>
        <translation>l&apos;editor dei paragrafi</translation>
    </message>
    <message>
        <source>the encoding of text files</source>
        <translation>la codifica dei file di testo</translation>
    </message>
    <message>
        <source>the end direction of the arc drawn last</source>
        <translation>la direzione finale dell&apos;ultimo arco disegnato</translation>
    </message>
    <message>
        <source>the ends have arrows of their own</source>
        <translation>gli estremi hanno frecce proprie</translation>
    </message>
    <message>
        <source>the factor of a unit&apos;s parts</source>
        <translation>il fattore delle parti di un&apos;unità</translation>
    </message>
    <message>
        <source>the factor of lengths</source>
        <translation>il fattore delle lunghezze</translation>
    </message>
    <message>
        <source>the factor of the line spacing of paragraphs</source>
        <translation>il fattore di interlinea dei paragrafi</translation>
    </message>
    <message>
        <source>the factor of the second unit</source>
        <translation>il fattore della seconda unità</translation>
    </message>
    <message>
        <source>the factor of the second unit&apos;s parts</source>
        <translation>il fattore delle parti della seconda unità</translation>
    </message>
    <message>
        <source>the factor that SCALE proposes</source>
        <translation>il fattore che SCALE propone</translation>
    </message>
    <message>
        <source>the far corner of the limits</source>
        <translation>l&apos;angolo lontano dei limiti</translation>
    </message>
    <message>
        <source>the far corner of the virtual screen</source>
        <translation>l&apos;angolo lontano dello schermo virtuale</translation>
    </message>
    <message>
        <source>the far corner of what the space shows</source>
        <translation>l&apos;angolo lontano di ciò che lo spazio mostra</translation>
    </message>
    <message>
        <source>the file of the command line</source>
        <translation>il file della riga di comando</translation>
    </message>
    <message>
        <source>the file of the last automatic save</source>
        <translation>il file dell&apos;ultimo salvataggio automatico</translation>
    </message>
    <message>
        <source>the file of the menu</source>
        <translation>il file del menu</translation>
    </message>
    <message>
        <source>the file that says which font replaces which</source>
        <translation>il file che indica quale font sostituisce quale</translation>
    </message>
    <message>
        <source>the file that was saved last</source>
        <translation>l&apos;ultimo file salvato</translation>
    </message>
    <message>
        <source>the first chamfer distance</source>
        <translation>la prima distanza di cimatura</translation>
    </message>
    <message>
        <source>the first colour of gradients</source>
        <translation>il primo colore delle sfumature</translation>
    </message>
    <message>
        <source>the first extension line is left out</source>
        <translation>la prima linea di estensione viene omessa</translation>
    </message>
    <message>
        <source>the first half of the line is left out</source>
        <translation>la prima metà della linea viene omessa</translation>
    </message>
    <message>
        <source>the focal length of perspective views</source>
        <translation>la lunghezza focale delle viste prospettiche</translation>
    </message>
    <message>
        <source>the folder of automatic saves</source>
        <translation>la cartella dei salvataggi automatici</translation>
    </message>
    <message>
        <source>the folder of such files</source>
        <translation>la cartella di tali file</translation>
    </message>
    <message>
        <source>the folder of temporary files</source>
        <translation>la cartella dei file temporanei</translation>
    </message>
    <message>
        <source>the folder of the user&apos;s data</source>
        <translation>la cartella dei dati dell&apos;utente</translation>
    </message>
    <message>
        <source>the folder of the user&apos;s documents</source>
        <translation>la cartella dei documenti dell&apos;utente</translation>
    </message>
    <message>
        <source>the folder of what stays on this machine</source>
        <translation>la cartella di ciò che resta su questa macchina</translation>
    </message>
    <message>
        <source>the folder that the program was started in</source>
        <translation>la cartella in cui è stato avviato il programma</translation>
    </message>
    <message>
        <source>the folders that files are looked for in</source>
        <translation>le cartelle in cui si cercano i file</translation>
    </message>
    <message>
        <source>the font for those that are missing</source>
        <translation>il font per quelli mancanti</translation>
    </message>
    <message>
        <source>the format of angles</source>
        <translation>il formato degli angoli</translation>
    </message>
    <message>
        <source>the format of lengths</source>
        <translation>il formato delle lunghezze</translation>
    </message>
    <message>
        <source>the format of lengths, in the old form</source>
        <translation>il formato delle lunghezze, nella vecchia forma</translation>
    </message>
    <message>
        <source>the format of the second unit</source>
        <translation>il formato della seconda unità</translation>
    </message>
    <message>
        <source>the frames of pictures, underlays and clips</source>
        <translation>le cornici di immagini, sottofondi e ritagli</translation>
    </message>
    <message>
        <source>the gap between a multileader&apos;s landing and its text</source>
        <translation>lo spazio fra la linea di collegamento di una multidirettrice e il suo testo</translation>
    </message>
    <message>
        <source>the gap of centre marks</source>
        <translation>lo spazio dei contrassegni del centro</translation>
    </message>
    <message>
        <source>the grid is shown</source>
        <translation>la griglia viene mostrata</translation>
    </message>
    <message>
        <source>the ground of hatches</source>
        <translation>lo sfondo dei tratteggi</translation>
    </message>
    <message>
        <source>the ground of texts</source>
        <translation>lo sfondo dei testi</translation>
    </message>
    <message>
        <source>the handle that comes next</source>
        <translation>il prossimo handle</translation>
    </message>
    <message>
        <source>the height of POLYSOLID</source>
        <translation>l&apos;altezza di POLYSOLID</translation>
    </message>
    <message>
        <source>the height of new cameras</source>
        <translation>l&apos;altezza delle nuove telecamere</translation>
    </message>
    <message>
        <source>the height of new entities above the user&apos;s plane</source>
        <translation>l&apos;altezza delle nuove entità sopra il piano dell&apos;utente</translation>
    </message>
    <message>
        <source>the height of new entities on sheets</source>
        <translation>l&apos;altezza delle nuove entità nei layout</translation>
    </message>
    <message>
        <source>the height of texts</source>
        <translation>l&apos;altezza dei testi</translation>
    </message>
    <message>
        <source>the height of the view</source>
        <translation>l&apos;altezza della vista</translation>
    </message>
    <message>
        <source>the height that shadows fall on</source>
        <translation>l&apos;altezza su cui cadono le ombre</translation>
    </message>
    <message>
        <source>the history of solids is shown</source>
        <translation>la cronologia dei solidi viene mostrata</translation>
    </message>
    <message>
        <source>the inner diameter that DONUT proposes</source>
        <translation>il diametro interno che DONUT propone</translation>
    </message>
    <message>
        <source>the isometric plane</source>
        <translation>il piano isometrico</translation>
    </message>
    <message>
        <source>the kind of array that is proposed</source>
        <translation>il tipo di serie proposto</translation>
    </message>
    <message>
        <source>the kind of gradients</source>
        <translation>il tipo di sfumature</translation>
    </message>
    <message>
        <source>the language of the machine</source>
        <translation>la lingua della macchina</translation>
    </message>
    <message>
        <source>the last dialog ended with OK</source>
        <translation>l&apos;ultimo dialogo è finito con OK</translation>
    </message>
    <message>
        <source>the last line of the command line</source>
        <translation>l&apos;ultima riga della riga di comando</translation>
    </message>
    <message>
        <source>the layer of centre marks</source>
        <translation>il layer dei contrassegni del centro</translation>
    </message>
    <message>
        <source>the layer of new dimensions; &quot;.&quot; is the current one</source>
        <translation>il layer delle nuove quote; &quot;.&quot; è quello corrente</translation>
    </message>
    <message>
        <source>the layer of new entities</source>
        <translation>il layer delle nuove entità</translation>
    </message>
    <message>
        <source>the layer of new external drawings; &quot;.&quot; is the current one</source>
        <translation>il layer dei nuovi disegni esterni; &quot;.&quot; è quello corrente</translation>
    </message>
    <message>
        <source>the layer of new hatches; &quot;.&quot; is the current one</source>
        <translation>il layer dei nuovi tratteggi; &quot;.&quot; è quello corrente</translation>
    </message>
    <message>
        <source>the least speed of smooth changes of the view</source>
        <translation>la velocità minima dei cambi graduali di vista</translation>
    </message>
    <message>
        <source>the length of extension lines, where fixed</source>
        <translation>la lunghezza delle linee di estensione, se fissa</translation>
    </message>
    <message>
        <source>the length of the arcs of clouds</source>
        <translation>la lunghezza degli archi delle nuvole</translation>
    </message>
    <message>
        <source>the length round what was measured last</source>
        <translation>la lunghezza attorno a ciò che è stato misurato per ultimo</translation>
    </message>
    <message>
        <source>the linetype of centre marks</source>
        <translation>il tipo di linea dei contrassegni del centro</translation>
    </message>
    <message>
        <source>the linetype of dimension lines</source>
        <translation>il tipo di linea delle linee di quota</translation>
    </message>
    <message>
        <source>the linetype of hidden lines</source>
        <translation>il tipo di linea delle linee nascoste</translation>
    </message>
    <message>
        <source>the linetype of new entities</source>
        <translation>il tipo di linea delle nuove entità</translation>
    </message>
    <message>
        <source>the linetype of the first extension line</source>
        <translation>il tipo di linea della prima linea di estensione</translation>
    </message>
    <message>
        <source>the linetype of the second extension line</source>
        <translation>il tipo di linea della seconda linea di estensione</translation>
    </message>
    <message>
        <source>the linetype scale of centre marks</source>
        <translation>la scala del tipo di linea dei contrassegni del centro</translation>
    </message>
    <message>
        <source>the linetype scale of new entities</source>
        <translation>la scala del tipo di linea delle nuove entità</translation>
    </message>
    <message>
        <source>the lineweight of dimension lines</source>
        <translation>lo spessore delle linee di quota</translation>
    </message>
    <message>
        <source>the lineweight of extension lines</source>
        <translation>lo spessore delle linee di estensione</translation>
    </message>
    <message>
        <source>the lineweight of new entities</source>
        <translation>lo spessore di linea delle nuove entità</translation>
    </message>
    <message>
        <source>the longest arc of clouds</source>
        <translation>l&apos;arco più lungo delle nuvole</translation>
    </message>
    <message>
        <source>the lower tolerance</source>
        <translation>la tolleranza inferiore</translation>
    </message>
    <message>
        <source>the maintenance version of the drawing&apos;s format</source>
        <translation>la versione di manutenzione del formato del disegno</translation>
    </message>
    <message>
        <source>the material of new entities</source>
        <translation>il materiale delle nuove entità</translation>
    </message>
    <message>
        <source>the menu bar is shown</source>
        <translation>la barra dei menu viene mostrata</translation>
    </message>
    <message>
        <source>the menus of viewports are shown</source>
        <translation>i menu delle finestre vengono mostrati</translation>
    </message>
    <message>
        <source>the middle of the view</source>
        <translation>il centro della vista</translation>
    </message>
    <message>
        <source>the most memory that Lisp may take, in megabytes</source>
        <translation>la memoria massima che Lisp può prendere, in megabyte</translation>
    </message>
    <message>
        <source>the most nodes of the spatial index</source>
        <translation>il numero massimo di nodi dell&apos;indice spaziale</translation>
    </message>
    <message>
        <source>the name of the current annotation scale</source>
        <translation>il nome della scala di annotazione corrente</translation>
    </message>
    <message>
        <source>the name of the layout that is shown</source>
        <translation>il nome del layout mostrato</translation>
    </message>
    <message>
        <source>the name of the menu</source>
        <translation>il nome del menu</translation>
    </message>
    <message>
        <source>the name of the program</source>
        <translation>il nome del programma</translation>
    </message>
    <message>
        <source>the name of the project</source>
        <translation>il nome del progetto</translation>
    </message>
    <message>
        <source>the name of the user&apos;s coordinate system</source>
        <translation>il nome del sistema di coordinate utente</translation>
    </message>
    <message>
        <source>the name of the user&apos;s profile</source>
        <translation>il nome del profilo dell&apos;utente</translation>
    </message>
    <message>
        <source>the near corner of the limits</source>
        <translation>l&apos;angolo vicino dei limiti</translation>
    </message>
    <message>
        <source>the near corner of the virtual screen</source>
        <translation>l&apos;angolo vicino dello schermo virtuale</translation>
    </message>
    <message>
        <source>the near corner of what the space shows</source>
        <translation>l&apos;angolo vicino di ciò che lo spazio mostra</translation>
    </message>
    <message>
        <source>the number of the current viewport; 1 is the sheet</source>
        <translation>il numero della finestra corrente; 1 è il layout</translation>
    </message>
    <message>
        <source>the offset of plots counts from the margin (0) or the edge (1)</source>
        <translation>l&apos;offset delle stampe conta dal margine (0) o dal bordo (1)</translation>
    </message>
    <message>
        <source>the operating system</source>
        <translation>il sistema operativo</translation>
    </message>
    <message>
        <source>the origin of hatches</source>
        <translation>l&apos;origine dei tratteggi</translation>
    </message>
    <message>
        <source>the origin of snap and grid</source>
        <translation>l&apos;origine di snap e griglia</translation>
    </message>
    <message>
        <source>the origin of the user&apos;s coordinate system</source>
        <translation>l&apos;origine del sistema di coordinate utente</translation>
    </message>
    <message>
        <source>the outer diameter that DONUT proposes</source>
        <translation>il diametro esterno che DONUT propone</translation>
    </message>
    <message>
        <source>the panel of databases is open</source>
        <translation>il pannello dei database è aperto</translation>
    </message>
    <message>
        <source>the panel of external drawings is open</source>
        <translation>il pannello dei disegni esterni è aperto</translation>
    </message>
    <message>
        <source>the panel of layers is open</source>
        <translation>il pannello dei layer è aperto</translation>
    </message>
    <message>
        <source>the panel of other drawings&apos; contents is open</source>
        <translation>il pannello dei contenuti di altri disegni è aperto</translation>
    </message>
    <message>
        <source>the panel of properties is open</source>
        <translation>il pannello delle proprietà è aperto</translation>
    </message>
    <message>
        <source>the pattern of hatches</source>
        <translation>il modello dei tratteggi</translation>
    </message>
    <message>
        <source>the plan view follows the user&apos;s coordinate system</source>
        <translation>la vista in pianta segue il sistema di coordinate utente</translation>
    </message>
    <message>
        <source>the plane follows faces</source>
        <translation>il piano segue le facce</translation>
    </message>
    <message>
        <source>the plot style of layer 0 in new drawings</source>
        <translation>lo stile di stampa del layer 0 nei nuovi disegni</translation>
    </message>
    <message>
        <source>the plot style of new entities</source>
        <translation>lo stile di stampa delle nuove entità</translation>
    </message>
    <message>
        <source>the plot style of new entities in new drawings</source>
        <translation>lo stile di stampa delle nuove entità nei nuovi disegni</translation>
    </message>
    <message>
        <source>the point given last</source>
        <translation>l&apos;ultimo punto indicato</translation>
    </message>
    <message>
        <source>the pointer moves along the axes</source>
        <translation>il puntatore si muove lungo gli assi</translation>
    </message>
    <message>
        <source>the pointer moves in steps</source>
        <translation>il puntatore si muove a passi</translation>
    </message>
    <message>
        <source>the program of such an object is started for a plot</source>
        <translation>il programma di un tale oggetto viene avviato per una stampa</translation>
    </message>
    <message>
        <source>the radius that CIRCLE proposes; 0 for none</source>
        <translation>il raggio che CIRCLE propone; 0 per nessuno</translation>
    </message>
    <message>
        <source>the radius that FILLET takes</source>
        <translation>il raggio che FILLET prende</translation>
    </message>
    <message>
        <source>the release of the dialect, beginning with its number</source>
        <translation>la versione del dialetto, che comincia con il suo numero</translation>
    </message>
    <message>
        <source>the ribbon is shown</source>
        <translation>la barra multifunzione viene mostrata</translation>
    </message>
    <message>
        <source>the room round the text; negative with a frame</source>
        <translation>lo spazio attorno al testo; negativo con cornice</translation>
    </message>
    <message>
        <source>the running object snaps, as bits</source>
        <translation>gli snap ad oggetto attivi, in bit</translation>
    </message>
    <message>
        <source>the scale of all linetypes</source>
        <translation>la scala di tutti i tipi di linea</translation>
    </message>
    <message>
        <source>the scale of everything in dimensions; 0 by the sheet</source>
        <translation>la scala di tutto nelle quote; 0 secondo il layout</translation>
    </message>
    <message>
        <source>the scale of hatches</source>
        <translation>la scala dei tratteggi</translation>
    </message>
    <message>
        <source>the scale of multileaders</source>
        <translation>la scala delle multidirettrici</translation>
    </message>
    <message>
        <source>the scale of multilines</source>
        <translation>la scala delle multilinee</translation>
    </message>
    <message>
        <source>the scale of new viewports</source>
        <translation>la scala delle nuove finestre</translation>
    </message>
    <message>
        <source>the scale of objects of other programs</source>
        <translation>la scala degli oggetti di altri programmi</translation>
    </message>
    <message>
        <source>the scales of chosen annotative things are shown</source>
        <translation>vengono mostrate le scale degli oggetti annotativi scelti</translation>
    </message>
    <message>
        <source>the second chamfer distance</source>
        <translation>la seconda distanza di cimatura</translation>
    </message>
    <message>
        <source>the second colour of gradients</source>
        <translation>il secondo colore delle sfumature</translation>
    </message>
    <message>
        <source>the second extension line is left out</source>
        <translation>la seconda linea di estensione viene omessa</translation>
    </message>
    <message>
        <source>the second half of the line is left out</source>
        <translation>la seconda metà della linea viene omessa</translation>
    </message>
    <message>
        <source>the shadow of an entity</source>
        <translation>l&apos;ombra di un&apos;entità</translation>
    </message>
    <message>
        <source>the shape that SHAPE proposes</source>
        <translation>la forma che SHAPE propone</translation>
    </message>
    <message>
        <source>the sheet set of the drawing</source>
        <translation>il gruppo di fogli del disegno</translation>
    </message>
    <message>
        <source>the shortest arc of clouds</source>
        <translation>l&apos;arco più corto delle nuvole</translation>
    </message>
    <message>
        <source>the size of a step in a walk</source>
        <translation>la dimensione di un passo in una camminata</translation>
    </message>
    <message>
        <source>the size of arrows</source>
        <translation>la dimensione delle frecce</translation>
    </message>
    <message>
        <source>the size of centre marks</source>
        <translation>la dimensione dei contrassegni del centro</translation>
    </message>
    <message>
        <source>the size of grips in pixels</source>
        <translation>la dimensione dei grip in pixel</translation>
    </message>
    <message>
        <source>the size of stacked texts, as per cent</source>
        <translation>la dimensione dei testi in pila, in percentuale</translation>
    </message>
    <message>
        <source>the size of the box that picks dimensions</source>
        <translation>la dimensione della casella che sceglie quote</translation>
    </message>
    <message>
        <source>the size of the cross hairs, as per cent of the window</source>
        <translation>la dimensione del puntatore a croce, in percentuale della finestra</translation>
    </message>
    <message>
        <source>the size of the drawing&apos;s window in pixels</source>
        <translation>la dimensione della finestra del disegno in pixel</translation>
    </message>
    <message>
        <source>the size of ticks; 0 for arrows</source>
        <translation>la dimensione dei trattini obliqui; 0 per le frecce</translation>
    </message>
    <message>
        <source>the size of tolerances</source>
        <translation>la dimensione delle tolleranze</translation>
    </message>
    <message>
        <source>the start page is shown</source>
        <translation>la pagina iniziale viene mostrata</translation>
    </message>
    <message>
        <source>the status bar is shown</source>
        <translation>la barra di stato viene mostrata</translation>
    </message>
    <message>
        <source>the status bar may have two lines</source>
        <translation>la barra di stato può avere due righe</translation>
    </message>
    <message>
        <source>the step along polar tracking</source>
        <translation>il passo lungo il puntamento polare</translation>
    </message>
    <message>
        <source>the step of polar tracking</source>
        <translation>il passo del puntamento polare</translation>
    </message>
    <message>
        <source>the step of sketches</source>
        <translation>il passo degli schizzi</translation>
    </message>
    <message>
        <source>the steps of snap</source>
        <translation>i passi dello snap</translation>
    </message>
    <message>
        <source>the style of details</source>
        <translation>lo stile dei dettagli</translation>
    </message>
    <message>
        <source>the style of multilines</source>
        <translation>lo stile delle multilinee</translation>
    </message>
    <message>
        <source>the style of new multileaders</source>
        <translation>lo stile delle nuove multidirettrici</translation>
    </message>
    <message>
        <source>the style of new tables</source>
        <translation>lo stile delle nuove tabelle</translation>
    </message>
    <message>
        <source>the style of sections</source>
        <translation>lo stile delle sezioni</translation>
    </message>
    <message>
        <source>the style of texts</source>
        <translation>lo stile dei testi</translation>
    </message>
    <message>
        <source>the symbol of the axes, as bits</source>
        <translation>il simbolo degli assi, in bit</translation>
    </message>
    <message>
        <source>the text around the number</source>
        <translation>il testo attorno al numero</translation>
    </message>
    <message>
        <source>the text around the second unit</source>
        <translation>il testo attorno alla seconda unità</translation>
    </message>
    <message>
        <source>the text of a unit&apos;s parts</source>
        <translation>il testo delle parti di un&apos;unità</translation>
    </message>
    <message>
        <source>the text of the second unit&apos;s parts</source>
        <translation>il testo delle parti della seconda unità</translation>
    </message>
    <message>
        <source>the text stands above the line</source>
        <translation>il testo sta sopra la linea</translation>
    </message>
    <message>
        <source>the text that hangs at the pointer where MTEXT asks</source>
        <translation>il testo appeso al puntatore quando MTEXT chiede</translation>
    </message>
    <message>
        <source>the tint of gradients of one colour</source>
        <translation>la tinta delle sfumature di un colore</translation>
    </message>
    <message>
        <source>the tool palettes are open</source>
        <translation>le tavolozze degli strumenti sono aperte</translation>
    </message>
    <message>
        <source>the transparency of new entities</source>
        <translation>la trasparenza delle nuove entità</translation>
    </message>
    <message>
        <source>the transparency of new hatches; &quot;.&quot; is the current one</source>
        <translation>la trasparenza dei nuovi tratteggi; &quot;.&quot; è quella corrente</translation>
    </message>
    <message>
        <source>the turn of snap and grid</source>
        <translation>la rotazione di snap e griglia</translation>
    </message>
    <message>
        <source>the turn of the view</source>
        <translation>la rotazione della vista</translation>
    </message>
    <message>
        <source>the unit of drawings that say none, when inserted</source>
        <translation>l&apos;unità dei disegni che non ne indicano, se inseriti</translation>
    </message>
    <message>
        <source>the unit of the drawing that says none</source>
        <translation>l&apos;unità del disegno che non ne indica</translation>
    </message>
    <message>
        <source>the upper tolerance</source>
        <translation>la tolleranza superiore</translation>
    </message>
    <message>
        <source>the user places the text</source>
        <translation>l&apos;utente colloca il testo</translation>
    </message>
    <message>
        <source>the user&apos;s coordinate system is the world&apos;s</source>
        <translation>il sistema di coordinate utente è quello globale</translation>
    </message>
    <message>
        <source>the user&apos;s name</source>
        <translation>il nome dell&apos;utente</translation>
    </message>
    <message>
        <source>the user&apos;s own dictionary of spelling</source>
        <translation>il dizionario ortografico personale dell&apos;utente</translation>
    </message>
    <message>
        <source>the user&apos;s timer</source>
        <translation>il cronometro dell&apos;utente</translation>
    </message>
    <message>
        <source>the user&apos;s timer is on</source>
        <translation>il cronometro dell&apos;utente è attivo</translation>
    </message>
    <message>
        <source>the value of the current annotation scale</source>
        <translation>il valore della scala di annotazione corrente</translation>
    </message>
    <message>
        <source>the version of bodies that are written</source>
        <translation>la versione dei corpi che vengono scritti</translation>
    </message>
    <message>
        <source>the version of the drawing&apos;s file, as &quot;AC1032&quot;</source>
        <translation>la versione del file del disegno, come &quot;AC1032&quot;</translation>
    </message>
    <message>
        <source>the view is a perspective</source>
        <translation>la vista è una prospettiva</translation>
    </message>
    <message>
        <source>the viewport has layers with settings of its own</source>
        <translation>la finestra ha layer con impostazioni proprie</translation>
    </message>
    <message>
        <source>the wheel button pans</source>
        <translation>il tasto della rotella esegue il pan</translation>
    </message>
    <message>
        <source>the width of POLYSOLID</source>
        <translation>la larghezza di POLYSOLID</translation>
    </message>
    <message>
        <source>the width of polylines</source>
        <translation>la larghezza delle polilinee</translation>
    </message>
    <message>
        <source>the width of traces</source>
        <translation>la larghezza delle tracce</translation>
    </message>
    <message>
        <source>the workspace</source>
        <translation>l&apos;area di lavoro</translation>
    </message>
    <message>
        <source>the x axis of the user&apos;s coordinate system</source>
        <translation>l&apos;asse x del sistema di coordinate utente</translation>
    </message>
    <message>
        <source>the y axis of the user&apos;s coordinate system</source>
        <translation>l&apos;asse y del sistema di coordinate utente</translation>
    </message>
    <message>
        <source>the zone of the drawing&apos;s place</source>
        <translation>la zona del luogo del disegno</translation>
    </message>
    <message>
        <source>their distance</source>
        <translation>la loro distanza</translation>
    </message>
    <message>
        <source>their distances</source>
        <translation>le loro distanze</translation>
    </message>
    <message>
        <source>there are menus</source>
        <translation>ci sono menu</translation>
    </message>
    <message>
        <source>ticks along the axes, in early programs</source>
        <translation>tacche lungo gli assi, nei primi programmi</translation>
    </message>
    <message>
        <source>ticks of the clock, for measuring</source>
        <translation>impulsi dell&apos;orologio, per misurare</translation>
    </message>
    <message>
        <source>tips are shown</source>
        <translation>vengono mostrati suggerimenti</translation>
    </message>
    <message>
        <source>tips on the keys beside the pointer</source>
        <translation>suggerimenti sui tasti accanto al puntatore</translation>
    </message>
    <message>
        <source>tips on what is under the pointer</source>
        <translation>suggerimenti su ciò che è sotto il puntatore</translation>
    </message>
    <message>
        <source>tolerances are shown</source>
        <translation>le tolleranze vengono mostrate</translation>
    </message>
    <message>
        <source>transparency is plotted</source>
        <translation>la trasparenza viene stampata</translation>
    </message>
    <message>
        <source>transparency is shown</source>
        <translation>la trasparenza viene mostrata</translation>
    </message>
    <message>
        <source>typed coordinates go before object snap: never (0), always (1), not in scripts (2)</source>
        <translation>le coordinate digitate prevalgono sullo snap ad oggetto: mai (0), sempre (1), non negli script (2)</translation>
    </message>
    <message>
        <source>units of light</source>
        <translation>unità di luce</translation>
    </message>
    <message>
        <source>unknown entities are told</source>
        <translation>vengono segnalate entità sconosciute</translation>
    </message>
    <message>
        <source>viewports keep their coordinate system</source>
        <translation>le finestre conservano il loro sistema di coordinate</translation>
    </message>
    <message>
        <source>views are made anew when needed</source>
        <translation>le viste vengono rigenerate quando serve</translation>
    </message>
    <message>
        <source>views count from the world (1) or the user&apos;s system (0)</source>
        <translation>le viste contano dal sistema globale (1) o dell&apos;utente (0)</translation>
    </message>
    <message>
        <source>views keep their coordinate system</source>
        <translation>le viste conservano il loro sistema di coordinate</translation>
    </message>
    <message>
        <source>what TRIM and EXTEND project on</source>
        <translation>su che cosa proiettano TRIM ed EXTEND</translation>
    </message>
    <message>
        <source>what a file&apos;s tab shows</source>
        <translation>ciò che mostra la scheda di un file</translation>
    </message>
    <message>
        <source>what commands make others of is erased</source>
        <translation>ciò da cui i comandi ricavano altro viene cancellato</translation>
    </message>
    <message>
        <source>what fills the gaps of offset polylines</source>
        <translation>ciò che riempie i vuoti delle polilinee di offset</translation>
    </message>
    <message>
        <source>what goes out first where there is no room</source>
        <translation>ciò che esce per primo quando manca lo spazio</translation>
    </message>
    <message>
        <source>what happens to external drawings is logged</source>
        <translation>ciò che accade ai disegni esterni viene registrato</translation>
    </message>
    <message>
        <source>what has changed since the drawing was saved, as bits</source>
        <translation>ciò che è cambiato dal salvataggio del disegno, in bit</translation>
    </message>
    <message>
        <source>what is asked when a block is defined again</source>
        <translation>ciò che si chiede quando un blocco viene ridefinito</translation>
    </message>
    <message>
        <source>what is chosen is added to what was</source>
        <translation>ciò che si sceglie si aggiunge a quanto già scelto</translation>
    </message>
    <message>
        <source>what is chosen is drawn smoothly</source>
        <translation>ciò che è scelto viene disegnato liscio</translation>
    </message>
    <message>
        <source>what is chosen is shown so</source>
        <translation>ciò che è scelto viene mostrato come tale</translation>
    </message>
    <message>
        <source>what is chosen of things that hide each other</source>
        <translation>ciò che si sceglie di oggetti che si nascondono</translation>
    </message>
    <message>
        <source>what is cut off near the eye, as per cent</source>
        <translation>ciò che viene tagliato vicino all&apos;occhio, in percentuale</translation>
    </message>
    <message>
        <source>what is done after a crash</source>
        <translation>ciò che si fa dopo un arresto anomalo</translation>
    </message>
    <message>
        <source>what is not shown under the pointer, as bits</source>
        <translation>ciò che non viene mostrato sotto il puntatore, in bit</translation>
    </message>
    <message>
        <source>what is offered while one types</source>
        <translation>ciò che viene proposto mentre si digita</translation>
    </message>
    <message>
        <source>what is plotted in the background, as bits</source>
        <translation>ciò che viene stampato in background, in bit</translation>
    </message>
    <message>
        <source>what is shown while a grip is pulled, as bits</source>
        <translation>ciò che viene mostrato mentre si tira un grip, in bit</translation>
    </message>
    <message>
        <source>what is shown while attributes are edited</source>
        <translation>ciò che viene mostrato mentre si modificano attributi</translation>
    </message>
    <message>
        <source>what is under the pointer is shown so</source>
        <translation>ciò che è sotto il puntatore viene mostrato come tale</translation>
    </message>
    <message>
        <source>what is under way: a command (1), transparent one (2), script (4), dialog (8), Lisp (32)</source>
        <translation>ciò che è in corso: un comando (1), uno trasparente (2), script (4), dialogo (8), Lisp (32)</translation>
    </message>
    <message>
        <source>what keeps to the drawing order</source>
        <translation>ciò che rispetta l&apos;ordine di disegno</translation>
    </message>
    <message>
        <source>what keeps to the order of the file, as bits</source>
        <translation>ciò che rispetta l&apos;ordine del file, in bit</translation>
    </message>
    <message>
        <source>what layouts keep ready</source>
        <translation>ciò che i layout tengono pronto</translation>
    </message>
    <message>
        <source>what lengths are rounded to</source>
        <translation>a che cosa vengono arrotondate le lunghezze</translation>
    </message>
    <message>
        <source>what lies above each other is offered</source>
        <translation>viene proposto ciò che sta uno sopra l&apos;altro</translation>
    </message>
    <message>
        <source>what menus echo, as bits</source>
        <translation>ciò che i menu visualizzano, in bit</translation>
    </message>
    <message>
        <source>what moves with the text</source>
        <translation>ciò che si sposta con il testo</translation>
    </message>
    <message>
        <source>what new drawings do</source>
        <translation>ciò che fanno i nuovi disegni</translation>
    </message>
    <message>
        <source>what object snap leaves out, as bits</source>
        <translation>ciò che lo snap ad oggetto tralascia, in bit</translation>
    </message>
    <message>
        <source>what orthographic settings count from</source>
        <translation>da che cosa contano le impostazioni ortogonali</translation>
    </message>
    <message>
        <source>what relative links start from</source>
        <translation>da dove partono i collegamenti relativi</translation>
    </message>
    <message>
        <source>what similar means, as bits</source>
        <translation>ciò che significa simile, in bit</translation>
    </message>
    <message>
        <source>what the picture in the file shows</source>
        <translation>ciò che mostra l&apos;immagine nel file</translation>
    </message>
    <message>
        <source>what the program shows at its start</source>
        <translation>ciò che il programma mostra all&apos;avvio</translation>
    </message>
    <message>
        <source>what the screen shows</source>
        <translation>ciò che mostra lo schermo</translation>
    </message>
    <message>
        <source>what the second unit is rounded to</source>
        <translation>a che cosa viene arrotondata la seconda unità</translation>
    </message>
    <message>
        <source>what the view is: perspective, clipped, ..., as bits</source>
        <translation>ciò che la vista è: prospettiva, ritagliata, ..., in bit</translation>
    </message>
    <message>
        <source>what the view looks at</source>
        <translation>ciò che la vista guarda</translation>
    </message>
    <message>
        <source>when coordinates are shown beside the pointer</source>
        <translation>quando le coordinate vengono mostrate accanto al puntatore</translation>
    </message>
    <message>
        <source>when fields are evaluated, as bits</source>
        <translation>quando vengono valutati i campi, in bit</translation>
    </message>
    <message>
        <source>when it was made, in world time</source>
        <translation>quando è stato creato, in ora universale</translation>
    </message>
    <message>
        <source>when it was saved last</source>
        <translation>quando è stato salvato per ultimo</translation>
    </message>
    <message>
        <source>when it was saved last, in world time</source>
        <translation>quando è stato salvato per ultimo, in ora universale</translation>
    </message>
    <message>
        <source>when links to tables are checked</source>
        <translation>quando vengono controllati i collegamenti a tabelle</translation>
    </message>
    <message>
        <source>when modules of other makers are loaded, as bits</source>
        <translation>quando vengono caricati moduli di altri produttori, in bit</translation>
    </message>
    <message>
        <source>when new layers are looked for</source>
        <translation>quando vengono cercati nuovi layer</translation>
    </message>
    <message>
        <source>when new layers are told, as bits</source>
        <translation>quando vengono segnalati nuovi layer, in bit</translation>
    </message>
    <message>
        <source>when the drawing was made</source>
        <translation>quando è stato creato il disegno</translation>
    </message>
    <message>
        <source>when the pointer snaps to the grid</source>
        <translation>quando il puntatore aggancia la griglia</translation>
    </message>
    <message>
        <source>where a hatch like another has its origin</source>
        <translation>dove ha la sua origine un tratteggio uguale a un altro</translation>
    </message>
    <message>
        <source>where angles count from, from the x axis</source>
        <translation>da dove contano gli angoli, dall&apos;asse x</translation>
    </message>
    <message>
        <source>where earlier input is offered, as bits</source>
        <translation>dove viene proposto l&apos;input precedente, in bit</translation>
    </message>
    <message>
        <source>where multilines lie on their points: top, middle, bottom</source>
        <translation>come stanno le multilinee sui loro punti: sopra, mezzo, sotto</translation>
    </message>
    <message>
        <source>where new hatches lie in the drawing order</source>
        <translation>dove stanno i nuovi tratteggi nell&apos;ordine di disegno</translation>
    </message>
    <message>
        <source>where north is, from the y axis</source>
        <translation>dov&apos;è il nord, dall&apos;asse y</translation>
    </message>
    <message>
        <source>where on earth the drawing is</source>
        <translation>in quale luogo della terra si trova il disegno</translation>
    </message>
    <message>
        <source>where quick properties are shown</source>
        <translation>dove vengono mostrate le proprietà rapide</translation>
    </message>
    <message>
        <source>where the grid is of dots, as bits</source>
        <translation>dove la griglia è di punti, in bit</translation>
    </message>
    <message>
        <source>where the origin of hatches lies</source>
        <translation>dove sta l&apos;origine dei tratteggi</translation>
    </message>
    <message>
        <source>where the sign of an arc&apos;s length stands</source>
        <translation>dove sta il segno della lunghezza d&apos;arco</translation>
    </message>
    <message>
        <source>where the text stands along the line</source>
        <translation>dove sta il testo lungo la linea</translation>
    </message>
    <message>
        <source>where the view is seen from</source>
        <translation>da dove si guarda la vista</translation>
    </message>
    <message>
        <source>where to look for what knows them</source>
        <translation>dove cercare ciò che le conosce</translation>
    </message>
    <message>
        <source>where tolerances stand beside the number</source>
        <translation>dove stanno le tolleranze accanto al numero</translation>
    </message>
    <message>
        <source>which changes of the view are smooth</source>
        <translation>quali cambi della vista sono graduali</translation>
    </message>
    <message>
        <source>which extents count</source>
        <translation>quali estensioni contano</translation>
    </message>
    <message>
        <source>which islands a hatch leaves out</source>
        <translation>quali isole un tratteggio tralascia</translation>
    </message>
    <message>
        <source>which parts of solids are chosen</source>
        <translation>quali parti di solidi vengono scelte</translation>
    </message>
    <message>
        <source>which pictures in the file are kept up</source>
        <translation>quali immagini nel file vengono aggiornate</translation>
    </message>
    <message>
        <source>which questions commands leave out</source>
        <translation>quali domande i comandi tralasciano</translation>
    </message>
    <message>
        <source>which tips beside the pointer take its settings</source>
        <translation>quali suggerimenti accanto al puntatore prendono le sue impostazioni</translation>
    </message>
    <message>
        <source>which tool bars and panels are fixed</source>
        <translation>quali barre e pannelli sono fissi</translation>
    </message>
    <message>
        <source>which way the wheel zooms</source>
        <translation>in che senso ingrandisce la rotella</translation>
    </message>
    <message>
        <source>why a function of Lisp failed, as a number</source>
        <translation>perché una funzione Lisp è fallita, come numero</translation>
    </message>
    <message>
        <source>windows are dragged</source>
        <translation>le finestre vengono trascinate</translation>
    </message>
    <message>
        <source>windows of selections are filled</source>
        <translation>le finestre di selezione vengono riempite</translation>
    </message>
    <message>
        <source>with more boundaries than this HATCH warns</source>
        <translation>con più contorni di questi HATCH avvisa</translation>
    </message>
    <message>
        <source>with more entities than this no grips are shown</source>
        <translation>con più entità di queste non vengono mostrati grip</translation>
    </message>
    <message>
        <source>words of object snap replace the running modes</source>
        <translation>le parole di snap ad oggetto sostituiscono i modi attivi</translation>
    </message>
    <message>
        <source>zeros of angles</source>
        <translation>zeri degli angoli</translation>
    </message>
    <message>
        <source>zeros of lengths</source>
        <translation>zeri delle lunghezze</translation>
    </message>
    <message>
        <source>zeros of the second unit</source>
        <translation>zeri della seconda unità</translation>
    </message>
    <message>
        <source>zeros of tolerances</source>
        <translation>zeri delle tolleranze</translation>
    </message>
    <message>
        <source>zeros of tolerances in the second unit</source>
        <translation>zeri delle tolleranze nella seconda unità</translation>
    </message>
</context>
<context>
    <name>Inspecting</name>
    <message>
        <source>%1: what is mended is not written over the drawing</source>
        <translation>%1: ciò che è riparato non si scrive sopra il disegno</translation>
    </message>
    <message>
        <source>not read</source>
        <translation>non letto</translation>
    </message>
    <message>
        <source>sound</source>
        <translation>integro</translation>
    </message>
    <message>
        <source>faults: %1</source>
        <translation>difetti: %1</translation>
    </message>
    <message>
        <source>, opens with --recover alone</source>
        <translation>, si apre solo con --recover</translation>
    </message>
    <message>
        <source>and %1 more</source>
        <translation>e altri %1</translation>
    </message>
    <message>
        <source> and %1 more</source>
        <translation> e altri %1</translation>
    </message>
    <message>
        <source>%1 bytes</source>
        <translation>%1 byte</translation>
    </message>
    <message>
        <source>by %1</source>
        <translation>di %1</translation>
    </message>
    <message>
        <source>begun %1</source>
        <translation>iniziato %1</translation>
    </message>
    <message>
        <source>the file says %1</source>
        <translation>secondo il file %1</translation>
    </message>
    <message>
        <source>; %1 in blocks</source>
        <translation>; %1 in blocchi</translation>
    </message>
    <message>
        <source> off</source>
        <translation> spento</translation>
    </message>
    <message>
        <source> frozen</source>
        <translation> congelato</translation>
    </message>
    <message>
        <source> locked</source>
        <translation> bloccato</translation>
    </message>
    <message>
        <source> (not found: %1)</source>
        <translation> (non trovato: %1)</translation>
    </message>
    <message>
        <source> (not found)</source>
        <translation> (non trovato)</translation>
    </message>
    <message>
        <source>none</source>
        <translation>nessuno</translation>
    </message>
    <message>
        <source>, %1 records without</source>
        <translation>, %1 record senza</translation>
    </message>
    <message>
        <source>, %1 twice</source>
        <translation>, %1 doppi</translation>
    </message>
    <message>
        <source>, the next one (%1) is taken</source>
        <translation>, il prossimo (%1) è occupato</translation>
    </message>
    <message>
        <source>format</source>
        <translation>formato</translation>
    </message>
    <message>
        <source>title</source>
        <translation>titolo</translation>
    </message>
    <message>
        <source>author</source>
        <translation>autore</translation>
    </message>
    <message>
        <source>saved</source>
        <translation>salvato</translation>
    </message>
    <message>
        <source>units</source>
        <translation>unità</translation>
    </message>
    <message>
        <source>extents</source>
        <translation>estensione</translation>
    </message>
    <message>
        <source>entities</source>
        <translation>entità</translation>
    </message>
    <message>
        <source>layers</source>
        <translation>layer</translation>
    </message>
    <message>
        <source>blocks</source>
        <translation>blocchi</translation>
    </message>
    <message>
        <source>layouts</source>
        <translation>layout</translation>
    </message>
    <message>
        <source>text styles</source>
        <translation>stili di testo</translation>
    </message>
    <message>
        <source>fonts</source>
        <translation>font</translation>
    </message>
    <message>
        <source>linetypes</source>
        <translation>tipi di linea</translation>
    </message>
    <message>
        <source>dimensions</source>
        <translation>quote</translation>
    </message>
    <message>
        <source>files</source>
        <translation>file</translation>
    </message>
    <message>
        <source>classes</source>
        <translation>classi</translation>
    </message>
    <message>
        <source>proxies</source>
        <translation>proxy</translation>
    </message>
    <message>
        <source>handles</source>
        <translation>identificatori</translation>
    </message>
</context>
<context>
    <name>Kernel</name>
    <message>
        <source>%1 has no file yet.</source>
        <translation>%1 non ha ancora un file.</translation>
    </message>
    <message>
        <source>
More files that the drawing names were not read.
</source>
        <translation>
Altri file nominati dal disegno non sono stati letti.
</translation>
    </message>
    <message>
        <source>
%1 was not read: %2.
</source>
        <translation>
%1 non è stato letto: %2.
</translation>
    </message>
    <message>
        <source>%1 (recovered)</source>
        <translation>%1 (recuperato)</translation>
    </message>
    <message>
        <source>
Saving this drawing was broken off once. What was to be saved is in %1; the drawing&apos;s own file may have only a part of it.
</source>
        <translation>
Un salvataggio di questo disegno è stato interrotto. Ciò che doveva essere salvato è in %1; il file del disegno può contenerne solo una parte.
</translation>
    </message>
    <message>
        <source>The document has no Lisp engine.</source>
        <translation>Il documento non ha un motore Lisp.</translation>
    </message>
    <message>
        <source>Unknown command &quot;%1&quot;.</source>
        <translation>Comando sconosciuto &quot;%1&quot;.</translation>
    </message>
    <message>
        <source>%1 was cancelled.</source>
        <translation>%1 è stato annullato.</translation>
    </message>
    <message>
        <source>%1: %2; nothing was changed.</source>
        <translation>%1: %2; nulla è stato modificato.</translation>
    </message>
    <message>
        <source>%1 stays open while a session is played on it.</source>
        <translation>%1 resta aperto mentre vi viene riprodotta una sessione.</translation>
    </message>
    <message>
        <source>%1 was not closed: it was changed since.</source>
        <translation>%1 non è stato chiuso: nel frattempo è stato modificato.</translation>
    </message>
    <message>
        <source>%1 was not closed: a program of it runs.</source>
        <translation>%1 non è stato chiuso: un suo programma è in esecuzione.</translation>
    </message>
    <message>
        <source>%1: %2 done, %3 skipped</source>
        <translation>%1: %2 fatti, %3 saltati</translation>
    </message>
    <message>
        <source>and %1 more
</source>
        <translation>e altri %1
</translation>
    </message>
    <message>
        <source>
*Cancel*
</source>
        <translation>
*Annullato*
</translation>
    </message>
    <message>
        <source>This cannot be allowed here: %1.</source>
        <translation>Questo non può essere consentito qui: %1.</translation>
    </message>
    <message>
        <source>The folder cannot be trusted: everyone may write to it, or its name has a &quot;;&quot;.</source>
        <translation>La cartella non può essere attendibile: tutti possono scrivervi, o il suo nome ha un &quot;;&quot;.</translation>
    </message>
    <message>
        <source>The list cannot be kept in %1.</source>
        <translation>L&apos;elenco non può essere conservato in %1.</translation>
    </message>
    <message>
        <source>its folder is not trusted</source>
        <translation>la sua cartella non è attendibile</translation>
    </message>
    <message>
        <source>everyone may write to %1</source>
        <translation>tutti possono scrivere in %1</translation>
    </message>
    <message>
        <source>
TRUSTEDPATHS cannot be kept in %1.
</source>
        <translation>
TRUSTEDPATHS non può essere conservato in %1.
</translation>
    </message>
    <message>
        <source>
%1 was not loaded: %2. TRUSTEDPATHS, or the option --trust, names folders whose programs may run.
</source>
        <translation>
%1 non è stato caricato: %2. TRUSTEDPATHS, o l&apos;opzione --trust, indica le cartelle i cui programmi possono essere eseguiti.
</translation>
    </message>
    <message>
        <source>%1 was opened for reading only; save it under another name.</source>
        <translation>%1 è stato aperto in sola lettura; salvarlo con un altro nome.</translation>
    </message>
    <message>
        <source>%1 was changed by another program since it was opened or saved here.</source>
        <translation>%1 è stato modificato da un altro programma da quando è stato aperto o salvato qui.</translation>
    </message>
    <message>
        <source>%1 is not there any more.</source>
        <translation>%1 non c&apos;è più.</translation>
    </message>
    <message>
        <source>%1 is the damaged file that this drawing was recovered from; save it under another name.</source>
        <translation>%1 è il file danneggiato da cui è stato recuperato questo disegno; salvarlo con un altro nome.</translation>
    </message>
    <message>
        <source>%1 leads to another file than when it was opened or saved here.</source>
        <translation>%1 porta a un file diverso da quando è stato aperto o salvato qui.</translation>
    </message>
    <message>
        <source>%1 is open in this program; close it first, or give another name.</source>
        <translation>%1 è aperto in questo programma; chiuderlo prima o indicare un altro nome.</translation>
    </message>
    <message>
        <source>%1 is open in another program (%2).</source>
        <translation>%1 è aperto in un altro programma (%2).</translation>
    </message>
    <message>
        <source> of </source>
        <translation> di </translation>
    </message>
    <message>
        <source> (need %1): </source>
        <translation> (occorre %1): </translation>
    </message>
    <message>
        <source>
Second point of mid: </source>
        <translation>
Secondo punto del medio: </translation>
    </message>
    <message>
        <source>
First point of mid: </source>
        <translation>
Primo punto del medio: </translation>
    </message>
    <message>
        <source>&lt;Offset&gt;: </source>
        <translation>&lt;Offset&gt;: </translation>
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
Punto successivo (premere INVIO per terminare il puntamento): </translation>
    </message>
    <message>
        <source>
First tracking point: </source>
        <translation>
Primo punto di puntamento: </translation>
    </message>
    <message>
        <source>
Specify point: </source>
        <translation>
Specificare punto: </translation>
    </message>
    <message>
        <source>
Specify temporary tracking point: </source>
        <translation>
Specificare punto di puntamento temporaneo: </translation>
    </message>
    <message>
        <source>Requires an integer value or option keyword.</source>
        <translation>Occorre un valore intero o un&apos;opzione.</translation>
    </message>
    <message>
        <source>Requires numeric value or option keyword.</source>
        <translation>Occorre un valore numerico o un&apos;opzione.</translation>
    </message>
    <message>
        <source>Requires numeric distance, two points, or option keyword.</source>
        <translation>Occorre una distanza numerica, due punti o un&apos;opzione.</translation>
    </message>
    <message>
        <source>Requires valid numeric angle, two points, or option keyword.</source>
        <translation>Occorre un angolo numerico valido, due punti o un&apos;opzione.</translation>
    </message>
    <message>
        <source>Point or option keyword required.</source>
        <translation>Occorre un punto o un&apos;opzione.</translation>
    </message>
    <message>
        <source>Requires an integer value.</source>
        <translation>Occorre un valore intero.</translation>
    </message>
    <message>
        <source>Requires numeric value.</source>
        <translation>Occorre un valore numerico.</translation>
    </message>
    <message>
        <source>Requires numeric distance or two points.</source>
        <translation>Occorre una distanza numerica o due punti.</translation>
    </message>
    <message>
        <source>Requires valid numeric angle or two points.</source>
        <translation>Occorre un angolo numerico valido o due punti.</translation>
    </message>
    <message>
        <source>Invalid option keyword.</source>
        <translation>Opzione non valida.</translation>
    </message>
    <message>
        <source>Expects a point or %1.</source>
        <translation>Atteso un punto o %1.</translation>
    </message>
    <message>
        <source>Invalid input.</source>
        <translation>Input non valido.</translation>
    </message>
    <message>
        <source>Invalid point.</source>
        <translation>Punto non valido.</translation>
    </message>
    <message>
        <source>Value must be nonzero.</source>
        <translation>Il valore deve essere diverso da zero.</translation>
    </message>
    <message>
        <source>Value must not be negative.</source>
        <translation>Il valore non deve essere negativo.</translation>
    </message>
    <message>
        <source>**Outside limits</source>
        <translation>**Fuori dai limiti</translation>
    </message>
    <message>
        <source>
Specify second point: </source>
        <translation>
Specificare secondo punto: </translation>
    </message>
    <message>
        <source> to </source>
        <translation> a </translation>
    </message>
    <message>
        <source>
Angle Override: </source>
        <translation>
Angolo sostitutivo: </translation>
    </message>
    <message>
        <source>No %1 found for specified point.</source>
        <translation>Nel punto indicato non si trova: %1.</translation>
    </message>
    <message>
        <source>
Enter group name: </source>
        <translation>
Digitare nome del gruppo: </translation>
    </message>
    <message>
        <source>
Remove objects: </source>
        <translation>
Rimuovere oggetti: </translation>
    </message>
    <message>
        <source>
First point: </source>
        <translation>
Primo punto: </translation>
    </message>
    <message>
        <source>
Specify first corner: </source>
        <translation>
Specificare primo angolo: </translation>
    </message>
    <message>
        <source>
Next point: </source>
        <translation>
Punto successivo: </translation>
    </message>
    <message>
        <source>
Specify opposite corner: </source>
        <translation>
Specificare angolo opposto: </translation>
    </message>
    <message>
        <source>
Command has been completely undone.</source>
        <translation>
Il comando è stato completamente annullato.</translation>
    </message>
    <message>
        <source>
Cannot find group &quot;%1&quot;.</source>
        <translation>
Impossibile trovare il gruppo &quot;%1&quot;.</translation>
    </message>
    <message>
        <source>
%1 found</source>
        <translation>
%1 trovati</translation>
    </message>
    <message>
        <source>
%1 found, %2 total</source>
        <translation>
%1 trovati, %2 totale</translation>
    </message>
    <message>
        <source>
Select objects: </source>
        <translation>
Selezionare oggetti: </translation>
    </message>
    <message>
        <source>endpoint</source>
        <translation>punto finale</translation>
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
        <translation>quadrante</translation>
    </message>
    <message>
        <source>intersection</source>
        <translation>intersezione</translation>
    </message>
    <message>
        <source>insertion point</source>
        <translation>punto di inserimento</translation>
    </message>
    <message>
        <source>perpendicular</source>
        <translation>perpendicolare</translation>
    </message>
    <message>
        <source>tangent</source>
        <translation>tangente</translation>
    </message>
    <message>
        <source>nearest point</source>
        <translation>punto più vicino</translation>
    </message>
    <message>
        <source>quick</source>
        <translation>rapido</translation>
    </message>
    <message>
        <source>apparent intersection</source>
        <translation>intersezione apparente</translation>
    </message>
    <message>
        <source>extension</source>
        <translation>estensione</translation>
    </message>
    <message>
        <source>parallel</source>
        <translation>parallelo</translation>
    </message>
    <message>
        <source>none</source>
        <translation>nessuno</translation>
    </message>
    <message>
        <source>
The rest of what was typed ahead is left out.
</source>
        <translation>
Il resto di ciò che è stato digitato in anticipo viene tralasciato.
</translation>
    </message>
    <message>
        <source>
Nobody is there to answer &quot;%1&quot;: cancelled.
</source>
        <translation>
Nessuno può rispondere a &quot;%1&quot;: annullato.
</translation>
    </message>
    <message>
        <source>*Cancel*
</source>
        <translation>*Annullato*
</translation>
    </message>
    <message>
        <source>No help page.</source>
        <translation>Nessuna pagina della guida.</translation>
    </message>
    <message>
        <source>it is no module (odrxGetAPIVersion is missing)</source>
        <translation>non è un modulo (manca odrxGetAPIVersion)</translation>
    </message>
    <message>
        <source>it was built for version %1 of the interface, this host has %2</source>
        <translation>è stato fatto per la versione %1 dell&apos;interfaccia, questo host ha la %2</translation>
    </message>
    <message>
        <source>it is no module (odrxCreateModuleObject is missing)</source>
        <translation>non è un modulo (manca odrxCreateModuleObject)</translation>
    </message>
    <message>
        <source>it made no module object</source>
        <translation>non ha creato un oggetto modulo</translation>
    </message>
    <message>
        <source>there is no memory for its module object</source>
        <translation>non c&apos;è memoria per il suo oggetto modulo</translation>
    </message>
    <message>
        <source>Cannot load %1: %2</source>
        <translation>Impossibile caricare %1: %2</translation>
    </message>
    <message>
        <source>
%1 cannot run while another command is under way.</source>
        <translation>
%1 non può essere eseguito mentre è in corso un altro comando.</translation>
    </message>
    <message>
        <source>
%1: the setting cannot be written to %2.
</source>
        <translation>
%1: l&apos;impostazione non può essere scritta in %2.
</translation>
    </message>
    <message>
        <source>The command aliases in %1 cannot be read: %2 The ones before stay in use.</source>
        <translation>Gli alias dei comandi in %1 non possono essere letti: %2 Restano in uso i precedenti.</translation>
    </message>
    <message>
        <source>The numbers are too large.</source>
        <translation>I numeri sono troppo grandi.</translation>
    </message>
    <message>
        <source>
%1 has ended, nothing was changed.</source>
        <translation>
%1 è terminato, nulla è stato modificato.</translation>
    </message>
    <message>
        <source>
** That command may not be invoked transparently **
</source>
        <translation>
** Quel comando non può essere richiamato in modo trasparente **
</translation>
    </message>
    <message>
        <source>
Resuming %1 command.
</source>
        <translation>
Ripresa del comando %1.
</translation>
    </message>
    <message>
        <source>
%1 cannot be kept.
</source>
        <translation>
%1 non può essere conservato.
</translation>
    </message>
    <message>
        <source>
The user&apos;s settings cannot be kept.
</source>
        <translation>
Le impostazioni dell&apos;utente non possono essere conservate.
</translation>
    </message>
    <message>
        <source>%1 is a DWG file, which this program reads but does not write; give the drawing another name.</source>
        <translation>%1 è un file DWG, che questo programma legge ma non scrive; dia un altro nome al disegno.</translation>
    </message>
</context>
<context>
    <name>Keywords</name>
    <message>
        <source>2points</source>
        <translation>2punti</translation>
    </message>
    <message>
        <source>3point</source>
        <translation>3Punti</translation>
    </message>
    <message>
        <source>3points</source>
        <translation>3punti</translation>
    </message>
    <message>
        <source>ANnotative</source>
        <translation>ANnotativo</translation>
    </message>
    <message>
        <source>Above</source>
        <translation>soPra</translation>
    </message>
    <message>
        <source>Above objects</source>
        <translation>Sopra gli oggetti</translation>
    </message>
    <message>
        <source>Add</source>
        <translation>Aggiungi</translation>
    </message>
    <message>
        <source>Add area</source>
        <translation>Aggiungi area</translation>
    </message>
    <message>
        <source>Add leaders</source>
        <translation>Aggiungi direttrici</translation>
    </message>
    <message>
        <source>Advanced</source>
        <translation>Avanzate</translation>
    </message>
    <message>
        <source>Advanced options</source>
        <translation>Avanzate</translation>
    </message>
    <message>
        <source>All</source>
        <translation>Tutto</translation>
    </message>
    <message>
        <source>Ang</source>
        <translation>Angolo</translation>
    </message>
    <message>
        <source>Angle</source>
        <translation>Angolo</translation>
    </message>
    <message>
        <source>Annotation</source>
        <translation>aNnotazione</translation>
    </message>
    <message>
        <source>Annotative</source>
        <translation>Annotativo</translation>
    </message>
    <message>
        <source>Anyway</source>
        <translation>Comunque</translation>
    </message>
    <message>
        <source>Apply</source>
        <translation>Applica</translation>
    </message>
    <message>
        <source>Arc</source>
        <translation>Arco</translation>
    </message>
    <message>
        <source>Arc length</source>
        <translation>Lunghezza arco</translation>
    </message>
    <message>
        <source>Area</source>
        <translation>Area</translation>
    </message>
    <message>
        <source>Array</source>
        <translation>Serie</translation>
    </message>
    <message>
        <source>Arrow</source>
        <translation>Freccia</translation>
    </message>
    <message>
        <source>As</source>
        <translation>Come</translation>
    </message>
    <message>
        <source>As displayed</source>
        <translation>Come visualizzato</translation>
    </message>
    <message>
        <source>Aspect</source>
        <translation>Aspetto</translation>
    </message>
    <message>
        <source>Associativity</source>
        <translation>Associatività</translation>
    </message>
    <message>
        <source>At least</source>
        <translation>Minima</translation>
    </message>
    <message>
        <source>Attach</source>
        <translation>Attacca</translation>
    </message>
    <message>
        <source>Auto</source>
        <translation>Auto</translation>
    </message>
    <message>
        <source>BAck</source>
        <translation>REtro</translation>
    </message>
    <message>
        <source>BEgin</source>
        <translation>INizio</translation>
    </message>
    <message>
        <source>BYBlock</source>
        <translation>DABlocco</translation>
    </message>
    <message>
        <source>BYLayer</source>
        <translation>DALayer</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Indietro</translation>
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
        <translation>soTto</translation>
    </message>
    <message>
        <source>Binary</source>
        <translation>Binario</translation>
    </message>
    <message>
        <source>Bind</source>
        <translation>Unisci</translation>
    </message>
    <message>
        <source>Bisect</source>
        <translation>Bisettrice</translation>
    </message>
    <message>
        <source>Block</source>
        <translation>Blocco</translation>
    </message>
    <message>
        <source>Block selection</source>
        <translation>selezione Blocchi</translation>
    </message>
    <message>
        <source>Blocks</source>
        <translation>Blocchi</translation>
    </message>
    <message>
        <source>Both</source>
        <translation>eNtrambi</translation>
    </message>
    <message>
        <source>Bottom</source>
        <translation>Basso</translation>
    </message>
    <message>
        <source>Boundaries</source>
        <translation>Contorni</translation>
    </message>
    <message>
        <source>Boundary</source>
        <translation>Contorno</translation>
    </message>
    <message>
        <source>Boundary set</source>
        <translation>Gruppo contorni</translation>
    </message>
    <message>
        <source>Break</source>
        <translation>speZza</translation>
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
        <translation>CHiudi</translation>
    </message>
    <message>
        <source>COlor</source>
        <translation>COlore</translation>
    </message>
    <message>
        <source>COlorbook</source>
        <translation>LIbrocolori</translation>
    </message>
    <message>
        <source>CV</source>
        <translation>VC</translation>
    </message>
    <message>
        <source>Calligraphy</source>
        <translation>Calligrafia</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annulla</translation>
    </message>
    <message>
        <source>Center</source>
        <translation>Centro</translation>
    </message>
    <message>
        <source>Chamfer</source>
        <translation>Cima</translation>
    </message>
    <message>
        <source>Change</source>
        <translation>Cambia</translation>
    </message>
    <message>
        <source>Chord</source>
        <translation>Corda</translation>
    </message>
    <message>
        <source>Circumscribed about circle</source>
        <translation>Circoscritto al cerchio</translation>
    </message>
    <message>
        <source>Clear overrides</source>
        <translation>Cancella sostituzioni</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Chiudi</translation>
    </message>
    <message>
        <source>Color</source>
        <translation>Colore</translation>
    </message>
    <message>
        <source>Columns</source>
        <translation>Colonne</translation>
    </message>
    <message>
        <source>Combine</source>
        <translation>coMbina</translation>
    </message>
    <message>
        <source>Commands</source>
        <translation>coMandi</translation>
    </message>
    <message>
        <source>Constant</source>
        <translation>Costante</translation>
    </message>
    <message>
        <source>Content</source>
        <translation>Contenuto</translation>
    </message>
    <message>
        <source>Content first</source>
        <translation>Contenuto prima</translation>
    </message>
    <message>
        <source>Content type</source>
        <translation>tipo di Contenuto</translation>
    </message>
    <message>
        <source>Control</source>
        <translation>Controllo</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>Copia</translation>
    </message>
    <message>
        <source>Corner</source>
        <translation>Angolo</translation>
    </message>
    <message>
        <source>Create</source>
        <translation>Crea</translation>
    </message>
    <message>
        <source>Crossing</source>
        <translation>Intersezione</translation>
    </message>
    <message>
        <source>Current</source>
        <translation>Corrente</translation>
    </message>
    <message>
        <source>Current ucs</source>
        <translation>UCS corrente</translation>
    </message>
    <message>
        <source>DElta</source>
        <translation>DElta</translation>
    </message>
    <message>
        <source>DEtailviewstyles</source>
        <translation>DEttagliovistastili</translation>
    </message>
    <message>
        <source>DIsassociate</source>
        <translation>DIssocia</translation>
    </message>
    <message>
        <source>DRaw</source>
        <translation>ORdine</translation>
    </message>
    <message>
        <source>DRaw order</source>
        <translation>ORdine di disegno</translation>
    </message>
    <message>
        <source>DXF</source>
        <translation>DXF</translation>
    </message>
    <message>
        <source>DYnamic</source>
        <translation>DInamico</translation>
    </message>
    <message>
        <source>Decurve</source>
        <translation>Decurva</translation>
    </message>
    <message>
        <source>Default</source>
        <translation>Default</translation>
    </message>
    <message>
        <source>Degree</source>
        <translation>Grado</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>eLimina</translation>
    </message>
    <message>
        <source>Description</source>
        <translation>Descrizione</translation>
    </message>
    <message>
        <source>Detach</source>
        <translation>Stacca</translation>
    </message>
    <message>
        <source>Diameter</source>
        <translation>Diametro</translation>
    </message>
    <message>
        <source>Dimensions</source>
        <translation>Dimensioni</translation>
    </message>
    <message>
        <source>Dimstyle</source>
        <translation>stileQuota</translation>
    </message>
    <message>
        <source>Dimstyles</source>
        <translation>stiliQuota</translation>
    </message>
    <message>
        <source>Direction</source>
        <translation>Direzione</translation>
    </message>
    <message>
        <source>Displacement</source>
        <translation>sPostamento</translation>
    </message>
    <message>
        <source>Display</source>
        <translation>Schermo</translation>
    </message>
    <message>
        <source>Distance</source>
        <translation>Distanza</translation>
    </message>
    <message>
        <source>Distribute</source>
        <translation>Distribuisci</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>Fatto</translation>
    </message>
    <message>
        <source>Dynamic</source>
        <translation>Dinamico</translation>
    </message>
    <message>
        <source>EXport</source>
        <translation>ESporta</translation>
    </message>
    <message>
        <source>Edge</source>
        <translation>sPigolo</translation>
    </message>
    <message>
        <source>Edit</source>
        <translation>Edita</translation>
    </message>
    <message>
        <source>Edit vertex</source>
        <translation>Edita vertice</translation>
    </message>
    <message>
        <source>Elev</source>
        <translation>Elev</translation>
    </message>
    <message>
        <source>Elevation</source>
        <translation>Elevazione</translation>
    </message>
    <message>
        <source>Empty text objects</source>
        <translation>tEsti vuoti</translation>
    </message>
    <message>
        <source>End</source>
        <translation>Fine</translation>
    </message>
    <message>
        <source>Endtoend</source>
        <translation>Estremi</translation>
    </message>
    <message>
        <source>Entity</source>
        <translation>Entità</translation>
    </message>
    <message>
        <source>Erase</source>
        <translation>Cancella</translation>
    </message>
    <message>
        <source>Everything</source>
        <translation>Tutto</translation>
    </message>
    <message>
        <source>Exactly</source>
        <translation>Esatta</translation>
    </message>
    <message>
        <source>Exit</source>
        <translation>Esci</translation>
    </message>
    <message>
        <source>Explode</source>
        <translation>Esplodi</translation>
    </message>
    <message>
        <source>Extend</source>
        <translation>Estendi</translation>
    </message>
    <message>
        <source>Extents</source>
        <translation>Estensioni</translation>
    </message>
    <message>
        <source>Face</source>
        <translation>Faccia</translation>
    </message>
    <message>
        <source>Fence</source>
        <translation>inTercetta</translation>
    </message>
    <message>
        <source>Fillet</source>
        <translation>Raccordo</translation>
    </message>
    <message>
        <source>First</source>
        <translation>Primo</translation>
    </message>
    <message>
        <source>First angle</source>
        <translation>Primo angolo</translation>
    </message>
    <message>
        <source>First point</source>
        <translation>Primo punto</translation>
    </message>
    <message>
        <source>Fit</source>
        <translation>Adatta</translation>
    </message>
    <message>
        <source>Fit tolerance</source>
        <translation>Tolleranza di adattamento</translation>
    </message>
    <message>
        <source>Format</source>
        <translation>Formato</translation>
    </message>
    <message>
        <source>Freehand</source>
        <translation>Manolibera</translation>
    </message>
    <message>
        <source>Freeze</source>
        <translation>conGela</translation>
    </message>
    <message>
        <source>Front</source>
        <translation>Fronte</translation>
    </message>
    <message>
        <source>Frozen</source>
        <translation>conGelato</translation>
    </message>
    <message>
        <source>Gap</source>
        <translation>aPertura</translation>
    </message>
    <message>
        <source>Gap tolerance</source>
        <translation>tolleranza aPertura</translation>
    </message>
    <message>
        <source>Go</source>
        <translation>Vai</translation>
    </message>
    <message>
        <source>Grid</source>
        <translation>Griglia</translation>
    </message>
    <message>
        <source>Group</source>
        <translation>Gruppo</translation>
    </message>
    <message>
        <source>Groups</source>
        <translation>Gruppi</translation>
    </message>
    <message>
        <source>HELP</source>
        <translation>GUIDA</translation>
    </message>
    <message>
        <source>Halfwidth</source>
        <translation>Mezzalarghezza</translation>
    </message>
    <message>
        <source>Hatches</source>
        <translation>Tratteggi</translation>
    </message>
    <message>
        <source>Height</source>
        <translation>alTezza</translation>
    </message>
    <message>
        <source>Hidden</source>
        <translation>Nascosto</translation>
    </message>
    <message>
        <source>Hideplot</source>
        <translation>Nasconditraccia</translation>
    </message>
    <message>
        <source>Home</source>
        <translation>Iniziale</translation>
    </message>
    <message>
        <source>Hor</source>
        <translation>oR</translation>
    </message>
    <message>
        <source>Horizontal</source>
        <translation>Orizzontale</translation>
    </message>
    <message>
        <source>Ignore</source>
        <translation>Ignora</translation>
    </message>
    <message>
        <source>Import</source>
        <translation>Importa</translation>
    </message>
    <message>
        <source>Inches</source>
        <translation>pOllici</translation>
    </message>
    <message>
        <source>Included angle</source>
        <translation>Inscritto angolo</translation>
    </message>
    <message>
        <source>Inscribed in circle</source>
        <translation>Inscritto nel cerchio</translation>
    </message>
    <message>
        <source>Insert</source>
        <translation>Inserisci</translation>
    </message>
    <message>
        <source>Invert clip</source>
        <translation>Inverti ritaglio</translation>
    </message>
    <message>
        <source>Invisible</source>
        <translation>Invisibile</translation>
    </message>
    <message>
        <source>Island</source>
        <translation>Isole</translation>
    </message>
    <message>
        <source>Island detection</source>
        <translation>rilevamento Isole</translation>
    </message>
    <message>
        <source>Isometric</source>
        <translation>Isometrico</translation>
    </message>
    <message>
        <source>Join</source>
        <translation>uNisci</translation>
    </message>
    <message>
        <source>Jointype</source>
        <translation>tipoUnione</translation>
    </message>
    <message>
        <source>Justification</source>
        <translation>Giustificazione</translation>
    </message>
    <message>
        <source>Justify</source>
        <translation>giUstifica</translation>
    </message>
    <message>
        <source>Knots</source>
        <translation>Nodi</translation>
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
        <translation>BLocca</translation>
    </message>
    <message>
        <source>LType</source>
        <translation>TLinea</translation>
    </message>
    <message>
        <source>LTypes</source>
        <translation>TLinee</translation>
    </message>
    <message>
        <source>LWeight</source>
        <translation>SLinea</translation>
    </message>
    <message>
        <source>Landing</source>
        <translation>coLlegamento</translation>
    </message>
    <message>
        <source>Landscape</source>
        <translation>Orizzontale</translation>
    </message>
    <message>
        <source>Last</source>
        <translation>ULtimo</translation>
    </message>
    <message>
        <source>Layer</source>
        <translation>Layer</translation>
    </message>
    <message>
        <source>Layout</source>
        <translation>Layout</translation>
    </message>
    <message>
        <source>Leader</source>
        <translation>Direttrice</translation>
    </message>
    <message>
        <source>Leader type</source>
        <translation>tipo di Direttrice</translation>
    </message>
    <message>
        <source>Left</source>
        <translation>Sinistra</translation>
    </message>
    <message>
        <source>Length</source>
        <translation>Lunghezza</translation>
    </message>
    <message>
        <source>Limits</source>
        <translation>Limiti</translation>
    </message>
    <message>
        <source>Line</source>
        <translation>Linea</translation>
    </message>
    <message>
        <source>Line spacing</source>
        <translation>Interlinea</translation>
    </message>
    <message>
        <source>Load</source>
        <translation>cArica</translation>
    </message>
    <message>
        <source>Lock</source>
        <translation>Blocca</translation>
    </message>
    <message>
        <source>Lock and fade</source>
        <translation>Blocca e sfuma</translation>
    </message>
    <message>
        <source>Ltype</source>
        <translation>Tlinea</translation>
    </message>
    <message>
        <source>Ltype gen</source>
        <translation>Tipolinea gen</translation>
    </message>
    <message>
        <source>MATerial</source>
        <translation>MATeriale</translation>
    </message>
    <message>
        <source>MAterials</source>
        <translation>MAteriali</translation>
    </message>
    <message>
        <source>MUltileaderstyles</source>
        <translation>MUltidirettricistili</translation>
    </message>
    <message>
        <source>Make</source>
        <translation>cRea</translation>
    </message>
    <message>
        <source>Mark</source>
        <translation>Marca</translation>
    </message>
    <message>
        <source>Material</source>
        <translation>Materiale</translation>
    </message>
    <message>
        <source>Maxpoints</source>
        <translation>Maxpunti</translation>
    </message>
    <message>
        <source>Method</source>
        <translation>Metodo</translation>
    </message>
    <message>
        <source>Millimeters</source>
        <translation>Millimetri</translation>
    </message>
    <message>
        <source>Mlinestyles</source>
        <translation>MLineestili</translation>
    </message>
    <message>
        <source>Move</source>
        <translation>Muovi</translation>
    </message>
    <message>
        <source>Mtext</source>
        <translation>testoM</translation>
    </message>
    <message>
        <source>Multiple</source>
        <translation>Multiplo</translation>
    </message>
    <message>
        <source>Multiple points</source>
        <translation>Multipli punti</translation>
    </message>
    <message>
        <source>NAmed</source>
        <translation>NOme</translation>
    </message>
    <message>
        <source>NEW</source>
        <translation>NUOVO</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Nome</translation>
    </message>
    <message>
        <source>New</source>
        <translation>Nuovo</translation>
    </message>
    <message>
        <source>New boundary</source>
        <translation>Nuovo contorno</translation>
    </message>
    <message>
        <source>Newfrz</source>
        <translation>Nuovocong</translation>
    </message>
    <message>
        <source>Newvpfreeze</source>
        <translation>nuovocongFinestra</translation>
    </message>
    <message>
        <source>Next</source>
        <translation>Successivo</translation>
    </message>
    <message>
        <source>No</source>
        <translation>No</translation>
    </message>
    <message>
        <source>No columns</source>
        <translation>Nessuna colonna</translation>
    </message>
    <message>
        <source>No extend</source>
        <translation>Nonestendere</translation>
    </message>
    <message>
        <source>No leader</source>
        <translation>Nessuna direttrice</translation>
    </message>
    <message>
        <source>No plot</source>
        <translation>Non stampare</translation>
    </message>
    <message>
        <source>No trim</source>
        <translation>Nontagliare</translation>
    </message>
    <message>
        <source>None</source>
        <translation>Nessuno</translation>
    </message>
    <message>
        <source>Normal</source>
        <translation>Normale</translation>
    </message>
    <message>
        <source>Not</source>
        <translation>No</translation>
    </message>
    <message>
        <source>OBject</source>
        <translation>OGgetto</translation>
    </message>
    <message>
        <source>OFF</source>
        <translation>OFF</translation>
    </message>
    <message>
        <source>ON</source>
        <translation>ON</translation>
    </message>
    <message>
        <source>Object</source>
        <translation>Oggetto</translation>
    </message>
    <message>
        <source>Object type</source>
        <translation>tipo di Oggetto</translation>
    </message>
    <message>
        <source>Objects</source>
        <translation>Oggetti</translation>
    </message>
    <message>
        <source>Oblique</source>
        <translation>Obliqua</translation>
    </message>
    <message>
        <source>Off</source>
        <translation>Off</translation>
    </message>
    <message>
        <source>Offset</source>
        <translation>Offset</translation>
    </message>
    <message>
        <source>On</source>
        <translation>On</translation>
    </message>
    <message>
        <source>One</source>
        <translation>Uno</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>aPri</translation>
    </message>
    <message>
        <source>Options</source>
        <translation>Opzioni</translation>
    </message>
    <message>
        <source>Order</source>
        <translation>Ordine</translation>
    </message>
    <message>
        <source>Origin</source>
        <translation>Origine</translation>
    </message>
    <message>
        <source>Orphaned data</source>
        <translation>dati Orfani</translation>
    </message>
    <message>
        <source>Orthographic</source>
        <translation>Ortogonale</translation>
    </message>
    <message>
        <source>Outer</source>
        <translation>esTerno</translation>
    </message>
    <message>
        <source>Overlaps</source>
        <translation>Sovrapposizioni</translation>
    </message>
    <message>
        <source>Overlay</source>
        <translation>sOvrapponi</translation>
    </message>
    <message>
        <source>PStyle</source>
        <translation>STStampa</translation>
    </message>
    <message>
        <source>Parameter</source>
        <translation>Parametro</translation>
    </message>
    <message>
        <source>Partial</source>
        <translation>Parziale</translation>
    </message>
    <message>
        <source>Path</source>
        <translation>Percorso</translation>
    </message>
    <message>
        <source>Percent</source>
        <translation>Percentuale</translation>
    </message>
    <message>
        <source>Pick points</source>
        <translation>scegli Punti</translation>
    </message>
    <message>
        <source>Plot</source>
        <translation>stamPa</translation>
    </message>
    <message>
        <source>Plotstyles</source>
        <translation>stiliSTampa</translation>
    </message>
    <message>
        <source>Points</source>
        <translation>Punti</translation>
    </message>
    <message>
        <source>Polar</source>
        <translation>Polare</translation>
    </message>
    <message>
        <source>Polygonal</source>
        <translation>Poligonale</translation>
    </message>
    <message>
        <source>Polyline</source>
        <translation>Polilinea</translation>
    </message>
    <message>
        <source>Portrait</source>
        <translation>Verticale</translation>
    </message>
    <message>
        <source>Preset</source>
        <translation>pRedefinito</translation>
    </message>
    <message>
        <source>Previous</source>
        <translation>Precedente</translation>
    </message>
    <message>
        <source>Project</source>
        <translation>proieZione</translation>
    </message>
    <message>
        <source>Properties</source>
        <translation>Proprietà</translation>
    </message>
    <message>
        <source>QUIT</source>
        <translation>ESCI</translation>
    </message>
    <message>
        <source>Quadrant</source>
        <translation>Quadrante</translation>
    </message>
    <message>
        <source>REName</source>
        <translation>RINomina</translation>
    </message>
    <message>
        <source>Radius</source>
        <translation>Raggio</translation>
    </message>
    <message>
        <source>Ratio</source>
        <translation>Rapporto</translation>
    </message>
    <message>
        <source>Rectangular</source>
        <translation>Rettangolare</translation>
    </message>
    <message>
        <source>Reference</source>
        <translation>Riferimento</translation>
    </message>
    <message>
        <source>Regapps</source>
        <translation>APplreg</translation>
    </message>
    <message>
        <source>Regen</source>
        <translation>Rigen</translation>
    </message>
    <message>
        <source>Region</source>
        <translation>Regione</translation>
    </message>
    <message>
        <source>Reload</source>
        <translation>Ricarica</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Rimuovi</translation>
    </message>
    <message>
        <source>Remove leaders</source>
        <translation>Rimuovi direttrici</translation>
    </message>
    <message>
        <source>Rename</source>
        <translation>rinOmina</translation>
    </message>
    <message>
        <source>Rendered</source>
        <translation>Renderizzato</translation>
    </message>
    <message>
        <source>Replace</source>
        <translation>Sostituisci</translation>
    </message>
    <message>
        <source>Reset</source>
        <translation>Reimposta</translation>
    </message>
    <message>
        <source>Restore</source>
        <translation>Ripristina</translation>
    </message>
    <message>
        <source>Retain</source>
        <translation>Mantieni</translation>
    </message>
    <message>
        <source>Retain boundary</source>
        <translation>Mantieni contorno</translation>
    </message>
    <message>
        <source>Reverse</source>
        <translation>inVerti</translation>
    </message>
    <message>
        <source>Right</source>
        <translation>Destra</translation>
    </message>
    <message>
        <source>Rotate</source>
        <translation>Ruota</translation>
    </message>
    <message>
        <source>Rotated</source>
        <translation>Ruotata</translation>
    </message>
    <message>
        <source>Rotation</source>
        <translation>Rotazione</translation>
    </message>
    <message>
        <source>SAveas</source>
        <translation>SAlvacome</translation>
    </message>
    <message>
        <source>SEctionviewstyles</source>
        <translation>SEzionevistastili</translation>
    </message>
    <message>
        <source>SHapes</source>
        <translation>FOrme</translation>
    </message>
    <message>
        <source>SIngle</source>
        <translation>SIngola</translation>
    </message>
    <message>
        <source>STatus</source>
        <translation>STAto</translation>
    </message>
    <message>
        <source>STraight</source>
        <translation>REtto</translation>
    </message>
    <message>
        <source>STyle</source>
        <translation>STile</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Salva</translation>
    </message>
    <message>
        <source>Scale</source>
        <translation>scAla</translation>
    </message>
    <message>
        <source>Second</source>
        <translation>Secondo</translation>
    </message>
    <message>
        <source>Second angle</source>
        <translation>Secondo angolo</translation>
    </message>
    <message>
        <source>Second pt</source>
        <translation>Secondo punto</translation>
    </message>
    <message>
        <source>Select</source>
        <translation>Seleziona</translation>
    </message>
    <message>
        <source>Select objects</source>
        <translation>Seleziona oggetti</translation>
    </message>
    <message>
        <source>Select polyline</source>
        <translation>Seleziona polilinea</translation>
    </message>
    <message>
        <source>Selectable</source>
        <translation>Selezionabile</translation>
    </message>
    <message>
        <source>Set</source>
        <translation>Fissa</translation>
    </message>
    <message>
        <source>Set new origin</source>
        <translation>Imposta nuova origine</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Impostazioni</translation>
    </message>
    <message>
        <source>Shadeplot</source>
        <translation>stampaoMbreggiata</translation>
    </message>
    <message>
        <source>Single</source>
        <translation>Singolo</translation>
    </message>
    <message>
        <source>Snap</source>
        <translation>Snap</translation>
    </message>
    <message>
        <source>Solid</source>
        <translation>Solido</translation>
    </message>
    <message>
        <source>Source</source>
        <translation>Origine</translation>
    </message>
    <message>
        <source>Spacing</source>
        <translation>Spaziatura</translation>
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
        <translation>Radice quadrata</translation>
    </message>
    <message>
        <source>Standard</source>
        <translation>Standard</translation>
    </message>
    <message>
        <source>Static</source>
        <translation>Statico</translation>
    </message>
    <message>
        <source>Straight</source>
        <translation>Retta</translation>
    </message>
    <message>
        <source>Straighten</source>
        <translation>raDdrizza</translation>
    </message>
    <message>
        <source>Style</source>
        <translation>Stile</translation>
    </message>
    <message>
        <source>Subtract area</source>
        <translation>Sottrai area</translation>
    </message>
    <message>
        <source>TRansparency</source>
        <translation>TRasparenza</translation>
    </message>
    <message>
        <source>Tablestyle</source>
        <translation>stileTabella</translation>
    </message>
    <message>
        <source>Tablestyles</source>
        <translation>stiliTAbella</translation>
    </message>
    <message>
        <source>Tangent</source>
        <translation>Tangente</translation>
    </message>
    <message>
        <source>Template</source>
        <translation>moDello</translation>
    </message>
    <message>
        <source>Text</source>
        <translation>Testo</translation>
    </message>
    <message>
        <source>Thaw</source>
        <translation>Scongela</translation>
    </message>
    <message>
        <source>Thawed</source>
        <translation>Scongelato</translation>
    </message>
    <message>
        <source>Thickness</source>
        <translation>sPessore</translation>
    </message>
    <message>
        <source>Through</source>
        <translation>Punto</translation>
    </message>
    <message>
        <source>Tolerance</source>
        <translation>Tolleranza</translation>
    </message>
    <message>
        <source>Top</source>
        <translation>Alto</translation>
    </message>
    <message>
        <source>Total</source>
        <translation>Totale</translation>
    </message>
    <message>
        <source>Transparency</source>
        <translation>Trasparenza</translation>
    </message>
    <message>
        <source>Trim</source>
        <translation>Taglia</translation>
    </message>
    <message>
        <source>Truecolor</source>
        <translation>Truecolor</translation>
    </message>
    <message>
        <source>Ttr (tan tan radius)</source>
        <translation>Ttr (tan tan raggio)</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>Tipo</translation>
    </message>
    <message>
        <source>Ucs</source>
        <translation>Ucs</translation>
    </message>
    <message>
        <source>Under</source>
        <translation>soTto</translation>
    </message>
    <message>
        <source>Under objects</source>
        <translation>soTto gli oggetti</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>annUlla</translation>
    </message>
    <message>
        <source>Uniform</source>
        <translation>Uniforme</translation>
    </message>
    <message>
        <source>Unload</source>
        <translation>sCarica</translation>
    </message>
    <message>
        <source>Unlock</source>
        <translation>sbLocca</translation>
    </message>
    <message>
        <source>Use</source>
        <translation>Usa</translation>
    </message>
    <message>
        <source>Use current origin</source>
        <translation>Usa origine corrente</translation>
    </message>
    <message>
        <source>Use current spacing</source>
        <translation>Usa spaziatura corrente</translation>
    </message>
    <message>
        <source>User defined</source>
        <translation>Utente</translation>
    </message>
    <message>
        <source>VIew</source>
        <translation>VIsta</translation>
    </message>
    <message>
        <source>VPort</source>
        <translation>FInestra</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>Valore</translation>
    </message>
    <message>
        <source>Variables</source>
        <translation>Variabili</translation>
    </message>
    <message>
        <source>Ver</source>
        <translation>Ver</translation>
    </message>
    <message>
        <source>Verify</source>
        <translation>Verifica</translation>
    </message>
    <message>
        <source>Version</source>
        <translation>Versione</translation>
    </message>
    <message>
        <source>Vertical</source>
        <translation>Verticale</translation>
    </message>
    <message>
        <source>View</source>
        <translation>Vista</translation>
    </message>
    <message>
        <source>Viewports</source>
        <translation>Finestre</translation>
    </message>
    <message>
        <source>Visual styles</source>
        <translation>stili di Visualizzazione</translation>
    </message>
    <message>
        <source>Visualstyles</source>
        <translation>stiliVIsuali</translation>
    </message>
    <message>
        <source>Vpfreeze</source>
        <translation>congFinestra</translation>
    </message>
    <message>
        <source>Vpvisdflt</source>
        <translation>Visdeffinestra</translation>
    </message>
    <message>
        <source>Width</source>
        <translation>larGhezza</translation>
    </message>
    <message>
        <source>Window</source>
        <translation>Finestra</translation>
    </message>
    <message>
        <source>Wireframe</source>
        <translation>Wireframe</translation>
    </message>
    <message>
        <source>World</source>
        <translation>Globale</translation>
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
        <translation>asseX</translation>
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
        <translation>asseY</translation>
    </message>
    <message>
        <source>Ydatum</source>
        <translation>coordY</translation>
    </message>
    <message>
        <source>Yes</source>
        <translation>Sì</translation>
    </message>
    <message>
        <source>ZAxis</source>
        <translation>AZ</translation>
    </message>
    <message>
        <source>ZX</source>
        <translation>ZX</translation>
    </message>
    <message>
        <source>Zaxis</source>
        <translation>asseZ</translation>
    </message>
    <message>
        <source>Zdepth</source>
        <translation>Zprofondità</translation>
    </message>
    <message>
        <source>Zero</source>
        <translation>Zero</translation>
    </message>
    <message>
        <source>Zero-length geometry</source>
        <translation>geometria di lunghezza Zero</translation>
    </message>
    <message>
        <source>beHind</source>
        <translation>Dietro</translation>
    </message>
    <message>
        <source>bounDary</source>
        <translation>daVanti</translation>
    </message>
    <message>
        <source>bring in front of bounDary</source>
        <translation>portare daVanti al contorno</translation>
    </message>
    <message>
        <source>bring to Front</source>
        <translation>portare in Fronte</translation>
    </message>
    <message>
        <source>cLose</source>
        <translation>cHiudi</translation>
    </message>
    <message>
        <source>chord Length</source>
        <translation>Lunghezza corda</translation>
    </message>
    <message>
        <source>do Not assign</source>
        <translation>Non assegnare</translation>
    </message>
    <message>
        <source>draW</source>
        <translation>Disegna</translation>
    </message>
    <message>
        <source>draW boundary</source>
        <translation>Disegna contorno</translation>
    </message>
    <message>
        <source>eRase</source>
        <translation>cAncella</translation>
    </message>
    <message>
        <source>eXcept current</source>
        <translation>tranne la coRrente</translation>
    </message>
    <message>
        <source>eXit</source>
        <translation>Esci</translation>
    </message>
    <message>
        <source>eXit options</source>
        <translation>Esci dalle opzioni</translation>
    </message>
    <message>
        <source>end Tangency</source>
        <translation>Tangenza finale</translation>
    </message>
    <message>
        <source>generate Polyline</source>
        <translation>genera Polilinea</translation>
    </message>
    <message>
        <source>hatch COlor</source>
        <translation>COlore tratteggio</translation>
    </message>
    <message>
        <source>lAnding</source>
        <translation>coLlegamento</translation>
    </message>
    <message>
        <source>leader Landing first</source>
        <translation>coLlegamento prima</translation>
    </message>
    <message>
        <source>leader lAnding</source>
        <translation>coLlegamento</translation>
    </message>
    <message>
        <source>lineType</source>
        <translation>Tipolinea</translation>
    </message>
    <message>
        <source>lineWeight</source>
        <translation>spessoreLinea</translation>
    </message>
    <message>
        <source>ltScale</source>
        <translation>scaLatl</translation>
    </message>
    <message>
        <source>mEthod</source>
        <translation>metOdo</translation>
    </message>
    <message>
        <source>mOde</source>
        <translation>mOdo</translation>
    </message>
    <message>
        <source>multileadersTyle</source>
        <translation>multIdirettricestile</translation>
    </message>
    <message>
        <source>plotStyle</source>
        <translation>Stilestampa</translation>
    </message>
    <message>
        <source>rEconcile</source>
        <translation>rIconcilia</translation>
    </message>
    <message>
        <source>remove Boundaries</source>
        <translation>rimuovi Contorni</translation>
    </message>
    <message>
        <source>sPline</source>
        <translation>Spline</translation>
    </message>
    <message>
        <source>send beHind boundary</source>
        <translation>inviare Dietro al contorno</translation>
    </message>
    <message>
        <source>send to Back</source>
        <translation>inviare In fondo</translation>
    </message>
    <message>
        <source>separate Hatches</source>
        <translation>Tratteggi separati</translation>
    </message>
    <message>
        <source>specify Spacing</source>
        <translation>Specifica spaziatura</translation>
    </message>
    <message>
        <source>stAte</source>
        <translation>stAto</translation>
    </message>
    <message>
        <source>start Tangency</source>
        <translation>Tangenza iniziale</translation>
    </message>
    <message>
        <source>textSTyles</source>
        <translation>stiliTEsto</translation>
    </message>
    <message>
        <source>toLerance</source>
        <translation>toLleranza</translation>
    </message>
    <message>
        <source>ALL</source>
        <translation>TUTTO</translation>
    </message>
    <message>
        <source>ALl</source>
        <translation>TUtto</translation>
    </message>
    <message>
        <source>AUto</source>
        <translation>AUto</translation>
    </message>
    <message>
        <source>BC</source>
        <translation>BC</translation>
    </message>
    <message>
        <source>BL</source>
        <translation>BS</translation>
    </message>
    <message>
        <source>BOX</source>
        <translation>RIquadro</translation>
    </message>
    <message>
        <source>BR</source>
        <translation>BD</translation>
    </message>
    <message>
        <source>CPolygon</source>
        <translation>IPoligono</translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>Cancella</translation>
    </message>
    <message>
        <source>Included</source>
        <translation>Inscritto</translation>
    </message>
    <message>
        <source>MC</source>
        <translation>MC</translation>
    </message>
    <message>
        <source>MIrror</source>
        <translation>SPecchio</translation>
    </message>
    <message>
        <source>ML</source>
        <translation>MS</translation>
    </message>
    <message>
        <source>MOve</source>
        <translation>MUovi</translation>
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
        <translation>Punti</translation>
    </message>
    <message>
        <source>Plotstyle</source>
        <translation>stileStampa</translation>
    </message>
    <message>
        <source>SCale</source>
        <translation>SCala</translation>
    </message>
    <message>
        <source>STretch</source>
        <translation>STira</translation>
    </message>
    <message>
        <source>TC</source>
        <translation>AC</translation>
    </message>
    <message>
        <source>TL</source>
        <translation>AS</translation>
    </message>
    <message>
        <source>TR</source>
        <translation>AD</translation>
    </message>
    <message>
        <source>Tangency</source>
        <translation>Tangenza</translation>
    </message>
    <message>
        <source>Ttr</source>
        <translation>Ttr</translation>
    </message>
    <message>
        <source>WPolygon</source>
        <translation>FPoligono</translation>
    </message>
    <message>
        <source>Align</source>
        <translation>aLlinea</translation>
    </message>
    <message>
        <source>orthoGraphic</source>
        <translation>orTogonale</translation>
    </message>
</context>
<context>
    <name>Layers</name>
    <message>
        <source>Name</source>
        <translation>Nome</translation>
    </message>
    <message>
        <source>On</source>
        <translation>On</translation>
    </message>
    <message>
        <source>Freeze</source>
        <translation>Congela</translation>
    </message>
    <message>
        <source>Lock</source>
        <translation>Blocca</translation>
    </message>
    <message>
        <source>Plot</source>
        <translation>Stampa</translation>
    </message>
    <message>
        <source>Color</source>
        <translation>Colore</translation>
    </message>
    <message>
        <source>Linetype</source>
        <translation>Tipo di linea</translation>
    </message>
    <message>
        <source>Lineweight</source>
        <translation>Spessore linea</translation>
    </message>
    <message>
        <source>Transparency</source>
        <translation>Trasparenza</translation>
    </message>
    <message>
        <source>Description</source>
        <translation>Descrizione</translation>
    </message>
    <message>
        <source>Viewport</source>
        <translation>Finestra</translation>
    </message>
    <message>
        <source>thawed</source>
        <translation>scongelato</translation>
    </message>
    <message>
        <source>frozen</source>
        <translation>congelato</translation>
    </message>
    <message>
        <source>unlocked</source>
        <translation>sbloccato</translation>
    </message>
    <message>
        <source>locked</source>
        <translation>bloccato</translation>
    </message>
    <message>
        <source>plots</source>
        <translation>si stampa</translation>
    </message>
    <message>
        <source>no plot</source>
        <translation>non si stampa</translation>
    </message>
    <message>
        <source>on</source>
        <translation>attivo</translation>
    </message>
    <message>
        <source>off</source>
        <translation>disattivo</translation>
    </message>
</context>
<context>
    <name>Menus</name>
    <message>
        <source>&amp;About Ortakit</source>
        <translation>&amp;Informazioni su Ortakit</translation>
    </message>
    <message>
        <source>&amp;Aiming</source>
        <translation>&amp;Puntamento</translation>
    </message>
    <message>
        <source>&amp;Black ground</source>
        <translation>Sfondo &amp;nero</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>&amp;Chiudi</translation>
    </message>
    <message>
        <source>&amp;Construction lines</source>
        <translation>Linee di &amp;costruzione</translation>
    </message>
    <message>
        <source>&amp;Contents</source>
        <translation>&amp;Sommario</translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation>&amp;Copia</translation>
    </message>
    <message>
        <source>&amp;Dark style</source>
        <translation>Stile &amp;scuro</translation>
    </message>
    <message>
        <source>&amp;Delete</source>
        <translation>&amp;Elimina</translation>
    </message>
    <message>
        <source>&amp;Draw</source>
        <translation>&amp;Disegna</translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <translation>&amp;Modifica</translation>
    </message>
    <message>
        <source>&amp;Export</source>
        <translation>&amp;Esporta</translation>
    </message>
    <message>
        <source>&amp;File</source>
        <translation>&amp;File</translation>
    </message>
    <message>
        <source>&amp;Fit</source>
        <translation>&amp;Adatta</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>&amp;Guida</translation>
    </message>
    <message>
        <source>&amp;In space</source>
        <translation>Nello s&amp;pazio</translation>
    </message>
    <message>
        <source>&amp;Insert</source>
        <translation>&amp;Inserisci</translation>
    </message>
    <message>
        <source>&amp;Light style</source>
        <translation>Stile c&amp;hiaro</translation>
    </message>
    <message>
        <source>&amp;Lock display</source>
        <translation>&amp;Blocca visualizzazione</translation>
    </message>
    <message>
        <source>&amp;Make</source>
        <translation>&amp;Crea</translation>
    </message>
    <message>
        <source>&amp;Modify</source>
        <translation>E&amp;labora</translation>
    </message>
    <message>
        <source>&amp;New</source>
        <translation>&amp;Nuovo</translation>
    </message>
    <message>
        <source>&amp;Next under the pointer</source>
        <translation>Su&amp;ccessivo sotto il puntatore</translation>
    </message>
    <message>
        <source>&amp;Open...</source>
        <translation>&amp;Apri...</translation>
    </message>
    <message>
        <source>&amp;PNG picture...</source>
        <translation>Immagine &amp;PNG...</translation>
    </message>
    <message>
        <source>&amp;Pan</source>
        <translation>&amp;Pan</translation>
    </message>
    <message>
        <source>&amp;Paste</source>
        <translation>&amp;Incolla</translation>
    </message>
    <message>
        <source>&amp;Print...</source>
        <translation>&amp;Stampa...</translation>
    </message>
    <message>
        <source>&amp;Properties</source>
        <translation>&amp;Proprietà</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>&amp;Esci</translation>
    </message>
    <message>
        <source>&amp;Record session...</source>
        <translation>&amp;Registra sessione...</translation>
    </message>
    <message>
        <source>&amp;Redo</source>
        <translation>&amp;Ripristina</translation>
    </message>
    <message>
        <source>&amp;Regenerate</source>
        <translation>&amp;Rigenera</translation>
    </message>
    <message>
        <source>&amp;SVG drawing...</source>
        <translation>Disegno &amp;SVG...</translation>
    </message>
    <message>
        <source>&amp;Save</source>
        <translation>&amp;Salva</translation>
    </message>
    <message>
        <source>&amp;Start page</source>
        <translation>Pagina &amp;iniziale</translation>
    </message>
    <message>
        <source>&amp;Toolbars</source>
        <translation>&amp;Barre degli strumenti</translation>
    </message>
    <message>
        <source>&amp;Tools</source>
        <translation>&amp;Strumenti</translation>
    </message>
    <message>
        <source>&amp;Undo</source>
        <translation>&amp;Annulla</translation>
    </message>
    <message>
        <source>&amp;Unlock display</source>
        <translation>&amp;Sblocca visualizzazione</translation>
    </message>
    <message>
        <source>&amp;Upkeep</source>
        <translation>&amp;Manutenzione</translation>
    </message>
    <message>
        <source>&amp;View</source>
        <translation>&amp;Visualizza</translation>
    </message>
    <message>
        <source>&amp;Views and planes</source>
        <translation>&amp;Viste e piani</translation>
    </message>
    <message>
        <source>&amp;Zoom by its options</source>
        <translation>&amp;Zoom con opzioni</translation>
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
        <translation>Allinea</translation>
    </message>
    <message>
        <source>Align multileaders</source>
        <translation>Allinea multidirettrici</translation>
    </message>
    <message>
        <source>Aligned</source>
        <translation>Allineata</translation>
    </message>
    <message>
        <source>Along the axes</source>
        <translation>Lungo gli assi</translation>
    </message>
    <message>
        <source>Angle</source>
        <translation>Angolo</translation>
    </message>
    <message>
        <source>Arc</source>
        <translation>Arco</translation>
    </message>
    <message>
        <source>Arc length</source>
        <translation>Lunghezza arco</translation>
    </message>
    <message>
        <source>Area</source>
        <translation>Area</translation>
    </message>
    <message>
        <source>Array</source>
        <translation>Serie</translation>
    </message>
    <message>
        <source>As another one</source>
        <translation>Come un altro</translation>
    </message>
    <message>
        <source>At steps along a curve</source>
        <translation>A intervalli lungo una curva</translation>
    </message>
    <message>
        <source>Attributes</source>
        <translation>Attributi</translation>
    </message>
    <message>
        <source>Base point</source>
        <translation>Punto base</translation>
    </message>
    <message>
        <source>Between sheet and model</source>
        <translation>Fra layout e modello</translation>
    </message>
    <message>
        <source>Boundary</source>
        <translation>Contorno</translation>
    </message>
    <message>
        <source>Break</source>
        <translation>Spezza</translation>
    </message>
    <message>
        <source>Bring back what was &amp;erased</source>
        <translation>Recupera ciò che è stato &amp;cancellato</translation>
    </message>
    <message>
        <source>Center mark</source>
        <translation>Contrassegno del centro</translation>
    </message>
    <message>
        <source>Chamfer</source>
        <translation>Cima</translation>
    </message>
    <message>
        <source>Choose &amp;all</source>
        <translation>Seleziona &amp;tutto</translation>
    </message>
    <message>
        <source>Choose &amp;similar</source>
        <translation>Seleziona &amp;simili</translation>
    </message>
    <message>
        <source>Chooses what can be seen and changed</source>
        <translation>Seleziona ciò che si può vedere e modificare</translation>
    </message>
    <message>
        <source>Circle</source>
        <translation>Cerchio</translation>
    </message>
    <message>
        <source>Clip</source>
        <translation>Ritaglia</translation>
    </message>
    <message>
        <source>Closes all drawings and the program</source>
        <translation>Chiude tutti i disegni e il programma</translation>
    </message>
    <message>
        <source>Closes the drawing in front</source>
        <translation>Chiude il disegno in primo piano</translation>
    </message>
    <message>
        <source>Co&amp;mmands...</source>
        <translation>Co&amp;mandi...</translation>
    </message>
    <message>
        <source>Color</source>
        <translation>Colore</translation>
    </message>
    <message>
        <source>Coordinates of a point</source>
        <translation>Coordinate di un punto</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>Copia</translation>
    </message>
    <message>
        <source>Copy with &amp;base point</source>
        <translation>Copia con punto &amp;base</translation>
    </message>
    <message>
        <source>Cu&amp;t</source>
        <translation>&amp;Taglia</translation>
    </message>
    <message>
        <source>Dark windows</source>
        <translation>Finestre scure</translation>
    </message>
    <message>
        <source>Define an attribute</source>
        <translation>Definisci un attributo</translation>
    </message>
    <message>
        <source>Delete layers</source>
        <translation>Elimina layer</translation>
    </message>
    <message>
        <source>Diameter</source>
        <translation>Diametro</translation>
    </message>
    <message>
        <source>Dime&amp;nsion</source>
        <translation>&amp;Quotatura</translation>
    </message>
    <message>
        <source>Dimension style</source>
        <translation>Stile di quota</translation>
    </message>
    <message>
        <source>Distance</source>
        <translation>Distanza</translation>
    </message>
    <message>
        <source>Divide a curve</source>
        <translation>Dividi una curva</translation>
    </message>
    <message>
        <source>Divide the screen</source>
        <translation>Dividi lo schermo</translation>
    </message>
    <message>
        <source>Draw order</source>
        <translation>Ordine di disegno</translation>
    </message>
    <message>
        <source>Drawing limits</source>
        <translation>Limiti del disegno</translation>
    </message>
    <message>
        <source>Drawing status</source>
        <translation>Stato del disegno</translation>
    </message>
    <message>
        <source>Draws on black</source>
        <translation>Disegna su nero</translation>
    </message>
    <message>
        <source>Draws on white</source>
        <translation>Disegna su bianco</translation>
    </message>
    <message>
        <source>Edit multileaders</source>
        <translation>Modifica multidirettrici</translation>
    </message>
    <message>
        <source>Edit text and extension lines</source>
        <translation>Modifica testo e linee di estensione</translation>
    </message>
    <message>
        <source>Elevation and thickness</source>
        <translation>Elevazione e spessore</translation>
    </message>
    <message>
        <source>Ellipse</source>
        <translation>Ellisse</translation>
    </message>
    <message>
        <source>End isolating</source>
        <translation>Termina isolamento</translation>
    </message>
    <message>
        <source>Erase</source>
        <translation>Cancella</translation>
    </message>
    <message>
        <source>Erases what is chosen</source>
        <translation>Cancella ciò che è selezionato</translation>
    </message>
    <message>
        <source>Explode</source>
        <translation>Esplodi</translation>
    </message>
    <message>
        <source>Extend</source>
        <translation>Estendi</translation>
    </message>
    <message>
        <source>External reference</source>
        <translation>Riferimento esterno</translation>
    </message>
    <message>
        <source>F&amp;ormat</source>
        <translation>F&amp;ormato</translation>
    </message>
    <message>
        <source>Face</source>
        <translation>Faccia</translation>
    </message>
    <message>
        <source>Filled area</source>
        <translation>Area piena</translation>
    </message>
    <message>
        <source>Fillet</source>
        <translation>Raccorda</translation>
    </message>
    <message>
        <source>Finds commands, menu entries and system variables</source>
        <translation>Trova comandi, voci di menu e variabili di sistema</translation>
    </message>
    <message>
        <source>Freeze</source>
        <translation>Congela</translation>
    </message>
    <message>
        <source>From the same begin</source>
        <translation>Dalla stessa origine</translation>
    </message>
    <message>
        <source>Gives what was printed most of the window, and back</source>
        <translation>Dà a ciò che è stato stampato quasi tutta la finestra, e ritorno</translation>
    </message>
    <message>
        <source>Goes through what lies on top of each other</source>
        <translation>Scorre ciò che sta uno sopra l&apos;altro</translation>
    </message>
    <message>
        <source>Grid</source>
        <translation>Griglia</translation>
    </message>
    <message>
        <source>Group</source>
        <translation>Gruppo</translation>
    </message>
    <message>
        <source>Hatch</source>
        <translation>Tratteggio</translation>
    </message>
    <message>
        <source>Horizontal or vertical</source>
        <translation>Orizzontale o verticale</translation>
    </message>
    <message>
        <source>How the layout that is shown lies on its paper</source>
        <translation>Come il layout mostrato sta sulla sua carta</translation>
    </message>
    <message>
        <source>I&amp;n space</source>
        <translation>&amp;Nello spazio</translation>
    </message>
    <message>
        <source>In a row</source>
        <translation>In serie</translation>
    </message>
    <message>
        <source>In&amp;quiry</source>
        <translation>&amp;Interroga</translation>
    </message>
    <message>
        <source>Insert a block</source>
        <translation>Inserisci un blocco</translation>
    </message>
    <message>
        <source>Into the viewport</source>
        <translation>Nella finestra</translation>
    </message>
    <message>
        <source>Isolate</source>
        <translation>Isola</translation>
    </message>
    <message>
        <source>Isometric plane</source>
        <translation>Piano isometrico</translation>
    </message>
    <message>
        <source>Jogged radius</source>
        <translation>Raggio ridotto</translation>
    </message>
    <message>
        <source>Join</source>
        <translation>Unisci</translation>
    </message>
    <message>
        <source>Layer, color, linetype</source>
        <translation>Layer, colore, tipo di linea</translation>
    </message>
    <message>
        <source>Layers</source>
        <translation>Layer</translation>
    </message>
    <message>
        <source>Layers of &amp;objects</source>
        <translation>Layer di &amp;oggetti</translation>
    </message>
    <message>
        <source>Layout</source>
        <translation>Layout</translation>
    </message>
    <message>
        <source>Leader</source>
        <translation>Direttrice</translation>
    </message>
    <message>
        <source>Lengthen</source>
        <translation>Allunga</translation>
    </message>
    <message>
        <source>Light windows</source>
        <translation>Finestre chiare</translation>
    </message>
    <message>
        <source>Line</source>
        <translation>Linea</translation>
    </message>
    <message>
        <source>Linetype</source>
        <translation>Tipo di linea</translation>
    </message>
    <message>
        <source>Lineweight</source>
        <translation>Spessore linea</translation>
    </message>
    <message>
        <source>Lisp &amp;console</source>
        <translation>&amp;Console Lisp</translation>
    </message>
    <message>
        <source>List</source>
        <translation>Elenca</translation>
    </message>
    <message>
        <source>Load shapes</source>
        <translation>Carica forme</translation>
    </message>
    <message>
        <source>Lock</source>
        <translation>Blocca</translation>
    </message>
    <message>
        <source>Lon&amp;g command history</source>
        <translation>Cronolo&amp;gia comandi estesa</translation>
    </message>
    <message>
        <source>Look for errors</source>
        <translation>Cerca errori</translation>
    </message>
    <message>
        <source>Look from a direction</source>
        <translation>Guarda da una direzione</translation>
    </message>
    <message>
        <source>Look straight at a plane</source>
        <translation>Guarda perpendicolarmente un piano</translation>
    </message>
    <message>
        <source>Make a block</source>
        <translation>Crea un blocco</translation>
    </message>
    <message>
        <source>Make current</source>
        <translation>Rendi corrente</translation>
    </message>
    <message>
        <source>Makes a new drawing</source>
        <translation>Crea un nuovo disegno</translation>
    </message>
    <message>
        <source>Merge layers</source>
        <translation>Unisci layer</translation>
    </message>
    <message>
        <source>Mirror</source>
        <translation>Specchia</translation>
    </message>
    <message>
        <source>Mirror in a plane</source>
        <translation>Specchia rispetto a un piano</translation>
    </message>
    <message>
        <source>Move</source>
        <translation>Sposta</translation>
    </message>
    <message>
        <source>Move in space</source>
        <translation>Sposta nello spazio</translation>
    </message>
    <message>
        <source>Move the text</source>
        <translation>Sposta il testo</translation>
    </message>
    <message>
        <source>Multileader</source>
        <translation>Multidirettrice</translation>
    </message>
    <message>
        <source>Multiline</source>
        <translation>Multilinea</translation>
    </message>
    <message>
        <source>Named views</source>
        <translation>Viste con nome</translation>
    </message>
    <message>
        <source>O&amp;bjects</source>
        <translation>O&amp;ggetti</translation>
    </message>
    <message>
        <source>Object snap</source>
        <translation>Snap ad oggetto</translation>
    </message>
    <message>
        <source>Offset</source>
        <translation>Offset</translation>
    </message>
    <message>
        <source>Onto the sheet</source>
        <translation>Sul layout</translation>
    </message>
    <message>
        <source>Opens drawings</source>
        <translation>Apre disegni</translation>
    </message>
    <message>
        <source>Ordinate</source>
        <translation>Coordinata</translation>
    </message>
    <message>
        <source>Override variables</source>
        <translation>Sostituisci variabili</translation>
    </message>
    <message>
        <source>P&amp;DF page...</source>
        <translation>Pagina P&amp;DF...</translation>
    </message>
    <message>
        <source>Pa&amp;ge setup...</source>
        <translation>Impo&amp;sta pagina...</translation>
    </message>
    <message>
        <source>Paragraph</source>
        <translation>Paragrafo</translation>
    </message>
    <message>
        <source>Paste as b&amp;lock</source>
        <translation>Incolla come b&amp;locco</translation>
    </message>
    <message>
        <source>Paste where it &amp;was</source>
        <translation>Incolla dove &amp;era</translation>
    </message>
    <message>
        <source>Place a shape</source>
        <translation>Colloca una forma</translation>
    </message>
    <message>
        <source>Poin&amp;ts</source>
        <translation>Pu&amp;nti</translation>
    </message>
    <message>
        <source>Point</source>
        <translation>Punto</translation>
    </message>
    <message>
        <source>Polygon</source>
        <translation>Poligono</translation>
    </message>
    <message>
        <source>Polyline</source>
        <translation>Polilinea</translation>
    </message>
    <message>
        <source>Polyline in space</source>
        <translation>Polilinea nello spazio</translation>
    </message>
    <message>
        <source>Prints the layout that is shown, or writes it as a page</source>
        <translation>Stampa il layout mostrato, o lo scrive come pagina</translation>
    </message>
    <message>
        <source>Purge</source>
        <translation>Elimina inutilizzati</translation>
    </message>
    <message>
        <source>Radius</source>
        <translation>Raggio</translation>
    </message>
    <message>
        <source>Rectangle</source>
        <translation>Rettangolo</translation>
    </message>
    <message>
        <source>Region</source>
        <translation>Regione</translation>
    </message>
    <message>
        <source>Remove duplicates</source>
        <translation>Rimuovi duplicati</translation>
    </message>
    <message>
        <source>Rename</source>
        <translation>Rinomina</translation>
    </message>
    <message>
        <source>Revision cloud</source>
        <translation>Fumetto di revisione</translation>
    </message>
    <message>
        <source>Ring</source>
        <translation>Anello</translation>
    </message>
    <message>
        <source>Rotate</source>
        <translation>Ruota</translation>
    </message>
    <message>
        <source>Rotate round an axis</source>
        <translation>Ruota attorno a un asse</translation>
    </message>
    <message>
        <source>Run a s&amp;cript</source>
        <translation>Esegui uno s&amp;cript</translation>
    </message>
    <message>
        <source>S&amp;ettings...</source>
        <translation>Im&amp;postazioni...</translation>
    </message>
    <message>
        <source>Save &amp;as...</source>
        <translation>Salva co&amp;n nome...</translation>
    </message>
    <message>
        <source>Saves the drawing</source>
        <translation>Salva il disegno</translation>
    </message>
    <message>
        <source>Saves the drawing under another name</source>
        <translation>Salva il disegno con un altro nome</translation>
    </message>
    <message>
        <source>Says what this program is</source>
        <translation>Dice che cos&apos;è questo programma</translation>
    </message>
    <message>
        <source>Scale</source>
        <translation>Scala</translation>
    </message>
    <message>
        <source>Shows a place to try Lisp at</source>
        <translation>Mostra un posto per provare Lisp</translation>
    </message>
    <message>
        <source>Shows all that is drawn</source>
        <translation>Mostra tutto ciò che è disegnato</translation>
    </message>
    <message>
        <source>Shows all through the viewport that is worked through</source>
        <translation>Mostra tutto attraverso la finestra in cui si lavora</translation>
    </message>
    <message>
        <source>Shows less, larger</source>
        <translation>Mostra di meno, più grande</translation>
    </message>
    <message>
        <source>Shows more, smaller</source>
        <translation>Mostra di più, più piccolo</translation>
    </message>
    <message>
        <source>Shows recent drawings, samples and first steps</source>
        <translation>Mostra disegni recenti, esempi e primi passi</translation>
    </message>
    <message>
        <source>Shows the help pages</source>
        <translation>Mostra le pagine della guida</translation>
    </message>
    <message>
        <source>Shows what is in a box</source>
        <translation>Mostra ciò che è in un riquadro</translation>
    </message>
    <message>
        <source>Snap to a grid</source>
        <translation>Aggancia a una griglia</translation>
    </message>
    <message>
        <source>Snaps, display, selection, units, folders and trust</source>
        <translation>Snap, visualizzazione, selezione, unità, cartelle e attendibilità</translation>
    </message>
    <message>
        <source>Spline</source>
        <translation>Spline</translation>
    </message>
    <message>
        <source>Stretch</source>
        <translation>Stira</translation>
    </message>
    <message>
        <source>Synchronize attributes</source>
        <translation>Sincronizza attributi</translation>
    </message>
    <message>
        <source>System &amp;variables</source>
        <translation>&amp;Variabili di sistema</translation>
    </message>
    <message>
        <source>Take back the last layer change</source>
        <translation>Annulla l&apos;ultima modifica dei layer</translation>
    </message>
    <message>
        <source>Text</source>
        <translation>Testo</translation>
    </message>
    <message>
        <source>Text of one line</source>
        <translation>Testo di una riga</translation>
    </message>
    <message>
        <source>Text style</source>
        <translation>Stile di testo</translation>
    </message>
    <message>
        <source>Texts to a paragraph</source>
        <translation>Testi in paragrafo</translation>
    </message>
    <message>
        <source>Thaw all</source>
        <translation>Scongela tutti</translation>
    </message>
    <message>
        <source>The viewport that is worked through shows a scale of 1:1</source>
        <translation>La finestra in cui si lavora mostra una scala di 1:1</translation>
    </message>
    <message>
        <source>The viewport that is worked through shows a scale of 1:10</source>
        <translation>La finestra in cui si lavora mostra una scala di 1:10</translation>
    </message>
    <message>
        <source>The viewport that is worked through shows a scale of 1:100</source>
        <translation>La finestra in cui si lavora mostra una scala di 1:100</translation>
    </message>
    <message>
        <source>The viewport that is worked through shows a scale of 1:2</source>
        <translation>La finestra in cui si lavora mostra una scala di 1:2</translation>
    </message>
    <message>
        <source>The viewport that is worked through shows a scale of 1:20</source>
        <translation>La finestra in cui si lavora mostra una scala di 1:20</translation>
    </message>
    <message>
        <source>The viewport that is worked through shows a scale of 1:5</source>
        <translation>La finestra in cui si lavora mostra una scala di 1:5</translation>
    </message>
    <message>
        <source>The viewport that is worked through shows a scale of 1:50</source>
        <translation>La finestra in cui si lavora mostra una scala di 1:50</translation>
    </message>
    <message>
        <source>Times</source>
        <translation>Tempi</translation>
    </message>
    <message>
        <source>To the current layer</source>
        <translation>Al layer corrente</translation>
    </message>
    <message>
        <source>To the layer of another one</source>
        <translation>Al layer di un altro</translation>
    </message>
    <message>
        <source>Trim</source>
        <translation>Taglia</translation>
    </message>
    <message>
        <source>Turn all on</source>
        <translation>Attiva tutti</translation>
    </message>
    <message>
        <source>Turn off</source>
        <translation>Disattiva</translation>
    </message>
    <message>
        <source>Units</source>
        <translation>Unità</translation>
    </message>
    <message>
        <source>Unlock</source>
        <translation>Sblocca</translation>
    </message>
    <message>
        <source>Update expressions of texts</source>
        <translation>Aggiorna espressioni dei testi</translation>
    </message>
    <message>
        <source>User coordinate system</source>
        <translation>Sistema di coordinate utente</translation>
    </message>
    <message>
        <source>Viewports of &amp;a sheet</source>
        <translation>Finestre di &amp;un layout</translation>
    </message>
    <message>
        <source>W&amp;hite ground</source>
        <translation>Sfondo &amp;bianco</translation>
    </message>
    <message>
        <source>With one end</source>
        <translation>Con un estremo</translation>
    </message>
    <message>
        <source>Without ends</source>
        <translation>Senza fine</translation>
    </message>
    <message>
        <source>Write a block to a file</source>
        <translation>Scrivi un blocco su file</translation>
    </message>
    <message>
        <source>Writes down what you do as a session that plays</source>
        <translation>Annota ciò che si fa come una sessione riproducibile</translation>
    </message>
    <message>
        <source>Writes what is drawn as a page</source>
        <translation>Scrive ciò che è disegnato come pagina</translation>
    </message>
    <message>
        <source>Writes what is drawn as a picture</source>
        <translation>Scrive ciò che è disegnato come immagine</translation>
    </message>
    <message>
        <source>Writes what is drawn as lines and areas</source>
        <translation>Scrive ciò che è disegnato come linee e aree</translation>
    </message>
    <message>
        <source>Zoom &amp;extents</source>
        <translation>Zoom &amp;estensioni</translation>
    </message>
    <message>
        <source>Zoom &amp;in</source>
        <translation>&amp;Ingrandisci</translation>
    </message>
    <message>
        <source>Zoom &amp;out</source>
        <translation>&amp;Riduci</translation>
    </message>
    <message>
        <source>Zoom &amp;window</source>
        <translation>Zoom &amp;finestra</translation>
    </message>
    <message>
        <source>Draw</source>
        <translation>Disegno</translation>
    </message>
    <message>
        <source>Modify</source>
        <translation>Modifica</translation>
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
        <translation>Proprietà</translation>
    </message>
    <message>
        <source>Layers</source>
        <translation>Layer</translation>
    </message>
    <message>
        <source>Results</source>
        <translation>Risultati</translation>
    </message>
</context>
<context>
    <name>Playback</name>
    <message>
        <source>nobody is there to answer %1</source>
        <translation>nessuno può rispondere a %1</translation>
    </message>
    <message>
        <source>it took longer than %1 s</source>
        <translation>ha impiegato più di %1 s</translation>
    </message>
    <message>
        <source> saying &quot;%1&quot;</source>
        <translation> che dice &quot;%1&quot;</translation>
    </message>
    <message>
        <source>${%1} is not known</source>
        <translation>${%1} non è noto</translation>
    </message>
    <message>
        <source>%1 cannot be checked</source>
        <translation>%1 non può essere selezionato</translation>
    </message>
    <message>
        <source>%1 cannot be written to</source>
        <translation>in %1 non si può scrivere</translation>
    </message>
    <message>
        <source>%1 does not take &quot;%2&quot;</source>
        <translation>%1 non accetta &quot;%2&quot;</translation>
    </message>
    <message>
        <source>%1 does not take &quot;%2&quot;; it shows &quot;%3&quot;</source>
        <translation>%1 non accetta &quot;%2&quot;; mostra &quot;%3&quot;</translation>
    </message>
    <message>
        <source>%1 has no button &quot;%2&quot;</source>
        <translation>%1 non ha un pulsante &quot;%2&quot;</translation>
    </message>
    <message>
        <source>%1 has no cell %2, %3</source>
        <translation>%1 non ha una cella %2, %3</translation>
    </message>
    <message>
        <source>%1 has no item &quot;%2&quot;; it has %3</source>
        <translation>%1 non ha un elemento &quot;%2&quot;; ha %3</translation>
    </message>
    <message>
        <source>%1 has no row &quot;%2&quot;</source>
        <translation>%1 non ha una riga &quot;%2&quot;</translation>
    </message>
    <message>
        <source>%1 has no tab &quot;%2&quot;</source>
        <translation>%1 non ha una scheda &quot;%2&quot;</translation>
    </message>
    <message>
        <source>%1 has no value to set</source>
        <translation>%1 non ha un valore da impostare</translation>
    </message>
    <message>
        <source>%1 has no widget &quot;%2&quot;; it has %3</source>
        <translation>%1 non ha un controllo &quot;%2&quot;; ha %3</translation>
    </message>
    <message>
        <source>%1 has the keyboard</source>
        <translation>%1 ha la tastiera</translation>
    </message>
    <message>
        <source>%1 is disabled</source>
        <translation>%1 è disattivato</translation>
    </message>
    <message>
        <source>%1 is no UTF-8 text</source>
        <translation>%1 non è un testo UTF-8</translation>
    </message>
    <message>
        <source>%1 is no list, table or tree</source>
        <translation>%1 non è un elenco, una tabella o un albero</translation>
    </message>
    <message>
        <source>%1 is not visible</source>
        <translation>%1 non è visibile</translation>
    </message>
    <message>
        <source>%1 is open</source>
        <translation>%1 è aperto</translation>
    </message>
    <message>
        <source>%1 is still open</source>
        <translation>%1 è ancora aperto</translation>
    </message>
    <message>
        <source>%1 is too long for a session</source>
        <translation>%1 è troppo lungo per una sessione</translation>
    </message>
    <message>
        <source>%1 stays as it is; another button of its group must be checked</source>
        <translation>%1 resta com&apos;è; occorre selezionare un altro pulsante del suo gruppo</translation>
    </message>
    <message>
        <source>%1 takes no file name</source>
        <translation>%1 non accetta un nome di file</translation>
    </message>
    <message>
        <source>%1 took &quot;%2&quot;</source>
        <translation>%1 ha preso &quot;%2&quot;</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is neither yes nor no (on, off)</source>
        <translation>&quot;%1&quot; non è né yes né no (on, off)</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no handle</source>
        <translation>&quot;%1&quot; non è un handle</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no key</source>
        <translation>&quot;%1&quot; non è un tasto</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no point; write x,y or x,y,z</source>
        <translation>&quot;%1&quot; non è un punto; scrivere x,y o x,y,z</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no whole number from 0 up</source>
        <translation>&quot;%1&quot; non è un numero intero da 0 in su</translation>
    </message>
    <message>
        <source>a quote is not closed, or text follows right behind it</source>
        <translation>le virgolette non sono chiuse, o sono seguite subito da testo</translation>
    </message>
    <message>
        <source>a view needs two corners</source>
        <translation>una vista richiede due angoli</translation>
    </message>
    <message>
        <source>cancelled at %1, </source>
        <translation>annullato a %1, </translation>
    </message>
    <message>
        <source>cannot read %1: %2</source>
        <translation>impossibile leggere %1: %2</translation>
    </message>
    <message>
        <source>cell %1, %2 of %3 cannot be written to</source>
        <translation>nella cella %1, %2 di %3 non si può scrivere</translation>
    </message>
    <message>
        <source>cell %1, %2 of %3 does not take &quot;%4&quot;</source>
        <translation>la cella %1, %2 di %3 non accetta &quot;%4&quot;</translation>
    </message>
    <message>
        <source>dialog %1</source>
        <translation>dialogo %1</translation>
    </message>
    <message>
        <source>done again, the drawing differs from what it was: %1</source>
        <translation>dopo il ripristino il disegno è diverso da com&apos;era: %1</translation>
    </message>
    <message>
        <source>drawing: only the first line says which drawing it is</source>
        <translation>drawing: solo la prima riga dice quale disegno è</translation>
    </message>
    <message>
        <source>end: no part was begun</source>
        <translation>end: nessuna parte è cominciata</translation>
    </message>
    <message>
        <source>it is disabled</source>
        <translation>è disattivato</translation>
    </message>
    <message>
        <source>it is enabled</source>
        <translation>è attivato</translation>
    </message>
    <message>
        <source>it is nil</source>
        <translation>è nil</translation>
    </message>
    <message>
        <source>it is not visible</source>
        <translation>non è visibile</translation>
    </message>
    <message>
        <source>it is visible</source>
        <translation>è visibile</translation>
    </message>
    <message>
        <source>it shows &quot;%1&quot;</source>
        <translation>mostra &quot;%1&quot;</translation>
    </message>
    <message>
        <source>it stands in front of a command or lisp</source>
        <translation>sta davanti a un comando o a lisp</translation>
    </message>
    <message>
        <source>line %1%2 (%3): </source>
        <translation>riga %1%2 (%3): </translation>
    </message>
    <message>
        <source>line %1: %2</source>
        <translation>riga %1: %2</translation>
    </message>
    <message>
        <source>line %1: the session has cases, each of which wants the drawing opened anew</source>
        <translation>riga %1: la sessione ha casi, ognuno dei quali vuole il disegno riaperto</translation>
    </message>
    <message>
        <source>no arguments</source>
        <translation>nessun argomento</translation>
    </message>
    <message>
        <source>no dialog</source>
        <translation>nessun dialogo</translation>
    </message>
    <message>
        <source>no folder was given to write to (--out)</source>
        <translation>non è stata indicata una cartella in cui scrivere (--out)</translation>
    </message>
    <message>
        <source>no program was given that reads drawings (--audit, or the environment&apos;s ORTAKIT_AUDIT)</source>
        <translation>non è stato indicato un programma che legga disegni (--audit, o ORTAKIT_AUDIT dell&apos;ambiente)</translation>
    </message>
    <message>
        <source>no prompt and no dialog is open that this could be meant for</source>
        <translation>nessuna richiesta e nessun dialogo aperto a cui potrebbe riferirsi</translation>
    </message>
    <message>
        <source>nothing has the keyboard</source>
        <translation>nulla ha la tastiera</translation>
    </message>
    <message>
        <source>nothing with a name</source>
        <translation>nulla con un nome</translation>
    </message>
    <message>
        <source>part %1, line %2</source>
        <translation>parte %1, riga %2</translation>
    </message>
    <message>
        <source>part: a part cannot be written in a part</source>
        <translation>part: una parte non può essere scritta in una parte</translation>
    </message>
    <message>
        <source>part: it has no end</source>
        <translation>part: non ha fine</translation>
    </message>
    <message>
        <source>part: the part before it has no end</source>
        <translation>part: la parte precedente non ha fine</translation>
    </message>
    <message>
        <source>part: there is a part %1 already</source>
        <translation>part: c&apos;è già una parte %1</translation>
    </message>
    <message>
        <source>play: the part %1 plays itself</source>
        <translation>play: la parte %1 riproduce se stessa</translation>
    </message>
    <message>
        <source>play: the part %1 takes %2</source>
        <translation>play: la parte %1 prende %2</translation>
    </message>
    <message>
        <source>play: the parts write too much</source>
        <translation>play: le parti scrivono troppo</translation>
    </message>
    <message>
        <source>play: there is no part %1</source>
        <translation>play: non c&apos;è una parte %1</translation>
    </message>
    <message>
        <source>play: too many parts are played one in the other</source>
        <translation>play: troppe parti vengono riprodotte l&apos;una nell&apos;altra</translation>
    </message>
    <message>
        <source>row &quot;%1&quot; of %2 cannot be checked</source>
        <translation>la riga &quot;%1&quot; di %2 non può essere selezionata</translation>
    </message>
    <message>
        <source>row &quot;%1&quot; of %2 is not visible</source>
        <translation>la riga &quot;%1&quot; di %2 non è visibile</translation>
    </message>
    <message>
        <source>something is missing at the end of the line</source>
        <translation>manca qualcosa alla fine della riga</translation>
    </message>
    <message>
        <source>the changes are &quot;%1&quot;</source>
        <translation>le modifiche sono &quot;%1&quot;</translation>
    </message>
    <message>
        <source>the drawing differs from what it was: %1</source>
        <translation>il disegno è diverso da com&apos;era: %1</translation>
    </message>
    <message>
        <source>the drawing has no entity with the handle %1</source>
        <translation>il disegno non ha un&apos;entità con l&apos;handle %1</translation>
    </message>
    <message>
        <source>the drawing is unchanged</source>
        <translation>il disegno non è cambiato</translation>
    </message>
    <message>
        <source>the drawing was changed</source>
        <translation>il disegno è cambiato</translation>
    </message>
    <message>
        <source>the error is &quot;%1&quot;</source>
        <translation>l&apos;errore è &quot;%1&quot;</translation>
    </message>
    <message>
        <source>the file does not hold it; its text is &quot;%1&quot;</source>
        <translation>il file non lo contiene; il suo testo è &quot;%1&quot;</translation>
    </message>
    <message>
        <source>the file is there</source>
        <translation>il file c&apos;è</translation>
    </message>
    <message>
        <source>the file&apos;s text is &quot;%1&quot;</source>
        <translation>il testo del file è &quot;%1&quot;</translation>
    </message>
    <message>
        <source>the files differ at byte %1: &quot;%2&quot; and &quot;%3&quot;</source>
        <translation>i file sono diversi al byte %1: &quot;%2&quot; e &quot;%3&quot;</translation>
    </message>
    <message>
        <source>the items are &quot;%1&quot;</source>
        <translation>gli elementi sono &quot;%1&quot;</translation>
    </message>
    <message>
        <source>the line goes on (it ends in a backslash), but the session ends</source>
        <translation>la riga continua (finisce con una barra rovesciata), ma la sessione finisce</translation>
    </message>
    <message>
        <source>the list went away while rows were selected</source>
        <translation>l&apos;elenco è sparito mentre si selezionavano righe</translation>
    </message>
    <message>
        <source>the menu has no entry &quot;%1&quot;; it has %2</source>
        <translation>il menu non ha una voce &quot;%1&quot;; ha %2</translation>
    </message>
    <message>
        <source>the menu&apos;s entry &quot;%1&quot; is disabled</source>
        <translation>la voce &quot;%1&quot; del menu è disattivata</translation>
    </message>
    <message>
        <source>the order of its records</source>
        <translation>l&apos;ordine dei suoi record</translation>
    </message>
    <message>
        <source>the prompt &quot;%1&quot;</source>
        <translation>la richiesta &quot;%1&quot;</translation>
    </message>
    <message>
        <source>the reader %1 does not answer</source>
        <translation>il lettore %1 non risponde</translation>
    </message>
    <message>
        <source>the reader takes no names with line feeds</source>
        <translation>il lettore non accetta nomi con ritorni a capo</translation>
    </message>
    <message>
        <source>the run before it ended without an error</source>
        <translation>l&apos;esecuzione precedente è finita senza errore</translation>
    </message>
    <message>
        <source>the run changed nothing</source>
        <translation>l&apos;esecuzione non ha modificato nulla</translation>
    </message>
    <message>
        <source>the run ended with &quot;%1&quot;</source>
        <translation>l&apos;esecuzione è finita con &quot;%1&quot;</translation>
    </message>
    <message>
        <source>the session ends while %1 is open</source>
        <translation>la sessione finisce mentre %1 è aperto</translation>
    </message>
    <message>
        <source>the session took longer than %1 s; open is %2</source>
        <translation>la sessione ha impiegato più di %1 s; è aperto %2</translation>
    </message>
    <message>
        <source>the title is &quot;%1&quot;</source>
        <translation>il titolo è &quot;%1&quot;</translation>
    </message>
    <message>
        <source>the widget went away while it was typed into</source>
        <translation>il controllo è sparito mentre vi si digitava</translation>
    </message>
    <message>
        <source>there are %1</source>
        <translation>ci sono %1</translation>
    </message>
    <message>
        <source>there is %1</source>
        <translation>c&apos;è %1</translation>
    </message>
    <message>
        <source>there is no panel &quot;%1&quot;</source>
        <translation>non c&apos;è un pannello &quot;%1&quot;</translation>
    </message>
    <message>
        <source>there is nothing to redo</source>
        <translation>non c&apos;è nulla da ripristinare</translation>
    </message>
    <message>
        <source>there is nothing to undo</source>
        <translation>non c&apos;è nulla da annullare</translation>
    </message>
    <message>
        <source>there was no run before it</source>
        <translation>non c&apos;è stata un&apos;esecuzione precedente</translation>
    </message>
    <message>
        <source>too much on the line: &quot;%1&quot;</source>
        <translation>di troppo sulla riga: &quot;%1&quot;</translation>
    </message>
    <message>
        <source>undone, the drawing differs from what it was: %1</source>
        <translation>dopo l&apos;annullamento il disegno è diverso da com&apos;era: %1</translation>
    </message>
    <message>
        <source>unknown word &quot;%1&quot;</source>
        <translation>parola sconosciuta &quot;%1&quot;</translation>
    </message>
    <message>
        <source>what cannot be read again</source>
        <translation>ciò che non può essere riletto</translation>
    </message>
    <message>
        <source>what was printed is &quot;%1&quot;</source>
        <translation>ciò che è stato stampato è &quot;%1&quot;</translation>
    </message>
</context>
<context>
    <name>Properties</name>
    <message>
        <source>General</source>
        <translation>Generale</translation>
    </message>
    <message>
        <source>Geometry</source>
        <translation>Geometria</translation>
    </message>
    <message>
        <source>Text</source>
        <translation>Testo</translation>
    </message>
    <message>
        <source>Misc</source>
        <translation>Varie</translation>
    </message>
    <message>
        <source>Color</source>
        <translation>Colore</translation>
    </message>
    <message>
        <source>Layer</source>
        <translation>Layer</translation>
    </message>
    <message>
        <source>Linetype</source>
        <translation>Tipo di linea</translation>
    </message>
    <message>
        <source>Linetype scale</source>
        <translation>Scala tipo di linea</translation>
    </message>
    <message>
        <source>Lineweight</source>
        <translation>Spessore linea</translation>
    </message>
    <message>
        <source>Thickness</source>
        <translation>Spessore</translation>
    </message>
    <message>
        <source>Text style</source>
        <translation>Stile di testo</translation>
    </message>
    <message>
        <source>Dimension style</source>
        <translation>Stile di quota</translation>
    </message>
    <message>
        <source>Of what is drawn next</source>
        <translation>Di ciò che si disegnerà</translation>
    </message>
    <message>
        <source>Property</source>
        <translation>Proprietà</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>Valore</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no color.</source>
        <translation>&quot;%1&quot; non è un colore.</translation>
    </message>
    <message>
        <source>There is no layer &quot;%1&quot;.</source>
        <translation>Non c&apos;è un layer &quot;%1&quot;.</translation>
    </message>
    <message>
        <source>There is no linetype &quot;%1&quot;.</source>
        <translation>Non c&apos;è un tipo di linea &quot;%1&quot;.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no lineweight.</source>
        <translation>&quot;%1&quot; non è uno spessore di linea.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no transparency: ByLayer, ByBlock or 0 to 90.</source>
        <translation>&quot;%1&quot; non è una trasparenza: ByLayer, ByBlock o da 0 a 90.</translation>
    </message>
    <message>
        <source>%1: the current color is one of the table.</source>
        <translation>%1: il colore corrente è uno della tabella.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no angle.</source>
        <translation>&quot;%1&quot; non è un angolo.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no number.</source>
        <translation>&quot;%1&quot; non è un numero.</translation>
    </message>
    <message>
        <source>%1: it must be more than 0.</source>
        <translation>%1: deve essere maggiore di 0.</translation>
    </message>
    <message>
        <source>%1: it must not be 0.</source>
        <translation>%1: non deve essere 0.</translation>
    </message>
    <message>
        <source>*varies*</source>
        <translation>*varie*</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no whole number.</source>
        <translation>&quot;%1&quot; non è un numero intero.</translation>
    </message>
    <message>
        <source>Other...</source>
        <translation>Altro...</translation>
    </message>
    <message>
        <source>Transparency</source>
        <translation>Trasparenza</translation>
    </message>
    <message>
        <source>Plot style</source>
        <translation>Stile di stampa</translation>
    </message>
    <message>
        <source>Corner 1</source>
        <translation>Vertice 1</translation>
    </message>
    <message>
        <source>Corner 2</source>
        <translation>Vertice 2</translation>
    </message>
    <message>
        <source>Corner 3</source>
        <translation>Vertice 3</translation>
    </message>
    <message>
        <source>Corner 4</source>
        <translation>Vertice 4</translation>
    </message>
    <message>
        <source>Center</source>
        <translation>Centro</translation>
    </message>
    <message>
        <source>Radius</source>
        <translation>Raggio</translation>
    </message>
    <message>
        <source>Start angle</source>
        <translation>Angolo iniziale</translation>
    </message>
    <message>
        <source>End angle</source>
        <translation>Angolo finale</translation>
    </message>
    <message>
        <source>Start</source>
        <translation>Inizio</translation>
    </message>
    <message>
        <source>End</source>
        <translation>Fine</translation>
    </message>
    <message>
        <source>Total angle</source>
        <translation>Angolo totale</translation>
    </message>
    <message>
        <source>Arc length</source>
        <translation>Lunghezza arco</translation>
    </message>
    <message>
        <source>Area</source>
        <translation>Area</translation>
    </message>
    <message>
        <source>Height</source>
        <translation>Altezza</translation>
    </message>
    <message>
        <source>Position</source>
        <translation>Posizione</translation>
    </message>
    <message>
        <source>Prompt</source>
        <translation>Richiesta</translation>
    </message>
    <message>
        <source>Rotation</source>
        <translation>Rotazione</translation>
    </message>
    <message>
        <source>Tag</source>
        <translation>Etichetta</translation>
    </message>
    <message>
        <source>Diameter</source>
        <translation>Diametro</translation>
    </message>
    <message>
        <source>Circumference</source>
        <translation>Circonferenza</translation>
    </message>
    <message>
        <source>Text override</source>
        <translation>Testo sostitutivo</translation>
    </message>
    <message>
        <source>Measurement</source>
        <translation>Misura</translation>
    </message>
    <message>
        <source>Major axis</source>
        <translation>Asse maggiore</translation>
    </message>
    <message>
        <source>Radius ratio</source>
        <translation>Rapporto raggi</translation>
    </message>
    <message>
        <source>Start parameter</source>
        <translation>Parametro iniziale</translation>
    </message>
    <message>
        <source>End parameter</source>
        <translation>Parametro finale</translation>
    </message>
    <message>
        <source>Length</source>
        <translation>Lunghezza</translation>
    </message>
    <message>
        <source>Angle</source>
        <translation>Angolo</translation>
    </message>
    <message>
        <source>Pattern</source>
        <translation>Modello</translation>
    </message>
    <message>
        <source>Scale</source>
        <translation>Scala</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Nome</translation>
    </message>
    <message>
        <source>Scale X</source>
        <translation>Scala X</translation>
    </message>
    <message>
        <source>Scale Y</source>
        <translation>Scala Y</translation>
    </message>
    <message>
        <source>Scale Z</source>
        <translation>Scala Z</translation>
    </message>
    <message>
        <source>Delta</source>
        <translation>Delta</translation>
    </message>
    <message>
        <source>Global width</source>
        <translation>Larghezza globale</translation>
    </message>
    <message>
        <source>Elevation</source>
        <translation>Elevazione</translation>
    </message>
    <message>
        <source>Vertices</source>
        <translation>Vertici</translation>
    </message>
    <message>
        <source>Contents</source>
        <translation>Contenuto</translation>
    </message>
    <message>
        <source>Style</source>
        <translation>Stile</translation>
    </message>
    <message>
        <source>Location</source>
        <translation>Posizione</translation>
    </message>
    <message>
        <source>Attachment</source>
        <translation>Associazione</translation>
    </message>
    <message>
        <source>Width</source>
        <translation>Larghezza</translation>
    </message>
    <message>
        <source>Direction</source>
        <translation>Direzione</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Dimensione</translation>
    </message>
    <message>
        <source>Degree</source>
        <translation>Grado</translation>
    </message>
    <message>
        <source>Alignment point</source>
        <translation>Punto di allineamento</translation>
    </message>
    <message>
        <source>Horizontal mode</source>
        <translation>Modo orizzontale</translation>
    </message>
    <message>
        <source>Obliquing</source>
        <translation>Inclinazione</translation>
    </message>
    <message>
        <source>Vertical mode</source>
        <translation>Modo verticale</translation>
    </message>
    <message>
        <source>Width factor</source>
        <translation>Fattore di larghezza</translation>
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
        <translation>Messaggio</translation>
    </message>
    <message>
        <source>All files (*)</source>
        <translation>Tutti i file (*)</translation>
    </message>
    <message>
        <source>Choose a folder</source>
        <translation>Scegli una cartella</translation>
    </message>
</context>
<context>
    <name>RenderReport</name>
    <message>
        <source>%1 drawn</source>
        <translation>%1 disegnati</translation>
    </message>
    <message>
        <source>%1 invisible</source>
        <translation>%1 invisibili</translation>
    </message>
    <message>
        <source>simplified</source>
        <translation>semplificato</translation>
    </message>
    <message>
        <source>skipped</source>
        <translation>saltato</translation>
    </message>
    <message>
        <source>not drawn</source>
        <translation>non disegnato</translation>
    </message>
    <message>
        <source>drawn in part</source>
        <translation>disegnato in parte</translation>
    </message>
    <message>
        <source>cut short: there is more than is drawn in one go</source>
        <translation>interrotto: c&apos;è più di quanto si disegni in una volta</translation>
    </message>
</context>
<context>
    <name>Settings</name>
    <message>
        <source>Window</source>
        <translation>Finestra</translation>
    </message>
    <message>
        <source>Style of windows</source>
        <translation>Stile delle finestre</translation>
    </message>
    <message>
        <source>0=Light|1=Dark</source>
        <translation>0=Chiaro|1=Scuro</translation>
    </message>
    <message>
        <source>The colours of windows and dialogs</source>
        <translation>I colori di finestre e dialoghi</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>Lingua</translation>
    </message>
    <message>
        <source>0=System|1=English|2=Deutsch|3=Français|4=Español|5=Italiano</source>
        <translation>0=Sistema|1=English|2=Deutsch|3=Français|4=Español|5=Italiano</translation>
    </message>
    <message>
        <source>Of windows, dialogs and prompts; it counts from the next start</source>
        <translation>Di finestre, dialoghi e richieste; vale dal prossimo avvio</translation>
    </message>
    <message>
        <source>Ground of drawings</source>
        <translation>Sfondo dei disegni</translation>
    </message>
    <message>
        <source>0=Black|1=White</source>
        <translation>0=Nero|1=Bianco</translation>
    </message>
    <message>
        <source>What drawings lie on</source>
        <translation>Su che cosa stanno i disegni</translation>
    </message>
    <message>
        <source>Length of the cross-hair, percent</source>
        <translation>Lunghezza del puntatore a croce, percento</translation>
    </message>
    <message>
        <source>Right button</source>
        <translation>Tasto destro</translation>
    </message>
    <message>
        <source>File dialogs</source>
        <translation>Dialoghi dei file</translation>
    </message>
    <message>
        <source>Attributes of a block are asked for in a dialog</source>
        <translation>Gli attributi di un blocco vengono chiesti in un dialogo</translation>
    </message>
    <message>
        <source>Snap</source>
        <translation>Snap</translation>
    </message>
    <message>
        <source>End points</source>
        <translation>Punti finali</translation>
    </message>
    <message>
        <source>Middle points</source>
        <translation>Punti medi</translation>
    </message>
    <message>
        <source>Centres</source>
        <translation>Centri</translation>
    </message>
    <message>
        <source>Nodes</source>
        <translation>Nodi</translation>
    </message>
    <message>
        <source>Quadrants</source>
        <translation>Quadranti</translation>
    </message>
    <message>
        <source>Intersections</source>
        <translation>Intersezioni</translation>
    </message>
    <message>
        <source>Insertion points</source>
        <translation>Punti di inserimento</translation>
    </message>
    <message>
        <source>Perpendicular</source>
        <translation>Perpendicolare</translation>
    </message>
    <message>
        <source>Tangent</source>
        <translation>Tangente</translation>
    </message>
    <message>
        <source>Nearest</source>
        <translation>Più vicino</translation>
    </message>
    <message>
        <source>Reach of snaps, pixels</source>
        <translation>Portata degli snap, pixel</translation>
    </message>
    <message>
        <source>Ortho</source>
        <translation>Orto</translation>
    </message>
    <message>
        <source>Grid shown</source>
        <translation>Griglia mostrata</translation>
    </message>
    <message>
        <source>Snap to the grid</source>
        <translation>Snap alla griglia</translation>
    </message>
    <message>
        <source>Typed coordinates and snaps</source>
        <translation>Coordinate digitate e snap</translation>
    </message>
    <message>
        <source>0=Snaps move typed points|1=Typed points stay|2=Typed points stay, but in scripts</source>
        <translation>0=Gli snap spostano i punti digitati|1=I punti digitati restano|2=Restano, tranne negli script</translation>
    </message>
    <message>
        <source>Display</source>
        <translation>Visualizzazione</translation>
    </message>
    <message>
        <source>Lineweights</source>
        <translation>Spessori di linea</translation>
    </message>
    <message>
        <source>Lineweight of &quot;Default&quot;, hundredths of a millimetre</source>
        <translation>Spessore di linea di &quot;Default&quot;, centesimi di millimetro</translation>
    </message>
    <message>
        <source>Areas are filled</source>
        <translation>Le aree vengono riempite</translation>
    </message>
    <message>
        <source>Texts as boxes</source>
        <translation>Testi come riquadri</translation>
    </message>
    <message>
        <source>Frames of images</source>
        <translation>Cornici di immagini</translation>
    </message>
    <message>
        <source>0=Hidden|1=Shown and plotted|2=Shown only</source>
        <translation>0=Nascoste|1=Mostrate e stampate|2=Solo mostrate</translation>
    </message>
    <message>
        <source>Frames of masks</source>
        <translation>Cornici di maschere</translation>
    </message>
    <message>
        <source>Scale of linetypes</source>
        <translation>Scala dei tipi di linea</translation>
    </message>
    <message>
        <source>Font in place of missing ones</source>
        <translation>Font al posto di quelli mancanti</translation>
    </message>
    <message>
        <source>Selection</source>
        <translation>Selezione</translation>
    </message>
    <message>
        <source>Choose first, then the command</source>
        <translation>Prima la scelta, poi il comando</translation>
    </message>
    <message>
        <source>What is picked is added</source>
        <translation>Ciò che si sceglie si aggiunge</translation>
    </message>
    <message>
        <source>0=With Shift only|1=Always|2=Always, and stays chosen</source>
        <translation>0=Solo con Maiusc|1=Sempre|2=Sempre, e resta scelto</translation>
    </message>
    <message>
        <source>Groups are chosen whole</source>
        <translation>I gruppi vengono scelti interi</translation>
    </message>
    <message>
        <source>Hatches are chosen with their boundaries</source>
        <translation>I tratteggi vengono scelti con i contorni</translation>
    </message>
    <message>
        <source>Size of the pick box, pixels</source>
        <translation>Dimensione della casella di selezione, pixel</translation>
    </message>
    <message>
        <source>Chosen entities are marked</source>
        <translation>Le entità scelte vengono evidenziate</translation>
    </message>
    <message>
        <source>Marks under the pointer while nothing runs</source>
        <translation>Evidenzia sotto il puntatore quando nulla è in corso</translation>
    </message>
    <message>
        <source>Marks under the pointer while a command asks</source>
        <translation>Evidenzia sotto il puntatore quando un comando chiede</translation>
    </message>
    <message>
        <source>Grips</source>
        <translation>Grip</translation>
    </message>
    <message>
        <source>0=None|1=Shown|2=Shown, of segments too</source>
        <translation>0=Nessuno|1=Mostrati|2=Mostrati, anche dei segmenti</translation>
    </message>
    <message>
        <source>Size of grips, pixels</source>
        <translation>Dimensione dei grip, pixel</translation>
    </message>
    <message>
        <source>No grips beyond so many entities</source>
        <translation>Nessun grip oltre questo numero di entità</translation>
    </message>
    <message>
        <source>Units</source>
        <translation>Unità</translation>
    </message>
    <message>
        <source>Lengths</source>
        <translation>Lunghezze</translation>
    </message>
    <message>
        <source>1=Scientific|2=Decimal|3=Engineering|4=Architectural|5=Fractional</source>
        <translation>1=Scientifico|2=Decimale|3=Ingegneria|4=Architettonico|5=Frazionario</translation>
    </message>
    <message>
        <source>Places of lengths</source>
        <translation>Decimali delle lunghezze</translation>
    </message>
    <message>
        <source>Angles</source>
        <translation>Angoli</translation>
    </message>
    <message>
        <source>0=Degrees|1=Degrees, minutes, seconds|2=Grads|3=Radians|4=Surveyor&apos;s units</source>
        <translation>0=Gradi|1=Gradi, primi, secondi|2=Centesimali|3=Radianti|4=Unità topografiche</translation>
    </message>
    <message>
        <source>Places of angles</source>
        <translation>Decimali degli angoli</translation>
    </message>
    <message>
        <source>A drawing unit is</source>
        <translation>Un&apos;unità disegno è</translation>
    </message>
    <message>
        <source>0=Not said|1=An inch|2=A foot|4=A millimetre|5=A centimetre|6=A metre|7=A kilometre</source>
        <translation>0=Non indicata|1=Un pollice|2=Un piede|4=Un millimetro|5=Un centimetro|6=Un metro|7=Un chilometro</translation>
    </message>
    <message>
        <source>Saving</source>
        <translation>Salvataggio</translation>
    </message>
    <message>
        <source>A backup is kept of what is saved over</source>
        <translation>Si conserva un backup di ciò che si sovrascrive</translation>
    </message>
    <message>
        <source>Minutes between saves by itself</source>
        <translation>Minuti fra i salvataggi automatici</translation>
    </message>
    <message>
        <source>External references tell of changes</source>
        <translation>I riferimenti esterni segnalano modifiche</translation>
    </message>
    <message>
        <source>0=No|1=With a mark|2=With a message</source>
        <translation>0=No|1=Con un segno|2=Con un messaggio</translation>
    </message>
    <message>
        <source>Lisp</source>
        <translation>Lisp</translation>
    </message>
    <message>
        <source>Programs loaded with each drawing</source>
        <translation>Programmi caricati con ogni disegno</translation>
    </message>
    <message>
        <source>Full paths, between semicolons, in this order; they count from the next drawing on</source>
        <translation>Percorsi completi, separati da punto e virgola, in quest&apos;ordine; valgono dal prossimo disegno</translation>
    </message>
    <message>
        <source>Most memory of programs, MB</source>
        <translation>Memoria massima dei programmi, MB</translation>
    </message>
    <message>
        <source>What programs do is shown</source>
        <translation>Viene mostrato ciò che fanno i programmi</translation>
    </message>
    <message>
        <source>Folders and trust</source>
        <translation>Cartelle e attendibilità</translation>
    </message>
    <message>
        <source>Folders whose programs may run</source>
        <translation>Cartelle i cui programmi possono essere eseguiti</translation>
    </message>
    <message>
        <source>Folders whose files drawings may name</source>
        <translation>Cartelle i cui file possono essere nominati dai disegni</translation>
    </message>
</context>
<context>
    <name>SnapMenu</name>
    <message>
        <source>&amp;Endpoint</source>
        <translation>Punto &amp;finale</translation>
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
        <translation>&amp;Quadrante</translation>
    </message>
    <message>
        <source>&amp;Intersection</source>
        <translation>&amp;Intersezione</translation>
    </message>
    <message>
        <source>&amp;Apparent intersection</source>
        <translation>Intersezione &amp;apparente</translation>
    </message>
    <message>
        <source>E&amp;xtension</source>
        <translation>&amp;Estensione</translation>
    </message>
    <message>
        <source>In&amp;sertion point</source>
        <translation>In&amp;serimento</translation>
    </message>
    <message>
        <source>&amp;Perpendicular</source>
        <translation>&amp;Perpendicolare</translation>
    </message>
    <message>
        <source>&amp;Tangent</source>
        <translation>&amp;Tangente</translation>
    </message>
    <message>
        <source>Nea&amp;rest</source>
        <translation>Più &amp;vicino</translation>
    </message>
    <message>
        <source>&amp;None</source>
        <translation>&amp;Nessuno</translation>
    </message>
    <message>
        <source>Mid&amp;way between two points</source>
        <translation>Punto medio fra &amp;due punti</translation>
    </message>
    <message>
        <source>&amp;From a point</source>
        <translation>Da &amp;un punto</translation>
    </message>
</context>
<context>
    <name>Suggestions</name>
    <message>
        <source>command of a program</source>
        <translation>comando di un programma</translation>
    </message>
</context>
<context>
    <name>TrustQuestion</name>
    <message>
        <source>&amp;Load once</source>
        <translation>&amp;Carica una volta</translation>
    </message>
    <message>
        <source>&amp;Trust this folder</source>
        <translation>Considera attendi&amp;bile la cartella</translation>
    </message>
    <message>
        <source>Load this program? It can do whatever you can.</source>
        <translation>Caricare questo programma? Può fare tutto ciò che può fare l&apos;utente.</translation>
    </message>
</context>
<context>
    <name>Uses</name>
    <message>
        <source>%1 takes %2 from %3 to %4, not &quot;%5&quot;</source>
        <translation>%1 prende %2 da %3 a %4, non &quot;%5&quot;</translation>
    </message>
    <message>
        <source>%1 is %2, not &quot;%3&quot;</source>
        <translation>%1 è %2, non &quot;%3&quot;</translation>
    </message>
    <message>
        <source>or</source>
        <translation>o</translation>
    </message>
    <message>
        <source>%1 has no meaning here</source>
        <translation>%1 qui non ha significato</translation>
    </message>
    <message>
        <source>there is no option %1%2</source>
        <translation>non c&apos;è un&apos;opzione %1%2</translation>
    </message>
    <message>
        <source>%1 needs a value</source>
        <translation>%1 richiede un valore</translation>
    </message>
    <message>
        <source>%1 takes no value</source>
        <translation>%1 non accetta un valore</translation>
    </message>
    <message>
        <source>there is no command %1%2</source>
        <translation>non c&apos;è un comando %1%2</translation>
    </message>
    <message>
        <source>convert needs two files</source>
        <translation>convert richiede due file</translation>
    </message>
    <message>
        <source>the sheet of a layout as its page setup has it; &quot;model&quot; for the page of model space; &quot;all&quot; for every sheet: a page each in a pdf, a file each as png and svg, with its name: OUT-NAME.png</source>
        <translation>il foglio di un layout secondo la sua impostazione di pagina; &quot;model&quot; per la pagina dello spazio modello; &quot;all&quot; per tutti i fogli: una pagina ciascuno in un pdf, un file ciascuno come png e svg, con il suo nome: OUT-NAME.png</translation>
    </message>
    <message>
        <source>another sheet, on which everything is to be seen: A0 to A6, B0 to B6, ANSI-A to ANSI-E, ARCH-A to ARCH-E1 or millimetres as 420x297; -landscape or -portrait behind it turns it</source>
        <translation>un altro foglio, su cui si vedrà tutto: da A0 a A6, da B0 a B6, da ANSI-A ad ANSI-E, da ARCH-A ad ARCH-E1 o millimetri come 420x297; -landscape o -portrait dopo lo gira</translation>
    </message>
    <message>
        <source>millimetres on the sheet to drawing units, in place of what the page says or as fits</source>
        <translation>millimetri sul foglio per unità disegno, al posto di ciò che dice la pagina o dell&apos;adattamento</translation>
    </message>
    <message>
        <source>show what lies between these corners, in drawing units</source>
        <translation>mostra ciò che sta fra questi angoli, in unità disegno</translation>
    </message>
    <message>
        <source>png, svg: so many pixels, 1 to 16000 each way; a sheet goes into their middle</source>
        <translation>png, svg: tanti pixel, da 1 a 16000 per verso; un foglio va al loro centro</translation>
    </message>
    <message>
        <source>png, svg: pixels an inch of the sheet</source>
        <translation>png, svg: pixel per pollice del foglio</translation>
    </message>
    <message>
        <source>what it lies on</source>
        <translation>su che cosa sta</translation>
    </message>
    <message>
        <source>only layers whose names match, as in a layer filter: &quot;walls,door*&quot;</source>
        <translation>solo layer i cui nomi corrispondono, come in un filtro dei layer: &quot;walls,door*&quot;</translation>
    </message>
    <message>
        <source>pdf, svg: texts as areas, or as text that can be searched</source>
        <translation>pdf, svg: testi come aree, o come testo in cui si può cercare</translation>
    </message>
    <message>
        <source>a table of plot styles (ctb, stb) in place of what the page names; &quot;none&quot; for none. Without a file there are monochrome, grayscale and screening 25%, 50%, 75%, 100%</source>
        <translation>una tabella di stili di stampa (ctb, stb) al posto di quella nominata dalla pagina; &quot;none&quot; per nessuna. Senza file ci sono monochrome, grayscale e screening 25%, 50%, 75%, 100%</translation>
    </message>
    <message>
        <source>all lines as thin as can be</source>
        <translation>tutte le linee più sottili possibile</translation>
    </message>
    <message>
        <source>the most it may take; OUT stays as it was when it takes longer</source>
        <translation>il tempo massimo; OUT resta com&apos;era se ci vuole di più</translation>
    </message>
    <message>
        <source>no limit</source>
        <translation>nessun limite</translation>
    </message>
    <message>
        <source>write a DXF file in the binary form; without it, as text</source>
        <translation>scrivi un file DXF in forma binaria; senza, come testo</translation>
    </message>
    <message>
        <source>open a damaged IN as far as it is sound, and tell on standard error what was dropped; OUT must be another file</source>
        <translation>apri un IN danneggiato per quanto è integro, e indica sullo standard error ciò che è stato scartato; OUT deve essere un altro file</translation>
    </message>
    <message>
        <source>writes a drawing as DXF, PNG, SVG or PDF</source>
        <translation>scrive un disegno come DXF, PNG, SVG o PDF</translation>
    </message>
    <message>
        <source>the drawing</source>
        <translation>il disegno</translation>
    </message>
    <message>
        <source>the file to write, as what its extension says</source>
        <translation>il file da scrivere, secondo la sua estensione</translation>
    </message>
    <message>
        <source>Opens a drawing and writes it as what the extension of OUT says: dxf, png, svg or pdf. What a picture does not show, or only in part, is told on standard error, by type.</source>
        <translation>Apre un disegno e lo scrive secondo l&apos;estensione di OUT: dxf, png, svg o pdf. Ciò che un&apos;immagine non mostra, o solo in parte, viene indicato sullo standard error, per tipo.</translation>
    </message>
    <message>
        <source>Pictures</source>
        <translation>Immagini</translation>
    </message>
    <message>
        <source>Without the options of a sheet, png and svg show all of model space in 1600 by 1200 pixels, with the lineweights that it would have on a sheet 297 mm long; pdf shows it on A4.</source>
        <translation>Senza le opzioni di un foglio, png e svg mostrano tutto lo spazio modello in 1600 per 1200 pixel, con gli spessori di linea che avrebbe su un foglio lungo 297 mm; pdf lo mostra su A4.</translation>
    </message>
    <message>
        <source>%1 to %2</source>
        <translation>da %1 a %2</translation>
    </message>
    <message>
        <source>default: %1</source>
        <translation>default: %1</translation>
    </message>
    <message>
        <source>Exit status: 0 done, 1 a tool, expression or session failed or passed a limit, 2 wrong use, 3 part of a batch failed or, with --strict, of a picture is missing, 4 a file could not be read or written, 5 a picture was written, but there was more to show than is drawn in one go: a few lines of a drawing can make millions.</source>
        <translation>Stato di uscita: 0 fatto, 1 uno strumento, un&apos;espressione o una sessione è fallita o ha superato un limite, 2 uso errato, 3 parte di un lotto è fallita o, con --strict, manca parte di un&apos;immagine, 4 un file non è stato letto o scritto, 5 un&apos;immagine è stata scritta, ma c&apos;era più da mostrare di quanto si disegni in una volta: poche righe di un disegno possono farne milioni.</translation>
    </message>
    <message>
        <source>Usage: </source>
        <translation>Uso: </translation>
    </message>
    <message>
        <source>Commands:</source>
        <translation>Comandi:</translation>
    </message>
    <message>
        <source>Drafting tools without their dialogs:</source>
        <translation>Strumenti di disegno senza i loro dialoghi:</translation>
    </message>
    <message>
        <source>Options for every use:</source>
        <translation>Opzioni per ogni uso:</translation>
    </message>
    <message>
        <source>there is no kind of finding &quot;%1&quot;</source>
        <translation>non c&apos;è un genere di segnalazione &quot;%1&quot;</translation>
    </message>
    <message>
        <source>lisp needs at least one file for this</source>
        <translation>per questo lisp richiede almeno un file</translation>
    </message>
    <message>
        <source>--json, --only and --except go with --check</source>
        <translation>--json, --only ed --except vanno con --check</translation>
    </message>
    <message>
        <source>--filter and --junit go with --test</source>
        <translation>--filter e --junit vanno con --test</translation>
    </message>
    <message>
        <source>--profile goes with programs that are run</source>
        <translation>--profile va con programmi che vengono eseguiti</translation>
    </message>
    <message>
        <source>--check and --test do not go together</source>
        <translation>--check e --test non vanno insieme</translation>
    </message>
    <message>
        <source>Loads the Lisp files in order and prints what they print. &quot;-&quot; reads expressions from standard input. Without --drawing a new drawing is open. Nothing asks a person: prompts are cancelled, and a dialog ends the program with status 1.

What these files load must lie in a trusted folder: the installation, the folder of the user&apos;s data, those that the system variable TRUSTEDPATHS lists, and those named here.</source>
        <translation>Carica i file Lisp in ordine e stampa ciò che stampano. &quot;-&quot; legge espressioni dallo standard input. Senza --drawing è aperto un nuovo disegno. Nulla chiede a una persona: le richieste vengono annullate, e un dialogo termina il programma con stato 1.

Ciò che questi file caricano deve stare in una cartella attendibile: l&apos;installazione, la cartella dei dati dell&apos;utente, quelle elencate dalla variabile di sistema TRUSTEDPATHS e quelle nominate qui.</translation>
    </message>
    <message>
        <source>the drawing to work on</source>
        <translation>il disegno su cui lavorare</translation>
    </message>
    <message>
        <source>a new one</source>
        <translation>uno nuovo</translation>
    </message>
    <message>
        <source>the most all of it may take</source>
        <translation>il tempo massimo per tutto</translation>
    </message>
    <message>
        <source>write files as well that another program has open, or has changed since they were opened</source>
        <translation>scrivi anche file che un altro programma tiene aperti, o ha modificato da quando sono stati aperti</translation>
    </message>
    <message>
        <source>tell on standard error where the time went, function by function</source>
        <translation>indica sullo standard error dove è andato il tempo, funzione per funzione</translation>
    </message>
    <message>
        <source>write that as folded stacks as well, of which flame graphs are drawn</source>
        <translation>scrivilo anche come stack compressi, da cui si disegnano i flame graph</translation>
    </message>
    <message>
        <source>Without a file</source>
        <translation>Senza file</translation>
    </message>
    <message>
        <source>It is a prompt: expressions are evaluated as they are typed, and their values printed. Tab completes names, &quot;help NAME&quot; or &quot;?NAME&quot; tells about one, Ctrl+C stops what runs, Ctrl+D ends. What is piped in is evaluated form by form; errors go to standard error with their line, the forms behind one are evaluated all the same, and the status is 1 then.</source>
        <translation>È un interprete interattivo: le espressioni vengono valutate mentre si digitano, e i loro valori stampati. Tab completa i nomi, &quot;help NAME&quot; o &quot;?NAME&quot; informa su uno, Ctrl+C ferma ciò che è in corso, Ctrl+D termina. Ciò che arriva da una pipe viene valutato forma per forma; gli errori vanno sullo standard error con la loro riga, le forme successive vengono valutate comunque, e lo stato allora è 1.</translation>
    </message>
    <message>
        <source>With --check</source>
        <translation>Con --check</translation>
    </message>
    <message>
        <source>The files are read and not run, and what looks wrong in them is told, a line each: FILE:LINE:COLUMN: error or warning: what it is [KIND]. What one of them defines the others know. Ends with status 1 when something was told.</source>
        <translation>I file vengono letti e non eseguiti, e viene indicato ciò che in essi sembra errato, una riga ciascuno: FILE:LINE:COLUMN: error o warning: che cos&apos;è [KIND]. Ciò che uno definisce è noto agli altri. Termina con stato 1 se è stato indicato qualcosa.</translation>
    </message>
    <message>
        <source>read the files and tell what looks wrong in them</source>
        <translation>leggi i file e indica ciò che sembra errato</translation>
    </message>
    <message>
        <source>tell it as one line of JSON: findings, each with file, line, column, severity, kind and message, and the numbers of errors and warnings</source>
        <translation>indicalo come una riga di JSON: findings, ognuno con file, line, column, severity, kind e message, e i numeri di errori e avvisi</translation>
    </message>
    <message>
        <source>tell only these kinds</source>
        <translation>indica solo questi generi</translation>
    </message>
    <message>
        <source>tell all kinds but these</source>
        <translation>indica tutti i generi tranne questi</translation>
    </message>
    <message>
        <source>With --test</source>
        <translation>Con --test</translation>
    </message>
    <message>
        <source>The tests that the files define by (deftest name form...) are run, each in a new drawing (or DRAWING) into which its file was loaded before, and told on standard output in version 14 of the Test Anything Protocol. The time limit is that of each test. Ends with status 1 when one failed or there was none.</source>
        <translation>I test che i file definiscono con (deftest name form...) vengono eseguiti, ognuno in un nuovo disegno (o DRAWING) in cui prima è stato caricato il suo file, e riportati sullo standard output nella versione 14 del Test Anything Protocol. Il limite di tempo è quello di ogni test. Termina con stato 1 se uno è fallito o non ce n&apos;era nessuno.</translation>
    </message>
    <message>
        <source>run the tests that the files define</source>
        <translation>esegui i test che i file definiscono</translation>
    </message>
    <message>
        <source>run only tests of such names: * stands for any characters, ? for one</source>
        <translation>esegui solo test con tali nomi: * sta per qualsiasi carattere, ? per uno</translation>
    </message>
    <message>
        <source>write a report in JUnit&apos;s XML instead</source>
        <translation>scrivi invece un rapporto nell&apos;XML di JUnit</translation>
    </message>
    <message>
        <source>runs, checks or tests Lisp files, or is a prompt for Lisp</source>
        <translation>esegue, controlla o prova file Lisp, o è un interprete interattivo di Lisp</translation>
    </message>
    <message>
        <source>a Lisp file, or - for standard input</source>
        <translation>un file Lisp, o - per lo standard input</translation>
    </message>
    <message>
        <source>names takes no word</source>
        <translation>names non accetta parole</translation>
    </message>
    <message>
        <source>help takes one command</source>
        <translation>help accetta un comando</translation>
    </message>
    <message>
        <source>lists what Lisp programs find here</source>
        <translation>elenca ciò che i programmi Lisp trovano qui</translation>
    </message>
    <message>
        <source>Prints what Lisp programs find here in a new drawing, a line each with tabs between its fields, sorted:

  function  NAME  ARGUMENTS  WHAT IT GIVES
  command   NAME  -          WHAT IT DOES
  variable  NAME  KIND       WHAT IT IS

Documents are made from this, and scripts/demand compares it with what programs ask for.</source>
        <translation>Stampa ciò che i programmi Lisp trovano qui in un nuovo disegno, una riga ciascuno con tabulazioni fra i campi, ordinato:

  function  NAME  ARGUMENTS  CHE COSA DÀ
  command   NAME  -          CHE COSA FA
  variable  NAME  KIND       CHE COS&apos;È

Da questo si ricavano documenti, e scripts/demand lo confronta con ciò che i programmi chiedono.</translation>
    </message>
    <message>
        <source>tells about a command</source>
        <translation>informa su un comando</translation>
    </message>
    <message>
        <source>which one; without it, the program as a whole</source>
        <translation>quale; senza, il programma nel suo insieme</translation>
    </message>
    <message>
        <source>The same as --help behind the command.</source>
        <translation>Lo stesso di --help dopo il comando.</translation>
    </message>
    <message>
        <source>run needs a session</source>
        <translation>run richiede una sessione</translation>
    </message>
    <message>
        <source>open damaged drawings as far as they are sound, and tell on standard error what was dropped</source>
        <translation>apri disegni danneggiati per quanto sono integri, e indica sullo standard error ciò che è stato scartato</translation>
    </message>
    <message>
        <source>write the drawings that the session changed there, under their own names; of a session with cases, what it saves itself</source>
        <translation>scrivi lì i disegni modificati dalla sessione, con i loro nomi; di una sessione con casi, ciò che essa stessa salva</translation>
    </message>
    <message>
        <source>write a picture of each drawing as it is in the end to the out folder, or else beside the drawing</source>
        <translation>scrivi un&apos;immagine di ogni disegno com&apos;è alla fine nella cartella di uscita, o altrimenti accanto al disegno</translation>
    </message>
    <message>
        <source>an independent reader for sessions that ask one (default: the environment&apos;s ORTAKIT_AUDIT); see scripts/audit</source>
        <translation>un lettore indipendente per sessioni che ne chiedono uno (default: ORTAKIT_AUDIT dell&apos;ambiente); vedere scripts/audit</translation>
    </message>
    <message>
        <source>where pictures go that the session takes, and those of --png</source>
        <translation>dove vanno le immagini che la sessione prende, e quelle di --png</translation>
    </message>
    <message>
        <source>the most the session may take with one drawing; one that does not stop then ends the program</source>
        <translation>il tempo massimo della sessione con un disegno; una che allora non si ferma termina il programma</translation>
    </message>
    <message>
        <source>plays a recorded session over drawings</source>
        <translation>riproduce una sessione registrata su disegni</translation>
    </message>
    <message>
        <source>the recorded session</source>
        <translation>la sessione registrata</translation>
    </message>
    <message>
        <source>what it is played over</source>
        <translation>su che cosa viene riprodotta</translation>
    </message>
    <message>
        <source>Plays a recorded session over each drawing, one after the other, each opened afresh; without a drawing, over the one that the session says. The drawings themselves stay as they are. Prints a line for each, and of a session with cases for each of them. What a picture does not show, or only in part, is told on standard error, by type.</source>
        <translation>Riproduce una sessione registrata su ogni disegno, uno dopo l&apos;altro, ognuno riaperto; senza disegno, su quello indicato dalla sessione. I disegni stessi restano come sono. Stampa una riga per ognuno, e di una sessione con casi per ogni caso. Ciò che un&apos;immagine non mostra, o solo in parte, viene indicato sullo standard error, per tipo.</translation>
    </message>
    <message>
        <source>look of windows and dialogs</source>
        <translation>aspetto di finestre e dialoghi</translation>
    </message>
    <message>
        <source>language of texts</source>
        <translation>lingua dei testi</translation>
    </message>
    <message>
        <source>$ORTAKIT_LANGUAGE; else the window&apos;s setting or the desktop&apos;s language, and English where there is no window or a session is played</source>
        <translation>$ORTAKIT_LANGUAGE; altrimenti l&apos;impostazione della finestra o la lingua del desktop, e inglese dove non c&apos;è finestra o si riproduce una sessione</translation>
    </message>
    <message>
        <source>folder of the user&apos;s data</source>
        <translation>cartella dei dati dell&apos;utente</translation>
    </message>
    <message>
        <source>$ORTAKIT_HOME, or the system&apos;s place for such data</source>
        <translation>$ORTAKIT_HOME, o il posto del sistema per tali dati</translation>
    </message>
    <message>
        <source>the plug-in module</source>
        <translation>il modulo plug-in</translation>
    </message>
    <message>
        <source>$ORTAKIT_MODULE, or the one installed with the program</source>
        <translation>$ORTAKIT_MODULE, o quello installato con il programma</translation>
    </message>
    <message>
        <source>folder of the Lisp tools</source>
        <translation>cartella degli strumenti Lisp</translation>
    </message>
    <message>
        <source>$ORTAKIT_TOOLS, or the one installed with the program</source>
        <translation>$ORTAKIT_TOOLS, o quella installata con il programma</translation>
    </message>
    <message>
        <source>let drawings name files of this folder and those below; may be given again. Else they are read from the drawing&apos;s own folder, those below and trusted ones only</source>
        <translation>consenti ai disegni di nominare file di questa cartella e di quelle sottostanti; ripetibile. Altrimenti vengono letti solo dalla cartella del disegno, da quelle sottostanti e da quelle attendibili</translation>
    </message>
    <message>
        <source>tell this and end</source>
        <translation>mostra questo e termina</translation>
    </message>
    <message>
        <source>tell the version and end</source>
        <translation>mostra la versione e termina</translation>
    </message>
    <message>
        <source> (did you mean %1?)</source>
        <translation> (forse %1?)</translation>
    </message>
    <message>
        <source>run programs of this folder and those below as well; may be given again</source>
        <translation>esegui anche programmi di questa cartella e di quelle sottostanti; ripetibile</translation>
    </message>
    <message>
        <source>the most memory Lisp may take, more being an error of the program</source>
        <translation>la memoria massima che Lisp può prendere. Di più è un errore del programma</translation>
    </message>
    <message>
        <source>the system variable LISPHEAPMAX, which is 2048 as long as nobody changed it</source>
        <translation>la variabile di sistema LISPHEAPMAX, che è 2048 finché nessuno la cambia</translation>
    </message>
    <message>
        <source>open damaged drawings as far as they are sound; they have no file until they are saved under a name</source>
        <translation>apri disegni danneggiati per quanto sono integri; non hanno un file finché non vengono salvati con un nome</translation>
    </message>
    <message>
        <source>open what a program that was killed left of changed drawings, without asking</source>
        <translation>apri senza chiedere ciò che un programma interrotto ha lasciato di disegni modificati</translation>
    </message>
    <message>
        <source>play a recorded session in the window first</source>
        <translation>riproduci prima nella finestra una sessione registrata</translation>
    </message>
    <message>
        <source>how long each line of the session waits, so that you can watch it</source>
        <translation>quanto attende ogni riga della sessione, per poterla osservare</translation>
    </message>
    <message>
        <source>write what you do down as a session that plays</source>
        <translation>annota ciò che si fa come una sessione riproducibile</translation>
    </message>
    <message>
        <source>write a picture of the window to DIR/window.png and end</source>
        <translation>scrivi un&apos;immagine della finestra in DIR/window.png e termina</translation>
    </message>
    <message>
        <source>the most a session may take</source>
        <translation>il tempo massimo di una sessione</translation>
    </message>
    <message>
        <source>opens drawings in a window</source>
        <translation>apre disegni in una finestra</translation>
    </message>
    <message>
        <source>a drawing to open</source>
        <translation>un disegno da aprire</translation>
    </message>
    <message>
        <source>Opens the drawings in a window, or works on them without one. &quot;ortakit help COMMAND&quot; tells more about a command. A drawing whose name is that of a command is written with its folder: ./run</source>
        <translation>Apre i disegni in una finestra, o ci lavora senza. &quot;ortakit help COMMAND&quot; dice di più su un comando. Un disegno il cui nome è quello di un comando si scrive con la sua cartella: ./run</translation>
    </message>
    <message>
        <source>Options of the window</source>
        <translation>Opzioni della finestra</translation>
    </message>
    <message>
        <source>%1 asks for points or entities: play a recorded session with ortakit run</source>
        <translation>%1 chiede punti o entità: riprodurre una sessione registrata con ortakit run</translation>
    </message>
    <message>
        <source>%1 needs a drawing</source>
        <translation>%1 ha bisogno di un disegno</translation>
    </message>
    <message>
        <source>--out and --in-place do not go together</source>
        <translation>--out e --in-place non vanno insieme</translation>
    </message>
    <message>
        <source>%1 changes drawings: say where they go, --out DIR or --in-place</source>
        <translation>%1 modifica i disegni: dire dove vanno, --out DIR o --in-place</translation>
    </message>
    <message>
        <source>%1 works on no selection</source>
        <translation>%1 non lavora su nessuna selezione</translation>
    </message>
    <message>
        <source>of several drawings each has its own file: put {name} into %1</source>
        <translation>di più disegni ciascuno ha il proprio file: mettere {name} in %1</translation>
    </message>
    <message>
        <source>%1 needs a file to write: --set %2=PATH</source>
        <translation>%1 ha bisogno di un file da scrivere: --set %2=PATH</translation>
    </message>
    <message>
        <source>%1 has no button %2%3; it has %4</source>
        <translation>%1 non ha il pulsante %2%3; ha %4</translation>
    </message>
    <message>
        <source>%1 has no key %2%3; it has %4</source>
        <translation>%1 non ha la chiave %2%3; ha %4</translation>
    </message>
    <message>
        <source>the file to write; {name} stands for the drawing&apos;s name</source>
        <translation>il file da scrivere; {name} sta per il nome del disegno</translation>
    </message>
    <message>
        <source>the file to read</source>
        <translation>il file da leggere</translation>
    </message>
    <message>
        <source>yes or no</source>
        <translation>sì o no</translation>
    </message>
    <message>
        <source>yes or no, one of its group</source>
        <translation>sì o no, uno del suo gruppo</translation>
    </message>
    <message>
        <source>one of a list</source>
        <translation>uno di un elenco</translation>
    </message>
    <message>
        <source>one of: %1</source>
        <translation>uno di: %1</translation>
    </message>
    <message>
        <source>a number from %1 to %2</source>
        <translation>un numero da %1 a %2</translation>
    </message>
    <message>
        <source>a number, %1 or more</source>
        <translation>un numero, %1 o più</translation>
    </message>
    <message>
        <source>a number</source>
        <translation>un numero</translation>
    </message>
    <message>
        <source>a colour&apos;s number, 0 to 256</source>
        <translation>il numero di un colore, da 0 a 256</translation>
    </message>
    <message>
        <source>rows by the texts of their first column with ^ between; * for all</source>
        <translation>righe secondo i testi della loro prima colonna con ^ in mezzo; * per tutte</translation>
    </message>
    <message>
        <source>a file or folder</source>
        <translation>un file o una cartella</translation>
    </message>
    <message>
        <source>a text</source>
        <translation>un testo</translation>
    </message>
    <message>
        <source> (default: %1)</source>
        <translation> (predefinito: %1)</translation>
    </message>
    <message>
        <source>--select takes all, TYPES [on layer PATTERN] [of block PATTERN] [in style PATTERN] [in color NUMBER], or a filter list, not &quot;%1&quot;</source>
        <translation>--select accetta all, TYPES [on layer PATTERN] [of block PATTERN] [in style PATTERN] [in color NUMBER] o una lista di filtro, non &quot;%1&quot;</translation>
    </message>
    <message>
        <source>makes one paragraph of single-line texts</source>
        <translation>fa un paragrafo di testi di una riga</translation>
    </message>
    <message>
        <source>writes texts in capitals, small letters or as titles</source>
        <translation>scrive i testi in maiuscole, in minuscole o come titoli</translation>
    </message>
    <message>
        <source>writes texts of attributes to a table in a text file</source>
        <translation>scrive i testi degli attributi in una tabella in un file di testo</translation>
    </message>
    <message>
        <source>counts the blocks of the drawing, for a text file</source>
        <translation>conta i blocchi del disegno, per un file di testo</translation>
    </message>
    <message>
        <source>With --press exporttable the table is drawn instead; its upper left corner and the height of its texts are answers: --answer 0,0 --answer 2.5</source>
        <translation>Con --press exporttable si disegna invece la tabella; il suo angolo superiore sinistro e l&apos;altezza dei suoi testi sono risposte: --answer 0,0 --answer 2.5</translation>
    </message>
    <message>
        <source>takes texts of attributes from a table in a text file</source>
        <translation>prende i testi degli attributi da una tabella in un file di testo</translation>
    </message>
    <message>
        <source>All rows of the table are taken unless attributes names some. With --press btreplace, txreplace takes the place of txsearch in them first.</source>
        <translation>Si prendono tutte le righe della tabella, se attributes non ne nomina alcune. Con --press btreplace, prima txreplace prende in esse il posto di txsearch.</translation>
    </message>
    <message>
        <source>writes numbers into texts in the order of their places</source>
        <translation>scrive numeri nei testi nell&apos;ordine delle loro posizioni</translation>
    </message>
    <message>
        <source>For the orders by points the points are answers: --answer 0,0</source>
        <translation>Per gli ordini per punti, i punti sono risposte: --answer 0,0</translation>
    </message>
    <message>
        <source>replaces references to blocks by another block of the drawing</source>
        <translation>sostituisce riferimenti a blocchi con un altro blocco del disegno</translation>
    </message>
    <message>
        <source>replaces references to blocks by a drawing file</source>
        <translation>sostituisce riferimenti a blocchi con un file di disegno</translation>
    </message>
    <message>
        <source>directory is the folder of the file, blockstablerep its name there.</source>
        <translation>directory è la cartella del file, blockstablerep il suo nome in essa.</translation>
    </message>
    <message>
        <source>draws slots, rectangles or circles around texts</source>
        <translation>disegna asole, rettangoli o cerchi intorno ai testi</translation>
    </message>
    <message>
        <source>hides what lies behind texts</source>
        <translation>nasconde ciò che sta dietro i testi</translation>
    </message>
    <message>
        <source>writes dimension styles of the drawing to a file</source>
        <translation>scrive gli stili di quota del disegno in un file</translation>
    </message>
    <message>
        <source>All styles are written unless lststyles names some.</source>
        <translation>Si scrivono tutti gli stili, se lststyles non ne nomina alcuni.</translation>
    </message>
    <message>
        <source>brings dimension styles from a file into the drawing</source>
        <translation>porta nel disegno gli stili di quota di un file</translation>
    </message>
    <message>
        <source>All styles of the file are taken unless lststyles names some, by the first words of their names.</source>
        <translation>Si prendono tutti gli stili del file, se lststyles non ne nomina alcuni, secondo le prime parole dei loro nomi.</translation>
    </message>
    <message>
        <source>puts entities over each other in the order of their colours</source>
        <translation>sovrappone le entità nell&apos;ordine dei loro colori</translation>
    </message>
    <message>
        <source>Steps are taken in the order in which they are given: --set lstcolors=&quot;5 Blue&quot; --press tofront puts blue on top.</source>
        <translation>I passi si fanno nell&apos;ordine in cui sono dati: --set lstcolors=&quot;5 Blue&quot; --press tofront mette il blu sopra.</translation>
    </message>
    <message>
        <source>writes a problem report with what the program and the drawing are</source>
        <translation>scrive un rapporto sui problemi con ciò che sono il programma e il disegno</translation>
    </message>
    <message>
        <source>writes system variables to a script that sets them again</source>
        <translation>scrive variabili di sistema in uno script che le reimposta</translation>
    </message>
    <message>
        <source>changes the paths of references, images, fonts and remote texts</source>
        <translation>cambia i percorsi di riferimenti, immagini, font e testi remoti</translation>
    </message>
    <message>
        <source>All paths are meant unless lstfiles names some. --press btreplace puts txreplace in the place of txsearch in them.</source>
        <translation>Si intendono tutti i percorsi, se lstfiles non ne nomina alcuni. --press btreplace vi mette txreplace al posto di txsearch.</translation>
    </message>
    <message>
        <source>changes and removes hyperlinks of entities</source>
        <translation>modifica e rimuove collegamenti ipertestuali di entità</translation>
    </message>
    <message>
        <source>All links are meant unless tableurl names some, by their handles. --press btnreplace puts txreplace in the place of txsearch in them, --press btnremoveurl takes them away.</source>
        <translation>Si intendono tutti i collegamenti, se tableurl non ne nomina alcuni, secondo i loro identificatori. --press btnreplace vi mette txreplace al posto di txsearch, --press btnremoveurl li rimuove.</translation>
    </message>
    <message>
        <source>cuts a line open and draws a break symbol in the gap</source>
        <translation>apre una linea e disegna un simbolo di interruzione nello spazio</translation>
    </message>
    <message>
        <source>edits the short names that are typed in place of commands</source>
        <translation>modifica i nomi brevi che si digitano al posto dei comandi</translation>
    </message>
    <message>
        <source>shows the functions of Lisp files</source>
        <translation>mostra le funzioni di file Lisp</translation>
    </message>
    <message>
        <source>makes a linetype of a drawn pattern</source>
        <translation>crea un tipo di linea da un motivo disegnato</translation>
    </message>
    <message>
        <source>makes a shape of drawn lines and arcs</source>
        <translation>crea una forma da linee e archi disegnati</translation>
    </message>
    <message>
        <source>makes one drawing of the sheets of several</source>
        <translation>fa un disegno dei fogli di più disegni</translation>
    </message>
    <message>
        <source>sets up a sheet: title block, viewports, alignment and scale</source>
        <translation>prepara un foglio: cartiglio, finestre, allineamento e scala</translation>
    </message>
    <message>
        <source>fills a closed area with copies of a pattern</source>
        <translation>riempie un&apos;area chiusa con copie di un motivo</translation>
    </message>
    <message>
        <source>inserts a block of the drawing or of another drawing file</source>
        <translation>inserisce un blocco del disegno o di un altro file di disegno</translation>
    </message>
    <message>
        <source>shows and sets the time that was worked on drawings</source>
        <translation>mostra e imposta il tempo di lavoro sui disegni</translation>
    </message>
    <message>
        <source>--to and --out go together</source>
        <translation>--to e --out vanno insieme</translation>
    </message>
    <message>
        <source>convert needs drawings</source>
        <translation>convert ha bisogno di disegni</translation>
    </message>
    <message>
        <source>-j goes with --to and --out</source>
        <translation>-j va con --to e --out</translation>
    </message>
    <message>
        <source>Many drawings</source>
        <translation>Molti disegni</translation>
    </message>
    <message>
        <source>With --to and --out all words are drawings, and each becomes a file of its name in the folder. What became of them is told on standard output, a line each. The time limit is that of each.</source>
        <translation>Con --to e --out tutte le parole sono disegni, e ciascuno diventa un file del suo nome nella cartella. Che cosa ne è stato si dice sull&apos;uscita standard, una riga ciascuno. Il limite di tempo vale per ciascuno.</translation>
    </message>
    <message>
        <source>what they become</source>
        <translation>che cosa diventano</translation>
    </message>
    <message>
        <source>where they go</source>
        <translation>dove vanno</translation>
    </message>
    <message>
        <source>print one line of JSON: of each drawing file, status, messages and out; of pictures complete, drawn, invisible, inPart and notDrawn (a number for each type) and cutShort; with --layout all of it for each of the pages, with layout and output; with --recover the same of what was dropped, mended and added</source>
        <translation>stampare una riga di JSON: di ogni disegno file, status, messages e out; delle immagini complete, drawn, invisible, inPart e notDrawn (un numero per tipo) e cutShort; con --layout tutto ciò per ciascuna delle pagine, con layout e output; con --recover lo stesso di ciò che è stato tralasciato, riparato e aggiunto</translation>
    </message>
    <message>
        <source>there is nothing called %1 to ignore%2</source>
        <translation>non c&apos;è nulla di nome %1 da ignorare%2</translation>
    </message>
    <message>
        <source>diff needs two drawings</source>
        <translation>diff ha bisogno di due disegni</translation>
    </message>
    <message>
        <source>take numbers and coordinates for the same that are no farther apart</source>
        <translation>prendere per uguali numeri e coordinate che non distano di più</translation>
    </message>
    <message>
        <source>what does not count in addition, separated by commas: version, view, header, classes, objects, xdata, order. times, handles, identity, extents and reactors do not count anyway; &quot;none&quot; in front counts them</source>
        <translation>che cosa inoltre non conta, separato da virgole: version, view, header, classes, objects, xdata, order. times, handles, identity, extents e reactors non contano comunque; &quot;none&quot; davanti li fa contare</translation>
    </message>
    <message>
        <source>what makes entities the same one: their handles, or what is in them</source>
        <translation>che cosa rende le entità la stessa: i loro identificatori o ciò che contengono</translation>
    </message>
    <message>
        <source>auto: by handle, unless far more entities are the same by content</source>
        <translation>auto: per identificatore, a meno che molte più entità siano le stesse per contenuto</translation>
    </message>
    <message>
        <source>tell the sums alone</source>
        <translation>dire solo le somme</translation>
    </message>
    <message>
        <source>draw both over each other into a png, svg or pdf file: what is gone red and dashed, what is new green and thick, what has changed orange and dashed as it was, blue and thick as it is</source>
        <translation>disegnare entrambi uno sull&apos;altro in un file png, svg o pdf: ciò che non c&apos;è più in rosso e tratteggiato, ciò che è nuovo in verde e spesso, ciò che è cambiato in arancione e tratteggiato come era, in blu e spesso come è</translation>
    </message>
    <message>
        <source>which sheet the picture shows; without it, model space</source>
        <translation>quale foglio mostra l&apos;immagine; senza, lo spazio modello</translation>
    </message>
    <message>
        <source>write the picture although another program has it open</source>
        <translation>scrivere l&apos;immagine anche se un altro programma l&apos;ha aperta</translation>
    </message>
    <message>
        <source>the most it may take</source>
        <translation>il massimo che può impiegare</translation>
    </message>
    <message>
        <source>print the differences as one line of JSON</source>
        <translation>stampare le differenze come una riga di JSON</translation>
    </message>
    <message>
        <source>tells what differs in two drawings</source>
        <translation>dice in che cosa differiscono due disegni</translation>
    </message>
    <message>
        <source>a drawing as it was</source>
        <translation>un disegno come era</translation>
    </message>
    <message>
        <source>the drawing as it is</source>
        <translation>il disegno come è</translation>
    </message>
    <message>
        <source>Prints a line for each variable, layer, style, block, entity and object that differs: + for what B has alone, - for what A has alone, ~ for what has other values in B, with these. Sums stand behind =, by type and by layer. The files&apos; forms and versions do not matter, nor how numbers are spelt.

Ends with status 0 when nothing differs, 1 when something does, 2 and more when it could not be found out.

With the seven words that git hands to a program for differences it compares these two files and ends with 0 either way: git config diff.dxf.command &quot;ortakit diff&quot;.</source>
        <translation>Stampa una riga per ogni variabile, layer, stile, blocco, entità e oggetto che differisce: + per ciò che ha solo B, - per ciò che ha solo A, ~ per ciò che in B ha altri valori, con questi. Le somme stanno dopo =, per tipo e per layer. Non contano forme e versioni dei file, né come sono scritti i numeri.

Termina con lo stato 0 quando nulla differisce, 1 quando qualcosa differisce, 2 e più quando non è stato possibile stabilirlo.

Con le sette parole che git passa a un programma per le differenze confronta questi due file e termina con 0 in ogni caso: git config diff.dxf.command &quot;ortakit diff&quot;.</translation>
    </message>
    <message>
        <source>Example:</source>
        <translation>Esempio:</translation>
    </message>
    <message>
        <source>%1 needs at least one drawing</source>
        <translation>%1 ha bisogno di almeno un disegno</translation>
    </message>
    <message>
        <source>a drawing to look at</source>
        <translation>un disegno da guardare</translation>
    </message>
    <message>
        <source>--entities goes neither with --json nor with -j</source>
        <translation>--entities non va né con --json né con -j</translation>
    </message>
    <message>
        <source>--fix and --out go together</source>
        <translation>--fix e --out vanno insieme</translation>
    </message>
    <message>
        <source>tells what is wrong with drawings</source>
        <translation>dice che cosa non va nei disegni</translation>
    </message>
    <message>
        <source>Looks for all that opening with --recover would mend, add or drop, and the command AUDIT would find, and changes nothing. A hundred faults of a drawing are told; with --json all are.

Ends with status 0 when all drawings are sound or were mended, 1 when faults were found, 4 when files could not be read or written, 3 when that is so for some of several.</source>
        <translation>Cerca tutto ciò che l&apos;apertura con --recover riparerebbe, aggiungerebbe o tralascerebbe e ciò che troverebbe il comando AUDIT, e non cambia nulla. Si dicono cento difetti di un disegno; con --json tutti.

Termina con lo stato 0 quando tutti i disegni sono integri o sono stati riparati, 1 quando sono stati trovati difetti, 4 quando non è stato possibile leggere o scrivere file, 3 quando è così per alcuni di più disegni.</translation>
    </message>
    <message>
        <source>write the drawings with what was found mended, sound ones too</source>
        <translation>scrivere i disegni con riparato ciò che è stato trovato, anche quelli integri</translation>
    </message>
    <message>
        <source>the folder to write them into, under their names</source>
        <translation>la cartella in cui scriverli, con i loro nomi</translation>
    </message>
    <message>
        <source>the most that each drawing may take</source>
        <translation>il massimo che ogni disegno può impiegare</translation>
    </message>
    <message>
        <source>print one line of JSON: for each drawing opens, faults and found, as convert has it for --recover, and out</source>
        <translation>stampare una riga di JSON: per ogni disegno opens, faults e found, come li ha convert per --recover, e out</translation>
    </message>
    <message>
        <source>tells what drawings are and hold</source>
        <translation>dice che cosa sono e contengono i disegni</translation>
    </message>
    <message>
        <source>Tells of each drawing its version and form, who saved it when, units, extents as the file says and as measured, how many entities of which type, layers, blocks, layouts with their paper, styles, the files and fonts that it names and whether they are found, and the state of its handles. Lists longer than twelve names are cut short; with --json they are whole.</source>
        <translation>Dice di ogni disegno versione e forma, chi lo ha salvato e quando, unità, estensione secondo il file e misurata, quante entità di quale tipo, layer, blocchi, layout con la loro carta, stili, i file e i font che nomina e se si trovano, e lo stato dei suoi identificatori. Gli elenchi più lunghi di dodici nomi sono abbreviati; con --json sono interi.</translation>
    </message>
    <message>
        <source>print in place of that a line for each variable, table entry, block, entity and object, in the file&apos;s order, with all its values: git config diff.dxf.textconv &quot;ortakit info --entities&quot; shows differences of these</source>
        <translation>stampare invece una riga per ogni variabile, voce di tabella, blocco, entità e oggetto, nell&apos;ordine del file, con tutti i suoi valori: git config diff.dxf.textconv &quot;ortakit info --entities&quot; ne mostra le differenze</translation>
    </message>
    <message>
        <source>print all of it as one line of JSON</source>
        <translation>stampare tutto come una riga di JSON</translation>
    </message>
    <message>
        <source>Kinds of findings</source>
        <translation>Tipi di rilievi</translation>
    </message>
    <message>
        <source>uses takes man DIR, completions DIR or document</source>
        <translation>uses si chiama con &quot;man DIR&quot;, &quot;completions DIR&quot; o &quot;document&quot;</translation>
    </message>
    <message>
        <source>writes manual pages, completions and a document about the commands</source>
        <translation>scrive pagine di manuale, completamenti e un documento sui comandi</translation>
    </message>
    <message>
        <source>Writes ortakit(1) and a page for each command to a folder, the completions of bash, zsh and fish to their places below a folder, or the sections of docs/cli.md to standard output.</source>
        <translation>Scrive ortakit(1) e una pagina per comando in una cartella, i completamenti di bash, zsh e fish ai loro posti sotto una cartella, o le sezioni di docs/cli.md sull&apos;uscita standard.</translation>
    </message>
    <message>
        <source>tell what became of each drawing as one line of JSON</source>
        <translation>dire che cosa è stato di ogni disegno come una riga di JSON</translation>
    </message>
    <message>
        <source>--set takes KEY=VALUE, not &quot;%1&quot;</source>
        <translation>--set accetta KEY=VALUE, non &quot;%1&quot;</translation>
    </message>
    <message>
        <source>what it works on: all, or types of entities as TEXT,MTEXT, with &quot;on layer PATTERN&quot;, &quot;of block PATTERN&quot;, &quot;in style PATTERN&quot; and &quot;in color NUMBER&quot; behind, or a filter list as ssget takes it: &apos;((0 . &quot;TEXT&quot;) (8 . &quot;NOTES&quot;))&apos;. What the tool cannot use is left out</source>
        <translation>su che cosa lavora: all o tipi di entità come TEXT,MTEXT, seguiti da &quot;on layer PATTERN&quot;, &quot;of block PATTERN&quot;, &quot;in style PATTERN&quot; e &quot;in color NUMBER&quot;, o una lista di filtro come la accetta ssget: &apos;((0 . &quot;TEXT&quot;) (8 . &quot;NOTES&quot;))&apos;. Ciò che lo strumento non può usare si tralascia</translation>
    </message>
    <message>
        <source>put the value into a field of the dialog; may be given again. {name} stands for the name of the drawing without folder and extension</source>
        <translation>mettere il valore in un campo della finestra di dialogo; si può ripetere. {name} sta per il nome del disegno senza cartella ed estensione</translation>
    </message>
    <message>
        <source>begin with the values of a state file that the dialog saved</source>
        <translation>iniziare con i valori di un file di stato salvato dalla finestra di dialogo</translation>
    </message>
    <message>
        <source>press a button of the dialog behind the values that were set before; may be given again</source>
        <translation>premere un pulsante della finestra di dialogo dopo i valori impostati prima; si può ripetere</translation>
    </message>
    <message>
        <source>answer the next prompt with this: a keyword, a number, a point as 10,20; may be given again</source>
        <translation>rispondere così alla prossima domanda: una parola chiave, un numero, un punto come 10,20; si può ripetere</translation>
    </message>
    <message>
        <source>write each drawing there, under its own name</source>
        <translation>scrivere là ogni disegno, con il proprio nome</translation>
    </message>
    <message>
        <source>the most it may take with one drawing</source>
        <translation>il massimo che può impiegare con un disegno</translation>
    </message>
    <message>
        <source>This tool asks for points or entities of the drawing, or works on none: it is for the window, and for recorded sessions, which ortakit run plays over drawings.</source>
        <translation>Questo strumento chiede punti o entità del disegno, o non lavora su nessuno: è per la finestra e per le sessioni registrate, che ortakit run riproduce sui disegni.</translation>
    </message>
    <message>
        <source>Runs the tool over each drawing with its dialog filled in as --set says, and tells what it did. All of the dialog&apos;s checks hold, and what it complains about is an error of that drawing. Fields that are not set are as the dialog opens with them, whatever was chosen last. The drawings themselves stay as they are unless --in-place is given. It works in the space that is current in the drawing.</source>
        <translation>Passa lo strumento su ogni disegno con la sua finestra di dialogo compilata come dice --set, e dice che cosa ha fatto. Valgono tutti i controlli della finestra di dialogo, e ciò di cui si lamenta è un errore di quel disegno. I campi che non si impostano sono come la finestra di dialogo si apre con essi, qualunque cosa sia stata scelta per ultima. I disegni stessi restano come sono, se non è dato --in-place. Lavora nello spazio corrente del disegno.</translation>
    </message>
    <message>
        <source>Keys of --set</source>
        <translation>Chiavi di --set</translation>
    </message>
    <message>
        <source>what it works on</source>
        <translation>su che cosa lavora</translation>
    </message>
    <message>
        <source>work on so many files at a time, each in a process of its own, so that one that crashes or takes too long is one file that failed; what is told and its order are the same for any N</source>
        <translation>lavorare su tanti file insieme, ciascuno in un processo proprio, così che uno che si interrompe o impiega troppo sia un solo file non riuscito; ciò che si dice e il suo ordine sono gli stessi per ogni N</translation>
    </message>
    <message>
        <source>one process for all</source>
        <translation>un processo per tutti</translation>
    </message>
    <message>
        <source>Texts that have a frame get a new one in its place; with --answer No the old one stays as well.</source>
        <translation>I testi che hanno una cornice ne ricevono una nuova al suo posto; con --answer No resta anche la precedente.</translation>
    </message>
    <message>
        <source>end with status 3 when something could not be read or is missing in the picture, which is written all the same</source>
        <translation>termina con stato 3 quando qualcosa non è stato letto o manca nell&apos;immagine, che viene scritta comunque</translation>
    </message>
    <message>
        <source>--recover and --in-place do not go together: what is recovered is not written over the damaged file</source>
        <translation>--recover e --in-place non vanno insieme: ciò che è recuperato non è scritto sul file danneggiato</translation>
    </message>
    <message>
        <source>save each drawing that was changed where it is, with a copy of the old one where SETBACKUPFOLDER has named a folder for that; the tool does not run over what cannot be saved so, such as DWG files</source>
        <translation>salvare al suo posto ogni disegno modificato, con una copia del vecchio dove SETBACKUPFOLDER ha nominato una cartella per questo; lo strumento non lavora su ciò che non può essere salvato così, come i file DWG</translation>
    </message>
    <message>
        <source>write files although another program has them open, or they lie beside a drawing under its result&apos;s name</source>
        <translation>scrivi i file anche se un altro programma li tiene aperti, o si trovano accanto a un disegno con il nome del suo risultato</translation>
    </message>
    <message>
        <source>write files as well that another program has open, or has changed since they were opened, or that lie beside a drawing under its result&apos;s name</source>
        <translation>scrivi anche file che un altro programma tiene aperti, o ha modificato da quando sono stati aperti, o che si trovano accanto a un disegno con il nome del suo risultato</translation>
    </message>
</context>
<context>
    <name>host::app::ClosingQuestion</name>
    <message>
        <source>not saved yet: a name is asked for</source>
        <translation>non ancora salvato: verrà chiesto un nome</translation>
    </message>
    <message>
        <source>Save changes</source>
        <translation>Salva modifiche</translation>
    </message>
    <message>
        <source>Changed drawings</source>
        <translation>Disegni modificati</translation>
    </message>
    <message>
        <source>Drawing</source>
        <translation>Disegno</translation>
    </message>
    <message>
        <source>File</source>
        <translation>File</translation>
    </message>
    <message>
        <source>&amp;Save selected</source>
        <translation>&amp;Salva selezionati</translation>
    </message>
    <message>
        <source>&amp;Discard all changes</source>
        <translation>Scar&amp;ta tutte le modifiche</translation>
    </message>
    <message>
        <source>These drawings were changed. Those that are not checked are closed unsaved.</source>
        <translation>Questi disegni sono stati modificati. Quelli non selezionati vengono chiusi senza salvare.</translation>
    </message>
</context>
<context>
    <name>host::app::CommandLine</name>
    <message>
        <source>Command line</source>
        <translation>Riga di comando</translation>
    </message>
    <message>
        <source>What was printed</source>
        <translation>Ciò che è stato stampato</translation>
    </message>
    <message>
        <source>Command:</source>
        <translation>Comando:</translation>
    </message>
    <message>
        <source>Search what was entered: %1</source>
        <translation>Cerca in ciò che è stato digitato: %1</translation>
    </message>
    <message>
        <source>Not found: %1</source>
        <translation>Non trovato: %1</translation>
    </message>
    <message>
        <source>Find</source>
        <translation>Trova</translation>
    </message>
    <message>
        <source>Find in what was printed</source>
        <translation>Trova in ciò che è stato stampato</translation>
    </message>
</context>
<context>
    <name>host::app::CommandPalette</name>
    <message>
        <source>Commands</source>
        <translation>Comandi</translation>
    </message>
    <message>
        <source>What is to be done? A command, a menu entry, a system variable</source>
        <translation>Che cosa si vuole fare? Un comando, una voce di menu, una variabile di sistema</translation>
    </message>
    <message>
        <source>What is sought</source>
        <translation>Ciò che si cerca</translation>
    </message>
    <message>
        <source>Commands that fit</source>
        <translation>Comandi corrispondenti</translation>
    </message>
</context>
<context>
    <name>host::app::CommandRunner</name>
    <message>
        <source>
A command is running; Esc stops it.
</source>
        <translation>
Un comando è in corso; Esc lo ferma.
</translation>
    </message>
    <message>
        <source>
No drawing is open.
</source>
        <translation>
Nessun disegno è aperto.
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
        <translation>Ora non si può riprodurre una sessione.</translation>
    </message>
</context>
<context>
    <name>host::app::DrawingAudit</name>
    <message>
        <source>the reader takes no names with line feeds</source>
        <translation>il lettore non accetta nomi con ritorni a capo</translation>
    </message>
    <message>
        <source>the reader %1 does not answer</source>
        <translation>il lettore %1 non risponde</translation>
    </message>
</context>
<context>
    <name>host::app::DrawingCanvas</name>
    <message>
        <source>simplified</source>
        <translation>semplificato</translation>
    </message>
</context>
<context>
    <name>host::app::DrawingTabs</name>
    <message>
        <source>%1 (recovered)</source>
        <translation>%1 (recuperato)</translation>
    </message>
    <message>
        <source>%1 (read only)</source>
        <translation>%1 (sola lettura)</translation>
    </message>
</context>
<context>
    <name>host::app::HelpWindow</name>
    <message>
        <source>Help</source>
        <translation>Guida</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>Cerca</translation>
    </message>
    <message>
        <source>Contents</source>
        <translation>Sommario</translation>
    </message>
    <message>
        <source>What was found</source>
        <translation>Trovati</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Indietro</translation>
    </message>
    <message>
        <source>Forward</source>
        <translation>Avanti</translation>
    </message>
    <message>
        <source>Index</source>
        <translation>Indice</translation>
    </message>
    <message>
        <source>Larger</source>
        <translation>Più grande</translation>
    </message>
    <message>
        <source>Smaller</source>
        <translation>Più piccolo</translation>
    </message>
    <message>
        <source>Print...</source>
        <translation>Stampa...</translation>
    </message>
    <message>
        <source>Nothing was found.</source>
        <translation>Non è stato trovato nulla.</translation>
    </message>
</context>
<context>
    <name>host::app::InPlaceEdit</name>
    <message>
        <source>Text</source>
        <translation>Testo</translation>
    </message>
</context>
<context>
    <name>host::app::LayerBox</name>
    <message>
        <source>Filter of names</source>
        <translation>Filtro dei nomi</translation>
    </message>
    <message>
        <source>Filter</source>
        <translation>Filtro</translation>
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
        <translation>&amp;Nuovo</translation>
    </message>
    <message>
        <source>A layer that looks like the chosen one</source>
        <translation>Un layer simile a quello scelto</translation>
    </message>
    <message>
        <source>&amp;Delete</source>
        <translation>&amp;Elimina</translation>
    </message>
    <message>
        <source>Takes unused layers out of the drawing</source>
        <translation>Toglie dal disegno i layer inutilizzati</translation>
    </message>
    <message>
        <source>Make &amp;current</source>
        <translation>Rendi &amp;corrente</translation>
    </message>
    <message>
        <source>Filter of names</source>
        <translation>Filtro dei nomi</translation>
    </message>
    <message>
        <source>Filter: part of a name, or a pattern</source>
        <translation>Filtro: parte di un nome o un modello</translation>
    </message>
    <message>
        <source>Which layers are shown</source>
        <translation>Quali layer vengono mostrati</translation>
    </message>
    <message>
        <source>All</source>
        <translation>Tutto</translation>
    </message>
    <message>
        <source>Used</source>
        <translation>Usati</translation>
    </message>
    <message>
        <source>Of references</source>
        <translation>Di riferimenti</translation>
    </message>
    <message>
        <source>Not frozen</source>
        <translation>Non congelati</translation>
    </message>
    <message>
        <source>Visible</source>
        <translation>Visibili</translation>
    </message>
    <message>
        <source>%1 of %2 layers</source>
        <translation>%1 di %2 layer</translation>
    </message>
    <message>
        <source>%1, %2 chosen</source>
        <translation>%1, %2 scelti</translation>
    </message>
    <message>
        <source>... and %1 more</source>
        <translation>... e altri %1</translation>
    </message>
    <message>
        <source>Nothing can be changed while a command runs.</source>
        <translation>Nulla può essere modificato mentre è in corso un comando.</translation>
    </message>
    <message>
        <source>No drawing is open.</source>
        <translation>Nessun disegno è aperto.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no value for this.</source>
        <translation>&quot;%1&quot; non è un valore per questo.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; belongs to an external reference and cannot be current.</source>
        <translation>&quot;%1&quot; appartiene a un riferimento esterno e non può essere corrente.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is frozen and cannot be current.</source>
        <translation>&quot;%1&quot; è congelato e non può essere corrente.</translation>
    </message>
    <message>
        <source>Layer &quot;%1&quot; is used.</source>
        <translation>Il layer &quot;%1&quot; è in uso.</translation>
    </message>
    <message>
        <source>&amp;Rename</source>
        <translation>&amp;Rinomina</translation>
    </message>
    <message>
        <source>C&amp;olor...</source>
        <translation>C&amp;olore...</translation>
    </message>
    <message>
        <source>Select &amp;all</source>
        <translation>Selezion&amp;a tutto</translation>
    </message>
</context>
<context>
    <name>host::app::LayoutTabs</name>
    <message>
        <source>Layouts</source>
        <translation>Layout</translation>
    </message>
</context>
<context>
    <name>host::app::LineReader</name>
    <message>
        <source>too much on the line: &quot;%1&quot;</source>
        <translation>di troppo sulla riga: &quot;%1&quot;</translation>
    </message>
    <message>
        <source>something is missing at the end of the line</source>
        <translation>manca qualcosa alla fine della riga</translation>
    </message>
</context>
<context>
    <name>host::app::LispConsole</name>
    <message>
        <source>A Lisp expression</source>
        <translation>Un&apos;espressione Lisp</translation>
    </message>
    <message>
        <source>Lisp expression</source>
        <translation>Espressione Lisp</translation>
    </message>
    <message>
        <source>Search what was entered: %1</source>
        <translation>Cerca in ciò che è stato digitato: %1</translation>
    </message>
    <message>
        <source>Not found: %1</source>
        <translation>Non trovato: %1</translation>
    </message>
</context>
<context>
    <name>host::app::LossBar</name>
    <message>
        <source>What of the file could not be read</source>
        <translation>Ciò che del file non è stato letto</translation>
    </message>
    <message>
        <source>Objects that could not be read</source>
        <translation>Oggetti che non sono stati letti</translation>
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
Un comando è in corso; Esc lo ferma.
</translation>
    </message>
    <message>
        <source>
No drawing is open.
</source>
        <translation>
Nessun disegno è aperto.
</translation>
    </message>
    <message>
        <source>%1 is a folder.</source>
        <translation>%1 è una cartella.</translation>
    </message>
    <message>
        <source>%1 is a picture or document, no drawing.</source>
        <translation>%1 è un&apos;immagine o un documento, non un disegno.</translation>
    </message>
    <message>
        <source>No tools were found</source>
        <translation>Nessuno strumento trovato</translation>
    </message>
    <message>
        <source>
The help pages were not found.
</source>
        <translation>
Le pagine della guida non sono state trovate.
</translation>
    </message>
    <message>
        <source>About Ortakit</source>
        <translation>Informazioni su Ortakit</translation>
    </message>
    <message>
        <source>Ortakit %1

Drafting tools for CAD drawings, with a host of their own.
Qt %2</source>
        <translation>Ortakit %1

Strumenti per disegni CAD, con un proprio host.
Qt %2</translation>
    </message>
    <message>
        <source>Command line</source>
        <translation>Riga di comando</translation>
    </message>
    <message>
        <source>
There is more to show than is drawn in one go: the picture lacks part of it.
</source>
        <translation>
C&apos;è più da mostrare di quanto si disegni in una volta: all&apos;immagine ne manca una parte.
</translation>
    </message>
    <message>
        <source>%1 is no full path of a program.</source>
        <translation>%1 non è il percorso completo di un programma.</translation>
    </message>
    <message>
        <source>This cannot be kept in %1.</source>
        <translation>Questo non può essere conservato in %1.</translation>
    </message>
    <message>
        <source>not while something runs</source>
        <translation>non mentre qualcosa è in corso</translation>
    </message>
    <message>
        <source>not possible now</source>
        <translation>non possibile ora</translation>
    </message>
    <message>
        <source>command of a program</source>
        <translation>comando di un programma</translation>
    </message>
    <message>
        <source>system variable: %1</source>
        <translation>variabile di sistema: %1</translation>
    </message>
    <message>
        <source>Open &amp;recent</source>
        <translation>Apri &amp;recenti</translation>
    </message>
    <message>
        <source>%1 (pinned)</source>
        <translation>%1 (fissato)</translation>
    </message>
    <message>
        <source>&amp;Last time&apos;s drawings</source>
        <translation>&amp;Disegni dell&apos;ultima volta</translation>
    </message>
    <message>
        <source>Open them at each &amp;start</source>
        <translation>Aprili a ogni &amp;avvio</translation>
    </message>
    <message>
        <source>&amp;Clear the list</source>
        <translation>S&amp;vuota l&apos;elenco</translation>
    </message>
    <message>
        <source>Start</source>
        <translation>Inizio</translation>
    </message>
    <message>
        <source>Stop &amp;recording</source>
        <translation>Ferma &amp;registrazione</translation>
    </message>
    <message>
        <source>
Recording to %1.
</source>
        <translation>
Registrazione in %1.
</translation>
    </message>
    <message>
        <source>&amp;Record session...</source>
        <translation>&amp;Registra sessione...</translation>
    </message>
    <message>
        <source>
Recorded in %1.
</source>
        <translation>
Registrato in %1.
</translation>
    </message>
    <message>
        <source>
The recording was not written: %1: %2
</source>
        <translation>
La registrazione non è stata scritta: %1: %2
</translation>
    </message>
    <message>
        <source>Record session</source>
        <translation>Registra sessione</translation>
    </message>
    <message>
        <source>Recorded sessions (*.txt);;All files (*)</source>
        <translation>Sessioni registrate (*.txt);;Tutti i file (*)</translation>
    </message>
    <message>
        <source>
No copy of %1 is kept for after a crash: %2.
</source>
        <translation>
Nessuna copia di %1 viene conservata per dopo un arresto anomalo: %2.
</translation>
    </message>
    <message>
        <source>
%1 was recovered by another program.
</source>
        <translation>
%1 è stato recuperato da un altro programma.
</translation>
    </message>
    <message>
        <source>
Recovered as it was on %1. It is not in its file until it is saved.
</source>
        <translation>
Recuperato com&apos;era il %1. Non è nel suo file finché non viene salvato.
</translation>
    </message>
    <message>
        <source>Enter</source>
        <translation>Invio</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annulla</translation>
    </message>
    <message>
        <source>Repeat %1</source>
        <translation>Ripeti %1</translation>
    </message>
    <message>
        <source>Recent input</source>
        <translation>Input recente</translation>
    </message>
    <message>
        <source>Choose nothing</source>
        <translation>Deseleziona tutto</translation>
    </message>
    <message>
        <source>
This link of the help page is not followed: %1
</source>
        <translation>
Questo collegamento della pagina di guida non viene seguito: %1
</translation>
    </message>
</context>
<context>
    <name>host::app::NoticeBar</name>
    <message>
        <source>Detai&amp;ls</source>
        <translation>Dettag&amp;li</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Chiudi</translation>
    </message>
</context>
<context>
    <name>host::app::ParagraphDialog</name>
    <message>
        <source>Edit paragraph</source>
        <translation>Modifica paragrafo</translation>
    </message>
    <message>
        <source>Text of the paragraph</source>
        <translation>Testo del paragrafo</translation>
    </message>
    <message>
        <source>Each line is a paragraph. Codes are shown as they are: {\C1;red}, %%c, %%d.</source>
        <translation>Ogni riga è un paragrafo. I codici vengono mostrati come sono: {\C1;red}, %%c, %%d.</translation>
    </message>
    <message>
        <source>Ctrl+Enter</source>
        <translation>Ctrl+Invio</translation>
    </message>
</context>
<context>
    <name>host::app::PrintDialog</name>
    <message>
        <source>&amp;Centred</source>
        <translation>&amp;Centrato</translation>
    </message>
    <message>
        <source>&amp;Lineweights</source>
        <translation>Spessori di &amp;linea</translation>
    </message>
    <message>
        <source>&amp;Remember in the layout</source>
        <translation>&amp;Ricorda nel layout</translation>
    </message>
    <message>
        <source>Print %1</source>
        <translation>Stampa %1</translation>
    </message>
    <message>
        <source>Page setup of %1</source>
        <translation>Imposta pagina di %1</translation>
    </message>
    <message>
        <source>Preview</source>
        <translation>Anteprima</translation>
    </message>
    <message>
        <source>&amp;Print</source>
        <translation>Sta&amp;mpa</translation>
    </message>
    <message>
        <source>%1 file</source>
        <translation>File %1</translation>
    </message>
    <message>
        <source>Landscape</source>
        <translation>Orizzontale</translation>
    </message>
    <message>
        <source>Portrait</source>
        <translation>Verticale</translation>
    </message>
    <message>
        <source>What is shown</source>
        <translation>Ciò che è mostrato</translation>
    </message>
    <message>
        <source>All</source>
        <translation>Tutto</translation>
    </message>
    <message>
        <source>Limits</source>
        <translation>Limiti</translation>
    </message>
    <message>
        <source>The layout&apos;s sheet</source>
        <translation>Il foglio del layout</translation>
    </message>
    <message>
        <source>Window</source>
        <translation>Finestra</translation>
    </message>
    <message>
        <source>Fit</source>
        <translation>Adatta</translation>
    </message>
    <message>
        <source>As the layout says</source>
        <translation>Come indica il layout</translation>
    </message>
    <message>
        <source>Colours</source>
        <translation>Colori</translation>
    </message>
    <message>
        <source>Black and white</source>
        <translation>Bianco e nero</translation>
    </message>
    <message>
        <source>Greys</source>
        <translation>Grigi</translation>
    </message>
    <message>
        <source>&amp;Device</source>
        <translation>&amp;Dispositivo</translation>
    </message>
    <message>
        <source>P&amp;aper</source>
        <translation>C&amp;arta</translation>
    </message>
    <message>
        <source>&amp;Orientation</source>
        <translation>&amp;Orientamento</translation>
    </message>
    <message>
        <source>A&amp;rea</source>
        <translation>Ar&amp;ea</translation>
    </message>
    <message>
        <source>Lower left corner</source>
        <translation>Angolo inferiore sinistro</translation>
    </message>
    <message>
        <source>Upper right corner</source>
        <translation>Angolo superiore destro</translation>
    </message>
    <message>
        <source>&amp;Scale</source>
        <translation>&amp;Scala</translation>
    </message>
    <message>
        <source>O&amp;ffset (mm)</source>
        <translation>O&amp;ffset (mm)</translation>
    </message>
    <message>
        <source>Colo&amp;urs</source>
        <translation>Color&amp;i</translation>
    </message>
    <message>
        <source>Cop&amp;ies</source>
        <translation>Co&amp;pie</translation>
    </message>
</context>
<context>
    <name>host::app::PropertiesPanel</name>
    <message>
        <source>Which of the chosen entities</source>
        <translation>Quali delle entità scelte</translation>
    </message>
    <message>
        <source>Properties</source>
        <translation>Proprietà</translation>
    </message>
    <message>
        <source>Nothing chosen</source>
        <translation>Nulla di scelto</translation>
    </message>
    <message>
        <source>No drawing is open</source>
        <translation>Nessun disegno è aperto</translation>
    </message>
    <message>
        <source>All</source>
        <translation>Tutto</translation>
    </message>
    <message>
        <source>%1 of %2 are on locked layers and stay as they are.</source>
        <translation>%1 di %2 sono su layer bloccati e restano come sono.</translation>
    </message>
    <message>
        <source>Nothing was changed: what is chosen is on locked layers.</source>
        <translation>Nulla è stato modificato: ciò che è scelto è su layer bloccati.</translation>
    </message>
</context>
<context>
    <name>host::app::RecoveryDialog</name>
    <message>
        <source>never saved</source>
        <translation>mai salvato</translation>
    </message>
    <message>
        <source>%1
(changed since by another program)</source>
        <translation>%1
(modificato nel frattempo da un altro programma)</translation>
    </message>
    <message>
        <source>%1
(not there any more)</source>
        <translation>%1
(non c&apos;è più)</translation>
    </message>
    <message>
        <source>Recover drawings</source>
        <translation>Recupera disegni</translation>
    </message>
    <message>
        <source>The program ended without closing these drawings. What had not been saved of them was kept in copies.</source>
        <translation>Il programma è terminato senza chiudere questi disegni. Ciò che non ne era stato salvato è stato conservato in copie.</translation>
    </message>
    <message>
        <source>Drawings to recover</source>
        <translation>Disegni da recuperare</translation>
    </message>
    <message>
        <source>Drawing</source>
        <translation>Disegno</translation>
    </message>
    <message>
        <source>Copied</source>
        <translation>Copiato</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Dimensione</translation>
    </message>
    <message>
        <source>File</source>
        <translation>File</translation>
    </message>
    <message>
        <source>&amp;Open selected</source>
        <translation>&amp;Apri selezionati</translation>
    </message>
    <message>
        <source>&amp;Discard selected...</source>
        <translation>&amp;Scarta selezionati...</translation>
    </message>
    <message>
        <source>&amp;Later</source>
        <translation>Più &amp;tardi</translation>
    </message>
    <message>
        <source>The copies are offered again at the next start</source>
        <translation>Le copie vengono proposte di nuovo al prossimo avvio</translation>
    </message>
    <message>
        <source>(no name)</source>
        <translation>(senza nome)</translation>
    </message>
    <message numerus="yes">
        <source>Discard what was not saved of %n drawing(s)? It cannot be brought back.</source>
        <translation>
            <numerusform>Scartare ciò che non è stato salvato di %n disegno? Non può essere recuperato.</numerusform>
            <numerusform>Scartare ciò che non è stato salvato di %n disegni? Non può essere recuperato.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>host::app::ResultsModel</name>
    <message>
        <source>done</source>
        <translation>fatto</translation>
    </message>
    <message>
        <source>skipped</source>
        <translation>saltato</translation>
    </message>
    <message>
        <source>Outcome</source>
        <translation>Esito</translation>
    </message>
    <message>
        <source>Entity</source>
        <translation>Entità</translation>
    </message>
    <message>
        <source>What and why</source>
        <translation>Che cosa e perché</translation>
    </message>
</context>
<context>
    <name>host::app::ResultsPanel</name>
    <message>
        <source>&amp;Save...</source>
        <translation>&amp;Salva...</translation>
    </message>
    <message>
        <source>Results</source>
        <translation>Risultati</translation>
    </message>
    <message>
        <source>Which results are shown</source>
        <translation>Quali risultati vengono mostrati</translation>
    </message>
    <message>
        <source>All</source>
        <translation>Tutto</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>Fatto</translation>
    </message>
    <message>
        <source>Skipped</source>
        <translation>Saltati</translation>
    </message>
    <message>
        <source>No tool has listed results in this drawing.</source>
        <translation>Nessuno strumento ha elencato risultati in questo disegno.</translation>
    </message>
    <message>
        <source>It is not in the drawing any more.</source>
        <translation>Non è più nel disegno.</translation>
    </message>
    <message>
        <source>It is not in the space that is shown.</source>
        <translation>Non è nello spazio mostrato.</translation>
    </message>
    <message>
        <source>Save results</source>
        <translation>Salva risultati</translation>
    </message>
    <message>
        <source>Text (*.txt);;JSON (*.json)</source>
        <translation>Testo (*.txt);;JSON (*.json)</translation>
    </message>
    <message>
        <source>Written: %1</source>
        <translation>Scritto: %1</translation>
    </message>
</context>
<context>
    <name>host::app::ScriptReader</name>
    <message>
        <source>part: it has no end</source>
        <translation>part: non ha fine</translation>
    </message>
    <message>
        <source>part: the part before it has no end</source>
        <translation>part: la parte precedente non ha fine</translation>
    </message>
    <message>
        <source>end: no part was begun</source>
        <translation>end: nessuna parte è cominciata</translation>
    </message>
    <message>
        <source>drawing: only the first line says which drawing it is</source>
        <translation>drawing: solo la prima riga dice quale disegno è</translation>
    </message>
    <message>
        <source>part: there is a part %1 already</source>
        <translation>part: c&apos;è già una parte %1</translation>
    </message>
    <message>
        <source>part: a part cannot be written in a part</source>
        <translation>part: una parte non può essere scritta in una parte</translation>
    </message>
    <message>
        <source>play: there is no part %1</source>
        <translation>play: non c&apos;è una parte %1</translation>
    </message>
    <message>
        <source>play: the part %1 plays itself</source>
        <translation>play: la parte %1 riproduce se stessa</translation>
    </message>
    <message>
        <source>play: too many parts are played one in the other</source>
        <translation>play: troppe parti vengono riprodotte l&apos;una nell&apos;altra</translation>
    </message>
    <message>
        <source>play: the part %1 takes %2</source>
        <translation>play: la parte %1 prende %2</translation>
    </message>
    <message>
        <source>part %1, line %2</source>
        <translation>parte %1, riga %2</translation>
    </message>
    <message>
        <source>play: the parts write too much</source>
        <translation>play: le parti scrivono troppo</translation>
    </message>
    <message>
        <source>no arguments</source>
        <translation>nessun argomento</translation>
    </message>
</context>
<context>
    <name>host::app::SessionPlayer</name>
    <message>
        <source>the session took longer than %1 s; open is %2</source>
        <translation>la sessione ha impiegato più di %1 s; è aperto %2</translation>
    </message>
    <message>
        <source>no dialog</source>
        <translation>nessun dialogo</translation>
    </message>
    <message>
        <source>${%1} is not known</source>
        <translation>${%1} non è noto</translation>
    </message>
    <message>
        <source>the prompt &quot;%1&quot;</source>
        <translation>la richiesta &quot;%1&quot;</translation>
    </message>
    <message>
        <source>the session ends while %1 is open</source>
        <translation>la sessione finisce mentre %1 è aperto</translation>
    </message>
    <message>
        <source>%1 is open</source>
        <translation>%1 è aperto</translation>
    </message>
    <message>
        <source>%1 is still open</source>
        <translation>%1 è ancora aperto</translation>
    </message>
    <message>
        <source>a view needs two corners</source>
        <translation>una vista richiede due angoli</translation>
    </message>
    <message>
        <source>the run before it ended without an error</source>
        <translation>l&apos;esecuzione precedente è finita senza errore</translation>
    </message>
    <message>
        <source>no prompt and no dialog is open that this could be meant for</source>
        <translation>nessuna richiesta e nessun dialogo aperto a cui potrebbe riferirsi</translation>
    </message>
    <message>
        <source>there is no panel &quot;%1&quot;</source>
        <translation>non c&apos;è un pannello &quot;%1&quot;</translation>
    </message>
    <message>
        <source>it stands in front of a command or lisp</source>
        <translation>sta davanti a un comando o a lisp</translation>
    </message>
    <message>
        <source>the error is &quot;%1&quot;</source>
        <translation>l&apos;errore è &quot;%1&quot;</translation>
    </message>
    <message>
        <source>the run ended with &quot;%1&quot;</source>
        <translation>l&apos;esecuzione è finita con &quot;%1&quot;</translation>
    </message>
    <message>
        <source>cancelled at %1, </source>
        <translation>annullato a %1, </translation>
    </message>
    <message>
        <source>the drawing differs from what it was: %1</source>
        <translation>il disegno è diverso da com&apos;era: %1</translation>
    </message>
    <message>
        <source>there is nothing to undo</source>
        <translation>non c&apos;è nulla da annullare</translation>
    </message>
    <message>
        <source>there is nothing to redo</source>
        <translation>non c&apos;è nulla da ripristinare</translation>
    </message>
    <message>
        <source>it is nil</source>
        <translation>è nil</translation>
    </message>
</context>
<context>
    <name>host::app::SettingEditor</name>
    <message>
        <source>Add to: %1</source>
        <translation>Aggiungi a: %1</translation>
    </message>
    <message>
        <source>Lisp programs (*.lsp)</source>
        <translation>Programmi Lisp (*.lsp)</translation>
    </message>
</context>
<context>
    <name>host::app::SettingsWindow</name>
    <message>
        <source>Settings</source>
        <translation>Impostazioni</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>Cerca</translation>
    </message>
    <message>
        <source>Search the settings</source>
        <translation>Cerca nelle impostazioni</translation>
    </message>
    <message>
        <source>Sections</source>
        <translation>Sezioni</translation>
    </message>
    <message>
        <source>System variables are shown while a drawing is open.</source>
        <translation>Le variabili di sistema vengono mostrate quando è aperto un disegno.</translation>
    </message>
    <message>
        <source>A command is running; Esc stops it.</source>
        <translation>Un comando è in corso; Esc lo ferma.</translation>
    </message>
    <message>
        <source>%1 cannot be &quot;%2&quot;.</source>
        <translation>%1 non può essere &quot;%2&quot;.</translation>
    </message>
</context>
<context>
    <name>host::app::StartPage</name>
    <message>
        <source>Recent drawings</source>
        <translation>Disegni recenti</translation>
    </message>
    <message>
        <source>Samples</source>
        <translation>Esempi</translation>
    </message>
    <message>
        <source>Ortakit</source>
        <translation>Ortakit</translation>
    </message>
    <message>
        <source>First steps</source>
        <translation>Primi passi</translation>
    </message>
    <message>
        <source>&amp;New drawing</source>
        <translation>&amp;Nuovo disegno</translation>
    </message>
    <message>
        <source>&amp;Open drawings...</source>
        <translation>&amp;Apri disegni...</translation>
    </message>
    <message>
        <source>Open &amp;last time&apos;s drawings</source>
        <translation>Apri disegni dell&apos;u&amp;ltima volta</translation>
    </message>
    <message>
        <source>Look at a sample</source>
        <translation>Guarda un esempio</translation>
    </message>
    <message>
        <source>Draw a line</source>
        <translation>Disegna una linea</translation>
    </message>
    <message>
        <source>Read the help</source>
        <translation>Leggi la guida</translation>
    </message>
    <message>
        <source>(not there any more)</source>
        <translation>(non c&apos;è più)</translation>
    </message>
    <message>
        <source>%1 (pinned)</source>
        <translation>%1 (fissato)</translation>
    </message>
    <message>
        <source>Un&amp;pin</source>
        <translation>&amp;Sblocca</translation>
    </message>
    <message>
        <source>&amp;Pin</source>
        <translation>&amp;Fissa</translation>
    </message>
    <message>
        <source>&amp;Remove from the list</source>
        <translation>&amp;Rimuovi dall&apos;elenco</translation>
    </message>
</context>
<context>
    <name>host::app::StatusSwitches</name>
    <message>
        <source>%1 on</source>
        <translation>%1 attivo</translation>
    </message>
    <message>
        <source>%1 off</source>
        <translation>%1 disattivo</translation>
    </message>
    <message>
        <source>GRID</source>
        <translation>GRIGLIA</translation>
    </message>
    <message>
        <source>Shows the grid</source>
        <translation>Mostra la griglia</translation>
    </message>
    <message>
        <source>SNAP</source>
        <translation>SNAP</translation>
    </message>
    <message>
        <source>Points snap to the grid</source>
        <translation>I punti agganciano la griglia</translation>
    </message>
    <message>
        <source>ORTHO</source>
        <translation>ORTO</translation>
    </message>
    <message>
        <source>Points lie along the axes from the last one</source>
        <translation>I punti stanno lungo gli assi dall&apos;ultimo</translation>
    </message>
    <message>
        <source>POLAR</source>
        <translation>POLARE</translation>
    </message>
    <message>
        <source>Points lock to angles from the last one</source>
        <translation>I punti si bloccano su angoli dall&apos;ultimo</translation>
    </message>
    <message>
        <source>OSNAP</source>
        <translation>OSNAP</translation>
    </message>
    <message>
        <source>Points snap to entities</source>
        <translation>I punti agganciano le entità</translation>
    </message>
    <message>
        <source>DYN</source>
        <translation>DIN</translation>
    </message>
    <message>
        <source>Length and angle stand at the pointer; Tab locks what was typed</source>
        <translation>Lunghezza e angolo stanno accanto al puntatore; Tab blocca ciò che è stato digitato</translation>
    </message>
</context>
<context>
    <name>host::app::StyleBar</name>
    <message>
        <source>Current properties</source>
        <translation>Proprietà correnti</translation>
    </message>
    <message>
        <source>Layer</source>
        <translation>Layer</translation>
    </message>
    <message>
        <source>Color</source>
        <translation>Colore</translation>
    </message>
    <message>
        <source>Linetype</source>
        <translation>Tipo di linea</translation>
    </message>
    <message>
        <source>Lineweight</source>
        <translation>Spessore linea</translation>
    </message>
</context>
<context>
    <name>host::app::SuggestionList</name>
    <message>
        <source>Suggestions</source>
        <translation>Suggerimenti</translation>
    </message>
</context>
<context>
    <name>host::app::TextEditing</name>
    <message>
        <source>It is on a locked layer.</source>
        <translation>È su un layer bloccato.</translation>
    </message>
    <message>
        <source>A text without letters could not be found again: it stays as it was.</source>
        <translation>Un testo senza lettere non si ritroverebbe più: resta com&apos;era.</translation>
    </message>
    <message>
        <source>Edit attribute definition</source>
        <translation>Modifica definizione di attributo</translation>
    </message>
    <message>
        <source>Tag</source>
        <translation>Etichetta</translation>
    </message>
    <message>
        <source>Prompt</source>
        <translation>Richiesta</translation>
    </message>
    <message>
        <source>Default</source>
        <translation>Default</translation>
    </message>
    <message>
        <source>A tag has no blanks.</source>
        <translation>Un&apos;etichetta non ha spazi.</translation>
    </message>
    <message>
        <source>The value is constant: the block says it.</source>
        <translation>Il valore è costante: lo stabilisce il blocco.</translation>
    </message>
    <message>
        <source>Several lines, with \P between them.</source>
        <translation>Più righe, separate da \P.</translation>
    </message>
    <message>
        <source>Attributes of %1</source>
        <translation>Attributi di %1</translation>
    </message>
</context>
<context>
    <name>host::app::TrustBar</name>
    <message>
        <source>%1 was not read: %2</source>
        <translation>%1 non è stato letto: %2</translation>
    </message>
    <message>
        <source>%1 was not loaded: %2</source>
        <translation>%1 non è stato caricato: %2</translation>
    </message>
    <message>
        <source>%1 was not started: %2</source>
        <translation>%1 non è stato avviato: %2</translation>
    </message>
    <message>
        <source>Allow &amp;once</source>
        <translation>Consenti &amp;una volta</translation>
    </message>
    <message>
        <source>Trust the folde&amp;r</source>
        <translation>Considera attendibile la ca&amp;rtella</translation>
    </message>
    <message>
        <source>What was kept from running or being read</source>
        <translation>Ciò di cui è stata impedita l&apos;esecuzione o la lettura</translation>
    </message>
    <message>
        <source>Files and programs that were kept back</source>
        <translation>File e programmi trattenuti</translation>
    </message>
    <message>
        <source>%1 things were kept back: they are named here but not in trusted folders.</source>
        <translation>%1 elementi trattenuti: sono nominati qui, ma non sono in cartelle attendibili.</translation>
    </message>
</context>
<context>
    <name>host::app::ValuesDialog</name>
    <message>
        <source>Tag</source>
        <translation>Etichetta</translation>
    </message>
    <message>
        <source>Prompt</source>
        <translation>Richiesta</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>Valore</translation>
    </message>
</context>
<context>
    <name>host::app::WindowDialogs</name>
    <message>
        <source>Printed on %1.</source>
        <translation>Stampato su %1.</translation>
    </message>
    <message>
        <source>Print to file</source>
        <translation>Stampa su file</translation>
    </message>
    <message>
        <source>%1 files (*.%2)</source>
        <translation>File %1 (*.%2)</translation>
    </message>
    <message>
        <source>&amp;New</source>
        <translation>&amp;Nuovo</translation>
    </message>
    <message>
        <source>&amp;Rename...</source>
        <translation>&amp;Rinomina...</translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation>&amp;Copia</translation>
    </message>
    <message>
        <source>&amp;Delete</source>
        <translation>&amp;Elimina</translation>
    </message>
    <message>
        <source>Move &amp;left</source>
        <translation>Sposta a &amp;sinistra</translation>
    </message>
    <message>
        <source>Move righ&amp;t</source>
        <translation>Sposta a &amp;destra</translation>
    </message>
    <message>
        <source>&amp;Page setup...</source>
        <translation>Imposta &amp;pagina...</translation>
    </message>
    <message>
        <source>Rename layout</source>
        <translation>Rinomina layout</translation>
    </message>
    <message>
        <source>&amp;Name:</source>
        <translation>&amp;Nome:</translation>
    </message>
</context>
<context>
    <name>host::app::Workbench</name>
    <message>
        <source>The folder of the Lisp tools was not found; there are no tools.</source>
        <translation>La cartella degli strumenti Lisp non è stata trovata; non ci sono strumenti.</translation>
    </message>
    <message>
        <source>There is no folder %1; there are no tools.</source>
        <translation>Non c&apos;è una cartella %1; non ci sono strumenti.</translation>
    </message>
    <message>
        <source>The plug-in module was not found; tools with dialogs will not work.</source>
        <translation>Il modulo plug-in non è stato trovato; gli strumenti con dialoghi non funzioneranno.</translation>
    </message>
    <message>
        <source>%1 Tools with dialogs will not work.</source>
        <translation>%1 Gli strumenti con dialoghi non funzioneranno.</translation>
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
        <translation>la cartella %1 non accetta file</translation>
    </message>
</context>
<context>
    <name>host::kernel::ColourDialog</name>
    <message>
        <source>Select Color</source>
        <translation>Seleziona colore</translation>
    </message>
    <message>
        <source>By&amp;Layer</source>
        <translation>Da&amp;Layer</translation>
    </message>
    <message>
        <source>By&amp;Block</source>
        <translation>Da&amp;Blocco</translation>
    </message>
    <message>
        <source>&amp;More Colors...</source>
        <translation>&amp;Altri colori...</translation>
    </message>
    <message>
        <source>&amp;Color:</source>
        <translation>&amp;Colore:</translation>
    </message>
</context>
<context>
    <name>host::kernel::DrawingBackup</name>
    <message>
        <source>No backup of %1: %2.</source>
        <translation>Nessun backup di %1: %2.</translation>
    </message>
    <message>
        <source>the backup would take the place of the drawing</source>
        <translation>il backup prenderebbe il posto del disegno</translation>
    </message>
    <message>
        <source>there is no folder %1</source>
        <translation>non c&apos;è una cartella %1</translation>
    </message>
</context>
<context>
    <name>host::view::DifferencePicture</name>
    <message>
        <source>gone: %n</source>
        <translation>non ci sono più: %n</translation>
    </message>
    <message>
        <source>new: %n</source>
        <translation>nuove: %n</translation>
    </message>
    <message>
        <source>changed, as it was: %n</source>
        <translation>modificate, come erano: %n</translation>
    </message>
    <message>
        <source>changed, as it is: %n</source>
        <translation>modificate, come sono: %n</translation>
    </message>
    <message>
        <source>the same in both</source>
        <translation>lo stesso in entrambi</translation>
    </message>
    <message>
        <source>the picture is too large</source>
        <translation>l&apos;immagine è troppo grande</translation>
    </message>
</context>
<context>
    <name>host::view::Export</name>
    <message>
        <source>Cannot make a picture of this size for %1</source>
        <translation>Impossibile fare un&apos;immagine di questa dimensione per %1</translation>
    </message>
    <message>
        <source>Cannot write %1: %2</source>
        <translation>Impossibile scrivere %1: %2</translation>
    </message>
    <message>
        <source>The sheet would be %1 by %2 pixels; %3 each way are the most</source>
        <translation>Il foglio sarebbe di %1 per %2 pixel; il massimo per verso è %3</translation>
    </message>
    <message>
        <source>There is no block named %1</source>
        <translation>Non c&apos;è un blocco di nome %1</translation>
    </message>
    <message>
        <source>There is no layout named %1</source>
        <translation>Non c&apos;è un layout di nome %1</translation>
    </message>
    <message>
        <source>it is not found</source>
        <translation>non è stato trovato</translation>
    </message>
    <message>
        <source>the plot styles %1 are left out: %2</source>
        <translation>gli stili di stampa %1 vengono tralasciati: %2</translation>
    </message>
</context>
</TS>
