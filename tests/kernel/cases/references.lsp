; External references of drawings that are files: what they bring into the tables, and what becomes of that.
(defun file (name text / f) (setq f (open (strcat dir name) "w")) (princ text f) (close f))
(defun dxf (name groups) (file name (apply 'strcat (mapcar '(lambda (g) (strcat g "\n")) groups))))
(defun old (name shown)
  (dxf name (append '("0" "SECTION" "2" "TABLES" "0" "TABLE" "2" "LTYPE" "70" "1" "0" "LTYPE" "2" "Dash" "70" "0" "3" "-" "72" "65"
    "73" "2" "40" "2" "49" "1" "49" "-1" "0" "ENDTAB" "0" "TABLE" "2" "LAYER" "70" "1" "0" "LAYER" "2" "Wall" "70" "0" "62" "3" "6" "Dash"
    "0" "ENDTAB" "0" "ENDSEC" "0" "SECTION" "2" "BLOCKS") shown
    '("0" "ENDSEC" "0" "SECTION" "2" "ENTITIES" "0" "LINE" "8" "Wall" "10" "0" "20" "0" "11" "5" "21" "0")
    (if shown (list "0" "INSERT" "8" "0" "2" (nth 5 shown) "10" "0" "20" "0")) '("0" "ENDSEC" "0" "EOF"))))
(defun reference (name flags path)
  (list "0" "BLOCK" "8" "0" "2" name "70" flags "10" "0" "20" "0" "1" path "0" "ENDBLK" "8" "0"))
(defun newer ()
  (setvar "EXPERT" 2)(command "_.UNDO" "_Mark")
  (entmake '((0 . "LTYPE") (100 . "AcDbSymbolTableRecord") (100 . "AcDbLinetypeTableRecord") (2 . "Dash") (70 . 0) (3 . "-") (72 . 65) (73 . 2)
    (40 . 2.0) (49 . 1.0) (74 . 0) (49 . -1.0) (74 . 0)))
  (command "_.-LAYER" "_N" "Wall" "_C" 3 "Wall" "_LT" "Dash" "Wall" "" "_.-STYLE" "Fine" "txt" 0 1 0 "_N" "_N" "_N")
  (entmake '((0 . "BLOCK") (2 . "Door") (70 . 0) (10 0.0 0.0 0.0)))
  (entmake '((0 . "LINE") (8 . "Wall") (10 0.0 0.0 0.0) (11 1.0 0.0 0.0)))
  (entmake '((0 . "ENDBLK")))
  (entmake '((0 . "INSERT") (2 . "Door") (10 2.0 0.0 0.0)))
  (entmake '((0 . "TEXT") (7 . "Fine") (8 . "Wall") (10 0.0 0.0 0.0) (40 . 1.0) (1 . "x")))
  (command "_.-WBLOCK" (strcat dir "site.dxf") "" '(0 0) (ssget "X") "" "_.UNDO" "_Back" "_.UNDO" "_Mark"))
(defun names (table / e r)
  (while (setq e (tblnext table (not e)))
    (if (wcmatch (cdr (assoc 2 e)) "*[|$]*,Wall,Door,Fine,Dash") (setq r (cons (cdr (assoc 2 e)) r))))
  (acad_strlsort r))
(defun all () (mapcar 'names '("LAYER" "LTYPE" "STYLE" "BLOCK")))
(defun value (table name code) (cdr (assoc code (tblsearch table name))))
(defun attach (option name) (command "_.-XREF" option (vl-string-subst (strcat "=" dir) "=" (if (wcmatch name "*=*") name (strcat dir name))) '(1 2) "" "" "") (cdr (assoc 2 (entget (entlast)))))
(defun in-block (name / e r)
  (setq e (cdr (assoc -2 (tblsearch "BLOCK" name))))
  (while e (setq r (cons (strcat (cdr (assoc 0 (entget e))) " " (cdr (assoc 8 (entget e)))) r) e (entnext e)))
  (reverse r))
(defun bind (kind name) (setvar "BINDTYPE" kind) (command "_.-XREF" "_B" name) (setvar "BINDTYPE" 0) (all))

; What a drawing of this form brings; undone and done again
(newer)(all) ;= (nil nil nil nil)
(attach "_A" "site.dxf") ;= "site"
(all) ;= (("site|Wall") ("site|Dash") ("site|Fine" "site|Standard") ("site|Door"))
(mapcar '(lambda (c) (value "LAYER" "site|Wall" c)) '(70 62 6)) ;= (48 3 "site|Dash")
(value "BLOCK" "site" 70) ;= 4
(command "_.U")(list (all) (tblsearch "BLOCK" "site")) ;= ((nil nil nil nil) nil)
(progn (attach "_O" "site")(value "BLOCK" "site" 70)) ;= 12
(attach "_A" "site.dxf") ;> has already been defined ;= "site"
(progn (command "_.-LAYER" "_C" 1 "site|Wall" "")(command "_.-XREF" "_R" "s*,none")(value "LAYER" "site|Wall" 62)) ;= 1
(progn (setvar "VISRETAIN" 0)(command "_.-XREF" "_Reload" "*")(setvar "VISRETAIN" 1)(value "LAYER" "site|Wall" 62)) ;= 3
(command "_.-XREF" "_?" "") ;> Overlay ;= nil
(progn (command "_.-XREF" "_U" "site")(command "_.-XREF" "_?" "")) ;> Unloaded ;= nil
(progn (command "_.-XREF" "_R" "site")(command "_.-XREF" "_?" "")) ;> "site" loaded. ;= nil
(command "_.-LAYER" "_R" "site|Wall" "Mine" "") ;> cannot be renamed ;= nil
(command "_.-PURGE" "_A" "*" "_N")(all) ;= (("site|Wall") ("site|Dash") ("site|Fine" "site|Standard") ("site|Door"))
; the file has other entries when it is read again
(progn (old "site.dxf" nil)(command "_.-XREF" "_R" "site")(all)) ;= (("site|Wall") ("site|Dash") nil nil)
(progn (command "_.-XREF" "_D" "SITE")(list (all) (ssget "X" '((0 . "INSERT"))))) ;= ((nil nil nil nil) nil)

; Bound, by both ways
(newer)(attach "_A" "site.dxf") ;= "site"
(command "_.-LAYER" "_C" 1 "site|Wall" "")(bind 0 "site")
;= (("site$0$Wall") ("site$0$Dash") ("site$0$Fine" "site$0$Standard") ("site$0$Door"))
(list (in-block "site") (in-block "site$0$Door")) ;= (("TEXT site$0$Wall" "INSERT 0") ("LINE site$0$Wall"))
(mapcar '(lambda (c) (value "LAYER" "site$0$Wall" c)) '(70 62 6)) ;= (0 1 "site$0$Dash")
(list (value "BLOCK" "site" 70) (value "BLOCK" "site" 1)) ;= (0 nil)
(attach "_A" "site") ;> is a block's already ;= "site"
(progn (attach "_A" "site2=site.dxf")(entdel (entlast))(command "_.-XREF" "_B" "none")) ;> No matching ;= nil
(command "_.UNDO" "_Back")(newer)(attach "_A" "site.dxf")(bind 1 "*") ;= (("Wall") ("Dash") ("Fine") ("Door"))
(mapcar '(lambda (c) (value "LAYER" "Wall" c)) '(70 62 6)) ;= (0 3 "Dash")
(in-block "site") ;= ("TEXT Wall" "INSERT 0")
; names that are there already stand for both
(command "_.UNDO" "_Back")(newer)(attach "_A" "site.dxf")(command "_.-LAYER" "_N" "wall" "_C" 5 "Wall" "" "_.-RENAME" "_LA" "wall" "Wall")(bind 1 "site")
;= (("Wall") ("Dash") ("Fine") ("Door"))
(list (value "LAYER" "Wall" 62) (in-block "site")) ;= (5 ("TEXT Wall" "INSERT 0"))
; a taken prefix takes the next number
(command "_.UNDO" "_Back")(newer)(attach "_A" "site.dxf")(command "_.-LAYER" "_N" "site$0$X" "")(car (bind 0 "site")) ;= ("site$0$X" "site$1$Wall")

; Of early form, nested, around in a circle, overlaid
(old "b.dxf" (reference "a" "4" "a.dxf"))(old "a.dxf" (reference "b" "4" "sub/b.dxf"))(old "c.dxf" (reference "b" "12" "b.dxf"))
(attach "_A" "a.dxf") ;= "a"
(all) ;= (("a|Wall") ("a|Dash") nil nil)
(bind 0 "a") ;= (("a$0$Wall" "b$0$Wall") ("a$0$Dash" "b$0$Dash") nil nil)
(list (in-block "a") (in-block "b")) ;= (("LINE a$0$Wall" "INSERT 0") ("LINE b$0$Wall"))
(progn (attach "_A" "c.dxf")(bind 0 "c")(in-block "c")) ;= ("LINE c$0$Wall")
; a drawing is not seen in itself
(command "_.SAVEAS" "" (strcat dir "own.dxf"))(old "d.dxf" (reference "own" "4" "./own.dxf"))(attach "_A" "d.dxf") ;> shows this drawing ;= "d"
(command "_.-XREF" "_A" (strcat dir "own.dxf")) ;> cannot refer to itself ;= nil
(list (value "BLOCK" "d" 1) (progn (setvar "REFPATHTYPE" 0)(attach "_A" "x=c.dxf")(value "BLOCK" "x" 1))) ;= ("./d.dxf" "c.dxf")
(progn (setvar "REFPATHTYPE" 2)(attach "_A" "y=c.dxf")(setvar "REFPATHTYPE" 1)(= (value "BLOCK" "y" 1) (strcat dir "c.dxf"))) ;= T
(progn (command "_.-XREF" "_P" "x,y" "gone.dxf" "")(list (value "BLOCK" "x" 1) (= (value "BLOCK" "y" 1) (strcat dir "c.dxf")))) ;> Cannot find file ;= ("gone.dxf" T)
(command "_.-XREF" "_A" (strcat dir "none")) ;> Cannot find file ;= nil
(progn (file "text.dxf" "no drawing")(command "_.-XREF" "_A" (strcat dir "text.dxf"))) ;> is no drawing ;= nil

; A reference in other units is scaled to those of the drawing
(setvar "INSUNITS" 6)(newer)(setvar "INSUNITS" 4)(attach "_A" "site.dxf")(cdr (assoc 41 (entget (entlast)))) ;= 1000.0
(progn (command "_.-XREF" "_A" (strcat dir "site") "_S" 2 '(0 0) "")(mapcar '(lambda (c) (cdr (assoc c (entget (entlast))))) '(41 42 43))) ;= (2000.0 2000.0 2000.0)
