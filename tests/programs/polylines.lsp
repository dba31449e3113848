;;; Polylines and curves.

;; PLEXP writes vertices of polylines of both kinds to a file.
(defun plverts (e / d r)
  (setq d (entget e))
  (cond
    ((= (cdr (assoc 0 d)) "LWPOLYLINE")
     (foreach x d (if (= 10 (car x)) (setq r (cons (cdr x) r))))
     (reverse r))
    ((= (cdr (assoc 0 d)) "POLYLINE")
     (while (/= "SEQEND" (cdr (assoc 0 (setq d (entget (setq e (entnext e)))))))
       (setq r (cons (cdr (assoc 10 d)) r)))
     (reverse r))))
(defun c:PLEXP (/ f fn e i)
  (setq fn (strcat (getvar "TEMPPREFIX") "pl.csv"))
  (setq e (car (entsel)))
  (setq f (open fn "w") i 0)
  (write-line "No,X,Y,Z" f)
  (foreach p (plverts e)
    (setq i (1+ i))
    (write-line (strcat (itoa i) "," (rtos (car p) 2 3) "," (rtos (cadr p) 2 3) ","
                        (if (caddr p) (rtos (caddr p) 2 3) "0.000"))
                f))
  (close f)
  (setq *fn* fn)
  (princ))

;; ALAB labels a closed polyline with its area.
(defun c:ALAB (/ e p a txt)
  (if (and (setq e (car (entsel "\nSelect closed polyline: ")))
           (member (cdr (assoc 0 (entget e))) '("LWPOLYLINE" "POLYLINE" "CIRCLE"))
           (setq p (getpoint "\nLabel point: ")))
    (progn
      (command "_.AREA" "_O" e)
      (setq a (getvar "AREA")
            txt (strcat "A=" (rtos a 2 2) " m" (chr 178)))
      (entmake (list '(0 . "TEXT") '(8 . "AREA-TXT") (cons 10 p) (cons 11 p) '(40 . 0.5) (cons 1 txt) '(72 . 1)
                     '(73 . 2)))))
  (princ))

;; BARC makes an arc of a polyline's arc by its bulge.
(defun bulge->arc (p1 p2 b / a c r)
  (setq a (* 2 (atan b))
        r (/ (distance p1 p2) 2 (sin a))
        c (polar p1 (+ (- (/ pi 2) a) (angle p1 p2)) r))
  (list c (angle c p1) (angle c p2) (abs r)))
(defun c:BARC (/ e d pts bs)
  (setq e (entlast) d (entget e))
  (foreach x d
    (cond
      ((= (car x) 10) (setq pts (cons (cdr x) pts)))
      ((= (car x) 42) (setq bs (cons (cdr x) bs)))))
  (setq *b* (bulge->arc (cadr pts) (car pts) (cadr bs)))
  (entmake (list '(0 . "ARC") (cons 10 (car *b*)) (cons 40 (cadddr *b*)) (cons 50 (cadr *b*))
                 (cons 51 (caddr *b*))))
  (princ))

;; DRAWPL lets a polyline be drawn and changes it then.
(defun c:DRAWPL ()
  (command "_.PLINE")
  (while (= 1 (logand 1 (getvar "CMDACTIVE"))) (command pause))
  (setq *pl* (entlast))
  (command "_.CHPROP" *pl* "" "_LA" "0" "_C" 3 "")
  (princ))

;; OFFI offsets polylines and circles inwards.
(defun c:OFFI (/ e d ss)
  (setq d 1.5)
  (setq ss (ssget "_X" '((0 . "LWPOLYLINE,CIRCLE"))))
  (while (setq e (ssname ss 0))
    (command "_.OFFSET" d e '(5 5) "")
    (ssdel e ss))
  (princ))

;; VM lifts the vertices of a polyline in space.
(defun c:VM (/ e)
  (setq e (entnext (car (entsel))))
  (while (= "VERTEX" (cdr (assoc 0 (setq d (entget e)))))
    (entmod (subst (cons 10 (mapcar '+ (cdr (assoc 10 d)) '(0 0 5))) (assoc 10 d) d))
    (setq e (entnext e)))
  (entupd (cdr (assoc -2 d)))
  (princ))

;; PJ and PJ0 join lines and arcs to polylines.
(defun c:PJ (/ ss)
  (setq ss (ssget "_X" '((0 . "LINE,ARC"))))
  (setvar "PEDITACCEPT" 1)
  (command "_.PEDIT" "_M" ss "" "_J" 0.01 "")
  (princ))
(defun c:PJ0 ()
  (setvar "PEDITACCEPT" 0)
  (command "_.PEDIT" (entlast) "_Y" "_J" (ssget "_X") "" "")
  (princ))

;; CV measures along a rectangle.
(defun c:CV (/ e)
  (setq e (entlast))
  (setq r (list (vlax-curve-getStartPoint e) (vlax-curve-getEndPoint e) (vlax-curve-getEndParam e)
                (vlax-curve-getDistAtParam e 2) (vlax-curve-getPointAtDist e 7.5)
                (vlax-curve-getClosestPointTo e '(3 9 0)) (vlax-curve-getParamAtPoint e '(5 2.5 0))
                (vlax-curve-isClosed e) (vlax-curve-getFirstDeriv e 0.5) (vlax-curve-getPointAtParam e 0.5)
                (vlax-curve-getArea e) (vlax-curve-getPointAtDist e 100)))
  (princ))
