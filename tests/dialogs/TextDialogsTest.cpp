// The dialogs of the tools for texts.

#include "dialogs/edittextcase/Dlg_QT_EditTextCase.h"
#include "dialogs/numbertext/Dlg_QT_numbertext.h"
#include "dialogs/textframe/Dlg_QT_TextFrame.h"
#include "dialogs/textmask/Dlg_QT_TextMask.h"
#include "tests/dialogs/DialogTest.h"

#include <QLocale>
#include <QStackedWidget>

namespace {

class EditTextCase : public DialogTest<Dlg_QT_EditTextCase>
{
protected:
    QString preview() const { return find<QLabel>("previewLabel")->text(); }
    int checked() const
    {
        for (int number = 1; number <= 5; ++number) {
            if (isChecked(qPrintable(u"radioButton%1"_s.arg(number))))
                return number;
        }
        return 0;
    }
    /// The state of style `number` as it is saved.
    static QString state(int number, const QString &modeName)
    {
        QString lines;
        for (int button = 1; button <= 5; ++button) {
            lines += u"radiobutton%1=%2\n"_s.arg(button).arg(button == number ? u"TRUE"_s : u"FALSE"_s);
            if (button == 1)
                lines += u"!action!=\n"_s;
        }
        return lines + u"current=%1\n"_s.arg(modeName);
    }
};

TEST_F(EditTextCase, EachStyleShowsItsPreviewAtOnceAndIsSavedUnderItsName)
{
    const std::tuple<int, QString, QString> rows[] = {
        {5, u"toGgle"_s, u"THE (BIG) dOG & <B>"_s}, {1, u"Sentence"_s, u"The (big) dog & <b>"_s},
        {2, u"Lower"_s, u"the (big) dog & <b>"_s},  {3, u"Upper"_s, u"THE (BIG) DOG & <B>"_s},
        {4, u"Title"_s, u"The (big) Dog & <b>"_s},
    };
    for (const auto &[number, modeName, text] : rows) {
        showWith(u"referenceedit=the (big) Dog & <b>\n"_s);
        click(qPrintable(u"radioButton%1"_s.arg(number)));
        EXPECT_EQ(preview(), text);
        click("okButton");
        EXPECT_TRUE(isAccepted());
        EXPECT_EQ(savedState(), state(number, modeName));
    }
}

// The dialog is kept: what this call's file says counts, then what the user chose last.
TEST_F(EditTextCase, StyleIsPreselected)
{
    showWith({});
    EXPECT_EQ(checked(), 1);
    EXPECT_EQ(preview(), u"This is a sample text for kora"_s);

    // The style that is given then, and the one that the user chooses after it.
    const std::tuple<const char *, QString, int, int> rows[] = {
        {"a checked option", u"radiobutton1=FALSE\nradiobutton3=TRUE\n"_s, 3, 4},
        {"nothing", {}, 4, 3},
        {"a name alone", u"current=Lower\n"_s, 2, 3},
        {"the same name again", u"current=Lower\n"_s, 2, 1},
        {"an unknown name", u"current=Other\n"_s, 1, 4},
        {"what was saved", state(5, u"toGgle"_s), 5, 2},
        {"an option and another name", u"radiobutton4=TRUE\ncurrent=Upper\n"_s, 4, 3},
        {"options that are all unchecked", u"radiobutton3=FALSE\nradiobutton4=FALSE\n"_s, 3, 1},
    };
    for (const auto &[what, lines, given, chosen] : rows) {
        const QString shown = QString::fromLatin1(what) + u"..."_s;
        showWith(u"referenceedit=%1\n"_s.arg(shown) + lines);
        EXPECT_EQ(checked(), given) << what;
        EXPECT_EQ(preview().toLower(), shown.toLower()) << "each call has its text";
        EXPECT_EQ(focusName(), u"radioButton%1"_s.arg(given)) << what;
        click(qPrintable(u"radioButton%1"_s.arg(chosen)));
    }
}

TEST_F(EditTextCase, LongTextsAreCutAndTheirToolTipSaysMore)
{
    showWith({});
    const QSize size = dialog->size();
    auto *label = find<QLabel>("previewLabel");
    const std::tuple<const char *, QString, bool> rows[] = {
        {"short", u"<b>one</b> & two"_s, false},
        {"words", u"some <b>words "_s.repeated(100), true},
        {"one word", QString(10'000'000, u'i'), true},
        {"surrogates", u"\U0001F600"_s.repeated(5000), true},
    };
    for (const auto &[what, text, isCut] : rows) {
        label->setText(text);
        label->grab();
        EXPECT_EQ(!label->toolTip().isEmpty(), isCut) << what;
        EXPECT_FALSE(label->toolTip().contains(u"<b>"_s)) << what;
        QCoreApplication::processEvents();
        EXPECT_EQ(dialog->size(), size) << what;
    }
}

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

using TextFrame = DialogTest<Dlg_QT_TextFrame>;

TEST_F(TextFrame, WhatCanBeChosenFollowsTheOtherChoices)
{
    const std::pair<const char *, QString> steps[] = {
        {"type_circle", u"txbk color"_s},
        {"constant", u"txbk color"_s},
        {"type_rectangle", u"groupConstant txbk color"_s},
        {"variable", u"txbk color"_s},
        {"bk_transparent", {}},
        {"constant", u"groupConstant"_s},
        {"bk_hatch", u"groupConstant txbk color"_s},
    };
    showWith(u"type_rectangle=TRUE\noffset=0.5\nconstant=TRUE\nbk_hatch=TRUE\ncolor=3\n"_s);
    EXPECT_EQ(enabledOf(u"groupConstant txbk color"_s), u"groupConstant txbk color"_s);
    EXPECT_EQ(focusName(), u"offset"_s);
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

class TextMask : public DialogTest<Dlg_QT_TextMask>
{
protected:
    TextMask() { database().addVariable(u"WIPEOUTFRAME"_s, 2); }
    FakeDatabase &database() { return host.document().fakeDatabase(); }
    /// Values that were written since the last call.
    QString takeSettings()
    {
        const QString now = database().settings().mid(m_seen).join(u' ').remove(u"WIPEOUTFRAME="_s);
        m_seen = database().settings().size();
        return now;
    }

private:
    qsizetype m_seen = 0;
};

TEST_F(TextMask, FramesAreHiddenWhileMaskIsChosen)
{
    const std::tuple<const char *, QString, QString> steps[] = {
        {"type_solid", u"2"_s, u"color label_9"_s},
        {"type_mask", u"0"_s, {}},
        {"type_mask", {}, {}},
        {"type_3dface", u"2"_s, {}},
    };
    EXPECT_EQ(takeSettings(), QString()) << "making the dialog changes nothing";
    showWith(u"type_mask=TRUE\noffset=1\n"_s);
    EXPECT_EQ(takeSettings(), u"0"_s);
    for (const auto &[clicked, written, enabled] : steps) {
        click(clicked);
        EXPECT_EQ(takeSettings(), written) << clicked;
        EXPECT_EQ(enabledOf(u"color label_9"_s), enabled) << clicked;
    }
    dialog.reset();
    EXPECT_EQ(takeSettings(), QString()) << "it is the saved one already";
}

TEST_F(TextMask, CancelPutsBackWhatThereWasAndConfirmingKeepsTheMaskSetting)
{
    showWith(u"type_mask=TRUE\noffset=1\n"_s);
    click("ButtonCancel");
    EXPECT_EQ(takeSettings(), u"0 2"_s);
    show();
    QTest::keyClick(dialog.get(), Qt::Key_Escape);
    EXPECT_EQ(takeSettings(), u"0 2"_s);
    show();
    click("acceptButton");
    EXPECT_TRUE(isAccepted());
    EXPECT_EQ(takeSettings(), u"0"_s);

    // Shown again with frames hidden: that is what Cancel goes back to, while the dialog's own saved value stays.
    show();
    click("type_solid");
    click("ButtonCancel");
    EXPECT_EQ(takeSettings(), u"2 0"_s);
    dialog.reset();
    EXPECT_EQ(takeSettings(), u"2"_s);
}

TEST_F(TextMask, OutlivesItsDocument)
{
    showWith(u"type_mask=TRUE\noffset=1\n"_s);
    FakeDocument *own = &host.document();
    FakeDocument *other = host.documents().open();
    other->fakeDatabase().addVariable(u"WIPEOUTFRAME"_s, 1);
    host.documents().close(own);
    host.documents().activate(other);
    click("type_solid");
    click("type_mask");
    dialog.reset();
    EXPECT_EQ(other->fakeDatabase().settings(), QStringList()) << "another document is none of its business";
}

TEST_F(TextMask, WorksWithoutTheVariable)
{
    FakeDocument *plain = host.documents().open();
    dialog = std::make_unique<Dlg_QT_TextMask>(&window);
    showWith(u"type_mask=TRUE\noffset=1\n"_s);
    click("type_solid");
    EXPECT_TRUE(isEnabled("color"));
    dialog.reset();
    EXPECT_EQ(plain->fakeDatabase().settings(), QStringList());
}

TEST_F(TextMask, OffsetMustBeANumberOfZeroOrMore)
{
    const QLocale before;
    for (const QLocale &locale : {QLocale::c(), QLocale(QLocale::German, QLocale::Germany)}) {
        QLocale::setDefault(locale);
        for (const QString &offset : u"0|1e2||-0.5|1,5|1 2|nan|inf|1e999|1,000|0x10"_s.split(u'|')) {
            const bool isAmount = offset == u"0"_s || offset == u"1e2"_s;
            show();
            setText("offset", offset);
            EXPECT_EQ(shownBy("acceptButton").join(u' ').contains(u"Must be positive or zero."_s), !isAmount);
            EXPECT_EQ(isAccepted(), isAmount) << offset.toStdString();
            EXPECT_EQ(focusName(), u"offset"_s);
        }
    }
    QLocale::setDefault(before);
}

} // namespace
