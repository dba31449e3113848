;;; Puts blocks into the drawing it is loaded in, which is commonly plan.dxf, and insertions of them into the rooms.
;;;
;;; Lengths are in metres; each block stands around its base point. Two of them have numbers for names, as the parts of
;;; a maker's catalogue do.

(defun furniture:block (name entities)
  (entmake (list '(0 . "BLOCK") (cons 2 name) '(70 . 0) '(10 0.0 0.0 0.0)))
  (foreach entity entities (entmake entity))
  (entmake '((0 . "ENDBLK"))))

(defun furniture:line (x1 y1 x2 y2)
  (list '(0 . "LINE") '(8 . "0") (list 10 x1 y1 0.0) (list 11 x2 y2 0.0)))

(defun furniture:box (x1 y1 x2 y2)
  (list '(0 . "LWPOLYLINE") '(100 . "AcDbEntity") '(8 . "0") '(100 . "AcDbPolyline") '(90 . 4) '(70 . 1)
        (list 10 x1 y1) (list 10 x2 y1) (list 10 x2 y2) (list 10 x1 y2)))

(defun furniture:circle (radius colour)
  (list '(0 . "CIRCLE") '(8 . "0") (cons 62 colour) '(10 0.0 0.0 0.0) (cons 40 radius)))

;; Lines from the middle to a circle.
(defun furniture:spokes (radius count / turn step lines)
  (setq turn 0.0 step (/ (* 2 pi) count))
  (repeat count
    (setq lines (cons (furniture:line 0.0 0.0 (* radius (cos turn)) (* radius (sin turn))) lines)
          turn  (+ turn step)))
  lines)

(defun furniture:insert (name x y)
  (entmake (list '(0 . "INSERT") '(8 . "0") (cons 2 name) (list 10 x y 0.0))))

(furniture:block "DESK" (list (furniture:box -0.8 -0.4 0.8 0.4) (furniture:box 0.3 -0.35 0.75 0.35)
                              (furniture:line 0.3 0.0 0.75 0.0)))
(furniture:block "CHAIR" (list (furniture:box -0.25 -0.25 0.25 0.25) (furniture:box -0.25 0.25 0.25 0.33)
                               (furniture:box -0.33 -0.15 -0.25 0.25) (furniture:box 0.25 -0.15 0.33 0.25)))
(furniture:block "TREE" (cons (furniture:circle 0.9 3) (furniture:spokes 0.9 12)))
(furniture:block "BUSH" (list (furniture:circle 0.5 3) (furniture:circle 0.35 94) (furniture:circle 0.2 94)))
(furniture:block "007" (append (list (furniture:circle 0.2 1)) (furniture:spokes 0.3 4)))
(furniture:block "12" (list (furniture:box -0.3 -0.3 0.3 0.3) (furniture:line -0.3 -0.3 0.3 0.3)))

(furniture:insert "DESK" 7.0 7.8)
(furniture:insert "DESK" 11.5 7.8)
(furniture:insert "CHAIR" 7.0 7.0)
(furniture:insert "CHAIR" 11.5 7.0)
(furniture:insert "TREE" 21.0 9.0)
(furniture:insert "TREE" 21.0 6.0)
(furniture:insert "BUSH" 21.0 3.5)
(furniture:insert "007" 16.0 9.5)
(furniture:insert "12" 16.0 8.0)
(princ)
