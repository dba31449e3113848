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
(tables)(regapp "App")(entmake '((0 . "POINT") (10 1.0 0.0 0.0) (-3 ("App" (1003 . "Spare"))))) ;! -PURGE|A|*|N ;? (left "Spare") ;= (T nil nil nil nil)
(tables)(entmake (list '(0 . "POINT") '(10 1.0 0.0 0.0) (list -3 (list "ACAD" '(1000 . "DSTYLE") '(1002 . "{") '(1070 . 340) (cons 1005 (cdr (assoc 5 (entget (tblobjname "STYLE" "Spare"))))) '(1002 . "}"))))) ;! -PURGE|A|*|N ;? (left "Spare") ;= (nil nil T nil nil)
(tables)(setvar "CLAYER" "Spare")(setvar "CELTYPE" "Spare")(setvar "TEXTSTYLE" "Spare") ;! -PURGE|A|*|N ;? (left "Spare") ;= (T T T nil nil)
(tables)(sheet-port)(command "VPLAYER" "F" "Spare" "S" (entlast) "" "") ;! -PURGE|LA|*|N ;? (left "Spare") ;= (T T T T T)
(tables)(dictadd (namedobjdict) "STATE" (entmakex '((0 . "XRECORD") (100 . "AcDbXrecord") (8 . "Spare")))) ;! -PURGE|LA|*|N ;? (left "Spare") ;= (T T T T T)
(tables)(entry "LAYER" "Spare2" nil) ;! -PURGE|LA|Spare*|Y|N|Y ;> Deleting layer "Spare2" ;? (list (left "Spare") (tblsearch "LAYER" "Spare2")) ;= ((T T T T T) nil)
(tables)(entry "LAYER" "Other" nil)(entry "LAYER" "Third" nil) ;! -PURGE|LA|Oth*,Sp*|N ;? (mapcar '(lambda (n) (if (tblsearch "LAYER" n) T)) '("Other" "Spare" "Third")) ;= (nil nil T)
(door)(nested)(entmake '((0 . "INSERT") (2 . "Outer") (10 0.0 0.0 0.0))) ;! -PURGE|B|*|N ;> No unreferenced blocks ;? (list (type (tblsearch "BLOCK" "Door")) (type (tblsearch "BLOCK" "Outer"))) ;= (LIST LIST)
(door)(nested) ;! -PURGE|B|*|N ;? (list (tblsearch "BLOCK" "Door") (tblsearch "BLOCK" "Outer")) ;= (nil nil)
(command "-GROUP" "C" "G" "" (progn (line 0 0 1 1) (entlast)) "")(entdel (entlast)) ;! -PURGE|G|G|N ;? (group-object "G") ;= nil
(entmake '((0 . "MTEXT") (100 . "AcDbEntity") (100 . "AcDbMText") (10 0.0 0.0 0.0) (40 . 1.0) (1 . "")))(on-layer "A")(entmake '((0 . "TEXT") (8 . "A") (10 0.0 0.0 0.0) (40 . 1.0) (1 . "")))(lock "A") ;! -PURGE|E ;> 1 was on a locked layer ;? (on-layers) ;= ("A" "A")
;! -PURGE|O ;> 0 orphaned objects deleted. ;=
