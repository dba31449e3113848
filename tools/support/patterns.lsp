;;; Patterns over an area, what PATTERNHATCH draws: which there are, and how large they are.
;;;
;;; While copies are made, the grid is seen from its origin along its rows: `area` lies in these coordinates, `corner`
;;; is the lower left corner of a cell, and `near` the edges beside it. `origin` and `turn` lead from there to the
;;; world.

;; (kora_pattern_copies boundary sources frame state) -> (parts copies cut left): entity data to be made, and how many
;; copies they are, how many of these were cut at the boundary, and how many were left out because they cannot be cut;
;; nil after a message. The block that they refer to is in the drawing then. frame is that of an external reference.
(defun kora_pattern_copies (boundary sources frame state / pattern origin turn polygons area size step slack)
  (if (and (kora:may_draw state)
           (setq pattern (kora:pattern_of sources state))
           (setq size (kora:copy_size (kora_frame_size (cadr pattern)) state))
           (setq step (kora:copy_step size state)))
    (progn
      (setq origin (trans (kora:place_in state '("positionx" "positiony")) 1 0)
            turn   (+ (kora_user_axis) (* pi (/ (cond ((kora_state_real state "rotation")) (0.0)) 180.0)))
            area   (kora:area_in_grid boundary (kora_pattern_tolerance state)))
      (if (kora:may_be_so_many (kora_grid_count area size step))
        (kora:copies)))))

(defun kora_pattern_tolerance (state)
  (max 0.01 (cond ((kora_state_real state "tolerance")) (0.01))))

;; (kora_frame_size frame) -> (width height).
(defun kora_frame_size (frame) (mapcar '- (cadr frame) (car frame)))

;; (kora_user_axis) -> the direction of the user's x axis in the world.
(defun kora_user_axis ()
  (angle '(0.0 0.0 0.0) (trans '(1.0 0.0 0.0) 1 0 T)))

(defun kora:may_draw (state)
  (cond
    ((null boundary) (kora_refuse "There is no boundary."))
    ((not (equal (trans '(0.0 0.0 1.0) 1 0 T) '(0.0 0.0 1.0) 1e-9))
     (kora_refuse "The user coordinate system is tilted: patterns are drawn in the plane of the world."))
    ((and (kora_state_is state "typeobjectgroup") (null (namedobjdict)))
     (kora_refuse "A drawing of this version has no groups: choose an anonymous block."))
    ((and (or (kora_state_is state "pattern_image") (kora_state_is state "pattern_mask")) (null (namedobjdict)))
     (kora_refuse "A drawing of this version has neither images nor masks."))
    (T)))

(defun kora:place_in (state keys)
  (append (mapcar '(lambda (key) (cond ((kora_state_real state key)) (0.0))) keys) '(0.0)))

(defun kora:area_in_grid (boundary tolerance)
  (foreach entity boundary
    (foreach polygon (kora:boundary_polygons entity tolerance)
      (setq polygons (cons (mapcar 'kora:in_grid polygon) polygons))))
  (kora_area polygons))

;; A boundary is a list of closed entities and of rooms, see kora_room.
(defun kora:boundary_polygons (entity tolerance)
  (if (listp entity)
    (mapcar '(lambda (pieces) (kora_flattened pieces tolerance)) (car entity))
    (kora_outlines (entget entity) tolerance)))

;; (kora_boundary_entities entity) -> the entities that one of a boundary is.
(defun kora_boundary_entities (entity) (if (listp entity) (cadr entity) (list entity)))

(defun kora:in_grid (point)
  (setq point (kora_turned_back (list (- (car point) (car origin)) (- (cadr point) (cadr origin)) 0.0) turn))
  (list (car point) (cadr point)))

(defun kora:in_world (point)
  (kora:turned origin turn point))

;;; The pattern: (kind frame what). The kind is BLOCK, XREF, IMAGE or MASK; what is the name of a block, (definition
;;; width height) of an image with its size in pixels, or the lines of a mask.

(defun kora:pattern_of (sources state)
  (cond
    ((kora_state_is state "pattern_block") (kora:block_pattern (cdr (assoc "lbtitleblock" sources))))
    ((kora_state_is state "pattern_xref") (kora:xref_pattern (cdr (assoc "lbtitlexref" sources)) frame))
    ((kora_state_is state "pattern_mask") (kora:mask_pattern (strcase (kora_state_value state "patternname"))))
    (T (kora:image_pattern (cdr (assoc "lbtitleimage" sources))))))

;; A block by its name in the drawing, or one that is made of a file.
(defun kora:block_pattern (text / name frame)
  (setq name  (if (tblsearch "BLOCK" text) text (kora:block_of_file text (strcat "PATTERN_" (vl-filename-base text))))
        frame (if name (kora_block_frame name)))
  (cond
    ((null name) nil)
    ((null frame) (kora_refuse (kora_text "The block %1 shows nothing." (list name))))
    (T (list 'BLOCK frame name))))

;; -> the name of the block that the drawing file is; one that the drawing has already is taken as it is. nil after a
;; message when the file cannot be read.
(defun kora:block_of_file (path name / before)
  (if (tblsearch "BLOCK" name)
    (kora_alert_message (kora_text "The drawing's own block %1 is used." (list name)))
    (progn
      (setq before (entlast))
      (command "_.-INSERT" (strcat name "=" path))
      ;; Without the file there is no command any more that would ask on. What it asks for in the end are attributes.
      (if (> (getvar "CMDACTIVE") 0) (command '(0.0 0.0 0.0) 1.0 1.0 0.0))
      (while (> (getvar "CMDACTIVE") 0) (command ""))
      (if (not (equal (entlast) before)) (entdel (entlast)))))
  (if (tblsearch "BLOCK" name) name (kora_refuse (kora_text "The drawing %1 cannot be read." (list path)))))

(defun kora:xref_pattern (path frame / before name)
  (setq before (entlast))
  (if frame
    (progn
      (command "_.-XREF" "_Attach" path)
      (if (> (getvar "CMDACTIVE") 0) (command '(0.0 0.0 0.0) 1.0 1.0 0.0))
      (if (not (equal (entlast) before))
        (progn
          (setq name (kora_field (entget (entlast)) 2))
          (entdel (entlast))))))
  (cond
    ((null frame) (kora_refuse (kora_text "The drawing %1 cannot be read, or shows nothing." (list path))))
    ((null name) (kora_refuse (kora_text "The drawing %1 cannot be attached." (list path))))
    (T (list 'XREF frame name))))

;; (kora_file_frame path) -> the frame of what a drawing file shows, nil when it cannot be read. For that it is a block
;; of this drawing for a moment; what was changed before is a step of its own.
(defun kora_file_frame (path / name frame)
  (setq name "PATTERN_MEASURED")
  (while (tblsearch "BLOCK" name) (setq name (strcat name "_")))
  (kora_undo_end)
  (kora_undo_begin)
  (if (kora:block_of_file path name)
    (progn
      (setq frame (kora_block_frame name))
      (kora_undo_end)
      (command "_.UNDO" 1)
      (kora_undo_begin)))
  frame)

;; A mask hides what is there; the lines of a hatch pattern go over it.
(defun kora:mask_pattern (name / lines)
  (cond
    ((member name '("" "SOLID")) (list 'MASK '((0.0 0.0) (1.0 1.0)) nil))
    ((setq lines (kora_hatch_pattern name)) (list 'MASK '((0.0 0.0) (1.0 1.0)) (cons name lines)))
    (T (kora_refuse (kora_text "The hatch pattern %1 is in no file of patterns." (list name))))))

;; An image is 1 wide by itself.
(defun kora:image_pattern (path / size definition)
  (cond
    ((null (setq size (kora_picture_size path)))
     (kora_refuse (kora_text "The image %1 cannot be read, or is of a kind whose size is not known." (list path))))
    ((null (setq definition (kora_image_definition path size)))
     (kora_refuse (kora_text "The image %1 cannot be attached." (list path))))
    (T (list 'IMAGE (list '(0.0 0.0) (list 1.0 (/ (float (cadr size)) (car size)))) (cons definition size)))))

;;; Sizes

;; -> (width height) of a copy.
(defun kora:copy_size (own state / given)
  (setq given (kora:place_in state '("width" "height"))
        given (list (car given) (cadr given)))
  (if (kora_state_is state "scalefactor") (setq given (mapcar '* given own)))
  (if (> (apply 'min given) 1e-9)
    given
    (kora_refuse "A pattern without width or height needs its size in drawing units.")))

(defun kora:copy_step (size state / step)
  (setq step (mapcar '+ size (kora:place2d (kora:place_in state '("offsetx" "offsety")))))
  (if (> (apply 'min (mapcar '/ step size)) 1e-6)
    step
    (kora_refuse "The copies do not move on: size and spacing together must be greater than zero.")))

;; The question is asked from 10,000 copies on; a drawing with a hundred times as many is of use to nobody.
(defun kora:may_be_so_many (count)
  (cond
    ((<= count 10000.0) T)
    ((> count 1000000.0)
     (kora_refuse (kora_text "That would be about %1 copies: make them larger." (list (rtos count 2 0)))))
    (T (kora_initget "Yes No")
       (= "Yes" (kora_asked 'getkword
                            (list (kora_text "\nUp to %1 copies may be drawn. Go on? [Yes/No] <No>: " (list (rtos count 2 0)))))))))
