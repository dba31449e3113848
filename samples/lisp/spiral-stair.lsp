;;; SPIRALSTAIR draws the plan of a spiral stair: its treads with their numbers, the pole in the middle, the handrail, and
;;; the line on which one walks, from its circle at the first tread to an arrow at the last one, with UP at its start.
;;;
;;; It asks for the centre, the radii of the pole and of the stair, the rise in all, how many treads there are, and how far
;;; they turn. Everything is drawn with commands, on a layer for each kind, in any coordinate system.

(setq stair:layers
  '(("STAIR-TREADS" . 7) ("STAIR-NUMBERS" . 3) ("STAIR-RAIL" . 1) ("STAIR-WALK" . 5)))

;; What a stair is asked for and what others come of it: a list of name and value.
(defun stair:get (stair name) (cdr (assoc name stair)))

;; The point of the stair at an angle, from its centre.
(defun stair:at (stair turned radius) (polar (stair:get stair 'centre) turned radius))

;; The angle of the line in front of a tread; the first one is 0.
(defun stair:edge (stair number)
  (+ (stair:get stair 'start) (* number (stair:get stair 'step))))

;; Draws on a layer, which is made where there is none, and comes back to the one before.
(defun stair:on-layer (name draw / before)
  (setq before (getvar "CLAYER"))
  (command "_.-LAYER" "_Make" name "_Color" (cdr (assoc name stair:layers)) name "")
  (eval draw)
  (setvar "CLAYER" before))

;; The arc of a radius over all treads, seen counter-clockwise.
(defun stair:arc (stair radius / first final)
  (setq first (stair:edge stair 0)
        final (stair:edge stair (stair:get stair 'count)))
  (if (minusp (stair:get stair 'step))
    (command "_.ARC" "_Center" "_non" (stair:get stair 'centre)
             "_non" (stair:at stair final radius) "_non" (stair:at stair first radius))
    (command "_.ARC" "_Center" "_non" (stair:get stair 'centre)
             "_non" (stair:at stair first radius) "_non" (stair:at stair final radius))))

(defun stair:draw-treads (stair / number)
  (command "_.CIRCLE" "_non" (stair:get stair 'centre) (stair:get stair 'inner))
  (setq number 0)
  (repeat (1+ (stair:get stair 'count))
    (command "_.LINE"
             "_non" (stair:at stair (stair:edge stair number) (stair:get stair 'inner))
             "_non" (stair:at stair (stair:edge stair number) (stair:get stair 'outer))
             "")
    (setq number (1+ number))))

;; The height of the numbers: a third of the tread where they stand, or a tenth of its length where that is less.
(defun stair:text-height (stair)
  (min (/ (* (abs (stair:get stair 'step)) (stair:get stair 'number-radius)) 3.0)
       (/ (- (stair:get stair 'outer) (stair:get stair 'inner)) 10.0)))

;; Text in the middle of a point.
(defun stair:text (stair at text)
  (command "_.TEXT" "_Justify" "_MC" "_non" at (stair:text-height stair) 0 text))

(defun stair:draw-numbers (stair / number)
  (setq number 0)
  (repeat (stair:get stair 'count)
    (stair:text stair
                (stair:at stair (stair:edge stair (+ number 0.5)) (stair:get stair 'number-radius))
                (itoa (setq number (1+ number))))))

(defun stair:draw-rail (stair)
  (stair:arc stair (stair:get stair 'outer))
  (stair:arc stair (- (stair:get stair 'outer) (stair:get stair 'rail))))

;; From a circle in the middle of the first tread to an arrow in the middle of the last one.
(defun stair:draw-walk (stair / first final tip back radius)
  (setq radius (stair:get stair 'walk)
        first (stair:edge stair 0.5)
        final (stair:edge stair (- (stair:get stair 'count) 0.5))
        tip (stair:at stair final radius)
        back (- final (* 0.4 (stair:get stair 'step))))
  (command "_.CIRCLE" "_non" (stair:at stair first radius) (stair:text-height stair))
  (if (minusp (stair:get stair 'step))
    (command "_.ARC" "_Center" "_non" (stair:get stair 'centre)
             "_non" tip "_non" (stair:at stair first radius))
    (command "_.ARC" "_Center" "_non" (stair:get stair 'centre)
             "_non" (stair:at stair first radius) "_non" tip))
  (foreach side '(0.94 1.06)
    (command "_.LINE" "_non" tip "_non" (stair:at stair back (* side radius)) ""))
  (stair:text stair (stair:at stair (stair:edge stair -0.4) radius) "UP"))

(defun stair:draw (stair)
  (stair:on-layer "STAIR-TREADS" '(stair:draw-treads stair))
  (stair:on-layer "STAIR-NUMBERS" '(stair:draw-numbers stair))
  (stair:on-layer "STAIR-RAIL" '(stair:draw-rail stair))
  (stair:on-layer "STAIR-WALK" '(stair:draw-walk stair)))

;; What the answers amount to. Treads turn counter-clockwise, or clockwise for a negative turn; the walking line is two
;; thirds of the way out, numbers near the handrail.
(defun stair:make (centre start inner outer rise count turn)
  (list (cons 'centre centre) (cons 'start start) (cons 'inner inner) (cons 'outer outer)
        (cons 'rise rise) (cons 'count count) (cons 'step (/ turn count))
        (cons 'walk (+ inner (* (/ 2.0 3.0) (- outer inner))))
        (cons 'number-radius (+ inner (* 0.85 (- outer inner))))
        (cons 'rail (/ (- outer inner) 20.0))))

;; Asks until the outer radius is the larger one.
(defun stair:outer (centre inner / outer)
  (while (not outer)
    (initget 7)
    (setq outer (getdist centre "\nOuter radius: "))
    (if (<= outer inner)
      (progn (princ "\nThe stair must be wider than its pole.") (setq outer nil))))
  outer)

(defun stair:ask (/ centre inner outer rise count turn)
  (initget 1)
  (setq centre (getpoint "\nCentre of the stair: "))
  (initget 7)
  (setq inner (getdist centre "\nRadius of the pole: ")
        outer (stair:outer centre inner))
  (initget 7)
  (setq rise (getdist "\nRise in all: "))
  (initget 7)
  (setq count (getint "\nNumber of treads: "))
  (initget 2)
  (setq turn (getreal "\nTurn in degrees, negative for clockwise <360>: "))
  (stair:make centre 0.0 inner outer rise count (* pi (/ (cond (turn) (360.0)) 180.0))))

(defun c:spiralstair (/ *error* echo stair)
  (setq echo (getvar "CMDECHO"))
  (defun *error* (message)
    (setvar "CMDECHO" echo)
    (command "_.UNDO" "_End")
    (if (/= message "Function cancelled") (princ (strcat "\nError: " message)))
    (princ))
  (setvar "CMDECHO" 0)
  (command "_.UNDO" "_Begin")
  (setq stair (stair:ask))
  (stair:draw stair)
  (command "_.UNDO" "_End")
  (setvar "CMDECHO" echo)
  (princ (strcat "\n" (itoa (stair:get stair 'count)) " treads, each rises "
                 (rtos (/ (stair:get stair 'rise) (stair:get stair 'count))) "."))
  (princ))

(princ "\nSPIRALSTAIR draws the plan of a spiral stair.")
(princ)
