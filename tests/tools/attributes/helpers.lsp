;;; Blocks A and B, the locked layer SHUT, and references to fill.
(foreach name '("A" "B")
  (entmake (list '(0 . "BLOCK") (cons 2 name) '(70 . 0) '(10 0.0 0.0 0.0)))
  (entmake '((0 . "POINT") (8 . "0") (10 0.0 0.0 0.0)))
  (entmake '((0 . "ENDBLK"))))
(entmake '((0 . "LAYER") (2 . "SHUT") (70 . 4) (62 . 7) (6 . "Continuous")))

;; A reference with attributes: ((tag . text) ...).
(defun full (name layer texts)
  (entmake (list '(0 . "INSERT") '(66 . 1) (cons 8 layer) (cons 2 name) '(10 3.0 4.0 0.0)))
  (foreach text texts
    (entmake (list '(0 . "ATTRIB") '(8 . "0") (cons 2 (car text)) (cons 1 (cdr text)) '(10 0.0 0.0 0.0) '(40 . 1.0)
                   '(70 . 0))))
  (entmake '((0 . "SEQEND"))))

;; All texts, by references.
(defun texts ()
  (mapcar '(lambda (i) (mapcar '(lambda (a) (kora_attribute_text (entget a))) (kora_attributes i)))
          (kora_space_inserts)))

;; References with whatever a spreadsheet may take for something else than a text.
(defun hostile ()
  (foreach text
    '("a text" "7" "3/4" "1E5" "=1+1" "\"quoted\"" "3\"" "" " two  blanks " "'7" "''" "tis '" "<>" "TRUE" "wahr"
      "tab\tin" "line 1\nline 2" "cr\r\nlf" "-" "+1" "@x" "T\U+00FCr \U+20AC" "10.5.2024" "May 5" "007" "1,5"
      "a^b\\Pc" "12:30" "50%" "#N/A")
    (full "A" "0" (list (cons "X" text) '("1E5" . "y") (cons "X" (strcat text " again")) (cons "HANDLE" text)))))
