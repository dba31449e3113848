; An arc turns by 110 degrees, so that its chord is 2 sin 55 / (110 pi / 180) of its length: 2 long, 1.70664 apart.
;! REVCLOUD|A|2|2|R|0,0|6.82654,3.41327 ;? (list (value-of 90) (value-of 70) (near (value-of 42) 0.520567) (near (list (car (all-of 10)) (cadr (all-of 10))) '((0 0) (1.706635 0))))
;= (12 1 T T)
(line 5 5 6 6)(view) ;! REVCLOUD|A|2|O|0,0 ;= LINE 10=5,5,0 11=6,6,0
(command "CIRCLE" '(0 0) 10)(view) ;! REVCLOUD|A|2|2|O|10,0|N ;? (list (value-of 0) (value-of 90) (near (value-of 42) 0.520567))
;= ("LWPOLYLINE" 37 T)
(command "CIRCLE" '(0 0) 10)(view) ;! REVCLOUD|A|2|3||10,0|Y ;? (list (value-of 90) (near (value-of 42) -0.520567)) ;= (29 T)
(command "CIRCLE" '(0 0) 10)(view)(lock "0") ;! REVCLOUD|A|2|2|O|10,0|N ;> 1 was on a locked layer. ;? (types) ;= ("CIRCLE" "LWPOLYLINE")
(line 0 0 10 0)(view) ;! REVCLOUD|A|2|O|5,0| ;? (list (value-of 90) (value-of 70)) ;= (7 0)
;! REVCLOUD|P|0,0|10,0|10,10|| ;? (list (value-of 70) (near (value-of 42) 0.520567)) ;= (1 T)
;! REVCLOUD|F|0,0|0,10|10,10||N ;? (list (value-of 70) (near (value-of 42) -0.520567)) ;= (1 T)
;! REVCLOUD|S|C|R|0,0|10,10 ;? (list (value-of 40) (> (value-of 41) 0.0)) ;= (0.0 T)
;! REVCLOUD|A|0.001|0.001|R|0,0|100,100 ;> The arcs are too short ;=
;! REVCLOUD|R|0,0|0,0 ;> A cloud needs a line ;=
;! MLINE|0,0|10,0|10,10|
;= MLINE 340=1E 40=1 71=1 72=3 73=2 10=0,0,0 210=0,0,1 11=0,0,0 12=1,0,0 13=0,1,0 74=2 74=2 41=-1 11=10,0,0 12=0,1,0 13=-0.707107,0.707107,0 74=2 74=2 41=-1.41421 11=10,10,0 12=0,1,0 13=-1,0,0 74=2 74=2 41=-1
;! MLINE|J|Z|S|20|0,0|10,0| ;? (list (value-of 40) (value-of 70) (value-of 72) (all-of 41)) ;= (20.0 1 2 (10.0 0.0 -10.0 0.0 10.0 0.0 -10.0 0.0))
;! MLINE|0,0|10,0|10,10|0,10|C ;? (list (value-of 71) (length (all-of 11)) (near (nth 14 (all-of 41)) (- (sqrt 2)))) ;= (3 4 T)
;! MLINE|ST|None|0,0|1,1| ;> Cannot find multiline style "None" ;=
(tilted) ;! MLINE|0,0|10,0|10,10| ;? (list (value-of 210) (all-of 11) (all-of 12))
;= ((0.0 -1.0 0.0) ((0.0 0.0 5.0) (10.0 0.0 5.0) (10.0 0.0 15.0)) ((1.0 0.0 0.0) (0.0 0.0 1.0) (0.0 0.0 1.0)))
