;;; -*- lexical-binding: t -*-
(defvar i 0)
(defvar n 0)
(defun run ()
  (while (< i 300000)
    (setq n (+ n (length (concat "(" (number-to-string i) " . \"a name of some length\")"))) i (1+ i))))
(run)
(princ n)
