#include "dialogs/numbertext/Dlg_QT_numbertext.h"
#include "tests/dialogs/DialogTest.h"

#include <QComboBox>
#include <QStackedWidget>

using namespace ortakit::test;
using namespace Qt::StringLiterals;

namespace {

using NumberText = DialogTest<Dlg_QT_numbertext>;

TEST_F(NumberText, ThePlacementSaysWhatElseIsAsked)
{
    const struct
    {
        const char *clicked;
        const char *page;
    } steps[] = {
        {"placement_replace", "page_2"}, {"placement_prefix", "page"},    {"placement_replace", "page_2"},
        {"placement_over", "page_3"},    {"placement_replace", "page_2"}, {"placement_sufix", "page"},
    };
    showWith(u"placement_over=TRUE\nsearch=No.\n"_s);
    const auto *pages = find<QStackedWidget>("pages");
    EXPECT_EQ(pages->currentWidget(), find("page_3")) << "after the state";
    for (const auto &step : steps) {
        click(step.clicked);
        EXPECT_EQ(pages->currentWidget(), find(step.page)) << step.clicked;
        EXPECT_EQ(find("search")->isVisible(), pages->currentWidget() == find("page_2")) << step.clicked;
        EXPECT_EQ(text("search"), u"No."_s) << step.clicked;
    }
}

TEST_F(NumberText, DigitsShowTheNumberOne)
{
    const auto *digits = find<QComboBox>("cb_digits");
    QStringList items;
    for (int i = 0; i < digits->count(); ++i)
        items.append(digits->itemText(i));
    EXPECT_EQ(items, (QStringList{u"1 [1]"_s, u"2 [01]"_s, u"3 [001]"_s, u"4 [0001]"_s, u"5 [00001]"_s, u"6 [000001]"_s,
                                  u"7 [0000001]"_s, u"8 [00000001]"_s}));
    EXPECT_EQ(digits->currentText(), u"3 [001]"_s);
}

TEST_F(NumberText, ConfirmingWritesTheChoicesAsTheyAre)
{
    showWith(u"sort_2points=TRUE\nsent_des=TRUE\nformat_prefix=(\ntx_init=seven\ncb_digits=2 [01]\n"
             "placement_replace=TRUE\nsearch=#\n"_s);
    EXPECT_EQ(focusName(), u"tx_init"_s);
    click("acceptButton");
    EXPECT_TRUE(isAccepted());
    EXPECT_EQ(savedState(), u"sort_x=FALSE\n!action!=\nsort_y=FALSE\nsort_select=FALSE\nsort_point=FALSE\n"
                            "sort_2points=TRUE\nsent_asc_2=FALSE\nsent_des=TRUE\ntx_init=seven\ntx_step=2\n"
                            "cb_digits=2 [01]\ncb_digits_index=1\nformat_prefix=(\nplacement_sufix=FALSE\n"
                            "placement_replace=TRUE\nplacement_prefix=FALSE\nplacement_over=FALSE\nsearch=#\n"_s);
}

} // namespace
