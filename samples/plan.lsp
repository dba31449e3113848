;;; Draws plan.dxf: a small site office with a service pipe that is long enough to be broken.
;;;
;;;   cd samples && ../build/dev/bin/ortakit lisp plan.lsp
;;;
;;; Lengths are in metres.

(defun plan:layer (name colour linetype)
  (entmake (list '(0 . "LAYER") (cons 2 name) '(70 . 0) (cons 62 colour) (cons 6 linetype))))

(defun plan:line (layer from to)
  (entmake (list '(0 . "LINE") (cons 8 layer) (cons 10 from) (cons 11 to))))

(defun plan:wall (from to width / across)
  (setq across (polar '(0.0 0.0 0.0) (+ (angle from to) (/ pi 2)) (/ width 2)))
  (plan:line "WALLS" (mapcar '+ from across) (mapcar '+ to across))
  (plan:line "WALLS" (mapcar '- from across) (mapcar '- to across)))

(defun plan:polyline (layer closed points)
  (entmake (append (list '(0 . "LWPOLYLINE") (cons 8 layer) (cons 90 (length points)) (cons 70 (if closed 1 0)))
                   (mapcar '(lambda (point) (cons 10 point)) points))))

(defun plan:text (layer point height text)
  (entmake (list '(0 . "TEXT") (cons 8 layer) (cons 10 point) (cons 40 height) (cons 1 text))))

;; A door: the leaf, and the arc it sweeps.
(defun plan:door (hinge width turn)
  (plan:line "DOORS" hinge (polar hinge (+ turn (/ pi 2)) width))
  (entmake (list '(0 . "ARC") '(8 . "DOORS") (cons 10 hinge) (cons 40 width) (cons 50 turn)
                 (cons 51 (+ turn (/ pi 2))))))

(defun plan:draw ()
  (plan:layer "WALLS" 7 "Continuous")
  (plan:layer "DOORS" 3 "Continuous")
  (plan:layer "PIPES" 5 "Continuous")
  (plan:layer "SITE" 8 "Continuous")
  (plan:layer "TEXT" 2 "Continuous")
  (plan:polyline "WALLS" T '((4.0 3.0) (14.0 3.0) (14.0 9.0) (4.0 9.0)))
  (plan:polyline "WALLS" T '((4.3 3.3) (13.7 3.3) (13.7 8.7) (4.3 8.7)))
  (plan:wall '(9.0 3.3 0.0) '(9.0 8.7 0.0) 0.2)
  (plan:door '(5.0 3.3 0.0) 0.9 0.0)
  (plan:door '(10.0 3.3 0.0) 0.9 0.0)
  (plan:text "TEXT" '(5.4 6.0 0.0) 0.35 "Office")
  (plan:text "TEXT" '(10.6 6.0 0.0) 0.35 "Store")
  (plan:text "TEXT" '(15.2 1.75 0.0) 0.3 "Water DN 100")
  (plan:line "PIPES" '(0.0 1.5 0.0) '(24.0 1.5 0.0))
  (plan:line "PIPES" '(18.0 1.5 0.0) '(18.0 11.0 0.0))
  (plan:polyline "SITE" T '((-1.0 0.0) (25.0 0.0) (25.0 11.5) (-1.0 11.5)))
  (entmake '((0 . "CIRCLE") (8 . "PIPES") (10 18.0 1.5 0.0) (40 . 0.25)))
  (princ))

(plan:draw)
(command "_.SAVEAS" "plan.dxf")
(princ)
