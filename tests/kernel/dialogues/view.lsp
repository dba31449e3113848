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
(view) ;! ZOOM|.5x ;? (progn (setq l (getvar "VIEWSIZE")) (command "ZOOM" "P") l) ;= 200.0
(view) ;! ZOOM|C||50 ;? (progn (setq l (getvar "VIEWCTR")) (command "ZOOM" "P") l) ;= (0.0 0.0 0.0)
(view) ;! ZOOM|L|0,0|100 ;? (progn (setq l (getvar "VIEWCTR")) (command "ZOOM" "P") l) ;= (80.0 50.0 0.0)
(view) ;! ZOOM|2XP ;> is for viewports ;? (getvar "VIEWSIZE") ;= 100.0
(view) ;! ZOOM|D ;> no dynamic zoom ;? (getvar "VIEWSIZE") ;= 100.0
(line 0 0 32 20)(view) ;! ZOOM|E ;? (progn (setq l (getvar "VIEWSIZE")) (command "ZOOM" "P") (rounded l)) ;= 21.0
(view) ;! PAN|1,1|11,6 ;? (progn (setq l (getvar "VIEWCTR")) (command "ZOOM" "P") l) ;= (-10.0 -5.0 0.0)
(view) ;! -PAN|3,4| ;? (progn (setq l (getvar "VIEWCTR")) (command "ZOOM" "P") l) ;= (-3.0 -4.0 0.0)
(view) ;! REGENALL ;? (getvar "VIEWSIZE") ;= 100.0
(view) ;! -VIEW|S|Front ;? (entry-of "VIEW" "Front" '(10 11 12 40 41 50 70))
;= ((0.0 0.0) (0.0 0.0 1.0) (0.0 0.0 0.0) 100.0 160.0 0.0 0)
(view) ;! VIEW|W|Part|0,0|30,10 ;? (entry-of "VIEW" "Part" '(10 40 41)) ;= ((15.0 5.0) 10.0 30.0)
(view) ;! -VIEW|W|Part|0,0|30,0 ;> has no area ;? (tblsearch "VIEW" "Part") ;= nil
(command "-VIEW" "W" "Part" '(0 0) '(30 10))(view) ;! -VIEW|R|part
;? (progn (setq l (list (getvar "VIEWCTR") (getvar "VIEWSIZE"))) (command "ZOOM" "P") l) ;= ((15.0 5.0 0.0) 10.0)
(command "-VIEW" "W" "Part" '(0 0) '(30 10)) ;! -VIEW|D|P* ;? (tblsearch "VIEW" "Part") ;= nil
(command "-VIEW" "W" "Part" '(0 0) '(30 10)) ;! -VIEW|?|* ;> "Part"  M ;? (type (tblsearch "VIEW" "Part")) ;= LIST
;! -VIEW|R|None ;> Cannot find view "None" ;? (getvar "CTAB") ;= "Model"
(sheet)(command "-VIEW" "S" "Page")(setvar "CTAB" "Model") ;! -VIEW|R|Page ;? (getvar "CTAB") ;= "Layout1"
;! -VIEW|_FRONT ;? (rounded (getvar "VIEWDIR")) ;= (0.0 -1.0 0.0)
;! -VIEW|O|Left ;? (rounded (getvar "VIEWDIR")) ;= (-1.0 0.0 0.0)
(line 0 0 32 20)(turned) ;! PLAN| ;? (list (rounded (getvar "VIEWTWIST")) (rounded (getvar "VIEWSIZE"))) ;= (4.7124 21.0)
(turned)(setvar "PICKBOX" 5) ;! PLAN|W ;? (rounded (getvar "VIEWTWIST")) ;= 0.0
(save-ucs "Wall") ;! PLAN|U|Wall ;? (getvar "VIEWTWIST") ;= 0.0
;! PLAN|U|None ;> Cannot find UCS ;? (getvar "CTAB") ;= "Model"
