;;; MATERIALS: a bill of the blocks that a drawing uses.
;;;
;;; Counts the insertions of each block, apart by the values of their attributes if that is wanted, lists them in the
;;; dialog of materials.dcl, writes them to a file of values between commas, and draws them as a table of texts.
;;;
;;;   ortakit lisp samples/lisp/materials.lsp        only defines the command
;;;   Command: (load ".../samples/lisp/materials")   and then MATERIALS
;;;
;;; A row is a list: how many, the block's name, its attributes as a text "TAG=value, TAG=value".

;; What is asked for, from one call of the command to the next.
(if (null materials:apart) (setq materials:apart "1"))
(if (null materials:here) (setq materials:here "0"))
(if (null materials:sort) (setq materials:sort "0"))

;; How many copies an insertion with rows and columns shows.
(defun materials:copies (data)
  (* (max 1 (cond ((cdr (assoc 70 data))) (1)))
     (max 1 (cond ((cdr (assoc 71 data))) (1)))))

(defun materials:attributes (insert data / part text)
  (setq text "")
  (if (= 1 (cdr (assoc 66 data)))
    (while (and (setq insert (entnext insert))
                (= "ATTRIB" (cdr (assoc 0 (setq part (entget insert))))))
      (setq text (strcat text (if (= text "") "" ", ") (cdr (assoc 2 part)) "=" (cdr (assoc 1 part))))))
  text)

;; A pair for each insertion: block and attributes with a tab between, and the copies.
(defun materials:insertions (here apart / filter all index insert data name pairs)
  (setq filter (list '(0 . "INSERT"))
        filter (if here (cons (cons 410 (getvar "CTAB")) filter) filter)
        all    (ssget "_X" filter)
        index  0)
  (repeat (if all (sslength all) 0)
    (setq insert (ssname all index)
          data   (entget insert)
          name   (cdr (assoc 2 data))
          index  (1+ index))
    ;; Names that begin so are blocks that the program made for itself.
    (if (/= "*" (substr name 1 1))
      (setq pairs (cons (cons (strcat name "\t" (if apart (materials:attributes insert data) ""))
                              (materials:copies data))
                        pairs))))
  pairs)

;; Equal ones stand behind each other when they are sorted, so that counting takes one walk.
(defun materials:rows (here apart / rows seen tab)
  (foreach pair (vl-sort (materials:insertions here apart) '(lambda (a b) (< (car a) (car b))))
    (if (= (car pair) seen)
      (setq rows (cons (cons (+ (caar rows) (cdr pair)) (cdar rows)) (cdr rows)))
      (setq seen (car pair)
            tab  (vl-string-position 9 seen)
            rows (cons (list (cdr pair) (substr seen 1 tab) (substr seen (+ tab 2))) rows))))
  (reverse rows))

(defun materials:sorted (rows by)
  (cond
    ((= by "1") (vl-sort rows '(lambda (a b) (if (= (car a) (car b)) (< (cadr a) (cadr b)) (> (car a) (car b))))))
    ((= by "2") (vl-sort rows '(lambda (a b) (< (strcat (caddr a) "\t" (cadr a)) (strcat (caddr b) "\t" (cadr b))))))
    (rows)))

(defun materials:total (rows)
  (apply '+ (cons 0 (mapcar 'car rows))))

;;; The dialog.

(defun materials:show-share ( / chosen wide high part)
  (setq chosen (get_tile "rows")
        wide   (dimx_tile "share")
        high   (dimy_tile "share")
        part   (if (= chosen "")
                 0.0
                 (/ (float (car (nth (atoi chosen) rows))) (max 1 (materials:total rows)))))
  (start_image "share")
  (fill_image 0 0 wide high -15)
  (fill_image 0 0 (fix (* part wide)) high 140)
  (foreach line (list (list 0 0 wide 0) (list wide 0 wide high) (list wide high 0 high) (list 0 high 0 0))
    (vector_image (car line) (cadr line) (caddr line) (cadddr line) -18))
  (end_image))

(defun materials:show-rows ()
  (setq rows (materials:sorted (materials:rows (= materials:here "1") (= materials:apart "1")) materials:sort))
  (start_list "rows")
  (foreach row rows
    (add_list (strcat (itoa (car row)) "\t" (cadr row) "\t" (caddr row))))
  (end_list)
  (set_tile "rows" "")
  (set_tile "total" (strcat (itoa (materials:total rows)) " insertions of " (itoa (length rows)) " kinds"))
  (set_tile "error" "")
  (mode_tile "draw" (if rows 0 1))
  (mode_tile "file" (if rows 0 1))
  (materials:show-share))

(defun materials:check-height (text)
  (if (and (distof text) (> (distof text) 0.0))
    (progn (setq height (distof text)) (set_tile "error" "") T)
    (progn (set_tile "error" "The text height must be a number above 0.") (mode_tile "height" 3) nil)))

(defun materials:accept-draw ()
  (setq title (get_tile "title"))
  (if (materials:check-height (get_tile "height"))
    (done_dialog 2)))

(defun materials:ask-file ( / path)
  (if (setq path (getfiled "Write the bill to" "materials" "csv" 1))
    (set_tile "error" (if (materials:write path rows)
                        (strcat (itoa (length rows)) " rows were written.")
                        "The file cannot be written."))))

(defun materials:dialog (dcl)
  (if (not (new_dialog "materials" dcl))
    (exit))
  (set_tile "sort" materials:sort)
  (set_tile "apart" materials:apart)
  (set_tile "here" materials:here)
  (set_tile "title" title)
  (set_tile "height" (rtos height 2))
  (materials:show-rows)
  (action_tile "rows" "(materials:show-share)")
  (action_tile "sort" "(setq materials:sort $value) (materials:show-rows)")
  (action_tile "apart" "(setq materials:apart $value) (materials:show-rows)")
  (action_tile "here" "(setq materials:here $value) (materials:show-rows)")
  (action_tile "height" "(materials:check-height $value)")
  (action_tile "file" "(materials:ask-file)")
  (action_tile "draw" "(materials:accept-draw)")
  (start_dialog))

;;; The file.

;; A value between quotes, whose own are doubled.
(defun materials:quoted (text / from)
  (setq from 0)
  (while (setq from (vl-string-search "\"" text from))
    (setq text (strcat (substr text 1 from) "\"" (substr text (1+ from)))
          from (+ from 2)))
  (strcat "\"" text "\""))

(defun materials:write (path rows / file)
  (if (setq file (open path "w"))
    (progn
      (write-line "Count,Block,Attributes" file)
      (foreach row rows
        (write-line (strcat (itoa (car row)) "," (materials:quoted (cadr row)) "," (materials:quoted (caddr row)))
                    file))
      (close file)
      T)))

;;; The table, in the plane of the current coordinate system.

(defun materials:text (point text height / normal)
  (setq normal (trans '(0.0 0.0 1.0) 1 0 T))
  (entmake (list '(0 . "TEXT") (cons 10 (trans point 1 normal)) (cons 40 height) (cons 1 text)
                 (cons 50 (angle '(0.0 0.0 0.0) (trans (getvar "UCSXDIR") 0 normal)))
                 (cons 210 normal))))

(defun materials:width (texts height / box)
  (apply 'max
         (mapcar '(lambda (text)
                    (setq box (textbox (list (cons 1 (if (= text "") " " text)) (cons 40 height))))
                    (- (caadr box) (caar box)))
                 texts)))

(defun materials:line (from to)
  (entmake (list '(0 . "LINE") (cons 10 (trans from 1 0)) (cons 11 (trans to 1 0)))))

(defun materials:draw (rows title height corner / step columns x y widths)
  (setq step    (* 1.8 height)
        columns (list (cons "Count" (mapcar '(lambda (row) (itoa (car row))) rows))
                      (cons "Block" (mapcar 'cadr rows))
                      (cons "Attributes" (mapcar 'caddr rows)))
        widths  (mapcar '(lambda (column) (+ (* 2.0 height) (materials:width column height))) columns)
        x       (car corner)
        y       (cadr corner))
  (materials:text (list x (+ y height) 0.0) title (* 1.4 height))
  (foreach column columns
    (setq y (cadr corner))
    (foreach text column
      (if (/= text "")
        (materials:text (list (+ x height) (- y (* 1.4 height)) 0.0) text height))
      (setq y (- y step)))
    (setq x      (+ x (car widths))
          widths (cdr widths)))
  (setq y (cadr corner))
  (repeat (+ 2 (length rows))
    (materials:line (list (car corner) y 0.0) (list x y 0.0))
    (setq y (- y step))))

;;; The command.

(defun c:MATERIALS ( / *error* dcl rows title height corner)
  (defun *error* (message)
    (if dcl (unload_dialog dcl))
    (if (not (wcmatch (strcase message) "*CANCEL*,*QUIT*"))
      (princ (strcat "\nMATERIALS: " message)))
    (princ))
  (setq title  "Bill of materials"
        height (getvar "TEXTSIZE"))
  (if (> (setq dcl (load_dialog "materials")) 0)
    (if (= 2 (materials:dialog dcl))
      (if (setq corner (getpoint "\nUpper left corner of the table: "))
        (materials:draw rows title height corner))))
  (if (> dcl 0)
    (unload_dialog dcl))
  (princ))

(princ "\nMATERIALS is there.")
(princ)
