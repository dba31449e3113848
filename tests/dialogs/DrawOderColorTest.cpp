#include "dialogs/drawordercolor/Dlg_QT_DrawOderColor.h"
#include "platform/widgets/CKvQtColorComboBox.h"
#include "tests/dialogs/DialogTest.h"

#include <QComboBox>

using namespace ortakit::test;
using namespace Qt::StringLiterals;

namespace {

class DrawOderColor : public DialogTest<Dlg_QT_DrawOderColor>
{
protected:
    QTableWidget *list() const { return find<QTableWidget>("lstColors"); }
    /// Begins a call with these colours.
    void showColors(const QString &colors, const QString &state = {})
    {
        dialog->setColors(colors.isEmpty() ? QStringList() : colors.split(u' '));
        showWith(state);
    }
    QString order() const
    {
        QStringList numbers;
        for (const int color : dialog->colors())
            numbers.append(QString::number(color));
        return numbers.join(u' ');
    }
    void pick(const QString &favourite)
    {
        auto *names = find<QComboBox>("cb_favorits");
        names->setEditText(favourite);
        QTest::keyClick(names, Qt::Key_Return);
    }
};

TEST_F(DrawOderColor, ReadsEachStringAsANumberWithoutItsSign)
{
    const struct
    {
        QString arguments;
        QString order;
        QString shown;
    } rows[] = {
        {u"3 -7 0 256"_s, u"3 7 0 256"_s, u"3 Green^7 White^0 ByBlock^256 ByLayer"_s},
        {u"30 3 3"_s, u"30 3 3"_s, u"Color 30^3 Green^3 Green"_s},
        {u"abc 2x 1.5 +4"_s, u"0 0 0 4"_s, u"0 ByBlock^0 ByBlock^0 ByBlock^4 Cyan"_s},
        {u"257 -32767"_s, u"257 32767"_s, u"257 (no color)^32767 (no color)"_s},
        {u"32768 99999999999 -9223372036854775808 99999999999999999999"_s, u"0 0 0 0"_s,
         u"0 ByBlock^0 ByBlock^0 ByBlock^0 ByBlock"_s},
        {{}, {}, {}},
    };
    for (const auto &row : rows) {
        showColors(row.arguments, u"lstcolors=5^6^\n"_s);
        EXPECT_EQ(order(), row.order);
        EXPECT_EQ(tableRows("lstColors").join(u'^'), row.shown) << "the arguments alone";
        dialog->grab(); // the picture takes them all
    }
}

TEST_F(DrawOderColor, TheOrderIsWhatTheButtonsMakeOfIt)
{
    const struct
    {
        const char *button;
        QList<int> rows;
        const char *order;
        const char *enabled;
    } steps[] = {
        {"toFront", {1, 3}, "1 3 2 30", "toBack moveUp removeColors reverse sortNumbers"},
        {"moveUp", {2, 3}, "1 2 30 3", "toBack moveUp moveDown toFront removeColors reverse sortNumbers"},
        {"reverse", {0}, "3 30 2 1", "toBack moveUp removeColors reverse sortNumbers"},
        {"sortNumbers", {0}, "1 2 3 30", "toBack moveUp moveDown toFront removeColors reverse sortNumbers"},
        {"toBack", {3}, "30 1 2 3", "moveDown toFront removeColors reverse sortNumbers"},
        {"removeColors", {0, 1, 3}, "2", "removeColors"},
        {"removeColors", {0}, "", ""},
    };
    showColors(u"1 2 3 30"_s);
    for (const auto &step : steps) {
        selectRows(list(), step.rows);
        click(step.button);
        EXPECT_EQ(order(), QString::fromLatin1(step.order)) << step.button;
        EXPECT_EQ(enabledOf(u"toBack moveUp moveDown toFront removeColors reverse sortNumbers"_s),
                  QString::fromLatin1(step.enabled))
            << step.button;
    }
    find<CKvQtColorComboBox>("newColor")->setColorIndex(140);
    click("addColor");
    click("addColor");
    find<CKvQtColorComboBox>("newColor")->setColorIndex(0);
    click("addColor");
    EXPECT_EQ(order(), u"140 0"_s) << "a colour is added once";
    EXPECT_EQ(list()->currentRow(), 1);
    list()->setFocus();
    QTest::keyClick(list(), Qt::Key_Delete);
    EXPECT_EQ(order(), u"140"_s);
}

TEST_F(DrawOderColor, LispLearnsTheOrderWithOkAlone)
{
    showColors(u"1 2 3"_s, u"newcolor=5\n"_s);
    selectRows(list(), {2});
    click("toBack");
    click("acceptButton");
    EXPECT_TRUE(isAccepted());
    EXPECT_EQ(missingInState({u"lstcolors=3^1^2^"_s, u"!action!=OK"_s, u"newcolor=5"_s}), QStringList());
    showColors(u"2 1"_s);
    EXPECT_EQ(order(), u"2 1"_s) << "each call starts from its arguments";
    EXPECT_EQ(focusName(), u"lstColors"_s);
}

TEST_F(DrawOderColor, AFavouriteBringsItsOrderAndLosesNoColourOfTheDrawing)
{
    showColors(u"7 3 2 1"_s);
    find<QComboBox>("cb_favorits")->setEditText(u"House"_s);
    click("saveFavorite");
    showColors(u"1 2 5 9 3"_s);
    pick(u"House"_s);
    EXPECT_EQ(order(), u"7 3 2 1 5 9"_s);
    EXPECT_EQ(tableRows("lstColors").value(4), u"5 Blue"_s);
    click("acceptButton");
    EXPECT_EQ(missingInState({u"lstcolors=7^3^2^1^5^9^"_s}), QStringList());
    showColors({});
    EXPECT_EQ(order(), QString());
    pick(u"House"_s);
    EXPECT_EQ(order(), u"7 3 2 1"_s);
}

} // namespace
