;;; Draws zigzag.dxf, a break symbol one unit wide with its middle in the origin.

(defun zigzag:line (from to)
  (entmake (list '(0 . "LINE") '(8 . "0") (cons 10 from) (cons 11 to))))

(zigzag:line '(-0.5 0.0 0.0) '(-0.25 0.0 0.0))
(zigzag:line '(-0.25 0.0 0.0) '(-0.125 0.45 0.0))
(zigzag:line '(-0.125 0.45 0.0) '(0.125 -0.45 0.0))
(zigzag:line '(0.125 -0.45 0.0) '(0.25 0.0 0.0))
(zigzag:line '(0.25 0.0 0.0) '(0.5 0.0 0.0))
(command "_.SAVEAS" "zigzag.dxf")
(princ)
