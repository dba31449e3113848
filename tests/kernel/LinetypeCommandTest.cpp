#include "host/drawing/references/ShapeFiles.h"
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

TEST_F(Bench, shapesArePlacedFromALoadedFile)
{
    const QString file = write("signs.shp", "*1,2,BOX\n010,0\n");
    lisp("(setq file \"" + file.toStdString() +
         "\" n (lambda () (length (vl-remove-if-not '(lambda (x) (equal x "
         "'(0 . \"SHAPE\"))) (entget (cond ((entlast)) ((tblobjname \"LAYER\" \"0\"))))))))");
    const struct
    {
        const char *call;
        const char *printed;
        const char *shapes; ///< whether the last entity is a shape
    } rows[] = {
        {"(command \"_.SHAPE\" \"BOX\")", "Cannot find shape \"BOX\". Load its file first.", "0"},
        {"(command \"_.LOAD\" \"none\")", "Cannot read shape file \"none\".", "0"},
        {"(command \"_.LOAD\" file \"_.LOAD\" file \"_.SHAPE\" \"box\" '(1 2) 0.0)", "", "0"},
        {"(command \"_.SHAPE\" \"box\" '(1 2) \"\" \"90\")", "", "1"},
    };
    for (const auto &row : rows) {
        takePrinted();
        lisp(row.call);
        EXPECT_NE(takePrinted().find(row.printed), std::string::npos) << row.call;
        EXPECT_EQ(lisp("(n)"), row.shapes) << row.call;
    }
    EXPECT_EQ(lisp("(mapcar '(lambda (c) (cdr (assoc c (entget (entlast))))) '(10 40 2))"),
              "((1.0 2.0 0.0) 1.0 \"BOX\")");
    EXPECT_EQ(host::drawing::shapeFileNames(drawing()), QStringList{file}) << "one style";
}

} // namespace
