#include "dialogs/drawordercolor/Dlg_QT_DrawOderColor.h"
#include "platform/widgets/CKvQtColorComboBox.h"
#include "tests/dialogs/DialogTest.h"

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
};

TEST_F(DrawOderColor, ReadsEachStringAsANumberWithoutItsSign)
{
    const std::tuple<QString, QString, QString> rows[] = {
        {u"3 -7 0 256"_s, u"3 7 0 256"_s, u"3 Green^7 White^0 ByBlock^256 ByLayer"_s},
        {u"30 3 3"_s, u"30 3 3"_s, u"Color 30^3 Green^3 Green"_s},
        {u"abc 2x 1.5 +4"_s, u"0 0 0 4"_s, u"0 ByBlock^0 ByBlock^0 ByBlock^4 Cyan"_s},
        {u"257 -32767"_s, u"257 32767"_s, u"257 (no color)^32767 (no color)"_s},
        {u"32768 -9223372036854775808 99999999999999999999"_s, u"0 0 0"_s, u"0 ByBlock^0 ByBlock^0 ByBlock"_s},
        {{}, {}, {}},
    };
    for (const auto &[arguments, numbers, shown] : rows) {
        showColors(arguments, u"lstcolors=5^6^\n"_s);
        EXPECT_EQ(order(), numbers);
        EXPECT_EQ(tableRows("lstColors").join(u'^'), shown) << "the arguments alone";
        dialog->grab(); // the picture takes them all
    }
}

TEST_F(DrawOderColor, TheOrderIsWhatTheButtonsMakeOfIt)
{
    const QString all = u"toBack moveUp moveDown toFront removeColors reverse sortNumbers"_s;
    // The selected rows, and the order and what is enabled afterwards.
    const std::tuple<const char *, QList<int>, QString, QString> steps[] = {
        {"toFront", {1, 3}, u"1 3 2 30"_s, u"toBack moveUp removeColors reverse sortNumbers"_s},
        {"moveUp", {2, 3}, u"1 2 30 3"_s, all},
        {"reverse", {0}, u"3 30 2 1"_s, u"toBack moveUp removeColors reverse sortNumbers"_s},
        {"sortNumbers", {0}, u"1 2 3 30"_s, all},
        {"toBack", {3}, u"30 1 2 3"_s, u"moveDown toFront removeColors reverse sortNumbers"_s},
        {"removeColors", {0, 1, 3}, u"2"_s, u"removeColors"_s},
        {"removeColors", {0}, {}, {}},
    };
    showColors(u"1 2 3 30"_s);
    for (const auto &[button, rows, after, enabled] : steps) {
        selectRows(list(), rows);
        click(button);
        EXPECT_EQ(order(), after) << button;
        EXPECT_EQ(enabledOf(all), enabled) << button;
    }
    for (const int color : {140, 140, 0}) {
        find<CKvQtColorComboBox>("newColor")->setColorIndex(color);
        click("addColor");
    }
    EXPECT_EQ(order(), u"140 0"_s) << "a colour is added once";
    EXPECT_EQ(list()->currentRow(), 1);
    list()->setFocus();
    QTest::keyClick(list(), Qt::Key_Delete);
    EXPECT_EQ(order(), u"140"_s);
}

TEST_F(DrawOderColor, AFavouriteBringsItsOrderAndLosesNoColourOfTheDrawing)
{
    showColors(u"7 3 2 1"_s);
    saveFavourite("cb_favorits", "saveFavorite", u"House"_s);
    showColors(u"1 2 5 9 3"_s);
    pickFavourite("cb_favorits", u"House"_s);
    EXPECT_EQ(order(), u"7 3 2 1 5 9"_s);
    EXPECT_EQ(tableRows("lstColors").value(4), u"5 Blue"_s);
    click("acceptButton");
    EXPECT_EQ(missingInState({u"lstcolors=7^3^2^1^5^9^"_s}), QStringList());
    showColors({});
    EXPECT_EQ(order(), QString());
    pickFavourite("cb_favorits", u"House"_s);
    EXPECT_EQ(order(), u"7 3 2 1"_s);
}

} // namespace
