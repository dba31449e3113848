(defun hands (s / i r)
  (if s (repeat (setq i (sslength s)) (setq i (1- i) r (cons (cdr (assoc 5 (entget (ssname s i)))) r)))))
(defun name (h) (handent h))
(defun twin (h) (entmakex (cdr (entget (name h)))))
