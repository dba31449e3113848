;;; Selection sets and picks.

;; SSF selects by filters with relations and groups.
(defun c:SSF ()
  (setq *r* (list (ssget "_X"
                         '((-4 . "<OR") (0 . "CIRCLE") (-4 . "<AND") (0 . "LINE") (8 . "A*") (-4 . "AND>")
                           (-4 . "OR>"))) (ssget "_X" '((0 . "CIRCLE") (-4 . ">=") (40 . 2.0)))
                  (ssget "_X" '((0 . "LINE") (-4 . ">,=,*") (10 5.0 0.0 0.0)))
                  (ssget "_X" '((-4 . "<NOT") (0 . "LINE") (-4 . "NOT>"))) (ssget "_X" '((0 . "~CIRCLE")))
                  (ssget "_X" '((0 . "LWPOLYLINE") (-4 . "&") (70 . 1))) (ssget "_X" '((8 . "A-WALL,B-*")))
                  (ssget "_X" '((62 . 1)))
                  (ssget "_X" '((410 . "Model") (-4 . "<XOR") (0 . "LINE") (8 . "A-WALL") (-4 . "XOR>")))
                  (ssget "_X" '((0 . "CIRCLE") (-4 . "<>") (40 . 1.0)))
                  (ssget "_X" '((0 . "CIRCLE") (-4 . "!=") (40 . 1.0) (-4 . "<") (40 . 2.5)))))
  (princ))

;; SO adds to sets and removes.
(defun c:SO ()
  (setq s (ssadd))
  (ssadd (setq a (entnext)) s)
  (ssadd a s)
  (ssadd (setq b (entnext a)) s)
  (setq r (list (sslength s) (if (ssmemb a s) 1) (ssmemb (entnext b) s)))
  (ssdel a s)
  (ssdel a s)
  (setq r (append r (list (sslength s) (eq (ssname s 0) b))))
  (setq s2 (ssadd a))
  (note (sslength s2))
  (setq s3 (ssget "P"))
  (command "_.select" s "")
  (setq r (append r (list s3 (sslength (ssget "_P")) (sslength (ssget "_L")))))
  (princ))

;; SR selects by windows, polygons, a fence and a point.
(defun c:SR ()
  (setq r (mapcar '(lambda (s) (if s (sslength s)))
                  (list (ssget "_W" '(-1 -1) '(2 2)) (ssget "_C" '(0.5 0.5) '(6 6))
                        (ssget "_CP" '((4 4) (7 4) (7 7) (4 7))) (ssget "_WP" '((-1 -1) (3 -1) (3 3) (-1 3)))
                        (ssget "_F" '((0 5) (10 5))) (ssget '(1 1)) (ssget "_C" '(20 20) '(30 30)) (ssget "_X")
                        (ssget "_W" '(-1 -1) '(12 12) '((0 . "CIRCLE"))))))
  (princ))

;; EO erases what is on no locked layer.
(defun c:EO (/ s)
  (setq s (ssget "_:L" '((0 . "LINE,CIRCLE") (8 . "0"))))
  (setq r (if s (sslength s)))
  (if s (command "_.ERASE" s ""))
  (princ))

;; WS is answered with a window and a pick.
(defun c:WS ()
  (setq s (ssget (list (cons 0 "LINE"))))
  (setq r (sslength s) n (ssnamex s))
  (princ))

;; EN and EN2 tell a missed pick from the end.
(defun c:EN ()
  (setvar "ERRNO" 0)
  (while (and (not (setq e (entsel "\nPick: "))) (/= 52 (getvar "ERRNO")))
    (princ "\nMissed"))
  (setq r (list (if e (field 0 (car e))) (getvar "ERRNO")))
  (princ))
(defun c:EN2 ()
  (setvar "ERRNO" 0)
  (while (progn
           (setq s (ssget "_+.:E:S" '((0 . "LINE"))))
           (cond
             (s nil)
             ((= 7 (getvar "ERRNO")) (princ "\nMissed, try again") T)
             (T (princ "\nended") nil))))
  (setq r (if s (sslength s)))
  (princ))
