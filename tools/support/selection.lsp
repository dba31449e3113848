;;; What a tool works on: entities that are chosen already or now, without those that are of no use, which are counted,
;;; and the closing words.

;; (kora_chosen filter) -> the entities that are chosen already and fit filter; nil when there are none. How many do not
;; fit is said. To be asked before kora_begin, whose commands end such a choice. Nothing is chosen afterwards.
(defun kora_chosen (filter / all entities)
  (if (setq all (ssget "_I"))
    (setq entities (kora:fitting all (ssget "_I" filter) "chosen")))
  (sssetfirst nil nil)
  entities)

;; (kora_choose asking filter) -> the entities that fit filter of those that the user chooses, in this order; nil after
;; a message when there are none. How many do not fit is said; a filter of nil fits all.
(defun kora_choose (asking filter / all)
  (princ (strcat "\n" (kora_text asking nil)))
  (if (setq all (ssget))
    (kora:fitting all (ssget "_P" filter) "picked")
    (kora_refuse "Nothing was chosen.")))

(defun kora:fitting (all fitting verb / others)
  (setq others (- (sslength all) (if fitting (sslength fitting) 0)))
  (kora:say_unused verb (sslength all) (if (> others 0) (list (cons "of another kind" others))))
  (kora_selection_to_list fitting))

;; (kora_usable entities reasons) -> the entities that no reason speaks against, in this order. A reason is a row (test
;; words): a function of an entity's list that is true of what cannot be used, and words for that which fit any number:
;; "on a locked layer". The first row that applies counts. How many are of no use, and why, is said in one sentence:
;; "7 picked, 3 of no use: 2 of another kind, 1 on a locked layer."
(defun kora_usable (entities reasons / reason counts usable)
  (setq counts (mapcar '(lambda (row) (cons (cadr row) 0)) reasons))
  (foreach entity entities
    (if (setq reason (kora:reason_against (entget entity) reasons))
      (setq counts (subst (cons reason (1+ (kora_field counts reason))) (assoc reason counts) counts))
      (setq usable (cons entity usable))))
  (kora:say_unused "picked" (length entities) (vl-remove-if '(lambda (row) (= (cdr row) 0)) counts))
  (reverse usable))

(defun kora:reason_against (data reasons)
  (vl-some '(lambda (row) (if (apply (car row) (list data)) (cadr row))) reasons))

;; counts is a list of (words . number); nothing is said without any.
(defun kora:say_unused (verb all counts)
  (if counts
    (kora_alert_message
      (kora_text (if (= verb "chosen") "%1 chosen, %2 of no use: %3." "%1 picked, %2 of no use: %3.")
                 (list (itoa all) (itoa (apply '+ (mapcar 'cdr counts)))
                       (kora_string_join (mapcar '(lambda (row) (strcat (itoa (cdr row)) " " (kora_text (car row) nil))) counts)
                                         ", "))))))

;; (kora_other_kind kinds) -> the reason against entities of kinds other than these, "LINE,ARC".
(defun kora_other_kind (kinds)
  (list (list 'lambda '(data) (list 'not (list 'wcmatch '(kora_field data 0) kinds))) "of another kind"))

;; The reasons against what cannot be changed, and against what does not lie as the world's plane, seen from above.
(setq kora_on_locked_layer '(kora_is_locked "on a locked layer"))
(setq kora_in_other_plane
  '((lambda (data) (not (equal (kora_normal data) '(0.0 0.0 1.0) 1e-9))) "in another plane"))

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
    (strcat (kora_text text nil)
            (if (> locked 0)
              (strcat " " (kora_count locked "1 on a locked layer was left alone." "%1 on locked layers were left alone."))
              ""))))

;; (kora_done_with title verb done free all) says how many texts were, say, "masked", out of those on layers that are not
;; locked and out of all, and lists them; each is a list of entities in the order of the last one.
(defun kora_done_with (title verb done free all / count locked failed)
  (setq count  (length done)
        failed (kora_left_out done free)
        locked (kora_left_out free all))
  (kora_results title
    (list (list "done" verb done)
          (list "skipped" (strcat "could not be " verb) failed)
          (list "skipped" "on a locked layer" locked)))
  (kora_done (strcat (kora_text (strcat "%1 " verb ".") (list (kora_number_of count "text")))
                     (if failed (kora_text (strcat " %1 could not be " verb ".") (list (itoa (length failed)))) ""))
             (length locked)))

;; (kora_left_out some all) -> those of all that are not among some, which are in the same order.
(defun kora_left_out (some all / left)
  (foreach entity all
    (if (eq entity (car some)) (setq some (cdr some)) (setq left (cons entity left))))
  (reverse left))

;; (kora_results title groups) has the host list what was done and what was left alone, where it has such lists; other
;; hosts do nothing. A group is (state text entities), the state "done" or "skipped".
(defun kora_results (title groups)
  (if results-begin
    (progn
      (results-begin title)
      (foreach group groups
        (foreach entity (caddr group) (results-add entity (car group) (kora_text (cadr group) nil))))
      (results-end))))
