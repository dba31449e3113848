#include "host/commands/files/SaveDialogue.h"

#include "host/commands/common/OutputFile.h"
#include "host/kernel/documents/Session.h"
#include "host/kernel/languages/Texts.h"
#include "host/kernel/running/CommandContext.h"
#include "host/kernel/variables/SystemVariables.h"

#include <QFileInfo>

using namespace Qt::StringLiterals;

namespace host::kernel {

namespace {

void tell(CommandContext &context, const drawing::SaveResult &result, const QString &path)
{
    context.print(result ? Commands::tr("\nSaved to %1.").arg(path) : u'\n' + result.error);
}

/// Whether a save under this path would go over another file that is not to go unasked.
bool replacesOther(const Document &document, const QString &path)
{
    return QFileInfo::exists(path) && path != document.path() && document.variables().integer(u"EXPERT") < 2;
}

CommandContext::Reply askToReplace(CommandContext &context, const QString &path)
{
    return context.keyword(Commands::tr("%1 already exists. Replace it? [Yes/No] <No>: ").arg(path), u"Yes No"_s,
                           u"No"_s);
}

/// What the user wants of a file that should not be written unasked.
enum class Wish
{
    Write,
    OtherName,
    Nothing ///< the command has failed
};

/// Asks about what stands against writing the file.
Dialogue<Wish> askAboutObstacle(CommandContext &context, const WriteObstacle &obstacle)
{
    Session &session = context.document().session();
    context.print(u'\n' + obstacle.text + u'\n');
    // Told at once: a run that nobody watches ends at the question.
    session.tellNotWritten(obstacle.text);
    const QString options = obstacle.mayBeOverruled() ? u"Anyway Name Cancel"_s : u"Name Cancel"_s;
    const QString prompt =
        obstacle.mayBeOverruled()
            ? Commands::tr("Save all the same, or under another name? [Anyway/Name/Cancel] <Cancel>: ")
            : Commands::tr("Save under another name? [Name/Cancel] <Cancel>: ");
    const PromptReply reply = co_await context.keyword(prompt, options, u"Cancel"_s);
    const Wish wish = reply.text == u"Anyway"_s ? Wish::Write
                      : reply.text == u"Name"_s ? Wish::OtherName
                                                : Wish::Nothing;
    if (wish == Wish::Nothing)
        context.fail(Commands::tr("Nothing was written."));
    else
        session.forgetNotWritten(obstacle.text);
    co_return wish;
}

} // namespace

Dialogue<std::optional<QString>> askName(CommandContext &context)
{
    const PromptReply name = co_await context.text(Commands::tr("Save drawing as: "));
    const QString typed = name.hasValue() ? name.text.trimmed() : QString();
    co_return typed.isEmpty() ? std::nullopt : std::optional(drawingPath(typed));
}

Dialogue<bool> saveUnder(CommandContext &context, Document &document, std::optional<QString> path)
{
    while (path) {
        if (replacesOther(document, *path) && (co_await askToReplace(context, *path)).text != u"Yes"_s)
            break;
        const std::optional<WriteObstacle> obstacle = obstacleToWriting(*path, &document.session(), &document);
        auto wish = Wish::Write;
        if (obstacle)
            wish = co_await askAboutObstacle(context, *obstacle);
        if (wish == Wish::Write) {
            const auto result = document.saveAs(*path, obstacle ? Overrule::Obstacles : Overrule::Nothing);
            tell(context, result, *path);
            co_return bool(result);
        }
        if (wish == Wish::Nothing)
            break;
        path = co_await askName(context);
    }
    co_return false;
}

} // namespace host::kernel
