;! -LAYER|M|B 1| ;? (getvar "CLAYER") ;= "B 1"
(layer-a) ;! -LAYER|C|red|A|LT|Continuous|A|LW|0.26|A|P|N|A| ;? (layer "A") ;= (0 1 "Continuous" 25 0 nil)
(layer-a) ;! -LAYER|C|T|1,2,3|A| ;? (layer "A") ;= (0 7 "Continuous" -3 nil 66051)
(command "-LAYER" "N" "A" "C" "T" "1,2,3" "A" "") ;! -LAYER|C|5|A| ;? (layer "A") ;= (0 5 "Continuous" -3 nil nil)
(layer-a) ;! -LAYER|TR|50|A| ;? (layer "A") ;= (0 7 "Continuous" -3 nil nil (1071 . 33554560))
(layer-a) ;! -LAYER|D|Walls, old|A| ;? (layer "A") ;= (0 7 "Continuous" -3 nil nil (1000 . "") (1000 . "Walls, old"))
(layer-a) ;! -LAYER|OFF|A|F|A|LO|A| ;? (layer "A") ;= (5 -7 "Continuous" -3 nil nil)
(layer-a) ;! -LAYER|OFF|*|N|F|A|LO|A|ON|*|T|*|U|*| ;? (layer "A") ;= (0 7 "Continuous" -3 nil nil)
(on-layer "Old") ;! -LAYER|R|old|New name| ;? (list (cdr (assoc 8 (entget (entlast)))) (tblsearch "LAYER" "Old"))
;= ("New name" nil)
;! -LAYER|R|0|New| ;> Layer "0" cannot be renamed ;? (tblsearch "LAYER" "New") ;= nil
(on-layer "B") ;! -LAYER|S||1.5,1.5| ;? (getvar "CLAYER") ;= "B"
(layer-a) ;! -LAYER|C|3|A|L|Nowhere ;> Linetype "Nowhere" not found ;? (layer "A") ;= (0 7 "Continuous" -3 nil nil)
(layer-a) ;! -LAYER|C|3|A|Colour ;> Invalid option keyword ;? (layer "A") ;= (0 7 "Continuous" -3 nil nil)
(layer-a) ;! -LAYER|C|3|A|A|S|x ;> does not keep layer states ;? (layer "A") ;= (0 7 "Continuous" -3 nil nil)
;! -LAYER|N|A/B| ;> cannot be the name of a layer ;? (tblsearch "LAYER" "A/B") ;= nil
