; The program and its drawings as objects
(setq app (vlax-get-acad-object) doc (vla-get-activedocument app)) (list (type app) (eq app (vlax-get-acad-object)))
;= (VLA-OBJECT T)
(list (eq doc (vlax-get-property app 'ActiveDocument)) (equal doc (vlax-get app "activedocument")) (eq app doc)) ;= (T T nil)
(eq app (vla-get-application doc)) ;= T
(list (wcmatch (vl-princ-to-string doc) "[#]<VLA-OBJECT Document *>") (vla-get-name doc) (vla-get-fullname doc))
;= (T "Drawing1" "")
(list (vlax-property-available-p doc 'Name) (vlax-property-available-p doc 'Name T) (vlax-method-applicable-p doc 'startundomark)
  (vlax-method-applicable-p app 'startundomark)) ;= (T nil T nil)
(vla-get-activedocument nil) ;= error: bad argument type: VLA-OBJECT nil in (VLA-GET-ACTIVEDOCUMENT), argument 1
(vlax-get doc 'Colour) ;= error: unknown name: Document.COLOUR in (VLAX-GET)
(vlax-put doc 'Name "x") ;= error: read-only: Document.Name in (VLAX-PUT)
(vla-startundomark doc 1) ;= error: too many arguments in (VLA-STARTUNDOMARK)
(list (vlax-release-object doc) (vlax-object-released-p doc)) ;= (0 nil)

; Marks bracket one step of undoing, also over several runs
(setq doc (vla-get-activedocument (vlax-get-acad-object))) (vla-startundomark doc) ;= nil
(entmake '((0 . "POINT") (10 1.0 0.0 0.0))) (getvar "UNDOCTL") ;= 13
(entmake '((0 . "POINT") (10 2.0 0.0 0.0))) (vlax-invoke-method doc 'EndUndoMark) ;= nil
(list (getvar "UNDOCTL") (sslength (ssget "X"))) ;= (5 2)
(command "U") (ssget "X") ;= nil
