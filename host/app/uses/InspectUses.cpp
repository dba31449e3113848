// Drawings that are looked at.

#include "host/app/batch/BatchRuns.h"
#include "host/app/uses/UseRows.h"

#include <QCoreApplication>

using namespace Qt::StringLiterals;

namespace host::app {

namespace {

QString assignDrawings(ProgramOptions &options, const QStringList &words)
{
    if (words.isEmpty())
        return QCoreApplication::translate("Uses", "%1 needs at least one drawing").arg(options.use->title());
    options.drawings = words;
    return {};
}

QList<OperandRow> drawingOperands()
{
    return {{.name = "DRAWING",
             .help = QT_TRANSLATE_NOOP("Uses", "a drawing to look at"),
             .files = "*.dxf *.dwg",
             .isMany = true}};
}

QString assignToInfo(ProgramOptions &options, const QStringList &words)
{
    if (options.listsRecords && (options.withJson || options.jobs > 0))
        return QCoreApplication::translate("Uses", "--entities goes neither with --json nor with -j");
    return assignDrawings(options, words);
}

QString assignToAudit(ProgramOptions &options, const QStringList &words)
{
    if (options.isFixing != !options.outFolder.isEmpty())
        return QCoreApplication::translate("Uses", "--fix and --out go together");
    return assignDrawings(options, words);
}

} // namespace

UseRow auditUse()
{
    return {
        .name = "audit",
        .purpose = QT_TRANSLATE_NOOP("Uses", "tells what is wrong with drawings"),
        .usages = {"audit DRAWING... [--fix --out DIR] [--json]"},
        .operands = drawingOperands(),
        .sections =
            {{.heading = "",
              .text = QT_TRANSLATE_NOOP(
                  "Uses",
                  "Looks for all that opening with --recover would mend, add or drop, and the command AUDIT would "
                  "find, "
                  "and changes nothing. A hundred faults of a drawing are told; with --json all are.\n\nEnds with "
                  "status 0 when all drawings are sound or were mended, 1 when faults were found, 4 when files could "
                  "not be read or written, 3 when that is so for some of several."),
              .options =
                  {{.name = "--fix",
                    .help = QT_TRANSLATE_NOOP("Uses", "write the drawings with what was found mended, sound ones too"),
                    .apply = setFlag<&ProgramOptions::isFixing>},
                   {.name = "--out",
                    .value = "DIR",
                    .help = QT_TRANSLATE_NOOP("Uses", "the folder to write them into, under their names"),
                    .apply = takeText<&ProgramOptions::outFolder>,
                    .kind = ValueKind::Folder},
                   forceOption(QT_TRANSLATE_NOOP("Uses",
                                                 "write files although another program has them open, or they lie "
                                                 "beside a drawing under its result's name")),
                   jobsOption(),
                   timeLimitOption(QT_TRANSLATE_NOOP("Uses", "the most that each drawing may take"),
                                   QT_TRANSLATE_NOOP("Uses", "no limit")),
                   jsonOption(QT_TRANSLATE_NOOP(
                       "Uses", "print one line of JSON: for each drawing opens, faults and found, as convert has "
                               "it for --recover, and out"))}}},
        .assign = assignToAudit,
        .run = auditDrawings};
}

UseRow infoUse()
{
    return {
        .name = "info",
        .purpose = QT_TRANSLATE_NOOP("Uses", "tells what drawings are and hold"),
        .usages = {"info DRAWING... [--entities] [--recover] [--json]"},
        .operands = drawingOperands(),
        .sections =
            {{.heading = "",
              .text = QT_TRANSLATE_NOOP(
                  "Uses",
                  "Tells of each drawing its version and form, who saved it when, units, extents as the file says and "
                  "as measured, how many entities of which type, layers, blocks, layouts with their paper, styles, "
                  "the files and fonts that it names and whether they are found, and the state of its handles. Lists "
                  "longer than twelve names are cut short; with --json they are whole."),
              .options = {{.name = "--entities",
                           .help = QT_TRANSLATE_NOOP(
                               "Uses", "print in place of that a line for each variable, table entry, block, entity "
                                       "and object, in the file's order, with all its values: git config "
                                       "diff.dxf.textconv \"ortakit info --entities\" shows differences of these"),
                           .apply = setFlag<&ProgramOptions::listsRecords>},
                          recoverOption(QT_TRANSLATE_NOOP("Uses", "open damaged drawings as far as they are sound, and "
                                                                  "tell on standard error what was dropped")),
                          jobsOption(),
                          timeLimitOption(QT_TRANSLATE_NOOP("Uses", "the most that each drawing may take"),
                                          QT_TRANSLATE_NOOP("Uses", "no limit")),
                          jsonOption(QT_TRANSLATE_NOOP("Uses", "print all of it as one line of JSON"))}}},
        .assign = assignToInfo,
        .run = tellDrawings};
}

} // namespace host::app
