; Fields that no drawing may have in it; ";= *" is whatever comes of it. A text and an extension record are there.
(setq e (entmakex '((0 . "TEXT") (10 0 0 0) (40 . 1) (1 . "x"))))
(setq r (dictadd (namedobjdict) "R" (entmakex '((0 . "XRECORD") (1 . "a")))))

(vl-remove nil (mapcar '(lambda (type) (entmake (list (cons 0 type) '(100 . "AcDbX") '(8 . "0") '(10 0 0 0)))) '("EOF"
  "eof " "SECTION" "EndSec" "TABLE" "ENDTAB" "ENDBLK" "SEQEND" "CLASS" "VERTEX" "ATTRIB" "BLOCK_RECORD" "LAYOUT"
  "A\nB" "A B" "\t" ""))) ;= nil
(progn (entmake '((0 . "BLOCK") (2 . "B1") (70 . 0) (10 0 0 0)))(entmake '((0 . "ENDTAB") (100 . "x") (10 0 0 0)))
  (entmake '((0 . "ENDBLK")))) ;= nil
(progn (entmake '((0 . "BLOCK") (2 . "B2") (70 . 0) (10 0 0 0)))(entmake '((0 . "BLOCK") (2 . "B3") (70 . 0) (10 0 0
  0))) (entmake '((0 . "ENDBLK")))) ;= "B3"
(setq p (entmake '((0 . "POINT") (10 0 0 0) (0 . "EOF") (0 . "ENDSEC")))) ;= *
(progn (setq e (entlast)) (entmod (list (cons -1 e) '(0 . "EOF") '(8 . "0") '(0 . "EOF"))) 0) ;= 0
(entmake '((0 . "POINT") (10 0 0 0) (999 . "0")))
;= error: bad DXF group: (999 . "0") (not a group code of a record) in (ENTMAKE)
(entmake '((0 . "POINT") (10 0 0 0) (1072 . 1)))
;= error: bad DXF group: (1072 . 1) (not a group code of a record) in (ENTMAKE)
(entmake '((0 . "POINT") (10 0 0 0) (-70000 . 1))) ;= *
(mapcar '(lambda (item) (vl-catch-all-error-p (vl-catch-all-apply 'entmake (list (list '(0 . "POINT") '(10 0 0 0)
  (list -3 (list "APP" item))))))) '((0 . "EOF") (8 . "0") (1001 . "B") (1072 . 1) (999 . "x"))) ;= (T T T T T)
(entmake (list '(0 . "TEXT") '(10 0 0 0) '(40 . 1) (cons 1 "a\n  0\nEOF\r\n\t^J^\033\177") (cons 8 "L\n0\nENDSEC")
  (list -3 (list "A\nB" '(1000 . "x\ny") '(1004 . "0\nEOF"))))) ;= *
(entmake '((0 . "POINT") (10 0 0 0) (62 . "1\n0\nEOF")))
;= error: bad DXF group: (62 . "1\n0\nEOF") (not a number) in (ENTMAKE)
(vl-catch-all-error-p (vl-catch-all-apply 'entmake (list (list '(0 . "POINT") (list 10 (/ 1e308 1e-308) 0 0))))) ;= *
(progn (entmake '((0 . "LINE") (5 . "1") (10 0 0 0) (11 1 0 0) (5 . "2")))(entmake '((0 . "LAYER") (2 . "H") (70 .
  0) (5 . "1")))(entmake '((0 . "DIMSTYLE") (2 . "H") (70 . 0) (105 . "1") (5 . "1"))) 0) ;= *
(progn (setq e (entlast)) (entmod (list (cons -1 e) '(5 . "1") '(5 . "2") '(8 . "0"))) 0) ;= 0
(progn (entmake '((0 . "LAYER") (2 . "A\n0\nENDTAB") (70 . 0) (6 . "x\ny") (0 . "ENDTAB")))(entmake '((0 . "STYLE")
  (2 . "") (70 . 1) (3 . "a\n0\nEOF"))) (regapp "A\n0\nEOF") 0) ;= 0
(progn (setq e (tblobjname "LAYER" "0")) (entmod (append (entget e) '((0 . "ENDTAB") (5 . "1")))) 0) ;= 0
(progn (setq r (entmakex '((0 . "XRECORD") (0 . "EOF") (1 . "a\n0\nEOF") (5 . "1") (310 . "zz\n"))))(if r (entmod
  (list (cons -1 r) '(0 . "XRECORD") '(1 . "b") '(0 . "EOF") '(5 . "7") '(102 . "{\n")))) 0) ;= 0
(progn (if (namedobjdict) (dictadd (namedobjdict) "a\n0\nEOF" (entmakex '((0 . "XRECORD") (1 . "a"))))) 0) ;= 0
(progn (entmake '((0 . "INSERT") (66 . 1) (2 . "B3") (10 0 0 0))) (entmake '((0 . "POINT") (10 1 1 1)))(entmake '((0
  . "SEQEND")))) ;= nil
