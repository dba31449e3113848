(setq i 0)
(while (< i 5000000) (setq i (1+ i)))
(princ i)
