;;; menu: Replace block | REPLACEBLOCK | Replaces all references to chosen blocks by another block of the drawing | Blocks and attributes
;;;
;;; REPLACEBLOCK: the dialog gives the blocks to replace and the one that takes their place. Blocks can be picked in the
;;; drawing, before the command or on the way. Every reference stays where it is, with its scale, rotation, layer and
;;; other properties. References to these blocks within other blocks are replaced as well.
;;;
;;; With the update of attributes they become those of the new block; values go from tag to tag. Without it the
;;; attributes stay as they are. Cleaning takes out all block definitions that nothing refers to.

(defun c:replaceblock (/ *error* kora:variables chosen state old new)
  (setq chosen (kora_chosen '((0 . "INSERT"))))
  (kora_begin '(("CMDECHO" . 0)))
  (if (setq state (kora_ask_replacement 'Dlg_replaceblock (kora_statefile "replaceblock") chosen))
    (progn
      (setq old (kora_chosen_blocks (kora_state_value state "blockstable"))
            new (car (kora_chosen_blocks (kora_state_value state "blockstablerep"))))
      (if (and old new)
        (kora_finish_replacement "REPLACEBLOCK"
          (kora_replace_blocks old new (= (kora_state_value state "attsync") "TRUE")) state)
        (kora_alert_message "The drawing does not have these blocks."))))
  (kora_end))

(princ)
