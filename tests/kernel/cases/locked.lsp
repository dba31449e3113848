; What stands on a locked layer no command changes, by whatever it is chosen; on one that is frozen or off, nothing is
; found by ALL, windows or points. Each command that edits runs on each kind of entity in each way; the cases list the
; commands that changed one, and the ways.
(defun all (/ e r) (while (setq e (if e (entnext e) (entnext))) (setq r (cons e r))) (reverse r))
(defun heavy (k c) (list (cons 0 k) '(100 . "AcDbEntity") '(8 . "L") (cons 100 c)))
(foreach e (list '((0 . "LAYER") (100 . "AcDbSymbolTableRecord") (100 . "AcDbLayerTableRecord") (2 . "L") (70 . 0) (62 . 3) (6 . "Continuous"))
  '((0 . "BLOCK") (2 . "Tag") (70 . 2) (10 0.0 0.0 0.0)) '((0 . "LINE") (10 0.0 0.0 0.0) (11 1.0 0.0 0.0))
  '((0 . "ATTDEF") (8 . "L") (10 1.0 0.0 0.0) (40 . 1.0) (1 . "7") (2 . "NO") (3 . "Number") (70 . 0)) '((0 . "ENDBLK"))
  '((0 . "LINE") (8 . "L") (10 0.0 0.0 0.0) (11 10.0 0.0 0.0)) '((0 . "CIRCLE") (8 . "L") (10 20.0 0.0 0.0) (40 . 3.0))
  '((0 . "ARC") (8 . "L") (10 30.0 0.0 0.0) (40 . 3.0) (50 . 0.0) (51 . 2.0))
  '((0 . "TEXT") (8 . "L") (10 40.0 0.0 0.0) (40 . 1.0) (1 . "Text"))
  (append (heavy "MTEXT" "AcDbMText") '((10 50.0 0.0 0.0) (40 . 1.0) (41 . 5.0) (71 . 1) (1 . "One")))
  (append (heavy "LWPOLYLINE" "AcDbPolyline") '((90 . 3) (70 . 0) (10 0.0 20.0) (10 8.0 20.0) (10 8.0 28.0)))
  (append (heavy "ELLIPSE" "AcDbEllipse") '((10 60.0 0.0 0.0) (11 3.0 0.0 0.0) (40 . 0.5) (41 . 0.0) (42 . 4.0))))
  (entmake e))
(setvar "CLAYER" "L")
(command "-HATCH" "_S" (ssname (ssget "X" '((0 . "CIRCLE"))) 0) "" "")
(command "SPLINE" '(70 0) '(72 3) '(75 1) "" "" "")
(command "DIMLINEAR" '(0 20) '(8 20) '(4 15))
(command "-INSERT" "Tag" '(80 0) 1 1 0 "7")
(command "LEADER" '(0 30) '(5 35) "" "Note" "")
(setvar "CLAYER" "0")
(command "ZOOM" "_E")
(setq subjects (all) free (entmakex '((0 . "LINE") (8 . "0") (10 3.0 -9.0 0.0) (11 3.0 29.0 0.0))))
(setq edits '(("ERASE" s "") ("MOVE" s "" (0 0) (5 5)) ("ROTATE" s "" (0 0) 45) ("SCALE" s "" (0 0) 2) ("MIRROR" s "" (0 0) (0 1) "_Y")
  ("STRETCH" s "" (0 0) (5 5)) ("STRETCH" "_C" (-99 -99) (99 99) "" (0 0) (5 5)) ("CHPROP" s "" "_C" 1 "") ("CHANGE" s "" "_P" "_C" 1 "")
  ("CHANGE" s "" (9 9)) ("EXPLODE" s "") ("ARRAY" s "" "_P" (300 300) 3 360 "_Y") ("ALIGN" s "" (0 0) (5 5) "") ("TRIM" f "" p "") ("EXTEND" f "" p "")
  ("BREAK" p (7 0)) ("FILLET" p f2) ("CHAMFER" p f2) ("PEDIT" p "_W" 2 "") ("PEDIT" p "_Y" "_W" 2 "") ("LENGTHEN" "_DE" 1 p "")
  ("JOIN" s "") ("-HATCHEDIT" p "_P" "_S") ("DDEDIT" p "new" "") ("MATCHPROP" f s "") ("-OVERKILL" s "" "") ("CHSPACE" s "") ("TXT2MTXT" s "")
  ("DIMEDIT" "_N" "x" s "") ("DIMTEDIT" p (9 9)) ("-DIMSTYLE" "_A" s "") ("-ATTEDIT" "_Y" "*" "*" "*" s "" "_V" "_R" "9" "") ("-BLOCK" "B" (0 0) s "")
  ("CUTCLIP" s "") ("LAYCUR" s "") ("LAYMCH" s "" f) ("3DMOVE" s "" (0 0) (5 5)) ("ROTATE3D" s "" "_Z" (0 0) 45) ("MIRROR3D" s "" "_XY" (0 0) "_Y")
  ("REVCLOUD" "_O" p "_N") ("OFFSET" "_E" "_Y" 1 p (500 500) "")))
(defun place (e / d k)
  (setq d (entget e) k (cdr (assoc 0 d)))
  (mapcar '+ (cdr (assoc 10 d)) (if (member k '("CIRCLE" "ARC" "ELLIPSE")) '(3 0) '(0 0))))
(defun chosen (row s p)
  (mapcar '(lambda (a) (cond ((= a 's) s) ((= a 'p) p) ((= a 'f) free) ((= a 'f2) (list free '(3 6))) (T a))) row))
(defun state () (mapcar '(lambda (e) (entget e '("*"))) (cons free subjects)))
(defun try (row way s p)
  (vl-catch-all-apply 'command (chosen row s p))
  (command)
  (if (not (equal (cdr was) (cdr (state)))) (setq changed (cons (list (car row) way) changed)))
  (if (not (equal was (state))) (command "UNDO" 1)))
(defun changes (ways / was changed)
  (setvar "CMDECHO" 0)
  (setq was (state))
  (foreach row edits
    (if (member 'all ways) (try row 'all "_ALL" '(-90 -90)))
    (if (member 'window ways) (try row 'window '(-99 -99) '(99 99)))
    (foreach e subjects
      (if (member 'name ways) (try row 'name e (list e (place e))))
      (if (member 'set ways) (try row 'set (ssadd e) (list e (place e))))
      (if (member 'point ways) (try row 'point (place e) (place e)))))
  changed)
(defun layer-is (words) (apply 'command (append '("-LAYER") words '(""))))

(> (length (changes '(name))) 60) ;= T

(layer-is '("_LO" "L")) (changes '(name set all window point)) ;= nil

(layer-is '("_F" "L")) (changes '(all window point)) ;= nil

(layer-is '("_OFF" "L")) (changes '(window point)) ;= nil

; As edges to trim by: all that is shown, what ALL chooses, and what a program names.
(command "-LAYER" "_N" "E" "")(setq cut (entmakex '((0 . "LINE") (8 . "E") (10 105.0 -5.0 0.0) (11 105.0 5.0 0.0))))(command "LINE" '(100 0) '(109 0) "")
(setq long (entlast))(defun trims (edge / was) (setq was (entget long))(apply 'command (append '("TRIM") (if edge (list edge "") '("")) '((108 0) "")))(if (equal was (entget long)) nil (progn (command "UNDO" 1) T)))
(mapcar '(lambda (how) (command "-LAYER" "_T" "E" "_U" "E" "_ON" "E" how "E" "") (mapcar 'trims (list nil "_ALL" cut))) '("_LO" "_F" "_OFF"))
;= ((T nil T) (nil nil T) (nil T T))
