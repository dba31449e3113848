#include "host/app/uses/Use.h"

#include "host/app/uses/UseRows.h"
#include "host/kernel/documents/Session.h"

#include <QCoreApplication>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace host::app {

namespace {

QString setStyle(ProgramOptions &options, const QString &value)
{
    options.style = value == "dark"_L1 ? Style::Dark : Style::Light;
    return {};
}

QString setTimeLimit(ProgramOptions &options, const QString &value)
{
    options.timeLimit = std::chrono::milliseconds(std::max<qint64>(qRound64(value.toDouble() * 1000.0), 1));
    return {};
}

QString setMemoryLimit(ProgramOptions &options, const QString &value)
{
    options.memoryLimit = value.toInt();
    return {};
}

QString setJobs(ProgramOptions &options, const QString &value)
{
    options.jobs = value.toInt();
    return {};
}

} // namespace

const QList<UseRow> &allUses()
{
    static const QList<UseRow> rows =
        QList<UseRow>{
            windowUse(), runUse(),  lispUse(),  convertUse(), infoUse(),
            auditUse(),  diffUse(), namesUse(), helpUse(),    usesUse(),
        } +
        toolUses();
    return rows;
}

const UseRow *findUse(const QString &name)
{
    for (const UseRow &row : allUses())
        if (name == QLatin1StringView(row.name))
            return &row;
    return nullptr;
}

const QList<OptionRow> &commonOptions()
{
    static const QList<OptionRow> rows = {
        {.name = "--style",
         .value = "light|dark",
         .help = QT_TRANSLATE_NOOP("Uses", "look of windows and dialogs"),
         .apply = setStyle,
         .kind = ValueKind::Choice},
        {.name = "--language",
         .value = "en|de|fr|es|it",
         .help = QT_TRANSLATE_NOOP("Uses", "language of texts"),
         .apply = takeText<&ProgramOptions::language>,
         .kind = ValueKind::Choice,
         .byDefault =
             QT_TRANSLATE_NOOP("Uses", "$ORTAKIT_LANGUAGE; else the window's setting or the desktop's language, "
                                       "and English where there is no window or a session is played")},
        {.name = "--home",
         .value = "DIR",
         .help = QT_TRANSLATE_NOOP("Uses", "folder of the user's data"),
         .apply = takeText<&ProgramOptions::home>,
         .kind = ValueKind::Folder,
         .byDefault = QT_TRANSLATE_NOOP("Uses", "$ORTAKIT_HOME, or the system's place for such data")},
        {.name = "--module",
         .value = "FILE",
         .help = QT_TRANSLATE_NOOP("Uses", "the plug-in module"),
         .apply = takeText<&ProgramOptions::module>,
         .kind = ValueKind::File,
         .byDefault = QT_TRANSLATE_NOOP("Uses", "$ORTAKIT_MODULE, or the one installed with the program")},
        {.name = "--tools",
         .value = "DIR",
         .help = QT_TRANSLATE_NOOP("Uses", "folder of the Lisp tools"),
         .apply = takeText<&ProgramOptions::tools>,
         .kind = ValueKind::Folder,
         .byDefault = QT_TRANSLATE_NOOP("Uses", "$ORTAKIT_TOOLS, or the one installed with the program")},
        {.name = "--allow-read",
         .value = "DIR",
         .help = QT_TRANSLATE_NOOP("Uses",
                                   "let drawings name files of this folder and those below; may be given again. Else "
                                   "they are read from the drawing's own folder, those below and trusted ones only"),
         .apply = addText<&ProgramOptions::readableFolders>,
         .kind = ValueKind::Folder},
        {.name = "--help", .help = QT_TRANSLATE_NOOP("Uses", "tell this and end"), .apply = nullptr},
        {.name = "--version", .help = QT_TRANSLATE_NOOP("Uses", "tell the version and end"), .apply = nullptr}};
    return rows;
}

QList<const OptionRow *> optionsOf(const UseRow &use)
{
    QList<const OptionRow *> rows;
    for (const UseSection &section : use.sections)
        for (const OptionRow &row : section.options)
            rows.append(&row);
    for (const OptionRow &row : commonOptions())
        rows.append(&row);
    return rows;
}

QString usesText(const char *text)
{
    return QCoreApplication::translate("Uses", text);
}

OptionRow trustOption()
{
    return {.name = "--trust",
            .value = "DIR",
            .help =
                QT_TRANSLATE_NOOP("Uses", "run programs of this folder and those below as well; may be given again"),
            .apply = addText<&ProgramOptions::trustedFolders>,
            .kind = ValueKind::Folder};
}

OptionRow timeLimitOption(const char *help, const char *byDefault)
{
    constexpr double day = 86'400.0;
    return {.name = "--time-limit",
            .value = "SECONDS",
            .help = help,
            .apply = setTimeLimit,
            .kind = ValueKind::Number,
            .range = ValueRange{0.001, day},
            .byDefault = byDefault};
}

OptionRow memoryLimitOption()
{
    using kernel::Session;
    return {.name = "--memory-limit",
            .value = "MB",
            .help = QT_TRANSLATE_NOOP("Uses", "the most memory Lisp may take, more being an error of the program"),
            .apply = setMemoryLimit,
            .kind = ValueKind::Number,
            .range = ValueRange{double(Session::leastLispHeap), double(Session::largestLispHeap), true},
            .byDefault = QT_TRANSLATE_NOOP(
                "Uses", "the system variable LISPHEAPMAX, which is 2048 as long as nobody changed it")};
}

OptionRow forceOption(const char *help)
{
    return {.name = "--force", .help = help, .apply = setFlag<&ProgramOptions::isForced>};
}

OptionRow recoverOption(const char *help)
{
    return {.name = "--recover", .help = help, .apply = setFlag<&ProgramOptions::isRecovering>};
}

OptionRow jsonOption(const char *help)
{
    return {.name = "--json", .help = help, .apply = setFlag<&ProgramOptions::withJson>, .isOfJobs = true};
}

OptionRow jobsOption()
{
    return {.name = "-j",
            .value = "N",
            .help =
                QT_TRANSLATE_NOOP("Uses", "work on so many files at a time, each in a process of its own, so that one "
                                          "that crashes or takes too long is one file that failed; what is told and "
                                          "its order are the same for any N"),
            .apply = setJobs,
            .kind = ValueKind::Number,
            .range = ValueRange{1, 256, true},
            .byDefault = QT_TRANSLATE_NOOP("Uses", "one process for all"),
            .isOfJobs = true};
}

} // namespace host::app
