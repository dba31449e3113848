#include "host/app/window/settings/SettingsWindow.h"

#include "host/app/window/MainWindow.h"
#include "host/app/window/settings/SettingEditor.h"
#include "host/app/workbench/ProgramLanguage.h"
#include "host/kernel/variables/HostVariables.h"
#include "host/kernel/variables/SystemVariables.h"
#include "tests/app/AppFixture.h"

#include <QAction>
#include <QCheckBox>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QSpinBox>

#include <gtest/gtest.h>
#include <set>

using namespace host::app;
using namespace host::app::test;
using namespace Qt::StringLiterals;

namespace {

TEST(SettingsTable, RowsAreOfVariablesThatThereAre)
{
    std::set<QString> sections;
    QString section;
    for (const SettingRow &row : settingRows()) {
        SCOPED_TRACE(row.name);
        if (const QString own = QString::fromLatin1(row.section); own != section) {
            section = own;
            EXPECT_TRUE(sections.insert(own).second) << "a section stands together";
        }
        if (row.form == SettingForm::Choice)
            for (const QString &choice : QString::fromUtf8(row.choices).split(u'|')) {
                bool isNumber = false;
                choice.section(u'=', 0, 0).toInt(&isNumber);
                EXPECT_TRUE(isNumber && !choice.section(u'=', 1).isEmpty()) << choice.toStdString();
            }
        if (row.name[0] == '@')
            continue;
        const host::kernel::HostVariable *variable = host::kernel::findHostVariable(QString::fromLatin1(row.name));
        ASSERT_TRUE(variable);
        EXPECT_EQ(variable->access, host::kernel::VariableAccess::ReadWrite);
        const bool isText = row.form == SettingForm::Text || row.form == SettingForm::Folders;
        EXPECT_EQ(std::holds_alternative<QString>(variable->initial), isText);
        EXPECT_EQ(std::holds_alternative<double>(variable->initial), row.form == SettingForm::Real);
    }
}

struct SettingsWindowTest : testing::Test, TestFolder
{
    SettingsWindowTest()
    {
        program = write(u"start.lsp"_s, "(setq started T)");
        window = std::make_unique<MainWindow>(
            WorkbenchOptions{.home = path(u"home"_s), .module = path(u"none.so"_s), .tools = path(u"none"_s)});
        window->show();
        window->start({write(u"small.dxf"_s, smallDrawing())});
        const QList<QAction *> actions = window->findChildren<QAction *>();
        (*std::ranges::find(actions, QKeySequence(u"Ctrl+,"_s), &QAction::shortcut))->trigger();
        settings = window->findChild<SettingsWindow *>();
    }
    ~SettingsWindowTest() override { applyStyle(Style::Light); }

    template <typename Widget>
    Widget &field(const QString &name)
    {
        return *settings->findChild<SettingEditor *>(name)->findChild<Widget *>();
    }
    void typeInto(const QString &name, const QString &text)
    {
        auto &line = field<QLineEdit>(name);
        line.setText(text);
        emit line.editingFinished();
    }
    QString message() { return settings->findChild<QLabel *>(u"settingsMessage"_s)->text(); }
    QString lisp(const QString &text) { return window->document()->run(text).value; }

    QString program;
    std::unique_ptr<MainWindow> window;
    SettingsWindow *settings = nullptr;
};

TEST_F(SettingsWindowTest, TheLanguageCountsFromTheNextStart)
{
    ProgramOptions next;
    next.home = path(u"home"_s);
    auto &language = field<QComboBox>(u"@language"_s);
    for (const auto &[choice, code] : {std::pair("2", "de"), {"5", "it"}, {"1", "en"}}) {
        language.setCurrentIndex(language.findData(QString::fromLatin1(choice)));
        emit language.activated(language.currentIndex());
        EXPECT_STREQ(programLanguage(next).code, code);
        EXPECT_STREQ(host::kernel::currentLanguage().code, "en") << "windows that are open stay";
    }
    ProgramOptions told = next;
    told.language = u"fr"_s;
    EXPECT_STREQ(programLanguage(told).code, "fr");
    // Scripts and sessions read English, whatever a person's window speaks.
    language.setCurrentIndex(language.findData(u"2"_s));
    emit language.activated(language.currentIndex());
    ProgramOptions batch = next;
    batch.hasWindow = false;
    ProgramOptions session = next;
    session.session = u"s"_s;
    for (const ProgramOptions &unattended : {batch, session})
        EXPECT_STREQ(programLanguage(unattended).code, "en");
}

TEST_F(SettingsWindowTest, ChangesCountAtOnceAndFollowOthers)
{
    lisp(u"(setvar \"OSMODE\" 5)"_s);
    field<QCheckBox>(u"OSMODE.4"_s).click();
    field<QCheckBox>(u"OSMODE.32"_s).click();
    EXPECT_EQ(lisp(u"(getvar \"OSMODE\")"_s), u"33"_s) << "a switch of a bit leaves the others alone";
    field<QSpinBox>(u"PICKBOX"_s).setValue(9);
    EXPECT_EQ(lisp(u"(getvar \"PICKBOX\")"_s), u"9"_s);
    auto &units = field<QComboBox>(u"LUNITS"_s);
    units.setCurrentIndex(units.findData(u"4"_s));
    emit units.activated(units.currentIndex());
    EXPECT_EQ(lisp(u"(getvar \"LUNITS\")"_s), u"4"_s);
    typeInto(u"LTSCALE"_s, u"2.5"_s);
    EXPECT_EQ(lisp(u"(getvar \"LTSCALE\")"_s), u"2.5"_s);
    for (const QString &wrong : {u"-1"_s, u"1) (exit"_s, QString()}) {
        typeInto(u"LTSCALE"_s, wrong);
        EXPECT_TRUE(message().startsWith(u"LTSCALE cannot be"_s)) << message().toStdString();
        EXPECT_EQ(lisp(u"(getvar \"LTSCALE\")"_s), u"2.5"_s);
    }
    window->enter(u"(setvar \"PICKBOX\" 7)"_s);
    EXPECT_EQ(field<QSpinBox>(u"PICKBOX"_s).value(), 7);
    typeInto(u"TRUSTEDPATHS"_s, u"C:\\a \"b\";/x y"_s);
    EXPECT_EQ(window->document()->variables().text(u"TRUSTEDPATHS"), u"C:\\a \"b\";/x y"_s);
    window->workbench().documents().close(window->document());
    EXPECT_FALSE(settings->findChild<SettingEditor *>(u"PICKBOX"_s)->isEnabled());
    EXPECT_TRUE(settings->findChild<SettingEditor *>(u"@style"_s)->isEnabled());
}

TEST_F(SettingsWindowTest, TheWindowsOwnAreKept)
{
    typeInto(u"@programs"_s, u"start.lsp"_s);
    EXPECT_TRUE(message().contains(u"start.lsp is no full path"_s)) << message().toStdString();
    typeInto(u"@programs"_s, program);
    EXPECT_EQ(message(), QString());
    window->workbench().documents().create();
    EXPECT_EQ(lisp(u"started"_s), u"T"_s);
    auto &style = field<QComboBox>(u"@style"_s);
    style.setCurrentIndex(1);
    emit style.activated(1);
    EXPECT_EQ(currentStyle(), Style::Dark);
}

TEST_F(SettingsWindowTest, SearchingShowsWhatIsMeant)
{
    const auto shown = [this] {
        QStringList names;
        for (const SettingEditor *editor : settings->findChildren<SettingEditor *>())
            if (editor->isVisible())
                names.append(editor->objectName());
        return names;
    };
    settings->search(u"size GRIP"_s);
    EXPECT_EQ(shown(), QStringList{u"GRIPSIZE"_s});
    settings->search(u"trust folder"_s);
    EXPECT_TRUE(shown().contains(u"TRUSTEDPATHS"_s) && shown().contains(u"READPATHS"_s));
    settings->search(u"nothing like this"_s);
    EXPECT_EQ(shown(), QStringList());
}

} // namespace
