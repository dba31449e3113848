;! DIST|1,2|4,6 ;> Distance = 5.0000,  Angle in XY Plane = 53,  Angle from XY Plane = 0 ;=
;! DIST|0,0,0|3,0,4 ;> Delta X = 3.0000,  Delta Y = 0.0000,   Delta Z = 4.0000 ;=
(turned) ;! DIST|0,0|0,2 ;> Delta X = 0.0000,  Delta Y = 2.0000 ;=
;! DIST|0,0|M|3,0|3,4|9,9|U|T ;> Distance = 7.0000 ;=
;! DIST|0,0|M|3,0|3,4|C ;> Distance = 12.0000 ;=
;! ID|3,4 ;> X = 3.0000     Y = 4.0000     Z = 0.0000 ;=
(tilted) ;! ID|*1,2,7 ;> X = 1.0000     Y = 2.0000     Z = -2.0000 ;=
(line 0 0 3 4) ;! LIST|ALL| ;> Length = 5.0000,  Angle in XY Plane = 53 ;= LINE 10=0,0,0 11=3,4,0
(turned)(line 0 0 3 4) ;! LIST|ALL| ;> from point, X=-20.0000  Y=10.0000  Z=0.0000 ;= LINE 10=0,0,0 11=3,4,0
(command "CIRCLE" '(1 1) 2) ;! LIST|ALL| ;> area  12.5664 ;= CIRCLE 10=1,1,0 40=2
(pline '((0 0) (4 0) (4 3)) 1) ;! LIST|ALL| ;> perimeter  12.0000 ;= LWPOLYLINE 70=1 10=0,0 10=4,0 10=4,3
(arc-pline) ;! LIST|ALL| ;> length  10.2832 ;? nil ;= nil
(arc-at) ;! LIST|ALL| ;> length  3.1416 ;= ARC 10=5,5,0 40=2 51=90
(door)(command "-INSERT" "Door" '(1 2) 1 "" 90) ;! LIST|ALL| ;> rotation angle  90 ;= INSERT 2=Door 10=1,2,0 41=1 42=1 43=1 50=90
(dimension) ;! LIST|ALL| ;> measurement  4.0000 ;? nil ;= nil
(on-layer "Deep") ;! LIST|ALL| ;> Layer: "Deep" ;= LINE 10=1,1,0 11=2,2,0
(line 0 0 1 0)(line 9 9 8 8) ;! SELECT|0,0| ;? (list (sslength (ssget "P")) (cadr (ssget "I"))) ;= (1 nil)
(line 0 0 1 0)(line 9 9 8 8) ;! PSELECT|ALL|R|9,9| ;? (sslength (ssget "I")) ;= 1
(line 0 0 1 0) ;! STATUS ;> 1 objects in ;= LINE 10=0,0,0 11=1,0,0
;! TIME ;> Times for this drawing ;=
