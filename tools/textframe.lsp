;;; menu: Text frame | TEXTFRAME | Draws slots, rectangles or circles around texts | Texts
;;;
;;; TEXTFRAME: texts are chosen; the dialog gives the shape of the frames, their distance from the text, which of their
;;; dimensions are the same for all, and whether they are filled. Frames are on the layers of their texts, turned with
;;; them; a filling lies behind the text and over what was there. Dimensions that stay constant are those of the largest
;;; text. The straight sides of a slot are as long as the text, its ends are half circles. A circle goes around the
;;; corners of its text. Run again, it asks whether the frames of an earlier run are replaced.

(setq textframe:application "KORA_TEXTFRAME")
(setq textframe:filter '((0 . "TEXT,MTEXT,ATTDEF")))

(defun c:textframe (/ *error* kora:variables texts file)
  (setq texts (kora_chosen textframe:filter))
  (kora_begin '(("CMDECHO" . 0)))
  (if (and (setq texts (cond (texts) ((kora_choose "Select texts to frame: " textframe:filter))))
           (kora_suggest_offset (setq file (kora_statefile "textframe")) (entget (car texts)))
           (kora_show 'Dlg_TextFrame (list file)))
    (textframe:run texts (kora_readstate file)))
  (kora_end))

(defun textframe:run (texts state / free old framed colour made)
  (setq free   (kora_unlocked texts)
        old    (textframe:ask_old (kora_companions free textframe:application))
        colour (if (kora_state_is state "bk_hatch") (atoi (kora_state_value state "color"))))
  (foreach row (textframe:rows free state)
    (if (setq made (apply 'textframe:make (append (cdr row) (list colour))))
      (progn
        (foreach part made (kora_join_companion part (car row) textframe:application))
        (setq framed (cons (car row) framed)))))
  (kora_remove_companions old framed)
  (if (and framed colour)
    (if (kora_field (entget (car framed)) 330)
      (kora_bring_to_front framed)
      (kora_alert_message "A drawing of this version cannot have a filled background.")))
  (kora_done_with "TEXTFRAME" "framed" (reverse framed) free texts))

;; -> the frames of earlier runs that are to go.
(defun textframe:ask_old (old / count)
  (setq count (sslength (kora_selection (mapcar 'cadr old))))
  (if old
    (progn
      (kora_initget "Yes No")
      (if (/= "No" (getkword (kora_count count "\n1 text has a frame already. Replace? [Yes/No] <Yes>: "
                                              "\n%1 texts have frames already. Replace? [Yes/No] <Yes>: ")))
        old))))

;; -> list of (text data box outline) of the texts that show something.
(defun textframe:rows (texts state / data box rows)
  (foreach text texts
    (setq data (entget text))
    (if (setq box (kora_text_box data)) (setq rows (cons (list text data box) rows))))
  (setq rows (reverse rows))
  (mapcar '(lambda (row outline) (append row (list outline)))
          rows
          (textframe:shapes (mapcar 'caddr rows) state
                            (max 0.0 (cond ((kora_state_real state "offset")) (0.0))))))

;; The frame, and below it its filling when there is a colour. -> their entity names, nil when the frame cannot be made.
(defun textframe:make (data box outline colour / filling frame)
  (if colour (setq filling (textframe:fill data box outline colour)))
  (if (setq frame (textframe:draw data box outline))
    (if filling (list frame filling) (list frame))))

;; -> for each box the outline of its frame: vertices (x y bulge) from the middle of the box, two for a circle.
(defun textframe:shapes (boxes state offset / sizes)
  (setq sizes (mapcar '(lambda (box) (list (cadr box) (caddr box))) boxes))
  (if (kora_state_is state "type_circle")
    (mapcar '(lambda (radius) (list (list (- radius) 0.0 1.0) (list radius 0.0 1.0)))
            (textframe:radii sizes (kora_state_is state "constant") offset))
    (mapcar '(lambda (size) (textframe:outline size (kora_state_is state "type_rectangle") offset))
            (if (kora_state_is state "constant") (textframe:made_alike sizes state) sizes))))

;; Half the diagonals and the distance.
(defun textframe:radii (sizes constant offset / radii largest)
  (setq radii   (mapcar '(lambda (size) (+ offset (* 0.5 (distance '(0.0 0.0) size)))) sizes)
        largest (apply 'max (cons 0.0 radii)))
  (if constant (mapcar '(lambda (radius) largest) radii) radii))

;; The sizes with the widest width, the highest height or both for all.
(defun textframe:made_alike (sizes state / width height)
  (if (not (kora_state_is state "constant_height")) (setq width (apply 'max (cons 0.0 (mapcar 'car sizes)))))
  (if (not (kora_state_is state "constant_width")) (setq height (apply 'max (cons 0.0 (mapcar 'cadr sizes)))))
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

;; -> the entity name of the frame, nil when it cannot be made.
(defun textframe:draw (data box outline)
  (cond
    ((= (length outline) 2)
     (entmakex (append '((0 . "CIRCLE") (100 . "AcDbEntity")) (kora_companion_fields data)
                      (list '(100 . "AcDbCircle") (cons 10 (car box)) (cons 40 (car (cadr outline)))
                            (cons 210 (kora_normal data))))))
    ((assoc 330 data)
     (entmakex (append '((0 . "LWPOLYLINE") (100 . "AcDbEntity")) (kora_companion_fields data)
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
  (entmakex '((0 . "SEQEND"))))

;; An early drawing cannot have hatches.
(defun textframe:fill (data box outline colour)
  (if (assoc 330 data)
    (entmakex (append '((0 . "HATCH") (100 . "AcDbEntity")) (kora_companion_fields data)
                     (list (cons 62 colour) '(100 . "AcDbHatch") (list 10 0.0 0.0 (caddr (car box)))
                           (cons 210 (kora_normal data)) '(2 . "SOLID") '(70 . 1) '(71 . 0) '(91 . 1) '(92 . 3)
                           '(72 . 1) '(73 . 1) (cons 93 (length outline)))
                     (textframe:vertices box outline T)
                     '((97 . 0) (75 . 0) (76 . 1) (98 . 0))))))

(princ)
