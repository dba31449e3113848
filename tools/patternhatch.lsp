;;; menu: Pattern hatch | PATTERNHATCH | Fills a closed area with copies of a block, an image, a drawing or a mask | Lines and hatches
;;;
;;; PATTERNHATCH: the dialog gives what the area is filled with, how the copies are sized, spaced, placed and turned,
;;; and what becomes of those that reach over the boundary. On the way the boundary is picked, as closed entities, as
;;; points in rooms that lines and curves enclose or as a hatch, and so are the origin, the angle, or a reference that
;;; shows the pattern. Closed entities that are chosen already are the boundary. One within another is a hole.
;;;
;;; The lower left corner of what the pattern shows stands at the origin and the grid's other points. Cut at the
;;; boundary are lines, curves and filled areas, through all blocks within a block, images and masks; a copy of anything
;;; else is clipped as a whole, or left out where a drawing has no clips. The copies are on the current layer, and so is
;;; what is cut, where the block has it on layer 0. Esc at a prompt comes back to the dialog.

(setq patternhatch:closed '((0 . "LWPOLYLINE,POLYLINE,CIRCLE,ELLIPSE,SPLINE,HATCH")))

(defun c:patternhatch (/ *error* kora:variables boundary sources exact file mode action previewed shown)
  (setq boundary (kora_chosen patternhatch:closed))
  (kora_begin '(("CMDECHO" . 0)))
  (setq *error*  patternhatch:error
        boundary (patternhatch:closed_ones boundary)
        file     (kora_statefile "patternhatch")
        sources  (patternhatch:last_sources (kora_readstate file))
        mode     "NEW")
  (while mode
    (patternhatch:tell)
    (setq action (kora_show 'Dlg_PatternHatch (list file mode))
          mode   (if action (patternhatch:do (patternhatch:exactly (kora_readstate file)) action))))
  (patternhatch:tell)
  (kora_end))

;; A preview and a highlighting end with the command.
(defun patternhatch:error (message)
  (patternhatch:unshow)
  (patternhatch:take_back)
  (patternhatch:tell)
  (kora_error message))

;; The files or blocks of the last time: a list of (label . text).
(defun patternhatch:last_sources (state)
  (mapcar '(lambda (label) (cons label (kora_state_value state label))) '("lbtitleblock" "lbtitlexref" "lbtitleimage")))

;; Writes what the dialog does not keep of its own.
(defun patternhatch:tell ()
  (kora_writestate file (cons (cons "qtentities" (itoa (length boundary))) sources)))

;; Carries out what the dialog was closed with. -> the mode to open it in again, nil when that is not to be.
(defun patternhatch:do (state action / word)
  (patternhatch:take_sources state)
  (setq word (car (kora_string_split action "=")))
  (cond
    ((= word "OK") (if (patternhatch:draw state) nil "EDIT"))
    ((= word "PREVIEW") (patternhatch:preview state) "EDIT")
    ((setq word (assoc word '(("GET_BLOCK" . "lbtitleblock") ("GET_XREF" . "lbtitlexref")
                               ("GET_IMAGE" . "lbtitleimage"))))
     (patternhatch:set_source (cdr word) (substr action (+ (strlen (car word)) 2)))
     "EDIT")
    ((= action "GET_ORIGIN") (patternhatch:get_origin) "EDIT")
    ((= action "GET_ROTATION") (patternhatch:get_rotation state) "EDIT")
    ((= action "GET_ENTITY") (patternhatch:get_entity state) "EXTRACTENTITY")
    (T (patternhatch:change_boundary action state) "BOUNDARIES")))

;; The dialog writes the files or blocks that a favourite has brought.
(defun patternhatch:take_sources (state)
  (foreach source (patternhatch:last_sources state)
    (if (/= (cdr source) "")
      (patternhatch:set_source (car source) (cdr source)))))

(defun patternhatch:set_source (label text)
  (setq sources (subst (cons label text) (assoc label sources) sources)))

;;; The boundary

(defun patternhatch:change_boundary (action state)
  (cond
    ((= action "GET_ENTITIES")
     (patternhatch:add
       (patternhatch:closed_ones
         (kora_asked 'kora_choose (list "Select closed boundary entities: " patternhatch:closed)))))
    ((= action "GET_POINTS") (patternhatch:pick_points (kora_pattern_tolerance state)))
    ((= action "GET_FROMHATCH") (patternhatch:pick_hatch))
    ((= action "DELETE") (setq boundary nil))
    ((= action "SHOW") (patternhatch:show))))

(defun patternhatch:add (entities)
  (foreach entity entities
    (if (not (member entity boundary)) (setq boundary (append boundary (list entity))))))

;; Those that are closed; the number of others is said.
(defun patternhatch:closed_ones (entities / closed)
  (setq closed (vl-remove-if-not '(lambda (entity) (kora_outlines (entget entity) 1.0)) entities))
  (if (< (length closed) (length entities))
    (kora_alert_message (kora_text "%1 of those chosen cannot be a boundary: open or tilted." (list (itoa (- (length entities) (length closed)))))))
  closed)

(defun patternhatch:pick_points (tolerance / walls point room)
  (while (setq point (kora_asked 'getPointOrtakit
                                 (list (if walls "\nSpecify next internal point: " "\nSpecify internal point: "))))
    (setq walls (cond (walls) ((kora_walls (patternhatch:curves) tolerance)))
          room  (if walls (kora_room walls (trans point 1 0) tolerance)))
    (if room
      (patternhatch:add (list room))
      (kora_alert_message "Nothing encloses this point."))))

;; What can be seen of lines and curves in the current space, and of blocks with such.
(defun patternhatch:curves ()
  (vl-remove-if '(lambda (entity) (patternhatch:is_hidden (entget entity)))
                (kora_selection_to_list
                  (ssget "_X" (cons (cons 410 (getvar "CTAB"))
                                    '((0 . "LINE,ARC,CIRCLE,LWPOLYLINE,POLYLINE,ELLIPSE,SPLINE,INSERT")))))))

(defun patternhatch:is_hidden (data / layer)
  (setq layer (tblsearch "LAYER" (kora_field data 8)))
  (or (= 1 (kora_field data 60))
      (/= 0 (logand 1 (cond ((kora_field layer 70)) (0))))
      (minusp (cond ((kora_field layer 62)) (7)))))

(defun patternhatch:pick_hatch (/ pick)
  (cond
    ((null (setq pick (kora_asked 'entsel (list (kora_text "\nSelect a hatch: " nil))))) (kora_alert_message "Nothing was chosen."))
    ((/= (kora_field (entget (car pick)) 0) "HATCH") (kora_alert_message "That is not a hatch."))
    (T (patternhatch:add (patternhatch:closed_ones (list (car pick)))))))

(defun patternhatch:show ()
  (setq shown (apply 'append (mapcar 'kora_boundary_entities boundary)))
  (foreach entity shown (redraw entity 3))
  (patternhatch:wait)
  (patternhatch:unshow))

(defun patternhatch:unshow ()
  (foreach entity shown (redraw entity 4))
  (setq shown nil))

(defun patternhatch:wait ()
  (kora_asked 'getstring (list (kora_text "\nPress Enter to return to the dialog: " nil))))

;;; Origin, angle and pattern from the drawing

(defun patternhatch:get_origin (/ point)
  (if (setq point (kora_asked 'getPointOrtakit (list (kora_text "\nSpecify pattern origin: " nil))))
    (patternhatch:write_origin point)))

(defun patternhatch:write_origin (point)
  (patternhatch:write "positionx" (car point))
  (patternhatch:write "positiony" (cadr point)))

;; Enters a number. The dialog hands six digits of it back, which is not enough for a point far from the origin.
(defun patternhatch:write (key value)
  (setq exact (cons (cons key value) exact))
  (kora_writestate file (list (cons key (kora_number_text value 12)))))

;; The state with the numbers that were entered, where the dialog's are these but for the digits that it leaves out.
(defun patternhatch:exactly (state)
  (mapcar '(lambda (entry / known)
             (setq known (cdr (assoc (car entry) exact)))
             (if (and known (equal (distof (cdr entry) 2) known (* 5.1e-6 (abs known))))
               (cons (car entry) (kora_number_text known 12))
               entry))
          state))

(defun patternhatch:get_rotation (state / base turn)
  (setq base (kora:place_in state '("positionx" "positiony")))
  (if (setq turn (kora_asked 'getAngleOrtakit (list base (kora_text "\nSpecify rotation angle: " nil))))
    (patternhatch:write_rotation turn)))

(defun patternhatch:write_rotation (turn)
  (patternhatch:write "rotation" (/ (* 180.0 turn) pi)))

(defun patternhatch:get_entity (state / pick data)
  (setq pick (kora_asked 'entsel (list (kora_text "\nSelect a block or external reference that shows the pattern: " nil)))
        data (if pick (entget (car pick))))
  (cond
    ((null pick) (kora_alert_message "Nothing was chosen."))
    ((/= (kora_field data 0) "INSERT") (kora_alert_message "That is no block and no external reference."))
    ((not (equal (kora_normal data) '(0.0 0.0 1.0) 1e-9)) (kora_alert_message "The reference is tilted or mirrored."))
    (T (patternhatch:take_reference data state))))

;; Fills type, size, position and rotation from a reference.
(defun patternhatch:take_reference (data state / name path frame scale turn)
  (setq name  (kora_field data 2)
        path  (patternhatch:reference_path name)
        frame (if path (kora_file_frame path) (kora_block_frame name))
        scale (mapcar '(lambda (code) (abs (cond ((kora_field data code)) (1.0)))) '(41 42))
        turn  (cond ((kora_field data 50)) (0.0)))
  (if frame
    (progn
      (patternhatch:set_source (if path "lbtitlexref" "lbtitleblock") (cond (path) (name)))
      (kora_writestate file
        (append (mapcar '(lambda (key) (cons key "FALSE")) '("pattern_image" "pattern_mask"))
                (list (cons "pattern_block" (if path "FALSE" "TRUE")) (cons "pattern_xref" (if path "TRUE" "FALSE")))))
      (mapcar 'patternhatch:write
              '("width" "height")
              (if (kora_state_is state "scalefactor") scale (mapcar '* scale (kora_frame_size frame))))
      (patternhatch:write_origin (trans (kora:turned (kora_field data 10) turn (mapcar '* scale (car frame))) 0 1))
      (patternhatch:write_rotation (- turn (kora_user_axis))))
    (kora_alert_message (kora_text "The pattern %1 shows nothing, or its file cannot be read." (list name)))))

;; The path of an external reference, nil for another block.
(defun patternhatch:reference_path (name / block)
  (setq block (tblsearch "BLOCK" name))
  (if (/= 0 (logand 4 (cond ((kora_field block 70)) (0)))) (cond ((kora_field block 1)) (name))))

;; The direction of the user's x axis in the world.
(defun patternhatch:axis ()
  (angle '(0.0 0.0 0.0) (trans '(1.0 0.0 0.0) 1 0 T)))

;;; Drawing

;; Draws the pattern and says so. -> T, nil after a message when it cannot be drawn.
(defun patternhatch:draw (state / copies)
  (if (setq copies (patternhatch:make_copies state))
    (progn
      (entdel previewed)
      (setq previewed nil)
      (patternhatch:report copies "drawn")
      T)
    (patternhatch:take_back)))

;; Makes the copies as a step of its own. -> what they are, see kora_pattern_copies; nil after a message.
(defun patternhatch:make_copies (state / frame copies)
  (if (kora_state_is state "pattern_xref")
    (setq frame (kora_file_frame (cdr (assoc "lbtitlexref" sources)))))
  (patternhatch:new_step)
  (if (and (setq copies (kora_pattern_copies boundary sources frame state))
           (patternhatch:make (car copies) state))
    copies))

(defun patternhatch:report (copies verb / trimmed left)
  (setq trimmed (caddr copies)
        left    (cadddr copies))
  (kora_alert_message
    (strcat (if (= verb "shown")
              (kora_count (cadr copies) "1 copy shown" "%1 copies shown")
              (kora_count (cadr copies) "1 copy drawn" "%1 copies drawn"))
            (kora_also trimmed " of them cut at the boundary") "."
            (if (> left 0)
              (strcat " " (kora_count left "1 was left out: they cannot be cut." "%1 were left out: they cannot be cut."))
              ""))))

(defun patternhatch:preview (state / copies)
  (if (setq copies (patternhatch:make_copies state))
    (progn
      (patternhatch:report copies "shown")
      (patternhatch:wait)))
  (patternhatch:take_back))

;; What is made from here on can be taken back. Until it is kept there is a point in the step that nobody sees: were
;; nothing in it, the user's last command would be taken back in its place.
(defun patternhatch:new_step ()
  (kora_undo_end)
  (kora_undo_begin)
  (setq previewed (entmakex '((0 . "POINT") (60 . 1) (10 0.0 0.0 0.0)))))

;; -> nil. Leaves the drawing as it was before the step.
(defun patternhatch:take_back ()
  (if previewed (kora_take_back))
  (setq previewed nil))

;; Makes the parts, entity data, and joins them to a block or a group. -> T, nil after a message.
(defun patternhatch:make (parts state)
  (cond
    ((null parts) (kora_refuse "No copy of the pattern lies in the boundary."))
    ((kora_state_is state "typeobjectgroup") (patternhatch:make_group parts))
    (T (patternhatch:make_block parts))))

;; A nameless block with its base point at the world's origin.
(defun patternhatch:make_block (parts / name)
  (entmake '((0 . "BLOCK") (2 . "*U") (70 . 1) (10 0.0 0.0 0.0)))
  (foreach part parts (entmake (patternhatch:on_layer (kora_entity_of part))))
  (if (and (setq name (entmake '((0 . "ENDBLK"))))
           (entmake (list '(0 . "INSERT") (cons 2 name) '(10 0.0 0.0 0.0))))
    (progn (mapcar 'kora_clip_made parts (kora_block_entities name)) T)
    (kora_refuse "The block could not be made.")))

(defun patternhatch:on_layer (data)
  (append data (if (assoc 8 data) nil (list (cons 8 (getvar "CLAYER"))))))

(defun patternhatch:make_group (parts / made)
  (setq made (mapcar '(lambda (part) (entmakex (kora_entity_of part))) parts))
  (cond
    ((member nil made) (kora_refuse "Not all copies could be made."))
    ((kora_make_group made) (mapcar 'kora_clip_made parts made) T)
    (T (kora_refuse "The group could not be made: a drawing of this version may have none."))))

(princ)
