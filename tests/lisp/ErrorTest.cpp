#include "tests/lisp/LispBench.h"

using namespace host::lisp;
using namespace host::lisp::test;

TEST(Errors, ReportNamesPlaceAndCalls)
{
    Bench bench;
    const Outcome outcome = bench.interpreter.run("(defun inner (x)\n"
                                                  "  (princ \"\")\n"
                                                  "  (+ x\n"
                                                  "     (progn 1)\n"
                                                  "     \"a\"))\n"
                                                  "(defun outer (y)\n"
                                                  "  (inner y))\n"
                                                  "\n"
                                                  "(outer 5)\n",
                                                  "plan.lsp");
    ASSERT_FALSE(outcome.ok());
    EXPECT_EQ(outcome.error->report(), "bad argument type: numberp: \"a\" in (+), argument 3 (plan.lsp:3)\n"
                                       "  in INNER, called at plan.lsp:7\n"
                                       "  in OUTER, called at plan.lsp:9");
}

TEST(Errors, PlaceIsThatOfTheFileTheFormIsIn)
{
    Bench bench;
    bench.interpreter.run("(defun broken ()\n (car 1))", "first.lsp");
    bench.interpreter.run("(defun fine () 1)", "second.lsp");
    const Outcome outcome = bench.interpreter.run("\n\n(fine)(broken)", "third.lsp");
    EXPECT_EQ(outcome.error->report(), "bad argument type: listp 1 in (CAR), argument 1 (first.lsp:2)\n"
                                       "  in BROKEN, called at third.lsp:3");
    EXPECT_EQ(bench.interpreter.run("(fine\n", "fourth.lsp").error->summary(),
              "malformed list on input (fourth.lsp:1)");
}

TEST(Errors, PlaceAfterACallIsThatOfTheCaller)
{
    Bench bench;
    const Outcome outcome = bench.interpreter.run("(defun f ()\n1)\n(foreach x\n(progn (f)\n5) x)", "a.lsp");
    EXPECT_EQ(outcome.error->summary(), "bad argument type: listp 5 in (FOREACH), argument 2 (a.lsp:3)");
}

TEST(Errors, AnonymousFunctionsAndLongChains)
{
    Bench bench;
    Outcome outcome = bench.interpreter.run("(mapcar '(lambda (x) (car x)) '(1))", "a.lsp");
    ASSERT_EQ(outcome.error->chain.size(), 1U);
    EXPECT_EQ(outcome.error->chain[0].function, "LAMBDA");
    outcome = bench.interpreter.run("(defun f (n) (if (= n 0) (car 1) (f (1- n)))) (f 100)");
    EXPECT_EQ(outcome.error->chain.size() + outcome.error->callsLeftOut, 101U);
    EXPECT_LT(outcome.error->chain.size(), 50U);
}

TEST(Errors, HugeArgumentsAreShownShort)
{
    Bench bench;
    EXPECT_LT(bench("(setq l nil) (repeat 100000 (setq l (cons \"xxxx\" l))) (+ 1 l)").size(), 300U);
    EXPECT_LT(bench("(setq s \"ää\") (repeat 12 (setq s (strcat s s))) (+ 1 s)").size(), 300U);
}

TEST(Errors, VariablesAreBackAfterAnError)
{
    Bench bench;
    bench("(setq a 1 b 2) (defun f (a / b) (setq b 5) (car a))");
    EXPECT_EQ(bench("(f 7)"), "! bad argument type: listp 7 in (CAR), argument 1");
    EXPECT_EQ(bench("(list a b)"), "(1 2)");
    EXPECT_EQ(bench("(foreach a '(8 9) (car 5))"), "! bad argument type: listp 5 in (CAR), argument 1");
    EXPECT_EQ(bench("a"), "1");
}

TEST(Errors, CatchAll)
{
    check({
        {"(list (vl-catch-all-apply '+ '(1 2)) (vl-catch-all-error-p (vl-catch-all-apply '/ '(1 0))) "
         "(vl-catch-all-error-p 5))",
         "(3 T nil)"},
        {"(mapcar '(lambda (f) (vl-catch-all-error-message (vl-catch-all-apply f '(1 0)))) '(/ nofunction))",
         R"(("divide by zero" "no function definition: NOFUNCTION"))"},
        {"(vl-catch-all-error-message (vl-catch-all-apply 'exit nil))", "\"quit / exit abort\""},
        {"(vl-catch-all-error-message 5)", "! bad argument type: errorp 5 in (VL-CATCH-ALL-ERROR-MESSAGE), argument 1"},
        {"(setq a 1) (defun f (a) (car a)) (vl-catch-all-apply 'f '(5)) a", "1"},
        {"(exit)", "! quit / exit abort in (EXIT)"},
        {"(vl-exit-with-error \"my own\")", "! my own in (VL-EXIT-WITH-ERROR)"},
    });
}

TEST(Errors, HandlerRunsBeforeVariablesAreRestored)
{
    Bench bench;
    const Outcome outcome = bench.interpreter.run("(setq osnap 33)"
                                                  "(defun c:tool (/ saved *error*)"
                                                  "  (setq saved osnap osnap 0)"
                                                  "  (defun *error* (message) (setq osnap saved seen message) (princ))"
                                                  "  (helper))"
                                                  "(defun helper (/ saved) (setq saved2 1) (car 5))"
                                                  "(c:tool)");
    ASSERT_FALSE(outcome.ok());
    EXPECT_TRUE(outcome.error->handledByProgram);
    EXPECT_EQ(bench("seen"), "\"bad argument type: listp 5\"");
    // The handler saw the innermost binding of the name, as dynamic scope has it.
    EXPECT_EQ(bench("osnap"), "nil");
    EXPECT_EQ(bench("*error*"), "nil");
}

TEST(Errors, HandlerSeesLocalsOfTheToolThatFailed)
{
    const std::vector<Row> rows = {
        {"(car 5)", "(33 \"bad argument type: listp 5\")"},
        {"(nofunction)", "(33 \"no function definition: NOFUNCTION\")"},
        {"(foreach 5 5 5)", "(33 \"bad argument type: symbolp 5\")"},
        {"(tool 1)", "(33 \"too many arguments\")"},
        {"(exit)", "(33 \"quit / exit abort\")"},
        {"(mapcar '(lambda (x) (+ x \"a\")) '(1))", "(33 \"bad argument type: numberp: \\\"a\\\"\")"},
        {"(read \"(\")", "(33 \"malformed list on input\")"},
        {"(deep)", "(33 \"stack overflow\")"},
        {"(vl-catch-all-apply 'car '(5)) (/ 1 0)", "(33 \"divide by zero\")"},
    };
    for (const Row &row : rows) {
        Bench bench;
        bench("(defun deep () (1+ (deep)))"
              "(defun *error* (message) (setq seen (list saved message)))");
        const Outcome outcome =
            bench.interpreter.run("(defun tool (/ saved) (setq saved 33) " + std::string(row.source) + ") (tool)");
        EXPECT_FALSE(outcome.ok()) << row.source;
        EXPECT_EQ(bench("seen"), row.expected) << row.source;
    }
}

TEST(Errors, HandlerIsCalledOnceAndNotForCaughtErrors)
{
    Bench bench;
    bench("(setq count 0) (defun *error* (m) (setq count (1+ count)))");
    bench("(vl-catch-all-apply 'car '(5))");
    EXPECT_EQ(bench("count"), "0");
    bench("(defun f () (mapcar '(lambda (x) (apply 'car (list x))) '(5))) (eval '(f))");
    EXPECT_EQ(bench("count"), "1");
    bench("(vl-catch-all-apply '(lambda () 1) nil) (car 5)");
    EXPECT_EQ(bench("count"), "2");
}

TEST(Errors, AnErrorInTheHandlerEndsThere)
{
    Bench bench;
    bench("(defun *error* (m) (setq seen m) (car m))");
    EXPECT_EQ(bench("(/ 1 0)"), "! divide by zero in (/)");
    EXPECT_NE(bench.console.output.find("bad argument type: listp \"divide by zero\""), std::string::npos);
    bench.console.output.clear();
    bench("(defun *error* (m) (exit))");
    EXPECT_EQ(bench("(/ 1 0)"), "! divide by zero in (/)");
    EXPECT_EQ(bench.console.output, "");
    // A handler may catch errors of its own.
    bench("(defun *error* (m) (setq seen (vl-catch-all-error-message (vl-catch-all-apply 'car '(7)))))");
    bench("(/ 1 0)");
    EXPECT_EQ(bench("seen"), "\"bad argument type: listp 7\"");
}

TEST(Errors, ForeignExceptionsBecomeLispErrors)
{
    Bench bench;
    bench.interpreter.define(
        "boom", [](Arguments &) -> Value { throw std::runtime_error("disk on fire"); }, Arity::exactly(0));
    bench.interpreter.define(
        "cancel", [](Arguments &) -> Value { throw Error::cancelled(); }, Arity::exactly(0));
    EXPECT_EQ(bench("(boom)"), "! disk on fire in (BOOM)");
    EXPECT_EQ(bench("(vl-catch-all-error-message (vl-catch-all-apply 'boom nil))"), "\"disk on fire\"");
    const Outcome outcome = bench.interpreter.run("(cancel)");
    EXPECT_EQ(outcome.error->kind(), ErrorKind::Cancelled);
    EXPECT_EQ(bench("(vl-catch-all-error-message (vl-catch-all-apply 'cancel nil))"), "\"Function cancelled\"");
}
