// What must not bring the program down: depth, length, size.

#include "host/lisp/WildcardMatch.h"
#include "tests/lisp/LispBench.h"

using namespace host::lisp;
using namespace host::lisp::test;

static std::string repeated(std::string_view text, std::size_t count)
{
    std::string result;
    result.reserve(text.size() * count);
    for (std::size_t i = 0; i < count; ++i)
        result += text;
    return result;
}

TEST(Robustness, DeepCallsEndInAnError)
{
    const std::vector<const char *> sources = {
        "(defun f (n) (1+ (f n))) (f 1)",
        "(defun f (n) (if n (cond (n (progn (f n)))))) (f 1)",
        "(defun f (n) (mapcar 'f (list n))) (f 1)",
        "(defun f (a b) (vl-sort '(1 2) 'f)) (f 1 2)",
        "(defun f () (eval '(f))) (f)",
        "(defun f () (apply 'f nil)) (f)",
        "(setq x '(progn (eval x))) (eval x)",
        "(defun f (/ a b c d e f g h) (f)) (defun f2 (/ a b c d e) (f2)) (f2)",
    };
    for (const char *source : sources) {
        Bench bench;
        const Outcome outcome = bench.interpreter.run(source);
        ASSERT_FALSE(outcome.ok()) << source;
        EXPECT_EQ(outcome.error->kind(), ErrorKind::StackOverflow) << source;
        EXPECT_EQ(bench("(+ 1 2)"), "3");
    }
}

TEST(Robustness, StackOverflowIsCaughtLikeAnyError)
{
    Bench bench;
    EXPECT_EQ(bench("(defun f () (1+ (f))) (vl-catch-all-error-message (vl-catch-all-apply 'f nil))"),
              "\"stack overflow\"");
    EXPECT_EQ(bench("(defun depth (n) (if (> n 0) (1+ (depth (1- n))) 0)) (depth 2000)"), "2000");
}

TEST(Robustness, LongListsAreFreedPrintedAndCompared)
{
    Bench bench;
    EXPECT_EQ(bench("(setq l nil) (repeat 300000 (setq l (cons 1 l))) (length l)"), "300000");
    EXPECT_EQ(bench("(equal l (reverse l))"), "T");
    EXPECT_EQ(bench("(strlen (vl-princ-to-string l))"), "600001");
    EXPECT_EQ(bench("(apply '+ l)"), "300000");
    EXPECT_EQ(bench("(length (vl-sort l '<))"), "300000");
    EXPECT_EQ(bench("(setq l nil)"), "nil");
}

TEST(Robustness, DeepListsAreFreedPrintedAndCompared)
{
    Bench bench;
    bench("(setq a nil b nil) (repeat 300000 (setq a (list a) b (list b)))");
    EXPECT_EQ(bench("(equal a b)"), "T");
    EXPECT_EQ(bench("(strlen (vl-princ-to-string a))"), "600003");
    // Deep on both sides of each pair, and through function objects.
    bench("(setq t1 nil) (repeat 200000 (setq t1 (cons (list t1) (list 1 t1)))) nil");
    bench("(setq a nil b nil t1 nil)");
    bench("(setq f nil) (repeat 100000 (setq f (eval (list 'lambda nil f)))) (setq f nil)");
    EXPECT_EQ(bench("(+ 1 2)"), "3");
}

TEST(Robustness, ListsThatHoldEachOtherManyTimes)
{
    Bench bench;
    bench("(setq a nil b nil) (repeat 200 (setq a (list a a) b (list b b))) nil");
    EXPECT_EQ(bench("(princ a)"), "! string too long in (PRINC)");
    EXPECT_EQ(bench("(strlen (vl-princ-to-string a))"), "! string too long in (VL-PRINC-TO-STRING)");
    EXPECT_LT(bench("(+ 1 a)").size(), 400U);
    EXPECT_LT(bench("(a)").size(), 400U);
    bench.console.stopAtPoll = bench.console.polls + 10;
    EXPECT_EQ(bench("(equal a b)"), "! Function cancelled");
}

TEST(Robustness, MillionsOfParentheses)
{
    Bench bench;
    const std::size_t depth = 1'000'000;
    const std::string open = repeated("(", depth);
    const std::string close = repeated(")", depth);
    EXPECT_EQ(bench(open), "! malformed list on input");
    EXPECT_EQ(bench(close), "! extra right paren on input");
    EXPECT_EQ(bench("'" + open + close).size(), 2 * depth + 1);
    EXPECT_EQ(bench(repeated("(+ 1 ", depth) + "1" + close), "! stack overflow");
    EXPECT_EQ(bench(repeated("(progn ", depth) + close), "! stack overflow");
    EXPECT_EQ(bench("(length (quote (" + repeated("'", depth) + "a)))"), "1");
    EXPECT_EQ(bench(repeated("(", 3 * depth)), "! lists nested too deeply on input");
}

TEST(Robustness, ManyArguments)
{
    Bench bench;
    EXPECT_EQ(bench("(+ " + repeated("1 ", 100'000) + ")"), "100000");
    EXPECT_EQ(bench("(+ " + repeated("1 ", 2'000'000) + ")"), "! stack overflow");
    EXPECT_EQ(bench("(+ 1 2)"), "3");
}

TEST(Robustness, StringsHaveALimit)
{
    TestConsole console;
    Settings settings;
    settings.longestString = 1'000'000;
    Interpreter interpreter(console, settings);
    const Outcome outcome = interpreter.run("(setq s \"xx\") (while T (setq s (strcat s s)))");
    EXPECT_EQ(outcome.error->message(), "string too long");
}

TEST(Robustness, TheHeapHasALimit)
{
    constexpr std::int64_t megabyte = 1024 * 1024;
    // What a program keeps in l until nothing more can be had.
    const std::vector<const char *> sources = {
        "(while t (setq l (cons 1 l)))",
        "(setq l \"xxxxxxxx\") (while t (setq l (strcat l l)))",
        "(while t (setq l (cons (strcat \"a long enough text \" \"and more\") l)))",
        "(setq i 0) (repeat 10000000 (read (strcat \"symbol\" (itoa (setq i (1+ i))))))",
        "(setq i 0) (while t (setenv (itoa (setq i (1+ i))) \"value\"))",
        "(setq i 0) (while t (set (read (strcat \"v\" (itoa (setq i (1+ i))))) (list i)))",
        "(setq s \"xxxxxxxx\") (repeat 17 (setq s (strcat s s))) (setq l (vl-string->list s))",
        "(setq l (list 1)) (while t (setq l (append l l)))",
        "(while t (setq l (eval (list 'lambda '(a b c) l))))",
        "(while t (setq l (cons (ssadd) l)))",
        "(defun f (n) (cons n (f (1+ n)))) (repeat 2 (vl-catch-all-apply 'f '(1))) (while t (setq l (cons l l)))",
    };
    const std::int64_t before = Heap::used();
    for (const char *source : sources) {
        SCOPED_TRACE(source);
        Bench bench;
        bench.console.heap = Heap::used() + 8 * megabyte;
        const std::string message = "out of memory (limit " + std::to_string(bench.console.heap / megabyte) + " MB)";
        bench("(defun *error* (m) (setq said m held (if (listp l) (length (list 1 2 3)) 3)))");
        const std::int64_t atStart = Heap::used();
        EXPECT_NE(bench(source).find("! " + message), std::string::npos);
        EXPECT_LT(Heap::used(), bench.console.heap + 5 * megabyte);
        EXPECT_EQ(bench("said"), '"' + message + '"');
        EXPECT_EQ(bench("held"), "3") << "*error* has room to work";
        EXPECT_EQ(bench("(setq l nil s nil) (repeat 1000 (setq l (cons 1 l))) (length l)"), "1000");
        EXPECT_LE(Heap::used(), bench.console.heap + megabyte);
        EXPECT_GE(Heap::used(), atStart);
    }
    EXPECT_EQ(Heap::used(), before) << "what goes is given back";
}

TEST(Robustness, AFullHeapIsCaughtLikeAnyError)
{
    Bench bench;
    bench.console.heap = Heap::used() + 4 * 1024 * 1024;
    EXPECT_EQ(bench("(defun fill () (while t (setq l (cons 1 l))))"
                    "(setq e (vl-catch-all-apply 'fill nil)) (setq n (> (length l) 10000) l nil)"
                    "(list (vl-catch-all-error-p e) n (length (list 1 2)))"),
              "(T T 2)");
}

TEST(Robustness, PatternsTakeLimitedTime)
{
    const std::string text = repeated("a", 20'000);
    EXPECT_FALSE(wildcardMatch(text, repeated("*a", 200) + "b"));
    EXPECT_TRUE(wildcardMatch(text, repeated("*", 20'000)));
    EXPECT_FALSE(wildcardMatch("x", repeated("[", 200'000)));
}

TEST(Robustness, HostileTextEndsInAnAnswer)
{
    const std::vector<std::string> sources = {
        std::string("\0(+ 1 2)\0", 9),
        "\x1A",
        "(\xC3\x28 \xFF)",
        "\"\\U+D800\\U+\\777\"",
        "(setq nil 5)",
        "(nil)",
        "((((",
        "'",
        "(quote)",
        "(quote . 1)",
        "(+ . 5)",
        "(if . 1)",
        "(defun f)",
        "(defun f 5)",
        "(lambda 5)",
        "(foreach)",
        "(setq a . 5)",
        "(cond . 5)",
        "(mapcar 'car 5)",
        "(apply 'car 5)",
        "(apply '(lambda) nil)",
        "(apply '(nil) nil)",
        "(eval '(nil))",
        "((nil))",
        "(while)",
        "(rtos 1e308 4 8)",
        "(rtos -1e308 3 8)",
        "(angtos 1e308)",
        "(lsh 1 -33)",
        "(substr \"a\" 2147483647 2147483647)",
        "(chr 2147483647)",
        "(ssname (ssadd) 1e300)",
        "(wcmatch \"\" \"[\")",
        "(polar '(1 1) 1e308 1e308)",
        "(inters '(0 0) '(0 0) '(0 0) '(0 0))",
        "(fix (expt 10.0 308))",
        "(rtos (expt 10.0 308) 1)",
        "(boole -1 1 1)",
        "(repeat 2 . 5)",
    };
    for (const std::string &source : sources) {
        Bench bench;
        bench(source);
        EXPECT_EQ(bench("(+ 1 2)"), "3") << source;
    }
}
