(setq l nil i 0 s 12345)
(while (< i 100000) (setq s (rem (+ (* s 1103) 12345) 65536) l (cons s l) i (1+ i)))
(setq l (vl-sort l '(lambda (a b) (< a b))))
(princ (+ (car l) (nth 50000 l)))
