(line 10 10 30 20)(line 0 0 1 1) ;! ZOOM|O|20,15| ;? (getvar "VIEWCTR") ;= (20.0 15.0 0.0)
(view) ;! ZOOM|C|5,6|2X ;? (progn (setq l (list (getvar "VIEWSIZE") (getvar "VIEWCTR"))) (command "ZOOM" "P") l)
;= (50.0 (5.0 6.0 0.0))
(view) ;! ZOOM|C|5,6|7 ;? (progn (command "ZOOM" "P") (getvar "VIEWSIZE")) ;= 100.0
(view) ;! ZOOM|S|4X ;? (progn (setq l (getvar "VIEWSIZE")) (command "ZOOM" "P") l) ;= 25.0
(view) ;! ZOOM|S|big ;> Requires a scale factor ;? (getvar "VIEWSIZE") ;= 100.0
;! SAVEAS|R12|x.dxf ;> no drawing in another version ;=
;! SAVEAS|DXF|8|x.dxf ;> with all decimal places ;=
;! SAVEAS|DXF|Binary|nowhere/x.dxf ;> cannot be written ;=
;! SAVEAS|DXF|V|R12|16|x.dxf ;> no drawing in another version ;=
