;;; Hatches: their patterns of lines, from files and from other hatches.
;;;
;;; A line of a pattern is a list (angle base offset dashes): radians, the point it goes through, the way to the next
;;; one beside it, and the lengths of its dashes, gaps negative; none of a full line.

;; (kora_hatch_pattern name) -> the lines of a pattern by its name: from a file of that name in the support folders,
;; else from the tools' own; nil when there is none.
(defun kora_hatch_pattern (name / path)
  (vl-some '(lambda (file) (if (setq path (findfile file)) (kora:pattern_in_file path name)))
           (list (strcat name ".pat") (strcat (strcase name T) ".pat") (strcat kora:support_folder "patterns.pat"))))

;; A pattern is a line *NAME, description, and behind it angle, base, offset and dashes of each of its lines; an offset
;; is along the line and across it.
(defun kora:pattern_in_file (path name / lines found)
  (foreach line (mapcar 'kora_string_trim (kora_read_lines path))
    (cond
      ((= line ""))
      ((= (substr line 1 1) ";"))
      ((= (substr line 1 1) "*")
       (setq found (= (strcase (kora_string_trim (car (kora_string_split (substr line 2) ",")))) name)))
      (found (setq lines (cons (kora:pattern_line line) lines)))))
  (if (not (member nil lines)) (reverse lines)))

(defun kora:pattern_line (line / numbers turn)
  (setq numbers (mapcar '(lambda (text) (distof (kora_string_trim text) 2))
                        (kora_string_split (car (kora_string_split line ";")) ",")))
  (if (and (cddddr numbers) (not (member nil numbers)))
    (progn
      (setq turn (* pi (/ (car numbers) 180.0)))
      (list turn (list (cadr numbers) (caddr numbers))
            (kora:along (list (cos turn) (sin turn) (- (sin turn)) (cos turn)) (cadddr numbers) (car (cddddr numbers)))
            (cdr (cddddr numbers))))))

;; (kora_hatch_lines data) -> the lines of a hatch.
(defun kora_hatch_lines (data / lines)
  (foreach field (cdr (member (assoc 78 data) data))
    (cond
      ((= (car field) 53) (setq lines (cons (list (cdr field) '(0.0 0.0) '(0.0 0.0) nil) lines)))
      ((null lines))
      ((setq field (assoc (car field) (list (cons 43 (cons 0 (cdr field))) (cons 44 (cons 1 (cdr field)))
                                            (cons 45 (cons 2 (cdr field))) (cons 46 (cons 3 (cdr field)))
                                            (cons 49 (cons 4 (cdr field))))))
       (setq lines (cons (kora:with_number (car lines) (cadr field) (cddr field)) (cdr lines))))))
  (reverse lines))

;; A pattern's line with one number more: 0 and 1 are its base, 2 and 3 its offset, 4 a dash.
(defun kora:with_number (line place number)
  (list (car line)
        (cond ((= place 0) (list number 0.0)) ((= place 1) (list (caadr line) number)) (T (cadr line)))
        (cond ((= place 2) (list number 0.0)) ((= place 3) (list (caaddr line) number)) (T (caddr line)))
        (if (= place 4) (append (cadddr line) (list number)) (cadddr line))))

;; (kora_mapped_lines lines map) -> the lines as a map shows them.
(defun kora_mapped_lines (lines map)
  (mapcar '(lambda (line / way)
             (setq way (kora:along map (cos (car line)) (sin (car line))))
             (list (angle '(0.0 0.0) way) (kora_mapped map (cadr line))
                   (kora:along map (car (caddr line)) (cadr (caddr line)))
                   (mapcar '(lambda (dash) (* dash (distance '(0.0 0.0) way))) (cadddr line))))
          lines))

;; (kora_hatch loops pattern look) -> the list of a hatch within loops of points; pattern is (name line ...), nil of one
;; that is filled with its colour.
(defun kora_hatch (loops pattern look)
  (append '((0 . "HATCH") (100 . "AcDbEntity")) look
          (list '(100 . "AcDbHatch") '(10 0.0 0.0 0.0) '(210 0.0 0.0 1.0)
                (cons 2 (if pattern (car pattern) "SOLID")) (cons 70 (if pattern 0 1)) '(71 . 0)
                (cons 91 (length loops)))
          (apply 'append (mapcar 'kora:hatch_loop loops))
          '((75 . 0) (76 . 1))
          (if pattern
            (append (list '(52 . 0.0) '(41 . 1.0) '(77 . 0) (cons 78 (length (cdr pattern))))
                    (apply 'append (mapcar 'kora:hatch_line (cdr pattern)))))
          '((98 . 0))))

(defun kora:hatch_loop (points)
  (append (list (cons 92 (if (minusp (kora_twice_area points)) 18 3)) '(72 . 0) '(73 . 1) (cons 93 (length points)))
          (mapcar '(lambda (point) (list 10 (car point) (cadr point))) points)
          '((97 . 0))))

(defun kora:hatch_line (line)
  (append (list (cons 53 (kora:one_turn (car line))) (cons 43 (caadr line)) (cons 44 (cadadr line))
                (cons 45 (caaddr line)) (cons 46 (cadr (caddr line))) (cons 79 (length (cadddr line))))
          (mapcar '(lambda (dash) (cons 49 dash)) (cadddr line))))
