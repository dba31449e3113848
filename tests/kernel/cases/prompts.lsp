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
(initget 1 "Yes No")(getkword) ;< maybe\n\ny ;= "Yes"
(initget "Yes No")(getkword) ;< ;= nil
(initget "2D 3D")(getint) ;< 2D ;= "2D"

; What is refused is explained, and nobody there is a cancel
(getint "\nHow many: ") ;< abc\n5 ;> How many: abc\n\nRequires an integer value. ;= 5
(getvar "LASTPROMPT") ;= "How many:"
(getpoint "\nWhere: ") ;> Nobody is there to answer "Where:" ;= error: Function cancelled in (GETPOINT)
