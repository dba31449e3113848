;;; State files: how a tool and its dialog tell each other the values of the widgets.
;;;
;;; In Lisp a state is a list of (key . value), both strings, keys in lower case. The action word that a dialog closed
;;; with is under "!action!"; of an action that carries a value ("GET_BLOCK=Door") it is the whole text.

;; (kora_module_folder) -> the folder where the tools keep what is the user's own.
(defun kora_module_folder ()
  (strcat (getvar "LOGFILEPATH") "Ortakit"))

;; (kora_statefile tool) -> path of the tool's state file; its folder is made where it is missing.
(defun kora_statefile (tool)
  (kora_userfile (strcat tool ".state")))

;; (kora_userfile name) -> path of a file in the module folder, which is made where it is missing.
(defun kora_userfile (name)
  (vl-mkdir (getvar "LOGFILEPATH"))
  (vl-mkdir (kora_module_folder))
  (strcat (kora_module_folder) "/" name))

;; (kora_readstate file) -> the state in file, nil for a missing or empty one. Lines without a key are left out.
(defun kora_readstate (file / handle line entry state)
  (if (setq handle (open file "r"))
    (progn
      (while (setq line (read-line handle))
        (if (setq entry (kora:state_entry (kora:without_mark line)))
          (setq state (cons entry state))))
      (close handle)))
  (reverse state))

;; A byte-order mark may stand before the first line.
(defun kora:without_mark (line)
  (if (and (/= line "") (= (ascii line) 65279)) (substr line 2) line))

(defun kora:state_entry (line / equals)
  (setq equals (vl-string-search "=" line))
  (cond
    ((kora_starts_with line "!action!")
     (cons "!action!" (vl-string-left-trim "=" (substr line 9))))
    ((and equals (> equals 0))
     (cons (strcase (substr line 1 equals) T) (substr line (+ equals 2))))))

;; (kora_writestate file changes) puts the values of changes into the state file, new keys behind the old ones.
;; -> T, nil when the file cannot be written. What spin boxes show inside is left out: it says nothing of its own.
(defun kora_writestate (file changes / state)
  (setq state (vl-remove-if '(lambda (entry) (= (car entry) "qt_spinbox_lineedit")) (kora_readstate file)))
  (foreach change changes
    (setq state (if (assoc (car change) state)
                  (subst change (assoc (car change) state) state)
                  (append state (list change)))))
  (kora_write_lines file (append (mapcar 'kora:state_line state) '(""))))

;; (kora_show dialog arguments) -> what the dialog, a function's symbol, gives for the arguments, of which the first is
;; its state file; nil after a message when that file cannot be written. A dialog says nothing of a file that it could
;; not write: the line that is put into it here would still be there, and the tool would go on with what the user had
;; chosen some other time.
(defun kora_show (dialog arguments / file answer)
  (setq file (car arguments))
  (cond
    ((null (kora_writestate file '(("!call!" . "open"))))
     (kora_refuse (kora_text "The file %1 cannot be written: the dialog could not hand over what is chosen." (list file))))
    ((null (setq answer (apply dialog arguments))) nil)
    ((assoc "!call!" (kora_readstate file))
     (kora_refuse (kora_text "The file %1 could not be written: what was chosen is lost, and nothing was done." (list file))))
    (answer)))

(defun kora:state_line (entry)
  (strcat (car entry)
          (if (and (= (car entry) "!action!") (vl-string-search "=" (cdr entry))) "" "=")
          (cdr entry)))

;; (kora_state_value state key) -> the text under key, "" when there is none.
(defun kora_state_value (state key)
  (cond ((cdr (assoc (strcase key T) state))) ("")))

;; (kora_state_is state key) -> T when the box or button of this key is checked.
(defun kora_state_is (state key)
  (= (kora_state_value state key) "TRUE"))

;; (kora_state_real state key) -> the number under key, nil when the text is none.
(defun kora_state_real (state key)
  (distof (kora_state_value state key) 2))

;; (kora_action state) -> the action word: "OK", "CREATE", of "GET_BLOCK=Door" the part "GET_BLOCK"; "" without one.
(defun kora_action (state)
  (car (kora_string_split (kora_state_value state "!action!") "=")))

;; (kora_suggest_offset file data) puts half the height of a text into the state file as the distance "offset" if it has
;; none. -> T, also when the file cannot be written.
(defun kora_suggest_offset (file data)
  (if (= (kora_state_value (kora_readstate file) "offset") "")
    (kora_writestate file (list (cons "offset" (kora_number_text (* 0.5 (kora_field data 40)) 6)))))
  T)
