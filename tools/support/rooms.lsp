;;; Rooms: areas around a point that lines and curves enclose, of one entity or of many that touch or cross.
;;;
;;; A wall is a list (low-x low-y high-x high-y piece entity) of a line or of a part of an arc that only rises or falls
;;; and only goes left or right, so that its ends are the corners of its box. Walls are in strips from left to right,
;;; as many as the square root of their number, each with all that reach into it. What ends nearer than gap to another
;;; touches it.
;;;
;;; A way along a wall is (wall forth). One goes with the room on the left: at each node, where walls meet, the way
;;; on is the next one clockwise from where one came from.

;; (kora_walls entities tolerance) -> the walls that entities make, those in blocks too; curves that are no arcs are
;; straight within the tolerance. The list is (gap left width strip ...); nil when there are none.
(defun kora_walls (entities tolerance / walls left right)
  (foreach entity entities
    (foreach piece (kora:all_pieces (entget entity) tolerance)
      (foreach part (kora:monotone piece)
        (setq walls (cons (append (kora:ends_box part) (list part entity)) walls)))))
  (if walls
    (progn
      (setq left  (apply 'min (mapcar 'car walls))
            right (apply 'max (mapcar 'caddr walls)))
      (kora:strips walls left (max 1e-9 (/ (- right left) (max 1 (min 200 (fix (sqrt (length walls)))))))
                   (+ 1e-7 (* 1e-9 (max (abs left) (abs right) (- right left))))))))

(defun kora:all_pieces (data tolerance)
  (if (= (kora_field data 0) "INSERT")
    (kora_reference_pieces data tolerance)
    (kora:curve_pieces data tolerance)))

;; The parts of an arc between its leftmost, highest, rightmost and lowest points.
(defun kora:monotone (piece / arc places quarter)
  (if (= 0.0 (caddr piece))
    (list piece)
    (progn
      (setq arc     (kora_arc piece)
            quarter 0.0)
      (repeat 4
        (setq places  (cons (kora:turn_part arc (list (cos quarter) (sin quarter))) places)
              quarter (+ quarter (* 0.5 pi))))
      (setq places (kora:ordered (vl-remove-if-not '(lambda (place) (< 1e-9 place (- 1.0 1e-9))) places)))
      (mapcar '(lambda (from to) (kora:part_of piece from to)) (cons 0.0 places) (append places '(1.0))))))

(defun kora:ends_box (piece)
  (append (mapcar 'min (car piece) (cadr piece)) (mapcar 'max (car piece) (cadr piece))))

(defun kora:strips (walls left width gap / pairs strip strips number)
  (foreach wall walls
    (setq number (fix (/ (- (car wall) gap left) width)))
    (while (<= (+ left (* number width)) (+ (caddr wall) gap))
      (setq pairs  (cons (cons number wall) pairs)
            number (1+ number))))
  (setq number 0)
  (foreach pair (vl-sort pairs '(lambda (a b) (< (car a) (car b))))
    (while (< number (car pair)) (setq strips (cons strip strips) strip nil number (1+ number)))
    (setq strip (cons (cdr pair) strip)))
  (append (list gap left width) (reverse (cons strip strips))))

;; The walls whose boxes come near one, some of them more than once.
(defun kora:walls_at (low high / number found)
  (setq number (max 0 (fix (/ (- (car low) gap left) width))))
  (while (and (< number (length strips)) (<= (+ left (* number width)) (+ (car high) gap)))
    (foreach wall (nth number strips)
      (if (and (<= (car wall) (+ (car high) gap)) (>= (caddr wall) (- (car low) gap))
               (<= (cadr wall) (+ (cadr high) gap)) (>= (cadddr wall) (- (cadr low) gap)))
        (setq found (cons wall found))))
    (setq number (1+ number)))
  found)

;; (kora_room walls point tolerance) -> (loops entities): the pieces around the room at a point and around the islands
;; in it, and the entities that they are of; nil when the point is in none.
(defun kora_room (walls point tolerance / gap left width strips nodes loop used walked islands view)
  (setq gap    (car walls)
        left   (cadr walls)
        width  (caddr walls)
        strips (cdddr walls)
        point  (list (car point) (+ (cadr point) gap gap)))
  (vl-some '(lambda (hit)
              (setq loop (kora:walk hit)
                    view (if loop (kora_area_view (kora_area (list (kora_flattened loop tolerance))))))
              (if (not (and loop (> (kora_twice_area (kora_flattened loop tolerance)) 0.0)
                            (= T (kora_in_area view point 0.0))))
                (setq loop nil))
              loop)
           (kora:hits_to_the_left))
  (if loop
    (progn
      (kora:add_islands)
      (list (cons loop islands) (kora:distinct used)))))

;; A list of (x wall) of what a ray from the point meets, the nearest first.
(defun kora:hits_to_the_left (/ hits)
  (foreach wall (kora:walls_at (list left (cadr point)) point)
    (if (and (<= (cadr wall) (cadr point)) (< (cadr point) (cadddr wall)))
      (foreach place (kora:places_of (kora:piece_of wall)
                                     (list (list (- left width) (cadr point)) (list (car point) (cadr point)) 0.0))
        (setq hits (cons (list (car (kora_piece_at (kora:piece_of wall) place)) wall) hits)))))
  (vl-sort hits '(lambda (a b) (> (car a) (car b)))))

(defun kora:way_down (wall / piece)
  (setq piece (kora:piece_of wall))
  (list wall (> (cadar piece) (cadadr piece))))

;;; Walking

;; From what a ray met: the pieces around what is on the left of the wall there, downward; nil when there is no way
;; around.
(defun kora:walk (hit / way here)
  (setq way  (kora:way_down (cadr hit))
        here (kora:next_node way (cond ((kora:place_at (cadr hit) (list (car hit) (cadr point)))) (0.5)))
        way  (kora:way_on way here))
  (if way (kora:walk_from way (cadr here))))

;; used becomes the entities along the way, and walked the pieces of their walls.
(defun kora:walk_from (way start / first here place next steps loop)
  (setq used nil walked nil steps 0 first way here start)
  (while (and way (< steps 20000)
              (or (= steps 0) (not (and (equal here start gap) (equal way first)))))
    (setq place  (cond ((kora:place_at (car way) here)) (T (if (cadr way) 0.0 1.0)))
          next   (kora:next_node way place)
          loop   (kora:with_piece (kora:walked way place (car next)) loop)
          used   (cons (cadr (cddddr (car way))) used)
          walked (cons (kora:piece_of (car way)) walked)
          here   (cadr next)
          way    (kora:way_on way next)
          steps  (1+ steps)))
  (if (and way (< steps 20000)) (reverse loop)))

(defun kora:piece_of (wall) (car (cddddr wall)))

;; A piece that goes back over the last one takes it away: a wall that ends in the room.
(defun kora:with_piece (piece loop)
  (if (and loop (equal (caar loop) (cadr piece) gap) (equal (cadar loop) (car piece) gap)
           (equal (caddar loop) (- (caddr piece)) 1e-6))
    (cdr loop)
    (cons piece loop)))

(defun kora:walked (way from to)
  (if (cadr way)
    (kora:part_of (kora:piece_of (car way)) from to)
    (kora:turned_piece (kora:part_of (kora:piece_of (car way)) to from))))

(defun kora:turned_piece (piece) (list (cadr piece) (car piece) (- (caddr piece))))

;; (place point) of the next node behind a place of the wall.
;; What is nearer to the place than gap is the place.
(defun kora:next_node (way place / from found)
  (setq from (kora_piece_at (kora:piece_of (car way)) place))
  (foreach node (kora:nodes_of (car way))
    (if (and (if (cadr way) (> (car node) (+ place 1e-9)) (< (car node) (- place 1e-9)))
             (not (equal (cadr node) from gap)))
      (if (or (null found) (if (cadr way) (< (car node) (car found)) (> (car node) (car found))))
        (setq found node))))
  (cond (found)
        ((cadr way) (list 1.0 (cadr (kora:piece_of (car way)))))
        (T (list 0.0 (car (kora:piece_of (car way)))))))

;; The nodes of a wall, kept once they were looked for.
(defun kora:nodes_of (wall / piece known point found)
  (setq piece (kora:piece_of wall))
  (cond
    ((setq known (assoc piece nodes)) (cdr known))
    (T
     (setq found (list (list 0.0 (car piece)) (list 1.0 (cadr piece))))
     (foreach other (kora:walls_at (list (car wall) (cadr wall)) (list (caddr wall) (cadddr wall)))
       (if (not (equal (kora:piece_of other) piece))
         (foreach place (kora:places_of piece (kora:piece_of other))
           (setq point (kora_piece_at piece place))
           ;; A circle that touches the wall may give two points, as near to each other as numbers are exact.
           (if (not (vl-some '(lambda (node) (equal (cadr node) point gap)) found))
             (setq found (cons (list place point) found))))))
     (setq nodes (cons (cons piece found) nodes))
     found)))

;; Among all ways from a node the next one clockwise from the one that led there.
(defun kora:way_on (way node / back ways best least turn)
  (setq back (kora:heading (car way) (car node) (not (cadr way))))
  (foreach wall (kora:walls_at (cadr node) (cadr node))
    (if (setq turn (kora:place_at wall (cadr node)))
      (progn
        (if (< turn (- 1.0 1e-9)) (setq ways (cons (list wall T turn) ways)))
        (if (> turn 1e-9) (setq ways (cons (list wall nil turn) ways))))))
  (foreach next ways
    (setq turn (kora:one_turn (- back (kora:heading (car next) (caddr next) (cadr next)))))
    (if (< turn 1e-9) (setq turn (* 2 pi)))
    (if (or (null best) (< turn least)) (setq best next least turn)))
  (if best (list (car best) (cadr best))))

;; The direction of a way from a place; of an arc that of a short chord, so that what touches it lies beside it.
(defun kora:heading (wall place forth / piece)
  (setq piece (kora:piece_of wall))
  (angle (kora_piece_at piece place)
         (kora_piece_at piece (+ place (* 0.01 (if forth (- 1.0 place) (- place)))))))

;; The places of a piece where another crosses or touches it.
(defun kora:places_of (piece other)
  (vl-remove nil (mapcar '(lambda (point) (if (kora:place_on other point) (kora:place_on piece point)))
                         (append (list (car other) (cadr other)) (kora:crossings_of piece other)))))

(defun kora:place_at (wall point) (kora:place_on (kora:piece_of wall) point))

;; The place, 0 to 1, of a point that lies on a piece; nil when it is farther away than gap.
(defun kora:place_on (piece point / arc place)
  (setq point (list (car point) (cadr point)))
  (cond
    ((equal point (car piece) gap) 0.0)
    ((equal point (cadr piece) gap) 1.0)
    ((= 0.0 (caddr piece))
     (setq place (kora:place_along (car piece) (cadr piece) point))
     (if (and (< 0.0 place 1.0) (< (distance point (kora_piece_at piece place)) gap)) place))
    (T
     (setq arc   (kora_arc piece)
           place (kora:turn_part arc (mapcar '- point (car arc))))
     (if (and (< 0.0 place 1.0) (< (abs (- (distance point (car arc)) (cadr arc))) gap)) place))))

(defun kora:place_along (from to point / run)
  (setq run (mapcar '- to from))
  (/ (apply '+ (mapcar '* (mapcar '- point from) run)) (apply '+ (mapcar '* run run))))

;; The points that the lines or circles of two pieces have in common.
(defun kora:crossings_of (a b / point)
  (cond
    ((and (= 0.0 (caddr a)) (= 0.0 (caddr b)))
     (if (setq point (inters (car a) (cadr a) (car b) (cadr b) nil)) (list (list (car point) (cadr point)))))
    ((= 0.0 (caddr a)) (kora:on_circle (kora_arc b) (car a) (cadr a)))
    ((= 0.0 (caddr b)) (kora:on_circle (kora_arc a) (car b) (cadr b)))
    (T (kora:circles_meet (kora_arc a) (kora_arc b)))))

;; What a line through two points has in common with a circle; a line that touches it has one point.
(defun kora:on_circle (circle from to / place foot half along)
  (setq place (kora:place_along from to (car circle))
        foot  (mapcar '(lambda (a b) (+ a (* place (- b a)))) from to)
        half  (- (* (cadr circle) (cadr circle)) (expt (distance foot (car circle)) 2)))
  (cond
    ((> half 0.0)
     (setq along (angle from to))
     (list (polar foot along (sqrt half)) (polar foot along (- (sqrt half)))))
    ((< (- (distance foot (car circle)) (cadr circle)) gap) (list foot))))

(defun kora:circles_meet (a b / apart along)
  (setq apart (distance (car a) (car b)))
  (if (> apart gap)
    (progn
      (setq along (/ (+ (- (* (cadr a) (cadr a)) (* (cadr b) (cadr b))) (* apart apart)) (* 2 apart)))
      (kora:on_circle a (polar (car a) (angle (car a) (car b)) along)
                      (polar (polar (car a) (angle (car a) (car b)) along)
                             (+ (* 0.5 pi) (angle (car a) (car b))) 1.0)))))

;;; Islands

;; Of the walls in the room that were not passed on the way around it, the one farthest to the left is at the edge of an
;; island.
(defun kora:add_islands (/ rest mine box island points)
  (setq mine used
        box  (kora:points_box (kora_flattened loop tolerance))
        rest (vl-remove-if '(lambda (wall)
                              (or (not (= T (kora_in_area view (kora:middle_of wall) gap)))
                                  (member (kora:piece_of wall) walked)))
                           (kora:walls_at (car box) (cadr box)))
        rest (vl-sort rest '(lambda (a b) (< (car a) (car b)))))
  (while rest
    (setq island (kora:walk_around (car rest))
          mine   (append used mine)
          points (if island (kora_flattened island tolerance)))
    (if (and (cddr points) (< (kora_twice_area points) (- gap)))
      (setq islands (cons island islands)
            rest    (kora:outside_of points (cdr rest)))
      (setq rest (vl-remove-if '(lambda (wall) (member (kora:piece_of wall) (cons (kora:piece_of (car rest)) walked)))
                               (cdr rest)))))
  (setq used mine))

(defun kora:points_box (points)
  (list (list (apply 'min (mapcar 'car points)) (apply 'min (mapcar 'cadr points)))
        (list (apply 'max (mapcar 'car points)) (apply 'max (mapcar 'cadr points)))))

(defun kora:middle_of (wall) (kora_piece_at (kora:piece_of wall) 0.5))

;; From the left end of a wall, as if one came from the left.
(defun kora:walk_around (wall / piece at_start turn best least)
  (setq piece    (kora:piece_of wall)
        at_start (equal (caar piece) (car wall) gap)
        walked   nil)
  (foreach other (kora:walls_at (if at_start (car piece) (cadr piece)) (if at_start (car piece) (cadr piece)))
    (foreach forth '(T nil)
      (if (and (setq turn (kora:place_at other (if at_start (car piece) (cadr piece))))
               (if forth (< turn (- 1.0 1e-9)) (> turn 1e-9)))
        (progn
          (setq turn (kora:one_turn (- pi (kora:heading other turn forth))))
          (if (or (null best) (< turn least)) (setq best (list other forth) least turn))))))
  (if best (kora:walk_from best (if at_start (car piece) (cadr piece)))))

(defun kora:outside_of (points walls / view)
  (setq view (kora_area_view (kora_area (list points))))
  (vl-remove-if '(lambda (wall) (kora_in_area view (kora:middle_of wall) (max gap (* 2 tolerance)))) walls))

(defun kora:distinct (names / result)
  (foreach name names (if (not (member name result)) (setq result (cons name result))))
  result)
