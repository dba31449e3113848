; Sheets that rest in their blocks are drawn on and looked at like the one in use.
(command "LAYOUT" "N" "Plan" "LAYOUT" "N" "Detail")(setvar "CTAB" "PLAN") ;= "PLAN"
(list (getvar "CTAB") (getvar "TILEMODE")) ;= ("Plan" 0)
(command "LINE" '(1 2) '(3 4) "")(setq e (entlast))(mapcar '(lambda (c) (cdr (assoc c (entget e)))) '(0 67 410)) ;= ("LINE" 1 "Plan")
(entmake '((0 . "POINT") (10 50.0 60.0 0.0)))(cdr (assoc 410 (entget (entlast)))) ;= "Plan"
(entmake '((0 . "POINT") (67 . 0) (10 5.0 6.0 0.0)))(sslength (ssget "X" '((410 . "Model")))) ;= 1
(entmake '((0 . "POINT") (410 . "detail") (10 9.0 9.0 0.0)))(sslength (ssget "X" '((410 . "Detail")))) ;= 1
(list (sslength (ssget "A")) (sslength (ssget "W" '(0 0) '(5 5))) (getvar "EXTMAX")) ;= (2 1 (50.0 60.0 0.0))
(command "COPY" e "" '(0 0) '(10 0))(sslength (ssget "X" '((410 . "Plan")))) ;= 3
(command "ERASE" "L" "")(sslength (ssget "X" '((410 . "Plan")))) ;= 2
(setvar "LIMMAX" '(11 12))(setvar "CTAB" "Layout1")(setvar "LIMMAX" '(21 22))(setvar "CTAB" "plan")(getvar "LIMMAX") ;= (11.0 12.0)
(setvar "CTAB" "detail")(list (getvar "CTAB") (sslength (ssget "A"))) ;= ("Detail" 1)
(setvar "CTAB" "other") ;= error: variable setting rejected: "CTAB" "other" (out of range) in (SETVAR)
(setvar "TILEMODE" 1)(list (getvar "CTAB") (sslength (ssget "A"))) ;= ("Model" 1)
(setvar "TILEMODE" 0)(getvar "CTAB") ;= "Detail"
(command "LAYOUT" "R" "Detail" "More")(getvar "CTAB") ;= "More"
(command "LAYOUT" "D" "More")(getvar "CTAB") ;= "Layout1"
(command "U")(getvar "CTAB") ;= "More"

; Each keeps its view
(command "LAYOUT" "N" "Plan")(command "ZOOM" "C" '(5 6) 70)(setvar "CTAB" "Plan") ;= "Plan"
(command "ZOOM" "C" '(100 200) 30)(setvar "CTAB" "Model")(list (getvar "VIEWCTR") (getvar "VIEWSIZE")) ;= ((5.0 6.0 0.0) 70.0)
(setvar "CTAB" "Plan")(list (getvar "VIEWCTR") (getvar "VIEWSIZE")) ;= ((100.0 200.0 0.0) 30.0)

; Sheets go to files and come from them, without what is in model space
(command "LINE" '(0 0) '(9 9) "" "LAYOUT" "N" "Plan" "LAYOUT" "S" "Plan" "LINE" '(1 2) '(3 4) "")(null (setq f (strcat dir "plan.dxf"))) ;= nil
(command "LAYOUT" "SA" "Plan" (strcat dir "plan"))(if (findfile f) T) ;= T
(command "LAYOUT" "T" f "*")(layoutlist) ;= ("Layout1" "Plan" "Plan (2)")
(setvar "CTAB" "Plan (2)")(setq s (ssget "A"))(list (sslength s) (cdr (assoc 10 (entget (ssname s 0))))) ;= (1 (1.0 2.0 0.0))
(sslength (ssget "X" '((410 . "Model")))) ;= 1
(command "LAYOUT" "T" f "None") ;> Layout "None" not found ;= nil
