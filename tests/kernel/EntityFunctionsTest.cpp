#include "host/drawing/records/Entities.h"
#include "tests/kernel/Bench.h"

#include <QFile>

namespace {

// An angle that a program read as radians and hands on is written with the digits it had.
TEST_F(Bench, anglesOfProgramsAreWrittenAsTheyWereMeant)
{
    for (int half = -719; half <= 720; half += 7) {
        const double degrees = half / 2.0;
        const std::string radians = "(* pi (/ " + std::to_string(degrees) + " 180))";
        lisp("(entmake (list '(0 . \"TEXT\") '(10 0 0 0) '(40 . 1) '(1 . \"a\") (cons 50 " + radians + ")))");
        EXPECT_EQ(drawing().tags(drawing().entities().all().back()).real(50), degrees);
    }
    lisp("(entmake '((0 . \"TEXT\") (10 0 0 0) (40 . 1) (1 . \"a\") (50 . 1.0)))");
    EXPECT_DOUBLE_EQ(drawing().tags(drawing().entities().all().back()).real(50), 57.29577951308232);
}

/// A small file with odd spelling that must survive what nobody meant to change.
QByteArray oddFile()
{
    return QByteArray(
        "  0\nSECTION\n  2\nHEADER\n  9\n$ACADVER\n  1\nAC1015\n  9\n$HANDSEED\n  5\nFF\n  0\nENDSEC\n"
        "  0\nSECTION\n  2\nTABLES\n  0\nTABLE\n  2\nLAYER\n 70\n1\n  0\nLAYER\n  2\n0\n 70\n0\n 62\n7\n"
        "  6\nCONTINUOUS\n  0\nENDTAB\n  0\nTABLE\n  2\nAPPID\n 70\n1\n  0\nAPPID\n  2\nOTHER\n"
        " 70\n0\n  0\nENDTAB\n  0\nENDSEC\n  0\nSECTION\n  2\nENTITIES\n"
        "  0\nTEXT\n  5\n2F\n100\nAcDbEntity\n  8\n0\n100\nAcDbText\n 10\n1.50\n 20\n2.5000\n 30\n0\n 40\n.5\n"
        "  1\nHi\n 50\n33.333333333333336\n100\nAcDbText\n"
        "1001\nOTHER\n1000\nkept\n  0\nENDSEC\n  0\nEOF\n");
}

class OddFile : public Bench
{
protected:
    OddFile() { session.documents().open(write("odd.dxf", oddFile())); }
};

TEST_F(OddFile, handingBackAListChangesNothing)
{
    const QByteArray before = drawing().toBytes();
    EXPECT_EQ(lisp("(null (entmod (entget (entlast))))"), "nil");
    EXPECT_EQ(drawing().toBytes(), before);
    EXPECT_FALSE(document().isModified());
    EXPECT_FALSE(document().undoSteps().canUndo());
}

// The size that programs see is not the file's.
TEST_F(OddFile, handingBackAParagraphChangesNothing)
{
    const QByteArray withParagraph =
        oddFile().replace("  0\nENDSEC\n  0\nEOF",
                          "  0\nMTEXT\n  5\n30\n100\nAcDbEntity\n  8\n0\n100\nAcDbMText\n 10\n1.50\n 20\n2\n 30\n"
                          "0\n 40\n.5\n  1\nHi\n 42\n99.0\n  0\nENDSEC\n  0\nEOF");
    session.documents().open(write("paragraph.dxf", withParagraph));
    EXPECT_EQ(lisp("(null (entmod (entget (entlast))))"), "nil");
    EXPECT_EQ(drawing().toBytes(), withParagraph);
    lisp("(entmod (subst '(1 . \"Ho\") (assoc 1 (entget (entlast))) (entget (entlast))))");
    EXPECT_TRUE(drawing().toBytes().contains("\nHo\n"));
    EXPECT_FALSE(drawing().toBytes().contains("99.0")) << "the size of another text";
}

TEST_F(OddFile, aChangeKeepsTheSpellingOfTheRest)
{
    lisp("(setq l (entget (entlast)))(entmod (subst '(1 . \"Ho\") (assoc 1 l) l))");
    QByteArray expected = oddFile();
    expected.replace("\nHi\n", "\nHo\n");
    EXPECT_EQ(drawing().toBytes().toStdString(), expected.toStdString());
    EXPECT_EQ(document().undoSteps().undo(), 1);
    EXPECT_EQ(drawing().toBytes().toStdString(), oddFile().toStdString());
}

TEST_F(OddFile, aHandleThatLeadsNowhereSurvives)
{
    const QByteArray withPointer =
        oddFile().replace("  8\n0\n100\nAcDbText\n 10", "  8\n0\n347\nABC\n100\nAcDbText\n 10");
    session.documents().open(write("pointer.dxf", withPointer));
    EXPECT_EQ(lisp("(null (entmod (append (entget (entlast)) '((62 . 1)))))"), "nil");
    EXPECT_TRUE(drawing().toBytes().contains("347\nABC\n"));
}

} // namespace
