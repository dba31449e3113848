#include "files/qt/Files.h"
#include "host/commands/Commands.h"
#include "host/kernel/documents/Document.h"
#include "host/kernel/documents/Session.h"
#include "host/kernel/running/CommandContext.h"
#include "host/kernel/running/Dialogue.h"
#include "host/kernel/variables/SystemVariables.h"
#include "host/lisp/Interpreter.h"

#include <QDir>
#include <QFileInfo>

using namespace Qt::StringLiterals;

namespace host::kernel {

namespace {

/// A path as typed, from the current folder, with the ending that drawings have here when it has none.
QString drawingPath(const QString &typed)
{
    const QString path = QFileInfo(QDir::current(), typed.trimmed()).absoluteFilePath();
    return QFileInfo(path).suffix().isEmpty() ? path + u".dxf"_s : path;
}

void tell(CommandContext &context, const drawing::SaveResult &result, const QString &path)
{
    context.print(result ? u"\nSaved to %1."_s.arg(path) : u'\n' + result.error);
}

/// Whether a save under this path would go over another file that is not to go unasked.
bool replacesOther(const Document &document, const QString &path)
{
    return QFileInfo::exists(path) && path != document.path() && document.variables().integer(u"EXPERT") < 2;
}

CommandContext::Reply askToReplace(CommandContext &context, const QString &path)
{
    return context.keyword(u"%1 already exists. Replace it? [Yes/No] <No>: "_s.arg(path), u"Yes No"_s, u"No"_s);
}

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
    const QString name = format == std::end(formatNames) ? u"another version"_s : QString(format->name);
    if (wanted == name)
        return true;
    context.fail(
        u"This drawing is of %1, and this program writes no drawing in another version: nothing was written."_s.arg(
            name));
    return false;
}

/// The questions that a DXF file is asked for by other programs: accuracy, form and version. Nothing when the drawing
/// is not to be written.
Dialogue<std::optional<drawing::FileForm>> askDxfOptions(CommandContext &context)
{
    for (;;) {
        const PromptReply reply =
            co_await context.integer(u"Enter decimal places of accuracy (0 to 16) or [Objects/Binary/Version] <16>: "_s,
                                     {}, u"16"_s, NoNegative);
        if (reply.isKeyword(u"Version")) {
            const PromptReply version =
                co_await context.keyword(u"Enter version [%1]: "_s.arg(formatOptions().replace(u' ', u'/')));
            if (version.hasValue() && !isOwnVersion(context, version.text))
                co_return std::nullopt;
            continue;
        }
        if (reply.isKeyword(u"Binary"))
            co_return drawing::FileForm::Binary;
        if (reply.kind == ReplyKind::Keyword || (reply.hasValue() && reply.integer != 16)) {
            context.fail(u"This program writes whole drawings with all decimal places: nothing was written."_s);
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

/// Asks for a version first when one was answered in place of a file's name; then for the name. Nothing when the
/// drawing is not to be written. The form is the drawing's own where no other was asked for.
Dialogue<std::optional<SaveTarget>> askSaveTarget(CommandContext &context)
{
    const Document &document = context.document();
    const QString usual = document.title();
    const QString path = document.path();
    PromptReply reply = co_await context.text(
        u"Save drawing as, or enter file format [%1/DXF] <%2>: "_s.arg(formatOptions().replace(u' ', u'/'), usual),
        path, formatOptions() + u" DXF"_s);
    std::optional<drawing::FileForm> form = document.drawing().form();
    if (reply.kind == ReplyKind::Keyword) {
        if (reply.text == u"DXF"_s)
            form = co_await askDxfOptions(context);
        else if (!isOwnVersion(context, reply.text))
            form = std::nullopt;
        if (!form)
            co_return std::nullopt;
        reply = co_await context.text(u"Save drawing as <%1>: "_s.arg(usual), path);
    }
    const QString typed = reply.hasValue() ? reply.text.trimmed() : path;
    if (typed.isEmpty())
        co_return std::nullopt;
    co_return SaveTarget{drawingPath(typed), *form};
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
    const QString prompt = obstacle.mayBeOverruled()
                               ? u"Save all the same, or under another name? [Anyway/Name/Cancel] <Cancel>: "_s
                               : u"Save under another name? [Name/Cancel] <Cancel>: "_s;
    const PromptReply reply = co_await context.keyword(prompt, options, u"Cancel"_s);
    const Wish wish = reply.text == u"Anyway"_s ? Wish::Write
                      : reply.text == u"Name"_s ? Wish::OtherName
                                                : Wish::Nothing;
    if (wish == Wish::Nothing)
        context.fail(u"Nothing was written."_s);
    else
        session.forgetNotWritten(obstacle.text);
    co_return wish;
}

/// A name to save under; nothing when none was given.
Dialogue<std::optional<QString>> askName(CommandContext &context)
{
    const PromptReply name = co_await context.text(u"Save drawing as: "_s);
    const QString typed = name.hasValue() ? name.text.trimmed() : QString();
    co_return typed.isEmpty() ? std::nullopt : std::optional(drawingPath(typed));
}

/// Saves under the path, or under another one that is asked for when something stands against it; asks before an
/// existing other file is replaced, unless EXPERT is 2 or more. False when nothing was written.
Dialogue<bool> saveUnder(CommandContext &context, std::optional<QString> path)
{
    Document &document = context.document();
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

// Under the drawing's own name; asks for one when it has none.
CommandTask quickSave(CommandContext &context)
{
    std::optional<QString> path = context.document().path();
    if (path->isEmpty())
        path = co_await askName(context);
    co_await saveUnder(context, path);
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

// Version or file name.
CommandTask saveAs(CommandContext &context)
{
    const std::optional<SaveTarget> target = co_await askSaveTarget(context);
    if (!target)
        co_return;
    FormWhileSaving form(context.drawing(), target->form);
    form.keep(co_await saveUnder(context, target->path));
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

// File name; the lines of the file are typed from here on, before what was typed ahead.
CommandTask script(CommandContext &context)
{
    const PromptReply name = co_await context.text(u"Enter script file name: "_s);
    const QString path = name.hasValue() ? scriptPath(context.document(), name.text.trimmed()) : QString();
    const files::WholeBytes file = files::readWhole(path, largestScript);
    if (!file) {
        context.print(path.isEmpty()
                          ? u"\nCannot read script \"%1\"."_s.arg(name.text)
                          : u"\nCannot read script \"%1\": %2 (the limit is %3 MB)."_s.arg(name.text, file.reason)
                                .arg(largestScript >> 20));
        co_return;
    }
    switch (context.document().session().input().pushScript(QString::fromUtf8(file.bytes))) {
    case InputQueue::ScriptOutcome::Taken:
        break;
    case InputQueue::ScriptOutcome::Replaced:
        context.print(u"\nThe rest of the script that called it is left out."_s);
        break;
    case InputQueue::ScriptOutcome::TooLong:
        context.print(u"\nToo many scripts wait to be run: \"%1\" is left out."_s.arg(name.text));
    }
}

} // namespace

std::vector<CommandRow> fileCommands()
{
    return {{"QSAVE", quickSave, "Saves the drawing under its own name"},
            {"SAVE", saveAs, "Saves the drawing under a name"},
            {"SAVEAS", saveAs, "Saves the drawing under a name"},
            {"SCRIPT", script, "Types what a script file holds"}};
}

} // namespace host::kernel
