; Editing commands as programs call them.
(defun made (/ e all)
  (setq e (entnext))
  (while e
    (setq all (cons (mapcar 'cdr (vl-remove-if-not '(lambda (g) (member (car g) '(0 10 11))) (entget e))) all)
          e (entnext e)))
  (reverse all))
(defun wipe () (command "_.ERASE" (ssget "X") "") (command "LINE" '(0 0) '(1 0) "") (command "LINE" '(5 5) '(6 5) ""))
(wipe)(command "_.MOVE" (entlast) "" '(0 0) '(1 1))(made) ;= (("LINE" (0.0 0.0 0.0) (1.0 0.0 0.0)) ("LINE" (6.0 6.0 0.0) (7.0 6.0 0.0)))
(wipe)(command "_.MOVE" (list (entlast) '(5 5)) "" '(1 1) "")(cdr (last (made))) ;= ((6.0 6.0 0.0) (7.0 6.0 0.0))
(wipe)(command "_.ROTATE" (ssget "X" '((10 0.0 0.0 0.0))) "" '(0 0) 180)(rtos (car (caddr (car (made)))) 2 3) ;= "-1.000"
(wipe)(command "_.SCALE" "_L" "" '(5 5) 2 "_.MOVE" "_P" "" '(0 0) '(1 0))(cdr (last (made))) ;= ((6.0 5.0 0.0) (8.0 5.0 0.0))
(wipe)(command "_.ERASE" "_All" "_R" (entlast) "")(length (made)) ;= 1
(wipe)(command "_.SELECT" "_C" '(4 4) '(7 7) "")(command "_.ERASE" "_P" "")(made) ;= (("LINE" (0.0 0.0 0.0) (1.0 0.0 0.0)))
(wipe)(command "_.PSELECT" (entlast) "")(command "_.ERASE")(length (made)) ;= 1
; A program does not end EXPLODE with an empty answer, or does all the same; the pieces are the previous selection.
(wipe)(command "PLINE" '(0 0) '(1 0) '(1 1) "")(command "_.EXPLODE" (entlast))(sslength (ssget "_P")) ;= 2
(wipe)(command "PLINE" '(0 0) '(1 0) '(1 1) "")(command "_.EXPLODE" "_L" "" "_.ERASE" "_P" "")(length (made)) ;= 2
(wipe)(command "PLINE" '(0 0) '(1 0) '(1 1) "")(command "_.EXPLODE" (ssget "X" '((0 . "LWPOLYLINE"))))(command "LINE" '(9 9) '(8 8) "")(last (made)) ;= ("LINE" (9.0 9.0 0.0) (8.0 8.0 0.0))
(wipe)(command "_.CHPROP" (ssget "X") "" "_LA" "0" "_C" "1" "")(cdr (assoc 62 (entget (entlast)))) ;= 1
(wipe)(command "_.CHANGE" (entlast) "" "_P" "_C" 3 "")(cdr (assoc 62 (entget (entlast)))) ;= 3
(wipe)(command "_.COPYBASE" '(5 5) (entlast) "")(command "_.PASTECLIP" '(7 7))(last (made)) ;= ("LINE" (7.0 7.0 0.0) (8.0 7.0 0.0))
; A reference that is mirrored twice is what it was
(wipe)(command "_.-BLOCK" "Mark" '(0 0) (entlast) "" "_.-INSERT" "Mark" '(3 4) 2 3 30) ;= nil
(defun placed () (mapcar '(lambda (c) (rtos (cdr (assoc c (entget (entlast)))) 2 4)) '(41 42 50)))
(command "_.MIRROR" "_L" "" '(0 0) '(0 1) "_Y")(placed) ;= ("-2.0000" "3.0000" "5.7596")
(command "_.MIRROR" "_L" "" '(0 0) '(0 1) "_Y")(placed) ;= ("2.0000" "3.0000" "0.5236")
