;;; menu: Merge sheets | MERGESHEETS | Makes one drawing of the sheets of several | Sheets and files
;;;
;;; MERGESHEETS: offers the sheets of the drawing on which something is drawn, and those of drawing files that are added
;;; before, one by one or by their folder. In the dialog they are chosen, put in order and named. They become the last
;;; tabs of this drawing, or the tabs of a new one, with their blocks, layers, styles, dictionaries and groups; the model
;;; spaces come to stand beside each other, and the viewports look where theirs went. A sheet of this drawing that stays in
;;; it gets its new name. The drawings that sheets come from are only read.
;;;
;;; A file with several sheets gives them all: each is called as the file in the dialog, and its own name behind. Where
;;; drawings have different definitions of one name (layers, linetypes, styles, blocks), the user says whether that of the
;;; target counts for all or the others get the name of their file and "$" in front.

(defun c:mergesheets (/ *error* kora:variables entries state target sheets groups)
  (kora_begin '(("CMDECHO" . 0)))
  (cond
    ((null merge-sheets) (kora_refuse "This program cannot merge sheets."))
    ((null (setq entries (append (mergesheets:used (drawing-sheets)) (mergesheets:ask_files))))
     (kora_refuse "There are no sheets to merge."))
    ((null (setq state (mergesheets:ask entries))) nil)
    ((setq target (if (kora_state_is state "tonew") (kora_state_value state "targetfile"))
           sheets (mergesheets:named (mergesheets:chosen entries state) state target))
     (mergesheets:run target sheets)))
  (kora_end))

;; -> the names of the sheets on which something is drawn, of a list as drawing-sheets gives it.
(defun mergesheets:used (sheets)
  (mapcar 'car (vl-remove-if-not 'cdr sheets)))

;; -> the paths of drawing files that the user adds, this drawing left out, each once.
(defun mergesheets:ask_files (/ answer paths)
  (while (progn
           (kora_initget "File foLder")
           (setq answer (getkword (kora_text "\nAdd the sheets of a [File/foLder] or <go on>: " nil))))
    (foreach path (if (= answer "File")
                    (list (getfiled (kora_text "Select a drawing" nil) (getvar "DWGPREFIX") "dxf;dwg" 0))
                    (mergesheets:folder))
      (if (and path (not (mergesheets:is_own path)) (not (member path paths)))
        (setq paths (cons path paths)))))
  (reverse paths))

;; -> the paths of the drawing files in a folder.
(defun mergesheets:folder (/ folder files)
  (setq folder (getstring T (kora_text "\nFolder of drawings <%1>: " (list (getvar "DWGPREFIX"))))
        folder (vl-string-right-trim "/" (vl-string-translate "\\" "/" (if (= folder "") (getvar "DWGPREFIX") folder)))
        files  (vl-remove-if-not '(lambda (name) (wcmatch (strcase name) "*.DXF,*.DWG")) (vl-directory-files folder nil 1)))
  (if (null files) (kora_refuse (kora_text "There are no drawings in %1." (list folder))))
  (mapcar '(lambda (name) (strcat folder "/" name)) (vl-sort files '<)))

(defun mergesheets:is_own (path)
  (= (strcase (vl-string-translate "\\" "/" path))
     (strcase (vl-string-translate "\\" "/" (strcat (getvar "DWGPREFIX") (getvar "DWGNAME"))))))

;; -> the state that the dialog left, nil when it was cancelled.
(defun mergesheets:ask (entries / file)
  (setq file (kora_statefile "mergesheets"))
  (if (kora_show 'Dlg_MergeSheets (cons file entries)) (kora_readstate file)))

;; -> a list of (entry . new name) in the order of the dialog; nil after a message.
(defun mergesheets:chosen (entries state / numbers names)
  (setq numbers (vl-remove "" (kora_string_split (kora_state_value state "sheetnumbers") "^"))
        names   (reverse (cdr (reverse (kora_string_split (kora_state_value state "newnames") "^")))))
  (if (= (length numbers) (length names))
    (mapcar '(lambda (number name) (cons (nth (1- (atoi number)) entries) name)) numbers names)
    (kora_refuse "A sheet with \"^\" in its name cannot be merged.")))

;; -> the sheets as merge-sheets wants them, with names that the target does not have; nil after a message.
(defun mergesheets:named (chosen state target / taken sheets name)
  (setq sheets (apply 'append (mapcar 'mergesheets:sheets_of chosen)))
  (if (null target)
    (setq taken (vl-remove-if '(lambda (name) (assoc name chosen)) (mapcar 'car (drawing-sheets)))))
  (setq taken (mapcar 'strcase taken))
  (mapcar '(lambda (sheet)
             (setq name  (mergesheets:free_name (caddr sheet) taken state)
                   taken (cons (strcase name) taken))
             (list (car sheet) (cadr sheet) name))
          sheets))

;; -> the sheets of an entry: itself, or those of the file that it names.
(defun mergesheets:sheets_of (entry / sheets used)
  (cond
    ((not (wcmatch (strcase (car entry)) "*.DXF,*.DWG")) (list (list nil (car entry) (cdr entry))))
    ((= (type (setq sheets (drawing-sheets (car entry)))) 'STR)
     (mergesheets:leave (kora_text "%1 is left out: %2" (list (car entry) sheets))))
    ((null (setq used (mergesheets:used sheets)))
     (mergesheets:leave (kora_text "%1 is left out: nothing is drawn on its sheets." (list (car entry)))))
    ((cdr used)
     (mapcar '(lambda (sheet) (list (car entry) sheet (strcat (cdr entry) " " sheet))) used))
    (T (list (list (car entry) (car used) (cdr entry))))))

;; Says why a file gives no sheet, and keeps it for the list in groups of c:mergesheets. -> nil.
(defun mergesheets:leave (why)
  (setq groups (cons (list "skipped" why '(nil)) groups))
  (kora_refuse why))

;; -> the name, with a number behind where another sheet has it and the user does not give one.
(defun mergesheets:free_name (name taken state / number free typed)
  (setq free name)
  (if (and (member (strcase name) taken) (not (kora_state_is state "numberequal")))
    (progn
      (setq typed (getstring T (kora_text "\nThere is a sheet %1 already. New name <%2>: " (list name (mergesheets:numbered name taken)))))
      (if (and (/= typed "") (snvalid typed)) (setq free typed))))
  (mergesheets:numbered free taken))

(defun mergesheets:numbered (name taken / number free)
  (setq number 1
        free   name)
  (while (member (strcase free) taken)
    (setq number (1+ number)
          free   (strcat name " (" (itoa number) ")")))
  free)

(defun mergesheets:run (target sheets / clashes prefixed outcome files)
  (setq clashes (merge-clashes target sheets))
  (cond
    ((= (type clashes) 'STR) (mergesheets:failed clashes))
    ((= "Cancel" (setq prefixed (if clashes (mergesheets:ask_clashes clashes)))) nil)
    ((= (type (setq outcome (merge-sheets target sheets (= prefixed "Prefix")))) 'STR) (mergesheets:failed outcome))
    (T
     (foreach sheet sheets
       (if (not (member (car sheet) files)) (setq files (cons (car sheet) files))))
     (kora_results "MERGESHEETS" (append (mapcar 'mergesheets:merged sheets) (reverse groups)))
     (kora_alert_message
       (kora_text (if target "%1 of %2 merged into %3%4." "%1 of %2 merged%4.")
                  (list (kora_number_of (length sheets) "sheet") (kora_number_of (length files) "drawing") (cond (target) (""))
                        (kora_also outcome (if (= outcome 1) " entity left out" " entities left out"))))))))

;; -> the group of kora_results for a sheet, as merge-sheets wants it.
(defun mergesheets:merged (sheet)
  (list "done" (strcat (if (car sheet) (strcat (car sheet) " ") "") (cadr sheet) " -> " (caddr sheet)) '(nil)))

(defun mergesheets:failed (reason)
  (kora_refuse (kora_text "Nothing was merged: %1" (list reason))))

;; Names what the drawings understand differently. -> "Prefix", "Keep" or "Cancel".
(defun mergesheets:ask_clashes (clashes / count)
  (setq count 0)
  (foreach clash clashes
    (setq count (1+ count))
    (if (<= count 10)
      (kora_alert_message
        (kora_text "%1 has another %2 %3."
                   (list (cond ((car clash)) ((kora_text "This drawing" nil))) (mergesheets:noun (cadr clash)) (caddr clash))))))
  (if (> count 10) (kora_alert_message (kora_text "... and %1 more." (list (itoa (- count 10))))))
  (kora_initget "Prefix Keep Cancel")
  (cond ((getkword (kora_text "\nGive these the name of their file as a prefix, or keep those of the target? [Prefix/Keep/Cancel] <Prefix>: " nil)))
        ("Prefix")))

(defun mergesheets:noun (table)
  (cond ((= table "LTYPE") (kora_text "linetype" nil))
        ((= table "STYLE") (kora_text "text style" nil))
        ((= table "DIMSTYLE") (kora_text "dimension style" nil))
        ((= table "BLOCK_RECORD") (kora_text "block" nil))
        ((strcase table T))))

(princ)
