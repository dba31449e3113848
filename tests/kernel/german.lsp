; Dialogues of dialogues/ with the keywords of GermanKeywords: words of the language, English ones behind "_", and without
; one where the language has no such word. In ";>" stands what the prompt shows.
;! LINE|0,0|1,0|1,1|S ;~ keeps ;= LINE 10=0,0,0 11=1,0,0; LINE 10=1,0,0 11=1,1,0; LINE 10=1,1,0 11=0,0,0
;! LINE|0,0|1,0|1,1|schließen ;~ keeps ;= LINE 10=0,0,0 11=1,0,0; LINE 10=1,0,0 11=1,1,0; LINE 10=1,1,0 11=0,0,0
;! LINE|0,0|1,0|1,1|_C ;~ keeps ;= LINE 10=0,0,0 11=1,0,0; LINE 10=1,0,0 11=1,1,0; LINE 10=1,1,0 11=0,0,0
;! LINE|0,0|1,0|1,1|Close ;~ keeps ;= LINE 10=0,0,0 11=1,0,0; LINE 10=1,0,0 11=1,1,0; LINE 10=1,1,0 11=0,0,0
;! LINE|0,0|1,0|z|5,5| ;~ keeps ;= LINE 10=0,0,0 11=5,5,0
;! LINE|0,0|1,0|1,1|S ;~ keeps ;> [Schließen/Zurück]: ;= LINE 10=0,0,0 11=1,0,0; LINE 10=1,0,0 11=1,1,0; LINE 10=1,1,0 11=0,0,0
;! CIRCLE|1,2|D|5 ;> [Durchmesser] ;= CIRCLE 10=1,2,0 40=2.5
;! CIRCLE|2P|0,0|10,0 ;> [3P/2P/Ttr (tan tan radius)]: ;= CIRCLE 10=5,0,0 40=5
(line 0 0 2 1) ;! MIRROR|ALL||5,0|5,9|J ;> [Ja/Nein] <Nein>: ;= LINE 10=10,0,0 11=8,1,0
(line 0 0 2 1) ;! MIRROR|ALL||5,0|5,9|Y ;= LINE 10=10,0,0 11=8,1,0
(line 0 0 2 1) ;! MIRROR|ALL||5,0|5,9|N ;= LINE 10=0,0,0 11=2,1,0; LINE 10=10,0,0 11=8,1,0
(line 0 0 1 0)(line 1 0 5 5) ;! ERASE|AL|E|L| ;= LINE 10=1,0,0 11=5,5,0
(line 0 0 1 0)(line 1 0 5 5) ;! ERASE|_ALL|_R|_L| ;= LINE 10=1,0,0 11=5,5,0
