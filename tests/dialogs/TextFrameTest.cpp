#include "dialogs/textframe/Dlg_QT_TextFrame.h"
#include "tests/dialogs/DialogTest.h"

#include <QLocale>

using namespace ortakit::test;
using namespace Qt::StringLiterals;

namespace {

using TextFrame = DialogTest<Dlg_QT_TextFrame>;

TEST_F(TextFrame, WhatCanBeChosenFollowsTheOtherChoices)
{
    const struct
    {
        const char *clicked;
        bool constantGroup;
        bool color;
    } steps[] = {
        {"constant", true, false},        {"type_circle", false, false},  {"constant", false, false},
        {"bk_hatch", false, true},        {"type_rectangle", true, true}, {"variable", false, true},
        {"type_slot", false, true},       {"constant", true, true},       {"type_circle", false, true},
        {"bk_transparent", false, false}, {"type_slot", true, false},
    };
    show();
    for (const auto &step : steps) {
        click(step.clicked);
        EXPECT_EQ(isEnabled("groupConstant"), step.constantGroup) << step.clicked;
        EXPECT_EQ(isEnabled("txbk"), step.color) << step.clicked;
        EXPECT_EQ(isEnabled("color"), step.color) << step.clicked;
    }
}

TEST_F(TextFrame, OffsetTakesWhatLispReadsAsANumber)
{
    const struct
    {
        const char *typed;
        const char *taken;
    } rows[] = {
        {"12.5", "12.5"},  {"-1", "1"},  {"abc", ""},   {"1,5", "15"},
        {"1,000", "1000"}, {".5", ".5"}, {"1e3", "13"}, {"0", "0"},
    };
    // A locale with a decimal comma changes nothing: the text goes to Lisp as it is.
    const QLocale before;
    for (const QLocale &locale : {QLocale::c(), QLocale(QLocale::German, QLocale::Germany)}) {
        QLocale::setDefault(locale);
        dialog = std::make_unique<Dlg_QT_TextFrame>(&window);
        show();
        for (const auto &row : rows) {
            setText("offset", {});
            QTest::keyClicks(find("offset"), QString::fromLatin1(row.typed));
            EXPECT_EQ(text("offset"), QString::fromLatin1(row.taken))
                << row.typed << " in " << locale.name().toStdString();
        }
    }
    QLocale::setDefault(before);
}

TEST_F(TextFrame, ConfirmingWritesTheChoices)
{
    showWith(u"type_rectangle=TRUE\noffset=0.5\nconstant=TRUE\nconstant_both=TRUE\nbk_hatch=TRUE\ncolor=3\n"_s);
    EXPECT_TRUE(isEnabled("groupConstant"));
    EXPECT_TRUE(isEnabled("color"));
    EXPECT_EQ(focusName(), u"offset"_s);
    setText("offset", {});
    click("acceptButton");
    EXPECT_TRUE(isAccepted());
    EXPECT_EQ(savedState(), u"type_slot=FALSE\n!action!=\ntype_rectangle=TRUE\ntype_circle=FALSE\nconstant=TRUE\n"
                            "variable=FALSE\nconstant_width=FALSE\nconstant_height=FALSE\nconstant_both=TRUE\n"
                            "bk_transparent=FALSE\nbk_hatch=TRUE\ncolor=3\ncolor_index=4\n"_s);
}

} // namespace
