(tables) ;! -PURGE|LA|*|N ;> Deleting layer "Spare" ;? (left "Spare") ;= (nil T T T T)
(tables) ;! -PURGE|LT|*|N ;? (left "Spare") ;= (T nil T T T)
(tables) ;! -PURGE|ST|*|N ;? (left "Spare") ;= (T T nil T T)
(tables) ;! -PURGE|D|Spare|N ;? (left "Spare") ;= (T T T nil T)
(tables) ;! -PURGE|R|*|N ;? (left "Spare") ;= (T T T T nil)
(tables) ;! -PURGE|LA|X*|N ;> No unreferenced layers found ;? (left "Spare") ;= (T T T T T)
(tables) ;! -PURGE|LA|Spare|Y|N ;> Purge layer ;? (left "Spare") ;= (T T T T T)
(tables) ;! -PURGE|A|*|N ;? (left "Spare") ;= (nil nil nil nil nil)
(tables) ;! -PURGE|A|*|N ;? (left "Used") ;= (T T T nil T)
(line 1 1 1 1)(line 0 0 1 0) ;! -PURGE|Z ;= LINE 10=0,0,0 11=1,0,0
(line 1 1 1 1)(lock "0") ;! -PURGE|Z ;> 1 was on a locked layer ;= LINE 10=1,1,0 11=1,1,0
(entmake '((0 . "TEXT") (10 0.0 0.0 0.0) (40 . 1.0) (1 . " "))) ;! -PURGE|E ;=
(line 1 1 1 1) ;! -PURGE|Everything ;= LINE 10=1,1,0 11=1,1,0
;! -PURGE|DE|*|N ;> No unreferenced detail view styles found ;=
;! -PURGE|V|*|N ;> No unreferenced visual styles found ;=
