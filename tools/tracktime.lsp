;;; menu: Track time | TRACKTIME | Shows and sets the time that was worked on the drawings of a folder | Sheets and files
;;;
;;; TRACKTIME: the dialog writes what was changed itself, to the files of the drawings or, where one is open, to the time
;;; that goes on in it. The dialog belongs to a command of the module's; what became of it is in the state file, which
;;; stays as it is when the user gives up.

(defun c:tracktime (/ *error* kora:variables file)
  (kora_begin '(("CMDECHO" . 0)))
  (setq file (kora_statefile "tracktime"))
  (kora_writestate file '(("!action!" . "")))
  (command "ORTAKIT_TRACKTIME" file)
  (if (= "OK" (kora_action (kora_readstate file)))
    (kora_alert_message "The editing times were written where drawings can have them."))
  (kora_end))

(princ)
