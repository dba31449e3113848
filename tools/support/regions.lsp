;;; What filled shapes have in common with an area.
;;;
;;; The shape is taken in slabs from one corner's height to the next, in which edges do not cross. Of a slab it is known
;;; from left to right where both are; what these stretches have along their sides, and above and below where the next
;;; slab has nothing, are the edges of loops.

;; (kora_common view polygons slack) -> the loops of points around what polygons have in common with the area of a view:
;; counter-clockwise ones around it, clockwise ones around holes in it. The polygons lie to the right of the anchor.
(defun kora_common (view polygons slack / shape box edges heights slabs)
  (setq shape   (kora_area polygons)
        box     (kora_area_box shape)
        edges   (append (mapcar '(lambda (edge) (cons 'SHAPE edge)) shape)
                        (mapcar '(lambda (edge) (cons 'AREA edge))
                                (vl-remove-if '(lambda (edge)
                                                 (or (<= (cadr edge) (cadr box)) (>= (car edge) (cadddr box))))
                                              (cdr view))))
        edges   (vl-sort edges '(lambda (a b) (< (cadr a) (cadr b))))
        heights (kora:apart (vl-remove-if-not '(lambda (height) (<= (cadr box) height (cadddr box)))
                                              (append (mapcar 'cadr edges) (mapcar 'caddr edges)))))
  (kora:all_slabs)
  (kora:linked (kora:sides (reverse slabs))))

;; The numbers in order, without those that are as good as the one before.
(defun kora:apart (numbers / result)
  (foreach number (kora:ordered numbers)
    (if (or (null result) (> (- number (car result)) slack)) (setq result (cons number result))))
  (reverse result))

(defun kora:all_slabs (/ active)
  (mapcar '(lambda (low high)
             (setq active (vl-remove-if '(lambda (edge) (< (caddr edge) (- high slack))) active))
             (while (and edges (<= (cadar edges) (+ low slack)))
               (if (>= (caddar edges) (- high slack)) (setq active (cons (car edges) active)))
               (setq edges (cdr edges)))
             (kora:slab low high active 0))
          heights (cdr heights)))

;; A slab in which edges cross is two.
(defun kora:slab (low high active depth / rows between)
  (setq rows (vl-sort (mapcar '(lambda (edge)
                                 (list (kora:edge_at (cdr edge) low) (kora:edge_at (cdr edge) high) (car edge)))
                              active)
                      '(lambda (a b) (if (equal (car a) (car b) slack) (< (cadr a) (cadr b)) (< (car a) (car b)))))
        between (if (< depth 200) (kora:first_crossing rows low high)))
  (if between
    (progn
      (kora:slab low between active (1+ depth))
      (kora:slab between high active (1+ depth)))
    (setq slabs (cons (list low high (kora:stretches rows)) slabs))))

(defun kora:first_crossing (rows low high / least wide)
  (mapcar '(lambda (a b)
             (setq wide (- (car b) (car a)))
             (if (and (> wide slack) (> (- (cadr a) (cadr b)) slack))
               (setq wide  (/ wide (+ wide (- (cadr a) (cadr b))))
                     least (if least (min least wide) wide))))
          rows (cdr rows))
  (if least
    (progn
      (setq least (+ low (* least (- high low))))
      (if (< (+ low slack) least (- high slack)) least))))

;; Where both are: a list of (left-low left-high right-low right-high).
(defun kora:stretches (rows / in_area in_shape was from stretches)
  (setq in_area (kora:is_in view (caar view) (/ (+ low high) 2.0)))
  (foreach row rows
    (if (> (+ (car row) (cadr row)) (* 2 (caar view)))
      (progn
        (if (= (caddr row) 'AREA) (setq in_area (not in_area)) (setq in_shape (not in_shape)))
        (if (and in_area in_shape)
          (if (not was) (setq from row was T))
          (if was
            (progn
              (setq was nil)
              (if (or (> (- (car row) (car from)) slack) (> (- (cadr row) (cadr from)) slack))
                (setq stretches (cons (list (car from) (cadr from) (car row) (cadr row)) stretches)))))))))
  stretches)

;; The directed edges (from to) of what the slabs have, with it on their left.
(defun kora:sides (slabs / below starts edges)
  (foreach slab (append slabs (list nil))
    (kora:level below slab)
    (setq below slab))
  edges)

;; Those on the line between two slabs, and the sides of the upper one, whose upper ends the next call moves to the
;; places that both have in common.
(defun kora:level (below above / height places tops bottoms)
  (setq height  (cond (above (car above)) (below (cadr below)))
        tops    (mapcar '(lambda (row) (list (cadr row) (cadddr row))) (caddr below))
        bottoms (mapcar '(lambda (row) (list (car row) (caddr row))) (caddr above))
        places  (kora:apart (append (apply 'append tops) (apply 'append bottoms))))
  (setq tops    (mapcar 'kora:at_places tops)
        bottoms (mapcar 'kora:at_places bottoms))
  (mapcar '(lambda (row top)
             (kora:add_edge (list (car top) height) (list (cadr (assoc row starts)) (car below)))
             (kora:add_edge (list (caddr (assoc row starts)) (car below)) (list (cadr top) height)))
          (caddr below) tops)
  (setq starts (mapcar '(lambda (row bottom) (cons row bottom)) (caddr above) bottoms))
  (mapcar '(lambda (from to / over under)
             (setq over  (kora:has_between bottoms from to)
                   under (kora:has_between tops from to))
             (cond ((and over (not under)) (kora:add_edge (list from height) (list to height)))
                   ((and under (not over)) (kora:add_edge (list to height) (list from height)))))
          places (cdr places)))

(defun kora:at_places (ends)
  (mapcar '(lambda (end)
             (vl-some '(lambda (place) (if (<= (- end place) (* 2 slack)) place)) places))
          ends))

(defun kora:has_between (stretches from to)
  (vl-some '(lambda (row) (and (<= (car row) from) (>= (cadr row) to))) stretches))

(defun kora:add_edge (from to)
  (if (not (equal from to)) (setq edges (cons (list from to) edges))))

;; Loops of the edges. Where several go on, the one farthest to the left is of the same loop.
(defun kora:linked (edges / first edge loop loops)
  (while edges
    (setq first (car edges)
          edge  first
          loop  (list (car first)))
    (setq edges (cdr edges))
    (while (and edge (not (equal (cadr edge) (car first))))
      (setq loop (cons (cadr edge) loop)
            edge (kora:leftmost edge (vl-remove-if-not '(lambda (next) (equal (car next) (cadr edge))) edges)))
      (if edge (setq edges (vl-remove edge edges))))
    (if (cddr (setq loop (kora:without_middles (reverse loop)))) (setq loops (cons loop loops))))
  loops)

(defun kora:leftmost (edge choices / best turn most)
  (foreach next choices
    (setq turn (kora:one_turn (+ pi (- (angle (car next) (cadr next)) (angle (car edge) (cadr edge))))))
    (if (or (null best) (> turn most)) (setq best next most turn)))
  best)

;; Without points on the way straight on.
(defun kora:without_middles (points)
  (vl-remove nil
             (mapcar '(lambda (before point after)
                        (if (> (abs (kora:cross (mapcar '- point before) (mapcar '- after point)))
                               (* slack (distance before after)))
                          point))
                     (cons (last points) points) points (append (cdr points) (list (car points))))))

;; (kora_twice_area polygon) -> twice the area, negative of a clockwise polygon.
(defun kora_twice_area (polygon)
  (apply '+ (mapcar 'kora:cross polygon (append (cdr polygon) (list (car polygon))))))

;; (kora_with_holes loops) -> each loop around something as one polygon, with its holes at the end of a cut to them.
(defun kora_with_holes (loops / view)
  (mapcar '(lambda (outer)
             (setq view (kora_area_view (kora_area (list outer))))
             (foreach hole loops
               (if (and (minusp (kora_twice_area hole)) (= T (kora_in_area view (car hole) 0.0)))
                 (setq outer (append outer (list (car outer)) hole (list (car hole))))))
             outer)
          (vl-remove-if '(lambda (loop) (minusp (kora_twice_area loop))) loops)))
