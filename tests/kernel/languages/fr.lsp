; Dialogues of dialogues/ in French, and what Lisp programs ask there, which stays as they wrote it. Words and their
; abbreviations are those of the catalogue; English ones are taken behind "_", and without it where the language has none.
(defun word (keywords) (initget keywords) (getkword "Continue? [Yes/No] <No>: "))

(getvar "LOCALE") ;= "FRA"
(word "Yes No") ;< y\n ;> Continue? [Yes/No] <No>: ;= "Yes"
(word "Yes No") ;< _Yes\n ;= "Yes"
(word "Yes No") ;< Oui\nNo\n ;= "No"
(word "Oui Non") ;< O\n ;= "Oui"
(word "Oui Non _Yes No") ;< Oui\n ;= "Yes"
(progn (command "LINE" "0,0" "1,0" "1,1" "Close") (sslength (ssget "X"))) ;= 3
(progn (command "LINE" "0,0" "1,0" "1,1" "_C") (sslength (ssget "X"))) ;= 3
(progn (command "LINE" "0,0" "1,0" "1,1" "Clore") (sslength (ssget "X"))) ;= 3
(progn (command "LINE" "0,0" "1,0" "1,1" "Schließen" "") (sslength (ssget "X"))) ;= 2
(line 0 0 2 1) ;! MIRROR|_ALL||5,0|5,9| ;> [Oui/Non] <Non> ;= LINE 10=0,0,0 11=2,1,0; LINE 10=10,0,0 11=8,1,0
(line 0 0 2 1) ;! MIRROR|_ALL||5,0|5,9|_Y ;= LINE 10=10,0,0 11=8,1,0
(line 0 0 2 1) ;! MIRROR|_ALL||5,0|5,9|Yes ;= LINE 10=10,0,0 11=8,1,0
;! LINE|0,0|1,0| ;~ keeps ;> [annUler] ;= LINE 10=0,0,0 11=1,0,0
;! LINE|0,0|1,0|1,1|_Close ;~ keeps ;> [Clore/annUler] ;= LINE 10=0,0,0 11=1,0,0; LINE 10=1,0,0 11=1,1,0; LINE 10=1,1,0 11=0,0,0
;! LINE|0,0|1,0|1,1|c ;~ keeps ;= LINE 10=0,0,0 11=1,0,0; LINE 10=1,0,0 11=1,1,0; LINE 10=1,1,0 11=0,0,0
;! LINE|0,0|1,0|_Undo|5,5| ;~ keeps ;= LINE 10=0,0,0 11=5,5,0
;! LINE|0,0|1,0|annUler|5,5| ;~ keeps ;= LINE 10=0,0,0 11=5,5,0
;! PLINE|0,0|LA|1|3|10,0|20,0| ;= LWPOLYLINE 10=0,0 40=1 41=3 10=10,0 40=3 41=3 10=20,0
;! PLINE|0,0|DEmilargeur|1||10,0| ;= LWPOLYLINE 10=0,0 40=2 41=2 10=10,0
;! PLINE|0,0|DE|1||10,0| ;= LWPOLYLINE 10=0,0 40=2 41=2 10=10,0
;! CIRCLE|1,2|d|5 ;= CIRCLE 10=1,2,0 40=2.5
;! CIRCLE|2P|0,0|10,0 ;= CIRCLE 10=5,0,0 40=5
;! ARC|C|0,0|1,0|0,1 ;= ARC 10=0,0,0 40=1 51=90
;! ARC|Centre|0,0|1,0|Angle|90 ;= ARC 10=0,0,0 40=1 51=90
;! ARC|C|0,0|1,0|A|90 ;= ARC 10=0,0,0 40=1 51=90
(line 10 10 30 20)(line 0 0 1 1) ;! ZOOM|o|20,15| ;? (getvar "VIEWCTR") ;= (20.0 15.0 0.0)
;! ZOOM|_Center|5,6|10 ;? (list (getvar "VIEWCTR") (getvar "VIEWSIZE")) ;= ((5.0 6.0 0.0) 10.0)
;! ZOOM|Centre|5,6|10 ;? (list (getvar "VIEWCTR") (getvar "VIEWSIZE")) ;= ((5.0 6.0 0.0) 10.0)
;! -LAYER|F|B 1| ;~ keeps ;? (getvar "CLAYER") ;= "B 1"
;! -LAYER|Nouveau|B| ;~ keeps ;? (= (tblobjname "LAYER" "B") nil) ;= nil
;! -LAYER|N|B| ;~ keeps ;? (= (tblobjname "LAYER" "B") nil) ;= nil
(line 0 0 2 0) ;! ROTATE|tout||0,0|r|30|120 ;= LINE 10=0,0,0 11=0,2,0
(line 0 0 2 0) ;! ROTATE|_ALL||0,0|_Copy|180 ;= LINE 10=0,0,0 11=2,0,0; LINE 10=0,0,0 11=-2,0,0
(line 0 0 2 0) ;! ROTATE|TOUT||0,0|COpier|180 ;= LINE 10=0,0,0 11=2,0,0; LINE 10=0,0,0 11=-2,0,0
(line 1 0 2 0) ;! SCALE|TOUT||0,0|R|2|6,0 ;= LINE 10=3,0,0 11=6,0,0
(line 0 0 2 1) ;! MIRROR|DErnier||5,0|5,9|Oui ;= LINE 10=10,0,0 11=8,1,0
(line 0 0 2 1) ;! MIRROR|DE||5,0|5,9|O ;= LINE 10=10,0,0 11=8,1,0
(line 0 0 2 1) ;! MIRROR|tout||5,0|5,9|n ;= LINE 10=0,0,0 11=2,1,0; LINE 10=10,0,0 11=8,1,0
(line 0 0 2 1) ;! MOVE|_ALL||_Displacement|3,4 ;= LINE 10=3,4,0 11=5,5,0
(line 0 0 2 1) ;! MOVE|TOUT||Déplacement|3,4 ;= LINE 10=3,4,0 11=5,5,0
(setvar "COPYMODE" 1)(line 0 0 1 0) ;! COPY|TOUT||M|0,0|0,1|0,2| ;~ keeps ;= LINE 10=0,0,0 11=1,0,0; LINE 10=0,1,0 11=1,1,0; LINE 10=0,2,0 11=1,2,0
(setvar "COPYMODE" 0)(line 0 0 1 0) ;! COPY|TOUT||mOde|UNique|0,0|0,1 ;~ keeps ;= LINE 10=0,0,0 11=1,0,0; LINE 10=0,1,0 11=1,1,0
(setvar "COPYMODE" 0)(line 0 0 1 0) ;! COPY|TOUT||O|UN|0,0|0,1 ;~ keeps ;= LINE 10=0,0,0 11=1,0,0; LINE 10=0,1,0 11=1,1,0
(line 0 0 9 0)(line 5 5 5 9) ;! TRIM||c|p|9,0| ;~ keeps ;= LINE 10=0,0,0 11=5,0,0; LINE 10=5,5,0 11=5,9,0
(line 0 0 12 0)(line 10 -2 10 9)(view) ;! FILLET|_Radius|0|2,0|10,5 ;~ keeps ;= LINE 10=0,0,0 11=10,0,0; LINE 10=10,0,0 11=10,9,0
(line 0 0 12 0)(line 10 -2 10 9)(view) ;! FILLET|RAyon|0|2,0|10,5 ;~ keeps ;= LINE 10=0,0,0 11=10,0,0; LINE 10=10,0,0 11=10,9,0
(line 0 0 12 0)(line 10 -2 10 9)(view) ;! CHAMFER|D|1|2|2,0|10,5 ;~ keeps ;= LINE 10=0,0,0 11=9,0,0; LINE 10=10,2,0 11=10,9,0; LINE 10=9,0,0 11=10,2,0
(line 0 0 12 0)(line 10 -2 10 9)(view) ;! CHAMFER|Angle|2|45|2,0|10,5 ;~ keeps ;= LINE 10=0,0,0 11=8,0,0; LINE 10=10,2,0 11=10,9,0; LINE 10=8,0,0 11=10,2,0
(line 0 0 12 0)(line 10 -2 10 9)(view) ;! CHAMFER|A|2|45|2,0|10,5 ;~ keeps ;= LINE 10=0,0,0 11=8,0,0; LINE 10=10,2,0 11=10,9,0; LINE 10=8,0,0 11=10,2,0
(line 0 0 10 0)(view) ;! OFFSET|p|5,0|20,3| ;~ keeps ;= LINE 10=0,0,0 11=10,0,0; LINE 10=0,3,0 11=10,3,0
(line 0 0 1 0) ;! -ARRAY|_ALL||_Rectangular|1|2|-3 ;= LINE 10=0,0,0 11=1,0,0; LINE 10=-3,0,0 11=-2,0,0
(line 0 0 1 0) ;! -ARRAY|TOUT||Rectangulaire|1|2|-3 ;= LINE 10=0,0,0 11=1,0,0; LINE 10=-3,0,0 11=-2,0,0
(box 0 0 10 6) ;! -HATCH|PRO|ANSI31|2|0|5,3| ;? (own '(2 70 71)) ;= ("ANSI31" 0 1)
;! DIMLINEAR|1,2|11,5|Horizontal|15,3 ;? (own '(42)) ;= (10.0)
;! DIMLINEAR|1,2|11,5|H|15,3 ;? (own '(42)) ;= (10.0)
;! DIMLINEAR|1,2|11,5|v|15,3 ;? (own '(42)) ;= (3.0)
;! MTEXT|0,0|_Justify|_MC|_Height|2|_Rotation|90|_Width|30|line| ;= MTEXT 10=0,0,0 40=2 41=30 71=5 72=5 1=line 11=0,1,0 73=1 44=1
;! MTEXT|0,0|Justifier|MC|Hauteur|2|ROtation|90|LArgeur|30|line| ;= MTEXT 10=0,0,0 40=2 41=30 71=5 72=5 1=line 11=0,1,0 73=1 44=1
;! TEXT|J|L|0,0|10,0|3|AB ;= TEXT 40=3 1=AB 11=10,0,0 72=5
;! TEXT|Justifier|ALigner|0,0|10,0|AB ;? (own '(72)) ;= (3)
;! TEXT|J|AL|0,0|10,0|AB ;? (own '(72)) ;= (3)
(door) ;! -INSERT|Door|ch|2|5,5|0 ;= INSERT 2=Door 10=5,5,0 41=2 42=2 43=2
(door) ;! -INSERT|Door|Y|3|_Rotate|90|5,5 ;= INSERT 2=Door 10=5,5,0 41=1 42=3 43=1 50=90
(door) ;! -INSERT|Door|Y|3|ROtation|90|5,5 ;= INSERT 2=Door 10=5,5,0 41=1 42=3 43=1 50=90
(line 1 2 4 2) ;! -BLOCK|Gate|1,2|TOUT| ;? (entlast) ;= nil
(line 0 0 5 0)(view) ;! PEDIT|2,0|Oui|LArgeur|2| ;~ keeps ;= LWPOLYLINE 10=0,0 40=2 41=2 10=5,0 40=2 41=2
(line 0 0 5 0)(view) ;! PEDIT|2,0|O|LA|2| ;~ keeps ;= LWPOLYLINE 10=0,0 40=2 41=2 10=5,0 40=2 41=2
(line 0 0 4 0)(line 4 0 4 4)(view) ;! PEDIT|2,0|o|j|tout||| ;~ keeps ;= LWPOLYLINE 10=0,0 10=4,0 10=4,4
(sheet) ;! MVIEW|_Fit ;? (length (ports '(10))) ;= 2
(sheet) ;! MVIEW|Lisser ;? (length (ports '(10))) ;= 2
;! UCS|NO|E|Wall ;? (= (tblobjname "UCS" "Wall") nil) ;= nil
;! UCS|ZAxe|0,0,0|0,-1,0 ;? (rounded (getvar "UCSYDIR")) ;= (0.0 0.0 1.0)
;! UCS|ZA|0,0,0|0,-1,0 ;? (rounded (getvar "UCSYDIR")) ;= (0.0 0.0 1.0)
;! -LAYOUT|n|Plan ;? (tabs) ;= ("Model" "Layout1" "Plan")
;! MLEADER|_Content|10,10|20,12|Note|30,30 ;? (car (points)) ;= (2.0 10.0 0.0)
(line 0 0 1 0)(line 1 0 5 5) ;! ERASE|TOUT|R|DE| ;= LINE 10=1,0,0 11=5,5,0
(line 0 0 1 0)(line 1 0 5 5) ;! ERASE|Fenêtre|-1,-1|2,2| ;= LINE 10=1,0,0 11=5,5,0
(line 0 0 1 0)(line 1 0 5 5) ;! ERASE|F|-1,-1|2,2| ;= LINE 10=1,0,0 11=5,5,0
(line 0 0 1 0)(line 1 0 5 5) ;! ERASE|ca|2,2|-1,-1| ;=
(line 0 0 1 0)(line 1 0 5 5) ;! ERASE|_ALL|_Remove|_ALL|_Add|_Last| ;= LINE 10=0,0,0 11=1,0,0
(line 0 0 1 0)(line 1 0 5 5) ;! ERASE|TOUT|Retirer|TOUT|Ajouter|DErnier| ;= LINE 10=0,0,0 11=1,0,0
(line 0 0 1 0)(line 1 0 5 5) ;! ERASE|TOUT|U|DE| ;= LINE 10=0,0,0 11=1,0,0
(line 0 0 2 0)(on-layer "B")(command "_CHPROP" "_L" "" "_C" "1" "") ;! MATCHPROP|1.5,1.5|Paramètres|CAlque||1,0| ;? (mapcar '(lambda (c) (cdr (assoc c (entget (entnext))))) '(8 62)) ;= ("0" 1)
(line 0 0 2 0)(on-layer "B")(command "_CHPROP" "_L" "" "_C" "1" "") ;! MATCHPROP|1.5,1.5|P|CA||1,0| ;? (mapcar '(lambda (c) (cdr (assoc c (entget (entnext))))) '(8 62)) ;= ("0" 1)
