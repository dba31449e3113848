; The box around what an entity draws. NEST shows a round of radius 2 at half size and turned.
(defun insert (name more) (append (list '(0 . "INSERT") (cons 2 name)) more))
(defun block (name entities)
  (entmake (list '(0 . "BLOCK") (cons 2 name) '(70 . 0) '(10 1.0 0.0 0.0)))
  (mapcar 'entmake entities)
  (entmake '((0 . "ENDBLK"))))
(defun around (e low high) (or (equal (acet-ent-geomextents e) (list low high) 1e-6) (acet-ent-geomextents e)))
(block "ROUND" '(((0 . "CIRCLE") (10 1.0 0.0 0.0) (40 . 2.0))))
(block "NEST" (list (insert "ROUND" '((10 1.0 0.0 0.0) (41 . 0.5) (42 . 0.5) (50 . 0.7)))))

; An elliptical arc ends before the axis
(setq e (entmakex '((0 . "ELLIPSE") (10 0.0 0.0 0.0) (11 4.0 0.0 0.0) (40 . 0.5) (41 . 0.0) (42 . 1.5707963268))))
(around e '(0.0 0.0 0.0) '(4.0 2.0 0.0)) ;= T
; The first point of an old polyline is none
(entmake '((0 . "POLYLINE") (66 . 1) (10 0.0 0.0 5.0)))(entmake '((0 . "VERTEX") (10 7.0 1.0 5.0) (42 . 1.0)))
(entmake '((0 . "VERTEX") (10 9.0 1.0 5.0)))(entmake '((0 . "SEQEND")))
(acet-ent-geomextents (entlast)) ;= ((7.0 0.0 5.0) (9.0 1.0 5.0))
; A text turned by a quarter; blanks and lines without end have none
(setq e (entmakex (list '(0 . "TEXT") '(10 0.0 0.0 0.0) '(40 . 2.5) '(1 . "Höhe") (cons 50 (/ pi 2)))))
(setq b (textbox (entget e)) s (cadr b) l (car b))
(around e (list (- (cadr s)) (car l) 0.0) (list (- (cadr l)) (car s) 0.0)) ;= T
(acet-ent-geomextents (entmakex '((0 . "TEXT") (10 3.0 3.0 0.0) (40 . 1.0) (1 . "  ")))) ;= nil
(setq e (entmakex '((0 . "XLINE") (100 . "AcDbEntity") (100 . "AcDbXline") (10 0.0 0.0 0.0) (11 1.0 0.0 0.0))))
(acet-ent-geomextents e) ;= nil
; Turned and mirrored blocks, all cells of an array
(setq e (entmakex (insert "NEST" '((10 10.0 20.0 0.0) (41 . -2.0) (42 . 2.0) (43 . 2.0) (50 . 0.9)))))
(around e '(8.0 18.0 0.0) '(12.0 22.0 0.0)) ;= T
(setq e (entmakex (insert "ROUND" '((10 0.0 0.0 0.0) (70 . 3) (44 . 10.0) (71 . 2) (45 . -5.0)))))
(around e '(-2.0 -7.0 0.0) '(22.0 2.0 0.0)) ;= T
; An attribute's definition is not seen in its block, one that is hidden nowhere
(block "TAGGED" '(((0 . "ATTDEF") (10 50.0 0.0 0.0) (40 . 1.0) (1 . "") (2 . "T") (3 . "") (70 . 0))
                  ((0 . "LINE") (10 0.0 0.0 0.0) (11 1.0 1.0 0.0)) ((0 . "LINE") (60 . 1) (10 0.0 0.0 0.0) (11 9.0 9.0 0.0))))
(around (entmakex (insert "TAGGED" '((10 0.0 0.0 0.0)))) '(-1.0 0.0 0.0) '(0.0 1.0 0.0)) ;= T
; An entity of a block is seen there, and a change of it from outside
(setq e (cdr (assoc -2 (tblsearch "BLOCK" "ROUND"))) i (entmakex (insert "NEST" '((10 0.0 0.0 0.0)))))
(around i '(-1.0 -1.0 0.0) '(1.0 1.0 0.0)) ;= T
(entmod (subst '(40 . 4.0) '(40 . 2.0) (entget e)))
(list (around e '(-3.0 -4.0 0.0) '(5.0 4.0 0.0)) (around i '(-2.0 -2.0 0.0) '(2.0 2.0 0.0))) ;= (T T)
; A hatch reaches to its boundary
(setq e (entmakex '((0 . "HATCH") (100 . "AcDbEntity") (100 . "AcDbHatch") (10 0.0 0.0 0.0) (210 0.0 0.0 1.0)
  (2 . "LINE") (70 . 0) (71 . 0) (91 . 1) (92 . 2) (72 . 0) (73 . 1) (93 . 3) (10 0.0 0.0) (10 4.0 0.0) (10 0.0 3.0)
  (97 . 0) (75 . 0) (76 . 1) (52 . 0.0) (41 . 1.0) (77 . 0) (78 . 1) (53 . 0.0) (43 . 0.0) (44 . 0.0) (45 . 0.0)
  (46 . 2.0) (79 . 0) (98 . 0))))
(acet-ent-geomextents e) ;= ((0.0 0.0 0.0) (4.0 3.0 0.0))
