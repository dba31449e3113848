// Dialogues of commands, answered by a script, by (command) and one answer at a time as in the window: each way the
// same comes out, undo gives back the bytes that were, and so does Esc at every prompt.

#include "tests/kernel/CommandDialogue.h"

namespace {

const DialogueCase circles[] = {
    {"by two points", "", "CIRCLE|2P|0,0|10,0", "CIRCLE 10=5,0,0 40=5"},
    {"by three points", "", "CIRCLE|3P|1,0|0,1|-1,0", "CIRCLE 10=0,0,0 40=1"},
    {"three points in a line", "", "CIRCLE|3P|0,0|1,1|2,2", "", "the points lie in one line"},
    {"two points that are one", "", "CIRCLE|2P|3,3|3,3", "", "Circle does not exist"},
    {"an option that there is not", "", "CIRCLE|5P|0,0|10,0", "", "Invalid point"},
    {"a negative radius", "", "CIRCLE|0,0|-3", "", "must not be negative"},
    {"tangents to two lines", "(line 0 0 10 0)(line 0 0 0 10)", "CIRCLE|T|5,0|0,5|2",
     "LINE 10=0,0,0 11=10,0,0; LINE 10=0,0,0 11=0,10,0; CIRCLE 10=2,2,0 40=2"},
    {"the last radius", "(setvar \"CIRCLERAD\" 4.0)", "CIRCLE|1,1|", "CIRCLE 10=1,1,0 40=4"},
    {"in turned axes", "turned", "CIRCLE|2P|0,0|10,0", "CIRCLE 10=10,25,0 40=5"},
    {"in tilted axes", "tilted", "CIRCLE|3P|1,0|0,1|-1,0", "CIRCLE 10=0,5,0 40=1 210=0,-1,0"},
};

const DialogueCase texts[] = {
    {"right", "", "TEXT|J|R|10,5|2|0|AB", "TEXT 40=2 1=AB 11=10,5,0 72=2"},
    {"justification without asking for it", "", "TEXT|MC|10,5|2|90|AB", "TEXT 40=2 1=AB 50=90 11=10,5,0 72=1 73=2"},
    {"aligned", "", "TEXT|J|Align|0,0|0,10|AB", "TEXT 1=AB 50=90 11=0,10,0 72=3"},
    {"fitted", "", "TEXT|J|F|0,0|10,0|3|AB", "TEXT 40=3 1=AB 11=10,0,0 72=5"},
    {"a style of fixed height",
     "(entmake '((0 . \"STYLE\") (100 . \"AcDbSymbolTableRecord\") (100 . \"AcDbTextStyleTableRecord\") (2 . "
     "\"Fixed\") (70 . 0) (40 . 3.5) (41 . 0.8) (50 . 0.0) (71 . 0) (42 . 3.5) (3 . \"txt\") (4 . \"\")))",
     "TEXT|S|Fixed|1,2|0|Room", "TEXT 10=1,2,0 40=3.5 1=Room 7=Fixed 41=0.8"},
    {"a style that there is not", "", "TEXT|S|Nowhere|1,2|2|0|Room", "", "Cannot find text style \"Nowhere\""},
    {"as long as its points are apart", "", "TEXT|J|Align|0,0|0,10|ABC", "\"10.000\"", "", Esc::LeavesNothing,
     "(rtos (caadr (textbox (entget (entlast)))) 2 3)"},
    {"as long and as high as wanted", "", "TEXT|J|Fit|0,0|6,8|2|ABC", "(2.0 \"10.000\")", "", Esc::LeavesNothing,
     "(list (cdr (assoc 40 (entget (entlast)))) (rtos (caadr (textbox (entget (entlast)))) 2 3))"},
    {"in tilted axes", "tilted", "TEXT|1,2|2|30|AB", "TEXT 10=1,7,0 40=2 1=AB 50=30 210=0,-1,0"},
};

const DialogueCase polylines[] = {
    {"a pair of widths", "", "PLINE|0,0|W|1|3|10,0|20,0|", "LWPOLYLINE 10=0,0 40=1 41=3 10=10,0 40=3 41=3 10=20,0"},
    {"half of them", "", "PLINE|0,0|H|1||10,0|", "LWPOLYLINE 10=0,0 40=2 41=2 10=10,0"},
    {"an arc along the tangent", "", "PLINE|0,0|10,0|A|10,10|L|0,10|C",
     "LWPOLYLINE 70=1 10=0,0 10=10,0 42=1 10=10,10 10=0,10"},
    {"closed by an arc", "", "PLINE|0,0|10,0|A|10,10|CL", "LWPOLYLINE 70=1 10=0,0 10=10,0 42=1 10=10,10 42=0.414214"},
    {"an angle to the right", "", "PLINE|0,0|A|A|-180|10,0|", "LWPOLYLINE 10=0,0 42=-1 10=10,0"},
    {"round a centre", "", "PLINE|10,0|A|CE|0,0|A|90|", "LWPOLYLINE 10=10,0 42=0.414214 10=0,10"},
    {"by a direction", "", "PLINE|0,0|A|D|90|10,0|", "LWPOLYLINE 10=0,0 42=-1 10=10,0"},
    {"by a radius", "", "PLINE|0,0|A|R|5|10,0|", "LWPOLYLINE 10=0,0 42=1 10=10,0"},
    {"by a second point", "", "PLINE|0,0|A|S|5,-5|10,0|", "LWPOLYLINE 10=0,0 42=1 10=10,0"},
    {"a radius that is too short", "", "PLINE|0,0|A|R|1|10,0|", "", "There is no such arc"},
    {"a segment taken back with its widths", "", "PLINE|0,0|W|1|3|10,0|U|5,0|", "LWPOLYLINE 10=0,0 40=1 41=3 10=5,0"},
    {"a length along the last segment", "", "PLINE|0,0|0,5|L|5|", "LWPOLYLINE 10=0,0 10=0,5 10=0,10"},
    {"in turned axes", "turned", "PLINE|0,0|10,0|A|10,10|", "LWPOLYLINE 10=10,20 10=10,30 42=1 10=0,30"},
    {"a word that there is not", "", "PLINE|0,0|10,0|Spline|20,0|", "", "Invalid point"},
};

const DialogueCase edits[] = {
    {"moved by a displacement", "(line 0 0 1 0)", "MOVE|ALL||D|5,6", "LINE 10=5,6,0 11=6,6,0"},
    {"in turned axes a displacement turns with them", "turned(line 0 0 1 0)", "MOVE|ALL|||5,0",
     "LINE 10=0,5,0 11=1,5,0"},
    {"locked layers are left alone", "(line 0 0 1 0)(lock \"0\")(layer-line \"B\")", "MOVE|C|-9,-9|9,9||0,0|5,5",
     "LINE 10=0,0,0 11=1,0,0; LINE 10=6,6,0 11=7,7,0", "1 was on a locked layer."},
    {"turned by a reference", "(line 0 0 2 0)", "ROTATE|ALL||0,0|R|30|120", "LINE 10=0,0,0 11=0,2,0"},
    {"a copy is turned", "(line 0 0 2 0)", "ROTATE|ALL||0,0|C|180", "LINE 10=0,0,0 11=2,0,0; LINE 10=0,0,0 11=-2,0,0"},
    {"the direction of angles counts, their base does not",
     "(line 0 0 2 0)(setvar \"ANGDIR\" 1)(setvar \"ANGBASE\" 1.0)", "ROTATE|ALL||0,0|90", "LINE 10=0,0,0 11=0,-2,0"},
    {"in tilted axes", "tilted(line 0 0 2 0)", "ROTATE|ALL||0,-5|90", "LINE 10=0,0,0 11=0,0,2"},
    {"scaled by a reference", "(line 1 0 2 0)", "SCALE|ALL||0,0|R|2|6,0", "LINE 10=3,0,0 11=6,0,0"},
    {"by a reference of two points", "(line 1 0 2 0)", "SCALE|ALL||0,0|R|0,0|4,0|2", "LINE 10=0.5,0,0 11=1,0,0"},
    {"a copy is scaled", "(line 1 0 2 0)", "SCALE|ALL||0,0|C|2", "LINE 10=1,0,0 11=2,0,0; LINE 10=2,0,0 11=4,0,0"},
    {"no factor", "(line 1 0 2 0)", "SCALE|ALL||0,0|big", "LINE 10=1,0,0 11=2,0,0", "Requires numeric distance"},
    {"copied by a displacement", "(line 0 0 1 0)", "COPY|ALL||D|5,5", "LINE 10=0,0,0 11=1,0,0; LINE 10=5,5,0 11=6,5,0"},
    {"copied again and again", "(line 0 0 1 0)", "COPY|ALL||0,0|0,1|0,2|U|0,3|E",
     "LINE 10=0,0,0 11=1,0,0; LINE 10=0,1,0 11=1,1,0; LINE 10=0,3,0 11=1,3,0", "", Esc::Keeps},
    {"copied once", "(line 0 0 1 0)", "COPY|ALL||O|S|0,0|0,1", "LINE 10=0,0,0 11=1,0,0; LINE 10=0,1,0 11=1,1,0"},
};

const char *const door = "(block \"Door\" '((0 . \"LINE\") (10 1.0 0.0 0.0) (11 3.0 0.0 0.0)))";
const char *const turnedDoor = "turned(block \"Door\" '((0 . \"LINE\") (10 1.0 0.0 0.0) (11 3.0 0.0 0.0)))";
const char *const label = "(block \"Label\" '((0 . \"ATTDEF\") (10 1.0 0.0 0.0) (40 . 1.0) (1 . \"7\") (2 . \"NO\") (3 "
                          ". \"Number\") (70 . 0)))";
const char *const attribute = "(mapcar '(lambda (c) (cdr (assoc c (entget (entnext (entlast)))))) '(1 40))";

const DialogueCase inserts[] = {
    {"scale beforehand", door, "-INSERT|Door|S|2|5,5|0", "INSERT 2=Door 10=5,5,0 41=2 42=2 43=2"},
    {"one axis and rotation beforehand", door, "-INSERT|Door|Y|3|R|90|5,5",
     "INSERT 2=Door 10=5,5,0 41=1 42=3 43=1 50=90"},
    {"three axes", door, "-INSERT|Door|5,5|XYZ|2|3|4|0", "INSERT 2=Door 10=5,5,0 41=2 42=3 43=4"},
    {"scaled by a corner", door, "-INSERT|Door|5,5|C|7,9|0", "INSERT 2=Door 10=5,5,0 41=2 42=4 43=2"},
    {"no factor of zero", door, "-INSERT|Door|5,5|0|1|0", "", "must be nonzero"},
    {"in pieces", door, "-INSERT|*Door|10,0|2|90", "LINE 10=10,2,0 11=10,6,0"},
    {"in pieces, scaled beforehand", door, "-INSERT|*Door|S|3|10,0|0", "LINE 10=13,0,0 11=19,0,0"},
    {"in turned axes", turnedDoor, "-INSERT|Door|0,0|1||0", "INSERT 2=Door 10=10,20,0 41=1 42=1 43=1 50=90"},
    {"in pieces in turned axes", turnedDoor, "-INSERT|*Door|0,0|1|0", "LINE 10=10,21,0 11=10,23,0"},
    {"an attribute of a stretched block", label, "-INSERT|Label|0,0|2|3|0|B 12", "(\"B 12\" 3.0)", "",
     Esc::LeavesNothing, attribute},
    {"a block that there is not", "", "-INSERT|Nowhere|0,0|1|1|0", "", "Cannot find block or file \"Nowhere\""},
    {"listed", door, "-INSERT|?||Door|1,2|1||0", "INSERT 2=Door 10=1,2,0 41=1 42=1 43=1", "\"Door\""},
};

const char *const layerA = "(layer \"A\")";
const char *const madeA = "(command \"-LAYER\" \"N\" \"A\" \"\")";

const DialogueCase layers[] = {
    {"made and made current", "", "-LAYER|M|B 1|", "\"B 1\"", "", Esc::LeavesNothing, "(getvar \"CLAYER\")"},
    {"properties", madeA, "-LAYER|C|red|A|LT|Continuous|A|LW|0.26|A|P|N|A|", "(0 1 \"Continuous\" 25 0 nil)", "",
     Esc::LeavesNothing, layerA},
    {"an exact colour", madeA, "-LAYER|C|T|1,2,3|A|", "(0 7 \"Continuous\" -3 nil 66051)", "", Esc::LeavesNothing,
     layerA},
    {"a number in place of an exact colour", "(command \"-LAYER\" \"N\" \"A\" \"C\" \"T\" \"1,2,3\" \"A\" \"\")",
     "-LAYER|C|5|A|", "(0 5 \"Continuous\" -3 nil nil)", "", Esc::LeavesNothing, layerA},
    {"transparency", madeA, "-LAYER|TR|50|A|", "(0 7 \"Continuous\" -3 nil nil (1071 . 33554560))", "",
     Esc::LeavesNothing, layerA},
    {"a description", madeA, "-LAYER|D|Walls, old|A|",
     "(0 7 \"Continuous\" -3 nil nil (1000 . \"\") (1000 . \"Walls, old\"))", "", Esc::LeavesNothing, layerA},
    {"states", madeA, "-LAYER|OFF|A|F|A|LO|A|", "(5 -7 \"Continuous\" -3 nil nil)", "", Esc::LeavesNothing, layerA},
    {"states back", madeA, "-LAYER|OFF|*|N|F|A|LO|A|ON|*|T|*|U|*|", "(0 7 \"Continuous\" -3 nil nil)", "",
     Esc::LeavesNothing, layerA},
    {"renamed with what is on it", "(layer-line \"Old\")", "-LAYER|R|old|New name|", "(\"New name\" nil)", "",
     Esc::LeavesNothing, "(list (cdr (assoc 8 (entget (entlast)))) (tblsearch \"LAYER\" \"Old\"))"},
    {"layer 0 keeps its name", "", "-LAYER|R|0|New|", "nil", "Layer \"0\" cannot be renamed", Esc::LeavesNothing,
     "(tblsearch \"LAYER\" \"New\")"},
    {"of an object", "(layer-line \"B\")", "-LAYER|S||1.5,1.5|", "\"B\"", "", Esc::LeavesNothing,
     "(getvar \"CLAYER\")"},
    {"no such linetype", madeA, "-LAYER|C|3|A|L|Nowhere|A|", "(0 7 \"Continuous\" -3 nil nil)",
     "Linetype \"Nowhere\" not found", Esc::LeavesNothing, layerA},
    {"no such option", madeA, "-LAYER|C|3|A|Colour|4|A|", "(0 7 \"Continuous\" -3 nil nil)", "Invalid option keyword",
     Esc::LeavesNothing, layerA},
    {"layer states", madeA, "-LAYER|C|3|A|A|S|x|", "(0 7 \"Continuous\" -3 nil nil)", "does not keep layer states",
     Esc::LeavesNothing, layerA},
    {"a name that cannot be one", "", "-LAYER|N|A/B|", "nil", "cannot be the name of a layer", Esc::LeavesNothing,
     "(tblsearch \"LAYER\" \"A/B\")"},
};

const char *const unusedTables =
    "(foreach k '(\"LAYER\" \"LTYPE\" \"STYLE\" \"DIMSTYLE\" \"APPID\") (entry k \"Used\") (entry k \"Spare\"))"
    "(regapp \"Used\")(entmake '((0 . \"TEXT\") (8 . \"Used\") (6 . \"Used\") (7 . \"Used\") (10 0.0 0.0 0.0) (40 . "
    "1.0) (1 "
    ". \"x\") (-3 (\"Used\" (1000 . \"x\")))))";
const char *const spare =
    "(mapcar '(lambda (k) (if (tblsearch k \"Spare\") T)) '(\"LAYER\" \"LTYPE\" \"STYLE\" \"DIMSTYLE\" "
    "\"APPID\"))";
const char *const used =
    "(mapcar '(lambda (k) (if (tblsearch k \"Used\") T)) '(\"LAYER\" \"LTYPE\" \"STYLE\" \"APPID\"))";

const DialogueCase purges[] = {
    {"layers", unusedTables, "-PURGE|LA|*|N", "(nil T T T T)", "Deleting layer \"Spare\"", Esc::LeavesNothing, spare},
    {"linetypes", unusedTables, "-PURGE|LT|*|N", "(T nil T T T)", "", Esc::LeavesNothing, spare},
    {"text styles", unusedTables, "-PURGE|ST|*|N", "(T T nil T T)", "", Esc::LeavesNothing, spare},
    {"dimension styles", unusedTables, "-PURGE|D|Spare|N", "(T T T nil T)", "", Esc::LeavesNothing, spare},
    {"applications", unusedTables, "-PURGE|R|*|N", "(T T T T nil)", "", Esc::LeavesNothing, spare},
    {"by name", unusedTables, "-PURGE|LA|X*|N", "(T T T T T)", "No unreferenced layers found", Esc::LeavesNothing,
     spare},
    {"not confirmed", unusedTables, "-PURGE|LA|Spare|Y|N", "(T T T T T)", "Purge layer", Esc::LeavesNothing, spare},
    {"all of them", unusedTables, "-PURGE|A|*|N", "(nil nil nil nil nil)", "", Esc::LeavesNothing, spare},
    {"what is used stays", unusedTables, "-PURGE|A|*|N", "(T T T T)", "", Esc::LeavesNothing, used},
    {"lines without length", "(line 1 1 1 1)(line 0 0 1 0)", "-PURGE|Z", "LINE 10=0,0,0 11=1,0,0"},
    {"not on locked layers", "(line 1 1 1 1)(lock \"0\")", "-PURGE|Z", "LINE 10=1,1,0 11=1,1,0",
     "1 was on a locked layer"},
    {"empty texts", "(entmake '((0 . \"TEXT\") (10 0.0 0.0 0.0) (40 . 1.0) (1 . \" \")))", "-PURGE|E", ""},
    {"no such kind", "(line 1 1 1 1)", "-PURGE|Everything", "LINE 10=1,1,0 11=1,1,0", ""},
    {"every other kind has its option", "", "-PURGE|DE|*|N", "", "No unreferenced detail view styles found"},
    {"visual styles", "", "-PURGE|V|*|N", "", "No unreferenced visual styles found"},
};

const char *const site = "(xref \"Site\")(entmake '((0 . \"INSERT\") (2 . \"Site\") (10 1.0 2.0 0.0)))";
const char *const siteFlags = "(mapcar '(lambda (c) (cdr (assoc c (tblsearch \"BLOCK\" \"Site\")))) '(70 1))";

const DialogueCase references[] = {
    {"listed", site, "-XREF|?|*", "(4 \"none.dxf\")", "\"Site\"  none.dxf  Attach", Esc::LeavesNothing, siteFlags},
    {"detached", site, "-XREF|D|Site", "", "\"Site\" detached."},
    {"detached but for a locked layer",
     "(xref \"Site\")(entmake '((0 . \"INSERT\") (2 . \"Site\") (10 1.0 2.0 0.0)))(lock \"0\")", "-XREF|D|Site",
     "INSERT 2=Site 10=1,2,0", "1 was on a locked layer"},
    {"a path", site, "-XREF|P|S*|new.dxf", "(4 \"new.dxf\")", "", Esc::LeavesNothing, siteFlags},
    {"a file that is not there", site, "-XREF|B|Site", "(4 \"none.dxf\")", "Cannot find file", Esc::LeavesNothing,
     siteFlags},
    {"nor is reloaded", site, "-XREF|R|Site", "(4 \"none.dxf\")", "Cannot find file", Esc::LeavesNothing, siteFlags},
};

const DialogueCase views[] = {
    {"an object", "(line 10 10 30 20)(line 0 0 1 1)", "ZOOM|O|20,15|", "(20.0 15.0 0.0)", "", Esc::LeavesNothing,
     "(getvar \"VIEWCTR\")"},
    {"a magnification round a centre", "(command \"ZOOM\" \"C\" '(0 0) 100)", "ZOOM|C|5,6|2X", "(50.0 (5.0 6.0 0.0))",
     "", Esc::LeavesNothing,
     "(progn (setq l (list (getvar \"VIEWSIZE\") (getvar \"VIEWCTR\"))) (command \"ZOOM\" \"P\") l)"},
    {"the view before", "(command \"ZOOM\" \"C\" '(0 0) 100)", "ZOOM|C|5,6|7", "100.0", "", Esc::LeavesNothing,
     "(progn (command \"ZOOM\" \"P\") (getvar \"VIEWSIZE\"))"},
    {"a scale of the view", "(command \"ZOOM\" \"C\" '(0 0) 100)", "ZOOM|S|4X", "25.0", "", Esc::LeavesNothing,
     "(progn (setq l (getvar \"VIEWSIZE\")) (command \"ZOOM\" \"P\") l)"},
    {"no scale", "(command \"ZOOM\" \"C\" '(0 0) 100)", "ZOOM|S|big", "100.0", "Requires a scale factor",
     Esc::LeavesNothing, "(getvar \"VIEWSIZE\")"},
    {"another version", "", "SAVEAS|R12|x.dxf", "", "no drawing in another version"},
    {"decimal places", "", "SAVEAS|DXF|8|x.dxf", "", "with all decimal places"},
    {"another version of DXF", "", "SAVEAS|DXF|V|R12|16|x.dxf", "", "no drawing in another version"},
};

INSTANTIATE_TEST_SUITE_P(Circle, CommandDialogue, testing::ValuesIn(circles));
INSTANTIATE_TEST_SUITE_P(Text, CommandDialogue, testing::ValuesIn(texts));
INSTANTIATE_TEST_SUITE_P(Polyline, CommandDialogue, testing::ValuesIn(polylines));
INSTANTIATE_TEST_SUITE_P(Edit, CommandDialogue, testing::ValuesIn(edits));
INSTANTIATE_TEST_SUITE_P(Insert, CommandDialogue, testing::ValuesIn(inserts));
INSTANTIATE_TEST_SUITE_P(Layer, CommandDialogue, testing::ValuesIn(layers));
INSTANTIATE_TEST_SUITE_P(Purge, CommandDialogue, testing::ValuesIn(purges));
INSTANTIATE_TEST_SUITE_P(Reference, CommandDialogue, testing::ValuesIn(references));
INSTANTIATE_TEST_SUITE_P(View, CommandDialogue, testing::ValuesIn(views));

} // namespace
