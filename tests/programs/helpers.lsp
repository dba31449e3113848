;;; What the sessions beside this file compare with, and what their programs share. Files go to *folder*.

;; Whether two values are the same: numbers to within 1e-6, an integer as good as a real.
(defun near (a b)
  (cond
    ((and (numberp a) (numberp b)) (equal a b 1e-6))
    ((and (= (type a) 'LIST) (= (type b) 'LIST)) (and (near (car a) (car b)) (near (cdr a) (cdr b))))
    ((equal a b))))

;; The same, and says what there was instead: a session that fails shows it.
(defun is (got want)
  (cond
    ((near got want))
    (T
     (princ "\nThere is ")
     (prin1 got)
     (princ "\n   and not ")
     (prin1 want)
     nil)))

;; The first value of a group of an entity; those of several.
(defun field (code entity) (cdr (assoc code (entget entity))))
(defun fields (codes entity)
  (mapcar '(lambda (code) (field code entity)) codes))

;; How many entities of a kind the drawing has.
(defun how-many (kind / found)
  (if (setq found (ssget "_X" (list (cons 0 kind)))) (sslength found) 0))

;; The points of a polyline that has them in its own record.
(defun vertices (entity)
  (mapcar 'cdr (vl-remove-if-not '(lambda (x) (= (car x) 10)) (entget entity))))

;; The lines of a file.
(defun lines-of (path / file line lines)
  (setq file (open path "r"))
  (while (setq line (read-line file))
    (setq lines (cons line lines)))
  (close file)
  (reverse lines))

;; Writes a file of the folder; its path.
(defun write-lines (name lines / file)
  (setq file (open (strcat *folder* name) "w"))
  (foreach line lines (write-line line file))
  (close file)
  (strcat *folder* name))

;; Adds a value to those that a program has got.
(defun note (value)
  (setq r (append r (list value))))
