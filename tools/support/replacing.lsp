;;; Replacing blocks: what REPLACEBLOCK and REPLACEBLOCKBYREFERENCE share.

;; (kora_ask_replacement dialog file chosen) runs the dialog, a function's symbol, until the user confirms or cancels;
;; in between blocks are picked in the drawing. chosen are references whose blocks are chosen at first. -> the state, nil when cancelled.
(defun kora_ask_replacement (dialog file chosen / blocks state done)
  (setq blocks (kora:block_descriptions))
  (if chosen (kora:choose_blocks file chosen))
  (while (and (not done) (kora_show dialog (cons file blocks)))
    (setq state (kora_readstate file))
    (if (= (kora_action state) "GETBLOCKS")
      (kora:choose_blocks file (kora_choose "Select block references: " '((0 . "INSERT"))))
      (setq done T)))
  (if done state))

;; The dialog's list: name, and as fourth field the number of references in the layouts.
(defun kora:block_descriptions (/ counts)
  (setq counts (kora_tree (kora_counted (mapcar 'kora_known_insert_name (kora_space_inserts)))))
  (mapcar '(lambda (name) (strcat name "^^^" (itoa (cond ((cdr (kora_tree_find counts (strcase name)))) (0)))))
          (kora:replaceable_blocks counts)))

;; The blocks that a user knows, without those at the ends of dimension lines that have no references of their own.
(defun kora:replaceable_blocks (counts / arrows)
  (setq arrows (kora_arrow_names))
  (vl-remove-if '(lambda (name) (and (member (strcase name) arrows) (null (kora_tree_find counts (strcase name)))))
                (kora_block_names)))

;; Enters the blocks of picked references into the state; without any the choice stays as it is.
(defun kora:choose_blocks (file references / known names)
  (setq known (mapcar 'strcase (kora_block_names))
        names (mapcar 'car (kora_counted (mapcar 'kora_known_insert_name references)))
        names (vl-remove-if-not '(lambda (name) (member name known)) names))
  (if names
    (kora_writestate file (list (cons "blockstable" (strcat (kora_string_join names "^") "^"))
                                '("!action!" . "SETBLOCKS")))
    (kora_alert_message "No block that can be replaced was selected.")))

;; (kora_chosen_blocks text) -> the names of the blocks that a state's value means: a name of digits only is there as a
;; number.
(defun kora_chosen_blocks (text / names)
  (setq names (kora_block_names))
  (vl-remove nil (mapcar '(lambda (part) (if (/= part "") (kora:block_meant part))) (kora_string_split text "^"))))

(defun kora:block_meant (part / meant)
  (setq meant (vl-remove-if-not '(lambda (name) (= (strcase name) (strcase part))) names))
  (if (null meant)
    (setq meant (vl-remove-if-not '(lambda (name) (and (= (vl-string-trim "0123456789" name) "")
                                                       (= (vl-string-left-trim "0" name) (vl-string-left-trim "0" part))))
                                  names)))
  (car meant))

;; (kora_replace_blocks names new sync) makes references to the blocks of these names references to new: those of the
;; layouts, and those within blocks unless new would then be in itself. References with an appearance of their own are
;; references to the block that they were made from. With sync they get the attributes of new. What is on locked layers
;; stays. -> (replaced locked circular unsynced), lists of references.
(defun kora_replace_blocks (names new sync / within graph replaced locked circular unsynced remade)
  (setq graph    (kora_block_graph)
        names    (kora:with_appearances (mapcar 'strcase names) graph)
        within   (kora_blocks_within graph (kora:with_appearances (list (strcase new)) graph)))
  (foreach insert (kora_space_inserts) (kora:replace_insert insert nil))
  (foreach block (mapcar 'strcase (kora_own_definitions))
    (foreach insert (kora_block_inserts block)
      (if (member block within)
        (if (member (kora_insert_name insert) names) (setq circular (cons insert circular)))
        (kora:replace_insert insert T))))
  (kora_take_places remade)
  (foreach pair remade (entdel (car pair)))
  (mapcar 'reverse (list replaced locked circular unsynced)))

;; The names with those of the nameless blocks that stand for the same blocks. graph has all names.
(defun kora:with_appearances (names graph)
  (append names
          (vl-remove-if-not '(lambda (name)
                               (and (kora_starts_with name "*") (member (strcase (kora_known_name name)) names)))
                            (kora_tree_texts graph))))

(defun kora:replace_insert (insert nested / data synced)
  (setq data (entget insert))
  (cond ((not (member (strcase (kora_field data 2)) names)))
        ((kora_is_locked data) (setq locked (cons insert locked)))
        ((entmod (kora_with_field data 2 new))
         (kora:forget_appearance data)
         (setq synced (if sync (kora_sync_attributes insert nested) T))
         (cond ((null synced) (setq unsynced (cons insert unsynced)))
               ((= (type synced) 'ENAME) (setq remade (cons (cons insert synced) remade))))
         (setq replaced (cons (if (= (type synced) 'ENAME) synced insert) replaced)))))

;; What an appearance of the reference's own was set to says nothing of another block.
(defun kora:forget_appearance (data / dictionary)
  (if (setq dictionary (kora_extension data)) (dictremove dictionary "AcDbBlockRepresentation")))

;; (kora_purge_blocks) takes out the definitions that nothing refers to. -> how many.
(defun kora_purge_blocks (/ before)
  (setq before (length (kora_table_names "BLOCK")))
  (command "_.-PURGE" "_Blocks" "*" "_No")
  (- before (length (kora_table_names "BLOCK"))))

;; (kora_finish_replacement title references state) lists what became of the references, as kora_replace_blocks gives
;; them, purges when the state says so, and tells what was done.
(defun kora_finish_replacement (title references state / counts purged)
  (setq counts (mapcar 'length references))
  ;; Before the purge, which can take blocks with references in them.
  (kora_results title
    (mapcar '(lambda (row entities) (append row (list entities)))
            '(("done" "replaced") ("skipped" "on a locked layer") ("skipped" "within the new block")
              ("skipped" "within a block, could not get other attributes"))
            references))
  (if (= (kora_state_value state "purgeitems") "TRUE") (setq purged (kora_purge_blocks)))
  (kora_alert_message
    (kora_text "%1 replaced%2%3%4%5."
               (list (kora_number_of (car counts) "reference")
                     (kora_also (cadr counts) " on locked layers left as they were")
                     (kora_also (caddr counts) " within the new block left as they were")
                     (kora_also (cadddr counts) " within blocks could not get other attributes")
                     (if purged (kora_text "; %1 purged" (list (kora_number_of purged "block"))) "")))))
