;;; -*- lexical-binding: t -*-
(defvar l nil)
(defvar i 0)
(defvar s 12345)
(defun run ()
  (while (< i 100000) (setq s (% (+ (* s 1103) 12345) 65536) l (cons s l) i (1+ i)))
  (setq l (sort l (lambda (a b) (< a b)))))
(run)
(princ (+ (car l) (nth 50000 l)))
