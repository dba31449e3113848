// Commands that open and close drawings. They say what they wish for: it is done when the run has ended that they are a
// part of.

#include "host/commands/Commands.h"
#include "host/commands/common/InputFile.h"
#include "host/commands/files/SaveDialogue.h"
#include "host/kernel/documents/Session.h"
#include "host/kernel/languages/Texts.h"
#include "host/kernel/running/CommandContext.h"
#include "host/kernel/variables/SystemVariables.h"
#include "host/lisp/Interpreter.h"

#include <QDir>
#include <QFileInfo>

using namespace Qt::StringLiterals;

namespace host::kernel {

namespace {

DocumentWishes &wishesOf(CommandContext &context)
{
    return context.document().session().documents().wishes();
}

/// Whether a person has typed the command where there are windows for such questions.
bool asksInWindow(CommandContext &context)
{
    Document &document = context.document();
    return wishesOf(context).hasQuestion() && document.variables().integer(u"FILEDIA", 1) != 0 &&
           !document.interpreter().isRunning() && document.session().input().isEmpty();
}

/// Where a drawing is that was named, with or without its ending; empty when nowhere.
QString drawingNamed(Document &document, const QString &typed, const QString &furtherFolder = {})
{
    const QString name = fileName(typed);
    QString path = findDrawingFile(document, name);
    for (const QString &file : furtherFolder.isEmpty() ? QStringList() : drawingFileNames(name))
        if (path.isEmpty() && QFileInfo(QDir(furtherFolder), file).isFile())
            path = QDir(furtherFolder).filePath(file);
    return path.isEmpty() ? path : QFileInfo(path).absoluteFilePath();
}

// File name; "~" or a person's window asks with a dialog.
CommandTask openDrawing(CommandContext &context)
{
    if (asksInWindow(context)) {
        wishesOf(context).add({DocumentWish::Kind::Open});
        co_return;
    }
    const PromptReply file = co_await context.text(Commands::tr("Enter name of drawing to open: "));
    if (!file.hasValue() || file.text.trimmed().isEmpty())
        co_return;
    if (file.text.trimmed() == u"~"_s && wishesOf(context).hasQuestion()) {
        wishesOf(context).add({DocumentWish::Kind::Open});
        co_return;
    }
    const QString path = drawingNamed(context.document(), file.text);
    if (path.isEmpty())
        context.fail(Commands::tr("Cannot find file \"%1\".").arg(file.text.trimmed()));
    else
        wishesOf(context).add({DocumentWish::Kind::Open, path});
}

// Template; a point, "none" or an empty answer for none.
CommandTask newDrawingFrom(CommandContext &context)
{
    Document &document = context.document();
    if (asksInWindow(context)) {
        wishesOf(context).add({DocumentWish::Kind::New});
        co_return;
    }
    const PromptReply name =
        co_await context.text(Commands::tr("Enter template file name or [. (for none)] <.>: "), u"."_s);
    const QString typed = name.hasValue() ? name.text.trimmed() : u"."_s;
    const bool isNone = typed.isEmpty() || typed == u"."_s || typed.compare(u"none"_s, Qt::CaseInsensitive) == 0;
    const QString path = isNone ? QString() : drawingNamed(document, typed, document.session().home() + u"/Template"_s);
    if (!isNone && path.isEmpty())
        context.fail(Commands::tr("Cannot find template \"%1\".").arg(typed));
    else
        wishesOf(context).add({DocumentWish::Kind::New, path});
}

/// Asks what becomes of changes. What is to be wished for; nothing when the document is to stay open.
Dialogue<std::optional<DocumentWish>> askToClose(CommandContext &context, Document &document)
{
    using Changes = DocumentWish::Changes;
    DocumentWish wish{DocumentWish::Kind::Close, {}, &document};
    if (!document.isModified())
        co_return wish;
    const QString question = Commands::tr("Save changes to %1? [Yes/No/Cancel] <Yes>: ").arg(document.title());
    const PromptReply reply = co_await context.keyword(question, u"Yes No Cancel"_s, u"Yes"_s);
    if (reply.text == u"Cancel"_s)
        co_return std::nullopt;
    if (reply.text == u"No"_s) {
        wish.changes = Changes::Discard;
        co_return wish;
    }
    std::optional<QString> path = document.path();
    if (path->isEmpty())
        path = co_await askName(context);
    const bool isSaved = co_await saveUnder(context, document, path);
    co_return isSaved ? std::optional(wish) : std::nullopt;
}

// Whether to save what was changed.
CommandTask closeDrawing(CommandContext &context)
{
    const std::optional<DocumentWish> wish = co_await askToClose(context, context.document());
    if (wish)
        wishesOf(context).add(*wish);
}

// The same for each drawing in its turn; who cancels keeps all open.
CommandTask closeAllDrawings(CommandContext &context)
{
    std::vector<DocumentWish> closing;
    for (const auto &document : context.document().session().documents().documents()) {
        const std::optional<DocumentWish> wish = co_await askToClose(context, *document);
        if (!wish)
            co_return;
        closing.push_back(*wish);
    }
    for (DocumentWish &wish : closing)
        wishesOf(context).add(std::move(wish));
}

// Whether to discard what was changed.
CommandTask quit(CommandContext &context)
{
    DocumentWish wish{DocumentWish::Kind::Quit, {}, &context.document()};
    if (context.document().isModified()) {
        const PromptReply reply = co_await context.keyword(
            Commands::tr("Really want to discard all changes to drawing? [Yes/No] <No>: "), {}, u"No"_s);
        if (reply.text != u"Yes"_s)
            co_return;
        wish.changes = DocumentWish::Changes::Discard;
    }
    wishesOf(context).add(wish);
}

} // namespace

std::vector<CommandRow> documentCommands()
{
    return {{"CLOSE", closeDrawing, "Closes the drawing"},
            {"CLOSEALL", closeAllDrawings, "Closes all drawings"},
            {"EXIT", quit, "As QUIT"},
            {"NEW", newDrawingFrom, "Makes a new drawing, from a template or empty"},
            {"OPEN", openDrawing, "Opens a drawing, where what is typed next goes on"},
            {"QNEW", newDrawingFrom, "As NEW"},
            {"QUIT", quit, "Closes the drawing without saving, and ends the program"}};
}

} // namespace host::kernel
