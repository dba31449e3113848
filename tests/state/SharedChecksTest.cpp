#include "state/pickers/PathChecks.h"
#include "state/pickers/PathMessages.h"
#include "state/tables/RowSorting.h"
#include "tests/support/ModuleTest.h"

namespace {

TEST(PathChecks, TheUserIsToldWhatIsWrong)
{
    const FakeHost host;
    const QString file = host.writeFile(u"door.dwg"_s, "x");
    const QString missing = host.path(u"missing"_s);
    const QString noName = u"warning \"\" \"Filename can`t be empty\" OK"_s;
    const QString replace =
        u"question \"\" \"Drawing symbol \"%1\" already exists. Do you want to replace it?\" Yes/No"_s;
    const struct
    {
        const char *name;
        bool accepted;
        QString shown; ///< nothing when it is empty
        std::function<bool()> check;
        QMessageBox::StandardButton press = QMessageBox::Ok;
    } rows[] = {
        {"no name", false, noName, [&] { return acceptsNewDrawingName(nullptr, {}, file); }},
        {"replace", true, replace.arg(u"do%1or"_s), [&] { return acceptsNewDrawingName(nullptr, u"do%1or"_s, file); },
         QMessageBox::Yes},
        {"keep", false, replace.arg(u"door"_s), [&] { return acceptsNewDrawingName(nullptr, u"door"_s, file); },
         QMessageBox::No},
        {"good name", true, {}, [&] { return acceptsNewDrawingName(nullptr, u"Tür 2 (neu).alt"_s, missing); }},
        {"a file is no folder", false, u"warning \"\" \"Cannot find the specified Path.\" OK"_s,
         [&] { return acceptsFolder(nullptr, file); }},
    };
    for (const auto &row : rows) {
        ModalAnswers user;
        if (!row.shown.isEmpty())
            user.press(row.press);
        EXPECT_EQ(row.check(), row.accepted) << row.name;
        EXPECT_EQ(user.shown().join(u'\n'), row.shown) << row.name;
    }
    for (const QChar c : u"<>/\\\":;?*|,='"_s) {
        ModalAnswers user;
        user.press(QMessageBox::Ok);
        EXPECT_FALSE(acceptsNewDrawingName(nullptr, u"a"_s + c + u"b"_s, file, u"New"_s)) << int(c.unicode());
        EXPECT_EQ(user.shown(), QStringList{u"warning \"New\" \"The following characters are not valid in File names: "
                                            "<>/\\\":;?*|,='\" OK"_s});
    }
}

TEST(RowSorting, SortsByTheTextOrTheNumberOfAColumn)
{
    const auto up = Qt::AscendingOrder;
    const auto down = Qt::DescendingOrder;
    const std::tuple<const char *, QString, int, Qt::SortOrder, QString> texts[] = {
        {"second column", u"a;2 b;1"_s, 1, up, u"b;1 a;2"_s},
        {"without regard to case", u"b A C"_s, 0, up, u"A b C"_s},
        {"equal fields keep their order", u"x;b X;a x;c"_s, 0, up, u"x;b X;a x;c"_s},
        {"downwards too", u"x;b y;0 X;a x;c"_s, 0, down, u"y;0 x;b X;a x;c"_s},
        {"missing fields are empty", u"a;1 b c;0"_s, 1, up, u"b c;0 a;1"_s},
        {"digits are letters", u"10 9"_s, 0, up, u"10 9"_s},
        {"no such column", u"b a"_s, 3, up, u"b a"_s},
    };
    const std::tuple<const char *, QString, int, Qt::SortOrder, QString> numbers[] = {
        {"upwards", u"a;10 b;9 c;-1"_s, 1, up, u"c;-1 b;9 a;10"_s},
        {"downwards", u"a;10 b;9 c;100"_s, 1, down, u"c;100 a;10 b;9"_s},
        {"what is no number", u"a;1 b;x c"_s, 1, up, u"b;x c a;1"_s},
    };
    const auto check = [](const auto &table, auto sort) {
        for (const auto &[name, given, column, order, expected] : table) {
            QStringList rows = given.split(u' ');
            sort(rows, u';', column, order);
            EXPECT_EQ(rows.join(u' '), expected) << name;
        }
    };
    check(texts, sortRows);
    check(numbers, sortRowsByNumber);
}

} // namespace
