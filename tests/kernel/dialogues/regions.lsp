; A region keeps its model as text: what it measures and what comes of it taken apart say what is in it.
(circle 0 0 2) ;! REGION|ALL| ;> 1 loop extracted. ;? (list (types) (all-measured)) ;= (("REGION") ((12.5664 12.5664)))
(pline '((0 0) (4 0) (4 3)) 1) ;! REGION|ALL| ;> 1 Region created. ;? (all-measured) ;= ((6.0 12.0))
(half-circle) ;! REGION|ALL| ;? (list (types) (all-measured)) ;= (("REGION") ((6.2832 10.2832)))
(loop-of-three) ;! REGION|ALL| ;? (all-measured) ;= ((5.1416 9.97))
(progn (circle 0 0 2) (pline '((9 0) (11 0) (11 2)) 1) (line 20 0 21 0)) ;! REGION|ALL| ;> 1 curve rejected: it is not part of a closed loop. ;? (types) ;= ("LINE" "REGION" "REGION")
(progn (setvar "DELOBJ" 0) (circle 0 0 2)) ;! REGION|ALL| ;? (types) ;= ("CIRCLE" "REGION")
(pline '((0 0) (4 4) (4 0) (0 4)) 1) ;! REGION|ALL| ;> 1 loop rejected: it crosses itself or branches. ;? (types) ;= ("LWPOLYLINE")
(progn (line 0 0 4 0) (line 4 0 0 4) (line 0 4 0 0) (line 4 0 4 4) (line 4 4 0 4)) ;! REGION|ALL| ;> 1 loop rejected: it crosses itself or branches. ;? (length (types)) ;= 5
(old-polyline 9 '((0 0 0) (4 0 0) (4 4 1) (0 4 0))) ;! REGION|ALL| ;> 1 loop rejected: it does not lie in a plane. ;? (car (types)) ;= "POLYLINE"
(pline '((0 0) (4 0)) 1) ;! REGION|ALL| ;> 1 loop rejected: it encloses nothing. ;? (types) ;= ("LWPOLYLINE")
(text-at 0) ;! REGION|ALL| ;> 1 object rejected: it is no curve. ;? (types) ;= ("TEXT")
(progn (entmake '((0 . "3DFACE") (10 0.0 0.0 0.0) (11 3.0 0.0 4.0) (12 3.0 2.0 4.0) (13 0.0 2.0 0.0))) (entmake '((0 . "SOLID") (10 9.0 0.0 0.0) (11 11.0 0.0 0.0) (12 9.0 1.0 0.0) (13 11.0 1.0 0.0) (210 0.0 0.0 -1.0))))
;! REGION|ALL| ;? (all-measured) ;= ((10.0 14.0) (2.0 6.0))
(circle 0 0 2)(view)(lock "0") ;! REGION|W|-9,-9|9,9| ;> 1 was on a locked layer. ;? (types) ;= ("CIRCLE" "REGION")
(tilted)(command "CIRCLE" '(1 2) 3) ;! REGION|ALL| ;? (all-measured) ;= ((28.2743 18.8496))
; Taken apart it is what it was made of; a spline stays one.
(half-circle)(command "REGION" "ALL" "") ;! EXPLODE|ALL| ;~ keeps ;= LINE 10=0,0,0 11=4,0,0; ARC 10=2,0,0 40=2 51=180
(circle 1 2 3)(command "REGION" "ALL" "" "MOVE" "ALL" "" '(0 0) '(10 0)) ;! EXPLODE|ALL| ;~ keeps ;= CIRCLE 10=11,2,0 40=3
(wave)(command "REGION" "ALL" "") ;! EXPLODE|ALL| ;~ keeps ;? (list (types) (value-of 71) (all-of 10)) ;= (("LINE" "SPLINE") 2 ((0.0 0.0 0.0) (1.0 2.0 0.0) (2.0 2.0 0.0) (3.0 2.0 0.0) (4.0 0.0 0.0)))
(wave)(command "REGION" "ALL" "") ;! AREA|O|0,0 ;? (rounded (getvar "AREA")) ;= 5.3333
; An ellipse turned, enlarged and mirrored, with what it measures before.
(entmake '((0 . "ELLIPSE") (100 . "AcDbEntity") (100 . "AcDbEllipse") (10 3.0 1.0 0.0) (11 2.0 0.0 0.0) (40 . 0.5)))(command "REGION" "ALL" "" "ROTATE" "ALL" "" '(0 0) 90 "SCALE" "ALL" "" '(0 0) 2 "MIRROR" "ALL" "" '(0 0) '(0 1) "Y")
;! EXPLODE|ALL| ;~ keeps ;? (rounded (list (value-of 0) (value-of 10) (abs (cadr (value-of 11))) (value-of 40))) ;= ("ELLIPSE" (2.0 6.0 0.0) 4.0 0.5)
(half-circle)(command "REGION" "ALL" "" "MIRROR" "ALL" "" '(0 0) '(1 0) "Y") ;! EXPLODE|ALL| ;~ keeps ;= LINE 10=0,0,0 11=4,0,0; ARC 10=2,0,0 40=2 50=180
(circle 0 0 2)(command "REGION" "ALL" "") ;! COPY|ALL||D|10,0 ;? (list (all-measured) (region-box)) ;= (((12.5664 12.5664) (12.5664 12.5664)) ((-2.0 -2.0 0.0) (12.0 2.0 0.0)))
(progn (half-circle) (command "REGION" "ALL" "" "-BLOCK" "Half" '(0 0) "ALL" "" "-INSERT" "Half" '(10 0) 2 1 0)) ;! EXPLODE|ALL| ;~ keeps ;? (list (types) (value-of 11)) ;= (("LINE" "ELLIPSE") (4.0 0.0 0.0))
(circle 0 0 2)(command "REGION" "ALL" "") ;! LIST|ALL| ;> Area:  12.5664 ;? (types) ;= ("REGION")
(circle 0 0 2)(command "REGION" "ALL" "") ;! REGION|ALL| ;> 1 object rejected: it is no curve. ;? (vl-catch-all-error-p (vl-catch-all-apply 'vlax-curve-getEndParam (list (entlast)))) ;= T
; What a program takes with entget it may make again.
(circle 0 0 2)(command "REGION" "ALL" "")(progn (setq e (entget (entlast))) (entdel (entlast)) (entmake e)) ;! LIST|ALL| ;? (all-measured) ;= ((12.5664 12.5664))
(progn (box 0 0 10 6) (circle 5 3 1)) ;! -BOUNDARY|A|O|R|X|1,1| ;> BOUNDARY created 1 region ;? (list (getvar "HPBOUND") (measured (entlast))) ;= (0 (56.8584 38.2832))
(progn (tilted) (command "RECTANG" '(0 0) '(4 5))) ;! -BOUNDARY|A|O|R|X|1,1| ;? (measured (entlast)) ;= (20.0 18.0)
