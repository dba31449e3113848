;;; Attributes of block references. Tags are compared in capitals.

;; (kora_attributes insert) -> the entity names of a reference's attributes.
(defun kora_attributes (insert / entity names)
  (if (= 1 (kora_field (entget insert) 66))
    (progn
      (setq entity (entnext insert))
      (while (and entity (= (kora_field (entget entity) 0) "ATTRIB"))
        (setq names  (cons entity names)
              entity (entnext entity)))))
  (reverse names))

;; (kora_attribute_tag data) -> the tag of an attribute or its definition.
(defun kora_attribute_tag (data) (strcase (cond ((kora_field data 2)) (""))))

;; (kora_block_name data) -> the name under which a user knows the block that a reference, data, is of; "" when it says
;; none.
(defun kora_block_name (data)
  (if (kora_field data 2) (kora_known_name (kora_field data 2)) ""))

;; (kora_attribute_columns insert) -> a list of (NAME . attribute) for the attributes of a reference, by which a table
;; knows them: the tag, for a second of the same tag TAG(2), and so on. No name is that of a column for something else.
(defun kora_attribute_columns (insert)
  (kora:columns (kora_attributes insert) (mapcar 'entget (kora_attributes insert))))

;; things with names made of the tags in data before them.
(defun kora:columns (things data / tag name number numbers taken)
  (setq taken '("" "HANDLE" "BLOCKNAME" "ROW KEY"))
  (mapcar '(lambda (thing one)
             (setq tag    (kora_attribute_tag one)
                   name   tag
                   number (cond ((cdr (assoc tag numbers))) (1)))
             (while (member name taken)
               (setq number (1+ number)
                     name   (strcat tag "(" (itoa number) ")")))
             (setq numbers (cons (cons tag number) numbers)
                   taken   (cons name taken))
             (cons name thing))
          things data))

;; (kora_letter_mark text) -> four letters that are hardly the same for another text.
(defun kora_letter_mark (text / sum mark)
  (setq sum 0 mark "")
  (foreach code (vl-string->list text) (setq sum (rem (+ (* sum 31) code) 456976)))
  (repeat 4
    (setq mark (strcat mark (chr (+ 65 (rem sum 26))))
          sum  (/ sum 26)))
  mark)

;; (kora_drawing_mark) -> four letters for this drawing and what is saved of it, "" when it does not say when it was made.
(defun kora_drawing_mark (/ made)
  (setq made (getvar "TDCREATE"))
  (if (and made (> made 0.0)) (kora_letter_mark (rtos made 2 6)) ""))

;; (kora_attribute_text data) -> the whole text of an attribute or its definition. One of several lines has them in a
;; paragraph that is embedded in it, and of this a line or all in its own text.
(defun kora_attribute_text (data / content)
  (if (setq content (kora:embedded_content data))
    (kora:with_breaks content "\\P" "\n")
    (cond ((kora_field data 1)) (""))))

;; (kora_says_text data text) -> T when the attribute says this text, of whatever kind the line ends are: files and
;; spreadsheets change these.
(defun kora_says_text (data text)
  (= (kora:with_line_feeds text) (kora:with_line_feeds (kora_attribute_text data))))

;; (kora_set_attribute attribute text) -> T when the attribute got this text now, nil when it had it already.
(defun kora_set_attribute (attribute text / data)
  (setq data (entget attribute))
  (if (not (kora_says_text data text))
    (if (entmod (kora:with_attribute_text data text)) T)))

;; The data with another text. The line ends are of the kind that was there.
(defun kora:with_attribute_text (data text / embedded own old)
  (setq old      (kora_attribute_text data)
        text     (kora:with_line_feeds text)
        embedded (if (kora:embedded_content data) (kora:embedded_fields data))
        own      (if embedded (reverse (cdr (member (car embedded) (reverse data)))) data))
  (cond (embedded
         (append (kora_with_field own 1 (kora:own_text (kora_field own 1) (kora:embedded_content data) old text))
                 (kora:with_pieces embedded (kora:with_breaks text "\n" "\\P"))))
        (T (kora_with_field own 1 (if (vl-string-search "\r\n" old) (kora_replace_all "\r\n" "\n" text) text)))))

;; What an attribute of several lines says itself: all of it, if it did before, else its first line without codes.
(defun kora:own_text (own content old text)
  (cond ((= own content) (kora:with_breaks text "\n" "\\P"))
        ((= own old) text)
        (T (kora_plain_text (kora_parts (car (kora_string_split text "\n")) T)))))

;; The fields of the paragraph in an attribute: of an embedded object, and before the drawings of 2018 of a record.
(defun kora:embedded_fields (data)
  (member (cond ((assoc 101 data)) ('(100 . "AcDbXrecord"))) data))

;; -> what that paragraph says, nil without one.
(defun kora:embedded_content (data / pieces)
  (foreach field (kora:embedded_fields data)
    (if (member (car field) '(1 3)) (setq pieces (cons (cdr field) pieces))))
  (if pieces (apply 'strcat (reverse pieces))))

;; The text of a paragraph with another sign between its lines, a code or a line feed.
(defun kora:with_breaks (text old new / codes)
  (cond ((not (vl-string-search old text)) text)
        ((= old "\n") (kora_replace_all new old text))
        (T
         (foreach part (kora_parts text T)
           (setq codes (append (reverse (if (equal part '(BREAK 92 80)) (vl-string->list new) (cdr part))) codes)))
         (vl-list->string (reverse codes)))))

(defun kora:with_line_feeds (text)
  (vl-string-translate "\r" "\n" (kora_replace_all "\n" "\r\n" text)))

;; (kora_attribute_definitions block) -> the data of the definitions of a block's attributes, without constant ones.
(defun kora_attribute_definitions (block)
  (vl-remove-if-not '(lambda (data)
                       (and (= (kora_field data 0) "ATTDEF")
                            (= 0 (logand 2 (cond ((kora_field data 70)) (0))))))
                    (mapcar 'entget (kora_block_entities block))))

;; (kora_sync_attributes insert nested) gives a reference the attributes that its block defines, as the block places them:
;; the values stay by tag, of equal tags by their order, what is new has its preset value, what the block does not define goes. A reference that gets
;; other attributes has to be made anew. -> T; the name of the new entity, while the old one still is there (see
;; kora_take_places); nil when it cannot be made, as for one that is nested, within a block definition.
(defun kora_sync_attributes (insert nested / data definitions attributes values)
  (setq data        (entget insert)
        definitions (kora_attribute_definitions (kora_field data 2))
        definitions (kora:columns definitions definitions)
        attributes  (kora_attribute_columns insert)
        values      (mapcar '(lambda (column) (cons (car column) (kora_field (entget (cdr column)) 1))) attributes))
  (cond
    ((equal (vl-sort (mapcar 'car values) '<) (vl-sort (mapcar 'car definitions) '<))
     (foreach column attributes (kora:place_attribute (cdr column) (cdr (assoc (car column) definitions))))
     T)
    ((not nested) (kora:insert_anew insert))))

;; Places an attribute of a reference as its definition says; its text stays.
(defun kora:place_attribute (attribute definition / old)
  (setq old (entget attribute))
  (foreach field (kora:attribute_fields definition data)
    (setq old (kora_with_field old (car field) (cdr field))))
  (entmod old))

;; Makes the reference again with the attributes of its block. -> its entity name, nil when it cannot be made.
(defun kora:insert_anew (insert / xdata base definition)
  (setq base  (entget insert '("*"))
        base  (vl-remove-if '(lambda (field) (= (car field) 66)) (kora_copy_data base))
        xdata (assoc -3 base)
        base  (vl-remove xdata base))
  (setq base (append base (if definitions '((66 . 1))) (if xdata (list xdata))))
  (if (null definitions)
    (entmakex base)
    (progn
      (entmake base)
      (foreach column definitions
        (setq definition (cdr column))
        (entmake (append (list '(0 . "ATTRIB")) (kora:attribute_fields definition data)
                         (list (cons 2 (kora_field definition 2))
                               (cons 1 (cond ((cdr (assoc (car column) values)))
                                             ((kora_field definition 1))
                                             (""))))
                         (if (assoc 410 data) (list (assoc 410 data)))
                         (if (assoc 67 data) (list (assoc 67 data))))))
      (entmakex (list '(0 . "SEQEND") (cons 8 (kora_field data 8)))))))

;; The fields that place an attribute of the definition in a reference, data. A mirrored reference has its attributes
;; backward or upside down.
(defun kora:attribute_fields (definition data / wide high turn fields)
  (setq wide   (cond ((kora_field data 41)) (1.0))
        high   (cond ((kora_field data 42)) (1.0))
        turn   (cond ((kora_field definition 50)) (0.0))
        fields (vl-remove-if-not '(lambda (field) (member (car field) '(6 7 8 51 62 70 72 73 74))) definition))
  (append fields
          (list (cons 10 (kora:in_reference (kora_field definition 10) data))
                (cons 11 (kora:in_reference (kora_field definition (if (kora:is_aligned definition) 11 10)) data))
                (cons 40 (* (abs high) (kora_field definition 40)))
                (cons 41 (* (abs (/ wide high)) (cond ((kora_field definition 41)) (1.0))))
                (cons 50 (+ (cond ((kora_field data 50)) (0.0))
                            (atan (* (if (< (* wide high) 0.0) -1.0 1.0) (abs high) (sin turn))
                                  (* (abs wide) (cos turn)))))
                (cons 71 (boole 6 (cond ((kora_field definition 71)) (0))
                                (+ (if (< wide 0.0) 2 0) (if (< high 0.0) 4 0))))
                (cons 210 (cond ((kora_field data 210)) ('(0.0 0.0 1.0)))))))

;; Whether the second point of a text places it: with any alignment but the left end on the line.
(defun kora:is_aligned (data)
  (and (kora_field data 11)
       (or (/= 0 (cond ((kora_field data 72)) (0))) (/= 0 (cond ((kora_field data 74)) (0))))))

;; Where a point of the block lies in the reference, in the reference's own coordinates.
(defun kora:in_reference (point data / base)
  (setq base  (kora:point3d (kora_field (tblsearch "BLOCK" (kora_field data 2)) 10))
        point (mapcar '(lambda (code place from) (* (cond ((kora_field data code)) (1.0)) (- place from)))
                      '(41 42 43) (kora:point3d point) base)
        base  (polar '(0.0 0.0) (+ (angle '(0.0 0.0) point) (cond ((kora_field data 50)) (0.0)))
                     (distance '(0.0 0.0) (list (car point) (cadr point)))))
  (mapcar '+ (kora_field data 10) (list (car base) (cadr base) (caddr point))))
