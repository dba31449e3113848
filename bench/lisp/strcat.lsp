(setq i 0 n 0)
(while (< i 300000) (setq n (+ n (strlen (strcat "(" (itoa i) " . \"a name of some length\")"))) i (1+ i)))
(princ n)
