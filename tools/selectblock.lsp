;;; menu: Select block | SELECTBLOCK | Chooses a block of this drawing or of a drawing file and inserts it | Blocks and attributes
;;;
;;; SELECTBLOCK: the dialog gives a block, of the drawing or of a drawing file. Then insertion points are asked for until
;;; there is no more of them, each with scale factor and rotation angle; both begin with those of the last insertion.
;;; Attributes are asked for, or have their defaults where ATTREQ is 0.
;;;
;;; A block of another drawing is brought in with all that it needs before it is inserted for the first time. What the
;;; drawing has under the same name stays as it is, and the command line says so.

(defun c:selectblock (/ *error* kora:variables choice)
  (kora_begin '(("CMDECHO" . 0)))
  (if (setq choice (selectblock:ask (kora_statefile "selectblock")))
    (selectblock:insert_many (car choice) (cadr choice)))
  (kora_end))

;; Runs the dialog. -> (name source), where the source is "active" or a drawing file; nil when it was cancelled.
(defun selectblock:ask (file / state)
  ;; A cancelled dialog leaves the file as it is, and so the word of the last time.
  (if (kora_writestate file '(("!action!" . "ASK")))
    (progn
      (command "ORTAKIT_SELECTBLOCK" file)
      (setq state (kora_readstate file))
      (if (= (kora_action state) "OK")
        (list (kora_state_value state "name") (kora_state_value state "source"))))
    (kora_refuse (kora_text "The file %1 could not be written." (list file)))))

;; Inserts until the user has no more points, or the block cannot be had.
(defun selectblock:insert_many (name source / point ready)
  (setq ready (= source "active"))
  (while (and (setq point (getPointOrtakit (kora_text "\nSpecify insertion point of %1: " (list name))))
              (or ready (setq ready (selectblock:import name source))))
    (selectblock:insert name point (selectblock:ask_scale) (selectblock:ask_rotation point))))

;; -> T, nil after a message of the command when the drawing has no such block then.
(defun selectblock:import (name source)
  (command "ORTAKIT_IMPORTBLOCK" source name)
  (if (tblsearch "BLOCK" name) T))

;; The values of the last insertion are offered for the next one.
(setq selectblock:scale    1.0
      selectblock:rotation 0.0)

(defun selectblock:ask_scale ()
  (initgetOrtakit 2)
  (setq selectblock:scale
         (getRealOrtakit (kora_text "\nSpecify scale factor <%1>: " (list (kora_number_text (cond (selectblock:scale) (1.0)) 12))))))

;; Radians.
(defun selectblock:ask_rotation (point)
  (initgetOrtakit 0)
  (setq selectblock:rotation
         (getAngleOrtakit point (kora_text "\nSpecify rotation angle <%1>: " (list (kora_number_text (cond (selectblock:rotation) (0.0)) 12))))))

(defun selectblock:insert (name point scale rotation)
  (if (snvalid name)
    (progn
      (command "_.-INSERT" name point scale scale (angtos rotation (getvar "AUNITS") 8))
      ;; What is still asked for are attributes.
      (while (> (getvar "CMDACTIVE") 0) (command PAUSE)))
    ;; INSERT would take such a name for something else: "*U7" for the parts of a block U7, "A=B" for a file.
    (selectblock:make name point scale rotation)))

(defun selectblock:make (name point scale rotation)
  (if (not (entmake (list '(0 . "INSERT") (cons 2 name) (cons 10 (trans point 1 0))
                          (cons 41 scale) (cons 42 scale) (cons 43 scale)
                          (cons 50 (+ rotation (angle '(0.0 0.0 0.0) (trans '(1.0 0.0 0.0) 1 0 T)))))))
    (kora_alert_message (kora_text "The block %1 could not be inserted." (list name)))))

(princ)
