;;; What entities look like from above: pieces of lines and arcs, polygons within a tolerance, frames of blocks.
;;;
;;; A piece is a list (from to bulge) of two flat points in world coordinates; the bulge is the tangent of a quarter of
;;; an arc's angle, positive counter-clockwise, 0 of a line. A polygon is a list of flat points; its last one is joined
;;; to its first.

;; (kora_pieces data) -> the pieces of a line, arc, circle or polyline in their order; nil of another entity and of one
;; that is tilted or, a polyline, in space.
(defun kora_pieces (data / kind normal)
  (setq kind   (kora_field data 0)
        normal (if (= kind "LINE") '(0.0 0.0 1.0) (kora_normal data)))
  (if (equal (abs (caddr normal)) 1.0 1e-9)
    (mapcar '(lambda (piece)
               (list (kora:seen_flat (car piece) normal) (kora:seen_flat (cadr piece) normal)
                     (* (caddr normal) (caddr piece))))
            (cond
              ((= kind "LINE") (list (list (kora_field data 10) (kora_field data 11) 0.0)))
              ((= kind "CIRCLE") (kora:arc_pieces (kora_field data 10) (kora_field data 40) 0.0 (* 2 pi)))
              ((= kind "ARC")
               (kora:arc_pieces (kora_field data 10) (kora_field data 40) (kora_field data 50) (kora_field data 51)))
              ((= kind "LWPOLYLINE") (kora:joined_pieces (kora:vertices_of data) (kora:is_closed data)))
              ((and (= kind "POLYLINE") (= 0 (logand 88 (cond ((kora_field data 70)) (0)))))
               (kora:joined_pieces (kora:old_vertices data) (kora:is_closed data)))))))

(defun kora:seen_flat (point normal)
  (setq point (trans (kora:point3d point) normal 0))
  (list (car point) (cadr point)))

(defun kora:is_closed (data) (= 1 (logand 1 (cond ((kora_field data 70)) (0)))))

;; Two halves, so that none has more than half a turn.
(defun kora:arc_pieces (centre radius start end / half)
  (if (<= end (+ start 1e-12)) (setq end (+ end (* 2 pi))))
  (setq half (/ (- end start) 2.0))
  (mapcar '(lambda (from)
             (list (polar centre from radius) (polar centre (+ from half) radius) (kora:tangent (/ half 4.0))))
          (list start (+ start half))))

(defun kora:tangent (turn) (/ (sin turn) (cos turn)))

;; The vertices of a polyline, lists (point bulge).
(defun kora:vertices_of (fields / vertices)
  (foreach field fields
    (cond ((= (car field) 10) (setq vertices (cons (list (cdr field) 0.0) vertices)))
          ((and (= (car field) 42) vertices)
           (setq vertices (cons (list (caar vertices) (cdr field)) (cdr vertices))))))
  (reverse vertices))

;; Those of a polyline of early versions, without the frame of a fitted curve.
(defun kora:old_vertices (data / entity fields vertices)
  (setq entity (entnext (kora_field data -1))
        fields (entget entity))
  (while (= (kora_field fields 0) "VERTEX")
    (if (= 0 (logand 16 (cond ((kora_field fields 70)) (0))))
      (setq vertices (cons (list (kora_field fields 10) (cond ((kora_field fields 42)) (0.0))) vertices)))
    (setq entity (entnext entity)
          fields (entget entity)))
  (reverse vertices))

(defun kora:joined_pieces (vertices closed)
  (vl-remove-if '(lambda (piece) (equal (car piece) (cadr piece) 1e-12))
                (mapcar '(lambda (vertex next) (list (car vertex) (car next) (cadr vertex)))
                        vertices
                        (append (cdr vertices) (if closed (list (car vertices)))))))

;; (kora_arc piece) -> (centre radius start turn) of an arc; the turn is negative clockwise.
(defun kora_arc (piece / half radius centre)
  (setq half   (* 2 (atan (caddr piece)))
        radius (/ (distance (car piece) (cadr piece)) 2 (sin half))
        centre (polar (car piece) (+ (angle (car piece) (cadr piece)) (- (* 0.5 pi) half)) radius))
  (list centre (abs radius) (angle centre (car piece)) (* 2 half)))

;; (kora_piece_at piece part) -> the point at a part, 0 to 1, of a piece's length.
(defun kora_piece_at (piece part / arc)
  (cond
    ((= 0.0 part) (car piece))
    ((= 1.0 part) (cadr piece))
    ((= (caddr piece) 0.0) (mapcar '(lambda (from to) (+ from (* part (- to from)))) (car piece) (cadr piece)))
    (T (setq arc (kora_arc piece))
       (polar (car arc) (+ (caddr arc) (* part (cadddr arc))) (cadr arc)))))

;; (kora_flattened pieces tolerance) -> the points of straight lines that are nowhere farther from the pieces than the
;; tolerance, without the end of the last piece.
(defun kora_flattened (pieces tolerance / points arc count part)
  (foreach piece pieces
    (setq points (cons (car piece) points))
    (if (/= (caddr piece) 0.0)
      (progn
        (setq arc   (kora_arc piece)
              count (kora:chords (cadr arc) (cadddr arc) tolerance)
              part  0)
        (repeat (1- count)
          (setq part   (1+ part)
                points (cons (kora_piece_at piece (/ (float part) count)) points))))))
  (reverse points))

;; How many chords keep an arc within the tolerance; eighths of a turn are the longest.
(defun kora:chords (radius turn tolerance / cosine)
  (setq cosine (- 1.0 (/ tolerance (max radius 1e-99))))
  (min 5000
       (1+ (fix (/ (abs turn)
                   (if (> cosine 0.0)
                     (max 1e-6 (min (* 0.25 pi) (* 2 (atan (sqrt (- 1.0 (* cosine cosine))) cosine))))
                     (* 0.25 pi)))))))

;; (kora_outlines data tolerance) -> the polygons of a closed entity or of a hatch; nil of an open or tilted one.
(defun kora_outlines (data tolerance / kind pieces points)
  (setq kind   (kora_field data 0)
        points (cond
                 ((member kind '("CIRCLE" "LWPOLYLINE" "POLYLINE"))
                  (setq pieces (kora_pieces data))
                  (if (and pieces (equal (caar pieces) (cadr (last pieces)) 1e-9)) (kora_flattened pieces tolerance)))
                 ((= kind "ELLIPSE") (if (kora:is_full data) (kora:ellipse_points data tolerance)))
                 ((= kind "SPLINE") (kora:loop_of (kora:spline_points data tolerance)))))
  (if (= kind "HATCH")
    (kora:hatch_outlines data tolerance)
    (if (cddr points) (list points))))

(defun kora:is_full (data)
  (equal (abs (- (kora_field data 42) (kora_field data 41))) (* 2 pi) 1e-6))

(defun kora:ellipse_points (data tolerance)
  (if (equal (abs (caddr (kora_normal data))) 1.0 1e-9)
    (kora:ellipse_arc (kora_field data 10) (kora_field data 11)
                      (* (caddr (kora_normal data)) (kora_field data 40))
                      (kora_field data 41) (kora_field data 42) tolerance)))

;; The points of a part of an ellipse, without its end; a negative ratio goes clockwise.
(defun kora:ellipse_arc (centre major ratio start end tolerance / count step points)
  (setq count (kora:chords (distance '(0.0 0.0 0.0) major) (- end start) tolerance)
        step  (/ (- end start) count))
  (repeat count
    (setq points (cons (list (+ (car centre) (* (cos start) (car major)) (* -1 ratio (sin start) (cadr major)))
                             (+ (cadr centre) (* (cos start) (cadr major)) (* ratio (sin start) (car major))))
                       points)
          start  (+ start step)))
  (reverse points))

;; The points without the last one when it is where the first is; nil when it is not.
(defun kora:loop_of (points)
  (if (and points (equal (car points) (last points) 1e-6)) (reverse (cdr (reverse points)))))

;; The points of a spline by its control points. fields may be those of a hatch's edge, whose degree is under 94.
(defun kora:spline_points (fields tolerance / degree knots weights controls points)
  (setq degree   (cond ((kora_field fields 94)) ((kora_field fields 71)) (3))
        knots    (kora:values_of fields 40)
        weights  (kora:values_of fields (if (assoc 94 fields) 42 41))
        controls (kora:values_of fields 10))
  (if (and (> degree 0) (> (length controls) degree) (= (length knots) (+ (length controls) degree 1)))
    (progn
      (setq controls (mapcar '(lambda (point weight) (list (* weight (car point)) (* weight (cadr point)) weight))
                             controls
                             (if (= (length weights) (length controls))
                               weights
                               (mapcar '(lambda (point) 1.0) controls)))
            knots    (cdr knots))
      (repeat (- (length controls) degree)
        (if (< (nth (1- degree) knots) (nth degree knots))
          (setq points (append (kora:span_points knots controls) points)))
        (setq knots    (cdr knots)
              controls (cdr controls)))
      (reverse points))))

(defun kora:values_of (fields code)
  (mapcar 'cdr (vl-remove-if '(lambda (field) (/= (car field) code)) fields)))

;; The points between two knots, the last first, both ends included.
(defun kora:span_points (knots controls / from to count part points reach)
  (setq from     (nth (1- degree) knots)
        to       (nth degree knots)
        controls (kora:first_of controls (1+ degree))
        reach    (apply '+ (mapcar '(lambda (a b) (distance (kora:projected a) (kora:projected b)))
                                   controls (cdr controls)))
        count    (max 4 (min 400 (1+ (fix (sqrt (/ (* 2 reach) tolerance))))))
        part     0)
  (repeat (1+ count)
    (setq points (cons (kora:spline_at (+ from (* (- to from) (/ (float part) count)))) points)
          part   (1+ part)))
  points)

(defun kora:projected (point) (list (/ (car point) (caddr point)) (/ (cadr point) (caddr point))))

;; Control points are blended pair by pair until one is left.
(defun kora:spline_at (place / points low high)
  (setq points controls
        low    knots
        high   knots)
  (repeat degree (setq high (cdr high)))
  (repeat degree
    (setq points (mapcar '(lambda (a b from to / part)
                            (setq part (if (= from to) 0.0 (/ (- place from) (- to from))))
                            (mapcar '(lambda (u v) (+ (* (- 1.0 part) u) (* part v))) a b))
                         points (cdr points) low high)
          low    (cdr low)))
  (kora:projected (car points)))

;; (kora_block_frame name) -> (lower upper), flat points, of what a block shows as seen from its base point; nil when it
;; shows nothing.
(defun kora_block_frame (name)
  (mapcar '(lambda (corner) (list (car corner) (cadr corner))) (kora_block_box name)))

;; The polygons of a hatch's paths. Its edges follow each other; one that begins where the last did not end may run
;; backward.
(defun kora:hatch_outlines (data tolerance / paths path outlines points)
  (foreach field (kora:hatch_fields data)
    (if (= (car field) 92)
      (setq paths (cons (list field) paths))
      (if paths (setq paths (cons (cons field (car paths)) (cdr paths))))))
  (foreach path paths
    (setq path   (reverse path)
          points (if (/= 0 (logand 2 (kora_field path 92)))
                   (kora_flattened (kora:joined_pieces (kora:vertices_of (member (assoc 93 path) path)) T) tolerance)
                   (kora:edge_points path tolerance)))
    (if (cddr points)
      (setq outlines (cons (mapcar '(lambda (point) (kora:seen_flat point (kora_normal data))) points) outlines))))
  outlines)

;; The fields of the paths alone: what follows from a 75 on is of the pattern, and 97 and 330 name where a path is from.
(defun kora:hatch_fields (data / fields)
  (setq data (cdr (member (assoc 91 data) data)))
  (while (and data (/= (caar data) 75))
    (if (not (member (caar data) '(97 330))) (setq fields (cons (car data) fields)))
    (setq data (cdr data)))
  (reverse fields))

(defun kora:edge_points (path tolerance / edges points run)
  (foreach field (cdr (member (assoc 93 path) path))
    (if (= (car field) 72)
      (setq edges (cons (list field) edges))
      (if edges (setq edges (cons (cons field (car edges)) (cdr edges))))))
  (foreach edge (reverse edges)
    (setq run (kora:edge_run (reverse edge) tolerance))
    (if (and points run (not (equal (last points) (car run) 1e-6)) (equal (last points) (last run) 1e-6))
      (setq run (reverse run)))
    (setq points (append points run)))
  points)

;; The points of one edge of a hatch with both ends: a line, an arc of a circle, of an ellipse, or a spline.
(defun kora:edge_run (edge tolerance / kind sign start end run)
  (setq kind  (kora_field edge 72)
        sign  (if (= 0 (cond ((kora_field edge 73)) (1))) -1.0 1.0)
        start (cond ((kora_field edge 50)) (0.0))
        end   (cond ((kora_field edge 51)) (0.0)))
  (cond
    ((= kind 1) (list (kora_field edge 10) (kora_field edge 11)))
    ((= kind 4) (kora:spline_points edge tolerance))
    (T (setq run (append (list (kora_field edge 10))
                         (if (= kind 2) (list (list (kora_field edge 40) 0.0) sign)
                           (list (kora_field edge 11) (* sign (kora_field edge 40))))))
       (append (kora:ellipse_arc (car run) (cadr run) (caddr run) start end tolerance)
               (kora:ellipse_arc (car run) (cadr run) (caddr run) end (+ end 1e-9) 1e9)))))
