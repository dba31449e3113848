;;; menu: Number text | NUMBERTEXT | Writes numbers into texts in the order of their places | Texts
;;;
;;; NUMBERTEXT: texts are chosen, single lines and paragraphs; the dialog gives their order, the first number and the
;;; step, what the number looks like and where in a text it goes. For an order relative to points these are picked then.
;;;
;;; A text stands where its alignment point is, in the current coordinate system. The order is by X, texts above each
;;; other from top to bottom; by Y, texts beside each other from left to right; by choice; by distance from a point; or
;;; along the line from a first point to a second. Of a text that is to be replaced the first occurrence in each text is
;;; taken, in the same letter case; texts without it keep what they say and use up no number. Formatting codes stay, a
;;; number gets the format of what it stands beside. Texts that show nothing and texts on locked layers stay as they are
;;; and use up no number.

(setq numbertext:filter '((0 . "TEXT,MTEXT")))

(defun c:numbertext (/ *error* kora:variables texts choice)
  (setq texts (kora_chosen numbertext:filter))
  (kora_begin '(("CMDECHO" . 0)))
  (if (and (setq texts (cond (texts) ((kora_choose "Select texts to number: " numbertext:filter))))
           (setq choice (numbertext:ask (kora_statefile "numbertext"))))
    (numbertext:run texts choice))
  (kora_end))

;; Runs the dialog until its numbers are some or the user cancels. -> the state, nil when cancelled.
(defun numbertext:ask (file / state done problem)
  (while (and (not done) (kora_show 'Dlg_NumberText (list file)))
    (setq state   (kora_readstate file)
          problem (numbertext:problem state))
    (if problem (alert problem) (setq done T)))
  (if done state))

;; What is wrong with the choices in words; nil when nothing is.
(defun numbertext:problem (state / first step)
  (setq first (kora_state_real state "tx_init")
        step  (kora_state_real state "tx_step"))
  (cond ((or (null first) (> (abs first) 1e9)) "The initial value must be a number of up to nine digits.")
        ((or (null step) (> (abs step) 1e6)) "The increment must be a number of up to six digits.")
        ((and (kora_state_is state "placement_replace") (= (kora_state_value state "search") ""))
         "There is no text to find.")))

(defun numbertext:run (texts state / usable free points)
  (setq usable (kora_usable texts (list kora_on_locked_layer '(numbertext:is_empty "empty")))
        free   usable)
  (if (kora_state_is state "placement_replace")
    (setq free (numbertext:with_search free (kora_state_value state "search"))))
  (if (setq points (numbertext:points state))
    (numbertext:write (numbertext:sorted free state points) state (numbertext:left texts usable free))))

;; The texts that get no number, as groups of kora_results. Those of free are usable and have the text to be replaced.
(defun numbertext:left (texts usable free / unused locked)
  (setq unused (kora_left_out usable texts)
        locked (vl-remove-if-not '(lambda (text) (kora_is_locked (entget text))) unused))
  (list (list "skipped" "without the text to find" (kora_left_out free usable))
        (list "skipped" "empty" (kora_left_out locked unused))
        (list "skipped" "on a locked layer" locked)))

;; Whether a text shows nothing: there is nothing to find its number by.
(defun numbertext:is_empty (data)
  (= "" (kora_string_trim (kora_plain_text (kora_text_parts data)))))

;; -> the points that the order is relative to, in the current coordinate system; T when it needs none, nil when the user
;; gives up.
(defun numbertext:points (state / first second)
  (cond
    ((kora_state_is state "sort_point")
     (if (setq first (getPointOrtakit (kora_text "\nSpecify point to number from: " nil))) (list first)))
    ((kora_state_is state "sort_2points")
     (if (and (setq first (getPointOrtakit (kora_text "\nSpecify first point: " nil)))
              (setq second (getPointOrtakit first (kora_text "\nSpecify second point: " nil))))
       (if (equal first second 1e-9)
         (kora_refuse "The points are the same.")
         (list first second))))
    (T T)))

;; Sorts by two keys and then by the order of choice. Descending turns the first key round.
(defun numbertext:sorted (texts state points / rows sign index)
  (setq sign  (if (kora_state_is state "sent_des") -1 1)
        index 0)
  (foreach text texts
    (setq rows  (cons (append (numbertext:keys (numbertext:place (entget text)) state points index) (list index text)) rows)
          index (1+ index)))
  (mapcar 'cadddr
          (vl-sort (mapcar '(lambda (row) (cons (* sign (car row)) (cdr row))) rows) 'numbertext:before)))

(defun numbertext:before (a b)
  (cond ((not (equal (car a) (car b) 1e-8)) (< (car a) (car b)))
        ((not (equal (cadr a) (cadr b) 1e-8)) (< (cadr a) (cadr b)))
        (T (< (caddr a) (caddr b)))))

;; -> two numbers that say where a place comes in the order.
(defun numbertext:keys (place state points index)
  (cond ((kora_state_is state "sort_x") (list (car place) (- (cadr place))))
        ((kora_state_is state "sort_y") (list (cadr place) (car place)))
        ((kora_state_is state "sort_point")
         (list (distance (numbertext:flat (car points)) (numbertext:flat place)) 0.0))
        ((kora_state_is state "sort_2points") (list (numbertext:along place points) 0.0))
        (T (list index 0.0))))

(defun numbertext:flat (point) (list (car point) (cadr point)))

;; The distance of a place along the line between the points.
(defun numbertext:along (place points / run)
  (setq run (mapcar '- (numbertext:flat (cadr points)) (numbertext:flat (car points))))
  (/ (apply '+ (mapcar '* run (mapcar '- (numbertext:flat place) (numbertext:flat (car points)))))
     (distance '(0.0 0.0) run)))

;; The alignment point of a text in the current coordinate system.
(defun numbertext:place (data)
  (trans (kora_text_point data) (kora_normal data) 1))

;; Those that have the text to be replaced in one of their readable parts.
(defun numbertext:with_search (texts search)
  (vl-remove-if-not
    '(lambda (text)
       (vl-some '(lambda (part) (numbertext:has part search)) (kora_text_parts (entget text))))
    texts))

(defun numbertext:has (part search)
  (and (= (car part) 'TEXT) (vl-string-search search (vl-list->string (cdr part)))))

;; left is what is listed beside the numbers.
(defun numbertext:write (texts state left / number step places count label groups)
  (setq number (kora_state_real state "tx_init")
        step   (kora_state_real state "tx_step")
        places (max (numbertext:places (kora_state_value state "tx_init"))
                    (numbertext:places (kora_state_value state "tx_step")))
        count  0)
  (foreach text texts
    (setq label (numbertext:label state (+ number (* count step)) places))
    (if (entmod (kora_with_content (entget text) (numbertext:content (entget text) state label)))
      (setq count  (1+ count)
            groups (cons (list "done" label (list text)) groups))
      (setq groups (cons (list "skipped" "could not be changed" (list text)) groups))))
  (kora_results "NUMBERTEXT" (append (reverse groups) left))
  (kora_alert_message (kora_text "%1 numbered." (list (kora_number_of count "text")))))

;; How many digits a typed number has behind its point.
(defun numbertext:places (typed / point)
  (if (setq point (vl-string-search "." (setq typed (kora_string_trim typed))))
    (max 0 (min 8 (- (strlen typed) point 1)))
    0))

;; Prefix, number and suffix.
(defun numbertext:label (state number places / digits)
  (setq digits (numbertext:digits (abs number) (atoi (kora_state_value state "cb_digits")) places))
  (strcat (kora_state_value state "format_prefix")
          (if (and (< number 0.0) (wcmatch digits "*[1-9]*")) "-" "")
          digits
          (kora_state_value state "format_sufix")))

;; The number filled up with zeros to the width in front of the point and the places behind it, whatever the user's
;; settings for zeros are.
(defun numbertext:digits (number width places / parts whole fraction)
  (setq parts    (kora_string_split (rtos number 2 places) ".")
        whole    (car parts)
        fraction (cond ((cadr parts)) ("")))
  (while (< (strlen whole) (max 1 width)) (setq whole (strcat "0" whole)))
  (while (< (strlen fraction) places) (setq fraction (strcat fraction "0")))
  (if (> places 0) (strcat whole "." fraction) whole))

;; -> what the text says with the label in its place.
(defun numbertext:content (data state label / parts)
  (if (= (kora_field data 0) "MTEXT") (setq label (kora_escaped label)))
  (setq label (cons 'TEXT (vl-string->list label))
        parts (kora_text_parts data))
  (kora_parts_text
    (cond ((kora_state_is state "placement_over") (list label))
          ((kora_state_is state "placement_replace") (numbertext:replaced parts (kora_state_value state "search") label))
          ((kora_state_is state "placement_prefix") (numbertext:beside parts label))
          (T (reverse (numbertext:beside (reverse parts) label))))))

;; The label in front of the first part that shows something.
(defun numbertext:beside (parts label / passed)
  (while (and parts (= (caar parts) 'CODE))
    (setq passed (cons (car parts) passed)
          parts  (cdr parts)))
  (if parts
    (append (reverse passed) (list label) parts)
    (cons label (reverse passed))))

;; The label for the first occurrence of search.
(defun numbertext:replaced (parts search label / passed text found)
  (while (not (numbertext:has (car parts) search))
    (setq passed (cons (car parts) passed)
          parts  (cdr parts)))
  (setq text  (vl-list->string (cdar parts))
        found (vl-string-search search text))
  (append (reverse passed)
          (list (cons 'TEXT (vl-string->list (substr text 1 found))) label
                (cons 'TEXT (vl-string->list (substr text (+ found 1 (strlen search))))))
          (cdr parts)))

(princ)
