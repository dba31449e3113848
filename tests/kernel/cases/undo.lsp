(defun point () (command "POINT" '(9 9)))
(defun add () (entmake '((0 . "POINT") (10 0 0 0))) (point))
(defun undo (how) (command "_.UNDO" how))
(defun left (/ s) (cons (if (setq s (ssget "X")) (sslength s) 0) (getvar "DBMOD")))

; A whole run is one step, a failed one too; what is taken back is no change
(add)(left) ;= (2 . 1)
(add)(left) ;= (4 . 1)
(left) ;! U\n ;= (2 . 1)
(left) ;! _.REDO\n ;= (4 . 1)
(left) ;! UNDO\n5\n ;= (0 . 0)
(add)(car 5) ;= error: bad argument type: listp 5 in (CAR), argument 1
(left) ;= (2 . 1)
(left) ;! U\n ;= (0 . 0)
; A new change forgets what was undone
(point)(left) ;= (1 . 1)
(left) ;! REDO\n ;= (1 . 1)

; Inside a run: what was just done, back to a mark, groups as steps
(point)(point)(command "_.U")(left) ;= (1 . 1)
(left) ;! U\n ;= (0 . 0)
(add)(left) ;= (2 . 1)
(point)(undo "_Mark")(add)(add)(undo "_Back")(left) ;= (3 . 1)
(left) ;! U\n ;= (2 . 1)
(point)(undo "_BE")(add)(add)(undo "_E")(command "_.U")(left) ;= (3 . 1)
(undo 2)(left) ;= (0 . 0)
(add)(left) ;= (2 . 1)
(undo "5")(left) ;= (0 . 0)

; A run leaves a step for each of several groups; points around them go with the first and the last one, and a group
; without any change does not count
(point)(undo "_BE")(add)(undo "_E")(undo "_BE")(undo "_E")(undo "_BE")(add)(undo "_E")(point)(left) ;= (6 . 1)
(left) ;! U\n ;= (3 . 1)
(left) ;! REDO\n ;= (6 . 1)
(left) ;! UNDO\n5\n ;= (0 . 0)

; A group over several runs is one step
(undo "_BE")(left) ;= (0 . 0)
(add)(left) ;= (2 . 1)
(add)(left) ;= (4 . 1)
(undo "_E")(left) ;= (4 . 1)
(left) ;! U\n ;= (0 . 0)

; Variables of the drawing are undone too, and what changes nothing leaves no step
(setvar "LTSCALE" 7.5) ;= 7.5
(setvar "LTSCALE" 2.5) ;= 2.5
(entmake '((0 . "NOSUCH"))) ;= nil
(setvar "CMDECHO" 0) ;= 0
(getvar "LTSCALE") ;! U\n ;= 7.5
(getvar "LTSCALE") ;! U\n ;= 1.0

; What was erased last comes back behind other commands, but not behind an undo
(add)(command "ERASE" "L" "")(point)(command "OOPS")(left) ;= (3 . 1)
(command "OOPS")(left) ;> There is nothing to bring back ;= (3 . 1)
(command "-BLOCK" "B" '(0 0) (entlast) "")(command "OOPS")(left) ;= (3 . 1)
(command "ERASE" "L" "")(command "U")(command "OOPS")(left) ;> There is nothing to bring back ;= (3 . 1)
(left) ;! UNDO\n20\n ;= (0 . 0)
(left) ;! MREDO\nAll\n ;= (2 . 1)
(left) ;! UNDO\nBack\nN\n ;> This will undo everything ;= (2 . 1)
(undo "_Back")(command "")(left) ;= (0 . 0)
