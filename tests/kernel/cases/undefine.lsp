; A point runs what was hidden; a program's own command of the name goes before
(command "_.UNDEFINE" "point")(command "POINT" '(1 1)) ;> Unknown command "POINT" ;= nil
(entlast) ;= nil
(command "_.POINT" '(1 1))(command "._POINT" '(2 2))(sslength (ssget "X")) ;= 2
(getvar "CMDNAMES") ;! POINT\n ;> Unknown command "POINT" ;= ""
(command "REDEFINE" "POINT" "POINT" '(3 3))(sslength (ssget "X")) ;= 3
(command "REDEFINE" "POINT") ;> is a command already ;= nil
