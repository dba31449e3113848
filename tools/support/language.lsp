;;; Texts in the user's language, which LOCALE says: from the catalogue languages/<code>.lsp beside the tools, a list of
;;; pairs (English . local). What it lacks stays English. A text whose places are filled later has %1, %2 ... in them.

(setq kora:texts nil) ; the catalogue that was read last
(setq kora:texts_code nil) ; and its language
(setq kora:languages '(("DEU" . "de") ("FRA" . "fr") ("ESP" . "es") ("ITA" . "it")))

;; (kora_text text values) -> the text in the user's language with the values, texts, in its places %1, %2 ... The options
;; in its last brackets, "[Yes/No] <No>", are English in the catalogues; here they become the words of kora_initget.
(defun kora_text (text values / local)
  (setq local (kora:local text))
  (kora:with_values (if (kora:catalogue_texts) (kora:with_local_options local) local) values))

;; (kora_count number one several) -> the text for one, or that for several with the number in its place %1.
(defun kora_count (number one several)
  (kora_text (if (= number 1) one several) (list (itoa number))))

;; (kora_initget options) has the next prompt take these, "Yes No", in English behind a "_" as well as in the user's
;; language. What the prompt gives is English.
(defun kora_initget (options)
  (initget (kora_keywords options)))

;; (kora_keywords options) -> them as initget wants them: "Ja Nein _Yes No", "Yes No" where the user's language has no others.
(defun kora_keywords (options / local)
  (setq local (kora_string_join (mapcar 'kora:local (kora_string_split options " ")) " "))
  (if (= local options) options (strcat local " _" options)))

;; The texts are read once for each language.
(defun kora:catalogue_texts (/ code)
  (setq code (cdr (assoc (strcase (kora:locale)) kora:languages)))
  (if (/= code kora:texts_code)
    (setq kora:texts_code code
          kora:texts      (if code (kora:read_texts code))))
  kora:texts)

(defun kora:locale ()
  (cond ((= (type (getvar "LOCALE")) 'STR) (getvar "LOCALE")) ("")))

(defun kora:read_texts (code / file)
  (if (setq file (findfile (strcat kora:support_folder "../languages/" code ".lsp")))
    (load file nil)))

(defun kora:local (text)
  (cond ((cdr (assoc text (kora:catalogue_texts)))) (text)))

;; Puts the user's words in place of the English ones in the last brackets, and of the default behind them.
(defun kora:with_local_options (text / begin end options usual)
  (if (and (setq begin (vl-string-position 91 text nil T)) (setq end (vl-string-search "]" text begin)))
    (progn
      (setq options (kora_string_split (substr text (+ begin 2) (- end begin 1)) "/")
            usual   (vl-some '(lambda (option) (if (vl-string-search (strcat "<" option ">") text end) option)) options))
      (strcat (substr text 1 (1+ begin)) (kora_string_join (mapcar 'kora:local options) "/")
              (if usual
                (vl-string-subst (strcat "<" (kora:local usual) ">") (strcat "<" usual ">") (substr text (1+ end)))
                (substr text (1+ end)))))
    text))

;; What is in the values is no place.
(defun kora:with_values (text values / at place result)
  (setq result "")
  (while (setq at (vl-string-search "%" text))
    (setq place (nth (kora:digit_at text (1+ at)) values))
    (setq result (strcat result (substr text 1 at) (cond (place) ("%")))
          text   (substr text (if place (+ at 3) (+ at 2)))))
  (strcat result text))

;; -> 0 for the digit 1 and so on at a place that counts from 0; a number that no list is as long as for another letter.
(defun kora:digit_at (text at / letter)
  (setq letter (substr text (1+ at) 1))
  (if (wcmatch letter "[1-9]") (1- (atoi letter)) 99))
