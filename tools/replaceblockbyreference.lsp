;;; menu: Replace block by reference | REPLACEBLOCKBYREFERENCE | Replaces all references to chosen blocks by a drawing file | Blocks and attributes
;;;
;;; REPLACEBLOCKBYREFERENCE: as REPLACEBLOCK, but a drawing file takes the place of the blocks: it is attached as an
;;; external reference under the name of the file. Attributes stay as they are, because a drawing file has none to give.

(defun c:replaceblockbyreference (/ *error* kora:variables chosen state old new)
  (setq chosen (kora_chosen '((0 . "INSERT"))))
  (kora_begin '(("CMDECHO" . 0)))
  (if (and (setq state (kora_ask_replacement 'Dlg_replaceblocktoxref (kora_statefile "replaceblocktoxref") chosen))
           (setq old (kora_chosen_blocks (kora_state_value state "blockstable")))
           (setq new (replaceblockbyreference:attach (replaceblockbyreference:file state))))
    (kora_finish_replacement "REPLACEBLOCKBYREFERENCE" (kora_replace_blocks old new nil) state))
  (kora_end))

;; -> the path of the file that was chosen.
(defun replaceblockbyreference:file (state / folder)
  (setq folder (vl-string-translate "\\" "/" (kora_state_value state "directory")))
  (strcat (vl-string-right-trim "/" folder) "/"
          (car (kora_string_split (kora_state_value state "blockstablerep") "^"))))

;; Attaches the file unless the drawing has it already. -> its name as a block, nil after a message.
(defun replaceblockbyreference:attach (path / name block mark)
  (setq name  (vl-filename-base path)
        block (tblsearch "BLOCK" name)
        mark  (entlast))
  (cond
    ((= (strcase (vl-string-translate "\\" "/" path))
        (strcase (vl-string-translate "\\" "/" (strcat (getvar "DWGPREFIX") (getvar "DWGNAME")))))
     (kora_refuse "A drawing cannot refer to itself."))
    ((and block (= (strcase (vl-string-translate "\\" "/" (cond ((kora_field block 1)) (""))))
                   (strcase path)))
     name)
    (block (kora_refuse (kora_text "The drawing has another block of the name %1. Rename one of the two first." (list name))))
    (T
     (command "_.-XREF" "_Attach" path)
     ;; What is no drawing ends the command here.
     (if (= 1 (logand 1 (getvar "CMDACTIVE"))) (command '(0.0 0.0 0.0) 1.0 1.0 0.0))
     (if (tblsearch "BLOCK" name)
       (progn
         (if (not (equal mark (entlast))) (entdel (entlast)))
         name)
       (kora_refuse (kora_text "The file %1 could not be attached." (list path)))))))

(princ)
