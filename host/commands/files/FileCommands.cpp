#include "files/qt/Files.h"
#include "host/commands/Commands.h"
#include "host/commands/common/OutputFile.h"
#include "host/commands/files/SaveDialogue.h"
#include "host/kernel/documents/Document.h"
#include "host/kernel/documents/Session.h"
#include "host/kernel/languages/Texts.h"
#include "host/kernel/running/CommandContext.h"
#include "host/kernel/running/Dialogue.h"
#include "host/kernel/variables/SystemVariables.h"
#include "host/lisp/Interpreter.h"

#include <QDir>
#include <QFileInfo>

using namespace Qt::StringLiterals;

namespace host::kernel {

namespace {

/// The versions of the format, by the names that people give them.
struct FormatName
{
    QLatin1StringView name;
    drawing::Version version;
};
constexpr FormatName formatNames[] = {
    {"2018"_L1, drawing::Version::R2018}, {"2013"_L1, drawing::Version::R2013}, {"2010"_L1, drawing::Version::R2010},
    {"2007"_L1, drawing::Version::R2007}, {"2004"_L1, drawing::Version::R2004}, {"2000"_L1, drawing::Version::R2000},
    {"R14"_L1, drawing::Version::R14},    {"R13"_L1, drawing::Version::R13},    {"R12"_L1, drawing::Version::R12},
};

QString formatOptions()
{
    QStringList names;
    for (const FormatName &format : formatNames)
        names.append(format.name);
    return names.join(u' ');
}

/// Whether the drawing is written in that version. This program writes each drawing in its own; others are refused.
bool isOwnVersion(CommandContext &context, const QString &wanted)
{
    const drawing::Version own = context.drawing().version();
    const auto isOwn = [own](const FormatName &format) { return format.version == own; };
    const auto *format = std::ranges::find_if(formatNames, isOwn);
    const QString name = format == std::end(formatNames) ? Commands::tr("another version") : QString(format->name);
    if (wanted == name)
        return true;
    context.fail(
        Commands::tr(
            "This drawing is of %1, and this program writes no drawing in another version: nothing was written.")
            .arg(name));
    return false;
}

/// The questions that a DXF file is asked for by other programs: accuracy, form and version. Nothing when the drawing
/// is not to be written.
Dialogue<std::optional<drawing::FileForm>> askDxfOptions(CommandContext &context)
{
    for (;;) {
        const PromptReply reply = co_await context.integer(
            Commands::tr("Enter decimal places of accuracy (0 to 16) or [Objects/Binary/Version] <16>: "), {}, u"16"_s,
            NoNegative);
        if (reply.isKeyword(u"Version")) {
            const PromptReply version =
                co_await context.keyword(Commands::tr("Enter version [%1]: ").arg(formatOptions().replace(u' ', u'/')));
            if (version.hasValue() && !isOwnVersion(context, version.text))
                co_return std::nullopt;
            continue;
        }
        if (reply.isKeyword(u"Binary"))
            co_return drawing::FileForm::Binary;
        if (reply.kind == ReplyKind::Keyword || (reply.hasValue() && reply.integer != 16)) {
            context.fail(
                Commands::tr("This program writes whole drawings with all decimal places: nothing was written."));
            co_return std::nullopt;
        }
        co_return drawing::FileForm::Text;
    }
}

/// Where and in which form a drawing is to be saved.
struct SaveTarget
{
    QString path;
    drawing::FileForm form;
};

/// What an empty answer to the first question means.
enum class WhenEmpty
{
    OwnName,
    OwnVersion ///< the name is asked for then
};

/// The drawing's own file; of a drawing that was read from DWG a DXF file of the same name.
QString usualPath(const Document &document)
{
    const QString path = document.path();
    return path.endsWith(u".dwg", Qt::CaseInsensitive) ? path.chopped(4) + u".dxf"_s : path;
}

/// Asks for a version first when one was answered in place of a file's name; then for the name. Nothing when the
/// drawing is not to be written. The form is the drawing's own where no other was asked for.
Dialogue<std::optional<SaveTarget>> askSaveTarget(CommandContext &context, WhenEmpty whenEmpty)
{
    const Document &document = context.document();
    const QString path = usualPath(document);
    const QString usual = path.isEmpty() ? document.title() : QFileInfo(path).fileName();
    PromptReply reply = co_await context.text(Commands::tr("Save drawing as, or enter file format [%1/DXF] <%2>: ")
                                                  .arg(formatOptions().replace(u' ', u'/'), usual),
                                              path, formatOptions() + u" DXF"_s);
    std::optional<drawing::FileForm> form = document.drawing().form();
    const bool isOwnVersionMeant = whenEmpty == WhenEmpty::OwnVersion && reply.isEmpty();
    if (reply.kind == ReplyKind::Keyword || isOwnVersionMeant) {
        if (isOwnVersionMeant)
            form = document.drawing().form();
        else if (reply.text == u"DXF"_s)
            form = co_await askDxfOptions(context);
        else if (!isOwnVersion(context, reply.text))
            form = std::nullopt;
        if (!form)
            co_return std::nullopt;
        reply = co_await context.text(Commands::tr("Save drawing as <%1>: ").arg(usual), path);
    }
    const QString typed = reply.hasValue() ? reply.text.trimmed() : path;
    if (typed.isEmpty())
        co_return std::nullopt;
    co_return SaveTarget{drawingPath(typed), *form};
}

// Under the drawing's own name; asks for one when it has none.
CommandTask quickSave(CommandContext &context)
{
    std::optional<QString> path = context.document().path();
    if (path->isEmpty())
        path = co_await askName(context);
    co_await saveUnder(context, context.document(), path);
}

/// The form of a drawing while it is being saved, which is its own again when nothing was written.
class FormWhileSaving
{
public:
    FormWhileSaving(drawing::Drawing &drawing, drawing::FileForm form) : m_drawing(drawing), m_own(drawing.form())
    {
        drawing.setForm(form);
    }
    ~FormWhileSaving() { m_drawing.setForm(m_isKept ? m_drawing.form() : m_own); }
    FormWhileSaving(const FormWhileSaving &) = delete;
    FormWhileSaving &operator=(const FormWhileSaving &) = delete;
    void keep(bool isKept) { m_isKept = isKept; }

private:
    drawing::Drawing &m_drawing;
    drawing::FileForm m_own;
    bool m_isKept = false;
};

Dialogue<bool> askAndSave(CommandContext &context, WhenEmpty whenEmpty)
{
    const std::optional<SaveTarget> target = co_await askSaveTarget(context, whenEmpty);
    if (!target)
        co_return false;
    FormWhileSaving form(context.drawing(), target->form);
    const bool isSaved = co_await saveUnder(context, context.document(), target->path);
    form.keep(isSaved);
    co_return isSaved;
}

// File name, or a version and then the name.
CommandTask save(CommandContext &context)
{
    co_await askAndSave(context, WhenEmpty::OwnName);
}

// Version or file name; the name behind a version and behind an empty answer.
CommandTask saveAs(CommandContext &context)
{
    co_await askAndSave(context, WhenEmpty::OwnVersion);
}

/// The largest script that is read, in bytes.
constexpr qint64 largestScript = 64 * 1024 * 1024;

/// A script types expressions: it is a program like any other.
QString scriptPath(Document &document, const QString &name)
{
    const lisp::Interpreter &interpreter = document.interpreter();
    const lisp::LoadedBy by = interpreter.isRunning() ? interpreter.calledBy() : lisp::LoadedBy::Person;
    return document.session().trustedFolders().findProgram(document, {name}, by);
}

void pushScript(CommandContext &context, const QString &text, const QString &name)
{
    switch (context.document().session().input().pushScript(text)) {
    case InputQueue::ScriptOutcome::Taken:
        break;
    case InputQueue::ScriptOutcome::Replaced:
        context.print(Commands::tr("\nThe rest of the script that called it is left out."));
        break;
    case InputQueue::ScriptOutcome::TooLong:
        context.print(Commands::tr("\nToo many scripts wait to be run: \"%1\" is left out.").arg(name));
    }
}

// File name; the lines of the file are typed from here on, before what was typed ahead.
CommandTask script(CommandContext &context)
{
    const PromptReply name = co_await context.text(Commands::tr("Enter script file name: "));
    const QString path = name.hasValue() ? scriptPath(context.document(), name.text.trimmed()) : QString();
    const files::WholeBytes file = files::readWhole(path, largestScript);
    if (!file) {
        context.print(path.isEmpty() ? Commands::tr("\nCannot read script \"%1\".").arg(name.text)
                                     : Commands::tr("\nCannot read script \"%1\": %2 (the limit is %3 MB).")
                                           .arg(name.text, file.reason)
                                           .arg(largestScript >> 20));
        co_return;
    }
    pushScript(context, QString::fromUtf8(file.bytes), name.text);
}

// The script that was run last, from its beginning.
CommandTask repeatScript(CommandContext &context)
{
    const QString last = context.document().session().input().lastScript();
    if (last.isEmpty())
        context.fail(Commands::tr("No script has been run."));
    else
        pushScript(context, last, u"RSCRIPT"_s);
    co_return;
}

} // namespace

std::vector<CommandRow> fileCommands()
{
    return {{"RSCRIPT", repeatScript, "Types the last script once more"},
            {"QSAVE", quickSave, "Saves the drawing under its own name"},
            {"SAVE", save, "Saves the drawing under a name"},
            {"SAVEAS", saveAs, "Saves the drawing under a name"},
            {"SCRIPT", script, "Types what a script file holds", WhenCancelled::TakeBack, Interrupts::Prompts}};
}

} // namespace host::kernel
