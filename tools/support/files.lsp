;;; Text files of which one definition changes and every other byte stays: linetype and shape sources.
;;;
;;; In Lisp such a file is the list of the texts between its line feeds, as bytes: carriage returns, a byte-order mark
;;; and letters of whatever encoding are part of them, and behind a last line feed comes one more, empty text.

;; (kora_file_lines path) -> the lines of a file, nil when it cannot be read.
(defun kora_file_lines (path / copy handle line lines)
  ;; In a copy with one more letter the last line is there whether the file ends in a line feed or not.
  (setq copy (vl-filename-mktemp "kora.tmp"))
  (if (and copy (setq handle (open copy "w"))) (close handle))
  (if (and handle (vl-file-size path) (vl-file-copy path copy T))
    (progn
      (setq handle (open copy "a"))
      (princ "." handle)
      (close handle)
      (setq handle (open copy "r" "bytes"))
      (while (setq line (read-line handle)) (setq lines (cons line lines)))
      (close handle)
      (setq line (car lines)
            lines (reverse (cons (substr line 1 (1- (strlen line))) (cdr lines))))))
  (if copy (vl-file-delete copy))
  lines)

;; (kora_write_lines path lines) -> T; nil when the file cannot be written. It is then what it was before.
(defun kora_write_lines (path lines)
  (if (= (type file-put-lines) 'SUBR)
    (file-put-lines path lines)
    (kora:put_lines path lines)))

;; The same for hosts without such a function: the lines are written beside the file, read back and put in its place.
(defun kora:put_lines (path lines / beside old done)
  (setq beside (vl-filename-mktemp path))
  (if (and (or (null (vl-file-size path)) (kora:may_write path))
           ;; The copy hands on who may read and write the file.
           (or (null (vl-file-size path)) (vl-file-copy path beside))
           (kora:write_new beside lines)
           (equal (kora_file_lines beside) lines))
    (if (vl-file-size path)
      (progn
        (setq old (vl-filename-mktemp path))
        (if (vl-file-rename path old)
          (if (setq done (vl-file-rename beside path))
            (vl-file-delete old)
            (vl-file-rename old path))))
      (setq done (vl-file-rename beside path))))
  (if (not done) (vl-file-delete beside))
  done)

;; A file that the user protected would not resist being renamed.
(defun kora:may_write (path / handle)
  (if (setq handle (open path "a")) (progn (close handle) T)))

(defun kora:write_new (path lines / handle written closed)
  (if (setq handle (open path "w"))
    (progn
      ;; A disk that is full is an error of these functions.
      (setq written (vl-catch-all-apply 'kora:write_each (list lines handle))
            closed  (vl-catch-all-apply 'close (list handle)))
      (not (or (vl-catch-all-error-p written) (vl-catch-all-error-p closed))))))

;; (kora_write_file path writer) -> T when writer, a function of the open file, has written it; nil after a message when
;; it cannot be written, and nothing of it is left then. The names are the tools' own: writers may tell the values of others.
(defun kora_write_file (kora:path kora:writer / kora:handle kora:written kora:closed)
  (if (setq kora:handle (open kora:path "w"))
    (progn
      (setq kora:written (vl-catch-all-apply kora:writer (list kora:handle))
            kora:closed  (vl-catch-all-apply 'close (list kora:handle))
            kora:written (if (vl-catch-all-error-p kora:written) kora:written kora:closed))
      (cond ((null (vl-catch-all-error-p kora:written)) T)
            (T (vl-file-delete kora:path)
               (kora_refuse (vl-catch-all-error-message kora:written)))))))

(defun kora:write_each (lines handle)
  (while (cdr lines)
    (write-line (car lines) handle)
    (setq lines (cdr lines)))
  (princ (car lines) handle))

;; (kora_has_definitions lines) -> T when the lines can be a file of definitions: what comes first in it, blank lines and
;; comments aside, is a header, or it has nothing else. A file in two-byte letters is none.
(defun kora_has_definitions (lines)
  (if (= (ascii (strcat (car lines) " ")) 65279)
    (setq lines (cons (substr (car lines) 2) (cdr lines))))
  (while (and lines (kora:is_remark (car lines))) (setq lines (cdr lines)))
  (or (null lines) (= (substr (car lines) 1 1) "*")))

(defun kora:is_remark (line)
  (wcmatch (strcat (kora_string_trim line) ";") ";*"))

;; (kora_header_fields line) -> the fields of a header, the first without its "*"; nil for another line. The line's end
;; and a byte-order mark do not count.
(defun kora_header_fields (line)
  (setq line (kora:without_mark (vl-string-right-trim "\r" line)))
  (if (= (substr line 1 1) "*") (kora_string_split (substr line 2) ",")))

;; (kora_put_definition lines field name definition) -> the lines with the definition, a list of lines, in place of the
;; first one that has this name, in any mix of cases, in that field of its header; else with it at their end.
(defun kora_put_definition (lines field name definition / end before own behind)
  (setq end        (if (wcmatch (car lines) "*\r") "\r" "")
        name       (strcase name)
        behind     lines
        definition (mapcar '(lambda (line) (strcat line end)) definition))
  (while (and behind (/= (strcase (cond ((nth field (kora_header_fields (car behind)))) (""))) name))
    (setq before (cons (car behind) before)
          behind (cdr behind)))
  (if behind
    (progn
      (setq own    (list (car behind))
            behind (cdr behind))
      (if (= (ascii (car own)) 65279)
        (setq definition (cons (strcat (chr 65279) (car definition)) (cdr definition))))
      (while (and behind (/= (substr (car behind) 1 1) "*"))
        (setq own    (cons (car behind) own)
              behind (cdr behind)))
      ;; What stands before the next header tells of that one.
      (while (kora:is_remark (car own))
        (setq behind (cons (car own) behind)
              own    (cdr own)))
      (append (reverse before) definition behind))
    (append (reverse (if (= (car before) "") (cdr before) (cons (strcat (car before) end) (cdr before))))
            definition
            '(""))))

;; (kora_save_definition path field name definition) puts the definition into the file, which is made when it is not
;; there. -> T, nil after a message.
(defun kora_save_definition (path field name definition / lines)
  (setq lines (if (vl-file-size path) (kora_file_lines path) '("")))
  (cond
    ((null lines) (kora_refuse (kora_text "The file %1 cannot be read." (list path))))
    ((not (kora_has_definitions lines))
     (kora_refuse (kora_text "The file %1 does not look like a file of definitions. Nothing was written." (list path))))
    ((kora_write_lines path (kora_put_definition lines field name definition)) T)
    (T (kora_refuse (kora_text "The file %1 cannot be written. It is as it was before." (list path))))))

;; (kora_read_lines path) -> the lines of a text file of the tools, nil for a missing or empty one.
(defun kora_read_lines (path / handle line lines)
  (if (setq handle (open path "r"))
    (progn
      (while (setq line (read-line handle)) (setq lines (cons (vl-string-right-trim "\r" line) lines)))
      (close handle)
      (setq lines (reverse lines))
      (if lines (cons (kora:without_mark (car lines)) (cdr lines))))))
