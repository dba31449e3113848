;;; menu: Export block attributes | EXPORTBLOCKATTRIBUTES | Writes texts of attributes to a table in a text file | Blocks and attributes
;;;
;;; EXPORTBLOCKATTRIBUTES: of the chosen block references, those with attributes are written to a text file, one a row,
;;; the cells divided by tabs: the handle, the block's name, a column for each tag, and a mark by which the row is known
;;; again. A second attribute of the same tag has the column TAG(2), and so on. "<>" stands where the block has no such
;;; attribute. Lines of an attribute are lines of its cell; formatting codes stand as they are. The drawing stays as it
;;; is; IMPORTBLOCKATTRIBUTES brings changed texts back. How texts are written: see support/tables.lsp.

(setq exportblockattributes:filter '((0 . "INSERT") (66 . 1)))

(defun c:exportblockattributes (/ *error* kora:variables chosen inserts path rows nameless)
  (setq chosen (kora_chosen exportblockattributes:filter))
  (kora_begin '(("CMDECHO" . 0)))
  (if (null chosen)
    (setq chosen (kora_choose "Select block references with attributes: " exportblockattributes:filter)))
  ;; Without a handle a reference could not be found again.
  (setq inserts  (vl-remove-if-not 'kora_handle chosen)
        nameless (kora_also (- (length chosen) (length inserts)) " without a handle left out"))
  (cond
    ((null (setq rows (exportblockattributes:rows inserts)))
     (kora_alert_message (kora_text "No block reference with attributes was selected%1." (list nameless))))
    ((null (setq path (getfiled (kora_text "Export block attributes" nil) (exportblockattributes:preset) "txt" 1)))
     (kora_alert_message "Nothing was written."))
    ((kora_write_lines path (append (apply 'append (mapcar '(lambda (row) (kora_string_split row "\n")) rows)) '("")))
     (kora_writestate (kora_statefile "exportblockattributes") (list (cons "file" path)))
     (kora_alert_message
       (kora_text "%1 written to %2%3." (list (kora_number_of (1- (length rows)) "block reference") path nameless))))
    (T (kora_alert_message (kora_text "The file %1 cannot be written. It is as it was before." (list path)))))
  (kora_end))

;; The file of the last time.
(defun exportblockattributes:preset ()
  (kora_state_value (kora_readstate (kora_statefile "exportblockattributes")) "file"))

;; -> the rows of the table, headings first; nil without references.
(defun exportblockattributes:rows (inserts / names texts mark)
  (foreach insert inserts
    (setq texts (cons (mapcar '(lambda (column) (cons (car column) (kora_attribute_text (entget (cdr column)))))
                              (kora_attribute_columns insert))
                      texts))
    (foreach text (car texts)
      (if (not (member (car text) names)) (setq names (cons (car text) names)))))
  (setq names (reverse names)
        mark  (kora_drawing_mark))
  (if inserts
    (cons (kora_table_row (append '("HANDLE" "BLOCKNAME") names '("ROW KEY")))
          (mapcar 'exportblockattributes:row inserts (reverse texts)))))

(defun exportblockattributes:row (insert texts / data)
  (setq data (entget insert))
  (kora_table_row
    (append (list (list (strcat "'" (kora_field data 5))) (kora_block_name data))
            (mapcar '(lambda (name) (cond ((cdr (assoc name texts))) ('("<>")))) names)
            (list (strcat (kora_letter_mark (kora_field data 5)) mark)))))

(princ)
