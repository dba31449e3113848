;;; menu: Export variables | EXPORTVARIABLES | Writes system variables to a script that sets them again
;;;
;;; EXPORTVARIABLES shows the system variables with their values, by class, and writes those that are shown to a new
;;; script; VARIABLETOSCRIPT adds them to a script that is there. SCRIPT runs it. support/variables.lsp says what a line
;;; is.

(defun c:exportvariables () (exportvariables:run "new"))

(defun c:variabletoscript () (exportvariables:run "add"))

(defun exportvariables:run (mode / *error* kora:variables path)
  ;; Before anything is set, so that the values are the user's.
  (setq path (kora_userfile "exportvariables.listing"))
  (if (kora_write_variables path)
    (progn
      (kora_begin '(("CMDECHO" . 0)))
      (Dlg_exportsetting path mode)
      (vl-file-delete path)
      (kora_end))
    (kora_alert_message (strcat "The variables cannot be listed: " path " cannot be written.")))
  (princ))

(princ)
