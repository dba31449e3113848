;;; menu: Edit alias | EDITALIAS | Edits the short names that are typed in place of commands | Settings and programs
;;;
;;; EDITALIAS: the dialog shows the table of the command aliases and writes it. The host goes by a changed file from the
;;; next command on, so there is nothing left to do here. The drawing is not touched.

(defun c:editalias (/ *error* kora:variables)
  (kora_begin '(("CMDECHO" . 0)))
  (kora_show 'Dlg_EditAlias (list (kora_statefile "editalias")))
  (kora_end))

(princ)
