; Dialogues of dialogues/ in German, and what Lisp programs ask there, which stays as they wrote it. Words and their
; abbreviations are those of the catalogue; English ones are taken behind "_", and without it where the language has none.
(defun word (keywords) (initget keywords) (getkword "Continue? [Yes/No] <No>: "))

(getvar "LOCALE") ;= "DEU"
(word "Yes No") ;< y\n ;> Continue? [Yes/No] <No>: ;= "Yes"
(word "Yes No") ;< _Yes\n ;= "Yes"
(word "Yes No") ;< Ja\nNo\n ;= "No"
(word "Ja Nein") ;< J\n ;= "Ja"
(word "Ja Nein _Yes No") ;< Ja\n ;= "Yes"
(progn (command "LINE" "0,0" "1,0" "1,1" "Close") (sslength (ssget "X"))) ;= 3
(progn (command "LINE" "0,0" "1,0" "1,1" "_C") (sslength (ssget "X"))) ;= 3
(progn (command "LINE" "0,0" "1,0" "1,1" "Schließen") (sslength (ssget "X"))) ;= 3
(progn (command "LINE" "0,0" "1,0" "1,1" "Clore" "") (sslength (ssget "X"))) ;= 2
(line 0 0 2 1) ;! MIRROR|_ALL||5,0|5,9| ;> [Ja/Nein] <Nein> ;= LINE 10=0,0,0 11=2,1,0; LINE 10=10,0,0 11=8,1,0
(line 0 0 2 1) ;! MIRROR|_ALL||5,0|5,9|_Y ;= LINE 10=10,0,0 11=8,1,0
(line 0 0 2 1) ;! MIRROR|_ALL||5,0|5,9|Yes ;= LINE 10=10,0,0 11=8,1,0
;! LINE|0,0|1,0| ;~ keeps ;> [ZUrück] ;= LINE 10=0,0,0 11=1,0,0
;! LINE|0,0|1,0|1,1|_Close ;~ keeps ;> [Schließen/ZUrück] ;= LINE 10=0,0,0 11=1,0,0; LINE 10=1,0,0 11=1,1,0; LINE 10=1,1,0 11=0,0,0
;! LINE|0,0|1,0|1,1|Schließen ;~ keeps ;= LINE 10=0,0,0 11=1,0,0; LINE 10=1,0,0 11=1,1,0; LINE 10=1,1,0 11=0,0,0
;! LINE|0,0|1,0|1,1|S ;~ keeps ;= LINE 10=0,0,0 11=1,0,0; LINE 10=1,0,0 11=1,1,0; LINE 10=1,1,0 11=0,0,0
;! LINE|0,0|1,0|zu|5,5| ;~ keeps ;= LINE 10=0,0,0 11=5,5,0
;! PLINE|0,0|_Width|1|3|10,0|20,0| ;= LWPOLYLINE 10=0,0 40=1 41=3 10=10,0 40=3 41=3 10=20,0
;! PLINE|0,0|BReite|1|3|10,0|20,0| ;= LWPOLYLINE 10=0,0 40=1 41=3 10=10,0 40=3 41=3 10=20,0
;! PLINE|0,0|H|1||10,0| ;= LWPOLYLINE 10=0,0 40=2 41=2 10=10,0
;! CIRCLE|1,2|Durchmesser|5 ;= CIRCLE 10=1,2,0 40=2.5
;! CIRCLE|1,2|D|5 ;= CIRCLE 10=1,2,0 40=2.5
;! CIRCLE|2P|0,0|10,0 ;= CIRCLE 10=5,0,0 40=5
;! ARC|_Center|0,0|1,0|0,1 ;= ARC 10=0,0,0 40=1 51=90
;! ARC|Zentrum|0,0|1,0|0,1 ;= ARC 10=0,0,0 40=1 51=90
;! ARC|Z|0,0|1,0|W|90 ;= ARC 10=0,0,0 40=1 51=90
(line 10 10 30 20)(line 0 0 1 1) ;! ZOOM|Objekt|20,15| ;? (getvar "VIEWCTR") ;= (20.0 15.0 0.0)
(line 10 10 30 20)(line 0 0 1 1) ;! ZOOM|O|20,15| ;? (getvar "VIEWCTR") ;= (20.0 15.0 0.0)
;! ZOOM|z|5,6|10 ;? (list (getvar "VIEWCTR") (getvar "VIEWSIZE")) ;= ((5.0 6.0 0.0) 10.0)
;! -LAYER|_Make|B 1| ;~ keeps ;? (getvar "CLAYER") ;= "B 1"
;! -LAYER|Machen|B 1| ;~ keeps ;? (getvar "CLAYER") ;= "B 1"
;! -LAYER|N|B| ;~ keeps ;? (= (tblobjname "LAYER" "B") nil) ;= nil
(line 0 0 2 0) ;! ROTATE|ALLe||0,0|BEzug|30|120 ;= LINE 10=0,0,0 11=0,2,0
(line 0 0 2 0) ;! ROTATE|ALL||0,0|BE|30|120 ;= LINE 10=0,0,0 11=0,2,0
(line 0 0 2 0) ;! ROTATE|all||0,0|k|180 ;= LINE 10=0,0,0 11=2,0,0; LINE 10=0,0,0 11=-2,0,0
(line 1 0 2 0) ;! SCALE|_ALL||0,0|_Reference|2|6,0 ;= LINE 10=3,0,0 11=6,0,0
(line 1 0 2 0) ;! SCALE|ALLe||0,0|BEzug|2|6,0 ;= LINE 10=3,0,0 11=6,0,0
(line 0 0 2 1) ;! MIRROR|L||5,0|5,9|J ;= LINE 10=10,0,0 11=8,1,0
(line 0 0 2 1) ;! MIRROR|ALLe||5,0|5,9|Nein ;= LINE 10=0,0,0 11=2,1,0; LINE 10=10,0,0 11=8,1,0
(line 0 0 2 1) ;! MIRROR|ALL||5,0|5,9|N ;= LINE 10=0,0,0 11=2,1,0; LINE 10=10,0,0 11=8,1,0
(line 0 0 2 1) ;! MOVE|all||v|3,4 ;= LINE 10=3,4,0 11=5,5,0
(setvar "COPYMODE" 1)(line 0 0 1 0) ;! COPY|_ALL||_Multiple|0,0|0,1|0,2| ;~ keeps ;= LINE 10=0,0,0 11=1,0,0; LINE 10=0,1,0 11=1,1,0; LINE 10=0,2,0 11=1,2,0
(setvar "COPYMODE" 1)(line 0 0 1 0) ;! COPY|ALLe||Mehrfach|0,0|0,1|0,2| ;~ keeps ;= LINE 10=0,0,0 11=1,0,0; LINE 10=0,1,0 11=1,1,0; LINE 10=0,2,0 11=1,2,0
(setvar "COPYMODE" 0)(line 0 0 1 0) ;! COPY|ALL||O|E|0,0|0,1 ;~ keeps ;= LINE 10=0,0,0 11=1,0,0; LINE 10=0,1,0 11=1,1,0
(line 0 0 9 0)(line 5 5 5 9) ;! TRIM||KAnte|Dehnen|9,0| ;~ keeps ;= LINE 10=0,0,0 11=5,0,0; LINE 10=5,5,0 11=5,9,0
(line 0 0 9 0)(line 5 5 5 9) ;! TRIM||KA|D|9,0| ;~ keeps ;= LINE 10=0,0,0 11=5,0,0; LINE 10=5,5,0 11=5,9,0
(line 0 0 12 0)(line 10 -2 10 9)(view) ;! FILLET|ra|0|2,0|10,5 ;~ keeps ;= LINE 10=0,0,0 11=10,0,0; LINE 10=10,0,0 11=10,9,0
(line 0 0 12 0)(line 10 -2 10 9)(view) ;! CHAMFER|_Distance|1|2|2,0|10,5 ;~ keeps ;= LINE 10=0,0,0 11=9,0,0; LINE 10=10,2,0 11=10,9,0; LINE 10=9,0,0 11=10,2,0
(line 0 0 12 0)(line 10 -2 10 9)(view) ;! CHAMFER|Abstand|1|2|2,0|10,5 ;~ keeps ;= LINE 10=0,0,0 11=9,0,0; LINE 10=10,2,0 11=10,9,0; LINE 10=9,0,0 11=10,2,0
(line 0 0 12 0)(line 10 -2 10 9)(view) ;! CHAMFER|W|2|45|2,0|10,5 ;~ keeps ;= LINE 10=0,0,0 11=8,0,0; LINE 10=10,2,0 11=10,9,0; LINE 10=8,0,0 11=10,2,0
(line 0 0 10 0)(view) ;! OFFSET|Durch|5,0|20,3| ;~ keeps ;= LINE 10=0,0,0 11=10,0,0; LINE 10=0,3,0 11=10,3,0
(line 0 0 10 0)(view) ;! OFFSET|D|5,0|20,3| ;~ keeps ;= LINE 10=0,0,0 11=10,0,0; LINE 10=0,3,0 11=10,3,0
(line 0 0 1 0) ;! -ARRAY|all||r|1|2|-3 ;= LINE 10=0,0,0 11=1,0,0; LINE 10=-3,0,0 11=-2,0,0
(box 0 0 10 6) ;! -HATCH|_Properties|ANSI31|2|0|5,3| ;? (own '(2 70 71)) ;= ("ANSI31" 0 1)
(box 0 0 10 6) ;! -HATCH|Eigenschaften|ANSI31|2|0|5,3| ;? (own '(2 70 71)) ;= ("ANSI31" 0 1)
;! DIMLINEAR|1,2|11,5|H|15,3 ;? (own '(42)) ;= (10.0)
;! DIMLINEAR|1,2|11,5|Vertikal|15,3 ;? (own '(42)) ;= (3.0)
;! DIMLINEAR|1,2|11,5|V|15,3 ;? (own '(42)) ;= (3.0)
;! MTEXT|0,0|au|mz|h|2|dr|90|br|30|line| ;= MTEXT 10=0,0,0 40=2 41=30 71=5 72=5 1=line 11=0,1,0 73=1 44=1
;! TEXT|_Justify|_Fit|0,0|10,0|3|AB ;= TEXT 40=3 1=AB 11=10,0,0 72=5
;! TEXT|AUsrichten|ANpassen|0,0|10,0|3|AB ;= TEXT 40=3 1=AB 11=10,0,0 72=5
;! TEXT|AU|AU|0,0|10,0|AB ;? (own '(72)) ;= (3)
(door) ;! -INSERT|Door|SKalieren|2|5,5|0 ;= INSERT 2=Door 10=5,5,0 41=2 42=2 43=2
(door) ;! -INSERT|Door|SK|2|5,5|0 ;= INSERT 2=Door 10=5,5,0 41=2 42=2 43=2
(door) ;! -INSERT|Door|Y|3|d|90|5,5 ;= INSERT 2=Door 10=5,5,0 41=1 42=3 43=1 50=90
(line 1 2 4 2) ;! -BLOCK|Gate|1,2|_ALL| ;? (entlast) ;= nil
(line 1 2 4 2) ;! -BLOCK|Gate|1,2|ALLe| ;? (entlast) ;= nil
(line 0 0 5 0)(view) ;! PEDIT|2,0|J|BR|2| ;~ keeps ;= LWPOLYLINE 10=0,0 40=2 41=2 10=5,0 40=2 41=2
(line 0 0 4 0)(line 4 0 4 4)(view) ;! PEDIT|2,0|Ja|VErbinden|ALLe||| ;~ keeps ;= LWPOLYLINE 10=0,0 10=4,0 10=4,4
(line 0 0 4 0)(line 4 0 4 4)(view) ;! PEDIT|2,0|J|VE|ALL||| ;~ keeps ;= LWPOLYLINE 10=0,0 10=4,0 10=4,4
(sheet) ;! MVIEW|an ;? (length (ports '(10))) ;= 2
;! UCS|_NAmed|_Save|Wall ;? (= (tblobjname "UCS" "Wall") nil) ;= nil
;! UCS|BEnannt|SIchern|Wall ;? (= (tblobjname "UCS" "Wall") nil) ;= nil
;! UCS|ZA|0,0,0|0,-1,0 ;? (rounded (getvar "UCSYDIR")) ;= (0.0 0.0 1.0)
;! -LAYOUT|Neu|Plan ;? (tabs) ;= ("Model" "Layout1" "Plan")
;! -LAYOUT|N|Plan ;? (tabs) ;= ("Model" "Layout1" "Plan")
;! MLEADER|i|10,10|20,12|Note|30,30 ;? (car (points)) ;= (2.0 10.0 0.0)
(line 0 0 1 0)(line 1 0 5 5) ;! ERASE|_ALL|_Remove|_Last| ;= LINE 10=1,0,0 11=5,5,0
(line 0 0 1 0)(line 1 0 5 5) ;! ERASE|ALLe|Entfernen|Letztes| ;= LINE 10=1,0,0 11=5,5,0
(line 0 0 1 0)(line 1 0 5 5) ;! ERASE|F|-1,-1|2,2| ;= LINE 10=1,0,0 11=5,5,0
(line 0 0 1 0)(line 1 0 5 5) ;! ERASE|Kreuzen|2,2|-1,-1| ;=
(line 0 0 1 0)(line 1 0 5 5) ;! ERASE|K|2,2|-1,-1| ;=
(line 0 0 1 0)(line 1 0 5 5) ;! ERASE|all|e|all|h|l| ;= LINE 10=0,0,0 11=1,0,0
(line 0 0 1 0)(line 1 0 5 5) ;! ERASE|_ALL|_Undo|_Last| ;= LINE 10=0,0,0 11=1,0,0
(line 0 0 1 0)(line 1 0 5 5) ;! ERASE|ALLe|ZUrück|Letztes| ;= LINE 10=0,0,0 11=1,0,0
(line 0 0 2 0)(on-layer "B")(command "_CHPROP" "_L" "" "_C" "1" "") ;! MATCHPROP|1.5,1.5|E|LA||1,0| ;? (mapcar '(lambda (c) (cdr (assoc c (entget (entnext))))) '(8 62)) ;= ("0" 1)
