;;; menu: Make linestyle | MAKELINESTYLE | Makes a linetype of a drawn pattern and writes it into a linetype file | Lines and hatches
;;;
;;; MAKELINESTYLE: the dialog gives the file, the name and the description; then the pattern is picked, lines,
;;; polylines, points, texts and shapes that lie along a direction, and the points where it starts and where it repeats.
;;; Lines are dashes, points are dots, what lies between them are gaps, texts and shapes stand where they stand. The
;;; definition goes into the file in place of the one of that name, or behind the others, and the linetype is loaded into
;;; the drawing.
;;;
;;; Distances are measured along the direction from the start, and to its left, as the drawing is seen from above. An
;;; element of the pattern is a list (from to text ...): a dash or a dot; a gap has a third item GAP. A text or shape is
;;; called a sign.

(defun c:makelinestyle (/ *error* kora:variables choice definition)
  (kora_begin '(("CMDECHO" . 0)))
  (if (and (setq choice (makelinestyle:ask (kora_statefile "makelinestyle")))
           (setq definition (makelinestyle:measure choice))
           (kora_save_definition (car choice) 0 (cadr choice) definition))
    (makelinestyle:load choice))
  (kora_end))

(setq makelinestyle:signs "TEXT,MTEXT,SHAPE")
(setq makelinestyle:unusable
  (list (kora_other_kind (strcat "LINE,LWPOLYLINE,POLYLINE,POINT," makelinestyle:signs))
        '(makelinestyle:is_tilted "in another plane")
        '(makelinestyle:is_curved "curved")
        '(makelinestyle:is_blank "without letters")
        '(makelinestyle:is_formatted "of several lines or with formatting")))

;; -> (file name description), nil when the user gave up or the name cannot be a linetype's.
(defun makelinestyle:ask (file / state name)
  (if (kora_show 'Dlg_makelinestyle (list file))
    (progn
      (setq state (kora_readstate file)
            name  (strcase (kora_state_value state "name")))
      (if (and (snvalid name) (not (member name '("BYLAYER" "BYBLOCK" "CONTINUOUS"))))
        (list (kora_state_value state "linetypefile") name (kora_state_value state "description"))
        (kora_refuse (kora_text "A linetype cannot be named %1." (list name)))))))

;; -> the lines of the definition, nil when the user gave up or there is no pattern in what was picked.
(defun makelinestyle:measure (choice / entities start end axis parts texts)
  (if (and (setq entities (kora_choose "Select lines, polylines, points, texts and shapes of one pattern: " nil))
           (setq entities (kora_usable entities makelinestyle:unusable))
           (setq start (getPointOrtakit (kora_text "\nSpecify start point of the pattern: " nil)))
           (setq end (getPointOrtakit start (kora_text "\nSpecify point where the pattern repeats: " nil))))
    (progn
      (setq start (trans start 1 0)
            end   (trans end 1 0)
            start (list (car start) (cadr start))
            end   (list (car end) (cadr end)))
      (if (< (distance start end) 1e-9)
        (kora_refuse "The pattern has no length.")
        (progn
          (setq axis (list start (angle start end) (distance start end)))
          (foreach entity (kora_usable entities '((makelinestyle:is_beside "beside the direction")
                                                  (makelinestyle:is_outside "outside the pattern")))
            (makelinestyle:take (entget entity)))
          (makelinestyle:define choice axis parts texts))))))

(defun makelinestyle:is_sign (data) (wcmatch (kora_field data 0) makelinestyle:signs))

;; Signs cannot be mirrored; of polylines their pieces are asked for.
(defun makelinestyle:is_tilted (data)
  (if (makelinestyle:is_sign data)
    (not (equal (kora_normal data) '(0.0 0.0 1.0) 1e-9))
    (and (wcmatch (kora_field data 0) "*LINE") (null (kora_pieces data)))))

(defun makelinestyle:is_curved (data)
  (vl-some '(lambda (piece) (/= (caddr piece) 0.0)) (kora_pieces data)))

(defun makelinestyle:is_blank (data)
  (and (wcmatch (kora_field data 0) "TEXT,MTEXT")
       (or (= (kora_string_trim (kora_text_content data)) "") (null (kora_text_box data)))))

;; Of the formatting of a paragraph nothing can be in a linetype.
(defun makelinestyle:is_formatted (data / parts)
  (and (= (kora_field data 0) "MTEXT")
       (setq parts (kora_text_parts data))
       (or (cdr parts) (/= (caar parts) 'TEXT) (> (kora_field data 43) (* 1.5 (kora_field data 40))))))

(defun makelinestyle:is_beside (data)
  (vl-some '(lambda (run) (> (max (abs (cadar run)) (abs (cadadr run))) (* 0.01 (caddr axis))))
           (makelinestyle:runs data)))

(defun makelinestyle:is_outside (data)
  (if (makelinestyle:is_sign data)
    (not (<= -1e-9 (car (makelinestyle:along (makelinestyle:start data))) (caddr axis)))
    (null (makelinestyle:dashes data))))

;; The ends of what an entity draws, lists of two places along the direction; none of a sign.
(defun makelinestyle:runs (data)
  (cond
    ((makelinestyle:is_sign data) nil)
    ((= (kora_field data 0) "POINT")
     (setq data (makelinestyle:along (kora_field data 10)))
     (list (list data data)))
    (T (mapcar '(lambda (piece) (list (makelinestyle:along (car piece)) (makelinestyle:along (cadr piece))))
               (kora_pieces data)))))

;; The parts of its runs that are within the pattern.
(defun makelinestyle:dashes (data)
  (vl-remove nil (mapcar '(lambda (run) (makelinestyle:clipped (caar run) (caadr run))) (makelinestyle:runs data))))

;; Measures one entity into the parts or texts of makelinestyle:measure.
(defun makelinestyle:take (data / place)
  (if (makelinestyle:is_sign data)
    (setq place (makelinestyle:along (makelinestyle:start data))
          texts (cons (list (max 0.0 (car place)) (cadr place) data) texts))
    (setq parts (append (makelinestyle:dashes data) parts))))

;; Where the first letter of a text, or a shape, stands on its base line.
(defun makelinestyle:start (data / attachment)
  (if (= (kora_field data 0) "MTEXT")
    (progn
      (setq attachment (1- (cond ((kora_field data 71)) (1))))
      (kora:turned (kora_field data 10) (makelinestyle:turn data)
                   (list (* -0.5 (kora_field data 42) (rem attachment 3))
                         (* (kora_field data 43) (- (* 0.5 (/ attachment 3)) 1.0)))))
    (kora_field data 10)))

(defun makelinestyle:turn (data)
  (if (= (kora_field data 0) "MTEXT") (kora:paragraph_turn data) (cond ((kora_field data 50)) (0.0))))

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
    ((vl-some '(lambda (one) (makelinestyle:sign_problem (caddr one))) texts))
    ((vl-some '(lambda (low high) (< (- high low) (makelinestyle:least))) places (cdr places))
     "Two texts start at the same place.")))

;; What keeps a text or shape from being in a linetype; nil when nothing does.
(defun makelinestyle:sign_problem (data / file)
  (cond
    ((/= (kora_field data 0) "SHAPE")
     (if (vl-string-search "\"" (kora_text_content data)) "A text with quotation marks cannot be in a linetype."))
    ((null (setq file (makelinestyle:shape_file (kora_field data 2))))
     (kora_text "The shape %1 is in no shape file of the drawing." (list (kora_field data 2))))
    ((wcmatch file "*[],]*") (kora_text "The shape file %1 cannot be in a linetype: its name has a comma or bracket." (list file)))))

;; -> the drawing's shape file that has the shape, by the sources that are found; of a single file no source is needed.
(defun makelinestyle:shape_file (name / style files)
  (setq style (tblnext "STYLE" T))
  (while style
    (if (= 1 (logand 1 (kora_field style 70))) (setq files (cons (kora_field style 3) files)))
    (setq style (tblnext "STYLE")))
  (cond ((null (cdr files)) (car files))
        ((vl-some '(lambda (file) (if (makelinestyle:has_shape file name) file)) (reverse files)))))

(defun makelinestyle:has_shape (file name / path)
  (if (wcmatch (strcase file) "*.SHX,*.SHP") (setq file (substr file 1 (- (strlen file) 4))))
  (if (setq path (findfile (strcat file ".shp")))
    (vl-some '(lambda (line) (= (strcase (cond ((caddr (kora_header_fields line))) (""))) (strcase name)))
             (kora_file_lines path))))

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
(defun makelinestyle:rotated (elements / first tail)
  (setq first (car elements)
        tail  (car (reverse elements)))
  (cond
    ((or (not (makelinestyle:is_gap first)) (null (cdr elements))) elements)
    ((makelinestyle:is_gap tail)
     (append (reverse (cdr (reverse (cdr elements))))
             (list (list (car tail) (+ (cadr tail) (cadr first)) 'GAP))))
    (T (append (cdr elements)
               (list (list (cadr tail) (+ (cadr tail) (cadr first)) 'GAP))))))

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
(defun makelinestyle:element_text (element / extent)
  (setq extent (- (cadr element) (car element)))
  (strcat (makelinestyle:number (if (makelinestyle:is_gap element) (- extent) extent))
          (if (cadddr element) (makelinestyle:text_text (cadddr element) (cadr element)) "")))

;; The sign counts from the end of its element; a text's height from that of its style, where that has one.
(defun makelinestyle:text_text (one end / data style fixed)
  (setq data  (caddr one)
        style (cond ((kora_field data 7)) ("STANDARD"))
        fixed (kora_field (tblsearch "STYLE" style) 40)
        fixed (if (and fixed (> fixed 0.0) (/= (kora_field data 0) "SHAPE")) fixed 1.0))
  (strcat ",["
          (if (= (kora_field data 0) "SHAPE")
            (strcat (kora_field data 2) "," (makelinestyle:shape_file (kora_field data 2)))
            (strcat "\"" (kora_text_content data) "\"," style))
          ",S=" (makelinestyle:number (/ (kora_field data 40) fixed))
          ",R=" (kora_number_text (makelinestyle:degrees (- (makelinestyle:turn data) (cadr axis))) 4)
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
  (kora_alert_message (kora_text "Linetype %1 was written to %2." (list (cadr choice) (car choice)))))

(princ)
