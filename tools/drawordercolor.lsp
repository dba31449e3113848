;;; menu: Draw order by color | DRAWORDERCOLOR | Puts entities over each other in the order of their colors
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
(defun drawordercolor:ask (colors / file last)
  (setq file   (kora_statefile "drawordercolor")
        last   (kora_string_split (cond ((kora_state_value (kora_readstate file) "lstcolors")) ("")) "^")
        last   (vl-remove-if-not '(lambda (color) (member color colors)) (mapcar 'atoi (vl-remove "" last)))
        colors (append last (vl-remove-if '(lambda (color) (member color last)) (vl-sort colors '<))))
  (apply 'Dlg_DrawOrderColor (cons file (mapcar 'itoa colors))))

;; -> a list of (color entity ...), the entities of each in the order in which they came.
(defun drawordercolor:groups (entities / pairs colors)
  (setq pairs (mapcar '(lambda (entity) (cons (drawordercolor:color (entget entity)) entity)) entities))
  (foreach pair pairs
    (if (not (member (car pair) colors)) (setq colors (cons (car pair) colors))))
  (mapcar '(lambda (color)
             (cons color (mapcar 'cdr (vl-remove-if '(lambda (pair) (/= (car pair) color)) pairs))))
          colors))

;; The color that an entity is seen in: its own, or that of its layer, whose sign says whether the layer is on.
(defun drawordercolor:color (data / color)
  (setq color (cond ((kora_field data 62)) (256)))
  (if (= color 256)
    (abs (cond ((kora_field (tblsearch "LAYER" (cond ((kora_field data 8)) ("0"))) 62)) (7)))
    color))

;; Brings one color after the other in front of all.
(defun drawordercolor:run (groups order / found entities count)
  (setq count 0)
  (foreach color order
    (if (setq found (cdr (assoc color groups)))
      (progn
        (command "_.DRAWORDER" (kora_selection found) "" "_Front")
        (setq entities (append found entities)
              count    (1+ count)))))
  (kora_alert_message (strcat (itoa (length entities)) (if (= (length entities) 1) " entity" " entities") " of "
                              (kora_number_of count "color") " put in order.")))
