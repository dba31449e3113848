; What a grip does, by the type of its entity. The last place shown is the one that the others go along with
(line 0 0 4 0) ;! GRIPEDIT|L||4,0||4,3 ;= LINE 10=0,0,0 11=4,3,0
(line 0 0 4 0) ;! GRIPEDIT|L||2,0||2,3 ;= LINE 10=0,3,0 11=4,3,0
(line 0 0 4 0) ;! GRIPEDIT|L||0,0|4,0||4,2 ;= LINE 10=0,2,0 11=4,2,0
(line 0 0 4 0)(line 4 0 4 4) ;! GRIPEDIT|ALL||4,0||5,0 ;= LINE 10=0,0,0 11=5,0,0; LINE 10=5,0,0 11=4,4,0
(line 0 0 4 0) ;! GRIPEDIT|L||9,9 ;> There is no grip of the chosen entities. ;= LINE 10=0,0,0 11=4,0,0
(command "RAY" '(1 1) '(5 1) "") ;! GRIPEDIT|L||2,1||1,9 ;? (own '(10 11)) ;= ((1.0 1.0 0.0) (0.0 1.0 0.0))
(command "XLINE" '(1 1) '(5 1) "") ;! GRIPEDIT|L||1,1||1,9 ;? (own '(10 11)) ;= ((1.0 9.0 0.0) (1.0 0.0 0.0))
(command "CIRCLE" '(1 1) 2) ;! GRIPEDIT|L||1,3||1,5 ;= CIRCLE 10=1,1,0 40=4
(command "CIRCLE" '(1 1) 2) ;! GRIPEDIT|L||1,1||2,5 ;= CIRCLE 10=2,5,0 40=2
(command "CIRCLE" '(1 1) 2) ;! GRIPEDIT|L||3,1||1,1 ;> 1 could not be changed. ;= CIRCLE 10=1,1,0 40=2
(arc-at) ;! GRIPEDIT|L||7,5||7,5 ;= ARC 10=5,5,0 40=2 51=90
(arc-at) ;! GRIPEDIT|L||6.414213562,6.414213562||7,7 ;? (rounded (own '(10 40 50 51))) ;= ((6.0 6.0 0.0) 1.4142 5.4978 2.3562)
(arc-at) ;! GRIPEDIT|L||6.414213562,6.414213562||5,5 ;? (rounded (own '(10 40 50 51))) ;= ((6.0 6.0 0.0) 1.4142 2.3562 5.4978)
(arc-at) ;! GRIPEDIT|L||6.414213562,6.414213562||6,6 ;> 1 could not be changed. ;= ARC 10=5,5,0 40=2 51=90
(arc-at) ;! GRIPEDIT|L||5,5||0,5 ;= ARC 10=0,5,0 40=2 51=90
(command "ELLIPSE" "C" '(0 0) '(4 0) 2) ;! GRIPEDIT|L||0,2||0,3 ;? (own '(10 11 40)) ;= ((0.0 0.0 0.0) (4.0 0.0 0.0) 0.75)
(command "ELLIPSE" "C" '(0 0) '(4 0) 2) ;! GRIPEDIT|L||0,2||0,8 ;? (own '(10 11 40)) ;= ((0.0 0.0 0.0) (0.0 8.0 0.0) 0.5)
(pline '((0 0) (4 0) (4 4)) 0) ;! GRIPEDIT|L||4,0||5,0 ;= LWPOLYLINE 10=0,0 10=5,0 10=4,4
(pline '((0 0) (4 0) (4 4)) 0) ;! GRIPEDIT|L||2,0||2,-1 ;= LWPOLYLINE 10=0,-1 10=4,-1 10=4,4
(pline '((0 0) (4 0) (4 4)) 1) ;! GRIPEDIT|L||2,2||2,3 ;? (all-of 10) ;= ((0.0 1.0) (4.0 0.0) (4.0 5.0))
(bent) ;! GRIPEDIT|L||2,-2||2,2 ;? (all-of 42) ;= (-1.0 0.0)
(bent) ;! GRIPEDIT|L||2,-2||2,0 ;? (all-of 42) ;= (0.0 0.0)
(old-polyline 8 '((0 0 0) (4 0 1) (8 0 2))) ;! GRIPEDIT|L||8,0,2||8,3,2 ;? (vertex-3) ;= (8.0 3.0 2.0)
(old-polyline 0 '((0 0 0) (4 0 0) (8 0 0))) ;! GRIPEDIT|L||6,0||6,3 ;? (vertex-3) ;= (8.0 3.0 0.0)
(command "SPLINE" '(0 0) '(5 5) '(10 0) "" "" "") ;! GRIPEDIT|L||10,0||10,10
;? (list (all-of 11) (last (all-of 10))) ;= (((0.0 0.0 0.0) (5.0 5.0 0.0) (10.0 10.0 0.0)) (10.0 10.0 0.0))
(command "MLINE" "J" "Z" '(0 0) '(5 0) '(10 0) "") ;! GRIPEDIT|L||10,0||5,5 ;? (all-of 11) ;= ((0.0 0.0 0.0) (5.0 0.0 0.0) (5.0 5.0 0.0))
(text-at 0) ;! GRIPEDIT|L||0,0||5,5 ;? (getfield 10) ;= (5.0 5.0 0.0)
(command "TEXT" "J" "C" '(3 3) 1 0 "AB") ;! GRIPEDIT|L||3,3||5,5 ;? (getfield 11) ;= (5.0 5.0 0.0)
(command "POINT" '(1 2)) ;! GRIPEDIT|L||1,2||5,5 ;= POINT 10=5,5,0
(door)(command "-INSERT" "Door" '(1 2) 1 "" 0) ;! GRIPEDIT|L||1,2||5,5 ;? (getfield 10) ;= (5.0 5.0 0.0)
(label)(command "-INSERT" "Label" '(0 0) 1 "" 0 "7") ;! GRIPEDIT|L||1,0||1,5
;? (list (getfield 10) (cdr (assoc 10 (entget (entnext (entlast)))))) ;= ((0.0 0.0 0.0) (1.0 5.0 0.0))
(label)(command "-INSERT" "Label" '(0 0) 1 "" 0 "7") ;! GRIPEDIT|L||0,0||0,5
;? (list (getfield 10) (cdr (assoc 10 (entget (entnext (entlast)))))) ;= ((0.0 5.0 0.0) (1.0 5.0 0.0))
(command "SOLID" '(0 0) '(4 0) '(0 4) '(4 4) "") ;! GRIPEDIT|L||4,4||5,5 ;? (own '(12 13)) ;= ((0.0 4.0 0.0) (5.0 5.0 0.0))
(command "3DFACE" '(0 0) '(4 0) '(4 4 1) '(0 4) "") ;! GRIPEDIT|L||4,4,1||4,4,3 ;? (own '(12 13)) ;= ((4.0 4.0 3.0) (0.0 4.0 0.0))
(hatch) ;! GRIPEDIT|L||2,2||4,2 ;? (cdr (all-of 10)) ;= ((2.0 0.5) (6.0 0.5) (6.0 3.5) (2.0 3.5))
(sheet-port) ;! GRIPEDIT|L||40,35||60,40 ;? (own '(10 40 41)) ;= ((30.0 22.5 0.0) 60.0 35.0)
(sheet-port) ;! GRIPEDIT|L||20,20||25,20 ;? (own '(10 40 41)) ;= ((25.0 20.0 0.0) 40.0 30.0)
(command "DIMLINEAR" '(1 2) '(101 5) '(51 9)) ;! GRIPEDIT|L||1,2||11,2 ;? (own '(13 42)) ;= ((11.0 2.0 0.0) 90.0)
(command "DIMLINEAR" '(1 2) '(101 5) '(51 9)) ;! GRIPEDIT|L||101,9||101,19 ;? (own '(10 11 42)) ;= ((101.0 19.0 0.0) (51.0 20.875 0.0) 100.0)
(command "DIMLINEAR" '(1 2) '(101 5) '(51 9)) ;! GRIPEDIT|L||51,10.875||71,30 ;? (own '(70 11)) ;= (160 (71.0 30.0 0.0))
(command "MLEADER" '(0 0) '(10 10) "Note") ;! GRIPEDIT|L||0,0||0,5 ;? (last (vl-remove '(1.0 1.0 1.0) (all-of 10))) ;= (0.0 5.0 0.0)
; Seen from below, turned, tilted, locked
(from-below "CIRCLE") ;! GRIPEDIT|L||-3,1||-5,1 ;? (own '(10 40)) ;= ((1.0 1.0 0.0) 4.0)
(from-below "ARC") ;! GRIPEDIT|L||-1,3||-1,2 ;? (rounded (own '(10 40))) ;= ((1.0 -0.5 0.0) 2.5)
(from-below "TEXT") ;! GRIPEDIT|L||-1,1||4,1 ;? (getfield 10) ;= (-4.0 1.0 0.0)
(turned)(line 0 0 4 0) ;! GRIPEDIT|L||-20,6||-20,5 ;= LINE 10=0,0,0 11=5,0,0
(tilted)(line 0 0 2 0) ;! GRIPEDIT|L||2,-5||2,-4 ;= LINE 10=0,0,0 11=2,0,1
(turned)(line 0 0 4 0) ;! GRIPEDIT|L||-20,10||MI|-15,10 ;= LINE 10=0,0,0 11=-4,0,0
(line 0 0 4 0)(lock "0") ;! GRIPEDIT|L| ;> 1 was on a locked layer. ;= LINE 10=0,0,0 11=4,0,0
; An empty answer goes on to the next way, a word turns to its own
(line 0 0 4 0) ;! GRIPEDIT|L||0,0|||1,1 ;= LINE 10=1,1,0 11=5,1,0
(line 0 0 4 0) ;! GRIPEDIT|L||0,0||RO|90 ;= LINE 10=0,0,0 11=0,4,0
(line 0 0 4 0) ;! GRIPEDIT|L||0,0||RO|R|90|180 ;= LINE 10=0,0,0 11=0,4,0
(line 0 0 4 0) ;! GRIPEDIT|L||0,0||SC|2 ;= LINE 10=0,0,0 11=8,0,0
(line 0 0 4 0) ;! GRIPEDIT|L||0,0||SC|R|4|8 ;= LINE 10=0,0,0 11=8,0,0
(line 0 0 4 0) ;! GRIPEDIT|L||0,0||||||||1,1 ;= LINE 10=1,1,0 11=5,1,0
(line 0 0 4 0) ;! GRIPEDIT|L||0,0||MI|0,0 ;> The two points are one. ;= LINE 10=0,0,0 11=4,0,0
(line 0 0 4 0) ;! GRIPEDIT|L||4,0||B|0,0|0,1 ;= LINE 10=0,0,0 11=4,1,0
(line 0 0 4 0) ;! GRIPEDIT|L||4,0||X ;= LINE 10=0,0,0 11=4,0,0
(line 0 0 4 0) ;! GRIPEDIT|L||4,0||U|4,1 ;> There is nothing to undo. ;= LINE 10=0,0,0 11=4,1,0
(line 0 0 4 0) ;! GRIPEDIT|L||4,0||C|4,3|U|5,0|X ;~ keeps ;= LINE 10=0,0,0 11=4,0,0; LINE 10=0,0,0 11=5,0,0
(line 0 0 4 0) ;! GRIPEDIT|L||0,0||RO|C|90|180|X ;~ keeps
;= LINE 10=0,0,0 11=4,0,0; LINE 10=0,0,0 11=0,4,0; LINE 10=0,0,0 11=-4,0,0
