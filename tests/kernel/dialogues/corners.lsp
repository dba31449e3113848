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
