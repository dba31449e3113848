;;; menu: Multiview setup | MULTIVIEWSETUP | Sets up a sheet: title block, viewports, their alignment and scale | Sheets and files
;;;
;;; MULTIVIEWSETUP: each button of the dialog does one step in the drawing, after which the dialog comes back as it was
;;; left, until it is closed. Each step can be undone for itself. Where a step was done, in paper space or in model space,
;;; is where one is afterwards; all other steps leave the space as it is.
;;;
;;; Insert Title Block puts a drawing file of the folder on the sheet, as a block or as an external reference. Its scale
;;; turns the units that the file says into those of the sheet; a file that says none comes as it is. With limits, those
;;; of the sheet become the outline of the title block. Removing all entities leaves the viewports, for which Create
;;; Viewports has its own choice.
;;;
;;; Create Viewports divides the area between two corners into rows and columns with offsets between them. Each viewport
;;; shows all of the model. Viewports Alignment moves what viewports show until a point in them is level with, or straight
;;; above, a point in the base viewport. Scale Viewports gives viewports a scale of so many units on the sheet to so many
;;; of the model: with Model their borders stay and more or less of the model is seen, with Paper the same is seen and the
;;; borders change. Displays that are locked stay as they are.
;;;
;;; Create Title Block draws the outline of the sheet around the drawing in model space, as large as the sheet times the
;;; scale factor.

(setq multiviewsetup:steps '(("INSERTTITLE"     . multiviewsetup:insert_title)
                             ("CREATEVIEWPORTS" . multiviewsetup:create)
                             ("ALIGNVIEWPORTS"  . multiviewsetup:align)
                             ("SCALEVIEWPORTS"  . multiviewsetup:scale)
                             ("INSERTMSTITLE"   . multiviewsetup:draw_sheet)))

;; Metres of a unit, by its number in drawings; and these numbers in the order in which the dialog offers the units.
(setq multiviewsetup:units   '((1 . 0.0254) (2 . 0.3048) (3 . 1609.344) (4 . 0.001) (5 . 0.01) (6 . 1.0) (7 . 1000.0)
                               (8 . 2.54e-8) (9 . 2.54e-5) (10 . 0.9144) (11 . 1e-10) (12 . 1e-9) (13 . 1e-6) (14 . 0.1)
                               (15 . 10.0) (16 . 100.0) (21 . 0.30480060960121924))
      multiviewsetup:offered '((2 . "Feet") (1 . "Inches") (6 . "Meters") (4 . "Milimeters")))

;; More viewports than this are not shown at a time.
(defun multiviewsetup:most () 64)

(defun c:multiviewsetup (/ *error* kora:variables chosen file state step)
  (setq chosen (kora_chosen '((0 . "VIEWPORT")))
        file   (kora_statefile "multiviewsetup"))
  (kora_begin (list '("CMDECHO" . 0) (cons "TILEMODE" (getvar "TILEMODE"))))
  (multiviewsetup:suggest_unit file)
  (while (and (kora_show 'Dlg_MultiViewSetup (list file))
              (setq state (kora_readstate file)
                    step  (assoc (kora_action state) multiviewsetup:steps)))
    (multiviewsetup:perform step))
  (kora_end))

;; The unit of the sheet is the drawing's own where the dialog offers that; a drawing without a unit keeps the last one.
(defun multiviewsetup:suggest_unit (file / unit)
  (setq unit (cond ((assoc (getvar "INSUNITS") multiviewsetup:offered))
                   ((= (kora_state_value (kora_readstate file) "unitstitle") "")
                    (assoc (if (= (getvar "MEASUREMENT") 1) 4 1) multiviewsetup:offered))))
  (if unit
    (kora_writestate file (list (cons "unitstitle" (cdr unit))
                                (cons "unitstitle_index"
                                      (itoa (- (length multiviewsetup:offered)
                                               (length (member unit multiviewsetup:offered)))))))))

;; Does a step, as an undo step of its own. One that did nothing leaves the space in which the user was.
(defun multiviewsetup:perform (step / space)
  (setq space (getvar "TILEMODE"))
  (multiviewsetup:enter (if (= (car step) "INSERTMSTITLE") 1 0))
  (if (apply (cdr step) (list state))
    (setq kora:variables (subst (cons "TILEMODE" (getvar "TILEMODE")) (assoc "TILEMODE" kora:variables) kora:variables))
    (if (/= space (getvar "TILEMODE")) (setvar "TILEMODE" space)))
  (kora_undo_end)
  (kora_undo_begin))

;; Goes to model space (1) or to the sheet (0), out of a viewport in which the user works.
(defun multiviewsetup:enter (space)
  (if (/= space (getvar "TILEMODE")) (setvar "TILEMODE" space))
  (if (and (= space 0) (/= 1 (getvar "CVPORT"))) (command "_.PSPACE")))

;;; Title block. All that a step asks is asked before anything changes; each returns T when the drawing changed.

(defun multiviewsetup:insert_title (state / path name place doomed redefine)
  (setq path  (strcat (vl-string-right-trim "/\\" (kora_state_value state "directory")) "/"
                      (kora_state_value state "titleblock"))
        name  (vl-filename-base path)
        place (list (kora_state_real state "titlex") (kora_state_real state "titley") 0.0))
  (cond
    ((member nil place) (kora_refuse "The origin of the title block must be two numbers."))
    ((null (vl-file-size path)) (kora_refuse (kora_text "The file %1 was not found." (list path))))
    ((not (snvalid name)) (kora_refuse (kora_text "%1 cannot be the name of a block." (list name))))
    ((not (multiviewsetup:is_layer state))
     (kora_refuse (kora_text "\"%1\" cannot be the name of a layer." (list (kora_state_value state "layer")))))
    ((not (multiviewsetup:is_free name (kora_state_is state "xref"))) nil)
    (T
     (setq doomed   (multiviewsetup:doomed (multiviewsetup:choice state "removetitles") "Select entities to remove: " nil)
           redefine (multiviewsetup:ask_redefinition name state))
     (multiviewsetup:put_title state path name place doomed redefine))))

(defun multiviewsetup:is_layer (state)
  (or (not (kora_state_is state "oplay"))
      (snvalid (kora_string_trim (kora_state_value state "layer")))))

;; A block and an external reference cannot have the same name. -> T, nil after a message.
(defun multiviewsetup:is_free (name reference / block)
  (setq block (tblsearch "BLOCK" name))
  (if (and block (/= reference (/= 0 (logand 4 (cond ((kora_field block 70)) (0))))))
    (kora_refuse (kora_text (if reference "The drawing has a block of the name %1 already."
                              "The drawing has an external reference of the name %1 already.")
                            (list name)))
    T))

;; -> T when the file is to be read.
(defun multiviewsetup:ask_redefinition (name state)
  (cond ((kora_state_is state "xref") nil)
        ((null (tblsearch "BLOCK" name)) T)
        (T (kora_initget "Yes No")
           (= "Yes" (getkword (kora_text "\nThe drawing has a block %1 already. Redefine it from the file? [Yes/No] <No>: " (list name)))))))

;; Inserts, and only then takes out what the title block takes the place of.
(defun multiviewsetup:put_title (state path name place doomed redefine / before title scale count)
  (if redefine (command "_.-INSERT" (strcat name "=" path) nil))
  (setq before (entlast))
  (if (kora_state_is state "xref")
    (progn
      (setq scale (multiviewsetup:unit_scale (multiviewsetup:file_unit path) state))
      (command "_.-XREF" "_Attach" path)
      ;; What is no drawing ends the command here.
      (if (= 1 (logand 1 (getvar "CMDACTIVE")))
        (command (trans place 0 1) scale scale (multiviewsetup:turn))))
    (if (tblsearch "BLOCK" name)
      (multiviewsetup:insert name place
                             (setq scale (multiviewsetup:unit_scale (multiviewsetup:block_unit name) state)))))
  (setq title (entlast))
  (cond
    ((or (equal title before) (/= (kora_field (entget title) 0) "INSERT"))
     (kora_refuse (kora_text (if redefine "The title block %1 was not inserted, but its block is in the drawing."
                               "The title block %1 was not inserted.")
                             (list name))))
    (T
     (if (kora_state_is state "xref") (multiviewsetup:rescale title scale))
     (if (kora_state_is state "oplay")
       (multiviewsetup:to_layer title (kora_string_trim (kora_state_value state "layer"))))
     (if (kora_state_is state "limits") (multiviewsetup:set_limits name place (cond (scale) (1.0))))
     (setq count (multiviewsetup:erase doomed))
     (kora_done (kora_text "Title block %1 inserted%2." (list name (kora_also (car count) (if (= (car count) 1) " entity removed" " entities removed"))))
                (cdr count))
     T)))

;; Hosts that bring an external drawing to the drawing's unit by themselves multiply the scale that was answered.
(defun multiviewsetup:rescale (title scale / data)
  (setq data (entget title))
  (if (not (equal (kora_field data 41) scale 1e-9))
    (foreach code '(41 42 43) (entmod (setq data (kora_with_field data code scale))))))

;; What is still asked for are attributes.
(defun multiviewsetup:insert (name place scale)
  (command "_.-INSERT" name (trans place 0 1) scale scale (multiviewsetup:turn))
  (while (> (getvar "CMDACTIVE") 0) (command PAUSE)))

;; The angle that is 0 on the sheet, as text in the user's coordinates.
(defun multiviewsetup:turn ()
  (angtos (angle '(0.0 0.0) (trans '(1.0 0.0 0.0) 0 1 T)) (getvar "AUNITS") 8))

;; -> the number of the unit of a block, nil where its drawing cannot say it.
(defun multiviewsetup:block_unit (name / record)
  (setq record (kora_owner (entget (tblobjname "BLOCK" name))))
  (if record (kora_field (entget record) 70)))

;; The same of a drawing file that is not in the drawing; nil for one that is no DXF text.
(defun multiviewsetup:file_unit (path / handle line unit)
  (if (setq handle (open path "r" "bytes"))
    (progn
      (while (and (null unit) (setq line (read-line handle)) (/= (setq line (kora_string_trim line)) "ENDSEC"))
        (if (= line "$INSUNITS")
          (setq line (read-line handle)
                line (read-line handle)
                unit (if line (atoi line)))))
      (close handle)))
  unit)

;; From a unit to that of the sheet, 1.0 for none.
(defun multiviewsetup:unit_scale (unit state / own)
  (setq own (cdr (assoc unit multiviewsetup:units)))
  (if own
    (/ own (cdr (assoc (car (nth (multiviewsetup:choice state "unitstitle") multiviewsetup:offered)) multiviewsetup:units)))
    1.0))

;; -> the number of the item that is chosen in a combo box, from 0.
(defun multiviewsetup:choice (state key)
  (max 0 (atoi (kora_state_value state (strcat key "_index")))))

(defun multiviewsetup:to_layer (title layer)
  (if (not (tblsearch "LAYER" layer))
    (entmake (list '(0 . "LAYER") '(100 . "AcDbSymbolTableRecord") '(100 . "AcDbLayerTableRecord") (cons 2 layer)
                   '(70 . 0))))
  (entmod (kora_with_field (entget title) 8 layer)))

(defun multiviewsetup:set_limits (name place scale / box)
  (if (setq box (kora_block_box name))
    (mapcar '(lambda (variable corner)
               (setvar variable (mapcar '(lambda (from extent) (+ from (* scale extent)))
                                        (list (car place) (cadr place)) corner)))
            '("LIMMIN" "LIMMAX") box)
    (kora_alert_message "The limits stay as they are: what the title block draws is not known.")))

;; -> the entities that fit filter and are to go: none (0), all of the layout (1), but viewports only where the filter asks
;; for these, or those that the user chooses now (2). The sheet itself never goes.
(defun multiviewsetup:doomed (choice asking filter)
  (cond ((= choice 1) (kora_layout_entities (cond (filter) ('((0 . "~VIEWPORT"))))))
        ((= choice 2) (vl-remove-if '(lambda (entity) (kora_is_sheet (entget entity)))
                                    (kora_choose asking filter)))))

;; -> (how many were erased . how many are on locked layers).
(defun multiviewsetup:erase (entities / free)
  (setq free (kora_unlocked entities))
  (foreach entity free (entdel entity))
  (cons (length free) (- (length entities) (length free))))

;;; Viewports.

(defun multiviewsetup:create (state / grid area frames doomed count)
  (cond
    ((= (kora_file_version) "AC1009") (kora_refuse "A drawing of this version cannot have such viewports."))
    ((null (setq grid (multiviewsetup:grid state))) nil)
    ((progn (setq doomed (multiviewsetup:doomed (multiviewsetup:choice state "removeviewports") "Select viewports to remove: "
                                                '((0 . "VIEWPORT"))))
            (null (setq area (multiviewsetup:ask_area)))) nil)
    ((null (setq frames (multiviewsetup:frames grid area)))
     (kora_refuse "The area is too small for these viewports and offsets."))
    (T
     (setq count (multiviewsetup:erase doomed))
     (kora_done (kora_text "%1 created%2." (list (kora_number_of (kora_make_viewports frames) "viewport") (kora_also (car count) " deleted")))
                (cdr count))
     T)))

;; -> (rows columns offset-x offset-y), nil after a message.
(defun multiviewsetup:grid (state / grid)
  (setq grid (if (kora_state_is state "arrayviewp")
               (mapcar '(lambda (key) (kora_state_real state key)) '("viewrows" "viewcols" "viewoffsetx" "viewoffsety"))
               '(1.0 1.0 0.0 0.0)))
  (cond
    ((or (member nil grid) (< (apply 'min grid) 0.0))
     (kora_refuse "Rows, columns and offsets must be numbers that are not negative."))
    ((not (and (multiviewsetup:is_count (car grid)) (multiviewsetup:is_count (cadr grid))
               (<= (* (car grid) (cadr grid)) (multiviewsetup:most))))
     (kora_refuse (kora_text "Rows and columns must be whole numbers and make no more than %1 viewports." (list (itoa (multiviewsetup:most))))))
    (T (list (fix (car grid)) (fix (cadr grid)) (caddr grid) (cadddr grid)))))

(defun multiviewsetup:is_count (number)
  (and (<= 1.0 number (multiviewsetup:most)) (= number (fix number))))

;; -> (lower upper), corners in world coordinates; nil when the user gives up.
(defun multiviewsetup:ask_area (/ first second)
  (if (and (setq first (getPointOrtakit (kora_text "\nSpecify first corner of the area for viewports: " nil)))
           (setq second (getCornerOrtakit first (kora_text "\nSpecify opposite corner: " nil))))
    (progn
      (setq first  (trans first 1 0)
            second (trans second 1 0))
      (list (mapcar 'min first second) (mapcar 'max first second)))))

;; -> a list of (lower upper) of each viewport, row by row from the top left; nil when nothing is left of them.
(defun multiviewsetup:frames (grid area / rows columns across up width height left top frames)
  (mapcar 'set '(rows columns across up) grid)
  (setq width  (/ (- (caadr area) (caar area) (* across (1- columns))) columns)
        height (/ (- (cadadr area) (cadar area) (* up (1- rows))) rows)
        top    (cadadr area))
  (if (and (> width 0.0) (> height 0.0))
    (repeat rows
      (setq left (caar area))
      (repeat columns
        (setq frames (cons (list (list left (- top height)) (list (+ left width) top)) frames)
              left   (+ left width across)))
      (setq top (- top height up))))
  (reverse frames))

(defun multiviewsetup:align (state / base count)
  (setq count 0)
  (if (setq base (multiviewsetup:pick "\nSpecify base point in the base viewport: " nil nil))
    (progn
      (while (multiviewsetup:align_next base (kora_state_is state "alignver")) (setq count (1+ count)))
      (kora_alert_message (kora_text "%1 aligned." (list (kora_number_of count "viewport"))))))
  (> count 0))

;; -> T when one more viewport was aligned, nil when the user is done.
(defun multiviewsetup:align_next (base upright / next offset)
  (if (setq next (multiviewsetup:pick "\nSpecify the point to be aligned in another viewport: " (cdr base) (car base)))
    (progn
      (setq offset (mapcar '- (cdr base) (cdr next)))
      (entmod (kora_pan_view (entget (car next)) (if upright (car offset) 0.0) (if upright 0.0 (cadr offset))))
      T)))

;; -> (viewport . point) for a point of the sheet in a viewport, in world coordinates; nil when the user gives up. Besides
;; a base there must be no other viewport whose view is fixed.
(defun multiviewsetup:pick (asking from base / point viewport)
  (while (and (setq point (if from (getPointOrtakit (trans from 0 1) asking) (getPointOrtakit asking)))
              (setq point (trans point 1 0))
              (not (multiviewsetup:serves (setq viewport (kora_viewport_at point)) base))))
  (if point (cons viewport point)))

;; -> T, nil after a message.
(defun multiviewsetup:serves (viewport base)
  (cond ((null viewport) (kora_refuse "There is no viewport at this point."))
        ((null base) T)
        ((equal viewport base) (kora_refuse "That is the base viewport."))
        ((kora_is_locked (entget viewport)) (kora_refuse "That viewport is on a locked layer."))
        ((kora_view_is_fixed (entget viewport)) (kora_refuse "The display of that viewport is locked."))
        (T T)))

(defun multiviewsetup:scale (state / viewports paper model free fit)
  (setq viewports (cond (chosen) ((kora_choose "Select viewports to scale: " '((0 . "VIEWPORT")))))
        chosen    nil
        viewports (vl-remove-if-not '(lambda (entity) (kora_is_viewport (entget entity))) viewports)
        free      (kora_unlocked viewports)
        fit       (vl-remove-if-not '(lambda (entity) (multiviewsetup:is_scalable (entget entity) state)) free))
  (if viewports
    (progn
      (setq paper (multiviewsetup:ask_units "\nEnter number of paper space units" 1.0)
            model (multiviewsetup:ask_units "\nEnter number of model space units"
                                            (cond ((kora_state_real state "curscale")) (1.0))))
      (foreach entity fit (multiviewsetup:set_scale (entget entity) (/ paper model) (kora_state_is state "ps_scale")))
      (kora_results "MULTIVIEWSETUP"
        (list (list "done" "scaled" fit)
              (list "skipped" "its display or border is fixed" (kora_left_out fit free))
              (list "skipped" "on a locked layer" (kora_left_out free viewports))))
      (kora_done (kora_text "%1 scaled to %2:%3%4." (list (kora_number_of (length fit) "viewport") (kora_number_text paper 8) (kora_number_text model 8) (kora_also (- (length free) (length fit)) " with a fixed display or border left alone")))
                 (- (length viewports) (length free)))
      (if fit T))))

;; A border that is an entity of its own does not change with the viewport.
(defun multiviewsetup:is_scalable (data state)
  (and (not (kora_view_is_fixed data))
       (> (cond ((kora_field data 45)) (0.0)) 0.0)
       (not (and (kora_state_is state "ps_scale") (kora_viewport_is_clipped data)))))

(defun multiviewsetup:ask_units (asking preset)
  (if (<= preset 0.0) (setq preset 1.0))
  (initgetOrtakit 6)
  (getRealOrtakit (strcat (kora_text asking nil) " <" (kora_number_text preset 12) ">: ")))

;; The middle of the viewport stays where it is, and so does what is seen there.
(defun multiviewsetup:set_scale (data scale border / height)
  (setq height (kora_field data 41))
  (entmod (if border
            (kora_with_field (kora_with_field data 40 (/ (* (kora_field data 40) (kora_field data 45) scale) height))
                             41 (* (kora_field data 45) scale))
            (kora_with_field data 45 (/ height scale)))))

;;; Model space.

(defun multiviewsetup:draw_sheet (state / factor size corner)
  (setq factor (kora_state_real state "curscale")
        size   (mapcar '(lambda (key) (multiviewsetup:length (kora_state_value state key))) '("mswidth" "msheight")))
  (cond
    ((not (and factor (> factor 0.0))) (kora_refuse "The scale factor must be a number greater than zero."))
    ((or (member nil size) (<= (apply 'min size) 0.0))
     (kora_refuse "Width and height must be lengths greater than zero."))
    (T
     (setq corner (cond ((getpoint (kora_text "\nSpecify lower left corner of the title block <0,0>: " nil))) ('(0.0 0.0 0.0)))
           size   (mapcar '(lambda (extent) (* factor extent)) size))
     (if (multiviewsetup:draw_frame corner size)
       (progn (kora_alert_message (kora_text "Title block of %1 by %2 created." (list (rtos (car size)) (rtos (cadr size))))) T)
       (kora_refuse "The title block could not be created.")))))

;; -> the length that a text says, in decimal or in feet and inches; nil for none.
(defun multiviewsetup:length (text)
  (cond ((distof text 2)) ((distof text 4))))

;; A rectangle along the axes of user coordinates. -> nil when it could not be made.
(defun multiviewsetup:draw_frame (corner size / normal corners)
  (setq normal  (trans '(0.0 0.0 1.0) 1 0 T)
        corners (mapcar '(lambda (across up)
                           (trans (list (+ (car corner) (* across (car size))) (+ (cadr corner) (* up (cadr size)))
                                        (cond ((caddr corner)) (0.0)))
                                  1 normal))
                        '(0 1 1 0) '(0 0 1 1)))
  (if (= (kora_file_version) "AC1009")
    (progn
      (entmake (list '(0 . "POLYLINE") '(66 . 1) '(70 . 1) (list 10 0.0 0.0 (caddar corners)) (cons 210 normal)))
      (foreach point corners (entmake (list '(0 . "VERTEX") (cons 10 point) (cons 210 normal))))
      (entmake '((0 . "SEQEND"))))
    (entmake (append (list '(0 . "LWPOLYLINE") '(100 . "AcDbEntity") '(100 . "AcDbPolyline") '(90 . 4) '(70 . 1)
                           (cons 38 (caddar corners)))
                     (mapcar '(lambda (point) (list 10 (car point) (cadr point))) corners)
                     (list (cons 210 normal))))))

(princ)
