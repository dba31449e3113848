#include "host/drawing/records/Blocks.h"
#include "host/drawing/records/Dictionaries.h"
#include "tests/kernel/Bench.h"

using namespace Qt::StringLiterals;

namespace {

constexpr auto names = "(progn (setq l nil b (tblnext \"BLOCK\" T)) (while b (setq l (cons (cdr (assoc 2 b)) l) b "
                       "(tblnext \"BLOCK\"))) (reverse l))";

constexpr auto emptyDrawing = "  0\nSECTION\n  2\nENTITIES\n  0\nENDSEC\n  0\nEOF\n";

class PurgeAndReference : public Bench
{
protected:
    PurgeAndReference()
    {
        lisp("(defun block (name inner) (entmake (list '(0 . \"BLOCK\") (cons 2 name) '(70 . 0) '(10 0.0 0.0 0.0))) "
             "(entmake '((0 . \"POINT\") (10 0.0 0.0 0.0))) (foreach i inner (insert i)) (entmake '((0 . "
             "\"ENDBLK\"))))");
        lisp("(defun insert (name) (entmake (list '(0 . \"INSERT\") (cons 2 name) '(10 0.0 0.0 0.0))))");
    }
};

TEST_F(PurgeAndReference, OnlyBlocksThatNothingNeedsGo)
{
    const struct
    {
        const char *what;
        const char *before;
        const char *pattern;
        const char *left;
    } rows[] = {
        {"one shown, one not", "(block \"A\" nil) (block \"B\" nil) (insert \"a\")", "*", "(\"A\")"},
        {"within what is shown", "(block \"A\" nil) (block \"B\" '(\"A\")) (insert \"B\")", "*", "(\"A\" \"B\")"},
        {"within what goes", "(block \"A\" nil) (block \"B\" '(\"A\"))", "*", "nil"},
        {"within what is not named", "(block \"A\" nil) (block \"B\" '(\"A\"))", "A", "(\"A\" \"B\")"},
        {"named by pattern", "(block \"A1\" nil) (block \"A2\" nil) (block \"B\" nil)", "a#", "(\"B\")"},
        {"a text and a layer of that name",
         "(block \"A\" nil) (entmake '((0 . \"TEXT\") (8 . \"A\") (1 . \"A\") "
         "(10 0.0 0.0 0.0) (40 . 1.0)))",
         "*", "nil"},
        {"an arrow of a dimension style",
         "(block \"A\" nil) (entmod (append (entget (tblobjname \"DIMSTYLE\" \"Standard\")) (list (cons 342 (cdr "
         "(assoc 330 (entget (tblobjname \"BLOCK\" \"A\"))))))))",
         "*", "(\"A\")"},
        {"extended data of an entity",
         "(block \"A\" nil) (regapp \"X\") (entmake (list '(0 . \"POINT\") '(10 0.0 0.0 0.0) (list -3 (list \"X\" "
         "(cons 1005 (cdr (assoc 5 (entget (tblobjname \"BLOCK\" \"A\")))))))))",
         "*", "(\"A\")"},
    };
    for (const auto &row : rows) {
        lisp("(command \"_.UNDO\" \"_Begin\")");
        lisp(row.before);
        lisp(std::string("(command \"_.-PURGE\" \"_Blocks\" \"") + row.pattern + "\" \"_No\")");
        EXPECT_EQ(lisp(names), row.left) << row.what;
        lisp("(command \"_.UNDO\" \"_End\")");
        lisp("(command \"_.UNDO\" 1)");
        EXPECT_EQ(lisp(names), "nil") << row.what;
    }
}

TEST_F(PurgeAndReference, NoObjectOfABlockStaysBehind)
{
    using namespace host::drawing;
    const auto objects = [this] { return drawing().children(drawing().sectionRecord(Section::Objects)).size(); };
    const auto before = objects();
    lisp("(block \"A\" nil)");
    Dictionaries &dictionaries = drawing().dictionaries();
    const RecordId block = drawing().blocks().find(u"A");
    for (const RecordId owner : {drawing().blocks().read(block).tableEntry, drawing().firstChild(block)}) {
        const RecordId extension = dictionaries.ensureExtensionDictionary(owner);
        dictionaries.setXrecord(dictionaries.ensureDictionary(extension, u"DATA"_s), u"X"_s, {{1, u"a"_s}});
    }
    EXPECT_EQ(objects(), before + 6);
    lisp("(command \"_.-PURGE\" \"_Blocks\" \"*\" \"_No\")");
    EXPECT_EQ(objects(), before);
    lisp("(command \"_.UNDO\" 1)");
    EXPECT_EQ(objects(), before + 6);
}

TEST_F(PurgeAndReference, EachNameIsConfirmedWhenWanted)
{
    lisp("(block \"A\" nil) (block \"B\" nil)");
    lisp("(command \"_.-PURGE\" \"_Blocks\" \"*\" \"_Yes\" \"_No\" \"_Yes\")");
    EXPECT_EQ(lisp(names), "(\"A\")");
}

TEST_F(PurgeAndReference, ReferencesAreAttachedAndTheirPathsChanged)
{
    lisp("(setq file \"" + write("site.dwg", emptyDrawing).toStdString() + "\")");
    lisp("(command \"_.-XREF\" \"_Attach\" file '(1.0 2.0 0.0) 2.0 3.0 90.0)");
    EXPECT_EQ(lisp("(list (= (cdr (assoc 1 (tblsearch \"BLOCK\" \"SITE\"))) file) (cdr (assoc 70 (tblsearch \"BLOCK\" "
                   "\"SITE\"))) (mapcar '(lambda (c) (cdr (assoc c (entget (entlast))))) '(2 10 41 42)))"),
              "(T 4 (\"site\" (1.0 2.0 0.0) 2.0 3.0))");
    lisp("(command \"_.-XREF\" \"_Path\" \"SI*\" \"d:/a b/site.dwg\")");
    EXPECT_EQ(lisp("(cdr (assoc 1 (tblsearch \"BLOCK\" \"site\")))"), "\"d:/a b/site.dwg\"");
    lisp("(block \"A\" nil) (setq last (entlast) other \"" + write("A.dwg", emptyDrawing).toStdString() + "\")");
    const struct
    {
        const char *call;
        const char *printed;
    } rows[] = {
        {"\"_Attach\" \"none.dwg\"", "Cannot find file \"none.dwg\"."},
        {"\"_Attach\" other", "The name \"A\" is a block's already."},
        {"\"_Path\" \"A\" \"x\"", "No matching references found."},
    };
    for (const auto &row : rows) {
        takePrinted();
        lisp(std::string("(command \"_.-XREF\" ") + row.call + ")");
        EXPECT_NE(takePrinted().find(row.printed), std::string::npos) << row.call;
        EXPECT_EQ(lisp("(equal last (entlast))"), "T");
    }
}

} // namespace
