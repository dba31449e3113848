;;; Groups of entities, and what else of the drawing names entities.

;; (kora_make_group entities) joins them to a nameless group. -> its name in the drawing's groups; nil when it cannot be
;; made.
(defun kora_make_group (entities / groups group number)
  (setq groups (kora_dictionary "ACAD_GROUP")
        number 1)
  (if groups
    (progn
      (while (dictsearch groups (strcat "*A" (itoa number))) (setq number (1+ number)))
      (setq group (entmakex (append '((0 . "GROUP") (100 . "AcDbGroup") (300 . "") (70 . 1) (71 . 1))
                                    (mapcar '(lambda (entity) (cons 340 entity)) entities))))
      (if (and group (dictadd groups (strcat "*A" (itoa number)) group))
        (strcat "*A" (itoa number))))))

;; (kora_dictionary name) -> a dictionary of the drawing, made where it is missing; nil in a drawing that cannot have
;; one.
(defun kora_dictionary (name / root found)
  (if (setq root (namedobjdict))
    (cond
      ((setq found (dictsearch root name)) (kora_field found -1))
      (T (dictadd root name (entmakex '((0 . "DICTIONARY") (100 . "AcDbDictionary"))))))))

;; (kora_take_places pairs) puts new entities in the places of old ones, a list of (old . new), which are to be erased
;; then: in groups, draw orders and all other objects under the drawing's dictionaries; extension dictionaries become the
;; new entities' own. One pass over all objects.
(defun kora_take_places (pairs / places)
  (if pairs
    (progn
      (setq places (kora_tree (vl-sort (mapcar '(lambda (pair) (cons (kora:name_text (car pair)) (cdr pair))) pairs)
                                       '(lambda (a b) (< (car a) (car b))))))
      (foreach pair pairs (kora:take_extension (entget (car pair)) (entget (cdr pair))))
      (kora:take_places_in (namedobjdict) nil)
      (foreach owner (kora:owners (mapcar 'car pairs))
        (kora:take_places_in (kora_extension (entget owner)) nil)))))

;; -> the layouts and blocks that entities are in, each once.
(defun kora:owners (entities / owner owners)
  (foreach entity entities
    (setq owner (kora_owner (entget entity)))
    (if (and owner (not (member owner owners))) (setq owners (cons owner owners))))
  owners)

(defun kora:name_text (entity) (vl-princ-to-string entity))

;; (kora_extension data) -> the entity name of an entity's extension dictionary, nil when there is none.
(defun kora_extension (data)
  (cdr (assoc 360 (cdr (member '(102 . "{ACAD_XDICTIONARY") data)))))

(defun kora:take_extension (old new / dictionary)
  (if (setq dictionary (kora_extension old))
    (entmod (append new (list '(102 . "{ACAD_XDICTIONARY") (cons 360 dictionary) '(102 . "}"))))))

;; Goes through an object and what it owns, unless it is among its own owners.
(defun kora:take_places_in (object owners / data)
  (if (and object (not (member object owners)) (setq data (entget object)))
    (progn
      (if (vl-some 'kora:is_moved data) (entmod (mapcar 'kora:with_place data)))
      (if (= (kora_field data 0) "DICTIONARY")
        (foreach field data
          (if (member (car field) '(350 360)) (kora:take_places_in (cdr field) (cons object owners))))))))

;; Whether a group leads to an old entity.
(defun kora:is_moved (field)
  (and (<= 320 (car field) 369) (kora_tree_find places (kora:name_text (cdr field)))))

(defun kora:with_place (field)
  (if (kora:is_moved field)
    (cons (car field) (cdr (kora_tree_find places (kora:name_text (cdr field)))))
    field))
