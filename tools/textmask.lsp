;;; menu: Text mask | TEXTMASK | Hides what lies behind texts | Texts
;;;
;;; TEXTMASK: texts are chosen; the dialog gives what the masks are made of and how far they reach beyond the text. Each
;;; text gets a mask of its own, on its layer, over all that was there; the texts come in front of that. A wipeout takes
;;; the colour of the ground, a solid has a colour, a 3D face hides what lies behind it where hidden lines are removed:
;;; its edges are invisible and it lies a little behind the text.
;;;
;;; A mask knows its text: run again, the tool takes new masks in place of the old ones.

(setq textmask:filter '((0 . "TEXT,MTEXT,ATTDEF")))
(setq textmask:application "KORA_TEXTMASK")

(defun c:textmask (/ *error* kora:variables texts file)
  (setq texts (kora_chosen textmask:filter))
  (kora_begin '(("CMDECHO" . 0)))
  (if (and (setq texts (cond (texts) ((kora_choose "Select texts to mask: " textmask:filter))))
           (kora_suggest_offset (setq file (kora_statefile "textmask")) (entget (car texts)))
           (kora_show 'Dlg_TextMask (list file)))
    (textmask:run texts (kora_readstate file)))
  (kora_end))

(defun textmask:run (texts state / free old masked masks made)
  (setq free (kora_unlocked texts)
        old  (kora_companions free textmask:application))
  (foreach text free
    (if (setq made (textmask:make (entget text) state))
      (setq masks  (cons made masks)
            masked (cons text masked))))
  (kora_remove_companions old masked)
  (if masked
    (mapcar '(lambda (text mask) (kora_join_companion mask text textmask:application))
            (kora_bring_to_front (reverse masked)) (reverse masks)))
  (kora_done_with "TEXTMASK" "masked" (reverse masked) free texts))

;; -> the entity name of a new mask behind the text, nil when there is nothing to mask or it cannot be made.
(defun textmask:make (data state / box points margin)
  (if (setq box (kora_text_box data))
    (progn
      (setq margin (* 2.0 (cond ((kora_state_real state "offset")) (0.0)))
            points (kora_box_points box (kora_corners (+ (cadr box) margin) (+ (caddr box) margin))))
      (entmakex
        (append (cond ((kora_state_is state "type_solid") (textmask:solid data points state))
                      ((kora_state_is state "type_3dface") (textmask:face data points))
                      (T (textmask:wipeout data points))))))))

;; The third and fourth corner of a solid lie crosswise.
(defun textmask:solid (data points state)
  (append '((0 . "SOLID") (100 . "AcDbEntity"))
          (kora_companion_fields data)
          (list (cons 62 (atoi (kora_state_value state "color"))) '(100 . "AcDbTrace")
                (cons 10 (car points)) (cons 11 (cadr points)) (cons 12 (cadddr points)) (cons 13 (caddr points))
                (cons 210 (kora_normal data)))))

(defun textmask:face (data points / behind)
  (setq behind (* -0.01 (kora_field data 40))
        points (textmask:in_world data (mapcar '(lambda (point) (mapcar '+ point (list 0.0 0.0 behind))) points)))
  (append '((0 . "3DFACE") (100 . "AcDbEntity"))
          (kora_companion_fields data)
          (list '(100 . "AcDbFace") (cons 10 (car points)) (cons 11 (cadr points)) (cons 12 (caddr points))
                (cons 13 (cadddr points)) '(70 . 15))))

;; A picture of one point by one, which its boundary goes around.
(defun textmask:wipeout (data points)
  (setq points (textmask:in_world data points))
  (append '((0 . "WIPEOUT") (100 . "AcDbEntity"))
          (kora_companion_fields data)
          (list '(100 . "AcDbWipeout") '(90 . 0) (cons 10 (car points))
                (cons 11 (mapcar '- (cadr points) (car points))) (cons 12 (mapcar '- (cadddr points) (car points)))
                '(13 1.0 1.0 0.0) '(70 . 7) '(280 . 1) '(281 . 50) '(282 . 50) '(283 . 0) '(71 . 2) '(91 . 5)
                '(14 -0.5 -0.5) '(14 0.5 -0.5) '(14 0.5 0.5) '(14 -0.5 0.5) '(14 -0.5 -0.5))))

(defun textmask:in_world (data points)
  (mapcar '(lambda (point) (trans point (kora_normal data) 0)) points))

(princ)
