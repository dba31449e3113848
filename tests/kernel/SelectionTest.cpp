#include "host/drawing/Entities.h"
#include "host/drawing/Journal.h"
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

class Selecting : public Bench, public testing::WithParamInterface<LispCase>
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
    const LispCase &row = GetParam();
    type(row.setUp);
    EXPECT_EQ(lisp(row.expression), row.expected);
}

// setUp: what is typed.
INSTANTIATE_TEST_SUITE_P(
    ByPlaceAndFilter, Selecting,
    testing::Values(
        LispCase{"the whole drawing, newest first", "", "(types (ssget \"X\"))",
                 "(\"TEXT\" \"CIRCLE\" \"LINE\" \"LINE\" \"LINE\")"},
        LispCase{"by type", "", "(count (ssget \"X\" '((0 . \"LINE\"))))", "3"},
        LispCase{"by a list of types", "", "(count (ssget \"_X\" '((0 . \"LINE,TEXT\"))))", "4"},
        LispCase{"by layer pattern", "", "(types (ssget \"X\" '((8 . \"R*\"))))", "(\"CIRCLE\")"},
        LispCase{"by colour", "", "(types (ssget \"X\" '((62 . 3))))", "(\"CIRCLE\")"},
        LispCase{"by text", "", "(types (ssget \"X\" '((1 . \"plan*\"))))", "(\"TEXT\")"},
        LispCase{"by size", "", "(types (ssget \"X\" '((-4 . \">\") (40 . 2.0))))", "(\"CIRCLE\")"},
        LispCase{"by place", "", "(count (ssget \"X\" '((0 . \"LINE\") (-4 . \">=,*,*\") (10 10.0 0.0 0.0))))", "2"},
        LispCase{"one or the other", "",
                 "(count (ssget \"X\" '((-4 . \"<OR\") (0 . \"TEXT\") (-4 . \"<AND\") (0 . \"LINE\") (10 0.0 0.0 0.0)"
                 " (-4 . \"AND>\") (-4 . \"OR>\"))))",
                 "2"},
        LispCase{"not", "", "(types (ssget \"X\" '((-4 . \"<NOT\") (0 . \"LINE\") (-4 . \"NOT>\"))))",
                 "(\"TEXT\" \"CIRCLE\")"},
        LispCase{"in a layout", "", "(count (ssget \"X\" '((410 . \"Model\"))))", "5"},
        LispCase{"nothing matches", "", "(ssget \"X\" '((0 . \"HATCH\")))", "nil"},
        LispCase{"a filter that does not close", "",
                 "(substr (vl-catch-all-error-message (vl-catch-all-apply 'ssget '(\"X\" ((-4 . \"<OR\") (0 . "
                 "\"LINE\"))))) 1 14)",
                 "\"bad SSGET list\""},
        LispCase{"window", "", "(places (ssget \"W\" '(-1 -1) '(11 6)))", "(10.0 0.0)"},
        LispCase{"window cuts nothing", "", "(ssget \"W\" '(-1 -1) '(11 4))", "nil"},
        LispCase{"crossing", "", "(places (ssget \"C\" '(-1 -1) '(11 4)))", "(10.0 0.0)"},
        LispCase{"crossing with filter", "", "(types (ssget \"C\" '(-1 -1) '(100 100) '((0 . \"CIRCLE\"))))",
                 "(\"CIRCLE\")"},
        LispCase{"fence", "", "(places (ssget \"F\" '((5 2) (25 2))))", "(20.0 10.0)"},
        LispCase{"window polygon", "", "(places (ssget \"WP\" '((-1 -1) (5 -1) (5 6) (-1 6))))", "(0.0)"},
        LispCase{"crossing polygon", "", "(places (ssget \"CP\" '((-1 2) (15 2) (15 3))))", "(10.0 0.0)"},
        LispCase{"at a point", "", "(places (ssget '(10.0 2.0)))", "(10.0)"},
        LispCase{"at an empty point", "", "(ssget '(15.0 2.0))", "nil"},
        LispCase{"last", "", "(types (ssget \"L\"))", "(\"TEXT\")"},
        LispCase{"previous", "", "(ssget \"W\" '(-1 -1) '(11 6))(places (ssget \"P\"))", "(10.0 0.0)"},
        LispCase{"an unknown method", "", "(ssget \"Q\")",
                 "error: bad argument value: SSGET mode string \"Q\" in (SSGET), argument 1"},
        LispCase{"frozen layers are out", "",
                 "(command \"_.-LAYER\" \"_F\" \"RED\" \"\")(list (count (ssget \"A\")) (count (ssget \"X\")))",
                 "(4 5)"},
        LispCase{"what is off cannot be picked", "", "(command \"_.-LAYER\" \"_OFF\" \"RED\" \"\")(ssget '(55.0 50.0))",
                 "nil"}));

INSTANTIATE_TEST_SUITE_P(
    ByTheUser, Selecting,
    testing::Values(LispCase{"all", "all\n\n", "(count (ssget))", "5"},
                    LispCase{"a pick", "0,2\n\n", "(places (ssget))", "(0.0)"},
                    LispCase{"picks add up, none counts twice", "0,2\n10,2\n0,3\n\n", "(places (ssget))", "(0.0 10.0)"},
                    LispCase{"a corner in the empty begins a window", "-1,-1\n11,6\n\n", "(places (ssget))",
                             "(0.0 10.0)"},
                    LispCase{"to the left it crosses", "15,3\n-1,-1\n\n", "(places (ssget))", "(0.0 10.0)"},
                    LispCase{"window by word", "w\n-1,-1\n11,6\n\n", "(places (ssget))", "(0.0 10.0)"},
                    LispCase{"fence by word", "f\n5,2\n25,2\n\n\n", "(places (ssget))", "(10.0 20.0)"},
                    LispCase{"remove", "all\nr\n0,2\n\n", "(count (ssget))", "4"},
                    LispCase{"add again", "all\nr\nc\n-1,-1\n25,3\na\n0,2\n\n", "(count (ssget))", "3"},
                    LispCase{"undo a step", "0,2\nall\nu\n\n", "(places (ssget))", "(0.0)"},
                    LispCase{"last", "l\n\n", "(types (ssget))", "(\"TEXT\")"},
                    LispCase{"filtered", "all\n\n", "(types (ssget '((0 . \"CIRCLE\"))))", "(\"CIRCLE\")"},
                    LispCase{"single", "0,2\n", "(places (ssget \":S\"))", "(0.0)"},
                    LispCase{"no locked layers", "all\n\n",
                             "(command \"_.-LAYER\" \"_LO\" \"RED\" \"\")(count (ssget \"_:L\"))", "4"},
                    LispCase{"nothing", "\n", "(ssget)", "nil"},
                    LispCase{"nonsense is asked again", "foo\nall\n\n", "(count (ssget))", "5"},
                    LispCase{"an entity by expression", "(entlast)\n\n", "(types (ssget))", "(\"TEXT\")"}));

class Picking : public Bench
{
protected:
    Picking()
    {
        document().setView({});
        lisp(sample);
    }
};

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
