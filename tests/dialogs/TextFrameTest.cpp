#include "dialogs/textframe/Dlg_QT_TextFrame.h"
#include "tests/dialogs/DialogTest.h"

#include <QLocale>

using namespace ortakit::test;
using namespace Qt::StringLiterals;

namespace {

using TextFrame = DialogTest<Dlg_QT_TextFrame>;

TEST_F(TextFrame, WhatCanBeChosenFollowsTheOtherChoices)
{
    const std::pair<const char *, QString> steps[] = {
        {"constant", u"groupConstant"_s},
        {"type_circle", {}},
        {"constant", {}},
        {"bk_hatch", u"txbk color"_s},
        {"type_rectangle", u"groupConstant txbk color"_s},
        {"variable", u"txbk color"_s},
        {"bk_transparent", {}},
    };
    show();
    for (const auto &[clicked, enabled] : steps) {
        click(clicked);
        EXPECT_EQ(enabledOf(u"groupConstant txbk color"_s), enabled) << clicked;
    }
}

TEST_F(TextFrame, OffsetTakesWhatLispReadsAsANumber)
{
    const std::pair<const char *, const char *> rows[] = {
        {"-1", "1"}, {"abc", ""}, {"1,5", "15"}, {"1,000", "1000"}, {".5", ".5"}, {"1e3", "13"},
    };
    // A locale with a decimal comma changes nothing: the text goes to Lisp as it is.
    const QLocale before;
    for (const QLocale &locale : {QLocale::c(), QLocale(QLocale::German, QLocale::Germany)}) {
        QLocale::setDefault(locale);
        dialog = std::make_unique<Dlg_QT_TextFrame>(&window);
        show();
        for (const auto &[typed, taken] : rows) {
            setText("offset", {});
            QTest::keyClicks(find("offset"), QString::fromLatin1(typed));
            EXPECT_EQ(text("offset"), QString::fromLatin1(taken)) << typed << " in " << locale.name().toStdString();
        }
    }
    QLocale::setDefault(before);
}

TEST_F(TextFrame, ShowsWhatTheStateChooses)
{
    showWith(u"type_rectangle=TRUE\noffset=0.5\nconstant=TRUE\nbk_hatch=TRUE\ncolor=3\n"_s);
    EXPECT_EQ(enabledOf(u"groupConstant color"_s), u"groupConstant color"_s);
    EXPECT_EQ(focusName(), u"offset"_s);
}

} // namespace
