; An error is caught
(list (vl-catch-all-apply '(lambda () 5)) (vl-catch-all-apply '+)) ;= (5 0)
(list (vl-catch-all-apply '+ '(1 2)) (vl-catch-all-error-p (vl-catch-all-apply '/ '(1 0))) (vl-catch-all-error-p 5))
;= (3 T nil)
(mapcar '(lambda (f) (vl-catch-all-error-message (vl-catch-all-apply f '(1 0)))) '(/ nofunction exit boom cancel))
;= ("divide by zero" "no function definition: NOFUNCTION" "too many arguments" "disk on fire" "Function cancelled")
(vl-catch-all-error-message (vl-catch-all-apply 'exit nil)) ;= "quit / exit abort"
(vl-catch-all-error-message 5) ;= ! bad argument type: errorp 5 in (VL-CATCH-ALL-ERROR-MESSAGE), argument 1
(defun f () (1+ (f))) (vl-catch-all-error-message (vl-catch-all-apply 'f nil)) ;= "stack overflow"
(exit) ;= ! quit / exit abort in (EXIT)
(vl-exit-with-error "my own") ;= ! my own in (VL-EXIT-WITH-ERROR)
(boom 1 0) ;= ! disk on fire in (BOOM)

; Variables are what they were after an error
(setq a 1 b 2) (defun f (a / b) (setq b 5) (car a))
(f 7) ;= ! bad argument type: listp 7 in (CAR), argument 1
(list a b (vl-catch-all-error-p (vl-catch-all-apply 'f '(5))) a b) ;= (1 2 T 1 2)
(foreach a '(8 9) (car 5)) ;= ! bad argument type: listp 5 in (CAR), argument 1
a ;= 1

; Huge arguments are shown short
(setq l nil) (repeat 100000 (setq l (cons "xxxx" l))) nil ;= nil
(< (strlen (vl-catch-all-error-message (vl-catch-all-apply '+ (list 1 l)))) 300) ;= T
(setq s "ää") (repeat 12 (setq s (strcat s s))) (< (strlen (vl-catch-all-error-message (vl-catch-all-apply '+ (list 1 s)))) 300) ;= T

; The handler runs before variables are restored, and sees the innermost binding of a name
(setq osnap 33)
(defun c:tool (/ saved *error*)
  (setq saved osnap osnap 0)
  (defun *error* (message) (setq osnap saved seen message) (princ))
  (helper))
(defun helper (/ saved) (setq saved2 1) (car 5))
(c:tool) ;= !! bad argument type: listp 5 in (CAR), argument 1
(list seen osnap *error*) ;= ("bad argument type: listp 5" nil nil)

; It sees the locals of the function that failed, whatever failed
(defun *error* (message) (prin1 (list saved message))) (defun deep () (1+ (deep)))
(defun tool (/ saved) (setq saved 33) (car 5))
(tool) ;> (33 "bad argument type: listp 5") ;= !! bad argument type: listp 5 in (CAR), argument 1
(defun tool (/ saved) (setq saved 33) (nofunction))
(tool) ;> (33 "no function definition: NOFUNCTION") ;= !! no function definition: NOFUNCTION
(defun tool (/ saved) (setq saved 33) (foreach 5 5 5))
(tool) ;> (33 "bad argument type: symbolp 5") ;= !! bad argument type: symbolp 5 in (FOREACH), argument 1
(defun tool (/ saved) (setq saved 33) (tool 1))
(tool) ;> (33 "too many arguments") ;= !! too many arguments in (TOOL)
(defun tool (/ saved) (setq saved 33) (exit))
(tool) ;> (33 "quit / exit abort") ;= !! quit / exit abort in (EXIT)
(defun tool (/ saved) (setq saved 33) (mapcar '(lambda (x) (+ x "a")) '(1)))
(tool) ;> (33 "bad argument type: numberp: \\"a\\"") ;= !! bad argument type: numberp: "a" in (+), argument 2
(defun tool (/ saved) (setq saved 33) (read "("))
(tool) ;> (33 "malformed list on input") ;= !! malformed list on input in (READ)
(defun tool (/ saved) (setq saved 33) (deep))
(tool) ;> (33 "stack overflow") ;= !! stack overflow
(defun tool (/ saved) (setq saved 33) (vl-catch-all-apply 'car '(5)) (/ 1 0))
(tool) ;> (33 "divide by zero") ;= !! divide by zero in (/)

; It is called once, and not for errors that are caught
(setq count 0) (defun *error* (m) (setq count (1+ count)))
(vl-catch-all-apply 'car '(5)) count ;= 0
(defun f () (mapcar '(lambda (x) (apply 'car (list x))) '(5)))
(eval '(f)) ;= !! bad argument type: listp 5 in (CAR), argument 1
count ;= 1
(vl-catch-all-apply '(lambda () 1) nil) (car 5) ;= !! bad argument type: listp 5 in (CAR), argument 1
count ;= 2

; An error of its own ends there
(defun *error* (m) (setq seen m) (car m)) (/ 1 0) ;> bad argument type: listp "divide by zero" ;= !! divide by zero in (/)
(defun *error* (m) (exit)) (/ 1 0) ;= !! divide by zero in (/)
(defun *error* (m) (setq seen (vl-catch-all-error-message (vl-catch-all-apply 'car '(7)))))
(/ 1 0) ;= !! divide by zero in (/)
seen ;= "bad argument type: listp 7"
