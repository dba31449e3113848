// What whoever has an engine can do with it and learns from it.

#include "tests/lisp/LispBench.h"

using namespace host::lisp;
using namespace host::lisp::test;

TEST(Embedding, ExternalFunctionsComeAndGo)
{
    Bench bench;
    bench.interpreter.define(
        "Dlg_Shout", [](Arguments &args) { return Value::string(args.string(0) + "!"); }, Arity::between(1, 2));
    EXPECT_TRUE(bench.interpreter.isDefined("DLG_SHOUT"));
    EXPECT_EQ(bench("(list (dlg_shout \"a\") (type dlg_shout) dlg_shout)"), "(\"a!\" EXRXSUBR <Subr: DLG_SHOUT>)");
    EXPECT_EQ(bench("(dlg_shout)"), "! too few arguments in (DLG_SHOUT)");
    EXPECT_EQ(bench("(dlg_shout 1)"), "! bad argument type: stringp 1 in (DLG_SHOUT), argument 1");
    bench("(defun helper () 5)");
    for (const char *name : {"dlg_shout", "never_there", "helper"})
        bench.interpreter.undefine(name);
    EXPECT_FALSE(bench.interpreter.isDefined("Dlg_Shout"));
    EXPECT_EQ(bench("(dlg_shout \"a\")"), "! no function definition: DLG_SHOUT");
    EXPECT_EQ(bench("(helper)"), "5") << "a program's own";

    const std::string kept = "captured";
    bench.interpreter.define(
        "vanish",
        [kept](Arguments &args) {
            args.interpreter().undefine("vanish");
            args.interpreter().run("(setq vanish nil)");
            return Value::string(kept);
        },
        Arity::exactly(0));
    EXPECT_EQ(bench("(vanish)"), "\"captured\"") << "undefined while it runs";
}

TEST(Embedding, ArgumentsAreChecked)
{
    Bench bench;
    bench.interpreter.define(
        "probe",
        [](Arguments &args) {
            const Point point = args.point(0);
            return Value::list({Value::real(point.x + point.y + point.z), Value::integer(args.integerOr(1, 7)),
                                Value::string(args.stringOr(2, "none")), args.boolean(args.has(3))});
        },
        Arity::between(1, 4));
    bench.check({
        {"(probe '(1 2.5))", "(3.5 7 \"none\" nil)"},
        {"(probe '(1 2 3) 5 \"x\" 1)", "(6.0 5 \"x\" T)"},
        {"(probe '(1 2) nil nil)", "(3.0 7 \"none\" nil)"},
        {"(probe '(1 2 3 4))", "! bad argument type: 2D/3D point: (1 2 3 4) in (PROBE), argument 1"},
        {"(probe '(1 2 . 3))", "! bad argument type: 2D/3D point: (1 2 . 3) in (PROBE), argument 1"},
        {"(probe '(1 2) 1.5)", "! bad argument type: fixnump: 1.5 in (PROBE), argument 2"},
    });
}

TEST(Embedding, InterpretersAreIndependent)
{
    Bench one;
    Bench other;
    one("(setq a 1) (defun f () 'one) (setenv \"LISP_TEST_UNSET\" \"x\")");
    EXPECT_EQ(one("(list a (getenv \"LISP_TEST_UNSET\"))"), "(1 \"x\")");
    EXPECT_EQ(other("(list a (getenv \"LISP_TEST_UNSET\"))"), "(nil nil)");
    EXPECT_EQ(std::getenv("LISP_TEST_UNSET"), nullptr);
    EXPECT_EQ(other("(f)"), "! no function definition: F");
    one.interpreter.define(
        "ask", [&other](Arguments &args) { return Value::string(other(args.string(0))); }, Arity::exactly(1));
    EXPECT_EQ(one("(ask \"(car 5)\")"), "\"! bad argument type: listp 5 in (CAR), argument 1\"") << "one in the other";
}

TEST(Embedding, ARunInsideARunEndsItsOwnErrors)
{
    Bench bench;
    bench.interpreter.define(
        "inner", [](Arguments &args) { return args.boolean(args.interpreter().run(args.string(0), "inner").ok()); },
        Arity::exactly(1));
    EXPECT_EQ(bench("(setq a 5) (defun f (a) (list (inner \"(car 7)\") (inner \"(setq b a)\") b)) (f 3)"), "(nil T 3)");
    EXPECT_EQ(bench("(vl-catch-all-apply 'inner '(\"(car 7)\"))"), "nil");
    EXPECT_FALSE(bench.interpreter.isRunning());
}

TEST(Embedding, CallsFromOutside)
{
    Bench bench;
    bench("(defun area (w h) (* w h))");
    const Value sides[] = {Value::integer(3), Value::real(2.5)};
    EXPECT_EQ(toText(bench.interpreter.call("Area", sides).value), "7.5");
    EXPECT_EQ(bench.interpreter.call("nothing").error->message(), "no function definition: NOTHING");
    EXPECT_EQ(bench.interpreter.call("area").error->message(), "too few arguments");
}

TEST(Embedding, ListsItsFunctions)
{
    Bench bench;
    bench.interpreter.run("\n(defun c:door (width / old)\n (setq old 1))", "door.lsp");
    bench.interpreter.define(
        "ext", [](Arguments &) { return Value(); }, Arity::atLeast(2));
    std::map<std::string, FunctionEntry> entries;
    for (FunctionEntry &entry : bench.interpreter.functions())
        entries[entry.name] = entry;
    EXPECT_EQ(entries["C:DOOR"].parameters, "(WIDTH / OLD)");
    EXPECT_EQ(entries["C:DOOR"].file, "door.lsp");
    EXPECT_EQ(entries["C:DOOR"].line, 3);
    EXPECT_EQ(entries["C:DOOR"].kind, FunctionEntry::Kind::User);
    EXPECT_EQ(entries["EXT"].kind, FunctionEntry::Kind::External);
    EXPECT_EQ(entries["EXT"].arity, "2+");
    EXPECT_EQ(entries["SUBSTR"].arity, "2-3");
    EXPECT_EQ(entries["SETQ"].kind, FunctionEntry::Kind::SpecialForm);
}

TEST(Embedding, EndlessLoopsCanBeStopped)
{
    const char *const sources[] = {
        "(while T)",
        "(while T (setq i 1))",
        "(repeat 2147483647)",
        "(defun f () (g)) (defun g () 1) (while T (vl-catch-all-apply 'f nil))",
        "(vl-catch-all-apply '(lambda () (while T)) nil)",
        "(while T (vl-catch-all-apply '(lambda () (while T)) nil))",
        "(car 5)",
        "(setq a (list '+)) (while (apply 'list (list 1)))",
    };
    for (const char *source : sources) {
        SCOPED_TRACE(source);
        Bench bench;
        const bool isError = std::string_view(source) == "(car 5)";
        bench(isError ? "(defun *error* (m) (while T))" : "(defun *error* (m) (setq seen m))");
        bench.console.stopAtPoll = 3;
        const Outcome outcome = bench.interpreter.run(source);
        ASSERT_FALSE(outcome.ok());
        bench.console.stopAtPoll = 1'000'000'000;
        EXPECT_EQ(bench("(list (+ 1 2) seen)"), isError ? "(3 nil)" : "(3 \"Function cancelled\")");
        if (!isError) {
            EXPECT_EQ(outcome.error->kind(), ErrorKind::Interrupted);
        }
    }
}

TEST(Embedding, ValuesOutliveTheirVariables)
{
    Value kept;
    {
        Bench bench;
        kept = bench.interpreter.run("(list 1 \"two\" (list 3.5))").value;
        EXPECT_EQ(bench("(setq f (lambda () (quote (1 2)))) (setq g f f nil) (g)"), "(1 2)");
    }
    EXPECT_EQ(toText(kept), "(1 \"two\" (3.5))");
}

TEST(Embedding, ErrorsNamePlaceAndCalls)
{
    Bench bench;
    bench.interpreter.run("(defun broken ()\n (car 1))", "first.lsp");
    bench.interpreter.run("(defun fine () 1)", "second.lsp");
    const struct
    {
        const char *source;
        const char *report;
    } rows[] = {
        {"(defun inner (x)\n  (princ \"\")\n  (+ x\n     (progn 1)\n     \"a\"))\n(defun outer (y)\n  (inner y))\n\n"
         "(outer 5)\n",
         "bad argument type: numberp: \"a\" in (+), argument 3 (a.lsp:3)\n  in INNER, called at a.lsp:7\n"
         "  in OUTER, called at a.lsp:9"},
        {"\n\n(fine)(broken)",
         "bad argument type: listp 1 in (CAR), argument 1 (first.lsp:2)\n  in BROKEN, called at a.lsp:3"},
        {"(fine\n", "malformed list on input (a.lsp:1)"},
        {"(defun f ()\n1)\n(foreach x\n(progn (f)\n5) x)",
         "bad argument type: listp 5 in (FOREACH), argument 2 (a.lsp:3)"},
        {"(mapcar '(lambda (x) (car x)) '(1))",
         "bad argument type: listp 1 in (CAR), argument 1 (a.lsp:1)\n  in LAMBDA, called at a.lsp:1"},
    };
    for (const auto &row : rows)
        EXPECT_EQ(bench.interpreter.run(row.source, "a.lsp").error->report(), row.report);
    const Outcome outcome = bench.interpreter.run("(defun f (n) (if (= n 0) (car 1) (f (1- n)))) (f 100)");
    EXPECT_EQ(outcome.error->chain.size() + outcome.error->callsLeftOut, 101U);
    EXPECT_LT(outcome.error->chain.size(), 50U);
    bench.interpreter.define(
        "cancel", [](Arguments &) -> Value { throw Error::cancelled(); }, Arity::any());
    EXPECT_EQ(bench.interpreter.run("(cancel)").error->kind(), ErrorKind::Cancelled);
}

TEST(Embedding, SystemVariablesSayWhatProgramsDoNot)
{
    using Variables = std::vector<std::pair<const char *, double>>;
    const double quarterTurn = 1.5707963267948966;
    const std::tuple<Variables, const char *, const char *> rows[] = {
        {{{"LUNITS", 4}, {"LUPREC", 3}}, "(rtos 17.5)", "\"1'-5 1/2\\\"\""},
        {{{"LUPREC", 2}, {"DIMZIN", 8}}, "(rtos 2.5)", "\"2.5\""},
        {{{"DIMZIN", 8}}, "(rtos 2.0 2 4)", "\"2\""},
        {{{"DIMZIN", 12}}, "(rtos 0.5 2 4)", "\".5\""},
        {{{"DIMZIN", 1}}, "(rtos 6 4 2)", "\"0'-6\\\"\""},
        {{{"DIMZIN", 3}}, "(rtos 12 4 2)", "\"1'-0\\\"\""},
        {{{"AUNITS", 3}, {"AUPREC", 2}}, "(angtos 1.5)", "\"1.50r\""},
        {{{"ANGBASE", quarterTurn}}, "(angtos 0 0 0)", "\"270\""},
        {{{"ANGBASE", quarterTurn}, {"ANGDIR", 1}}, "(angtos 0 0 0)", "\"90\""},
        {{{"ANGBASE", quarterTurn}, {"ANGDIR", 1}}, "(angtof \"90\" 0)", "0.0"},
        {{{"LUNITS", 99}}, "(rtos 1 2 0)", "\"1\""},
    };
    for (const auto &[variables, source, expected] : rows) {
        Bench bench;
        for (const auto &[name, value] : variables)
            bench.console.variables[name] = Value::real(value);
        EXPECT_EQ(bench(source), expected) << source;
    }
}
