(defun group (code name) (cdr (assoc code (entget name))))
(defun xdata (name applications) (cdr (assoc -3 (entget name applications))))
(defun entry (code table name) (cdr (assoc code (tblsearch table name))))
(defun wall () (setq e (entmakex '((0 . "LINE") (8 . "WALLS") (10 1.0 2.0 3.0) (11 4 5 6)))))

; The list of a new entity
(list (entnext) (entlast) (handent "FFFFF")) ;= (nil nil nil)
(eq (wall) (entlast)) ;= T
(mapcar 'car (entget e)) ;= (-1 0 330 5 100 67 410 8 100 10 11 210)
(list (eq (group -1 e) e) (eq e (handent (group 5 e))) (group 11 e) (group 2 (group 330 e)))
;= (T T (4.0 5.0 6.0) "*Model_Space")
(setq e (entmakex (list '(0 . "TEXT") '(10 0.0 0.0 0.0) '(40 . 2.5) '(1 . "Höhe") (cons 50 (/ pi 2)))))
(cons (equal (group 50 e) (/ pi 2) 1e-12) (mapcar '(lambda (code) (group code e)) '(41 51 7 72 410)))
;= (T 1.0 0.0 "Standard" 0 "Model")
(entmake '((0 . "POINT") (10 1.0 1.0 0.0))) ;= ((0 . "POINT") (10 1.0 1.0 0.0))
(entmake '((0 . "LINE") (10 0 0 0))) ;= nil
(entmake '((0 . "LINE") (10 . "x") (11 0 0 0))) ;= error: bad DXF group: (10 . "x") (not a number or point) in (ENTMAKE)
(command "_.-LAYER" "_M" "L1" "")(group 8 (entmakex '((0 . "POINT") (10 1 1 0)))) ;= "L1"

; Changing and erasing
(wall)(entmod (list (cons -1 e) '(62 . 3)))(mapcar '(lambda (c) (group c e)) '(62 8 10)) ;= (3 "WALLS" (1.0 2.0 3.0))
(entmod (subst '(8 . "0") '(8 . "WALLS") (entget e)))(group 8 e) ;= "0"
(entmod (list (cons -1 e) '(0 . "CIRCLE")))(group 0 e) ;= "LINE"
(entmod '((8 . "0"))) ;= error: bad argument value: entity list without a name ((8 . "0")) in (ENTMOD), argument 1
(setq l (entget e))(entdel e)(list (entget e) (entlast) (entmod l)) ;= (nil nil nil)
(entdel e)(group 8 e) ;= "0"
(entdel (car (entsel))) ;= error: Function cancelled in (ENTSEL)
(entdel (namedobjdict)) ;= nil
(defun all (code e) (mapcar 'cdr (vl-remove-if-not '(lambda (f) (= (car f) code)) (entget e))))
(entmod (append (entget e) '((62 . 5) (8 . "B") (11 9.0 9.0 0.0))))(mapcar '(lambda (c) (all c e)) '(62 8 11)) ;= ((5) ("B") ((9.0 9.0 0.0)))
(mapcar '(lambda (c) (all c (entmakex (append (entget e) '((62 . 7)))))) '(62 8)) ;= ((7) ("B"))

; Polylines are made by their ends
(entmake '((0 . "POLYLINE") (70 . 1)))
(foreach p '((0 0 0) (5 0 0) (5 5 0)) (entmake (list '(0 . "VERTEX") (cons 10 p) '(42 . 0.5))))
(list (group 0 (entmakex '((0 . "SEQEND")))) (group 0 (setq p (entlast)))) ;= ("POLYLINE" "POLYLINE")
(while (setq p (entnext p)) (setq all (cons (group 0 p) all)))(reverse all) ;= ("VERTEX" "VERTEX" "VERTEX" "SEQEND")
(entmake '((0 . "VERTEX") (10 0 0 0))) ;= nil
(setq e (entmakex '((0 . "LWPOLYLINE") (90 . 2) (70 . 0) (10 0.0 0.0) (10 5.0 0.0) (42 . 1.0))))
(vl-remove-if-not '(lambda (f) (member (car f) '(10 42))) (entget e)) ;= ((10 0.0 0.0) (42 . 0.0) (10 5.0 0.0) (42 . 1.0))
(mapcar 'car (member '(70 . 0) (entget e))) ;= (70 43 38 39 10 40 41 42 10 40 41 42 210)
(command "_.PEDIT" e "_W" 0.5 "")(list (group 43 e) (group 40 e)) ;= (0.5 0.5)
(entmod (subst '(43 . 2.0) '(43 . 0.5) (entget e)))(mapcar '(lambda (c) (group c e)) '(43 40 41)) ;= (2.0 2.0 2.0)
(entmake '((0 . "POLYLINE")))(entmake '((0 . "VERTEX") (10 0 0 0)))(setq p (entmakex '((0 . "SEQEND"))))
(setq all (entget (entnext (entnext p))))(list (cdr (assoc 0 all)) (eq p (cdr (assoc -2 all)))) ;= ("SEQEND" T)

; Blocks are named by theirs
(entmake '((0 . "BLOCK") (2 . "Door") (70 . 0) (10 1.0 0.0 0.0)))
(entmake '((0 . "LINE") (8 . "0") (10 0 0 0) (11 0 9 0)))(entmake '((0 . "CIRCLE") (8 . "0") (10 0 0 0) (40 . 9)))
(list (entmake '((0 . "ENDBLK"))) (entry 10 "BLOCK" "DOOR")) ;= ("Door" (1.0 0.0 0.0))
(setq p (entry -2 "BLOCK" "DOOR"))(eq p (group -2 (tblobjname "BLOCK" "DOOR"))) ;= T
(list (group 0 p) (group 0 (entnext p)) (entnext (entnext p))) ;= ("LINE" "CIRCLE" nil)
(entmake '((0 . "BLOCK") (2 . "Bad") (70 . 0) (10 0 0 0)))(entmake '((0 . "LINE") (10 0 0 0)))
(list (entmake '((0 . "ENDBLK"))) (tblsearch "BLOCK" "Bad")) ;= (nil nil)
(entmake '((0 . "INSERT") (2 . "Door") (66 . 1) (10 0 0 0)))
(entmake '((0 . "ATTRIB") (10 0 0 0) (40 . 1.0) (1 . "T30") (2 . "FIRE") (70 . 0)))(entmake '((0 . "SEQEND")))
(group 1 (entnext (entlast))) ;= "T30"

; Extended data comes when it is asked for; entmod replaces that of the applications it names
(regapp "A1")
(setq e (entmakex '((0 . "POINT") (10 0 0 0)
  (-3 ("A1" (1000 . "a") (1070 . 7)) ("B1" (1040 . 2.5) (1010 1.0 2.0 3.0))))))
(list (assoc -3 (entget e)) (xdata e '("A1"))) ;= (nil (("A1" (1000 . "a") (1070 . 7))))
(entmod (list (cons -1 e) '(-3 ("A1" (1000 . "new")))))(xdata e '("*"))
;= (("A1" (1000 . "new")) ("B1" (1040 . 2.5) (1010 1.0 2.0 3.0)))
(entmod (list (cons -1 e) '(-3 ("B1"))))(entmod (list (cons -1 e) '(62 . 1)))(xdata e '("*")) ;= (("A1" (1000 . "new")))

(setq e (entmakex '((0 . "POINT") (10 0 0 0) (-3 ("A1" (1040 . 1.0) (1041 . 3.0) (1042 . 2.0) (1010 1 0 0) (1011 1 0 0)
  (1012 1 0 0) (1013 1 0 0))))))
(command "_.MOVE" e "" '(1 0) "")(command "_.SCALE" e "" '(0 0) 2)(xdata e '("A1"))
;= (("A1" (1040 . 1.0) (1041 . 6.0) (1042 . 4.0) (1010 1.0 0.0 0.0) (1011 4.0 0.0 0.0) (1012 2.0 0.0 0.0) (1013 1.0 0.0 0.0)))

; Objects of programs: how a record is merged stands before its data, which is kept whole
(wall)(setq x (entmakex (list '(0 . "XRECORD") '(100 . "AcDbXrecord") '(1 . "a") (cons 330 e))))
(dictadd (namedobjdict) "MINE" (setq d (entmakex '((0 . "DICTIONARY") (100 . "AcDbDictionary")))))(dictadd d "ONE" x)
(equal (member '(280 . 1) (dictsearch d "ONE")) (list '(280 . 1) '(1 . "a") (cons 330 e))) ;= T
(vl-remove-if '(lambda (f) (member (car f) '(-1 5 330))) (entget (entmakex '((0 . "XRECORD") (280 . 0) (70 . 3)))))
;= ((0 . "XRECORD") (100 . "AcDbXrecord") (280 . 0) (70 . 3))
(group 1 (entmakex '((0 . "DICTIONARYVAR") (280 . 0) (1 . "v")))) ;= "v"

; The box of a text reaches from the base line to the capitals' tops, farther with tails, and does not turn
(setq d '((1 . "Hx") (40 . 2.0) (10 5.0 5.0 0.0)))(mapcar 'cadr (textbox d)) ;= (0.0 2.0)
(< -1.0 (cadr (car (textbox '((1 . "Hg") (40 . 2.0))))) -0.1) ;= T
(equal (textbox (append d '((50 . 1.0) (41 . 2.0)))) (mapcar '(lambda (p) (mapcar '* p '(2 1 1))) (textbox d)) 1e-9) ;= T
(setq d '((1 . "Hx") (40 . 2.0) (10 5.0 0.0 0.0) (11 7.0 1.0 0.0) (72 . 1) (73 . 2)))
(mapcar '(lambda (a b) (/ (+ a b) 2)) (car (textbox d)) (cadr (textbox d))) ;= (2.0 1.0 0.0)
(list (textbox '((1 . ""))) (textbox '((0 . "LINE")))) ;= (((0.0 0.0 0.0) (0.0 0.0 0.0)) nil)

; A paragraph has the size of what it says now
(setq e (entmakex '((0 . "MTEXT") (10 0 0 0) (40 . 3.0) (41 . 90.0) (42 . 7.0) (43 . 9.0) (1 . "H\\PH"))))
(setq old (entget e))(entmod (subst '(1 . "HH") '(1 . "H\\PH") old))(setq new (entget e))
(list (cdr (assoc 43 old)) (cdr (assoc 43 new)) (< 1.9 (/ (cdr (assoc 42 new)) (cdr (assoc 42 old))) 2.7)) ;= (8.0 3.0 T)

; Tables
(tblsearch "LAYER" "0") ;= ((0 . "LAYER") (2 . "0") (70 . 0) (62 . 7) (6 . "Continuous"))
(while (tblnext "LTYPE" (not n)) (setq n (1+ (cond (n) (0)))))n ;= 3
(entmake '((0 . "LAYER") (2 . "B") (70 . 0)))(tblsearch "LAYER" "0" T)(cdr (assoc 2 (tblnext "LAYER"))) ;= "B"
(tblsearch "NOSUCH" "0") ;= error: bad argument value: table name "NOSUCH" in (TBLSEARCH), argument 1
(group 5 (entmakex '((0 . "DIMSTYLE") (2 . "Old") (5 . "_Dot")))) ;= "_Dot"
(entmake '((0 . "STYLE") (2 . "S") (70 . 0) (-3 ("NEWAPP" (1000 . "a")))))(entry 2 "APPID" "newapp") ;= "NEWAPP"
(group 2 (tblobjname "STYLE" "standard")) ;= "Standard"
(entmod (subst '(62 . 5) '(62 . 7) (entget (tblobjname "LAYER" "0"))))(entry 62 "LAYER" "0") ;= 5
(entmake '((0 . "LAYER") (2 . "0") (70 . 0))) ;= nil
(mapcar 'snvalid '("a b" "a/b" "" "x|y")) ;= (T nil nil nil)
(list (regapp "T1") (regapp "t1")) ;= ("T1" nil)

; Dictionaries
(defun record (fields) (entmakex (append '((0 . "XRECORD") (100 . "AcDbXrecord")) fields)))
(setq named (namedobjdict)) (group 0 named) ;= "DICTIONARY"
(dictadd named "DATA" (record '((1 . "one") (40 . 2.5) (70 . 3))))
(vl-remove-if-not '(lambda (f) (member (car f) '(1 40 70))) (dictsearch named "data")) ;= ((1 . "one") (40 . 2.5) (70 . 3))
(dictadd named "data" (record '((1 . "two")))) ;= nil
(dictremove named "DATA")(dictsearch named "DATA") ;= nil
(wall)(setq groups (cdr (assoc -1 (dictsearch named "ACAD_GROUP"))))
(setq made (entmakex (list '(0 . "GROUP") '(100 . "AcDbGroup") '(300 . "") '(70 . 1) '(71 . 1) (cons 340 e))))
(dictadd groups "*A1" made)(setq made (dictsearch groups "*a1"))
(list (cdr (assoc 0 made)) (eq e (cdr (assoc 340 made))) (eq groups (cdr (assoc 330 made))) (eq e (entlast)))
;= ("GROUP" T T T)

; Coordinate systems
(trans '(1.0 2.0 3.0) 0 '(0.0 0.0 -1.0)) ;= (-1.0 2.0 -3.0)
(trans '(1 2 3) 0 7) ;= error: bad argument value: coordinate system 7 in (TRANS), argument 3
