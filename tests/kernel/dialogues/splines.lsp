;! SPLINE|0,0|9,0||| ;? (list (all-of 40) (near (all-of 10) '((0 0 0) (3 0 0) (6 0 0) (9 0 0))))
;= ((0.0 0.0 0.0 0.0 9.0 9.0 9.0 9.0) T)
;! SPLINE|0,0|10,0|10,10||| ;? (list (value-of 72) (value-of 73) (value-of 74) (all-of 11))
;= (9 5 3 ((0.0 0.0 0.0) (10.0 0.0 0.0) (10.0 10.0 0.0)))
; Natural ends: the derivatives m solve 2m0+m1=3s, m0+4m1+m2=3(s+t), m1+2m2=3t for chords of one length with slopes s, t.
;! SPLINE|0,0|3,4|6,0||| ;? (near (all-of 10) '((0 0 0) (1 2 0) (3 6 0) (5 2 0) (6 0 0))) ;= T
;! SPLINE|0,0|10,0|20,0||0,5|20,5 ;? (near (list (value-of 12) (value-of 13)) '((0 1 0) (0 1 0))) ;= T
;! SPLINE|0,0|T|0,3|10,0|T|20,0 ;? (near (list (value-of 12) (value-of 13) (cadr (all-of 10))) (list '(0 1 0) '(1 0 0) (list 0 (/ 10.0 3) 0))) ;= T
;! SPLINE|0,0|L|0.5|10,0||| ;? (value-of 44) ;= 0.5
; Smooth at its seam: the control points beside it lie on one line with it.
;! SPLINE|0,0|4,0|4,4|0,4|C| ;? (list (value-of 70) (near (car (all-of 10)) (last (all-of 10))) (near (mapcar '+ (cadr (all-of 10)) (cadr (reverse (all-of 10)))) '(0 0 0)))
;= (9 T T)
;! SPLINE|M|C|0,0|0,4|4,4|4,0| ;? (list (value-of 70) (all-of 40) (all-of 10))
;= (8 (0.0 0.0 0.0 0.0 1.0 1.0 1.0 1.0) ((0.0 0.0 0.0) (0.0 4.0 0.0) (4.0 4.0 0.0) (4.0 0.0 0.0)))
;! SPLINE|M|CV|D|2|0,0|0,4|4,4|C ;? (list (value-of 70) (all-of 40) (length (all-of 10)))
;= (11 (-2.0 -1.0 0.0 1.0 2.0 3.0 4.0 5.0) 5)
;! SPLINE|0,0|1,0|U|0,1||| ;? (all-of 11) ;= ((0.0 0.0 0.0) (0.0 1.0 0.0))
;! SPLINE|0,0| ;? (entlast) ;= nil
(entmake '((0 . "POLYLINE") (70 . 4) (75 . 5) (10 0 0 0)))
(foreach v '((0 0 0 1) (1 1 0 8) (0 2 4 16) (4 4 4 16) (4 8 0 16))
  (entmake (list '(0 . "VERTEX") (list 10 (float (car v)) (float (cadr v)) 0.0) (cons 70 (cadddr v)))))
(entmake '((0 . "SEQEND")))
;! SPLINE|O|ALL| ;? (list (value-of 71) (value-of 70) (all-of 10)) ;= (2 8 ((0.0 2.0 0.0) (4.0 4.0 0.0) (4.0 8.0 0.0)))
(line 0 0 1 1) ;! SPLINE|O|ALL| ;> Only polylines ;= LINE 10=0,0,0 11=1,1,0
(tilted) ;! SPLINE|0,0|1,1|2,0||| ;? (value-of 210) ;= (0.0 1.0 0.0)
