;;; Draws the title blocks that a new user finds: metric sheets in millimetres and imperial ones in inches. The lower left
;;; corner of the sheet is the origin. The frame leaves room for binding on the left; the fields stand in its lower right
;;; corner and are asked for when the title block is inserted.
;;;
;;; Called by scripts/starters in the folder where the drawings go. Lines only, so that drawings of every version take them.

(defun titleblocks:line (x1 y1 x2 y2)
  (entmake (list '(0 . "LINE") '(8 . "0") (list 10 x1 y1 0.0) (list 11 x2 y2 0.0))))

(defun titleblocks:box (x1 y1 x2 y2)
  (titleblocks:line x1 y1 x2 y1)
  (titleblocks:line x2 y1 x2 y2)
  (titleblocks:line x2 y2 x1 y2)
  (titleblocks:line x1 y2 x1 y1))

;; A small heading and below it the field that is asked for.
(defun titleblocks:field (x y row tag heading preset)
  (entmake (list '(0 . "TEXT") '(8 . "0") (list 10 (+ x (* 0.15 row)) (+ y (* 0.7 row)) 0.0) (cons 40 (* 0.18 row))
                 (cons 1 heading)))
  (entmake (list '(0 . "ATTDEF") '(8 . "0") (list 10 (+ x (* 0.15 row)) (+ y (* 0.2 row)) 0.0) (cons 40 (* 0.35 row))
                 (cons 1 preset) (cons 3 heading) (cons 2 tag) '(70 . 0))))

;; width and height are those of the sheet, row is the height of a row of fields, eighteen of which are its width; margin
;; goes around the frame, binding to its left.
(defun titleblocks:sheet (name unit width height margin binding row / x y wide entity)
  (setvar "INSUNITS" unit)
  (titleblocks:box 0.0 0.0 width height)
  (titleblocks:box binding margin (- width margin) (- height margin))
  (setq wide (* 18.0 row)
        x    (- width margin wide)
        y    margin)
  (titleblocks:line x y x (+ y (* 3.0 row)))
  (foreach number '(1.0 2.0 3.0)
    (titleblocks:line x (+ y (* number row)) (+ x wide) (+ y (* number row))))
  (titleblocks:line (+ x (* 0.7 wide)) y (+ x (* 0.7 wide)) (+ y (* 2.0 row)))
  (titleblocks:field x (+ y (* 2.0 row)) row "TITLE" "Title" "")
  (titleblocks:field x (+ y row) row "PROJECT" "Project" "")
  (titleblocks:field (+ x (* 0.7 wide)) (+ y row) row "SCALE" "Scale" "1:1")
  (titleblocks:field x y row "DRAWN" "Drawn by, date" "")
  (titleblocks:field (+ x (* 0.7 wide)) y row "NUMBER" "Sheet" "1")
  (command "_.SAVEAS" (strcat name ".dxf"))
  (while (setq entity (entnext)) (entdel entity)))

(titleblocks:sheet "metric-a4" 4 297.0 210.0 5.0 20.0 8.0)
(titleblocks:sheet "metric-a3" 4 420.0 297.0 10.0 20.0 10.0)
(titleblocks:sheet "metric-a2" 4 594.0 420.0 10.0 20.0 10.0)
(titleblocks:sheet "metric-a1" 4 841.0 594.0 10.0 20.0 10.0)
(titleblocks:sheet "imperial-a" 1 11.0 8.5 0.25 0.75 0.3125)
(titleblocks:sheet "imperial-b" 1 17.0 11.0 0.375 0.75 0.375)
(titleblocks:sheet "imperial-c" 1 22.0 17.0 0.5 0.75 0.375)
(titleblocks:sheet "imperial-d" 1 34.0 22.0 0.5 0.75 0.375)
(princ)
