;;; menu: Export information | EXPORTINFO | Writes a problem report with what the program and the drawing are | Sheets and files
;;;
;;; EXPORTINFO: the dialog takes who reports what, shows what the tool found out about the program and the drawing, and
;;; writes both to a text file. The user sees all that goes into it, and can change it. The drawing stays as it is.

(defun c:exportinfo (/ *error* kora:variables path)
  ;; Before anything is set, so that the values are the user's.
  (setq path (kora_userfile "exportinfo.system"))
  (if (kora_write_lines path (append (exportinfo:lines) '("")))
    (progn
      (kora_begin '(("CMDECHO" . 0)))
      (kora_show 'Dlg_ExportInfo (list (kora_statefile "exportinfo") path))
      (vl-file-delete path)
      (kora_end))
    (kora_alert_message (kora_text "What the program is cannot be listed: %1 cannot be written." (list path))))
  (princ))

(defun exportinfo:lines ()
  (append '("PROGRAM")
          (exportinfo:variables '("PRODUCT" "PROGRAM" "VERSION" "PLATFORM" "LOCALE" "SCREENSIZE" "TEMPPREFIX" "LOGFILEPATH"
                                  "CMDECHO" "FILEDIA" "PICKFIRST" "OSMODE" "EXPERT" "SDI"))
          (list (exportinfo:line "LISP" (ver)) "" "DRAWING")
          (exportinfo:variables '("DWGNAME" "DWGPREFIX" "ACADVER" "DWGCODEPAGE" "DBMOD" "CTAB" "CLAYER" "TEXTSTYLE"
                                  "DIMSTYLE" "INSUNITS" "LUNITS" "LUPREC" "EXTMIN" "EXTMAX" "LIMMIN" "LIMMAX" "UCSORG"
                                  "HANDSEED"))
          (mapcar '(lambda (row) (exportinfo:line (cadr row) (itoa (length (kora_table_names (car row))))))
                  '(("LAYER" "Layers") ("LTYPE" "Linetypes") ("STYLE" "Text styles") ("DIMSTYLE" "Dimension styles")
                    ("BLOCK" "Blocks") ("APPID" "Applications")))
          '("" "ENTITIES")
          (exportinfo:entities)))

;; A line for each variable that the host has.
(defun exportinfo:variables (names)
  (mapcar '(lambda (name) (exportinfo:line name (vl-princ-to-string (getvar name))))
          (vl-remove-if-not 'getvar names)))

;; How many entities of each type the layouts have.
(defun exportinfo:entities ()
  (mapcar '(lambda (count) (exportinfo:line (car count) (itoa (cdr count))))
          (kora_counted (mapcar '(lambda (entity) (kora_field (entget entity) 0))
                                (kora_selection_to_list (ssget "_X"))))))

(defun exportinfo:line (name text)
  (while (< (strlen name) 18) (setq name (strcat name " ")))
  (strcat name " " text))

(princ)
