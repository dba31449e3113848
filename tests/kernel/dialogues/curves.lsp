; Cutting, lengthening, dividing and measuring curves. The coordinates follow from the lines at hand.

; A part between two edges, and an end
(cross) ;! TRIM|ALL||0,0| ;~ keeps
;= LINE 10=-10,0,0 11=-2,0,0; LINE 10=-2,-5,0 11=-2,5,0; LINE 10=3,-5,0 11=3,5,0; LINE 10=3,0,0 11=10,0,0
(cross) ;! TRIM||-9,0| ;~ keeps
;= LINE 10=-2,0,0 11=10,0,0; LINE 10=-2,-5,0 11=-2,5,0; LINE 10=3,-5,0 11=3,5,0
(cross) ;! TRIM||-9,0|0,0|U|U|U| ;~ keeps
;= LINE 10=-10,0,0 11=10,0,0; LINE 10=-2,-5,0 11=-2,5,0; LINE 10=3,-5,0 11=3,5,0
(line 0 0 9 0)(line 5 5 5 9) ;! TRIM||9,0| ;~ keeps ;> Object does not intersect an edge.
;= LINE 10=0,0,0 11=9,0,0; LINE 10=5,5,0 11=5,9,0
(line 0 0 9 0)(line 5 5 5 9) ;! TRIM||E|E|9,0| ;~ keeps ;= LINE 10=0,0,0 11=5,0,0; LINE 10=5,5,0 11=5,9,0
(line 0 0 9 0)(entmake '((0 . "LINE") (10 5.0 -5.0 3.0) (11 5.0 5.0 3.0))) ;! TRIM||9,0| ;~ keeps
;= LINE 10=0,0,0 11=5,0,0; LINE 10=5,-5,3 11=5,5,3
(line 0 0 9 0)(entmake '((0 . "LINE") (10 5.0 -5.0 3.0) (11 5.0 5.0 3.0))) ;! TRIM||P|N|9,0| ;~ keeps
;= LINE 10=0,0,0 11=9,0,0; LINE 10=5,-5,3 11=5,5,3
(line 0 0 9 0)(lock "0")(on-layer "B") ;! TRIM||5,0| ;~ keeps ;> That object is on a locked layer.
;= LINE 10=0,0,0 11=9,0,0; LINE 10=1,1,0 11=2,2,0
(circle 0 0 5)(line 0 -9 0 9) ;! TRIM||5,0| ;~ keeps ;= LINE 10=0,-9,0 11=0,9,0; ARC 10=0,0,0 40=5 50=90 51=270
(chain 1 '((0.0 0.0) (8.0 0.0) (8.0 4.0) (0.0 4.0)))(line 4 -9 4 9) ;! TRIM||8,2| ;~ keeps
;= LWPOLYLINE 10=4,4 10=0,4 10=0,0 10=4,0; LINE 10=4,-9,0 11=4,9,0
(line 0 0 9 0)(line 3 -5 3 5)(line 6 -5 6 5) ;! TRIM|L||F|8,-1|8,1|| ;~ keeps
;= LINE 10=0,0,0 11=6,0,0; LINE 10=3,-5,0 11=3,5,0; LINE 10=6,-5,0 11=6,5,0
(cross) ;! TRIM||R|L|| ;~ keeps ;= LINE 10=-10,0,0 11=10,0,0; LINE 10=-2,-5,0 11=-2,5,0
(turned)(cross) ;! TRIM||-20,10| ;~ keeps ;= LINE 10=-10,0,0 11=-2,0,0; LINE 10=-2,-5,0 11=-2,5,0; LINE 10=3,-5,0 11=3,5,0; LINE 10=3,0,0 11=10,0,0

; A curve that crosses itself is cut there
(chain 0 '((0.0 0.0) (8.0 0.0) (8.0 4.0) (4.0 4.0) (4.0 -4.0))) ;! TRIM|ALL||8,2| ;~ keeps
;= LWPOLYLINE 10=0,0 10=4,0; LWPOLYLINE 10=4,0 10=4,-4
(line 0 0 9 0)(line 5 5 5 9)(setvar "EDGEMODE" 1) ;! TRIM||_E|_N|9,0| ;~ keeps ;> Object does not intersect an edge.
;= LINE 10=0,0,0 11=9,0,0; LINE 10=5,5,0 11=5,9,0

; To the next edge beyond an end, arcs round their centre
(line 0 0 4 0)(line 6 -5 6 5)(line 9 -5 9 5) ;! EXTEND||3,0| ;~ keeps ;= LINE 10=0,0,0 11=6,0,0; LINE 10=6,-5,0 11=6,5,0; LINE 10=9,-5,0 11=9,5,0
(line 0 0 4 0)(line 6 -5 6 5) ;! EXTEND||1,0| ;~ keeps ;> Object does not intersect an edge. ;= LINE 10=0,0,0 11=4,0,0; LINE 10=6,-5,0 11=6,5,0
(arc 0 0 5 0 45)(line 0 0 0 9) ;! EXTEND|L||3.5355339,3.5355339| ;~ keeps ;= ARC 10=0,0,0 40=5 51=90; LINE 10=0,0,0 11=0,9,0
(chain 0 '((0.0 0.0) (8.0 0.0) (8.0 4.0)))(line 0 9 9 9) ;! EXTEND|L||8,3| ;~ keeps ;= LWPOLYLINE 10=0,0 10=8,0 10=8,9; LINE 10=0,9,0 11=9,9,0
(circle 0 0 5)(line 0 -9 0 9) ;! EXTEND||5,0| ;~ keeps ;> Cannot EXTEND this object. ;= CIRCLE 10=0,0,0 40=5; LINE 10=0,-9,0 11=0,9,0

; Taken apart
(line 0 0 9 0) ;! BREAK|3,0|5,0 ;= LINE 10=0,0,0 11=3,0,0; LINE 10=5,0,0 11=9,0,0
(line 0 0 9 0) ;! BREAK|8,0|F|3,0|@ ;= LINE 10=0,0,0 11=3,0,0; LINE 10=3,0,0 11=9,0,0
(line 0 0 9 0) ;! BREAK|3,0|20,1 ;= LINE 10=0,0,0 11=3,0,0
(circle 0 0 5) ;! BREAK|5,0|0,5 ;= ARC 10=0,0,0 40=5 50=90
(circle 0 0 5) ;! BREAK|5,0|@ ;> cannot be broken at one point ;= CIRCLE 10=0,0,0 40=5
(chain 1 '((0.0 0.0) (8.0 0.0) (8.0 4.0) (0.0 4.0))) ;! BREAK|2,0|6,0 ;= LWPOLYLINE 10=6,0 10=8,0 10=8,4 10=0,4 10=0,0 10=2,0
(chain 1 '((0.0 0.0) (8.0 0.0) (8.0 4.0) (0.0 4.0))) ;! BREAK|2,0|6,0 ;= LWPOLYLINE 10=6,0 10=8,0 10=8,4 10=0,4 10=0,0 10=2,0
(chain 1 '((0.0 0.0) (8.0 0.0) (8.0 4.0) (0.0 4.0))) ;! BREAK|6,0|2,0 ;= LWPOLYLINE 10=2,0 10=6,0

; Longer and shorter, at the end near the pick
(line 0 0 9 0) ;! LENGTHEN|DE|2|8,0| ;~ keeps ;= LINE 10=0,0,0 11=11,0,0
(line 0 0 9 0) ;! LENGTHEN|DE|-2|1,0| ;~ keeps ;= LINE 10=2,0,0 11=9,0,0
(line 0 0 9 0) ;! LENGTHEN|P|200|8,0|U| ;~ keeps ;= LINE 10=0,0,0 11=9,0,0
(line 0 0 9 0) ;! LENGTHEN|T|4|8,0| ;~ keeps ;= LINE 10=0,0,0 11=4,0,0
(line 0 0 9 0) ;! LENGTHEN|DY|8,0|12,7| ;~ keeps ;= LINE 10=0,0,0 11=12,0,0
(arc 0 0 5 0 45) ;! LENGTHEN|DE|A|45|3.5355339,3.5355339| ;~ keeps ;= ARC 10=0,0,0 40=5 51=90
(old-polyline 0 '((0 0 0) (3 0 0))) ;! LENGTHEN|DE|1|3,0| ;~ keeps ;? (cdr (assoc 10 (entget (entnext (entnext (entlast)))))) ;= (4.0 0.0 0.0)
(old-polyline 0 '((0 0 0) (3 0 0))) ;! LENGTHEN|DE|1|3,0|U| ;~ keeps ;? (cdr (assoc 10 (entget (entnext (entnext (entlast)))))) ;= (3.0 0.0 0.0)
(arc 0 0 5 0 45) ;! LENGTHEN|T|999|5,0| ;~ keeps ;> The object cannot have that length. ;= ARC 10=0,0,0 40=5 51=45
(line 0 0 9 0) ;! LENGTHEN|8,0| ;~ keeps ;> Current length: 9.0000 ;= LINE 10=0,0,0 11=9,0,0

; Points along
(line 0 0 9 0) ;! DIVIDE|8,0|3 ;= LINE 10=0,0,0 11=9,0,0; POINT 10=3,0,0; POINT 10=6,0,0
(chain 1 '((0.0 0.0) (8.0 0.0) (8.0 8.0) (0.0 8.0))) ;! DIVIDE|8,2|4 ;= LWPOLYLINE 70=1 10=0,0 10=8,0 10=8,8 10=0,8; POINT 10=0,0,0; POINT 10=8,0,0; POINT 10=8,8,0; POINT 10=0,8,0
(line 0 0 9 0) ;! MEASURE|8,0|4 ;= LINE 10=0,0,0 11=9,0,0; POINT 10=1,0,0; POINT 10=5,0,0
(door)(line 0 0 0 9) ;! DIVIDE|0,1|B|Door||2 ;= LINE 10=0,0,0 11=0,9,0; INSERT 2=Door 10=0,4.5,0 50=90
(door)(line 0 0 0 9) ;! MEASURE|0,1|B|Door|N|5 ;= LINE 10=0,0,0 11=0,9,0; INSERT 2=Door 10=0,5,0
(line 0 0 9 0) ;! MEASURE|8,0|0.00001 ;> These would be more than 32767. ;= LINE 10=0,0,0 11=9,0,0

; Areas
(line 0 0 9 0) ;! AREA|0,0|4,0|4,3| ;> Area = 6.0000, Perimeter = 12.0000 ;= LINE 10=0,0,0 11=9,0,0
(circle 0 0 2) ;! AREA|O|2,0 ;> Area = 12.5664, Circumference = 12.5664 ;= CIRCLE 10=0,0,0 40=2
(tilted)(line 0 0 9 0) ;! AREA|0,0|4,0|4,3| ;? (list (getvar "AREA") (getvar "PERIMETER")) ;= (6.0 12.0)
(circle 0 0 2)(chain 1 '((-5.0 -5.0) (5.0 -5.0) (5.0 5.0) (-5.0 5.0))) ;! AREA|A|O|5,0||S|O|2,0|| ;> Total area = 87.4336
;= CIRCLE 10=0,0,0 40=2; LWPOLYLINE 70=1 10=-5,-5 10=5,-5 10=5,5 10=-5,5
(circle 0 0 2)(chain 1 '((-5.0 -5.0) (5.0 -5.0) (5.0 5.0) (-5.0 5.0))) ;! AREA|_A|_O|ALL||
;? (list (rtos (getvar "AREA") 2 4) (rtos (getvar "PERIMETER") 2 4)) ;= ("112.5664" "40.0000")

; What is there twice, and what overlaps
(line 0 0 3 0)(line 3 0 0 0)(line 2 0 9 0)(line 0 1 3 1) ;! -OVERKILL|ALL|| ;= LINE 10=0,0,0 11=9,0,0; LINE 10=0,1,0 11=3,1,0
(line 0 0 3 0)(line 3 0 9 0) ;! -OVERKILL|ALL||E|N| ;= LINE 10=0,0,0 11=3,0,0; LINE 10=3,0,0 11=9,0,0
(line 0 0 3 0)(line 2 0 9 0)(line 9 0 12 0) ;! OVERKILL|ALL||O|N|_D ;= LINE 10=0,0,0 11=3,0,0; LINE 10=2,0,0 11=12,0,0
(line 0 0 3 0)(line 0 0.01 3 0.01) ;! -OVERKILL|ALL||T|0.1| ;> 1 duplicate ;= LINE 10=0,0,0 11=3,0,0
(line 1 1 2 2)(on-layer "B") ;! -OVERKILL|ALL|| ;> 0 duplicate(s) ;= LINE 10=1,1,0 11=2,2,0; LINE 10=1,1,0 11=2,2,0
(line 1 1 2 2)(on-layer "B") ;! -OVERKILL|ALL||I|LA| ;> 1 duplicate(s) ;= LINE 10=1,1,0 11=2,2,0
(circle 0 0 5)(circle 0 0 5)(arc 0 0 5 10 20) ;! -OVERKILL|ALL|| ;= CIRCLE 10=0,0,0 40=5
(arc 0 0 5 270 20)(arc 0 0 5 10 45)(arc 0 0 5 90 180) ;! -OVERKILL|ALL|| ;= ARC 10=0,0,0 40=5 50=270 51=45; ARC 10=0,0,0 40=5 50=90 51=180
(arc 0 0 5 0 200)(arc 0 0 5 180 30) ;! -OVERKILL|ALL|| ;= CIRCLE 10=0,0,0 40=5
(door)(entmake '((0 . "INSERT") (2 . "Door") (10 1.0 1.0 0.0)))(entmake '((0 . "INSERT") (2 . "Door") (10 1.0 1.0 0.0))) ;! -OVERKILL|ALL|| ;= INSERT 2=Door 10=1,1,0
(old-polyline 0 '((0 0 0) (3 0 0)))(old-polyline 0 '((0 0 0) (3 0 0))) ;! -OVERKILL|ALL|| ;> 1 duplicate(s) ;? (sslength (ssget "X")) ;= 1
(line 0 0 3 0)(line 0 0 3 0)(lock "0") ;! -OVERKILL|ALL| ;= LINE 10=0,0,0 11=3,0,0; LINE 10=0,0,0 11=3,0,0

; Joined
(line 0 0 3 0)(line 5 0 9 0) ;! JOIN|ALL| ;> 2 lines joined into 1 line ;= LINE 10=0,0,0 11=9,0,0
(line 0 0 3 0)(line 9 0 5 0)(line 4 1 5 1) ;! JOIN|1,0||ALL| ;> 1 objects discarded ;= LINE 10=0,0,0 11=9,0,0; LINE 10=4,1,0 11=5,1,0
(arc 0 0 5 0 45)(arc 0 0 5 90 135) ;! JOIN|ALL| ;= ARC 10=0,0,0 40=5 51=135
(arc 0 0 5 90 135)(arc 0 0 5 0 45) ;! JOIN|ALL| ;= ARC 10=0,0,0 40=5 50=90 51=45
(arc 0 0 5 90 135)(arc 0 0 5 0 90) ;! JOIN|ALL| ;= ARC 10=0,0,0 40=5 51=135
(arc 0 0 5 0 200)(arc 0 0 5 190 20) ;! JOIN|ALL| ;= CIRCLE 10=0,0,0 40=5
(arc 0 0 5 0 45) ;! JOIN|5,0||L ;= CIRCLE 10=0,0,0 40=5
(line 0 0 3 0)(line 3 0 3 4)(line 9 9 9 5) ;! JOIN|ALL| ;> 2 objects converted to 1 polyline ;= LINE 10=9,9,0 11=9,5,0; LWPOLYLINE 10=0,0 10=3,0 10=3,4
(line 5 0 5 5)(arc 0 0 5 0 90) ;! JOIN|ALL| ;= LWPOLYLINE 10=0,5 42=-0.414214 10=5,0 10=5,5
(line 3 0 3 4)(chain 0 '((0.0 0.0) (3.0 0.0))) ;! JOIN|ALL| ;= LWPOLYLINE 10=0,0 10=3,0 10=3,4
(line 0 0 3 0)(line 3 0 3 4)(line 3 4 0 4)(line 0 4 0 0) ;! JOIN|ALL| ;= LWPOLYLINE 70=1 10=0,0 10=3,0 10=3,4 10=0,4
(line 0 0 3 0)(line 5 0 9 0)(line 0 2 3 2)(line 5 2 9 2) ;! JOIN|ALL| ;= LINE 10=0,0,0 11=9,0,0; LINE 10=0,2,0 11=9,2,0
(turned)(line 0 0 3 0)(line 5 0 9 0) ;! JOIN|ALL| ;= LINE 10=0,0,0 11=9,0,0
(tilted)(line 0 0 3 0)(entmake '((0 . "LINE") (10 3.0 0.0 0.0) (11 3.0 0.0 4.0))) ;! JOIN|ALL| ;? (mapcar 'cdr (vl-remove-if-not '(lambda (f) (member (car f) '(10 210))) (entget (entlast)))) ;= ((0.0 0.0) (3.0 0.0) (3.0 4.0) (0.0 -1.0 0.0))
(line 0 0 3 0)(line 3 0 3 4)(lock "0") ;! JOIN|ALL| ;= LINE 10=0,0,0 11=3,0,0; LINE 10=3,0,0 11=3,4,0
(circle 0 0 5)(line 0 0 3 0) ;! JOIN|ALL| ;> 2 objects discarded ;= CIRCLE 10=0,0,0 40=5; LINE 10=0,0,0 11=3,0,0
; Splines take what meets them, exactly: knots of one degree stay, lines and arcs are raised.
(progn (bow 0 0 1) (bow 4 0 1)) ;! JOIN|ALL| ;> 2 objects converted to 1 spline ;? (list (types) (all-of 40) (all-of 10))
;= (("SPLINE") (0.0 0.0 0.0 1.0 1.0 2.0 2.0 2.0) ((0.0 0.0 0.0) (2.0 2.0 0.0) (4.0 0.0 0.0) (6.0 2.0 0.0) (8.0 0.0 0.0)))
(progn (line 4 0 7 4) (bow 0 0 1)) ;! JOIN|ALL| ;? (list (types) (value-of 71) (all-of 10) (near (curve-length) (+ 5.0 (bow-length)))) ;= (("SPLINE") 2 ((0.0 0.0 0.0) (2.0 2.0 0.0) (4.0 0.0 0.0) (5.5 2.0 0.0) (7.0 4.0 0.0)) T)
(progn (bow 0 0 1) (arc 4 2 2 270 360) (line 6 2 6 5)) ;! JOIN|ALL| ;> 3 objects converted to 1 spline ;? (list (types) (near (curve-length) (+ 3.0 pi (bow-length))) (near (vlax-curve-getPointAtDist (entlast) (+ (bow-length) (/ pi 2))) (list (+ 4 (sqrt 2)) (- 2 (sqrt 2)) 0.0)))
;= (("SPLINE") T T)
(progn (bow 0 0 1) (line 0 0 4 0)) ;! JOIN|ALL| ;? (list (types) (vlax-curve-isClosed (entlast))) ;= (("SPLINE") T)
(progn (bow 0 0 1) (entmake '((0 . "LINE") (10 4.0 0.0 0.0) (11 4.0 0.0 5.0)))) ;! JOIN|ALL| ;? (list (types) (logand (value-of 70) 8) (vlax-curve-getEndPoint (entlast))) ;= (("SPLINE") 0 (4.0 0.0 5.0))
(progn (bow 0 0 1) (bow 5 0 1)) ;! JOIN|ALL| ;> 2 objects discarded ;? (types) ;= ("SPLINE" "SPLINE")
(progn (half-ellipse 0 1) (half-ellipse 1 3)) ;! JOIN|ALL| ;? (list (types) (value-of 41) (value-of 42)) ;= (("ELLIPSE") 0.0 3.0)
(progn (half-ellipse 0 1.5707963267948966) (line 0 1 -3 1)) ;! JOIN|ALL| ;? (list (types) (rounded (vlax-curve-getStartPoint (entlast))) (rounded (vlax-curve-getEndPoint (entlast)))) ;= (("SPLINE") (2.0 0.0 0.0) (-3.0 1.0 0.0))
; What block references show is an edge, and so are the edges of a region.
(progn (door) (command "-INSERT" "Door" '(5 -2) 1 "" 90) (line 0 0 9 0)) ;! TRIM|ALL||8,0| ;~ keeps ;? (value-of 11) ;= (5.0 0.0 0.0)
(progn (round-block) (command "-INSERT" "Round" '(5 0) -2 1 0) (line 0 0 9 0)) ;! TRIM|ALL||5,0| ;~ keeps ;? (list (types) (value-of 10)) ;= (("INSERT" "LINE") (0.0 0.0 0.0))
(progn (door) (nested) (command "-INSERT" "Outer" '(0 0) -2 2 0) (entmake '((0 . "LINE") (10 -9.0 2.0 0.0) (11 0.0 2.0 0.0)))) ;! TRIM|ALL||-9,2| ;~ keeps ;? (rounded (value-of 10)) ;= (-3.4641 2.0 0.0)
(progn (door) (command "-INSERT" "Door" '(5 -2) 1 "" 90) (line 0 0 4 0)) ;! EXTEND|ALL||4,0| ;~ keeps ;? (value-of 11) ;= (5.0 0.0 0.0)
(progn (circle 5 0 2) (command "REGION" "L" "") (line 0 0 9 0)) ;! TRIM|ALL||5,0| ;~ keeps ;? (rounded (list (types) (value-of 10))) ;= (("REGION" "LINE" "LINE") (7.0 0.0 0.0))
