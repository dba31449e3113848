;;; Groups of entities.

;; (kora_make_group entities) joins them to a nameless group. -> its name in the drawing's groups; nil when it cannot be
;; made.
(defun kora_make_group (entities / groups group number)
  (setq groups (kora:groups)
        number 1)
  (if groups
    (progn
      (while (dictsearch groups (strcat "*A" (itoa number))) (setq number (1+ number)))
      (setq group (entmakex (append '((0 . "GROUP") (100 . "AcDbGroup") (300 . "") (70 . 1) (71 . 1))
                                    (mapcar '(lambda (entity) (cons 340 entity)) entities))))
      (if (and group (dictadd groups (strcat "*A" (itoa number)) group))
        (strcat "*A" (itoa number))))))

;; The dictionary of groups, made where it is missing; nil in a drawing that cannot have one.
(defun kora:groups (/ root found)
  (if (setq root (namedobjdict))
    (cond
      ((setq found (dictsearch root "ACAD_GROUP")) (kora_field found -1))
      (T (dictadd root "ACAD_GROUP" (entmakex '((0 . "DICTIONARY") (100 . "AcDbDictionary"))))))))
