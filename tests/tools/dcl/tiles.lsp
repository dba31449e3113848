; Shows the dialogs of tiles.dcl; what actions saw is in SEEN, newest first in TRACE.

(setq trace nil)
(defun saw ()
  (setq seen (list $key $value $reason)
        trace (cons seen trace)))

(defun fill (key operation index items)
  (start_list key operation index)
  (mapcar 'add_list items)
  (end_list))

(defun action-with-fault ( / x)
  (setq x (car 5)))

(defun open-tiles ( / dcl)
  (setq dcl (load_dialog "tiles"))
  (if (new_dialog "tiles" dcl "(saw)")
    (progn
      (fill "blocks" 3 0 '("door\t12" "window\t4" "stair\t1"))
      (action_tile "name" "(setq name $value) (saw)")
      (action_tile "more" "(setq inner (open-second))")
      (client_data_tile "name" "its data")
      (action_tile "accept" "(setq values (read-tiles)) (done_dialog)")
      T)))

(defun read-tiles ()
  (mapcar 'get_tile '("name" "short" "layer" "visible" "size" "blocks" "many" "side" "how" "up")))

(defun open-second ( / result)
  (new_dialog "second" (load_dialog "tiles.dcl"))
  (action_tile "accept" "(setq result (get_tile \"inner\")) (done_dialog 1)")
  (list (start_dialog) result))
