#include "host/lisp/WildcardMatch.h"
#include "tests/lisp/LispBench.h"

using namespace host::lisp;
using namespace host::lisp::test;

TEST(Strings, WholeStrings)
{
    check({
        {"(strcat \"a\" \"\" \"bc\")", "\"abc\""},
        {"(strcat)", "\"\""},
        {"(strcat \"a\" 5)", "! bad argument type: stringp 5 in (STRCAT), argument 2"},
        {"(list (strlen \"abc\") (strlen) (strlen \"a\" \"bc\") (strlen \"äöü€\"))", "(3 0 3 4)"},
        {"(list (substr \"abcdef\" 2 3) (substr \"abc\" 2) (substr \"abc\" 9) (substr \"abc\" 1 0))",
         "(\"bcd\" \"bc\" \"\" \"\")"},
        {"(list (substr \"aäöüz\" 3 2) (substr \"äöü\" 2) (substr \"äöü\" 4))", "(\"öü\" \"öü\" \"\")"},
        {"(substr \"abc\" 0)", "! bad argument value: 0 in (SUBSTR), argument 2"},
        {"(list (strcase \"aBc\") (strcase \"aBc\" T) (strcase \"straße žluť я\") (strcase \"ÄŽЯ\" T))",
         "(\"ABC\" \"abc\" \"STRASSE ŽLUŤ Я\" \"äžя\")"},
        {"(list (strcase \"ÿ ά ς ı ệ ǆ \U00010428\") (strcase \"Ÿ Ά İ Ệ Ǆ \U00010400\" T))",
         "(\"Ÿ Ά Σ I Ệ Ǆ \U00010400\" \"ÿ ά i\u0307 ệ ǆ \U00010428\")"},
        {"(list (ascii \"A\") (ascii \"\") (ascii \"€\") (chr 65) (chr 8364) (chr 0))", "(65 0 8364 \"A\" \"€\" \"\")"},
        {"(chr -1)", "! bad argument value: -1 in (CHR), argument 1"},
        {"(chr 55296)", "! bad argument value: 55296 in (CHR), argument 1"},
        {"(vl-string->list \"Aä\")", "(65 228)"},
        {"(vl-list->string '(65 228 8364))", "\"Aä€\""},
        {"(list (vl-string-elt \"äb\" 1) (vl-string-elt \"äb\" 0))", "(98 228)"},
        {"(vl-string-elt \"ab\" 2)", "! bad argument value: 2 in (VL-STRING-ELT), argument 2"},
        {"(list (vl-string-trim \" \\t\" \"  a b \") (vl-string-left-trim \"x\" \"xxa\") "
         "(vl-string-right-trim \"äx\" \"axäx\") (vl-string-trim \"a\" \"aaa\"))",
         "(\"a b\" \"a\" \"a\" \"\")"},
        {"(vl-string-translate \"abä\" \"xyz\" \"aäbc\")", "\"xzyc\""},
    });
}

TEST(Strings, Searching)
{
    check({
        {"(list (vl-string-search \"b\" \"abcb\") (vl-string-search \"b\" \"abcb\" 2) (vl-string-search \"z\" \"a\"))",
         "(1 3 nil)"},
        {"(list (vl-string-search \"z\" \"äöz\") (vl-string-search \"z\" \"zäöz\" 1))", "(2 3)"},
        {"(vl-string-search \"a\" \"abc\" 4)", "! bad argument value: 4 in (VL-STRING-SEARCH), argument 3"},
        {"(list (vl-string-subst \"X\" \"b\" \"abab\") (vl-string-subst \"X\" \"b\" \"abab\" 2) "
         "(vl-string-subst \"X\" \"q\" \"abab\"))",
         "(\"aXab\" \"abaX\" \"abab\")"},
        {"(list (vl-string-position 98 \"abcb\") (vl-string-position 98 \"abcb\" 2) "
         "(vl-string-position 98 \"abcb\" 0 T) (vl-string-position 122 \"abc\"))",
         "(1 3 3 nil)"},
        {"(list (vl-string-mismatch \"abc\" \"abd\") (vl-string-mismatch \"ABC\" \"abd\" 0 0 T) "
         "(vl-string-mismatch \"xab\" \"ab\" 1 0))",
         "(2 2 2)"},
    });
}

TEST(Strings, Wildcards)
{
    const std::tuple<const char *, const char *, bool> rows[] = {
        {"Name", "N*", true},       {"Name", "n*", false},  {"Name", "???,~*m*", false},
        {"Nate", "???,~*m*", true}, {"", "", true},         {"", "*", true},
        {"a", "", false},           {"abc", "a*c", true},   {"abcd", "a*c", false},
        {"aXbXc", "a*X*c", true},   {"A1", "[A-C]#", true}, {"D1", "[A-C]#", false},
        {"x", "[~xyz]", false},     {"a", "[~xyz]", true},  {"-", "[a`-c]", true},
        {"b", "[a`-c]", false},     {"-", "[-a]", true},    {"]", "[`]]", true},
        {"a-b", "@.@", true},       {"ab", "@.", false},    {"ä", "@", true},
        {"ä", "?", true},           {"7", "@", false},      {"a,b", "a`,b", true},
        {"a", "b,a", true},         {"b", "~a,~b", true},   {"[x", "[x", true},
        {"*", "`*", true},          {"x", "`*", false},     {"~a", "`~a", true},
        {"5.5", "#.#", true},
    };
    for (const auto &[text, pattern, matches] : rows)
        EXPECT_EQ(wildcardMatch(text, pattern), matches) << text << "  " << pattern;
    check({
        {"(wcmatch \"A-LAYER\" \"A-*,B-*\")", "T"},
        {"(wcmatch 5 \"*\")", "! bad argument type: stringp 5 in (WCMATCH), argument 1"},
    });
}

TEST(Strings, ReadingAndPrinting)
{
    check({
        {"(read \"(1 (a . b) \\\"s\\\")\")", "(1 (A . B) \"s\")"},
        {"(list (read \"\") (read \"  ; only a comment\") (read \"a b\"))", "(nil nil A)"},
        {"(read \"(1\")", "! malformed list on input in (READ)"},
        {"(vl-princ-to-string '(\"a\\n\" 1.0))", "\"(a\\n 1.0)\""},
        {"(vl-prin1-to-string \"q\\\"\\\\\\t\")", "\"\\\"q\\\\\\\"\\\\\\\\\\\\t\\\"\""},
        {"(list 1e10 100000.0 1000000.0 0.00001 -0.5 123456.789)", "(1.0e+10 100000.0 1.0e+06 1.0e-05 -0.5 123457.0)"},
    });
}

TEST(Strings, OutputReachesTheConsole)
{
    Bench bench;
    bench("(princ \"a\\tb\") (prin1 \"c\\n\") (print 'd) (terpri) (prompt \"e\") (write-line \"f\") (write-char 8364)");
    EXPECT_EQ(bench.console.output, "a\tb\"c\\n\"\nD \nef\n€");
    EXPECT_EQ(bench("(princ)"), "");
    EXPECT_EQ(bench("(prompt 5)"), "! bad argument type: stringp 5 in (PROMPT), argument 1");
}

TEST(Strings, TypedInput)
{
    Bench bench;
    bench.console.typed = {"first line", "ä"};
    EXPECT_EQ(bench("(read-line)"), "\"first line\"");
    EXPECT_EQ(bench("(list (read-char) (read-char) (read-char) (read-line))"), "(228 10 nil nil)");
}
