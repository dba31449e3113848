; `dir` is a folder of the case's own.
(defun file (name text / f) (setq f (open (strcat dir name) "w")) (princ text f) (close f) (strcat dir name))
(defun shapes (/ e all)
  (setq e (entnext))
  (while e
    (setq all (cons (mapcar 'cdr (vl-remove-if-not '(lambda (g) (member (car g) '(0 10 11 40))) (entget e))) all)
          e (entnext e)))
  (reverse all))
(defun field (code) (cdr (assoc code (entget (entlast)))))
(defun block (name inner)
  (entmake (list '(0 . "BLOCK") (cons 2 name) '(70 . 0) '(10 0.0 0.0 0.0)))
  (entmake '((0 . "POINT") (10 0.0 0.0 0.0)))
  (foreach i inner (insert i))
  (entmake '((0 . "ENDBLK"))))
(defun insert (name) (entmake (list '(0 . "INSERT") (cons 2 name) '(10 0.0 0.0 0.0))))
(defun blocks (/ b all)
  (while (setq b (tblnext "BLOCK" (not b))) (setq all (cons (cdr (assoc 2 b)) all)))
  (reverse all))
(defun purge-blocks (pattern) (command "_.-PURGE" "_Blocks" pattern "_No") (blocks))

; Calls that are no dialogue: more or less than is asked for, in pieces, given up
(command "CIRCLE" '(0 0) 1 2.5 '(3 3) "x")(command "POINT" '(1 1))(shapes)
;= (("CIRCLE" (0.0 0.0 0.0) 1.0) ("POINT" (1.0 1.0 0.0)))
(command "_.U")(command "LINE" '(0 0))(foreach p '((1 0) (2 0)) (command p))(command "")(length (shapes)) ;= 2
(command "_.U")(command "LINE" '(0 0) '(1 0))(command)(command "CIRCLE" '(0 0) 1)(mapcar 'car (shapes)) ;= ("LINE" "CIRCLE")
(command "_.U")(command "LINE" '(0 0) '(1 0)) (getvar "CMDNAMES") ;= "LINE"
(length (shapes)) ;= 1
(command "LINE" '(0 0))(setq name (getvar "CMDNAMES"))(car 5) ;= error: bad argument type: listp 5 in (CAR), argument 1
(list name (getvar "CMDNAMES") (length (shapes))) ;= ("LINE" "" 1)
(command "LINE" '(0 0) '(1 0) "nonsense")(length (shapes)) ;> LINE has ended, nothing was changed ;= 1
(command "NOSUCH" '(0 0)) ;> Unknown command "NOSUCH". ;= nil
(command "_.-INSERT" "nosuch" '(1 1) 1 1 0)(length (shapes)) ;> Cannot find block or file "nosuch". ;= 1

; Typed: expressions, a command of a program and its repetition, variables, a script
(shapes) ;! line (list 1 2) (list 3 4) \n ;= (("LINE" (1.0 2.0 0.0) (3.0 4.0 0.0)))
(entdel (entlast))(defun c:twice (/ p) (setq p (getpoint "\nWhere: ")) (command "CIRCLE" p pause) (command "POINT" p)) ;= C:TWICE
(mapcar 'cdr (shapes)) ;! twice 1,2 7\n\n3,4 1\n ;= (((1.0 2.0 0.0) 7.0) ((1.0 2.0 0.0)) ((3.0 4.0 0.0) 1.0) ((3.0 4.0 0.0)))
(command "ORTHOMODE" 1)(mapcar 'getvar '("OSMODE" "LIMMAX" "ORTHOMODE")) ;! osmode 7\nlimmax 5,6\n ;= (7 (5.0 6.0) 1)
(getvar "ERRNO") ;! dwgname\n ;> (read only) ;= 0
a ;! (setq a (+ 1 2))\n!a\n ;> \n3 ;= 3
(command "SCRIPT" (strcat dir "none.scr")) ;> Cannot read script ;= nil
(setvar "CMDECHO" 0)(command "CIRCLE" '(0 0) 1) ;= nil
(setvar "CMDECHO" 1)(command "CIRCLE" '(0 0) 1) ;> Specify center point for circle or [3P/2P/Ttr (tan tan radius)]: ;= nil

; In the user's coordinates
(turned) ;= nil
(list (trans '(1 2 3) 1 0) (trans '(1 0 0) 1 0 T) (trans '(8 21 3) 0 1) (getvar "WORLDUCS"))
;= ((8.0 21.0 3.0) (0.0 1.0 0.0) (1.0 2.0 3.0) 0)
(getpoint) ;< 1,2\n ;= (1.0 2.0 0.0)
(command "LINE" '(0 0) '(10 0) "")(field 11) ;= (10.0 30.0 0.0)
(alert "Mind the gap") ;> Mind the gap ;= nil

; WBLOCK and -INSERT carry a drawing; what was written goes, and OOPS brings it back
(command "LINE" '(10 10) '(12 10) "")(command "CIRCLE" '(50 50) 1)
(command "_.-WBLOCK" (strcat dir "symbol.dwg") "" '(10 10) (ssget "X" '((0 . "LINE"))) "")
(mapcar 'car (shapes)) ;= ("CIRCLE")
(command "_.OOPS")
(list (mapcar 'car (shapes)) (vl-file-size (strcat dir "none")) (< 100 (vl-file-size (strcat dir "symbol.dwg"))))
;= (("LINE" "CIRCLE") nil T)
(command "_.-INSERT" (strcat "SYM=" dir "symbol.dwg") '(1 1) 1 1 0)(list (field 2) (field 10)) ;= ("SYM" (1.0 1.0 0.0))
(setq e (entget (cdr (assoc -2 (tblsearch "BLOCK" "SYM")))))(mapcar '(lambda (c) (cdr (assoc c e))) '(0 11)) ;= ("LINE" (12.0 10.0 0.0))

; Layers
(command "_.-LAYER" "_N" "A,B" "_C" "3" "A" "_OFF" "B" "_LO" "A" "_S" "A" "_F" "A,B" "")
(getvar "CLAYER") ;> Cannot freeze layer "A" ;= "A"
(mapcar '(lambda (n) (mapcar '(lambda (c) (cdr (assoc c (tblsearch "LAYER" n)))) '(62 70))) '("A" "B")) ;= ((3 4) (-7 1))

; Views
(command "LINE" '(0 0) '(100 50) "")(command "ZOOM" "_E")(setq h (getvar "VIEWSIZE"))(getvar "VIEWCTR") ;= (50.0 25.0 0.0)
(command "ZOOM" "2x")(equal (getvar "VIEWSIZE") (/ h 2) 1e-9) ;= T
(command "ZOOM" "_W" '(0 0) '(10 10))(list (getvar "VIEWCTR") (< 10 (getvar "VIEWSIZE") 11)) ;= ((5.0 5.0 0.0) T)

; Linetypes of a file: the first of a name, kept or read anew
(setq my (file "my.lin" "*DASH,first\nA,1,-1\n*DOTS,. .\nA,0,-1\n*BAD,b\nA,one\n*dash,second\nA,2,-2\n"))
(defun dash () (cdr (assoc 40 (tblsearch "LTYPE" "DASH"))))
(command "_.-LINETYPE" "_Load" "DASH" "none.lin" "") ;> Cannot read linetype file "none.lin". ;= nil
(command "_.-LINETYPE" "_Load" "NONE" my "") ;> No matching linetypes found. ;= nil
(command "_.-LINETYPE" "_L" "BAD" my "")(dash) ;> Linetype "BAD" not loaded: "one" is no length. ;= nil
(command "_.-LINETYPE" "_Load" "D*" my "")(dash) ;> Linetype "DOTS" loaded. ;= 2.0
(setq d (entget (tblobjname "LTYPE" "DASH")))(entmod (subst '(40 . 9.0) (assoc 40 d) d))
(command "_.-LINETYPE" "_Load" "dash" my "_No" "")(dash) ;> already loaded. Reload it? ;= 9.0
(command "_.-LINETYPE" "_Load" "dash" my "_Yes" "_Set" "DASH" "")(list (dash) (getvar "CELTYPE")) ;= (2.0 "DASH")
; What comes with the program needs no file: for inches and for millimetres; layers and entities load it themselves
(defun length-of (name) (cdr (assoc 40 (tblsearch "LTYPE" name))))
(command "_.-LINETYPE" "_L" "HIDDEN,center2" "acad.lin" "")(mapcar 'length-of '("Hidden" "CENTER2" "CENTER")) ;= (0.375 1.125 nil)
(command "_.-linetype" "_l" "dashed*,ACAD_ISO02W100" "acadiso" "")(mapcar 'length-of '("DASHED" "DASHEDX2" "ACAD_ISO02W100")) ;= (19.05 38.1 15.0)
(command "_.-layer" "_m" "X" "_lt" "phantom" "" "")(cdr (assoc 6 (tblsearch "LAYER" "X"))) ;= "PHANTOM"
(command "LINE" '(0 0) '(9 0) "")(command "_.chprop" (entlast) "" "_c" "_red" "_lt" "divide" "")(mapcar 'field '(6 62)) ;= ("DIVIDE" 1)
(command "_.-linetype" "_s" "Border" "")(getvar "CELTYPE") ;= "BORDER"
(command "_.-linetype" "_s" "Nowhere" "") ;> Linetype "Nowhere" not found ;= nil

; Shapes of a loaded file
(command "_.SHAPE" "BOX") ;> Cannot find shape "BOX". Load its file first. ;= nil
(command "_.LOAD" "none") ;> Cannot read shape file "none". ;= nil
(setq signs (file "signs.shp" "*1,2,BOX\n010,0\n"))
(command "_.LOAD" signs "_.LOAD" signs "_.SHAPE" "box" '(1 2) 0.0)(entlast) ;= nil
(command "_.SHAPE" "box" '(1 2) "" "90")(mapcar 'field '(0 10 40 2)) ;= ("SHAPE" (1.0 2.0 0.0) 1.0 "BOX")
(tblnext "STYLE" T)(list (= (cdr (assoc 3 (tblnext "STYLE"))) signs) (tblnext "STYLE")) ;= (T nil)

; Only blocks that nothing needs go: not what is shown, within what is shown or stays, an arrow, named by extended data
(block "A" nil)(block "B" nil)(block "C" '("B"))(insert "C")(purge-blocks "*") ;= ("B" "C")
(block "D" nil)(block "E" '("D"))(purge-blocks "D") ;= ("B" "C" "D" "E")
(purge-blocks "*") ;= ("B" "C")
(block "A1" nil)(block "A2" nil)(entmake '((0 . "TEXT") (8 . "A1") (1 . "A1") (10 0.0 0.0 0.0) (40 . 1.0)))
(purge-blocks "a#") ;= ("B" "C")
(block "F" nil)(setq r (cdr (assoc 330 (entget (tblobjname "BLOCK" "F")))))
(entmod (append (entget (tblobjname "DIMSTYLE" "Standard")) (list (cons 342 r))))(purge-blocks "*") ;= ("B" "C" "F")
(block "G" nil)(regapp "X")(setq h (cdr (assoc 5 (entget (tblobjname "BLOCK" "G")))))
(entmake (list '(0 . "POINT") '(10 0.0 0.0 0.0) (list -3 (list "X" (cons 1005 h)))))
(purge-blocks "*") ;= ("B" "C" "F" "G")
(block "H" nil)(block "I" nil)(command "_.-PURGE" "_Blocks" "*" "_Yes" "_No" "_Yes")(blocks) ;= ("B" "C" "F" "G" "H")

; References are attached and their paths changed
(setq empty "  0\nSECTION\n  2\nENTITIES\n  0\nENDSEC\n  0\nEOF\n" site (file "site.dwg" empty))
(command "_.-XREF" "_Attach" site '(1.0 2.0 0.0) 2.0 3.0 90.0)(mapcar 'field '(2 10 41 42)) ;= ("site" (1.0 2.0 0.0) 2.0 3.0)
(setq s (tblsearch "BLOCK" "SITE"))(list (= (cdr (assoc 1 s)) site) (cdr (assoc 70 s))) ;= (T 4)
(command "_.-XREF" "_Path" "SI*" "d:/a b/site.dwg")(cdr (assoc 1 (tblsearch "BLOCK" "site"))) ;= "d:/a b/site.dwg"
(block "A" nil)(setq before (entlast))(command "_.-XREF" "_Attach" "none.dwg") ;> Cannot find file "none.dwg". ;= nil
(command "_.-XREF" "_Attach" (file "A.dwg" empty)) ;> The name "A" is a block's already. ;= nil
(command "_.-XREF" "_Path" "A" "x")(eq before (entlast)) ;> No matching references found. ;= T

; The draw order is kept in drawings that can
(setq p (mapcar '(lambda (x) (entmakex (list '(0 . "POINT") (list 10 x 0 0)))) '(1 2 3 4 5)))
(defun e (i) (nth (1- i) p))
(command "_.DRAWORDER" (e 2) "" "_Front")(order) ;= "13452"
(command "_.DRAWORDER" (e 5) (e 2) "" "_Front")(order) ;= "13452"
(command "_.DRAWORDER" (e 4) "" "_Back")(order) ;= "41352"
(command "_.DRAWORDER" (e 3) "" "")(order) ;= "34152"
(command "_.DRAWORDER" (e 3) "" "_Above" (e 1) (e 2) "")(order) ;= "41523"
(command "_.DRAWORDER" (e 5) "" "_Under" (e 1) (e 2) "")(order) ;= "45123"
(entmake '((0 . "POINT") (10 6 0 0)))(entdel (e 1))(order) ;= "45236"
(command "_.UNDO" 2)(order) ;= "41523"

; A command's name ends the one that still asks for something else, as older programs expect
(progn (command "_.ERASE" "_All" "") (command "LINE" '(0 0) '(9 0) "" "LINE" '(0 0) '(0 9) "") (setq b (entlast) a (entnext)) (command "FILLET" "R" 2) (command "FILLET" (list a '(8 0)) (list b '(0 8))) (list (getvar "FILLETRAD") (cdr (assoc 0 (entget (entlast)))))) ;= (2.0 "ARC")
(progn (command "_.LINE" '(1 1) '(2 2)) (command "CIRCLE" '(5 5) 1) (list (getvar "CMDACTIVE") (cdr (assoc 0 (entget (entlast)))))) ;= (0 "CIRCLE")
(progn (command "_.TEXT" '(0 0) 1 0) (command "CIRCLE") (cdr (assoc 1 (entget (entlast))))) ;= "CIRCLE"
(progn (command "_.ERASE") (command "All" "") (getvar "CMDACTIVE")) ;= 0
; Within one call too
(command "_.FILLET" "_R" 2.5 "_.POINT" '(1 1))(list (getvar "FILLETRAD") (field 0)) ;= (2.5 "POINT")

; Words for values, with the mark of English
(command "_.-COLOR" 3 "_.-COLOR" "_bylayer")(getvar "CECOLOR") ;= "BYLAYER"
(setvar "UCSICON" 3)(command "_.UCSICON" "_off" "_.DRAGMODE" "_a" "_.BLIPMODE" "_on")(mapcar 'getvar '("UCSICON" "DRAGMODE" "BLIPMODE")) ;= (2 2 1)
(command "_.UCSICON" "_on" "_.UCSICON" "_n" "_.BLIPMODE" "off")(mapcar 'getvar '("UCSICON" "BLIPMODE")) ;= (1 0)
; Saving as programs write it: an empty answer or a version in front of the name
(command "_.SAVEAS" "" (strcat dir "first.dxf"))(getvar "DWGNAME") ;= "first.dxf"
(command "_.SAVEAS" "_2018" (strcat dir "second"))(getvar "DWGNAME") ;= "second.dxf"
(command "_.POINT" '(1 1))(command "_.QSAVE")(list (getvar "DBMOD") (getvar "DWGTITLED")) ;= (0 1)
(command "_.SAVEAS" "2013" (strcat dir "third")) ;> nothing was written ;= nil
; What a group and a sort table say of erased entities stays out of the file, and is there when they come back.
(defun count-lines (f text / n l) (setq n 0 f (open f "r")) (while (setq l (read-line f)) (if (= l text) (setq n (1+ n)))) (close f) n)
(defun mentions (name / h)
  (command "_.SAVEAS" "" (strcat dir name))
  (count-lines (strcat dir name) listed))
; One is left: what stays is sorted as the handle of the other.
(command "_.POINT" '(1 1) "_.POINT" '(2 2) "_.-GROUP" "_C" "Pair" "" "_ALL" "" "_.DRAWORDER" "_L" "" "_B")(setq e (entlast) listed (cdr (assoc 5 (entget e))))(mentions "listed.dxf") ;= 4
(entdel e)(list (mentions "gone.dxf") (progn (entdel e) (mentions "back.dxf"))) ;= (1 4)
; The next argument answers a prompt that did not take one: what is superfluous or unknown does no harm.
(setvar "CMDECHO" 0)(command "_.-LINETYPE" "_Load" "DASHED" "acad.lin" "_Y" "")(list (getvar "CMDACTIVE") (cdr (assoc 2 (tblsearch "LTYPE" "dashed")))) ;> Invalid option keyword. ;= (0 "DASHED")
(command "_.LINE" '(7 7) "nonsense" '(8 7) "")(list (getvar "CMDACTIVE") (field 10) (field 11)) ;> Point or option keyword required. ;= (0 (7.0 7.0 0.0) (8.0 7.0 0.0))
(command "_.U")(equal (field 10) '(7.0 7.0 0.0)) ;= nil
(command "_.-LAYER" "_M" "Made" "_L" "DOESNOTEXIST" "" "_C" 1 "" "")(list (getvar "CMDACTIVE") (getvar "CLAYER")) ;= (0 "Made")
(command "_.-LAYER" "_S" "Nowhere" "_S" "0" "")(list (getvar "CMDACTIVE") (getvar "CLAYER")) ;> Cannot find layer "Nowhere". ;= (0 "0")
(setq e (entlast))(list (vl-cmdf "_.LINE" '(3 3) '(4 4) "nonsense") (getvar "CMDACTIVE") (eq e (entlast))) ;> nothing was changed ;= (nil 0 T)
(vl-cmdf "_.CIRCLE" '(3 3) "nonsense" -1 2) ;= T
(list (field 0) (field 40)) ;= ("CIRCLE" 2.0)
(command-s "_.CIRCLE" '(3 3) "nonsense") ;= error: the command has failed in (COMMAND-S)
; What was found is told where prompts are, and NOMUTT silences both
(princ "<")(command "_.SELECT" "_L" "")(princ ">") ;> <> ;= ">"
(setvar "CMDECHO" 1)(princ "<")(command "_.SELECT" "_L" "") ;> 1 found ;= nil
(setvar "NOMUTT" 1)(princ "<")(command "_.SELECT" "_L" "")(princ ">") ;> <> ;= ">"
(setvar "NOMUTT" 0) ;= 0


; What a program works out that is no number is no place.
(setq inf (* 1e200 1e200) nan (- inf inf)) (command "LINE" '(0 0) (list inf 0) nil) (command "-BOUNDARY" (list nan 0) nil) (command "ERASE" (list nan 0) "") (entlast) ;= nil
; What is not drawn has a name as well, and is nothing to erase
(command "ERASE" (cdr (assoc -1 (dictsearch (namedobjdict) "ACAD_GROUP"))) "") (cdr (assoc 0 (dictsearch (namedobjdict) "ACAD_GROUP"))) ;= "DICTIONARY"
(command "ERASE" (tblobjname "LAYER" "0") "") (cdr (assoc 2 (tblsearch "LAYER" "0"))) ;= "0"
