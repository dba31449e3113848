;;; What tools draw for texts, masks and frames: it knows by extended data which text it belongs to, so that a later run can
;;; take it away. The application of the extended data says which tool drew it.

;; (kora_companions texts application) -> list of (companion text), what was drawn for these texts.
(defun kora_companions (texts application / chosen text found)
  (setq chosen (kora_selection texts))
  (foreach companion (kora_selection_to_list (ssget "_X" (list (list -3 (list application)))))
    (setq text (kora_extended (entget companion (list application)) application 1005)
          text (if text (handent text)))
    (if (and text (ssmemb text chosen))
      (setq found (cons (list companion text) found))))
  found)

;; (kora_remove_companions companions texts) takes away those of these texts, but for what is on locked layers.
(defun kora_remove_companions (companions texts / chosen)
  (setq chosen (kora_selection texts))
  (foreach pair companions
    (if (and (ssmemb (cadr pair) chosen) (not (kora_is_locked (entget (car pair)))))
      (entdel (car pair)))))

;; (kora_join_companion companion text application) tells it which text it belongs to. A drawing without handles cannot say
;; so.
(defun kora_join_companion (companion text application / handle)
  (regapp application)
  (if (setq handle (kora_field (entget text) 5))
    (entmod (list (cons -1 companion) (list -3 (list application (cons 1005 handle)))))))
