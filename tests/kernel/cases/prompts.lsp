; Numbers
(getint "\nN: ") ;< 42 ;= 42
(getint) ;< 4.5\n7 ;= 7
(getint) ;< 99999999999\n7 ;= 7
(getint) ;< ;= nil
(initget 1)(getint) ;< \n3 ;= 3
(initget 2)(getint) ;< 0\n-3 ;= -3
(initget 4)(getreal) ;< -1.5\n0 ;= 0.0
(initget 7)(getdist) ;< \n0\n-1\n2.5 ;= 2.5
(initget 1)(list (getint) (getint)) ;< 5\n\n ;= (5 nil)
(getreal) ;< 1e3 ;= 1000.0
(list (getint) (getint)) ;< 1 2 ;= (1 2)

; Distances and angles
(getdist) ;< 0,0 3,4 ;= 5.0
(getdist '(0 0)) ;< 6,8 ;= 10.0
(initget 64)(getdist '(0 0 0)) ;< 3,4,12 ;= 5.0
(getdist) ;< 1'-6" ;= 18.0
(getdist) ;< 1/2 ;= 0.5
(equal (getangle) (/ pi 2) 1e-12) ;< 90 ;= T
(equal (getangle) (/ pi 4) 1e-12) ;< 1,1 2,2 ;= T
(setvar "ANGBASE" (/ pi 2))(equal (getangle '(0 0)) 0.0 1e-12) ;< 0,5 ;= T
(equal (getorient '(0 0)) (/ pi 2) 1e-12) ;< 0,5 ;= T
(equal (getorient) pi 1e-12) ;< 90 ;= T

; Points
(getpoint) ;< 1.5,-2 ;= (1.5 -2.0 0.0)
(getpoint) ;< 1,2,3 ;= (1.0 2.0 3.0)
(getpoint)(getpoint) ;< 1,2 @3,4 ;= (4.0 6.0 0.0)
(getpoint '(10.0 10.0)) ;< @1,1 ;= (11.0 11.0 0.0)
(getpoint)(getpoint) ;< 1,2 @ ;= (1.0 2.0 0.0)
(equal (getpoint) '(0.0 5.0 0.0) 1e-9) ;< 5<90 ;= T
(getpoint)(equal (getpoint) '(1.0 7.0 0.0) 1e-9) ;< 1,2 @5<90 ;= T
(equal (getpoint) '(0.0 0.0 5.0) 1e-9) ;< 5<0<90 ;= T
(getpoint) ;< 1;2\nabc\n1,\n1,2,3,4\n8,9 ;= (8.0 9.0 0.0)
(getcorner '(0 0)) ;< 4,3 ;= (4.0 3.0 0.0)
(setvar "LIMMAX" '(5 5))(setvar "LIMCHECK" 1)(getpoint) ;< 9,9\n1,1 ;= (1.0 1.0 0.0)
(initget 8)(getpoint) ;< 9,9 ;= (9.0 9.0 0.0)
(setvar "LIMCHECK" 0)(setvar "ELEVATION" 7.0)(getpoint) ;< 1,2 ;= (1.0 2.0 7.0)

; Texts and keywords
(list (getstring) (getstring)) ;< ab cd ;= ("ab" "cd")
(getstring T "Text: ") ;< ab cd ;= "ab cd"
(getstring) ;< ;= ""
(initget "Undo eXit")(getpoint) ;< x ;= "eXit"
(initget 128)(getpoint) ;< whatever ;= "whatever"
(initget "LType LWeight Color")(getkword) ;< lw ;= "LWeight"
(initget "Ja Nein _Yes No")(getkword) ;< n ;= "No"
(initget "Ja Nein _Yes No")(getkword) ;< yes\n_yes ;= "Yes"
(initget "Undo eXit _Zurueck Ende")(getpoint) ;< x ;= "Ende"
(initget nil "_Abc Def")(getkword) ;< abc ;= "Abc"
(initget 1 "Yes No")(getkword) ;< maybe\n\ny ;= "Yes"
(initget "Yes No")(getkword) ;< ;= nil
(initget "2D 3D")(getint) ;< 2D ;= "2D"

; What is refused is explained, and nobody there is a cancel
(getint "\nHow many: ") ;< abc\n5 ;> How many: abc\n\nRequires an integer value. ;= 5
(getvar "LASTPROMPT") ;= "How many:"
(getpoint "\nWhere: ") ;> Nobody is there to answer "Where:" ;= error: Function cancelled in (GETPOINT)

; Points put together from others
(getpoint) ;< .x\n1,2\n7,8,9 ;= (1.0 8.0 9.0)
(getpoint) ;< .xy\n1,2\n5 ;= (1.0 2.0 5.0)
(getpoint) ;< .x\n1,2\n_.y\n3,4\n7 ;= (1.0 4.0 7.0)
(getpoint) ;< .X 1,2 .yz 3,4,5 ;= (1.0 4.0 5.0)
(getpoint) ;< .x\n.y\n1,2,3\n4,5,6\n7,8,9 ;= (4.0 8.0 9.0)
(getpoint) ;< .xyz\n.w\n.xx\n.\n1,1 ;> Invalid point. ;= (1.0 1.0 0.0)
(getpoint) ;< .x\n\nabc\n1,2\n3,4 ;= (1.0 4.0 0.0)
(getpoint) ;< m2p\n0,0\n4,2,6 ;= (2.0 1.0 3.0)
(getpoint) ;< mtp\nm2p\n0,0\n4,0\n2,8 ;= (2.0 4.0 0.0)
(getpoint) ;< from\n1,2\n@3,4 ;= (4.0 6.0 0.0)
(getpoint) ;< from\nm2p\n0,0\n4,0\n@0,1 ;= (2.0 1.0 0.0)
(equal (getpoint) '(1.0 7.0 0.0) 1e-9) ;< from\n1,2\n@5<90 ;= T
(getpoint) ;< tk\n1,1\n@5,1\n@1,4\n\n ;= (6.0 5.0 0.0)
(getpoint) ;< tt\n10,0\n@0,3 ;= (10.0 3.0 0.0)
(getpoint) ;< .x\n1,2 ;> (need YZ): ;= error: Function cancelled in (GETPOINT)
(getdist) ;< m2p\n0,0\n4,0\n2,5 ;= 5.0
(getcorner '(0 0)) ;< .x\n4,0\n0,3 ;= (4.0 3.0 0.0)
(initget 128)(getpoint) ;< .q ;= ".q"
(initget "From")(getpoint) ;< from ;= "From"
(getvar "LASTPOINT") ;= (4.0 3.0 0.0)
(getpoint) ;< #5,6 ;= (5.0 6.0 0.0)
(turned)(getpoint) ;< .x\n*10,23\n0,8 ;= (3.0 8.0 0.0)

; A distance alone goes on in the direction of the last point, a direction alone waits for a distance
(getpoint '(1 1)) ;< 5 ;= (6.0 1.0 0.0)
(getpoint '(0 0)) ;< 0,2 ;= (0.0 2.0 0.0)
(getpoint '(0 2)) ;< 5 ;= (0.0 7.0 0.0)
(getpoint '(0 2)) ;< -1 ;= (0.0 1.0 0.0)
(equal (getpoint '(1 1)) '(4.0 5.0 0.0) 1e-9) ;< <53.13010235415598\n5 ;= T
(equal (getpoint '(0 0)) '(2.0 2.0 0.0) 1e-9) ;< <45\n4,0 ;= T
(getpoint '(0 0)) ;< 1,0\n ;= (1.0 0.0 0.0)
(getpoint) ;< 5\n<45\n1,2 ;> Invalid point.<45\n\nInvalid point. ;= (1.0 2.0 0.0)
(initget 128)(getpoint '(0 0)) ;< 5 ;= "5"
(initget 384)(getpoint '(0 0)) ;< 5 ;= (5.0 0.0 0.0)
(getpoint '(0 0)) ;< 1'6" ;= (18.0 0.0 0.0)
(getpoint '(1 0)) ;< from\n2,2\n3 ;= (5.0 2.0 0.0)

; Commands in the middle of a prompt
(getpoint) ;< 'ORTHOMODE\n1\n3,4 ;= (3.0 4.0 0.0)
(getvar "ORTHOMODE") ;= 1
(setvar "ORTHOMODE" 0)(getdist) ;< 'SETVAR\nPICKBOX\n7\n2 ;> >>Enter variable name ;= 2.0
(getvar "PICKBOX") ;= 7
(getpoint) ;< '_.ZOOM C\n0,0\n50\n1,2 ;= (1.0 2.0 0.0)
(getvar "VIEWSIZE") ;= 50.0
(getpoint) ;< 'LINE\n1,2 ;> ** That command may not be invoked transparently ** ;= (1.0 2.0 0.0)
(getpoint) ;< 'ZOOM 'ZOOM C\n0,0\n60\n1,2 ;> ** That command may not be invoked transparently ** ;= (1.0 2.0 0.0)
(getpoint) ;< 'NOSUCH\n1,2 ;> ** That command ;= (1.0 2.0 0.0)
(getstring) ;< 'ZOOM ;= "'ZOOM"
(defun c:inner () (setq inner (getint)) (princ))(getpoint) ;< 'inner\n7\n1,2 ;= (1.0 2.0 0.0)
inner ;= 7
