; Keys and presses as events; what is typed comes key by key
(list (grread) (grread)) ;< x ;= ((2 120) (2 13))
(grread) ;< ;= (2 13)
(list (grread) (grread T) (grread nil 15 0) (grread)) ;< a b ;= ((2 97) (2 32) (2 98) (2 13))
(list (grread) (getstring)) ;< xyz ;= ((2 120) "yz")
(grread) ;> Nobody is there ;= error: Function cancelled in (GRREAD)
(grread T 8) ;= error: Function cancelled in (GRREAD)
(grread T "8") ;= error: bad argument type: fixnump: "8" in (GRREAD), argument 2

; What is drawn for the moment
(grdraw '(0 0) '(1 1 0) 1) ;= nil
(grdraw '(0 0) '(1 1) -1 1) ;= nil
(grdraw '(0 0) '(1 1) -2) ;= error: bad argument value: colour -2 in (GRDRAW), argument 3
(grdraw '(0 0) 1 1) ;= error: bad argument type: 2D/3D point: 1 in (GRDRAW), argument 2
(grvecs '(1 (0 0) (1 1) (1 1) (2 0) 300 (0 0) (0 1) -3 (0 0) (1 0))) ;= nil
(grvecs '((0 0) (1 1)) '((1 0 0 5) (0 1 0 0) (0 0 1 0) (0 0 0 1))) ;= nil
(grvecs nil) ;= nil
(grvecs '((0 0) 1 (1 1))) ;= error: bad argument value: vector list ((0 0) 1 (1 1)) in (GRVECS), argument 1
(grvecs '(1 (0 0))) ;= error: bad argument value: vector list (1 (0 0)) in (GRVECS), argument 1
(grvecs '((0 0) (1 1)) '((1 0) (0 1))) ;= error: bad argument value: matrix of four by four ((1 0) (0 1)) in (GRVECS), argument 2
(list (grtext -1 "Turn") (grtext -2 "12" 1) (grtext 3 "Menu") (grtext)) ;= ("Turn" "12" nil nil)
(list (grclear) (redraw)) ;= (nil nil)

; A whole command without the user
(command-s "LINE" '(0 0) '(1 1) "") ;= nil
(cdr (assoc 11 (entget (entlast)))) ;= (1.0 1.0 0.0)
(command-s "LINE" '(0 0) PAUSE "") ;= error: the user cannot be asked here in (COMMAND-S)
(command-s "CIRCLE" '(0 0)) ;= error: the command asks for more in (COMMAND-S)
(command-s "CIRCLE" '(0 0) "x") ;= error: the command has failed in (COMMAND-S)
(command-s "NOSUCH") ;= error: unknown command in (COMMAND-S)
(cdr (assoc 0 (entget (entlast)))) ;= "LINE"
(list (vl-cmdf "POINT" '(3 4)) (vl-cmdf "CIRCLE" '(0 0) "x") (vl-cmdf "NOSUCH")) ;= (T nil nil)
(progn (command "CIRCLE" '(0 0)) (command) (getvar "CMDNAMES")) ;= ""
(progn (command "CIRCLE" '(0 0) nil) (getvar "CMDNAMES")) ;= ""
