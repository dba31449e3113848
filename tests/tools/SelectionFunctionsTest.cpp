// The functions that select, pick, read, drag and prompt with keywords, as Lisp programs call them.

#include "host/app/playback/SessionPlayer.h"
#include "host/app/workbench/Workbench.h"
#include "host/drawing/records/HeaderVariables.h"
#include "host/kernel/documents/DocumentManager.h"
#include "tests/support/QtTestPrinters.h"
#include "tests/tools/ToolRun.h"

#include <gtest/gtest.h>

using namespace tools_test;
using namespace Qt::StringLiterals;

namespace {

/// `call` is evaluated with its value in the variable v, `answers` are lines of the session for its prompts, then
/// `expected` must not be nil.
struct Row
{
    const char *name;
    const char *call;
    const char *answers;
    const char *expected;
};

void PrintTo(const Row &row, std::ostream *stream)
{
    *stream << row.name;
}

/// On the plan: pipes along y = 1.5 (32) and x = 18 (33), a circle where they meet (35), texts (2F, 30, 31), walls.
class SelectionFunctions : public testing::TestWithParam<Row>
{
protected:
    SelectionFunctions() { document->setView({.centre = {12, 6}, .height = 20, .pixels = {1000, 800}}); }

    void play(const QString &session)
    {
        const auto outcome = host::app::runSession(session, *document, {});
        EXPECT_TRUE(outcome.ok) << outcome.message.toStdString() << "\n" << outcome.printed.toStdString();
    }

    void play(const Row &row)
    {
        play(u"lisp (setq v (quote none) v %1)\n%2expect-lisp %3\n"_s.arg(
            QLatin1String(row.call), QString::fromUtf8(row.answers), QLatin1String(row.expected)));
    }

    ToolRun folder;
    host::app::Workbench bench{folder.workbench()};
    host::kernel::Document *document = bench.documents().open(ToolRun::sample(u"plan.dxf"_s)).document;
};

TEST_P(SelectionFunctions, give)
{
    play(u"lisp (defun hands (s / i r) (if s (repeat (setq i (sslength s))"
         " (setq i (1- i) r (cons (cdr (assoc 5 (entget (ssname s i)))) r)))))\n"
         "lisp (defun name (h) (handent h))\n"
         "lisp (defun twin (h) (entmakex (cdr (entget (name h)))))\n"_s);
    play(GetParam());
}

INSTANTIATE_TEST_SUITE_P(
    Ssget, SelectionFunctions,
    testing::Values(
        Row{"the user chooses at the given prompt", "(KORA_ssget \"\\nSelect pipes:\")",
            "select 32 33\nexpect-printed \"Select pipes: \"\nselect 33\nenter\n",
            "(and (equal (hands v) '(\"32\" \"33\")) (= LispCanceled 0))"},
        Row{"what the filter refuses is not chosen", "(KORA_ssget nil nil \"line,circle\")", "select all\nenter\n",
            "(= (sslength v) 7)"},
        Row{"nothing chosen", "(KORA_ssget)", "enter\n", "(and (null v) (= LispCanceled 0))"},
        Row{"Esc", "(KORA_ssget \"Pick\")", "select 32\ncancel\n", "(and (null v) (= LispCanceled 1))"},
        Row{"one step", "(KORA_ssget nil \"_:S\")", "select 32\n", "(equal (hands v) '(\"32\"))"},
        Row{"the whole drawing by a list with operators",
            "(KORA_ssget nil \"X\" '((-4 . \"<OR\") (-4 . \"<AND\") (0 . \"LINE\") (-4 . \"=,>,*\") (10 0 1.0) "
            "(-4 . \"AND>\") (-4 . \"<AND\") (0 . \"TEXT\") (-4 . \">=\") (40 . 0.35) (-4 . \"AND>\") (-4 . \"OR>\")))",
            "", "(equal (hands v) '(\"32\" \"30\" \"2F\"))"},
        Row{"extended data",
            "(progn (regapp \"KORA\") (entmod (append (entget (name \"35\")) '((-3 (\"KORA\" (1000 . \"a\"))))))"
            " (KORA_ssget nil \"X\" '((-3 (\"KORA\")))))",
            "", "(equal (hands v) '(\"35\"))"},
        Row{"two corners in integers", "(KORA_ssget nil \"C\" '(17 1) '(19 2) '((8 . \"PIPES\")))", "",
            "(= (sslength v) 3)"},
        Row{"a list of points", "(KORA_ssget nil \"_WP\" '((17 1) (19.0 1) (19 2.0) (17.0 2.0)))", "",
            "(equal (hands v) '(\"35\"))"},
        Row{"what is at a point", "(KORA_ssget nil nil '(2.0 1.5))", "", "(equal (hands v) '(\"32\"))"},
        Row{"locked layers are left out",
            "(progn (command \"_.-LAYER\" \"_LO\" \"PIPES\" \"\") (KORA_ssget nil \"X:L\" '((0 . \"LINE,CIRCLE\"))))",
            "", "(= (sslength v) 4)"},
        Row{"equal entities count once with :D",
            "(progn (twin \"32\") (twin \"32\") (twin \"2F\") (entmod (subst '(40 . 0.5) '(40 . 0.35) (entget "
            "(entlast))))"
            " (KORA_ssget nil \"X:D\" '((0 . \"LINE,TEXT\"))))",
            "", "(and (= (sslength v) 10) (= (sslength (KORA_ssget nil \"X\" '((0 . \"LINE,TEXT\")))) 12))"},
        Row{"attributes make block references different",
            "(progn (entmake '((0 . \"BLOCK\") (2 . \"B\") (10 0.0 0.0 0.0) (70 . 2))) (entmake '((0 . \"ENDBLK\")))"
            " (foreach value '(\"1\" \"2\" \"1\") (entmake '((0 . \"INSERT\") (66 . 1) (2 . \"B\") (10 0.0 0.0 "
            "0.0)))"
            " (entmake (list '(0 . \"ATTRIB\") '(2 . \"NO\") (cons 1 value) '(10 0.0 0.0 0.0) '(40 . 1.0) '(70 . 0)))"
            " (entmake '((0 . \"SEQEND\")))) (KORA_ssget nil \"X:d\" \"insert\"))",
            "", "(and (= (sslength v) 2) (= (sslength (KORA_ssget nil \"X\" \"insert\")) 3))"}));

INSTANTIATE_TEST_SUITE_P(
    SsgetFilter, SelectionFunctions,
    testing::Values(
        Row{"of a set, and nobody is asked",
            "(KORA_ssget_filter '((0 . \"LINE\") (8 . \"PIPES\")) nil (setq s (ssget \"C\" '(17 1) '(19 12))))", "",
            "(and (equal (hands v) '(\"33\" \"32\")) (equal (hands (ssget \"P\")) (hands s)))"},
        Row{"of a set, erased ones are gone",
            "(progn (setq s (ssget \"X\" '((0 . \"TEXT\")))) (entdel (name \"30\")) (KORA_ssget_filter nil nil s))", "",
            "(equal (hands v) '(\"31\" \"2F\"))"},
        Row{"of a set, none pass", "(KORA_ssget_filter \"HATCH\" nil (ssget \"X\"))", "", "(null v)"},
        Row{"with a mode", "(KORA_ssget_filter '((0 . \"LINE\")) nil \"F\" '((-1 1) (3 2)))", "",
            "(equal (hands v) '(\"32\"))"}));

INSTANTIATE_TEST_SUITE_P(
    PromptArguments, SelectionFunctions,
    testing::Values(Row{"a base of whole numbers", "(getPointOrtakit '(1 1) \"To: \")", "answer @2,0\n",
                        "(equal v '(3.0 1.0 0.0) 1e-9)"},
                    Row{"a corner from whole numbers", "(getCornerOrtakit '(1 1) \"Corner: \")", "answer @2,3\n",
                        "(equal v '(3.0 4.0 0.0) 1e-9)"},
                    Row{"strings in lists are no prompts", "(getIntOrtakit \"Count: \" '(\"no\" (\"prompt\")))",
                        "answer 7\nexpect-printed \"Count: \"\n", "(= v 7)"},
                    Row{"an angle in the drawing's units", "(getAngleOrtakit \"Angle <1.5708>: \")",
                        "enter\nexpect-printed \"Angle <90>: \"\n", "(equal v (/ pi 2) 1e-5)"},
                    Row{"with as many digits as it takes",
                        "(progn (setvar \"LUPREC\" 1) (getDistOrtakit \"Size <2.375>: \"))",
                        "enter\nexpect-printed \"Size <2.375>: \"\n", "(= v 2.375)"},
                    Row{"options have no blanks around them", "(getKwordOrtakit \"Go on? [Yes / No] <No>: \")",
                        "answer y\nexpect-printed \"Go on? [Yes/No] <No>: \"\n", "(= v \"Yes\")"},
                    Row{"a quoted symbol is no string", "(CreateRtext 'note 0.0 2.5 \"\")", "", "(null v)"}));

INSTANTIATE_TEST_SUITE_P(
    EntSel, SelectionFunctions,
    testing::Values(Row{"asks until the type fits", "(KORA_EntSel \"\\nPick a pipe: \" \"line,*POLYLINE\")",
                        "pickhandle 35 18,1.25\nexpect-printed \"This is a CIRCLE; asked for is LINE,*POLYLINE.\"\n"
                        "pick 20,8\nexpect-printed \"Nothing is there.\"\npick 3,1.5\n",
                        "(and (= (car v) (name \"32\")) (equal (cadr v) '(3.0 1.5 0.0) 1e-9))"},
                    Row{"a filter list", "(KORA_EntSel nil '((-4 . \">\") (40 . 0.3)))",
                        "pickhandle 31\nexpect-printed \"This TEXT is not what is asked for.\"\npickhandle 30\n",
                        "(= (car v) (name \"30\"))"},
                    Row{"a keyword, also after a wrong pick", "(KORA_EntSel \"Pick\" \"LINE\" \"Undo, eXit\")",
                        "pickhandle 35\nexpect-printed \"Pick [Undo/eXit]: \"\nanswer x\n", "(= v \"eXit\")"},
                    Row{"an empty answer", "(KORA_EntSel)", "enter\n", "(and (null v) (= LispCanceled 0))"},
                    Row{"Esc", "(KORA_EntSel)", "cancel\n", "(and (null v) (= LispCanceled 1))"}));

INSTANTIATE_TEST_SUITE_P(
    EntField, SelectionFunctions,
    testing::Values(
        Row{"as entget has it",
            "(mapcar '(lambda (h) (vl-every '(lambda (g) (or (= (car g) -3) (equal (cdr (assoc (car g) (entget (name "
            "h))))"
            " (KORA_entfield (name h) (car g))))) (entget (name h)))) '(\"27\" \"2C\" \"2F\" \"32\"))",
            "", "(equal v '(T T T T))"},
        Row{"usual values",
            "(mapcar '(lambda (f) (KORA_entfield (name \"32\") f)) '(\"LAYER\" \"Color\" \"linetype\" \"LTScale\" "
            "\"lineweight\" \"normal\" \"start\" \"height\" 62))",
            "", "(equal v '(\"PIPES\" 256 \"ByLayer\" 1.0 -1 (0.0 0.0 1.0) (0.0 1.5 0.0) nil nil))"},
        Row{"erased", "(progn (entdel (name \"30\")) (KORA_entfield (name \"30\") \"text\"))", "", "(null v)"},
        Row{"long texts are one",
            "(KORA_entfield (entmakex '((0 . \"MTEXT\") (10 0.0 0.0 0.0) (40 . 1.0) (3 . \"one \") (3 . \"two \")"
            " (1 . \"three\") (11 0.0 1.0 0.0))) \"text\")",
            "", "(and (= v \"one two three\") (equal (KORA_entfield (entlast) \"rotation\") (/ pi 2) 1e-9))"},
        Row{"attributes by their tags, and inside of blocks",
            "(progn (entmake '((0 . \"BLOCK\") (2 . \"B\") (10 0.0 0.0 0.0) (70 . 2)))"
            " (entmake '((0 . \"CIRCLE\") (10 0.0 0.0 0.0) (40 . 2.0))) (entmake '((0 . \"ENDBLK\")))"
            " (entmake '((0 . \"INSERT\") (66 . 1) (2 . \"B\") (10 2.0 8.0 0.0)))"
            " (entmake '((0 . \"ATTRIB\") (2 . \"NO\") (1 . \"17\") (10 0.0 0.0 0.0) (40 . 1.5) (70 . 0)))"
            " (entmake '((0 . \"ATTRIB\") (2 . \"SIZE\") (1 . \"XL\") (10 0.0 0.0 0.0) (40 . 1.0) (70 . 0)))"
            " (entmake '((0 . \"SEQEND\"))) (setq b (entlast)) (list (KORA_entfield b nil \"size\")"
            " (KORA_entfield b \"height\" \"No\") (KORA_entfield b 1 \"gone\") (KORA_entfield (name \"32\") nil \"NO\")"
            " (KORA_entfield b \"block\") (KORA_entfield (entnext b) \"tag\") (KORA_entfield (nentselp '(4.0 8.0)) "
            "\"radius\")))",
            "", "(equal v '(\"XL\" 1.5 nil nil \"B\" \"NO\" 2.0))"},
        Row{"table entries", "(KORA_entfield (tblobjname \"LAYER\" \"PIPES\") \"name\")", "", "(= v \"PIPES\")"}));

INSTANTIATE_TEST_SUITE_P(
    DragMove, SelectionFunctions,
    testing::Values(
        Row{"moved here", "(acet-ss-drag-move (ssget \"X\" '((0 . \"CIRCLE\"))) '(18.0 1.5) nil T)",
            "pick 20,8.5\nexpect-modified yes\n",
            "(and (equal v '(20.0 8.5 0.0)) (equal (KORA_entfield (name \"35\") 10) '(20.0 8.5 0.0)))"},
        Row{"one undo step", "(acet-ss-drag-move (ssget \"X\") '(0 0 0) \"To\" T)",
            "point 1,1\nundo\nexpect-modified no\n", "(equal (KORA_entfield (name \"35\") 10) '(18.0 1.5 0.0))"},
        Row{"locked ones stay",
            "(progn (command \"_.-LAYER\" \"_LO\" \"PIPES\" \"\") (acet-ss-drag-move (ssget \"X\" '((0 . \"LINE\")))"
            " '(0 0 0) \"To\" T))",
            "point 1,1\nexpect-printed \"2 could not be moved.\"\n",
            "(and (equal (KORA_entfield (name \"33\") \"start\") '(18.0 1.5 0.0))"
            " (equal (KORA_entfield (name \"29\") \"start\") '(9.9 4.3 0.0) 1e-9))"},
        Row{"an empty answer", "(acet-ss-drag-move (ssget \"X\") '(0 0) \"To\" T)", "enter\nexpect-modified no\n",
            "(and (null v) (= LispCanceled 0))"},
        Row{"Esc", "(acet-ss-drag-move (ssget \"X\") '(0 0) \"To\" T)", "cancel\nexpect-modified no\n",
            "(and (null v) (= LispCanceled 1))"}));

INSTANTIATE_TEST_SUITE_P(
    Prompts, SelectionFunctions,
    testing::Values(
        Row{"point, keyword", "(KORA_getpoint \"Undo,eXit\" \"Next\" '(1 2))", "answer x\n", "(= v \"eXit\")"},
        Row{"string, empty", "(KORA_getstring \"Name\")", "enter\n", "(and (null v) (= LispCanceled 0))"},
        Row{"string, Esc", "(KORA_getstring \"Name\")", "cancel\n", "(and (null v) (= LispCanceled 1))"},
        Row{"keyword, Esc", "(KORA_getkword \"Yes,No\")", "cancel\n", "(and (null v) (= LispCanceled 1))"}));

INSTANTIATE_TEST_SUITE_P(
    OfNoUse, SelectionFunctions,
    testing::Values(
        Row{"another kind", "(kora_choose \"Texts:\" '((0 . \"TEXT\")))",
            "select all\nenter\nexpect-printed \"15 picked, 12 of no use: 12 of another kind.\"\n", "(= 3 (length v))"},
        Row{"only another kind", "(kora_choose \"Hatches:\" '((0 . \"HATCH\")))",
            "select all\nenter\nexpect-printed \"15 picked, 15 of no use\"\n", "(null v)"},
        Row{"nothing", "(kora_choose \"Any:\" nil)", "enter\nexpect-printed \"Nothing was chosen.\"\n", "(null v)"},
        Row{"chosen before", "(progn (sssetfirst nil (ssget \"_X\")) (kora_chosen '((0 . \"CIRCLE\"))))",
            "expect-printed \"15 chosen, 14 of no use: 14 of another kind.\"\n",
            "(and (= 1 (length v)) (null (ssget \"_I\")))"},
        Row{"several reasons, the first counts",
            "(progn (command \"_.-LAYER\" \"_LO\" \"PIPES\" \"\") (entmake '((0 . \"CIRCLE\") (10 0.0 0.0 0.0) (40 . "
            "1.0)"
            " (210 0.0 0.0 -1.0))) (kora_usable (kora_selection_to_list (ssget \"_X\")) (list (kora_other_kind"
            " \"LINE,CIRCLE\") kora_on_locked_layer kora_in_other_plane)))",
            "expect-printed \"16 picked, 12 of no use: 8 of another kind, 3 on a locked layer, 1 in another plane.\"\n",
            "(= 4 (length v))"}));

TEST_F(SelectionFunctions, WrongArgumentsAreErrorsThatSayWhy)
{
    const struct
    {
        const char *call;
        const char *said;
    } rows[] = {
        {"(KORA_ssget 1)", "the prompt is a string or nil"},
        {"(KORA_ssget nil '(0 0))", "the selection mode is a string or nil"},
        {"(KORA_ssget nil \"Q\")", "unknown selection mode \\\"Q\\\""},
        {"(KORA_ssget nil \"W\" '(0 0))", "not enough points for the selection mode \\\"W\\\""},
        {"(KORA_ssget nil nil '(0 0) '(1 1))", "more than one point"},
        {"(KORA_ssget nil \"WP\" '((0 0) (1 1) \"a\"))", "the list of points has something else in it"},
        {"(KORA_ssget nil \"X\" 5)", "a filter is a list or a string of type names"},
        {"(KORA_ssget nil \"X\" '((-4 . \"<OR\") (0 . \"LINE\")))", "bad SSGET list"},
        {"(KORA_ssget_filter)", "the filter is missing"},
        {"(KORA_ssget_filter '((\"a\")) nil (ssget \"X\"))", "bad SSGET list"},
        {"(KORA_EntSel \"Pick\" '((-4 . \"OR>\")))", "bad SSGET list"},
        {"(KORA_EntSel \"Pick\" \"LINE\" 1)", "the arguments are a prompt, a filter and keywords"},
        {"(KORA_entfield nil \"layer\")", "the first argument is no entity"},
        {"(KORA_entfield (entlast) 1.5)", "a field is a group code or a name"},
        {"(KORA_entfield (entlast))", "a field is a group code or a name"},
        {"(KORA_entfield (entlast) \"text\" 5)", "the tag is a string"},
        {"(acet-ss-drag-move nil '(0 0))", "the arguments are a selection set and a point"},
        {"(acet-ss-drag-move (ssget \"X\") '(0))", "the arguments are a selection set and a point"},
        {"(KORA_getpoint 1.5 \"Next\")", "of a type that does not fit"},
        {"(KORA_getpoint \"A\" \"B\" \"C\")", "more strings than the function takes"},
        {"(KORA_getkword T \"Yes\")", "of a type that does not fit"},
    };
    for (const auto &row : rows) {
        SCOPED_TRACE(row.call);
        play(u"lisp %1\nexpect-error bad argument\nexpect-printed \"%2\"\n"_s.arg(QLatin1String(row.call),
                                                                                  QLatin1String(row.said)));
    }
}

TEST_F(SelectionFunctions, PointsAreInUserCoordinates)
{
    document->runAs(u"UCS"_s, [&] {
        document->drawing().header().set(u"$UCSORG", {10, host::drawing::Vec3{10, 1, 0}});
    });
    const Row rows[] = {
        {"select", "(sslength (KORA_ssget nil \"W\" '(7 0) '(9 1)))", "", "(= v 1)"},
        {"entity", "(cadr (KORA_EntSel))", "pick 3,1.5\n", "(equal v '(-7.0 0.5 0.0) 1e-9)"},
        {"point", "(KORA_getpoint '(1 1) \"Next\")", "answer @1,0\n", "(equal v '(2.0 1.0 0.0))"},
        {"drag", "(acet-ss-drag-move (ssget \"X\" '((0 . \"CIRCLE\"))) '(8.0 0.5) \"To\" T)", "pick 20,3\n",
         "(and (equal v '(10.0 2.0 0.0)) (equal (cdr (assoc 10 (entget (handent \"35\")))) '(20.0 3.0 0.0)))"},
    };
    for (const Row &row : rows) {
        SCOPED_TRACE(row.name);
        play(row);
    }
}

} // namespace
