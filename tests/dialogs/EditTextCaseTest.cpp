#include "dialogs/edittextcase/Dlg_QT_EditTextCase.h"
#include "tests/dialogs/DialogTest.h"

using namespace ortakit::test;
using namespace Qt::StringLiterals;

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
        showWith(u"referenceedit=a B\n"_s + lines);
        EXPECT_EQ(checked(), given) << what;
        EXPECT_EQ(focusName(), u"radioButton%1"_s.arg(given)) << what;
        click(qPrintable(u"radioButton%1"_s.arg(chosen)));
    }
}

TEST_F(EditTextCase, EachCallHasItsText)
{
    showWith(u"referenceedit=ONE\nradiobutton2=TRUE\n"_s);
    EXPECT_EQ(preview(), u"one"_s);
    showWith(u"referenceedit=TWO...\n"_s);
    EXPECT_EQ(preview(), u"two..."_s);
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

} // namespace
