; Arithmetic
(list (+) (*) (+ 5) (- 5) (/ 5)) ;= (0 0 5 -5 5)
(list (+ 1 2 3) (- 10 1 2) (* 2 3 4) (/ 100 5 2)) ;= (6 7 24 10)
(list (+ 1 2.0) (/ 7 2) (/ 7 2.0) (/ -7 2)) ;= (3.0 3 3.5 -3)
(list (1+ 5) (1- 5) (1+ 1.5)) ;= (6 4 2.5)
(list (rem 17 5) (rem -17 5) (rem 17.5 5)) ;= (2 -2 2.5)
(list (min 3 1 2) (max 3 1 2) (min 1 2.0) (max 1 2.5)) ;= (1 3 1.0 2.5)
(list (abs -5) (abs -5.5) (fix 3.9) (fix -3.9) (float 3)) ;= (5 5.5 3 -3 3.0)
(list (expt 2 10) (expt 2.0 3) (expt 2 -1) (expt 2 40)) ;= (1024 8.0 0.5 1.09951e+12)
(list (sqrt 16) (exp 0) (log 1) (sin 0) (cos 0)) ;= (4.0 1.0 0.0 0.0 1.0)
(list (atan 1 1) (atan 1.0) (atan -1 -1)) ;= (0.785398 0.785398 -2.35619)
(list (gcd 12 18) (gcd -12 18) (lcm 4 6)) ;= (6 6 12)
(list (zerop 0) (zerop 0.0) (zerop 1) (minusp -1) (numberp 1.5) (numberp "1")) ;= (T T nil T T nil)
pi ;= 3.14159

; Thirty two bits wrap around
(list (+ 2147483647 1) (- -2147483648 1) (* 65536 65536)) ;= (-2147483648 2147483647 0)
(setq m -2147483648) (list (- m) (/ m -1) (rem m -1) (abs m) (gcd m m))
;= (-2147483648 -2147483648 0 -2147483648 -2147483648)
(list (fix 1e20) (fix -1e20)) ;= (1.0e+20 -1.0e+20)

; Bits
(list (logand 12 10) (logior 12 10) (logxor 12 10) (~ 5) (lognot 5)) ;= (8 14 6 -6 -6)
(list (lsh 1 4) (lsh 16 -4) (lsh -1 -28) (lsh 1 31) (lsh 1 32) (lsh 1 -2147483648)) ;= (16 1 15 -2147483648 0 0)
(list (boole 1 12 10) (Boole 6 12 10) (boole 7 12 10) (boole 8 12 10) (boole 2 12 10) (boole 4 12 10))
;= (8 6 14 -15 4 2)
(logand 1.5 1) ;= ! bad argument type: fixnump: 1.5 in (LOGAND), argument 1

; Comparison
(list (= 1 1.0) (= 1 2) (= "a" "a") (= 'a 'a) (= 1 "1") (= 2 2 2) (= 2 2 3)) ;= (T nil T T nil T nil)
(list (/= 1 2) (/= 1 1) (/= "a" "b")) ;= (T nil T)
(list (< 1 2 3) (< 1 3 2) (<= 1 1 2) (> 3 2 1) (>= 3 3 4)) ;= (T nil T T nil)
(list (< "a" "b") (> "abc" "abd")) ;= (T nil)
(< 1 "a") ;= ! bad argument type for compare: 1 "a" in (<)
(list (eq 'a 'a) (eq 1 1) (eq '(1) '(1)) (equal '(1 (2)) '(1 (2)))) ;= (T T nil T)
(list (equal 1.0 1.001) (equal 1.0 1.001 0.01) (equal '(1 2.0) '(1.0 2))) ;= (nil T T)
(list (equal '(1 . 2) '(1 . 2)) (equal '(1 2) '(1 2 3)) (equal "a" 'a)) ;= (T nil nil)
(list (not nil) (null 0)) ;= (T nil)

; Errors name function and argument
(+ 1 "a") ;= ! bad argument type: numberp: "a" in (+), argument 2
(- nil) ;= ! bad argument type: numberp: nil in (-), argument 1
(/ 1 0) ;= ! divide by zero in (/)
(/ 1.0 0.0) ;= ! divide by zero in (/)
(rem 1 0) ;= ! divide by zero in (REM)
(sqrt -1) ;= ! function undefined for argument in (SQRT)
(log 0) ;= ! function undefined for argument in (LOG)
(expt 0 -1) ;= ! function undefined for argument in (EXPT)
(expt -8 0.5) ;= ! function undefined for argument in (EXPT)
(abs) ;= ! too few arguments in (ABS)
(abs 1 2) ;= ! too many arguments in (ABS)
