(line 0 0 1 0) ;! MOVE|ALL||D|5,6 ;= LINE 10=5,6,0 11=6,6,0
(turned)(line 0 0 1 0) ;! MOVE|ALL|||5,0 ;= LINE 10=0,5,0 11=1,5,0
(line 0 0 1 0)(lock "0")(on-layer "B") ;! MOVE|C|-9,-9|9,9||0,0|5,5 ;> 1 was on a locked layer.
;= LINE 10=0,0,0 11=1,0,0; LINE 10=6,6,0 11=7,7,0
(line 0 0 2 0) ;! ROTATE|ALL||0,0|R|30|120 ;= LINE 10=0,0,0 11=0,2,0
(line 0 0 2 0) ;! ROTATE|ALL||0,0|C|180 ;= LINE 10=0,0,0 11=2,0,0; LINE 10=0,0,0 11=-2,0,0
(line 0 0 2 0)(setvar "ANGDIR" 1)(setvar "ANGBASE" 1.0) ;! ROTATE|ALL||0,0|90 ;= LINE 10=0,0,0 11=0,-2,0
(tilted)(line 0 0 2 0) ;! ROTATE|ALL||0,-5|90 ;= LINE 10=0,0,0 11=0,0,2
(line 1 0 2 0) ;! SCALE|ALL||0,0|R|2|6,0 ;= LINE 10=3,0,0 11=6,0,0
(line 1 0 2 0) ;! SCALE|ALL||0,0|R|0,0|4,0|2 ;= LINE 10=0.5,0,0 11=1,0,0
(line 1 0 2 0) ;! SCALE|ALL||0,0|C|2 ;= LINE 10=1,0,0 11=2,0,0; LINE 10=2,0,0 11=4,0,0
(line 1 0 2 0) ;! SCALE|ALL||0,0|big ;> Requires numeric distance ;= LINE 10=1,0,0 11=2,0,0
(line 0 0 1 0) ;! COPY|ALL||D|5,5 ;= LINE 10=0,0,0 11=1,0,0; LINE 10=5,5,0 11=6,5,0
(line 0 0 1 0) ;! COPY|ALL||0,0|0,1|0,2|U|0,3|E ;~ keeps
;= LINE 10=0,0,0 11=1,0,0; LINE 10=0,1,0 11=1,1,0; LINE 10=0,3,0 11=1,3,0
(line 0 0 1 0) ;! COPY|ALL||O|S|0,0|0,1 ;= LINE 10=0,0,0 11=1,0,0; LINE 10=0,1,0 11=1,1,0
(line 0 0 1 0) ;! MOVE|L||0,0|5,5 ;= LINE 10=5,5,0 11=6,5,0
(line 0 0 1 0) ;! MOVE|L||5,5| ;= LINE 10=5,5,0 11=6,5,0
(line 0 0 1 0)(line 1 0 5 5) ;! ERASE|L| ;= LINE 10=0,0,0 11=1,0,0
(line 0 0 1 0)(line 1 0 5 5) ;! ERASE|ALL|R|L| ;= LINE 10=1,0,0 11=5,5,0
(command "CIRCLE" '(1 1) 2) ;! SCALE|L||0,0|2 ;= CIRCLE 10=2,2,0 40=4
(line 0 0 1 0) ;! COPY|ALL||0,0|A|3|0,2| ;~ keeps
;= LINE 10=0,0,0 11=1,0,0; LINE 10=0,2,0 11=1,2,0; LINE 10=0,4,0 11=1,4,0
(line 0 0 1 0) ;! COPY|ALL||0,0|A|3|F|0,2| ;~ keeps
;= LINE 10=0,0,0 11=1,0,0; LINE 10=0,1,0 11=1,1,0; LINE 10=0,2,0 11=1,2,0
(line 0 0 2 1) ;! MIRROR|ALL||5,0|5,9|Y ;= LINE 10=10,0,0 11=8,1,0
(line 0 0 2 1) ;! MIRROR|ALL||0,0|1,0| ;= LINE 10=0,0,0 11=2,1,0; LINE 10=0,0,0 11=2,-1,0
(turned)(line 0 0 2 0) ;! MIRROR|ALL||0,0|5,0|Y ;= LINE 10=20,0,0 11=18,0,0
(line 0 0 2 1) ;! MIRROR|ALL||5,5|5,5 ;> The two points are one. ;= LINE 10=0,0,0 11=2,1,0
(arc-at) ;! MIRROR|ALL||0,0|1,0|Y ;= ARC 10=5,-5,0 40=2 50=270
(text-at 0) ;! MIRROR|ALL||5,0|5,9|Y ;? (list (getfield 50) (< 8.0 (car (getfield 10)) 10.0) (getfield 71)) ;= (0.0 T 0)
(text-at 0) ;! MIRROR|ALL||0,5|9,5|Y ;? (list (getfield 50) (getfield 10)) ;= (0.0 (0.0 9.0 0.0))
(setvar "MIRRTEXT" 1)(text-at 0) ;! MIRROR|ALL||5,0|5,9|Y ;? (list (getfield 50) (car (getfield 10)) (getfield 71)) ;= (0.0 10.0 2)
(door)(command "-INSERT" "Door" '(1 2) 1 "" 0) ;! MIRROR|ALL||5,0|5,9|Y ;= INSERT 2=Door 10=9,2,0 41=-1 42=1 43=1
(door)(command "-INSERT" "Door" '(1 2) 1 "" 30) ;! MIRROR|ALL||0,0|9,0|Y ;= INSERT 2=Door 10=1,-2,0 41=-1 42=1 43=1 50=150
(line 1 0 2 0) ;! MIRROR3D|ALL||YZ|5,0,0|Y ;= LINE 10=9,0,0 11=8,0,0
(line 1 0 2 0) ;! MIRROR3D|ALL||0,0,0|0,0,5|3,3,0|Y ;= LINE 10=0,1,0 11=0,2,0
(line 1 0 2 0) ;! ROTATE3D|ALL||Y||90 ;= LINE 10=0,0,-1 11=0,0,-2
(line 1 0 2 0) ;! ROTATE3D|ALL||0,0,0|0,0,1|R|0|90 ;= LINE 10=0,1,0 11=0,2,0
(line 0 0 1 0) ;! ARRAY|ALL||R|2|2|5|3
;= LINE 10=0,0,0 11=1,0,0; LINE 10=3,0,0 11=4,0,0; LINE 10=0,5,0 11=1,5,0; LINE 10=3,5,0 11=4,5,0
(line 0 0 1 0) ;! -ARRAY|ALL|||1|2|-3 ;= LINE 10=0,0,0 11=1,0,0; LINE 10=-3,0,0 11=-2,0,0
(line 0 0 1 0) ;! -ARRAY|ALL||R|2|2|1,1|3,5
;= LINE 10=0,0,0 11=1,0,0; LINE 10=2,0,0 11=3,0,0; LINE 10=0,4,0 11=1,4,0; LINE 10=2,4,0 11=3,4,0
(setvar "SNAPANG" (/ pi 2))(line 0 0 1 0) ;! ARRAY|ALL||R|1|2|3 ;= LINE 10=0,0,0 11=1,0,0; LINE 10=0,3,0 11=1,3,0
(line 0 0 1 0) ;! ARRAY|ALL||R||| ;> One-element array ;= LINE 10=0,0,0 11=1,0,0
(line 0 0 1 0) ;! ARRAY|ALL||R|30000|30000|1|1 ;> at most 100000 are made at once ;= LINE 10=0,0,0 11=1,0,0
(line 1 0 2 0) ;! ARRAY|ALL||P|0,0|4||
;= LINE 10=1,0,0 11=2,0,0; LINE 10=0,1,0 11=0,2,0; LINE 10=-1,0,0 11=-2,0,0; LINE 10=0,-1,0 11=0,-2,0
(line 1 0 2 0) ;! ARRAY|ALL||P|0,0|3|-180|N ;= LINE 10=1,0,0 11=2,0,0; LINE 10=0,-1,0 11=1,-1,0; LINE 10=-1,0,0 11=0,0,0
(line 1 0 2 0) ;! ARRAY|ALL||P|B|2,0|0,0||90|90|N ;= LINE 10=1,0,0 11=2,0,0; LINE 10=-1,2,0 11=0,2,0
(tilted)(line 1 0 2 0) ;! ARRAY|ALL||P|0,-5|2|180|Y ;= LINE 10=1,0,0 11=2,0,0; LINE 10=-1,0,0 11=-2,0,0
(line 0 0 2 0) ;! ALIGN|ALL||0,0|5,5| ;= LINE 10=5,5,0 11=7,5,0
(line 0 0 2 0) ;! ALIGN|ALL||0,0|5,5|2,0|5,9||N ;= LINE 10=5,5,0 11=5,7,0
(line 0 0 2 0) ;! ALIGN|ALL||0,0|5,5|2,0|5,9||Y ;= LINE 10=5,5,0 11=5,9,0
(line 0 0 2 0) ;! ALIGN|ALL||0,0,0|0,0,0|1,0,0|0,0,1|0,1,0|0,1,0 ;= LINE 10=0,0,0 11=0,0,2
(line 0 0 2 0)(layer-a) ;! CHPROP|ALL||LA|A|C|RED|S|2| ;? (mapcar 'getfield '(8 62 48)) ;= ("A" 1 2.0)
(line 0 0 2 0) ;! CHPROP|ALL||C|T|255,128,0|LW|0.3| ;? (mapcar 'getfield '(420 370)) ;= (16744448 30)
(line 0 0 2 0)(command "CHPROP" "ALL" "" "C" 3 "LT" "BYBLOCK" "T" 4 "") ;! CHPROP|ALL||C|BYLAYER|T||LT|ByLayer|
;? (mapcar 'getfield '(62 6 39)) ;= (nil nil 4.0)
(line 0 0 2 0) ;! CHPROP|ALL||LA|Nowhere ;> Cannot find layer "Nowhere". ;= LINE 10=0,0,0 11=2,0,0
(line 0 0 2 0) ;! CHANGE|ALL||P|E|4| ;= LINE 10=0,0,4 11=2,0,4
(line 0 0 2 0)(line 9 9 2 0) ;! CHANGE|ALL||3,1 ;= LINE 10=0,0,0 11=3,1,0; LINE 10=9,9,0 11=3,1,0
(command "CIRCLE" '(1 1) 2) ;! CHANGE|L||1,6 ;= CIRCLE 10=1,1,0 40=5
(text-at 0) ;! CHANGE|L||5,5||3|90|new ;= TEXT 10=5,5,0 40=3 1=new 50=90
(door)(command "-INSERT" "Door" '(1 2) 1 "" 0) ;! CHANGE|L||5,5|90 ;= INSERT 2=Door 10=5,5,0 41=1 42=1 43=1 50=90
(line 0 0 4 0)(line 2 0 9 9) ;! STRETCH|C|3,-1|5,1||0,0|1,2 ;= LINE 10=0,0,0 11=5,2,0; LINE 10=2,0,0 11=9,9,0
(line 0 0 4 0) ;! STRETCH|C|-1,-1|5,1||0,0|1,2 ;= LINE 10=1,2,0 11=5,2,0
(line 0 0 4 0) ;! STRETCH|CP|3,-1|5,-1|5,1|3,1|||D|1,0 ;= LINE 10=0,0,0 11=5,0,0
(turned)(line 0 0 4 0) ;! STRETCH|C|-19,5|-21,7||0,0|0,-1 ;= LINE 10=0,0,0 11=5,0,0
(pline '((0 0) (4 0) (4 4)) 0) ;! STRETCH|C|3,3|5,5||0,0|1,0 ;= LWPOLYLINE 10=0,0 10=4,0 10=5,4
(arc-at) ;! STRETCH|C|3.5,6.5|5,8||0,0|0,0 ;= ARC 10=5,5,0 40=2 51=90
(layer-a)(line 0 0 2 0)(command "CHPROP" "L" "" "LA" "A" "C" 1 "")(line 0 5 2 5) ;! MATCHPROP|1,0|1,5|
;? (mapcar 'getfield '(8 62)) ;= ("A" 1)
(layer-a)(line 0 0 2 0)(command "CHPROP" "L" "" "LA" "A" "C" 1 "")(line 0 5 2 5) ;! MATCHPROP|1,0|S|L||1,5|
;? (mapcar 'getfield '(8 62)) ;= ("0" 1)
(line 0 0 2 0)(on-layer "B")(line 0 5 2 5) ;! SELECTSIMILAR|1,5| ;> 2 selected.
;= LINE 10=0,0,0 11=2,0,0; LINE 10=1,1,0 11=2,2,0; LINE 10=0,5,0 11=2,5,0
(line 0 0 2 0) ;! CHSPACE ;> Only a layout has both spaces. ;= LINE 10=0,0,0 11=2,0,0
(sheet-port)(entmake '((0 . "LINE") (67 . 1) (10 20.0 20.0 0.0) (11 30.0 20.0 0.0))) ;! CHSPACE|L| ;> scaled by a factor of 2
;? (list (getfield 67) (getfield 10) (getfield 11)) ;= (0 (100.0 50.0 0.0) (120.0 50.0 0.0))
(line 0 0 4 0)(line 2 0 9 9)(setq s (ssget "_C" '(3 -1) '(5 1))) ;! STRETCH|!s||0,0|1,2 ;= LINE 10=0,0,0 11=5,2,0; LINE 10=2,0,0 11=9,9,0
(turned)(line 0 0 4 0)(setq s (ssget "_CP" '((-19 5) (-19 7) (-21 7) (-21 5)))) ;! STRETCH|!s||0,0|0,-1 ;= LINE 10=0,0,0 11=5,0,0
(line 0 0 4 0)(setq s (ssget "_W" '(-1 -1) '(5 1))) ;! STRETCH|!s||0,0|1,2 ;= LINE 10=1,2,0 11=5,2,0
(line 0 0 4 0) ;! STRETCH|ALL|C|3,-1|5,1||0,0|1,0 ;= LINE 10=0,0,0 11=5,0,0
(door)(clipped) ;! COPY|L||0,0|0,5| ;~ keeps ;? (list (clip-codes '(70 10 71)) (eq (getfield 360) (cdr (assoc 360 (entget (entnext)))))) ;= ((2 (2.0 -1.0 0.0) 1) nil)
(door)(clipped) ;! MIRROR|L||5,0|5,9| ;? (list (clip-codes '(70 71)) (value-of 41)) ;= ((2 1) -1.0)
(door)(clipped) ;! ARRAY|L||R|1|3|20 ;? (clip-codes '(70 71)) ;= (2 1)
(door)(clipped)(setq e (entlast) c (cdr (assoc -1 (clip-object))))(entdel e)(setq gone (entget c))(entdel e) ;! COPY|L||0,0|0,5| ;~ keeps
;? (list gone (eq e (entnext)) (clip-codes '(70))) ;= (nil T (2))
; A reference that shows nothing is found at its insertion point
(label)(setvar "ATTREQ" 0)(command "-INSERT" "Label" '(5 5) 2 "" 0)(no-attributes)(view) ;! MOVE|5,5||0,0|1,0 ;? (getfield 10) ;= (6.0 5.0 0.0)
(label)(setvar "ATTREQ" 0)(command "-INSERT" "Label" '(5 5) 2 "" 0)(no-attributes)(view) ;! ERASE|C|4,4|6,6| ;=
(setvar "COPYMODE" 1)(line 0 0 1 0) ;! COPY|ALL||_M|0,0|0,1|0,2| ;~ keeps
;= LINE 10=0,0,0 11=1,0,0; LINE 10=0,1,0 11=1,1,0; LINE 10=0,2,0 11=1,2,0
(setvar "COPYMODE" 0)(line 0 0 1 0) ;! COPY|ALL||O|S|0,0|0,1 ;~ keeps
;= LINE 10=0,0,0 11=1,0,0; LINE 10=0,1,0 11=1,1,0
; What an erased reference owned goes with it
(door)(clipped)(setq c (cdr (assoc -1 (clip-object)))) ;! ERASE|L| ;? (entget c) ;= nil
; A copy of a clipped reference is taken back whole
(door)(clipped) ;! COPY|L||0,0|5,5|U|E ;~ keeps
;? (sslength (ssget "X" (list (cons 0 "INSERT")))) ;= 1
; STRETCH of what has more than ends: through its fit points again, along new mitres, with its boundary, at one side
(command "SPLINE" '(0 0) '(5 5) '(10 0) "" "" "") ;! STRETCH|C|9,-3|20,4||0,0|0,10
;? (list (all-of 11) (last (all-of 10)) (length (all-of 10))) ;= (((0.0 0.0 0.0) (5.0 5.0 0.0) (10.0 10.0 0.0)) (10.0 10.0 0.0) 5)
(command "MLINE" "J" "Z" '(0 0) '(5 0) '(10 0) "") ;! STRETCH|C|9,-3|20,4||0,0|-5,5
;? (rounded (list (all-of 11) (all-of 12) (nth 1 (all-of 13)) (nth 4 (all-of 41)))) ;= (((0.0 0.0 0.0) (5.0 0.0 0.0) (5.0 5.0 0.0)) ((1.0 0.0 0.0) (0.0 1.0 0.0) (0.0 1.0 0.0)) (-0.7071 0.7071 0.0) 0.7071)
(hatch) ;! STRETCH|C|3,-3|9,9||0,0|2,0 ;? (cdr (all-of 10)) ;= ((0.0 0.5) (6.0 0.5) (6.0 3.5) (0.0 3.5))
(hatch) ;! STRETCH|C|-9,-9|9,9||0,0|2,0 ;? (cdr (all-of 10)) ;= ((2.0 0.5) (6.0 0.5) (6.0 3.5) (2.0 3.5))
(sheet-port) ;! STRETCH|C|35,-5|60,60||0,0|20,5 ;? (own '(10 40 41 45 12)) ;= ((30.0 20.0 0.0) 60.0 30.0 60.0 (120.0 50.0))
(sheet-port) ;! STRETCH|C|-5,-5|60,60||0,0|20,5 ;? (own '(10 40 41 45 12)) ;= ((40.0 25.0 0.0) 40.0 30.0 60.0 (100.0 50.0))
(old-polyline 8 '((0 0 0) (4 0 1) (8 0 2))) ;! STRETCH|C|7,-1|9,1||0,0|0,3 ;? (cdr (assoc 10 (entget (entnext (entnext (entnext (entnext))))))) ;= (8.0 3.0 2.0)
; Without a number of items, angle and step say it; a negative number of rows is none
(line 0 0 1 0) ;! -ARRAY|L||P|5,0||180|45|Y ;? (length (types)) ;= 5
(line 0 0 1 0) ;! -ARRAY|L||R|-2 ;> Value must not be negative. ;= LINE 10=0,0,0 11=1,0,0
