;;; The support library of the drafting tools. It is loaded before the tools.
;;;
;;; support/language.lsp texts in the user's language
;;; support/run.lsp       a tool's run: undo step, system variables, errors
;;; support/state.lsp     state files and the action words of dialogs
;;; support/strings.lsp   splitting and trimming
;;; support/entities.lsp  entity data, selections, bounding boxes
;;; support/selection.lsp what a tool works on, locked layers, closing words
;;; support/texts.lsp     what texts say, with and without their formatting codes
;;; support/textboxes.lsp where texts stand, and outlines around them
;;; support/outlines.lsp  what entities look like: pieces, polygons, frames of blocks
;;; support/companions.lsp masks and frames of texts, and to which text they belong
;;; support/areas.lsp     areas within polygons, grids over them, cutting at their edge
;;; support/regions.lsp   what filled shapes have in common with an area
;;; support/strokes.lsp   what blocks are drawn with, through all blocks within them
;;; support/hatches.lsp   hatches and their patterns of lines
;;; support/pictures.lsp  images, and clips of references
;;; support/rooms.lsp     what touching lines and curves enclose
;;; support/patterns.lsp  patterns over an area, for PATTERNHATCH
;;; support/copies.lsp    their copies, whole and cut
;;; support/groups.lsp    groups of entities
;;; support/catalogue.lsp what the Lisp engine holds, for the Lisp Explorer
;;; support/files.lsp     files of definitions, changed in one place
;;; support/dimstyles.lsp dimension styles as text
;;; support/arrows.lsp    arrow blocks of dimension styles, the standard ones and others as text
;;; support/blocks.lsp    blocks, references to them, and what is within what
;;; support/attributes.lsp attributes of block references
;;; support/tables.lsp    tables as spreadsheets write them
;;; support/replacing.lsp replacing blocks
;;; support/drawing.lsp   lines and texts in the user's coordinate system
;;; support/variables.lsp system variables
;;; support/viewports.lsp viewports of the sheet

;; By the path of the installation, whatever lies in the working folder or beside the drawing.
(setq kora:support_folder (strcat (vl-filename-directory (findfile "ortakit.lsp")) "/support/"))

(foreach file '("language" "strings" "run" "state" "entities" "selection" "texts" "textboxes" "catalogue" "files" "dimstyles" "arrows"
                "blocks" "attributes" "tables" "replacing" "drawing" "variables" "viewports" "outlines" "areas" "regions"
                "strokes" "hatches" "pictures" "rooms" "patterns" "copies" "groups" "companions")
  (load (strcat kora:support_folder file ".lsp")))
(princ)
