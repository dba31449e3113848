;;; menu: Make linetype | MAKELINESTYLE | Makes a linetype of a drawn pattern and writes it into a linetype file
;;;
;;; MAKELINESTYLE: the dialog gives the file, the name and the description; then the pattern is picked, lines, points and
;;; texts that lie along a direction, and the points where it starts and where it repeats. Lines are dashes, points are
;;; dots, what lies between them are gaps, texts stand where they stand. The definition goes into the file in place of the
;;; one of that name, or behind the others, and the linetype is loaded into the drawing.
;;;
;;; Distances are measured along the direction from the start, and to its left, as the drawing is seen from above. An
;;; element of the pattern is a list (from to text ...): a dash or a dot; a gap has a third item GAP.

(defun c:makelinestyle (/ *error* kora:variables choice definition)
  (kora_begin '(("CMDECHO" . 0)))
  (if (and (setq choice (makelinestyle:ask (kora_statefile "makelinestyle")))
           (setq definition (makelinestyle:measure choice))
           (kora_save_definition (car choice) 0 (cadr choice) definition))
    (makelinestyle:load choice))
  (kora_end))

;; -> (file name description), nil when the user gave up or the name cannot be a linetype's.
(defun makelinestyle:ask (file / state name)
  (if (Dlg_makelinestyle file)
    (progn
      (setq state (kora_readstate file)
            name  (strcase (kora_state_value state "name")))
      (if (and (snvalid name) (not (member name '("BYLAYER" "BYBLOCK" "CONTINUOUS"))))
        (list (kora_state_value state "linetypefile") name (kora_state_value state "description"))
        (kora_refuse (strcat "A linetype cannot be named " name "."))))))

;; -> the lines of the definition, nil when the user gave up or there is no pattern in what was picked.
(defun makelinestyle:measure (choice / selection start end axis parts texts)
  (princ "\nSelect lines, points and texts of one pattern: ")
  (if (and (setq selection (ssget '((0 . "LINE,POINT,TEXT"))))
           (setq start (getPointOrtakit "\nSpecify start point of the pattern: "))
           (setq end (getPointOrtakit start "\nSpecify point where the pattern repeats: ")))
    (progn
      (setq start (trans start 1 0)
            end   (trans end 1 0)
            start (list (car start) (cadr start))
            end   (list (car end) (cadr end)))
      (if (< (distance start end) 1e-9)
        (kora_refuse "The pattern has no length.")
        (progn
          (setq axis (list start (angle start end) (distance start end)))
          (foreach entity (kora_selection_to_list selection)
            (makelinestyle:take (entget entity)))
          (makelinestyle:define choice axis parts texts))))))

;; Measures one entity into the parts or texts of makelinestyle:measure.
(defun makelinestyle:take (data / from to)
  (setq from (makelinestyle:along (kora_field data 10)))
  (cond
    ((= (kora_field data 0) "TEXT")
     (if (<= -1e-9 (car from) (caddr axis))
       (setq texts (cons (list (max 0.0 (car from)) (cadr from) data) texts))
       (kora_alert_message "A text outside the pattern was left out.")))
    ((progn
       (setq to (if (= (kora_field data 0) "LINE") (makelinestyle:along (kora_field data 11)) from))
       (> (max (abs (cadr from)) (abs (cadr to))) (* 0.01 (caddr axis))))
     (kora_alert_message "A line or point beside the direction was left out."))
    ((setq from (makelinestyle:clipped (car from) (car to))) (setq parts (cons from parts)))
    (T (kora_alert_message "A line or point outside the pattern was left out."))))

;; -> (distance along the direction, distance to its left) of a point.
(defun makelinestyle:along (point / run turn)
  (setq point (list (car point) (cadr point))
        run   (distance (car axis) point)
        turn  (- (angle (car axis) point) (cadr axis)))
  (list (* run (cos turn)) (* run (sin turn))))

;; -> (from to) within the pattern, nil when nothing is. What is as good as nothing beside it counts as its ends.
(defun makelinestyle:clipped (from to / least)
  (setq least (makelinestyle:least))
  (mapcar 'set '(from to) (list (max 0.0 (min from to)) (min (caddr axis) (max from to))))
  (cond
    ((< to (- from least)) nil)
    ((>= (- to from) least) (list from to))
    ;; A dot at the end is the one at the beginning of the next repetition.
    ((> from (- (caddr axis) least)) (list 0.0 0.0))
    (T (list from from))))

;; The least distance that counts.
(defun makelinestyle:least () (* 1e-6 (caddr axis)))

;; -> the lines of the definition; nil after a message.
(defun makelinestyle:define (choice axis parts texts / elements pattern problem)
  (setq elements (makelinestyle:elements (makelinestyle:merged parts))
        elements (makelinestyle:with_texts (makelinestyle:rotated elements) texts)
        problem  (makelinestyle:problem elements texts))
  (if problem
    (kora_refuse problem)
    (progn
      (setq pattern (strcat "A," (kora_string_join (mapcar 'makelinestyle:element_text elements) ",")))
      (if (> (strlen pattern) 280)
        (kora_refuse "The pattern needs more than the 280 letters that a definition can have.")
        (list (strcat "*" (cadr choice) "," (caddr choice)) pattern)))))

;; What keeps the elements from being a linetype; nil when nothing does.
(defun makelinestyle:problem (elements texts / places)
  (setq places (vl-sort (mapcar 'car texts) '<))
  (cond
    ((null (vl-remove-if 'makelinestyle:is_gap elements)) "The pattern needs a line or a point.")
    ((and (null texts) (not (vl-some 'makelinestyle:is_gap elements))) "The pattern needs a gap or a text.")
    ((> (length elements) 12) "The pattern has more than the 12 elements that a linetype can have.")
    ((vl-some '(lambda (one) (vl-string-search "\"" (kora_field (caddr one) 1))) texts)
     "A text with quotation marks cannot be in a linetype.")
    ((vl-some '(lambda (low high) (< (- high low) (makelinestyle:least))) places (cdr places))
     "Two texts start at the same place.")))

(defun makelinestyle:is_gap (element) (= (caddr element) 'GAP))

;; Dashes and dots in order, what touches or overlaps made one.
(defun makelinestyle:merged (parts / done)
  (foreach part (vl-sort parts '(lambda (a b) (or (< (car a) (car b)) (and (= (car a) (car b)) (< (cadr a) (cadr b))))))
    (setq done (if (and done (<= (car part) (+ (cadar done) (makelinestyle:least))))
                 (cons (list (caar done) (max (cadar done) (cadr part))) (cdr done))
                 (cons part done))))
  (reverse done))

;; Dashes, dots and the gaps between and around them.
(defun makelinestyle:elements (parts / at elements)
  (setq at 0.0)
  (foreach part (append parts (list (list (caddr axis) (caddr axis) 'END)))
    (if (> (- (car part) at) (makelinestyle:least))
      (setq elements (cons (list at (car part) 'GAP) elements)))
    (if (null (caddr part))
      (setq elements (cons (list (car part) (cadr part) nil) elements)))
    (setq at (cadr part)))
  (reverse elements))

;; A linetype begins with a dash or a dot: a gap in front is joined to what is behind the last element, which is the same
;; line when it repeats. Distances then reach beyond the length of the pattern.
(defun makelinestyle:rotated (elements / first last)
  (setq first (car elements)
        last  (car (reverse elements)))
  (cond
    ((or (not (makelinestyle:is_gap first)) (null (cdr elements))) elements)
    ((makelinestyle:is_gap last)
     (append (reverse (cdr (reverse (cdr elements))))
             (list (list (car last) (+ (cadr last) (cadr first)) 'GAP))))
    (T (append (cdr elements)
               (list (list (cadr last) (+ (cadr last) (cadr first)) 'GAP))))))

;; The elements with their texts as fourth item, each (place offset data). An element with several is cut where each but
;; the first of them starts.
(defun makelinestyle:with_texts (elements texts / begin done)
  (setq begin (caar elements)
        texts (mapcar '(lambda (one) (if (< (car one) begin) (cons (+ (car one) (caddr axis)) (cdr one)) one)) texts)
        texts (vl-sort texts '(lambda (a b) (< (car a) (car b)))))
  (foreach element elements
    (while (and texts (cadr texts) (< (car (cadr texts)) (cadr element)))
      (setq done    (cons (list (car element) (car (cadr texts)) (caddr element) (car texts)) done)
            element (list (car (cadr texts)) (cadr element) (caddr element))
            texts   (cdr texts)))
    (if (and texts (< (caar texts) (cadr element)))
      (setq done  (cons (append element (list (car texts))) done)
            texts (cdr texts))
      (setq done (cons element done))))
  ;; What starts at the very end stands behind the last element.
  (if (and texts (null (cadddr (car done))))
    (setq done (cons (list (caar done) (cadar done) (caddar done) (car texts)) (cdr done))))
  (reverse done))

;; "2.5", "-1.25" or "0" and the text on it in brackets.
(defun makelinestyle:element_text (element / length)
  (setq length (- (cadr element) (car element)))
  (strcat (makelinestyle:number (if (makelinestyle:is_gap element) (- length) length))
          (if (cadddr element) (makelinestyle:text_text (cadddr element) (cadr element)) "")))

;; The text counts from the end of its element; its height from that of its style, where that has one.
(defun makelinestyle:text_text (one end / data style fixed)
  (setq data  (caddr one)
        style (cond ((kora_field data 7)) ("STANDARD"))
        fixed (kora_field (tblsearch "STYLE" style) 40)
        fixed (if (and fixed (> fixed 0.0)) fixed 1.0))
  (strcat ",[\"" (kora_field data 1) "\"," style
          ",S=" (makelinestyle:number (/ (kora_field data 40) fixed))
          ",R=" (kora_number_text (makelinestyle:degrees (- (cond ((kora_field data 50)) (0.0)) (cadr axis))) 4)
          ",X=" (makelinestyle:number (- (car one) end))
          ",Y=" (makelinestyle:number (cadr one)) "]"))

;; An angle in radians as one above -180 and up to 180 degrees.
(defun makelinestyle:degrees (turn)
  (setq turn (/ (* turn 180.0) pi))
  (while (> turn 180.0) (setq turn (- turn 360.0)))
  (while (<= turn -180.0) (setq turn (+ turn 360.0)))
  turn)

;; Short patterns need more places.
(defun makelinestyle:number (number) (kora_number_text number (if (< (caddr axis) 1.0) 9 6)))

;; Loads what was written, in place of a linetype of that name.
(defun makelinestyle:load (choice)
  (if (tblsearch "LTYPE" (cadr choice))
    (command "_.-LINETYPE" "_Load" (cadr choice) (car choice) "_Yes" "")
    (command "_.-LINETYPE" "_Load" (cadr choice) (car choice) ""))
  (kora_alert_message (strcat "Linetype " (cadr choice) " was written to " (car choice) ".")))

(princ)
