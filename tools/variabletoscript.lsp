;;; menu: Variable to script | VARIABLETOSCRIPT | Adds expressions that set system variables to a script | Settings and programs
;;;
;;; VARIABLETOSCRIPT: as EXPORTVARIABLES, but what is shown goes to the end of a script that is there.

(defun c:variabletoscript () (kora_export_variables "add"))

(princ)
