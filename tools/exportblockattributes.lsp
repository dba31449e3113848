;;; menu: Export block attributes | EXPORTBLOCKATTRIBUTES | Writes texts of attributes to a table in a text file
;;;
;;; EXPORTBLOCKATTRIBUTES: of the chosen block references, those with attributes are written to a text file, one a row,
;;; the cells divided by tabs: the handle behind an apostrophe, which keeps it a text where the file is opened as a
;;; table, the block's name, and a column for each tag. "<>" stands where the block has no such attribute. The drawing
;;; stays as it is; IMPORTBLOCKATTRIBUTES brings changed texts back.

(setq exportblockattributes:filter '((0 . "INSERT") (66 . 1)))

(defun c:exportblockattributes (/ *error* kora:variables chosen path rows)
  (setq chosen (kora_chosen exportblockattributes:filter))
  (kora_begin '(("CMDECHO" . 0)))
  (if (null chosen)
    (setq chosen (kora_choose "Select block references with attributes: " exportblockattributes:filter)))
  (cond
    ((null (setq rows (exportblockattributes:rows chosen)))
     (kora_alert_message "No block reference with attributes was selected."))
    ((null (setq path (getfiled "Export block attributes" (exportblockattributes:preset) "txt" 1)))
     (kora_alert_message "Nothing was written."))
    ((kora_write_lines path (append rows '("")))
     (kora_writestate (kora_statefile "exportblockattributes") (list (cons "file" path)))
     (kora_alert_message (strcat (kora_number_of (1- (length rows)) "block reference") " written to " path ".")))
    (T (kora_alert_message (strcat "The file " path " cannot be written. It is as it was before."))))
  (kora_end))

;; The file of the last time.
(defun exportblockattributes:preset ()
  (kora_state_value (kora_readstate (kora_statefile "exportblockattributes")) "file"))

;; -> the lines of the table, headings first; nil without references.
(defun exportblockattributes:rows (inserts / tags texts)
  (foreach insert inserts
    (setq texts (cons (mapcar '(lambda (attribute / data)
                                 (setq data (entget attribute))
                                 (cons (kora_attribute_tag data) (cond ((kora_field data 1)) (""))))
                              (kora_attributes insert))
                      texts))
    (foreach text (car texts)
      (if (not (member (car text) tags)) (setq tags (cons (car text) tags)))))
  (setq tags (reverse tags))
  (if inserts
    (cons (kora_string_join (cons "HANDLE" (cons "BLOCKNAME" tags)) "\t")
          (mapcar 'exportblockattributes:row inserts (reverse texts)))))

(defun exportblockattributes:row (insert texts / data)
  (setq data (entget insert))
  (kora_string_join
    (append (list (strcat "'" (kora_field data 5)) (kora_known_name (kora_field data 2)))
            (mapcar '(lambda (tag) (vl-string-translate "\t\r\n" "   " (cond ((cdr (assoc tag texts))) ("<>")))) tags))
    "\t"))

(princ)
