; What is chosen at "Select objects: ". A group is picked whole, unless PICKSTYLE or the group says otherwise
(pair)(line 9 9 9 8) ;! ERASE|0,0| ;? (begins) ;= (9.0)
(pair)(line 9 9 9 8) ;! ERASE|W|-1,-1|2,1| ;? (begins) ;= (9.0)
(pair)(line 9 9 9 8) ;! ERASE|ALL|R|0,0| ;? (begins) ;= (0.0 5.0)
(pair)(setvar "PICKSTYLE" 0) ;! ERASE|0,0| ;? (begins) ;= (5.0)
(pair)(command "-GROUP" "S" "Pair" "N") ;! ERASE|0,0| ;? (begins) ;= (5.0)
(on-layer "A")(line 5 5 6 6)(command "-GROUP" "C" "Pair" "" "ALL" "" "-LAYER" "OFF" "A" "") ;! ERASE|5,5| ;? (begins) ;= (1.0)
; By its name in any case
(pair)(line 9 9 9 8) ;! ERASE|G|pair| ;? (begins) ;= (9.0)
(pair)(command "-GROUP" "S" "Pair" "N") ;! ERASE|_G|Pair| ;? (begins) ;= nil
(pair)(line 9 9 9 8) ;! ERASE|G|Nowhere||L| ;> Cannot find group "Nowhere". ;? (begins) ;= (0.0 5.0)
; Several places without windows between them, one choice alone
(line 0 0 1 0)(line 5 5 6 6)(line 9 9 9 8) ;! ERASE|M|0,0|3,3|9,9|| ;? (begins) ;= (5.0)
(line 0 0 1 0)(line 5 5 6 6) ;! ERASE|_SI|0,0 ;? (begins) ;= (5.0)
(line 0 0 1 0)(line 5 5 6 6) ;! ERASE|AU|-1,-1|2,1| ;? (begins) ;= (5.0)
(line 0 0 1 0)(line 5 5 6 6) ;! ERASE|0,0|5,5|U| ;? (begins) ;= (5.0)
; Layers that are off belong to all, not frozen nor locked ones; what is last can be seen
(line 0 0 1 0)(on-layer "A")(command "-LAYER" "OFF" "A" "") ;! ERASE|ALL| ;? (begins) ;= nil
(line 0 0 1 0)(on-layer "A")(command "-LAYER" "F" "A" "") ;! ERASE|ALL| ;? (begins) ;= (1.0)
(line 0 0 1 0)(on-layer "A")(command "-LAYER" "LO" "A" "") ;! ERASE|ALL| ;? (begins) ;= (1.0)
(line 0 0 1 0)(on-layer "A")(command "-LAYER" "OFF" "A" "") ;! ERASE|L| ;? (begins) ;= (1.0)
(line 0 0 1 0)(on-layer "A")(command "-LAYER" "OFF" "A" "") ;! ERASE|C|-9,-9|9,9| ;? (begins) ;= (1.0)
