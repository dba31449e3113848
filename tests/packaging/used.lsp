;; What an installed program finds, a line each: the installation test compares them with where it stands.
(foreach name '("breakline.lsp" "patterns.pat")
  (princ (strcat "\ntool " (findfile name))))
(princ (strcat "\ndialogs " (if (null Dlg_BreakLine) "none" "there")))
(princ "\nhelp")
(command "_.HELP")
(setcfg "AppData/Installation/Run" "1")
(princ)
