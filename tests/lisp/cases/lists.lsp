; Making and taking apart
(list (cons 1 2) (cons 1 '(2)) (cons 1 nil)) ;= ((1 . 2) (1 2) (1))
(list (car '(1 2)) (cdr '(1 2)) (cadr '(1 2)) (caddr '(1 2 3)) (cddr '(1 2 3))) ;= (1 (2) 2 3 (3))
(list (caar '((1))) (cdar '((1 2))) (cadar '((1 2))) (cadddr '(1 2 3 4)) (cddddr '(1 2 3 4 5))) ;= (1 (2) 2 4 (5))
(list (car nil) (cdr nil) (cadr '(1))) ;= (nil nil nil)
(caddar '((1 2 3))) ;= 3
(car 5) ;= ! bad argument type: listp 5 in (CAR), argument 1
(cadr '(1 . 2)) ;= ! bad argument type: listp (1 . 2) in (CADR), argument 1
(list (append '(1) nil '(2 3) '(4)) (append)) ;= ((1 2 3 4) nil)
(append '(1) 5) ;= ! bad argument type: listp 5 in (APPEND), argument 2
(reverse '(1 2 3)) ;= (3 2 1)
(list (nth 0 '(1 2)) (nth 2 '(1 2)) (last '(1 2 3)) (last nil)) ;= (1 nil 3 nil)
(nth -1 '(1)) ;= ! bad argument value: -1 in (NTH), argument 1
(list (length nil) (length '(1 2)) (vl-list-length '(1 . 2))) ;= (0 2 nil)
(length '(1 . 2)) ;= ! bad argument type: listp (1 . 2) in (LENGTH), argument 1
(list (vl-list* 1 2 '(3)) (vl-list* 1 2)) ;= ((1 2 3) (1 . 2))
(subst 'x 'b '(a b (b) b)) ;= (A X (B) X)
(subst '(40 . 2.0) (assoc 40 '((0 . "C") (40 . 1.0))) '((0 . "C") (40 . 1.0))) ;= ((0 . "C") (40 . 2.0))

; Searching
(list (member 2 '(1 2 3)) (member 9 '(1)) (member '(1) '((1) 2))) ;= ((2 3) nil ((1) 2))
(list (assoc 2 '((1 . a) (2 . b))) (assoc "x" '(("x" 1))) (assoc 9 nil)) ;= ((2 . B) ("x" 1) nil)
(assoc 1 '(2 3)) ;= ! bad argument value: bad association list (2 3) in (ASSOC), argument 2
; pairs that lie anywhere in memory, and such as were used before
(setq i 0 l nil) (repeat 40 (setq l (cons (list (rem (* i 17) 41) i) l) i (1+ i)))
(setq l (vl-sort l '(lambda (a b) (< (car a) (car b)))) l (append l (list '(50 51)) '((52 . 53) (50 0))))
(list (length l) (assoc 0 l) (assoc 40 l) (assoc 50 l) (assoc 52.0 l) (assoc 54 l)) ;= (43 (0 0) (40 12) (50 51) (52 . 53) nil)
(list (vl-position '(34 2) l) (length (member '(50 51) l)) (member '(50) l) (length (vl-remove '(50 0) l))) ;= (33 3 nil 42)
(setq i 0 k nil) (repeat 50 (setq k (cons i k) k (cons (reverse k) (cdr (reverse k))) k (car k) i (1+ i)))
(list (length k) (vl-position 49 k) (length (member 7 k)) (apply '+ k)) ;= (50 49 22 1225)
(list (vl-position 'c '(a b c)) (vl-position 'z '(a))) ;= (2 nil)
(list (vl-member-if 'minusp '(1 -2 3)) (vl-member-if-not 'minusp '(-1 2 -3))) ;= ((-2 3) (2 -3))
(list (vl-remove 1 '(1 2 1.0 3)) (vl-remove-if 'minusp '(1 -2 3))) ;= ((2 3) (1 3))
(vl-remove-if-not '(lambda (x) (> x 1)) '(1 2 3)) ;= (2 3)
(list (vl-some '> '(1 5) '(2 3)) (vl-some 'minusp '(1))) ;= (T nil)
(list (vl-every '> '(3 5) '(2 3 9)) (vl-every 'minusp nil)) ;= (T T)

; Sorting keeps every item
(vl-sort '(3 1 2 1 3) '<) ;= (1 1 2 3 3)
(vl-sort '((2 . a) (1 . b) (2 . c) (1 . d)) '(lambda (x y) (< (car x) (car y)))) ;= ((1 . B) (1 . D) (2 . A) (2 . C))
(vl-sort-i '(30 10 20) '<) ;= (1 2 0)
(vl-sort nil '<) ;= nil
; A comparison that contradicts itself gives some order of all items.
(length (vl-sort '(5 4 3 2 1 9 8 7) '(lambda (a b) T))) ;= 8
(vl-sort '(1 "a") '<) ;= ! bad argument type for compare: "a" 1 in (<)
(acad_strlsort '("b" "C" "a")) ;= ("C" "a" "b")
(acad_strlsort '("b" 1)) ;= ! bad argument type: stringp ("b" 1) in (ACAD_STRLSORT), argument 1

; Geometry
(list (angle '(0 0) '(0 5)) (angle '(0 0) '(1 -1))) ;= (1.5708 5.49779)
(list (distance '(0 0) '(3 4)) (distance '(0 0 0) '(0 3 4)) (distance '(0 0) '(0 3 4))) ;= (5.0 5.0 3.0)
(list (polar '(1 1) 0 5) (polar '(1 1 7) pi 1)) ;= ((6.0 1.0) (0.0 1.0 7.0))
(list (inters '(0 0) '(1 1) '(0 10) '(10 0)) (inters '(0 0) '(1 1) '(0 10) '(10 0) nil)) ;= (nil (5.0 5.0))
(list (inters '(0 0) '(9 9) '(0 8) '(8 0)) (inters '(0 0) '(1 1) '(0 1) '(1 2) nil)) ;= ((4.0 4.0) nil)
(mapcar '(lambda (a b) (inters '(0 0 5) '(2 2 5) a b)) '((0 2 5) (0 2 0) (0 2)) '((2 0 5) (2 0 0) (2 0)))
;= ((1.0 1.0 5.0) nil (1.0 1.0))
(angle '(0) '(1 1)) ;= ! bad argument type: 2D/3D point: (0) in (ANGLE), argument 1
(distance '(0 0) nil) ;= ! bad argument type: 2D/3D point: nil in (DISTANCE), argument 2
