;;; What a block is drawn with, through all blocks within it: strokes, which can be cut.
;;;
;;; A stroke is a list (data pieces width) of an entity's list, with the look that it has where the outermost block is
;;; seen, the pieces of its curve and its line's width; of a filled entity (data AREA polygons map), of a point (data
;;; POINT point). A map is a list (a b c d e f): it takes a point to x = ax + cy + e, y = bx + dy + f.

;; (kora_strokes name map tolerance) -> the strokes of a block as a map shows them, in which its base point is taken
;; off; UNCUTTABLE when there is something in it that is none: text, a picture, a tilted entity. Curves that are no
;; arcs, and those that the map makes such, are straight lines within the tolerance.
(defun kora_strokes (name map tolerance / strokes failed goes_on)
  (kora:add_block_strokes name map nil 0)
  (if failed 'UNCUTTABLE strokes))

;; (kora_reference_pieces data tolerance) -> the pieces of all curves that a reference shows.
(defun kora_reference_pieces (data tolerance / strokes failed goes_on)
  (setq goes_on T)
  (kora:add_reference data '(1.0 0.0 0.0 1.0 0.0 0.0) 0)
  (apply 'append (mapcar 'cadr (vl-remove-if '(lambda (stroke) (atom (cadr stroke))) strokes))))

(defun kora:add_block_strokes (name map outer depth / base data)
  (setq base (cond ((kora_field (tblsearch "BLOCK" name) 10)) ('(0.0 0.0)))
        map  (kora_map_times map (list 1.0 0.0 0.0 1.0 (- (car base)) (- (cadr base)))))
  (if (> depth 20) (setq failed T goes_on nil))
  (foreach entity (kora_block_entities name)
    (if (or goes_on (not failed))
      (kora:add_stroke (kora:looked_through (entget entity) outer) map depth))))

(defun kora:add_stroke (data map depth / kind pieces polygons)
  (setq kind (kora_field data 0))
  (cond
    ((= 1 (kora_field data 60)))
    ((and (= kind "ATTDEF") (= 0 (logand 2 (cond ((kora_field data 70)) (0))))))
    ((= kind "INSERT") (kora:add_reference data map depth))
    ((and (= kind "DIMENSION") (kora_field data 2)) (kora:add_block_strokes (kora_field data 2) map data (1+ depth)))
    ((= kind "POINT") (setq strokes (cons (list data 'POINT (kora_mapped map (kora_field data 10))) strokes)))
    ((setq polygons (kora:filled data map))
     (setq strokes (cons (list data 'AREA (mapcar '(lambda (points) (kora:mapped_points map points)) polygons) map)
                         strokes)))
    ((and (kora:is_even data) (setq pieces (kora:curve_pieces data (/ tolerance (kora:map_reach map)))))
     (setq strokes (cons (list data (kora:mapped_pieces pieces map)
                               (if (= kind "LWPOLYLINE") (* (kora_map_scale map) (car (kora:widths_of data))) 0.0))
                         strokes)))
    (T (setq failed T))))

;; Each cell of an array. A reference with visible attributes, a clip or a tilt is none that could be taken apart.
(defun kora:add_reference (data map depth / normal turn place column row)
  (setq normal (kora_normal data)
        turn   (cond ((kora_field data 50)) (0.0))
        column 0)
  (if (or (not (equal (abs (caddr normal)) 1.0 1e-9)) (kora:is_clipped data)
          (and (not goes_on) (kora:shows_attributes data)))
    (setq failed T)
    (repeat (max 1 (cond ((kora_field data 70)) (1)))
      (setq row 0)
      (repeat (max 1 (cond ((kora_field data 71)) (1)))
        (setq place (kora:turned (kora_field data 10) turn
                                 (list (* column (cond ((kora_field data 44)) (0.0)))
                                       (* row (cond ((kora_field data 45)) (0.0)))))
              row   (1+ row))
        (kora:add_block_strokes
          (kora_field data 2)
          (kora_map_times
            (kora_map_times map (list (caddr normal) 0.0 0.0 1.0 0.0 0.0))
            (kora_placing place turn (list (cond ((kora_field data 41)) (1.0)) (cond ((kora_field data 42)) (1.0)))))
          data (1+ depth)))
      (setq column (1+ column)))))

(defun kora:is_clipped (data / extension)
  (and (setq extension (kora_extension data)) (dictsearch extension "ACAD_FILTER") T))

(defun kora:shows_attributes (data / entity fields shows)
  (if (= 1 (kora_field data 66))
    (progn
      (setq entity (entnext (kora_field data -1))
            fields (entget entity))
      (while (= (kora_field fields 0) "ATTRIB")
        (if (and (= 0 (logand 1 (cond ((kora_field fields 70)) (0)))) (/= 1 (kora_field fields 60))
                 (/= "" (kora_string_trim (cond ((kora_field fields 1)) ("")))))
          (setq shows T))
        (setq entity (entnext entity)
              fields (entget entity)))))
  shows)

;; The data of an entity of a block with what it takes from the reference that shows it.
(defun kora:looked_through (data outer / own)
  (if outer
    (progn
      (if (= (kora_field data 8) "0") (setq data (subst (cons 8 (kora_field outer 8)) (assoc 8 data) data)))
      (foreach code '(62 6 370)
        (if (kora:is_by_block (setq own (assoc code data)))
          (setq data (append (vl-remove own data) (if (assoc code outer) (list (assoc code outer)))))))))
  data)

(defun kora:is_by_block (field)
  (cond ((null field) nil)
        ((= (car field) 62) (= (cdr field) 0))
        ((= (car field) 6) (= (strcase (cdr field)) "BYBLOCK"))
        (T (= (cdr field) -2))))

;; The polygons of a solid, or of a hatch of one colour or of lines; nil of another, and where nothing filled could be
;; made of them.
(defun kora:filled (data map / kind)
  (setq kind (kora_field data 0))
  (cond
    ((null (namedobjdict)) nil)
    ((member kind '("SOLID" "TRACE"))
     (if (equal (abs (caddr (kora_normal data))) 1.0 1e-9)
       (list (mapcar '(lambda (code) (kora:seen_flat (kora_field data code) (kora_normal data))) '(10 11 13 12)))))
    ((and (= kind "HATCH") (/= 1 (kora_field data 450)) (equal (kora_normal data) '(0.0 0.0 1.0) 1e-9))
     (kora_outlines data (/ tolerance (kora:map_reach map))))))

;; Whether the whole stroke has one width; a polyline of early versions has none.
(defun kora:is_even (data)
  (cond ((= (kora_field data 0) "POLYLINE") (equal (kora:widths_of data) '(0.0)))
        ((= (kora_field data 0) "LWPOLYLINE") (null (cdr (kora:widths_of data))))
        (T)))

;; One that is for the whole polyline counts for all its parts.
(defun kora:widths_of (data / whole)
  (setq whole (cond ((kora_field data 43)) (0.0)))
  (if (/= whole 0.0)
    (list whole)
    (kora:sorted_once (cons (cond ((kora_field data 40)) (0.0))
                            (append (kora:values_of data 40) (kora:values_of data 41))))))

(defun kora:curve_pieces (data tolerance / kind points)
  (setq kind (kora_field data 0))
  (cond
    ((= kind "ELLIPSE")
     (if (setq points (kora:ellipse_points data tolerance))
       (kora:chain (append points (list (if (kora:is_full data) (car points) (kora:ellipse_end data)))))))
    ((= kind "SPLINE") (kora:chain (kora:spline_points data tolerance)))
    (T (kora_pieces data))))

(defun kora:ellipse_end (data)
  (car (kora:ellipse_arc (kora_field data 10) (kora_field data 11) (* (caddr (kora_normal data)) (kora_field data 40))
                         (kora_field data 42) (+ (kora_field data 42) 1e-9) 1e9)))

;; Straight pieces through points.
(defun kora:chain (points)
  (vl-remove-if '(lambda (piece) (equal (car piece) (cadr piece) 1e-12))
                (mapcar '(lambda (from to) (list from to 0.0)) points (cdr points))))

;;; Maps

;; (kora_map_times after before) -> one map for two.
(defun kora_map_times (after before)
  (append (kora:along after (car before) (cadr before))
          (kora:along after (caddr before) (cadddr before))
          (kora_mapped after (cddddr before))))

;; (kora_mapped map point) -> the flat point that a point becomes.
(defun kora_mapped (map point)
  (mapcar '+ (kora:along map (car point) (cadr point)) (cddddr map)))

(defun kora:along (map x y)
  (list (+ (* (car map) x) (* (caddr map) y)) (+ (* (cadr map) x) (* (cadddr map) y))))

(defun kora:mapped_points (map points)
  (mapcar '(lambda (point) (kora_mapped map point)) points))

;; (kora_placing point turn scales) -> the map of a reference at a point, without its block's base point.
(defun kora_placing (point turn scales)
  (list (* (car scales) (cos turn)) (* (car scales) (sin turn))
        (* -1 (cadr scales) (sin turn)) (* (cadr scales) (cos turn)) (car point) (cadr point)))

;; (kora_map_back map) -> the map that leads back.
(defun kora_map_back (map / turns back)
  (setq turns (kora:map_turns map)
        back  (mapcar '(lambda (part) (/ part turns)) (list (cadddr map) (- (cadr map)) (- (caddr map)) (car map))))
  (append back (mapcar '- (kora:along back (car (cddddr map)) (cadr (cddddr map))))))

(defun kora:map_turns (map) (- (* (car map) (cadddr map)) (* (cadr map) (caddr map))))

;; (kora_map_scale map) -> the size of what was 1 long, the mean of all directions.
(defun kora_map_scale (map) (sqrt (abs (kora:map_turns map))))

;; The most that a length can become.
(defun kora:map_reach (map)
  (max 1e-12 (+ (distance '(0.0 0.0) (list (car map) (cadr map)))
                (distance '(0.0 0.0) (list (caddr map) (cadddr map))))))

;; Whether arcs stay arcs.
(defun kora:is_even_map (map / near)
  (setq near (* 1e-9 (kora:map_reach map)))
  (or (and (equal (car map) (cadddr map) near) (equal (cadr map) (- (caddr map)) near))
      (and (equal (car map) (- (cadddr map)) near) (equal (cadr map) (caddr map) near))))

(defun kora:mapped_pieces (pieces map / sign)
  (if (not (kora:is_even_map map))
    (setq pieces (kora:chain (append (kora_flattened pieces (/ tolerance (kora:map_reach map)))
                                     (list (cadr (last pieces)))))))
  (setq sign (if (minusp (kora:map_turns map)) -1 1))
  (mapcar '(lambda (piece)
             (list (kora_mapped map (car piece)) (kora_mapped map (cadr piece)) (* sign (caddr piece))))
          pieces))
