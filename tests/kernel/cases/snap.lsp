; Lines that cross at (10 0) and, at another height, at (30 0); a circle, an arc, a polyline with a corner at (20 30), an
; ellipse, a point, a text, a block of a line and a circle turned and twice as large at (100 50), a line that is off.
; Snaps look 1.25 units far.
(defun curve (k more) (entmake (cons (cons 0 k) more)))
(curve "LINE" '((10 0.0 0.0 0.0) (11 40.0 0.0 0.0)))
(curve "LINE" '((10 10.0 -5.0 0.0) (11 10.0 10.0 0.0)))
(curve "LINE" '((10 30.0 -5.0 5.0) (11 30.0 5.0 5.0)))
(curve "CIRCLE" '((10 60.0 0.0 0.0) (40 . 10.0)))
(curve "ARC" (list '(10 100.0 0.0 0.0) '(40 . 10.0) '(50 . 0.0) (cons 51 pi)))
(curve "LWPOLYLINE" '((100 . "AcDbEntity") (100 . "AcDbPolyline") (90 . 3) (70 . 0) (10 0.0 30.0) (10 20.0 30.0) (10 20.0 50.0)))
(curve "ELLIPSE" (list '(100 . "AcDbEntity") '(100 . "AcDbEllipse") '(10 60.0 40.0 0.0) '(11 20.0 0.0 0.0) '(40 . 0.5)
  '(41 . 0.0) (cons 42 (* 2 pi))))
(curve "POINT" '((10 80.0 60.0 7.0)))
(curve "TEXT" '((10 0.0 70.0 0.0) (40 . 5.0) (1 . "HHHH")))
(curve "BLOCK" '((2 . "Part") (70 . 0) (10 0.0 0.0 0.0)))
(curve "LINE" '((10 0.0 0.0 0.0) (11 10.0 0.0 0.0)))
(curve "CIRCLE" '((10 5.0 0.0 0.0) (40 . 2.0)))
(curve "ENDBLK" nil)
(curve "INSERT" (list '(2 . "Part") '(10 100.0 50.0 0.0) '(41 . 2.0) '(42 . 2.0) '(43 . 2.0) (cons 50 (/ pi 2))))
(curve "LAYER" '((100 . "AcDbSymbolTableRecord") (100 . "AcDbLayerTableRecord") (2 . "Dark") (70 . 0) (62 . -3) (6 . "Continuous")))
(curve "LINE" '((8 . "Dark") (10 0.0 90.0 0.0) (11 40.0 90.0 0.0)))
(command "ZOOM" "C" '(0 0) 100)
(defun tidy (p) (if p (mapcar '(lambda (v) (/ (fix (+ (* v 1000) (if (< v 0) -0.5 0.5))) 1000.0)) p)))
(defun at (x y m) (tidy (osnap (list x y) m)))
(defun from (x y) (setvar "LASTPOINT" (list x y 0.0)))

; Ends, middles, the nearest point
(at 5 0.5 "_end") ;= (0.0 0.0 0.0)
(at 25 -1 "END") ;= (40.0 0.0 0.0)
(at 25 2 "end") ;= nil
(at 25 1 "_midp") ;= (20.0 0.0 0.0)
(at 109.5 3.12 "end") ;= (110.0 0.0 0.0)
(at 109.5 3.12 "mid") ;= (100.0 10.0 0.0)
(at 5 30.5 "end") ;= (0.0 30.0 0.0)
(at 20.5 45 "mid") ;= (20.0 40.0 0.0)
(at 70 0 "end,mid") ;= nil
(at 80 40 "end") ;= nil
(at 15 1 "nea") ;= (15.0 0.0 0.0)
(at 39.5 1 "nea,end") ;= (40.0 0.0 0.0)
(at 15 1 "nea,end") ;= (15.0 0.0 0.0)
(list (at 41 0.5 "ext") (at 39 0.5 "ext")) ;= ((41.0 0.0 0.0) nil)

; Crossings
(at 10.5 0.5 "int") ;= (10.0 0.0 0.0)
(at 12 0 "int") ;= nil
(list (at 29.5 0.5 "int") (at 29.5 0.5 "app")) ;= (nil (30.0 0.0 0.0))
(at 10.5 0.5 "_end,_int") ;= (10.0 0.0 0.0)

; Centres and quadrants, points and texts
(at 70 0.2 "cen") ;= (60.0 0.0 0.0)
(at 53 7.2 "qua") ;= (60.0 10.0 0.0)
(at 94 8 "qua") ;= (100.0 10.0 0.0)
(list (at 80.3 40 "qua") (at 80.3 40 "cen")) ;= ((80.0 40.0 0.0) (60.0 40.0 0.0))
(at 80.5 60.5 "nod") ;= (80.0 60.0 7.0)
(at 2 71 "ins") ;= (0.0 70.0 0.0)

; From a point
(from 15.0 20.0) (at 20 0 "per") ;= (15.0 0.0 0.0)
(from 50.0 20.0) (at 39 0.5 "per") ;= (50.0 0.0 0.0)
(from 60.0 30.0) (list (at 60 9.5 "per") (at 60 -9.5 "per")) ;= ((60.0 10.0 0.0) (60.0 -10.0 0.0))
(from 60.0 20.0) (list (at 68.7 5.1 "tan") (at 51.3 5.1 "tan")) ;= ((68.66 5.0 0.0) (51.34 5.0 0.0))
(from 60.0 60.0) (at 77 45 "tan") ;= (77.321 45.0 0.0)
(from 61.0 1.0) (at 70 0 "tan") ;= nil

; In blocks; what is hidden is not there
(at 100.5 68 "end") ;= (100.0 70.0 0.0)
(at 100.2 55 "ins") ;= (100.0 50.0 0.0)
(list (at 104 60 "cen") (at 103.9 61 "qua") (at 100.2 64.3 "int")) ;= ((100.0 60.0 0.0) (104.0 60.0 0.0) (100.0 64.0 0.0))
(at 20 90 "nea") ;= nil
(entdel (entlast)) (entdel (ssname (ssget "X" '((0 . "INSERT"))) 0)) (at 100.5 68 "end") ;= nil

; In a turned coordinate system
(turned) (at -20 -9.5 "mid") ;= (-20.0 -10.0 0.0)
(tilted) (tidy (osnap '(5 -5 0.5) "end")) ;= (0.0 -5.0 0.0)

; Words
(list (at 5 0 "non") (at 5 0 "xyz") (at 5 0 "") (at 5 0 "end,xyz") (at 5 0 "en")) ;= (nil nil nil nil nil)
(osnap 1 "end") ;= error: bad argument type: 2D/3D point: 1 in (OSNAP), argument 1
(osnap '(0 0) 1) ;= error: bad argument type: stringp 1 in (OSNAP), argument 2
(osnap '(1e308 1e308) "end") ;= nil

; At prompts of programs
(getpoint) ;< end\n5,0.5 ;= (0.0 0.0 0.0)
(getpoint) ;< _mid\n50,50\n_int\n10.5,0.5 ;> No midpoint found for specified point. ;= (10.0 0.0 0.0)
(getpoint '(15 20)) ;< per\n20,0.5 ;= (15.0 0.0 0.0)
(getpoint) ;< non\n5,0.5 ;= (5.0 0.5 0.0)
(getpoint) ;< .x\nend\n5,0.5\n7,8 ;= (0.0 8.0 0.0)
(getpoint) ;< m2p\nend\n5,0.5\nend\n35,0.5 ;= (20.0 0.0 0.0)
(getdist) ;< end\n5,0.5\nend\n35,0.5 ;= 40.0
(setvar "OSMODE" 1) (getpoint) ;< 5,0.5 ;= (5.0 0.5 0.0)
(setvar "OSNAPCOORD" 0) (getpoint) ;< 5,0.5 ;= (0.0 0.0 0.0)
(getpoint) ;< non\n5,0.5 ;= (5.0 0.5 0.0)
(setvar "OSMODE" 16385) (getpoint) ;< 5,0.5 ;= (5.0 0.5 0.0)
(cadr (entsel)) ;< nea\n15,1 ;= (15.0 0.0 0.0)
