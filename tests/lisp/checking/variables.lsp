; Set and not declared: told once a function
(defun f () (setq a 1) (setq a 2) (princ a)) ;= 1:19 undeclared-local: f sets a without declaring it as a local
(defun f (/ b) (mapcar '(lambda (x) (setq b x c x)) '(1)) b) ;= 1:47 undeclared-local: f sets c without declaring it as a local
(defun f () (set 'a 1)) ;= 1:19 undeclared-local: f sets a without declaring it as a local
; Globals, by name or because they are set outside
(setq a 1) (progn (setq b 1)) (defun f () (setq a 2 b 3 *c* 4)) ;= -
(foreach x '(1 2) (setq total x)) (defun f () (setq total 0)) ;= -
; A local of the function around, or of one that calls
(defun f (/ a) (defun g () (setq a 1)) (g) a) ;= -
(defun f (/ a) (g) a) (defun g () (h)) (defun h () (setq a 1)) ;= -
(defun f (/ a) (mapcar 'g '(1)) a) (defun g (x) (setq a x)) ;= -
(defun f (/ a) (g) a) (defun g () 1) (defun h () (setq a 1)) ;= 1:56 undeclared-local: h sets a without declaring it as a local
(defun f (/ a) (foreach step steps (apply step nil)) a) (setq steps '(g)) (defun g () (setq a 1)) ;= -
; The loop's own variable, and a function's
(defun f () (foreach x '(1 2) (setq x 3)) (setq x 1)) ;= 1:49 undeclared-local: f sets x without declaring it as a local
(defun f (a) (setq a 1) a) ;= -
; A dialog's actions are code of the function that shows it
(defun f (/ a) (action_tile "k" "(setq a $value)") a) ;= 1:17 unknown-function: there is no function action_tile
(defun f () (action_tile "k" "(setq a (car 1 2)")) ;= 1:14 unknown-function: there is no function action_tile | 1:30 unbalanced: in this text: a ) is missing of the form that begins here, before the end of the file | 1:30 argument-count: car takes 1 argument, not 2 | 1:30 undeclared-local: f sets a without declaring it as a local

; Declared for nothing
(defun f (a / b c) (setq c 1) (princ)) ;= 1:11 unused-parameter: the parameter a of f is never used | 1:15 unused-local: the local b of f is never used | 1:17 unused-local: the local c of f is set, but never read
(mapcar '(lambda (a b) a) '(1) '(2)) ;= -
(defun f (a b) b) (vl-sort '(1 2) 'f) ;= -
(defun f (/ *error* _b) (defun *error* (m) (princ m)) 1) ;= -
(defun f (/ a b) (setq b 1) (g)) (defun g () (princ b) (setq a 2)) ;= -
(defun f (/ a) (setq a 1) (eval (read "(princ 'a)"))) ;= -
(defun f (/ a) (setq a 1) (princ '(a b))) ;= -
(defun f (/ a) (foreach a '(1 2) (princ))) ;= -
(defun f () (mapcar '(lambda (x / y) x) '(1))) ;= 1:35 unused-local: the local y of f is never used

; Twice, and named like what is there
(defun f (a b / a c c) (list a b c)) ;= 1:17 repeated-name: a is declared twice | 1:21 repeated-name: c is declared twice
(defun f (list / type) (setq type list) type) ;= 1:11 shadowed-builtin: the parameter list has the name of a built-in function | 1:18 shadowed-builtin: the local type has the name of a built-in function
(setq t 5 car 1) (defun cdr (x) x) (defun f (pi) pi) ;= 1:7 shadowed-builtin: the variable t has the name of a constant | 1:11 shadowed-builtin: the variable car has the name of a built-in function | 1:25 shadowed-builtin: the function cdr has the name of a built-in function | 1:46 shadowed-builtin: the parameter pi has the name of a constant
(defun f () 1)\n(defun f () 2)\n(defun *error* (m) m) (defun *error* (m) m) ;= 2:8 repeated-function: f was defined in line 1 already
