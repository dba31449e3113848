#include "dialogs/textmask/Dlg_QT_TextMask.h"
#include "tests/dialogs/DialogTest.h"

#include <QLocale>

using namespace ortakit::test;
using namespace Qt::StringLiterals;

namespace {

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
