;;; Drawing and editing by commands and records.

;; STAIR draws a stair's section from its riser and tread.
(defun c:STAIR (/ p n r tr pt i om)
  (setq om (getvar "OSMODE"))
  (setvar "OSMODE" 0)
  (initget 1)
  (setq p (getpoint "\nStart point: "))
  (initget 7)
  (setq n (getint "\nNumber of steps: "))
  (initget 6)
  (if (null (setq r (getdist "\nRiser <0.17>: "))) (setq r 0.17))
  (initget 6)
  (if (null (setq tr (getdist "\nTread <0.29>: "))) (setq tr 0.29))
  (command "_.PLINE" p)
  (repeat n
    (setq pt (polar p (/ pi 2) r))
    (command pt)
    (setq p (polar pt 0.0 tr))
    (command p))
  (command "")
  (setvar "OSMODE" om)
  (princ))

;; GEAR draws a toothed wheel by its record.
(defun dtr (a) (* pi (/ a 180.0)))
(defun c:GEAR (/ cen n ro ri i a lst)
  (setq cen (list 0.0 0.0)
        n 8
        ro 10.0
        ri 8.0
        i 0)
  (while (< i n)
    (setq a (* i (/ 360.0 n)))
    (setq lst (append lst
                      (list (polar cen (dtr a) ro) (polar cen (dtr (+ a 15)) ro) (polar cen (dtr (+ a 22.5)) ri)
                            (polar cen (dtr (+ a 37.5)) ri))))
    (setq i (1+ i)))
  (entmake (append (list '(0 . "LWPOLYLINE") '(100 . "AcDbEntity") '(8 . "GEAR") '(62 . 1)
                         '(100 . "AcDbPolyline") (cons 90 (length lst)) '(70 . 1))
                   (mapcar '(lambda (p) (cons 10 p)) lst)))
  (princ))

;; DIMALL gives a line an aligned dimension.
(defun c:DIMALL (/ e p1 p2)
  (setq e (entget (car (entsel))))
  (setq p1 (cdr (assoc 10 e))
        p2 (cdr (assoc 11 e)))
  (setvar "DIMTXT" 3.0)
  (command "_.DIMALIGNED" "_non" (trans p1 0 1) "_non" (trans p2 0 1) "_t" "L=<>" "_non"
           (polar p1 (+ (/ pi 2) (angle p1 p2)) 4))
  (princ))

;; SEC hatches by an entity and by a point.
(defun c:SEC (/ a b)
  (command "_.-LAYER" "_S" "0" "")
  (setq a '((0 0) (10 0) (10 5) (0 5)))
  (command "_.PLINE")
  (foreach p a (command p))
  (command "_C")
  (command "_.-HATCH" "_P" "ANSI31" 0.5 0 "_S" "_L" "" "")
  (setq h (entlast))
  (command "_.-HATCH" "_P" "_S" '(2 2) "")
  (setq h2 (entlast))
  (princ))

;; U draws in a moved and turned coordinate system.
(defun c:U ()
  (command "_.UCS" "_N" "10,20,0")
  (command "_.UCS" "_Z" 90)
  (command "_.LINE" '(0 0) '(5 0) "")
  (setq e (entget (entlast)))
  (setq r (list (cdr (assoc 11 e)) (trans '(10 20 0) 0 1) (trans '(1 0 0) 1 0 T) (getvar "UCSORG")
                (trans (cdr (assoc 11 e)) 0 1)))
  (command "_.CIRCLE" '(1 0) 2)
  (note (cdr (assoc 10 (entget (entlast)))))
  (command "_.TEXT" '(0 0) 1 0 "t")
  (note (cdr (assoc 50 (entget (entlast)))))
  (command "_.UCS" "_P")
  (command "_.UCS" "_W")
  (note (getvar "WORLDUCS"))
  (princ))

;; LYT goes through layouts, copies and renames them.
(defun c:LYT ()
  (setq r (list (layoutlist) (getvar "CTAB") (getvar "TILEMODE")))
  (setvar "CTAB" "Layout1")
  (setq r (append r (list (getvar "TILEMODE") (getvar "CVPORT"))))
  (command "_.LINE" "0,0" "5,5" "")
  (setq r (append r (list (cdr (assoc 410 (entget (entlast)))) (cdr (assoc 67 (entget (entlast)))))))
  (setvar "TILEMODE" 1)
  (command "_.-LAYOUT" "_C" "Layout1" "Copy1")
  (note (layoutlist))
  (command "_.-LAYOUT" "_R" "Copy1" "Plan" "_.-LAYOUT" "_D" "Plan")
  (setq r (append r (list (layoutlist) (sslength (ssget "_X" '((410 . "Layout1") (0 . "LINE")))))))
  (princ))
