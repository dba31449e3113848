;;; menu: Import block attributes | IMPORTBLOCKATTRIBUTES | Takes texts of attributes from a table in a text file
;;;
;;; IMPORTBLOCKATTRIBUTES: the dialog shows the table, has texts in it replaced, and gives the rows that the user chose.
;;; A row is for the block reference whose handle it has, if that is one of the block that it names; each further cell is
;;; the text of the attribute that the column's heading names. "<>" stands where the block has no such attribute.
;;; Attributes on locked layers and of references on such stay as they are. EXPORTBLOCKATTRIBUTES writes such files.

(defun c:importblockattributes (/ *error* kora:variables file)
  (kora_begin '(("CMDECHO" . 0)))
  (setq file (kora_statefile "importblockattributes"))
  (if (Dlg_imporAttributes file)
    (importblockattributes:apply (kora_string_split (kora_state_value (kora_readstate file) "attributes") "^")))
  (kora_end))

;; Takes the dialog's rows into the drawing and tells how much that was; the first is the headings.
(defun importblockattributes:apply (rows / tags changed references missing locked)
  (setq tags    (mapcar 'strcase (kora_string_split (car rows) "\t"))
        changed 0 references 0 missing 0 locked 0)
  (if (and (= (car tags) "HANDLE") (cddr tags))
    (progn
      (foreach row (importblockattributes:whole_rows (cdr rows))
        (importblockattributes:take_row (kora_string_split row "\t")))
      (kora_alert_message
        (strcat (kora_number_of changed "attribute") " of " (kora_number_of references "block reference") " changed"
                (kora_also missing " without their block reference")
                (kora_also locked " on locked layers left as they were") ".")))
    (kora_alert_message "The file is no table of attributes: its headings are HANDLE, BLOCKNAME and tags.")))

;; The rows are divided by a sign that texts can have as well: what does not begin with a handle belongs to the row
;; before.
(defun importblockattributes:whole_rows (parts / quoted rows)
  (setq quoted (= (substr (cond ((car parts)) ("")) 1 1) "'"))
  (foreach part parts
    (setq rows (if (or (null rows) (importblockattributes:is_row part quoted))
                 (cons part rows)
                 (cons (strcat (car rows) "^" part) (cdr rows)))))
  (reverse rows))

(defun importblockattributes:is_row (part quoted / handle)
  (setq handle (importblockattributes:handle part))
  (and (= quoted (= (substr part 1 1) "'"))
       (/= handle "")
       (= (vl-string-trim "0123456789ABCDEF" (strcase handle)) "")))

;; The handle in front of a row, without the sign that keeps it a text in tables.
(defun importblockattributes:handle (part)
  (vl-string-left-trim "'" (car (kora_string_split part "\t"))))

;; Counts into the variables of importblockattributes:apply.
(defun importblockattributes:take_row (cells / entity data before)
  (setq entity (handent (importblockattributes:handle (car cells)))
        data   (if entity (entget entity))
        before changed)
  (cond
    ((not (and (= (kora_field data 0) "INSERT")
               (= (strcase (kora_known_name (kora_field data 2))) (strcase (cond ((cadr cells)) (""))))))
     (setq missing (1+ missing)))
    (T
     (foreach attribute (kora_attributes entity)
       (importblockattributes:take_text attribute (mapcar 'cons tags cells) (kora_is_locked data)))))
  (if (> changed before) (setq references (1+ references))))

;; cells is a list of (tag . text).
(defun importblockattributes:take_text (attribute cells is_locked / data text)
  (setq data (entget attribute)
        text (cdr (assoc (kora_attribute_tag data) (cddr cells))))
  (cond ((or (null text) (= text "<>") (= text (kora_field data 1))))
        ((or is_locked (kora_is_locked data)) (setq locked (1+ locked)))
        ((kora_set_attribute attribute text) (setq changed (1+ changed)))))

(princ)
