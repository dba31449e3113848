;;; Strings.

;; (kora_string_split text separator) -> list of the parts of text between separators, empty ones included.
(defun kora_string_split (text separator / found parts width)
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
