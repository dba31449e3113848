(door) ;! -INSERT|Door|S|2|5,5|0 ;= INSERT 2=Door 10=5,5,0 41=2 42=2 43=2
(door) ;! -INSERT|Door|Y|3|R|90|5,5 ;= INSERT 2=Door 10=5,5,0 41=1 42=3 43=1 50=90
(door) ;! -INSERT|Door|5,5|XYZ|2|3|4|0 ;= INSERT 2=Door 10=5,5,0 41=2 42=3 43=4
(door) ;! -INSERT|Door|5,5|C|7,9|0 ;= INSERT 2=Door 10=5,5,0 41=2 42=4 43=2
(door) ;! -INSERT|Door|5,5|0|1|0 ;> must be nonzero ;=
(door) ;! -INSERT|*Door|10,0|2|90 ;= LINE 10=10,2,0 11=10,6,0
(door) ;! -INSERT|*Door|S|3|10,0|0 ;= LINE 10=13,0,0 11=19,0,0
(turned)(door) ;! -INSERT|Door|0,0|1||0 ;= INSERT 2=Door 10=10,20,0 41=1 42=1 43=1 50=90
(turned)(door) ;! -INSERT|*Door|0,0|1|0 ;= LINE 10=10,21,0 11=10,23,0
(label) ;! -INSERT|Label|0,0|2|3|0|B 12 ;? (attribute) ;= ("ATTRIB" "B 12" "NO" 3.0)
;! -INSERT|Nowhere|0,0|1|1|0 ;> Cannot find block or file "Nowhere" ;=
;! -INSERT|"No where"|0,0|1|1|0 ;> Cannot find block or file "No where" ;=
;! -INSERT|A="No where"|0,0|1|1|0 ;> Cannot find block or file "No where" ;=
(door) ;! -INSERT|"Door"|S|2|5,5|0 ;= INSERT 2=Door 10=5,5,0 41=2 42=2 43=2
(door) ;! -INSERT|?||Door|1,2|1||0 ;> "Door" ;= INSERT 2=Door 10=1,2,0 41=1 42=1 43=1
(label)(setvar "ATTREQ" 0) ;! -INSERT|Label|0,0|1|1|0 ;? (attribute) ;= ("ATTRIB" "7" "NO" 1.0)
(label) ;! -INSERT|Label|5,5|2||90|A ;? (cdr (assoc 10 (entget (entnext (entlast))))) ;= (5.0 7.0 0.0)
(door)(command "-INSERT" "Door" '(1 2) 1 "" 0)
;! -INSERT||5,5|1||0 ;= INSERT 2=Door 10=1,2,0 41=1 42=1 43=1; INSERT 2=Door 10=5,5,0 41=1 42=1 43=1
