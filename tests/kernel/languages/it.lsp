; Dialogues of dialogues/ in Italian, and what Lisp programs ask there, which stays as they wrote it. Words and their
; abbreviations are those of the catalogue; English ones are taken behind "_", and without it where the language has none.
(defun word (keywords) (initget keywords) (getkword "Continue? [Yes/No] <No>: "))

(getvar "LOCALE") ;= "ITA"
(word "Yes No") ;< y\n ;> Continue? [Yes/No] <No>: ;= "Yes"
(word "Yes No") ;< _Yes\n ;= "Yes"
(word "Yes No") ;< Sì\nNo\n ;= "No"
(word "Sì No") ;< S\n ;= "Sì"
(word "Sì No _Yes No") ;< Sì\n ;= "Yes"
(progn (command "LINE" "0,0" "1,0" "1,1" "Close") (sslength (ssget "X"))) ;= 3
(progn (command "LINE" "0,0" "1,0" "1,1" "_C") (sslength (ssget "X"))) ;= 3
(progn (command "LINE" "0,0" "1,0" "1,1" "Chiudi") (sslength (ssget "X"))) ;= 3
(progn (command "LINE" "0,0" "1,0" "1,1" "Clore" "") (sslength (ssget "X"))) ;= 2
(line 0 0 2 1) ;! MIRROR|_ALL||5,0|5,9| ;> [Sì/No] <No> ;= LINE 10=0,0,0 11=2,1,0; LINE 10=10,0,0 11=8,1,0
(line 0 0 2 1) ;! MIRROR|_ALL||5,0|5,9|_Y ;= LINE 10=10,0,0 11=8,1,0
(line 0 0 2 1) ;! MIRROR|_ALL||5,0|5,9|Yes ;= LINE 10=10,0,0 11=8,1,0
;! LINE|0,0|1,0| ;~ keeps ;> [annUlla] ;= LINE 10=0,0,0 11=1,0,0
;! LINE|0,0|1,0|1,1|_Close ;~ keeps ;> [Chiudi/annUlla] ;= LINE 10=0,0,0 11=1,0,0; LINE 10=1,0,0 11=1,1,0; LINE 10=1,1,0 11=0,0,0
;! LINE|0,0|1,0|1,1|C ;~ keeps ;= LINE 10=0,0,0 11=1,0,0; LINE 10=1,0,0 11=1,1,0; LINE 10=1,1,0 11=0,0,0
;! LINE|0,0|1,0|annUlla|5,5| ;~ keeps ;= LINE 10=0,0,0 11=5,5,0
;! LINE|0,0|1,0|U|5,5| ;~ keeps ;= LINE 10=0,0,0 11=5,5,0
;! PLINE|0,0|g|1|3|10,0|20,0| ;= LWPOLYLINE 10=0,0 40=1 41=3 10=10,0 40=3 41=3 10=20,0
;! PLINE|0,0|_Halfwidth|1||10,0| ;= LWPOLYLINE 10=0,0 40=2 41=2 10=10,0
;! PLINE|0,0|Mezzalarghezza|1||10,0| ;= LWPOLYLINE 10=0,0 40=2 41=2 10=10,0
;! CIRCLE|1,2|D|5 ;= CIRCLE 10=1,2,0 40=2.5
;! CIRCLE|2P|0,0|10,0 ;= CIRCLE 10=5,0,0 40=5
;! ARC|c|0,0|1,0|0,1 ;= ARC 10=0,0,0 40=1 51=90
;! ARC|_Center|0,0|1,0|_Angle|90 ;= ARC 10=0,0,0 40=1 51=90
;! ARC|Centro|0,0|1,0|Angolo|90 ;= ARC 10=0,0,0 40=1 51=90
(line 10 10 30 20)(line 0 0 1 1) ;! ZOOM|O|20,15| ;? (getvar "VIEWCTR") ;= (20.0 15.0 0.0)
;! ZOOM|Centro|5,6|10 ;? (list (getvar "VIEWCTR") (getvar "VIEWSIZE")) ;= ((5.0 6.0 0.0) 10.0)
;! ZOOM|C|5,6|10 ;? (list (getvar "VIEWCTR") (getvar "VIEWSIZE")) ;= ((5.0 6.0 0.0) 10.0)
;! -LAYER|r|B 1| ;~ keeps ;? (getvar "CLAYER") ;= "B 1"
;! -LAYER|_New|B| ;~ keeps ;? (= (tblobjname "LAYER" "B") nil) ;= nil
;! -LAYER|Nuovo|B| ;~ keeps ;? (= (tblobjname "LAYER" "B") nil) ;= nil
(line 0 0 2 0) ;! ROTATE|TUTTO||0,0|R|30|120 ;= LINE 10=0,0,0 11=0,2,0
(line 0 0 2 0) ;! ROTATE|TUTTO||0,0|Copia|180 ;= LINE 10=0,0,0 11=2,0,0; LINE 10=0,0,0 11=-2,0,0
(line 0 0 2 0) ;! ROTATE|TUTTO||0,0|C|180 ;= LINE 10=0,0,0 11=2,0,0; LINE 10=0,0,0 11=-2,0,0
(line 1 0 2 0) ;! SCALE|tutto||0,0|r|2|6,0 ;= LINE 10=3,0,0 11=6,0,0
(line 0 0 2 1) ;! MIRROR|_Last||5,0|5,9|_Yes ;= LINE 10=10,0,0 11=8,1,0
(line 0 0 2 1) ;! MIRROR|ULtimo||5,0|5,9|Sì ;= LINE 10=10,0,0 11=8,1,0
(line 0 0 2 1) ;! MIRROR|TUTTO||5,0|5,9|N ;= LINE 10=0,0,0 11=2,1,0; LINE 10=10,0,0 11=8,1,0
(line 0 0 2 1) ;! MOVE|TUTTO||sPostamento|3,4 ;= LINE 10=3,4,0 11=5,5,0
(line 0 0 2 1) ;! MOVE|TUTTO||P|3,4 ;= LINE 10=3,4,0 11=5,5,0
(setvar "COPYMODE" 1)(line 0 0 1 0) ;! COPY|tutto||m|0,0|0,1|0,2| ;~ keeps ;= LINE 10=0,0,0 11=1,0,0; LINE 10=0,1,0 11=1,1,0; LINE 10=0,2,0 11=1,2,0
(setvar "COPYMODE" 0)(line 0 0 1 0) ;! COPY|_ALL||_mOde|_Single|0,0|0,1 ;~ keeps ;= LINE 10=0,0,0 11=1,0,0; LINE 10=0,1,0 11=1,1,0
(setvar "COPYMODE" 0)(line 0 0 1 0) ;! COPY|TUTTO||mOdo|Singolo|0,0|0,1 ;~ keeps ;= LINE 10=0,0,0 11=1,0,0; LINE 10=0,1,0 11=1,1,0
(line 0 0 9 0)(line 5 5 5 9) ;! TRIM||P|E|9,0| ;~ keeps ;= LINE 10=0,0,0 11=5,0,0; LINE 10=5,5,0 11=5,9,0
(line 0 0 12 0)(line 10 -2 10 9)(view) ;! FILLET|Raggio|0|2,0|10,5 ;~ keeps ;= LINE 10=0,0,0 11=10,0,0; LINE 10=10,0,0 11=10,9,0
(line 0 0 12 0)(line 10 -2 10 9)(view) ;! FILLET|R|0|2,0|10,5 ;~ keeps ;= LINE 10=0,0,0 11=10,0,0; LINE 10=10,0,0 11=10,9,0
(line 0 0 12 0)(line 10 -2 10 9)(view) ;! CHAMFER|d|1|2|2,0|10,5 ;~ keeps ;= LINE 10=0,0,0 11=9,0,0; LINE 10=10,2,0 11=10,9,0; LINE 10=9,0,0 11=10,2,0
(line 0 0 12 0)(line 10 -2 10 9)(view) ;! CHAMFER|_Angle|2|45|2,0|10,5 ;~ keeps ;= LINE 10=0,0,0 11=8,0,0; LINE 10=10,2,0 11=10,9,0; LINE 10=8,0,0 11=10,2,0
(line 0 0 12 0)(line 10 -2 10 9)(view) ;! CHAMFER|Angolo|2|45|2,0|10,5 ;~ keeps ;= LINE 10=0,0,0 11=8,0,0; LINE 10=10,2,0 11=10,9,0; LINE 10=8,0,0 11=10,2,0
(line 0 0 10 0)(view) ;! OFFSET|P|5,0|20,3| ;~ keeps ;= LINE 10=0,0,0 11=10,0,0; LINE 10=0,3,0 11=10,3,0
(line 0 0 1 0) ;! -ARRAY|TUTTO||Rettangolare|1|2|-3 ;= LINE 10=0,0,0 11=1,0,0; LINE 10=-3,0,0 11=-2,0,0
(line 0 0 1 0) ;! -ARRAY|TUTTO||R|1|2|-3 ;= LINE 10=0,0,0 11=1,0,0; LINE 10=-3,0,0 11=-2,0,0
(box 0 0 10 6) ;! -HATCH|p|ANSI31|2|0|5,3| ;? (own '(2 70 71)) ;= ("ANSI31" 0 1)
;! DIMLINEAR|1,2|11,5|_Horizontal|15,3 ;? (own '(42)) ;= (10.0)
;! DIMLINEAR|1,2|11,5|Orizzontale|15,3 ;? (own '(42)) ;= (10.0)
;! DIMLINEAR|1,2|11,5|V|15,3 ;? (own '(42)) ;= (3.0)
;! MTEXT|0,0|giUstifica|MC|alTezza|2|Rotazione|90|larGhezza|30|line| ;= MTEXT 10=0,0,0 40=2 41=30 71=5 72=5 1=line 11=0,1,0 73=1 44=1
;! MTEXT|0,0|U|MC|T|2|R|90|G|30|line| ;= MTEXT 10=0,0,0 40=2 41=30 71=5 72=5 1=line 11=0,1,0 73=1 44=1
;! TEXT|u|a|0,0|10,0|3|AB ;= TEXT 40=3 1=AB 11=10,0,0 72=5
;! TEXT|_Justify|_Align|0,0|10,0|AB ;? (own '(72)) ;= (3)
;! TEXT|giUstifica|aLlinea|0,0|10,0|AB ;? (own '(72)) ;= (3)
(door) ;! -INSERT|Door|A|2|5,5|0 ;= INSERT 2=Door 10=5,5,0 41=2 42=2 43=2
(door) ;! -INSERT|Door|Y|3|Ruota|90|5,5 ;= INSERT 2=Door 10=5,5,0 41=1 42=3 43=1 50=90
(door) ;! -INSERT|Door|Y|3|R|90|5,5 ;= INSERT 2=Door 10=5,5,0 41=1 42=3 43=1 50=90
(line 1 2 4 2) ;! -BLOCK|Gate|1,2|tutto| ;? (entlast) ;= nil
(line 0 0 5 0)(view) ;! PEDIT|2,0|_Yes|_Width|2| ;~ keeps ;= LWPOLYLINE 10=0,0 40=2 41=2 10=5,0 40=2 41=2
(line 0 0 5 0)(view) ;! PEDIT|2,0|Sì|larGhezza|2| ;~ keeps ;= LWPOLYLINE 10=0,0 40=2 41=2 10=5,0 40=2 41=2
(line 0 0 4 0)(line 4 0 4 4)(view) ;! PEDIT|2,0|S|N|TUTTO||| ;~ keeps ;= LWPOLYLINE 10=0,0 10=4,0 10=4,4
(sheet) ;! MVIEW|Adatta ;? (length (ports '(10))) ;= 2
(sheet) ;! MVIEW|A ;? (length (ports '(10))) ;= 2
;! UCS|no|s|Wall ;? (= (tblobjname "UCS" "Wall") nil) ;= nil
;! UCS|_ZAxis|0,0,0|0,-1,0 ;? (rounded (getvar "UCSYDIR")) ;= (0.0 0.0 1.0)
;! UCS|AZ|0,0,0|0,-1,0 ;? (rounded (getvar "UCSYDIR")) ;= (0.0 0.0 1.0)
;! -LAYOUT|N|Plan ;? (tabs) ;= ("Model" "Layout1" "Plan")
;! MLEADER|C|10,10|20,12|Note|30,30 ;? (car (points)) ;= (2.0 10.0 0.0)
(line 0 0 1 0)(line 1 0 5 5) ;! ERASE|tutto|r|ul| ;= LINE 10=1,0,0 11=5,5,0
(line 0 0 1 0)(line 1 0 5 5) ;! ERASE|_Window|-1,-1|2,2| ;= LINE 10=1,0,0 11=5,5,0
(line 0 0 1 0)(line 1 0 5 5) ;! ERASE|Finestra|-1,-1|2,2| ;= LINE 10=1,0,0 11=5,5,0
(line 0 0 1 0)(line 1 0 5 5) ;! ERASE|I|2,2|-1,-1| ;=
(line 0 0 1 0)(line 1 0 5 5) ;! ERASE|TUTTO|Rimuovi|TUTTO|Aggiungi|ULtimo| ;= LINE 10=0,0,0 11=1,0,0
(line 0 0 1 0)(line 1 0 5 5) ;! ERASE|TUTTO|R|TUTTO|A|UL| ;= LINE 10=0,0,0 11=1,0,0
(line 0 0 1 0)(line 1 0 5 5) ;! ERASE|tutto|u|ul| ;= LINE 10=0,0,0 11=1,0,0
(line 0 0 2 0)(on-layer "B")(command "_CHPROP" "_L" "" "_C" "1" "") ;! MATCHPROP|1.5,1.5|_Settings|_Layer||1,0| ;? (mapcar '(lambda (c) (cdr (assoc c (entget (entnext))))) '(8 62)) ;= ("0" 1)
(line 0 0 2 0)(on-layer "B")(command "_CHPROP" "_L" "" "_C" "1" "") ;! MATCHPROP|1.5,1.5|Impostazioni|Layer||1,0| ;? (mapcar '(lambda (c) (cdr (assoc c (entget (entnext))))) '(8 62)) ;= ("0" 1)
