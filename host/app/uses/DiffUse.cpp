// Two drawings compared.

#include "host/app/batch/BatchRuns.h"
#include "host/app/uses/UseRows.h"

#include <QCoreApplication>

using namespace Qt::StringLiterals;

namespace host::app {

namespace {

QString setTolerance(ProgramOptions &options, const QString &value)
{
    options.diff.rules.values.tolerance = value.toDouble();
    return {};
}

/// Kinds in addition to the usual ones; "none" takes all of them back.
QString addIgnored(ProgramOptions &options, const QString &value)
{
    for (const QString &name : value.split(u',', Qt::SkipEmptyParts)) {
        drawing::IgnoredKinds &ignored = options.diff.rules.values.ignored;
        if (name.compare("none"_L1, Qt::CaseInsensitive) == 0) {
            ignored = {};
            continue;
        }
        const auto kind = drawing::ignoredKind(name.trimmed());
        if (!kind) {
            QStringList names{u"none"_s};
            for (const drawing::IgnorableKind &row : drawing::ignorableKinds())
                names.append(QString::fromLatin1(row.name));
            return QCoreApplication::translate("Uses", "there is nothing called %1 to ignore%2")
                .arg(name, suggestionFor(name, names));
        }
        ignored.setFlag(*kind);
    }
    return {};
}

QString setMatching(ProgramOptions &options, const QString &value)
{
    options.diff.rules.matching = value == "handle"_L1    ? drawing::Matching::ByHandle
                                  : value == "content"_L1 ? drawing::Matching::ByContent
                                                          : drawing::Matching::Automatic;
    return {};
}

template <auto member>
QString takeDiff(ProgramOptions &options, const QString &value)
{
    options.diff.*member = value;
    return {};
}

QString setBrief(ProgramOptions &options, const QString &)
{
    options.diff.isBrief = true;
    return {};
}

/// Two files, or what git hands to a program for differences: PATH OLD-FILE HASH MODE NEW-FILE HASH MODE, with two more
/// words for a file that was renamed.
QString assignToDiff(ProgramOptions &options, const QStringList &words)
{
    if (words.size() == 7 || words.size() == 9) {
        options.diff.changedPath = words[0];
        options.drawings = {words[1], words[4]};
        return {};
    }
    if (words.size() != 2)
        return QCoreApplication::translate("Uses", "diff needs two drawings");
    options.drawings = words;
    return {};
}

QList<OptionRow> diffOptions()
{
    return {
        {.name = "--tolerance",
         .value = "LENGTH",
         .help = QT_TRANSLATE_NOOP("Uses", "take numbers and coordinates for the same that are no farther apart"),
         .apply = setTolerance,
         .kind = ValueKind::Number,
         .range = ValueRange{0.0, 1e15},
         .byDefault = "0"},
        {.name = "--ignore",
         .value = "KINDS",
         .help = QT_TRANSLATE_NOOP(
             "Uses", "what does not count in addition, separated by commas: version, view, header, classes, objects, "
                     "xdata, order. times, handles, identity, extents and reactors do not count anyway; \"none\" in "
                     "front counts them"),
         .apply = addIgnored},
        {.name = "--match",
         .value = "auto|handle|content",
         .help = QT_TRANSLATE_NOOP("Uses", "what makes entities the same one: their handles, or what is in them"),
         .apply = setMatching,
         .kind = ValueKind::Choice,
         .byDefault = QT_TRANSLATE_NOOP("Uses", "auto: by handle, unless far more entities are the same by content")},
        {.name = "--brief", .help = QT_TRANSLATE_NOOP("Uses", "tell the sums alone"), .apply = setBrief},
        {.name = "--picture",
         .value = "FILE",
         .help = QT_TRANSLATE_NOOP(
             "Uses", "draw both over each other into a png, svg or pdf file: what is gone red and dashed, what is new "
                     "green and thick, what has changed orange and dashed as it was, blue and thick as it is"),
         .apply = takeDiff<&DiffOptions::picture>,
         .kind = ValueKind::File,
         .files = "*.png *.svg *.pdf"},
        {.name = "--layout",
         .value = "NAME",
         .help = QT_TRANSLATE_NOOP("Uses", "which sheet the picture shows; without it, model space"),
         .apply = takeDiff<&DiffOptions::layout>},
        forceOption(QT_TRANSLATE_NOOP("Uses", "write the picture although another program has it open")),
        recoverOption(QT_TRANSLATE_NOOP("Uses", "open damaged drawings as far as they are sound, and tell on standard "
                                                "error what was dropped")),
        timeLimitOption(QT_TRANSLATE_NOOP("Uses", "the most it may take"), QT_TRANSLATE_NOOP("Uses", "no limit")),
        jsonOption(QT_TRANSLATE_NOOP("Uses", "print the differences as one line of JSON")),
    };
}

} // namespace

UseRow diffUse()
{
    return {
        .name = "diff",
        .purpose = QT_TRANSLATE_NOOP("Uses", "tells what differs in two drawings"),
        .usages = {"diff A B [--tolerance 1e-9] [--picture FILE] [OPTION...]"},
        .operands = {{.name = "A", .help = QT_TRANSLATE_NOOP("Uses", "a drawing as it was"), .files = "*.dxf *.dwg"},
                     {.name = "B", .help = QT_TRANSLATE_NOOP("Uses", "the drawing as it is"), .files = "*.dxf *.dwg"}},
        .sections =
            {{.heading = "",
              .text = QT_TRANSLATE_NOOP(
                  "Uses",
                  "Prints a line for each variable, layer, style, block, entity and object that differs: + for what B "
                  "has alone, - for what A has alone, ~ for what has other values in B, with these. Sums stand behind "
                  "=, by type and by layer. The files' forms and versions do not matter, nor how numbers are "
                  "spelt.\n\nEnds with status 0 when nothing differs, 1 when something does, 2 and more when it could "
                  "not be found out.\n\nWith the seven words that git hands to a program for differences it compares "
                  "these two files and ends with 0 either way: git config diff.dxf.command \"ortakit diff\"."),
              .options = diffOptions()}},
        .assign = assignToDiff,
        .run = diffDrawings};
}

} // namespace host::app
