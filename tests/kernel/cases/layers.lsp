; What LAYUNISO and LAYERP give back; layers that came since stay
(defun bits () (mapcar '(lambda (n) (cdr (assoc 70 (tblsearch "LAYER" n)))) '("0" "A")))
(entmake '((0 . "POINT") (8 . "A") (10 1.0 1.0 0.0)))(command "LAYISO" (entlast) "")(list (bits) (getvar "CLAYER")) ;= ((4 0) "A")
(command "-LAYER" "N" "B" "C" "3" "B" "")(command "LAYUNISO")(list (bits) (getvar "CLAYER") (cdr (assoc 62 (tblsearch "LAYER" "B")))) ;= ((0 0) "0" 3)
(command "LAYUNISO") ;> No layers are isolated ;= nil
(command "LAYERP")(list (bits) (getvar "CLAYER")) ;= ((4 0) "A")
(command "LAYERP" "LAYERP")(list (bits) (getvar "CLAYER")) ;= ((0 0) "0")
(command "LAYERP") ;> There is no previous state of the layers ;= nil
; Through a viewport the picked layer leaves this viewport alone
(setvar "CTAB" "Layout1")(command "MVIEW" '(0 0) '(10 10) "MVIEW" '(20 0) '(30 10) "MSPACE")
(defun frozen-in (n) (vl-some '(lambda (f) (if (= (car f) 331) T)) (entget (ssname (ssget "X" (list (cons 69 n))) 0))))
(command "LAYFRZ" (ssname (ssget "A") 0) "")(list (getvar "CVPORT") (bits) (frozen-in 2) (frozen-in 3)) ;= (2 (0 0) T nil)
(command "LAYVPI" (ssname (ssget "A") 0) "")(frozen-in 3) ;= T
