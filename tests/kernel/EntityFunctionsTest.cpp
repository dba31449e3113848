#include "host/drawing/records/Blocks.h"
#include "host/drawing/records/Entities.h"
#include "host/drawing/records/HeaderVariables.h"
#include "host/drawing/records/Journal.h"
#include "tests/kernel/Bench.h"

#include <QFile>

namespace {

class LispOnDrawing : public LispTable
{
protected:
    LispOnDrawing()
    {
        lisp("(defun group (code name) (cdr (assoc code (entget name))))"
             "(defun xdata (name applications) (cdr (assoc -3 (entget name applications))))"
             "(defun entry (code table name) (cdr (assoc code (tblsearch table name))))");
    }
};

const char *const makeLine = "(setq e (entmakex '((0 . \"LINE\") (8 . \"WALLS\") (10 1.0 2.0 3.0) (11 4 5 6))))";
const char *const makeText =
    "(setq e (entmakex (list '(0 . \"TEXT\") '(10 0.0 0.0 0.0) '(40 . 2.5) '(1 . \"Höhe\") (cons 50 (/ pi 2)))))";
const char *const makePolyline = "(entmake '((0 . \"POLYLINE\") (70 . 1)))"
                                 "(entmake '((0 . \"VERTEX\") (10 0 0 0)))"
                                 "(entmake '((0 . \"VERTEX\") (10 5 0 0) (42 . 0.5)))"
                                 "(entmake '((0 . \"VERTEX\") (10 5 5 0)))"
                                 "(setq last-part (entmakex '((0 . \"SEQEND\"))))";
const char *const makeBlock = "(entmake '((0 . \"BLOCK\") (2 . \"Door\") (70 . 0) (10 1.0 0.0 0.0)))"
                              "(entmake '((0 . \"LINE\") (8 . \"0\") (10 0 0 0) (11 0 9 0)))"
                              "(entmake '((0 . \"CIRCLE\") (8 . \"0\") (10 0 0 0) (40 . 9)))"
                              "(setq made (entmake '((0 . \"ENDBLK\"))))";

const std::vector<LispCase> entityCases = {
    {"a new entity is the last one", makeLine, "(eq e (entlast))", "T"},
    {"points come back with three coordinates", makeLine, "(assoc 11 (entget e))", "(11 4.0 5.0 6.0)"},
    {"the list begins with the name", makeLine, "(equal (car (entget e)) (cons -1 e))", "T"},
    {"type, then owner, then handle", makeLine, "(mapcar 'car (cdr (entget e)))",
     "(0 330 5 100 8 100 10 11 210 67 410)"},
    {"a handle leads back to the entity", makeLine, "(eq e (handent (group 5 e)))", "T"},
    {"a handle that nobody has", "", "(handent \"FFFFF\")", "nil"},
    {"the owner is the model space's record", makeLine, "(group 2 (group 330 e))", "\"*Model_Space\""},
    {"angles are radians", makeText, "(equal (group 50 e) (/ pi 2) 1e-12)", "T"},
    {"what a file leaves out is there", makeText, "(mapcar '(lambda (code) (group code e)) '(41 51 7 72 410))",
     "(1.0 0.0 \"Standard\" 0 \"Model\")"},
    {"entmake gives the list", "", "(entmake '((0 . \"POINT\") (10 1.0 1.0 0.0)))",
     "((0 . \"POINT\") (10 1.0 1.0 0.0))"},
    {"a missing group is told, not made", "", "(entmake '((0 . \"LINE\") (10 0 0 0)))", "nil"},
    {"a bad item is an error", "", "(entmake '((0 . \"LINE\") (10 . \"x\") (11 0 0 0)))",
     "error: bad DXF group: (10 . \"x\") (not a number or point) in (ENTMAKE)"},
    {"the current layer is taken", "(command \"_.-LAYER\" \"_M\" \"L1\" \"\")",
     "(group 8 (entmakex '((0 . \"POINT\") (10 1 1 0))))", "\"L1\""},

    {"entmod changes", makeLine, "(entmod (subst '(8 . \"0\") '(8 . \"WALLS\") (entget e)))(group 8 e)", "\"0\""},
    {"entmod with a part of the list keeps the rest", makeLine,
     "(entmod (list (cons -1 e) '(62 . 3)))(mapcar '(lambda (c) (group c e)) '(62 8 10))",
     "(3 \"WALLS\" (1.0 2.0 3.0))"},
    {"entmod cannot change the type", makeLine, "(entmod (list (cons -1 e) '(0 . \"CIRCLE\")))(group 0 e)", "\"LINE\""},
    {"entmod of an erased entity", makeLine, "(setq l (entget e))(entdel e)(entmod l)", "nil"},
    {"entmod without a name", "", "(entmod '((8 . \"0\")))",
     "error: bad argument value: entity list without a name ((8 . \"0\")) in (ENTMOD), argument 1"},

    {"entdel erases", makeLine, "(entdel e)(entget e)", "nil"},
    {"entdel brings back", makeLine, "(entdel e)(entdel e)(group 8 e)", "\"WALLS\""},
    {"entlast after erasing", makeLine, "(entdel e)(entlast)", "nil"},
    {"entnext of an empty drawing", "", "(entnext)", "nil"},
    {"a name that the drawing never gave", makeLine, "(entdel (car (entsel)))",
     "error: Function cancelled in (ENTSEL)"},

    {"a polyline is made by its end", makePolyline, "(group 0 last-part)", "\"POLYLINE\""},
    {"entlast is the polyline, not its end", makePolyline, "(group 0 (entlast))", "\"POLYLINE\""},
    {"entnext walks through the parts", makePolyline,
     "(setq p (entlast))(while (setq p (entnext p)) (setq all (cons (group 0 p) all)))(reverse all)",
     "(\"VERTEX\" \"VERTEX\" \"VERTEX\" \"SEQEND\")"},
    {"a part alone is refused", "", "(entmake '((0 . \"VERTEX\") (10 0 0 0)))", "nil"},
    {"vertices of a light polyline have widths and bulges", "",
     "(setq e (entmakex '((0 . \"LWPOLYLINE\") (90 . 2) (70 . 0) (10 0.0 0.0) (10 5.0 0.0) (42 . 1.0))))"
     "(vl-remove-if-not '(lambda (f) (member (car f) '(10 42))) (entget e))",
     "((10 0.0 0.0) (42 . 0.0) (10 5.0 0.0) (42 . 1.0))"},

    {"a block is named by its end", makeBlock, "made", "\"Door\""},
    {"a block's first entity", makeBlock, "(group 0 (entry -2 \"BLOCK\" \"DOOR\"))", "\"LINE\""},
    {"entnext stops at a block's end", makeBlock,
     "(setq p (entry -2 \"BLOCK\" \"DOOR\"))(list (group 0 (entnext p)) (entnext (entnext p)))", "(\"CIRCLE\" nil)"},
    {"a block's base point", makeBlock, "(entry 10 \"BLOCK\" \"DOOR\")", "(1.0 0.0 0.0)"},
    {"a block with a bad entity is not made", "",
     "(entmake '((0 . \"BLOCK\") (2 . \"Bad\") (70 . 0) (10 0 0 0)))(entmake '((0 . \"LINE\") (10 0 0 0)))"
     "(list (entmake '((0 . \"ENDBLK\"))) (tblsearch \"BLOCK\" \"Bad\"))",
     "(nil nil)"},
    {"an insert with attributes", makeBlock,
     "(entmake '((0 . \"INSERT\") (2 . \"Door\") (66 . 1) (10 0 0 0)))"
     "(entmake '((0 . \"ATTRIB\") (10 0 0 0) (40 . 1.0) (1 . \"T30\") (2 . \"FIRE\") (70 . 0)))"
     "(entmake '((0 . \"SEQEND\")))(group 1 (entnext (entlast)))",
     "\"T30\""},

    {"extended data comes only when asked for",
     "(regapp \"TOOL\")(setq e (entmakex '((0 . \"POINT\") (10 0 0 0) (-3 (\"TOOL\" (1000 . \"a\") (1070 . 7))))))",
     "(list (assoc -3 (entget e)) (xdata e '(\"TOOL\")))", "(nil ((\"TOOL\" (1000 . \"a\") (1070 . 7))))"},
    {"entmod replaces only the applications it names",
     "(setq e (entmakex '((0 . \"POINT\") (10 0 0 0) (-3 (\"A1\" (1000 . \"a\")) (\"B1\" (1040 . 2.5) (1010 1.0 2.0 "
     "3.0))))))",
     "(entmod (list (cons -1 e) '(-3 (\"A1\" (1000 . \"new\")))))(xdata e '(\"*\"))",
     "((\"A1\" (1000 . \"new\")) (\"B1\" (1040 . 2.5) (1010 1.0 2.0 3.0)))"},
    {"an application without data is taken out",
     "(setq e (entmakex '((0 . \"POINT\") (10 0 0 0) (-3 (\"A1\" (1000 . \"a\")) (\"B1\" (1040 . 2.5))))))",
     "(entmod (list (cons -1 e) '(-3 (\"A1\"))))(xdata e '(\"*\"))", "((\"B1\" (1040 . 2.5)))"},
    {"entmod without extended data keeps it",
     "(setq e (entmakex '((0 . \"POINT\") (10 0 0 0) (-3 (\"A1\" (1000 . \"a\"))))))",
     "(entmod (list (cons -1 e) '(62 . 1)))(xdata e '(\"A*\"))", "((\"A1\" (1000 . \"a\")))"},

    {"the box of a text reaches from the base line to the capitals' tops", "(setq d '((1 . \"Hx\") (40 . 2.0)))",
     "(mapcar '(lambda (c) (cadr c)) (textbox d))", "(0.0 2.0)"},
    {"the box is farther with tails", "(setq d '((1 . \"Hg\") (40 . 2.0)))", "(< -1.0 (cadr (car (textbox d))) -0.1)",
     "T"},
    {"the box does not turn and grows with the width", "(setq a '((1 . \"Hx\") (40 . 2.0) (10 5.0 5.0 0.0)))",
     "(equal (textbox (append a '((50 . 1.0) (41 . 2.0)))) (mapcar '(lambda (p) (mapcar '* p '(2 1 1))) (textbox a)) "
     "1e-9)",
     "T"},
    {"the box is seen from the insertion point, wherever the text is anchored",
     "(setq d '((1 . \"Hx\") (40 . 2.0) (10 5.0 0.0 0.0) (11 7.0 1.0 0.0) (72 . 1) (73 . 2)))",
     "(mapcar '(lambda (a b) (/ (+ a b) 2)) (car (textbox d)) (cadr (textbox d)))", "(2.0 1.0 0.0)"},
    {"the box of nothing", "", "(list (textbox '((1 . \"\"))) (textbox '((0 . \"LINE\"))))",
     "(((0.0 0.0 0.0) (0.0 0.0 0.0)) nil)"},
    {"a paragraph has the size of what it says now",
     "(setq e (entmakex '((0 . \"MTEXT\") (10 0 0 0) (40 . 3.0) (41 . 90.0) (42 . 7.0) (43 . 9.0) (1 . \"H\\\\PH\"))))"
     "(setq old (entget e))(entmod (subst '(1 . \"HH\") '(1 . \"H\\\\PH\") old))(setq new (entget e))",
     "(list (cdr (assoc 43 old)) (cdr (assoc 43 new)) (< 1.9 (/ (cdr (assoc 42 new)) (cdr (assoc 42 old))) 2.5))",
     "(8.0 3.0 T)"},

    {"a layer's entry", "", "(vl-remove-if '(lambda (f) (> (car f) 99)) (tblsearch \"LAYER\" \"0\"))",
     "((0 . \"LAYER\") (2 . \"0\") (70 . 0) (62 . 7) (6 . \"Continuous\"))"},
    {"tblnext visits each entry", "", "(while (tblnext \"LTYPE\" (not n)) (setq n (1+ (cond (n) (0)))))n", "3"},
    {"tblnext goes on behind a searched entry",
     "(entmake '((0 . \"LAYER\") (2 . \"B\") (70 . 0)))(tblsearch \"LAYER\" \"0\" T)",
     "(cdr (assoc 2 (tblnext \"LAYER\")))", "\"B\""},
    {"an unknown table is an error", "", "(tblsearch \"NOSUCH\" \"0\")",
     "error: bad argument value: table name \"NOSUCH\" in (TBLSEARCH), argument 1"},
    {"an early dimension style names its arrow block", "",
     "(setq e (entmakex '((0 . \"DIMSTYLE\") (2 . \"Old\") (5 . \"_Dot\"))))(group 5 e)", "\"_Dot\""},
    {"an application that a table entry names is made", "",
     "(entmake '((0 . \"STYLE\") (2 . \"S\") (70 . 0) (-3 (\"NEWAPP\" (1000 . \"a\")))))"
     "(entry 2 \"APPID\" \"newapp\")",
     "\"NEWAPP\""},
    {"tblobjname gives a name to entget", "", "(group 2 (tblobjname \"STYLE\" \"standard\"))", "\"Standard\""},
    {"entmod changes a table entry", "",
     "(entmod (subst '(62 . 5) '(62 . 7) (entget (tblobjname \"LAYER\" \"0\"))))(entry 62 \"LAYER\" \"0\")", "5"},
    {"entmake of an entry that exists", "", "(entmake '((0 . \"LAYER\") (2 . \"0\") (70 . 0)))", "nil"},
    {"snvalid", "", "(mapcar 'snvalid '(\"a b\" \"a/b\" \"\" \"x|y\"))", "(T nil nil nil)"},

    {"named objects", "", "(group 0 (namedobjdict))", "\"DICTIONARY\""},
    {"an extended record goes into a dictionary and comes back", "",
     "(dictadd (namedobjdict) \"DATA\" (entmakex '((0 . \"XRECORD\") (100 . \"AcDbXrecord\") (1 . \"one\") (40 . 2.5) "
     "(70 . 3))))"
     "(vl-remove-if-not '(lambda (f) (member (car f) '(1 40 70))) (dictsearch (namedobjdict) \"data\"))",
     "((1 . \"one\") (40 . 2.5) (70 . 3))"},
    {"a group of entities is the dictionary's", makeLine,
     "(setq groups (cdr (assoc -1 (dictsearch (namedobjdict) \"ACAD_GROUP\"))))"
     "(dictadd groups \"*A1\" (entmakex (list '(0 . \"GROUP\") '(100 . \"AcDbGroup\") '(300 . \"\") '(70 . 1) '(71 . "
     "1) "
     "(cons 340 e))))"
     "(setq group (dictsearch groups \"*a1\"))"
     "(list (cdr (assoc 0 group)) (cdr (assoc 100 group)) (eq e (cdr (assoc 340 group))) (eq groups (cdr (assoc 330 "
     "group))) (eq e (entlast)))",
     "(\"GROUP\" \"AcDbGroup\" T T T)"},
    {"a name is used once", "(dictadd (namedobjdict) \"D\" (entmakex '((0 . \"XRECORD\") (1 . \"one\"))))",
     "(dictadd (namedobjdict) \"d\" (entmakex '((0 . \"XRECORD\") (1 . \"two\"))))", "nil"},
    {"dictremove", "(dictadd (namedobjdict) \"D\" (entmakex '((0 . \"XRECORD\") (1 . \"one\"))))",
     "(dictremove (namedobjdict) \"D\")(dictsearch (namedobjdict) \"D\")", "nil"},
    {"regapp once", "", "(list (regapp \"T1\") (regapp \"t1\"))", "(\"T1\" nil)"},

    {"trans to an entity's own coordinates", "", "(trans '(1.0 2.0 3.0) 0 '(0.0 0.0 -1.0))", "(-1.0 2.0 -3.0)"},
    {"trans with a wrong system", "", "(trans '(1 2 3) 0 7)",
     "error: bad argument value: coordinate system 7 in (TRANS), argument 3"},
};

TEST_P(LispOnDrawing, gives)
{
    check();
}

INSTANTIATE_TEST_SUITE_P(Entities, LispOnDrawing, testing::ValuesIn(entityCases));

// The box around what an entity draws.
const char *const makeNest = // a round of radius 2 seen at half size, turned and mirrored twice over
    "(defun insert (name more) (append (list '(0 . \"INSERT\") (cons 2 name)) more))"
    "(defun block (name entities) (entmake (list '(0 . \"BLOCK\") (cons 2 name) '(70 . 0) '(10 1.0 0.0 0.0))) (mapcar "
    "'entmake entities) (entmake '((0 . \"ENDBLK\"))))"
    "(defun around (e low high) (or (equal (acet-ent-geomextents e) (list low high) 1e-6) (acet-ent-geomextents e)))"
    "(block \"ROUND\" '(((0 . \"CIRCLE\") (10 1.0 0.0 0.0) (40 . 2.0))))"
    "(block \"NEST\" (list (insert \"ROUND\" '((10 1.0 0.0 0.0) (41 . 0.5) (42 . 0.5) (50 . 0.7)))))";

const std::vector<LispCase> extentCases = {
    {"an elliptical arc ends before the axis", "",
     "(equal (acet-ent-geomextents (entmakex '((0 . \"ELLIPSE\") (10 0.0 0.0 0.0) (11 4.0 0.0 0.0) (40 . 0.5) (41 . "
     "0.0) "
     "(42 . 1.5707963268)))) '((0.0 0.0 0.0) (4.0 2.0 0.0)) 1e-6)",
     "T"},
    {"the first point of an old polyline is none", "",
     "(entmake '((0 . \"POLYLINE\") (66 . 1) (10 0.0 0.0 5.0)))(entmake '((0 . \"VERTEX\") (10 7.0 1.0 5.0) (42 . "
     "1.0)))"
     "(entmake '((0 . \"VERTEX\") (10 9.0 1.0 5.0)))(entmake '((0 . \"SEQEND\")))(acet-ent-geomextents (entlast))",
     "((7.0 0.0 5.0) (9.0 1.0 5.0))"},
    {"a text turned by a quarter", makeText,
     "(setq b (textbox (entget e)) s (cadr b) l (car b)) (equal (acet-ent-geomextents e) (list (list (- (cadr s)) (car "
     "l) "
     "0.0) (list (- (cadr l)) (car s) 0.0)) 1e-6)",
     "T"},
    {"blanks and lines without end", "",
     "(mapcar 'acet-ent-geomextents (list (entmakex '((0 . \"TEXT\") (10 3.0 3.0 0.0) (40 . 1.0) (1 . \"  \"))) "
     "(entmakex "
     "'((0 . \"XLINE\") (100 . \"AcDbEntity\") (100 . \"AcDbXline\") (10 0.0 0.0 0.0) (11 1.0 0.0 0.0)))))",
     "(nil nil)"},
    {"a round stays round in turned blocks", makeNest,
     "(around (entmakex (insert \"NEST\" '((10 10.0 20.0 0.0) (41 . -2.0) (42 . 2.0) (43 . 2.0) (50 . 0.9)))) '(8.0 "
     "18.0 "
     "0.0) '(12.0 22.0 0.0))",
     "T"},
    {"all cells of an array", makeNest,
     "(around (entmakex (insert \"ROUND\" '((10 0.0 0.0 0.0) (70 . 3) (44 . 10.0) (71 . 2) (45 . -5.0)))) '(-2.0 -7.0 "
     "0.0) "
     "'(22.0 2.0 0.0))",
     "T"},
    {"an attribute's definition is not seen in its block, one that is hidden nowhere", makeNest,
     "(block \"TAGGED\" '(((0 . \"ATTDEF\") (10 50.0 0.0 0.0) (40 . 1.0) (1 . \"\") (2 . \"T\") (3 . \"\") (70 . 0)) "
     "((0 . "
     "\"LINE\") (10 0.0 0.0 0.0) (11 1.0 1.0 0.0)) ((0 . \"LINE\") (60 . 1) (10 0.0 0.0 0.0) (11 9.0 9.0 0.0))))"
     "(around (entmakex (insert \"TAGGED\" '((10 0.0 0.0 0.0)))) '(-1.0 0.0 0.0) '(0.0 1.0 0.0))",
     "T"},
    {"an entity of a block is seen there, and a change of it from outside", makeNest,
     "(setq e (entry -2 \"BLOCK\" \"ROUND\") i (entmakex (insert \"NEST\" '((10 0.0 0.0 0.0)))) before (around i "
     "'(-1.0 "
     "-1.0 0.0) '(1.0 1.0 0.0)))(entmod (subst '(40 . 4.0) '(40 . 2.0) (entget e)))(list before (around e '(-3.0 -4.0 "
     "0.0) "
     "'(5.0 4.0 0.0)) (around i '(-2.0 -2.0 0.0) '(2.0 2.0 0.0)))",
     "(T T T)"},
    {"a hatch reaches to its boundary", "",
     "(acet-ent-geomextents (entmakex '((0 . \"HATCH\") (100 . \"AcDbEntity\") (100 . \"AcDbHatch\") (10 0.0 0.0 0.0) "
     "(210 0.0 "
     "0.0 1.0) (2 . \"LINE\") (70 . 0) (71 . 0) (91 . 1) (92 . 2) (72 . 0) (73 . 1) (93 . 3) (10 0.0 0.0) (10 4.0 0.0) "
     "(10 "
     "0.0 3.0) (97 . 0) (75 . 0) (76 . 1) (52 . 0.0) (41 . 1.0) (77 . 0) (78 . 1) (53 . 0.0) (43 . 0.0) (44 . 0.0) (45 "
     ". 0.0) "
     "(46 . 2.0) (79 . 0) (98 . 0))))",
     "((0.0 0.0 0.0) (4.0 3.0 0.0))"},
};

INSTANTIATE_TEST_SUITE_P(Extents, LispOnDrawing, testing::ValuesIn(extentCases));

// An angle that a program read as radians and hands on is written with the digits it had.
using AnglesOfPrograms = Bench;
TEST_F(AnglesOfPrograms, areWrittenAsTheyWereMeant)
{
    for (int half = -720; half <= 720; ++half) {
        const double degrees = half / 2.0;
        const std::string radians = "(* pi (/ " + std::to_string(degrees) + " 180))";
        lisp("(entmake (list '(0 . \"TEXT\") '(10 0 0 0) '(40 . 1) '(1 . \"a\") (cons 50 " + radians + ")))");
        EXPECT_EQ(drawing().tags(drawing().entities().all().back()).real(50), degrees);
    }
    lisp("(entmake '((0 . \"TEXT\") (10 0 0 0) (40 . 1) (1 . \"a\") (50 . 1.0)))");
    EXPECT_DOUBLE_EQ(drawing().tags(drawing().entities().all().back()).real(50), 57.29577951308232);
}

/// A small file with odd spelling that must survive what nobody meant to change.
QByteArray oddFile()
{
    return QByteArray(
        "  0\nSECTION\n  2\nHEADER\n  9\n$ACADVER\n  1\nAC1015\n  9\n$HANDSEED\n  5\nFF\n  0\nENDSEC\n"
        "  0\nSECTION\n  2\nTABLES\n  0\nTABLE\n  2\nLAYER\n 70\n1\n  0\nLAYER\n  2\n0\n 70\n0\n 62\n7\n"
        "  6\nCONTINUOUS\n  0\nENDTAB\n  0\nTABLE\n  2\nAPPID\n 70\n1\n  0\nAPPID\n  2\nOTHER\n"
        " 70\n0\n  0\nENDTAB\n  0\nENDSEC\n  0\nSECTION\n  2\nENTITIES\n"
        "  0\nTEXT\n  5\n2F\n100\nAcDbEntity\n  8\n0\n100\nAcDbText\n 10\n1.50\n 20\n2.5000\n 30\n0\n 40\n.5\n"
        "  1\nHi\n 50\n33.333333333333336\n100\nAcDbText\n"
        "1001\nOTHER\n1000\nkept\n  0\nENDSEC\n  0\nEOF\n");
}

class OddFile : public Bench
{
protected:
    OddFile() { session.documents().open(write("odd.dxf", oddFile())); }
};

TEST_F(OddFile, handingBackAListChangesNothing)
{
    const QByteArray before = drawing().toBytes();
    EXPECT_EQ(lisp("(null (entmod (entget (entlast))))"), "nil");
    EXPECT_EQ(drawing().toBytes(), before);
    EXPECT_FALSE(document().isModified());
    EXPECT_FALSE(document().undoSteps().canUndo());
}

// The size that programs see is not the file's.
TEST_F(OddFile, handingBackAParagraphChangesNothing)
{
    const QByteArray withParagraph =
        oddFile().replace("  0\nENDSEC\n  0\nEOF",
                          "  0\nMTEXT\n  5\n30\n100\nAcDbEntity\n  8\n0\n100\nAcDbMText\n 10\n1.50\n 20\n2\n 30\n"
                          "0\n 40\n.5\n  1\nHi\n 42\n99.0\n  0\nENDSEC\n  0\nEOF");
    session.documents().open(write("paragraph.dxf", withParagraph));
    EXPECT_EQ(lisp("(null (entmod (entget (entlast))))"), "nil");
    EXPECT_EQ(drawing().toBytes(), withParagraph);
    lisp("(entmod (subst '(1 . \"Ho\") (assoc 1 (entget (entlast))) (entget (entlast))))");
    EXPECT_TRUE(drawing().toBytes().contains("\nHo\n"));
    EXPECT_FALSE(drawing().toBytes().contains("99.0")) << "the size of another text";
}

TEST_F(OddFile, aChangeKeepsTheSpellingOfTheRest)
{
    lisp("(setq l (entget (entlast)))(entmod (subst '(1 . \"Ho\") (assoc 1 l) l))");
    QByteArray expected = oddFile();
    expected.replace("\nHi\n", "\nHo\n");
    EXPECT_EQ(drawing().toBytes().toStdString(), expected.toStdString());
    EXPECT_EQ(document().undoSteps().undo(), 1);
    EXPECT_EQ(drawing().toBytes().toStdString(), oddFile().toStdString());
}

TEST_F(OddFile, aHandleThatLeadsNowhereSurvives)
{
    const QByteArray withPointer =
        oddFile().replace("  8\n0\n100\nAcDbText\n 10", "  8\n0\n347\nABC\n100\nAcDbText\n 10");
    session.documents().open(write("pointer.dxf", withPointer));
    EXPECT_EQ(lisp("(null (entmod (append (entget (entlast)) '((62 . 1)))))"), "nil");
    EXPECT_TRUE(drawing().toBytes().contains("347\nABC\n"));
}

} // namespace
