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

; What programs ask first, and what a drawing takes for itself
(list (substr (getvar "ACADVER") 1 4) (getvar "DXFVERSION") (getvar "CELTYPE") (getvar "ATTDIA")) ;= ("24.0" "AC1032" "ByLayer" 1)
(vl-remove-if 'getvar '("DIMADEC" "DIMALT" "DIMALTD" "DIMALTF" "DIMALTRND" "DIMALTTD" "DIMALTTZ" "DIMALTU" "DIMALTZ"
  "DIMAPOST" "DIMARCSYM" "DIMASO" "DIMASSOC" "DIMASZ" "DIMATFIT" "DIMAUNIT" "DIMAZIN" "DIMBLK" "DIMBLK1" "DIMBLK2"
  "DIMCEN" "DIMCLRD" "DIMCLRE" "DIMCLRT" "DIMDEC" "DIMDLE" "DIMDLI" "DIMDSEP" "DIMEXE" "DIMEXO" "DIMFIT" "DIMFRAC"
  "DIMFXL" "DIMFXLON" "DIMGAP" "DIMJOGANG" "DIMJUST" "DIMLDRBLK" "DIMLFAC" "DIMLIM" "DIMLTEX1" "DIMLTEX2" "DIMLTYPE"
  "DIMLUNIT" "DIMLWD" "DIMLWE" "DIMPOST" "DIMRND" "DIMSAH" "DIMSCALE" "DIMSD1" "DIMSD2" "DIMSE1" "DIMSE2" "DIMSHO"
  "DIMSOXD" "DIMSTYLE" "DIMTAD" "DIMTDEC" "DIMTFAC" "DIMTFILL" "DIMTFILLCLR" "DIMTIH" "DIMTIX" "DIMTM" "DIMTMOVE"
  "DIMTOFL" "DIMTOH" "DIMTOL" "DIMTOLJ" "DIMTP" "DIMTSZ" "DIMTVP" "DIMTXSTY" "DIMTXT" "DIMTXTDIRECTION" "DIMTZIN"
  "DIMUNIT" "DIMUPT" "DIMZIN" "DIMANNO")) ;= nil
(mapcar 'getvar '("DIMDEC" "DIMTAD" "DIMZIN" "DIMTIH" "DIMEXE" "DIMCEN" "DIMDSEP")) ;= (2 1 0 0 1.25 2.5 ",")
(mapcar '(lambda (c) (cdr (assoc c (tblsearch "DIMSTYLE" "Standard")))) '(271 77 78 73 44 141 278)) ;= (2 1 0 0 1.25 2.5 44)
(setvar "DIMDSEP" "..") ;= error: variable setting rejected: "DIMDSEP" ".." (out of range) in (SETVAR)
(setvar "DIMDSEP" ".")(getvar "DIMDSEP") ;= "."
(setvar "CELTYPE" "continuous")(getvar "CELTYPE") ;= "Continuous"
(setvar "CELTYPE" "BYBLOCK")(getvar "CELTYPE") ;= "ByBlock"
(setvar "CELTYPE" "DASHED") ;= error: variable setting rejected: "CELTYPE" "DASHED" (out of range) in (SETVAR)
(setvar "CECOLOR" "red")(getvar "CECOLOR") ;= "1"
(entmake '((0 . "LAYER") (2 . "Wall") (70 . 0)))(setvar "CLAYER" "WALL")(getvar "CLAYER") ;= "Wall"
(entmake '((0 . "LAYER") (2 . "Cold") (70 . 1)))(setvar "CLAYER" "COLD")
;= error: variable setting rejected: "CLAYER" "COLD" (out of range) in (SETVAR)

; An integer for a real, kinds that do not fit, and what is kept with the viewport
(setvar "FILLETRAD" 5)(setvar "HPSCALE" 2)(list (getvar "FILLETRAD") (getvar "HPSCALE")) ;= (5.0 2.0)
(setvar "OSMODE" "END") ;= error: variable setting rejected: "OSMODE" "END" (of another type) in (SETVAR)
(setvar "POLYSIDES" 2) ;= error: variable setting rejected: "POLYSIDES" 2 (out of range) in (SETVAR)
(setvar "AREA" 1.0) ;= error: variable setting rejected: "AREA" 1.0 (read-only) in (SETVAR)
(setvar "SNAPUNIT" '(2 3))(setvar "SNAPMODE" 1)(setvar "UCSFOLLOW" 1)(setvar "SNAPANG" (/ pi 2))
(mapcar '(lambda (c) (cdr (assoc c (tblsearch "VPORT" "*Active")))) '(14 75 71)) ;= ((2.0 3.0) 1 8)
(list (getvar "SNAPUNIT") (getvar "UCSFOLLOW") (equal (getvar "SNAPANG") (/ pi 2) 1e-12)) ;= ((2.0 3.0) 1 T)

; Settings among the drawing's objects; what is set to what it was is no change
(mapcar '(lambda (n) (setvar n (getvar n))) '("DIMSCALE" "CANNOSCALE" "SNAPUNIT" "OSMODE" "MSLTSCALE" "CLAYER" "CTAB" "LTSCALE"))
;= (1.0 "1:1" (10.0 10.0) 4133 1 "0" "Model" 1.0)
(getvar "DBMOD") ;= 0
(setvar "CANNOSCALE" "1:50") ;= "1:50"
(list (getvar "CANNOSCALE") (getvar "CANNOSCALEVALUE") (getvar "DBMOD")) ;= ("1:50" 0.02 1)
(cdr (assoc 1 (dictsearch (cdr (assoc -1 (dictsearch (namedobjdict) "AcDbVariableDictionary"))) "CANNOSCALE"))) ;= "1:50"

; The command, by itself and as a variable's name
(command "SETVAR" "OSMODE" 35)(command "ORTHOMODE" "ON")(command "_FILLETRAD" "2.5")
;= nil
(mapcar 'getvar '("OSMODE" "ORTHOMODE" "FILLETRAD")) ;= (35 1 2.5)
(command "SETVAR" "?" "DIM*LE,DWGNAME") ;= nil ;> DWGNAME                 "Drawing1" (read only)
(command "SETVAR" "POLYSIDES" 2000) ;= nil ;> Requires an integer between 3 and 1024.
(command "SETVAR" "NOSUCH") ;= nil ;> Unknown variable name "NOSUCH"
(command "CDATE") ;= nil ;> (read only)
