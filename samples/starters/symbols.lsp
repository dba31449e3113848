;;; Draws the break symbols that a new user finds: one unit wide, with their middle in the origin, so that they close the
;;; gap in a line whatever their size. They have no unit, because the tool gives them the size that is asked for.
;;;
;;; Called by scripts/starters in the folder where the drawings go.

(defun symbols:line (x1 y1 x2 y2)
  (entmake (list '(0 . "LINE") '(8 . "0") (list 10 x1 y1 0.0) (list 11 x2 y2 0.0))))

(defun symbols:arc (x y radius start end)
  (entmake (list '(0 . "ARC") '(8 . "0") (list 10 x y 0.0) (cons 40 radius) (cons 50 start) (cons 51 end))))

;; Saves what was drawn and leaves an empty drawing.
(defun symbols:save (name / entity)
  (command "_.SAVEAS" (strcat name ".dxf"))
  (while (setq entity (entnext)) (entdel entity)))

(setvar "INSUNITS" 0)

(symbols:line -0.5 0.0 -0.25 0.0)
(symbols:line -0.25 0.0 -0.125 0.45)
(symbols:line -0.125 0.45 0.125 -0.45)
(symbols:line 0.125 -0.45 0.25 0.0)
(symbols:line 0.25 0.0 0.5 0.0)
(symbols:save "zigzag")

(symbols:arc -0.25 0.0 0.25 0.0 pi)
(symbols:arc 0.25 0.0 0.25 pi 0.0)
(symbols:save "wave")

(symbols:line -0.5 0.0 -0.15 0.0)
(symbols:line 0.15 0.0 0.5 0.0)
(symbols:line -0.3 -0.45 0.0 0.45)
(symbols:line 0.0 -0.45 0.3 0.45)
(symbols:save "strokes")

;; A cut pipe: its outline bends to one side and closes on the other.
(symbols:arc -0.25 -0.25 0.3536 (* 0.25 pi) (* 0.75 pi))
(symbols:arc 0.25 0.25 0.3536 (* 1.25 pi) (* 1.75 pi))
(symbols:arc 0.25 -0.25 0.3536 (* 0.25 pi) (* 0.75 pi))
(symbols:save "pipe")

(symbols:line -0.5 0.0 0.5 0.0)
(symbols:line -0.25 -0.25 0.25 0.25)
(symbols:save "cross")
(princ)
