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
