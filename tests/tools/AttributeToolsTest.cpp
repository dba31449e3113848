// Texts of attributes to tables in files and back.

#include "tests/support/QtTestPrinters.h"
#include "tests/tools/ToolRun.h"

#include <QDir>
#include <QFile>

#include <gtest/gtest.h>

using namespace tools_test;
using namespace Qt::StringLiterals;

namespace {

class AttributeTools : public ToolTest
{
protected:
    /// (full name layer '((tag . text) ...)) makes a reference, the first one 3A; (texts) gives all texts, by
    /// references.
    const QString helpers =
        u"lisp (foreach name '(\"A\" \"B\") (entmake (list '(0 . \"BLOCK\") (cons 2 name) '(70 . 0) '(10 0.0 0.0 "
        u"0.0))) "
        "(entmake '((0 . \"POINT\") (8 . \"0\") (10 0.0 0.0 0.0))) (entmake '((0 . \"ENDBLK\"))))\n"
        "lisp (entmake '((0 . \"LAYER\") (2 . \"SHUT\") (70 . 4) (62 . 7) (6 . \"Continuous\")))\n"
        "lisp (defun full (name layer texts) (entmake (list '(0 . \"INSERT\") '(66 . 1) (cons 8 layer) (cons 2 name) "
        "'(10 3.0 4.0 0.0))) (foreach text texts (entmake (list '(0 . \"ATTRIB\") '(8 . \"0\") (cons 2 (car text)) "
        "(cons 1 (cdr text)) '(10 0.0 0.0 0.0) '(40 . 1.0) '(70 . 0)))) (entmake '((0 . \"SEQEND\"))))\n"
        "lisp (defun texts () (mapcar '(lambda (i) (mapcar '(lambda (a) (kora_attribute_text (entget a))) "
        "(kora_attributes i))) (kora_space_inserts)))\n"_s;
    /// Three references, 3F, 44 and 49.
    const QString three = u"lisp (full \"A\" \"0\" '((\"X\" . \"one\") (\"Y\" . \"why\") (\"x\" . \"two\")))\n"
                          "lisp (full \"A\" \"0\" '((\"X\" . \"eins\") (\"Y\" . \"y\") (\"X\" . \"zwei\")))\n"
                          "lisp (full \"B\" \"SHUT\" '((\"X\" . \"shut\")))\n"_s;
    const QString exported =
        u"command EXPORTBLOCKATTRIBUTES\nselect all\nenter\nfile %1\nexpect-printed \" written to \"\n"_s.arg(
            run.path(u"table.txt"_s));
    static QString imported(const QString &file, const QString &said)
    {
        return u"command IMPORTBLOCKATTRIBUTES\ndialog Dlg_QT_ImportBlockAttributes\nclick selectfile\nfile %1\n"
               "click selectAll\nclick acceptButton\nexpect-printed \"%2.\"\n"_s.arg(file, said);
    }
};

TEST_F(AttributeTools, RowsChangeTheAttributesThatTheyNameAndNoOthers)
{
    const QString refusal = u" refused, of another drawing, with a changed handle or one that another row has"_s;
    const struct
    {
        const char *what;
        QByteArray file;
        QString said;
        const char *texts; ///< of the first reference where another is not said
    } rows[] = {
        {"equal tags have columns of their own", "HANDLE\tBLOCKNAME\tX\tX(2)\n'3F\tA\tuno\t2\n",
         u"2 attributes of 1 block reference changed"_s, "(\"uno\" \"why\" \"2\")"},
        {"columns in another order, some gone, handles without their mark",
         "x(2)\tBlockname\tNO\tHandle\n2\ta\tno\t3f\n", u"1 attribute of 1 block reference changed"_s,
         "(\"one\" \"why\" \"2\")"},
        {"blank rows and remarks",
         "HANDLE\tBLOCKNAME\tX\n\n# all doors ^ of the house\n'3F\tA\tuno\n\t\t\n \n;bad\tA\tno^no\nADD\n",
         u"1 attribute of 1 block reference changed, 3 without their block reference"_s, "(\"uno\" \"why\" \"two\")"},
        {"short rows", "HANDLE\tBLOCKNAME\tX\tX(2)\n'3F\tA\tuno\n", u"1 attribute of 1 block reference changed"_s,
         "(\"uno\" \"why\" \"two\")"},
        {"tabs, line ends and dividing signs", "HANDLE\tBLOCKNAME\tX\n'3F\tA\t\"a^b\tc\\\"\"d\r\ne\"\n",
         u"1 attribute of 1 block reference changed"_s, "(\"a^b\\tc\\\\\\\"d\\ne\" \"why\" \"two\")"},
        {"bytes that are no UTF-8", "HANDLE\tBLOCKNAME\tX\n'3F\tA\tT\xFCr\n",
         u"1 attribute of 1 block reference changed"_s, "(\"T\\U+00FCr\" \"why\" \"two\")"},
        {"a handle that is there twice", "HANDLE\tBLOCKNAME\tX\n'3F\tA\tuno\n'3f\tA\tdue\n'44\tA\teins\n",
         u"0 attributes of 0 block references changed, 2"_s + refusal, "(\"one\" \"why\" \"two\")"},
        {"a changed handle of the same block", "HANDLE\tBLOCKNAME\tX\tROW KEY\n'3F\tA\tno\tILCA\n",
         u"0 attributes of 0 block references changed, 1"_s + refusal, "(\"one\" \"why\" \"two\")"},
        {"a mark in place of the block's name", "HANDLE\tX\tROW KEY\n'3F\tuno\tNLCA\n",
         u"1 attribute of 1 block reference changed"_s, "(\"uno\" \"why\" \"two\")"},
        {"another block's reference", "HANDLE\tBLOCKNAME\tX\n'3F\tB\tno\n",
         u"0 attributes of 0 block references changed, 1 without their block reference"_s, "(\"one\" \"why\" \"two\")"},
        {"a locked layer", "HANDLE\tBLOCKNAME\tX\n'49\tB\tno\n'3F\tA\tuno\n",
         u"1 attribute of 1 block reference changed, 1 on locked layers left as they were"_s,
         "(\"uno\" \"why\" \"two\")"},
        {"nothing that names a reference", "HANDLE\tX\n'3F\tno\n",
         u"The file is no table of attributes: its headings are HANDLE, BLOCKNAME and tags"_s,
         "(\"one\" \"why\" \"two\")"},
    };
    for (const auto &row : rows) {
        SCOPED_TRACE(row.what);
        QDir(run.path(u"out"_s)).removeRecursively();
        plays(helpers + three + imported(run.writeFile(u"in.txt"_s, row.file), row.said) +
              u"expect-lisp (equal (texts) '(%1 (\"eins\" \"y\" \"zwei\") (\"shut\")))\n"_s.arg(
                  QLatin1StringView(row.texts)));
        EXPECT_TRUE(isSound(run.result(plan)));
    }
}

TEST_F(AttributeTools, ASpreadsheetGivesTextsBackAsTheyWere)
{
    const QString texts =
        u"lisp (foreach text '(\"a text\" \"7\" \"3/4\" \"1E5\" \"=1+1\" \"\\\"quoted\\\"\" \"3\\\"\" \"\" "
        "\" two  blanks \" \"'7\" \"''\" \"tis '\" \"<>\" \"TRUE\" \"wahr\" \"tab\\tin\" \"line 1\\nline 2\" "
        "\"cr\\r\\nlf\" \"-\" \"+1\" \"@x\" \"T\\U+00FCr \\U+20AC\" \"10.5.2024\" \"May 5\" \"007\" \"1,5\" "
        "\"a^b\\\\Pc\" \"12:30\" \"50%\" \"#N/A\") (full \"A\" \"0\" (list (cons \"X\" text) (cons \"1E5\" \"y\") "
        "(cons "
        "\"X\" (strcat text \" again\")) (cons \"HANDLE\" text))))\n"_s;
    // What EXPORTBLOCKATTRIBUTES writes of these, opened in LibreOffice and saved as text with tabs, all texts quoted.
    const QString saved = qEnvironmentVariable("ORTAKIT_SOURCE") + u"/tests/tools/data/attributes-by-libreoffice.txt"_s;
    plays(helpers + texts + exported +
          imported(run.path(u"table.txt"_s), u"0 attributes of 0 block references changed"_s) +
          imported(saved, u"0 attributes of 0 block references changed"_s) +
          u"lisp (setq before (texts))\n"
          "lisp (foreach insert (kora_space_inserts) (foreach attribute (kora_attributes insert) "
          "(kora_set_attribute attribute \"gone\")))\n"_s +
          imported(saved, u"120 attributes of 30 block references changed"_s) +
          u"expect-lisp (equal (mapcar '(lambda (row) (mapcar 'kora:with_line_feeds row)) before) (texts))\n"_s);
    EXPECT_TRUE(isSound(run.result(plan)));
}

// A paragraph that is embedded in the attribute, and the record that drawings before 2018 have in its place.
TEST_F(AttributeTools, SeveralLinesTravelWholeAndChangeWhole)
{
    const QString drawing = run.path(u"lines.dxf"_s);
    const QByteArray cell = "\"'first\nsecond {\\Hx2;big} \\\\Path\"";
    const QString table = run.path(u"table.txt"_s);
    for (const auto &[version, marker] : {std::pair(u"R2010"_s, u"100\\nAcDbXrecord\\n 70\\n2\\n  2\\nNOTE\\n"_s),
                                          {u"R2018"_s, u"101\\nEmbedded Object\\n 40\\n2.5\\n"_s}}) {
        SCOPED_TRACE(version.toStdString());
        runPython(
            {u"-c"_s,
             u"import sys, ezdxf\nd = ezdxf.new(sys.argv[2])\nd.blocks.new('A').add_attdef('NOTE', (0, 0), 'n')\n"
             "d.modelspace().add_blockref('A', (0, 0)).add_attrib('NOTE', 'first', (0, 2))\nd.saveas(sys.argv[1])\n"
             "s = open(sys.argv[1]).read().replace('  0\\nSEQEND', '%1  3\\nfirst\\\\Psec\\n  1\\nond {\\\\Hx2;big} "
             "\\\\\\\\Path\\n  0\\nSEQEND')\nopen(sys.argv[1], 'w').write(s)"_s.arg(marker),
             drawing, version});
        QFile::remove(table);
        QDir(run.path(u"out"_s)).removeRecursively();
        plays(exported + imported(table, u"0 attributes of 0 block references changed"_s), drawing);
        const QByteArray rows = ToolRun::readFile(table);
        EXPECT_TRUE(rows.contains(cell)) << rows.toStdString();
        EXPECT_FALSE(QFile::exists(run.result(drawing))) << "unchanged";
        const QByteArray elsewhere = rows.chopped(5) + "WXYZ\n";
        const QString changed = run.writeFile(u"new.txt"_s, QByteArray(rows).replace(cell, "\"new\n{\\C1;lines}\""));
        plays(
            imported(
                run.writeFile(u"elsewhere.txt"_s, QByteArray(elsewhere).replace(cell, "no")),
                u"0 attributes of 0 block references changed, 1 refused, of another drawing, with a changed handle or "
                u"one that another row has"_s) +
                imported(changed, u"1 attribute of 1 block reference changed"_s) +
                u"expect-lisp (equal (kora_attribute_text (entget (car (kora_attributes (car (kora_space_inserts)))))) "
                "\"new\\n{\\\\C1;lines}\")\n"_s,
            drawing);
        EXPECT_EQ(differences(drawing, run.result(drawing)), QStringList(u"~ATTRIB"_s));
        EXPECT_TRUE(ToolRun::readFile(run.result(drawing)).contains("\n  1\nnew\n")) << "the first line without codes";
        EXPECT_TRUE(isSound(run.result(drawing)));
    }
}

} // namespace
