; `dir` is an empty folder.
(defun at (name) (strcat dir name))
(defun put (name text / f) (setq f (open (at name) "w")) (princ text f) (close f))
(defun get (name / f line all)
  (setq f (open (at name) "r" "bytes") all "")
  (while (setq line (read-line f)) (setq all (strcat all line "|")))
  (close f)
  all)

; Write then read
(setq f (open (at "a.txt") "w")) (write-line "Zeile ä" f) (princ "x" f) (prin1 "y" f) (write-char 10 f) (print 5 f) (close f)
;= nil
(setq f (open (at "a.txt") "a")) (write-line "end" f) (close f) ;= nil
(setq f (open (at "a.txt") "r")) (list (read-line f) (read-char f) (read-line f) (read-line f))
;= ("Zeile ä" 120 "\"y\"" "")
(list (read-line f) (read-line f) (read-char f)) ;= ("5 end" nil nil)
(vl-catch-all-error-p (vl-catch-all-apply 'write-line (list "no" f))) ;= T
(close f) ;= nil
(get "a.txt") ;= "Zeile ä|x\"y\"||5 end|"
(write-line "kept" (open (at "forgotten.txt") "w")) (get "forgotten.txt") ;= "kept|"

; Wrong use of files
(list (open (at "none.txt") "r") (open (at "no/such/folder.txt") "w") (open dir "r")) ;= (nil nil nil)
(list (open (at "pipe") "w") (open (at "pipe") "a") (open (at "pipe") "r") (open dir "w")) ;= (nil nil nil nil)
(list (vl-file-copy (at "a.txt") (at "pipe") T) (vl-file-copy (at "pipe") (at "c.txt"))) ;= (nil nil)
(open (at "a") "x") ;= ! bad argument value: "x" in (OPEN), argument 2
(read-line 5) ;= ! bad argument type: streamp 5 in (READ-LINE), argument 1
(princ 1 "a") ;= ! bad argument type: streamp "a" in (PRINC), argument 2
(setq f (open (at "b") "w")) (close f) (substr (vl-catch-all-error-message (vl-catch-all-apply 'close (list f))) 20 7)
;= "streamp"
(type (open (at "b") "w")) ;= FILE

; Loading
(put "good.lsp" "(setq loaded \"ä\")\r\n(defun twice (x)\r\n  (* 2 x))\r\n'done\r\n")
(put "open.lsp" "(setq x\n") (put "door.lsp" "(defun c:door () 'opened)")
(load (at "good")) ;= DONE
(list loaded (twice 4)) ;= ("ä" 8)
(load (at "none") 'missing) ;= MISSING
(load (at "none") '(lambda () 5)) ;= (LAMBDA nil 5)
(load (at "none") (function (lambda () 5))) ;= 5
(load "none") ;= ! LOAD failed: "none" in (LOAD)
(load (at "open.lsp")) ;= ! malformed list on input in (LOAD)
(autoload (at "good") '("GATE")) (vl-catch-all-error-message (vl-catch-all-apply 'c:gate nil))
;= "no function definition: C:GATE"
(autoload (at "door") '("DOOR")) (list (c:door) (c:door)) ;= (OPENED OPENED)

; What lacks a function is left out of a file, and told; other errors end it
(put "later.lsp" "(setq a 1)\n(no-such a)\n(c:none)\n(setq a (1+ a))\n(defun later () (setq b (list (no-such))))")
(setq heard nil) (defun *error* (m) (setq heard m)) (load (at "later")) ;= LATER
(list a heard) ;= (2 nil)
(setq *error* nil) (later) ;= ! no function definition: NO-SUCH
(put "wrong.lsp" "(setq c 1)\n(setq c (+ c \"x\"))\n(setq c 3)") (load (at "wrong"))
;= ! bad argument type: numberp: "x" in (+), argument 2
c ;= 1
(put "outer.lsp" "(load (at \"later\"))\n(inner-only)\n(setq outer t)") (load (at "outer")) ;= T
(vl-catch-all-error-p (vl-catch-all-apply 'load (list (at "later")))) ;= nil
(put "caught.lsp" "(setq d (vl-catch-all-error-message (vl-catch-all-apply '(lambda () (no-such)) nil)))") (load (at "caught"))
;= "no function definition: NO-SUCH"
(load nil nil) ;= nil
(list (load (at "none") nil) (load (findfile "none") nil)) ;= (nil nil)

; Files on disk
(put "a.txt" "12345") (put "B.TXT" "") (put "c.lsp" "") (vl-mkdir (at "sub"))
(list (vl-file-size (at "a.txt")) (vl-file-size (at "sub")) (vl-file-size (at "none"))) ;= (5 0 nil)
(list (vl-file-directory-p dir) (vl-file-directory-p (at "a.txt"))) ;= (T nil)
(vl-directory-files dir "*.txt" 1) ;= ("B.TXT" "a.txt")
(vl-directory-files dir nil -1) ;= ("." ".." "sub")
(vl-directory-files dir "?.*" 1) ;= ("B.TXT" "a.txt" "c.lsp")
(vl-directory-files (at "none")) ;= nil
(defun copy (from to append) (vl-file-copy (at from) (at to) append)) ;= COPY
(list (copy "a.txt" "d.txt" nil) (copy "a.txt" "d.txt" nil) (copy "a.txt" "d.txt" T)) ;= (5 nil 5)
(list (copy "a.txt" "a.txt" T) (vl-file-copy (at "none") (at "e.txt")) (vl-file-size (at "d.txt"))) ;= (nil nil 10)
(list (vl-file-rename (at "d.txt") (at "e.txt")) (vl-file-rename (at "e.txt") (at "a.txt"))) ;= (T nil)
(list (vl-file-delete (at "e.txt")) (vl-file-delete (at "e.txt")) (vl-file-delete (at "sub"))) ;= (T nil nil)
(list (vl-mkdir (at "new")) (vl-mkdir (at "new"))) ;= (T nil)
(length (vl-file-systime (at "a.txt"))) ;= 8
(list (vl-file-systime (at "none")) (= (findfile (at "a.txt")) (at "a.txt")) (findfile (at "none"))) ;= (nil T nil)
(list (findfile "") (open "" "r") (vl-file-size "")) ;= (nil nil nil)

; Names
(vl-filename-base "c:\\tools\\plan.v2.lsp") ;= "plan.v2"
(mapcar 'vl-filename-directory '("c:\\tools\\plan.lsp" "plan.lsp" "/plan.lsp")) ;= ("c:\\tools" "" "/")
(list (vl-filename-extension "a/b.lsp") (vl-filename-extension "a.b/c") (vl-filename-extension ".x"))
;= (".lsp" nil nil)
(fnsplitl "a/b.c") ;= ("a/" "b" ".c")

; Temporary names
(defun parts (path)
  (list (vl-filename-directory path) (substr (vl-filename-base path) 1 1) (vl-filename-extension path)
        (> (strlen (vl-filename-base path)) 10) (findfile path)))
(equal (parts (vl-filename-mktemp "t.tmp" dir)) (list (vl-string-right-trim "/" dir) "t" ".tmp" T nil)) ;= T
(equal (parts (vl-filename-mktemp (at "t.tmp"))) (parts (vl-filename-mktemp (at "t") nil ".tmp"))) ;= T
(= (vl-filename-mktemp (at "t.tmp")) (vl-filename-mktemp (at "t.tmp"))) ;= nil
(setq own (vl-filename-directory (vl-filename-mktemp)) f (open (strcat own "/a") "w")) (close f) ;= nil
(= own (vl-filename-directory (vl-filename-mktemp "b.tmp")) (vl-filename-directory (vl-filename-mktemp))) ;= T
