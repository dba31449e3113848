;;; Where texts stand. A box is a list (middle width height turn): the middle and the turn, in radians, are in the
;;; entity's own coordinate system, whose Z axis is its normal.

;; (kora_normal data) -> the extrusion direction of an entity.
(defun kora_normal (data) (cond ((kora_field data 210)) ('(0.0 0.0 1.0))))

;; (kora_is_anchored data) -> T for a text that is placed by its second point.
(defun kora_is_anchored (data)
  (and (not (member (kora_field data 72) '(3 5)))
       (or (/= 0 (cond ((kora_field data 72)) (0)))
           (/= 0 (cond ((kora_field data (if (= (kora_field data 0) "TEXT") 73 74))) (0))))))

;; (kora_text_point data) -> the alignment point of a text, in its own coordinate system.
(defun kora_text_point (data)
  (cond ((= (kora_field data 0) "MTEXT") (trans (kora_field data 10) 0 (kora_normal data)))
        ((kora_is_anchored data) (kora_field data 11))
        (T (kora_field data 10))))

;; (kora_text_box data) -> the box of what a TEXT, MTEXT, ATTRIB or ATTDEF shows, nil when it shows nothing.
(defun kora_text_box (data)
  (if (= (kora_field data 0) "MTEXT") (kora:paragraph_box data) (kora:line_box data)))

(defun kora:line_box (data / corners)
  (setq corners (textbox data))
  (if (and corners (> (- (caadr corners) (caar corners)) 1e-9))
    (kora:box (kora_field data 10) (kora:line_turn data) (car corners) (cadr corners))))

;; A text between two points runs from one to the other.
(defun kora:line_turn (data)
  (if (and (member (kora_field data 72) '(3 5)) (not (equal (kora_field data 10) (kora_field data 11) 1e-9)))
    (angle (kora_field data 10) (kora_field data 11))
    (cond ((kora_field data 50)) (0.0))))

;; The point where it is attached is at its left, middle or right, top, middle or base line.
(defun kora:paragraph_box (data / width height attachment left top)
  (setq width      (kora_field data 42)
        height     (kora_field data 43)
        attachment (1- (cond ((kora_field data 71)) (1))))
  (if (and width height (> width 1e-9))
    (progn
      (setq left (* -0.5 width (rem attachment 3))
            top  (* 0.5 height (/ attachment 3)))
      (kora:box (trans (kora_field data 10) 0 (kora_normal data)) (kora:paragraph_turn data)
                (list left (- top height (if (kora:has_tails data) (* 0.3 (kora_field data 40)) 0.0)))
                (list (+ left width) top)))))

;; By the direction of its lines where it has one, else by its angle.
(defun kora:paragraph_turn (data)
  (if (kora_field data 11)
    (angle '(0.0 0.0) (trans (kora_field data 11) 0 (kora_normal data) T))
    (cond ((kora_field data 50)) (0.0))))

;; Whether letters may reach below the last base line.
(defun kora:has_tails (data)
  (wcmatch (kora_plain_text (kora_text_parts data)) "*[gjpqyQ();_|$]*"))

;; -> the box between two corners that are seen from base and turned.
(defun kora:box (base turn low high / middle)
  (setq middle (list (/ (+ (car low) (car high)) 2.0) (/ (+ (cadr low) (cadr high)) 2.0)))
  (list (kora:turned base turn middle) (- (car high) (car low)) (- (cadr high) (cadr low)) turn))

;; -> the point that is offset, two numbers, from base in directions that are turned.
(defun kora:turned (base turn offset)
  (list (+ (car base) (* (car offset) (cos turn)) (* -1 (cadr offset) (sin turn)))
        (+ (cadr base) (* (car offset) (sin turn)) (* (cadr offset) (cos turn)))
        (cond ((caddr base)) (0.0))))

;; (kora_turned_back point turn) -> the point as seen along a direction: x along it, y to its left.
(defun kora_turned_back (point turn)
  (kora:turned (list 0.0 0.0 (caddr point)) (- turn) point))

;; (kora_box_points box offsets) -> the points that lie so far, lists of two numbers, from the middle of a box along and
;; across it.
(defun kora_box_points (box offsets)
  (mapcar '(lambda (offset) (kora:turned (car box) (cadddr box) offset)) offsets))

;; (kora_corners width height) -> the offsets of a rectangle's corners, from the lower left one counter-clockwise.
(defun kora_corners (width height)
  (setq width (/ width 2.0) height (/ height 2.0))
  (list (list (- width) (- height)) (list width (- height)) (list width height) (list (- width) height)))

;; (kora_companion_fields data) -> the groups that put a new entity into the layer and space of another.
(defun kora_companion_fields (data)
  (vl-remove-if-not '(lambda (field) (member (car field) '(8 67 410))) (kora:own_fields data)))

;; (kora_bring_to_front texts) draws them over all else. A drawing that keeps no order draws what is made last over the
;; others: there the texts are made anew. -> their entity names.
(defun kora_bring_to_front (texts)
  (if (assoc 330 (entget (car texts)))
    (progn
      (command "_.DRAWORDER" (kora_selection texts) "" "_Front")
      texts)
    (mapcar 'kora:made_anew texts)))

(defun kora:made_anew (entity / made)
  (if (setq made (entmakex (kora_copy_data (entget entity '("*")))))
    (progn (entdel entity) made)
    entity))
