(setq s "" i 0)
(while (< i 20000) (setq s (strcat s "x") i (1+ i)))
(princ (strlen s))
