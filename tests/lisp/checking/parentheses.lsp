; Sources with \n for their line ends, and what is found: LINE:COLUMN KIND MESSAGE, "|" between several.

; Sound ones
 ;= -
(princ) ;= -
(defun f (a / b)\n  (setq b a)\n  (list b '(1 . 2) "x;y" '("(" . ")"))) ; (\n ;| ( |; ;= -
(defun f ()\n(if (f)\n(f)\n)\n)\n(f) ;= -
'(a .5 . (b)) ;= -

; One is missing: the first line further left than a list that is open
(defun f (x)\n  (if (> x 0\n    (princ x)\n  (f x 1)))\n(f 1)
;= 2:7 unbalanced: a ) is missing perhaps of this list: line 3 begins further left (the form that begins in line 1 does not end before line 5, where a form begins in the first column) | 4:4 argument-count: f takes 1 argument, not 2
(defun f (x)\n\t(if (> x 0)\n\t\t(princ x)\n\t(f x))\n(f 1)
;= 2:2 unbalanced: a ) is missing perhaps of this list: line 4 begins further left (the form that begins in line 1 does not end before line 5, where a form begins in the first column)
(setq a (list 1\n              2)\n(princ a) ;= 1:1 unbalanced: a ) is missing of the form that begins here, before line 3, where a form begins in the first column
(princ 1)\n(list (list 1 ;= 2:1 unbalanced: a ) is missing, 2 in all, of the form that begins here, before the end of the file
; What is not indented says nothing, but a function begins a new form all the same
(defun f (x)\n(if x\n(princ x)\n(f x))\n(defun g ()\n(f 1))\n(g) ;= 1:1 unbalanced: a ) is missing of the form that begins here, before line 5, where a form begins in the first column
(defun f (x)\n(if x\n(princ x)\n(f x)) ;= 1:1 unbalanced: a ) is missing of the form that begins here, before the end of the file
; Each form for itself, and what is behind is still looked at
(defun f (x)\n  (car x)\n(defun g (x)\n  (cdr x)\n(f 1 2)
;= 1:1 unbalanced: a ) is missing of the form that begins here, before line 3, where a form begins in the first column | 3:1 unbalanced: a ) is missing of the form that begins here, before the end of the file | 5:2 argument-count: f takes 1 argument, not 2

; One too many: the form behind which a line goes on indented
(defun f (x)\n  (if x (princ)))\n  (car x))\n(f 1) ;= 2:17 unbalanced: a ) too many, perhaps this one: line 3 goes on indented, up to a ) in line 3 that closes nothing
(princ 1))\n(princ 2) ;= 1:10 unbalanced: a ) too many: nothing is open here
) ;= 1:1 unbalanced: a ) too many: nothing is open here

; Strings and comments
(princ "a)\n(princ "b") ;= 1:8 unterminated: a " is missing, perhaps of the string that begins here (the last one, in line 2, does not end)
(princ "a") (princ "b\") ;= 1:20 unterminated: the string that begins here does not end
(princ) ;| over\n(car) ;= 1:9 unterminated: the comment that begins here does not end

; Dots and quotes
(list '(1 .)) ;= 1:11 malformed: a dot that does not stand before the last item
'(. 1) '(1 . 2 3) . ;= 1:3 malformed: a dot that does not stand before the last item | 1:12 malformed: a dot that does not stand before the last item | 1:19 malformed: a dot that does not stand before the last item
(list ') ' ;= 1:7 malformed: nothing behind the quote mark | 1:10 malformed: nothing behind the quote mark
(list . 1) ;= 1:1 malformed: a dotted pair where a call is expected
; A column is a character
(list "größe" (car)) ;= 1:16 argument-count: car takes 1 argument, not 0
