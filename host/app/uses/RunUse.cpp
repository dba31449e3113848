// Recorded sessions over drawings.

#include "host/app/batch/BatchRuns.h"
#include "host/app/uses/UseRows.h"

#include <QCoreApplication>

using namespace Qt::StringLiterals;

namespace host::app {

namespace {

QString assignToRun(ProgramOptions &options, const QStringList &words)
{
    if (words.isEmpty())
        return QCoreApplication::translate("Uses", "run needs a session");
    options.session = words.first();
    options.drawings = words.mid(1);
    options.wordsOfAll = words.first(1);
    if (options.audit.isEmpty())
        options.audit = qEnvironmentVariable("ORTAKIT_AUDIT");
    return {};
}

QList<OptionRow> runOptions()
{
    return {
        recoverOption(QT_TRANSLATE_NOOP("Uses", "open damaged drawings as far as they are sound, and tell on standard "
                                                "error what was dropped")),
        trustOption(),
        {.name = "--out",
         .value = "DIR",
         .help = QT_TRANSLATE_NOOP("Uses", "write the drawings that the session changed there, under their own names; "
                                           "of a session with cases, what it saves itself"),
         .apply = takeText<&ProgramOptions::outFolder>,
         .kind = ValueKind::Folder},
        {.name = "--png",
         .help = QT_TRANSLATE_NOOP("Uses", "write a picture of each drawing as it is in the end to the out folder, or "
                                           "else beside the drawing"),
         .apply = setFlag<&ProgramOptions::withPictures>},
        {.name = "--audit",
         .value = "PROGRAM",
         .help =
             QT_TRANSLATE_NOOP("Uses", "an independent reader for sessions that ask one (default: the environment's "
                                       "ORTAKIT_AUDIT); see scripts/audit"),
         .apply = takeText<&ProgramOptions::audit>,
         .kind = ValueKind::File},
        {.name = "--screenshot-dir",
         .value = "DIR",
         .help = QT_TRANSLATE_NOOP("Uses", "where pictures go that the session takes, and those of --png"),
         .apply = takeText<&ProgramOptions::pictureFolder>,
         .kind = ValueKind::Folder},
        forceOption(QT_TRANSLATE_NOOP("Uses",
                                      "write files as well that another program has open, or has changed since "
                                      "they were opened, or that lie beside a drawing under its result's name")),
        timeLimitOption(QT_TRANSLATE_NOOP("Uses", "the most the session may take with one drawing; one that does not "
                                                  "stop then ends the program"),
                        "120"),
        memoryLimitOption(),
        jobsOption(),
        jsonOption(QT_TRANSLATE_NOOP("Uses", "tell what became of each drawing as one line of JSON"))};
}

} // namespace

UseRow runUse()
{
    return {.name = "run",
            .purpose = QT_TRANSLATE_NOOP("Uses", "plays a recorded session over drawings"),
            .usages = {"run SESSION [DRAWING...] [--out DIR] [--png] [OPTION...]"},
            .operands = {{.name = "SESSION",
                          .help = QT_TRANSLATE_NOOP("Uses", "the recorded session"),
                          .files = "*.txt *.session"},
                         {.name = "DRAWING",
                          .help = QT_TRANSLATE_NOOP("Uses", "what it is played over"),
                          .files = "*.dxf *.dwg",
                          .isMany = true}},
            .sections = {{.heading = "",
                          .text = QT_TRANSLATE_NOOP(
                              "Uses",
                              "Plays a recorded session over each drawing, one after the other, each opened afresh; "
                              "without a drawing, over the one that the session says. The drawings themselves stay "
                              "as they are. Prints a line for each, and of a session with cases for each of them. "
                              "What a picture does not show, or only in part, is told on standard error, by type."),
                          .options = runOptions()}},
            .assign = assignToRun,
            .run = runSessions};
}

} // namespace host::app
