; Distances as text
(mapcar '(lambda (mode digits) (rtos 17.5 mode digits)) '(1 2 3 4 5) '(4 2 2 2 2))
;= ("1.7500E+01" "17.50" "1'-5.50\"" "1'-5 1/2\"" "17 1/2")
(mapcar '(lambda (inches) (rtos inches 4 4)) '(-17.5 11.9999 0.5 12.5 0))
;= ("-1'-5 1/2\"" "1'" "1/2\"" "1'-0 1/2\"" "0\"")
(list (rtos 11.9999 3 2) (rtos 0.3 5 3) (rtos 0.99 5 3) (rtos -0.00001 2 2) (rtos 5 2 0) (rtos 2.5))
;= ("1'" "1/4" "1" "0.00" "5" "2.5000")
(strlen (rtos 1e300 2 99)) ;= 318
(mapcar '(lambda (v d) (rtos v 2 d)) '(2.5 0.5 -2.5 0.125 1.005 17.25 4503599627370497.5) '(0 0 0 2 2 1 0))
;= ("3" "1" "-3" "0.13" "1.00" "17.3" "4503599627370498")
(list (rtos 12.5 3 0) (angtos (/ pi 8) 0 0)) ;= ("1'-1\"" "23")
(rtos 1 9 2) ;= ! bad argument value: 9 in (RTOS), argument 2
(rtos "a") ;= ! bad argument type: numberp: "a" in (RTOS), argument 1

; Angles as text
(mapcar '(lambda (mode) (angtos 0.785398163 mode 4)) '(0 1 2 3 4))
;= ("45.0000" "45d0'0\"" "50.0000g" "0.7854r" "N 45d0'0\" E")
(list (angtos 0.7941248096574199 1 2) (angtos 0.7941248096574199 1 0) (angtos -0.785398163 0 4))
;= ("45d30'" "46d" "315.0000")
(list (angtos 0 4 0) (angtos (/ pi 2) 4 0) (angtos pi 4 0) (angtos (* 1.5 pi) 4 0)) ;= ("E" "N" "W" "S")
(list (angtos (* 1.25 pi) 4 0) (angtos -1e-12 0 2) (angtos (* 9 pi) 0 0)) ;= ("S 45d W" "0.00" "180")

; Text as numbers
(list (distof "17.5" 2) (distof "1.75E+01" 1) (distof "1'-5.50\"" 3) (distof "1'-5 1/2\"" 4) (distof "17 1/2" 5))
;= (17.5 17.5 17.5 17.5 17.5)
(list (distof "1'" 4) (distof "1/2\"" 4) (distof "-1'-6\"" 4) (distof "1'5-1/2\"" 4)) ;= (12.0 0.5 -18.0 17.5)
(list (distof "x") (distof "") (distof "1 2 3" 4) (distof "1/0" 5) (distof "nan")) ;= (nil nil nil nil nil)
(list (angtof "45") (angtof "45d30'" 1) (angtof "50g") (angtof "0.5r") (angtof "-90"))
;= (0.785398 0.794125 0.785398 0.5 4.71239)
(list (angtof "N 45d0'0\" E" 4) (angtof "S" 4) (angtof "W" 4) (angtof "S 45d E" 4))
;= (0.785398 4.71239 3.14159 5.49779)
(list (angtof "x") (angtof "") (angtof "N 45 Q" 4)) ;= (nil nil nil)
(list (atof "12.5abc") (atof "x") (atof " -3") (atof "inf") (atof "+.5")) ;= (12.5 0.0 -3.0 0.0 0.5)
(list (atoi "3.9") (atoi "-7x") (atoi "") (atoi "99999999999")) ;= (3 -7 0 2147483647)
(list (itoa 5) (itoa -2147483648)) ;= ("5" "-2147483648")
(itoa nil) ;= ! bad argument type: fixnump: nil in (ITOA), argument 1
(itoa 1.5) ;= ! bad argument type: fixnump: 1.5 in (ITOA), argument 1
(list (cvunit 1 "inch" "mm") (cvunit 1 "sq ft" "sq inch") (cvunit 180 "degrees" "radian") (cvunit 1 "inch" "hour") (cvunit '(1 2) "m" "cm"))
;= (25.4 144.0 3.14159 nil (100.0 200.0))

; What is written reads back
(setq all (lambda (test values) (vl-remove-if (function (lambda (v) (vl-every test '(0 1 2 3 4)))) values)))
(all '(lambda (m) (equal v (distof (rtos v (1+ m) 8) (1+ m)) 1e-9)) '(0.0 0.25 11.75 12.0 17.5 100.125 1234.5)) ;= nil
(all '(lambda (m) (equal v (angtof (angtos v m 8) m) 1e-7)) '(0.0 0.5 1.5 2.5 3.5 4.5 6.0)) ;= nil
