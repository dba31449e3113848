#include "tests/lisp/LispBench.h"

using namespace host::lisp;
using namespace host::lisp::test;

TEST(Embedding, ExternalFunctionsComeAndGo)
{
    Bench bench;
    const auto shout = [](Arguments &args) { return Value::string(args.string(0) + "!"); };
    bench.interpreter.define("Dlg_Shout", shout, Arity::between(1, 2));
    EXPECT_TRUE(bench.interpreter.isDefined("DLG_SHOUT"));
    EXPECT_EQ(bench("(list (dlg_shout \"a\") (type dlg_shout) dlg_shout)"), "(\"a!\" EXRXSUBR <Subr: DLG_SHOUT>)");
    EXPECT_EQ(bench("(dlg_shout)"), "! too few arguments in (DLG_SHOUT)");
    EXPECT_EQ(bench("(dlg_shout 1)"), "! bad argument type: stringp 1 in (DLG_SHOUT), argument 1");
    bench.interpreter.undefine("dlg_shout");
    EXPECT_FALSE(bench.interpreter.isDefined("Dlg_Shout"));
    EXPECT_EQ(bench("(dlg_shout \"a\")"), "! no function definition: DLG_SHOUT");
    bench.interpreter.undefine("never_there");
}

TEST(Embedding, UndefineLeavesAProgramsOwnFunctionAlone)
{
    Bench bench;
    bench("(defun helper () 5)");
    bench.interpreter.undefine("helper");
    EXPECT_EQ(bench("(helper)"), "5");
}

TEST(Embedding, AFunctionMayBeUndefinedWhileItRuns)
{
    Bench bench;
    const std::string kept = "captured";
    bench.interpreter.define(
        "vanish",
        [kept](Arguments &args) {
            args.interpreter().undefine("vanish");
            args.interpreter().run("(setq vanish nil)");
            return Value::string(kept);
        },
        Arity::exactly(0));
    EXPECT_EQ(bench("(vanish)"), "\"captured\"");
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
    EXPECT_EQ(bench("(probe '(1 2.5))"), "(3.5 7 \"none\" nil)");
    EXPECT_EQ(bench("(probe '(1 2 3) 5 \"x\" 1)"), "(6.0 5 \"x\" T)");
    EXPECT_EQ(bench("(probe '(1 2) nil nil)"), "(3.0 7 \"none\" nil)");
    EXPECT_EQ(bench("(probe '(1 2 3 4))"), "! bad argument type: 2D/3D point: (1 2 3 4) in (PROBE), argument 1");
    EXPECT_EQ(bench("(probe '(1 2 . 3))"), "! bad argument type: 2D/3D point: (1 2 . 3) in (PROBE), argument 1");
    EXPECT_EQ(bench("(probe '(1 2) 1.5)"), "! bad argument type: fixnump: 1.5 in (PROBE), argument 2");
}

TEST(Embedding, InterpretersAreIndependent)
{
    Bench one;
    Bench other;
    one("(setq a 1) (defun f () 'one)");
    other("(setq a 2)");
    EXPECT_EQ(one("a"), "1");
    EXPECT_EQ(other("a"), "2");
    EXPECT_EQ(other("(f)"), "! no function definition: F");
    // One engine may run inside a function of another.
    one.interpreter.define(
        "ask", [&other](Arguments &args) { return Value::string(other(args.string(0))); }, Arity::exactly(1));
    EXPECT_EQ(one("(ask \"(car 5)\")"), "\"! bad argument type: listp 5 in (CAR), argument 1\"");
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
    const std::vector<const char *> sources = {
        "(while T)",
        "(while T (setq i 1))",
        "(repeat 2147483647)",
        "(defun f () (g)) (defun g () 1) (while T (vl-catch-all-apply 'f nil))",
        "(while T (vl-catch-all-apply '(lambda () (while T)) nil))",
        "(defun *error* (m) (while T)) (car 5)",
        "(setq a (list '+)) (while (apply 'list (list 1)))",
    };
    for (const char *source : sources) {
        Bench bench;
        bench.console.stopAtPoll = 3;
        const Outcome outcome = bench.interpreter.run(source);
        ASSERT_FALSE(outcome.ok()) << source;
        bench.console.stopAtPoll = 1'000'000'000;
        EXPECT_EQ(bench("(+ 1 2)"), "3") << source;
    }
}

TEST(Embedding, StoppingRunsTheErrorHandler)
{
    Bench bench;
    bench("(defun *error* (m) (setq seen m))");
    bench.console.stopAtPoll = 2;
    const Outcome outcome = bench.interpreter.run("(vl-catch-all-apply '(lambda () (while T)) nil)");
    EXPECT_EQ(outcome.error->kind(), ErrorKind::Interrupted);
    bench.console.stopAtPoll = 1'000'000'000;
    EXPECT_EQ(bench("seen"), "\"Function cancelled\"");
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
