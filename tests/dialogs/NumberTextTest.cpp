#include "dialogs/numbertext/Dlg_QT_numbertext.h"
#include "tests/dialogs/DialogTest.h"

#include <QStackedWidget>

using namespace ortakit::test;
using namespace Qt::StringLiterals;

namespace {

using NumberText = DialogTest<Dlg_QT_numbertext>;

TEST_F(NumberText, ThePlacementSaysWhatElseIsAsked)
{
    const std::pair<const char *, const char *> steps[] = {
        {"placement_prefix", "page"},
        {"placement_replace", "page_2"},
        {"placement_over", "page_3"},
        {"placement_sufix", "page"},
    };
    showWith(u"placement_over=TRUE\nsearch=No.\n"_s);
    const auto *pages = find<QStackedWidget>("pages");
    EXPECT_EQ(pages->currentWidget(), find("page_3")) << "after the state";
    EXPECT_EQ(focusName(), u"tx_init"_s);
    for (const auto &[clicked, page] : steps) {
        click(clicked);
        EXPECT_EQ(pages->currentWidget(), find(page)) << clicked;
        EXPECT_EQ(text("search"), u"No."_s) << clicked;
    }
}

} // namespace
