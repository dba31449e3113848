(line 0 0 10 0)(view) ;! OFFSET|2|5,0|5,9|5,0|5,-9| ;~ keeps
;= LINE 10=0,0,0 11=10,0,0; LINE 10=0,2,0 11=10,2,0; LINE 10=0,-2,0 11=10,-2,0
(line 0 0 10 0)(view) ;! OFFSET|T|5,0|20,3| ;~ keeps ;= LINE 10=0,0,0 11=10,0,0; LINE 10=0,3,0 11=10,3,0
(command "CIRCLE" '(0 0) 10)(view) ;! OFFSET|3|10,0|0,0|10,0|20,20| ;~ keeps ;= CIRCLE 10=0,0,0 40=10; CIRCLE 10=0,0,0 40=7; CIRCLE 10=0,0,0 40=13
(command "CIRCLE" '(0 0) 10)(view) ;! OFFSET|12|10,0|0,0 ;> Cannot offset that object so far ;= CIRCLE 10=0,0,0 40=10
(command "ARC" "C" '(0 0) '(10 0) '(0 10))(view) ;! OFFSET|T|0,10|0,4| ;~ keeps ;= ARC 10=0,0,0 40=10 51=90; ARC 10=0,0,0 40=4 51=90
(command "RECTANG" '(0 0) '(10 6))(view) ;! OFFSET|1|5,0|5,3| ;~ keeps
;= LWPOLYLINE 70=1 10=0,0 10=10,0 10=10,6 10=0,6; LWPOLYLINE 70=1 10=1,1 10=9,1 10=9,5 10=1,5
(command "RECTANG" '(0 0) '(10 6))(view) ;! OFFSET|1|5,0|5,-3| ;~ keeps
;= LWPOLYLINE 70=1 10=0,0 10=10,0 10=10,6 10=0,6; LWPOLYLINE 70=1 10=-1,-1 10=11,-1 10=11,7 10=-1,7
(setvar "OFFSETGAPTYPE" 1)(command "RECTANG" '(0 0) '(10 6))(view) ;! OFFSET|1|5,0|5,-3| ;~ keeps ;? (list (value-of 90) (near (apply '+ (all-of 42)) (* 4 0.41421356)))
;= (8 T)
(setvar "OFFSETGAPTYPE" 2)(command "RECTANG" '(0 0) '(10 6))(view) ;! OFFSET|1|5,0|5,-3| ;~ keeps ;? (list (value-of 90) (near (mapcar '(lambda (p) (distance '(10 0) p)) (list (cadr (all-of 10)) (caddr (all-of 10)))) (list (/ 1 (cos (/ pi 8))) (/ 1 (cos (/ pi 8))))))
;= (8 T)
(command "RECTANG" '(0 0) '(10 6))(view) ;! OFFSET|4|5,0|5,3 ;> Cannot offset that object so far ;= LWPOLYLINE 70=1 10=0,0 10=10,0 10=10,6 10=0,6
; The narrow part of a dumbbell has no room: two are left.
(command "PLINE" '(0 0) '(10 0) '(10 4) '(20 4) '(20 0) '(30 0) '(30 10) '(20 10) '(20 6) '(10 6) '(10 10) '(0 10) "C")(view) ;! OFFSET|2|5,0|5,5| ;~ keeps
;= LWPOLYLINE 70=1 10=0,0 10=10,0 10=10,4 10=20,4 10=20,0 10=30,0 10=30,10 10=20,10 10=20,6 10=10,6 10=10,10 10=0,10; LWPOLYLINE 70=1 10=2,2 10=8,2 10=8,8 10=2,8; LWPOLYLINE 70=1 10=22,2 10=28,2 10=28,8 10=22,8
(command "PLINE" '(0 0) '(10 0) '(10 10) "")(view) ;! OFFSET|2|5,0|5,5| ;~ keeps ;= LWPOLYLINE 10=0,0 10=10,0 10=10,10; LWPOLYLINE 10=0,2 10=8,2 10=8,10
(command "PLINE" '(0 0) '(10 0) "A" '(10 10) "L" '(0 10) "")(view) ;! OFFSET|2|5,0|5,5| ;~ keeps
;= LWPOLYLINE 10=0,0 10=10,0 42=1 10=10,10 10=0,10; LWPOLYLINE 10=0,2 10=10,2 42=1 10=10,8 10=0,8
(line 0 0 10 0)(view) ;! OFFSET|E|Y|2|5,0|5,5| ;~ keeps ;= LINE 10=0,2,0 11=10,2,0
(on-layer "B")(view) ;! OFFSET|L|C|T|1.5,1.5|0,5| ;~ keeps ;? (cdr (assoc 8 (entget (entlast)))) ;= "0"
(on-layer "B")(view) ;! OFFSET|T|1.5,1.5|0,5| ;~ keeps ;? (cdr (assoc 8 (entget (entlast)))) ;= "B"
(line 0 0 10 0)(view) ;! OFFSET|2|5,0|M|5,9|5,9|U|| ;~ keeps ;= LINE 10=0,0,0 11=10,0,0; LINE 10=0,2,0 11=10,2,0
(command "ELLIPSE" "C" '(0 0) '(10 0) 5)(view) ;! OFFSET|1|10,0|20,0| ;~ keeps ;? (list (value-of 0) (near (car (all-of 10)) '(11 0 0))) ;= ("SPLINE" T)
(command "3DPOLY" '(0 0 0) '(9 0 5) "")(view) ;! OFFSET|1|4.5,0|5,5 ;> Cannot offset ;? (vertices 10) ;= ((0.0 0.0 0.0) (9.0 0.0 5.0))
(command "-MTEXT" '(0 0) "W" 0 "text" "")(view) ;! OFFSET|1|0.1,-0.1 ;> Cannot offset that object. ;? (value-of 0) ;= "MTEXT"
(turned)(command "LINE" '(0 0) '(10 0) "")(view) ;! OFFSET|2|5,0|5,5| ;~ keeps ;= LINE 10=10,20,0 11=10,30,0; LINE 10=8,20,0 11=8,30,0
(command "PLINE" '(0 0) '(10 0) '(20 0.0445) '(30 -5) '(40 -20) "")(view) ;! OFFSET|0.2|5,0|5,5| ;~ keeps ;? (list (value-of 90) (sslength (ssget "X"))) ;= (6 2)
(command "PLINE" '(0 0) '(10 0) '(20 0.06) '(30 -5) '(40 -20) "")(view) ;! OFFSET|0.2|5,0|5,5| ;~ keeps ;? (list (value-of 90) (sslength (ssget "X"))) ;= (5 2)
; Where both walls of a passage meet there is one line; a spike gets no tip; arcs go on until they meet
(command "PLINE" '(0 0) '(0 10) '(4 10) '(4 0) "")(view) ;! OFFSET|2|0,5|2,5| ;~ keeps ;= LWPOLYLINE 10=0,0 10=0,10 10=4,10 10=4,0; LWPOLYLINE 10=2,0 10=2,8
(command "PLINE" '(0 0) '(0 10) '(4 10) '(4 0) "")(view) ;! OFFSET|3|0,5|2,5 ;> Cannot offset that object so far ;= LWPOLYLINE 10=0,0 10=0,10 10=4,10 10=4,0
(command "PLINE" '(0 0) '(10 0) '(0 0.01) "")(view) ;! OFFSET|1|5,0|5,-5| ;~ keeps ;? (< (apply 'max (mapcar 'car (all-of 10))) 11.1) ;= T
(setvar "OFFSETGAPTYPE" 2)(command "PLINE" '(0 0) '(10 0) '(10 0) '(10 10) "")(view) ;! OFFSET|1|5,0|5,-5| ;~ keeps ;= LWPOLYLINE 10=0,0 10=10,0 10=10,0 10=10,10; LWPOLYLINE 10=0,-1 10=10.4142,-1 10=11,-0.414214 10=11,10
(command "PLINE" '(0 0) "W" 1 2 '(5 0) '(10 0) '(10 10) "")(view) ;! OFFSET|1|2,0|5,5| ;~ keeps ;? (list (near (all-of 10) '((0 1) (5 1) (9 1) (9 10))) (all-of 40) (all-of 41)) ;= (T (1.0 2.0 2.0 2.0) (2.0 2.0 2.0 2.0))
(entmake '((0 . "LWPOLYLINE") (100 . "AcDbEntity") (100 . "AcDbPolyline") (90 . 3) (70 . 0) (10 0.0 0.0) (42 . 0.3) (10 10.0 0.0) (42 . 0.3) (10 10.0 10.0)))(view) ;! OFFSET|1|0,0|15,-5| ;~ keeps
;? (list (value-of 90) (near (+ (caadr (all-of 10)) (cadadr (all-of 10))) 10.0)) ;= (3 T)
