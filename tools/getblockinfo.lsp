;;; menu: Get block info | GETBLOCKINFO | Counts the blocks of the drawing, for a text file or a table in the drawing | Blocks and attributes
;;;
;;; GETBLOCKINFO: the dialog shows how often each block stands in the drawing, in all its layouts, and with the blocks
;;; within other blocks as often as they are seen: a desk in a room that stands there three times counts three. It
;;; writes the text file itself. The table is drawn from a picked corner downwards, as large as its texts need.
;;;
;;; A reference whose appearance the user set counts under the name of its block. Other nameless blocks, those of
;;; dimensions and the like, are not listed, but what is in them counts.

(defun c:getblockinfo (/ *error* kora:variables file plain all)
  (kora_begin '(("CMDECHO" . 0)))
  (setq file  (kora_statefile "getblockinfo")
        plain (kora_counted (mapcar 'kora_insert_name (kora_space_inserts)))
        all   (getblockinfo:known (getblockinfo:with_nested plain))
        plain (getblockinfo:known plain))
  (if (equal (kora_show 'Dlg_getblockinfo (list file (getblockinfo:entries plain) (getblockinfo:entries all))) '("TABLE"))
    (getblockinfo:draw (if (= (kora_state_value (kora_readstate file) "nestedcheckbox") "TRUE") all plain)))
  (kora_end))

;; -> counts with those of the blocks within. A block stands in the drawing as often as all that it is in, together.
(defun getblockinfo:with_nested (counts / graph total number child)
  (setq graph (kora_block_graph)
        total (kora_tree (mapcar '(lambda (name) (cons (car name) 0.0))
                                 (kora_counted (append (mapcar 'car counts)
                                                       (mapcar 'strcase (kora_table_names "BLOCK")))))))
  (foreach count counts (setq total (kora_tree_with total (car count) (float (cdr count)))))
  (foreach name (kora_blocks_within graph (mapcar 'car counts))
    (setq number (cdr (kora_tree_find total name)))
    (foreach count (cdr (kora_tree_find graph name))
      (setq child (kora_tree_find total (car count)))
      (if child
        (setq total (kora_tree_with total (car child) (min 2147483647.0 (+ (cdr child) (* number (cdr count)))))))))
  (getblockinfo:of_tree total))

;; -> the numbers of a tree as a list of (name . number).
(defun getblockinfo:of_tree (tree)
  (if tree
    (append (getblockinfo:of_tree (cadr tree))
            (list (cons (caar tree) (fix (cdar tree))))
            (getblockinfo:of_tree (caddr tree)))))

;; -> the counts under the names that the user knows, sorted by them.
(defun getblockinfo:known (counts / known result)
  (foreach count counts
    (setq known (cons (cons (getblockinfo:written (kora_known_name (car count))) (cdr count)) known)))
  (foreach count (vl-sort known '(lambda (a b) (< (strcase (car a)) (strcase (car b)))))
    (cond ((or (= (substr (car count) 1 1) "*") (= (cdr count) 0)))
          ((= (strcase (car count)) (strcase (cond ((caar result)) (""))))
           (setq result (cons (cons (caar result) (+ (cdar result) (cdr count))) (cdr result))))
          (T (setq result (cons count result)))))
  (reverse result))

;; The name as its definition has it.
(defun getblockinfo:written (name)
  (cond ((kora_field (tblsearch "BLOCK" name) 2)) (name)))

(defun getblockinfo:entries (counts)
  (mapcar '(lambda (count) (strcat (car count) ";" (itoa (cdr count)))) counts))

(defun getblockinfo:draw (counts / corner height)
  (if (and counts
           (setq corner (getPointOrtakit (kora_text "\nSpecify upper left corner of the table: " nil)))
           (setq height (getblockinfo:ask_height)))
    (progn
      (getblockinfo:draw_table corner height
                               (cons '("Name" . "Instances")
                                     (mapcar '(lambda (count) (cons (car count) (itoa (cdr count)))) counts)))
      (kora_alert_message (kora_text "A table of %1 was drawn." (list (kora_number_of (length counts) "block")))))
    (kora_alert_message "No table was drawn.")))

;; -> the height of the texts: that of the last table unless the user says another. A style's own height is not asked.
;; It has a file of its own, because the dialog writes what it knows only.
(defun getblockinfo:ask_height (/ file kept)
  (setq file (kora_statefile "getblockinfo-table")
        kept (kora_state_real (kora_readstate file) "textheight")
        kept (if (and kept (> kept 0.0)) kept (kora_text_height)))
  (if (kora_style_height)
    (kora_style_height)
    (progn
      (initgetOrtakit 6)
      (setq kept (getDistOrtakit corner (kora_text "\nSpecify text height <%1>: " (list (kora_real_text kept)))))
      (if kept (kora_writestate file (list (cons "textheight" (kora_real_text kept)))))
      kept)))

;; Rows are two heights of text high; a column has a height of text for each letter, and half of one on both sides.
(defun getblockinfo:draw_table (corner height rows / widths bottom)
  (setq widths (list (getblockinfo:width (mapcar 'car rows)) (getblockinfo:width (mapcar 'cdr rows)))
        bottom (* -2.0 height (length rows)))
  (foreach place (list 0.0 (car widths) (apply '+ widths))
    (kora_make_line (getblockinfo:at place 0.0) (getblockinfo:at place bottom)))
  (kora_make_line corner (getblockinfo:at (apply '+ widths) 0.0))
  (setq bottom 0.0)
  (foreach row rows
    (kora_make_text (getblockinfo:at (* 0.5 height) (- bottom (* 1.5 height))) height (car row) 0)
    (kora_make_text (getblockinfo:at (- (apply '+ widths) (* 0.5 height)) (- bottom (* 1.5 height)))
                    height (cdr row) 2)
    (setq bottom (- bottom (* 2.0 height)))
    (kora_make_line (getblockinfo:at 0.0 bottom) (getblockinfo:at (apply '+ widths) bottom))))

(defun getblockinfo:width (texts)
  (* height (1+ (apply 'max (mapcar 'strlen texts)))))

(defun getblockinfo:at (right up)
  (list (+ (car corner) right) (+ (cadr corner) up) (caddr corner)))

(princ)
