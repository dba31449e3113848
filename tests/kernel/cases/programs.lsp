; Programs beside this one are started where the user's own settings say so, which none can change
(startapp "true" "x") ;= nil ;> true is not started
(list (arxload "nosuch" nil) (arxload "nosuch" 5) (arxunload "nosuch" nil) (arx)) ;= (nil 5 nil nil)
(vlax-add-cmd "uno" '(lambda () 7))(list (c:uno) (vlax-remove-cmd "uno") (vlax-remove-cmd "uno")) ;= (7 T nil)
(list (initdia) (initdia 1) (setfunhelp "c:x" "x.chm") (autoarxload "a" '("B")) (help) (vl-bt-on)) ;= (nil nil "c:x" nil nil nil)
(arxload "nosuch") ;= error: programs load no modules: "nosuch" in (ARXLOAD)
(list (getcname "_line") (getcname "line") (getcname "nosuch") (initcommandversion) (vl-bt)) ;= ("LINE" "_LINE" nil T nil)
(defun gone () 1) (list (vl-acad-defun 'gone) (vl-acad-undefun 'gone) (vl-acad-undefun "GONE") gone) ;= (GONE T nil nil)
(menucmd "M=$(+,1,$(getvar,LUPREC))") ;= "5"
(list (menucmd "P1=*") (menugroup "ACAD")) ;= (nil nil)

; What programs keep for the user
(setq k (strcat "HKEY_CURRENT_USER\\" (vlax-product-key) "\\Test")) (vl-registry-read k "a") ;= nil
(list (vl-registry-write k "a" "ä=;\"") (vl-registry-write k "n" 7) (vl-registry-write k) (vl-registry-write (strcat k "\\Sub/Deep") "x" "y"))
;= ("ä=;\"" 7 "" "y")
(list (vl-registry-read (strcase k) "A") (vl-registry-read k "n") (vl-registry-read k)) ;= ("ä=;\"" 7 "")
(list (vl-registry-descendents k) (vl-registry-descendents k T) (vl-registry-descendents "none")) ;= (("Sub") ("" "a" "n") nil)
(list (vl-registry-delete k "a") (vl-registry-delete k "a") (vl-registry-read k "a")) ;= (T nil nil)
(list (vl-registry-delete k) (vl-registry-read (strcat k "\\Sub\\Deep") "x")) ;= (T nil)
(vl-registry-write k "a" car) ;= error: bad argument type: stringp <Subr: CAR> in (VL-REGISTRY-WRITE), argument 3
(list (setcfg "AppData/P/S/x" "1") (getcfg "APPDATA/p/S/x") (getcfg "AppData/P/S/y") (getcfg "P/x") (setcfg "P/x" "1"))
;= ("1" "1" "" nil nil)
(setq f (open (strcat dir "a.ini") "w")) (write-line "[One]\nx = 1\n;y=2\n[two]\nx=3" f) (close f) ;= nil
(list (acet-ini-get (strcat dir "a.ini") "one" "X") (acet-ini-get (strcat dir "a.ini") "ONE" "y" 5) (acet-ini-get (strcat dir "a.ini") "two"))
;= ("1" 5 ("x"))

; Data that programs keep in the drawing
(entmake '((0 . "POINT") (10 1.0 0.0 0.0))) (setq e (entlast))
(setq long "ä") (repeat 10 (setq long (strcat long long))) (strlen long) ;= 1024
(setq data (list 1 -2.5 "a" long 'sym nil '(1 . 2) (list '(3 "b") e))) (equal (vlax-ldata-put "Mine" "k" data) data) ;= T
(equal (vlax-ldata-get "Mine" "K") data) ;= T
(list (vlax-ldata-get "Mine" "none" 9) (vlax-ldata-get "Other" "k") (vlax-ldata-list "Other")) ;= (9 nil nil)
(vlax-ldata-put e "size" 12.25) (vlax-ldata-put e "name" "d") (list (vlax-ldata-get e "size") (vlax-ldata-list e))
;= (12.25 (("size" . 12.25) ("name" . "d")))
(list (vlax-ldata-delete e "name") (vlax-ldata-delete e "name") (vlax-ldata-list e)) ;= (T nil (("size" . 12.25)))
(list (vlax-ldata-test data) (vlax-ldata-test (list 1 car))) ;= (T nil)
(vlax-ldata-put "Mine" "f" car) ;= error: bad argument value: data <Subr: CAR> in (VLAX-LDATA-PUT), argument 3
(regapp "P") (setq room (xdroom e)) (entmod (append (entget e) '((-3 ("P" (1000 . "four") (1070 . 1) (1040 . 2.5))))))
(list (- room (xdroom e)) (xdsize (list -3 '("P" (1000 . "four") (1070 . 1) (1040 . 2.5))))) ;= (23 23)
(setq d (cdr (assoc -1 (dictsearch (namedobjdict) "MINE")))) (list (dictrename d "k" "m") (dictrename d "k" "n")) ;= ("m" nil)
(equal (vlax-ldata-get "Mine" "m") data) ;= T

; Helpers of the customary toolkit
(list (acet-str-find "b" "aBb") (acet-str-find "b" "aBb" T) (acet-str-find "x" "a") (acet-str-replace "a" "bb" "banana"))
;= (3 2 nil "bbbnbbnbb")
(repeat 2 (entmake '((0 . "POINT") (10 1.0 0.0 0.0)))) (entmake '((0 . "POINT") (10 2.0 0.0 0.0)))
(sslength (acet-ss-remove-dups (ssget "X"))) ;= 2
(list (acet-sys-shift-down) (acet-ui-message "Hello" "T" 0)) ;= (nil 1) ;> Hello

; Layouts, viewports, views
(command "LAYOUT" "N" "Plan") (list (layoutlist) (vports)) ;= (("Layout1" "Plan") ((2 (0.0 0.0) (1.0 1.0))))
(setview '((10 5.0 6.0) (40 . 30.0) (41 . 10.0))) (list (getvar "VIEWSIZE") (getvar "VIEWCTR")) ;= (30.0 (5.0 6.0 0.0))
(setview '((40 . 30.0))) ;= error: bad argument value: view ((40 . 30.0)) in (SETVIEW), argument 1

; How sets were chosen
(entmake '((0 . "POINT") (10 1.0 1.0 0.0))) (setq a (entlast)) (entmake '((0 . "POINT") (10 50.0 1.0 0.0)))
(setq b (entlast)) (equal (ssnamex (ssget "X")) (list (list 0 b 0) (list 0 a 0))) ;= T
(vl-remove-if 'listp (mapcar 'cadr (ssnamex (ssget "X")))) (equal (ssnamex (ssget '(1.0 1.0))) (list (list 1 a 0 '(0 (1.0 1.0 0.0))))) ;= T
(setq s (ssget "W" '(0.0 0.0) '(2.0 3.0)))
(equal (ssnamex s) (list (list 2 a -1) '(-1 (0 (0.0 0.0 0.0)) (0 (2.0 0.0 0.0)) (0 (2.0 3.0 0.0)) (0 (0.0 3.0 0.0))))) ;= T
(ssadd b s) (mapcar 'car (ssnamex s)) ;= (0 0)
(setq s (ssget)) ;< C\n0,0\n60,2\n\n ;= <Selection set: 5>
(mapcar 'car (ssnamex s)) ;= (3 3 -1)
(equal (ssnamex s 1) (list (list 3 (ssname s 1) -1) (last (ssnamex s)))) ;= T

; Variables of other drawings
(setq v '(1 "a" x)) (list (vl-propagate 'v) (vl-doc-set 'w 3) (vl-doc-ref 'w) (vl-doc-export 'f)) ;= (nil 3 3 nil)

; Loading past what is not there
(setq f (open (strcat dir "p.lsp") "w")) (write-line "(setvar \"SECURELOAD\" 0)(vl-load-com)(arxload \"x\" nil)(autoload \"f\" '(\"c1\"))" f)
(write-line "(load \"none\" nil)\n(c:other)\n(setq answer (getstring \"Name: \"))\n(setq after 1)" f) (close f)
(load (strcat dir "p")) ;= 1 ;> this form of the file is left out
(list answer after (type c:c1)) ;= (nil 1 SUBR)

; Properties by their names
(entmake '((0 . "CIRCLE") (10 1.0 2.0 0.0) (40 . 3.0))) (setq e (entlast))
(mapcar '(lambda (n) (getpropertyvalue e n)) '("Radius" "center" "Center/Y" "Color" "Layer" "LinetypeScale"))
;= (3.0 (1.0 2.0 0.0) 2.0 256 "0" 1.0)
(setpropertyvalue e "Center/X" 9) (setpropertyvalue e "Color" 3) (setpropertyvalue e "radius" 4.5)
(mapcar '(lambda (c) (cdr (assoc c (entget e)))) '(10 40 62)) ;= ((9.0 2.0 0.0) 4.5 3)
(getpropertyvalue e "TextString") ;= error: bad argument value: property of CIRCLE "TextString" in (GETPROPERTYVALUE), argument 2
(list (ispropertyreadonly e "Radius") (dumpallproperties e)) ;= (0 nil) ;> Radius = 4.5
(entmake '((0 . "XLINE") (100 . "AcDbEntity") (100 . "AcDbXline") (10 1.0 2.0 0.0) (11 0.0 1.0 0.0))) (setq x (entlast))
(setpropertyvalue x "basepoint/x" 5) (list (getpropertyvalue x "BasePoint") (getpropertyvalue x "Direction/Y")) ;= ((5.0 2.0 0.0) 1.0)

; Properties that are worked out
(defun round (v) (cond ((listp v) (mapcar 'round v)) ((= (type v) 'REAL) (atof (rtos v 2 4))) (T v)))
(defun values (e names) (mapcar '(lambda (n) (round (getpropertyvalue e n))) names))
(entmake '((0 . "CIRCLE") (10 1.0 2.0 0.0) (40 . 4.5))) (setq e (entlast))
(values e '("Diameter" "Circumference" "Area" "PlotStyleName")) ;= (9.0 28.2743 63.6173 "ByColor")
(entmake '((0 . "LINE") (10 1.0 1.0 0.0) (11 1.0 4.0 4.0))) (setq e (entlast))
(values e '("Length" "Delta" "Delta/Z" "Angle")) ;= (5.0 (0.0 3.0 4.0) 4.0 1.5708)
(entmake '((0 . "ARC") (10 1.0 0.0 0.0) (40 . 2.0) (50 . 4.71238898) (51 . 1.57079633))) (setq e (entlast))
(values e '("StartPoint" "EndPoint" "TotalAngle" "Length" "Area")) ;= ((1.0 -2.0 0.0) (1.0 2.0 0.0) 3.1416 6.2832 6.2832)
(entmake '((0 . "ARC") (10 1.0 0.0 0.0) (40 . 2.0) (50 . 0.0) (51 . 1.57079633) (210 0.0 0.0 -1.0))) (setq e (entlast))
(values e '("StartPoint" "EndPoint/X" "EndPoint/Y" "TotalAngle")) ;= ((-3.0 0.0 0.0) -1.0 2.0 1.5708)
(setpropertyvalue e "StartPoint/X" 2.0) ;= error: bad argument value: read-only property "StartPoint/X" in (SETPROPERTYVALUE), argument 2
(list (ispropertyreadonly e "Length") (dumpallproperties e)) ;= (1 nil) ;> TotalAngle = 1.5708
(entmake '((0 . "LWPOLYLINE") (100 . "AcDbEntity") (100 . "AcDbPolyline") (90 . 3) (70 . 0) (10 0.0 0.0) (10 4.0 0.0) (42 . 1.0) (10 4.0 2.0))) (setq e (entlast))
(values e '("VertexCount" "Length" "Area")) ;= (3 7.1416 5.5708)
(entmake '((0 . "LWPOLYLINE") (100 . "AcDbEntity") (100 . "AcDbPolyline") (90 . 4) (70 . 1) (10 0.0 0.0) (10 4.0 0.0) (10 4.0 2.0) (10 0.0 0.0))) (setq e (entlast))
(values e '("VertexCount" "Area")) ;= (4 4.0)
(entmake '((0 . "ELLIPSE") (100 . "AcDbEntity") (100 . "AcDbEllipse") (10 0.0 0.0 0.0) (11 2.0 0.0 0.0) (40 . 0.5) (41 . 0.0) (42 . 6.283185307179586))) (setq e (entlast))
(values e '("Area" "Length" "StartPoint")) ;= (6.2832 9.6884 nil)

; Paragraphs of several pieces are one text; the same text leaves the pieces as they are
(defun repeated (text count) (apply 'strcat (repeat-list text count)))
(defun repeat-list (text count / l) (repeat count (setq l (cons text l))))
(entmake (list '(0 . "MTEXT") '(100 . "AcDbEntity") '(100 . "AcDbMText") '(10 0.0 0.0 0.0) '(40 . 2.5) '(41 . 0.0) '(71 . 1) (cons 3 (repeated "ab\\P" 10)) (cons 3 "{\\C1;x}") '(1 . "end"))) (setq e (entlast))
(defun pieces () (mapcar '(lambda (p) (strlen (cdr p))) (vl-remove-if-not '(lambda (p) (member (car p) '(1 3))) (entget e))))
(= (getpropertyvalue e "Text") (strcat (repeated "ab\\P" 10) "{\\C1;x}end")) ;= T
(setpropertyvalue e "Text" (getpropertyvalue e "Text")) (pieces) ;= (40 7 3)
(setpropertyvalue e "Contents" (repeated "0123456789" 60)) (pieces) ;= (250 250 100)
(setpropertyvalue e "Text" "short") (pieces) ;= (5)
(setpropertyvalue e "Text" 5) ;= error: bad argument type: stringp 5 in (SETPROPERTYVALUE), argument 3

; Transparency is of later versions
(entmake '((0 . "POINT") (10 0.0 0.0 0.0))) (setq e (entlast))
(getpropertyvalue e "Transparency") ;= 0

; Colours are asked for on the command line where there is no window
(acad_colordlg 3) ;< red ;= 1
(acad_colordlg 3 nil) ;< BYLAYER\n5 ;= 5 ;> Requires a color number or name
(list (acad_colordlg 300) (acad_truecolordlg '(62 . 3))) ;< BYLAYER ;= (nil ((62 . 256)))
