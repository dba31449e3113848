(setvar "FILLETRAD" 0.0)(line 0 0 8 0)(line 10 2 10 9)(view) ;! FILLET|2,0|10,5 ;~ keeps ;= LINE 10=0,0,0 11=10,0,0; LINE 10=10,0,0 11=10,9,0
(line 0 0 12 0)(line 10 -2 10 9)(view) ;! FILLET|R|2|2,0|10,5 ;~ keeps
;= LINE 10=0,0,0 11=8,0,0; LINE 10=10,2,0 11=10,9,0; ARC 10=8,2,0 40=2 50=270
(line 0 0 12 0)(line 10 -2 10 9)(view) ;! FILLET|R|2|T|N|2,0|10,5 ;~ keeps
;= LINE 10=0,0,0 11=12,0,0; LINE 10=10,-2,0 11=10,9,0; ARC 10=8,2,0 40=2 50=270
(line 0 0 12 0)(line 10 -2 10 9)(view) ;! FILLET|R|20|2,0|10,5 ;~ keeps ;> Radius is too large ;= LINE 10=0,0,0 11=12,0,0; LINE 10=10,-2,0 11=10,9,0
(line 0 0 10 0)(line 2 4 8 4)(view) ;! FILLET|9,0|7,4 ;~ keeps ;= LINE 10=0,0,0 11=10,0,0; LINE 10=2,4,0 11=10,4,0; ARC 10=10,2,0 40=2 50=270 51=90
(line 0 0 10 0)(line 10 0 10 9)(line 0 0 0 9)(view) ;! FILLET|M|R|1|5,0|10,5|5,0|0,5| ;~ keeps
;= LINE 10=1,0,0 11=9,0,0; LINE 10=10,1,0 11=10,9,0; LINE 10=0,1,0 11=0,9,0; ARC 10=9,1,0 40=1 50=270; ARC 10=1,1,0 40=1 50=180 51=270
(line 0 0 10 0)(line 10 0 10 9)(view) ;! FILLET|M|R|1|5,0|10,5|U| ;~ keeps ;= LINE 10=0,0,0 11=10,0,0; LINE 10=10,0,0 11=10,9,0
(line -10 0 10 0)(command "CIRCLE" '(0 3) 2)(view) ;! FILLET|R|1|-5,0|-2,3 ;~ keeps
;= LINE 10=-10,0,0 11=-2.23607,0,0; CIRCLE 10=0,3,0 40=2; ARC 10=-2.23607,1,0 40=1 50=270 51=41.8103
(setvar "FILLETRAD" 0.0)(line -10 0 10 0)(command "ARC" "C" '(0 0) '(5 0) '(0 5))(view) ;! FILLET|9,0|0,5 ;~ keeps
;= LINE 10=5,0,0 11=10,0,0; ARC 10=0,0,0 40=5 51=90
(command "RECTANG" '(0 0) '(10 6))(view) ;! FILLET|R|1|P|5,0 ;~ keeps
;= LWPOLYLINE 70=1 10=0,1 42=0.414214 10=1,0 10=9,0 42=0.414214 10=10,1 10=10,5 42=0.414214 10=9,6 10=1,6 42=0.414214 10=0,5
(command "RECTANG" "F" 1 '(0 0) '(10 6))(view) ;! FILLET|R|0|P|5,0 ;~ keeps ;= LWPOLYLINE 70=1 10=0,0 10=10,0 10=10,6 10=0,6
(command "PLINE" '(0 0) '(10 0) '(10 6) "")(view) ;! FILLET|R|1|5,0|10,3 ;~ keeps ;= LWPOLYLINE 10=0,0 10=9,0 42=0.414214 10=10,1 10=10,6
(command "PLINE" '(0 0) '(10 0) '(10 6) "")(view) ;! FILLET|R|1|10,3|5,0 ;~ keeps ;= LWPOLYLINE 10=0,0 10=9,0 42=0.414214 10=10,1 10=10,6
(command "PLINE" '(0 0) '(9 0) '(10 1) '(10 6) "")(view) ;! FILLET|R|0|5,0|10,3 ;~ keeps ;= LWPOLYLINE 10=0,0 10=10,0 10=10,6
(command "PLINE" '(0 9) '(0 0) '(8 0) "")(line 10 2 10 9)(view) ;! FILLET|R|1|5,0|10,5 ;~ keeps ;= LWPOLYLINE 10=0,9 10=0,0 10=9,0 42=0.414214 10=10,1 10=10,9
(command "PLINE" '(0 9) '(0 0) '(8 0) "")(line 10 2 10 9)(view) ;! FILLET|R|0|10,5|5,0 ;~ keeps ;= LWPOLYLINE 10=0,9 10=0,0 10=10,0 10=10,9
(line 0 0 12 0)(line 10 -2 10 9)(view)(lock "0") ;! FILLET|2,0| ;~ keeps ;> locked layer ;= LINE 10=0,0,0 11=12,0,0; LINE 10=10,-2,0 11=10,9,0
(command "-MTEXT" '(0 0) "W" 0 "text" "")(view) ;! FILLET|0.1,-0.1 ;> Requires a line ;? (value-of 0) ;= "MTEXT"
(command "XLINE" "H" '(0 0) "")(line 10 -2 10 9)(view) ;! FILLET|R|2|2,0|10,5 ;~ keeps
;= LINE 10=10,2,0 11=10,9,0; RAY 10=8,0,0 11=-1,0,0; ARC 10=8,2,0 40=2 50=270
(tilted)(command "LINE" '(0 0) '(12 0) "")(command "LINE" '(10 -2) '(10 9) "")(setq a (entnext) b (entnext a)) ;! FILLET|R|2|!a|!b ;~ keeps
;= LINE 10=0,0,5 11=8,0,5; LINE 10=10,0,7 11=10,0,14; ARC 10=8,7,0 40=2 210=0,-1,0 50=270
(line 0 0 12 0)(line 10 -2 10 9)(view) ;! CHAMFER|D|1|2|2,0|10,5 ;~ keeps ;= LINE 10=0,0,0 11=9,0,0; LINE 10=10,2,0 11=10,9,0; LINE 10=9,0,0 11=10,2,0
(line 0 0 12 0)(line 10 -2 10 9)(view) ;! CHAMFER|A|2|45|2,0|10,5 ;~ keeps ;= LINE 10=0,0,0 11=8,0,0; LINE 10=10,2,0 11=10,9,0; LINE 10=8,0,0 11=10,2,0
(command "RECTANG" '(0 0) '(10 6))(view) ;! CHAMFER|D|1||P|5,0 ;~ keeps ;= LWPOLYLINE 70=1 10=0,1 10=1,0 10=9,0 10=10,1 10=10,5 10=9,6 10=1,6 10=0,5
(command "PLINE" '(0 0) '(10 0) '(10 6) "")(view) ;! CHAMFER|D|1|2|10,3|5,0 ;~ keeps ;= LWPOLYLINE 10=0,0 10=8,0 10=10,1 10=10,6
(line 0 0 12 0)(command "CIRCLE" '(0 0) 5)(view) ;! CHAMFER|D|1|2|9,0|0,5 ;~ keeps ;> Only straight lines can be chamfered ;= LINE 10=0,0,0 11=12,0,0; CIRCLE 10=0,0,0 40=5
(line 0 0 12 0)(line 0 3 12 3)(view) ;! CHAMFER|D|1|2|9,0|9,3 ;~ keeps ;> The lines are parallel ;= LINE 10=0,0,0 11=12,0,0; LINE 10=0,3,0 11=12,3,0
; The first and the last stretch of an open polyline close it
(command "PLINE" '(3 0) '(10 0) '(10 8) '(0 8) '(0 3) "")(view) ;! FILLET|R|1|0,5|5,0 ;~ keeps ;= LWPOLYLINE 70=1 10=1,0 10=10,0 10=10,8 10=0,8 10=0,1 42=0.414214
(command "PLINE" '(3 0) '(10 0) '(10 8) '(0 8) '(0 3) "")(view) ;! FILLET|R|0|5,0|0,5 ;~ keeps ;= LWPOLYLINE 70=1 10=0,0 10=10,0 10=10,8 10=0,8
(command "PLINE" '(3 0) '(10 0) '(10 8) '(0 8) '(0 3) "")(view) ;! CHAMFER|D|1|2|5,0|0,5 ;~ keeps ;= LWPOLYLINE 70=1 10=1,0 10=10,0 10=10,8 10=0,8 10=0,2
; Picks nearer to the corner than the cut is
(line 0 0 12 0)(line 10 -2 10 9)(view) ;! FILLET|R|2|9,0|10,1 ;~ keeps ;= LINE 10=0,0,0 11=8,0,0; LINE 10=10,2,0 11=10,9,0; ARC 10=8,2,0 40=2 50=270
(line 0 0 12 0)(line 10 -2 10 9)(view) ;! CHAMFER|D|2|3|9,0|10,1 ;~ keeps ;= LINE 10=0,0,0 11=8,0,0; LINE 10=10,3,0 11=10,9,0; LINE 10=8,0,0 11=10,3,0
; An arc becomes part of a polyline, whose end leads to it, and arcs of polylines are sides
(command "PLINE" '(0 9) '(0 0) '(8 0) "")(command "ARC" "C" '(10 7) '(10 2) '(15 7))(view) ;! FILLET|R|0|6,0|14,4 ;> no arc ;~ keeps
;= LWPOLYLINE 10=0,9 10=0,0 10=8,0; ARC 10=10,7,0 40=5 50=270
(command "PLINE" '(0 9) '(0 0) '(8 0) "")(command "ARC" "C" '(10 5) '(15 5) '(10 10))(view) ;! FILLET|R|0|6,0|15,5.1 ;~ keeps
;= LWPOLYLINE 10=0,9 10=0,0 10=10,0 42=1 10=10,10
(command "PLINE" '(0 0) '(10 0) "A" '(10 6) "")(line 20 6 12 6)(view) ;! FILLET|R|0|12.12132,5.12132|18,6 ;~ keeps ;= LWPOLYLINE 10=0,0 10=10,0 42=1 10=10,6 10=20,6
(command "PLINE" '(-10 0) '(0 0) "")(command "ARC" "C" '(0 0) '(5 0) '(0 5))(view) ;! FILLET|R|1|-9,0|1,4.9 ;~ keeps
;? (list (value-of 0) (near (car (all-of 10)) '(-10 0)) (near (cadr (all-of 10)) (list (- (sqrt 35.0)) 0)) (near (distance '(0 0) (caddr (all-of 10))) 5) (near (cadddr (all-of 10)) '(5 0)))
;= ("LWPOLYLINE" T T T T)
(command "PLINE" '(0 0) '(10 0) '(10 6) "")(command "CIRCLE" '(20 0) 3)(view) ;! FILLET|R|9|5,0|17,0 ;~ keeps ;> ends of open ;= LWPOLYLINE 10=0,0 10=10,0 10=10,6; CIRCLE 10=20,0,0 40=3
(command "PLINE" '(-10 0) '(10 0) "")(command "CIRCLE" '(0 3) 2)(view) ;! FILLET|T|N|R|1|-5,0|-2,3 ;~ keeps
;= LWPOLYLINE 10=-10,0 10=10,0; CIRCLE 10=0,3,0 40=2; ARC 10=-2.23607,1,0 40=1 50=270 51=41.8103
; Without trimming a polyline's corner gets an arc of its own
(command "PLINE" '(0 0) '(10 0) '(10 6) "")(view) ;! FILLET|T|N|R|1|5,0|10,3 ;~ keeps ;= LWPOLYLINE 10=0,0 10=10,0 10=10,6; ARC 10=9,1,0 40=1 50=270
(command "PLINE" '(0 9) '(0 0) '(8 0) "")(line 10 2 10 9)(view) ;! FILLET|R|12|5,0|10,5 ;~ keeps ;> too large ;= LWPOLYLINE 10=0,9 10=0,0 10=8,0; LINE 10=10,2,0 11=10,9,0
; A straight stretch and an arc of one polyline: the centre lies 1 from the line and 6 from that of the arc
(entmake '((0 . "LWPOLYLINE") (100 . "AcDbEntity") (100 . "AcDbPolyline") (90 . 3) (70 . 0) (10 0.0 0.0) (10 10.0 0.0) (42 . -0.41421356237) (10 15.0 5.0)))(view) ;! FILLET|R|1|5,0|11.46447,3.53553 ;~ keeps
;= LWPOLYLINE 10=0,0 10=9.08392,0 42=0.365977 10=10.0699,0.833333 42=-0.365977 10=15,5
(entmake '((0 . "LWPOLYLINE") (100 . "AcDbEntity") (100 . "AcDbPolyline") (90 . 3) (70 . 0) (10 0.0 0.0) (10 10.0 0.0) (42 . -0.41421356237) (10 15.0 5.0)))(view) ;! FILLET|R|40|11.46447,3.53553|5,0 ;~ keeps ;> too large
;? (list (value-of 0) (all-of 10)) ;= ("LWPOLYLINE" ((0.0 0.0) (10.0 0.0) (15.0 5.0)))
(command "RECTANG" '(0 0) '(10 6))(view)(lock "0") ;! FILLET|R|1|P|5,0| ;~ keeps ;> locked layer ;= LWPOLYLINE 70=1 10=0,0 10=10,0 10=10,6 10=0,6
; An arc between lines that lead to one corner goes, tangent or not
(command "PLINE" '(0 0) '(8 0) "A" '(10 4) "L" '(10 9) "")(view) ;! FILLET|R|2|P|5,0 ;~ keeps ;= LWPOLYLINE 10=0,0 10=8,0 42=0.414214 10=10,2 10=10,9
(tilted)(command "PLINE" '(0 2) '(0 0) '(8 0) "")(command "LINE" '(10 2) '(10 9) "")(setq a (entnext) b (entnext a)) ;! FILLET|R|1|!a|!b ;~ keeps ;? (near (all-of 10) '((0 7) (0 5) (9 5) (10 6) (10 14))) ;= T
