;;; menu: Draw order by color | DRAWORDERCOLOR | Puts entities over each other in the order of their colors | Lines and hatches
;;;
;;; DRAWORDERCOLOR: of what is chosen already, or of all in the current space, the dialog shows the colors; it begins with
;;; the order of the last time. The entities of the first color come to lie under all others, those of the last one over
;;; them. An entity without a color of its own counts as of its layer's color. Colors that are taken out of the list stay
;;; where they are. Entities on locked layers move like others: a draw order changes no entity.

(defun c:drawordercolor (/ *error* kora:variables entities groups order)
  (setq entities (kora_chosen nil))
  (kora_begin '(("CMDECHO" . 0)))
  (cond
    ((null (setq entities (cond (entities) ((drawordercolor:all)))))
     (kora_alert_message "There is nothing to put in order."))
    ((setq groups (drawordercolor:groups entities)
           order  (drawordercolor:ask (mapcar 'car groups)))
     (drawordercolor:run groups order)))
  (kora_end))

;; -> all entities of the layout in use but the sheet itself, which is its first viewport.
(defun drawordercolor:all (/ layout)
  (setq layout (strcase (getvar "CTAB")))
  (vl-remove-if-not '(lambda (entity / data)
                       (setq data (entget entity))
                       (and (= (strcase (cond ((kora_field data 410)) ("Model"))) layout)
                            (not (and (= (kora_field data 0) "VIEWPORT") (= (kora_field data 69) 1)))))
                    (kora_selection_to_list (ssget "_X"))))

;; Runs the dialog. -> the colors in their order, nil when it was cancelled.
(defun drawordercolor:ask (colors / file kept)
  (setq file   (kora_statefile "drawordercolor")
        kept   (kora_string_split (cond ((kora_state_value (kora_readstate file) "lstcolors")) ("")) "^")
        kept   (vl-remove-if-not '(lambda (color) (member color colors)) (mapcar 'atoi (vl-remove "" kept)))
        colors (append kept (vl-remove-if '(lambda (color) (member color kept)) (vl-sort colors '<))))
  (kora_show 'Dlg_DrawOrderColor (cons file (mapcar 'itoa colors))))

;; -> a list of (color entity ...), the entities of each in the order in which they came. Sorted by numbers of which the
;; color is the greater part and the place in the selection the smaller, those of one color come one after the other.
(defun drawordercolor:groups (entities / selection place keys color groups)
  (setq selection (kora_selection entities)
        place     -1)
  (foreach entity entities
    (setq keys (cons (+ (* 1e8 (drawordercolor:color (entget entity))) (setq place (1+ place))) keys)))
  (foreach key (vl-sort keys '>)
    (setq color  (fix (/ key 1e8))
          place  (fix (- key (* 1e8 color)))
          groups (if (= color (caar groups))
                   (cons (cons color (cons (ssname selection place) (cdar groups))) (cdr groups))
                   (cons (list color (ssname selection place)) groups))))
  groups)

;; The color that an entity is seen in: its own, or that of its layer, whose sign says whether the layer is on.
(defun drawordercolor:color (data / color)
  (setq color (cond ((kora_field data 62)) (256)))
  (if (= color 256)
    (abs (cond ((kora_field (tblsearch "LAYER" (cond ((kora_field data 8)) ("0"))) 62)) (7)))
    color))

;; Brings all in front of the rest, and then gives the places that they have there to one color after the other.
(defun drawordercolor:run (groups order / found entities colors unsorted)
  (setq found    (vl-remove nil (mapcar '(lambda (color) (assoc color groups)) order))
        entities (apply 'append (mapcar 'cdr found))
        colors   (mapcar 'car found))
  (if entities
    (progn
      (drawordercolor:to_front entities)
      ;; The table of places is made by the first command that moves anything.
      (if (setq unsorted (drawordercolor:unsorted (drawordercolor:rows entities colors)))
        (drawordercolor:to_front unsorted))
      (if unsorted (drawordercolor:arrange entities colors))))
  (kora_results "DRAWORDERCOLOR"
    (append (mapcar '(lambda (group) (drawordercolor:result "done" (kora_text "put in order, color %1" (list (itoa (car group)))) group)) found)
            (mapcar '(lambda (group) (drawordercolor:result "skipped" (kora_text "not in the order, color %1" (list (itoa (car group)))) group))
                    (vl-remove-if '(lambda (group) (member (car group) colors)) groups))))
  (kora_alert_message (kora_text "%1 of %2 put in order."
                                 (list (kora_count (length entities) "1 entity" "%1 entities")
                                       (kora_number_of (length colors) "color")))))

(defun drawordercolor:result (state words group)
  (list state words (cdr group)))

(defun drawordercolor:to_front (entities)
  (command "_.DRAWORDER" (kora_selection entities) "" "_Front"))

;; The table that says for the entities of a layout under which handle each is drawn, those of lower handles under the
;; others; nil without one.
(defun drawordercolor:table (entity / owner)
  (setq owner (kora_owner (entget entity))
        owner (if owner (kora_extension (entget owner))))
  (if owner (dictsearch owner "ACAD_SORTENTS")))

;; -> list of (key place entity), sorted by the keys: texts, first for the color and then for the place. What the table does
;; not have is drawn under its own handle.
(defun drawordercolor:rows (entities colors / pairs chosen listed rows)
  (setq pairs  (drawordercolor:pairs (drawordercolor:table (car entities)))
        chosen (kora_selection entities)
        listed (kora_selection (mapcar 'car pairs)))
  (foreach pair pairs
    (if (ssmemb (car pair) chosen)
      (setq rows (cons (drawordercolor:row (car pair) (cdr pair) colors) rows))))
  (foreach entity entities
    (if (not (ssmemb entity listed))
      (setq rows (cons (drawordercolor:row entity (kora_field (entget entity) 5) colors) rows))))
  (vl-sort rows '(lambda (a b) (< (car a) (car b)))))

(defun drawordercolor:row (entity handle colors / place)
  (setq place (substr (strcat "0000000000000000" (strcase (cond (handle) ("")))) (1+ (strlen (cond (handle) (""))))))
  (list (strcat (itoa (- 1000 (length (member (drawordercolor:color (entget entity)) colors)))) place) place entity))

;; -> a list of (entity . handle).
(defun drawordercolor:pairs (table / entity pairs)
  (foreach field table
    (cond ((= (car field) 331) (setq entity (cdr field)))
          ((and entity (= (car field) 5)) (setq pairs (cons (cons entity (cdr field)) pairs)))))
  pairs)

;; -> the entities of rows from the first on that is drawn under the one before it; nil when all are drawn in this order.
(defun drawordercolor:unsorted (rows)
  (while (and (cdr rows) (<= (cadar rows) (cadadr rows))) (setq rows (cdr rows)))
  (mapcar 'caddr (cdr rows)))

;; Deals the places of the entities out anew, in the order of their keys.
(defun drawordercolor:arrange (entities colors / table rows chosen pairs)
  (if (setq table (drawordercolor:table (car entities)))
    (progn
      (setq rows   (drawordercolor:rows entities colors)
            chosen (kora_selection entities)
            pairs  (vl-remove-if '(lambda (pair) (ssmemb (car pair) chosen)) (reverse (drawordercolor:pairs table)))
            pairs  (append pairs (mapcar '(lambda (row place) (cons (caddr row) place))
                                         rows
                                         (vl-sort (mapcar 'cadr rows) '<))))
      (entmod (append (drawordercolor:head table) (apply 'append (mapcar 'drawordercolor:fields pairs)))))))

;; What a table says in front of its first entity.
(defun drawordercolor:head (table / head)
  (while (and table (/= 331 (caar table)))
    (setq head  (cons (car table) head)
          table (cdr table)))
  (reverse head))

(defun drawordercolor:fields (pair)
  (list (cons 331 (car pair)) (cons 5 (vl-string-left-trim "0" (cdr pair)))))

(princ)
