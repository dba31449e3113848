(setq f (open (getenv "LINES") "r") n 0)
(while (setq line (read-line f)) (setq n (+ n (strlen line))))
(princ n)
