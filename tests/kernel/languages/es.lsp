; Dialogues of dialogues/ in Spanish, and what Lisp programs ask there, which stays as they wrote it. Words and their
; abbreviations are those of the catalogue; English ones are taken behind "_", and without it where the language has none.
(defun word (keywords) (initget keywords) (getkword "Continue? [Yes/No] <No>: "))

(getvar "LOCALE") ;= "ESP"
(word "Yes No") ;< y\n ;> Continue? [Yes/No] <No>: ;= "Yes"
(word "Yes No") ;< _Yes\n ;= "Yes"
(word "Yes No") ;< Sí\nNo\n ;= "No"
(word "Sí No") ;< S\n ;= "Sí"
(word "Sí No _Yes No") ;< Sí\n ;= "Yes"
(progn (command "LINE" "0,0" "1,0" "1,1" "Close") (sslength (ssget "X"))) ;= 3
(progn (command "LINE" "0,0" "1,0" "1,1" "_C") (sslength (ssget "X"))) ;= 3
(progn (command "LINE" "0,0" "1,0" "1,1" "Cerrar") (sslength (ssget "X"))) ;= 3
(progn (command "LINE" "0,0" "1,0" "1,1" "Clore" "") (sslength (ssget "X"))) ;= 2
(line 0 0 2 1) ;! MIRROR|_ALL||5,0|5,9| ;> [Sí/No] <No> ;= LINE 10=0,0,0 11=2,1,0; LINE 10=10,0,0 11=8,1,0
(line 0 0 2 1) ;! MIRROR|_ALL||5,0|5,9|_Y ;= LINE 10=10,0,0 11=8,1,0
(line 0 0 2 1) ;! MIRROR|_ALL||5,0|5,9|Yes ;= LINE 10=10,0,0 11=8,1,0
;! LINE|0,0|1,0| ;~ keeps ;> [desHacer] ;= LINE 10=0,0,0 11=1,0,0
;! LINE|0,0|1,0|1,1|_Close ;~ keeps ;> [Cerrar/desHacer] ;= LINE 10=0,0,0 11=1,0,0; LINE 10=1,0,0 11=1,1,0; LINE 10=1,1,0 11=0,0,0
;! LINE|0,0|1,0|1,1|_Close ;~ keeps ;= LINE 10=0,0,0 11=1,0,0; LINE 10=1,0,0 11=1,1,0; LINE 10=1,1,0 11=0,0,0
;! LINE|0,0|1,0|1,1|Cerrar ;~ keeps ;= LINE 10=0,0,0 11=1,0,0; LINE 10=1,0,0 11=1,1,0; LINE 10=1,1,0 11=0,0,0
;! LINE|0,0|1,0|H|5,5| ;~ keeps ;= LINE 10=0,0,0 11=5,5,0
;! PLINE|0,0|aNcho|1|3|10,0|20,0| ;= LWPOLYLINE 10=0,0 40=1 41=3 10=10,0 40=3 41=3 10=20,0
;! PLINE|0,0|N|1|3|10,0|20,0| ;= LWPOLYLINE 10=0,0 40=1 41=3 10=10,0 40=3 41=3 10=20,0
;! PLINE|0,0|m|1||10,0| ;= LWPOLYLINE 10=0,0 40=2 41=2 10=10,0
;! CIRCLE|1,2|_Diameter|5 ;= CIRCLE 10=1,2,0 40=2.5
;! CIRCLE|1,2|Diámetro|5 ;= CIRCLE 10=1,2,0 40=2.5
;! CIRCLE|2P|0,0|10,0 ;= CIRCLE 10=5,0,0 40=5
;! ARC|Centro|0,0|1,0|0,1 ;= ARC 10=0,0,0 40=1 51=90
;! ARC|C|0,0|1,0|0,1 ;= ARC 10=0,0,0 40=1 51=90
;! ARC|c|0,0|1,0|u|90 ;= ARC 10=0,0,0 40=1 51=90
(line 10 10 30 20)(line 0 0 1 1) ;! ZOOM|_Object|20,15| ;? (getvar "VIEWCTR") ;= (20.0 15.0 0.0)
(line 10 10 30 20)(line 0 0 1 1) ;! ZOOM|Objeto|20,15| ;? (getvar "VIEWCTR") ;= (20.0 15.0 0.0)
;! ZOOM|C|5,6|10 ;? (list (getvar "VIEWCTR") (getvar "VIEWSIZE")) ;= ((5.0 6.0 0.0) 10.0)
;! -LAYER|CRear|B 1| ;~ keeps ;? (getvar "CLAYER") ;= "B 1"
;! -LAYER|CR|B 1| ;~ keeps ;? (getvar "CLAYER") ;= "B 1"
;! -LAYER|n|B| ;~ keeps ;? (= (tblobjname "LAYER" "B") nil) ;= nil
(line 0 0 2 0) ;! ROTATE|_ALL||0,0|_Reference|30|120 ;= LINE 10=0,0,0 11=0,2,0
(line 0 0 2 0) ;! ROTATE|todo||0,0|Referencia|30|120 ;= LINE 10=0,0,0 11=0,2,0
(line 0 0 2 0) ;! ROTATE|todo||0,0|C|180 ;= LINE 10=0,0,0 11=2,0,0; LINE 10=0,0,0 11=-2,0,0
(line 1 0 2 0) ;! SCALE|todo||0,0|Referencia|2|6,0 ;= LINE 10=3,0,0 11=6,0,0
(line 1 0 2 0) ;! SCALE|todo||0,0|R|2|6,0 ;= LINE 10=3,0,0 11=6,0,0
(line 0 0 2 1) ;! MIRROR|ú||5,0|5,9|s ;= LINE 10=10,0,0 11=8,1,0
(line 0 0 2 1) ;! MIRROR|_ALL||5,0|5,9|_No ;= LINE 10=0,0,0 11=2,1,0; LINE 10=10,0,0 11=8,1,0
(line 0 0 2 1) ;! MIRROR|todo||5,0|5,9|No ;= LINE 10=0,0,0 11=2,1,0; LINE 10=10,0,0 11=8,1,0
(line 0 0 2 1) ;! MOVE|todo||D|3,4 ;= LINE 10=3,4,0 11=5,5,0
(setvar "COPYMODE" 1)(line 0 0 1 0) ;! COPY|todo||Múltiple|0,0|0,1|0,2| ;~ keeps ;= LINE 10=0,0,0 11=1,0,0; LINE 10=0,1,0 11=1,1,0; LINE 10=0,2,0 11=1,2,0
(setvar "COPYMODE" 1)(line 0 0 1 0) ;! COPY|todo||M|0,0|0,1|0,2| ;~ keeps ;= LINE 10=0,0,0 11=1,0,0; LINE 10=0,1,0 11=1,1,0; LINE 10=0,2,0 11=1,2,0
(setvar "COPYMODE" 0)(line 0 0 1 0) ;! COPY|todo||o|s|0,0|0,1 ;~ keeps ;= LINE 10=0,0,0 11=1,0,0; LINE 10=0,1,0 11=1,1,0
(line 0 0 9 0)(line 5 5 5 9) ;! TRIM||_Edge|_Extend|9,0| ;~ keeps ;= LINE 10=0,0,0 11=5,0,0; LINE 10=5,5,0 11=5,9,0
(line 0 0 9 0)(line 5 5 5 9) ;! TRIM||Arista|aLargar|9,0| ;~ keeps ;= LINE 10=0,0,0 11=5,0,0; LINE 10=5,5,0 11=5,9,0
(line 0 0 12 0)(line 10 -2 10 9)(view) ;! FILLET|R|0|2,0|10,5 ;~ keeps ;= LINE 10=0,0,0 11=10,0,0; LINE 10=10,0,0 11=10,9,0
(line 0 0 12 0)(line 10 -2 10 9)(view) ;! CHAMFER|Distancia|1|2|2,0|10,5 ;~ keeps ;= LINE 10=0,0,0 11=9,0,0; LINE 10=10,2,0 11=10,9,0; LINE 10=9,0,0 11=10,2,0
(line 0 0 12 0)(line 10 -2 10 9)(view) ;! CHAMFER|D|1|2|2,0|10,5 ;~ keeps ;= LINE 10=0,0,0 11=9,0,0; LINE 10=10,2,0 11=10,9,0; LINE 10=9,0,0 11=10,2,0
(line 0 0 12 0)(line 10 -2 10 9)(view) ;! CHAMFER|u|2|45|2,0|10,5 ;~ keeps ;= LINE 10=0,0,0 11=8,0,0; LINE 10=10,2,0 11=10,9,0; LINE 10=8,0,0 11=10,2,0
(line 0 0 10 0)(view) ;! OFFSET|_Through|5,0|20,3| ;~ keeps ;= LINE 10=0,0,0 11=10,0,0; LINE 10=0,3,0 11=10,3,0
(line 0 0 10 0)(view) ;! OFFSET|porPunto|5,0|20,3| ;~ keeps ;= LINE 10=0,0,0 11=10,0,0; LINE 10=0,3,0 11=10,3,0
(line 0 0 1 0) ;! -ARRAY|todo||R|1|2|-3 ;= LINE 10=0,0,0 11=1,0,0; LINE 10=-3,0,0 11=-2,0,0
(box 0 0 10 6) ;! -HATCH|Propiedades|ANSI31|2|0|5,3| ;? (own '(2 70 71)) ;= ("ANSI31" 0 1)
(box 0 0 10 6) ;! -HATCH|P|ANSI31|2|0|5,3| ;? (own '(2 70 71)) ;= ("ANSI31" 0 1)
;! DIMLINEAR|1,2|11,5|h|15,3 ;? (own '(42)) ;= (10.0)
;! DIMLINEAR|1,2|11,5|_Vertical|15,3 ;? (own '(42)) ;= (3.0)
;! DIMLINEAR|1,2|11,5|Vertical|15,3 ;? (own '(42)) ;= (3.0)
;! MTEXT|0,0|J|MC|T|2|R|90|N|30|line| ;= MTEXT 10=0,0,0 40=2 41=30 71=5 72=5 1=line 11=0,1,0 73=1 44=1
;! TEXT|Justificar|Ajustar|0,0|10,0|3|AB ;= TEXT 40=3 1=AB 11=10,0,0 72=5
;! TEXT|J|A|0,0|10,0|3|AB ;= TEXT 40=3 1=AB 11=10,0,0 72=5
;! TEXT|j|l|0,0|10,0|AB ;? (own '(72)) ;= (3)
(door) ;! -INSERT|Door|_Scale|2|5,5|0 ;= INSERT 2=Door 10=5,5,0 41=2 42=2 43=2
(door) ;! -INSERT|Door|Escala|2|5,5|0 ;= INSERT 2=Door 10=5,5,0 41=2 42=2 43=2
(door) ;! -INSERT|Door|Y|3|G|90|5,5 ;= INSERT 2=Door 10=5,5,0 41=1 42=3 43=1 50=90
(line 1 2 4 2) ;! -BLOCK|Gate|1,2|todo| ;? (entlast) ;= nil
(line 1 2 4 2) ;! -BLOCK|Gate|1,2|todo| ;? (entlast) ;= nil
(line 0 0 5 0)(view) ;! PEDIT|2,0|s|n|2| ;~ keeps ;= LWPOLYLINE 10=0,0 40=2 41=2 10=5,0 40=2 41=2
(line 0 0 4 0)(line 4 0 4 4)(view) ;! PEDIT|2,0|_Yes|_Join|_ALL||| ;~ keeps ;= LWPOLYLINE 10=0,0 10=4,0 10=4,4
(line 0 0 4 0)(line 4 0 4 4)(view) ;! PEDIT|2,0|Sí|Juntar|todo||| ;~ keeps ;= LWPOLYLINE 10=0,0 10=4,0 10=4,4
(sheet) ;! MVIEW|A ;? (length (ports '(10))) ;= 2
;! UCS|GUardado|Guardar|Wall ;? (= (tblobjname "UCS" "Wall") nil) ;= nil
;! UCS|GU|G|Wall ;? (= (tblobjname "UCS" "Wall") nil) ;= nil
;! UCS|ez|0,0,0|0,-1,0 ;? (rounded (getvar "UCSYDIR")) ;= (0.0 0.0 1.0)
;! -LAYOUT|_New|Plan ;? (tabs) ;= ("Model" "Layout1" "Plan")
;! -LAYOUT|Nuevo|Plan ;? (tabs) ;= ("Model" "Layout1" "Plan")
;! MLEADER|C|10,10|20,12|Note|30,30 ;? (car (points)) ;= (2.0 10.0 0.0)
(line 0 0 1 0)(line 1 0 5 5) ;! ERASE|todo|Quitar|Último| ;= LINE 10=1,0,0 11=5,5,0
(line 0 0 1 0)(line 1 0 5 5) ;! ERASE|todo|Q|Ú| ;= LINE 10=1,0,0 11=5,5,0
(line 0 0 1 0)(line 1 0 5 5) ;! ERASE|v|-1,-1|2,2| ;= LINE 10=1,0,0 11=5,5,0
(line 0 0 1 0)(line 1 0 5 5) ;! ERASE|_Crossing|2,2|-1,-1| ;=
(line 0 0 1 0)(line 1 0 5 5) ;! ERASE|Captura|2,2|-1,-1| ;=
(line 0 0 1 0)(line 1 0 5 5) ;! ERASE|todo|Q|todo|A|Ú| ;= LINE 10=0,0,0 11=1,0,0
(line 0 0 1 0)(line 1 0 5 5) ;! ERASE|todo|desHacer|Último| ;= LINE 10=0,0,0 11=1,0,0
(line 0 0 1 0)(line 1 0 5 5) ;! ERASE|todo|H|Ú| ;= LINE 10=0,0,0 11=1,0,0
(line 0 0 2 0)(on-layer "B")(command "_CHPROP" "_L" "" "_C" "1" "") ;! MATCHPROP|1.5,1.5|p|ca||1,0| ;? (mapcar '(lambda (c) (cdr (assoc c (entget (entnext))))) '(8 62)) ;= ("0" 1)
