#include "host/drawing/records/Entities.h"
#include "host/drawing/records/Journal.h"
#include "tests/kernel/Bench.h"

using namespace host::kernel;

namespace {

/// Lines at x = 0, 10, 20 from y = 0 to 5; a circle round (50 50) on layer RED; a text at (0 30).
const char *const sample =
    "(foreach x '(0.0 10.0 20.0) (entmake (list '(0 . \"LINE\") '(8 . \"0\") (list 10 x 0.0 0.0) (list 11 x 5.0 0.0))))"
    "(entmake '((0 . \"LAYER\") (2 . \"RED\") (70 . 0) (62 . 1)))"
    "(entmake '((0 . \"CIRCLE\") (8 . \"RED\") (62 . 3) (10 50.0 50.0 0.0) (40 . 5.0)))"
    "(entmake '((0 . \"TEXT\") (8 . \"0\") (10 0.0 30.0 0.0) (40 . 2.0) (1 . \"Plan A\")))"
    // Types and x coordinates of a selection.
    "(defun show (set / i out) (if set (progn (setq i 0) (repeat (sslength set)"
    " (setq out (cons (list (cdr (assoc 0 (entget (ssname set i)))) (cadr (assoc 10 (entget (ssname set i))))) out)"
    " i (1+ i))) (reverse out))))"
    "(defun types (set) (mapcar 'car (show set)))"
    "(defun places (set) (mapcar 'cadr (show set)))"
    "(defun count (set) (if set (sslength set) 0))";

class Selecting : public LispTable
{
protected:
    Selecting()
    {
        document().setView({});
        lisp(sample);
    }
};

TEST_P(Selecting, gives)
{
    check();
}

const LispCase selectionCases[] = {
    {"the whole drawing, newest first", "", "(types (ssget \"X\"))",
     "(\"TEXT\" \"CIRCLE\" \"LINE\" \"LINE\" \"LINE\")"},
    {"by type", "", "(count (ssget \"X\" '((0 . \"LINE\"))))", "3"},
    {"by place", "", "(count (ssget \"X\" '((0 . \"LINE\") (-4 . \">=,*,*\") (10 10.0 0.0 0.0))))", "2"},
    {"one or the other", "",
     "(count (ssget \"X\" '((-4 . \"<OR\") (0 . \"TEXT\") (-4 . \"<AND\") (0 . \"LINE\") (10 0.0 0.0 0.0) (-4 . "
     "\"AND>\") (-4 . \"OR>\"))))",
     "2"},
    {"in a layout", "", "(count (ssget \"X\" '((410 . \"Model\"))))", "5"},
    {"a filter that does not close", "",
     "(substr (vl-catch-all-error-message (vl-catch-all-apply 'ssget '(\"X\" ((-4 . \"<OR\") (0 . \"LINE\"))))) 1 14)",
     "\"bad SSGET list\""},
    {"window", "", "(places (ssget \"W\" '(-1 -1) '(11 6)))", "(10.0 0.0)"},
    {"window cuts nothing", "", "(ssget \"W\" '(-1 -1) '(11 4))", "nil"},
    {"crossing", "", "(places (ssget \"C\" '(-1 -1) '(11 4)))", "(10.0 0.0)"},
    {"crossing with filter", "", "(types (ssget \"C\" '(-1 -1) '(100 100) '((0 . \"CIRCLE\"))))", "(\"CIRCLE\")"},
    {"fence", "", "(places (ssget \"F\" '((5 2) (25 2))))", "(20.0 10.0)"},
    {"window polygon", "", "(places (ssget \"WP\" '((-1 -1) (5 -1) (5 6) (-1 6))))", "(0.0)"},
    {"crossing polygon", "", "(places (ssget \"CP\" '((-1 2) (15 2) (15 3))))", "(10.0 0.0)"},
    {"at a point", "", "(places (ssget '(10.0 2.0)))", "(10.0)"},
    {"at an empty point", "", "(ssget '(15.0 2.0))", "nil"},
    {"last", "", "(types (ssget \"L\"))", "(\"TEXT\")"},
    {"previous", "", "(ssget \"W\" '(-1 -1) '(11 6))(places (ssget \"P\"))", "(10.0 0.0)"},
    {"an unknown method", "", "(ssget \"Q\")",
     "error: bad argument value: SSGET mode string \"Q\" in (SSGET), argument 1"},
    {"frozen layers are out", "",
     "(command \"_.-LAYER\" \"_F\" \"RED\" \"\")(list (count (ssget \"A\")) (count (ssget \"X\")))", "(4 5)"},
    {"what is off cannot be picked", "", "(command \"_.-LAYER\" \"_OFF\" \"RED\" \"\")(ssget '(55.0 50.0))", "nil"},
    {"all", "", "(count (ssget))", "5", "all\n\n"},
    {"a pick", "", "(places (ssget))", "(0.0)", "0,2\n\n"},
    {"picks add up, none counts twice", "", "(places (ssget))", "(0.0 10.0)", "0,2\n10,2\n0,3\n\n"},
    {"a corner in the empty begins a window", "", "(places (ssget))", "(0.0 10.0)", "-1,-1\n11,6\n\n"},
    {"to the left it crosses", "", "(places (ssget))", "(0.0 10.0)", "15,3\n-1,-1\n\n"},
    {"window by word", "", "(places (ssget))", "(0.0 10.0)", "w\n-1,-1\n11,6\n\n"},
    {"fence by word", "", "(places (ssget))", "(10.0 20.0)", "f\n5,2\n25,2\n\n\n"},
    {"remove", "", "(count (ssget))", "4", "all\nr\n0,2\n\n"},
    {"add again", "", "(count (ssget))", "3", "all\nr\nc\n-1,-1\n25,3\na\n0,2\n\n"},
    {"undo a step", "", "(places (ssget))", "(0.0)", "0,2\nall\nu\n\n"},
    {"last by word", "", "(types (ssget))", "(\"TEXT\")", "l\n\n"},
    {"filtered", "", "(types (ssget '((0 . \"CIRCLE\"))))", "(\"CIRCLE\")", "all\n\n"},
    {"single", "", "(places (ssget \":S\"))", "(0.0)", "0,2\n"},
    {"no locked layers", "", "(command \"_.-LAYER\" \"_LO\" \"RED\" \"\")(count (ssget \"_:L\"))", "4", "all\n\n"},
    {"nothing", "", "(ssget)", "nil", "\n"},
    {"nonsense is asked again", "", "(count (ssget))", "5", "foo\nall\n\n"},
    {"an entity by expression", "", "(types (ssget))", "(\"TEXT\")", "(entlast)\n\n"},
};

INSTANTIATE_TEST_SUITE_P(All, Selecting, testing::ValuesIn(selectionCases));

using Picking = Selecting;

TEST_F(Picking, selectingIsCancelledWhenNobodyIsThere)
{
    EXPECT_EQ(lisp("(ssget)"), "error: Function cancelled in (SSGET)");
}

TEST_F(Picking, entsel)
{
    type("10.1,2");
    EXPECT_EQ(lisp("(cdr (setq s (entsel)))"), "((10.1 2.0 0.0))");
    EXPECT_EQ(lisp("(cdr (assoc 10 (entget (car s))))"), "(10.0 0.0 0.0)");
    type("15,2");
    EXPECT_EQ(lisp("(list (entsel) (getvar \"ERRNO\"))"), "(nil 7)");
    type("\n");
    EXPECT_EQ(lisp("(list (entsel) (getvar \"ERRNO\"))"), "(nil 52)");
    type("name");
    EXPECT_EQ(lisp("(initget \"Name\")(entsel)"), "\"Name\"");
}

TEST_F(Picking, aPickedEntityNeedsNoSearch)
{
    const host::drawing::RecordId circle = drawing().entities().all()[3];
    session.input().push(EntityAnswer{circle, {0.0, 0.0, 0.0}});
    EXPECT_EQ(lisp("(cdr (assoc 0 (entget (car (entsel)))))"), "\"CIRCLE\"");
}

TEST_F(Picking, windowsAndListsOfEntities)
{
    session.input().push(WindowAnswer{{-1.0, -1.0, 0.0}, {11.0, 6.0, 0.0}});
    session.input().push(EntitiesAnswer{{drawing().entities().all()[3]}});
    type("\n");
    EXPECT_EQ(lisp("(types (ssget))"), "(\"LINE\" \"LINE\" \"CIRCLE\")");
    document().setImpliedSelection({drawing().entities().all()[0]});
    EXPECT_EQ(lisp("(places (ssget \"I\"))"), "(0.0)");
}

TEST_F(Picking, insideABlock)
{
    lisp("(entmake '((0 . \"BLOCK\") (2 . \"B\") (70 . 0) (10 0 0 0)))"
         "(entmake '((0 . \"LINE\") (8 . \"0\") (10 0 0 0) (11 4 0 0)))"
         "(entmake '((0 . \"CIRCLE\") (8 . \"0\") (10 2 2 0) (40 . 1)))"
         "(entmake '((0 . \"ENDBLK\")))"
         "(entmake '((0 . \"INSERT\") (2 . \"B\") (10 100.0 100.0 0.0) (41 . 2.0) (42 . 2.0) (43 . 2.0)))");
    type("104,106");
    EXPECT_EQ(lisp("(setq n (nentsel))(cdr (assoc 0 (entget (car n))))"), "\"CIRCLE\"");
    EXPECT_EQ(lisp("(caddr n)"), "((2.0 0.0 0.0) (0.0 2.0 0.0) (0.0 0.0 2.0) (100.0 100.0 0.0))");
    EXPECT_EQ(lisp("(equal (cadddr n) (list (entlast)))"), "T");
    EXPECT_EQ(lisp("(cdr (assoc 0 (entget (car (nentselp '(102.0 100.0))))))"), "\"LINE\"");
    // Outside of blocks there is no matrix.
    type("10,2");
    EXPECT_EQ(lisp("(length (nentsel))"), "2");
}

} // namespace
