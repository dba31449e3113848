; What an entity owns in the drawing's objects goes with it, and comes back with it.
(line 0 0 4 0)(dressed (entlast)) ;! OFFSET|E|Y|1|0,0|0,9| ;~ keeps
;? (noted) ;= nil
(line 0 0 4 0)(dressed (entlast)) ;! OFFSET|E|Y|1|0,0|M|0,9|U|| ;~ keeps
;? (noted) ;= "x"
(line 0 0 4 0)(dressed (entlast)) ;! PEDIT|0,0|Y| ;~ keeps
;? (list (types) (noted)) ;= (("LWPOLYLINE") nil)
(line 0 0 4 0)(line 4 0 4 4)(dressed (entlast)) ;! PEDIT|0,0|Y|J|4,4|| ;~ keeps
;? (list (types) (noted)) ;= (("LWPOLYLINE") nil)
(line 0 0 4 0)(line 4 0 4 4)(dressed (entlast)) ;! PEDIT|0,0|Y|J|4,4||U| ;~ keeps
;? (list (types) (noted)) ;= (("LINE" "LWPOLYLINE") "x")
(line 0 0 4 0)(dressed (entlast)) ;! TRIM|ALL||R|0,0|| ;~ keeps
;? (noted) ;= nil
(line 0 0 4 0)(dressed (entlast)) ;! TRIM|ALL||R|0,0||U| ;~ keeps
;? (noted) ;= "x"
(circle 0 0 4)(dressed (entlast)) ;! BREAK|4,0|0,4 ;? (list (types) (noted)) ;= (("ARC") nil)
(text-at 0)(dressed (entlast)) ;! TXT2MTXT|ALL| ;? (list (types) (noted)) ;= (("MTEXT") nil)
(old-polyline 0 '((0 0 0) (4 0 0) (4 4 0)))(dressed (entnext)) ;! EXPLODE|L| ;~ keeps
;? (list (types) (noted)) ;= (("LINE" "LINE") nil)
(line 0 0 4 0)(old-polyline 0 '((4 0 0) (4 4 0)))(dressed (entnext (entnext))) ;! FILLET|R|0|0,0|4,4 ;~ keeps
;? (list (car (types)) (noted)) ;= ("POLYLINE" nil)
(line 3 3 3 3)(dressed (entlast)) ;! -PURGE|Z ;? (list (types) (noted)) ;= (nil nil)
(layer-a)(on-layer "A")(dressed (entlast)) ;! -LAYDEL|N|A||Y ;? (list (types) (noted)) ;= (nil nil)
