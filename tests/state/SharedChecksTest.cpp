#include "state/HelpTopicMap.h"
#include "state/ModuleFolder.h"
#include "state/PathChecks.h"
#include "state/PathMessages.h"
#include "state/RowSorting.h"
#include "tests/support/FakeHost.h"
#include "tests/support/ModalAnswers.h"
#include "tests/support/QtTestPrinters.h"

#include <QElapsedTimer>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;
using namespace ortakit;
using ortakit::test::FakeHost;
using ortakit::test::ModalAnswers;

namespace {

TEST(HelpTopics, ToolsAreKnownByTheirExactNames)
{
    const std::pair<QString, int> rows[] = {
        {u"breakline"_s, 9101},      {u"exportInfo"_s, 9133},   {u"exportinfo"_s, 0},   {u"BREAKLINE"_s, 0},
        {u"multiviewsetup"_s, 9145}, {u"showlinks"_s, 0},       {u"no such tool"_s, 0}, {QString(), 0},
        {u"selectblock"_s, 9102},    {u"patternhatch"_s, 9102},
    };
    for (const auto &[tool, topic] : rows)
        EXPECT_EQ(HelpTopicMap::topic(tool), topic) << tool.toStdString();
}

TEST(HelpTopics, TheHostIsAskedForThePage)
{
    {
        FakeHost host;
        HelpTopicMap::showHelp(u"textmask"_s);
        HelpTopicMap::showHelp(u"unknown"_s);
        EXPECT_EQ(host.help().requests,
                  (QStringList{u"help.file 9115 new no-parent 16"_s, u"help.file 0 new no-parent 16"_s}));
    }
    HelpTopicMap::showHelp(u"textmask"_s); // without a host: nothing
}

TEST(ModuleFolder, IsTheVariableWithTheNameRightBehindIt)
{
    FakeHost host;
    host.document().setSystemVariable(u"LOGFILEPATH"_s, u"/logs/a"_s);
    EXPECT_EQ(moduleFolder(), u"/logs/aOrtakit"_s);
    host.documents().close(&host.document());
    EXPECT_EQ(moduleFolder(), u"Ortakit"_s);
}

TEST(PathChecks, NamesOfNewDrawings)
{
    const FakeHost host;
    const QString present = host.writeFile(u"door.dwg"_s, "x");
    const QString absent = host.path(u"absent.dwg"_s);
    EXPECT_EQ(checkNewDrawingName({}, present), NameProblem::Empty);
    EXPECT_EQ(checkNewDrawingName(u"door"_s, present), NameProblem::FileExists);
    EXPECT_EQ(checkNewDrawingName(u"Tür 2 (neu).alt"_s, absent), NameProblem::None);
    for (const QChar c : u"<>/\\\":;?*|,='"_s)
        EXPECT_EQ(checkNewDrawingName(u"a"_s + c + u"b"_s, present), NameProblem::ForbiddenCharacters)
            << int(c.unicode());
}

TEST(PathChecks, TheUserIsToldWhatIsWrong)
{
    const FakeHost host;
    const QString file = host.writeFile(u"door.dwg"_s, "x");
    const QString folder = host.path({});
    const QString missing = host.path(u"missing"_s);
    struct Row
    {
        const char *name;
        std::function<bool()> check;
        QString shown;
        bool accepted;
        QMessageBox::StandardButton press;
    };
    const Row rows[] = {
        {"no name", [&] { return acceptsNewDrawingName(nullptr, {}, file); },
         u"warning \"\" \"Filename can`t be empty\" OK"_s, false, QMessageBox::Ok},
        {"bad name", [&] { return acceptsNewDrawingName(nullptr, u"a/b"_s, missing, u"New"_s); },
         u"warning \"New\" \"The following characters are not valid in File names: <>/\\\":;?*|,='\" OK"_s, false,
         QMessageBox::Ok},
        {"replace", [&] { return acceptsNewDrawingName(nullptr, u"do%1or"_s, file); },
         u"question \"\" \"Drawing symbol \"do%1or\" already exists. Do you want to replace it?\" Yes/No"_s, true,
         QMessageBox::Yes},
        {"keep", [&] { return acceptsNewDrawingName(nullptr, u"door"_s, file); },
         u"question \"\" \"Drawing symbol \"door\" already exists. Do you want to replace it?\" Yes/No"_s, false,
         QMessageBox::No},
        {"good name", [&] { return acceptsNewDrawingName(nullptr, u"door"_s, missing); }, {}, true, {}},
        {"no folder", [&] { return acceptsFolder(nullptr, {}); }, u"warning \"\" \"Path can`t be empty\" OK"_s, false,
         QMessageBox::Ok},
        {"a file is no folder", [&] { return acceptsFolder(nullptr, file); },
         u"warning \"\" \"Cannot find the specified Path.\" OK"_s, false, QMessageBox::Ok},
        {"a folder", [&] { return acceptsFolder(nullptr, folder); }, {}, true, {}},
        {"no file", [&] { return acceptsFile(nullptr, {}); }, u"warning \"\" \"Filename can`t be empty\" OK"_s, false,
         QMessageBox::Ok},
        {"a folder is no file", [&] { return acceptsFile(nullptr, folder); },
         u"warning \"\" \"Cannot find the specified file.\" OK"_s, false, QMessageBox::Ok},
        {"a file", [&] { return acceptsFile(nullptr, file); }, {}, true, {}},
    };
    for (const Row &row : rows) {
        ModalAnswers user;
        if (!row.shown.isEmpty())
            user.press(row.press);
        EXPECT_EQ(row.check(), row.accepted) << row.name;
        EXPECT_EQ(user.shown().join(u'\n'), row.shown) << row.name;
    }
}

struct SortRow
{
    const char *name;
    QStringList rows;
    int column;
    Qt::SortOrder order;
    QStringList expected;
};

TEST(RowSorting, SortsByTheTextOfAColumn)
{
    const SortRow table[] = {
        {"first column", {u"b;1"_s, u"a;2"_s}, 0, Qt::AscendingOrder, {u"a;2"_s, u"b;1"_s}},
        {"second column", {u"a;2"_s, u"b;1"_s}, 1, Qt::AscendingOrder, {u"b;1"_s, u"a;2"_s}},
        {"downwards", {u"a;1"_s, u"c;3"_s, u"b;2"_s}, 0, Qt::DescendingOrder, {u"c;3"_s, u"b;2"_s, u"a;1"_s}},
        {"without regard to case", {u"b"_s, u"A"_s, u"C"_s}, 0, Qt::AscendingOrder, {u"A"_s, u"b"_s, u"C"_s}},
        {"equal fields keep their order",
         {u"x;b"_s, u"X;a"_s, u"x;c"_s},
         0,
         Qt::AscendingOrder,
         {u"x;b"_s, u"X;a"_s, u"x;c"_s}},
        {"downwards too", {u"x;b"_s, u"X;a"_s, u"x;c"_s}, 0, Qt::DescendingOrder, {u"x;b"_s, u"X;a"_s, u"x;c"_s}},
        {"missing fields are empty", {u"a;1"_s, u"b"_s, u"c;0"_s}, 1, Qt::AscendingOrder, {u"b"_s, u"c;0"_s, u"a;1"_s}},
        {"numbers are text", {u"10"_s, u"9"_s}, 0, Qt::AscendingOrder, {u"10"_s, u"9"_s}},
        {"nothing to sort", {}, 3, Qt::AscendingOrder, {}},
    };
    for (const SortRow &row : table) {
        QStringList rows = row.rows;
        sortRows(rows, u';', row.column, row.order);
        EXPECT_EQ(rows, row.expected) << row.name;
        QStringList carets = row.rows;
        sortRows(carets.replaceInStrings(u";"_s, u"^"_s), u'^', row.column, row.order);
        EXPECT_EQ(carets.replaceInStrings(u"^"_s, u";"_s), row.expected) << row.name;
    }
}

TEST(RowSorting, ManyRowsAreQuick)
{
    QStringList rows;
    for (int i = 0; i < 50'000; ++i)
        rows.append(u"layer %1;x"_s.arg((i * 7919) % 50'000, 5, 10, QLatin1Char('0')));
    QElapsedTimer clock;
    clock.start();
    sortRows(rows, u';', 0, Qt::AscendingOrder);
    EXPECT_EQ(rows.first() + rows.last(), u"layer 00000;xlayer 49999;x"_s);
    EXPECT_LT(clock.elapsed(), 5000);
}

} // namespace
