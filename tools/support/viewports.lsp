;;; Viewports of the current paper space: which there are, what they show, new ones.
;;;
;;; The viewport with the number 1 is the sheet itself. A viewport's view has its middle (group 12) and its height
;;; (group 45) in the coordinates of the view's plane; on the sheet it has its middle (10), width (40) and height (41).

;; (kora_is_viewport data) -> T for a viewport that is not the sheet itself.
(defun kora_is_viewport (data)
  (and (= (kora_field data 0) "VIEWPORT") (/= 1 (kora_field data 69))))

;; (kora_layout_entities filter) -> the entity names of what fits filter on the current sheet, the sheet itself left out.
(defun kora_layout_entities (filter)
  (vl-remove-if '(lambda (entity) (kora_is_sheet (entget entity))) (kora:sheet_entities filter)))

;; The drawing may have other layouts; entities of old versions do not say theirs.
(defun kora:sheet_entities (filter / layout)
  (setq layout (strcase (getvar "CTAB")))
  (vl-remove-if-not '(lambda (entity) (= layout (strcase (cond ((kora_field (entget entity) 410)) (layout)))))
                    (kora_selection_to_list (ssget "_X" (cons '(67 . 1) filter)))))

;; (kora_is_sheet data) -> T for the viewport that is the sheet itself.
(defun kora_is_sheet (data)
  (and (= (kora_field data 0) "VIEWPORT") (= 1 (kora_field data 69))))

;; (kora_viewports) -> the entity names of the current layout's viewports, without the sheet itself.
(defun kora_viewports ()
  (kora_layout_entities '((0 . "VIEWPORT"))))

;; (kora_view_is_fixed data) -> T when the view of a viewport must not be moved: its display is locked, or it is a
;; perspective.
(defun kora_view_is_fixed (data)
  (/= 0 (logand 16385 (kora:viewport_flags data))))

;; (kora_viewport_is_clipped data) -> T when an entity of its own is the border of a viewport.
(defun kora_viewport_is_clipped (data)
  (/= 0 (logand 65536 (kora:viewport_flags data))))

(defun kora:viewport_flags (data) (cond ((kora_field data 90)) (0)))

;; A viewport that is off shows nothing.
(defun kora:viewport_is_on (data)
  (and (/= 0 (cond ((kora_field data 68)) (1)))
       (= 0 (logand 131072 (kora:viewport_flags data)))
       (> (cond ((kora_field data 45)) (0.0)) 0.0)))

;; (kora_viewport_at point) -> the entity name of the viewport around a point of the sheet in world coordinates, the
;; smallest of several; nil when there is none.
(defun kora_viewport_at (point / data area found least)
  (foreach entity (kora_viewports)
    (setq data (entget entity)
          area (* (kora_field data 40) (kora_field data 41)))
    (if (and (kora:viewport_is_on data)
             (<= (abs (- (car point) (car (kora_field data 10)))) (* 0.5 (kora_field data 40)))
             (<= (abs (- (cadr point) (cadr (kora_field data 10)))) (* 0.5 (kora_field data 41)))
             (or (null least) (< area least)))
      (setq found entity
            least area)))
  found)

;; (kora_pan_view data across up) -> the data with what the viewport shows moved on the sheet.
(defun kora_pan_view (data across up / scale middle)
  (setq scale  (/ (kora_field data 41) (kora_field data 45))
        middle (kora_field data 12))
  (kora_with_field data 12 (list (- (car middle) (/ across scale)) (- (cadr middle) (/ up scale)))))

;; (kora_make_viewports frames) makes viewports that show all of the model. frames is a list of (lower upper),
;; corners on the sheet in world coordinates. -> how many were made.
(defun kora_make_viewports (frames / model number status count)
  (kora:ensure_sheet)
  (setq model  (kora:model_box)
        number (kora:highest 69)
        status (kora:highest 68)
        count  0)
  (foreach frame frames
    (if (kora:make_viewport (car frame) (cadr frame) (kora:view_of model frame)
                            (+ status 1 count) (+ number 1 count))
      (setq count (1+ count))))
  count)

;; The highest of the numbers that the layout's viewports have under a group code; the sheet's own is 1.
(defun kora:highest (code)
  (apply 'max (cons 1 (mapcar '(lambda (entity) (cond ((kora_field (entget entity) code)) (0))) (kora_viewports)))))

;; -> (middle height) of a view of the model's box that fits into a frame; of an empty model the frame itself.
(defun kora:view_of (model frame / size extent)
  (setq size (mapcar '- (cadr frame) (car frame)))
  (if model
    (progn
      (setq extent (mapcar '- (cadr model) (car model)))
      (list (kora:middle (car model) (cadr model))
            (* 1.05 (max (cadr extent) (/ (* (car extent) (cadr size)) (car size))))))
    (list (kora:middle '(0.0 0.0) size) (cadr size))))

(defun kora:middle (low high)
  (list (* 0.5 (+ (car low) (car high))) (* 0.5 (+ (cadr low) (cadr high)))))

;; -> (lower upper) of what model space shows, nil when it shows nothing with an extent.
(defun kora:model_box (/ low high)
  (setvar "TILEMODE" 1)
  (setq low  (getvar "EXTMIN")
        high (getvar "EXTMAX"))
  (setvar "TILEMODE" 0)
  (if (and (<= (car low) (car high)) (<= (cadr low) (cadr high))
           (> (distance (list (car low) (cadr low)) (list (car high) (cadr high))) 0.0))
    (list low high)))

;; A layout that was never looked at has no viewport that is the sheet; readers count on it, in front of the others.
(defun kora:ensure_sheet (/ low high)
  (if (not (vl-some '(lambda (entity) (kora_is_sheet (entget entity))) (kora:sheet_entities '((0 . "VIEWPORT")))))
    (progn
      (setq low  (getvar "LIMMIN")
            high (getvar "LIMMAX"))
      (if (not (and (< (car low) (car high)) (< (cadr low) (cadr high))))
        (setq low '(0.0 0.0) high '(12.0 9.0)))
      (kora:make_viewport low high (list (kora:middle low high) (- (cadr high) (cadr low))) 1 1))))

;; view is (middle height). -> the data of the new entity, nil when it could not be made.
(defun kora:make_viewport (low high view status number / middle)
  (setq middle (kora:middle low high))
  (entmake (append (list '(0 . "VIEWPORT") '(100 . "AcDbEntity") '(67 . 1) (cons 410 (getvar "CTAB"))
                         '(100 . "AcDbViewport")
                         (list 10 (car middle) (cadr middle) 0.0)
                         (cons 40 (- (car high) (car low))) (cons 41 (- (cadr high) (cadr low)))
                         (cons 68 status) (cons 69 number)
                         (list 12 (caar view) (cadar view))
                         '(13 0.0 0.0) '(14 10.0 10.0) '(15 10.0 10.0) '(16 0.0 0.0 1.0) '(17 0.0 0.0 0.0)
                         '(42 . 50.0) '(43 . 0.0) '(44 . 0.0) (cons 45 (cadr view)))
                   ;; The flags: user coordinates of its own are shown at their origin, and the viewport is on.
                   '((50 . 0.0) (51 . 0.0) (72 . 1000) (90 . 32864) (281 . 0) (71 . 1) (74 . 0)
                     (110 0.0 0.0 0.0) (111 1.0 0.0 0.0) (112 0.0 1.0 0.0) (79 . 0) (146 . 0.0)))))
