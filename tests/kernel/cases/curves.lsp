; Curves measured: against numbers known from geometry and against chords summed up here.
(setq pi2 (* 2 pi))
(defun make (type fields) (entmakex (append (list (cons 0 type) '(100 . "AcDbEntity") (cons 100 (cdr (assoc type '(("LWPOLYLINE" . "AcDbPolyline") ("SPLINE" . "AcDbSpline") ("ELLIPSE" . "AcDbEllipse") ("RAY" . "AcDbRay") ("XLINE" . "AcDbXline") ("LINE" . "AcDbLine") ("CIRCLE" . "AcDbCircle")))))) fields)))
(defun param (e share / a) (+ (setq a (vlax-curve-getStartParam e)) (* share (- (vlax-curve-getEndParam e) a))))
(defun summed (e / i s p q) (setq i 0 s 0.0 p (vlax-curve-getStartPoint e))
  (repeat 3000 (setq i (1+ i) q (vlax-curve-getPointAtParam e (param e (/ i 3000.0))) s (+ s (distance p q)) p q)) s)
(defun agrees (e / end) (setq end (vlax-curve-getDistAtParam e (vlax-curve-getEndParam e)))
  (and (equal end (summed e) (* 1e-5 end))
       (equal (vlax-curve-getPointAtDist e (/ end 3)) (vlax-curve-getPointAtParam e (vlax-curve-getParamAtDist e (/ end 3))) 1e-9)
       (equal (vlax-curve-getDistAtPoint e (vlax-curve-getPointAtDist e (/ end 3))) (/ end 3) 1e-6)
       (equal (vlax-curve-getClosestPointTo e (vlax-curve-getPointAtParam e (param e 0.3))) (vlax-curve-getPointAtParam e (param e 0.3)) 1e-9)))

; Of a line the parameter is the distance
(setq e (make "LINE" '((100 . "AcDbLine") (10 1.0 2.0 0.0) (11 4.0 6.0 0.0))))
(list (vlax-curve-getStartParam e) (vlax-curve-getEndParam e) (vlax-curve-getPointAtParam e 2.5)) ;= (0.0 5.0 (2.5 4.0 0.0))
(vlax-curve-getPointAtDist e 6.0) ;= nil
(vlax-curve-getParamAtPoint e '(9.0 9.0 0.0)) ;= nil
(list (vlax-curve-isClosed e) (vlax-curve-isPlanar e) (vlax-curve-isPeriodic e) (vlax-curve-getArea e)) ;= (nil T nil 0.0)
(equal (vlax-curve-getClosestPointTo e '(7.0 10.0 3.0) T) '(7.0 10.0 0.0) 1e-9) ;= T
(vlax-curve-getClosestPointTo e '(7.0 10.0 3.0)) ;= (4.0 6.0 0.0)
(equal (vlax-curve-getFirstDeriv e 1.0) '(0.6 0.8 0.0) 1e-12) ;= T
(vlax-curve-getSecondDeriv e 1.0) ;= (0.0 0.0 0.0)
; A circle goes round; one seen from below runs the other way
(setq e (make "CIRCLE" '((100 . "AcDbCircle") (10 0.0 0.0 0.0) (40 . 2.0))))
(equal (list (vlax-curve-getEndParam e) (vlax-curve-getArea e) (vlax-curve-getDistAtParam e pi)) (list pi2 (* 4 pi) pi2) 1e-9) ;= T
(list (vlax-curve-isClosed e) (vlax-curve-isPeriodic e)) ;= (T T)
(setq e (make "CIRCLE" '((10 0.0 0.0 0.0) (40 . 2.0) (210 0.0 0.0 -1.0))))
(equal (vlax-curve-getPointAtParam e 0.0) '(-2.0 0.0 0.0) 1e-12) ;= T
(equal (vlax-curve-getPointAtParam e (/ pi 2)) '(0.0 2.0 0.0) 1e-12) ;= T
; Seen from above, the point of a tilted circle may not be the nearest one
(setq e (make "CIRCLE" '((10 0.0 0.0 0.0) (40 . 2.0) (210 1.0 0.0 0.0))))
(equal (vlax-curve-getClosestPointToProjection e '(5.0 1.0 9.0) '(0.0 0.0 1.0)) (list 0.0 1.0 (sqrt 3)) 1e-6) ;= T
(agrees e) ;= T
; Polylines count their vertices, in the middle of an arc too
(setq e (make "LWPOLYLINE" '((100 . "AcDbPolyline") (90 . 3) (70 . 1) (10 0.0 0.0) (10 4.0 0.0) (42 . 1.0) (10 4.0 2.0))))
(equal (vlax-curve-getPointAtParam e 1.5) '(5.0 1.0 0.0) 1e-12) ;= T
(equal (vlax-curve-getParamAtPoint e '(5.0 1.0 0.0)) 1.5 1e-9) ;= T
(equal (vlax-curve-getArea e) (+ 4.0 (/ pi 2)) 1e-9) ;= T
(list (vlax-curve-getEndParam e) (vlax-curve-isClosed e) (vlax-curve-isPeriodic e) (agrees e)) ;= (3.0 T nil T)
; Ellipse and spline
(agrees (make "ELLIPSE" '((100 . "AcDbEllipse") (10 1.0 2.0 0.0) (11 3.0 0.0 1.0) (40 . 0.3) (41 . 1.0) (42 . 4.0)))) ;= T
(setq e (make "SPLINE" '((100 . "AcDbSpline") (70 . 8) (71 . 3) (72 . 9) (73 . 5) (40 . 0.0) (40 . 0.0) (40 . 0.0) (40 . 0.0) (40 . 2.0) (40 . 3.0) (40 . 3.0) (40 . 3.0) (40 . 3.0) (10 0.0 0.0 0.0) (10 1.0 4.0 0.0) (10 4.0 5.0 0.0) (10 6.0 0.0 0.0) (10 9.0 2.0 0.0))))
(list (vlax-curve-getEndParam e) (agrees e) (vlax-curve-isPlanar e)) ;= (3.0 T T)
; Lines without end have no end
(setq e (make "RAY" '((100 . "AcDbRay") (10 1.0 0.0 0.0) (11 0.0 1.0 0.0))))
(list (vlax-curve-getStartPoint e) (vlax-curve-getEndPoint e) (vlax-curve-getEndParam e) (vlax-curve-getPointAtDist e 3.0)) ;= ((1.0 0.0 0.0) nil nil (1.0 3.0 0.0))
(setq e (make "XLINE" '((100 . "AcDbXline") (10 1.0 0.0 0.0) (11 0.0 1.0 0.0))))
(list (vlax-curve-getStartParam e) (vlax-curve-getClosestPointTo e '(5.0 -7.0 0.0))) ;= (nil (1.0 -7.0 0.0))
; What is no curve
(setq e (entmakex '((0 . "POINT") (10 1.0 2.0 0.0))))
(vlax-curve-getStartPoint e) ;! bad argument value
(vlax-curve-getStartPoint nil) ;! bad argument type
(vlax-curve-getPointAtParam (entlast) "x") ;! bad argument
