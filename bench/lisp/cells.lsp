(setq l nil i 0)
(while (< i 1000000) (setq l (cons i l) i (1+ i)))
(princ (length l))
(princ (car (reverse l)))
