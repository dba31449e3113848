(define i 0)
(define (run) (if (< i 5000000) (begin (set! i (+ i 1)) (run))))
(run)
(display i)
