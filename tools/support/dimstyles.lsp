;;; Dimension styles as text: what DIMSTYLEEXPORT writes and DIMSTYLEIMPORT reads.
;;;
;;;   DIMENSION_STYLE_NAME ISO-25
;;;   DIMFILE 1                        version of this form; the dialogs do not show a section's first line
;;;   DIMSCALE 1.0                     a variable and its value, to the end of the line
;;;   DIMBLK _Oblique                  an arrow block, nothing for the default arrow
;;;   DIMTXSTY Roman                   the text style, with what defines it:
;;;   DIMTXT_HEIGHT 0.0
;;;   DIMLT DASHED 27                  a linetype and how many characters define it, line ends of two included; a blank in
;;;                                    its name stands as \U+0020
;;;   *DASHED,dashes
;;;   A,0.5,-0.25
;;;   DIMANNO 1                        of annotative styles only
;;;   DIMBLOCK=...                     definitions of arrow blocks, lines without blanks; see support/arrows.lsp
;;;   END_OF_STYLE
;;;
;;; Readers that do not know the last two take DIMANNO for a variable and neither show nor use lines without blanks.
;;; Angles are radians. Lines end with "\r\n".

;; Group code, variable, and the value of a record that does not say it. Of two groups 70 the second is the variable.
(setq kora:dim_variables
  '((3 "DIMPOST" "") (4 "DIMAPOST" "") (40 "DIMSCALE" 1.0) (41 "DIMASZ" 0.18) (42 "DIMEXO" 0.0625)
    (43 "DIMDLI" 0.38) (44 "DIMEXE" 0.18) (45 "DIMRND" 0.0) (46 "DIMDLE" 0.0) (47 "DIMTP" 0.0) (48 "DIMTM" 0.0)
    (49 "DIMFXL" 1.0) (50 "DIMJOGANG" 0.7853981633974483) (69 "DIMTFILL" 0) (70 "DIMTFILLCLR" 0) (71 "DIMTOL" 0)
    (72 "DIMLIM" 0) (73 "DIMTIH" 1) (74 "DIMTOH" 1) (75 "DIMSE1" 0) (76 "DIMSE2" 0) (77 "DIMTAD" 0) (78 "DIMZIN" 0)
    (79 "DIMAZIN" 0) (90 "DIMARCSYM" 0) (140 "DIMTXT" 0.18) (141 "DIMCEN" 0.09) (142 "DIMTSZ" 0.0)
    (143 "DIMALTF" 25.4) (144 "DIMLFAC" 1.0) (145 "DIMTVP" 0.0) (146 "DIMTFAC" 1.0) (147 "DIMGAP" 0.09)
    (148 "DIMALTRND" 0.0) (170 "DIMALT" 0) (171 "DIMALTD" 2) (172 "DIMTOFL" 0) (173 "DIMSAH" 0) (174 "DIMTIX" 0)
    (175 "DIMSOXD" 0) (176 "DIMCLRD" 0) (177 "DIMCLRE" 0) (178 "DIMCLRT" 0) (179 "DIMADEC" 0) (270 "DIMUNIT" 2)
    (271 "DIMDEC" 4) (272 "DIMTDEC" 4) (273 "DIMALTU" 2) (274 "DIMALTTD" 2) (275 "DIMAUNIT" 0) (276 "DIMFRAC" 0)
    (277 "DIMLUNIT" 2) (278 "DIMDSEP" 46) (279 "DIMTMOVE" 0) (280 "DIMJUST" 0) (281 "DIMSD1" 0) (282 "DIMSD2" 0)
    (283 "DIMTOLJ" 1) (284 "DIMTZIN" 0) (285 "DIMALTZ" 0) (286 "DIMALTTZ" 0) (287 "DIMFIT" 3) (288 "DIMUPT" 0)
    (289 "DIMATFIT" 3) (290 "DIMFXLON" 0) (294 "DIMTXTDIRECTION" 0) (371 "DIMLWD" -2) (372 "DIMLWE" -2)))

;; Group code of the block's record, group code of its name in early versions, variable.
(setq kora:dim_arrows '((342 5 "DIMBLK") (343 6 "DIMBLK1") (344 7 "DIMBLK2") (341 nil "DIMLDRBLK")))

;; Group code of the linetype's record, word in the file, variable.
(setq kora:dim_linetypes '((345 "DIMLT" "DIMLTYPE") (346 "DIMEX1LT" "DIMLTEX1") (347 "DIMEX2LT" "DIMLTEX2")))

;; The definition of a text style: group code, word in the file, value of a record that does not say it. The last two
;; are the extended data of styles with a system font.
(setq kora:dim_textstyle
  '((70 "DIMTXT_FLAGS" 0) (40 "DIMTXT_HEIGHT" 0.0) (41 "DIMTXT_WIDTH" 1.0) (50 "DIMTXT_OBLIQUE" 0.0)
    (71 "DIMTXT_GENERATION" 0) (42 "DIMTXT_LASTHEIGHT" 0.2) (3 "DIMTXT_FONT" "txt") (4 "DIMTXT_BIGFONT" "")
    (1000 "DIMTXT_FAMILY" nil) (1071 "DIMTXT_PITCH" nil)))

;; (kora_is_annotative data) -> T for a record with the mark; data is of entget with the application AcadAnnotative.
(defun kora_is_annotative (data / numbers)
  (foreach field (cdr (assoc "AcadAnnotative" (kora_field data -3)))
    (if (= (car field) 1070) (setq numbers (cons (cdr field) numbers))))
  (if numbers (= (car numbers) 1)))

;; (kora_annotative is_marked) -> the extended data that marks a record as annotative, or takes the mark away.
(defun kora_annotative (is_marked)
  (regapp "AcadAnnotative")
  (list -3 (cons "AcadAnnotative"
                 (if is_marked
                   '((1000 . "AnnotativeData") (1002 . "{") (1070 . 1) (1070 . 1) (1002 . "}"))))))

;; (kora_table_names table) -> the names of a symbol table's entries.
(defun kora_table_names (table / entry names)
  (setq entry (tblnext table T))
  (while entry
    (setq names (cons (kora_field entry 2) names)
          entry (tblnext table)))
  (reverse names))

;; (kora_first_word text) -> text up to its first blank.
(defun kora_first_word (text)
  (car (kora_string_split text " ")))

;; (kora_behind_blank text) -> text behind its first blank, "" without one.
(defun kora_behind_blank (text / blank)
  (if (setq blank (vl-string-search " " text)) (substr text (+ blank 2)) ""))

;; (kora_value_text value) -> text that (kora_text_value) reads as the same value.
(defun kora_value_text (value)
  (cond ((null value) "")
        ((= (type value) 'STR) (kora:without_words value))
        ((= (type value) 'INT) (itoa value))
        (T (kora_real_text value))))

;; (kora_text_value text like) -> the value of the kind that like is; like itself where text is none, or is beyond what
;; a drawing holds.
(defun kora_text_value (text like / value)
  (cond ((= (type like) 'STR) (kora_with_characters text))
        ((null (setq value (distof text 1))) like)
        ((> (abs value) 1e99) like)
        ((= (type like) 'REAL) value)
        ((> (abs value) 32767) like)
        (T (fix value))))

;; (kora_real_text value) -> the shortest decimal text that reads as exactly this number.
(defun kora_real_text (value / digits)
  (setq digits 0)
  (while (and (< digits 17) (/= (atof (rtos value 2 digits)) value))
    (setq digits (1+ digits)))
  (if (< digits 17) (rtos value 2 digits) (rtos value 1 16)))

;; Words that mean something anywhere in a line. In a value their first character stands as \U+ and its code.
(defun kora:without_words (text)
  (foreach word '("DIMENSION_STYLE_NAME" "END_OF_STYLE" "DIMTXSTY" "DIMTXT_" "DIMLT " "DIMEX1LT " "DIMEX2LT ")
    (setq text (kora_replace_all (strcat "\\U+00" (if (= (ascii word) 68) "44" "45") (substr word 2)) word text)))
  (kora_replace_all "\\U+000A" "\n" (kora_replace_all "\\U+000D" "\r" text)))

;; (kora_with_characters text) -> text with the character for every \U+ and four hexadecimal digits.
(defun kora_with_characters (text / parts result code)
  (setq parts  (kora_string_split text "\\U+")
        result (list (car parts)))
  (foreach part (cdr parts)
    (setq code   (kora:hexadecimal (substr part 1 4))
          result (if (and code (> code 0))
                   (cons (substr part 5) (cons (chr code) result))
                   (cons part (cons "\\U+" result)))))
  (apply 'strcat (reverse result)))

;; -> the number that four hexadecimal digits are, nil for anything else.
(defun kora:hexadecimal (digits / place value)
  (setq value (if (= (strlen digits) 4) 0))
  (foreach digit (vl-string->list (strcase digits))
    (setq place (vl-string-position digit "0123456789ABCDEF")
          value (if (and value place) (+ (* 16 value) place))))
  value)

;; (kora_characters text) -> how many units of UTF-16 text has: what the file counts.
(defun kora_characters (text / count)
  (setq count 0)
  (foreach code (vl-string->list text) (setq count (+ count (if (> code 65535) 2 1))))
  count)

;; (kora_linetype_definition data) -> the lines that define a linetype, nil for one without dashes. data is of entget.
(defun kora_linetype_definition (data / parts)
  (foreach field data
    (cond ((= (car field) 49) (setq parts (cons (kora_real_text (cdr field)) parts)))
          ((and (= (car field) 74) (/= 0 (logand 6 (cdr field))))
           (setq parts (cons (kora:dash_sign (cdr field) (member field data)) parts)))))
  (if parts
    (list (kora:without_words (strcat "*" (kora_field data 2) "," (cond ((kora_field data 3)) (""))))
          (strcat "A," (kora:joined (reverse parts) ",")))))

(defun kora:joined (parts separator / result)
  (foreach part (cdr parts) (setq result (cons part (cons separator result))))
  (if parts (apply 'strcat (cons (car parts) (reverse result))) ""))

;; The text or shape on a dash, in brackets. fields begins with the dash's group 74.
(defun kora:dash_sign (flags fields / style own)
  (setq own (kora:dash_fields fields)
        style (if (= (type (kora_field own 340)) 'ENAME) (entget (kora_field own 340))))
  (strcat "["
          (if (= 0 (logand 2 flags))
            (strcat (itoa (cond ((kora_field own 75)) (0))) "," (cond ((kora_field style 3)) ("")))
            (strcat "\"" (kora_replace_all "\\U+0022" "\"" (kora:without_words (cond ((kora_field own 9)) ("")))) "\","
                    (cond ((kora_field style 2)) (""))))
          ",S=" (kora_real_text (cond ((kora_field own 46)) (1.0)))
          (if (= 0 (logand 1 flags)) ",R=" ",A=") (kora_real_text (cond ((kora_field own 50)) (0.0))) "r"
          ",X=" (kora_real_text (cond ((kora_field own 44)) (0.0)))
          ",Y=" (kora_real_text (cond ((kora_field own 45)) (0.0)))
          "]"))

;; The groups from one dash's 74 up to the next dash.
(defun kora:dash_fields (fields / own)
  (while (and fields (/= (caar fields) 49))
    (setq own    (cons (car fields) own)
          fields (cdr fields)))
  own)

;; (kora_linetype_fields lines) -> entmake's list for the linetype that lines define, nil when they define none. Styles
;; that it needs are made where the drawing lacks them.
(defun kora_linetype_fields (lines / header parts name dashes total)
  (setq header (car lines)
        parts  (if (cadr lines) (kora:pattern_parts (cadr lines)))
        name   (if (and header (= (substr header 1 1) "*")) (substr (car (kora_string_split header ",")) 2))
        total  0.0)
  (foreach part (cdr parts)
    (cond ((setq part (cond ((distof part 1)) ((= (substr part 1 1) "[") part)))
           (if (= (type part) 'REAL)
             (setq total  (+ total (abs part))
                   dashes (cons (list (cons 49 part) (cons 74 0)) dashes))
             (if dashes (setq dashes (cons (kora:signed_dash (car dashes) part) (cdr dashes))))))))
  (if (and name dashes)
    (append (list '(0 . "LTYPE") '(100 . "AcDbSymbolTableRecord") '(100 . "AcDbLinetypeTableRecord")
                  (cons 2 (kora_with_characters name)) '(70 . 0)
                  (cons 3 (kora_with_characters (substr header (+ (strlen name) 3)))) '(72 . 65)
                  (cons 73 (length dashes))
                  ;; Without the error of the sum, which is in the last digits.
                  (cons 40 (atof (rtos total 2 12))))
            (apply 'append (reverse dashes)))))

;; The parts of a pattern line between commas, brackets and quoted texts kept whole.
(defun kora:pattern_parts (text / quoted depth part parts)
  (setq depth 0)
  (foreach code (vl-string->list text)
    (cond ((= code 34) (setq quoted (not quoted)))
          (quoted)
          ((= code 91) (setq depth (1+ depth)))
          ((= code 93) (setq depth (1- depth))))
    (if (and (= code 44) (not quoted) (<= depth 0))
      (setq parts (cons (vl-list->string (reverse part)) parts) part nil)
      (setq part (cons code part))))
  (mapcar 'kora_string_trim (reverse (cons (vl-list->string (reverse part)) parts))))

;; The dash with the text or shape that brackets say; as it was when they say neither.
(defun kora:signed_dash (dash brackets / parts sign style flags key value)
  (setq parts (kora:pattern_parts (substr brackets 2 (- (strlen brackets) 2)))
        sign  (car parts)
        flags (cond ((= (substr sign 1 1) "\"") 2) ((distof sign 2) 4)))
  (if (setq style (cond ((null (cadr parts)) nil)
                        ((= flags 2) (kora:text_style_named (cadr parts)))
                        ((= flags 4) (kora:shape_style_of (cadr parts)))))
    (progn
      (setq dash (list (car dash) (cons 340 style)))
      (foreach part (cddr parts)
        (setq key   (strcase (substr part 1 2))
              value (atof (substr part 3)))
        (cond ((= key "S=") (setq dash (append dash (list (cons 46 value)))))
              ((member key '("R=" "A="))
               (if (= key "A=") (setq flags (1+ flags)))
               (setq dash (append dash (list (cons 50 (if (wcmatch (strcase part) "*R") value (* pi (/ value 180))))))))
              ((= key "X=") (setq dash (append dash (list (cons 44 value)))))
              ((= key "Y=") (setq dash (append dash (list (cons 45 value)))))))
      (append (list (car dash) (cons 74 flags) (cons 75 (if (= 0 (logand 4 flags)) 0 (atoi sign))))
              (cdr dash)
              (if (/= 0 (logand 2 flags))
                (list (cons 9 (kora_with_characters (substr sign 2 (- (strlen sign) 2))))))))
    dash))

;; -> the text style of that name, made with a plain font where the drawing lacks it; nil for a bad name.
(defun kora:text_style_named (name)
  (cond ((tblobjname "STYLE" name))
        ((snvalid name) (kora_make_textstyle name nil))))

;; -> the nameless style that stands for a shape file, made where neither the drawing's first one of that kind nor one
;; that a linetype uses does.
(defun kora:shape_style_of (font / styles)
  (setq styles (cons (tblobjname "STYLE" "") (apply 'append (mapcar 'kora:dash_styles (kora_table_names "LTYPE")))))
  (cond
    ((vl-some '(lambda (style) (if (and style (= (strcase (kora_field (entget style) 3)) (strcase font))) style)) styles))
    (T (entmakex (list '(0 . "STYLE") '(100 . "AcDbSymbolTableRecord") '(100 . "AcDbTextStyleTableRecord") '(2 . "")
                       '(70 . 1) (cons 3 font))))))

;; The nameless styles that a linetype's dashes refer to.
(defun kora:dash_styles (name / styles)
  (foreach field (entget (tblobjname "LTYPE" name))
    (if (and (= (car field) 340) (= (type (cdr field)) 'ENAME) (= (kora_field (entget (cdr field)) 2) ""))
      (setq styles (cons (cdr field) styles))))
  styles)

;; (kora_make_textstyle name definition) -> the new style's entity name, nil when it cannot be made. definition is a list of
;; (group code . value) with what it says other than the usual values.
(defun kora_make_textstyle (name definition)
  (entmakex (append (list '(0 . "STYLE") '(100 . "AcDbSymbolTableRecord") '(100 . "AcDbTextStyleTableRecord")
                          (cons 2 name))
                    (kora_textstyle_fields definition))))

;; (kora_textstyle_fields definition) -> all groups of a text style's definition, its system font as extended data.
(defun kora_textstyle_fields (definition / fields family)
  (foreach row kora:dim_textstyle
    (if (< (car row) 1000)
      (setq fields (cons (cons (car row) (cond ((kora_field definition (car row))) ((caddr row)))) fields))))
  (setq family (vl-remove-if-not '(lambda (field) (>= (car field) 1000)) definition))
  (append (reverse fields) (if family (list (list -3 (cons "ACAD" family))))))
