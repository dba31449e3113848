;! NETLOAD|x.dll ;> was not loaded ;= 
;! MENULOAD|x.mnu ;> no menu files here ;=
;! MENUUNLOAD|custom ;> There is no customization group ;=
;! ARX|L|x.arx ;> do not run here ;=
;! DELAY|5 ;=
;! DELAY|-5 ;> must not be negative ;=
;! AUDIT|Y ;> Total errors found 0 fixed 0 ;=
;! TEXTSCR ;=
(tables) ;! PURGE|LA|*|N ;? (left "Spare") ;= (nil T T T T)
;! -PLOT|N|None ;> Layout "None" not found ;=
;! -PLOT|Y|?|Model|Plotter ;> plots are files of PDF, PNG or SVG ;=
;! -PLOT|Y|Model|PDF|B9 ;> There is no paper size "B9" ;=
;! -PLOT|Y|Model|PDF|A4|M|L|N|V|Front ;> Cannot find view "Front" ;=
;! -PLOT|Y|Model|PDF|A4|M|L|N|E|wide ;> "wide" is no plot scale ;=
(line 1 1 5 5) ;! -PLOT|Y|Model|PDF|A4|M|L|N|E|F|C|Y|none.ctb|Y|A|nowhere/x|N|Y ;> Cannot find plot style table ;= LINE 10=1,1,0 11=5,5,0
(line 1 1 5 5) ;! -PLOT|Y|Model|PDF|A4|M|L|N|E|F|C|Y||Y|A|nowhere/x|N|Y ;> Cannot write ;= LINE 10=1,1,0 11=5,5,0
(line 1 1 5 5) ;! -PLOT|N|Layout1||PDF|nowhere/x|N|N ;= LINE 10=1,1,0 11=5,5,0
(door)(entmake '((0 . "INSERT") (2 . "door") (10 0.0 0.0 0.0))) ;! -RENAME|B|Door|Gate ;= INSERT 2=Gate 10=0,0,0
(door)(entmake '((0 . "INSERT") (2 . "Door") (10 0.0 0.0 0.0))) ;! RENAME|B|door|DOOR ;= INSERT 2=DOOR 10=0,0,0
(door)(label) ;! -RENAME|B|Door|label ;> Block "label" already exists ;=
;! -RENAME|B|*Model_Space|M ;> cannot be renamed ;=
(tables) ;! -RENAME|LT|used|Mine ;? (list (cdr (assoc 6 (entget (entlast)))) (left "Used")) ;= ("Mine" (T nil T T T))
(tables) ;! -RENAME|S|Used|Mine ;? (list (cdr (assoc 7 (entget (entlast)))) (left "Used")) ;= ("Mine" (T T nil T T))
(tables) ;! -RENAME|LA|Used|Mine ;? (list (cdr (assoc 8 (entget (entlast)))) (left "Used")) ;= ("Mine" (nil T T T T))
(tables) ;! -RENAME|D|Used|Mine ;? (left "Used") ;= (T T T nil T)
;! -RENAME|LT|Continuous|Full ;> cannot be renamed ;=
;! -RENAME|S|None|Full ;> Cannot find text style "None" ;=
;! -RENAME|S|Standard|A*B ;> cannot be a name ;=
(save-ucs "Wall")(command "UCS" "R" "Wall") ;! -RENAME|U|wall|Side ;? (list (getvar "UCSNAME") (car (entry-of "UCS" "Side" '(10)))) ;= ("Side" (1.0 2.0 3.0))
(command "-VIEW" "S" "Here") ;! -RENAME|VI|here|There ;? (list (tblsearch "VIEW" "Here") (type (tblsearch "VIEW" "There"))) ;= (nil LIST)
(command "-VPORTS" "2" "" "-VPORTS" "S" "Two") ;! -RENAME|VP|two|Pair ;? (mapcar 'car (screen)) ;= ("*Active" "*Active" "Pair" "Pair")
(plan) ;! -RENAME|LAYO|plan|Ground ;? (tabs) ;= ("Model" "Layout1" "Ground")
;! UNDEFINE|nosuch ;> Unknown command "nosuch" ;=
;! LIMITS|1,2|30,40 ;? (list (getvar "LIMMIN") (getvar "LIMMAX")) ;= ((1.0 2.0) (30.0 40.0))
;! LIMITS|ON ;? (getvar "LIMCHECK") ;= 1
;! ELEV|2|3 ;? (list (getvar "ELEVATION") (getvar "THICKNESS")) ;= (2.0 3.0)
;! COLOR|_red ;? (getvar "CECOLOR") ;= "1"
;! -COLOR|ByBlock ;? (getvar "CECOLOR") ;= "BYBLOCK"
;! -COLOR|nocolour ;> cannot be set to that value ;? (getvar "CECOLOR") ;= "BYLAYER"
;! ORTHO|ON ;? (getvar "ORTHOMODE") ;= 1
;! ORTHO|1 ;? (getvar "ORTHOMODE") ;= 1
(setvar "FILLMODE" 1) ;! FILL|0 ;? (getvar "FILLMODE") ;= 0
;! SNAP|ON ;? (list (getvar "SNAPUNIT") (getvar "SNAPMODE")) ;= ((10.0 10.0) 1)
;! SNAP|A|2| ;? (getvar "SNAPUNIT") ;= (2.0 10.0)
(turned) ;! SNAP|R|1,2|30 ;? (list (getvar "SNAPBASE") (angtos (getvar "SNAPANG") 0 2)) ;= ((1.0 2.0) "30.00")
;! SNAP|R|| ;? (list (getvar "SNAPBASE") (getvar "SNAPANG")) ;= ((0.0 0.0) 0.0)
;! SNAP|S|I|3 ;? (mapcar 'getvar '("SNAPSTYL" "SNAPUNIT" "SNAPMODE")) ;= (1 (3.0 3.0) 1)
(setvar "SNAPSTYL" 1) ;! SNAP|S|S|A|1|2 ;? (mapcar 'getvar '("SNAPSTYL" "SNAPUNIT")) ;= (0 (1.0 2.0))
(setvar "SNAPTYPE" 0) ;! SNAP|T|P ;? (getvar "SNAPTYPE") ;= 1
(setvar "SNAPTYPE" 0) ;! SNAP|T| ;? (getvar "SNAPTYPE") ;= 0
;! SNAP|-5 ;> must not be negative ;? (getvar "SNAPMODE") ;= 0
(setvar "SNAPUNIT" '(3 4)) ;! GRID|S ;? (getvar "GRIDUNIT") ;= (3.0 4.0)
;! ISOPLANE| ;> Current Isoplane: Top ;? (getvar "SNAPISOPAIR") ;= 1
(setvar "SNAPISOPAIR" 2) ;! ISOPLANE| ;? (getvar "SNAPISOPAIR") ;= 0
;! ISOPLANE|R ;? (getvar "SNAPISOPAIR") ;= 2
;! LINE|0,0|'ISOPLANE|T|1,0| ;~ keeps ;? (getvar "SNAPISOPAIR") ;= 1
;! MULTIPLE|CIRCEL ;> Unknown command "CIRCEL" ;=
;! MULTIPLE| ;=
;! SNAP|5 ;? (list (getvar "SNAPUNIT") (getvar "SNAPMODE")) ;= ((5.0 5.0) 1)
;! GRID|A|2|4 ;? (getvar "GRIDUNIT") ;= (2.0 4.0)
;! UNITS|2|4|1|2|0|N ;? (mapcar 'getvar '("LUNITS" "LUPREC" "AUNITS" "AUPREC")) ;= (2 4 0 2)
;! -UNITS|4|16|5|4|90|Y ;? (list (getvar "LUNITS") (getvar "LUPREC") (getvar "AUNITS") (rtos (getvar "ANGBASE") 2 4) (getvar "ANGDIR")) ;= (4 4 4 "1.5708" 1)
;! UNITS|5|3 ;> Requires a power of two ;? (getvar "LUNITS") ;= 2
;! UNITS|6 ;> Requires an integer between 1 and 5 ;? (getvar "LUNITS") ;= 2
;! LWEIGHT|0.5 ;? (getvar "CELWEIGHT") ;= 50
;! -LWEIGHT|_d ;? (getvar "CELWEIGHT") ;= -3
;! -LWEIGHT|3 ;> Requires a lineweight ;? (getvar "CELWEIGHT") ;= -1
;! COLOUR|3 ;? (getvar "CECOLOR") ;= "3"
;! OPEN|nosuch.dxf ;> Cannot find file "nosuch.dxf" ;=
;! NEW|nosuch ;> Cannot find template "nosuch" ;=
(line 1 1 2 2) ;! CLOSE|C ;= LINE 10=1,1,0 11=2,2,0
(line 1 1 2 2) ;! CLOSEALL|Cancel ;= LINE 10=1,1,0 11=2,2,0
(line 1 1 2 2) ;! QUIT|N ;= LINE 10=1,1,0 11=2,2,0
;! RSCRIPT ;> No script has been run ;=
;! HELP ;> No help page ;=
;! UNDO|A|OFF ;=
;! UNDO|C|None ;> Undo is always on ;=
;! UNDO|C|Combine|N ;=
(dimension)(on-layer "Walls") ;! -RENAME|LA|walls|WALLS ;? (cdr (assoc 8 (entget (entlast)))) ;= "WALLS"
(on-layer "A")(on-layer "B") ;! -RENAME|LA|A|b ;> already exists ;? (on-layers) ;= ("A" "B")
;! -RENAME|LA|0|Zero ;> cannot be renamed ;=
(on-layer "A") ;! -RENAME|LA|A|A,B ;> cannot be the name ;? (on-layers) ;= ("A")
(regapp "App")(on-layer "A")(entmake '((0 . "POINT") (10 1.0 0.0 0.0) (-3 ("App" (1003 . "A"))))) ;! -RENAME|LA|A|B ;? (cdadr (assoc -3 (entget (entlast) '("*")))) ;= ((1003 . "B"))
(tables)(setvar "TEXTSTYLE" "Used") ;! -RENAME|ST|used|Mine ;? (getvar "TEXTSTYLE") ;= "Mine"
(tables)(setvar "CELTYPE" "Used") ;! -RENAME|LT|used|Mine ;? (getvar "CELTYPE") ;= "Mine"
(tables)(setvar "CLAYER" "Used") ;! -RENAME|LA|used|Mine ;? (getvar "CLAYER") ;= "Mine"
(door)(nested) ;! -RENAME|B|Door|Gate ;? (block-part "Outer" '(0 2)) ;= ("INSERT" "Gate")
