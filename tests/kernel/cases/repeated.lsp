; A command that is repeated until it is cancelled; each time is a step
(defun points () (if (ssget "X" '((0 . "POINT"))) (sslength (ssget "X" '((0 . "POINT")))) 0))
(command "_.MULTIPLE" "_.POINT" '(1 1) '(2 2))(list (getvar "CMDNAMES") (points)) ;= ("POINT" 2)
(command "_.MULTIPLE" "_.POINT" '(1 1))(command '(3 3) nil)(list (getvar "CMDNAMES") (points)) ;= ("" 4)
(command "_.U")(points) ;= 2
(command "_.MULTIPLE" "_.LINE" '(0 0) '(1 0) "" '(5 5) '(6 6) nil)(list (getvar "CMDNAMES") (cdr (assoc 11 (entget (entlast))))) ;= ("" (6.0 6.0 0.0))
(command "_.MULTIPLE" "_.REGEN")(getvar "CMDNAMES") ;= ""
(command "_.MULTIPLE" "_.MULTIPLE" "_.CIRCLE" '(0 0) 1 '(9 9) 2 nil)(cdr (assoc 40 (entget (entlast)))) ;= 2.0
(command "_.MULTIPLE" "_.CIRCLE" '(0 0) 3 '(9 9) "wide" nil)(list (getvar "CMDNAMES") (cdr (assoc 40 (entget (entlast))))) ;= ("" 3.0)
