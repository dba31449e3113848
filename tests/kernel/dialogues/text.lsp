;! TEXT|J|R|10,5|2|0|AB ;= TEXT 40=2 1=AB 11=10,5,0 72=2
;! TEXT|MC|10,5|2|90|AB ;= TEXT 40=2 1=AB 50=90 11=10,5,0 72=1 73=2
;! TEXT|J|Align|0,0|0,10|AB ;= TEXT 1=AB 50=90 11=0,10,0 72=3
;! TEXT|J|F|0,0|10,0|3|AB ;= TEXT 40=3 1=AB 11=10,0,0 72=5
(fixed-style) ;! TEXT|S|Fixed|1,2|0|Room ;= TEXT 10=1,2,0 40=3.5 1=Room 7=Fixed 41=0.8
;! TEXT|S|Nowhere|1,2|2|0|Room ;> Cannot find text style "Nowhere" ;=
;! TEXT|J|Align|0,0|0,10|ABC ;? (text-length) ;= "10.000"
;! TEXT|J|Fit|0,0|6,8|2|ABC ;? (list (cdr (assoc 40 (entget (entlast)))) (text-length)) ;= (2.0 "10.000")
(tilted) ;! TEXT|1,2|2|30|AB ;= TEXT 10=1,7,0 40=2 1=AB 50=30 210=0,-1,0
;! DTEXT|1,2|2|0|AB ;= TEXT 10=1,2,0 40=2 1=AB
(command "TEXT" '(1 2) 3 90 "A") ;! TEXT||B ;= TEXT 10=1,2,0 40=3 1=A 50=90; TEXT 10=6,2,0 40=3 1=B 50=90
(command "TEXT" "MC" '(1 2) 3 0 "A") ;! TEXT||B ;? (list (value-of 11) (value-of 72) (value-of 73)) ;= ((1.0 -3.0 0.0) 1 2)
(turned)(command "TEXT" '(0 0) 3 30 "A") ;! TEXT||B ;? (near (list (value-of 10) (value-of 50)) (list (list (+ 10 (* 5 (sin (/ pi 1.5)))) (+ 20 (- (* 5 (cos (/ pi 1.5)))) ) 0.0) (/ pi 1.5))) ;= T
;! TEXT||B ;> There is no text to go on below ;=
;! -MTEXT|0,0|10,-5|first|second| ;= MTEXT 10=0,0,0 40=2.5 41=10 71=1 72=5 1=first\Psecond 11=1,0,0 73=1 44=1
;! MTEXT|0,0|J|MC|H|2|R|90|W|30|line| ;= MTEXT 10=0,0,0 40=2 41=30 71=5 72=5 1=line 11=0,1,0 73=1 44=1
;! -MTEXT|10,10|J|BR|0,0|x| ;= MTEXT 10=10,0,0 40=2.5 41=10 71=9 72=5 1=x 11=1,0,0 73=1 44=1
;! -MTEXT|0,0|R|90|10,20|x| ;= MTEXT 10=0,0,0 40=2.5 41=20 71=1 72=5 1=x 11=0,1,0 73=1 44=1
;! -MTEXT|0,0|L|E|1.5x|W|0|x| ;= MTEXT 10=0,0,0 40=2.5 71=1 72=5 1=x 11=1,0,0 73=2 44=1.5
;! -MTEXT|0,0|H|3|L|A|10|W|0|x| ;= MTEXT 10=0,0,0 40=3 71=1 72=5 1=x 11=1,0,0 73=1 44=2
;! -MTEXT|0,0|L|A|9x|W|0|x| ;> Lines are 0.25x to 4x ;=
;! -MTEXT|0,0|C|N|W|0|x| ;= MTEXT 10=0,0,0 40=2.5 71=1 72=5 1=x 11=1,0,0 73=1 44=1
(fixed-style) ;! MTEXT|0,0|S|Fixed|9,9|x| ;? (list (value-of 7) (value-of 40)) ;= ("Fixed" 3.5)
;! -MTEXT|0,0|S|Nowhere|9,9|x| ;> Cannot find text style "Nowhere" ;=
;! -MTEXT|0,0|10,-5| ;=
(tilted) ;! -MTEXT|1,2|W|9|x| ;= MTEXT 10=1,0,7 40=2.5 41=9 71=1 72=5 1=x 11=1,0,0 73=1 44=1 210=0,-1,0
(setq long (apply 'strcat (mapcar '(lambda (x) "0123456789") '(1 2 3 4 5 6 7 8 9 0 1 2 3 4 5 6 7 8 9 0 1 2 3 4 5 6 7 8 9 0))))
;! MTEXT|0,0|W|0|!long| ;? (list (strlen (value-of 3)) (strlen (value-of 1))) ;= (250 50)
(command "TEXT" '(5 1) 2 0 "low {a}")(command "TEXT" '(5 9) 2 0 "high") ;! TXT2MTXT|ALL|
;= MTEXT 10=5,11,0 40=2 71=1 72=5 1=high\Plow \{a\} 11=1,0,0
(line 0 0 1 1) ;! TXT2MTXT|ALL| ;> No texts were selected ;= LINE 10=0,0,0 11=1,1,0
(command "TEXT" '(5 1) 2 0 "old")(view) ;! DDEDIT|5.2,1.2|new| ;~ keeps ;= TEXT 10=5,1,0 40=2 1=new
(command "TEXT" '(5 1) 2 0 "old")(view)(lock "0") ;! TEXTEDIT|5.2,1.2| ;~ keeps ;> locked layer ;= TEXT 10=5,1,0 40=2 1=old
(command "-MTEXT" '(0 0) "W" 0 "old" "")(view) ;! TEXTEDIT|0.1,-0.1|a\Pb| ;~ keeps ;? (value-of 1) ;= "a\\Pb"
(line 0 0 1 1)(view) ;! DDEDIT|1,1 ;> Requires a text ;= LINE 10=0,0,0 11=1,1,0
;! -STYLE|Notes|romans|2.5|0.8|15|N|Y|N ;? (list (style "Notes") (getvar "TEXTSTYLE"))
;= ((0 2.5 0.8 0.261799 4 "romans" "") "Notes")
;! STYLE|Notes|romans.shx,bigfont.shx|0|1|-15|Y|N|Y ;? (style "Notes") ;= (4 0.0 1.0 -0.261799 2 "romans.shx" "bigfont.shx")
;! -STYLE|Notes|arial.ttf|0|1|0|N|N ;? (style "Notes") ;= (0 0.0 1.0 0.0 0 "arial.ttf" "")
(fixed-style) ;! -STYLE|fixed||4||||| ;? (list (style "Fixed") (getvar "TEXTSTYLE")) ;= ((0 4.0 0.8 0.0 0 "txt" "") "Fixed")
;! -STYLE|Notes|txt|0|1|86 ;> The obliquing angle is ;? (tblsearch "STYLE" "Notes") ;= nil
;! -STYLE|a/b ;> Invalid style name ;=
;! -STYLE|?|* ;> "Standard" ;=
;! MTEXT|0,0|C|S|50|3|4|20|a|b| ;? (list (own '(41 1)) (mapcar '(lambda (f) (if (member (car f) '(42 43)) (car f) f)) (cdr (member '(101 . "Embedded Object") (entget (entlast)))))) ;= ((14.0 "a\\Pb") ((70 . 1) (10 1.0 0.0 0.0) (11 0.0 0.0 0.0) (40 . 50.0) (41 . 20.0) 42 43 (71 . 1) (72 . 3) (44 . 14.0) (45 . 4.0) (73 . 0) (74 . 0)))
;! MTEXT|0,0|C||30|5|10|one\Ptwo\Pthree\Pfour\Pfive| ;? (own '(41)) ;= (30.0)
;! MTEXT|0,0|C|S|50|20|5 ;> So many columns do not fit into this width. ;=
(command "TEXT" "J" "R" '(10 5) 2 0 "ABC")(setq start (value-of 10))(view) ;! TEXTEDIT|9.5,5.5|A| ;~ keeps
;? (list (value-of 1) (equal (value-of 11) '(10.0 5.0 0.0)) (> (car (value-of 10)) (car start))) ;= ("A" T T)
(tilted)(command "TEXT" "J" "MC" '(3 3) 2 30 "AB")(setq e (entlast)) ;! DDEDIT|!e|longer| ;~ keeps ;? (list (value-of 1) (near (trans (value-of 11) e 1) '(3.0 3.0 0.0))) ;= ("longer" T)
(command "TEXT" '(5 1) 2 0 "old")(setq e (entlast) s "(not Lisp)") ;! TEXTEDIT|!e|!s| ;~ keeps ;? (value-of 1) ;= "(not Lisp)"
(command "TEXT" '(5 1) 2 0 "old")(setq e (entlast) s "!either") ;! TEXTEDIT|!e|!s| ;~ keeps ;? (value-of 1) ;= "!either"
(command "TEXT" '(5 1) 2 0 "old")(setq e (entlast) was (entget e)) ;! TEXTEDIT|!e|old| ;~ keeps ;? (equal was (entget e)) ;= T
(command "-MTEXT" '(0 0) "W" 0 (apply 'strcat (mapcar '(lambda (x) "0123456789") '(1 2 3 4 5 6 7 8 9 0 1 2 3 4 5 6 7 8 9 0 1 2 3 4 5 6))) "")(setq e (entlast))
;! TEXTEDIT|!e|{\fArial;short} %%c \U+2300| ;~ keeps ;? (own '(3 1)) ;= (nil "{\\fArial;short} %%c ⌀")
(dimension)(setq e (entlast)) ;! TEXTEDIT|!e|about <>| ;~ keeps ;? (list (value-of 1) (not (picture))) ;= ("about <>" nil)
(dimension)(setq e (entlast))(command "TEXTEDIT" e "x" "") ;! TEXTEDIT|!e|<>| ;~ keeps ;? (value-of 1) ;= nil
(entmake '((0 . "ATTDEF") (10 0.0 0.0 0.0) (40 . 2.5) (1 . "7") (2 . "NO") (3 . "Number") (70 . 0)))(setq e (entlast))
;! TEXTEDIT|!e|name|What?|.| ;~ keeps ;? (own '(2 3 1)) ;= ("NAME" "What?" "")
(entmake '((0 . "ATTDEF") (10 0.0 0.0 0.0) (40 . 2.5) (1 . "7") (2 . "NO") (3 . "Number") (70 . 0)))(setq e (entlast))
;! TEXTEDIT|!e|a b ;> A tag has no blanks ;? (own '(2 3 1)) ;= ("NO" "Number" "7")
