;;; -*- lexical-binding: t -*-
(defvar s "")
(defvar i 0)
(defun run () (while (< i 20000) (setq s (concat s "x") i (1+ i))))
(run)
(princ (length s))
