;! TEXT|J|R|10,5|2|0|AB ;= TEXT 40=2 1=AB 11=10,5,0 72=2
;! TEXT|MC|10,5|2|90|AB ;= TEXT 40=2 1=AB 50=90 11=10,5,0 72=1 73=2
;! TEXT|J|Align|0,0|0,10|AB ;= TEXT 1=AB 50=90 11=0,10,0 72=3
;! TEXT|J|F|0,0|10,0|3|AB ;= TEXT 40=3 1=AB 11=10,0,0 72=5
(fixed-style) ;! TEXT|S|Fixed|1,2|0|Room ;= TEXT 10=1,2,0 40=3.5 1=Room 7=Fixed 41=0.8
;! TEXT|S|Nowhere|1,2|2|0|Room ;> Cannot find text style "Nowhere" ;=
;! TEXT|J|Align|0,0|0,10|ABC ;? (text-length) ;= "10.000"
;! TEXT|J|Fit|0,0|6,8|2|ABC ;? (list (cdr (assoc 40 (entget (entlast)))) (text-length)) ;= (2.0 "10.000")
(tilted) ;! TEXT|1,2|2|30|AB ;= TEXT 10=1,7,0 40=2 1=AB 50=30 210=0,-1,0
