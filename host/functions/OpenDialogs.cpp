#include "host/functions/OpenDialogs.h"

#include "host/kernel/documents/Document.h"
#include "host/kernel/documents/Session.h"
#include "host/kernel/languages/Texts.h"
#include "host/kernel/lisp/LispConversion.h"
#include "host/lisp/Interpreter.h"

#include <QScopedValueRollback>

#include <algorithm>
#include <utility>

namespace host::kernel {

using namespace Qt::StringLiterals;
using lisp::Value;

namespace {

constexpr std::size_t mostFilesLoaded = 256;

const QString openDialogsName = u"openDialogs"_s;

} // namespace

OpenDialogs &OpenDialogs::of(Document &document)
{
    if (auto *found = document.findChild<QObject *>(openDialogsName, Qt::FindDirectChildrenOnly))
        return static_cast<OpenDialogs &>(*found);
    return *new OpenDialogs(document);
}

OpenDialogs::OpenDialogs(Document &document) : QObject(&document), m_document(document)
{
    setObjectName(openDialogsName);
    connect(&document, &Document::programFailed, this, [this] { finishAll(0); });
    // What a program made and never started goes with its run.
    connect(&document, &Document::runEnded, this, &OpenDialogs::forgetUnstarted);
}

int OpenDialogs::load(Loaded loaded)
{
    if (m_files.size() == mostFilesLoaded)
        m_files.erase(m_files.begin());
    m_files.emplace(++m_lastNumber, std::move(loaded));
    return m_lastNumber;
}

const OpenDialogs::Loaded *OpenDialogs::loaded(int number) const
{
    const auto found = m_files.find(number);
    return found == m_files.end() ? nullptr : &found->second;
}

OpenDialog &OpenDialogs::add(const QString &name, const dcl::Tile &tile)
{
    QWidget *parent = m_document.session().mainWindow();
    for (const std::unique_ptr<OpenDialog> &open : m_open)
        if (open->isStarted && !open->window->isFinished())
            parent = open->window.get();
    auto dialog = std::make_unique<OpenDialog>();
    dialog->window = std::make_unique<dcl::DialogWindow>(name, tile, parent);
    m_open.push_back(std::move(dialog));
    return *m_open.back();
}

int OpenDialogs::run(lisp::Interpreter &interpreter)
{
    const std::size_t place = m_open.size() - 1;
    OpenDialog &dialog = *m_open.back();
    dialog.isStarted = true;
    dialog.window->setEventListener(
        [&](const dcl::TileControl &tile, const dcl::TileEvent &event) { handle(interpreter, dialog, tile, event); });
    tellWhetherOpen();
    if (m_document.session().feeder()) {
        dialog.window->exec();
    } else {
        m_document.print(Functions::tr("\nNobody is there to answer the dialog \"%1\": cancelled.\n")
                             .arg(dialog.window->windowTitle()));
    }
    const std::unique_ptr<OpenDialog> ended = std::move(m_open[place]);
    m_open.resize(place);
    tellWhetherOpen();
    if (ended->error)
        std::rethrow_exception(ended->error);
    return ended->status;
}

void OpenDialogs::finish(OpenDialog &dialog, int status)
{
    dialog.status = status;
    dialog.window->finish(status);
    tellWhetherOpen();
}

void OpenDialogs::forgetUnstarted()
{
    while (!m_open.empty() && !m_open.back()->isStarted)
        m_open.pop_back();
}

void OpenDialogs::finishAll(int status)
{
    forgetUnstarted();
    for (const std::unique_ptr<OpenDialog> &dialog : m_open)
        if (dialog->isStarted && !dialog->window->isFinished())
            finish(*dialog, status);
}

void OpenDialogs::tellWhetherOpen()
{
    m_document.setDialogOpen(std::any_of(m_open.begin(), m_open.end(), [](const auto &dialog) {
        return dialog && dialog->isStarted && !dialog->window->isFinished();
    }));
}

/// The action of the tile, of the radio cluster that a button without one belongs to, or the dialog's own. `key`
/// becomes that of the cluster when it is the cluster's.
QString OpenDialogs::actionFor(const OpenDialog &dialog, const dcl::TileControl &tile, QString &key) const
{
    const auto own = [&dialog](const dcl::TileControl &of) {
        const QString inFile = dialog.mayRunFileActions ? of.tile().text(u"action"_s) : QString();
        return of.key().isEmpty() ? inFile : dialog.actions.value(of.key(), inFile);
    };
    if (const QString action = own(tile); !action.isEmpty())
        return action;
    if (const dcl::TileControl *cluster = dialog.window->radioClusterOf(tile)) {
        if (const QString action = own(*cluster); !action.isEmpty()) {
            key = cluster->key();
            return action;
        }
    }
    return dialog.defaultAction;
}

void OpenDialogs::handle(lisp::Interpreter &interpreter, OpenDialog &dialog, const dcl::TileControl &tile,
                         const dcl::TileEvent &event)
{
    QString key = event.key;
    const QString action = actionFor(dialog, tile, key);
    const bool isCancel = tile.tile().flag(u"is_cancel"_s) || event.key == "cancel"_L1;
    if (!action.isEmpty())
        runAction(interpreter, dialog, action, key, event);
    if (dialog.window->isFinished())
        return;
    if (isCancel)
        finish(dialog, 0);
    else if (action.isEmpty() && event.key == "accept"_L1)
        finish(dialog, 1);
}

void OpenDialogs::runAction(lisp::Interpreter &interpreter, OpenDialog &dialog, const QString &action,
                            const QString &key, const dcl::TileEvent &event)
{
    const bool isClusters = key != event.key;
    interpreter.setVariable("$key", toLisp(key));
    interpreter.setVariable("$value", toLisp(isClusters ? event.key : event.value));
    interpreter.setVariable("$data", toLisp(dialog.data.value(key)));
    interpreter.setVariable("$reason", Value::integer(int(event.reason)));
    interpreter.setVariable("$x", Value::integer(event.at.x()));
    interpreter.setVariable("$y", Value::integer(event.at.y()));
    const QScopedValueRollback underWay(dialog.eventKey, event.key);
    // Nothing may be thrown through the event loop.
    try {
        const QString source = Functions::tr("action of \"%1\" in dialog %2").arg(key, dialog.window->objectName());
        interpreter.evalText(action.toStdString(), source.toStdString());
    } catch (...) {
        if (!dialog.error)
            dialog.error = std::current_exception();
        if (!dialog.window->isFinished())
            finish(dialog, 0);
    }
}

} // namespace host::kernel
