;;; menu: Break line | BREAKLINE | Cuts a line open and draws a break symbol in the gap | Lines and hatches
;;;
;;; BREAKLINE: the dialog gives the symbol, its size and the offset; then a line is picked and two points on it. The
;;; symbol stands in the middle between the points, its longer side as long as the size, turned with the line and on
;;; the line's layer. The line is cut open between the points, and at least so far that the offset stays free on both
;;; sides of the symbol; the option Same cuts it open just that far. Lines on locked layers stay as they are.
;;;
;;; The drawing gets a block for each symbol, which knows from what file content it was made: another symbol under the same
;;; file name, or the same file after it was changed, gets a block of its own, and what was drawn before stays as it is.
;;;
;;; A new symbol is made from entities of the drawing on the way: the dialog names it, the entities are picked, and the
;;; dialog comes back with the new symbol chosen.

(setq breakline:application "ORTAKIT_BREAKLINE")

(defun c:breakline (/ *error* kora:variables choice)
  ;; A symbol's attributes have the texts that it gives them: nothing is asked for.
  (kora_begin '(("CMDECHO" . 0) ("ATTREQ" . 0)))
  (if (setq choice (breakline:ask (kora_statefile "breakline")))
    (breakline:draw choice))
  (kora_end))

;; Runs the dialog until the user confirms or cancels.
;; -> (symbol file, size, offset), nil when cancelled.
(defun breakline:ask (file / state done)
  (while (and (not done) (kora_show 'Dlg_BreakLine (list file)))
    (setq state (kora_readstate file))
    (cond ((= (kora_action state) "OK") (setq done T))
          ((= (kora_action state) "CREATE")
           (breakline:create_symbol (breakline:symbol_path (kora_state_value state "name")) file))
          (T (setq done T state nil))))
  (if (and done state)
    (list (kora_state_value state "lbtitleblock")
          (cond ((kora_state_real state "_dist_size")) (0.0))
          (cond ((kora_state_real state "_dist_offset")) (0.0)))))

;; Where the dialog looks for the symbol of that name.
(defun breakline:symbol_path (name)
  (strcat (kora_module_folder) "/BreakLine/" name ".dwg"))

;; Writes picked entities to a symbol drawing and enters it into the state. -> T, nil when nothing was picked.
(defun breakline:create_symbol (path file / selection box centre)
  (princ (kora_text "\nSelect entities for the break symbol: " nil))
  (if (and (setq selection (ssget))
           (setq box (kora_bounding_box (kora_selection_to_list selection))))
    (progn
      (setq centre (mapcar '(lambda (low high) (/ (+ low high) 2.0)) (car box) (cadr box)))
      (if (findfile path) (vl-file-delete path))
      (command "_.-WBLOCK" path "" (trans centre 0 1) selection "")
      (if (findfile path) (command "_.OOPS"))
      (if (findfile path)
        (kora_writestate file (list (cons "lbtitleblock" path)))
        (kora_alert_message (kora_text "The symbol could not be written to %1." (list path)))))
    (kora_alert_message "No symbol was made: nothing was selected.")))

;; Asks for the line and the points, then cuts and draws.
(defun breakline:draw (choice / entity data points cut)
  (if (and (setq entity (breakline:pick_line))
           (setq points (breakline:ask_points)))
    (progn
      (setq data (entget entity '("*"))
            cut  (breakline:cut data points (cadr choice) (caddr choice)))
      (cond
        ((<= (cadr choice) 0.0) (kora_alert_message "The size must be greater than zero."))
        ((null cut) (kora_alert_message "The break lies outside the line."))
        ((not (breakline:fits cut data)) (kora_alert_message "The line is too short for this break."))
        ((breakline:insert_symbol choice data (breakline:at data (/ (+ (car cut) (cadr cut)) 2.0)))
         (breakline:split data cut))))))

;; -> entity name of a LINE that can be broken, nil when the user gives up.
(defun breakline:pick_line (/ pick line problem done)
  (while (not done)
    (setvar "ERRNO" 0)
    (setq pick (entsel (kora_text "\nSelect line to break: " nil)))
    (cond ((null pick) (if (= (getvar "ERRNO") 7) (kora_alert_message "Nothing found there.") (setq done T)))
          ((setq problem (breakline:problem (entget (car pick)))) (kora_alert_message problem))
          (T (setq line (car pick) done T))))
  line)

;; Why an entity cannot be broken, in words; nil when it can.
(defun breakline:problem (data)
  (cond ((/= (kora_field data 0) "LINE") "That is not a line.")
        ((kora_is_locked data) "That line is on a locked layer.")
        ((<= (breakline:length data) 1e-12) "That line has no length.")))

;; -> two points in world coordinates, nil when the user gives up.
(defun breakline:ask_points (/ first second)
  (if (setq first (getPointOrtakit (kora_text "\nSpecify first break point: " nil)))
    (progn
      (kora_initget "Same")
      (setq second (getpoint first (kora_text "\nSpecify second break point or [Same]: " nil)))))
  (cond ((null second) nil)
        ((= (type second) 'STR) (list (trans first 1 0) (trans first 1 0)))
        (T (list (trans first 1 0) (trans second 1 0)))))

;; -> (from to), distances along the line between which it is cut open; nil when the break does not touch the line.
(defun breakline:cut (data points size offset / along middle half)
  (setq along  (mapcar '(lambda (point) (breakline:along data point)) points)
        middle (/ (apply '+ along) 2.0)
        half   (max (/ (abs (apply '- along)) 2.0) (+ (/ size 2.0) offset)))
  (if (<= 0.0 middle (breakline:length data))
    (list (- middle half) (+ middle half))))

(defun breakline:length (data) (distance (kora_field data 10) (kora_field data 11)))

;; Something must be left of the line on at least one side.
(defun breakline:fits (cut data)
  (or (> (car cut) 1e-9) (< (cadr cut) (- (breakline:length data) 1e-9))))

;; Distance from the line's start to the foot of the perpendicular from point.
(defun breakline:along (data point / start run)
  (setq start (kora_field data 10)
        run   (mapcar '- (kora_field data 11) start))
  (/ (apply '+ (mapcar '* run (mapcar '- (kora:point3d point) start)))
     (breakline:length data)))

;; The point of the line at a distance from its start.
(defun breakline:at (data along / part)
  (setq part (/ along (breakline:length data)))
  (mapcar '(lambda (from to) (+ from (* part (- to from)))) (kora_field data 10) (kora_field data 11)))

;; Inserts the symbol around point. -> T; nil after a message when the file gives no symbol. Nothing stays of it then.
(defun breakline:insert_symbol (choice data point / content name before reference box)
  (setq content (breakline:content (car choice))
        name    (if content (breakline:block_name (vl-filename-base (car choice)) content))
        before  (entlast))
  (if name
    (command "_.-INSERT" (if (tblsearch "BLOCK" name) name (strcat name "=" (car choice))) (trans point 0 1) 1.0 1.0 0.0))
  (setq reference (entlast)
        box       (if (not (equal reference before)) (kora_block_box name)))
  (cond
    ((equal reference before)
     (kora_take_back)
     (kora_refuse (kora_text "The symbol could not be read from %1." (list (car choice)))))
    ((or (null box) (equal (car box) (cadr box) 1e-12))
     (kora_take_back)
     (kora_refuse "The symbol drawing is empty."))
    (T (breakline:tell_content name content)
       (breakline:place reference data point box (cadr choice))
       T)))

;; -> a number that stands for what a file holds, nil when it cannot be read.
(defun breakline:content (path / lines sum)
  (setq lines (kora_file_lines path)
        sum   0)
  (foreach line lines
    (foreach code (cons 10 (vl-string->list line)) (setq sum (rem (+ (* sum 31) code) 67108859))))
  (if lines sum))

;; The name of the block of a symbol: the one made from this content, else one that the drawing does not have yet.
(defun breakline:block_name (base content / name number)
  ;; Files may have names that a block cannot have.
  (setq base   (strcat "BREAKLINE_" (vl-string-translate "<>/\\\":;?*|,=`" "_____________" base))
        name   base
        number 1)
  (while (and (tblsearch "BLOCK" name) (not (breakline:is_made_from name content)))
    (setq number (1+ number)
          name   (strcat base "_" (itoa number))))
  name)

(defun breakline:is_made_from (name content)
  (equal content (kora_extended (entget (kora_block_record name) (list breakline:application)) breakline:application 1071)))

(defun breakline:tell_content (name content / record)
  (regapp breakline:application)
  (setq record (entget (kora_block_record name) (list breakline:application)))
  (if (null (assoc -3 record))
    (entmod (append record (list (list -3 (list breakline:application (cons 1071 content))))))))

;; Turns, scales and moves the reference so that the middle of the symbol's box lies on point.
(defun breakline:place (reference data point box size / extent scale turn middle centre)
  (setq extent (mapcar '- (cadr box) (car box))
        scale  (/ size (max (car extent) (cadr extent)))
        turn   (angle (kora_field data 10) (kora_field data 11))
        middle (mapcar '(lambda (low high) (* scale (/ (+ low high) 2.0))) (car box) (cadr box))
        centre (polar '(0.0 0.0) (+ turn (angle '(0.0 0.0) middle))
                      (distance '(0.0 0.0) (list (car middle) (cadr middle)))))
  (setq reference (entget reference))
  (foreach field (list (cons 8 (kora_field data 8))
                       (cons 10 (mapcar '- point (list (car centre) (cadr centre) (caddr middle))))
                       '(210 0.0 0.0 1.0)
                       (cons 41 scale) (cons 42 scale) (cons 43 scale) (cons 50 turn))
    (setq reference (kora_with_field reference (car field) (cdr field))))
  (entmod reference))

;; Keeps what lies before and behind the cut.
(defun breakline:split (data cut / before behind)
  (setq before (> (car cut) 1e-9)
        behind (< (cadr cut) (- (breakline:length data) 1e-9)))
  (if (and before behind)
    (entmake (kora_with_field (kora_copy_data data) 10 (breakline:at data (cadr cut)))))
  (entmod (if before
            (kora_with_field data 11 (breakline:at data (car cut)))
            (kora_with_field data 10 (breakline:at data (cadr cut)))))
  T)

(princ)
