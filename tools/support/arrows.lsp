;;; Arrow blocks of dimension styles: those that every drawing knows by name, and definitions of others as text.
;;;
;;; A definition is a line for the block, with its base point and how many of its entities are not in the file, and one
;;; for each entity, with group codes, kinds and values. No line has a blank, which stands as \U+0020; "|" is \U+007C:
;;;
;;;   DIMBLOCK=MyArrow;0,0,0;0
;;;   DIMBLOCKENTITY=0:s:LINE|100:s:AcDbEntity|8:s:0|100:s:AcDbLine|10:p:0,0,0|11:p:-1,0.5,0
;;;
;;; The kinds are s a string, i a whole number, r a number, p a point. A block stands behind those that it refers to.

;; The standard arrows at size 1, drawn to the left: L a line, C a circle, A an arc with angles in degrees, S a solid
;; of four corners, D a disk.
(setq kora:arrows
  '(("_Dot" (D 0.0 0.0 0.5) (L -0.5 0.0 -1.0 0.0))
    ("_DotSmall" (D 0.0 0.0 0.25))
    ("_DotBlank" (C 0.0 0.0 0.5) (L -0.5 0.0 -1.0 0.0))
    ("_Small" (C 0.0 0.0 0.25))
    ("_Origin" (C 0.0 0.0 0.5) (L 0.0 0.0 -1.0 0.0))
    ("_Origin2" (C 0.0 0.0 0.5) (C 0.0 0.0 0.25) (L -0.5 0.0 -1.0 0.0))
    ("_Open" (L 0.0 0.0 -1.0 0.1666667) (L 0.0 0.0 -1.0 -0.1666667) (L 0.0 0.0 -1.0 0.0))
    ("_Open90" (L 0.0 0.0 -0.5 0.5) (L 0.0 0.0 -0.5 -0.5) (L 0.0 0.0 -1.0 0.0))
    ("_Open30" (L 0.0 0.0 -1.0 0.2679492) (L 0.0 0.0 -1.0 -0.2679492) (L 0.0 0.0 -1.0 0.0))
    ("_Closed" (L 0.0 0.0 -1.0 0.1666667) (L -1.0 0.1666667 -1.0 -0.1666667) (L -1.0 -0.1666667 0.0 0.0)
     (L 0.0 0.0 -1.0 0.0))
    ("_ClosedBlank" (L 0.0 0.0 -1.0 0.1666667) (L -1.0 0.1666667 -1.0 -0.1666667) (L -1.0 -0.1666667 0.0 0.0))
    ("_None")
    ("_Oblique" (L -0.5 -0.5 0.5 0.5))
    ("_ArchTick" (S -0.5530330 -0.4469670 -0.4469670 -0.5530330 0.4469670 0.5530330 0.5530330 0.4469670))
    ("_BoxFilled" (S -0.5 -0.5 0.5 -0.5 -0.5 0.5 0.5 0.5) (L -0.5 0.0 -1.0 0.0))
    ("_BoxBlank" (L -0.5 -0.5 0.5 -0.5) (L 0.5 -0.5 0.5 0.5) (L 0.5 0.5 -0.5 0.5) (L -0.5 0.5 -0.5 -0.5)
     (L -0.5 0.0 -1.0 0.0))
    ("_DatumFilled" (S 0.0 0.5773503 -1.0 0.0 0.0 -0.5773503 0.0 -0.5773503))
    ("_DatumBlank" (L 0.0 0.5773503 -1.0 0.0) (L -1.0 0.0 0.0 -0.5773503) (L 0.0 -0.5773503 0.0 0.5773503))
    ("_Integral" (A 0.4448880 -0.0913346 0.4541667 102.0 167.0) (A -0.4448880 0.0913346 0.4541667 282.0 347.0))))

(defun kora:arrow_row (name)
  (vl-some '(lambda (row) (if (= (strcase (car row)) (strcase name)) row)) kora:arrows))

;; (kora_make_arrow name) -> T after making the block of a standard arrow; nil for another name.
(defun kora_make_arrow (name / row)
  (if (setq row (kora:arrow_row name))
    (kora:make_block (car row) '(0.0 0.0 0.0) (apply 'append (mapcar 'kora:arrow_entities (cdr row))))))

;; entmake's lists for a part of an arrow, in the colour of the dimension line.
(defun kora:arrow_entities (part / kind numbers)
  (setq kind    (car part)
        numbers (cdr part))
  (mapcar
    '(lambda (fields) (append (list (car fields) '(8 . "0") '(62 . 0)) (cdr fields)))
    (cond
      ((= kind 'L) (list (list '(0 . "LINE") (kora:arrow_point 10 numbers) (kora:arrow_point 11 (cddr numbers)))))
      ((= kind 'C) (list (list '(0 . "CIRCLE") (kora:arrow_point 10 numbers) (cons 40 (caddr numbers)))))
      ((= kind 'A)
       (list (list '(0 . "ARC") (kora:arrow_point 10 numbers) (cons 40 (caddr numbers))
                   (cons 50 (* pi (/ (nth 3 numbers) 180.0))) (cons 51 (* pi (/ (nth 4 numbers) 180.0))))))
      ((= kind 'S)
       (list (list '(0 . "SOLID") (kora:arrow_point 10 numbers) (kora:arrow_point 11 (cddr numbers))
                   (kora:arrow_point 12 (cddddr numbers)) (kora:arrow_point 13 (cddr (cddddr numbers))))))
      (T (kora:disk (caddr numbers))))))

(defun kora:arrow_point (code numbers) (list code (car numbers) (cadr numbers) 0.0))

;; A circle of half the radius, drawn as wide as the radius.
(defun kora:disk (radius)
  (append (list (list '(0 . "POLYLINE") '(66 . 1) '(70 . 1) (cons 40 radius) (cons 41 radius)))
          (mapcar '(lambda (x) (list '(0 . "VERTEX") (list 10 (* x radius) 0.0 0.0) '(42 . 1.0))) '(-0.5 0.5))
          (list (list '(0 . "SEQEND")))))

;; -> T after making the block of these entities; nil when it cannot be made.
(defun kora:make_block (name base entities)
  (entmake (list '(0 . "BLOCK") (cons 2 name) '(70 . 0) (cons 10 base)))
  (foreach entity entities (vl-catch-all-apply 'entmake (list entity)))
  (if (/= (type (vl-catch-all-apply 'entmake (list '((0 . "ENDBLK"))))) 'VL-CATCH-ALL-APPLY-ERROR)
    (if (tblobjname "BLOCK" name) T)))

;; What a definition can have, and what of it an early drawing can.
(setq kora:block_kinds
  (strcat (setq kora:early_kinds "3DFACE,ARC,ATTDEF,CIRCLE,INSERT,LINE,POINT,POLYLINE,SEQEND,SOLID,TEXT,TRACE,VERTEX")
          ",ELLIPSE,HATCH,LWPOLYLINE,SPLINE"))

;; (kora_block_lines names) -> the definitions of blocks that are no standard arrows, with those that they refer to.
(defun kora_block_lines (names / done lines)
  (foreach name names
    (if (null (kora:arrow_row name)) (kora:add_block name)))
  (reverse lines))

;; Puts a block into the lines of kora_block_lines, the last first. References to other drawings are none of its own.
(defun kora:add_block (name / block entities line left own)
  (setq block (tblsearch "BLOCK" name)
        left  0)
  (if (and block (not (member (strcase name) done)) (= 0 (logand 61 (kora_field block 70))))
    (progn
      (setq done     (cons (strcase name) done)
            entities (mapcar 'entget (kora_block_entities name)))
      (foreach data entities
        (if (= (kora_field data 0) "INSERT") (kora:add_block (kora_field data 2)))
        (if (setq line (kora:entity_line data))
          (setq own (cons line own))
          (setq left (1+ left))))
      (setq lines (append own (list (kora:block_line name (kora_field block 10) left)) lines)))))

(defun kora:block_line (name base left)
  (strcat "DIMBLOCK=" (kora:packed (kora_replace_all "\\U+003B" ";" name)) ";" (kora:point_text base) ";" (itoa left)))

;; -> nil for an entity that a definition cannot have: of another kind, with attributes, or with references by handle.
(defun kora:entity_line (data / fields)
  (setq fields (cond ((member '(100 . "AcDbEntity") data)) (data))
        fields (vl-remove-if '(lambda (field) (member (car field) '(-1 0 5 67 102 330 410))) fields))
  (if (and (wcmatch (kora_field data 0) kora:block_kinds)
           (not (and (= (kora_field data 0) "INSERT") (= (kora_field data 66) 1)))
           (not (vl-some '(lambda (field) (= (type (cdr field)) 'ENAME)) fields))
           (or (/= (kora_field data 0) "HATCH") (not (assoc 330 (cdr (member '(100 . "AcDbHatch") data))))))
    (strcat "DIMBLOCKENTITY="
            (kora_string_join (mapcar 'kora:field_text (cons (assoc 0 data) fields)) "|"))))

(defun kora:field_text (field / value)
  (setq value (cdr field))
  (strcat (itoa (car field))
          (cond ((= (type value) 'STR) (strcat ":s:" (kora:packed value)))
                ((= (type value) 'INT) (strcat ":i:" (itoa value)))
                ((= (type value) 'REAL) (strcat ":r:" (kora_real_text value)))
                (T (strcat ":p:" (kora:point_text value))))))

(defun kora:point_text (point) (kora_string_join (mapcar 'kora_real_text (mapcar 'float point)) ","))

;; Text without blanks, and without what means something in a line.
(defun kora:packed (text)
  (kora_replace_all "\\U+007C" "|" (kora_replace_all "\\U+0020" " " (kora:without_words text))))

;; (kora_make_blocks lines) makes the blocks of definitions that the drawing lacks; what they lack is said.
(defun kora_make_blocks (lines / block blocks)
  (foreach line lines
    (if (kora_starts_with line "DIMBLOCK=")
      (setq blocks (cons (list line) blocks))
      (if blocks (setq blocks (cons (cons line (car blocks)) (cdr blocks))))))
  (foreach block (reverse blocks)
    (setq block (reverse block))
    (kora:make_defined_block (kora_string_split (substr (car block) 10) ";") (cdr block))))

(defun kora:make_defined_block (header lines / name entities left)
  (setq name     (kora_with_characters (car header))
        entities (vl-remove nil (mapcar 'kora:entity_of lines))
        left     (+ (atoi (cond ((caddr header)) ("0"))) (- (length lines) (length entities))))
  (cond
    ((or (tblobjname "BLOCK" name) (not (snvalid name))))
    ((not (kora:make_block name (kora:point_of (cond ((cadr header)) (""))) entities))
     (kora_alert_message (kora_text "The block %1 could not be made." (list name))))
    ((> left 0)
     (kora_alert_message (kora_text "The block %1 lacks %2 that the file or this drawing cannot have."
                                    (list name (kora_count left "1 entity" "%1 entities")))))))

;; -> entmake's list, nil for a line that is none and for a kind that the drawing cannot have. Linetypes and text styles
;; that the drawing lacks are left out.
(defun kora:entity_of (line / fields)
  (setq fields (mapcar 'kora:field_of (kora_string_split (substr line 16) "|")))
  (if (and (not (member nil fields))
           (= (type (kora_field fields 0)) 'STR)
           (wcmatch (kora_field fields 0) (if (= (kora_file_version) "AC1009") kora:early_kinds kora:block_kinds)))
    (vl-remove-if '(lambda (field)
                     (or (and (= (car field) 6) (null (tblobjname "LTYPE" (cdr field))))
                         (and (= (car field) 7) (null (tblobjname "STYLE" (cdr field))))))
                  fields)))

(defun kora:field_of (text / parts code kind value)
  (setq parts (kora_string_split text ":")
        code  (distof (car parts) 2)
        kind  (cadr parts)
        value (if (cddr parts) (kora_string_join (cddr parts) ":")))
  (if (and code value (<= 0 code 1000))
    (cond ((= kind "s") (cons (fix code) (kora_with_characters value)))
          ((= kind "i") (cons (fix code) (atoi value)))
          ((= kind "r") (cons (fix code) (atof value)))
          ((= kind "p") (cons (fix code) (kora:point_of value))))))

;; Of a text that is no point the origin.
(defun kora:point_of (text / numbers)
  (setq numbers (mapcar 'atof (kora_string_split text ",")))
  (if (<= 2 (length numbers) 3) numbers '(0.0 0.0 0.0)))
