;;; menu: Convert simple notes | CONVERTSIMPLENOTES | Makes one paragraph of single-line texts | Texts
;;;
;;; CONVERTSIMPLENOTES: single-line texts are chosen; the dialog gives what of their look is kept and in which order they
;;; are taken. One MTEXT takes their place, on the layer of the first, turned with it, its top left corner where theirs
;;; was. Words are wrapped at the width that the texts had, or each text stays a line of its own.
;;;
;;; The paragraph has style, colour and height of the first text; what other texts have otherwise is said by formatting
;;; codes. What is not kept is the current style and height and the colour of the layer. Underlines, degree signs and
;;; the like stay. Texts in another plane than the first are left alone.

(setq convertsimplenotes:filter '((0 . "TEXT")))

(defun c:convertsimplenotes (/ *error* kora:variables notes file)
  (setq notes (kora_chosen convertsimplenotes:filter)
        file  (kora_statefile "convertsimplenotes"))
  (kora_begin '(("CMDECHO" . 0)))
  (if (and (setq notes (cond (notes) ((kora_choose "Select texts to make one: " convertsimplenotes:filter))))
           (kora_show 'Dlg_convertsimplesnotes (list file)))
    (convertsimplenotes:run notes (kora_readstate file)))
  (kora_end))

(defun convertsimplenotes:run (notes state / free used made)
  (setq free (mapcar 'entget (kora_unlocked notes))
        used (vl-remove-if-not '(lambda (data) (convertsimplenotes:is_beside data (car free))) free))
  (cond
    ((null used)
     (convertsimplenotes:list nil notes nil nil)
     (kora_done "Nothing was converted." (length notes)))
    ((setq made (entmakex (convertsimplenotes:paragraph (convertsimplenotes:sorted used state) state)))
     (foreach data used (entdel (kora_field data -1)))
     (convertsimplenotes:list made notes free used)
     (if (< (length used) (length free))
       (kora_alert_message (kora_text "%1 in another plane left alone." (list (kora_number_of (- (length free) (length used)) "text")))))
     (kora_done (kora_text "%1 made one paragraph." (list (kora_number_of (length used) "text"))) (- (length notes) (length free))))
    (T (kora_alert_message "The paragraph could not be made. The texts stay as they are."))))

;; What became of the notes: those of free are not on locked layers, those of used are in the paragraph.
(defun convertsimplenotes:list (made notes free used / unlocked)
  (setq unlocked (mapcar '(lambda (data) (kora_field data -1)) free))
  (kora_results "CONVERTSIMPLENOTES"
    (list (list "done" (kora_text "made of %1" (list (kora_number_of (length used) "text"))) (if made (list made)))
          (list "skipped" "in another plane" (kora_left_out (mapcar '(lambda (data) (kora_field data -1)) used) unlocked))
          (list "skipped" "on a locked layer" (kora_left_out unlocked notes)))))

;; Whether a text lies in the plane of the first.
(defun convertsimplenotes:is_beside (data first)
  (and (equal (kora_normal data) (kora_normal first) 1e-9)
       (equal (caddr (kora_text_point data)) (caddr (kora_text_point first)) 1e-6)))

(defun convertsimplenotes:sorted (notes state / turn rows index)
  (setq turn (cond ((kora_field (car notes) 50)) (0.0)) index 0)
  (foreach data notes
    (setq rows  (cons (list (convertsimplenotes:key data state turn) index data) rows)
          index (1+ index)))
  (mapcar 'caddr (vl-sort rows 'convertsimplenotes:before)))

;; A list of keys: numbers, or a text.
(defun convertsimplenotes:key (data state turn / point)
  (cond ((kora_state_is state "select_topdow")
         (setq point (kora_turned_back (kora_text_point data) turn))
         (list (- (cadr point)) (car point)))
        ((kora_state_is state "select_alfa") (list (strcase (kora_plain_text (kora_text_parts data)))))))

(defun convertsimplenotes:before (a b / keys others)
  (setq keys (car a) others (car b))
  (while (and keys (equal (car keys) (car others) 1e-8))
    (setq keys (cdr keys) others (cdr others)))
  (if keys (< (car keys) (car others)) (< (cadr a) (cadr b))))

;; -> entmake's list of the paragraph.
(defun convertsimplenotes:paragraph (notes state / first turn box wraps)
  (setq first (car notes)
        turn  (cond ((kora_field first 50)) (0.0))
        box   (convertsimplenotes:box notes turn)
        wraps (kora_state_is state "word_wrap"))
  (kora_with_content
    (append '((0 . "MTEXT") (100 . "AcDbEntity")) (kora_companion_fields first)
            (if (kora_state_is state "keepcolors") (convertsimplenotes:colour_fields first))
            (list '(100 . "AcDbMText") (cons 10 (trans (convertsimplenotes:corner first box turn) (kora_normal first) 0))
                  (cons 40 (convertsimplenotes:height first state))
                  (cons 41 (if wraps (- (car (cadr box)) (car (car box))) 0.0))
                  '(71 . 1) '(72 . 5) '(1 . "") (cons 7 (convertsimplenotes:style first state))
                  (cons 210 (kora_normal first))
                  (cons 11 (trans (list (cos turn) (sin turn) 0.0) (kora_normal first) 0 T))
                  '(73 . 1) '(44 . 1.0)))
    (kora_string_join (mapcar '(lambda (data) (convertsimplenotes:line data first state)) notes)
                      (if wraps " " "\\P"))))

;; -> (lower upper) of what the notes cover, seen along the first.
(defun convertsimplenotes:box (notes turn / points box)
  (foreach data notes
    (setq points (append (if (setq box (kora_text_box data))
                           (kora_box_points box (kora_corners (cadr box) (caddr box)))
                           (list (kora_text_point data)))
                         points)))
  (setq points (mapcar '(lambda (point) (kora_turned_back point turn)) points))
  (list (apply 'mapcar (cons 'min points)) (apply 'mapcar (cons 'max points))))

;; The top left corner in the first text's own coordinate system.
(defun convertsimplenotes:corner (first box turn)
  (kora_turned_back (list (car (car box)) (cadr (cadr box)) (caddr (kora_text_point first))) (- turn)))

(defun convertsimplenotes:style (first state)
  (if (kora_state_is state "keepfonts")
    (cond ((kora_field first 7)) ("Standard"))
    (getvar "TEXTSTYLE")))

(defun convertsimplenotes:height (first state / fixed)
  (cond ((kora_state_is state "keepsizes") (kora_field first 40))
        ((and (setq fixed (kora_field (tblsearch "STYLE" (convertsimplenotes:style first state)) 40)) (> fixed 0.0)) fixed)
        (T (getvar "TEXTSIZE"))))

;; What one text says as a line of the paragraph, in braces where it looks otherwise than the paragraph.
(defun convertsimplenotes:line (data first state / codes text)
  (setq codes (strcat (if (kora_state_is state "keepfonts") (convertsimplenotes:font_codes data first) "")
                      (if (kora_state_is state "keepcolors") (convertsimplenotes:colour_code data first) "")
                      (if (and (kora_state_is state "keepsizes")
                               (not (equal (kora_field data 40) (kora_field first 40) 1e-9)))
                        (strcat "\\H" (kora_number_text (kora_field data 40) 8) ";")
                        ""))
        text  (convertsimplenotes:text data))
  (if (and (= codes "") (not (vl-some '(lambda (part) (= (car part) 'CODE)) (kora_text_parts data))))
    text
    (strcat "{" codes text "}")))

;; The content with its switches as a paragraph has them.
(defun convertsimplenotes:text (data / on pieces switch)
  (foreach part (kora_text_parts data)
    (setq switch (if (= (car part) 'CODE) (strcase (chr (cond ((cadddr part)) (32)))))
          pieces (cons (cond ((= (car part) 'TEXT) (kora_escaped (vl-list->string (cdr part))))
                             ((null switch) (vl-list->string (cdr part)))
                             ((not (member switch '("U" "O" "K"))) "")
                             ((member switch on)
                              (setq on (vl-remove switch on))
                              (convertsimplenotes:switch switch T))
                             (T (setq on (cons switch on))
                                (convertsimplenotes:switch switch nil)))
                       pieces)))
  (apply 'strcat (reverse pieces)))

;; Lines under, over and through: U is L in a paragraph.
(defun convertsimplenotes:switch (letter off)
  (strcat "\\" (strcase (if (= letter "U") "L" letter) off)))

;; Codes for font, width and slant where they are not those of the first text's style, as the paragraph has them.
(defun convertsimplenotes:font_codes (data first / base style)
  (setq base  (tblsearch "STYLE" (cond ((kora_field first 7)) ("Standard")))
        style (cond ((kora_field data 7)) ("Standard")))
  (strcat (if (= (strcase style) (strcase (cond ((kora_field first 7)) ("Standard")))) "" (convertsimplenotes:font style))
          (convertsimplenotes:number_code "\\W" (kora_field data 41) (kora_field base 41) 1.0 1.0)
          (convertsimplenotes:number_code "\\Q" (kora_field data 51) (kora_field base 50) 0.0 (/ 180.0 pi))))

(defun convertsimplenotes:number_code (code own base usual factor)
  (setq own (cond (own) (usual)) base (cond (base) (usual)))
  (if (equal own base 1e-9) "" (strcat code (kora_number_text (* own factor) 6) ";")))

;; A style with a system font names the family in extended data, and whether it is bold or italic; others name a file.
(defun convertsimplenotes:font (style / data family flags)
  (setq data   (entget (tblobjname "STYLE" style) '("ACAD"))
        family (cdadr (assoc -3 data))
        flags  (cond ((kora_field family 1071)) (0)))
  (cond ((and (kora_field family 1000) (/= (kora_field family 1000) ""))
         (strcat "\\f" (kora_field family 1000) "|b" (if (/= 0 (logand 33554432 flags)) "1" "0")
                 "|i" (if (/= 0 (logand 16777216 flags)) "1" "0") "|c0|p0;"))
        ((wcmatch (strcase (kora_field data 3)) "*.TT[FC],*.OTF")
         (strcat "\\f" (vl-filename-base (kora_field data 3)) "|b0|i0|c0|p0;"))
        (T (strcat "\\F" (kora_field data 3) ";"))))

;; -> the colour groups of a text, none for the colour of the layer.
(defun convertsimplenotes:colour_fields (data)
  (vl-remove-if-not '(lambda (field) (member (car field) '(62 420 430))) data))

;; The code of a text's colour where it is not the paragraph's. The colour of another layer is named by its number; a
;; true colour has red in its lowest byte.
(defun convertsimplenotes:colour_code (data first / fields true)
  (setq fields (convertsimplenotes:colour_fields data)
        true   (kora_field fields 420))
  (if (and (null fields) (/= (strcase (kora_field data 8)) (strcase (kora_field first 8))))
    (setq fields (list (cons 62 (abs (kora_field (tblsearch "LAYER" (kora_field data 8)) 62))))))
  (cond ((equal fields (convertsimplenotes:colour_fields first)) "")
        (true (strcat "\\c" (itoa (logior (lsh (logand true 255) 16) (logand true 65280) (logand 255 (lsh true -16)))) ";"))
        (T (strcat "\\C" (itoa (cond ((kora_field fields 62)) (256))) ";"))))

(princ)
