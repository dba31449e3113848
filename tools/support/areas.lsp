;;; Areas within polygons: cells of a grid that lie in them, and what is left of lines, arcs and polygons at their edge.
;;;
;;; What lies in an odd number of the polygons is in the area: one within another is a hole. An area is a list of edges
;;; (low high at-low at-high), the y of the edge's ends and the x that it has there, sorted by low.
;;;
;;; A view of an area is a list (anchor edge ...): the edges that come near some place, and (x y inside), a point left
;;; of it that is known to be in the area or not. All that the other edges do is in the anchor, so that what is asked
;;; of a place costs as much as there is of the area.

;; (kora_area polygons) -> the area.
(defun kora_area (polygons / edges)
  (foreach polygon polygons
    (mapcar '(lambda (from to)
               (setq edges (cons (if (< (cadr from) (cadr to))
                                   (list (cadr from) (cadr to) (car from) (car to))
                                   (list (cadr to) (cadr from) (car to) (car from)))
                                 edges)))
            polygon
            (append (cdr polygon) (list (car polygon)))))
  (vl-sort edges '(lambda (a b) (< (car a) (car b)))))

;; (kora_area_box area) -> (left bottom right top).
(defun kora_area_box (area)
  (list (apply 'min (mapcar '(lambda (edge) (min (caddr edge) (cadddr edge))) area))
        (caar area)
        (apply 'max (mapcar '(lambda (edge) (max (caddr edge) (cadddr edge))) area))
        (apply 'max (mapcar 'cadr area))))

;; (kora_grid_count area size step) -> how many cells the box around the area can meet, as a real number.
(defun kora_grid_count (area size step / box)
  (setq box (kora_area_box area))
  (* (+ 1.0 (/ (+ (- (caddr box) (car box)) (car size)) (car step)))
     (+ 1.0 (/ (+ (- (cadddr box) (cadr box)) (cadr size)) (cadr step)))))

;; (kora_area_view area) -> the area as a view that serves everywhere.
(defun kora_area_view (area) (cons '(-1e300 -1e300 nil) area))

;; (kora_area_cells area size step visit) calls visit for the cells of a grid that lie in the area or meet its edge,
;; with the cell's lower left corner and the view of the area from there, nil of one that lies in it. Cells are of a
;; size, and a step apart, both (x y) and greater than zero; one has its corner at 0,0. Touching an edge does not count.
(defun kora_area_cells (area size step visit / box slack row top near low high bottom)
  (setq box   (kora_area_box area)
        slack (* 1e-9 (+ (apply 'max (mapcar 'abs box)) (car size) (cadr size)))
        row   (kora:ceiling (/ (+ (- (cadr box) (cadr size)) slack) (cadr step)))
        top   (kora:floor (/ (- (cadddr box) slack) (cadr step))))
  (while (<= row top)
    (setq bottom (* row (cadr step))
          low    (+ bottom slack)
          high   (- (+ low (cadr size)) slack slack)
          near   (vl-remove-if '(lambda (edge) (< (cadr edge) (- bottom (* 9 slack)))) near))
    (while (and area (< (caar area) (+ high (* 9 slack))))
      (if (>= (cadar area) (- bottom (* 9 slack))) (setq near (cons (car area) near)))
      (setq area (cdr area)))
    (if near (kora:row_cells))
    (setq row (1+ row))))

(defun kora:floor (value / whole)
  (setq whole (fix value))
  (if (> whole value) (1- whole) whole))

(defun kora:ceiling (value) (- (kora:floor (- value))))

;; The cells of one row between low and high, which the edges of near touch.
(defun kora:row_cells (/ reaching met middle crossings)
  (setq reaching  (vl-remove-if '(lambda (edge) (or (>= (car edge) high) (<= (cadr edge) low))) near)
        met       (kora:sorted_once (apply 'append (mapcar '(lambda (edge) (kora:columns_met edge slack)) reaching)))
        middle    (/ (+ low high) 2.0)
        crossings (kora:crossings near middle))
  (kora:edge_cells)
  (kora:inner_cells))

;; Those that an edge reaches into.
(defun kora:edge_cells (/ touching anchor_x inside edges passed)
  (setq touching (if met (kora:by_column near))
        passed   crossings)
  (foreach column met
    (setq anchor_x (- (* column (car step)) (* 8 slack)))
    (while (and passed (<= (car passed) anchor_x))
      (setq inside (not inside)
            passed (cdr passed)))
    (while (< (caar touching) column) (setq touching (cdr touching)))
    (setq edges nil)
    (while (and touching (= (caar touching) column))
      (setq edges    (cons (cdar touching) edges)
            touching (cdr touching)))
    (apply visit (list (list (* column (car step)) bottom) (cons (list anchor_x middle inside) edges)))))

;; A list of (column . edge) of the cells that edges touch, sorted by columns.
(defun kora:by_column (edges / pairs)
  (foreach edge edges
    (foreach column (kora:columns_met edge (* -9 slack))
      (setq pairs (cons (cons column edge) pairs))))
  (vl-sort pairs '(lambda (a b) (< (car a) (car b)))))

(defun kora:inner_cells (/ column to)
  (while (cdr crossings)
    (setq column (kora:ceiling (/ (- (car crossings) slack) (car step)))
          to     (kora:floor (/ (+ (- (cadr crossings) (car size)) slack) (car step))))
    (while (<= column to)
      (while (and met (< (car met) column)) (setq met (cdr met)))
      (if (or (null met) (/= (car met) column))
        (apply visit (list (list (* column (car step)) bottom) nil)))
      (setq column (1+ column)))
    (setq crossings (cddr crossings))))

;; The numbers of the columns whose cells an edge reaches into by more than a depth; a negative one is how near it
;; comes.
(defun kora:columns_met (edge depth / ends column end columns)
  (setq ends   (mapcar '(lambda (height) (kora:edge_at edge height))
                       (list (max (+ bottom depth) (car edge)) (min (- (+ bottom (cadr size)) depth) (cadr edge))))
        column (if (= (car edge) (cadr edge)) (list (caddr edge) (cadddr edge)) ends)
        end    (kora:floor (/ (- (apply 'max column) depth) (car step)))
        column (kora:ceiling (/ (- (+ (apply 'min column) depth) (car size)) (car step))))
  (while (<= column end)
    (setq columns (cons column columns)
          column  (1+ column)))
  columns)

;; The x of an edge at a height.
(defun kora:edge_at (edge height)
  (if (= (car edge) (cadr edge))
    (caddr edge)
    (+ (caddr edge) (* (- (cadddr edge) (caddr edge)) (/ (- height (car edge)) (- (cadr edge) (car edge)))))))

(defun kora:sorted_once (numbers / result)
  (foreach number (vl-sort numbers '<)
    (if (/= number (car result)) (setq result (cons number result))))
  (reverse result))

;; Where a horizontal line goes in and out, from left to right.
(defun kora:crossings (edges height)
  (kora:ordered (mapcar '(lambda (edge) (kora:edge_at edge height))
                        (vl-remove-if-not '(lambda (edge) (and (<= (car edge) height) (< height (cadr edge))))
                                          edges))))

;; All of the numbers in order. vl-sort may drop equal ones, but no lists of one.
(defun kora:ordered (numbers)
  (mapcar 'car (vl-sort (mapcar 'list numbers) '(lambda (a b) (< (car a) (car b))))))

;; (kora_in_area view point slack) -> T when the point is in the area, ON when it is on its edge.
(defun kora_in_area (view point slack)
  (if (vl-some '(lambda (edge)
                  (and (<= (- (car edge) slack) (cadr point) (+ (cadr edge) slack)) (kora:is_on edge point slack)))
               (cdr view))
    'ON
    (kora:is_in view (car point) (cadr point))))

(defun kora:is_in (view x y / left from inside)
  (setq left   (caar view)
        from   (cadar view)
        inside (caddar view))
  (foreach edge (cdr view)
    (if (not (eq (kora:is_passed edge x y) (kora:is_passed edge left from))) (setq inside (not inside))))
  inside)

;; Whether the way that comes up from far below at left, and turns to x at the height y, passes the edge an odd number
;; of times. An edge takes its lower end, and what is straight above or below left counts as left of it: as every edge
;; is asked the same, ways through corners and along edges come out right as well.
(defun kora:is_passed (edge x y)
  (cond
    ((< y (car edge)) nil)
    ((>= y (cadr edge)) (not (eq (<= (caddr edge) left) (<= (cadddr edge) left))))
    (T (not (eq (<= (kora:edge_at edge y) x) (<= (caddr edge) left))))))

(defun kora:is_on (edge point slack / from to reach)
  (setq from   (list (caddr edge) (car edge))
        to     (list (cadddr edge) (cadr edge))
        reach  (distance from to))
  (and (<= (- (min (car from) (car to)) slack) (car point) (+ (max (car from) (car to)) slack))
       (or (< reach slack)
           (<= (abs (kora:cross (mapcar '- to from) (mapcar '- point from))) (* slack reach)))))

(defun kora:cross (a b) (- (* (car a) (cadr b)) (* (cadr a) (car b))))

;; (kora_cut_pieces pieces view slack) -> what of the pieces is in the area: a list of runs, each a list of pieces that
;; follow each other. A closed run that is whole begins where it began.
(defun kora_cut_pieces (pieces view slack / runs left)
  (foreach piece pieces
    (foreach part (kora:parts_inside piece view slack)
      (setq part (kora:part_of piece (car part) (cadr part)))
      (if (and runs (equal (cadr (caar runs)) (car part) slack))
        (setq runs (cons (cons part (car runs)) (cdr runs)))
        (setq runs (cons (list part) runs)))))
  (setq runs (mapcar 'reverse (reverse runs))
        left (reverse runs))
  ;; What was closed goes on over its beginning.
  (if (and (cdr runs) (equal (caar pieces) (cadr (last pieces)) slack)
           (equal (cadr (last (car left))) (car (caar runs)) slack))
    (append (reverse (cdr (reverse (cdr runs)))) (list (append (car left) (car runs))))
    runs))

;; The parts (from to), 0 to 1, of a piece that lie in the area, neighbours joined.
(defun kora:parts_inside (piece view slack / places parts from)
  (setq places (kora:ordered (append '(0.0 1.0) (kora:places_met piece (cdr view))))
        from   (car places))
  (foreach to (cdr places)
    (if (> (- to from) 1e-9)
      (progn
        (if (kora:stretch_inside piece from to view slack)
          (setq parts (if (and parts (equal (cadar parts) from 1e-12))
                        (cons (list (caar parts) to) (cdr parts))
                        (cons (list from to) parts))))
        (setq from to))))
  ;; The last stretch may have been too short to end at 1.
  (if (and parts (> (cadar parts) (- 1.0 2e-9))) (setq parts (cons (list (caar parts) 1.0) (cdr parts))))
  (reverse parts))

;; What touches the edge in its middle is judged by another point; when that is on the edge too, it runs along it.
(defun kora:stretch_inside (piece from to view slack / middle)
  (setq middle (kora_in_area view (kora_piece_at piece (/ (+ from to) 2.0)) slack))
  (if (= middle 'ON)
    (kora_in_area view (kora_piece_at piece (+ from (* 0.29 (- to from)))) slack)
    middle))

(defun kora:part_of (piece from to)
  (if (and (= from 0.0) (= to 1.0))
    piece
    (list (kora_piece_at piece from) (kora_piece_at piece to)
          (if (= (caddr piece) 0.0) 0.0 (kora:tangent (* (- to from) (atan (caddr piece))))))))

;; Where edges meet a piece, as parts of its length strictly between 0 and 1.
(defun kora:places_met (piece edges / arc box)
  (setq arc (if (/= (caddr piece) 0.0) (kora_arc piece))
        box (kora:piece_box piece arc))
  (vl-remove-if-not
    '(lambda (place) (< 0.0 place 1.0))
    (apply 'append
           (mapcar '(lambda (edge / from to)
                      (if (and (<= (car edge) (cadddr box)) (>= (cadr edge) (cadr box))
                               (<= (min (caddr edge) (cadddr edge)) (caddr box))
                               (>= (max (caddr edge) (cadddr edge)) (car box)))
                        (progn
                          (setq from (list (caddr edge) (car edge))
                                to   (list (cadddr edge) (cadr edge)))
                          (if arc (kora:arc_meets arc from to) (kora:line_meets piece from to)))))
                   edges))))

;; (left bottom right top) of a line, and of the circle that an arc is of.
(defun kora:piece_box (piece arc)
  (if arc
    (list (- (caar arc) (cadr arc)) (- (cadar arc) (cadr arc)) (+ (caar arc) (cadr arc)) (+ (cadar arc) (cadr arc)))
    (list (min (caar piece) (caadr piece)) (min (cadar piece) (cadadr piece))
          (max (caar piece) (caadr piece)) (max (cadar piece) (cadadr piece)))))

;; Along an edge that runs with the line its ends divide the line.
(defun kora:line_meets (piece from to / run edge across)
  (setq run    (mapcar '- (cadr piece) (car piece))
        edge   (mapcar '- to from)
        across (kora:cross run edge)
        from   (mapcar '- from (car piece))
        to     (mapcar '- to (car piece)))
  (cond
    ((<= (abs across) (* 1e-9 (distance '(0.0 0.0) run) (distance '(0.0 0.0) edge)))
     (mapcar '(lambda (point) (/ (apply '+ (mapcar '* point run)) (apply '+ (mapcar '* run run)))) (list from to)))
    ((<= -1e-9 (/ (kora:cross from run) across) (+ 1.0 1e-9)) (list (/ (kora:cross from edge) across)))))

(defun kora:arc_meets (arc from to / run a b c root)
  (setq run  (mapcar '- to from)
        from (mapcar '- from (car arc))
        a    (apply '+ (mapcar '* run run))
        b    (apply '+ (mapcar '* run from))
        c    (- (apply '+ (mapcar '* from from)) (* (cadr arc) (cadr arc)))
        root (- (* b b) (* a c)))
  (if (and (> a 0.0) (>= root 0.0))
    (mapcar '(lambda (place) (kora:turn_part arc (mapcar '(lambda (start step) (+ start (* place step))) from run)))
            (vl-remove-if-not '(lambda (place) (<= -1e-9 place (+ 1.0 1e-9)))
                              (list (/ (- (- b) (sqrt root)) a) (/ (- (sqrt root) b) a))))))

;; Which part of an arc's turn leads to a direction from its centre; more than 1 outside.
(defun kora:turn_part (arc direction / turn)
  (setq turn (- (angle '(0.0 0.0) direction) (caddr arc))
        turn (if (< (cadddr arc) 0.0) (- turn) turn))
  (while (< turn 0.0) (setq turn (+ turn (* 2 pi))))
  (while (>= turn (* 2 pi)) (setq turn (- turn (* 2 pi))))
  (/ turn (abs (cadddr arc))))
