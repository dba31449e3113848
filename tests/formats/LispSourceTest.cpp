#include "formats/LispSource.h"

#include "tests/formats/Folder.h"

#include <QRandomGenerator>
#include <QRegularExpression>

namespace {

QString shownFunction(const LispFunctionEntry &entry)
{
    return u"%1 [%2] %3 [%4]"_s.arg(entry.name, entry.header.join(u'|'), entry.defunLine, entry.body.join(u'|'));
}

/// The entries, each as "name [header|lines] defun line [body|lines]", with " + " between.
QString scanned(const QByteArray &text)
{
    QStringList entries;
    for (const LispFunctionEntry &entry : scanLispSource(text))
        entries.append(shownFunction(entry));
    return entries.join(u" + "_s);
}

TEST(LispSource, FindsTheFunctionsOfAText)
{
    const std::tuple<const char *, QByteArray, QString> rows[] = {
        {"several lines", "(defun a ()\r\n  1\r\n)\r\n", u"a [] (defun a () [  1|)]"_s},
        {"what stands between is left out", "(defun a () 1)\n(setq b 2)\n(defun c () 3)\n",
         u"a [] (defun a () 1) [] + c [] (defun c () 3) []"_s},
        {"comments above", "; one\n\n  ;two\n(defun a () 1)", u"a [; one||  ;two] (defun a () 1) []"_s},
        {"a line of blanks cuts the header off", "; one\n \t\n;two\n(defun a () 1)", u"a [;two] (defun a () 1) []"_s},
        {"each has its own header", ";a\n(defun a () 1)\n;b\n(defun b () 1)",
         u"a [;a] (defun a () 1) [] + b [;b] (defun b () 1) []"_s},
        {"a function in a comment", "; (defun x ()\n(defun a () 1)", u"a [; (defun x ()] (defun a () 1) []"_s},
        {"tabs become blanks, not on the defun line", ";\tone\n(defun\ta ()\n\t1)",
         u"a [;    one] (defun\ta () [    1)]"_s},
        {"name up to a parenthesis", "(defun foo(x) x)", u"foo [] (defun foo(x) x) []"_s},
        {"blanks in front take the name", "  (  defun   bar (x) x)", u" []   (  defun   bar (x) x) []"_s},
        {"nothing but the word", "(defun )", u") [] (defun ) []"_s},
        {"other words", "(defun(a) 1)\n(defunct a)\n(DEFUN a () 1)\n(defun-q a () 1)\n(defun", {}},
        {"a function within", "(defun a ()\n(defun b () 1)\n)", u"a [] (defun a () [(defun b () 1)|)]"_s},
        {"never closed", "(defun a ()\n(defun b () 1)\n", {}},
        {"closed too often", "(defun a () 1))\n(defun b ()\n(c)\n", u"a [] (defun a () 1)) [(defun b ()]"_s},
        {"parentheses outside", ")\n((\n(defun a () 1)", u"a [] (defun a () 1) []"_s},
        {"a parenthesis in a string ends it early", "(defun a ()\n(princ \":)\")\n)\n(defun b () 1)",
         u"a [] (defun a () [(princ \":)\")] + b [] (defun b () 1) []"_s},
        {"a semicolon in a string", "(defun a ()\n(princ \";\")\n)\n)", u"a [] (defun a () [(princ \";\")|)|)]"_s},
    };
    for (const auto &[name, text, expected] : rows)
        EXPECT_EQ(scanned(text), expected) << name;

    const LispFunctionEntry entry = scanLispSource(";one\n\n(defun a ()\n\t1\n)").value(0);
    EXPECT_EQ(lispText(entry, LispPart::Header), u";one\n\n(defun a ()"_s);
    EXPECT_EQ(lispText(entry, LispPart::Function), u"(defun a ()\n    1\n)"_s);
    EXPECT_EQ(lispText(entry, LispPart::Both), u";one\n\n(defun a ()\n    1\n)"_s);
}

/// The rules of the scan by regular expressions, which say what it must find.
QString scannedByExpressions(const QString &text)
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
            entries.append(shownFunction(pending));
            pending = {};
        }
    }
    return entries.join(u" + "_s);
}

TEST(LispSource, FindsInRandomLinesWhatTheExpressionsFind)
{
    // Pieces that the rules look at, put together in every order.
    const QStringList pieces = {u"("_s,  u"("_s,  u")"_s,  u")"_s,      u"defun"_s,  u"(defun "_s, u" "_s,
                                u"\t"_s, u";"_s,  u"\""_s, u"\n"_s,     u"\n"_s,     u"\v"_s,      u"a"_s,
                                u"ö"_s,  u"\f"_s, u"x "_s, u"\u00A0"_s, u"\u2003"_s, u"def"_s,     u"un "_s};
    QRandomGenerator random(20261121);
    int found = 0;
    for (int round = 0; round < 6'000; ++round) {
        QString text;
        for (int piece = 0; piece < 40; ++piece)
            text += pieces[random.bounded(int(pieces.size()))];
        // An end of the text behind a line feed opens one more line for the splitter, none for a reader of files.
        text += u'.';
        const QString expected = scannedByExpressions(text);
        ASSERT_EQ(scanned(text.toUtf8()), expected) << text.toStdString();
        found += expected.isEmpty() ? 0 : 1;
    }
    EXPECT_GT(found, 600) << "rounds with a function";
}

TEST(LispSource, BadFilesAreReadOrRefusedQuickly)
{
    const Folder folder;
    const std::pair<QByteArray, qsizetype> rows[] = {
        {QByteArray(2'000'000, '\0'), 0},
        {QByteArray("(  ").repeated(600'000), 0},
        {"(defun a (\n" + QByteArray("(x\n").repeated(200'000), 0},
        {QByteArray(";\n").repeated(100'000) + "(defun a () 1)", 1},
        {QByteArray("(defun a () 1)\n").repeated(30'000), 30'000},
        {QByteArray("\xFF\xFE(\0d\0e\0f", 9), 0}, // cut off within a character
    };
    for (const auto &[bytes, count] : rows) {
        const LispSourceReading reading = readLispSource(folder.writeFile(u"source.lsp"_s, bytes));
        EXPECT_EQ(reading.error, QString()) << bytes.left(20).toStdString();
        EXPECT_EQ(reading.functions.size(), count) << bytes.left(20).toStdString();
    }
    EXPECT_EQ(
        shownFunction(readLispSource(folder.writeFile(u"old.lsp"_s, "(defun caf\xE9 () \"\x80\")")).functions.value(0)),
        u"café [] (defun café () \"€\") []"_s);
    EXPECT_FALSE(readLispSource(folder.path(u"missing.lsp"_s)).error.isEmpty());
    QFile huge(folder.path(u"huge.lsp"_s));
    ASSERT_TRUE(huge.open(QIODevice::WriteOnly) && huge.resize(largestLispSource + 1));
    EXPECT_FALSE(readLispSource(huge.fileName()).error.isEmpty());
}

} // namespace
