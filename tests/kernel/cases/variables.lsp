(getvar "EXTMIN") ;= (1.0e+20 1.0e+20 1.0e+20)
(setvar "cmdecho" 0)(getvar "CmdEcho") ;= 0
(list (getvar "NOSUCH") (getvar "SPLINESEGS") (getvar "DWGNAME") (getvar "DWGTITLED")) ;= (nil 8 "Drawing1" 0)
(setvar "NOSUCH" 1) ;= error: variable setting rejected: "NOSUCH" 1 (unknown) in (SETVAR)
(setvar "DWGNAME" "x") ;= error: variable setting rejected: "DWGNAME" "x" (read-only) in (SETVAR)
(setvar "LUNITS" 9) ;= error: variable setting rejected: "LUNITS" 9 (out of range) in (SETVAR)
(setvar "LUNITS" 2.5) ;= error: variable setting rejected: "LUNITS" 2.5 (of another type) in (SETVAR)
(setvar "CLAYER" "NONE") ;= error: variable setting rejected: "CLAYER" "NONE" (out of range) in (SETVAR)
(setvar "LISPHEAPMAX" 15) ;= error: variable setting rejected: "LISPHEAPMAX" 15 (out of range) in (SETVAR)
(getvar "DBMOD") ;= 0
(setvar "LTSCALE" 3)(getvar "LTSCALE") ;= 3.0
(setvar "ANGBASE" 1.0)(equal (getvar "ANGBASE") 1.0 1e-12) ;= T
(entmake '((0 . "LAYER") (2 . "A") (70 . 0)))(setvar "CLAYER" "A")(getvar "CLAYER") ;= "A"
(setvar "CECOLOR" "3")(getvar "CECOLOR") ;= "3"
(setvar "CECOLOR" "bylayer")(getvar "CECOLOR") ;= "BYLAYER"
(setvar "LUNITS" 4)(setvar "LUPREC" 1)(rtos 17.5) ;= "1'-5 1/2\""
(command "LINE" '(1 2) '(30 20) "")(list (getvar "EXTMIN") (getvar "EXTMAX") (getvar "DBMOD"))
;= ((1.0 2.0 0.0) (30.0 20.0 0.0) 1)
(command "_.UNDO" "_BE")(getvar "UNDOCTL") ;= 13
(setvar "LISPHEAPMAX" 16) ;= 16
(while t (setq l (list l l 1 2 3 4 5 6 7 8))) ;= error: out of memory (limit 16 MB) in (LIST)

; Tabs, each with limits of its own
(list (getvar "CTAB") (getvar "TILEMODE")) ;= ("Model" 1)
(setvar "CTAB" "layout1")(list (getvar "CTAB") (getvar "TILEMODE")) ;= ("Layout1" 0)
(command "POINT" '(0 0))(cdr (assoc 67 (entget (entlast)))) ;= 1
(setvar "TILEMODE" 1)(setq m (getvar "LIMMAX"))(setvar "TILEMODE" 0)(setvar "LIMMAX" '(42 29))
(setq sheet (dictsearch (cdr (assoc -1 (dictsearch (namedobjdict) "ACAD_LAYOUT"))) "Layout1"))
(list (cdr (assoc 11 sheet)) (getvar "LIMMAX") (getvar "CVPORT")) ;= ((42.0 29.0 0.0) (42.0 29.0) 1)
(setvar "TILEMODE" 1)(list (equal m (getvar "LIMMAX")) (getvar "CVPORT")) ;= (T 2)
(setvar "LIMMAX" '(420 297))(getvar "LIMMAX") ;= (420.0 297.0)
