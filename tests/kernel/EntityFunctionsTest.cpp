#include "host/drawing/records/Entities.h"
#include "tests/kernel/Bench.h"
#include "tests/support/Texts.h"

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
    return ortakit::test::testText("kernel/odd/text.dxf");
}

TEST_F(Bench, ofAnOddFileOnlyWhatIsMeantChanges)
{
    const QByteArray pointer = "  8\n0\n347\nABC\n100\nAcDbText\n 10"; // a handle that leads nowhere
    // The size that programs see is not the file's.
    const QByteArray paragraph = ortakit::test::testText("kernel/odd/paragraph.tags");
    const struct
    {
        const char *what;
        QByteArray file;
        const char *change;
        QByteArray expected; ///< empty: the same
    } rows[] = {
        {"a list handed back", oddFile(), "(entmod (entget (entlast)))", {}},
        {"a paragraph's", oddFile().replace("  0\nENDSEC\n  0\nEOF", paragraph), "(entmod (entget (entlast)))", {}},
        {"a text's content", oddFile(), "(entmod (subst '(1 . \"Ho\") '(1 . \"Hi\") (entget (entlast))))",
         oddFile().replace("\nHi\n", "\nHo\n")},
        {"a colour", oddFile().replace("  8\n0\n100\nAcDbText\n 10", pointer),
         "(entmod (append (entget (entlast)) '((62 . 1))))",
         oddFile().replace("  8\n0\n100\nAcDbText\n 10", QByteArray(pointer).replace("ABC\n", "ABC\n 62\n1\n"))},
    };
    for (const auto &row : rows) {
        SCOPED_TRACE(row.what);
        ASSERT_TRUE(session.documents().open(write((std::string(row.what) + ".dxf").c_str(), row.file)));
        EXPECT_NE(lisp(row.change), "nil");
        const QByteArray expected = row.expected.isEmpty() ? row.file : row.expected;
        EXPECT_EQ(drawing().toBytes().toStdString(), expected.toStdString());
        EXPECT_EQ(document().isModified(), !row.expected.isEmpty());
        EXPECT_EQ(document().undoSteps().undo(), row.expected.isEmpty() ? 0 : 1);
        EXPECT_EQ(drawing().toBytes(), row.file);
    }
    ASSERT_TRUE(session.documents().open(path("a paragraph's.dxf")));
    lisp("(entmod (subst '(1 . \"Ho\") '(1 . \"Hi\") (entget (entlast))))");
    EXPECT_TRUE(drawing().toBytes().contains("\nHo\n"));
    EXPECT_FALSE(drawing().toBytes().contains("99.0")) << "the size of another text";
}

} // namespace
