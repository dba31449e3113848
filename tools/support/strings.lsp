;;; Strings.

;; (kora_string_split text separator) -> list of the parts of text between separators, empty ones included.
(defun kora_string_split (text separator)
  (if (and (= (strlen separator) 1) (> (strlen text) 1000))
    (kora:split_long text separator)
    (kora:split_short text separator)))

;; By halves, because what is left of a text is copied for each part.
(defun kora:split_long (text separator / middle found parts)
  (setq middle (/ (strlen text) 2)
        found  (vl-string-search separator text middle))
  (if found
    (append (kora_string_split (substr text 1 found) separator) (kora_string_split (substr text (+ found 2)) separator))
    (progn
      (setq parts (reverse (kora_string_split (substr text 1 middle) separator)))
      (reverse (cons (strcat (car parts) (substr text (1+ middle))) (cdr parts))))))

(defun kora:split_short (text separator / found parts width)
  (setq width (strlen separator))
  (while (setq found (vl-string-search separator text))
    (setq parts (cons (substr text 1 found) parts)
          text  (substr text (+ found 1 width))))
  (reverse (cons text parts)))

;; (kora_string_trim text) -> text without blanks, tabs and line ends on both sides.
(defun kora_string_trim (text)
  (vl-string-trim " \t\r\n" text))

;; (kora_starts_with text beginning) -> T when text begins so, in any mix of cases.
(defun kora_starts_with (text beginning)
  (= (strcase (substr text 1 (strlen beginning))) (strcase beginning)))

;; (kora_number_text number places) -> the number in decimal with at most so many places, without zeros at its end.
(defun kora_number_text (number places / text)
  (setq text (rtos number 2 places))
  (if (vl-string-search "." text)
    (setq text (vl-string-right-trim "." (vl-string-right-trim "0" text))))
  (cond ((= text "-0") "0") (T text)))

;; (kora_string_join parts separator) -> one text.
(defun kora_string_join (parts separator)
  (if parts
    (apply 'strcat (cons (car parts) (mapcar '(lambda (part) (strcat separator part)) (cdr parts))))
    ""))

;; (kora_replace_all new old text) -> text with new for every old.
(defun kora_replace_all (new old text / parts result)
  (setq parts (kora_string_split text old)
        result (list (car parts)))
  (foreach part (cdr parts) (setq result (cons part (cons new result))))
  (apply 'strcat (reverse result)))

;; (kora_is_space code) -> T for the code of a white-space character.
(defun kora_is_space (code)
  (or (= code 32) (<= 9 code 13) (<= 8192 code 8202)
      (if (member code '(133 160 5760 8232 8233 8239 8287 12288)) T)))

;; (kora_number_of number noun) -> "1 block", "2 blocks".
(defun kora_number_of (number noun)
  (kora_count number (strcat "1 " noun) (strcat "%1 " noun "s")))

;; (kora_also number text) -> ", 2 ..." for the end of a message, "" for none.
(defun kora_also (number text)
  (if (> number 0) (kora_text (strcat ", %1" text) (list (itoa number))) ""))

;; (kora_literal text) -> a pattern for wcmatch that this text alone matches.
(defun kora_literal (text / codes)
  (foreach code (vl-string->list text)
    (setq codes (if (member code '(35 64 46 42 63 126 91 93 45 44 96)) (cons code (cons 96 codes)) (cons code codes))))
  (vl-list->string (reverse codes)))
