// What the window's palette offers, and the other ways to what was entered and can be run.

#include "host/app/window/MainWindow.h"
#include "host/app/window/entry/CommandLine.h"
#include "host/app/window/entry/CommandRunner.h"
#include "host/app/window/frame/CommandPalette.h"
#include "host/app/workbench/Suggestions.h"
#include "host/kernel/languages/Texts.h"
#include "host/kernel/running/CommandTable.h"
#include "host/kernel/variables/SystemVariables.h"
#include "host/kernel/variables/VariableHelp.h"

#include <QAction>
#include <QMenu>
#include <QMenuBar>

using namespace Qt::StringLiterals;

namespace host::app {

namespace {

QString plainText(const QString &caption)
{
    // Of "&&" one is left, of "&" none.
    return QString(caption).replace(u"&&"_s, u"\n"_s).remove(u'&').replace(u'\n', u'&');
}

/// A row an entry of the menus, those within included.
void addEntries(const QList<QAction *> &actions, const QString &path, const QString &obstacle, QList<PaletteRow> &rows)
{
    for (QAction *action : actions) {
        const QString title = path + plainText(action->text());
        if (action->menu()) {
            addEntries(action->menu()->actions(), title + u" > "_s, obstacle, rows);
            continue;
        }
        if (action->isSeparator() || action->text().isEmpty())
            continue;
        const QString name = action->objectName();
        const QString command = name.startsWith(u'_') ? name.sliced(1) : name;
        rows.append({.id = name.isEmpty() ? title : command,
                     .title = title,
                     .words = command,
                     .keys = action->shortcut().toString(QKeySequence::NativeText),
                     .help = action->statusTip(),
                     .obstacle = action->isEnabled() ? QString() : obstacle,
                     .run = [action] { action->trigger(); }});
    }
}

} // namespace

QList<Suggestion> MainWindow::namesThatFit(const QString &typed)
{
    constexpr qsizetype mostNames = 60;
    if (const std::optional<kernel::PromptRequest> &request = m_runner->request())
        return request->kind == kernel::PromptKind::String ? QList<Suggestion>()
                                                           : suggestedKeywords(request->keywords, typed);
    return document() && !m_runner->isBusy() ? suggestionsAt(*document(), typed, mostNames) : QList<Suggestion>();
}

void MainWindow::showPalette()
{
    if (!m_palette) {
        m_palette = new CommandPalette(this);
        m_palette->setRecent(m_recentlyRun);
    }
    QList<PaletteRow> rows;
    addEntries(menuBar()->actions(), {}, m_runner->isBusy() ? tr("not while something runs") : tr("not possible now"),
               rows);
    if (document())
        addLines(rows);
    m_palette->open(rows);
}

/// What can be typed and is in no menu.
void MainWindow::addLines(QList<PaletteRow> &rows)
{
    const auto add = [this, &rows](const QString &name, const QString &help, bool isForPrompts) {
        const bool canRun = !m_runner->isBusy() || (isForPrompts && m_runner->takesCommand());
        rows.append({.id = name,
                     .title = name,
                     .words = {},
                     .keys = {},
                     .help = help,
                     .obstacle = canRun ? QString() : tr("not while something runs"),
                     .run = [this, name] { m_runner->start(name); }});
    };
    for (const kernel::CommandRow &row : kernel::CommandTable::all())
        add(QString::fromLatin1(row.name), kernel::HelpLines::tr(row.help),
            row.interrupts == kernel::Interrupts::Prompts);
    for (const QString &name : programCommands(*document()))
        add(name, tr("command of a program"), false);
    for (const QString &name : document()->variables().names())
        add(name, tr("system variable: %1").arg(kernel::HelpLines::tr(kernel::variableHelp(name))), true);
}

void MainWindow::toggleLongHistory()
{
    const bool isLong = m_commandDock->height() > height() / 2;
    if (!isLong)
        m_shortHistory = m_commandDock->height();
    const int wanted = isLong ? m_shortHistory : height() * 3 / 4;
    if (m_commandDock->isFloating())
        m_commandDock->resize(m_commandDock->width(), wanted);
    else
        resizeDocks({m_commandDock}, {wanted}, Qt::Vertical);
    if (isLong)
        m_commandLine->setFocus();
    else
        m_commandLine->showHistory();
}

} // namespace host::app
