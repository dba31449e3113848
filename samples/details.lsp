;;; Draws details.dxf: a sheet with the detail of a wall, to be merged with the plan's.
;;;
;;;   cd samples && ../build/dev/bin/ortakit lisp details.lsp
;;;
;;; Lengths are in metres, on the sheet in millimetres. The layer WALLS has another color than in plan.dxf.

(defun details:line (layer from to)
  (entmake (list '(0 . "LINE") (cons 8 layer) (cons 10 from) (cons 11 to))))

(defun details:brick (x y)
  (entmake (list '(0 . "INSERT") '(8 . "WALLS") '(2 . "BRICK") (list 10 x y 0.0))))

(entmake '((0 . "LAYER") (100 . "AcDbSymbolTableRecord") (100 . "AcDbLayerTableRecord") (2 . "WALLS") (70 . 0) (62 . 1)
           (6 . "Continuous")))
(entmake '((0 . "BLOCK") (2 . "BRICK") (70 . 0) (10 0.0 0.0 0.0)))
(entmake '((0 . "LWPOLYLINE") (100 . "AcDbEntity") (8 . "0") (100 . "AcDbPolyline") (90 . 4) (70 . 1) (10 0.0 0.0)
           (10 0.24 0.0) (10 0.24 0.07) (10 0.0 0.07)))
(entmake '((0 . "ENDBLK")))
(foreach row '(0 1 2 3 4 5)
  (foreach column '(0 1)
    (details:brick (+ (* 0.25 column) (* 0.125 (rem row 2))) (* 0.08 row))))
(details:line "WALLS" '(-0.1 -0.05 0.0) '(0.8 -0.05 0.0))

(setvar "TILEMODE" 0)
(kora_make_viewports '(((20.0 50.0) (400.0 280.0))))
(entmake (list '(0 . "TEXT") '(67 . 1) '(410 . "Layout1") '(8 . "0") '(10 20.0 20.0 0.0) '(40 . 10.0)
               '(1 . "Detail of the wall")))
(setvar "TILEMODE" 1)
(command "_.SAVEAS" "details.dxf")
(princ)
