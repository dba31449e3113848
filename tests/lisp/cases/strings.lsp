; Whole strings
(strcat "a" "" "bc") ;= "abc"
(strcat) ;= ""
(strcat "a" 5) ;= ! bad argument type: stringp 5 in (STRCAT), argument 2
(list (strlen "abc") (strlen) (strlen "a" "bc") (strlen "äöü€")) ;= (3 0 3 4)
(list (substr "abcdef" 2 3) (substr "abc" 2) (substr "abc" 9) (substr "abc" 1 0)) ;= ("bcd" "bc" "" "")
(list (substr "aäöüz" 3 2) (substr "äöü" 2) (substr "äöü" 4)) ;= ("öü" "öü" "")
(substr "abc" 0) ;= ! bad argument value: 0 in (SUBSTR), argument 2
(list (strcase "aBc") (strcase "aBc" T) (strcase "straße žluť я") (strcase "ÄŽЯ" T))
;= ("ABC" "abc" "STRASSE ŽLUŤ Я" "äžя")
(list (strcase "ÿ ά ς ı ệ ǆ 𐐨") (strcase "Ÿ Ά İ Ệ Ǆ 𐐀" T)) ;= ("Ÿ Ά Σ I Ệ Ǆ 𐐀" "ÿ ά i̇ ệ ǆ 𐐨")
(list (ascii "A") (ascii "") (ascii "€") (chr 65) (chr 8364) (chr 0)) ;= (65 0 8364 "A" "€" "")
(chr -1) ;= ! bad argument value: -1 in (CHR), argument 1
(chr 55296) ;= ! bad argument value: 55296 in (CHR), argument 1
(vl-string->list "Aä") ;= (65 228)
(vl-list->string '(65 228 8364)) ;= "Aä€"
(list (vl-string-elt "äb" 1) (vl-string-elt "äb" 0)) ;= (98 228)
(vl-string-elt "ab" 2) ;= ! bad argument value: 2 in (VL-STRING-ELT), argument 2
(list (vl-string-trim " \t" "  a b ") (vl-string-left-trim "x" "xxa") (vl-string-right-trim "äx" "axäx") (vl-string-trim "a" "aaa"))
;= ("a b" "a" "a" "")
(vl-string-translate "abä" "xyz" "aäbc") ;= "xzyc"

; Searching
(list (vl-string-search "b" "abcb") (vl-string-search "b" "abcb" 2) (vl-string-search "z" "a")) ;= (1 3 nil)
(list (vl-string-search "z" "äöz") (vl-string-search "z" "zäöz" 1)) ;= (2 3)
(vl-string-search "a" "abc" 4) ;= ! bad argument value: 4 in (VL-STRING-SEARCH), argument 3
(list (vl-string-subst "X" "b" "abab") (vl-string-subst "X" "b" "abab" 2) (vl-string-subst "X" "q" "abab"))
;= ("aXab" "abaX" "abab")
(list (vl-string-position 98 "abcb") (vl-string-position 98 "abcb" 2) (vl-string-position 98 "abcb" 0 T) (vl-string-position 122 "abc"))
;= (1 3 3 nil)
(list (vl-string-mismatch "abc" "abd") (vl-string-mismatch "ABC" "abd" 0 0 T) (vl-string-mismatch "xab" "ab" 1 0))
;= (2 2 2)

; Wildcards: the pairs of a text and a pattern that do not match, and those that do.
(defun not-matching (pairs) (vl-remove-if '(lambda (p) (wcmatch (car p) (cadr p))) pairs))
(defun matching (pairs) (vl-remove-if-not '(lambda (p) (wcmatch (car p) (cadr p))) pairs))
(not-matching '(("Name" "N*") ("Nate" "???,~*m*") ("" "") ("" "*") ("abc" "a*c") ("aXbXc" "a*X*c") ("A1" "[A-C]#")
                ("a" "[~xyz]") ("-" "[a`-c]") ("-" "[-a]") ("]" "[`]]") ("a-b" "@.@") ("ä" "@") ("ä" "?") ("a,b" "a`,b")
                ("a" "b,a") ("b" "~a,~b") ("[x" "[x") ("*" "`*") ("~a" "`~a") ("5.5" "#.#") ("A-LAYER" "A-*,B-*"))) ;= nil
(matching '(("Name" "n*") ("Name" "???,~*m*") ("a" "") ("abcd" "a*c") ("D1" "[A-C]#") ("x" "[~xyz]") ("b" "[a`-c]")
            ("ab" "@.") ("7" "@") ("x" "`*"))) ;= nil
(wcmatch 5 "*") ;= ! bad argument type: stringp 5 in (WCMATCH), argument 1

; Reading and printing
(read "(1 (a . b) \"s\")") ;= (1 (A . B) "s")
(list (read "") (read "  ; only a comment") (read "a b")) ;= (nil nil A)
(read "(1") ;= ! malformed list on input in (READ)
(vl-princ-to-string '("a\n" 1.0)) ;= "(a\n 1.0)"
(vl-prin1-to-string "q\"\\\t") ;= "\"q\\\"\\\\\\t\""
(list 1e10 100000.0 1000000.0 0.00001 -0.5 123456.789) ;= (1.0e+10 100000.0 1.0e+06 1.0e-05 -0.5 123457.0)

; Typed and printed
(read-line) ;< first line\nä ;= "first line"
(list (read-char) (read-char) (read-char) (read-line)) ;= (228 10 nil nil)
(progn (princ "a\tb") (prin1 "c\n") (print 'd) (terpri) (prompt "e") (write-line "f") (write-char 8364))
;> a	b"c\\n"\nD \nef\n€ ;= 8364
(princ) ;=
(prompt 5) ;= ! bad argument type: stringp 5 in (PROMPT), argument 1
