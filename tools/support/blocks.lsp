;;; Blocks: definitions, the references to them, and which definition refers to which.
;;;
;;; Of names the letter case does not count. Where names are compared they are in capitals.

;; (kora_space_inserts) -> the entity names of all block references in the drawing's layouts, the oldest first.
(defun kora_space_inserts ()
  (reverse (kora_selection_to_list (ssget "_X" '((0 . "INSERT"))))))

;; (kora_block_inserts name) -> the entity names of the block references in a definition.
(defun kora_block_inserts (name)
  (vl-remove-if-not '(lambda (entity) (= (kora_field (entget entity) 0) "INSERT")) (kora_block_entities name)))

;; (kora_insert_name entity) -> the name of the block that a reference stands for, in capitals.
(defun kora_insert_name (entity)
  (strcase (kora_field (entget entity) 2)))

;; (kora_known_insert_name entity) -> the same under which a user knows the block.
(defun kora_known_insert_name (entity)
  (strcase (kora_known_name (kora_field (entget entity) 2))))

;; (kora_block_names) -> the names of the blocks that a user knows: without nameless ones and external references.
(defun kora_block_names ()
  (vl-remove-if-not '(lambda (name) (kora:is_user_block (tblsearch "BLOCK" name))) (kora_table_names "BLOCK")))

;; (kora_arrow_names) -> the names, in capitals, of the blocks that stand at the ends of dimension lines: the usual ones,
;; which are made when a dimension needs them, and those that dimension styles name.
(defun kora_arrow_names (/ names)
  (setq names (cons "_CLOSEDFILLED" (mapcar '(lambda (arrow) (strcase (car arrow))) kora:arrows)))
  (foreach style (kora_table_names "DIMSTYLE")
    (foreach field (entget (tblobjname "DIMSTYLE" style))
      (cond ((and (member (car field) '(5 6 7)) (/= (cdr field) "")) (setq names (cons (strcase (cdr field)) names)))
            ((and (<= 341 (car field) 344) (entget (cdr field)))
             (setq names (cons (strcase (kora_field (entget (cdr field)) 2)) names))))))
  names)

;; 1 is nameless, 4 and 8 an external reference, 16 a part of one.
(defun kora:is_user_block (block)
  (and (= 0 (logand 29 (cond ((kora_field block 70)) (0))))
       (/= "*" (substr (kora_field block 2) 1 1))))

;; (kora_known_name name) -> the name under which a user knows a block. A reference whose appearance the user set has a
;; nameless block of its own, which says from which block it was made; other nameless blocks keep their name.
(defun kora_known_name (name / origin passed)
  (while (and (kora_starts_with name "*")
              (not (member name passed))
              (setq origin (kora:dynamic_origin name)))
    (setq passed (cons name passed)
          name   origin))
  name)

;; The name of the block that a nameless one was made from: of the block whose handle it holds, else the name that it
;; holds, or that block does where it has become nameless itself; nil when it says nothing.
(defun kora:dynamic_origin (name / record data origin)
  (setq record (kora_block_record name)
        data   (if record (entget record '("AcDbBlockRepBTag" "AcDbDynamicBlockTrueName")))
        origin (kora_extended data "AcDbBlockRepBTag" 1005)
        origin (if origin (handent origin))
        origin (if origin (kora_field (entget origin) 2)))
  (cond ((and origin (not (kora_starts_with origin "*"))) origin)
        ((kora_extended data "AcDbDynamicBlockTrueName" 1000))
        (origin)))

;; (kora_block_record name) -> the entity name of a block's table record, in early drawings of its BLOCK; nil when there
;; is no such block.
(defun kora_block_record (name / block)
  (if (setq block (tblobjname "BLOCK" name))
    (cond ((kora_owner (entget block))) (block))))

;; (kora_block_graph) -> a tree (see kora_tree) with each block's references by name: a list of (NAME . number).
(defun kora_block_graph ()
  (kora_tree (mapcar '(lambda (count)
                        (cons (car count) (kora_counted (mapcar 'kora_insert_name (kora_block_inserts (car count))))))
                     (kora_counted (mapcar 'strcase (kora_table_names "BLOCK"))))))

;; (kora_counted texts) -> a list of (text . how often it is there), sorted.
(defun kora_counted (texts / counts)
  (foreach text (vl-sort texts '<)
    (setq counts (if (= text (caar counts))
                   (cons (cons text (1+ (cdar counts))) (cdr counts))
                   (cons (cons text 1) counts))))
  (reverse counts))

;; (kora_tree pairs) -> a tree in which values are found by name fast. pairs is a list of (text . value), sorted, each
;; text once.
(defun kora_tree (pairs / left)
  (if pairs
    (progn
      (repeat (/ (length pairs) 2)
        (setq left  (cons (car pairs) left)
              pairs (cdr pairs)))
      (list (car pairs) (kora_tree (reverse left)) (kora_tree (cdr pairs))))))

;; (kora_tree_find tree text) -> the pair of text, nil when there is none.
(defun kora_tree_find (tree text)
  (while (and tree (/= text (caar tree)))
    (setq tree (if (< text (caar tree)) (cadr tree) (caddr tree))))
  (car tree))

;; (kora_tree_texts tree) -> the texts of its pairs, sorted.
(defun kora_tree_texts (tree / texts)
  (kora:collect_texts tree)
  texts)

(defun kora:collect_texts (tree)
  (if tree
    (progn
      (kora:collect_texts (caddr tree))
      (setq texts (cons (caar tree) texts))
      (kora:collect_texts (cadr tree)))))

;; (kora_tree_with tree text value) -> the tree with another value for a text that it has.
(defun kora_tree_with (tree text value)
  (cond ((null tree) nil)
        ((= text (caar tree)) (cons (cons text value) (cdr tree)))
        ((< text (caar tree)) (list (car tree) (kora_tree_with (cadr tree) text value) (caddr tree)))
        (T (list (car tree) (cadr tree) (kora_tree_with (caddr tree) text value)))))

;; (kora_blocks_within graph names) -> the blocks of these names and all that are in them, each before what is in it.
(defun kora_blocks_within (graph names / left order)
  (setq left graph)
  (foreach name names (kora:visit_block name))
  order)

;; Puts a block in front of order behind what is in it; left is the graph with nil for the blocks that were visited.
(defun kora:visit_block (name)
  (if (listp (cdr (cond ((kora_tree_find left name)) ('(nil . T)))))
    (progn
      (setq left (kora_tree_with left name 'VISITED))
      (foreach count (cdr (kora_tree_find graph name)) (kora:visit_block (car count)))
      (setq order (cons name order)))))

;; (kora_own_definitions) -> the names of the definitions that are the drawing's own, nameless ones included: all but
;; external references and their parts.
(defun kora_own_definitions ()
  (vl-remove-if '(lambda (name) (/= 0 (logand 28 (cond ((kora_field (tblsearch "BLOCK" name) 70)) (0)))))
                (kora_table_names "BLOCK")))
