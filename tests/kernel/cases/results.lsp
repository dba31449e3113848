; Lists of what a tool did: printed where no window shows them.
(defun list-of (rows) (results-begin "T") (foreach row rows (apply 'results-add row)) (results-end))
(setq e (entmakex '((0 . "LINE") (10 0.0 0.0 0.0) (11 1.0 0.0 0.0))))
(list-of (list (list e "done" "turned") (list nil "skipped" "no line"))) ;= 2
(list-of (list (list e "skipped" "locked"))) ;> T: 0 done, 1 skipped ;= 1
(list-of (list (list e "skipped" "on a locked layer"))) ;> on a locked layer ;= 1
(results-end) ;= nil
(results-add e "done" "without a list") ;= nil
(list (results-begin "A") (results-begin "B") (results-add e "done" "x") (results-end) (results-end)) ;= (T T T 1 nil)
(results-add e "maybe" "x") ;= error: bad argument value: state "maybe" in (RESULTS-ADD), argument 2
(results-begin 5) ;= error: bad argument type: stringp 5 in (RESULTS-BEGIN), argument 1
(progn (results-begin "many") (repeat 100000 (results-add e "done" "")) (list (results-add e "done" "") (results-end))) ;> and 99801 more ;= (nil 100001)
(list (results-begin "gone") (results-add e "done" "erased") (type (entdel e)) (results-end)) ;> erased ;= (T T ENAME 1)
