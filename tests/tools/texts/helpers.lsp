;;; Texts in the empty north of the plan, 20 up; layer SHUT is locked.
(entmake '((0 . "LAYER") (2 . "SHUT") (70 . 4) (62 . 1) (6 . "Continuous")))

(defun made (head x y words groups)
  (entmakex (append head groups (list (list 10 (float x) (+ 20.0 y) 0.0) (cons 1 words) '(40 . 1.0)))))
(defun text (x y words groups) (made '((0 . "TEXT")) x y words groups))
(defun note (x y words groups) (made '((0 . "MTEXT")) x y words groups))
;; A block reference on the layer with one attribute, "t30".
(defun tagged (layer)
  (entmake '((0 . "BLOCK") (2 . "TAG") (70 . 2) (10 0.0 0.0 0.0)))
  (entmake '((0 . "ATTDEF") (10 0.0 0.0 0.0) (40 . 1.0) (1 . "") (3 . "No?") (2 . "NO") (70 . 0)))
  (entmake '((0 . "ENDBLK")))
  (entmake (list '(0 . "INSERT") '(2 . "TAG") '(66 . 1) (cons 8 layer) '(10 0.0 30.0 0.0)))
  (entmake '((0 . "ATTRIB") (10 0.0 30.0 0.0) (40 . 1.0) (1 . "t30") (2 . "NO") (70 . 0)))
  (entmakex '((0 . "SEQEND")))
  (entlast))

(defun says (es) (mapcar '(lambda (e) (kora_text_content (entget e))) es))
(defun chosen (es) (sssetfirst nil (kora_selection es)))
(defun all (type) (kora_selection_to_list (ssget "_X" (list (cons 0 type)))))
;; The corners around an entity, and around the last one of a type.
(defun around (e) (kora_bounding_box (list e)))
(defun box (type / e)
  (setq e (car (all type)))
  (if (= type "3DFACE")
    (mapcar '(lambda (f) (mapcar f (kora_field (entget e) 10) (kora_field (entget e) 12))) '(min max))
    (around e)))
(defun middle (box) (mapcar '(lambda (a b n) (/ (+ a b) 2)) (car box) (cadr box) '(1 2)))
;; Width and height of the frames, those of the plan's own outlines left out.
(defun sizes (type)
  (mapcar '(lambda (e) (mapcar '- (cadr (around e)) (car (around e))))
          (vl-remove-if '(lambda (e) (< (cadr (cadr (around e))) 15)) (all type))))
(defun framed (type) (sslength (cond ((ssget "_X" (list (cons 0 type) '(-3 ("KORA_TEXTFRAME"))))) ((ssadd)))))
