;;; Tables in text files as spreadsheets read and write them: cells with tabs between, a row a line. A cell with a tab, a
;;; line end or a double quote stands in double quotes, with those inside doubled.
;;;
;;; A spreadsheet makes a number, a date, a truth value or the result of a formula of what looks so, and writes that back.
;;; An apostrophe in front of a cell keeps it a text and is no part of it; a text that begins with one has two.

;; (kora_table_row texts) -> the row of these texts as the file has it; nil among them stays an empty cell.
(defun kora_table_row (texts)
  (kora_string_join (mapcar 'kora:quoted_cell (mapcar 'kora_table_cell texts)) "\t"))

;; (kora_table_cell text) -> the cell that says text, with an apostrophe where it could be taken for something else.
;; A text that is given as (cell) is a cell already.
(defun kora_table_cell (text)
  (cond ((null text) "")
        ((listp text) (car text))
        ((kora:is_plain_text text) text)
        (T (strcat "'" text))))

;; (kora_cell_text cell) -> the text that a cell says.
(defun kora_cell_text (cell)
  (if (= (substr cell 1 1) "'") (substr cell 2) cell))

;; Whether every spreadsheet takes a text for one: it begins with a letter and has no digit, with which it could be a
;; date or an amount of money, and is no truth value of a usual language.
(defun kora:is_plain_text (text / first)
  (setq first (substr text 1 1))
  (or (= text "")
      (and (/= (strcase first) (strcase first T))
           (not (wcmatch text "*#*"))
           (not (member (strcase (kora_string_trim text))
                        '("TRUE" "FALSE" "WAHR" "FALSCH" "VRAI" "FAUX" "VERDADERO" "VERDADEIRO" "FALSO" "VERO" "WAAR"
                          "ONWAAR" "PRAWDA" "SANT" "FALSKT"))))))

(defun kora:quoted_cell (cell)
  (if (= cell (vl-string-translate "\t\r\n\"" "    " cell))
    cell
    (strcat "\"" (kora_replace_all "\"\"" "\"" cell) "\"")))
