; Control forms
(list (if 1 2 3) (if nil 2) (if nil 2 3)) ;= (2 nil 3)
(if 1) ;= ! too few arguments in (IF)
(if 1 2 3 4) ;= ! too many arguments in (IF)
(list (cond ((= 1 2) 'a) ((= 1 1) 'b 'c) (T 'd)) (cond (nil 1) (7)) (cond)) ;= (C 7 nil)
(cond 5) ;= ! bad argument type: listp 5 in (COND)
(setq i 0 s 0) (while (< i 5) (setq i (1+ i) s (+ s i))) ;= 15
(setq n 1) (repeat 10 (setq n (* 2 n))) ;= 1024
(list (while nil 1) (repeat -3 1)) ;= (nil nil)
(repeat "3" 1) ;= ! bad argument type: fixnump: "3" in (REPEAT), argument 1
(setq x 'old) (list (foreach x '(1 2 3) (* x x)) x) ;= (9 OLD)
(foreach x 5 x) ;= ! bad argument type: listp 5 in (FOREACH), argument 2
(list (progn 1 2 3) (and 1 2) (and 1 nil (car 5)) (or nil 5) (or)) ;= (3 T nil T nil)
(setq a 1 b (+ a 1)) ;= 2
(setq a) ;= ! too few arguments in (SETQ)
(setq "a" 1) ;= ! bad argument type: symbolp "a" in (SETQ), argument 1
(set 'a 5) a ;= 5
(setq x '(+ 1 2)) (list (quote (a b)) 'a (eval '(+ 1 2)) (eval x) T nil) ;= ((A B) A 3 3 T nil)

; Functions and their variables
(defun f (a b) (+ a b)) (f 1 2) ;= 3
(list (defun f ()) (f)) ;= (F nil)
(defun f (a) a) (f) ;= ! too few arguments in (F)
(defun f (a) a) (f 1 2) ;= ! too many arguments in (F)
(setq b 7) (defun f (/ b) (setq b 1)) (list (f) b) ;= (1 7)
(defun f (/ b) b) (setq b 7) (f) ;= nil
(defun f (a / b c) (setq b a c (list a b))) (f 2) ;= (2 2)
; Dynamic scope: a called function sees its caller's variables.
(defun g () v) (defun f (v) (g)) (f 5) ;= 5
(setq v 1) (defun f (v) (setq v 2)) (f 9) v ;= 1
(setq a 1) (defun f (a a) a) (list (f 2 3) a) ;= (3 1)
((lambda (x) (* x x)) 4) ;= 16
(setq f (lambda (x) (* x x))) (f 4) ;= 16
(list (apply '+ '(1 2)) (apply (function (lambda (x) (1+ x))) '(1)) (apply '(lambda (x / y) (setq y x)) '(3)))
;= (3 2 3)
(list (mapcar '+ '(1 2 3) '(10 20)) (mapcar '(lambda (x) (list x)) nil)) ;= ((11 22) nil)
(list (apply 'and '(1 nil)) (apply 'and nil) (apply 'or '(nil 2)) (mapcar 'and '(1 nil) '(2 3)) (vl-some 'or '(nil 4)))
;= (nil T T (T nil) T)
(apply 'if '(1 2)) ;= ! bad function: IF in (APPLY)
(nofunction 1) ;= ! no function definition: NOFUNCTION
(setq five 5) (five) ;= ! bad function: 5
(5) ;= ! bad function: 5
(mapcar 'nofunction '(1)) ;= ! no function definition: NOFUNCTION in (MAPCAR)
(defun 5 ()) ;= ! bad argument type: symbolp 5 in (DEFUN), argument 1
(defun f (a 5) a) ;= ! bad argument type: symbolp 5 in (DEFUN)
; A function may go away or change while it runs.
(defun f () (setq f nil) 'still) (f) ;= STILL
(defun fact (n) (if (< n 2) 1 (* n (fact (1- n))))) (fact 10) ;= 3628800
(defun-q f (x) (1+ x)) (list (f 1) (defun-q-list-ref 'f)) ;= (2 ((X) (1+ X)))
(defun-q f (x) (1+ x)) (defun-q-list-set 'f '((y) (* 2 y))) (f 5) ;= 10

; Types
(mapcar 'type (list 1 1.5 "a" 'a '(1) nil car (lambda () 1) if)) ;= (INT REAL STR SYM LIST nil SUBR USUBR SUBR)
(type (ssadd)) ;= PICKSET
(list (boundp 'car) (boundp 'nope) (boundp nil)) ;= (T nil nil)
(list (atom 'a) (atom '(1)) (atom nil) (listp nil) (listp '(1)) (listp 1)) ;= (T nil T T T nil)
(list (vl-symbolp 'a) (vl-symbolp "a") (vl-symbol-name 'abc)) ;= (T nil "ABC")
(setq q 5) (vl-symbol-value 'q) ;= 5
(atoms-family 1 '("car" "nope")) ;= ("CAR" nil)
(list car (lambda (x) x)) ;= (<Subr: CAR> <Function: LAMBDA>)
(defun c:line2 () 1) c:line2 ;= <Function: C:LINE2>

; Names know no case
(SetQ Foo 5) fOO ;= 5
(eq 'abc 'ABC) ;= T
(setq größe 3) GRÖSSE GRÖßE ;= 3

; Selection sets are shared by those who hold them
(setq a (entity 1) b (entity 2) c (entity 3)) ;= <Entity name: 3>
(setq s (ssadd a) r s) (ssadd b s) (ssadd b s) (sslength r) ;= 2
(list (ssname r 1) (ssname r 2) (ssname r -1)) ;= (<Entity name: 2> nil nil)
(list (ssmemb b s) (ssmemb c s) (ssdel c s)) ;= (<Entity name: 2> nil nil)
(ssdel a s) (list (sslength r) (ssname s 0)) ;= (1 <Entity name: 2>)
(list s (ssadd)) ;= (<Selection set: 1> <Selection set: 2>)
(ssname 5 0) ;= ! bad argument type: lselsetp 5 in (SSNAME), argument 1
(ssadd 5 s) ;= ! bad argument type: lentityp 5 in (SSADD), argument 1
(foreach i '(3 1 5 6 7 4) (ssadd (entity i) s)) (foreach i '(4 1 7 3 6) (ssdel (entity i) s))
(list (sslength s) (ssname s 0) (ssname s 1)) ;= (2 <Entity name: 2> <Entity name: 5>)

; Tracing shows calls and results
(defun f (x) (* 2 x)) (trace f) (f 4) (untrace f) (f 5) ;> Entering (F 4)\nResult: 8\n ;= 10
