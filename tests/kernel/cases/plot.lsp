; A sheet of the size that was named, at the scale that was asked for: PDF counts in points of 1/72 inch
(defun lines (name / f l all)
  (setq f (open (strcat dir name) "r"))
  (while (setq l (read-line f)) (setq all (cons l all)))
  (close f)
  (reverse all))
(defun finds (name pattern) (if (vl-some '(lambda (l) (wcmatch l pattern)) (lines name)) T))
(command "LINE" '(0 0) '(100 50) "")(command "-PLOT" "Y" "Model" "DWG To PDF.pc3" "ISO_full_bleed_A4_(210.00_x_297.00_MM)" "_Millimeters" "_Landscape" "_No" "_Window" '(0 0) '(100 50) "1:1" "_Center" "_Yes" "monochrome.ctb" "_Yes" "As displayed" (strcat dir "one.pdf") "_No" "_Yes") ;> Plotted to ;= nil
(finds "one.pdf" "*MediaBox*842*595*") ;= T
(command "-PLOT" "Y" "Model" "PDF" "CUSTOM (210 x 297 MM)" "M" "P" "N" "E" "F" "C" "Y" "." "Y" "A" (strcat dir "two") "N" "Y")(finds "two.pdf" "*MediaBox*595*842*") ;= T
(command "-PLOT" "Y" "Model" "SVG" "A3" "M" "L" "N" "E" "F" "C" "N" "N" "H" (strcat dir "three.svg") "N" "Y")(finds "three.svg" "*width=*420*mm*") ;= T
(command "-PLOT" "N" "Layout1" "" "PNG" (strcat dir "four.png") "N" "Y")(< 100 (vl-file-size (strcat dir "four.png"))) ;= T
(command "-PLOT" "Y" "Model" "PDF" "A4" "M" "L" "N" "E" "F" "C" "Y" "" "Y" "A" (strcat dir "five") "N" "N")(findfile (strcat dir "five.pdf")) ;= nil
(getvar "CTAB") ;= "Model"
; What is saved in the page setup is what the next plot begins with; a plot that is not wanted writes no file
(defun page (n codes / l) (setq l (member '(100 . "AcDbPlotSettings") (dictsearch (cdr (assoc -1 (dictsearch (namedobjdict) "ACAD_LAYOUT"))) n))) (mapcar '(lambda (c) (cdr (assoc c l))) codes))
(command "-PLOT" "Y" "Layout1" "PDF" "A3" "M" "P" "N" "Window" '(1 2) '(30 40) "1:50" "3,4" "Y" "monochrome.ctb" "N" "N" "N" "N" (strcat dir "six") "Y" "N")(list (findfile (strcat dir "six.pdf")) (page "Layout1" '(44 45 73 74 48 49 140 141 142 143 46 47 7))) ;= (nil (297.0 420.0 0 4 1.0 2.0 30.0 40.0 0.02 1.0 3.0 4.0 "monochrome.ctb"))
(mapcar '(lambda (flag) (logand flag (car (page "Layout1" '(70))))) '(4 16 32 128)) ;= (0 0 32 0)
(command "-PLOT" "Y" "Layout1" "PDF" "" "M" "L" "N" "E" "F" "C" "N" "Y" "N" "N" "N" (strcat dir "six") "Y" "Y")(list (page "Layout1" '(44 45 74 75)) (mapcar '(lambda (flag) (logand flag (car (page "Layout1" '(70))))) '(4 16 32 128))) ;= ((420.0 297.0 1 0) (4 16 0 128))
(finds "six.pdf" "*MediaBox*1191*842*") ;= T

; The sample plots every layout beside the drawing and goes back to where it was
(setq samples (strcat (getenv "ORTAKIT_SOURCE") "/samples/lisp"))(setvar "TRUSTEDPATHS" samples)(command "SAVEAS" (strcat dir "plan.dxf"))(command "LAYOUT" "N" "Ground floor" "LAYOUT" "R" "Layout1" "Detail")(load (strcat samples "/plot-layouts.lsp"))(princ) ;> PLOTLAYOUTS plots all layouts
(progn (c:plotlayouts) nil) ;> 2 of 2 layouts plotted. ;= nil
(list (getvar "CTAB") (getvar "CMDECHO") (mapcar '(lambda (n) (if (findfile (strcat dir "plan-" n ".pdf")) T)) '("Ground floor" "Detail"))) ;= ("Model" 1 (T T))
