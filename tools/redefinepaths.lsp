;;; menu: Redefine paths | REDEFINEPATHS | Changes the paths of the files that the drawing refers to | Sheets and files
;;;
;;; REDEFINEPATHS: the dialog shows the files of external references, images, text styles and remote texts and has their
;;; paths searched and replaced. What it gives back goes into the drawing where it differs. A path that was written with
;;; slashes only is so again, because the dialog shows all with backslashes.
;;;
;;; Names: of a reference its block's, of an image the one in the drawing, of a text style its own, with ", big font"
;;; behind it for its second font file. A remote text has its handle, or a number in a drawing without handles.
;;;
;;; In Lisp a file that the drawing refers to is a list (type name path entity group), the last two where its path is.

(defun c:redefinepaths (/ *error* kora:variables file files result)
  (kora_begin '(("CMDECHO" . 0)))
  (setq file  (kora_statefile "redefinepaths")
        files (redefinepaths:files))
  (if (null (kora_readstate file)) (kora_writestate file '(("modes" . "Xrefs^Images^Styles^Rtext"))))
  (if (setq result (kora_show 'Dlg_RedefinePaths (cons file (mapcar 'redefinepaths:entry files))))
    (redefinepaths:apply files result))
  (kora_end))

;; -> all files that the drawing refers to.
(defun redefinepaths:files ()
  (vl-remove-if '(lambda (one) (= (caddr one) ""))
                (append (redefinepaths:references) (redefinepaths:images) (redefinepaths:styles)
                        (redefinepaths:remote_texts))))

(defun redefinepaths:file (kind name entity group)
  (list kind name (cond ((kora_field (entget entity) group)) ("")) entity group))

(defun redefinepaths:references ()
  (mapcar '(lambda (name) (redefinepaths:file "Xref" name (tblobjname "BLOCK" name) 1))
          (vl-remove-if '(lambda (name) (= 0 (logand 12 (cond ((kora_field (tblsearch "BLOCK" name) 70)) (0)))))
                        (kora_table_names "BLOCK"))))

;; The dictionary of the images has their names.
(defun redefinepaths:images (/ root name files)
  (setq root (namedobjdict)
        root (if root (dictsearch root "ACAD_IMAGE_DICT")))
  (foreach field root
    (cond ((= (car field) 3) (setq name (cdr field)))
          ((and name (member (car field) '(350 360)))
           (if (and (= (type (cdr field)) 'ENAME) (entget (cdr field)))
             (setq files (cons (redefinepaths:file "Image" name (cdr field) 1) files)))
           (setq name nil))))
  (reverse files))

;; What a reference brought along is its own drawing's to change.
(defun redefinepaths:styles (/ style entity files)
  (setq style (tblnext "STYLE" T))
  (while style
    (if (not (or (= (kora_field style 2) "") (wcmatch (kora_field style 2) "*|*")))
      (foreach row '((3 "") (4 ", big font"))
        (setq files (cons (redefinepaths:file "TextStyle" (strcat (kora_field style 2) (cadr row))
                                              (tblobjname "STYLE" (kora_field style 2)) (car row))
                          files))))
    (setq style (tblnext "STYLE")))
  (reverse files))

;; A remote text can be an expression in place of a file.
(defun redefinepaths:remote_texts (/ number)
  (setq number 0)
  (mapcar '(lambda (entity)
             (setq number (1+ number))
             (redefinepaths:file "RemoteText" (cond ((kora_handle entity)) ((strcat "#" (itoa number)))) entity 1))
          (vl-remove-if '(lambda (entity) (/= 0 (logand 1 (cond ((kora_field (entget entity) 70)) (0)))))
                        (reverse (kora_selection_to_list (ssget "_X" '((0 . "RTEXT"))))))))

(defun redefinepaths:entry (file)
  (strcat (redefinepaths:key file) "^" (caddr file)))

;; What an entry begins with. The sign that divides its fields is a code in names.
(defun redefinepaths:key (file)
  (strcat (car file) "^" (kora_replace_all "\\U+005E" "^" (cadr file))))

;; Takes what the dialog gave back, entries as it got them, into the drawing.
(defun redefinepaths:apply (files result / tree entry changed locked failed groups)
  (setq tree    (redefinepaths:tree files)
        changed 0 locked 0 failed 0)
  (foreach text result
    (setq entry (kora_string_split text "^")
          files (cdr (kora_tree_find tree (strcat (car entry) "^" (cadr entry)))))
    (if files (redefinepaths:change files (kora_string_join (cddr entry) "^"))))
  (kora_results "REDEFINEPATHS" (reverse groups))
  (kora_alert_message (kora_text "%1 changed%2%3." (list (kora_number_of changed "path") (kora_also locked " on locked layers left as they were") (kora_also failed " could not be changed")))))

;; The files by type and name.
(defun redefinepaths:tree (files / sorted)
  (foreach file (vl-sort (mapcar '(lambda (file) (cons (redefinepaths:key file) file)) files)
                         '(lambda (a b) (< (car a) (car b))))
    (if (/= (car file) (caar sorted)) (setq sorted (cons file sorted))))
  (kora_tree (reverse sorted)))

(defun redefinepaths:change (file path / data)
  (setq data (entget (cadddr file)))
  (cond ((= path (vl-string-translate "/" "\\" (caddr file))))
        ((and (= (car file) "RemoteText") (kora_is_locked data))
         (setq locked (1+ locked))
         (redefinepaths:list "skipped" "on a locked layer"))
        ((redefinepaths:set file (redefinepaths:spelled path (caddr file)) data)
         (setq changed (1+ changed))
         (redefinepaths:list "done" (strcat (caddr file) " -> " (kora_field (entget (cadddr file)) (last file)))))
        (T
         (setq failed (1+ failed))
         (redefinepaths:list "skipped" (kora_text "could not be changed to %1" (list path))))))

;; Says what became of the path of file. Only remote texts are something to be seen.
(defun redefinepaths:list (state words)
  (setq groups (cons (list state
                           (strcat (car file) " " (cadr file) ": " (kora_text words nil))
                           (list (if (= (car file) "RemoteText") (cadddr file))))
                     groups)))

;; The new path with slashes where the old one has no others.
(defun redefinepaths:spelled (path old)
  (if (and (vl-string-search "/" old) (not (vl-string-search "\\" old)))
    (vl-string-translate "\\" "/" path)
    path))

;; The host finds a reference's file itself; everywhere else the path is a field. -> T when the path is another now.
(defun redefinepaths:set (file path data / group)
  (setq group (last file))
  (if (= (car file) "Xref")
    (command "_.-XREF" "_Path" (kora_literal (cadr file)) path)
    (entmod (kora_with_field data group path)))
  (= (kora_field (entget (cadddr file)) group) path))

(princ)
