;;; Images: the size of their files, their definitions in the drawing; clips of references.

;; (kora_picture_size path) -> (width height) in pixels of a PNG, GIF, BMP, JPEG or TIFF file; nil of another.
(defun kora_picture_size (path / handle size)
  (if (and (findfile path) (setq handle (open path "r" "bytes")))
    (progn
      (setq size (kora:read_size (list (read-char handle) (read-char handle))))
      (close handle)
      (if (and (car size) (cadr size) (> (apply 'min size) 0)) size))))

(defun kora:read_size (mark)
  (cond
    ((equal mark '(137 80)) (kora:skip 14) (list (kora:number 4 nil) (kora:number 4 nil)))
    ((equal mark '(71 73)) (kora:skip 4) (list (kora:number 2 T) (kora:number 2 T)))
    ((equal mark '(66 77)) (kora:skip 16) (mapcar 'abs (list (kora:number 4 T) (kora:number 4 T))))
    ((equal mark '(255 216)) (kora:jpeg_size))
    ((equal mark '(73 73)) (kora:tiff_size T))
    ((equal mark '(77 77)) (kora:tiff_size nil))))

(defun kora:skip (count) (repeat count (read-char handle)))

;; A whole number of so many bytes, the lowest first or last.
(defun kora:number (count is_little / byte value factor)
  (setq value 0 factor 1)
  (repeat count
    (setq byte   (cond ((read-char handle)) (0))
          value  (if is_little (+ value (* factor byte)) (+ (* 256 value) byte))
          factor (* 256 factor)))
  value)

;; Segments, each with its length, up to the one that begins a frame.
(defun kora:jpeg_size (/ code extent size)
  (while (and (not size) (setq code (read-char handle)) (= code 255))
    (while (= code 255) (setq code (read-char handle)))
    (setq extent (kora:number 2 nil))
    (cond
      ((or (null code) (< extent 2)) (setq size '(nil nil)))
      ((and (<= 192 code 207) (not (member code '(196 200 204))))
       (kora:skip 1)
       (setq size (reverse (list (kora:number 2 nil) (kora:number 2 nil)))))
      (T (kora:skip (- extent 2)))))
  size)

;; The first directory's fields 256 and 257, whose values are 2 or 4 bytes.
(defun kora:tiff_size (is_little / code kind value width height)
  (kora:skip 2)
  (kora:skip (- (kora:number 4 is_little) 8))
  (repeat (kora:number 2 is_little)
    (setq code (kora:number 2 is_little)
          kind (kora:number 2 is_little))
    (kora:skip 4)
    (setq value (kora:number (if (= kind 3) 2 4) is_little))
    (if (= kind 3) (kora:skip 2))
    (cond ((= code 256) (setq width value)) ((= code 257) (setq height value))))
  (list width height))

;; (kora_image_definition path size) -> the definition of an image file, that which the drawing has or a new one; nil
;; when it cannot be made.
(defun kora_image_definition (path size / images name number found)
  (if (setq images (kora_dictionary "ACAD_IMAGE_DICT"))
    (cond
      ((setq found (kora:definition_of images path)) found)
      (T
       (setq name   (vl-filename-base path)
             number 1)
       (while (dictsearch images name)
         (setq name (strcat (vl-filename-base path) "_" (itoa number)) number (1+ number)))
       (setq found (entmakex (list '(0 . "IMAGEDEF") '(100 . "AcDbRasterImageDef") '(90 . 0) (cons 1 path)
                                   (list 10 (float (car size)) (float (cadr size)))
                                   (list 11 (/ 1.0 (car size)) (/ 1.0 (cadr size)))
                                   '(280 . 1) '(281 . 0))))
       (if (and found (dictadd images name found)) found)))))

(defun kora:definition_of (images path)
  (vl-some '(lambda (field)
              (if (and (member (car field) '(350 360)) (= (kora_field (entget (cdr field)) 1) path)) (cdr field)))
           (entget images)))

;; (kora_clip_reference entity polygon) hides what of a reference is outside of a polygon in world coordinates.
(defun kora_clip_reference (entity polygon / data base map own filters filter)
  (setq data    (entget entity)
        base    (kora_field (tblsearch "BLOCK" (kora_field data 2)) 10)
        map     (kora_placing (kora_field data 10) (kora_field data 50)
                              (list (kora_field data 41) (kora_field data 42)))
        map     (kora_map_times map (list 1.0 0.0 0.0 1.0 (- (car base)) (- (cadr base))))
        map     (kora_map_back map)
        own     (entmakex '((0 . "DICTIONARY") (100 . "AcDbDictionary")))
        filters (entmakex '((0 . "DICTIONARY") (100 . "AcDbDictionary")))
        filter  (entmakex (append (list '(0 . "SPATIAL_FILTER") '(100 . "AcDbFilter") '(100 . "AcDbSpatialFilter")
                                        (cons 70 (length polygon)))
                                  (mapcar '(lambda (point) (list 10 (car point) (cadr point))) polygon)
                                  '((210 0.0 0.0 1.0) (11 0.0 0.0 0.0) (71 . 1) (72 . 0) (73 . 0))
                                  (mapcar '(lambda (number) (cons 40 number))
                                          (append (kora:rows_of map) (kora:rows_of '(1.0 0.0 0.0 1.0 0.0 0.0)))))))
  (entmod (list (cons -1 entity) '(102 . "{ACAD_XDICTIONARY") (cons 360 own) '(102 . "}")))
  (dictadd own "ACAD_FILTER" filters)
  (dictadd filters "SPATIAL" filter))

;; Three rows of four numbers.
(defun kora:rows_of (map)
  (list (car map) (caddr map) 0.0 (car (cddddr map)) (cadr map) (cadddr map) 0.0 (cadr (cddddr map)) 0.0 0.0 1.0 0.0))
