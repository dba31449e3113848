// What must not bring the program down: depth, length, size.

#include "host/lisp/Reader.h"
#include "host/lisp/WildcardMatch.h"
#include "tests/lisp/LispBench.h"

using namespace host::lisp;
using namespace host::lisp::test;

namespace {

std::string repeatedText(std::string_view text, std::size_t count)
{
    std::string result;
    result.reserve(text.size() * count);
    for (std::size_t i = 0; i < count; ++i)
        result += text;
    return result;
}

/// With a sixth of the stack that programs have, unwinding which is what takes time.
Settings smallStack()
{
    Settings settings;
    settings.stackBudget = 1024 * 1024;
    return settings;
}

TEST(Robustness, DeepCallsEndInAnError)
{
    const char *const sources[] = {
        "(defun f (n) (1+ (f n))) (f 1)",
        "(defun f (n) (if n (cond (n (progn (f n)))))) (f 1)",
        "(defun f (n) (mapcar 'f (list n))) (f 1)",
        "(defun f (a b) (vl-sort '(1 2) 'f)) (f 1 2)",
        "(defun f () (eval '(f))) (f)",
        "(defun-q f (n) (f n)) (f 1)",
        "(defun g (/ n) (f 1)) (defun-q f (n) (g)) (g)",
        "(defun f () (apply 'f nil)) (f)",
        "(setq x '(progn (eval x))) (eval x)",
        "(defun f (/ a b c d e f g h) (f)) (defun f2 (/ a b c d e) (f2)) (f2)",
    };
    for (const char *source : sources) {
        SCOPED_TRACE(source);
        Bench bench(source == sources[0] ? Settings() : smallStack());
        const Outcome outcome = bench.interpreter.run(source);
        ASSERT_FALSE(outcome.ok());
        EXPECT_EQ(outcome.error->kind(), ErrorKind::StackOverflow);
        EXPECT_EQ(bench("(+ 1 2)"), "3");
    }
    Bench bench;
    EXPECT_EQ(bench("(defun depth (n) (if (> n 0) (1+ (depth (1- n))) 0)) (depth 100000)"), "100000");
    EXPECT_EQ(bench("(defun sum (l) (if l (+ (car l) (sum (cdr l))) 0)) (setq l nil) (repeat 100000 (setq l (cons 1 "
                    "l))) (sum l)"),
              "100000");
    EXPECT_EQ(bench("(apply 'depth '(100000))"), "100000");
    bench.interpreter.setCompiling(false);
    EXPECT_EQ(bench("(depth 2000)"), "2000");
}

TEST(Robustness, LongAndDeepListsAreFreedPrintedAndCompared)
{
    Bench bench;
    bench.check({
        {"(setq l nil) (repeat 200000 (setq l (cons 1 l))) (length l)", "200000"},
        {"(equal l (reverse l))", "T"},
        {"(list (strlen (vl-princ-to-string l)) (apply '+ l) (length (vl-sort l '<)))", "(400001 200000 200000)"},
        {"(setq l nil a nil b nil) (repeat 200000 (setq a (list a) b (list b)))(equal a b)", "T"},
        {"(strlen (vl-princ-to-string a))", "400003"},
        // Deep on both sides of each pair, and through function objects.
        {"(setq a nil b nil) (repeat 100000 (setq a (cons (list a) (list 1 a)))) (setq a nil)", "nil"},
        {"(setq f nil) (repeat 50000 (setq f (eval (list 'lambda nil f)))) (setq f nil)", "nil"},
    });
}

TEST(Robustness, StringsHaveALimit)
{
    Settings settings;
    settings.longestString = 1'000'000;
    Bench bench(settings);
    EXPECT_EQ(bench("(setq s \"xx\") (while T (setq s (strcat s s)))"), "! string too long in (STRCAT)");
    bench("(setq a nil b nil) (repeat 200 (setq a (list a a) b (list b b))) nil");
    EXPECT_EQ(bench("(princ a)"), "! string too long in (PRINC)");
    EXPECT_EQ(bench("(strlen (vl-princ-to-string a))"), "! string too long in (VL-PRINC-TO-STRING)");
    EXPECT_LT(bench("(+ 1 a)").size(), 400U);
    EXPECT_LT(bench("(a)").size(), 400U);
    bench.console.stopAtPoll = bench.console.polls + 10;
    EXPECT_EQ(bench("(equal a b)"), "! Function cancelled");
}

TEST(Robustness, ParenthesesAndArgumentsWithoutNumber)
{
    Bench bench(smallStack());
    const std::size_t depth = 200'000; // a stack of 8 MB has 40 bytes for each
    const std::string open = repeatedText("(", depth);
    const std::string close = repeatedText(")", depth);
    EXPECT_EQ(bench(open), "! malformed list on input");
    EXPECT_EQ(bench(close), "! extra right paren on input");
    EXPECT_EQ(bench("'" + open + close).size(), 2 * depth + 1);
    EXPECT_EQ(bench(repeatedText("(+ 1 ", depth) + "1" + close), "! stack overflow");
    EXPECT_EQ(bench(repeatedText("(progn ", depth) + close), "! stack overflow");
    EXPECT_EQ(bench("(length (quote (" + repeatedText("'", depth) + "a)))"), "1");
    EXPECT_EQ(bench(repeatedText("(", Reader::maxNesting + 1)), "! lists nested too deeply on input");
    EXPECT_EQ(bench("(+ " + repeatedText("1 ", 100'000) + ")"), "100000");
    EXPECT_EQ(bench("(+ " + repeatedText("1 ", 600'000) + ")"), "! stack overflow");
    EXPECT_EQ(bench("(+ 1 2)"), "3");
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

TEST(Robustness, HostilePatternsAndTextEndInAnAnswer)
{
    const std::string text = repeatedText("a", 20'000);
    EXPECT_FALSE(wildcardMatch(text, repeatedText("*a", 200) + "b"));
    EXPECT_TRUE(wildcardMatch(text, repeatedText("*", 20'000)));
    EXPECT_FALSE(wildcardMatch("x", repeatedText("[", 200'000)));
    const std::string hostile[] = {std::string("\0(+ 1 2)\0", 9), "\x1A", "(\xC3\x28 \xFF)", "\"\\U+D800\\U+\\777\""};
    for (const std::string &source : hostile) {
        Bench bench;
        bench(source);
        EXPECT_EQ(bench("(+ 1 2)"), "3");
    }
}

} // namespace
