// The workbench's own windows in every language.

#include "host/app/window/MainWindow.h"
#include "host/app/window/files/PrintDialog.h"
#include "host/kernel/languages/Languages.h"
#include "tests/app/AppFixture.h"
#include "tests/support/ShownTexts.h"

#include <QAction>
#include <QDialog>
#include <QMenu>
#include <QTest>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

using namespace host::app;
using namespace host::app::test;
using namespace Qt::StringLiterals;

namespace {

/// The environment's ORTAKIT_PICTURES names a folder for pictures of what is checked; none are made without it.
struct TranslatedWindow : testing::TestWithParam<const char *>, TestFolder
{
    TranslatedWindow()
    {
        host::kernel::useLanguage(*host::kernel::findLanguage(QString::fromLatin1(GetParam())));
        window = std::make_unique<MainWindow>(
            WorkbenchOptions{.home = path(u"home"_s), .module = path(u"none.so"_s), .tools = path(u"none"_s)});
        window->resize(1400, 900);
        window->show();
        window->start({write(u"small.dxf"_s, smallDrawing())});
        QCoreApplication::processEvents();
    }
    ~TranslatedWindow() override
    {
        window.reset();
        host::kernel::useLanguage(host::kernel::languages().front());
    }

    static void expectReadable(QWidget &shown, const QString &name)
    {
        const QString folder = qEnvironmentVariable("ORTAKIT_PICTURES");
        if (!folder.isEmpty()) {
            EXPECT_TRUE(shown.grab().save(u"%1/%2-%3.png"_s.arg(folder, QLatin1StringView(GetParam()), name)));
        }
        EXPECT_THAT(ortakit::test::cutTexts(shown), testing::IsEmpty()) << name.toStdString();
        const auto shared = ortakit::test::sharedMnemonics(shown);
        for (const QStringList &texts : shared)
            ADD_FAILURE() << name.toStdString() << ": " << texts.join(u" / "_s).toStdString();
    }

    std::unique_ptr<MainWindow> window;
};

TEST_P(TranslatedWindow, SettingsAndPrintingFit)
{
    const QList<QAction *> actions = window->findChildren<QAction *>();
    const auto settings = std::ranges::find(actions, QKeySequence(u"Ctrl+,"_s), &QAction::shortcut);
    ASSERT_NE(settings, actions.end());
    (*settings)->trigger();
    auto *dialog = window->findChild<QDialog *>(u"settingsWindow"_s);
    ASSERT_TRUE(dialog);
    ASSERT_TRUE(QTest::qWaitForWindowExposed(dialog));
    expectReadable(*dialog, u"Settings"_s);
    for (const auto purpose : {PrintDialog::Purpose::Print, PrintDialog::Purpose::SetUpPage}) {
        PrintDialog print(*window->document(), u"Model"_s, purpose, window.get());
        static_cast<QDialog &>(print).show();
        ASSERT_TRUE(QTest::qWaitForWindowExposed(&print));
        expectReadable(print, purpose == PrintDialog::Purpose::Print ? u"Print"_s : u"PageSetup"_s);
    }
}

// Within one menu each letter leads to one entry.
TEST_P(TranslatedWindow, MenusHaveLettersOfTheirOwn)
{
    int seen = 0;
    for (const QMenu *menu : window->findChildren<QMenu *>()) {
        QMap<QChar, QString> letters;
        for (const QAction *action : menu->actions()) {
            const QString text = QString(action->text()).remove(u"&&"_s);
            const qsizetype mark = text.indexOf(u'&');
            if (mark < 0 || mark + 1 >= text.size())
                continue;
            const QString other = letters.value(text[mark + 1].toLower());
            EXPECT_TRUE(other.isEmpty()) << text.toStdString() << " / " << other.toStdString();
            letters.insert(text[mark + 1].toLower(), text);
            ++seen;
        }
    }
    EXPECT_GT(seen, 50);
}

INSTANTIATE_TEST_SUITE_P(All, TranslatedWindow, testing::Values("de", "fr", "es", "it"),
                         [](const auto &test) { return std::string(test.param); });

} // namespace
