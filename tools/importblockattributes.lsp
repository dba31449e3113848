;;; menu: Import block attributes | IMPORTBLOCKATTRIBUTES | Takes texts of attributes from a table in a text file | Blocks and attributes
;;;
;;; IMPORTBLOCKATTRIBUTES: the dialog shows the table, has texts in it replaced, and gives the rows that the user chose.
;;; Columns are known by their headings, in any order; what no heading names stays as it is. A row is for the block
;;; reference whose handle it has, if that is one of the block that it names. Rows whose handle does not fit the mark
;;; that they were written with, that were written of another drawing, or that name the same reference as another row
;;; are refused. "<>" stands where the block has no such attribute. Attributes on locked layers and of references on
;;; such stay as they are. EXPORTBLOCKATTRIBUTES writes such files.

(defun c:importblockattributes (/ *error* kora:variables file)
  (kora_begin '(("CMDECHO" . 0)))
  (setq file (kora_statefile "importblockattributes"))
  (if (kora_show 'Dlg_imporAttributes (list file))
    (importblockattributes:apply
      (mapcar 'importblockattributes:cells
              (kora_string_split (kora_state_value (kora_readstate file) "attributes") "^"))))
  (kora_end))

;; The cells of a row as the dialog gives it: what a row cannot hold is in a string of Lisp.
(defun importblockattributes:cells (row)
  (mapcar '(lambda (cell) (if (= (substr cell 1 1) "\"") (read cell) cell))
          (kora_string_split row "\t")))

;; Takes the dialog's rows, lists of cells, into the drawing and tells how much that was; the first is the headings.
(defun importblockattributes:apply (rows / headings mark twice changed references missing refused locked groups)
  (setq headings (mapcar '(lambda (cell) (strcase (kora_cell_text cell))) (car rows))
        mark     (kora_drawing_mark)
        rows     (mapcar '(lambda (cells) (mapcar 'cons headings cells))
                         (vl-remove-if 'importblockattributes:is_blank (cdr rows)))
        twice    (importblockattributes:twice rows)
        changed 0 references 0 missing 0 refused 0 locked 0)
  (if (and (member "HANDLE" headings) (or (member "BLOCKNAME" headings) (member "ROW KEY" headings)))
    (progn
      (foreach row rows (importblockattributes:take_row row))
      (kora_results "IMPORTBLOCKATTRIBUTES" (reverse groups))
      (kora_alert_message
        (kora_text "%1 of %2 changed%3%4%5."
                   (list (kora_number_of changed "attribute")
                         (kora_number_of references "block reference")
                         (kora_also missing " without their block reference")
                         (kora_also refused " refused, of another drawing, with a changed handle or one that another row has")
                         (kora_also locked " on locked layers left as they were")))))
    (kora_alert_message "The file is no table of attributes: its headings are HANDLE, BLOCKNAME and tags.")))

(defun importblockattributes:is_blank (cells)
  (= "" (kora_string_trim (apply 'strcat cells))))

;; -> the handle of a row, a list of (heading . cell); nil for a remark or what else is none.
(defun importblockattributes:handle (row / handle)
  (setq handle (strcase (kora_string_trim (kora_cell_text (cond ((cdr (assoc "HANDLE" row))) (""))))))
  (if (and (/= handle "") (= (vl-string-trim "0123456789ABCDEF" handle) "")) handle))

;; What a row names: the handle and, where it says it, the block; nil without a handle.
(defun importblockattributes:reference (row / handle)
  (if (setq handle (importblockattributes:handle row))
    (strcat handle "\t" (strcase (kora_cell_text (cond ((cdr (assoc "BLOCKNAME" row))) ("")))))))

;; -> a tree (see kora_tree) of the references that several rows name.
(defun importblockattributes:twice (rows)
  (kora_tree (vl-remove-if '(lambda (count) (= (cdr count) 1))
                           (kora_counted (vl-remove nil (mapcar 'importblockattributes:reference rows))))))

;; Counts into the variables of importblockattributes:apply, and lists there what became of a row.
(defun importblockattributes:take_row (row / handle entity data before kept)
  (setq handle (importblockattributes:handle row)
        entity (if handle (handent handle))
        data   (if entity (entget entity))
        before changed
        kept   locked)
  (cond
    ((not (and (= (kora_field data 0) "INSERT") (importblockattributes:is_of_block row data)))
     (setq missing (1+ missing))
     (importblockattributes:list_row "no block reference of row %1"))
    ((or (kora_tree_find twice (importblockattributes:reference row)) (not (importblockattributes:fits row handle)))
     (setq refused (1+ refused))
     (importblockattributes:list_row "of another drawing, with a changed handle or there twice, row %1"))
    (T
     (foreach column (kora_attribute_columns entity)
       (importblockattributes:take_text (cdr column) (cdr (assoc (car column) row)) (kora_is_locked data)))))
  (if (> changed before) (setq references (1+ references)))
  (importblockattributes:list_texts "done" (- changed before) "1 attribute changed" "%1 attributes changed")
  (importblockattributes:list_texts "skipped" (- locked kept) "1 attribute on locked layers" "%1 attributes on locked layers"))

;; A row that is left out, by the handle that it has.
(defun importblockattributes:list_row (words)
  (setq groups (cons (list "skipped" (kora_text words (list (cond (handle) ((kora_text "without a handle" nil))))) (list nil)) groups)))

(defun importblockattributes:list_texts (state count one several)
  (if (> count 0)
    (setq groups (cons (list state (kora_count count one several) (list entity)) groups))))

;; Without the column every block is right: the row's mark is there then.
(defun importblockattributes:is_of_block (row data / name)
  (setq name (cdr (assoc "BLOCKNAME" row)))
  (or (null name)
      (= (strcase (kora_block_name data)) (strcase (kora_cell_text name)))))

;; Whether the mark of a row is that of the handle and, where both are known, of the drawing.
(defun importblockattributes:fits (row handle / key)
  (setq key (kora_cell_text (cond ((cdr (assoc "ROW KEY" row))) (""))))
  (cond ((not (member "ROW KEY" headings)))
        ((/= (substr key 1 4) (kora_letter_mark handle)) nil)
        (T (or (= (substr key 5) "") (= mark "") (= (substr key 5) mark)))))

(defun importblockattributes:take_text (attribute cell is_locked / text)
  (setq text (if cell (kora_cell_text cell)))
  (cond ((or (null text) (= cell "<>") (kora_says_text (entget attribute) text)))
        ((or is_locked (kora_is_locked (entget attribute))) (setq locked (1+ locked)))
        ((kora_set_attribute attribute text) (setq changed (1+ changed)))))

(princ)
