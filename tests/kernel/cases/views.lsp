; What is remembered from one command to the next: each space has its own systems
(defun origin () (car (list (getvar "UCSORG"))))
(command "UCS" "O" '(7 0 0) "UCS" "O" '(7 0 0))(origin) ;= (14.0 0.0 0.0)
(command "UCS" "P")(origin) ;= (7.0 0.0 0.0)
(command "UCS" "P")(list (origin) (getvar "WORLDUCS")) ;= ((0.0 0.0 0.0) 1)
(command "UCS" "P") ;> No previous coordinate system saved ;= nil
; Model space through a viewport: its own coordinates, entities and view, until the sheet is gone back to
(command "LINE" '(0 0) '(40 20) "")(setvar "CTAB" "Layout1")(command "MVIEW" '(0 0) '(100 50))(getvar "CVPORT") ;= 1
(command "UCS" "O" '(5 5))(trans '(0 0 0) 1 0) ;= (5.0 5.0 0.0)
(command "MSPACE")(list (getvar "CVPORT") (getvar "TILEMODE") (getvar "CTAB") (trans '(0 0 0) 1 0)) ;= (2 0 "Layout1" (0.0 0.0 0.0))
(sslength (ssget "A")) ;= 1
(entmake '((0 . "POINT") (10 1.0 1.0 0.0)))(cdr (assoc 410 (entget (entlast)))) ;= "Model"
(command "CIRCLE" '(10 10) 2)(cdr (assoc 410 (entget (entlast)))) ;= "Model"
(command "MSPACE") ;> Already in model space ;= nil
(command "PSPACE")(command "CIRCLE" '(10 10) 2)(mapcar '(lambda (c) (cdr (assoc c (entget (entlast))))) '(410 10)) ;= ("Layout1" (15.0 15.0 0.0))
(command "PSPACE") ;> Already in paper space ;= nil
(command "MSPACE")(command "ERASE" (ssget "X" '((0 . "VIEWPORT"))) "")(getvar "CVPORT") ;= 1
(command "U")(setvar "CTAB" "Model")(setvar "CTAB" "Layout1")(getvar "CVPORT") ;= 1

; The viewport to work in, by its number
(setvar "CTAB" "Layout1")(command "MVIEW" '(0 0) '(100 100))(command "MVIEW" '(200 0) '(300 100))(getvar "CVPORT") ;= 1
(setvar "CVPORT" 3)(list (getvar "CVPORT") (getvar "CTAB")) ;= (3 "Layout1")
(setvar "CVPORT" 2)(command "LINE" '(0 0) '(1 1) "")(cdr (assoc 410 (entget (entlast)))) ;= "Model"
(setvar "CVPORT" 1)(command "LINE" '(0 0) '(1 1) "")(cdr (assoc 410 (entget (entlast)))) ;= "Layout1"
; Without numbers, as in layouts that no program has shown yet, their places count
(defun unnumbered (e / d) (setq d (entget e))(entmod (subst '(69 . 0) (assoc 69 d) (subst '(68 . 0) (assoc 68 d) d))))
(mapcar '(lambda (i) (unnumbered (ssname (ssget "X" '((0 . "VIEWPORT"))) i))) '(0 1))(list (mapcar 'car (vports)) (setvar "CVPORT" 3) (getvar "CVPORT")) ;= ((1 2 3) 3 3)
(setvar "CVPORT" 1) ;= 1
(setvar "CVPORT" 9) ;= error: variable setting rejected: "CVPORT" 9 (out of range) in (SETVAR)
(setvar "CTAB" "Model")(setvar "CVPORT" 2) ;= 2
