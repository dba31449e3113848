#include "state/ToolDialog.h"

#include "tests/support/ModuleTest.h"

#include <QLineEdit>
#include <QPushButton>
#include <QTest>

namespace {

/// A tool that writes down what happens to it.
class SampleTool final : public ToolDialog
{
public:
    using ToolDialog::acceptWith;

    QStringList events;
    QLineEdit *name = new QLineEdit(this);
    QPushButton *cancel = new QPushButton(this);

    SampleTool() : ToolDialog(nullptr, u"textframe"_s)
    {
        name->setObjectName(u"name"_s);
        name->resize(400, 20);
        cancel->setObjectName(u"ButtonCancel"_s);
        setUpButtons();
    }

protected:
    void beforeShow() override { log(u"before"_s); }
    void beforeFirstShow() override { log(u"first"_s); }
    Reentry reentry() const override
    {
        const QString action = state().lookup(u"!Action!"_s);
        return action.isEmpty() ? Reentry::LastFile : action == u"CREATE"_s ? Reentry::WholeState : Reentry::Nothing;
    }
    void afterShow() override { log(u"after"_s); }

private:
    void log(const QString &event) { events.append(event + u':' + name->text()); }
};

TEST(ToolDialog, AppliesTheStateWhenItIsFirstShownAndThenWhatTheReentrySays)
{
    const FakeHost host;
    SampleTool tool;
    const std::pair<QByteArray, QString> calls[] = {
        {"name=a\n", u"before: first: after:a"_s},
        {"name=b\n", u"before:typed after:b"_s},
        {"other=1\n", u"before:typed after:typed"_s},
        {"!action!=CREATE\n", u"before:typed after:b"_s},
        {"name=c\n!action!=RETURN\n", u"before:typed after:typed"_s},
    };
    for (const auto &[file, events] : calls) {
        tool.events.clear();
        tool.state().load(host.writeFile(u"state"_s, file));
        tool.show();
        EXPECT_EQ(tool.events.join(u' '), events) << file.toStdString();
        tool.name->setText(u"typed"_s);
        tool.hide();
    }
}

// Typed dots are no shortened text, and a shortened text is whole where it is worked on.
TEST(ToolDialog, TheStateFollowsWhatIsTyped)
{
    const QString large = u"word "_s.repeated(100) + u"end"_s;
    const QString dots = u"... "_s.repeated(100) + u"end"_s;
    struct Row
    {
        QString given, typed, whole, written;
    };
    const Row rows[] = {
        {u"Old text"_s, u" ......"_s, u"Old text ......"_s, u"Old text ......"_s},
        {u"Old text"_s, u"\u2026"_s, u"Old text\u2026"_s, u"Old text\u2026"_s},
        {large, {}, large, large},
        {large, u"!"_s, large + u'!', large + u'!'},
        {dots, u"!"_s, dots + u'!', dots + u'!'},
        {dots, {}, dots, u"first"_s}, // what is given with dots leaves the text of before
    };
    const FakeHost host;
    for (const auto &[given, typed, whole, written] : rows) {
        SampleTool tool;
        tool.state().load(host.writeFile(u"state"_s, "name=first\n"));
        tool.show();
        tool.hide();
        tool.state().load(host.writeFile(u"state"_s, "name=" + given.toUtf8() + '\n'));
        tool.show();
        ASSERT_TRUE(QTest::qWaitForWindowActive(&tool));
        for (int visit = 0; visit < 2; ++visit) {
            tool.name->setFocus();
            EXPECT_EQ(tool.name->text(), visit == 0 ? given : whole);
            tool.name->end(false);
            if (visit == 0 && !typed.isEmpty())
                tool.name->insert(typed);
            tool.cancel->setFocus();
            EXPECT_LE(tool.name->fontMetrics().horizontalAdvance(tool.name->text()), tool.name->width());
        }
        tool.name->resize(4000, 20);
        EXPECT_EQ(tool.name->text(), whole) << "in a larger field";
        tool.state().save();
        EXPECT_EQ(FakeHost::readFile(tool.state().filePath()),
                  "\xEF\xBB\xBFname=" + written.toUtf8() + "\n!action!=\n");
    }
}

TEST(ToolDialog, AnswersTheLispProgramThroughTheStateFile)
{
    const FakeHost host;
    SampleTool tool;
    tool.state().load(host.writeFile(u"state"_s, "name=a\n"));
    ModalAnswers user;
    user.drive([&](QWidget *) { tool.acceptWith(u"CREATE"_s); });
    EXPECT_EQ(tool.exec(), QDialog::Accepted);
    tool.state().save();
    EXPECT_EQ(FakeHost::readFile(tool.state().filePath()), "\xEF\xBB\xBFname=a\n!action!=CREATE\n");

    user.drive([&](QWidget *) { tool.cancel->click(); });
    EXPECT_EQ(tool.exec(), QDialog::Rejected);
}

} // namespace
