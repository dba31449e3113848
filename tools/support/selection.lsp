;;; What a tool works on: entities that are chosen already or now, those on locked layers left out, and the closing words.

;; (kora_chosen filter) -> the entities that are chosen already and fit filter; nil when there are none. To be asked
;; before kora_begin, whose commands end such a choice. Nothing is chosen afterwards.
(defun kora_chosen (filter / entities)
  (setq entities (kora_selection_to_list (ssget "_I" filter)))
  (sssetfirst nil nil)
  entities)

;; (kora_choose prompt filter) -> the entities that fit filter of those that the user chooses, in this order; nil after a
;; message when there are none.
(defun kora_choose (prompt filter / selection)
  (princ (strcat "\n" prompt))
  (if (setq selection (ssget filter))
    (kora_selection_to_list selection)
    (kora_refuse "Nothing was chosen.")))

;; (kora_unlocked entities) -> those that are not on locked layers.
(defun kora_unlocked (entities)
  (vl-remove-if '(lambda (entity) (kora_is_locked (entget entity))) entities))

;; (kora_selection entities) -> a selection set of them.
(defun kora_selection (entities / selection)
  (setq selection (ssadd))
  (foreach entity entities (ssadd entity selection))
  selection)

;; (kora_done text locked) prints a sentence that says what was done, and how many entities were left alone because they
;; are on locked layers.
(defun kora_done (text locked)
  (kora_alert_message
    (strcat text
            (if (> locked 0)
              (strcat " " (itoa locked) (if (= locked 1) " on a locked layer was" " on locked layers were") " left alone.")
              ""))))

;; (kora_done_with verb done open all) says how many texts were, say, "masked", out of those on layers that are not locked
;; and out of all.
(defun kora_done_with (verb done open all)
  (kora_done (strcat (kora_number_of done "text") " " verb "."
                     (if (< done open) (strcat " " (itoa (- open done)) " could not be " verb ".") ""))
             (- all open)))
