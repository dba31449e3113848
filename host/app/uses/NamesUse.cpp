// What the program tells about itself.

#include "host/app/batch/BatchRuns.h"
#include "host/app/uses/UseForms.h"
#include "host/app/uses/UseRows.h"

#include <QCoreApplication>

using namespace Qt::StringLiterals;

namespace host::app {

namespace {

QString assignToNames(ProgramOptions &, const QStringList &words)
{
    return words.isEmpty() ? QString() : QCoreApplication::translate("Uses", "names takes no word");
}

QString assignToUses(ProgramOptions &options, const QStringList &words)
{
    const QString kind = words.value(0);
    const bool hasFolder = kind == "man"_L1 || kind == "completions"_L1;
    if ((!hasFolder && kind != "document"_L1) || words.size() != (hasFolder ? 2 : 1))
        return QCoreApplication::translate("Uses", "uses takes man DIR, completions DIR or document");
    options.lispFiles = words;
    return {};
}

/// "help" alone tells about the program as a whole.
QString assignToHelp(ProgramOptions &options, const QStringList &words)
{
    options.wish = Wish::Help;
    options.use = findUse(words.value(0));
    if (words.size() > 1)
        return QCoreApplication::translate("Uses", "help takes one command");
    if (options.use)
        return {};
    QStringList names;
    for (const UseRow &row : allUses())
        names.append(row.title());
    return QCoreApplication::translate("Uses", "there is no command %1%2")
        .arg(words.first(), suggestionFor(words.first(), names));
}

} // namespace

UseRow namesUse()
{
    return {
        .name = "names",
        .purpose = QT_TRANSLATE_NOOP("Uses", "lists what Lisp programs find here"),
        .usages = {"names"},
        .operands = {},
        .sections = {{.heading = "",
                      .text = QT_TRANSLATE_NOOP(
                          "Uses", "Prints what Lisp programs find here in a new drawing, a line each with tabs between "
                                  "its fields, sorted:\n\n"
                                  "  function  NAME  ARGUMENTS  WHAT IT GIVES\n"
                                  "  command   NAME  -          WHAT IT DOES\n"
                                  "  variable  NAME  KIND       WHAT IT IS\n\n"
                                  "Documents are made from this, and scripts/demand compares it with what programs "
                                  "ask for.")}},
        .assign = assignToNames,
        .run = listNames};
}

UseRow usesUse()
{
    return {
        .name = "uses",
        .purpose = QT_TRANSLATE_NOOP("Uses", "writes manual pages, completions and a document about the commands"),
        .usages = {"uses man DIR", "uses completions DIR", "uses document"},
        .operands = {},
        .sections = {{.heading = "",
                      .text = QT_TRANSLATE_NOOP(
                          "Uses", "Writes ortakit(1) and a page for each command to a folder, the completions of bash, "
                                  "zsh and fish to their places below a folder, or the sections of docs/cli.md to "
                                  "standard output.")}},
        .assign = assignToUses,
        .run = writeUses,
        .isHidden = true};
}

UseRow helpUse()
{
    return {.name = "help",
            .purpose = QT_TRANSLATE_NOOP("Uses", "tells about a command"),
            .usages = {"help [COMMAND]"},
            .operands = {{.name = "COMMAND",
                          .help = QT_TRANSLATE_NOOP("Uses", "which one; without it, the program as a whole"),
                          .kind = ValueKind::Text}},
            .sections = {{.heading = "", .text = QT_TRANSLATE_NOOP("Uses", "The same as --help behind the command.")}},
            .assign = assignToHelp,
            .run = nullptr};
}

} // namespace host::app
