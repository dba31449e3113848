;! LINE|0,0|1,0|1,1| ;~ keeps ;= LINE 10=0,0,0 11=1,0,0; LINE 10=1,0,0 11=1,1,0
;! LINE|0,0|1,0|1,1|C ;~ keeps ;= LINE 10=0,0,0 11=1,0,0; LINE 10=1,0,0 11=1,1,0; LINE 10=1,1,0 11=0,0,0
;! LINE|0,0|9,9|U|1,0| ;~ keeps ;= LINE 10=0,0,0 11=1,0,0
;! CIRCLE|1,2|5 ;= CIRCLE 10=1,2,0 40=5
;! CIRCLE|1,2|D|5 ;= CIRCLE 10=1,2,0 40=2.5
;! CIRCLE|2P|0,0|10,0 ;= CIRCLE 10=5,0,0 40=5
;! CIRCLE|3P|1,0|0,1|-1,0 ;= CIRCLE 10=0,0,0 40=1
;! CIRCLE|3P|0,0|1,1|2,2 ;> the points lie in one line ;=
;! CIRCLE|2P|3,3|3,3 ;> Circle does not exist ;=
;! CIRCLE|5P|0,0|10,0 ;> Invalid point ;=
;! CIRCLE|0,0|-3 ;> must not be negative ;=
(line 0 0 10 0)(line 0 0 0 10) ;! CIRCLE|T|5,0|0,5|2
;= LINE 10=0,0,0 11=10,0,0; LINE 10=0,0,0 11=0,10,0; CIRCLE 10=2,2,0 40=2
(setvar "CIRCLERAD" 4.0) ;! CIRCLE|1,1| ;= CIRCLE 10=1,1,0 40=4
(turned) ;! CIRCLE|2P|0,0|10,0 ;= CIRCLE 10=10,25,0 40=5
(tilted) ;! CIRCLE|3P|1,0|0,1|-1,0 ;= CIRCLE 10=0,5,0 40=1 210=0,-1,0
