; Counts of arguments
(car) (car 1 2) (rem 1) (substr "a") (strcat) ;= 1:2 argument-count: car takes 1 argument, not 0 | 1:8 argument-count: car takes 1 argument, not 2 | 1:26 argument-count: substr takes 2 to 3 arguments, not 1
(if) (if 1 2 3 4) (while) (foreach x) ;= 1:2 argument-count: if takes 2 to 3 arguments, not 0 | 1:7 argument-count: if takes 2 to 3 arguments, not 4 | 1:20 argument-count: while takes at least 1 argument, not 0 | 1:28 argument-count: foreach takes at least 2 arguments, not 1
(setq a 1 b) ;= 1:11 argument-count: setq has no value for b
(defun f (a b / c) (list a b (setq c 1) c))\n(f 1) (F 1 2) (f) ;= 2:2 argument-count: f takes 2 arguments, not 1 | 2:16 argument-count: f takes 2 arguments, not 0
((lambda (a) a) 1 2) ;= 1:2 argument-count: this lambda takes 1 argument, its call gives it 2
(mapcar '(lambda (a b) (list a b)) '(1)) ;= 1:10 argument-count: this lambda takes 2 arguments, mapcar gives it 1
(mapcar 'cons '(1)) (vl-sort '(1) '<) (vl-sort '(1) 'car) ;= 1:10 argument-count: cons takes 2 arguments, mapcar gives it 1 | 1:54 argument-count: car takes 1 argument, vl-sort gives it 2
(vl-remove-if (function (lambda () t)) nil) ;= 1:25 argument-count: this lambda takes no arguments, vl-remove-if gives it 1
(vl-catch-all-apply 'car (list 1 2)) (apply 'car '(1 2)) ;= 1:22 argument-count: car takes 1 argument, vl-catch-all-apply gives it 2
; Of two functions of a name either may be meant; what a variable holds is not known
(defun f (a) a) (if (f 1) (defun f (a b) (list a b))) (f 1 2) ;= -
(defun f (a) a) (setq f car) (f 1 2) ;= -
(defun g (car) (car 1 2)) ;= 1:11 shadowed-builtin: the parameter car has the name of a built-in function

; Functions that are not there
(nope 1) (mapcar 'nope '(1)) (NoPe) ;= 1:2 unknown-function: there is no function nope | 1:19 unknown-function: there is no function nope for mapcar | 1:31 unknown-function: there is no function NoPe
(setq twice (lambda (x) (+ x x))) (twice 2) (mapcar 'twice '(1)) ;= -
(defun g (f / h) (setq h f) (list (f 1) (h 2))) ;= -
(later 1) (defun later (a) a) ;= -
(autoload "x" '("walls")) (c:walls) ;= -
'(nope 1) (quote (nope 1)) '(lambda (x) (nope x)) ;= 1:42 unknown-function: there is no function nope
(eval '(nope)) ;= 1:9 unknown-function: there is no function nope

; What no evaluation takes
(5 1) ("a") (nil) ;= 1:1 malformed: this list begins with something that is no function | 1:7 malformed: this list begins with something that is no function | 1:13 malformed: this list begins with something that is no function
(setq 5 1) (setq 'a 1) (set 'a 1) ;= 1:7 malformed: only a symbol can be set | 1:18 malformed: only a symbol can be set
(cond (1) 2 ()) ;= 1:11 malformed: a clause of cond is a list: (test form...) | 1:13 malformed: a clause of cond is a list: (test form...)
(defun f (a /b) a) (defun g "x" 1) (defun "h" () 1) ;= 1:13 malformed: the / before the locals needs blanks around it | 1:29 malformed: parameters and locals are a list: (parameter... / local...) | 1:43 malformed: a function's name is a symbol
(defun f (1 a / b / c) (list a b c)) (foreach "x" '(1) 2) ;= 1:11 malformed: only a symbol can be a parameter or local | 1:19 malformed: a second / among parameters and locals | 1:47 malformed: foreach needs a symbol for the element
