;;; -*- lexical-binding: t -*-
(defvar l nil)
(defvar i 0)
(defun run ()
  (while (< i 1000000) (setq l (cons i l) i (1+ i)))
  (princ (length l))
  (princ (car (reverse l))))
(run)
