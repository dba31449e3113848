; Named states of layers go through files.
(defun file (name text / f) (setq f (open (strcat dir name) "w")) (princ text f) (close f) (strcat dir name))
(defun text (name / f line r) (setq f (open (strcat dir name) "r")) (while (setq line (read-line f)) (setq r (cons line r))) (close f) (reverse r))
(defun state (option rest) (apply 'command (append (list "_.-LAYER" "_A" option) rest '("" ""))))
(defun colour (n) (cdr (assoc 62 (tblsearch "LAYER" n))))

(command "_.-LAYER" "_N" "Wall" "_C" 3 "Wall" "_LT" "DASHED" "Wall" "")(state "_S" '("Full" ""))
(state "_EX" (list "Full" (strcat dir "full")))(member "LAYERSTATE" (text "full.las"))
;= ("LAYERSTATE" "1" "Full" "91" "2047" "301" "" "290" "1" "302" "0" "8" "0" "90" "0" "62" "7" "370" "-3" "6" "Continuous" "440" "0" "92" "-1023410169" "8" "Wall" "90" "0" "62" "3" "370" "-3" "6" "DASHED" "440" "0" "92" "-1023410173")
(state "_I" (list (strcat dir "full.las"))) ;> No layer state was taken ;= nil
(state "_D" '("Full"))(command "_.-LAYER" "_C" 1 "Wall" "_LT" "Continuous" "Wall" "")(colour "Wall") ;= 1
(state "_I" (list (strcat dir "full.las"))) ;> Layer state "Full" imported. ;= nil
(progn (state "_R" '("Full"))(list (colour "Wall") (cdr (assoc 6 (tblsearch "LAYER" "Wall"))))) ;= (3 "DASHED")
(state "_I" (list (file "bad.las" "0\nLAYERSTATEDICTIONARY\n0\nLAYERSTATE\nx\nBad\n"))) ;> No layer state was taken ;= nil
(state "_I" (list (file "cut.las" "0\nLAYERSTATEDICTIONARY\n0\nLAYERSTATE\n1"))) ;> No layer state was taken ;= nil
(progn (state "_I" (list (file "odd.las" "0\nLAYERSTATEDICTIONARY\n0\nLAYERSTATE\n1\nOdd\n62\n9\n8\nNone\n62\n5\n8\nWall\n62\n5\n90\n4\n")))(state "_R" '("Odd"))(list (colour "Wall") (cdr (assoc 70 (tblsearch "LAYER" "Wall"))))) ;= (5 4)

; Esc ends -LAYER with what it did
(command "_.-LAYER" "_N" "Kept" "_C" 3 nil)(colour "Kept") ;= 7
(command "_.-LAYER" "_C" 4 "Kept" "_F" nil)(list (colour "Kept") (getvar "CMDNAMES")) ;= (4 "")
(command "_.LAYERP")(colour "Kept") ;= 7
