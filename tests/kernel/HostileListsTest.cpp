// Lists of fields that no drawing may have in it: what of them is taken still makes a file that opens again, with the
// same records in it.

#include "host/drawing/records/Drawing.h"
#include "tests/kernel/Bench.h"

namespace {

using namespace host::drawing;

struct HostileCase
{
    const char *name;
    const char *expression;
    const char *expected; ///< null: whatever it is
};

const char *const makeRecord = "(setq r (dictadd (namedobjdict) \"R\" (entmakex '((0 . \"XRECORD\") (1 . \"a\")))))";
const char *const makeHostileText = "(setq e (entmakex '((0 . \"TEXT\") (10 0 0 0) (40 . 1) (1 . \"x\"))))";

const HostileCase cases[] = {
    {"structure as a type",
     "(vl-remove nil (mapcar '(lambda (type) (entmake (list (cons 0 type) '(100 . \"AcDbX\") '(8 . \"0\") '(10 0 0 "
     "0))))"
     " '(\"EOF\" \"eof \" \"SECTION\" \"EndSec\" \"TABLE\" \"ENDTAB\" \"ENDBLK\" \"SEQEND\" \"CLASS\" \"VERTEX\" "
     "\"ATTRIB\""
     " \"BLOCK_RECORD\" \"LAYOUT\" \"A\\nB\" \"A B\" \"\\t\" \"\")))",
     "nil"},
    {"structure as a type in a block",
     "(progn (entmake '((0 . \"BLOCK\") (2 . \"B1\") (70 . 0) (10 0 0 0)))"
     "(entmake '((0 . \"ENDTAB\") (100 . \"x\") (10 0 0 0))) (entmake '((0 . \"ENDBLK\"))))",
     "nil"},
    {"a block within a block",
     "(progn (entmake '((0 . \"BLOCK\") (2 . \"B2\") (70 . 0) (10 0 0 0)))"
     "(entmake '((0 . \"BLOCK\") (2 . \"B3\") (70 . 0) (10 0 0 0))) (entmake '((0 . \"ENDBLK\"))))",
     "\"B3\""},
    {"a second type", "(setq p (entmake '((0 . \"POINT\") (10 0 0 0) (0 . \"EOF\") (0 . \"ENDSEC\"))))", nullptr},
    {"a second type given to an entity",
     "(progn (setq e (entlast)) (entmod (list (cons -1 e) '(0 . \"EOF\") '(8 . \"0\") '(0 . \"EOF\"))) 0)", "0"},
    {"a comment", "(entmake '((0 . \"POINT\") (10 0 0 0) (999 . \"0\")))",
     "error: bad DXF group: (999 . \"0\") (not a group code of a record) in (ENTMAKE)"},
    {"a code that no reader takes", "(entmake '((0 . \"POINT\") (10 0 0 0) (1072 . 1)))",
     "error: bad DXF group: (1072 . 1) (not a group code of a record) in (ENTMAKE)"},
    {"a code below all", "(entmake '((0 . \"POINT\") (10 0 0 0) (-70000 . 1)))", nullptr},
    {"codes in extended data",
     "(mapcar '(lambda (item) (vl-catch-all-error-p (vl-catch-all-apply 'entmake (list (list '(0 . \"POINT\") "
     "'(10 0 0 0) (list -3 (list \"APP\" item)))))))"
     " '((0 . \"EOF\") (8 . \"0\") (1001 . \"B\") (1072 . 1) (999 . \"x\")))",
     "(T T T T T)"},
    {"line feeds and others in texts",
     "(entmake (list '(0 . \"TEXT\") '(10 0 0 0) '(40 . 1) (cons 1 \"a\\n  0\\nEOF\\r\\n\\t^J^\\033\\177\")"
     " (cons 8 \"L\\n0\\nENDSEC\") (list -3 (list \"A\\nB\" '(1000 . \"x\\ny\") '(1004 . \"0\\nEOF\")))))",
     nullptr},
    {"texts in place of numbers", "(entmake '((0 . \"POINT\") (10 0 0 0) (62 . \"1\\n0\\nEOF\")))",
     "error: bad DXF group: (62 . \"1\\n0\\nEOF\") (not a number) in (ENTMAKE)"},
    {"numbers that are none",
     "(vl-catch-all-error-p (vl-catch-all-apply 'entmake (list (list '(0 . \"POINT\") (list 10 (/ 1e308 1e-308) 0 "
     "0)))))",
     nullptr},
    {"handles of others",
     "(progn (entmake '((0 . \"LINE\") (5 . \"1\") (10 0 0 0) (11 1 0 0) (5 . \"2\")))"
     "(entmake '((0 . \"LAYER\") (2 . \"H\") (70 . 0) (5 . \"1\")))"
     "(entmake '((0 . \"DIMSTYLE\") (2 . \"H\") (70 . 0) (105 . \"1\") (5 . \"1\"))) 0)",
     nullptr},
    {"a handle given to an entity",
     "(progn (setq e (entlast)) (entmod (list (cons -1 e) '(5 . \"1\") '(5 . \"2\") '(8 . \"0\"))) 0)", "0"},
    {"names of table entries",
     "(progn (entmake '((0 . \"LAYER\") (2 . \"A\\n0\\nENDTAB\") (70 . 0) (6 . \"x\\ny\") (0 . \"ENDTAB\")))"
     "(entmake '((0 . \"STYLE\") (2 . \"\") (70 . 1) (3 . \"a\\n0\\nEOF\"))) (regapp \"A\\n0\\nEOF\") 0)",
     "0"},
    {"a second type given to a table entry",
     "(progn (setq e (tblobjname \"LAYER\" \"0\")) (entmod (append (entget e) '((0 . \"ENDTAB\") (5 . \"1\")))) 0)",
     "0"},
    {"an extension record",
     "(progn (setq r (entmakex '((0 . \"XRECORD\") (0 . \"EOF\") (1 . \"a\\n0\\nEOF\") (5 . \"1\") (310 . \"zz\\n\"))))"
     "(if r (entmod (list (cons -1 r) '(0 . \"XRECORD\") '(1 . \"b\") '(0 . \"EOF\") '(5 . \"7\") '(102 . \"{\\n\")))) "
     "0)",
     "0"},
    {"a dictionary's names",
     "(progn (if (namedobjdict) (dictadd (namedobjdict) \"a\\n0\\nEOF\" (entmakex '((0 . \"XRECORD\") (1 . \"a\"))))) "
     "0)",
     "0"},
    {"an INSERT that never ends",
     "(progn (entmake '((0 . \"INSERT\") (66 . 1) (2 . \"B3\") (10 0 0 0))) (entmake '((0 . \"POINT\") (10 1 1 1)))"
     "(entmake '((0 . \"SEQEND\"))))",
     "nil"},
};

/// What can be told of a drawing's records, in order.
std::vector<std::string> recordsOf(const Drawing &drawing)
{
    std::vector<std::string> records;
    for (RecordId id = drawing.first(); isValid(id); id = drawing.next(id)) {
        const RecordId parent = drawing.parent(id);
        records.push_back(std::to_string(int(drawing.kind(id))) + ' ' + drawing.handle(id).toHex().toStdString() +
                          " in " + (isValid(parent) ? drawing.typeName(parent).toByteArray().toStdString() : "") +
                          ": " + drawing.bytes(id).toByteArray().toStdString());
    }
    return records;
}

class HostileLists : public Bench, public testing::WithParamInterface<QByteArray>
{
};

TEST_P(HostileLists, leaveAFileThatOpensAgainWithTheSameRecords)
{
    if (!GetParam().isEmpty()) {
        const QString path = write("early.dxf", "0\nSECTION\n2\nHEADER\n" + GetParam() +
                                                    "0\nENDSEC\n0\nSECTION\n2\nENTITIES\n0\nPOINT\n8\n0\n10\n1\n20\n2\n"
                                                    "0\nENDSEC\n0\nEOF\n");
        ASSERT_TRUE(session.documents().open(path));
    }
    lisp(makeHostileText);
    lisp(makeRecord);
    for (const HostileCase &row : cases) {
        SCOPED_TRACE(row.name);
        const std::string result = lisp(row.expression);
        if (row.expected) {
            EXPECT_EQ(result, row.expected);
        }
        const ReadResult again = Drawing::fromBytes(drawing().toBytes());
        ASSERT_TRUE(again) << again.error.message().toStdString();
        EXPECT_EQ(recordsOf(*again.drawing), recordsOf(drawing()));
    }
}

INSTANTIATE_TEST_SUITE_P(
    versions, HostileLists,
    testing::Values(QByteArray(), QByteArray("9\n$ACADVER\n1\nAC1009\n9\n$HANDLING\n70\n0\n"),
                    QByteArray("9\n$ACADVER\n1\nAC1009\n9\n$HANDLING\n70\n1\n9\n$HANDSEED\n5\n20\n"),
                    QByteArray("9\n$ACADVER\n1\nAC1015\n9\n$DWGCODEPAGE\n3\nANSI_932\n")));

} // namespace
