; What follows from other groups of texts and dimensions that programs make and change.
(defun own (codes) (mapcar '(lambda (c) (cdr (assoc c (entget (entlast) '("*"))))) codes))
(defun made (l) (if (entmake l) T))
(defun change (c v / e) (setq e (entget (entlast))) (if (entmod (if (assoc c e) (subst (cons c v) (assoc c e) e) (append e (list (cons c v))))) T))
(defun width () (caadr (textbox (entget (entlast)))))
(defun start () (car (own '(10))))
(defun near (a b) (if (equal a b 1e-6) T (list a b)))
(defun picture (/ e r) (setq e (cdr (assoc -2 (tblsearch "BLOCK" (car (own '(2))))))) (while e (setq r (cons (cdr (assoc 0 (entget e))) r) e (entnext e))) (reverse r))
(defun drawn (/ e) (setq e (cdr (assoc -2 (tblsearch "BLOCK" (car (own '(2))))))) (while (and e (/= (cdr (assoc 0 (entget e))) "MTEXT")) (setq e (entnext e))) (cdr (assoc 1 (entget e))))

(made '((0 . "TEXT") (11 10.0 10.0 0.0) (40 . 2.0) (1 . "Hello") (72 . 2))) ;= T
(near (start) (list (- 10.0 (width)) 10.0 0.0)) ;= T
(change 1 "Hello, hello") ;= T
(near (start) (list (- 10.0 (width)) 10.0 0.0)) ;= T
(change 40 4.0) ;= T
(near (start) (list (- 10.0 (width)) 10.0 0.0)) ;= T
(change 10 '(3.0 3.0 0.0)) ;= T
(near (start) (list (- 10.0 (width)) 10.0 0.0)) ;= T
(change 11 '(20.0 5.0 0.0)) ;= T
(near (start) (list (- 20.0 (width)) 5.0 0.0)) ;= T
(change 50 (/ pi 2)) ;= T
(near (start) (list 20.0 (- 5.0 (width)) 0.0)) ;= T
(change 72 1) ;= T
(near (start) (list 20.0 (- 5.0 (/ (width) 2)) 0.0)) ;= T
(change 73 3) ;= T
(near (start) (list 24.0 (- 5.0 (/ (width) 2)) 0.0)) ;= T
(setq p (start)) (change 62 1) (equal p (start)) ;= T
(change 72 0) ;= T
(near (start) '(24.0 5.0 0.0)) ;= T
(change 73 0) ;= T
(change 10 '(3.0 3.0 0.0)) (start) ;= (3.0 3.0 0.0)

(made '((0 . "TEXT") (10 1.0 1.0 0.0) (11 11.0 1.0 0.0) (40 . 2.0) (1 . "fit") (72 . 5))) ;= T
(near (width) 10.0) ;= T
(change 11 '(1.0 21.0 0.0)) ;= T
(list (near (width) 20.0) (near (car (own '(50))) (/ pi 2))) ;= (T T)
(made '((0 . "TEXT") (40 . 2.0) (1 . "nowhere") (72 . 2))) ;> group 10 is missing ;= nil
(made '((0 . "ATTDEF") (11 10.0 10.0 0.0) (40 . 2.0) (1 . "x") (2 . "T") (3 . "P") (70 . 0) (74 . 3))) (start) ;= (10.0 8.0 0.0)
(made '((0 . "TEXT") (10 5.0 5.0 0.0) (40 . 2.0) (1 . "left") (72 . 1))) (start) ;= (5.0 5.0 0.0)

(made '((0 . "DIMENSION") (10 100.0 5.0 0.0) (13 0.0 0.0 0.0) (14 100.0 0.0 0.0) (70 . 0) (1 . ""))) ;= T
(list (own '(2 42 70)) (picture)) ;= (("*D0" 100.0 32) ("LINE" "LINE" "LINE" "SOLID" "SOLID" "MTEXT" "POINT" "POINT" "POINT"))
(drawn) ;= "100,00"
(change 14 '(60.0 0.0 0.0)) (list (drawn) (own '(2 42))) ;= ("60,00" ("*D0" 60.0))
(change 1 "L=<>") (drawn) ;= "L=60,00"
(setq n (entget (entlast))) (change 8 "Other") (equal (assoc 2 n) (assoc 2 (entget (entlast)))) ;= T
(drawn) ;= "L=60,00"
(change 50 (/ pi 2)) (list (drawn) (own '(2))) ;= ("L=0,00" ("*D0"))
(entmod (append (entget (entlast)) '((-3 ("ACAD" (1000 . "DSTYLE") (1002 . "{") (1070 . 271) (1070 . 0) (1002 . "}")))))) (drawn) ;= "L=0"

(made '((0 . "BLOCK") (2 . "*D7") (70 . 1) (10 0.0 0.0 0.0))) (made '((0 . "LINE") (10 0.0 0.0 0.0) (11 9.0 0.0 0.0))) (entmake '((0 . "ENDBLK"))) ;= "*D7"
(made '((0 . "DIMENSION") (2 . "*D7") (10 100.0 5.0 0.0) (13 0.0 0.0 0.0) (14 100.0 0.0 0.0) (70 . 33))) (list (own '(2)) (picture)) ;= (("*D7") ("LINE"))
(change 3 "Standard") (picture) ;= ("LINE")
(made '((0 . "BLOCK") (2 . "With") (70 . 0) (10 0.0 0.0 0.0))) (made '((0 . "DIMENSION") (10 5.0 5.0 0.0) (15 10.0 5.0 0.0) (70 . 4))) (entmake '((0 . "ENDBLK"))) ;= "With"
(cdr (assoc 2 (entget (cdr (assoc -2 (tblsearch "BLOCK" "With")))))) ;= "*D0"

(made '((0 . "MTEXT") (100 . "AcDbEntity") (100 . "AcDbMText") (10 0.0 0.0 0.0) (40 . 2.5) (3 . "abc") (3 . "def") (1 . "ghi"))) ;= T
(change 0 "TEXT") ;> the type of an entity cannot be changed ;= nil
(own '(0 1)) ;= ("MTEXT" "ghi")
(change 0 "mtext") ;= T
(made '((0 . "LEADER") (100 . "AcDbEntity") (100 . "AcDbLeader") (10 0.0 0.0 0.0) (10 5.0 5.0 0.0))) (own '(3)) ;= ("Standard")
(command "MLEADER" "0,0" "10,10" "n") (made (entget (entlast))) ;= T
(mapcar 'cdr (vl-remove-if-not '(lambda (g) (= (car g) 304)) (entget (entlast)))) ;= ("n" "LEADER_LINE{")
