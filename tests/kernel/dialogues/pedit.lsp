(line 0 0 5 0)(view) ;! PEDIT|2,0|Y|W|2| ;~ keeps ;= LWPOLYLINE 10=0,0 40=2 41=2 10=5,0 40=2 41=2
(line 0 0 5 0)(line 5 0 5 5)(line 9 9 5 5)(view) ;! PEDIT|2,0||J|ALL|| ;~ keeps ;= LWPOLYLINE 10=0,0 10=5,0 10=5,5 10=9,9
(setvar "PEDITACCEPT" 1)(line 5 0 5 5)(line 5 5 0 0)(line 0 0 5 0)(view) ;! PEDIT|2,0|J|ALL|| ;~ keeps
;= LWPOLYLINE 70=1 10=0,0 10=5,0 10=5,5
(setvar "PEDITACCEPT" 1)(line 0 0 5 0)(view) ;! PEDIT|L|R| ;~ keeps ;= LWPOLYLINE 10=5,0 10=0,0
(line 0 0 5 0)(view) ;! PEDIT|2,0|N ;~ keeps ;= LINE 10=0,0,0 11=5,0,0
(command "CIRCLE" '(0 0) 5)(view) ;! PEDIT|5,0 ;> Object selected is not a polyline ;= CIRCLE 10=0,0,0 40=5
(command "ARC" '(10 0) "E" '(-10 0) "A" 180)(line -10 0 10 0)(view) ;! PEDIT|0,10|Y|J|ALL|| ;~ keeps
;= LWPOLYLINE 70=1 10=10,0 42=1 10=-10,0
(command "PLINE" '(0 0) '(5 0) '(5 5) "")(view) ;! PEDIT|2,0|C| ;~ keeps ;= LWPOLYLINE 70=1 10=0,0 10=5,0 10=5,5
(command "PLINE" '(0 0) '(5 0) '(5 5) "C")(view) ;! PEDIT|2,0|O|L|ON| ;~ keeps ;= LWPOLYLINE 70=128 10=0,0 10=5,0 10=5,5
(command "PLINE" '(0 0) "W" 1 2 "A" "A" 90 '(5 5) "L" '(9 5) "")(view) ;! PEDIT|L|R| ;~ keeps
;= LWPOLYLINE 10=9,5 40=2 41=2 10=5,5 40=2 41=1 42=-0.414214 10=0,0
(command "PLINE" '(0 0) "A" "A" 90 '(5 5) "")(view) ;! PEDIT|L|D| ;~ keeps ;= LWPOLYLINE 10=0,0 10=5,5
(command "PLINE" '(0 0) '(5 0) "")(view) ;! PEDIT|L|W|2|C|U|U|U| ;~ keeps ;> Nothing to undo ;= LWPOLYLINE 10=0,0 10=5,0
(command "PLINE" '(0 0) '(4 4) '(8 0) "")(view) ;! PEDIT|L|S| ;~ keeps ;? (list (value-of 70) (value-of 75) (length (vertices 10)) (car (vertices 10)) (last (vertices 10)) (near (nth 11 (vertices 10)) '(4 2 0)))
;= (4 6 20 (0.0 0.0 0.0) (8.0 0.0 0.0) T)
(command "PLINE" '(0 0) '(4 4) '(8 0) "")(view) ;! PEDIT|L|S|D| ;~ keeps ;? (list (value-of 70) (vertices 10)) ;= (0 ((0.0 0.0 0.0) (4.0 4.0 0.0) (8.0 0.0 0.0)))
; Fitted arcs pass the corners; through three corners at right angles they are one circle round (4 0).
(command "PLINE" '(0 0) '(4 4) '(8 0) "")(view) ;! PEDIT|L|F| ;~ keeps ;? (list (value-of 70) (vertices 70) (near (mapcar '(lambda (p) (distance p '(4 0 0))) (vertices 10)) '(4 4 4 4 4)))
;= (2 (0 1 0 1 0) T)
(command "3DPOLY" '(0 0 0) '(4 4 2) '(8 0 4) "")(view) ;! PEDIT|L|C|R| ;~ keeps ;? (list (value-of 70) (vertices 10)) ;= (9 ((8.0 0.0 4.0) (4.0 4.0 2.0) (0.0 0.0 0.0)))
(line 0 0 5 0)(line 5 0 5 5)(line 20 0 20 5)(view) ;! PEDIT|M|ALL||Y|J|0| ;~ keeps
;= LWPOLYLINE 10=0,0 10=5,0 10=5,5; LWPOLYLINE 10=20,0 10=20,5
(line 0 0 5 0)(line 6 1 6 5)(view) ;! PEDIT|M|ALL|||J|2|W|1| ;~ keeps ;= LWPOLYLINE 10=0,0 40=1 41=1 10=6,0 40=1 41=1 10=6,5 40=1 41=1
(line 0 0 5 0)(line 6 1 6 5)(view) ;! PEDIT|M|ALL|||J|J|A|2| ;~ keeps ;= LWPOLYLINE 10=0,0 10=5,0 10=6,1 10=6,5
(line 0 0 5 0)(view) ;! PEDIT|M|ALL||N ;~ keeps ;= LINE 10=0,0,0 11=5,0,0
(command "PLINE" '(0 0) '(4 0) '(8 0) "")(view) ;! PEDIT|L|E|N|M|4,4|I|6,6|X| ;~ keeps ;= LWPOLYLINE 10=0,0 10=4,4 10=6,6 10=8,0
(command "PLINE" '(0 0) '(4 4) '(8 0) "")(view) ;! PEDIT|L|E|S|N|N|G|X| ;~ keeps ;= LWPOLYLINE 10=0,0 10=8,0
(command "PLINE" '(0 0) '(4 4) '(8 0) "")(view) ;! PEDIT|L|E|N|B|G| ;~ keeps ;= LWPOLYLINE 10=0,0 10=4,4; LWPOLYLINE 10=4,4 10=8,0
(command "PLINE" '(0 0) '(4 0) '(4 4) '(0 4) "C")(view) ;! PEDIT|L|E|B|N|G| ;~ keeps ;= LWPOLYLINE 10=4,0 10=4,4 10=0,4 10=0,0
(command "PLINE" '(0 0) '(4 4) '(8 0) "")(view) ;! PEDIT|L|E|W|1|2|X| ;~ keeps ;= LWPOLYLINE 10=0,0 40=1 41=2 10=4,4 10=8,0
(line 0 0 5 0)(line 5 0 5 5)(lock "0")(view) ;! PEDIT|2,0 ;~ keeps ;> locked ;= LINE 10=0,0,0 11=5,0,0; LINE 10=5,0,0 11=5,5,0
(tilted)(command "LINE" '(0 0) '(5 0) "")(command "LINE" '(5 0) '(5 5) "") ;! PEDIT|L|Y|J|ALL|| ;~ keeps ;= LWPOLYLINE 210=0,-1,0 10=0,5 10=5,5 10=5,10
(entmake '((0 . "LWPOLYLINE") (70 . 0) (10 0.0 0.0) (10 -5.0 0.0) (42 . 1.0) (10 -5.0 5.0) (210 0.0 0.0 -1.0)))(line 0 0 0 9)(view) ;! PEDIT|0,5|Y|J|ALL|| ;~ keeps
;= LWPOLYLINE 10=5,5 42=1 10=5,0 10=0,0 10=0,9
(line 0 0 5 0)(setq s (ssget "_L")) ;! PEDIT|!s|Y|W|2| ;~ keeps ;= LWPOLYLINE 10=0,0 40=2 41=2 10=5,0 40=2 41=2
(line 0 0 5 0)(line 5 0 5 -5)(command "SPLINE" '(5 -5) '(7 2) '(9 0) "" "" "")(view) ;! PEDIT|2,0||J|ALL|| ;~ keeps ;> 1 left out ;? (acad_strlsort (types)) ;= ("LWPOLYLINE" "SPLINE")
