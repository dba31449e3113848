;;; Copies of a block, a drawing or a mask over an area: what PATTERNHATCH draws.
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
    (T)))

(defun kora:place_in (state keys)
  (append (mapcar '(lambda (key) (cond ((kora_state_real state key)) (0.0))) keys) '(0.0)))

(defun kora:area_in_grid (boundary tolerance)
  (foreach entity boundary
    (foreach polygon (kora_outlines (entget entity) tolerance)
      (setq polygons (cons (mapcar 'kora:in_grid polygon) polygons))))
  (kora_area polygons))

(defun kora:in_grid (point)
  (setq point (kora_turned_back (list (- (car point) (car origin)) (- (cadr point) (cadr origin)) 0.0) turn))
  (list (car point) (cadr point)))

(defun kora:in_world (point)
  (kora:turned origin turn point))

;;; The pattern: (kind frame name). The kind is BLOCK, XREF or MASK.

(defun kora:pattern_of (sources state)
  (cond
    ((kora_state_is state "pattern_block") (kora:block_pattern (cdr (assoc "lbtitleblock" sources))))
    ((kora_state_is state "pattern_xref") (kora:xref_pattern (cdr (assoc "lbtitlexref" sources)) frame))
    ((kora_state_is state "pattern_mask") (kora:mask_pattern (strcase (kora_state_value state "patternname"))))
    (T (kora_refuse (strcat "Copies of images cannot be drawn by this command: attach the image to a drawing and take "
                            "that as external reference.")))))

;; A block by its name in the drawing, or one that is made of a file.
(defun kora:block_pattern (text / name frame)
  (setq name  (if (tblsearch "BLOCK" text) text (kora:block_of_file text (strcat "PATTERN_" (vl-filename-base text))))
        frame (if name (kora_block_frame name)))
  (cond
    ((null name) nil)
    ((null frame) (kora_refuse (strcat "The block " name " shows nothing.")))
    (T (list 'BLOCK frame name))))

;; -> the name of the block that the drawing file is; one that the drawing has already is taken as it is. nil after a
;; message when the file cannot be read.
(defun kora:block_of_file (path name / before)
  (if (tblsearch "BLOCK" name)
    (kora_alert_message (strcat "The drawing's own block " name " is used."))
    (progn
      (setq before (entlast))
      (command "_.-INSERT" (strcat name "=" path))
      ;; Without the file there is no command any more that would ask on. What it asks for in the end are attributes.
      (if (> (getvar "CMDACTIVE") 0) (command '(0.0 0.0 0.0) 1.0 1.0 0.0))
      (while (> (getvar "CMDACTIVE") 0) (command ""))
      (if (not (equal (entlast) before)) (entdel (entlast)))))
  (if (tblsearch "BLOCK" name) name (kora_refuse (strcat "The drawing " path " cannot be read."))))

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
    ((null frame) (kora_refuse (strcat "The drawing " path " cannot be read, or shows nothing.")))
    ((null name) (kora_refuse (strcat "The drawing " path " cannot be attached.")))
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

;; A mask hides what is there; a hatch pattern over it would need that pattern's lines.
(defun kora:mask_pattern (name)
  (if (member name '("" "SOLID"))
    (list 'MASK '((0.0 0.0) (1.0 1.0)) nil)
    (kora_refuse (strcat "Masks with the hatch pattern " name
                         " cannot be drawn by this command: leave the pattern's name empty for plain masks."))))

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
     (kora_refuse (strcat "That would be about " (rtos count 2 0) " copies: make them larger.")))
    (T (initget "Yes No")
       (= "Yes" (getkword (strcat "\nUp to " (rtos count 2 0) " copies may be drawn. Go on? [Yes/No] <No>: "))))))

;;; Copies

(defun kora:copies (/ kind scale strokes cuts parts count cut left box)
  (setq kind    (car pattern)
        box     (kora_area_box area)
        slack   (* 1e-9 (+ (apply 'max (mapcar 'abs box)) (apply 'max size)))
        cuts    (kora_state_is state "trimtolimits")
        scale   (kora:copy_scale (kora_frame_size (cadr pattern)))
        strokes (if (and cuts (= kind 'BLOCK)) (kora:strokes_of (caddr pattern)))
        count   0 cut 0 left 0)
  (if (> (apply 'max (mapcar 'abs (mapcar '/ box (append step step)))) 1e9)
    (kora_refuse "The origin is too far away from the boundary.")
    (progn
      (kora_area_cells area size step 'kora:copy_at)
      (list parts count cut left))))

;; One without a width or a height is scaled as in the other direction.
(defun kora:copy_scale (own / scales)
  (setq scales (mapcar '(lambda (wanted is) (if (> is 1e-9) (/ wanted is))) size own))
  (list (cond ((car scales)) ((cadr scales)) (1.0)) (cond ((cadr scales)) ((car scales)) (1.0))))

(defun kora:copy_at (corner near / made)
  (cond
    ((or (null near) (not cuts)) (kora:whole_copy))
    ((= kind 'MASK) (kora:cut_mask))
    ((or (= kind 'XREF) (= strokes 'UNCUTTABLE)) (setq left (1+ left)))
    (T (kora:cut_block))))

(defun kora:whole_copy ()
  (setq count (1+ count)
        parts (cons (if (= kind 'MASK) (kora:mask (kora:cell_corners)) (kora:reference_at corner)) parts)))

(defun kora:cell_corners ()
  (mapcar '(lambda (offset) (mapcar '+ corner (mapcar '* size offset))) '((0.0 0.0) (1.0 0.0) (1.0 1.0) (0.0 1.0))))

(defun kora:reference_at (corner)
  (list '(0 . "INSERT") (cons 2 (caddr pattern))
        (cons 10 (kora:in_world (mapcar '(lambda (place low factor) (- place (* low factor)))
                                        corner (caadr pattern) scale)))
        (cons 41 (car scale)) (cons 42 (cadr scale)) (cons 43 (car scale)) (cons 50 turn)))

;; What of the block is in the area; all of it is a reference again.
(defun kora:cut_block (/ runs whole moved)
  (setq whole T)
  (foreach stroke strokes
    (setq moved (kora:moved_pieces (cadr stroke))
          runs  (kora_cut_pieces moved near slack)
          whole (and whole (equal (list moved) runs)))
    (foreach run runs (setq made (append (kora:run_entities (car stroke) run) made))))
  (cond
    (whole (kora:whole_copy))
    (made (setq parts (append made parts)
                count (1+ count)
                cut   (1+ cut)))))

(defun kora:moved_pieces (pieces)
  (mapcar '(lambda (piece)
             (list (mapcar '+ corner (car piece)) (mapcar '+ corner (cadr piece)) (caddr piece)))
          pieces))

;;; What a block is drawn with: strokes (data pieces), the pieces in the size of a copy as seen from its lower left
;;; corner, straight where the copy's proportions are not the block's.

;; -> the strokes, UNCUTTABLE when the block has something else in it.
(defun kora:strokes_of (name / base strokes pieces data)
  (setq base (mapcar '+ (kora:place2d (kora_field (tblsearch "BLOCK" name) 10)) (caadr pattern)))
  (foreach entity (kora_block_entities name)
    (setq data   (entget entity)
          pieces (kora_pieces data))
    (cond ((= (kora_field data 0) "ATTDEF"))
          ((and pieces (kora:is_even data) (listp strokes))
           (setq strokes (cons (list data (kora:scaled_pieces pieces base)) strokes)))
          (T (setq strokes 'UNCUTTABLE))))
  strokes)

(defun kora:place2d (point) (list (car point) (cadr point)))

;; Whether the whole stroke has one width; a polyline of early versions has none.
(defun kora:is_even (data)
  (cond ((= (kora_field data 0) "POLYLINE") (equal (kora:widths_of data) '(0.0)))
        ((= (kora_field data 0) "LWPOLYLINE") (null (cdr (kora:widths_of data))))
        (T)))

;; One that is for the whole polyline counts for all its parts.
(defun kora:widths_of (data / whole)
  (setq whole (cond ((kora_field data 43)) (0.0)))
  (if (/= whole 0.0)
    (list whole)
    (kora:sorted_once (cons (cond ((kora_field data 40)) (0.0))
                            (append (kora:values_of data 40) (kora:values_of data 41))))))

(defun kora:scaled_pieces (pieces base)
  (if (not (equal (car scale) (cadr scale) (* 1e-9 (car scale))))
    (setq pieces (kora:straight pieces (/ (kora_pattern_tolerance state) (apply 'max scale)))))
  (mapcar '(lambda (piece)
             (list (kora:scaled_point (car piece)) (kora:scaled_point (cadr piece)) (caddr piece)))
          pieces))

(defun kora:scaled_point (point)
  (mapcar '(lambda (place from factor) (* factor (- place from))) point base scale))

(defun kora:straight (pieces tolerance / points)
  (setq points (append (kora_flattened pieces tolerance) (list (cadr (last pieces)))))
  (mapcar '(lambda (from to) (list from to 0.0)) points (cdr points)))

;; Entity data for pieces that follow each other, of the kind that they were cut from where that is possible.
(defun kora:run_entities (data run / curved)
  (setq curved (vl-some '(lambda (piece) (/= 0.0 (caddr piece))) run))
  (cond
    ((= (kora_field data 0) "LINE") (mapcar '(lambda (piece) (kora:line_entity data piece)) run))
    ((and curved (member (kora_field data 0) '("ARC" "CIRCLE"))) (list (kora:arc_entity data run)))
    ((assoc 330 (entget (car boundary))) (list (kora:polyline_entity data run)))
    (T (mapcar '(lambda (piece)
                  (if (= 0.0 (caddr piece)) (kora:line_entity data piece) (kora:arc_entity data (list piece))))
               run))))

(defun kora:line_entity (data piece)
  (append '((0 . "LINE")) (kora:look_of data)
          (list (cons 10 (kora:in_world (car piece))) (cons 11 (kora:in_world (cadr piece))))))

;; An arc through the pieces, which are of one circle; the circle when they go all round.
(defun kora:arc_entity (data run / arc sweep start end)
  (setq arc   (kora_arc (car run))
        sweep (apply '+ (mapcar '(lambda (piece) (* 4 (atan (caddr piece)))) run))
        start (+ turn (caddr arc))
        end   (+ start sweep))
  (append (list (cons 0 (if (equal (abs sweep) (* 2 pi) 1e-9) "CIRCLE" "ARC")))
          (kora:look_of data)
          (list (cons 10 (kora:in_world (car arc))) (cons 40 (cadr arc)))
          (if (equal (abs sweep) (* 2 pi) 1e-9)
            nil
            (list (cons 50 (kora:one_turn (if (minusp sweep) end start)))
                  (cons 51 (kora:one_turn (if (minusp sweep) start end)))))))

(defun kora:one_turn (turn) (- turn (* 2 pi (kora:floor (/ turn (* 2 pi))))))

(defun kora:polyline_entity (data run / closed vertices)
  (setq closed   (equal (caar run) (cadr (last run)) slack)
        vertices (append (mapcar '(lambda (piece) (list (car piece) (caddr piece))) run)
                         (if closed nil (list (list (cadr (last run)) 0.0)))))
  (append '((0 . "LWPOLYLINE") (100 . "AcDbEntity")) (kora:look_of data)
          (list '(100 . "AcDbPolyline") (cons 90 (length vertices)) (cons 70 (if closed 1 0))
                (cons 43 (* (car scale) (if (= (kora_field data 0) "LWPOLYLINE") (car (kora:widths_of data)) 0.0))))
          (apply 'append
                 (mapcar '(lambda (vertex)
                            (list (cons 10 (kora:place2d (kora:in_world (car vertex)))) (cons 42 (cadr vertex))))
                         vertices))))

;; The look of an entity of a block where the block is inserted: what is on layer 0 or BYBLOCK looks like the reference.
(defun kora:look_of (data)
  (cons (cons 8 (if (= (kora_field data 8) "0") (getvar "CLAYER") (kora_field data 8)))
        (vl-remove-if-not '(lambda (field)
                             (and (member (car field) '(6 48 62 370 420))
                                  (not (equal field '(62 . 0)))
                                  (not (and (= (car field) 6) (= (strcase (cdr field)) "BYBLOCK")))))
                          data)))

;;; Masks

;; What of the cell is in the area, when that is one polygon; else the copy is left out.
(defun kora:cut_mask (/ found)
  (setq found (vl-remove nil (mapcar '(lambda (polygon) (kora_polygon_within polygon corner size)) polygons)))
  (if (= (length found) 1)
    (setq parts (cons (kora:mask (car found)) parts)
          count (1+ count)
          cut   (1+ cut))
    (setq left (1+ left))))

;; A picture of one point by one, as large as the cell, which its boundary goes around.
(defun kora:mask (points / corners)
  (setq corners (mapcar 'kora:in_world (kora:cell_corners))
        points  (mapcar 'kora:in_picture (cons (last points) points)))
  (append (list '(0 . "WIPEOUT") '(100 . "AcDbEntity") (cons 8 (getvar "CLAYER")) '(100 . "AcDbWipeout") '(90 . 0)
                (cons 10 (car corners)) (cons 11 (mapcar '- (cadr corners) (car corners)))
                (cons 12 (mapcar '- (cadddr corners) (car corners)))
                '(13 1.0 1.0 0.0) '(70 . 7) '(280 . 1) '(281 . 50) '(282 . 50) '(283 . 0) '(71 . 2)
                (cons 91 (length points)))
          (mapcar '(lambda (point) (cons 14 point)) points)))

;; From the picture's middle, downward.
(defun kora:in_picture (point)
  (list (- (/ (- (car point) (car corner)) (car size)) 0.5)
        (- 0.5 (/ (- (cadr point) (cadr corner)) (cadr size)))))
