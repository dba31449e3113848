; mapcar and its kin, whose calls of a program's functions compiled code makes by itself. Where literal lambdas are made once
(defun each (l) (mapcar '(lambda (x) (* x x)) l))
(list (each '(1 2 3)) (each nil) (each '(2.5)) (each '(4 5 . 6))) ;= ((1 4 9) nil (6.25) (16 25))
(defun each (l) (mapcar (function (lambda (x) (list x))) l)) (list (each '(1 nil)) (each '(2))) ;= (((1) (nil)) ((2)))
(defun each (l) (mapcar (lambda (x / y) (setq y (cons x y))) l)) (each '(1 2)) ;= ((1) (2))
(defun each (l m n) (mapcar '(lambda (x y z) (list x y z)) l m n))
(list (each '(1 2 3) '(a b) '("x" "y" "z")) (each nil '(1) '(2))) ;= (((1 A "x") (2 B "y")) nil)

; Functions by name, in variables, as lists, built in
(defun twice (x) (* 2 x)) (defun each (f l) (mapcar f l))
(list (each 'twice '(1 2)) (each twice '(3)) (each '1+ '(1 2)) (each '(lambda (x) (- x)) '(7)) (each '((x) (list x)) '(8)))
;= ((2 4) (6) (2 3) (-7) ((8)))
(defun-q listed (x) (list x x)) (list (each 'listed '(1 2)) (each listed '(3))) ;= (((1 1) (2 2)) ((3 3)))

; A function keeps its meaning for the whole walk, whatever becomes of its name; variables are those of the moment
(defun change (x) (defun change (x) (list 'new x)) x) (defun f (l) (mapcar 'change l))
(list (f '(1 2 3)) (f '(4))) ;= ((1 2 3) ((NEW 4)))
(defun f (l / sum) (setq sum 0) (mapcar '(lambda (x) (setq sum (+ sum x))) l) (list sum x))
(setq x 'outside) (f '(1 2 3)) ;= (6 OUTSIDE)
(defun f (car l) (mapcar '(lambda (x) (car x)) l)) (f 'cdr '((1 2) (3))) ;= ! bad function: CDR
(defun f (car l) (mapcar '(lambda (x) (car x)) l)) (f cdr '((1 2) (3))) ;= ((2) nil)
(defun f (l) (mapcar '(lambda (x) (if (= x 2) (setq l nil)) (length l)) l)) (f '(1 2 3)) ;= (3 0 0)
(defun f (n) (if (= n 0) nil (mapcar '(lambda (x) (f (1- n))) '(1 2)))) (f 3) ;= (((nil nil) (nil nil)) ((nil nil) (nil nil)))
(defun f (mapcar) (mapcar 1)) (f list) ;= (1)

; The others stop where they know
(defun f (l) (vl-some '(lambda (x) (princ x) (if (> x 1) (* 10 x))) l)) (f '(1 2 3)) ;> 12 ;= 20
(list (f nil) (f '(0))) ;= (nil nil)
(defun f (l m) (vl-some '(lambda (x y) (= x y)) l m)) (list (f '(1 2) '(2 2)) (f '(1) '(2 1))) ;= (T nil)
(defun f (l) (vl-every '(lambda (x) (princ x) (> x 1)) l)) (f '(2 1 3)) ;> 21 ;= nil
(list (f '(2 3)) (f nil)) ;= (T T)
(defun f (l) (list (vl-remove-if '(lambda (x) (< x 2)) l) (vl-remove-if-not '(lambda (x) (< x 2)) l)))
(list (f '(1 2 3 0)) (f '(5)) (f nil)) ;= (((2 3) (1 0)) ((5) nil) (nil nil))
(defun f (l) (list (vl-member-if '(lambda (x) (= x 2)) l) (vl-member-if-not '(lambda (x) (= x 2)) l)))
(list (f '(1 2 3)) (f '(2 2)) (f '(2 . 5))) ;= (((2 3) (1 2 3)) ((2 2) nil) ((2 . 5) nil))

; apply
(defun f (l) (apply '(lambda (x y / z) (setq z (list y x)) z) l)) (list (f '(1 2)) (f '(1 2 . 3))) ;= ((2 1) (2 1))
(f '(1)) ;= ! too few arguments in (LAMBDA)
(f 5) ;= ! bad argument type: listp 5 in (APPLY), argument 2
(defun twice (x) (* 2 x)) (defun f (g l) (apply g l)) (list (f 'twice '(4)) (f '+ '(1 2 3)) (f '(lambda () 7) nil)) ;= (8 6 7)
(defun f (a b c d e g h i j) (list a j)) (defun k (l) (apply 'f l)) (k '(1 2 3 4 5 6 7 8 9)) ;= (1 9)

; What is wrong is told as the built-ins tell it, and nothing is left behind
(defun f (l) (mapcar '(lambda (x y) (list x)) l)) (f '(1)) ;= ! too few arguments in (LAMBDA)
(f nil) ;= nil
(defun f (l m) (mapcar '(lambda (x y) (+ x y)) l m)) (f '(1) 2) ;= ! bad argument type: listp 2 in (MAPCAR), argument 3
(f '(1 2) '(1 "a")) ;= ! bad argument type: numberp: "a" in (+), argument 2
(setq x 1 y 2) (list (vl-catch-all-error-message (vl-catch-all-apply 'f '((1) ("b")))) x y)
;= ("bad argument type: numberp: \"b\"" 1 2)
(defun f (l) (mapcar '(lambda (5) 1) l)) (f '(1)) ;= ! bad argument type: symbolp 5 in (MAPCAR)
(defun f (l) (vl-some 'missing l)) (f '(1)) ;= ! no function definition: MISSING in (VL-SOME)
(defun f (l) (vl-catch-all-error-message (vl-catch-all-apply 'mapcar (list '(lambda (x) (exit)) l)))) (f '(1)) ;= "quit / exit abort"

; Traced functions are written out, also from the middle of a walk on
(defun g (x) (if (= x 2) (trace g)) x) (defun f (l) (mapcar 'g l)) (f '(1 2 3)) ;> Entering (G 3)\nResult: 3\n ;= (1 2 3)
(untrace g) (f '(4)) ;= (4)

; A function that is a list is made anew when the list is another
(defun-q f (x) (list 'first x)) (setq r (list (f 1) (f 2))) (defun-q f (x) (list 'second x)) (append r (list (f 3)))
;= ((FIRST 1) (FIRST 2) (SECOND 3))
(defun-q-list-set 'f (append (defun-q-list-ref 'f) '((* 2 x)))) (list (f 4) (f 5)) ;= (8 10)
(defun-q f (n) (if (> n 0) (+ n (f (1- n))) 0)) (list (f 10) (f 100)) ;= (55 5050)
(eq (function (lambda () 1)) (function (lambda () 1))) ;= nil

; Sorting by functions of each kind
(defun f (l g) (list (vl-sort l g) (vl-sort-i l g)))
(list (f '(3 1 2 1) '<) (f '(3 1 2) '(lambda (a b) (> a b))) (f nil '<)) ;= (((1 1 2 3) (1 3 2 0)) ((3 2 1) (0 2 1)) (nil nil))
(f '((b . 2) (a . 1) (c . 1)) '(lambda (x y) (< (cdr x) (cdr y)))) ;= (((A . 1) (C . 1) (B . 2)) (1 2 0))

; Characters of one byte are counted by eights
(mapcar 'strlen '("" "1234567" "12345678" "123456789" "12345678ä" "ä12345678" "1234567ä12345678ä")) ;= (0 7 8 9 9 9 17)
(list (substr "12345678ä9" 9) (substr "12345678ä9" 10) (substr "ä2345678901" 11 1)) ;= ("ä9" "9" "1")
