;;; Drawing in the user's coordinate system, with what the next entity is drawn with: layer, text style.

;; (kora_make_line from to) draws a line between two points in user coordinates.
(defun kora_make_line (from to)
  (entmake (list '(0 . "LINE") (cons 10 (trans from 1 0)) (cons 11 (trans to 1 0)))))

;; (kora_make_text point height text alignment) writes a line of text at its left (0) or right (2) end, which is in user
;; coordinates, along the user's x axis.
(defun kora_make_text (point height text alignment / normal style)
  (setq normal (trans '(0.0 0.0 1.0) 1 0 T)
        style  (tblsearch "STYLE" (getvar "TEXTSTYLE"))
        point  (trans point 1 normal))
  (entmake (append (list '(0 . "TEXT") (cons 10 point) (cons 40 height) (cons 1 text)
                         (cons 50 (angle '(0.0 0.0) (trans '(1.0 0.0 0.0) 1 normal T)))
                         (cons 41 (cond ((kora_field style 41)) (1.0)))
                         (cons 51 (cond ((kora_field style 50)) (0.0)))
                         (cons 7 (getvar "TEXTSTYLE")))
                   (if (/= alignment 0) (list (cons 72 alignment) (cons 11 point)))
                   (list (cons 210 normal)))))

;; (kora_text_height) -> the height of the next text: that of its style, of a style without one the drawing's.
(defun kora_text_height ()
  (cond ((kora_style_height)) ((getvar "TEXTSIZE"))))

;; (kora_style_height) -> the height that the current text style sets, nil when it sets none.
(defun kora_style_height (/ height)
  (setq height (kora_field (tblsearch "STYLE" (getvar "TEXTSTYLE")) 40))
  (if (and height (> height 0.0)) height))

;; (kora_file_version) -> the version of the drawing's file, as "AC1015".
(defun kora_file_version ()
  (cond ((getvar "DXFVERSION")) ((getvar "ACADVER"))))
