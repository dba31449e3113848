;;; menu: Lisp explorer | LISPEXPLORER | Shows the functions of Lisp files and what the Lisp engine of this drawing holds | Settings and programs
;;; menu: Lisp dump | LISPDUMP | Shows what the Lisp engine of this drawing holds and writes it to a dump file | Settings and programs
;;;
;;; LISPEXPLORER opens the Lisp Explorer on the page that was shown last, at first the library of Lisp files. LISPDUMP
;;; opens it on the page of loaded symbols, where Export... writes the dump file.
;;;
;;; What the engine holds goes to a file for as long as the dialog is open. No variable is local here but those named
;;; kora:..., see support/catalogue.lsp.

(defun c:lispexplorer () (lispexplorer:open nil))

(defun c:lispdump () (lispexplorer:open T))

(defun lispexplorer:open (kora:on_loaded / kora:catalogue)
  (setq kora:catalogue (kora_userfile "lispexplorer.catalogue"))
  (cond
    ((not (kora_write_catalogue kora:catalogue))
     (kora_alert_message (kora_text "What is loaded cannot be shown: %1 cannot be written." (list kora:catalogue)))
     (Dlg_LispExplorer))
    (kora:on_loaded (Dlg_LispExplorer kora:catalogue "DUMP"))
    (T (Dlg_LispExplorer kora:catalogue)))
  (vl-file-delete kora:catalogue)
  (princ))

(princ)
