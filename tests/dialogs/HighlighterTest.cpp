#include "dialogs/lispexplorer/Highlighter.h"

#include "dialogs/lispexplorer/LispKeywords.h"
#include "dialogs/lispexplorer/SourceView.h"
#include "tests/dialogs/LispLines.h"
#include "tests/support/ModuleTest.h"
#include "tests/support/RuleByRule.h"

#include <QDir>
#include <QPlainTextEdit>
#include <QTextBlock>

namespace {

/// A letter a character: what LispPainter makes of the line.
QString paintedStyles(LispPainter &painter, const QString &line)
{
    QString letters(line.size(), u'.');
    for (const LispRun &run : painter.paint(line))
        letters.replace(run.start, run.length, QString(run.length, QStringView(u".PKSDCM")[int(run.style)]));
    return letters;
}

/// The same of what the expressions make of it.
QString paintedStyles(const RuleByRule &rules, const QString &line, const QString &search)
{
    const std::pair<QTextCharFormat, QChar> letterOf[] = {
        {rules.parenthesisFormat, u'P'}, {rules.keywordFormat, u'K'}, {rules.stringFormat, u'S'},
        {rules.digitFormat, u'D'},       {rules.commentFormat, u'C'}, {rules.searchFormat, u'M'},
    };
    QString letters;
    for (const QTextCharFormat &format : rules.paint(line, search)) {
        QChar letter = u'.';
        for (const auto &[known, of] : letterOf)
            letter = format == known ? of : letter;
        letters += letter;
    }
    return letters;
}

/// Compares `lines` random lines, a new search text each dozen, and says which line differs first.
void expectSamePaint(const QStringList &keywords, int lines, int startingPoint)
{
    LispPainter painter(keywords);
    const RuleByRule rules(keywords);
    LispLines maker(startingPoint, keywords);
    QString search;
    for (int number = 0; number < lines; ++number) {
        if (number % 12 == 0)
            painter.setSearch(search = maker.search());
        const QString line = maker.line();
        ASSERT_EQ(paintedStyles(painter, line), paintedStyles(rules, line, search))
            << "seed " << startingPoint << ", line " << number << ": " << qPrintable(line)
            << "\nsearch: " << qPrintable(search);
    }
}

struct SourceViewer
{
    QLineEdit searchField;
    QPlainTextEdit edit;
    Highlighter highlighter{&searchField, edit.document()};
};

TEST(LispKeywords, AreThoseOfTheDialect)
{
    const QStringList words = lispKeywords();
    EXPECT_EQ(lispKeywordText().size(), 15137);
    EXPECT_EQ(words.size(), 987);
    EXPECT_EQ(words.mid(981).join(u' '), u"_vl-balance-parenthesis _vl-fast-mode _vl-times _vlisp-version ~ "_s);
    for (const QString &word : {u"origatomsfamily"_s, u"1+"_s, u"acet-acad-refresh"_s, u"ai_ref\u88ACert"_s})
        EXPECT_TRUE(words.contains(word)) << qPrintable(word);
}

TEST(LispPainter, PaintsWhatTheRulesSay)
{
    const struct
    {
        const char *name;
        QString line;
        QString expected;
        QString search = {};
    } rows[] = {
        {"a form", u"(setq x 10)"_s, u"PKKKK...DDP"_s},
        {"keyword at the start or the end", u"car (car) car"_s, u"....PKKKP...."_s},
        {"keyword behind a closing parenthesis", u"(x)car (x) car "_s, u"P.P....P.P.KKK."_s},
        {"keyword as a part", u"(setqx (setq-x ('car (car'"_s, u"P......P.......P.....P...."_s},
        {"keyword that is an expression", u"(1+ x) (11 (111 "_s, u"PD...P.PDD.PDDD."_s},
        {"keyword and digit in a string", u"(princ \"to car 1 \")"_s, u"PKKKKK.SSSSSSSSDSSP"_s},
        {"from the first quote to the last", u"(f \"a\" car \"b\" 1)"_s, u"P..SSSSSSSSSSS.DP"_s},
        {"single quote", u"(f \"car 1)"_s, u"P.......DP"_s},
        {"comment with everything", u"(car x) ; (car \"1\") ; "_s, u"PKKK..P.CCCCCCCCCCCCCC"_s},
        {"characters of two code units", u"\U0001F600(car \U0001F600)1"_s, u"..PKKK...PD"_s},
        {"half a character spoils the line", u"(car 1"_s + QChar(0xD83D), u"......."_s},
        {"line feeds", u"(car\ncar\n\"\n\";1\n2"_s, u"PKKK.KKK....CC.D"_s},
        {"search in any case, in words, over all else", u"(cdr CAR \"scary\") ;car"_s, u"PKKK.MMM.SSMMMSSP.CMMM"_s,
         u"car"_s},
        {"search as an expression", u"(car 12)"_s, u"PMMM.MMP"_s, u"[a-z]+|\\d+"_s},
        {"search that is no expression", u"(car"_s, u"P..."_s, u"(car"_s},
    };
    LispPainter painter(lispKeywords());
    const RuleByRule rules(lispKeywords());
    for (const auto &row : rows) {
        painter.setSearch(row.search);
        EXPECT_EQ(paintedStyles(painter, row.line), row.expected) << row.name;
        EXPECT_EQ(paintedStyles(rules, row.line, row.search), row.expected) << "rule by rule, " << row.name;
    }
}

// Other lines come with --gtest_shuffle --gtest_random_seed=NUMBER, or --gtest_shuffle --gtest_repeat=TIMES.
int paintSeed()
{
    return testing::UnitTest::GetInstance()->random_seed();
}

// Few words make the expressions quick, so that odd words meet many lines.
TEST(LispPainter, PaintsRandomLinesLikeTheExpressions)
{
    const QStringList lists[] = {
        lispKeywords(),
        {u"car"_s, u"cadr"_s, u"1+"_s, u"-"_s, u"c"_s, u""_s},
        {u"isfcn?"_s, u"1+"_s, u"1*"_s, u"?"_s, u"+"_s, u"*"_s, u"a?b"_s, u"r{0}"_s},
        {u"a|b"_s, u"|"_s, u"("_s, u")"_s, u"["_s, u"[a-c]+"_s, u"{"_s, u"}"_s, u"]"_s, u"\\"_s, u"\\("_s},
        {u"c.r"_s, u"^"_s, u"$"_s, u"(c)\\1"_s, u"car (1"_s, u"c\\s1"_s, u"(?i)car"_s, u"(?=c\\K)"_s},
        {u"1[ (]1"_s, u"car(?#x)"_s, u"a#b"_s, u"c\td"_s, u"\\Qcar"_s, u"1\\K1"_s, u"x(?|y)"_s, u"(*COMMIT)a"_s},
        {u"\u88AC"_s, u"\U0001F600"_s, u"\U0001F600+"_s, u"\u00E9?"_s, QString(1, QChar(0xD83D)), u"\u2028+"_s},
        {u".*"_s, u"\\S+"_s},
        {u""_s},
    };
    for (const QStringList &list : lists)
        expectSamePaint(list, list.size() > 100 ? 150 : 1200, paintSeed()); // by the rules, a word takes its time
}

// "(\\w+\\s?)*$" takes some 20 ms a line: without an end to patience, this would take a minute.
TEST(LispPainter, GivesUpASearchThatTakesFarTooLong)
{
    const QString line = u"; the quick brown fox jumps over the lazy dog, who does not mind, "_s;
    LispPainter painter(lispKeywords());
    painter.setSearch(u"(\\w+\\s?)*$"_s);
    for (int number = 0; number < 3000; ++number)
        painter.paint(line);

    painter.setSearch(u"fox"_s);
    EXPECT_EQ(paintedStyles(painter, line).indexOf(u"CMMMC"_s), line.indexOf(u"fox"_s) - 1);
}

TEST(Highlighter, DrawsLispFilesLikeTheExpressions)
{
    const RuleByRule rules(lispKeywords());
    const QFileInfoList files = QDir(qEnvironmentVariable("ORTAKIT_SOURCE") + u"/tools"_s).entryInfoList({u"*.lsp"_s});
    ASSERT_GE(files.size(), 6);
    for (const QFileInfo &file : files.first(6)) {
        SourceViewer view;
        view.searchField.setText(u"(d|c)[aeiou]"_s);
        showSource(view.edit, view.highlighter, QString::fromUtf8(FakeHost::readFile(file.filePath())));
        for (QTextBlock block = view.edit.document()->begin(); block.isValid(); block = block.next())
            ASSERT_EQ(block.layout()->formats(), rules.ranges(block.text(), view.searchField.text()))
                << qPrintable(file.fileName() + u": "_s + block.text());
    }
}

TEST(SourceView, MarksFollowTheSearchFieldAndTheSelectionStays)
{
    SourceViewer view;
    const QString text = u"(car x)\n"_s.repeated(3);
    showSource(view.edit, view.highlighter, text);
    view.edit.find(u"car"_s);
    for (const QString &search : {u"c"_s, u"ca"_s, u"ca("_s, u""_s}) {
        view.searchField.setText(search);
        showSource(view.edit, view.highlighter, text);
        const auto formats = view.edit.document()->lastBlock().previous().layout()->formats();
        const bool isMarked = formats.size() > 1 && formats[1].format.background() == QBrush(Qt::darkBlue);
        EXPECT_EQ(isMarked, search == u"c"_s || search == u"ca"_s) << qPrintable(search);
        EXPECT_EQ(view.edit.textCursor().selectedText(), u"car"_s);
    }
}

TEST(SourceView, AnotherTextIsShownFromItsBeginning)
{
    const std::tuple<QString, QString, bool> rows[] = {
        {u"a\r\nb\n"_s, u"a\r\nb\n"_s, true}, {u"a\rb\u2029c\u00A0\u2028d"_s, u"a\rb\u2029c\u00A0\u2028d"_s, true},
        {u"a\nb"_s, u"a\nb\n"_s, false},      {u"a\nb\n"_s, u"a\nb"_s, false},
        {u"a\nb"_s, u"a\nbc"_s, false},       {u"a\nbc"_s, u"a\nb"_s, false},
        {u"ab"_s, u"a\nb"_s, false},
    };
    for (const auto &[first, second, stays] : rows) {
        SourceViewer view;
        showSource(view.edit, view.highlighter, first);
        view.edit.moveCursor(QTextCursor::NextCharacter);
        showSource(view.edit, view.highlighter, second);
        EXPECT_EQ(view.edit.textCursor().position(), stays ? 1 : 0) << qPrintable(first + u" then "_s + second);
        QPlainTextEdit plain;
        plain.setPlainText(second);
        EXPECT_EQ(view.edit.toPlainText(), plain.toPlainText());
    }
}

TEST(Highlighter, OutlivesItsSearchField)
{
    auto field = std::make_unique<QLineEdit>(u"x"_s);
    QTextDocument document(u"(x"_s);
    Highlighter highlighter(field.get(), &document);
    highlighter.rehighlight();
    EXPECT_EQ(document.firstBlock().layout()->formats().size(), 2);
    field.reset();
    highlighter.rehighlight();
    EXPECT_EQ(document.firstBlock().layout()->formats().size(), 1);
}

} // namespace
