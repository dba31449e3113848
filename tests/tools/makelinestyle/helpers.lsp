;;; Entities far from the plan: (line x x), (point x) or (text x y text), measured from 100,0 along turn, or lists for
;;; entmake.
(setq turn 0.0)
(defun at (x y)
  (list (+ 100.0 (- (* x (cos turn)) (* y (sin turn)))) (+ (* x (sin turn)) (* y (cos turn))) 0.0))
(defun made (one)
  (entmake
    (cond ((listp (car one)) one)
          ((= (car one) 'line) (list '(0 . "LINE") (cons 10 (at (cadr one) 0)) (cons 11 (at (caddr one) 0))))
          ((= (car one) 'point) (list '(0 . "POINT") (cons 10 (at (cadr one) 0))))
          (T (list '(0 . "TEXT") (cons 10 (at (cadr one) (caddr one))) '(40 . 0.25) (cons 1 (cadddr one)) (cons 50 turn))))))
