;;; The catalogue: what the Lisp engine holds, one symbol a line in the order of the names, fields divided by "!".
;;;
;;;   COMMAND!C:BREAKLINE!USUBR!Lisp function!<Function: C:BREAKLINE>
;;;   FUNCTION!CAR!SUBR!Built-in function!<Subr: CAR>
;;;   VARIABLE!SIZES!LIST!'(1 2 3)
;;;   VARIABLE!TITLE!STR!Ground floor
;;;
;;; Values are written as a program would have them, lists and symbols quoted, so that a line of the dump is an
;;; assignment that can be used. A string is without its quotes, which the dump puts around it; in it, a quote, a
;;; backslash and a line break are \", \\ and \n, so that each symbol has one line. An exclamation mark is written \041
;;; everywhere: in strings that is the same character.
;;;
;;; Variables are bound dynamically: while this runs, a local one hides what the user has under its name. So all of them
;;; are named kora:..., and variables named so are left out.

;; (kora_write_catalogue path) -> T, nil when the file cannot be written.
(defun kora_write_catalogue (kora:catalogue_path)
  (kora_write_file kora:catalogue_path
    '(lambda (kora:file / kora:line)
       (foreach kora:symbol (vl-sort (atoms-family 0) 'kora:symbol_before)
         (if (setq kora:line (kora:symbol_line (vl-symbol-name kora:symbol) (vl-symbol-value kora:symbol)))
           (write-line kora:line kora:file))))))

(defun kora:symbol_before (first second)
  (< (vl-symbol-name first) (vl-symbol-name second)))

;; -> the symbol's line, nil for one that is left out.
(defun kora:symbol_line (name value / kind)
  (setq kind (kora:function_kind value))
  (cond
    (kind (kora:catalogue_line (list (if (kora_starts_with name "C:") "COMMAND" "FUNCTION")
                                     name (vl-symbol-name (type value)) kind (vl-prin1-to-string value))))
    ((kora_starts_with name "kora:") nil)
    (T (kora:catalogue_line (list "VARIABLE" name (vl-symbol-name (type value)) (kora:value_text value))))))

;; -> what kind of function it is in words, nil for a value that is none.
(defun kora:function_kind (value)
  (cdr (assoc (type value)
              '((SUBR . "Built-in function") (USUBR . "Lisp function") (EXRXSUBR . "External function")))))

;; -> the value as field of a variable. One too deep or too long to be written must not hide all others.
(defun kora:value_text (value / text)
  (setq text (vl-catch-all-apply 'kora:exact_text (list value)))
  (cond ((vl-catch-all-error-p text) "<too large>")
        ((= (type value) 'STR) (substr text 2 (- (strlen text) 2)))
        ((or (= (type value) 'LIST) (and (= (type value) 'SYM) (/= value T))) (strcat "'" text))
        (T text)))

;; -> the value as prin1 writes it, but reals with all their digits.
(defun kora:exact_text (value / parts)
  (cond
    ((= (type value) 'REAL) (kora:exact_real value))
    ((= (type value) 'LIST)
     (while (= (type value) 'LIST)
       (setq parts (cons " " (cons (kora:exact_text (car value)) parts))
             value (cdr value)))
     (if value (setq parts (cons " " (cons (kora:exact_text value) (cons ". " parts)))))
     (strcat "(" (apply 'strcat (reverse (cdr parts))) ")"))
    (T (vl-prin1-to-string value))))

(defun kora:exact_real (value / text)
  (setq text (vl-prin1-to-string value))
  (if (equal (distof text 2) value) text (rtos value 1 16)))

(defun kora:catalogue_line (fields / line)
  (setq line (car fields))
  (foreach field (cdr fields)
    (setq line (strcat line "!" (kora:without_exclamation field))))
  line)

;; By characters, because a long text of nothing else must not take for ever.
(defun kora:without_exclamation (text / codes)
  (if (vl-string-search "!" text)
    (progn
      (foreach code (vl-string->list text)
        (setq codes (if (= code 33) (append '(49 52 48 92) codes) (cons code codes))))
      (vl-list->string (reverse codes)))
    text))
