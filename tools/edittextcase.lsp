;;; menu: Edit text case | EDITTEXTCASE | Writes texts in capitals, small letters or as titles | Texts
;;;
;;; EDITTEXTCASE: texts, attributes of blocks and attribute definitions are chosen; the dialog shows the first of them in
;;; the style that the user picks, and all are written so. What is no letter stays: the codes of paragraphs, degree and
;;; diameter signs, stacked fractions and fits.
;;;
;;; The styles, by the number of their button: 1 the very first character a capital, all others small; 2 small; 3
;;; capitals; 4 each letter behind white space a capital; 5 small letters for capitals and the other way round.

(setq edittextcase:filter
  '((-4 . "<OR") (0 . "TEXT,MTEXT,ATTDEF") (-4 . "<AND") (0 . "INSERT") (66 . 1) (-4 . "AND>") (-4 . "OR>")))

(defun c:edittextcase (/ *error* kora:variables texts style)
  (setq texts (kora_chosen edittextcase:filter))
  (kora_begin '(("CMDECHO" . 0)))
  (if (and (setq texts (cond (texts) ((kora_choose "Select texts and blocks with attributes: " edittextcase:filter))))
           (setq style (edittextcase:ask (setq texts (edittextcase:texts texts)))))
    (edittextcase:change texts style))
  (kora_end))

;; The texts themselves; of a block reference its attributes.
(defun edittextcase:texts (entities)
  (apply 'append
         (mapcar '(lambda (entity) (cond ((kora_attributes entity)) ((list entity)))) entities)))

;; -> the number of the style, nil when cancelled.
(defun edittextcase:ask (texts / file state style)
  (setq file (kora_statefile "edittextcase"))
  (kora_writestate file (list (cons "referenceedit" (kora_plain_text (kora_text_parts (entget (car texts)))))))
  (if (kora_show 'Dlg_edittextcase (list file))
    (progn
      (setq state (kora_readstate file))
      (foreach number '(1 2 3 4 5)
        (if (kora_state_is state (strcat "radiobutton" (itoa number))) (setq style number)))
      style)))

(defun edittextcase:change (texts style / data old new changed same locked kept)
  (foreach text texts
    (setq data (entget text))
    (cond ((edittextcase:is_locked data) (setq locked (cons text locked)))
          ((not (kora_can_write data)) (setq kept (cons text kept)))
          ((= (setq old (kora_text_content data))
              (setq new (edittextcase:converted old style (= (kora_field data 0) "MTEXT"))))
           (setq same (cons text same)))
          ((entmod (kora_with_content data new)) (setq changed (cons text changed)))))
  (kora_results "EDITTEXTCASE"
    (list (list "done" "changed" (reverse changed))
          (list "skipped" "is so already" (reverse same))
          (list "skipped" "an attribute of several lines" (reverse kept))
          (list "skipped" "on a locked layer" (reverse locked))))
  (if kept
    (kora_alert_message (kora_text "%1 of several lines left alone." (list (kora_number_of (length kept) "attribute")))))
  (kora_done (kora_text "%1 changed." (list (kora_number_of (length changed) "text"))) (length locked)))

;; An attribute is locked with the layer of its block reference as well.
(defun edittextcase:is_locked (data / owner)
  (setq owner (if (= (kora_field data 0) "ATTRIB") (kora_field data 330)))
  (or (kora_is_locked data)
      (and owner (kora_field (setq owner (entget owner)) 8) (kora_is_locked owner))))

;; (edittextcase:converted text style paragraph) -> the text in that style; paragraph is T for the content of an MTEXT.
(defun edittextcase:converted (text style paragraph / at result)
  (setq at 'START)
  (foreach part (kora_parts text paragraph)
    (setq result (cons (if (= (car part) 'TEXT) (edittextcase:run (cdr part) style) (vl-list->string (cdr part))) result)
          at     (cond ((= (car part) 'CODE) at)
                       ((= (car part) 'BREAK) 'WORD)
                       ((= (car part) 'SIGN) nil)
                       ((kora_is_space (last part)) 'WORD))))
  (apply 'strcat (reverse result)))

;; A run of readable characters. What stands in front of it is at: START nothing, WORD white space, nil something else.
(defun edittextcase:run (codes style / before result)
  (cond
    ((= style 2) (strcase (vl-list->string codes) T))
    ((= style 3) (strcase (vl-list->string codes)))
    (T
     (setq before at)
     (foreach code codes
       (setq result (cons (if (> code 65535) code (edittextcase:letter code style before)) result)
             before (if (kora_is_space code) 'WORD)))
     (vl-list->string (reverse result)))))

;; One character for one. Beyond 65535 letters stay as they are.
(defun edittextcase:letter (code style before / upper lower)
  (setq upper (edittextcase:single code (strcase (chr code)))
        lower (edittextcase:single code (strcase (chr code) T)))
  (cond ((not (edittextcase:is_letter code)) code)
        ((= style 1) (if (= before 'START) upper lower))
        ((= style 4) (if before upper lower))
        ((edittextcase:is_capital code) lower)
        (T upper)))

;; -> the code of what a character became; its own where that is more than one character, as with the German sharp s.
(defun edittextcase:single (code mapped)
  (if (= (strlen mapped) 1) (ascii mapped) code))

;; Capitals become small letters and stay when they are written large; the Greek ones with an iota behind them are both.
(defun edittextcase:is_capital (code)
  (and (= (strcase (chr code)) (chr code)) (/= (strcase (chr code) T) (chr code))))

;; What has a case and is no letter: the iota below a letter, Roman numbers, letters in circles.
(defun edittextcase:is_letter (code)
  (not (or (= code 837) (<= 8544 code 8575) (<= 9398 code 9449))))

(princ)
