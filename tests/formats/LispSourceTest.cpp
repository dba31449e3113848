#include "formats/LispSource.h"

#include "tests/formats/Folder.h"
#include "tests/support/QtTestPrinters.h"

#include <QRandomGenerator>
#include <QRegularExpression>

#include <gtest/gtest.h>

using namespace ortakit;
using namespace Qt::StringLiterals;
using formats_test::Folder;

namespace {

/// An entry as "name [header|lines] defun line [body|lines]".
QString shown(const LispFunctionEntry &entry)
{
    return u"%1 [%2] %3 [%4]"_s.arg(entry.name, entry.header.join(u'|'), entry.defunLine, entry.body.join(u'|'));
}

QStringList scanned(const QByteArray &text)
{
    QStringList entries;
    for (const LispFunctionEntry &entry : scanLispSource(text))
        entries.append(shown(entry));
    return entries;
}

struct ScanRow
{
    const char *name;
    QByteArray text;
    QStringList expected;
};

TEST(LispSource, FindsTheFunctionsOfAText)
{
    const ScanRow rows[] = {
        {"empty", "", {}},
        {"one line", "(defun a () 1)", {u"a [] (defun a () 1) []"_s}},
        {"several lines", "(defun a ()\r\n  1\r\n)\r\n", {u"a [] (defun a () [  1|)]"_s}},
        {"what stands between is left out",
         "(defun a () 1)\n(setq b 2)\n(defun c () 3)\n",
         {u"a [] (defun a () 1) []"_s, u"c [] (defun c () 3) []"_s}},

        {"comments and empty lines above",
         "; one\n\n  ;two\n(defun a () 1)",
         {u"a [; one||  ;two] (defun a () 1) []"_s}},
        {"a line of blanks cuts the header off", "; one\n  \n;two\n(defun a () 1)", {u"a [;two] (defun a () 1) []"_s}},
        {"a line of tabs does", "; one\n\t\n(defun a () 1)", {u"a [] (defun a () 1) []"_s}},
        {"code does", "; one\n(princ)\n(defun a () 1)", {u"a [] (defun a () 1) []"_s}},
        {"each function has its own header",
         ";a\n(defun a () 1)\n;b\n(defun b () 1)",
         {u"a [;a] (defun a () 1) []"_s, u"b [;b] (defun b () 1) []"_s}},
        {"a function in a comment", "; (defun x ()\n(defun a () 1)", {u"a [; (defun x ()] (defun a () 1) []"_s}},
        {"a no-break space before the comment",
         "\xC2\xA0; one\n(defun a () 1)",
         {u"a [\u00A0; one] (defun a () 1) []"_s}},

        {"tabs become blanks, not on the defun line",
         ";\tone\n(defun\ta ()\n\t1)",
         {u"a [;    one] (defun\ta () [    1)]"_s}},
        {"name up to a parenthesis", "(defun foo(x) x)", {u"foo [] (defun foo(x) x) []"_s}},
        {"blanks all over", "(  defun   bar (x) x)", {u"bar [] (  defun   bar (x) x) []"_s}},
        {"blanks in front take the name", "  (  defun   bar (x) x)", {u" []   (  defun   bar (x) x) []"_s}},
        {"text in front is part of the name", "x(defun y () 1)", {u"xy [] x(defun y () 1) []"_s}},
        {"names of other languages", "(defun größe () 1)", {u"größe [] (defun größe () 1) []"_s}},
        {"nothing but the word", "(defun )", {u") [] (defun ) []"_s}},
        {"no blank behind the word", "(defun(a) 1)\n(defunct a)\n(defun", {}},
        {"capitals", "(DEFUN a () 1)", {}},
        {"another form with the word", "(defun-q a () 1)", {}},

        {"a function within", "(defun a ()\n(defun b () 1)\n)", {u"a [] (defun a () [(defun b () 1)|)]"_s}},
        {"two on a line", "(defun a () 1) (defun b () 2)", {u"a [] (defun a () 1) (defun b () 2) []"_s}},
        {"never closed", "(defun a ()\n(defun b () 1)\n", {}},
        {"closed too often, then balanced by the next",
         "(defun a () 1))\n(defun b ()\n(c)\n",
         {u"a [] (defun a () 1)) [(defun b ()]"_s}},
        {"a closing parenthesis outside", ")\n))\n(defun a () 1)", {u"a [] (defun a () 1) []"_s}},
        {"an opening parenthesis outside", "((\n(defun a () 1)", {u"a [] (defun a () 1) []"_s}},
        {"a parenthesis in a string ends the function early",
         "(defun a ()\n(princ \":)\")\n)\n(defun b () 1)",
         {u"a [] (defun a () [(princ \":)\")]"_s, u"b [] (defun b () 1) []"_s}},
        {"a semicolon in a string hides the rest",
         "(defun a ()\n(princ \";\")\n)\n)",
         {u"a [] (defun a () [(princ \";\")|)|)]"_s}},
        {"parentheses in a comment do not count", "(defun a () ; (((\n1)", {u"a [] (defun a () ; ((( [1)]"_s}},
    };
    for (const ScanRow &row : rows)
        EXPECT_EQ(scanned(row.text), row.expected) << row.name;
}

TEST(LispSource, ShowsThePartsOfAFunction)
{
    const LispFunctionEntry entry = scanLispSource(";one\n\n(defun a ()\n\t1\n)").value(0);
    EXPECT_EQ(lispText(entry, LispPart::Header), u";one\n\n(defun a ()"_s);
    EXPECT_EQ(lispText(entry, LispPart::Function), u"(defun a ()\n    1\n)"_s);
    EXPECT_EQ(lispText(entry, LispPart::Both), u";one\n\n(defun a ()\n    1\n)"_s);
}

/// The rules of the scan by regular expressions, which say what it must find.
QStringList scannedByExpressions(const QString &text)
{
    static const QRegularExpression comment(u";.*"_s);
    static const QRegularExpression defun(u"(\\()(\\s*)defun(\\s+)"_s);
    static const QRegularExpression rest(u"[\\s\\(].*"_s);
    QStringList entries;
    LispFunctionEntry pending;
    qsizetype depth = 0;
    for (const QString &line : text.split(u'\n')) {
        const QString code = QString(line).remove(comment);
        const bool hasDefun = code.contains(defun);
        if (!hasDefun && depth == 0) {
            if (line.trimmed().startsWith(u';') || line.isEmpty())
                pending.header.append(QString(line).replace(u'\t', u"    "_s));
            else
                pending.header.clear();
            continue;
        }
        if (depth == 0) {
            pending.defunLine = line;
            pending.name = QString(line).remove(defun).remove(rest);
        } else {
            pending.body.append(QString(line).replace(u'\t', u"    "_s));
        }
        depth += code.count(u'(') - code.count(u')');
        if (depth == 0) {
            entries.append(shown(pending));
            pending = {};
        }
    }
    return entries;
}

TEST(LispSource, FindsInRandomLinesWhatTheExpressionsFind)
{
    // Pieces that the rules look at, put together in every order.
    const QStringList pieces = {u"("_s,  u"("_s,  u")"_s,  u")"_s,      u"defun"_s,  u"(defun "_s, u" "_s,
                                u"\t"_s, u";"_s,  u"\""_s, u"\n"_s,     u"\n"_s,     u"\v"_s,      u"a"_s,
                                u"ö"_s,  u"\f"_s, u"x "_s, u"\u00A0"_s, u"\u2003"_s, u"def"_s,     u"un "_s};
    QRandomGenerator random(20261121);
    qsizetype found = 0;
    for (int round = 0; round < 30'000; ++round) {
        QString text;
        for (int piece = 0; piece < 40; ++piece)
            text += pieces[random.bounded(int(pieces.size()))];
        // An end of the text behind a line feed opens one more line for the splitter, none for a reader of files.
        text += u'.';
        const QStringList expected = scannedByExpressions(text);
        ASSERT_EQ(scanned(text.toUtf8()), expected) << text.toStdString();
        found += expected.size();
    }
    EXPECT_GT(found, 5'000);
}

TEST(LispSource, BadFilesAreReadOrRefusedQuickly)
{
    const Folder folder;
    QByteArray noise(4'000'000, Qt::Uninitialized);
    QRandomGenerator random(1);
    random.generate(reinterpret_cast<quint32 *>(noise.data()),
                    reinterpret_cast<quint32 *>(noise.data()) + noise.size() / 4);
    const struct
    {
        const char *name;
        QByteArray bytes;
        qsizetype count; ///< -1: whatever comes out
    } rows[] = {
        {"noise", noise, -1},
        {"one line of zeros", QByteArray(10'000'000, '\0'), 0},
        {"one line of openings", QByteArray(10'000'000, '('), 0},
        {"one line of openings and blanks", QByteArray("(  ").repeated(3'000'000), 0},
        {"a form that never closes", "(defun a (\n" + QByteArray("(x\n").repeated(1'000'000), 0},
        {"a long header", QByteArray(";\n").repeated(200'000) + "(defun a () 1)", 1},
        {"many functions", QByteArray("(defun a () 1)\n").repeated(100'000), 100'000},
        {"UTF-16 cut off", QByteArray("\xFF\xFE(\0d\0e\0f", 9), 0},
    };
    for (const auto &row : rows) {
        const LispSourceReading reading = readLispSource(folder.writeFile(u"source.lsp"_s, row.bytes));
        EXPECT_EQ(reading.error, QString()) << row.name;
        EXPECT_EQ(row.count < 0 ? -1 : reading.functions.size(), row.count) << row.name;
    }
    EXPECT_FALSE(readLispSource(folder.path(u"missing.lsp"_s)).error.isEmpty());
    QFile huge(folder.path(u"huge.lsp"_s));
    ASSERT_TRUE(huge.open(QIODevice::WriteOnly) && huge.resize(largestLispSource + 1));
    EXPECT_FALSE(readLispSource(huge.fileName()).error.isEmpty());
}

} // namespace
