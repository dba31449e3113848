;;; Draws library.dxf: a drawing of blocks to choose from, as offices keep one.
;;;
;;;   cd samples && ../build/dev/bin/ortakit lisp library.lsp
;;;
;;; Lengths are in metres; each block stands around its base point. WORKPLACE has DESK and LAMP in it and asks for the
;;; number of the place.

(defun library:block (name flags entities)
  (entmake (list '(0 . "BLOCK") (cons 2 name) (cons 70 flags) '(10 0.0 0.0 0.0)))
  (foreach entity entities (entmake entity))
  (entmake '((0 . "ENDBLK"))))

(defun library:box (x1 y1 x2 y2)
  (list '(0 . "LWPOLYLINE") '(100 . "AcDbEntity") '(8 . "0") '(100 . "AcDbPolyline") '(90 . 4) '(70 . 1)
        (list 10 x1 y1) (list 10 x2 y1) (list 10 x2 y2) (list 10 x1 y2)))

(defun library:circle (layer x y radius)
  (list '(0 . "CIRCLE") (cons 8 layer) (list 10 x y 0.0) (cons 40 radius)))

(defun library:insert (name x y)
  (list '(0 . "INSERT") '(8 . "0") (cons 2 name) (list 10 x y 0.0)))

;; A sofa for so many people.
(defun library:sofa (seats / half entities)
  (setq half (* 0.3 seats) entities (list (library:box (- 0.0 half 0.15) -0.4 (+ half 0.15) 0.45)))
  (repeat seats
    (setq entities (cons (library:box (- half 0.6) -0.4 half 0.25) entities)
          half     (- half 0.6)))
  (library:block (strcat "SOFA" (itoa seats)) 0 entities))

(entmake '((0 . "LTYPE") (100 . "AcDbSymbolTableRecord") (100 . "AcDbLinetypeTableRecord") (2 . "LAMPLINE") (70 . 0)
           (3 . "Light __ __ __") (72 . 65) (73 . 2) (40 . 0.15) (49 . 0.1) (74 . 0) (49 . -0.05) (74 . 0)))
(entmake '((0 . "LAYER") (100 . "AcDbSymbolTableRecord") (100 . "AcDbLayerTableRecord") (2 . "LAMPS") (70 . 0) (62 . 2)
           (6 . "LAMPLINE")))
(entmake '((0 . "LAYER") (100 . "AcDbSymbolTableRecord") (100 . "AcDbLayerTableRecord") (2 . "LABELS") (70 . 0) (62 . 5)
           (6 . "Continuous")))
(entmake '((0 . "STYLE") (100 . "AcDbSymbolTableRecord") (100 . "AcDbTextStyleTableRecord") (2 . "LABELS") (70 . 0)
           (40 . 0.0) (41 . 0.8) (50 . 0.0) (71 . 0) (42 . 0.2) (3 . "simplex.shx") (4 . "")))

(library:block "LAMP" 0 (list (library:circle "LAMPS" 0.0 0.0 0.2) (library:circle "LAMPS" 0.0 0.0 0.05)))
(library:block "DESK" 0 (list (library:box -0.8 -0.4 0.8 0.4) (library:box 0.3 -0.35 0.75 0.35)))
(library:block "WORKPLACE" 2
               (list (library:insert "DESK" 0.0 0.0)
                     (library:insert "LAMP" -0.5 0.1)
                     (library:circle "0" 0.0 -0.75 0.25)
                     '((0 . "ATTDEF") (100 . "AcDbEntity") (8 . "LABELS") (100 . "AcDbText") (10 -0.7 0.5 0.0) (40 . 0.2)
                       (1 . "1") (7 . "LABELS") (100 . "AcDbAttributeDefinition") (3 . "Number of the place")
                       (2 . "NUMBER") (70 . 0))))
(foreach seats '(2 3 10) (library:sofa seats))

(foreach place '(("WORKPLACE" 0.0 0.0) ("SOFA2" 4.0 0.0) ("SOFA3" 4.0 2.0) ("SOFA10" 4.0 4.0) ("LAMP" 0.0 2.0))
  (entmake (apply 'library:insert place)))
(command "_.SAVEAS" "library.dxf")
(princ)
