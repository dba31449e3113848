;;; Draws a3.dxf: a title block for sheets of A3, as offices keep one.
;;;
;;;   cd samples/sheets && ../../build/dev/bin/ortakit lisp a3.lsp
;;;
;;; Lengths are in millimetres; the lower left corner of the sheet is the origin. The frame leaves room for binding on the
;;; left. Title and number of the sheet are asked for when the title block is inserted.

(defun a3:box (x1 y1 x2 y2)
  (entmake (list '(0 . "LWPOLYLINE") '(100 . "AcDbEntity") '(8 . "0") '(100 . "AcDbPolyline") '(90 . 4) '(70 . 1)
                 (list 10 x1 y1) (list 10 x2 y1) (list 10 x2 y2) (list 10 x1 y2))))

(defun a3:field (x y tag asking preset)
  (entmake (list '(0 . "ATTDEF") '(8 . "0") (list 10 x y 0.0) '(40 . 5.0) (cons 1 preset) (cons 3 asking) (cons 2 tag)
                 '(70 . 0))))

(setvar "INSUNITS" 4)
(a3:box 0.0 0.0 420.0 297.0)
(a3:box 20.0 10.0 410.0 287.0)
(a3:box 260.0 10.0 410.0 40.0)
(entmake '((0 . "LINE") (8 . "0") (10 260.0 25.0 0.0) (11 410.0 25.0 0.0)))
(a3:field 264.0 30.0 "TITLE" "Title of the sheet" "")
(a3:field 264.0 15.0 "NUMBER" "Number of the sheet" "1")
(command "_.SAVEAS" "a3.dxf")
(princ)
