;;; A tool's run: one undo step, system variables put back, errors said once.
;;;
;;;   (defun c:tool (/ *error* kora:variables)
;;;     (kora_begin '(("CMDECHO" . 0)))
;;;     ...
;;;     (kora_end))
;;;
;;; *error* and kora:variables must be local to the tool, so that tools can call each other.

;; (kora_begin settings) opens the undo step and sets system variables, a list of (name . value), until kora_end or an
;; error puts them back.
(defun kora_begin (settings)
  (setq *error*        kora_error
        kora:variables (kora_sysvar_save (mapcar 'car settings)))
  (kora_undo_begin)
  (foreach setting settings (setvar (car setting) (cdr setting)))
  nil)

;; (kora_end) closes what kora_begin opened, prints nothing.
(defun kora_end ()
  (kora_sysvar_restore kora:variables)
  (setq kora:variables nil)
  (kora_undo_end)
  (princ))

;; (kora_error message) ends a tool that failed or was cancelled. A cancel needs no word.
(defun kora_error (message)
  (if (not (member (strcase message) '("FUNCTION CANCELLED" "QUIT / EXIT ABORT" "CONSOLE BREAK")))
    (princ (kora_text "\nError: %1" (list message))))
  (kora_end))

;; (kora_take_back) leaves the drawing as it was before kora_begin, or before the last kora_take_back. Something must have
;; changed since: else the user's last command would be taken back in its place.
(defun kora_take_back ()
  (kora_undo_end)
  (command "_.UNDO" 1)
  (kora_undo_begin))

;; (kora_undo_begin) and (kora_undo_end) bracket one undo step; a bracket in which nothing changed leaves none. Neither
;; is echoed on the command line.
(defun kora_undo_begin () (kora:undo "_Begin"))
(defun kora_undo_end () (kora:undo "_End"))

(defun kora:undo (option / echo)
  (setq echo (getvar "CMDECHO"))
  (setvar "CMDECHO" 0)
  (command "_.UNDO" option)
  (setvar "CMDECHO" echo))

;; (kora_sysvar_save names) -> list of (name . value now).
(defun kora_sysvar_save (names)
  (mapcar '(lambda (name) (cons name (getvar name))) names))

;; (kora_sysvar_restore saved) sets what kora_sysvar_save returned.
(defun kora_sysvar_restore (saved)
  (foreach entry saved (setvar (car entry) (cdr entry))))

;; (kora_alert_message text) tells the user on the command line.
(defun kora_alert_message (text)
  (princ (strcat "\n" (kora_text text nil)))
  (princ))

;; (kora_refuse text) -> nil; tells the user why.
(defun kora_refuse (text) (kora_alert_message text) nil)

;; (kora_asked question arguments) -> what a function that asks the user gives; nil when the user cancels it.
(defun kora_asked (question arguments / answer)
  (setq answer (vl-catch-all-apply question arguments))
  (if (not (vl-catch-all-error-p answer)) answer))
