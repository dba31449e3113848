;;; menu: Import dimension style | DIMSTYLEIMPORT | Brings dimension styles from a file into the drawing | Dimension styles
;;;
;;; DIMSTYLEIMPORT: the dialog gives a file, the styles chosen from it, and whether dimension styles and text styles
;;; that the drawing has already are overwritten; without that they stay as they are. Linetypes that the drawing has
;;; stay always. A style's name in the dialog is its first word; all styles of the file that begin so are taken.
;;; support/dimstyles.lsp says what a file looks like.

(defun c:dimstyleimport (/ *error* kora:variables file state)
  (kora_begin '(("CMDECHO" . 0)))
  (setq file (kora_statefile "dimstyleimport"))
  (if (dimstyleimport:write_state file)
    (if (kora_show 'Dlg_ImDimensionStyle (list file))
      (dimstyleimport:import (setq state (kora_readstate file))
                             (dimstyleimport:read (kora_state_value state "txexport")
                                                  (cdr (kora_string_split (kora_state_value state "lststyles") ",")))))
    (kora_alert_message (kora_text "The file %1 could not be written." (list file))))
  (kora_end))

;; Tells the dialog what the drawing has, by first words as the dialog knows names; the file of the last time stays.
;; -> T, nil when the state file cannot be written.
(defun dimstyleimport:write_state (file / path)
  (setq path (kora_state_value (kora_readstate file) "txexport"))
  (kora_write_lines file
    (append (if (/= path "") (list (strcat "txexport=" path)))
            (dimstyleimport:name_lines "dimstyle" (kora_table_names "DIMSTYLE"))
            (dimstyleimport:name_lines "textstyle" (kora_table_names "STYLE"))
            '(""))))

(defun dimstyleimport:name_lines (key names / number)
  (setq number 0)
  (cons (strcat key "length=" (itoa (length names)))
        (mapcar '(lambda (name) (strcat key (itoa (setq number (1+ number))) "=" (kora_first_word name))) names)))

;; -> the sections of the file whose name begins with one of words; see dimstyleimport:section.
(defun dimstyleimport:read (path words / handle line sections)
  (setq words (mapcar 'strcase words))
  (if (setq handle (open path "r"))
    (progn
      (while (setq line (read-line handle))
        (setq line (kora:without_mark line))
        (if (and (vl-string-search "DIMENSION_STYLE_NAME" (kora_first_word line))
                 (member (strcase (kora_first_word (kora_behind_blank line))) words))
          (setq sections (cons (dimstyleimport:section (kora_behind_blank line) handle) sections))))
      (close handle))
    (kora_alert_message (kora_text "The file %1 could not be read." (list path))))
  (reverse sections))

;; Reads a section's body. -> (name variables linetypes blocks), nil in place of the variables when the file ends within
;; it. variables is a list of (variable . text), linetypes one of (word name lines of the definition), blocks one of
;; lines.
(defun dimstyleimport:section (name handle / line closed variables linetypes blocks)
  (while (and (not closed) (setq line (read-line handle)))
    (cond ((vl-string-search "END_OF_STYLE" line) (setq closed T))
          ((and (not (vl-string-search "DIMTXSTY" line)) (not (vl-string-search "DIMTXT_" line))
                (or (vl-string-search "DIMLT " line) (vl-string-search "DIMEX1LT " line)
                    (vl-string-search "DIMEX2LT " line)))
           (setq linetypes (cons (dimstyleimport:linetype line handle) linetypes)))
          ((wcmatch line "DIMBLOCK=*,DIMBLOCKENTITY=*") (setq blocks (cons line blocks)))
          (T (setq variables (cons (cons (kora_first_word line) (kora_behind_blank line)) variables)))))
  (list name (if closed (reverse variables)) (reverse linetypes) (reverse blocks)))

;; The name may have blanks; the count is behind the last one. The definition is taken by whole lines, so that a file
;; whose line ends have changed since is read as well.
(defun dimstyleimport:linetype (line handle / parts left lines text)
  (setq parts (reverse (cdr (kora_string_split line " ")))
        left  (max 0 (atoi (car parts))))
  (while (and left (setq text (read-line handle)))
    (if (> left 0) (setq lines (cons text lines)))
    (setq left (- left (kora_characters text) 2))
    (if (< left 0) (setq left nil)))
  (list (kora_first_word line) (kora:joined (reverse (cdr parts)) " ") (reverse lines)))

(defun dimstyleimport:import (state sections / texts dimensions count groups)
  (setq texts      (= (kora_state_value state "cbtextstyle") "TRUE")
        dimensions (= (kora_state_value state "cbdimensionstyle") "TRUE")
        count      0)
  (foreach section sections
    (if (dimstyleimport:style section texts dimensions)
      (setq count  (1+ count)
            groups (cons (list "done" (kora_text "%1: imported" (list (car section))) '(nil)) groups))))
  (kora_results "DIMSTYLEIMPORT" (reverse groups))
  (kora_alert_message (kora_count count "1 dimension style imported." "%1 dimension styles imported.")))

;; Says why a style is not imported, in a message and in the list of dimstyleimport:import. -> nil.
(defun dimstyleimport:leave (name why message)
  (setq groups (cons (list "skipped" (strcat name ": " (kora_text why nil)) '(nil)) groups))
  (kora_alert_message message)
  nil)

;; Makes or overwrites one style. -> T, nil after a message when the style stays as it was.
(defun dimstyleimport:style (section texts dimensions / name existing fields left)
  (setq name     (car section)
        existing (tblobjname "DIMSTYLE" name))
  (cond
    ((null (cadr section))
     (dimstyleimport:leave name "cut off in the file" (kora_text "The style %1 is cut off in the file." (list name))))
    ((not (snvalid name))
     (dimstyleimport:leave name "not a name of a style" (kora_text "%1 cannot be the name of a dimension style." (list name))))
    ((and existing (not dimensions))
     (if texts (dimstyleimport:overwrite_text_style (cadr section)))
     (dimstyleimport:leave name "exists already" (kora_text "The style %1 exists already and stays as it is." (list name))))
    ((progn
       (setq fields (dimstyleimport:fields section texts))
       (if existing
         (entmod (dimstyleimport:changed (entget existing) (dimstyleimport:marked fields section existing)))
         (entmake (append (list '(0 . "DIMSTYLE") '(100 . "AcDbSymbolTableRecord") '(100 . "AcDbDimStyleTableRecord")
                                (cons 2 name) '(70 . 0))
                          (dimstyleimport:marked fields section nil)))))
     (dimstyleimport:say_left name fields)
     T)
    (T (dimstyleimport:leave name "could not be made" (kora_text "The style %1 could not be made." (list name))))))

;; fields with the annotative mark that the file says, or that an existing style loses.
(defun dimstyleimport:marked (fields section existing / is_marked)
  (setq is_marked (= (kora_field (cadr section) "DIMANNO") "1"))
  (if (or is_marked (and existing (kora_is_annotative (entget existing '("AcadAnnotative")))))
    (append fields (list (kora_annotative is_marked)))
    fields))

;; Says what of fields the drawing's version has no groups for, unless it says the usual. left has the variables that
;; were not tried.
(defun dimstyleimport:say_left (name fields / made row)
  (setq made (entget (tblobjname "DIMSTYLE" name)))
  (foreach field fields
    (if (not (assoc (car field) made))
      (cond ((setq row (assoc (car field) kora:dim_variables))
             (if (not (equal (cdr field) (caddr row) 1e-12)) (setq left (cons (cadr row) left))))
            ((setq row (assoc (car field) kora:dim_arrows)) (setq left (cons (caddr row) left)))
            ((= (car field) 340) (setq left (cons "DIMTXSTY" left))))))
  (if left
    (kora_alert_message (kora_text "The style %1 does not say what a drawing of this version has no place for: %2." (list name (kora_string_join (reverse left) ", "))))))

;; -> the groups of a dimension style's record, DIMTXT and DIMTXSTY as well; what they refer to is made.
(defun dimstyleimport:fields (section texts / variables value fields)
  (setq variables (dimstyleimport:converted (cadr section)))
  (kora_make_blocks (cadddr section))
  (foreach row kora:dim_variables
    (if (setq value (assoc (cadr row) variables))
      (setq fields (cons (cons (car row) (kora_text_value (cdr value) (caddr row))) fields))))
  (append (reverse fields)
          (dimstyleimport:reference 340 (dimstyleimport:text_style variables texts))
          (apply 'append (mapcar '(lambda (row) (dimstyleimport:arrow row (assoc (caddr row) variables)))
                                 kora:dim_arrows))
          (apply 'append (mapcar '(lambda (row) (dimstyleimport:linetype_reference row (caddr section)))
                                 kora:dim_linetypes))))

;; Where text and arrows go, and the form of lengths, were said by one variable each up to a version, by two each since
;; then. -> the variables as the drawing's version has them.
(defun dimstyleimport:converted (variables)
  (cond
    ((>= (kora_file_version) "AC1015") (dimstyleimport:parted (dimstyleimport:parted variables T) nil))
    ((= (kora_file_version) "AC1009") variables)
    (T (dimstyleimport:joined (dimstyleimport:joined variables T) nil))))

;; Old variable, the two new ones, and rows (old value, the new values), first of lengths, then of fitting.
(setq dimstyleimport:units
  '("DIMUNIT" "DIMLUNIT" "DIMFRAC" ("1" "1" "0") ("2" "2" "0") ("3" "3" "0") ("4" "4" "0") ("5" "5" "0") ("6" "4" "2")
    ("7" "5" "2") ("8" "6" "0")))
(setq dimstyleimport:fits
  '("DIMFIT" "DIMATFIT" "DIMTMOVE" ("0" "0" "0") ("1" "1" "0") ("2" "2" "0") ("3" "3" "0") ("4" "3" "1") ("5" "3" "2")))

(defun dimstyleimport:parted (variables is_unit / table row)
  (setq table (if is_unit dimstyleimport:units dimstyleimport:fits)
        row   (assoc (kora_field variables (car table)) (cdddr table)))
  (if (and row (not (assoc (cadr table) variables)))
    (append (vl-remove (assoc (car table) variables) variables)
            (list (cons (cadr table) (cadr row)))
            (if (not (assoc (caddr table) variables)) (list (cons (caddr table) (caddr row)))))
    variables))

;; Both new values make the old one; where the second says what it cannot, the first alone does.
(defun dimstyleimport:joined (variables is_unit / table first second row)
  (setq table  (if is_unit dimstyleimport:units dimstyleimport:fits)
        first  (cond ((kora_field variables (cadr table))) ((if is_unit "2" "3")))
        second (cond ((kora_field variables (caddr table))) ("0"))
        row    (vl-some '(lambda (row) (if (equal (cdr row) (list first second)) row)) (cdddr table)))
  (cond
    ((or (assoc (car table) variables) (not (or (assoc (cadr table) variables) (assoc (caddr table) variables))))
     variables)
    (row (append (vl-remove-if '(lambda (variable) (member (car variable) (list (cadr table) (caddr table)))) variables)
                 (list (cons (car table) (car row)))))
    ((setq row (vl-some '(lambda (row) (if (= (cadr row) first) row)) (cdddr table)))
     (append (vl-remove (assoc (cadr table) variables) variables) (list (cons (car table) (car row)))))
    (variables)))

(defun dimstyleimport:reference (code entity)
  (if entity (list (cons code entity))))

;; The group for an arrow: the block's record, in early versions its name. A standard arrow is made; none for another
;; that the drawing lacks.
(defun dimstyleimport:arrow (row variable / name block record)
  (setq name (if variable (kora_with_characters (cdr variable)) ""))
  (if (and (/= name "") (null (tblobjname "BLOCK" name))) (kora_make_arrow name))
  (cond ((= name "") nil)
        ((and (null (cadr row)) (< (kora_file_version) "AC1015")) (setq left (cons (caddr row) left)) nil)
        ((null (setq block (tblobjname "BLOCK" name)))
         (kora_alert_message (kora_text "The drawing has no block %1 for %2, the usual arrow is used." (list name (caddr row))))
         nil)
        ((and (>= (kora_file_version) "AC1015") (setq record (kora_field (entget block) 330))) (list (cons (car row) record)))
        ((cadr row) (list (cons (cadr row) name)))))

;; The group for a linetype, which is made where the drawing lacks it.
(defun dimstyleimport:linetype_reference (row linetypes / found name)
  (foreach linetype linetypes
    (if (= (car linetype) (cadr row)) (setq found linetype)))
  (setq name (if found (kora_with_characters (cadr found))))
  (cond ((null found) nil)
        ((< (kora_file_version) "AC1021") (setq left (cons (caddr row) left)) nil)
        ((tblobjname "LTYPE" name) (list (cons (car row) (tblobjname "LTYPE" name))))
        ((if (snvalid name) (dimstyleimport:make_linetype (car row) name (caddr found))))
        (T (kora_alert_message (kora_text "The linetype %1 has no definition in the file." (list name))) nil)))

;; -> the linetype's group after making it, nil when the definition is none.
(defun dimstyleimport:make_linetype (code name lines / data entity)
  (if (and (setq data (kora_linetype_fields lines))
           (setq entity (entmakex (kora_with_field data 2 name))))
    (list (cons code entity))))

;; -> the entity name of the text style that variables name, nil when they name none. It is made where the drawing lacks
;; it, and gets the file's definition where it may be overwritten.
(defun dimstyleimport:text_style (variables overwrite / name definition style)
  (setq name       (assoc "DIMTXSTY" variables)
        name       (if name (kora_with_characters (cdr name)) "")
        definition (dimstyleimport:text_definition variables)
        style      (if (/= name "") (tblobjname "STYLE" name)))
  (cond ((= name "") nil)
        (style (if (and overwrite definition) (dimstyleimport:change_text_style style definition))
               style)
        ((not (snvalid name)) (kora_alert_message (kora_text "%1 cannot be the name of a text style." (list name))) nil)
        (T (if (null definition)
             (kora_alert_message (kora_text "The text style %1 is not defined in the file and gets a plain font." (list name))))
           (kora_make_textstyle name definition))))

;; Of a dimension style that stays only the text style is taken, where the drawing has it.
(defun dimstyleimport:overwrite_text_style (variables / name)
  (setq name (assoc "DIMTXSTY" variables))
  (if (and name (/= (cdr name) "") (tblobjname "STYLE" (kora_with_characters (cdr name))))
    (dimstyleimport:text_style variables T)))

;; -> list of (group code . value) of the lines that define the text style.
(defun dimstyleimport:text_definition (variables / value definition)
  (foreach row kora:dim_textstyle
    (if (setq value (assoc (cadr row) variables))
      (setq definition
        (cons (cons (car row)
                    (if (= (car row) 1071)
                      (fix (max -2147483647.0 (min 2147483647.0 (atof (cdr value)))))
                      (kora_text_value (cdr value) (cond ((caddr row)) ("")))))
              definition))))
  (reverse definition))

;; A system font that the definition lacks goes.
(defun dimstyleimport:change_text_style (style definition / fields)
  (setq fields (kora_textstyle_fields definition))
  (if (null (assoc -3 fields)) (setq fields (append fields '((-3 ("ACAD"))))))
  (entmod (cons (cons -1 style) fields)))

;; -> data, the list of an existing style, with fields. Variables that fields lack get their usual values.
(defun dimstyleimport:changed (data fields / flags result instead)
  (foreach field data
    (cond ((and (= (car field) 70) (not flags)) (setq flags T))
          ((setq instead (assoc (car field) fields)) (setq fields (vl-remove instead fields) field instead))
          (T (setq field (dimstyleimport:usual field))))
    (setq result (cons field result)))
  (append (reverse result) fields))

;; A field of an existing style with the value of a style that does not say it.
(defun dimstyleimport:usual (field / row)
  (cond ((setq row (assoc (car field) kora:dim_variables)) (cons (car row) (caddr row)))
        ((assoc (car field) kora:dim_arrows) (cons (car field) "0"))
        ((and (member (car field) '(5 6 7)) (= (type (cdr field)) 'STR)) (cons (car field) ""))
        ((and (assoc (car field) kora:dim_linetypes) (tblobjname "LTYPE" "ByBlock"))
         (cons (car field) (tblobjname "LTYPE" "ByBlock")))
        (field)))

(princ)
