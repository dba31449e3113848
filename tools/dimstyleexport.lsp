;;; menu: Export dimension style | DIMSTYLEEXPORT | Writes dimension styles of the drawing to a file | Dimension styles
;;;
;;; DIMSTYLEEXPORT: all dimension styles of the drawing are written to a file of the tool's own, each with its text
;;; style and linetypes (see support/dimstyles.lsp for the form). The dialog copies those that the user chooses from
;;; there to the user's file. The drawing stays as it is.

(defun c:dimstyleexport (/ *error* kora:variables file state)
  (kora_begin '(("CMDECHO" . 0)))
  (setq state (kora_statefile "dimstyleexport")
        file  (strcat (kora_module_folder) "/dimstyleexport.dim"))
  (if (and (dimstyleexport:write file)
           (kora_writestate state (list (cons "filedim" file))))
    (if (kora_show 'Dlg_ExDimensionStyle (list state)) (dimstyleexport:report (kora_readstate state)))
    (kora_alert_message (kora_text "The dimension styles could not be written to %1." (list file))))
  (if (findfile file) (vl-file-delete file))
  (kora_end))

;; Says what the dialog wrote, or that it could not.
(defun dimstyleexport:report (state / count path)
  (setq count (kora_state_value state "exportedstyles")
        path  (kora_state_value state "exportfile"))
  (kora_alert_message
    (if (= count "")
      (kora_text "The dimension styles could not be written to %1." (list path))
      (kora_text (if (= count "1") "1 dimension style was written to %2." "%1 dimension styles were written to %2.")
                 (list count path)))))

;; Writes all dimension styles of the drawing. -> T, nil when the file cannot be written.
(defun dimstyleexport:write (file)
  (kora_write_file file
    '(lambda (handle)
       (foreach name (kora_table_names "DIMSTYLE")
         (foreach line (dimstyleexport:section (entget (tblobjname "DIMSTYLE" name) '("AcadAnnotative")))
           (princ (strcat line "\r\n") handle))))))

;; -> the lines of a style's section.
(defun dimstyleexport:section (data / arrows)
  (append (list (strcat "DIMENSION_STYLE_NAME " (kora_field data 2)) "DIMFILE 1")
          (dimstyleexport:variables data)
          (if (kora_is_annotative data) '("DIMANNO 1"))
          (dimstyleexport:arrow_lines (setq arrows (dimstyleexport:arrows data)))
          (kora_block_lines (vl-remove nil (mapcar 'cdr arrows)))
          (dimstyleexport:text_style (kora_field data 340))
          (apply 'append
                 (mapcar '(lambda (row) (dimstyleexport:linetype (cadr row) (kora_field data (car row))))
                         kora:dim_linetypes))
          '("END_OF_STYLE")))

(defun dimstyleexport:variables (data / field lines)
  (foreach row kora:dim_variables
    (setq field (assoc (car row) data))
    ;; The first group 70 is the record's flags.
    (if (= (car row) 70) (setq field (assoc 70 (cdr (member field data)))))
    (if field
      (setq lines (cons (strcat (cadr row) " " (kora_value_text (cdr field))) lines))))
  (reverse lines))

;; -> the list of the record that a reference leads to, nil where it leads nowhere: files have empty ones as well.
(defun dimstyleexport:record (reference)
  (if (= (type reference) 'ENAME) (entget reference '("ACAD"))))

;; -> list of (variable . name of the arrow's block): by their records, in early versions by themselves. The name is nil
;; for the usual arrow.
(defun dimstyleexport:arrows (data / field arrows)
  (foreach row kora:dim_arrows
    (cond ((setq field (assoc (car row) data))
           (setq field (kora_field (dimstyleexport:record (cdr field)) 2)))
          ((cadr row) (setq field (kora_field data (cadr row)))))
    (if (or field (assoc (car row) data))
      (setq arrows (cons (cons (caddr row) (if (/= field "") field)) arrows))))
  (reverse arrows))

(defun dimstyleexport:arrow_lines (arrows)
  (mapcar '(lambda (arrow) (strcat (car arrow) " " (kora_value_text (cdr arrow)))) arrows))

;; The lines for a text style and its definition, none for a record that names none.
(defun dimstyleexport:text_style (entity / data family lines)
  (if (setq data (dimstyleexport:record entity))
    (progn
      (setq family (cdadr (assoc -3 data))
            lines  (list (strcat "DIMTXSTY " (kora_value_text (kora_field data 2)))))
      (foreach row kora:dim_textstyle
        (if (assoc (car row) (append data family))
          (setq lines (cons (strcat (cadr row) " " (kora_value_text (kora_field (append data family) (car row))))
                            lines))))
      (reverse lines))))

;; The lines for a linetype and its definition, none for a record that names none.
(defun dimstyleexport:linetype (word entity / data definition)
  (if (setq data (dimstyleexport:record entity))
    (progn
      (setq definition (kora_linetype_definition data))
      (cons (strcat word " " (kora_replace_all "\\U+0020" " " (kora_value_text (kora_field data 2))) " "
                    (itoa (if definition (kora_characters (strcat (car definition) "\r\n" (cadr definition))) 0)))
            (if definition definition '(""))))))

(princ)
