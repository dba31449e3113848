;! LINE|0,0|1,0|1,1| ;~ keeps ;= LINE 10=0,0,0 11=1,0,0; LINE 10=1,0,0 11=1,1,0
;! LINE|0,0|1,0|1,1|C ;~ keeps ;= LINE 10=0,0,0 11=1,0,0; LINE 10=1,0,0 11=1,1,0; LINE 10=1,1,0 11=0,0,0
;! LINE|0,0|9,9|U|1,0| ;~ keeps ;= LINE 10=0,0,0 11=1,0,0
;! CIRCLE|1,2|5 ;= CIRCLE 10=1,2,0 40=5
;! CIRCLE|1,2|D|5 ;= CIRCLE 10=1,2,0 40=2.5
;! CIRCLE|2P|0,0|10,0 ;= CIRCLE 10=5,0,0 40=5
;! CIRCLE|3P|1,0|0,1|-1,0 ;= CIRCLE 10=0,0,0 40=1
;! CIRCLE|3P|0,0|1,1|2,2 ;> the points lie in one line ;=
;! CIRCLE|2P|3,3|3,3 ;> Circle does not exist ;=
;! CIRCLE|5P ;> Point or option keyword required ;=
;! CIRCLE|0,0|-3 ;> must not be negative ;=
(line 0 0 10 0)(line 0 0 0 10) ;! CIRCLE|T|5,0|0,5|2
;= LINE 10=0,0,0 11=10,0,0; LINE 10=0,0,0 11=0,10,0; CIRCLE 10=2,2,0 40=2
(setvar "CIRCLERAD" 4.0) ;! CIRCLE|1,1| ;= CIRCLE 10=1,1,0 40=4
(turned) ;! CIRCLE|2P|0,0|10,0 ;= CIRCLE 10=10,25,0 40=5
(tilted) ;! CIRCLE|3P|1,0|0,1|-1,0 ;= CIRCLE 10=0,5,0 40=1 210=0,-1,0

; Points put together, distances alone, commands in the middle
;! LINE|.x|1,2|3,4|5| ;~ keeps ;= LINE 10=1,4,0 11=6,4,0
;! CIRCLE|m2p|0,0|4,2|.y|5,5|2,0 ;= CIRCLE 10=2,1,0 40=4
(setvar "PICKBOX" 3) ;! CIRCLE|'PICKBOX|5|1,2|'_.ZOOM|C|0,0|40|3 ;= CIRCLE 10=1,2,0 40=3
;! CIRCLE|1,2|'CIRCLE|3 ;> may not be invoked transparently ;= CIRCLE 10=1,2,0 40=3
(turned) ;! LINE|0,0|from|1,1|@2,0|<90|4| ;~ keeps ;= LINE 10=10,20,0 11=9,23,0; LINE 10=9,23,0 11=5,23,0

; An empty first answer goes on from what was drawn last; behind an arc its length alone is asked for
(line 0 0 3 4) ;! LINE||5,5| ;~ keeps ;= LINE 10=0,0,0 11=3,4,0; LINE 10=3,4,0 11=5,5,0
(arc-at) ;! LINE||3| ;~ keeps ;= ARC 10=5,5,0 40=2 51=90; LINE 10=5,7,0 11=2,7,0
(arc-at) ;! LINE||3|0,0|C ;~ keeps ;= ARC 10=5,5,0 40=2 51=90; LINE 10=5,7,0 11=2,7,0; LINE 10=2,7,0 11=0,0,0; LINE 10=0,0,0 11=5,7,0
(command "CIRCLE" '(1 1) 2) ;! LINE| ;> No line or arc to continue. ;= CIRCLE 10=1,1,0 40=2

; Thickness and transparency of new entities; what lies in space rises along the user's z axis
(setvar "THICKNESS" 2.5) ;! LINE|0,0|1,0| ;~ keeps ;= LINE 10=0,0,0 11=1,0,0 39=2.5
(tilted)(setvar "THICKNESS" 2.5) ;! LINE|0,0|1,0| ;~ keeps ;? (list (getfield 39) (getfield 210)) ;= (2.5 (0.0 -1.0 0.0))
(setvar "THICKNESS" 2.5) ;! PLINE|0,0|1,0| ;~ keeps ;? (getfield 39) ;= 2.5
(setvar "THICKNESS" 2.5) ;! 3DPOLY|0,0|1,0| ;~ keeps ;? (getfield 39) ;= nil
(setvar "THICKNESS" 2.5) ;! RECTANG|T|0|0,0|1,1 ;? (getfield 39) ;= 0.0
(setvar "THICKNESS" 2.5) ;! TEXT|0,0|1|0|AB ;? (getfield 39) ;= nil
(setvar "CETRANSPARENCY" "40") ;! CIRCLE|1,2|5 ;? (getfield 440) ;= 33554585
(setvar "CETRANSPARENCY" "ByBlock") ;! CIRCLE|1,2|5 ;? (getfield 440) ;= 16777216
(setvar "CETRANSPARENCY" "ByLayer") ;! CIRCLE|1,2|5 ;? (getfield 440) ;= nil
