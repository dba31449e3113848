;;; menu: Show links | SHOWLINKS | Lists the hyperlinks of entities, to change, remove and find them | Sheets and files
;;;
;;; SHOWLINKS: the dialog shows the links of the entities in all layouts and writes them to a file when it closes; from
;;; there what was changed and removed goes into the drawing. Of entities chosen before the command only theirs are shown.
;;; Show Entity turns to the entities of the selected links, shows them as large as the window and bright, and comes back
;;; to the dialog as it was left. Entities on locked layers keep their links.
;;;
;;; A link is extended data of the application PE_URL: its first text is the URL; a description and what else follows
;;; stays as it is. In the file a line is HANDLE^URL^TYPE^LAYOUT, where a "^" in the URL is one of it. An entity that its
;;; drawing gives no handle, or one that leads to another entity, has a number there, #1 and so on.

(defun c:showlinks (/ *error* kora:variables chosen state links numbered)
  (setq chosen (ssget "_I" '((-3 ("PE_URL")))))
  (kora_begin '(("CMDECHO" . 0)))
  (setq state (kora_statefile "showlinks")
        links (kora_userfile "showlinks.links"))
  (cond
    ((not (showlinks:write links (cond (chosen) ((ssget "_X" '((-3 ("PE_URL"))))))))
     (kora_alert_message (kora_text "The links cannot be listed: %1 cannot be written." (list links))))
    ((null (kora_writestate state (list (cons "linkfile" links) '("!action!" . "START"))))
     (kora_alert_message (kora_text "The file %1 could not be written." (list state))))
    ((showlinks:ask state links) (showlinks:apply links)))
  (vl-file-delete links)
  (kora_end))

;; Writes the links of the selected entities in the order of the drawing. -> T, nil when the file cannot be written.
(defun showlinks:write (links selection / count others)
  (setq count 0)
  (if (kora_write_file links 'showlinks:write_each)
    (progn
      (setq numbered (kora_tree (vl-sort others '(lambda (a b) (< (car a) (car b))))))
      T)))

(defun showlinks:write_each (handle / data)
  (foreach entity (reverse (kora_selection_to_list selection))
    (setq data (entget entity '("PE_URL")))
    (if (showlinks:url data)
      (write-line (kora_string_join (list (showlinks:name entity) (showlinks:shown (showlinks:url data))
                                          (kora_field data 0)
                                          (vl-string-translate "^" " " (showlinks:space data)))
                                    "^")
                  handle))))

;; -> how the file names an entity; others are those that have no handle of their own.
(defun showlinks:name (entity / name)
  (cond ((kora_handle entity))
        (T (setq count  (1+ count)
                 name   (strcat "#" (itoa count))
                 others (cons (cons name entity) others))
           name)))

;; -> the entity that the file names so, nil when it is not in the drawing.
(defun showlinks:entity (name / entity)
  (setq entity (cond ((cdr (kora_tree_find numbered name))) ((handent name))))
  (if (and entity (entget entity)) entity))

;; -> the name of the layout that an entity is in; early drawings have one of each kind and no names.
(defun showlinks:space (data)
  (cond ((kora_field data 410)) ((= 1 (kora_field data 67)) "Layout1") ("Model")))

;; -> the URL of an entity's data, nil when it has none.
(defun showlinks:url (data)
  (kora_field (cdadr (assoc -3 data)) 1000))

;; A URL as the file can have it: in one line.
(defun showlinks:shown (url)
  (vl-string-translate "\r\n" "  " url))

;; Runs the dialog; in between entities are shown. -> T when the user confirmed.
(defun showlinks:ask (state links / done)
  (while (and (not done) (kora_show 'Dlg_ShowLinks (list state)))
    (cond ((= (kora_action (kora_readstate state)) "SHOWENTITY")
           (showlinks:show (showlinks:entities (kora_read_lines links))))
          (T (setq done T))))
  done)

;; -> the entities of the lines that are in the drawing.
(defun showlinks:entities (lines)
  (vl-remove nil (mapcar '(lambda (line) (showlinks:entity (car (kora_string_split line "^")))) lines)))

;; Turns to the layout of the first entity and shows those in it until the user enters something.
(defun showlinks:show (entities / layout box)
  (if entities
    (progn
      (setq layout   (kora_field (entget (car entities)) 410)
            entities (vl-remove-if-not '(lambda (entity) (equal (kora_field (entget entity) 410) layout)) entities))
      (if (and layout (/= (strcase layout) (strcase (getvar "CTAB"))))
        (setq layout (vl-catch-all-apply 'setvar (list "CTAB" layout))))
      (if (vl-catch-all-error-p layout)
        (kora_alert_message "This layout cannot be shown here.")
        (progn
          (if (setq box (kora_bounding_box entities)) (showlinks:zoom box))
          (showlinks:highlight entities))))
    (kora_alert_message "The entities are not in the drawing any more.")))

;; Some of what lies around shows where it is.
(defun showlinks:zoom (box / margin)
  (setq margin (* 0.5 (max (distance (car box) (cadr box)) (* 0.1 (distance (getvar "EXTMIN") (getvar "EXTMAX"))))))
  (command "_.ZOOM" "_Window"
           (trans (mapcar '- (car box) (list margin margin 0.0)) 0 1)
           (trans (mapcar '+ (cadr box) (list margin margin 0.0)) 0 1)))

;; Esc ends the run: what was changed in the dialog is given up.
(defun showlinks:highlight (entities / answer)
  (foreach entity entities (redraw entity 3))
  (setq answer (vl-catch-all-apply 'getstring (list "\nPress Enter to return to the links: ")))
  (foreach entity entities (redraw entity 4))
  (if (vl-catch-all-error-p answer)
    (progn
      (vl-file-delete links)
      (kora_alert_message "The links were left as they are.")
      (exit))))

;; Takes what the dialog wrote into the drawing and tells how much that was.
(defun showlinks:apply (links / changed removed locked fields data)
  (foreach line (kora_read_lines links)
    (setq fields (kora_string_split line "^"))
    (if (= (car fields) "REMOVE")
      (if (setq data (showlinks:data (cadr fields))) (showlinks:remove data))
      (if (and (setq data (showlinks:data (car fields)))
               (/= (showlinks:written fields) (showlinks:shown (showlinks:url data))))
        (showlinks:change data (showlinks:written fields)))))
  (kora_results "SHOWLINKS"
    (list (list "done" "link changed" (reverse changed))
          (list "done" "link removed" (reverse removed))
          (list "skipped" "on a locked layer" (reverse locked))))
  (kora_alert_message (kora_text "%1 changed, %2 removed%3." (list (kora_number_of (length changed) "link") (itoa (length removed)) (kora_also (length locked) " on locked layers left as they were")))))

;; What stands between the handle and the last two fields.
(defun showlinks:written (fields)
  (kora_string_join (reverse (cddr (reverse (cdr fields)))) "^"))

;; -> the data of the entity, nil when it is not in the drawing or has no link.
(defun showlinks:data (name / entity data)
  (if (and (setq entity (showlinks:entity name))
           (setq data (entget entity '("PE_URL")))
           (showlinks:url data))
    data))

;; What becomes of an entity is kept in the variables of showlinks:apply.
(defun showlinks:change (data url)
  (cond ((kora_is_locked data) (setq locked (cons (kora_field data -1) locked)))
        ((entmod (subst (list -3 (showlinks:with_url (cadr (assoc -3 data)) (showlinks:edited (showlinks:url data) url)))
                        (assoc -3 data) data))
         (setq changed (cons (kora_field data -1) changed)))))

;; The URL with the part changed that is another in what the dialog gave back; at both ends of it nothing changes that
;; the file cannot have.
(defun showlinks:edited (url text / shown front behind)
  (setq shown  (showlinks:shown url)
        front  (showlinks:equal_letters (vl-string->list shown) (vl-string->list text))
        behind (showlinks:equal_letters (reverse (vl-string->list (substr shown (1+ front))))
                                        (reverse (vl-string->list (substr text (1+ front))))))
  (strcat (substr url 1 front)
          (substr text (1+ front) (- (strlen text) front behind))
          (substr url (1+ (- (strlen url) behind)))))

;; -> how many codes at the beginning of two lists are the same.
(defun showlinks:equal_letters (first second / count)
  (setq count 0)
  (while (and first second (= (car first) (car second)))
    (setq count  (1+ count)
          first  (cdr first)
          second (cdr second)))
  count)

;; The first text only: the description is often the same.
(defun showlinks:with_url (items url / done)
  (mapcar '(lambda (item)
             (if (and (not done) (listp item) (= (car item) 1000))
               (progn (setq done T) (cons 1000 url))
               item))
          items))

(defun showlinks:remove (data)
  (cond ((kora_is_locked data) (setq locked (cons (kora_field data -1) locked)))
        ((entmod (subst '(-3 ("PE_URL")) (assoc -3 data) data)) (setq removed (cons (kora_field data -1) removed)))))

(princ)
