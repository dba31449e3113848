;;; PLOTLAYOUTS plots every layout of the drawing to a PDF file of its own, beside the drawing.
;;;
;;; The files are called after the drawing and the layout: "plan-Ground floor.pdf". Each sheet is plotted as its page
;;; setup has it, in the plotter's black. The layout that was looked at is looked at again afterwards.

;; The names of the sheets, as the drawing's dictionary of layouts has them.
(defun plotlayouts:names (/ names)
  (foreach field (dictsearch (namedobjdict) "ACAD_LAYOUT")
    (if (and (= (car field) 3) (/= (strcase (cdr field)) "MODEL")) (setq names (cons (cdr field) names))))
  (reverse names))

;; A layout's name as a part of a file's name.
(defun plotlayouts:safe (name)
  (vl-list->string
    (mapcar '(lambda (c) (if (member c (vl-string->list "<>:\"/\\|?*")) (ascii "_") c))
            (vl-string->list name))))

;; The path of a layout's file.
(defun plotlayouts:path (layout)
  (strcat (getvar "DWGPREFIX") (vl-filename-base (getvar "DWGNAME")) "-" (plotlayouts:safe layout) ".pdf"))

;; Plots one layout; the path when there is a file afterwards.
(defun plotlayouts:one (layout / path)
  (setq path (plotlayouts:path layout))
  (setvar "CTAB" layout)
  (command "_.-PLOT" "_Yes" layout "PDF" "" "_Millimeters" "" "_No" "_Layout" "1:1" "_Center"
           "_Yes" "monochrome.ctb" "_Yes" "_No" "_No" "_No" path "_No" "_Yes")
  (if (findfile path) path))

(defun c:plotlayouts (/ *error* before echo names done)
  (setq before (getvar "CTAB") echo (getvar "CMDECHO") names (plotlayouts:names))
  (defun *error* (message)
    (setvar "CTAB" before)
    (setvar "CMDECHO" echo)
    (princ (strcat "\nPLOTLAYOUTS: " message))
    (princ))
  (setvar "CMDECHO" 0)
  (foreach layout names
    (if (plotlayouts:one layout) (setq done (cons layout done))))
  (setvar "CTAB" before)
  (setvar "CMDECHO" echo)
  (princ (strcat "\n" (itoa (length done)) " of " (itoa (length names)) " layouts plotted."))
  (princ))

(princ "\nPLOTLAYOUTS plots all layouts to PDF.")
(princ)
