;;; What a dump says.
(defun lines_of (path / handle text lines)
  (setq handle (open path "r"))
  (while (setq text (read-line handle)) (setq lines (cons text lines)))
  (close handle)
  (reverse lines))
;; What sets the variable, without its semicolon; nil when the dump has no such line.
(defun assignment (name / found)
  (if (setq found (car (vl-remove-if-not '(lambda (text) (wcmatch text (strcat ";(setq " name " *")))
                                         (lines_of dump))))
    (substr found 2)))
;; Whether the variables have the same values again when these lines are read.
(defun come_back (names / before)
  (setq before (mapcar '(lambda (name) (eval (read name))) names))
  (foreach name names
    (set (read name) nil)
    (eval (read (assignment name))))
  (and (not (member nil before)) (equal before (mapcar '(lambda (name) (eval (read name))) names))))
;; The names of all that are whole numbers, with these.
(defun numbers ()
  (apply 'strcat (mapcar '(lambda (text) (if (= (type (caddr text)) 'INT) (strcat (vl-prin1-to-string (cadr text)) "="
                                                                            (itoa (caddr text)) " ") ""))
                         (mapcar '(lambda (text) (read (substr text 2)))
                                 (vl-remove-if-not '(lambda (text) (wcmatch text ";(setq * #*)")) (lines_of dump))))))
