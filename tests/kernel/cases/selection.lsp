; Lines at x = 0, 10, 20 from y = 0 to 5; a circle round (50 50) on layer RED; a text at (0 30).
(foreach x '(0.0 10.0 20.0) (entmake (list '(0 . "LINE") '(8 . "0") (list 10 x 0.0 0.0) (list 11 x 5.0 0.0))))
(entmake '((0 . "LAYER") (2 . "RED") (70 . 0) (62 . 1)))
(entmake '((0 . "CIRCLE") (8 . "RED") (62 . 3) (10 50.0 50.0 0.0) (40 . 5.0)))
(entmake '((0 . "TEXT") (8 . "0") (10 0.0 30.0 0.0) (40 . 2.0) (1 . "Plan A")))
(defun all (code set / i out)
  (repeat (setq i (if set (sslength set) 0)) (setq i (1- i) out (cons (cdr (assoc code (entget (ssname set i)))) out))))
(defun types (set) (all 0 set))
(defun places (set) (mapcar 'car (all 10 set)))
(defun count (set) (if set (sslength set) 0))

(types (ssget "X")) ;= ("TEXT" "CIRCLE" "LINE" "LINE" "LINE")
(count (ssget "X" '((0 . "LINE")))) ;= 3
(count (ssget "X" '((0 . "LINE") (-4 . ">=,*,*") (10 10.0 0.0 0.0)))) ;= 2
(count (ssget "X" '((-4 . "<OR") (0 . "TEXT") (-4 . "<AND") (0 . "LINE") (10 0.0 0.0 0.0) (-4 . "AND>") (-4 . "OR>"))))
;= 2
(count (ssget "X" '((410 . "Model")))) ;= 5
(substr (vl-catch-all-error-message (vl-catch-all-apply 'ssget '("X" ((-4 . "<OR") (0 . "LINE"))))) 1 14)
;= "bad SSGET list"
(places (ssget "W" '(-1 -1) '(11 6))) ;= (10.0 0.0)
(places (ssget "P")) ;= (10.0 0.0)
(ssget "W" '(-1 -1) '(11 4)) ;= nil
(places (ssget "C" '(-1 -1) '(11 4))) ;= (10.0 0.0)
(types (ssget "C" '(-1 -1) '(100 100) '((0 . "CIRCLE")))) ;= ("CIRCLE")
(places (ssget "F" '((5 2) (25 2)))) ;= (20.0 10.0)
(places (ssget "WP" '((-1 -1) (5 -1) (5 6) (-1 6)))) ;= (0.0)
(places (ssget "CP" '((-1 2) (15 2) (15 3)))) ;= (10.0 0.0)
(list (places (ssget '(10.0 2.0))) (ssget '(15.0 2.0)) (types (ssget "L"))) ;= ((10.0) nil ("TEXT"))
(ssget "Q") ;= error: bad argument value: SSGET mode string "Q" in (SSGET), argument 1

; Answered at the prompt
(count (ssget)) ;< all\n\n ;= 5
(places (ssget)) ;< 0,2\n\n ;= (0.0)
(places (ssget)) ;< 0,2\n10,2\n0,3\n\n ;= (0.0 10.0)
(places (ssget)) ;< -1,-1\n11,6\n\n ;= (0.0 10.0)
(places (ssget)) ;< 15,3\n-1,-1\n\n ;= (0.0 10.0)
(places (ssget)) ;< w\n-1,-1\n11,6\n\n ;= (0.0 10.0)
(places (ssget)) ;< f\n5,2\n25,2\n\n\n ;= (10.0 20.0)
(count (ssget)) ;< all\nr\n0,2\n\n ;= 4
(count (ssget)) ;< all\nr\nc\n-1,-1\n25,3\na\n0,2\n\n ;= 3
(places (ssget)) ;< 0,2\nall\nu\n\n ;= (0.0)
(types (ssget)) ;< l\n\n ;= ("TEXT")
(types (ssget '((0 . "CIRCLE")))) ;< all\n\n ;= ("CIRCLE")
(places (ssget ":S")) ;< 0,2\n ;= (0.0)
(ssget ":S" '((0 . "CIRCLE"))) ;< 0,2\n ;= nil
(list (ssget "_+.:E:S") (getvar "ERRNO")) ;< 15,3\n ;= (nil 7)
(list (ssget "_+.:E:S") (getvar "ERRNO")) ;< \n ;= (nil 52)
(ssget) ;< \n ;= nil
(count (ssget)) ;< foo\nall\n\n ;= 5
(types (ssget)) ;< (entlast)\n\n ;= ("TEXT")
(ssget) ;= error: Function cancelled in (SSGET)

; Layers that are locked, frozen, off
(command "_.-LAYER" "_LO" "RED" "")(count (ssget "_:L")) ;< all\n\n ;= 4
(command "_.-LAYER" "_F" "RED" "")(list (count (ssget "A")) (count (ssget "X"))) ;= (4 5)
(command "_.-LAYER" "_T" "RED" "_OFF" "RED" "")(ssget '(55.0 50.0)) ;= nil

; One entity
(cdr (setq s (entsel))) ;< 10.1,2 ;= ((10.1 2.0 0.0))
(cdr (assoc 10 (entget (car s)))) ;= (10.0 0.0 0.0)
(list (entsel) (getvar "ERRNO")) ;< 15,2 ;= (nil 7)
(list (entsel) (getvar "ERRNO")) ;< \n ;= (nil 52)
(initget "Name")(entsel) ;< name ;= "Name"

; Inside a block, and outside, where there is no matrix
(entmake '((0 . "BLOCK") (2 . "B") (70 . 0) (10 0 0 0)))
(entmake '((0 . "LINE") (8 . "0") (10 0 0 0) (11 4 0 0)))(entmake '((0 . "CIRCLE") (8 . "0") (10 2 2 0) (40 . 1)))
(entmake '((0 . "ENDBLK")))
(entmake '((0 . "INSERT") (2 . "B") (10 100.0 100.0 0.0) (41 . 2.0) (42 . 2.0) (43 . 2.0)))
(setq n (nentsel))(list (cdr (assoc 0 (entget (car n)))) (equal (cadddr n) (list (entlast)))) ;< 104,106 ;= ("CIRCLE" T)
(caddr n) ;= ((2.0 0.0 0.0) (0.0 2.0 0.0) (0.0 0.0 2.0) (100.0 100.0 0.0))
(cdr (assoc 0 (entget (car (nentselp '(102.0 100.0)))))) ;= "LINE"
(length (nentsel)) ;< 10,2 ;= 2

; Lines without end
(entmake '((0 . "RAY") (100 . "AcDbEntity") (8 . "0") (100 . "AcDbRay") (10 0.0 -50.0 0.0) (11 1.0 0.0 0.0)))
(types (ssget "C" '(400 -51) '(401 -49))) ;= ("RAY")
(types (ssget "F" '((400 -51) (400 -49)))) ;= ("RAY")
(types (ssget '(300.0 -50.0))) ;= ("RAY")
(ssget "W" '(-9 -60) '(900 -40)) ;= nil
(ssget "C" '(-9 -51) '(-8 -49)) ;= nil
(entdel (entlast))
(entmake '((0 . "BLOCK") (2 . "BEAM") (70 . 0) (10 0.0 0.0 0.0)))
(entmake '((0 . "RAY") (100 . "AcDbEntity") (8 . "0") (100 . "AcDbRay") (10 0.0 0.0 0.0) (11 1.0 0.0 0.0)))
(entmake '((0 . "ENDBLK")))
(entmake '((0 . "INSERT") (2 . "BEAM") (10 0.0 -50.0 0.0)))
(types (ssget "C" '(400 -51) '(401 -49))) ;= ("INSERT")

; What has no outline of its own is found by the box of what it shows.
(entmake '((0 . "DIMENSION") (100 . "AcDbEntity") (8 . "0") (100 . "AcDbDimension") (10 640.0 20.0 0.0) (70 . 32) (1 . "L") (100 . "AcDbAlignedDimension") (13 600.0 0.0 0.0) (14 640.0 0.0 0.0) (100 . "AcDbRotatedDimension")))
(types (ssget "C" '(610 10) '(620 30))) ;= ("DIMENSION")
(types (ssget "W" '(590 -10) '(650 40))) ;= ("DIMENSION")
(ssget "C" '(700 10) '(720 30)) ;= nil

; With PICKSTYLE 2 an associative hatch brings its boundary, with 0 nothing. An entity that a program names brings its
; group, a set is what it is.
(command "_.ERASE" (ssget "X") "" "_.RECTANG" '(0 0) '(4 4) "_.-HATCH" "_P" "_S" "_S" "_L" "" "")(setvar "PICKSTYLE" 2) ;= 2
(command "_.SELECT" (entlast) "")(types (ssget "P")) ;= ("HATCH" "LWPOLYLINE")
(setvar "PICKSTYLE" 0)(command "_.SELECT" (entlast) "")(types (ssget "P")) ;= ("HATCH")
(setvar "PICKSTYLE" 1)(command "_.POINT" '(9 9) "_.-GROUP" "_C" "Three" "" "_ALL" "" "_.SELECT" (entlast) "")(count (ssget "P")) ;= 3
(command "_.SELECT" (ssget '(9 9)) "")(count (ssget "P")) ;= 1
; A user's pick takes the place of those before it when PICKADD is 0, unless it is added
(setvar "PICKSTYLE" 0)(setvar "PICKADD" 0)(command "_.POINT" '(20 20)) ;= nil
(types (ssget "P")) ;! SELECT\n9,9\n0,0\n\n ;= ("HATCH")
(count (ssget "P")) ;! SELECT\n9,9\nA\n20,20\n\n ;= 2
(setvar "PICKADD" 2)(setvar "PICKAUTO" 0) ;= 0
(count (ssget "P")) ;! SELECT\n9,9\n15,15\n20,20\n\n ;= 2
