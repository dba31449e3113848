;;; What texts say: the content of an entity, and its readable parts between formatting codes.
;;;
;;; A part is a list (kind code ...) with the codes of its characters. The kinds:
;;;
;;;   TEXT    readable characters
;;;   SIGN    a code that shows something: %%d, \U+00B0, \{, a stack such as \S1/2;
;;;   BREAK   a code that parts words: \P, \N, \~
;;;   CODE    a code that shows nothing: %%u, \H2;, {, \fArial|b0;
;;;
;;; The characters of all parts in order are the content.

;; (kora_text_content data) -> what a TEXT, MTEXT, ATTRIB or ATTDEF says, with its codes. data is of entget.
(defun kora_text_content (data / pieces)
  (if (= (kora_field data 0) "MTEXT")
    (foreach field (kora:own_fields data)
      (if (member (car field) '(1 3)) (setq pieces (cons (cdr field) pieces))))
    (setq pieces (list (kora_field data 1))))
  (apply 'strcat (reverse (vl-remove nil pieces))))

;; (kora_with_content data text) -> data that says text instead.
(defun kora_with_content (data text)
  (if (= (kora_field data 0) "MTEXT")
    (append (kora:with_pieces (kora:own_fields data) text) (member (assoc 101 data) data))
    (kora_with_field data 1 text)))

;; The fields of a paragraph with its text in place of the one that they say.
(defun kora:with_pieces (fields text / pieces result done)
  (setq pieces (kora:content_fields text))
  ;; A code that is left out of a list stays what it was in the entity.
  (if (and (assoc 3 fields) (not (assoc 3 pieces))) (setq pieces (list (cons 3 text) '(1 . ""))))
  (foreach field fields
    (cond ((not (member (car field) '(1 3))) (setq result (cons field result)))
          ((not done) (setq result (append (reverse pieces) result) done T))))
  (reverse result))

;; The fields in front of an object that is embedded in the entity.
(defun kora:own_fields (data)
  (if (assoc 101 data)
    (reverse (cdr (member (assoc 101 data) (reverse data))))
    data))

;; Group 3 for each full piece of 250 characters, group 1 for the rest.
(defun kora:content_fields (text / fields)
  (while (> (strlen text) 250)
    (setq fields (cons (cons 3 (substr text 1 250)) fields)
          text   (substr text 251)))
  (reverse (cons (cons 1 text) fields)))

;; (kora_can_write data) -> T when what the entity says can be written anew: an attribute of several lines says it twice,
;; in a form of its own.
(defun kora_can_write (data)
  (or (= (kora_field data 0) "MTEXT") (null (assoc 101 data))))

;; (kora_text_parts data) -> the parts of what the entity says.
(defun kora_text_parts (data)
  (kora_parts (kora_text_content data) (= (kora_field data 0) "MTEXT")))

;; (kora_parts text paragraph) -> the parts of a text; paragraph is T for the content of an MTEXT.
(defun kora_parts (text paragraph / codes found run parts)
  (setq codes (vl-string->list text))
  (while codes
    (if (setq found (kora:code_at codes paragraph))
      (progn
        (if run (setq parts (cons (cons 'TEXT (reverse run)) parts) run nil))
        (setq parts (cons (cons (car found) (kora:first_of codes (cdr found))) parts))
        (repeat (cdr found) (setq codes (cdr codes))))
      (setq run   (cons (car codes) run)
            codes (cdr codes))))
  (reverse (if run (cons (cons 'TEXT (reverse run)) parts) parts)))

;; (kora_parts_text parts) -> the text that they are parts of.
(defun kora_parts_text (parts)
  (vl-list->string (apply 'append (mapcar 'cdr parts))))

;; (kora_plain_text parts) -> what can be read of it in one line, signs left out.
(defun kora_plain_text (parts)
  (vl-list->string
    (apply 'append (mapcar '(lambda (part)
                              (cond ((= (car part) 'TEXT)
                                     (mapcar '(lambda (code) (if (kora_is_space code) 32 code)) (cdr part)))
                                    ((= (car part) 'BREAK) '(32))))
                           parts))))

;; (kora_escaped text) -> text as an MTEXT says it.
(defun kora_escaped (text)
  (foreach sign '("\\" "{" "}")
    (setq text (kora_replace_all (strcat "\\" sign) sign text)))
  text)

(defun kora:first_of (codes count / result)
  (repeat count
    (setq result (cons (car codes) result)
          codes  (cdr codes)))
  (reverse result))

;; -> (kind . length) of the code that codes begin with, nil when they begin with a readable character.
(defun kora:code_at (codes paragraph / first second)
  (setq first (car codes) second (cadr codes))
  (cond ((and (= first 37) (= second 37)) (kora:percent_code (cddr codes)))
        ((and (= first 92) (= (caddr codes) 43) (= second 85) (>= (length (kora:first_hex (cdddr codes))) 4)) '(SIGN . 7))
        ((and (= first 92) (= (caddr codes) 43) (= second 77) (>= (length (kora:first_hex (cdddr codes))) 5)) '(SIGN . 8))
        ((not paragraph) nil)
        ((or (= first 123) (= first 125)) '(CODE . 1))
        ((/= first 92) nil)
        ((null second) '(CODE . 1))
        ((member second '(80 78 88 126)) '(BREAK . 2))
        ((member second '(92 123 125)) '(SIGN . 2))
        ((= second 83) (cons 'SIGN (kora:to_semicolon codes)))
        ((member second '(65 67 99 70 102 72 112 81 84 87)) (cons 'CODE (kora:to_semicolon codes)))
        (T '(CODE . 2))))

;; Up to five hexadecimal digits that codes begin with.
(defun kora:first_hex (codes / found)
  (while (and (< (length found) 5) codes
              (or (<= 48 (car codes) 57) (<= 65 (car codes) 70) (<= 97 (car codes) 102)))
    (setq found (cons (car codes) found)
          codes (cdr codes)))
  found)

;; The code behind two per cent signs: lines switched on and off, and signs by letter or number.
(defun kora:percent_code (codes / digits)
  (setq digits 0)
  (while (and (< digits 3) codes (<= 48 (car codes) 57))
    (setq digits (1+ digits)
          codes  (cdr codes)))
  (cond ((> digits 0) (cons 'SIGN (+ 2 digits)))
        ((null codes) '(CODE . 2))
        ((member (car codes) '(37 67 68 80 99 100 112)) '(SIGN . 3))
        (T '(CODE . 3))))

;; How many characters there are up to the semicolon that ends a code; a backslash guards the one behind it.
(defun kora:to_semicolon (codes / count)
  (setq count 2
        codes (cddr codes))
  (while (and codes (/= (car codes) 59))
    (if (and (= (car codes) 92) (cdr codes)) (setq count (1+ count) codes (cdr codes)))
    (setq count (1+ count)
          codes (cdr codes)))
  (if codes (1+ count) count))
