// The menu of the right button on the drawing.

#include "host/app/window/MainWindow.h"
#include "host/app/window/canvas/DrawingCanvas.h"
#include "host/app/window/entry/CommandLine.h"
#include "host/app/window/entry/CommandRunner.h"
#include "host/app/window/entry/PromptText.h"
#include "host/app/window/entry/RightButton.h"
#include "host/app/window/frame/Menus.h"
#include "host/kernel/variables/SystemVariables.h"

#include <QAction>
#include <QCursor>
#include <QMenu>

using namespace Qt::StringLiterals;

namespace host::app {

namespace {

/// Of what was entered, in the menu.
constexpr qsizetype entriesShown = 10;

} // namespace

void MainWindow::pressRightButton()
{
    kernel::Document *active = document();
    DrawingCanvas *current = canvas();
    if (!active || !current)
        return;
    const int bits = active->variables().integer(u"SHORTCUTMENU");
    const RightButtonPlace place{.isPrompt = m_runner->isBusy(),
                                 .hasOptions = m_runner->isBusy() && !promptOptions(m_commandLine->prompt()).isEmpty(),
                                 .isChosen = !active->impliedSelection().empty()};
    if (!wantsShortcutMenu(bits, place))
        enterFromCanvas({});
    else if ((bits & MenuWhenHeld) != 0)
        m_rightButton->press(*current, active->variables().integer(u"SHORTCUTMENUDURATION"));
    else
        showShortcutMenu();
}

void MainWindow::showShortcutMenu()
{
    auto *menu = new QMenu(this);
    menu->setObjectName(u"shortcutMenu"_s);
    menu->setAttribute(Qt::WA_DeleteOnClose);
    if (m_runner->isBusy())
        addPromptEntries(*menu);
    else
        addRestEntries(*menu);
    menu->addSeparator();
    for (const QString &name : {u"_PAN"_s, u"zoomExtents"_s, u"zoomWindow"_s})
        menu->addAction(m_menus->find(name));
    menu->popup(QCursor::pos());
}

void MainWindow::addPromptEntries(QMenu &menu)
{
    menu.addAction(tr("Enter"), this, [this] { enterFromCanvas({}); });
    menu.addAction(tr("Cancel"), this, &MainWindow::cancel);
    menu.addSeparator();
    for (const PromptOption &option : promptOptions(m_commandLine->prompt()))
        menu.addAction(QString(option.shown).replace(u'&', u"&&"_s), this,
                       [this, answer = option.answer] { m_runner->answer(kernel::TextAnswer{answer}); });
}

void MainWindow::addRestEntries(QMenu &menu)
{
    if (const QString last = m_runner->lastCommand(); !last.isEmpty())
        menu.addAction(tr("Repeat %1").arg(last), this, [this] { enterFromCanvas({}); });
    QMenu *recent = menu.addMenu(tr("Recent input"));
    const QStringList entries = m_commandLine->entries();
    for (qsizetype i = entries.size() - 1; i >= std::max<qsizetype>(0, entries.size() - entriesShown); --i)
        recent->addAction(QString(entries[i]).replace(u'&', u"&&"_s).left(60), this,
                          [this, entry = entries[i]] { enterFromCanvas(entry); });
    recent->setEnabled(!entries.isEmpty());
    menu.addSeparator();
    for (const QString &name : {u"_CUTCLIP"_s, u"_COPYCLIP"_s, u"_PASTECLIP"_s, u"_U"_s, u"_REDO"_s})
        menu.addAction(m_menus->find(name));
    menu.addAction(tr("Choose nothing"), this, &MainWindow::cancel)
        ->setEnabled(document() && !document()->impliedSelection().empty());
}

} // namespace host::app
