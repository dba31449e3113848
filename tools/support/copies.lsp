;;; Copies of a pattern over an area, whole and cut.
;;;
;;; A part is the list of an entity to be made; the part of a reference that is to be clipped begins with (CLIP .
;;; polygon), in world coordinates. See patterns.lsp for area, corner, near, origin and turn.

(defun kora:copies (/ kind scale strokes cuts parts count cut left box)
  (setq kind    (car pattern)
        box     (kora_area_box area)
        slack   (* 1e-9 (+ (apply 'max (mapcar 'abs box)) (apply 'max size)))
        cuts    (kora_state_is state "trimtolimits")
        scale   (kora:copy_scale (kora_frame_size (cadr pattern)))
        strokes (if (and cuts (= kind 'BLOCK)) (kora:pattern_strokes))
        count   0 cut 0 left 0)
  (if (> (apply 'max (mapcar 'abs (mapcar '/ box (append step step)))) 1e9)
    (kora_refuse "The origin is too far away from the boundary.")
    (progn
      (kora_area_cells area size step 'kora:copy_at)
      (list parts count cut left))))

;; One without a width or a height is scaled as in the other direction.
(defun kora:copy_scale (own / scales)
  (setq scales (mapcar '(lambda (wanted had) (if (> had 1e-9) (/ wanted had))) size own))
  (list (cond ((car scales)) ((cadr scales)) (1.0)) (cond ((cadr scales)) ((car scales)) (1.0))))

;; As seen from the lower left corner of a copy, in its size.
(defun kora:pattern_strokes (/ low)
  (setq low (mapcar '* scale (caadr pattern)))
  (kora_strokes (caddr pattern) (list (car scale) 0.0 0.0 (cadr scale) (- (car low)) (- (cadr low)))
                (kora_pattern_tolerance state)))

(defun kora:copy_at (corner near / made)
  (cond
    ((or (null near) (not cuts)) (kora:whole_copy))
    ((member kind '(MASK IMAGE)) (kora:cut_picture))
    ((listp strokes) (if (= kind 'XREF) (kora:clip_copy) (kora:cut_block)))
    (T (kora:clip_copy))))

(defun kora:whole_copy ()
  (setq count (1+ count)
        parts (append (if (member kind '(MASK IMAGE))
                        (kora:pictures (list (kora:cell_corners)) nil)
                        (list (kora:reference_at corner)))
                      parts)))

(defun kora:cell_corners ()
  (mapcar '(lambda (offset) (mapcar '+ corner (mapcar '* size offset))) '((0.0 0.0) (1.0 0.0) (1.0 1.0) (0.0 1.0))))

(defun kora:reference_at (corner)
  (list '(0 . "INSERT") (cons 2 (caddr pattern))
        (cons 10 (kora:in_world (mapcar '(lambda (place low factor) (- place (* low factor)))
                                        corner (caadr pattern) scale)))
        (cons 41 (car scale)) (cons 42 (cadr scale)) (cons 43 (car scale)) (cons 50 turn)))

;; What of the block is in the area; all of it is a reference again.
(defun kora:cut_block (/ whole)
  (setq whole T)
  (foreach stroke strokes
    (cond ((= (cadr stroke) 'POINT) (kora:cut_point stroke))
          ((= (cadr stroke) 'AREA) (kora:cut_filled stroke))
          (T (kora:cut_curve stroke))))
  (cond
    (whole (kora:whole_copy))
    (made (kora:add_cut made))))

(defun kora:add_cut (made)
  (setq parts (append made parts)
        count (1+ count)
        cut   (1+ cut)))

(defun kora:cut_curve (stroke / moved runs)
  (setq moved (kora:moved_pieces (cadr stroke))
        runs  (kora_cut_pieces moved near slack)
        whole (and whole (equal (list moved) runs)))
  (foreach run runs (setq made (append (kora:run_entities (car stroke) run (caddr stroke)) made))))

(defun kora:moved_pieces (pieces)
  (mapcar '(lambda (piece)
             (list (mapcar '+ corner (car piece)) (mapcar '+ corner (cadr piece)) (caddr piece)))
          pieces))

(defun kora:cut_point (stroke / point)
  (setq point (mapcar '+ corner (caddr stroke)))
  (if (kora_in_area near point slack)
    (setq made (cons (append '((0 . "POINT")) (kora:look_of (car stroke)) (list (cons 10 (kora:in_world point)))) made))
    (setq whole nil)))

(defun kora:cut_filled (stroke / polygons loops)
  (setq polygons (mapcar '(lambda (points) (mapcar '(lambda (point) (mapcar '+ corner point)) points)) (caddr stroke))
        loops    (kora_common near polygons slack)
        whole    (and whole (equal (kora:twice_all loops)
                                   (kora:twice_all (kora_common (kora:everywhere) polygons slack))
                                   (* 1e-9 (apply '* size)))))
  (if loops (setq made (cons (kora:filled_entity stroke loops) made))))

(defun kora:twice_all (loops) (apply '+ (cons 0.0 (mapcar 'kora_twice_area loops))))

;; A view of an area that is all of the plane right of the anchor.
(defun kora:everywhere () (list (list (caar near) (cadar near) T)))

;; A hatch of loops, with the lines of that which was cut where it has any.
(defun kora:filled_entity (stroke loops / lines)
  (if (and (= (kora_field (car stroke) 0) "HATCH") (/= 1 (kora_field (car stroke) 70)))
    (setq lines (kora_mapped_lines (kora_hatch_lines (car stroke))
                                   (kora_map_times (kora_placing (kora:in_world corner) turn '(1.0 1.0))
                                                   (cadddr stroke)))))
  (kora_hatch (mapcar '(lambda (points) (mapcar 'kora:in_world points)) loops)
              (if lines (cons (kora_field (car stroke) 2) lines))
              (kora:look_of (car stroke))))

;; The whole block, hidden where it is out of the area, once for each part of its cell. Where there are no clips it is
;; left out.
(defun kora:clip_copy (/ loops)
  (setq loops (kora_common near (list (kora:cell_corners)) slack))
  (cond
    ((null (namedobjdict)) (setq left (1+ left)))
    (loops
     (kora:add_cut
       (mapcar '(lambda (polygon) (cons (cons 'CLIP (mapcar 'kora:in_world polygon)) (kora:reference_at corner)))
               (kora_with_holes loops))))))

;; (kora_clip_made part entity) clips the entity that was made of a part, if it is to be.
(defun kora_clip_made (part entity)
  (if (= (caar part) 'CLIP) (kora_clip_reference entity (cdar part))))

;; (kora_entity_of part) -> the list of the entity alone.
(defun kora_entity_of (part) (if (= (caar part) 'CLIP) (cdr part) part))

;;; Strokes

;; Entity data for pieces that follow each other, of the kind that they were cut from where that is possible.
(defun kora:run_entities (data run width / curved)
  (setq curved (vl-some '(lambda (piece) (/= 0.0 (caddr piece))) run))
  (cond
    ((= (kora_field data 0) "LINE") (mapcar '(lambda (piece) (kora:line_entity data piece)) run))
    ((and curved (member (kora_field data 0) '("ARC" "CIRCLE"))) (list (kora:arc_entity data run)))
    ((/= "AC1009" (kora_file_version)) (list (kora:polyline_entity data run)))
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
                (cons 43 width))
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

;;; Images and masks

(defun kora:cut_picture (/ loops)
  (if (setq loops (kora_common near (list (kora:cell_corners)) slack))
    (kora:add_cut (kora:pictures (kora_with_holes loops) loops))))

;; A picture for each polygon, and a mask's lines over them within the loops, or the polygons.
(defun kora:pictures (polygons loops)
  (append (mapcar 'kora:picture polygons)
          (if (and (= kind 'MASK) (caddr pattern)) (list (kora:lines_over (cond (loops) (polygons)))))))

;; As large as the cell, with the polygon as its boundary; a mask is a picture of one pixel.
(defun kora:picture (points / corners pixels)
  (setq corners (mapcar 'kora:in_world (kora:cell_corners))
        pixels  (if (= kind 'MASK) '(1.0 1.0) (mapcar 'float (cdaddr pattern)))
        points  (mapcar 'kora:in_picture (cons (last points) points)))
  (append (if (= kind 'MASK)
            (list '(0 . "WIPEOUT") '(100 . "AcDbEntity") (cons 8 (getvar "CLAYER")) '(100 . "AcDbWipeout"))
            (list '(0 . "IMAGE") '(100 . "AcDbEntity") (cons 8 (getvar "CLAYER")) '(100 . "AcDbRasterImage")))
          (list '(90 . 0) (cons 10 (car corners))
                (cons 11 (mapcar '(lambda (to from) (/ (- to from) (car pixels))) (cadr corners) (car corners)))
                (cons 12 (mapcar '(lambda (to from) (/ (- to from) (cadr pixels))) (cadddr corners) (car corners)))
                (list 13 (car pixels) (cadr pixels)))
          (if (= kind 'IMAGE) (list (cons 340 (caaddr pattern))))
          (list '(70 . 7) '(280 . 1) '(281 . 50) '(282 . 50) '(283 . 0) '(71 . 2) (cons 91 (length points)))
          (mapcar '(lambda (point) (cons 14 point)) points)))

;; In pixels from the middle of the upper left one, downward.
(defun kora:in_picture (point)
  (list (- (* (car pixels) (/ (- (car point) (car corner)) (car size))) 0.5)
        (- (* (cadr pixels) (- 1.0 (/ (- (cadr point) (cadr corner)) (cadr size)))) 0.5)))

;; A hatch whose pattern begins at the corner of the cell.
(defun kora:lines_over (loops / scale)
  (setq scale (getvar "HPSCALE")
        scale (* (if (and scale (> scale 0.0)) scale 1.0) (if (= 1 (getvar "MEASUREMENT")) 25.4 1.0)))
  (kora_hatch (mapcar '(lambda (points) (mapcar 'kora:in_world points)) loops)
              (cons (caaddr pattern)
                    (kora_mapped_lines (cdaddr pattern) (kora_placing (kora:in_world corner) turn (list scale scale))))
              (list (cons 8 (getvar "CLAYER")))))
