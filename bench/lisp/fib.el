;;; -*- lexical-binding: t -*-
(defun fib (n) (if (< n 2) n (+ (fib (- n 1)) (fib (- n 2)))))
(princ (fib 27))
