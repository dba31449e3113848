#include "tests/kernel/Bench.h"

namespace {

TEST_F(Bench, linetypesAreLoadedFromAFile)
{
    const QString file =
        write("my.lin", "*DASH,first\nA,1,-1\n*DOTS,. .\nA,0,-1\n*BAD,b\nA,one\n*dash,second\nA,2,-2\n");
    lisp("(setq file \"" + file.toStdString() + "\")");
    const auto value = [&](const char *name, const char *code) {
        return lisp(std::string("(cdr (assoc ") + code + " (tblsearch \"LTYPE\" \"" + name + "\")))");
    };
    const struct
    {
        const char *what;
        const char *call;
        const char *printed;
        const char *dashLength; ///< of DASH, after the call
    } rows[] = {
        {"no such file", "(command \"_.-LINETYPE\" \"_Load\" \"DASH\" \"none.lin\" \"\")",
         "Cannot read linetype file \"none.lin\".", "nil"},
        {"no such linetype", "(command \"_.-LINETYPE\" \"_Load\" \"NONE\" file \"\")", "No matching linetypes found.",
         "nil"},
        {"cannot be read", "(command \"_.-LINETYPE\" \"_L\" \"BAD\" file \"\")",
         "Linetype \"BAD\" not loaded: \"one\" is no length.", "nil"},
        {"the first of a name", "(command \"_.-LINETYPE\" \"_Load\" \"D*\" file \"\")", "Linetype \"DOTS\" loaded.",
         "2.0"},
        {"kept",
         "(entmod (subst '(40 . 9.0) (assoc 40 (setq d (entget (tblobjname \"LTYPE\" \"DASH\")))) d))"
         "(command \"_.-LINETYPE\" \"_Load\" \"dash\" file \"_No\" \"\")",
         "already loaded. Reload it?", "9.0"},
        {"read anew", "(command \"_.-LINETYPE\" \"_Load\" \"dash\" file \"_Yes\" \"_Set\" \"DASH\" \"\")",
         "Linetype \"DASH\" loaded.", "2.0"},
    };
    for (const auto &row : rows) {
        takePrinted();
        lisp(row.call);
        EXPECT_NE(takePrinted().find(row.printed), std::string::npos) << row.what;
        EXPECT_EQ(value("DASH", "40"), row.dashLength) << row.what;
    }
    EXPECT_EQ(lisp("(getvar \"CELTYPE\")"), "\"DASH\"");
}

} // namespace
