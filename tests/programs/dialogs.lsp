;;; Dialogs that programs write to a file of their own.

;; BOM asks for an item with tiles of all kinds.
(defun mkdcl (/ f fn)
  (setq fn (vl-filename-mktemp "bom" nil ".dcl")
        f (open fn "w"))
  (foreach l '("bom : dialog { label = \"Bill\"; initial_focus = \"qty\";"
               ": row { : list_box { key = \"lst\"; label = \"&Items\";"
               "      height = 6; width = 20; multiple_select = false; }"
               ": column { : edit_box { key = \"qty\"; label = \"&Qty:\";"
               "      edit_width = 6; edit_limit = 4; allow_accept = true; }"
               ": popup_list { key = \"unit\"; label = \"Unit\";"
               "      list = \"pc\\nm\\nkg\"; value = \"1\"; }"
               ": toggle { key = \"tot\"; label = \"Total\"; value = \"1\"; }" ": radio_row { key = \"rr\";"
               "      : radio_button { key = \"r1\"; label = \"A\"; value = \"1\"; }"
               "      : radio_button { key = \"r2\"; label = \"B\"; } }" ": slider { key = \"sl\";"
               "      min_value = 0; max_value = 50; small_increment = 1; big_increment = 10; value = \"7\"; }"
               ": image_button { key = \"im\"; width = 8; aspect_ratio = 1; color = 0; } } }"
               ": text { key = \"msg\"; width = 30; } errtile; ok_cancel; }")
    (write-line l f))
  (close f)
  fn)
(defun bom-done ()
  (setq res (append (mapcar 'get_tile '("lst" "qty" "unit" "tot" "sl" "rr"))
                    (list (get_attr "qty" "label") (get_attr "sl" "max_value"))))
  (done_dialog 1))
(defun c:BOM (/ id fn ok items)
  (setq fn (mkdcl)
        id (load_dialog fn)
        items '("bolt" "nut" "washer"))
  (if (not (new_dialog "bom" id)) (exit))
  (start_list "lst")
  (mapcar 'add_list items)
  (end_list)
  (start_list "unit" 2)
  (add_list "set")
  (end_list)
  (start_list "lst" 1 1)
  (add_list "NUT")
  (end_list)
  (set_tile "lst" "2")
  (set_tile "qty" "5")
  (set_tile "msg" "Pick one")
  (set_tile "error" "careful")
  (action_tile "lst" "(setq why (cons (list $key $value $reason) why)) (if (= $reason 4) (done_dialog 2))")
  (action_tile "qty" "(setq why (cons (list $key $value $reason) why))")
  (action_tile "tot" "(mode_tile \"unit\" (- 1 (atoi $value)))")
  (client_data_tile "rr" "secret")
  (action_tile "rr" "(setq rrv $value cd $data)")
  (action_tile "im" "(setq imx (numberp $x))")
  (action_tile "accept" "(bom-done)")
  (action_tile "cancel" "(done_dialog 0)")
  (setq wx (dimx_tile "im")
        wy (dimy_tile "im"))
  (start_image "im")
  (fill_image 0 0 wx wy 5)
  (vector_image 0 0 wx wy 1)
  (end_image)
  (setq why nil
        res nil
        rrv nil
        cd nil)
  (setq st (start_dialog))
  (unload_dialog id)
  (vl-file-delete fn)
  (princ))

;; NEST opens a dialog from another.
(defun c:NEST ()
  (setq fn (write-lines "nest.dcl"
                        '("a : dialog { label = \"A\";" "  : button { key = \"more\"; label = \"More...\"; }"
                          "  : edit_box { key=\"v\"; value=\"1\"; } ok_cancel; }" "b : dialog { label = \"B\";"
                          "  : edit_box { key=\"w\"; label=\"W\"; }"
                          "  : button { key=\"pick\"; label=\"Pick <\"; } ok_cancel; }")))
  (setq id (load_dialog fn)
        st 2
        pt nil
        val "1"
        trail nil)
  (while (>= st 2)
    (new_dialog "a" id "(setq trail (cons (list $key $reason) trail))" (if pos pos '(-1 -1)))
    (set_tile "v" val)
    (action_tile "more" "(sub)")
    (action_tile "accept" "(setq val (get_tile \"v\")) (setq pos (done_dialog 1))")
    (setq st (start_dialog)))
  (unload_dialog id)
  (princ))
(defun sub (/ r)
  (new_dialog "b" id)
  (set_tile "w" (get_tile "w"))
  (action_tile "accept" "(setq neww $value ww (get_tile \"w\")) (done_dialog 1)")
  (action_tile "pick" "(done_dialog 5)")
  (setq r (start_dialog))
  (setq subst r)
  (if (= r 1) (set_tile "v" ww)))

;; HIDE2 hides its dialog for a point.
(defun c:HIDE2 (/ id go p)
  (write-lines "hide.dcl"
               '("h : dialog { label = \"H\"; : text { key = \"t\"; label = \"none\"; }"
                 "  : button { key = \"p\"; label = \"Pick point <\"; } ok_only; }"))
  (setq id (load_dialog (strcat *folder* "hide"))
        go 9)
  (while (> go 1)
    (if (not (new_dialog "h" id)) (exit))
    (if p
      (set_tile "t" (strcat (rtos (car p) 2 1) "," (rtos (cadr p) 2 1))))
    (action_tile "p" "(done_dialog 3)")
    (action_tile "accept" "(done_dialog)")
    (setq go (start_dialog))
    (if (= go 3) (setq p (getpoint "\nPoint: "))))
  (setq hp p hgo go)
  (unload_dialog id)
  (princ))
