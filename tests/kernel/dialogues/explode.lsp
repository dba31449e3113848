(pline '((0 0) (4 0) (4 4)) 1) ;! EXPLODE|L| ;~ keeps
;= LINE 10=0,0,0 11=4,0,0; LINE 10=4,0,0 11=4,4,0; LINE 10=4,4,0 11=0,0,0
(arc-pline) ;! EXPLODE|L| ;~ keeps
;= ARC 10=2,0,3 40=2 50=180; LINE 10=4,0,3 11=4,4,3
(entmake '((0 . "LWPOLYLINE") (100 . "AcDbEntity") (100 . "AcDbPolyline") (90 . 2) (70 . 0) (38 . 5.0) (10 1.0 0.0) (10 4.0 0.0) (210 0.0 0.0 -1.0)))
;! EXPLODE|ALL| ;~ keeps
;= LINE 10=-1,0,-5 11=-4,0,-5 210=0,0,-1
(old-polyline 8 '((0 0 0) (1 0 2) (1 0 2) (2 2 2))) ;! EXPLODE|L| ;~ keeps
;= LINE 10=0,0,0 11=1,0,2; LINE 10=1,0,2 11=2,2,2
(mesh) ;! EXPLODE|L| ;~ keeps
;= 3DFACE 10=0,0,0 11=1,0,0 12=1,1,0 13=0,1,0; 3DFACE 10=1,0,0 11=2,0,0 12=2,1,0 13=1,1,0
(door)(command "-INSERT" "Door" '(10 2) 2 "" 90) ;! EXPLODE|L| ;~ keeps
;= LINE 10=10,4,0 11=10,8,0
(round-block)(command "-INSERT" "Round" '(0 0) 2 1 0) ;! EXPLODE|L| ;~ keeps
;? (list (getfield 0) (getfield 11) (getfield 40)) ;= ("ELLIPSE" (4.0 0.0 0.0) 0.5)
(round-block)(setvar "EXPLMODE" 0)(command "-INSERT" "Round" '(0 0) 2 1 0) ;! EXPLODE|L| ;> scales of block "Round" differ
;= INSERT 2=Round 10=0,0,0 41=2 42=1 43=2
(round-block)(command "-INSERT" "Round" '(5 0) -1 1 0) ;! EXPLODE|L| ;~ keeps
;= CIRCLE 10=-5,0,0 40=2 210=0,0,-1
(arc-block)(command "-INSERT" "Bent" '(0 0) 2 1 0) ;! EXPLODE|L| ;~ keeps
;? (mapcar 'shape-of (after nil)) ;= (("ELLIPSE" (4.0 0.0 0.0)) ("LINE" (8.0 0.0 0.0)))
(door)(entmake '((0 . "INSERT") (2 . "Door") (10 0.0 0.0 0.0) (70 . 2) (71 . 2) (44 . 10.0) (45 . 5.0))) ;! EXPLODE|L| ;~ keeps
;= LINE 10=1,0,0 11=3,0,0; LINE 10=11,0,0 11=13,0,0; LINE 10=1,5,0 11=3,5,0; LINE 10=11,5,0 11=13,5,0
(door)(entmake '((0 . "INSERT") (2 . "Door") (10 0.0 0.0 0.0) (70 . 32000) (71 . 32000) (44 . 10.0) (45 . 5.0))) ;! EXPLODE|L|
;> Too many entities ;= INSERT 2=Door 10=0,0,0 70=32000 71=32000 44=10 45=5
(label)(command "-INSERT" "Label" '(5 5) 2 "" 0 "X") ;! EXPLODE|L| ;~ keeps
;? (list (getfield 0) (getfield 10) (getfield 2) (getfield 40)) ;= ("ATTDEF" (7.0 5.0 0.0) "NO" 2.0)
(door)(nested)(command "-INSERT" "Outer" '(0 0) 1 2 0) ;! EXPLODE|L| ;~ keeps
;= LINE 10=0.866025,1,0 11=2.59808,3,0; LINE 10=0,0,0 11=1,0,0
(site) ;! EXPLODE|L| ;> An external reference cannot be exploded. ;= INSERT 2=Site 10=1,2,0
(line 0 0 1 0) ;! EXPLODE|L| ;> LINE cannot be exploded. ;= LINE 10=0,0,0 11=1,0,0
(door)(command "-INSERT" "Door" '(1 2) 1 "" 0)(lock "0") ;! EXPLODE|W|-9,-9|99,99| ;> 1 was on a locked layer.
;= INSERT 2=Door 10=1,2,0 41=1 42=1 43=1
(entmake '((0 . "MTEXT") (100 . "AcDbEntity") (100 . "AcDbMText") (10 1.0 9.0 0.0) (40 . 2.0) (71 . 1) (1 . "one\\Ptwo")))
;! EXPLODE|L| ;~ keeps
;? (mapcar '(lambda (e) (mapcar '(lambda (c) (cdr (assoc c (entget e)))) '(0 1 40))) (after nil)) ;= (("TEXT" "one" 2.0) ("TEXT" "two" 2.0))
(hatch) ;! EXPLODE|L| ;~ keeps
;? (list (length (after nil)) (getfield 0) (cadr (getfield 10)) (cadr (getfield 11))) ;= (3 "LINE" 3.0 3.0)
(dimension) ;! EXPLODE|L| ;~ keeps
;? (list (getfield 0) (getfield 8) (getfield 62)) ;= ("LINE" "Dims" 3)
(door)(command "-INSERT" "Door" '(10 2) 1 "" 0)(line 0 0 1 0) ;! EXPLODE|W|5,0|20,9| ;~ keeps
;? (list (sslength (ssget "P")) (car (getfield 10))) ;= (1 11.0)
