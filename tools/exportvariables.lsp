;;; menu: Export variables | EXPORTVARIABLES | Writes system variables to a new script that sets them again | Settings and programs
;;;
;;; EXPORTVARIABLES shows the system variables with their values, by class, and writes those that are shown to a new
;;; script. SCRIPT runs it. support/variables.lsp says what a line is.

(defun c:exportvariables () (kora_export_variables "new"))

(princ)
