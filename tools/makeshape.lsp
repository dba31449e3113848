;;; menu: Make shape | MAKESHAPE | Makes a shape of drawn lines and arcs and writes it into a shape source file | Lines and hatches
;;;
;;; MAKESHAPE: the dialog gives the file, the name and the resolution; then lines, arcs, circles and polylines are picked
;;; and the point that the shape is inserted by. The resolution is the number of steps that the longer side of the
;;; picked box is divided into, 1 to 255; every end of a line or arc moves to the nearest step. Inserted at size 1 the
;;; shape is 1 unit long.
;;;
;;; What is drawn is a list of pieces, each (from to bulge) in steps from the insertion point, not rounded; the bulge is
;;; the tangent of a quarter of an arc's angle, positive counter-clockwise, 0 of a line. A circle is (centre nil radius).

(defun c:makeshape (/ *error* kora:variables choice shape)
  (kora_begin '(("CMDECHO" . 0)))
  (if (and (setq choice (makeshape:ask (kora_statefile "makeshape")))
           (setq shape (makeshape:pick choice)))
    (makeshape:write choice shape))
  (kora_end))

;; -> (file name resolution), nil when the user gave up or what was entered cannot be used.
(defun makeshape:ask (file / state name text resolution)
  (if (kora_show 'Dlg_MakeShape (list file))
    (progn
      (setq state      (kora_readstate file)
            name       (strcase (kora_state_value state "name"))
            text       (kora_string_trim (kora_state_value state "resolution"))
            resolution (if (= text "") 128.0 (distof text 2)))
      (cond
        ((not (and (snvalid name) (makeshape:is_ascii name)))
         (kora_refuse (kora_text "A shape cannot be named %1." (list name))))
        ((or (null resolution) (/= resolution (fix resolution)) (not (<= 1 resolution 255)))
         (kora_refuse "The resolution must be a whole number from 1 to 255."))
        (T (list (kora_state_value state "shapefile") name (fix resolution)))))))

;; Shape names are read by programs that know no other letters.
(defun makeshape:is_ascii (text)
  (not (vl-some '(lambda (code) (> code 126)) (vl-string->list text))))

;; -> the bytes of the shape, nil when the user gave up or what was picked cannot be a shape.
(defun makeshape:pick (choice / entities base pieces box size)
  (if (and (setq entities (kora_choose "Select lines, arcs, circles and polylines: " nil))
           (setq entities (kora_usable entities (list (kora_other_kind "LINE,ARC,CIRCLE,LWPOLYLINE,POLYLINE")
                                                      '((lambda (data) (null (makeshape:pieces data)))
                                                        "tilted or in space"))))
           (or (<= (length entities) 2000) (kora_refuse "A shape cannot have so many parts."))
           (setq base (getPointOrtakit (kora_text "\nSpecify insertion point of the shape: " nil))))
    (progn
      (setq pieces (apply 'append (mapcar '(lambda (entity) (makeshape:pieces (entget entity))) entities))
            box    (makeshape:box pieces)
            size   (if box (apply 'max (mapcar '- (cadr box) (car box))) 0.0)
            base   (trans base 1 0))
      (cond
        ((< size 1e-9) (kora_refuse "What was picked has no extent."))
        ((> (length pieces) 2000) (kora_refuse "A shape cannot have so many parts."))
        ((> (apply 'max (mapcar '(lambda (corner) (distance (makeshape:flat base) corner)) box)) (* 20 size))
         (kora_refuse "The insertion point is too far away from what was picked."))
        (T (makeshape:encode
             (mapcar '(lambda (piece) (makeshape:in_steps piece base (/ (caddr choice) size))) pieces)
             (caddr choice)))))))

(defun makeshape:flat (point) (list (car point) (cadr point)))

;; The pieces of one entity in drawing units, none with more than half a turn; nil of one that is tilted.
(defun makeshape:pieces (data)
  (if (and (= (kora_field data 0) "CIRCLE") (equal (abs (caddr (kora_normal data))) 1.0 1e-9))
    (list (list (kora:seen_flat (kora_field data 10) (kora_normal data)) nil (kora_field data 40)))
    (apply 'append (mapcar '(lambda (piece) (apply 'makeshape:halved piece)) (kora_pieces data)))))

;; A piece, in two when it has more than half a turn.
(defun makeshape:halved (from to bulge)
  (if (> (abs bulge) 1.0) (makeshape:halves from to bulge) (list (list from to bulge))))

(defun makeshape:halves (from to bulge / middle half)
  (setq middle (makeshape:middle from to bulge)
        half   (kora:tangent (/ (atan bulge) 2.0)))
  (list (list from middle half) (list middle to half)))

;; The middle of a line or an arc, which lies to the right of the chord when the bulge is positive.
(defun makeshape:middle (from to bulge / chord)
  (setq chord (mapcar '- to from))
  (mapcar '(lambda (start step aside) (+ start (/ step 2.0) (* bulge 0.5 aside)))
          from chord (list (cadr chord) (- (car chord)))))

;; (lower upper) of the pieces.
(defun makeshape:box (pieces / points centre)
  (foreach piece pieces
    (setq centre (car piece)
          points (cond
                   ((null (cadr piece))
                    (append (mapcar '(lambda (sign) (mapcar '+ centre (list (* sign (caddr piece)) (* sign (caddr piece)))))
                                    '(1.0 -1.0))
                            points))
                   ((= 0.0 (caddr piece)) (cons (car piece) (cons (cadr piece) points)))
                   (T (append (mapcar 'makeshape:flat (kora:bulge_points (car piece) (cadr piece) (caddr piece)))
                              points)))))
  (if points
    (mapcar '(lambda (choose) (list (apply choose (mapcar 'car points)) (apply choose (mapcar 'cadr points))))
            '(min max))))

(defun makeshape:in_steps (piece base scale)
  (list (makeshape:scaled (car piece) base scale)
        (if (cadr piece) (makeshape:scaled (cadr piece) base scale))
        (if (cadr piece) (caddr piece) (* scale (caddr piece)))))

(defun makeshape:scaled (point base scale)
  (mapcar '(lambda (value from) (* scale (- value from))) point (makeshape:flat base)))

;; -> the bytes, scaled so that the shape is 1 unit long; nil after a message when there are more than 2,000.
(defun makeshape:encode (pieces resolution / codes)
  (setq codes (append (list 3 resolution) (makeshape:drawn pieces) (list 4 resolution 0)))
  (if (<= (length codes) 2000)
    codes
    (kora_refuse (kora_text "The shape needs %1 bytes; 2000 are the most." (list (itoa (length codes)))))))

;; The codes of all pieces, in an order and direction that lift the pen as seldom as can be seen at once. The pen is at
;; `at`, in steps, and down when `down`; straight moves wait in `moves` until the pen changes.
(defun makeshape:drawn (pieces / at down moves codes piece)
  (setq at '(0 0) down T)
  (while pieces
    (setq piece  (makeshape:next pieces)
          pieces (vl-remove (car piece) pieces)
          piece  (cdr piece))
    (makeshape:go (makeshape:start piece) nil)
    (cond
      ((null (cadr piece)) (makeshape:circle (makeshape:radius piece)))
      ((= 0.0 (caddr piece)) (makeshape:go (makeshape:step (cadr piece)) T))
      (T (makeshape:curve (car piece) (cadr piece) (caddr piece)))))
  (makeshape:flush)
  (reverse codes))

;; -> the piece to draw next, as it is in the list and as it is drawn: one at the pen, turned round where it must be.
(defun makeshape:next (pieces / found)
  (foreach piece pieces
    (if (not found)
      (cond
        ((equal (makeshape:start piece) at) (setq found (cons piece piece)))
        ((and (cadr piece) (equal (makeshape:step (cadr piece)) at))
         (setq found (cons piece (list (cadr piece) (car piece) (- (caddr piece)))))))))
  (cond (found) ((cons (car pieces) (car pieces)))))

;; A circle starts at its right.
(defun makeshape:start (piece / centre)
  (setq centre (car piece))
  (makeshape:step (if (cadr piece) centre (list (+ (car centre) (makeshape:radius piece)) (cadr centre)))))

(defun makeshape:radius (piece) (max 1 (makeshape:round (caddr piece))))

(defun makeshape:step (point) (mapcar 'makeshape:round point))
(defun makeshape:round (value) (fix (+ value (if (minusp value) -0.5 0.5))))

(defun makeshape:emit (bytes)
  (foreach byte bytes (setq codes (cons byte codes))))

;; Pen down is code 1, up is 2.
(defun makeshape:pen (is_down)
  (if (/= is_down down)
    (progn
      (makeshape:flush)
      (makeshape:emit (list (if is_down 1 2)))
      (setq down is_down))))

;; Moves the pen in a straight line, in as many parts as a byte's largest step needs.
(defun makeshape:go (target is_down / from run count number to)
  (setq from  at
        run   (mapcar '- target from)
        count (fix (/ (+ 126 (apply 'max (mapcar 'abs run))) 127))
        number 0)
  (if (> count 0) (makeshape:pen is_down))
  (repeat count
    (setq number (1+ number)
          to     (mapcar '(lambda (start step) (+ start (makeshape:round (/ (* 1.0 step number) count)))) from run)
          moves  (cons (mapcar '- to at) moves)
          at     to)))

;; The moves that wait: single bytes where one does, displacements otherwise, four and more of these in a row together.
(defun makeshape:flush (/ row)
  (foreach move (append (reverse moves) '(nil))
    (cond
      ((and move (null (makeshape:vector move))) (setq row (cons move row)))
      (T (makeshape:displacements (reverse row))
         (setq row nil)
         (if move (makeshape:emit (list (makeshape:vector move)))))))
  (setq moves nil))

(defun makeshape:displacements (row)
  (if (> (length row) 3)
    (progn
      (makeshape:emit '(9))
      (foreach move row (makeshape:emit move))
      (makeshape:emit '(0 0)))
    (foreach move row (makeshape:emit (cons 8 move)))))

;; The byte of a move in one of the sixteen directions: its longer side, at most 15, times 16 and the direction; nil for
;; another move.
(defun makeshape:vector (move / long short direction)
  (setq long  (apply 'max (mapcar 'abs move))
        short (apply 'min (mapcar 'abs move)))
  (if (and (<= long 15) (or (= short 0) (= short long) (= (* 2 short) long)))
    (progn
      (setq direction (makeshape:sixteenth (mapcar '(lambda (side) (/ (* 2 side) long)) move)))
      (+ (* 16 long) direction))))

;; Directions count counter-clockwise from the right; each goes two to the side of a square.
(defun makeshape:sixteenth (halves)
  (vl-position halves '((2 0) (2 1) (2 2) (1 2) (0 2) (-1 2) (-2 2) (-2 1)
                        (-2 0) (-2 -1) (-2 -2) (-1 -2) (0 -2) (1 -2) (2 -2) (2 -1))))

;; An arc of at most half a turn: code 12 with its displacement and its bulge in 127ths, in two where it is too long.
(defun makeshape:curve (from to bulge / target run)
  (setq target (makeshape:step to)
        run    (mapcar '- target at))
  (cond
    ((equal run '(0 0)) nil)
    ((> (apply 'max (mapcar 'abs run)) 127)
     (foreach half (makeshape:halves from to bulge)
       (makeshape:curve (car half) (cadr half) (caddr half))))
    ((= 0 (makeshape:round (* 127 bulge))) (makeshape:go target T))
    (T (makeshape:pen T)
       (makeshape:flush)
       (makeshape:emit (list 12 (car run) (cadr run) (makeshape:round (* 127 bulge))))
       (setq at target))))

;; All eight octants, which end where they start.
(defun makeshape:circle (radius)
  (makeshape:pen T)
  (makeshape:flush)
  (makeshape:emit (list 10 radius 0)))

;; Writes the shape under the number that it has, or the first free one.
(defun makeshape:write (choice codes / path lines headers number)
  (setq path    (car choice)
        lines   (if (vl-file-size path) (kora_file_lines path))
        headers (vl-remove nil (mapcar 'kora_header_fields lines))
        number  (makeshape:number headers (cadr choice)))
  (cond
    ((makeshape:is_font headers)
     (kora_refuse (kora_text "The file %1 is a text font. Nothing was written." (list path))))
    ((null number) (kora_refuse "The file has no free number left: 255 shapes are the most."))
    ((kora_save_definition path 2 (cadr choice)
                           (cons (strcat "*" number "," (itoa (length codes)) "," (cadr choice))
                                 (makeshape:code_lines codes)))
     (kora_alert_message (kora_text "Shape %1, number %2, %3 bytes, was written to %4." (list (cadr choice) number (itoa (length codes)) path))))))

;; Fonts have a number 0 or a word in its place.
(defun makeshape:is_font (headers)
  (vl-some '(lambda (header) (member (strcase (car header)) '("0" "UNIFONT" "BIGFONT"))) headers))

;; -> the number as text; nil when there is none.
(defun makeshape:number (headers name / own taken number)
  (setq own (vl-some '(lambda (header) (if (= (strcase (cond ((caddr header)) (""))) name) (car header))) headers)
        taken  (mapcar '(lambda (header) (makeshape:number_value (car header))) headers)
        number 1)
  (while (member number taken) (setq number (1+ number)))
  (cond (own) ((<= number 255) (itoa number))))

;; A number with a zero in front is hexadecimal.
(defun makeshape:number_value (text / value digit)
  (if (wcmatch text "0*")
    (progn
      (setq value 0)
      (foreach code (vl-string->list (strcase text))
        (setq digit (vl-position code (vl-string->list "0123456789ABCDEF"))
              value (if (and value digit) (+ digit (* 16 value)))))
      value)
    (atoi text)))

;; The bytes in lines of at most 75 letters, each but the last ending in a comma.
(defun makeshape:code_lines (codes / line lines text)
  (setq line "")
  (while codes
    (setq text  (strcat (itoa (car codes)) (if (cdr codes) "," ""))
          codes (cdr codes))
    (if (> (+ (strlen line) (strlen text)) 75)
      (setq lines (cons line lines)
            line  text)
      (setq line (strcat line text))))
  (reverse (cons line lines)))

(princ)
