;;; menu: Frame texts | TEXTFRAME | Draws slots, rectangles or circles around texts
;;;
;;; TEXTFRAME: texts are chosen; the dialog gives the shape of the frames, their distance from the text, which of their
;;; dimensions are the same for all, and whether they are filled. Frames are on the layers of their texts, turned with
;;; them; a filling lies behind the text and over what was there. Dimensions that stay constant are those of the largest
;;; text. The straight sides of a slot are as long as the text, its ends are half circles. A circle goes around the
;;; corners of its text.

(setq textframe:filter '((0 . "TEXT,MTEXT,ATTDEF")))

(defun c:textframe (/ *error* kora:variables texts state)
  (setq texts (kora_chosen textframe:filter))
  (kora_begin '(("CMDECHO" . 0)))
  (if (and (setq texts (cond (texts) ((kora_choose "Select texts to frame: " textframe:filter))))
           (setq state (textframe:ask (kora_statefile "textframe") texts)))
    (textframe:run texts state))
  (kora_end))

;; -> the state, nil when cancelled. At first the distance is half the height of the first text.
(defun textframe:ask (file texts)
  (kora_suggest file "offset" (kora_number_text (* 0.5 (kora_field (entget (car texts)) 40)) 6))
  (if (Dlg_TextFrame file) (kora_readstate file)))

(defun textframe:is (state key) (= (kora_state_value state key) "TRUE"))

(defun textframe:run (texts state / open rows box offset framed colour unfilled)
  (setq open   (kora_unlocked texts)
        offset (max 0.0 (cond ((kora_state_real state "offset")) (0.0)))
        colour (if (textframe:is state "bk_hatch") (atoi (kora_state_value state "color")))
        unfilled 0)
  (foreach text open
    (if (setq box (kora_text_box (entget text)))
      (setq rows (cons (list text box) rows))))
  (foreach row (mapcar 'list (reverse rows) (textframe:shapes (mapcar 'cadr (reverse rows)) state offset))
    (if (and colour (not (textframe:fill (entget (caar row)) (cadar row) (cadr row) colour)))
      (setq unfilled (1+ unfilled)))
    (if (textframe:draw (entget (caar row)) (cadar row) (cadr row))
      (setq framed (cons (caar row) framed))))
  (if (and framed colour) (kora_bring_to_front (reverse framed)))
  (if (> unfilled 0) (kora_alert_message "A drawing of this version cannot have a filled background."))
  (kora_done (strcat (kora_counted (length framed) "text") " framed."
                     (if (< (length framed) (length open))
                       (strcat " " (itoa (- (length open) (length framed))) " could not be framed.")
                       ""))
             (- (length texts) (length open))))

;; -> for each box the outline of its frame: vertices (x y bulge) from the middle of the box, two for a circle.
(defun textframe:shapes (boxes state offset / sizes)
  (setq sizes (mapcar '(lambda (box) (list (cadr box) (caddr box))) boxes))
  (if (textframe:is state "type_circle")
    (mapcar '(lambda (radius) (list (list (- radius) 0.0 1.0) (list radius 0.0 1.0)))
            (textframe:radii sizes (textframe:is state "constant") offset))
    (mapcar '(lambda (size) (textframe:outline size (textframe:is state "type_rectangle") offset))
            (if (textframe:is state "constant") (textframe:made_alike sizes state) sizes))))

;; Half the diagonals and the distance.
(defun textframe:radii (sizes constant offset / radii largest)
  (setq radii   (mapcar '(lambda (size) (+ offset (* 0.5 (distance '(0.0 0.0) size)))) sizes)
        largest (apply 'max (cons 0.0 radii)))
  (if constant (mapcar '(lambda (radius) largest) radii) radii))

;; The sizes with the widest width, the highest height or both for all.
(defun textframe:made_alike (sizes state / width height)
  (if (not (textframe:is state "constant_height")) (setq width (apply 'max (cons 0.0 (mapcar 'car sizes)))))
  (if (not (textframe:is state "constant_width")) (setq height (apply 'max (cons 0.0 (mapcar 'cadr sizes)))))
  (mapcar '(lambda (size) (list (cond (width) ((car size))) (cond (height) ((cadr size))))) sizes))

(defun textframe:outline (size rectangle offset / height)
  (setq height (+ (cadr size) (* 2.0 offset)))
  (mapcar '(lambda (corner bulge) (append corner (list bulge)))
          (kora_corners (+ (car size) (if rectangle (* 2.0 offset) 0.0)) height)
          (if rectangle '(0.0 0.0 0.0 0.0) '(0.0 1.0 0.0 1.0))))

;; The vertices of an outline as groups: points of the given length, and bulges.
(defun textframe:vertices (box outline flat)
  (apply 'append
         (mapcar '(lambda (point vertex)
                    (list (cons 10 (if flat (list (car point) (cadr point)) point)) (cons 42 (caddr vertex))))
                 (kora_box_points box outline) outline)))

;; -> T after drawing the frame, nil when it cannot be made.
(defun textframe:draw (data box outline)
  (cond
    ((= (length outline) 2)
     (entmake (append '((0 . "CIRCLE") (100 . "AcDbEntity")) (kora_companion_fields data)
                      (list '(100 . "AcDbCircle") (cons 10 (car box)) (cons 40 (car (cadr outline)))
                            (cons 210 (kora_normal data))))))
    ((assoc 330 data)
     (entmake (append '((0 . "LWPOLYLINE") (100 . "AcDbEntity")) (kora_companion_fields data)
                      (list '(100 . "AcDbPolyline") (cons 90 (length outline)) '(70 . 1) (cons 38 (caddr (car box))))
                      (textframe:vertices box outline T)
                      (list (cons 210 (kora_normal data))))))
    (T (textframe:old_polyline data box outline))))

;; As early versions have it.
(defun textframe:old_polyline (data box outline / fields)
  (entmake (append '((0 . "POLYLINE")) (kora_companion_fields data)
                   (list '(66 . 1) (list 10 0.0 0.0 (caddr (car box))) '(70 . 1) (cons 210 (kora_normal data)))))
  (setq fields (textframe:vertices box outline nil))
  (while fields
    (entmake (append '((0 . "VERTEX")) (kora_companion_fields data) (list (car fields) (cadr fields))))
    (setq fields (cddr fields)))
  (entmake '((0 . "SEQEND"))))

;; -> T after filling the outline, nil when the drawing cannot have hatches.
(defun textframe:fill (data box outline colour)
  (if (assoc 330 data)
    (entmake (append '((0 . "HATCH") (100 . "AcDbEntity")) (kora_companion_fields data)
                     (list (cons 62 colour) '(100 . "AcDbHatch") (list 10 0.0 0.0 (caddr (car box)))
                           (cons 210 (kora_normal data)) '(2 . "SOLID") '(70 . 1) '(71 . 0) '(91 . 1) '(92 . 3)
                           '(72 . 1) '(73 . 1) (cons 93 (length outline)))
                     (textframe:vertices box outline T)
                     '((97 . 0) (75 . 0) (76 . 1) (98 . 0))))))

(princ)
