;;; menu: Break line | BREAKLINE | Cuts a line open and draws a break symbol in the gap
;;;
;;; BREAKLINE: the dialog gives the symbol, its size and the offset; then a line is picked and two points on it. The
;;; symbol stands in the middle between the points, its longer side as long as the size, turned with the line and on
;;; the line's layer. The line is cut open between the points, and at least so far that the offset stays free on both
;;; sides of the symbol; the option Same cuts it open just that far.
;;;
;;; A new symbol is made from entities of the drawing on the way: the dialog names it, the entities are picked, and the
;;; dialog comes back with the new symbol chosen.

(defun c:breakline (/ *error* kora:variables choice)
  (kora_begin '(("CMDECHO" . 0)))
  (if (setq choice (breakline:ask (kora_statefile "breakline")))
    (breakline:draw choice))
  (kora_end))

;; Runs the dialog until the user confirms or cancels.
;; -> (symbol file, size, offset, T when the symbol was made just now), nil when cancelled.
(defun breakline:ask (file / state created done)
  (while (and (not done) (Dlg_BreakLine file))
    (setq state (kora_readstate file))
    (cond ((= (kora_action state) "OK") (setq done T))
          ((= (kora_action state) "CREATE")
           (if (breakline:create_symbol (breakline:symbol_path (kora_state_value state "name")) file)
             (setq created T)))
          (T (setq done T state nil))))
  (if (and done state)
    (list (kora_state_value state "lbtitleblock")
          (cond ((kora_state_real state "_dist_size")) (0.0))
          (cond ((kora_state_real state "_dist_offset")) (0.0))
          created)))

;; Where the dialog looks for the symbol of that name.
(defun breakline:symbol_path (name)
  (strcat (kora_module_folder) "/BreakLine/" name ".dwg"))

;; Writes picked entities to a symbol drawing and enters it into the state. -> T, nil when nothing was picked.
(defun breakline:create_symbol (path file / selection box centre)
  (princ "\nSelect entities for the break symbol: ")
  (if (and (setq selection (ssget))
           (setq box (kora_bounding_box (kora_selection_to_list selection))))
    (progn
      (setq centre (mapcar '(lambda (low high) (/ (+ low high) 2.0)) (car box) (cadr box)))
      (if (findfile path) (vl-file-delete path))
      (command "_.-WBLOCK" path "" (trans centre 0 1) selection "")
      (if (findfile path)
        (kora_writestate file (list (cons "lbtitleblock" path)))
        (kora_alert_message (strcat "The symbol could not be written to " path "."))))
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

;; -> entity name of a LINE, nil when the user gives up.
(defun breakline:pick_line (/ pick line done)
  (while (not done)
    (setvar "ERRNO" 0)
    (setq pick (entsel "\nSelect line to break: "))
    (cond ((null pick) (if (= (getvar "ERRNO") 7) (kora_alert_message "Nothing found there.") (setq done T)))
          ((= (kora_field (entget (car pick)) 0) "LINE") (setq line (car pick) done T))
          (T (kora_alert_message "That is not a line."))))
  line)

;; -> two points in world coordinates, nil when the user gives up.
(defun breakline:ask_points (/ first second)
  (if (setq first (getPointOrtakit "\nSpecify first break point: "))
    (setq second (getPointOrtakit first "\nSpecify second break point or [Same]: ")))
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

;; Inserts the symbol around point. -> T; nil after a message when the file gives no symbol.
(defun breakline:insert_symbol (choice data point / name before reference box)
  (setq name   (strcat "BREAKLINE_" (vl-filename-base (car choice)))
        before (entlast))
  (command "_.-INSERT"
           (if (and (tblsearch "BLOCK" name) (not (cadddr choice))) name (strcat name "=" (car choice)))
           (trans point 0 1) 1.0 1.0 0.0)
  (setq reference (entlast)
        box       (if (not (equal reference before)) (kora_block_box name)))
  (cond
    ((equal reference before)
     (kora_alert_message (strcat "The symbol could not be read from " (car choice) "."))
     nil)
    ((or (null box) (equal (car box) (cadr box) 1e-12))
     (entdel reference)
     (kora_alert_message "The symbol drawing is empty.")
     nil)
    (T (breakline:place reference data point box (cadr choice)) T)))

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
