// Drafting tools without their dialogs, a use each.

#include "host/app/batch/tools/ToolRuns.h"
#include "host/app/batch/tools/ToolTable.h"
#include "host/app/uses/UseRows.h"

#include <QCoreApplication>

using namespace Qt::StringLiterals;

namespace host::app {

namespace {

using Kind = ToolStep::Kind;

QString addSetting(ProgramOptions &options, const QString &value)
{
    const qsizetype equals = value.indexOf(u'=');
    if (equals < 1)
        return QCoreApplication::translate("Uses", "--set takes KEY=VALUE, not \"%1\"").arg(value);
    options.toolSteps.append({Kind::Set, value.first(equals).trimmed().toLower(), value.sliced(equals + 1)});
    return {};
}

QString addPress(ProgramOptions &options, const QString &value)
{
    options.toolSteps.append({Kind::Press, value.toLower(), {}});
    return {};
}

QString addAnswer(ProgramOptions &options, const QString &value)
{
    options.toolSteps.append({Kind::Answer, {}, value});
    return {};
}

QString assignToTool(ProgramOptions &options, const QStringList &words)
{
    options.drawings = words;
    return {};
}

OptionRow selectOption()
{
    return {.name = "--select",
            .value = "FILTER",
            .help = QT_TRANSLATE_NOOP(
                "Uses",
                "what it works on: all, or types of entities as TEXT,MTEXT, with \"on layer PATTERN\", \"of block "
                "PATTERN\", \"in style PATTERN\" and \"in color NUMBER\" behind, or a filter list as ssget takes "
                "it: '((0 . \"TEXT\") (8 . \"NOTES\"))'. What the tool cannot use is left out"),
            .apply = takeText<&ProgramOptions::selection>,
            .byDefault = "all"};
}

QList<OptionRow> stepOptions()
{
    return {
        {.name = "--set",
         .value = "KEY=VALUE",
         .help =
             QT_TRANSLATE_NOOP("Uses", "put the value into a field of the dialog; may be given again. {name} stands "
                                       "for the name of the drawing without folder and extension"),
         .apply = addSetting},
        {.name = "--set-file",
         .value = "FILE",
         .help = QT_TRANSLATE_NOOP("Uses", "begin with the values of a state file that the dialog saved"),
         .apply = takeText<&ProgramOptions::stateFile>,
         .kind = ValueKind::File,
         .files = "*.state"},
        {.name = "--press",
         .value = "BUTTON",
         .help = QT_TRANSLATE_NOOP("Uses", "press a button of the dialog behind the values that were set before; may "
                                           "be given again"),
         .apply = addPress},
        {.name = "--answer",
         .value = "TEXT",
         .help = QT_TRANSLATE_NOOP("Uses", "answer the next prompt with this: a keyword, a number, a point as 10,20; "
                                           "may be given again"),
         .apply = addAnswer}};
}

QList<OptionRow> resultOptions()
{
    return {
        {.name = "--out",
         .value = "DIR",
         .help = QT_TRANSLATE_NOOP("Uses", "write each drawing there, under its own name"),
         .apply = takeText<&ProgramOptions::outFolder>,
         .kind = ValueKind::Folder},
        {.name = "--in-place",
         .help = QT_TRANSLATE_NOOP("Uses", "save each drawing that was changed where it is, with a copy of the old one "
                                           "where SETBACKUPFOLDER has named a folder for that; the tool does not run "
                                           "over what cannot be saved so, such as DWG files"),
         .apply = setFlag<&ProgramOptions::isInPlace>},
        recoverOption(QT_TRANSLATE_NOOP("Uses", "open damaged drawings as far as they are sound, and tell on standard "
                                                "error what was dropped")),
        forceOption(QT_TRANSLATE_NOOP("Uses",
                                      "write files as well that another program has open, or has changed since "
                                      "they were opened, or that lie beside a drawing under its result's name")),
        timeLimitOption(QT_TRANSLATE_NOOP("Uses", "the most it may take with one drawing"), "120"),
        memoryLimitOption(),
        jobsOption(),
        jsonOption(QT_TRANSLATE_NOOP("Uses", "tell what became of each drawing as one line of JSON"))};
}

QList<UseSection> sectionsOf(const ToolRow &tool)
{
    if (tool.asks)
        return {{.heading = "",
                 .text = QT_TRANSLATE_NOOP("Uses",
                                           "This tool asks for points or entities of the drawing, or works on none: "
                                           "it is for the window, and for recorded sessions, which ortakit run "
                                           "plays over drawings.")}};
    QList<OptionRow> options = stepOptions();
    if (tool.selects)
        options.prepend(selectOption());
    return {
        {.heading = "",
         .text = QT_TRANSLATE_NOOP(
             "Uses", "Runs the tool over each drawing with its dialog filled in as --set says, and tells what it did. "
                     "All of the dialog's checks hold, and what it complains about is an error of that drawing. Fields "
                     "that are not set are as the dialog opens with them, whatever was chosen last. The drawings "
                     "themselves stay as they are unless --in-place is given. It works in the space that is current "
                     "in the drawing."),
         .options = options + resultOptions()},
        {.heading = "", .text = tool.notes}};
}

UseRow useOf(const ToolRow &tool)
{
    const auto kept = [](const QString &text) {
        static QList<QByteArray> texts;
        texts.append(text.toLatin1());
        return texts.last().constData();
    };
    const QString usage = QLatin1StringView(tool.name) +
                          (tool.selects ? u" DRAWING... [--select FILTER] [--set KEY=VALUE]... [OPTION...]"_s
                           : tool.asks  ? QString()
                                        : u" DRAWING... [--set KEY=VALUE]... [OPTION...]"_s);
    UseRow use{.name = tool.name,
               .purpose = tool.purpose,
               .usages = {kept(usage)},
               .operands = {},
               .sections = sectionsOf(tool),
               .assign = assignToTool,
               .run = runTool,
               .entriesHeading = QT_TRANSLATE_NOOP("Uses", "Keys of --set"),
               .entries = keysOfTool,
               .example = tool.example,
               .isOfTool = true,
               .needsSession = tool.asks};
    if (!tool.asks)
        use.operands = {{.name = "DRAWING",
                         .help = QT_TRANSLATE_NOOP("Uses", "what it works on"),
                         .files = "*.dxf *.dwg",
                         .isMany = true}};
    return use;
}

} // namespace

QList<UseRow> toolUses()
{
    QList<UseRow> uses;
    for (const ToolRow &tool : toolRows())
        uses.append(useOf(tool));
    return uses;
}

} // namespace host::app
