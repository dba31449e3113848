;;; -*- lexical-binding: t -*-
(defvar i 0)
(defun run () (while (< i 5000000) (setq i (1+ i))))
(run)
(princ i)
