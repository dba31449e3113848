;;; Entity data, selections, bounding boxes. Points are in world coordinates.

;; (kora_field data code) -> the value under a group code, nil when there is none.
(defun kora_field (data code) (cdr (assoc code data)))

;; (kora_with_field data code value) -> data with the first field of this code replaced, or with one more at the end.
(defun kora_with_field (data code value)
  (if (assoc code data)
    (subst (cons code value) (assoc code data) data)
    (append data (list (cons code value)))))

;; (kora_owner data) -> the entity name of what owns an entity or object; nil in early drawings. Those who only want to be
;; told of changes, within braces, are no owners.
(defun kora_owner (data / braces owner)
  (while (and data (null owner))
    (cond ((and (= (caar data) 102) (= (substr (cdar data) 1 1) "{")) (setq braces T))
          ((= (caar data) 102) (setq braces nil))
          ((and (= (caar data) 330) (not braces)) (setq owner (cdar data))))
    (setq data (cdr data)))
  owner)

;; (kora_extended data application code) -> the first value of a group code in an application's extended data, for which
;; data was asked; nil when there is none.
(defun kora_extended (data application code / found)
  (foreach own (kora_field data -3)
    (if (= (strcase (car own)) (strcase application)) (setq found (kora_field (cdr own) code))))
  found)

;; (kora_copy_data data) -> entity data fit to make another such entity from: without names, handle and owners.
(defun kora_copy_data (data)
  (vl-remove-if '(lambda (field) (member (car field) '(-1 5 102 330 360))) data))

;; (kora_handle entity) -> the handle by which the entity can be found again; nil when it has none, as in early drawings, or
;; one that leads to another entity.
(defun kora_handle (entity / handle)
  (setq handle (kora_field (entget entity) 5))
  (if (and handle (equal (handent handle) entity)) handle))

;; (kora_selection_to_list selection) -> the entity names of a selection set, nil for nil.
(defun kora_selection_to_list (selection / index names)
  (if selection
    (repeat (setq index (sslength selection))
      (setq names (cons (ssname selection (setq index (1- index))) names)))))

;; (kora_block_entities name) -> the entity names of a block definition.
(defun kora_block_entities (name / block entity names)
  (if (setq block (tblsearch "BLOCK" name))
    (progn
      (setq entity (kora_field block -2))
      (while entity
        (setq names  (cons entity names)
              entity (entnext entity)))))
  (reverse names))

;; (kora_block_box name) -> bounding box of a block definition as seen from its base point; nil when it is empty.
(defun kora_block_box (name / base)
  (setq base (kora:point3d (kora_field (tblsearch "BLOCK" name) 10)))
  (mapcar '(lambda (corner) (mapcar '- corner base))
          (kora_bounding_box (kora_block_entities name))))

;; (kora_bounding_box entities) -> (lower upper), two points, of what the entities draw; nil when nothing has an extent.
(defun kora_bounding_box (entities / lower upper)
  (foreach entity entities
    (foreach corner (acet-ent-geomextents entity)
      (setq lower (if lower (mapcar 'min lower corner) corner)
            upper (if upper (mapcar 'max upper corner) corner))))
  (if lower (list lower upper)))

(defun kora:place2d (point) (list (car point) (cadr point)))

(defun kora:point3d (point)
  (list (car point) (cadr point) (cond ((caddr point)) (0.0))))

;; Ends of an arc and the points where it meets the axes through its centre. Angles in radians, counter-clockwise.
(defun kora:arc_points (centre radius start end / points quarter)
  (if (<= end start) (setq end (+ end (* 2 pi))))
  (setq points  (list (polar centre start radius) (polar centre end radius))
        quarter (* 0.5 pi (fix (/ start (* 0.5 pi)))))
  (repeat 9
    (if (<= start quarter end) (setq points (cons (polar centre quarter radius) points)))
    (setq quarter (+ quarter (* 0.5 pi))))
  points)

;; A bulge is the tangent of a quarter of the arc's angle, positive counter-clockwise; half is half of that angle.
(defun kora:bulge_points (from to bulge / half radius centre)
  (setq half (* 2 (atan bulge))
        radius (/ (distance from to) 2 (sin half))
        centre (polar from (+ (angle from to) (- (* 0.5 pi) half)) radius))
  (if (> bulge 0)
    (kora:arc_points centre (abs radius) (angle centre from) (angle centre to))
    (kora:arc_points centre (abs radius) (angle centre to) (angle centre from))))

;; (kora_is_locked data) -> T when the entity's layer is locked.
(defun kora_is_locked (data / layer)
  (setq layer (tblsearch "LAYER" (cond ((kora_field data 8)) ("0"))))
  (and layer (/= 0 (logand 4 (cond ((kora_field layer 70)) (0))))))
