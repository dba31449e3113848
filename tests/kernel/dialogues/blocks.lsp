(line 1 2 4 2) ;! -BLOCK|Gate|1,2|ALL| ;? (list (entlast) (block-part "Gate" '(0 10 11))) ;= (nil ("LINE" (0.0 0.0 0.0) (3.0 0.0 0.0)))
(turned)(line 1 2 4 2) ;! BLOCK|Gate|-18,9|ALL| ;? (block-part "Gate" '(10 11)) ;= ((0.0 0.0 0.0) (0.0 -3.0 0.0))
(door)(line 1 2 4 2) ;! -BLOCK|Door|Y|0,0|ALL| ;? (block-part "Door" '(10 11)) ;= ((1.0 2.0 0.0) (4.0 2.0 0.0))
(door)(line 1 2 4 2) ;! -BLOCK|Door|N ;? (block-part "Door" '(10 11)) ;= ((1.0 0.0 0.0) (3.0 0.0 0.0))
(door)(command "-INSERT" "Door" '(1 2) 1 "" 0) ;! -BLOCK|Door|Y|0,0|ALL| ;> Block "Door" would show itself.
;= INSERT 2=Door 10=1,2,0 41=1 42=1 43=1
(line 1 2 4 2) ;! -BLOCK|*U|0,0|ALL| ;? (cdr (assoc 70 (tblsearch "BLOCK" "*U0"))) ;= 1
(line 1 2 4 2) ;! -BLOCK|a/b ;> cannot be the name of a block ;= LINE 10=1,2,0 11=4,2,0
(door) ;! -BLOCK|?||Gate|0,0|ALL| ;> "Door" ;? (cdr (assoc 2 (tblsearch "BLOCK" "Gate"))) ;= "Gate"
;! -ATTDEF||NO|Number|7|3,4|2|90 ;= ATTDEF 10=3,4,0 40=2 1=7 50=90 3=Number 2=NO
;! -ATTDEF|I|P||no|||J|MC|3,4|2|0 ;? (mapcar 'getfield '(1 2 3 70 11 72 74)) ;= ("" "NO" "NO" 9 (3.0 4.0 0.0) 1 2)
;! ATTDEF|C||NO|fixed|3,4|2|0 ;? (mapcar 'getfield '(1 2 3 70)) ;= ("fixed" "NO" "" 2)
;! ATTDEF||two words ;> A tag has no blanks. ;=
(label)(command "-INSERT" "Label" '(5 5) 2 "" 0 "X")(redefine-label) ;! ATTSYNC|N|Label
;? (mapcar '(lambda (e) (mapcar '(lambda (c) (cdr (assoc c (entget e)))) '(0 1 2 10))) (cdr (after nil)))
;= (("ATTRIB" "X" "NO" (5.0 7.0 0.0)) ("ATTRIB" "new" "TEXT" (5.0 5.0 0.0)) ("SEQEND" nil nil nil))
(label)(setvar "ATTREQ" 0)(command "-INSERT" "Label" '(5 5) 2 "" 0)(no-attributes)(redefine-label) ;! ATTSYNC|N|Label
;? (length (after nil)) ;= 4
(label)(command "-INSERT" "Label" '(5 5) 2 "" 0 "X")(redefine-label) ;! ATTSYNC|S|7.2,5.2|Y ;? (length (after nil)) ;= 4
;! ATTSYNC|N|Label ;> Block "Label" not found. ;=
(label)(command "-INSERT" "Label" '(5 5) 2 "" 0 "B 12") ;! -ATTEDIT|N|N|Label|NO|B*|12|34 ;? (attribute) ;= ("ATTRIB" "B 34" "NO" 2.0)
(label)(command "-INSERT" "Label" '(5 5) 2 "" 0 "B 12") ;! -ATTEDIT|Y||||ALL||V|R|C 7|H|3|N ;? (attribute) ;= ("ATTRIB" "C 7" "NO" 3.0)
(line 0 0 1 0)(line 5 5 6 6) ;! -GROUP|C|Pair|two lines|ALL| ;? (group "Pair") ;= ("two lines" 1 2)
(line 0 0 1 0)(line 5 5 6 6)(command "-GROUP" "C" "Pair" "" "ALL" "") ;! -GROUP|R|Pair|0,0| ;? (group "Pair") ;= ("" 1 1)
(line 0 0 1 0)(line 5 5 6 6)(command "-GROUP" "C" "Pair" "" "L" "") ;! -GROUP|A|Pair|ALL| ;? (group "Pair") ;= ("" 1 2)
(line 0 0 1 0)(command "-GROUP" "C" "Pair" "" "L" "") ;! -GROUP|REN|Pair|Two ;? (list (group "Pair") (group "Two")) ;= (nil ("" 1 1))
(line 0 0 1 0)(command "-GROUP" "C" "Pair" "" "L" "") ;! -GROUP|S|Pair|N ;? (group "Pair") ;= ("" 0 1)
(line 0 0 1 0)(command "-GROUP" "C" "Pair" "" "L" "") ;! -GROUP|E|Pair ;? (list (group "Pair") (assoc 102 (entget (entlast)))) ;= (nil nil)
(line 0 0 1 0)(line 5 5 6 6)(command "-GROUP" "C" "Pair" "" "ALL" "") ;! -GROUP|O|Pair|R ;? (group-first "Pair") ;= (5.0 5.0 0.0)
(line 0 0 1 0)(command "-GROUP" "C" "Pair" "" "L" "") ;! -GROUP|?|* ;> Pair ;? nil ;= nil
(line 0 0 1 0) ;! -GROUP|A|Nowhere ;> Group "Nowhere" does not exist. ;= LINE 10=0,0,0 11=1,0,0
(door)(command "-INSERT" "Door" '(0 0) 1 "" 0) ;! XCLIP|L||N|R|2,-1|9,1 ;? (clip-codes '(70 10 71)) ;= (2 (2.0 -1.0 0.0) 1)
(door)(command "-INSERT" "Door" '(0 0) 1 "" 0) ;! XCLIP|L||N|P|2,-1|9,-1|9,1| ;? (clip-codes '(70 10 71)) ;= (3 (2.0 -1.0 0.0) 1)
(door)(clipped) ;! XCLIP|L||OFF ;? (clip-codes '(71)) ;= (0)
(door)(clipped) ;! XCLIP|L||D ;? (clip-codes '(71)) ;= nil
(door)(clipped) ;! XCLIP|L||P ;? (mapcar 'getfield '(0 90 70 10)) ;= ("LWPOLYLINE" 4 1 (2.0 -1.0))
(door)(clipped) ;! XCLIP|L||N|Y|I|R|0,0|1,1 ;? (clip-codes '(70)) ;= (10)
(line 0 0 1 0) ;! XCLIP|ALL| ;> No block references were chosen. ;= LINE 10=0,0,0 11=1,0,0
;! BASE|3,4 ;? (getvar "INSBASE") ;= (3.0 4.0 0.0)
(line 1 2 4 2)(command "COPYBASE" '(1 2) "ALL" "") ;! PASTECLIP|10,10 ;= LINE 10=1,2,0 11=4,2,0; LINE 10=10,10,0 11=13,10,0
(line 1 2 4 2)(command "COPYCLIP" "ALL" "") ;! PASTEORIG ;= LINE 10=1,2,0 11=4,2,0; LINE 10=1,2,0 11=4,2,0
(line 1 2 4 2)(command "COPYBASE" '(1 2) "ALL" "") ;! PASTEBLOCK|10,10 ;? (list (getfield 0) (getfield 10) (getfield 2)) ;= ("INSERT" (10.0 10.0 0.0) "A$C00000001")
(line 1 2 4 2) ;! CUTCLIP|ALL| ;=
;! PASTECLIP ;> The clipboard is empty. ;=
(twins) ;! EATTEDIT|!e|1|one|NO|first|2|.| ;? (values) ;= ("first" "")
(twins) ;! EATTEDIT|!e|?|1|| ;> 2  NO  Second  b ;? (values) ;= ("a" "b")
(twins) ;! EATTEDIT|!e|?|| ;> 3  FIX    never  (constant) ;? (values) ;= ("a" "b")
(twins)(setq s "(x)") ;! EATTEDIT|!e|2|!s| ;? (values) ;= ("a" "(x)")
(twins)(lock "0") ;! EATTEDIT|!e ;> locked layer ;? (values) ;= ("a" "b")
(twins) ;! EATTEDIT|!e|3 ;> The value of 3 is constant. ;? (values) ;= ("a" "b")
(twins) ;! EATTEDIT|!e|4 ;> There is no attribute "4". ;? (values) ;= ("a" "b")
(twins)(view) ;! EATTEDIT|5.5,5.5|no|seen| ;? (values) ;= ("seen" "b")
(door)(command "-INSERT" "Door" '(0 0) 1 "" 0)(setq e (entlast)) ;! EATTEDIT|!e ;> has no attributes ;? (getfield 2) ;= "Door"
(twins)(setq a (entnext e)) ;! TEXTEDIT|!a|by itself| ;~ keeps ;? (values) ;= ("by itself" "b")
(twins)(lines-of (entnext e)) ;! EATTEDIT|!e|1|up\Pdown| ;? (list (values) (said-inside)) ;= (("up" "b") "up\\Pdown")
