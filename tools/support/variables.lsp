;;; System variables: which there are, and their values as texts that set them.

;; Those that tell and cannot be set.
(setq kora:told_variables
  '("ACADPREFIX" "ACADVER" "AREA" "CDATE" "CMDACTIVE" "CMDNAMES" "CPUTICKS" "CVPORT" "DATE" "DBMOD" "DIASTAT"
    "DIMSTYLE" "DISTANCE" "DWGCODEPAGE" "DWGNAME" "DWGPREFIX" "DWGTITLED" "EXTMAX" "EXTMIN" "FULLOPEN" "HANDLES"
    "HANDSEED" "HPBOUND" "LASTANGLE" "LASTPROMPT" "LOCALE" "LOCALROOTPREFIX" "LOGINNAME" "MENUNAME" "MILLISECS"
    "MYDOCUMENTSPREFIX" "OPMSTATE" "PERIMETER" "PFACEVMAX" "PLATFORM" "POPUPS" "PRODUCT" "PROGRAM"
    "ROAMABLEROOTPREFIX" "RTDISPLAY" "SAVEFILE" "SAVENAME" "SCREENBOXES" "SCREENMODE" "SCREENSIZE" "SYSCODEPAGE"
    "TARGET" "TDCREATE" "TDINDWG" "TDUCREATE" "TDUPDATE" "TDUSRTIMER" "TDUUPDATE" "TEMPPREFIX" "UCSNAME" "UCSORG"
    "UCSXDIR" "UCSYDIR" "UNDOCTL" "UNDOMARKS" "VERSION" "VIEWCTR" "VIEWDIR" "VIEWMODE" "VIEWSIZE" "VIEWTWIST"
    "VSMAX" "VSMIN" "WORLDUCS" "WORLDVIEW" "WRITESTAT"))

;; Those that change how programs and commands run, where files are kept, or which part of the drawing is worked on: a
;; script that sets them can make a drawing or a program unusable.
(setq kora:risky_variables
  '("ACADLSPASDOC" "ATTDIA" "ATTREQ" "AUDITCTL" "CMDDIA" "CMDECHO" "CTAB" "DRAGMODE" "ERRNO" "EXPERT" "FILEDIA"
    "HIGHLIGHT" "ISAVEBAK" "LISPINIT" "LOGFILEMODE" "LOGFILEPATH" "MENUCTL" "MENUECHO" "NOMUTT" "PICKADD"
    "PICKAUTO" "PICKBOX" "PICKDRAG" "PICKFIRST" "PICKSTYLE" "PROXYSHOW" "REGENMODE" "SAVEFILEPATH" "SAVETIME" "SDI"
    "SECURELOAD" "TILEMODE" "TREEDEPTH" "TRUSTEDPATHS" "XLOADCTL" "XLOADPATH" "XREFCTL"))

;; The others.
(setq kora:plain_variables
  '("ANGBASE" "ANGDIR" "APERTURE" "ATTMODE" "AUNITS" "AUPREC" "AUTOSNAP" "BLIPMODE" "CECOLOR" "CELTSCALE" "CELTYPE"
    "CELWEIGHT" "CHAMFERA" "CHAMFERB" "CHAMFERC" "CHAMFERD" "CHAMMODE" "CIRCLERAD" "CLAYER" "CMLJUST" "CMLSCALE"
    "CMLSTYLE" "COORDS" "CURSORSIZE" "DIMADEC" "DIMALT" "DIMALTD" "DIMALTF" "DIMALTRND" "DIMALTTD" "DIMALTTZ"
    "DIMALTU" "DIMALTZ" "DIMAPOST" "DIMASSOC" "DIMASZ" "DIMATFIT" "DIMAUNIT" "DIMAZIN" "DIMBLK" "DIMBLK1" "DIMBLK2"
    "DIMCEN" "DIMCLRD" "DIMCLRE" "DIMCLRT" "DIMDEC" "DIMDLE" "DIMDLI" "DIMDSEP" "DIMEXE" "DIMEXO" "DIMFRAC" "DIMGAP"
    "DIMJUST" "DIMLDRBLK" "DIMLFAC" "DIMLIM" "DIMLUNIT" "DIMLWD" "DIMLWE" "DIMPOST" "DIMRND" "DIMSAH" "DIMSCALE"
    "DIMSD1" "DIMSD2" "DIMSE1" "DIMSE2" "DIMSOXD" "DIMTAD" "DIMTDEC" "DIMTFAC" "DIMTIH" "DIMTIX" "DIMTM" "DIMTMOVE"
    "DIMTOFL" "DIMTOH" "DIMTOL" "DIMTOLJ" "DIMTP" "DIMTSZ" "DIMTVP" "DIMTXSTY" "DIMTXT" "DIMTZIN" "DIMUPT" "DIMZIN"
    "DISPSILH" "EDGEMODE" "ELEVATION" "EXPLMODE" "EXTNAMES" "FACETRES" "FILLETRAD" "FILLMODE" "FONTALT" "GRIDMODE"
    "GRIDUNIT" "GRIPBLOCK" "GRIPCOLOR" "GRIPHOT" "GRIPS" "GRIPSIZE" "HPANG" "HPASSOC" "HPDOUBLE" "HPNAME" "HPSCALE"
    "HPSPACE" "INDEXCTL" "INSBASE" "INSNAME" "INSUNITS" "ISOLINES" "LASTPOINT" "LIMCHECK" "LIMMAX" "LIMMIN" "LTSCALE"
    "LUNITS" "LUPREC" "LWDEFAULT" "LWDISPLAY" "LWUNITS" "MAXACTVP" "MAXSORT" "MEASUREINIT" "MEASUREMENT" "MIRRTEXT"
    "MODEMACRO" "MTEXTED" "OFFSETDIST" "OFFSETGAPTYPE" "ORTHOMODE" "OSMODE" "OSNAPCOORD" "PDMODE" "PDSIZE" "PEDITACCEPT"
    "PELLIPSE" "PLINEGEN" "PLINETYPE" "PLINEWID" "POLARADDANG" "POLARANG" "POLARDIST" "POLARMODE" "POLYSIDES"
    "PROJECTNAME" "PROJMODE" "PSLTSCALE" "PSTYLEMODE" "QTEXTMODE" "RASTERPREVIEW" "SHADEDGE" "SHADEDIF" "SHORTCUTMENU"
    "SKETCHINC" "SKPOLY" "SNAPANG" "SNAPBASE" "SNAPISOPAIR" "SNAPMODE" "SNAPSTYL" "SNAPTYPE" "SNAPUNIT" "SORTENTS"
    "SPLFRAME" "SPLINESEGS" "SPLINETYPE" "SURFTAB1" "SURFTAB2" "SURFTYPE" "SURFU" "SURFV" "TEXTFILL" "TEXTQLTY"
    "TEXTSIZE" "TEXTSTYLE" "THICKNESS" "TOOLTIPS" "TRACEWID" "TRACKPATH" "TRIMMODE" "UCSFOLLOW" "UCSICON" "UNITMODE"
    "USERI1" "USERI2" "USERI3" "USERI4" "USERI5" "USERR1" "USERR2" "USERR3" "USERR4" "USERR5" "USERS1" "USERS2"
    "USERS3" "USERS4" "USERS5" "VISRETAIN" "WIPEOUTFRAME" "XCLIPFRAME" "XEDIT" "XFADECTL"))

;; (kora_write_variables path) writes a line for each variable that the host has, in the order of their names: the
;; expression that sets it, with the word "dangerous" in a comment where that holds; one that cannot be set is a comment
;; with the word "read-only", which scripts pass over. The comment is within the expression, because a script goes on as a
;; command behind one. -> T, nil when the file cannot be written.
(defun kora_write_variables (path)
  (kora_write_file path
    '(lambda (handle)
       (foreach name (vl-sort (append kora:told_variables kora:risky_variables kora:plain_variables) '<)
         (if (getvar name) (write-line (kora:variable_line name (getvar name)) handle))))))

(defun kora:variable_line (name value / text)
  (setq text (strcat "(setvar \"" name "\" " (if (= (type value) 'LIST) "'" "") (kora:exact_text value)))
  (cond ((member name kora:told_variables) (strcat ";" text ") read-only"))
        ((member name kora:risky_variables) (strcat text " ;|dangerous|;)"))
        (T (strcat text ")"))))

;; (kora_export_variables mode) runs the dialog that writes variables to a script, a new one for "new", at the end of one
;; for "add".
(defun kora_export_variables (mode / *error* kora:variables path)
  ;; Before anything is set, so that the values are the user's.
  (setq path (kora_userfile "exportvariables.listing"))
  (if (kora_write_variables path)
    (progn
      (kora_begin '(("CMDECHO" . 0)))
      (Dlg_exportsetting path mode)
      (vl-file-delete path)
      (kora_end))
    (kora_alert_message (kora_text "The variables cannot be listed: %1 cannot be written." (list path))))
  (princ))
