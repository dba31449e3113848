#include "host/app/workbench/LispNames.h"

#include "host/app/workbench/Suggestions.h"
#include "tests/app/AppFixture.h"
#include "tests/support/QtTestPrinters.h"

#include <QFile>

#include <gtest/gtest.h>

using namespace host;
using namespace host::app;
using namespace Qt::StringLiterals;

namespace {

struct LispNames : testing::Test, host::app::test::HostFixture
{
    LispNames()
    {
        document->run(u"(defun wall:corners (a / b) (list a)) (defun c:walls () 1) (setq wall:n 3)"_s, u"w.lsp"_s);
    }

    /// "START: name name", of many the first three.
    QString completed(const QString &text)
    {
        const Completion completion = completionOf(*document, text);
        return QString::number(completion.start) + u": "_s + completion.names.mid(0, 3).join(u' ');
    }
};

TEST_F(LispNames, CompleteWhatSymbolsHoldAndWhatStringsMean)
{
    const std::pair<QString, QString> rows[] = {
        {u"(wall:"_s, u"1: wall:corners wall:n"_s},
        {u"(list 'WALL:N"_s, u"7: wall:n"_s},
        {u"(c:wa"_s, u"1: c:walls"_s},
        {u"vl-sort"_s, u"0: vl-sort vl-sort-i"_s},
        {u"(foo \"vl-sort"_s, u"6: "_s},
        {u"(getvar \"osmo"_s, u"9: OSMODE"_s},
        {u"(setvar (strcat \"osmo"_s, u"17: "_s},
        {u"(setvar (foo) \"osmo"_s, u"15: OSMODE"_s},
        {u"(setq a \"(\" b) (getvar \"OSMO"_s, u"24: OSMODE"_s},
        {u"(command \"LAYTR"_s, u"10: "_s},
        {u"(command \"oops"_s, u"10: OOPS"_s},
        {u"(princ) ; (wall:"_s, u"16: "_s},
        {u"; x\n(wall:n"_s, u"5: wall:n"_s},
        {u"(princ \"a\\\"\") wall:n"_s, u"14: wall:n"_s},
        {u"(no-such-thing"_s, u"1: "_s},
    };
    for (const auto &[text, expected] : rows)
        EXPECT_EQ(completed(text), expected) << text.toStdString();
    EXPECT_EQ(completionOf(*document, u"(WALL"_s).commonStart(), u"wall:"_s);
}

TEST_F(LispNames, KnowWhereATextStands)
{
    const std::tuple<QString, bool, QString> rows[] = {
        {u""_s, true, {}},
        {u"(car '(1))"_s, true, {}},
        {u"(car (list 1"_s, false, u"LIST"_s},
        {u"(setq a \"(\" b"_s, false, u"SETQ"_s},
        {u"\"a)"_s, false, {}},
        {u"(a) ; (b"_s, true, {}},
        {u"(a ; )\n"_s, false, u"A"_s},
        {u"(a ;| )\n ( |;)"_s, true, {}},
        {u"(a) ;| (b)\n"_s, false, {}},
    };
    for (const auto &[text, whole, called] : rows) {
        EXPECT_EQ(isWhole(text), whole) << text.toStdString();
        EXPECT_EQ(calledAt(text), called) << text.toStdString();
    }
}

TEST_F(LispNames, HaveHelp)
{
    EXPECT_EQ(helpOnName(*document, u"wall:corners"_s), u"wall:corners (a / b)\n  w.lsp:1\n"_s);
    EXPECT_EQ(helpOnName(*document, u"c:walls"_s), u"c:walls ()\n"_s);
    EXPECT_EQ(helpOnName(*document, u" CAR "_s).section(u'\n', 0, 0), u"(car list)"_s);
    EXPECT_TRUE(helpOnName(*document, u"oops"_s).startsWith(u"command OOPS\n  "_s));
    EXPECT_TRUE(helpOnName(*document, u"osmode"_s).startsWith(u"system variable OSMODE\n  "_s));
    EXPECT_EQ(helpOnName(*document, u"no-such-thing"_s), QString());
    EXPECT_EQ(helpOnName(*document, QString()), QString());
}

TEST_F(LispNames, SuggestWhatMayBeMeant)
{
    document->run(u"(defun c:m\u00e4uerchen () 1) (defun c:zoomer () 2)"_s);
    const std::pair<QString, QString> rows[] = {
        {u"l"_s, u"L LA LAYCUR"_s}, // the alias itself first
        {u"_.zoo"_s, u"ZOOM ZOOMER ZOOMFACTOR"_s},
        {u"ZOOM"_s, u"ZOOM ZOOMER ZOOMFACTOR"_s},
        {u"osm"_s, u"OSMODE"_s},
        {u"m\u00c4u"_s, u"M\u00c4UERCHEN"_s},
        {u"-pl"_s, u"-PLOT"_s},
        {u"(wall:c"_s, u"wall:corners"_s},
        {u"!wall:n"_s, u"wall:n"_s},
        {u"(getvar \"osmo"_s, u"OSMODE"_s},
        {u"10,20"_s, {}},
        {u" "_s, {}},
        {u""_s, {}},
        {u"two words"_s, {}},
    };
    for (const auto &[typed, expected] : rows) {
        QStringList names;
        for (const Suggestion &each : suggestionsAt(*document, typed, 3))
            names.append(each.name);
        EXPECT_EQ(names.join(u' '), expected) << typed.toStdString();
    }
    EXPECT_EQ(suggestionsAt(*document, u"l"_s, 1).first().help, u"LINE: Draws straight segments"_s);
    EXPECT_TRUE(suggestionsAt(*document, u"osmode"_s, 1).first().help.size() > 3);
    EXPECT_TRUE(suggestionsAt(*document, u"(ca"_s, 9).first().help.startsWith(u"("_s));
}

TEST_F(LispNames, SuggestWithThousandsOfAliases)
{
    kernel::AliasTable table;
    for (int i = 0; i < 5000; ++i)
        table.insert(u"LX%1"_s.arg(i, 4, 10, QChar(u'0')), i == 4711 ? u"NOSUCH"_s : u"CIRCLE"_s);
    QFile file(path(u"many.xml"_s));
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write(kernel::toAliasFile(table));
    file.close();
    const QString used = session.home() + u"/alias.xml"_s;
    QFile::remove(used);
    ASSERT_TRUE(QFile::copy(file.fileName(), used));
    ASSERT_EQ(suggestionsAt(*document, u"lx"_s, 60).size(), 60) << "read again";
    for (int i = 0; i < 10; ++i)
        EXPECT_EQ(suggestionsAt(*document, u"l"_s, 60).size(), 60);
    EXPECT_EQ(suggestionsAt(*document, u"lx4711"_s, 60), QList<Suggestion>({{u"LX4711"_s, u"NOSUCH: "_s}}));
}

TEST(SuggestedKeywords, AreThoseOfThePromptAndNothingForValues)
{
    const QStringList keywords = {u"Arc"_s, u"LType,LT"_s, u"eXit"_s, u"2"_s};
    const std::pair<QString, QString> rows[] = {{u"a"_s, u"Arc"_s},  {u"_AR"_s, u"Arc"_s}, {u"lt"_s, u"LType"_s},
                                                {u"e"_s, u"eXit"_s}, {u"x"_s, {}},         {u"2"_s, {}},
                                                {u"1,2"_s, {}},      {u""_s, {}},          {u"@3<45"_s, {}}};
    for (const auto &[typed, expected] : rows) {
        QStringList names;
        for (const Suggestion &each : suggestedKeywords(keywords, typed))
            names.append(each.name);
        EXPECT_EQ(names.join(u' '), expected) << typed.toStdString();
    }
}

} // namespace
