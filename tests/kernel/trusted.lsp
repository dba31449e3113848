; What is loaded from where, in the folders that the fixture makes; ";>" is part of what is said of what was not loaded.
; A program's value is the folder that it lies in. (run) is (load) by a program.
(defun run (name) (load name 'refused))
(defun at (name) (strcat top name))

(load "tool") ;= "support"
(load "sub\\tool.lsp") ;= "support/sub"
(load "support/tool.lsp" 'no) ;= NO ;> its folder is not trusted
(load "own" 'no) ;= NO ;> beside/own.lsp was not loaded: its folder is not trusted
(load "own") ;= error: LOAD failed: "own" in (LOAD) ;> its folder is not trusted
(load "OWN2.LSP" 'no) ;= NO ;> its folder is not trusted
(load "plain" 'no) ;= NO ;> its folder is not trusted
(load "own3" 'no) ;= NO ;> work/own3.lsp was not loaded
(load "./own3" 'no) ;= NO ;> its folder is not trusted
(load "../beside/own" 'no) ;= NO ;> its folder is not trusted
(load "leads-in") ;= "named"
(mapcar '(lambda (name) (load name 'no)) '("leads-out" "none" "")) ;= (NO NO NO)
; What a person types with its full path is that person's own act; what a program names is not.
(load (at "beside/own")) ;= "beside"
(run (at "beside/own")) ;= REFUSED ;> its folder is not trusted
(not (vl-catch-all-error-p (vl-catch-all-apply 'run (list (at "named/loads.lsp"))))) ;= nil ;> its folder is not trusted
(run (at "named/../beside/own")) ;= REFUSED ;> its folder is not trusted
(run (at "named/leads-out.lsp")) ;= REFUSED ;> its folder is not trusted
(run (at "named/tool")) ;= "named"
(run (at "named/sub/tool")) ;= REFUSED ;> its folder is not trusted
(run (at "home/sub/tool")) ;= "home/sub"
(run (at "open/tool")) ;= REFUSED ;> everyone may write to
(progn (autoload "own" '("OWN")) (vl-catch-all-error-p (vl-catch-all-apply 'c:own nil))) ;= T ;> its folder is not trusted
; Other files are found beside the drawing as ever.
(mapcar 'findfile '("own.lsp" "OWN2.LSP" "type.scr")) ;= (nil nil nil)
(list (findtrustedfile "data.lin") (= (findfile "data.lin") (at "beside/data.lin"))) ;= (nil T)
(= (findtrustedfile "tool.lsp") (findfile "tool.lsp") (at "support/tool.lsp")) ;= T
(command "SCRIPT" "type.scr") ;= nil ;> its folder is not trusted
(list typed (type (getvar "TRUSTEDPATHS"))) ;= (nil STR)
